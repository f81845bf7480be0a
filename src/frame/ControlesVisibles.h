#pragma once
// The controls of a form that are shown and never stored: frames, labels, buttons, pictures,
// with their Spanish design-time captions and tool tips. They never enter a record, so their
// order does not matter; the language packs translate them by name.

#include <string_view>
#include <vector>

#include "works/Form.h"

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

// The shown controls of a form by its name; empty for a form that has none in the table.
const std::vector<ControlVisible>& ControlesVisibles(std::string_view form);

// Adds to the form, by its name, the shown controls of its table. A control that the form
// already has (a shared frame of every element window) takes the row's caption instead, and
// its tool tip when the row gives one. Running it twice adds nothing.
void AnadeControlesVisibles(Form& form);

}  // namespace vardena
