#include "concrete/Losas.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Texto.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// The names of the bands, messages 1660 to 1663 in the order of CmBanda.
constexpr int kMsgPrimeraBanda = 1660;

// Where the panels stand when they open over the form, twips.
constexpr int kIzquierdaResultados = 4425;
constexpr int kIzquierdaForjado = 3315;

// A plan is drawn at least this much wider than high.
constexpr double kProporcionPlano = 1.8;

// The frame of each position's spans, by the index of OpPosPil.
constexpr const char* kMarcosLuces[] = {"UCframeLucesCen", "UCframeLucesBor", "UCframeLucesEsq"};

constexpr int kCamposCentro[] = {5, 6};
constexpr int kCamposBorde[] = {7, 8, 9};
constexpr int kCamposEsquina[] = {10, 11, 12, 13};

double Metros(const Form& form, const char* campo, int i) { return std::abs(ValComaCopy(form.At(campo, i).Text())); }

// The bars of a reinforcement control as the sketch names them: "2Ø12".
std::string Barras(const Control& c)
{
    std::string n = c.Get("NumBarras"), d = c.Get("Diametro");
    while (!n.empty() && n.back() == ' ')
        n.pop_back();
    while (!d.empty() && d.back() == ' ')
        d.pop_back();
    return n.empty() && d.empty() ? std::string() : n + "Ø" + d;
}

}  // namespace

std::span<const int> CamposDePanel(PosicionPanel p)
{
    switch (p) {
    case PosicionPanel::Centro: return kCamposCentro;
    case PosicionPanel::Borde: return kCamposBorde;
    case PosicionPanel::Esquina: return kCamposEsquina;
    }
    return kCamposCentro;
}

LucesPanel LucesDePanel(const Form& form, PosicionPanel p)
{
    const std::span<const int> c = CamposDePanel(p);
    LucesPanel l;
    l.lx = Metros(form, "txtForj", c[0]);
    l.ly = Metros(form, "txtForj", c[1]);
    if (c.size() > 2)
        l.vueloX = Metros(form, "txtForj", c[2]);
    if (c.size() > 3)
        l.vueloY = Metros(form, "txtForj", c[3]);
    return l;
}

void CantoTotalForjado(Form& form)
{
    const double canto = ValComaCopy(form.At("txtForj", 2).Text()) + ValComaCopy(form.At("txtForj", 3).Text());
    form.At("txtForj", 4).SetText(FormatoNum(canto));
}

Croquis CroquisForjado(const Form& form, int tipo)
{
    // Each centimetre drawn at 20 twips; sizes held within sensible bounds so that the section
    // stays legible whatever is typed.
    auto cm = [&](int i, double menor, double mayor) {
        return static_cast<int>(std::clamp(Metros(form, "txtForj", i), menor, mayor) * 20);
    };
    const int nervio = cm(0, 4, 40), paso = std::max(cm(1, 20, 150), nervio + 80), bloque = cm(2, 5, 80), capa = cm(3, 2, 30);
    constexpr int kMargen = 150, kPasos = 2;
    Croquis c;
    c.ancho = 2 * kMargen + kPasos * paso + nervio;
    c.alto = 2 * kMargen + bloque + capa + 250;
    const int arriba = kMargen, base = arriba + capa + bloque;
    // The topping over the whole width, the ribs under it.
    c.Rectangulo(PapelCroquis::Hormigon, kMargen, arriba, c.ancho - kMargen, arriba + capa);
    for (int k = 0; k <= kPasos; ++k) {
        const int x = kMargen + k * paso;
        c.Rectangulo(PapelCroquis::Hormigon, x, arriba + capa, x + nervio, base);
        if (k == kPasos)
            break;
        // Between the ribs: the lost blocks stay, a slab without formers is solid.
        if (tipo == 1)
            c.Rectangulo(PapelCroquis::Resalte, x + nervio, arriba + capa, x + paso, base);
        else if (tipo == 2)
            c.Rectangulo(PapelCroquis::Hormigon, x + nervio, arriba + capa, x + paso, base);
    }
    const int cota = base + 150;
    c.Cota({kMargen, cota}, {kMargen + nervio, cota}, FormatoNum(Metros(form, "txtForj", 0)));
    c.Cota({kMargen + nervio / 2, cota + 100}, {kMargen + paso + nervio / 2, cota + 100}, FormatoNum(Metros(form, "txtForj", 1)));
    const int derecha = c.ancho - kMargen / 2;
    c.Cota({derecha, arriba}, {derecha, arriba + capa}, FormatoNum(Metros(form, "txtForj", 3)));
    c.Cota({derecha, arriba + capa}, {derecha, base}, FormatoNum(Metros(form, "txtForj", 2)));
    return c;
}

LosaBandas::LosaBandas(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    for (Control* op : Members("OpPosPil"))
        op->onClick = [this](Control&) { PresentaPosicion(); };
    for (Control* b : Members("CmBanda")) {
        const int i = b->Index();
        b->onClick = [this, i](Control&) { CmBanda_Click(i); };
    }
    for (Control* ch : Members("ChArV"))
        ch->onClick = [this](Control&) { PresentaBanda(); };
    if (Find("cmbTipoFor")) {
        At("cmbTipoFor").onClick = [this](Control&) { PresentaTipo(); };
        for (int i : {2, 3})
            At("txtForj", i).onChange = [this](Control&) { Evento("txtForj_Change", [this] { CantoTotalForjado(*this); }); };
    }
    if (Control* c = Find("Command1"))
        c->onClick = [this](Control&) { MuestraPanel("UCfrFor", true); };
    if (Control* c = Find("Command3"))
        c->onClick = [this](Control&) { MuestraPanel("UCfrFor", false); };
    At("Command2").onClick = [this](Control&) { MuestraPanel("UCfrRes", false); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
    for (const char* panel : {"UCfrFor", "UCfrRes"})
        if (Find(panel))
            MuestraPanel(panel, false);
}

// ---- What the window shows ----

std::optional<PosicionPanel> LosaBandas::Posicion() const
{
    if (const std::optional<int> i = OpcionElegida("OpPosPil", 3))
        return static_cast<PosicionPanel>(*i);
    return std::nullopt;
}

void LosaBandas::PresentaPosicion()
{
    const std::optional<PosicionPanel> p = Posicion();
    for (Control* pt : Members("PctFRPlan"))
        pt->SetVisible(p && pt->Index() == static_cast<int>(*p));
    // The spans and cantilevers of the chosen position only, in its frame.
    for (int i = 0; i < 3; ++i)
        if (Control* marco = Find(kMarcosLuces[i]))
            marco->SetVisible(p && i == static_cast<int>(*p));
    for (int i = 5; i <= 13; ++i)
        At("txtForj", i).SetVisible(false);
    if (p)
        for (int i : CamposDePanel(*p))
            At("txtForj", i).SetVisible(true);
}

void LosaBandas::CmBanda_Click(int index)
{
    if (index < 0 || index > 3)
        return;
    banda_ = static_cast<Banda>(index);
    PresentaBanda();
}

void LosaBandas::PresentaBanda()
{
    const int b = static_cast<int>(banda_);
    if (Control* lb = Find("LbBAnda"))
        lb->SetCaption(decl().Msg(kMsgPrimeraBanda + b));
    for (int k = 0; k < 4; ++k)
        if (Control* marco = Find("FrBanda" + std::to_string(k)))
            marco->SetVisible(k == b);
    // The bars of the chosen band come to the front; a further bar shows while it is switched on.
    for (int i = 0; i < 4 * kBarrasPorBanda; ++i) {
        const bool enBanda = i / kBarrasPorBanda == b;
        const Control* ch = Find("ChArV", i);
        const bool puesta = !ch || ch->CheckValue() != 0;
        if (ch)
            At("ChArV", i).SetVisible(enBanda);
        At("UCArVig", i).SetVisible(enBanda && puesta);
        // The bars over the far support take the length of those over the near one.
        if (Control* largo = Find("TxLv", i))
            largo->SetVisible(enBanda && puesta);
    }
}

void LosaBandas::PresentaTipo()
{
    const int tipo = At("cmbTipoFor").ListIndex();
    for (Control* pt : Members("PtFor"))
        pt->SetVisible(pt->Index() == tipo);
}

void LosaBandas::MuestraPanel(const char* panel, bool visible)
{
    At(panel).SetVisible(visible);
    At("Frm1").SetEnabled(!visible);
    At("Picture1").SetEnabled(!visible);
}

void LosaBandas::CargaPropia()
{
    At("UCfrRes").SetLeft(kIzquierdaResultados);
    if (Control* panel = Find("UCfrFor"))
        panel->SetLeft(kIzquierdaForjado);
    PresentaPosicion();
    PresentaBanda();
    if (Find("cmbTipoFor"))
        PresentaTipo();
}

void LosaBandas::List1_Lee()
{
    List1_Click();
    // The record was read under Cargando: the window follows the fields read.
    PresentaPosicion();
    PresentaBanda();
    if (Find("cmbTipoFor"))
        PresentaTipo();
}

void LosaBandas::TrasGuardado() { MuestraPanel("UCfrRes", true); }

// ---- Sketches ----

std::optional<Croquis> LosaBandas::CroquisDe(const Control& picture) const
{
    if (picture.Name() == "PtFor" && Find("cmbTipoFor"))
        return picture.Index() >= 0 && picture.Index() <= 1 ? std::optional(CroquisForjado(*this, picture.Index()))
                                                            : std::nullopt;
    const std::optional<PosicionPanel> elegida = Posicion();
    if (picture.Name() == "PctViga") {
        // The chosen band along its span: the slab strip over its two column lines, the bars over
        // each support and in the span, a further bar beside its base bar while switched on.
        const int b = static_cast<int>(banda_);
        const bool enX = banda_ == Banda::CentralX || banda_ == Banda::SoportesX;
        const LucesPanel l = LucesDePanel(*this, elegida.value_or(PosicionPanel::Centro));
        const double luz = std::clamp(enX ? l.lx : l.ly, 1.0, 20.0);
        constexpr int kAncho = 6000, x0 = 600, x1 = 5400, yLosa = 700, canto = 180;
        Croquis c;
        c.ancho = kAncho;
        c.alto = 1650;
        c.Rectangulo(PapelCroquis::Hormigon, 150, yLosa, kAncho - 150, yLosa + canto);
        for (int x : {x0, x1})
            c.Rectangulo(PapelCroquis::Hormigon, x - 90, yLosa + canto, x + 90, yLosa + canto + 350);
        auto largo = [&](int i, double porDefecto) {
            // The far support's bars have no length of their own: those of the near one.
            const Control* lv = Find("TxLv", i);
            if (!lv && i % kBarrasPorBanda >= 4)
                lv = Find("TxLv", i - 4);
            const double m = lv ? std::abs(ValComaCopy(lv->Text())) : 0;
            const double f = m > 0 ? std::min(m / luz, 1.0) : porDefecto;
            return static_cast<int>(f * (x1 - x0));
        };
        auto barra = [&](int i, int desde, int hasta, int y, int yTexto) {
            c.Linea(PapelCroquis::Armadura, {desde, y}, {hasta, y});
            if (const std::string t = Barras(At("UCArVig", i)); !t.empty())
                c.Texto(PapelCroquis::Armadura, {(desde + hasta) / 2, yTexto}, t);
        };
        const int base = b * kBarrasPorBanda;
        const int arriba = yLosa + 35, abajo = yLosa + canto - 35;
        for (int lado = 0; lado < 2; ++lado) {
            const int i = base + (lado == 0 ? 0 : 4), x = lado == 0 ? x0 : x1;
            const int mitad = largo(i, 0.3) / 2;
            barra(i, std::max(x - mitad, 150), std::min(x + mitad, kAncho - 150), arriba, yLosa - 450);
            if (At("ChArV", i + 1).CheckValue() != 0) {
                const int m2 = largo(i + 1, 0.2) / 2;
                barra(i + 1, std::max(x - m2, 150), std::min(x + m2, kAncho - 150), arriba + 45, yLosa - 170);
            }
        }
        barra(base + 2, x0 - 100, x1 + 100, abajo, yLosa + canto + 170);
        if (At("ChArV", base + 3).CheckValue() != 0) {
            const int m = largo(base + 3, 0.6) / 2;
            barra(base + 3, (x0 + x1) / 2 - m, (x0 + x1) / 2 + m, abajo - 45, yLosa + canto + 370);
        }
        c.Cota({x0, c.alto - 200}, {x1, c.alto - 200}, Formato00(enX ? l.lx : l.ly));
        return c;
    }
    if (picture.Name() != "PctFRPlan" || picture.Index() < 0 || picture.Index() > 2)
        return std::nullopt;
    // The panel between its four columns; beyond a façade its cantilever, beyond a neighbour a
    // fifth of the span. The column strips stand a quarter of the shorter span each side of the
    // column lines, the middle strips between them; the chosen band is set off.
    const auto pos = static_cast<PosicionPanel>(picture.Index());
    const LucesPanel l = LucesDePanel(*this, pos);
    constexpr int kEscala = 400, kMargen = 550;
    auto tw = [&](double m) { return static_cast<int>(m * kEscala); };
    const int lx = tw(std::clamp(l.lx, 1.0, 12.0)), ly = tw(std::clamp(l.ly, 1.0, 12.0));
    const bool fachadaX = pos != PosicionPanel::Centro;  // at the left
    const bool fachadaY = pos == PosicionPanel::Esquina; // at the bottom
    const int izq = fachadaX ? tw(std::clamp(l.vueloX, 0.0, 4.0)) : lx / 5, der = lx / 5;
    const int arr = ly / 5, aba = fachadaY ? tw(std::clamp(l.vueloY, 0.0, 4.0)) : ly / 5;
    Croquis c;
    c.ancho = 2 * kMargen + izq + lx + der;
    c.alto = 2 * kMargen + arr + ly + aba;
    const int ox = kMargen + izq, oy = kMargen + arr;  // the top-left column
    const int xa = ox - izq, xb = ox + lx + der, ya = oy - arr, yb = oy + ly + aba;
    const int w = std::min(lx, ly) / 4;
    // The chosen band: X bands run left to right, Y bands top to bottom.
    switch (banda_) {
    case Banda::CentralX: c.Rectangulo(PapelCroquis::Resalte, xa, oy + w, xb, oy + ly - w); break;
    case Banda::SoportesX:
        c.Rectangulo(PapelCroquis::Resalte, xa, std::max(oy - w, ya), xb, oy + w);
        c.Rectangulo(PapelCroquis::Resalte, xa, oy + ly - w, xb, std::min(oy + ly + w, yb));
        break;
    case Banda::CentralY: c.Rectangulo(PapelCroquis::Resalte, ox + w, ya, ox + lx - w, yb); break;
    case Banda::SoportesY:
        c.Rectangulo(PapelCroquis::Resalte, std::max(ox - w, xa), ya, ox + w, yb);
        c.Rectangulo(PapelCroquis::Resalte, ox + lx - w, ya, std::min(ox + lx + w, xb), yb);
        break;
    }
    // The edges of the strips, the column lines, the façades.
    for (int y : {oy - w, oy + w, oy + ly - w, oy + ly + w})
        if (y >= ya && y <= yb)
            c.Linea(PapelCroquis::Cota, {xa, y}, {xb, y});
    for (int x : {ox - w, ox + w, ox + lx - w, ox + lx + w})
        if (x >= xa && x <= xb)
            c.Linea(PapelCroquis::Cota, {x, ya}, {x, yb});
    if (fachadaX)
        c.Linea(PapelCroquis::Superficie, {xa, ya}, {xa, yb});
    if (fachadaY)
        c.Linea(PapelCroquis::Superficie, {xa, yb}, {xb, yb});
    constexpr int kLado = 140;
    for (int x : {ox, ox + lx})
        for (int y : {oy, oy + ly})
            c.Rectangulo(PapelCroquis::Hormigon, x - kLado / 2, y - kLado / 2, x + kLado / 2, y + kLado / 2);
    c.Cota({ox, kMargen / 2}, {ox + lx, kMargen / 2}, "Lx " + Formato00(l.lx));
    c.Cota({c.ancho - kMargen / 2, oy}, {c.ancho - kMargen / 2, oy + ly}, "Ly " + Formato00(l.ly));
    if (fachadaX && izq > 0)
        c.Cota({xa, c.alto - kMargen / 2}, {ox, c.alto - kMargen / 2}, Formato00(l.vueloX));
    if (fachadaY && aba > 0)
        c.Cota({c.ancho - kMargen / 2, oy + ly}, {c.ancho - kMargen / 2, yb}, Formato00(l.vueloY));
    c.Apaisa(kProporcionPlano);
    return c;
}

}  // namespace vardena
