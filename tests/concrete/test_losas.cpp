// The two-way slab panels (frmForjRet, frmForMaci): the position's plan and spans, the bands
// with their bars, the further bars, the panels that open as dialogs, the total depth, the
// record, and the plan and band drawn from the fields.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "concrete/Losas.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"

namespace vardena {
namespace {

class TwoWaySlab : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt");
    }
    std::unique_ptr<LosaBandas> Load(const char* nombre)
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* p = dynamic_cast<LosaBandas*>(f.get());
        EXPECT_NE(p, nullptr) << nombre;
        f.release();
        return std::unique_ptr<LosaBandas>(p);
    }

    test::TestApp app;
    test::ScratchDir dir;
};

constexpr const char* kLosas[] = {"frmForjRet", "frmForMaci"};

TEST_F(TwoWaySlab, PositionShowsItsPlanAndSpans)
{
    const std::vector<std::vector<int>> campos = {{5, 6}, {7, 8, 9}, {10, 11, 12, 13}};
    for (const char* nombre : kLosas) {
        auto f = Load(nombre);
        EXPECT_TRUE(f->At("OpPosPil", 0).OptionValue()) << nombre;
        for (int p : {1, 2, 0}) {
            f->At("OpPosPil", p).SetOptionValue(true);
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(f->At("PctFRPlan", i).Visible(), i == p) << nombre;
            std::vector<int> visibles;
            for (int i = 5; i <= 13; ++i)
                if (f->At("txtForj", i).Visible())
                    visibles.push_back(i);
            EXPECT_EQ(visibles, campos[static_cast<size_t>(p)]) << nombre << " " << p;
        }
    }
}

TEST_F(TwoWaySlab, BandButtonsBringTheirBarsToTheFront)
{
    for (const char* nombre : kLosas) {
        auto f = Load(nombre);
        // At load the middle strip along X; each further bar waits for its switch.
        EXPECT_EQ(f->At("LbBAnda").Caption(), "Banda central X-X'");
        for (int b : {3, 1, 2, 0}) {
            f->At("CmBanda", b).Click();
            EXPECT_EQ(f->At("LbBAnda").Caption(), app.decl.Msg(1660 + b)) << nombre;
            EXPECT_EQ(static_cast<int>(f->BandaElegida()), b);
            for (int k = 0; k < 4; ++k)
                EXPECT_EQ(f->At("FrBanda" + std::to_string(k)).Visible(), k == b);
            for (int i = 0; i < 24; ++i) {
                const bool base = i % 2 == 0;
                EXPECT_EQ(f->At("UCArVig", i).Visible(), i / 6 == b && base) << nombre << " band " << b << " bar " << i;
                if (const Control* lv = f->Find("TxLv", i)) {
                    EXPECT_EQ(lv->Visible(), i / 6 == b && base);
                }
                if (!base) {
                    EXPECT_EQ(f->At("ChArV", i).Visible(), i / 6 == b);
                }
            }
        }
        // A further bar of the chosen band shows with its length while it is switched on.
        f->At("CmBanda", 2).Click();
        f->At("ChArV", 15).SetCheckValue(1);
        EXPECT_TRUE(f->At("UCArVig", 15).Visible());
        EXPECT_TRUE(f->At("TxLv", 15).Visible());
        f->At("CmBanda", 1).Click();
        EXPECT_FALSE(f->At("UCArVig", 15).Visible());
    }
}

TEST_F(TwoWaySlab, ResultsPanelOpensAfterTheSaveAndCloses)
{
    for (const char* nombre : kLosas) {
        auto f = Load(nombre);
        EXPECT_FALSE(f->At("UCfrRes").Visible());
        EXPECT_EQ(f->At("UCfrRes").Left(), 4425);
        f->At("CmdCalcular").Click();
        EXPECT_FALSE(f->UltimoGuardado().empty()) << nombre;
        EXPECT_TRUE(f->At("UCfrRes").Visible());
        EXPECT_FALSE(f->At("Frm1").Enabled());
        EXPECT_FALSE(f->At("Picture1").Enabled());
        f->At("Command2").Click();
        EXPECT_FALSE(f->At("UCfrRes").Visible());
        EXPECT_TRUE(f->At("Frm1").Enabled());
        EXPECT_TRUE(f->At("Picture1").Enabled());
    }
}

TEST_F(TwoWaySlab, WaffleSlabPanelDepthAndVoidFormer)
{
    auto f = Load("frmForjRet");
    EXPECT_FALSE(f->At("UCfrFor").Visible());
    EXPECT_EQ(f->At("UCfrFor").Left(), 3315);
    f->At("Command1").Click();
    EXPECT_TRUE(f->At("UCfrFor").Visible());
    EXPECT_FALSE(f->At("Frm1").Enabled());
    f->At("txtForj", 2).SetText("35");
    EXPECT_EQ(f->At("txtForj", 4).Text(), "40");
    f->At("cmbTipoFor").SetListIndex(1);
    EXPECT_TRUE(f->At("PtFor", 1).Visible());
    EXPECT_FALSE(f->At("PtFor", 0).Visible());
    f->At("Command3").Click();
    EXPECT_FALSE(f->At("UCfrFor").Visible());
    EXPECT_TRUE(f->At("Frm1").Enabled());
    // The solid slab has no such panel: its depth stands in the form.
    auto g = Load("frmForMaci");
    EXPECT_EQ(g->Find("UCfrFor"), nullptr);
    EXPECT_EQ(g->At("TxtCanto").Text(), "20");
}

TEST_F(TwoWaySlab, RecordRoundTripAndTheWindowFollowsIt)
{
    for (const char* nombre : kLosas) {
        auto f = Load(nombre);
        f->At("txtTitulo").SetText("Panel esquina");
        f->At("OpPosPil", 2).SetOptionValue(true);
        f->At("txtForj", 12).SetText("1.35");
        f->At("ChArV", 3).SetCheckValue(1);
        f->At("TxLv", 3).SetText("2.40");
        f->At("txtMf", 7).SetText("1.62");
        f->At("CmdCalcular").Click();
        const std::string codigo = std::string(nombre) == "frmForjRet" ? "HR" : "HQ";
        std::filesystem::copy_file(dir / ("Panel esquina.~" + codigo), dir / ("Panel esquina.l" + codigo));
        auto g = Load(nombre);
        ASSERT_EQ(g->At("List1").ListCount(), 1);
        g->At("List1").SetListIndex(0);
        for (Control* c : f->Controls())
            if (IsStored(c->kind())) {
                for (const std::string& p : StoredProperties(c->kind()))
                    EXPECT_EQ(g->At(c->Name(), c->Index()).Get(p), c->Get(p)) << nombre << " " << c->Label() << "." << p;
            }
        EXPECT_TRUE(g->At("PctFRPlan", 2).Visible());
        EXPECT_TRUE(g->At("txtForj", 12).Visible());
        EXPECT_TRUE(g->At("UCArVig", 3).Visible());
        std::filesystem::remove(dir / ("Panel esquina.l" + codigo));
    }
}

TEST_F(TwoWaySlab, PlanSetsOffTheChosenBand)
{
    auto f = Load("frmForMaci");
    // The inner panel 6 x 4 m at 400 twips a metre: the column strips stand a quarter of the
    // shorter span, 1 m = 400 twips, each side of the column lines.
    f->At("txtForj", 5).SetText("6");
    f->At("txtForj", 6).SetText("4");
    struct Esperado {
        int banda;
        int resaltes;
        int ancho, alto;  // of the first set-off rectangle
    };
    // The plan reaches a fifth of each span beyond the panel: 8.4 x 5.6 m, 3360 x 2240 twips; a
    // column strip ends where the plan does, 320 twips beyond the column line.
    for (const Esperado& e : {Esperado{0, 1, 3360, 800}, Esperado{1, 2, 3360, 720}, Esperado{2, 1, 1600, 2240},
                              Esperado{3, 2, 800, 2240}}) {
        f->At("CmBanda", e.banda).Click();
        const std::optional<Croquis> c = f->CroquisDe(f->At("PctFRPlan", 0));
        ASSERT_TRUE(c);
        std::vector<const TrazoCroquis*> resaltes;
        int pilares = 0;
        for (const TrazoCroquis& t : c->trazos) {
            if (t.papel == PapelCroquis::Resalte)
                resaltes.push_back(&t);
            pilares += t.papel == PapelCroquis::Hormigon;
            for (const PuntoCroquis& q : t.puntos)
                EXPECT_TRUE(q.x >= 0 && q.x <= c->ancho && q.y >= 0 && q.y <= c->alto);
        }
        ASSERT_EQ(static_cast<int>(resaltes.size()), e.resaltes) << e.banda;
        const auto& p = resaltes[0]->puntos;
        EXPECT_EQ(p[2].x - p[0].x, e.ancho) << e.banda;
        EXPECT_EQ(p[2].y - p[0].y, e.alto) << e.banda;
        EXPECT_EQ(pilares, 4);
    }
    // The band along its span: its base bars drawn, a further bar only while switched on.
    f->At("CmBanda", 0).Click();
    auto barras = [&] {
        int n = 0;
        const std::optional<Croquis> dibujo = f->CroquisDe(f->At("PctViga"));
        for (const TrazoCroquis& t : dibujo->trazos)
            n += t.papel == PapelCroquis::Armadura && t.figura == FiguraCroquis::Linea;
        return n;
    };
    EXPECT_EQ(barras(), 3);
    f->At("ChArV", 3).SetCheckValue(1);
    EXPECT_EQ(barras(), 4);
    EXPECT_EQ(f->Find("PtFor", 0), nullptr);
    auto r = Load("frmForjRet");
    EXPECT_TRUE(r->CroquisDe(r->At("PtFor", 1)));
}

}  // namespace
}  // namespace vardena
