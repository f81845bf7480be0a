#pragma once
// Reads report RTF for display: the reports this program writes and the results files of
// version 3, which come from the same kind of writer. The text, the character formatting that
// matters on screen (bold, italic, underline, size, colour, raised and lowered text), paragraph
// alignment and tables are kept; everything else (font and style tables, document information,
// pictures, unknown control words and destinations) is skipped.
//
// The reader never fails: unbalanced braces, truncated escapes and stray bytes are passed over
// and whatever text there is comes out. Input is the file's bytes (Windows-1252 where the RTF
// has raw bytes), output UTF-8. A file that does not begin as RTF is read as plain text.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

struct RtfEstilo {
    bool negrita = false;
    bool cursiva = false;
    bool subrayado = false;
    int tamano = 24;                 // half points
    std::optional<uint32_t> color;   // 0xRRGGBB; none for the automatic colour
    int posicion = 0;                // 1 raised, -1 lowered
    bool operator==(const RtfEstilo&) const = default;
};

// A run of text of one style. "\t" stands for a tab, "\n" for a line break inside a paragraph.
struct RtfTramo {
    std::string texto;
    RtfEstilo estilo;
};

enum class RtfAlineacion { Izquierda, Centro, Derecha, Justificada };

struct RtfParrafo {
    std::vector<RtfTramo> tramos;
    RtfAlineacion alineacion = RtfAlineacion::Izquierda;
    std::string Texto() const;
};

struct RtfCelda {
    std::vector<RtfParrafo> parrafos;
};

struct RtfFila {
    std::vector<RtfCelda> celdas;
    std::vector<int> bordes;  // right edges of the cells in twips, as the row defined them
};

// A paragraph, or a table when `filas` is not empty.
struct RtfBloque {
    RtfParrafo parrafo;
    std::vector<RtfFila> filas;
    bool EsTabla() const { return !filas.empty(); }
};

struct RtfDocumento {
    std::vector<RtfBloque> bloques;
};

RtfDocumento LeeRtf(std::string_view bytes);

// A complete UTF-8 HTML page: paragraphs, real tables, styles as tags and inline CSS.
std::string DocumentoAHtml(const RtfDocumento& doc);
// Plain UTF-8 text: a line per paragraph, tables as aligned columns, a line per row; raised
// digits become superscript characters ("m²").
std::string DocumentoATexto(const RtfDocumento& doc);

inline std::string RtfAHtml(std::string_view bytes) { return DocumentoAHtml(LeeRtf(bytes)); }
inline std::string RtfATexto(std::string_view bytes) { return DocumentoATexto(LeeRtf(bytes)); }

}  // namespace vardena
