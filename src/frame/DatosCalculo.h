#pragma once
// What the checks of the elements take from the general data besides their own fields: the
// loads per m2 of a level of the work, and the design strengths of concrete and reinforcing
// steel by the control level.

namespace vardena {

struct Declaraciones;

// The four loads of a level, t/m2, and the two sums the checks use.
struct CargasPlanta {
    double pesoPropio = 0, permanente = 0, tabiqueria = 0, sobrecarga = 0;
    double g() const { return permanente + pesoPropio; }  // permanent: self-weight and floor finishes
    double q() const { return tabiqueria + sobrecarga; }  // imposed: partitions and use
};

// The loads of level `nivel`, a row of CmbPlanta: the roof and the floors up to NPlantasSobre,
// the basements beyond it (basement nivel - NPlantasSobre). A row the work does not have raises
// run-time error 9.
CargasPlanta CargasDePlanta(const Declaraciones& d, int nivel);

// Partial factors of the materials and the concrete's design strength under control "Reducido".
inline constexpr double kGammaHormigon = 1.5;
inline constexpr double kGammaAcero = 1.15;
inline constexpr double kFcdReducido = 1000;

// Design strengths, t/m2: fck / 1.5 and fyk / 1.15, or under control "Reducido" (the control
// level of index 0) fcd = 1000 and fyd = 0.75 fyk / 1.15.
struct Resistencias {
    double fcd = 0, fyd = 0;
};
Resistencias ResistenciasDeCalculo(double fck, double fyk, bool reducido);

}  // namespace vardena
