#include "ground_masonry/Talud.h"

#include <algorithm>
#include <cmath>

#include "base/Texto.h"
#include "ground_masonry/Rellenos.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using P = PapelCroquis;

constexpr double kAnguloRecto = 90;
// The warning of an angle with no slope to draw, and its title.
constexpr int kMsgAnguloTalud = 1580;
constexpr int kMsgAtencion = 9;
// The longer side of the drawing and its margin, twips.
constexpr double kLado = 2400;
constexpr int kMargen = 150;

double CotaTalud(const Form& f, std::string_view campo, int index = -1)
{
    return ValComaCopy(f.At(campo, index).Text());
}

}  // namespace

std::optional<double> RecorridoTalud(double alto, double grados)
{
    if (!(grados > 0 && grados <= kAnguloRecto))
        return std::nullopt;
    const double a = grados * kPi / 180;
    // cos / sin is the reciprocal of the tangent without its pole at 90 degrees; the sine of an
    // angle above 0 and up to 90 is never 0.
    return alto * std::cos(a) / std::sin(a);
}

Talud::Talud(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    At("CmbTalud").onClick = [this](Control&) { Evento("CmbTalud_Click", [this] { CmbTalud_Click(); }); };
    for (Control* c : Members("TxCotaTalud")) {
        const int i = c->Index();
        c->onChange = [this, i](Control&) { Evento("TxCotaTalud_Change", [this, i] { TxCotaTalud_Change(i); }); };
    }
    At("chkEstrato").onClick = [this](Control&) { Evento("chkEstrato_Click", [this] { chkEstrato_Click(); }); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

void Talud::List1_Lee()
{
    List1_Click();
    Presenta();
}

void Talud::CargaPropia() { Presenta(); }

void Talud::Presenta()
{
    chkEstrato_Click();
    TxCotaTalud_Change(kAlturaTalud);
}

void Talud::CmbTalud_Click()
{
    AplicaTalud(*this, At("CmbTalud").ListIndex(), kCohesionTalud, decl().Unidades);
}

void Talud::TxCotaTalud_Change(int index)
{
    const Control& campo = At("TxCotaTalud", kAnguloTalud);
    const double grados = ValComaCopy(campo.Text());
    if (RecorridoTalud(1, grados)) {
        angulo_ = grados;
        return;
    }
    // Only a change of the angle itself is told of; the value stays as typed.
    if (index == kAnguloTalud) {
        const Declaraciones& d = decl();
        d.ui.MsgBox(Mensaje(d, kMsgAnguloTalud, {campo.Text()}), mb::Exclamation, d.Msg(kMsgAtencion));
    }
}

void Talud::chkEstrato_Click()
{
    At("TxCotaTalud", kEstratoTalud).SetEnabled(At("chkEstrato").CheckValue() != 0);
}

std::optional<Croquis> Talud::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PicTalud")
        return std::nullopt;
    // The slope from its crest (0, 0) down to its toe (run, H), cm, y downwards; the ground
    // stretches behind the crest and beyond the toe.
    const double H = std::max(CotaTalud(*this, "TxCotaTalud", kAlturaTalud), 10.0);
    const double L = RecorridoTalud(H, angulo_).value_or(0);
    const double meseta = std::max(H * 0.6, 60.0), F = H * 0.35;
    const double xmin = -meseta, xmax = L + meseta, ymin = -H * 0.25, ymax = H + F;
    EscalaCroquis e;
    Croquis c = LienzoEscalado(xmin, xmax, ymin, ymax, kLado, kMargen, e);
    auto poligono = [&](P papel, std::initializer_list<std::pair<double, double>> puntos) { PoligonoEscalado(c, papel, e, puntos); };
    poligono(P::Terreno, {{xmin, 0}, {0, 0}, {L, H}, {xmax, H}, {xmax, ymax}, {xmin, ymax}});
    if (At("chkEstrato").CheckValue() != 0) {
        const double espesor = std::clamp(CotaTalud(*this, "TxCotaTalud", kEstratoTalud), 1.0, F + H);
        poligono(P::Resalte, {{xmin, 0}, {0, 0}, {L, H}, {xmax, H}, {xmax, H + espesor}, {L, H + espesor},
                              {0, espesor}, {xmin, espesor}});
        c.Cota(e(xmin + meseta * 0.2, 0), e(xmin + meseta * 0.2, espesor), Formato0(CotaTalud(*this, "TxCotaTalud", kEstratoTalud)));
    }
    c.Linea(P::Superficie, e(xmin, 0), e(0, 0));
    c.Linea(P::Superficie, e(0, 0), e(L, H));
    c.Linea(P::Superficie, e(L, H), e(xmax, H));
    // The surcharge on the crest.
    const double flecha = H * 0.18;
    for (int i = 0; i <= 3; ++i) {
        const double x = xmin + meseta * (0.35 + 0.6 * i / 3);
        c.Flecha(P::Carga, e(x, -flecha), e(x, -1));
    }
    c.Linea(P::Carga, e(xmin + meseta * 0.35, -flecha), e(xmin + meseta * 0.95, -flecha));
    c.Texto(P::Carga, e(xmin + meseta * 0.65, -flecha * 1.25), "q");
    c.Linea(P::Cota, e(0, 0), e(L + meseta * 0.6, 0));
    c.Cota(e(L + meseta * 0.55, 0), e(L + meseta * 0.55, H), Formato0(CotaTalud(*this, "TxCotaTalud", kAlturaTalud)));
    c.Texto(P::Cota, e(L + meseta * 0.2, H - H * 0.1), Formato0(angulo_) + "º");
    return c;
}

std::string Talud::ResumenCalculo() const
{
    return "the slope's coordinates (10 cm), height and angle (90) were compared to no effect and the check step "
           "did nothing; every field keeps the value read";
}

}  // namespace vardena
