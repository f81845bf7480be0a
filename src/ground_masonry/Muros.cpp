#include "ground_masonry/Muros.h"

#include "base/Texto.h"
#include "ground_masonry/Fabrica.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

constexpr int kMsgEspesor1 = 1105;
constexpr int kMsgEspesor2 = 1106;
constexpr int kMsgTituloEspesor = 1107;

bool EsEspesor(int index)
{
    for (int i : kCotasEspesorMuro)
        if (i == index)
            return true;
    return false;
}

using P = PapelCroquis;

// The plan of a wall's section: one or two leaves, and a pilaster on the inner face.
Croquis Seccion(int tipo)
{
    constexpr int kAncho = 2400, kAlto = 1400;
    Croquis c{kAncho, kAlto, {}};
    const bool dosHojas = tipo == 1 || tipo == 3;
    const bool pilastra = tipo >= 2;
    const int y0 = 300;
    c.Rectangulo(P::Fabrica, 100, y0, kAncho - 100, y0 + 300);
    int interior = y0 + 300;
    if (dosHojas) {
        c.Rectangulo(P::Fabrica, 100, y0 + 450, kAncho - 100, y0 + 650);
        interior = y0 + 650;
        c.Cota({kAncho - 40, y0 + 300}, {kAncho - 40, y0 + 450}, "c");
    }
    if (pilastra) {
        c.Rectangulo(P::Fabrica, 950, dosHojas ? y0 + 300 : interior, 1450, interior + 350);
        c.Cota({950, interior + 500}, {1450, interior + 500}, "b");
        c.Cota({1600, interior}, {1600, interior + 350}, "p");
    }
    c.Cota({40, y0}, {40, y0 + 300}, "t");
    return c;
}

}  // namespace

Muros::Muros(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    for (Control* c : Members("TxtCota")) {
        const int i = c->Index();
        c->onLostFocus = [this, i](Control&) { Evento("TxtCota_LostFocus", [this, i] { TxtCota_LostFocus(i); }); };
        c->onChange = [this, i](Control&) { Evento("TxtCota_Change", [this, i] { TxtCota_Change(i); }); };
    }
    for (Control* c : Members("OpTramo")) {
        const int i = c->Index();
        c->onClick = [this, i](Control&) { Evento("OpTramo_Click", [this, i] { OpTramo_Click(i); }); };
    }
    if (Control* b = Find("cmdDefRes"))
        b->onClick = [this](Control&) { Evento("cmdDefRes_Click", [this] { cmdDefRes_Click(); }); };
}

void Muros::CargaPropia()
{
    if (const std::string densidad = TomaDensidadParaMuros(decl()); !densidad.empty())
        At("TxtDensidad").SetText(densidad);
    // The slenderness verdict belongs to the check, which this program does not make.
    if (Control* lb = Find("LbInadmisible"))
        lb->SetVisible(false);
    SeleccPicSecc();
}

void Muros::TxtCota_LostFocus(int index)
{
    if (!EsEspesor(index))
        return;
    const Declaraciones& d = decl();
    if (ValComaCopy(At("TxtCota", index).Text()) <= kEspesorMinimoMuro)
        d.ui.MsgBox(d.Msg(kMsgEspesor1) + "\r" + d.Msg(kMsgEspesor2), mb::Exclamation, d.Msg(kMsgTituloEspesor));
}

void Muros::TxtCota_Change(int)
{
    if (enCambioCota_)
        return;
    enCambioCota_ = true;
    // Which coordinates follow which is not laid down for this program: no coordinate is
    // rewritten, and the guard stands for the day one is.
    enCambioCota_ = false;
}

void Muros::OpTramo_Click(int) { SeleccPicSecc(); }

void Muros::SeleccPicSecc()
{
    const int tramo = OpcionElegida("OpTramo", kSeccionesMuro).value_or(0);
    for (Control* p : Members("PctSeccMuro"))
        p->SetVisible(p->Index() == tramo);
}

void Muros::cmdDefRes_Click() { AbreFabrica(*this); }

std::optional<Croquis> Muros::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PctSeccMuro" || picture.Index() < 0 || picture.Index() >= kSeccionesMuro)
        return std::nullopt;
    return Seccion(picture.Index());
}

std::string Muros::ResumenCalculo() const
{
    return "the minimums of TxtCota (0.5 m, 0.2 m, 10 cm) were compared to no effect and the check step did "
           "nothing; every field keeps the value read";
}

}  // namespace vardena
