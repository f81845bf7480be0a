#pragma once
// The loaded masonry wall (frmMuros). Its check step is a no-op; what runs is the data entry:
// the thickness warning on leaving a thickness, the section picture of the chosen stretch, the
// masonry properties dialog, and the minimums compared on the way to the check with no effect.
// The wall's loads (CalCargas) are gathered from its fields as every form's are; the check takes
// no arguments.

#include <optional>
#include <string>

#include "frame/ElementForm.h"

namespace vardena {

// The indexes of TxtCota that are thicknesses, cm.
inline constexpr int kCotasEspesorMuro[] = {6, 7, 8, 9, 12, 13, 16};
// A thickness at or below this, cm, is warned of.
inline constexpr double kEspesorMinimoMuro = 11.5;
// The sections the wall's pictures show: one leaf, two leaves, one leaf with a pilaster, two
// leaves with a pilaster.
inline constexpr int kSeccionesMuro = 4;

class Muros : public ElementForm {
public:
    Muros(Declaraciones& d, const TablaForm& tabla);

    // Leaving a thickness of 11.5 cm or less: messages 1105 and 1106 in a box titled 1107. The
    // value stays.
    void TxtCota_LostFocus(int index);
    // The linked coordinates follow a change; guarded against the re-entrance their own
    // writing would cause.
    void TxtCota_Change(int index);
    void OpTramo_Click(int index);
    // Shows the section picture of the chosen stretch.
    void SeleccPicSecc();
    void cmdDefRes_Click();

    std::optional<Croquis> CroquisDe(const Control& picture) const override;
    std::string ResumenCalculo() const override;

protected:
    // The density the masonry properties dialog left when opened from the lintel; the section.
    void CargaPropia() override;

private:
    bool enCambioCota_ = false;
};

}  // namespace vardena
