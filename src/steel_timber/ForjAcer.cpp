#include "steel_timber/ForjAcer.h"

#include "base/Texto.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// The partial factor of the steel's strength, and the load factors.
constexpr double kGammaM = 1.05;
constexpr double kGammaPermanente = 1.35;
constexpr double kGammaVariableCasoI = 1.5;
constexpr double kGammaVariable = 1.33;
constexpr int kCasosI = 3;

}  // namespace

double FactorVariable(int caso) { return caso >= 0 && caso < kCasosI ? kGammaVariableCasoI : kGammaVariable; }

DatosComprobacion ForjAcer::LeeDatosComprobacion()
{
    DatosComprobacion datos = ConBotonesAyuda<ElementForm>::LeeDatosComprobacion();
    Declaraciones& d = decl();
    DatosForjadoAcero x;

    // The level's loads: a level above the count of floors from the floors' tables, any other
    // from the basements', its row shifted by that count.
    const Control& planta = At("CmbPlanta");
    const int k = planta.ListIndex();
    if (k >= 0) {
        x.planta = planta.List(k);
        const size_t p = static_cast<size_t>(k), s = static_cast<size_t>(k - d.NPlantasSobre);
        if (k < d.NPlantasSobre && p < d.GenPProP.size()) {
            x.g = static_cast<double>(d.GenConcP[p]) + d.GenPProP[p];
            x.q = static_cast<double>(d.GenSTabP[p]) + d.GenSobrP[p];
        } else if (k >= d.NPlantasSobre && s < d.GenPProS.size()) {
            x.g = static_cast<double>(d.GenConcS[s]) + d.GenPProS[s];
            x.q = static_cast<double>(d.GenSTabS[s]) + d.GenSobrS[s];
        }
    }

    // The span and the section; the depth from cm to m.
    x.luz = ValComaCopy(At("TxCota", 1).Text());
    const Control& perfil = At("UCPerfil1");
    x.area = ValComaCopy(perfil.Get("Area"));
    x.ix = ValComaCopy(perfil.Get("Ix"));
    x.iy = ValComaCopy(perfil.Get("Iy"));
    x.canto = ValComaCopy(perfil.Get("Canto")) / 100;
    x.ancho = ValComaCopy(perfil.Get("Ancho"));

    // The steel, by the rule of "Idem gral.", and the load case.
    x.fyd = datos.fy.value_or(0) / kGammaM;
    x.gammaG = kGammaPermanente;
    x.gammaQ = FactorVariable(At("CmbCaso").ListIndex());
    datos_ = x;
    return datos;
}

}  // namespace vardena
