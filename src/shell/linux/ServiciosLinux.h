#pragma once
// The Linux services of the program: the freedesktop.org trash, xdg-open and the system's facts.

#include "shell/Platform.h"

namespace vardena {

// Fills p.recycleBin, p.shell and p.system with the Linux services; p.settings stays as it is.
void InstalaServiciosLinux(Platform& p);

}  // namespace vardena
