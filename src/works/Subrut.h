#pragma once
// The shared routines of every form that read the shared state: messages, titles, list
// filling and the material tables. The number, text and path routines are in base/Texto.h.

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "base/Texto.h"

namespace vardena {

struct Declaraciones;
class Control;
class Form;

// ---- Messages and titles ----

// Message `n` of the message table with "%1", "%2"... replaced by `args`. A message the pack
// lacks still says its number and its arguments.
std::string Mensaje(const Declaraciones& d, int n, std::initializer_list<std::string> args = {});

// Why `title` cannot name a record inside the work (empty, "." or "..", a path separator, a
// control character, more than 255 bytes on disk, a name the program keeps for itself), as a
// phrase of the message table; "" when it can.
std::string TituloInvalido(const Declaraciones& d, std::string_view title);

// ---- Lists and forms ----

void SeleccionaEnLista(Control& list, std::string_view text);
// Fills `list` with the names of the files folder/*.ext (ext of three characters, compared
// without regard to case), each less its last 4 characters, in name order; then selects the
// first row equal to `select`.
void ListaArchivos(std::string_view ext, const std::string& folder, Control& list, std::string_view select = {});
// The control's index in its array as text; "-1" for a control that is no member of one.
std::string IndiceControl(const Control& c);
// Fills the form's CmbPlanta with a row per level from `first` to NPlantasSobre + NPlantasBajo.
void LlenaPlantas(Form& form, int first);
// The text of one row of a level list, as LlenaPlantas writes it.
std::string NombrePlanta(const Declaraciones& d, int i);

// ---- Material tables ----

// Control level index to the partial factors of concrete and steel; a bad index shows
// message 164 and leaves the out values as they were.
void Coeficientes(Declaraciones& d, int index, double& gammaC, double& gammaS);
// Concrete characteristic strength, t/m2; a bad index shows message 166 and gives nothing.
std::optional<int16_t> FckIndice(Declaraciones& d, int index);
// Reinforcing steel yield strength, t/m2; a bad index shows message 167 and gives nothing.
std::optional<int32_t> FykIndice(Declaraciones& d, int index);
// Structural steel: a bad index ends the program.
float FyAcero(int index);
std::string NombreAcero(int index);

// The material rule of element lists that begin with "Idem gral.": row 0 takes the index
// of the general data, any other row i stands for i - 1.
int IndiceMaterial(int listIndex, int generalIndex);

// ---- Reinforcement quantities ----

inline constexpr double kPi = 3.14159265358979;
double AreaBarras(const Control& c, float factor);
double AreaSeparacion(const Control& c, float factor);

}  // namespace vardena
