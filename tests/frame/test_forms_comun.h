#pragma once
// Helpers of the element form tests: a work folder to load forms in, the named record of a
// form split into its controls, and what a form's field table says that record must hold.

#include <memory>
#include <string>
#include <vector>

#include "frame/Campos.h"
#include "works/Catalogo.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "base/Form.h"
#include "base/FileIo.h"

namespace vardena::test {

// One control of a named record: its first line's label and kind, and its (property, value)
// lines in order.
struct ControlNombrado {
    std::string etiqueta;  // "TxtQ(2)"
    std::string tipo;      // "TextBox"
    std::vector<std::pair<std::string, std::string>> valores;  // {".Text", "2.5"}
};

inline std::vector<std::string> Lineas(const std::string& text)
{
    std::vector<std::string> out;
    std::string cur;
    for (char c : text) {
        if (c == '\n') {
            out.push_back(cur);
            cur.clear();
        } else if (c != '\r') {
            cur += c;
        }
    }
    if (!cur.empty())
        out.push_back(cur);
    return out;
}

inline std::vector<std::string> Columnas(const std::string& line)
{
    std::vector<std::string> out(1);
    for (char c : line) {
        if (c == '\t')
            out.emplace_back();
        else
            out.back() += c;
    }
    out.resize(3);
    return out;
}

// Splits a named record (after its version line) into its controls.
inline std::vector<ControlNombrado> ControlesNombrados(const std::string& text)
{
    std::vector<ControlNombrado> out;
    const std::vector<std::string> lines = Lineas(text);
    for (size_t i = 1; i < lines.size(); ++i) {
        const auto cols = Columnas(lines[i]);
        if (!cols[0].empty()) {
            const size_t blank = cols[0].find(" [");
            out.push_back({cols[0].substr(0, blank), cols[0].substr(blank + 2, cols[0].size() - blank - 3), {}});
        }
        if (out.empty())
            continue;
        out.back().valores.emplace_back(cols[1], cols[2]);
    }
    return out;
}

// The properties a kind writes in the named format, in its order.
inline std::vector<std::string> PropiedadesNombradas(Kind k, bool seccionPropia)
{
    switch (k) {
    case Kind::TextBox: return {".Text"};
    case Kind::ComboBox: return {".ListIndex"};
    case Kind::CheckBox:
    case Kind::OptionButton: return {".Value"};
    case Kind::UCNumDiam: return {".NumBarras", ".Diametro"};
    case Kind::UCNumDiamSep:
    case Kind::UCZapatas: return {".NumBarras", ".Diametro", ".Separacion"};
    case Kind::UCMallazo: return {".Diametro", ".Separacion"};
    case Kind::UCPerfil:
        if (seccionPropia)
            return {".Num", ".Perfil", ".Ancho", ".Canto", ".Area", ".Ix", ".Iy"};
        return {".Num", ".Perfil", ".Ancho", ".Tamano"};
    default: return {};
    }
}

inline bool EsSeccionPropia(const std::string& perfil)
{
    return SameNameNoCase(perfil, "otro") || SameNameNoCase(perfil, "xxx");
}

// A work folder with general data in memory, in which forms load.
struct ObraDePrueba {
    ObraDePrueba() { app.decl.CarpetaObra = dir.path(); }
    ScratchDir dir;
    TestApp app;
    Declaraciones& d() { return app.decl; }
};

// Forms with a row in the catalogue (their load lists their records by the catalogue code).
inline std::vector<const TablaForm*> FormsDelCatalogo()
{
    std::vector<const TablaForm*> out;
    for (const auto& t : TablasCampos())
        if (!CodigoEnCatalogo(t.nombre).empty())
            out.push_back(&t);
    return out;
}

inline std::string NombreDe(const TablaForm* t) { return std::string(t->nombre); }

}  // namespace vardena::test
