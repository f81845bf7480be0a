// The walls that hold ground and the soil slope: their catalogues, the storeys taken from the
// general data, the wall-backfill friction, the ground pressure of the general data, the fields
// each choice enables or shows, and the sketches. Expected figures are worked out by hand from
// the catalogue tables and the rules of the forms, not taken from the program.

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "ground_masonry/MuroTerreno.h"
#include "ground_masonry/Talud.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"

namespace vardena {
namespace {

class GroundWalls : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt");
    }
    std::unique_ptr<ElementForm> Load(const std::string& nombre)
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* e = dynamic_cast<ElementForm*>(f.get());
        EXPECT_NE(e, nullptr) << nombre;
        f.release();
        return std::unique_ptr<ElementForm>(e);
    }
    // Types into a field, picks a row, ticks a check or chooses an option, as the user would.
    static void Pon(Form& f, const std::string& nombre, int index, const std::string& valor)
    {
        Control& c = f.At(nombre, index);
        const char* prop = c.kind() == Kind::TextBox ? "Text" : c.kind() == Kind::ComboBox ? "ListIndex" : "Value";
        c.SetProperty(prop, valor);
    }
    static void Pon(Form& f, const std::string& nombre, const std::string& valor) { Pon(f, nombre, -1, valor); }
    static std::string Txt(const Form& f, const std::string& nombre, int index = -1) { return f.At(nombre, index).Text(); }

    test::TestApp app;
    test::ScratchDir dir;
};

TEST_F(GroundWalls, BackfillCatalogueWritesDensityAndAngle)
{
    struct Caso {
        const char* form;
        int fila;
        const char* densidad;
        const char* angulo;
    };
    // Row 0 writes nothing: the typed 1234 and 33 stay.
    const Caso casos[] = {
        {"frmMuroH", 0, "1234", "33"},    {"frmMuroH", 1, "1700", "40"},    {"frmMuroH", 2, "1500", "30"},
        {"frmMuroH", 3, "1300", "35"},    {"frmMuroH", 4, "1700", "25"},    {"frmMuroH", 5, "1700", "30"},
        {"frmMuroH", 6, "1800", "40"},    {"frmMuroCont", 1, "1700", "40"}, {"frmMuroCont", 6, "1800", "40"},
        {"frmMuroCont", 0, "1234", "33"},
    };
    for (const Caso& c : casos) {
        auto f = Load(c.form);
        Pon(*f, "TxtDensidad", "1234");
        Pon(*f, "TxtAngulo", "33");
        Pon(*f, "CmbTerr", std::to_string(c.fila));
        EXPECT_EQ(Txt(*f, "TxtDensidad"), c.densidad) << c.form << " row " << c.fila;
        EXPECT_EQ(Txt(*f, "TxtAngulo"), c.angulo) << c.form << " row " << c.fila;
    }
}

TEST_F(GroundWalls, RetainingWallGroundAndBackfillOfTheSameGround)
{
    auto f = Load("frmMuroCont");
    // "Arcilla blanda": 2000 kg/m3, cohesion 25, catalogue value 0.15, 20 degrees; typed no more.
    Pon(*f, "CmbTerreno", "4");
    EXPECT_EQ(Txt(*f, "Text3"), "2000");
    EXPECT_EQ(Txt(*f, "Text4"), "25");
    EXPECT_EQ(Txt(*f, "Text5"), "0.15");
    EXPECT_EQ(Txt(*f, "Text2"), "20");
    EXPECT_FALSE(f->At("Text3").Enabled());
    // "Idem Terreno" copies the ground into the backfill, cohesion included...
    Pon(*f, "CmbTerr", "7");
    EXPECT_EQ(Txt(*f, "TxtDensidad"), "2000");
    EXPECT_EQ(Txt(*f, "TxtAngulo"), "20");
    EXPECT_EQ(Txt(*f, "txtCohesion"), "25");
    // ...and follows a later change of the ground ("Roca meteorizada": 2200, 200, 40).
    Pon(*f, "CmbTerreno", "6");
    EXPECT_EQ(Txt(*f, "TxtDensidad"), "2200");
    EXPECT_EQ(Txt(*f, "TxtAngulo"), "40");
    EXPECT_EQ(Txt(*f, "txtCohesion"), "200");
    // "Definir datos..." leaves the figures and lets them be typed.
    Pon(*f, "CmbTerreno", "0");
    EXPECT_EQ(Txt(*f, "Text3"), "2200");
    EXPECT_TRUE(f->At("Text3").Enabled());
}

TEST_F(GroundWalls, SlopeCatalogueTakesTheCohesionOfTheUnitSystem)
{
    struct Caso {
        const char* form;
        int cohesion;  // the TxtQ it writes
        int unidades;
        int fila;
        const char* densidad;
        const char* valor;
        const char* angulo;
    };
    // Of each cohesion pair the first holds for any Unidades but 0, the second for 0.
    const Caso casos[] = {
        {"frmTalud", 1, 1, 1, "1700", "0", "30"},         {"frmTalud", 1, 0, 2, "1900", "0", "30"},
        {"frmTalud", 1, 1, 3, "1700", "2", "20"},         {"frmTalud", 1, 0, 3, "1700", "20", "20"},
        {"frmTalud", 1, 2, 4, "1800", "7.5", "20"},       {"frmTalud", 1, 0, 4, "1800", "75", "20"},
        {"frmTalud", 1, 1, 5, "1800", "2", "25"},         {"frmTalud", 1, 0, 6, "1800", "15", "20"},
        {"frmTalud", 1, 1, 7, "2100", "2.5", "20"},       {"frmTalud", 1, 0, 8, "2300", "250", "20"},
        {"frmTalud", 1, 2, 9, "2200", "2", "40"},         {"frmTalud", 1, 0, 10, "2600", "80", "40"},
        {"frmMuroAnclado", 3, 1, 8, "2300", "25", "20"},  {"frmMuroAnclado", 3, 0, 10, "2600", "80", "40"},
        {"frmMuroAnclado", 3, 2, 6, "1800", "1.5", "20"},
    };
    for (const Caso& c : casos) {
        app.decl.Unidades = static_cast<int16_t>(c.unidades);
        auto f = Load(c.form);
        Pon(*f, "CmbTalud", std::to_string(c.fila));
        const std::string donde = std::string(c.form) + " row " + std::to_string(c.fila) + " units " +
                                  std::to_string(c.unidades);
        EXPECT_EQ(Txt(*f, "TxtDensidad"), c.densidad) << donde;
        EXPECT_EQ(Txt(*f, "TxtQ", c.cohesion), c.valor) << donde;
        EXPECT_EQ(Txt(*f, "TxtAngulo"), c.angulo) << donde;
    }
}

TEST_F(GroundWalls, SlopeCatalogueRowZeroKeepsTheTypedGround)
{
    auto f = Load("frmTalud");
    Pon(*f, "CmbTalud", "3");
    Pon(*f, "TxtDensidad", "1950");
    Pon(*f, "CmbTalud", "0");
    EXPECT_EQ(Txt(*f, "TxtDensidad"), "1950");
    EXPECT_EQ(Txt(*f, "TxtQ", 1), "2");
    // The surcharge is not the catalogue's.
    EXPECT_EQ(Txt(*f, "TxtQ", 0), ".5");
}

TEST_F(GroundWalls, WallBackfillFrictionFollowsTheAngle)
{
    struct Caso {
        const char* form;
        int opcion;
        const char* angulo;
        const char* delta;
        bool tecleable;
    };
    // "Bajo" is a third of the angle, "Alto" two thirds, with no decimals: 30 gives 10 and 20,
    // 35 gives 11.67 and 23.33, 40 gives 13.33 and 26.67; "Definir..." keeps what was typed (17).
    const Caso casos[] = {
        {"frmMuroH", 1, "30", "10", false},   {"frmMuroH", 2, "30", "20", false},
        {"frmMuroH", 1, "35", "12", false},   {"frmMuroH", 2, "35", "23", false},
        {"frmMuroH", 2, "40", "27", false},   {"frmMuroH", 0, "40", "17", true},
        {"frmMuroCont", 1, "40", "13", false}, {"frmMuroCont", 2, "30", "20", false},
    };
    for (const Caso& c : casos) {
        auto f = Load(c.form);
        Pon(*f, "Text1", "17");
        Pon(*f, "OptDelta", c.opcion, "True");
        Pon(*f, "TxtAngulo", c.angulo);
        EXPECT_EQ(Txt(*f, "Text1"), c.delta) << c.form << " option " << c.opcion << " angle " << c.angulo;
        EXPECT_EQ(f->At("Text1").Enabled(), c.tecleable) << c.form << " option " << c.opcion;
    }
}

TEST_F(GroundWalls, StoreysOfTheGeneralData)
{
    // Two floors and three basements; the storey table runs floors first, then basements.
    app.decl.NPlantasSobre = 2;
    app.decl.NPlantasBajo = 3;
    const float alturas[] = {3.0f, 3.1f, 2.8f, 3.25f, 2.95f};
    for (size_t i = 0; i < std::size(alturas); ++i)
        app.decl.GenCot[i] = alturas[i];
    struct Caso {
        const char* form;
        int fila;
        int sotanos;
        const char* cuarto;  // the fourth storey's height, as the form's default leaves it
    };
    const Caso casos[] = {
        {"frmMuroH", 0, 3, "260"}, {"frmMuroH", 2, 2, "260"}, {"frmMuroAnclado", 4, 4, ""}, {"frmMuroAnclado", 1, 1, ""},
    };
    for (const Caso& c : casos) {
        auto f = Load(c.form);
        Pon(*f, "CmbSot", std::to_string(c.fila));
        // Basements 1 to 3 are rows 2 to 4: 280, 325, 295 cm; the fourth storey keeps its text.
        EXPECT_EQ(Txt(*f, "TxCotaMuro", 1), "280") << c.form;
        EXPECT_EQ(Txt(*f, "TxCotaMuro", 4), "325") << c.form;
        EXPECT_EQ(Txt(*f, "TxCotaMuro", 7), "295") << c.form;
        EXPECT_EQ(Txt(*f, "TxCotaMuro", 10), c.cuarto) << c.form;
        EXPECT_EQ(dynamic_cast<MuroTerreno&>(*f).Sotanos(), c.sotanos) << c.form;
        for (int i = 0; i < kMaxSotanosMuro * kCotasPorSotano; ++i)
            EXPECT_EQ(f->At("TxCotaMuro", i).Visible(), i / kCotasPorSotano < c.sotanos) << c.form << " " << i;
        for (int i = 0; i < kMaxSotanosMuro * kArmadurasPorSotano; ++i)
            EXPECT_EQ(f->At("UCArmMuro", i).Visible(), i / kArmadurasPorSotano < c.sotanos) << c.form << " " << i;
        if (std::string(c.form) == "frmMuroAnclado") {
            for (int k = 0; k < kMaxSotanosMuro; ++k) {
                EXPECT_EQ(f->At("TxtQ", kPrimeraTensionAnclaje + k).Visible(), k < c.sotanos) << k;
                EXPECT_EQ(f->At("txtAng", k).Visible(), k < c.sotanos) << k;
            }
        }
    }
}

TEST(GroundWallStoreys, RowOfTheListAndBasementsOfTheBuilding)
{
    struct Caso {
        int fila, generales, sotanos;
    };
    // "Idem gral." takes the building's basements, at least one; rows 1 to 4 stand for themselves.
    const Caso casos[] = {{0, 0, 1}, {0, 2, 2}, {0, 4, 4}, {0, 9, 4}, {1, 3, 1}, {3, 0, 3}, {4, 1, 4}, {-1, 2, 2}};
    for (const Caso& c : casos)
        EXPECT_EQ(SotanosDeMuro(c.fila, c.generales), c.sotanos) << c.fila << " " << c.generales;
}

TEST_F(GroundWalls, AdmissiblePressureOfTheGeneralDataAndHeadLoads)
{
    // 30 t/m2 in the general data is 3 kg/cm2 in the field.
    app.decl.GenTens = 30;
    for (const char* nombre : {"frmMuroH", "frmMuroCont", "frmMuroAnclado"}) {
        auto f = Load(nombre);
        Pon(*f, "TxtQ", 2, "1.8");
        Pon(*f, "Check1", "1");
        EXPECT_EQ(Txt(*f, "TxtQ", 2), "3") << nombre;
        EXPECT_FALSE(f->At("TxtQ", 2).Enabled()) << nombre;
        Pon(*f, "Check1", "0");
        EXPECT_EQ(Txt(*f, "TxtQ", 2), "3") << nombre;
        EXPECT_TRUE(f->At("TxtQ", 2).Enabled()) << nombre;
    }
    for (const char* nombre : {"frmMuroH", "frmMuroAnclado"}) {
        auto f = Load(nombre);
        EXPECT_FALSE(f->At("TxtQ", 0).Enabled()) << nombre;
        Pon(*f, "CheckFM", "1");
        EXPECT_TRUE(f->At("TxtQ", 0).Enabled()) << nombre;
        EXPECT_TRUE(f->At("TxtQ", 1).Enabled()) << nombre;
        EXPECT_EQ(Txt(*f, "TxtQ", 1), "0") << nombre;
    }
}

TEST_F(GroundWalls, MasonryRetainingWallTakesTheMasonryFields)
{
    auto f = Load("frmMuroCont");
    EXPECT_FALSE(f->At("TxtQ", 5).Enabled());
    EXPECT_TRUE(f->At("UCArmMuro", 0).Enabled());
    Pon(*f, "cmbTipo", "1");
    EXPECT_TRUE(f->At("TxtQ", 5).Enabled());
    EXPECT_TRUE(f->At("TxtDensFabr").Enabled());
    EXPECT_FALSE(f->At("UCArmMuro", 0).Enabled());
    EXPECT_EQ(Txt(*f, "TxtQ", 5), "90");
}

TEST(SlopeRun, TangentOfAnAngleAboveZeroAndUpToNinety)
{
    struct Caso {
        double alto, grados;
        std::optional<double> recorrido;
    };
    // run = H / tan(angle): 220 / tan 45 = 220; 100 / tan 60 = 57.735; 100 / tan 30 = 173.205;
    // a vertical face has none; 0, negative angles and overhangs have no slope to draw.
    const Caso casos[] = {
        {220, 45, 220.0}, {100, 60, 57.7350}, {100, 30, 173.2051}, {100, 90, 0.0}, {120, 10, 680.5548},
        {100, 0, std::nullopt}, {100, -5, std::nullopt}, {100, 90.5, std::nullopt}, {100, 180, std::nullopt},
    };
    for (const Caso& c : casos) {
        const std::optional<double> r = RecorridoTalud(c.alto, c.grados);
        ASSERT_EQ(r.has_value(), c.recorrido.has_value()) << c.grados;
        if (r) {
            EXPECT_NEAR(*r, *c.recorrido, 1e-3) << c.grados;
        }
    }
}

// The slope line of the sketch, crest to toe: its horizontal over its vertical extent.
double PendienteDibujada(const Croquis& c)
{
    for (const TrazoCroquis& t : c.trazos)
        if (t.figura == FiguraCroquis::Linea && t.papel == PapelCroquis::Superficie && t.puntos[1].y != t.puntos[0].y)
            return static_cast<double>(t.puntos[1].x - t.puntos[0].x) / (t.puntos[1].y - t.puntos[0].y);
    return -1;
}

TEST_F(GroundWalls, SlopeSketchKeepsTheLastAngleThatCanBeDrawn)
{
    auto f = Load("frmTalud");
    auto& talud = dynamic_cast<Talud&>(*f);
    const Control& dibujo = f->At("PicTalud");
    struct Paso {
        const char* angulo;
        double dibujado;
        double pendiente;  // 1 / tan of the angle drawn
        bool aviso;        // an angle with no slope to draw is told of
    };
    const Paso pasos[] = {
        {"60", 60, 0.57735, false}, {"0", 60, 0.57735, true},    {"", 60, 0.57735, true},
        {"30", 30, 1.73205, false}, {"95", 30, 1.73205, true},   {"-10", 30, 1.73205, true},
        {"90", 90, 0.0, false},     {"45", 45, 1.0, false},
    };
    for (const Paso& p : pasos) {
        app.ui.boxes.clear();
        Pon(*f, "TxCotaTalud", kAnguloTalud, p.angulo);
        ASSERT_EQ(app.ui.boxes.size(), p.aviso ? 1u : 0u) << p.angulo;
        if (p.aviso) {
            EXPECT_NE(app.ui.boxes[0].prompt.find("(vale " + std::string(p.angulo) + ")"), std::string::npos)
                << app.ui.boxes[0].prompt;
        }
        EXPECT_EQ(talud.AnguloDibujado(), p.dibujado) << p.angulo;
        const std::optional<Croquis> c = f->CroquisDe(dibujo);
        ASSERT_TRUE(c.has_value());
        EXPECT_NEAR(PendienteDibujada(*c), p.pendiente, 0.01) << p.angulo;
        // The typed angle stays as typed.
        EXPECT_EQ(Txt(*f, "TxCotaTalud", kAnguloTalud), p.angulo);
    }
    // A change of the height with the angle still at 45 draws the new height, with no message.
    app.ui.boxes.clear();
    Pon(*f, "TxCotaTalud", kAlturaTalud, "300");
    EXPECT_TRUE(app.ui.boxes.empty());
}

TEST_F(GroundWalls, HardStratumIsTypedAndDrawnOnlyWhenTicked)
{
    auto f = Load("frmTalud");
    auto resaltes = [&] {
        const Croquis c = f->CroquisDe(f->At("PicTalud")).value_or(Croquis{});
        int n = 0;
        for (const TrazoCroquis& t : c.trazos)
            n += t.papel == PapelCroquis::Resalte;
        return n;
    };
    EXPECT_FALSE(f->At("TxCotaTalud", kEstratoTalud).Enabled());
    EXPECT_EQ(resaltes(), 0);
    Pon(*f, "chkEstrato", "1");
    EXPECT_TRUE(f->At("TxCotaTalud", kEstratoTalud).Enabled());
    EXPECT_EQ(resaltes(), 1);
}

TEST_F(GroundWalls, WallSketchesDrawEachStoreyAndAnchor)
{
    app.decl.NPlantasBajo = 0;
    struct Caso {
        const char* form;
        int fila;        // CmbSot, where the form has it
        int tramos;      // wall stems drawn, by their height dimensions
        int anclajes;    // anchors drawn
        bool fabrica;    // the stem drawn as masonry
    };
    const Caso casos[] = {
        {"frmMuroH", 0, 1, 0, false},       {"frmMuroH", 3, 3, 0, false},      {"frmMuroAnclado", 2, 2, 2, false},
        // The anchored wall's fourth storey has no height by default: it is drawn, undimensioned as 260.
        {"frmMuroAnclado", 4, 3, 4, false}, {"frmMuroCont", -1, 1, 0, false}, {"frmMuroCont", -1, 1, 0, true},
    };
    for (const Caso& c : casos) {
        auto f = Load(c.form);
        if (c.fila >= 0)
            Pon(*f, "CmbSot", std::to_string(c.fila));
        if (c.fabrica)
            Pon(*f, "cmbTipo", "1");
        const std::optional<Croquis> croquis = f->CroquisDe(f->At("PicMuro"));
        ASSERT_TRUE(croquis.has_value()) << c.form;
        int tramos = 0, anclajes = 0, fabrica = 0;
        for (const TrazoCroquis& t : croquis->trazos) {
            // Each stem has its height dimensioned: 260 cm a storey, 220 cm the retaining wall.
            tramos += t.figura == FiguraCroquis::Cota && (t.texto == "260" || t.texto == "220");
            anclajes += t.figura == FiguraCroquis::Linea && t.papel == PapelCroquis::Armadura;
            fabrica += t.papel == PapelCroquis::Fabrica;
        }
        EXPECT_EQ(tramos, c.tramos) << c.form << " " << c.fila;
        EXPECT_EQ(anclajes, c.anclajes) << c.form << " " << c.fila;
        EXPECT_EQ(fabrica, c.fabrica ? 1 : 0) << c.form;
        EXPECT_GT(croquis->ancho, 0);
        EXPECT_GT(croquis->alto, 0);
    }
}

TEST_F(GroundWalls, SketchesHoldTheirShapeWithEmptyCoordinates)
{
    // While the user types, a coordinate may read as 0: the drawing keeps a size of its own.
    for (const char* nombre : {"frmMuroH", "frmMuroCont", "frmMuroAnclado"}) {
        auto f = Load(nombre);
        for (Control* c : f->Members("TxCotaMuro"))
            c->SetProperty("Text", "");
        Pon(*f, "TxCotaAncho", "0");
        const std::optional<Croquis> c = f->CroquisDe(f->At("PicMuro"));
        ASSERT_TRUE(c.has_value()) << nombre;
        EXPECT_GT(c->ancho, 0) << nombre;
        EXPECT_GT(c->alto, 0) << nombre;
    }
    auto t = Load("frmTalud");
    Pon(*t, "TxCotaTalud", kAlturaTalud, "0");
    const std::optional<Croquis> c = t->CroquisDe(t->At("PicTalud"));
    ASSERT_TRUE(c.has_value());
    EXPECT_GT(c->alto, 0);
    EXPECT_TRUE(app.ui.boxes.empty());
}

}  // namespace
}  // namespace vardena
