#pragma once
// The dialogs that act on whole works: NuevaEst makes one, Copiar copies one, BorraEst sends one
// to the recycle bin; and the numbering of a proposed name that is already taken.

#include <string>
#include <string_view>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;
class Menu;

// Numbers a name: "x_07" becomes "x_08"; "x_99" becomes "x_99_00"; a name with no "_" and two
// digits at its end gets "_00".
std::string NumeraNombre(std::string_view nombre);
// The first of `nombre`, NumeraNombre(nombre), NumeraNombre(NumeraNombre(nombre))... that names
// nothing inside `carpeta`.
std::string SiguienteNombre(const std::string& carpeta, std::string nombre);

// A dialog on works: the main window it refreshes, and "Aceptar" and "Cancelar".
class DialogoObra : public Form {
public:
    DialogoObra(Declaraciones& d, Menu& menu, std::string name, std::string caption);

    virtual void Aceptar_Click() = 0;
    void Cancelar_Click() { descargado_ = true; }
    // True once the dialog has closed.
    bool Descargado() const { return descargado_; }

protected:
    // The folder of the works, as the dialog shows it.
    std::string Carpeta() const;
    // Adds a text box with its label; `soloLectura` makes it a shown value.
    Control& Campo(const char* nombre, const char* etiqueta, bool soloLectura = false);
    void AnadeBotones();
    // The main window lists the folder again and selects `obra` when it is given.
    void RefrescaMenu(const std::string& obra = {});
    void Cierra() { descargado_ = true; }

    Menu& menu_;

private:
    bool descargado_ = false;
};

class NuevaEst : public DialogoObra {
public:
    NuevaEst(Declaraciones& d, Menu& menu);
    void Form_Load() override;
    void Aceptar_Click() override;
    void OpSistema_Click();
};

class Copiar : public DialogoObra {
public:
    Copiar(Declaraciones& d, Menu& menu);
    void Form_Load() override;
    void Aceptar_Click() override;
};

class BorraEst : public DialogoObra {
public:
    BorraEst(Declaraciones& d, Menu& menu);
    void Form_Load() override;
    void Aceptar_Click() override;
};

}  // namespace vardena
