#include "works/Catalogo.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Subrut.h"

namespace vardena {

namespace {

constexpr CatalogRow kFilas[] = {
        {0, "CE", "MENU", 145, "", ""},
        {1, "CE", "DATOSGEN", 145, "DAGE", "Datos"},
        {2, "CK", "FRMACCIO", 145, "ACCI", "Datos"},
        {3, "HJ", "FRMVIGHORM", 181, "HVIG", "Hormigón"},
        {4, "HK", "FRMVIGREGHORM", 182, "HVIR", "Hormigón"},
        {5, "HP", "FRMPILHORM", 183, "HPIL", "Hormigón"},
        {6, "HU", "FRMFORJUNID", 185, "FORU", "Hormigón"},
        {7, "HS", "FRMFORJSITU", 953, "FORS", "Hormigón"},
        {8, "HR", "FRMFORJRET", 184, "FORR", "Hormigón"},
        {9, "HQ", "FRMFORMACI", 954, "FORP", "Hormigón"},
        {10, "HV", "FRMABACO", 186, "ABAC", "Hormigón"},
        {11, "HW", "FRMMENSCORTA", 187, "HMEN", "Hormigón"},
        {12, "HY", "FRMVIGPARED", 188, "HVPR", "Hormigón"},
        {13, "HZ", "FRMESCHORM", 955, "ESCH", "Hormigón"},
        {14, "LJ", "FRMVIGMET", 189, "AVIG", "Acero"},
        {15, "LP", "FRMPILMET", 190, "APIL", "Acero"},
        {16, "LS", "FRMBASMET", 956, "ABAS", "Acero"},
        {17, "LQ", "FRMFORJACER", 191, "FORA", "Acero"},
        {18, "LZ", "FRMESCMET", 957, "ESCA", "Acero"},
        {19, "MB", "FRMVIGMADE", 192, "MVIG", "Madera"},
        {20, "MC", "FRMPILMADE", 193, "MPIL", "Madera"},
        {21, "MD", "FRMFORMADE", 194, "FORM", "Madera"},
        {22, "ME", "FRMESCMADE", 958, "ESCM", "Madera"},
        {23, "MF", "FRMMUROS", 195, "MURF", "Fábrica"},
        {24, "MI", "FRMMDINT", 959, "MDIN", "Fábrica"},
        {25, "ZA", "FRMZAP", 196, "ZAIS", "Cimentación"},
        {26, "ZB", "FRMZAPCOMB", 197, "ZACB", "Cimentación"},
        {27, "ZC", "FRMZAPCORR", 198, "ZACR", "Cimentación"},
        {28, "ZI", "FRMPILOTES", 199, "ZPIL", "Cimentación"},
        {29, "ZM", "FRMMUROH", 200, "MUSO", "Cimentación"},
        {30, "ZO", "FRMMUROCONT", 201, "MUCO", "Cimentación"},
        {31, "ZR", "FRMMUROANCLADO", 960, "MUAN", "Cimentación"},
        {32, "ZT", "FRMTALUD", 961, "TALU", "Cimentación"},
        {33, "DP", "FRMDATOSPROY", 898, "DAPR", "Datos"},
        {34, "CS", "FRMSUELO", 1188, "TERR", "Cimentación"},
        {35, "MH", "FRMMCERR", 898, "MURC", "Fábrica"},
};

// The forms whose result is a free text have no row: the contents list does not show their
// records and the conversion leaves them alone. They still keep records, under codes of their
// own that no row uses, and open from the family menus under menu codes of their own, with a
// label of the message table.
constexpr CatalogRow kSinFila[] = {
        {-1, "HB", "FRMENBLANCO", 1526, "HBLA", "Hormigón"},
        {-1, "LT", "FRMUNIATO", 1527, "AUAT", "Acero"},
        {-1, "LD", "FRMUNISOL", 1528, "AUSO", "Acero"},
        {-1, "MA", "FRMMARCO", 1529, "MARC", "Fábrica"},
        {-1, "MR", "FRMMARMA", 1530, "MARM", "Fábrica"},
        {-1, "ZL", "FRMLOSCIME", 1531, "ZLOS", "Cimentación"},
        {-1, "ZS", "FRMSOLARMA", 1532, "ZSOL", "Cimentación"},
        {-1, "ZF", "FRMVIGFLOT", 1533, "ZVFL", "Cimentación"},
};

// What the rest of the program takes for granted of the catalogue, checked when it compiles:
// every row stands at its number; from row 1 on, a code, a form and a menu code each name one
// row, so that a code maps to one form and back; form names are upper case, as the contents
// list and CodigoDeForm compare them.
consteval bool CatalogoBienFormado()
{
    auto mayusculas = [](std::string_view s) {
        for (char c : s)
            if (c >= 'a' && c <= 'z')
                return false;
        return !s.empty();
    };
    constexpr size_t n = std::size(kFilas);
    for (size_t i = 0; i < n; ++i) {
        if (kFilas[i].row != static_cast<int>(i) || !mayusculas(kFilas[i].form) || std::string_view(kFilas[i].code).size() != 2)
            return false;
        for (size_t j = 1; j < i; ++j) {
            if (std::string_view(kFilas[i].code) == kFilas[j].code || std::string_view(kFilas[i].form) == kFilas[j].form)
                return false;
            if (*kFilas[i].menu && std::string_view(kFilas[i].menu) == kFilas[j].menu)
                return false;
        }
    }
    return true;
}
static_assert(std::size(kFilas) == kCatalogRows, "the catalogue has one row for every element kind");
// The codes and menu codes of the forms without a row are their own: no row and no other such
// form uses them, so that a record's code still names one form.
consteval bool SinFilaBienFormadas()
{
    for (size_t i = 0; i < std::size(kSinFila); ++i) {
        const CatalogRow& a = kSinFila[i];
        if (std::string_view(a.code).size() != 2 || std::string_view(a.menu).size() != 4)
            return false;
        for (const CatalogRow& f : kFilas)
            if (std::string_view(a.code) == f.code || std::string_view(a.menu) == f.menu ||
                std::string_view(a.form) == f.form)
                return false;
        for (size_t j = 0; j < i; ++j)
            if (std::string_view(a.code) == kSinFila[j].code || std::string_view(a.menu) == kSinFila[j].menu ||
                std::string_view(a.form) == kSinFila[j].form)
                return false;
    }
    return true;
}
static_assert(SinFilaBienFormadas(), "a form without a row has a code and a menu code of its own");
static_assert(CatalogoBienFormado(), "every catalogue row stands at its number, and its code, form and menu code are its own");

}  // namespace

std::span<const CatalogRow> Catalogo()
{
    return kFilas;
}

void LlenaCatalogo(Declaraciones& d)
{
    for (const auto& r : Catalogo()) {
        d.CatalogoRotulo[static_cast<size_t>(r.row)] = d.Msg(r.label);
        d.CatalogoCodigo[static_cast<size_t>(r.row)] = r.code;
        d.CatalogoForm[static_cast<size_t>(r.row)] = r.form;
    }
}

std::span<const CatalogRow> FormasSinFila()
{
    return kSinFila;
}

std::string CodigoDeForm(Declaraciones& d, std::string_view formName)
{
    std::string upper(formName);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return std::toupper(c); });
    for (size_t i = 0; i < d.CatalogoForm.size(); ++i) {
        // The catalogue may not be filled yet in a program that never loaded a pack.
        const std::string form = d.CatalogoForm[i].empty() ? Catalogo()[i].form : d.CatalogoForm[i];
        if (form == upper)
            return d.CatalogoCodigo[i].empty() ? Catalogo()[i].code : d.CatalogoCodigo[i];
    }
    for (const CatalogRow& r : kSinFila)
        if (upper == r.form)
            return r.code;
    d.ui.MsgBox(d.Msg(180), mb::Critical, d.Msg(165));
    Halt("form " + std::string(formName) + " has no row in the element catalogue");
}

int FilaDeCatalogo(std::string_view formName)
{
    // Row 0 is the main window, which shares the general data's code.
    for (const auto& r : Catalogo())
        if (r.row > 0 && SameNameNoCase(r.form, formName))
            return r.row;
    return -1;
}

std::string_view CodigoEnCatalogo(std::string_view formName)
{
    const int fila = FilaDeCatalogo(formName);
    return fila < 0 ? std::string_view() : std::string_view(Catalogo()[static_cast<size_t>(fila)].code);
}

namespace {

// The row of a form in the catalogue (from row 1 on) or among the forms without one.
const CatalogRow* RowDeForm(std::string_view formName)
{
    if (const int fila = FilaDeCatalogo(formName); fila >= 0)
        return &Catalogo()[static_cast<size_t>(fila)];
    for (const CatalogRow& r : kSinFila)
        if (SameNameNoCase(r.form, formName))
            return &r;
    return nullptr;
}

const CatalogRow* RowDeMenu(std::string_view menuCode)
{
    if (menuCode.empty())
        return nullptr;
    for (const CatalogRow& r : kFilas)
        if (menuCode == r.menu)
            return &r;
    for (const CatalogRow& r : kSinFila)
        if (menuCode == r.menu)
            return &r;
    return nullptr;
}

}  // namespace

std::string_view CodigoDeRegistro(std::string_view formName)
{
    const CatalogRow* r = RowDeForm(formName);
    return r ? std::string_view(r->code) : std::string_view();
}

std::string_view MenuDeForm(std::string_view formName)
{
    const CatalogRow* r = RowDeForm(formName);
    return r ? std::string_view(r->menu) : std::string_view();
}

std::string_view FormaDeMenu(std::string_view menuCode)
{
    const CatalogRow* r = RowDeMenu(menuCode);
    return r ? std::string_view(r->form) : std::string_view();
}

std::string RotuloDeMenu(const Declaraciones& d, std::string_view menuCode)
{
    if (const int fila = FilaDeMenu(menuCode); fila >= 0)
        return d.CatalogoRotulo[static_cast<size_t>(fila)];
    const CatalogRow* r = RowDeMenu(menuCode);
    return r ? d.Msg(r->label) : std::string();
}

int FilaDeMenu(std::string_view menuCode)
{
    for (const auto& r : Catalogo())
        if (menuCode == r.menu)
            return r.row;
    return -1;
}


std::vector<std::string> ListaElementos(const Declaraciones& d, const std::string& folder)
{
    std::vector<std::string> out;
    const auto& rows = Catalogo();
    for (size_t row = 1; row < rows.size(); ++row) {
        const std::string code = rows[row].code;
        // Row 2 and the CE rows: code CE is reached by row 1 only.
        if (code == "CE" && row != 1)
            continue;
        auto files = FilesEndingWith(folder, ".~" + code);
        if (files.empty())
            continue;
        out.push_back(d.Msg(rows[row].label));
        for (const auto& f : files) {
            std::string shown = f.substr(0, f.size() - 4);
            if (row == 1 && SameNameNoCase(shown, "DESCR"))
                shown = d.Msg(178);
            else if (row == 1 && SameNameNoCase(shown, "DATOS"))
                shown = d.Msg(179);
            out.push_back(" · " + shown);
        }
    }
    return out;
}

void ListaElementos(const Declaraciones& d, const std::string& folder, Control& list)
{
    list.Clear();
    for (const auto& line : ListaElementos(d, folder))
        list.AddItem(line);
}

std::string SettingDefault(std::string_view section, std::string_view key)
{
    struct Def {
        const char* section;
        const char* key;
        const char* value;
    };
    static const Def defs[] = {
        {"Obra", "Directorio", ""},
        {"Obra", "Nombre", ""},
        {"Preferencias", "Unidades", "0"},
        {"Preferencias", "VerCarpetas", "No"},
        {"Preferencias", "SiempreVisible", "No"},
        {"Preferencias", "BuscaVersion", "No"},
        {"Preferencias", "Aviso", "Si"},
        {"Preferencias", "CapturaPantallas", "No"},
        {"Preferencias", "CapturaPantallasFormato", "BMP"},
        {"Preferencias", "IconoCarpeta", "No"},
        {"Preferencias", "AsociarIcono", "No"},
        {"Preferencias", "Lenguaje", "Español"},
    };
    for (const auto& d : defs)
        if (section == d.section && key == d.key)
            return d.value;
    return {};
}

std::string Setting(Declaraciones& d, std::string_view section, std::string_view key)
{
    return d.settings().GetSetting(kSettingsApp, section, key, SettingDefault(section, key));
}

void SaveSetting(Declaraciones& d, std::string_view section, std::string_view key, std::string_view value)
{
    d.settings().SaveSetting(kSettingsApp, section, key, value);
}

void NombreDat(Declaraciones& d, std::string_view name, std::string_view mode)
{
    if (!SameNameNoCase(name, "NOMBRE.DAT"))
        Halt("NombreDat called with " + std::string(name));
    std::error_code ec;
    if (mode == "L") {
        d.UnidadObra.clear();
        d.DirObras.clear();
        d.NombreObra.clear();
        d.CarpetaObra.clear();
        d.UnidadesPref = 0;
        std::string dir = Setting(d, "Obra", "Directorio");
        if (dir.size() < 2 || !std::filesystem::is_directory(dir, ec))
            dir.clear();
        if (dir.empty()) {
            std::string own = ConBarra(d.DirPrograma) + d.Msg(1292) + " Vardena 3";
            dir = std::filesystem::is_directory(own, ec) ? own : d.DirPrograma;
            SaveSetting(d, "Obra", "Directorio", dir);
        }
        d.DirObras = dir;
        d.UnidadObra = dir.substr(0, 2);
        std::string nombre = Setting(d, "Obra", "Nombre");
        if (!nombre.empty() && !std::filesystem::is_directory(ConBarra(d.DirObras) + nombre, ec))
            nombre.clear();
        d.NombreObra = nombre;
        d.CarpetaObra = ConBarra(d.DirObras) + d.NombreObra;
        std::string u = Setting(d, "Preferencias", "Unidades");
        d.UnidadesPref = static_cast<int16_t>(ValComa(u));
    } else if (mode == "G") {
        SaveSetting(d, "Obra", "Directorio", d.DirObras);
        SaveSetting(d, "Obra", "Nombre", d.NombreObra);
        SaveSetting(d, "Preferencias", "Unidades", std::to_string(d.UnidadesPref));
    } else {
        Halt("NombreDat called with mode " + std::string(mode));
    }
}

std::vector<std::string> ListaObras(const std::string& folder)
{
    std::vector<std::string> out;
    for (const auto& name : SubFolders(folder))
        if (FindNoCase(ConBarra(folder) + name, "DESCR.~CE"))
            out.push_back(name);
    return out;
}

}  // namespace vardena
