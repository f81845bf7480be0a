// Stored fields of the steel and timber element forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind, design texts.

#include <vector>

#include "concrete/PilHorm.h"
#include "frame/Campos.h"
#include "frame/ControlesVisibles.h"
#include "frame/GruposVentana.h"
#include "frame/Listas.h"
#include "frame/Tramos.h"
#include "steel_timber/BotonesAyuda.h"
#include "steel_timber/Dependientes.h"
#include "steel_timber/ForjAcer.h"
#include "steel_timber/PilMet.h"

namespace vardena {
namespace {

// Own defaults and minimums of single forms of this family.
constexpr Valor kPosicionInterior[] = {{"OpPosPil", {{2, 2}}, 1}};
constexpr Valor kMinimosPilMet[] = {{"LePil", {{0, 11}}, 0}};
constexpr Valor kMinimosForjAcer[] = {{"txtForj", {{1, 4}}, 0}, {"TxtQ", {{0, 4}}, 0}};
constexpr Valor kMinimosForMade[] = {{"txtForj", {{0, 4}}, 0}, {"TxtQ", {{0, 4}}, 0}};


// The stored fields of each form, in the order of its record.
constexpr CampoDef kCamposFrmVigMet[] = {
    {"cmbClase", {}, kLista}, {"UCPerfil1", {}, kPerfil}, {"TxtQ", {1}, kTexto, {"2.1"}}, {"TxCota", {1}, kTexto, {" 5.50"}},
    {"TxtPil", {0, 1}, kTexto, {"30"}}, {"ChVigIzq", {}, kCasilla}, {"ChPilIzq", {}, kCasilla}, {"ChPilDer", {}, kCasilla},
    {"ChVigDer", {}, kCasilla}, {"TxCota", {2}, kTexto, {" 2.00"}}, {"TxtQ", {2}, kTexto, {"1.2"}},
    {"TxCota", {3}, kTexto, {" 2.00"}}, {"TxtQ", {3, 0, 4}, kTexto, {"1.5", "1", "1"}}, {"CmTramos", {}, kLista},
    {"TxtQ", {5, 6}, kTexto, {"40"}}, {"TxCota", {0, 4}, kTexto, {"1.10"}}, {"txtTitulo", {}, kTexto}, {"cmbPart", {}, kLista},
    {"CmbCaso", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbPlanta", {}, kLista}, {"TxtRes4", {}, kTexto}, {"TxtRes3", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmVigMet));

constexpr CampoDef kCamposFrmPilMet[] = {
    {"UCViga", {1, 3}, kPerfil}, {"cmbClase", {}, kLista}, {"UCViga", {0}, kPerfil}, {"txtCurvaY", {}, kTexto, {"c"}},
    {"txtCurvaX", {}, kTexto, {"c"}}, {"TxtBetaX", {}, kTexto, {"0"}}, {"TxtBetaY", {}, kTexto, {"0"}},
    {"ChkArriostradaX", {}, kCasilla}, {"ChkArriostradaY", {}, kCasilla}, {"UCPerfil1", {}, kPerfil}, {"txtTitulo", {}, kTexto},
    {"OpPosPil", {0, 1, 2}, kOpcion}, {"LePil", {12}, kTexto, {"3.10"}}, {"ChRotS", {}, kCasilla}, {"ChRotI", {}, kCasilla},
    {"ChPilSup", {}, kCasilla}, {"TxtQ", {0, 3, 1, 2}, kTexto, {"800", "40", "0", "0"}},
    {"LePil", {7, 6, 5, 4, 3, 2, 1, 0, 11, 10, 9, 8}, kTexto, {"1.10", "1.10", "4.50", "5.00", "5.00", "5.00", "4.50", "4.50"}},
    {"UCViga", {2}, kPerfil}, {"CmbPlanta", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbCaso", {}, kLista}, {"TxtRes2", {}, kTexto},
    {"TxtRes1", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmPilMet));

constexpr CampoDef kCamposFrmBasMet[] = {
    {"CmbTornillos", {}, kLista}, {"CmbAcero", {}, kLista}, {"TxtRes1", {2, 0, 1}, kTexto},
    {"TxCota", {2, 4}, kTexto, {"1.8", "20"}}, {"Text1", {}, kTexto, {"80"}}, {"TxMy", {}, kTexto, {"2"}},
    {"TxMx", {}, kTexto, {"2"}}, {"TxEspCartY", {}, kTexto, {"1.2"}}, {"TxEspCartX", {}, kTexto, {"1.2"}},
    {"TxNumTorY", {}, kTexto, {"2"}}, {"TxNumTorX", {}, kTexto, {"2"}}, {"ChY", {}, kCasilla}, {"ChX", {}, kCasilla},
    {"TxCotaCartY", {1, 0}, kTexto, {"15", "10"}}, {"UCPerfil1", {}, kPerfil}, {"TxCota", {3}, kTexto, {"25"}},
    {"TxCotaCartX", {1, 0}, kTexto, {"15", "10"}}, {"TxCota", {1, 0}, kTexto, {"50", "60"}}, {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmBasMet));

constexpr CampoDef kCamposFrmForjAcer[] = {
    {"cmbPart", {}, kLista}, {"CmbPlanta", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbCaso", {}, kLista}, {"TxtRes3", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"TxtRes4", {}, kTexto}, {"OpFlexLat", {2, 1, 0}, kOpcion},
    {"ChInclinado", {}, kCasilla}, {"txtForj", {4, 3, 2, 1}, kTexto, {"0", "2.5", "18", "40"}}, {"txtTitulo", {}, kTexto},
    {"OpTramo", {5}, kOpcion}, {"TxTrAd", {1, 0}, kTexto, {"4.8"}}, {"OpTramo", {0, 1, 2, 3, 4}, kOpcion},
    {"cmbClase", {}, kLista}, {"TxCota", {3, 2}, kTexto, {"1.10"}}, {"ChVigDer", {}, kCasilla}, {"ChVigIzq", {}, kCasilla},
    {"TxtQ", {4, 3, 2, 1}, kTexto, {"0.2", "0.2", "500", "500"}}, {"TxCota", {0}, kTexto, {"2.00"}},
    {"TxtQ", {0}, kTexto, {"0"}}, {"TxCota", {1}, kTexto, {"4.50"}}, {"UCPerfil1", {}, kPerfil},
};
static_assert(CamposBienFormados(kCamposFrmForjAcer));

constexpr CampoDef kCamposFrmEscMet[] = {
    {"CmbAcero", {}, kLista}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto}, {"TxtRes4", {}, kTexto},
    {"UCPerfil1", {}, kPerfil}, {"txtTitulo", {}, kTexto}, {"OptLosa", {0, 3, 1, 2}, kOpcion},
    {"txtSolado", {}, kTexto, {"1.00"}}, {"txtSobrUso", {}, kTexto, {"4.00"}}, {"txtAncho", {1, 0}, kTexto, {"1.00"}},
    {"TxCotaH2", {0, 1, 2, 3, 4}, kTexto, {"1.10", "2.25", "1.10", "1.4", "1.4"}}, {"OptH2izqS", {1, 0}, kOpcion},
    {"OptH2izqI", {0, 1}, kOpcion}, {"OptH2der", {0, 1}, kOpcion},
    {"TxCotaH1", {0, 1, 2, 3}, kTexto, {"1.10", "3.10", "1.10", "2.00"}}, {"OptH1izq", {0, 1}, kOpcion},
    {"OptH1der", {1, 0}, kOpcion}, {"TxCotaRampa", {0, 1}, kTexto, {"6.25", "1.00"}}, {"OptRampaApoIzq", {1, 0}, kOpcion},
    {"OptRampaApoDer", {0, 1}, kOpcion}, {"TxCotaDesc", {0, 1, 2, 3, 4}, kTexto, {"2.25", "1.10", "2.25", "1.40", "1.40"}},
    {"OptDApoIzq", {2, 0}, kOpcion}, {"OptDApoDer", {0, 2}, kOpcion},
};
static_assert(CamposBienFormados(kCamposFrmEscMet));

constexpr CampoDef kCamposFrmVigMade[] = {
    {"cmbPart", {}, kLista}, {"CmbResis", {}, kLista}, {"CmbServi", {}, kLista}, {"CmbPlanta", {}, kLista},
    {"TxtRes4", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto},
    {"CmbCargaComp", {}, kLista}, {"txtResF2", {}, kTexto}, {"txtResF1", {}, kTexto}, {"CmbUso", {}, kLista},
    {"txtEF", {}, kTexto, {"60"}}, {"txtTitulo", {}, kTexto}, {"ChVigDer", {}, kCasilla}, {"TxCota", {4, 0}, kTexto, {"1.10"}},
    {"TxtQ", {6, 5}, kTexto, {"4"}}, {"CmTramos", {}, kLista}, {"TxtQ", {4, 0, 3}, kTexto, {"1", "1", "1.5"}},
    {"TxCota", {3}, kTexto, {" 2.00"}}, {"TxtQ", {2}, kTexto, {"1.2"}}, {"TxCota", {2}, kTexto, {" 2.00"}},
    {"ChPilDer", {}, kCasilla}, {"ChPilIzq", {}, kCasilla}, {"ChVigIzq", {}, kCasilla}, {"TextDviga", {1, 0}, kTexto, {"50", "30"}},
    {"TxCota", {1}, kTexto, {" 5.50"}}, {"TxtQ", {1}, kTexto, {"2.1"}},
};
static_assert(CamposBienFormados(kCamposFrmVigMade));

constexpr CampoDef kCamposFrmPilMade[] = {
    {"CmbPlanta", {}, kLista}, {"CmbServi", {}, kLista}, {"CmbResis", {}, kLista}, {"TxtRes1", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto}, {"TxtBetaX", {}, kTexto, {"0"}}, {"TxtBetaY", {}, kTexto, {"0"}},
    {"ChkArriostradaX", {}, kCasilla}, {"ChkArriostradaY", {}, kCasilla}, {"CmbForma", {}, kLista},
    {"txtTramo", {4, 3, 0}, kTexto, {"30"}}, {"CmbUso", {}, kLista}, {"txtEF", {}, kTexto, {"30"}},
    {"TxtPorcent", {}, kTexto, {"100"}},
    {"LePil", {8, 9, 10, 11, 0, 1, 2, 3, 4, 5, 6, 7}, kTexto, {"5.15", "1.00", "4.50", "4.50", "4.50", "4.50", "5.00", "5.00"}},
    {"cmbesviada", {}, kLista}, {"LePil", {12}, kTexto, {"3.10"}}, {"ChRotI", {}, kCasilla}, {"ChRotS", {}, kCasilla},
    {"TxtQ", {2, 1, 3, 0}, kTexto, {"0", "0", "40", "800"}}, {"ChPilSup", {}, kCasilla}, {"OpPosPil", {2, 1, 0}, kOpcion},
    {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmPilMade));

constexpr CampoDef kCamposFrmForMade[] = {
    {"Combo1", {}, kLista}, {"CmbPlanta", {}, kLista}, {"CmbServi", {}, kLista}, {"CmbResis", {}, kLista}, {"TxtRes3", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"TxtRes4", {}, kTexto}, {"OpFlexLat", {0, 1, 2}, kOpcion},
    {"LblTab", {}, kTexto, {"TABLERO INSUFICIENTE"}}, {"ChInclinado", {}, kCasilla},
    {"txtForj", {4, 3, 2, 0, 1}, kTexto, {"0", "2.5", "18", "10", "40"}}, {"txtTitulo", {}, kTexto},
    {"OpTramo", {5}, kOpcion}, {"TxTrAd", {1, 0}, kTexto, {"4.8"}}, {"OpTramo", {0, 1, 2, 3, 4}, kOpcion},
    {"TxCota", {2, 3}, kTexto, {"1.10"}}, {"ChVigDer", {}, kCasilla}, {"TxtQ", {4, 3}, kTexto, {"0.2"}}, {"ChVigIzq", {}, kCasilla},
    {"TextDviga", {0, 1}, kTexto, {"10", "18"}}, {"TxtPil", {1, 0}, kTexto, {"30"}}, {"TxtQ", {2, 1}, kTexto, {"500"}},
    {"TxCota", {0}, kTexto, {"2.00"}}, {"TxtQ", {0}, kTexto, {"0"}}, {"TxCota", {1}, kTexto, {"4.50"}},
    {"txtEF", {}, kTexto, {"60"}}, {"CmbUso", {}, kLista}, {"txtResF1", {}, kTexto}, {"txtResF2", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmForMade));

constexpr CampoDef kCamposFrmEscMade[] = {
    {"CmbPlanta", {}, kLista}, {"CmbServi", {}, kLista}, {"CmbResis", {}, kLista}, {"TxtRes3", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"TxtRes4", {}, kTexto}, {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmEscMade));

// The steel beam's window: the beam and its spans, its loads, its section with the button of
// the class table, and its materials and use.
constexpr std::string_view kVigMetViga[] = {"CmTramos",  "TxCota(1)", "TxCota(2)", "TxCota(3)", "TxCota(0)",
                                            "TxCota(4)", "TxtPil(0)", "TxtPil(1)", "ChVigIzq",  "ChVigDer",
                                            "ChPilIzq",  "ChPilDer"};
constexpr std::string_view kVigMetCargas[] = {"TxtQ(1)", "TxtQ(2)", "TxtQ(3)", "TxtQ(0)", "TxtQ(5)", "TxtQ(6)", "TxtQ(4)"};
constexpr std::string_view kVigMetPerfil[] = {"UCPerfil1", "cmbClase", "cmdClase"};
constexpr std::string_view kVigMetDatos[] = {"CmbAcero", "CmbCaso", "cmbPart", "cmdCatUso"};
constexpr std::string_view kVigMetResultados[] = {"TxtRes1", "TxtRes2", "TxtRes3", "TxtRes4"};
constexpr GrupoDef kGruposVigMet[] = {
    {"", kMsgGrupoElemento, kCamposIdentidad, {}, 0},
    {"FrDatosViga", 0, kVigMetDatos, {}, 0},
    {"FrPerfilViga", 0, kVigMetPerfil, {}, 0},
    {"FrViga", 0, kVigMetViga, {}, 1},
    {"FrCargasViga", 0, kVigMetCargas, {}, 1},
    {"UCframe2", 0, kVigMetResultados, {}, 1},
};

// The steel column's window: its level and loads, its position in plan with the plan and the
// distances of that position, its section and the beams that reach it, and the effective
// length: the end conditions and the coefficients worked out from them.
constexpr std::string_view kPilMetMateriales[] = {"CmbAcero", "CmbCaso"};
constexpr std::string_view kPilMetPerfil[] = {"UCPerfil1", "cmbClase", "cmdClase"};
constexpr std::string_view kPilMetVigas[] = {"UCViga(0)", "UCViga(1)", "UCViga(2)", "UCViga(3)"};
constexpr std::string_view kPilMetExtremos[] = {"ChkArriostradaX", "ChkArriostradaY", "ChRotS", "ChRotI"};
constexpr std::string_view kPilMetCurvas[] = {"txtCurvaX", "txtCurvaY", "TxtBetaX", "TxtBetaY"};
constexpr std::string_view kPilMetCoeficientes[] = {
    "LbNomEta1X", "LbSimEta1X", "LbEta1X", "LbNomEta2X", "LbSimEta2X", "LbEta2X", "LbNomBetaX", "LbSimBetaX", "LbBetaX",
    "LbNomEta1Y", "LbSimEta1Y", "LbEta1Y", "LbNomEta2Y", "LbSimEta2Y", "LbEta2Y", "LbNomBetaY", "LbSimBetaY", "LbBetaY"};
constexpr std::string_view kPilMetResultados[] = {"TxtRes1", "TxtRes2"};
constexpr GrupoDef kGruposPilMet[] = {
    {"", kMsgGrupoElemento, kPilarNivel, "", 0},
    {"", kMsgGrupoMateriales, kPilMetMateriales, "", 0},
    {"UCframeEsf", 0, kPilarEsfuerzos, "", 0},
    {"LbCer", 0, kPilarCerramiento, "", 0},
    {"UCframePos", 0, kPilarPosicion, "", 1},
    {"UCframeLucesEsq", 0, kPilarLucesEsquina, "", 1},
    {"UCframeLucesBor", 0, kPilarLucesBorde, "", 1},
    {"UCframeLucesCen", 0, kPilarLucesCentro, "", 1},
    {"UCframePandeo", 0, kPilMetExtremos, "", 0},
    {"UCframeCurvas", 0, kPilMetCurvas, "", 0},
    {"UCframeBeta", 0, kPilMetCoeficientes, "", 1, true},
    {"UCframePerfil", 0, kPilMetPerfil, "", 2},
    {"UCframeVigas", 0, kPilMetVigas, "", 2},
    {"UCframeRes", 0, kPilMetResultados, "", 2},
};

// The column's plan and the distances of each position, as the concrete column shows them:
// the steel and the timber column share these frames.
const std::vector<ControlVisible>& EtiquetasPlantaPilar()
{
    static const std::vector<ControlVisible> filas = {
        {kFr, "UCframePos", -1, "Situación pilar en planta"},
        {kPc, "Ptpilar", 0, ""},
        {kPc, "Ptpilar", 1, ""},
        {kPc, "Ptpilar", 2, ""},
        {kFr, "UCframeLucesEsq", -1, "Luces en metros"},
        {kFr, "UCframeLucesBor", -1, "Luces en metros"},
        {kFr, "UCframeLucesCen", -1, "Luces en metros"},
        {kTx, "LePil", 0, "a1"}, {kTx, "LePil", 1, "a2"}, {kTx, "LePil", 2, "a3"}, {kTx, "LePil", 3, "a4"},
        {kTx, "LePil", 4, "a1"}, {kTx, "LePil", 5, "a2"}, {kTx, "LePil", 6, "a3"}, {kTx, "LePil", 7, "a4"},
        {kTx, "LePil", 8, "a1"}, {kTx, "LePil", 9, "a2"}, {kTx, "LePil", 10, "a3"}, {kTx, "LePil", 11, "a4"},
        {kFr, "UCframeEsf", -1, "Esfuerzos mayorados"},
        {kLb, "LbCer", -1, "Cerramiento (sin mayorar)"},
        {kLb, "LbP1", 0, "P="},
        {kLb, "LbP1", 2, ""},
        {kFr, "UCframePandeo", -1, "Pandeo: extremos del pilar"},
        {kFr, "UCframeCurvas", -1, "Curvas de pandeo"},
        {kFr, "UCframeRes", -1, "Coeficientes seguridad:"},
    };
    return filas;
}

// The timber column's window: as the steel column's, with its timber section and its fire
// resistance in the place of the steel section and the beams.
constexpr std::string_view kPilMadeMateriales[] = {"CmbResis", "CmbServi", "CmbUso", "CmdAyuda"};
constexpr std::string_view kPilMadeSeccion[] = {"CmbForma", "txtTramo", "TxtPorcent", "cmbesviada"};
constexpr std::string_view kPilMadeFuego[] = {"txtEF"};
constexpr std::string_view kPilMadeCurvas[] = {"TxtBetaX", "TxtBetaY"};
constexpr std::string_view kPilMadeResultados[] = {"TxtRes1", "TxtRes2", "TxtRes3"};
constexpr GrupoDef kGruposPilMade[] = {
    {"", kMsgGrupoElemento, kPilarNivel, "", 0},
    {"", kMsgGrupoMateriales, kPilMadeMateriales, "", 0},
    {"UCframeEsf", 0, kPilarEsfuerzos, "", 0},
    {"LbCer", 0, kPilarCerramiento, "", 0},
    {"UCframePandeo", 0, kPilMetExtremos, "", 0},
    {"UCframePos", 0, kPilarPosicion, "", 1},
    {"UCframeLucesEsq", 0, kPilarLucesEsquina, "", 1},
    {"UCframeLucesBor", 0, kPilarLucesBorde, "", 1},
    {"UCframeLucesCen", 0, kPilarLucesCentro, "", 1},
    {"UCframeSeccion", 0, kPilMadeSeccion, "", 2},
    {"FrmFuego", 0, kPilMadeFuego, "", 2},
    {"UCframeCurvas", 0, kPilMadeCurvas, "", 2},
    {"UCframeRes", 0, kPilMadeResultados, "", 2},
};

// The timber beam's window: as the steel beam's, with its timber section, its shared-load
// factor and its fire resistance, each in its frame.
constexpr std::string_view kVigMadeMateriales[] = {"CmbResis", "CmbServi", "CmdAyuda"};
constexpr std::string_view kVigMadeDatos[] = {"cmbPart", "CmbUso"};
constexpr std::string_view kVigMadeCargaComp[] = {"CmbCargaComp"};
constexpr std::string_view kVigMadeSeccion[] = {"TextDviga(0)", "TextDviga(1)"};
constexpr std::string_view kVigMadeFuego[] = {"txtEF", "txtResF1", "txtResF2"};
constexpr GrupoDef kGruposVigMade[] = {
    {"", kMsgGrupoElemento, kCamposIdentidad, {}, 0},
    {"", kMsgGrupoMateriales, kVigMadeMateriales, {}, 0},
    {"FrDatosViga", 0, kVigMadeDatos, {}, 0},
    {"FrCargaComp", 0, kVigMadeCargaComp, {}, 0},
    {"FrSeccionViga", 0, kVigMadeSeccion, {}, 0},
    {"FrViga", 0, kVigMetViga, {}, 1},
    {"FrCargasViga", 0, kVigMetCargas, {}, 1},
    {"FrmFuego", 0, kVigMadeFuego, {}, 1},
    {"UCframe2", 0, kVigMetResultados, {}, 1},
};

// The steel stair's window: its kind, then the lengths and ends of each kind in a frame of its
// own that shows while that kind is chosen, the section and the results.
constexpr std::string_view kEscMetTipo[] = {"OptLosa(0)", "OptLosa(1)", "OptLosa(2)", "OptLosa(3)"};
constexpr std::string_view kEscMetDatos[] = {"CmbAcero", "txtSolado", "txtSobrUso", "txtAncho"};
constexpr std::string_view kEscMetUnTramo[] = {"TxCotaH1", "OptH1izq", "OptH1der"};
constexpr std::string_view kEscMetDescanso[] = {"TxCotaDesc", "OptDApoIzq", "OptDApoDer"};
constexpr std::string_view kEscMetDosTramos[] = {"TxCotaH2", "OptH2izqS", "OptH2izqI", "OptH2der"};
constexpr std::string_view kEscMetRampa[] = {"TxCotaRampa", "OptRampaApoIzq", "OptRampaApoDer"};
constexpr std::string_view kEscMetPerfil[] = {"UCPerfil1"};
constexpr GrupoDef kGruposEscMet[] = {
    {"", kMsgGrupoElemento, kCamposIdentidad, "", 0},
    {"FrTipoEscalera", 0, kEscMetTipo, "", 0},
    {"FrDatosEscalera", 0, kEscMetDatos, "", 0},
    {"FrUnTramo", 0, kEscMetUnTramo, "", 1},
    {"FrDescanso", 0, kEscMetDescanso, "", 1},
    {"FrDosTramos", 0, kEscMetDosTramos, "", 1},
    {"FrRampa", 0, kEscMetRampa, "", 1},
    {"FrPerfilEscalera", 0, kEscMetPerfil, "", 2},
};

}  // namespace

std::span<const TablaForm> TablasAceroMadera()
{
    static constexpr TablaForm tablas[] = {
        {"frmVigMet", kCamposFrmVigMet,
         // Reasoned caption and title for the steel beam, after the concrete beam's.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Vigas Metálicas", "Viga Metálica. P 01-02", kNada, kMinimosVano,
         ListasAcero() + ListasViga(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza}, Despacho::Registros, true,
         Visibles({EtiquetasViga, EtiquetasContinuidad, EtiquetasPilaresViga, EtiquetasResultadosAcero}, {
             {kFr, "FrViga", -1, "Viga (longitudes en metros)"},
             {kFr, "FrDatosViga", -1, "Datos iniciales"},
             {kFr, "FrCargasViga", -1, "Cargas totales (con.+sobr.) sin mayorar"},
             {kFr, "FrPerfilViga", -1, "Perfil"},
             {kCb, "CmTramos", -1, "Nº de tramos de carga"},
             {kBt, "cmdClase", -1, "Clase"},
             {kBt, "cmdCatUso", -1, "Cat. uso"},
         }),
         MenuDef{"Acero", 1, "mnuVigMet", ""}, kGruposVigMet, &CreaDe<ConBotonesAyuda<FormaViga>>},
        {"frmPilMet", kCamposFrmPilMet,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Pilares Metálicos", "Pilar Metálico 01", kPosicionInterior, kMinimosPilMet,
         ListasAcero(),
         {Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros, true,
         Visibles({EtiquetasPilar, EtiquetasPilarAcero, EtiquetasPandeo, EtiquetasPlantaPilar}, {
             {kFr, "UCframePerfil", -1, "Perfil del pilar"},
             {kFr, "UCframeVigas", -1, "Vigas que llegan al pilar"},
             {kPf, "UCViga", 0, "Viga a1"}, {kPf, "UCViga", 1, "Viga a2"},
             {kPf, "UCViga", 2, "Viga a3"}, {kPf, "UCViga", 3, "Viga a4"},
             {kFr, "UCframeBeta", -1, "Longitud de pandeo calculada"},
             {kLb, "LbNomEta1X", -1, "Cabeza, eje X"}, {kLb, "LbSimEta1X", -1, "η1"}, {kLb, "LbEta1X", -1, ""},
             {kLb, "LbNomEta2X", -1, "Pie, eje X"}, {kLb, "LbSimEta2X", -1, "η2"}, {kLb, "LbEta2X", -1, ""},
             {kLb, "LbNomBetaX", -1, "Pandeo, eje X"}, {kLb, "LbSimBetaX", -1, "β"}, {kLb, "LbBetaX", -1, ""},
             {kLb, "LbNomEta1Y", -1, "Cabeza, eje Y"}, {kLb, "LbSimEta1Y", -1, "η1"}, {kLb, "LbEta1Y", -1, ""},
             {kLb, "LbNomEta2Y", -1, "Pie, eje Y"}, {kLb, "LbSimEta2Y", -1, "η2"}, {kLb, "LbEta2Y", -1, ""},
             {kLb, "LbNomBetaY", -1, "Pandeo, eje Y"}, {kLb, "LbSimBetaY", -1, "β"}, {kLb, "LbBetaY", -1, ""},
             {kBt, "cmdClase", -1, "Clase"},
         }),
         MenuDef{"Acero", 2, "mnuPilMet", ""}, kGruposPilMet, &CreaDe<PilMet>},
        {"frmBasMet", kCamposFrmBasMet,
         {true, true, PasoComprobacion::Ninguno, true},
         "Bases metálicas", "Base pilar 01", kNada, kNada,
         Listas{{"CmbTornillos", -1, kTornillos}} + ListasAcero(),
         {}, Despacho::Ninguno, true,
         // The steel base plate: its bolts, its plate and the stiffeners in each direction.
         Visibles({}, {
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
         }),
         MenuDef{"Acero", 3, "mnuBasMet", ""}, {}, &CreaDe<FormaDependientes>},
        {"frmForjAcer", kCamposFrmForjAcer,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjados y correas de cubierta de perfiles metálicos", "Forjado Metálico 01", kNada, kMinimosForjAcer,
         ListasAcero() + ListasViga(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::Lineal, Magnitud::Lineal}, Despacho::Registros, true,
         Visibles({EtiquetasForjadoLigero, EtiquetasContinuidad, EtiquetasResultadosAcero}, {
             {kCk, "ChInclinado", -1, "Correas"},
             {kBt, "cmdClase", -1, "Clase"},
             {kBt, "cmdCatUso", -1, "Cat. uso"},
         }),
         MenuDef{"Acero", 4, "mnuForjAcer", ""}, {}, &CreaDe<ForjAcer>},
        {"frmEscMet", kCamposFrmEscMet,
         {true, true, PasoComprobacion::Ninguno, true},
         "Escaleras Metálicas", "Escalera Metálica 01", kNada, kNada,
         ListasAcero(),
         {}, Despacho::Ninguno, true,
         // Each kind's lengths and ends stand in the frame of that kind, which names it.
         Visibles({EtiquetasResultadosAcero}, {
             {kTx, "txtAncho", -1, "Ancho (m)"},
             {kTx, "txtSobrUso", -1, "Sobrecarga de uso"},
             {kTx, "txtSolado", -1, "Solado"},
             {kTx, "TxCotaH1", -1, "Longitud (m) #"},
             {kTx, "TxCotaDesc", -1, "Longitud (m) #"},
             {kTx, "TxCotaH2", -1, "Longitud (m) #"},
             {kTx, "TxCotaRampa", -1, "Longitud (m) #"},
             {kOp, "OptH1izq", -1, "Izquierdo #"},
             {kOp, "OptH1der", -1, "Derecho #"},
             {kOp, "OptDApoIzq", -1, "Izquierdo #"},
             {kOp, "OptDApoDer", -1, "Derecho #"},
             {kOp, "OptH2izqS", -1, "Izquierdo superior #"},
             {kOp, "OptH2izqI", -1, "Izquierdo inferior #"},
             {kOp, "OptH2der", -1, "Derecho #"},
             {kOp, "OptRampaApoIzq", -1, "Izquierdo #"},
             {kOp, "OptRampaApoDer", -1, "Derecho #"},
             {kOp, "OptLosa", 0, "De 1 tramo"},
             {kOp, "OptLosa", 1, "De 1 tramo con descanso"},
             {kOp, "OptLosa", 2, "De 2 tramos"},
             {kOp, "OptLosa", 3, "Rampa"},
             {kFr, "FrTipoEscalera", -1, "Tipo de escalera"},
             {kFr, "FrDatosEscalera", -1, "Datos"},
             {kFr, "FrUnTramo", -1, "De 1 tramo"},
             {kFr, "FrDescanso", -1, "De 1 tramo con descanso"},
             {kFr, "FrDosTramos", -1, "De 2 tramos"},
             {kFr, "FrRampa", -1, "Rampa"},
             {kFr, "FrPerfilEscalera", -1, "Perfil principal"},
         }),
         MenuDef{"Acero", 5, "mnuEscMet", ""}, kGruposEscMet, &CreaDe<FormaDependientes>},
        {"frmVigMade", kCamposFrmVigMade,
         // Reasoned titles for the timber forms, after the concrete and steel ones.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Viga de Madera", "Viga Madera. P 01-02", kNada, kMinimosVano,
         Listas{{"CmbCargaComp", -1, kCargaCompartida}} + ListasMadera() + ListasViga(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza}, Despacho::Registros, true,
         // The timber beam: the partitions it carries and how its load is shared.
         Visibles({EtiquetasViga, EtiquetasContinuidad}, {
             {kTx, "TextDviga", -1, "Sección"},
             {kTx, "TextDviga", 0, "Ancho b (cm)"},
             {kTx, "TextDviga", 1, "Canto h (cm)"},
             {kBt, "CmdAyuda", -1, "Clases:"},
             {kFr, "FrDatosViga", -1, "Datos iniciales"},
             {kFr, "FrCargaComp", -1, "Factor de carga compartida"},
             {kFr, "FrSeccionViga", -1, "Sección"},
             {kFr, "FrViga", -1, "Viga (longitudes en metros)"},
             {kFr, "FrCargasViga", -1, "Cargas totales (con.+sobr.) sin mayorar"},
             {kFr, "FrmFuego", -1, "Resistencia al fuego"},
             {kCb, "CmTramos", -1, "Nº de tramos de carga"},
         }),
         MenuDef{"Madera", 1, "mnuVigMade", ""}, kGruposVigMade, &CreaDe<ConBotonesAyuda<FormaViga>>},
        {"frmPilMade", kCamposFrmPilMade,
         {false, false, PasoComprobacion::SinArgumentos, false},
         "Pilar de Madera", "Pilar Madera 01", kPosicionInterior, kMinimosPilar,
         Listas{{"CmbUso", -1, kUsoPilar}} + ListasMadera() + ListasPilar(),
         {Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros, true,
         Visibles({EtiquetasPilar, EtiquetasPandeo, EtiquetasPlantaPilar}, {
             {kTx, "txtTramo", -1, "Dimensión (cm)"},
             {kTx, "TxtPorcent", -1, "Porcentaje (%)"},
             {kBt, "CmdAyuda", -1, "Clases:"},
             {kFr, "UCframeSeccion", -1, "Sección (cm)"},
             {kFr, "FrmFuego", -1, "Resistencia al fuego"},
         }),
         MenuDef{"Madera", 2, "mnuPilMade", ""}, kGruposPilMade, &CreaDe<ConBotonesAyuda<PilHorm>>},
        {"frmForMade", kCamposFrmForMade,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjado de Madera", "Forjado Madera 01", kNada, kMinimosForMade,
         Listas{{"CmbResis", -1, kResistenciaIdemAlFinal}, {"CmbServi", -1, kServicioIdemAlFinal}, {"Combo1", -1, kParticionMadera}} + ListasMadera(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::Lineal, Magnitud::Lineal}, Despacho::Registros, true,
         // The timber floor: its joists, its spans and the partitions on it.
         Visibles({EtiquetasForjadoLigero, EtiquetasContinuidad, EtiquetasPilaresViga}, {
             {kCb, "Combo1", -1, "Partición"},
             {kTx, "LblTab", -1, "Aviso del tablero"},
             {kCk, "ChInclinado", -1, "Forjado inclinado"},
             {kTx, "TextDviga", 0, "Ancho vigueta b (cm)"},
             {kTx, "TextDviga", 1, "Canto vigueta h (cm)"},
             {kBt, "CmdAyuda", -1, "Clases:"},
         }),
         MenuDef{"Madera", 3, "mnuForMade", ""}, {}, &CreaDe<ConBotonesAyuda<ElementForm>>},
        {"frmEscMade", kCamposFrmEscMade,
         {true, true, PasoComprobacion::Bandera, true},
         "Escalera de Madera", "Escalera Madera 01", kNada, kNada,
         ListasMadera(),
         {}, Despacho::Ninguno, true, Visibles({}, {{kBt, "CmdAyuda", -1, "Clases:"}}),
         MenuDef{"Madera", 4, "mnuEscMade", ""}, {}, &CreaDe<ConBotonesAyuda<ElementForm>>},
    };
    static_assert(NombresUnicos(tablas), "every form of the family is defined once");
    return tablas;
}

}  // namespace vardena
