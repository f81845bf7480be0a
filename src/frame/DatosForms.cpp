#include "frame/DatosForms.h"

#include "works/Form.h"

namespace vardena {

void LlenaListas(Form&) {}
void DefaultsPropios(Form&) {}
void DefaultsGenerales(Form&) {}
void ControlesUnidades(Form&) {}
std::vector<Minimo> Minimos(std::string_view) { return {}; }
std::string CaptionForm(std::string_view) { return {}; }
std::string TituloPorDefecto(std::string_view) { return {}; }

}  // namespace vardena
