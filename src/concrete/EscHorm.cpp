#include "concrete/EscHorm.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "base/Texto.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

// Each kind's picture, the frame that holds its data, its lengths and its ends (the option
// arrays of "Apoyado", "Continuidad", "Empotrado"), in the order of OptLosa.
struct DatosTipo {
    const char* picture;
    const char* marco;
    const char* cotas;
    std::array<const char*, 3> extremos;
};
constexpr DatosTipo kTipos[] = {
    {"PictH1", "UCframeH1", "TxCotaH1", {"OptH1izq", "OptH1der", nullptr}},
    {"PictHD", "UCframeDesc", "TxCotaDesc", {"OptDApoIzq", "OptDApoDer", nullptr}},
    {"PictH2", "UCframeH2", "TxCotaH2", {"OptH2izqI", "OptH2der", "OptH2izqS"}},
    {"PictRampa", "UCframeRampa", "TxCotaRampa", {"OptRampaApoIzq", "OptRampaApoDer", nullptr}},
};

// The loads are typed in kN/m2 and shown in kg/m2 in the technical system: 1 kN/m2 = 100 kg/m2.
constexpr double kKgPorKN = 100;

enum class Extremo { Apoyado = 0, Continuidad = 1, Empotrado = 2 };

}  // namespace

EscHorm::EscHorm(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    for (Control* op : Members("OptLosa")) {
        const int i = op->Index();
        op->onClick = [this, i](Control&) {
            PresentaTipo();
            Evento("OptLosa_Click", [this, i] { OptLosa_Click(i); });
        };
    }
    At("TxtCanto", 0).onChange = [this](Control&) { PoneCanto(); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

std::optional<TipoLosa> EscHorm::Tipo() const
{
    if (const std::optional<int> i = OpcionElegida("OptLosa", 4))
        return static_cast<TipoLosa>(*i);
    return std::nullopt;
}

void EscHorm::PresentaTipo()
{
    const std::optional<TipoLosa> t = Tipo();
    for (int k = 0; k < 4; ++k) {
        const bool este = t && static_cast<int>(*t) == k;
        At(kTipos[k].picture).SetVisible(este);
        if (Control* marco = Find(kTipos[k].marco))
            marco->SetVisible(este);
    }
    // The landing rows: the first for the stair with a landing, the second, its landing between
    // the flights, for the two-flight stair.
    const bool descanso1 = t == TipoLosa::Descanso, descanso2 = t == TipoLosa::DosTramos;
    for (Control* c : {Find("Label3"), Find("TxtCanto", 1), Find("txtAncho", 1)})
        if (c)
            c->SetVisible(descanso1);
    for (Control* c : {Find("Label7"), Find("TxtCanto", 2), Find("txtAncho", 2)})
        if (c)
            c->SetVisible(descanso2);
}

void EscHorm::OptLosa_Click(int index)
{
    // The landing between two flights side by side is as wide as both and the gap between them.
    if (index == static_cast<int>(TipoLosa::DosTramos))
        At("txtAncho", 2).SetText(Formato00Punto(2 * ValComaCopy(At("txtAncho", 0).Text()) + 0.1));
}

void EscHorm::PoneCanto()
{
    if (Control* lb = Find("LbCanto"))
        lb->SetCaption(At("TxtCanto", 0).Text());
}

void EscHorm::CargaPropia()
{
    Declaraciones& d = decl();
    // The lengths in two decimals.
    for (const DatosTipo& t : kTipos)
        for (Control* c : Members(t.cotas))
            c->SetText(Formato00(ValComaCopy(c->Text())));
    // The loads in the work's units: the designed kN/m2, or kg/m2 in the technical system.
    const bool tecnico = d.Unidades == 1;
    if (Control* lb = Find("Label10"))
        lb->SetCaption(tecnico ? "kg/m2" : "kN/m2");
    if (tecnico)
        for (const char* campo : {"txtSobrUso", "txtSolado"}) {
            Control& c = At(campo);
            c.SetText(FormatoNum(ValComaCopy(c.Text()) * kKgPorKN));
        }
    PresentaTipo();
    PoneCanto();
}

void EscHorm::List1_Lee()
{
    List1_Click();
    // The record was read under Cargando: the window follows the kind and the depth read.
    PresentaTipo();
    PoneCanto();
}

void EscHorm::Comprueba(const DatosComprobacion& datos)
{
    bandera_ = kTrue;
    ElementForm::Comprueba(datos);
}

// ---- Sketches ----

std::optional<Croquis> EscHorm::CroquisDe(const Control& picture) const
{
    int tipo = -1;
    for (int k = 0; k < 4; ++k)
        if (picture.Name() == kTipos[k].picture)
            tipo = k;
    if (tipo < 0)
        return std::nullopt;
    const DatosTipo& datos = kTipos[tipo];
    // Lengths in m, drawn at 600 twips a metre, each within 0 and 8 m.
    auto m = [&](int i) { return std::clamp(std::abs(ValComaCopy(At(datos.cotas, i).Text())), 0.0, 8.0); };
    auto tw = [](double v) { return static_cast<int>(v * 600); };
    // The slab's profile along its upper face, in metres from the lower left end (y upwards), and
    // the horizontal stretches to dimension.
    std::vector<std::array<double, 2>> perfil;
    std::vector<std::array<double, 3>> cotas;  // from x, to x, value
    switch (static_cast<TipoLosa>(tipo)) {
    case TipoLosa::Tramo:
        perfil = {{0, 0}, {m(0), 0}, {m(0) + m(1), m(3)}, {m(0) + m(1) + m(2), m(3)}};
        cotas = {{0, m(0), m(0)}, {m(0), m(0) + m(1), m(1)}, {m(0) + m(1), m(0) + m(1) + m(2), m(2)}};
        break;
    case TipoLosa::Descanso:
        perfil = {{0, 0}, {m(0), m(3)}, {m(0) + m(1), m(3)}, {m(0) + m(1) + m(2), m(3) + m(4)}};
        cotas = {{0, m(0), m(0)}, {m(0), m(0) + m(1), m(1)}, {m(0) + m(1), m(0) + m(1) + m(2), m(2)}};
        break;
    case TipoLosa::DosTramos:
        // The lower flight up to the landing, the upper one coming back over it.
        perfil = {{0, 0}, {m(0), 0}, {m(0) + m(1), m(3)}, {m(0) + m(1) + m(2), m(3)}};
        cotas = {{0, m(0), m(0)}, {m(0), m(0) + m(1), m(1)}, {m(0) + m(1), m(0) + m(1) + m(2), m(2)}};
        break;
    case TipoLosa::Rampa:
        perfil = {{0, 0}, {m(0), m(1)}};
        cotas = {{0, m(0), m(0)}};
        break;
    }
    double ancho = 0, alto = 0;
    for (const auto& p : perfil) {
        ancho = std::max(ancho, p[0]);
        alto = std::max(alto, p[1]);
    }
    const bool dos = static_cast<TipoLosa>(tipo) == TipoLosa::DosTramos;
    if (dos)
        alto = m(3) + m(4);
    const int canto = std::clamp(tw(std::abs(ValComaCopy(At("TxtCanto", 0).Text()))), 60, 400);
    constexpr int kMargen = 400, kCotas = 450;
    Croquis c;
    c.ancho = 2 * kMargen + std::max(tw(ancho), 600);
    c.alto = 2 * kMargen + tw(alto) + canto + kCotas;
    const int x0 = kMargen, yBase = kMargen + tw(alto);
    auto punto = [&](const std::array<double, 2>& p) { return PuntoCroquis{x0 + tw(p[0]), yBase - tw(p[1])}; };
    auto losa = [&](const std::vector<std::array<double, 2>>& tramo) {
        TrazoCroquis t{FiguraCroquis::Poligono, PapelCroquis::Hormigon, {}};
        for (const auto& p : tramo)
            t.puntos.push_back(punto(p));
        for (auto it = tramo.rbegin(); it != tramo.rend(); ++it) {
            PuntoCroquis q = punto(*it);
            q.y += canto;
            t.puntos.push_back(q);
        }
        c.trazos.push_back(std::move(t));
    };
    losa(perfil);
    if (dos)
        losa({{m(0) + m(1), m(3)}, {m(0), m(3) + m(4)}, {0, m(3) + m(4)}});
    // How each end is held: a bearing, the slab going on, or a wall it is built into.
    auto extremo = [&](const char* opciones, PuntoCroquis p, int hacia) {
        const Extremo e = static_cast<Extremo>(OpcionElegida(opciones, 3).value_or(0));
        switch (e) {
        case Extremo::Apoyado:
            c.trazos.push_back({FiguraCroquis::Poligono, PapelCroquis::Resalte,
                                {{p.x, p.y + canto}, {p.x - 110, p.y + canto + 190}, {p.x + 110, p.y + canto + 190}}});
            break;
        case Extremo::Continuidad:
            c.Linea(PapelCroquis::Superficie, {p.x, p.y + canto / 2}, {p.x + hacia * 300, p.y + canto / 2});
            break;
        case Extremo::Empotrado:
            c.Rectangulo(PapelCroquis::Terreno, hacia > 0 ? p.x : p.x - 160, p.y - 200, hacia > 0 ? p.x + 160 : p.x,
                         p.y + canto + 200);
            break;
        }
    };
    extremo(datos.extremos[0], punto(perfil.front()), -1);
    extremo(datos.extremos[1], punto(perfil.back()), 1);
    if (datos.extremos[2])
        extremo(datos.extremos[2], punto({0, m(3) + m(4)}), -1);
    const int yCota = yBase + canto + kCotas / 2 + 100;
    for (const auto& k : cotas)
        if (k[1] > k[0])
            c.Cota({x0 + tw(k[0]), yCota}, {x0 + tw(k[1]), yCota}, Formato00(k[2]));
    return c;
}

}  // namespace vardena
