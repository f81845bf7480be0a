// Language packs: the message table, the texts of the forms and the language dialog.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "works/LngPack.h"
#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"

namespace vardena {
namespace {

using test::ReadBytes;
using test::ScratchDir;
using test::TestApp;
using test::WriteBytes;
using test::WriteDiskText;

// A program folder with one language "Prueba" whose files are given; the setting points at it.
struct PackFixture {
    TestApp app;
    ScratchDir dir;
    std::string pack;

    PackFixture()
    {
        app.decl.DirPrograma = dir.path();
        pack = dir.path() + "/lng/Prueba/";
        std::filesystem::create_directories(pack);
        SaveSetting(app.decl, "Preferencias", "Lenguaje", "Prueba");
    }
    void forms(const std::string& utf8) { WriteDiskText(pack + kLngFormsFile, utf8); }
    void messages(const std::string& utf8) { WriteDiskText(pack + kMensajesFile, utf8); }
};

// ---- The message table ----

TEST(CargaMensajes, LineNIsMessageN)
{
    struct Row {
        const char* name;
        std::string bytes;                               // the file as it lies on disk
        std::vector<std::pair<int, std::string>> want;   // messages after loading
    };
    const std::vector<Row> rows = {
        {"crlf", "uno\r\ndos\r\ntres\r\n", {{1, "uno"}, {2, "dos"}, {3, "tres"}, {4, "antes"}}},
        {"empty lines count", "uno\r\n\r\ntres\r\n", {{1, "uno"}, {2, ""}, {3, "tres"}}},
        {"no end of last line", "uno\r\ndos", {{1, "uno"}, {2, "dos"}, {3, "antes"}}},
        {"lone LF and CR", "uno\ndos\rtres", {{1, "uno"}, {2, "dos"}, {3, "tres"}}},
        {"windows-1252", "Instal\xB7lar\r\nDise\xF1o\r\n", {{1, "Instal·lar"}, {2, "Diseño"}}},
        {"blanks kept", " m\r\n\xBF" "Desea borrar el c\xE1lculo \r\n", {{1, " m"}, {2, "¿Desea borrar el cálculo "}}},
        {"empty file stores an empty message 1", "", {{1, ""}, {2, "antes"}}},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        PackFixture f;
        for (int n = 1; n <= 4; ++n)
            f.app.decl.Mensajes[static_cast<size_t>(n)] = "antes";
        WriteBytes(f.pack + kMensajesFile, r.bytes);
        CargaMensajes(f.app.decl);
        EXPECT_EQ(f.app.decl.Msg(0), "");
        for (const auto& [n, text] : r.want)
            EXPECT_EQ(f.app.decl.Msg(n), text) << "message " << n;
    }
}

TEST(CargaMensajes, MissingFileLeavesTheTable)
{
    PackFixture f;
    f.app.decl.Mensajes[7] = "siete";
    CargaMensajes(f.app.decl);
    EXPECT_EQ(f.app.decl.Msg(7), "siete");

    // No pack at all for the language of the setting.
    SaveSetting(f.app.decl, "Preferencias", "Lenguaje", "Klingon");
    CargaIdioma(f.app.decl);
    EXPECT_EQ(f.app.decl.Lenguaje, "Klingon");
    EXPECT_EQ(f.app.decl.Msg(7), "siete");
}

TEST(CargaMensajes, TwoThousandLinesAtMost)
{
    PackFixture f;
    std::string text;
    for (int n = 1; n <= kMaxMessages; ++n)
        text += "m" + std::to_string(n) + "\n";
    f.messages(text);
    CargaMensajes(f.app.decl);
    EXPECT_EQ(f.app.decl.Msg(1), "m1");
    EXPECT_EQ(f.app.decl.Msg(2000), "m2000");

    // Line 2001 is refused with the file's name, and nothing of the table changes.
    f.messages("otro\n" + text);
    try {
        CargaMensajes(f.app.decl);
        FAIL() << "a file of 2001 lines was taken";
    } catch (const FileError& e) {
        EXPECT_NE(std::string(e.what()).find("MsgVardena.txt"), std::string::npos) << e.what();
        EXPECT_NE(std::string(e.what()).find("2001"), std::string::npos) << e.what();
    }
    EXPECT_EQ(f.app.decl.Msg(1), "m1");
    EXPECT_EQ(f.app.decl.Mensajes.size(), static_cast<size_t>(kMaxMessages) + 1);
}

TEST(CargaMensajes, LanguageComesFromTheSetting)
{
    PackFixture f;
    f.messages("prueba\n");
    std::filesystem::create_directories(f.dir.path() + "/lng/Español");
    WriteDiskText(f.dir.path() + "/lng/Español/MsgVardena.txt", "español\n");

    CargaIdioma(f.app.decl);
    EXPECT_EQ(f.app.decl.Msg(1), "prueba");
    EXPECT_EQ(CarpetaIdioma(f.app.decl), f.dir.path() + "/lng/Prueba/");

    // With no setting the language is "Español".
    TestApp fresh;
    fresh.decl.DirPrograma = f.dir.path();
    CargaIdioma(fresh.decl);
    EXPECT_EQ(fresh.decl.Lenguaje, "Español");
    EXPECT_EQ(fresh.decl.Msg(1), "español");
}

// ---- The texts of the forms ----

// A form as designed: the controls the pack below speaks of, with Spanish texts.
struct TestForm : Form {
    explicit TestForm(Declaraciones& d, std::string name = "frmPrueba") : Form(d, std::move(name), "Diseño")
    {
        for (int i = 0; i < 4; ++i)
            Add(Kind::Label, "Lab_1", i).SetCaption("rótulo " + std::to_string(i));
        for (const char* combo : {"Combo1", "Combo2"}) {
            Control& c = Add(Kind::ComboBox, combo);
            c.SetItems({"a", "b", "c", "d"});
        }
        Add(Kind::CommandButton, "Cmd").SetCaption("Aceptar");
        Add(Kind::CheckBox, "Chk").SetCaption("Marca");
        Add(Kind::TextBox, "Txt").SetText("texto");
        Add(Kind::Label, "Mnu").SetCaption("Archivo");
        Add(Kind::Label, "Dire");
        Add(Kind::Label, "Pestanas");
        Add(Kind::Label, "Vista");
    }
};

TEST(TraduceForm, AppliesTheBlockOfTheForm)
{
    PackFixture f;
    f.forms("otroForm [Form]\n"
            ".Caption\tOtro\n"
            "Cmd [CommandButton]\t.Caption\tNo es este\n"
            "\n"
            "frmPrueba [Form]\n"
            ".Caption\tTest form\n"
            "Lab_1(3) [Label]\t.Caption\tThird label\n"
            "Combo1 [ComboBox] #4\t.v0\tone\n"
            ".v1\ttwo\n"
            "\t.v2\t\t\tthree\n"  // runs of tabs are one separator
            ".v3\tfour\n"
            "Combo2 [ComboBox]\t.v0\tnone\n"
            ".v1\tnone\n"
            ".Tooltip\tCombo tip\n"
            "Cmd [CommandButton]\t.Caption\tOK\n"
            ".Tooltip\tPress it\n"
            ".Text\tskipped: a button has no text\n"
            "Chk [CheckBox]\t.Caption\tMark\n"
            "Txt [TextBox]\t.Text\tEnglish text\n"
            "Mnu [Menu]\t.anything\tFile\n"
            "Dire [DirListBox]\t.Caption\tFolder tip\n"
            "Pestanas [TabStrip] #2\t.v1\tFirst tab\n"
            ".t2\tSecond tip\n"
            "Vista [ListView] #3\t.v2\tColumn two\n"
            "Cmd [Form]\t.Caption\tkind Form is skipped\n"
            "Cmd [Image]\t.Caption\tunknown kinds are skipped\n");
    TestForm form(f.app.decl);
    TraduceForm(form);

    EXPECT_EQ(form.Caption(), "Test form");
    EXPECT_EQ(form.At("Lab_1", 3).Caption(), "Third label");
    EXPECT_EQ(form.At("Lab_1", 2).Caption(), "rótulo 2");
    EXPECT_EQ(form.At("Combo1").Items(), (std::vector<std::string>{"one", "two", "three", "four"}));
    EXPECT_EQ(form.At("Combo2").Items(), (std::vector<std::string>{"a", "b", "c", "d"}));
    EXPECT_EQ(form.At("Combo2").ToolTipText(), "Combo tip");
    EXPECT_EQ(form.At("Cmd").Caption(), "OK");
    EXPECT_EQ(form.At("Cmd").ToolTipText(), "Press it");
    EXPECT_EQ(form.At("Chk").Caption(), "Mark");
    EXPECT_EQ(form.At("Txt").Text(), "English text");
    EXPECT_EQ(form.At("Txt").designText, "English text");
    EXPECT_EQ(form.At("Mnu").Caption(), "File");
    EXPECT_EQ(form.At("Dire").ToolTipText(), "Folder tip");
    EXPECT_EQ(form.At("Pestanas").RawGet("Tabs(1).Caption"), "First tab");
    EXPECT_EQ(form.At("Pestanas").RawGet("Tabs(2).ToolTipText"), "Second tip");
    EXPECT_EQ(form.At("Vista").RawGet("ColumnHeaders(2).Text"), "Column two");
}

TEST(TraduceForm, EndsOfTheBlock)
{
    struct Row {
        const char* name;
        std::string pack;
        std::string caption;   // of the form
        std::string cmd;       // caption of Cmd
        std::string chk;       // caption of Chk
    };
    const std::vector<Row> rows = {
        {"a line of tabs ends the block", "frmPrueba [Form]\n.Caption\tT\nCmd [CommandButton]\t.Caption\tOK\n\t\t\nChk [CheckBox]\t.Caption\tMark\n",
         "T", "OK", "Marca"},
        {"a blank line ends the block", "frmPrueba [Form]\n.Caption\tT\nCmd [CommandButton]\t.Caption\tOK\n\nChk [CheckBox]\t.Caption\tMark\n",
         "T", "OK", "Marca"},
        {"a \"[\" in a continuation text makes a header", "frmPrueba [Form]\n.Caption\tT\nCmd [CommandButton]\t.Tooltip\tx\n.Caption\tSee [1]\n",
         "T", "Aceptar", "Marca"},
        {"the first line is the form's, whatever it says", "frmPrueba [Form]\nCmd [CommandButton]\t.Caption\tOK\nChk [CheckBox]\t.Caption\tMark\n",
         "Diseño", "Aceptar", "Mark"},
        {"the form's name is compared with its case", "FRMPRUEBA [Form]\n.Caption\tT\nCmd [CommandButton]\t.Caption\tOK\n",
         "Diseño", "Aceptar", "Marca"},
        {"a name that only begins like the form's", "frmPruebas [Form]\n.Caption\tT\n", "Diseño", "Aceptar", "Marca"},
        {"no block for the form", "otro [Form]\n.Caption\tT\nCmd [CommandButton]\t.Caption\tOK\n", "Diseño", "Aceptar", "Marca"},
        {"the header is the last line", "frmPrueba [Form]\n", "Diseño", "Aceptar", "Marca"},
        {"the next form's header without a blank line", "frmPrueba [Form]\n.Caption\tT\notro [Form]\nChk [CheckBox]\t.Caption\tMark\n",
         "T", "Aceptar", "Mark"},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        PackFixture f;
        f.forms(r.pack);
        TestForm form(f.app.decl);
        TraduceForm(form);
        EXPECT_EQ(form.Caption(), r.caption);
        EXPECT_EQ(form.At("Cmd").Caption(), r.cmd);
        EXPECT_EQ(form.At("Chk").Caption(), r.chk);
    }
}

TEST(TraduceForm, MissingPackLeavesTheDesign)
{
    PackFixture f;   // the folder exists, LngForms.txt does not
    TestForm form(f.app.decl);
    TraduceForm(form);
    EXPECT_EQ(form.Caption(), "Diseño");
    EXPECT_EQ(form.At("Combo1").Items(), (std::vector<std::string>{"a", "b", "c", "d"}));

    SaveSetting(f.app.decl, "Preferencias", "Lenguaje", "Ninguno");
    f.forms("frmPrueba [Form]\n.Caption\tT\n");
    TraduceForm(form);
    EXPECT_EQ(form.Caption(), "Diseño");
}

TEST(TraduceForm, ErrorsNameTheFileAndTheLine)
{
    struct Row {
        const char* name;
        std::string block;
        int number;
    };
    const std::vector<Row> rows = {
        {"a control the form lacks", "Nada [Label]\t.Caption\tx\n", 730},
        {"a member the array lacks", "Lab_1(9) [Label]\t.Caption\tx\n", 730},
        {"an item beyond the list", "Combo1 [ComboBox] #5\t.v4\tfive\n", 381},
    };
    for (const Row& r : rows) {
        SCOPED_TRACE(r.name);
        PackFixture f;
        f.forms("frmPrueba [Form]\n.Caption\tT\n" + r.block);
        TestForm form(f.app.decl);
        try {
            TraduceForm(form);
            FAIL() << "no error";
        } catch (const PropertyError& e) {
            EXPECT_EQ(e.number(), r.number);
            EXPECT_NE(std::string(e.what()).find("LngForms.txt line 3"), std::string::npos) << e.what();
        }
    }
}

TEST(TraduceForm, ReadsTheSettingAtEveryLoad)
{
    PackFixture f;
    f.forms("frmPrueba [Form]\n.Caption\tPrueba\n");
    std::filesystem::create_directories(f.dir.path() + "/lng/Otro");
    WriteDiskText(f.dir.path() + "/lng/Otro/LngForms.txt", "frmPrueba [Form]\n.Caption\tOtro\n");

    TestForm first(f.app.decl);
    TraduceForm(first);
    EXPECT_EQ(first.Caption(), "Prueba");
    SaveSetting(f.app.decl, "Preferencias", "Lenguaje", "Otro");
    TestForm second(f.app.decl);
    TraduceForm(second);
    EXPECT_EQ(second.Caption(), "Otro");
    EXPECT_EQ(f.app.decl.Lenguaje, "Otro");
}

// ---- The language dialog ----

TEST(FrmIdioma, KeepsOnlyCompletePacks)
{
    PackFixture f;
    struct Folder {
        const char* name;
        bool forms;
        bool messages;
    };
    const Folder folders[] = {
        {"Alemán", true, false}, {"Català", true, true}, {"English", true, true},
        {"Español", true, true}, {"Vacío", false, false}, {"Zulú", false, true},
    };
    for (const Folder& l : folders) {
        const std::string dir = f.dir.path() + "/lng/" + l.name + "/";
        std::filesystem::create_directories(dir);
        if (l.forms)
            WriteDiskText(dir + kLngFormsFile, "");
        if (l.messages)
            WriteDiskText(dir + kMensajesFile, "m\n");
    }
    WriteDiskText(f.dir.path() + "/lng/suelto.txt", "");   // a file is no language
    SaveSetting(f.app.decl, "Preferencias", "Lenguaje", "English");

    const std::vector<std::string> complete = {"Català", "English", "Español", "Prueba"};
    // Prueba holds no files until here.
    WriteDiskText(f.pack + kLngFormsFile, "");
    WriteDiskText(f.pack + kMensajesFile, "");
    EXPECT_EQ(IdiomasDisponibles(f.app.decl), complete);

    FrmIdioma dlg(f.app.decl);
    dlg.Form_Load();
    EXPECT_EQ(dlg.At("List1").Items(), complete);
    EXPECT_EQ(dlg.At("List1").SelectedText(), "English");

    // The walk stays at the same row after a removal, so two incomplete rows in a row both go.
    Control& list = dlg.At("List1");
    list.SetItems({"Alemán", "Zulú", "Català", "Vacío", "Inexistente"});
    QuitaIdiomasIncompletos(list, f.dir.path());
    EXPECT_EQ(list.Items(), (std::vector<std::string>{"Català"}));
}

TEST(FrmIdioma, AcceptStoresAndLoadsCancelDoesNot)
{
    PackFixture f;
    f.forms("frmIdioma [Form]\n.Caption\tPick a language\nLabel1 [Label]\t.Caption\tLanguages:\n");
    f.messages("prueba\n");
    std::filesystem::create_directories(f.dir.path() + "/lng/Otro");
    WriteDiskText(f.dir.path() + "/lng/Otro/LngForms.txt", "");
    WriteDiskText(f.dir.path() + "/lng/Otro/MsgVardena.txt", "otro\n");

    FrmIdioma dlg(f.app.decl);
    dlg.Form_Load();
    EXPECT_EQ(dlg.Caption(), "Pick a language");
    EXPECT_EQ(dlg.At("Label1").Caption(), "Languages:");

    // Cancel: nothing stored.
    dlg.At("List1").SetListIndex(0);   // "Otro"
    dlg.At("Cmdcancela").Click();
    EXPECT_TRUE(dlg.Descargado());
    EXPECT_EQ(Setting(f.app.decl, "Preferencias", "Lenguaje"), "Prueba");

    // Accept with no row selected does nothing.
    FrmIdioma none(f.app.decl);
    none.Form_Load();
    none.At("List1").SetListIndex(-1);
    none.At("Cmdacepta").Click();
    EXPECT_FALSE(none.Descargado());

    // Accept stores the row and loads its messages.
    FrmIdioma ok(f.app.decl);
    ok.Form_Load();
    ok.At("List1").SetListIndex(0);
    ok.At("Cmdacepta").Click();
    EXPECT_TRUE(ok.Descargado());
    EXPECT_EQ(Setting(f.app.decl, "Preferencias", "Lenguaje"), "Otro");
    EXPECT_EQ(f.app.decl.Msg(1), "otro");
}

TEST(VaciaNuevos, LeavesAnEmptyFile)
{
    ScratchDir dir;
    TestApp app;
    app.decl.DirPrograma = dir.path();
    WriteBytes(dir / "Nuevos.lng", "viejo");
    VaciaNuevos(app.decl);
    EXPECT_TRUE(std::filesystem::exists(dir / "Nuevos.lng"));
    EXPECT_EQ(ReadBytes(dir / "Nuevos.lng"), "");
}

}  // namespace
}  // namespace vardena
