// The composite controls in element records: a version 3 record read and written back in the
// named format, and round trips of both formats.

#include <gtest/gtest.h>

#include <memory>

#include "frame/Refuerzos.h"
#include "support/TestSupport.h"
#include "base/Form.h"
#include "works/Registros.h"

namespace vardena {
namespace {

// One control of each composite kind, a second selector for a user's section, and a title.
std::unique_ptr<Form> MakeForm(Declaraciones& d)
{
    auto f = std::make_unique<Form>(d, "frmPrueba");
    f->Add(Kind::UCNumDiam, "UCArVig", 0);
    f->Add(Kind::UCNumDiamSep, "UCArCer");
    f->Add(Kind::UCZapatas, "UCArmZap");
    f->Add(Kind::UCMallazo, "UCMall");
    f->Add(Kind::UCPerfil, "UCPerfil1");
    f->Add(Kind::UCPerfil, "UCViga");
    f->Add(Kind::TextBox, "txtTitulo");
    for (Control* c : f->Controls())
        InstalaControlCompuesto(*c);
    return f;
}

struct UCRegistros : ::testing::Test {
    test::TestApp app;
    test::ScratchDir dir;
    std::unique_ptr<Form> form = MakeForm(app.decl);

    // Reads `path` into a fresh form and returns it.
    std::unique_ptr<Form> Lee(const std::string& path, ReadOutcome esperado)
    {
        auto f = MakeForm(app.decl);
        EXPECT_EQ(FormLeeFile(*f, path), esperado);
        return f;
    }
};

// A record of version 3, as it stands on disk.
const char* const kPosicional =
    "\"UCArVig\",\"4\",\"12 \"\n"
    "\"UCArCer\",\"2\",\"8 \",\"15\"\n"
    "\"UCArmZap\",\"8\",\"12\",\"25\"\n"
    "\"UCMall\",\"5 \",\"15\"\n"
    "\"UCPerfil1\",\"1\",\"IPE\",\"100\",\"8\"\n"
    "\"UCViga\",\"1\",\"xxx\",\"30\",\"15\",\"45.5\",\"4000\",\"300\"\n"
    "\"txtTitulo\",\"Zapata 1\"\n";

// What the conversion writes for it. The footing's 8 bars disagree with its spacing of 25 under
// the width of 150: the bars follow the spacing, (150 - 10) / 25 + 1 = 6. The single IPE 100
// stored a typed width of 8; its Ancho reads back as what the control shows, the section's
// width 5.5. The "xxx" section stays a user's section with every text as stored.
const char* const kNombrado =
    "Vardena 3\t3.50\n"
    "UCArVig(0) [UCNumDiam]\t.NumBarras\t4\n"
    "\t.Diametro\t12 \n"
    "UCArCer [UCNumDiamSep]\t.NumBarras\t2\n"
    "\t.Diametro\t8 \n"
    "\t.Separacion\t15\n"
    "UCArmZap [UCZapatas]\t.NumBarras\t6\n"
    "\t.Diametro\t12\n"
    "\t.Separacion\t25\n"
    "UCMall [UCMallazo]\t.Diametro\t5 \n"
    "\t.Separacion\t15\n"
    "UCPerfil1 [UCPerfil]\t.Num\t1\n"
    "\t.Perfil\tIPE\n"
    "\t.Ancho\t5.5\n"
    "\t.Tamano\t100\n"
    "UCViga [UCPerfil]\t.Num\t1\n"
    "\t.Perfil\txxx\n"
    "\t.Ancho\t15\n"
    "\t.Canto\t30\n"
    "\t.Area\t45.5\n"
    "\t.Ix\t4000\n"
    "\t.Iy\t300\n"
    "txtTitulo [TextBox]\t.Text\tZapata 1\n";

TEST_F(UCRegistros, AVersion3RecordConvertsAsTheControlsRulesSay)
{
    const std::string viejo = dir / "Zapata 1.~ZC";
    test::WriteDiskText(viejo, kPosicional);
    auto leido = Lee(viejo, ReadOutcome::Positional);
    EXPECT_EQ(leido->At("UCViga").Get("IndicePerfil"), "6");
    const std::string nuevo = dir / "nuevo.~ZC";
    FormGuardaFile2(*leido, nuevo);
    EXPECT_EQ(test::ReadDiskText(nuevo), kNombrado);

    // Converted once, the record reads and writes back unchanged.
    auto otra = Lee(nuevo, ReadOutcome::Named);
    EXPECT_EQ(NamedText(*otra), kNombrado);
}

// Values of every property a form stores, as the writers see them.
std::vector<std::string> Valores(const Form& f)
{
    std::vector<std::string> out;
    for (const Control* c : f.StoredControls()) {
        if (c->kind() == Kind::TextBox) {
            out.push_back(c->Label() + "=" + c->Text());
            continue;
        }
        for (const char* p : {"Num", "Perfil", "Tamano", "Canto", "Ancho", "Area", "Ix", "Iy", "NumBarras", "Diametro",
                              "Separacion"}) {
            try {
                out.push_back(c->Label() + "." + p + "=" + c->Get(p));
            } catch (const PropertyError&) {
            }
        }
    }
    return out;
}

TEST_F(UCRegistros, BothFormatsRoundTripEveryComposite)
{
    Form& f = *form;
    f.At("UCArVig", 0).Set("NumBarras", "5 ");
    f.At("UCArVig", 0).Set("Diametro", "20 ");
    f.At("UCArCer").Set("NumBarras", "3");
    f.At("UCArCer").Set("Diametro", "8 ");
    f.At("UCArCer").Set("Separacion", "25");
    Control& z = f.At("UCArmZap");
    z.Set("NumBarras", "6");  // spacing 28
    z.Set("Diametro", "16 ");
    f.At("UCMall").Set("Diametro", "4.5 ");
    f.At("UCMall").Set("Separacion", "20");
    Control& p = f.At("UCPerfil1");
    p.Set("Num", "2");
    p.Set("Perfil", "HEB");
    p.Set("Tamano", "300");
    p.Set("Ancho", "70");
    Control& u = f.At("UCViga");
    u.Set("Perfil", "otro");
    u.Set("Canto", "25,5");
    u.Set("Ancho", "12");
    u.Set("Area", "30.5");
    u.Set("Ix", "1234.5");
    u.Set("Iy", "321");
    f.At("txtTitulo").SetText("Muro 2");
    const std::vector<std::string> antes = Valores(f);
    EXPECT_EQ(z.Get("Separacion"), "28");
    EXPECT_EQ(p.Get("Ancho"), "70.0");

    const std::string nombrado = dir / "n.~ZC";
    FormGuardaFile2(f, nombrado);
    EXPECT_EQ(Valores(*Lee(nombrado, ReadOutcome::Named)), antes);

    const std::string posicional = dir / "p.~ZC";
    FormGuardaFile(f, posicional);
    const std::string texto = test::ReadDiskText(posicional);
    EXPECT_NE(texto.find("\"UCArmZap\",\"6\",\"16 \",\"28\"\n"), std::string::npos) << texto;
    EXPECT_NE(texto.find("\"UCPerfil1\",\"2\",\"HEB\",\"300\",\"70.0\"\n"), std::string::npos) << texto;
    EXPECT_NE(texto.find("\"UCViga\",\"1\",\"otro\",\"25,5\",\"12\",\"30.5\",\"1234.5\",\"321\"\n"), std::string::npos)
        << texto;
    EXPECT_EQ(Valores(*Lee(posicional, ReadOutcome::Positional)), antes);
}

// A double section stored with a distance narrower than its two sections reads back with
// twice the width.
TEST_F(UCRegistros, ADoubleSectionReadsBackAtLeastTwiceItsWidth)
{
    const std::string path = dir / "d.~ZC";
    std::string texto = kPosicional;
    const std::string viejo = "\"UCPerfil1\",\"1\",\"IPE\",\"100\",\"8\"";
    texto.replace(texto.find(viejo), viejo.size(), "\"UCPerfil1\",\"2\",\"UPN\",\"80\",\"5\"");
    test::WriteDiskText(path, texto);
    auto f = Lee(path, ReadOutcome::Positional);
    const Control& p = f->At("UCPerfil1");
    EXPECT_EQ(p.Get("Ancho"), "9.0");
    EXPECT_EQ(p.Get("Area"), "22.00");
    EXPECT_EQ(p.Get("Tamano"), "80");
}

// The named format writes a selector's .Ancho before its .Tamano or .Canto; the named reader
// sets them in the positional order all the same, so that a double section's typed distance
// is clamped against its own size and not against the size the selector held before. Each
// section read from a version 3 line, written in the named format and read back, into a fresh
// form and into one that held a wide double section, keeps every value.
TEST_F(UCRegistros, SectionsReadTheSameFromBothFormats)
{
    struct Row {
        const char* linea;  // the selector's positional line
        const char* ancho;  // its Ancho once read
    };
    const std::vector<Row> rows = {
        {"\"UCPerfil1\",\"2\",\"UPN\",\"80\",\"9.5\"", "9.5"},
        {"\"UCPerfil1\",\"2\",\"IPE\",\"80\",\"9.5\"", "9.5"},
        {"\"UCPerfil1\",\"2\",\"UPN\",\"80\",\"5\"", "9.0"},
        {"\"UCPerfil1\",\"2\",\"HEB\",\"300\",\"70\"", "70.0"},
        {"\"UCPerfil1\",\"2\",\"HEA\",\"100\",\"15\"", "20.0"},
        {"\"UCPerfil1\",\"1\",\"IPE\",\"100\",\"8\"", "5.5"},
        {"\"UCPerfil1\",\"2\",\"otro\",\"30\",\"15\",\"45.5\",\"4000\",\"300\"", "15"},
        {"\"UCPerfil1\",\"1\",\"xxx\",\"22,5\",\"9\",\"20\",\"1500\",\"120\"", "9"},
    };
    const std::string viejo = "\"UCPerfil1\",\"1\",\"IPE\",\"100\",\"8\"";
    for (const Row& r : rows) {
        SCOPED_TRACE(r.linea);
        std::string texto = kPosicional;
        texto.replace(texto.find(viejo), viejo.size(), r.linea);
        const std::string posicional = dir / "p.~ZC";
        test::WriteDiskText(posicional, texto);
        auto leido = Lee(posicional, ReadOutcome::Positional);
        EXPECT_EQ(leido->At("UCPerfil1").Get("Ancho"), r.ancho);
        const std::string nombrado = dir / "n.~ZC";
        FormGuardaFile2(*leido, nombrado);
        const std::vector<std::string> esperado = Valores(*leido);
        EXPECT_EQ(Valores(*Lee(nombrado, ReadOutcome::Named)), esperado);

        auto ocupado = MakeForm(app.decl);
        Control& ancho = ocupado->At("UCPerfil1");
        ancho.Set("Num", "2");
        ancho.Set("Perfil", "HEM");
        ancho.Set("Tamano", "1000");
        ancho.Set("Ancho", "80");
        EXPECT_EQ(FormLeeFile(*ocupado, nombrado), ReadOutcome::Named);
        EXPECT_EQ(NamedText(*ocupado), NamedText(*leido));
    }
}

}  // namespace
}  // namespace vardena
