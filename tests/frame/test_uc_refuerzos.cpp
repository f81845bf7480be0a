// The reinforcement entry controls: their lists, the user's picks and the footing control's
// rule that keeps bars and spacing consistent.

#include <gtest/gtest.h>

#include <array>

#include "frame/Refuerzos.h"
#include "support/TestSupport.h"
#include "base/Form.h"

namespace vardena {
namespace {

struct Fixture : ::testing::Test {
    test::TestApp app;
    Form form{app.decl, "frmPrueba"};
    int cambios = 0;

    Control& Nuevo(Kind kind, const std::string& name)
    {
        Control& c = form.Add(kind, name);
        InstalaControlCompuesto(c);
        c.onChange = [this](Control&) { ++cambios; };
        return c;
    }
};

using RefuerzoListas = Fixture;

TEST_F(RefuerzoListas, RowsOfEveryListCarryATrailingBlank)
{
    struct Row {
        Kind kind;
        ListaRefuerzo lista;
        std::vector<std::string> filas;
    };
    const std::vector<Row> rows = {
        {Kind::UCNumDiam, ListaRefuerzo::Num, {"1 ", "2 ", "3 ", "4 ", "5 ", "6 ", "7 ", "8 ", "9 ", "10 ", "11 ", "12 "}},
        {Kind::UCNumDiam, ListaRefuerzo::Diam, {"6 ", "8 ", "10 ", "12 ", "14 ", "16 ", "20 ", "25 ", "32 ", "40 "}},
        {Kind::UCNumDiamSep, ListaRefuerzo::Num, {"1 ", "2 ", "3 ", "4 "}},
        {Kind::UCNumDiamSep, ListaRefuerzo::Diam, {"6 ", "8 ", "10 ", "12 "}},
        {Kind::UCMallazo, ListaRefuerzo::Num, {}},
        {Kind::UCMallazo, ListaRefuerzo::Diam, {"4 ", "4.5 ", "5 ", "5.5 ", "6 ", "7 ", "8 ", "9 ", "10 ", "12 "}},
        {Kind::UCZapatas, ListaRefuerzo::Num, {}},
        {Kind::UCZapatas, ListaRefuerzo::Diam, {"6 ", "8 ", "10 ", "12 ", "14 ", "16 ", "20 ", "25 "}},
        {Kind::TextBox, ListaRefuerzo::Diam, {}},
    };
    for (const Row& r : rows)
        EXPECT_EQ(FilasRefuerzo(r.kind, r.lista), r.filas) << KindName(r.kind);
}

TEST_F(RefuerzoListas, APickPutsTheRowOnTheLabelAndRaisesChangeOnce)
{
    Control& c = Nuevo(Kind::UCNumDiam, "UCArVig");
    EXPECT_EQ(FilaElegidaRefuerzo(c, ListaRefuerzo::Diam), -1);
    EligeFilaRefuerzo(c, ListaRefuerzo::Diam, 7);
    EXPECT_EQ(c.Get("Diametro"), "25 ");
    EXPECT_EQ(FilaElegidaRefuerzo(c, ListaRefuerzo::Diam), 7);
    EXPECT_EQ(cambios, 1);
    EligeFilaRefuerzo(c, ListaRefuerzo::Num, 0);
    EXPECT_EQ(c.Get("NumBarras"), "1 ");
    EXPECT_EQ(cambios, 2);

    Control& m = Nuevo(Kind::UCMallazo, "UCMall");
    EligeFilaRefuerzo(m, ListaRefuerzo::Diam, 1);
    EXPECT_EQ(m.Get("Diametro"), "4.5 ");
    EXPECT_EQ(cambios, 3);
}

TEST_F(RefuerzoListas, BadPicksAndBadPropertiesAreErrorsThatChangeNothing)
{
    Control& c = Nuevo(Kind::UCNumDiamSep, "UCArCer");
    const auto numero = [](auto fn) { return test::PropertyErrorNumber(fn); };
    EXPECT_EQ(numero([&] { EligeFilaRefuerzo(c, ListaRefuerzo::Num, 4); }), 380);
    EXPECT_EQ(numero([&] { EligeFilaRefuerzo(c, ListaRefuerzo::Diam, -1); }), 380);
    EXPECT_EQ(numero([&] { EscribeNumBarras(c, "3"); }), 438);
    EXPECT_EQ(numero([&] { c.Set("AnchoZap", "100"); }), 438);
    EXPECT_EQ(numero([&] { c.Get("Perfil"); }), 438);
    Control& m = Nuevo(Kind::UCMallazo, "UCMall");
    EXPECT_EQ(numero([&] { EligeFilaRefuerzo(m, ListaRefuerzo::Num, 0); }), 438);
    EXPECT_EQ(numero([&] { m.Set("Por_metro", "quizá"); }), 438);
    Control& z = Nuevo(Kind::UCZapatas, "UCZap");
    EXPECT_EQ(numero([&] { z.Set("Por_metro", "quizá"); }), 13);
    EXPECT_EQ(c.Get("NumBarras"), "2");
    EXPECT_EQ(cambios, 0);
}

TEST_F(RefuerzoListas, TypingTheSpacingRaisesChangeButSettersDoNot)
{
    Control& c = Nuevo(Kind::UCNumDiamSep, "UCArCer");
    c.Set("Separacion", "20");
    c.Set("NumBarras", "3");
    EXPECT_EQ(cambios, 0);
    EscribeSeparacion(c, "25");
    EXPECT_EQ(c.Get("Separacion"), "25");
    EXPECT_EQ(cambios, 1);
    EscribeSeparacion(c, "25");  // the same text: the box raises nothing
    EXPECT_EQ(cambios, 1);
    EscribeSeparacion(c, "abc");  // kept as typed; it reads as 0 where it is used
    EXPECT_EQ(c.Get("Separacion"), "abc");
    EXPECT_EQ(cambios, 2);
}

using Zapatas = Fixture;

// One change to a footing control and what the rule makes of it. Each control is first brought
// to 8 bars at the spacing the rule gives them (20 for a width of 150, not per metre).
TEST_F(Zapatas, RuleTable)
{
    struct Row {
        const char* name;
        bool porMetro;
        const char* ancho;
        const char* prop;  // set through the property setter
        const char* valor;
        const char* numBarras;
        const char* separacion;
    };
    const std::vector<Row> rows = {
        {"one bar keeps its spacing", false, "150", "NumBarras", "1", "1", "20"},
        {"no number keeps the spacing", false, "150", "NumBarras", "x", "x", "20"},
        {"bars give (w - 10) / (c - 1)", false, "150", "NumBarras", "4", "4", "46.66667"},
        {"two bars", false, "150", "NumBarras", "2", "2", "140"},
        {"spacing gives (w - 10) / s + 1", false, "150", "Separacion", "25", "6", "25"},
        {"spacing 0 shows one bar", false, "150", "Separacion", "0", "1", "0"},
        {"negative spacing shows one bar", false, "150", "Separacion", "-5", "1", "-5"},
        {"non-numeric spacing reads as 0", false, "150", "Separacion", "abc", "1", "abc"},
        {"decimal comma", false, "150", "Separacion", "17,5", "9", "17,5"},
        {"per metre: bars give w / c", true, "100", "NumBarras", "6", "6", "16.66667"},
        {"per metre: spacing gives w / s", true, "100", "Separacion", "12", "8", "12"},
        {"per metre: width taken whole", true, "-100.9", "Separacion", "25", "4", "25"},
        {"a new width moves the spacing", false, "210", "AnchoZap", "210", "8", "28.57143"},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Control& z = Nuevo(Kind::UCZapatas, std::string("UCZap") + r.name);
        z.Set("Por_metro", r.porMetro ? "True" : "False");
        // The width goes in first with the bars at 1, so that it moves nothing by itself.
        z.Set("NumBarras", "1");
        z.Set("AnchoZap", r.ancho);
        z.Set("NumBarras", "8");
        z.Set("Separacion", "15");
        z.Set("NumBarras", "8");
        if (std::string(r.prop) == "AnchoZap")
            z.Set("AnchoZap", "150");
        ASSERT_EQ(z.Get("NumBarras"), "8");
        z.Set(r.prop, r.valor);
        EXPECT_EQ(z.Get("NumBarras"), r.numBarras);
        EXPECT_EQ(z.Get("Separacion"), r.separacion);
    }
    EXPECT_EQ(cambios, 0);
}

// A new spacing gives the integer part of the quotient as the division gives it, plus 1 when
// not per metre: nothing is added to the quotient first. A spacing that stands a hair above an
// exact division gives one bar less; exact multiples give their whole number, also where the
// decimal spacing has no exact binary form, and the one quotient that falls below its whole
// number in floating point (140 / 1.12) takes the bar count of that quotient.
TEST_F(Zapatas, BarsFromASpacingAreTheIntegerPartOfTheQuotient)
{
    struct Row {
        bool porMetro;
        const char* ancho;
        const char* separacion;
        const char* barras;
    };
    const std::vector<Row> rows = {
        {false, "150", "46.66667", "3"},   // 140 / 46.66667 = 2.9999998
        {false, "150", "14.00001", "10"},  // 9.9999929
        {false, "150", "14", "11"},
        {false, "150", "17.5", "9"},
        {false, "150", "35", "5"},
        {false, "150", "140", "2"},
        {false, "150", "0.7", "201"},
        {false, "150", "2.8", "51"},
        {false, "150", "1.12", "125"},  // 124.99999999999999 in double
        {false, "150", "17,5", "9"},
        {false, "150.9", "28", "6"},    // the width is taken whole
        {false, "110", "0.1", "1001"},
        {true, "100", "12.5", "8"},
        {true, "100", "0.1", "1000"},
        {true, "100", "33.33333", "3"},
        {true, "100", "33.33334", "2"},  // 2.9999994
        {true, "100", "16.66667", "5"},  // 5.9999988
        {true, "100", "25", "4"},
    };
    int n = 0;
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.ancho) + " / " + r.separacion + (r.porMetro ? " per metre" : ""));
        Control& z = Nuevo(Kind::UCZapatas, "UCZap" + std::to_string(++n));
        z.Set("Por_metro", r.porMetro ? "True" : "False");
        z.Set("NumBarras", "1");
        z.Set("AnchoZap", r.ancho);
        z.Set("Separacion", "1");
        z.Set("Separacion", r.separacion);
        EXPECT_EQ(z.Get("NumBarras"), r.barras);
        EXPECT_EQ(z.Get("Separacion"), r.separacion);
    }
}

// The values the control writes itself do not run its own rule back: without the guard the
// spacing 37.625 would turn the 4 bars into 150 / 37.625 = 3.
TEST_F(Zapatas, TheControlsOwnWritesDoNotRunItsRuleBack)
{
    Control& z = Nuevo(Kind::UCZapatas, "UCZap");
    z.Set("Por_metro", "True");
    z.Set("NumBarras", "1");
    z.Set("AnchoZap", "150.5");
    z.Set("NumBarras", "4");
    EXPECT_EQ(z.Get("Separacion"), "37.625");
    EXPECT_EQ(z.Get("NumBarras"), "4");
}

TEST_F(Zapatas, TypingRaisesChangeOnceAndAHandlerThatWritesBackDoesNotLoop)
{
    Control& z = Nuevo(Kind::UCZapatas, "UCZap");
    int dentro = 0;
    z.onChange = [&](Control& c) {
        ++cambios;
        ++dentro;
        c.Set("Separacion", "28");  // a form that corrects the spacing in its handler
    };
    EscribeNumBarras(z, "5");  // spacing 35, then the handler's 28 gives 6 bars
    EXPECT_EQ(dentro, 1);
    EXPECT_EQ(z.Get("Separacion"), "28");
    EXPECT_EQ(z.Get("NumBarras"), "6");
    EscribeSeparacion(z, "20");  // 8 bars, then the handler's 28 again
    EXPECT_EQ(dentro, 2);
    EXPECT_EQ(z.Get("NumBarras"), "6");
    EscribeSeparacion(z, "28");  // the text shown: no change, no event
    EXPECT_EQ(dentro, 2);
    EligeFilaRefuerzo(z, ListaRefuerzo::Diam, 2);
    EXPECT_EQ(z.Get("Diametro"), "10 ");
    EXPECT_EQ(dentro, 3);
}

// What a record read does: the readers set NumBarras, Diametro and Separacion in that order
// through the setters, which run the rule, and only on a text that differs from the one
// shown. The stored spacing therefore always survives; the stored bars survive when they
// agree with it under the control's width and mode, else the bars follow the spacing. What
// a form held before the read takes part: the last row reads into a control that held the
// record of the row before it.
TEST_F(Zapatas, RecordReadsKeepTheSpacingAndFollowTheRule)
{
    struct Row {
        const char* name;
        bool porMetro;
        std::array<const char*, 3> leido;
        std::array<const char*, 3> queda;
    };
    const std::vector<Row> rows = {
        {"the design values stand", false, {"8", "12", "15"}, {"8", "12", "15"}},
        {"agreeing bars and spacing", false, {"8", "12", "20"}, {"8", "12", "20"}},
        {"disagreeing spacing wins", false, {"8", "12", "25"}, {"6", "12", "25"}},
        {"per metre 20 means 7 bars", true, {"8", "12", "20"}, {"7", "12", "20"}},
        {"a spacing the control printed", false, {"4", "16 ", "46.66667"}, {"4", "16 ", "46.66667"}},
        {"a longer print of 140 / 3 stands above it", false, {"4", "16 ", "46.6666666666667"}, {"3", "16 ", "46.6666666666667"}},
        {"one bar", false, {"1", "10", "30"}, {"5", "10", "30"}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Control& z = Nuevo(Kind::UCZapatas, std::string("UCZap") + r.name);
        z.Set("Por_metro", r.porMetro ? "-1" : "0");
        z.Set("NumBarras", r.leido[0]);
        z.Set("Diametro", r.leido[1]);
        z.Set("Separacion", r.leido[2]);
        EXPECT_EQ(z.Get("NumBarras"), r.queda[0]);
        EXPECT_EQ(z.Get("Diametro"), r.queda[1]);
        EXPECT_EQ(z.Get("Separacion"), r.queda[2]);
    }
    // One control, two records: 6 bars at 25, then 8 at 15. The 8 bars move the spacing to
    // 20, and the stored 15 then gives (150 - 10) / 15 + 1 = 10 bars.
    Control& z = Nuevo(Kind::UCZapatas, "UCZapDos");
    z.Set("NumBarras", "6");
    z.Set("Diametro", "12");
    z.Set("Separacion", "25");
    z.Set("NumBarras", "8");
    z.Set("Diametro", "12");
    z.Set("Separacion", "15");
    EXPECT_EQ(z.Get("NumBarras"), "10");
    EXPECT_EQ(z.Get("Separacion"), "15");
    EXPECT_EQ(cambios, 0);
}

}  // namespace
}  // namespace vardena
