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

// The folder of the program's resources: $VARDENA_RESOURCES, then ../share/vardena beside the
// executable, then the source tree's resources/.
std::string ResourceDir();

}  // namespace vardena
