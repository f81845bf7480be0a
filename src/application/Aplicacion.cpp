#include "application/Aplicacion.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "works/LngPack.h"
#include "works/Catalogo.h"

namespace vardena {

namespace {
InstaladorServicios& Instalador()
{
    static InstaladorServicios instala = nullptr;
    return instala;
}
}  // namespace

void RegistraServicios(InstaladorServicios instala) { Instalador() = instala; }

std::string ResourceDir()
{
    namespace fs = std::filesystem;
    std::error_code ec;
    if (const char* env = std::getenv("VARDENA_RESOURCES"); env && *env)
        return env;
    char buf[4096];
    ssize_t n = ::readlink("/proc/self/exe", buf, sizeof buf - 1);
    if (n > 0) {
        buf[n] = 0;
        fs::path exe(buf);
        for (fs::path candidate : {exe.parent_path().parent_path() / "share" / "vardena", exe.parent_path() / "resources"})
            if (fs::is_directory(candidate / "lng", ec))
                return candidate.string();
    }
    return VARDENA_SOURCE_RESOURCES;
}

Aplicacion::Aplicacion(Ui& ui, std::unique_ptr<SettingsStore> settings, std::string programDir)
    : decl(ui, platform)
{
    platform.settings = std::move(settings);
    if (Instalador())
        Instalador()(platform);
    decl.DirPrograma = programDir.empty() ? ResourceDir() : std::move(programDir);
    decl.GeneralDataDefaults();
    CargaIdioma(decl);
    LlenaCatalogo(decl);
}

}  // namespace vardena
