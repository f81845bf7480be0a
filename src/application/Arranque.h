#pragma once
// Start-up: the splash form's work (language, messages, catalogue, location, the command line)
// and the version label; and the error-window protocol that every window handler follows.

#include <functional>
#include <string>
#include <string_view>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;



// The version label of the splash: "v " and the program's version in Formato00Punto.
std::string TextoVersion();

// Takes the path of a file of a work from the command line (step 7 of the splash): the work
// becomes the current one; a folder that is gone falls back to the program's folder, a work
// that is gone to no work.
void ObraDeLineaDeOrdenes(Declaraciones& d, const std::string& argumento);

// The components the program needs that are missing: each as " - " + name + line end. An
// empty text when all are there. On this platform the components are the language pack files.
std::string ComponentesQueFaltan(const Declaraciones& d);

// The first window. Its load does the start-up; the desktop program shows it for a moment.
class Splash : public Form {
public:
    // `argumento`: the command line's path of a file of a work, "" when none.
    Splash(Declaraciones& d, std::string argumento = {});

    void Form_Load() override;
    void Form_Activate();

    // The user's documents folder, the default place of works.
    const std::string& CarpetaPersonal() const { return personal_; }
    // The warning text of missing components: built and not shown.
    const std::string& Aviso() const { return aviso_; }

private:
    std::string argumento_;
    std::string personal_;
    std::string aviso_;
};

}  // namespace vardena
