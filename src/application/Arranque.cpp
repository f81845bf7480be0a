#include "application/Arranque.h"

#include <filesystem>

#include "works/LngPack.h"
#include "works/Catalogo.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"
#include "base/VbInput.h"

namespace vardena {

std::string TextoVersion() { return "v " + Formato00Punto(kVersionMajor + kVersionMinor / 100.0); }

void ObraDeLineaDeOrdenes(Declaraciones& d, const std::string& argumento)
{
    std::error_code ec;
    d.CarpetaObra = CarpetaDe(argumento);
    d.DirObras = CarpetaDe(d.CarpetaObra);
    d.NombreObra = ArchivoDe(d.CarpetaObra);
    if (d.DirObras.size() < 2 || !std::filesystem::is_directory(d.DirObras, ec))
        d.DirObras = d.DirPrograma;
    d.UnidadObra = d.DirObras.substr(0, 2);
    if (!d.NombreObra.empty() && !std::filesystem::is_directory(ConBarra(d.DirObras) + d.NombreObra, ec))
        d.NombreObra.clear();
    d.CarpetaObra = ConBarra(d.DirObras) + d.NombreObra;
}

std::string ComponentesQueFaltan(const Declaraciones& d)
{
    std::error_code ec;
    std::string faltan;
    const std::string carpeta = ConBarra(d.DirPrograma) + "lng/" + d.Lenguaje + "/";
    for (const char* nombre : {kMensajesFile, kLngFormsFile})
        if (!std::filesystem::is_regular_file(carpeta + nombre, ec))
            faltan += std::string(" - ") + nombre + "\r\n";
    return faltan;
}

Splash::Splash(Declaraciones& d, std::string argumento) : Form(d, "Splash"), argumento_(std::move(argumento))
{
    Add(Kind::Label, "Lbversion");
    Add(Kind::Label, "LbProducto").SetCaption(std::string(kProductWord) + " 3");
    Add(Kind::Label, "LbTitulo").SetCaption("Conversor de obras de la versión 3 a la versión 3.50");
}

void Splash::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "Splash_Form_Load", [&] {
        TraduceForm(*this);
        CargaIdioma(d);
        LlenaCatalogo(d);
        personal_ = d.platform.registry ? d.platform.registry->ShellFolders("Personal") : std::string();
        NombreDat(d, "NOMBRE.DAT", "L");
        // A missing component is noted in a warning that is not shown: the program goes on.
        const std::string faltan = ComponentesQueFaltan(d);
        aviso_ = faltan.empty() ? std::string() : d.Msg(147) + "\r\n" + faltan + d.Msg(148);
        if (!argumento_.empty())
            ObraDeLineaDeOrdenes(d, argumento_);
    });
}

void Splash::Form_Activate()
{
    ConVentanaError(decl(), "Splash_Form_Activate", [&] { At("Lbversion").SetCaption(TextoVersion()); });
}

}  // namespace vardena
