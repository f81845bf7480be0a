// The section of a wall that holds ground, drawn to the scale of its own coordinates: the
// storeys of a basement wall with their slabs, or the stem of a retaining wall; its footing with
// the toe; the backfill behind it with its surcharge; the head loads; on the anchored wall, an
// anchor at each storey at its angle. Lengths are read in cm from the fields; a field that
// does not read as a positive length is drawn at a small size so that the drawing keeps its
// shape while the user types.

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Texto.h"
#include "ground_masonry/MuroTerreno.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using P = PapelCroquis;

// The longer side of the drawing, twips, and the margin round it.
constexpr double kLado = 2400;
constexpr int kMargen = 150;
// What a length too small to draw is drawn as, cm.
constexpr double kMinimo = 5;
// Schematic sizes, cm: the slabs of the storeys, the room drawn beside the wall, the length of
// the arrows of the surcharge and of the head loads, the anchors.
constexpr double kCantoForjado = 25;

using Escala = EscalaCroquis;

Croquis Lienzo(double xmin, double xmax, double ymin, double ymax, Escala& e)
{
    return LienzoEscalado(xmin, xmax, ymin, ymax, kLado, kMargen, e);
}

void Poligono(Croquis& c, P papel, const Escala& e, std::initializer_list<std::pair<double, double>> puntos)
{
    PoligonoEscalado(c, papel, e, puntos);
}

double Largo(const Form& f, std::string_view campo, int index = -1)
{
    const Control* c = f.Find(campo, index);
    const double v = c ? ValComaCopy(c->Text()) : 0;
    return v > kMinimo ? v : kMinimo;
}

std::string Texto(double v) { return Formato0(v); }

// The surcharge on the backfill's surface at y, from x0 to x1.
void Sobrecarga(Croquis& c, const Escala& e, double x0, double x1, double y, double flecha)
{
    const int n = 4;
    for (int i = 0; i <= n; ++i) {
        const double x = x0 + (x1 - x0) * i / n;
        c.Flecha(P::Carga, e(x, y - flecha), e(x, y - 2));
    }
    c.Linea(P::Carga, e(x0, y - flecha), e(x1, y - flecha));
    c.Texto(P::Carga, e((x0 + x1) / 2, y - flecha * 1.6), "q");
}

struct Sotano {
    double cabeza, alto, pie;
};

// The basement wall: the back face stands at x = 0, the ground behind it (x > 0), the storeys
// inside (x < 0), from its head (y = 0) down to the underside of its footing.
Croquis MuroDeSotanos(const MuroTerreno& f, bool anclado)
{
    const int n = f.Sotanos();
    std::vector<Sotano> s;
    double alto = 0, grueso = 0;
    for (int k = 0; k < n; ++k) {
        s.push_back({Largo(f, "TxCotaMuro", k * kCotasPorSotano), Largo(f, "TxCotaMuro", k * kCotasPorSotano + 1),
                     Largo(f, "TxCotaMuro", k * kCotasPorSotano + 2)});
        alto += s.back().alto;
        grueso = std::max({grueso, s.back().cabeza, s.back().pie});
    }
    const double B = Largo(f, "TxCotaAncho"), D = Largo(f, "TxCotaAlto");
    const double vuelo = f.Find("TxVuelo", 0) ? Largo(f, "TxVuelo", 0) : Largo(f, "TxVuelo");
    const double pie = s.back().pie;
    const double xz0 = -pie - vuelo, xz1 = xz0 + B;
    const double sala = std::max(alto * 0.35, 120.0);
    const double xmin = std::min(xz0, -grueso) - sala, xmax = std::max(xz1, 0.0) + sala;
    const double flecha = std::max(alto * 0.08, 30.0);
    Escala e{};
    Croquis c = Lienzo(xmin, xmax + (anclado ? sala : 0), -2.2 * flecha, alto + D + 40, e);
    const double xmaxTerreno = xmax + (anclado ? sala : 0);

    c.Rectangulo(P::Terreno, e(0, 0).x, e(0, 0).y, e(xmaxTerreno, alto + D + 40).x, e(0, alto + D + 40).y);
    c.Rectangulo(P::Terreno, e(xmin, 0).x, e(0, alto).y, e(0, 0).x, e(0, alto + D + 40).y);
    c.Rectangulo(P::Hueco, e(xmin, 0).x, e(0, 0).y, e(-grueso, 0).x, e(0, alto).y);
    c.Linea(P::Superficie, e(0, 0), e(xmaxTerreno, 0));
    c.Linea(P::Superficie, e(xmin, alto), e(xz0, alto));
    // The storeys, each a stem from its head thickness to its foot thickness, with the slab at its head.
    double y = 0;
    const bool forjadoCabeza = f.Find("CheckFM") && f.At("CheckFM").CheckValue() != 0;
    for (int k = 0; k < n; ++k) {
        Poligono(c, P::Hormigon, e, {{-s[k].cabeza, y}, {0, y}, {0, y + s[k].alto}, {-s[k].pie, y + s[k].alto}});
        if (k > 0 || forjadoCabeza)
            c.Rectangulo(P::Hormigon, e(xmin, 0).x, e(0, y).y, e(-s[k].cabeza, 0).x, e(0, y + kCantoForjado).y);
        c.Cota(e(xmin + sala * 0.25, y), e(xmin + sala * 0.25, y + s[k].alto), Texto(s[k].alto));
        if (anclado) {
            // The anchor at a third of the storey, going down into the ground at its angle.
            const double a = ValComaCopy(f.At("txtAng", k).Text()) * kPi / 180;
            const double ya = y + s[k].alto / 3, largo = sala * 0.9;
            c.Linea(P::Armadura, e(0, ya), e(largo * std::cos(a), ya + largo * std::sin(a)));
            c.Texto(P::Armadura, e(largo * std::cos(a) + 20, ya + largo * std::sin(a) + 25), "T" + std::to_string(k + 1));
        }
        y += s[k].alto;
    }
    c.Rectangulo(P::Hormigon, e(xz0, 0).x, e(0, alto).y, e(xz1, 0).x, e(0, alto + D).y);
    c.Cota(e(xz0, alto + D + 25), e(xz1, alto + D + 25), Texto(B));
    c.Cota(e(xz1 + 25, alto), e(xz1 + 25, alto + D), Texto(D));
    c.Cota(e(xz0, alto - 25), e(-pie, alto - 25), Texto(vuelo));
    Sobrecarga(c, e, grueso * 0.5 + 20, xmaxTerreno - 20, 0, flecha);
    if (forjadoCabeza) {
        c.Flecha(P::Carga, e(-grueso / 2, -2 * flecha), e(-grueso / 2, -2));
        c.Texto(P::Carga, e(-grueso / 2 - 40, -1.6 * flecha), "N");
    }
    return c;
}

// The retaining wall: the stem with its back face at x = 0, the front soil before it, the
// backfill behind it up to its head, the footing with its toe in front and the key under it.
Croquis MuroDeContencion(const MuroTerreno& f)
{
    const double h = Largo(f, "TxCotaMuro", 0), t1 = Largo(f, "TxCotaMuro", 1), t2 = Largo(f, "TxCotaMuro", 2);
    const double B = Largo(f, "TxCotaAncho"), D = Largo(f, "TxCotaAlto"), vuelo = Largo(f, "TxVuelo", 0);
    const double tacon = f.Find("TxtCotaTacon") ? ValComaCopy(f.At("TxtCotaTacon").Text()) : 0;
    const double suelo = f.Find("TxtCotaSuelo") ? ValComaCopy(f.At("TxtCotaSuelo").Text()) : 0;
    const double xz0 = -t2 - vuelo, xz1 = xz0 + B;
    const double sala = std::max(h * 0.3, 80.0), flecha = std::max(h * 0.1, 25.0);
    const double fondo = h + D + std::max(tacon, 0.0) + 40;
    const double xmin = std::min(xz0, -t2) - sala, xmax = std::max(xz1, 0.0) + sala;
    Escala e{};
    Croquis c = Lienzo(xmin, xmax, -2.2 * flecha, fondo, e);
    const bool fabrica = f.Find("cmbTipo") && f.At("cmbTipo").ListIndex() == 1;

    const double yFrente = std::clamp(h - std::max(suelo, 0.0), 0.0, h);
    c.Rectangulo(P::Terreno, e(0, 0).x, e(0, 0).y, e(xmax, 0).x, e(0, fondo).y);
    c.Rectangulo(P::Terreno, e(xmin, 0).x, e(0, yFrente).y, e(0, 0).x, e(0, fondo).y);
    c.Linea(P::Superficie, e(0, 0), e(xmax, 0));
    c.Linea(P::Superficie, e(xmin, yFrente), e(-t2, yFrente));
    Poligono(c, fabrica ? P::Fabrica : P::Hormigon, e, {{-t1, 0}, {0, 0}, {0, h}, {-t2, h}});
    c.Rectangulo(P::Hormigon, e(xz0, 0).x, e(0, h).y, e(xz1, 0).x, e(0, h + D).y);
    if (tacon > 0)
        c.Rectangulo(P::Hormigon, e(-t2, 0).x, e(0, h + D).y, e(0, 0).x, e(0, h + D + tacon).y);
    c.Cota(e(xmin + sala * 0.3, 0), e(xmin + sala * 0.3, h), Texto(h));
    c.Cota(e(-t1, -flecha * 0.4), e(0, -flecha * 0.4), Texto(t1));
    c.Cota(e(xz0, h + D + std::max(tacon, 0.0) + 25), e(xz1, h + D + std::max(tacon, 0.0) + 25), Texto(B));
    c.Cota(e(xz1 + 25, h), e(xz1 + 25, h + D), Texto(D));
    Sobrecarga(c, e, 30, xmax - 20, 0, flecha);
    return c;
}

}  // namespace

std::optional<Croquis> MuroTerreno::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PicMuro")
        return std::nullopt;
    if (Find("CmbSot"))
        return MuroDeSotanos(*this, Find("txtAng", 0) != nullptr);
    return MuroDeContencion(*this);
}

}  // namespace vardena
