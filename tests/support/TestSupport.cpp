#include "support/TestSupport.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "works/Catalogo.h"
#include "base/Codepage.h"
#include "base/FileIo.h"

namespace vardena::test {

ScratchDir::ScratchDir()
{
    static std::mt19937_64 rng{std::random_device{}()};
    auto base = std::filesystem::temp_directory_path() / ("vardena-test-" + std::to_string(rng()));
    std::filesystem::create_directories(base);
    path_ = base.string();
}

ScratchDir::~ScratchDir()
{
    std::error_code ec;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(path_, ec);
}

namespace {
// The resources of the source tree.
std::filesystem::path RecursosDelPrograma()
{
    return std::filesystem::path(VARDENA_EXAMPLES).parent_path() / "resources";
}
}  // namespace

const std::string& CarpetaPrograma()
{
    static const ScratchDir carpeta;
    static const std::string ruta = [] {
        std::filesystem::copy_file(std::string(VARDENA_TEST_DATA) + "/Nieve", carpeta / "Nieve",
                                   std::filesystem::copy_options::overwrite_existing);
        std::filesystem::create_directory_symlink(RecursosDelPrograma() / "mapas", carpeta / "mapas");
        return carpeta.path();
    }();
    return ruta;
}

const std::string& RecursosDePrueba()
{
    static const ScratchDir carpeta;
    static const std::string ruta = [] {
        std::filesystem::create_directory_symlink(RecursosDelPrograma() / "lng", carpeta / "lng");
        std::filesystem::create_directory_symlink(RecursosDelPrograma() / "mapas", carpeta / "mapas");
        std::filesystem::copy_file(std::string(VARDENA_TEST_DATA) + "/Nieve", carpeta / "Nieve");
        return carpeta.path();
    }();
    return ruta;
}

TestApp::TestApp() : decl(ui, platform)
{
    decl.DirPrograma = CarpetaPrograma();
    platform.settings = std::make_unique<MemorySettings>();
    decl.GeneralDataDefaults();
    LlenaCatalogo(decl);
}

void WriteDiskText(const std::string& path, const std::string& text) { WriteBytes(path, ToDiskText(text)); }

std::string ReadBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
}

std::string ReadDiskText(const std::string& path)
{
    std::string s = Cp1252ToUtf8(ReadBytes(path));
    std::string out;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\r' && i + 1 < s.size() && s[i + 1] == '\n')
            continue;
        out += s[i];
    }
    return out;
}

namespace {
std::string Slurp(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}
}  // namespace

Snapshot TakeSnapshot(const std::string& folder)
{
    Snapshot s;
    for (const auto& e : std::filesystem::directory_iterator(folder))
        s[e.path().filename().string()] = e.is_regular_file() ? ReadBytes(e.path().string()) : "<folder>";
    return s;
}

int RunCli(const std::string& args, std::string* out, std::string* err)
{
    ScratchDir tmp;
    const char* propios = std::getenv("VARDENA_RESOURCES");
    const std::string recursos = propios && *propios ? std::string() : "VARDENA_RESOURCES='" + RecursosDePrueba() + "' ";
    const std::string cmd = recursos + "'" + VARDENA_CLI + "' " + args + " >'" + tmp.path() + "/out' 2>'" +
                            tmp.path() + "/err'";
    int status = std::system(cmd.c_str());
    if (out)
        *out = Slurp(tmp.path() + "/out");
    if (err)
        *err = Slurp(tmp.path() + "/err");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string OnPath(const std::string& program)
{
    const char* path = std::getenv("PATH");
    std::stringstream dirs(path ? path : "");
    std::string dir;
    std::error_code ec;
    while (std::getline(dirs, dir, ':'))
        if (!dir.empty() && std::filesystem::exists(dir + "/" + program, ec))
            return dir + "/" + program;
    return {};
}

std::string ConvierteConLibreOffice(const std::string& soffice, const std::string& carpeta, const std::string& rtf,
                                    const std::string& filtro, const std::string& salida)
{
    // A private profile, so that the test neither needs nor touches the user's; a time limit, so
    // that a word processor that hangs fails the test instead of stopping the suite.
    const std::string limite = OnPath("timeout").empty() ? "" : "timeout 300 ";
    const std::string cmd = "cd '" + carpeta + "' && " + limite + "'" + soffice + "' -env:UserInstallation=file://" +
                            carpeta + "/perfil --headless --convert-to '" + filtro + "' --outdir '" + carpeta + "' '" +
                            rtf + "' >'" + carpeta + "/log' 2>&1";
    EXPECT_EQ(std::system(cmd.c_str()), 0) << Slurp(carpeta + "/log");
    const std::string ruta = carpeta + "/" + salida;
    EXPECT_TRUE(std::filesystem::exists(ruta)) << Slurp(carpeta + "/log");
    return std::filesystem::exists(ruta) ? Slurp(ruta) : std::string();
}

std::string TextoDeLibreOffice(const std::string& soffice, const std::string& carpeta, const std::string& rtf,
                               const std::string& salida)
{
    std::string t = ConvierteConLibreOffice(soffice, carpeta, rtf, "txt:Text (encoded):UTF8", salida);
    if (t.rfind("\xEF\xBB\xBF", 0) == 0)
        t.erase(0, 3);
    for (size_t k = t.find("\xE2\x80\x86"); k != std::string::npos; k = t.find("\xE2\x80\x86", k))
        t.erase(k, 3);
    return t;
}

void PonPlantasDePrueba(Declaraciones& d)
{
    d.NPlantasSobre = 3;
    d.NPlantasBajo = 1;
    const float ppro[] = {0.25f, 0.25f, 0.25f, 0.375f}, conc[] = {0.125f, 0.25f, 0.25f, 0.25f};
    const float stab[] = {0, 0.125f, 0.125f, 0.125f}, sobr[] = {0.125f, 0.25f, 0.25f, 0.375f};
    for (size_t i = 0; i < 4; ++i) {
        d.GenPProP[i] = ppro[i];
        d.GenConcP[i] = conc[i];
        d.GenSTabP[i] = stab[i];
        d.GenSobrP[i] = sobr[i];
    }
    d.GenPProS[1] = 0.5f;
    d.GenConcS[1] = 0.25f;
    d.GenSTabS[1] = 0;
    d.GenSobrS[1] = 0.5f;
}

}  // namespace vardena::test
