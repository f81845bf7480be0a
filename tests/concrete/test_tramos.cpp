// The spans editor of the beams: the stretch rules, the drawing's tenth of a span, the load
// heights, and the concrete beam's own events, driven on the form as a user would.

#include <gtest/gtest.h>

#include <string>

#include "concrete/VigHorm.h"
#include "frame/Campos.h"
#include "frame/Formularios.h"
#include "frame/Tramos.h"
#include "support/TestSupport.h"

namespace vardena::test {
namespace {

TEST(Tramos, RulesOfTheStretches)
{
    struct Caso {
        double L, a1, a2;
        int cambiado;
        Tramos esperado;
    };
    const Caso casos[] = {
        {5.5, 2, 2, 2, {5.5, 2, 2, 1.5}},      // room left: nothing changes
        {3, 2, 2, 1, {3, 1.5, 1.5, 0}},        // the total typed smaller than a1 + a2: both halve
        {5.5, 4, 2, 2, {6, 4, 2, 0}},          // a stretch typed larger than L - a2: L grows
        {5.5, 2, 4, 3, {6, 2, 4, 0}},
        {-5.5, -2, 2, 2, {5.5, 2, 2, 1.5}},    // lengths are taken as absolute values
        {4, 2, 2, 1, {4, 2, 2, 0}},            // an exact fit is no overrun
    };
    for (const Caso& c : casos) {
        const Tramos t = AjustaTramos(c.L, c.a1, c.a2, c.cambiado);
        SCOPED_TRACE(std::to_string(c.L) + " " + std::to_string(c.a1) + " " + std::to_string(c.a2));
        EXPECT_DOUBLE_EQ(t.L, c.esperado.L);
        EXPECT_DOUBLE_EQ(t.a1, c.esperado.a1);
        EXPECT_DOUBLE_EQ(t.a2, c.esperado.a2);
        EXPECT_NEAR(t.r, c.esperado.r, 1e-12);
    }
}

TEST(Tramos, AShortStretchIsDrawnAtATenthOfTheSpan)
{
    // 3 % of L is drawn as 10 %: the drawn lengths 1.0, 0.3 (not 0.06) and 0.94 of a span of 2.
    const auto d = DibujoTramos(3, {2, 1, 0.06, 0.94});
    const double total = 1 + 0.2 + 0.94;
    EXPECT_NEAR(d[0].ancho, 1 / total, 1e-12);
    EXPECT_NEAR(d[1].ancho, 0.2 / total, 1e-12);
    EXPECT_NEAR(d[1].inicio, 1 / total, 1e-12);
    EXPECT_NEAR(d[2].inicio + d[2].ancho, 1, 1e-12);
    // One stretch: the whole beam; two: the second is what the first leaves.
    EXPECT_DOUBLE_EQ(DibujoTramos(1, {5, 2, 2, 1})[0].ancho, 1);
    EXPECT_NEAR(DibujoTramos(2, {5, 2, 2, 1})[1].ancho, 0.6, 1e-12);
    EXPECT_DOUBLE_EQ(DibujoTramos(2, {5, 2, 2, 1})[2].ancho, 0);
    // A span of 0 draws nothing and divides by nothing.
    EXPECT_DOUBLE_EQ(DibujoTramos(3, {0, 0, 0, 0})[0].ancho, 0);
}

TEST(Tramos, LoadHeightsFollowTheGreatestLoad)
{
    const auto h = AlturasCargas(1.5, -3, 0.75);
    EXPECT_DOUBLE_EQ(h[0], 0.5);
    EXPECT_DOUBLE_EQ(h[1], 1);
    EXPECT_DOUBLE_EQ(h[2], 0.25);
    const auto cero = AlturasCargas(0, 0, 0);
    EXPECT_DOUBLE_EQ(cero[0] + cero[1] + cero[2], 0) << "all loads 0: no division by zero";
}

class Viga : public ::testing::Test {
protected:
    std::unique_ptr<VigHorm> Carga()
    {
        app.decl.CarpetaObra = obra.path();
        auto f = std::make_unique<VigHorm>(app.decl, *TablaCampos("frmVigHorm"));
        f->Form_Load();
        return f;
    }
    TestApp app;
    ScratchDir obra;
};

TEST_F(Viga, TheSpansEditorOnTheForm)
{
    auto f = Carga();
    // Three stretches, the design lengths 5.50 = 2 + 2 + 1.5.
    f->At("CmTramos").SetListIndex(2);
    f->At("TxCota", 2).SetText("2");
    f->At("TxCota", 3).SetText("2");
    EXPECT_NEAR(f->Tramos().Actuales().r, 1.5, 1e-9);
    f->At("TxCota", 1).SetText("3");
    EXPECT_EQ(f->At("TxCota", 2).Text(), "1.5");
    EXPECT_EQ(f->At("TxCota", 3).Text(), "1.5");
    f->At("TxCota", 2).SetText("4");
    EXPECT_EQ(f->At("TxCota", 1).Text(), "5.5") << "the total grows to a1 + a2";
    // One stretch: the other two hidden, and they read as 0 at the next change of a length.
    f->At("CmTramos").SetListIndex(0);
    EXPECT_FALSE(f->At("TxCota", 2).Visible());
    EXPECT_FALSE(f->At("TxCota", 3).Visible());
    EXPECT_FALSE(f->At("TxtQ", 2).Visible());
    f->At("TxCota", 1).SetText("6");
    EXPECT_EQ(f->At("TxCota", 2).Text(), "0");
    EXPECT_EQ(f->At("TxCota", 3).Text(), "0");
    // A value of 0 changes nothing.
    f->At("TxCota", 1).SetText("0");
    EXPECT_DOUBLE_EQ(f->Tramos().Actuales().L, 6);
}

// The steel and timber beams keep their stretches by the same editor.
TEST_F(Viga, TheSiblingBeamsShareTheSpansEditor)
{
    app.decl.CarpetaObra = obra.path();
    for (const char* nombre : {"frmVigHorm", "frmVigMet", "frmVigMade"}) {
        SCOPED_TRACE(nombre);
        auto f = CargaForm(app.decl, nombre);
        ASSERT_TRUE(dynamic_cast<FormaViga*>(f.get()));
        f->At("CmTramos").SetListIndex(2);
        f->At("TxCota", 2).SetText("2");
        f->At("TxCota", 3).SetText("2");
        f->At("TxCota", 1).SetText("3");
        EXPECT_EQ(f->At("TxCota", 2).Text(), "1.5");
        EXPECT_EQ(f->At("TxCota", 3).Text(), "1.5");
        f->At("CmTramos").SetListIndex(0);
        EXPECT_FALSE(f->At("TxCota", 3).Visible());
    }
}

TEST_F(Viga, CoverDepthLevelAndTransverseBending)
{
    auto f = Carga();
    // The cover that each exposure class asks for.
    const int recubrimiento[] = {3, 4, 5, 6, 6, 7, 6};
    for (int clase = 0; clase < 7; ++clase) {
        f->At("CmbAmbGral").SetListIndex(clase);
        EXPECT_EQ(f->At("CmbRecub").ListIndex(), recubrimiento[clase]) << "class " << clase;
    }
    // A section depth under 15 cm becomes 15 when the field is left; 15 and more stay.
    for (const auto& [tecleado, queda] : {std::pair{"10", "15"}, {"15", "15"}, {"abc", "15"}, {"40", "40"}}) {
        f->At("TextDviga", 0).SetText(tecleado);
        f->At("TextDviga", 0).LostFocus();
        EXPECT_EQ(f->At("TextDviga", 0).Text(), queda) << tecleado;
    }
    // The slab spans take part only in transverse bending.
    EXPECT_FALSE(f->At("TxCota", 5).Enabled());
    f->At("ChTrans").Click();
    EXPECT_TRUE(f->At("TxCota", 5).Enabled());
    EXPECT_TRUE(f->At("TxCota", 6).Enabled());
}

// Choosing the concrete works the modulus out again, scaled by what the concrete-by-age
// calculator left: 850000 (fck / 100 + 8)^(1/3), fck = 2500 t/m2 giving 850000 x 33^(1/3).
TEST_F(Viga, ChoosingTheConcreteWorksTheModulusOut)
{
    app.decl.GenFckHorm = 2500;
    auto f = Carga();
    for (const auto& [arido, edad] : {std::pair{1.0f, 1.0f}, {1.2f, 0.9f}}) {
        app.decl.FactorArido = arido;
        app.decl.FactorEdadE = edad;
        f->At("CmbHorm").SetListIndex(2);
        EXPECT_NEAR(app.decl.ModuloVigas, 850000 * 3.20753 * arido * edad, 5) << arido << " " << edad;
    }
}

TEST_F(Viga, TheRoofHasNoColumnsBelowAndNoPartitions)
{
    app.decl.NPlantasSobre = 2;
    app.decl.NPlantasBajo = 1;
    auto f = Carga();
    ASSERT_GE(f->At("CmbPlanta").ListCount(), 4);
    f->At("CmbPlanta").SetListIndex(0);
    EXPECT_FALSE(f->At("ChPilIzq").Visible());
    EXPECT_EQ(f->At("ChPilDer").CheckValue(), 0);
    EXPECT_EQ(f->At("cmbPart").ListIndex(), f->At("cmbPart").ListCount() - 1);
    f->At("CmbPlanta").SetListIndex(1);
    EXPECT_TRUE(f->At("ChPilIzq").Visible());
    EXPECT_EQ(f->At("ChPilIzq").CheckValue(), 1);
    f->At("CmbPlanta").SetListIndex(3);  // the basement
    EXPECT_EQ(f->At("cmbPart").ListIndex(), 0);
}

}  // namespace
}  // namespace vardena::test
