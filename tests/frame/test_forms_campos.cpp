// The field tables of the element forms, and the named record that each form writes from them.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "frame/DatosForms.h"
#include "frame/ElementForm.h"
#include "test_forms_comun.h"
#include "works/Catalogo.h"
#include "works/Registros.h"

namespace vardena::test {
namespace {

TEST(FormTables, EveryCatalogueElementFormAndTheFreeTextFormsHaveATable)
{
    for (const auto& row : Catalogo()) {
        if (row.row < 2)
            continue;  // the main window and the general data have no field table
        const TablaForm* found = nullptr;
        for (const auto& t : TablasCampos())
            if (SameNameNoCase(t.nombre, row.form))
                found = &t;
        ASSERT_NE(found, nullptr) << row.form;
    }
    for (const char* name : {"frmEnBlanco", "frmLosCime", "frmMArco", "frmMArma", "frmSolArma", "frmUniAto",
                             "frmUniSol", "frmVigFlot"}) {
        const TablaForm* t = TablaCampos(name);
        ASSERT_NE(t, nullptr) << name;
        EXPECT_EQ(CodigoEnCatalogo(name), "") << name << " has no catalogue row";
    }
    EXPECT_EQ(TablasCampos().size(), 34u + 8u);
    // Each family checks its own names when it compiles; across families a name, in any case,
    // still stands for one form, as CreaForm and the catalogue look it up.
    std::set<std::string> nombres;
    for (const auto& t : TablasCampos()) {
        std::string n(t.nombre);
        for (char& c : n)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        EXPECT_TRUE(nombres.insert(n).second) << t.nombre << " is defined twice";
    }
}

// Transcription mistakes show up as a member defined twice, an array that changes kind, a text
// on a control that has none, or more texts than members. Every definition is checked for them
// when it compiles; these lists show that the check catches each mistake.
constexpr CampoDef kBien[] = {{"txtTitulo", {}, kTexto}, {"TxtQ", {1, 0}, kTexto, {"2", "3"}}, {"TxtQ", {2}, kTexto}};
constexpr CampoDef kMiembroDosVeces[] = {{"txtTitulo", {}, kTexto}, {"TxtQ", {1, 0}, kTexto}, {"TxtQ", {0}, kTexto}};
constexpr CampoDef kSimpleDosVeces[] = {{"txtTitulo", {}, kTexto}, {"CmbHorm", {}, kLista}, {"CmbHorm", {}, kLista}};
constexpr CampoDef kCambiaDeTipo[] = {{"txtTitulo", {}, kTexto}, {"TxtQ", {1}, kTexto}, {"TxtQ", {2}, kLista}};
constexpr CampoDef kSimpleYArray[] = {{"txtTitulo", {}, kTexto}, {"TxtQ", {}, kTexto}, {"TxtQ", {2}, kTexto}};
constexpr CampoDef kTextoEnLista[] = {{"txtTitulo", {}, kTexto}, {"CmbHorm", {}, kLista, {"25"}}};
constexpr CampoDef kMasTextosQueMiembros[] = {{"txtTitulo", {}, kTexto}, {"TxtQ", {1}, kTexto, {"2", "3"}}};
constexpr CampoDef kSinTitulo[] = {{"TxtQ", {1}, kTexto}};
constexpr CampoDef kDosTitulos[] = {{"txtTitulo", {}, kTexto}, {"txtTitulo", {}, kTexto}};
static_assert(CamposBienFormados(kBien));
static_assert(!CamposBienFormados(kMiembroDosVeces));
static_assert(!CamposBienFormados(kSimpleDosVeces));
static_assert(!CamposBienFormados(kCambiaDeTipo));
static_assert(!CamposBienFormados(kSimpleYArray));
static_assert(!CamposBienFormados(kTextoEnLista));
static_assert(!CamposBienFormados(kMasTextosQueMiembros));
static_assert(!CamposBienFormados(kSinTitulo));
static_assert(!CamposBienFormados(kDosTitulos));

// The forms whose field lists are made by code rather than written out are checked here.
TEST(FormTables, EveryTableIsWellFormed)
{
    for (const auto& t : TablasCampos()) {
        SCOPED_TRACE(std::string(t.nombre));
        std::set<std::pair<std::string, int>> seen;
        int titles = 0;
        for (const auto& c : t.campos) {
            const std::string name(c.nombre);
            if (c.indices.empty()) {
                EXPECT_TRUE(seen.insert({name, -1}).second) << name << " defined twice";
            }
            for (int i : c.indices)
                EXPECT_TRUE(seen.insert({name, i}).second) << name << "(" << i << ") defined twice";
            titles += name == "txtTitulo" && c.indices.empty();
        }
        EXPECT_EQ(titles, 1) << "every record carries its title once";
    }
}

// Every definition names its window and its default title; a form whose title is missing would
// save its first record under an empty name.
TEST(FormTables, EveryFormHasACaptionAndADefaultTitle)
{
    for (const auto& t : TablasCampos()) {
        EXPECT_FALSE(t.caption.empty()) << t.nombre;
        EXPECT_FALSE(t.titulo.empty()) << t.nombre;
        EXPECT_EQ(CicloDe(t.nombre).pregunta, t.ciclo.pregunta) << t.nombre;
    }
}

TEST(FormTables, DesignTextsFollowTheOneForAllRule)
{
    const CampoDef uno{"TxtPil", {7, 6, 3, 2}, kTexto, {"30"}};
    const CampoDef varios{"txtEspesor", {4, 3, 2, 1, 0, 5}, kTexto, {"5", "5", "5", "5", "12"}};
    EXPECT_EQ(TextoDeDiseno(uno, 3), "30");
    EXPECT_EQ(TextoDeDiseno(varios, 4), "12");
    EXPECT_EQ(TextoDeDiseno(varios, 5), "");
    const CampoDef campos[] = {uno, varios, {"Check1", {}, kCasilla}};
    EXPECT_EQ(NumeroControles({"x", campos}), 11);
}

// What the table says the named record of a form holds, control by control; the value of a
// text box is its design text, other values are not part of the table.
void ExpectRecordFollowsTable(const TablaForm& t, const Form& form, bool textValues)
{
    const std::vector<ControlNombrado> got = ControlesNombrados(NamedText(form));
    size_t k = 0;
    for (const auto& campo : t.campos) {
        const size_t members = campo.indices.empty() ? 1 : campo.indices.size();
        for (size_t m = 0; m < members; ++m, ++k) {
            const std::string label = campo.indices.empty()
                                          ? std::string(campo.nombre)
                                          : std::string(campo.nombre) + "(" + std::to_string(campo.indices[m]) + ")";
            ASSERT_LT(k, got.size()) << "record ends before " << label;
            const ControlNombrado& c = got[k];
            ASSERT_EQ(c.etiqueta, label) << "control " << k;
            const Kind kind = campo.tipo;
            EXPECT_EQ(c.tipo, KindName(kind)) << label;
            const Control& ctl = form.At(campo.nombre, campo.indices.empty() ? -1 : campo.indices[m]);
            const bool propia = kind == Kind::UCPerfil && EsSeccionPropia(ctl.Get("Perfil"));
            std::vector<std::string> props;
            for (const auto& [p, v] : c.valores)
                props.push_back(p);
            EXPECT_EQ(props, PropiedadesNombradas(kind, propia)) << label;
            if (kind == Kind::TextBox && textValues) {
                const std::string expected = label == "txtTitulo" ? TituloPorDefecto(t.nombre)
                                                                  : std::string(TextoDeDiseno(campo, m));
                EXPECT_EQ(c.valores[0].second, expected) << label;
            }
        }
    }
    EXPECT_EQ(got.size(), k) << "the record holds controls beyond the table";
}

class EveryForm : public ::testing::TestWithParam<const TablaForm*> {};

TEST_P(EveryForm, FreshFormWritesTheTableWithItsDesignTexts)
{
    ObraDePrueba obra;
    std::unique_ptr<Form> form = CreaForm(obra.d(), GetParam()->nombre);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(static_cast<int>(form->StoredControls().size()), NumeroControles(*GetParam()));
    ExpectRecordFollowsTable(*GetParam(), *form, true);
}

std::vector<const TablaForm*> TodasLasTablas()
{
    std::vector<const TablaForm*> out;
    for (const auto& t : TablasCampos())
        out.push_back(&t);
    return out;
}

INSTANTIATE_TEST_SUITE_P(Tables, EveryForm, ::testing::ValuesIn(TodasLasTablas()),
                         [](const auto& info) { return NombreDe(info.param); });

// After Form_Load (defaults, units, the list of records) the record still has the table's
// fields in the table's order, written to disk through the named writer.
class EveryCatalogueForm : public ::testing::TestWithParam<const TablaForm*> {};

TEST_P(EveryCatalogueForm, LoadedFormSavesTheTableInOrder)
{
    ObraDePrueba obra;
    std::unique_ptr<Form> form = CargaForm(obra.d(), GetParam()->nombre);
    ASSERT_NE(form, nullptr);
    const std::string path = obra.dir / "registro";
    FormGuardaFile2(*form, path);
    const std::string text = ReadDiskText(path);
    EXPECT_EQ(Lineas(text).at(0), "Vardena 3\t3.50");
    ASSERT_EQ(text, NamedText(*form));
    ExpectRecordFollowsTable(*GetParam(), *form, false);
    EXPECT_TRUE(obra.app.ui.errors.empty());
}

INSTANTIATE_TEST_SUITE_P(Tables, EveryCatalogueForm, ::testing::ValuesIn(FormsDelCatalogo()),
                         [](const auto& info) { return NombreDe(info.param); });

// The free-text forms have no catalogue row but codes of their own: each loads with its
// defaults, lists the results files of its code, and reads, saves and reads back a record. The
// save writes the text as the results file too, so that the element is listed after it.
TEST(FormTables, FreeTextFormsLoadReadAndSaveUnderTheirOwnCodes)
{
    struct Caso {
        const char* form;
        const char* codigo;
        const char* titulo;  // the default title
        const char* extra;   // a control of its own, "" for none
    };
    const Caso casos[] = {
        {"frmEnBlanco", "HB", "En Blanco 01", "TxCercos"},  {"frmLosCime", "ZL", "Losa Cimentación 01", "UCArmZap"},
        {"frmMArco", "MA", "Arco Fábrica 01", ""},          {"frmMArma", "MR", "Fábrica Armada 01", ""},
        {"frmSolArma", "ZS", "Solera Armada 01", "UCArmZap"}, {"frmUniAto", "LT", "Unión Atornillada 01", ""},
        {"frmUniSol", "LD", "Unión Soldada 01", ""},        {"frmVigFlot", "ZF", "Viga Flotante 01", "UCArmZap"},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.form);
        ObraDePrueba obra;
        auto form = CargaForm(obra.d(), c.form);
        ASSERT_NE(form, nullptr);
        auto& el = dynamic_cast<ElementForm&>(*form);
        EXPECT_EQ(el.At("txtTitulo").Text(), c.titulo);
        EXPECT_EQ(el.At("List1").ListCount(), 0);
        el.At("txtTitulo").SetText("Caso");
        el.At("CmbHorm").SetListIndex(3);
        el.At("TxtRes1").SetText("Texto libre");
        if (std::string_view(c.extra) == "TxCercos")
            el.At("TxCercos").SetText("c6 a 15");
        if (std::string_view(c.extra) == "UCArmZap")
            el.At("UCArmZap").Set("NumBarras", "10");
        el.CmdCalcular_Click();
        const std::string registro = obra.dir / (std::string("Caso.~") + c.codigo);
        EXPECT_EQ(el.UltimoGuardado(), registro);
        EXPECT_TRUE(std::filesystem::exists(obra.dir / (std::string("Caso.l") + c.codigo)));
        EXPECT_TRUE(obra.app.ui.boxes.empty());

        // A new window lists the element, reads it back, and asks before saving over it.
        auto otra = CargaForm(obra.d(), c.form);
        auto& el2 = dynamic_cast<ElementForm&>(*otra);
        ASSERT_EQ(el2.At("List1").ListCount(), 1);
        el2.At("List1").SetListIndex(0);
        el2.List1_Click();
        EXPECT_EQ(el2.At("CmbHorm").ListIndex(), 3);
        EXPECT_EQ(el2.At("TxtRes1").Text(), "Texto libre");
        if (std::string_view(c.extra) == "TxCercos") {
            EXPECT_EQ(el2.At("TxCercos").Text(), "c6 a 15");
        }
        if (std::string_view(c.extra) == "UCArmZap") {
            EXPECT_EQ(el2.At("UCArmZap").Get("NumBarras"), "10");
        }
        EXPECT_NE(el2.At("RichTextBox1").Text().find("Texto libre"), std::string::npos);
        obra.app.ui.answers.push_back(mb::No);
        el2.At("TxtRes1").SetText("Otro");
        el2.CmdCalcular_Click();
        ASSERT_EQ(obra.app.ui.boxes.size(), 1u);
        EXPECT_EQ(obra.app.ui.boxes[0].style, mb::YesNo | mb::Exclamation);
        EXPECT_EQ(el2.UltimoGuardado(), "");
        EXPECT_NE(ReadDiskText(registro).find("Texto libre"), std::string::npos);
    }
}

// A name that is no form of the catalogue nor one of the free-text forms halts after message 180.
TEST(FormTables, CodeOfANameOutsideTheCatalogueHalts)
{
    ObraDePrueba obra;
    obra.d().Mensajes[180] = "Formulario desconocido";
    EXPECT_THROW(CodigoDeForm(obra.d(), "frmNoHay"), ProgramHalt);
    ASSERT_EQ(obra.app.ui.boxes.size(), 1u);
    EXPECT_EQ(obra.app.ui.boxes[0].prompt, "Formulario desconocido");
    EXPECT_EQ(obra.app.ui.boxes[0].style, mb::Critical);
}

TEST(FormTables, ListaFormulariosCountsEveryMember)
{
    ObraDePrueba obra;
    const auto forms = ListaFormularios(obra.d());
    std::map<std::string, FormInfo> byName;
    for (const auto& f : forms)
        byName[f.name] = f;
    for (const auto& t : TablasCampos()) {
        ASSERT_TRUE(byName.count(std::string(t.nombre))) << t.nombre;
        const FormInfo& f = byName[std::string(t.nombre)];
        EXPECT_EQ(f.code, CodigoDeRegistro(t.nombre));
        EXPECT_EQ(f.storedControls, NumeroControles(t)) << t.nombre;
        EXPECT_EQ(f.caption, CaptionForm(t.nombre));
    }
    // Catalogue order first: the actions form leads the element forms.
    ASSERT_GE(forms.size(), 2u);
    EXPECT_EQ(forms[forms[0].name == "DatosGen" ? 1 : 0].name, "frmAccio");
    EXPECT_EQ(forms.back().name, "frmVigFlot");
    // Counted by hand from the field lists.
    EXPECT_EQ(byName["frmZapCorr"].storedControls, 18);
    EXPECT_EQ(byName["frmAccio"].storedControls, 54);
}

TEST(FormTables, UnknownNameCreatesNothing)
{
    ObraDePrueba obra;
    EXPECT_EQ(CargaForm(obra.d(), "frmNoExiste"), nullptr);
    EXPECT_EQ(CreaForm(obra.d(), "frmzapcorr"), nullptr);
}

}  // namespace
}  // namespace vardena::test
