#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

#include "shell/linux/Papelera.h"
#include "support/TestSupport.h"
#include "test_platform_env.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::EnvVar;
using test::ReadBytes;
using test::ScratchDir;
using test::WriteBytes;

// A work folder and a trash of their own, with $XDG_DATA_HOME pointing at it.
struct TrashFixture : ::testing::Test {
    ScratchDir work, data;
    EnvVar xdg{"XDG_DATA_HOME", data.path()};
    std::string Trash() const { return data.path() + "/Trash"; }
};

TEST_F(TrashFixture, FileGoesToTheTrashAndComesBackToItsPlace)
{
    const std::string file = work / "Viga 1.~VH";
    WriteBytes(file, "registro\r\n");
    PapeleraLinux bin;
    ASSERT_TRUE(bin.APapelera(file));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(ReadBytes(Trash() + "/files/Viga 1.~VH"), "registro\r\n");

    const std::string info = ReadBytes(Trash() + "/info/Viga 1.~VH.trashinfo");
    EXPECT_EQ(info.rfind("[Trash Info]\nPath=" + CodificaRuta(file) + "\nDeletionDate=", 0), 0u) << info;
    EXPECT_TRUE(std::regex_search(info, std::regex("\nDeletionDate=\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\n$")))
        << info;

    auto list = ListaPapelera();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].nombre, "Viga 1.~VH");
    EXPECT_EQ(list[0].rutaOriginal, file);

    std::string why;
    ASSERT_TRUE(RestauraDePapelera("Viga 1.~VH", &why)) << why;
    EXPECT_EQ(ReadBytes(file), "registro\r\n");
    EXPECT_FALSE(fs::exists(Trash() + "/files/Viga 1.~VH"));
    EXPECT_FALSE(fs::exists(Trash() + "/info/Viga 1.~VH.trashinfo"));
}

// A copy of a file goes to the trash as the file itself: the file stays, the trash holds the
// version of the moment, and restoring it (once the file is gone) puts it back in its place.
TEST_F(TrashFixture, CopyGoesToTheTrashAsTheFileItselfAndTheFileStays)
{
    const std::string file = work / "ForjArma.txt";
    WriteBytes(file, "version 1\r\n");
    PapeleraLinux bin;
    ASSERT_TRUE(bin.CopiaAPapelera(file));
    EXPECT_EQ(ReadBytes(file), "version 1\r\n");
    EXPECT_EQ(ReadBytes(Trash() + "/files/ForjArma.txt"), "version 1\r\n");
    const auto list = ListaPapelera();
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].rutaOriginal, file);
    // Nothing is left beside the file.
    EXPECT_EQ(std::distance(fs::directory_iterator(work.path()), fs::directory_iterator()), 1);

    WriteBytes(file, "version 2\r\n");
    ASSERT_TRUE(bin.CopiaAPapelera(file));
    EXPECT_EQ(ReadBytes(Trash() + "/files/ForjArma.2.txt"), "version 2\r\n");

    fs::remove(file);
    std::string why;
    ASSERT_TRUE(RestauraDePapelera("ForjArma.txt", &why)) << why;
    EXPECT_EQ(ReadBytes(file), "version 1\r\n");

    // A file that is not there gives no copy and leaves nothing behind.
    EXPECT_FALSE(bin.CopiaAPapelera(work / "Viguetas"));
    EXPECT_EQ(std::distance(fs::directory_iterator(work.path()), fs::directory_iterator()), 1);
}

TEST_F(TrashFixture, NamesAlreadyInTheTrashGetANumber)
{
    struct Row {
        std::string name, second, third;
    };
    const std::vector<Row> rows = {
        {"Pilar.~PH", "Pilar.2.~PH", "Pilar.3.~PH"},
        {"DATOS", "DATOS.2", "DATOS.3"},
        {".oculto", ".oculto.2", ".oculto.3"},
        {"a.b.txt", "a.b.2.txt", "a.b.3.txt"},
    };
    for (const auto& r : rows) {
        std::vector<std::string> got;
        for (int i = 0; i < 3; ++i) {
            fs::create_directories(work / std::to_string(i));
            const std::string file = work / (std::to_string(i) + "/" + r.name);
            WriteBytes(file, std::to_string(i));
            const EnvioPapelera e = EnviaAPapelera(file);
            ASSERT_TRUE(e.ok) << r.name << ": " << e.error;
            got.push_back(fs::path(e.destino).filename().string());
        }
        EXPECT_EQ(got, (std::vector<std::string>{r.name, r.second, r.third})) << r.name;
        // Each one remembers where it came from.
        std::string why;
        ASSERT_TRUE(RestauraDePapelera(r.third, &why)) << why;
        EXPECT_EQ(ReadBytes(work / ("2/" + r.name)), "2");
    }
}

TEST_F(TrashFixture, FolderGoesWholeAndComesBackWhole)
{
    fs::create_directories(work / "Obra/sub");
    WriteBytes(work / "Obra/DATOS.~CE", "datos");
    WriteBytes(work / "Obra/sub/a.~VH", "viga");
    const EnvioPapelera e = EnviaAPapelera(work / "Obra/");
    ASSERT_TRUE(e.ok) << e.error;
    EXPECT_FALSE(fs::exists(work / "Obra"));
    EXPECT_EQ(ReadBytes(e.destino + "/sub/a.~VH"), "viga");
    ASSERT_TRUE(RestauraDePapelera("Obra"));
    EXPECT_EQ(ReadBytes(work / "Obra/DATOS.~CE"), "datos");
    EXPECT_EQ(ReadBytes(work / "Obra/sub/a.~VH"), "viga");
}

TEST_F(TrashFixture, RestoreNeverReplacesWhatIsThereNow)
{
    const std::string file = work / "a.~VH";
    WriteBytes(file, "old");
    ASSERT_TRUE(EnviaAPapelera(file).ok);
    WriteBytes(file, "new");
    std::string why;
    EXPECT_FALSE(RestauraDePapelera("a.~VH", &why));
    EXPECT_NE(why.find(file), std::string::npos) << why;
    EXPECT_EQ(ReadBytes(file), "new");
    EXPECT_EQ(ReadBytes(Trash() + "/files/a.~VH"), "old");
    EXPECT_FALSE(RestauraDePapelera("no-such-entry", &why));
    EXPECT_FALSE(RestauraDePapelera("../a.~VH", &why));
}

TEST_F(TrashFixture, NothingHappensToAMissingFile)
{
    const EnvioPapelera e = EnviaAPapelera(work / "none.~VH");
    EXPECT_FALSE(e.ok);
    EXPECT_NE(e.error.find("none.~VH"), std::string::npos);
    EXPECT_FALSE(fs::exists(work / ".papelera"));
    EXPECT_FALSE(PapeleraLinux().APapelera(""));
}

TEST_F(TrashFixture, TheTrashItselfIsRefused)
{
    WriteBytes(work / "x", "x");
    ASSERT_TRUE(EnviaAPapelera(work / "x").ok);
    EXPECT_FALSE(EnviaAPapelera(data.path()).ok);
    EXPECT_TRUE(fs::exists(Trash() + "/files/x"));
}

TEST(Papelera, WithoutAUsableTrashTheFileGoesToPapeleraBesideIt)
{
    ScratchDir work, data;
    WriteBytes(data / "blocker", "a file where the trash's folder should be");
    EnvVar xdg("XDG_DATA_HOME", data / "blocker/share");
    for (const char* content : {"first", "second"}) {
        WriteBytes(work / "Muro.~MH", content);
        const EnvioPapelera e = EnviaAPapelera(work / "Muro.~MH");
        ASSERT_TRUE(e.ok) << e.error;
        EXPECT_TRUE(e.info.empty());
        EXPECT_FALSE(fs::exists(work / "Muro.~MH"));
    }
    EXPECT_EQ(ReadBytes(work / ".papelera/Muro.~MH"), "first");
    EXPECT_EQ(ReadBytes(work / ".papelera/Muro.2.~MH"), "second");
}

TEST(Papelera, PathsArePercentEncodedByteByByte)
{
    struct Row {
        std::string path, encoded;
    };
    const std::vector<Row> rows = {
        {"/home/ana/Obras/viga.~VH", "/home/ana/Obras/viga.~VH"},
        {"/home/ana/Mis obras/a b.~VH", "/home/ana/Mis%20obras/a%20b.~VH"},
        {"/obras/Señal/acción.~PH", "/obras/Se%C3%B1al/acci%C3%B3n.~PH"},
        {"/x/100%#?&=+.txt", "/x/100%25%23%3F%26%3D%2B.txt"},
        {"/x/a-b_c~d", "/x/a-b_c~d"},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(CodificaRuta(r.path), r.encoded) << r.path;
        EXPECT_EQ(DecodificaRuta(r.encoded), r.path) << r.encoded;
    }
    EXPECT_EQ(DecodificaRuta("/a%2"), "/a%2");
    EXPECT_EQ(DecodificaRuta("/a%zz"), "/a%zz");
    EXPECT_EQ(DecodificaRuta("/a%c3%b1"), "/añ");
}

TEST_F(TrashFixture, NamesWithBlanksAndAccentsComeBack)
{
    fs::create_directories(work / "Obra de señal");
    const std::string file = work / "Obra de señal/Losa acción 2.~LH";
    WriteBytes(file, "losa");
    ASSERT_TRUE(EnviaAPapelera(file).ok);
    const std::string info = ReadBytes(Trash() + "/info/Losa acción 2.~LH.trashinfo");
    EXPECT_NE(info.find("/Obra%20de%20se%C3%B1al/Losa%20acci%C3%B3n%202.~LH\n"), std::string::npos) << info;
    ASSERT_TRUE(RestauraDePapelera("Losa acción 2.~LH"));
    EXPECT_EQ(ReadBytes(file), "losa");
}

// Removes the folders a test made outside its scratch folder, however the test ends.
struct RemoveAtEnd {
    std::vector<std::string> paths;
    ~RemoveAtEnd()
    {
        std::error_code ec;
        for (const auto& p : paths)
            fs::remove_all(p, ec);
    }
};

// /dev/shm as a second volume with a file on it, the home trash in a scratch folder.
struct OtherVolume : ::testing::Test {
    ScratchDir data;
    EnvVar xdg{"XDG_DATA_HOME", data.path()};
    std::string trash = "/dev/shm/.Trash-" + std::to_string(::getuid());
    std::string name = fs::path(data.path()).filename().string();
    std::string folder = "/dev/shm/" + name;
    RemoveAtEnd cleanup;

    void SetUp() override
    {
        struct stat vol, parent, home;
        if (::stat("/dev/shm", &vol) != 0 || ::stat("/dev", &parent) != 0 ||
            ::stat(data.path().c_str(), &home) != 0 || vol.st_dev == home.st_dev || vol.st_dev == parent.st_dev)
            GTEST_SKIP() << "/dev/shm is no volume of its own here";
        if (fs::exists(trash))
            GTEST_SKIP() << trash << " is in use already";
        cleanup.paths = {trash, folder};
        fs::create_directories(folder);
        WriteBytes(folder + "/a b.~VH", "x");
    }
};

TEST_F(OtherVolume, TheFileGoesToThatVolumesOwnTrash)
{

    const EnvioPapelera e = EnviaAPapelera(folder + "/a b.~VH");
    ASSERT_TRUE(e.ok) << e.error;
    EXPECT_EQ(e.destino, trash + "/files/a b.~VH");
    // Paths in a volume's trash count from the volume's top folder.
    EXPECT_NE(ReadBytes(e.info).find("\nPath=" + name + "/a%20b.~VH\n"), std::string::npos) << ReadBytes(e.info);
    auto list = ListaPapelera(trash);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].rutaOriginal, folder + "/a b.~VH");
    std::string why;
    ASSERT_TRUE(RestauraDePapelera("a b.~VH", &why, trash)) << why;
    EXPECT_EQ(ReadBytes(folder + "/a b.~VH"), "x");
}

TEST_F(OtherVolume, WithoutAVolumeTrashItIsCopiedToTheHomeTrash)
{
    WriteBytes(trash, "a file where the volume's trash should be");
    const EnvioPapelera e = EnviaAPapelera(folder + "/a b.~VH");
    ASSERT_TRUE(e.ok) << e.error;
    EXPECT_FALSE(fs::exists(folder + "/a b.~VH"));
    EXPECT_EQ(e.destino, data / "Trash/files/a b.~VH");
    EXPECT_EQ(ReadBytes(e.destino), "x");
    ASSERT_TRUE(RestauraDePapelera("a b.~VH"));
    EXPECT_EQ(ReadBytes(folder + "/a b.~VH"), "x");
}

TEST(Papelera, MovesAcrossFileSystemsByCopying)
{
    ScratchDir work;
    struct stat a, b;
    if (::stat("/dev/shm", &b) != 0 || ::stat(work.path().c_str(), &a) != 0 || a.st_dev == b.st_dev)
        GTEST_SKIP() << "no second file system to move to";
    fs::create_directories(work / "Obra/sub");
    WriteBytes(work / "Obra/sub/a.~VH", "viga");
    const std::string to = "/dev/shm/" + fs::path(work.path()).filename().string() + "-moved";
    std::string why;
    ASSERT_TRUE(MueveArchivo(work / "Obra", to, &why)) << why;
    EXPECT_FALSE(fs::exists(work / "Obra"));
    EXPECT_EQ(ReadBytes(to + "/sub/a.~VH"), "viga");
    // The target is never replaced.
    fs::create_directories(work / "Obra");
    EXPECT_FALSE(MueveArchivo(work / "Obra", to, &why));
    EXPECT_TRUE(fs::exists(work / "Obra"));
    fs::remove_all(to);
}

}  // namespace
}  // namespace vardena
