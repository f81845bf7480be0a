#pragma once
// The reinforced-concrete beam (frmVigHorm): one span with its supports, cantilevers, loads by
// stretches and reinforcement. Its own logic: the spans editor, the cover from the exposure
// class, the level's supports and partitions, the least section depth and the transverse
// bending frame. Its check is the no-op of every element.

#include <memory>

#include "frame/ElementForm.h"
#include "frame/Tramos.h"

namespace vardena {

// The cover index (of CmbRecub) that an exposure class (row of CmbAmbGral) asks for.
int RecubrimientoDeExposicion(int exposicion);

class VigHorm : public FormaViga {
public:
    VigHorm(Declaraciones& d, const TablaForm& tabla);

    // The beam picture PctViga: the beam with its supports and cantilevers, the load stretches
    // with their loads drawn to scale, the point loads and the lengths.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;

private:
    void CmbAmbGral_Click();
    void CmbPlanta_Click();
    void TextDviga_LostFocus(int index);
    void ChTrans_Click();
};

}  // namespace vardena
