#pragma once
// Element records: the positional format that version 3 wrote, the named format that this
// program writes, and the routines that save and load a form through them.

#include <string>
#include <string_view>
#include <vector>

namespace vardena {

class Control;
class Form;
struct Declaraciones;

// The stored index of a CmbHorm list row in the positional format, and back. The two meet on
// every row but 3 ("HA-20"), which is written as 0 and reads back as row 0.
int CmbHormAIndiceGuardado(int listIndex);
int CmbHormDeIndiceGuardado(int stored);

// The version line of the named format: "Vardena 3" TAB "3.50".
std::string VersionLine();

// The texts of the two formats for a form's stored controls (UTF-8, "\n" line ends; the
// writers turn them into Windows-1252 with CR LF).
std::string PositionalText(const Form& form);
std::string NamedText(const Form& form);

// Writers: replace any file at `path` through a temporary file.
void FormGuardaFile(const Form& form, const std::string& path);
void FormGuardaFile2(const Form& form, const std::string& path);

// How a read ended.
enum class ReadOutcome {
    Positional,  // read in the positional format
    Named,       // read in the named format
    Refused,     // the named reader refused the file (message 1355); the form kept its values
};

// Reads a record of either format into the form. Errors go to the error window under
// "Subrut_FormLeeFile" / "Subrut_FormLeeFile2"; an answer other than "Reintentar" ends the
// program (ProgramHalt), with a message that names the file and the line.
ReadOutcome FormLeeFile(Form& form, const std::string& path);
ReadOutcome FormLeeFile2(Form& form, const std::string& path);

// Whether a section selector's Perfil names the user's own section ("otro"; older records say
// "xxx"): its record then holds Canto, Ancho, Area, Ix and Iy instead of a catalogue size.
bool EsPerfilDeUsuario(std::string_view perfil);

// The properties a stored control keeps, in the order of the positional record (`named` false)
// or of the named record: a section selector's depend on whether it holds a user section.
std::vector<std::string> PropiedadesGuardadas(const Control& c, bool named);

// Record path of a title in the current work: folder / title + ".~" + code.
std::string RutaRegistro(Form& form, std::string_view title);
std::string RutaResultados(Form& form, std::string_view title);

// Saves the form under its txtTitulo; returns the path written, "" when the save was refused.
std::string GuardaForm(Form& form);

// What a reading of a record found: the file read (empty when the title has no record) and how
// it was read.
struct Lectura {
    std::string path;
    ReadOutcome outcome = ReadOutcome::Refused;
    bool found() const { return !path.empty(); }
};
// Loads the record of `title` and its results. When there is none, empties `title` and reads
// nothing. The one way a record is read, by a window and by the conversion alike.
Lectura LeeForm(Form& form, std::string& title);
// Loads the results file of `title` into the form's RichTextBox1 (empty when there is none).
void CargaResultados(Form& form, std::string_view title);
// Asks and sends the record of `title` and its results to the recycle bin.
void BorraRegistro(Form& form, std::string_view title);

}  // namespace vardena
