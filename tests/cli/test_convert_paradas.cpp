// A conversion is all or nothing: whatever stops it (a bad file, a signal, a kill), the work is
// afterwards byte for byte as before or fully converted, and no file of ours is left once the
// next command has opened the work. Two writers never run at once, and nothing a user types
// writes outside the work.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <map>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "ObraGrande.h"
#include "support/TestSupport.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::Snapshot;
Snapshot Take(const std::string& folder) { return test::TakeSnapshot(folder); }

// The names of the program's own files (lock, journal, staged and temporary files) in a folder.
std::vector<std::string> OwnFiles(const std::string& folder)
{
    std::vector<std::string> own;
    for (const auto& e : fs::directory_iterator(folder))
        if (e.path().filename().string().rfind(".vardena", 0) == 0)
            own.push_back(e.path().filename().string());
    return own;
}

std::string Q(const std::string& path) { return "'" + path + "'"; }

// Starts the command-line tool without waiting for it; its output goes to `output`.
pid_t Start(const std::vector<std::string>& args, const std::string& output = "/dev/null")
{
    const pid_t pid = fork();
    if (pid == 0) {
        std::vector<char*> argv{const_cast<char*>(VARDENA_CLI)};
        for (const auto& a : args)
            argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        if (!freopen(output.c_str(), "w", stdout) || !freopen(output.c_str(), "a", stderr))
            _exit(126);
        execv(VARDENA_CLI, argv.data());
        _exit(127);
    }
    return pid;
}

int Wait(pid_t pid)
{
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

class Paradas : public ::testing::Test {
protected:
    // A copy of a sample work in the scratch folder.
    std::string Sample(const std::string& name)
    {
        fs::copy(fs::path(VARDENA_EXAMPLES) / name, dir / name, fs::copy_options::recursive);
        return dir / name;
    }
    test::ScratchDir dir;
};

// Each fault stops the run before anything changes, and the message names the file.
TEST_F(Paradas, ABadFileLeavesTheWorkAsItWasAndNamesTheFile)
{
    const std::string record = "Elemento 1.~ZC";
    struct Case {
        const char* name;
        std::function<void(const std::string& work)> spoil;
    };
    const Case cases[] = {
        {"empty record", [&](const std::string& w) { test::WriteBytes(w + "/" + record, ""); }},
        {"truncated record",
         [&](const std::string& w) {
             const std::string b = test::ReadBytes(w + "/" + record);
             test::WriteBytes(w + "/" + record, b.substr(0, b.size() / 2));
         }},
        {"NUL byte",
         [&](const std::string& w) {
             std::string b = test::ReadBytes(w + "/" + record);
             b.insert(b.size() / 2, 1, '\0');
             test::WriteBytes(w + "/" + record, b);
         }},
        {"UTF-8 byte-order mark",
         [&](const std::string& w) { test::WriteBytes(w + "/" + record, "\xEF\xBB\xBF" + test::ReadBytes(w + "/" + record)); }},
        {"over-long line",
         [&](const std::string& w) {
             test::WriteBytes(w + "/" + record, "\"Check1\",\"" + std::string(70000, 'x') + "\"\r\n");
         }},
        {"folder named like a record",
         [&](const std::string& w) {
             fs::remove(w + "/" + record);
             fs::create_directory(w + "/" + record);
         }},
        {"read-only record",
         [&](const std::string& w) { fs::permissions(w + "/" + record, fs::perms::owner_write, fs::perm_options::remove); }},
        {"title that leaves the work",
         [&](const std::string& w) {
             std::string b = test::ReadBytes(w + "/" + record);
             const size_t at = b.find("\"txtTitulo\",\"");
             ASSERT_NE(at, std::string::npos);
             const size_t start = at + 13, end = b.find('"', start);
             b.replace(start, end - start, "../fuera");
             test::WriteBytes(w + "/" + record, b);
         }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        fs::remove_all(dir / "Edificio Oroel");
        const std::string work = Sample("Edificio Oroel");
        c.spoil(work);
        const Snapshot before = Take(work);
        std::string out, err;
        EXPECT_EQ(test::RunCli("convert " + Q(work), &out, &err), 1);
        EXPECT_EQ(Take(work), before) << "the work is exactly as before";
        EXPECT_TRUE(OwnFiles(work).empty());
        EXPECT_FALSE(fs::exists(dir / "fuera.~ZC"));
        // The verdict is the last line: one sentence naming the file and what became of the work.
        const std::string last = out.substr(out.rfind('\n', out.size() - 2) + 1);
        EXPECT_NE(last.find(record), std::string::npos) << last;
        EXPECT_NE(last.find("No se ha cambiado nada"), std::string::npos) << last;
        EXPECT_EQ((out + err).find("_Click"), std::string::npos) << "no handler names for the user";
        EXPECT_EQ(test::RunCli("info " + Q(work), &out, &err), 0);
        EXPECT_NE(out.find("convertible: yes"), std::string::npos) << out;
    }
}

// An old end-of-file mark and control bytes inside a value are no reason to stop.
TEST_F(Paradas, ControlBytesAreDataAndTheOldEndOfFileMarkIsDropped)
{
    const std::string work = Sample("Edificio Oroel");
    const std::string zc = work + "/Elemento 1.~ZC";
    test::WriteBytes(zc, test::ReadBytes(zc) + "\x1A");
    std::string zt = test::ReadBytes(work + "/Elemento 1.~ZT");
    const size_t at = zt.find("\"TxCercos\",\"");
    ASSERT_NE(at, std::string::npos);
    zt.insert(at + 12, "\x01\x1B");
    test::WriteBytes(work + "/Elemento 1.~ZT", zt);
    std::string out, err;
    ASSERT_EQ(test::RunCli("convert " + Q(work), &out, &err), 0) << out << err;
    const std::string named = test::ReadBytes(work + "/Elemento 1.~ZT");
    EXPECT_NE(named.find("TxCercos [TextBox]\t.Text\t\x01\x1B"), std::string::npos) << "the control bytes are kept";
    EXPECT_EQ(test::ReadBytes(zc).find('\x1A'), std::string::npos);
}

// Two conversions started together: one runs, the other is refused by name, and the result is
// that of a single run.
TEST_F(Paradas, TwoConversionsAtOnceMakeOneRun)
{
    // The same name in two folders: the general data's report names its work.
    const std::string work = dir / "a/grande", reference = dir / "b/grande";
    fs::create_directories(work);
    muestras::EscribeObraGrande(work, 300);
    fs::create_directories(dir / "b");
    fs::copy(work, reference, fs::copy_options::recursive);
    ASSERT_EQ(test::RunCli("convert " + Q(reference)), 0);

    const pid_t a = Start({"convert", work}, dir / "a.txt");
    const pid_t b = Start({"convert", work}, dir / "b.txt");
    const int ra = Wait(a), rb = Wait(b);
    EXPECT_EQ(std::min(ra, rb), 0) << "one runs";
    EXPECT_EQ(std::max(ra, rb), 1) << "the other is refused";
    // Refused while the first ran, or after it had converted the work: either way by name.
    const std::string refused = test::ReadBytes(ra == 1 ? dir / "a.txt" : dir / "b.txt");
    EXPECT_TRUE(refused.find("otro programa") != std::string::npos || refused.find("3.50") != std::string::npos)
        << refused;
    EXPECT_NE(refused.find("grande"), std::string::npos) << refused;
    EXPECT_EQ(Take(work), Take(reference));
}

// Ctrl-C, SIGTERM, SIGHUP: the run stops between records and throws away what it staged.
TEST_F(Paradas, StopSignalsRollBack)
{
    const std::string plantilla = dir / "plantilla/obra";
    fs::create_directories(plantilla);
    muestras::EscribeObraGrande(plantilla, 600);
    const Snapshot before = Take(plantilla);
    for (int sig : {SIGINT, SIGTERM, SIGHUP}) {
        SCOPED_TRACE(sig);
        const std::string work = dir / "obra";
        fs::remove_all(work);
        fs::copy(plantilla, work, fs::copy_options::recursive);
        const pid_t pid = Start({"convert", work});
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        kill(pid, sig);
        const int rc = Wait(pid);
        const Snapshot after = Take(work);
        if (rc == 0)
            EXPECT_EQ(after.at("DATOS.~CE").rfind("\"Vardena 3\",3.5", 0), 0u) << "finished before the signal";
        else
            EXPECT_EQ(after, before) << "exit " << rc;
        EXPECT_TRUE(OwnFiles(work).empty());
    }
}

// A kill at any moment of a 2,000-record conversion: after the next command the work is exactly
// as before and converts cleanly, or it is fully converted.
TEST_F(Paradas, AKillAtAnyMomentLeavesAllOrNothing)
{
    // The same name in three folders: the general data's report names its work.
    const std::string plantilla = dir / "plantilla/obra", reference = dir / "referencia/obra";
    fs::create_directories(plantilla);
    muestras::EscribeObraGrande(plantilla, 2000);
    const Snapshot before = Take(plantilla);
    fs::create_directories(dir / "referencia");
    fs::copy(plantilla, reference, fs::copy_options::recursive);
    const auto t0 = std::chrono::steady_clock::now();
    ASSERT_EQ(test::RunCli("convert " + Q(reference)), 0);
    const auto full = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - t0);
    const Snapshot converted = Take(reference);

    std::mt19937 rng(20261123);
    std::uniform_int_distribution<long> moment(0, static_cast<long>(full.count() * 11 / 10));
    int asBefore = 0, asConverted = 0;
    for (int k = 0; k < 20; ++k) {
        SCOPED_TRACE("kill " + std::to_string(k));
        const std::string work = dir / "obra";
        fs::remove_all(work);
        fs::copy(plantilla, work, fs::copy_options::recursive);
        const pid_t pid = Start({"convert", work});
        std::this_thread::sleep_for(std::chrono::microseconds(moment(rng)));
        kill(pid, SIGKILL);
        Wait(pid);
        std::string out, err;
        ASSERT_EQ(test::RunCli("info " + Q(work), &out, &err), 0) << err;
        EXPECT_TRUE(OwnFiles(work).empty()) << "the next command leaves nothing of ours";
        const Snapshot after = Take(work);
        if (after == converted) {
            ++asConverted;
            continue;
        }
        ASSERT_EQ(after == before, true) << "neither as before nor fully converted";
        ++asBefore;
        if (k % 4 == 0) {
            ASSERT_EQ(test::RunCli("convert " + Q(work), &out, &err), 0) << out << err;
            EXPECT_EQ(Take(work) == converted, true) << "converts cleanly next time";
        }
    }
    EXPECT_EQ(asBefore + asConverted, 20);
}

// A title given on the command line never writes outside the work.
TEST_F(Paradas, TitlesThatLeaveTheWorkAreRefused)
{
    const std::string work = Sample("Local Arce");
    const Snapshot before = Take(work);
    for (const char* title : {"../fuera/p", "/x", "a\\b", "", "..", ".", "dos\nlineas"}) {
        SCOPED_TRACE(title);
        std::string out, err;
        const int rc = test::RunCli("form " + Q(work) + " frmZapCorr --set " + Q(std::string("txtTitulo=") + title) +
                                        " --press CmdCalcular",
                                    &out, &err);
        EXPECT_EQ(rc, 1);
        EXPECT_NE(err.find("No se ha guardado nada"), std::string::npos) << err;
        EXPECT_EQ(Take(work), before);
        EXPECT_FALSE(fs::exists(dir / "fuera"));
        EXPECT_FALSE(fs::exists(dir / "p.~ZC"));
        EXPECT_FALSE(fs::exists("/x.~ZC"));
    }
}

}  // namespace
}  // namespace vardena
