// Record files: the positional format of version 3, the named format, and how a form reads both.

#include <gtest/gtest.h>

#include "support/TestSupport.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"

namespace vardena {
namespace {

// A small form that holds every stored kind, arrays whose members are spread over the form,
// and both forms of the section selector.
std::unique_ptr<Form> MakeForm(Declaraciones& d)
{
    auto f = std::make_unique<Form>(d, "frmZapCorr");
    f->Add(Kind::CheckBox, "Check1");
    f->Add(Kind::TextBox, "TxtQ", 2).designText = "2.5";
    f->Add(Kind::UCZapatas, "UCArmZap", 0);
    f->Add(Kind::OptionButton, "OpTipoMuro", 1);
    f->Add(Kind::OptionButton, "OpTipoMuro", 0);
    f->Add(Kind::TextBox, "TxtQ", 0);
    f->Add(Kind::Label, "Label1").SetCaption("no se guarda");
    f->Add(Kind::UCNumDiam, "UCArVig", 3);
    f->Add(Kind::UCNumDiamSep, "UCArCer");
    f->Add(Kind::UCMallazo, "UCMall", 0);
    f->Add(Kind::UCPerfil, "UCPerfil1");
    f->Add(Kind::UCPerfil, "UCViga", 2);
    f->Add(Kind::TextBox, "txtTitulo");
    Control& horm = f->Add(Kind::ComboBox, "CmbHorm");
    horm.SetItems({"Idem gral.", "HA-10", "HA-15", "HA-20", "HA-25", "HA-30", "HA-35", "HA-40", "HA-45", "HA-50"});
    f->Add(Kind::ComboBox, "CmbAcero").SetItems({"Idem gral.", "B-400-S", "B-500-S"});
    f->Add(Kind::TextBox, "TxtRes1", 1);
    for (Control* c : f->StoredControls())
        if (c->kind() == Kind::TextBox)
            c->SetText(c->designText);
    return f;
}

// Gives every stored control of the form a value of its own.
void FillDistinct(Form& f)
{
    f.At("Check1").SetCheckValue(1);
    f.At("TxtQ", 2).SetText("3,75");
    f.At("TxtQ", 0).SetText("Compresión oblicua · ñ");
    Control& z = f.At("UCArmZap", 0);
    z.Set("NumBarras", "9");
    z.Set("Diametro", "16 ");
    z.Set("Separacion", "17.5");
    f.At("OpTipoMuro", 1).SetOptionValue(false);
    f.At("OpTipoMuro", 0).SetOptionValue(true);
    f.At("UCArVig", 3).Set("NumBarras", "5");
    f.At("UCArVig", 3).Set("Diametro", "20 ");
    f.At("UCArCer").Set("NumBarras", "3");
    f.At("UCArCer").Set("Diametro", "8");
    f.At("UCArCer").Set("Separacion", "25");
    f.At("UCMall", 0).Set("Diametro", "6");
    f.At("UCMall", 0).Set("Separacion", "20");
    Control& p = f.At("UCPerfil1");
    p.Set("Num", "2");
    p.Set("Perfil", "HEB");
    p.Set("Tamano", "200");
    p.Set("Ancho", "45.0");
    Control& u = f.At("UCViga", 2);
    u.Set("Num", "1");
    u.Set("Perfil", "otro");
    u.Set("Canto", "31.5");
    u.Set("Ancho", "12");
    u.Set("Area", "66.50");
    u.Set("Ix", "9000.25");
    u.Set("Iy", "450");
    f.At("txtTitulo").SetText("Zapata muro norte");
    f.At("CmbHorm").SetListIndex(5);
    f.At("CmbAcero").SetListIndex(2);
    f.At("TxtRes1", 1).SetText("");
}

void ExpectSameValues(const Form& a, const Form& b)
{
    auto ca = a.StoredControls(), cb = b.StoredControls();
    ASSERT_EQ(ca.size(), cb.size());
    for (size_t i = 0; i < ca.size(); ++i) {
        SCOPED_TRACE(ca[i]->Label());
        switch (ca[i]->kind()) {
        case Kind::TextBox: EXPECT_EQ(ca[i]->Text(), cb[i]->Text()); break;
        case Kind::ComboBox: EXPECT_EQ(ca[i]->ListIndex(), cb[i]->ListIndex()); break;
        case Kind::OptionButton: EXPECT_EQ(ca[i]->OptionValue(), cb[i]->OptionValue()); break;
        case Kind::CheckBox: EXPECT_EQ(ca[i]->CheckValue(), cb[i]->CheckValue()); break;
        default:
            for (const char* p : {"Num", "Perfil", "Tamano", "Canto", "Ancho", "Area", "Ix", "Iy", "NumBarras",
                                  "Diametro", "Separacion"})
                EXPECT_EQ(ca[i]->Get(p), cb[i]->Get(p)) << p;
        }
    }
}

class Records : public ::testing::Test {
protected:
    void SetUp() override { app.decl.Mensajes[1355] = "Registro de una versión posterior"; }
    test::TestApp app;
    test::ScratchDir dir;
};

TEST_F(Records, PositionalThenNamedRoundTripKeepsEveryValue)
{
    auto original = MakeForm(app.decl);
    FillDistinct(*original);
    const std::string pos = dir / "Zapata.~ZC";
    FormGuardaFile(*original, pos);

    auto fromPositional = MakeForm(app.decl);
    EXPECT_EQ(FormLeeFile(*fromPositional, pos), ReadOutcome::Positional);
    EXPECT_FLOAT_EQ(app.decl.VersionArchivo, 3.01f);
    ExpectSameValues(*original, *fromPositional);

    const std::string named = dir / "Zapata2.~ZC";
    FormGuardaFile2(*fromPositional, named);
    auto fromNamed = MakeForm(app.decl);
    EXPECT_EQ(FormLeeFile(*fromNamed, named), ReadOutcome::Named);
    EXPECT_FLOAT_EQ(app.decl.VersionArchivo, 3.5f);
    ExpectSameValues(*original, *fromNamed);
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(Records, WritersProduceTheDocumentedLines)
{
    auto f = MakeForm(app.decl);
    FillDistinct(*f);
    const std::string pos = PositionalText(*f);
    EXPECT_NE(pos.find("\"Check1\",1\n\"TxtQ\",\"3,75\"\n\"UCArmZap\",\"9\",\"16 \",\"17.5\"\n"), std::string::npos);
    EXPECT_NE(pos.find("\"OpTipoMuro\",#FALSE#\n\"OpTipoMuro\",#TRUE#\n"), std::string::npos);
    EXPECT_NE(pos.find("\"UCPerfil1\",\"2\",\"HEB\",\"200\",\"45.0\"\n"), std::string::npos);
    EXPECT_NE(pos.find("\"UCViga\",\"1\",\"otro\",\"31.5\",\"12\",\"66.50\",\"9000.25\",\"450\"\n"), std::string::npos);
    EXPECT_NE(pos.find("\"CmbHorm\",2\n\"CmbAcero\",2\n"), std::string::npos);
    EXPECT_EQ(pos.find("Label1"), std::string::npos);

    const std::string named = NamedText(*f);
    EXPECT_EQ(named.rfind("Vardena 3\t3.50\nCheck1 [CheckBox]\t.Value\t1\nTxtQ(2) [TextBox]\t.Text\t3,75\n", 0), 0u);
    EXPECT_NE(named.find("UCArmZap(0) [UCZapatas]\t.NumBarras\t9\n\t.Diametro\t16 \n\t.Separacion\t17.5\n"),
              std::string::npos);
    EXPECT_NE(named.find("OpTipoMuro(1) [OptionButton]\t.Value\tFalse\n"), std::string::npos);
    EXPECT_NE(named.find("UCPerfil1 [UCPerfil]\t.Num\t2\n\t.Perfil\tHEB\n\t.Ancho\t45.0\n\t.Tamano\t200\n"),
              std::string::npos);
    EXPECT_NE(named.find("UCViga(2) [UCPerfil]\t.Num\t1\n\t.Perfil\totro\n\t.Ancho\t12\n\t.Canto\t31.5\n\t.Area\t66.50\n"
                         "\t.Ix\t9000.25\n\t.Iy\t450\n"),
              std::string::npos);
    EXPECT_NE(named.find("CmbHorm [ComboBox]\t.ListIndex\t5\n"), std::string::npos);
    EXPECT_NE(named.find("TxtRes1(1) [TextBox]\t.Text\t\n"), std::string::npos);

    // On disk: Windows-1252 with CR LF.
    FormGuardaFile2(*f, dir / "x.~ZC");
    const std::string bytes = test::ReadBytes(dir / "x.~ZC");
    EXPECT_EQ(bytes.rfind("Vardena 3\t3.50\r\n", 0), 0u);
    EXPECT_NE(bytes.find("Compresi\xf3n oblicua \xb7 \xf1"), std::string::npos);
}

TEST_F(Records, CmbHormCollapsesRowThreeOnly)
{
    for (int row = 0; row < 10; ++row) {
        auto f = MakeForm(app.decl);
        f->At("CmbHorm").SetListIndex(row);
        FormGuardaFile(*f, dir / "h.~ZC");
        auto g = MakeForm(app.decl);
        FormLeeFile(*g, dir / "h.~ZC");
        EXPECT_EQ(g->At("CmbHorm").ListIndex(), row == 3 ? 0 : row) << "row " << row;
    }
    EXPECT_EQ(CmbHormAIndiceGuardado(1), -3);
    EXPECT_EQ(CmbHormAIndiceGuardado(2), -2);
    EXPECT_EQ(CmbHormAIndiceGuardado(3), 0);
    EXPECT_EQ(CmbHormDeIndiceGuardado(-1), 3);
    EXPECT_EQ(CmbHormDeIndiceGuardado(1), 4);
}

TEST_F(Records, NamedReaderVersionGate)
{
    struct Row {
        const char* name;
        std::string firstLine;
        ReadOutcome outcome;
    };
    const std::vector<Row> rows = {
        {"own version", "Vardena 3\t3.50", ReadOutcome::Named},
        {"older", "Vardena 3\t3.01", ReadOutcome::Named},
        {"newer minor", "Vardena 3\t3.51", ReadOutcome::Refused},
        {"next major", "Vardena 4\t4.00", ReadOutcome::Refused},
        {"other product", "Calculo 3\t3.00", ReadOutcome::Refused},
    };
    for (const auto& r : rows) {
        auto f = MakeForm(app.decl);
        f->At("TxtQ", 2).SetText("antes");
        test::WriteDiskText(dir / "v.~ZC", r.firstLine + "\nTxtQ(2) [TextBox]\t.Text\tdespués\n");
        app.ui.boxes.clear();
        EXPECT_EQ(FormLeeFile(*f, dir / "v.~ZC"), r.outcome) << r.name;
        if (r.outcome == ReadOutcome::Refused) {
            ASSERT_EQ(app.ui.boxes.size(), 1u) << r.name;
            EXPECT_EQ(app.ui.boxes[0].prompt, "Registro de una versión posterior");
            EXPECT_EQ(app.ui.boxes[0].style, mb::Exclamation);
            EXPECT_EQ(f->At("TxtQ", 2).Text(), "antes") << r.name;
        } else {
            EXPECT_TRUE(app.ui.boxes.empty()) << r.name;
            EXPECT_EQ(f->At("TxtQ", 2).Text(), "después") << r.name;
        }
    }
}

TEST_F(Records, NamedReaderLineRules)
{
    auto f = MakeForm(app.decl);
    test::WriteDiskText(dir / "n.~ZC",
                        "Vardena 3\t3.50\n"
                        "TxtQ(2) [TextBox]\t.Text\t\n"                 // empty text
                        "TxtQ(0) [TextBox]\t.Text\t uno\tdos\n"         // a tab cuts the text
                        "txtTitulo [TextBox]\t.Value\tignorada\n"       // property of another kind
                        "CmbAcero [ComboBox]\t.ListIndex\t2\n"
                        "Check1 [Desconocido]\t.Value\t1\n"             // unknown kind: ignored
                        "UCArmZap(0) [UCZapatas]\t.NumBarras\t4\n"
                        "\t.Diametro\t  10\n"                           // continuation line, left-trimmed
                        "\t.Separacion\t30\n");
    EXPECT_EQ(FormLeeFile2(*f, dir / "n.~ZC"), ReadOutcome::Named);
    EXPECT_EQ(f->At("TxtQ", 2).Text(), "");
    EXPECT_EQ(f->At("TxtQ", 0).Text(), " uno");
    EXPECT_EQ(f->At("CmbAcero").ListIndex(), 2);
    EXPECT_EQ(f->At("Check1").CheckValue(), 0);
    EXPECT_EQ(f->At("UCArmZap", 0).Get("Diametro"), "10");
    EXPECT_EQ(f->At("UCArmZap", 0).Get("Separacion"), "30");
}

// Inputs that no reader accepts: each ends in the error window, names the file, and changes
// nothing on disk.
TEST_F(Records, BadRecordsGoToTheErrorWindowAndNameTheFile)
{
    struct Row {
        const char* name;
        std::string bytes;
        const char* origin;
    };
    const std::vector<Row> rows = {
        {"shorter than the form", "\"Check1\",1\r\n\"TxtQ\",\"2.5\"\r\n", "Subrut_FormLeeFile"},
        {"unterminated quote", "\"Check1\",1\r\n\"TxtQ\",\"2.5\r\n", "Subrut_FormLeeFile"},
        {"not text", std::string("\"Check1\",1\r\n\0\0\x01\x02", 16), "Subrut_FormLeeFile"},
        {"names a control the form lacks", "Vardena 3\t3.50\r\nTxtNada [TextBox]\t.Text\t1\r\n", "Subrut_FormLeeFile2"},
        {"combo index outside its rows", "Vardena 3\t3.50\r\nCmbAcero [ComboBox]\t.ListIndex\t7\r\n",
         "Subrut_FormLeeFile2"},
        {"check value out of range", "\"Check1\",5\r\n", "Subrut_FormLeeFile"},
    };
    for (const auto& r : rows) {
        const std::string path = dir / "bad.~ZC";
        test::WriteBytes(path, r.bytes);
        auto f = MakeForm(app.decl);
        app.ui.errors.clear();
        try {
            FormLeeFile(*f, path);
            ADD_FAILURE() << r.name << ": read without error";
        } catch (const ProgramHalt& e) {
            EXPECT_NE(std::string(e.what()).find(path), std::string::npos) << r.name << ": " << e.what();
        }
        ASSERT_EQ(app.ui.errors.size(), 1u) << r.name;
        EXPECT_EQ(app.ui.errors[0].origin, r.origin) << r.name;
        EXPECT_EQ(test::ReadBytes(path), r.bytes) << r.name;
    }
}

TEST_F(Records, RetryReadsAgainAndSalirEndsTheProgram)
{
    const std::string path = dir / "r.~ZC";
    test::WriteBytes(path, "\"Check1\",1\r\n");
    auto f = MakeForm(app.decl);
    app.ui.retries = 1;
    EXPECT_THROW(FormLeeFile(*f, path), ProgramHalt);
    EXPECT_EQ(app.ui.errors.size(), 2u) << "one retry, then Salir";
}

TEST_F(Records, LongerPositionalFileIsAccepted)
{
    auto f = MakeForm(app.decl);
    FillDistinct(*f);
    test::WriteDiskText(dir / "l.~ZC", PositionalText(*f) + "\"Sobrante\",\"x\"\n");
    auto g = MakeForm(app.decl);
    EXPECT_EQ(FormLeeFile(*g, dir / "l.~ZC"), ReadOutcome::Positional);
    ExpectSameValues(*f, *g);
}

TEST_F(Records, AFirstNameThatDiffersIsTakenForANamedFile)
{
    auto f = MakeForm(app.decl);
    test::WriteDiskText(dir / "o.~ZC", "\"Otro\",1\n");
    // The named reader then refuses it: no version line.
    EXPECT_EQ(FormLeeFile(*f, dir / "o.~ZC"), ReadOutcome::Refused);
    EXPECT_EQ(app.ui.boxes.size(), 1u);
}

// Old editors closed text files with 0x1A bytes: a record that ends in them reads as without
// them, in both formats, and converts.
TEST_F(Records, TrailingEndOfFileMarksAreDropped)
{
    auto original = MakeForm(app.decl);
    FillDistinct(*original);
    const std::string positional = ToDiskText(PositionalText(*original));
    const std::string named = ToDiskText(NamedText(*original));
    struct Row {
        const char* name;
        std::string bytes;
        ReadOutcome outcome;
    };
    const std::vector<Row> rows = {
        {"after the last line end", positional + "\x1A", ReadOutcome::Positional},
        {"several", positional + "\x1A\x1A\x1A", ReadOutcome::Positional},
        {"right after the last value", positional.substr(0, positional.size() - 2) + "\x1A", ReadOutcome::Positional},
        {"a named record", named + "\x1A\x1A", ReadOutcome::Named},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        test::WriteBytes(dir / "z.~ZC", r.bytes);
        auto f = MakeForm(app.decl);
        EXPECT_EQ(FormLeeFile(*f, dir / "z.~ZC"), r.outcome);
        ExpectSameValues(*original, *f);
        FormGuardaFile2(*f, dir / "z2.~ZC");
        EXPECT_EQ(test::ReadBytes(dir / "z2.~ZC"), named);
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

// Control bytes other than the line ends inside a value are data: they read and write back
// unchanged through both formats.
TEST_F(Records, ControlBytesInsideAValueRoundTrip)
{
    for (const std::string value : {"a\x01" "b", "esc\x1b[1m", "fin\x1A medio", "\x02\x03\x1f\x7f", "\x0b\x0c"}) {
        SCOPED_TRACE(testing::PrintToString(value));
        auto original = MakeForm(app.decl);
        FillDistinct(*original);
        original->At("TxtQ", 0).SetText(value);
        original->At("txtTitulo").SetText("t" + value);
        FormGuardaFile(*original, dir / "c.~ZC");
        auto fromPositional = MakeForm(app.decl);
        EXPECT_EQ(FormLeeFile(*fromPositional, dir / "c.~ZC"), ReadOutcome::Positional);
        ExpectSameValues(*original, *fromPositional);
        FormGuardaFile2(*fromPositional, dir / "c2.~ZC");
        EXPECT_NE(test::ReadBytes(dir / "c2.~ZC").find("TxtQ(0) [TextBox]\t.Text\t" + value + "\r\n"), std::string::npos);
        auto fromNamed = MakeForm(app.decl);
        EXPECT_EQ(FormLeeFile(*fromNamed, dir / "c2.~ZC"), ReadOutcome::Named);
        ExpectSameValues(*original, *fromNamed);
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

}  // namespace
}  // namespace vardena
