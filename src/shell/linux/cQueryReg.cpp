#include "shell/linux/cQueryReg.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string_view>

#include "base/FileIo.h"

namespace vardena {

namespace {

bool Same(std::string_view a, std::string_view b)
{
    auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (lower(a[i]) != lower(b[i]))
            return false;
    return true;
}

bool IsFolder(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::is_directory(path, ec);
}

// A path without final slashes, the root excepted.
std::string Trimmed(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// $HOME; when it is unset or empty, the home of the user's account, else the root.
std::string Home()
{
    if (const char* h = std::getenv("HOME"); h && *h)
        return Trimmed(h);
    if (const passwd* pw = getpwuid(getuid()); pw && pw->pw_dir && *pw->pw_dir)
        return Trimmed(pw->pw_dir);
    return "/";
}

// `rest` ("" or "/..." ) below `home`, without doubling the root's slash.
std::string Below(const std::string& home, const std::string& rest)
{
    const std::string path = (home == "/" ? std::string() : home) + rest;
    return path.empty() ? "/" : Trimmed(path);
}

// An XDG base folder: the variable when it holds an absolute path (the XDG rule ignores a
// relative one), else `underHome` below the home folder.
std::string BaseDir(const char* variable, const char* underHome)
{
    if (const char* x = std::getenv(variable); x && *x == '/')
        return Trimmed(x);
    return Below(Home(), std::string("/") + underHome);
}

// The folder given to `variable` in user-dirs.dirs, written by xdg-user-dirs-update as
//     XDG_DOCUMENTS_DIR="$HOME/Documentos"
// The value is "$HOME", "$HOME/..." or an absolute path, in double quotes, with "\" escaping the
// next character. Comments begin with "#"; the last line for a variable wins, as in the shell;
// lines of any other form are passed over.
std::optional<std::string> UserDirsEntry(std::string_view variable)
{
    std::optional<std::string> bytes;
    try {
        bytes = ReadFileIfExists(BaseDir("XDG_CONFIG_HOME", ".config") + "/user-dirs.dirs");
    } catch (const FileError&) {
    }
    if (!bytes)
        return std::nullopt;
    std::optional<std::string> found;
    for (const std::string& line : SplitLines(*bytes)) {
        std::string_view s = line;
        auto skipBlanks = [&] {
            while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
                s.remove_prefix(1);
        };
        skipBlanks();
        if (!s.starts_with(variable))
            continue;
        s.remove_prefix(variable.size());
        skipBlanks();
        if (!s.starts_with('='))
            continue;
        s.remove_prefix(1);
        skipBlanks();
        if (!s.starts_with('"'))
            continue;
        s.remove_prefix(1);
        const bool fromHome = s.starts_with("$HOME") && s.size() > 5 && (s[5] == '/' || s[5] == '"');
        if (fromHome)
            s.remove_prefix(5);
        else if (!s.starts_with('/'))
            continue;
        std::string rest;
        bool closed = false;
        for (size_t i = 0; i < s.size(); ++i) {
            if (s[i] == '\\' && i + 1 < s.size()) {
                rest += s[++i];
            } else if (s[i] == '"') {
                closed = true;
                break;
            } else {
                rest += s[i];
            }
        }
        if (closed)
            found = fromHome ? Below(Home(), rest) : Trimmed(rest);
    }
    return found;
}

struct UserDir {
    const char* name;      // shell folder name
    const char* variable;  // in user-dirs.dirs
    const char* usual;     // folder below home when the file names none
};
constexpr UserDir kUserDirs[] = {
    {"Desktop", "XDG_DESKTOP_DIR", "Desktop"},     {"Personal", "XDG_DOCUMENTS_DIR", "Documents"},
    {"My Pictures", "XDG_PICTURES_DIR", "Pictures"}, {"My Music", "XDG_MUSIC_DIR", "Music"},
    {"My Video", "XDG_VIDEOS_DIR", "Videos"},       {"Templates", "XDG_TEMPLATES_DIR", "Templates"},
};

// The first that is an existing folder: the file's entry, the usual folder, the home folder.
// The answer is offered as a place to open and save works, so a folder that is not there is
// never answered.
std::string FolderOf(const UserDir& dir)
{
    if (auto entry = UserDirsEntry(dir.variable); entry && IsFolder(*entry))
        return *entry;
    const std::string home = Home();
    const std::string usual = Below(home, std::string("/") + dir.usual);
    return IsFolder(usual) ? usual : home;
}

}  // namespace

std::string cQueryRegLinux::ShellFolders(const std::string& name)
{
    for (const auto& dir : kUserDirs)
        if (Same(name, dir.name))
            return FolderOf(dir);
    if (Same(name, "AppData") || Same(name, "Local AppData"))
        return BaseDir("XDG_DATA_HOME", ".local/share");
    return {};
}

std::string cQueryRegLinux::GetFolder(const std::string& name)
{
    if (Same(name, "WindowsDir"))
        return "/";
    if (Same(name, "SystemDir"))
        return "/usr/lib/";
    return ShellFolders(name);
}

}  // namespace vardena
