// The footings' data entry. Spacings worked by hand from the reinforcement control's rule
// s = (w - 10) / (c - 1) for bars spread over a width w with two covers of 5 cm; the stress of
// the general data in t/m2 shows in kg/cm2 (divided by 10); the section is drawn 12 twips a cm
// with 400 twips around it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "base/FileIo.h"
#include "frame/Formularios.h"
#include "ground_masonry/Zapatas.h"
#include "support/TestSupport.h"

namespace vardena {
namespace {

class Footings : public ::testing::Test {
protected:
    void SetUp() override { app.decl.CarpetaObra = dir.path(); }
    template <typename T>
    std::unique_ptr<T> Carga(const std::string& nombre)
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* t = dynamic_cast<T*>(f.get());
        EXPECT_NE(t, nullptr) << nombre;
        if (!t)
            return nullptr;
        f.release();
        return std::unique_ptr<T>(t);
    }
    test::ScratchDir dir;
    test::TestApp app;
};

// The bars along a strip footing follow its width; those across it, counted per metre, do not.
TEST_F(Footings, BarsAlongAStripFootingSpreadOverItsWidth)
{
    struct Caso {
        const char* ancho;
        const char* barras;
        const char* separacion;
        const char* anchoControl;
    };
    const Caso casos[] = {
        {"150", "7", "23.33333", "150"},   // 140 / 6
        {"120", "8", "15.71429", "120"},   // 110 / 7
        {"200", "11", "19", "200"},        // 190 / 10
        {"100.7", "8", "12.85714", "100"}, // the integer part: 90 / 7
        {"150,4", "6", "28", "150"},       // a decimal comma: 140 / 5
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.ancho);
        auto f = Carga<ZapCorr>("frmZapCorr");
        ASSERT_TRUE(f);
        f->At("UCArmZap", 1).Set("NumBarras", c.barras);
        const std::string transversal = f->At("UCArmZap", 0).Get("Separacion");
        f->At("TxCotaAncho").SetText(c.ancho);
        EXPECT_EQ(f->At("UCArmZap", 1).Get("AnchoZap"), c.anchoControl);
        EXPECT_EQ(f->At("UCArmZap", 1).Get("Separacion"), c.separacion);
        EXPECT_EQ(f->At("UCArmZap", 1).Get("NumBarras"), c.barras);
        EXPECT_EQ(f->At("UCArmZap", 0).Get("Separacion"), transversal);
    }
}

// "Idem general" puts the general data's stress in the stress field of each footing and locks
// it; cleared, the field keeps its value and can be typed in again.
TEST_F(Footings, IdemGeneralTakesTheGroundStressOfTheGeneralData)
{
    struct Caso {
        const char* form;
        int indice;
    };
    app.decl.GenTens = 22.5f;
    for (const Caso& c : {Caso{"frmZap", 12}, Caso{"frmZapComb", 4}, Caso{"frmZapCorr", 2}}) {
        SCOPED_TRACE(c.form);
        auto f = Carga<Zapata>(c.form);
        ASSERT_TRUE(f);
        EXPECT_EQ(f->IndiceTension(), c.indice);
        Control& q = f->At("TxtQ", c.indice);
        EXPECT_EQ(q.Text(), "2.25") << "a new footing starts from the general data";
        q.SetText("3.1");
        f->At("Check1").Click();
        EXPECT_EQ(f->At("Check1").CheckValue(), 1);
        EXPECT_EQ(q.Text(), "2.25");
        EXPECT_FALSE(q.Enabled());
        f->At("Check1").Click();
        EXPECT_EQ(q.Text(), "2.25");
        EXPECT_TRUE(q.Enabled());
    }
}

// A record read with "Idem general" ticked keeps its stress as stored, locked.
TEST_F(Footings, ARecordReadKeepsItsStress)
{
    app.decl.GenTens = 30;
    WriteFileAtomic(dir / "Z.~ZC", "Vardena 3\t3.50\r\nCheck1 [CheckBox]\t.Value\t1\r\nTxtQ(2) [TextBox]\t.Text\t1.8\r\n"
                                   "txtTitulo [TextBox]\t.Text\tZ\r\n");
    WriteFileAtomic(dir / "Z.lZC", "{\\rtf1 }");
    auto f = Carga<ZapCorr>("frmZapCorr");
    ASSERT_TRUE(f);
    ASSERT_EQ(f->At("List1").ListCount(), 1);
    f->At("List1").SetListIndex(0);
    f->At("List1").Click();
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "1.8");
    EXPECT_FALSE(f->At("TxtQ", 2).Enabled());
    f->At("Check1").Click();
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "1.8");
    EXPECT_TRUE(f->At("TxtQ", 2).Enabled());
    f->At("Check1").Click();
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "3");
    EXPECT_FALSE(f->At("TxtQ", 2).Enabled());
}

// The section: the footing to scale, the wall on its middle of the kind chosen, never wider
// than the footing, and the three dimensions with the values typed.
TEST_F(Footings, TheStripFootingSectionIsToScale)
{
    struct Caso {
        double muro, ancho, canto;
        bool fabrica;
        int anchoMuroTw;  // the wall as drawn
    };
    for (const Caso& c : {Caso{30, 150, 50, false, 360}, Caso{24, 100, 40, true, 288}, Caso{200, 120, 60, false, 1440}}) {
        SCOPED_TRACE(c.ancho);
        const Croquis k = SeccionZapataCorrida(c.muro, c.ancho, c.canto, c.fabrica, "N=40");
        EXPECT_EQ(k.ancho, static_cast<int>(c.ancho * 12) + 800);
        EXPECT_EQ(k.alto, 720 + static_cast<int>(c.canto * 12) + 800);
        ASSERT_GE(k.trazos.size(), 4u);
        const TrazoCroquis& zapata = k.trazos[2];
        EXPECT_EQ(zapata.papel, PapelCroquis::Hormigon);
        EXPECT_EQ(zapata.puntos[1].x - zapata.puntos[0].x, static_cast<int>(c.ancho * 12));
        EXPECT_EQ(zapata.puntos[2].y - zapata.puntos[1].y, static_cast<int>(c.canto * 12));
        const TrazoCroquis& muro = k.trazos[3];
        EXPECT_EQ(muro.papel, c.fabrica ? PapelCroquis::Fabrica : PapelCroquis::Hormigon);
        EXPECT_EQ(muro.puntos[1].x - muro.puntos[0].x, c.anchoMuroTw);
        int cotas = 0;
        for (const TrazoCroquis& t : k.trazos)
            cotas += t.figura == FiguraCroquis::Cota;
        EXPECT_EQ(cotas, 3);
    }
    // The form draws what its fields say.
    auto f = Carga<ZapCorr>("frmZapCorr");
    ASSERT_TRUE(f);
    f->At("TxCotaAncho").SetText("180");
    f->At("OpTipoMuro", 0).SetOptionValue(true);
    Control pic(f.get(), Kind::PictureBox, "PtSeccZap", -1);
    const auto k = f->CroquisDe(pic);
    ASSERT_TRUE(k);
    EXPECT_EQ(k->ancho, 180 * 12 + 800);
    EXPECT_EQ(k->trazos[3].papel, PapelCroquis::Fabrica);
    EXPECT_EQ(k->trazos[5].texto, "N=40");
    Control otra(f.get(), Kind::PictureBox, "PtCargas", -1);
    EXPECT_FALSE(f->CroquisDe(otra));
}

}  // namespace
}  // namespace vardena

namespace vardena {
namespace {

// The isolated footing's position shows the footings and beams it uses, and the plan draws them.
TEST_F(Footings, ThePositionOfTheColumnShowsWhatItUses)
{
    struct Caso {
        int opcion;
        bool huecos[4];
        bool vigas[2];
        int zapatasDibujadas;  // footings and columns: two rectangles each, then the beams
        int vigasDibujadas;
    };
    const Caso casos[] = {
        {0, {true, true, true, true}, {true, true}, 4, 2},     // corner
        {1, {true, true, false, false}, {true, false}, 2, 1},  // edge
        {2, {true, false, false, false}, {false, false}, 1, 0},  // centre
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.opcion);
        auto f = Carga<Zap>("frmZap");
        ASSERT_TRUE(f);
        EXPECT_EQ(f->Posicion(), PosicionPilar::Centro) << "a new footing stands at the centre";
        f->At("OpPosPil", c.opcion).Click();
        EXPECT_EQ(static_cast<int>(f->Posicion()), c.opcion);
        for (int k = 0; k < 4; ++k)
            EXPECT_EQ(f->At("UCframeZap", k).Visible(), c.huecos[k]) << k;
        for (int v = 0; v < 2; ++v)
            EXPECT_EQ(f->At("UCframeViga", v).Visible(), c.vigas[v]) << v;
        EXPECT_EQ(f->At("chkRiostra").Visible(), c.opcion != 2);
        Control pic(f.get(), Kind::PictureBox, "PtPlantaZap", -1);
        const auto k = f->CroquisDe(pic);
        ASSERT_TRUE(k);
        int hormigon = 0, pilares = 0;
        for (const TrazoCroquis& t : k->trazos) {
            hormigon += t.figura == FiguraCroquis::Poligono && t.papel == PapelCroquis::Hormigon;
            pilares += t.figura == FiguraCroquis::Poligono && t.papel == PapelCroquis::Resalte;
        }
        EXPECT_EQ(pilares, c.zapatasDibujadas);
        EXPECT_EQ(hormigon, c.zapatasDibujadas + c.vigasDibujadas);
    }
}

// The plan to scale, 3 twips a cm with 400 around: at the centre a 140 x 140 footing is 420
// twips a side; at an edge the neighbour 600 cm away widens the plan by 1800 twips.
TEST_F(Footings, TheIsolatedFootingPlanIsToScale)
{
    auto f = Carga<Zap>("frmZap");
    ASSERT_TRUE(f);
    Control pic(f.get(), Kind::PictureBox, "PtPlantaZap", -1);
    auto k = f->CroquisDe(pic);
    ASSERT_TRUE(k);
    EXPECT_EQ(k->ancho, 420 + 800);
    EXPECT_EQ(k->alto, 420 + 800);
    f->At("TxDimZap", 0).SetText("200");
    f->At("OpPosPil", 1).Click();
    k = f->CroquisDe(pic);
    ASSERT_TRUE(k);
    EXPECT_EQ(k->ancho, 600 + 1800 + 800);  // the widest half side, 100 cm, on both ends
    EXPECT_EQ(k->alto, 600 + 800);
}

// A plan side is the width over which the bars across it are spread: side X of slot k feeds
// UCArmZap(2k + 1), side Y UCArmZap(2k); the depths feed none.
TEST_F(Footings, APlanSideSpreadsTheBarsAcrossIt)
{
    struct Caso {
        int lado;
        const char* valor;
        int armadura;  // -1: none changes
        const char* separacion;
    };
    const Caso casos[] = {
        {0, "160", 1, "21.42857"},  // (160 - 10) / 7
        {1, "120", 0, "15.71429"},  // (120 - 10) / 7
        {6, "250", 7, "34.28571"},  // (250 - 10) / 7
        {9, "80", -1, ""},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.lado);
        auto f = Carga<Zap>("frmZap");
        ASSERT_TRUE(f);
        std::vector<std::string> antes;
        for (int i = 0; i < 8; ++i)
            antes.push_back(f->At("UCArmZap", i).Get("Separacion"));
        f->At("TxDimZap", c.lado).SetText(c.valor);
        for (int i = 0; i < 8; ++i) {
            if (i == c.armadura) {
                EXPECT_EQ(f->At("UCArmZap", i).Get("Separacion"), c.separacion);
                EXPECT_EQ(f->At("UCArmZap", i).Get("AnchoZap"), c.valor);
            } else {
                EXPECT_EQ(f->At("UCArmZap", i).Get("Separacion"), antes[static_cast<size_t>(i)]) << i;
            }
        }
    }
}

}  // namespace
}  // namespace vardena
