#pragma once
// The mapping of a form model onto Qt widgets: one adapter per control kind. An adapter shows
// its control (model to widget, in Refresca) and passes the user's actions to it (widget to
// model, through Control::SetText, SetListIndex, Click, KeyPress...). After every action the
// whole view is refreshed from the model, so that whatever a handler changed shows at once.
// The widgets hold no value of their own: the model is the one truth.

#include <QObject>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Form.h"

class QLabel;
class QComboBox;

namespace vardena {

class VistaForm;

// UTF-8 text to Qt.
QString Q(const std::string& s);

// How a control is shown, beyond its kind.
struct OpcionesAdaptador {
    bool multilinea = false;  // a text box of several lines
    bool alTerminar = false;  // a text box hands its text over when editing ends, not per key
};

class Adaptador {
public:
    Adaptador(Control& c, VistaForm& vista) : control_(c), vista_(vista) {}
    virtual ~Adaptador() = default;
    Control& control() const { return control_; }
    virtual QWidget* widget() const = 0;
    // Model to widget: value, caption, enabled, visible, tool tip.
    virtual void Refresca() = 0;

protected:
    // Runs a user's action on the model, then refreshes the view.
    void Accion(const std::function<void()>& f);
    void RefrescaComun();

    Control& control_;
    VistaForm& vista_;
    // The context of the widget's connections and the owner of its event filters: both end with
    // the adapter, so a widget that outlives it (a dialog's line edit losing its focus as the
    // dialog is taken down) never calls into an adapter that is gone.
    QObject contexto_;
};

std::unique_ptr<Adaptador> CreaAdaptador(Control& c, VistaForm& vista, const OpcionesAdaptador& op = {});

// The text shown beside a control: its caption, or its name and index when it has none.
std::string EtiquetaDe(const Control& c);

// The view of one form: its adapters and the refresh after each action.
class VistaForm {
public:
    explicit VistaForm(Form& form);
    ~VistaForm();
    Form& form() const { return form_; }

    // The adapter of a control, made on first use.
    Adaptador& De(Control& c, const OpcionesAdaptador& op = {});
    QWidget* Widget(std::string_view nombre, int index = -1, const OpcionesAdaptador& op = {});
    bool Tiene(const Control& c) const { return adaptadores_.count(&c) != 0; }

    // Runs an action on the model under the program's guard (a halt ends the program), then
    // refreshes every adapter and tells the window.
    void Ejecuta(const std::function<void()>& accion);
    void Refresca();

    // Called after each action, once the view is refreshed.
    std::function<void()> trasAccion;

    // What ends the program when a handler halts it ("Salir" in the error window, an internal
    // impossibility). By default the program exits at once.
    static std::function<void(const std::string& motivo)>& Detiene();

private:
    Form& form_;
    std::map<const Control*, std::unique_ptr<Adaptador>> adaptadores_;
    bool refrescando_ = false;
};

// Puts `items` in a pick list, leaving it alone when it holds them already.
void PoneItems(QComboBox* combo, const std::vector<std::string>& items);

// A label of a field, in the window's style.
QLabel* Etiqueta(const std::string& texto, QWidget* padre = nullptr);

}  // namespace vardena
