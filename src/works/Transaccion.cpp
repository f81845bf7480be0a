#include "works/Transaccion.h"

#include <optional>

namespace vardena {
namespace {

constexpr const char* kCabecera = "Vardena conversion journal";

// File names are stored with bytes below 0x20 and "%" written as %XX, so that a tab or a line
// end in a name cannot break the journal's lines.
std::string Escapa(const std::string& name)
{
    static const char* hex = "0123456789ABCDEF";
    std::string out;
    for (unsigned char c : name) {
        if (c < 0x20 || c == '%') {
            out += '%';
            out += hex[c >> 4];
            out += hex[c & 15];
        } else {
            out += static_cast<char>(c);
        }
    }
    return out;
}

std::optional<std::string> Desescapa(const std::string& text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            out += text[i];
            continue;
        }
        if (i + 2 >= text.size())
            return std::nullopt;
        auto digit = [](char c) -> int {
            if (c >= '0' && c <= '9')
                return c - '0';
            if (c >= 'A' && c <= 'F')
                return c - 'A' + 10;
            return -1;
        };
        const int hi = digit(text[i + 1]), lo = digit(text[i + 2]);
        if (hi < 0 || lo < 0)
            return std::nullopt;
        out += static_cast<char>(hi * 16 + lo);
        i += 2;
    }
    return out;
}

bool NombreSimple(const std::string& name) { return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos; }

}  // namespace

std::string TextoDiario(const Diario& diario)
{
    std::string out = std::string(kCabecera) + "\n";
    out += std::string("phase\t") + (diario.fase == Diario::Fase::Commit ? "commit" : "stage") + "\n";
    out += "tag\t" + diario.tag + "\n";
    for (const auto& e : diario.entries)
        out += Escapa(e.staged) + "\t" + Escapa(e.target) + "\n";
    out += "end\n";
    return out;
}

bool LeeDiario(const std::string& text, Diario& diario)
{
    const std::vector<std::string> lines = SplitLines(text);
    // The last line proves the journal was written whole.
    if (lines.size() < 4 || lines[0] != kCabecera || lines.back() != "end")
        return false;
    Diario d;
    if (lines[1] == "phase\tcommit")
        d.fase = Diario::Fase::Commit;
    else if (lines[1] != "phase\tstage")
        return false;
    if (lines[2].rfind("tag\t", 0) != 0)
        return false;
    d.tag = lines[2].substr(4);
    if (d.tag.empty() || d.tag.find('/') != std::string::npos)
        return false;
    for (size_t i = 3; i + 1 < lines.size(); ++i) {
        const size_t tab = lines[i].find('\t');
        if (tab == std::string::npos)
            return false;
        auto staged = Desescapa(lines[i].substr(0, tab));
        auto target = Desescapa(lines[i].substr(tab + 1));
        if (!staged || !target || !NombreSimple(*staged) || !NombreSimple(*target))
            return false;
        d.entries.push_back({*staged, *target});
    }
    diario = std::move(d);
    return true;
}

void EscribeDiario(const std::string& folder, const Diario& diario)
{
    WriteFileDurable((fs::path(folder) / kJournalName).string(), TextoDiario(diario));
}

void BorraDiario(const std::string& folder)
{
    std::error_code ec;
    fs::remove(fs::path(folder) / kJournalName, ec);
    SyncFolder(folder);
}

Recuperacion RecuperaObra(const std::string& folder)
{
    Recuperacion r;
    // Cheap look first: most works hold nothing of ours.
    std::vector<std::string> propios;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (IsOwnWorkFile(name))
            propios.push_back(name);
    }
    if (propios.empty())
        return r;
    const std::optional<WorkLock> lock = WorkLock::Try(folder);
    if (!lock) {
        r.resultado = Recuperacion::Resultado::Ocupada;
        return r;
    }
    // A lock file alone was left by a program that stopped while it held it: taking the lock
    // and letting it go removes it.
    std::erase(propios, std::string(kLockFileName));
    if (propios.empty())
        return r;
    const std::string journalPath = (fs::path(folder) / kJournalName).string();
    Diario diario;
    bool hayDiario = false;
    if (auto text = ReadFileIfExists(journalPath)) {
        // A journal cut short was being written when the run stopped, before any commit: the
        // commit journal is complete before the first rename.
        hayDiario = LeeDiario(*text, diario);
        if (!hayDiario)
            diario.fase = Diario::Fase::Stage;
    }
    if (hayDiario && diario.fase == Diario::Fase::Commit) {
        CommitStaged(folder, diario.entries);
        r.resultado = Recuperacion::Resultado::Terminada;
        r.archivos = static_cast<int>(diario.entries.size());
    } else {
        r.resultado = (hayDiario || fs::exists(journalPath, ec)) ? Recuperacion::Resultado::Descartada
                                                                  : Recuperacion::Resultado::Limpiada;
    }
    // Everything else of ours is left over: staged files of a run thrown away, temporary files
    // of a save that was stopped, and the journal itself last.
    for (const auto& name : propios) {
        if (name == kJournalName)
            continue;
        if (fs::remove(fs::path(folder) / name, ec))
            ++r.archivos;
    }
    BorraDiario(folder);
    return r;
}

}  // namespace vardena
