#include "concrete/VigRegHorm.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "works/Declaraciones.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr int kOpciones = 9;
constexpr int kCotasHz = 6;    // txtCotHz: left cantilever, bays 1 to 4, right cantilever
constexpr int kCotasVert = 4;  // txtCotVert: cantilever across, slab bays 1 to 3

}  // namespace

EsquemaPortico EsquemaDe(int filaPortico, int filaForjado)
{
    return {4 - std::clamp(filaPortico, 0, 3), 3 - std::clamp(filaForjado, 0, 2)};
}

bool ExisteViga(const EsquemaPortico& e, int opcion)
{
    if (opcion < 0 || opcion >= kOpciones)
        return false;
    const int fila = opcion / 3, columna = opcion % 3;
    // The bay next to the end one is a bay of its own from 3 bays on, an inner bay from 4;
    // likewise the frames across the slab.
    return e.vanos >= (columna == 0 ? 1 : columna + 2) && e.vanosForjado >= (fila == 0 ? 1 : fila + 1);
}

VigRegHorm::VigRegHorm(Declaraciones& d, const TablaForm& tabla) : VigHorm(d, tabla)
{
    ReglaDeTramos(ReglaTramos::AlSalir);
    for (const char* lista : {"cmbTrPort", "cmbTrForj"})
        At(lista).onClick = [this, lista](Control&) {
            // The scheme shows what a record holds as it is read; the beam follows only a choice.
            ConVentanaError(decl(), std::string(lista) + "_Click", [&] { AjustaEsquema(false); });
            Evento(std::string(lista) + "_Click", [&] { AplicaViga(); });
        };
    for (Control* c : Controls()) {
        const int i = c->Index();
        if (c->Name() == "txtCotHz" || c->Name() == "txtCotVert") {
            const std::string origen = c->Name() + "_Change";
            c->onChange = [this, origen](Control&) { Evento(origen, [&] { AplicaViga(); }); };
        } else if (c->Name() == "optViga") {
            c->onClick = [this](Control&) { Evento("optViga_Click", [&] { AplicaViga(); }); };
        } else if (c->Name() == "TxtPil") {
            c->onLostFocus = [this, i](Control&) { Evento("TxtPil_LostFocus", [&] { TxtPil_LostFocus(i); }); };
        }
    }
    // The level's rules of the single beam first, then those of a beam in a frame.
    auto delaViga = At("CmbPlanta").onClick;
    At("CmbPlanta").onClick = [this, delaViga](Control& c) {
        if (delaViga)
            delaViga(c);
        ConVentanaError(decl(), "CmbPlanta_Click", [&] { CmbPlanta_Click(); });
    };
}

void VigRegHorm::CargaPropia()
{
    VigHorm::CargaPropia();
    if (VigaElegida() < 0)
        At("optViga", 0).SetOptionValue(true);
    AjustaEsquema(true);
    CmbPlanta_Click();
}

int VigRegHorm::VigaElegida() const
{
    for (int i = 0; i < kOpciones; ++i)
        if (At("optViga", i).OptionValue())
            return i;
    return -1;
}

EsquemaPortico VigRegHorm::Esquema() const
{
    return EsquemaDe(At("cmbTrPort").ListIndex(), At("cmbTrForj").ListIndex());
}

// The beams and lengths that the frame has are shown, the others hidden; with `eligeOtra`, a
// chosen beam that has gone gives way to the first one left.
void VigRegHorm::AjustaEsquema(bool eligeOtra)
{
    const EsquemaPortico e = Esquema();
    for (int i = 0; i < kOpciones; ++i)
        At("optViga", i).SetVisible(ExisteViga(e, i));
    for (int i = 1; i <= 4; ++i)
        At("txtCotHz", i).SetVisible(i <= e.vanos);
    for (int i = 1; i <= 3; ++i)
        At("txtCotVert", i).SetVisible(i <= e.vanosForjado);
    if (!eligeOtra)
        return;
    const int elegida = VigaElegida();
    if (elegida < 0 || !ExisteViga(e, elegida))
        for (int i = 0; i < kOpciones; ++i)
            if (ExisteViga(e, i)) {
                At("optViga", i).SetOptionValue(true);
                break;
            }
}

// Interface rule, no structural number: the scheme after a change of bays, then the chosen
// beam's lengths and ends from the frame's.
void VigRegHorm::AplicaViga()
{
    if (aplicando_)
        return;
    aplicando_ = true;
    struct Fin {
        bool& f;
        ~Fin() { f = false; }
    } fin{aplicando_};
    AjustaEsquema(true);
    CotasViga();
    CotasPortico();
}

// A bay of the frame or of the slab left at 0 takes the beam's length: the span TxCota(1)
// along, the slab's span TxCota(6) across; where that is 0 too, the design length.
void VigRegHorm::CotasViga()
{
    auto corrige = [&](const char* campo, int desde, int hasta, double propio) {
        for (int i = desde; i <= hasta; ++i) {
            Control& c = At(campo, i);
            if (!c.Visible() || ValComaCopy(c.Text()) != 0)
                continue;
            c.SetText(propio != 0 ? TextoLlano(propio) : c.designText);
        }
    };
    const EsquemaPortico e = Esquema();
    corrige("txtCotHz", 1, e.vanos, std::fabs(ValComaCopy(At("TxCota", 1).Text())));
    corrige("txtCotVert", 1, e.vanosForjado, std::fabs(ValComaCopy(At("TxCota", 6).Text())));
}

void VigRegHorm::PonLongitud(const char* campo, int index, double valor)
{
    Control& c = At(campo, index);
    if (ValComaCopy(c.Text()) != valor)
        c.SetText(TextoLlano(valor));
}

// The chosen beam's data from the frame: its bay is the span; at each end, the bay beside it
// makes it continuous, or at the frame's end its cantilever, if the frame has one; across,
// the slab's spans on either side of its frame.
void VigRegHorm::CotasPortico()
{
    const int elegida = VigaElegida();
    if (elegida < 0)
        return;
    const EsquemaPortico e = Esquema();
    const int fila = elegida / 3, bahia = elegida % 3 + 1;
    auto hz = [&](int i) { return ValComaCopy(At("txtCotHz", i).Text()); };
    auto vert = [&](int i) { return ValComaCopy(At("txtCotVert", i).Text()); };

    const double antes = ValComaCopy(At("TxCota", 1).Text());
    PonLongitud("TxCota", 1, hz(bahia));
    if (ValComaCopy(At("TxCota", 1).Text()) != antes)
        CambioCota(1);

    const double izquierda = bahia == 1 ? hz(0) : hz(bahia - 1);
    At("ChVigIzq").SetCheckValue(izquierda > 0 ? 1 : 0);
    if (izquierda > 0)
        PonLongitud("TxCota", 0, izquierda);
    const double derecha = bahia < e.vanos ? hz(bahia + 1) : hz(kCotasHz - 1);
    At("ChVigDer").SetCheckValue(derecha > 0 ? 1 : 0);
    if (derecha > 0)
        PonLongitud("TxCota", 4, derecha);

    PonLongitud("TxCota", 5, vert(fila));
    PonLongitud("TxCota", 6, vert(fila + 1));
}

// A frame has columns under its beams at every level, the roof's too: the column boxes show and,
// outside a reading, are set; the beam follows the level's frame again.
void VigRegHorm::CmbPlanta_Click()
{
    At("ChPilIzq").SetVisible(true);
    At("ChPilDer").SetVisible(true);
    if (decl().Cargando != kFalse)
        return;
    At("ChPilIzq").SetCheckValue(1);
    At("ChPilDer").SetCheckValue(1);
    AplicaViga();
}

// A column depth is a length in cm: what the field holds is written back as a plain number
// (empty or unreadable text becomes 0, the bearing without a column).
void VigRegHorm::TxtPil_LostFocus(int index)
{
    Control& c = At("TxtPil", index);
    c.SetText(TextoLlano(ValComaCopy(c.Text())));
}

std::optional<Croquis> VigRegHorm::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "Picture2")
        return VigHorm::CroquisDe(picture);
    // Twips: the columns along the frame every kVano after the left cantilever, the frames
    // across the slab every kLuz below the cantilever across.
    constexpr int kVuelo = 500, kVano = 1100, kLuz = 650, x0 = 700, y0 = 800, grueso = 70;
    const EsquemaPortico e = Esquema();
    const int elegida = VigaElegida();
    Croquis c;
    c.ancho = x0 + 4 * kVano + kVuelo + 400;
    c.alto = y0 + 3 * kLuz + 500;
    auto x = [&](int columna) { return x0 + columna * kVano; };
    auto y = [&](int portico) { return y0 + portico * kLuz; };
    auto texto = [&](const char* campo, int i) { return TextoLlano(ValComaCopy(At(campo, i).Text())); };
    const bool vueloIzq = ValComaCopy(texto("txtCotHz", 0)) > 0, vueloDer = ValComaCopy(texto("txtCotHz", 5)) > 0;
    const bool vueloFrente = ValComaCopy(texto("txtCotVert", 0)) > 0;
    // The beams of each frame: bays that the frame has solid, the others dashed.
    for (int p = 0; p <= 3; ++p) {
        const bool portico = p <= e.vanosForjado;
        for (int v = 1; v <= 4; ++v) {
            if (portico && v <= e.vanos)
                c.Rectangulo(PapelCroquis::Hormigon, x(v - 1), y(p) - grueso / 2, x(v), y(p) + grueso / 2);
            else
                c.Linea(PapelCroquis::Ausente, {x(v - 1), y(p)}, {x(v), y(p)});
        }
        if (!portico)
            continue;
        if (vueloIzq)
            c.Linea(PapelCroquis::Hormigon, {x(0) - kVuelo, y(p)}, {x(0), y(p)});
        if (vueloDer)
            c.Linea(PapelCroquis::Hormigon, {x(e.vanos), y(p)}, {x(e.vanos) + kVuelo, y(p)});
        for (int v = 0; v <= e.vanos; ++v)
            c.Rectangulo(PapelCroquis::Hormigon, x(v) - 60, y(p) - 60, x(v) + 60, y(p) + 60);
    }
    // The slab's edge over the cantilever across.
    if (vueloFrente)
        c.Linea(PapelCroquis::Hormigon, {x(0), y(0) - kLuz / 2}, {x(e.vanos), y(0) - kLuz / 2});
    // The nine beams to choose, numbered; the chosen one stands out.
    for (int i = 0; i < kOpciones; ++i) {
        const int p = i / 3, v = i % 3 + 1;
        const bool existe = ExisteViga(e, i);
        if (i == elegida)
            c.Rectangulo(PapelCroquis::Carga, x(v - 1) + 70, y(p) - grueso, x(v) - 70, y(p) + grueso);
        c.Texto(existe ? PapelCroquis::Cota : PapelCroquis::Ausente, {(x(v - 1) + x(v)) / 2, y(p) + 190},
                std::to_string(i + 1));
    }
    // The bays along the top, the cantilevers under the last frame (their lines are short for
    // a text beside the bays'), the slab's bays across the left side.
    const int yCota = y0 - kLuz / 2 - 220, yVuelos = y(3) + 330;
    if (vueloIzq)
        c.Cota({x(0) - kVuelo, yVuelos}, {x(0), yVuelos}, texto("txtCotHz", 0));
    for (int v = 1; v <= e.vanos; ++v)
        c.Cota({x(v - 1), yCota}, {x(v), yCota}, texto("txtCotHz", v));
    if (vueloDer)
        c.Cota({x(e.vanos), yVuelos}, {x(e.vanos) + kVuelo, yVuelos}, texto("txtCotHz", 5));
    if (vueloFrente)
        c.Cota({x0 - kVuelo - 80, y(0) - kLuz / 2}, {x0 - kVuelo - 80, y(0)}, texto("txtCotVert", 0));
    for (int p = 1; p <= e.vanosForjado; ++p)
        c.Cota({x0 - kVuelo - 80, y(p - 1)}, {x0 - kVuelo - 80, y(p)}, texto("txtCotVert", p));
    return c;
}

}  // namespace vardena
