#pragma once
// The report of the error window: what failed and where, followed by the system report
// (operating system, processor, memory, and each mounted volume with its kind, serial, label
// and free space). Texts are UTF-8 with CR LF line ends.

#include <string>
#include <string_view>

#include "shell/Platform.h"

namespace vardena {

// Bytes as kilobytes in the format "0,000" with the Spanish thousands mark: at least four
// digits, grouped by threes with ".": 5 Kb is "0.005", 1234567 Kb is "1.234.567".
std::string FormatoKb(unsigned long long bytes);

// The system report from the machine's facts.
std::string InfoSistema(const SystemFacts& facts);

// What the error window is told about a failure.
struct DatosError {
    int numero = 0;
    std::string descripcion;
    std::string fuente;   // the program that raised it
    int linea = 0;        // the failing line, 0 when unknown
    std::string origen;   // the handler's label (ErrorOrigen)
};

// The program's version as the report gives it: major + minor / 100 + revision / 1000 in "0.000".
std::string VersionInforme();

// The report text (TextoError): the program's name and version, the failure item by item,
// the handler's label, then the system report. `fecha` is the date and time of the failure.
std::string TextoError(const DatosError& e, std::string_view fecha, const SystemFacts& facts);

// The text the detail box shows: "Error Nº : " + number, then the report.
std::string TextoDetalle(const DatosError& e, const std::string& textoError);

// Error.txt: a line of 57 "-", the report, the same line again.
std::string ContenidoErrorTxt(const std::string& textoError);
// Writes Error.txt into `carpeta` (through a temporary file); returns its path. Throws FileError.
std::string GuardaErrorTxt(const std::string& carpeta, const std::string& textoError);

// The three lines of the box that confirms the save.
std::string AvisoErrorGuardado();

}  // namespace vardena
