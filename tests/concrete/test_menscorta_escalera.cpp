// The corbel (frmMensCorta): the moment and shear of the beam it carries, worked out by hand for
// each kind, with the sizes each kind starts with; the strut's cotangent; what each kind shows;
// the record read twice leaves what it stored. The stair (frmEscHorm): its check step's flag,
// the landing's width, the lengths and loads at load, the window by kind, its record.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "base/Texto.h"
#include "concrete/EscHorm.h"
#include "concrete/MensCorta.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"

namespace vardena {
namespace {

class Special : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt");
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
    // Saves the form and gives its record a results file, so that a new form lists it; then
    // reads it into a new form as a click on the list does.
    template <typename T>
    std::unique_ptr<T> Relee(Form& f, const char* nombre, const std::string& codigo)
    {
        f.At("CmdCalcular").Click();
        const std::string titulo = f.At("txtTitulo").Text();
        std::filesystem::copy_file(dir / (titulo + ".~" + codigo), dir / (titulo + ".l" + codigo));
        auto g = Load<T>(nombre);
        EXPECT_EQ(g->At("List1").ListCount(), 1);
        g->At("List1").SetListIndex(0);
        for (Control* c : f.Controls()) {
            if (!IsStored(c->kind()))
                continue;
            for (const std::string& p : StoredProperties(c->kind()))
                EXPECT_EQ(g->At(c->Name(), c->Index()).Get(p), c->Get(p)) << c->Label() << "." << p;
        }
        return g;
    }

    test::TestApp app;
    test::ScratchDir dir;
};

// One case a kind: the kind clicked (which writes its bearing TxCota(3) and arm TxCota(2)), the
// beam's span TxCota(6) in cm and its load in t/m, and Md, Vd as the form writes them.
// a = TxCota(3) / 200 + TxCota(2) / 100; Md = q L² / 10 - q L a / 2 + q a² / 2; Vd = q L / 2 - a q.
struct CasoMensula {
    int tipo;
    const char* luz;
    const char* carga;
    double a;
    const char* md;
    const char* vd;
};
const CasoMensula kCasosMensula[] = {
    // Plain corbel: a = 0.075 + 0.6 = 0.675; L = 5, q = 2: Md = 5 - 3.375 + 0.455625 = 2.080625,
    // Vd = 5 - 1.35 = 3.65.
    {0, "500", "2", 0.675, "2.08", "3.65"},
    // Framed beam: a = 0.15 + 0.8 = 0.95; L = 6, q = 3: Md = 10.8 - 8.55 + 1.35375 = 3.60375,
    // Vd = 9 - 2.85 = 6.15.
    {1, "600", "3", 0.95, "3.6", "6.15"},
    // Column on a cantilever: L = 4, q = 1.2: Md = 1.92 - 2.28 + 0.5415 = 0.1815, Vd = 2.4 - 1.14 = 1.26.
    {2, "400", "1.2", 0.95, "0.18", "1.26"},
    // Eccentric column: L = 8, q = 2.4: Md = 15.36 - 9.12 + 1.083 = 7.323, Vd = 9.6 - 2.28 = 7.32.
    {3, "800", "2.4", 0.95, "7.32", "7.32"},
    // A short span under the arm: L = 1, q = 2: Md = 0.2 - 0.675 + 0.455625 = -0.019375, Vd = 1 - 1.35;
    // the plain text of a number drops the 0 before the point.
    {0, "100", "2", 0.675, "-.02", "-.35"},
};

TEST_F(Special, CorbelMomentAndShearOfTheBeamForEachKind)
{
    for (int unidades : {1, 2}) {
        app.decl.Unidades = unidades;
        for (const CasoMensula& c : kCasosMensula) {
            auto f = Load<MensCorta>("frmMensCorta");
            f->At("OpTipo", c.tipo).SetOptionValue(true);
            EXPECT_EQ(f->At("TxCota", 3).Text(), c.tipo == 0 ? "15" : "30");
            EXPECT_EQ(f->At("TxCota", 2).Text(), c.tipo == 0 ? "60" : "80");
            f->At("TxCota", 6).SetText(c.luz);
            // The beam's load in t/m, or ten times it in kN/m in S.I.; Md and Vd stay in m·t and t.
            f->At("TxtQ", 3).SetText(unidades == 1 ? c.carga : FormatoNum(ValComaCopy(c.carga) * 10));
            EXPECT_EQ(f->At("txtMom").Text(), c.md) << c.tipo << " " << c.luz;
            EXPECT_EQ(f->At("txtCort").Text(), c.vd) << c.tipo << " " << c.luz;
            EXPECT_DOUBLE_EQ(f->Brazo(), c.a);
            EXPECT_DOUBLE_EQ(f->LuzViga(), ValComaCopy(c.luz) / 100);
        }
    }
    EXPECT_TRUE(app.ui.errors.empty());
    const EsfuerzosViga e = EsfuerzosVigaEnMensula(2, 5, 0.675);
    EXPECT_DOUBLE_EQ(e.md, 2.080625);
    EXPECT_DOUBLE_EQ(e.vd, 3.65);
}

TEST_F(Special, CorbelKindShowsItsPicturesAndLoads)
{
    auto f = Load<MensCorta>("frmMensCorta");
    for (int tipo : {0, 1, 2, 3}) {
        f->At("OpTipo", tipo).SetOptionValue(true);
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(f->At("ImageM", i).Visible(), i / 3 == tipo) << tipo << " " << i;
        EXPECT_EQ(f->At("PictureM").Visible(), tipo != 3);
        EXPECT_EQ(f->At("PictureV").Visible(), tipo == 3);
        // The framed beam hangs on its hanger bars and brings its load and span.
        for (Control* c : {&f->At("UCArmColgar"), &f->At("TxtRes1", 3), &f->At("TxtQ", 3), &f->At("TxCota", 6), &f->At("txtMom")})
            EXPECT_EQ(c->Visible(), tipo == 1) << c->Label();
        EXPECT_EQ(f->At("TxtQ", 2).Visible(), tipo >= 2);
        const std::optional<Croquis> dibujo = f->CroquisDe(f->At(tipo == 3 ? "PictureV" : "PictureM"));
        ASSERT_TRUE(dibujo);
        for (const TrazoCroquis& t : dibujo->trazos)
            for (const PuntoCroquis& q : t.puntos)
                EXPECT_TRUE(q.x >= 0 && q.x <= dibujo->ancho && q.y >= 0 && q.y <= dibujo->alto) << tipo;
    }
    // The strut's cotangent by the casting joint.
    for (auto [fila, texto] : {std::pair{0, "1.4"}, {1, "1.0"}, {2, "0.6"}}) {
        f->At("Hormig").SetListIndex(fila);
        EXPECT_EQ(f->At("TextCtg").Text(), texto);
    }
}

TEST_F(Special, CorbelRecordReadTwiceKeepsWhatItStored)
{
    auto f = Load<MensCorta>("frmMensCorta");
    f->At("OpTipo", 1).SetOptionValue(true);
    f->At("TxtQ", 3).SetText("3");
    f->At("TxCota", 6).SetText("600");
    f->At("Hormig").SetListIndex(2);
    f->At("TxCota", 3).SetText("34.75");
    // Figures that no event of the form would write: reading the record twice must leave them.
    f->At("txtMom").SetText("46.00");
    f->At("TextCtg").SetText("26.00");
    auto g = Relee<MensCorta>(*f, "frmMensCorta", "HW");
    EXPECT_EQ(g->At("txtMom").Text(), "46.00");
    EXPECT_EQ(g->At("TextCtg").Text(), "26.00");
    EXPECT_EQ(g->At("TxCota", 3).Text(), "34.75");
    EXPECT_TRUE(g->At("UCArmColgar").Visible());
    EXPECT_TRUE(g->At("PictureM").Visible());
}

TEST_F(Special, StairCheckStepTakesItsFlagSet)
{
    auto f = Load<EscHorm>("frmEscHorm");
    EXPECT_EQ(f->ciclo().paso, PasoComprobacion::Bandera);
    EXPECT_EQ(f->BanderaComprobacion(), 0);
    app.decl.ResultadoCalculo = 0;
    f->At("CmdCalcular").Click();
    EXPECT_EQ(f->BanderaComprobacion(), kTrue);
    EXPECT_EQ(app.decl.ResultadoCalculo, 1);
    EXPECT_TRUE(std::filesystem::exists(dir / "Escalera Hormigón 01.~HZ"));
}

TEST_F(Special, StairLoadsLengthsAndUnitsAtLoad)
{
    for (int unidades : {1, 2}) {
        app.decl.Unidades = unidades;
        auto f = Load<EscHorm>("frmEscHorm");
        EXPECT_EQ(f->At("Label10").Caption(), unidades == 1 ? "kg/m2" : "kN/m2");
        EXPECT_EQ(f->At("txtSobrUso").Text(), unidades == 1 ? "400" : "4.00");
        EXPECT_EQ(f->At("txtSolado").Text(), unidades == 1 ? "100" : "1.00");
        // Every length in two decimals.
        EXPECT_EQ(f->At("TxCotaH2", 3).Text(), "1.40");
        EXPECT_EQ(f->At("TxCotaRampa", 0).Text(), "6.25");
        EXPECT_EQ(f->At("LbCanto").Caption(), "0.20");
    }
}

TEST_F(Special, StairKindShowsItsSketchAndLandings)
{
    auto f = Load<EscHorm>("frmEscHorm");
    const char* pictures[] = {"PictH1", "PictHD", "PictH2", "PictRampa"};
    f->At("txtAncho", 0).SetText("1.20");
    for (int tipo : {0, 1, 2, 3}) {
        f->At("OptLosa", tipo).SetOptionValue(true);
        for (int k = 0; k < 4; ++k)
            EXPECT_EQ(f->At(pictures[k]).Visible(), k == tipo);
        EXPECT_EQ(f->At("TxtCanto", 1).Visible(), tipo == 1);
        EXPECT_EQ(f->At("txtAncho", 2).Visible(), tipo == 2);
        ASSERT_TRUE(f->CroquisDe(f->At(pictures[tipo])));
    }
    // The landing between two flights: 2 x 1.20 + 0.1.
    f->At("OptLosa", 2).SetOptionValue(true);
    EXPECT_EQ(f->At("txtAncho", 2).Text(), "2.50");
    f->At("TxtCanto", 0).SetText("0.25");
    EXPECT_EQ(f->At("LbCanto").Caption(), "0.25");
    // The end conditions change the sketch: a fixed end is drawn as the wall it is built into.
    auto empotrados = [&] {
        int n = 0;
        const std::optional<Croquis> dibujo = f->CroquisDe(f->At("PictH2"));
        for (const TrazoCroquis& t : dibujo->trazos)
            n += t.papel == PapelCroquis::Terreno;
        return n;
    };
    const int antes = empotrados();
    f->At("OptH2izqS", 2).SetOptionValue(true);
    EXPECT_EQ(empotrados(), antes + (f->At("OptH2izqS", 2).OptionValue() ? 1 : 0));
}

TEST_F(Special, StairRecordReadTwiceKeepsItsLandingWidth)
{
    auto f = Load<EscHorm>("frmEscHorm");
    f->At("OptLosa", 2).SetOptionValue(true);
    f->At("txtAncho", 2).SetText("3.33");
    f->At("TxCotaH2", 1).SetText("2.75");
    auto g = Relee<EscHorm>(*f, "frmEscHorm", "HZ");
    EXPECT_EQ(g->At("txtAncho", 2).Text(), "3.33");
    EXPECT_TRUE(g->At("PictH2").Visible());
    EXPECT_TRUE(g->At("txtAncho", 2).Visible());
}

}  // namespace
}  // namespace vardena
