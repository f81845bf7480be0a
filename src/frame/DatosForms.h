#pragma once
// What each element form holds beyond its stored fields: the rows of its lists, its own
// defaults, the defaults it takes from the general data, the minimums its check compares, its
// load-field factors and unit labels, its caption and default title. Kept as tables, one entry
// per form, so that every form runs through the same code.

#include <string>
#include <string_view>
#include <vector>

namespace vardena {

class Form;

// Fills the rows of every list (combo box) of the form, by its name.
void LlenaListas(Form& form);
// The form's own defaults, applied after every combo box has been set to row 0.
void DefaultsPropios(Form& form);
// The defaults the form takes from the general data (Declaraciones), in internal units.
void DefaultsGenerales(Form& form);
// Adds the form's non-stored unit controls: the hidden factor labels LbQSI(i) beside each
// TxtQ(i) and the paired unit labels lbST(i)/lbSI(i).
void ControlesUnidades(Form& form);
// The unit labels that ControlesUnidades adds beside the load fields.
bool EsEtiquetaDeUnidad(std::string_view nombre);

struct Minimo {
    std::string control;
    int index = -1;
    double value = 0;
};
// The required fields that CmdCalcular_Click compares with their minimums.
std::vector<Minimo> Minimos(std::string_view form);

// The window's title and the design text of txtTitulo.
std::string CaptionForm(std::string_view form);
std::string TituloPorDefecto(std::string_view form);

}  // namespace vardena
