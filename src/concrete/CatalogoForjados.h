#pragma once
// The catalogues of prefabricated one-way slab systems that lie beside the program, one per kind
// of slab ("ForjArma.txt" armed joist, "ForjPret.txt" prestressed joist, "ForjAlve.txt"
// hollow-core slab), and the joist file "Viguetas" of the one-way slab form.
//
// A catalogue is a sequence of blocks, one per slab system:
//   the separator "~·~·~·~·~·~"
//   the system's name
//   the geometry: joist width, joist spacing, block height, topping, by "   ###  ###  ###  ##"
//   the number of section rows, a whole number
//   the rows, each twelve absolute values by the row template, then four blanks and the row's
//   name (blanks of the name written as "_", padded to the name's length)
// The file ends after the last row, without a closing separator. "Viguetas" holds one such row
// per line. Files are Windows-1252 with CR LF.
//
// A save copies the other blocks line for line and replaces the file safely: the new content is
// written and flushed to a temporary file beside it, a copy of the old file goes to the recycle
// bin, and the temporary file is renamed over the old one. A file with a damaged block is never
// rewritten: the reader names the line that is wrong.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

struct Declaraciones;

inline constexpr std::string_view kSeparadorForjado = "~·~·~·~·~·~";
inline constexpr std::string_view kPlantillaGeometria = "   ###  ###  ###  ##";
inline constexpr std::string_view kPlantillaFila =
    " ######### ###.## ####.## ###### ###### ####.## ####.## ####.## ####.## ####.## ####.## #####.##";
inline constexpr int kColumnasFicha = 12;
// The width of a row's name in the file (the name field's MaxLength).
inline constexpr int kLargoNombreFila = 15;
// The systems' list ends with this entry, which starts a new system.
inline constexpr std::string_view kNuevoForjado = "Nuevo Forjado";
inline constexpr std::string_view kArchivoViguetas = "Viguetas";

// The catalogue file of a kind of slab: 0 armed joist, 1 prestressed joist, 2 hollow-core slab.
std::string_view ArchivoCatalogo(int tipo);

// One section row: module, β, ultimate moment, the two stiffnesses, the three service moments,
// the three shear capacities and the shear along the joint, then its name.
struct FilaFicha {
    std::array<double, kColumnasFicha> valores{};
    std::string nombre;
    bool operator==(const FilaFicha&) const = default;
};

struct SistemaForjado {
    std::string nombre;
    // Joist width, joist spacing, block height, topping (cm).
    std::array<double, 4> geometria{};
    std::vector<FilaFicha> filas;
    bool operator==(const SistemaForjado&) const = default;
};

// The state of a catalogue file as read.
struct CatalogoLeido {
    struct Bloque {
        SistemaForjado sistema;
        size_t primera = 0;  // index in `lineas` of its separator
        size_t fin = 0;      // index one past its last row
    };
    bool existe = false;
    std::vector<std::string> lineas;  // the file's lines as on disk (Windows-1252), without line ends
    std::vector<Bloque> bloques;
    // Where the file is damaged: the line number (from 1) and what is wrong there, a message
    // number of the table; 0 when every block read.
    int lineaErronea = 0;
    int motivo = 0;
    bool Sano() const { return lineaErronea == 0; }
};

// Reads a catalogue file block by block. An absent file reads as an existing-less empty
// catalogue. Throws FileError when the file exists and cannot be read.
CatalogoLeido LeeCatalogo(const std::string& path);

// The names of the systems of a catalogue, in the order of the file.
std::vector<std::string> NombresForjados(const CatalogoLeido& c);

// A row's name as the file holds it: trimmed, blanks as "_", padded with blanks and cut to
// `largo` characters.
std::string NombreFila(std::string_view nombre, int largo = kLargoNombreFila);
// The lines of a block, in UTF-8: geometry and rows by their templates, absolute values.
std::string LineaGeometria(const std::array<double, 4>& g);
std::string LineaFila(const FilaFicha& f);
std::vector<std::string> LineasBloque(const SistemaForjado& s);
// Reads one row line (twelve numbers, then the name); nothing when it is not one.
std::optional<FilaFicha> LeeLineaFila(std::string_view linea);

// A text read as a whole number: blanks around it, "," or "." as the decimal mark, nothing else.
bool LeeNumero(std::string_view texto, double& valor);

// The sentence that refuses a damaged catalogue, naming its file and line.
std::string MensajeCatalogoDanado(const Declaraciones& d, const std::string& path, const CatalogoLeido& c);

// The three ways a catalogue changes. Each reads the file first and refuses a damaged one with
// its box; then the new content replaces the file as told above. False, after a box titled
// "Error", when nothing changed on disk.
// Saves system `n` (from 1): it replaces block n, or is appended when n is one past the last.
// A system with no name saves nothing (and returns false without a box).
bool GuardaForjado(Declaraciones& d, const std::string& path, int n, const SistemaForjado& s);
// Removes system `n` (from 1).
bool BorraForjado(Declaraciones& d, const std::string& path, int n);

// The joist file: line n (from 1) of "Viguetas".
// Reads it; nothing, after a box that names the file and line, when it isn't a row.
std::optional<FilaFicha> LeeVigueta(Declaraciones& d, const std::string& path, int n);
// Replaces line n (or appends it when n is one past the last line).
bool GuardaVigueta(Declaraciones& d, const std::string& path, int n, const FilaFicha& f);

// Replaces `path` by `bytes` (as on disk): temporary file flushed beside it, a copy of the old
// file to the recycle bin, rename. On failure a box titled "Error" and `path` as it was.
bool ReemplazaConPapelera(Declaraciones& d, const std::string& path, const std::string& bytes);

}  // namespace vardena
