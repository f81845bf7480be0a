#include "ground_masonry/Rellenos.h"

#include <cstddef>

namespace vardena {
namespace {

template <typename T, size_t N>
const T* Fila(const T (&tabla)[N], int indice)
{
    if (indice < 1 || static_cast<size_t>(indice) >= N)
        return nullptr;
    return &tabla[indice];
}

}  // namespace

bool AplicaRelleno(Form& form, int indice)
{
    const RellenoCatalogo* r = Fila(kRellenos, indice);
    if (!r)
        return false;
    form.At("TxtDensidad").SetText(r->densidad);
    form.At("TxtAngulo").SetText(r->angulo);
    return true;
}

bool AplicaTalud(Form& form, int indice, int cohesion, int unidades)
{
    const TaludCatalogo* t = Fila(kTaludes, indice);
    if (!t)
        return false;
    form.At("TxtDensidad").SetText(t->densidad);
    form.At("TxtQ", cohesion).SetText(unidades != 0 ? t->cohesion : t->cohesionUnidades0);
    form.At("TxtAngulo").SetText(t->angulo);
    return true;
}

}  // namespace vardena
