#include "steel_timber/ClaseAcero.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "base/Texto.h"
#include "frame/CatalogoPerfiles.h"
#include "frame/UCPerfil.h"
#include "works/Declaraciones.h"
#include "works/LngPack.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

// The families of CmbPerfil, in the order of the catalogue; each has its hidden size list
// CmbTam(i).
constexpr std::string_view kFamilias[] = {"UPN", "IPN", "IPE", "HEA", "HEB", "HEM"};
constexpr int kNumFamilias = static_cast<int>(std::size(kFamilias));
static_assert(kNumFamilias == kFamiliasCatalogo, "one size list per family of the catalogue");

// The reference strength of e = sqrt(24000 / fy), t/m2.
constexpr double kFyReferencia = 24000;
constexpr float kFactoresFlexion[] = {72, 83, 124};
constexpr float kFactoresCompresion[] = {33, 38, 42};

// The heading: messages 1274 (section) to 1282; the four dimensions carry their unit.
constexpr int kMsgPerfil = 1274;
constexpr int kMsgCanto = 1275;
constexpr int kMsgClaseFlexion = 1279;
constexpr int kMsgFlexion = 1281;
constexpr int kMsgCompresion = 1282;
constexpr int kMsgDivisionPorCero = 1521;
constexpr int kMsgAceroFueraDeTabla = 1700;
constexpr int kMsgTituloErrorDatos = 165;
constexpr int kErrDivisionPorCero = 11;
constexpr size_t kAnchoRaya = 112;
// The table holds at most 30 sizes of a family.
constexpr int kMaxFilas = 30;

constexpr std::string_view kSeccionNoSoportada = "Sección no soportada";
constexpr std::string_view kCrLf = "\r\n";

}  // namespace

LimitesClase LimitesDeClase(float fy)
{
    const double e = std::sqrt(kFyReferencia / static_cast<double>(fy));
    LimitesClase l;
    for (size_t k = 0; k < 3; ++k) {
        l.flexion[k] = static_cast<float>(static_cast<double>(kFactoresFlexion[k]) * e);
        l.compresion[k] = static_cast<float>(static_cast<double>(kFactoresCompresion[k]) * e);
    }
    return l;
}

std::string TextoClase(double esbeltez, const std::array<float, 3>& limites)
{
    for (size_t k = 0; k < 3; ++k)
        if (esbeltez < static_cast<double>(limites[k]))
            return "Clase " + std::to_string(k + 1);
    return "Clase  4";
}

int FamiliaDeClase(std::string_view perfil)
{
    for (int i = 0; i < kNumFamilias; ++i)
        if (kFamilias[static_cast<size_t>(i)] == perfil)
            return i;
    return -1;
}

std::string CabeceraClases(const Declaraciones& d)
{
    // First line: the section, the four dimensions in mm and the two class columns; second
    // line: under each class column what it is the class of.
    std::string t = d.Msg(kMsgPerfil);
    for (int m = kMsgCanto; m < kMsgCanto + 4; ++m)
        t += "\t" + d.Msg(m) + " (mm) ";
    t += "\t" + d.Msg(kMsgClaseFlexion) + "\t" + d.Msg(kMsgClaseFlexion + 1);
    t += kCrLf;
    t += "\t\t\t\t\t" + d.Msg(kMsgFlexion) + "\t" + d.Msg(kMsgCompresion);
    t += kCrLf;
    t += std::string(kAnchoRaya, '-');
    t += kCrLf;
    t += std::string(6, ' ');
    t += kCrLf;
    return t;
}

FrmClaseAcero::FrmClaseAcero(Declaraciones& d) : Form(d, "frmClaseAcero", " Definición de la clase de acero")
{
    Add(Kind::Label, "Label1").SetCaption("Perfil");
    Add(Kind::ComboBox, "CmbPerfil");
    Add(Kind::Label, "Label2").SetCaption("Acero");
    Add(Kind::ComboBox, "CmbAcero");
    Add(Kind::Label, "LbAcero");
    // The hidden size lists, one per family, from the catalogue of sections.
    for (int f = 0; f < kNumFamilias; ++f) {
        Control& tam = Add(Kind::ComboBox, "CmbTam", f);
        std::vector<std::string> filas;
        for (int t : TamanosFamilia(f))
            filas.push_back(std::to_string(t));
        tam.SetItems(std::move(filas));
        tam.SetVisible(false);
    }
    // The selector that reads the section figures; it shows the last size read.
    Control& perfil = Add(Kind::UCPerfil, "UCPerfil1");
    InstalaPerfil(perfil);
    perfil.Set("Num", "1");
    perfil.Set("Perfil", "IPN");
    perfil.Set("Tamano", "80");
    perfil.SetVisible(false);
    // The table, in a fixed-width font with tab stops wide enough for its longest column head.
    Control& tabla = Add(Kind::RichTextBox, "RichTextBox1");
    tabla.RawSet("FontName", "Courier New");
    tabla.RawSet("TabStop", "14");
    tabla.SetCaption("Clase de la sección");
    Add(Kind::CommandButton, "cmdCalcular").SetCaption("CALCULAR");
    Add(Kind::CommandButton, "CmdSalir").SetCaption("SALIR");

    auto clic = [this](const char* control, const char* origen, void (FrmClaseAcero::*rutina)()) {
        At(control).onClick = [this, origen, rutina](Control&) { Evento(origen, rutina); };
    };
    clic("cmdCalcular", "cmdCalcular_Click", &FrmClaseAcero::cmdCalcular_Click);
    clic("CmbAcero", "CmbAcero_Click", &FrmClaseAcero::CmbAcero_Click);
    clic("CmbPerfil", "CmbPerfil_Click", &FrmClaseAcero::CmbPerfil_Click);
    At("CmdSalir").onClick = [this](Control&) { CmdSalir_Click(); };
}

void FrmClaseAcero::Evento(std::string_view origen, void (FrmClaseAcero::*rutina)())
{
    if (cargando_)
        return;
    ConVentanaError(decl(), origen, [&] { (this->*rutina)(); });
}

void FrmClaseAcero::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "frmClaseAcero_Form_Load", [&] {
        cargando_ = true;
        struct Fin {
            bool& b;
            ~Fin() { b = false; }
        } fin{cargando_};
        TraduceForm(*this);
        descargado_ = false;
        std::vector<std::string> familias(std::begin(kFamilias), std::end(kFamilias));
        At("CmbPerfil").SetItems(std::move(familias));
        At("CmbAcero").SetItems({"Idem gral.", "A37", "A42", "A52", "S 235", "S 275", "S 355", "S 450"});
        At("CmbPerfil").SetListIndex(FamiliaDeClase(At("UCPerfil1").Get("Perfil")));
        At("CmbAcero").SetListIndex(0);
    });
}

void FrmClaseAcero::Form_Activate() { Evento("Form_Activate", &FrmClaseAcero::cmdCalcular_Click); }

void FrmClaseAcero::CmbAcero_Click() { cmdCalcular_Click(); }

void FrmClaseAcero::CmbPerfil_Click()
{
    Control& lista = At("CmbPerfil");
    if (lista.ListIndex() >= 0)
        At("UCPerfil1").Set("Perfil", lista.List(lista.ListIndex()));
    cmdCalcular_Click();
}

void FrmClaseAcero::CmdSalir_Click()
{
    descargado_ = true;
    Form_Unload();
}

int FrmClaseAcero::IndiceAcero()
{
    Declaraciones& d = decl();
    const int fila = At("CmbAcero").ListIndex();
    const int indice = IndiceMaterial(fila, d.GenAcP);
    if (indice < 0 || indice > 6) {
        // The index comes from the program's own lists: one outside them is an internal fault.
        d.ui.MsgBox(Mensaje(d, kMsgAceroFueraDeTabla, {std::to_string(indice)}), mb::Critical, d.Msg(kMsgTituloErrorDatos));
        Halt("structural steel index " + std::to_string(indice) + " is outside the table");
    }
    return indice;
}

void FrmClaseAcero::cmdCalcular_Click()
{
    Declaraciones& d = decl();
    const int indice = IndiceAcero();
    const float fy = FyAcero(indice);
    At("LbAcero").SetCaption(NombreAcero(indice));
    const LimitesClase limites = LimitesDeClase(fy);
    const std::string cabecera = CabeceraClases(d);

    Control& perfil = At("UCPerfil1");
    const std::string familia = perfil.Get("Perfil");
    const int f = FamiliaDeClase(familia);
    if (f < 0) {
        d.ui.MsgBox(kSeccionNoSoportada, mb::OkOnly, "");
        return;
    }
    Control& tamanos = At("CmbTam", f);
    std::string filas;
    for (int i = 0; i < tamanos.ListCount() && i < kMaxFilas; ++i) {
        perfil.Set("Tamano", tamanos.List(i));
        // The selector reloads its figures before they are read.
        if (d.DoEvents)
            d.DoEvents();
        // Figures in cm on the selector, in mm in the table.
        const float canto = static_cast<float>(ValComaCopy(perfil.Get("Canto")) * 10);
        const float ancho = static_cast<float>(ValComaCopy(perfil.Get("Ancho")) * 10);
        const double espAla = ValComaCopy(perfil.Get("EspAla")) * 10;
        const double espAlma = ValComaCopy(perfil.Get("EspAlma")) * 10;
        const std::string nombre = familia + " " + tamanos.List(i);
        if (espAla == 0)
            throw ErrorEjecucion(kErrDivisionPorCero,
                                 Mensaje(d, kMsgDivisionPorCero, {d.Msg(kMsgCanto + 3) + " " + nombre, "0"}));
        // The depth less the web over the flange: the web's slenderness as the table has always
        // measured it, for both columns.
        const double esbeltez = (static_cast<double>(canto) - espAlma) / espAla;
        if (i > 0)
            filas += kCrLf;
        filas += nombre + "\t" + Formato0(canto) + "\t" + Formato0(ancho) + "\t" + Formato0_0(espAlma) + "\t" +
                 Formato0_0(espAla) + "\t" + TextoClase(esbeltez, limites.flexion) + "\t" +
                 TextoClase(esbeltez, limites.compresion);
    }
    At("RichTextBox1").SetText(cabecera + filas);
}

void AbreClaseAcero(Form& origen)
{
    Declaraciones& d = origen.decl();
    const std::string familia = origen.At("UCPerfil1").Get("Perfil");
    const int fila = FamiliaDeClase(familia);
    if (fila < 0) {
        d.ui.MsgBox(kSeccionNoSoportada, mb::OkOnly, "");
        return;
    }
    auto dialogo = std::make_unique<FrmClaseAcero>(d);
    dialogo->Form_Load();
    dialogo->At("UCPerfil1").Set("Perfil", familia);
    dialogo->At("CmbPerfil").SetListIndex(fila);
    const Control* acero = origen.Find("CmbAcero");
    dialogo->At("CmbAcero").SetListIndex(acero && acero->ListIndex() >= 0 ? acero->ListIndex() : 0);
    dialogo->Form_Activate();
    if (d.MuestraDialogo)
        d.MuestraDialogo(*dialogo);
}

}  // namespace vardena
