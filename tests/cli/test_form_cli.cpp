// vardena form and vardena forms on a hand-made work holding a strip footing of version 3.

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TestSupport.h"
#include "works/DatosFile.h"

namespace vardena {
namespace {

// The record of a strip footing as version 3 wrote it, and its stored result.
const char* kZapata1 =
    "\"Check1\",1\n\"TxtQ\",\"2.25\"\n\"UCArmZap\",\"8\",\"12 \",\"20\"\n\"UCArmZap\",\"8\",\"16 \",\"20\"\n"
    "\"OpTipoMuro\",#TRUE#\n\"OpTipoMuro\",#FALSE#\n\"TxtQ\",\"41\"\n\"TxtQ\",\"3,5\"\n\"TxCotaMuro\",\"25\"\n"
    "\"TxCotaAncho\",\"120\"\n\"TxCotaAlto\",\"45\"\n\"txtTitulo\",\"Zapata 1\"\n\"CmbHorm\",2\n\"CmbAcero\",1\n"
    "\"cmbControl\",2\n\"CmbRecub\",4\n\"TxtRes1\",\"Tensión: 1,62 < 2,25\"\n\"TxtRes1\",\"Armado suficiente\"\n";

class CliForm : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.CarpetaObra = dir.path();
        std::string text;
        DatosFile(app.decl, "DATOS.~CE", "G", text);
        test::WriteDiskText(dir / "Zapata 1.~ZC", kZapata1);
        test::WriteDiskText(dir / "Zapata 1.lZC", "{\\rtf1 Zapata 1\\par }");
    }
    int Run(const std::string& args, std::string* out = nullptr, std::string* err = nullptr)
    {
        return test::RunCli("form '" + dir.path() + "' " + args, out, err);
    }
    test::ScratchDir dir;
    test::TestApp app;
};

TEST_F(CliForm, DumpShowsTheRecordOfTheChosenTitle)
{
    std::string out, err;
    ASSERT_EQ(Run("frmZapCorr --title 'Zapata 1' --dump", &out, &err), 0) << err;
    for (const char* line : {"Check1\tCheckBox\t1\n", "TxtQ(2)\tTextBox\t2.25\n", "TxtQ(1)\tTextBox\t3,5\n",
                             "OpTipoMuro(1)\tOptionButton\tTrue\n", "OpTipoMuro(0)\tOptionButton\tFalse\n",
                             "TxCotaAncho\tTextBox\t120\n", "txtTitulo\tTextBox\tZapata 1\n",
                             // Version 3 stored "HA-30" as 2.
                             "CmbHorm\tComboBox\t5\t", "cmbControl\tComboBox\t2\t",
                             "TxtRes1(1)\tTextBox\tTensión: 1,62 < 2,25\n", "List1\tListBox\t0\tZapata 1\n",
                             "Lbvers\tLabel\tvers:  3.01\n"})
        EXPECT_NE(out.find(line), std::string::npos) << line << "\n" << out;
    EXPECT_NE(out.find("UCArmZap(1)\tUCZapatas\tNumBarras=8\tDiametro=16 "), std::string::npos) << out;

    // Without a title the form shows its defaults and lists the record.
    ASSERT_EQ(Run("frmZapCorr --dump", &out, &err), 0) << err;
    EXPECT_NE(out.find("List1\tListBox\t-1\tZapata 1\n"), std::string::npos) << out;
    EXPECT_NE(out.find("TxCotaAncho\tTextBox\t150\n"), std::string::npos) << out;
    EXPECT_NE(out.find("Lbvers\tLabel\tvers: \n"), std::string::npos) << out;
}

TEST_F(CliForm, ConvertirRewritesTheRecordInTheNamedFormat)
{
    const std::string results = test::ReadBytes(dir / "Zapata 1.lZC");
    std::string out, err;
    ASSERT_EQ(Run("frmZapCorr --title 'Zapata 1' --press CmdCalcular --get Lbvers.Caption", &out, &err), 0) << err;
    EXPECT_EQ(out, "vers:  3.01\n");
    const std::string record = test::ReadDiskText(dir / "Zapata 1.~ZC");
    EXPECT_EQ(record.substr(0, record.find('\n')), "Vardena 3\t3.50");
    for (const char* line : {"\nCheck1 [CheckBox]\t.Value\t1\n", "\nTxtQ(1) [TextBox]\t.Text\t3,5\n",
                             "\nUCArmZap(1) [UCZapatas]\t.NumBarras\t8\n\t.Diametro\t16 \n",
                             "\nCmbHorm [ComboBox]\t.ListIndex\t5\n", "\nTxtRes1(0) [TextBox]\t.Text\tArmado suficiente\n"})
        EXPECT_NE(record.find(line), std::string::npos) << line << "\n" << record;
    EXPECT_EQ(test::ReadBytes(dir / "Zapata 1.lZC"), results);

    // The converted record reads back as the same values.
    ASSERT_EQ(Run("frmZapCorr --title 'Zapata 1' --get 'TxtQ(1)' --get CmbHorm --get Lbvers.Caption", &out, &err), 0);
    // The run time's Str of the version: a blank for the sign, no trailing zero.
    EXPECT_EQ(out, "3,5\n5\tHA-30\nvers:  3.5\n");
}

TEST_F(CliForm, SetFieldsAndSaveANewElement)
{
    std::string out, err;
    ASSERT_EQ(Run("frmZapCorr --set 'txtTitulo=Zapata 2' --set TxCotaAlto=5 --set Check1=1 --set CmbRecub=2 "
                  "--set 'UCArmZap(0).NumBarras=6' --press 'OpTipoMuro(0)' --press CmdCalcular --get List1",
                  &out, &err),
              0)
        << err;
    // The list is not refilled: the new element has no results file yet.
    EXPECT_EQ(out, "-1\tZapata 1\n");
    const std::string record = test::ReadDiskText(dir / "Zapata 2.~ZC");
    for (const char* line : {"\nTxCotaAlto [TextBox]\t.Text\t5\n", "\nCheck1 [CheckBox]\t.Value\t1\n",
                             "\nCmbRecub [ComboBox]\t.ListIndex\t2\n", "\nUCArmZap(0) [UCZapatas]\t.NumBarras\t6\n",
                             "\nOpTipoMuro(0) [OptionButton]\t.Value\tTrue\n"})
        EXPECT_NE(record.find(line), std::string::npos) << line << "\n" << record;
}

TEST_F(CliForm, AskingFormKeepsItsRecordWhenTheAnswerIsNo)
{
    test::WriteDiskText(dir / "Base 1.lLS", "{\\rtf1 }");
    std::string out, err;
    ASSERT_EQ(Run("frmBasMet --set 'txtTitulo=Base 1' --press CmdCalcular --answer no", &out, &err), 0) << err;
    EXPECT_FALSE(std::filesystem::exists(dir / "Base 1.~LS"));
    ASSERT_EQ(Run("frmBasMet --set 'txtTitulo=Base 1' --press CmdCalcular --answer yes", &out, &err), 0) << err;
    EXPECT_TRUE(std::filesystem::exists(dir / "Base 1.~LS"));
}

TEST_F(CliForm, JsonOutput)
{
    std::string out, err;
    ASSERT_EQ(Run("frmZapCorr --title 'Zapata 1' --get 'TxtQ(2)' --get 'UCArmZap(0)' --json", &out, &err), 0) << err;
    EXPECT_NE(out.find("\"TxtQ(2)\": {\"text\": \"2.25\"}"), std::string::npos) << out;
    EXPECT_NE(out.find("\"UCArmZap(0)\": {\"properties\": {\"NumBarras\": \"8\", \"Diametro\": \"12 \""),
              std::string::npos)
        << out;
    ASSERT_EQ(Run("frmZapCorr --dump --json", &out, &err), 0) << err;
    EXPECT_NE(out.find("{\"name\": \"List1\", \"index\": -1, \"kind\": \"ListBox\", \"stored\": false, "
                       "\"listIndex\": -1, \"items\": [\"Zapata 1\"], \"visible\": true, \"enabled\": true}"),
              std::string::npos)
        << out;
}

TEST_F(CliForm, ErrorsAndUsage)
{
    struct Row {
        std::string args;
        int code;
        std::string message;
    };
    const std::vector<Row> rows = {
        {"frmNoHay", 1, "unknown form \"frmNoHay\""},
        {"frmZapCorr --get Nada", 1, "frmZapCorr has no control Nada"},
        {"frmZapCorr --get 'TxtQ(7)'", 1, "its members are TxtQ(2), TxtQ(0), TxtQ(1)"},
        {"frmZapCorr --set TxtQ=3", 1, "give an index"},
        {"frmZapCorr --set 'UCArmZap(0)=3'", 1, "name one of its properties"},
        {"frmZapCorr --set CmbHorm=10", 1, "outside its 10 rows"},
        {"frmZapCorr --press Nada", 1, "no control Nada"},
        {"frmZapCorr --title 'Zapata 9'", 1, "\"Zapata 9\" is not in List1"},
        {"frmEnBlanco", 1, "no row in the element catalogue"},
        {"frmZapCorr --set", 2, "usage: vardena form"},
        {"frmZapCorr --set TxtQ", 2, "usage"},
        {"frmZapCorr --answer maybe", 2, "usage"},
        {"frmZapCorr --bogus", 2, "usage"},
        {"", 2, "usage"},
    };
    for (const auto& r : rows) {
        std::string out, err;
        EXPECT_EQ(Run(r.args, &out, &err), r.code) << r.args << "\n" << err;
        EXPECT_NE(err.find(r.message), std::string::npos) << r.args << "\n" << err;
    }
    std::string out, err;
    EXPECT_EQ(test::RunCli("form '" + dir / "no-existe" + "' frmZapCorr", &out, &err), 1);
    EXPECT_NE(err.find("no-existe"), std::string::npos) << err;
}

TEST_F(CliForm, FormsListsEveryForm)
{
    std::string out, err;
    ASSERT_EQ(test::RunCli("forms", &out, &err), 0) << err;
    EXPECT_NE(out.find("\nfrmZapCorr\tZC\t18\t"), std::string::npos) << out;
    EXPECT_NE(out.find("\nfrmEnBlanco\t-\t8\t"), std::string::npos) << out;
    ASSERT_EQ(test::RunCli("forms --json", &out, &err), 0) << err;
    EXPECT_NE(out.find("{\"name\": \"frmAccio\", \"code\": \"CK\""), std::string::npos) << out;
    EXPECT_EQ(test::RunCli("forms extra", &out, &err), 2);
}

}  // namespace
}  // namespace vardena
