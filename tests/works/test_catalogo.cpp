// The element catalogue, the contents list of a work, the settings and the work's location.

#include <gtest/gtest.h>

#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"

namespace vardena {
namespace {

TEST(Catalogue, RowsCodesAndForms)
{
    test::TestApp app;
    const auto& rows = Catalogo();
    ASSERT_EQ(rows.size(), 36u);
    struct Row {
        int row;
        const char* code;
        const char* form;
        int label;
    };
    const std::vector<Row> expected = {
        {0, "CE", "MENU", 145},           {1, "CE", "DATOSGEN", 145},     {2, "CK", "FRMACCIO", 145},
        {12, "HY", "FRMVIGPARED", 188},   {16, "LS", "FRMBASMET", 956},    {27, "ZC", "FRMZAPCORR", 198},
        {33, "DP", "FRMDATOSPROY", 898},  {34, "CS", "FRMSUELO", 1188},    {35, "MH", "FRMMCERR", 898},
    };
    for (const auto& e : expected) {
        EXPECT_STREQ(rows[e.row].code, e.code);
        EXPECT_STREQ(rows[e.row].form, e.form);
        EXPECT_EQ(rows[e.row].label, e.label);
    }
    EXPECT_EQ(CodigoDeForm(app.decl, "frmZapCorr"), "ZC");
    EXPECT_EQ(CodigoDeForm(app.decl, "DatosGen"), "CE");
    EXPECT_EQ(CodigoDeForm(app.decl, "frmMCerr"), "MH");
    EXPECT_EQ(FilaDeMenu("ZACR"), 27);
    EXPECT_EQ(FilaDeMenu("NADA"), -1);
}

// The forms with a free-text result have no row but codes of their own, which the contents list
// and the menus reach as told here; any other name outside the catalogue halts.
TEST(Catalogue, FreeTextFormsKeepCodesOfTheirOwn)
{
    test::TestApp app;
    app.decl.Mensajes[1531] = "Losas de cimentación";
    struct Caso {
        const char* form;
        const char* codigo;
        const char* menu;
    };
    for (const Caso& c : {Caso{"frmEnBlanco", "HB", "HBLA"}, Caso{"frmLosCime", "ZL", "ZLOS"}, Caso{"frmMArco", "MA", "MARC"},
                          Caso{"frmMArma", "MR", "MARM"}, Caso{"frmSolArma", "ZS", "ZSOL"}, Caso{"frmUniAto", "LT", "AUAT"},
                          Caso{"frmUniSol", "LD", "AUSO"}, Caso{"frmVigFlot", "ZF", "ZVFL"}}) {
        EXPECT_EQ(CodigoDeForm(app.decl, c.form), c.codigo) << c.form;
        EXPECT_EQ(CodigoDeRegistro(c.form), c.codigo) << c.form;
        EXPECT_EQ(CodigoEnCatalogo(c.form), "") << c.form;
        EXPECT_EQ(MenuDeForm(c.form), c.menu) << c.form;
        EXPECT_TRUE(SameNameNoCase(FormaDeMenu(c.menu), c.form)) << c.menu;
        EXPECT_EQ(FilaDeMenu(c.menu), -1) << c.menu;
    }
    EXPECT_EQ(RotuloDeMenu(app.decl, "ZLOS"), "Losas de cimentación");
    EXPECT_EQ(MenuDeForm("frmZapCorr"), "ZACR");
    EXPECT_EQ(FormaDeMenu("ZACR"), "FRMZAPCORR");
    EXPECT_EQ(FormaDeMenu(""), "");
    EXPECT_EQ(CodigoDeRegistro("frmHormigon"), "");
    EXPECT_TRUE(app.ui.boxes.empty());
}

TEST(Catalogue, FormWithoutARowHalts)
{
    test::TestApp app;
    app.decl.Mensajes[180] = "Formulario fuera del catálogo";
    EXPECT_THROW(CodigoDeForm(app.decl, "frmNoHay"), ProgramHalt);
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);
}

class Contents : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.Mensajes[145] = "Datos generales";
        app.decl.Mensajes[178] = "Descripción";
        app.decl.Mensajes[179] = "Datos";
        app.decl.Mensajes[198] = "Zapatas corridas";
        app.decl.Mensajes[181] = "Vigas de hormigón";
        app.decl.Mensajes[898] = "Datos del proyecto";
    }
    test::TestApp app;
    test::ScratchDir dir;
};

TEST_F(Contents, EmptyFolderYieldsAnEmptyList) { EXPECT_TRUE(ListaElementos(app.decl, dir.path()).empty()); }

TEST_F(Contents, DescriptionAndGeneralDataAlone)
{
    test::WriteBytes(dir / "DESCR.~CE", "x");
    test::WriteBytes(dir / "DATOS.~CE", "x");
    const std::vector<std::string> expected = {"Datos generales", " · Datos", " · Descripción"};
    EXPECT_EQ(ListaElementos(app.decl, dir.path()), expected);
}

TEST_F(Contents, ElementsUnderTheirLabelsAndUnknownCodesLeftOut)
{
    for (const char* f : {"DATOS.~CE", "Zapata 2.~ZC", "zapata 1.~zc", "Zapata 1.lZC", "Viga.~HJ", "X.~QQ",
                          "Proyecto.~DP", "Muro.~MH"})
        test::WriteBytes(dir / f, "x");
    const std::vector<std::string> expected = {
        "Datos generales", " · Datos", "Vigas de hormigón", " · Viga", "Zapatas corridas", " · zapata 1",
        " · Zapata 2",     "Datos del proyecto", " · Proyecto", "Datos del proyecto", " · Muro"};
    EXPECT_EQ(ListaElementos(app.decl, dir.path()), expected);
}

TEST(Settings, DefaultsOfTheKeys)
{
    test::TestApp app;
    EXPECT_EQ(Setting(app.decl, "Preferencias", "Lenguaje"), "Español");
    EXPECT_EQ(Setting(app.decl, "Preferencias", "Aviso"), "Si");
    EXPECT_EQ(Setting(app.decl, "Preferencias", "CapturaPantallasFormato"), "BMP");
    EXPECT_EQ(Setting(app.decl, "Obra", "Directorio"), "");
    SaveSetting(app.decl, "Preferencias", "Aviso", "No");
    EXPECT_EQ(Setting(app.decl, "Preferencias", "Aviso"), "No");
}

TEST(Settings, IniFileKeepsSectionsAndReplacesValues)
{
    test::ScratchDir dir;
    IniSettings ini(dir / "cfg/Vardena 3.ini");
    EXPECT_EQ(ini.GetSetting("Vardena 3", "Obra", "Nombre", "def"), "def");
    ini.SaveSetting("Vardena 3", "Obra", "Nombre", "Casa López");
    ini.SaveSetting("Vardena 3", "Preferencias", "Unidades", "2");
    ini.SaveSetting("Vardena 3", "Obra", "Directorio", "/obras");
    ini.SaveSetting("Vardena 3", "Obra", "Nombre", "Nave");
    EXPECT_EQ(ini.GetSetting("Vardena 3", "Obra", "Nombre"), "Nave");
    EXPECT_EQ(ini.GetSetting("Vardena 3", "Obra", "Directorio"), "/obras");
    EXPECT_EQ(ini.GetSetting("Vardena 3", "Preferencias", "Unidades"), "2");
    EXPECT_EQ(test::ReadBytes(dir / "cfg/Vardena 3.ini"),
              "[Vardena 3/Obra]\r\nNombre=Nave\r\nDirectorio=/obras\r\n[Vardena 3/Preferencias]\r\nUnidades=2\r\n");
}

TEST(Location, NombreDatForgetsVanishedFolders)
{
    test::TestApp app;
    test::ScratchDir dir;
    app.decl.DirPrograma = dir.path();
    app.decl.Mensajes[1292] = "Obras";
    std::filesystem::create_directories(dir / "obras/casa");
    SaveSetting(app.decl, "Obra", "Directorio", dir / "obras");
    SaveSetting(app.decl, "Obra", "Nombre", "casa");
    SaveSetting(app.decl, "Preferencias", "Unidades", "2");
    NombreDat(app.decl, "nombre.dat", "L");
    EXPECT_EQ(app.decl.DirObras, dir / "obras");
    EXPECT_EQ(app.decl.CarpetaObra, dir / "obras/casa");
    EXPECT_EQ(app.decl.UnidadesPref, 2);

    SaveSetting(app.decl, "Obra", "Directorio", dir / "no-existe");
    SaveSetting(app.decl, "Obra", "Nombre", "casa");
    NombreDat(app.decl, "NOMBRE.DAT", "L");
    EXPECT_EQ(app.decl.DirObras, dir.path()) << "no works folder of its own: the program's folder";
    EXPECT_EQ(app.decl.NombreObra, "");
    EXPECT_EQ(Setting(app.decl, "Obra", "Directorio"), dir.path());

    std::filesystem::create_directories(dir / "Obras Vardena 3");
    SaveSetting(app.decl, "Obra", "Directorio", "");
    NombreDat(app.decl, "NOMBRE.DAT", "L");
    EXPECT_EQ(app.decl.DirObras, dir / "Obras Vardena 3");

    EXPECT_THROW(NombreDat(app.decl, "OTRO.DAT", "L"), ProgramHalt);
    EXPECT_THROW(NombreDat(app.decl, "NOMBRE.DAT", "X"), ProgramHalt);
}

TEST(Works, SubFoldersWithADescription)
{
    test::ScratchDir dir;
    for (const char* w : {"b", "A", "sin"})
        std::filesystem::create_directories(dir / w);
    test::WriteBytes(dir / "b/DESCR.~CE", "x");
    test::WriteBytes(dir / "A/descr.~ce", "x");
    test::WriteBytes(dir / "suelto.~CE", "x");
    const std::vector<std::string> expected = {"A", "b"};
    EXPECT_EQ(ListaObras(dir.path()), expected);
}

TEST(AtomicWrite, AFailedWriteOrRenameLeavesTheOldFile)
{
    test::ScratchDir dir;
    const std::string path = dir / "Zapata.~ZC";
    test::WriteBytes(path, "antiguo");
    for (int failing = 0; failing < 2; ++failing) {
        FileSystemSeam seam;
        if (failing == 0)
            seam.write = [](const std::string&, std::string_view) { return false; };
        else
            seam.rename = [](const std::string&, const std::string&) { return false; };
        FileSystemSeam old = SetFileSystemSeam(seam);
        EXPECT_THROW(WriteFileAtomic(path, "nuevo"), FileError);
        SetFileSystemSeam(old);
        EXPECT_EQ(test::ReadBytes(path), "antiguo");
        size_t files = 0;
        for (auto& e : std::filesystem::directory_iterator(dir.path())) {
            (void)e;
            ++files;
        }
        EXPECT_EQ(files, 1u) << "no temporary file is left behind";
    }
    WriteFileAtomic(path, "nuevo");
    EXPECT_EQ(test::ReadBytes(path), "nuevo");
}

}  // namespace
}  // namespace vardena
