// Each form's caption, default title, own defaults, defaults from the general data and the
// minimums of its check, one row per form, as typed tables.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Campos.h"
#include "frame/DatosForms.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Subrut.h"

namespace vardena {
namespace {


// The foundation forms and the walls take their admissible ground stress, the field beside
// their "Idem general" check box, from the general data.
struct TensionTerreno {
    std::string_view form;
    int index;
};
constexpr TensionTerreno kTensiones[] = {
    {"frmZap", 12}, {"frmZapComb", 4}, {"frmZapCorr", 2}, {"frmMuroH", 2}, {"frmMuroCont", 2}, {"frmMuroAnclado", 2},
};

const TablaForm* FichaDe(std::string_view form)
{
    for (const auto& t : TablasCampos())
        if (SameNameNoCase(t.nombre, form))
            return &t;
    return nullptr;
}

// The controls a list of values names, one entry per member.
std::vector<Minimo> Expande(std::span<const Valor> valores)
{
    std::vector<Minimo> out;
    for (const Valor& v : valores) {
        bool array = false;
        for (const Tramo& t : v.tramos) {
            for (int i = t.desde; i <= t.hasta; ++i)
                out.push_back({std::string(v.control), i, v.valor});
            array = array || t.desde <= t.hasta;
        }
        if (!array)
            out.push_back({std::string(v.control), -1, v.valor});
    }
    return out;
}

}  // namespace

void DefaultsPropios(Form& form)
{
    const TablaForm* f = FichaDe(form.Name());
    if (!f)
        return;
    for (const Minimo& e : Expande(f->propios)) {
        Control* c = form.Find(e.control, e.index);
        if (!c)
            continue;
        const int v = static_cast<int>(e.value);
        switch (c->kind()) {
        case Kind::ComboBox:
            if (v < c->ListCount())
                c->SetListIndex(v);
            break;
        case Kind::OptionButton: c->SetOptionValue(v != 0); break;
        case Kind::CheckBox: c->SetCheckValue(v); break;
        default: break;
        }
    }
}

void DefaultsGenerales(Form& form)
{
    const Declaraciones& d = form.decl();
    for (const TensionTerreno& t : kTensiones) {
        if (!SameNameNoCase(t.form, form.Name()))
            continue;
        // The general data hold the stress in t/m2; the field shows kg/cm2, worked in single
        // precision as the general data are kept.
        if (Control* q = form.Find("TxtQ", t.index))
            q->SetText(FormatoNum(d.GenTens / 10.0f));
    }
}

std::vector<Minimo> Minimos(std::string_view form)
{
    const TablaForm* f = FichaDe(form);
    return f ? Expande(f->minimos) : std::vector<Minimo>{};
}

std::string CaptionForm(std::string_view form)
{
    const TablaForm* f = FichaDe(form);
    return f ? std::string(f->caption) : std::string();
}

std::string TituloPorDefecto(std::string_view form)
{
    const TablaForm* f = FichaDe(form);
    return f ? std::string(f->titulo) : std::string();
}

}  // namespace vardena
