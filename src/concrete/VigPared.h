#pragma once
// The deep beam (frmVigPared): a wall-like concrete beam of one span over two columns, with
// contiguous beams at either side, loads by stretches and its bars and meshes. It keeps its
// stretches with the spans editor of every beam; its lengths go further: the spans of the
// contiguous beams say whether there are any. Its loads take number keys only and are written
// back when left. Its check is the no-op of every element.

#include "frame/Tramos.h"

namespace vardena {

class VigPared : public FormaViga {
public:
    VigPared(Declaraciones& d, const TablaForm& tabla);

    // PctViga: the deep beam to the scale of its depth and span, with its supports, the
    // contiguous beams, the loads on the face that carries them and the lengths.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CambioCota(int index) override;
    DatosComprobacion LeeDatosComprobacion() override;

private:
    void TxtQ_LostFocus(int index);
};

}  // namespace vardena
