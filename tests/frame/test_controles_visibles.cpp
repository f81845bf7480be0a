// The shown controls of the actions and the soil: present with their Spanish captions, never a
// field of the record, and translated by the shipped language packs.

#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "frame/ControlesVisibles.h"
#include "shell/LngPack.h"
#include "test_forms_comun.h"
#include "works/Aplicacion.h"
#include "works/Registros.h"

namespace vardena::test {
namespace {

const char* const kForms[] = {"frmAccio", "frmSuelo"};

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
        {"frmAccio", "RichTextBox3", -1, Kind::RichTextBox, ""},
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
    for (const char* name : kForms) {
        SCOPED_TRACE(name);
        const std::vector<ControlVisible>& rows = ControlesVisibles(name);
        EXPECT_GT(rows.size(), 10u);
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
            const Control* c = form->Find(v.nombre, v.index);
            ASSERT_NE(c, nullptr) << v.nombre;
            EXPECT_EQ(c->kind(), v.kind) << v.nombre;
        }
    }
    EXPECT_TRUE(ControlesVisibles("frmZap").empty());
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
