#pragma once
// The report writer. Callers say what a line is by a four-letter tag and get back a finished
// RTF fragment, which they print to the report. All RTF knowledge of the program is here.
//
// Texts are UTF-8 inside the program; a report's fragments keep them so until the report is
// written to disk, where it becomes Windows-1252 (characters outside that code page are kept
// as RTF unicode escapes).

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

struct Declaraciones;

// The strings of a report: the fixed mark-up and the unit texts of the work's unit system.
struct TextosRtf {
    // The prologue, four lines; "Cabe" joins them into one.
    static constexpr std::array<std::string_view, 4> Prologo = {
        R"({\rtf1\ansi\ansicpg1252\deff0\deflang3082)",
        R"({\fonttbl {\f0\fswiss\fprq2\fcharset0 Arial;}{\f1\froman\fprq2\fcharset2 Symbol;}})",
        R"({\colortbl ;\red0\green0\blue255;\red0\green128\blue0;\red0\green0\blue0;})",
        R"(\viewkind4\uc1\pard\li400\tx700\tx4700)",
    };

    static constexpr std::string_view Titulo1 = R"(\f0\b\cf1\fs28 )";   // blue, 14 pt bold
    static constexpr std::string_view Titulo2 = R"(\f0\b\cf2\fs24 )";   // green, 12 pt bold
    static constexpr std::string_view Titulo3 = R"(\f0\b\cf3\fs20 )";   // black, 10 pt bold
    static constexpr std::string_view Cuerpo = R"(\f0\b0\cf3\fs20 )";   // body, 10 pt
    static constexpr std::string_view Simbolo = R"(\f1\b0\cf3\fs20 )";  // a run in the Symbol font
    static constexpr std::string_view TablaNegrita = R"(\f0\b\cf3\fs16 )";
    static constexpr std::string_view Tabla = R"(\f0\b0\cf3\fs16 )";
    static constexpr std::string_view SuperOn = R"(\up10\fs13 )";
    static constexpr std::string_view SuperOff = R"(\up0\fs20 )";
    static constexpr std::string_view Tab = R"(\tab )";
    static constexpr std::string_view Par = R"(\par)";
    static constexpr std::string_view FinDoc = "}";
    static constexpr std::string_view Centrado = R"(\qc )";
    static constexpr std::string_view Justificado = R"(\qj )";
    static constexpr std::string_view Izquierda = R"(\ql )";
    static constexpr std::string_view Derecha = R"(\qr )";

    // Table pieces; widths in twips.
    static constexpr int AnchoTabla = 9000;
    static constexpr std::string_view IniTabla = R"(\pard\f0\b0\cf3\fs16\par \trowd)";
    static constexpr std::string_view DefCelda =
        R"(\clbrdrt\brdrw15\brdrs\clbrdrl\brdrw15\brdrs\clbrdrb\brdrw15\brdrs\clbrdrr\brdrw15\brdrs \cellx)";
    static constexpr std::string_view FinCabecera = R"(\pard)";
    static constexpr std::string_view IniFila = R"(\intbl )";
    static constexpr std::string_view FinCelda = R"(\cell )";
    static constexpr std::string_view FinFila = R"(\row)";
    static constexpr std::string_view FinTabla = R"(\pard \par)";

    // Unit texts and the factors that turn internal values into them: a report prints
    // value x factor, then the text.
    std::string UnTension, UnFuerza, UnMomento, UnCargaSup, UnCargaLin;
    double FacTension = 0.1, FacFuerza = 1, FacMomento = 1, FacCargaSup = 1000, FacCargaLin = 1000;
    // Area, volume and fourth power of a length, the same in both systems.
    std::string UnArea, UnVolumen, UnCuarta;

    // A raised exponent: the digit between the superscript on and off texts.
    static std::string Exponente(std::string_view digit);
};

// The report strings for a unit system: 1 technical, any other value S.I.
TextosRtf IniciaRtf(int unidades);

// The nine escapes of report text, in order: "©", "á", "é", "í", "ó", "ú", "ñ", "·", and the
// carriage return, which becomes "\par" (a line feed stays). Nothing else is guarded, so that a
// caller's RTF (superscripts, font changes) takes effect; upper-case accented letters and "º"
// pass as they are. Text with "\n" line ends must pass "\r\n" to get paragraph breaks.
std::string EscapaRtf(std::string_view text);

// The edges of the cells of a table of `columnas` columns of kind `tipo`, as the "ColW" texts
// (whole twips); the last is the total width. A kind the table does not know takes kind 1.
std::vector<std::string> BordesTabla(int columnas, int tipo);

// A report in the making: the strings of IniciaRtf and the growing document.
class Informe {
public:
    // Takes the unit texts from the work's unit system now.
    explicit Informe(Declaraciones& d);
    // Uses report strings made earlier, so that the unit texts stay those of that time.
    Informe(Declaraciones& d, TextosRtf textos);

    // Takes the unit texts again from the unit system of `Declaraciones`.
    void IniciaRtf();
    const TextosRtf& Textos() const { return textos_; }

    // The fragment of a tagged line: "Cabe", "Tit1", "Tit2", "Tit3", "Tex1", "Blan", "FinD".
    // "Tex1" writes one tab before `text`, and a second one before `text2` when it is given,
    // even empty. An unknown tag is a programming error: message 171, then the program halts.
    std::string LineaRtf(std::string_view tag, std::string_view text = {},
                         std::optional<std::string_view> text2 = std::nullopt) const;
    // Table pieces: "CabI", "ColW" (a = right edge), "CabF", "IniF", "FinC", "FinF", "FinT";
    // anything else is a cell's text, followed by a and b as further paragraphs when not empty.
    std::string CeldaRtf(std::string_view tag, std::string_view a = {}, std::string_view b = {}) const;

    // Prints a fragment to the document as a line of its own.
    void Imprime(std::string_view fragment);
    // Prints LineaRtf(tag, text, text2).
    void Linea(std::string_view tag, std::string_view text = {},
               std::optional<std::string_view> text2 = std::nullopt);

    // A one-cell table holding `text`, whole width, closed.
    void TablaTexto(std::string_view text);
    // Tables of two, three and four columns: a header (edges and a bold row of titles),
    // then rows; `negrita` 1 makes a row bold. The caller closes the table with FinTabla.
    void CabeceraTabla2(int tipo, std::string_view t1, std::string_view t2);
    void FilaTabla2(std::string_view c1, std::string_view c2, int negrita);
    void CabeceraTabla3(int tipo, std::string_view t1, std::string_view t2, std::string_view t3);
    void FilaTabla3(std::string_view c1, std::string_view c2, std::string_view c3, int negrita);
    void CabeceraTabla4(int tipo, std::string_view t1, std::string_view t2, std::string_view t3,
                        std::string_view t4);
    void FilaTabla4(std::string_view c1, std::string_view c2, std::string_view c3, std::string_view c4,
                    int negrita);
    void FinTabla();

    // The document so far: UTF-8, each printed fragment followed by CR LF.
    const std::string& Documento() const { return doc_; }
    void Vacia() { doc_.clear(); }
    // Writes the document (Windows-1252) through a temporary file. Throws FileError.
    void Guarda(const std::string& path) const;

private:
    void Cabecera(int columnas, int tipo, std::span<const std::string_view> titulos);
    void Fila(std::span<const std::string_view> celdas, int negrita);

    Declaraciones& d_;
    TextosRtf textos_;
    std::string doc_;
};

// The bytes on disk of an RTF text held in UTF-8: Windows-1252, and "\uN?" for a character
// that code page lacks.
std::string RtfADisco(std::string_view utf8);

}  // namespace vardena
