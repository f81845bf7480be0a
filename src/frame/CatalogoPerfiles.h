#pragma once
// The catalogue of rolled steel sections of the section selector: the European families UPN,
// IPN, IPE, HEA, HEB and HEM, one row per family and size, and the size lists of each family.

#include <span>
#include <string_view>

namespace vardena {

// One section of the catalogue. Lengths in centimetres, area in cm2, second moments in cm4.
// `distancia` runs from the centroid to the outer edge of the flange, across the weak axis:
// half the width for the symmetric families, width less the centroid distance from the back
// of the web for a channel.
struct FilaPerfil {
    std::string_view familia;
    int tamano;
    float area;
    float ix;  // strong axis
    float iy;  // weak axis
    float ancho;
    float canto;
    float distancia;
    float espAla;
    float espAlma;
};

// The families of the catalogue in list order; the user's own section follows them in the
// family list as row kFamiliaUsuario.
inline constexpr int kFamiliasCatalogo = 6;
inline constexpr int kFamiliaUsuario = 6;
std::string_view NombreFamilia(int familia);

// All 127 rows, family by family, sizes in ascending order.
std::span<const FilaPerfil> CatalogoPerfiles();

// The sizes a family offers (its hidden size list), in list order; empty for another index.
std::span<const int> TamanosFamilia(int familia);

// The row of a family, named without regard to case, and size; nullptr when there is none.
const FilaPerfil* BuscaPerfil(std::string_view familia, int tamano);

}  // namespace vardena
