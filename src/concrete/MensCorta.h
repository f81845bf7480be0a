#pragma once
// The short corbel (frmMensCorta), of four kinds: a plain corbel, a beam framed into the corbel,
// a column standing on a cantilever and an eccentric column. Its own logic: what each kind shows
// and the sizes it starts with, the strut's cotangent by the casting joint, and the design moment
// and shear at the corbel's joint of the beam it carries.

#include <optional>
#include <string>

#include "frame/ElementForm.h"

namespace vardena {

// The kinds of corbel, the indices of OpTipo.
enum class TipoMensula { Simple = 0, VigaEmbrochalada = 1, PilarEnVuelo = 2, PilarExcentrico = 3 };

// The beam's moment and shear at the corbel's joint, from its load q (t/m), its span L and the
// arm a (m): Md = q L² / 10 - q L a / 2 + q a² / 2, Vd = q L / 2 - a q.
struct EsfuerzosViga {
    double md = 0, vd = 0;
};
EsfuerzosViga EsfuerzosVigaEnMensula(double q, double L, double a);

// The cotangent of the strut angle for a row of Hormig, "0.0": monolithic 1.4, hardened column
// 1.0, low roughness 0.6; empty for no row.
std::string CotangenteBiela(int fila);

class MensCorta : public ElementForm {
public:
    MensCorta(Declaraciones& d, const TablaForm& tabla);

    std::optional<TipoMensula> Tipo() const;
    // The arm a and the beam's span L of the last calculation, m, kept for the check.
    double Brazo() const { return brazo_; }
    double LuzViga() const { return luz_; }

    // PictureM: the corbel of kinds 0 to 2 in elevation with its load, sizes and bars;
    // PictureV: the eccentric column.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

private:
    void OpTipo_Click(int index);
    void Hormig_Click();
    // TxCota_Change and TxtQ_Change: the beam's Md and Vd into txtMom and txtCort.
    void CalculaViga();
    void List1_Lee();
    // What the kind shows: its pictures (PoneSketch), the hanger bars and the loads it takes.
    void PoneSketch();

    double brazo_ = 0, luz_ = 0;
};

}  // namespace vardena
