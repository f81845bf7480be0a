#pragma once
// How an element window groups its fields: a layout model computed from the form, which the
// desktop program draws. Group titles come from the language pack.

#include <map>
#include <string>
#include <vector>

#include "base/Form.h"
#include "frame/Campos.h"

namespace vardena {


// A group of controls as the element window shows it.
struct GrupoCampos {
    std::string titulo;
    std::vector<Control*> miembros;
    // The frames whose visibility the group follows: its own and the one that holds it.
    std::vector<const Control*> marcos = {};
    // The label that names a field, where the form's definition puts one before it.
    std::map<const Control*, Control*> etiquetas = {};
    int columna = -1;  // the window's column its definition asks for; -1 for any
    // A group in rows (GrupoDef::tabla): each member is a row's value, named by its label in
    // `etiquetas`, with the labels that stand beside it (its symbol, its unit) here.
    bool tabla = false;
    std::map<const Control*, std::vector<Control*>> junto = {};
    // A grid (GrupoDef::columnas): the headings, the rows' names and the cells row by row, a
    // null cell being an empty one. `miembros` holds the cells' controls as well.
    std::vector<std::string> cabeceras = {};
    std::vector<std::string> rotulosFilas = {};
    std::vector<Control*> celdas = {};
};
// The data fields of an element form grouped for display: the groups its definition declares
// first, then by kind and name: the element's identity, materials,
// single data, lists and options, one group per control array, reinforcement, sections, and the
// results last. Frame controls, unit labels and the designed captions and frames are left out.
std::vector<GrupoCampos> AgrupaCampos(const Form& form);
// The label of a field in its group; members of an array that share a caption are told apart
// by their index.
std::string EtiquetaEnGrupo(const Control& c, const GrupoCampos& g);
// Rows a group takes on screen, to balance the columns.
int AltoDeGrupo(const GrupoCampos& g);
// Whether the group shows now: its frames are visible.
bool GrupoVisible(const GrupoCampos& g);

}  // namespace vardena
