#pragma once
// The spans editor of the beam forms: the span L in TxCota(1), the first two load stretches a1
// and a2 in TxCota(2) and TxCota(3), the third stretch being what is left; CmTramos says how many
// stretches (1 to 3) carry their own distributed load TxtQ(1) to TxtQ(3). Every beam form
// (concrete, regular concrete, steel, timber, deep beam) keeps its stretches by these rules, and
// the drawing of its beam takes the proportions computed here.

#include <array>
#include <memory>
#include <string>

#include "base/Form.h"
#include "frame/ElementForm.h"

namespace vardena {

// The lengths of a span and its stretches.
struct Tramos {
    double L = 0, a1 = 0, a2 = 0, r = 0;
};

// What a change of TxCota(index) does to the stretches: the remainder r = L - a1 - a2; when it
// would be negative, the total grows to a1 + a2 if a stretch changed, or both stretches become
// L / 2 if the total changed. Lengths are taken as absolute values.
Tramos AjustaTramos(double L, double a1, double a2, int cambiado);

// The stretches as the picture draws them: each takes at least a tenth of the span, so that its
// number stays readable; `inicio` and `ancho` are fractions of the drawn beam (0 to 1).
struct TramoDibujado {
    double inicio = 0, ancho = 0;
};
std::array<TramoDibujado, 3> DibujoTramos(int n, const Tramos& t);

// The heights of the load shapes of the three stretches as fractions of the reference height:
// each load over the greatest (a greatest of 0 counts as 0.0001, so that no load divides by 0).
std::array<double, 3> AlturasCargas(double q1, double q2, double q3);

// A length or a load as the editor writes it back: the run time's plain text of the number,
// without the blank of its sign ("5.5", "-2", ".5").
std::string TextoLlano(double valor);

// The key filter of the length and load fields that take only numbers: digits, the decimal
// point or comma, the sign and the editing keys (under 32) pass; any other key is swallowed (0).
void FiltraTeclaNumero(int& keyAscii);

// The editor on a form: it reads and rewrites TxCota(1..3), shows and hides the stretches over
// the chosen count, and keeps the last values to know when the picture must be drawn again.
class EditorTramos {
public:
    explicit EditorTramos(Form& form) : form_(form) {}

    // TxCota_Change(index): the stretch rules; nothing while the form is loading, on a value of
    // 0, or when the change comes from the editor's own rewrite.
    void CambioCota(int index);
    // CmTramos_Click: the stretches over n hidden (their lengths read as 0), the drawing redone.
    void CambioNumero();

    int Numero() const;  // n, from CmTramos
    const Tramos& Actuales() const { return actuales_; }
    const std::array<TramoDibujado, 3>& Dibujo() const { return dibujo_; }

private:
    double Cota(int index, bool escribeOcultas);
    void Escribe(int index, double valor);

    Form& form_;
    Tramos actuales_;
    std::array<TramoDibujado, 3> dibujo_{};
    bool dentro_ = false;  // a rewrite of the editor's own raises no second pass
};

// A beam form: an element form with the spans editor wired to its lengths TxCota and its count
// CmTramos. The beams with no other logic of their own are made as this class; the concrete
// beam extends it.
class FormaViga : public ElementForm {
public:
    FormaViga(Declaraciones& d, const TablaForm& tabla);

    const EditorTramos& Tramos() const { return tramos_; }

protected:
    // The stretches over the chosen count hidden, as the form opens.
    void CargaPropia() override { tramos_.CambioNumero(); }

    // When the stretch rules run on a length TxCota: at each change of its text (most beams),
    // or when the focus leaves it, with its keys filtered to numbers (the beam of a frame).
    enum class ReglaTramos { AlCambiar, AlSalir };
    void ReglaDeTramos(ReglaTramos regla) { regla_ = regla; }
    // The stretch rules on a change of TxCota(index); a beam with more lengths of its own
    // extends them.
    virtual void CambioCota(int index) { tramos_.CambioCota(index); }

    EditorTramos tramos_;

private:
    ReglaTramos regla_ = ReglaTramos::AlCambiar;
};

}  // namespace vardena
