#include "concrete/ForjUnid2.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/Texto.h"
#include "base/Ui.h"
#include "concrete/ForjUnid.h"
#include "works/Declaraciones.h"
#include "works/LngPack.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr int kMsgFilaNoNumero = 1616;       // row "%1" of "%2", column "%3"
constexpr int kMsgGeometriaNoNumero = 1619;  // the geometry of "%1"
constexpr int kMsgGuardaNuevo = 1623;        // "Antes de añadir más forjados, ..."
constexpr int kMsgSeleccione = 1624;         // "Tiene que seleccionar un forjado de la lista"

constexpr std::string_view kGeometria[] = {"TXFanchoVig", "TXFintereje", "TXFcantoBov", "TXFcompr"};
constexpr std::string_view kRotulosFicha[kColumnasFicha] = {
    "Módulo resistente (cm3/m)", "b", "Momento último (m·kN/m)", "E·Ih", "E·Ifis", "Mo", "Mo'", "Mo2",
    "Vu (1)", "Vu (2)", "Vu (3)", "Rasante Vu"};
// A new system's panel.
constexpr std::string_view kGeometriaNueva[] = {"10", "60", "25", "5"};

constexpr std::string_view kGrupoLista[] = {"OpTipoFor(0)", "OpTipoFor(1)", "OpTipoFor(2)", "ListFor",
                                            "UCBforjMas", "UCBforjMenos"};
constexpr std::string_view kGrupoSistema[] = {"TxFor", "TXFanchoVig", "TXFintereje", "TXFcantoBov", "TXFcompr", "Nlin",
                                              "UCBmas", "UCBmenos"};
constexpr std::string_view kGrupoFilas[] = {"OpFila*", "TXFnombre*", "TXFmod*", "TXFbeta*", "TXFmomUlt*", "TXFrig*",
                                            "TXFrigfis*", "TXFMo*", "TXFMop*", "TXFMo2*", "TXFcort1*", "TXFcort2*",
                                            "TXFcort3*", "TXFras*"};
constexpr std::string_view kGrupoBotones[] = {"UCBguardar", "UCBcancela", "UCBelegir"};
constexpr GrupoDef kGrupos[] = {
    {"UCframeLista", 0, kGrupoLista, {}, 0},
    {"UCframeForjado", 0, kGrupoSistema, {}, 0},
    {"UCframeBotones", 0, kGrupoBotones, {}, 0},
    {"UCframeFilas", 0, kGrupoFilas, {}, 1, true},
};

}  // namespace

std::span<const GrupoDef> GruposForjUnid2() { return kGrupos; }

FrmForjUnid2::FrmForjUnid2(Declaraciones& d) : Form(d, "frmForjUnid2", "Fichas Forjados")
{
    Add(Kind::Frame, "UCframeLista").SetCaption("Forjados");
    for (int i = 0; i < 3; ++i) {
        Control& op = Add(Kind::OptionButton, "OpTipoFor", i);
        op.SetCaption(i == 0 ? "Armado" : i == 1 ? "Pretensado" : "Losa Alveolada");
        op.onClick = [this, i](Control&) { Evento("OpTipoFor_Click", [&] { OpTipoFor_Click(i); }); };
        Add(Kind::PictureBox, "PtFor", i);
    }
    Add(Kind::ListBox, "ListFor").onClick = [this](Control&) { Evento("ListFor_Click", [&] { ListFor_Click(); }); };
    Add(Kind::Frame, "UCframeForjado").SetCaption("Forjado");
    Add(Kind::TextBox, "TxFor");
    for (std::string_view g : kGeometria)
        Add(Kind::TextBox, std::string(g));
    Add(Kind::TextBox, "Nlin");
    Add(Kind::TextBox, "TxIndice").SetVisible(false);
    Add(Kind::Frame, "UCframeFilas").SetCaption("Viguetas");
    for (int i = 0; i < kFilasFicha; ++i) {
        Control& op = Add(Kind::OptionButton, "OpFila", i);
        op.SetGroup("OpFila");
        op.SetCaption(std::to_string(i + 1));
        Add(Kind::TextBox, "TXFnombre", i);
        for (std::string_view campo : kCamposFicha)
            Add(Kind::TextBox, std::string(campo), i);
    }
    Add(Kind::Frame, "UCframeBotones");
    struct Boton {
        const char* nombre;
        const char* caption;
        void (FrmForjUnid2::*rutina)();
    };
    for (const Boton& b : {Boton{"UCBmas", "+ línea", &FrmForjUnid2::UCBmas_Click},
                           Boton{"UCBmenos", "- línea", &FrmForjUnid2::UCBmenos_Click},
                           Boton{"UCBforjMas", "+ forjado", &FrmForjUnid2::UCBforjMas_Click},
                           Boton{"UCBforjMenos", "- forjado", &FrmForjUnid2::UCBforjMenos_Click},
                           Boton{"UCBguardar", "Guardar", &FrmForjUnid2::UCBguardar_Click},
                           Boton{"UCBcancela", "Cancelar", &FrmForjUnid2::UCBcancela_Click},
                           Boton{"UCBelegir", "Elegir", &FrmForjUnid2::UCBelegir_Click}}) {
        Control& c = Add(Kind::CommandButton, b.nombre);
        c.SetCaption(b.caption);
        const std::string origen = std::string(b.nombre) + "_Click";
        auto rutina = b.rutina;
        c.onClick = [this, origen, rutina](Control&) { Evento(origen, [&] { (this->*rutina)(); }); };
    }
}

void FrmForjUnid2::Evento(std::string_view origen, const std::function<void()>& rutina)
{
    ConVentanaError(decl(), origen, [&] { rutina(); });
}

void FrmForjUnid2::Form_Load()
{
    ConVentanaError(decl(), "frmForjUnid2_Form_Load", [&] { TraduceForm(*this); });
    At("OpTipoFor", 0).SetOptionValue(true);
    if (archivo_.empty())
        OpTipoFor_Click(0);
}

int FrmForjUnid2::Tipo() const
{
    for (int i = 0; i < 3; ++i)
        if (At("OpTipoFor", i).OptionValue())
            return i;
    return 0;
}

int FrmForjUnid2::Filas() const { return std::clamp(static_cast<int>(ValComaCopy(At("Nlin").Text())), 1, kFilasFicha); }

void FrmForjUnid2::OpTipoFor_Click(int index)
{
    for (int i = 0; i < 3; ++i)
        At("PtFor", i).SetVisible(i == index);
    archivo_ = ConBarra(decl().DirPrograma) + std::string(ArchivoCatalogo(index));
    // A hollow-core slab has no joist: its width means nothing.
    At("TXFanchoVig").SetVisible(index != 2);
    LeeListaForjados();
}

void FrmForjUnid2::LeeListaForjados()
{
    Control& lista = At("ListFor");
    lista.Clear();
    catalogo_ = LeeCatalogo(archivo_);
    if (!catalogo_.Sano()) {
        decl().ui.MsgBox(MensajeCatalogoDanado(decl(), archivo_, catalogo_), mb::Critical, "Error");
        catalogo_.bloques.clear();
    }
    for (const std::string& n : NombresForjados(catalogo_))
        lista.AddItem(n);
    NuevoForjado();
}

void FrmForjUnid2::NuevoForjado()
{
    Control& lista = At("ListFor");
    lista.AddItem(kNuevoForjado);
    lista.SetListIndex(lista.ListCount() - 1);
}

void FrmForjUnid2::ListFor_Click()
{
    const int i = At("ListFor").ListIndex();
    if (i < 0)
        return;
    for (int k = 0; k < kFilasFicha; ++k)
        At("OpFila", k).SetOptionValue(false);
    if (i < static_cast<int>(catalogo_.bloques.size())) {
        LeeForjado(i + 1);
        return;
    }
    At("TxFor").SetText(At("ListFor").List(i));
    At("Nlin").SetText("1");
    for (size_t k = 0; k < std::size(kGeometria); ++k)
        At(kGeometria[k]).SetText(kGeometriaNueva[k]);
    for (int r = 0; r < kFilasFicha; ++r) {
        At("TXFnombre", r).SetText("");
        for (std::string_view c : kCamposFicha)
            At(c, r).SetText("");
    }
    MuestraFilas(1);
}

void FrmForjUnid2::LeeForjado(int n)
{
    if (n < 1 || n > static_cast<int>(catalogo_.bloques.size()))
        return;
    PonSistema(catalogo_.bloques[static_cast<size_t>(n - 1)].sistema);
}

void FrmForjUnid2::PonSistema(const SistemaForjado& s)
{
    At("TxFor").SetText(s.nombre);
    for (size_t k = 0; k < std::size(kGeometria); ++k)
        At(kGeometria[k]).SetText(FormatoNum(s.geometria[k]));
    const int n = std::min(static_cast<int>(s.filas.size()), kFilasFicha);
    At("Nlin").SetText(std::to_string(std::max(n, 1)));
    for (int r = 0; r < kFilasFicha; ++r) {
        const bool hay = r < n;
        At("TXFnombre", r).SetText(hay ? s.filas[static_cast<size_t>(r)].nombre : "");
        for (size_t k = 0; k < kColumnasFicha; ++k)
            At(kCamposFicha[k], r).SetText(hay ? FormatoNum(s.filas[static_cast<size_t>(r)].valores[k]) : "");
    }
    MuestraFilas(std::max(n, 1));
}

void FrmForjUnid2::MuestraFilas(int n)
{
    At("Nlin").SetText(std::to_string(n));
    At("TxIndice").SetText(std::to_string(n));
    for (int r = 0; r < kFilasFicha; ++r) {
        const bool v = r < n;
        At("OpFila", r).SetVisible(v);
        At("TXFnombre", r).SetVisible(v);
        for (std::string_view c : kCamposFicha)
            At(c, r).SetVisible(v);
    }
}

void FrmForjUnid2::UCBmas_Click() { MuestraFilas(std::min(Filas() + 1, kFilasFicha)); }

void FrmForjUnid2::UCBmenos_Click()
{
    const int n = Filas();
    if (n <= 1)
        return;
    At("OpFila", n - 1).SetOptionValue(false);
    MuestraFilas(n - 1);
}

void FrmForjUnid2::UCBforjMas_Click()
{
    const int i = At("ListFor").ListIndex();
    if (i >= static_cast<int>(catalogo_.bloques.size())) {
        decl().ui.MsgBox(decl().Msg(kMsgGuardaNuevo), mb::Exclamation, "Aviso");
        return;
    }
    At("ListFor").SetListIndex(At("ListFor").ListCount() - 1);
}

void FrmForjUnid2::UCBforjMenos_Click()
{
    const int i = At("ListFor").ListIndex();
    if (i < 0 || i >= static_cast<int>(catalogo_.bloques.size()))
        return;
    if (BorraForjado(decl(), archivo_, i + 1))
        LeeListaForjados();
}

std::optional<SistemaForjado> FrmForjUnid2::SistemaDelPanel()
{
    Declaraciones& d = decl();
    SistemaForjado s;
    s.nombre = At("TxFor").Text();
    for (size_t k = 0; k < std::size(kGeometria); ++k)
        if (!LeeNumero(At(kGeometria[k]).Text(), s.geometria[k])) {
            // A hidden joist width (hollow-core slab) stands as 0.
            if (!At(kGeometria[k]).Visible() && At(kGeometria[k]).Text().empty())
                continue;
            d.ui.MsgBox(Mensaje(d, kMsgGeometriaNoNumero, {s.nombre}), mb::Exclamation, "Error");
            return std::nullopt;
        }
    for (int r = 0; r < Filas(); ++r) {
        FilaFicha f;
        f.nombre = At("TXFnombre", r).Text();
        for (size_t k = 0; k < kColumnasFicha; ++k)
            if (!LeeNumero(At(kCamposFicha[k], r).Text(), f.valores[k])) {
                d.ui.MsgBox(Mensaje(d, kMsgFilaNoNumero, {std::to_string(r + 1), s.nombre, std::string(kRotulosFicha[k])}),
                            mb::Exclamation, "Error");
                return std::nullopt;
            }
        s.filas.push_back(std::move(f));
    }
    return s;
}

bool FrmForjUnid2::GuardaForjado(int n)
{
    if (At("TxFor").Text().find_first_not_of(' ') == std::string::npos)
        return false;
    const std::optional<SistemaForjado> s = SistemaDelPanel();
    if (!s || !vardena::GuardaForjado(decl(), archivo_, n, *s))
        return false;
    LeeListaForjados();
    At("ListFor").SetListIndex(n - 1);
    return true;
}

void FrmForjUnid2::UCBguardar_Click() { GuardaForjado(std::max(0, At("ListFor").ListIndex()) + 1); }

void FrmForjUnid2::UCBcancela_Click()
{
    eleccion_.reset();
    Form_Unload();
}

void FrmForjUnid2::UCBelegir_Click()
{
    Declaraciones& d = decl();
    const int i = At("ListFor").ListIndex();
    int fila = -1;
    for (int r = 0; r < Filas(); ++r)
        if (At("OpFila", r).OptionValue())
            fila = r;
    if (i < 0 || i >= static_cast<int>(catalogo_.bloques.size()) || fila < 0) {
        d.ui.MsgBox(d.Msg(kMsgSeleccione), mb::Exclamation, "Tabla forjados");
        return;
    }
    // What the panel shows is chosen, read as numbers.
    const std::optional<SistemaForjado> s = SistemaDelPanel();
    if (!s)
        return;
    EleccionFicha e;
    e.tipo = Tipo();
    e.sistema = *s;
    e.numForjado = i + 1;
    e.fila = s->filas[static_cast<size_t>(fila)];
    e.numFila = fila + 1;
    eleccion_ = std::move(e);
    Form_Unload();
}

}  // namespace vardena
