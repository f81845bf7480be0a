#include "frame/Croquis.h"

#include <utility>

namespace vardena {

void Croquis::Rectangulo(PapelCroquis papel, int x0, int y0, int x1, int y1)
{
    trazos.push_back({FiguraCroquis::Poligono, papel, {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}}});
}

void Croquis::Linea(PapelCroquis papel, PuntoCroquis a, PuntoCroquis b)
{
    trazos.push_back({FiguraCroquis::Linea, papel, {a, b}});
}

void Croquis::Cota(PuntoCroquis a, PuntoCroquis b, std::string texto)
{
    trazos.push_back({FiguraCroquis::Cota, PapelCroquis::Cota, {a, b}, std::move(texto)});
}

void Croquis::Flecha(PapelCroquis papel, PuntoCroquis desde, PuntoCroquis hasta)
{
    trazos.push_back({FiguraCroquis::Flecha, papel, {desde, hasta}});
}

void Croquis::Texto(PapelCroquis papel, PuntoCroquis en, std::string texto)
{
    trazos.push_back({FiguraCroquis::Texto, papel, {en}, std::move(texto)});
}

void Croquis::Apaisa(double proporcion)
{
    const int ancho2 = static_cast<int>(alto * proporcion);
    if (ancho2 <= ancho)
        return;
    const int dx = (ancho2 - ancho) / 2;
    for (TrazoCroquis& t : trazos)
        for (PuntoCroquis& p : t.puntos)
            p.x += dx;
    ancho = ancho2;
}

}  // namespace vardena
