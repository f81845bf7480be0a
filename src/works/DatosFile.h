#pragma once
// The work's general data (DATOS.~CE) and description (DESCR.~CE).

#include <string>
#include <string_view>

namespace vardena {

struct Declaraciones;

struct DatosStatus {
    bool existed = false;   // the file was there
    bool refused = false;   // DATOS.~CE of another product or major version: VersionObra is 0
    bool damaged = false;   // a read stopped at a field that could not be read
    std::string path;       // the file used
    std::string problem;    // what went wrong, naming the file and line
};

// name: "DATOS.~CE" or "DESCR.~CE" in any case; mode: "I" tests, "L" reads, "G" writes (first
// letter, any case). For "I", and for "L" of a missing file, `text` comes back as "No".
// DESCR.~CE is read into and written from `text`; DATOS.~CE into and from the general data.
DatosStatus DatosFile(Declaraciones& d, std::string_view name, std::string_view mode, std::string& text);

// The text of DATOS.~CE for the current general data, as mode "G" writes it (version 3.5).
// Another version writes the layout of version 3, without the fields of 3.5: sample works and
// tests use it to make files as version 3 wrote them.
std::string DatosText(const Declaraciones& d, double version = 3.5);
// Reads the general data from the text of a DATOS.~CE (UTF-8). Throws FieldError.
// Returns false when the file is refused (VersionObra set to 0).
bool LeeDatosText(Declaraciones& d, const std::string& text);

}  // namespace vardena
