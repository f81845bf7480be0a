#pragma once
// The special folders of the Linux desktop under the names of the Windows shell folders. Linux
// has no registry: every other operation keeps the interface's "no registry" answers.

#include <string>

#include "shell/cQueryReg.h"

namespace vardena {

class cQueryRegLinux final : public cQueryReg {
public:
    // Names compare without regard to case; an unknown name answers "".
    //   "Desktop", "Personal", "My Pictures", "My Music", "My Video", "Templates": the folder that
    //     $XDG_CONFIG_HOME/user-dirs.dirs (default ~/.config) gives to XDG_DESKTOP_DIR,
    //     XDG_DOCUMENTS_DIR... when that folder exists; else ~/Desktop, ~/Documents, ~/Pictures,
    //     ~/Music, ~/Videos, ~/Templates when it exists; else the home folder.
    //   "AppData", "Local AppData": $XDG_DATA_HOME, default ~/.local/share, existing or not.
    // Answers carry no final "/" (the root excepted). The file is read at every call.
    std::string ShellFolders(const std::string& name) override;
    // ShellFolders, plus "WindowsDir" = "/" and "SystemDir" = "/usr/lib/", where the shared
    // libraries lie.
    std::string GetFolder(const std::string& name) override;
};

}  // namespace vardena
