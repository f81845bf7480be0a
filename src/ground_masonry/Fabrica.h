#pragma once
// The masonry properties dialog (frmFabrica): from the kind of unit, the mortar, the wall and
// the control and execution categories it works out the characteristic strengths of the
// masonry (compression, shear, flexure both ways), its modulus, its creep coefficient and its
// partial factor. Its state persists per work in Fabrica.dat (the positional record format),
// and on closing it hands its figures back to the form that opened it, named in FormActivo:
// the general data (cmdFabr) or the wall, enclosure and lintel forms (cmdDefRes).

#include <span>
#include <string>

#include "base/Form.h"
#include "frame/Campos.h"

namespace vardena {

struct Declaraciones;

// The file of the dialog's state in the work's folder.
inline constexpr const char* kArchivoFabrica = "Fabrica.dat";
std::string RutaFabrica(const Declaraciones& d);

// The choices and the two strengths the calculation starts from, as the dialog holds them.
struct DatosFabrica {
    int tipoFabr = 0;    // cmbTipoFabr: solid brick thin joint, solid brick, perforated, ...
    int tipo = 0;        // cmbTipo: ceramic, calcium silicate, concrete, ...
    int muro = 0;        // cmbMuro: 0 one leaf, 1 two leaves
    int mortero = 0;     // cmbMortero: 0 ordinary, 1 thin joint, 2 lightweight
    int catControl = 0;  // cmbCatControl
    int catEjec = 0;     // CmbCatEjec: A, B, C
    double fb = 0;       // strength of the units, as typed
    double fm = 0;       // strength of the mortar, as typed
    int unidades = 1;    // Unidades: 1 means the fields hold Kg/cm2
};

// What the calculation gives. fk, fxk1 and fxk2 come out in the unit the rules give them (times
// 10 from N/mm2 as told in CalculaFabrica); fvk and the limit in N/mm2.
struct PropiedadesFabrica {
    double k = 0;
    double fk = 0;
    double fvk0 = 0;
    double fvk = 0;
    double limiteFvk = 0;  // kept as the program's own: the held design stress never reaches it
    double fxk1 = 0;
    double fxk2 = 0;
    double e = 0;
    double fluencia = 0;
    double gammaM = 0;
};

// The masonry properties. fb and fm are divided by 10 when `unidades` is 1; fk is
// K fb^0.65 fm^0.25 times 10 whenever `unidades` is not 0, or fb^0.85 times 0.8 (8) for solid
// brick and light blocks on thin-joint mortar; fxk1 and fxk2 are times 10 when `unidades` is 1.
// A negative fb or fm has no real power: the caller reports it.
PropiedadesFabrica CalculaFabrica(const DatosFabrica& datos);
// The density that a kind of masonry (cmbTipoFabr) sets, kg/m3: solid bricks take 1800 when
// ceramic and 2000 for any other unit material (cmbTipo).
int DensidadDeFabrica(int tipoFabr, int tipo);

// The groups of the dialog's window.
std::span<const GrupoDef> GruposFabrica();

class FrmFabrica : public Form {
public:
    explicit FrmFabrica(Declaraciones& d);

    // Language, units, every list at its first row, then Fabrica.dat when the work has one,
    // then the calculation. A Fabrica.dat that cannot be read is reported by name and left
    // as it is: the dialog keeps its defaults and will not write over that file.
    void Form_Load() override;
    // Hands the results back to the form named in FormActivo.
    void Form_Unload() override;

    void Calc_Fabrica();
    void cmbTipoFabr_Click();
    // Writes Fabrica.dat, then closes (which hands the results back).
    void CmdSalir_Click();
    void cmdAyuda_Click();

    // The form that opened the dialog, which receives its results; none for a dialog opened alone.
    void PonLlamador(Form* llamador) { llamador_ = llamador; }
    bool Descargado() const { return descargado_; }
    // Why Fabrica.dat could not be read at the last load; empty when it was read or absent.
    const std::string& ErrorLectura() const { return errorLectura_; }

private:
    // Reads Fabrica.dat into the controls only when every field of it is good.
    void LeeArchivo(const std::string& ruta);
    void Devuelve();
    void Evento(std::string_view origen, void (FrmFabrica::*rutina)());
    DatosFabrica Datos() const;

    Form* llamador_ = nullptr;
    bool cargando_ = false;
    bool descargado_ = false;
    std::string errorLectura_;
    // The execution category of the last calculation.
    int catEjec_ = 0;
};

// Opens the dialog for `llamador` (its name goes to FormActivo), modally where a window system
// runs; elsewhere the dialog closes at once and hands back what it shows. Either way the
// caller's fields hold the results when this returns.
void AbreFabrica(Form& llamador);

// The density that the dialog opened from the lintel left for the masonry wall form, which
// takes it at its next load; empty when there is none.
std::string TomaDensidadParaMuros(Declaraciones& d);

}  // namespace vardena
