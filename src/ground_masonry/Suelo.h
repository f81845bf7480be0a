#pragma once
// The foundation soil (frmSuelo), calculated for real: the bearing pressure by the factor
// formula, the service pressure of granular soil from the blow count and that of sound rock from
// the spacing and opening of its joints. The factor fields follow the data as they change; the
// user may overtype any of them, and the calculation takes what stands in them when the button
// is pressed. All values are read from the fields' texts.

#include <optional>
#include <string>
#include <string_view>

#include "frame/ElementForm.h"
#include "reports/mRtf.h"

namespace vardena {

// The values that the soil catalogue writes for each entry of CmbTerreno (whose rows, the
// names, are the list kTerreno): the density (Text3), the cohesion (Text4), the catalogue value
// (Text5) and the friction angle (Text2). Entry 0, "Definir datos...", lets the user define the
// soil and writes nothing.
struct SueloCatalogo {
    std::string_view densidad, cohesion, valor, rozamiento;
};
inline constexpr int kRocaSana = 7;
inline constexpr SueloCatalogo kSuelos[] = {
    {{}, {}, {}, {}},
    {"1800", "0", "0.55", "32"},
    {"1800", "0", "0.45", "30"},
    {"1900", "100", "0.35", "25"},
    {"2000", "25", "0.15", "20"},
    {"2000", "200", "0.2", "20"},
    {"2200", "200", "0.55", "40"},
    {"2600", "800", "0.6", "40"},
};

// The service pressure on sound rock, from its strength qu (kN/m2, txtQu), the opening a and the
// spacing s of its joints (mm, txtAp and txtS) and the width B (m) of what bears on it: r = a / s
// up to 0.02, t = s / B / 1000 kept within 0.05 and 2, Ksp = (3 + t) / (10 sqrt(1 + 300 r)) and
// qd = Ksp qu. The soil takes B from its footing's width, a pile from its diameter; `datoAncho`
// names the field of B for the error of a zero width. Arithmetic the run time refuses throws the
// run-time error naming the field that causes it (frame/Finitos.h).
struct PresionRoca {
    double ksp = 0;
    double qd = 0;
};
PresionRoca CalculaPresionRoca(const Form& form, double ancho, std::string_view datoAncho);

// The footing kinds, the rows of ComboCim (the list kCimiento).
enum class TipoCimiento { Rectangular = 0, Corrida = 1, Circular = 2, Losa = 3 };

class Suelo : public ElementForm {
public:
    Suelo(Declaraciones& d, const TablaForm& tabla);

    // The bearing pressure: writes the bearing factors, qh / 3 into txtTa and txtTadm, the
    // granular service pressure into txtServ (or "No"), shows the warnings and writes the report.
    void Calc_Suelo();

    // The sketches of PictureAis, PictureSot and PictureLosa.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;
    // CmdCalcular: the bearing pressure (or that of sound rock), then always the granular one.
    void CalculoPropio() override;
    // The results file just written is shown.
    void TrasGuardado() override;

private:
    void ConectaEventos();

    void Calc_ServGranular();
    void Calc_Roca();
    void Calc_FactForma();
    void Calc_FactIncl();
    void Profundidad();  // txtD change
    void Talud();        // txtAng change
    // The warnings of a slope (beta) steeper than half the friction angle (phi), in radians.
    void AvisaTalud(double beta, double phi);
    void CmbTerreno_Click();
    void ComboCim_Click();
    void chkServ_Click();
    void Text6_Change();
    void txtB_Change();
    void List1_Lee();
    void Listado_Suelo();
    void Listado_Roca();
    void EscribeInforme(bool roca);
    // Writes the report as the results file of the form's title.
    void GuardaInforme(const Informe& informe);

    // What the window shows for a soil entry, a footing kind and the check of chkServ; the
    // click handlers call them, and so does the reading of a record, so that the frames, labels
    // and sketches always match the lists read.
    void PresentaTerreno(int indice);
    void PresentaCimiento(int indice);
    void PresentaServicio();

    // The number in a field, read with ValComa.
    double Valor(std::string_view control) const;
    // Friction angle in radians.
    double Phi() const;
    // Arithmetic that the run time would refuse: a zero divisor (error 11), a result that is no
    // longer a number (6), the square root of a negative number (5). `dato` is the field whose
    // value causes it; the error's sentence names it and its text.
    double Divide(double a, double b, std::string_view dato) const;
    double Finito(double x, std::string_view dato) const;
    double Raiz(double x, std::string_view dato) const;

    // The second form of the bearing factors, used by the depth and inclination factors.
    struct Factores {
        double nq, nc, ng;
    };
    Factores FactoresSegundaForma(double phi) const;

    // The caption of lblLargo as the window was loaded, in its language ("Largo").
    std::string rotuloLargo_ = "Largo";
    // The vertical force of the last inclination calculation, as the module held it.
    float V_ = 0;
    // While the button's calculations run, the report waits for them all to succeed, so that a
    // failure half-way leaves the results file as it was.
    bool aplazaInforme_ = false;
    std::optional<Informe> informePendiente_;
};

}  // namespace vardena
