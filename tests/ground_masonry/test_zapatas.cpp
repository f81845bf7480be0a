// The footings' data entry. Spacings worked by hand from the reinforcement control's rule
// s = (w - 10) / (c - 1) for bars spread over a width w with two covers of 5 cm; the stress of
// the general data in t/m2 shows in kg/cm2 (divided by 10); the section is drawn 12 twips a cm
// with 400 twips around it.

#include <gtest/gtest.h>

#include <memory>
#include <string>

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
