#pragma once
// What a work folder holds, as the main window shows it.

#include <string>
#include <vector>

#include "works/Transaccion.h"

namespace vardena {

struct Declaraciones;

struct ObraInfo {
    std::string folder;
    bool hasDatos = false;
    bool datosDamaged = false;
    std::string problem;        // why DATOS.~CE could not be read, naming the file
    float version = 0;          // VersionObra
    std::string versionText;    // Formato00Punto of it
    std::vector<std::string> contents;  // ListaElementos
    std::string description;    // DESCR.~CE, lines joined with CR LF
    bool convertible = false;
    // Lines of DATOS.~CE that could not be read, one short sentence each naming the line.
    std::vector<std::string> unreadLines;
    Recuperacion recovery;      // what an interrupted run or save had left, and what became of it   // the rule of the "CONVERTIR" button, and general data read whole
};

// The rule of the "CONVERTIR" button: a work whose DATOS.~CE exists and whose version is
// neither 0 nor above 3.01.
bool ConvertirHabilitado(bool hasDatos, float versionObra);

// What the opening of a work found of an interrupted conversion or save, as a sentence in the
// user's language; "" when there was nothing.
std::string TextoRecuperacion(const Declaraciones& d, const ObraInfo& info);

// Selects the work (CarpetaObra and NombreObra) and reads its general data and description
// into `d`, as the main window does when a work is clicked.
ObraInfo AbreObra(Declaraciones& d, const std::string& folder);

}  // namespace vardena
