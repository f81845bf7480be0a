#include "frame/Finitos.h"

#include <cmath>
#include <string>

#include "base/Form.h"
#include "base/Texto.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

constexpr int kMsgDesbordamiento = 1522;
constexpr int kErrDesbordamiento = 6;

}  // namespace

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
