#include "works/InfoSistema.h"

#include <cstdio>

#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Subrut.h"

namespace vardena {

std::string FormatoKb(unsigned long long bytes)
{
    std::string digitos = std::to_string(bytes / 1024);
    if (digitos.size() < 4)
        digitos.insert(0, 4 - digitos.size(), '0');
    std::string out;
    for (size_t i = 0; i < digitos.size(); ++i) {
        if (i > 0 && (digitos.size() - i) % 3 == 0)
            out += '.';
        out += digitos[i];
    }
    return out + " Kb";
}

std::string InfoSistema(const SystemFacts& f)
{
    std::string out = std::string(12, '-') + "\r\n";
    auto linea = [&out](std::string_view a, std::string_view b = {}) {
        out += a;
        out += b;
        out += "\r\n";
    };
    linea(f.systemName, "  v" + f.systemVersion);
    linea("Build: ", f.build);
    linea("CSDver: ", f.servicePack);
    linea("Tipo CPU: ", f.processor.empty() ? "(desconocido)" : f.processor);
    linea("Nº de CPUs: ", std::to_string(f.cpuCount));
    linea("Mem.Física Total : ", FormatoKb(f.memoryTotal));
    linea("Mem.Física Libre : ", FormatoKb(f.memoryFree));
    linea("Mem.Virtual Total: ", FormatoKb(f.virtualTotal));
    linea("Mem.Virtual Libre: ", FormatoKb(f.virtualFree));
    for (const DriveFact& u : f.drives) {
        linea(u.mount);
        linea("Tipo: ", u.kind);
        linea("Numero serie: ", u.serial);
        linea("Etiqueta: ", u.label);
        linea("Libre: ", FormatoKb(u.freeBytes));
    }
    return out;
}

std::string VersionInforme()
{
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.3f", kVersionMajor + kVersionMinor / 100.0 + 0 / 1000.0);
    return buf;
}

std::string TextoError(const DatosError& e, std::string_view fecha, const SystemFacts& facts)
{
    std::string out = std::string(kProductWord) + " v." + VersionInforme() + "  \r\n";
    out += "Se produjo un error el " + std::string(fecha) + "\r\n";
    out += "Número: " + std::to_string(e.numero) + "\r\n";
    out += "Causa: " + e.descripcion + "\r\n";
    out += "Origen: " + e.fuente + "\r\n";
    out += "Línea: " + std::to_string(e.linea) + "\r\n";
    out += e.origen + "\r\n";
    return out + InfoSistema(facts);
}

std::string TextoDetalle(const DatosError& e, const std::string& textoError)
{
    return "Error Nº : " + std::to_string(e.numero) + "\r\n" + textoError;
}

std::string ContenidoErrorTxt(const std::string& textoError)
{
    const std::string raya(57, '-');
    std::string cuerpo = textoError;
    if (cuerpo.size() < 2 || cuerpo.compare(cuerpo.size() - 2, 2, "\r\n") != 0)
        cuerpo += "\r\n";
    return raya + "\r\n" + cuerpo + raya + "\r\n";
}

std::string GuardaErrorTxt(const std::string& carpeta, const std::string& textoError)
{
    const std::string ruta = ConBarra(carpeta) + "Error.txt";
    WriteFileAtomic(ruta, ToDiskText(ContenidoErrorTxt(textoError)));
    return ruta;
}

std::string AvisoErrorGuardado()
{
    return "Se han almacenado los ficheros 'Error.txt' y 'Error.bmp' \r\n"
           "en la  carpeta del programa. Si desea comunicarnos este error \r\n"
           "comprimalos y envíelos por e-mail, para poder estudiarlo.";
}

}  // namespace vardena
