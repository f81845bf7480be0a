#pragma once
// The element catalogue, the work folder's contents list, the settings of the program and
// the current work's location.

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

struct Declaraciones;
class Control;

struct CatalogRow {
    int row;
    const char* code;
    const char* form;   // upper case, as CodigoDeForm compares it
    int label;          // message number
    const char* menu;   // menu code, "" when none
    const char* family;
};
// The 36 rows, in the order of the contents list.
std::span<const CatalogRow> Catalogo();

// The forms with a free-text result, which have no row: each with its own record code, menu
// code, label message and family (row -1).
std::span<const CatalogRow> FormasSinFila();

void LlenaCatalogo(Declaraciones& d);
// The code of a form's records by its name: that of its catalogue row, or the own code of a form
// without a row; any other form shows message 180 and halts.
std::string CodigoDeForm(Declaraciones& d, std::string_view formName);
// The code of a form's catalogue row, compared without regard to case; "" for a form without one.
std::string_view CodigoEnCatalogo(std::string_view formName);
// Catalogue row of a form, compared without regard to case, or -1; row 0 (the main window) is
// never given.
int FilaDeCatalogo(std::string_view formName);
// Catalogue row of a menu code, or -1.
int FilaDeMenu(std::string_view menuCode);
// The code of a form's records, from its catalogue row or its own as a form without a row; ""
// for a form that keeps no record.
std::string_view CodigoDeRegistro(std::string_view formName);
// The menu code that opens a form, with or without a row; "" for none.
std::string_view MenuDeForm(std::string_view formName);
// The form (upper case) that a menu code opens, with or without a row; "" for none.
std::string_view FormaDeMenu(std::string_view menuCode);
// The label of a menu code's command: its row's label in the language loaded, or the label
// message of a form without a row; "" for an unknown code.
std::string RotuloDeMenu(const Declaraciones& d, std::string_view menuCode);

// The contents list of a work folder: for every catalogue row from 1 on that has files, its
// label as a header, then " · " and each file name less its extension.
std::vector<std::string> ListaElementos(const Declaraciones& d, const std::string& folder);
void ListaElementos(const Declaraciones& d, const std::string& folder, Control& list);

// The current work's location, kept in the settings store ("NOMBRE.DAT" is only a tag).
void NombreDat(Declaraciones& d, std::string_view name, std::string_view mode);

// A setting of the program, with the default of its key.
std::string Setting(Declaraciones& d, std::string_view section, std::string_view key);
void SaveSetting(Declaraciones& d, std::string_view section, std::string_view key, std::string_view value);
std::string SettingDefault(std::string_view section, std::string_view key);

// The works in a folder: its sub-folders that hold a description file (any case), by name.
std::vector<std::string> ListaObras(const std::string& folder);

}  // namespace vardena
