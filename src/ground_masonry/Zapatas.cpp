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
