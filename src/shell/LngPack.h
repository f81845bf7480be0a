#pragma once
// Language packs: the message table and the texts of the forms.

namespace vardena {

class Form;

// Applies the current language pack to the form's captions, list items and tool tips.
// A missing pack leaves the form as designed.
void TraduceForm(Form& form);

}  // namespace vardena
