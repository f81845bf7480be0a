#pragma once
// The warning list of a calculation (Declaraciones::Avisos): the calculations append their
// warnings and show them together in one box at the end; the report lists them again.

#include <string>

namespace vardena {

struct Declaraciones;

// Puts `texto` at IAviso and moves IAviso on. An index past the end of the list is run-time
// error 9, as the list has no more room.
void AnadeAviso(Declaraciones& d, std::string texto);
// Closes the list: NAvisos becomes IAviso - 1 and, when there is any warning, one box with the
// exclamation icon and message 29 as title shows a blank, then each warning on a line of its own.
// IAviso is left at NAvisos + 1, where the report finds it.
void MuestraAvisos(Declaraciones& d);

}  // namespace vardena
