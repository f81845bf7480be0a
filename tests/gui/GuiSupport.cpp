#include "gui/GuiSupport.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>

#include "works/Catalogo.h"

namespace vardena::test {

namespace fs = std::filesystem;

bool PapeleraEnCarpeta::APapelera(const std::string& path)
{
    std::error_code ec;
    fs::rename(path, carpeta_ + "/" + fs::path(path).filename().string(), ec);
    enviados.push_back(path);
    return !ec;
}

ProgramaDePrueba::ProgramaDePrueba(const std::string& obra)
    : app(ui, std::make_unique<MemorySettings>(), RecursosDePrueba()), programaPtr(std::make_unique<Programa>(app)), programa(*programaPtr)
{
    fs::copy(VARDENA_EXAMPLES, dir.path(), fs::copy_options::recursive);
    auto bin = std::make_unique<PapeleraEnCarpeta>(basura.path());
    papelera = bin.get();
    app.platform.recycleBin = std::move(bin);
    SaveSetting(app.decl, "Obra", "Directorio", dir.path());
    SaveSetting(app.decl, "Obra", "Nombre", obra);
    SaveSetting(app.decl, "Preferencias", "VerCarpetas", "Si");
    VistaForm::Detiene() = [](const std::string& motivo) { ADD_FAILURE() << "the program halted: " << motivo; };
    programa.alTerminar = [] {};
    programa.Arranca("", false);
    Espera();
}

ProgramaDePrueba::~ProgramaDePrueba()
{
    programaPtr.reset();
    Espera();
}

void ContestaDialogo(std::function<void(QWidget*)> responde)
{
    auto* timer = new QTimer();
    timer->setInterval(5);
    QObject::connect(timer, &QTimer::timeout, [timer, responde] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            timer->stop();
            timer->deleteLater();
            responde(modal);
        }
    });
    timer->start();
}

void Escribe(QLineEdit* edit, const QString& texto)
{
    ASSERT_NE(edit, nullptr);
    edit->setText(texto);
    emit edit->textEdited(texto);
}

void Espera()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

}  // namespace vardena::test
