#pragma once
// The one-way slabs: frmForjUnid, a stretch of a joist or hollow-core slab whose joist comes
// from a catalogue sheet or from its dimensions, and frmForjSitu, its cast-in-place sibling,
// which has no sheet. One class; what tells them apart is data (VarianteForjado). Their check
// is the no-op of every element.

#include <optional>
#include <string_view>

#include "concrete/CatalogoForjados.h"
#include "frame/ElementForm.h"

namespace vardena {

// What one sibling has that the other lacks.
struct VarianteForjado {
    bool conFicha;                // the sheet: OpSiNo, ListViguetas, UCFicha, the TXF fields
    std::string_view particion;   // its partition list: Combo1 or cmbPart
};

// The concrete strength (kp/cm2) that CmbHorm sets for the slab check: 250 to 500 in steps of 50
// for the rows from the first real one; the general data's strength on "Idem gral.".
int ResistenciaForjado(int listIndex, float genFckHorm);

// The name of the stretch's position (lblTramo) for each OpTramo: message numbers.
inline constexpr int kMsgPrimerTramo = 1625;

class ForjUnid : public ElementForm {
public:
    ForjUnid(Declaraciones& d, const TablaForm& tabla);

    // PctSeccion: the slab's section (joists, blocks, topping or the hollow-core slab);
    // PctTramo: the stretch with the adjacent spans its position has.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

    const VarianteForjado& variante() const { return variante_; }
    // The module variables the events leave: the span, the level's loads.
    double Luz() const { return luz_; }
    double CargaPermanente() const { return g_; }
    double CargaVariable() const { return q_; }

    // The events, public so that the tests and scripts run them as clicks do.
    void CmbHorm_Click();
    void cmbTipoFor_Click();
    void OpSiNo_Click();
    void ListViguetas_Click();
    void OpTramo_Click(int index);
    void TxCota_Change(int index);
    void txtForj_Change(int index);
    void CmbPlanta_Click();
    void UCFicha_Click();
    // Reads joist n (from 1) of "Viguetas" into the sheet's fields; writes them back.
    bool leeVigueta(int n);
    bool guardaVigueta(int n);
    // The sheet's fields as a row, and a row into them.
    FilaFicha FilaDelPanel() const;
    void PonFila(const FilaFicha& f);

protected:
    void CargaPropia() override;

private:
    static const VarianteForjado& VarianteDe(std::string_view nombre);
    // The chosen stretch position (OpTramo index); -1 when none is chosen.
    int Tramo() const;
    std::string RutaViguetas() const;

    const VarianteForjado& variante_;
    double luz_ = 0;
    double g_ = 0, q_ = 0;
    double peso_ = 0, perm_ = 0, sobr_ = 0, tab_ = 0;
};

// The names of the sheet's fields in the order of a catalogue row's twelve numbers.
inline constexpr std::string_view kCamposFicha[kColumnasFicha] = {
    "TXFmod", "TXFbeta", "TXFmomUlt", "TXFrig", "TXFrigfis", "TXFMo", "TXFMop", "TXFMo2", "TXFcort1", "TXFcort2", "TXFcort3", "TXFras"};

}  // namespace vardena
