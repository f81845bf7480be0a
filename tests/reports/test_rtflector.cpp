// The RTF reader for display: what it keeps of the writer's reports, how it reads the wider
// RTF family, and that no input makes it fail.

#include <gtest/gtest.h>

#include <random>

#include "reports/MuestraInforme.h"
#include "reports/RtfLector.h"
#include "reports/mRtf.h"
#include "support/TestSupport.h"

namespace vardena {
namespace {

bool ValidUtf8(std::string_view s)
{
    for (size_t i = 0; i < s.size();) {
        const unsigned char b = static_cast<unsigned char>(s[i]);
        const size_t n = b < 0x80 ? 1 : (b & 0xE0) == 0xC0 ? 2 : (b & 0xF0) == 0xE0 ? 3 : (b & 0xF8) == 0xF0 ? 4 : 0;
        if (n == 0 || i + n > s.size())
            return false;
        for (size_t k = 1; k < n; ++k)
            if ((static_cast<unsigned char>(s[i + k]) & 0xC0) != 0x80)
                return false;
        i += n;
    }
    return true;
}

// The sample report with every fragment, as its bytes on disk.
std::string SampleReport(Declaraciones& d)
{
    test::ScratchDir dir;
    Informe inf(d);
    test::EveryFragment(inf);
    inf.Guarda(dir / "r.rtf");
    return test::ReadBytes(dir / "r.rtf");
}

TEST(RtfLector, ReadsBackTheWritersReport)
{
    test::TestApp app;
    app.decl.Unidades = 2;
    const RtfDocumento doc = LeeRtf(SampleReport(app.decl));
    const std::string tres = "Tres %                Definido (Sí/No)  Observaciones\n"
                             "Plano de cimentación  Sí                Zapatas de hormigón\n\n\n";
    const std::string cuatro = "Cuatro %           P     G      Q\n"
                               "Forjado planta 1ª  0.35  0.10   0.20\n"
                               "Cubierta           m·t   kN/m²\n\n\n";
    const auto with = [](std::string s, char n) { return s.replace(s.find('%'), 1, 1, n); };
    const std::string expected =
        "Informe de comprobación\n\n"
        "Obra: Edificio ÁTICO © 2024\n"
        "Datos generales\n"
        "\tNúmero de plantas:\t3\n"
        "\tLínea sin segundo texto\n"
        "\tSegundo texto vacío\n"  // the tab at the end of the line is dropped
        "\tMomento máximo:\t12.5 m·kN\n"
        "\tTensión admisible:\t2.5 N/mm² / 25 kg/cm²\n"
        "\tVolumen:\t3.2 m³, inercia 1.1 m⁴\n"
        "\tCoeficiente γc añadió:\t1.5\n"
        "\tPrimera línea\nsegunda línea\n"
        "\n"     // "Blan"
        "\n"     // the paragraph that opens a table
        "Dos uno                    Título B\n"
        "Fila añadida <nada> & más  Sí\n"
        "\n\n"  // the paragraph that closes it and the one that opens the next
        "Dos dos  Título C\n"
        "Negrita  No procede\n\n\n" +
        with(tres, '1') + with(tres, '2') + with(tres, '3') + with(cuatro, '1') + with(cuatro, '2') +
        "Notas: el cálculo se hizo según la EHE.\n\n"
        "\tFin del informe\n";
    EXPECT_EQ(DocumentoATexto(doc), expected);

    // Styles of the title and of a table's rows.
    ASSERT_FALSE(doc.bloques.empty());
    const RtfTramo& title = doc.bloques[0].parrafo.tramos.at(0);
    EXPECT_TRUE(title.estilo.negrita);
    EXPECT_EQ(title.estilo.tamano, 28);
    EXPECT_EQ(title.estilo.color, 0x0000FFu);
    std::vector<const RtfBloque*> tables;
    for (const auto& b : doc.bloques)
        if (b.EsTabla())
            tables.push_back(&b);
    ASSERT_EQ(tables.size(), 8u);
    const auto& rows = tables[2]->filas;  // three columns, kind 1
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].bordes, (std::vector<int>{3420, 6209, 9000}));
    EXPECT_EQ(rows[1].bordes, rows[0].bordes);
    EXPECT_TRUE(rows[0].celdas[1].parrafos[0].tramos[0].estilo.negrita);
    EXPECT_TRUE(rows[1].celdas[1].parrafos[0].tramos[0].estilo.negrita);  // flag 1
    EXPECT_FALSE(tables[3]->filas[1].celdas[1].parrafos[0].tramos[0].estilo.negrita);
    EXPECT_EQ(rows[1].celdas[1].parrafos[0].alineacion, RtfAlineacion::Centro);
    EXPECT_EQ(rows[1].celdas[0].parrafos[0].alineacion, RtfAlineacion::Izquierda);
}

TEST(RtfLector, HtmlHasStylesTablesAndEscapedText)
{
    test::TestApp app;
    const std::string html = RtfAHtml(SampleReport(app.decl));
    EXPECT_TRUE(ValidUtf8(html));
    for (const char* piece : {
             "<meta charset=\"utf-8\">",
             "<span style=\"font-size:14pt;color:#0000ff;\"><b>Informe de comprobación</b></span>",
             "<p><span style=\"color:#008000;\"><b>Obra: Edificio ÁTICO © 2024</b></span></p>",  // 12 pt is the default
             "<sup>2</sup>",
             "γ",
             "<table border=\"1\"",
             "<td width=\"38%\"><span style=\"font-size:8pt;color:#000000;\"><b>Tres 1</b></span></td>",
             "<td width=\"31%\" align=\"center\">",
             "Fila añadida &lt;nada&gt; &amp; más",
             "<td width=\"100%\">",
             "white-space:pre-wrap",
         })
        EXPECT_NE(html.find(piece), std::string::npos) << piece << "\n" << html;
    EXPECT_EQ(html.find("<nada>"), std::string::npos);
}

struct ReadRow {
    const char* name;
    std::string rtf;
    std::string text;
};

// Each row's RTF reads as its text; neither output is ever invalid UTF-8.
void ExpectReads(const std::vector<ReadRow>& rows)
{
    for (const auto& r : rows) {
        std::string text;
        ASSERT_NO_THROW(text = RtfATexto(r.rtf)) << r.name;
        EXPECT_EQ(text, r.text) << r.name;
        EXPECT_TRUE(ValidUtf8(text)) << r.name;
        EXPECT_TRUE(ValidUtf8(RtfAHtml(r.rtf))) << r.name;
    }
}

TEST(RtfLector, TheRtfFamily)
{
    const std::string h = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}}";
    const std::vector<ReadRow> rows = {
        {"hex escapes in Windows-1252", h + "a\\'f1o \\'80 \\'ba\\par}", "año € º\n"},
        {"raw Windows-1252 bytes", h + "\xC1tico\\par}", "Ático\n"},
        {"unicode with its fallback", h + "\\u8804?x\\par}", "≤x\n"},
        {"negative unicode", h + "\\u-3913?\\par}", "\xEF\x82\xB7\n"},
        {"fallback of two", h + "\\uc2\\u8364\\'80\\'80x\\par}", "€x\n"},
        {"no fallback", h + "\\uc0\\u8364 x\\par}", "€x\n"},
        {"surrogate pair", h + "\\u-10179?\\u-8704?\\par}", "😀\n"},
        {"literal braces and backslash", h + "\\{a\\}\\\\b\\par}", "{a}\\b\n"},
        {"special characters", h + "a\\~b\\emdash c\\ldblquote d\\rdblquote\\par}", "a\xC2\xA0" "b—c“d”\n"},
        {"line breaks and tabs", h + "a\\line b\\tab c\\par}", "a\nb\tc\n"},
        {"Symbol font", h + "{\\f1 abgs}\\f0  = 1\\par}", "αβγσ = 1\n"},
        {"Symbol font in the private area", h + "{\\f1\\u-3999?}\\par}", "α\n"},
        {"groups restore the style", h + "{\\b a}b\\par}", "ab\n"},
        {"unknown words are ignored", h + "\\foo12 a\\bar-3 b\\par}", "ab\n"},
        {"ignorable destinations", h + "{\\*\\generator Riched20;}{\\*\\unknown x}a\\par}", "a\n"},
        {"information and style sheet", h + "{\\stylesheet{\\s1 Heading;}}{\\info{\\title T}{\\author A}}a\\par}", "a\n"},
        {"pictures", h + "{\\pict\\wmetafile8 0a0b0c}a\\par}", "a\n"},
        {"binary data", h + "{\\bin4 {}\\}a\\par}", "a\n"},
        {"header and footnote skipped", h + "{\\header H}{\\footnote F}a\\par}", "a\n"},
        {"field result shown", h + "{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt enlace}}\\par}", "enlace\n"},
        {"line ends in the source are nothing", h + "a\r\nb\r\n\\par}", "ab\n"},
        {"escaped line end is a paragraph", h + "a\\\r\nb\\par}", "a\nb\n"},
        {"text after the last paragraph", h + "a\\par b}", "a\nb\n"},
        {"colour table", h + "{\\colortbl;\\red255\\green0\\blue0;}\\cf1 rojo\\par}", "rojo\n"},
        {"table without a closing row", h + "\\trowd\\cellx100\\cellx200\\intbl a\\cell b\\cell}", "a  b\n"},
        {"cell text in paragraphs", h + "\\trowd\\cellx100\\intbl a\\par b\\cell\\row\\pard}", "a\nb\n"},
        {"rows reuse the row definition", h + "\\trowd\\cellx100\\cellx200\\intbl a\\cell bb\\cell\\row"
                                            "\\intbl ccc\\cell d\\cell\\row\\pard\\par}",
         "a    bb\nccc  d\n\n"},
    };
    ExpectReads(rows);
}

TEST(RtfLector, StylesOfRuns)
{
    const std::string h = "{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}";
    struct Row {
        const char* name;
        std::string rtf;
        RtfEstilo estilo;
    };
    const std::vector<Row> rows = {
        {"bold", h + "\\b x}", {.negrita = true}},
        {"bold off", h + "\\b\\b0 x}", {}},
        {"italic and underline", h + "\\i\\ul x}", {.cursiva = true, .subrayado = true}},
        {"size", h + "\\fs16 x}", {.tamano = 16}},
        {"colour", h + "\\cf1 x}", {.color = 0xFF0000u}},
        {"colour out of the table", h + "\\cf9 x}", {}},
        {"raised", h + "\\up10 x}", {.posicion = 1}},
        {"raised off", h + "\\up10\\up0 x}", {}},
        {"superscript", h + "\\super x}", {.posicion = 1}},
        {"subscript", h + "\\sub x}", {.posicion = -1}},
        {"plain resets", h + "\\b\\i\\fs40\\cf1\\super\\plain x}", {}},
    };
    for (const auto& r : rows) {
        const RtfDocumento doc = LeeRtf(r.rtf);
        ASSERT_EQ(doc.bloques.size(), 1u) << r.name;
        ASSERT_EQ(doc.bloques[0].parrafo.tramos.size(), 1u) << r.name;
        EXPECT_TRUE(doc.bloques[0].parrafo.tramos[0].estilo == r.estilo) << r.name;
    }
}

TEST(RtfLector, MalformedInputStillGivesTheText)
{
    const std::string h = "{\\rtf1\\ansi ";
    const std::vector<ReadRow> rows = {
        {"unclosed groups", h + "{\\b uno {\\i dos", "uno dos\n"},
        {"stray closing braces", h + "uno}}}} dos\\par", "uno dos\n"},
        {"truncated hex escape", h + "a\\'", "a\n"},
        {"one hex digit", h + "a\\'4", "a\n"},  // byte 4, a control character
        {"bad hex digits", h + "a\\'zzb", "azzb\n"},
        {"lone backslash at the end", h + "a\\", "a\n"},
        {"truncated unicode", h + "a\\u", "a\n"},
        {"unicode without digits", h + "a\\u-b", "a-b\n"},
        {"huge parameter", h + "\\fs99999999999999999 a\\u99999999999?b", "a\xEF\xBF\xBF" "b\n"},
        {"binary longer than the file", h + "a\\bin999999999 xyz", "a\n"},
        {"lone low surrogate", h + "a\\u-8704?b", "ab\n"},
        {"NUL and control bytes", h + std::string("a\0b\x01\x1F" "c\x7F", 7) + "\\par}", "abc\n"},
        {"a very long control word", h + "\\" + std::string(100, 'x') + " a\\par}", std::string(68, 'x') + " a\n"},
        {"cells with no table", h + "a\\cell b\\row c\\par}", "a  b\nc\n"},
        {"only the prologue", "{\\rtf1", ""},
    };
    ExpectReads(rows);
}

TEST(RtfLector, DeepNestingAndRandomDamage)
{
    // A flood of open groups.
    std::string deep = "{\\rtf1 " + std::string(200000, '{') + "fondo" + std::string(100, '}');
    EXPECT_EQ(RtfATexto(deep), "fondo\n");

    // A real report, damaged at random: never a failure, always UTF-8, never raw text tags.
    test::TestApp app;
    const std::string report = SampleReport(app.decl);
    std::mt19937 rng(20240611);
    for (int round = 0; round < 300; ++round) {
        std::string bytes = report;
        const int edits = 1 + static_cast<int>(rng() % 20);
        for (int e = 0; e < edits && !bytes.empty(); ++e) {
            const size_t at = rng() % bytes.size();
            switch (rng() % 4) {
            case 0: bytes[at] = static_cast<char>(rng() & 0xFF); break;
            case 1: bytes.erase(at, 1 + rng() % 50); break;
            case 2: bytes.insert(at, 1, "{}\\'u0"[rng() % 6]); break;
            default: bytes.resize(at); break;
            }
        }
        std::string text, html;
        ASSERT_NO_THROW(text = RtfATexto(bytes)) << round;
        ASSERT_NO_THROW(html = RtfAHtml(bytes)) << round;
        EXPECT_TRUE(ValidUtf8(text)) << round;
        EXPECT_TRUE(ValidUtf8(html)) << round;
        EXPECT_EQ(html.find("<nada>"), std::string::npos) << round;
    }
}

TEST(RtfLector, PlainTextFilesAreReadByLines)
{
    EXPECT_EQ(RtfATexto("l\xEDnea uno\r\nl\xEDnea dos\rtres\n"), "línea uno\nlínea dos\ntres\n");
    EXPECT_EQ(RtfATexto(""), "");
    EXPECT_EQ(RtfATexto(std::string("\0\x01" "a\x02", 4)), "a\n");
    EXPECT_EQ(RtfATexto("  \r\n{\\rtf1 x}"), "x\n");
}

TEST(ShowCommand, PrintsTextOrHtmlAndFailsClearly)
{
    test::TestApp app;
    test::ScratchDir dir;
    test::WriteBytes(dir / "Viga 1.lVH", SampleReport(app.decl));
    std::string out, err;
    EXPECT_EQ(test::RunCli("show '" + (dir / "Viga 1.lVH") + "'", &out, &err), 0) << err;
    EXPECT_NE(out.find("\tNúmero de plantas:\t3\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Plano de cimentación  Sí"), std::string::npos) << out;
    EXPECT_EQ(test::RunCli("show --html '" + (dir / "Viga 1.lVH") + "'", &out, &err), 0) << err;
    EXPECT_NE(out.find("<table"), std::string::npos);
    EXPECT_NE(out.find("Número de plantas:"), std::string::npos);

    EXPECT_EQ(test::RunCli("show '" + (dir / "falta.rtf") + "'", &out, &err), 1);
    EXPECT_NE(err.find("falta.rtf"), std::string::npos) << err;
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), 1) << err;
    EXPECT_EQ(test::RunCli("show '" + dir.path() + "'", &out, &err), 1);
    EXPECT_NE(err.find(dir.path()), std::string::npos) << err;

    EXPECT_EQ(test::RunCli("show", &out, &err), 2);
    EXPECT_NE(err.find("usage: vardena show"), std::string::npos) << err;
    EXPECT_EQ(test::RunCli("show a.rtf b.rtf", &out, &err), 2);
    EXPECT_EQ(test::RunCli("show --txt a.rtf", &out, &err), 2);
}

}  // namespace
}  // namespace vardena
