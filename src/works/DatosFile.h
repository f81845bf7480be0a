#pragma once
// The work's general data (DATOS.~CE) and description (DESCR.~CE).

#include <string>
#include <string_view>
#include <vector>

namespace vardena {

struct Declaraciones;

// Fields of DATOS.~CE that could not be read and kept their previous values, by line.
struct UnreadLine {
    int line = 0;                     // the line in the file; 0 when the file was not read at all
    int lastLine = 0;                 // the last line of a run of lines left unread; else `line`
    int number = 0;                   // the error number of the failure
    std::vector<std::string> fields;  // the variables that kept their values, in file order
    std::string reason;               // what went wrong
    // One short sentence naming the line, for the conversion log and the work's information.
    std::string Sentence() const;
};

struct DatosStatus {
    bool existed = false;      // the file was there
    bool refused = false;      // DATOS.~CE of another product or major version: VersionObra is 0
    bool damaged = false;      // a read met fields that could not be read (see `unread`)
    bool writeFailed = false;  // mode "G": the file could not be written and stays as it was
    std::string path;          // the file used
    std::string problem;       // what went wrong, naming the file and line
    std::vector<UnreadLine> unread;  // mode "L": what was not read, in file order
};

// name: "DATOS.~CE" or "DESCR.~CE" in any case; mode: "I" tests, "L" reads, "G" writes (first
// letter, any case). For "I", and for "L" of a missing file, `text` comes back as "No".
// DESCR.~CE is read into and written from `text`; DATOS.~CE into and from the general data.
//
// A read of DATOS.~CE goes on behind a field that fails (see LeeDatosText); a read that met
// failures, and a write of DATOS.~CE that fails, run the one handler: the settings "Directorio"
// and "Nombre" are emptied, so that the work is not opened again at the next start, and a
// critical box joins messages 160 to 163 with the error's number, text and the file. A failed
// write is reported in `writeFailed` and in d.UltimoErrorDatos (cleared by a write that goes
// through), never thrown: a caller that must not go on without the file checks one of them.
// A write of DESCR.~CE that fails throws FileError to its caller.
DatosStatus DatosFile(Declaraciones& d, std::string_view name, std::string_view mode, std::string& text);

// The text of DATOS.~CE for the current general data, as mode "G" writes it (version 3.5).
// Another version writes the layout of version 3, without the fields of 3.5: sample works and
// tests use it to make files as version 3 wrote them.
std::string DatosText(const Declaraciones& d, double version = 3.5);
// Reads the general data from the text of a DATOS.~CE (UTF-8). Returns false when the file is
// refused (VersionObra set to 0). A field that cannot be read is skipped: its variable keeps its
// previous value, the failure goes to `unread`, and reading goes on with the next field.
bool LeeDatosText(Declaraciones& d, const std::string& text, std::vector<UnreadLine>& unread);

}  // namespace vardena
