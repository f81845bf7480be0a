#include "works/Obra.h"

#include <filesystem>

#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Subrut.h"

namespace vardena {

bool ConvertirHabilitado(bool hasDatos, float versionObra)
{
    return hasDatos && versionObra != 0 && versionObra <= 3.01f;
}

std::string TextoRecuperacion(const Declaraciones& d, const ObraInfo& info)
{
    using R = Recuperacion::Resultado;
    switch (info.recovery.resultado) {
    case R::Terminada: return Mensaje(d, 1403, {info.folder});
    case R::Descartada: return Mensaje(d, 1404, {info.folder});
    case R::Limpiada: return Mensaje(d, 1405, {info.folder, std::to_string(info.recovery.archivos)});
    case R::Nada:
    case R::Ocupada: return {};
    }
    return {};
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
        for (const UnreadLine& u : st.unread)
            info.unreadLines.push_back(u.Sentence());
    }
    info.version = d.VersionObra;
    info.versionText = Formato00Punto(d.VersionObra);
    info.contents = ListaElementos(d, path);
    std::string descr;
    DatosFile(d, "DESCR.~CE", "L", descr);
    info.description = descr == "No" ? std::string() : descr;
    // The button follows the version rule alone. General data read only in part convert with
    // what was read; the fields that were not keep their values and unreadLines names them,
    // so that the log can say which lines were not read.
    info.convertible = ConvertirHabilitado(info.hasDatos, d.VersionObra);
    return info;
}

}  // namespace vardena
