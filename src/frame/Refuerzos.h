#pragma once
// The composite entry controls of the element forms: reinforcement (UCNumDiam, UCNumDiamSep,
// UCMallazo, UCZapatas) and the steel section selector (UCPerfil, see frame/UCPerfil.h).
//
// A reinforcement control shows its values as labels; picking a row of its lists or typing in
// its text boxes is a user's choice and raises the control's Change event. The property
// setters that forms and record readers call never raise it.

#include <string>
#include <string_view>
#include <vector>

#include "base/Form.h"

namespace vardena {

// Gives a composite control its behaviour and list rows; other kinds are left alone.
// Every form calls it for each composite control it creates.
void InstalaControlCompuesto(Control& c);

// The two pick lists of a reinforcement control.
enum class ListaRefuerzo {
    Num,   // LstNum, number of bars
    Diam,  // LstDiam, bar diameter in mm
};

// The rows of a list of a reinforcement kind, each with its trailing blank ("12 "); empty
// when the kind has no such list (UCMallazo and UCZapatas have no LstNum).
const std::vector<std::string>& FilasRefuerzo(Kind kind, ListaRefuerzo lista);

// LstNum_Click / LstDiam_Click: puts row `fila` on the label, keeps the row index and raises
// Change. A row outside the list is a PropertyError (380).
void EligeFilaRefuerzo(Control& c, ListaRefuerzo lista, int fila);
// The row last picked in that list, -1 before any pick.
int FilaElegidaRefuerzo(const Control& c, ListaRefuerzo lista);

// TxtSep_Change (UCNumDiamSep, UCMallazo, UCZapatas) and TxtNum_Change (UCZapatas): the typed
// text goes to the label and Change is raised; UCZapatas first recomputes the other value.
// A text equal to the one shown changes nothing, as a text box raises no change then.
void EscribeSeparacion(Control& c, std::string_view texto);
void EscribeNumBarras(Control& c, std::string_view texto);

}  // namespace vardena
