// The work's general data and description files.

#include <gtest/gtest.h>

#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/FileIo.h"

namespace vardena {
namespace {

// A DATOS.~CE of version 3.01 with 2 floors and 1 basement, as version 3 wrote it.
std::string Datos301(bool withFactor)
{
    std::string t =
        "\"Vardena 3\",3.01\n"
        "1,2,1\n"
        ".25,.2,.1,.1,\"G\"\n"
        ".3,.14,.2,.04,\"A\"\n"
        ".3,.14,.2,.04,\"B\"\n"
        ".3,.1,.4,0,\"F\"\n"
        "\"Enfoscado\",.02\n\"Ladrillo hueco 12 cm\",.144\n\"Mortero\",.02\n"
        "\"Cámara aire y aislamiento\",.005\n\"Ladrillo hueco 8 cm.\",.096\n\"Enfoscado\",.02\n"
        ".305\n"
        "0\n60\n90\n180\n10\n20\n0\n.87\n1\n1.2\n"
        "3\n3.2\n2.8\n"
        "4,1,2\n"
        "#TRUE#\n"
        "2,0\n"
        "#FALSE#\n"
        "3,1\n"
        "#TRUE#\n"
        "400,1.7,1900,1,2\n"
        "#FALSE#\n"
        "25\n"
        "#TRUE#\n";
    if (withFactor)
        t += ".05\n";
    return t;
}

class GeneralData : public ::testing::Test {
protected:
    void SetUp() override { app.decl.CarpetaObra = dir.path(); }
    test::TestApp app;
    test::ScratchDir dir;
    std::string text;
};

TEST_F(GeneralData, Version301ReadsEveryLine)
{
    test::WriteDiskText(dir / "DATOS.~CE", Datos301(true));
    DatosStatus st = DatosFile(app.decl, "datos.~ce", "L", text);
    ASSERT_FALSE(st.damaged) << st.problem;
    const Declaraciones& d = app.decl;
    EXPECT_FLOAT_EQ(d.VersionObra, 3.01f);
    EXPECT_EQ(d.NPlantasSobre, 2);
    EXPECT_EQ(d.NPlantasBajo, 1);
    EXPECT_FLOAT_EQ(d.GenPProP[0], 0.25f);
    EXPECT_EQ(d.GenCUsoP[2], "B");
    EXPECT_FLOAT_EQ(d.GenSobrS[1], 0.4f);
    EXPECT_EQ(d.GenDescr[4], "Cámara aire y aislamiento");
    EXPECT_FLOAT_EQ(d.GenValor[7], 0.305f);
    EXPECT_FLOAT_EQ(d.GenDia[8], 0.87f);
    EXPECT_FLOAT_EQ(d.GenCot[2], 2.8f);
    EXPECT_EQ(d.GenHorm, 4);
    EXPECT_EQ(d.GenControl, 2);
    EXPECT_EQ(d.GenChHormigon, kTrue);
    EXPECT_EQ(d.GenAcP, 2);
    EXPECT_EQ(d.GenChAcero, kFalse);
    EXPECT_EQ(d.GenServi, 1);
    EXPECT_FLOAT_EQ(d.GenDensFabr, 1900);
    EXPECT_EQ(d.GenCatEjec, 2);
    EXPECT_FLOAT_EQ(d.GenTens, 25);
    EXPECT_EQ(d.GenChTerreno, kTrue);
    EXPECT_FLOAT_EQ(d.GenFactor, 0.05f);
    EXPECT_EQ(d.GenFckHorm, 3000);
}

TEST_F(GeneralData, MissingLastFactorReadsAsDefault)
{
    test::WriteDiskText(dir / "DATOS.~CE", Datos301(false));
    DatosFile(app.decl, "DATOS.~CE", "L", text);
    EXPECT_FLOAT_EQ(app.decl.GenFactor, 0.04f);
    EXPECT_FLOAT_EQ(app.decl.VersionObra, 3.01f);
}

TEST_F(GeneralData, WrittenAsVersion35AndStableOnRewrite)
{
    test::WriteDiskText(dir / "DATOS.~CE", Datos301(true));
    DatosFile(app.decl, "DATOS.~CE", "L", text);
    DatosFile(app.decl, "datos.~ce", "G", text);
    EXPECT_FALSE(std::filesystem::exists(dir / "datos.~ce")) << "the existing file is replaced under its own name";
    const std::string first = test::ReadBytes(dir / "DATOS.~CE");
    EXPECT_EQ(first.rfind("\"Vardena 3\",3.5\r\n1,2,1\r\n", 0), 0u);
    // The fixed fields of 3.5: a fourth 0 after the concrete indices, 1998, the factor twice,
    // a 0 per floor and #TRUE#.
    EXPECT_NE(first.find("4,1,2,0\r\n#TRUE#\r\n1998\r\n2,0\r\n"), std::string::npos);
    EXPECT_NE(first.find("#TRUE#\r\n.05\r\n.05\r\n0\r\n0\r\n#TRUE#\r\n"), std::string::npos);
    EXPECT_NE(first.find("\"C\xe1mara aire y aislamiento\""), std::string::npos);
    EXPECT_FLOAT_EQ(app.decl.VersionObra, 3.01f) << "the version in memory is unchanged";

    test::TestApp again;
    again.decl.CarpetaObra = dir.path();
    DatosFile(again.decl, "DATOS.~CE", "L", text);
    EXPECT_FLOAT_EQ(again.decl.VersionObra, 3.5f);
    EXPECT_FLOAT_EQ(again.decl.GenFactor, 0.05f);
    DatosFile(again.decl, "DATOS.~CE", "G", text);
    EXPECT_EQ(test::ReadBytes(dir / "DATOS.~CE"), first) << "a 3.5 file written twice is byte-identical";
}

TEST_F(GeneralData, OtherVersionsAndProductsAreRefused)
{
    for (const char* first : {"\"Vardena 4\",4", "\"Vardena 2\",2.5", "\"Otro 3\",3.01"}) {
        test::WriteDiskText(dir / "DATOS.~CE", std::string(first) + "\n1,1,0\n");
        app.decl.VersionObra = 3.01f;
        DatosStatus st = DatosFile(app.decl, "DATOS.~CE", "L", text);
        EXPECT_TRUE(st.refused) << first;
        EXPECT_EQ(app.decl.VersionObra, 0) << first;
        EXPECT_NE(st.problem.find(dir / "DATOS.~CE"), std::string::npos);
    }
}

TEST_F(GeneralData, DamagedFileShowsTheBoxForgetsTheWorkAndWritesNothing)
{
    app.decl.settings().SaveSetting("Vardena 3", "Obra", "Directorio", "/obras");
    app.decl.settings().SaveSetting("Vardena 3", "Obra", "Nombre", "casa");
    struct Row {
        const char* name;
        std::string content;
    };
    const std::string full = Datos301(true);
    const std::vector<Row> rows = {
        {"cut short", full.substr(0, full.size() / 2)},
        {"floor count out of range", "\"Vardena 3\",3.01\n1,200,0\n"},
        {"unterminated quote", "\"Vardena 3\",3.01\n1,1,0\n.25,.2,.1,.1,\"G\n"},
        {"bytes that are not text", std::string("\"Vardena 3\",3.01\n\0\0\0", 21)},
    };
    for (const auto& r : rows) {
        test::WriteBytes(dir / "DATOS.~CE", ToDiskText(r.content));
        const std::string before = test::ReadBytes(dir / "DATOS.~CE");
        app.ui.boxes.clear();
        DatosStatus st = DatosFile(app.decl, "DATOS.~CE", "L", text);
        EXPECT_TRUE(st.damaged) << r.name;
        EXPECT_NE(st.problem.find("DATOS.~CE"), std::string::npos) << r.name << ": " << st.problem;
        EXPECT_EQ(app.ui.boxes.size(), 1u) << r.name;
        EXPECT_EQ(Setting(app.decl, "Obra", "Nombre"), "") << r.name;
        EXPECT_EQ(test::ReadBytes(dir / "DATOS.~CE"), before) << r.name;
    }
}

TEST_F(GeneralData, MissingFiles)
{
    app.decl.Mensajes[159] = "No existe el archivo de datos generales";
    DatosFile(app.decl, "DATOS.~CE", "I", text);
    EXPECT_EQ(text, "No");
    text.clear();
    DatosFile(app.decl, "DATOS.~CE", "L", text);
    EXPECT_EQ(text, "No");
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_NE(app.ui.boxes[0].prompt.find("No existe"), std::string::npos);
    text.clear();
    DatosFile(app.decl, "DESCR.~CE", "L", text);
    EXPECT_EQ(text, "No");
    EXPECT_EQ(app.ui.boxes.size(), 1u) << "a missing description shows no box";
    EXPECT_THROW(DatosFile(app.decl, "OTRO.~CE", "L", text), ProgramHalt);
}

TEST_F(GeneralData, DescriptionLinesAreJoinedWithCrLf)
{
    test::WriteBytes(dir / "descr.~ce", "Vivienda unifamiliar\r\nCalle Mayor, 3\r\n");
    DatosFile(app.decl, "DESCR.~CE", "L", text);
    EXPECT_EQ(text, "Vivienda unifamiliar\r\nCalle Mayor, 3");
    text = "Línea uno\r\nLínea dos";
    DatosFile(app.decl, "DESCR.~CE", "G", text);
    EXPECT_EQ(test::ReadBytes(dir / "descr.~ce"), "L\xednea uno\r\nL\xednea dos\r\n");
}

}  // namespace
}  // namespace vardena
