// The drop panel (frmAbaco): its column-line load estimate at an inner, edge and corner position
// in both unit systems, the panel's own rule against the column's; what its window shows; the
// slab's panel and depth; its failures; its plan.
//
// The building: three floors over one basement, loads per m2 exact in binary (self-weight +
// permanent = g; partitions + imposed = q):
//   roof g 0.375 q 0.125; floors 1 and 2 g 0.5 q 0.375; ground g 0.625 q 0.5; basement g 0.75 q 0.5.
// Control "Normal": gamma g 1.5, gamma q 1.6 ("Reducido": 1.6, 1.8). Enclosure TxtQ(0) 800 kg/m,
// e = 0.8 t/m. The panel carries its own level only, its enclosure force has no safety
// coefficient and its area is (a4 + a3)(a2 + a1) / 4 at every position.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "concrete/Abaco.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

class DropPanel : public ::testing::Test {
protected:
    void SetUp() override
    {
        Declaraciones& d = app.decl;
        d.CarpetaObra = dir.path();
        CargaMensajesDesde(d, ResourceDir() + "/lng/Español/MsgVardena.txt");
        test::PonPlantasDePrueba(d);
        d.GenControl = 1;
    }
    std::unique_ptr<Abaco> Load()
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, "frmAbaco");
        auto* p = dynamic_cast<Abaco*>(f.get());
        EXPECT_NE(p, nullptr);
        f.release();
        return std::unique_ptr<Abaco>(p);
    }

    test::TestApp app;
    test::ScratchDir dir;
};

// A case: the position, its a1..a4 (typed into the LePil the position reads them from), the
// level, the control row, and what the estimate gives.
struct Caso {
    const char* nombre;
    PosicionAbaco posicion;
    std::vector<std::string> luces;  // a1, a2, a3, a4
    int nivel;
    int control;
    double area, nc, n, mx, my;
};

const std::vector<Caso>& Casos()
{
    static const std::vector<Caso> casos = {
        // Inner, floor 2: A = (6 + 3)(5 + 4) / 4 = 20.25; N = (1.5 x 0.5 + 1.6 x 0.375) x 20.25 = 27.3375.
        {"inner", PosicionAbaco::Centro, {"4", "5", "3", "6"}, 2, 0, 20.25, 0, 27.3375, 0, 0},
        // Inner, control "Reducido": (1.6 x 0.5 + 1.8 x 0.375) x 20.25 = 1.475 x 20.25 = 29.86875.
        {"inner, reduced control", PosicionAbaco::Centro, {"4", "5", "3", "6"}, 2, 1, 20.25, 0, 29.86875, 0, 0},
        // Edge, floor 1: a = 1, 5, 4, 6 from LePil(9), (8), (11), (10). Nc = 0.8 x 10 / 2 = 4 (no
        // gamma); A = 10 x 6 / 4 = 15; N = 1.35 x 15 + 4 = 24.25; w = 1.35 x 5 = 6.75;
        // Mx = 0.3 |6.75 x 25/12 - 6.75/2 - 4 x 1| = 0.3 x 6.6875 = 2.00625.
        {"edge", PosicionAbaco::Borde, {"1", "5", "4", "6"}, 1, 0, 15, 4, 24.25, 2.00625, 0},
        // Corner, ground floor: a = 1, 4, 5, 2 from LePil(7), (5), (4), (6). Nc = 0.8 (2 + 1 + 2.5 + 2)
        // = 6; A = 7 x 5 / 4 = 8.75; load 1.6 x 0.5 + 1.5 x 0.625 = 1.7375; N = 15.203125 + 6 =
        // 21.203125; wx = 1.7375 x 4.5 + 0.8 = 8.61875, wy = 1.7375 x 3 + 0.8 = 6.0125;
        // Mx = 0.3 |wx 16/12 - wx/2 - 0.8 x 4.5 x 1| = 1.0746875;
        // My = 0.3 |wy 25/12 - wx 4/2 - 0.8 x 3 x 2| = 2.8534375 (wx in the second term).
        {"corner", PosicionAbaco::Esquina, {"1", "4", "5", "2"}, 3, 0, 8.75, 6, 21.203125, 1.0746875, 2.8534375},
        // Corner in the basement: load 1.6 x 0.5 + 1.5 x 0.75 = 1.925; N = 1.925 x 8.75 + 6 = 22.84375.
        {"corner, basement", PosicionAbaco::Esquina, {"1", "4", "5", "2"}, 4, 0, 8.75, 6, 22.84375,
         0.3 * std::abs((1.925 * 4.5 + 0.8) * 16 / 12 - (1.925 * 4.5 + 0.8) / 2 - 3.6),
         0.3 * std::abs((1.925 * 3 + 0.8) * 25 / 12 - (1.925 * 4.5 + 0.8) * 2 - 4.8)},
    };
    return casos;
}

void Aplica(Form& f, const Caso& c)
{
    f.At("CmbPlanta").SetListIndex(c.nivel);
    f.At("cmbControl").SetListIndex(c.control);
    f.At("OpPosPil", static_cast<int>(c.posicion)).SetOptionValue(true);
    const std::array<int, 4> luces = LucesAbaco(c.posicion);
    for (size_t i = 0; i < 4; ++i)
        f.At("LePil", luces[i]).SetText(c.luces[i]);
}

void Compara(const CargasPilar& r, const Caso& c, const std::string& como)
{
    EXPECT_NEAR(r.area, c.area, 1e-9) << c.nombre << como;
    EXPECT_NEAR(r.nCerramiento, c.nc, 1e-9) << c.nombre << como;
    EXPECT_NEAR(r.n, c.n, 1e-9) << c.nombre << como;
    EXPECT_NEAR(r.mx, c.mx, 1e-9) << c.nombre << como;
    EXPECT_NEAR(r.my, c.my, 1e-9) << c.nombre << como;
}

TEST_F(DropPanel, EstimateOfEachPositionInBothUnitSystems)
{
    for (int unidades : {1, 2}) {
        app.decl.Unidades = unidades;
        for (const Caso& c : Casos()) {
            auto f = Load();
            // The enclosure as the panel shows it: 800 kg/m, or 8 kN/m in S.I.
            EXPECT_EQ(f->At("TxtQ", 0).Text(), unidades == 1 ? "800" : "8") << c.nombre;
            Aplica(*f, c);
            f->At("CmdCalcular").Click();
            Compara(f->Cargas(), c, unidades == 1 ? " (technical)" : " (S.I.)");
            // The panel shows none of it, and the record keeps the enclosure as typed.
            EXPECT_EQ(f->At("TxtQ", 0).Text(), unidades == 1 ? "800" : "8");
            EXPECT_NE(f->ResumenCalculo().find("N = " + Formato00(c.n) + " t"), std::string::npos) << f->ResumenCalculo();
        }
    }
    EXPECT_TRUE(app.ui.boxes.empty());
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(DropPanel, ThePanelsRuleDiffersFromTheColumnsOnlyWhereItSays)
{
    // The same data by the column's rule: the edge's enclosure force takes gamma g and its area
    // is (a2/2 + a1)(a4 + a3) / 2 = 3.5 x 5 = 17.5.
    DatosCargasPilar x;
    x.posicion = PosicionPilar::Borde;
    x.a = {1, 5, 4, 6};
    x.g = x.gT = 0.5;
    x.q = x.qT = 0.375;
    x.e = 0.8;
    x.gammaG = 1.5;
    x.gammaQ = 1.6;
    const CargasPilar pilar = CalculaCargasPilar(x);
    EXPECT_DOUBLE_EQ(pilar.nCerramiento, 6);
    EXPECT_DOUBLE_EQ(pilar.area, 17.5);
    x.regla = ReglaCargas::Abaco;
    const CargasPilar abaco = CalculaCargasPilar(x);
    EXPECT_DOUBLE_EQ(abaco.nCerramiento, 4);
    EXPECT_DOUBLE_EQ(abaco.area, 15);
    EXPECT_DOUBLE_EQ(abaco.n, 24.25);
}

TEST_F(DropPanel, PositionShowsItsPlanDistancesAndEnclosure)
{
    auto f = Load();
    // The panel's default: the inner position.
    EXPECT_TRUE(f->At("OpPosPil", 0).OptionValue());
    for (int p : {1, 2, 0}) {
        f->At("OpPosPil", p).SetOptionValue(true);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(f->At("Ptpilar", i).Visible(), i == p);
        std::vector<int> visibles;
        for (int i = 0; i < 12; ++i)
            if (f->At("LePil", i).Visible())
                visibles.push_back(i);
        std::array<int, 4> luces = LucesAbaco(static_cast<PosicionAbaco>(p));
        std::sort(luces.begin(), luces.end());
        EXPECT_EQ(visibles, std::vector<int>(luces.begin(), luces.end())) << p;
        EXPECT_EQ(f->At("TxtQ", 0).Visible(), p != 0);
    }
}

TEST_F(DropPanel, SlabPanelDepthAndVoidFormer)
{
    auto f = Load();
    EXPECT_FALSE(f->At("UCfrFor").Visible());
    f->At("Command1").Click();
    EXPECT_TRUE(f->At("UCfrFor").Visible());
    EXPECT_FALSE(f->At("Frm1").Enabled());
    EXPECT_FALSE(f->At("Picture1").Enabled());
    // The block and the topping make the total depth.
    f->At("txtForj", 2).SetText("30");
    EXPECT_EQ(f->At("txtForj", 4).Text(), "35");
    f->At("txtForj", 3).SetText("7.5");
    EXPECT_EQ(f->At("txtForj", 4).Text(), "37.5");
    f->At("cmbTipoFor").SetListIndex(2);
    EXPECT_TRUE(f->At("PtFor", 2).Visible());
    EXPECT_FALSE(f->At("PtFor", 0).Visible());
    f->At("Command3").Click();
    EXPECT_FALSE(f->At("UCfrFor").Visible());
    EXPECT_TRUE(f->At("Frm1").Enabled());
    EXPECT_TRUE(f->At("Picture1").Enabled());
}

TEST_F(DropPanel, RecordRoundTripKeepsEveryFieldAndTheWindowFollowsIt)
{
    auto f = Load();
    Aplica(*f, Casos()[3]);
    f->At("txtTitulo").SetText("Abaco esquina");
    f->At("AbacoX").SetText("2.40");
    f->At("cmbTipoFor").SetListIndex(1);
    f->At("TxtRes2").SetText("1.75");
    f->At("CmdCalcular").Click();
    ASSERT_TRUE(std::filesystem::exists(dir / "Abaco esquina.~HV"));
    std::filesystem::copy_file(dir / "Abaco esquina.~HV", dir / "Abaco esquina.lHV");

    auto g = Load();
    Control& lista = g->At("List1");
    ASSERT_EQ(lista.ListCount(), 1);
    lista.SetListIndex(0);
    for (Control* c : f->Controls())
        if (IsStored(c->kind())) {
            for (const std::string& p : StoredProperties(c->kind()))
                EXPECT_EQ(g->At(c->Name(), c->Index()).Get(p), c->Get(p)) << c->Label() << "." << p;
        }
    // Read under Cargando: no estimate ran, the window shows the corner.
    EXPECT_TRUE(g->At("Ptpilar", 2).Visible());
    EXPECT_TRUE(g->At("PtFor", 1).Visible());
    EXPECT_TRUE(g->ResumenCalculo().empty());
}

TEST_F(DropPanel, NoPositionShowsTheStopBoxAndOverflowSavesNothing)
{
    auto f = Load();
    for (int i = 0; i < 3; ++i)
        f->At("OpPosPil", i).SetOptionValue(false);
    f->CalCargas();
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].prompt, app.decl.Msg(706));
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);

    auto g = Load();
    Aplica(*g, Casos()[2]);
    // 1e300 squared no longer fits: the handler's error window names the distance.
    g->At("LePil", 8).SetText("1e300");
    app.ui.retries = 0;
    EXPECT_THROW(g->At("CmdCalcular").Click(), ProgramHalt);
    ASSERT_EQ(app.ui.errors.size(), 1u);
    EXPECT_EQ(app.ui.errors[0].origin, "CmdCalcular_Click");
    EXPECT_EQ(app.ui.errors[0].number, 6);
    EXPECT_NE(app.ui.errors[0].description.find("LePil(8) = 1e300"), std::string::npos) << app.ui.errors[0].description;
    EXPECT_FALSE(std::filesystem::exists(dir / "Abaco 01.~HV"));
    EXPECT_TRUE(g->ResumenCalculo().empty());
}

TEST_F(DropPanel, PlanShowsTheColumnThePanelAndTheFacades)
{
    auto f = Load();
    for (int p = 0; p < 3; ++p) {
        const std::optional<Croquis> c = f->CroquisDe(f->At("Ptpilar", p));
        ASSERT_TRUE(c) << p;
        int fachadas = 0, paneles = 0;
        std::vector<std::string> cotas;
        for (const TrazoCroquis& t : c->trazos) {
            fachadas += t.papel == PapelCroquis::Superficie;
            paneles += t.papel == PapelCroquis::Resalte;
            if (t.figura == FiguraCroquis::Cota)
                cotas.push_back(t.texto);
            for (const PuntoCroquis& q : t.puntos)
                EXPECT_TRUE(q.x >= 0 && q.x <= c->ancho && q.y >= 0 && q.y <= c->alto) << "inside, position " << p;
        }
        // An inner column has no façade, an edge one, a corner two; the panel is drawn once.
        EXPECT_EQ(fachadas, p) << p;
        EXPECT_EQ(paneles, 1) << p;
        EXPECT_EQ(cotas, (std::vector<std::string>{"a1", "a2", "a3", "a4", "2.10"}));
    }
    for (int tipo = 0; tipo < 3; ++tipo)
        EXPECT_TRUE(f->CroquisDe(f->At("PtFor", tipo))) << tipo;
    EXPECT_FALSE(f->CroquisDe(f->At("PtAbaco")));
}

}  // namespace
}  // namespace vardena
