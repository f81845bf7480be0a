#include "FuzzBodies.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "reports/RtfLector.h"
#include "shell/Platform.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"

namespace vardena::fuzz {
namespace {

struct Env {
    Env() : decl(ui, platform)
    {
        platform.settings = std::make_unique<MemorySettings>();
        LlenaCatalogo(decl);
        folder = (std::filesystem::temp_directory_path() / ("vardena-fuzz-" + std::to_string(::getpid()))).string();
        std::filesystem::create_directories(folder);
        decl.CarpetaObra = folder;
    }
    RecordingUi ui;
    Platform platform;
    Declaraciones decl;
    std::string folder;
};

Env& Shared()
{
    static Env env;
    return env;
}

std::string Put(const std::string& name, const uint8_t* data, size_t size)
{
    const std::string path = Shared().folder + "/" + name;
    std::ofstream(path, std::ios::binary | std::ios::trunc).write(reinterpret_cast<const char*>(data),
                                                                  static_cast<std::streamsize>(size));
    return path;
}

std::unique_ptr<Form> SmallForm(Declaraciones& d)
{
    auto f = std::make_unique<Form>(d, "frmZapCorr");
    f->Add(Kind::CheckBox, "Check1");
    f->Add(Kind::TextBox, "TxtQ", 2);
    f->Add(Kind::UCZapatas, "UCArmZap", 0);
    f->Add(Kind::OptionButton, "OpTipoMuro", 1);
    f->Add(Kind::OptionButton, "OpTipoMuro", 0);
    f->Add(Kind::UCPerfil, "UCPerfil1");
    f->Add(Kind::UCNumDiam, "UCArVig");
    f->Add(Kind::UCMallazo, "UCMall");
    f->Add(Kind::ComboBox, "CmbHorm").SetItems({"Idem gral.", "HA-10", "HA-15", "HA-20", "HA-25", "HA-30"});
    f->Add(Kind::TextBox, "txtTitulo");
    return f;
}

template <typename Fn>
void Guarded(Fn fn)
{
    Env& env = Shared();
    env.ui.boxes.clear();
    env.ui.errors.clear();
    try {
        fn(env);
    } catch (const ProgramHalt&) {
        // The reader refused the input through the error window: the expected outcome for junk.
    }
}

}  // namespace

void PositionalRecord(const uint8_t* data, size_t size)
{
    Guarded([&](Env& env) {
        auto f = SmallForm(env.decl);
        FormLeeFile(*f, Put("p.~ZC", data, size));
    });
}

void NamedRecord(const uint8_t* data, size_t size)
{
    Guarded([&](Env& env) {
        auto f = SmallForm(env.decl);
        FormLeeFile2(*f, Put("n.~ZC", data, size));
    });
}

void GeneralData(const uint8_t* data, size_t size)
{
    Guarded([&](Env& env) {
        Put("DATOS.~CE", data, size);
        std::string text;
        DatosFile(env.decl, "DATOS.~CE", "L", text);
    });
}

void RtfReader(const uint8_t* data, size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    (void)RtfATexto(bytes);
    (void)RtfAHtml(bytes);
}

}  // namespace vardena::fuzz
