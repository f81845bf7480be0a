#include "concrete/VigHorm.h"

#include <string>

#include "base/Texto.h"
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

std::unique_ptr<Form> VigHorm::Crea(Declaraciones& d, const TablaForm& tabla)
{
    return std::make_unique<VigHorm>(d, tabla);
}

VigHorm::VigHorm(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla), tramos_(*this)
{
    for (Control* c : Controls()) {
        if (c->Name() == "TxCota") {
            const int i = c->Index();
            c->onChange = [this, i](Control&) {
                // The editor itself skips a change while the form is loading.
                ConVentanaError(decl(), "TxCota_Change", [&] { tramos_.CambioCota(i); });
            };
        } else if (c->Name() == "TextDviga") {
            const int i = c->Index();
            c->onLostFocus = [this, i](Control&) { Evento("TextDviga_LostFocus", [&] { TextDviga_LostFocus(i); }); };
        }
    }
    At("CmTramos").onClick = [this](Control&) {
        ConVentanaError(decl(), "CmTramos_Click", [&] { tramos_.CambioNumero(); });
    };
    At("CmbAmbGral").onClick = [this](Control&) { Evento("CmbAmbGral_Click", [&] { CmbAmbGral_Click(); }); };
    At("CmbPlanta").onClick = [this](Control&) { CmbPlanta_Click(); };
    At("ChTrans").onClick = [this](Control&) { Evento("ChTrans_Click", [&] { ChTrans_Click(); }); };
}

void VigHorm::Evento(std::string_view origen, const std::function<void()>& rutina)
{
    if (decl().Cargando != kFalse)
        return;
    ConVentanaError(decl(), origen, rutina);
}

void VigHorm::CargaPropia()
{
    tramos_.CambioNumero();
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

}  // namespace vardena
