// The report writer: tagged lines, table pieces, escapes, unit texts, table writers and the
// document on disk.

#include <gtest/gtest.h>

#include "reports/mRtf.h"
#include "support/TestSupport.h"
#include "base/Codepage.h"
#include "base/FileIo.h"

namespace vardena {
namespace {

const std::string kProlog = R"({\rtf1\ansi\ansicpg1252\deff0\deflang3082)"
                            R"({\fonttbl {\f0\fswiss\fprq2\fcharset0 Arial;}{\f1\froman\fprq2\fcharset2 Symbol;}})"
                            R"({\colortbl ;\red0\green0\blue255;\red0\green128\blue0;\red0\green0\blue0;})"
                            R"(\viewkind4\uc1\pard\li400\tx700\tx4700)";

struct LineaRow {
    const char* name;
    std::string tag, text;
    std::optional<std::string> text2;
    std::string expected;
};

TEST(LineaRtf, EachTagGivesItsFragment)
{
    const std::vector<LineaRow> rows = {
        {"Cabe joins the prologue on one line", "Cabe", "ignored", std::nullopt, kProlog},
        {"Tit1 ends in two paragraphs", "Tit1", "Vigas", std::nullopt, R"(\f0\b\cf1\fs28 Vigas\par\par)"},
        {"Tit2 ends in one", "Tit2", "Obra", std::nullopt, R"(\f0\b\cf2\fs24 Obra\par)"},
        {"Tit3 ends in one", "Tit3", "Datos", std::nullopt, R"(\f0\b\cf3\fs20 Datos\par)"},
        {"Tex1 without a second text: one tab", "Tex1", "Plantas", std::nullopt,
         R"(\f0\b0\cf3\fs20 \tab Plantas\par)"},
        {"Tex1 with an empty second text: two tabs", "Tex1", "Plantas", "", R"(\f0\b0\cf3\fs20 \tab Plantas\tab \par)"},
        {"Tex1 with two texts", "Tex1", "Plantas", "3", R"(\f0\b0\cf3\fs20 \tab Plantas\tab 3\par)"},
        {"Tex1 escapes both texts", "Tex1", "Altura", "añadió", R"(\f0\b0\cf3\fs20 \tab Altura\tab a\'f1adi\'f3\par)"},
        {"Blan", "Blan", "x", std::nullopt, R"(\par)"},
        {"FinD", "FinD", "x", std::nullopt, "}"},
        {"a carriage return becomes a paragraph, a line feed stays", "Tit3", "a\rb\nc", std::nullopt,
         "\\f0\\b\\cf3\\fs20 a\\parb\nc\\par"},
        {"caller's RTF passes", "Tex1", "m{\\up10\\fs13 2}", std::nullopt,
         R"(\f0\b0\cf3\fs20 \tab m{\up10\fs13 2}\par)"},
    };
    test::TestApp app;
    Informe inf(app.decl);
    for (const auto& r : rows) {
        const auto t2 = r.text2 ? std::optional<std::string_view>(*r.text2) : std::nullopt;
        EXPECT_EQ(inf.LineaRtf(r.tag, r.text, t2), r.expected) << r.name;
    }
    EXPECT_TRUE(app.ui.boxes.empty());
}

TEST(LineaRtf, AnUnknownTagShowsMessage171AndHalts)
{
    for (const char* tag : {"Tit4", "tit1", "", "Tex1 "}) {
        test::TestApp app;
        app.decl.Mensajes[171] = "Etiqueta de informe desconocida";
        Informe inf(app.decl);
        EXPECT_THROW(inf.LineaRtf(tag, "x"), ProgramHalt) << tag;
        ASSERT_EQ(app.ui.boxes.size(), 1u) << tag;
        EXPECT_EQ(app.ui.boxes[0].prompt, "Etiqueta de informe desconocida");
        // Linea prints nothing of a line that halted.
        EXPECT_THROW(inf.Linea(tag, "x"), ProgramHalt);
        EXPECT_TRUE(inf.Documento().empty());
    }
}

TEST(CeldaRtf, TablePiecesAndCells)
{
    const std::string def =
        R"(\clbrdrt\brdrw15\brdrs\clbrdrl\brdrw15\brdrs\clbrdrb\brdrw15\brdrs\clbrdrr\brdrw15\brdrs \cellx)";
    struct Row {
        const char* name;
        std::string tag, a, b, expected;
    };
    const std::vector<Row> rows = {
        {"row start", "CabI", "", "", R"(\pard\f0\b0\cf3\fs16\par \trowd)"},
        {"cell definition with its edge", "ColW", "3420", "", def + "3420"},
        {"header end", "CabF", "", "", R"(\pard)"},
        {"row start in a table", "IniF", "", "", R"(\intbl )"},
        {"cell end", "FinC", "", "", R"(\cell )"},
        {"row end", "FinF", "", "", R"(\row)"},
        {"table end", "FinT", "", "", R"(\pard \par)"},
        {"a cell's text", "Canto", "", "", R"(Canto\cell )"},
        {"text and a", "Canto", "30 cm", "", R"(Canto\par 30 cm\cell )"},
        {"text, a and b", "Canto", "30", "cm", R"(Canto\par 30\par cm\cell )"},
        {"empty a, b present", "Canto", "", "cm", R"(Canto\par cm\cell )"},
        {"escaped", "Sí", "años", "", R"(S\'ed\par a\'f1os\cell )"},
        {"empty text is a cell", "", "", "", R"(\cell )"},
    };
    test::TestApp app;
    Informe inf(app.decl);
    for (const auto& r : rows)
        EXPECT_EQ(inf.CeldaRtf(r.tag, r.a, r.b), r.expected) << r.name;
}

TEST(EscapaRtf, NinePairsOthersPass)
{
    struct Row {
        std::string in, out;
    };
    const std::vector<Row> rows = {
        {"añadió", R"(a\'f1adi\'f3)"},
        {"©áéíóúñ·", R"(\'a9\'e1\'e9\'ed\'f3\'fa\'f1\'b7)"},
        {"ááá", R"(\'e1\'e1\'e1)"},
        {"m·t", R"(m\'b7t)"},
        {"a\r\nb", "a\\par\nb"},
        // Upper-case accents, ü and º are not escaped; braces and backslashes not guarded.
        {"ÁÉÍÓÚÑ ü º", "ÁÉÍÓÚÑ ü º"},
        {"{\\b x}", "{\\b x}"},
        {"", ""},
    };
    for (const auto& r : rows)
        EXPECT_EQ(EscapaRtf(r.in), r.out) << r.in;
}

TEST(IniciaRtf, UnitTextsAndFactorsBySystem)
{
    const std::string sq = R"(\up10\fs13 2\up0\fs20 )";
    struct Row {
        int unidades;
        std::string tension, fuerza, momento, cargaSup, cargaLin;
        double fT, fF, fM, fS, fL;
    };
    const std::vector<Row> rows = {
        {1, "kg/cm" + sq, "t.", "m·t", "kg/m" + sq, "kg/m", 0.1, 1, 1, 1000, 1000},
        {2, "N/mm" + sq, "kN", "m·kN", "kN/m" + sq, "kN/m", 0.01, 10, 10, 10, 10},
        {0, "N/mm" + sq, "kN", "m·kN", "kN/m" + sq, "kN/m", 0.01, 10, 10, 10, 10},
    };
    for (const auto& r : rows) {
        const TextosRtf t = IniciaRtf(r.unidades);
        EXPECT_EQ(t.UnTension, r.tension) << r.unidades;
        EXPECT_EQ(t.UnFuerza, r.fuerza) << r.unidades;
        EXPECT_EQ(t.UnMomento, r.momento) << r.unidades;
        EXPECT_EQ(t.UnCargaSup, r.cargaSup) << r.unidades;
        EXPECT_EQ(t.UnCargaLin, r.cargaLin) << r.unidades;
        EXPECT_DOUBLE_EQ(t.FacTension, r.fT);
        EXPECT_DOUBLE_EQ(t.FacFuerza, r.fF);
        EXPECT_DOUBLE_EQ(t.FacMomento, r.fM);
        EXPECT_DOUBLE_EQ(t.FacCargaSup, r.fS);
        EXPECT_DOUBLE_EQ(t.FacCargaLin, r.fL);
        EXPECT_EQ(t.UnArea, "m" + sq);
        EXPECT_EQ(t.UnVolumen, R"(m\up10\fs13 3\up0\fs20 )");
        EXPECT_EQ(t.UnCuarta, R"(m\up10\fs13 4\up0\fs20 )");
    }
}

TEST(IniciaRtf, UnitTextsAreTakenOnceAndKept)
{
    test::TestApp app;
    app.decl.Unidades = 2;
    Informe inf(app.decl);
    app.decl.Unidades = 1;  // another work, in the technical system
    EXPECT_EQ(inf.Textos().UnFuerza, "kN");
    Informe later(app.decl, inf.Textos());
    EXPECT_EQ(later.Textos().UnFuerza, "kN");
    later.IniciaRtf();
    EXPECT_EQ(later.Textos().UnFuerza, "t.");
}

TEST(BordesTabla, EdgesByColumnsAndKind)
{
    struct Row {
        int columnas, tipo;
        std::vector<std::string> edges;
    };
    const std::vector<Row> rows = {
        {1, 1, {"9000"}},
        {2, 1, {"5400", "9000"}},
        {2, 2, {"4500", "9000"}},
        {3, 1, {"3420", "6209", "9000"}},  // 0.69 x 9000 falls short of 6210 in binary
        {3, 2, {"4500", "6750", "9000"}},
        {3, 3, {"4500", "6120", "9000"}},
        {4, 1, {"2250", "4500", "6750", "9000"}},
        {4, 2, {"3960", "5760", "7380", "9000"}},
        {2, 7, {"5400", "9000"}},  // an unknown kind takes kind 1
    };
    for (const auto& r : rows)
        EXPECT_EQ(BordesTabla(r.columnas, r.tipo), r.edges) << r.columnas << " columns, kind " << r.tipo;
}

TEST(TablaWriters, HeaderRowsAndCellAlignment)
{
    test::TestApp app;
    Informe inf(app.decl);
    inf.CabeceraTabla3(1, "Norma", "Sí/No", "Observaciones");
    inf.FilaTabla3("EHE-08", "Sí", "", 0);
    inf.FilaTabla3("CTE", "No", "ver", 1);
    inf.FinTabla();
    const std::string def =
        R"(\clbrdrt\brdrw15\brdrs\clbrdrl\brdrw15\brdrs\clbrdrb\brdrw15\brdrs\clbrdrr\brdrw15\brdrs \cellx)";
    const std::string expected = std::string(R"(\pard\f0\b0\cf3\fs16\par \trowd)") + "\r\n" +  //
                                 def + "3420\r\n" + def + "6209\r\n" + def + "9000\r\n" +          //
                                 R"(\pard)" + "\r\n" +                                             //
                                 R"(\intbl )" + "\r\n" +                                           //
                                 R"(\ql \f0\b\cf3\fs16 Norma\cell )" + "\r\n" +                    //
                                 R"(\qc \f0\b\cf3\fs16 S\'ed/No\cell )" + "\r\n" +                 //
                                 R"(\qc \f0\b\cf3\fs16 Observaciones\cell )" + "\r\n" +            //
                                 R"(\row)" + "\r\n" +                                              //
                                 R"(\intbl )" + "\r\n" +                                           //
                                 R"(\ql \f0\b0\cf3\fs16 EHE-08\cell )" + "\r\n" +                  //
                                 R"(\qc \f0\b0\cf3\fs16 S\'ed\cell )" + "\r\n" +                   //
                                 R"(\qc \f0\b0\cf3\fs16 \cell )" + "\r\n" +                        //
                                 R"(\row)" + "\r\n" +                                              //
                                 R"(\intbl )" + "\r\n" +                                           //
                                 R"(\ql \f0\b\cf3\fs16 CTE\cell )" + "\r\n" +                      //
                                 R"(\qc \f0\b\cf3\fs16 No\cell )" + "\r\n" +                       //
                                 R"(\qc \f0\b\cf3\fs16 ver\cell )" + "\r\n" +                      //
                                 R"(\row)" + "\r\n" +                                              //
                                 R"(\pard \par)" + "\r\n";
    EXPECT_EQ(inf.Documento(), expected);
}

TEST(TablaWriters, TablaTextoIsAClosedOneCellTable)
{
    test::TestApp app;
    Informe inf(app.decl);
    inf.TablaTexto("Notas");
    const std::string expected =
        "\\pard\\f0\\b0\\cf3\\fs16\\par \\trowd\r\n"
        "\\clbrdrt\\brdrw15\\brdrs\\clbrdrl\\brdrw15\\brdrs\\clbrdrb\\brdrw15\\brdrs\\clbrdrr\\brdrw15\\brdrs "
        "\\cellx9000\r\n"
        "\\pard\r\n\\intbl \r\n\\f0\\b0\\cf3\\fs16 Notas\\cell \r\n\\row\r\n\\pard \\par\r\n";
    EXPECT_EQ(inf.Documento(), expected);
}

TEST(TablaWriters, EveryShapeHasAsManyCellsAsEdges)
{
    test::TestApp app;
    Informe inf(app.decl);
    inf.CabeceraTabla2(1, "a", "b");
    inf.FilaTabla2("1", "2", 0);
    inf.FinTabla();
    inf.CabeceraTabla2(2, "a", "b");
    inf.FinTabla();
    inf.CabeceraTabla4(2, "a", "b", "c", "d");
    inf.FilaTabla4("1", "2", "3", "4", 1);
    inf.FinTabla();
    const std::string& doc = inf.Documento();
    const auto count = [&](std::string_view s) {
        size_t n = 0;
        for (size_t k = doc.find(s); k != std::string::npos; k = doc.find(s, k + 1))
            ++n;
        return n;
    };
    EXPECT_EQ(count("\\cellx"), 2u + 2u + 4u);
    EXPECT_EQ(count("\\cell "), 4u + 2u + 8u);
    EXPECT_EQ(count("\\row"), 2u + 1u + 2u);
    EXPECT_EQ(count("\\trowd"), 3u);
    EXPECT_EQ(count("\\pard \\par"), 3u);
}

TEST(InformeGuarda, WritesWindows1252AndKeepsOtherCharactersAsUnicode)
{
    test::TestApp app;
    test::ScratchDir dir;
    Informe inf(app.decl);
    inf.Linea("Cabe");
    inf.Linea("Tit1", "CÁLCULO ºC añadió");
    inf.Linea("Tex1", "Tensión σ = 2 €", "≤ 5 \xF0\x9F\x98\x80");
    inf.Linea("FinD");
    const std::string path = dir / "informe.rtf";
    inf.Guarda(path);
    const std::string bytes = test::ReadBytes(path);
    EXPECT_EQ(bytes.substr(0, kProlog.size() + 2), kProlog + "\r\n");
    EXPECT_NE(bytes.find("C\xC1LCULO \xBA"
                         "C a\\'f1adi\\'f3\\par\\par\r\n"),
              std::string::npos);
    EXPECT_NE(bytes.find("Tensi\\'f3n \\u963? = 2 \x80"), std::string::npos);
    EXPECT_NE(bytes.find("\\u8804? 5 \\u-10179?\\u-8704?"), std::string::npos);
    EXPECT_EQ(bytes.substr(bytes.size() - 3), "}\r\n");
    EXPECT_TRUE(LooksLikeText(bytes));
}

TEST(InformeGuarda, AFailedWriteLeavesTheOldFile)
{
    test::TestApp app;
    test::ScratchDir dir;
    const std::string path = dir / "listado.rtf";
    test::WriteBytes(path, "old");
    Informe inf(app.decl);
    inf.Linea("Cabe");
    auto old = SetFileSystemSeam({[](const std::string&, std::string_view) { return false; }, {}});
    EXPECT_THROW(inf.Guarda(path), FileError);
    SetFileSystemSeam(old);
    EXPECT_EQ(test::ReadBytes(path), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace vardena
