// The column forms' load estimate: axial force and moments of an inner, edge and corner column at
// each kind of level, with and without the columns above, in both unit systems; the events that
// start it and those that must not; the window it keeps in step; its failures.
//
// The building of every case: three floors over one basement. Loads per m2 (self-weight +
// permanent = G; partitions + imposed = Q), all exact in binary:
//   roof     G0 = 0.25 + 0.125 = 0.375   Q0 = 0 + 0.125     = 0.125
//   floor 1  G1 = 0.25 + 0.25  = 0.5     Q1 = 0.125 + 0.25  = 0.375
//   floor 2  G2 = 0.5                    Q2 = 0.375
//   ground   G3 = 0.375 + 0.25 = 0.625   Q3 = 0.125 + 0.375 = 0.5
//   basement G4 = 0.5 + 0.25   = 0.75    Q4 = 0 + 0.5       = 0.5
// Storey heights 3, 3, 3, 3.5, 3.25 m; enclosure 0.75 t/m; control "Normal": gamma g 1.5,
// gamma q 1.6 ("Reducido": 1.6, 1.8). The expected figures are worked out by hand below.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "concrete/PilHorm.h"
#include "frame/Formularios.h"
#include "frame/GruposVentana.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using Pares = std::vector<std::pair<std::string, std::string>>;

class Column : public ::testing::Test {
protected:
    void SetUp() override
    {
        Declaraciones& d = app.decl;
        d.CarpetaObra = dir.path();
        CargaMensajesDesde(d, ResourceDir() + "/lng/Español/MsgVardena.txt");
        test::PonPlantasDePrueba(d);
        const float cot[] = {3, 3, 3, 3.5f, 3.25f};
        for (size_t i = 0; i < 5; ++i)
            d.GenCot[i] = cot[i];
        d.GenValor[7] = 0.75f;
        d.GenControl = 1;
    }
    std::unique_ptr<PilHorm> Load(const char* nombre = "frmPilHorm")
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* p = dynamic_cast<PilHorm*>(f.get());
        EXPECT_NE(p, nullptr) << nombre;
        f.release();
        return std::unique_ptr<PilHorm>(p);
    }
    // Types into a field, picks a row, ticks a check or chooses an option, as the user would.
    static void Pon(Form& f, const std::string& nombre, int index, const std::string& valor)
    {
        Control& c = f.At(nombre, index);
        const char* prop = c.kind() == Kind::TextBox ? "Text" : c.kind() == Kind::ComboBox ? "ListIndex" : "Value";
        c.SetProperty(prop, valor);
    }
    // The four distances of a position, from its first LePil.
    static void Luces(Form& f, PosicionPilar p, const std::vector<std::string>& a)
    {
        for (size_t i = 0; i < a.size(); ++i)
            Pon(f, "LePil", PrimeraLuz(p) + static_cast<int>(i), a[i]);
    }
    static std::vector<std::string> Esfuerzos(const Form& f)
    {
        return {f.At("TxtQ", 2).Text(), f.At("TxtQ", 0).Text(), f.At("TxtQ", 1).Text()};
    }

    test::TestApp app;
    test::ScratchDir dir;
};

// One case: the position with its four distances, the level, whether the column continues
// above (-1 as the level leaves it), the control row, and N, Mx, My as the panel shows them.
struct Caso {
    const char* nombre;
    PosicionPilar posicion;
    std::vector<std::string> luces;
    int nivel;
    int superior;
    int control;
    std::vector<std::string> esperado;  // N, Mx, My
};

// The positions by their option button: esquina 0, borde 1, centro 2.
const std::vector<Caso>& Casos()
{
    static const std::vector<Caso> casos = {
        // Inner, floor 2 with the columns above: GT = G0+G1+G2 = 1.375, QT = 0.875,
        // A = (5+4)(6+3)/4 = 20.25, N = (1.5 x 1.375 + 1.6 x 0.875) x 20.25 = 70.115625.
        {"inner, storeys above", PosicionPilar::Centro, {"4", "5", "3", "6"}, 2, -1, 0, {"70.12", "0.00", "0.00"}},
        // The same level alone: N = (1.5 x 0.5 + 1.6 x 0.375) x 20.25 = 27.3375.
        {"inner, its level alone", PosicionPilar::Centro, {"4", "5", "3", "6"}, 2, 0, 0, {"27.34", "0.00", "0.00"}},
        // Control "Reducido" of the form's own list: (1.6 x 1.375 + 1.8 x 0.875) x 20.25 = 76.44375.
        {"inner, control reduced", PosicionPilar::Centro, {"4", "5", "3", "6"}, 2, -1, 1, {"76.44", "0.00", "0.00"}},
        // Roof: no column above, the roof's own loads: (1.5 x 0.375 + 1.6 x 0.125) x 20.25 = 15.440625.
        {"roof column", PosicionPilar::Centro, {"4", "5", "3", "6"}, 0, -1, 0, {"15.44", "0.00", "0.00"}},
        // Basement with all above: GT = 2.0 + 0.75 = 2.75, QT = 1.375 + 0.5 = 1.875:
        // (4.125 + 3.0) x 20.25 = 144.28125; alone: (1.125 + 0.8) x 20.25 = 38.98125.
        {"basement, storeys above", PosicionPilar::Centro, {"4", "5", "3", "6"}, 4, -1, 0, {"144.28", "0.00", "0.00"}},
        {"basement alone", PosicionPilar::Centro, {"4", "5", "3", "6"}, 4, 0, 0, {"38.98", "0.00", "0.00"}},
        // Edge, floor 1: a = 1, 5, 4, 6; e = (3 + 3) x 0.75 = 4.5; Nc = 4.5 x 10 / 2 x 1.5 = 33.75;
        // A = (2.5 + 1) x 10 / 2 = 17.5; N = (1.5 x 0.875 + 1.6 x 0.5) x 17.5 + 33.75 = 70.71875;
        // w = (1.6 x 0.375 + 1.5 x 0.5) x 5 = 6.75; Mx = 0.3 |6.75 x 25/12 - 6.75/2 - 33.75| = 6.91875.
        {"edge, storeys above", PosicionPilar::Borde, {"1", "5", "4", "6"}, 1, -1, 0, {"70.72", "6.92", "0.00"}},
        // Edge in the basement: the enclosure of the storeys above ground only, e = 9 x 0.75 = 6.75;
        // Nc = 6.75 x 5 x 1.5 = 50.625; N = 7.125 x 17.5 + 50.625 = 175.3125;
        // w = (0.8 + 1.125) x 5 = 9.625; Mx = 0.3 |20.0520833 - 4.8125 - 50.625| = 10.615625.
        {"edge, basement", PosicionPilar::Borde, {"1", "5", "4", "6"}, 4, -1, 0, {"175.31", "10.62", "0.00"}},
        // Corner, ground floor: a = 1, 4, 5, 2; e = 9 x 0.75 = 6.75; Nc = 6.75 x 7.5 x 1.5 = 75.9375;
        // A = 3 x 4.5 = 13.5; N = (1.5 x 2 + 1.6 x 1.375) x 13.5 + 75.9375 = 146.1375;
        // q = 1.6 x 0.5 + 1.5 x 0.625 = 1.7375, wx = q x 4.5 + 6.75 = 14.56875, wy = q x 3 + 6.75 = 11.9625;
        // Mx = 0.3 |wx 16/12 - wx/2 - 6.75 x 4.5| = 5.4703125;
        // My = 0.3 |wy 25/12 - wx 4/2 - 6.75 x 3 x 2| = 13.4146875 (wx in the second term).
        {"corner, storeys above", PosicionPilar::Esquina, {"1", "4", "5", "2"}, 3, -1, 0, {"146.14", "5.47", "13.41"}},
        // Corner on the roof: e = 3 x 0.75 = 2.25; Nc = 2.25 x 7.5 x 1.5 = 25.3125;
        // N = (0.5625 + 0.2) x 13.5 + 25.3125 = 35.60625; q = 0.2 + 0.5625 = 0.7625,
        // wx = 0.7625 x 4.5 + 2.25 = 5.68125, wy = 0.7625 x 3 + 2.25 = 4.5375;
        // Mx = 0.3 |7.575 - 2.840625 - 10.125| = 1.6171875;
        // My = 0.3 |9.453125 - 11.3625 - 13.5| = 4.6228125.
        {"corner, roof", PosicionPilar::Esquina, {"1", "4", "5", "2"}, 0, -1, 0, {"35.61", "1.62", "4.62"}},
    };
    return casos;
}

// Sets a case on a loaded form: the level first, as the user would, since it sets ChPilSup.
void Aplica(Form& f, const Caso& c)
{
    f.At("CmbPlanta").SetListIndex(c.nivel);
    f.At("cmbControl").SetListIndex(c.control);
    f.At("OpPosPil", static_cast<int>(c.posicion)).SetOptionValue(true);
    for (size_t i = 0; i < c.luces.size(); ++i)
        f.At("LePil", PrimeraLuz(c.posicion) + static_cast<int>(i)).SetText(c.luces[i]);
    if (c.superior >= 0)
        f.At("ChPilSup").SetCheckValue(c.superior);
}

TEST_F(Column, EstimateOfEachPositionAndLevelInTechnicalUnits)
{
    for (const Caso& c : Casos()) {
        auto f = Load();
        Aplica(*f, c);
        EXPECT_EQ(Esfuerzos(*f), c.esperado) << c.nombre;
        // The button recalculates the same figures and saves them.
        f->At("CmdCalcular").Click();
        EXPECT_EQ(Esfuerzos(*f), c.esperado) << c.nombre;
    }
    EXPECT_TRUE(app.ui.boxes.empty());
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Column, SiPanelShowsTenTimesTheInternalValues)
{
    app.decl.Unidades = 2;
    for (const Caso& c : Casos()) {
        auto f = Load();
        Aplica(*f, c);
        const PilHorm& p = *f;
        // The panel in kN and m·kN: ten times t and m·t, the bottom label with Mx.
        EXPECT_EQ(f->At("TxtQ", 2).Text(), Formato00(p.Cargas().n * 10)) << c.nombre;
        EXPECT_EQ(f->At("TxtQ", 0).Text(), Formato00(p.Cargas().mx * 10)) << c.nombre;
        EXPECT_EQ(f->At("TxtQ", 1).Text(), Formato00(p.Cargas().my * 10)) << c.nombre;
        EXPECT_EQ(ValComaCopy(c.esperado[0]), std::round(p.Cargas().n * 100) / 100) << c.nombre;
    }
    // Inner column of floor 2 with the storeys above: 70.115625 t shows as 701.16 kN.
    auto f = Load();
    Aplica(*f, Casos()[0]);
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "701.16");
    // The edge column's moment: 6.91875 m·t, 69.19 m·kN; the enclosure 0.75 t/m as 7.5 kN/m.
    Aplica(*f, Casos()[6]);
    EXPECT_EQ(f->At("TxtQ", 0).Text(), "69.19");
    EXPECT_EQ(f->At("LbP1", 2).Caption(), "69.19");
    EXPECT_EQ(f->At("TxtQ", 3).Text(), "7.5");
}

TEST_F(Column, LevelSetsTheColumnAboveTheStoreyHeightAndTheEnclosure)
{
    auto f = Load();
    // Load: the roof, no column above, its storey height, the enclosure in kg/m.
    EXPECT_EQ(f->At("ChPilSup").CheckValue(), 0);
    EXPECT_EQ(f->At("LePil", 12).Text(), "3.00");
    EXPECT_EQ(f->At("TxtQ", 3).Text(), "750");
    struct Fila {
        int nivel;
        int superior;
        bool visible;
        const char* altura;
    };
    // ChPilSup hides at row NPlantasSobre + NPlantasBajo - 1 = 3, the ground floor here, as the
    // form has always counted its levels.
    for (const Fila& fila : {Fila{1, 1, true, "3.00"}, Fila{3, 1, false, "3.50"}, Fila{4, 1, true, "3.25"},
                             Fila{0, 0, true, "3.00"}}) {
        f->At("CmbPlanta").SetListIndex(fila.nivel);
        EXPECT_EQ(f->At("ChPilSup").CheckValue(), fila.superior) << fila.nivel;
        EXPECT_EQ(f->At("ChPilSup").Visible(), fila.visible) << fila.nivel;
        EXPECT_EQ(f->At("LePil", 12).Text(), fila.altura) << fila.nivel;
    }
}

TEST_F(Column, CornerWithAllDistancesZeroWaitsForTheButton)
{
    auto f = Load();
    Aplica(*f, Casos()[8]);
    ASSERT_EQ(Esfuerzos(*f), Casos()[8].esperado);
    // Each distance typed as 0 leaves the figures as they were: the estimate waits for all four.
    Luces(*f, PosicionPilar::Esquina, {"0", "0", "0", "0"});
    EXPECT_EQ(Esfuerzos(*f), Casos()[8].esperado);
    // The button takes them as they stand: A = 0, Nc = 0, so N = 0 and both moments 0.
    f->At("CmdCalcular").Click();
    EXPECT_EQ(Esfuerzos(*f), (std::vector<std::string>{"0.00", "0.00", "0.00"}));
    EXPECT_EQ(f->Cargas().area, 0);
    EXPECT_EQ(f->Cargas().nCerramiento, 0);
    // A distance that is not a number reads as 0 and waits too.
    Luces(*f, PosicionPilar::Esquina, {"1", "4", "5", "abc"});
    EXPECT_EQ(Esfuerzos(*f), (std::vector<std::string>{"0.00", "0.00", "0.00"}));
    Pon(*f, "LePil", 3, "2");
    EXPECT_EQ(Esfuerzos(*f), Casos()[8].esperado);
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Column, SwitchingPositionsKeepsEveryPositionsDistances)
{
    auto f = Load();
    f->At("CmbPlanta").SetListIndex(2);
    Luces(*f, PosicionPilar::Esquina, {"1", "4", "5", "2"});
    Luces(*f, PosicionPilar::Borde, {"1", "5", "4", "6"});
    Luces(*f, PosicionPilar::Centro, {"4", "5", "3", "6"});
    std::vector<std::string> antes;
    for (int i = 0; i <= 12; ++i)
        antes.push_back(f->At("LePil", i).Text());
    for (int vuelta = 0; vuelta < 2; ++vuelta)
        for (int p : {0, 1, 2, 1, 0, 2}) {
            f->At("OpPosPil", p).SetOptionValue(true);
            // Only the chosen position's plan shows, and the enclosure on the façade only.
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(f->At("Ptpilar", i).Visible(), i == p);
            EXPECT_EQ(f->At("TxtQ", 3).Visible(), p != 2);
        }
    for (int i = 0; i <= 12; ++i)
        EXPECT_EQ(f->At("LePil", i).Text(), antes[static_cast<size_t>(i)]) << i;
    EXPECT_EQ(Esfuerzos(*f), Casos()[0].esperado);
}

// The design loads of the panel: the moments 0, the axial force 40 and the enclosure 800 kg/m,
// each in the field of its meaning; the distances of each position and the storey height.
TEST_F(Column, DesignLoadsStandInTheFieldsOfTheirMeaning)
{
    auto f = Load();
    const std::pair<int, const char*> esperados[] = {{0, "0"}, {1, "0"}, {2, "40"}, {3, "800"}};
    for (const auto& [i, texto] : esperados)
        EXPECT_EQ(f->At("TxtQ", i).designText, texto) << i;
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "40");
    const char* luces[] = {"4.50", "4.50", "5.00", "5.00", "4.60", "5.10", "1.10", "1.00", "5.15", "1.00", "4.50", "4.50", "3.10"};
    for (int i = 0; i < 13; ++i)
        EXPECT_EQ(f->At("LePil", i).designText, luces[i]) << "LePil(" << i << ")";
}

TEST_F(Column, TypedLoadsAreRecalculatedAndNoEventRunsWhileLoading)
{
    auto f = Load();
    // A new form keeps its design loads: nothing was estimated while it loaded.
    for (int i : {0, 1, 2})
        EXPECT_EQ(f->At("TxtQ", i).Text(), f->At("TxtQ", i).designText) << i;
    Aplica(*f, Casos()[0]);
    Pon(*f, "TxtQ", 2, "999");
    EXPECT_EQ(Esfuerzos(*f), Casos()[0].esperado);
    app.decl.Cargando = kTrue;
    Pon(*f, "TxtQ", 2, "999");
    Pon(*f, "ChPilSup", -1, "0");
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "999");
    app.decl.Cargando = kFalse;
}

TEST_F(Column, NoLevelChosenLeavesTheFiguresAsRead)
{
    auto f = Load();
    Aplica(*f, Casos()[0]);
    f->At("CmbPlanta").SetListIndex(-1);
    Pon(*f, "LePil", 4, "8");
    f->At("CmdCalcular").Click();
    EXPECT_EQ(Esfuerzos(*f), Casos()[0].esperado);
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Column, NoPositionChosenShowsTheStopBox)
{
    auto f = Load();
    for (int i = 0; i < 3; ++i)
        f->At("OpPosPil", i).SetOptionValue(false);
    f->CalCargas();
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].prompt, app.decl.Msg(706));
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);
    EXPECT_EQ(f->At("TxtQ", 2).Text(), f->At("TxtQ", 2).designText);
}

TEST_F(Column, ResultOutOfRangeGoesToTheErrorWindowAndSavesNothing)
{
    auto f = Load();
    Aplica(*f, Casos()[6]);
    app.ui.retries = 0;
    // 1e300 squared no longer fits: the handler's error window names the distance.
    EXPECT_THROW(Pon(*f, "LePil", 9, "1e300"), ProgramHalt);
    ASSERT_EQ(app.ui.errors.size(), 1u);
    EXPECT_EQ(app.ui.errors[0].origin, "LePil_Change");
    EXPECT_EQ(app.ui.errors[0].number, 6);
    EXPECT_NE(app.ui.errors[0].description.find("LePil(9) = 1e300"), std::string::npos) << app.ui.errors[0].description;
    // The panel keeps the last figures, and the button saves no record.
    EXPECT_EQ(Esfuerzos(*f), Casos()[6].esperado);
    EXPECT_THROW(f->At("CmdCalcular").Click(), ProgramHalt);
    EXPECT_EQ(app.ui.errors.back().origin, "CmdCalcular_Click");
    EXPECT_FALSE(std::filesystem::exists(dir / "Pilar Hormigón 01.~HP"));
}

TEST_F(Column, SteelAndTimberColumnsShareTheEstimate)
{
    // Neither has a control list of its own: the general control level applies.
    for (const char* nombre : {"frmPilMet", "frmPilMade"}) {
        for (const Caso& c : Casos()) {
            if (c.control != 0)
                continue;
            auto f = Load(nombre);
            f->At("CmbPlanta").SetListIndex(c.nivel);
            f->At("OpPosPil", static_cast<int>(c.posicion)).SetOptionValue(true);
            for (size_t i = 0; i < c.luces.size(); ++i)
                f->At("LePil", PrimeraLuz(c.posicion) + static_cast<int>(i)).SetText(c.luces[i]);
            if (c.superior >= 0)
                f->At("ChPilSup").SetCheckValue(c.superior);
            EXPECT_EQ(Esfuerzos(*f), c.esperado) << nombre << ": " << c.nombre;
        }
    }
}

TEST_F(Column, ShapeAndCrossTiesFollowTheirFields)
{
    auto f = Load();
    EXPECT_TRUE(f->At("PctCuadr").Visible());
    EXPECT_FALSE(f->At("PctCir").Visible());
    Pon(*f, "CmbForma", -1, "1");
    EXPECT_FALSE(f->At("PctCuadr").Visible());
    EXPECT_FALSE(f->At("Lbnota").Visible());
    EXPECT_TRUE(f->At("PctCir").Visible());
    for (int i : {3, 4}) {
        EXPECT_FALSE(f->At("Pctllave", i).Visible());
        Pon(*f, "ChPil", i, "1");
        EXPECT_TRUE(f->At("Pctllave", i).Visible());
    }
}

// The section as drawn: a bar square for each bar of each face, the side bars between the
// corners, the tie through the first side bars of a face whose ChPil is set; the circle with its
// bars round it.
TEST_F(Column, SectionPicturesDrawTheBarsAndTheCrossTies)
{
    auto f = Load();
    Pon(*f, "txtTramo", 3, "40");
    Pon(*f, "txtTramo", 4, "20");
    const std::pair<int, const char*> barras[] = {{0, "6"}, {1, "3"}, {2, "2"}, {3, "2"}, {4, "1"}};
    for (const auto& [i, n] : barras) {
        f->At("UCArmPilar", i).Set("NumBarras", n);
        f->At("UCArmPilar", i).Set("Diametro", "16");
    }
    struct Cuenta {
        int barras = 0, lineas = 0;
        std::vector<std::string> textos;
    };
    auto cuenta = [&](const char* nombre, int index) {
        Cuenta n;
        const std::optional<Croquis> c = f->CroquisDe(f->At(nombre, index));
        EXPECT_TRUE(c) << nombre;
        if (!c)
            return n;
        for (const TrazoCroquis& t : c->trazos) {
            if (t.papel != PapelCroquis::Armadura && t.figura != FiguraCroquis::Texto)
                continue;
            n.barras += t.figura == FiguraCroquis::Poligono;
            n.lineas += t.figura == FiguraCroquis::Linea;
            if (t.figura == FiguraCroquis::Texto)
                n.textos.push_back(t.texto);
        }
        return n;
    };
    Cuenta r = cuenta("PctCuadr", -1);
    EXPECT_EQ(r.barras, 3 + 2 + 2 + 1);
    EXPECT_EQ(r.lineas, 1) << "the stirrup alone";
    for (const char* texto : {"b=40", "h=20", "3\xC3\x98" "16", "1\xC3\x98" "16"})
        EXPECT_NE(std::find(r.textos.begin(), r.textos.end(), texto), r.textos.end()) << texto;
    Pon(*f, "ChPil", 3, "1");
    EXPECT_EQ(cuenta("PctCuadr", -1).lineas, 2) << "the tie of the left face";
    EXPECT_GT(cuenta("Pctllave", 3).lineas, 0);
    Pon(*f, "CmbForma", -1, "1");
    r = cuenta("PctCir", -1);
    EXPECT_EQ(r.barras, 6);
    EXPECT_NE(std::find(r.textos.begin(), r.textos.end(), "D=" + f->At("txtTramo", 0).Text()), r.textos.end());
}

TEST_F(Column, PlanSketchShowsThePositionAndItsDistances)
{
    auto f = Load();
    // Drawn at 400 twips a metre, held within 0.5 and 8 m.
    Luces(*f, PosicionPilar::Esquina, {"0.1", "4", "20", "2"});
    Luces(*f, PosicionPilar::Borde, {"1", "5", "4", "6"});
    Luces(*f, PosicionPilar::Centro, {"4", "5", "3", "6"});
    const std::vector<std::vector<int>> largos = {{200, 1600, 3200, 800}, {400, 2000, 1600, 2400}, {1600, 2000, 1200, 2400}};
    for (int p = 0; p < 3; ++p) {
        const std::optional<Croquis> c = f->CroquisDe(f->At("Ptpilar", p));
        ASSERT_TRUE(c) << p;
        std::vector<std::string> nombres;
        std::vector<int> medidas;
        int facadas = 0, pilares = 0;
        for (const TrazoCroquis& t : c->trazos) {
            if (t.figura == FiguraCroquis::Cota) {
                nombres.push_back(t.texto);
                medidas.push_back(std::abs(t.puntos[1].x - t.puntos[0].x) + std::abs(t.puntos[1].y - t.puntos[0].y));
            }
            facadas += t.papel == PapelCroquis::Superficie;
            pilares += t.papel == PapelCroquis::Hormigon;
            for (const PuntoCroquis& q : t.puntos) {
                EXPECT_TRUE(q.x >= 0 && q.x <= c->ancho && q.y >= 0 && q.y <= c->alto) << "inside the picture";
            }
        }
        // Each distance under its name and the value of its field.
        const int primera = PrimeraLuz(static_cast<PosicionPilar>(p));
        std::vector<std::string> esperados;
        for (int i = 0; i < 4; ++i)
            esperados.push_back("a" + std::to_string(i + 1) + "=" + f->At("LePil", primera + i).Text());
        EXPECT_EQ(nombres, esperados);
        EXPECT_EQ(medidas, largos[static_cast<size_t>(p)]) << p;
        // A corner has two façades and three columns, an edge one façade and four, an inner
        // column none and five.
        EXPECT_EQ(facadas, 2 - p) << p;
        EXPECT_EQ(pilares, 3 + p) << p;
    }
    EXPECT_FALSE(f->CroquisDe(f->At("Lbnota")));
}

}  // namespace
}  // namespace vardena
