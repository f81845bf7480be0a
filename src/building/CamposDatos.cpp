// Stored fields of the actions form, the project annexes form and the forms whose result is a
// free text, in the order of their records.

#include "building/Acciones.h"
#include "frame/Campos.h"
#include "frame/ControlesVisibles.h"
#include "frame/GruposVentana.h"
#include "ground_masonry/EnBlanco.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

// The forms with a free-text result share their materials, result and title; each adds its own
// few controls behind them. They read every record twice and ask before replacing a result.
constexpr CampoDef kCamposLibre[] = {
    {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista},
    {"TxtRes1", {}, kTexto}, {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposLibre));
// The blank element also keeps its stirrups and its hanger text.
constexpr auto kCamposEnBlanco = UneCampos(kCamposLibre, {{"TxCercos", {}, kTexto}, {"txCuelgue", {}, kTexto}});
static_assert(CamposBienFormados(kCamposEnBlanco));
// The slabs on the ground and the floating beam keep the mesh of their footing.
constexpr auto kCamposLibreConMalla = UneCampos(kCamposLibre, {{"UCArmZap", {}, kZapatas}});
static_assert(CamposBienFormados(kCamposLibreConMalla));

// Their windows: the materials, then the form's own data in Frame2, then the free text of the
// result with its labels in FrmRes.
constexpr std::string_view kLibreMateriales[] = {"CmbHorm", "CmbAcero", "lblControl", "cmbControl", "lblDat2", "CmbRecub"};
constexpr std::string_view kLibreDatos[] = {"TxCercos", "txCuelgue", "UCArmZap"};
constexpr std::string_view kLibreResultado[] = {"TxtRes1", "LblRes1", "LblRes2", "LblRes3"};
constexpr GrupoDef kGruposLibre[] = {
    {"", kMsgGrupoElemento, kCamposIdentidad},
    {"Frame1", 0, kLibreMateriales},
    {"Frame2", 0, kLibreDatos},
    {"FrmRes", 0, kLibreResultado},
};
// The frames and labels they all show; the labels of the result tell the user what to write.
const std::vector<ControlVisible>& EtiquetasLibre()
{
    static const std::vector<ControlVisible> filas = {
        {kFr, "Frame1", -1, "Materiales"},
        {kFr, "Frame2", -1, "Datos"},
        {kFr, "FrmRes", -1, "Resultados"},
        {kLb, "lblControl", -1, "Nivel de control"},
        {kLb, "lblDat2", -1, "Recubrimiento (mm.)"},
        {kLb, "LblRes1", -1, "Resultado del cálculo"},
        {kLb, "LblRes2", -1, "Escriba aquí el resultado;"},
        {kLb, "LblRes3", -1, "se guarda con el elemento."},
        {kLb, "lbTens", -1, ""},
        {kTx, "TxtRes1", -1, "Resultado"},
        {kTx, "TxCercos", -1, "Cercos"},
        {kTx, "txCuelgue", -1, "Cuelgue"},
        {kZp, "UCArmZap", -1, "Armadura"},
    };
    return filas;
}

constexpr TablaForm TablaLibre(std::string_view nombre, std::string_view caption, std::string_view titulo,
                               PasoComprobacion paso, std::span<const CampoDef> campos, MenuDef menu,
                               Listas listas = ListasHormigon())
{
    return TablaForm{nombre,   campos, {true, true, paso, true}, caption, titulo, kRecubEstructura, kNada,
                     std::move(listas), {}, Despacho::Ninguno, true, Visibles({EtiquetasLibre}), menu, kGruposLibre,
                     &CreaDe<EnBlanco>};
}

// The annexes questionnaire, sheet by sheet in the order of its document: rules in force and
// recommended rules with their notes, audited documents, soil items, load items, the floor load
// table (row labels and twelve columns), drawings and details, audit texts, free paragraphs.
constexpr CampoDef kCamposFrmDatosProy[] = {
    TextosDe("Text1a", 12), TextosDe("Text1b", 12), {"TextNotas1", {}, kTexto},
    TextosDe("Text2", 12), TextosDe("Text2a", 12), TextosDe("Text2b", 12), {"TextNotas2", {}, kTexto},
    {"Text3a", {}, kTexto},
    TextosDe("Text31a", 7), TextosDe("Text31b", 7),
    TextosDe("Text321a", 60), TextosDe("Text321b", 60), TextosDe("Text321c", 60),
    TextosDe("Text3125", 16), TextosDe("Text3125a", 16), TextosDe("Text3125b", 16), TextosDe("Text3125c", 16),
    TextosDe("Text3125d", 16), TextosDe("Text3125e", 16), TextosDe("Text3125f", 16), TextosDe("Text3125g", 16),
    TextosDe("Text3125h", 16), TextosDe("Text3125i", 16), TextosDe("Text3125j", 16), TextosDe("Text3125k", 16),
    TextosDe("Text3125l", 16),
    TextosDe("Text322", 62), TextosDe("Text322b", 62),
    TextosDe("Text4", 6), TextosDe("Text4a", 4), TextosDe("Text4b", 4),
    {"Text3126", {}, kTexto}, {"Text3127", {}, kTexto}, {"Text313", {}, kTexto}, {"Text314a", {}, kTexto},
    {"Text314b", {}, kTexto}, {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmDatosProy));

constexpr TablaForm TablaDatosProy()
{
    // The questionnaire is saved with no check call, as the one record "Anejos".
    return TablaForm{"frmDatosProy", kCamposFrmDatosProy, {false, true, PasoComprobacion::Ninguno, false},
                     "Anexos Proyecto", "Anejos", kNada, kNada};
}

// The stored fields of each form, in the order of its record.
constexpr CampoDef kCamposFrmAccio[] = {
    {"TxtSingP", {1}, kTexto, {"0"}}, {"TxtSingS", {0}, kTexto, {"0"}}, {"TxtSingP", {0}, kTexto, {"100"}},
    {"TxtLongP", {1}, kTexto, {"75"}}, {"TxtLongS", {0}, kTexto, {"0"}}, {"TxtLongP", {0}, kTexto, {"70"}},
    {"TxtSupeP", {1}, kTexto, {"300"}}, {"TxtSupeS", {0}, kTexto, {"300"}}, {"TxtSupeP", {0}, kTexto, {"250"}},
    {"txtEspesor", {0}, kTexto, {"30"}}, {"txtEstratos", {}, kTexto, {"1"}}, {"cmbSuelo", {0, 1}, kLista},
    {"txtEspesor", {1}, kTexto}, {"cmbSuelo", {2}, kLista}, {"txtEspesor", {2}, kTexto}, {"cmbSuelo", {3}, kLista},
    {"txtEspesor", {3}, kTexto}, {"cmbSuelo", {4}, kLista}, {"txtEspesor", {4}, kTexto}, {"txtC", {}, kTexto},
    {"txtEsby", {}, kTexto}, {"txtPresy", {}, kTexto}, {"txtSucy", {}, kTexto}, {"txtSuc", {}, kTexto}, {"txtPres", {}, kTexto},
    {"txtEsb", {}, kTexto}, {"txtSobrNieve", {}, kTexto}, {"txtModo", {}, kTexto}, {"txtPant1", {}, kTexto},
    {"TextAc", {}, kTexto}, {"txtRo", {}, kTexto}, {"txtS", {}, kTexto}, {"txtTf", {}, kTexto}, {"cmbSueloSismo", {}, kLista},
    {"cmbEstruct", {}, kLista}, {"txtSismoK", {}, kTexto}, {"txtBeta", {}, kTexto}, {"cmbDuct", {}, kLista},
    {"cmbCompart", {}, kLista}, {"txtSismoC", {}, kTexto}, {"cmbImportSismo", {}, kLista}, {"TextAb", {}, kTexto},
    {"TxtLong", {}, kTexto, {"12"}}, {"cmbZonEol", {}, kLista}, {"cmbEntorno", {}, kLista}, {"txtAlt", {}, kTexto, {"60"}},
    {"txtAnch", {}, kTexto, {"12"}}, {"cmbNieve", {}, kLista}, {"txtNieve", {}, kTexto}, {"ChNieve", {}, kCasilla},
    {"ChViento", {}, kCasilla}, {"ChSismo", {}, kCasilla}, {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmAccio));

// The actions window, in reading order: each action's frame of inputs with its check box and
// map button, then its frame of results beside it; the panels of the masses per floor and of the
// ground strata last. The rows of the masses go slab by slab, as many as the panel can hold.
constexpr std::string_view kGrupoNieve[] = {"ChNieve", "cmbNieve", "txtNieve", "cmdAltitud"};
constexpr std::string_view kGrupoCargaNieve[] = {"txtSobrNieve"};
constexpr std::string_view kGrupoViento[] = {"ChViento", "cmbZonEol", "cmbEntorno", "txtAlt", "txtAnch", "TxtLong", "cmdEolica"};
constexpr std::string_view kGrupoCargaViento[] = {"txtEsb",  "txtPres", "txtSuc",        "txtEsby",
                                                  "txtPresy", "txtSucy", "LbAvisoViento", "RichTextBox2"};
constexpr std::string_view kGrupoSismo[] = {"ChSismo", "TextAb",   "txtSismoK", "cmdAgG",   "cmbImportSismo",
                                            "cmbEstruct", "cmbSueloSismo", "txtSismoC", "cmbCompart", "cmbDuct",
                                            "txtBeta",  "CmdMasas", "cmdSueloSismo"};
constexpr std::string_view kGrupoCargaSismica[] = {"txtRo", "txtS", "TextAc", "txtTf", "txtModo", "txtPant1", "RichTextBox3"};

// The masses slab by slab (the roof and as many floors as the general data hold), then basement
// by basement, then the panel's buttons.
constexpr std::string_view kGrupoMasas[] = {
    "TxtSupeP(0)", "TxtLongP(0)", "TxtSingP(0)", "TxtSupeP(1)", "TxtLongP(1)", "TxtSingP(1)", "TxtSupeP(2)",
    "TxtLongP(2)", "TxtSingP(2)", "TxtSupeP(3)", "TxtLongP(3)", "TxtSingP(3)", "TxtSupeP(4)", "TxtLongP(4)",
    "TxtSingP(4)", "TxtSupeP(5)", "TxtLongP(5)", "TxtSingP(5)", "TxtSupeP(6)", "TxtLongP(6)", "TxtSingP(6)",
    "TxtSupeP(7)", "TxtLongP(7)", "TxtSingP(7)", "TxtSupeP(8)", "TxtLongP(8)", "TxtSingP(8)", "TxtSupeP(9)",
    "TxtLongP(9)", "TxtSingP(9)", "TxtSupeP(10)", "TxtLongP(10)", "TxtSingP(10)", "TxtSupeP(11)", "TxtLongP(11)",
    "TxtSingP(11)", "TxtSupeP(12)", "TxtLongP(12)", "TxtSingP(12)", "TxtSupeP(13)", "TxtLongP(13)", "TxtSingP(13)",
    "TxtSupeP(14)", "TxtLongP(14)", "TxtSingP(14)", "TxtSupeP(15)", "TxtLongP(15)", "TxtSingP(15)", "TxtSupeP(16)",
    "TxtLongP(16)", "TxtSingP(16)", "TxtSupeS(0)", "TxtLongS(0)", "TxtSingS(0)", "TxtSupeS(1)", "TxtLongS(1)",
    "TxtSingS(1)", "TxtSupeS(2)", "TxtLongS(2)", "TxtSingS(2)", "TxtSupeS(3)", "TxtLongS(3)", "TxtSingS(3)",
    "AsignaC", "UCOK",
};
// The strata, each thickness beside its soil type, then the panel's result and buttons.
constexpr std::string_view kGrupoSuelo[] = {
    "txtEstratos", "txtEspesor(0)", "cmbSuelo(0)", "txtEspesor(1)", "cmbSuelo(1)", "txtEspesor(2)", "cmbSuelo(2)",
    "txtEspesor(3)", "cmbSuelo(3)", "txtEspesor(4)", "cmbSuelo(4)", "txtC", "UCOK2", "UCOK1",
};
static_assert(std::size(kGrupoMasas) == 3 * (kMaxFloors + 1) + 3 * kMaxBasements + 2,
              "a row of the masses panel for every floor and basement the general data hold");

// The inputs of each action on the left, its results with their tables on the right.
constexpr GrupoDef kGruposAcciones[] = {
    {"UCNieve", 0, kGrupoNieve, {}, 0},       {"UCSobrNieve", 0, kGrupoCargaNieve, {}, 1},
    {"UCviento", 0, kGrupoViento, {}, 0},     {"UCCargaViento", 0, kGrupoCargaViento, {}, 1},
    {"UCSismo", 0, kGrupoSismo, {}, 0},       {"UCCargaSismica", 0, kGrupoCargaSismica, {}, 1},
    {"UCplantas", 0, kGrupoMasas, {}, 0},     {"UCSuelo", 0, kGrupoSuelo, {}, 1},
};

}  // namespace

std::span<const TablaForm> TablasDatosYLibres()
{
    static constexpr TablaForm tablas[] = {
        {"frmAccio", kCamposFrmAccio,
         // The actions are one record, "Acciones", which also names the window; the save has
         // no check call before it.
         {false, true, PasoComprobacion::Ninguno, false, "Acciones"},
         "Acciones", "Acciones", kNada, kNada,
         Listas{{"cmbNieve", -1, kZonaNieve}, {"cmbZonEol", -1, kZonaEolica}, {"cmbEntorno", -1, kEntorno}, {"cmbImportSismo", -1, kImportancia}, {"cmbEstruct", -1, kEstructura}, {"cmbSueloSismo", -1, kSueloSismo}, {"cmbCompart", -1, kCompartimentacion}, {"cmbDuct", -1, kDuctilidad}, {"cmbSuelo", -1, kSueloEstrato}},
         {}, Despacho::UnaVezPorArchivo, true,
         // The actions: a frame per action with its inputs, a frame of results beside each, the map
         // buttons, and the two panels that open over the form (the masses per floor, the ground
         // strata). The label of txtBeta is drawn in the Symbol font, so that its "b" reads as beta.
         Visibles({}, {
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
             // Says why a wind action asked for made no table.
             {kLb, "LbAvisoViento", -1, ""},
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
             {kBt, "AsignaC", 0, "Asignar a todas las plantas"},
             {kBt, "AsignaC", 1, "Asignar a todos los sótanos"},
             {kBt, "UCOK", -1, "Aceptar"},
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
         }),
         {},
         kGruposAcciones, &CreaDe<Acciones>},
        TablaDatosProy(),
        // The blank element's concrete list starts at HA-25, behind its "Idem gral." row.
        TablaLibre("frmEnBlanco", "En Blanco", "En Blanco 01", PasoComprobacion::Ninguno,
                   kCamposEnBlanco, MenuDef{"Hormigon", 20, "mnuEnBlanco", ""}, ListasHormigon25()),
        TablaLibre("frmLosCime", "Soleras Armadas", "Losa Cimentación 01", PasoComprobacion::Bandera, kCamposLibreConMalla,
                   MenuDef{"Cimentacion", 20, "mnuLosCime", ""}),
        TablaLibre("frmMArco", "Arcos Fábrica", "Arco Fábrica 01", PasoComprobacion::Bandera, kCamposLibre,
                   MenuDef{"Fabrica", 20, "mnuMArco", ""}),
        TablaLibre("frmMArma", "Fábrica Armada", "Fábrica Armada 01", PasoComprobacion::Bandera, kCamposLibre,
                   MenuDef{"Fabrica", 21, "mnuMArma", ""}),
        TablaLibre("frmSolArma", "Soleras Armadas", "Solera Armada 01", PasoComprobacion::Bandera, kCamposLibreConMalla,
                   MenuDef{"Cimentacion", 21, "mnuSolArma", ""}),
        TablaLibre("frmUniAto", "Uniones Atornilladas", "Unión Atornillada 01", PasoComprobacion::Bandera, kCamposLibre,
                   MenuDef{"Acero", 20, "mnuUniAto", ""}),
        TablaLibre("frmUniSol", "Uniones Soldadas", "Unión Soldada 01", PasoComprobacion::Bandera, kCamposLibre,
                   MenuDef{"Acero", 21, "mnuUniSol", ""}),
        TablaLibre("frmVigFlot", "Soleras Armadas", "Viga Flotante 01", PasoComprobacion::Bandera, kCamposLibreConMalla,
                   MenuDef{"Cimentacion", 22, "mnuVigFlot", ""}),
    };
    static_assert(NombresUnicos(tablas), "every form of the family is defined once");
    return tablas;
}

}  // namespace vardena
