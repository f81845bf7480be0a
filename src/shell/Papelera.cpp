#include <filesystem>

#include "base/FileIo.h"
#include "shell/Platform.h"

namespace vardena {

// Any bin: the copy goes in under the file's own name, from a folder of its own beside the file
// that is taken away afterwards.
bool RecycleBin::CopiaAPapelera(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code ec;
    const fs::path carpeta = fs::path(path).parent_path() / (".vardena-" + RandomHex(12) + ".papelera");
    const fs::path copia = carpeta / fs::path(path).filename();
    const bool enviada = fs::create_directory(carpeta, ec) && fs::copy_file(path, copia, ec) && APapelera(copia.string());
    fs::remove_all(carpeta, ec);
    return enviada;
}

}  // namespace vardena
