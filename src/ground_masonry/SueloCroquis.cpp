// The three sketches of the soil form: the isolated footing, the footing of a basement wall and
// the foundation slab, each with the width B and the depth D that the factors take, and the
// surcharge q of the ground beside the footing. They are fixed drawings: the values stand in the
// fields beside them.

#include "ground_masonry/Suelo.h"

namespace vardena {
namespace {

constexpr int kAncho = 2400;
constexpr int kAlto = 1800;

using P = PapelCroquis;

// Arrows of the surcharge down onto the surface at `y`, from x0 to x1, and its letter above.
void Sobrecarga(Croquis& c, int x0, int x1, int y)
{
    for (int x = x0; x <= x1; x += 200)
        c.Flecha(P::Carga, {x, y - 260}, {x, y - 20});
    c.Linea(P::Carga, {x0, y - 260}, {x1, y - 260});
    c.Texto(P::Carga, {(x0 + x1) / 2, y - 360}, "q");
}

// A footing in open ground under a column.
Croquis Aislada()
{
    Croquis c{kAncho, kAlto, {}};
    const int superficie = 550;
    c.Rectangulo(P::Terreno, 0, superficie, kAncho, kAlto);
    c.Linea(P::Superficie, {0, superficie}, {kAncho, superficie});
    c.Rectangulo(P::Hormigon, 1050, 80, 1350, 1150);
    c.Rectangulo(P::Hormigon, 700, 1150, 1700, 1450);
    Sobrecarga(c, 150, 750, superficie);
    Sobrecarga(c, 1650, 2250, superficie);
    c.Cota({1950, superficie}, {1950, 1450}, "D");
    c.Cota({700, 1630}, {1700, 1630}, "B");
    return c;
}

// The footing under the wall of a basement: the depth is taken from the basement's floor.
Croquis Sotano()
{
    Croquis c{kAncho, kAlto, {}};
    const int superficie = 300;
    const int solera = 1000;
    c.Rectangulo(P::Terreno, 0, superficie, kAncho, kAlto);
    c.Rectangulo(P::Hueco, 0, superficie, 1500, solera);
    c.Linea(P::Superficie, {1600, superficie}, {kAncho, superficie});
    c.Linea(P::Superficie, {0, solera}, {1500, solera});
    c.Rectangulo(P::Hormigon, 1500, 60, 1600, solera + 120);
    c.Rectangulo(P::Hormigon, 0, solera, 1500, solera + 120);
    c.Rectangulo(P::Hormigon, 1250, solera + 120, 1850, 1400);
    Sobrecarga(c, 150, 1150, solera);
    c.Cota({2050, solera}, {2050, 1400}, "D");
    c.Linea(P::Cota, {1600, solera}, {2150, solera});
    c.Cota({1250, 1600}, {1850, 1600}, "B");
    return c;
}

// A slab under the whole building, in its excavation.
Croquis Losa()
{
    Croquis c{kAncho, kAlto, {}};
    const int superficie = 600;
    c.Rectangulo(P::Terreno, 0, superficie, kAncho, kAlto);
    c.Rectangulo(P::Hueco, 350, superficie, 2050, 1100);
    c.Linea(P::Superficie, {0, superficie}, {350, superficie});
    c.Linea(P::Superficie, {2050, superficie}, {kAncho, superficie});
    for (int x : {350, 1150, 1950})
        c.Rectangulo(P::Hormigon, x, 100, x + 100, 1100);
    c.Rectangulo(P::Hormigon, 350, 1100, 2050, 1350);
    c.Cota({2250, superficie}, {2250, 1350}, "D");
    c.Cota({350, 1560}, {2050, 1560}, "B");
    return c;
}

}  // namespace

std::optional<Croquis> Suelo::CroquisDe(const Control& picture) const
{
    const std::string& n = picture.Name();
    if (n == "PictureAis")
        return Aislada();
    if (n == "PictureSot")
        return Sotano();
    if (n == "PictureLosa")
        return Losa();
    return std::nullopt;
}

}  // namespace vardena
