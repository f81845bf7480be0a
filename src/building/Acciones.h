#pragma once
// The building's actions: the snow load on the roof, the wind pressure and suction per storey
// in both plan directions (CTE DB SE-AE), and the seismic forces per storey by a modal method
// (NCSE-02), worked out from a few choices and the general data. The form keeps one record,
// "Acciones", and writes its results file each time it calculates.

#include <array>
#include <string>
#include <vector>

#include "frame/ElementForm.h"

namespace vardena {

struct Declaraciones;

// The snow loads on horizontal ground, kN/m2: 14 rows of altitude by the 7 climatic zones, as
// the file "Nieve" in the program's folder holds them. A load of 100 marks a site that must be
// studied apart.
inline constexpr int kFilasNieve = 14;
inline constexpr int kZonasNieve = 7;
inline constexpr float kNieveEstudioAparte = 100;
using TablaNieve = std::array<std::array<float, kZonasNieve>, kFilasNieve>;

// Reads the snow table: two heading items, then the 98 loads row by row, items separated by
// commas, blanks or line ends (a heading in double quotes may hold blanks). A line whose first
// non-blank character is ' or ; is a comment. A missing file, or one with too few loads or an
// item that is no number, throws FileError naming it.
TablaNieve LeeTablaNieve(const Declaraciones& d, const std::string& path);
// The row (1 to 14) of the snow table for an altitude in metres; each limit belongs to the row
// above it (200 m is row 2).
int FilaNieve(double altitud);

// The external pressure and suction coefficients of the wind for a slenderness height/width.
struct CoeficientesViento {
    float cp;
    float cs;
};
CoeficientesViento CoeficientesEsbeltez(double esbeltez);

// The terrain constants of the exposure coefficient by terrain class 1 to 5: k, L (m) and the
// height Z (m) under which the coefficient stays that of Z.
struct Entorno {
    double k;
    double L;
    double Z;
};
Entorno ConstantesEntorno(int clase);

class Acciones : public ElementForm {
public:
    Acciones(Declaraciones& d, const TablaForm& tabla);

    // The form's routines.
    void CalculaNieve();
    void CalculaViento();
    void CalculaSismo();
    void CoefEsbeltez();
    void CalculaBeta();
    void EscribeAcciones();
    void ColocaMasas();

    // Its events. The button runs the element's cycle: when the floors fit, the three
    // calculations, the results file and the save, then the record read back; when not, a
    // message and nothing else.
    void ChAccion_Click(const std::string& casilla);
    void cmbImportSismo_Click();
    void cmbSueloSismo_Click();
    void cmbEstruct_Click();
    void cmdSueloSismo_Click();
    void txtEstratos_Change();
    void UCOK2_Click();
    void UCOK1_Click();
    void CmdMasas_Click();
    void UCOK_Click();
    void AsignaC_Click(int index);
    void cmdAltitud_Click();
    void cmdEolica_Click();
    void cmdAgG_Click();

    // What the last calculation did: whether the wind action was asked for and gave no table (the
    // building's width or length is not above 0, or no wind zone or terrain class is chosen), and
    // its warnings, as the report lists them.
    bool SinTablaViento() const { return sinTablaViento_; }
    const std::vector<std::string>& Avisos() const { return avisos_; }

    // What the conversion's log says of the last press: recalculated, and whether a wind table
    // could be made.
    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;
    // The floors must fit the tables of the calculation; when not, the user is told why.
    bool PuedeCalcular() override;
    void CalculoPropio() override;
    // The record read back, as the window shows a saved record.
    void TrasGuardado() override;

private:
    // The three calculations as CmdCalcular runs them: each action checked is calculated, the
    // result of each one not checked is emptied.
    void CalculaAcciones();
    // Whether the building's floors fit the tables of the calculation; when not, the user is told.
    bool PlantasAdmitidas();
    // The frames of an action follow its check box.
    void ActivaAccion(const std::string& casilla);
    // The shear-wall dimension is asked only of structures with shear walls.
    void MuestraPantallas();
    // The rows of the strata panel that the number of strata asks for.
    void MuestraEstratos();
    // The damping (percent) of the structure chosen, as CalculaBeta takes it; the shared value is
    // left as it was when no structure is chosen.
    void Amortiguamiento();
    // Shows a map dialog by name when there is one; its choice comes back in the shared values.
    void MuestraMapa(const char* dialogo);
    // Tells the user that an action was not calculated because list `lista` has no row chosen,
    // and returns the sentence for the warnings.
    std::string SinEleccion(const char* lista);
    // The warning of the wind when it could make no table.
    void AvisoViento(bool sinTabla, const std::string& texto = {});
    // Adds the wind table of one plan direction to `texto` and shows its coefficients; false, with
    // nothing added, when the plan dimension is not above 0.
    bool TablaViento(const char* dimension, const char* esbeltez, const char* presion, const char* succion,
                     const std::string& direccion, std::string& texto);
    double LeeNumero(const char* control, int index = -1) const;

    bool sinTablaViento_ = false;
    std::vector<std::string> avisos_;
};

}  // namespace vardena
