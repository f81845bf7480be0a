#pragma once
// The stored fields of every element form, as data: each form's controls in the order in which
// the form defines them, which is the order of its record. A control array whose members are
// spread over the form appears once for every stretch; its members share the name and are
// told apart by index. Alongside, how each form goes through its life cycle (reads twice, sets
// the loading guard, what kind of check call it makes, whether it asks before replacing).

#include <array>
#include <cstddef>
#include <memory>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Form.h"
#include "base/ListaFija.h"
#include "frame/ControlesVisibles.h"
#include "frame/Listas.h"

namespace vardena {

// The stored kinds under the short names the field tables use.
inline constexpr Kind kTexto = Kind::TextBox;
inline constexpr Kind kLista = Kind::ComboBox;
inline constexpr Kind kOpcion = Kind::OptionButton;
inline constexpr Kind kCasilla = Kind::CheckBox;
inline constexpr Kind kNumDiam = Kind::UCNumDiam;
inline constexpr Kind kNumDiamSep = Kind::UCNumDiamSep;
inline constexpr Kind kZapatas = Kind::UCZapatas;
inline constexpr Kind kMallazo = Kind::UCMallazo;
inline constexpr Kind kPerfil = Kind::UCPerfil;

// One entry of a field list: a control, or a stretch of members of a control array.
struct CampoDef {
    std::string_view nombre;
    // Indices of the members in the order the form defines them; empty for a plain control.
    ListaFija<int, 64> indices;
    Kind tipo;
    // Design-time texts of text boxes: one for all members when only one stands, else one per
    // member in order; members past the last text are empty.
    ListaFija<std::string_view, 10> textos = {};
};

// The field lists of two parts, one after the other.
template <size_t N, size_t M>
consteval std::array<CampoDef, N + M> UneCampos(const CampoDef (&a)[N], const CampoDef (&b)[M])
{
    std::array<CampoDef, N + M> out{};
    for (size_t i = 0; i < N; ++i)
        out[i] = a[i];
    for (size_t i = 0; i < M; ++i)
        out[N + i] = b[i];
    return out;
}

// An array of text boxes with members 0 to n - 1.
consteval CampoDef TextosDe(std::string_view nombre, int n)
{
    CampoDef c{nombre, {}, Kind::TextBox};
    for (int i = 0; i < n; ++i)
        c.indices.push_back(i);
    return c;
}

// What every field list must be, checked when it compiles: a member is defined once; a name is
// a plain control or an array, never both, and keeps its kind in every stretch; design texts
// stand on text boxes only and are no more than the members; the title is stored once.
consteval bool CamposBienFormados(std::span<const CampoDef> campos)
{
    int titulos = 0;
    for (size_t i = 0; i < campos.size(); ++i) {
        const CampoDef& c = campos[i];
        if (c.nombre.empty())
            return false;
        if (!c.textos.empty() && (c.tipo != Kind::TextBox || c.textos.size() > (c.indices.empty() ? 1 : c.indices.size())))
            return false;
        for (size_t a = 0; a < c.indices.size(); ++a) {
            if (c.indices[a] < 0)
                return false;
            for (size_t b = 0; b < a; ++b)
                if (c.indices[a] == c.indices[b])
                    return false;
        }
        titulos += c.nombre == "txtTitulo" && c.indices.empty() && c.tipo == Kind::TextBox;
        for (size_t j = 0; j < i; ++j) {
            const CampoDef& o = campos[j];
            if (o.nombre != c.nombre)
                continue;
            if (o.tipo != c.tipo || o.indices.empty() != c.indices.empty() || c.indices.empty())
                return false;
            for (int x : c.indices)
                for (int y : o.indices)
                    if (x == y)
                        return false;
        }
    }
    return titulos == 1;
}

// How CmdCalcular_Click reaches the check step of the element.
enum class PasoComprobacion {
    Ninguno,        // no check call: the save follows
    SinArgumentos,  // one call with no arguments
    Bandera,        // one call with one flag argument, set to true
    OchoYSiete,     // two calls, of eight and of seven arguments
};

// The life cycle of a form.
struct CicloForm {
    bool leeDosVeces;   // List1_Click runs LeeForm twice
    bool guarda;        // List1_Click sets Cargando around the reading
    PasoComprobacion paso;
    bool pregunta;      // CmdCalcular_Click asks before replacing an existing results file
    // A form with one fixed record (frmAccio): its load reads this title and it has no List1
    // walk. Empty for the element forms.
    std::string_view tituloFijo = {};
};

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
inline constexpr std::span<const Valor> kNada{};

// The cover of a new element: 30 mm, the cover that exposure class I (row 0 of the exposure
// list, the default) asks for. Elements in the ground start at 50 mm (row 7), the cover of the
// most aggressive classes, since they stand against the soil.
// Minimums shared by families: the span and stretches of the beams; the stretches and clear
// heights of the columns.
inline constexpr Valor kRecubEstructura[] = {{"CmbRecub", {}, 3}};
inline constexpr Valor kMinimosVano[] = {{"TxCota", {{1, 3}}, 0}};
inline constexpr Valor kMinimosPilar[] = {{"txtTramo", {{0, 0}, {3, 3}, {4, 4}}, 0}, {"LePil", {{0, 11}}, 0}};

// What a load field TxtQ(i) holds, which gives its unit labels and its factor to S.I.: forces,
// loads per length and per area and moments held in tonnes; loads per length and per area and
// moments held in kilograms; stresses in kg/cm2. Beams: TxtQ(1) to (3) are the loads of the
// three stretches, the others point loads. Columns: two moments, the axial force and the
// enclosure load per metre. Footings and walls: axial force and moment (per metre for the strip
// footing and the walls), the ground stress, and the surcharge or cohesion of the fill in t/m2.
// Slabs: area loads in kg/m2 ("500"), line loads in t/m at the ends ("0.2"), moments per rib in
// m·kg ("1950"); the "70" of the one-way slab is an area load in kg/m2 like its neighbours.
enum class Magnitud { Ninguna, Fuerza, Lineal, Momento, Superficie, LinealKg, SuperficieKg, MomentoKg, Tension };

// How the conversion serves a form: not at all (its files stay as version 3 left them), every
// record of its List1 once per run, or one save for each file of its code met.
enum class Despacho { Ninguno, Registros, UnaVezPorArchivo };

// The command that opens a form from the main window's menu bar: the menu it stands in, its
// place there (from 1), the item's control and its caption ("" for the catalogue label of the
// form's row). Its menu code is that of the form's catalogue row.
struct MenuDef {
    std::string_view grupo;
    int orden = 0;
    std::string_view item;
    std::string_view caption;
};

// A group of a form's window, in reading order: the frame control whose caption titles it
// ("" for none) or else the message that does, and the controls it shows. A control array's
// name brings every member in index order; "Name(i)" brings one member. Any kind may stand in
// a declared group, a sketch or a result view as well as the fields. The controls a form's
// groups leave out fall to the groups its kinds and names give (frame/GruposVentana.h).
// A label followed by a field names that field in the window. A group shows while its frame
// and the frame that holds it (`dentro`, "" for none) are visible.
// `columna` places the group in that column of the window (from 0), so that a frame stands
// beside the frame it belongs with; -1 leaves it to the least filled column.
// A `tabla` group stands in rows, each a run of lone labels and the value they name: the first
// label says what the value is, the others (its symbol, its unit) stand beside it. The value is
// a field, or, in a group without fields, the third label of the row (a label that shows a
// calculated value).
// A group with `columnas` is a grid: the first heading is that of the rows' names (`filas`), the
// others those of the columns of values; `controles` gives the cells row by row, "" for a cell
// left empty.
struct GrupoDef {
    std::string_view marco;
    int mensaje = 0;
    std::span<const std::string_view> controles;
    std::string_view dentro = {};
    int columna = -1;
    bool tabla = false;
    std::span<const std::string_view> columnas = {};
    std::span<const std::string_view> filas = {};
};

// The groups every element window has besides its own: first its identity (title and level)
// and its materials, last the results of its check. A name ending in "*" stands for every
// control whose name begins with the rest.
inline constexpr std::string_view kCamposIdentidad[] = {"txtTitulo", "CmbPlanta"};
inline constexpr std::string_view kCamposMateriales[] = {"CmbHorm",        "CmbAcero", "cmbControl", "CmbRecub",
                                                         "cmbAceroPerfil", "CmbResis", "CmbServi",   "CmbAcP"};
inline constexpr std::string_view kCamposResultados[] = {"TxtRes*", "RichTextBox*"};
// The heading of the group of the element's identity (its title, its level).
inline constexpr int kMsgGrupoElemento = 1500;
// The heading of the group of the element's materials.
inline constexpr int kMsgGrupoMateriales = 1501;
inline constexpr GrupoDef kGruposAlPrincipio[] = {{"", kMsgGrupoElemento, kCamposIdentidad}, {"", kMsgGrupoMateriales, kCamposMateriales}};
inline constexpr GrupoDef kGruposAlFinal[] = {{"UCframe2", 1508, kCamposResultados}};

// The definition of a form: its name, its stored fields in the order of its
// record, its life cycle, its window's caption and the design text of its title, its own
// defaults, the minimums its check compares, the rows of its lists, what each of its load
// fields holds, how the conversion serves it, what its window shows besides, and the menu
// command that opens it.
struct TablaForm {
    std::string_view nombre;  // "frmZapCorr"; its code is that of its catalogue row
    std::span<const CampoDef> campos;
    CicloForm ciclo;
    std::string_view caption;
    std::string_view titulo;
    std::span<const Valor> propios;
    std::span<const Valor> minimos;
    Listas listas;
    ListaFija<Magnitud, 16> cargas;  // of TxtQ(0), TxtQ(1)...
    Despacho despacho = Despacho::Ninguno;
    bool enList4 = true;  // the conversion enters the form in List4 when it finishes
    // The shown controls (frames, labels, buttons, pictures) with their captions, and the
    // captions of its fields: those of its families first, then its own.
    VisiblesDef visibles;
    MenuDef menu = {};  // no command for a form the menu does not open
    std::span<const GrupoDef> grupos = {};  // its window's own groups, first
    // The class of a form with logic of its own, made from its definition; nullptr for a form
    // that is only data, which the plain element form runs.
    std::unique_ptr<Form> (*crea)(Declaraciones&, const TablaForm&) = nullptr;
};


// Whether no two definitions of a family share a name.
consteval bool NombresUnicos(std::span<const TablaForm> tablas)
{
    for (size_t i = 0; i < tablas.size(); ++i)
        for (size_t j = 0; j < i; ++j)
            if (tablas[i].nombre == tablas[j].nombre)
                return false;
    return true;
}

// The design text of member `miembro` (0-based position within the entry).
std::string_view TextoDeDiseno(const CampoDef& campo, size_t miembro);
// Number of stored controls of a table, each array member counted on its own.
int NumeroControles(const TablaForm& tabla);

// The tables by family. Each family lives in its own source file.
std::span<const TablaForm> TablasHormigon();
std::span<const TablaForm> TablasAceroMadera();
std::span<const TablaForm> TablasFabricaTerreno();
// frmAccio, frmDatosProy and the forms with a free-text result.
std::span<const TablaForm> TablasDatosYLibres();

// All tables: the catalogue's forms in catalogue order, then the forms without a row.
const std::vector<TablaForm>& TablasCampos();
// The table of a form by name (case as written); nullptr when there is none.
const TablaForm* TablaCampos(std::string_view form);

// The life cycle of a form; a form without a definition gets that of a plain element form
// (reads once, guarded, a check with no arguments, no question).
const CicloForm& CicloDe(std::string_view form);

}  // namespace vardena
