// vardena convert: carries a work of version 3.00 or 3.01 into the named format of 3.50.

#include <filesystem>
#include <iostream>
#include <sstream>
#include <unistd.h>

#include "Commands.h"
#include "works/Catalogo.h"
#include "works/Conversion.h"
#include "works/FileIo.h"
#include "works/Obra.h"
#include "works/Subrut.h"

namespace vardena::cli {
namespace {

constexpr int kRefusedRecords = 3;

std::string Json(const std::string& s) { return JsonText(s); }

struct Options {
    std::vector<std::string> works;
    std::string backup;
    bool dryRun = false;
    bool json = false;
};

void PrintLog(const ConversionLog& log, bool dryRun, std::ostream& out)
{
    out << (dryRun ? "dry run of " : "conversion of ") << log.work << "\n";
    for (const auto& e : log.entries) {
        out << "  " << StatusName(e.status) << ": " << ArchivoDe(e.file);
        if (!e.form.empty())
            out << " [" << e.form << "]";
        if (!e.written.empty() && ArchivoDe(e.written) != ArchivoDe(e.file))
            out << " -> " << ArchivoDe(e.written);
        out << ": " << e.note << "\n";
    }
    out << "  records: " << log.records << (log.completed ? "" : " (the run ended early)") << "\n";
    if (!log.error.empty())
        out << "  error: " << log.error << "\n";
}

std::string JsonLog(const ConversionLog& log, bool dryRun, const std::string& refusal)
{
    std::ostringstream o;
    o << "{\"work\":" << Json(log.work) << ",\"dryRun\":" << (dryRun ? "true" : "false")
      << ",\"completed\":" << (log.completed ? "true" : "false") << ",\"records\":" << log.records;
    if (!refusal.empty())
        o << ",\"refused\":" << Json(refusal);
    if (!log.error.empty())
        o << ",\"error\":" << Json(log.error);
    o << ",\"forms\":[";
    for (size_t i = 0; i < log.list4.size(); ++i)
        o << (i ? "," : "") << Json(log.list4[i]);
    o << "],\"entries\":[";
    for (size_t i = 0; i < log.entries.size(); ++i) {
        const auto& e = log.entries[i];
        o << (i ? "," : "") << "{\"status\":" << Json(StatusName(e.status)) << ",\"file\":" << Json(e.file)
          << ",\"form\":" << Json(e.form) << ",\"written\":" << Json(e.written) << ",\"note\":" << Json(e.note) << "}";
    }
    o << "]}";
    return o.str();
}

// Converts one work; returns the exit code.
int ConvertOne(Aplicacion& app, const std::string& work, const Options& opt, std::string& json)
{
    ObraInfo info = AbreObra(app.decl, work);
    ConversionLog log;
    log.work = info.folder;
    if (!info.convertible) {
        std::string why = !info.hasDatos ? "it has no DATOS.~CE"
                          : !info.problem.empty() ? info.problem
                                                  : "it is of version " + info.versionText +
                                                        " and only works of version 3.00 or 3.01 are converted";
        const std::string msg = info.folder + ": the work is not converted: " + why + "; nothing was written";
        if (opt.json)
            json = JsonLog(log, opt.dryRun, msg);
        else
            std::cerr << "vardena: error: " << msg << "\n";
        return kFailure;
    }
    if (!opt.backup.empty() && !opt.dryRun) {
        const std::string copy = CopiaDeSeguridad(info.folder, opt.backup);
        std::cerr << "vardena: backup of " << info.folder << " in " << copy << "\n";
    }
    std::vector<std::string> list2;
    ConversionOptions co;
    co.dryRun = opt.dryRun;
    // On a terminal the count stays on one line; in a log, a line per record.
    const bool terminal = ::isatty(STDERR_FILENO) != 0;
    co.progress = [terminal](int done, const std::string& what) {
        if (terminal)
            std::cerr << "\rvardena: " << done << " records  " << what << "\033[K" << std::flush;
        else
            std::cerr << "vardena: " << done << " records  " << what << "\n";
    };
    log = Convierte(app.decl, list2, co);
    if (terminal && log.records > 0)
        std::cerr << "\r\033[K";
    if (opt.json)
        json = JsonLog(log, opt.dryRun, {});
    else
        PrintLog(log, opt.dryRun, std::cout);
    if (!log.completed)
        return kFailure;
    for (const auto& e : log.entries)
        if (e.status == ConversionEntry::Status::Refused)
            return kRefusedRecords;
    return kOk;
}

int CmdConvert(Aplicacion& app, const std::vector<std::string>& args)
{
    Options opt;
    std::string all;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--dry-run")
            opt.dryRun = true;
        else if (a == "--json")
            opt.json = true;
        else if (a == "--backup" && i + 1 < args.size())
            opt.backup = args[++i];
        else if (a == "--all" && i + 1 < args.size())
            all = args[++i];
        else if (!a.empty() && a[0] == '-')
            return Usage("convert");
        else
            opt.works.push_back(a);
    }
    if (all.empty() == opt.works.empty() || opt.works.size() > 1)
        return Usage("convert");
    std::vector<std::string> works = opt.works;
    if (!all.empty()) {
        std::error_code ec;
        if (!std::filesystem::is_directory(all, ec))
            return Fail(all + ": the folder does not exist");
        for (const auto& w : ListaObras(all)) {
            // Only the works that can be converted are taken.
            Aplicacion probe(app.decl.ui, std::make_unique<MemorySettings>(), app.decl.DirPrograma);
            if (AbreObra(probe.decl, ConBarra(all) + w).convertible)
                works.push_back(ConBarra(all) + w);
        }
    }
    int worst = kOk;
    std::vector<std::string> jsons;
    for (const auto& w : works) {
        std::string json;
        // Each work starts from a fresh state, as when it is selected in the main window.
        Aplicacion fresh(app.decl.ui, std::make_unique<MemorySettings>(), app.decl.DirPrograma);
        const int rc = ConvertOne(fresh, w, opt, json);
        if (!json.empty())
            jsons.push_back(json);
        if (rc == kFailure || worst == kOk)
            worst = rc == kOk ? worst : rc;
    }
    if (opt.json) {
        if (all.empty() && jsons.size() == 1)
            std::cout << jsons[0] << "\n";
        else {
            std::cout << "[";
            for (size_t i = 0; i < jsons.size(); ++i)
                std::cout << (i ? "," : "") << jsons[i];
            std::cout << "]\n";
        }
    }
    if (!all.empty() && works.empty())
        std::cerr << "vardena: no work of version 3.00 or 3.01 in " << all << "\n";
    return worst;
}

Registrar convert("convert", "convert WORK [--dry-run] [--backup DIR] [--json] | convert --all FOLDER [...]",
                  "convert a work of version 3.00/3.01 to 3.50 (exit 0 done, 1 not converted or ended early, "
                  "3 done with refused records)",
                  CmdConvert);

}  // namespace
}  // namespace vardena::cli
