#include "frame/Tramos.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "base/VbFormat.h"
#include "works/Declaraciones.h"
#include "works/VentanaError.h"

namespace vardena {

Tramos AjustaTramos(double L, double a1, double a2, int cambiado)
{
    Tramos t{std::fabs(L), std::fabs(a1), std::fabs(a2), 0};
    if (t.L - t.a1 - t.a2 < 0) {
        if (cambiado != 1)
            t.L = t.a1 + t.a2;
        else
            t.a1 = t.a2 = t.L / 2;
    }
    t.r = t.L - t.a1 - t.a2;
    return t;
}

std::array<TramoDibujado, 3> DibujoTramos(int n, const Tramos& t)
{
    n = std::clamp(n, 1, 3);
    const double tramos[3] = {n == 1 ? t.L : t.a1, n == 2 ? t.L - t.a1 : t.a2, t.L - t.a1 - t.a2};
    double dibujados[3] = {};
    double total = 0;
    for (int i = 0; i < n; ++i) {
        // A stretch under a tenth of the span is drawn as a tenth; its length stays as it is.
        dibujados[i] = t.L > 0 && std::fabs(tramos[i]) / t.L < 0.1 ? 0.1 * t.L : std::fabs(tramos[i]);
        total += dibujados[i];
    }
    std::array<TramoDibujado, 3> out{};
    double inicio = 0;
    for (int i = 0; i < n && total > 0; ++i) {
        out[static_cast<size_t>(i)] = {inicio / total, dibujados[i] / total};
        inicio += dibujados[i];
    }
    return out;
}

std::array<double, 3> AlturasCargas(double q1, double q2, double q3)
{
    const double q[3] = {std::fabs(q1), std::fabs(q2), std::fabs(q3)};
    double maximo = std::max({q[0], q[1], q[2]});
    if (maximo == 0)
        maximo = 0.0001;
    return {q[0] / maximo, q[1] / maximo, q[2] / maximo};
}

std::string TextoLlano(double valor)
{
    std::string texto = VbStr(valor);
    texto.erase(0, texto.find_first_not_of(' '));
    return texto;
}

void FiltraTeclaNumero(int& keyAscii)
{
    const bool pasa = keyAscii < 32 || (keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == ',' ||
                      keyAscii == '-';
    if (!pasa)
        keyAscii = 0;
}

int EditorTramos::Numero() const
{
    return std::clamp(form_.At("CmTramos").ListIndex() + 1, 1, 3);
}

double EditorTramos::Cota(int index, bool escribeOcultas)
{
    Control& c = form_.At("TxCota", index);
    // A hidden stretch counts 0; a change of a length also writes that 0 into it.
    if ((index == 2 || index == 3) && !c.Visible()) {
        if (escribeOcultas && c.Text() != "0")
            Escribe(index, 0);
        return 0;
    }
    return std::fabs(ValComaCopy(c.Text()));
}

void EditorTramos::Escribe(int index, double valor)
{
    const bool antes = dentro_;
    dentro_ = true;
    form_.At("TxCota", index).SetText(TextoLlano(valor));
    dentro_ = antes;
}

void EditorTramos::CambioCota(int index)
{
    if (form_.decl().Cargando != kFalse || dentro_)
        return;
    if (ValComaCopy(form_.At("TxCota", index).Text()) == 0)
        return;
    dentro_ = true;
    const double L = Cota(1, true), a1 = Cota(2, true), a2 = Cota(3, true);
    const Tramos t = AjustaTramos(L, a1, a2, index);
    const bool redibuja = t.a1 != actuales_.a1 || t.a2 != actuales_.a2 || t.r != actuales_.r;
    if (L - a1 - a2 < 0) {
        if (index != 1) {
            Escribe(1, t.L);
        } else {
            Escribe(2, t.a1);
            Escribe(3, t.a2);
        }
    }
    actuales_ = t;
    dentro_ = false;
    if (redibuja)
        CambioNumero();
}

void EditorTramos::CambioNumero()
{
    const int n = Numero();
    // The stretches over n, with their loads and lengths, are hidden.
    for (int k = 1; k <= 3; ++k)
        if (Control* q = form_.Find("TxtQ", k))
            q->SetVisible(k <= n);
    form_.At("TxCota", 2).SetVisible(n >= 2);
    form_.At("TxCota", 3).SetVisible(n >= 3);
    Tramos t{Cota(1, false), Cota(2, false), Cota(3, false), 0};
    t.r = t.L - t.a1 - t.a2;
    actuales_ = t;
    dibujo_ = DibujoTramos(n, t);
}

FormaViga::FormaViga(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla), tramos_(*this)
{
    for (Control* c : Controls())
        if (c->Name() == "TxCota") {
            const int i = c->Index();
            c->onChange = [this, i](Control&) {
                // The editor itself skips a change while the form is loading.
                if (regla_ == ReglaTramos::AlCambiar)
                    ConVentanaError(decl(), "TxCota_Change", [&] { CambioCota(i); });
            };
            c->onLostFocus = [this, i](Control&) {
                if (regla_ == ReglaTramos::AlSalir)
                    ConVentanaError(decl(), "TxCota_LostFocus", [&] { CambioCota(i); });
            };
            c->onKeyPress = [this](Control&, int& key) {
                if (regla_ == ReglaTramos::AlSalir)
                    FiltraTeclaNumero(key);
            };
        }
    At("CmTramos").onClick = [this](Control&) {
        ConVentanaError(decl(), "CmTramos_Click", [&] { tramos_.CambioNumero(); });
    };
}

}  // namespace vardena
