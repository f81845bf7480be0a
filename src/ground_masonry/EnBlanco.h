#pragma once
// The elements whose result is a free text (frmEnBlanco and its seven kin: slabs on the ground,
// masonry arches, reinforced masonry, bolted and welded joints, the floating beam). They have no
// geometry and no check: the record holds the title, the materials and the text the user wrote.
// The forms differ only by their definitions; this one class runs them all.
//
// Saving writes the text as the element's results file too, so that the element is listed in
// List1 and can be read back, and so that a later save of the same title asks first.

#include "frame/ElementForm.h"

namespace vardena {

class Informe;

class EnBlanco : public ElementForm {
public:
    EnBlanco(Declaraciones& d, const TablaForm& tabla);

    // The results file of the form as it stands: the form's caption, the title, the materials
    // and the text of TxtRes1, line by line.
    Informe InformeLibre();

protected:
    void TrasGuardado() override;
};

}  // namespace vardena
