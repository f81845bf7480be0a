#pragma once
// The recycle bin on Linux: the freedesktop.org trash. A file or folder is moved to
// $XDG_DATA_HOME/Trash/files (~/.local/share/Trash when unset) with a Trash/info/<name>.trashinfo
// that records its original path and the time of deletion, so that the desktop's file manager
// and RestauraDePapelera can put it back. A file on another volume goes to that volume's own
// trash ($topdir/.Trash/$uid or $topdir/.Trash-$uid) or is copied to the home trash; when no trash
// can be used, it is moved to a ".papelera" folder beside it. Nothing is ever deleted without a
// complete copy in a trash.

#include <string>
#include <string_view>
#include <vector>

#include "shell/Platform.h"

namespace vardena {

// What became of a file sent to the trash.
struct EnvioPapelera {
    bool ok = false;
    std::string destino;  // the trashed file or folder
    std::string info;     // its .trashinfo; empty when it went to a ".papelera" folder
    std::string error;    // why it failed, naming the file
};

// Moves `path` (a file, a folder or a link) to the trash, as told above. With `comoRuta`, the
// entry is named and recorded as coming from that path instead: a copy made beside a file goes
// in as the file itself.
EnvioPapelera EnviaAPapelera(const std::string& path, const std::string& comoRuta = {});

// The user's home trash folder (the one holding files/ and info/).
std::string CarpetaPapelera();

// An entry of a trash folder.
struct ElementoPapelera {
    std::string nombre;        // the name under files/
    std::string rutaOriginal;  // absolute path it came from
    std::string fecha;         // DeletionDate as written
};
// The entries of `papelera` (default: the home trash) that have a readable .trashinfo, by name.
std::vector<ElementoPapelera> ListaPapelera(const std::string& papelera = {});

// Moves the entry `nombre` of `papelera` (default: the home trash) back to its original path and
// removes its .trashinfo. Refuses to replace anything that exists there now. False with the
// reason in `error` when it could not.
bool RestauraDePapelera(const std::string& nombre, std::string* error = nullptr, const std::string& papelera = {});

// The Path= text of a .trashinfo: every byte other than letters, digits, "-._~" and "/" as %XX.
std::string CodificaRuta(std::string_view path);
// The reverse; a "%" not followed by two hexadecimal digits stays as it is.
std::string DecodificaRuta(std::string_view text);

// Moves a file or folder to `to`, which must not exist: a rename, or a copy and then a removal of
// the original when the two lie on different file systems. On failure the original is untouched
// and no partial copy is left. False with the reason in `error`.
bool MueveArchivo(const std::string& from, const std::string& to, std::string* error = nullptr);

// The recycle bin of the platform.
class PapeleraLinux : public RecycleBin {
public:
    bool APapelera(const std::string& path) override;
    // A copy made beside the file goes to the trash recorded as the file itself.
    bool CopiaAPapelera(const std::string& path) override;
};

}  // namespace vardena
