#pragma once
// Helpers shared by the tests: scratch folders, files in the formats of version 3, and a
// program state with recorded message boxes and settings kept in memory.

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "shell/Platform.h"
#include "works/Declaraciones.h"
#include "base/Form.h"
#include "base/Ui.h"

namespace vardena::test {

// A fresh folder under the system's temporary folder, removed with the object.
class ScratchDir {
public:
    ScratchDir();
    ~ScratchDir();
    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// The program's folder of the tests: the snow table of the tests (tests/data/Nieve) and the maps
// of the source, so that no test hangs on the table the program installs and no language pack
// loads unless a test asks for one.
const std::string& CarpetaPrograma();
// The resources of the programs the tests run: the source's language packs and maps and the
// snow table of the tests.
const std::string& RecursosDePrueba();

// A program state for tests: RecordingUi, MemorySettings, the catalogue filled, CarpetaPrograma()
// as the program's folder.
struct TestApp {
    TestApp();
    RecordingUi ui;
    Platform platform;
    Declaraciones decl;
};

// Writes `text` (UTF-8, "\n" line ends) as Windows-1252 with CR LF.
void WriteDiskText(const std::string& path, const std::string& text);

// A work of three floors and a basement with the loads (t/m2) the element tests work their
// figures from: per floor (roof first) self-weight 0.25, 0.25, 0.25, 0.375, finishes 0.125,
// 0.25, 0.25, 0.25, partitions 0, 0.125, 0.125, 0.125, use 0.125, 0.25, 0.25, 0.375; on the
// basement's row 1 self-weight 0.5, finishes 0.25, partitions 0, use 0.5.
void PonPlantasDePrueba(Declaraciones& d);
// Reads a file and returns it as UTF-8 with "\n" line ends.
std::string ReadDiskText(const std::string& path);
std::string ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);

// The number of the PropertyError that `fn` throws; 0 when it throws none.
template <typename Fn>
int PropertyErrorNumber(Fn fn)
{
    try {
        fn();
    } catch (const PropertyError& e) {
        return e.number();
    }
    return 0;
}

// Every entry of a folder: a file's name and bytes, a sub-folder's name and "<folder>".
using Snapshot = std::map<std::string, std::string>;
Snapshot TakeSnapshot(const std::string& folder);

// Runs the command-line tool; returns its exit code and fills the outputs. Unless the caller's
// environment names the program's resources, the tool finds the language packs of the source
// beside the snow table of the tests.
int RunCli(const std::string& args, std::string* out = nullptr, std::string* err = nullptr);

// The path of `program` on PATH, "" when it is not there.
std::string OnPath(const std::string& program);
// Converts the RTF file `rtf` of the folder `carpeta` with LibreOffice (`soffice`, headless, a
// private profile in that folder, a time limit) through `filtro`, and returns the file `salida`
// it writes there; "" when it writes none (the test has failed then, with the log).
std::string ConvierteConLibreOffice(const std::string& soffice, const std::string& carpeta, const std::string& rtf,
                                    const std::string& filtro, const std::string& salida);
// The RTF file as LibreOffice reads it, as UTF-8 text (written to `salida` in `carpeta`),
// without its byte-order mark and the narrow spaces it puts into runs of blanks.
std::string TextoDeLibreOffice(const std::string& soffice, const std::string& carpeta, const std::string& rtf,
                               const std::string& salida);

}  // namespace vardena::test
