// Each form's caption, default title, own defaults, defaults from the general data and the
// minimums of its check, one row per form, as typed tables.

#include <span>
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

// A control, or runs of members of a control array, with a value: an own default (a list row,
// an option button set by 1, a check box value) or a minimum that the check compares.
struct Tramo {
    int desde = 0;
    int hasta = -1;  // an unused run is empty
};
struct Valor {
    std::string_view control;
    Tramo tramos[4];  // runs of member indices; none for a plain control
    double valor;
};
constexpr std::span<const Valor> kNada{};

// The cover of a new element: 30 mm, the cover that exposure class I (row 0 of the exposure
// list, the default) asks for. Elements in the ground start at 50 mm, the cover of the most
// aggressive classes, since they stand against the soil.
constexpr Valor kRecubEstructura[] = {{"CmbRecub", {}, 3}};
constexpr Valor kRecubTerreno[] = {{"CmbRecub", {}, 7}};

// Minimums shared by families: the span and stretches of the beams, the depths, spans and bars
// of the one-way slabs, the footing of the walls (compared as the strip footing's).
constexpr Valor kMinimosVano[] = {{"TxCota", {{1, 3}}, 0}};
constexpr Valor kMinimosUnidireccional[] = {{"txtForj", {{0, 4}}, 0}, {"TxCota", {{0, 3}}, 0}, {"TxLv", {{1, 1}, {2, 2}, {4, 4}, {5, 5}}, 0}};
constexpr Valor kMinimosMuro[] = {{"TxCotaMuro", {{0, 0}}, 10}, {"TxCotaAncho", {}, 40}, {"TxCotaAlto", {}, 30}};

// Own defaults and minimums of single forms. Every column form starts at the inner position
// ("centro", index 2), so that the load estimate has a position from the first change; the
// slab panels, the drop panel and the isolated footing start at their centre position too.
constexpr Valor kRecubYPosicionInterior[] = {{"CmbRecub", {}, 3}, {"OpPosPil", {{2, 2}}, 1}};
constexpr Valor kMinimosPilar[] = {{"txtTramo", {{0, 0}, {3, 3}, {4, 4}}, 0}, {"LePil", {{0, 11}}, 0}};
constexpr Valor kRecubYPanelCentral[] = {{"CmbRecub", {}, 3}, {"OpPosPil", {{0, 0}}, 1}};
constexpr Valor kMinimosForjRet[] = {{"txtForj", {{0, 3}}, 0}, {"txtForj", {{5, 8}, {10, 10}, {11, 11}}, 0.5}, {"txtForj", {{9, 9}, {12, 12}, {13, 13}}, 0.1}};
constexpr Valor kMinimosForMaci[] = {{"TxtCanto", {}, 0}, {"txtForj", {{5, 8}, {10, 10}, {11, 11}}, 0.5}, {"txtForj", {{9, 9}, {12, 12}, {13, 13}}, 0.1}};
constexpr Valor kMinimosAbaco[] = {{"LePil", {{0, 0}, {9, 9}, {7, 7}}, 0.5}, {"PilX", {}, 0.2}, {"PilY", {}, 0.2}, {"AbacoX", {}, 0.4}, {"AbacoY", {}, 0.4}};
constexpr Valor kMinimosMensCorta[] = {{"TxCota", {{0, 6}}, 0}};
constexpr Valor kMinimosEscHorm[] = {{"TxCotaH1", {{0, 3}}, 0}, {"TxCotaDesc", {{0, 4}}, 0}, {"TxCotaH2", {{0, 4}}, 0}, {"TxCotaRampa", {{0, 0}}, 0}};
constexpr Valor kPosicionInterior[] = {{"OpPosPil", {{2, 2}}, 1}};
constexpr Valor kMinimosPilMet[] = {{"LePil", {{0, 11}}, 0}};
constexpr Valor kMinimosForjAcer[] = {{"txtForj", {{1, 4}}, 0}, {"TxtQ", {{0, 4}}, 0}};
constexpr Valor kMinimosForMade[] = {{"txtForj", {{0, 4}}, 0}, {"TxtQ", {{0, 4}}, 0}};
constexpr Valor kMinimosMuros[] = {{"TxtCota", {{0, 22}}, 0.5}, {"TxtCota", {{1, 1}, {3, 3}}, 0.2}, {"TxtCota", {{4, 9}, {11, 13}, {15, 15}, {16, 16}}, 10}, {"TxtCota", {{0, 0}, {2, 2}}, 10}};
constexpr Valor kMinimosMDint[] = {{"TxtCota", {{0, 3}}, 0}, {"txtEspesor", {}, 0}};
constexpr Valor kMinimosMCerr[] = {{"TxtCota", {{1, 1}, {2, 2}}, 0}};
constexpr Valor kRecubTerrenoYPosicionInterior[] = {{"CmbRecub", {}, 7}, {"OpPosPil", {{2, 2}}, 1}};
constexpr Valor kMinimosZap[] = {{"TxDimZap", {{0, 7}}, 40}, {"TxDimZap", {{8, 11}}, 30}, {"TxPil", {{0, 7}}, 10}};
constexpr Valor kMinimosZapComb[] = {{"TxCota", {{0, 9}}, 10}};
constexpr Valor kMinimosZapCorr[] = {{"TxCotaMuro", {}, 10}, {"TxCotaAncho", {}, 40}, {"TxCotaAlto", {}, 30}};
constexpr Valor kMinimosPilotes[] = {{"TxtLongPil", {}, 0}, {"TxtLPilote", {}, 0}, {"TxtH", {}, 30}};
constexpr Valor kMinimosTalud[] = {{"TxCotaTalud", {{0, 0}, {1, 1}}, 10}};

// A row: form, caption, default title, own defaults, minimums.
struct Ficha {
    std::string_view form;
    std::string_view caption;
    std::string_view titulo;
    std::span<const Valor> propios;
    std::span<const Valor> minimos;
};
constexpr Ficha kFichas[] = {
    {"frmVigHorm", "Vigas de Hormigón Armado", "Viga Hormigón. P 01-02", kRecubEstructura, kMinimosVano},
    {"frmVigRegHorm", "Vigas Regulares de Hormigón Armado", "Viga reg. Horm. P 01-02", kRecubEstructura, kMinimosVano},
    {"frmPilHorm", "Pilares de Hormigón Armado", "Pilar Hormigón 01", kRecubYPosicionInterior, kMinimosPilar},
    {"frmForjUnid", "Forjado Unidireccional", "Forjado Unidir. 01", kRecubEstructura, kMinimosUnidireccional},
    // Reasoned title, after the one-way slab's.
    {"frmForjSitu", "Forjado in situ", "Forjado in situ 01", kRecubEstructura, kMinimosUnidireccional},
    {"frmForjRet", "Forjados Reticular", "Forjado Reticular 01", kRecubYPanelCentral, kMinimosForjRet},
    // The solid slab compares its spans as the waffle slab does, and its depth in place of the
    // waffle's depths.
    {"frmForMaci", "Forjados Macizos", "Forjado Macizo 01", kRecubYPanelCentral, kMinimosForMaci},
    {"frmAbaco", "Abacos de Hormigón Armado", "Abaco 01", kRecubYPanelCentral, kMinimosAbaco},
    // Reasoned minimums: the corbel's sizes must be positive.
    {"frmMensCorta", "Ménsulas Cortas", "Ménsula 01", kRecubEstructura, kMinimosMensCorta},
    // The deep beam also compares the column depths with 200, an upper limit, not listed here.
    {"frmVigPared", "Vigas de Hormigón de Gran Canto", "Viga Pared. Pilar 01-02", kRecubEstructura, kMinimosVano},
    {"frmEscHorm", "Escaleras y Rampas de Hormigón", "Escalera Hormigón 01", kRecubEstructura, kMinimosEscHorm},
    // Reasoned caption and title for the steel beam, after the concrete beam's.
    {"frmVigMet", "Vigas Metálicas", "Viga Metálica. P 01-02", kNada, kMinimosVano},
    {"frmPilMet", "Pilares Metálicos", "Pilar Metálico 01", kPosicionInterior, kMinimosPilMet},
    {"frmBasMet", "Bases metálicas", "Base pilar 01", kNada, kNada},
    {"frmForjAcer", "Forjados y correas de cubierta de perfiles metálicos", "Forjado Metálico 01", kNada, kMinimosForjAcer},
    {"frmEscMet", "Escaleras Metálicas", "Escalera Metálica 01", kNada, kNada},
    // Reasoned titles for the timber forms, after the concrete and steel ones.
    {"frmVigMade", "Viga de Madera", "Viga Madera. P 01-02", kNada, kMinimosVano},
    {"frmPilMade", "Pilar de Madera", "Pilar Madera 01", kPosicionInterior, kMinimosPilar},
    {"frmForMade", "Forjado de Madera", "Forjado Madera 01", kNada, kMinimosForMade},
    {"frmEscMade", "Escalera de Madera", "Escalera Madera 01", kNada, kNada},
    // Reasoned titles for the masonry forms.
    {"frmMuros", "Muros de Fábrica", "Muro Fábrica 01", kNada, kMinimosMuros},
    {"frmMDint", "Dintel Fábrica", "Dintel 01", kRecubEstructura, kMinimosMDint},
    {"frmMCerr", "Cerramientos sometidos a acciones horizontales", "Cerramiento 01", kNada, kMinimosMCerr},
    // Plan sizes at least 40 cm, depths 30 cm and column sides 10 cm, as the strip footing.
    {"frmZap", "Zapatas Aisladas", "Zapata Aislada 01", kRecubTerrenoYPosicionInterior, kMinimosZap},
    {"frmZapComb", "Zapatas Combinadas", "Zapata Combinada 01-02", kRecubTerreno, kMinimosZapComb},
    {"frmZapCorr", "Zapatas Corridas", "Zapata Corrida 01", kRecubTerreno, kMinimosZapCorr},
    {"frmPilotes", "Pilotes", "Pilotes 01", kRecubTerreno, kMinimosPilotes},
    {"frmMuroH", "Muro Hormigón", "Muro Sótano 01", kRecubTerreno, kMinimosMuro},
    {"frmMuroCont", "Muros de Contención", "Muro Contención 01", kRecubTerreno, kMinimosMuro},
    {"frmMuroAnclado", "Muros Anclados", "Muro Anclado 01", kRecubTerreno, kMinimosMuro},
    // The slope also compares its angle with 90, an upper limit.
    {"frmTalud", "Taludes", "Talud 01", kNada, kMinimosTalud},
    // The annexes are saved as the one record "Anejos".
    {"frmDatosProy", "Anexos Proyecto", "Anejos", kNada, kNada},
    {"frmSuelo", "Definición del terreno de cimentación", "Terreno 01", kNada, kNada},
    // The actions are one record, "Acciones", which also names the window.
    {"frmAccio", "Acciones", "Acciones", kNada, kNada},
    {"frmEnBlanco", "En Blanco", "En Blanco 01", kRecubEstructura, kNada},
    {"frmLosCime", "Soleras Armadas", "Losa Cimentación 01", kRecubEstructura, kNada},
    {"frmMArco", "Arcos Fábrica", "Arco Fábrica 01", kRecubEstructura, kNada},
    {"frmMArma", "Fábrica Armada", "Fábrica Armada 01", kRecubEstructura, kNada},
    {"frmSolArma", "Soleras Armadas", "Solera Armada 01", kRecubEstructura, kNada},
    {"frmUniAto", "Uniones Atornilladas", "Unión Atornillada 01", kRecubEstructura, kNada},
    {"frmUniSol", "Uniones Soldadas", "Unión Soldada 01", kRecubEstructura, kNada},
    {"frmVigFlot", "Soleras Armadas", "Viga Flotante 01", kRecubEstructura, kNada},
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

const Ficha* FichaDe(std::string_view form)
{
    for (const auto& f : kFichas)
        if (SameNameNoCase(f.form, form))
            return &f;
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
    const Ficha* f = FichaDe(form.Name());
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
    const Ficha* f = FichaDe(form);
    return f ? Expande(f->minimos) : std::vector<Minimo>{};
}

std::string CaptionForm(std::string_view form)
{
    const Ficha* f = FichaDe(form);
    return f ? std::string(f->caption) : std::string();
}

std::string TituloPorDefecto(std::string_view form)
{
    const Ficha* f = FichaDe(form);
    return f ? std::string(f->titulo) : std::string();
}

}  // namespace vardena
