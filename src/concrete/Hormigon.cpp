#include "concrete/Hormigon.h"

#include <cfloat>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "works/Declaraciones.h"
#include "works/LngPack.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr int kErrLlamadaNoValida = 5;
constexpr int kErrDesbordamiento = 6;
// The sentences of the run-time errors of the formulas: an overflow, and a negative number
// raised to a fractional power.
constexpr int kMsgDesbordamiento = 1522;
constexpr int kMsgPotenciaNegativa = 1540;

// The age factors by hardening: normal first, then rapid; one column per row of CmbEdad.
constexpr FactoresEdad kEdadNormal[] = {{0.4f, 0.63f}, {0.65f, 0.8f}, {1, 1}, {1.2f, 1.09f}, {1.35f, 1.16f}};
constexpr FactoresEdad kEdadRapido[] = {{0.55f, 0.74f}, {0.75f, 0.87f}, {1, 1}, {1.15f, 1.07f}, {1.2f, 1.09f}};
static_assert(std::size(kEdadNormal) == kEdades.size() && std::size(kEdadRapido) == kEdades.size());

// The modulus of the beams: its constant, t/m2, and the strength unit it takes (t/m2 to N/mm2).
constexpr double kModuloVigas = 850000;
constexpr double kFckVigas = 100;

// Frames and labels of the window, in reading order.
constexpr const char* kFrameDatos = "UCframeDatos";
constexpr const char* kFrameResultados = "UCframeResultados";

// A row of the results frame: the label that shows the value, its symbol and what it is.
struct Resultado {
    const char* control;
    const char* simbolo;
    const char* texto;
};
constexpr Resultado kResultados[] = {
    {"Lbfckj", "fck,j", "Resistencia característica a los j días"},
    {"Lbfcm", "fcm", "Resistencia media"},
    {"Lbfcmj", "fcm,j", "Resistencia media a los j días"},
    {"LbE0j", "Eoj", "Módulo tangente"},
    {"LbEj", "Ej", "Módulo secante"},
    {"Lbfctk", "fct,k,j", "Resistencia característica a tracción"},
    {"Lbfctm", "fct,m,j", "Resistencia media a tracción"},
    {"Lbfct95", "fct,0.95,j", "Resistencia característica superior a tracción"},
};

constexpr std::string_view kGrupoDatos[] = {"Label1",   "Label2", "Label3",   "TxFck28", "Label4", "CmbArido",
                                            "Label5",   "CmbEdad", "Label6", "CmbEndur"};
constexpr std::string_view kGrupoResultados[] = {
    "LbNombre(0)", "LbSimbolo(0)", "Lbfckj", "LbNombre(1)", "LbSimbolo(1)", "Lbfcm",   "LbNombre(2)", "LbSimbolo(2)",
    "Lbfcmj",      "LbNombre(3)",  "LbSimbolo(3)", "LbE0j", "LbNombre(4)", "LbSimbolo(4)", "LbEj", "LbNombre(5)",
    "LbSimbolo(5)", "Lbfctk",      "LbNombre(6)", "LbSimbolo(6)", "Lbfctm", "LbNombre(7)", "LbSimbolo(7)", "Lbfct95"};
static_assert(std::size(kGrupoResultados) == 3 * std::size(kResultados), "three labels a row of results");
constexpr GrupoDef kGrupos[] = {
    {kFrameDatos, 0, kGrupoDatos, {}, 0, true},
    {kFrameResultados, 0, kGrupoResultados, {}, 1, true},
};

// The run time's failures of the formulas, naming the strength as it was typed.
[[noreturn]] void Falla(const Form& f, int numero, int mensaje)
{
    throw ErrorEjecucion(numero, Mensaje(f.decl(), mensaje, {f.At("Label1").Caption(), f.At("TxFck28").Text()}));
}

// A value kept in a Single: one that does not fit is an overflow.
float Single(const Form& f, double v)
{
    if (!std::isfinite(v) || std::fabs(v) > FLT_MAX)
        Falla(f, kErrDesbordamiento, kMsgDesbordamiento);
    return static_cast<float>(v);
}

// base ^ exponente for a fractional exponent: a negative base is an invalid procedure call.
double Potencia(const Form& f, double base, double exponente)
{
    if (base < 0)
        Falla(f, kErrLlamadaNoValida, kMsgPotenciaNegativa);
    return std::pow(base, exponente);
}

}  // namespace

const FactoresEdad* FactoresDeEdad(int edadIndice, std::string_view endurecimiento)
{
    if (edadIndice < 0 || edadIndice >= static_cast<int>(kEdades.size()))
        return nullptr;
    const FactoresEdad* tabla = endurecimiento == "normal" ? kEdadNormal : kEdadRapido;
    return &tabla[edadIndice];
}

float ModuloHormigonVigas(const Declaraciones& d)
{
    return static_cast<float>(kModuloVigas * std::pow(d.GenFckHorm / kFckVigas + 8, 1.0 / 3) * d.FactorArido * d.FactorEdadE);
}

std::span<const GrupoDef> GruposHormigon() { return kGrupos; }

FrmHormigon::FrmHormigon(Declaraciones& d) : Form(d, "frmHormigon", "Características mecánicas del hormigón")
{
    Add(Kind::Frame, kFrameDatos).SetCaption("Datos iniciales");
    Add(Kind::Label, "Label1").SetCaption("Res.caract. a 28 días");
    Add(Kind::Label, "Label2").SetCaption("fck28");
    Add(Kind::Label, "Label3").SetCaption("N/mm2");
    Control& fck = Add(Kind::TextBox, "TxFck28");
    fck.designText = "25";
    fck.SetText("25");
    Add(Kind::Label, "Label4").SetCaption("Tipo de árido:");
    Add(Kind::ComboBox, "CmbArido");
    Add(Kind::Label, "Label5").SetCaption("Edad en días (j):");
    std::vector<std::string> edades;
    for (int e : kEdades)
        edades.push_back(std::to_string(e));
    Add(Kind::ComboBox, "CmbEdad").SetItems(std::move(edades));
    Add(Kind::Label, "Label6").SetCaption("Endurecimiento:");
    Add(Kind::ComboBox, "CmbEndur");
    Add(Kind::Frame, kFrameResultados).SetCaption("Resultados");
    for (size_t i = 0; i < std::size(kResultados); ++i) {
        Add(Kind::Label, "LbNombre", static_cast<int>(i)).SetCaption(kResultados[i].texto);
        Add(Kind::Label, "LbSimbolo", static_cast<int>(i)).SetCaption(kResultados[i].simbolo);
        Add(Kind::Label, kResultados[i].control);
    }
    Add(Kind::CommandButton, "CmdCalcular").SetCaption("CALCULAR");

    auto clic = [this](const char* control, void (FrmHormigon::*rutina)()) {
        At(control).onClick = [this, control, rutina](Control&) { Evento(std::string(control) + "_Click", rutina); };
    };
    clic("CmbArido", &FrmHormigon::CmbArido_Click);
    clic("CmbEdad", &FrmHormigon::CmbEdad_Click);
    clic("CmbEndur", &FrmHormigon::CmbEndur_Click);
    clic("CmdCalcular", &FrmHormigon::CmdCalcular_Click);
    At("TxFck28").onChange = [this](Control&) { Evento("TxFck28_Change", &FrmHormigon::TxFck28_Change); };
}

void FrmHormigon::Evento(std::string_view origen, void (FrmHormigon::*rutina)())
{
    ConVentanaError(decl(), origen, [&] { (this->*rutina)(); });
}

void FrmHormigon::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "frmHormigon_Form_Load", [&] {
        TraduceForm(*this);
        betaFck_ = 1.1f;
        std::vector<std::string> aridos;
        for (size_t i = 0; i < kFactoresArido.size(); ++i)
            aridos.push_back(d.Msg(kMsgPrimerArido + static_cast<int>(i)));
        At("CmbArido").SetItems(std::move(aridos));
        At("CmbEndur").SetItems({d.Msg(kMsgEndurNormal), d.Msg(kMsgEndurRapido)});
    });
    // Each setting runs its list's click, under that click's name.
    At("CmbArido").SetListIndex(0);
    At("CmbEdad").SetListIndex(2);
    At("CmbEndur").SetListIndex(0);
}

std::string_view FrmHormigon::Endurecimiento() const
{
    return decl().Msg(At("CmbEndur").ListIndex() <= 0 ? kMsgEndurNormal : kMsgEndurRapido);
}

void FrmHormigon::CalculaBetas(int edadIndice, std::string_view endurecimiento)
{
    if (const FactoresEdad* f = FactoresDeEdad(edadIndice, endurecimiento)) {
        betaFck_ = f->resistencia;
        decl().FactorEdadE = f->modulo;
    }
}

void FrmHormigon::CalculaCMH()
{
    Declaraciones& d = decl();
    auto pon = [this](const char* control, float v) { At(control).SetCaption(FormatoNum(v)); };
    const float fck = Single(*this, ValComaCopy(At("TxFck28").Text()));
    const float fckj = Single(*this, static_cast<double>(fck) * betaFck_);
    pon("Lbfckj", fckj);
    const float fcm = Single(*this, static_cast<double>(fck) + 8);
    pon("Lbfcm", fcm);
    const float fcmj = Single(*this, static_cast<double>(fcm) * betaFck_);
    pon("Lbfcmj", fcmj);
    const float eoj = Single(*this, 10000 * Potencia(*this, fcm, 1.0 / 3) * d.FactorArido * d.FactorEdadE);
    pon("LbE0j", std::floor(eoj));
    const float ej = Single(*this, static_cast<double>(eoj) / 100 * 85);
    d.ModuloHormigon = ej;
    pon("LbEj", std::floor(ej));
    const double t = Potencia(*this, fckj, 2.0 / 3);
    pon("Lbfctk", Single(*this, std::floor(0.21 * t * 100) / 100));
    pon("Lbfctm", Single(*this, std::floor(0.3 * t * 100) / 100));
    pon("Lbfct95", Single(*this, std::floor(0.39 * t * 100) / 100));
}

void FrmHormigon::CmbArido_Click()
{
    const int i = At("CmbArido").ListIndex();
    if (i >= 0 && i < static_cast<int>(kFactoresArido.size()))
        decl().FactorArido = kFactoresArido[static_cast<size_t>(i)];
    CalculaCMH();
}

void FrmHormigon::CambiaEdad()
{
    CalculaBetas(At("CmbEdad").ListIndex(), Endurecimiento());
    CalculaCMH();
}

void FrmHormigon::CmbEdad_Click() { CambiaEdad(); }

void FrmHormigon::CmbEndur_Click() { CambiaEdad(); }

void FrmHormigon::CmdCalcular_Click() { CalculaCMH(); }

void FrmHormigon::TxFck28_Change() { CalculaCMH(); }

}  // namespace vardena
