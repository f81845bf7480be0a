#include "application/Conversion.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <random>

#include "building/DatosGen.h"
#include "frame/Campos.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "works/Catalogo.h"
#include "base/Codepage.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "works/Transaccion.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

struct Dispatch {
    std::string code;
    std::string form;
    bool records;  // the whole List1, once per run; else once per file
    bool list4;    // entered in List4 when it finishes
};

// The codes the run serves: the general data, and every form whose definition asks for it.
// Codes LS, LZ, ME and DP are in the catalogue but their forms are not served: their files stay
// as version 3 left them.
const std::vector<Dispatch>& Dispatches()
{
    static const std::vector<Dispatch> table = [] {
        std::vector<Dispatch> out = {{"CE", "DatosGen", false, true}};
        for (const TablaForm& t : TablasCampos())
            if (t.despacho != Despacho::Ninguno)
                out.push_back({std::string(CodigoEnCatalogo(t.nombre)), std::string(t.nombre),
                               t.despacho == Despacho::Registros, t.enList4});
        return out;
    }();
    return table;
}

const Dispatch* Find(const std::string& code)
{
    for (const auto& d : Dispatches())
        if (code == d.code)
            return &d;
    return nullptr;
}

using Status = ConversionEntry::Status;

// The dispatch row of a file name of the work: a name ending in "~" and a code the run serves;
// nullptr for any other name. `code` receives the code.
const Dispatch* DispatchOfName(const std::string& name, std::string& code)
{
    if (name.size() < 3 || name[name.size() - 3] != '~')
        return nullptr;
    code = name.substr(name.size() - 2);
    return Find(code);
}

// The names of the folder, in the order the file system of version 3 listed them.
std::vector<std::string> FolderNames(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code ec;
    std::filesystem::directory_iterator it(folder, ec), end;
    for (; !ec && it != end; it.increment(ec)) {
        std::string name = it->path().filename().string();
        // The program's own lock and temporary files are not part of the work.
        if (!IsOwnWorkFile(name))
            names.push_back(std::move(name));
    }
    SortNoCase(names);
    return names;
}

// Stops the run where it stands; the staged files are then thrown away.
struct RunStopped {
    std::string why;
};

// What a dry run predicts of a record from its first line, without reading it through its form
// (which would show the user the boxes of the real run): "positional", "named", or "" for no
// file.
std::string FormatOf(const std::optional<std::string>& path)
{
    if (!path)
        return {};
    try {
        std::string head = ReadFileBytes(*path).substr(0, 64);
        return head.rfind("Vardena ", 0) == 0 ? "named" : "positional";
    } catch (const FileError&) {
        return "unreadable";
    }
}

struct RunState {
    Declaraciones& d;
    ConversionLog& log;
    const ConversionOptions& options;
};

// A record whose title cannot be a file name inside the work stops the run before the save
// would write outside it.
void CheckTitle(RunState& s, Form& form, const std::string& record)
{
    const std::string title = form.At("txtTitulo").Text();
    const std::string why = TituloInvalido(s.d, title);
    if (!why.empty())
        throw RunStopped{Mensaje(s.d, 1426, {record, title, why})};
}

void RunRecords(RunState& s, const Dispatch& dispatch)
{
    Declaraciones& d = s.d;
    std::unique_ptr<Form> form;
    ConVentanaError(s.d, "Form_Load", [&] { form = CargaForm(d, dispatch.form); });
    if (!form)
        throw ProgramHalt(std::string("form ") + dispatch.form + " is not available");
    auto* element = dynamic_cast<ElementForm*>(form.get());
    if (!element)
        throw ProgramHalt(std::string("form ") + dispatch.form + " has no record list");
    Control& list1 = form->At("List1");
    const int count = list1.ListCount();
    for (int j = 0; j < count; ++j) {
        const std::string title = list1.List(j);
        ConVentanaError(s.d, "List1_Click", [&] { list1.SetListIndex(j); });
        const Lectura lectura = element->UltimaLectura();
        if (d.DoEvents)
            d.DoEvents();
        const std::string record = lectura.found() ? lectura.path : RutaRegistro(*form, title);
        CheckTitle(s, *form, record);
        ConVentanaError(s.d, "CmdCalcular_Click", [&] { form->At("CmdCalcular").Click(); });
        const std::string& written = element->UltimoGuardado();
        ConversionEntry e{Status::Converted, record, dispatch.form, written, {}};
        if (!lectura.found()) {
            e.status = Status::NoRecord;
            e.note = "a results file without a record: the form's current state was saved under \"" +
                     form->At("txtTitulo").Text() + "\"";
        } else if (lectura.outcome == ReadOutcome::Refused) {
            e.status = Status::Refused;
            e.note = "no reader accepted the record (message 1355): the form's previous state was saved under its "
                     "title, as version 3 did; the old file is not repaired";
        } else if (lectura.outcome == ReadOutcome::Named) {
            e.status = Status::Rewritten;
            e.note = "already in the named format: read and written again";
        } else {
            e.note = "positional record written in the named format of version 3.50";
        }
        if (lectura.found() && !SameNameNoCase(ArchivoDe(written), ArchivoDe(record)) && e.status != Status::Refused)
            e.note += "; the record holds another title, so it was written as " + ArchivoDe(written) +
                      " and the old file stays";
        // A form that calculates for real (the soil) says what its calculation gave.
        if (!written.empty())
            if (const std::string calculo = element->ResumenCalculo(); !calculo.empty())
                e.note += "; " + calculo;
        s.log.entries.push_back(e);
        ++s.log.records;
        if (s.options.progress)
            s.options.progress(s.log.records, title + ".~" + dispatch.code);
        if (s.options.cancelled && s.options.cancelled())
            throw RunStopped{s.d.Msg(1422)};
    }
    form->Form_Unload();
}

void RunOnce(RunState& s, const Dispatch& dispatch, const std::string& name)
{
    Declaraciones& d = s.d;
    const std::string path = ConBarra(d.CarpetaObra) + name;
    if (std::string(dispatch.code) == "CE") {
        ConVentanaError(s.d, "Aceptar_Click", [&] {
            DatosGen form(d);
            form.Form_Load();
            form.Aceptar_Click();
        });
        // The general data's own handler has told the user; the run cannot go on without them.
        if (!d.UltimoErrorDatos.empty())
            throw RunStopped{d.UltimoErrorDatos};
        s.log.entries.push_back({Status::GeneralData, path, "DatosGen", ConBarra(d.CarpetaObra) + "DATOS.~CE",
                                 "general data written as version 3.5 (once per .~CE file met)"});
        return;
    }
    std::unique_ptr<Form> form;
    ConVentanaError(s.d, "Form_Load", [&] { form = CargaForm(d, dispatch.form); });
    if (!form)
        throw ProgramHalt(std::string("form ") + dispatch.form + " is not available");
    CheckTitle(s, *form, path);
    ConVentanaError(s.d, "CmdCalcular_Click", [&] { form->At("CmdCalcular").Click(); });
    const auto* element = dynamic_cast<const ElementForm*>(form.get());
    const std::string written = element ? element->UltimoGuardado() : std::string();
    // The form that the run saves once (the actions) says what its calculation did.
    std::string note = element ? element->ResumenCalculo() : std::string();
    if (note.empty())
        note = "saved in the named format";
    form->Form_Unload();
    s.log.entries.push_back({Status::Saved, path, dispatch.form, written, note});
    ++s.log.records;
}

void DryRun(RunState& s, const std::vector<std::string>& names)
{
    Declaraciones& d = s.d;
    std::map<std::string, bool> done;
    for (const auto& name : names) {
        std::string code;
        const Dispatch* dispatch = DispatchOfName(name, code);
        if (!dispatch || (dispatch->records && done[code]))
            continue;
        if (!dispatch->records) {
            s.log.entries.push_back({std::string(dispatch->code) == "CE" ? Status::GeneralData : Status::Saved,
                                     ConBarra(d.CarpetaObra) + name, dispatch->form, {},
                                     std::string(dispatch->code) == "CE" ? "would write DATOS.~CE as version 3.5"
                                                                          : "would recalculate and save the actions record"});
            continue;
        }
        done[code] = true;
        for (const auto& results : FilesEndingWith(d.CarpetaObra, ".l" + code)) {
            const std::string title = results.substr(0, results.size() - 4);
            const std::string record = ConBarra(d.CarpetaObra) + title + ".~" + code;
            const auto existing = ExistingNoCase(record);
            const std::string format = FormatOf(existing);
            ConversionEntry e{Status::Converted, existing.value_or(record), dispatch->form, {}, {}};
            if (!existing) {
                e.status = Status::NoRecord;
                e.note = "a results file without a record: the form's state would be saved under its current title";
            } else if (format == "named") {
                e.status = Status::Rewritten;
                e.note = "already in the named format: would be read and written again";
            } else {
                e.note = "would be written in the named format of version 3.50";
            }
            s.log.entries.push_back(e);
            ++s.log.records;
        }
    }
}

// Files of the work that the run leaves as they are, with the reason.
void LeftAlone(RunState& s, const std::vector<std::string>& names)
{
    const std::string folder = s.d.CarpetaObra;
    for (const auto& name : names) {
        if (name.size() < 3 || name[name.size() - 3] != '~')
            continue;
        const std::string code = name.substr(name.size() - 2);
        const Dispatch* dispatch = Find(code);
        std::string why;
        if (!dispatch) {
            bool inCatalogue = false;
            for (const auto& row : Catalogo())
                inCatalogue = inCatalogue || code == row.code;
            why = inCatalogue ? "code " + code + " is not converted by this program; the file stays as version 3 left it"
                              : "code " + code + " is unknown; the file stays as it is";
        } else if (dispatch->records) {
            const std::string title = name.substr(0, name.size() - 4);
            if (!FindNoCase(folder, title + ".l" + code))
                why = "saved but never checked (no results file): it is not listed, so it stays in its old format";
        }
        if (!why.empty())
            s.log.entries.push_back({Status::LeftAlone, ConBarra(folder) + name, {}, {}, why});
    }
}

}  // namespace

const char* StatusName(ConversionEntry::Status s)
{
    switch (s) {
    case Status::Converted: return "converted";
    case Status::Rewritten: return "rewritten";
    case Status::Refused: return "refused";
    case Status::NoRecord: return "no-record";
    case Status::LeftAlone: return "left-alone";
    case Status::GeneralData: return "general-data";
    case Status::Saved: return "saved";
    case Status::Failed: return "failed";
    }
    return "?";
}

std::string FormDeCodigo(const std::string& code)
{
    const Dispatch* d = Find(code);
    return d ? d->form : "";
}

bool SeRecorreEntero(const std::string& code)
{
    const Dispatch* d = Find(code);
    return d && d->records;
}

std::string RegistroInaceptable(const Declaraciones& d, const std::string& path)
{
    std::error_code ec;
    if (fs::is_directory(path, ec))
        return Mensaje(d, 1417, {path});
    std::string bytes;
    try {
        bytes = ReadFileBytes(path);
    } catch (const FileError& e) {
        return e.what();
    }
    if (bytes.empty())
        return Mensaje(d, 1421, {path});
    if (bytes.rfind("\xEF\xBB\xBF", 0) == 0)
        return Mensaje(d, 1418, {path});
    if (bytes.find('\0') != std::string::npos)
        return Mensaje(d, 1420, {path});
    size_t lineStart = 0;
    for (size_t i = 0; i <= bytes.size(); ++i) {
        if (i == bytes.size() || bytes[i] == '\r' || bytes[i] == '\n') {
            if (i - lineStart > kMaxRecordLine)
                return Mensaje(d, 1419, {path, std::to_string(kMaxRecordLine)});
            lineStart = i + 1;
        }
    }
    return {};
}

namespace {

// The files the run will read: every record whose title has a results file, of a code the run
// serves by records. Each is checked before anything is written, so that a file that cannot
// be a record refuses the work by name rather than leaving a record of defaults behind.
std::string Preflight(const Declaraciones& d, const std::vector<std::string>& names)
{
    std::map<std::string, bool> seen;
    for (const auto& name : names) {
        std::string code;
        const Dispatch* dispatch = DispatchOfName(name, code);
        if (!dispatch)
            continue;
        if (!dispatch->records) {
            const std::string why = RegistroInaceptable(d, ConBarra(d.CarpetaObra) + name);
            // The general data and the description have readers of their own; the actions
            // record is read like any other.
            if (!why.empty() && code != "CE")
                return why;
            continue;
        }
        if (seen[code])
            continue;
        seen[code] = true;
        for (const auto& results : FilesEndingWith(d.CarpetaObra, ".l" + code)) {
            const std::string title = results.substr(0, results.size() - 4);
            if (auto record = FindNoCase(d.CarpetaObra, title + ".~" + code)) {
                const std::string why = RegistroInaceptable(d, *record);
                if (!why.empty())
                    return why;
            }
        }
    }
    return {};
}

// The commit order: every record first, the general data last, so that a work whose renames
// stopped half-way still reads as not converted.
std::vector<StagingArea::Entry> CommitOrder(std::vector<StagingArea::Entry> entries)
{
    std::stable_partition(entries.begin(), entries.end(),
                          [](const StagingArea::Entry& e) { return !SameNameNoCase(e.target, "DATOS.~CE"); });
    return entries;
}

void Walk(RunState& s, const std::vector<std::string>& list2)
{
    std::map<std::string, bool> flags;
    const size_t last = list2.size();
    for (size_t row = 0; row < last; ++row) {
        const std::string name = list2[row];
        std::string code;
        const Dispatch* dispatch = DispatchOfName(name, code);
        if (!dispatch)
            continue;
        if (dispatch->records) {
            if (flags[code])
                continue;
            RunRecords(s, *dispatch);
            flags[code] = true;
        } else {
            RunOnce(s, *dispatch, name);
        }
        if (dispatch->list4)
            s.log.list4.push_back(dispatch->form);
    }
}

}  // namespace

ConversionLog Convierte(Declaraciones& d, std::vector<std::string>& list2, const ConversionOptions& options)
{
    ConversionLog log;
    log.work = d.CarpetaObra;
    RunState s{d, log, options};
    const std::vector<std::string> names = FolderNames(d.CarpetaObra);
    list2.insert(list2.end(), names.begin(), names.end());
    LeftAlone(s, names);
    if (options.dryRun) {
        DryRun(s, list2);
        log.completed = true;
        return log;
    }
    auto stop = [&](ConversionLog::End end, const std::string& sentence) {
        log.end = end;
        log.error = sentence;
        log.entries.push_back({Status::Failed, {}, {}, {}, sentence});
        return log;
    };
    // One writer at a time.
    std::optional<WorkLock> lock;
    try {
        lock = WorkLock::Try(d.CarpetaObra);
    } catch (const FileError& e) {
        return stop(ConversionLog::End::Refused, Mensaje(d, 1401, {d.CarpetaObra, e.what()}));
    }
    if (!lock)
        return stop(ConversionLog::End::Busy, Mensaje(d, 1400, {d.CarpetaObra}));
    if (const std::string why = Preflight(d, list2); !why.empty())
        return stop(ConversionLog::End::Refused, Mensaje(d, 1401, {d.CarpetaObra, why}));

    Diario diario;
    diario.tag = RandomHex(10);
    try {
        EscribeDiario(d.CarpetaObra, diario);
    } catch (const FileError& e) {
        return stop(ConversionLog::End::Refused, Mensaje(d, 1401, {d.CarpetaObra, e.what()}));
    }
    // Whatever stops the run throws away what it staged: the work is as it was.
    auto rollBack = [&](const std::string& why) {
        BorraDiario(d.CarpetaObra);
        return stop(ConversionLog::End::RolledBack, Mensaje(d, 1401, {d.CarpetaObra, why}));
    };
    d.UltimoErrorDatos.clear();
    try {
        StagingArea area(d.CarpetaObra, diario.tag);
        Walk(s, list2);
        // Everything staged reaches the disk before the journal says it may be committed.
        SyncFileSystem(d.CarpetaObra);
        diario.fase = Diario::Fase::Commit;
        diario.entries = CommitOrder(area.entries());
        EscribeDiario(d.CarpetaObra, diario);
        area.Release();
    } catch (const ProgramHalt& e) {
        return rollBack(e.what());
    } catch (const FileError& e) {
        return rollBack(e.what());
    } catch (const RunStopped& e) {
        return rollBack(e.why);
    }
    try {
        CommitStaged(d.CarpetaObra, diario.entries);
        BorraDiario(d.CarpetaObra);
    } catch (const FileError& e) {
        return stop(ConversionLog::End::Pending, Mensaje(d, 1425, {d.CarpetaObra, e.what()}));
    }
    // The main window reads the general data again: the version now reads 3.50.
    std::string unused;
    DatosFile(d, "DATOS.~CE", "L", unused);
    d.ui.MsgBox(d.Msg(1307), mb::Information, "");
    log.completed = true;
    return log;
}

std::string CopiaNoAdmitida(const Declaraciones& d, const std::vector<std::string>& works, const std::string& destFolder)
{
    std::error_code ec;
    const fs::path dest = fs::weakly_canonical(fs::absolute(destFolder), ec);
    if (fs::exists(dest, ec) || fs::is_symlink(dest, ec))
        return Mensaje(d, 1416, {dest.string()});
    // A copy inside a work would copy itself until names grow too long.
    for (const auto& w : works) {
        const fs::path src = fs::weakly_canonical(fs::absolute(w), ec);
        if (std::mismatch(src.begin(), src.end(), dest.begin(), dest.end()).first == src.end())
            return Mensaje(d, 1415, {dest.string()});
    }
    return {};
}

std::string CopiaDeSeguridad(const Declaraciones& d, const std::string& workFolder, const std::string& destFolder)
{
    std::error_code ec;
    const fs::path src = fs::weakly_canonical(fs::absolute(workFolder), ec);
    const fs::path dest = fs::weakly_canonical(fs::absolute(destFolder), ec);
    auto refuse = [&](const std::string& why) { return FileError(dest.string(), Mensaje(d, 1414, {why})); };
    if (const std::string why = CopiaNoAdmitida(d, {workFolder}, destFolder); !why.empty())
        throw refuse(why);
    fs::create_directories(dest.parent_path(), ec);
    bool created = false;
    try {
        if (!fs::create_directory(dest, ec) || ec)
            throw FileError(dest.string(), ec.message());
        created = true;
        for (fs::directory_iterator it(src, ec), end; it != end; it.increment(ec)) {
            if (ec)
                throw FileError(src.string(), ec.message());
            const std::string name = it->path().filename().string();
            // The program's own lock and temporary files are not part of the work.
            if (IsOwnWorkFile(name))
                continue;
            fs::copy(it->path(), dest / name, fs::copy_options::recursive, ec);
            if (ec)
                throw FileError((dest / name).string(), ec.message());
        }
        if (ec)
            throw FileError(src.string(), ec.message());
        SyncFileSystem(dest.string());
    } catch (const FileError& e) {
        if (created)
            fs::remove_all(dest, ec);
        throw refuse(e.what());
    }
    return dest.string();
}

}  // namespace vardena
