#pragma once
// The program's Ui on Qt: message boxes by QMessageBox, and the error window ErrorFrm with
// its detail box, "Guardar" (Error.txt and Error.bmp in the program's folder), "Reintentar"
// and "Salir".

#include <QDialog>
#include <QMessageBox>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "works/InfoSistema.h"
#include "base/Ui.h"

class QPlainTextEdit;
class QPushButton;

namespace vardena {

struct Declaraciones;

class UiQt : public Ui {
public:
    int MsgBox(std::string_view prompt, int style, std::string_view title) override;
    bool ErrorFrm(std::string_view origin, int number, std::string_view description) override;

    // The program's state, once it exists: the error window reads its settings and facts.
    Declaraciones* decl = nullptr;
};

// The buttons of a message box style: the message that gives each its caption, and its answer.
struct BotonRespuesta {
    int mensaje;
    int respuesta;
};
std::vector<BotonRespuesta> BotonesDeEstilo(int style);

class ErrorDialog : public QDialog {
public:
    ErrorDialog(Declaraciones* d, const DatosError& e, QWidget* parent = nullptr);

    // The report that "Guardar" writes.
    const std::string& TextoError() const { return textoError_; }
    bool DetalleVisible() const;
    void cmd_Detail();
    void GuardaErr();

private:
    // A text of the window from the message table.
    QString Texto(int mensaje, std::initializer_list<std::string> args = {}) const;
    // Tells the outcome of "Guardar" in a box over the window.
    void Avisa(QMessageBox::Icon icono, const QString& texto);

    Declaraciones* d_;
    std::string textoError_;
    QPlainTextEdit* detalle_;
    QPushButton* botonDetalle_;
    int altoCerrado_ = 0;
};

}  // namespace vardena
