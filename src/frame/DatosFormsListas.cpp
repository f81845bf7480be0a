// Fills the lists of a form from its definition.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Campos.h"
#include "frame/DatosForms.h"
#include "base/FileIo.h"
#include "base/Form.h"

namespace vardena {

void LlenaListas(Form& form)
{
    const TablaForm* t = TablaCampos(form.Name());
    if (!t)
        return;
    // CmbPlanta has no entry: LlenaPlantas fills it with the levels of the work.
    for (Control* c : form.Controls()) {
        if (c->kind() != Kind::ComboBox)
            continue;
        for (const Lista& l : t->listas)
            if (SameNameNoCase(l.combo, c->Name()) && (l.index < 0 || l.index == c->Index())) {
                c->SetItems(std::vector<std::string>(l.filas.begin(), l.filas.end()));
                break;
            }
    }
}

}  // namespace vardena
