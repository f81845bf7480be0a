#include "frame/ControlesVisibles.h"

#include <string>

#include "base/FileIo.h"

namespace vardena {
namespace {

constexpr Kind kLb = Kind::Label;
constexpr Kind kFr = Kind::Frame;
constexpr Kind kBt = Kind::CommandButton;
constexpr Kind kPc = Kind::PictureBox;
constexpr Kind kRt = Kind::RichTextBox;
constexpr Kind kTx = Kind::TextBox;
constexpr Kind kCb = Kind::ComboBox;
constexpr Kind kCk = Kind::CheckBox;
constexpr Kind kOp = Kind::OptionButton;
constexpr Kind kNd = Kind::UCNumDiam;
constexpr Kind kNs = Kind::UCNumDiamSep;
constexpr Kind kZp = Kind::UCZapatas;
constexpr Kind kPf = Kind::UCPerfil;
constexpr Kind kM = Kind::UCMallazo;

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
        {kRt, "RichTextBox2", -1, "Tabla de viento"},
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
        {kRt, "RichTextBox3", -1, "Tablas sísmicas"},
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
        // The fields of the record, by action.
        {kCk, "ChNieve", -1, "Acción de nieve"},
        {kCb, "cmbNieve", -1, "Zona climática"},
        {kTx, "txtNieve", -1, "Altitud (m)"},
        {kTx, "txtSobrNieve", -1, "Sobrecarga de nieve (kN/m2)"},
        {kCk, "ChViento", -1, "Acción eólica"},
        {kCb, "cmbZonEol", -1, "Zona eólica"},
        {kCb, "cmbEntorno", -1, "Aspereza del entorno"},
        {kTx, "txtAlt", -1, "Altura edificio (m)"},
        {kTx, "txtAnch", -1, "Ancho edificio (m)"},
        {kTx, "TxtLong", -1, "Largo edificio (m)"},
        {kTx, "txtEsb", -1, "Esbeltez X-X"},
        {kTx, "txtPres", -1, "Coeficiente presión X-X"},
        {kTx, "txtSuc", -1, "Coeficiente succión X-X"},
        {kTx, "txtEsby", -1, "Esbeltez Y-Y"},
        {kTx, "txtPresy", -1, "Coeficiente presión Y-Y"},
        {kTx, "txtSucy", -1, "Coeficiente succión Y-Y"},
        {kCk, "ChSismo", -1, "Acción sísmica"},
        {kTx, "TextAb", -1, "Aceleración ab/g"},
        {kTx, "txtSismoK", -1, "Coeficiente contribución K"},
        {kCb, "cmbImportSismo", -1, "Importancia edificio"},
        {kCb, "cmbEstruct", -1, "Estructura"},
        {kCb, "cmbSueloSismo", -1, "Tipo de terreno"},
        {kTx, "txtSismoC", -1, "Coeficiente C"},
        {kCb, "cmbCompart", -1, "Compartimentación"},
        {kCb, "cmbDuct", -1, "Ductilidad"},
        {kTx, "txtBeta", -1, "Coeficiente de respuesta β"},
        {kTx, "txtRo", -1, "Coeficiente riesgo"},
        {kTx, "txtS", -1, "Coeficiente amplificación S"},
        {kTx, "TextAc", -1, "Aceleración cálculo"},
        {kTx, "txtTf", -1, "Período fundamental (s)"},
        {kTx, "txtModo", -1, "Modos"},
        {kTx, "txtPant1", -1, "Dimensión pantallas (m)"},
        {kTx, "TxtSupeP", -1, "Superficie (m2)"},
        {kTx, "TxtLongP", -1, "Longitud cerramiento (m)"},
        {kTx, "TxtSingP", -1, "Concargas singulares (kN)"},
        {kTx, "TxtSupeS", -1, "Superficie sótano (m2)"},
        {kTx, "TxtLongS", -1, "Longitud cerramiento sótano (m)"},
        {kTx, "TxtSingS", -1, "Concargas singulares sótano (kN)"},
        {kTx, "txtEstratos", -1, "Nº de estratos en los primeros 30 m"},
        {kTx, "txtEspesor", -1, "Espesor estrato (m)"},
        {kCb, "cmbSuelo", -1, "Tipo de terreno del estrato"},
        {kTx, "txtC", -1, "Coeficiente C de los estratos"},
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
        // The fields of the record, by frame.
        {kCb, "CmbTerreno", -1, "Tipo suelo"},
        {kTx, "Text3", -1, "Densidad (kg/m3)"},
        {kTx, "Text2", -1, "Ángulo rozamiento interno (º)"},
        {kTx, "Text4", -1, "Cohesión (kN/m2)"},
        {kTx, "Text5", -1, "Valor del catálogo de suelos"},
        {kCb, "ComboCim", -1, "Tipo cimiento"},
        {kTx, "Text6", -1, "Ancho efectivo B (m)"},
        {kTx, "Text1", -1, "Sobrecarga (kN/m2)"},
        {kTx, "txtD", -1, "Profundidad D (m)"},
        {kTx, "txtDc", -1, "Fact. profundidad dc"},
        {kTx, "txtDq", -1, "Fact. profundidad dq"},
        {kTx, "txtDg", -1, "Fact. profundidad dg"},
        {kTx, "txtA", -1, "Largo (m)"},
        {kTx, "txtB", -1, "Ancho (m)"},
        {kTx, "txtSc", -1, "Factor forma sc"},
        {kTx, "txtSq", -1, "Factor forma sq"},
        {kTx, "txtSg", -1, "Factor forma sg"},
        {kTx, "txtV", -1, "Fuerza V"},
        {kTx, "txtHx", -1, "Fuerza Hx"},
        {kTx, "txtHy", -1, "Fuerza Hy"},
        {kTx, "txtIc", -1, "Fact. inclinación ic"},
        {kTx, "txtIq", -1, "Fact. inclinación iq"},
        {kTx, "txtIg", -1, "Fact. inclinación ig"},
        {kTx, "txtAng", -1, "Ángulo talud (º)"},
        {kTx, "txtTc", -1, "Factor talud tc"},
        {kTx, "txtTq", -1, "Factor talud tq"},
        {kTx, "txtTg", -1, "Factor talud tg"},
        {kTx, "txtSPT", -1, "N golpes SPT"},
        {kTx, "txtAnchoEfect", -1, "Ancho efectivo (m)"},
        {kTx, "txtAsiento", -1, "Asiento adm. (mm)"},
        {kTx, "txtNc", -1, "Factor de capacidad Nc"},
        {kTx, "txtNq", -1, "Factor de capacidad Nq"},
        {kTx, "txtNg", -1, "Factor de capacidad Nγ"},
        {kTx, "txtTa", -1, "Tensión admisible, sin redondear"},
        {kTx, "txtTaServ", -1, "Presión de servicio granular, sin redondear"},
        {kTx, "txtTadm", -1, "Tensión admisible de hundimiento (kN/m2)"},
        {kTx, "txtServ", -1, "Tensión admisible de servicio (kN/m2)"},
    }};
}

// The service pressure on sound rock, from the spacing and opening of its joints.
const std::vector<ControlVisible>& Roca()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "txtQu", -1, "Resistencia roca sana qu (kN/m2)"},
        {kTx, "txtS", -1, "Espaciamiento discontinuidades s (mm)"},
        {kTx, "txtAp", -1, "Apertura discontinuidades a (mm)"},
        {kTx, "txtKsp", -1, "Parámetro Ksp"},
        {kTx, "txtQd", -1, "Presión de servicio en roca (kN/m2)"},
    };
    return filas;
}

// The pile group: the strata along the pile, the pile, its cap and the ties between caps.
VisiblesDeForm Pilotes()
{
    return {"frmPilotes", {
        {kCb, "CmbCaract", -1, "Determinación"},
        {kCb, "cmbSuelo", -1, "Tipo de suelo"},
        {kCb, "CmbApoyo", -1, "Apoyo de la punta"},
        {kCk, "ChNF", -1, "Nivel freático"},
        {kTx, "TxtNF", -1, "Profundidad nivel freático (m)"},
        {kCb, "CmbEstratos", -1, "Nº de estratos"},
        {kTx, "TxtLongPil", -1, "Longitud del pilote en el terreno (m)"},
        {kTx, "txtEspesor", -1, "Espesor estrato # (m)"},
        {kTx, "txtCohesion", -1, "Cohesión estrato #"},
        {kTx, "txtRozam", -1, "Rozamiento estrato # (º)"},
        {kTx, "txtSPT", -1, "N golpes SPT estrato #"},
        {kTx, "txtDens", -1, "Densidad estrato # (kN/m3)"},
        {kTx, "txtLe", -1, "Parámetro Le"},
        {kCb, "cmbPil", -1, "Datos cualitativos"},
        {kCb, "cmbPil", 0, "Terreno"},
        {kCb, "cmbPil", 1, "Nº de pilares"},
        {kCb, "cmbPil", 2, "Carga por pilar"},
        {kCb, "cmbPil", 3, "Dificultades del terreno"},
        {kCb, "cmbPil", 4, "Estrato de apoyo"},
        {kCb, "cmbPil", 5, "Resistencia punta y fuste"},
        {kCb, "CmbTipos", -1, "Tipo de pilote"},
        {kCb, "CmbDiam", -1, "Diámetro (cm)"},
        {kCb, "CmbNumPil", -1, "Nº de pilotes"},
        {kTx, "TxtLPilote", -1, "Longitud del pilote (m)"},
        {kNd, "UCPilote", -1, "Armadura del pilote"},
        {kNd, "UCEncepado", -1, "Armadura del encepado"},
        {kTx, "TxtQ", 0, "Carga axil N"},
        {kTx, "TxtQ", 1, "Momento Mx"},
        {kTx, "TxtQ", 2, "Momento My"},
        {kTx, "TxtQ", 3, "Resistencia por punta"},
        {kTx, "TxtQ", 4, "Resistencia por fuste"},
        {kTx, "TxtQ", 5, "Capacidad del pilote"},
        {kTx, "txtQadm", -1, "Carga admisible del pilote"},
        {kTx, "TxCota", -1, "Cota (cm)"},
        {kTx, "TxtH", -1, "Canto del encepado (cm)"},
        {kTx, "TxtSep", -1, "Separación entre pilotes (cm)"},
        {kCk, "ChRiostra", -1, "Riostra #"},
        {kTx, "TxtLong", -1, "Longitud riostra # (m)"},
        {kNd, "UCViga", -1, "Armadura de riostra"},
    }};
}

// Fields that mean the same in every element form that has them: one caption for all. A name
// ending in "*" stands for every field whose name begins with what comes before it.
const std::vector<ControlVisible>& Comunes()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "txtTitulo", -1, "Título"},
        {kCb, "CmbPlanta", -1, "Planta"},
        {kCb, "CmbHorm", -1, "Hormigón"},
        {kCb, "CmbAcero", -1, "Acero"},
        {kCb, "cmbControl", -1, "Control"},
        {kCb, "CmbRecub", -1, "Recubrimiento (mm)"},
        {kCb, "CmbAmbGral", -1, "Ambiente general"},
        {kCb, "CmbAmbEspec", -1, "Ambiente específico"},
        {kCb, "cmbPart", -1, "Partición"},
        {kCb, "CmTramos", -1, "Tramos de carga"},
        {kCb, "cmbClase", -1, "Clase de sección"},
        {kCb, "CmbCaso", -1, "Caso de carga"},
        {kTx, "TxtRes*", -1, "Resultado"},
        {kPf, "UCPerfil1", -1, "Perfil"},
        {kCb, "cmbAceroPerfil", -1, "Acero del perfil"},
        {kCb, "CmbResis", -1, "Clase resistente"},
        {kCb, "CmbServi", -1, "Clase de servicio"},
        {kCb, "CmbCargaComp", -1, "Factor de carga compartida"},
        {kCb, "CmbUso", -1, "Uso"},
        {kTx, "txtEF", -1, "Resistencia al fuego (min)"},
        {kTx, "txtResF1", -1, "Resultado fuego 1"},
        {kTx, "txtResF2", -1, "Resultado fuego 2"},
        {kCb, "CmbForma", -1, "Forma"},
        {kCb, "cmbesviada", -1, "Coeficientes de esviaje"},
        {kCb, "CmbCatEjec", -1, "Categoría de ejecución"},
        {kTx, "TxCoefMin", -1, "Coef. parcial seguridad γM"},
    };
    return filas;
}

// The spans editor and the supports of a beam of one span, as every beam form draws it.
const std::vector<ControlVisible>& Viga()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxCota", -1, "Longitudes (m)"},
        {kTx, "TxCota", 0, "Voladizo (m)"},
        {kTx, "TxCota", 1, "Luz total (m)"},
        {kTx, "TxCota", 2, "Tramo 1 (m)"},
        {kTx, "TxCota", 3, "Tramo 2 (m)"},
        {kTx, "TxCota", 4, "Voladizo (m)"},
        {kTx, "TxtQ", -1, "Cargas"},
        {kTx, "TxtQ", 0, "Carga puntual P"},
        {kTx, "TxtQ", 4, "Carga puntual P"},
        {kTx, "TxtQ", 5, "Carga puntual P"},
        {kTx, "TxtQ", 6, "Carga puntual P"},
        {kTx, "TxtQ", 1, "Carga repartida q"},
        {kTx, "TxtQ", 2, "Carga repartida q"},
        {kTx, "TxtQ", 3, "Carga repartida q"},
        {kCk, "ChPilIzq", -1, "Pilar inferior izquierdo"},
        {kCk, "ChPilDer", -1, "Pilar inferior derecho"},
    };
    return filas;
}

// What lies beyond each end of a beam or a slab's stretch.
const std::vector<ControlVisible>& Continuidad()
{
    static const std::vector<ControlVisible> filas = {
        {kCk, "ChVigIzq", -1, "Voladizo o viga continua a la izquierda"},
        {kCk, "ChVigDer", -1, "Voladizo o viga continua a la derecha"},
    };
    return filas;
}

// A stretch of a one-way slab, cast in place or of joists: its depth, its mesh, its bars and
// shear reinforcement, its span and the spans beside it.
const std::vector<ControlVisible>& Forjado()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "txtForj", -1, "Dimensión forjado # (cm)"},
        {kTx, "TxCota", -1, "Longitudes (m)"},
        {kTx, "TxCota", 0, "Voladizo (m)"},
        {kTx, "TxCota", 1, "Luz (m)"},
        {kOp, "OpTramo", -1, "Posición del tramo #"},
        {kTx, "TxTrAd", -1, "Cota (m) tramo adyacente"},
        {kTx, "TxtQ", -1, "Cargas"},
        {kM, "UCMall", -1, "Mallazo"},
        {kNd, "UCArVig", -1, "Barras"},
        {kCk, "ChArV", -1, "Capa adicional #"},
        {kTx, "TxLv", -1, "Longitud capa # (m)"},
        {kNs, "UCArCer", -1, "Armado a cortante"},
        {kCb, "cmbCercos", -1, "Tipo de armado a cortante"},
        {kCk, "ChMacizadoIzq", -1, "Macizado izquierdo"},
        {kCk, "ChMacizadoDer", -1, "Macizado derecho"},
        {kCk, "ChMas1", -1, "Opción de armado 1"},
        {kTx, "TxtRes1", -1, "Flector"},
        {kTx, "TxtRes2", -1, "Corte"},
        {kTx, "TxtRes3", -1, "Flecha act."},
        {kTx, "TxtRes4", -1, "Vale canto"},
    };
    return filas;
}

// The joist slab: with a catalogue sheet or by its dimensions, and the sheet's chosen row.
VisiblesDeForm ForjadoUnidireccional()
{
    return {"frmForjUnid", {
        {kCb, "Combo1", -1, "Partición"},
        {kCb, "cmbTipoFor", -1, "Tipo forjado"},
        {kOp, "OpSiNo", -1, "Datos de fichas"},
        {kOp, "OpSiNo", 0, "Sí"},
        {kOp, "OpSiNo", 1, "No"},
        {kTx, "TXFnombre", -1, "Vigueta"},
        {kTx, "TXFmod", -1, "Módulo resistente (cm3/m)"},
        {kTx, "TXFbeta", -1, "β de la ficha"},
        {kTx, "TXFmomUlt", -1, "Momento último (m·kN/m)"},
        {kTx, "TXFrig", -1, "Rigidez E·Ih (m2·kN/m)"},
        {kTx, "TXFrigfis", -1, "Rigidez E·Ifis (m2·kN/m)"},
        {kTx, "TXFMo", -1, "Momento servicio Mo (m·kN/m)"},
        {kTx, "TXFMop", -1, "Momento servicio Mo' (m·kN/m)"},
        {kTx, "TXFMo2", -1, "Momento servicio Mo2 (m·kN/m)"},
        {kTx, "TXFcort1", -1, "Cortante Vu (1) (kN/m)"},
        {kTx, "TXFcort2", -1, "Cortante Vu (2) (kN/m)"},
        {kTx, "TXFcort3", -1, "Cortante Vu (3) (kN/m)"},
        {kTx, "TXFras", -1, "Rasante Vu (kN/m)"},
        {kTx, "TxNumVig", -1, "Nº de vigueta en la ficha"},
        {kTx, "TxNumFor", -1, "Nº de forjado en la ficha"},
        {kOp, "OpCort", 0, "Cortante máximo"},
        {kOp, "OpCort", 1, "Armado a cortante"},
        {kCk, "ChMas2", -1, "Opción de armado 2"},
        {kOp, "OpPosit", -1, "Opción de apoyo #"},
        {kOp, "OpAncho", -1, "Opción de ancho #"},
        {kTx, "txtBeta", -1, "Coeficiente β"},
        {kTx, "Text1", -1, "Texto auxiliar"},
    }};
}

VisiblesDeForm ForjadoInSitu()
{
    return {"frmForjSitu", {
        {kTx, "txtV", -1, "Valor auxiliar #"},
    }};
}

// A two-way slab panel, waffle or solid: its place in the plan, its spans, the bars of its four
// bands and the safety coefficient of each band.
const std::vector<ControlVisible>& LosaBandas()
{
    static const std::vector<ControlVisible> filas = {
        {kOp, "OpPosPil", 0, "Centro"},
        {kOp, "OpPosPil", 1, "Borde"},
        {kOp, "OpPosPil", 2, "Esquina"},
        {kCb, "Combo1", -1, "Partición"},
        {kTx, "txtForj", -1, "Longitud # (m)"},
        {kNd, "UCArVig", -1, "Barras de las bandas"},
        {kCk, "ChArV", -1, "Barra adicional #"},
        {kTx, "TxLv", -1, "Longitud barra # (m)"},
        {kTx, "TxtQ", 0, "Carga cerramiento (sin mayorar)"},
        {kM, "UCMall", -1, "Armado reparto"},
        {kTx, "txtMf", -1, "Coef. seguridad flector #"},
        {kTx, "TxtRes1", -1, "Flector x-x'"},
        {kTx, "TxtRes2", -1, "Flector y-y'"},
        {kTx, "TxtRes3", -1, "Flecha"},
    };
    return filas;
}

VisiblesDeForm ForjadoReticular()
{
    return {"frmForjRet", {
        {kCb, "cmbTipoFor", -1, "Casetón"},
        {kOp, "OpAncho", 0, "por metro"},
        {kOp, "OpAncho", 1, "por nervio"},
        {kTx, "txtForj", 0, "Dimensión forjado 0 (cm)"},
        {kTx, "txtForj", 1, "Dimensión forjado 1 (cm)"},
        {kTx, "txtForj", 2, "Dimensión forjado 2 (cm)"},
        {kTx, "txtForj", 3, "Dimensión forjado 3 (cm)"},
        {kTx, "txtForj", 4, "Canto total (cm)"},
    }};
}

VisiblesDeForm ForjadoMacizo()
{
    return {"frmForMaci", {
        {kTx, "TxtCanto", -1, "Canto (cm)"},
    }};
}

// The drop panel at a column: the column and the panel, their bars, the punching rows, the
// slab around it and its ribs.
VisiblesDeForm Abaco()
{
    return {"frmAbaco", {
        {kOp, "OpPosPil", 0, "centro"},
        {kOp, "OpPosPil", 1, "borde"},
        {kOp, "OpPosPil", 2, "esquina"},
        {kTx, "LePil", -1, "Distancias (m)"},
        {kTx, "PilX", -1, "Lado pilar X (m)"},
        {kTx, "PilY", -1, "Lado pilar Y (m)"},
        {kTx, "AbacoX", -1, "Lado ábaco X (m)"},
        {kTx, "AbacoY", -1, "Lado ábaco Y (m)"},
        {kNd, "ArmX", -1, "Armado superior X"},
        {kNd, "ArmY", -1, "Armado superior Y"},
        {kCk, "ChX", -1, "Armado superior X #"},
        {kCk, "ChY", -1, "Armado superior Y #"},
        {kNd, "ArmPunz", -1, "Armado punzonamiento"},
        {kTx, "TxSep", -1, "Separación fila # (m)"},
        {kCk, "ChPun", -1, "Fila de punzonamiento #"},
        {kCb, "cmbTipoFor", -1, "Casetón"},
        {kTx, "txtForj", -1, "Dimensión forjado # (cm)"},
        {kM, "UCMall", -1, "Mallazo"},
        {kNd, "UCArVig", -1, "Armado de los nervios"},
        {kNs, "UCArCer", -1, "Cercos de los nervios"},
        {kCk, "ChMas1X", -1, "Barra adicional X-X'"},
        {kCk, "ChMas1Y", -1, "Barra adicional Y-Y'"},
        {kCk, "chkCercosX", -1, "Cercos X-X'"},
        {kCk, "chkCercosY", -1, "Cercos Y-Y'"},
        {kCb, "cmbCercos", 0, "Tipo de cercos X-X'"},
        {kCb, "cmbCercos", 1, "Tipo de cercos Y-Y'"},
        {kTx, "TxtQ", 0, "Carga cerramiento (sin mayorar)"},
        {kTx, "TxtRes1", -1, "Bielas"},
        {kTx, "TxtRes2", -1, "Punzonam."},
        {kTx, "TxtRes3", -1, "Cortante"},
    }};
}

// The short corbel: its kind, its sizes and loads, the casting joint and its bars.
VisiblesDeForm MensulaCorta()
{
    return {"frmMensCorta", {
        {kOp, "OpTipo", 0, "Ménsula simple"},
        {kOp, "OpTipo", 1, "Viga embrochalada en ménsula"},
        {kOp, "OpTipo", 2, "Pilar en vuelo"},
        {kOp, "OpTipo", 3, "Pilar excéntrico"},
        {kTx, "TxCota", -1, "Cota (cm)"},
        {kTx, "TxCota", 6, "Luz viga (cm)"},
        {kTx, "TxtQ", 0, "Fvd"},
        {kTx, "TxtQ", 1, "Fhd"},
        {kTx, "TxtQ", 2, "Md"},
        {kTx, "TxtQ", 3, "Carga viga"},
        {kCb, "Hormig", -1, "Forma de hormigonado"},
        {kTx, "TextCtg", -1, "Cotg θ"},
        {kTx, "txtMom", -1, "Md viga"},
        {kTx, "txtCort", -1, "Vd viga"},
        {kNd, "UCArmPrinc", -1, "Armadura principal"},
        {kNd, "UCArmCercos", -1, "Cercos horizontales"},
        {kNd, "UCArmColgar", -1, "Armadura de cuelgue"},
        {kTx, "TxtRes1", 0, "Bielas"},
        {kTx, "TxtRes1", 1, "Principal"},
        {kTx, "TxtRes1", 2, "Cercos horiz"},
        {kTx, "TxtRes1", 3, "Cuelgue"},
        {kTx, "txCuelgue", -1, "Armadura cuelgue"},
        {kTx, "TxCercos", -1, "Armadura cercos"},
        {kTx, "TxArmado", -1, "Armadura principal"},
    }};
}

// The deep beam: the spans editor of a beam with its own bars and meshes.
VisiblesDeForm VigaPared()
{
    return {"frmVigPared", {
        {kTx, "txtDat2", -1, "Límite flecha 1/"},
        {kCk, "ChkPuntual", -1, "Poner carga puntual"},
        {kCk, "Check1", -1, "Carga aplicada en cara inferior viga"},
        {kTx, "TxCota", -1, "Longitudes (m)"},
        {kTx, "TxtQ", -1, "Cargas"},
        {kTx, "TxtQ", 0, "P1"},
        {kTx, "TxtQ", 4, "P2"},
        {kTx, "TextDviga", 0, "Ancho (cm)"},
        {kTx, "TextDviga", 1, "Canto (cm)"},
        {kCk, "ChPilIzq", -1, "Pilar inferior izquierdo"},
        {kCk, "ChPilDer", -1, "Pilar inferior derecho"},
        {kNd, "UCArVigCen", -1, "Armado principal centro"},
        {kNd, "UCArVigIzq", -1, "Armado principal izquierda"},
        {kNd, "UCArVigder", -1, "Armado principal derecha"},
        {kM, "UCMallazo1", -1, "Armado reparto por cara 1"},
        {kM, "UCMallazo2", -1, "Armado reparto por cara 2"},
        {kTx, "TxtRes1", -1, "Bielas"},
        {kTx, "TxtRes2", -1, "Aramduras"},
        {kTx, "TxtRes3", -1, "Mallazo"},
    }};
}

// The concrete stair or ramp: its kind, the slab and landings, the loads, and for each kind
// its lengths, its bars and the holding of its ends.
VisiblesDeForm EscaleraHormigon()
{
    return {"frmEscHorm", {
        {kOp, "OptLosa", 0, "Escalera 1 tramo"},
        {kOp, "OptLosa", 1, "Escalera 1 tramo con descanso"},
        {kOp, "OptLosa", 2, "Escalera 2 tramos"},
        {kOp, "OptLosa", 3, "Rampa"},
        {kTx, "TxtCanto", -1, "Canto (m)"},
        {kNd, "UCNumDiamH1", -1, "Barras escalera 1 tramo"},
        {kNd, "UCNumDiamDesc", -1, "Barras escalera con descanso"},
        {kNd, "UCNumDiamH2", -1, "Barras escalera 2 tramos"},
        {kNd, "UCNumDiamRampa", -1, "Barras rampa"},
        {kTx, "TxtRes1", 0, "Flector"},
        {kTx, "TxtRes1", 1, "Cortante"},
    }};
}

// A stair or a ramp of any material: the widths, the loads on it, and for each kind of stair
// its lengths and how its ends are held.
const std::vector<ControlVisible>& Escalera()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "txtAncho", -1, "Ancho (m)"},
        {kTx, "txtSobrUso", -1, "Sobrecarga de uso"},
        {kTx, "txtSolado", -1, "Solado"},
        {kTx, "TxCotaH1", -1, "Longitud escalera 1 tramo (m)"},
        {kTx, "TxCotaDesc", -1, "Longitud escalera con descanso (m)"},
        {kTx, "TxCotaH2", -1, "Longitud escalera 2 tramos (m)"},
        {kTx, "TxCotaRampa", -1, "Longitud rampa (m)"},
        {kOp, "OptH1izq", -1, "Extremo izquierdo #"},
        {kOp, "OptH1der", -1, "Extremo derecho #"},
        {kOp, "OptDApoIzq", -1, "Extremo izquierdo #"},
        {kOp, "OptDApoDer", -1, "Extremo derecho #"},
        {kOp, "OptH2izqS", -1, "Extremo izquierdo superior #"},
        {kOp, "OptH2izqI", -1, "Extremo izquierdo inferior #"},
        {kOp, "OptH2der", -1, "Extremo derecho #"},
        {kOp, "OptRampaApoIzq", -1, "Extremo izquierdo #"},
        {kOp, "OptRampaApoDer", -1, "Extremo derecho #"},
    };
    return filas;
}

// A floor of timber or steel joists: its stretch among the others, its spans and its loads.
const std::vector<ControlVisible>& ForjadoLigero()
{
    static const std::vector<ControlVisible> filas = {
        {kOp, "OpFlexLat", -1, "Flexión lateral #"},
        {kTx, "txtForj", -1, "Dato del forjado #"},
        {kOp, "OpTramo", -1, "Tramo #"},
        {kTx, "TxTrAd", -1, "Cota (m) tramo adyacente"},
        {kTx, "TxCota", -1, "Longitudes (m)"},
        {kTx, "TxtQ", -1, "Cargas"},
    };
    return filas;
}

// The results of a steel floor or stair.
const std::vector<ControlVisible>& ResultadosAcero()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtRes1", -1, "Flector"},
        {kTx, "TxtRes2", -1, "Corte"},
        {kTx, "TxtRes3", -1, "Flecha act."},
        {kTx, "TxtRes4", -1, "Cumple"},
    };
    return filas;
}

VisiblesDeForm ForjadoAcero()
{
    return {"frmForjAcer", {
        {kCk, "ChInclinado", -1, "Correas"},
    }};
}

VisiblesDeForm EscaleraAcero()
{
    return {"frmEscMet", {
        {kOp, "OptLosa", 0, "De 1 tramo"},
        {kOp, "OptLosa", 1, "De 1 tramo con descanso"},
        {kOp, "OptLosa", 2, "De 2 tramos"},
        {kOp, "OptLosa", 3, "Rampa"},
    }};
}

// The steel base plate: its bolts, its plate and the stiffeners in each direction.
VisiblesDeForm BaseMetalica()
{
    return {"frmBasMet", {
        {kCb, "CmbTornillos", -1, "Calidad de los pernos"},
        {kTx, "TxCota", -1, "Cota (cm)"},
        {kTx, "Text1", -1, "Valor auxiliar"},
        {kTx, "TxMx", -1, "Momento Mx"},
        {kTx, "TxMy", -1, "Momento My"},
        {kCk, "ChX", -1, "Cartelas en X"},
        {kCk, "ChY", -1, "Cartelas en Y"},
        {kTx, "TxEspCartX", -1, "Espesor cartela X (cm)"},
        {kTx, "TxEspCartY", -1, "Espesor cartela Y (cm)"},
        {kTx, "TxNumTorX", -1, "Nº de pernos en X"},
        {kTx, "TxNumTorY", -1, "Nº de pernos en Y"},
        {kTx, "TxCotaCartX", -1, "Cota cartela X # (cm)"},
        {kTx, "TxCotaCartY", -1, "Cota cartela Y # (cm)"},
        {kTx, "TxtRes1", 0, "Pernos"},
        {kTx, "TxtRes1", 1, "Chapa"},
        {kTx, "TxtRes1", 2, "Cartelas"},
    }};
}

// The columns at the ends of a beam, where the form draws them.
const std::vector<ControlVisible>& PilaresViga()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtPil", -1, "Canto pilar (cm)"},
        {kTx, "TxtPil", 0, "Canto pilar izquierdo (cm)"},
        {kTx, "TxtPil", 1, "Canto pilar derecho (cm)"},
    };
    return filas;
}

// A reinforced concrete section of a beam or a lintel: its size and its bars.
const std::vector<ControlVisible>& ArmadoViga()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TextDviga", -1, "Sección"},
        {kTx, "TextDviga", 0, "Ancho b (cm)"},
        {kTx, "TextDviga", 1, "Canto h (cm)"},
        {kNd, "UCArVig", -1, "Barras"},
        {kCk, "ChArV", -1, "Capa adicional #"},
        {kNs, "UCArCer", -1, "Cercos (2 ramas)"},
        {kTx, "txtCort", -1, "Compresión oblicua"},
    };
    return filas;
}

// A concrete beam: the slabs beside it, its bar lengths and its results.
const std::vector<ControlVisible>& VigaHormigon()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxCota", 5, "Luz forjado izquierdo (m)"},
        {kTx, "TxCota", 6, "Luz forjado derecho (m)"},
        {kTx, "TxLv", -1, "Longitud capa # (m)"},
        {kCk, "ChTrans", -1, "Estudiar flexión transversal"},
        {kTx, "TxtRes1", -1, "Flector"},
        {kTx, "TxtRes2", -1, "Corte"},
        {kTx, "TxtRes3", -1, "Flecha act."},
        {kTx, "TxtRes4", -1, "Fisuración"},
    };
    return filas;
}

// A column of a storey: the spans around it by its position in plan and its loads.
const std::vector<ControlVisible>& Pilar()
{
    static const std::vector<ControlVisible> filas = {
        {kOp, "OpPosPil", 0, "esquina"},
        {kOp, "OpPosPil", 1, "borde"},
        {kOp, "OpPosPil", 2, "centro"},
        {kTx, "LePil", -1, "Luces (m)"},
        {kTx, "LePil", 12, "Altura de planta (m)"},
        {kCk, "ChPilSup", -1, "Pilar continúa encima"},
        {kTx, "TxtQ", -1, "Cargas"},
        {kTx, "TxtQ", 0, "Momento Mx"},
        {kTx, "TxtQ", 1, "Momento My"},
        {kTx, "TxtQ", 2, "Carga axil N"},
        {kTx, "TxtQ", 3, "Cerramiento (sin mayorar)"},
    };
    return filas;
}

const std::vector<ControlVisible>& PilarHormigon()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "txtTramo", -1, "Dimensión (cm)"},
        {kNd, "UCArmPilar", -1, "Armadura"},
        {kNs, "UCCercos", -1, "Cercos pilar"},
        {kNs, "UCNumDiamSep1", -1, "Cercos pilar circular"},
        {kCk, "ChPil", -1, "Horquilla"},
        {kTx, "txtW", -1, "Cuantía excesiva"},
        {kTx, "TxtRes1", -1, "Global"},
        {kTx, "TxtRes2", -1, "Axil"},
        {kTx, "TxtRes3", -1, "Cercos"},
    };
    return filas;
}

// The buckling of a steel or timber column.
const std::vector<ControlVisible>& Pandeo()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtBetaX", -1, "Coef. de pandeo β X"},
        {kTx, "TxtBetaY", -1, "Coef. de pandeo β Y"},
        {kCk, "ChkArriostradaX", -1, "Arriostrado en X"},
        {kCk, "ChkArriostradaY", -1, "Arriostrado en Y"},
        {kCk, "ChRotS", -1, "Rótula en cabeza"},
        {kCk, "ChRotI", -1, "Rótula en pie"},
    };
    return filas;
}

const std::vector<ControlVisible>& PilarAcero()
{
    static const std::vector<ControlVisible> filas = {
        {kPf, "UCViga", -1, "Perfil de viga"},
        {kTx, "txtCurvaX", -1, "Curva de pandeo X"},
        {kTx, "txtCurvaY", -1, "Curva de pandeo Y"},
    };
    return filas;
}

// The timber beam: the partitions it carries and how its load is shared.
VisiblesDeForm VigaMadera()
{
    return {"frmVigMade", {
        {kTx, "TextDviga", -1, "Sección"},
        {kTx, "TextDviga", 0, "Ancho b (cm)"},
        {kTx, "TextDviga", 1, "Canto h (cm)"},
    }};
}

VisiblesDeForm PilarMadera()
{
    return {"frmPilMade", {
        {kTx, "txtTramo", -1, "Dimensión (cm)"},
        {kTx, "TxtPorcent", -1, "Porcentaje (%)"},
    }};
}

// The timber floor: its joists, its spans and the partitions on it.
VisiblesDeForm ForjadoMadera()
{
    return {"frmForMade", {
        {kCb, "Combo1", -1, "Partición"},
        {kTx, "LblTab", -1, "Aviso del tablero"},
        {kCk, "ChInclinado", -1, "Forjado inclinado"},
        {kTx, "TextDviga", 0, "Ancho vigueta b (cm)"},
        {kTx, "TextDviga", 1, "Canto vigueta h (cm)"},
    }};
}

// What every footing has: its reinforcement and the ground's admissible pressure, which may
// be that of the general data.
const std::vector<ControlVisible>& Zapata()
{
    static const std::vector<ControlVisible> filas = {
        {kZp, "UCArmZap", -1, "Armadura"},
        {kCk, "Check1", -1, "Tensión admisible idem general"},
        {kTx, "TxtQ", -1, "Cargas"},
    };
    return filas;
}

// The strip footing under a wall, alone or under a basement wall.
const std::vector<ControlVisible>& ZapataBajoMuro()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxCotaAncho", -1, "Ancho de la zapata (cm)"},
        {kTx, "TxCotaAlto", -1, "Canto de la zapata (cm)"},
    };
    return filas;
}

VisiblesDeForm ZapataCorrida()
{
    return {"frmZapCorr", {
        {kOp, "OpTipoMuro", -1, "Tipo de muro"},
        {kOp, "OpTipoMuro", 0, "Fábrica"},
        {kOp, "OpTipoMuro", 1, "Hormigón"},
        {kTx, "TxCotaMuro", -1, "Ancho del muro (cm)"},
        {kTx, "TxtQ", 0, "Carga axil N"},
        {kTx, "TxtQ", 1, "Momento M"},
        {kTx, "TxtQ", 2, "Tensión admisible terreno"},
    }};
}

// The isolated footing: three loads (N, Mx, My) for each of its load pictures.
VisiblesDeForm ZapataAislada()
{
    return {"frmZap", {
        {kOp, "OpPosPil", -1, "Posición del pilar #"},
        {kTx, "TxDimZap", -1, "Dimensión zapata (cm)"},
        {kTx, "TxPil", -1, "Lado del pilar (cm)"},
        {kTx, "TxDist", -1, "Distancia al pilar contiguo (cm)"},
        {kTx, "TxCota", -1, "Cota (cm)"},
        {kCk, "chkRiostra", -1, "Riostra no centradora"},
        {kNd, "UCViga", -1, "Armadura viga centradora"},
        {kNs, "UCCercosViga", -1, "Cercos viga centradora"},
        {kTx, "TxtQ", 0, "N"}, {kTx, "TxtQ", 1, "Mx"}, {kTx, "TxtQ", 2, "My"},
        {kTx, "TxtQ", 3, "N"}, {kTx, "TxtQ", 4, "Mx"}, {kTx, "TxtQ", 5, "My"},
        {kTx, "TxtQ", 6, "N"}, {kTx, "TxtQ", 7, "Mx"}, {kTx, "TxtQ", 8, "My"},
        {kTx, "TxtQ", 9, "N"}, {kTx, "TxtQ", 10, "Mx"}, {kTx, "TxtQ", 11, "My"},
        {kTx, "TxtQ", 12, "Tensión admisible terreno"},
    }};
}

// The beam of a regular portal frame: the frame around it, besides the beam's own fields.
VisiblesDeForm VigaRegular()
{
    return {"frmVigRegHorm", {
        {kCb, "cmbTrPort", -1, "Nº tramos pórtico"},
        {kCb, "cmbTrForj", -1, "Nº tramos forjado"},
        {kTx, "txtCotHz", -1, "Luces en planta (m)"},
        {kTx, "txtCotVert", -1, "Luces transversales (m)"},
        {kOp, "optViga", -1, "Viga #"},
        {kTx, "TxRedistr", -1, "Redistribución plástica (%)"},
        {kTx, "TxtQ", 7, "Cerramiento perimetral (sin mayorar)"},
        {kTx, "txtMom", -1, "Momento"},
        {kTx, "txtCor", -1, "Cortante"},
        {kTx, "txtGiro", -1, "Giro"},
    }};
}

// The backfill of a concrete wall and the friction against it.
const std::vector<ControlVisible>& Relleno()
{
    static const std::vector<ControlVisible> filas = {
        {kCb, "CmbTerr", -1, "Material relleno"},
        {kTx, "TxtDensidad", -1, "Densidad relleno (kg/m3)"},
        {kTx, "TxtAngulo", -1, "Ángulo rozamiento interno (º)"},
        {kOp, "OptDelta", 0, "Definir..."},
        {kOp, "OptDelta", 1, "Bajo"},
        {kOp, "OptDelta", 2, "Alto"},
        {kTx, "Text1", -1, "Rozamiento muro-relleno (º)"},
    };
    return filas;
}

// What every wall on a footing has: its heights and thicknesses, the toe of its footing, its
// reinforcement and the ground's admissible pressure.
const std::vector<ControlVisible>& Muro()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxCotaMuro", -1, "Cotas del muro (cm)"},
        {kTx, "TxVuelo", -1, "Vuelo de la zapata (cm)"},
        {kZp, "UCArmMuro", -1, "Armadura del muro"},
        {kTx, "TxtQ", 2, "Tensión admisible terreno"},
    };
    return filas;
}

// A wall of storeys: how many, the loads at its top, and whether it may yield.
const std::vector<ControlVisible>& MuroDePlantas()
{
    static const std::vector<ControlVisible> filas = {
        {kCb, "CmbSot", -1, "Sótanos"},
        {kCk, "Check2", -1, "Admitir plastificación de muro"},
        {kCk, "CheckFM", -1, "Forjado coronación"},
        {kTx, "TxtQ", 0, "Carga coronación N"},
        {kTx, "TxtQ", 1, "Momento coronación M"},
    };
    return filas;
}

VisiblesDeForm MuroSotano()
{
    return {"frmMuroH", {
        {kTx, "TxtQ", 3, "Carga coronación"},
    }};
}

// The retaining wall, of concrete or masonry, with the ground under it and the backfill.
VisiblesDeForm MuroContencion()
{
    return {"frmMuroCont", {
        {kCb, "cmbTipo", -1, "Tipo de muro"},
        {kCk, "ChkMortero", -1, "Fábrica con mortero"},
        {kTx, "TxtDensFabr", -1, "Densidad fábrica (kg/m3)"},
        {kTx, "TxCoefAcc", -1, "Coef. de mayoración de acciones"},
        {kCb, "CmbTerreno", -1, "Tipo suelo"},
        {kTx, "Text3", -1, "Densidad terreno (kg/m3)"},
        {kTx, "Text2", -1, "Ángulo rozamiento terreno (º)"},
        {kTx, "Text4", -1, "Cohesión terreno"},
        {kTx, "Text5", -1, "Valor del catálogo de suelos"},
        {kTx, "txtCohesion", -1, "Cohesión relleno"},
        {kCk, "chkEmpPasivo", -1, "Empuje pasivo"},
        {kTx, "TxtCotaTacon", -1, "Canto del tacón (cm)"},
        {kTx, "TxtCotaSuelo", -1, "Altura del suelo delantero (cm)"},
        {kTx, "TxtQ", 3, "Carga coronación"},
    }};
}

// The anchored wall: the ground it holds and, on each level, an anchor.
VisiblesDeForm MuroAnclado()
{
    return {"frmMuroAnclado", {
        {kCb, "CmbTalud", -1, "Tipo de terreno"},
        {kTx, "TxtDensidad", -1, "Densidad terreno (kg/m3)"},
        {kTx, "TxtAngulo", -1, "Ángulo rozamiento interno (º)"},
        {kTx, "TxtQ", 3, "Cohesión"},
        {kCb, "cmbTerz", -1, "Terreno para empujes"},
        {kOp, "optEmpuje", -1, "Empuje #"},
        {kTx, "TxtQ", 8, "Carga coronación"},
        {kTx, "TxtQ", 4, "Tensión anclaje 1"},
        {kTx, "TxtQ", 5, "Tensión anclaje 2"},
        {kTx, "TxtQ", 6, "Tensión anclaje 3"},
        {kTx, "TxtQ", 7, "Tensión anclaje 4"},
        {kTx, "txtAng", -1, "Ángulo anclaje (º)"},
        {kTx, "TxtSep", -1, "Separación anclajes (cm)"},
    }};
}

// The soil slope: its ground, its sketch and its drainage.
VisiblesDeForm Talud()
{
    return {"frmTalud", {
        {kCb, "CmbTalud", -1, "Tipo de terreno"},
        {kTx, "TxtDensidad", -1, "Densidad (kg/m3)"},
        {kTx, "TxtAngulo", -1, "Ángulo rozamiento interno (º)"},
        {kTx, "TxtQ", 0, "Sobrecarga"},
        {kTx, "TxtQ", 1, "Cohesión"},
        {kTx, "TxCotaTalud", 0, "Altura (cm)"},
        {kTx, "TxCotaTalud", 1, "Altura (cm)"},
        {kTx, "TxCotaTalud", 2, "Ángulo del talud (º)"},
        {kOp, "optDrenaje", 0, "Sin drenaje"},
        {kOp, "optDrenaje", 1, "Con drenaje efectivo"},
        {kCk, "chkEstrato", -1, "Estrato superficial duro"},
        {kTx, "txCuelgue", -1, "Resultado 1"},
        {kTx, "TxCercos", -1, "Resultado 2"},
    }};
}

VisiblesDeForm ZapataCombinada()
{
    return {"frmZapComb", {
        {kTx, "TxCota", -1, "Cota (cm)"},
        {kTx, "TxtQ", 4, "Tensión admisible terreno"},
    }};
}

// What the masonry forms share: the masonry's strength and density, and the lengths of the
// element.
const std::vector<ControlVisible>& Fabrica()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtCota", -1, "Cotas"},
        {kTx, "TxtQ", -1, "Cargas"},
    };
    return filas;
}

VisiblesDeForm Muros()
{
    return {"frmMuros", {
        {kTx, "TxtQ", 0, "Res. fábrica"},
        {kTx, "TxtDensidad", -1, "Densidad (kg/m3)"},
        {kOp, "OptArr", -1, "Arriostramiento"},
        {kOp, "OptArr", 0, "Cabeza, base y 2 bordes verticales"},
        {kOp, "OptArr", 1, "Cabeza, base y 1 borde vertical"},
        {kOp, "OptArr", 2, "Sólo cabeza y base"},
        {kOp, "OpTramo", -1, "Tramo #"},
        {kCk, "CheckI", -1, "Hueco inferior"},
        {kCk, "CheckS", -1, "Hueco superior"},
        {kTx, "TxtRes1", -1, "Centro"},
        {kTx, "TxtRes2", -1, "Extremo"},
    }};
}

// The enclosure panel: how each of its four edges is held, and how it is checked.
VisiblesDeForm Cerramiento()
{
    return {"frmMCerr", {
        {kTx, "TxtQ", 0, "Res. flexión paral."},
        {kTx, "TxtQ", 1, "Res. flexión perp."},
        {kTx, "TxtCota", 0, "Longitud (m)"},
        {kTx, "TxtCota", 1, "Altura (m)"},
        {kTx, "TxtCota", 2, "Espesor (m)"},
        {kOp, "OptCab", -1, "Cabeza"},
        {kOp, "OptCab", 0, "Libre"},
        {kOp, "OptCab", 1, "Empotrado"},
        {kOp, "OptCab", 2, "Apoyado"},
        {kOp, "OptBase", -1, "Base"},
        {kOp, "OptBase", 0, "Apoyado"},
        {kOp, "OptBase", 1, "Empotrado"},
        {kOp, "OptIzq", -1, "Borde izquierdo"},
        {kOp, "OptIzq", 0, "Empotrado"},
        {kOp, "OptIzq", 1, "Apoyado"},
        {kOp, "OptDer", -1, "Borde derecho"},
        {kOp, "OptDer", 0, "Apoyado"},
        {kOp, "OptDer", 1, "Empotrado"},
        {kOp, "OptCalc", -1, "Método de cálculo"},
        {kOp, "OptCalc", 0, "Efecto arco"},
        {kOp, "OptCalc", 1, "Flexión como placa"},
        {kTx, "TxCatEjec", -1, "Categoría de ejecución"},
        {kCb, "CmbFMort", -1, "Mortero"},
        {kCb, "CmbFMat", -1, "Material de las piezas"},
    }};
}

// The lintel, of concrete, steel, timber or masonry, in a wall.
VisiblesDeForm Dintel()
{
    return {"frmMDint", {
        {kCb, "CmbDintel", -1, "Tipo de dintel"},
        {kTx, "TxtQ", 0, "Res. fábrica"},
        {kTx, "TxtDensidad", -1, "Densidad (kg/m3)"},
        {kTx, "txtEspesor", -1, "Espesor del muro (cm)"},
        {kCk, "chkForjado", -1, "Forjado"},
        {kTx, "TxtRes1", 0, "Flector"},
        {kTx, "TxtRes1", 1, "Cortante"},
        {kTx, "TxtRes1", 2, "Fábrica"},
    }};
}

// The rows of each form: its own, after those of the families it belongs to, so that a form's
// own row has the last word.
const std::vector<VisiblesDeForm>& Tabla()
{
    static const std::vector<VisiblesDeForm> tabla = [] {
        using Familia = const std::vector<ControlVisible>& (*)();
        const std::vector<std::pair<VisiblesDeForm, std::vector<Familia>>> formas = {
            {Acciones(), {}},
            {Suelo(), {Roca}},
            {Pilotes(), {Roca}},
            {{"frmVigHorm", {}}, {Viga, Continuidad, PilaresViga, ArmadoViga, VigaHormigon}},
            {VigaRegular(), {Viga, Continuidad, PilaresViga, ArmadoViga, VigaHormigon}},
            {{"frmVigMet", {}}, {Viga, Continuidad, PilaresViga}},
            {VigaMadera(), {Viga, Continuidad}},
            {ForjadoUnidireccional(), {Forjado, Continuidad, PilaresViga}},
            {ForjadoInSitu(), {Forjado, Continuidad, PilaresViga}},
            {ForjadoReticular(), {LosaBandas}},
            {ForjadoMacizo(), {LosaBandas}},
            {Abaco(), {}},
            {MensulaCorta(), {}},
            {VigaPared(), {Continuidad, PilaresViga}},
            {EscaleraHormigon(), {Escalera}},
            {EscaleraAcero(), {Escalera, ResultadosAcero}},
            {ForjadoAcero(), {ForjadoLigero, Continuidad, ResultadosAcero}},
            {BaseMetalica(), {}},
            {{"frmPilHorm", {}}, {Pilar, PilarHormigon}},
            {{"frmPilMet", {}}, {Pilar, PilarAcero, Pandeo}},
            {PilarMadera(), {Pilar, Pandeo}},
            {ForjadoMadera(), {ForjadoLigero, Continuidad, PilaresViga}},
            {Muros(), {Fabrica}},
            {Cerramiento(), {Fabrica}},
            {Dintel(), {Fabrica, ArmadoViga}},
            {ZapataCorrida(), {Zapata, ZapataBajoMuro}},
            {ZapataAislada(), {Zapata}},
            {ZapataCombinada(), {Zapata}},
            {MuroSotano(), {Zapata, ZapataBajoMuro, Relleno, Muro, MuroDePlantas}},
            {MuroContencion(), {Zapata, ZapataBajoMuro, Relleno, Muro}},
            {MuroAnclado(), {Zapata, ZapataBajoMuro, Muro, MuroDePlantas}},
            {Talud(), {}},
        };
        std::vector<VisiblesDeForm> out;
        for (const auto& [propias, familias] : formas) {
            VisiblesDeForm f{propias.form, {}};
            for (Familia familia : familias)
                f.controles.insert(f.controles.end(), familia().begin(), familia().end());
            f.controles.insert(f.controles.end(), propias.controles.begin(), propias.controles.end());
            out.push_back(std::move(f));
        }
        return out;
    }();
    return tabla;
}

bool EmpiezaPorNoCase(std::string_view s, std::string_view prefijo)
{
    return s.size() >= prefijo.size() && SameNameNoCase(s.substr(0, prefijo.size()), prefijo);
}

// The controls of the form that a row names: the control itself; for a row of index -1, every
// member of the array of that name; for a name ending in "*", every control beginning so.
std::vector<Control*> Destinos(const Form& form, const ControlVisible& v)
{
    if (!v.nombre.empty() && v.nombre.back() == '*') {
        std::vector<Control*> out;
        for (Control* c : form.Controls())
            if (EmpiezaPorNoCase(c->Name(), v.nombre.substr(0, v.nombre.size() - 1)))
                out.push_back(c);
        return out;
    }
    if (Control* c = form.Find(v.nombre, v.index))
        return {c};
    return v.index < 0 ? form.Members(v.nombre) : std::vector<Control*>{};
}

void AplicaFila(Form& form, const ControlVisible& v, bool crea)
{
    std::vector<Control*> destinos = Destinos(form, v);
    // The fields of the record are the record's: a stored kind is never made here.
    if (destinos.empty() && crea && !IsStored(v.kind))
        destinos.push_back(&form.Add(v.kind, std::string(v.nombre), v.index));
    for (Control* c : destinos) {
        if (c->kind() != v.kind)
            continue;
        // "#" in the caption of an array's row stands for each member's index.
        std::string caption(v.caption);
        if (const size_t at = caption.find('#'); at != std::string::npos && c->Index() >= 0)
            caption.replace(at, 1, std::to_string(c->Index()));
        c->SetCaption(caption);
        if (!v.tooltip.empty())
            c->SetToolTipText(v.tooltip);
    }
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

const std::vector<ControlVisible>& ControlesComunes() { return Comunes(); }

void AnadeControlesVisibles(Form& form)
{
    for (const ControlVisible& v : Comunes())
        AplicaFila(form, v, false);
    for (const ControlVisible& v : ControlesVisibles(form.Name()))
        AplicaFila(form, v, true);
}

}  // namespace vardena
