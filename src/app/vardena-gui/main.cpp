// vardena-gui: the desktop program. With no argument it opens the last work; with the path of
// a file of a work, that work. "--screenshot DIR [--work PATH]" writes pictures of its windows
// into DIR and ends.

#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "shell/linux/ServiciosLinux.h"
#include "controls/Capturas.h"
#include "controls/Programa.h"
#include "controls/UiQt.h"
#include "controls/Vista.h"
#include "application/Aplicacion.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"
#include "works/Obra.h"

namespace {

int Uso()
{
    std::fprintf(stderr, "usage: vardena-gui [PATH-OF-A-FILE-OF-A-WORK]\n"
                         "       vardena-gui --screenshot DIR [--work WORK-FOLDER]\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    vardena::RegistraServicios(vardena::InstalaServiciosLinux);
    QApplication qapp(argc, argv);
    std::string capturas, obra, argumento;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--screenshot" && i + 1 < argc)
            capturas = argv[++i];
        else if (a == "--work" && i + 1 < argc)
            obra = argv[++i];
        else if (a.rfind("--", 0) == 0 || !argumento.empty())
            return Uso();
        else
            argumento = a;
    }

    if (!capturas.empty()) {
        // Pictures: settings in memory, boxes answered without a person.
        vardena::RecordingUi ui;
        vardena::Aplicacion app(ui, std::make_unique<vardena::MemorySettings>());
        vardena::SaveSetting(app.decl, "Preferencias", "VerCarpetas", "Si");
        try {
            std::error_code ec;
            std::filesystem::create_directories(capturas, ec);
            vardena::Programa programa(app);
            if (!obra.empty()) {
                const std::string carpeta = std::filesystem::absolute(obra).lexically_normal().string();
                vardena::AbreObra(app.decl, carpeta);
            }
            for (const auto& f : vardena::Capturas(programa, capturas))
                std::printf("%s\n", f.c_str());
            for (const auto& b : ui.boxes)
                std::fprintf(stderr, "vardena-gui: box: %s\n", b.prompt.c_str());
        } catch (const std::exception& e) {
            std::fprintf(stderr, "vardena-gui: %s\n", e.what());
            return 1;
        }
        return 0;
    }

    vardena::UiQt ui;
    vardena::Aplicacion app(ui, std::make_unique<vardena::IniSettings>(vardena::IniSettings::DefaultPath()));
    ui.decl = &app.decl;
    vardena::Programa programa(app);
    programa.Arranca(argumento, true);
    return qapp.exec();
}
