// The other steel and timber forms: what the steel floor gathers for its check, the help
// buttons, the fields of the base plate and the stair that follow their choice, and a steel
// column's record saved and read back through its list, its factors following what was read.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "application/Aplicacion.h"
#include "base/FileIo.h"
#include "frame/Formularios.h"
#include "steel_timber/Dependientes.h"
#include "steel_timber/ForjAcer.h"
#include "steel_timber/PilMet.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Registros.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

class SteelTimber : public ::testing::Test {
protected:
    void SetUp() override
    {
        Declaraciones& d = app.decl;
        d.CarpetaObra = dir.path();
        CargaMensajesDesde(d, ResourceDir() + "/lng/Español/MsgVardena.txt");
        // Two floors over one basement; loads exact in binary.
        d.NPlantasSobre = 2;
        d.NPlantasBajo = 1;
        d.GenPProP[1] = 0.25f;
        d.GenConcP[1] = 0.125f;
        d.GenSTabP[1] = 0.125f;
        d.GenSobrP[1] = 0.25f;
        d.GenPProS[0] = 0.5f;
        d.GenConcS[0] = 0.25f;
        d.GenSTabS[0] = 0;
        d.GenSobrS[0] = 0.5f;
        for (size_t i = 0; i < 4; ++i)
            d.GenCot[i] = 3;
    }
    template <typename T>
    std::unique_ptr<T> Load(const char* nombre)
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* p = dynamic_cast<T*>(f.get());
        EXPECT_NE(p, nullptr) << nombre;
        f.release();
        return std::unique_ptr<T>(p);
    }
    test::TestApp app;
    test::ScratchDir dir;
};

TEST(SteelFloor, LoadCaseFactors)
{
    // Cases Ia, Ib, Ic take 1.5 on the imposed loads; the others 1.33.
    const double esperado[] = {1.5, 1.5, 1.5, 1.33, 1.33, 1.33, 1.33};
    for (int caso = 0; caso < 7; ++caso)
        EXPECT_DOUBLE_EQ(FactorVariable(caso), esperado[caso]) << caso;
}

TEST_F(SteelTimber, SteelFloorGathersItsLevelSectionSteelAndFactors)
{
    struct Caso {
        int planta, acero, caso;
        double g, q, fyd, gammaQ;
    };
    const Caso casos[] = {
        // Floor 1: G = 0.125 + 0.25, Q = 0.125 + 0.25; S 355 (36000) / 1.05; case Ia.
        {1, 6, 0, 0.375, 0.375, 36000 / 1.05, 1.5},
        // Level 2 is not below the count of floors: the basements' row 2 - 2 = 0:
        // G = 0.25 + 0.5, Q = 0 + 0.5; A37 (24000) / 1.05; case IIa.
        {2, 1, 3, 0.75, 0.5, 24000 / 1.05, 1.33},
    };
    for (const Caso& c : casos) {
        auto f = Load<ForjAcer>("frmForjAcer");
        f->At("CmbPlanta").SetListIndex(c.planta);
        f->At("CmbAcero").SetListIndex(c.acero);
        f->At("CmbCaso").SetListIndex(c.caso);
        f->At("UCPerfil1").Set("Perfil", "IPE");
        f->At("UCPerfil1").Set("Tamano", "200");
        f->At("TxCota", 1).SetText("4.50");
        f->At("CmdCalcular").Click();
        const DatosForjadoAcero& x = f->Datos();
        EXPECT_DOUBLE_EQ(x.g, c.g) << c.planta;
        EXPECT_DOUBLE_EQ(x.q, c.q) << c.planta;
        EXPECT_NEAR(x.fyd, c.fyd, 1e-9) << c.planta;
        EXPECT_DOUBLE_EQ(x.gammaG, 1.35);
        EXPECT_DOUBLE_EQ(x.gammaQ, c.gammaQ);
        EXPECT_EQ(x.planta, f->At("CmbPlanta").List(c.planta));
        // IPE 200: 28.48 cm2, 1943 and 142.4 cm4, 20 cm deep (0.2 m), 10 cm wide.
        EXPECT_DOUBLE_EQ(x.area, 28.48);
        EXPECT_DOUBLE_EQ(x.ix, 1943);
        EXPECT_DOUBLE_EQ(x.iy, 142.4);
        EXPECT_DOUBLE_EQ(x.canto, 0.2);
        EXPECT_DOUBLE_EQ(x.ancho, 10);
        EXPECT_DOUBLE_EQ(x.luz, 4.5);
        EXPECT_EQ(app.decl.ResultadoCalculo, 1);
    }
    EXPECT_TRUE(app.ui.boxes.empty());
}

TEST_F(SteelTimber, HelpButtonsShowTheUseCategoriesAndTheServiceClasses)
{
    std::string clases;
    for (int i = 697; i <= 703; ++i)
        clases += (i > 697 ? "\r\n" : "") + app.decl.Msg(i);
    for (const char* nombre : {"frmVigMade", "frmPilMade", "frmForMade", "frmEscMade"}) {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        f->At("CmdAyuda").Click();
        ASSERT_FALSE(app.ui.boxes.empty()) << nombre;
        EXPECT_EQ(app.ui.boxes.back().prompt, clases) << nombre;
        EXPECT_EQ(app.ui.boxes.back().style, mb::Information) << nombre;
        EXPECT_EQ(app.ui.boxes.back().title, f->Caption()) << nombre;
    }
    for (const char* nombre : {"frmVigMet", "frmForjAcer"}) {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        f->At("cmdCatUso").Click();
        EXPECT_EQ(app.ui.boxes.back().prompt.find("DEFINICIÓN DE SOBRECARGAS"), 0u) << nombre;
        EXPECT_NE(app.ui.boxes.back().prompt.find("  G.- Cubiertas accesibles sólo para conservación."), std::string::npos);
    }
}

TEST_F(SteelTimber, BasePlateStiffenersFollowTheirCheckBoxes)
{
    auto f = Load<FormaDependientes>("frmBasMet");
    // New: no stiffener chosen, none shown.
    EXPECT_FALSE(f->At("TxEspCartX").Visible());
    EXPECT_FALSE(f->At("TxCotaCartY", 1).Visible());
    f->At("ChX").Click();
    EXPECT_TRUE(f->At("TxEspCartX").Visible());
    EXPECT_TRUE(f->At("TxCotaCartX", 0).Visible());
    EXPECT_TRUE(f->At("TxCotaCartX", 1).Visible());
    EXPECT_FALSE(f->At("TxEspCartY").Visible());
    f->At("ChY").Click();
    f->At("ChX").Click();
    EXPECT_FALSE(f->At("TxEspCartX").Visible());
    EXPECT_TRUE(f->At("TxCotaCartY", 1).Visible());
    // The bolts stand whatever is chosen.
    EXPECT_TRUE(f->At("TxNumTorX").Visible());
}

TEST_F(SteelTimber, StairShowsTheLengthsOfItsKind)
{
    auto f = Load<FormaDependientes>("frmEscMet");
    struct Caso {
        int losa;
        const char* visible;
    };
    const char* campos[] = {"TxCotaH1", "TxCotaDesc", "TxCotaH2", "TxCotaRampa"};
    for (const Caso& c : {Caso{0, "TxCotaH1"}, Caso{1, "TxCotaDesc"}, Caso{2, "TxCotaH2"}, Caso{3, "TxCotaRampa"}}) {
        f->At("OptLosa", c.losa).Click();
        for (const char* campo : campos)
            for (Control* m : f->Members(campo))
                EXPECT_EQ(m->Visible(), std::string(campo) == c.visible) << c.losa << " " << campo;
    }
    f->At("OptLosa", 2).Click();
    EXPECT_TRUE(f->At("OptH2izqI", 1).Visible());
    f->At("OptLosa", 0).Click();
    EXPECT_FALSE(f->At("OptH2izqI", 1).Visible());
    EXPECT_TRUE(f->At("OptH1der", 0).Visible());
}

TEST_F(SteelTimber, SteelColumnRecordReadsBackThroughItsList)
{
    auto f = Load<PilMet>("frmPilMet");
    f->At("txtTitulo").SetText("P1");
    f->At("CmbPlanta").SetListIndex(1);
    f->At("UCPerfil1").Set("Perfil", "HEB");
    f->At("UCPerfil1").Set("Tamano", "200");
    f->At("ChRotS").SetCheckValue(1);
    f->At("ChkArriostradaY").SetCheckValue(1);
    f->At("TxtBetaX").SetText("0.7");
    f->At("CmdCalcular").Click();
    const std::string registro = f->UltimoGuardado();
    ASSERT_FALSE(registro.empty());
    const PandeoEje x = f->EjeX(), y = f->EjeY();
    // The factor typed stays as typed: the calculation writes no stored field.
    EXPECT_EQ(f->At("TxtBetaX").Text(), "0.7");

    // A results file puts the title in List1 of a new window.
    WriteFileAtomic(RutaResultados(*f, "P1"), "{\\rtf1 }");
    auto g = Load<PilMet>("frmPilMet");
    Control& lista = g->At("List1");
    ASSERT_EQ(lista.ListCount(), 1);
    lista.SetListIndex(0);
    for (const char* campo : {"CmbPlanta", "UCPerfil1", "ChRotS", "ChkArriostradaY", "TxtBetaX", "LePil"}) {
        const auto a = f->Members(campo), b = g->Members(campo);
        ASSERT_EQ(a.size(), b.size()) << campo;
        for (size_t i = 0; i < a.size(); ++i) {
            EXPECT_EQ(a[i]->Text(), b[i]->Text()) << campo;
            EXPECT_EQ(a[i]->ListIndex(), b[i]->ListIndex()) << campo;
            EXPECT_EQ(a[i]->CheckValue(), b[i]->CheckValue()) << campo;
            if (a[i]->kind() == Kind::UCPerfil) {
                EXPECT_EQ(a[i]->Get("Ix"), b[i]->Get("Ix")) << campo;
            }
        }
    }
    // The factors follow the record read: the head fixed (eta1 0), braced about Y.
    EXPECT_DOUBLE_EQ(g->EjeX().eta1, 0);
    EXPECT_DOUBLE_EQ(g->EjeX().eta2, x.eta2);
    ASSERT_TRUE(g->EjeY().beta.has_value());
    EXPECT_DOUBLE_EQ(*g->EjeY().beta, *y.beta);
    EXPECT_TRUE(g->EjeY().arriostrado);
    EXPECT_EQ(g->At("LbBetaY").Caption(), Formato00(*y.beta));
    EXPECT_TRUE(app.ui.errors.empty());
}

}  // namespace
}  // namespace vardena
