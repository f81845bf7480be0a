// The conversion run on small works made in the test: what it walks, what it leaves, and how it
// stops.

#include <gtest/gtest.h>

#include <filesystem>

#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "works/DatosFile.h"
#include "base/Form.h"
#include "works/Registros.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;

class Run : public ::testing::Test {
protected:
    void SetUp() override
    {
        app.decl.Mensajes[1307] = "Conversión terminada";
        app.decl.CarpetaObra = dir.path();
        test::WriteDiskText(dir / "DATOS.~CE", DatosText(app.decl, 3.01));
        test::WriteDiskText(dir / "DESCR.~CE", "Obra de prueba\n");
        std::string text;
        DatosFile(app.decl, "DATOS.~CE", "L", text);
    }
    // A positional record of the form with its design values, and its results file.
    void Record(const std::string& form, const std::string& title, bool results = true)
    {
        auto f = CargaForm(app.decl, form);
        f->At("txtTitulo").SetText(title);
        const std::string code = CodigoDeForm(app.decl, form);
        FormGuardaFile(*f, dir / (title + ".~" + code));
        if (results)
            test::WriteBytes(dir / (title + ".l" + code), "{\\rtf1 x}");
    }
    int Boxes(const std::string& prompt) const
    {
        int n = 0;
        for (const auto& b : app.ui.boxes)
            n += b.prompt == prompt;
        return n;
    }
    test::TestApp app;
    test::ScratchDir dir;
    std::vector<std::string> list2;
};

TEST_F(Run, WorkWithoutElementsRunsOnlyTheGeneralData)
{
    ConversionLog log = Convierte(app.decl, list2);
    EXPECT_TRUE(log.completed);
    const std::vector<std::string> forms = {"DatosGen", "DatosGen"};
    EXPECT_EQ(log.list4, forms) << "once per .~CE file: DATOS and DESCR";
    EXPECT_EQ(Boxes("Conversión terminada"), 1);
    EXPECT_FLOAT_EQ(app.decl.VersionObra, 3.5f) << "the general data are read again";
    EXPECT_EQ(test::ReadDiskText(dir / "DESCR.~CE"), "Obra de prueba\n") << "the description is not changed";
}

TEST_F(Run, EachCodeRunsOnceAndTheListIsNotCleared)
{
    Record("frmZapCorr", "Z1");
    Record("frmZapCorr", "Z2");
    Record("frmVigPared", "V1");
    Record("frmMuroAnclado", "M1");
    Record("frmVigHorm", "Sin resultados", false);
    test::WriteBytes(dir / "Solo.lHJ", "{\\rtf1 x}");
    test::WriteBytes(dir / "Talud.lZT", "{\\rtf1 x}");
    ConversionLog log = Convierte(app.decl, list2);
    ASSERT_TRUE(log.completed) << log.error;
    // frmVigPared and frmMuroAnclado are run but not entered in the list of finished forms.
    // The record never checked starts code HJ, whose list holds "Solo", a results file without a
    // record: its save goes under the form's current title.
    const std::vector<std::string> forms = {"DatosGen", "DatosGen", "frmVigHorm", "frmZapCorr"};
    EXPECT_EQ(log.list4, forms);
    EXPECT_EQ(log.records, 5);
    EXPECT_EQ(test::ReadBytes(dir / "Z2.~ZC").rfind("Vardena 3\t3.50\r\n", 0), 0u);
    EXPECT_EQ(test::ReadBytes(dir / "Sin resultados.~HJ").rfind("\"", 0), 0u) << "never checked: stays positional";
    EXPECT_FALSE(fs::exists(dir / "Solo.~HJ"));
    for (const auto& e : log.entries)
        EXPECT_NE(e.form, "frmTalud") << "a code with results files only never loads its form";

    // The hidden list keeps the first run's names: a second run in the same window walks them
    // again, under the new work's folder.
    const std::vector<std::string> firstRun = list2;
    Convierte(app.decl, list2);
    ASSERT_GT(list2.size(), firstRun.size());
    EXPECT_TRUE(std::equal(firstRun.begin(), firstRun.end(), list2.begin()));
}

TEST_F(Run, AFolderRemovedDuringTheRunEndsItAndTheLogSaysWhere)
{
    Record("frmZapCorr", "Z1");
    Record("frmZapCorr", "Z2");
    int calls = 0;
    app.decl.DoEvents = [&] {
        if (++calls == 1)
            fs::remove_all(dir.path());
    };
    ConversionLog log = Convierte(app.decl, list2);
    EXPECT_FALSE(log.completed);
    EXPECT_FALSE(log.error.empty());
    ASSERT_FALSE(log.entries.empty());
    EXPECT_EQ(log.entries.back().status, ConversionEntry::Status::Failed);
    EXPECT_EQ(app.ui.errors.size(), 1u) << "the error window was shown once, and answered Salir";
    EXPECT_EQ(Boxes("Conversión terminada"), 0);
}

TEST_F(Run, DispatchTable)
{
    struct Row {
        const char* code;
        const char* form;
        bool records;
    };
    for (const Row& r : std::vector<Row>{{"CE", "DatosGen", false}, {"CK", "frmAccio", false},
                                         {"ZC", "frmZapCorr", true},  {"CS", "frmSuelo", true},
                                         {"LS", "", false},           {"LZ", "", false},
                                         {"ME", "", false},           {"DP", "", false},
                                         {"QQ", "", false}}) {
        EXPECT_EQ(FormDeCodigo(r.code), r.form) << r.code;
        EXPECT_EQ(SeRecorreEntero(r.code), r.records) << r.code;
    }
}

}  // namespace
}  // namespace vardena
