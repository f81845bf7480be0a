#include "frame/Finitos.h"

#include <cmath>
#include <string>

#include "base/Form.h"
#include "base/Texto.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

constexpr int kMsgDivisionPorCero = 1521;
constexpr int kMsgDesbordamiento = 1522;
constexpr int kMsgRaizNegativa = 1523;
constexpr int kErrLlamadaNoValida = 5;
constexpr int kErrDesbordamiento = 6;
constexpr int kErrDivisionPorCero = 11;

[[noreturn]] void FallaDato(const Form& form, int numero, int mensaje, std::string_view dato, int index)
{
    const Control& c = form.At(dato, index);
    const std::string rotulo = c.Caption().empty() ? c.Label() : c.Caption();
    throw ErrorEjecucion(numero, Mensaje(form.decl(), mensaje, {rotulo, c.Text()}));
}

}  // namespace

double DivideDato(const Form& form, double a, double b, std::string_view dato, int index)
{
    if (b == 0)
        FallaDato(form, kErrDivisionPorCero, kMsgDivisionPorCero, dato, index);
    return FinitoDato(form, a / b, dato, index);
}

double FinitoDato(const Form& form, double x, std::string_view dato, int index)
{
    if (!std::isfinite(x))
        FallaDato(form, kErrDesbordamiento, kMsgDesbordamiento, dato, index);
    return x;
}

double RaizDato(const Form& form, double x, std::string_view dato, int index)
{
    if (x < 0)
        FallaDato(form, kErrLlamadaNoValida, kMsgRaizNegativa, dato, index);
    return std::sqrt(x);
}

void CompruebaFinitos(const Form& form, std::initializer_list<double> figuras, std::span<const Control* const> datos)
{
    bool finitas = true;
    for (double x : figuras)
        finitas = finitas && std::isfinite(x);
    if (finitas)
        return;
    const Control* mayor = nullptr;
    for (const Control* c : datos)
        if (c && (!mayor || std::abs(ValComaCopy(c->Text())) > std::abs(ValComaCopy(mayor->Text()))))
            mayor = c;
    const std::string rotulo = mayor ? mayor->Label() : std::string();
    const std::string valor = mayor ? mayor->Text() : std::string();
    throw ErrorEjecucion(kErrDesbordamiento, Mensaje(form.decl(), kMsgDesbordamiento, {rotulo, valor}));
}

}  // namespace vardena
