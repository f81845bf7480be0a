#include "frame/Croquis.h"

#include <algorithm>
#include <cmath>
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

PuntoCroquis EscalaCroquis::operator()(double x, double y) const
{
    return {margen + static_cast<int>(std::lround((x - xmin) * s)), margen + static_cast<int>(std::lround((y - ymin) * s))};
}

Croquis LienzoEscalado(double xmin, double xmax, double ymin, double ymax, double lado, int margen, EscalaCroquis& e)
{
    const double ancho = std::max(xmax - xmin, 1.0), alto = std::max(ymax - ymin, 1.0);
    e = {xmin, ymin, lado / std::max(ancho, alto), margen};
    return {static_cast<int>(ancho * e.s) + 2 * margen, static_cast<int>(alto * e.s) + 2 * margen, {}};
}

void PoligonoEscalado(Croquis& c, PapelCroquis papel, const EscalaCroquis& e,
                      std::initializer_list<std::pair<double, double>> puntos)
{
    TrazoCroquis t{FiguraCroquis::Poligono, papel, {}};
    for (const auto& [x, y] : puntos)
        t.puntos.push_back(e(x, y));
    c.trazos.push_back(std::move(t));
}

}  // namespace vardena
