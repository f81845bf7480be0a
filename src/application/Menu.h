#pragma once
// The main window as a form: the folder of the works, the list of works, the selected work's
// contents, description and version, the "CONVERTIR" command, the step labels and the menu bar.
// Menu items are command-button controls of the form; a checkable item keeps its mark in the
// control's "Checked" property ("True"/"False"). The desktop program binds widgets to these
// controls; the hooks below are what only a window system can do.

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;

// One menu of the menu bar: its control, and its items in order ("-" stands for a separator).
struct GrupoMenu {
    std::string nombre;
    std::vector<std::string> items;
};

// An element command of a family menu: the item's control, its caption and its menu code.
struct ComandoElemento {
    std::string item;
    std::string caption;  // empty: the catalogue label of the code
    std::string codigo;   // four-letter menu code ("HVIG"), or the form name for mnuHormig
};

// The items of each element family, in menu order.
const std::vector<std::pair<std::string, std::vector<ComandoElemento>>>& FamiliasMenu();

// The form that a menu code opens ("DAGE" DatosGen, "DAPR" frmDatosProy, "LIST" Listado, an
// element's code its form, as CreaForm spells it); "" for an unknown code.
std::string FormularioDeOpcion(std::string_view opcion);

// The step labels Lab_1 to Lab_9.
const std::vector<std::string>& TextosPasos();

// The texts of a checkable item.
inline constexpr std::string_view kMarcado = "True";
inline constexpr std::string_view kSinMarcar = "False";

class Menu : public Form {
public:
    // What only the desktop program can do. Unset hooks do nothing (a headless run).
    struct Ganchos {
        // Shows a dialog form modally; returns when the dialog has closed.
        std::function<void(Form& dialogo)> modal;
        // The screen's size in pixels; unset means large enough.
        std::function<std::pair<int, int>()> pantalla;
        // The window is busy (disabled, busy cursor) during a long run, and free again.
        std::function<void(bool ocupado)> ocupado;
        // The progress of a conversion: records done of the total, the record's name.
        std::function<void(int hecho, int total, const std::string& que)> progreso;
        // The search tool of "Buscar obras"; it may change the stored location.
        std::function<void()> buscaObras;
        // The window must close: Opcion says what opens in its place ("" ends the program).
        std::function<void()> cierra;
        // Opens a window over the main window without closing it (mnuHormig, SistUnid...).
        std::function<void(const std::string& formulario)> abreEncima;
    };

    explicit Menu(Declaraciones& d);

    Ganchos ganchos;

    void Form_Load() override;
    // Stores the description and the location. Opening what Opcion names is the caller's.
    void Form_Unload() override;

    // The handlers.
    void Dire_Change();
    void Drive1_Change();
    void List1_Click();
    void List1_KeyDown(int keyCode);
    void GuardaDescr();
    void GuardaDat();
    void Seleccion(bool flag);
    void DescripcionRtf();
    void VerMenus(bool flag);
    void UCBconvertir_Click();
    void UCBexplorer_Click();
    void Nueva_Click();
    void Copi_Click();
    void Eliminar_Click();
    void Busca_Click();
    void Idioma_Click();
    void Salir_Click();

    // Stores a menu code and closes the window, as every element command does.
    void AbreOpcion(const std::string& opcion);

    // The menu bar, in order.
    static const std::vector<GrupoMenu>& BarraMenus();
    // A checkable item's mark.
    bool Marcado(std::string_view item) const;
    void Marca(std::string_view item, bool on);

    // The menu code of the form that opens when this window closes; "" ends the program.
    std::string Opcion;
    // The window asked to close (an element command, "Salir", a new work).
    bool PideCierre() const { return pideCierre_; }
    // The last conversion's entries, for whoever wants the details.
    int ultimosRegistros = 0;

private:
    void Crea();
    void ConectaEventos();
    void LeeMarcas();
    // The commands of the forms without a catalogue row take their label messages.
    void RotulaFormasSinFila();
    void Preferencia(std::string_view item, std::string_view key);
    void FormatoCaptura(std::string_view item, std::string_view formato);
    void PonEncimaSegunPreferencia();
    void SituaCarpeta();
    // Runs a handler's body under the error window with the handler's label.
    void Maneja(const char* origen, const std::function<void()>& cuerpo);

    bool descrCambiada_ = false;
    bool descrMensaje_ = false;
    bool pideCierre_ = false;
};

}  // namespace vardena
