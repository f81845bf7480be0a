#include "concrete/Abaco.h"

#include <algorithm>
#include <cmath>

#include "base/Texto.h"
#include "building/Unidades.h"
#include "concrete/Losas.h"
#include "frame/Finitos.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr int kMsgSinPosicion = 706;

// Where the slab's panel stands when it opens over the form, twips.
constexpr int kIzquierdaForjado = 3315;

// The enclosure load TxtQ(0) is in kg/m: the estimate takes it in t/m.
constexpr double kKgPorT = 1000;

PosicionPilar PosicionDeColumna(PosicionAbaco p)
{
    switch (p) {
    case PosicionAbaco::Centro: return PosicionPilar::Centro;
    case PosicionAbaco::Borde: return PosicionPilar::Borde;
    case PosicionAbaco::Esquina: return PosicionPilar::Esquina;
    }
    return PosicionPilar::Centro;
}

}  // namespace

std::array<int, 4> LucesAbaco(PosicionAbaco p)
{
    switch (p) {
    case PosicionAbaco::Centro: return {0, 1, 2, 3};
    case PosicionAbaco::Borde: return {9, 8, 11, 10};
    case PosicionAbaco::Esquina: return {7, 5, 4, 6};
    }
    return {0, 1, 2, 3};
}

Abaco::Abaco(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    for (Control* op : Members("OpPosPil"))
        op->onClick = [this](Control&) { PresentaPosicion(); };
    for (int i : {2, 3})
        At("txtForj", i).onChange = [this](Control&) { Evento("txtForj_Change", [this] { CantoTotalForjado(*this); }); };
    At("cmbTipoFor").onClick = [this](Control&) { PresentaTipo(); };
    At("Command1").onClick = [this](Control&) { MuestraForjado(true); };
    At("Command3").onClick = [this](Control&) { MuestraForjado(false); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
    MuestraForjado(false);
}

// ---- What the window shows ----

void Abaco::PresentaPosicion()
{
    const std::optional<PosicionAbaco> p = Posicion();
    for (Control* pt : Members("Ptpilar"))
        pt->SetVisible(p && pt->Index() == static_cast<int>(*p));
    // The distances of the chosen position only, in its frame; the enclosure stands on the façade.
    constexpr const char* kMarcos[] = {"UCframeLucesCen", "UCframeLucesBor", "UCframeLucesEsq"};
    for (int i = 0; i < 3; ++i)
        if (Control* marco = Find(kMarcos[i]))
            marco->SetVisible(p && i == static_cast<int>(*p));
    for (Control* le : Members("LePil"))
        le->SetVisible(false);
    if (p)
        for (int i : LucesAbaco(*p))
            At("LePil", i).SetVisible(true);
    const bool fachada = p && *p != PosicionAbaco::Centro;
    for (Control* c : {Find("Label7"), Find("LbP1", 0), Find("TxtQ", 0)})
        if (c)
            c->SetVisible(fachada);
}

void Abaco::PresentaTipo()
{
    const int tipo = At("cmbTipoFor").ListIndex();
    for (Control* pt : Members("PtFor"))
        pt->SetVisible(pt->Index() == tipo);
}

void Abaco::MuestraForjado(bool visible)
{
    // The slab's panel behaves as a dialog: while it shows, the rest of the form waits.
    At("UCfrFor").SetVisible(visible);
    At("Frm1").SetEnabled(!visible);
    At("Picture1").SetEnabled(!visible);
}

void Abaco::CargaPropia()
{
    At("UCfrFor").SetLeft(kIzquierdaForjado);
    PresentaPosicion();
    PresentaTipo();
}

void Abaco::List1_Lee()
{
    List1_Click();
    // The record was read under Cargando: the window follows the fields read.
    PresentaPosicion();
    PresentaTipo();
}

// ---- The estimate ----

std::optional<PosicionAbaco> Abaco::Posicion() const
{
    if (const std::optional<int> i = OpcionElegida("OpPosPil", 3))
        return static_cast<PosicionAbaco>(*i);
    return std::nullopt;
}

void Abaco::CalCargas()
{
    Declaraciones& d = decl();
    if (d.Cargando != kFalse)
        return;
    const int nivel = At("CmbPlanta").ListIndex();
    // A record of a level the work no longer has: no loads to take.
    if (nivel < 0)
        return;
    DatosCargasPilar x;
    x.regla = ReglaCargas::Abaco;
    // The panel carries its own level only.
    CargasDeNivel(d, nivel, x.g, x.q);
    x.gT = x.g;
    x.qT = x.q;
    const MaterialesControl m = MaterialesDe(*this);
    x.gammaG = m.gammaG;
    x.gammaQ = m.gammaQ;

    const std::optional<PosicionAbaco> p = Posicion();
    if (!p) {
        d.ui.MsgBox(d.Msg(kMsgSinPosicion), mb::Critical, kProductWord);
        return;
    }
    x.posicion = PosicionDeColumna(*p);
    const std::array<int, 4> luces = LucesAbaco(*p);
    std::array<const Control*, 5> datos{};
    for (size_t i = 0; i < 4; ++i) {
        const Control& c = At("LePil", luces[i]);
        x.a[i] = ValComaCopy(c.Text());
        datos[i] = &c;
    }
    if (*p != PosicionAbaco::Centro) {
        x.e = LeeQ(*this, 0) / kKgPorT;
        datos[4] = &At("TxtQ", 0);
    }
    const CargasPilar r = CalculaCargasPilar(x);
    CompruebaFinitos(*this, {r.n, r.mx, r.my}, datos);
    // Everything is computed: only now are the figures kept.
    cargas_ = r;
    materiales_ = m;
    calculado_ = true;
}

DatosComprobacion Abaco::LeeDatosComprobacion()
{
    CalCargas();
    return ElementForm::LeeDatosComprobacion();
}

std::string Abaco::ResumenCalculo() const
{
    if (!calculado_)
        return {};
    return "the column line's load was estimated for the check: N = " + Formato00(cargas_.n) + " t on " +
           Formato00(cargas_.area) + " m2, Mx = " + Formato00(cargas_.mx) + ", My = " + Formato00(cargas_.my) +
           " m·t; none of it is written to the record";
}

// ---- Sketches ----

std::optional<Croquis> Abaco::CroquisDe(const Control& picture) const
{
    if (picture.Name() == "PtFor")
        return picture.Index() >= 0 && picture.Index() <= 2 ? std::optional(CroquisForjado(*this, picture.Index()))
                                                            : std::nullopt;
    if (picture.Name() != "Ptpilar" || picture.Index() < 0 || picture.Index() > 2)
        return std::nullopt;
    const auto pos = static_cast<PosicionAbaco>(picture.Index());
    const std::array<int, 4> luces = LucesAbaco(pos);
    auto metros = [&](const char* campo, int i = -1) { return std::abs(ValComaCopy(At(campo, i).Text())); };
    // The plan shows half of each span around the column, the whole distance to a façade; each
    // length held within 0.3 and 8 m so that the plan stays legible.
    const bool fachadaX = pos != PosicionAbaco::Centro;  // a1 runs to the façade
    const bool fachadaY = pos == PosicionAbaco::Esquina; // a4 runs to the façade
    std::array<double, 4> a{};
    for (size_t i = 0; i < 4; ++i)
        a[i] = std::clamp(metros("LePil", luces[i]), 0.0, 8.0);
    const double izq = fachadaX ? a[0] : std::max(a[0] / 2, 0.3), der = std::max(a[1] / 2, 0.3);
    const double arr = std::max(a[2] / 2, 0.3), aba = fachadaY ? a[3] : std::max(a[3] / 2, 0.3);
    constexpr int kEscala = 500;  // twips a metre
    constexpr int kMargen = 100, kCotas = 450;
    // A column at a façade 0 away still stands 300 twips off it, so that it shows.
    constexpr int kSeparacion = 300;
    auto tw = [&](double m) { return static_cast<int>(m * kEscala); };
    const int ox = kMargen + std::max(tw(izq), fachadaX ? kSeparacion : 0);
    const int oy = kMargen + kCotas + tw(arr);
    Croquis c;
    c.ancho = ox + tw(der) + kMargen;
    c.alto = oy + std::max(tw(aba), fachadaY ? kSeparacion : 0) + kMargen + kCotas;
    const int x0 = fachadaX ? ox - std::max(tw(izq), kSeparacion) : kMargen, x1 = c.ancho - kMargen;
    const int y0 = kMargen + kCotas, y1 = fachadaY ? oy + std::max(tw(aba), kSeparacion) : c.alto - kMargen - kCotas;
    // The slab around the column, its façades drawn.
    c.Rectangulo(PapelCroquis::Hueco, x0, y0, x1, y1);
    if (fachadaX)
        c.Linea(PapelCroquis::Superficie, {x0, y0}, {x0, y1});
    if (fachadaY)
        c.Linea(PapelCroquis::Superficie, {x0, y1}, {x1, y1});
    // The drop panel, centred on the column and cut at the façades.
    const int mx = tw(std::min(metros("AbacoX"), 8.0)) / 2, my = tw(std::min(metros("AbacoY"), 8.0)) / 2;
    c.Rectangulo(PapelCroquis::Resalte, std::max(ox - mx, x0), std::max(oy - my, y0), std::min(ox + mx, x1),
                 std::min(oy + my, y1));
    // The column.
    const int px = std::max(tw(std::min(metros("PilX"), 3.0)) / 2, 20), py = std::max(tw(std::min(metros("PilY"), 3.0)) / 2, 20);
    c.Rectangulo(PapelCroquis::Hormigon, ox - px, oy - py, ox + px, oy + py);
    // The axes through the column, and the distances under the names of their fields.
    c.Linea(PapelCroquis::Cota, {x0, oy}, {x1, oy});
    c.Linea(PapelCroquis::Cota, {ox, y0}, {ox, y1});
    const int arriba = kMargen + kCotas / 2, abajo = c.alto - kMargen - kCotas / 2;
    c.Cota({x0, arriba}, {ox, arriba}, "a1");
    c.Cota({ox, arriba}, {x1, arriba}, "a2");
    c.Cota({x1 - 60, y0}, {x1 - 60, oy}, "a3");
    c.Cota({x1 - 60, oy}, {x1 - 60, y1}, "a4");
    c.Cota({std::max(ox - mx, x0), abajo}, {std::min(ox + mx, x1), abajo}, Formato00(metros("AbacoX")));
    // A plan at least this much wider than high.
    c.Apaisa(1.8);
    return c;
}

}  // namespace vardena
