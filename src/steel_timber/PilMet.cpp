#include "steel_timber/PilMet.h"

#include <cmath>
#include <tuple>

#include "base/Texto.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

// A sway column free to turn at both ends: no finite effective length.
constexpr int kMsgMecanismo = 1701;

// The beams of each axis: about X those along a1 and a2, about Y those along a3 and a4.
constexpr int kVigasX[] = {0, 1};
constexpr int kVigasY[] = {2, 3};

// The events after which the factors are worked out again: the end conditions, the bracing,
// the level, the position and the distances, and the sections.
constexpr const char* kClics[] = {"ChRotS", "ChRotI", "ChkArriostradaX", "ChkArriostradaY", "ChPilSup",
                                  "CmbPlanta", "OpPosPil"};
constexpr const char* kCambios[] = {"LePil", "UCPerfil1", "UCViga"};

}  // namespace

double CoeficienteNudo(double rigidezPilares, double rigidezVigas)
{
    const double total = rigidezPilares + rigidezVigas;
    return total == 0 ? 1.0 : rigidezPilares / total;
}

double RigidezViga(double inercia, double luz) { return inercia / (luz > 0 ? luz : kLuzSinViga); }

double BetaIntraslacional(double eta1, double eta2)
{
    const double s = eta1 + eta2, p = eta1 * eta2;
    return (1 + 0.145 * s - 0.265 * p) / (2 - 0.364 * s - 0.247 * p);
}

std::optional<double> BetaTraslacional(double eta1, double eta2)
{
    const double s = eta1 + eta2, p = eta1 * eta2;
    const double denominador = 1 - 0.8 * s + 0.6 * p;
    if (denominador == 0)
        return std::nullopt;
    const double cociente = (1 - 0.2 * s - 0.12 * p) / denominador;
    if (!(cociente >= 0) || !std::isfinite(cociente))
        return std::nullopt;
    return std::sqrt(cociente);
}

PilMet::PilMet(Declaraciones& d, const TablaForm& tabla) : ConBotonesAyuda<PilHorm>(d, tabla)
{
    // Each event keeps the handler the column already has and works the factors out after it.
    for (const char* nombre : kClics)
        for (Control* c : Members(nombre))
            TrasEvento(*c, false);
    for (const char* nombre : kCambios)
        for (Control* c : Members(nombre))
            TrasEvento(*c, true);
    // A record read: the factors follow the fields read.
    Control& lista = At("List1");
    auto leida = lista.onClick;
    lista.onClick = [this, leida](Control& c) {
        if (leida)
            leida(c);
        Evento("List1_Click", [this] { Calc_LongPandeo(); });
    };
}

void PilMet::TrasEvento(Control& c, bool cambio)
{
    auto& manejador = cambio ? c.onChange : c.onClick;
    auto previo = manejador;
    const std::string origen = c.Name() + (cambio ? "_Change" : "_Click");
    manejador = [this, previo, origen](Control& x) {
        if (previo)
            previo(x);
        Evento(origen, [this] { Calc_LongPandeo(true); });
    };
}

void PilMet::CargaPropia()
{
    PilHorm::CargaPropia();
    Calc_LongPandeo();
}

DatosComprobacion PilMet::LeeDatosComprobacion()
{
    DatosComprobacion datos = PilHorm::LeeDatosComprobacion();
    Calc_LongPandeo();
    return datos;
}

PandeoEje PilMet::CalculaEje(bool ejeX)
{
    Declaraciones& d = decl();
    PandeoEje eje;
    eje.arriostrado = At(ejeX ? "ChkArriostradaX" : "ChkArriostradaY").CheckValue() == 1;
    const double altura = ValComaCopy(At("LePil", kAlturaPlanta).Text());
    const double inercia = ValComaCopy(At("UCPerfil1").Get(ejeX ? "Ix" : "Iy"));
    const double kPilar = RigidezViga(inercia, altura);

    // The beams of the axis at the column's position; the cantilever to the façade is none.
    const std::optional<PosicionPilar> p = Posicion();
    double kVigas = 0;
    for (int i : ejeX ? kVigasX : kVigasY) {
        const bool voladizo = p && ((*p != PosicionPilar::Centro && i == 0) || (*p == PosicionPilar::Esquina && i == 3));
        const double luz = p && !voladizo ? ValComaCopy(At("LePil", PrimeraLuz(*p) + i).Text()) : 0;
        const Control* viga = Find("UCViga", i);
        kVigas += RigidezViga(viga ? ValComaCopy(viga->Get("Ix")) : 0, luz);
    }

    // Head: the column above, when there is one, and the beams.
    const bool encima = At("ChPilSup").CheckValue() == 1;
    eje.eta1 = At("ChRotS").CheckValue() == 1 ? 0 : CoeficienteNudo(kPilar + (encima ? kPilar : 0), kVigas);
    // Foot: on the lowest level the foundation, with nothing else; elsewhere the column below
    // and the beams of the floor below, taken as those of this one.
    const int nivel = At("CmbPlanta").ListIndex();
    const bool cimiento = nivel >= d.NPlantasSobre + d.NPlantasBajo - 1;
    eje.eta2 = At("ChRotI").CheckValue() == 1 ? 0 : cimiento ? CoeficienteNudo(kPilar, 0) : CoeficienteNudo(2 * kPilar, kVigas);

    if (eje.arriostrado)
        eje.beta = BetaIntraslacional(eje.eta1, eje.eta2);
    else
        eje.beta = BetaTraslacional(eje.eta1, eje.eta2);
    return eje;
}

void PilMet::Presenta(const char* sufijo, const PandeoEje& eje)
{
    const std::string s(sufijo);
    if (Control* c = Find("LbEta1" + s))
        c->SetCaption(Formato00(eje.eta1));
    if (Control* c = Find("LbEta2" + s))
        c->SetCaption(Formato00(eje.eta2));
    if (Control* c = Find("LbBeta" + s))
        c->SetCaption(eje.beta ? Formato00(*eje.beta) : "∞");
}

void PilMet::Calc_LongPandeo(bool avisa)
{
    Declaraciones& d = decl();
    const bool finitoX = ejeX_.beta.has_value(), finitoY = ejeY_.beta.has_value();
    ejeX_ = CalculaEje(true);
    ejeY_ = CalculaEje(false);
    if (avisa) {
        for (const auto& [eje, antes, nombre] : {std::tuple{&ejeX_, finitoX, "X"}, std::tuple{&ejeY_, finitoY, "Y"}})
            if (antes && !eje->beta)
                d.ui.MsgBox(Mensaje(d, kMsgMecanismo, {nombre, Formato00(eje->eta1), Formato00(eje->eta2)}),
                            mb::Exclamation, Caption());
    }
    // A mechanism keeps the last factor of its axis in the shared variables.
    if (ejeX_.beta)
        d.BetaPandeoX = *ejeX_.beta;
    if (ejeY_.beta)
        d.BetaPandeoY = *ejeY_.beta;
    Presenta("X", ejeX_);
    Presenta("Y", ejeY_);
}

std::string PilMet::ResumenCalculo() const
{
    auto beta = [](const PandeoEje& e) { return e.beta ? Formato00(*e.beta) : std::string("none (a mechanism)"); };
    return PilHorm::ResumenCalculo() + "; the effective length factors were worked out: beta X = " + beta(ejeX_) +
           ", beta Y = " + beta(ejeY_) + " (shown on the window, not stored)";
}

}  // namespace vardena
