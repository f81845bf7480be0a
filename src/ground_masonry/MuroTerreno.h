#pragma once
// The walls that hold ground: the concrete basement wall of up to four storeys (frmMuroH), the
// retaining wall of concrete or masonry (frmMuroCont) and the anchored wall (frmMuroAnclado).
// The three share one class: each handler is wired where the form has its control, so that the
// forms differ only by their fields. Their check step is a no-op; what runs is the data entry:
// the storeys taken from the general data, the catalogues of backfill, soil and slope, the
// wall-backfill friction, the ground pressure of the general data, and the wall's section sketch.

#include <optional>
#include <string>

#include "frame/ElementForm.h"

namespace vardena {

// The storeys a basement wall may have; each has three coordinates in TxCotaMuro (thickness at
// its head, height, thickness at its foot, cm), four bars in UCArmMuro and, on the anchored
// wall, an anchor (TxtQ(4 + storey), txtAng, TxtSep).
inline constexpr int kMaxSotanosMuro = 4;
inline constexpr int kCotasPorSotano = 3;
inline constexpr int kArmadurasPorSotano = 4;
inline constexpr int kPrimeraTensionAnclaje = 4;
// The TxtQ of the cohesion that the slope catalogue writes on the anchored wall.
inline constexpr int kCohesionMuroAnclado = 3;
// The TxtQ of the ground's admissible pressure, which Check1 takes from the general data.
inline constexpr int kTensionMuro = 2;

// The wall-backfill friction angle that OptDelta(1) "Bajo" and OptDelta(2) "Alto" set, as a
// share of the backfill's friction angle: a third for a smooth back, two thirds for a rough
// concrete back poured against the ground.
inline constexpr double kDeltaBajo = 1.0 / 3.0;
inline constexpr double kDeltaAlto = 2.0 / 3.0;

// The number of storeys that CmbSot row `fila` stands for: row 0, "Idem gral.", the basements of
// the general data, at least one; row i, i storeys.
int SotanosDeMuro(int fila, int sotanosGenerales);

class MuroTerreno : public ElementForm {
public:
    MuroTerreno(Declaraciones& d, const TablaForm& tabla);

    // The storey heights of the general data into TxCotaMuro(1), (4), (7), (10), in cm with no
    // decimals, for the basements the building has; then the fields of the storeys shown.
    void CmbSot_Click();
    // The backfill catalogue; on the retaining wall, "Idem Terreno" copies the ground's data.
    void CmbTerr_Click();
    // The soil catalogue of the retaining wall's ground.
    void CmbTerreno_Click();
    // The slope catalogue of the anchored wall's ground.
    void CmbTalud_Click();
    // Concrete or masonry: the fields of the other material are disabled.
    void cmbTipo_Click();
    // "Definir..." (or no row chosen) lets Text1 be typed; "Bajo" and "Alto" write it from the
    // backfill's angle.
    void OptDelta_Click();
    void TxtAngulo_Change();
    // "Idem general": the admissible pressure is that of the general data, and cannot be typed.
    void Check1_Click();
    // A slab at the head brings the head loads N and M, which are typed only with it.
    void CheckFM_Click();

    // The number of storeys the wall shows (frmMuroCont: one).
    int Sotanos() const;

    // The wall's section: PicMuro.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;
    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;

private:
    void List1_Lee();
    // What the window shows for the lists and checks as they stand: the storeys' fields, the
    // enabled fields. Writes no value, so that a record read keeps what it holds.
    void Presenta();
    void PresentaSotanos();
    // The share of the backfill's angle that the chosen OptDelta row gives; 0 for "Definir...".
    double ParteDelta() const;
    void Cambio(std::string_view control, std::string_view origen, void (MuroTerreno::*rutina)());
};

}  // namespace vardena
