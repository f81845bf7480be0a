#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "building/Unidades.h"
#include "frame/DatosForms.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "base/Form.h"
#include "works/Subrut.h"
#include "base/Ui.h"

namespace vardena {
namespace {

// The forms that carry per-form data: the element forms of the catalogue, the actions and the
// eight forms with a free-text result.
const std::vector<std::string> kForms = {
    "frmVigHorm",  "frmVigRegHorm", "frmPilHorm", "frmForjUnid", "frmForjSitu", "frmForjRet",     "frmForMaci",
    "frmAbaco",    "frmMensCorta",  "frmVigPared", "frmEscHorm", "frmVigMet",   "frmPilMet",      "frmBasMet",
    "frmForjAcer", "frmEscMet",     "frmVigMade", "frmPilMade",  "frmForMade",  "frmEscMade",     "frmMuros",
    "frmMDint",    "frmZap",        "frmZapComb", "frmZapCorr",  "frmPilotes",  "frmMuroH",       "frmMuroCont",
    "frmMuroAnclado", "frmTalud",   "frmDatosProy", "frmSuelo",  "frmMCerr",    "frmAccio",       "frmEnBlanco",
    "frmLosCime",  "frmMArco",      "frmMArma",   "frmSolArma",  "frmUniAto",   "frmUniSol",      "frmVigFlot"};

struct Named {
    std::string form;
    // Control names separated by blanks; "name(0,1)" for the members of an array.
    std::string controls;
};

// The combo boxes of each form, as its record lists them.
const std::vector<Named> kCombos = {
    {"frmVigHorm", "CmbAmbGral CmbAmbEspec cmbPart CmbHorm CmbAcero cmbControl CmbRecub CmbPlanta CmTramos"},
    {"frmVigRegHorm",
     "CmbAmbEspec cmbPart CmbHorm CmbAcero cmbControl CmbRecub CmbPlanta CmbAmbGral cmbTrPort cmbTrForj CmTramos"},
    {"frmPilHorm", "CmbPlanta CmbRecub cmbControl CmbAcero CmbHorm CmbForma cmbesviada"},
    {"frmForjUnid", "CmbAmbEspec CmbAmbGral Combo1 cmbControl CmbAcero CmbHorm CmbPlanta CmbRecub cmbTipoFor "
                    "cmbCercos(0)"},
    {"frmForjSitu", "CmbHorm CmbAcero cmbControl CmbRecub CmbPlanta cmbPart CmbAmbGral CmbAmbEspec cmbCercos(0)"},
    {"frmForjRet", "cmbTipoFor cmbControl CmbAcero CmbHorm CmbPlanta CmbRecub Combo1"},
    {"frmForMaci", "cmbControl CmbAcero CmbHorm CmbPlanta CmbRecub Combo1"},
    {"frmAbaco", "CmbPlanta CmbRecub cmbControl CmbAcero CmbHorm cmbCercos(1,0) cmbTipoFor"},
    {"frmMensCorta", "CmbRecub cmbControl CmbAcero CmbHorm Hormig"},
    {"frmVigPared", "CmbHorm CmbAcero cmbControl CmbRecub CmbPlanta CmTramos"},
    {"frmEscHorm", "CmbAmbGral CmbAmbEspec CmbRecub cmbControl CmbAcero CmbHorm"},
    {"frmVigMet", "cmbClase CmTramos cmbPart CmbCaso CmbAcero CmbPlanta"},
    {"frmPilMet", "cmbClase CmbPlanta CmbAcero CmbCaso"},
    {"frmBasMet", "CmbTornillos CmbAcero"},
    {"frmForjAcer", "cmbPart CmbPlanta CmbAcero CmbCaso cmbClase"},
    {"frmEscMet", "CmbAcero"},
    {"frmVigMade", "cmbPart CmbResis CmbServi CmbPlanta CmbCargaComp CmbUso CmTramos"},
    {"frmPilMade", "CmbPlanta CmbServi CmbResis CmbForma CmbUso cmbesviada"},
    {"frmForMade", "Combo1 CmbPlanta CmbServi CmbResis CmbUso"},
    {"frmEscMade", "CmbPlanta CmbServi CmbResis"},
    {"frmMuros", "CmbCatEjec CmbPlanta"},
    {"frmMDint",
     "CmbDintel CmbAmbEspec CmbAmbGral CmbHorm CmbAcero cmbControl CmbRecub CmbServi CmbResis cmbAceroPerfil CmbUso"},
    {"frmMCerr", "CmbCatEjec CmbPlanta CmbFMort CmbFMat"},
    {"frmSuelo", "ComboCim CmbTerreno"},
    {"frmZap", "CmbRecub cmbControl CmbAcero CmbHorm"},
    {"frmZapComb", "CmbRecub cmbControl CmbAcero CmbHorm"},
    {"frmZapCorr", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmPilotes", "CmbApoyo CmbEstratos CmbCaract cmbSuelo cmbPil(5,4,3,2,1,0) CmbTipos CmbDiam CmbRecub cmbControl "
                   "CmbAcero CmbHorm CmbNumPil"},
    {"frmMuroH", "CmbTerr CmbSot CmbRecub cmbControl CmbAcero CmbHorm"},
    {"frmMuroCont", "cmbTipo CmbHorm CmbAcero cmbControl CmbRecub CmbTerreno CmbTerr"},
    {"frmMuroAnclado", "CmbTalud cmbTerz CmbSot CmbRecub cmbControl CmbAcero CmbHorm"},
    {"frmTalud", "CmbTalud"},
    {"frmAccio", "cmbSuelo(0,1,2,3,4) cmbSueloSismo cmbEstruct cmbDuct cmbCompart cmbImportSismo cmbZonEol cmbEntorno "
                 "cmbNieve"},
    {"frmEnBlanco", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmLosCime", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmMArco", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmMArma", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmSolArma", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmUniAto", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmUniSol", "CmbHorm CmbAcero cmbControl CmbRecub"},
    {"frmVigFlot", "CmbHorm CmbAcero cmbControl CmbRecub"},
};

// The members of TxtQ of each form, as its record lists them.
const std::vector<Named> kCargas = {
    {"frmVigHorm", "TxtQ(6,5,4,0,3,2,1)"},       {"frmVigRegHorm", "TxtQ(7,6,5,4,0,3,2,1)"},
    {"frmPilHorm", "TxtQ(2,1,3,0)"},             {"frmForjUnid", "TxtQ(9,4,3,6,5,8,7,1,2,0)"},
    {"frmForjSitu", "TxtQ(6,5,8,7,1,2,0)"},      {"frmForjRet", "TxtQ(0)"},
    {"frmForMaci", "TxtQ(0)"},                   {"frmAbaco", "TxtQ(0)"},
    {"frmMensCorta", "TxtQ(2,1,0,3)"},           {"frmVigPared", "TxtQ(4,0,3,2,1)"},
    {"frmVigMet", "TxtQ(1,2,3,0,4,5,6)"},        {"frmPilMet", "TxtQ(0,3,1,2)"},
    {"frmForjAcer", "TxtQ(4,3,2,1,0)"},          {"frmVigMade", "TxtQ(6,5,4,0,3,2,1)"},
    {"frmPilMade", "TxtQ(2,1,3,0)"},             {"frmForMade", "TxtQ(4,3,2,1,0)"},
    {"frmMuros", "TxtQ(0)"},                     {"frmMDint", "TxtQ(1,0,3,2)"},
    {"frmMCerr", "TxtQ(3,2,1,0)"},               {"frmZap", "TxtQ(12,9,10,11,6,7,8,3,4,5,2,1,0)"},
    {"frmZapComb", "TxtQ(4,2,3,0,1)"},           {"frmZapCorr", "TxtQ(2,0,1)"},
    {"frmPilotes", "TxtQ(2,1,0,5,3,4)"},         {"frmMuroH", "TxtQ(2,1,0,3)"},
    {"frmMuroCont", "TxtQ(5,2,0,1,3,4)"},        {"frmMuroAnclado", "TxtQ(4,5,6,7,2,3,1,0,8)"},
    {"frmTalud", "TxtQ(1,0)"},
};

// Adds the controls of a "name name(0,1)" list to the form.
void AddControls(Form& form, Kind kind, const std::string& list)
{
    for (int n = 1;; ++n) {
        const std::string item = Palabra(n, list);
        if (item.empty())
            return;
        const size_t open = item.find('(');
        if (open == std::string::npos) {
            form.Add(kind, item);
            continue;
        }
        const std::string name = item.substr(0, open);
        const std::string indices = item.substr(open + 1, item.size() - open - 2);
        for (int k = 1; !Palabra(k, indices, ",").empty(); ++k)
            form.Add(kind, name, std::stoi(Palabra(k, indices, ",")));
    }
}

class DatosFormsTest : public ::testing::Test {
protected:
    test::TestApp app;

    std::unique_ptr<Form> WithCombos(const std::string& name)
    {
        auto form = std::make_unique<Form>(app.decl, name);
        for (const Named& n : kCombos)
            if (n.form == name)
                AddControls(*form, Kind::ComboBox, n.controls);
        return form;
    }
    std::unique_ptr<Form> WithLoads(const std::string& name)
    {
        auto form = std::make_unique<Form>(app.decl, name);
        for (const Named& n : kCargas)
            if (n.form == name)
                AddControls(*form, Kind::TextBox, n.controls);
        return form;
    }
};

TEST_F(DatosFormsTest, EveryComboOfEveryFormGetsRowsButTheLevelList)
{
    for (const Named& n : kCombos) {
        auto form = WithCombos(n.form);
        LlenaListas(*form);
        for (Control* c : form->Controls()) {
            if (c->Name() == "CmbPlanta")
                EXPECT_EQ(c->ListCount(), 0) << n.form << " " << c->Label();
            else
                EXPECT_GT(c->ListCount(), 0) << n.form << " " << c->Label();
        }
    }
}

TEST_F(DatosFormsTest, RowsOfTheListsAsTheFormsGiveThem)
{
    struct Row {
        std::string form, combo;
        int index;
        int count;
        std::string first, last;
        std::string second = {};  // checked when given: lists that differ past their first row
    };
    const std::vector<Row> rows = {
        {"frmZapCorr", "CmbRecub", -1, 9, "15", "55"},
        {"frmVigHorm", "CmbHorm", -1, 10, "Idem gral.", "HA-50", "HA-10"},
        {"frmVigHorm", "CmbAmbGral", -1, 7, "I ", "IV"},
        {"frmVigHorm", "CmbAmbEspec", -1, 7, "   ", "E "},
        {"frmVigRegHorm", "cmbPart", -1, 3, "Tabiques", "Ninguna", "Muros"},
        {"frmVigRegHorm", "cmbTrPort", -1, 4, ">3", "1"},
        {"frmPilHorm", "cmbesviada", -1, 12, "0.6", "0.4"},
        {"frmForjUnid", "cmbTipoFor", -1, 3, "Armado", "Losa Alveolada"},
        {"frmForjUnid", "cmbCercos", 0, 2, "Celosía", "Cercos"},
        {"frmForjSitu", "cmbCercos", 0, 4, "Ninguno", "Cercos"},
        {"frmAbaco", "cmbTipoFor", -1, 3, "Recuperable", "Ninguno"},
        {"frmAbaco", "cmbCercos", 1, 2, "Celosía", "Greca"},
        {"frmMensCorta", "CmbHorm", -1, 10, "Idem gral.", "HA-50", "HA-10"},
        {"frmMensCorta", "Hormig", -1, 3, "Hormigonado monolítico", "Baja rugosidad"},
        {"frmVigMet", "CmbAcero", -1, 8, "Idem gral.", "S 450"},
        {"frmBasMet", "CmbTornillos", -1, 10, "3.6", "12.9"},
        {"frmVigMade", "CmbResis", -1, 20, "Idem gral.", "GL36"},
        {"frmPilMade", "CmbUso", -1, 2, "Vivienda y oficina", "Uso público"},
        {"frmForMade", "CmbResis", -1, 20, "C14", "Idem gral."},
        {"frmForMade", "CmbServi", -1, 4, "Clase 1", "Idem gral."},
        {"frmForMade", "Combo1", -1, 3, "Muros", "Tabiques", "Ninguna"},
        {"frmMuros", "CmbCatEjec", -1, 4, "Idem. gral", " C"},
        {"frmMDint", "CmbAmbGral", -1, 7, "I", "IV"},
        {"frmMDint", "cmbAceroPerfil", -1, 8, "Idem gral.", "S 450"},
        {"frmSuelo", "CmbTerreno", -1, 8, "Definir datos...", "Roca sana"},
        {"frmSuelo", "ComboCim", -1, 4, "Zapata rectangular", "Losa cimentación"},
        {"frmPilotes", "CmbHorm", -1, 10, "Idem gral.", "HA-50"},
        {"frmPilotes", "cmbPil", 4, 7, "Roca sana 10-20 m prof.", "HA-50"},
        {"frmPilotes", "cmbPil", 5, 2, "Punta>3Fuste", "Punta<=3Fuste"},
        {"frmPilotes", "CmbDiam", -1, 8, "30", "125"},
        {"frmMuroH", "CmbTerr", -1, 7, "Definir ...", "Pedraplén"},
        {"frmMuroH", "CmbSot", -1, 5, "Idem gral.", "4"},
        {"frmMuroCont", "CmbTerr", -1, 8, "Definir datos...", "Idem Terreno"},
        {"frmMuroAnclado", "CmbTalud", -1, 11, "Definir datos...", "Roca sana"},
        {"frmMuroAnclado", "cmbTerz", -1, 4, "Arenas", "Arcillas fisuradas"},
        {"frmAccio", "cmbSuelo", 3, 4, "I ", "IV"},
        {"frmAccio", "cmbSueloSismo", -1, 5, "I ", "No uniforme"},
        {"frmAccio", "cmbDuct", -1, 4, "m= 1", "m= 4"},
        {"frmAccio", "cmbEntorno", -1, 5, "I   Borde de mar o lago", "V   Centro negocio ciudad"},
        {"frmEnBlanco", "CmbHorm", -1, 10, "Idem gral.", "HA-50", "HA-10"},
        {"frmVigHorm", "cmbPart", -1, 3, "Tabiques", "Ninguna", "Tab. frágil"},
        {"frmVigMet", "cmbPart", -1, 3, "Tabiques", "Ninguna", "Tab. frágil"},
        {"frmForjSitu", "cmbPart", -1, 3, "Tabiques", "Ninguna", "Muros"},
        {"frmForjUnid", "Combo1", -1, 3, "Tabiques", "Ninguna", "Muros"},
        {"frmMCerr", "CmbFMort", -1, 3, "Mortero ordinario", "Mortero ligero", "Mortero junta delgada"},
        {"frmMCerr", "CmbFMat", -1, 6, "Pieza cerámica", "Piedra natural", "Silico-calcáreos"},
        {"frmVigFlot", "CmbHorm", -1, 10, "Idem gral.", "HA-50"},
    };
    for (const Row& r : rows) {
        auto form = WithCombos(r.form);
        LlenaListas(*form);
        const Control& c = form->At(r.combo, r.index);
        ASSERT_EQ(c.ListCount(), r.count) << r.form << " " << c.Label();
        EXPECT_EQ(c.List(0), r.first) << r.form << " " << c.Label();
        EXPECT_EQ(c.List(r.count - 1), r.last) << r.form << " " << c.Label();
        if (!r.second.empty()) {
            EXPECT_EQ(c.List(1), r.second) << r.form << " " << c.Label();
        }
    }
}

TEST_F(DatosFormsTest, FillingTwiceReplacesTheRows)
{
    auto form = WithCombos("frmZapCorr");
    LlenaListas(*form);
    LlenaListas(*form);
    EXPECT_EQ(form->At("CmbRecub").ListCount(), 9);
    // A form without data keeps its lists.
    Form other(app.decl, "frmOtro");
    other.Add(Kind::ComboBox, "CmbRecub").AddItem("x");
    LlenaListas(other);
    EXPECT_EQ(other.At("CmbRecub").ListCount(), 1);
}

TEST_F(DatosFormsTest, OwnDefaultsSetTheCoverAndThePosition)
{
    struct Row {
        std::string form;
        std::string cover;
    };
    for (const Row& r : std::vector<Row>{{"frmVigHorm", "30"}, {"frmEscHorm", "30"}, {"frmEnBlanco", "30"},
                                         {"frmZapCorr", "50"}, {"frmMuroH", "50"}, {"frmPilotes", "50"}}) {
        auto form = WithCombos(r.form);
        LlenaListas(*form);
        for (Control* c : form->Controls())
            if (c->ListCount() > 0)
                c->SetListIndex(0);
        DefaultsPropios(*form);
        EXPECT_EQ(form->At("CmbRecub").SelectedText(), r.cover) << r.form;
        EXPECT_EQ(form->At("CmbHorm").ListIndex(), 0) << r.form;
    }

    Form pilar(app.decl, "frmPilHorm");
    for (int i : {2, 1, 0})
        pilar.Add(Kind::OptionButton, "OpPosPil", i);
    DefaultsPropios(pilar);  // no lists: only the position is set
    EXPECT_TRUE(pilar.At("OpPosPil", 2).OptionValue());
    EXPECT_FALSE(pilar.At("OpPosPil", 0).OptionValue());
}

TEST_F(DatosFormsTest, GroundStressComesFromTheGeneralDataAsASingle)
{
    struct Row {
        std::string form;
        int index;
    };
    const std::vector<Row> rows = {{"frmZapCorr", 2}, {"frmZap", 12},      {"frmZapComb", 4},
                                   {"frmMuroH", 2},   {"frmMuroCont", 2}, {"frmMuroAnclado", 2}};
    app.decl.GenTens = 20.3f;
    for (const Row& r : rows) {
        auto form = WithLoads(r.form);
        for (Control* q : form->Members("TxtQ"))
            q->SetText("7");
        DefaultsGenerales(*form);
        for (Control* q : form->Members("TxtQ"))
            EXPECT_EQ(q->Text(), q->Index() == r.index ? "2.03" : "7") << r.form << " " << q->Label();
    }
    // Forms without the field are left alone.
    auto viga = WithLoads("frmVigHorm");
    DefaultsGenerales(*viga);
    EXPECT_EQ(viga->At("TxtQ", 2).Text(), "");
}

TEST_F(DatosFormsTest, GroundStressShowsInTheWorksUnits)
{
    app.decl.GenTens = 25;
    app.decl.Unidades = 2;
    auto form = WithLoads("frmZapCorr");
    form->At("TxtQ", 0).SetText("40");
    ControlesUnidades(*form);
    DefaultsGenerales(*form);
    CambiaUnidades(*form, app.decl.Unidades);
    EXPECT_EQ(form->At("TxtQ", 2).Text(), "0.25");
    EXPECT_EQ(form->At("TxtQ", 0).Text(), "400");
    EXPECT_DOUBLE_EQ(LeeQ(*form, 2), 2.5);
    EXPECT_FALSE(form->At("lbST", 2).Visible());
    EXPECT_TRUE(form->At("lbSI", 2).Visible());
}

TEST_F(DatosFormsTest, EveryLoadFieldHasItsHiddenFactorAndUnitPair)
{
    for (const Named& n : kCargas) {
        auto form = WithLoads(n.form);
        ControlesUnidades(*form);
        ControlesUnidades(*form);  // a second call adds nothing
        for (Control* q : form->Members("TxtQ")) {
            const int i = q->Index();
            ASSERT_NE(form->Find("LbQSI", i), nullptr) << n.form << " " << q->Label();
            EXPECT_EQ(form->Members("LbQSI").size(), form->Members("TxtQ").size()) << n.form;
            const Control& lb = form->At("LbQSI", i);
            EXPECT_EQ(lb.kind(), Kind::Label);
            EXPECT_FALSE(lb.Visible());
            EXPECT_GT(ValComaCopy(lb.Caption()), 0) << n.form << " " << lb.Label();
            EXPECT_FALSE(form->At("lbST", i).Caption().empty());
            EXPECT_FALSE(form->At("lbSI", i).Caption().empty());
        }
    }
}

TEST_F(DatosFormsTest, FactorsAndUnitsByQuantity)
{
    struct Row {
        std::string form;
        int index;
        std::string factor, st, si;
    };
    const std::vector<Row> rows = {
        {"frmVigHorm", 1, "10", "t/m", "kN/m"},        {"frmVigHorm", 6, "10", "t", "kN"},
        {"frmVigRegHorm", 7, ".01", "Kg/m", "kN/m"},   {"frmPilHorm", 3, ".01", "Kg/m", "kN/m"},
        {"frmPilHorm", 0, "10", "m·t", "m·kN"},        {"frmForjRet", 0, ".01", "Kg/m", "kN/m"},
        {"frmForjUnid", 1, ".01", "kg/m2", "kN/m2"},   {"frmMensCorta", 2, "10", "m·t", "m·kN"},
        {"frmMCerr", 0, "0.1", "Kg/cm2", "N/mm2"},     {"frmMCerr", 2, "10", "t/m", "kN/m"},
        {"frmMCerr", 3, "10", "t/m2", "kN/m2"},        {"frmZapCorr", 2, "0.1", "Kg/cm2", "N/mm2"},
        {"frmZap", 12, "0.1", "Kg/cm2", "N/mm2"},      {"frmMuros", 0, "0.1", "Kg/cm2", "N/mm2"},
    };
    for (const Row& r : rows) {
        auto form = WithLoads(r.form);
        ControlesUnidades(*form);
        EXPECT_EQ(form->At("LbQSI", r.index).Caption(), r.factor) << r.form << " " << r.index;
        EXPECT_EQ(form->At("lbST", r.index).Caption(), r.st) << r.form << " " << r.index;
        EXPECT_EQ(form->At("lbSI", r.index).Caption(), r.si) << r.form << " " << r.index;
    }
}

TEST_F(DatosFormsTest, DesignLoadsRescaleInSI)
{
    auto form = WithLoads("frmVigHorm");
    form->At("TxtQ", 6).SetText("4");
    form->At("TxtQ", 3).SetText("1.5");
    ControlesUnidades(*form);
    app.decl.Unidades = 2;
    CambiaUnidades(*form, 2);
    EXPECT_EQ(form->At("TxtQ", 6).Text(), "40");
    EXPECT_EQ(form->At("TxtQ", 3).Text(), "15");
    EXPECT_DOUBLE_EQ(LeeQ(*form, 6), 4);
}

TEST_F(DatosFormsTest, MinimumsOfTheChecks)
{
    const auto zap = Minimos("frmZapCorr");
    ASSERT_EQ(zap.size(), 3u);
    EXPECT_EQ(zap[0].control, "TxCotaMuro");
    EXPECT_EQ(zap[0].index, -1);
    EXPECT_EQ(zap[0].value, 10);
    EXPECT_EQ(zap[1].control, "TxCotaAncho");
    EXPECT_EQ(zap[1].value, 40);
    EXPECT_EQ(zap[2].control, "TxCotaAlto");
    EXPECT_EQ(zap[2].value, 30);

    auto value = [](const std::vector<Minimo>& list, const std::string& name, int index) {
        for (const Minimo& m : list)
            if (m.control == name && m.index == index)
                return m.value;
        return -1.0;
    };
    const auto ret = Minimos("frmForjRet");
    EXPECT_EQ(ret.size(), 13u);
    EXPECT_EQ(value(ret, "txtForj", 3), 0);
    EXPECT_EQ(value(ret, "txtForj", 4), -1);
    EXPECT_EQ(value(ret, "txtForj", 11), 0.5);
    EXPECT_EQ(value(ret, "txtForj", 13), 0.1);
    const auto abaco = Minimos("frmAbaco");
    EXPECT_EQ(value(abaco, "PilX", -1), 0.2);
    EXPECT_EQ(value(abaco, "AbacoY", -1), 0.4);
    EXPECT_EQ(value(abaco, "LePil", 9), 0.5);

    EXPECT_TRUE(Minimos("frmSuelo").empty());
    EXPECT_TRUE(Minimos("frmNada").empty());
    for (const std::string& f : kForms)
        for (const Minimo& m : Minimos(f)) {
            EXPECT_FALSE(m.control.empty()) << f;
            EXPECT_GE(m.index, -1) << f;
        }
}

TEST_F(DatosFormsTest, CaptionsAndDefaultTitles)
{
    EXPECT_EQ(kForms.size(), 42u);
    for (const std::string& f : kForms) {
        EXPECT_FALSE(CaptionForm(f).empty()) << f;
        EXPECT_FALSE(TituloPorDefecto(f).empty()) << f;
    }
    EXPECT_EQ(TituloPorDefecto("frmZapCorr"), "Zapata Corrida 01");
    EXPECT_EQ(CaptionForm("frmZapCorr"), "Zapatas Corridas");
    EXPECT_EQ(TituloPorDefecto("frmVigHorm"), "Viga Hormigón. P 01-02");
    EXPECT_EQ(TituloPorDefecto("frmAccio"), "Acciones");
    for (const char* f : {"frmLosCime", "frmSolArma", "frmVigFlot"})
        EXPECT_EQ(CaptionForm(f), "Soleras Armadas") << f;
    // The catalogue holds the names in upper case.
    EXPECT_EQ(TituloPorDefecto("FRMZAPCORR"), "Zapata Corrida 01");
    EXPECT_EQ(CaptionForm("frmNada"), "");
}

// The data against the forms as the program builds them: every list filled, every minimum
// and every default naming a control the form has, every load field with its factor.
TEST_F(DatosFormsTest, TheLoadedFormsMatchTheirData)
{
    app.decl.GenTens = 25;
    int loaded = 0;
    for (const std::string& name : kForms) {
        std::unique_ptr<Form> form;
        try {
            form = CargaForm(app.decl, name);
        } catch (const ProgramHalt&) {
            continue;  // the forms without a catalogue row cannot list their records
        }
        if (!form)
            continue;
        ++loaded;
        EXPECT_EQ(form->Caption(), CaptionForm(name)) << name;
        for (Control* c : form->Controls()) {
            if (c->kind() == Kind::ComboBox && c->Name() != "CmbPlanta") {
                EXPECT_GT(c->ListCount(), 0) << name << " " << c->Label();
            }
            if (c->Name() == "TxtQ") {
                EXPECT_NE(form->Find("LbQSI", c->Index()), nullptr) << name << " " << c->Label();
            }
        }
        for (const Minimo& m : Minimos(name))
            EXPECT_NE(form->Find(m.control, m.index), nullptr) << name << " " << m.control << "(" << m.index << ")";
    }
    EXPECT_GE(loaded, 30) << "element forms the program loads";
}

}  // namespace
}  // namespace vardena
