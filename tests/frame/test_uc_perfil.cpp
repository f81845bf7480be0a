// The steel section selector and its catalogue.

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "frame/CatalogoPerfiles.h"
#include "frame/Refuerzos.h"
#include "frame/UCPerfil.h"
#include "support/TestSupport.h"
#include "base/Form.h"
#include "works/Subrut.h"
#include "base/Ui.h"

namespace vardena {
namespace {

double Num(const Control& c, const char* prop) { return ValComaCopy(c.Get(prop)); }

// ---- The catalogue ----

TEST(CatalogoPerfiles, EveryFamilyHasItsSizesAndEverySizeItsRow)
{
    const std::vector<std::pair<std::string_view, size_t>> familias = {
        {"UPN", 16}, {"IPN", 21}, {"IPE", 18}, {"HEA", 24}, {"HEB", 24}, {"HEM", 24}};
    ASSERT_EQ(CatalogoPerfiles().size(), 127u);
    std::set<std::pair<std::string_view, int>> vistas;
    for (size_t i = 0; i < familias.size(); ++i) {
        const auto [nombre, cuantos] = familias[i];
        SCOPED_TRACE(std::string(nombre));
        EXPECT_EQ(NombreFamilia(static_cast<int>(i)), nombre);
        const std::span<const int> tamanos = TamanosFamilia(static_cast<int>(i));
        ASSERT_EQ(tamanos.size(), cuantos);
        std::vector<int> enTabla;
        for (const FilaPerfil& f : CatalogoPerfiles())
            if (f.familia == nombre)
                enTabla.push_back(f.tamano);
        EXPECT_EQ(enTabla, std::vector<int>(tamanos.begin(), tamanos.end()));
        for (int t : tamanos) {
            const FilaPerfil* f = BuscaPerfil(nombre, t);
            ASSERT_NE(f, nullptr) << t;
            EXPECT_TRUE(vistas.insert({f->familia, f->tamano}).second) << "twice: " << t;
        }
    }
    EXPECT_EQ(NombreFamilia(kFamiliaUsuario), "otro");
    EXPECT_TRUE(TamanosFamilia(kFamiliaUsuario).empty());
    EXPECT_EQ(BuscaPerfil("hea", 300), BuscaPerfil("HEA", 300));
    EXPECT_EQ(BuscaPerfil("HEA", 80), nullptr);
    EXPECT_EQ(BuscaPerfil("UPE", 100), nullptr);
}

// The shape of each row: positive values growing with the size, the centroid distance half the
// width for the I and H families and, for the channels, nearer the toe than the web.
TEST(CatalogoPerfiles, RowsAreSoundSections)
{
    const FilaPerfil* anterior = nullptr;
    for (const FilaPerfil& f : CatalogoPerfiles()) {
        SCOPED_TRACE(std::string(f.familia) + " " + std::to_string(f.tamano));
        EXPECT_GT(f.area, 0);
        EXPECT_GT(f.ix, f.iy);
        EXPECT_GT(f.ancho, 0);
        EXPECT_NEAR(f.canto * 10, f.tamano, f.familia == "HEM" ? 40 : (f.familia == "HEA" ? 10 : 0.01));
        if (f.familia == "UPN") {
            EXPECT_GT(f.distancia, f.ancho / 2);
            EXPECT_LT(f.distancia, f.ancho);
        } else {
            EXPECT_FLOAT_EQ(f.distancia, f.ancho / 2);
        }
        if (!(f.familia == "HEM" && f.tamano == 800)) {
            EXPECT_GT(f.espAla, f.espAlma);
            EXPECT_GT(f.espAlma, 0);
        }
        if (anterior && anterior->familia == f.familia) {
            EXPECT_GT(f.tamano, anterior->tamano);
            EXPECT_GT(f.ix, anterior->ix);
        }
        anterior = &f;
    }
}

TEST(CatalogoPerfiles, HeavyRows700And800StandAsGiven)
{
    const FilaPerfil* a = BuscaPerfil("HEM", 700);
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(a->area, 383.0f);
    EXPECT_EQ(a->ix, 329000.0f);
    EXPECT_EQ(a->iy, 18900.0f);
    EXPECT_EQ(a->ancho, 30.4f);
    EXPECT_EQ(a->canto, 71.6f);
    EXPECT_EQ(a->distancia, 15.2f);
    EXPECT_EQ(a->espAla, 4.0f);
    EXPECT_EQ(a->espAlma, 2.1f);
    const FilaPerfil* b = BuscaPerfil("HEM", 800);
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->area, 404.0f);
    EXPECT_EQ(b->ix, 443000.0f);
    EXPECT_EQ(b->iy, 18600.0f);
    EXPECT_EQ(b->ancho, 30.3f);
    EXPECT_EQ(b->canto, 81.4f);
    EXPECT_EQ(b->distancia, 15.15f);
    EXPECT_EQ(b->espAla, 0.0f);
    EXPECT_EQ(b->espAlma, 0.0f);
}

// Published values (European tables, rounded as printed there) for rows of every family.
TEST(CatalogoPerfiles, SpotChecksAgainstPublishedTables)
{
    struct Row {
        const char* familia;
        int tamano;
        double area, ix, iy, ancho, canto, ala, alma;
    };
    const std::vector<Row> rows = {
        {"UPN", 80, 11.0, 106, 19.4, 4.5, 8.0, 0.8, 0.6},
        {"UPN", 200, 32.2, 1910, 148, 7.5, 20.0, 1.15, 0.85},
        {"UPN", 400, 91.5, 20350, 846, 11.0, 40.0, 1.8, 1.4},
        {"IPN", 300, 69.1, 9800, 451, 12.5, 30.0, 1.62, 1.08},
        {"IPN", 600, 254, 139000, 4670, 21.5, 60.0, 3.24, 2.16},
        {"IPE", 80, 7.64, 80.1, 8.49, 4.6, 8.0, 0.52, 0.38},
        {"IPE", 300, 53.8, 8356, 603.8, 15.0, 30.0, 1.07, 0.71},
        {"IPE", 600, 156, 92080, 3387, 22.0, 60.0, 1.9, 1.2},
        {"HEA", 300, 112.5, 18260, 6310, 30.0, 29.0, 1.4, 0.85},
        {"HEA", 1000, 347, 554000, 14000, 30.0, 99.0, 3.1, 1.65},
        {"HEB", 100, 26.0, 450, 167, 10.0, 10.0, 1.0, 0.6},
        {"HEB", 600, 270, 171000, 13530, 30.0, 60.0, 3.0, 1.55},
        {"HEM", 100, 53.2, 1143, 399, 10.6, 12.0, 2.0, 1.2},
        {"HEM", 1000, 444, 722000, 18500, 30.2, 100.8, 4.0, 2.1},
    };
    auto cerca = [](double a, double b) { return std::fabs(a - b) <= 0.005 * std::fabs(b); };
    for (const Row& r : rows) {
        SCOPED_TRACE(std::string(r.familia) + " " + std::to_string(r.tamano));
        const FilaPerfil* f = BuscaPerfil(r.familia, r.tamano);
        ASSERT_NE(f, nullptr);
        EXPECT_TRUE(cerca(f->area, r.area)) << f->area;
        EXPECT_TRUE(cerca(f->ix, r.ix)) << f->ix;
        EXPECT_TRUE(cerca(f->iy, r.iy)) << f->iy;
        EXPECT_TRUE(cerca(f->ancho, r.ancho)) << f->ancho;
        EXPECT_TRUE(cerca(f->canto, r.canto)) << f->canto;
        EXPECT_TRUE(cerca(f->espAla, r.ala)) << f->espAla;
        EXPECT_TRUE(cerca(f->espAlma, r.alma)) << f->espAlma;
    }
}

TEST(CatalogoPerfiles, ChannelCentroidDistanceIsNotHalfTheWidth)
{
    const FilaPerfil* f = BuscaPerfil("UPN", 80);
    ASSERT_NE(f, nullptr);
    EXPECT_NEAR(f->distancia, 4.5 - 1.45, 1e-5);
    EXPECT_GT(std::fabs(f->distancia - f->ancho / 2), 0.5);
}

// ---- The control ----

struct UCPerfilTest : ::testing::Test {
    test::TestApp app;
    Form form{app.decl, "frmPrueba"};
    int cambios = 0;
    Control& c = Nuevo();

    Control& Nuevo()
    {
        Control& p = form.Add(Kind::UCPerfil, "UCPerfil1");
        InstalaControlCompuesto(p);
        p.onChange = [this](Control&) { ++cambios; };
        return p;
    }
    void Seccion(const char* perfil, const char* tamano, const char* num = "1")
    {
        c.Set("Num", num);
        c.Set("Perfil", perfil);
        c.Set("Tamano", tamano);
    }
};

TEST_F(UCPerfilTest, FamilyNamesWithoutRegardToCase)
{
    EXPECT_EQ(FamiliasPerfil(), (std::vector<std::string>{"UPN", "IPN", "IPE", "HEA", "HEB", "HEM", "otro"}));
    const std::vector<std::pair<const char*, int>> rows = {
        {"UPN", 0}, {"ipn", 1}, {"IPE", 2}, {"Hea", 3}, {"HEB", 4}, {"hem", 5},
        {"otro", 6}, {"OTRO", 6}, {"xxx", 6}, {"XXX", 6}, {"UPE", -1}, {"", -1}, {"IPE ", -1}};
    for (const auto& [nombre, indice] : rows)
        EXPECT_EQ(IndiceFamiliaPerfil(nombre), indice) << nombre;
    EXPECT_TRUE(EsSeccionUsuario("Xxx"));
    EXPECT_FALSE(EsSeccionUsuario("HEM"));
}

// On installation the design values (one IPE 100) are computed at once.
TEST_F(UCPerfilTest, InstallationComputesTheDesignSection)
{
    EXPECT_EQ(c.Get("Num"), "1");
    EXPECT_EQ(c.Get("Perfil"), "IPE");
    EXPECT_EQ(c.Get("Tamano"), "100");
    EXPECT_EQ(c.Get("Area"), "10.32");
    EXPECT_EQ(c.Get("Ix"), "171.00");
    EXPECT_EQ(c.Get("Iy"), "15.92");
    EXPECT_EQ(c.Get("Canto"), "10.0");
    EXPECT_EQ(c.Get("Ancho"), "5.5");
    EXPECT_EQ(c.Get("EspAla"), "0.57");
    EXPECT_EQ(c.Get("EspAlma"), "0.41");
    EXPECT_EQ(c.Get("IndicePerfil"), "2");
    const VistaPerfil v = VistaDePerfil(c);
    EXPECT_EQ(v.tamanos.size(), 18u);
    EXPECT_EQ(v.tamanoElegido, 1);
    EXPECT_EQ(v.area, "10.32");
    EXPECT_EQ(cambios, 0);
}

TEST_F(UCPerfilTest, TwoSectionsUseAtLeastTwiceTheWidth)
{
    struct Row {
        const char* name;
        const char* perfil;
        const char* tamano;
        const char* tecleado;
        const char* ancho;
        double iy;
    };
    // Iy = 2 (Iy1 + A1 (d / 2 - e)^2) with d the distance used and e the centroid distance.
    const std::vector<Row> rows = {
        {"narrow typed width", "IPE", "300", "10", "30.0", 2 * (603.8 + 53.81 * 7.5 * 7.5)},
        {"wide typed width", "IPE", "300", "40", "40.0", 2 * (603.8 + 53.81 * 12.5 * 12.5)},
        {"channels back to back", "UPN", "80", "0", "9.0", 2 * (19.4 + 11.0 * 1.45 * 1.45)},
        {"channels apart", "UPN", "80", "20", "20.0", 2 * (19.4 + 11.0 * (10 - 3.05) * (10 - 3.05))},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        Seccion(r.perfil, r.tamano, "2");
        c.Set("Ancho", r.tecleado);
        const FilaPerfil* f = BuscaPerfil(r.perfil, std::stoi(r.tamano));
        EXPECT_EQ(c.Get("Ancho"), r.ancho);
        EXPECT_NEAR(Num(c, "Area"), 2 * f->area, 0.006);
        EXPECT_NEAR(Num(c, "Ix"), 2 * f->ix, 0.006);
        EXPECT_NEAR(Num(c, "Iy"), r.iy, 0.011);
        EXPECT_EQ(c.Get("Canto"), Formato0_0(f->canto));
    }
    // Back to one section: the section's own values and width.
    c.Set("Num", "1");
    EXPECT_EQ(c.Get("Ancho"), "4.5");
    EXPECT_EQ(c.Get("Iy"), "19.40");
}

TEST_F(UCPerfilTest, ANumberOfSectionsOtherThanOneOrTwoHalts)
{
    EXPECT_THROW(c.Set("Num", "3"), ProgramHalt);
    EXPECT_THROW(c.Set("Num", ""), ProgramHalt);
}

TEST_F(UCPerfilTest, CatalogueSectionsIgnoreWritesToTheirResults)
{
    Seccion("IPE", "300");
    for (const char* p : {"Area", "Ix", "Iy", "Canto", "EspAla", "EspAlma"})
        c.Set(p, "1");
    EXPECT_EQ(c.Get("Area"), "53.81");
    EXPECT_EQ(c.Get("Ix"), "8356.00");
    EXPECT_EQ(c.Get("Iy"), "603.80");
    EXPECT_EQ(c.Get("Canto"), "30.0");
    EXPECT_EQ(c.Get("EspAla"), "1.07");
    EXPECT_EQ(c.Get("EspAlma"), "0.71");
}

TEST_F(UCPerfilTest, ASizeTheFamilyLacksLeavesTheValuesStanding)
{
    Seccion("HEA", "300");
    EXPECT_EQ(c.Get("Area"), "112.50");
    c.Set("Tamano", "80");
    EXPECT_EQ(VistaDePerfil(c).tamanoElegido, -1);
    EXPECT_EQ(c.Get("Area"), "112.50");
    c.Set("Perfil", "UPN");  // UPN has an 80
    EXPECT_EQ(VistaDePerfil(c).tamanoElegido, 0);
    EXPECT_EQ(c.Get("Area"), "11.00");
    c.Set("Perfil", "UPE");  // no family of the list
    EXPECT_TRUE(VistaDePerfil(c).tamanos.empty());
    EXPECT_EQ(c.Get("IndicePerfil"), "-1");
    EXPECT_EQ(c.Get("Area"), "11.00");
}

// The user's own section keeps every typed text as typed, whatever its name's spelling.
TEST_F(UCPerfilTest, TheUsersSectionKeepsWhatIsTyped)
{
    for (const char* nombre : {"otro", "xxx", "XXX"}) {
        SCOPED_TRACE(nombre);
        cambios = 0;
        c.Set("Perfil", nombre);
        EXPECT_EQ(cambios, 1);  // the selection of the user's section raises Change
        EXPECT_EQ(c.Get("Perfil"), nombre);
        EXPECT_EQ(c.Get("IndicePerfil"), "6");
        EXPECT_TRUE(VistaDePerfil(c).tamanos.empty());
        const std::vector<std::pair<const char*, const char*>> datos = {
            {"Canto", "25,5"}, {"Ancho", "12"}, {"Area", "12.345"}, {"Ix", "1e3"}, {"Iy", " 7"},
            {"EspAla", "1.2"}, {"EspAlma", "0.8"}};
        for (const auto& [p, v] : datos)
            c.Set(p, v);
        for (const auto& [p, v] : datos)
            EXPECT_EQ(c.Get(p), v) << p;
        const VistaPerfil vista = VistaDePerfil(c);
        EXPECT_EQ(vista.area, "12.35");
        EXPECT_EQ(vista.ix, "1000.00");
        EXPECT_EQ(vista.iy, "7.00");
        c.Set("Num", "2");  // the typed values are those of the whole
        EXPECT_EQ(c.Get("Area"), "12.345");
        c.Set("Num", "1");
        EXPECT_EQ(cambios, 1);
    }
}

TEST_F(UCPerfilTest, UserActionsRaiseChangeOnce)
{
    PerfilEligeFamilia(c, 4);  // HEB, size 100 stays
    EXPECT_EQ(c.Get("Perfil"), "HEB");
    EXPECT_EQ(c.Get("Area"), "26.04");
    EXPECT_EQ(cambios, 1);
    PerfilEligeTamano(c, 10);
    EXPECT_EQ(c.Get("Tamano"), "300");
    EXPECT_EQ(c.Get("Area"), "149.10");
    EXPECT_EQ(cambios, 2);
    PerfilCambiaNum(c);
    EXPECT_EQ(c.Get("Num"), "2");
    EXPECT_EQ(c.Get("Area"), "298.20");
    EXPECT_EQ(c.Get("Ancho"), "60.0");
    EXPECT_EQ(cambios, 3);
    PerfilEscribeDato(c, "ancho", "75");
    EXPECT_EQ(c.Get("Ancho"), "75.0");
    EXPECT_EQ(cambios, 4);
    PerfilCambiaNum(c);
    EXPECT_EQ(c.Get("Ancho"), "30.0");
    EXPECT_EQ(cambios, 5);
    PerfilEligeFamilia(c, 6);  // the user's section raises Change once, not twice
    EXPECT_EQ(cambios, 6);
    PerfilEscribeDato(c, "Area", "1,5");
    PerfilDejaDato(c, "Area");
    EXPECT_EQ(c.Get("Area"), "1.50");
    EXPECT_EQ(cambios, 7);
}

TEST_F(UCPerfilTest, BadRowsAndBadPropertiesAreErrors)
{
    const auto numero = [](auto fn) { return test::PropertyErrorNumber(fn); };
    EXPECT_EQ(numero([&] { PerfilEligeFamilia(c, 7); }), 380);
    EXPECT_EQ(numero([&] { PerfilEligeTamano(c, 18); }), 380);
    EXPECT_EQ(numero([&] { PerfilEscribeDato(c, "Num", "2"); }), 438);
    EXPECT_EQ(numero([&] { PerfilDejaDato(c, "Canto"); }), 438);
    EXPECT_EQ(numero([&] { c.Set("IndicePerfil", "3"); }), 383);
    EXPECT_EQ(numero([&] { c.Get("NumBarras"); }), 438);
    EXPECT_EQ(numero([&] { c.Set("VerDatos", "quizá"); }), 13);
    EXPECT_EQ(c.Get("Perfil"), "IPE");
    EXPECT_EQ(cambios, 0);
}

// A form whose Change handler picks the user's section again does not loop: the selection's
// guard stops the second one.
TEST_F(UCPerfilTest, TheSelectionGuardStopsReentry)
{
    c.onChange = [this](Control& p) {
        ++cambios;
        p.Set("Perfil", "otro");
    };
    PerfilEligeFamilia(c, 6);
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(c.Get("IndicePerfil"), "6");
}

}  // namespace
}  // namespace vardena
