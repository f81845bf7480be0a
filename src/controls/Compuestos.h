#pragma once
// Adapters of the composite controls: the reinforcement entries (number of bars, diameter,
// spacing) and the steel section selector. They show the control's properties and pass the
// user's picks to the control's own pick functions.

#include <memory>

#include "controls/Vista.h"

namespace vardena {

std::unique_ptr<Adaptador> CreaAdaptadorRefuerzo(Control& c, VistaForm& vista);
std::unique_ptr<Adaptador> CreaAdaptadorPerfil(Control& c, VistaForm& vista);

}  // namespace vardena
