#pragma once
// The error window around a handler: a failure shows the window under the handler's label;
// "Reintentar" runs the handler again, any other answer ends the program with the failure's text.

#include <stdexcept>
#include <string>
#include <string_view>

#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "base/VbInput.h"

namespace vardena {

// Runs a handler's body; a run-time failure in it (a run-time error such as a bad property or
// a division by zero, a field that cannot be read, a file that cannot be written, any other
// std::exception except ProgramHalt) shows the error window under `origen`, and ErrorOrigen
// carries the handler's name out and the answer back ("Retry" or "Ok"). "Reintentar" runs the
// body again; any other answer ends the program by throwing ProgramHalt. `prefijo` goes before
// the text of failures that do not name their file themselves.
template <typename Fn>
auto ConVentanaError(Declaraciones& d, std::string_view origen, Fn cuerpo, const std::string& prefijo = {})
    -> decltype(cuerpo())
{
    for (;;) {
        int numero = 0;
        std::string descripcion;
        try {
            return cuerpo();
        } catch (const ProgramHalt&) {
            throw;
        } catch (const ErrorEjecucion& e) {
            numero = e.number();
            descripcion = prefijo + e.what();
        } catch (const FieldError& e) {
            numero = e.number();
            descripcion = prefijo + e.what();
        } catch (const FileError& e) {
            numero = 75;
            descripcion = e.what();
        } catch (const std::exception& e) {
            numero = 5;
            descripcion = prefijo + e.what();
        }
        d.ErrorOrigen = std::string(origen);
        const bool reintenta = d.ui.ErrorFrm(origen, numero, descripcion);
        d.ErrorOrigen = reintenta ? "Retry" : "Ok";
        if (!reintenta)
            throw ProgramHalt(descripcion);
    }
}

}  // namespace vardena
