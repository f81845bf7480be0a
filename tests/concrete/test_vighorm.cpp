// The concrete beam: what CmdCalcular gathers for the check (the level's loads, the materials by
// the general data or the form's own rows, the mean load factor, the design strengths of both
// control branches, the sizes in metres, the bar areas), a level without loads, the section
// picture's cap, the cantilevers shown and hidden, the paired bar layers and the bearing.
//
// The building: three floors over one basement, loads per m2 exact in binary
// (self-weight + permanent = g; partitions + imposed = q):
//   roof     g = 0.25 + 0.125 = 0.375   q = 0 + 0.125     = 0.125
//   floor 2  g = 0.25 + 0.25  = 0.5     q = 0.125 + 0.25  = 0.375
//   ground   g = 0.375 + 0.25 = 0.625   q = 0.125 + 0.375 = 0.5
//   basement g = 0.5 + 0.25   = 0.75    q = 0 + 0.5       = 0.5
// General data: HA-25 (2500 t/m2), B-500-S (51000 t/m2), control "Normal".

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "application/Aplicacion.h"
#include "base/FileIo.h"
#include "concrete/VigHorm.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Subrut.h"

namespace vardena::test {
namespace {

class VigaHormigon : public ::testing::Test {
protected:
    void SetUp() override
    {
        Declaraciones& d = app.decl;
        d.CarpetaObra = obra.path();
        CargaMensajesDesde(d, ResourceDir() + "/lng/Español/MsgVardena.txt");
        PonPlantasDePrueba(d);
        d.GenHorm = 3;
        d.GenAcero = 1;
        d.GenControl = 1;
    }
    std::unique_ptr<VigHorm> Carga()
    {
        auto f = std::make_unique<VigHorm>(app.decl, *TablaCampos("frmVigHorm"));
        f->Form_Load();
        return f;
    }
    TestApp app;
    ScratchDir obra;
};

TEST_F(VigaHormigon, WhatTheCheckTakesByLevelMaterialAndControl)
{
    struct Caso {
        const char* nombre;
        int planta, horm, acero, control, controlGeneral;
        double g, q, fck, fyk, gamma, fcd, fyd;
        bool reducido;
    };
    const Caso casos[] = {
        // (1.5 x 0.5 + 1.6 x 0.375) / 0.875 = 1.35 / 0.875; 2500 / 1.5; 51000 / 1.15.
        {"floor, every material as the general data", 2, 0, 0, 0, 1, 0.5, 0.375, 2500, 51000, 1.35 / 0.875,
         2500 / 1.5, 51000 / 1.15, false},
        // Own HA-30, B-400-S, "Reducido" (1.6, 1.8): (1.2 + 0.9) / 1.25; fcd 1000; 0.75 x 41000 / 1.15.
        {"basement, own materials, control Reducido", 4, 5, 1, 1, 1, 0.75, 0.5, 3000, 41000, 1.68, 1000,
         0.75 * 41000 / 1.15, true},
        // "Intenso" of the general data (1.35, 1.5): (0.50625 + 0.1875) / 0.5.
        {"roof, general control Intenso", 0, 0, 0, 0, 2, 0.375, 0.125, 2500, 51000, 1.3875, 2500 / 1.5,
         51000 / 1.15, false},
        // "Reducido" reached through the general data: (1.6 x 0.625 + 1.8 x 0.5) / 1.125.
        {"ground floor, general control Reducido", 3, 0, 2, 0, 0, 0.625, 0.5, 2500, 51000, 1.9 / 1.125, 1000,
         0.75 * 51000 / 1.15, true},
        // Own "Intenso" over a general "Reducido": the form's row wins.
        {"floor, own control Intenso", 1, 9, 0, 3, 0, 0.5, 0.375, 5000, 51000, (1.35 * 0.5 + 1.5 * 0.375) / 0.875,
         5000 / 1.5, 51000 / 1.15, false},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nombre);
        app.decl.GenControl = c.controlGeneral;
        auto f = Carga();
        f->At("CmbPlanta").SetListIndex(c.planta);
        f->At("CmbHorm").SetListIndex(c.horm);
        f->At("CmbAcero").SetListIndex(c.acero);
        f->At("cmbControl").SetListIndex(c.control);
        f->At("CmdCalcular").Click();
        const VariablesViga& v = f->Variables();
        EXPECT_DOUBLE_EQ(v.g, c.g);
        EXPECT_DOUBLE_EQ(v.q, c.q);
        EXPECT_DOUBLE_EQ(v.cargasPlanta.pesoPropio + v.cargasPlanta.permanente, c.g);
        EXPECT_DOUBLE_EQ(v.fck, c.fck);
        EXPECT_DOUBLE_EQ(v.fyk, c.fyk);
        EXPECT_NEAR(v.gamma, c.gamma, 1e-12);
        EXPECT_NEAR(v.fcd, c.fcd, 1e-9);
        EXPECT_NEAR(v.fyd, c.fyd, 1e-9);
        EXPECT_EQ(v.reducido, c.reducido);
        EXPECT_DOUBLE_EQ(v.gammaC, 1.5);
        EXPECT_DOUBLE_EQ(v.gammaS, 1.15);
        EXPECT_TRUE(std::filesystem::exists(obra / "Viga Hormigón. P 01-02.~HJ"));
    }
}

TEST_F(VigaHormigon, SizesInMetresAndTheBarsOfTheLayersSet)
{
    auto f = Carga();
    f->At("CmbAmbGral").SetListIndex(2);  // cover 40 mm
    f->At("TextDviga", 0).SetText("25");
    f->At("TextDviga", 1).SetText("50");
    f->At("TxtPil", 0).SetText("35");
    f->At("TxtPil", 1).SetText("0");
    f->At("ChVigDer").SetCheckValue(1);
    f->At("TxCota", 4).SetText("1.5");
    f->At("UCArVig", 0).Set("NumBarras", "3");
    f->At("UCArVig", 0).Set("Diametro", "20");
    f->At("UCArVig", 2).Set("NumBarras", "2");
    f->At("UCArVig", 2).Set("Diametro", "16");
    f->At("UCArVig", 7).Set("NumBarras", "4");
    f->At("UCArVig", 7).Set("Diametro", "10");
    f->At("ChArV", 1).SetCheckValue(1);
    f->At("ChArV", 2).SetCheckValue(1);
    f->At("TxLv", 2).SetText("1.25");
    f->At("TxLv", 7).SetText("3");  // ChArV(8) is not set: neither bars nor length count
    f->At("UCArCer", 1).Set("Diametro", "8");
    f->At("UCArCer", 1).Set("Separacion", "20");
    f->At("CmdCalcular").Click();
    const VariablesViga& v = f->Variables();
    EXPECT_DOUBLE_EQ(v.b, 0.25);
    EXPECT_DOUBLE_EQ(v.h, 0.5);
    EXPECT_DOUBLE_EQ(v.recubrimiento, 0.04);
    EXPECT_DOUBLE_EQ(v.L, 5.5);
    EXPECT_DOUBLE_EQ(v.pilarIzq, 0.35);
    EXPECT_DOUBLE_EQ(v.pilarDer, 0);
    EXPECT_DOUBLE_EQ(v.voladizoIzq, 0);
    EXPECT_DOUBLE_EQ(v.voladizoDer, 1.5);
    const double pi = 3.14159265358979;
    // 3 bars of 20 mm: 3 pi 0.01^2; 2 of 16: 2 pi 0.008^2.
    EXPECT_NEAR(v.areaBarras[0], 3 * pi * 1e-4, 1e-15);
    EXPECT_NEAR(v.areaBarras[2], 2 * pi * 0.008 * 0.008, 1e-15);
    EXPECT_DOUBLE_EQ(v.areaBarras[7], 0);
    EXPECT_DOUBLE_EQ(v.longitudBarras[2], 1.25);
    EXPECT_DOUBLE_EQ(v.longitudBarras[7], 0);
    // Stirrups of 8 at 20 cm: 100 / 20 x pi 0.004^2 a metre.
    EXPECT_NEAR(v.areaCercos[1], 5 * pi * 0.004 * 0.004, 1e-15);
    EXPECT_DOUBLE_EQ(v.separacionCercos[1], 20);
    // The loads as LeeQ gives them: q1 = 2.1 t/m by design.
    EXPECT_NEAR(v.cargas.at(1), 2.1, 1e-9);
}

TEST_F(VigaHormigon, ALevelWithoutLoadsGoesToTheErrorWindowAndSavesNothing)
{
    for (size_t i = 0; i < 4; ++i)
        app.decl.GenPProP[i] = app.decl.GenConcP[i] = app.decl.GenSTabP[i] = app.decl.GenSobrP[i] = 0;
    auto f = Carga();
    f->At("CmbPlanta").SetListIndex(2);
    app.ui.retries = 0;
    EXPECT_THROW(f->At("CmdCalcular").Click(), ProgramHalt);
    ASSERT_EQ(app.ui.errors.size(), 1u);
    EXPECT_EQ(app.ui.errors[0].origin, "CmdCalcular_Click");
    EXPECT_EQ(app.ui.errors[0].number, 11);
    EXPECT_NE(app.ui.errors[0].description.find("División por cero"), std::string::npos) << app.ui.errors[0].description;
    EXPECT_FALSE(std::filesystem::exists(obra / "Viga Hormigón. P 01-02.~HJ"));
    EXPECT_DOUBLE_EQ(f->Variables().gamma, 0) << "nothing of the failed gathering is kept";
    EXPECT_EQ(f->ResumenCalculo(), "");
}

TEST(SeccionViga, TheLongerSideIsCutAtThreeAndAHalfTimesTheShorter)
{
    struct Caso {
        double b, h, ancho, alto;
    };
    const Caso casos[] = {
        {30, 40, 30, 40},      // as given
        {35, 10, 35, 10},      // exactly 3.5: as given
        {100, 20, 70, 20},     // a wide flat beam: width 3.5 x 20
        {20, 100, 20, 70},     // a deep one: depth 3.5 x 20
        {-30, 40, 30, 40},     // absolute values
        {0, 40, 0, 0},         // no width: nothing to draw
    };
    for (const Caso& c : casos) {
        const SeccionDibujada s = FormaSeccion(c.b, c.h);
        EXPECT_DOUBLE_EQ(s.ancho, c.ancho) << c.b << " x " << c.h;
        EXPECT_DOUBLE_EQ(s.alto, c.alto) << c.b << " x " << c.h;
    }
}

TEST_F(VigaHormigon, TheSectionPictureIsCentredWithItsSizesBeside)
{
    auto f = Carga();
    f->At("TextDviga", 0).SetText("100");
    f->At("TextDviga", 1).SetText("20");
    const std::optional<Croquis> c = f->CroquisDe(f->At("PctSeccion"));
    ASSERT_TRUE(c);
    const TrazoCroquis& forma = c->trazos.front();
    ASSERT_EQ(forma.papel, PapelCroquis::Hormigon);
    const int ancho = forma.puntos[1].x - forma.puntos[0].x, alto = forma.puntos[2].y - forma.puntos[1].y;
    EXPECT_NEAR(static_cast<double>(ancho) / alto, 3.5, 0.01);
    EXPECT_NEAR(forma.puntos[0].x + ancho / 2.0, c->ancho / 2.0, 1);
    bool b = false, h = false;
    for (const TrazoCroquis& t : c->trazos) {
        if (t.texto == "b=100") {
            b = true;
            EXPECT_GT(t.puntos[0].y, forma.puntos[2].y + 60);
        }
        if (t.texto == "h=20") {
            h = true;
            EXPECT_GT(t.puntos[0].x, forma.puntos[1].x + 60);
        }
    }
    EXPECT_TRUE(b && h);
}

TEST_F(VigaHormigon, CantileversShowAndHideTheirParts)
{
    auto f = Carga();
    struct Lado {
        const char* casilla;
        int cota, carga, barras;
        const char* seccion;
    };
    for (const Lado& l : {Lado{"ChVigIzq", 0, 0, 9, "PictIzq"}, Lado{"ChVigDer", 4, 4, 10, "PictDer"}}) {
        SCOPED_TRACE(l.casilla);
        for (int valor : {1, 0, 1}) {
            f->At(l.casilla).SetCheckValue(valor);
            EXPECT_EQ(f->At("TxCota", l.cota).Visible(), valor == 1);
            EXPECT_EQ(f->At("TxtQ", l.carga).Visible(), valor == 1);
            EXPECT_EQ(f->At("UCArVig", l.barras).Visible(), valor == 1);
            EXPECT_EQ(f->At(l.seccion).Visible(), valor == 1);
        }
    }
    // The span's parts stay, and the beam picture grows by the cantilevers.
    EXPECT_TRUE(f->At("TxCota", 1).Visible());
    const int conVoladizos = f->CroquisDe(f->At("PctViga"))->trazos.size();
    f->At("ChVigIzq").SetCheckValue(0);
    f->At("ChVigDer").SetCheckValue(0);
    EXPECT_LT(static_cast<int>(f->CroquisDe(f->At("PctViga"))->trazos.size()), conVoladizos);
    // While a record is read no event runs: the reading shows the parts afterwards.
    app.decl.Cargando = kTrue;
    f->At("ChVigIzq").SetCheckValue(1);
    app.decl.Cargando = kFalse;
    EXPECT_FALSE(f->At("TxCota", 0).Visible());
}

TEST_F(VigaHormigon, ExtraLayersShowTheirLengthAndStandOnTheOneBefore)
{
    auto f = Carga();
    // A new beam: no layer set, no length shown; the second and third layers wait for the first.
    for (int i = 1; i <= 8; ++i)
        EXPECT_FALSE(f->At("TxLv", i).Visible()) << i;
    for (int i : {2, 3, 5, 6})
        EXPECT_FALSE(f->At("ChArV", i).Enabled()) << i;
    for (int i : {1, 4, 8})
        EXPECT_TRUE(f->At("ChArV", i).Enabled()) << i;
    // Left support: 1 enables 2, 2 enables 3.
    f->At("ChArV", 1).SetCheckValue(1);
    EXPECT_TRUE(f->At("TxLv", 1).Visible());
    EXPECT_TRUE(f->At("ChArV", 2).Enabled());
    EXPECT_FALSE(f->At("ChArV", 3).Enabled());
    f->At("ChArV", 2).SetCheckValue(1);
    f->At("ChArV", 3).SetCheckValue(1);
    EXPECT_TRUE(f->At("TxLv", 3).Visible());
    // Clearing the first clears the layers over it, hides their lengths and keeps what they say.
    f->At("TxLv", 3).SetText("0.8");
    f->At("ChArV", 1).SetCheckValue(0);
    for (int i : {1, 2, 3}) {
        EXPECT_EQ(f->At("ChArV", i).CheckValue(), 0) << i;
        EXPECT_FALSE(f->At("TxLv", i).Visible()) << i;
    }
    EXPECT_FALSE(f->At("ChArV", 2).Enabled());
    EXPECT_EQ(f->At("TxLv", 3).Text(), "0.8");
    // The right support is a row of its own.
    f->At("ChArV", 4).SetCheckValue(1);
    EXPECT_TRUE(f->At("ChArV", 5).Enabled());
    EXPECT_FALSE(f->At("ChArV", 2).Enabled());
    // The extra bottom bars: their one check box, ChArV(8), shows the lengths of both layers.
    EXPECT_FALSE(f->Find("ChArV", 7));
    f->At("ChArV", 8).SetCheckValue(1);
    EXPECT_TRUE(f->At("TxLv", 7).Visible());
    EXPECT_TRUE(f->At("TxLv", 8).Visible());
    EXPECT_EQ(f->At("ChArV", 4).CheckValue(), 1) << "the bottom bars are no support's row";
    f->At("ChArV", 8).SetCheckValue(0);
    EXPECT_FALSE(f->At("TxLv", 7).Visible());
    EXPECT_FALSE(f->At("TxLv", 8).Visible());
}

TEST_F(VigaHormigon, AColumnOfDepthZeroLeavesTheBeamOnABearing)
{
    app.decl.NPlantasSobre = 3;
    auto f = Carga();
    f->At("CmbPlanta").SetListIndex(2);  // columns below on both sides
    ASSERT_EQ(f->At("ChPilIzq").CheckValue(), 1);
    EXPECT_FALSE(f->At("ImgApo", 0).Visible());
    auto apoyos = [&] {
        int n = 0;
        const std::optional<Croquis> c = f->CroquisDe(f->At("PctViga"));
        for (const TrazoCroquis& t : c->trazos)
            n += t.figura == FiguraCroquis::Poligono && t.papel == PapelCroquis::Hormigon && t.puntos.size() == 3;
        return n;  // the bearings: the triangles
    };
    EXPECT_EQ(apoyos(), 0);
    f->At("TxtPil", 0).SetText("0");
    EXPECT_TRUE(f->At("ImgApo", 0).Visible());
    EXPECT_FALSE(f->At("ImgApo", 1).Visible());
    EXPECT_EQ(apoyos(), 1);
    f->At("TxtPil", 0).SetText("25");
    EXPECT_FALSE(f->At("ImgApo", 0).Visible());
    // No column below stands on a bearing as well.
    f->At("ChPilDer").SetCheckValue(0);
    EXPECT_TRUE(f->At("ImgApo", 1).Visible());
    EXPECT_EQ(apoyos(), 1);
}

// The warnings of the check stay hidden, on opening and after "CONVERTIR", since the check gives
// no result that raises them; their stored texts go back to the record as they were read.
TEST_F(VigaHormigon, CheckWarningsStayHiddenAndKeepTheirTexts)
{
    auto f = Carga();
    f->At("txtCort", 1).SetText("Compresión oblicua (texto del registro)");
    for (bool calculado : {false, true}) {
        SCOPED_TRACE(calculado ? "after the check" : "on opening");
        if (calculado)
            f->At("CmdCalcular").Click();
        EXPECT_FALSE(f->At("txtCort", 0).Visible());
        EXPECT_FALSE(f->At("txtCort", 1).Visible());
        EXPECT_FALSE(f->At("LbFlexTrans").Visible());
        EXPECT_EQ(f->At("txtCort", 1).Text(), "Compresión oblicua (texto del registro)");
    }
    const std::vector<std::string> registros = FilesEndingWith(obra.path(), ".~HJ");
    ASSERT_EQ(registros.size(), 1u);
    EXPECT_NE(ReadBytes(obra.path() + "/" + registros[0]).find("(texto del registro)"), std::string::npos);
}

}  // namespace
}  // namespace vardena::test
