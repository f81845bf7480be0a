// Each form's caption, default title, own defaults, defaults from the general data and the
// minimums of its check, one row per form. Defaults and minimums are written as short lists
// of entries "Name(indices) value" separated by ";": the indices are numbers and ranges
// ("0-3"), and a name without indices is a single control.

#include <string>
#include <string_view>
#include <vector>

#include "frame/DatosForms.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// The cover of a new element: 30 mm, the cover that exposure class I (row 0 of the exposure
// list, the default) asks for. Elements in the ground start at 50 mm, the cover of the most
// aggressive classes, since they stand against the soil.
constexpr std::string_view kRecubEstructura = "CmbRecub 3";
constexpr std::string_view kRecubTerreno = "CmbRecub 7";

// Minimums shared by families: the span and stretches of the beams, the depths, spans and bars
// of the one-way slabs, the footing of the walls (compared as the strip footing's).
constexpr std::string_view kMinimosVano = "TxCota(1-3) 0";
constexpr std::string_view kMinimosUnidireccional = "txtForj(0-4) 0; TxCota(0-3) 0; TxLv(1,2,4,5) 0";
constexpr std::string_view kMinimosMuro = "TxCotaMuro(0) 10; TxCotaAncho 40; TxCotaAlto 30";

// A row: form, caption, default title, own defaults, minimums. Own defaults set a list row,
// an option button (1) or a check box value; the minimums are those its check compares.
// Every column form starts at the inner position ("centro", index 2), so that the load
// estimate has a position from the first change; the slab panels, the drop panel and the
// isolated footing start at their centre position too.
enum Columna { kForm, kCaption, kTitulo, kPropios, kMinimos };
constexpr std::string_view kFichas[][5] = {
    {"frmVigHorm", "Vigas de Hormigón Armado", "Viga Hormigón. P 01-02", kRecubEstructura, kMinimosVano},
    {"frmVigRegHorm", "Vigas Regulares de Hormigón Armado", "Viga reg. Horm. P 01-02", kRecubEstructura, kMinimosVano},
    {"frmPilHorm", "Pilares de Hormigón Armado", "Pilar Hormigón 01", "CmbRecub 3; OpPosPil(2) 1",
     "txtTramo(0,3,4) 0; LePil(0-11) 0"},
    {"frmForjUnid", "Forjado Unidireccional", "Forjado Unidir. 01", kRecubEstructura, kMinimosUnidireccional},
    // Reasoned title, after the one-way slab's.
    {"frmForjSitu", "Forjado in situ", "Forjado in situ 01", kRecubEstructura, kMinimosUnidireccional},
    {"frmForjRet", "Forjados Reticular", "Forjado Reticular 01", "CmbRecub 3; OpPosPil(0) 1",
     "txtForj(0-3) 0; txtForj(5-8,10,11) 0.5; txtForj(9,12,13) 0.1"},
    // The solid slab compares its spans as the waffle slab does, and its depth in place of the
    // waffle's depths.
    {"frmForMaci", "Forjados Macizos", "Forjado Macizo 01", "CmbRecub 3; OpPosPil(0) 1",
     "TxtCanto 0; txtForj(5-8,10,11) 0.5; txtForj(9,12,13) 0.1"},
    {"frmAbaco", "Abacos de Hormigón Armado", "Abaco 01", "CmbRecub 3; OpPosPil(0) 1",
     "LePil(0,9,7) 0.5; PilX 0.2; PilY 0.2; AbacoX 0.4; AbacoY 0.4"},
    // Reasoned minimums: the corbel's sizes must be positive.
    {"frmMensCorta", "Ménsulas Cortas", "Ménsula 01", kRecubEstructura, "TxCota(0-6) 0"},
    // The deep beam also compares the column depths with 200, an upper limit, not listed here.
    {"frmVigPared", "Vigas de Hormigón de Gran Canto", "Viga Pared. Pilar 01-02", kRecubEstructura, kMinimosVano},
    {"frmEscHorm", "Escaleras y Rampas de Hormigón", "Escalera Hormigón 01", kRecubEstructura,
     "TxCotaH1(0-3) 0; TxCotaDesc(0-4) 0; TxCotaH2(0-4) 0; TxCotaRampa(0) 0"},
    // Reasoned caption and title for the steel beam, after the concrete beam's.
    {"frmVigMet", "Vigas Metálicas", "Viga Metálica. P 01-02", "", kMinimosVano},
    {"frmPilMet", "Pilares Metálicos", "Pilar Metálico 01", "OpPosPil(2) 1", "LePil(0-11) 0"},
    {"frmBasMet", "Bases metálicas", "Base pilar 01", "", ""},
    {"frmForjAcer", "Forjados y correas de cubierta de perfiles metálicos", "Forjado Metálico 01", "",
     "txtForj(1-4) 0; TxtQ(0-4) 0"},
    {"frmEscMet", "Escaleras Metálicas", "Escalera Metálica 01", "", ""},
    // Reasoned titles for the timber forms, after the concrete and steel ones.
    {"frmVigMade", "Viga de Madera", "Viga Madera. P 01-02", "", kMinimosVano},
    {"frmPilMade", "Pilar de Madera", "Pilar Madera 01", "OpPosPil(2) 1", "txtTramo(0,3,4) 0; LePil(0-11) 0"},
    {"frmForMade", "Forjado de Madera", "Forjado Madera 01", "", "txtForj(0-4) 0; TxtQ(0-4) 0"},
    {"frmEscMade", "Escalera de Madera", "Escalera Madera 01", "", ""},
    // Reasoned titles for the masonry forms.
    {"frmMuros", "Muros de Fábrica", "Muro Fábrica 01", "",
     "TxtCota(0-22) 0.5; TxtCota(1,3) 0.2; TxtCota(4-9,11-13,15,16) 10; TxtCota(0,2) 10"},
    {"frmMDint", "Dintel Fábrica", "Dintel 01", kRecubEstructura, "TxtCota(0-3) 0; txtEspesor 0"},
    {"frmMCerr", "Cerramientos sometidos a acciones horizontales", "Cerramiento 01", "", "TxtCota(1,2) 0"},
    // Plan sizes at least 40 cm, depths 30 cm and column sides 10 cm, as the strip footing.
    {"frmZap", "Zapatas Aisladas", "Zapata Aislada 01", "CmbRecub 7; OpPosPil(2) 1",
     "TxDimZap(0-7) 40; TxDimZap(8-11) 30; TxPil(0-7) 10"},
    {"frmZapComb", "Zapatas Combinadas", "Zapata Combinada 01-02", kRecubTerreno, "TxCota(0-9) 10"},
    {"frmZapCorr", "Zapatas Corridas", "Zapata Corrida 01", kRecubTerreno,
     "TxCotaMuro 10; TxCotaAncho 40; TxCotaAlto 30"},
    {"frmPilotes", "Pilotes", "Pilotes 01", kRecubTerreno, "TxtLongPil 0; TxtLPilote 0; TxtH 30"},
    {"frmMuroH", "Muro Hormigón", "Muro Sótano 01", kRecubTerreno, kMinimosMuro},
    {"frmMuroCont", "Muros de Contención", "Muro Contención 01", kRecubTerreno, kMinimosMuro},
    {"frmMuroAnclado", "Muros Anclados", "Muro Anclado 01", kRecubTerreno, kMinimosMuro},
    // The slope also compares its angle with 90, an upper limit.
    {"frmTalud", "Taludes", "Talud 01", "", "TxCotaTalud(0,1) 10"},
    // The annexes are saved as the one record "Anejos".
    {"frmDatosProy", "Anexos Proyecto", "Anejos", "", ""},
    {"frmSuelo", "Definición del terreno de cimentación", "Terreno 01", "", ""},
    // The actions are one record, "Acciones", which also names the window.
    {"frmAccio", "Acciones", "Acciones", "", ""},
    {"frmEnBlanco", "En Blanco", "En Blanco 01", kRecubEstructura, ""},
    {"frmLosCime", "Soleras Armadas", "Losa Cimentación 01", kRecubEstructura, ""},
    {"frmMArco", "Arcos Fábrica", "Arco Fábrica 01", kRecubEstructura, ""},
    {"frmMArma", "Fábrica Armada", "Fábrica Armada 01", kRecubEstructura, ""},
    {"frmSolArma", "Soleras Armadas", "Solera Armada 01", kRecubEstructura, ""},
    {"frmUniAto", "Uniones Atornilladas", "Unión Atornillada 01", kRecubEstructura, ""},
    {"frmUniSol", "Uniones Soldadas", "Unión Soldada 01", kRecubEstructura, ""},
    {"frmVigFlot", "Soleras Armadas", "Viga Flotante 01", kRecubEstructura, ""},
};

// The foundation forms and the walls take their admissible ground stress, the field beside
// their "Idem general" check box, from the general data.
struct TensionTerreno {
    std::string_view form;
    int index;
};
constexpr TensionTerreno kTensiones[] = {
    {"frmZap", 12}, {"frmZapComb", 4}, {"frmZapCorr", 2}, {"frmMuroH", 2}, {"frmMuroCont", 2}, {"frmMuroAnclado", 2},
};

const std::string_view* FichaDe(std::string_view form)
{
    for (const auto& f : kFichas)
        if (SameNameNoCase(f[kForm], form))
            return f;
    return nullptr;
}

std::string_view Recorta(std::string_view s)
{
    while (!s.empty() && s.front() == ' ')
        s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ')
        s.remove_suffix(1);
    return s;
}

// Adds the members named by "2", "0-3" or "1,3,5-7" to `out`.
void LeeIndices(std::string_view lista, const std::string& name, double value, std::vector<Minimo>& out)
{
    while (!lista.empty()) {
        const size_t coma = lista.find(',');
        const std::string_view item = Recorta(lista.substr(0, coma));
        lista = coma == std::string_view::npos ? std::string_view{} : lista.substr(coma + 1);
        const size_t guion = item.find('-');
        const int desde = static_cast<int>(ValComaCopy(item.substr(0, guion)));
        const int hasta =
            guion == std::string_view::npos ? desde : static_cast<int>(ValComaCopy(item.substr(guion + 1)));
        for (int i = desde; i <= hasta; ++i)
            out.push_back({name, i, value});
    }
}

std::vector<Minimo> LeeEntradas(std::string_view texto)
{
    std::vector<Minimo> out;
    while (!texto.empty()) {
        const size_t fin = texto.find(';');
        const std::string_view entrada = Recorta(texto.substr(0, fin));
        texto = fin == std::string_view::npos ? std::string_view{} : texto.substr(fin + 1);
        const size_t blanco = entrada.rfind(' ');
        if (entrada.empty() || blanco == std::string_view::npos)
            continue;
        const double value = ValComaCopy(entrada.substr(blanco + 1));
        const std::string_view cabeza = entrada.substr(0, blanco);
        const size_t abre = cabeza.find('(');
        const std::string name(Recorta(cabeza.substr(0, abre)));
        if (abre == std::string_view::npos)
            out.push_back({name, -1, value});
        else
            LeeIndices(cabeza.substr(abre + 1, cabeza.find(')') - abre - 1), name, value, out);
    }
    return out;
}

}  // namespace

void DefaultsPropios(Form& form)
{
    const std::string_view* f = FichaDe(form.Name());
    if (!f)
        return;
    for (const Minimo& e : LeeEntradas(f[kPropios])) {
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
    const std::string_view* f = FichaDe(form);
    return f ? LeeEntradas(f[kMinimos]) : std::vector<Minimo>{};
}

std::string CaptionForm(std::string_view form)
{
    const std::string_view* f = FichaDe(form);
    return f ? std::string(f[kCaption]) : std::string();
}

std::string TituloPorDefecto(std::string_view form)
{
    const std::string_view* f = FichaDe(form);
    return f ? std::string(f[kTitulo]) : std::string();
}

}  // namespace vardena
