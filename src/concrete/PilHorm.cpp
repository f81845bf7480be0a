#include "concrete/PilHorm.h"

#include <algorithm>
#include <cmath>

#include "base/Texto.h"
#include "frame/DatosCalculo.h"
#include "frame/Finitos.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr int kMsgSinPosicion = 706;

// The frame of each position's distances, by the index of OpPosPil.
constexpr const char* kMarcoLuces[] = {"UCframeLucesEsq", "UCframeLucesBor", "UCframeLucesCen"};

// The share of the fixed-end moment that the column takes.
constexpr double kParteMomento = 0.3;

}  // namespace

CargasPilar CalculaCargasPilar(const DatosCargasPilar& x)
{
    const double a1 = x.a[0], a2 = x.a[1], a3 = x.a[2], a4 = x.a[3];
    const double carga = x.gammaQ * x.q + x.gammaG * x.g;
    const double gammaCerramiento = x.regla == ReglaCargas::Abaco ? 1.0 : x.gammaG;
    CargasPilar r;
    switch (x.posicion) {
    case PosicionPilar::Centro:
        r.area = (a2 + a1) * (a4 + a3) / 4;
        break;
    case PosicionPilar::Borde: {
        r.nCerramiento = x.e * (a4 + a3) / 2 * gammaCerramiento;
        r.area = (a2 / 2 + a1) * (a4 + a3) / 2;
        const double w = carga * (a4 + a3) / 2;
        r.mx = kParteMomento * std::abs(w * a2 * a2 / 12 - w * a1 * a1 / 2 - r.nCerramiento * a1);
        break;
    }
    case PosicionPilar::Esquina: {
        r.nCerramiento = x.e * (a2 / 2 + a1 + a3 / 2 + a4) * gammaCerramiento;
        r.area = (a2 / 2 + a1) * (a3 / 2 + a4);
        const double wx = carga * (a3 / 2 + a4) + x.e;
        const double wy = carga * (a2 / 2 + a1) + x.e;
        r.mx = kParteMomento * std::abs(wx * a2 * a2 / 12 - wx * a1 * a1 / 2 - x.e * (a3 / 2 + a4) * a1);
        // The second term takes the load of the other direction, wx: the form has always done so.
        r.my = kParteMomento * std::abs(wy * a3 * a3 / 12 - wx * a4 * a4 / 2 - x.e * (a2 / 2 + a1) * a4);
        break;
    }
    }
    if (x.regla == ReglaCargas::Abaco)
        r.area = (a4 + a3) * (a2 + a1) / 4;
    r.n = (x.gammaG * x.gT + x.gammaQ * x.qT) * r.area + r.nCerramiento;
    return r;
}

PilHorm::PilHorm(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    // The list of the oblique factors is kept for the check and never shown.
    if (Control* esviada = Find("cmbesviada"))
        esviada->SetVisible(false);
    ConectaEventos();
}

void PilHorm::ConectaEventos()
{
    for (Control* op : Members("OpPosPil")) {
        const int i = op->Index();
        op->onClick = [this, i](Control&) {
            PresentaPosicion();
            Evento("OpPosPil_Click", [this, i] { OpPosPil_Click(i); });
        };
    }
    for (Control* le : Members("LePil")) {
        const int i = le->Index();
        le->onChange = [this, i](Control&) { Evento("LePil_Change", [this, i] { LePil_Change(i); }); };
    }
    for (Control* q : Members("TxtQ"))
        q->onChange = [this](Control&) {
            if (!escribiendo_)
                Evento("TxtQ_Change", [this] { CalCargas(); });
        };
    At("CmbPlanta").onClick = [this](Control&) { Evento("CmbPlanta_Click", [this] { CmbPlanta_Click(); }); };
    At("ChPilSup").onClick = [this](Control&) { Evento("ChPilSup_Click", [this] { CalCargas(); }); };
    if (Control* forma = Find("CmbForma"))
        forma->onClick = [this](Control&) { PresentaForma(); };
    for (Control* ch : Members("ChPil"))
        ch->onClick = [this](Control&) { PresentaLlaves(); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

// ---- What the window shows ----

void PilHorm::PresentaPosicion()
{
    const std::optional<PosicionPilar> p = Posicion();
    for (Control* pt : Members("Ptpilar"))
        pt->SetVisible(p && pt->Index() == static_cast<int>(*p));
    for (int i = 0; i < 3; ++i)
        if (Control* marco = Find(kMarcoLuces[i]))
            marco->SetVisible(p && i == static_cast<int>(*p));
    // The enclosure stands on the façade: an inner column carries none.
    const bool fachada = p && *p != PosicionPilar::Centro;
    for (Control* c : {Find("LbCer"), Find("LbP1", 0), Find("TxtQ", 3)})
        if (c)
            c->SetVisible(fachada);
}

void PilHorm::PresentaPlanta()
{
    Declaraciones& d = decl();
    const int nivel = At("CmbPlanta").ListIndex();
    Control& sup = At("ChPilSup");
    sup.SetCheckValue(nivel == 0 ? 0 : 1);
    sup.SetVisible(nivel != d.NPlantasSobre + d.NPlantasBajo - 1);
    if (nivel >= 0 && nivel < static_cast<int>(d.GenCot.size()))
        At("LePil", kAlturaPlanta).SetText(Formato00Punto(d.GenCot[static_cast<size_t>(nivel)]));
    // The enclosure's weight per metre, held in t/m by the general data, in kg/m on the panel.
    float cerramiento = d.GenValor[7] * 1000;
    if (d.Unidades != 1)
        cerramiento *= static_cast<float>(ValComaCopy(At("LbQSI", 3).Caption()));
    At("TxtQ", 3).SetText(FormatoNum(cerramiento));
}

void PilHorm::PresentaForma()
{
    const int forma = At("CmbForma").ListIndex();
    for (const char* nombre : {"PctCuadr", "Lbnota"})
        if (Control* c = Find(nombre))
            c->SetVisible(forma == 0);
    if (Control* c = Find("PctCir"))
        c->SetVisible(forma == 1);
}

void PilHorm::PresentaLlaves()
{
    for (Control* ch : Members("ChPil"))
        if (Control* llave = Find("Pctllave", ch->Index()))
            llave->SetVisible(ch->CheckValue() == 1);
}

// ---- Load, reading and the button ----

void PilHorm::CargaPropia()
{
    // Cargando is set: the level's fields are written without starting the estimate.
    PresentaPlanta();
    PresentaPosicion();
    if (Find("CmbForma"))
        PresentaForma();
    PresentaLlaves();
}

void PilHorm::List1_Lee()
{
    List1_Click();
    // A form that reads under Cargando has heard none of its events: the window follows the
    // fields read, and the level's visibility of ChPilSup with them.
    At("ChPilSup").SetVisible(At("CmbPlanta").ListIndex() != decl().NPlantasSobre + decl().NPlantasBajo - 1);
    PresentaPosicion();
    if (Find("CmbForma"))
        PresentaForma();
    PresentaLlaves();
}

DatosComprobacion PilHorm::LeeDatosComprobacion()
{
    CalCargas();
    return ElementForm::LeeDatosComprobacion();
}

// ---- Events ----

void PilHorm::OpPosPil_Click(int) { CalCargas(); }

void PilHorm::LePil_Change(int index)
{
    if (index == kAlturaPlanta)
        return;
    const std::optional<PosicionPilar> p = Posicion();
    if (!p)
        return;
    // A distance not above 0 is still being typed: the estimate waits for all four.
    const int primera = PrimeraLuz(*p);
    for (int i = primera; i < primera + 4; ++i)
        if (!(Luz(i) > 0))
            return;
    CalCargas();
}

void PilHorm::CmbPlanta_Click()
{
    PresentaPlanta();
    CalCargas();
}

// ---- The estimate ----

std::optional<PosicionPilar> PilHorm::Posicion() const
{
    if (const std::optional<int> i = OpcionElegida("OpPosPil", 3))
        return static_cast<PosicionPilar>(*i);
    return std::nullopt;
}

double PilHorm::Luz(int index) const { return ValComaCopy(At("LePil", index).Text()); }

void CargasDeNivel(const Declaraciones& d, int nivel, double& g, double& q)
{
    const CargasPlanta c = CargasDePlanta(d, nivel);
    g = c.g();
    q = c.q();
}

MaterialesControl MaterialesDe(Form& form)
{
    Declaraciones& d = form.decl();
    MaterialesControl m;
    const Control* control = form.Find("cmbControl");
    const int fila = control ? control->ListIndex() : 0;
    const int indice = IndiceMaterial(fila, d.GenControl);
    Coeficientes(d, indice, m.gammaG, m.gammaQ);
    // The design strengths of the concrete forms, as the check takes them.
    const Control* horm = form.Find("CmbHorm");
    const Control* acero = form.Find("CmbAcero");
    if (!horm || !acero)
        return m;
    const std::optional<int16_t> fck = FckIndice(d, IndiceMaterial(horm->ListIndex(), d.GenHorm));
    const std::optional<int32_t> fyk = FykIndice(d, IndiceMaterial(acero->ListIndex(), d.GenAcero));
    const Resistencias r = ResistenciasDeCalculo(fck.value_or(0), fyk.value_or(0), indice == 0);
    m.fcd = r.fcd;
    m.fyd = r.fyd;
    return m;
}

void PilHorm::CargasNivel(int nivel, double& g, double& q) const { CargasDeNivel(decl(), nivel, g, q); }

void PilHorm::CoeficientesControl(double& gammaG, double& gammaQ)
{
    const MaterialesControl m = MaterialesDe(*this);
    gammaG = m.gammaG;
    gammaQ = m.gammaQ;
    if (Find("CmbHorm") && Find("CmbAcero")) {
        fcd_ = m.fcd;
        fyd_ = m.fyd;
    }
}

void PilHorm::CalCargas()
{
    Declaraciones& d = decl();
    if (d.Cargando != kFalse)
        return;
    const int nivel = At("CmbPlanta").ListIndex();
    // A record of a level the work no longer has leaves the list without a row: there are no
    // loads to take, and the figures read stay as they are.
    if (nivel < 0)
        return;

    DatosCargasPilar x;
    if (At("ChPilSup").CheckValue() == 0) {
        CargasNivel(nivel, x.gT, x.qT);
    } else {
        for (int i = 0; i <= nivel; ++i) {
            double g = 0, q = 0;
            CargasNivel(i, g, q);
            x.gT += g;
            x.qT += q;
        }
    }
    CargasNivel(nivel, x.g, x.q);
    CoeficientesControl(x.gammaG, x.gammaQ);

    const std::optional<PosicionPilar> p = Posicion();
    if (!p) {
        d.ui.MsgBox(d.Msg(kMsgSinPosicion), mb::Critical, kProductWord);
        return;
    }
    x.posicion = *p;
    const int primera = PrimeraLuz(*p);
    for (int i = 0; i < 4; ++i)
        x.a[static_cast<size_t>(i)] = Luz(primera + i);
    if (*p != PosicionPilar::Centro) {
        // The enclosure of every storey from the roof down to this one that stands above ground.
        for (int i = 0; i <= nivel && i < d.NPlantasSobre && i < static_cast<int>(d.GenCot.size()); ++i)
            x.e += static_cast<double>(d.GenCot[static_cast<size_t>(i)]) * d.GenValor[7];
    }

    const CargasPilar r = CalculaCargasPilar(x);
    std::array<const Control*, 4> luces{};
    for (int i = 0; i < 4; ++i)
        luces[static_cast<size_t>(i)] = &At("LePil", primera + i);
    // An overflow names the largest distance.
    CompruebaFinitos(*this, {r.n, r.mx, r.my}, luces);

    // Everything is computed: only now does the panel change.
    cargas_ = r;
    auto factor = [&](int i) { return d.Unidades != 1 ? ValComaCopy(At("LbQSI", i).Caption()) : 1.0; };
    escribiendo_ = true;
    struct Fin {
        bool& b;
        ~Fin() { b = false; }
    } fin{escribiendo_};
    At("TxtQ", 2).SetText(Formato00(r.n * factor(2)));
    At("TxtQ", 0).SetText(Formato00(r.mx * factor(0)));
    At("TxtQ", 1).SetText(Formato00(r.my * factor(1)));
    if (Control* lb = Find("LbP1", 2))
        lb->SetCaption(At("TxtQ", 0).Text());
}

std::string PilHorm::ResumenCalculo() const
{
    return "the column's loads were estimated from the general data: N = " + At("TxtQ", 2).Text() +
           ", Mx = " + At("TxtQ", 0).Text() + ", My = " + At("TxtQ", 1).Text() +
           "; TxtQ(0), TxtQ(1) and TxtQ(2) hold the new figures, every other field keeps the value read";
}

// ---- The plan ----

std::optional<Croquis> PilHorm::CroquisDe(const Control& picture) const
{
    // The section pictures belong to the concrete column, the one with bars.
    const bool armado = Find("UCArmPilar", 0) && Find("UCArmPilar", 4) && Find("txtTramo", 4);
    if (armado && (picture.Name() == "PctCuadr" || picture.Name() == "PctCir"))
        return CroquisSeccion(picture.Name() == "PctCir");
    if (armado && picture.Name() == "Pctllave" && (picture.Index() == 3 || picture.Index() == 4))
        return CroquisLlave(picture.Index());
    if (picture.Name() != "Ptpilar" || picture.Index() < 0 || picture.Index() > 2)
        return std::nullopt;
    const auto pos = static_cast<PosicionPilar>(picture.Index());
    const int primera = PrimeraLuz(pos);
    // Each distance drawn at 400 twips a metre, within 0.5 and 8 m so that the plan stays legible.
    auto largo = [&](int i) {
        const double v = ValComaCopy(At("LePil", primera + i).Text());
        return static_cast<int>(std::clamp(v, 0.5, 8.0) * 400);
    };
    const int a1 = largo(0), a2 = largo(1), a3 = largo(2), a4 = largo(3);
    // Room around the plan for the dimension lines and their names.
    constexpr int kMargen = 700;
    constexpr int kLado = 160;
    // Room at the right for the names and values of the distances across.
    constexpr int kRotulos = 1100;
    Croquis c;
    c.ancho = a1 + a2 + 2 * kMargen + kRotulos;
    c.alto = a3 + a4 + 2 * kMargen;
    const PuntoCroquis o{kMargen + a1, kMargen + a3};
    // The tributary area: half of each span; a cantilever to the façade counts whole.
    const bool bordeX = pos != PosicionPilar::Centro;  // a1 runs to the façade
    const bool bordeY = pos == PosicionPilar::Esquina; // a4 runs to the façade
    const int izq = o.x - (bordeX ? a1 : a1 / 2), der = o.x + a2 / 2;
    const int arr = o.y - a3 / 2, aba = o.y + (bordeY ? a4 : a4 / 2);
    c.Rectangulo(PapelCroquis::Terreno, izq, arr, der, aba);
    // The axes of the frames through the column and its neighbours.
    c.Linea(PapelCroquis::Cota, {o.x - a1, o.y}, {o.x + a2, o.y});
    c.Linea(PapelCroquis::Cota, {o.x, o.y - a3}, {o.x, o.y + a4});
    // The façade lines of an edge or corner column.
    if (bordeX)
        c.Linea(PapelCroquis::Superficie, {o.x - a1, o.y - a3}, {o.x - a1, o.y + a4});
    if (bordeY)
        c.Linea(PapelCroquis::Superficie, {o.x - a1, o.y + a4}, {o.x + a2, o.y + a4});
    // The column and its neighbours at the ends of the spans.
    auto pilar = [&](PuntoCroquis p) {
        c.Rectangulo(PapelCroquis::Hormigon, p.x - kLado / 2, p.y - kLado / 2, p.x + kLado / 2, p.y + kLado / 2);
    };
    pilar(o);
    pilar({o.x + a2, o.y});
    pilar({o.x, o.y - a3});
    if (!bordeX)
        pilar({o.x - a1, o.y});
    if (!bordeY)
        pilar({o.x, o.y + a4});
    // The four distances under the names of their fields; the fields beside hold the values.
    const int arriba = kMargen - 150, derecha = c.ancho - kRotulos - kMargen + 150;
    auto nombre = [&](int i) { return "a" + std::to_string(i + 1) + "=" + At("LePil", primera + i).Text(); };
    c.Cota({o.x - a1, arriba}, {o.x, arriba}, nombre(0));
    c.Cota({o.x, arriba}, {o.x + a2, arriba}, nombre(1));
    c.Cota({derecha, o.y - a3}, {derecha, o.y}, nombre(2));
    c.Cota({derecha, o.y}, {derecha, o.y + a4}, nombre(3));
    return c;
}

// ---- The section ----

namespace {

// "2Ø25": the bars of a UCNumDiam.
std::string TextoBarras(const Control& c) { return c.Get("NumBarras") + "\xC3\x98" + c.Get("Diametro"); }
int Entero(const Control& c, const char* propiedad) { return static_cast<int>(ValComaCopy(c.Get(propiedad))); }

}  // namespace

Croquis PilHorm::CroquisSeccion(bool circular) const
{
    // Twips: the section fitted into a square of kLado, its sizes and bars named beside it.
    constexpr int kAncho = 3200, kAlto = 2400, kLado = 1500, kRecubrimiento = 110, kBarra = 70;
    Croquis c;
    c.ancho = kAncho;
    c.alto = kAlto;
    const int cx = kAncho / 2, cy = (kAlto - 200) / 2;
    auto barra = [&](double x, double y) {
        const int px = static_cast<int>(x), py = static_cast<int>(y);
        c.Rectangulo(PapelCroquis::Armadura, px - kBarra / 2, py - kBarra / 2, px + kBarra / 2, py + kBarra / 2);
    };
    if (circular) {
        // A circle of 36 sides, the bars evenly round inside the cover.
        const double radio = kLado / 2.0;
        const Control& barras = At("UCArmPilar", 0);
        TrazoCroquis circulo{FiguraCroquis::Poligono, PapelCroquis::Hormigon, {}};
        for (int k = 0; k < 36; ++k)
            circulo.puntos.push_back({cx + static_cast<int>(radio * std::cos(k * kPi / 18)),
                                      cy + static_cast<int>(radio * std::sin(k * kPi / 18))});
        c.trazos.push_back(circulo);
        const int n = std::clamp(Entero(barras, "NumBarras"), 0, 24);
        for (int k = 0; k < n; ++k)
            barra(cx + (radio - kRecubrimiento) * std::cos(2 * kPi * k / n - kPi / 2),
                  cy + (radio - kRecubrimiento) * std::sin(2 * kPi * k / n - kPi / 2));
        c.Texto(PapelCroquis::Cota, {cx, cy + kLado / 2 + 170}, "D=" + At("txtTramo", 0).Text());
        c.Texto(PapelCroquis::Armadura, {cx, cy}, TextoBarras(barras));
        return c;
    }
    // The rectangle b x h (txtTramo(3) across, txtTramo(4) up), its longer side at kLado.
    const double b = std::fabs(ValComaCopy(At("txtTramo", 3).Text())), h = std::fabs(ValComaCopy(At("txtTramo", 4).Text()));
    if (!(b > 0 && h > 0))
        return c;
    const double escala = kLado / std::max(b, h);
    const int w = std::max(300, static_cast<int>(b * escala)), alto = std::max(300, static_cast<int>(h * escala));
    const int izq = cx - w / 2, der = izq + w, arr = cy - alto / 2, aba = arr + alto;
    c.Rectangulo(PapelCroquis::Hormigon, izq, arr, der, aba);
    const int r = kRecubrimiento;
    c.trazos.push_back({FiguraCroquis::Linea, PapelCroquis::Armadura,
                        {{izq + r, arr + r}, {der - r, arr + r}, {der - r, aba - r}, {izq + r, aba - r}, {izq + r, arr + r}}});
    // Upper and lower faces: UCArmPilar(1) and (2) from corner to corner.
    for (int cara = 1; cara <= 2; ++cara) {
        const Control& barras = At("UCArmPilar", cara);
        const int n = std::clamp(Entero(barras, "NumBarras"), 0, 12);
        const int y = cara == 1 ? arr + r : aba - r;
        for (int k = 0; k < n; ++k)
            barra(n == 1 ? cx : izq + r + static_cast<double>(w - 2 * r) * k / (n - 1), y);
        c.Texto(PapelCroquis::Armadura, {cx, cara == 1 ? arr - 110 : aba + 110}, TextoBarras(barras));
    }
    // Side bars per face between the corners: UCArmPilar(3) on the left face, (4) on the right,
    // and the cross-tie through them where ChPil of that face is set (its Pctllave shows).
    for (int cara = 3; cara <= 4; ++cara) {
        const Control& barras = At("UCArmPilar", cara);
        const int n = std::clamp(Entero(barras, "NumBarras"), 0, 12);
        const int x = cara == 3 ? izq + r : der - r;
        for (int k = 1; k <= n; ++k)
            barra(x, arr + r + static_cast<double>(alto - 2 * r) * k / (n + 1));
        if (const Control* llave = Find("Pctllave", cara); llave && llave->Visible() && n > 0) {
            const int y = arr + r + (alto - 2 * r) / (n + 1);
            c.Linea(PapelCroquis::Armadura, {izq + r, y}, {der - r, y});
        }
        c.Texto(PapelCroquis::Armadura, {cara == 3 ? izq - 330 : der + 330, cy}, TextoBarras(barras));
    }
    c.Texto(PapelCroquis::Cota, {cx, aba + 300}, "b=" + At("txtTramo", 3).Text());
    c.Texto(PapelCroquis::Cota, {der + 450, aba + 200}, "h=" + At("txtTramo", 4).Text());
    return c;
}

Croquis PilHorm::CroquisLlave(int cara) const
{
    // The cross-tie of a face: a bar across the section with a hook round a side bar at each end.
    Croquis c;
    c.ancho = 1600;
    c.alto = 700;
    c.trazos.push_back({FiguraCroquis::Linea, PapelCroquis::Armadura,
                        {{380, 230}, {250, 330}, {300, 420}, {1300, 420}, {1350, 330}, {1220, 230}}});
    c.Rectangulo(PapelCroquis::Armadura, 265, 355, 335, 425);
    c.Rectangulo(PapelCroquis::Armadura, 1265, 355, 1335, 425);
    c.Texto(PapelCroquis::Cota, {800, 590}, cara == 3 ? "izq." : "der.");
    return c;
}

}  // namespace vardena
