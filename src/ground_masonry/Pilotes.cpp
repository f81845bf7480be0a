#include "ground_masonry/Pilotes.h"

#include <algorithm>
#include <cmath>

#include "base/Texto.h"
#include "frame/Finitos.h"
#include "ground_masonry/Suelo.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

constexpr int kMsgAtencion = 9;
// "The strata sum %1 m and the pile is %2 m long ..."
constexpr int kMsgEstratosLongitud = 1780;

// The rows of the lists.
constexpr int kCaractGolpes = 1;  // CmbCaract: by blow counts
constexpr int kSueloFino = 1;     // cmbSuelo: fine soil
constexpr int kApoyoRoca = 0;     // CmbApoyo: the tip on rock

// Analytical solution in granular soil, by pile kind (CmbTipos): the tip factor fp, the earth
// pressure factor of the shaft and the ratio of the shaft's friction to the soil's.
struct TipoGranular {
    double fp, empuje, rozamiento;
};
TipoGranular ParametrosGranular(int tipo)
{
    switch (tipo) {
    case 0: return {3, 1, 0.9};
    case 1: return {3, 1, 0.8};
    case 3: return {3, 0.75, 0.8};
    default: return {2.5, 0.75, 1};
    }
}
constexpr double kPuntaMaxima = 20000;        // kN/m2
constexpr double kFusteGranularMaximo = 120;  // kN/m2
constexpr double kFusteFinoMaximo = 100;      // kN/m2
constexpr double kGolpesMaximos = 50;

// The structural stress of the concrete by the pile's kind (CPI number = CmbTipos row + 2):
// driven displacement piles (CPI-2, CPI-3), bored piles with a casing (CPI-4, CPI-5), bored under
// slurry (CPI-6) and augered (CPI-7, CPI-8). The first set serves the rows of cmbPil(5) below 2
// (both rows its list has), the second any other row a record may hold. A stress of 0 sets no
// limit.
constexpr double kTensionPunta[] = {750, 600, 500, 0};
constexpr double kTensionOtra[] = {750, 500, 400, 350};
int GrupoTension(int cpi)
{
    if (cpi == 2 || cpi == 3)
        return 0;
    if (cpi == 4 || cpi == 5)
        return 1;
    if (cpi == 6)
        return 2;
    return 3;
}

using P = PapelCroquis;

}  // namespace

Pilotes::Pilotes(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    At("UCSuelo").SetVisible(false);
    ConectaEventos();
}

void Pilotes::ConectaEventos()
{
    auto clic = [this](Control& c, const std::string& origen, std::function<void()> rutina) {
        c.onClick = [this, origen, rutina](Control&) { Evento(origen, rutina); };
    };
    auto cambio = [this](Control& c, const std::string& origen) {
        c.onChange = [this, origen](Control&) { Evento(origen, [this] { Redibuja(); }); };
    };
    clic(At("CmdCapacidad"), "CmdCapacidad_Click", [this] { CmdCapacidad_Click(); });
    clic(At("UCOK2"), "UCOK2_Click", [this] { UCOK2_Click(); });
    clic(At("UCOK1"), "UCOK1_Click", [this] { UCOK1_Click(); });
    for (const char* lista : {"CmbEstratos", "CmbCaract", "cmbSuelo", "CmbApoyo", "CmbDiam", "ChNF"})
        clic(At(lista), std::string(lista) + "_Click", [this] { Redibuja(); });
    for (Control* c : Members("txtEspesor"))
        cambio(*c, "txtEspesor_Change");
    cambio(At("TxtLongPil"), "TxtLongPil_Change");
    cambio(At("TxtNF"), "TxtNF_Change");
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

void Pilotes::CargaPropia() { Redibuja(); }

void Pilotes::List1_Lee()
{
    List1_Click();
    // What the window shows follows the record read; no field changes.
    Redibuja();
}

double Pilotes::Valor(std::string_view control, int index) const { return ValComaCopy(At(control, index).Text()); }

int Pilotes::EstratosFuste() const { return std::clamp(At("CmbEstratos").ListIndex() + 1, 0, kEstratosPilote); }

// ---- The panel ----

void Pilotes::Redibuja()
{
    const int n = EstratosFuste();
    const bool golpes = At("CmbCaract").ListIndex() == kCaractGolpes;
    for (int k = 0; k < kEstratosPilote; ++k) {
        const bool visible = k < n || k == kEstratoPunta;
        for (const char* campo : {"txtEspesor", "txtCohesion", "txtRozam", "txtSPT", "txtDens"})
            At(campo, k).SetVisible(visible);
        // The method reads the blow counts, or the soil's strength and weight.
        At("txtSPT", k).SetEnabled(golpes);
        for (const char* campo : {"txtCohesion", "txtRozam", "txtDens"})
            At(campo, k).SetEnabled(!golpes);
    }
    // The tip stratum reaches below the pile: its thickness is not the shaft's unless it is one.
    At("txtEspesor", kEstratoPunta).SetEnabled(n > kEstratoPunta);
    At("TxtNF").SetEnabled(At("ChNF").CheckValue() == 1);
    // The rock's frame stands in the panel, for a tip on rock.
    At("UCframeRoca").SetVisible(At("UCSuelo").Visible() && At("CmbApoyo").ListIndex() == kApoyoRoca);
}

void Pilotes::CmdCapacidad_Click()
{
    At("UCSuelo").SetVisible(true);
    Redibuja();
}

void Pilotes::UCOK1_Click()
{
    At("UCSuelo").SetVisible(false);
    Redibuja();
}

void Pilotes::UCOK2_Click()
{
    Declaraciones& d = decl();
    const CapacidadPilote c = Calc_Capacidad();
    if (c.ksp)
        At("txtKsp").SetText(Formato00(*c.ksp));
    if (c.qd)
        At("txtQd").SetText(Formato0(*c.qd));
    At("TxtQ", 3).SetText(Formato0(c.punta));
    At("TxtQ", 4).SetText(Formato0(c.fuste));
    At("txtQadm").SetText(Formato0(c.tope));
    At("TxtQ", 5).SetText(Formato0(c.capacidad));
    Redibuja();
    // Strata that do not reach the tip, or go past it, are taken as they stand: the shaft's
    // figure is their sum over the pile's length. The user is told, and the figures stay.
    double suma = 0;
    for (int k = 0; k < EstratosFuste(); ++k)
        suma += Valor("txtEspesor", k);
    const double longitud = Valor("TxtLongPil");
    if (std::abs(suma - longitud) >= 0.005)
        d.ui.MsgBox(Mensaje(d, kMsgEstratosLongitud, {Formato00(suma), Formato00(longitud)}), mb::Exclamation,
                    d.Msg(kMsgAtencion));
}

// ---- The capacity ----

double Pilotes::IntegralTension(int k, double& z0, double& sigma0) const
{
    const double espesor = Valor("txtEspesor", k);
    if (espesor <= 0)
        return 0;
    const double gamma = Valor("txtDens", k);
    const bool freatico = At("ChNF").CheckValue() == 1;
    const double nf = Valor("TxtNF");
    const double z1 = z0 + espesor;
    // The stratum in at most two pieces: above the water table at its full weight, below it
    // lightened by the water.
    const double corte = freatico ? std::clamp(nf, z0, z1) : z1;
    double integral = 0;
    for (const auto& [h, g] : {std::pair{corte - z0, gamma}, std::pair{z1 - corte, gamma - kPesoAgua}}) {
        integral += sigma0 * h + g * h * h / 2;
        sigma0 += g * h;
    }
    z0 = z1;
    return integral;
}

CapacidadPilote Pilotes::Calc_Capacidad() const
{
    const Declaraciones& d = decl();
    const Control& diametro = At("CmbDiam");
    const double dcm = ValComaCopy(diametro.SelectedText());
    const double dm = dcm / 100;
    const double L = Valor("TxtLongPil");
    const int tipo = At("CmbTipos").ListIndex();
    const int n = EstratosFuste();
    constexpr int p = kEstratoPunta;

    double qp = 0, fuste = 0;
    if (At("CmbCaract").ListIndex() == kCaractGolpes) {
        // By blow counts: qp = 100 fN N at the tip, the shaft 2.5 N a tenth per metre of stratum.
        const double factor = tipo == 0 || tipo == 1 ? 0.4 : 0.2;
        auto golpes = [this](int k) { return std::min(Valor("txtSPT", k), kGolpesMaximos); };
        qp = golpes(p) * factor * 100;
        double suma = 0;
        for (int k = 0; k < n; ++k)
            suma += 2.5 * golpes(k) * Valor("txtEspesor", k) / 10;
        fuste = DivideDato(*this, suma, L, "TxtLongPil");
        if (tipo == 1 || tipo == 3)
            fuste *= 0.8;
    } else if (At("cmbSuelo").ListIndex() == kSueloFino) {
        // Fine soil, from the undrained cohesion of the tip's stratum.
        const double cu = Valor("txtCohesion", p);
        qp = 9 * cu;
        fuste = std::min(DivideDato(*this, 100 * cu, 100 + cu, "txtCohesion", p), kFusteFinoMaximo);
    } else {
        // Granular soil: Nq of the tip's friction angle; the shaft the effective vertical stress
        // times tan phi, the earth pressure factor and the friction ratio, stratum by stratum.
        const TipoGranular t = ParametrosGranular(tipo);
        const double phi = Valor("txtRozam", p) * kPi / 180;
        const double s = std::sin(phi);
        const double nq = DivideDato(*this, 1 + s, 1 - s, "txtRozam", p) *
                          FinitoDato(*this, std::exp(kPi * std::tan(phi)), "txtRozam", p);
        qp = std::min(FinitoDato(*this, Valor("txtCohesion", p) * t.fp * nq, "txtRozam", p), kPuntaMaxima);
        double suma = 0, z = 0, sigma = 0;
        for (int k = 0; k < n; ++k) {
            const double integral = IntegralTension(k, z, sigma);
            suma += FinitoDato(*this, integral * std::tan(Valor("txtRozam", k) * kPi / 180), "txtRozam", k) *
                    t.rozamiento * t.empuje;
        }
        fuste = std::min(DivideDato(*this, suma, L, "TxtLongPil"), kFusteGranularMaximo);
    }

    CapacidadPilote c;
    if (At("CmbApoyo").ListIndex() == kApoyoRoca) {
        // The tip on sound rock bears its service pressure, the pile's diameter as the width.
        const PresionRoca roca = CalculaPresionRoca(*this, dm, "CmbDiam");
        c.ksp = roca.ksp;
        c.qd = roca.qd;
        qp = roca.qd;
    }

    const int fila = At("cmbPil", 5).ListIndex();
    const double sigma = (fila < 2 ? kTensionPunta : kTensionOtra)[GrupoTension(tipo + 2)];
    // The diameter in centimetres and the stress in t/m2 give the limit in kN.
    double tope = dcm * dcm * kPi / 4000 * sigma;
    if (d.Unidades == 1) {
        tope /= 10;
        qp /= 10;
        fuste /= 10;
    }
    c.punta = dm * dm * kPi / 4 * qp / 3;
    c.fuste = dm * kPi * L * fuste;
    c.tope = tope;
    c.capacidad = c.punta + c.fuste;
    if (tope > 0 && c.capacidad > tope)
        c.capacidad = tope;
    const Control* datos[] = {&At("TxtLongPil"), &At("txtCohesion", p), &At("txtSPT", p), &At("txtQu")};
    CompruebaFinitos(*this, {c.punta, c.fuste, c.capacidad}, datos);
    return c;
}

// ---- The sketch ----

std::optional<Croquis> Pilotes::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PctEstratos")
        return std::nullopt;
    constexpr int kAncho = 2500, kAlto = 3200;
    constexpr int kArriba = 250, kAbajo = 150, kIzquierda = 150, kDerecha = 1850;
    Croquis c{kAncho, kAlto, {}};
    const int n = EstratosFuste();
    const double L = std::max(0.0, Valor("TxtLongPil"));
    double suma = 0;
    for (int k = 0; k < n; ++k)
        suma += std::max(0.0, Valor("txtEspesor", k));
    // The tip's stratum shows below the shaft's for a fifth of the depth drawn.
    const double fondoFuste = std::max(suma, L);
    const double total = fondoFuste > 0 ? fondoFuste * 1.2 : 1;
    const double escala = (kAlto - kArriba - kAbajo) / total;
    auto y = [&](double z) { return kArriba + static_cast<int>(std::lround(std::min(z, total) * escala)); };

    double z = 0;
    for (int k = 0; k < n; ++k) {
        const double e = std::max(0.0, Valor("txtEspesor", k));
        if (e <= 0)
            continue;
        c.Rectangulo(P::Terreno, kIzquierda, y(z), kDerecha, y(z + e));
        c.Linea(P::Cota, {kIzquierda, y(z + e)}, {kDerecha, y(z + e)});
        c.Texto(P::Cota, {kIzquierda + 250, (y(z) + y(z + e)) / 2}, std::to_string(k + 1));
        z += e;
    }
    if (n <= kEstratoPunta) {
        c.Rectangulo(P::Terreno, kIzquierda, y(z), kDerecha, kAlto - kAbajo);
        const bool roca = At("CmbApoyo").ListIndex() == kApoyoRoca;
        c.Texto(P::Cota, {kIzquierda + 250, (y(z) + kAlto - kAbajo) / 2}, roca ? "R" : "P");
    }
    c.Linea(P::Superficie, {kIzquierda, kArriba}, {kDerecha, kArriba});
    if (At("ChNF").CheckValue() == 1) {
        const double nf = std::max(0.0, Valor("TxtNF"));
        if (nf <= total)
            c.Linea(P::Agua, {kIzquierda, y(nf)}, {kDerecha, y(nf)});
    }
    // The pile, its diameter drawn wider than to scale so that it reads beside its length.
    const double dm = ValComaCopy(At("CmbDiam").SelectedText()) / 100;
    const int medio = (kIzquierda + kDerecha) / 2 + 150;
    const int semiancho = std::clamp(static_cast<int>(std::lround(dm * escala * 1.5)), 40, 200);
    c.Rectangulo(P::Hormigon, medio - semiancho, kArriba - 120, medio + semiancho, y(L));
    c.Cota({kDerecha + 150, kArriba}, {kDerecha + 150, y(L)}, Formato00(L) + " m");
    return c;
}

std::string Pilotes::ResumenCalculo() const
{
    return "the check step did nothing and the pile's capacity was not recalculated; every field keeps the "
           "value read";
}

}  // namespace vardena
