#include "frame/DatosCalculo.h"

#include <string>

#include "base/Form.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {
constexpr int kErrSubindice = 9;
}

CargasPlanta CargasDePlanta(const Declaraciones& d, int nivel)
{
    auto fuera = [&] {
        return ErrorEjecucion(kErrSubindice, "CmbPlanta: " + std::to_string(nivel) + " is no level of the work");
    };
    if (nivel < 0)
        throw fuera();
    CargasPlanta c;
    if (nivel > d.NPlantasSobre) {
        const size_t s = static_cast<size_t>(nivel - d.NPlantasSobre);
        if (s >= d.GenPProS.size())
            throw fuera();
        c = {d.GenPProS[s], d.GenConcS[s], d.GenSTabS[s], d.GenSobrS[s]};
        return c;
    }
    const size_t p = static_cast<size_t>(nivel);
    if (p >= d.GenPProP.size())
        throw fuera();
    c = {d.GenPProP[p], d.GenConcP[p], d.GenSTabP[p], d.GenSobrP[p]};
    return c;
}

Resistencias ResistenciasDeCalculo(double fck, double fyk, bool reducido)
{
    if (reducido)
        return {kFcdReducido, 0.75 * fyk / kGammaAcero};
    return {fck / kGammaHormigon, fyk / kGammaAcero};
}

}  // namespace vardena
