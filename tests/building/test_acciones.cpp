// The building's actions: snow from the table file, wind per storey, the modal seismic forces,
// the panels of strata and masses, what goes wrong visibly, and the results file.

#include <gtest/gtest.h>

#include <set>

#include "application/Aplicacion.h"
#include "application/Conversion.h"
#include "base/Codepage.h"
#include "base/FileIo.h"
#include "building/Acciones.h"
#include "frame/Formularios.h"
#include "reports/RtfLector.h"
#include "support/TestSupport.h"
#include "works/DatosFile.h"
#include "works/LngPack.h"
#include "works/Registros.h"

namespace vardena {
namespace {

const std::string kRaya = "  ------\t" + std::string(61, '-');

// A snow table of the tests: row r, zone z holds r.z; rows 13 and 14 of zone 7 are sites to
// study apart. Comment lines go before and between the items.
std::string TablaDePrueba(int filas = kFilasNieve)
{
    std::string t = "' Tabla de nieve de las pruebas\r\n   ; otra nota\r\n\"Altitud (m)\", \"Zona\"\r\n";
    for (int r = 1; r <= filas; ++r) {
        for (int z = 1; z <= kZonasNieve; ++z)
            t += (z > 1 ? (r % 2 ? ", " : " ") : "") +
                 ((r >= 13 && z == 7) ? std::string("100") : std::to_string(r) + "." + std::to_string(z));
        t += "\r\n";
        if (r == 5)
            t += "  ' a comment between the rows\r\n";
    }
    return t;
}

class FormAcciones : public ::testing::Test {
protected:
    void SetUp() override
    {
        d.CarpetaObra = obra.path();
        d.NombreObra = "Obra de prueba";
        d.DirPrograma = programa.path();
        test::WriteBytes(programa / "Nieve", TablaDePrueba());
        const std::pair<int, const char*> mensajes[] = {
            {1, "Planta"},    {3, "Sótano"},    {990, "Planta"},  {991, "Altura"},    {992, "Coef.exp."},
            {993, "Presión"}, {994, "Succión"}, {995, "Planta"},  {996, "Altura"},    {997, "Fuerza"},
            {998, "Modo"},    {1140, "Acción del viento en dirección"},
            {1301, "Fuerzas sísmicas por planta y modo (kN)"},
            {1302, "Pesos y fuerzas sísmicas equivalentes por planta"}, {1303, "Estudio especial"},
            {1516, "Sin tabla de viento"}, {1517, "División por cero: %1"},
        };
        for (const auto& [n, texto] : mensajes)
            d.Mensajes[static_cast<size_t>(n)] = texto;
        // Two storeys of 3 m; the floor takes q = 0.3 + 0.1 + 0.1 + 0.2 / 2 = 0.6 t/m2 and the
        // roof 0.25 + 0.15 + 0.1 = 0.5; no enclosure weight.
        d.NPlantasSobre = 2;
        d.NPlantasBajo = 0;
        d.GenCot.fill(3.0f);
        d.GenPProP[1] = 0.3f, d.GenConcP[1] = 0.1f, d.GenSTabP[1] = 0.1f, d.GenSobrP[1] = 0.2f;
        d.GenPProP[0] = 0.25f, d.GenConcP[0] = 0.15f, d.GenSTabP[0] = 0.1f, d.GenSobrP[0] = 0;
        d.GenValor[7] = 0;
    }

    std::unique_ptr<Acciones> Carga()
    {
        auto f = std::make_unique<Acciones>(d, *TablaCampos("frmAccio"));
        f->Form_Load();
        return f;
    }

    // The small building of the hand calculations: 6 m high, 12 by 24 m in plan, terrain IV,
    // wind zone A; a concrete frame, partitioned, ductility 1, ab/g 0.08 on soil I; floor 1 and
    // the roof (row 2) with 100 m2 each and 10 kN of singular loads on the roof.
    std::unique_ptr<Acciones> Edificio()
    {
        auto f = Carga();
        const std::pair<const char*, const char*> textos[] = {
            {"txtAlt", "6"},     {"txtAnch", "12"},   {"TxtLong", "24"}, {"TextAb", "0.08"},
            {"txtSismoK", "1"},  {"txtSismoC", "1"},  {"txtRo", "1"},
        };
        for (const auto& [campo, texto] : textos)
            f->At(campo).SetText(texto);
        f->At("cmbZonEol").SetListIndex(0);
        f->At("cmbEntorno").SetListIndex(3);
        f->At("ChSismo").SetCheckValue(1);
        for (const char* lista : {"cmbEstruct", "cmbCompart", "cmbDuct", "cmbSueloSismo", "cmbImportSismo"})
            f->At(lista).SetListIndex(0);
        for (int i = 1; i <= 2; ++i) {
            f->At("TxtSupeP", i).SetText("100");
            f->At("TxtLongP", i).SetText("50");
            f->At("TxtSingP", i).SetText(i == 2 ? "10" : "0");
        }
        return f;
    }

    test::TestApp app;
    Declaraciones& d = app.decl;
    test::ScratchDir obra, programa;
};

// ---- Snow ----

TEST_F(FormAcciones, SnowTakesTheRowOfTheAltitudeAndTheColumnOfTheZone)
{
    struct Caso {
        const char* altitud;
        int zona;
        const char* carga;
    };
    // Each limit belongs to the row above it: 200 m is row 2.
    const Caso casos[] = {
        {"0", 0, "1.1"},       {"199.9", 2, "1.3"},  {"200", 0, "2.1"},    {"399", 6, "2.7"},
        {"400", 1, "3.2"},     {"999", 0, "8.1"},    {"1000", 0, "9.1"},   {"1999", 3, "13.4"},
        {"2000", 4, "14.5"},   {"5000", 1, "14.2"},  {"1850", 6, "Estudio especial"},
    };
    auto f = Carga();
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.altitud);
        f->At("txtNieve").SetText(c.altitud);
        f->At("cmbNieve").SetListIndex(c.zona);
        f->CalculaNieve();
        EXPECT_EQ(f->At("txtSobrNieve").Text(), c.carga);
    }
    EXPECT_EQ(FilaNieve(200), 2);
    EXPECT_EQ(FilaNieve(199.99), 1);
}

TEST_F(FormAcciones, AMissingOrShortSnowTableGoesToTheErrorWindowAndNothingIsSaved)
{
    d.Mensajes[1513] = "Falta la tabla de nieve.";
    d.Mensajes[1514] = "Tabla de nieve dañada en el dato %1.";
    struct Caso {
        const char* nombre;
        std::optional<std::string> contenido;
        std::string descripcion;
    };
    const Caso casos[] = {
        {"missing", std::nullopt, "Falta la tabla de nieve."},
        {"short", TablaDePrueba(13), "Tabla de nieve dañada en el dato 94."},
        {"not a number", "\"a\",\"b\"\r\n1.1, 1.2, x\r\n", "Tabla de nieve dañada en el dato 5."},
        {"no headings", "' only a comment\r\n", "Tabla de nieve dañada en el dato 1."},
    };
    auto f = Carga();
    const std::string registro = obra / "Acciones.~CK";
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nombre);
        std::filesystem::remove(programa / "Nieve");
        if (c.contenido)
            test::WriteBytes(programa / "Nieve", *c.contenido);
        app.ui.errors.clear();
        EXPECT_THROW(f->At("CmdCalcular").Click(), ProgramHalt) << "the error window answers Salir";
        ASSERT_EQ(app.ui.errors.size(), 1u);
        EXPECT_EQ(app.ui.errors[0].origin, "CmdCalcular_Click");
        EXPECT_EQ(app.ui.errors[0].number, 75);
        EXPECT_EQ(app.ui.errors[0].description, programa / "Nieve" + ": " + c.descripcion);
        EXPECT_FALSE(std::filesystem::exists(registro));
    }
}

TEST_F(FormAcciones, TheSnowTableMayHoldItsHeadingsOnOneLineAndACommentPerRow)
{
    // The layout of the table the program installs: unquoted headings on one line, a comment
    // before each row, the loads lined up with blanks.
    std::string t = "' Sobrecarga de nieve, kN/m2\r\n'\r\nALTITUD ZONAS_1_A_7\r\n";
    for (int r = 1; r <= kFilasNieve; ++r) {
        t += "' fila " + std::to_string(r) + "\r\n ";
        for (int z = 1; z <= kZonasNieve; ++z)
            t += "  " + std::to_string(r * 10 + z) + ".5";
        t += "\r\n";
    }
    test::WriteBytes(programa / "Nieve", t);
    const TablaNieve tabla = LeeTablaNieve(d, programa / "Nieve");
    EXPECT_EQ(tabla[0][0], 11.5f);
    EXPECT_EQ(tabla[1][6], 27.5f);
    EXPECT_EQ(tabla[13][6], 147.5f);
}

// ---- Wind ----

TEST(CoeficientesEsbeltez, PressureAndSuctionBySlenderness)
{
    struct Caso {
        double e;
        float cp, cs;
    };
    const Caso casos[] = {
        {0.1, 0.7f, -0.3f},  {0.25, 0.7f, -0.3f}, {0.375, 0.7f, -0.35f}, {0.5, 0.7f, -0.4f},
        {0.625, 0.75f, -0.4f}, {0.75, 0.8f, -0.4f}, {0.875, 0.8f, -0.45f}, {1.0, 0.8f, -0.5f},
        {1.25, 0.8f, -0.6f}, {1.26, 0.8f, -0.7f}, {3.0, 0.8f, -0.7f},
    };
    for (const Caso& c : casos) {
        const CoeficientesViento r = CoeficientesEsbeltez(c.e);
        EXPECT_NEAR(r.cp, c.cp, 1e-6) << c.e;
        EXPECT_NEAR(r.cs, c.cs, 1e-6) << c.e;
    }
}

TEST_F(FormAcciones, SuctionStepsRightAboveSlenderness125)
{
    auto f = Carga();
    const std::pair<const char*, const char*> casos[] = {{"15", "-0.6"}, {"15.12", "-0.7"}};
    for (const auto& [altura, succion] : casos) {
        f->At("txtAlt").SetText(altura);
        f->At("txtAnch").SetText("12");
        f->CalculaViento();
        EXPECT_EQ(f->At("txtSuc").Text(), succion) << altura;
        EXPECT_EQ(f->At("txtPres").Text(), "0.8");
    }
}

TEST_F(FormAcciones, WindTablesOfTheSmallBuilding)
{
    auto f = Edificio();
    f->CalculaViento();
    // Terrain IV: k 0.22, L 0.3 m, Z 5 m; zone A: qb 0.42 kN/m2.
    // X-X: e = 6 / 12 = 0.5, cp 0.7, cs -0.4. Y-Y: e = 6 / 24 = 0.25, cp 0.7, cs -0.3.
    // Floor 1, z = 3 below Z: F = 0.22 ln(5 / 0.3) = 0.61895, ce = F (F + 1.54) = 1.33628,
    //   pressure 1.33628 x 0.42 x 0.7 = 0.393, suction x -0.4 = -0.224, x -0.3 = -0.168.
    // Floor 2, z = 6: F = 0.22 ln(20) = 0.65906, ce = 1.44932,
    //   pressure 0.426, suction x -0.4 = -0.243, x -0.3 = -0.183.
    const std::string cabecera = "Planta\tAltura\tCoef.exp.\tPresión\tSucción\r\n"
                                 "        \t  (m) \t  \t (kN/m2) \t (kN/m2) \r\n" +
                                 kRaya;
    const std::string esperado = "Acción del viento en dirección x-x'\r\n" + cabecera +
                                 "\r\n     2\t6.00\t1.45\t   0.43\t   -0.24"
                                 "\r\n     1\t3.00\t1.34\t   0.39\t   -0.22"
                                 "\r\n\r\nAcción del viento en dirección y-y'\r\n" +
                                 cabecera +
                                 "\r\n     2\t6.00\t1.45\t   0.43\t   -0.18"
                                 "\r\n     1\t3.00\t1.34\t   0.39\t   -0.17";
    EXPECT_EQ(f->At("RichTextBox2").Text(), esperado);
    const std::pair<const char*, const char*> campos[] = {
        {"txtEsb", "0.50"}, {"txtPres", "0.7"}, {"txtSuc", "-0.4"}, {"txtEsby", "0.25"}, {"txtPresy", "0.7"}, {"txtSucy", "-0.3"},
    };
    for (const auto& [campo, valor] : campos)
        EXPECT_EQ(f->At(campo).Text(), valor) << campo;
    EXPECT_FALSE(f->SinTablaViento());
    EXPECT_FALSE(f->At("LbAvisoViento").Visible());
}

TEST_F(FormAcciones, TerrainVWithTheTopAt8mTakesZ10)
{
    d.GenCot.fill(4.0f);
    auto f = Edificio();
    f->At("cmbEntorno").SetListIndex(4);
    f->CalculaViento();
    // k 0.24, L 1 m, Z 10 m: both floors (z 4 and 8) take ce of 10 m, 1.23; the height of 8 m
    // itself would give 1.09.
    const std::string texto = f->At("RichTextBox2").Text();
    EXPECT_NE(texto.find("\r\n     2\t8.00\t1.23\t"), std::string::npos) << texto;
    EXPECT_NE(texto.find("\r\n     1\t4.00\t1.23\t"), std::string::npos) << texto;
}

TEST_F(FormAcciones, NoWidthOrLengthMakesNoWindTableAndSaysSo)
{
    struct Caso {
        const char* ancho;
        const char* largo;
        const char* esbeltez;  // X-X is worked out before the length is looked at
    };
    const Caso casos[] = {{"0", "24", "old"}, {"-3", "24", "old"}, {"12", "0", "0.50"}};
    for (const Caso& c : casos) {
        SCOPED_TRACE(std::string(c.ancho) + " x " + c.largo);
        auto f = Edificio();
        f->At("RichTextBox2").SetText("old table");
        f->At("txtEsb").SetText("old");
        f->At("txtAnch").SetText(c.ancho);
        f->At("TxtLong").SetText(c.largo);
        f->At("CmdCalcular").Click();
        EXPECT_TRUE(f->SinTablaViento());
        EXPECT_EQ(f->At("RichTextBox2").Text(), "old table") << "the table keeps what it showed";
        EXPECT_EQ(f->At("txtEsb").Text(), c.esbeltez);
        EXPECT_TRUE(f->At("LbAvisoViento").Visible());
        EXPECT_EQ(f->At("LbAvisoViento").Caption(), "Sin tabla de viento");
        ASSERT_EQ(f->Avisos().size(), 1u);
        EXPECT_TRUE(app.ui.errors.empty());
        EXPECT_NE(test::ReadDiskText(obra / "Acciones.lCK").find("Sin tabla de viento"), std::string::npos)
            << "the results file lists it among its warnings";
    }
}

// ---- Earthquake ----

TEST_F(FormAcciones, SeismicTablesOfTheSmallBuilding)
{
    auto f = Edificio();
    f->At("CmdCalcular").Click();
    // p = ab ro = 0.08 up to 0.1: S = C / 1.25 = 0.8; TB = K C / 2.5 = 0.4; Tf = 0.09 n = 0.18,
    // one mode, alpha 2.5; ac = S ro ab = 0.064; damping 5 % (partitioned): nu = 1, mu = 1.
    // P1 = 0.6 x 100 = 60 t, P2 = 0.5 x 100 + 10 = 60 t; z 3 and 6; phi = sin(pi z / 12) = 0.7071, 1.
    // sum P phi = 102.426, sum P phi2 = 90: eta 0.80474, 1.13807;
    // F = P eta 2.5 x 0.064: F1 = 7.7255, F2 = 10.9255 (x 10 in kN).
    EXPECT_EQ(f->At("txtS").Text(), "0.80");
    EXPECT_EQ(f->At("txtTf").Text(), "0.18");
    EXPECT_EQ(f->At("TextAc").Text(), "0.06");
    EXPECT_EQ(f->At("txtModo").Text(), "  1  ");
    const std::string esperado = "Fuerzas sísmicas por planta y modo (kN)\r\n"
                                 "Planta\tAltura\tFuerza\tFuerza\tFuerza\r\n"
                                 "        \t  (m) \tModo 1\tModo 2\tModo 3\r\n" +
                                 kRaya +
                                 "\r\n     2\t6.00\t109.25\t0.00\t   0.00"
                                 "\r\n     1\t3.00\t77.25\t0.00\t   0.00"
                                 "\r\n\r\nPesos y fuerzas sísmicas equivalentes por planta\r\n"
                                 "Planta\tAltura\tP.\tPlanta\t\tFk \r\n"
                                 "        \t  (m) \t (kN)\t     \t (kN)\r\n" +
                                 kRaya +
                                 "\r\n     2\t6.00\t600\t     \t109.25"
                                 "\r\n     1\t3.00\t600\t     \t77.25";
    EXPECT_EQ(f->At("RichTextBox3").Text(), esperado);
    EXPECT_EQ(f->At("RichTextBox3").Get("ForeColor"), "255");
}

TEST_F(FormAcciones, MasonryWithDuctility3ShowsBetaZeroWhileTheForcesUseNuOverMu)
{
    auto f = Edificio();
    f->At("cmbEstruct").SetListIndex(2);
    f->At("cmbDuct").SetListIndex(2);
    EXPECT_EQ(f->At("txtBeta").Text(), "0.00");
    EXPECT_FALSE(f->At("txtPant1").Visible());
    f->At("CmdCalcular").Click();
    // Damping 6 %: nu = (5 / 6)^0.4 = 0.92963, mu = 3: the forces above times 0.30988.
    // Tf = 0.06 x 6 x sqrt(6 / 30) / 12 = 0.013: one mode.
    const std::string texto = f->At("RichTextBox3").Text();
    EXPECT_NE(texto.find("\r\n     2\t6.00\t600\t     \t33.86"), std::string::npos) << texto;
    EXPECT_NE(texto.find("\r\n     1\t3.00\t600\t     \t23.94"), std::string::npos) << texto;
    EXPECT_EQ(f->At("txtTf").Text(), "0.01");
}

TEST_F(FormAcciones, ModesAndDampingByStructure)
{
    struct Caso {
        int estructura, compartimentacion, ductilidad;
        const char* beta;
        const char* pantallas;  // txtPant1 after the click
        bool visibles;
    };
    const Caso casos[] = {
        {0, 0, 0, "1.00", "0", false}, {1, 1, 1, "0.55", "0", false}, {3, 0, 3, "0.25", "4", true},
        {4, 1, 2, "0.36", "4", true},  {2, 1, 3, "0.00", "0", false},
    };
    auto f = Edificio();
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.estructura);
        f->At("txtPant1").SetText("4");
        f->At("cmbCompart").SetListIndex(c.compartimentacion);
        f->At("cmbDuct").SetListIndex(c.ductilidad);
        f->At("cmbEstruct").SetListIndex(c.estructura);
        EXPECT_EQ(f->At("txtBeta").Text(), c.beta);
        EXPECT_EQ(f->At("txtPant1").Text(), c.pantallas);
        EXPECT_EQ(f->At("txtPant1").Visible(), c.visibles);
        EXPECT_EQ(f->At("lblPant").Visible(), c.visibles);
    }
    // Periods by structure and the modes they take: 0.09 n, 0.11 n, 0.085 n sqrt(H / (H + B)).
    d.NPlantasSobre = 9;
    const std::tuple<int, const char*, const char*> periodos[] = {
        {0, "0.81", " 1+2 "}, {1, "0.99", " 1+2 "}, {4, "0.38", "  1  "}};
    for (const auto& [estructura, periodo, modos] : periodos) {
        f->At("cmbEstruct").SetListIndex(estructura);
        f->At("txtPant1").SetText("18");
        f->CalculaSismo();
        EXPECT_EQ(f->At("txtTf").Text(), periodo);
        EXPECT_EQ(f->At("txtModo").Text(), modos);
    }
    d.NPlantasSobre = 14;
    f->At("cmbEstruct").SetListIndex(1);
    f->CalculaSismo();
    EXPECT_EQ(f->At("txtModo").Text(), "1+2+3");
}

TEST_F(FormAcciones, ImportanceAndSoilShowTheirCoefficients)
{
    auto f = Edificio();
    f->At("cmbImportSismo").SetListIndex(1);
    EXPECT_EQ(f->At("txtRo").Text(), "1.30");
    const char* coeficientes[] = {"1.00", "1.30", "1.60", "2.00"};
    for (int i = 0; i < 4; ++i) {
        f->At("cmbSueloSismo").SetListIndex(i);
        EXPECT_EQ(f->At("txtSismoC").Text(), coeficientes[i]);
    }
    // A soil that is not uniform opens the strata with two of them, and keeps C.
    f->At("txtEstratos").SetText("1");
    f->At("cmbSueloSismo").SetListIndex(4);
    EXPECT_TRUE(f->At("UCSuelo").Visible());
    EXPECT_EQ(f->At("txtEstratos").Text(), "2");
    EXPECT_EQ(f->At("txtSismoC").Text(), "2.00");
}

TEST_F(FormAcciones, ZeroHeightOrDampingGoToTheErrorWindowAndNothingIsLost)
{
    struct Caso {
        const char* nombre;
        std::function<void(Acciones&)> prepara;
        int numero;
    };
    const Caso casos[] = {
        {"height", [](Acciones& f) { f.At("txtAlt").SetText("0"); }, 11},
        {"damping", [this](Acciones&) { d.AccOmega = 0; }, 11},
        {"masses", [](Acciones& f) {
             for (int i = 1; i <= 2; ++i)
                 f.At("TxtSupeP", i).SetText("0"), f.At("TxtSingP", i).SetText("0");
         }, 6},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nombre);
        auto f = Edificio();
        f->At("CmdCalcular").Click();
        const std::string antes = test::ReadBytes(obra / "Acciones.~CK");
        c.prepara(*f);
        app.ui.errors.clear();
        EXPECT_THROW(f->At("CmdCalcular").Click(), ProgramHalt);
        ASSERT_EQ(app.ui.errors.size(), 1u);
        EXPECT_EQ(app.ui.errors[0].origin, "CmdCalcular_Click");
        EXPECT_EQ(app.ui.errors[0].number, c.numero);
        EXPECT_EQ(test::ReadBytes(obra / "Acciones.~CK"), antes) << "the record stays as it was";
    }
}

TEST_F(FormAcciones, MoreFloorsThanTheTablesHoldAreRefusedBeforeAnyCalculation)
{
    d.Mensajes[1515] = "Hasta %1 plantas y %2 sótanos; la obra tiene %3 y %4.";
    auto f = Edificio();
    d.NPlantasSobre = kMaxFloors + 1;
    f->At("CmdCalcular").Click();
    ASSERT_FALSE(app.ui.boxes.empty());
    EXPECT_EQ(app.ui.boxes.back().prompt, "Hasta 16 plantas y 4 sótanos; la obra tiene 17 y 0.");
    EXPECT_EQ(d.UltimoGuardadoRechazado, app.ui.boxes.back().prompt);
    EXPECT_FALSE(std::filesystem::exists(obra / "Acciones.~CK"));
    EXPECT_TRUE(app.ui.errors.empty());
}

// ---- Panels ----

TEST_F(FormAcciones, StrataAreCorrectedTo30mAndGiveTheWeightedC)
{
    auto f = Edificio();
    f->At("cmdSueloSismo").Click();
    f->At("txtEstratos").SetText("3");
    const std::pair<const char*, int> estratos[] = {{"10", 0}, {"10", 1}, {"5", 3}};
    for (int i = 0; i < 3; ++i) {
        f->At("txtEspesor", i).SetText(estratos[i].first);
        f->At("cmbSuelo", i).SetListIndex(estratos[i].second);
    }
    EXPECT_TRUE(f->At("cmbSuelo", 2).Visible());
    EXPECT_FALSE(f->At("cmbSuelo", 3).Visible());
    f->At("UCOK2").Click();
    // (10 x 1.0 + 10 x 1.3 + 10 x 2.0) / 30 = 1.43
    EXPECT_EQ(f->At("txtEspesor", 2).Text(), "10");
    EXPECT_EQ(f->At("txtC").Text(), "1.43");
    EXPECT_EQ(f->At("txtSismoC").Text(), "1.43");
    f->At("UCOK1").Click();
    EXPECT_EQ(f->At("cmbSueloSismo").ListIndex(), 4);
    EXPECT_FALSE(f->At("UCSuelo").Visible());

    // The count stays within 1 to 5; one stratum again takes soil I.
    const std::pair<const char*, const char*> cuentas[] = {{"9", "5"}, {"0", "1"}};
    for (const auto& [escrito, queda] : cuentas) {
        f->At("txtEstratos").SetText(escrito);
        EXPECT_EQ(f->At("txtEstratos").Text(), queda);
    }
    f->At("UCOK1").Click();
    EXPECT_EQ(f->At("cmbSueloSismo").ListIndex(), 0);
}

TEST_F(FormAcciones, TheMassPanelHasARowPerSlabAndBasementThatTheRecordDoesNotKeep)
{
    d.NPlantasSobre = 4;
    d.NPlantasBajo = 2;
    auto f = Carga();
    const size_t guardados = f->StoredControls().size();
    EXPECT_EQ(f->Members("TxtSupeP").size(), 5u);
    EXPECT_EQ(f->Members("TxtSingS").size(), 2u);
    EXPECT_FALSE(f->At("TxtSupeP", 0).Visible()) << "the designed row the others copy";
    EXPECT_EQ(f->At("TxtSupeP", 4).Text(), "300") << "a made row copies the row above it";
    EXPECT_EQ(f->At("TxtSupeP", 4).Caption(), "Cubierta: Superficie (m2)");
    EXPECT_EQ(f->At("TxtSupeP", 2).Caption(), "Planta 2: Superficie (m2)");
    EXPECT_EQ(f->At("TxtSupeS", 1).Caption(), "Sótano 2: Superficie (m2)");
    EXPECT_TRUE(f->At("AsignaC", 0).Visible());
    EXPECT_TRUE(f->At("AsignaC", 1).Visible());

    f->At("TxtSupeP", 1).SetText("120");
    f->At("TxtSingS", 0).SetText("7");
    for (int i = 0; i < 2; ++i)
        f->At("AsignaC", i).Click();
    for (int i = 2; i <= 4; ++i)
        EXPECT_EQ(f->At("TxtSupeP", i).Text(), "120");
    EXPECT_EQ(f->At("TxtSingS", 1).Text(), "7");

    f->At("ChSismo").SetCheckValue(1);
    EXPECT_TRUE(f->At("UCplantas").Visible()) << "asking for the earthquake opens the masses";
    EXPECT_FALSE(f->At("Frm1").Enabled());
    f->At("UCOK").Click();
    EXPECT_FALSE(f->At("UCplantas").Visible());
    EXPECT_TRUE(f->At("Frm1").Enabled());
    EXPECT_EQ(f->StoredControls().size(), guardados);

    d.NPlantasSobre = 1;
    d.NPlantasBajo = 1;
    f->ColocaMasas();
    EXPECT_FALSE(f->At("AsignaC", 0).Visible());
    EXPECT_FALSE(f->At("AsignaC", 1).Visible());
    EXPECT_FALSE(f->At("TxtSupeP", 2).Visible());
}

// ---- Life cycle ----

TEST_F(FormAcciones, ANewRecordTakesTheDefaultsAndAReadRecordKeepsEveryField)
{
    d.AccZonaNieve = 3;
    d.GenCot[0] = 2.5f;
    auto f = Carga();
    EXPECT_EQ(f->At("txtAlt").Text(), "5.5") << "the building's height from the storeys";
    EXPECT_EQ(f->At("txtNieve").Text(), "200");
    EXPECT_EQ(f->At("cmbNieve").ListIndex(), 3);
    EXPECT_EQ(f->At("cmbEntorno").ListIndex(), 3);
    EXPECT_EQ(f->At("TextAb").Text(), "0.04");
    EXPECT_EQ(f->At("ChSismo").CheckValue(), 0);
    EXPECT_EQ(f->At("txtSobrNieve").Text(), "2.4") << "calculated on loading";
    EXPECT_FALSE(f->At("UCSismo").Enabled());
    EXPECT_FALSE(f->At("TextAb").Enabled());

    // Fields that one handler would change on a click come back as they were stored.
    f = Edificio();
    f->At("txtPant1").SetText("5");
    f->At("txtEstratos").SetText("1");
    f->At("cmbSueloSismo").SetListIndex(4);
    f->At("UCSuelo").SetVisible(false);
    f->At("txtRo").SetText("1.7");
    f->At("CmdCalcular").Click();
    auto g = Carga();
    for (const char* campo : {"txtPant1", "txtEstratos", "txtRo", "txtBeta", "txtSismoC"})
        EXPECT_EQ(g->At(campo).Text(), f->At(campo).Text()) << campo;
    EXPECT_EQ(g->At("cmbSueloSismo").ListIndex(), 4);
    // The record keeps the designed rows of masses: the roof's row is made again from floor 1.
    EXPECT_EQ(g->At("TxtSingP", 2).Text(), "0");
    EXPECT_NE(g->At("RichTextBox3").Text().find("\r\n     2\t5.50\t500\t"), std::string::npos);
    EXPECT_NE(g->At("RichTextBox1").Text().find("Obra de prueba"), std::string::npos) << "its results file";
}

TEST_F(FormAcciones, MapButtonsStartFromTheFormAndChangeNothingWhenNoMapIsChosen)
{
    auto f = Edificio();
    int mostrados = 0;
    d.MuestraDialogo = [&](Form&) { ++mostrados; };
    // Shared values left by an earlier map do not overwrite what the form shows.
    d.AccZonaNieve = 5;
    d.AccAltNieve = 850;
    f->At("txtNieve").SetText("650");
    f->At("cmbNieve").SetListIndex(2);
    f->At("cmdAltitud").Click();
    EXPECT_EQ(f->At("cmbNieve").ListIndex(), 2);
    EXPECT_EQ(f->At("txtNieve").Text(), "650");
    EXPECT_EQ(d.AccAltNieve, 650.0f) << "what a map dialog starts from";
    d.AccZona = 2;
    f->At("cmdEolica").Click();
    EXPECT_EQ(f->At("cmbZonEol").ListIndex(), 0);
    d.AccAb = 0.2f;
    f->At("TextAb").SetText("0.125");
    f->At("cmbEstruct").SetListIndex(1);
    f->At("cmbDuct").SetListIndex(1);
    f->At("txtBeta").SetText("");
    f->At("cmdAgG").Click();
    EXPECT_EQ(f->At("TextAb").Text(), "0.13") << "shown as the map gives it";
    EXPECT_EQ(f->At("txtSismoK").Text(), "1.00");
    EXPECT_EQ(f->At("txtBeta").Text(), "0.50") << "beta follows";
    EXPECT_EQ(mostrados, 3) << "each map button shows its dialog, closed here with nothing chosen";

    // No wind zone: the wind says why it made no table.
    d.Mensajes[1519] = "Nada elegido en %1";
    f->At("cmbZonEol").SetListIndex(-1);
    f->At("CmdCalcular").Click();
    EXPECT_TRUE(f->SinTablaViento());
    EXPECT_EQ(f->At("LbAvisoViento").Caption(), "Nada elegido en Zona eólica");
}

TEST_F(FormAcciones, TheResultsFileListsTheActionsAndOpensAsAReport)
{
    d.Mensajes[1046] = "Acción de nieve";
    d.Mensajes[1049] = "Sobrecarga de nieve:";
    d.Mensajes[1510] = "Acción sísmica";
    d.Mensajes[1511] = "ab/g:\tK:\tImportancia:\tEstructura:\tTerreno:\tCompartimentación:\tDuctilidad:";
    d.Mensajes[1512] = "Riesgo:\tS:\tPantallas:\tPeríodo:\tModos:\tac/g:";
    d.Mensajes[84] = "Sin avisos.";
    auto f = Edificio();
    f->At("txtNieve").SetText("1850");
    f->At("cmbNieve").SetListIndex(6);
    f->At("CmdCalcular").Click();
    const std::string texto = RtfATexto(ReadFileBytes(obra / "Acciones.lCK"));
    const char* lineas[] = {
        "Obra de prueba",
        "Acción de nieve",
        "Sobrecarga de nieve:\tEstudio especial kN/m2",
        "Acción del viento en dirección x-x'",
        "     2\t6.00\t1.45\t   0.43\t   -0.24",
        "Acción sísmica",
        "Estructura:\tHormigón",
        "             C= \t1.00",
        "Período:\t0.18",
        "     1\t3.00\t600\t     \t77.25",
        "Sobrecarga de nieve: Estudio especial",
    };
    size_t desde = 0;
    for (const char* linea : lineas) {
        const size_t en = texto.find(linea, desde);
        ASSERT_NE(en, std::string::npos) << linea << "\n" << texto;
        desde = en;
    }
    EXPECT_EQ(texto.find("Sin avisos."), std::string::npos);
}

// LibreOffice reads the report with its accents, its tabs and its tables.
TEST_F(FormAcciones, TheResultsFileOpensInLibreOffice)
{
    const std::string soffice = test::OnPath("soffice");
    if (soffice.empty())
        GTEST_SKIP() << "soffice is not on PATH";
    d.Mensajes[1046] = "Acción de nieve";
    d.Mensajes[1049] = "Sobrecarga de nieve:";
    d.Mensajes[1510] = "Acción sísmica";
    auto f = Edificio();
    f->At("CmdCalcular").Click();
    const std::string texto = test::TextoDeLibreOffice(soffice, obra.path(), obra / "Acciones.lCK", "Acciones.txt");
    for (const char* linea : {"Obra de prueba", "Acción de nieve", "Acción del viento en dirección x-x'",
                              "Acción sísmica", "Fuerzas sísmicas por planta y modo (kN)"})
        EXPECT_NE(texto.find(linea), std::string::npos) << linea << "\n" << texto;
    EXPECT_EQ(texto.find('\\'), std::string::npos) << "no mark-up leaks into the text";
}

// ---- Conversion ----

TEST_F(FormAcciones, TheConversionRecalculatesTheActionsKeepsTheirDataAndSaysWhenNoWindTableWasMade)
{
    test::WriteDiskText(obra / "DATOS.~CE", DatosText(d, 3.01));
    std::string datos;
    DatosFile(d, "DATOS.~CE", "L", datos);
    // A record of version 3 whose building has no width, and results that are not those of its
    // data.
    auto viejo = Edificio();
    viejo->At("txtAnch").SetText("0");
    for (const char* resultado : {"txtTf", "txtS", "TextAc", "txtSobrNieve"})
        viejo->At(resultado).SetText("9.99");
    FormGuardaFile(*viejo, obra / "Acciones.~CK");
    test::WriteBytes(obra / "Acciones.lCK", "{\\rtf1 resultados de la version 3}");

    std::vector<std::string> list2;
    const ConversionLog log = Convierte(d, list2);
    ASSERT_TRUE(log.completed) << log.error;
    const auto entrada = std::find_if(log.entries.begin(), log.entries.end(),
                                      [](const ConversionEntry& e) { return e.form == "frmAccio"; });
    ASSERT_NE(entrada, log.entries.end());
    EXPECT_NE(entrada->note.find("the actions were recalculated"), std::string::npos) << entrada->note;
    EXPECT_NE(entrada->note.find("no wind table was made"), std::string::npos) << entrada->note;
    EXPECT_EQ(test::ReadBytes(obra / "Acciones.~CK").rfind("Vardena 3\t3.50\r\n", 0), 0u);

    auto nuevo = Carga();
    const std::set<std::string> resultados = {"txtSobrNieve", "txtEsb", "txtPres", "txtSuc", "txtEsby", "txtPresy",
                                              "txtSucy",      "txtS",   "TextAc",  "txtTf",  "txtModo"};
    auto valor = [](const Control& c) {
        return c.Property(c.kind() == Kind::TextBox ? "Text" : c.kind() == Kind::ComboBox ? "ListIndex" : "Value");
    };
    for (const Control* c : viejo->StoredControls()) {
        if (!resultados.count(c->Name())) {
            EXPECT_EQ(valor(nuevo->At(c->Name(), c->Index())), valor(*c)) << c->Label();
        }
    }
    const std::pair<const char*, const char*> calculados[] = {
        {"txtTf", "0.18"}, {"txtS", "0.80"}, {"TextAc", "0.06"}, {"txtSobrNieve", "2.1"}};
    for (const auto& [campo, valor] : calculados)
        EXPECT_EQ(nuevo->At(campo).Text(), valor) << campo;
    EXPECT_NE(test::ReadDiskText(obra / "Acciones.lCK").find("Obra de prueba"), std::string::npos)
        << "the results file is the new report";
}

TEST(MensajesAcciones, EveryLanguageHasTheMessagesOfTheActions)
{
    for (const char* idioma : {"Español", "English", "Català"}) {
        SCOPED_TRACE(idioma);
        test::TestApp app;
        CargaMensajesDesde(app.decl, ResourceDir() + "/lng/" + idioma + "/MsgVardena.txt");
        for (int n = 1510; n <= 1519; ++n)
            EXPECT_FALSE(app.decl.Msg(n).empty()) << n;
        // The labels of the seismic report: seven of the data, six of the results.
        for (const auto& [mensaje, rotulos] : {std::pair{1511, 7}, std::pair{1512, 6}}) {
            const std::string& m = app.decl.Msg(mensaje);
            EXPECT_EQ(std::count(m.begin(), m.end(), '\t'), rotulos - 1) << mensaje;
        }
        for (int n : {1514, 1517, 1519})
            EXPECT_NE(app.decl.Msg(n).find("%1"), std::string::npos) << n;
        EXPECT_NE(app.decl.Msg(1515).find("%4"), std::string::npos);
    }
}

}  // namespace
}  // namespace vardena
