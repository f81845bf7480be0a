// Staged writes, the journal, recovery and the writer's lock: the pieces that make a conversion
// all or nothing.

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <map>

#include "ObraGrande.h"
#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "works/DatosFile.h"
#include "base/FileIo.h"
#include "works/Obra.h"
#include "works/Transaccion.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::Snapshot;
Snapshot Take(const std::string& folder) { return test::TakeSnapshot(folder); }

// Restores the real file operations at the end of a test.
struct SeamGuard {
    explicit SeamGuard(FileSystemSeam seam) : old(SetFileSystemSeam(std::move(seam))) {}
    ~SeamGuard() { SetFileSystemSeam(old); }
    FileSystemSeam old;
};

TEST(Staging, ReadsSeeWhatWasStagedAndTheOldFilesStayUntilCommit)
{
    test::ScratchDir dir;
    test::WriteBytes(dir / "Viga.~HJ", "viejo");
    Snapshot before = Take(dir.path());
    std::vector<StagingArea::Entry> entries;
    {
        StagingArea area(dir.path(), "t1");
        WriteFileAtomic(dir / "Viga.~HJ", "nuevo");
        WriteFileAtomic(dir / "Otra.~HJ", "otra");
        WriteFileAtomic(dir / "Viga.~HJ", "nuevo 2");  // staged twice: one entry
        EXPECT_EQ(ReadFileBytes(dir / "Viga.~HJ"), "nuevo 2");
        EXPECT_EQ(FindNoCase(dir.path(), "otra.~hj"), dir / "Otra.~HJ") << "a staged file is found in any case";
        EXPECT_EQ(ExistingNoCase(dir / "OTRA.~HJ"), dir / "Otra.~HJ");
        EXPECT_EQ(test::ReadBytes(dir / "Viga.~HJ"), "viejo") << "the disk keeps the old file";
        EXPECT_FALSE(fs::exists(dir / "Otra.~HJ"));
        ASSERT_EQ(area.entries().size(), 2u);
        entries = area.entries();
        // Without Release the staged files go with the area.
    }
    EXPECT_EQ(Take(dir.path()), before);

    {
        StagingArea area(dir.path(), "t2");
        WriteFileAtomic(dir / "Viga.~HJ", "nuevo");
        WriteFileAtomic(dir / "Otra.~HJ", "otra");
        entries = area.entries();
        area.Release();
    }
    CommitStaged(dir.path(), entries);
    CommitStaged(dir.path(), entries);  // a second attempt finds nothing left to rename
    EXPECT_EQ(Take(dir.path()), (Snapshot{{"Viga.~HJ", "nuevo"}, {"Otra.~HJ", "otra"}}));
}

TEST(Staging, AReadOnlyTargetOrAFolderIsRefusedWhenStaged)
{
    test::ScratchDir dir;
    test::WriteBytes(dir / "Fija.~ZC", "x");
    fs::permissions(dir / "Fija.~ZC", fs::perms::owner_write, fs::perm_options::remove);
    fs::create_directory(dir / "Carpeta.~ZC");
    StagingArea area(dir.path(), "t");
    EXPECT_THROW(WriteFileAtomic(dir / "Fija.~ZC", "y"), FileError);
    EXPECT_THROW(WriteFileAtomic(dir / "Carpeta.~ZC", "y"), FileError);
    EXPECT_TRUE(area.entries().empty());
}

TEST(Diario, TextRoundTripsAndDamagedJournalsAreNotTaken)
{
    Diario d;
    d.fase = Diario::Fase::Commit;
    d.tag = "abc";
    d.entries = {{".vardena-abc-1.staged", "Zapata 1.~ZC"}, {".vardena-abc-2.staged", "100%\tcon tab.~HJ"}};
    Diario back;
    ASSERT_TRUE(LeeDiario(TextoDiario(d), back));
    EXPECT_EQ(back.fase, Diario::Fase::Commit);
    EXPECT_EQ(back.tag, "abc");
    ASSERT_EQ(back.entries.size(), 2u);
    EXPECT_EQ(back.entries[1].target, "100%\tcon tab.~HJ");

    const std::string text = TextoDiario(d);
    struct Case {
        const char* name;
        std::string text;
    } cases[] = {
        {"cut short", text.substr(0, text.size() - 6)},
        {"unknown phase", "Vardena conversion journal\nphase\tmaybe\ntag\tx\nend\n"},
        {"target leaves the folder", "Vardena conversion journal\nphase\tcommit\ntag\tx\na\t../b\nend\n"},
        {"not a journal", "hola\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_FALSE(LeeDiario(c.text, back));
    }
}

class Recovery : public ::testing::Test {
protected:
    void SetUp() override
    {
        work = dir / "obra";
        fs::create_directory(work);
        muestras::EscribeObraGrande(work, 16);
        before = Take(work);
    }
    // Converts in process with a seam that fails the n-th write or rename.
    ConversionLog ConvertWithSeam(FileSystemSeam seam)
    {
        SeamGuard guard(std::move(seam));
        AbreObra(app.decl, work);
        std::vector<std::string> list2;
        return Convierte(app.decl, list2);
    }
    test::ScratchDir dir;
    test::TestApp app;
    std::string work;
    Snapshot before;
};

// A full disk at any write of the run: everything is thrown away and the work is as before.
TEST_F(Recovery, AFullDiskAtAnyWriteRollsBack)
{
    for (int failAt : {1, 2, 5, 12, 17}) {
        SCOPED_TRACE(failAt);
        int writes = 0;
        FileSystemSeam seam;
        seam.write = [&](const std::string& path, std::string_view bytes) {
            if (fs::path(path).filename().string().find(".staged") != std::string::npos && ++writes == failAt) {
                errno = ENOSPC;
                return false;
            }
            return test::WriteBytes(path, std::string(bytes)), true;
        };
        const ConversionLog log = ConvertWithSeam(seam);
        EXPECT_FALSE(log.completed);
        EXPECT_EQ(log.end, ConversionLog::End::RolledBack);
        EXPECT_NE(log.error.find(work), std::string::npos) << log.error;
        EXPECT_EQ(Take(work), before);
    }
}

// Renames that stop half-way leave the journal at "commit": the next opening finishes them.
TEST_F(Recovery, RenamesThatStopHalfWayAreFinishedAtTheNextOpening)
{
    int renames = 0;
    FileSystemSeam seam;
    seam.rename = [&](const std::string& from, const std::string& to) {
        if (from.find(".staged") != std::string::npos && ++renames == 7) {
            errno = EIO;
            return false;
        }
        return std::rename(from.c_str(), to.c_str()) == 0;
    };
    const ConversionLog log = ConvertWithSeam(seam);
    EXPECT_EQ(log.end, ConversionLog::End::Pending);
    EXPECT_TRUE(fs::exists(fs::path(work) / kJournalName));
    EXPECT_EQ(test::ReadBytes(work + "/DATOS.~CE"), before.at("DATOS.~CE")) << "the general data are renamed last";

    const ObraInfo info = AbreObra(app.decl, work);
    EXPECT_EQ(info.recovery.resultado, Recuperacion::Resultado::Terminada);
    EXPECT_EQ(info.versionText, "3.50");
    for (const auto& e : fs::directory_iterator(work))
        EXPECT_NE(e.path().filename().string().rfind(".vardena", 0), 0u) << e.path();
}

// A journal at "stage" (the run was killed while writing) is thrown away with its files.
TEST_F(Recovery, AStagePhaseJournalIsThrownAway)
{
    Diario d;
    d.tag = "dead";
    EscribeDiario(work, d);
    test::WriteBytes(work + "/.vardena-dead-1.staged", "medio");
    test::WriteBytes(work + "/.vardena-0123456789ab.tmp", "medio");
    test::WriteBytes(work + "/" + kLockFileName, "");  // the lock file of the run that was killed
    const ObraInfo info = AbreObra(app.decl, work);
    EXPECT_EQ(info.recovery.resultado, Recuperacion::Resultado::Descartada);
    EXPECT_EQ(Take(work), before);
    EXPECT_TRUE(info.convertible);
}

TEST_F(Recovery, AWorkAnotherProgramHoldsIsLeftAlone)
{
    std::optional<WorkLock> lock = WorkLock::Try(work);
    ASSERT_TRUE(lock);
    EXPECT_TRUE(WorkLock::HeldHere(work));
    test::WriteBytes(work + "/.vardena-0123456789ab.tmp", "de otro");
    // What another program would see: a second lock is refused...
    EXPECT_EQ(RecuperaObra(work).resultado, Recuperacion::Resultado::Ocupada);
    EXPECT_TRUE(fs::exists(work + "/.vardena-0123456789ab.tmp"));
    // ...and a conversion is refused by name, touching nothing.
    app.decl.CarpetaObra = work;
    DatosFile(app.decl, "DATOS.~CE", "L", *std::make_unique<std::string>());
    std::vector<std::string> list2;
    const ConversionLog log = Convierte(app.decl, list2);
    EXPECT_EQ(log.end, ConversionLog::End::Busy);
    EXPECT_NE(log.error.find(work), std::string::npos);
    // This program holds it: a save of its own goes through without a second lock.
    EXPECT_FALSE(LockForSave(work));
    lock.reset();
    EXPECT_FALSE(fs::exists(fs::path(work) / kLockFileName)) << "the lock file goes with the lock";
    EXPECT_TRUE(LockForSave(work).has_value());
}

}  // namespace
}  // namespace vardena
