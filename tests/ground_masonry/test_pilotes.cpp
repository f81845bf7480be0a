// The pile group: the capacity of one pile from the strata, branch by branch (granular soil, its
// caps, the water table, fine soil, blow counts, a tip on rock), the structural limit by pile
// kind, the units, the failures that go to the error window, the strata panel and its sketch.
// The expected figures are worked out from the formulas by hand (pi = 3.14159265358979), with
// the pile of 30 cm (area 0.0706858 m2, perimeter 0.9424778 m) and 12 m that the form starts with.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "base/FileIo.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "frame/GruposVentana.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Registros.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using Pares = std::vector<std::pair<std::string, std::string>>;

class Piles : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        app.decl.Unidades = 2;
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt");
    }
    std::unique_ptr<ElementForm> Load()
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, "frmPilotes");
        auto* e = dynamic_cast<ElementForm*>(f.get());
        EXPECT_NE(e, nullptr);
        f.release();
        return std::unique_ptr<ElementForm>(e);
    }
    // Types into a field, picks a row or ticks a check, as the user would. "TxtQ(3)" names a member.
    static void Pon(Form& f, const std::string& campo, const std::string& valor)
    {
        std::string nombre = campo;
        int index = -1;
        if (const size_t p = campo.find('('); p != std::string::npos) {
            nombre = campo.substr(0, p);
            index = std::stoi(campo.substr(p + 1));
        }
        Control& c = f.At(nombre, index);
        c.SetProperty(c.kind() == Kind::TextBox ? "Text" : c.kind() == Kind::ComboBox ? "ListIndex" : "Value", valor);
    }
    static void Pon(Form& f, const Pares& pares)
    {
        for (const auto& [nombre, valor] : pares)
            Pon(f, nombre, valor);
    }
    static std::string Texto(const Form& f, const std::string& campo)
    {
        if (const size_t p = campo.find('('); p != std::string::npos)
            return f.At(campo.substr(0, p), std::stoi(campo.substr(p + 1))).Text();
        return f.At(campo).Text();
    }

    test::TestApp app;
    test::ScratchDir dir;
};

// CmbApoyo 1 puts the tip on soil; the form starts with it on rock.
const Pares kEnSuelo = {{"CmbApoyo", "1"}};

TEST_F(Piles, CapacityByBranch)
{
    struct Caso {
        const char* nombre;
        Pares pon;
        Pares esperado;  // TxtQ(3) tip, TxtQ(4) shaft, txtQadm limit, TxtQ(5) capacity, ...
    };
    const std::vector<Caso> casos = {
        // Granular, CPI-2 (fp 3, factor 1, ratio 0.9): Nq(30) = 3 e^(pi tan 30) = 18.40112,
        // qp = 50 x 3 x Nq = 2760.17, tip 0.0706858 x 2760.17 / 3 = 65.03. Shaft: the effective
        // stress over 12 m of 18 kN/m3 integrates to 18 x 144 / 2 = 1296; x tan 30 x 0.9 / 12 =
        // 56.12, x 0.9424778 x 12 = 634.68. Limit 30^2 pi / 4000 x 750 = 530.14, which caps 699.7.
        {"granular", kEnSuelo, {{"TxtQ(3)", "65"}, {"TxtQ(4)", "635"}, {"txtQadm", "530"}, {"TxtQ(5)", "530"}}},
        // At the caps: qp = 500 x 3 x Nq = 27601.7 stops at 20000 (tip 471.24); 40 kN/m3 gives a
        // shaft of 124.71 that stops at 120 (1357.17).
        {"granular at the caps", {{"CmbApoyo", "1"}, {"txtCohesion(5)", "500"}, {"txtDens(0)", "40"}},
         {{"TxtQ(3)", "471"}, {"TxtQ(4)", "1357"}, {"TxtQ(5)", "530"}}},
        {"granular just under the shaft's cap", {{"CmbApoyo", "1"}, {"txtDens(0)", "38.4"}}, {{"TxtQ(4)", "1354"}}},
        // Water at 4 m: 18 x 16 / 2 = 144 above, then 72 x 8 + 8 x 64 / 2 = 832 below with
        // 18 - 10 kN/m3: 976 x tan 30 x 0.9 / 12 = 42.26, shaft 477.97.
        {"granular under the water table", {{"CmbApoyo", "1"}, {"ChNF", "1"}, {"TxtNF", "4"}}, {{"TxtQ(4)", "478"}}},
        {"water table below the pile", {{"CmbApoyo", "1"}, {"ChNF", "1"}, {"TxtNF", "20"}}, {{"TxtQ(4)", "635"}}},
        {"water table not ticked", {{"CmbApoyo", "1"}, {"TxtNF", "4"}}, {{"TxtQ(4)", "635"}}},
        // CPI-7 (fp 2.5, factor 0.75, ratio 1): tip 54.20, shaft 528.90; its stress 0 sets no limit.
        {"granular, augered pile", {{"CmbApoyo", "1"}, {"CmbTipos", "5"}},
         {{"TxtQ(3)", "54"}, {"TxtQ(4)", "529"}, {"txtQadm", "0"}, {"TxtQ(5)", "583"}}},
        // CPI-4 takes 600: 30^2 pi / 4000 x 600 = 424.12.
        {"cased bored pile", {{"CmbApoyo", "1"}, {"CmbTipos", "2"}}, {{"txtQadm", "424"}, {"TxtQ(5)", "424"}}},
        // Fine: qp = 9 x 50 = 450, tip 10.60; shaft 100 x 50 / 150 = 33.33, 376.99.
        {"fine", {{"CmbApoyo", "1"}, {"cmbSuelo", "1"}},
         {{"TxtQ(3)", "11"}, {"TxtQ(4)", "377"}, {"TxtQ(5)", "388"}}},
        // Blow counts, CPI-2 (0.4): qp = 40 x 0.4 x 100 = 1600, tip 37.70; shaft 2.5 x 20 x 12 /
        // 10 / 12 = 5, 56.55.
        {"blow counts", {{"CmbApoyo", "1"}, {"CmbCaract", "1"}},
         {{"TxtQ(3)", "38"}, {"TxtQ(4)", "57"}, {"TxtQ(5)", "94"}}},
        // CPI-3 keeps 0.4 and takes 0.8 of the shaft: 4, 45.24; N stops at 50: 2000, 47.12.
        {"blow counts, CPI-3, N beyond 50", {{"CmbApoyo", "1"}, {"CmbCaract", "1"}, {"CmbTipos", "1"}, {"txtSPT(5)", "80"}},
         {{"TxtQ(3)", "47"}, {"TxtQ(4)", "45"}}},
        // CPI-4 has 0.2: qp = 800, tip 18.85.
        {"blow counts, bored pile", {{"CmbApoyo", "1"}, {"CmbCaract", "1"}, {"CmbTipos", "2"}}, {{"TxtQ(3)", "19"}}},
        // Rock: r = 5 / 300, t = 300 / 0.3 / 1000 = 1, Ksp = 4 / (10 sqrt 6) = 0.1633,
        // qd = 3265.99, tip 76.95; the shaft is the granular one.
        {"rock tip", {},
         {{"txtKsp", "0.16"}, {"txtQd", "3266"}, {"TxtQ(3)", "77"}, {"TxtQ(4)", "635"}, {"TxtQ(5)", "530"}}},
        // The Ksp of the soil form with its limits: t = 300 / 1.25 / 1000 = 0.24 stays; r stops at
        // 0.02: Ksp = 3.24 / (10 sqrt 7) = 0.1225, qd = 2449.2, on 1.227185 m2: 1001.85.
        {"rock tip under a wide pile", {{"CmbDiam", "7"}, {"txtAp", "9"}},
         {{"txtKsp", "0.12"}, {"txtQd", "2449"}, {"TxtQ(3)", "1002"}}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nombre);
        auto f = Load();
        Pon(*f, c.pon);
        f->At("UCOK2").Click();
        for (const auto& [nombre, texto] : c.esperado)
            EXPECT_EQ(Texto(*f, nombre), texto) << nombre;
        EXPECT_TRUE(app.ui.errors.empty());
        EXPECT_TRUE(app.ui.boxes.empty()) << "the strata sum to the pile's length";
    }
}

// A technical work shows tonnes: the tip's pressure, the shaft's and the limit go in tenths.
TEST_F(Piles, TechnicalUnitsDivideByTen)
{
    app.decl.Unidades = 1;
    auto f = Load();
    f->At("UCOK2").Click();
    // 76.95 / 10, 634.68 / 10, 530.14 / 10.
    EXPECT_EQ(Texto(*f, "TxtQ(3)"), "8");
    EXPECT_EQ(Texto(*f, "TxtQ(4)"), "63");
    EXPECT_EQ(Texto(*f, "txtQadm"), "53");
    EXPECT_EQ(Texto(*f, "TxtQ(5)"), "53");
    EXPECT_EQ(Texto(*f, "txtQd"), "3266") << "the rock's pressure stays in kN/m2";
}

// Strata that do not add up to the pile's length are taken as they stand, and the user is told.
TEST_F(Piles, StrataLongerThanThePileAreWarnedOf)
{
    auto f = Load();
    Pon(*f, {{"CmbApoyo", "1"}, {"CmbEstratos", "1"}, {"txtEspesor(1)", "5"}});
    f->At("UCOK2").Click();
    // Below 12 m the stress is 216: 216 x 5 + 18 x 25 / 2 = 1305 more; (1296 + 1305) x tan 30 x
    // 0.9 / 12 = 112.63, x 0.9424778 x 12 = 1273.78.
    EXPECT_EQ(Texto(*f, "TxtQ(4)"), "1274");
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_NE(app.ui.boxes[0].prompt.find("suman 17.00 m"), std::string::npos) << app.ui.boxes[0].prompt;
    EXPECT_NE(app.ui.boxes[0].prompt.find("12.00 m"), std::string::npos);
}

// A formula that cannot be evaluated goes to the error window under the handler's name, naming
// the field; no field of the results changes.
TEST_F(Piles, BadInputGoesToTheErrorWindowAndChangesNothing)
{
    struct Fila {
        const char* nombre;
        Pares antes;
        int numero;
        const char* campo;
    };
    const std::vector<Fila> filas = {
        {"pile of no length", {{"TxtLongPil", "0"}}, 11, "Long. en el terreno (m) = 0"},
        {"blow counts over no length", {{"CmbCaract", "1"}, {"TxtLongPil", "0"}}, 11, "= 0"},
        {"rock joints of no spacing", {{"txtS", "0"}}, 11, "Espaciamiento s (mm) = 0"},
        {"rock under a pile of no diameter", {{"CmbDiam", "-1"}}, 11, "Diámetro (cm)"},
        {"negative joint opening", {{"txtAp", "-2"}}, 5, "= -2"},
        {"fine soil of cohesion -100", {{"CmbApoyo", "1"}, {"cmbSuelo", "1"}, {"txtCohesion(5)", "-100"}}, 11, "= -100"},
        {"tip friction of 90", {{"CmbApoyo", "1"}, {"txtRozam(5)", "90"}}, 11, "= 90"},
    };
    const std::vector<std::string> resultados = {"TxtQ(3)", "TxtQ(4)", "TxtQ(5)", "txtQadm", "txtKsp", "txtQd"};
    for (const Fila& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        app.ui.errors.clear();
        auto f = Load();
        Pon(*f, fila.antes);
        std::vector<std::string> antes;
        for (const std::string& r : resultados)
            antes.push_back(Texto(*f, r));
        EXPECT_THROW(f->At("UCOK2").Click(), ProgramHalt);
        ASSERT_EQ(app.ui.errors.size(), 1u);
        EXPECT_EQ(app.ui.errors[0].origin, "UCOK2_Click");
        EXPECT_EQ(app.ui.errors[0].number, fila.numero);
        EXPECT_NE(app.ui.errors[0].description.find(fila.campo), std::string::npos) << app.ui.errors[0].description;
        for (size_t i = 0; i < resultados.size(); ++i)
            EXPECT_EQ(Texto(*f, resultados[i]), antes[i]) << resultados[i];
        EXPECT_FALSE(ExistingNoCase(dir / "Pilotes 01.~ZI")) << "nothing saved";
    }
}

// The conversion's button saves what was read: the capacity is the panel's, not the check's.
TEST_F(Piles, ConvertingKeepsTheCapacityRead)
{
    auto f = Load();
    Pon(*f, {{"TxtQ(3)", "1"}, {"TxtQ(4)", "2"}, {"TxtQ(5)", "3"}, {"txtQadm", "4"}});
    f->At("CmdCalcular").Click();
    const std::string registro = test::ReadBytes(dir / "Pilotes 01.~ZI");
    EXPECT_NE(registro.find("txtQadm [TextBox]\t.Text\t4\r\n"), std::string::npos) << registro;
    EXPECT_EQ(Texto(*f, "TxtQ(5)"), "3");
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Piles, PanelOpensShowsItsStrataAndCloses)
{
    auto f = Load();
    EXPECT_FALSE(f->At("UCSuelo").Visible());
    f->At("CmdCapacidad").Click();
    EXPECT_TRUE(f->At("UCSuelo").Visible());
    // One stratum along the shaft and the tip's.
    auto visibles = [&] {
        std::string v;
        for (int k = 0; k < 6; ++k)
            v += f->At("txtEspesor", k).Visible() ? '1' : '0';
        return v;
    };
    EXPECT_EQ(visibles(), "100001");
    Pon(*f, "CmbEstratos", "3");
    EXPECT_EQ(visibles(), "111101");
    EXPECT_FALSE(f->At("TxtNF").Enabled());
    Pon(*f, "ChNF", "1");
    EXPECT_TRUE(f->At("TxtNF").Enabled());
    EXPECT_TRUE(f->At("UCframeRoca").Visible());
    Pon(*f, "CmbApoyo", "1");
    EXPECT_FALSE(f->At("UCframeRoca").Visible());
    EXPECT_FALSE(f->At("txtSPT", 0).Enabled());
    Pon(*f, "CmbCaract", "1");
    EXPECT_TRUE(f->At("txtSPT", 0).Enabled());
    EXPECT_FALSE(f->At("txtRozam", 0).Enabled());
    Pon(*f, "CmbApoyo", "0");
    f->At("UCOK1").Click();
    EXPECT_FALSE(f->At("UCSuelo").Visible());
    EXPECT_FALSE(f->At("UCframeRoca").Visible()) << "the rock's frame closes with the panel";

    // The panel's groups follow it; the strata table stands beside the sketch.
    const std::vector<GrupoCampos> grupos = AgrupaCampos(*f);
    const GrupoCampos* tabla = nullptr;
    const GrupoCampos* corte = nullptr;
    for (const GrupoCampos& g : grupos) {
        if (g.titulo == "Estratos")
            tabla = &g;
        if (g.titulo == "Corte del terreno")
            corte = &g;
    }
    ASSERT_TRUE(tabla && corte);
    EXPECT_NE(tabla->columna, corte->columna);
    EXPECT_FALSE(GrupoVisible(*corte));
    f->At("CmdCapacidad").Click();
    EXPECT_TRUE(GrupoVisible(*corte) && GrupoVisible(*tabla));
}

TEST_F(Piles, SketchDrawsTheStrataTheWaterAndThePileToScale)
{
    auto f = Load();
    Pon(*f, {{"CmbEstratos", "1"}, {"txtEspesor(0)", "4"}, {"txtEspesor(1)", "8"}, {"ChNF", "1"}, {"TxtNF", "6"}});
    const std::optional<Croquis> c = f->CroquisDe(f->At("PctEstratos"));
    ASSERT_TRUE(c);
    int terreno = 0, agua = 0;
    std::vector<int> estratos;
    int pilote = -1, superficie = -1, nivel = -1;
    for (const TrazoCroquis& t : c->trazos) {
        for (const PuntoCroquis& p : t.puntos)
            EXPECT_TRUE(p.x >= 0 && p.x <= c->ancho && p.y >= 0 && p.y <= c->alto) << p.x << "," << p.y;
        if (t.papel == PapelCroquis::Terreno) {
            ++terreno;
            estratos.push_back(t.puntos[2].y - t.puntos[0].y);
        }
        if (t.papel == PapelCroquis::Agua) {
            ++agua;
            nivel = t.puntos[0].y;
        }
        if (t.papel == PapelCroquis::Superficie)
            superficie = t.puntos[0].y;
        if (t.papel == PapelCroquis::Hormigon)
            pilote = t.puntos[2].y;
    }
    EXPECT_EQ(terreno, 3) << "two strata along the shaft and the tip's";
    EXPECT_EQ(agua, 1);
    ASSERT_GE(estratos.size(), 2u);
    // To scale: the second stratum twice the first, the water at half the pile, the pile 12 m.
    EXPECT_NEAR(estratos[1], 2 * estratos[0], 2);
    EXPECT_NEAR(nivel - superficie, (pilote - superficie) / 2, 2);
    EXPECT_NEAR(pilote - superficie, estratos[0] + estratos[1], 2);
    EXPECT_FALSE(f->CroquisDe(f->At("UCSuelo")));
}

}  // namespace
}  // namespace vardena
