// Number reading and formatting, text cutting, paths and list filling.

#include <gtest/gtest.h>

#include <cmath>

#include "support/TestSupport.h"
#include "base/Form.h"
#include "works/Subrut.h"
#include "base/VbFormat.h"

namespace vardena {
namespace {

struct ValComaRow {
    const char* name;
    std::string in;
    double value;
    std::string after;  // the caller's text after the call
};

TEST(ValComa, ReadsTheLeadingNumberAndChangesTheFirstCommaOnly)
{
    const std::vector<ValComaRow> rows = {
        {"empty", "", 0, ""},
        {"comma decimal", "1,5", 1.5, "1.5"},
        {"second comma stops", "1,234,5", 1.234, "1.234,5"},
        {"two commas", "2,5,5", 2.5, "2.5,5"},
        {"no number", "abc", 0, "abc"},
        {"leading blanks", "   7.25", 7.25, "   7.25"},
        {"negative", "-3,5", -3.5, "-3.5"},
        {"exponent", "1.5E2", 150, "1.5E2"},
        {"exponent without digits", "2e", 2, "2e"},
        {"trailing text", "12 cm", 12, "12 cm"},
        {"point first", ".5", 0.5, ".5"},
        {"sign only", "-", 0, "-"},
    };
    for (const auto& r : rows) {
        std::string text = r.in;
        EXPECT_DOUBLE_EQ(ValComa(text), r.value) << r.name;
        EXPECT_EQ(text, r.after) << r.name;
    }
}

TEST(Palabra, CountsRunsOfSeparatorsAsOne)
{
    EXPECT_EQ(Palabra(2, "\tA\t\tB", "\t"), "B");
    EXPECT_EQ(Palabra(1, "\tA\t\tB", "\t"), "A");
    EXPECT_EQ(Palabra(3, "\tA\t\tB", "\t"), "");
    EXPECT_EQ(Palabra(2, "Vardena 3\t3.50", " "), "3\t3.50");
    EXPECT_EQ(Palabra(2, "Vardena 3\t3.50", "\t"), "3.50");
    EXPECT_EQ(Palabra(1, "", " "), "");
    EXPECT_EQ(Palabra(1, "  uno  dos", " "), "uno");
}

TEST(Redondea, RoundsHalvesAwayFromZero)
{
    struct Row {
        double v;
        int decimals;
        double expected;
    };
    const std::vector<Row> rows = {
        {2.5, 0, 3}, {-2.5, 0, -3}, {0, 0, 0}, {2.4, 0, 2}, {-2.4, 0, -2}, {1.2345, 3, 1.235}, {0.30000001, 3, 0.3},
    };
    for (const auto& r : rows)
        EXPECT_DOUBLE_EQ(Redondea(r.v, r.decimals), r.expected) << r.v << " to " << r.decimals;
}

TEST(Formato, MasksRoundHalfAwayFromZeroOnTheDecimalValue)
{
    struct Row {
        const char* name;
        std::string got;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {"0 of 2.5", Formato0(2.5), "3"},
        {"0 of -2.5", Formato0(-2.5), "-3"},
        {"0 of -0.4", Formato0(-0.4), "0"},
        {"0.0 of 0.05", Formato0_0(0.05), "0.1"},
        {"0.00 of 2.675 (binary just below)", Formato00(2.675), "2.68"},
        {"0.00 of 1.005", Formato00(1.005), "1.01"},
        {"0.00 of single 0.1", Formato00(0.1f), "0.10"},
        {"0.00 of 999.995", Formato00(999.995), "1000.00"},
        {"0.00 of 3.5", Formato00Punto(3.5), "3.50"},
        {"0.00 of 3.01 single", Formato00Punto(3.01f), "3.01"},
        {"0.00 of 0", Formato00Punto(0), "0.00"},
        {"0 of 1e10", Formato0(1e10), "10000000000"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(r.got, r.expected) << r.name;
}

TEST(FormatoNum, PrintsTheRunTimesPlainTextOfASingle)
{
    struct Row {
        float v;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {1.5f, "1.5"},      {0.5f, "0.5"},    {-0.5f, "-.5"},       {3.01f, "3.01"},       {0, "0"},
        {40, "40"},         {0.1f, "0.1"},    {12345678, "1.234568E+07"}, {0.305f, "0.305"}, {1e-7f, "1E-07"},
        {2.5f * 10, "25"}, {1234567, "1234567"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(FormatoNum(r.v), r.expected) << r.v;
    EXPECT_EQ(VbStr(3.01f), " 3.01");
    EXPECT_EQ(VbStr(-2.0f), "-2");
    EXPECT_EQ(FormatoNum(0.1 + 0.2), "0.3");
}

TEST(Paths, SeparatorAddedOnceAndLastSeparatorCuts)
{
    EXPECT_EQ(ConBarra("/obras"), "/obras/");
    EXPECT_EQ(ConBarra("/obras/"), "/obras/");
    EXPECT_EQ(CarpetaDe("/obras/casa/DATOS.~CE"), "/obras/casa");
    EXPECT_EQ(ArchivoDe("/obras/casa/DATOS.~CE"), "DATOS.~CE");
    EXPECT_EQ(CarpetaDe("DATOS.~CE"), "");
    EXPECT_EQ(ArchivoDe("/DATOS.~CE"), "");
    EXPECT_EQ(CambiaCar("a,b,c", ",", "."), "a.b.c");
    EXPECT_EQ(CambiaCar("a,b", "", "."), "");
}

TEST(AcortaRuta, NeverCutsAFolderName)
{
    EXPECT_EQ(AcortaRuta("/home/ana/obras", 30), "/home/ana/obras");
    EXPECT_EQ(AcortaRuta("/home/ana/obras/casa de campo/planos", 20), "/ho.../planos");
    // No separator in the last n - 6 characters: only the head and "...".
    EXPECT_EQ(AcortaRuta("/a/bbbbbbbbbbbbbbbbbbbbbbbbbbbbbb", 12), "/a/...");
}

class ListHelpers : public ::testing::Test {
protected:
    test::TestApp app;
    Form form{app.decl, "frmPrueba"};
    Control& list = form.Add(Kind::ListBox, "List1");
    test::ScratchDir dir;
};

TEST_F(ListHelpers, ListaArchivosListsByExtensionInNameOrder)
{
    for (const char* f : {"b.lZC", "A.lzc", "c.~ZC", "d.lZCX", "e.lHJ"})
        test::WriteBytes(dir / f, "x");
    ListaArchivos("lZC", dir.path(), list, "b");
    ASSERT_EQ(list.ListCount(), 2);
    EXPECT_EQ(list.List(0), "A");
    EXPECT_EQ(list.List(1), "b");
    EXPECT_TRUE(list.Selected(1));
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(ListHelpers, ListaArchivosWithNoMatchLeavesAnEmptyList)
{
    list.AddItem("old");
    ListaArchivos("lZC", dir.path(), list, "old");
    EXPECT_EQ(list.ListCount(), 0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ListHelpers, SeleccionaEnListaSelectsEveryEqualRow)
{
    for (const char* t : {"x", "y", "x"})
        list.AddItem(t);
    SeleccionaEnLista(list, "x");
    EXPECT_TRUE(list.Selected(0));
    EXPECT_FALSE(list.Selected(1));
    EXPECT_TRUE(list.Selected(2));
}

TEST_F(ListHelpers, LlenaPlantasNamesEveryLevel)
{
    app.decl.Mensajes[1] = "Planta";
    app.decl.Mensajes[2] = "Planta baja";
    app.decl.Mensajes[3] = "Sótano";
    app.decl.Mensajes[17] = "Cubierta";
    app.decl.NPlantasSobre = 3;
    app.decl.NPlantasBajo = 2;
    Control& cmb = form.Add(Kind::ComboBox, "CmbPlanta");
    LlenaPlantas(form, 0);
    const std::vector<std::string> expected = {"Cubierta", " 2 Planta", " 1 Planta", "Planta baja", "-1 Sótano",
                                               "-2 Sótano"};
    EXPECT_EQ(cmb.Items(), expected);
    LlenaPlantas(form, 1);
    EXPECT_EQ(cmb.ListCount(), 5);
}

TEST(Materiales, TablesAndTheirFailures)
{
    test::TestApp app;
    app.decl.Mensajes[164] = "Nivel de control erróneo";
    app.decl.Mensajes[165] = "Error";
    double gc = 0, gs = 0;
    Coeficientes(app.decl, 2, gc, gs);
    EXPECT_DOUBLE_EQ(gc, 1.35);
    EXPECT_DOUBLE_EQ(gs, 1.5);
    Coeficientes(app.decl, 3, gc, gs);
    EXPECT_DOUBLE_EQ(gc, 1.35) << "a bad index keeps the values";
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].prompt, "Nivel de control erróneo");
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);

    EXPECT_EQ(FckIndice(app.decl, 0), 1000);
    EXPECT_EQ(FckIndice(app.decl, 8), 5000);
    EXPECT_FALSE(FckIndice(app.decl, 9).has_value());
    EXPECT_EQ(FykIndice(app.decl, 1), 51000);
    EXPECT_FALSE(FykIndice(app.decl, 2).has_value());
    EXPECT_EQ(app.ui.boxes.size(), 3u);

    EXPECT_FLOAT_EQ(FyAcero(4), 28000);
    EXPECT_FLOAT_EQ(FyAcero(3), FyAcero(0));
    EXPECT_EQ(NombreAcero(6), "S 450");
    EXPECT_THROW(FyAcero(7), ProgramHalt);
    EXPECT_THROW(NombreAcero(-1), ProgramHalt);

    EXPECT_EQ(IndiceMaterial(0, 4), 4);
    EXPECT_EQ(IndiceMaterial(3, 4), 2);
}

TEST(Armaduras, AreasFromTheControlsTexts)
{
    test::TestApp app;
    Form form(app.decl, "frmPrueba");
    Control& c = form.Add(Kind::UCNumDiamSep, "UCArCer");
    c.Set("NumBarras", "4");
    c.Set("Diametro", "12 ");
    c.Set("Separacion", "20");
    const double bar = kPi * 0.006 * 0.006;
    EXPECT_NEAR(AreaBarras(c, 1), 4 * bar, 1e-12);
    EXPECT_NEAR(AreaSeparacion(c, 2), 5 * bar * 2, 1e-12);
    c.Set("Separacion", "0");
    EXPECT_EQ(AreaSeparacion(c, 1), 0);
}

}  // namespace
}  // namespace vardena
