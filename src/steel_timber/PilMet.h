#pragma once
// The steel column (frmPilMet): the load estimate of the concrete column (CalCargas, shared
// through PilHorm) and the effective length of the column about each axis, from the stiffness
// of the column and of the beams UCViga that reach its ends.
//
// Each axis has two node coefficients, eta1 at the head and eta2 at the foot:
//   eta = (Kc + Kk) / (Kc + Kk + Kb1 + Kb2)
// with K = I / L: Kc the column (its I about the axis, L the storey height LePil(12)), Kk the
// column beyond the node (one above the head when ChPilSup is set, one below the foot unless
// the column stands on the lowest level of the work; taken equal to this one), Kb the two
// beams of the axis (about X UCViga(0) and (1) along the distances a1 and a2 of the column's
// position, about Y UCViga(2) and (3) along a3 and a4), each with its strong-axis I. A beam of
// length 0, or a side with no beam (the cantilever to the façade: a1 of an edge column, a1 and
// a4 of a corner column), takes the length 1e7 and so counts for nothing. The foot on the
// lowest level stands on the foundation: no beams and no column below reach it. ChRotS (head)
// and ChRotI (foot) fix that end against turning: its eta is 0 about both axes.
//
// A braced axis (ChkArriostradaX, ChkArriostradaY set) takes
//   beta = (1 + 0.145 (eta1 + eta2) - 0.265 eta1 eta2) / (2 - 0.364 (eta1 + eta2) - 0.247 eta1 eta2),
// a sway axis
//   beta = sqrt((1 - 0.2 (eta1 + eta2) - 0.12 eta1 eta2) / (1 - 0.8 (eta1 + eta2) + 0.6 eta1 eta2)),
// whose denominator is 0 when both ends are free to turn (eta1 = eta2 = 1): such a column is a
// mechanism and has no finite effective length. The window shows "∞" for it and the shared
// variable keeps its last factor; the user's change that makes the column a mechanism is told
// in a box, once. A save (and so the conversion) never stops on it.

#include <optional>
#include <string>

#include "concrete/PilHorm.h"
#include "steel_timber/BotonesAyuda.h"

namespace vardena {

// The length a beam takes when its side has none, or its length is 0: it then adds no stiffness.
inline constexpr double kLuzSinViga = 1e7;

// eta of a node from the stiffness of the columns that meet there (this one and the one beyond)
// and of its beams. A node where nothing is stiff restrains nothing: 1.
double CoeficienteNudo(double rigidezPilares, double rigidezVigas);
// The stiffness I / L of a beam; a length of 0 or less is taken as kLuzSinViga.
double RigidezViga(double inercia, double luz);
// The effective length factor of a braced column.
double BetaIntraslacional(double eta1, double eta2);
// That of a sway column; nothing where the denominator is 0 (or the quotient below 0).
std::optional<double> BetaTraslacional(double eta1, double eta2);

// The figures of one axis of the last calculation.
struct PandeoEje {
    double eta1 = 0, eta2 = 0;
    bool arriostrado = false;
    std::optional<double> beta;
};

class PilMet : public ConBotonesAyuda<PilHorm> {
public:
    PilMet(Declaraciones& d, const TablaForm& tabla);

    // The effective length about both axes: the node coefficients and the factors into the
    // shared variables BetaPandeoX and BetaPandeoY, and onto the window's labels. With `avisa`
    // (a user's change) an axis that has just become a mechanism is told in a box.
    void Calc_LongPandeo(bool avisa = false);

    const PandeoEje& EjeX() const { return ejeX_; }
    const PandeoEje& EjeY() const { return ejeY_; }

    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;
    DatosComprobacion LeeDatosComprobacion() override;

private:
    PandeoEje CalculaEje(bool ejeX);
    void Presenta(const char* sufijo, const PandeoEje& eje);
    // Runs the calculation after an event's own handler.
    void TrasEvento(Control& c, bool cambio);

    PandeoEje ejeX_, ejeY_;
};

}  // namespace vardena
