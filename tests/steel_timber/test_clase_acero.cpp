// The section class table (frmClaseAcero): the limits of the web by steel, the class of each
// size of a family, the table as the dialog lays it out, and its failures. The figures are
// worked out by hand from
//   e = sqrt(24000 / fy); bending limits 72 e, 83 e, 124 e; compression 33 e, 38 e, 42 e;
//   s = (depth - web) / flange, all in mm;
// with the section figures of the published tables (IPE: EN 10365 / DIN 1025-5, HEB: DIN 1025-2).

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "application/Aplicacion.h"
#include "frame/CatalogoPerfiles.h"
#include "frame/Formularios.h"
#include "steel_timber/ClaseAcero.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using test::TestApp;

class SectionClass : public ::testing::Test {
protected:
    void SetUp() override { CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt"); }
    std::unique_ptr<FrmClaseAcero> Carga()
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, "frmClaseAcero");
        auto* c = dynamic_cast<FrmClaseAcero*>(f.get());
        EXPECT_NE(c, nullptr);
        f.release();
        return std::unique_ptr<FrmClaseAcero>(c);
    }
    // The table's rows by their first cell ("IPE 300"), each split at its tabs.
    static std::map<std::string, std::vector<std::string>> Filas(const Form& f)
    {
        std::map<std::string, std::vector<std::string>> out;
        std::istringstream in(f.At("RichTextBox1").Text());
        std::string linea;
        int n = 0;
        while (std::getline(in, linea)) {
            if (++n <= 4)
                continue;  // the heading
            if (!linea.empty() && linea.back() == '\r')
                linea.pop_back();
            std::vector<std::string> celdas;
            size_t desde = 0;
            for (size_t tab; (tab = linea.find('\t', desde)) != std::string::npos; desde = tab + 1)
                celdas.push_back(linea.substr(desde, tab - desde));
            celdas.push_back(linea.substr(desde));
            out[celdas[0]] = celdas;
        }
        return out;
    }
    TestApp app;
};

TEST(SectionClassLimits, ScaleWithTheSteelAndStandAsSingles)
{
    struct Caso {
        const char* acero;
        float fy;
        std::array<double, 3> flexion, compresion;
    };
    // S 235 and A37 (24000): e = 1. S 355 and A52 (36000): e = sqrt(2/3) = 0.8164966.
    // S 450 (45500): e = sqrt(24000/45500) = 0.7262730. S 275 (28000): e = 0.9258201.
    const Caso casos[] = {
        {"S 235", 24000, {72, 83, 124}, {33, 38, 42}},
        {"S 355", 36000, {58.787754, 67.769216, 101.245577}, {26.944387, 31.026870, 34.292856}},
        {"S 275", 28000, {66.659045, 76.843070, 114.801694}, {30.552065, 35.181162, 38.884444}},
        {"S 450", 45500, {52.291656, 60.280659, 90.057852}, {23.967009, 27.598374, 30.503466}},
    };
    for (const Caso& c : casos) {
        const LimitesClase l = LimitesDeClase(c.fy);
        for (size_t k = 0; k < 3; ++k) {
            EXPECT_NEAR(l.flexion[k], c.flexion[k], 1e-4) << c.acero << " bending " << k;
            EXPECT_NEAR(l.compresion[k], c.compresion[k], 1e-4) << c.acero << " compression " << k;
            // Each limit is the Single of its product.
            EXPECT_EQ(l.flexion[k], static_cast<float>(l.flexion[k]));
        }
    }
    // The figures the dialog's limits are known by, to two decimals.
    const LimitesClase s355 = LimitesDeClase(FyAcero(5));
    EXPECT_EQ(Formato00(s355.flexion[0]), "58.79");
    EXPECT_EQ(Formato00(s355.flexion[1]), "67.77");
    EXPECT_EQ(Formato00(s355.flexion[2]), "101.25");
    EXPECT_EQ(Formato00(s355.compresion[0]), "26.94");
    EXPECT_EQ(Formato00(s355.compresion[1]), "31.03");
    EXPECT_EQ(Formato00(s355.compresion[2]), "34.29");
}

TEST(SectionClassLimits, SlendernessOnALimitMovesToTheNextClass)
{
    const LimitesClase l = LimitesDeClase(24000);
    struct Caso {
        double s;
        const char* flexion;
        const char* compresion;
    };
    const Caso casos[] = {
        {0, "Clase 1", "Clase 1"},
        {32.999, "Clase 1", "Clase 1"},
        {33, "Clase 1", "Clase 2"},
        {38, "Clase 1", "Clase 3"},
        {41.999, "Clase 1", "Clase 3"},
        {42, "Clase 1", "Clase  4"},
        {71.999, "Clase 1", "Clase  4"},
        {72, "Clase 2", "Clase  4"},
        {83, "Clase 3", "Clase  4"},
        {123.999, "Clase 3", "Clase  4"},
        {124, "Clase  4", "Clase  4"},
    };
    for (const Caso& c : casos) {
        EXPECT_EQ(TextoClase(c.s, l.flexion), c.flexion) << c.s;
        EXPECT_EQ(TextoClase(c.s, l.compresion), c.compresion) << c.s;
    }
}

TEST(SectionClassLimits, OnlyTheSixRolledFamiliesHaveATable)
{
    const char* familias[] = {"UPN", "IPN", "IPE", "HEA", "HEB", "HEM"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(FamiliaDeClase(familias[i]), i);
    for (const char* otra : {"otro", "xxx", "ipe", "IPE ", ""})
        EXPECT_EQ(FamiliaDeClase(otra), -1) << otra;
}

TEST_F(SectionClass, SizeListsOfEachFamilyComeFromTheCatalogue)
{
    auto f = Carga();
    EXPECT_EQ(f->Caption(), " Definición de la clase de acero");
    const size_t tamanos[] = {16, 21, 18, 24, 24, 24};
    for (int i = 0; i < 6; ++i) {
        const Control& lista = f->At("CmbTam", i);
        ASSERT_EQ(static_cast<size_t>(lista.ListCount()), tamanos[i]) << i;
        EXPECT_FALSE(lista.Visible());
        for (int r = 0; r < lista.ListCount(); ++r)
            EXPECT_NE(BuscaPerfil(NombreFamilia(i), std::stoi(lista.List(r))), nullptr) << i << " " << lista.List(r);
    }
    EXPECT_EQ(f->At("CmbTam", 2).List(9), "270");
    EXPECT_EQ(f->At("CmbTam", 0).List(13), "350");
    EXPECT_EQ(f->At("CmbPerfil").Items(), (std::vector<std::string>{"UPN", "IPN", "IPE", "HEA", "HEB", "HEM"}));
    EXPECT_EQ(f->At("CmbAcero").ListCount(), 8);
    // The selector starts on IPN 80; the load makes no table yet.
    EXPECT_EQ(f->At("UCPerfil1").Get("Perfil"), "IPN");
    EXPECT_EQ(f->At("CmbPerfil").ListIndex(), 1);
    EXPECT_EQ(f->At("RichTextBox1").Text(), "");
}

TEST_F(SectionClass, TableLaysOutItsHeadingAndOneRowPerSize)
{
    auto f = Carga();
    f->At("CmbAcero").SetListIndex(4);  // S 235
    f->At("CmbPerfil").SetListIndex(2); // IPE
    const std::string t = f->At("RichTextBox1").Text();
    const std::string cabecera = "Perfil\tCanto (mm) \tAncho (mm) \te.alma (mm) \te.ala (mm) \tClase\tClase\r\n"
                                 "\t\t\t\t\t(flexión)\t(compresión)\r\n" +
                                 std::string(112, '-') + "\r\n      \r\n";
    ASSERT_EQ(t.substr(0, cabecera.size()), cabecera);
    // IPE 80 first, IPE 600 last, no line end after the last row.
    EXPECT_EQ(t.substr(cabecera.size(), t.find("\r\n", cabecera.size()) - cabecera.size()),
              "IPE 80\t80\t46\t3.8\t5.2\tClase 1\tClase 1");
    EXPECT_EQ(t.substr(t.rfind("\r\n") + 2), "IPE 600\t600\t220\t12.0\t19.0\tClase 1\tClase 1");
    EXPECT_EQ(Filas(*f).size(), 18u);
    EXPECT_EQ(f->At("LbAcero").Caption(), "S 235");
    // The selector shows the last size read.
    EXPECT_EQ(f->At("UCPerfil1").Get("Tamano"), "600");
    EXPECT_TRUE(app.ui.boxes.empty());
}

// One size: the family, steel row of CmbAcero, the published figures (depth, width, web,
// flange in mm) and the classes in bending and in compression.
struct Fila {
    int familia;
    int acero;
    const char* perfil;
    std::vector<std::string> esperado;
};

TEST_F(SectionClass, ClassesOfIpeAndHebSizesForS235AndS355)
{
    // s = (h - tw) / tf:
    //   IPE 300 (300, 150, 7.1, 10.7): 292.9 / 10.7 = 27.374 -> S 235 class 1; S 355 compression
    //     26.94 <= s < 31.03, class 2.
    //   IPE 270 (270, 135, 6.6, 10.2): 263.4 / 10.2 = 25.824 -> class 1 in both steels.
    //   IPE 550 (550, 210, 11.1, 17.2): 538.9 / 17.2 = 31.331 -> S 355 compression class 3.
    //   IPE 600 (600, 220, 12, 19): 588 / 19 = 30.947 -> S 235 class 1; S 355 class 2 (< 31.03).
    //   HEB 300 (300, 300, 11, 19): 289 / 19 = 15.211 -> class 1.
    //   HEB 1000 (1000, 300, 19, 36): 981 / 36 = 27.25 -> S 355 compression class 2.
    //   HEB 100 (100, 100, 6, 10): 94 / 10 = 9.4 -> class 1.
    // Bending never passes class 1 in these families (s < 58.79).
    const Fila filas[] = {
        {2, 4, "IPE 300", {"300", "150", "7.1", "10.7", "Clase 1", "Clase 1"}},
        {2, 6, "IPE 300", {"300", "150", "7.1", "10.7", "Clase 1", "Clase 2"}},
        {2, 4, "IPE 270", {"270", "135", "6.6", "10.2", "Clase 1", "Clase 1"}},
        {2, 6, "IPE 270", {"270", "135", "6.6", "10.2", "Clase 1", "Clase 1"}},
        {2, 4, "IPE 550", {"550", "210", "11.1", "17.2", "Clase 1", "Clase 1"}},
        {2, 6, "IPE 550", {"550", "210", "11.1", "17.2", "Clase 1", "Clase 3"}},
        {2, 4, "IPE 600", {"600", "220", "12.0", "19.0", "Clase 1", "Clase 1"}},
        {2, 6, "IPE 600", {"600", "220", "12.0", "19.0", "Clase 1", "Clase 2"}},
        {2, 3, "IPE 600", {"600", "220", "12.0", "19.0", "Clase 1", "Clase 2"}},  // A52 is S 355's strength
        {4, 4, "HEB 100", {"100", "100", "6.0", "10.0", "Clase 1", "Clase 1"}},
        {4, 4, "HEB 300", {"300", "300", "11.0", "19.0", "Clase 1", "Clase 1"}},
        {4, 6, "HEB 300", {"300", "300", "11.0", "19.0", "Clase 1", "Clase 1"}},
        {4, 4, "HEB 1000", {"1000", "300", "19.0", "36.0", "Clase 1", "Clase 1"}},
        {4, 6, "HEB 1000", {"1000", "300", "19.0", "36.0", "Clase 1", "Clase 2"}},
        // S 450: compression limits 23.97, 27.60, 30.50: IPE 600 (30.947) is class 4, with two
        // blanks; IPE 450 (440.6 / 14.6 = 30.178) class 3.
        {2, 7, "IPE 600", {"600", "220", "12.0", "19.0", "Clase 1", "Clase  4"}},
        {2, 7, "IPE 450", {"450", "190", "9.4", "14.6", "Clase 1", "Clase 3"}},
    };
    auto f = Carga();
    for (const Fila& fila : filas) {
        f->At("CmbPerfil").SetListIndex(fila.familia);
        f->At("CmbAcero").SetListIndex(fila.acero);
        const auto tabla = Filas(*f);
        ASSERT_TRUE(tabla.count(fila.perfil)) << fila.perfil;
        const std::vector<std::string>& celdas = tabla.at(fila.perfil);
        EXPECT_EQ(std::vector<std::string>(celdas.begin() + 1, celdas.end()), fila.esperado)
            << fila.perfil << " steel row " << fila.acero;
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(SectionClass, IdemGralTakesTheBuildingSteel)
{
    app.decl.GenAcP = 5;  // S 355
    auto f = Carga();
    f->At("CmbPerfil").SetListIndex(2);
    f->At("cmdCalcular").Click();
    EXPECT_EQ(f->At("LbAcero").Caption(), "S 355");
    EXPECT_EQ(Filas(*f).at("IPE 300").back(), "Clase 2");
    // Its own row wins over the building's.
    f->At("CmbAcero").SetListIndex(1);  // A37
    EXPECT_EQ(f->At("LbAcero").Caption(), "A37");
    EXPECT_EQ(Filas(*f).at("IPE 300").back(), "Clase 1");
}

TEST_F(SectionClass, BuildingSteelOutsideTheTableHaltsAfterItsBox)
{
    app.decl.GenAcP = 9;
    auto f = Carga();
    EXPECT_THROW(f->At("cmdCalcular").Click(), ProgramHalt);
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_NE(app.ui.boxes[0].prompt.find("(9)"), std::string::npos) << app.ui.boxes[0].prompt;
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);
    EXPECT_EQ(app.ui.boxes[0].title, app.decl.Msg(165));
}

TEST_F(SectionClass, UsersOwnSectionIsNotSupported)
{
    auto f = Carga();
    f->At("cmdCalcular").Click();
    const std::string antes = f->At("RichTextBox1").Text();
    f->At("UCPerfil1").Set("Perfil", "otro");
    f->At("cmdCalcular").Click();
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].prompt, "Sección no soportada");
    EXPECT_EQ(app.ui.boxes[0].style, mb::OkOnly);
    // The table shown stays as it was.
    EXPECT_EQ(f->At("RichTextBox1").Text(), antes);
}

TEST_F(SectionClass, ZeroFlangeOfTheCatalogueIsADivisionByZero)
{
    // HEM 800 carries no flange thickness in the catalogue: the table divides by it.
    auto f = Carga();
    EXPECT_THROW(f->At("CmbPerfil").SetListIndex(5), ProgramHalt);
    ASSERT_EQ(app.ui.errors.size(), 1u);
    EXPECT_EQ(app.ui.errors[0].origin, "CmbPerfil_Click");
    EXPECT_EQ(app.ui.errors[0].number, 11);
    EXPECT_NE(app.ui.errors[0].description.find("HEM 800"), std::string::npos);
}

TEST_F(SectionClass, SteelFormsOpenTheDialogWithTheirSectionAndSteel)
{
    std::string tabla, acero;
    app.decl.MuestraDialogo = [&](Form& d) {
        tabla = d.At("RichTextBox1").Text();
        acero = d.At("LbAcero").Caption();
    };
    for (const char* nombre : {"frmVigMet", "frmPilMet", "frmForjAcer"}) {
        tabla.clear();
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        f->At("UCPerfil1").Set("Perfil", "HEB");
        f->At("UCPerfil1").Set("Tamano", "200");
        f->At("CmbAcero").SetListIndex(6);  // S 355
        f->At("cmdClase").Click();
        EXPECT_EQ(acero, "S 355") << nombre;
        EXPECT_NE(tabla.find("HEB 1000\t1000\t300\t19.0\t36.0\tClase 1\tClase 2"), std::string::npos) << nombre;
        // A section of the user's own has no table: the box, and no dialog.
        tabla.clear();
        f->At("UCPerfil1").Set("Perfil", "otro");
        f->At("cmdClase").Click();
        EXPECT_TRUE(tabla.empty()) << nombre;
        EXPECT_EQ(app.ui.boxes.back().prompt, "Sección no soportada") << nombre;
    }
}

}  // namespace
}  // namespace vardena
