#pragma once
// The two-way slab panels around a column: the waffle slab (frmForjRet) and the solid slab
// (frmForMaci). Both are one class, differing by their fields: the waffle slab has the panel of
// its ribs and void formers, the solid slab its depth. Their own logic: the plan of the panel by
// its position, the bands in two directions with the bars of the chosen band, the further bars
// switched on, the results panel that opens after a save, and for the waffle slab its panel of
// slab data and the total depth.

#include <optional>
#include <span>
#include <string>

#include "frame/Croquis.h"
#include "frame/ElementForm.h"

namespace vardena {

class Form;

// The positions of the panel in plan, the indices of OpPosPil.
enum class PosicionPanel { Centro = 0, Borde = 1, Esquina = 2 };

// The bands of the panel, the indices of CmBanda: the middle and the column strip along X, then
// along Y. Band b holds the bars UCArVig(6b) to UCArVig(6b + 5), their lengths TxLv of the same
// indices and the further bars' switches ChArV at the odd ones; its results are txtMf(3b) to
// txtMf(3b + 2).
enum class Banda { CentralX = 0, SoportesX = 1, CentralY = 2, SoportesY = 3 };
inline constexpr int kBarrasPorBanda = 6;

// The spans and cantilevers of the panel at a position, m: Lx, Ly from the txtForj of the
// position, and the cantilevers beyond the façade (0 where the position has none).
struct LucesPanel {
    double lx = 0, ly = 0, vueloX = 0, vueloY = 0;
};
LucesPanel LucesDePanel(const Form& form, PosicionPanel p);
// The txtForj of a position's spans and cantilevers.
std::span<const int> CamposDePanel(PosicionPanel p);

// The slab's total depth txtForj(4), the sum of the block txtForj(2) and the topping txtForj(3),
// written when either changes (the waffle slab and the drop panel's slab).
void CantoTotalForjado(Form& form);

// The section of a ribbed slab (txtForj(0) rib width, (1) rib spacing, (2) block depth, (3)
// topping, cm) for a kind of void former: 0 recovered (the voids stay empty), 1 lost (the blocks
// stay in the slab), 2 none (solid).
Croquis CroquisForjado(const Form& form, int tipo);

class LosaBandas : public ElementForm {
public:
    LosaBandas(Declaraciones& d, const TablaForm& tabla);

    std::optional<PosicionPanel> Posicion() const;
    Banda BandaElegida() const { return banda_; }

    // PctFRPlan(i): the panel at position i with its bands, the chosen one set off; PctViga: the
    // bars of the chosen band along it; PtFor(i): the waffle slab's section.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;
    // The results panel opens over the form once the record is saved.
    void TrasGuardado() override;

private:
    void CmBanda_Click(int index);
    void List1_Lee();
    void PresentaPosicion();
    void PresentaBanda();
    void PresentaTipo();
    // A panel of the form opened or closed as a dialog: Frm1 and Picture1 wait while it shows.
    void MuestraPanel(const char* panel, bool visible);

    Banda banda_ = Banda::CentralX;
};

}  // namespace vardena
