#include "ground_masonry/Zapatas.h"

#include <algorithm>
#include <cmath>

#include "base/Texto.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using P = PapelCroquis;

// Twips a centimetre of the section, and the room around it.
constexpr int kEscala = 12;
constexpr int kMargen = 400;
// The height of wall and ground drawn over the footing, cm.
constexpr double kAlturaMuro = 60;

int Tw(double cm) { return static_cast<int>(std::lround(cm * kEscala)); }

}  // namespace

Zapata::Zapata(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    for (size_t i = 0; i < tabla.cargas.size(); ++i)
        if (tabla.cargas[i] == Magnitud::Tension)
            indiceTension_ = static_cast<int>(i);
    if (Control* c = Find("Check1"))
        c->onClick = [this](Control&) { Evento("Check1_Click", [this] { Check1_Click(); }); };
    At("List1").onClick = [this](Control&) {
        List1_Click();
        PresentaTension();
    };
}

void Zapata::Check1_Click()
{
    Control* q = indiceTension_ < 0 ? nullptr : Find("TxtQ", indiceTension_);
    if (!q)
        return;
    const bool general = At("Check1").CheckValue() == 1;
    // The general data hold the stress in t/m2; the field shows kg/cm2, in single precision as
    // the general data are kept.
    if (general)
        q->SetText(FormatoNum(decl().GenTens / 10.0f));
    q->SetEnabled(!general);
}

void Zapata::PresentaTension()
{
    if (Control* q = indiceTension_ < 0 ? nullptr : Find("TxtQ", indiceTension_))
        q->SetEnabled(At("Check1").CheckValue() != 1);
}

void Zapata::CargaPropia() { PresentaTension(); }

ZapCorr::ZapCorr(Declaraciones& d, const TablaForm& tabla) : Zapata(d, tabla)
{
    At("TxCotaAncho").onChange = [this](Control&) { Evento("TxCotaAncho_Change", [this] { TxCotaAncho_Change(); }); };
}

void ZapCorr::TxCotaAncho_Change()
{
    // The control takes the integer part of the width, as its own width field does.
    const double ancho = std::trunc(std::fabs(ValComaCopy(At("TxCotaAncho").Text())));
    At("UCArmZap", 1).Set("AnchoZap", FormatoNum(ancho));
}

std::optional<Croquis> ZapCorr::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PtSeccZap")
        return std::nullopt;
    auto valor = [this](const char* nombre) { return std::max(0.0, ValComaCopy(At(nombre).Text())); };
    const Control* n = Find("TxtQ", 0);
    const std::string carga = "N=" + (n ? n->Text() : std::string());
    return SeccionZapataCorrida(valor("TxCotaMuro"), valor("TxCotaAncho"), valor("TxCotaAlto"),
                                At("OpTipoMuro", 0).OptionValue(), carga);
}

bool HuecoEnUso(PosicionPilar p, int hueco)
{
    switch (p) {
    case PosicionPilar::Esquina: return hueco >= 0 && hueco < kHuecosZapata;
    case PosicionPilar::Borde: return hueco == 0 || hueco == 1;
    case PosicionPilar::Centro: return hueco == 0;
    }
    return false;
}

bool VigaEnUso(PosicionPilar p, int viga)
{
    return (viga == 0 && p != PosicionPilar::Centro) || (viga == 1 && p == PosicionPilar::Esquina);
}

Zap::Zap(Declaraciones& d, const TablaForm& tabla) : Zapata(d, tabla)
{
    for (Control* c : Members("OpPosPil")) {
        const int i = c->Index();
        c->onClick = [this, i](Control&) { Evento("OpPosPil_Click", [this, i] { OpPosPil_Click(i); }); };
    }
    for (Control* c : Members("TxDimZap")) {
        const int i = c->Index();
        c->onChange = [this, i](Control&) { Evento("TxDimZap_Change", [this, i] { TxDimZap_Change(i); }); };
    }
    At("List1").onClick = [this](Control&) {
        List1_Click();
        CargaPropia();
    };
}

PosicionPilar Zap::Posicion() const
{
    for (int i : {0, 1, 2})
        if (const Control* o = Find("OpPosPil", i); o && o->OptionValue())
            return static_cast<PosicionPilar>(i);
    return PosicionPilar::Centro;
}

void Zap::Presenta()
{
    const PosicionPilar p = Posicion();
    for (int k = 0; k < kHuecosZapata; ++k)
        if (Control* m = Find("UCframeZap", k))
            m->SetVisible(HuecoEnUso(p, k));
    for (int v = 0; v < 2; ++v)
        if (Control* m = Find("UCframeViga", v))
            m->SetVisible(VigaEnUso(p, v));
    // A plain tie is a choice only where there is a beam.
    if (Control* r = Find("chkRiostra"))
        r->SetVisible(p != PosicionPilar::Centro);
}

void Zap::CargaPropia()
{
    Zapata::CargaPropia();
    Presenta();
}

void Zap::OpPosPil_Click(int) { Presenta(); }

void Zap::TxDimZap_Change(int index)
{
    if (index < 0 || index >= 2 * kHuecosZapata)
        return;
    // The side along X is the width of the bars along Y, and the other way round.
    const int armadura = index % 2 == 0 ? index + 1 : index - 1;
    const double lado = std::trunc(std::fabs(ValComaCopy(At("TxDimZap", index).Text())));
    if (Control* a = Find("UCArmZap", armadura))
        a->Set("AnchoZap", FormatoNum(lado));
}

std::optional<Croquis> Zap::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PtPlantaZap")
        return std::nullopt;
    auto valor = [this](const char* nombre, int i) {
        const Control* c = Find(nombre, i);
        return c ? std::max(0.0, ValComaCopy(c->Text())) : 0.0;
    };
    constexpr double kEscalaPlanta = 3;  // twips a cm
    constexpr double kAnchoViga = 40;    // cm, as drawn
    const PosicionPilar p = Posicion();
    const double dx = VigaEnUso(p, 0) ? valor("TxDist", 0) : 0;
    const double dy = VigaEnUso(p, 1) ? valor("TxDist", 1) : 0;
    // The centre of each slot's column, cm from the footing studied.
    const double cx[] = {0, dx, 0, dx}, cy[] = {0, 0, dy, dy};
    double medio = 0;
    for (int k = 0; k < kHuecosZapata; ++k)
        if (HuecoEnUso(p, k))
            medio = std::max({medio, valor("TxDimZap", 2 * k) / 2, valor("TxDimZap", 2 * k + 1) / 2});
    const int margen = kMargen;
    auto tw = [&](double cm) { return static_cast<int>(std::lround(cm * kEscalaPlanta)); };
    const int ox = margen + tw(medio), oy = margen + tw(medio);
    Croquis c{2 * margen + tw(2 * medio + dx), 2 * margen + tw(2 * medio + dy), {}};
    // The beams first, under the footings they tie.
    for (int v = 0; v < 2; ++v) {
        if (!VigaEnUso(p, v))
            continue;
        const int h = tw(kAnchoViga / 2);
        if (v == 0)
            c.Rectangulo(P::Hormigon, ox, oy - h, ox + tw(dx), oy + h);
        else
            c.Rectangulo(P::Hormigon, ox - h, oy, ox + h, oy + tw(dy));
    }
    for (int k = 0; k < kHuecosZapata; ++k) {
        if (!HuecoEnUso(p, k))
            continue;
        const int x = ox + tw(cx[k]), y = oy + tw(cy[k]);
        const int a = tw(valor("TxDimZap", 2 * k) / 2), b = tw(valor("TxDimZap", 2 * k + 1) / 2);
        const int pa = tw(valor("TxPil", 2 * k) / 2), pb = tw(valor("TxPil", 2 * k + 1) / 2);
        c.Rectangulo(P::Hormigon, x - a, y - b, x + a, y + b);
        c.Rectangulo(P::Resalte, x - pa, y - pb, x + pa, y + pb);
        if (k == 0) {
            c.Cota({x - a, y + b + margen / 2}, {x + a, y + b + margen / 2}, FormatoNum(valor("TxDimZap", 0)));
            c.Cota({x - a - margen / 2, y - b}, {x - a - margen / 2, y + b}, FormatoNum(valor("TxDimZap", 1)));
        }
    }
    if (dx > 0)
        c.Cota({ox, oy - tw(medio) - margen / 2}, {ox + tw(dx), oy - tw(medio) - margen / 2}, FormatoNum(dx));
    if (dy > 0)
        c.Cota({ox + tw(dx) + tw(medio) + margen / 2, oy}, {ox + tw(dx) + tw(medio) + margen / 2, oy + tw(dy)}, FormatoNum(dy));
    return c;
}

Croquis SeccionZapataCorrida(double anchoMuro, double anchoZapata, double canto, bool fabrica, const std::string& carga)
{
    // A wall wider than its footing is drawn as wide as the footing: the section stays readable.
    const int b = Tw(anchoZapata), h = Tw(canto), t = Tw(std::min(anchoMuro, anchoZapata)), hm = Tw(kAlturaMuro);
    Croquis c{b + 2 * kMargen, hm + h + 2 * kMargen, {}};
    const int x0 = kMargen, x1 = kMargen + b;
    const int superficie = kMargen, arriba = kMargen + hm, abajo = arriba + h;
    const int centro = x0 + b / 2;
    // The ground round the footing up to its surface, the footing, the wall standing on its middle.
    c.Rectangulo(P::Terreno, 0, superficie, c.ancho, c.alto);
    c.Linea(P::Superficie, {0, superficie}, {c.ancho, superficie});
    c.Rectangulo(P::Hormigon, x0, arriba, x1, abajo);
    c.Rectangulo(fabrica ? P::Fabrica : P::Hormigon, centro - t / 2, superficie - kMargen / 2, centro + t / 2, arriba);
    c.Flecha(P::Carga, {centro, 0}, {centro, superficie - kMargen / 2});
    c.Texto(P::Carga, {centro + t / 2 + 250, kMargen / 3}, carga);
    c.Cota({x0, abajo + kMargen / 2}, {x1, abajo + kMargen / 2}, FormatoNum(anchoZapata));
    c.Cota({x1 + kMargen / 2, arriba}, {x1 + kMargen / 2, abajo}, FormatoNum(canto));
    c.Cota({centro - t / 2, arriba - kMargen / 3}, {centro + t / 2, arriba - kMargen / 3}, FormatoNum(anchoMuro));
    return c;
}

}  // namespace vardena
