#include "concrete/VigPared.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "works/Declaraciones.h"

namespace vardena {

VigPared::VigPared(Declaraciones& d, const TablaForm& tabla) : FormaViga(d, tabla)
{
    for (Control* c : Controls())
        if (c->Name() == "TxtQ") {
            const int i = c->Index();
            c->onKeyPress = [](Control&, int& key) { FiltraTeclaNumero(key); };
            c->onLostFocus = [this, i](Control&) { Evento("TxtQ_LostFocus", [&] { TxtQ_LostFocus(i); }); };
        }
}

// TxCota(0) and TxCota(4) are the spans of the contiguous beams: a span above 0 makes the beam
// continuous on that side, 0 leaves it free. The other lengths keep the stretch rules.
void VigPared::CambioCota(int index)
{
    if (index != 0 && index != 4) {
        tramos_.CambioCota(index);
        return;
    }
    if (decl().Cargando != kFalse)
        return;
    At(index == 0 ? "ChVigIzq" : "ChVigDer").SetCheckValue(ValComaCopy(At("TxCota", index).Text()) > 0 ? 1 : 0);
}

// A load is written back as a plain number when it is left ("2,50" becomes "2.5", nothing 0);
// the load shapes take their heights from it.
void VigPared::TxtQ_LostFocus(int index)
{
    Control& c = At("TxtQ", index);
    c.SetText(TextoLlano(ValComaCopy(c.Text())));
}

DatosComprobacion VigPared::LeeDatosComprobacion()
{
    DatosComprobacion datos = FormaViga::LeeDatosComprobacion();
    // The lengths the check would take, in metres; the comparisons with the limits of a deep
    // beam (a span under 2.5 times the depth, columns up to 200 cm deep) stop nothing.
    const double luz = std::fabs(ValComaCopy(At("TxCota", 1).Text()));
    const double canto = ValComaCopy(At("TextDviga", 1).Text()) / 100;
    [[maybe_unused]] const bool granCanto = canto > 0 && luz / canto < 2.5;
    for (int i = 0; i < 2; ++i)
        [[maybe_unused]] const bool pilarExcesivo = ValComaCopy(At("TxtPil", i).Text()) > 200;
    return datos;
}

std::optional<Croquis> VigPared::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PctViga")
        return std::nullopt;
    auto valor = [&](const char* campo, int i) { return ValComaCopy(At(campo, i).Text()); };
    auto marcada = [&](const char* campo) { return At(campo).CheckValue() != 0; };
    // Twips: the span between x0 and x1; the depth drawn to the same scale, within bounds so
    // that a very deep or a very shallow beam still fits and reads.
    constexpr int kAncho = 6400, x0 = 1300, x1 = 5100, yArriba = 1000, kContigua = 800, kPilar = 450;
    const double luz = std::fabs(valor("TxCota", 1));
    const double relacion = luz > 0 ? std::fabs(valor("TextDviga", 1)) / 100 / luz : 0.5;
    const int canto = std::clamp(static_cast<int>(relacion * (x1 - x0)), 350, 1900);
    const int yAbajo = yArriba + canto;
    Croquis c;
    c.ancho = kAncho;
    c.alto = yAbajo + kPilar + 1100;
    c.Rectangulo(PapelCroquis::Hormigon, x0, yArriba, x1, yAbajo);
    // The contiguous beams, cut short, and the supports below the ends.
    if (marcada("ChVigIzq"))
        c.Rectangulo(PapelCroquis::Hormigon, x0 - kContigua, yArriba, x0, yAbajo);
    if (marcada("ChVigDer"))
        c.Rectangulo(PapelCroquis::Hormigon, x1, yArriba, x1 + kContigua, yAbajo);
    for (int lado = 0; lado < 2; ++lado) {
        const int x = lado == 0 ? x0 : x1;
        if (marcada(lado == 0 ? "ChPilIzq" : "ChPilDer") && valor("TxtPil", lado) > 0)
            c.Rectangulo(PapelCroquis::Hormigon, x - 110, yAbajo, x + 110, yAbajo + kPilar);
        else
            c.trazos.push_back({FiguraCroquis::Poligono, PapelCroquis::Hormigon,
                                {{x, yAbajo}, {x - 130, yAbajo + 220}, {x + 130, yAbajo + 220}}});
    }
    // The distributed loads of the stretches, on the top face or hung from the bottom one.
    const bool abajo = marcada("Check1");
    const int n = tramos_.Numero();
    const auto& dibujo = tramos_.Dibujo();
    const auto alturas = AlturasCargas(valor("TxtQ", 1), valor("TxtQ", 2), valor("TxtQ", 3));
    constexpr int kAltoCarga = 600;
    const int yCota = yAbajo + kPilar + 300;
    const vardena::Tramos& t = tramos_.Actuales();
    for (int k = 0; k < n; ++k) {
        const auto& d = dibujo[static_cast<size_t>(k)];
        const int a = x0 + static_cast<int>(d.inicio * (x1 - x0));
        const int b = x0 + static_cast<int>((d.inicio + d.ancho) * (x1 - x0));
        const int alto = std::max(40, static_cast<int>(alturas[static_cast<size_t>(k)] * kAltoCarga));
        if (abajo)
            c.Rectangulo(PapelCroquis::Carga, a, yAbajo - alto, b, yAbajo);
        else
            c.Rectangulo(PapelCroquis::Carga, a, yArriba - alto, b, yArriba);
        c.Texto(PapelCroquis::Carga, {(a + b) / 2, abajo ? yAbajo - alto - 120 : yArriba - alto - 120},
                "q" + std::to_string(k + 1) + "=" + At("TxtQ", k + 1).Text());
        const double longitud = k == 0 ? (n == 1 ? t.L : t.a1) : k == 1 ? (n == 2 ? t.L - t.a1 : t.a2) : t.r;
        if (n > 1)
            c.Cota({a, yCota}, {b, yCota}, Formato00(longitud));
    }
    c.Cota({x0, yCota + (n > 1 ? 420 : 0)}, {x1, yCota + (n > 1 ? 420 : 0)}, "L=" + Formato00(valor("TxCota", 1)));
    // The point loads P1 and P2, at the ends of the first two stretches.
    if (marcada("ChkPuntual"))
        for (int k = 0; k < 2 && k < n - 1; ++k) {
            const auto& d = dibujo[static_cast<size_t>(k)];
            const int x = x0 + static_cast<int>((d.inicio + d.ancho) * (x1 - x0));
            c.Flecha(PapelCroquis::Carga, {x, yArriba - kAltoCarga - 250}, {x, yArriba});
            c.Texto(PapelCroquis::Carga, {x, yArriba - kAltoCarga - 350}, "P" + std::to_string(k + 1) + "=" + At("TxtQ", k == 0 ? 0 : 4).Text());
        }
    // The spans of the contiguous beams and the depth.
    if (marcada("ChVigIzq"))
        c.Cota({x0 - kContigua, yCota}, {x0, yCota}, Formato00(valor("TxCota", 0)));
    if (marcada("ChVigDer"))
        c.Cota({x1, yCota}, {x1 + kContigua, yCota}, Formato00(valor("TxCota", 4)));
    c.Cota({x1 + kContigua + 250, yArriba}, {x1 + kContigua + 250, yAbajo}, "h=" + At("TextDviga", 1).Text());
    return c;
}

}  // namespace vardena
