#pragma once
// The composite entry controls of the element forms: reinforcement (UCNumDiam, UCNumDiamSep,
// UCMallazo, UCZapatas) and the steel section selector (UCPerfil).

namespace vardena {

class Control;

// Gives a composite control its behaviour and list rows; other kinds are left alone.
// Every form calls it for each composite control it creates.
void InstalaControlCompuesto(Control& c);

}  // namespace vardena
