// The soil form: its factors, pressures, branches and caps, its catalogue and footing kinds, its
// warnings, its reports, its failures and its window's groups and sketches. The expected figures
// are worked out from the formulas by hand (pi = 3.14159265358979), not taken from the program.

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "base/FileIo.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "frame/GruposVentana.h"
#include "reports/RtfLector.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Registros.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using Pares = std::vector<std::pair<std::string, std::string>>;

class Soil : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt");
    }
    std::unique_ptr<ElementForm> Load()
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, "frmSuelo");
        auto* e = dynamic_cast<ElementForm*>(f.get());
        EXPECT_NE(e, nullptr);
        f.release();
        return std::unique_ptr<ElementForm>(e);
    }
    // Types into a field, picks a row or ticks a check, as the user would.
    static void Pon(Form& f, const std::string& nombre, const std::string& valor)
    {
        Control& c = f.At(nombre);
        c.SetProperty(c.kind() == Kind::TextBox ? "Text" : c.kind() == Kind::ComboBox ? "ListIndex" : "Value", valor);
    }
    static void Pon(Form& f, const Pares& pares)
    {
        for (const auto& [nombre, valor] : pares)
            Pon(f, nombre, valor);
    }
    static double Num(const Form& f, const std::string& nombre) { return ValComaCopy(f.At(nombre).Text()); }
    std::string Informe() const { return RtfATexto(test::ReadBytes(dir / "Terreno 01.lCS")); }

    test::TestApp app;
    test::ScratchDir dir;
};

TEST_F(Soil, LoadLeavesTheFactorsOfTheDefaultSoil)
{
    auto f = Load();
    // gamma D = 18 x 0.8 = 14.4, rounded by the depth event; L = B = 2: sc = 1 + 0.2,
    // sq = 1 + 1.5 tan 30, sg = 1 - 0.3; D < 2, V > 0 with no horizontal force, no slope.
    const Pares esperado = {
        {"Text1", "14"},   {"txtA", "2.00"},  {"txtB", "2.00"},  {"txtD", "0.80"},  {"txtAnchoEfect", "2.00"},
        {"txtSc", "1.20"}, {"txtSq", "1.87"}, {"txtSg", "0.70"}, {"txtDc", "1.00"}, {"txtDq", "1.00"},
        {"txtDg", "1.00"}, {"txtIc", "1.00"}, {"txtIq", "1.00"}, {"txtIg", "1.00"}, {"txtTc", "1.00"},
        {"txtTq", "1.00"}, {"txtTg", "1.00"}, {"txtNq", ""},     {"txtTadm", ""},   {"txtServ", ""},
    };
    for (const auto& [nombre, texto] : esperado)
        EXPECT_EQ(f->At(nombre).Text(), texto) << nombre;
    EXPECT_TRUE(app.ui.boxes.empty());
}

TEST_F(Soil, DefaultSoilGivesTheBearingFactorsAndPressures)
{
    auto f = Load();
    f->At("CmdCalcular").Click();
    // Nq = e^(pi tan 30) (1 + sin 30) / (1 - sin 30), Nc = (Nq - 1) / tan 30, Ng = 1.5 (Nq - 1) tan 30.
    EXPECT_NEAR(Num(*f, "txtNq"), 18.4011, 5e-5);
    EXPECT_NEAR(Num(*f, "txtNc"), 30.1396, 5e-5);
    EXPECT_NEAR(Num(*f, "txtNg"), 15.0698, 5e-5);
    EXPECT_GT(f->At("txtNq").Text().size(), 12u) << "written unrounded";
    // qh = 6 Nc 1.20 + 14 Nq 1.87 + 0.5 x 2 x 18 Ng 0.70, with the factors as their fields show them.
    EXPECT_NEAR(Num(*f, "txtTa"), 296.20878, 5e-5);
    EXPECT_EQ(f->At("txtTadm").Text(), "296.21");
    EXPECT_EQ(f->At("txtServ").Text(), "No");
    // Fd = 1 + 0.8 / 6; B = 2: 8 N Fd St / 25 ((B + 0.3) / B)^2.
    EXPECT_NEAR(Num(*f, "txtTaServ"), 239.81333, 5e-5);
    EXPECT_TRUE(app.ui.boxes.empty()) << "no warnings";
    EXPECT_TRUE(ExistingNoCase(dir / "Terreno 01.~CS"));
    EXPECT_FALSE(f->At("RichTextBox1").Text().empty()) << "the new results are shown";
}

struct Caso {
    const char* nombre;
    Pares pon;
    bool pulsa;
    Pares textos;                                   // exact texts
    std::vector<std::pair<std::string, double>> numeros;  // unrounded figures
};

TEST_F(Soil, BranchesAndCaps)
{
    const std::vector<Caso> casos = {
        // Depth: atan(D / B) with B = Text6 = 2; the second form of the factors for dq:
        // Nq = e^((3 pi / 2 - phi) tan phi) / (2 cos^2(pi/4 + phi/2)) = 22.4557, Nc = 37.1624.
        {"depth 2 takes the branch", {{"txtD", "2"}}, false, {{"txtDc", "1.27"}, {"txtDq", "1.24"}, {"Text1", "36"}}, {}},
        {"depth 1.99 does not", {{"txtD", "1.99"}}, false, {{"txtDc", "1.00"}, {"txtDq", "1.00"}, {"Text1", "36"}}, {}},
        {"depth 10 over a width of 5", {{"Text6", "5"}, {"txtD", "10"}}, false, {{"txtDc", "1.38"}, {"txtDq", "1.33"}, {"Text1", "180"}}, {}},
        // Slope: tc = e^(-2 beta tan phi), tq = tg = 1 - sin 2 beta, above 5 degrees only.
        {"slope 5 keeps the factors", {{"txtAng", "5"}}, false, {{"txtTc", "1.00"}, {"txtTq", "1.00"}, {"txtTg", "1.00"}}, {}},
        {"slope 5.01 applies them", {{"txtAng", "5.01"}}, false, {{"txtTc", "0.90"}, {"txtTq", "0.83"}, {"txtTg", "0.83"}}, {}},
        // Shape: 1 at L = 5 B and beyond; sc = 1 + 0.2 B/L, sq = 1 + 1.5 tan phi B/L, sg = 1 - 0.3 B/L.
        {"L = 5 B", {{"txtB", "2"}, {"txtA", "10"}}, false, {{"txtSc", "1.00"}, {"txtSq", "1.00"}, {"txtSg", "1.00"}}, {}},
        {"L just below 5 B", {{"txtA", "9.99"}}, false, {{"txtSc", "1.04"}, {"txtSq", "1.17"}, {"txtSg", "0.94"}}, {}},
        {"Inf. of a strip", {{"ComboCim", "1"}, {"txtB", "7"}}, false,
         {{"txtA", "Inf."}, {"txtSc", "1.00"}, {"txtSq", "1.00"}, {"txtSg", "1.00"}}, {}},
        // Inclination: iq = (1 - 0.7 tan^3(Hy/V))(1 - tan(Hx/V)), ic = (iq Nq - 1)/(Nq - 1),
        // ig = (1 - tan^3(Hy/V))(1 - tan(Hx/V)), Nq of the second form.
        {"Hx of a tenth of V", {{"txtHx", "25"}}, false, {{"txtIc", "0.89"}, {"txtIq", "0.90"}, {"txtIg", "0.90"}}, {}},
        {"Hy of half V", {{"txtHy", "125"}}, false, {{"txtIc", "0.88"}, {"txtIq", "0.89"}, {"txtIg", "0.84"}}, {}},
        // Granular: Fd = 1 + D / 3B up to 1.3; B < 1.2: 12 N Fd St / 25, else 8 N Fd St / 25 ((B+0.3)/B)^2.
        {"B = 1.2 takes the 8 N branch", {{"txtB", "1.2"}}, true, {}, {{"txtTaServ", 305.55556}}},
        {"B = 1.19 the 12 N branch", {{"txtB", "1.19"}}, true, {}, {{"txtTaServ", 293.78151}}},
        {"Fd capped at 1.3", {{"txtD", "3"}}, true, {}, {{"txtTaServ", 275.08}}},
        {"Fd just under the cap", {{"txtD", "1.79"}}, true, {}, {{"txtTaServ", 274.72733}}},
        // Rock: r = a/s up to 0.02, t = s / B / 1000 within 0.05 and 2, Ksp = (3 + t)/(10 sqrt(1 + 300 r)).
        {"rock with the defaults", {{"CmbTerreno", "7"}}, true, {{"txtKsp", "0.13"}, {"txtQd", "2572"}, {"txtTadm", "2572"}, {"txtServ", "2572"}}, {}},
        {"r reaching 0.02", {{"CmbTerreno", "7"}, {"txtAp", "6"}}, true, {{"txtKsp", "0.12"}, {"txtQd", "2381"}}, {}},
        {"r capped at 0.02", {{"CmbTerreno", "7"}, {"txtAp", "12"}}, true, {{"txtQd", "2381"}}, {}},
        {"t at 0.05", {{"CmbTerreno", "7"}, {"txtS", "100"}}, true, {{"txtQd", "2306"}}, {}},
        {"t raised to 0.05", {{"CmbTerreno", "7"}, {"txtS", "50"}}, true, {{"txtQd", "2306"}}, {}},
        {"t at 2", {{"CmbTerreno", "7"}, {"txtS", "4000"}}, true, {{"txtQd", "8528"}}, {}},
        {"t cut to 2", {{"CmbTerreno", "7"}, {"txtS", "5000"}}, true, {{"txtKsp", "0.44"}, {"txtQd", "8771"}}, {}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nombre);
        auto f = Load();
        Pon(*f, c.pon);
        if (c.pulsa)
            f->At("CmdCalcular").Click();
        for (const auto& [nombre, texto] : c.textos)
            EXPECT_EQ(f->At(nombre).Text(), texto) << nombre;
        for (const auto& [nombre, valor] : c.numeros)
            EXPECT_NEAR(Num(*f, nombre), valor, 5e-5) << nombre;
    }
}

// The service pressure shown is the granular figure of the press before: the bearing
// calculation runs first.
TEST_F(Soil, ServicePressureShowsThePressBefore)
{
    auto f = Load();
    Pon(*f, "chkServ", "1");
    f->At("CmdCalcular").Click();
    EXPECT_EQ(f->At("txtServ").Text(), "30.00") << "the design value of txtTaServ";
    f->At("CmdCalcular").Click();
    EXPECT_EQ(f->At("txtServ").Text(), "239.81");
}

TEST_F(Soil, CatalogueAndFrames)
{
    struct Fila {
        int indice;
        const char* densidad;
        const char* cohesion;
        const char* valor;
        const char* rozamiento;
    };
    const std::vector<Fila> filas = {
        {1, "1800", "0", "0.55", "32"}, {2, "1800", "0", "0.45", "30"}, {3, "1900", "100", "0.35", "25"},
        {4, "2000", "25", "0.15", "20"}, {5, "2000", "200", "0.2", "20"}, {6, "2200", "200", "0.55", "40"},
        {7, "2600", "800", "0.6", "40"},
    };
    for (const Fila& fila : filas) {
        SCOPED_TRACE(fila.indice);
        auto f = Load();
        Pon(*f, "CmbTerreno", std::to_string(fila.indice));
        EXPECT_EQ(f->At("Text3").Text(), fila.densidad);
        EXPECT_EQ(f->At("Text4").Text(), fila.cohesion);
        EXPECT_EQ(f->At("Text5").Text(), fila.valor);
        EXPECT_EQ(f->At("Text2").Text(), fila.rozamiento);
        const bool roca = fila.indice == 7;
        for (const char* c : {"Text3", "Text4", "Text5", "Text2"})
            EXPECT_FALSE(f->At(c).Enabled()) << c;
        EXPECT_EQ(f->At("UCframe1").Visible(), !roca);
        EXPECT_EQ(f->At("UCframe2").Visible(), !roca);
        EXPECT_EQ(f->At("UCframe11").Visible(), roca);
        for (const char* c : {"Label10", "Label12", "Text2", "Text4"})
            EXPECT_EQ(f->At(c).Visible(), !roca) << c;
        // Rock calculates at the click itself, report included.
        EXPECT_EQ(f->At("txtQd").Text(), roca ? "2572" : "1.00");
        EXPECT_EQ(ExistingNoCase(dir / "Terreno 01.lCS").has_value(), roca);
        if (roca) {
            EXPECT_EQ(f->At("UCframe11").Left(), 4170);
        }
    }
    auto f = Load();
    Pon(*f, {{"CmbTerreno", "7"}, {"CmbTerreno", "0"}});
    EXPECT_EQ(f->At("Text3").Text(), "2600") << "defining the soil keeps the values";
    EXPECT_TRUE(f->At("Text3").Enabled());
    EXPECT_TRUE(f->At("UCframe1").Visible());
    EXPECT_FALSE(f->At("UCframe11").Visible());
}

TEST_F(Soil, FootingKinds)
{
    struct Fila {
        int indice;
        const char* largo;
        bool anchoVisible;
        const char* txtA;
        const char* txtB;
        bool losa;
    };
    // From a circular footing of width 3.00, each kind in turn; B stays where the kind keeps it.
    const std::vector<Fila> filas = {
        {0, "Largo", true, "2.00", "2.00", false},
        {1, "Diámetro", true, "Inf.", "2.00", false},
        {2, "Diámetro", false, "2.00", "3.00", false},
        {3, "Largo", true, "20.00", "20.00", true},
    };
    for (const Fila& fila : filas) {
        SCOPED_TRACE(fila.indice);
        auto f = Load();
        Pon(*f, {{"txtB", "3"}, {"ComboCim", "2"}, {"ComboCim", std::to_string(fila.indice)}});
        EXPECT_EQ(f->At("lblLargo").Caption(), fila.largo);
        EXPECT_TRUE(f->At("lblLargo").Visible());
        EXPECT_EQ(f->At("lblAncho").Visible(), fila.anchoVisible);
        EXPECT_EQ(f->At("txtB").Visible(), fila.anchoVisible);
        EXPECT_EQ(f->At("txtA").Text(), fila.txtA);
        EXPECT_EQ(f->At("txtB").Text(), fila.txtB);
        EXPECT_EQ(f->At("PictureLosa").Visible(), fila.losa);
        EXPECT_EQ(f->At("PictureAis").Visible(), !fila.losa);
        EXPECT_EQ(f->At("PictureSot").Visible(), !fila.losa);
    }
}

TEST_F(Soil, WidthAndServiceFieldsFollowTheirControls)
{
    auto f = Load();
    for (const char* c : {"txtAnchoEfect", "txtAsiento", "txtSPT"})
        EXPECT_FALSE(f->At(c).Enabled()) << c;
    Pon(*f, "chkServ", "1");
    for (const char* c : {"txtAnchoEfect", "txtAsiento", "txtSPT"})
        EXPECT_TRUE(f->At(c).Enabled()) << c;
    Pon(*f, "Text6", "3,5");
    EXPECT_EQ(f->At("txtB").Text(), "3.50");
    EXPECT_EQ(f->At("txtAnchoEfect").Text(), "3.50");
    EXPECT_EQ(f->At("txtSc").Text(), "1.35") << "L = 2 is under 5 B: 1 + 0.2 x 3.5 / 2";
}

TEST_F(Soil, WarningsOfTheCalculation)
{
    struct Fila {
        const char* nombre;
        Pares pon;
        std::vector<int> avisos;
    };
    const std::vector<Fila> filas = {
        {"cohesion 8 with the granular check", {{"chkServ", "1"}, {"Text4", "8"}}, {1221, 1030}},
        {"cohesion under 8", {{"chkServ", "1"}, {"Text4", "7.99"}}, {}},
        {"cohesion without the check", {{"Text4", "50"}}, {}},
        {"slope over half the friction angle", {{"txtAng", "15.01"}}, {1174, 1175}},
        {"slope under half", {{"txtAng", "14.99"}}, {}},
        {"both", {{"chkServ", "1"}, {"Text4", "10"}, {"txtAng", "20"}}, {1221, 1030, 1174, 1175}},
    };
    for (const Fila& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        app.ui.boxes.clear();
        auto f = Load();
        Pon(*f, fila.pon);
        f->At("CmdCalcular").Click();
        const std::string informe = Informe();
        if (fila.avisos.empty()) {
            EXPECT_TRUE(app.ui.boxes.empty());
            EXPECT_NE(informe.find("\tSin avisos."), std::string::npos) << informe;
            continue;
        }
        ASSERT_EQ(app.ui.boxes.size(), 1u);
        std::string texto = " ";
        for (int m : fila.avisos) {
            texto += "\r\n" + app.decl.Msg(m);
            EXPECT_NE(informe.find("\t" + app.decl.Msg(m)), std::string::npos) << m;
        }
        EXPECT_EQ(app.ui.boxes[0].prompt, texto);
        EXPECT_EQ(app.ui.boxes[0].style, mb::Exclamation);
        EXPECT_EQ(app.ui.boxes[0].title, "Avisos");
    }
}

TEST_F(Soil, SlopeWarningsAreLostByTheBearingCalculationAndShownByRock)
{
    auto f = Load();
    Pon(*f, {{"txtAng", "20"}, {"Text2", "45"}});
    f->At("CmdCalcular").Click();
    EXPECT_TRUE(app.ui.boxes.empty()) << "20 is under half of 45: the slope event's warnings are gone";

    auto g = Load();
    Pon(*g, {{"txtAng", "20"}, {"CmbTerreno", "7"}});
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].prompt, " \r\n" + app.decl.Msg(1174) + "\r\n" + app.decl.Msg(1175));
}

TEST_F(Soil, TheWarningListHoldsFiftyEntries)
{
    auto f = Load();
    // Each slope over half the friction angle adds two warnings; the 26th change finds no room.
    for (int i = 0; i < 25; ++i)
        Pon(*f, "txtAng", std::to_string(20 + i));
    EXPECT_TRUE(app.ui.errors.empty());
    EXPECT_THROW(Pon(*f, "txtAng", "50"), ProgramHalt);
    ASSERT_EQ(app.ui.errors.size(), 1u);
    EXPECT_EQ(app.ui.errors[0].origin, "txtAng_Change");
    EXPECT_EQ(app.ui.errors[0].number, 9);
}

TEST_F(Soil, NoVerticalForceKeepsTheInclinationFactors)
{
    for (const char* v : {"0", "-5"}) {
        SCOPED_TRACE(v);
        app.ui.boxes.clear();
        auto f = Load();
        Pon(*f, {{"txtHx", "25"}, {"txtV", v}});
        EXPECT_EQ(f->At("txtIc").Text(), "0.89");
        EXPECT_EQ(f->At("txtIq").Text(), "0.90");
        EXPECT_EQ(f->At("txtIg").Text(), "0.90");
        ASSERT_EQ(app.ui.boxes.size(), 1u);
        EXPECT_EQ(app.ui.boxes[0].prompt, app.decl.Msg(1219) + "\r\n" + app.decl.Msg(1220));
        EXPECT_EQ(app.ui.boxes[0].title, app.decl.Msg(9));
        EXPECT_EQ(app.ui.boxes[0].style, mb::Exclamation);
    }
}

// A formula that cannot be evaluated goes to the error window under the handler's name, with
// the field that causes it; the record and its results stay as they were.
TEST_F(Soil, BadInputGoesToTheErrorWindowAndLosesNothing)
{
    struct Fila {
        const char* nombre;
        Pares antes;
        std::pair<std::string, std::string> falla;  // the change that fails, or "" to press
        const char* origen;
        int numero;
        const char* campo;
    };
    const std::vector<Fila> filas = {
        {"friction angle 0", {{"Text2", "0"}}, {"", ""}, "CmdCalcular_Click", 11, "Ángulo rozamiento interno (º) = 0"},
        {"friction angle 90", {{"Text2", "90"}}, {"", ""}, "CmdCalcular_Click", 6, "= 90"},
        {"width 0 of the granular pressure", {{"txtB", "0"}}, {"", ""}, "CmdCalcular_Click", 11, "= 0.00"},
        {"rock joints of no spacing", {{"CmbTerreno", "7"}, {"txtS", "0"}}, {"", ""}, "CmdCalcular_Click", 11, "= 0"},
        {"rock under a footing of no width", {{"Text6", "0"}}, {"CmbTerreno", "7"}, "CmbTerreno_Click", 11, "= 0"},
        {"negative opening of the joints", {{"CmbTerreno", "7"}, {"txtAp", "-2"}}, {"", ""}, "CmdCalcular_Click", 5, "= -2"},
        {"depth beside a width of 0", {{"Text6", "0"}}, {"txtD", "2"}, "txtD_Change", 11, "= 0"},
        {"inclination with no friction", {{"Text2", "0"}}, {"txtHx", "10"}, "txtHx_Change", 11, "= 0"},
    };
    const std::string registro = "\"txtTitulo\",\"Terreno 01\"\r\n";
    for (const Fila& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        app.ui.errors.clear();
        test::WriteBytes(dir / "Terreno 01.lCS", "{\\rtf1 antes}");
        auto f = Load();
        Pon(*f, fila.antes);
        const std::string resultados = test::ReadBytes(dir / "Terreno 01.lCS");
        if (fila.falla.first.empty())
            EXPECT_THROW(f->At("CmdCalcular").Click(), ProgramHalt);
        else
            EXPECT_THROW(Pon(*f, fila.falla.first, fila.falla.second), ProgramHalt);
        ASSERT_EQ(app.ui.errors.size(), 1u);
        EXPECT_EQ(app.ui.errors[0].origin, fila.origen);
        EXPECT_EQ(app.ui.errors[0].number, fila.numero);
        EXPECT_NE(app.ui.errors[0].description.find(fila.campo), std::string::npos) << app.ui.errors[0].description;
        EXPECT_FALSE(ExistingNoCase(dir / "Terreno 01.~CS")) << "nothing saved";
        EXPECT_EQ(test::ReadBytes(dir / "Terreno 01.lCS"), resultados) << "the results file as it was";
        for (const auto& [nombre, valor] : fila.antes) {
            if (f->At(nombre).kind() == Kind::TextBox && nombre != "txtB") {
                EXPECT_EQ(f->At(nombre).Text(), valor) << "the value typed stays";
            }
        }
    }
}

TEST_F(Soil, BearingReport)
{
    auto f = Load();
    Pon(*f, "chkServ", "1");
    f->At("CmdCalcular").Click();
    const std::string informe = Informe();
    for (const char* linea : {
             "DEFINICIÓN DEL TERRENO DE CIMENTACIÓN", "\nTerreno: Terreno 01\n", "\tDensidad (kg/m3):\t1800\n",
             "\tCohesión (kN/m2):\t6\n", "\tÁngulo de rozamiento interno (º):\t30\n", "\tAncho efectivo B:\t2.00 m\n",
             "\tProfundidad D:\t0.80 m\n", "\tSobrecarga q (kN/m2):\t14.00\n", "\tTérmino de cohesión (Nc):\t30.14\n",
             "\tTérmino de sobrecarga (Nq):\t18.40\n", "\tTérmino de peso propio (Ng):\t15.07\n",
             "Factores de corrección\nFactores de profundidad\n", "\tTérmino de sobrecarga (sq):\t1.87\n",
             "\t        - Suelo horizontal (pendiente menor del 10 %)\n", "\tAncho efectivo:\t2.00 m\n",
             "\tAsiento admisible:\t25 mm\n", "\tNúmero de golpes SPT (N):\t20\n",
             "\tPresión de hundimiento qh:\t888.63 kN/m2\n", "\tTensión admisible de hundimiento:\t296.21 kN/m2\n",
             "\tPresión de servicio:\t30.00 kN/m2\n", "Avisos\n\tSin avisos.\n",
         })
        EXPECT_NE(informe.find(linea), std::string::npos) << linea << "\n" << informe;
    const std::string bytes = test::ReadBytes(dir / "Terreno 01.lCS");
    EXPECT_EQ(bytes.rfind("{\\rtf1\\ansi\\ansicpg1252", 0), 0u);
    EXPECT_NE(bytes.find("Cohesi\\'f3n"), std::string::npos) << "accents escaped";
    EXPECT_NE(bytes.find("\xd3N"), std::string::npos) << "upper case in Windows-1252";
    EXPECT_EQ(bytes.substr(bytes.size() - 3), "}\r\n");
}

TEST_F(Soil, RockReportChangesTheHeadingOfLaterReports)
{
    auto f = Load();
    Pon(*f, "CmbTerreno", "7");
    std::string informe = Informe();
    for (const char* linea : {"\nSuelo:  Terreno 01\n", "\tDensidad (kg/m3):\t2600\n",
                              "\tResistencia a compresión de la roca sana qu:\t20000.00 kN/m2\n",
                              "\tEspaciamiento de las discontinuidades s:\t300.00 mm\n",
                              "\tApertura de las discontinuidades a:\t5.00 mm\n", "\tParámetro Ksp:\t0.13\n",
                              "\tPresión de servicio:\t2572.00 kN/m2\n", "\tSin avisos.\n"})
        EXPECT_NE(informe.find(linea), std::string::npos) << linea << "\n" << informe;
    for (const char* ausente : {"Profundidad D", "Factores", "Presión de hundimiento"})
        EXPECT_EQ(informe.find(ausente), std::string::npos) << ausente;

    // Any later report of the run, of the bearing formula too, takes the rock's heading.
    Pon(*f, "CmbTerreno", "2");
    f->At("CmdCalcular").Click();
    informe = Informe();
    EXPECT_NE(informe.find("\nSuelo:  Terreno 01\n"), std::string::npos) << informe;
    EXPECT_NE(informe.find("Presión de hundimiento"), std::string::npos);
}

// The reports open in a real word processor with their accents and their two columns.
TEST_F(Soil, ReportsOpenInLibreOffice)
{
    const std::string soffice = test::OnPath("soffice");
    if (soffice.empty())
        GTEST_SKIP() << "soffice is not on PATH";
    auto convierte = [&](const std::string& titulo) {
        return test::TextoDeLibreOffice(soffice, dir.path(), dir / (titulo + ".lCS"), titulo + ".txt");
    };
    auto f = Load();
    Pon(*f, {{"chkServ", "1"}, {"Text4", "12"}});
    f->At("CmdCalcular").Click();
    std::string texto = convierte("Terreno 01");
    for (const char* linea : {"DEFINICIÓN DEL TERRENO DE CIMENTACIÓN", "Terreno: Terreno 01",
                              "\tÁngulo de rozamiento interno (º):\t30", "\tTérmino de cohesión (Nc):\t30.14",
                              "\t        - Inclinación de la carga menor del 10 %", "\tPresión de hundimiento qh:\t",
                              "\tPresión de servicio:\t30.00 kN/m2", "\tEl terreno tiene cohesión (c de 8 kN/m2 o más):"})
        EXPECT_NE(texto.find(linea), std::string::npos) << linea << "\n" << texto;
    EXPECT_EQ(texto.find('\\'), std::string::npos) << "no mark-up leaks into the text";

    Pon(*f, {{"txtTitulo", "Roca"}, {"CmbTerreno", "7"}});
    texto = convierte("Roca");
    for (const char* linea : {"Suelo:  Roca", "\tResistencia a compresión de la roca sana qu:\t20000.00 kN/m2",
                              "\tParámetro Ksp:\t0.13"})
        EXPECT_NE(texto.find(linea), std::string::npos) << linea << "\n" << texto;
}

// A record read shows its frames and sketches; pressing the button changes the calculated
// fields only.
TEST_F(Soil, ReadingARecordAndRecalculatingIt)
{
    auto f = Load();
    Pon(*f, {{"txtTitulo", "Roca"}, {"CmbTerreno", "7"}, {"ComboCim", "3"}, {"txtS", "5000"}});
    f->At("CmdCalcular").Click();
    const std::string record = test::ReadBytes(dir / "Roca.~CS");

    auto g = Load();
    EXPECT_FALSE(g->At("UCframe11").Visible());
    ASSERT_EQ(g->At("List1").ListCount(), 1);
    g->At("List1").SetListIndex(0);
    EXPECT_EQ(g->At("txtS").Text(), "5000");
    EXPECT_TRUE(g->At("UCframe11").Visible());
    EXPECT_FALSE(g->At("UCframe1").Visible());
    EXPECT_TRUE(g->At("PictureLosa").Visible());
    EXPECT_FALSE(g->At("PictureAis").Visible());
    EXPECT_FALSE(g->At("Text2").Visible());
    g->At("CmdCalcular").Click();
    EXPECT_EQ(test::ReadBytes(dir / "Roca.~CS"), record) << "the same figures again";
    EXPECT_NE(g->ResumenCalculo().find("admissible pressure 8771 kN/m2"), std::string::npos) << g->ResumenCalculo();
}

TEST_F(Soil, WindowGroupsFollowTheFrames)
{
    auto f = Load();
    const std::vector<GrupoCampos> grupos = AgrupaCampos(*f);
    std::vector<std::string> titulos;
    for (const GrupoCampos& g : grupos)
        titulos.push_back(g.titulo);
    const std::vector<std::string> esperados = {
        "Elemento", "Datos iniciales", "Tipo Cimiento", "Fact.profundidad", "Factor forma", "Fact.inclinación",
        "Factor talud", "", "DETERMINACIÓN DE LA PRESIÓN DE SERVICIO EN ROCA", "Valores del último cálculo",
        "Resultados"};
    ASSERT_GE(titulos.size(), esperados.size());
    EXPECT_EQ(std::vector<std::string>(titulos.begin(), titulos.begin() + static_cast<long>(esperados.size())), esperados);
    // Each field is named by the form's own label.
    const GrupoCampos& forma = grupos[4];
    EXPECT_EQ(forma.etiquetas.at(&f->At("txtA")), &f->At("lblLargo"));
    EXPECT_EQ(forma.etiquetas.at(&f->At("txtSg")), &f->At("lblSg"));
    EXPECT_EQ(forma.miembros.front(), &f->At("txtA"));
    EXPECT_EQ(grupos[7].miembros.front(), &f->At("lblServGranular")) << "the heading of the untitled frame";

    auto visibles = [&] {
        std::vector<bool> v;
        for (const GrupoCampos& g : grupos)
            v.push_back(GrupoVisible(g));
        return v;
    };
    EXPECT_EQ(visibles()[3], true);
    EXPECT_EQ(visibles()[8], false);
    Pon(*f, "CmbTerreno", "7");
    const std::vector<bool> roca = visibles();
    for (size_t i = 3; i <= 7; ++i)
        EXPECT_FALSE(roca[i]) << titulos[i];
    EXPECT_TRUE(roca[8]);
    EXPECT_TRUE(roca[1]);
}

TEST_F(Soil, SketchesStandInsideTheirPictures)
{
    auto f = Load();
    for (const char* nombre : {"PictureAis", "PictureSot", "PictureLosa"}) {
        SCOPED_TRACE(nombre);
        const std::optional<Croquis> c = f->CroquisDe(f->At(nombre));
        ASSERT_TRUE(c);
        std::string cotas;
        bool terreno = false, hormigon = false;
        for (const TrazoCroquis& t : c->trazos) {
            for (const PuntoCroquis& p : t.puntos) {
                EXPECT_TRUE(p.x >= 0 && p.x <= c->ancho && p.y >= 0 && p.y <= c->alto) << p.x << "," << p.y;
            }
            if (t.figura == FiguraCroquis::Cota)
                cotas += t.texto;
            terreno = terreno || t.papel == PapelCroquis::Terreno;
            hormigon = hormigon || t.papel == PapelCroquis::Hormigon;
        }
        EXPECT_EQ(cotas, "DB") << "the depth and the width the factors take";
        EXPECT_TRUE(terreno && hormigon);
    }
    EXPECT_FALSE(f->CroquisDe(f->At("UCframe1")));
}

}  // namespace
}  // namespace vardena
