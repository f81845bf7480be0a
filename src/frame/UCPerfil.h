#pragma once
// The steel section selector UCPerfil: one rolled section or two side by side, of a family of
// the catalogue (frame/CatalogoPerfiles.h) and a size, or a section of the user's own.
//
// Its properties, in slot order: Num ("1" or "2"), Perfil (family), Tamano (size), Canto,
// Ancho, EspAla, EspAlma (cm), VerDatos, VerControles (flags), Area (cm2), Ix, Iy (cm4),
// ColorFondo, ColorFondoEdit, and the read-only IndicePerfil (the family's row in LstPerfil).
//
// For a catalogue family every change recomputes the section: Area, Ix, Iy read back the
// results in "0.00", Canto the depth and Ancho the width in "0.0", EspAla and EspAlma the
// thicknesses in "0.00"; writes to Canto, EspAla, EspAlma, Area, Ix, Iy are ignored. Ancho is
// both sides of one box: its write side takes the typed distance between two sections, its
// read side gives what the box shows after the computation: the section's width for one
// section, for two the larger of the typed distance and twice the width. A catalogue record
// thus reads back its Ancho in that form ("8" of one IPE 100 comes back as "5.5").
//
// For the user's own section ("otro"; older records say "xxx") the typed texts of Canto,
// Ancho, Area, Ix, Iy and the thicknesses are kept as typed and read back unchanged; the
// labels show the values in "0.00". Whatever Num says, they are the values of the whole.
//
// Num other than 1 or 2 ends the program (Halt) at the next computation. Selecting the
// user's own section raises Change, from a pick or from the Perfil setter alike; no other
// setter raises it.

#include <string>
#include <string_view>
#include <vector>

namespace vardena {

class Control;

// The rows of LstPerfil: "UPN", "IPN", "IPE", "HEA", "HEB", "HEM", "otro".
const std::vector<std::string>& FamiliasPerfil();
// The row of a family name without regard to case: 0 to 5 for the catalogue families, 6 for
// the user's own section ("otro" or "xxx"), -1 for any other text.
int IndiceFamiliaPerfil(std::string_view perfil);
bool EsSeccionUsuario(std::string_view perfil);

// Gives a UCPerfil control its behaviour and runs its first selection.
void InstalaPerfil(Control& c);

// What the selector shows besides its properties.
struct VistaPerfil {
    std::vector<std::string> tamanos;  // LstTam rows: the family's sizes, none for "otro"
    int tamanoElegido = -1;            // the row of the current size, -1 when it has none
    std::string area, ix, iy;          // LbArea, LbIx, LbIy
};
VistaPerfil VistaDePerfil(const Control& c);

// The user's actions. Each recomputes and raises Change once. Rows outside their list are a
// PropertyError (380).
void PerfilEligeFamilia(Control& c, int fila);  // LstPerfil_Click
void PerfilEligeTamano(Control& c, int fila);   // LstTam_Click
void PerfilCambiaNum(Control& c);               // LbNum_Click: "1" and "2" in turn
// Typing in txtAncho, TxtCanto, TxArea, TxIx or TxIy (prop Ancho, Canto, Area, Ix, Iy).
void PerfilEscribeDato(Control& c, std::string_view prop, std::string_view texto);
// TxArea, TxIx, TxIy losing the focus: the box is rewritten in "0.00".
void PerfilDejaDato(Control& c, std::string_view prop);

}  // namespace vardena
