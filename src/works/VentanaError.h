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

// A run-time error of a calculation, under the run time's number: 6 overflow (0 / 0), 9 a
// subscript out of range, 11 division by zero.
class ErrorEjecucion : public std::runtime_error {
public:
    ErrorEjecucion(int number, const std::string& what) : std::runtime_error(what), number_(number) {}
    int number() const { return number_; }

private:
    int number_;
};

// Runs a handler's body; a run-time failure in it (a bad property, a field that cannot be
// read, a file that cannot be written, any other std::exception except ProgramHalt) shows the
// error window under `origen`, and ErrorOrigen carries the handler's name out and the answer
// back ("Retry" or "Ok"). "Reintentar" runs the body again; any other answer ends the program
// by throwing ProgramHalt. `prefijo` goes before the text of failures that do not name their
// file themselves.
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
        } catch (const PropertyError& e) {
            numero = e.number();
            descripcion = prefijo + e.what();
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
