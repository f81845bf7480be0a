#pragma once
// The column forms (frmPilHorm, and the steel and timber columns, which share its load
// estimate): besides the section, the form estimates live the axial force and the two moments
// on the column from the general data. The tributary area comes from the four distances of the
// column's position in plan, the loads from the levels it carries and the enclosure wall.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "frame/ElementForm.h"

namespace vardena {

// The positions of a column in plan, the indices of OpPosPil.
enum class PosicionPilar { Esquina = 0, Borde = 1, Centro = 2 };

// The first of the four distances LePil of each position; LePil(12) is the storey height.
constexpr int PrimeraLuz(PosicionPilar p)
{
    switch (p) {
    case PosicionPilar::Esquina: return 0;
    case PosicionPilar::Centro: return 4;
    case PosicionPilar::Borde: return 8;
    }
    return 0;
}
inline constexpr int kAlturaPlanta = 12;

// Whose rule the estimate follows. The drop panel (frmAbaco) takes its enclosure force without
// the safety coefficient and the slab's loaded area (a4 + a3)(a2 + a1) / 4 at every position.
enum class ReglaCargas { Pilar, Abaco };

// What the estimate takes, in internal units (m, t, t/m2): the distances a1..a4, the loads per
// m2 of the levels carried (GT, QT) and of the column's own level (G, Q), the enclosure term e
// and the two safety coefficients of the control level.
struct DatosCargasPilar {
    PosicionPilar posicion = PosicionPilar::Centro;
    std::array<double, 4> a{};
    double gT = 0, qT = 0, g = 0, q = 0, e = 0;
    double gammaG = 0, gammaQ = 0;
    ReglaCargas regla = ReglaCargas::Pilar;
};
// The axial force (t), the two moments (m·t) and what goes into them.
struct CargasPilar {
    double area = 0;         // tributary area, m2
    double nCerramiento = 0; // enclosure force Nc, t
    double n = 0, mx = 0, my = 0;
};
CargasPilar CalculaCargasPilar(const DatosCargasPilar& datos);

// The loads G and Q per m2 of level `nivel` (row of CmbPlanta): floors and roof, or basements
// below NPlantasSobre; self-weight + permanent, partitions + imposed. A row the work does not
// have is a subscript error.
void CargasDeNivel(const Declaraciones& d, int nivel, double& g, double& q);

// What a form's control level gives: the safety coefficients (gamma g, gamma q) of its
// cmbControl, or of the general data where it has no such list, and, for a concrete form
// (CmbHorm and CmbAcero), the design strengths in t/m2 ("Reducido": fcd 1000, fyd 0.75 fyk /
// 1.15); 0 otherwise.
struct MaterialesControl {
    double gammaG = 0, gammaQ = 0, fcd = 0, fyd = 0;
};
MaterialesControl MaterialesDe(Form& form);

// What every column window of a storey shows alike, whatever its material: its level, the
// design loads and the enclosure, the position in plan and the distances of each position.
inline constexpr std::string_view kPilarNivel[] = {"txtTitulo", "CmbPlanta", "ChPilSup", "LePil(12)"};
inline constexpr std::string_view kPilarEsfuerzos[] = {"TxtQ(2)", "TxtQ(0)", "TxtQ(1)"};
inline constexpr std::string_view kPilarCerramiento[] = {"LbP1(0)", "TxtQ(3)"};
inline constexpr std::string_view kPilarPosicion[] = {"OpPosPil(0)", "OpPosPil(1)", "OpPosPil(2)", "Ptpilar"};
inline constexpr std::string_view kPilarLucesEsquina[] = {"LePil(0)", "LePil(1)", "LePil(2)", "LePil(3)"};
inline constexpr std::string_view kPilarLucesBorde[] = {"LePil(8)", "LePil(9)", "LePil(10)", "LePil(11)"};
inline constexpr std::string_view kPilarLucesCentro[] = {"LePil(4)", "LePil(5)", "LePil(6)", "LePil(7)"};

class PilHorm : public ElementForm {
public:
    PilHorm(Declaraciones& d, const TablaForm& tabla);

    // The load estimate: reads the form and the general data, keeps its figures and writes
    // N, Mx and My into TxtQ(2), TxtQ(0) and TxtQ(1). Nothing while the form is being filled.
    void CalCargas();

    // The chosen position; none when no option button is set.
    std::optional<PosicionPilar> Posicion() const;
    // The figures of the last estimate, in internal units.
    const CargasPilar& Cargas() const { return cargas_; }

    std::string ResumenCalculo() const override;

    // The plan of the column at its position (Ptpilar(i)), with the four distances; the section,
    // rectangular (PctCuadr) or circular (PctCir), with its bars and sizes; the cross-tie of a
    // face (Pctllave(3), Pctllave(4)).
    // The bars: UCArmPilar(1) and (2) on the upper and lower face, (3) and (4) the side bars of
    // the left and right face, (0) those of the circular section.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;
    // CmdCalcular: the estimate before the check takes the loads.
    DatosComprobacion LeeDatosComprobacion() override;

private:
    void ConectaEventos();

    void OpPosPil_Click(int index);
    void LePil_Change(int index);
    void CmbPlanta_Click();
    void CmbForma_Click();
    void ChPil_Click(int index);
    void List1_Lee();

    // What the window shows for the chosen position, level and shape; the handlers call them,
    // and so do the load and the reading of a record, so that the window matches its fields.
    void PresentaPosicion();
    void PresentaPlanta();
    void PresentaForma();
    void PresentaLlaves();

    // The loads G and Q per m2 of level `nivel` (row of CmbPlanta): floors and roof, or
    // basements below NPlantasSobre.
    void CargasNivel(int nivel, double& g, double& q) const;
    // The safety coefficients (gamma g, gamma q) of the form's control level, or of the
    // general data where the form has no list of its own.
    void CoeficientesControl(double& gammaG, double& gammaQ);
    double Luz(int index) const;
    Croquis CroquisSeccion(bool circular) const;
    Croquis CroquisLlave(int cara) const;

    CargasPilar cargas_;
    // The materials of the last estimate, t/m2 (concrete forms only).
    double fcd_ = 0, fyd_ = 0;
    // Set while the estimate writes its figures: their change events do not start it again.
    bool escribiendo_ = false;
};

}  // namespace vardena
