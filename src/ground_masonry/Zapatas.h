#pragma once
// The footings: isolated (frmZap), combined (frmZapComb) and under a wall (frmZapCorr). Their
// check is a no-op; what runs is the data entry. All three take the ground's admissible stress
// from the general data while "Idem general" (Check1) is ticked. The strip footing also keeps
// the bars that run along it spread over its width, and draws its section to scale.

#include <optional>
#include <string>

#include "frame/ElementForm.h"

namespace vardena {

// What every footing shares: the stress field beside Check1, the load field TxtQ(i) that holds a
// stress.
class Zapata : public ElementForm {
public:
    Zapata(Declaraciones& d, const TablaForm& tabla);

    // Ticked: the stress field takes the general data's stress (kg/cm2, from t/m2) and cannot be
    // typed in; cleared: it keeps its value and can be.
    void Check1_Click();
    // The index of the stress field among TxtQ, -1 when the form has none.
    int IndiceTension() const { return indiceTension_; }

protected:
    // The stress field follows Check1 as read, without rewriting its value.
    void CargaPropia() override;

private:
    // Whether the stress field can be typed in, by Check1 as it stands: at load and after a
    // record is read, whose stress stays as stored.
    void PresentaTension();

    int indiceTension_ = -1;
};

// The strip footing under a wall of masonry or concrete (OpTipoMuro 0 and 1): the wall's width
// TxCotaMuro, the footing's width TxCotaAncho and depth TxCotaAlto, cm. UCArmZap(0) are the bars
// across the footing, counted per metre of wall; UCArmZap(1) the bars along it, spread over the
// footing's width.
class ZapCorr : public Zapata {
public:
    ZapCorr(Declaraciones& d, const TablaForm& tabla);

    // The bars along the footing take the new width.
    void TxCotaAncho_Change();

    // PtSeccZap: the section, to scale, with the wall on it, the load and the dimensions.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;
};

// The section of a strip footing as PtSeccZap draws it: widths and depth in cm, the wall's kind
// (true for masonry) and the load text shown over it.
Croquis SeccionZapataCorrida(double anchoMuro, double anchoZapata, double canto, bool fabrica, const std::string& carga);

}  // namespace vardena
