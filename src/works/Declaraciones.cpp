#include "works/Declaraciones.h"

#include <cmath>

namespace vardena {

void Declaraciones::GeneralDataDefaults()
{
    NPlantasSobre = 1;
    NPlantasBajo = 0;
    // Level 0 is the roof; every further floor takes the second value (kg/m2 to t/m2).
    for (int i = 0; i <= kMaxFloors; ++i) {
        const bool roof = i == 0;
        GenPProP[i] = roof ? 0.25f : 0.3f;
        GenConcP[i] = roof ? 0.2f : 0.14f;
        GenSobrP[i] = roof ? 0.1f : 0.2f;
        GenSTabP[i] = roof ? 0.1f : 0.04f;
        GenCUsoP[i] = roof ? "G" : "A";
    }
    for (int i = 0; i <= kMaxBasements; ++i) {
        GenPProS[i] = 0.3f;
        GenConcS[i] = 0.1f;
        GenSobrS[i] = 0.4f;
        GenSTabS[i] = 0;
        GenCUsoS[i] = "F";
    }
    const char* layers[] = {"", "Enfoscado", "Ladrillo hueco 12 cm", "Mortero", "Cámara aire y aislamiento",
                            "Ladrillo hueco 8 cm.", "Enfoscado"};
    const float weights[] = {0, 20, 144, 20, 5, 96, 20, 305};
    for (int i = 1; i <= 6; ++i)
        GenDescr[i] = layers[i];
    for (int i = 1; i <= 7; ++i)
        GenValor[i] = weights[i] / 1000.0f;
    const float days[] = {0, 0, 60, 90, 180, 10, 20, 0, 0.87f, 1.0f, 1.2f};
    for (int i = 1; i <= 10; ++i)
        GenDia[i] = days[i];
    GenCot.fill(3.0f);
    GenHorm = GenAcero = GenControl = 0;
    GenChHormigon = kTrue;
    GenAcP = GenAcP2 = 0;
    GenChAcero = kFalse;
    GenResis = GenServi = 0;
    GenChMadera = kFalse;
    GenResFab = 400;
    GenCoefMin = 1.7f;
    GenDensFabr = 1900;
    GenCatControl = GenCatEjec = 0;
    GenChFabrica = kFalse;
    GenTens = 25;
    GenChTerreno = kTrue;
    GenFactor = 0.04f;
    GenFckHorm = 1000;
}

}  // namespace vardena
