#pragma once
// The program's windows, each over its form model: the element window (one class for every
// element form, laid out from the form's controls), the general data with the building
// section, the small modal dialogs, the unit systems' table and the splash.

#include <QDialog>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/GruposVentana.h"
#include "controls/Vista.h"
#include "base/Form.h"

class QStackedWidget;
class QPushButton;
class QVBoxLayout;

namespace vardena {

class DatosGen;

// A window over a form that it owns. Closing it unloads the form (when the form allows it) and
// tells `alCerrar`.
class VentanaForm : public QWidget {
public:
    VentanaForm(std::unique_ptr<Form> form, QWidget* parent = nullptr);
    ~VentanaForm() override;

    Form& form() const { return *form_; }
    VistaForm& vista() const { return *vista_; }
    // Called once the window has closed and its form is unloaded.
    std::function<void()> alCerrar;

protected:
    void closeEvent(QCloseEvent* e) override;
    // Closing by the window control: false keeps the window open.
    virtual bool PuedeCerrar() { return true; }
    // True when the form has unloaded itself (a "SALIR" button): the window closes.
    virtual bool Descargada() const { return false; }
    void TrasAccion();

    std::unique_ptr<Form> form_;
    std::unique_ptr<VistaForm> vista_;
    bool descargada_ = false;
};


// The window of any element form.
class VentanaElemento : public VentanaForm {
public:
    explicit VentanaElemento(std::unique_ptr<Form> form, QWidget* parent = nullptr);

protected:
    bool Descargada() const override;

private:
    QWidget* CreaDatos();
    QWidget* CreaGrupo(const GrupoCampos& g);
    // The unit labels of a load field (technical and S.I.), and the field with them beside it.
    QWidget* Unidad(const Control& c);
    QWidget* ConUnidad(const Control& c, QWidget* w);
    QWidget* CreaPanel();
    // The widget of a field, handing its text over when editing ends where a change of the
    // field runs the form's logic.
    QWidget* WidgetDe(Control& c);
    void Actualiza();

    QStackedWidget* pila_ = nullptr;
    QPushButton* listado_ = nullptr;
    // Widgets that show while their group's frames, or their control, show.
    std::vector<std::pair<QWidget*, GrupoCampos>> grupos_;
    std::vector<std::pair<QWidget*, const Control*>> siguen_;
    // The names of a grid's rows, shown while any cell of the row shows.
    std::vector<std::pair<QWidget*, std::vector<const Control*>>> filas_;
};

// The building's general data, with the section drawn from the form's layout.
class VentanaDatosGen : public VentanaForm {
public:
    explicit VentanaDatosGen(std::unique_ptr<Form> form, QWidget* parent = nullptr);
    DatosGen& datos() const;

protected:
    bool PuedeCerrar() override;
    bool Descargada() const override { return aceptada_; }

private:
    void ConstruyeNiveles();
    void Actualiza();

    QWidget* seccion_ = nullptr;
    QWidget* niveles_ = nullptr;
    QVBoxLayout* caja_ = nullptr;
    std::vector<QWidget*> colocados_;
    int filasNiveles_ = -1;
    bool aceptada_ = false;
};

// A modal dialog over a small form (new work, copy, delete, language). `cerrado` tells when
// the form has closed itself.
class VentanaDialogo : public QDialog {
public:
    VentanaDialogo(Form& form, std::function<bool()> cerrado, QWidget* parent = nullptr);
    VistaForm& vista() { return vista_; }

protected:
    void reject() override;

private:
    Form& form_;
    VistaForm vista_;
    std::function<bool()> cerrado_;
};

// Shows a dialog form modally: the right window for its kind, until it closes.
void MuestraModal(Form& form, QWidget* parent);
// The window that shows a dialog form, not yet shown (for pictures of it).
std::unique_ptr<QDialog> CreaDialogo(Form& form, QWidget* parent);

// The first window: product, version, and the start-up's work.
class VentanaSplash : public QWidget {
public:
    VentanaSplash(Form& splash, QWidget* parent = nullptr);
};

}  // namespace vardena
