#include "frame/Avisos.h"

#include "base/Form.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

constexpr int kMsgTituloAvisos = 29;
constexpr int kMsgListaLlena = 1524;
constexpr int kSubindiceFueraDeIntervalo = 9;

}  // namespace

void AnadeAviso(Declaraciones& d, std::string texto)
{
    if (d.IAviso < 0 || d.IAviso > Declaraciones::kMaxAvisos)
        throw ErrorEjecucion(kSubindiceFueraDeIntervalo, Mensaje(d, kMsgListaLlena));
    d.Avisos[static_cast<size_t>(d.IAviso)] = std::move(texto);
    ++d.IAviso;
}

void MuestraAvisos(Declaraciones& d)
{
    d.NAvisos = d.IAviso - 1;
    if (d.NAvisos < 1)
        return;
    std::string texto = " ";
    for (d.IAviso = 1; d.IAviso <= d.NAvisos; ++d.IAviso)
        texto += "\r\n" + d.Avisos[static_cast<size_t>(d.IAviso)];
    d.ui.MsgBox(texto, mb::Exclamation, d.Msg(kMsgTituloAvisos));
}

}  // namespace vardena
