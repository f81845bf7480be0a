#pragma once
// Every form of the program by name: the element forms, the actions form and the general data.

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

class Form;
struct GrupoDef;
struct Declaraciones;

struct FormInfo {
    std::string name;     // "frmZapCorr"
    std::string code;     // code of its records, "" for forms that keep none
    std::string caption;  // the window's title
    int storedControls = 0;
};

// Creates the form by name without loading it (no Form_Load). nullptr for an unknown name.
std::unique_ptr<Form> CreaForm(Declaraciones& d, std::string_view name);
// Creates the form by name (case as written, e.g. "frmZapCorr", "DatosGen") and runs its
// Form_Load, hidden. nullptr for an unknown name.
std::unique_ptr<Form> CargaForm(Declaraciones& d, std::string_view name);
// The groups of the window of a form without an element definition (a dialog); none when it
// declares none.
std::span<const GrupoDef> GruposDeDialogo(std::string_view name);
// All forms that CargaForm knows.
std::vector<FormInfo> ListaFormularios(Declaraciones& d);

}  // namespace vardena
