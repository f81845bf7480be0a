#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shell/linux/cQueryReg.h"
#include "support/TestSupport.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::ScratchDir;
using test::WriteBytes;

// An environment variable set, or unset (nullopt), for the life of the object.
class ScopedEnv {
public:
    ScopedEnv(std::string name, const std::optional<std::string>& value) : name_(std::move(name))
    {
        if (const char* old = std::getenv(name_.c_str()))
            old_ = old;
        Put(value);
    }
    ~ScopedEnv() { Put(old_); }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
    void Put(const std::optional<std::string>& value)
    {
        if (value)
            ::setenv(name_.c_str(), value->c_str(), 1);
        else
            ::unsetenv(name_.c_str());
    }
    std::string name_;
    std::optional<std::string> old_;
};

std::string MadeFolder(const std::string& path)
{
    fs::create_directories(path);
    return path;
}

// A home folder of its own, with the desktop's configuration and data folders inside it. The
// home lies one level down in a scratch folder, so that even a path that runs on from its name
// ("~Documentos") stays in the scratch folder.
struct FakeDesktop {
    ScratchDir scratch;
    std::string home = MadeFolder(scratch / "casa");
    ScopedEnv homeVar{"HOME", home};
    ScopedEnv configVar{"XDG_CONFIG_HOME", home + "/cfg"};
    ScopedEnv dataVar{"XDG_DATA_HOME", home + "/data"};
    cQueryRegLinux reg;

    // "~" at the front stands for the home folder.
    std::string At(const std::string& path) const
    {
        return !path.empty() && path[0] == '~' ? home + path.substr(1) : path;
    }
    std::string Folder(const std::string& path) const
    {
        fs::create_directories(At(path));
        return At(path);
    }
    void UserDirs(const std::string& text, const std::string& configDir = "~/cfg") const
    {
        WriteBytes(Folder(configDir) + "/user-dirs.dirs", text);
    }
};

TEST(ShellFoldersLinux, UserDirsFileNamesTheFolders)
{
    FakeDesktop desk;
    ScratchDir elsewhere;
    fs::create_directories(elsewhere / "Imágenes");
    for (const char* folder : {"~/Escritorio", "~/Documentos", "~/Comentado", "~/Otra\"Música", "~/Viejas",
                               "~/Plantillas"})
        desk.Folder(folder);
    desk.UserDirs("# This file is written by xdg-user-dirs-update\n"
                  "XDG_DESKTOP_DIR=\"$HOME/Escritorio\"\r\n"
                  "XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n"
                  "# XDG_DOCUMENTS_DIR=\"$HOME/Comentado\"\n"
                  "  XDG_PICTURES_DIR = \"" + elsewhere.path() + "/Imágenes/\"\n"
                  "XDG_MUSIC_DIR=\"$HOME/Otra\\\"Música\"\n"
                  "XDG_VIDEOS_DIR=\"$HOME/\"\n"
                  "XDG_TEMPLATES_DIR=\"$HOME/Viejas\"\n"
                  "XDG_TEMPLATES_DIR=\"$HOME/Plantillas\"\n");
    struct Row {
        std::string name, folder;
    };
    const std::vector<Row> rows = {
        {"Desktop", "~/Escritorio"},
        {"Personal", "~/Documentos"},
        {"PERSONAL", "~/Documentos"},
        {"My Pictures", elsewhere / "Imágenes"},
        {"My Music", "~/Otra\"Música"},
        {"My Video", "~"},
        {"Templates", "~/Plantillas"},
        {"AppData", "~/data"},
        {"Local AppData", "~/data"},
        {"Nothing Like It", ""},
        {"", ""},
    };
    for (const auto& r : rows)
        EXPECT_EQ(desk.reg.ShellFolders(r.name), desk.At(r.folder)) << r.name;
}

TEST(ShellFoldersLinux, WithoutAUsableEntryTheUsualFolderElseHome)
{
    struct Row {
        std::string what;
        std::optional<std::string> file;  // nullopt: there is no user-dirs.dirs
        std::vector<std::string> folders;
        std::string personal;
    };
    const std::vector<Row> rows = {
        {"no file", std::nullopt, {}, "~"},
        {"no file, ~/Documents", std::nullopt, {"~/Documents"}, "~/Documents"},
        {"empty file", "", {"~/Documents"}, "~/Documents"},
        {"folder not there", "XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n", {"~/Documents"}, "~/Documents"},
        {"folder not there, no ~/Documents", "XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n", {}, "~"},
        {"a file, not a folder", "XDG_DOCUMENTS_DIR=\"$HOME/cfg/user-dirs.dirs\"\n", {}, "~"},
        {"relative path", "XDG_DOCUMENTS_DIR=\"Documentos\"\n", {"~/Documentos"}, "~"},
        {"not quoted", "XDG_DOCUMENTS_DIR=$HOME/Documentos\n", {"~/Documentos"}, "~"},
        {"no closing quote", "XDG_DOCUMENTS_DIR=\"$HOME/Documentos\n", {"~/Documentos"}, "~"},
        {"$HOME run on", "XDG_DOCUMENTS_DIR=\"$HOMEDocumentos\"\n", {"~Documentos"}, "~"},
        {"another variable", "XDG_DOCUMENTS_DIRS=\"$HOME/Documentos\"\n", {"~/Documentos"}, "~"},
    };
    for (const auto& r : rows) {
        FakeDesktop desk;
        for (const auto& f : r.folders)
            desk.Folder(f);
        if (r.file)
            desk.UserDirs(*r.file);
        EXPECT_EQ(desk.reg.ShellFolders("Personal"), desk.At(r.personal)) << r.what;
        // Every folder of the user-dirs kind follows the same rule.
        EXPECT_EQ(desk.reg.ShellFolders("Desktop"), desk.At("~")) << r.what;
    }
}

TEST(ShellFoldersLinux, ConfigAndDataHomesTakeOnlyAbsolutePaths)
{
    struct Row {
        std::optional<std::string> value;  // nullopt: unset
        std::string personal;              // from the user-dirs.dirs that is read
        std::string appData;
    };
    const std::vector<Row> rows = {
        {std::nullopt, "~/PorDefecto", "~/.local/share"},
        {"", "~/PorDefecto", "~/.local/share"},
        {"relativo", "~/PorDefecto", "~/.local/share"},
        {"~/propio", "~/Propio", "~/propio"},
        {"~/propio/", "~/Propio", "~/propio"},
    };
    for (const auto& r : rows) {
        FakeDesktop desk;
        desk.Folder("~/PorDefecto");
        desk.Folder("~/Propio");
        desk.UserDirs("XDG_DOCUMENTS_DIR=\"$HOME/PorDefecto\"\n", "~/.config");
        desk.UserDirs("XDG_DOCUMENTS_DIR=\"$HOME/Propio\"\n", "~/propio");
        const std::optional<std::string> value = r.value ? std::optional(desk.At(*r.value)) : std::nullopt;
        ScopedEnv config("XDG_CONFIG_HOME", value);
        ScopedEnv data("XDG_DATA_HOME", value);
        const std::string what = r.value.value_or("(unset)");
        EXPECT_EQ(desk.reg.ShellFolders("Personal"), desk.At(r.personal)) << what;
        EXPECT_EQ(desk.reg.ShellFolders("AppData"), desk.At(r.appData)) << what;
    }
}

TEST(ShellFoldersLinux, HomeIsTakenWithoutItsFinalSlash)
{
    FakeDesktop desk;
    ScopedEnv home("HOME", desk.home + "/");
    desk.Folder("~/Documentos");
    desk.UserDirs("XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n");
    EXPECT_EQ(desk.reg.ShellFolders("Personal"), desk.At("~/Documentos"));
    EXPECT_EQ(desk.reg.ShellFolders("Desktop"), desk.home);
}

TEST(ShellFoldersLinux, GetFolderAddsTheSystemFolders)
{
    FakeDesktop desk;
    desk.Folder("~/Documentos");
    desk.UserDirs("XDG_DOCUMENTS_DIR=\"$HOME/Documentos\"\n");
    struct Row {
        std::string name, folder;
    };
    const std::vector<Row> rows = {
        {"WindowsDir", "/"},
        {"windowsdir", "/"},
        {"SystemDir", "/usr/lib/"},
        {"Personal", desk.At("~/Documentos")},
        {"AppData", desk.At("~/data")},
        {"Nothing Like It", ""},
    };
    for (const auto& r : rows)
        EXPECT_EQ(desk.reg.GetFolder(r.name), r.folder) << r.name;
    for (const char* name : {"WindowsDir", "SystemDir"}) {
        const std::string f = desk.reg.GetFolder(name);
        EXPECT_TRUE(fs::is_directory(f)) << name;
        EXPECT_EQ(desk.reg.ShellFolders(name), "") << name;
    }
}

TEST(ShellFoldersLinux, EveryOtherOperationAnswersNoRegistry)
{
    ScratchDir dir;
    cQueryRegLinux platform;
    cQueryReg& reg = platform;
    const std::string key = "HKCU\\Software\\Vardena 3\\Obra";
    const std::string saved = dir / "rama.reg";
    struct Row {
        std::string operation;
        std::function<bool()> answersNothing;
    };
    const std::vector<Row> rows = {
        {"SetReg", [&] { return !reg.SetReg(key, "N", "255", kRegDword); }},
        {"RegSetValue2", [&] { return !reg.RegSetValue2(key, "Carpeta", "/home/ana"); }},
        {"AsociarExt", [&] { return !reg.AsociarExt("ovd", "Vardena.Obra", "obra", "/usr/bin/vardena"); }},
        {"GetRegDWord", [&] { return reg.GetRegDWord(key, "N") == 0; }},
        {"GetReg", [&] { return reg.GetReg(key, "Carpeta").empty(); }},
        {"GetRegBinary", [&] { return reg.GetRegBinary(key, "N").empty(); }},
        {"GetRegString", [&] { return reg.GetRegString(key, "Carpeta").empty(); }},
        {"QueryRegBase", [&] { return !reg.QueryRegBase(key, "Carpeta").has_value(); }},
        {"OpenKeyEx", [&] { return reg.OpenKeyEx(key) == 0; }},
        {"OpenKeyQuery", [&] { return reg.OpenKeyQuery(key, "Carpeta").empty(); }},
        {"EnumValueString", [&] { return reg.EnumValueString(1, 0).empty(); }},
        {"EnumValue", [&] { return reg.EnumValue(1, 0).empty(); }},
        {"QueryInfoKey",
         [&] {
             int subKeys = -1, values = -1;
             return !reg.QueryInfoKey(1, subKeys, values) && subKeys == 0 && values == 0;
         }},
        {"EnumKeyEx", [&] { return reg.EnumKeyEx(1, 0).empty(); }},
        {"CloseKey",
         [&] {
             reg.CloseKey(1);
             return true;
         }},
        {"EnumKeys", [&] { return reg.EnumKeys("HKCU\\Software").empty(); }},
        {"EnumValues", [&] { return reg.EnumValues(key).empty(); }},
        {"RegSaveKey", [&] { return !reg.RegSaveKey(key, saved) && !fs::exists(saved); }},
        {"DesasociarExt", [&] { return !reg.DesasociarExt("ovd", "Vardena.Obra"); }},
        {"DeleteKey", [&] { return !reg.DeleteKey(key); }},
        {"DeleteKeyWin95", [&] { return !reg.DeleteKeyWin95("HKCU\\Software"); }},
    };
    // The writers come first: what they were asked to store must not show up in the readers.
    for (const auto& r : rows)
        EXPECT_TRUE(r.answersNothing()) << r.operation;
}

}  // namespace
}  // namespace vardena
