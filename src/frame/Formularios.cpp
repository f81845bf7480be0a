#include "frame/Formularios.h"

#include "works/Form.h"

namespace vardena {

std::unique_ptr<Form> CargaForm(Declaraciones&, std::string_view) { return nullptr; }
std::vector<FormInfo> ListaFormularios(Declaraciones&) { return {}; }

}  // namespace vardena
