#pragma once
// Forms whose fields show only while the choice they belong to is made: the stiffeners of a
// steel base plate in each direction follow their check box (frmBasMet), the lengths and end
// conditions of each kind of steel stair follow its option button (frmEscMet). The forms differ
// only by their table of choices; the visibility is no stored value, so a record reads and
// saves as it always did.

#include <span>
#include <string_view>

#include "frame/ElementForm.h"
#include "steel_timber/BotonesAyuda.h"

namespace vardena {

// A choice: a check box, or one option button of an array, and the fields that show with it.
struct Dependencia {
    std::string_view control;
    int index;  // -1 for a plain control
    std::span<const std::string_view> campos;
};
// The choices of a form by its name; none for another form.
std::span<const Dependencia> DependenciasDe(std::string_view form);

class FormaDependientes : public ConBotonesAyuda<ElementForm> {
public:
    FormaDependientes(Declaraciones& d, const TablaForm& tabla);

    // Shows the fields of the choices made and hides the others.
    void Presenta();

protected:
    void CargaPropia() override { Presenta(); }
};

}  // namespace vardena
