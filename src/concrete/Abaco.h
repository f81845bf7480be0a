#pragma once
// The drop panel at a column of a waffle or flat slab (frmAbaco): the column and the panel with
// their bars, the punching rows, the slab around it and its ribs. Its own logic: the plan of the
// column's position, the slab's panel opened as a dialog, the total depth of the slab, and the
// column-line load estimate of the columns (CalCargas) with the panel's own rule, which goes to
// the check and is not shown.

#include <array>
#include <optional>
#include <string>

#include "concrete/PilHorm.h"
#include "frame/ElementForm.h"

namespace vardena {

// The positions of the drop panel's column, the indices of its OpPosPil: the reverse of the
// columns' order.
enum class PosicionAbaco { Centro = 0, Borde = 1, Esquina = 2 };

// The LePil that stand for a1, a2, a3, a4 at each position.
std::array<int, 4> LucesAbaco(PosicionAbaco p);

class Abaco : public ElementForm {
public:
    Abaco(Declaraciones& d, const TablaForm& tabla);

    // The load estimate of the column line: the position's four distances, the level's loads, the
    // control level and the enclosure load TxtQ(0). Keeps its figures for the check; nothing
    // while the form is being filled. No position chosen: the stop box of message 706.
    void CalCargas();

    std::optional<PosicionAbaco> Posicion() const;
    // The figures of the last estimate, internal units (t, m·t, m2).
    const CargasPilar& Cargas() const { return cargas_; }

    std::string ResumenCalculo() const override;

    // Ptpilar(i): the plan of the column and the drop panel at position i; PtFor(i): the section
    // of the slab around the panel for the kind of void former i.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;
    DatosComprobacion LeeDatosComprobacion() override;

private:
    void List1_Lee();
    void PresentaPosicion();
    void PresentaTipo();
    void MuestraForjado(bool visible);

    CargasPilar cargas_;
    MaterialesControl materiales_;
    bool calculado_ = false;
};

}  // namespace vardena
