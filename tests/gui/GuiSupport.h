#pragma once
// Helpers of the window tests: the program on a scratch copy of the sample works with its
// boxes recorded, answers to modal dialogs, typing into a field.

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/Programa.h"
#include "support/TestSupport.h"
#include "application/Aplicacion.h"

class QLineEdit;
class QWidget;

namespace vardena::test {

// A recycle bin that moves what it gets into a scratch folder.
class PapeleraEnCarpeta : public RecycleBin {
public:
    explicit PapeleraEnCarpeta(std::string carpeta) : carpeta_(std::move(carpeta)) {}
    bool APapelera(const std::string& path) override;
    std::vector<std::string> enviados;

private:
    std::string carpeta_;
};

// The desktop program started (without its splash) on `obra` of a scratch copy of the samples.
struct ProgramaDePrueba {
    explicit ProgramaDePrueba(const std::string& obra);
    ~ProgramaDePrueba();
    std::string Obra(const std::string& nombre) const { return dir / nombre; }

    ScratchDir dir, basura;
    RecordingUi ui;
    Aplicacion app;
    PapeleraEnCarpeta* papelera = nullptr;
    std::unique_ptr<Programa> programaPtr;
    Programa& programa;
};

// Runs `responde` on the next modal dialog as soon as it shows.
void ContestaDialogo(std::function<void(QWidget*)> responde);
// Types into a line edit as a person would (textEdited is raised).
void Escribe(QLineEdit* edit, const QString& texto);
// Lets queued events run (closing and opening windows).
void Espera();

}  // namespace vardena::test
