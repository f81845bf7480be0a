#include "ObraGrande.h"

#include <filesystem>
#include <iterator>

#include "frame/Formularios.h"
#include "shell/Platform.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"

namespace vardena::muestras {
namespace {

// A mix of small and large forms, as a real work holds them.
const char* kForms[] = {"frmZapCorr", "frmVigHorm", "frmPilHorm", "frmForjRet", "frmMuroH", "frmPilMet", "frmSuelo",
                        "frmZap"};

struct Quiet : Ui {
    int MsgBox(std::string_view, int style, std::string_view) override { return (style & 7) ? mb::Yes : mb::Ok; }
    bool ErrorFrm(std::string_view, int, std::string_view) override { return false; }
};

}  // namespace

void EscribeObraGrande(const std::string& folder, int records)
{
    namespace fs = std::filesystem;
    Quiet ui;
    Platform platform;
    platform.settings = std::make_unique<MemorySettings>();
    Declaraciones d(ui, platform);
    d.GeneralDataDefaults();
    LlenaCatalogo(d);
    d.CarpetaObra = folder;
    const fs::path w(folder);
    WriteFileAtomic((w / "DATOS.~CE").string(), ToDiskText(DatosText(d, 3.01)));
    WriteFileAtomic((w / "DESCR.~CE").string(), ToDiskText("Obra de medida\n"));
    for (int i = 0; i < records; ++i) {
        const char* name = kForms[i % std::size(kForms)];
        auto f = CargaForm(d, name);
        const std::string title = "Elemento " + std::to_string(i);
        f->At("txtTitulo").SetText(title);
        const std::string code = CodigoDeForm(d, name);
        FormGuardaFile(*f, (w / (title + ".~" + code)).string());
        WriteFileAtomic((w / (title + ".l" + code)).string(), "{\\rtf1\\ansi resultados}\r\n");
    }
}

}  // namespace vardena::muestras
