// The general-data form: levels, load steps, use letters, units, and what it stores.

#include <gtest/gtest.h>

#include "building/DatosGen.h"
#include "building/SistUnid.h"
#include "building/Unidades.h"
#include "support/TestSupport.h"
#include "works/DatosFile.h"
#include "base/FileIo.h"

namespace vardena {
namespace {

TEST(FactorDiferido, TimeFunctionByRanges)
{
    struct Row {
        float day;
        float factor;
    };
    const std::vector<Row> rows = {
        {0, 0},     {15, 0},     {30, 0.7f},  {45, 0.87f}, {60, 0.87f}, {90, 1.0f},  {180, 1.2f},
        {360, 1.4f}, {1800, 2.0f}, {-30, -1.89f}, {6000, -6.39f},
    };
    for (const auto& r : rows)
        EXPECT_NEAR(FactorDiferido(r.day), r.factor, 1e-6) << "day " << r.day;
}

class GeneralDataForm : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        app.decl.Mensajes[1] = "Planta";
        app.decl.Mensajes[2] = "Planta baja";
        app.decl.Mensajes[3] = "Sótano";
    }
    std::unique_ptr<DatosGen> Load()
    {
        auto f = std::make_unique<DatosGen>(app.decl);
        f->Form_Load();
        return f;
    }
    test::TestApp app;
    test::ScratchDir dir;
};

TEST_F(GeneralDataForm, OneFloorShowsNoAssignButtons)
{
    auto f = Load();
    EXPECT_FALSE(f->Layout().asignaPlantas);
    EXPECT_FALSE(f->Layout().asignaSotanos);
    f->At("TxtPProP", 1).SetText("999");
    f->AsignaC_Click(1);
    f->AsignaC_Click(0);
    EXPECT_EQ(f->At("TxtPProP", 1).Text(), "999");
    EXPECT_EQ(f->Layout().pitch, 510);
    EXPECT_EQ(f->Layout().rows.size(), 2u);
}

TEST_F(GeneralDataForm, SixteenFloorsAndFourBasements)
{
    auto f = Load();
    f->At("TxtPProP", 1).SetText("321");
    f->At("cmbGeom", 0).SetListIndex(15);
    f->At("cmbGeom", 1).SetListIndex(4);
    const SeccionLayout& s = f->Layout();
    EXPECT_EQ(s.pitch, 310);
    EXPECT_EQ(s.rows.size(), 21u);
    EXPECT_EQ(f->Members("lblPlanta").size(), 21u);
    EXPECT_EQ(f->Members("TxtPProP").size(), 17u);
    EXPECT_EQ(f->Members("TxtPProS").size(), 4u);
    EXPECT_EQ(f->Members("TxCot").size(), 20u);
    EXPECT_EQ(f->At("TxtPProP", 16).Text(), "321") << "a created floor inherits the row above";
    EXPECT_TRUE(s.asignaPlantas);
    EXPECT_TRUE(s.asignaSotanos);
    EXPECT_EQ(s.rows.back().top, DatosGen::kPictureHeight - 150);
    EXPECT_EQ(s.rows[0].top, DatosGen::kPictureHeight - 20 * 310 - 150);

    struct Pitch {
        int floors, basements, pitch;
    };
    for (const Pitch& p : std::vector<Pitch>{{6, 0, 510}, {5, 2, 440}, {11, 0, 440}, {10, 2, 360}, {15, 0, 360}, {12, 4, 310}}) {
        f->At("cmbGeom", 0).SetListIndex(p.floors - 1);
        f->At("cmbGeom", 1).SetListIndex(p.basements);
        EXPECT_EQ(f->Layout().pitch, p.pitch) << p.floors << "+" << p.basements;
    }
}

TEST_F(GeneralDataForm, AssignCopiesTheFirstRowToTheOthers)
{
    app.decl.NPlantasSobre = 3;
    app.decl.NPlantasBajo = 2;
    auto f = Load();
    f->At("TxtConcP", 1).SetText("155");
    f->At("TxtCUsoP", 1).SetText("C");
    f->At("TxCot", 0).SetText("3.40");
    f->AsignaC_Click(1);
    for (int i = 2; i <= 3; ++i) {
        EXPECT_EQ(f->At("TxtConcP", i).Text(), "155");
        EXPECT_EQ(f->At("TxtCUsoP", i).Text(), "C");
        EXPECT_EQ(f->At("TxCot", i - 1).Text(), "3.40");
    }
    f->At("TxtSobrS", 1).SetText("500");
    f->AsignaC_Click(0);
    EXPECT_EQ(f->At("TxtSobrS", 2).Text(), "500");
}

TEST_F(GeneralDataForm, UseLetterKey)
{
    auto f = Load();
    Control& use = f->At("TxtCUsoP", 1);
    struct Row {
        char key;
        const char* stored;
    };
    for (const Row& r : std::vector<Row>{{'b', "B"}, {'h', "H"}, {'z', "A"}, {'7', "A"}, {'G', "G"}}) {
        EXPECT_EQ(use.KeyPress(r.key), 0);
        EXPECT_EQ(use.Text(), r.stored) << r.key;
    }
}

TEST_F(GeneralDataForm, TotalOfTheEnclosureLayers)
{
    auto f = Load();
    f->At("TextValor", 0).SetText("25");
    EXPECT_EQ(f->At("TextTotal").Text(), "310");
}

TEST_F(GeneralDataForm, PanelsOfBothSystemsStoreTheSameValues)
{
    app.decl.GenPProP[0] = 0.25f;
    app.decl.GenTens = 25;
    app.decl.GenResFab = 400;
    std::vector<float> stored;
    for (int16_t units : {1, 2}) {
        app.decl.Unidades = units;
        auto f = Load();
        if (units == 2) {
            EXPECT_EQ(f->At("TxtPProP", 0).Text(), "2.5") << "250 kg/m2 shows as 2.5 kN/m2";
            EXPECT_EQ(f->At("TxTens").Text(), "0.25");
            EXPECT_EQ(f->At("TxResFab").Text(), "4");
            EXPECT_FALSE(f->At("lbST", 0).Visible());
            EXPECT_TRUE(f->At("lbSI", 0).Visible());
        } else {
            EXPECT_EQ(f->At("TxtPProP", 0).Text(), "250");
            EXPECT_EQ(f->At("TxTens").Text(), "2.50");
        }
        f->pasaPanMat();
        stored.push_back(app.decl.GenPProP[0]);
        EXPECT_FLOAT_EQ(app.decl.GenTens, 25) << "units " << units;
        EXPECT_FLOAT_EQ(app.decl.GenResFab, 400) << "units " << units;
    }
    EXPECT_FLOAT_EQ(stored[0], 0.25f);
    EXPECT_FLOAT_EQ(stored[1], 0.25f);
}

TEST_F(GeneralDataForm, AcceptStoresVersion35AndKeepsTheWorksValues)
{
    app.decl.NPlantasSobre = 2;
    app.decl.NPlantasBajo = 1;
    app.decl.GenSobrP[2] = 0.3f;
    app.decl.GenCUsoS[1] = "E";
    app.decl.GenCot[2] = 2.8f;
    app.decl.GenHorm = 4;
    app.decl.GenAcP2 = 3;
    app.decl.GenFactor = 0.05f;
    app.decl.GenDia[3] = 120;
    auto f = Load();
    f->At("Aceptar").Click();
    test::TestApp back;
    back.decl.CarpetaObra = dir.path();
    std::string text;
    ASSERT_FALSE(DatosFile(back.decl, "DATOS.~CE", "L", text).damaged);
    const Declaraciones& d = back.decl;
    EXPECT_FLOAT_EQ(d.VersionObra, 3.5f);
    EXPECT_EQ(d.NPlantasSobre, 2);
    EXPECT_FLOAT_EQ(d.GenSobrP[2], 0.3f);
    EXPECT_EQ(d.GenCUsoS[1], "E");
    EXPECT_FLOAT_EQ(d.GenCot[2], 2.8f);
    EXPECT_EQ(d.GenHorm, 4);
    EXPECT_EQ(d.GenAcP2, 3);
    EXPECT_FLOAT_EQ(d.GenFactor, 0.05f);
    EXPECT_FLOAT_EQ(d.GenDia[9], FactorDiferido(120));
}

TEST_F(GeneralDataForm, NewWorkCannotBeClosedByTheWindow)
{
    app.decl.Mensajes[134] = "Acepte los datos generales de la obra nueva";
    app.decl.ObraNueva = kTrue;
    auto f = Load();
    EXPECT_FALSE(f->At("Cancelar").Enabled());
    EXPECT_FALSE(f->QueryUnload());
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].style, mb::Exclamation);
    f->Aceptar_Click();
    EXPECT_EQ(app.decl.ObraNueva, kFalse);
    EXPECT_TRUE(f->QueryUnload());
}

TEST_F(GeneralDataForm, UseCategoriesAreFixedTexts)
{
    auto f = Load();
    f->cmdCatUso();
    EXPECT_EQ(app.decl.Msg(1038), "  A.- Zonas residenciales.");
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_NE(app.ui.boxes[0].prompt.find("CATEGORÍAS DE USO- C.T.E.\r\n  A.-"), std::string::npos);
}

TEST_F(GeneralDataForm, MaterialGroupsSwitchTheirControls)
{
    auto f = Load();
    f->At("ChMadera").SetCheckValue(1);
    EXPECT_TRUE(f->At("CmbResis").Enabled());
    f->At("ChMadera").SetCheckValue(0);
    EXPECT_FALSE(f->At("CmbServi").Enabled());
    EXPECT_EQ(f->At("Label15", 4).RawGet("ForeColor"), std::to_string(0xC08070));
}

// Each material group follows its check box from the moment the form is loaded, whatever the
// check box held before.
TEST_F(GeneralDataForm, MaterialGroupsFollowTheStoredCheckBoxesOnLoad)
{
    struct Group {
        int16_t Declaraciones::*flag;
        int label;
        std::vector<const char*> controls;
    };
    const std::vector<Group> groups = {
        {&Declaraciones::GenChHormigon, 5, {"CmbHorm", "CmbAcero", "cmbControl"}},
        {&Declaraciones::GenChAcero, 0, {"CmbAcP"}},
        {&Declaraciones::GenChMadera, 4, {"CmbResis", "CmbServi"}},
        {&Declaraciones::GenChFabrica, 1, {"TxResFab", "TxCoefMin", "TxtDensFabr", "cmbCatControl", "CmbCatEjec"}},
        {&Declaraciones::GenChTerreno, 2, {"TxTens", "lbTens"}},
    };
    // All off, all on, and each group alone off.
    std::vector<std::vector<bool>> cases = {std::vector<bool>(groups.size(), false), std::vector<bool>(groups.size(), true)};
    for (size_t g = 0; g < groups.size(); ++g) {
        cases.emplace_back(groups.size(), true);
        cases.back()[g] = false;
    }
    for (const auto& on : cases) {
        test::TestApp stored;
        stored.decl.CarpetaObra = dir.path();
        for (size_t g = 0; g < groups.size(); ++g)
            stored.decl.*groups[g].flag = on[g] ? kTrue : kFalse;
        std::string text;
        DatosFile(stored.decl, "DATOS.~CE", "G", text);
        ASSERT_FALSE(DatosFile(app.decl, "DATOS.~CE", "L", text).damaged);
        auto f = Load();
        for (size_t g = 0; g < groups.size(); ++g) {
            for (const char* name : groups[g].controls)
                EXPECT_EQ(f->At(name).Enabled(), on[g]) << name;
            EXPECT_EQ(f->At("Label15", groups[g].label).RawGet("ForeColor"), std::to_string(on[g] ? 0x70050B : 0xC08070))
                << groups[g].label;
        }
    }
}

// A stored list index that the form's list has no row for goes back to the file unchanged.
TEST_F(GeneralDataForm, ListIndicesOutsideTheListsAreWrittenBackAsStored)
{
    struct Row {
        int16_t Declaraciones::*index;
        int16_t value;
    };
    const std::vector<Row> rows = {
        {&Declaraciones::GenHorm, 40},     {&Declaraciones::GenAcero, 2},   {&Declaraciones::GenControl, 3},
        {&Declaraciones::GenAcP, 6},       {&Declaraciones::GenResis, 19},  {&Declaraciones::GenServi, -2},
        {&Declaraciones::GenCatControl, 9}, {&Declaraciones::GenCatEjec, 100},
    };
    test::TestApp stored;
    stored.decl.CarpetaObra = dir.path();
    for (const Row& r : rows)
        stored.decl.*r.index = r.value;
    test::WriteDiskText(dir / "DATOS.~CE", DatosText(stored.decl, 3.01));
    std::string text;
    DatosFile(app.decl, "DATOS.~CE", "L", text);
    auto f = Load();
    EXPECT_EQ(f->At("CmbHorm").ListIndex(), -1);
    f->Aceptar_Click();

    test::TestApp back;
    back.decl.CarpetaObra = dir.path();
    DatosFile(back.decl, "DATOS.~CE", "L", text);
    EXPECT_FLOAT_EQ(back.decl.VersionObra, 3.5f);
    for (const Row& r : rows)
        EXPECT_EQ(back.decl.*r.index, r.value);

    // A row the user picks replaces the stored index.
    auto g = Load();
    g->At("CmbHorm").SetListIndex(2);
    g->Aceptar_Click();
    DatosFile(back.decl, "DATOS.~CE", "L", text);
    EXPECT_EQ(back.decl.GenHorm, 2);
    EXPECT_EQ(back.decl.GenCatEjec, 100);
}

// A failed write of DATOS.~CE is told once; the form writes nothing further and stays loaded.
TEST_F(GeneralDataForm, AFailedWriteLeavesTheFormLoadedAndWritesNoReport)
{
    app.decl.ObraNueva = kTrue;
    auto f = Load();
    const FileSystemSeam old = SetFileSystemSeam({[](const std::string&, std::string_view) { return false; }, {}});
    EXPECT_NO_THROW(f->Aceptar_Click());
    SetFileSystemSeam(old);
    EXPECT_FALSE(app.decl.UltimoErrorDatos.empty());
    EXPECT_FALSE(FindNoCase(dir.path(), "DATOS.~CE"));
    EXPECT_FALSE(FindNoCase(dir.path(), "Datos.lCE"));
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);
    EXPECT_EQ(app.decl.ObraNueva, kTrue) << "the form was not unloaded";

    f->Aceptar_Click();
    EXPECT_TRUE(app.decl.UltimoErrorDatos.empty());
    EXPECT_TRUE(FindNoCase(dir.path(), "DATOS.~CE"));
    EXPECT_EQ(app.decl.ObraNueva, kFalse);
}

// Unit conversion of the load fields of an element form.
TEST(Units, LoadFieldsAreRescaledOnlyToSI)
{
    test::TestApp app;
    Form f(app.decl, "frmVigHorm");
    f.Add(Kind::TextBox, "TxtQ", 6).SetText("4");
    f.Add(Kind::Label, "LbQSI", 6).SetCaption("10");
    f.Add(Kind::TextBox, "TxtQ", 1).SetText("");
    f.Add(Kind::Label, "LbQSI", 1).SetCaption(".01");
    f.Add(Kind::Label, "lbST", 0);
    f.Add(Kind::Label, "lbSI", 0);
    app.decl.Unidades = 2;
    CambiaUnidades(f, 2);
    EXPECT_EQ(f.At("TxtQ", 6).Text(), "40");
    EXPECT_EQ(f.At("TxtQ", 1).Text(), "0") << "an empty field is written back as 0";
    EXPECT_DOUBLE_EQ(LeeQ(f, 6), 4);
    PoneQ(f, 6, 2.5, 1, 2);
    EXPECT_EQ(f.At("TxtQ", 6).Text(), "25.00");
    EXPECT_FALSE(f.At("lbST", 0).Visible());
    EXPECT_TRUE(f.At("lbSI", 0).Visible());

    Form none(app.decl, "frmSinCargas");
    EXPECT_NO_THROW(CambiaUnidades(none, 2));
    Form tech(app.decl, "frmVigHorm");
    tech.Add(Kind::TextBox, "TxtQ", 0).SetText("4");
    app.decl.Unidades = 1;
    CambiaUnidades(tech, 1);
    EXPECT_EQ(tech.At("TxtQ", 0).Text(), "4");
    EXPECT_DOUBLE_EQ(LeeQ(tech, 0), 4);
}

}  // namespace
}  // namespace vardena

namespace vardena {
namespace {

// The information dialog of the unit systems: its fixed table and the system shown.
TEST(SistUnidForm, FixedTableAndTheSystemOfTheWork)
{
    const auto& rows = Equivalencias();
    ASSERT_EQ(rows.size(), 7u);
    EXPECT_STREQ(rows[0][0], "Fuerzas");
    EXPECT_STREQ(rows[0][3], "9,81");
    EXPECT_STREQ(rows[0][4], "0,102");
    // The last row keeps "0,981", though a tenth of it would be the true ratio.
    EXPECT_STREQ(rows[6][1], "kp/cm2");
    EXPECT_STREQ(rows[6][3], "0,981");
    EXPECT_STREQ(rows[6][4], "10,194");
    for (int16_t units : {1, 2}) {
        test::TestApp app;
        app.decl.Unidades = units;
        SistUnid form(app.decl);
        form.Form_Load();
        EXPECT_EQ(form.At("lbST", 0).Visible(), units == 1);
        EXPECT_EQ(form.At("lbSI", 1).Visible(), units != 1);
        EXPECT_EQ(form.Caption(), "Unidades");
        form.At("Aceptar").Click();
        EXPECT_TRUE(form.Descargado());
    }
}

}  // namespace
}  // namespace vardena
