#include "concrete/MensCorta.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "building/Unidades.h"
#include "frame/Finitos.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

// The sizes a kind starts with: the bearing's width TxCota(3) and its distance to the column
// TxCota(2), cm.
constexpr const char* kApoyoSimple = "15";
constexpr const char* kBrazoSimple = "60";
constexpr const char* kApoyoOtros = "30";
constexpr const char* kBrazoOtros = "80";

constexpr int kImagenesPorTipo = 3;
constexpr int kTipos = 4;

// The cotangents of the strut by casting joint.
constexpr double kCotangentes[] = {1.4, 1.0, 0.6};

}  // namespace

EsfuerzosViga EsfuerzosVigaEnMensula(double q, double L, double a)
{
    return {q * L * L / 10 - q * L * a / 2 + q * a * a / 2, q * L / 2 - a * q};
}

std::string CotangenteBiela(int fila)
{
    if (fila < 0 || fila >= static_cast<int>(std::size(kCotangentes)))
        return {};
    return Formato0_0(kCotangentes[fila]);
}

MensCorta::MensCorta(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    for (Control* op : Members("OpTipo")) {
        const int i = op->Index();
        op->onClick = [this, i](Control&) {
            PoneSketch();
            Evento("OpTipo_Click", [this, i] { OpTipo_Click(i); });
        };
    }
    At("Hormig").onClick = [this](Control&) { Evento("Hormig_Click", [this] { Hormig_Click(); }); };
    for (Control* c : Members("TxCota"))
        c->onChange = [this](Control&) { Evento("TxCota_Change", [this] { CalculaViga(); }); };
    for (Control* c : Members("TxtQ"))
        c->onChange = [this](Control&) { Evento("TxtQ_Change", [this] { CalculaViga(); }); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
    PoneSketch();
}

std::optional<TipoMensula> MensCorta::Tipo() const
{
    if (const std::optional<int> i = OpcionElegida("OpTipo", kTipos))
        return static_cast<TipoMensula>(*i);
    return std::nullopt;
}

void MensCorta::PoneSketch()
{
    const std::optional<TipoMensula> t = Tipo();
    const int grupo = t ? static_cast<int>(*t) : -1;
    for (Control* im : Members("ImageM"))
        im->SetVisible(grupo >= 0 && im->Index() / kImagenesPorTipo == grupo);
    At("PictureM").SetVisible(grupo >= 0 && *t != TipoMensula::PilarExcentrico);
    At("PictureV").SetVisible(grupo >= 0 && *t == TipoMensula::PilarExcentrico);
    // The hanger bars and their result for the framed beam; its load and span with the moment
    // and shear they give; the moment for the columns.
    const bool viga = t == TipoMensula::VigaEmbrochalada;
    const bool pilar = t == TipoMensula::PilarEnVuelo || t == TipoMensula::PilarExcentrico;
    for (Control* c : {Find("UCArmColgar"), Find("LbColgar2"), Find("TxtRes1", 3), Find("txCuelgue")})
        if (c)
            c->SetVisible(viga);
    for (Control* c : {&At("TxtQ", 3), &At("TxCota", 6), &At("txtMom"), &At("txtCort")})
        c->SetVisible(viga);
    At("TxtQ", 2).SetVisible(pilar);
}

void MensCorta::OpTipo_Click(int index)
{
    const bool simple = index == static_cast<int>(TipoMensula::Simple);
    At("TxCota", 3).SetText(simple ? kApoyoSimple : kApoyoOtros);
    At("TxCota", 2).SetText(simple ? kBrazoSimple : kBrazoOtros);
}

void MensCorta::Hormig_Click() { At("TextCtg").SetText(CotangenteBiela(At("Hormig").ListIndex())); }

void MensCorta::CalculaViga()
{
    // The arm to the bearing's middle and the beam's span, m.
    const double a = ValComaCopy(At("TxCota", 3).Text()) / 200 + ValComaCopy(At("TxCota", 2).Text()) / 100;
    const double L = ValComaCopy(At("TxCota", 6).Text()) / 100;
    const double q = LeeQ(*this, 3);
    const EsfuerzosViga e = EsfuerzosVigaEnMensula(q, L, a);
    const std::array<const Control*, 4> datos = {&At("TxCota", 3), &At("TxCota", 2), &At("TxCota", 6), &At("TxtQ", 3)};
    CompruebaFinitos(*this, {e.md, e.vd}, datos);
    brazo_ = a;
    luz_ = L;
    At("txtMom").SetText(FormatoNum(Redondea(e.md, 2)));
    At("txtCort").SetText(FormatoNum(Redondea(e.vd, 2)));
}

void MensCorta::List1_Lee()
{
    List1_Click();
    // The record was read under Cargando: the window follows the kind read.
    PoneSketch();
}

// ---- Sketches ----

std::optional<Croquis> MensCorta::CroquisDe(const Control& picture) const
{
    const bool excentrico = picture.Name() == "PictureV";
    if (!excentrico && picture.Name() != "PictureM")
        return std::nullopt;
    const TipoMensula tipo = excentrico ? TipoMensula::PilarExcentrico : Tipo().value_or(TipoMensula::Simple);
    // Sizes in cm, drawn at 12 twips a centimetre, each within bounds that keep the drawing legible.
    auto cm = [&](int i, double menor, double mayor) {
        return static_cast<int>(std::clamp(std::abs(ValComaCopy(At("TxCota", i).Text())), menor, mayor) * 12);
    };
    const int h0 = cm(0, 20, 200), h1 = std::min(cm(1, 10, 200), h0), brazo = cm(2, 5, 200), apoyo = cm(3, 5, 80);
    const int pilar = cm(4, 20, 150);
    constexpr int kMargen = 350, kEncima = 900, kDebajo = 900;
    const int vuelo = brazo + apoyo;
    Croquis c;
    c.ancho = 2 * kMargen + pilar + vuelo + (tipo == TipoMensula::VigaEmbrochalada ? 1200 : 300);
    c.alto = kMargen + kEncima + h0 + kDebajo + kMargen;
    const int xc = kMargen, xf = xc + pilar, yTop = kMargen + kEncima, xCarga = xf + brazo + apoyo / 2;
    // The column: through the corbel, ending at its top for the eccentric column.
    c.Rectangulo(PapelCroquis::Hormigon, xc, tipo == TipoMensula::PilarExcentrico ? yTop : kMargen, xf, c.alto - kMargen);
    // The corbel, deeper at the column than at its end.
    c.trazos.push_back({FiguraCroquis::Poligono, PapelCroquis::Hormigon,
                        {{xf, yTop}, {xf + vuelo, yTop}, {xf + vuelo, yTop + h1}, {xf, yTop + h0}}});
    int yCarga = yTop;
    switch (tipo) {
    case TipoMensula::VigaEmbrochalada: {
        // The beam framed into the corbel, bearing on its end.
        const int canto = std::max(h1 * 3 / 4, 150);
        c.Rectangulo(PapelCroquis::Hormigon, xf + brazo, yTop - canto, c.ancho - 100, yTop);
        c.Texto(PapelCroquis::Cota, {(xf + brazo + c.ancho) / 2, yTop - canto - 120}, "L = " + At("TxCota", 6).Text());
        yCarga = yTop - canto;
        // The hanger bars where the beam bears.
        for (int x : {xf + brazo + 40, xf + brazo + apoyo - 40})
            c.Linea(PapelCroquis::Armadura, {x, yTop - canto + 40}, {x, yTop + h1 - 40});
        break;
    }
    case TipoMensula::PilarEnVuelo:
    case TipoMensula::PilarExcentrico:
        // The column standing on the corbel's end.
        c.Rectangulo(PapelCroquis::Hormigon, xf + brazo, kMargen, xf + brazo + apoyo, yTop);
        yCarga = kMargen;
        break;
    case TipoMensula::Simple:
        c.Rectangulo(PapelCroquis::Resalte, xf + brazo, yTop - 40, xf + brazo + apoyo, yTop);
        break;
    }
    c.Flecha(PapelCroquis::Carga, {xCarga, std::max(yCarga - 450, 20)}, {xCarga, yCarga});
    c.Texto(PapelCroquis::Carga, {xCarga + 260, std::max(yCarga - 300, 80)}, "Fvd");
    // The main bars along the top, anchored in the column and turned down at the end; the
    // horizontal stirrups below them.
    c.trazos.push_back({FiguraCroquis::Linea, PapelCroquis::Armadura,
                        {{xc + 60, yTop + 60}, {xf + vuelo - 50, yTop + 60}, {xf + vuelo - 50, yTop + h1 - 60}}});
    for (int k = 1; k <= 2; ++k) {
        const int y = yTop + 60 + k * (h1 - 120) / 3;
        c.Linea(PapelCroquis::Armadura, {xf - 60, y}, {xf + vuelo - 80, y});
    }
    // The arm a to the load and the depths at the column and at the end.
    const int yCota = yTop + h0 + 300;
    c.Cota({xf, yCota}, {xCarga, yCota}, "a");
    c.Cota({xf + vuelo + 120, yTop}, {xf + vuelo + 120, yTop + h1}, At("TxCota", 1).Text());
    c.Cota({xc - 120, yTop}, {xc - 120, yTop + h0}, At("TxCota", 0).Text());
    // The column's height must not make the picture taller than the window's bands.
    c.Apaisa(1.3);
    return c;
}

}  // namespace vardena
