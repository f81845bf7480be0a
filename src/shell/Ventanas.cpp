#include "shell/Ventanas.h"

namespace vardena {

bool PonEncima(Platform& p, Form& window, bool on) { return p.gui.ponEncima ? p.gui.ponEncima(window, on) : true; }

bool InitCommonControlsEx(Platform& p) { return p.gui.initCommonControls ? p.gui.initCommonControls() : true; }

}  // namespace vardena
