// The life cycle that every element window shares: load, choose a record, save, delete.

#include <gtest/gtest.h>

#include <filesystem>

#include "frame/DatosForms.h"
#include "frame/ElementForm.h"
#include "test_forms_comun.h"
#include "works/Registros.h"
#include "works/Subrut.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

// A recycle bin that keeps the names of what it received and removes the files.
class PapeleraDePrueba : public RecycleBin {
public:
    explicit PapeleraDePrueba(std::vector<std::string>& recibidos) : recibidos_(recibidos) {}
    bool APapelera(const std::string& path) override
    {
        recibidos_.push_back(ArchivoDe(path));
        return fs::remove(path);
    }

private:
    std::vector<std::string>& recibidos_;
};

class Ciclo : public ::testing::Test {
protected:
    Ciclo() { obra.app.platform.recycleBin = std::make_unique<PapeleraDePrueba>(papelera); }

    // Saves a record of `form` under `title` (named format) with its results file.
    void Registro(const std::string& formName, const std::string& title, const std::string& code)
    {
        auto f = CreaForm(d(), formName);
        f->At("txtTitulo").SetText(title);
        FormGuardaFile2(*f, obra.dir / (title + ".~" + code));
        WriteDiskText(obra.dir / (title + ".l" + code), "{\\rtf1 " + title + "}");
    }
    std::unique_ptr<ElementForm> Carga(const std::string& name)
    {
        std::unique_ptr<Form> f = CargaForm(d(), name);
        return std::unique_ptr<ElementForm>(dynamic_cast<ElementForm*>(f.release()));
    }
    Declaraciones& d() { return obra.d(); }
    RecordingUi& ui() { return obra.app.ui; }

    ObraDePrueba obra;
    std::vector<std::string> papelera;
};

TEST_F(Ciclo, EmptyListSavesUnderTheDefaultTitle)
{
    auto form = Carga("frmZapCorr");
    EXPECT_EQ(form->At("List1").ListCount(), 0);
    form->At("CmdCalcular").Click();
    const std::string title = TituloPorDefecto("frmZapCorr");
    ASSERT_FALSE(title.empty());
    EXPECT_EQ(Lineas(ReadDiskText(obra.dir / (title + ".~ZC"))).at(0), "Vardena 3\t3.50");
    EXPECT_EQ(d().ResultadoCalculo, 1);
    EXPECT_TRUE(ui().boxes.empty());
}

TEST_F(Ciclo, TitleRefusesTheCharactersOfNoFileName)
{
    auto form = Carga("frmZapCorr");
    Control& titulo = form->At("txtTitulo");
    for (char k : std::string("\\:/*?\"<>|"))
        EXPECT_EQ(titulo.KeyPress(k), 0) << k;
    for (char k : std::string("aZ1 -.,ñ()"))
        EXPECT_EQ(titulo.KeyPress(static_cast<unsigned char>(k)), static_cast<unsigned char>(k)) << k;
}

TEST_F(Ciclo, ChoosingARowReadsTheRecordAndShowsItsVersion)
{
    Registro("frmZapCorr", "Zapata 1", "ZC");
    auto form = Carga("frmZapCorr");
    Control& list = form->At("List1");
    ASSERT_EQ(list.Items(), std::vector<std::string>{"Zapata 1"});
    form->At("CmdCalcular").SetEnabled(false);
    list.SetListIndex(0);
    EXPECT_EQ(form->At("txtTitulo").Text(), "Zapata 1");
    EXPECT_EQ(form->At("Lbvers").Caption(), "vers:  3.5");
    EXPECT_EQ(list.ToolTipText(), "");
    EXPECT_TRUE(form->At("CmdCalcular").Enabled());
    EXPECT_EQ(form->At("RichTextBox1").Text(), "{\\rtf1 Zapata 1}");
    EXPECT_EQ(d().Cargando, kFalse);
}

// How many times a row is read, and whether the loading guard is up while it is, by form.
TEST_F(Ciclo, ReadingFollowsTheFormsLifeCycleRow)
{
    struct Row {
        const char* form;
        const char* code;
        int lecturas;
        bool guarda;
    };
    const std::vector<Row> rows = {
        {"frmZapCorr", "ZC", 2, true}, {"frmAbaco", "HV", 1, false}, {"frmVigHorm", "HJ", 1, true},
        {"frmMuroH", "ZM", 2, true},   {"frmPilMade", "MC", 1, false},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.form);
        Registro(r.form, "Elemento", r.code);
        auto form = Carga(r.form);
        // A list's row is set on every reading, changed or not. The last list of the form is
        // not touched by the positional reader's first try at a named record.
        Control* combo = nullptr;
        for (Control* c : form->StoredControls())
            if (c->kind() == Kind::ComboBox && c->ListCount() > 0)
                combo = c;
        ASSERT_NE(combo, nullptr);
        int lecturas = 0;
        int16_t cargando = 0;
        combo->onClick = [&](Control&) {
            ++lecturas;
            cargando = d().Cargando;
        };
        form->At("List1").SetListIndex(0);
        EXPECT_EQ(lecturas, r.lecturas);
        EXPECT_EQ(cargando, r.guarda ? kTrue : kFalse);
        EXPECT_EQ(d().Cargando, kFalse);
    }
}

TEST_F(Ciclo, SavingLeavesTheListAndKeepsValuesBelowTheirMinimums)
{
    Registro("frmZapCorr", "Zapata 1", "ZC");
    auto form = Carga("frmZapCorr");
    form->At("txtTitulo").SetText("Zapata 2");
    form->At("TxCotaMuro").SetText("5");  // its minimum is 10
    form->At("TxCotaAlto").SetText("-1");
    form->At("CmdCalcular").Click();
    EXPECT_EQ(form->At("List1").Items(), std::vector<std::string>{"Zapata 1"});
    const std::string record = ReadDiskText(obra.dir / "Zapata 2.~ZC");
    EXPECT_NE(record.find("\nTxCotaMuro [TextBox]\t.Text\t5\n"), std::string::npos) << record;
    EXPECT_NE(record.find("\nTxCotaAlto [TextBox]\t.Text\t-1\n"), std::string::npos) << record;
    EXPECT_TRUE(ui().boxes.empty());
}

TEST_F(Ciclo, DeleteSendsResultsAndRecordToTheRecycleBin)
{
    struct Row {
        const char* name;
        std::function<void(Control&)> action;
        int answer;
        std::vector<std::string> expected;
    };
    const std::vector<Row> rows = {
        {"double click, yes", [](Control& l) { l.DblClick(); }, mb::Yes, {"Zapata 1.lZC", "Zapata 1.~ZC"}},
        {"Delete key, yes", [](Control& l) { l.KeyDown(46); }, mb::Yes, {"Zapata 1.lZC", "Zapata 1.~ZC"}},
        {"double click, no", [](Control& l) { l.DblClick(); }, mb::No, {}},
        {"another key", [](Control& l) { l.KeyDown(45); }, mb::Yes, {}},
    };
    d().Mensajes[173] = "¿Borrar ";
    for (const auto& r : rows) {
        SCOPED_TRACE(r.name);
        papelera.clear();
        ui().boxes.clear();
        Registro("frmZapCorr", "Zapata 1", "ZC");
        auto form = Carga("frmZapCorr");
        Control& list = form->At("List1");
        list.SetListIndex(0);
        ui().answers = {r.answer};
        r.action(list);
        EXPECT_EQ(papelera, r.expected);
        EXPECT_EQ(list.ListCount(), r.expected.empty() ? 1 : 0);
        if (r.answer == mb::No) {
            EXPECT_EQ(ui().boxes.at(0).prompt, "¿Borrar Zapata 1?");
        }
    }
}

TEST_F(Ciclo, ListadoSwapsTheDataAndTheResult)
{
    auto form = Carga("frmZapCorr");
    Control& rtb = form->At("RichTextBox1");
    Control& frm = form->At("Frm1");
    EXPECT_FALSE(rtb.Visible());
    form->At("Listado1").Click();
    EXPECT_TRUE(rtb.Visible());
    EXPECT_FALSE(frm.Visible());
    form->At("Listado1").Click();
    EXPECT_FALSE(rtb.Visible());
    EXPECT_TRUE(frm.Visible());
    form->At("CmdSalir").Click();
    EXPECT_TRUE(form->Descargado());
}

// Forms that ask: a results file of the title makes CmdCalcular ask by messages 10, 11 and 12
// under 13 before anything else; "No" ends the handler.
TEST_F(Ciclo, AskingFormsAskBeforeReplacingAResult)
{
    for (int n : {10, 11, 12, 13})
        d().Mensajes[static_cast<size_t>(n)] = "m" + std::to_string(n);
    struct Row {
        const char* form;
        const char* code;
        int answer;
        bool saved;
        int16_t resultado;
    };
    const std::vector<Row> rows = {
        {"frmEscMade", "ME", mb::No, false, 0},
        {"frmEscMade", "ME", mb::Yes, true, 1},
        {"frmBasMet", "LS", mb::Yes, true, 0},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(std::string(r.form) + (r.answer == mb::Yes ? " yes" : " no"));
        ui().boxes.clear();
        d().ResultadoCalculo = 0;
        WriteDiskText(obra.dir / (std::string("E.l") + r.code), "{\\rtf1 }");
        fs::remove(obra.dir / (std::string("E.~") + r.code));
        auto form = Carga(r.form);
        form->At("txtTitulo").SetText("E");
        ui().answers = {r.answer};
        form->At("CmdCalcular").Click();
        ASSERT_EQ(ui().boxes.size(), 1u);
        EXPECT_EQ(ui().boxes[0].prompt, "m10m11m12");
        EXPECT_EQ(ui().boxes[0].title, "m13");
        EXPECT_EQ(ui().boxes[0].style, 52);
        EXPECT_EQ(fs::exists(obra.dir / (std::string("E.~") + r.code)), r.saved);
        EXPECT_EQ(d().ResultadoCalculo, r.resultado);
    }
    // No results file, no question.
    ui().boxes.clear();
    auto form = Carga("frmBasMet");
    form->At("txtTitulo").SetText("Sin resultado");
    form->At("CmdCalcular").Click();
    EXPECT_TRUE(ui().boxes.empty());
    EXPECT_TRUE(fs::exists(obra.dir / "Sin resultado.~LS"));
}

TEST_F(Ciclo, CheckStepRunsByTheFormsRow)
{
    const std::vector<std::pair<const char*, int16_t>> rows = {
        {"frmVigRegHorm", 1}, {"frmEscHorm", 1}, {"frmPilMet", 1}, {"frmSuelo", 0}, {"frmAccio", 0}};
    for (const auto& [name, resultado] : rows) {
        SCOPED_TRACE(name);
        d().ResultadoCalculo = 0;
        auto form = Carga(name);
        form->At("CmdCalcular").Click();
        EXPECT_EQ(d().ResultadoCalculo, resultado);
        EXPECT_TRUE(ui().errors.empty());
    }
}

TEST_F(Ciclo, ActionsFormKeepsItsOneRecord)
{
    {
        auto form = Carga("frmAccio");
        EXPECT_EQ(form->At("txtTitulo").Text(), "Acciones");
        EXPECT_EQ(form->At("List1").ListCount(), 0);
        form->At("txtNieve").SetText("812");
        form->At("CmdCalcular").Click();
    }
    ASSERT_TRUE(fs::exists(obra.dir / "Acciones.~CK"));
    auto again = Carga("frmAccio");
    EXPECT_EQ(again->At("txtNieve").Text(), "812");
    EXPECT_EQ(again->At("txtTitulo").Text(), "Acciones");
}

TEST_F(Ciclo, FailedSaveGoesToTheErrorWindow)
{
    auto form = Carga("frmZapCorr");
    d().CarpetaObra = obra.dir / "no-existe";
    ui().retries = 1;
    EXPECT_THROW(form->At("CmdCalcular").Click(), ProgramHalt);
    ASSERT_EQ(ui().errors.size(), 2u);  // "Reintentar" once, then "Salir"
    EXPECT_EQ(ui().errors[0].origin, "CmdCalcular_Click");
    EXPECT_EQ(d().ErrorOrigen, "Ok") << "the handler's name goes out, the answer comes back";
}

}  // namespace
}  // namespace vardena::test
