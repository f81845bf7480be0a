#pragma once
// The catalogues of the ground that the walls and the slope take their data from: the backfill
// of a wall (CmbTerr) and the soil of a slope (CmbTalud). Entry 0 of each, "Definir datos...",
// lets the user define the ground and writes nothing.

#include <string_view>

#include "base/Form.h"

namespace vardena {

// A backfill: its density, kg/m3 (TxtDensidad), and its friction angle, degrees (TxtAngulo).
// The rows follow the list of CmbTerr: gravel, sand, brick rubble, topsoil, embankment fill and
// rockfill. The figures are apparent unit weights and internal friction angles of fills as
// Spanish practice takes them for earth pressure on walls (compare the fill materials of the
// weights and friction angles annex of CTE DB SE-AE): the coarse fills, gravel and rockfill,
// the steepest at 40 degrees, brick rubble the lightest, topsoil the weakest.
struct RellenoCatalogo {
    std::string_view densidad, angulo;
};
inline constexpr RellenoCatalogo kRellenos[] = {
    {{}, {}},          // "Definir datos..."
    {"1700", "40"},    // "Grava"
    {"1500", "30"},    // "Arena"
    {"1300", "35"},    // "Cascote ladrillo"
    {"1700", "25"},    // "Tierra vegetal"
    {"1700", "30"},    // "Terraplén"
    {"1800", "40"},    // "Pedraplén"
};
// The retaining wall's last backfill row, "Idem Terreno": the backfill is the ground the wall
// stands on.
inline constexpr int kRellenoIdemTerreno = 7;

// A slope's soil: density, kg/m3 (TxtDensidad), cohesion and friction angle, degrees
// (TxtAngulo). The rows follow the list of CmbTalud. The cohesion has two figures: the first,
// t/m2, for a work whose Unidades is anything but 0, the second, ten times it (kN/m2), for a
// work whose Unidades is 0. Only that value takes the second: the technical system (1) and the
// S.I. a new work stores (2) both take the first.
struct TaludCatalogo {
    std::string_view densidad, cohesion, cohesionUnidades0, angulo;
};
inline constexpr TaludCatalogo kTaludes[] = {
    {{}, {}, {}, {}},             // "Definir datos..."
    {"1700", "0", "0", "30"},     // "Arena"
    {"1900", "0", "0", "30"},     // "Arena limosa"
    {"1700", "2", "20", "20"},    // "Arcilla arenosa blanda"
    {"1800", "7.5", "75", "20"},  // "Arcilla arenosa dura"
    {"1800", "2", "20", "25"},    // "Limos"
    {"1800", "1.5", "15", "20"},  // "Arcillas blandas"
    {"2100", "2.5", "25", "20"},  // "Arcillas duras"
    {"2300", "25", "250", "20"},  // "Marga rígida"
    {"2200", "2", "20", "40"},    // "Roca meteorizada"
    {"2600", "8", "80", "40"},    // "Roca sana"
};

// Writes the backfill of catalogue row `indice` into TxtDensidad and TxtAngulo; false (and
// nothing written) for row 0 and rows the catalogue does not hold.
bool AplicaRelleno(Form& form, int indice);
// Writes the soil of catalogue row `indice` into TxtDensidad, TxtQ(`cohesion`) and TxtAngulo;
// the cohesion by the rule of the catalogue for `unidades`. False for row 0 and rows beyond.
bool AplicaTalud(Form& form, int indice, int cohesion, int unidades);

}  // namespace vardena
