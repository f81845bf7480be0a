#pragma once
// The desktop program: the main window over the Menu form, and the program's course from the
// splash to the main window, from the main window to an element window and back.

#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "controls/Ventanas.h"
#include "controls/Vista.h"
#include "application/Menu.h"

class QProgressBar;
class QStackedWidget;
class QLabel;
class QAction;
class QMenu;

namespace vardena {

struct Aplicacion;
class Programa;

class VentanaMenu : public QMainWindow {
public:
    VentanaMenu(Programa& programa, std::unique_ptr<Menu> menu);
    ~VentanaMenu() override;

    Menu& menu() const { return *menu_; }
    VistaForm& vista() const { return *vista_; }
    // The menu bar's action of an item.
    QAction* Accion(const std::string& item) const;
    // Called once the window has closed, with the menu code of what opens next ("" ends).
    std::function<void(const std::string& opcion)> alCerrar;

protected:
    void closeEvent(QCloseEvent* e) override;

private:
    void CreaMenus();
    QWidget* CreaCentro();
    void Actualiza();
    void EligeCarpeta();
    // The text of a message of the pack, "[n]" when the pack lacks it.
    QString Texto(int mensaje) const;
    // Keeps a text of the window's own layout in step with the language: `pone` is run now
    // and again at each refresh, after a change of language among others.
    void Rotula(std::function<void()> pone);

    Programa& programa_;
    std::unique_ptr<Menu> menu_;
    std::unique_ptr<VistaForm> vista_;
    std::map<std::string, QAction*> acciones_;
    std::map<std::string, QMenu*> menus_;
    QStackedWidget* contenido_ = nullptr;
    QProgressBar* progreso_ = nullptr;
    QWidget* carpetas_ = nullptr;
    std::vector<std::function<void()>> rotulos_;
    bool cerrada_ = false;
};

class Programa {
public:
    explicit Programa(Aplicacion& app);
    ~Programa();

    Aplicacion& app() const { return app_; }

    // The start: the splash's load (language, catalogue, location, the command line's work),
    // then the main window. With `conSplash` the splash shows for a moment first.
    void Arranca(const std::string& argumento, bool conSplash);

    // The main window, made anew; each making runs its load in full.
    VentanaMenu* AbreMenu();
    // The window of a menu code ("DAGE", "HVIG"...) in place of the main window; nullptr when
    // the code opens nothing here (the main window comes back).
    VentanaForm* AbreOpcion(const std::string& opcion);
    // A window over the main window (frmHormigon), without closing it.
    VentanaForm* AbreEncima(const std::string& formulario);

    // The window open now: the main window or the element window that replaced it.
    QWidget* Actual() const { return actual_; }
    VentanaMenu* Menu() const;

    // Called when the program's last window closes for good.
    std::function<void()> alTerminar;

private:
    // The form of a window, loaded; a box and nullptr when this program has no such form.
    std::unique_ptr<Form> CargaVentana(const std::string& nombre, const std::string& pedido);
    VentanaForm* Coloca(std::unique_ptr<Form> form);
    void Registra(Form& form, QWidget* w);
    void Olvida(QWidget* w);

    Aplicacion& app_;
    QWidget* actual_ = nullptr;
    std::map<const Form*, QWidget*> ventanas_;
};

}  // namespace vardena
