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
constexpr Kind kTx = Kind::TextBox;
constexpr Kind kCb = Kind::ComboBox;
constexpr Kind kCk = Kind::CheckBox;
constexpr Kind kOp = Kind::OptionButton;
constexpr Kind kNd = Kind::UCNumDiam;
constexpr Kind kNs = Kind::UCNumDiamSep;
constexpr Kind kZp = Kind::UCZapatas;
constexpr Kind kPf = Kind::UCPerfil;

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
        {kTx, "TxtPil", -1, "Canto pilar (cm)"},
        {kTx, "TxtPil", 0, "Canto pilar izquierdo (cm)"},
        {kTx, "TxtPil", 1, "Canto pilar derecho (cm)"},
        {kCk, "ChPilIzq", -1, "Pilar inferior izquierdo"},
        {kCk, "ChPilDer", -1, "Pilar inferior derecho"},
        {kCk, "ChVigIzq", -1, "Voladizo o viga continua a la izquierda"},
        {kCk, "ChVigDer", -1, "Voladizo o viga continua a la derecha"},
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

const std::vector<ControlVisible>& PilarAcero()
{
    static const std::vector<ControlVisible> filas = {
        {kPf, "UCViga", -1, "Perfil de viga"},
        {kTx, "txtCurvaX", -1, "Curva de pandeo X"},
        {kTx, "txtCurvaY", -1, "Curva de pandeo Y"},
        {kTx, "TxtBetaX", -1, "Coef. de pandeo β X"},
        {kTx, "TxtBetaY", -1, "Coef. de pandeo β Y"},
        {kCk, "ChkArriostradaX", -1, "Arriostrado en X"},
        {kCk, "ChkArriostradaY", -1, "Arriostrado en Y"},
        {kCk, "ChRotS", -1, "Rótula en cabeza"},
        {kCk, "ChRotI", -1, "Rótula en pie"},
    };
    return filas;
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

// The basement wall: its backfill, the friction against it, the loads at its top and the
// storeys it spans; its footing is that of a strip footing.
VisiblesDeForm MuroSotano()
{
    return {"frmMuroH", {
        {kCb, "CmbTerr", -1, "Material relleno"},
        {kTx, "TxtDensidad", -1, "Densidad relleno (kg/m3)"},
        {kTx, "TxtAngulo", -1, "Ángulo rozamiento interno (º)"},
        {kOp, "OptDelta", 0, "Definir..."},
        {kOp, "OptDelta", 1, "Bajo"},
        {kOp, "OptDelta", 2, "Alto"},
        {kTx, "Text1", -1, "Rozamiento muro-relleno (º)"},
        {kCk, "Check2", -1, "Admitir plastificación de muro"},
        {kCk, "CheckFM", -1, "Forjado coronación"},
        {kTx, "TxtQ", 0, "Carga coronación N"},
        {kTx, "TxtQ", 1, "Momento coronación M"},
        {kTx, "TxtQ", 2, "Tensión admisible terreno"},
        {kTx, "TxtQ", 3, "Carga coronación"},
        {kCb, "CmbSot", -1, "Sótanos"},
        {kTx, "TxCotaMuro", -1, "Cotas del muro (cm)"},
        {kTx, "TxVuelo", -1, "Vuelo de la zapata (cm)"},
        {kZp, "UCArmMuro", -1, "Armadura del muro"},
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
            {Suelo(), {}},
            {{"frmVigHorm", {}}, {Viga, ArmadoViga, VigaHormigon}},
            {VigaRegular(), {Viga, ArmadoViga, VigaHormigon}},
            {{"frmVigMet", {}}, {Viga}},
            {{"frmPilHorm", {}}, {Pilar, PilarHormigon}},
            {{"frmPilMet", {}}, {Pilar, PilarAcero}},
            {Muros(), {Fabrica}},
            {Cerramiento(), {Fabrica}},
            {Dintel(), {Fabrica, ArmadoViga}},
            {ZapataCorrida(), {Zapata, ZapataBajoMuro}},
            {ZapataAislada(), {Zapata}},
            {ZapataCombinada(), {Zapata}},
            {MuroSotano(), {Zapata, ZapataBajoMuro}},
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
