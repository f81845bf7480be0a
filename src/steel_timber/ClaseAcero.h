#pragma once
// The section class dialog (frmClaseAcero): for every size of one family of rolled sections and
// a chosen structural steel, the class of the web in bending and in compression, as a table in
// its rich text box. It keeps no record. The steel forms open it from their cmdClase button
// with their own section and steel.

#include <array>
#include <string>
#include <string_view>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;

// The limits of classes 1, 2 and 3 of the web, each rounded to a Single: in bending 72 e, 83 e,
// 124 e and in compression 33 e, 38 e, 42 e, with e = sqrt(24000 / fy) (fy in t/m2, as the
// steel table gives it).
struct LimitesClase {
    std::array<float, 3> flexion{};
    std::array<float, 3> compresion{};
};
LimitesClase LimitesDeClase(float fy);

// The class text of a slenderness: "Clase k" for the first limit k it stays below, "Clase  4"
// (two blanks) when it is below none. A slenderness equal to a limit is not below it.
std::string TextoClase(double esbeltez, const std::array<float, 3>& limites);

// The family row of the dialog's section list by its exact name: "UPN" 0, "IPN" 1, "IPE" 2,
// "HEA" 3, "HEB" 4, "HEM" 5; -1 for any other text (the user's own section among them).
int FamiliaDeClase(std::string_view perfil);

// The heading of the table: the column titles (messages 1274 to 1282), a rule of 112 dashes
// and a line of six blanks, each line ended by CR LF.
std::string CabeceraClases(const Declaraciones& d);

class FrmClaseAcero : public Form {
public:
    explicit FrmClaseAcero(Declaraciones& d);

    // The language pack, the families and steels in their lists (the family of the section
    // selector, the steel "Idem gral."), without making the table yet.
    void Form_Load() override;
    // The dialog comes to the front: the table is made anew.
    void Form_Activate();

    void cmdCalcular_Click();
    void CmbAcero_Click();
    void CmbPerfil_Click();
    void CmdSalir_Click();

    bool Descargado() const { return descargado_; }

private:
    void Evento(std::string_view origen, void (FrmClaseAcero::*rutina)());
    // The steel index of CmbAcero by the rule of "Idem gral."; a bad index ends the program
    // after its box.
    int IndiceAcero();

    bool cargando_ = false;
    bool descargado_ = false;
};

// cmdClase of a steel form: opens the dialog with the form's section family (UCPerfil1.Perfil)
// and its steel row (CmbAcero), made and shown modally. A family the table does not hold shows
// "Sección no soportada" and opens nothing.
void AbreClaseAcero(Form& origen);

}  // namespace vardena
