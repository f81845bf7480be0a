// vardena convert: carries a work of version 3.00 or 3.01 into the named format of 3.50.

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <unistd.h>

#include "Commands.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "base/FileIo.h"
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
        // Why the run stopped is said once, below the records.
        if (e.status == ConversionEntry::Status::Failed)
            continue;
        out << "  " << StatusName(e.status) << ": " << ArchivoDe(e.file);
        if (!e.form.empty())
            out << " [" << e.form << "]";
        if (!e.written.empty() && ArchivoDe(e.written) != ArchivoDe(e.file))
            out << " -> " << ArchivoDe(e.written);
        out << ": " << e.note << "\n";
    }
    out << "  records: " << log.records << (log.completed ? "" : " (the run ended early)") << "\n";
    for (const auto& line : log.unreadGeneralData)
        out << "  general data not read: " << line << "\n";
    if (!log.error.empty())
        out << "  " << log.error << "\n";
}

const char* EndName(ConversionLog::End e)
{
    switch (e) {
    case ConversionLog::End::None: return "";
    case ConversionLog::End::Busy: return "busy";
    case ConversionLog::End::Refused: return "refused";
    case ConversionLog::End::RolledBack: return "rolled-back";
    case ConversionLog::End::Pending: return "pending";
    }
    return "";
}

std::string JsonLog(const ConversionLog& log, bool dryRun, const std::string& refusal)
{
    std::ostringstream o;
    o << "{\"work\":" << Json(log.work) << ",\"dryRun\":" << (dryRun ? "true" : "false")
      << ",\"completed\":" << (log.completed ? "true" : "false") << ",\"records\":" << log.records;
    if (!refusal.empty())
        o << ",\"refused\":" << Json(refusal);
    if (!log.error.empty())
        o << ",\"error\":" << Json(log.error) << ",\"end\":" << Json(EndName(log.end));
    if (!log.unreadGeneralData.empty()) {
        o << ",\"unreadGeneralData\":[";
        for (size_t i = 0; i < log.unreadGeneralData.size(); ++i)
            o << (i ? "," : "") << Json(log.unreadGeneralData[i]);
        o << "]";
    }
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

// Ctrl-C, SIGTERM and SIGHUP ask the run to stop between two records; it then throws away what
// it staged, so the work is left as it was. Once the renames have begun they are finished.
volatile std::sig_atomic_t gStop = 0;
extern "C" void OnStopSignal(int) { gStop = 1; }

void CatchStopSignals()
{
    struct sigaction sa {};
    sa.sa_handler = OnStopSignal;
    sigemptyset(&sa.sa_mask);
    for (int sig : {SIGINT, SIGTERM, SIGHUP})
        sigaction(sig, &sa, nullptr);
}

// What became of each work, for the closing total.
struct Summary {
    int converted = 0;
    std::string lastConverted;  // the work's folder, as the log names it
    std::vector<std::pair<std::string, std::string>> refused;     // work, the sentence that says why
    std::vector<std::pair<std::string, std::string>> rolledBack;  // work, the sentence that says why
    std::vector<std::pair<std::string, std::string>> leftAlone;   // work, why (not of 3.00/3.01)
};

// Converts one work; returns the exit code.
int ConvertOne(Aplicacion& app, const std::string& work, const Options& opt, const std::string& backupDir,
               std::string& json, Summary& summary)
{
    Declaraciones& d = app.decl;
    ObraInfo info = AbreObra(d, work);
    if (const std::string note = TextoRecuperacion(d, info); !note.empty())
        std::cerr << "vardena: " << note << "\n";
    ConversionLog log;
    log.work = info.folder;
    if (!info.convertible) {
        std::string why = !info.hasDatos ? Mensaje(d, 1427, {info.folder})
                                         : Mensaje(d, 1428, {info.versionText});
        const std::string msg = Mensaje(d, 1429, {info.folder, why});
        summary.leftAlone.push_back({info.folder, why});
        if (opt.json)
            json = JsonLog(log, opt.dryRun, msg);
        else if (opt.works.size() == 1)
            std::cerr << "vardena: error: " << msg << "\n";
        return kFailure;
    }
    if (!backupDir.empty() && !opt.dryRun) {
        try {
            const std::string copy = CopiaDeSeguridad(d, info.folder, ConBarra(backupDir) + ArchivoDe(info.folder));
            std::cerr << "vardena: " << Mensaje(d, 1430, {info.folder, copy}) << "\n";
        } catch (const FileError& e) {
            const std::string msg = Mensaje(d, 1401, {info.folder, e.what()});
            summary.refused.push_back({info.folder, msg});
            log.error = msg;
            log.end = ConversionLog::End::Refused;
            if (opt.json)
                json = JsonLog(log, opt.dryRun, msg);
            else
                std::cerr << "vardena: error: " << msg << "\n";
            return kFailure;
        }
    }
    std::vector<std::string> list2;
    ConversionOptions co;
    co.dryRun = opt.dryRun;
    co.cancelled = [] { return gStop != 0; };
    // On a terminal the count stays on one line; in a log, a line per record.
    const bool terminal = ::isatty(STDERR_FILENO) != 0;
    co.progress = [terminal](int done, const std::string& what) {
        if (terminal)
            std::cerr << "\rvardena: " << done << " records  " << what << "\033[K" << std::flush;
        else
            std::cerr << "vardena: " << done << " records  " << what << "\n";
    };
    log = Convierte(d, list2, co);
    log.unreadGeneralData = info.unreadLines;
    if (terminal && log.records > 0)
        std::cerr << "\r\033[K";
    if (opt.json)
        json = JsonLog(log, opt.dryRun, {});
    else
        PrintLog(log, opt.dryRun, std::cout);
    if (!log.completed) {
        if (log.end == ConversionLog::End::Busy || log.end == ConversionLog::End::Refused)
            summary.refused.push_back({info.folder, log.error});
        else
            summary.rolledBack.push_back({info.folder, log.error});
        return kFailure;
    }
    if (!opt.dryRun) {
        ++summary.converted;
        summary.lastConverted = info.folder;
    }
    for (const auto& e : log.entries)
        if (e.status == ConversionEntry::Status::Refused)
            return kRefusedRecords;
    return kOk;
}

int CmdConvert(Aplicacion& app, const std::vector<std::string>& args)
{
    Options opt;
    std::string all;
    bool allFlag = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (a == "--dry-run")
            opt.dryRun = true;
        else if (a == "--json")
            opt.json = true;
        // An option's value is never another option.
        else if (a == "--backup" && i + 1 < args.size() && args[i + 1].rfind("--", 0) != 0)
            opt.backup = args[++i];
        // "--all" makes the one folder named a folder of works, wherever the option stands.
        else if (a == "--all")
            allFlag = true;
        else if (!a.empty() && a[0] == '-')
            return Usage("convert");
        else
            opt.works.push_back(a);
    }
    if (opt.works.size() != 1)
        return Usage("convert");
    if (allFlag) {
        all = opt.works[0];
        opt.works.clear();
    }
    const Declaraciones& d = app.decl;
    std::vector<std::string> works = opt.works;
    if (!all.empty()) {
        std::error_code ec;
        if (!std::filesystem::is_directory(all, ec))
            return Fail(Mensaje(d, 1431, {all}));
        for (const auto& w : ListaObras(all))
            works.push_back(ConBarra(all) + w);
    }
    // The backup folder is made by this run: an existing one, or one inside a work, is refused
    // before anything is copied or converted.
    std::string backupDir;
    if (!opt.backup.empty() && !opt.dryRun) {
        if (const std::string why = CopiaNoAdmitida(d, works, opt.backup); !why.empty())
            return Fail(Mensaje(d, 1414, {why}));
        std::error_code ec;
        backupDir = std::filesystem::weakly_canonical(std::filesystem::absolute(opt.backup), ec).string();
    }
    CatchStopSignals();
    int worst = kOk;
    Summary summary;
    std::vector<std::string> jsons;
    for (const auto& w : works) {
        if (gStop)
            break;
        std::string json;
        // Each work starts from a fresh state, as when it is selected in the main window.
        Aplicacion fresh(app.decl.ui, std::make_unique<MemorySettings>(), app.decl.DirPrograma);
        const size_t notConvertibleBefore = summary.leftAlone.size();
        int rc;
        try {
            rc = ConvertOne(fresh, w, opt, backupDir, json, summary);
        } catch (const FileError& e) {
            const std::string msg = Mensaje(d, 1401, {w, e.what()});
            summary.refused.push_back({w, msg});
            std::cerr << "vardena: error: " << msg << "\n";
            rc = kFailure;
        }
        // In a folder of works, one that is not of version 3.00 or 3.01 is simply not taken.
        const bool notConvertible = summary.leftAlone.size() > notConvertibleBefore;
        if (!all.empty() && notConvertible && rc == kFailure) {
            rc = kOk;
            json.clear();
        }
        if (!json.empty())
            jsons.push_back(json);
        if (rc == kFailure || worst == kOk)
            worst = rc == kOk ? worst : rc;
    }
    if (!backupDir.empty()) {
        // A backup folder left empty (every work refused before its copy) is not kept.
        std::error_code ec;
        std::filesystem::remove(backupDir, ec);
    }
    const std::string total = Mensaje(d, 1423, {std::to_string(summary.converted), std::to_string(summary.refused.size()),
                                                std::to_string(summary.rolledBack.size()),
                                                std::to_string(summary.leftAlone.size())});
    if (opt.json) {
        if (all.empty() && jsons.size() == 1) {
            std::cout << jsons[0] << "\n";
        } else {
            auto pairs = [](const std::vector<std::pair<std::string, std::string>>& v) {
                std::string o = "[";
                for (size_t i = 0; i < v.size(); ++i)
                    o += (i ? "," : "") + std::string("{\"work\":") + Json(v[i].first) + ",\"why\":" + Json(v[i].second) + "}";
                return o + "]";
            };
            std::cout << "{\"works\":[";
            for (size_t i = 0; i < jsons.size(); ++i)
                std::cout << (i ? "," : "") << jsons[i];
            std::cout << "],\"converted\":" << summary.converted << ",\"refused\":" << pairs(summary.refused)
                      << ",\"rolledBack\":" << pairs(summary.rolledBack) << ",\"notConvertible\":"
                      << pairs(summary.leftAlone) << ",\"verdict\":" << Json(total) << "}\n";
        }
        return worst;
    }
    if (opt.dryRun)
        return worst;
    // The verdict is the last line.
    if (all.empty()) {
        if (summary.converted == 1)
            std::cout << Mensaje(d, 1402, {summary.lastConverted}) << "\n";
        else if (!summary.refused.empty())
            std::cout << summary.refused[0].second << "\n";
        else if (!summary.rolledBack.empty())
            std::cout << summary.rolledBack[0].second << "\n";
        else if (!summary.leftAlone.empty())
            std::cout << Mensaje(d, 1429, {summary.leftAlone[0].first, summary.leftAlone[0].second}) << "\n";
        return worst;
    }
    for (const auto& [work, why] : summary.refused)
        std::cout << "  " << why << "\n";
    for (const auto& [work, why] : summary.rolledBack)
        std::cout << "  " << why << "\n";
    for (const auto& [work, why] : summary.leftAlone)
        std::cout << "  " << ArchivoDe(work) << ": " << why << "\n";
    std::cout << total << "\n";
    return worst;
}

Registrar convert("convert", "convert WORK [--dry-run] [--backup DIR] [--json] | convert --all FOLDER [...]",
                  "convert a work of version 3.00/3.01 to 3.50 (exit 0 done, 1 not converted or ended early, "
                  "3 done with refused records)",
                  CmdConvert);

}  // namespace
}  // namespace vardena::cli
