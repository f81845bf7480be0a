#include "concrete/VigHorm.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "concrete/Hormigon.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

// "División por cero: la planta %1 no tiene cargas (g + q = 0)...": the mean load factor.
constexpr int kMsgCargasNulas = 1550;
constexpr int kErrDivisionPorCero = 11;

// The factor of the bar and stirrup areas: the areas stay in m2 (m2 per m for the stirrups).
constexpr float kFactorArmado = 1;

// The parts of each cantilever, by side (0 left, 1 right): its length, its point load, its bars
// and the picture of its section.
struct PartesVoladizo {
    const char* casilla;
    int cota, carga, barras;
    const char* seccion;
    const char* rotulos[2];  // the window's names of its length and of its load
};
constexpr PartesVoladizo kVoladizos[] = {{"ChVigIzq", 0, 0, 9, "PictIzq", {"LbVolIzq", "LbCargaVolIzq"}},
                                         {"ChVigDer", 4, 4, 10, "PictDer", {"LbVolDer", "LbCargaVolDer"}}};
constexpr const char* kPilares[] = {"ChPilIzq", "ChPilDer"};

// The beam picture, twips: the span between the supports' axes x0 and x1, the cantilevers
// beyond, the beam between yArriba and yAbajo.
constexpr int kAnchoViga = 6400, kAltoViga = 2800;
constexpr int kX0 = 1000, kX1 = 5400, kVoladizo = 800;
constexpr int kArriba = 1250, kCanto = 320, kAbajo = kArriba + kCanto;
constexpr int kAltoCarga = 600, kAltoPilar = 450;
// The bar lines, twips inside the beam's faces: a row every kPasoCapa.
constexpr int kPasoCapa = 40;

double Campo(const Form& f, const char* campo, int i) { return ValComaCopy(f.At(campo, i).Text()); }

// "2Ø12": the bars of a UCNumDiam.
std::string TextoBarras(const Control& c) { return c.Get("NumBarras") + "\xC3\x98" + c.Get("Diametro"); }

}  // namespace

int RecubrimientoDeExposicion(int exposicion)
{
    // I, IIa, IIb: 30, 35, 40 mm; IIIa, IIIb, IV: 45 mm; IIIc: 50 mm.
    switch (exposicion) {
    case 0: return 3;
    case 1: return 4;
    case 2: return 5;
    case 5: return 7;
    default: return 6;
    }
}

SeccionDibujada FormaSeccion(double b, double h)
{
    SeccionDibujada s{std::fabs(b), std::fabs(h)};
    if (s.ancho > kProporcionSeccion * s.alto)
        s.ancho = kProporcionSeccion * s.alto;
    else if (s.alto > kProporcionSeccion * s.ancho)
        s.alto = kProporcionSeccion * s.ancho;
    return s;
}

void CalculaMaterialesViga(VariablesViga& v)
{
    // Without level loads (no level taken) there is no mean factor to weigh.
    v.gamma = v.g + v.q != 0 ? (v.gammaG * v.g + v.gammaQ * v.q) / (v.g + v.q) : 0;
    v.gammaC = kGammaHormigon;
    v.gammaS = kGammaAcero;
    const Resistencias r = ResistenciasDeCalculo(v.fck, v.fyk, v.reducido);
    v.fcd = r.fcd;
    v.fyd = r.fyd;
}

VigHorm::VigHorm(Declaraciones& d, const TablaForm& tabla) : FormaViga(d, tabla)
{
    for (Control* c : Controls()) {
        const int i = c->Index();
        if (c->Name() == "TextDviga")
            c->onLostFocus = [this, i](Control&) { Evento("TextDviga_LostFocus", [&] { TextDviga_LostFocus(i); }); };
        else if (c->Name() == "ChArV")
            c->onClick = [this, i](Control&) { Evento("ChArV_Click", [&] { ChArV_Click(i); }); };
        else if (c->Name() == "TxtPil" && (i == 0 || i == 1))
            c->onChange = [this, i](Control&) { Evento("TxtPil_Change", [&] { PresentaApoyo(i); }); };
    }
    At("CmbAmbGral").onClick = [this](Control&) { Evento("CmbAmbGral_Click", [&] { CmbAmbGral_Click(); }); };
    At("CmbPlanta").onClick = [this](Control&) { CmbPlanta_Click(); };
    // The modulus follows the general data's strength and the factors of the concrete by age.
    At("CmbHorm").onClick = [this](Control&) { decl().ModuloVigas = ModuloHormigonVigas(decl()); };
    At("ChTrans").onClick = [this](Control&) { Evento("ChTrans_Click", [&] { ChTrans_Click(); }); };
    At("ChVigIzq").onClick = [this](Control&) { Evento("ChVigIzq_Click", [&] { ChVoladizo_Click(0); }); };
    At("ChVigDer").onClick = [this](Control&) { Evento("ChVigDer_Click", [&] { ChVoladizo_Click(1); }); };
    At("ChPilIzq").onClick = [this](Control&) { Evento("ChPilIzq_Click", [&] { PresentaApoyo(0); }); };
    At("ChPilDer").onClick = [this](Control&) { Evento("ChPilDer_Click", [&] { PresentaApoyo(1); }); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

void VigHorm::CargaPropia()
{
    FormaViga::CargaPropia();
    ChTrans_Click();
    CmbPlanta_Click();
    for (int lado = 0; lado < 2; ++lado) {
        PresentaVoladizo(lado);
        PresentaApoyo(lado);
    }
    PresentaCapas();
    OcultaAvisos();
}

void VigHorm::OcultaAvisos()
{
    // The check of this program gives no result that raises them: they stay hidden, and their
    // texts are kept as the record holds them.
    for (int i = 0; i < 2; ++i)
        if (Control* c = Find("txtCort", i))
            c->SetVisible(false);
    if (Control* c = Find("LbFlexTrans"))
        c->SetVisible(false);
}

void VigHorm::List1_Lee()
{
    List1_Click();
    // The record was read under Cargando, which no event hears: the window follows its fields.
    tramos_.CambioNumero();
    ChTrans_Click();
    At("ChPilIzq").SetVisible(At("CmbPlanta").ListIndex() != 0);
    At("ChPilDer").SetVisible(At("CmbPlanta").ListIndex() != 0);
    for (int lado = 0; lado < 2; ++lado) {
        PresentaVoladizo(lado);
        PresentaApoyo(lado);
    }
    PresentaCapas();
}

// ---- Events ----

void VigHorm::CmbAmbGral_Click()
{
    At("CmbRecub").SetListIndex(RecubrimientoDeExposicion(At("CmbAmbGral").ListIndex()));
}

void VigHorm::CmbPlanta_Click()
{
    Declaraciones& d = decl();
    const int nivel = At("CmbPlanta").ListIndex();
    Control& izquierdo = At("ChPilIzq");
    Control& derecho = At("ChPilDer");
    // The roof has no columns below the beam's level.
    izquierdo.SetVisible(nivel != 0);
    derecho.SetVisible(nivel != 0);
    // While a record is read, what it stores stands: the level shows its supports only.
    if (d.Cargando != kFalse)
        return;
    Control& particion = At("cmbPart");
    if (nivel == 0) {
        // The roof carries no partitions.
        izquierdo.SetCheckValue(0);
        derecho.SetCheckValue(0);
        particion.SetListIndex(particion.ListCount() - 1);
        return;
    }
    if (nivel > d.NPlantasSobre)
        particion.SetListIndex(0);
    izquierdo.SetCheckValue(1);
    derecho.SetCheckValue(1);
}

void VigHorm::TextDviga_LostFocus(int index)
{
    Control& c = At("TextDviga", index);
    if (ValComaCopy(c.Text()) < 15)
        c.SetText("15");
}

void VigHorm::ChTrans_Click()
{
    const bool transversal = At("ChTrans").CheckValue() != 0;
    At("TxCota", 5).SetEnabled(transversal);
    At("TxCota", 6).SetEnabled(transversal);
}

void VigHorm::ChVoladizo_Click(int lado)
{
    // Showing the parts changes no value, but a handler of them must not bring this one back.
    if (enVoladizo_)
        return;
    enVoladizo_ = true;
    struct Fin {
        bool& b;
        ~Fin() { b = false; }
    } fin{enVoladizo_};
    PresentaVoladizo(lado);
}

void VigHorm::ChArV_Click(int index)
{
    const Control& capa = At("ChArV", index);
    // Clearing a layer clears the one that stands on it, whose own click goes on down the row.
    if (CapaConSiguiente(index) && capa.CheckValue() == 0)
        if (Control* siguiente = Find("ChArV", index + 1))
            siguiente->SetCheckValue(0);
    PresentaCapas();
}

// ---- What the window shows ----

void VigHorm::PresentaVoladizo(int lado)
{
    const PartesVoladizo& p = kVoladizos[lado];
    const bool voladizo = At(p.casilla).CheckValue() != 0;
    At("TxCota", p.cota).SetVisible(voladizo);
    At("TxtQ", p.carga).SetVisible(voladizo);
    At("UCArVig", p.barras).SetVisible(voladizo);
    for (const char* nombre : {p.seccion, p.rotulos[0], p.rotulos[1]})
        if (Control* c = Find(nombre))
            c->SetVisible(voladizo);
}

void VigHorm::PresentaApoyo(int lado)
{
    // A column of depth 0, or none below, leaves the beam on a bearing.
    const bool pilar = At(kPilares[lado]).CheckValue() != 0 && Campo(*this, "TxtPil", lado) != 0;
    if (Control* apoyo = Find("ImgApo", lado))
        apoyo->SetVisible(!pilar);
}

void VigHorm::PresentaCapas()
{
    for (int i = 1; i <= kCapasBarras; ++i) {
        const Control* capa = Find("ChArV", CasillaDeCapa(i));
        if (!capa)
            continue;
        if (Control* longitud = Find("TxLv", i))
            longitud->SetVisible(capa->CheckValue() != 0);
        if (CapaConSiguiente(i))
            if (Control* siguiente = Find("ChArV", i + 1))
                siguiente->SetEnabled(capa->Enabled() && capa->CheckValue() != 0);
    }
}

// ---- The button ----

DatosComprobacion VigHorm::LeeDatosComprobacion()
{
    // The materials and the loads as every form reads them: a bad index has shown its box there.
    DatosComprobacion datos = ElementForm::LeeDatosComprobacion();
    // Everything is gathered first: a failure leaves the last figures, and the record, as they were.
    variables_ = ReuneVariables(datos);
    calculado_ = true;
    OcultaAvisos();
    return datos;
}

VariablesViga VigHorm::ReuneVariables(const DatosComprobacion& datos)
{
    Declaraciones& d = decl();
    VariablesViga v;
    // The loads of the level; a record of a level the work no longer has leaves the list without
    // a row, and then there are no level loads to take.
    v.nivel = At("CmbPlanta").ListIndex();
    if (v.nivel >= 0) {
        v.cargasPlanta = CargasDePlanta(d, v.nivel);
        v.g = v.cargasPlanta.g();
        v.q = v.cargasPlanta.q();
    }
    v.fck = datos.fck.value_or(0);
    v.fyk = datos.fyk.value_or(0);
    // DatosComprobacion names the pair of the control level by the materials' letters.
    v.gammaG = datos.gammaC;
    v.gammaQ = datos.gammaS;
    const Control& control = At("cmbControl");
    v.reducido = control.ListIndex() >= 0 && IndiceMaterial(control.ListIndex(), d.GenControl) == 0;
    // A level without loads has no mean factor: the run-time error of the division, told in words.
    if (v.nivel >= 0 && v.g + v.q == 0)
        throw ErrorEjecucion(kErrDivisionPorCero, Mensaje(d, kMsgCargasNulas, {At("CmbPlanta").SelectedText()}));
    CalculaMaterialesViga(v);

    // Sizes in metres: the section and the columns in cm, the cover in mm, the lengths in m.
    v.b = Campo(*this, "TextDviga", 0) / 100;
    v.h = Campo(*this, "TextDviga", 1) / 100;
    v.recubrimiento = ValComaCopy(At("CmbRecub").SelectedText()) / 1000;
    v.L = Campo(*this, "TxCota", 1);
    v.a1 = Campo(*this, "TxCota", 2);
    v.a2 = Campo(*this, "TxCota", 3);
    if (At("ChVigIzq").CheckValue() != 0)
        v.voladizoIzq = Campo(*this, "TxCota", 0);
    if (At("ChVigDer").CheckValue() != 0)
        v.voladizoDer = Campo(*this, "TxCota", 4);
    v.pilarIzq = Campo(*this, "TxtPil", 0) / 100;
    v.pilarDer = Campo(*this, "TxtPil", 1) / 100;
    v.cargas = datos.cargas;

    // The bars: the bottom ones and the cantilevers' always, the optional layers when set.
    for (int i = 0; i < kGruposBarras; ++i) {
        const bool capa = i >= 1 && i <= kCapasBarras;
        if (capa && At("ChArV", CasillaDeCapa(i)).CheckValue() == 0)
            continue;
        v.areaBarras[static_cast<size_t>(i)] = AreaBarras(At("UCArVig", i), kFactorArmado);
        if (capa)
            v.longitudBarras[static_cast<size_t>(i)] = Campo(*this, "TxLv", i);
    }
    for (int i = 0; i < 3; ++i) {
        const Control& cercos = At("UCArCer", i);
        v.areaCercos[static_cast<size_t>(i)] = AreaSeparacion(cercos, kFactorArmado);
        v.separacionCercos[static_cast<size_t>(i)] = ValComaCopy(cercos.Get("Separacion"));
    }
    return v;
}

std::string VigHorm::ResumenCalculo() const
{
    if (!calculado_)
        return {};
    const VariablesViga& v = variables_;
    return "the beam's check data were gathered (g = " + Formato00(v.g) + ", q = " + Formato00(v.q) +
           " t/m2, mean load factor " + Formato00(v.gamma) + ", fcd = " + Formato00(v.fcd) + ", fyd = " +
           Formato00(v.fyd) + " t/m2); no field was changed";
}

// ---- The pictures ----

std::optional<Croquis> VigHorm::CroquisDe(const Control& picture) const
{
    if (picture.Name() == "PctSeccion")
        return CroquisSeccion(-1);
    if (picture.Name() == "PictIzq")
        return CroquisSeccion(0);
    if (picture.Name() == "PictDer")
        return CroquisSeccion(1);
    if (picture.Name() != "PctViga")
        return std::nullopt;
    auto valor = [&](const char* campo, int i) { return Campo(*this, campo, i); };
    Croquis c;
    c.ancho = kAnchoViga;
    c.alto = kAltoViga;
    const bool vIzq = At("ChVigIzq").CheckValue() != 0, vDer = At("ChVigDer").CheckValue() != 0;
    const int izq = vIzq ? kX0 - kVoladizo : kX0 - 150, der = vDer ? kX1 + kVoladizo : kX1 + 150;
    const double L = std::fabs(valor("TxCota", 1));
    // The supports below the beam: a column as wide as its depth on the span's scale, or the
    // bearing where the column's depth is 0 or there is no column.
    for (int lado = 0; lado < 2; ++lado) {
        const int x = lado == 0 ? kX0 : kX1;
        const Control* apoyo = Find("ImgApo", lado);
        if (apoyo && !apoyo->Visible()) {
            const double canto = std::fabs(valor("TxtPil", lado)) / 100;
            const int ancho = std::clamp(L > 0 ? static_cast<int>(canto / L * (kX1 - kX0)) : 200, 100, 400);
            c.Rectangulo(PapelCroquis::Hormigon, x - ancho / 2, kAbajo, x + ancho / 2, kAbajo + kAltoPilar);
        } else {
            c.trazos.push_back({FiguraCroquis::Poligono, PapelCroquis::Hormigon,
                                {{x, kAbajo}, {x - 130, kAbajo + 220}, {x + 130, kAbajo + 220}}});
            c.Linea(PapelCroquis::Superficie, {x - 180, kAbajo + 240}, {x + 180, kAbajo + 240});
        }
    }
    c.Rectangulo(PapelCroquis::Hormigon, izq, kArriba, der, kAbajo);
    DibujaArmado(c, izq, der, kX0, kX1, kArriba, kAbajo);

    // The stretches with their distributed loads, drawn to the greatest of them.
    const int n = tramos_.Numero();
    const auto& dibujo = tramos_.Dibujo();
    const vardena::Tramos& t = tramos_.Actuales();
    const auto alturas = AlturasCargas(valor("TxtQ", 1), valor("TxtQ", 2), valor("TxtQ", 3));
    const int yCota = kAbajo + kAltoPilar + 250;
    for (int k = 0; k < n; ++k) {
        const auto& tr = dibujo[static_cast<size_t>(k)];
        const int a = kX0 + static_cast<int>(tr.inicio * (kX1 - kX0));
        const int b = kX0 + static_cast<int>((tr.inicio + tr.ancho) * (kX1 - kX0));
        const int alto = std::max(40, static_cast<int>(alturas[static_cast<size_t>(k)] * kAltoCarga));
        c.Rectangulo(PapelCroquis::Carga, a, kArriba - alto, b, kArriba);
        c.Texto(PapelCroquis::Carga, {(a + b) / 2, kArriba - alto - 120},
                "q" + std::to_string(k + 1) + "=" + At("TxtQ", k + 1).Text());
        const double longitud = k == 0 ? (n == 1 ? t.L : t.a1) : k == 1 ? (n == 2 ? t.L - t.a1 : t.a2) : t.r;
        if (n > 1)
            c.Cota({a, yCota}, {b, yCota}, Formato00(longitud));
    }
    const int yTotal = yCota + (n > 1 ? 400 : 0);
    c.Cota({kX0, yTotal}, {kX1, yTotal}, "L=" + Formato00(valor("TxCota", 1)));
    // The two point loads P of the span at its thirds, P1 and P2 at the cantilevers' ends.
    for (int k = 0; k < 2; ++k) {
        const int x = kX0 + (kX1 - kX0) * (k + 1) / 3;
        c.Flecha(PapelCroquis::Carga, {x, kArriba - kAltoCarga - 350}, {x, kArriba});
        c.Texto(PapelCroquis::Carga, {x, kArriba - kAltoCarga - 450}, "P=" + At("TxtQ", 5 + k).Text());
    }
    for (int lado = 0; lado < 2; ++lado) {
        if (!(lado == 0 ? vIzq : vDer))
            continue;
        const PartesVoladizo& p = kVoladizos[lado];
        const int x = lado == 0 ? izq + 60 : der - 60;
        c.Flecha(PapelCroquis::Carga, {x, kArriba - 500}, {x, kArriba});
        c.Texto(PapelCroquis::Carga, {x, kArriba - 600}, "P" + std::to_string(lado + 1) + "=" + At("TxtQ", p.carga).Text());
        c.Cota({lado == 0 ? izq : kX1, yCota}, {lado == 0 ? kX0 : der, yCota}, Formato00(valor("TxCota", p.cota)));
    }
    return c;
}

void VigHorm::DibujaArmado(Croquis& c, int izq, int der, int x0, int x1, int arriba, int abajo) const
{
    const double L = std::fabs(Campo(*this, "TxCota", 1));
    auto puesta = [&](int i) { return At("ChArV", CasillaDeCapa(i)).CheckValue() != 0; };
    // A length from a support into the span on the picture's scale, never past the other support.
    auto largo = [&](int i) {
        const double l = std::fabs(Campo(*this, "TxLv", i));
        return L > 0 ? std::min(x1 - x0, static_cast<int>(l / L * (x1 - x0))) : 0;
    };
    auto barra = [&](std::vector<PuntoCroquis> puntos) {
        c.trazos.push_back({FiguraCroquis::Linea, PapelCroquis::Armadura, std::move(puntos)});
    };
    const int gancho = 120;
    // Bottom bars from end to end, hooked up at the ends.
    const int yInf = abajo - kPasoCapa;
    barra({{izq + 40, yInf - gancho}, {izq + 40, yInf}, {der - 40, yInf}, {der - 40, yInf - gancho}});
    // The layers over each support, one row further in each; over a free end they hook down.
    const bool vIzq = At("ChVigIzq").CheckValue() != 0, vDer = At("ChVigDer").CheckValue() != 0;
    for (int capa = 0; capa < 3; ++capa) {
        const int y = arriba + kPasoCapa * (capa + 2);
        if (puesta(1 + capa)) {
            const int desde = vIzq ? x0 - kVoladizo / 2 : izq + 40;
            barra({{desde, y + (vIzq ? 0 : gancho)}, {desde, y}, {x0 + largo(1 + capa), y}});
        }
        if (puesta(4 + capa)) {
            const int hasta = vDer ? x1 + kVoladizo / 2 : der - 40;
            barra({{x1 - largo(4 + capa), y}, {hasta, y}, {hasta, y + (vDer ? 0 : gancho)}});
        }
    }
    // The extra bottom layers, centred on the span.
    for (int capa = 7; capa <= 8; ++capa) {
        if (!puesta(capa))
            continue;
        const int medio = (x0 + x1) / 2, mitad = largo(capa) / 2;
        const int y = abajo - kPasoCapa * (capa - 5);
        barra({{medio - mitad, y}, {medio + mitad, y}});
    }
    // The cantilevers' top bars, from the free end, hooked down, into the span as far again.
    const int ySup = arriba + kPasoCapa;
    if (vIzq)
        barra({{izq + 40, ySup + gancho}, {izq + 40, ySup}, {x0 + kVoladizo, ySup}});
    if (vDer)
        barra({{x1 - kVoladizo, ySup}, {der - 40, ySup}, {der - 40, ySup + gancho}});
}

Croquis VigHorm::CroquisSeccion(int voladizo) const
{
    // Twips: the section fitted into a square of kLado, centred, its sizes 60 twips beside it.
    constexpr int kAncho = 3000, kAlto = 2300, kLado = 1400, kSeparacion = 60;
    const double b = Campo(*this, "TextDviga", 0), h = Campo(*this, "TextDviga", 1);
    const SeccionDibujada s = FormaSeccion(b, h);
    Croquis c;
    c.ancho = kAncho;
    c.alto = kAlto;
    const int cx = kAncho / 2, cy = (kAlto - 200) / 2;
    if (s.ancho <= 0 || s.alto <= 0)
        return c;
    const double escala = kLado / std::max(s.ancho, s.alto);  // twips per cm
    const int w = static_cast<int>(s.ancho * escala), alto = static_cast<int>(s.alto * escala);
    const int izq = cx - w / 2, der = izq + w, arr = cy - alto / 2, aba = arr + alto;
    c.Rectangulo(PapelCroquis::Hormigon, izq, arr, der, aba);
    // The stirrup inside the cover; the bars along it.
    const double recub = ValComaCopy(At("CmbRecub").SelectedText()) / 10 * escala;
    const int r = std::clamp(static_cast<int>(recub), 30, std::min(w, alto) / 4);
    c.trazos.push_back({FiguraCroquis::Linea, PapelCroquis::Armadura,
                        {{izq + r, arr + r}, {der - r, arr + r}, {der - r, aba - r}, {izq + r, aba - r}, {izq + r, arr + r}}});
    // Each row of bars; the main rows are named beside the section, the extra layers by their fields.
    auto fila = [&](const Control& barras, int y, bool nombrada) {
        const int n = std::clamp(static_cast<int>(ValComaCopy(barras.Get("NumBarras"))), 0, 12);
        const int lado = std::clamp(static_cast<int>(ValComaCopy(barras.Get("Diametro")) / 10 * escala), 30, 90);
        for (int k = 0; k < n; ++k) {
            const int x = n == 1 ? cx : izq + r + lado / 2 + (w - 2 * r - lado) * k / (n - 1);
            c.Rectangulo(PapelCroquis::Armadura, x - lado / 2, y - lado / 2, x + lado / 2, y + lado / 2);
        }
        if (nombrada)
            c.Texto(PapelCroquis::Armadura, {izq - kSeparacion - 280, y}, TextoBarras(barras));
    };
    const int paso = std::max(60, static_cast<int>(2.5 * escala));
    const int yInf = aba - r - 45;
    fila(At("UCArVig", 0), yInf, true);
    if (voladizo < 0) {
        // The span: the extra bottom layers over the bottom bars.
        int y = yInf;
        for (int capa = 7; capa <= 8; ++capa)
            if (At("ChArV", CasillaDeCapa(capa)).CheckValue() != 0) {
                y -= paso;
                fila(At("UCArVig", capa), y, false);
            }
    } else {
        const int ySup = arr + r + 45;
        fila(At("UCArVig", kVoladizos[voladizo].barras), ySup, true);
    }
    // The sizes beside the shape: the width under it, the depth at its right.
    c.Texto(PapelCroquis::Cota, {cx, aba + kSeparacion + 110}, "b=" + At("TextDviga", 0).Text());
    c.Texto(PapelCroquis::Cota, {der + kSeparacion + 280, cy}, "h=" + At("TextDviga", 1).Text());
    return c;
}

}  // namespace vardena
