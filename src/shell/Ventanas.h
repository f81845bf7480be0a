#pragma once
// The window services of the program (modules OnTopBas and XPmComCtrls). The desktop program
// gives them their meaning through Platform::gui; without a screen they do nothing and succeed.

#include "shell/Platform.h"

namespace vardena {

class Form;

// Keeps `window` above all others (on) or gives it back its normal place (off).
bool PonEncima(Platform& p, Form& window, bool on);
// Prepares the common controls and visual styles once at start.
bool InitCommonControlsEx(Platform& p);

}  // namespace vardena
