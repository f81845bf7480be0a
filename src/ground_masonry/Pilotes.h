#pragma once
// The pile group (frmPilotes). Its check step is a no-op; what runs for real is the bearing
// capacity of one pile from the strata it crosses, in the panel UCSuelo ("Datos del terreno"):
// CmdCapacidad opens the panel, UCOK2 ("Calcular") calculates, UCOK1 ("Cerrar") closes it. The
// capacity is found by analytical solutions (granular or fine soil) or by blow counts, and a tip
// on sound rock takes the rock's service pressure of the soil form. The panel draws the strata,
// the water table and the pile to scale.
//
// The capacity is written into TxtQ(3) (tip), TxtQ(4) (shaft), txtQadm (structural limit) and
// TxtQ(5) (the pile's capacity, last); a rock tip writes txtKsp and txtQd as well. Everything is
// worked out before the first field is written, so a formula that fails leaves every field as
// it was. The conversion's CmdCalcular does not calculate the capacity: the record keeps the
// figures it was read with.

#include <optional>
#include <string>
#include <string_view>

#include "frame/ElementForm.h"

namespace vardena {

// The strata of the panel: rows 0 to 4 are the strata along the shaft, as many as CmbEstratos
// says (row 5 too when it says 6); row 5 is always the stratum at the tip.
inline constexpr int kEstratosPilote = 6;
inline constexpr int kEstratoPunta = 5;
// The unit weight of water, kN/m3: below the water table a stratum weighs this much less.
inline constexpr double kPesoAgua = 10;

// The figures of one calculation, in the units the fields show (kN, or t in a technical work).
struct CapacidadPilote {
    double punta = 0;     // the tip's resistance, qp over 3 on the tip's area
    double fuste = 0;     // the shaft's resistance
    double tope = 0;      // the structural limit of the pile
    double capacidad = 0; // tip and shaft, at most the structural limit where there is one
    std::optional<double> ksp, qd;  // the rock's parameter and pressure, for a tip on rock
};

class Pilotes : public ElementForm {
public:
    Pilotes(Declaraciones& d, const TablaForm& tabla);

    // Shows the strata that CmbEstratos counts, the fields the chosen method reads, the water
    // table's depth while ChNF is ticked and the rock's frame for a tip on rock; the sketch
    // PctEstratos follows the fields whenever it is drawn.
    void Redibuja();
    // Opens the strata panel.
    void CmdCapacidad_Click();
    // "Calcular": the capacity from the strata, written into the results.
    void UCOK2_Click();
    // "Cerrar": closes the panel.
    void UCOK1_Click();

    // The strata, the water table and the pile, to scale, in PctEstratos.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;
    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;

private:
    // The capacity the fields give now, without writing it. Throws the run-time error of a
    // formula that cannot be evaluated, naming the field that causes it.
    CapacidadPilote Calc_Capacidad() const;
    void ConectaEventos();
    void List1_Lee();
    double Valor(std::string_view control, int index = -1) const;
    // The strata along the shaft: CmbEstratos' row plus one, within 0 and 6.
    int EstratosFuste() const;
    // The shaft's integral of the effective vertical stress over stratum k, from its top at
    // depth z0 with the effective stress sigma0 there; advances both to the stratum's bottom.
    double IntegralTension(int k, double& z0, double& sigma0) const;
};

}  // namespace vardena
