#pragma once
// The calculator of concrete properties by age (frmHormigon): from the characteristic strength
// at 28 days, the age, the hardening rate and the kind of aggregate it gives the strengths and
// moduli at age j. It keeps no record. What it leaves behind it is in Declaraciones: the
// aggregate factor and the age factor of the modulus, which scale the concrete modulus of the
// beams (ModuloHormigonVigas), and the last secant modulus.

#include <array>
#include <span>
#include <string_view>

#include "base/Form.h"
#include "frame/Campos.h"

namespace vardena {

struct Declaraciones;

// The aggregate factor of each row of CmbArido, whose texts are messages 1250 to 1257 in the
// same order: quartzite, sandstone, ordinary and dense limestone, porous and ordinary ophite or
// basalt, granite and plutonic rocks, diabase.
inline constexpr int kMsgPrimerArido = 1250;
inline constexpr std::array<float, 8> kFactoresArido = {1.0f, 0.7f, 0.9f, 1.2f, 0.9f, 1.2f, 1.1f, 1.3f};

// The ages of CmbEdad, days.
inline constexpr std::array<int, 5> kEdades = {3, 7, 28, 90, 360};

// The hardening rates of CmbEndur: message 169 ("normal") and message 1258 (rapid).
inline constexpr int kMsgEndurNormal = 169;
inline constexpr int kMsgEndurRapido = 1258;

// The age factors of one age: of the strength and of the modulus.
struct FactoresEdad {
    float resistencia;
    float modulo;
};
// The factors of age row `edadIndice` (0 to 4, for 3 to 360 days) for a hardening text: the
// rows of normal hardening when the text is the word "normal", else those of rapid hardening.
// Nothing for a row outside the list.
const FactoresEdad* FactoresDeEdad(int edadIndice, std::string_view endurecimiento);

// The modulus of the concrete of the beams, t/m2, from the strength of the general data
// (GenFckHorm, t/m2), scaled by the aggregate and age factors the calculator left:
// 850000 (fck / 100 + 8)^(1/3) FactorArido FactorEdadE. The beam forms take it when their
// concrete is chosen.
float ModuloHormigonVigas(const Declaraciones& d);

// The groups of the calculator's window: its two frames, side by side.
std::span<const GrupoDef> GruposHormigon();

class FrmHormigon : public Form {
public:
    explicit FrmHormigon(Declaraciones& d);

    // The language pack, the lists filled and set to their defaults (age 28 days); setting
    // them runs their clicks, which calculate.
    void Form_Load() override;

    // Sets BetaFck and FactorEdadE for an age row; `endurecimiento` is compared with "normal".
    // A row outside the list leaves both as they were.
    void CalculaBetas(int edadIndice, std::string_view endurecimiento);
    // The strengths and moduli at age j into the result labels, each as soon as it is known,
    // and the secant modulus into ModuloHormigon. A value that the run time could not evaluate
    // (a negative base of a fractional power, a result that does not fit a Single) is a
    // run-time error; the labels written before it stay.
    void CalculaCMH();

    void CmbArido_Click();
    void CmbEdad_Click();
    void CmbEndur_Click();
    void CmdCalcular_Click();
    void TxFck28_Change();

    float BetaFck() const { return betaFck_; }

private:
    // The hardening text that CmbEndur stands for: message 169 at row 0 or none, else 1258.
    std::string_view Endurecimiento() const;
    // The age or the hardening changed: both lists give the factors anew, then the values.
    void CambiaEdad();
    // Runs a handler's body under the error window.
    void Evento(std::string_view origen, void (FrmHormigon::*rutina)());

    float betaFck_ = 1.1f;
};

}  // namespace vardena
