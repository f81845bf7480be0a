#pragma once
// The lintel in a masonry wall (frmMDint), of concrete, steel, timber or masonry. Its check step
// is a no-op; the window shows the frame of the chosen material and opens the masonry
// properties dialog.

#include <string>

#include "frame/ElementForm.h"

namespace vardena {

// The frames of the materials, in the order of CmbDintel: concrete, steel and timber are
// UCframe5(0) to (2); the masonry lintel shows the fire frame UCframeFuego.
inline constexpr int kMarcosDintel = 3;

class MDint : public ElementForm {
public:
    MDint(Declaraciones& d, const TablaForm& tabla);

    // Shows the frame of the chosen material over the place of the first one, hides the others.
    void CmbDintel_Click();
    void cmdDefRes_Click();

    std::string ResumenCalculo() const override;

protected:
    void CargaPropia() override;
};

}  // namespace vardena
