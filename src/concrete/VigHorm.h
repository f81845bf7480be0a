#pragma once
// The reinforced-concrete beam (frmVigHorm): one span with its supports, cantilevers, loads by
// stretches and reinforcement. Its own logic: the spans editor, the cover from the exposure
// class, the level's supports and partitions, the least section depth, the transverse bending
// frame, the cantilevers shown or hidden, the optional bar layers, and the pictures of the beam
// and of its sections. Its check is the no-op of every element; what the check would take is
// gathered by CmdCalcular into VariablesViga.
//
// The bars (UCArVig) of the beam:
//   0        bottom bars along the whole beam;
//   1, 2, 3  top layers over the left support, each ChArV(i) long TxLv(i) from the support;
//   4, 5, 6  the same over the right support;
//   7, 8     extra bottom bars at mid-span, two layers TxLv(7) and TxLv(8) long, both set by
//            the one check box ChArV(8), which shows both lengths (there is no ChArV(7));
//   9, 10    top bars of the left and right cantilever, shown with it.
// A second or third layer over a support stands on the one before: ChArV(i + 1) is enabled only
// while ChArV(i) is set (i = 1, 2, 4, 5), and clearing ChArV(i) clears it.

#include <array>
#include <map>
#include <memory>

#include "frame/DatosCalculo.h"
#include "frame/ElementForm.h"
#include "frame/Tramos.h"

namespace vardena {

// The cover index (of CmbRecub) that an exposure class (row of CmbAmbGral) asks for.
int RecubrimientoDeExposicion(int exposicion);

// The section as the section picture draws it, in the units given: width b and depth h as
// absolute values, the longer side cut to 3.5 times the shorter.
struct SeccionDibujada {
    double ancho = 0, alto = 0;
};
SeccionDibujada FormaSeccion(double b, double h);
inline constexpr double kProporcionSeccion = 3.5;

// The optional bar layers paired with the check box after them.
constexpr bool CapaConSiguiente(int i) { return i == 1 || i == 2 || i == 4 || i == 5; }
inline constexpr int kCapasBarras = 8;   // UCArVig(1..8) and their lengths TxLv(1..8)
// The check box that sets the optional bars UCArVig(i), i = 1 to 8.
constexpr int CasillaDeCapa(int i) { return i >= 7 ? 8 : i; }
inline constexpr int kGruposBarras = 11; // UCArVig(0..10)

// What the beam's check takes, gathered by CmdCalcular_Click in internal units (m, t, t/m2).
struct VariablesViga {
    int nivel = -1;            // row of CmbPlanta whose loads were taken; -1: none
    CargasPlanta cargasPlanta; // the four raw values of the level
    double g = 0, q = 0;       // permanent and imposed load of the level
    double fck = 0, fyk = 0;   // characteristic strengths
    double gammaG = 0, gammaQ = 0;  // load factors of the control level
    double gamma = 0;          // mean load factor (gammaG g + gammaQ q) / (g + q)
    double gammaC = kGammaHormigon, gammaS = kGammaAcero;
    bool reducido = false;     // control "Reducido"
    double fcd = 0, fyd = 0;   // design strengths
    double b = 0, h = 0, recubrimiento = 0;  // section width and depth, cover, m
    double L = 0, a1 = 0, a2 = 0;            // span and its first two stretches, m
    double voladizoIzq = 0, voladizoDer = 0; // cantilever lengths, m (0 without a cantilever)
    double pilarIzq = 0, pilarDer = 0;       // column depths, m
    std::map<int, double> cargas;            // TxtQ(i), internal units
    std::array<double, kGruposBarras> areaBarras{};  // UCArVig(i), m2; 0 for a layer not set
    std::array<double, kCapasBarras + 1> longitudBarras{};  // TxLv(i), m; 0 for a layer not set
    std::array<double, 3> areaCercos{};       // UCArCer(i), m2 per m
    std::array<double, 3> separacionCercos{}; // UCArCer(i) spacing, cm
};

// The mean load factor and the design strengths from the level's loads, the strengths and the
// factors already in `v`; a g + q of 0 weighs nothing and leaves the mean factor 0 (the form
// refuses such a level before).
void CalculaMaterialesViga(VariablesViga& v);

class VigHorm : public FormaViga {
public:
    VigHorm(Declaraciones& d, const TablaForm& tabla);

    // PctViga: the beam with its supports and cantilevers, the load stretches with their loads
    // drawn to scale, the point loads, the lengths and the bars. PctSeccion, PictIzq, PictDer:
    // the section of the span and of each cantilever with its bars and its sizes.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

    // What the last CmdCalcular gathered for the check.
    const VariablesViga& Variables() const { return variables_; }
    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;
    DatosComprobacion LeeDatosComprobacion() override;

private:
    void CmbAmbGral_Click();
    void CmbPlanta_Click();
    void TextDviga_LostFocus(int index);
    void ChTrans_Click();
    void ChVoladizo_Click(int lado);
    void ChArV_Click(int index);
    void List1_Lee();

    // What the window shows for its fields; the handlers call them, and so do the load and the
    // reading of a record, where no event runs.
    void PresentaVoladizo(int lado);
    void PresentaApoyo(int lado);
    void PresentaCapas();
    // The warnings of a check (oblique compression at either end, stirrups short for the
    // transverse bending) show only where a check's result says so.
    void OcultaAvisos();

    VariablesViga ReuneVariables(const DatosComprobacion& datos);
    // The bars drawn in the beam picture.
    void DibujaArmado(Croquis& c, int izq, int der, int x0, int x1, int arriba, int abajo) const;
    Croquis CroquisSeccion(int voladizo) const;

    VariablesViga variables_;
    bool calculado_ = false;
    bool enVoladizo_ = false;  // a cantilever's change raises no second pass
};

}  // namespace vardena
