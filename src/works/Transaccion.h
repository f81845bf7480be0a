#pragma once
// A conversion as one transaction per work. Every file the run writes is staged beside the file
// it replaces; a small journal in the work folder says how far a run got:
//   stage   the staged files may be incomplete: throwing them away restores the work;
//   commit  every staged file is on the disk: renaming them all finishes the run.
// Whoever next opens the work (vardena convert, vardena info, the main window) finishes or
// throws away what an interrupted run left, and removes stray temporary files.

#include <string>
#include <vector>

#include "base/FileIo.h"

namespace vardena {

inline constexpr const char* kJournalName = ".vardena-journal";

struct Diario {
    enum class Fase { Stage, Commit };
    Fase fase = Fase::Stage;
    std::string tag;
    std::vector<StagingArea::Entry> entries;
};

// The journal's text and back; ReadDiario returns false for a text that is not a journal.
std::string TextoDiario(const Diario& diario);
bool LeeDiario(const std::string& text, Diario& diario);

// Writes the journal of `folder` durably. Throws FileError.
void EscribeDiario(const std::string& folder, const Diario& diario);
// Removes the journal and flushes the folder.
void BorraDiario(const std::string& folder);

// What the opening of a work found and did.
struct Recuperacion {
    enum class Resultado {
        Nada,        // nothing was left over
        Terminada,   // an interrupted conversion was finished: the work is converted
        Descartada,  // an interrupted conversion was thrown away: the work is as before
        Limpiada,    // stray temporary files of an interrupted save were removed
        Ocupada,     // another program is writing the work now: nothing was touched
    };
    Resultado resultado = Resultado::Nada;
    int archivos = 0;  // files renamed or removed
};

// Finishes or throws away an interrupted conversion of `folder` and removes stray temporary
// files, under the work's lock. Throws FileError when a leftover cannot be dealt with (the work is
// then left as it is).
Recuperacion RecuperaObra(const std::string& folder);

}  // namespace vardena
