#pragma once
// The help buttons of the steel and timber forms, on whatever class the form has: cmdClase
// opens the section class dialog with the form's section and steel, cmdCatUso shows the use
// categories of the imposed loads, CmdAyuda the service classes of timber (as the general data
// do). A form without one of these buttons simply has no such handler.

#include "building/DatosGen.h"
#include "steel_timber/ClaseAcero.h"
#include "works/Declaraciones.h"

namespace vardena {

template <typename Base>
class ConBotonesAyuda : public Base {
public:
    ConBotonesAyuda(Declaraciones& d, const TablaForm& tabla) : Base(d, tabla)
    {
        if (Control* c = this->Find("cmdClase"))
            c->onClick = [this](Control&) { this->Evento("cmdClase_Click", [this] { AbreClaseAcero(*this); }); };
        if (Control* c = this->Find("cmdCatUso"))
            c->onClick = [this](Control&) {
                this->Evento("cmdCatUso_Click", [this] { MuestraCategoriasUso(this->decl(), this->Caption()); });
            };
        if (Control* c = this->Find("CmdAyuda"))
            c->onClick = [this](Control&) {
                this->Evento("CmdAyuda_Click", [this] { MuestraClasesServicio(this->decl(), this->Caption()); });
            };
    }
};

}  // namespace vardena
