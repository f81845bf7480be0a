// The beam of a regular frame and the deep beam: which beams each frame has, the beam's lengths
// and ends taken from the frame, the lengths left at 0, the stretch rule on leaving a length and
// the number keys, the deep beam's contiguous spans and loads, their sketches, and their records.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "base/Texto.h"
#include "concrete/VigPared.h"
#include "concrete/VigRegHorm.h"
#include "frame/Campos.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/Obra.h"
#include "works/Registros.h"

namespace vardena::test {
namespace {

// What a record keeps of a form: each stored control's value by its label.
std::map<std::string, std::string> Estados(const Form& form)
{
    std::map<std::string, std::string> out;
    for (const Control* c : form.StoredControls()) {
        std::string v;
        switch (c->kind()) {
        case Kind::TextBox: v = c->Text(); break;
        case Kind::ComboBox: v = std::to_string(c->ListIndex()); break;
        case Kind::OptionButton: v = c->OptionValue() ? "True" : "False"; break;
        case Kind::CheckBox: v = std::to_string(c->CheckValue()); break;
        default:
            for (const auto& p : PropiedadesGuardadas(*c, true))
                v += p + "=" + c->Get(p) + ";";
        }
        out[c->Label()] = v;
    }
    return out;
}

int Contar(const Croquis& c, FiguraCroquis figura, PapelCroquis papel)
{
    return static_cast<int>(std::count_if(c.trazos.begin(), c.trazos.end(), [&](const TrazoCroquis& t) {
        return t.figura == figura && t.papel == papel;
    }));
}

class VigasDeFormas : public ::testing::Test {
protected:
    template <typename T>
    std::unique_ptr<T> Carga(const char* nombre)
    {
        app.decl.CarpetaObra = obra.path();
        auto f = std::make_unique<T>(app.decl, *TablaCampos(nombre));
        f->Form_Load();
        return f;
    }
    std::unique_ptr<VigRegHorm> Regular() { return Carga<VigRegHorm>("frmVigRegHorm"); }
    std::unique_ptr<VigPared> Pared() { return Carga<VigPared>("frmVigPared"); }
    TestApp app;
    ScratchDir obra;
};

TEST(PorticoRegular, TheBeamsEachFrameHas)
{
    struct Caso {
        int portico, forjado;  // rows of cmbTrPort (">3", "3", "2", "1") and cmbTrForj (">2", "2", "1")
        std::set<int> vigas;
    };
    const Caso casos[] = {
        {0, 0, {0, 1, 2, 3, 4, 5, 6, 7, 8}},  // every place along and across
        {3, 0, {0, 3, 6}},                    // one bay: only the one-bay beams
        {2, 0, {0, 3, 6}},                    // two bays are two end bays
        {1, 1, {0, 1, 3, 4}},                 // three bays: end and middle; two slab bays: edge and middle frame
        {0, 2, {0, 1, 2}},                    // one slab bay: two edge frames
        {3, 2, {0}},
    };
    for (const Caso& c : casos) {
        const EsquemaPortico e = EsquemaDe(c.portico, c.forjado);
        for (int i = 0; i < 9; ++i)
            EXPECT_EQ(ExisteViga(e, i), c.vigas.count(i) == 1) << c.portico << "/" << c.forjado << " beam " << i;
    }
    EXPECT_FALSE(ExisteViga(EsquemaDe(0, 0), 9));
    EXPECT_FALSE(ExisteViga(EsquemaDe(0, 0), -1));
}

TEST_F(VigasDeFormas, OneBayLeavesOnlyTheOneBayBeams)
{
    auto f = Regular();
    EXPECT_TRUE(f->At("optViga", 0).OptionValue()) << "the first beam is chosen on a fresh form";
    f->At("optViga", 4).SetOptionValue(true);
    f->At("cmbTrPort").SetListIndex(3);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(f->At("optViga", i).Visible(), i % 3 == 0) << i;
    EXPECT_EQ(f->VigaElegida(), 0) << "the chosen beam has gone: the first one left takes its place";
    EXPECT_TRUE(f->At("txtCotHz", 1).Visible());
    for (int i = 2; i <= 4; ++i)
        EXPECT_FALSE(f->At("txtCotHz", i).Visible()) << i;
    EXPECT_TRUE(f->At("txtCotHz", 0).Visible());
    EXPECT_TRUE(f->At("txtCotHz", 5).Visible());
    f->At("cmbTrForj").SetListIndex(2);
    EXPECT_FALSE(f->At("txtCotVert", 2).Visible());
    EXPECT_FALSE(f->At("optViga", 3).Visible());
}

TEST_F(VigasDeFormas, ABayOfZeroIsReplacedAndNeverReachesTheSpan)
{
    auto f = Regular();
    std::vector<std::string> luces;
    Control& luz = f->At("TxCota", 1);
    auto anterior = luz.onChange;
    luz.onChange = [&](Control& c) {
        luces.push_back(c.Text());
        if (anterior)
            anterior(c);
    };
    f->At("txtCotHz", 1).SetText("4.5");
    EXPECT_EQ(luz.Text(), "4.5");
    // 0 in the visible bay: the beam's span goes back into it.
    f->At("txtCotHz", 1).SetText("0");
    EXPECT_EQ(f->At("txtCotHz", 1).Text(), "4.5");
    f->At("txtCotHz", 1).SetText("");
    EXPECT_EQ(f->At("txtCotHz", 1).Text(), "4.5");
    // A hidden bay keeps its 0.
    f->At("cmbTrPort").SetListIndex(3);
    f->At("txtCotHz", 3).SetText("0");
    EXPECT_EQ(f->At("txtCotHz", 3).Text(), "0");
    // Across: a slab bay of 0 takes the slab span at the beam's side.
    f->At("txtCotVert", 1).SetText("0");
    EXPECT_EQ(f->At("txtCotVert", 1).Text(), f->At("TxCota", 6).Text());
    EXPECT_NE(ValComaCopy(f->At("txtCotVert", 1).Text()), 0);
    for (const std::string& t : luces)
        EXPECT_NE(ValComaCopy(t), 0) << "TxCota(1) took \"" << t << "\"";
    EXPECT_EQ(luces, (std::vector<std::string>{"4.5"}));
}

// The frame: cantilevers 1.5 (left) and 0 or 2 (right), bays 5, 7, 8, 9; across a cantilever of
// 1.2 and slab bays 4, 4.5, 6.
TEST_F(VigasDeFormas, TheChosenBeamTakesItsLengthsAndEndsFromTheFrame)
{
    struct Caso {
        int portico, viga;
        const char* vueloDer;
        int izq;
        const char* cota0;
        int der;
        const char* cota4;
        const char* luz;
        const char* forjIzq;
        const char* forjDer;
    };
    const Caso casos[] = {
        {0, 0, "0", 1, "1.5", 1, "7", "5", "1.2", "4"},     // end bay: cantilever left, next bay right
        {0, 2, "0", 1, "7", 1, "9", "8", "1.2", "4"},       // inner bay: continuous both sides
        {1, 1, "0", 1, "5", 1, "8", "7", "1.2", "4"},       // middle of three bays
        {3, 0, "2", 1, "1.5", 1, "2", "5", "1.2", "4"},     // one bay: both cantilevers
        {3, 0, "0", 1, "1.5", 0, "", "5", "1.2", "4"},      // one bay, no right cantilever: free end
        {2, 3, "0", 1, "1.5", 1, "7", "5", "4", "4.5"},     // second frame across
        {0, 8, "0", 1, "7", 1, "9", "8", "4.5", "6"},       // inner frame, inner bay
    };
    for (const Caso& c : casos) {
        auto f = Regular();
        const char* hz[] = {"1.5", "5", "7", "8", "9", c.vueloDer};
        for (int i = 0; i < 6; ++i)
            f->At("txtCotHz", i).SetText(hz[i]);
        const char* vert[] = {"1.2", "4", "4.5", "6"};
        for (int i = 0; i < 4; ++i)
            f->At("txtCotVert", i).SetText(vert[i]);
        f->At("TxRedistr").SetText("20");
        f->At("cmbTrPort").SetListIndex(c.portico);
        f->At("optViga", c.viga).SetOptionValue(true);
        const std::string caso = std::to_string(c.portico) + "/" + std::to_string(c.viga);
        EXPECT_EQ(f->VigaElegida(), c.viga) << caso;
        EXPECT_EQ(f->At("TxCota", 1).Text(), c.luz) << caso;
        EXPECT_EQ(f->At("ChVigIzq").CheckValue(), c.izq) << caso;
        EXPECT_EQ(f->At("TxCota", 0).Text(), c.cota0) << caso;
        EXPECT_EQ(f->At("ChVigDer").CheckValue(), c.der) << caso;
        if (c.der) {
            EXPECT_EQ(f->At("TxCota", 4).Text(), c.cota4) << caso;
        }
        EXPECT_EQ(f->At("TxCota", 5).Text(), c.forjIzq) << caso;
        EXPECT_EQ(f->At("TxCota", 6).Text(), c.forjDer) << caso;
        // Switching beams leaves the frame's own values as typed.
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(f->At("txtCotHz", i).Text(), hz[i]) << caso << " txtCotHz " << i;
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(f->At("txtCotVert", i).Text(), vert[i]) << caso << " txtCotVert " << i;
        EXPECT_EQ(f->At("TxRedistr").Text(), "20");
        EXPECT_EQ(f->At("cmbTrPort").ListIndex(), c.portico);
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

TEST_F(VigasDeFormas, TheRegularBeamRulesItsStretchesOnLeavingAndTakesNumberKeys)
{
    auto f = Regular();
    f->At("CmTramos").SetListIndex(2);
    f->At("TxCota", 2).SetText("2");
    f->At("TxCota", 3).SetText("2");
    f->At("TxCota", 1).SetText("3");
    EXPECT_EQ(f->At("TxCota", 2).Text(), "2") << "typing alone changes no other length";
    f->At("TxCota", 1).LostFocus();
    EXPECT_EQ(f->At("TxCota", 2).Text(), "1.5");
    EXPECT_EQ(f->At("TxCota", 3).Text(), "1.5");
    f->At("TxCota", 2).SetText("4");
    f->At("TxCota", 2).LostFocus();
    EXPECT_EQ(f->At("TxCota", 1).Text(), "5.5");
    for (const auto& [tecla, queda] : {std::pair{'7', '7'}, {'.', '.'}, {',', ','}, {'-', '-'}, {'a', 0}, {' ', 0}, {'/', 0}})
        EXPECT_EQ(f->At("TxCota", 1).KeyPress(tecla), queda) << tecla;
    EXPECT_EQ(f->At("TxCota", 1).KeyPress(8), 8) << "backspace edits";
    // A column depth is written back as a plain number when left.
    for (const auto& [tecleado, queda] : {std::pair{"45,5", "45.5"}, {"abc", "0"}, {"30", "30"}}) {
        f->At("TxtPil", 0).SetText(tecleado);
        f->At("TxtPil", 0).LostFocus();
        EXPECT_EQ(f->At("TxtPil", 0).Text(), queda) << tecleado;
    }
}

TEST_F(VigasDeFormas, EveryLevelOfTheFrameHasItsColumns)
{
    app.decl.NPlantasSobre = 2;
    app.decl.NPlantasBajo = 1;
    auto f = Regular();
    ASSERT_GE(f->At("CmbPlanta").ListCount(), 3);
    f->At("CmbPlanta").SetListIndex(1);
    f->At("ChPilIzq").SetCheckValue(0);
    f->At("CmbPlanta").SetListIndex(0);
    EXPECT_TRUE(f->At("ChPilIzq").Visible()) << "the roof's beams stand on columns too";
    EXPECT_EQ(f->At("ChPilIzq").CheckValue(), 1);
    EXPECT_EQ(f->At("ChPilDer").CheckValue(), 1);
    EXPECT_EQ(f->At("cmbPart").ListIndex(), 2) << "no partitions on the roof";
}

TEST_F(VigasDeFormas, ThePlanDrawsMissingBaysDashed)
{
    struct Caso {
        int portico, forjado, discontinuas, numerosAusentes;
    };
    // 4 frame lines of 4 bay places: a frame of b bays over s slab bays has b (s + 1) beams.
    const Caso casos[] = {{0, 0, 0, 0}, {1, 1, 16 - 9, 5}, {3, 2, 16 - 2, 8}, {2, 0, 16 - 8, 6}};
    for (const Caso& c : casos) {
        auto f = Regular();
        f->At("cmbTrPort").SetListIndex(c.portico);
        f->At("cmbTrForj").SetListIndex(c.forjado);
        const auto croquis = f->CroquisDe(f->At("Picture2"));
        ASSERT_TRUE(croquis);
        EXPECT_EQ(Contar(*croquis, FiguraCroquis::Linea, PapelCroquis::Ausente), c.discontinuas) << c.portico << c.forjado;
        EXPECT_EQ(Contar(*croquis, FiguraCroquis::Texto, PapelCroquis::Ausente), c.numerosAusentes) << c.portico << c.forjado;
        EXPECT_EQ(Contar(*croquis, FiguraCroquis::Poligono, PapelCroquis::Carga), 1) << "the chosen beam";
    }
    auto f = Regular();
    EXPECT_TRUE(f->CroquisDe(f->At("PctViga"))) << "the beam is drawn as frmVigHorm draws it";
}

TEST_F(VigasDeFormas, TheDeepBeamsLengthsAndContiguousSpans)
{
    auto f = Pared();
    // The stretch rule at each change: span 3.50 = 2 + 1 + 0.5; a span of 2 halves both.
    f->At("CmTramos").SetListIndex(2);
    f->At("TxCota", 1).SetText("2");
    EXPECT_EQ(f->At("TxCota", 2).Text(), "1");
    EXPECT_EQ(f->At("TxCota", 3).Text(), "1");
    f->At("TxCota", 3).SetText("1.5");
    EXPECT_EQ(f->At("TxCota", 1).Text(), "2.5");
    // The contiguous spans: above 0 a contiguous beam, 0 none.
    struct Caso {
        int indice;
        const char* luz;
        const char* casilla;
        int queda;
    };
    const Caso casos[] = {{0, "0", "ChVigIzq", 0}, {0, "3", "ChVigIzq", 1}, {4, "0", "ChVigDer", 0},
                          {4, "4.5", "ChVigDer", 1}, {4, "", "ChVigDer", 0}};
    for (const Caso& c : casos) {
        f->At("TxCota", c.indice).SetText(c.luz);
        EXPECT_EQ(f->At(c.casilla).CheckValue(), c.queda) << c.indice << " " << c.luz;
    }
    EXPECT_EQ(f->At("TxCota", 1).Text(), "2.5") << "a contiguous span leaves the span alone";
}

TEST_F(VigasDeFormas, TheDeepBeamsLoadsOnLeavingAndByNumberKeys)
{
    auto f = Pared();
    for (const auto& [tecleado, queda] : {std::pair{"2,50", "2.5"}, {"", "0"}, {" 1.50", "1.5"}, {"3", "3"}}) {
        f->At("TxtQ", 2).SetText(tecleado);
        EXPECT_EQ(f->At("TxtQ", 2).Text(), tecleado) << "nothing is rewritten while typing";
        f->At("TxtQ", 2).LostFocus();
        EXPECT_EQ(f->At("TxtQ", 2).Text(), queda) << tecleado;
    }
    for (const auto& [tecla, queda] : {std::pair{'5', '5'}, {',', ','}, {'x', 0}, {'=', 0}})
        EXPECT_EQ(f->At("TxtQ", 0).KeyPress(tecla), queda) << tecla;
    // The loads hang from the bottom face when Check1 says so; P1 and P2 show with ChkPuntual.
    f->At("CmTramos").SetListIndex(2);
    f->At("ChkPuntual").SetCheckValue(1);
    f->At("Check1").SetCheckValue(0);
    auto arriba = f->CroquisDe(f->At("PctViga"));
    f->At("Check1").SetCheckValue(1);
    auto abajo = f->CroquisDe(f->At("PctViga"));
    ASSERT_TRUE(arriba && abajo);
    EXPECT_EQ(Contar(*arriba, FiguraCroquis::Flecha, PapelCroquis::Carga), 2);
    EXPECT_EQ(Contar(*arriba, FiguraCroquis::Poligono, PapelCroquis::Carga), 3);
    auto primeraCarga = [](const Croquis& c) {
        for (const TrazoCroquis& t : c.trazos)
            if (t.figura == FiguraCroquis::Poligono && t.papel == PapelCroquis::Carga)
                return t.puntos[2].y;
        return -1;
    };
    EXPECT_GT(primeraCarga(*abajo), primeraCarga(*arriba)) << "the loads stand on the bottom face";
}

// What the user set through the forms' own rules is saved and read back as it was, and a
// record that is read is not rewritten by those rules.
TEST_F(VigasDeFormas, RecordsReadBackAsSaved)
{
    {
        auto f = Regular();
        f->At("txtTitulo").SetText("Viga P 03-04");
        f->At("cmbTrPort").SetListIndex(1);
        f->At("cmbTrForj").SetListIndex(1);
        f->At("txtCotHz", 2).SetText("7.25");
        f->At("optViga", 4).SetOptionValue(true);
        f->At("TxCota", 2).SetText("3");
        f->At("TxCota", 2).LostFocus();
        f->At("TxtQ", 7).SetText("650");
        f->At("CmdCalcular").Click();
        const auto guardado = Estados(*f);
        auto g = Regular();
        std::string titulo = "Viga P 03-04";
        app.decl.Cargando = kTrue;
        EXPECT_TRUE(LeeForm(*g, titulo).found());
        app.decl.Cargando = kFalse;
        EXPECT_EQ(Estados(*g), guardado);
        EXPECT_EQ(g->At("TxCota", 1).Text(), "7.25");
        EXPECT_FALSE(g->At("optViga", 2).Visible()) << "the scheme follows the record's bays";
        EXPECT_TRUE(g->At("optViga", 4).Visible());
    }
    {
        auto f = Pared();
        f->At("txtTitulo").SetText("Viga Pared 07");
        f->At("TxCota", 0).SetText("0");
        f->At("TxtQ", 1).SetText("3,25");
        f->At("TxtQ", 1).LostFocus();
        f->At("ChkPuntual").SetCheckValue(1);
        f->At("CmdCalcular").Click();
        const auto guardado = Estados(*f);
        auto g = Pared();
        std::string titulo = "Viga Pared 07";
        app.decl.Cargando = kTrue;
        EXPECT_TRUE(LeeForm(*g, titulo).found());
        app.decl.Cargando = kFalse;
        EXPECT_EQ(Estados(*g), guardado);
        EXPECT_EQ(g->At("TxtQ", 1).Text(), "3.25");
        EXPECT_EQ(g->At("ChVigIzq").CheckValue(), 0);
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

// The sample works' records of both forms: read as List1 reads them and saved by CONVERTIR,
// they keep every value.
TEST_F(VigasDeFormas, SampleRecordsSaveUnchanged)
{
    namespace fs = std::filesystem;
    int vistos = 0;
    for (const auto& obraEjemplo : fs::directory_iterator(VARDENA_EXAMPLES)) {
        for (const char* nombre : {"frmVigRegHorm", "frmVigPared"}) {
            fs::remove_all(obra.path());
            fs::copy(obraEjemplo.path(), obra.path(), fs::copy_options::recursive);
            AbreObra(app.decl, obra.path());
            auto f = CargaForm(app.decl, nombre);
            Control& lista = f->At("List1");
            for (int i = 0; i < lista.ListCount(); ++i) {
                lista.SetListIndex(i);
                const auto leido = Estados(*f);
                f->At("CmdCalcular").Click();
                auto g = CargaForm(app.decl, nombre);
                g->At("List1").SetListIndex(i);
                EXPECT_EQ(Estados(*g), leido) << obraEjemplo.path() << " " << nombre << " " << lista.List(i);
                ++vistos;
            }
        }
    }
    EXPECT_GT(vistos, 0);
    EXPECT_TRUE(app.ui.errors.empty());
}

}  // namespace
}  // namespace vardena::test
