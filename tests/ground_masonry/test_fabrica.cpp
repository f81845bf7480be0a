// The masonry properties dialog and the forms it serves. Expected figures are worked out by hand
// from the formulas: fk = 10 K fb^0.65 fm^0.25 with fb and fm in N/mm2 (the Kg/cm2 fields / 10),
// or fb^0.85 8 on thin-joint mortar for solid bricks and light blocks; E = 1000 fk; fvk, fxk1,
// fxk2, the creep coefficient and gamma M from their tables. For instance the worked example
// (solid brick thin joint, one leaf, fb 200, fm 100 Kg/cm2): 20^0.65 = 7.00891, 10^0.25 =
// 1.77828, fk = 6 x 7.00891 x 1.77828 = 74.786.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "base/Texto.h"
#include "building/DatosGen.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "ground_masonry/Fabrica.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"

namespace vardena {
namespace {

using Pares = std::vector<std::pair<std::string, std::string>>;

class Masonry : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt");
    }
    template <typename T = Form>
    std::unique_ptr<T> Carga(const std::string& nombre)
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* t = dynamic_cast<T*>(f.get());
        EXPECT_NE(t, nullptr) << nombre;
        f.release();
        return std::unique_ptr<T>(t);
    }
    static Control& Campo(Form& f, const std::string& ref)
    {
        const size_t p = ref.find('(');
        return p == std::string::npos ? f.At(ref) : f.At(ref.substr(0, p), std::stoi(ref.substr(p + 1)));
    }
    // Picks rows and types values as the user would, in the order given.
    static void Pon(Form& f, const Pares& pares)
    {
        for (const auto& [ref, valor] : pares) {
            Control& c = Campo(f, ref);
            c.SetProperty(c.kind() == Kind::TextBox ? "Text" : "ListIndex", valor);
        }
    }
    static std::string Texto(Form& f, const std::string& ref) { return Campo(f, ref).Text(); }

    test::TestApp app;
    test::ScratchDir dir;
};

// The results of the dialog, in the order fk, fvk, fxk1, fxk2, E, creep, gamma M.
const char* const kResultados[] = {"TxtQ(3)", "TxtQ(4)", "TxtQ(5)", "TxtQ(6)", "TxtQ(2)", "txtCoefFluencia", "txtGm"};

TEST_F(Masonry, PropertiesFollowUnitMortarWallAndCategories)
{
    struct Caso {
        const char* que;
        Pares datos;  // cmbTipoFabr, cmbTipo, cmbMuro, cmbMortero, cmbCatControl, CmbCatEjec, fb, fm
        std::array<const char*, 7> esperado;
    };
    const Caso casos[] = {
        // The worked example: K 0.6; fm 10 > 2.5 gives fvk 0.3; ordinary mortar, fm >= 5: 0.1, 0.4 x 10.
        {"solid brick thin joint, one leaf",
         {{"cmbTipoFabr", "0"}, {"cmbTipo", "0"}, {"cmbMuro", "0"}, {"cmbMortero", "0"}, {"cmbCatControl", "0"},
          {"CmbCatEjec", "0"}, {"TxtQ(0)", "200"}, {"TxtQ(1)", "100"}},
         {"74.79", "0.30", "1.00", "4.00", "74786", "1.00", "1.70"}},
        // K 0.45: 10 x 0.45 x 7.00891 x 1.77828 = 56.090; category B, control II: 2.5.
        {"perforated brick, two leaves",
         {{"cmbTipoFabr", "2"}, {"cmbMuro", "1"}, {"cmbCatControl", "1"}, {"CmbCatEjec", "1"}},
         {"56.09", "0.30", "1.00", "4.00", "56090", "1.50", "2.50"}},
        // Perforated brick on thin-joint mortar keeps the K formula: K 0.55 gives 68.554; the
        // ceramic unit on thin joint: 0.15, 0.15 x 10.
        {"perforated brick on thin joint keeps K",
         {{"cmbTipoFabr", "2"}, {"cmbMortero", "1"}},
         {"68.55", "0.30", "1.50", "1.50", "68554", "1.50", "1.70"}},
        // Solid brick on thin joint: 20^0.85 x 8 = 102.086.
        {"solid brick on thin joint",
         {{"cmbTipoFabr", "1"}, {"cmbMortero", "1"}},
         {"102.09", "0.30", "1.50", "1.50", "102086", "1.50", "1.70"}},
        // Light blocks on thin joint: the same override, whatever the leaves.
        {"light blocks on thin joint",
         {{"cmbTipoFabr", "3"}, {"cmbMuro", "1"}, {"cmbMortero", "1"}},
         {"102.09", "0.30", "1.50", "1.50", "102086", "1.50", "1.70"}},
        // Hollow blocks of ordinary concrete, fb 15, fm 0.8: 10 x 0.4 x 15^0.65 x 0.8^0.25 =
        // 21.993; fm <= 1: fvk 0.1; ordinary mortar below 5: 0.05, 0.2 x 10; category C: 2.7.
        {"hollow concrete blocks, weak mortar",
         {{"cmbTipoFabr", "4"}, {"cmbTipo", "2"}, {"CmbCatEjec", "2"}, {"TxtQ(0)", "150"}, {"TxtQ(1)", "8"}},
         {"21.99", "0.10", "0.50", "2.00", "21993", "1.50", "2.70"}},
        // Light blocks, two leaves, fb 12, fm 2.5 exactly (the middle shear row): 10 x 0.4 x
        // 12^0.65 x 2.5^0.25 = 25.294; calcium silicate on lightweight mortar has no flexural
        // strengths; control II, category A: 2.
        {"light blocks, lightweight mortar, fm 2.5",
         {{"cmbTipoFabr", "3"}, {"cmbTipo", "1"}, {"cmbMuro", "1"}, {"cmbMortero", "2"}, {"cmbCatControl", "1"},
          {"TxtQ(0)", "120"}, {"TxtQ(1)", "25"}},
         {"25.29", "0.20", "No", "No", "25294", "1.50", "2.00"}},
        // Cellular concrete at fm 1 exactly takes the lowest shear row, and below fm 5 its
        // perpendicular strength is 0.4 (where ceramic has 0.2): 10 x 0.6 x 10^0.65 = 26.801.
        {"rubble masonry, cellular concrete, fm 1",
         {{"cmbTipoFabr", "6"}, {"cmbTipo", "3"}, {"TxtQ(0)", "100"}, {"TxtQ(1)", "10"}},
         {"26.80", "0.10", "0.50", "4.00", "26801", "0.00", "1.70"}},
        // Natural stone ashlar, fm 5 exactly: the "5 or more" column; 10 x 0.6 x 50^0.65 x 5^0.25
        // = 114.084; natural stone shears at 0.15 above 2.5; no creep.
        {"ashlar of natural stone, fm 5",
         {{"cmbTipoFabr", "5"}, {"cmbTipo", "5"}, {"TxtQ(0)", "500"}, {"TxtQ(1)", "50"}},
         {"114.08", "0.15", "1.00", "4.00", "114084", "0.00", "1.70"}},
        // Artificial stone shears at 0.2 above fm 2.5 and has no flexural strengths on thin
        // joint; no strength of the units gives no strength, and no message.
        {"no unit strength",
         {{"cmbTipo", "4"}, {"cmbMortero", "1"}, {"cmbTipoFabr", "2"}, {"TxtQ(0)", "0"}},
         {"0.00", "0.20", "No", "No", "0", "1.50", "1.70"}},
    };
    for (const Caso& caso : casos) {
        auto f = Carga("frmFabrica");
        Pon(*f, caso.datos);
        for (size_t i = 0; i < caso.esperado.size(); ++i)
            EXPECT_EQ(Texto(*f, kResultados[i]), caso.esperado[i]) << caso.que << ": " << kResultados[i];
        EXPECT_EQ(Campo(*f, "TxtQ(5)").Enabled(), std::string(caso.esperado[2]) != "No") << caso.que;
    }
    EXPECT_TRUE(app.ui.boxes.empty());
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Masonry, OpensWithItsDefaultsAndTheWorkedExample)
{
    auto f = Carga("frmFabrica");
    EXPECT_EQ(f->Caption(), "Definición de las características de la fábrica");
    for (const char* lista : {"cmbTipoFabr", "cmbTipo", "cmbMuro", "cmbMortero", "cmbCatControl", "CmbCatEjec"})
        EXPECT_EQ(f->At(lista).ListIndex(), 0) << lista;
    EXPECT_EQ(f->At("cmbTipoFabr").ListCount(), 7);
    EXPECT_EQ(f->At("cmbTipo").List(5), "Piedra natural");
    EXPECT_EQ(Texto(*f, "TxtQ(0)"), "200");
    EXPECT_EQ(Texto(*f, "TxtQ(1)"), "100");
    // The load sets the lists without running their clicks: the density stays at its design value.
    EXPECT_EQ(Texto(*f, "TxtDensidad"), "1500");
    EXPECT_EQ(Texto(*f, "TxtQ(3)"), "74.79");
    EXPECT_NEAR(ValComaCopy(Texto(*f, "txtFk")), 74.78608, 1e-4);
}

TEST_F(Masonry, KindOfMasonrySetsTheDensity)
{
    struct Caso {
        int tipoFabr, tipo;
        const char* densidad;
    };
    const Caso casos[] = {{0, 0, "1800"}, {1, 0, "1800"}, {0, 1, "2000"}, {1, 2, "2000"}, {2, 0, "1500"},
                          {3, 3, "1600"}, {4, 1, "1500"}, {5, 5, "2800"}, {6, 5, "2600"}};
    for (const Caso& c : casos) {
        auto f = Carga("frmFabrica");
        Pon(*f, {{"cmbTipo", std::to_string(c.tipo)}, {"cmbTipoFabr", std::to_string(c.tipoFabr)}});
        EXPECT_EQ(Texto(*f, "TxtDensidad"), c.densidad) << c.tipoFabr << "/" << c.tipo;
    }
}

TEST_F(Masonry, InSIOnlyTheReadingOfTheFieldsChanges)
{
    // The fields load rescaled (200 and 100 Kg/cm2 become 20 and 10 N/mm2) and are read as they
    // stand; fk keeps its factor 10 whenever the units are set, the flexural strengths only in
    // the technical system.
    app.decl.Unidades = 2;
    auto f = Carga("frmFabrica");
    EXPECT_EQ(Texto(*f, "TxtQ(0)"), "20");
    EXPECT_EQ(Texto(*f, "TxtQ(1)"), "10");
    EXPECT_EQ(Texto(*f, "TxtQ(3)"), "74.79");
    EXPECT_EQ(Texto(*f, "TxtQ(4)"), "0.30");
    EXPECT_EQ(Texto(*f, "TxtQ(5)"), "0.10");
    EXPECT_EQ(Texto(*f, "TxtQ(6)"), "0.40");
    EXPECT_FALSE(f->At("lbST", 3).Visible());
    EXPECT_TRUE(f->At("lbSI", 3).Visible());
}

TEST_F(Masonry, NegativeStrengthGoesToTheErrorWindow)
{
    auto f = Carga("frmFabrica");
    app.ui.retries = 0;
    EXPECT_ANY_THROW(Pon(*f, {{"TxtQ(1)", "-5"}}));
    ASSERT_FALSE(app.ui.errors.empty());
    EXPECT_EQ(app.ui.errors[0].origin, "TxtQ_Change");
    EXPECT_EQ(app.ui.errors[0].number, 5);
}

TEST_F(Masonry, StateRoundTripsThroughFabricaDat)
{
    {
        auto f = Carga<FrmFabrica>("frmFabrica");
        Pon(*f, {{"cmbTipoFabr", "4"}, {"cmbTipo", "2"}, {"cmbMuro", "1"}, {"cmbMortero", "2"}, {"cmbCatControl", "1"},
                 {"CmbCatEjec", "2"}, {"TxtQ(0)", "150"}, {"TxtQ(1)", "8"}, {"TxtDensidad", "1450"}});
        f->At("CmdSalir").Click();
        EXPECT_TRUE(f->Descargado());
    }
    const std::string escrito = test::ReadDiskText(dir / "Fabrica.dat");
    EXPECT_EQ(escrito.substr(0, escrito.find('\n')), "\"cmbTipoFabr\",4");
    EXPECT_NE(escrito.find("\"TxtDensidad\",\"1450\""), std::string::npos);
    EXPECT_EQ(test::ReadBytes(dir / "Fabrica.dat").find("\n"), test::ReadBytes(dir / "Fabrica.dat").find("\r\n") + 1);

    auto g = Carga<FrmFabrica>("frmFabrica");
    EXPECT_EQ(g->ErrorLectura(), "");
    const Pares esperado = {{"cmbTipoFabr", "4"}, {"cmbTipo", "2"}, {"cmbMuro", "1"}, {"cmbMortero", "2"},
                            {"cmbCatControl", "1"}, {"CmbCatEjec", "2"}};
    for (const auto& [lista, fila] : esperado)
        EXPECT_EQ(std::to_string(g->At(lista).ListIndex()), fila) << lista;
    EXPECT_EQ(Texto(*g, "TxtQ(0)"), "150");
    EXPECT_EQ(Texto(*g, "TxtDensidad"), "1450");
    // 10 x 0.35 x 15^0.65 x 0.8^0.25 = 19.244; gamma M of C with control II: 3.
    EXPECT_EQ(Texto(*g, "TxtQ(3)"), "19.24");
    EXPECT_EQ(Texto(*g, "txtGm"), "3.00");
    EXPECT_EQ(Texto(*g, "TxtQ(5)"), "No");
    // Closing again writes the same file.
    g->At("CmdSalir").Click();
    EXPECT_EQ(test::ReadDiskText(dir / "Fabrica.dat"), escrito);
}

TEST_F(Masonry, UnreadableFabricaDatIsReportedAndLeftAlone)
{
    const std::vector<std::string> malos = {
        "\"cmbTipoFabr\",9\n",                             // a row the list lacks
        "\"cmbTipo\",0\n",                                 // a field out of its place
        "\"cmbTipoFabr\",1\n\"cmbTipo\",\"abc\n",          // an open quote, and the file ends
        "\"cmbTipoFabr\",2\n",                             // the file ends early
    };
    for (const std::string& malo : malos) {
        test::WriteDiskText(dir / "Fabrica.dat", malo);
        const std::string antes = test::ReadBytes(dir / "Fabrica.dat");
        app.ui.boxes.clear();
        auto f = Carga<FrmFabrica>("frmFabrica");
        ASSERT_EQ(app.ui.boxes.size(), 1u) << malo;
        EXPECT_NE(app.ui.boxes[0].prompt.find(dir / "Fabrica.dat"), std::string::npos) << app.ui.boxes[0].prompt;
        EXPECT_EQ(app.ui.boxes[0].title, "Características de la fábrica");
        EXPECT_FALSE(f->ErrorLectura().empty());
        // The defaults show, nothing read half-way.
        EXPECT_EQ(f->At("cmbTipoFabr").ListIndex(), 0) << malo;
        EXPECT_EQ(Texto(*f, "TxtQ(3)"), "74.79");
        // Closing hands back but does not write over the file.
        f->At("CmdSalir").Click();
        EXPECT_EQ(test::ReadBytes(dir / "Fabrica.dat"), antes) << malo;
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Masonry, GeneralDataButtonFillsTheMasonryFields)
{
    {
        auto f = Carga("frmFabrica");
        Pon(*f, {{"cmbTipoFabr", "2"}, {"cmbMuro", "1"}, {"cmbCatControl", "1"}, {"CmbCatEjec", "1"}});
        f->At("CmdSalir").Click();
    }
    DatosGen datos(app.decl);
    datos.Form_Load();
    datos.At("cmdFabr").Click();
    EXPECT_EQ(app.decl.FormActivo, "DatosGen");
    EXPECT_EQ(datos.At("TxResFab").Text(), "56.09");
    EXPECT_EQ(datos.At("TxCoefMin").Text(), "2.50");
    EXPECT_EQ(datos.At("TxtDensFabr").Text(), "1500");
    EXPECT_EQ(datos.At("cmbCatControl").ListIndex(), 1);
    EXPECT_EQ(datos.At("CmbCatEjec").ListIndex(), 1);
    // Where a window system runs, the dialog shows modally over its caller before handing back.
    std::string mostrado;
    app.decl.MuestraDialogo = [&](Form& dialogo) {
        mostrado = dialogo.Name();
        Pon(dialogo, {{"TxtDensidad", "1700"}});
        dialogo.At("CmdSalir").Click();
    };
    datos.At("cmdFabr").Click();
    EXPECT_EQ(mostrado, "frmFabrica");
    EXPECT_EQ(datos.At("TxtDensFabr").Text(), "1700");
    EXPECT_NE(test::ReadDiskText(dir / "Fabrica.dat").find("\"1700\""), std::string::npos);
}

TEST_F(Masonry, EachWallFormTakesWhatTheTableGivesIt)
{
    {
        auto f = Carga("frmFabrica");
        Pon(*f, {{"cmbTipoFabr", "3"}, {"cmbTipo", "1"}, {"cmbMortero", "2"}, {"CmbCatEjec", "2"}});
        f->At("CmdSalir").Click();
    }
    // Light blocks, fb 20, fm 10, lightweight mortar: 10 x 0.5 x 7.00891 x 1.77828 = 62.322;
    // calcium silicate on lightweight mortar: no flexural strengths; category C: 2.7.
    auto muro = Carga<ElementForm>("frmMuros");
    muro->At("cmdDefRes").Click();
    EXPECT_EQ(Texto(*muro, "TxtQ(0)"), "62.32");
    EXPECT_EQ(Texto(*muro, "TxCoefMin"), "2.70");
    EXPECT_EQ(muro->At("CmbCatEjec").ListIndex(), 3);  // " C", after "Idem. gral"
    EXPECT_EQ(Texto(*muro, "TxtDensidad"), "1600");

    auto cerr = Carga<ElementForm>("frmMCerr");
    cerr->At("cmdDefRes").Click();
    EXPECT_EQ(Texto(*cerr, "TxtQ(0)"), "No");
    EXPECT_EQ(Texto(*cerr, "TxtQ(1)"), "No");
    EXPECT_EQ(Texto(*cerr, "TxCoefMin"), "2.70");
    EXPECT_EQ(cerr->At("CmbCatEjec").ListIndex(), 0);

    // The lintel takes the strength and the factor; its density goes to the wall form, which
    // takes it at its next load, and to no lintel.
    auto dintel = Carga<ElementForm>("frmMDint");
    dintel->At("cmdDefRes").Click();
    EXPECT_EQ(Texto(*dintel, "TxtQ(0)"), "62.32");
    EXPECT_EQ(Texto(*dintel, "TxCoefMin"), "2.70");
    EXPECT_EQ(Texto(*dintel, "TxtDensidad"), "1900");
    auto otroMuro = Carga<ElementForm>("frmMuros");
    EXPECT_EQ(Texto(*otroMuro, "TxtDensidad"), "1600");
    auto tercerMuro = Carga<ElementForm>("frmMuros");
    EXPECT_EQ(Texto(*tercerMuro, "TxtDensidad"), "1900");
}

TEST_F(Masonry, WallThicknessWarnsAndKeepsTheValue)
{
    auto f = Carga<ElementForm>("frmMuros");
    struct Caso {
        int cota;
        const char* valor;
        bool aviso;
    };
    const Caso casos[] = {{6, "11.5", true}, {16, "10", true}, {12, "11,5", true}, {9, "11.6", false},
                          {4, "5", false},   {10, "3", false}, {0, "0.1", false}};
    for (const Caso& c : casos) {
        app.ui.boxes.clear();
        f->At("TxtCota", c.cota).SetText(c.valor);
        f->At("TxtCota", c.cota).LostFocus();
        ASSERT_EQ(app.ui.boxes.size(), c.aviso ? 1u : 0u) << c.cota << " = " << c.valor;
        if (c.aviso) {
            EXPECT_EQ(app.ui.boxes[0].prompt,
                      "El espesor indicado es de 11,5 cm o menos.\rCompruebe que el muro puede tener ese espesor.");
            EXPECT_EQ(app.ui.boxes[0].title, "Espesor del muro");
            EXPECT_EQ(app.ui.boxes[0].style, mb::Exclamation);
        }
        EXPECT_EQ(f->At("TxtCota", c.cota).Text(), c.valor);
    }
}

TEST_F(Masonry, WallShowsTheSectionOfItsStretchAndTheLintelItsMaterial)
{
    auto muro = Carga<ElementForm>("frmMuros");
    EXPECT_FALSE(muro->At("LbInadmisible").Visible());
    for (int tramo = 0; tramo < 4; ++tramo) {
        muro->At("OpTramo", tramo).SetOptionValue(true);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(muro->At("PctSeccMuro", i).Visible(), i == tramo) << tramo;
        const auto croquis = muro->CroquisDe(muro->At("PctSeccMuro", tramo));
        ASSERT_TRUE(croquis);
        EXPECT_FALSE(croquis->trazos.empty());
    }

    auto dintel = Carga<ElementForm>("frmMDint");
    dintel->At("UCframe5", 0).SetLeft(240);
    for (int material = 0; material < 4; ++material) {
        dintel->At("CmbDintel").SetListIndex(material);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(dintel->At("UCframe5", i).Visible(), i == material) << material;
        EXPECT_EQ(dintel->At("UCframeFuego").Visible(), material == 3);
    }
    EXPECT_EQ(dintel->At("UCframeFuego").Left(), 240);
}

TEST_F(Masonry, SavingAWallChecksNothingAndSaysSo)
{
    for (const char* nombre : {"frmMuros", "frmMCerr", "frmMDint"}) {
        auto f = Carga<ElementForm>(nombre);
        // Values below every minimum are saved as they stand.
        for (Control* c : f->Members("TxtCota"))
            c->SetText("0");
        f->At("CmdCalcular").Click();
        EXPECT_FALSE(f->UltimoGuardado().empty()) << nombre;
        EXPECT_EQ(app.decl.ResultadoCalculo, 1);
        EXPECT_NE(f->ResumenCalculo().find("to no effect"), std::string::npos) << nombre;
        EXPECT_TRUE(app.ui.boxes.empty()) << nombre;
    }
}

}  // namespace
}  // namespace vardena
