#include "shell/linux/Papelera.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

#include "shell/linux/TextoLinux.h"
#include "base/FileIo.h"

namespace vardena {

namespace {

namespace fs = std::filesystem;

constexpr int kMaxNumbered = 100000;

bool Exists(const fs::path& p)
{
    struct stat st;
    return ::lstat(p.c_str(), &st) == 0;
}

// A folder that exists (made if needed), is a real folder and can be written.
bool UsableFolder(const fs::path& p, mode_t mode)
{
    struct stat st;
    if (::lstat(p.c_str(), &st) != 0) {
        std::error_code ec;
        fs::create_directories(p.parent_path(), ec);
        if (::mkdir(p.c_str(), mode) != 0 && errno != EEXIST)
            return false;
        if (::lstat(p.c_str(), &st) != 0)
            return false;
    }
    return S_ISDIR(st.st_mode) && ::access(p.c_str(), W_OK | X_OK) == 0;
}

bool UsableTrash(const fs::path& trash)
{
    return UsableFolder(trash, 0700) && UsableFolder(trash / "files", 0700) && UsableFolder(trash / "info", 0700);
}

std::string HomeTrash()
{
    if (const char* x = std::getenv("XDG_DATA_HOME"); x && *x == '/')
        return std::string(x) + "/Trash";
    const char* h = std::getenv("HOME");
    return std::string(h && *h ? h : ".") + "/.local/share/Trash";
}

// The device of `p`, or of its nearest existing ancestor.
dev_t DeviceOf(fs::path p)
{
    struct stat st;
    while (::stat(p.c_str(), &st) != 0) {
        if (p == p.parent_path())
            return 0;
        p = p.parent_path();
    }
    return st.st_dev;
}

// The mount point of the file system that holds `p`.
fs::path TopDir(const fs::path& p, dev_t dev)
{
    fs::path top = p.parent_path();
    struct stat st;
    while (top != top.parent_path() && ::stat(top.parent_path().c_str(), &st) == 0 && st.st_dev == dev)
        top = top.parent_path();
    return top;
}

// "name.ext" numbered n: "name.ext" for 1, then "name.2.ext", "name.3.ext"...
std::string NumberedName(const std::string& name, int n)
{
    if (n == 1)
        return name;
    const size_t dot = name.rfind('.');
    if (dot == std::string::npos || dot == 0)
        return name + "." + std::to_string(n);
    return name.substr(0, dot) + "." + std::to_string(n) + name.substr(dot);
}

std::string Now()
{
    std::time_t t = std::time(nullptr);
    std::tm tm{};
    ::localtime_r(&t, &tm);
    char buf[32];
    std::strftime(buf, sizeof buf, "%Y-%m-%dT%H:%M:%S", &tm);
    return buf;
}

std::string Why(const fs::path& p, const std::string& what) { return p.string() + ": " + what; }

// Claims a name in the trash by creating its info file exclusively, so that two programs trashing
// at once never pick the same name.
std::optional<std::string> ReserveName(const fs::path& trash, const std::string& base)
{
    for (int n = 1; n < kMaxNumbered; ++n) {
        const std::string name = NumberedName(base, n);
        const fs::path info = trash / "info" / (name + ".trashinfo");
        int fd = ::open(info.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0) {
            if (errno == EEXIST)
                continue;
            return std::nullopt;
        }
        ::close(fd);
        if (!Exists(trash / "files" / name))
            return name;
        std::error_code ec;
        fs::remove(info, ec);
    }
    return std::nullopt;
}

EnvioPapelera IntoTrash(const fs::path& src, const fs::path& trash, const std::string& pathText, const std::string& nombre)
{
    EnvioPapelera r;
    auto name = ReserveName(trash, nombre);
    if (!name) {
        r.error = Why(trash / "info", "no name can be reserved in the trash");
        return r;
    }
    const fs::path info = trash / "info" / (*name + ".trashinfo");
    const fs::path dest = trash / "files" / *name;
    std::error_code ec;
    try {
        WriteFileAtomic(info.string(),
                        "[Trash Info]\nPath=" + CodificaRuta(pathText) + "\nDeletionDate=" + Now() + "\n");
    } catch (const FileError& e) {
        fs::remove(info, ec);
        r.error = e.what();
        return r;
    }
    if (!MueveArchivo(src.string(), dest.string(), &r.error)) {
        // A complete copy left behind keeps its info, so that it can still be restored.
        if (Exists(dest))
            r.destino = dest.string();
        else
            fs::remove(info, ec);
        return r;
    }
    r.ok = true;
    r.destino = dest.string();
    r.info = info.string();
    return r;
}

// The trash of the volume mounted at `top`: $top/.Trash/$uid when the administrator made a shared
// .Trash (a sticky folder, no link), else $top/.Trash-$uid. None is made at the system's root.
std::optional<fs::path> VolumeTrash(const fs::path& top)
{
    const std::string uid = std::to_string(::getuid());
    struct stat st;
    const fs::path shared = top / ".Trash";
    if (::lstat(shared.c_str(), &st) == 0 && S_ISDIR(st.st_mode) && (st.st_mode & S_ISVTX)) {
        if (UsableTrash(shared / uid))
            return shared / uid;
    }
    const fs::path own = top / (".Trash-" + uid);
    const bool present = ::lstat(own.c_str(), &st) == 0;
    if (present && (!S_ISDIR(st.st_mode) || st.st_uid != ::getuid()))
        return std::nullopt;
    if ((present || top != top.root_path()) && UsableTrash(own))
        return own;
    return std::nullopt;
}

// The last resort: a ".papelera" folder beside the file.
EnvioPapelera IntoLocalBin(const fs::path& src, const std::string& nombre)
{
    EnvioPapelera r;
    const fs::path bin = src.parent_path() / ".papelera";
    if (!UsableFolder(bin, 0755)) {
        r.error = Why(bin, "the folder cannot be made or written");
        return r;
    }
    for (int n = 1; n < kMaxNumbered; ++n) {
        const fs::path dest = bin / NumberedName(nombre, n);
        if (Exists(dest))
            continue;
        r.ok = MueveArchivo(src.string(), dest.string(), &r.error);
        if (r.ok)
            r.destino = dest.string();
        return r;
    }
    r.error = Why(bin, "has no free name");
    return r;
}

struct TrashInfo {
    std::string path;
    std::string date;
};

std::optional<TrashInfo> ParseTrashInfo(const std::string& text)
{
    TrashInfo ti;
    bool inGroup = false, any = false;
    for (const std::string& line : SplitLines(text)) {
        if (!line.empty() && line.front() == '[') {
            inGroup = line == "[Trash Info]";
        } else if (inGroup && line.rfind("Path=", 0) == 0) {
            ti.path = DecodificaRuta(line.substr(5));
            any = !ti.path.empty();
        } else if (inGroup && line.rfind("DeletionDate=", 0) == 0) {
            ti.date = line.substr(13);
        }
    }
    if (!any)
        return std::nullopt;
    return ti;
}

// A relative Path= of a volume's trash counts from the volume's top folder.
fs::path OriginalPath(const fs::path& trash, const std::string& path)
{
    fs::path p(path);
    if (p.is_absolute())
        return p;
    fs::path top = trash.parent_path();
    if (top.filename() == ".Trash")
        top = top.parent_path();
    return top / p;
}

}  // namespace

std::string CarpetaPapelera() { return HomeTrash(); }

std::string CodificaRuta(std::string_view path)
{
    static const char* hex = "0123456789ABCDEF";
    std::string out;
    for (char ch : path) {
        const auto c = static_cast<unsigned char>(ch);
        if (std::isalnum(c) && c < 0x80)
            out += ch;
        else if (std::strchr("-._~/", ch) && ch != '\0')
            out += ch;
        else {
            out += '%';
            out += hex[c >> 4];
            out += hex[c & 15];
        }
    }
    return out;
}

std::string DecodificaRuta(std::string_view text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() && DigitoHex(text[i + 1]) >= 0 && DigitoHex(text[i + 2]) >= 0) {
            out += static_cast<char>(DigitoHex(text[i + 1]) * 16 + DigitoHex(text[i + 2]));
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

bool MueveArchivo(const std::string& from, const std::string& to, std::string* error)
{
    auto fail = [&](const std::string& why) {
        if (error)
            *error = why;
        return false;
    };
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    int e = errno;
    if (e == EINVAL || e == ENOSYS || e == ENOTSUP) {
        // A file system without the no-replace rename: look first, then rename.
        if (Exists(to))
            return fail(Why(to, "already exists"));
        if (::rename(from.c_str(), to.c_str()) == 0)
            return true;
        e = errno;
    }
    if (e != EXDEV)
        return fail(Why(from, "cannot be moved to " + to + ": " + std::strerror(e)));
    if (Exists(to))
        return fail(Why(to, "already exists"));
    std::error_code ec;
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove_all(to, ignored);
        return fail(Why(from, "cannot be copied to " + to + ": " + ec.message()));
    }
    fs::remove_all(from, ec);
    if (ec)
        return fail(Why(from, "was copied to " + to + " but cannot be removed: " + ec.message()));
    return true;
}

EnvioPapelera EnviaAPapelera(const std::string& path, const std::string& comoRuta)
{
    EnvioPapelera r;
    if (path.empty()) {
        r.error = "no file was given to the recycle bin";
        return r;
    }
    fs::path src = fs::absolute(path).lexically_normal();
    if (src.filename().empty())
        src = src.parent_path();
    struct stat st;
    if (::lstat(src.c_str(), &st) != 0) {
        r.error = Why(src, "does not exist");
        return r;
    }
    if (src == src.root_path()) {
        r.error = Why(src, "is the root folder");
        return r;
    }
    const fs::path home = fs::path(HomeTrash()).lexically_normal();
    if (std::mismatch(src.begin(), src.end(), home.begin(), home.end()).first == src.end()) {
        r.error = Why(src, "holds the trash itself");
        return r;
    }

    // Each try either moves the file or leaves it where it was; only a copy whose original could
    // not be wholly removed (destino set, not ok) ends the tries.
    std::string why;
    // The place the entry is recorded as coming from: the file's own, or the one it stands for.
    const fs::path como = comoRuta.empty() ? src : fs::absolute(comoRuta).lexically_normal();
    const std::string nombre = como.filename().string();
    auto tryTrash = [&](const fs::path& trash, const std::string& pathText) {
        r = IntoTrash(src, trash, pathText, nombre);
        if (!r.ok)
            why += (why.empty() ? "" : "; ") + r.error;
        return r.ok || !r.destino.empty();
    };
    const bool homeUsable = UsableTrash(home);
    if (st.st_dev == DeviceOf(home)) {
        if (homeUsable && tryTrash(home, como.string()))
            return r;
    } else {
        const fs::path top = TopDir(src, st.st_dev);
        if (auto vt = VolumeTrash(top); vt && tryTrash(*vt, como.lexically_relative(top).string()))
            return r;
        if (homeUsable && tryTrash(home, como.string()))
            return r;
    }
    r = IntoLocalBin(src, nombre);
    if (!r.ok && !why.empty())
        r.error = why + "; " + r.error;
    return r;
}

std::vector<ElementoPapelera> ListaPapelera(const std::string& papelera)
{
    const fs::path trash = papelera.empty() ? fs::path(HomeTrash()) : fs::path(papelera);
    std::vector<ElementoPapelera> out;
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(trash / "info", ec)) {
        if (e.path().extension() != ".trashinfo")
            continue;
        std::optional<std::string> bytes;
        try {
            bytes = ReadFileIfExists(e.path().string());
        } catch (const FileError&) {
            continue;
        }
        auto ti = bytes ? ParseTrashInfo(*bytes) : std::nullopt;
        if (!ti)
            continue;
        out.push_back({e.path().stem().string(), OriginalPath(trash, ti->path).string(), ti->date});
    }
    std::sort(out.begin(), out.end(), [](const auto& a, const auto& b) { return a.nombre < b.nombre; });
    return out;
}

bool RestauraDePapelera(const std::string& nombre, std::string* error, const std::string& papelera)
{
    auto fail = [&](const std::string& why) {
        if (error)
            *error = why;
        return false;
    };
    const fs::path trash = papelera.empty() ? fs::path(HomeTrash()) : fs::path(papelera);
    if (nombre.empty() || nombre.find('/') != std::string::npos || nombre == "." || nombre == "..")
        return fail("'" + nombre + "' is not the name of an entry of the trash " + trash.string());
    const fs::path info = trash / "info" / (nombre + ".trashinfo");
    std::optional<std::string> bytes;
    try {
        bytes = ReadFileIfExists(info.string());
    } catch (const FileError& e) {
        return fail(e.what());
    }
    if (!bytes)
        return fail(Why(info, "does not exist"));
    auto ti = ParseTrashInfo(*bytes);
    if (!ti)
        return fail(Why(info, "has no [Trash Info] Path= line"));
    const fs::path original = OriginalPath(trash, ti->path);
    if (Exists(original))
        return fail(Why(original, "already exists; the trashed copy stays in the trash"));
    std::error_code ec;
    fs::create_directories(original.parent_path(), ec);
    if (!MueveArchivo((trash / "files" / nombre).string(), original.string(), error))
        return false;
    fs::remove(info, ec);
    return true;
}

bool PapeleraLinux::APapelera(const std::string& path) { return EnviaAPapelera(path).ok; }

bool PapeleraLinux::CopiaAPapelera(const std::string& path)
{
    // The copy stands beside the file, on its volume, hidden and under a name of its own; it goes
    // to the trash as the file itself, or is taken away again.
    const fs::path original = fs::absolute(path).lexically_normal();
    const fs::path copia = original.parent_path() / ("." + original.filename().string() + ".vardena-" + RandomHex(8));
    std::error_code ec;
    if (!fs::copy_file(original, copia, ec))
        return false;
    if (EnviaAPapelera(copia.string(), original.string()).ok)
        return true;
    fs::remove(copia, ec);
    return false;
}

}  // namespace vardena
