// The unit controls of the element forms: beside each load field TxtQ(i) a hidden label
// LbQSI(i) whose caption turns the stored value into S.I., and the pair of visible unit
// labels lbST(i) / lbSI(i). Each form gives the quantity of every member of its TxtQ array.

#include <string>
#include <string_view>

#include "frame/DatosForms.h"
#include "base/FileIo.h"
#include "base/Form.h"

namespace vardena {
namespace {

struct Unidad {
    char clave;
    std::string_view factor;   // the caption of LbQSI
    std::string_view tecnico;  // lbST
    std::string_view si;       // lbSI
};

// Quantities by the letter a form's table uses for them. Values held in tonnes (forces, loads
// per length or area, moments) go to kN with 10; values held in kilograms (the enclosure
// loads per metre, the area loads of the slabs, the moments per rib) go with 0.01; stresses
// in kg/cm2 go to N/mm2 with 0.1, as the masonry strengths and the ground stress of the
// general data do.
constexpr Unidad kUnidades[] = {
    {'F', "10", "t", "kN"},           {'L', "10", "t/m", "kN/m"},      {'M', "10", "m·t", "m·kN"},
    {'S', "10", "t/m2", "kN/m2"},     {'l', ".01", "Kg/m", "kN/m"},    {'s', ".01", "kg/m2", "kN/m2"},
    {'m', ".01", "m·Kg", "m·kN"},     {'T', "0.1", "Kg/cm2", "N/mm2"},
};

struct CargasDeForm {
    std::string_view form;
    // Letter i is the quantity of TxtQ(i); '-' where the form has no such member.
    std::string_view magnitudes;
};

// Beams: TxtQ(1) to (3) are the loads of the three stretches, the others point loads. Columns:
// two moments, the axial force and the enclosure load per metre. Footings and walls: axial
// force and moment (per metre for the strip footing and the walls), the ground stress, and
// the surcharge or cohesion of the fill in t/m2. Slabs: area loads in kg/m2 ("500"), line
// loads in t/m at the ends ("0.2"), moments per rib in m·kg ("1950"); the "70" of the one-way
// slab is taken as an area load in kg/m2 like its neighbours of that magnitude.
constexpr CargasDeForm kCargas[] = {
    {"frmVigHorm", "FLLLFFF"},
    {"frmVigRegHorm", "FLLLFFFl"},
    {"frmPilHorm", "MMFl"},
    {"frmForjUnid", "LssmmLLsss"},
    {"frmForjSitu", "Lss--LLss"},
    {"frmForjRet", "l"},
    {"frmForMaci", "l"},
    {"frmAbaco", "l"},
    {"frmMensCorta", "FFML"},
    {"frmVigPared", "FLLLF"},
    {"frmVigMet", "FLLLFFF"},
    {"frmPilMet", "MMFl"},
    {"frmForjAcer", "LssLL"},
    {"frmVigMade", "FLLLFFF"},
    {"frmPilMade", "MMFl"},
    {"frmForMade", "LssLL"},
    {"frmMuros", "T"},
    {"frmMDint", "TLLL"},
    {"frmMCerr", "TTLS"},
    {"frmZap", "FMMFMMFMMFMMT"},
    {"frmZapComb", "FMMFT"},
    {"frmZapCorr", "LMT"},
    // The pile loads, then the tip, shaft and total capacities, forces all.
    {"frmPilotes", "FMMFFF"},
    {"frmMuroH", "LMTS"},
    // TxtQ(5) is the strength of a masonry wall.
    {"frmMuroCont", "LMTSST"},
    // TxtQ(4) to (7) are the tensions of the anchors.
    {"frmMuroAnclado", "LMTSFFFFS"},
    {"frmTalud", "SS"},
};

const Unidad* UnidadDe(char clave)
{
    for (const Unidad& u : kUnidades)
        if (u.clave == clave)
            return &u;
    return nullptr;
}

void AddLabel(Form& form, std::string_view name, int index, std::string_view caption, bool visible)
{
    if (form.Find(name, index))
        return;
    Control& lb = form.Add(Kind::Label, std::string(name), index);
    lb.SetCaption(caption);
    lb.SetVisible(visible);
}

}  // namespace

void ControlesUnidades(Form& form)
{
    for (const CargasDeForm& f : kCargas) {
        if (!SameNameNoCase(f.form, form.Name()))
            continue;
        for (Control* q : form.Members("TxtQ")) {
            const int i = q->Index();
            if (q->kind() != Kind::TextBox || i < 0 || i >= static_cast<int>(f.magnitudes.size()))
                continue;
            const Unidad* u = UnidadDe(f.magnitudes[static_cast<size_t>(i)]);
            if (!u)
                continue;
            AddLabel(form, "LbQSI", i, u->factor, false);
            // Shown as the technical system until CambiaUnidades sets the pair by the work.
            AddLabel(form, "lbST", i, u->tecnico, true);
            AddLabel(form, "lbSI", i, u->si, false);
        }
        return;
    }
}

}  // namespace vardena
