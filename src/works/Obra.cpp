#include "works/Obra.h"

#include <filesystem>

#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "works/FileIo.h"
#include "works/Subrut.h"

namespace vardena {

bool ConvertirHabilitado(bool hasDatos, float versionObra)
{
    return hasDatos && versionObra != 0 && versionObra <= 3.01f;
}

ObraInfo AbreObra(Declaraciones& d, const std::string& folder)
{
    ObraInfo info;
    std::filesystem::path p = std::filesystem::absolute(folder).lexically_normal();
    std::string path = p.string();
    while (path.size() > 1 && path.back() == kSep)
        path.pop_back();
    info.folder = path;
    std::error_code ec;
    if (!std::filesystem::is_directory(path, ec))
        throw FileError(path, "the work folder does not exist");
    info.recovery = RecuperaObra(path);
    d.CarpetaObra = path;
    d.NombreObra = ArchivoDe(path);
    d.DirObras = CarpetaDe(path);

    std::string text;
    DatosFile(d, "DATOS.~CE", "I", text);
    info.hasDatos = text != "No";
    if (info.hasDatos) {
        d.VersionObra = 0;
        DatosStatus st = DatosFile(d, "DATOS.~CE", "L", text);
        info.datosDamaged = st.damaged || st.refused;
        info.problem = st.problem;
    }
    info.version = d.VersionObra;
    info.versionText = Formato00Punto(d.VersionObra);
    info.contents = ListaElementos(d, path);
    std::string descr;
    DatosFile(d, "DESCR.~CE", "L", descr);
    info.description = descr == "No" ? std::string() : descr;
    // General data that could not be read whole are never rewritten: the conversion would
    // store the part that was read and lose the rest.
    info.convertible = ConvertirHabilitado(info.hasDatos, d.VersionObra) && !info.datosDamaged;
    return info;
}

}  // namespace vardena
