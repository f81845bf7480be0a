#pragma once
// The drawing of a sketch picture, as a model: figures in the picture's own coordinates (twips,
// x to the right, y downwards), each with the part of the sketch it stands for. The form says
// what is drawn; the window scales the whole into its room, keeping its proportions, and gives
// each part its colour.

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace vardena {

struct PuntoCroquis {
    int x = 0;
    int y = 0;
};

// What a figure stands for.
enum class PapelCroquis {
    Terreno,     // the ground, under its surface
    Hueco,       // an excavation or a room below ground: the ground taken away
    Hormigon,    // concrete of the foundation and of what it carries
    Superficie,  // the ground's surface line
    Cota,        // a dimension
    Carga,       // a load on the ground
    Ausente,     // a member a scheme shows where the structure has none: dashed, faint
    Resalte,     // a part of a plan set off from the rest: a drop panel, a chosen band of a slab
    Armadura,    // a reinforcing bar or stirrup
    Fabrica,     // masonry: a wall's leaves and pilasters
    Agua,        // the water table: a line across the ground
};

enum class FiguraCroquis {
    Poligono,  // a closed, filled shape through the points
    Linea,     // a line through the points
    Cota,      // a dimension from the first point to the second, with its text at the middle
    Flecha,    // an arrow from the first point to the second
    Texto,     // the text, centred on the first point
};

struct TrazoCroquis {
    FiguraCroquis figura;
    PapelCroquis papel;
    std::vector<PuntoCroquis> puntos;
    std::string texto = {};
};

struct Croquis {
    int ancho = 0;
    int alto = 0;
    // In drawing order: a later figure covers an earlier one.
    std::vector<TrazoCroquis> trazos;

    // Shorthands for the forms that build sketches.
    void Rectangulo(PapelCroquis papel, int x0, int y0, int x1, int y1);
    void Linea(PapelCroquis papel, PuntoCroquis a, PuntoCroquis b);
    void Cota(PuntoCroquis a, PuntoCroquis b, std::string texto);
    void Flecha(PapelCroquis papel, PuntoCroquis desde, PuntoCroquis hasta);
    void Texto(PapelCroquis papel, PuntoCroquis en, std::string texto);
    // Widens the picture to at least `proporcion` times its height, the drawing centred in it,
    // so that a plan that is nearly square takes a band of the window as low as the others.
    void Apaisa(double proporcion);
};

// A sketch drawn from real lengths (cm, y downwards): the box xmin..xmax by ymin..ymax fitted
// with its longer side at `lado` twips and `margen` twips round it.
struct EscalaCroquis {
    double xmin = 0, ymin = 0, s = 1;
    int margen = 0;
    PuntoCroquis operator()(double x, double y) const;
};
// The empty sketch of the box, and in `e` the scale that draws into it. A side shorter than 1
// counts as 1.
Croquis LienzoEscalado(double xmin, double xmax, double ymin, double ymax, double lado, int margen, EscalaCroquis& e);
// A closed, filled shape through points in real lengths.
void PoligonoEscalado(Croquis& c, PapelCroquis papel, const EscalaCroquis& e,
                      std::initializer_list<std::pair<double, double>> puntos);

}  // namespace vardena
