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
    std::string error;                // why the run ended early
    int records = 0;                  // records passed through a form
};

struct ConversionOptions {
    bool dryRun = false;
    // Called once per record with the count so far and the record's name.
    std::function<void(int done, const std::string& what)> progress;
};

// The codes the run serves and their forms; "" for a code outside the dispatch.
std::string FormDeCodigo(const std::string& code);
bool SeRecorreEntero(const std::string& code);  // records kind: the whole List1 once per run

// The run over the current work (d.CarpetaObra). `list2` is the main window's hidden list of
// names: the folder's names are added to it, and it is not cleared first. With dryRun nothing is
// loaded or written: the log says what the run would do.
ConversionLog Convierte(Declaraciones& d, std::vector<std::string>& list2, const ConversionOptions& options = {});

// Copies the whole work folder into `destFolder`/<work name>; throws FileError.
std::string CopiaDeSeguridad(const std::string& workFolder, const std::string& destFolder);

}  // namespace vardena
