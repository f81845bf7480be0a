#include "ground_masonry/Suelo.h"

#include <cmath>
#include <iterator>

#include "base/VbFormat.h"
#include "frame/Avisos.h"
#include "frame/Finitos.h"
#include "works/Declaraciones.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

// Messages of the warnings and boxes.
constexpr int kMsgAtencion = 9;
constexpr int kMsgAvisoTalud = 1174;
constexpr int kMsgAvisoTalud2 = 1175;
constexpr int kMsgVNula = 1219;
constexpr int kMsgVNula2 = 1220;
constexpr int kMsgAvisoCohesion = 1221;
constexpr int kMsgAvisoCohesion2 = 1030;
// The caption of the length of a circular footing: "Diámetro".
constexpr int kMsgDiametro = 1525;

// The cohesion from which the granular service pressure may not apply, kN/m2.
constexpr double kCohesionGranular = 8;
// Where the rock frame stands when it takes the place of the others, twips.
constexpr int kIzquierdaRoca = 4170;

// 3 pi / 2 as the second form of the bearing factors writes it.
constexpr double kTresPiMedios = 9.42477796076937 / 2;

// The twelve correction factors, in the order of the bearing formula's terms.
constexpr const char* kFactoresCohesion[] = {"txtDc", "txtSc", "txtIc", "txtTc"};
constexpr const char* kFactoresSobrecarga[] = {"txtDq", "txtSq", "txtIq", "txtTq"};
constexpr const char* kFactoresPeso[] = {"txtDg", "txtSg", "txtIg", "txtTg"};

}  // namespace

Suelo::Suelo(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    // The window as designed: the sketch of the slab and the rock frame wait for their entries,
    // and the granular fields for the check that switches them on.
    At("PictureLosa").SetVisible(false);
    At("UCframe11").SetVisible(false);
    PresentaServicio();
    ConectaEventos();
}

void Suelo::ConectaEventos()
{
    auto cambio = [this](const char* control, const char* origen, void (Suelo::*rutina)()) {
        At(control).onChange = [this, origen, rutina](Control&) { Evento(origen, [this, rutina] { (this->*rutina)(); }); };
    };
    auto clic = [this](const char* control, const char* origen, void (Suelo::*rutina)()) {
        At(control).onClick = [this, origen, rutina](Control&) { Evento(origen, [this, rutina] { (this->*rutina)(); }); };
    };
    clic("CmbTerreno", "CmbTerreno_Click", &Suelo::CmbTerreno_Click);
    clic("ComboCim", "ComboCim_Click", &Suelo::ComboCim_Click);
    clic("chkServ", "chkServ_Click", &Suelo::chkServ_Click);
    cambio("Text6", "Text6_Change", &Suelo::Text6_Change);
    cambio("txtA", "txtA_Change", &Suelo::Calc_FactForma);
    cambio("txtB", "txtB_Change", &Suelo::txtB_Change);
    cambio("txtD", "txtD_Change", &Suelo::Profundidad);
    cambio("txtHx", "txtHx_Change", &Suelo::Calc_FactIncl);
    cambio("txtHy", "txtHy_Change", &Suelo::Calc_FactIncl);
    cambio("txtV", "txtV_Change", &Suelo::Calc_FactIncl);
    cambio("txtAng", "txtAng_Change", &Suelo::Talud);
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

// ---- Reading the fields and the arithmetic the run time refuses ----

double Suelo::Valor(std::string_view control) const { return ValComaCopy(At(control).Text()); }

double Suelo::Phi() const { return Valor("Text2") * kPi / 180; }

double Suelo::Divide(double a, double b, std::string_view dato) const { return DivideDato(*this, a, b, dato); }

double Suelo::Finito(double x, std::string_view dato) const { return FinitoDato(*this, x, dato); }

double Suelo::Raiz(double x, std::string_view dato) const { return RaizDato(*this, x, dato); }

Suelo::Factores Suelo::FactoresSegundaForma(double phi) const
{
    const double c = std::cos(kPi / 4 + phi / 2);
    const double nq = Divide(Finito(std::exp((kTresPiMedios - phi) * std::tan(phi)), "Text2"), 2 * c * c, "Text2");
    const double nc = Divide(nq - 1, std::tan(phi), "Text2");
    return {nq, nc, 1.5 * (nq + 1) * std::tan(phi)};
}

// ---- Load and the button ----

void Suelo::CargaPropia()
{
    rotuloLargo_ = At("lblLargo").Caption();
    // Cargando is set: the rewrites below raise no events; the handlers are called once each.
    At("Text1").SetText(Formato00(Valor("Text3") / 100 * Valor("txtD")));
    Calc_FactForma();
    for (const char* campo : {"txtA", "txtB", "txtD", "txtDg", "txtAnchoEfect"})
        At(campo).SetText(Formato00(Valor(campo)));
    Calc_FactForma();
    Profundidad();
    Calc_FactIncl();
    Talud();
}

void Suelo::List1_Lee()
{
    List1_Click();
    PresentaTerreno(At("CmbTerreno").ListIndex());
    PresentaCimiento(At("ComboCim").ListIndex());
    PresentaServicio();
}

void Suelo::CalculoPropio()
{
    informePendiente_.reset();
    aplazaInforme_ = true;
    try {
        if (At("CmbTerreno").ListIndex() != kRocaSana)
            Calc_Suelo();
        else
            Calc_Roca();
        // After the pressure: txtServ above took the granular figure of the press before.
        Calc_ServGranular();
    } catch (...) {
        aplazaInforme_ = false;
        informePendiente_.reset();
        throw;
    }
    aplazaInforme_ = false;
    if (informePendiente_) {
        GuardaInforme(*informePendiente_);
        informePendiente_.reset();
    }
}

void Suelo::TrasGuardado() { CargaResultados(*this, At("txtTitulo").Text()); }

// ---- The calculations ----

void Suelo::Calc_Suelo()
{
    Declaraciones& d = decl();
    const double q = Valor("Text1");
    const double B = Valor("Text6");
    const double gamma = Valor("Text3") / 100;
    const double c = Valor("Text4");
    const double phi = Phi();
    d.IAviso = 1;
    if (At("chkServ").CheckValue() == 1 && c >= kCohesionGranular) {
        AnadeAviso(d, d.Msg(kMsgAvisoCohesion));
        AnadeAviso(d, d.Msg(kMsgAvisoCohesion2));
    }

    const double s = std::sin(phi);
    const double nq = Divide(Finito(std::exp(kPi * std::tan(phi)), "Text2") * (1 + s), 1 - s, "Text2");
    const double nc = Divide(nq - 1, std::tan(phi), "Text2");
    const double ng = 1.5 * (nq - 1) * std::tan(phi);
    At("txtNc").SetText(FormatoNum(nc));
    At("txtNq").SetText(FormatoNum(nq));
    At("txtNg").SetText(FormatoNum(ng));

    auto producto = [this](const char* const (&campos)[4]) {
        double p = 1;
        for (const char* campo : campos)
            p *= Valor(campo);
        return p;
    };
    AvisaTalud(Valor("txtAng") * kPi / 180, phi);
    const double qh = Finito(c * nc * producto(kFactoresCohesion) + q * nq * producto(kFactoresSobrecarga) +
                                 0.5 * B * gamma * ng * producto(kFactoresPeso),
                             "Text2");
    const double admisible = qh / 3;
    At("txtTa").SetText(FormatoNum(admisible));
    At("txtTadm").SetText(Formato00(admisible));
    At("txtServ").SetText(At("chkServ").CheckValue() == 1 ? Formato00(Valor("txtTaServ")) : "No");
    MuestraAvisos(d);
    Listado_Suelo();
}

void Suelo::Calc_ServGranular()
{
    const double D = Valor("txtD");
    const double B = Valor("txtB");
    const double St = Valor("txtAsiento");
    const double N = Valor("txtSPT");
    double Fd = 1 + Divide(D, 3 * B, "txtB");
    if (Fd > 1.3)
        Fd = 1.3;
    double qs = 0;
    if (B < 1.2) {
        qs = 12 * N * Fd * St / 25;
    } else {
        const double ancho = Divide(B + 0.3, B, "txtB");
        qs = (8 * N * Fd * St / 25) * ancho * ancho;
    }
    At("txtTaServ").SetText(FormatoNum(Finito(qs, "txtSPT")));
}

PresionRoca CalculaPresionRoca(const Form& form, double ancho, std::string_view datoAncho)
{
    const double qu = ValComaCopy(form.At("txtQu").Text());
    const double a = ValComaCopy(form.At("txtAp").Text());
    const double s = ValComaCopy(form.At("txtS").Text());
    double r = DivideDato(form, a, s, "txtS");
    if (r > 0.02)
        r = 0.02;
    // s is in millimetres, B in metres.
    double t = DivideDato(form, s, ancho, datoAncho) / 1000;
    if (t < 0.05)
        t = 0.05;
    if (t > 2)
        t = 2;
    const double ksp = DivideDato(form, 3 + t, 10 * RaizDato(form, 1 + 300 * r, "txtAp"), "txtAp");
    return {ksp, FinitoDato(form, ksp * qu, "txtQu")};
}

void Suelo::Calc_Roca()
{
    const PresionRoca roca = CalculaPresionRoca(*this, Valor("Text6"), "Text6");
    At("txtKsp").SetText(Formato00(roca.ksp));
    for (const char* campo : {"txtQd", "txtTadm", "txtServ"})
        At(campo).SetText(Formato0(roca.qd));
    // The warnings that earlier events left: this calculation does not start a list of its own.
    MuestraAvisos(decl());
    Listado_Roca();
}

void Suelo::Calc_FactForma()
{
    const double L = Valor("txtA");
    const double B = Valor("txtB");
    double sc = 1, sq = 1, sg = 1;
    // "Inf." of a strip footing reads as 0 and lands here, as any length of five widths or more.
    if (L != 0 && L < 5 * B) {
        sc = 1 + 0.2 * B / L;
        sq = Finito(1 + 1.5 * std::tan(Phi()) * B / L, "Text2");
        sg = 1 - 0.3 * B / L;
    }
    At("txtSc").SetText(Formato00(sc));
    At("txtSq").SetText(Formato00(sq));
    At("txtSg").SetText(Formato00(sg));
}

void Suelo::Profundidad()
{
    const double B = Valor("Text6");
    const double gamma = Valor("Text3") / 100;
    const double phi = Phi();
    const double D = Valor("txtD");
    // The surcharge follows the depth, to a whole number, over what the user typed.
    At("Text1").SetText(Formato0(gamma * D));
    double dc = 1, dq = 1;
    if (D >= 2) {
        const Factores n = FactoresSegundaForma(phi);
        const double angulo = std::atan(Divide(D, B, "Text6"));
        const double m = 1 - std::sin(phi);
        dc = 1 + 0.34 * angulo;
        dq = 1 + 2 * Divide(n.nq, n.nc, "Text2") * m * m * angulo;
    }
    At("txtDc").SetText(Formato00(dc));
    At("txtDq").SetText(Formato00(dq));
}

void Suelo::Calc_FactIncl()
{
    Declaraciones& d = decl();
    V_ = static_cast<float>(Valor("txtV"));
    if (V_ <= 0) {
        d.ui.MsgBox(d.Msg(kMsgVNula) + "\r\n" + d.Msg(kMsgVNula2), mb::Exclamation, d.Msg(kMsgAtencion));
        return;
    }
    const double rx = Valor("txtHx") / V_;
    const double ry = Valor("txtHy") / V_;
    const Factores n = FactoresSegundaForma(Phi());
    // The tangent is taken of the ratio H / V itself, and the cube acts on the tangent alone.
    const double ty = std::tan(ry);
    const double iq = (1 - 0.7 * ty * ty * ty) * (1 - std::tan(rx));
    const double ic = Divide(iq * n.nq - 1, n.nq - 1, "Text2");
    const double ig = (1 - ty * ty * ty) * (1 - std::tan(rx));
    At("txtIc").SetText(Formato00(ic));
    At("txtIq").SetText(Formato00(iq));
    At("txtIg").SetText(Formato00(ig));
}

void Suelo::Talud()
{
    const double A = Valor("txtAng");
    const double beta = A * kPi / 180;
    const double phi = Phi();
    double tc = 1, tq = 1;
    if (A > 5) {
        tc = Finito(std::exp(-2 * beta * std::tan(phi)), "Text2");
        tq = 1 - std::sin(2 * beta);
    }
    At("txtTc").SetText(Formato00(tc));
    At("txtTq").SetText(Formato00(tq));
    At("txtTg").SetText(Formato00(tq));
    // Kept until the next bearing calculation starts the list anew; a rock calculation shows them.
    AvisaTalud(beta, phi);
}

void Suelo::AvisaTalud(double beta, double phi)
{
    Declaraciones& d = decl();
    if (beta > phi / 2) {
        AnadeAviso(d, d.Msg(kMsgAvisoTalud));
        AnadeAviso(d, d.Msg(kMsgAvisoTalud2));
    }
}

// ---- The lists and the check ----

void Suelo::CmbTerreno_Click()
{
    const int indice = At("CmbTerreno").ListIndex();
    if (indice > 0 && indice < static_cast<int>(std::size(kSuelos))) {
        const SueloCatalogo& s = kSuelos[indice];
        At("Text3").SetText(s.densidad);
        At("Text4").SetText(s.cohesion);
        At("Text5").SetText(s.valor);
        At("Text2").SetText(s.rozamiento);
    }
    if (indice == kRocaSana)
        Calc_Roca();
    PresentaTerreno(indice);
}

void Suelo::PresentaTerreno(int indice)
{
    for (const char* campo : {"Text3", "Text4", "Text5", "Text2"})
        At(campo).SetEnabled(indice == 0);
    const bool roca = indice == kRocaSana;
    if (roca)
        At("UCframe11").SetLeft(kIzquierdaRoca);
    At("UCframe1").SetVisible(!roca);
    At("UCframe2").SetVisible(!roca);
    At("UCframe11").SetVisible(roca);
    // Sound rock has no friction angle and no cohesion to show.
    for (const char* c : {"Label10", "Label12", "Text2", "Text4"})
        At(c).SetVisible(!roca);
}

void Suelo::ComboCim_Click()
{
    const int indice = At("ComboCim").ListIndex();
    PresentaCimiento(indice);
    switch (static_cast<TipoCimiento>(indice)) {
    case TipoCimiento::Rectangular:
        At("txtA").SetText("2.00");
        At("txtB").SetText("2.00");
        break;
    case TipoCimiento::Corrida:
        At("txtA").SetText("Inf.");
        At("txtB").SetText("2.00");
        break;
    case TipoCimiento::Circular:
        At("txtA").SetText("2.00");
        break;
    case TipoCimiento::Losa:
        At("txtA").SetText("20.00");
        At("txtB").SetText("20.00");
        break;
    }
}

void Suelo::PresentaCimiento(int indice)
{
    const auto tipo = static_cast<TipoCimiento>(indice);
    At("PictureLosa").SetVisible(tipo == TipoCimiento::Losa);
    At("PictureAis").SetVisible(tipo != TipoCimiento::Losa);
    At("PictureSot").SetVisible(tipo != TipoCimiento::Losa);
    Control& largo = At("lblLargo");
    largo.SetVisible(true);
    // A strip footing keeps the caption that the kind before it gave. "Largo" is the label's
    // own caption in the language of the window.
    if (tipo == TipoCimiento::Rectangular || tipo == TipoCimiento::Losa)
        largo.SetCaption(rotuloLargo_);
    else if (tipo == TipoCimiento::Circular)
        largo.SetCaption(decl().Msg(kMsgDiametro));
    // A circle has its diameter only.
    At("lblAncho").SetVisible(tipo != TipoCimiento::Circular);
    At("txtB").SetVisible(tipo != TipoCimiento::Circular);
}

void Suelo::chkServ_Click()
{
    PresentaServicio();
    // The cohesion is compared with the limit of granular soil; the warning comes with the
    // calculation, not here.
    [[maybe_unused]] const bool cohesivo = Valor("Text4") >= kCohesionGranular;
}

void Suelo::PresentaServicio()
{
    const bool activo = At("chkServ").CheckValue() == 1;
    for (const char* campo : {"txtAnchoEfect", "txtAsiento", "txtSPT"})
        At(campo).SetEnabled(activo);
}

void Suelo::Text6_Change() { At("txtB").SetText(At("Text6").Text()); }

void Suelo::txtB_Change()
{
    const std::string ancho = Formato00(Valor("txtB"));
    At("txtAnchoEfect").SetText(ancho);
    // Raises this event once more, which finds the text as it is.
    At("txtB").SetText(ancho);
    Calc_FactForma();
}

std::string Suelo::ResumenCalculo() const
{
    const bool roca = At("CmbTerreno").ListIndex() == kRocaSana;
    const std::string servicio = At("txtServ").Text();
    return std::string("the soil was recalculated (") + (roca ? "sound rock" : "bearing formula") +
           "): admissible pressure " + At("txtTadm").Text() + " kN/m2, service pressure " + servicio +
           (servicio == "No" ? "" : " kN/m2") + "; " +
           (roca ? "txtKsp, txtQd, txtTadm, txtServ" : "txtNc, txtNq, txtNg, txtTa, txtTadm, txtServ") +
           " and txtTaServ hold the new figures, every other field keeps the value read, and the results file "
           "was written anew";
}

}  // namespace vardena
