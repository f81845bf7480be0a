#include "concrete/VigHorm.h"

#include <algorithm>
#include <string>

#include "base/Texto.h"
#include "concrete/Hormigon.h"
#include "works/Declaraciones.h"
#include "works/VentanaError.h"

namespace vardena {

int RecubrimientoDeExposicion(int exposicion)
{
    // I, IIa, IIb: 30, 35, 40 mm; IIIa, IIIb, IV: 45 mm; IIIc: 50 mm.
    switch (exposicion) {
    case 0: return 3;
    case 1: return 4;
    case 2: return 5;
    case 5: return 7;
    default: return 6;
    }
}

VigHorm::VigHorm(Declaraciones& d, const TablaForm& tabla) : FormaViga(d, tabla)
{
    for (Control* c : Controls())
        if (c->Name() == "TextDviga") {
            const int i = c->Index();
            c->onLostFocus = [this, i](Control&) { Evento("TextDviga_LostFocus", [&] { TextDviga_LostFocus(i); }); };
        }
    At("CmbAmbGral").onClick = [this](Control&) { Evento("CmbAmbGral_Click", [&] { CmbAmbGral_Click(); }); };
    At("CmbPlanta").onClick = [this](Control&) { CmbPlanta_Click(); };
    // The modulus follows the general data's strength and the factors of the concrete by age.
    At("CmbHorm").onClick = [this](Control&) { decl().ModuloVigas = ModuloHormigonVigas(decl()); };
    At("ChTrans").onClick = [this](Control&) { Evento("ChTrans_Click", [&] { ChTrans_Click(); }); };
}

void VigHorm::CargaPropia()
{
    FormaViga::CargaPropia();
    ChTrans_Click();
    CmbPlanta_Click();
}

void VigHorm::CmbAmbGral_Click()
{
    At("CmbRecub").SetListIndex(RecubrimientoDeExposicion(At("CmbAmbGral").ListIndex()));
}

void VigHorm::CmbPlanta_Click()
{
    Declaraciones& d = decl();
    const int nivel = At("CmbPlanta").ListIndex();
    Control& izquierdo = At("ChPilIzq");
    Control& derecho = At("ChPilDer");
    // The roof has no columns below the beam's level.
    izquierdo.SetVisible(nivel != 0);
    derecho.SetVisible(nivel != 0);
    // While a record is read, what it stores stands: the level shows its supports only.
    if (d.Cargando != kFalse)
        return;
    Control& particion = At("cmbPart");
    if (nivel == 0) {
        // The roof carries no partitions.
        izquierdo.SetCheckValue(0);
        derecho.SetCheckValue(0);
        particion.SetListIndex(particion.ListCount() - 1);
        return;
    }
    if (nivel > d.NPlantasSobre)
        particion.SetListIndex(0);
    izquierdo.SetCheckValue(1);
    derecho.SetCheckValue(1);
}

void VigHorm::TextDviga_LostFocus(int index)
{
    Control& c = At("TextDviga", index);
    if (ValComaCopy(c.Text()) < 15)
        c.SetText("15");
}

void VigHorm::ChTrans_Click()
{
    const bool transversal = At("ChTrans").CheckValue() != 0;
    At("TxCota", 5).SetEnabled(transversal);
    At("TxCota", 6).SetEnabled(transversal);
}

std::optional<Croquis> VigHorm::CroquisDe(const Control& picture) const
{
    if (picture.Name() != "PctViga")
        return std::nullopt;
    auto valor = [&](const char* campo, int i) { return ValComaCopy(At(campo, i).Text()); };
    auto visible = [&](const char* campo, int i) { return At(campo, i).Visible(); };
    // Twips: the span between x0 and x1, cantilevers beyond, the beam's axis at yViga.
    constexpr int kAncho = 6400, kAlto = 2900, x0 = 900, x1 = 5500, yViga = 1300, canto = 160;
    constexpr int kAltoCarga = 700, kPilar = 500;
    Croquis c;
    c.ancho = kAncho;
    c.alto = kAlto;
    const bool vIzq = At("ChVigIzq").CheckValue() != 0, vDer = At("ChVigDer").CheckValue() != 0;
    const int izq = vIzq ? 250 : x0, der = vDer ? kAncho - 250 : x1;
    c.Rectangulo(PapelCroquis::Hormigon, izq, yViga - canto / 2, der, yViga + canto / 2);
    // The supports: a column below, or a bearing where the column's depth is 0.
    for (int lado = 0; lado < 2; ++lado) {
        const int x = lado == 0 ? x0 : x1;
        const bool pilar = At(lado == 0 ? "ChPilIzq" : "ChPilDer").CheckValue() != 0 && valor("TxtPil", lado) > 0;
        if (pilar)
            c.Rectangulo(PapelCroquis::Hormigon, x - 90, yViga + canto / 2, x + 90, yViga + canto / 2 + kPilar);
        else
            c.trazos.push_back({FiguraCroquis::Poligono, PapelCroquis::Hormigon,
                                {{x, yViga + canto / 2}, {x - 120, yViga + canto / 2 + 200}, {x + 120, yViga + canto / 2 + 200}}});
    }
    // The stretches with their distributed loads, drawn to the greatest of them.
    const int n = tramos_.Numero();
    const auto& dibujo = tramos_.Dibujo();
    const auto alturas = AlturasCargas(valor("TxtQ", 1), valor("TxtQ", 2), valor("TxtQ", 3));
    const int yCota = yViga + canto / 2 + kPilar + 250;
    for (int k = 0; k < n; ++k) {
        const auto& t = dibujo[static_cast<size_t>(k)];
        const int a = x0 + static_cast<int>(t.inicio * (x1 - x0));
        const int b = x0 + static_cast<int>((t.inicio + t.ancho) * (x1 - x0));
        const int alto = std::max(40, static_cast<int>(alturas[static_cast<size_t>(k)] * kAltoCarga));
        c.Rectangulo(PapelCroquis::Carga, a, yViga - canto / 2 - alto, b, yViga - canto / 2);
        c.Texto(PapelCroquis::Carga, {(a + b) / 2, yViga - canto / 2 - alto - 120},
                "q" + std::to_string(k + 1) + "=" + At("TxtQ", k + 1).Text());
        const double longitud = k == 0 ? (n == 1 ? tramos_.Actuales().L : tramos_.Actuales().a1)
                                       : k == 1 ? (n == 2 ? tramos_.Actuales().L - tramos_.Actuales().a1 : tramos_.Actuales().a2)
                                                : tramos_.Actuales().r;
        if (n > 1)
            c.Cota({a, yCota}, {b, yCota}, Formato00(longitud));
    }
    c.Cota({x0, yCota + (n > 1 ? 450 : 0)}, {x1, yCota + (n > 1 ? 450 : 0)}, "L=" + Formato00(valor("TxCota", 1)));
    // The point load P at mid-span, P1 and P2 at the cantilevers' ends.
    c.Flecha(PapelCroquis::Carga, {(x0 + x1) / 2, 80}, {(x0 + x1) / 2, yViga - canto / 2});
    for (int lado = 0; lado < 2; ++lado) {
        if (!(lado == 0 ? vIzq : vDer))
            continue;
        const int x = lado == 0 ? izq + 60 : der - 60, indice = lado == 0 ? 0 : 4;
        c.Flecha(PapelCroquis::Carga, {x, yViga - canto / 2 - 500}, {x, yViga - canto / 2});
        if (visible("TxCota", indice))
            c.Cota({lado == 0 ? izq : x1, yCota}, {lado == 0 ? x0 : der, yCota}, Formato00(valor("TxCota", indice)));
    }
    return c;
}

}  // namespace vardena
