// The language packs that ship with the program: complete, well formed, and applicable.

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frame/Formularios.h"
#include "works/LngPack.h"
#include "support/TestSupport.h"
#include "application/Aplicacion.h"
#include "works/Catalogo.h"
#include "base/Codepage.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

using test::ReadBytes;
using test::TestApp;

const std::vector<std::string> kPacks = {"Español", "Català", "English"};

// Every message number the program quotes: labels of the catalogue, level names, boxes,
// report headings and table heads. 217 to 237 are the lines that follow 216 in the meaning
// of the calculation codes.
const std::vector<int> kQuoted = {
    1,    2,    3,    9,    10,   11,   12,   13,   17,   29,   34,   48,   57,   84,   134,  136,  137,  138,
    140,  141,  145,  147,  148,  149,  150,  151,  152,  159,  160,  161,  162,  163,  164,  165,  166,  167,
    169,  171,  172,  173,  174,  178,  179,  180,  181,  182,  183,  184,  185,  186,  187,  188,  189,  190,
    191,  192,  193,  194,  195,  196,  197,  198,  199,  200,  201,  204,  205,  206,  207,  208,  209,  210,
    212,  215,  216,  217,  218,  219,  220,  221,  222,  223,  224,  225,  226,  227,  228,  229,  230,  231,
    232,  233,  234,  235,  236,  237,  238,  239,  240,  241,  242,  243,  244,  245,  246,  247,  249,  250,
    252,  253,  254,  255,  256,  257,  258,  259,  260,  261,  262,  263,  264,  265,  266,  267,  268,  269,
    270,  271,  274,  697,  698,  699,  700,  701,  702,  703,  706,  883,  884,  886,  887,  888,  889,  890,
    891,  892,  893,  894,  895,  896,  898,  899,  901,  902,  953,  954,  955,  956,  957,  958,  959,  960,
    961,  990,  991,  992,  993,  994,  995,  996,  997,  998,  1000, 1001, 1002, 1003, 1004, 1005, 1006, 1007,
    1008, 1009, 1010, 1011, 1012, 1013, 1014, 1015, 1016, 1017, 1018, 1019, 1020, 1021, 1022, 1023, 1024, 1025,
    1026, 1027, 1028, 1029, 1030, 1036, 1037, 1038, 1039, 1040, 1041, 1042, 1043, 1044, 1045, 1046, 1047, 1048,
    1049, 1050, 1051, 1052, 1053, 1054, 1055, 1056, 1057, 1058, 1089, 1105, 1106, 1107, 1140, 1170, 1171, 1172,
    1173, 1174, 1175, 1188, 1219, 1220, 1221, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 1269, 1270,
    1274, 1275, 1276, 1277, 1278, 1279, 1280, 1281, 1282, 1288, 1289, 1291, 1292, 1294, 1301, 1302, 1303, 1305,
    1306, 1307, 1355,
};

// The texts of the desktop program's windows that no form control carries: group titles and
// labels of the main window and of the general data, the buttons of the boxes, the error window.
constexpr int kVentanasDesde = 1440;
constexpr int kVentanasHasta = 1498;

std::string PackDir(const std::string& language) { return ResourceDir() + "/lng/" + language + "/"; }

TEST(ShippedPacks, EveryQuotedMessageHasAText)
{
    for (const std::string& language : kPacks) {
        SCOPED_TRACE(language);
        TestApp app;
        CargaMensajesDesde(app.decl, PackDir(language) + kMensajesFile);
        std::string missing;
        for (int n : kQuoted)
            if (app.decl.Msg(n).empty())
                missing += " " + std::to_string(n);
        for (int n = kVentanasDesde; n <= kVentanasHasta; ++n)
            if (app.decl.Msg(n).empty())
                missing += " " + std::to_string(n);
        EXPECT_EQ(missing, "") << language << " lacks messages";
        // The hardening of concrete is compared with this very word.
        EXPECT_EQ(app.decl.Msg(169), "normal");
        // Level names and works folder: one word or more, no line structure of their own.
        for (int n : {1, 2, 3, 17, 1292})
            EXPECT_EQ(app.decl.Msg(n).find('\t'), std::string::npos) << n;
    }
}

TEST(ShippedPacks, FilesAreWindows1252WithCrLf)
{
    for (const std::string& language : kPacks) {
        for (const char* file : {kMensajesFile, kLngFormsFile}) {
            SCOPED_TRACE(language + "/" + file);
            const std::string bytes = ReadBytes(PackDir(language) + file);
            ASSERT_FALSE(bytes.empty());
            EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(bytes)), bytes);
            EXPECT_TRUE(LooksLikeText(bytes));
            // Text written as UTF-8 by mistake shows up as "Ã" followed by another character.
            EXPECT_EQ(Cp1252ToUtf8(bytes).find("Ã"), std::string::npos);
            for (size_t i = 0; i < bytes.size(); ++i) {
                if (bytes[i] == '\n') {
                    ASSERT_TRUE(i > 0 && bytes[i - 1] == '\r') << "bare LF at byte " << i;
                }
                if (bytes[i] == '\r') {
                    ASSERT_TRUE(i + 1 < bytes.size() && bytes[i + 1] == '\n') << "bare CR at byte " << i;
                }
            }
        }
    }
}

TEST(ShippedPacks, MessageFilesHaveTheSameLength)
{
    std::set<size_t> lines;
    for (const std::string& language : kPacks) {
        const std::string bytes = ReadBytes(PackDir(language) + kMensajesFile);
        size_t n = 0;
        for (char c : bytes)
            n += c == '\n';
        lines.insert(n);
        EXPECT_LE(n, static_cast<size_t>(kMaxMessages));
    }
    EXPECT_EQ(lines.size(), 1u);
}

// A form per block of a pack, with the controls its headers name, as designed in Spanish.
struct PackForms {
    std::map<std::string, std::unique_ptr<Form>> forms;
    std::map<std::string, std::set<std::string>> headers;   // per form

    PackForms(Declaraciones& d, const std::string& language)
    {
        const std::string text = Cp1252ToUtf8(ReadBytes(PackDir(language) + kLngFormsFile));
        Form* current = nullptr;
        size_t start = 0;
        while (start < text.size()) {
            size_t end = text.find("\r\n", start);
            if (end == std::string::npos)
                end = text.size();
            const std::string line = text.substr(start, end - start);
            start = end + 2;
            const std::string field = Palabra(1, line, "\t");
            if (const size_t p = line.find(" [Form]"); p != std::string::npos) {
                const std::string name = line.substr(0, p);
                forms[name] = std::make_unique<Form>(d, name, "diseño");
                current = forms[name].get();
            } else if (current && line.find('[') != std::string::npos) {
                AddControl(*current, field);
            }
        }
    }

    void AddControl(Form& form, const std::string& header)
    {
        headers[form.Name()].insert(header);
        std::string name = Palabra(1, header, " ");
        int index = -1;
        if (const size_t p = name.find('('); p != std::string::npos) {
            index = std::stoi(name.substr(p + 1));
            name = name.substr(0, p);
        }
        const std::string kind = Palabra(2, header, " ");
        const std::string count = Palabra(3, header, " ");
        Control& c = form.Add(kind == "[ComboBox]" || kind == "[ListBox]" ? Kind::ComboBox
                              : kind == "[TextBox]"                      ? Kind::TextBox
                                                                         : Kind::Label,
                              name, index);
        if (!count.empty())
            for (int i = 0; i < std::stoi(count.substr(1)); ++i)
                c.AddItem("ítem");
    }
};

TEST(ShippedPacks, EveryBlockAppliesToItsForm)
{
    for (const std::string& language : kPacks) {
        SCOPED_TRACE(language);
        TestApp app;
        PackForms pack(app.decl, language);
        ASSERT_FALSE(pack.forms.empty());
        for (auto& [name, form] : pack.forms) {
            SCOPED_TRACE(name);
            EXPECT_NO_THROW(TraduceFormDesde(*form, PackDir(language) + kLngFormsFile));
            EXPECT_NE(form->Caption(), "diseño");
            for (Control* c : form->Controls()) {
                EXPECT_TRUE(!c->Caption().empty() || !c->ToolTipText().empty() || c->ListCount() > 0) << c->Label();
                for (const std::string& item : c->Items())
                    EXPECT_NE(item, "ítem") << c->Label() << " keeps a design item";
            }
        }
    }
}

// The program's own forms have every control their blocks name: a control that a form lacks
// stops its load in that language.
TEST(ShippedPacks, ProgramFormsTakeTheirBlocks)
{
    for (const std::string& language : kPacks) {
        SCOPED_TRACE(language);
        TestApp app;
        PackForms pack(app.decl, language);
        for (const auto& [name, block] : pack.forms) {
            std::unique_ptr<Form> form = CreaForm(app.decl, name);
            if (!form)
                continue;
            SCOPED_TRACE(name);
            const std::string path = PackDir(language) + kLngFormsFile;
            TraduceFormDesde(*block, path);
            try {
                TraduceFormDesde(*form, path);
            } catch (const PropertyError& e) {
                ADD_FAILURE() << e.what();
            }
            EXPECT_EQ(form->Caption(), block->Caption());
        }
    }
}

TEST(ShippedPacks, TranslationsCoverTheSameControls)
{
    TestApp app;
    PackForms catalan(app.decl, "Català");
    PackForms english(app.decl, "English");
    EXPECT_EQ(catalan.headers, english.headers);
    for (const char* form : {"Menu", "DatosGen", "frmAccio", "frmSuelo", "frmIdioma"})
        EXPECT_TRUE(english.forms.count(form)) << form;
}

TEST(ShippedPacks, CatalogueAndLanguageDialog)
{
    TestApp app;
    app.decl.DirPrograma = ResourceDir();
    for (const std::string& language : kPacks) {
        SCOPED_TRACE(language);
        SaveSetting(app.decl, "Preferencias", "Lenguaje", language);
        CargaIdioma(app.decl);
        LlenaCatalogo(app.decl);
        for (const std::string& label : app.decl.CatalogoRotulo)
            EXPECT_FALSE(label.empty());

        FrmIdioma dlg(app.decl);
        dlg.Form_Load();
        EXPECT_EQ(dlg.At("List1").Items(), (std::vector<std::string>{"Català", "English", "Español"}));
        EXPECT_EQ(dlg.At("List1").SelectedText(), language);
    }
}

}  // namespace
}  // namespace vardena
