#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "shell/linux/Abridor.h"
#include "shell/ModIcono.h"
#include "shell/linux/Papelera.h"
#include "shell/Ventanas.h"
#include "support/TestSupport.h"
#include "test_platform_env.h"
#include "base/Form.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::EnvVar;
using test::ReadBytes;
using test::ReadDiskText;
using test::ScratchDir;
using test::WriteBytes;

// A stand-in for xdg-open that writes its arguments, one a line, to `out`.
std::string FakeOpener(const ScratchDir& dir, const std::string& out)
{
    const std::string script = dir / "opener.sh";
    WriteBytes(script, "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\"; done > \"" + out + ".tmp\"\nmv \"" + out +
                           ".tmp\" \"" + out + "\"\n");
    fs::permissions(script, fs::perms::owner_all);
    return script;
}

// The opener runs detached: wait until its output appears.
std::string WaitFor(const std::string& path)
{
    for (int i = 0; i < 500 && !fs::exists(path); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return ReadBytes(path);
}

TEST(AbridorLinux, TheOpenerGetsTheDocumentOrTheMailAddress)
{
    ScratchDir dir;
    const std::string out = dir / "args";
    AbridorLinux opener(FakeOpener(dir, out));
    struct Row {
        std::string name;
        bool mail;
        std::string arg, expected;
    };
    const std::vector<Row> rows = {
        {"file with blanks", false, "/home/ana/Mis obras/listado.rtf", "/home/ana/Mis obras/listado.rtf\n"},
        {"web address", false, "https://example.org/a?b=1&c='2'", "https://example.org/a?b=1&c='2'\n"},
        {"shell characters", false, "$(touch x); `y` *", "$(touch x); `y` *\n"},
        {"leading dash", false, "-r.rtf", "./-r.rtf\n"},
        {"mail", true, "soporte@example.org", "mailto:soporte@example.org\n"},
    };
    for (const auto& r : rows) {
        fs::remove(out);
        ASSERT_TRUE(r.mail ? opener.AbreCorreo(r.arg) : opener.AbreDocumento(r.arg)) << r.name;
        EXPECT_EQ(WaitFor(out), r.expected) << r.name;
    }
    EXPECT_FALSE(fs::exists(dir / "x"));
    EXPECT_FALSE(opener.AbreDocumento(""));
}

TEST(AbridorLinux, OpenerFromTheEnvironmentAndFailuresToStart)
{
    ScratchDir dir;
    const std::string out = dir / "args";
    {
        EnvVar env("VARDENA_OPENER", FakeOpener(dir, out));
        AbridorLinux opener;
        EXPECT_EQ(opener.Opener(), dir / "opener.sh");
        ASSERT_TRUE(opener.AbreDocumento("/tmp/a.rtf"));
        EXPECT_EQ(WaitFor(out), "/tmp/a.rtf\n");
    }
    EnvVar env("VARDENA_OPENER", "");
    EXPECT_EQ(AbridorLinux().Opener(), "xdg-open");

    WriteBytes(dir / "not-executable", "#!/bin/sh\n");
    std::string why;
    EXPECT_FALSE(LanzaDesligado({dir / "not-executable", "a"}, &why));
    EXPECT_NE(why.find("not-executable"), std::string::npos) << why;
    EXPECT_FALSE(AbridorLinux(dir / "missing-program").AbreDocumento("/tmp/a.rtf"));
    EXPECT_FALSE(AbridorLinux("vardena-no-such-opener-anywhere").AbreCorreo("a@b.es"));
    EXPECT_FALSE(LanzaDesligado({}, &why));
}

// A recycle bin that records what it was given, and can refuse.
struct RecordingBin : RecycleBin {
    bool refuse = false;
    std::vector<std::string> moved;
    bool APapelera(const std::string& path) override
    {
        if (refuse)
            return false;
        moved.push_back(fs::path(path).filename().string());
        return EnviaAPapelera(path).ok;
    }
};

struct IconFixture : ::testing::Test {
    ScratchDir work, data;
    EnvVar xdg{"XDG_DATA_HOME", data.path()};
    RecordingBin bin;
};

uint32_t Le32At(const std::string& b, size_t at)
{
    return static_cast<uint32_t>(static_cast<unsigned char>(b[at]) | static_cast<unsigned char>(b[at + 1]) << 8 |
                                 static_cast<unsigned char>(b[at + 2]) << 16 |
                                 static_cast<unsigned char>(b[at + 3]) << 24);
}

TEST_F(IconFixture, WritesDesktopIniTheIconAndDotDirectory)
{
    std::string why;
    ASSERT_TRUE(PoneIconoCarpeta(bin, work.path(), {}, &why)) << why;
    EXPECT_EQ(ReadBytes(work / "Desktop.ini"),
              "[.ShellClassInfo]\r\nIconFile=MiIcono.ico\r\nIconIndex=0\r\nInfoTip=Estructuras de Madera\r\n");

    const std::string ico = ReadBytes(work / "MiIcono.ico");
    ASSERT_EQ(ico.size(), 6u + 16 + 40 + 32 * 32 * 4 + 32 * 4);
    EXPECT_EQ(ico.substr(0, 6), std::string("\0\0\1\0\1\0", 6));
    EXPECT_EQ(ico[6], 32);                      // width
    EXPECT_EQ(ico[7], 32);                      // height
    EXPECT_EQ(ico[12], 32);                     // bits per pixel
    EXPECT_EQ(Le32At(ico, 14), ico.size() - 22);  // image bytes
    EXPECT_EQ(Le32At(ico, 18), 22u);            // image offset
    EXPECT_EQ(Le32At(ico, 22), 40u);            // BITMAPINFOHEADER
    EXPECT_EQ(Le32At(ico, 30), 64u);            // double height: colour and mask
    // Some pixels are drawn, the corners are transparent and masked.
    int opaque = 0;
    for (size_t i = 62; i < 62 + 32 * 32 * 4; i += 4)
        opaque += static_cast<unsigned char>(ico[i + 3]) == 255;
    EXPECT_GT(opaque, 100);
    EXPECT_LT(opaque, 32 * 32);
    EXPECT_EQ(static_cast<unsigned char>(ico[62 + 32 * 32 * 4 - 1]), 0);  // top right alpha
    EXPECT_EQ(static_cast<unsigned char>(ico.back()) & 1, 1);            // its mask bit

    EXPECT_EQ(ReadBytes(work / ".directory"), "[Desktop Entry]\nIcon=" + (work / "MiIcono.ico") + "\n");
    EXPECT_TRUE(bin.moved.empty());

    // Once more with the same files: nothing to replace, nothing to the trash.
    ASSERT_TRUE(PoneIconoCarpeta(bin, work.path()));
    EXPECT_TRUE(bin.moved.empty());
}

TEST_F(IconFixture, OldFilesGoToTheRecycleBinAndDotDirectoryKeepsItsOtherLines)
{
    WriteBytes(work / "Desktop.ini", "[.ShellClassInfo]\r\nIconFile=otro.ico\r\n");
    WriteBytes(work / "MiIcono.ico", "old icon");
    WriteBytes(work / ".directory", "[Dolphin]\nViewMode=1\n\n[Desktop Entry]\nIcon=folder-red\nName=x\n");
    WriteBytes(work / "given.ico", "given icon");
    std::string why;
    ASSERT_TRUE(PoneIconoCarpeta(bin, work.path(), work / "given.ico", &why)) << why;
    EXPECT_EQ(bin.moved, (std::vector<std::string>{"Desktop.ini", "MiIcono.ico"}));
    EXPECT_EQ(ReadBytes(data / "Trash/files/MiIcono.ico"), "old icon");
    EXPECT_EQ(ReadBytes(work / "MiIcono.ico"), "given icon");
    EXPECT_EQ(ReadBytes(work / ".directory"),
              "[Dolphin]\nViewMode=1\n\n[Desktop Entry]\nIcon=" + (work / "MiIcono.ico") + "\nName=x\n");

    WriteBytes(work / ".directory", "[Dolphin]\nViewMode=1\n\n[Desktop Entry]\nName=x\n\n[Other]\na=b\n");
    ASSERT_TRUE(PoneIconoCarpeta(bin, work.path(), work / "given.ico"));
    EXPECT_EQ(ReadBytes(work / ".directory"), "[Dolphin]\nViewMode=1\n\n[Desktop Entry]\nName=x\nIcon=" +
                                                  (work / "MiIcono.ico") + "\n\n[Other]\na=b\n");
}

TEST_F(IconFixture, NothingIsReplacedWhenTheBinRefusesOrTheIconIsMissing)
{
    WriteBytes(work / "Desktop.ini", "mine");
    bin.refuse = true;
    std::string why;
    EXPECT_FALSE(PoneIconoCarpeta(bin, work.path(), {}, &why));
    EXPECT_NE(why.find("Desktop.ini"), std::string::npos) << why;
    EXPECT_EQ(ReadBytes(work / "Desktop.ini"), "mine");
    EXPECT_FALSE(fs::exists(work / "MiIcono.ico"));

    bin.refuse = false;
    EXPECT_FALSE(PoneIconoCarpeta(bin, work.path(), work / "missing.ico", &why));
    EXPECT_NE(why.find("missing.ico"), std::string::npos) << why;
    EXPECT_EQ(ReadBytes(work / "Desktop.ini"), "mine");
    EXPECT_FALSE(PoneIconoCarpeta(bin, work / "no-folder", {}, &why));
}

TEST(Ventanas, HooksDoNothingHeadlessAndPassOnWhenFilled)
{
    test::TestApp app;
    Form form(app.decl, "ErrorFrm");
    EXPECT_TRUE(PonEncima(app.platform, form, true));
    EXPECT_TRUE(InitCommonControlsEx(app.platform));

    std::vector<std::pair<std::string, bool>> calls;
    app.platform.gui.ponEncima = [&](Form& w, bool on) {
        calls.emplace_back(w.Name(), on);
        return on;
    };
    app.platform.gui.initCommonControls = [] { return false; };
    EXPECT_TRUE(PonEncima(app.platform, form, true));
    EXPECT_FALSE(PonEncima(app.platform, form, false));
    EXPECT_FALSE(InitCommonControlsEx(app.platform));
    EXPECT_EQ(calls, (std::vector<std::pair<std::string, bool>>{{"ErrorFrm", true}, {"ErrorFrm", false}}));
}

}  // namespace
}  // namespace vardena
