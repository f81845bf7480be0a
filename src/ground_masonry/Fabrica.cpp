#include "ground_masonry/Fabrica.h"

#include <cmath>
#include <memory>
#include <optional>
#include <vector>

#include "base/Codepage.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "base/VbInput.h"
#include "building/Unidades.h"
#include "works/Declaraciones.h"
#include "works/LngPack.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

// The sentences of the dialog: Fabrica.dat unreadable (file, why) and its box's title, a failed
// write (file, why), the help of the dialog. A negative strength raised to a fractional power
// is the run time's invalid procedure call, with the sentence the concrete calculator uses.
constexpr int kMsgNoSeLee = 1740;
constexpr int kMsgTituloFabrica = 1741;
constexpr int kMsgNoSeGuarda = 1742;
constexpr int kMsgAyuda = 1743;
constexpr int kMsgPotenciaNegativa = 1540;
constexpr int kErrLlamadaNoValida = 5;

constexpr std::string_view kTiposFabrica[] = {"Ladrillo macizo junta delg.", "Ladrillo macizo", "Ladrillo perforado",
                                              "Bloques aligerados",          "Bloques huecos",  "Sillería",
                                              "Mampostería"};
constexpr std::string_view kTiposPieza[] = {"Pieza cerámica",   "Silico-calcáreos",  "Hormigón ordinario",
                                            "Hormigón celular", "Piedra artificial", "Piedra natural"};
constexpr std::string_view kMuros[] = {"Muro de una hoja", "Muro de dos hojas"};
constexpr std::string_view kMorteros[] = {"Mortero ordinario", "Mortero junta delgada", "Mortero ligero"};
constexpr std::string_view kCatControl[] = {" I", "II"};
constexpr std::string_view kCatEjec[] = {" A", " B", " C"};

// K by cmbTipoFabr: one leaf, two leaves.
constexpr double kK[][2] = {{0.6, 0.5}, {0.6, 0.5}, {0.55, 0.45}, {0.5, 0.4}, {0.4, 0.35}, {0.6, 0.5}, {0.6, 0.5}};
static_assert(std::size(kK) == std::size(kTiposFabrica));

// fvk0 and its limit by cmbTipo (rows 0-1, 2-4, 5) and fm (<= 1, <= 2.5, above).
struct Cortante {
    double fvk0, limite;
};
constexpr Cortante kCortante[3][3] = {
    {{0.1, 1.2}, {0.2, 1.5}, {0.3, 1.7}},
    {{0.1, 1.2}, {0.15, 1.5}, {0.2, 1.7}},
    {{0.1, 1}, {0.15, 1}, {0.15, 1}},
};

// fxk1, fxk2 by cmbTipo and mortar: ordinary below fm 5, ordinary from 5, thin joint, lightweight.
struct Flexion {
    double fxk1, fxk2;
};
constexpr Flexion kFlexion[6][4] = {
    {{0.1, 0.2}, {0.1, 0.4}, {0.15, 0.15}, {0.1, 0.1}},
    {{0.05, 0.2}, {0.1, 0.4}, {0.2, 0.3}, {0, 0}},
    {{0.05, 0.2}, {0.1, 0.4}, {0.2, 0.3}, {0, 0}},
    {{0.05, 0.4}, {0.1, 0.4}, {0.15, 0.2}, {0.1, 0.15}},
    {{0.05, 0.4}, {0.1, 0.4}, {0, 0}, {0, 0}},
    {{0.05, 0.2}, {0.1, 0.4}, {0.15, 0.15}, {0, 0}},
};
static_assert(std::size(kFlexion) == std::size(kTiposPieza));

// gamma M by execution category (rows) and control category (columns).
constexpr double kGammaM[3][2] = {{1.7, 2}, {2.2, 2.5}, {2.7, 3}};

// Creep coefficient by cmbTipoFabr; the rubble masonry sets none and shows 0.
constexpr double kFluencia[] = {1, 1.5, 1.5, 1.5, 1.5, 0, 0};
static_assert(std::size(kFluencia) == std::size(kTiposFabrica));

// Density by cmbTipoFabr; the solid bricks depend on the unit material.
constexpr int kDensidades[] = {0, 0, 1500, 1600, 1500, 2800, 2600};
constexpr int kDensidadLadrilloCeramico = 1800;
constexpr int kDensidadLadrilloOtro = 2000;

std::vector<std::string> Filas(std::span<const std::string_view> filas) { return {filas.begin(), filas.end()}; }

int Acota(int i, int n) { return i < 0 ? 0 : i >= n ? n - 1 : i; }

// The fields of the dialog and their captions, in the order of its record.
struct Campo {
    Kind kind;
    const char* nombre;
    int indice;
    const char* caption;
    const char* texto;  // design text of a text box
};
constexpr Campo kCampos[] = {
    {Kind::ComboBox, "cmbTipoFabr", -1, "Tipo de fábrica", nullptr},
    {Kind::ComboBox, "cmbTipo", -1, "Material de las piezas", nullptr},
    {Kind::ComboBox, "cmbMuro", -1, "Muro", nullptr},
    {Kind::ComboBox, "cmbMortero", -1, "Mortero", nullptr},
    {Kind::ComboBox, "cmbCatControl", -1, "Categoría control", nullptr},
    {Kind::ComboBox, "CmbCatEjec", -1, "Categ. ejecución", nullptr},
    {Kind::TextBox, "TxtQ", 0, "Res.básica piezas", "200"},
    {Kind::TextBox, "TxtQ", 1, "Res.mortero", "100"},
    {Kind::TextBox, "TxtDensidad", -1, "Densidad", "1500"},
    {Kind::TextBox, "TxtQ", 3, "Res.compresión", ""},
    {Kind::TextBox, "TxtQ", 4, "Res.cortante", ""},
    {Kind::TextBox, "TxtQ", 5, "Res.flexión paralela", ""},
    {Kind::TextBox, "TxtQ", 6, "Res.flexión perp.", ""},
    {Kind::TextBox, "TxtQ", 2, "Módulo inst. (E)", ""},
    {Kind::TextBox, "txtCoefFluencia", -1, "Coeficiente fluencia", ""},
    {Kind::TextBox, "txtGm", -1, "Coef. parcial seguridad", ""},
    {Kind::TextBox, "txtFk", -1, "", ""},
};

constexpr std::string_view kGrupoDatos[] = {"cmbTipoFabr", "cmbTipo",  "cmbMuro", "cmbMortero", "cmbCatControl",
                                            "CmbCatEjec",  "TxtQ(0)", "TxtQ(1)", "TxtDensidad"};
constexpr std::string_view kGrupoResultados[] = {"TxtQ(3)", "TxtQ(4)", "TxtQ(5)", "TxtQ(6)",
                                                 "TxtQ(2)", "txtCoefFluencia", "txtGm"};
constexpr GrupoDef kGrupos[] = {
    {"UCframeDatos", 0, kGrupoDatos, {}, 0},
    {"UCframeResultados", 0, kGrupoResultados, {}, 1},
};

// One stored field of Fabrica.dat, read and checked before anything is set.
struct ValorLeido {
    Control* control;
    int indice = -1;
    std::string texto;
};

}  // namespace

std::string RutaFabrica(const Declaraciones& d) { return ConBarra(d.CarpetaObra) + kArchivoFabrica; }

PropiedadesFabrica CalculaFabrica(const DatosFabrica& x)
{
    PropiedadesFabrica p;
    const int tipoFabr = Acota(x.tipoFabr, static_cast<int>(std::size(kTiposFabrica)));
    const int tipo = Acota(x.tipo, static_cast<int>(std::size(kTiposPieza)));
    double fb = x.fb, fm = x.fm;
    if (x.unidades == 1) {
        fb /= 10;
        fm /= 10;
    }
    p.k = kK[tipoFabr][x.muro == 1 ? 1 : 0];
    p.fk = p.k * std::pow(fb, 0.65) * std::pow(fm, 0.25) * (x.unidades != 0 ? 10 : 1);
    // Solid bricks and light blocks laid on thin-joint mortar.
    if ((tipoFabr == 0 || tipoFabr == 1 || tipoFabr == 3) && x.mortero == 1)
        p.fk = std::pow(fb, 0.85) * (x.unidades != 0 ? 8 : 0.8);

    const int filaCortante = tipo <= 1 ? 0 : tipo <= 4 ? 1 : 2;
    const int columnaCortante = fm <= 1 ? 0 : fm <= 2.5 ? 1 : 2;
    p.fvk0 = kCortante[filaCortante][columnaCortante].fvk0;
    p.limiteFvk = kCortante[filaCortante][columnaCortante].limite;
    // The design stress of the shear formula is held at 0, so the limit never cuts.
    constexpr double kTensionDiseno = 0;
    p.fvk = 0.36 * kTensionDiseno + p.fvk0;
    if (p.fvk > p.limiteFvk)
        p.fvk = p.limiteFvk;

    const int columnaFlexion = x.mortero == 1 ? 2 : x.mortero == 2 ? 3 : fm < 5 ? 0 : 1;
    p.fxk1 = kFlexion[tipo][columnaFlexion].fxk1;
    p.fxk2 = kFlexion[tipo][columnaFlexion].fxk2;
    if (x.unidades == 1) {
        p.fxk1 *= 10;
        p.fxk2 *= 10;
    }
    p.e = 1000 * p.fk;
    p.fluencia = kFluencia[tipoFabr];
    p.gammaM = kGammaM[Acota(x.catEjec, 3)][x.catControl == 0 ? 0 : 1];
    return p;
}

int DensidadDeFabrica(int tipoFabr, int tipo)
{
    tipoFabr = Acota(tipoFabr, static_cast<int>(std::size(kTiposFabrica)));
    if (tipoFabr <= 1)
        return tipo == 0 ? kDensidadLadrilloCeramico : kDensidadLadrilloOtro;
    return kDensidades[tipoFabr];
}

std::span<const GrupoDef> GruposFabrica() { return kGrupos; }

FrmFabrica::FrmFabrica(Declaraciones& d) : Form(d, "frmFabrica", "Definición de las características de la fábrica")
{
    Add(Kind::Frame, "UCframeDatos").SetCaption("Datos de la fábrica");
    Add(Kind::Frame, "UCframeResultados").SetCaption("Características");
    for (const Campo& c : kCampos) {
        Control& k = Add(c.kind, c.nombre, c.indice);
        k.SetCaption(c.caption);
        if (c.texto) {
            k.designText = c.texto;
            k.SetText(c.texto);
        }
    }
    At("cmbTipoFabr").SetItems(Filas(kTiposFabrica));
    At("cmbTipo").SetItems(Filas(kTiposPieza));
    At("cmbMuro").SetItems(Filas(kMuros));
    At("cmbMortero").SetItems(Filas(kMorteros));
    At("cmbCatControl").SetItems(Filas(kCatControl));
    At("CmbCatEjec").SetItems(Filas(kCatEjec));
    At("txtFk").SetVisible(false);
    // The stress fields and their units; the modulus is a stress too.
    for (int i = 0; i <= 6; ++i) {
        Add(Kind::Label, "lbST", i).SetCaption("Kg/cm2");
        Add(Kind::Label, "lbSI", i).SetCaption("N/mm2");
        Control& f = Add(Kind::Label, "LbQSI", i);
        f.SetCaption("0.1");
        f.SetVisible(false);
    }
    Add(Kind::Label, "lbDensidad").SetCaption("kg/m3");
    Add(Kind::CommandButton, "CmdSalir").SetCaption("SALIR");
    Add(Kind::CommandButton, "cmdAyuda").SetCaption("?");

    auto calcula = [this](Control& c) {
        if (!cargando_)
            Evento(c.Name() + (c.kind() == Kind::TextBox ? "_Change" : "_Click"), &FrmFabrica::Calc_Fabrica);
    };
    for (const char* n : {"cmbCatControl", "CmbCatEjec", "cmbMortero", "cmbMuro", "cmbTipo"})
        At(n).onClick = calcula;
    At("TxtDensidad").onChange = calcula;
    for (int i : {0, 1})
        At("TxtQ", i).onChange = calcula;
    At("cmbTipoFabr").onClick = [this](Control&) {
        if (!cargando_)
            Evento("cmbTipoFabr_Click", &FrmFabrica::cmbTipoFabr_Click);
    };
    At("CmdSalir").onClick = [this](Control&) { Evento("CmdSalir_Click", &FrmFabrica::CmdSalir_Click); };
    At("cmdAyuda").onClick = [this](Control&) { Evento("cmdAyuda_Click", &FrmFabrica::cmdAyuda_Click); };
}

void FrmFabrica::Evento(std::string_view origen, void (FrmFabrica::*rutina)())
{
    ConVentanaError(decl(), origen, [&] { (this->*rutina)(); });
}

void FrmFabrica::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "frmFabrica_Form_Load", [&] {
        cargando_ = true;
        TraduceForm(*this);
        CambiaUnidades(*this, d.Unidades);
        for (Control* c : Controls())
            if (c->kind() == Kind::ComboBox)
                c->SetListIndex(0);
        errorLectura_.clear();
        const std::string ruta = RutaFabrica(d);
        if (!d.CarpetaObra.empty() && ReadFileIfExists(ruta))
            LeeArchivo(ruta);
        cargando_ = false;
        Calc_Fabrica();
    });
    cargando_ = false;
}

void FrmFabrica::LeeArchivo(const std::string& ruta)
{
    Declaraciones& d = decl();
    std::vector<ValorLeido> valores;
    try {
        const std::optional<std::string> texto = DataFileText(ReadFileBytes(ruta));
        if (!texto)
            throw FileError(ruta, "holds a NUL byte, so it is not text");
        FieldReader r(*texto);
        for (Control* c : StoredControls()) {
            const int linea = r.Line();
            const std::string nombre = r.Text();
            if (nombre != c->Name())
                throw FieldError(13, linea, "the field \"" + nombre + "\" stands where " + c->Label() + " belongs");
            ValorLeido v{c};
            if (c->kind() == Kind::ComboBox) {
                v.indice = r.Integer();
                if (v.indice < -1 || v.indice >= c->ListCount())
                    throw FieldError(380, linea, c->Label() + " holds row " + std::to_string(v.indice) + " of its " +
                                                     std::to_string(c->ListCount()) + " rows");
            } else {
                v.texto = r.Text();
            }
            valores.push_back(std::move(v));
        }
    } catch (const std::exception& e) {
        errorLectura_ = e.what();
        d.ui.MsgBox(Mensaje(d, kMsgNoSeLee, {ruta, errorLectura_}), mb::Exclamation, d.Msg(kMsgTituloFabrica));
        return;
    }
    for (const ValorLeido& v : valores) {
        if (v.control->kind() == Kind::ComboBox)
            v.control->SetListIndex(v.indice);
        else
            v.control->SetText(v.texto);
    }
}

DatosFabrica FrmFabrica::Datos() const
{
    DatosFabrica x;
    x.tipoFabr = At("cmbTipoFabr").ListIndex();
    x.tipo = At("cmbTipo").ListIndex();
    x.muro = At("cmbMuro").ListIndex();
    x.mortero = At("cmbMortero").ListIndex();
    x.catControl = At("cmbCatControl").ListIndex();
    x.catEjec = At("CmbCatEjec").ListIndex();
    x.fb = ValComaCopy(At("TxtQ", 0).Text());
    x.fm = ValComaCopy(At("TxtQ", 1).Text());
    x.unidades = decl().Unidades;
    return x;
}

void FrmFabrica::Calc_Fabrica()
{
    const DatosFabrica x = Datos();
    // A negative strength has no fractional power: the run time's invalid procedure call.
    for (int i : {0, 1})
        if (ValComaCopy(At("TxtQ", i).Text()) < 0)
            throw ErrorEjecucion(kErrLlamadaNoValida, Mensaje(decl(), kMsgPotenciaNegativa,
                                                              {At("TxtQ", i).Caption(), At("TxtQ", i).Text()}));
    const PropiedadesFabrica p = CalculaFabrica(x);
    catEjec_ = x.catEjec;
    At("txtFk").SetText(FormatoNum(p.fk));
    At("TxtQ", 3).SetText(Formato00(p.fk));
    At("TxtQ", 4).SetText(Formato00(p.fvk));
    auto flexion = [this](int i, double v) {
        At("TxtQ", i).SetText(v == 0 ? "No" : Formato00(v));
        At("TxtQ", i).SetEnabled(v != 0);
    };
    flexion(5, p.fxk1);
    flexion(6, p.fxk2);
    At("TxtQ", 2).SetText(Formato0(p.e));
    At("txtCoefFluencia").SetText(Formato00(p.fluencia));
    At("txtGm").SetText(Formato00(p.gammaM));
}

void FrmFabrica::cmbTipoFabr_Click()
{
    const bool antes = cargando_;
    cargando_ = true;
    At("TxtDensidad").SetText(std::to_string(DensidadDeFabrica(At("cmbTipoFabr").ListIndex(), At("cmbTipo").ListIndex())));
    cargando_ = antes;
    Calc_Fabrica();
}

void FrmFabrica::CmdSalir_Click()
{
    Declaraciones& d = decl();
    // A file that could not be read stays as it is: the defaults shown do not replace it.
    if (errorLectura_.empty() && !d.CarpetaObra.empty()) {
        const std::string ruta = RutaFabrica(d);
        try {
            FormGuardaFile(*this, ruta);
        } catch (const std::exception& e) {
            d.ui.MsgBox(Mensaje(d, kMsgNoSeGuarda, {ruta, e.what()}), mb::Exclamation, d.Msg(kMsgTituloFabrica));
        }
    }
    Form_Unload();
}

void FrmFabrica::cmdAyuda_Click()
{
    decl().ui.MsgBox(decl().Msg(kMsgAyuda), mb::Information, decl().Msg(kMsgTituloFabrica));
}

void FrmFabrica::Form_Unload()
{
    if (descargado_)
        return;
    descargado_ = true;
    ConVentanaError(decl(), "frmFabrica_Form_Unload", [&] { Devuelve(); });
}

void FrmFabrica::Devuelve()
{
    Declaraciones& d = decl();
    const std::string& activo = d.FormActivo;
    Form* destino = llamador_ && llamador_->Name() == activo ? llamador_ : nullptr;
    auto pon = [](Form* f, std::string_view nombre, int indice, const std::string& texto) {
        if (Control* c = f ? f->Find(nombre, indice) : nullptr)
            c->SetText(texto);
    };
    auto fila = [](Form* f, std::string_view nombre, int i) {
        if (Control* c = f ? f->Find(nombre) : nullptr; c && i >= -1 && i < c->ListCount())
            c->SetListIndex(i);
    };
    const std::string& fk = At("TxtQ", 3).Text();
    const std::string& gm = At("txtGm").Text();
    const std::string& densidad = At("TxtDensidad").Text();
    if (activo == "frmMuros") {
        pon(destino, "TxtQ", 0, fk);
        pon(destino, "TxCoefMin", -1, gm);
        // The wall's list opens with its "Idem. gral" row.
        fila(destino, "CmbCatEjec", At("CmbCatEjec").ListIndex() + 1);
        pon(destino, "TxtDensidad", -1, densidad);
    } else if (activo == "frmMDint") {
        pon(destino, "TxtQ", 0, fk);
        pon(destino, "TxCoefMin", -1, gm);
        // The density goes to the masonry wall form, not to the lintel: that form takes it when
        // it is next loaded.
        d.DensidadMurosPendiente = densidad;
    } else if (activo == "frmMCerr") {
        pon(destino, "TxtQ", 0, At("TxtQ", 5).Text());
        pon(destino, "TxtQ", 1, At("TxtQ", 6).Text());
        pon(destino, "TxCoefMin", -1, gm);
    } else if (activo == "DatosGen") {
        pon(destino, "TxResFab", -1, fk);
        pon(destino, "TxCoefMin", -1, gm);
        pon(destino, "TxtDensFabr", -1, densidad);
        fila(destino, "cmbCatControl", At("cmbCatControl").ListIndex());
        fila(destino, "CmbCatEjec", At("CmbCatEjec").ListIndex());
    }
}

void AbreFabrica(Form& llamador)
{
    Declaraciones& d = llamador.decl();
    d.FormActivo = llamador.Name();
    auto dialogo = std::make_unique<FrmFabrica>(d);
    dialogo->PonLlamador(&llamador);
    dialogo->Form_Load();
    if (d.MuestraDialogo)
        d.MuestraDialogo(*dialogo);
    // Closed by its window control, or at once where no window system runs.
    dialogo->Form_Unload();
}

std::string TomaDensidadParaMuros(Declaraciones& d)
{
    std::string densidad;
    densidad.swap(d.DensidadMurosPendiente);
    return densidad;
}

}  // namespace vardena
