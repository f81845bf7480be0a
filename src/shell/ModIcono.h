#pragma once
// The icon of a work folder (module ModIcono): Desktop.ini and MiIcono.ico for the Windows shell,
// and a .directory file for the KDE file manager, which reads its Icon= line.

#include <string>

#include "shell/Platform.h"

namespace vardena {

// The program's own folder icon: a 32x32, 32-bit .ico of a timber frame, drawn here.
std::string IconoObra();

// Gives `folder` its icon: writes Desktop.ini ("[.ShellClassInfo]", "IconFile=MiIcono.ico",
// "IconIndex=0", "InfoTip=Estructuras de Madera"), copies `icon` (the program's own when empty)
// to MiIcono.ico, and sets Icon= of the [Desktop Entry] of .directory to that file, keeping the
// rest of .directory. An existing Desktop.ini or MiIcono.ico that differs goes to the recycle bin
// first; if it cannot, nothing is replaced. False with the reason in `error` when it failed.
bool PoneIconoCarpeta(RecycleBin& bin, const std::string& folder, const std::string& icon = {},
                      std::string* error = nullptr);

}  // namespace vardena
