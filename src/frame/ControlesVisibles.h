#pragma once
// The controls of a form that are shown and never stored: frames, labels, buttons, pictures,
// with their Spanish design-time captions and tool tips. They never enter a record, so their
// order does not matter; the language packs translate them by name.

#include <string_view>
#include <vector>

#include "base/Form.h"

namespace vardena {

// One shown control of a form. A row of a stored kind (a check box, an option button) only
// gives its caption to the field that the form's record already defines; it never creates it.
struct ControlVisible {
    Kind kind;
    std::string_view nombre;
    int index;  // -1 for a control that is no member of an array
    std::string_view caption;
    std::string_view tooltip = {};
};

// The rows of a form by its name, those of the families it belongs to first; empty for a form
// that has none in the table. A row of index -1 that names a control array gives its caption
// to every member, with "#" in it standing for the member's index; a row of the member
// itself, coming later, has the last word.
const std::vector<ControlVisible>& ControlesVisibles(std::string_view form);

// The captions of the fields that mean the same in every form that has them (the title, the
// level, the materials, the results). A name ending in "*" stands for every field whose name
// begins with the rest. These rows never create a control.
const std::vector<ControlVisible>& ControlesComunes();

// Gives the form the captions of the common rows, then adds, by its name, the shown controls
// of its table. A control that the form already has (a shared frame of every element window,
// a field of the record) takes the row's caption instead, and its tool tip when the row gives
// one; only a control of the row's kind does. Running it twice adds nothing.
void AnadeControlesVisibles(Form& form);

}  // namespace vardena
