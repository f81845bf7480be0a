#include <gtest/gtest.h>

#include <filesystem>

#include "shell/linux/cQueryReg.h"
#include "support/TestSupport.h"
#include "test_platform_env.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::EnvVar;
using test::ReadBytes;
using test::ScratchDir;
using test::WriteBytes;

struct RegFixture : ::testing::Test {
    ScratchDir dir;
    cQueryRegLinux reg{dir / "Registro.reg"};
};

TEST(cQueryRegRoots, ShortAndLongRootNames)
{
    struct Row {
        std::string key;
        bool ok;
        RaizReg root;
        std::string subkey;
    };
    const std::vector<Row> rows = {
        {"HKCR\\.ovd", true, RaizReg::ClassesRoot, ".ovd"},
        {"HKEY_CLASSES_ROOT\\.ovd", true, RaizReg::ClassesRoot, ".ovd"},
        {"HKCU\\Software\\Vardena", true, RaizReg::CurrentUser, "Software\\Vardena"},
        {"HKEY_CURRENT_USER\\Software\\Vardena", true, RaizReg::CurrentUser, "Software\\Vardena"},
        {"hkey_current_user\\x", true, RaizReg::CurrentUser, "x"},
        {"HKCU", true, RaizReg::CurrentUser, ""},
        {"HKEY_CURRENT_USER", true, RaizReg::CurrentUser, ""},
        {"HKLM\\SOFTWARE", true, RaizReg::LocalMachine, "SOFTWARE"},
        {"HKEY_LOCAL_MACHINE\\SOFTWARE", true, RaizReg::LocalMachine, "SOFTWARE"},
        {"HKU\\.DEFAULT", true, RaizReg::Users, ".DEFAULT"},
        {"HKEY_USERS\\.DEFAULT", true, RaizReg::Users, ".DEFAULT"},
        {"HKCC\\System", true, RaizReg::CurrentConfig, "System"},
        {"HKEY_CURRENT_CONFIG\\System", true, RaizReg::CurrentConfig, "System"},
        {"HKDD\\PerfStats", true, RaizReg::DynData, "PerfStats"},
        {"HKEY_DYN_DATA\\PerfStats", true, RaizReg::DynData, "PerfStats"},
        {"HKPD\\x", true, RaizReg::PerformanceData, "x"},
        {"HKEY_PERFORMANCE_DATA\\x", true, RaizReg::PerformanceData, "x"},
        {"HKCUX\\Software", false, RaizReg::CurrentUser, ""},
        {"HKEY_CURRENT_USERS\\Software", false, RaizReg::CurrentUser, ""},
        {"Software\\Vardena", false, RaizReg::CurrentUser, ""},
        {"", false, RaizReg::CurrentUser, ""},
    };
    for (const auto& r : rows) {
        RaizReg root = RaizReg::CurrentUser;
        std::string sub;
        ASSERT_EQ(cQueryRegLinux::RaizDe(r.key, root, sub), r.ok) << r.key;
        if (!r.ok)
            continue;
        EXPECT_EQ(root, r.root) << r.key;
        EXPECT_EQ(sub, r.subkey) << r.key;
    }
    EXPECT_EQ(cQueryRegLinux::NombreRaiz(RaizReg::DynData), "HKEY_DYN_DATA");
}

TEST_F(RegFixture, ShortAndLongNamesReachTheSameKey)
{
    ASSERT_TRUE(reg.RegSetValue2("HKCU\\Software\\Vardena 3\\Obra", "Carpeta", "/home/ana/Obras"));
    EXPECT_EQ(reg.GetRegString("HKEY_CURRENT_USER\\Software\\Vardena 3\\Obra", "Carpeta"), "/home/ana/Obras");
    EXPECT_EQ(reg.GetRegString("hkcu\\software\\VARDENA 3\\\\obra\\", "carpeta"), "/home/ana/Obras");
    EXPECT_EQ(reg.GetRegString("HKLM\\Software\\Vardena 3\\Obra", "Carpeta"), "");
    EXPECT_EQ(reg.GetRegString("XX\\Software\\Vardena 3\\Obra", "Carpeta"), "");
    EXPECT_FALSE(reg.RegSetValue2("XX\\Software", "a", "b"));
}

TEST_F(RegFixture, ValueTextsByKind)
{
    struct Row {
        std::string name, text;
        int type;
        std::string shown;
    };
    const std::vector<Row> rows = {
        {"Dword", "255", kRegDword, "0x000000FF (255)"},
        {"DwordHex", "0xff", kRegDword, "0x000000FF (255)"},
        {"DwordShown", "0x0000000A (10)", kRegDword, "0x0000000A (10)"},
        {"Zero", "0", kRegDword, "0x00000000 (0)"},
        {"Max", "4294967295", kRegDword, "0xFFFFFFFF (4294967295)"},
        {"Bin", "01 0a ff", kRegBinary, "01 0A FF"},
        {"BinCommas", "00,7F", kRegBinary, "00 7F"},
        {"Texto", "Descripción \"de\" C:\\obra", kRegSz, "Descripción \"de\" C:\\obra"},
        {"Lineas", "uno\ndos", kRegSz, "uno\ndos"},
        {"Expand", "%HOME%/obras", kRegExpandSz, "%HOME%/obras"},
        {"Multi", "61 00 62 63 00 00", kRegMultiSz, "a; bc"},
        {"", "por defecto", kRegSz, "por defecto"},
    };
    for (const auto& r : rows)
        ASSERT_TRUE(reg.SetReg("HKCU\\Valores", r.name, r.text, r.type)) << r.name;
    // A second object reads the file again: what it shows went through the disk.
    cQueryRegLinux again(reg.file());
    for (const auto& r : rows)
        EXPECT_EQ(again.GetReg("HKCU\\Valores", r.name), r.shown) << r.name;
    EXPECT_EQ(again.GetRegDWord("HKCU\\Valores", "Dword"), 255u);
    EXPECT_EQ(again.GetRegDWord("HKCU\\Valores", "Texto"), 0u);
    EXPECT_EQ(again.GetRegBinary("HKCU\\Valores", "Bin"), "01 0A FF");
    EXPECT_EQ(again.GetRegBinary("HKCU\\Valores", "Dword"), "");
    EXPECT_EQ(again.GetRegString("HKCU\\Valores", "Dword"), "");

    for (const char* bad : {"", "x", "0x", "4294967296", "-1"})
        EXPECT_FALSE(reg.SetReg("HKCU\\Valores", "Dword", bad, kRegDword)) << bad;
    EXPECT_FALSE(reg.SetReg("HKCU\\Valores", "Bin", "0g", kRegBinary));
    EXPECT_EQ(reg.GetReg("HKCU\\Valores", "Dword"), "0x000000FF (255)");
}

TEST_F(RegFixture, FileIsRegeditTextInWindows1252WithCrLf)
{
    ASSERT_TRUE(reg.AsociarExt("ovd", "Vardena.Obra", "obra", "/usr/bin/vardena"));
    ASSERT_TRUE(reg.SetReg("HKCU\\Software\\Vardena", "N", "255", kRegDword));
    EXPECT_EQ(ReadBytes(reg.file()),
              "REGEDIT4\r\n\r\n"
              "[HKEY_CLASSES_ROOT\\.ovd]\r\n@=\"Vardena.Obra\"\r\n\r\n"
              "[HKEY_CLASSES_ROOT\\Vardena.Obra]\r\n@=\"Descripci\xF3n de obra\"\r\n\r\n"
              "[HKEY_CLASSES_ROOT\\Vardena.Obra\\shell]\r\n\r\n"
              "[HKEY_CLASSES_ROOT\\Vardena.Obra\\shell\\open]\r\n\r\n"
              "[HKEY_CLASSES_ROOT\\Vardena.Obra\\shell\\open\\command]\r\n@=\"/usr/bin/vardena %1\"\r\n\r\n"
              "[HKEY_CURRENT_USER\\Software]\r\n\r\n"
              "[HKEY_CURRENT_USER\\Software\\Vardena]\r\n\"N\"=dword:000000ff\r\n\r\n");
    EXPECT_EQ(reg.GetReg("HKCR\\Vardena.Obra", ""), "Descripción de obra");

    ASSERT_TRUE(reg.DesasociarExt(".ovd", "Vardena.Obra"));
    EXPECT_TRUE(reg.EnumKeys("HKCR").empty());
    EXPECT_EQ(reg.EnumKeys("HKCU"), std::vector<std::string>{"Software"});
}

TEST_F(RegFixture, HandWrittenFilesAreRead)
{
    WriteBytes(reg.file(),
               "Windows Registry Editor Version 5.00\r\n\r\n"
               "; a comment\r\n"
               "[HKEY_LOCAL_MACHINE\\Software\\Prueba\\Hoja]\r\n"
               "\"Largo\"=hex:00,01,02,\\\r\n  03,04\r\n"
               "\"Ruta\"=hex(2):25,48,4f,4d,45,25,00\r\n"
               "\"Acento\"=\"Mar\xEDn\"\r\n");
    EXPECT_EQ(reg.GetRegBinary("HKLM\\Software\\Prueba\\Hoja", "Largo"), "00 01 02 03 04");
    EXPECT_EQ(reg.GetRegString("HKLM\\Software\\Prueba\\Hoja", "Ruta"), "%HOME%");
    EXPECT_EQ(reg.GetRegString("HKLM\\Software\\Prueba\\Hoja", "Acento"), "Marín");
    // A key with only subkeys exists although the file has no line of its own for it.
    EXPECT_NE(reg.OpenKeyEx("HKLM\\Software\\Prueba"), 0);
    EXPECT_EQ(reg.EnumKeys("HKLM\\Software"), std::vector<std::string>{"Prueba"});
}

TEST_F(RegFixture, ABrokenFileIsNeverWrittenOver)
{
    struct Row {
        std::string content, where;
    };
    const std::vector<Row> rows = {
        {"REGEDIT4\r\n\r\n[HKCU\\a]\r\n\"x\"=dword:12345678\r\n\"y\"=wrong\r\n", "line 5"},
        {"REGEDIT4\r\n\"x\"=\"y\"\r\n", "line 2"},
        {"REGEDIT4\r\n[HKXX\\a]\r\n", "line 2"},
        {"[HKCU\\a]\r\n", "line 1"},
        {"REGEDIT4\r\n[HKCU\\a]\r\n\"x\"=dword:123456789\r\n", "line 3"},
        {"REGEDIT4\r\n[HKCU\\a]\r\n\"x\"=hex:1,2\r\n", "line 3"},
        {"REGEDIT4\r\n[HKCU\\a]\r\n\"x=\"y\"\r\n", "line 3"},
    };
    for (const auto& r : rows) {
        WriteBytes(reg.file(), r.content);
        EXPECT_FALSE(reg.RegSetValue2("HKCU\\a", "z", "1")) << r.content;
        EXPECT_NE(reg.Error().find(reg.file()), std::string::npos) << reg.Error();
        EXPECT_NE(reg.Error().find(r.where), std::string::npos) << reg.Error();
        EXPECT_EQ(ReadBytes(reg.file()), r.content);
    }
    // What could be read before the bad line is still answered.
    WriteBytes(reg.file(), rows[0].content);
    EXPECT_EQ(reg.GetRegDWord("HKCU\\a", "x"), 0x12345678u);
}

TEST_F(RegFixture, OpenKeysEnumerateSubkeysAndValues)
{
    reg.RegSetValue2("HKCU\\Software\\V\\Zeta", "", "z");
    reg.RegSetValue2("HKCU\\Software\\V\\alfa", "", "a");
    reg.RegSetValue2("HKCU\\Software\\V\\Beta\\Hondo", "", "b");
    reg.SetReg("HKCU\\Software\\V", "Uno", "1", kRegDword);
    reg.RegSetValue2("HKCU\\Software\\V", "Dos", "dos");

    EXPECT_EQ(reg.OpenKeyEx("HKCU\\Software\\Nada"), 0);
    const long h = reg.OpenKeyEx("HKEY_CURRENT_USER\\Software\\V");
    ASSERT_NE(h, 0);
    int subKeys = -1, values = -1;
    ASSERT_TRUE(reg.QueryInfoKey(h, subKeys, values));
    EXPECT_EQ(subKeys, 3);
    EXPECT_EQ(values, 2);
    std::vector<std::string> keys;
    for (int i = 0; !reg.EnumKeyEx(h, i).empty(); ++i)
        keys.push_back(reg.EnumKeyEx(h, i));
    EXPECT_EQ(keys, (std::vector<std::string>{"alfa", "Beta", "Zeta"}));
    EXPECT_EQ(reg.EnumValue(h, 0), "Uno");
    EXPECT_EQ(reg.EnumValueString(h, 0), "0x00000001 (1)");
    EXPECT_EQ(reg.EnumValue(h, 1), "Dos");
    EXPECT_EQ(reg.EnumValueString(h, 1), "dos");
    EXPECT_EQ(reg.EnumValue(h, 2), "");
    EXPECT_EQ(reg.EnumValue(h, -1), "");
    reg.CloseKey(h);
    EXPECT_FALSE(reg.QueryInfoKey(h, subKeys, values));
    EXPECT_EQ(reg.EnumKeyEx(h, 0), "");

    EXPECT_EQ(reg.OpenKeyQuery("HKCU\\Software\\V", "Dos"), "dos");
    EXPECT_EQ(reg.EnumValues("HKCU\\Software\\V"), (std::vector<std::string>{"Uno", "Dos"}));
}

TEST_F(RegFixture, DeleteKeyLeavesKeysWithSubkeysDeleteKeyWin95Does)
{
    reg.RegSetValue2("HKCU\\Software\\V\\A\\B", "x", "1");
    reg.RegSetValue2("HKCU\\Software\\V\\C", "x", "1");
    EXPECT_FALSE(reg.DeleteKey("HKCU\\Software\\V\\A"));
    EXPECT_FALSE(reg.DeleteKey("HKCU\\Software\\V\\None"));
    EXPECT_FALSE(reg.DeleteKey("HKCU"));
    EXPECT_FALSE(reg.DeleteKeyWin95("HKEY_CURRENT_USER"));
    EXPECT_TRUE(reg.DeleteKey("HKCU\\Software\\V\\C"));
    EXPECT_TRUE(reg.DeleteKeyWin95("HKCU\\Software\\V\\A"));
    EXPECT_TRUE(reg.EnumKeys("HKCU\\Software\\V").empty());
    EXPECT_EQ(reg.EnumKeys("HKCU\\Software"), std::vector<std::string>{"V"});
}

TEST_F(RegFixture, RegSaveKeyWritesOnlyThatBranch)
{
    reg.RegSetValue2("HKCU\\Software\\V\\A", "x", "1");
    reg.RegSetValue2("HKCU\\Software\\VV", "y", "2");
    reg.RegSetValue2("HKLM\\Software\\V", "z", "3");
    ASSERT_TRUE(reg.RegSaveKey("HKCU\\Software\\V", dir / "rama.reg"));
    EXPECT_EQ(ReadBytes(dir / "rama.reg"), "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\V]\r\n\r\n"
                                           "[HKEY_CURRENT_USER\\Software\\V\\A]\r\n\"x\"=\"1\"\r\n\r\n");
    EXPECT_FALSE(reg.RegSaveKey("HKCU\\Software\\None", dir / "none.reg"));
    EXPECT_FALSE(fs::exists(dir / "none.reg"));
}

TEST_F(RegFixture, ShellFoldersFromTheRegistryElseFromTheDesktop)
{
    ScratchDir home;
    EnvVar h("HOME", home.path());
    EnvVar cfg("XDG_CONFIG_HOME", home / "cfg");
    EnvVar data("XDG_DATA_HOME", home / "data");
    fs::create_directories(home / "cfg");
    WriteBytes(home / "cfg/user-dirs.dirs",
               "# written by xdg-user-dirs-update\nXDG_DESKTOP_DIR=\"$HOME/Escritorio\"\n"
               "XDG_DOCUMENTS_DIR=\"/srv/documentos\"\n");
    struct Row {
        std::string name, folder;
    };
    const std::vector<Row> rows = {
        {"Desktop", home / "Escritorio"},
        {"Personal", "/srv/documentos"},
        {"My Pictures", home.path()},
        {"AppData", home / "cfg"},
        {"Local AppData", home / "data"},
        {"Fonts", home / "data/fonts"},
        {"Nothing Like It", ""},
    };
    for (const auto& r : rows)
        EXPECT_EQ(reg.ShellFolders(r.name), r.folder) << r.name;
    reg.RegSetValue2("HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", "Desktop",
                     "/mesa");
    EXPECT_EQ(reg.ShellFolders("Desktop"), "/mesa");
    EXPECT_EQ(reg.GetFolder("Desktop"), "/mesa");
    for (const char* name : {"WindowsDir", "SystemDir"}) {
        const std::string f = reg.GetFolder(name);
        ASSERT_FALSE(f.empty()) << name;
        EXPECT_EQ(f.back(), '/') << name;
        EXPECT_TRUE(fs::is_directory(f)) << name;
    }
}

TEST(cQueryRegFile, LivesBesideTheSettings)
{
    ScratchDir dir;
    EnvVar settings("VARDENA_SETTINGS", dir / "conf/Vardena 3.ini");
    EXPECT_EQ(cQueryRegLinux::DefaultPath(), dir / "conf/Registro.reg");
    cQueryRegLinux reg;
    ASSERT_TRUE(reg.RegSetValue2("HKCU\\a", "b", "c"));
    EXPECT_TRUE(fs::exists(dir / "conf/Registro.reg"));
}

}  // namespace
}  // namespace vardena
