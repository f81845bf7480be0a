#pragma once
// The controls of a form that are shown and never stored: frames, labels, buttons, pictures,
// with their Spanish design-time captions and tool tips. They never enter a record, so their
// order does not matter; the language packs translate them by name.

#include <initializer_list>
#include <string_view>
#include <vector>

#include "base/Form.h"
#include "base/ListaFija.h"

namespace vardena {

// One shown control of a form. A row of a stored kind (a check box, an option button) only
// gives its caption to the field that the form's record already defines; it never creates it.
struct ControlVisible {
    Kind kind;
    std::string_view nombre;
    int index;  // -1 for a control that is no member of an array
    std::string_view caption;
    std::string_view tooltip = {};
};

// Shorthands of the kinds, for the tables of shown controls.
inline constexpr Kind kLb = Kind::Label;
inline constexpr Kind kFr = Kind::Frame;
inline constexpr Kind kBt = Kind::CommandButton;
inline constexpr Kind kPc = Kind::PictureBox;
inline constexpr Kind kRt = Kind::RichTextBox;
inline constexpr Kind kTx = Kind::TextBox;
inline constexpr Kind kCb = Kind::ComboBox;
inline constexpr Kind kCk = Kind::CheckBox;
inline constexpr Kind kOp = Kind::OptionButton;
inline constexpr Kind kNd = Kind::UCNumDiam;
inline constexpr Kind kNs = Kind::UCNumDiamSep;
inline constexpr Kind kZp = Kind::UCZapatas;
inline constexpr Kind kPf = Kind::UCPerfil;
inline constexpr Kind kM = Kind::UCMallazo;

// Rows that several forms of a family share: the beams, the slabs, the columns, the footings
// and walls, the masonry. A form's definition takes the blocks of its families, then its own.
using BloqueVisibles = const std::vector<ControlVisible>& (*)();
const std::vector<ControlVisible>& EtiquetasArmadoViga();
const std::vector<ControlVisible>& EtiquetasContinuidad();
const std::vector<ControlVisible>& EtiquetasEscalera();
const std::vector<ControlVisible>& EtiquetasFabrica();
const std::vector<ControlVisible>& EtiquetasForjado();
const std::vector<ControlVisible>& EtiquetasForjadoLigero();
const std::vector<ControlVisible>& EtiquetasLosaBandas();
const std::vector<ControlVisible>& EtiquetasMuro();
const std::vector<ControlVisible>& EtiquetasMuroDePlantas();
const std::vector<ControlVisible>& EtiquetasPandeo();
const std::vector<ControlVisible>& EtiquetasPilar();
const std::vector<ControlVisible>& EtiquetasPilarAcero();
const std::vector<ControlVisible>& EtiquetasPilarHormigon();
const std::vector<ControlVisible>& EtiquetasPilaresViga();
const std::vector<ControlVisible>& EtiquetasRelleno();
const std::vector<ControlVisible>& EtiquetasResultadosAcero();
const std::vector<ControlVisible>& EtiquetasRoca();
const std::vector<ControlVisible>& EtiquetasViga();
const std::vector<ControlVisible>& EtiquetasVigaHormigon();
const std::vector<ControlVisible>& EtiquetasZapata();
const std::vector<ControlVisible>& EtiquetasZapataBajoMuro();
const std::vector<ControlVisible>& EtiquetasComunes();
// The shown rows of a form: the blocks of its families, in order, then its own rows.
struct VisiblesDef {
    ListaFija<BloqueVisibles, 8> familias;
    ListaFija<ControlVisible, 128> propias;
};
constexpr VisiblesDef Visibles(std::initializer_list<BloqueVisibles> familias, std::initializer_list<ControlVisible> propias = {})
{
    return VisiblesDef{familias, propias};
}

// The rows of a form by its name, those of the families it belongs to first; empty for a form
// that has none in the table. A row of index -1 that names a control array gives its caption
// to every member, with "#" in it standing for the member's index; a row of the member
// itself, coming later, has the last word.
const std::vector<ControlVisible>& ControlesVisibles(std::string_view form);

// The captions of the fields that mean the same in every form that has them (the title, the
// level, the materials, the results). A name ending in "*" stands for every field whose name
// begins with the rest. These rows never create a control.
const std::vector<ControlVisible>& ControlesComunes();

// Gives the form the captions of the common rows, then adds, by its name, the shown controls
// of its table. A control that the form already has (a shared frame of every element window,
// a field of the record) takes the row's caption instead, and its tool tip when the row gives
// one; only a control of the row's kind does. Running it twice adds nothing.
void AnadeControlesVisibles(Form& form);

}  // namespace vardena
