#include "frame/ControlesVisibles.h"

#include <string>

#include "works/FileIo.h"

namespace vardena {
namespace {

constexpr Kind kLb = Kind::Label;
constexpr Kind kFr = Kind::Frame;
constexpr Kind kBt = Kind::CommandButton;
constexpr Kind kPc = Kind::PictureBox;
constexpr Kind kRt = Kind::RichTextBox;

struct VisiblesDeForm {
    std::string_view form;
    std::vector<ControlVisible> controles;
};

// The actions: a frame per action with its inputs, a frame of results beside each, the map
// buttons, and the two panels that open over the form (the masses per floor, the ground
// strata). The label of txtBeta is drawn in the Symbol font, so that its "b" reads as beta.
VisiblesDeForm Acciones()
{
    return {"frmAccio", {
        // Snow.
        {kFr, "UCNieve", -1, "ACCIÓN DE NIEVE"},
        {kLb, "lblZonaNieve", -1, "Zona climática"},
        {kLb, "lblAltNieve", -1, "Altitud  (m.)"},
        {kBt, "cmdAltitud", -1, "Mapa"},
        {kFr, "UCSobrNieve", -1, "DEFINICIÓN DE LA CARGA DE NIEVE"},
        {kLb, "lblSobrNieve", -1, "Sobrecarga de nieve"},
        {kLb, "lblUnidNieve", -1, "kN/m2"},
        // Wind.
        {kFr, "UCviento", -1, "ACCIÓN EÓLICA"},
        {kLb, "lblZonEol", -1, "Zona eólica"},
        {kLb, "lblEntorno", -1, "Aspereza del entorno"},
        {kLb, "lblAlt", -1, "Altura edificio "},
        {kLb, "lblAnchLong", -1, "Ancho y largo edif."},
        {kBt, "cmdEolica", -1, "Mapa"},
        {kFr, "UCCargaViento", -1, "DEFINICIÓN DE LA ACCIÓN DE VIENTO"},
        {kLb, "lblEsb", -1, "Esbeltez"},
        {kLb, "lblPres", -1, "Coeficiente presión"},
        {kLb, "lblSuc", -1, "Coeficiente succión"},
        {kLb, "lblXX", -1, "X-X"},
        {kLb, "lblYY", -1, "Y-Y"},
        {kRt, "RichTextBox2", -1, ""},
        // Earthquake.
        {kFr, "UCSismo", -1, "ACELERACIÓN SÍSMICA"},
        {kLb, "lblAb", -1, "Aceleración ab/g "},
        {kLb, "lblSismoK", -1, "Coeficiente contribución K"},
        {kBt, "cmdAgG", -1, "Mapa"},
        {kLb, "lblImportSismo", -1, "Importancia edificio"},
        {kLb, "lblEstruct", -1, "Estructura"},
        {kLb, "lblSismoC", -1, "C="},
        {kLb, "lblCompartDuct", -1, "Compartimentación  Ductilidad   "},
        {kLb, "lblBeta", -1, "b"},
        {kBt, "CmdMasas", -1, "Masas"},
        {kBt, "cmdSueloSismo", -1, "Terreno"},
        {kFr, "UCCargaSismica", -1, "DEFINICIÓN DE LA ACCIÓN SISMICA"},
        {kLb, "lblRo", -1, "Coeficiente riesgo"},
        {kLb, "lblAmplif", -1, "Coeficiente amplificación S"},
        {kLb, "lblAc", -1, "Aceleración cálculo"},
        {kLb, "lblTf", -1, "Período fundamental"},
        {kLb, "lblModo", -1, "Modos"},
        {kLb, "lblPant", -1, "Dimensión pantallas"},
        {kRt, "RichTextBox3", -1, ""},
        // The masses panel: row 0 is the design row that the rows of the floors copy.
        {kPc, "Picture1", -1, ""},
        {kFr, "UCplantas", -1, "Datos para sismo"},
        {kLb, "lblSupe", -1, "Superficie (m2)"},
        {kLb, "lblLongCerr", -1, "Longitud cerramiento (m)"},
        {kLb, "lblSing", -1, "Concargas singulares (kN)"},
        {kLb, "lblPlanta", 0, "Planta x"},
        {kLb, "LbCu", -1, "Cubierta"},
        {kBt, "AsignaC", 0, ""},
        {kBt, "AsignaC", 1, ""},
        {kBt, "UCOK", -1, ""},
        // The ground strata panel.
        {kFr, "UCSuelo", -1, "Datos del terreno"},
        {kLb, "lblEstratos", -1, "Nº de estratos en los primeros 30 m "},
        {kLb, "lblEspesor", -1, "Espesor estrato (m)"},
        {kLb, "lblTipoSuelo", -1, "Tipo de terreno"},
        {kLb, "lblC", -1, "Coeficiente C"},
        {kBt, "UCOK2", -1, "Calcular"},
        {kBt, "UCOK1", -1, "Aceptar"},
    }};
}

// The soil: the frames of the bearing formula (UCframe1), of the granular service pressure
// (UCframe2, whose heading is a label: the frame has no caption) and of the rock (UCframe11).
// Label10 and Label12 name the friction angle and the cohesion, which sound rock hides.
VisiblesDeForm Suelo()
{
    return {"frmSuelo", {
        {kFr, "UCframeDatosIni", -1, "Datos iniciales"},
        {kLb, "lblTerreno", -1, "Tipo suelo"},
        {kLb, "lblDensidad", -1, "Densidad (Kg/m3)"},
        {kLb, "Label10", -1, "Angulo rozamiento interno (º)"},
        {kLb, "Label12", -1, "Cohesión (kN/m2)"},
        {kFr, "UCframeCimiento", -1, "Tipo Cimiento"},
        {kLb, "lblAnchoCim", -1, "Ancho efect.(m)"},
        {kLb, "lblSobrecarga", -1, "Sobrec. (kN/m2)"},
        {kPc, "PictureLosa", -1, ""},
        {kPc, "PictureSot", -1, ""},
        {kPc, "PictureAis", -1, ""},
        {kFr, "UCframe1", -1, ""},
        {kFr, "UCframeProf", -1, "Fact.profundidad"},
        {kLb, "lblProf", -1, "Prof. D"},
        {kLb, "lblDc", -1, "dc ="},
        {kLb, "lblDq", -1, "dq ="},
        {kLb, "lblDg", -1, "dg ="},
        {kFr, "UCframeForma", -1, "Factor forma"},
        {kLb, "lblLargo", -1, "Largo"},
        {kLb, "lblAncho", -1, "Ancho"},
        {kLb, "lblSc", -1, "sc ="},
        {kLb, "lblSq", -1, "sq ="},
        {kLb, "lblSg", -1, "sg ="},
        {kFr, "UCframeIncl", -1, "Fact.inclinación"},
        {kLb, "lblV", -1, "Fuerz. V"},
        {kLb, "lblHx", -1, "Fuerz. Hx"},
        {kLb, "lblHy", -1, "Fuerz. Hy"},
        {kLb, "lblIc", -1, "ic ="},
        {kLb, "lblIq", -1, "iq ="},
        {kLb, "lblIg", -1, "ig ="},
        {kFr, "UCframeTalud", -1, "Factor talud"},
        {kLb, "lblAng", -1, "Ang.talud"},
        {kLb, "lblGrados", -1, "º"},
        {kLb, "lblTc", -1, "tc ="},
        {kLb, "lblTq", -1, "tq ="},
        {kLb, "lblTg", -1, "tg ="},
        // Granular soil.
        {kFr, "UCframe2", -1, ""},
        {kLb, "lblServGranular", -1, "DETERMINACIÓN PRESIÓN DE SERVICIO EN SUELOS GRANULARES"},
        {Kind::CheckBox, "chkServ", -1, "Cumple las condiciones:"},
        {kLb, "lblCondicion", 0, "Suelo horizontal <10%"},
        {kLb, "lblCondicion", 1, "Inclinación carga <10%"},
        {kLb, "lblCondicion", 2, "Asiento adm. hasta 25 mm"},
        {kLb, "lblSPT", -1, "N golpes SPT"},
        {kLb, "lblAnchoEfect", -1, "Ancho efectivo"},
        {kLb, "lblAsiento", -1, "Asiento adm. mm"},
        // Sound rock.
        {kFr, "UCframe11", -1, "DETERMINACIÓN DE LA PRESIÓN DE SERVICIO EN ROCA"},
        {kLb, "lblQu", -1, "Resistencia a compresión de la roca sana qu (kN/m2)"},
        {kLb, "lblEspaciado", -1, "Espaciamiento de discontinuidades (mm): s > 300 mm"},
        {kLb, "lblApertura", -1, "Apertura de discontinuidades (mm)"},
        {kLb, "lblNotaApertura", -1, "a < 5 mm en junta sana; a < 25 mm en junta rellena de suelo"},
        {kLb, "lblKsp", -1, "Parámetro Ksp"},
        {kLb, "lblQd", -1, "Presión de servicio  (kN/m2)"},
        // Results.
        {kFr, "UCframeResult", -1, "Resultados"},
        {kLb, "lblTadm", -1, "Tensión admisible (kN/m2)"},
        {kLb, "lblHundimiento", -1, "de hundimiento"},
        {kLb, "lblServicio", -1, "de servicio"},
    }};
}

const std::vector<VisiblesDeForm>& Tabla()
{
    static const std::vector<VisiblesDeForm> tabla = {Acciones(), Suelo()};
    return tabla;
}

}  // namespace

const std::vector<ControlVisible>& ControlesVisibles(std::string_view form)
{
    static const std::vector<ControlVisible> ninguno;
    for (const VisiblesDeForm& f : Tabla())
        if (SameNameNoCase(f.form, form))
            return f.controles;
    return ninguno;
}

void AnadeControlesVisibles(Form& form)
{
    for (const ControlVisible& v : ControlesVisibles(form.Name())) {
        Control* c = form.Find(v.nombre, v.index);
        if (!c) {
            // The fields of the record are the record's: a stored kind is never made here.
            if (IsStored(v.kind))
                continue;
            c = &form.Add(v.kind, std::string(v.nombre), v.index);
        }
        c->SetCaption(v.caption);
        if (!v.tooltip.empty())
            c->SetToolTipText(v.tooltip);
    }
}

}  // namespace vardena
