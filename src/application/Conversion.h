#pragma once
// The conversion of a work of version 3.00 or 3.01: every element record that has a results
// file passes through its own form and is written back in the named format of version 3.50;
// the general data are written back as version 3.5.

#include <functional>
#include <string>
#include <vector>

namespace vardena {

struct Declaraciones;

struct ConversionEntry {
    enum class Status {
        Converted,      // read in the positional format, written in the named format
        Rewritten,      // already in the named format: read and written the same
        Refused,        // no reader accepted it; the form's previous state was saved under its title
        NoRecord,       // a results file without a record: the form's current state was saved
        LeftAlone,      // a file the run does not touch, with the reason
        GeneralData,    // DATOS.~CE rewritten as version 3.5
        Saved,          // a record saved once per file (actions)
        Failed,         // the run ended here
    };
    Status status;
    std::string file;     // the file met or the record read
    std::string form;     // the form that served it, "" for files left alone
    std::string written;  // the file written, when one was
    std::string note;     // why, in one sentence
};

const char* StatusName(ConversionEntry::Status s);

struct ConversionLog {
    std::string work;
    std::vector<ConversionEntry> entries;
    std::vector<std::string> list4;   // forms in the order they finished
    bool completed = false;
    // Why the run did not complete, one sentence in the user's language naming the file and
    // saying what became of the work.
    std::string error;
    // How a run that did not complete ended.
    enum class End {
        None,        // completed, or a dry run
        Busy,        // another program was writing the work: nothing was touched
        Refused,     // a file was refused before anything was written: the work is as before
        RolledBack,  // the run stopped and everything staged was thrown away: the work is as before
        Pending,     // every file was written but the renames stopped half-way: the next opening
                     // of the work finishes them
    };
    End end = End::None;
    int records = 0;                  // records passed through a form
    std::vector<std::string> unreadGeneralData;  // lines of DATOS.~CE that could not be read
};

struct ConversionOptions {
    bool dryRun = false;
    // Called once per record with the count so far and the record's name.
    std::function<void(int done, const std::string& what)> progress;
    // Asked between records; true stops the run, which then throws away what it staged.
    std::function<bool()> cancelled;
};

// The longest line a record of version 3 can hold; a longer line marks a file that is not one.
inline constexpr size_t kMaxRecordLine = 65536;

// The first reason why a file the run would read cannot be a record of version 3 (a folder
// named like a record, an empty file, a UTF-8 byte-order mark, a NUL byte, an over-long line),
// as a phrase in the user's language that names the file; "" when there is none.
std::string RegistroInaceptable(const Declaraciones& d, const std::string& path);

// The codes the run serves and their forms; "" for a code outside the dispatch.
std::string FormDeCodigo(const std::string& code);
bool SeRecorreEntero(const std::string& code);  // records kind: the whole List1 once per run

// The run over the current work (d.CarpetaObra). `list2` is the main window's hidden list of
// names: the folder's names are added to it, and it is not cleared first. With dryRun nothing is
// loaded or written: the log says what the run would do.
ConversionLog Convierte(Declaraciones& d, std::vector<std::string>& list2, const ConversionOptions& options = {});

// Why a backup into `destFolder` is refused, as a phrase in the user's language: the folder
// exists already, or it lies inside one of `works` (or is one). "" when it is admitted.
std::string CopiaNoAdmitida(const Declaraciones& d, const std::vector<std::string>& works, const std::string& destFolder);
// Copies the whole work folder to `destFolder`, which must not exist yet and must lie outside
// the work; a copy that fails half-way is removed. Throws FileError with a sentence in the
// user's language.
std::string CopiaDeSeguridad(const Declaraciones& d, const std::string& workFolder, const std::string& destFolder);

}  // namespace vardena
