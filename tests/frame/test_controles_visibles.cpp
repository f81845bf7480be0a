// The shown controls of the actions and the soil: present with their Spanish captions, never a
// field of the record, and translated by the shipped language packs. The captions of the stored
// fields of the element forms: given by the common rows and by each form's, never stored.

#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "frame/ControlesVisibles.h"
#include "works/LngPack.h"
#include "test_forms_comun.h"
#include "application/Aplicacion.h"
#include "works/Registros.h"

namespace vardena::test {
namespace {

const char* const kForms[] = {"frmAccio", "frmSuelo"};
const char* const kElementos[] = {"frmVigHorm", "frmVigRegHorm", "frmVigMet", "frmPilHorm", "frmPilMet",
                                  "frmZapCorr",  "frmZap",        "frmZapComb", "frmMuroH",  "frmMuros",
                                  "frmMCerr",    "frmMDint",      "frmMuroCont", "frmMuroAnclado", "frmPilotes",
                                  "frmTalud",    "frmVigMade",    "frmPilMade",  "frmForMade",
                                  "frmForjUnid", "frmForjSitu",   "frmForjRet",  "frmForMaci",     "frmAbaco",
                                  "frmMensCorta", "frmVigPared",  "frmEscHorm",
                                  "frmForjAcer", "frmBasMet",     "frmEscMet"};

struct Rotulo {
    const char* form;
    const char* nombre;
    int index;
    Kind kind;
    const char* caption;
};

TEST(ControlesVisibles, FreshFormsCarryTheirCaptions)
{
    const std::vector<Rotulo> rows = {
        {"frmAccio", "UCNieve", -1, Kind::Frame, "ACCIÓN DE NIEVE"},
        {"frmAccio", "UCCargaSismica", -1, Kind::Frame, "DEFINICIÓN DE LA ACCIÓN SISMICA"},
        {"frmAccio", "cmdAltitud", -1, Kind::CommandButton, "Mapa"},
        {"frmAccio", "UCOK1", -1, Kind::CommandButton, "Aceptar"},
        {"frmAccio", "lblAltNieve", -1, Kind::Label, "Altitud  (m.)"},
        {"frmAccio", "lblCompartDuct", -1, Kind::Label, "Compartimentación  Ductilidad   "},
        {"frmAccio", "lblPant", -1, Kind::Label, "Dimensión pantallas"},
        {"frmAccio", "lblPlanta", 0, Kind::Label, "Planta x"},
        {"frmAccio", "lblEstratos", -1, Kind::Label, "Nº de estratos en los primeros 30 m "},
        {"frmAccio", "RichTextBox3", -1, Kind::RichTextBox, "Tablas sísmicas"},
        {"frmSuelo", "lblLargo", -1, Kind::Label, "Largo"},
        {"frmSuelo", "lblAncho", -1, Kind::Label, "Ancho"},
        {"frmSuelo", "Label12", -1, Kind::Label, "Cohesión (kN/m2)"},
        {"frmSuelo", "lblCondicion", 2, Kind::Label, "Asiento adm. hasta 25 mm"},
        {"frmSuelo", "lblQd", -1, Kind::Label, "Presión de servicio  (kN/m2)"},
        {"frmSuelo", "UCframe11", -1, Kind::Frame, "DETERMINACIÓN DE LA PRESIÓN DE SERVICIO EN ROCA"},
        {"frmSuelo", "PictureLosa", -1, Kind::PictureBox, ""},
        // The granular frame of the soil has no caption of its own: its heading is a label.
        {"frmSuelo", "UCframe2", -1, Kind::Frame, ""},
        {"frmSuelo", "lblServGranular", -1, Kind::Label, "DETERMINACIÓN PRESIÓN DE SERVICIO EN SUELOS GRANULARES"},
        // A stored check box takes its caption and stays the record's field.
        {"frmSuelo", "chkServ", -1, Kind::CheckBox, "Cumple las condiciones:"},
    };
    ObraDePrueba obra;
    for (const Rotulo& r : rows) {
        SCOPED_TRACE(std::string(r.form) + "." + r.nombre);
        std::unique_ptr<Form> form = CreaForm(obra.d(), r.form);
        ASSERT_NE(form, nullptr);
        const Control* c = form->Find(r.nombre, r.index);
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->kind(), r.kind);
        EXPECT_EQ(c->Caption(), r.caption);
    }
    // The shared results frame of the other element forms keeps its caption.
    EXPECT_EQ(CreaForm(obra.d(), "frmZap")->At("UCframe2").Caption(), "Resultados");
}

// Every row names a control once; a row of a stored kind names a field that the record already
// has, of that kind; every other row a control of the row's kind.
TEST(ControlesVisibles, RowsAreUniqueAndStoredRowsNameExistingFields)
{
    ObraDePrueba obra;
    std::vector<const char*> names(std::begin(kForms), std::end(kForms));
    names.insert(names.end(), std::begin(kElementos), std::end(kElementos));
    for (const char* name : names) {
        SCOPED_TRACE(name);
        const std::vector<ControlVisible>& rows = ControlesVisibles(name);
        EXPECT_GE(rows.size(), 5u);
        const TablaForm* tabla = TablaCampos(name);
        ASSERT_NE(tabla, nullptr);
        std::set<std::pair<std::string, int>> seen;
        std::unique_ptr<Form> form = CreaForm(obra.d(), name);
        for (const ControlVisible& v : rows) {
            std::string key(v.nombre);
            for (char& ch : key)
                ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
            EXPECT_TRUE(seen.insert({key, v.index}).second) << v.nombre << " twice";
            bool field = false;
            for (const CampoDef& campo : tabla->campos)
                field = field || SameNameNoCase(campo.nombre, v.nombre);
            EXPECT_EQ(field, IsStored(v.kind)) << v.nombre;
            // A row of index -1 may stand for the members of an array.
            const Control* c = form->Find(v.nombre, v.index);
            if (!c && v.index < 0 && !form->Members(v.nombre).empty())
                c = form->Members(v.nombre).front();
            ASSERT_NE(c, nullptr) << v.nombre;
            EXPECT_EQ(c->kind(), v.kind) << v.nombre;
        }
    }
    EXPECT_TRUE(ControlesVisibles("frmNoHay").empty());
}

// Every common row names a field of that kind in at least one form's record: a misspelt name
// would caption nothing and go unnoticed.
TEST(ControlesVisibles, CommonRowsNameFieldsOfSomeForm)
{
    for (const ControlVisible& v : ControlesComunes()) {
        SCOPED_TRACE(std::string(v.nombre));
        EXPECT_FALSE(v.caption.empty());
        std::string_view nombre = v.nombre;
        const bool prefijo = !nombre.empty() && nombre.back() == '*';
        if (prefijo)
            nombre.remove_suffix(1);
        bool found = false;
        for (const TablaForm& tabla : TablasCampos())
            for (const CampoDef& campo : tabla.campos) {
                const std::string_view n = prefijo ? campo.nombre.substr(0, std::min(nombre.size(), campo.nombre.size()))
                                                   : campo.nombre;
                found = found || (SameNameNoCase(n, nombre) && campo.tipo == v.kind);
            }
        EXPECT_TRUE(found);
    }
}

TEST(ControlesVisibles, StoredFieldsCarryTheirCaptions)
{
    const std::vector<Rotulo> rows = {
        // The common rows, the same in every form.
        {"frmVigHorm", "txtTitulo", -1, Kind::TextBox, "Título"},
        {"frmZapCorr", "txtTitulo", -1, Kind::TextBox, "Título"},
        {"frmPilMet", "CmbPlanta", -1, Kind::ComboBox, "Planta"},
        {"frmZapCorr", "CmbHorm", -1, Kind::ComboBox, "Hormigón"},
        {"frmPilMet", "CmbAcero", -1, Kind::ComboBox, "Acero"},
        {"frmZap", "cmbControl", -1, Kind::ComboBox, "Control"},
        {"frmVigHorm", "CmbRecub", -1, Kind::ComboBox, "Recubrimiento (mm)"},
        {"frmVigHorm", "CmbAmbGral", -1, Kind::ComboBox, "Ambiente general"},
        {"frmMuroH", "txtTitulo", -1, Kind::TextBox, "Título"},
        // "TxtRes*" reaches every result, arrays included, unless the form names it.
        {"frmPilMet", "TxtRes2", -1, Kind::TextBox, "Resultado"},
        {"frmZapCorr", "TxtRes1", 1, Kind::TextBox, "Resultado"},
        {"frmVigHorm", "TxtRes1", -1, Kind::TextBox, "Flector"},
        {"frmPilHorm", "TxtRes3", -1, Kind::TextBox, "Cercos"},
        // A row of index -1 covers every member; a member's own row has the last word.
        {"frmVigHorm", "UCArVig", 7, Kind::UCNumDiam, "Inf. adic. 1"},
        {"frmVigHorm", "TxCota", 1, Kind::TextBox, "Luz total (m)"},
        {"frmVigHorm", "TxCota", 5, Kind::TextBox, "Luz forjado izquierdo (m)"},
        {"frmVigRegHorm", "TxCota", 6, Kind::TextBox, "Luz forjado derecho (m)"},
        {"frmVigHorm", "TxtQ", 2, Kind::TextBox, "Carga repartida q"},
        {"frmVigHorm", "TxtQ", 6, Kind::TextBox, "Carga puntual P"},
        {"frmVigHorm", "ChTrans", -1, Kind::CheckBox, "Estudiar flexión transversal"},
        {"frmZapCorr", "TxCotaMuro", -1, Kind::TextBox, "Ancho del muro (cm)"},
        {"frmZapCorr", "OpTipoMuro", 1, Kind::OptionButton, "Hormigón"},
        {"frmZapCorr", "TxtQ", 2, Kind::TextBox, "Tensión admisible terreno"},
        {"frmZapComb", "UCArmZap", 3, Kind::UCZapatas, "Armadura"},
        {"frmZap", "TxtQ", 10, Kind::TextBox, "Mx"},
        // "#" stands for the member's index, so that options of one array read apart.
        {"frmMuros", "OpTramo", 2, Kind::OptionButton, "Tramo 2"},
        {"frmZap", "OpPosPil", 2, Kind::OptionButton, "Centro"},
        // The frame's beams are numbered from 1, as the plan beside them numbers them.
        {"frmVigRegHorm", "optViga", 8, Kind::OptionButton, "Viga 9"},
        {"frmMuroH", "TxCotaAncho", -1, Kind::TextBox, "Ancho de la zapata (cm)"},
        {"frmMuroH", "UCArmMuro", 15, Kind::UCZapatas, "Armadura del muro"},
        {"frmPilHorm", "OpPosPil", 0, Kind::OptionButton, "esquina"},
        {"frmPilMet", "LePil", 12, Kind::TextBox, "Altura de planta (m)"},
        {"frmPilMade", "LePil", 3, Kind::TextBox, "a4"},
        {"frmPilMet", "LePil", 3, Kind::TextBox, "a4"},
        {"frmPilMet", "UCPerfil1", -1, Kind::UCPerfil, "Perfil"},
        {"frmPilMet", "ChkArriostradaY", -1, Kind::CheckBox, "Arriostrado en Y"},
        {"frmMCerr", "OptIzq", 1, Kind::OptionButton, "Apoyado"},
        {"frmMDint", "TxtRes1", 2, Kind::TextBox, "Fábrica"},
        {"frmMDint", "TextDviga", 1, Kind::TextBox, "Canto h (cm)"},
        {"frmMuros", "TxCoefMin", -1, Kind::TextBox, "Coef. parcial seguridad γM"},
        {"frmMuros", "CmbCatEjec", -1, Kind::ComboBox, "Categoría de ejecución"},
        {"frmMuros", "TxtCota", 22, Kind::TextBox, "Cotas"},
        // The fields of the actions and the soil, beside the labels of the designed window.
        {"frmAccio", "cmbNieve", -1, Kind::ComboBox, "Zona climática"},
        {"frmAccio", "ChSismo", -1, Kind::CheckBox, "Acción sísmica"},
        {"frmAccio", "txtEspesor", 3, Kind::TextBox, "Espesor estrato (m)"},
        {"frmAccio", "TxtSupeS", 0, Kind::TextBox, "Superficie sótano (m2)"},
        {"frmSuelo", "Text3", -1, Kind::TextBox, "Densidad (kg/m3)"},
        {"frmSuelo", "txtIq", -1, Kind::TextBox, "Fact. inclinación iq"},
        {"frmSuelo", "chkServ", -1, Kind::CheckBox, "Cumple las condiciones:"},
        // The rock rows, one family for the soil and the piles.
        {"frmSuelo", "txtKsp", -1, Kind::TextBox, "Parámetro Ksp"},
        {"frmPilotes", "txtQd", -1, Kind::TextBox, "Presión servicio (kN/m2)"},
        {"frmPilotes", "txtRozam", 5, Kind::TextBox, "Rozamiento estrato 5 (º)"},
        {"frmPilotes", "cmbPil", 4, Kind::ComboBox, "Estrato de apoyo"},
        {"frmPilotes", "TxtQ", 5, Kind::TextBox, "Capacidad del pilote"},
        // The walls: the backfill of the concrete walls, the storeys of the basement walls.
        {"frmMuroCont", "OptDelta", 2, Kind::OptionButton, "Alto"},
        {"frmMuroCont", "UCArmZap", 3, Kind::UCZapatas, "Armadura"},
        {"frmMuroCont", "TxtQ", 2, Kind::TextBox, "Tensión admisible terreno"},
        {"frmMuroH", "TxtQ", 3, Kind::TextBox, "Carga coronación"},
        {"frmMuroAnclado", "CmbSot", -1, Kind::ComboBox, "Sótanos"},
        {"frmMuroAnclado", "TxtQ", 8, Kind::TextBox, "Carga coronación"},
        {"frmMuroAnclado", "TxtSep", 3, Kind::TextBox, "Separación 4 (cm)"},
        {"frmMuroAnclado", "TxCotaMuro", 11, Kind::TextBox, "Espesor pie 4 (cm)"},
        {"frmTalud", "TxtQ", 1, Kind::TextBox, "Cohesión"},
        {"frmTalud", "optDrenaje", 1, Kind::OptionButton, "Con drenaje efectivo"},
        // Timber: the families of the beams and columns, the timber lists common to all.
        {"frmVigMade", "TxCota", 1, Kind::TextBox, "Luz total (m)"},
        {"frmVigMade", "CmbCargaComp", -1, Kind::ComboBox, "Factor de carga compartida"},
        {"frmPilMade", "TxtBetaY", -1, Kind::TextBox, "Coef. de pandeo β Y"},
        {"frmPilMade", "LePil", 12, Kind::TextBox, "Altura de planta (m)"},
        {"frmForMade", "TxtPil", 1, Kind::TextBox, "Canto pilar derecho (cm)"},
        {"frmForMade", "OpTramo", 5, Kind::OptionButton, "Tramo 5"},
        // The one-way slabs share the rows of a slab's stretch; the sheet's fields are the joist slab's.
        {"frmForjSitu", "UCMall", 1, Kind::UCMallazo, "Mallazo"},
        {"frmForjUnid", "TxtRes4", -1, Kind::TextBox, "Vale canto"},
        {"frmForjUnid", "TXFmomUlt", -1, Kind::TextBox, "Momento último (m·kN/m)"},
        {"frmForjUnid", "OpTramo", 3, Kind::OptionButton, "Continuo, interior"},
        {"frmForjSitu", "ChVigDer", -1, Kind::CheckBox, "Voladizo o viga continua a la derecha"},
        // The two-way panels: the waffle slab's own depths over the spans of both.
        {"frmForjRet", "txtForj", 4, Kind::TextBox, "Canto total (cm)"},
        {"frmForjRet", "txtForj", 12, Kind::TextBox, "Vuelo X (m)"},
        {"frmForMaci", "txtMf", 7, Kind::TextBox, "Centro"},
        {"frmForMaci", "OpPosPil", 2, Kind::OptionButton, "Esquina"},
        {"frmAbaco", "OpPosPil", 2, Kind::OptionButton, "esquina"},
        {"frmAbaco", "ChPun", 1, Kind::CheckBox, "Fila de punzonamiento 1"},
        {"frmAbaco", "TxtRes2", -1, Kind::TextBox, "Punzonam."},
        // Corbel, deep beam, stair: the program's own words, the misspelt one included.
        {"frmMensCorta", "TxtRes1", 2, Kind::TextBox, "Cercos horiz"},
        {"frmMensCorta", "TxCota", 6, Kind::TextBox, "Luz viga (cm)"},
        {"frmVigPared", "TxtRes2", -1, Kind::TextBox, "Aramduras"},
        {"frmVigPared", "TxtPil", 0, Kind::TextBox, "Canto pilar izquierdo (cm)"},
        {"frmEscMet", "OptH2izqI", 1, Kind::OptionButton, "Izquierdo inferior 1"},
        {"frmEscHorm", "OptH2izqI", 2, Kind::OptionButton, "Inferior empotrado"},
        {"frmEscHorm", "TxtRes1", 1, Kind::TextBox, "Cortante"},
        // Stairs of concrete and of steel share their lengths and ends; light floors their spans.
        {"frmEscHorm", "TxCotaDesc", 4, Kind::TextBox, "Altura segundo tramo (m)"},
        {"frmEscMet", "TxCotaDesc", 4, Kind::TextBox, "Longitud (m) 4"},
        {"frmEscMet", "OptLosa", 2, Kind::OptionButton, "De 2 tramos"},
        {"frmEscHorm", "OptLosa", 2, Kind::OptionButton, "Escalera 2 tramos"},
        {"frmForjAcer", "ChInclinado", -1, Kind::CheckBox, "Correas"},
        {"frmForMade", "ChInclinado", -1, Kind::CheckBox, "Forjado inclinado"},
        {"frmForjAcer", "TxTrAd", 1, Kind::TextBox, "Cota (m) tramo adyacente"},
        {"frmBasMet", "TxtRes1", 1, Kind::TextBox, "Chapa"},
        // A form without rows of its own takes the common ones only.
        {"frmEscMade", "TxtRes3", -1, Kind::TextBox, "Resultado"},
    };
    ObraDePrueba obra;
    for (const Rotulo& r : rows) {
        SCOPED_TRACE(std::string(r.form) + "." + r.nombre + "(" + std::to_string(r.index) + ")");
        std::unique_ptr<Form> form = CreaForm(obra.d(), r.form);
        ASSERT_NE(form, nullptr);
        const Control* c = form->Find(r.nombre, r.index);
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->kind(), r.kind);
        EXPECT_EQ(c->Caption(), r.caption);
    }
}

// The forms whose every field reads as words, not as its name.
TEST(ControlesVisibles, EveryStoredFieldHasACaption)
{
    ObraDePrueba obra;
    std::vector<const char*> names(std::begin(kForms), std::end(kForms));
    names.insert(names.end(), std::begin(kElementos), std::end(kElementos));
    for (const char* name : names) {
        SCOPED_TRACE(name);
        std::unique_ptr<Form> form = CreaForm(obra.d(), name);
        ASSERT_NE(form, nullptr);
        for (const Control* c : form->StoredControls())
            EXPECT_FALSE(c->Caption().empty()) << c->Label();
    }
}

TEST(ControlesVisibles, NothingStoredIsAddedAndASecondRunAddsNothing)
{
    TestApp app;
    for (const char* name : kForms) {
        SCOPED_TRACE(name);
        Form bare(app.decl, name);
        AnadeControlesVisibles(bare);
        EXPECT_TRUE(bare.StoredControls().empty());
        const size_t count = bare.Controls().size();
        EXPECT_GT(count, 10u);
        AnadeControlesVisibles(bare);
        EXPECT_EQ(bare.Controls().size(), count);
    }
}

// The record of a form with its shown controls is byte for byte the record of its fields alone.
TEST(ControlesVisibles, RecordIsThatOfTheFieldsAlone)
{
    ObraDePrueba obra;
    for (const char* name : kForms) {
        SCOPED_TRACE(name);
        std::unique_ptr<Form> form = CreaForm(obra.d(), name);
        Form fields(obra.d(), name);
        for (const Control* c : form->StoredControls()) {
            Control& copy = fields.Add(c->kind(), c->Name(), c->Index());
            copy.SetText(c->Text());
            copy.SetItems(c->Items());
            copy.SetListIndex(c->ListIndex());
            copy.SetCheckValue(c->CheckValue());
            copy.SetOptionValue(c->OptionValue());
        }
        EXPECT_GT(form->Controls().size(), fields.Controls().size());
        EXPECT_EQ(NamedText(*form), NamedText(fields));
        EXPECT_EQ(static_cast<int>(form->StoredControls().size()), NumeroControles(*TablaCampos(name)));
    }
}

// The captions of the fields never reach a record: with every caption wiped, both record formats
// read the same, and the form holds exactly the fields of its table.
TEST(ControlesVisibles, CaptionsNeverEnterTheRecord)
{
    ObraDePrueba obra;
    for (const char* name : kElementos) {
        SCOPED_TRACE(name);
        std::unique_ptr<Form> form = CreaForm(obra.d(), name);
        ASSERT_NE(form, nullptr);
        const std::string named = NamedText(*form), positional = PositionalText(*form);
        int captioned = 0;
        for (Control* c : form->StoredControls()) {
            captioned += c->Caption().empty() ? 0 : 1;
            c->SetCaption("");
        }
        EXPECT_GT(captioned, 5);
        EXPECT_EQ(NamedText(*form), named);
        EXPECT_EQ(PositionalText(*form), positional);
        EXPECT_EQ(static_cast<int>(form->StoredControls().size()), NumeroControles(*TablaCampos(name)));
    }
}

TEST(ControlesVisibles, EnglishPackTranslatesThem)
{
    const std::vector<Rotulo> rows = {
        {"frmAccio", "UCNieve", -1, Kind::Frame, "SNOW ACTION"},
        {"frmAccio", "CmdMasas", -1, Kind::CommandButton, "Masses"},
        {"frmAccio", "lblPant", -1, Kind::Label, "Shear wall size"},
        {"frmSuelo", "lblLargo", -1, Kind::Label, "Length"},
        {"frmSuelo", "chkServ", -1, Kind::CheckBox, "Meets the conditions:"},
    };
    ObraDePrueba obra;
    const std::string pack = ResourceDir() + "/lng/English/" + kLngFormsFile;
    for (const Rotulo& r : rows) {
        SCOPED_TRACE(std::string(r.form) + "." + r.nombre);
        std::unique_ptr<Form> form = CreaForm(obra.d(), r.form);
        ASSERT_NO_THROW(TraduceFormDesde(*form, pack));
        EXPECT_EQ(form->At(r.nombre, r.index).Caption(), r.caption);
    }
}

}  // namespace
}  // namespace vardena::test
