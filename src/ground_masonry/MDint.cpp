#include "ground_masonry/MDint.h"

#include "ground_masonry/Fabrica.h"

namespace vardena {

MDint::MDint(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    At("CmbDintel").onClick = [this](Control&) { Evento("CmbDintel_Click", [this] { CmbDintel_Click(); }); };
    if (Control* b = Find("cmdDefRes"))
        b->onClick = [this](Control&) { Evento("cmdDefRes_Click", [this] { cmdDefRes_Click(); }); };
}

void MDint::CargaPropia() { CmbDintel_Click(); }

void MDint::CmbDintel_Click()
{
    const int material = At("CmbDintel").ListIndex();
    Control* primero = Find("UCframe5", 0);
    auto muestra = [&](Control* marco, bool visible) {
        if (!marco)
            return;
        marco->SetVisible(visible);
        // The frames overlay: the one shown takes the place of the first.
        if (visible && primero && marco != primero) {
            marco->SetLeft(primero->Left());
            marco->RawSet("Top", primero->RawGet("Top"));
        }
    };
    for (int i = 0; i < kMarcosDintel; ++i)
        muestra(Find("UCframe5", i), material == i);
    muestra(Find("UCframeFuego"), material == kMarcosDintel);
}

void MDint::cmdDefRes_Click() { AbreFabrica(*this); }

std::string MDint::ResumenCalculo() const
{
    return "the minimums of TxtCota and txtEspesor were compared to no effect and the check step did nothing; every "
           "field keeps the value read";
}

}  // namespace vardena
