// The work's general data and description files.

#include <gtest/gtest.h>

#include <functional>

#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "base/FileIo.h"
#include "works/Obra.h"

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

// `text` with its line `line` (from 1) replaced.
std::string ReplaceLine(std::string text, int line, const std::string& replacement)
{
    size_t start = 0;
    for (int i = 1; i < line; ++i)
        start = text.find('\n', start) + 1;
    return text.replace(start, text.find('\n', start) - start, replacement);
}

std::string WithLine(int line, const std::string& replacement) { return ReplaceLine(Datos301(true), line, replacement); }

// Old editors closed text files with 0x1A bytes; they are not data. Other control bytes are.
TEST_F(GeneralData, TrailingEndOfFileMarksAreDroppedAndControlBytesKept)
{
    struct Row {
        const char* name;
        std::string tail;
    };
    for (const Row& r : {Row{"after the last line end", "\x1A"}, Row{"several", "\x1A\x1A\x1A"}}) {
        SCOPED_TRACE(r.name);
        // Without the factor the file ends on its last line: the mark must not read as a factor.
        test::WriteBytes(dir / "DATOS.~CE", ToDiskText(Datos301(false)) + r.tail);
        app.decl.GenFactor = 1;
        DatosStatus st = DatosFile(app.decl, "DATOS.~CE", "L", text);
        EXPECT_FALSE(st.damaged) << st.problem;
        EXPECT_FLOAT_EQ(app.decl.GenFactor, 0.04f);
        test::WriteBytes(dir / "DATOS.~CE", ToDiskText(Datos301(true)) + r.tail);
        st = DatosFile(app.decl, "DATOS.~CE", "L", text);
        EXPECT_FALSE(st.damaged) << st.problem;
        EXPECT_FLOAT_EQ(app.decl.GenFactor, 0.05f);
    }
    test::WriteBytes(dir / "DATOS.~CE", ToDiskText(WithLine(7, "\"Enfoscado\x01\x1b\x1A\",.02")) + "\x1A");
    DatosStatus st = DatosFile(app.decl, "DATOS.~CE", "L", text);
    EXPECT_FALSE(st.damaged) << st.problem;
    EXPECT_EQ(app.decl.GenDescr[1], "Enfoscado\x01\x1b\x1A");
    DatosFile(app.decl, "DATOS.~CE", "G", text);
    EXPECT_NE(test::ReadBytes(dir / "DATOS.~CE").find("\"Enfoscado\x01\x1b\x1A\",.02\r\n"), std::string::npos);

    test::WriteBytes(dir / "DESCR.~CE", "Nave\x01 1\r\nCalle\r\n\x1A\x1A");
    DatosFile(app.decl, "DESCR.~CE", "L", text);
    EXPECT_EQ(text, "Nave\x01 1\r\nCalle");
    EXPECT_TRUE(app.ui.boxes.empty());
}

// Fields that fail are skipped and take the values of a new work; the rest of the file is read. Each row
// replaces one or two lines of a good file and names what must stay as it was.
TEST_F(GeneralData, APartlyReadableFileReadsEveryOtherField)
{
    struct Unread {
        int line;
        std::vector<std::string> fields;
    };
    struct Row {
        const char* name;
        std::vector<std::pair<int, std::string>> lines;
        std::function<void(Declaraciones&, const Declaraciones&)> keep;  // the unread fields of a new work
        std::vector<Unread> unread;
    };
    const std::vector<Row> rows = {
        {"a quote left open at the end of its line",
         {{3, ".25,.2,.1,.1,\"G"}},
         [](Declaraciones& d, const Declaraciones& n) { d.GenCUsoP[0] = n.GenCUsoP[0]; },
         {{3, {"GenCUsoP(0)"}}}},
        {"a quote left open takes the rest of its line",
         {{33, "400,1.7,1900,\"I,2"}},
         [](Declaraciones& d, const Declaraciones& n) { d.GenCatControl = n.GenCatControl, d.GenCatEjec = n.GenCatEjec; },
         {{33, {"GenCatControl", "GenCatEjec"}}}},
        {"a whole number out of range",
         {{27, "99999,1,2"}},
         [](Declaraciones& d, const Declaraciones& n) { d.GenHorm = n.GenHorm; },
         {{27, {"GenHorm"}}}},
        {"a boolean left open",
         {{28, "#TRUE"}},
         [](Declaraciones& d, const Declaraciones& n) { d.GenChHormigon = n.GenChHormigon; },
         {{28, {"GenChHormigon"}}}},
        {"a number left open in the middle of its line",
         {{29, "#2,0"}},
         [](Declaraciones& d, const Declaraciones& n) { d.GenAcP = n.GenAcP; },
         {{29, {"GenAcP"}}}},
        {"two lines",
         {{5, ".3,.14,.2,.04,\"B"}, {31, "3,99999"}},
         [](Declaraciones& d, const Declaraciones& n) { d.GenCUsoP[2] = n.GenCUsoP[2], d.GenServi = n.GenServi; },
         {{5, {"GenCUsoP(2)"}}, {31, {"GenServi"}}}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        // What the good file gives, with the unread fields at the values they are to keep.
        test::TestApp whole;
        whole.decl.CarpetaObra = dir.path();
        test::WriteDiskText(dir / "DATOS.~CE", Datos301(true));
        ASSERT_FALSE(DatosFile(whole.decl, "DATOS.~CE", "L", text).damaged);
        test::TestApp nueva;
        nueva.decl.GeneralDataDefaults();
        r.keep(whole.decl, nueva.decl);

        std::string content = Datos301(true);
        for (const auto& [line, replacement] : r.lines)
            content = ReplaceLine(content, line, replacement);
        test::WriteDiskText(dir / "DATOS.~CE", content);
        test::TestApp part;
        part.decl.CarpetaObra = dir.path();
        SaveSetting(part.decl, "Obra", "Nombre", "casa");
        const DatosStatus st = DatosFile(part.decl, "DATOS.~CE", "L", text);
        EXPECT_TRUE(st.damaged);
        EXPECT_FALSE(st.refused);
        EXPECT_FLOAT_EQ(part.decl.VersionObra, 3.01f);
        ASSERT_EQ(st.unread.size(), r.unread.size());
        for (size_t i = 0; i < r.unread.size(); ++i) {
            EXPECT_EQ(st.unread[i].line, r.unread[i].line);
            EXPECT_EQ(st.unread[i].fields, r.unread[i].fields);
            EXPECT_NE(st.unread[i].Sentence().find("Line " + std::to_string(r.unread[i].line) + " of DATOS.~CE"),
                      std::string::npos)
                << st.unread[i].Sentence();
        }
        // Every other field holds what the good file holds.
        EXPECT_EQ(DatosText(part.decl, 3.01), DatosText(whole.decl, 3.01));
        ASSERT_EQ(part.ui.boxes.size(), 1u) << "one box for the whole read";
        EXPECT_EQ(part.ui.boxes[0].style, mb::Critical);
        EXPECT_NE(part.ui.boxes[0].prompt.find("DATOS.~CE"), std::string::npos);
        EXPECT_EQ(Setting(part.decl, "Obra", "Nombre"), "");
    }
}

// Where the file ends or the floor counts cannot be used, what follows is noted as a whole.
TEST_F(GeneralData, AFileCutShortOrWithBadCountsNamesWhatWasNotRead)
{
    const std::string full = Datos301(true);
    std::string cut;
    for (size_t pos = 0, line = 1; line <= 26; ++line) {
        const size_t end = full.find('\n', pos) + 1;
        cut += full.substr(pos, end - pos);
        pos = end;
    }
    test::WriteDiskText(dir / "DATOS.~CE", cut);
    app.decl.GenHorm = 7;
    app.decl.GenChTerreno = kFalse;
    app.decl.GenFactor = 1;
    DatosStatus st = DatosFile(app.decl, "DATOS.~CE", "L", text);
    EXPECT_TRUE(st.damaged);
    ASSERT_EQ(st.unread.size(), 1u);
    EXPECT_EQ(st.unread[0].line, 27);
    ASSERT_EQ(st.unread[0].fields.size(), 18u);
    EXPECT_EQ(st.unread[0].fields.front(), "GenHorm");
    EXPECT_EQ(st.unread[0].fields.back(), "GenChTerreno");
    EXPECT_EQ(st.unread[0].Sentence(),
              "Line 27 of DATOS.~CE: GenHorm, GenAcero, GenControl, GenChHormigon, GenAcP, GenAcP2 and 12 more not "
              "read (the file ends before them); they take the values of a new work.");
    EXPECT_FLOAT_EQ(app.decl.GenCot[2], 2.8f);
    // What was in memory before (another work's values) never stands in for an unread field.
    test::TestApp nueva;
    nueva.decl.GeneralDataDefaults();
    EXPECT_EQ(app.decl.GenHorm, nueva.decl.GenHorm);
    EXPECT_EQ(app.decl.GenChTerreno, nueva.decl.GenChTerreno);
    EXPECT_FLOAT_EQ(app.decl.GenFactor, 0.04f) << "a file that ends before the factor reads it as 0.04";
    EXPECT_EQ(app.ui.boxes.size(), 1u);

    test::WriteDiskText(dir / "DATOS.~CE", WithLine(2, "1,200,0"));
    app.decl.NPlantasSobre = 5;
    app.decl.GenPProP[0] = 9;
    app.ui.boxes.clear();
    st = DatosFile(app.decl, "DATOS.~CE", "L", text);
    ASSERT_EQ(st.unread.size(), 2u);
    EXPECT_EQ(st.unread[0].line, 2);
    EXPECT_EQ(st.unread[0].fields, (std::vector<std::string>{"NPlantasSobre", "NPlantasBajo"}));
    EXPECT_EQ(st.unread[1].line, 3);
    EXPECT_EQ(st.unread[1].lastLine, 37);
    EXPECT_EQ(st.unread[1].Sentence().rfind("Lines 3 to 37 of DATOS.~CE not read", 0), 0u) << st.unread[1].Sentence();
    EXPECT_EQ(app.decl.NPlantasSobre, nueva.decl.NPlantasSobre);
    EXPECT_FLOAT_EQ(app.decl.GenPProP[0], nueva.decl.GenPProP[0]);
    EXPECT_FLOAT_EQ(app.decl.VersionObra, 3.01f);
    EXPECT_EQ(app.ui.boxes.size(), 1u);

    // A first line that cannot be read is refused by the version rule, and told.
    test::WriteDiskText(dir / "DATOS.~CE", WithLine(1, "\"Vardena 3,3.01"));
    app.ui.boxes.clear();
    st = DatosFile(app.decl, "DATOS.~CE", "L", text);
    EXPECT_TRUE(st.refused);
    EXPECT_EQ(app.decl.VersionObra, 0);
    ASSERT_EQ(st.unread.size(), 1u);
    EXPECT_EQ(st.unread[0].fields, (std::vector<std::string>{"the product name", "the version"}));
    EXPECT_EQ(app.ui.boxes.size(), 1u);
}

// The work opens with the version rule alone deciding the button, and names the lines.
TEST_F(GeneralData, AWorkWithUnreadLinesStaysConvertibleAndNamesThem)
{
    test::WriteDiskText(dir / "DATOS.~CE", WithLine(33, "400,1.7,1900,\"I,2"));
    test::WriteDiskText(dir / "DESCR.~CE", "Nave\n");
    const ObraInfo info = AbreObra(app.decl, dir.path());
    EXPECT_TRUE(info.convertible);
    EXPECT_TRUE(info.datosDamaged);
    EXPECT_NE(info.problem.find("line 33"), std::string::npos) << info.problem;
    ASSERT_EQ(info.unreadLines.size(), 1u);
    EXPECT_EQ(info.unreadLines[0],
              "Line 33 of DATOS.~CE: GenCatControl, GenCatEjec not read (a quoted text is not closed on its line); "
              "they take the values of a new work.");

    test::WriteDiskText(dir / "DATOS.~CE", "\"Vardena 4\",4\n1,1,0\n");
    EXPECT_FALSE(AbreObra(app.decl, dir.path()).convertible);
}

// A write that fails runs the handler of a failed read and reports instead of throwing.
TEST_F(GeneralData, AFailedWriteIsToldAndReported)
{
    test::WriteDiskText(dir / "DATOS.~CE", Datos301(true));
    DatosFile(app.decl, "DATOS.~CE", "L", text);
    const std::string before = test::ReadBytes(dir / "DATOS.~CE");
    SaveSetting(app.decl, "Obra", "Directorio", "/obras");
    SaveSetting(app.decl, "Obra", "Nombre", "casa");
    app.decl.Mensajes[161] = "Error";
    const FileSystemSeam old = SetFileSystemSeam({[](const std::string&, std::string_view) { return false; }, {}});
    DatosStatus st;
    EXPECT_NO_THROW(st = DatosFile(app.decl, "DATOS.~CE", "G", text));
    SetFileSystemSeam(old);
    EXPECT_TRUE(st.writeFailed);
    EXPECT_NE(st.problem.find("DATOS.~CE"), std::string::npos) << st.problem;
    EXPECT_EQ(app.decl.UltimoErrorDatos, st.problem);
    EXPECT_EQ(test::ReadBytes(dir / "DATOS.~CE"), before);
    EXPECT_EQ(Setting(app.decl, "Obra", "Directorio"), "");
    EXPECT_EQ(Setting(app.decl, "Obra", "Nombre"), "");
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].style, mb::Critical);
    EXPECT_NE(app.ui.boxes[0].prompt.find("Error 75"), std::string::npos) << app.ui.boxes[0].prompt;
    EXPECT_NE(app.ui.boxes[0].prompt.find(dir / "DATOS.~CE"), std::string::npos);

    st = DatosFile(app.decl, "DATOS.~CE", "G", text);
    EXPECT_FALSE(st.writeFailed);
    EXPECT_EQ(app.decl.UltimoErrorDatos, "") << "a write that goes through clears the last failure";
}

}  // namespace
}  // namespace vardena
