#pragma once
// A running program's state: its platform services, its Ui and its shared variables, set up as
// the start-up does (program folder, language pack, catalogue).

#include <memory>
#include <string>

#include "shell/Platform.h"
#include "works/Declaraciones.h"

namespace vardena {

struct Aplicacion {
    // `programDir` holds the resources (lng/, Nieve, slab catalogues); empty finds them beside
    // the executable or in the source tree.
    Aplicacion(Ui& ui, std::unique_ptr<SettingsStore> settings, std::string programDir = {});

    Platform platform;
    Declaraciones decl;
};

// The services of the platform the program runs on (recycle bin, opening documents, system
// facts, registry). The program's main() registers them once; every Aplicacion made after
// installs them. Without a registration the services stay empty.
using InstaladorServicios = void (*)(Platform&);
void RegistraServicios(InstaladorServicios instala);

// The folder of the program's resources: $VARDENA_RESOURCES, then ../share/vardena beside the
// executable, then the source tree's resources/.
std::string ResourceDir();

}  // namespace vardena
