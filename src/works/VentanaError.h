#pragma once
// The error window around a handler: a failure shows the window under the handler's label;
// "Reintentar" runs the handler again, any other answer ends the program with the failure's text.

#include <string>

#include "works/Declaraciones.h"
#include "works/FileIo.h"
#include "works/Form.h"
#include "works/VbInput.h"

namespace vardena {

// `prefijo` goes before the text of failures that do not name their file themselves.
template <typename Fn>
auto ConVentanaError(Declaraciones& d, const char* origen, Fn cuerpo, const std::string& prefijo = {})
    -> decltype(cuerpo())
{
    for (;;) {
        int numero = 0;
        std::string descripcion;
        try {
            return cuerpo();
        } catch (const PropertyError& e) {
            numero = e.number();
            descripcion = prefijo + e.what();
        } catch (const FieldError& e) {
            numero = e.number();
            descripcion = prefijo + e.what();
        } catch (const FileError& e) {
            numero = 75;
            descripcion = e.what();
        }
        d.ErrorOrigen = origen;
        if (!d.ui.ErrorFrm(origen, numero, descripcion))
            throw ProgramHalt(descripcion);
    }
}

}  // namespace vardena
