#pragma once
// The soil slope (frmTalud). Its check step is a no-op; what runs is the data entry: the slope
// catalogue, the hard surface stratum, and the sketch of the slope at its angle.

#include <optional>
#include <string>

#include "frame/ElementForm.h"

namespace vardena {

// TxCotaTalud: the slope's height (0) and the thickness of the hard surface stratum (1), cm;
// the slope's angle (2), degrees.
inline constexpr int kAlturaTalud = 0;
inline constexpr int kEstratoTalud = 1;
inline constexpr int kAnguloTalud = 2;
// The TxtQ of the cohesion that the slope catalogue writes.
inline constexpr int kCohesionTalud = 1;

// The horizontal run of a slope of height `alto` at `grados` from the horizontal, for the
// sketch: the angle is tested against 0 and 90 and only an angle above 0 and up to 90 takes its
// tangent. None for any other angle, which has no slope to draw.
std::optional<double> RecorridoTalud(double alto, double grados);

class Talud : public ElementForm {
public:
    Talud(Declaraciones& d, const TablaForm& tabla);

    // Catalogue rows 1 to 10 write density, cohesion and friction angle.
    void CmbTalud_Click();
    // The angle tested against 0 and 90: the sketch takes the slope of an angle above 0 and up to
    // 90 and keeps the last one drawn for any other, which a change of the angle (`index` 2)
    // warns of. The value typed stays.
    void TxCotaTalud_Change(int index);
    // The stratum's thickness is typed only with the stratum.
    void chkEstrato_Click();

    // The angle the sketch shows, degrees.
    double AnguloDibujado() const { return angulo_; }

    // The slope: PicTalud.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;
    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;

private:
    void List1_Lee();
    void Presenta();

    double angulo_ = 45;
};

}  // namespace vardena
