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

// The isolated footing at a corner, an edge or the centre (OpPosPil 0, 1, 2). Its data stand in
// four slots k: the footing studied (0), its neighbour along X (1), along Y (2) and the one across
// the corner (3). Slot k has its plan sides TxDimZap(2k) along X and TxDimZap(2k + 1) along Y and
// its depth TxDimZap(8 + k), cm; its column's sides TxPil(2k), TxPil(2k + 1); its column's loads
// TxtQ(3k) to TxtQ(3k + 2) (N, Mx, My); its bars UCArmZap(2k) along X, spread over the side
// along Y, and UCArmZap(2k + 1) along Y, spread over the side along X. The centering beams tie
// the footing to its neighbours: along X at TxDist(0), bars UCViga(0), UCViga(1), stirrups
// UCCercosViga(0), results TxtRes1(2), TxtRes1(3); along Y at TxDist(1), UCViga(2), UCViga(3),
// UCCercosViga(1), TxtRes1(4), TxtRes1(5). Each slot and each beam stands in its frame,
// UCframeZap(k), UCframeViga(0) and UCframeViga(1), which the position shows or hides.
enum class PosicionPilar { Esquina = 0, Borde = 1, Centro = 2 };
inline constexpr int kHuecosZapata = 4;

class Zap : public Zapata {
public:
    Zap(Declaraciones& d, const TablaForm& tabla);

    // Shows what the position uses: at the centre the footing alone; at an edge its neighbour
    // along X and the beam to it; at a corner all four footings and both beams.
    void OpPosPil_Click(int index);
    // A plan side: the bars that cross it take it as their width.
    void TxDimZap_Change(int index);
    PosicionPilar Posicion() const;

    // PtPlantaZap: the plan of the footings the position uses, their columns and beams, to scale.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;

private:
    void Presenta();
};

// Which slots and beams a position uses.
bool HuecoEnUso(PosicionPilar p, int hueco);
bool VigaEnUso(PosicionPilar p, int viga);

// The section of a strip footing as PtSeccZap draws it: widths and depth in cm, the wall's kind
// (true for masonry) and the load text shown over it.
Croquis SeccionZapataCorrida(double anchoMuro, double anchoZapata, double canto, bool fabrica, const std::string& carga);

}  // namespace vardena
