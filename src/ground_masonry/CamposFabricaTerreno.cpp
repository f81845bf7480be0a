// Stored fields of the masonry, soil, footing, pile, wall and slope forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind, design texts.

#include "frame/Campos.h"
#include "frame/ControlesVisibles.h"
#include "frame/GruposVentana.h"
#include "frame/Listas.h"
#include "ground_masonry/MCerr.h"
#include "ground_masonry/MDint.h"
#include "ground_masonry/MuroTerreno.h"
#include "ground_masonry/Muros.h"
#include "ground_masonry/Pilotes.h"
#include "ground_masonry/Suelo.h"
#include "ground_masonry/Talud.h"
#include "ground_masonry/Zapatas.h"

namespace vardena {
namespace {

// Own defaults and minimums of single forms of this family.
constexpr Valor kRecubTerreno[] = {{"CmbRecub", {}, 7}};
constexpr Valor kMinimosMuro[] = {{"TxCotaMuro", {{0, 0}}, 10}, {"TxCotaAncho", {}, 40}, {"TxCotaAlto", {}, 30}};
constexpr Valor kMinimosMuros[] = {{"TxtCota", {{0, 22}}, 0.5}, {"TxtCota", {{1, 1}, {3, 3}}, 0.2}, {"TxtCota", {{4, 9}, {11, 13}, {15, 15}, {16, 16}}, 10}, {"TxtCota", {{0, 0}, {2, 2}}, 10}};
constexpr Valor kMinimosMDint[] = {{"TxtCota", {{0, 3}}, 0}, {"txtEspesor", {}, 0}};
constexpr Valor kMinimosMCerr[] = {{"TxtCota", {{1, 1}, {2, 2}}, 0}};
constexpr Valor kRecubTerrenoYPosicionInterior[] = {{"CmbRecub", {}, 7}, {"OpPosPil", {{2, 2}}, 1}};
constexpr Valor kMinimosZap[] = {{"TxDimZap", {{0, 7}}, 40}, {"TxDimZap", {{8, 11}}, 30}, {"TxPil", {{0, 7}}, 10}};
constexpr Valor kMinimosZapComb[] = {{"TxCota", {{0, 9}}, 10}};
constexpr Valor kMinimosZapCorr[] = {{"TxCotaMuro", {}, 10}, {"TxCotaAncho", {}, 40}, {"TxCotaAlto", {}, 30}};
constexpr Valor kMinimosPilotes[] = {{"TxtLongPil", {}, 0}, {"TxtLPilote", {}, 0}, {"TxtH", {}, 30}};
constexpr Valor kMinimosTalud[] = {{"TxCotaTalud", {{0, 0}, {1, 1}}, 10}};

// The soil's window, frame by frame in reading order; each label stands before the field it
// names. The four factor frames stand in UCframe1, which sound rock hides with the granular
// frame UCframe2 (titled by its first label) to show the rock's frame UCframe11. The fields of
// the last calculation's figures stand in no frame of the form.
constexpr int kMsgValoresCalculo = 1520;
constexpr std::string_view kSueloTitulo[] = {"txtTitulo"};
constexpr std::string_view kSueloDatos[] = {"lblTerreno", "CmbTerreno", "lblDensidad", "Text3", "Label10", "Text2",
                                            "Label12",    "Text4",      "Text5"};
constexpr std::string_view kSueloCimiento[] = {"ComboCim",   "lblAnchoCim", "Text6",      "lblSobrecarga",
                                               "Text1",      "PictureAis",  "PictureSot", "PictureLosa"};
constexpr std::string_view kSueloProfundidad[] = {"lblProf", "txtD", "lblDc", "txtDc", "lblDq", "txtDq", "lblDg", "txtDg"};
constexpr std::string_view kSueloForma[] = {"lblLargo", "txtA",  "lblAncho", "txtB",  "lblSc",
                                            "txtSc",    "lblSq", "txtSq",    "lblSg", "txtSg"};
constexpr std::string_view kSueloInclinacion[] = {"lblV",  "txtV",  "lblHx", "txtHx", "lblHy", "txtHy",
                                                  "lblIc", "txtIc", "lblIq", "txtIq", "lblIg", "txtIg"};
constexpr std::string_view kSueloTalud[] = {"lblAng", "txtAng", "lblTc", "txtTc", "lblTq", "txtTq", "lblTg", "txtTg"};
constexpr std::string_view kSueloGranular[] = {"lblServGranular", "chkServ",       "lblCondicion", "lblSPT",    "txtSPT",
                                               "lblAnchoEfect",   "txtAnchoEfect", "lblAsiento",   "txtAsiento"};
constexpr std::string_view kSueloRoca[] = {"lblQu",  "txtQu",  "lblEspaciado", "txtS", "lblApertura", "txtAp",
                                           "lblNotaApertura", "lblKsp", "txtKsp", "lblQd", "txtQd"};
constexpr std::string_view kSueloValores[] = {"txtNc", "txtNq", "txtNg", "txtTa", "txtTaServ"};
constexpr std::string_view kSueloResultados[] = {"lblTadm", "lblHundimiento", "txtTadm", "lblServicio", "txtServ"};
constexpr GrupoDef kGruposSuelo[] = {
    {"", kMsgGrupoElemento, kSueloTitulo},
    {"UCframeDatosIni", 0, kSueloDatos},
    {"UCframeCimiento", 0, kSueloCimiento},
    {"UCframeProf", 0, kSueloProfundidad, "UCframe1"},
    {"UCframeForma", 0, kSueloForma, "UCframe1"},
    {"UCframeIncl", 0, kSueloInclinacion, "UCframe1"},
    {"UCframeTalud", 0, kSueloTalud, "UCframe1"},
    {"UCframe2", 0, kSueloGranular},
    {"UCframe11", 0, kSueloRoca},
    {"", kMsgValoresCalculo, kSueloValores},
    {"UCframeResult", 0, kSueloResultados},
};

// The walls that hold ground and the slope: the frames the forms name, in reading order, with
// the section sketch beside the coordinates it draws.
constexpr std::string_view kMuroTitulo[] = {"txtTitulo"};
constexpr std::string_view kMuroRelleno[] = {"CmbTerr", "TxtDensidad", "TxtAngulo", "txtCohesion"};
constexpr std::string_view kMuroRozamiento[] = {"OptDelta", "Text1"};
constexpr std::string_view kMuroTension[] = {"TxtQ(2)", "Check1", "Check2", "chkEmpPasivo"};
constexpr std::string_view kMuroCargas[] = {"CheckFM", "TxtQ(0)", "TxtQ(1)", "TxtQ(3)"};
constexpr std::string_view kMuroSeccion[] = {"PicMuro", "CmbSot", "TxCotaMuro", "TxCotaAncho", "TxCotaAlto", "TxVuelo",
                                             "TxtCotaTacon", "TxtCotaSuelo"};
constexpr std::string_view kMuroArmado[] = {"UCArmMuro", "UCArmZap"};
constexpr GrupoDef kGruposMuroH[] = {
    {"", kMsgGrupoElemento, kMuroTitulo, {}, 0},  {"UCframeRelleno", 0, kMuroRelleno, {}, 0},
    {"UCframeDelta", 0, kMuroRozamiento, {}, 0},  {"UCframeArmado", 0, kMuroArmado, {}, 0},
    {"UCframeSeccion", 0, kMuroSeccion, {}, 1},   {"UCframeTension", 0, kMuroTension, {}, 1},
    {"UCframeCargas", 0, kMuroCargas, {}, 1},
};
constexpr std::string_view kMuroContTipo[] = {"cmbTipo", "ChkMortero", "TxtDensFabr", "TxtQ(5)", "TxCoefAcc"};
constexpr std::string_view kMuroContTerreno[] = {"CmbTerreno", "Text3", "Text2", "Text4", "Text5"};
constexpr std::string_view kMuroContCargas[] = {"TxtQ(0)", "TxtQ(1)", "TxtQ(3)", "TxtQ(4)"};
constexpr GrupoDef kGruposMuroCont[] = {
    {"", kMsgGrupoElemento, kMuroTitulo, {}, 0},   {"UCframeTipo", 0, kMuroContTipo, {}, 0},
    {"UCframeTerreno", 0, kMuroContTerreno, {}, 0}, {"UCframeRelleno", 0, kMuroRelleno, {}, 0},
    {"UCframeArmado", 0, kMuroArmado, {}, 0},     {"UCframeSeccion", 0, kMuroSeccion, {}, 1},
    {"UCframeDelta", 0, kMuroRozamiento, {}, 1},  {"UCframeTension", 0, kMuroTension, {}, 1},
    {"UCframeCargas", 0, kMuroContCargas, {}, 1},
};
constexpr std::string_view kAncladoTerreno[] = {"CmbTalud", "TxtDensidad", "TxtAngulo", "TxtQ(3)"};
constexpr std::string_view kAncladoEmpujes[] = {"cmbTerz", "optEmpuje"};
constexpr std::string_view kAncladoTension[] = {"TxtQ(2)", "Check1", "Check2"};
constexpr std::string_view kAncladoCargas[] = {"CheckFM", "TxtQ(0)", "TxtQ(1)", "TxtQ(8)"};
constexpr std::string_view kAncladoAnclajes[] = {"TxtQ(4)", "txtAng(0)", "TxtSep(0)", "TxtQ(5)", "txtAng(1)", "TxtSep(1)",
                                                 "TxtQ(6)", "txtAng(2)", "TxtSep(2)", "TxtQ(7)", "txtAng(3)", "TxtSep(3)"};
constexpr GrupoDef kGruposMuroAnclado[] = {
    {"", kMsgGrupoElemento, kMuroTitulo, {}, 0},     {"UCframeTerreno", 0, kAncladoTerreno, {}, 0},
    {"UCSuelo", 0, kAncladoEmpujes, {}, 0},          {"frmAnclaje", 0, kAncladoAnclajes, {}, 0},
    {"UCframeArmado", 0, kMuroArmado, {}, 0},        {"UCfrSep", 0, kMuroSeccion, {}, 1},
    {"UCframeTension", 0, kAncladoTension, {}, 1},   {"UCframeCargas", 0, kAncladoCargas, {}, 1},
};
constexpr std::string_view kTaludTerreno[] = {"CmbTalud", "TxtDensidad", "TxtAngulo", "TxtQ(1)", "TxtQ(0)"};
constexpr std::string_view kTaludGeometria[] = {"PicTalud", "TxCotaTalud(0)", "TxCotaTalud(2)", "chkEstrato", "TxCotaTalud(1)"};
constexpr std::string_view kTaludDrenaje[] = {"optDrenaje"};
constexpr std::string_view kTaludResultados[] = {"TxtRes*", "txCuelgue", "TxCercos"};
constexpr GrupoDef kGruposTalud[] = {
    {"", kMsgGrupoElemento, kMuroTitulo, {}, 0},  {"UCframeTerreno", 0, kTaludTerreno, {}, 0},
    {"UCframeDrenaje", 0, kTaludDrenaje, {}, 0},  {"UCframeTalud", 0, kTaludGeometria, {}, 1},
    {"UCframe2", 0, kTaludResultados, {}, 1},
};

// The frames every wall that holds ground has: the section drawn, its reinforcement, the ground's
// allowable stress and the loads on its head.
const std::vector<ControlVisible>& EtiquetasMarcosMuroTerreno()
{
    static const std::vector<ControlVisible> filas = {
        {kFr, "UCframeTension", -1, "Tensión admisible terreno"},
        {kFr, "UCframeCargas", -1, "Cargas coronación por metro"},
        {kFr, "UCframeArmado", -1, "Armado"},
        {kPc, "PicMuro", -1, ""},
    };
    return filas;
}

// The backfill of a wall and its toe and heel.
const std::vector<ControlVisible>& EtiquetasRellenoMuro()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxVuelo", 0, "Vuelo de la puntera (cm)"},
        {kTx, "TxVuelo", 1, "Vuelo del talón (cm)"},
        {kFr, "UCframeRelleno", -1, "Material relleno"},
        {kFr, "UCframeDelta", -1, "Rozamiento muro-relleno"},
        {kFr, "UCframeSeccion", -1, "Sección del muro"},
    };
    return filas;
}

// The coordinates of a basement wall, three for each storey from the highest down.
const std::vector<ControlVisible>& EtiquetasCotasSotanos()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxCotaMuro", 0, "Espesor cabeza 1 (cm)"},
        {kTx, "TxCotaMuro", 1, "Altura sótano 1 (cm)"},
        {kTx, "TxCotaMuro", 2, "Espesor pie 1 (cm)"},
        {kTx, "TxCotaMuro", 3, "Espesor cabeza 2 (cm)"},
        {kTx, "TxCotaMuro", 4, "Altura sótano 2 (cm)"},
        {kTx, "TxCotaMuro", 5, "Espesor pie 2 (cm)"},
        {kTx, "TxCotaMuro", 6, "Espesor cabeza 3 (cm)"},
        {kTx, "TxCotaMuro", 7, "Altura sótano 3 (cm)"},
        {kTx, "TxCotaMuro", 8, "Espesor pie 3 (cm)"},
        {kTx, "TxCotaMuro", 9, "Espesor cabeza 4 (cm)"},
        {kTx, "TxCotaMuro", 10, "Altura sótano 4 (cm)"},
        {kTx, "TxCotaMuro", 11, "Espesor pie 4 (cm)"},
    };
    return filas;
}

// The strip footing's window: the wall, the footing with its section beside its sizes, the loads
// per metre, the ground and the reinforcement.
constexpr std::string_view kZapCorrMuro[] = {"OpTipoMuro", "TxCotaMuro"};
constexpr std::string_view kZapCorrZapata[] = {"TxCotaAncho", "TxCotaAlto", "PtSeccZap"};
constexpr std::string_view kZapCorrCargas[] = {"TxtQ(0)", "TxtQ(1)"};
constexpr std::string_view kZapataTerreno[] = {"Check1", "TxtQ(2)"};
constexpr std::string_view kZapataArmadura[] = {"UCArmZap"};
constexpr GrupoDef kGruposZapCorr[] = {
    {"", kMsgGrupoElemento, kSueloTitulo, {}, 0},
    {"UCframeMuro", 0, kZapCorrMuro, {}, 0},
    {"UCframeCargas", 0, kZapCorrCargas, {}, 0},
    {"UCframeTerreno", 0, kZapataTerreno, {}, 0},
    {"UCframeZapata", 0, kZapCorrZapata, {}, 1},
    {"UCframeArm", 0, kZapataArmadura, {}, 2},
};
// The isolated footing's window: its position, the plan, then a frame for each footing the
// position uses and one for each centering beam; the position shows and hides them.
constexpr std::string_view kZapPosicion[] = {"OpPosPil", "chkRiostra"};
constexpr std::string_view kZapPlanta[] = {"PtPlantaZap"};
constexpr std::string_view kZapTerreno[] = {"Check1", "TxtQ(12)"};
constexpr std::string_view kZapHueco0[] = {"TxDimZap(0)", "TxDimZap(1)", "TxDimZap(8)", "TxPil(0)", "TxPil(1)", "TxtQ(0)", "TxtQ(1)", "TxtQ(2)", "UCArmZap(0)", "UCArmZap(1)"};
constexpr std::string_view kZapHueco1[] = {"TxDimZap(2)", "TxDimZap(3)", "TxDimZap(9)", "TxPil(2)", "TxPil(3)", "TxtQ(3)", "TxtQ(4)", "TxtQ(5)", "UCArmZap(2)", "UCArmZap(3)"};
constexpr std::string_view kZapHueco2[] = {"TxDimZap(4)", "TxDimZap(5)", "TxDimZap(10)", "TxPil(4)", "TxPil(5)", "TxtQ(6)", "TxtQ(7)", "TxtQ(8)", "UCArmZap(4)", "UCArmZap(5)"};
constexpr std::string_view kZapHueco3[] = {"TxDimZap(6)", "TxDimZap(7)", "TxDimZap(11)", "TxPil(6)", "TxPil(7)", "TxtQ(9)", "TxtQ(10)", "TxtQ(11)", "UCArmZap(6)", "UCArmZap(7)"};
constexpr std::string_view kZapVigaX[] = {"TxDist(0)", "UCViga(0)", "UCViga(1)", "UCCercosViga(0)", "TxtRes1(2)", "TxtRes1(3)"};
constexpr std::string_view kZapVigaY[] = {"TxDist(1)", "UCViga(2)", "UCViga(3)", "UCCercosViga(1)", "TxtRes1(4)", "TxtRes1(5)"};
constexpr std::string_view kZapCotas[] = {"TxCota"};
// Two columns: the footings' fields, each of them wide, down the first; the plan, the beams, the
// materials and the dimensions down the second.
constexpr GrupoDef kGruposZap[] = {
    {"", kMsgGrupoElemento, kSueloTitulo, {}, 0},
    {"UCframePos", 0, kZapPosicion, {}, 0},
    {"UCframeTerreno", 0, kZapTerreno, {}, 0},
    {"UCframeZap(0)", 0, kZapHueco0, {}, 0},
    {"UCframeZap(1)", 0, kZapHueco1, {}, 0},
    {"UCframeZap(2)", 0, kZapHueco2, {}, 0},
    {"UCframeZap(3)", 0, kZapHueco3, {}, 0},
    {"UCframePlanta", 0, kZapPlanta, {}, 1},
    {"UCframeViga(0)", 0, kZapVigaX, {}, 1},
    {"UCframeViga(1)", 0, kZapVigaY, {}, 1},
    {"", kMsgGrupoMateriales, kCamposMateriales, {}, 1},
    {"UCframeCotas", 0, kZapCotas, {}, 1},
};
// The combined footing's window: the loads of each of its two columns, the ground, its
// dimensions and its reinforcement.
constexpr std::string_view kZapCombPilar1[] = {"TxtQ(0)", "TxtQ(1)"};
constexpr std::string_view kZapCombPilar2[] = {"TxtQ(3)", "TxtQ(2)"};
constexpr std::string_view kZapCombTerreno[] = {"Check1", "TxtQ(4)"};
constexpr GrupoDef kGruposZapComb[] = {
    {"", kMsgGrupoElemento, kSueloTitulo, {}, 0},
    {"UCframePilar(0)", 0, kZapCombPilar1, {}, 0},
    {"UCframePilar(1)", 0, kZapCombPilar2, {}, 0},
    {"UCframeTerreno", 0, kZapCombTerreno, {}, 0},
    {"UCframeCotas", 0, kZapCotas, {}, 1},
    {"UCframeArm", 0, kZapataArmadura, {}, 2},
};

// The stored fields of each form, in the order of its record.
// The masonry forms' windows. Each has its masonry frame, with the button that opens the masonry
// properties dialog beside the fields that dialog fills.
constexpr std::string_view kMurosFabrica[] = {"CmbCatEjec", "TxCoefMin", "TxtQ(0)", "TxtDensidad", "cmdDefRes"};
constexpr std::string_view kMurosArriostramiento[] = {"OptArr"};
constexpr std::string_view kMurosSeccion[] = {"OpTramo", "CheckI", "CheckS", "PctSeccMuro", "LbInadmisible"};
// The coordinates keep together in index order: lengths and heights in m, then the thicknesses
// and widths in cm, then the upper heights in m again.
constexpr std::string_view kMurosCotas[] = {"TxtCota"};
constexpr std::string_view kIdentidadFabrica[] = {"txtTitulo", "CmbPlanta"};
constexpr GrupoDef kGruposMuros[] = {
    {"", kMsgGrupoElemento, kIdentidadFabrica, {}, 0}, {"UCframeFab", 0, kMurosFabrica, {}, 0},
    {"UCframeArr", 0, kMurosArriostramiento, {}, 0},   {"UCframeSecc", 0, kMurosSeccion, {}, 1},
    {"UCframeCotas", 0, kMurosCotas, {}, 2},
};
constexpr std::string_view kMCerrFabrica[] = {"CmbFMat", "CmbFMort", "CmbCatEjec", "TxCatEjec",
                                              "TxCoefMin", "TxtQ(0)", "TxtQ(1)", "cmdDefRes"};
constexpr std::string_view kMCerrPanel[] = {"TxtCota", "TxtQ(2)", "TxtQ(3)"};
constexpr std::string_view kMCerrCabeza[] = {"OptCab"};
constexpr std::string_view kMCerrBase[] = {"OptBase"};
constexpr std::string_view kMCerrIzquierdo[] = {"OptIzq"};
constexpr std::string_view kMCerrDerecho[] = {"OptDer"};
constexpr std::string_view kMCerrCalculo[] = {"OptCalc"};
constexpr GrupoDef kGruposMCerr[] = {
    {"", kMsgGrupoElemento, kIdentidadFabrica, {}, 0},
    {"UCframeFab", 0, kMCerrFabrica, {}, 0},
    {"UCframePanel", 0, kMCerrPanel, {}, 0},
    {"UCframeCab", 0, kMCerrCabeza, {}, 1},
    {"UCframeBase", 0, kMCerrBase, {}, 1},
    {"UCframeIzq", 0, kMCerrIzquierdo, {}, 1},
    {"UCframeDer", 0, kMCerrDerecho, {}, 1},
    {"UCframeCalc", 0, kMCerrCalculo, {}, 1},
};
constexpr std::string_view kMDintFabrica[] = {"CmbDintel", "txtEspesor", "TxCoefMin", "TxtQ(0)",
                                              "TxtDensidad", "cmdDefRes", "chkForjado"};
constexpr std::string_view kMDintLuz[] = {"TxtCota", "TxtQ(1)", "TxtQ(2)", "TxtQ(3)"};
constexpr std::string_view kMDintHormigon[] = {"CmbHorm",   "CmbAcero", "cmbControl", "CmbRecub", "CmbAmbGral",
                                               "CmbAmbEspec", "TextDviga", "UCArVig",  "ChArV",    "UCArCer",
                                               "txtCort"};
constexpr std::string_view kMDintAcero[] = {"cmbAceroPerfil", "UCPerfil1"};
constexpr std::string_view kMDintMadera[] = {"CmbResis", "CmbServi"};
constexpr std::string_view kMDintFuego[] = {"txtEF", "CmbUso", "txtResF1", "txtResF2"};
constexpr GrupoDef kGruposMDint[] = {
    {"", kMsgGrupoElemento, kIdentidadFabrica, {}, 0},
    {"UCframeFab", 0, kMDintFabrica, {}, 0},    {"UCframeLuz", 0, kMDintLuz, {}, 0},
    {"UCframe5(0)", 0, kMDintHormigon, {}, 1},  {"UCframe5(1)", 0, kMDintAcero, {}, 1},
    {"UCframe5(2)", 0, kMDintMadera, {}, 1},    {"UCframeFuego", 0, kMDintFuego, {}, 1},
};

constexpr CampoDef kCamposFrmMuros[] = {
    {"CmbCatEjec", {}, kLista}, {"TxCoefMin", {}, kTexto, {"1.7"}}, {"TxtQ", {0}, kTexto, {"33"}}, {"CmbPlanta", {}, kLista},
    {"TxtDensidad", {}, kTexto, {"1900"}}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto},
    {"TxtCota", {24, 23}, kTexto, {"0.80", "1.30"}}, {"CheckI", {}, kCasilla}, {"CheckS", {}, kCasilla},
    {"TxtCota", {0, 1, 2, 3, 22}, kTexto, {"0.80", "2.55", "1.30", "3.60", "6.00"}}, {"OptArr", {2, 1, 0}, kOpcion},
    {"TxtCota", {21}, kTexto, {"2.80"}}, {"OpTramo", {2}, kOpcion}, {"TxtCota", {17}, kTexto, {"4.90"}},
    {"OpTramo", {0, 3, 1}, kOpcion}, {"TxtCota", {20, 19, 18}, kTexto, {"2.80", "5.10", "4.80"}}, {"txtTitulo", {}, kTexto},
    {"TxtCota", {16, 15, 14, 13, 8, 7, 6, 5, 4}, kTexto, {"40", "25", "5", "30", "40", "25", "40", "25", "25"}},
    {"TxtCota", {12, 11, 10, 9}, kTexto, {"40", "25", "10", "30"}},
};
static_assert(CamposBienFormados(kCamposFrmMuros));

constexpr CampoDef kCamposFrmMCerr[] = {
    {"TxtQ", {3}, kTexto, {"0.05"}}, {"txtTitulo", {}, kTexto}, {"OptCab", {2, 1, 0}, kOpcion}, {"OptBase", {0, 1}, kOpcion},
    {"OptIzq", {1, 0}, kOpcion}, {"OptDer", {0, 1}, kOpcion}, {"OptCalc", {1, 0}, kOpcion},
    {"TxtCota", {1, 0, 2}, kTexto, {"2.60", "6.00", "0.12"}}, {"TxtQ", {2}, kTexto, {"0.1"}}, {"CmbCatEjec", {}, kLista},
    {"TxtQ", {1}, kTexto, {"2"}}, {"CmbPlanta", {}, kLista}, {"TxtQ", {0}, kTexto, {"1"}}, {"TxCoefMin", {}, kTexto, {"1.7"}},
    {"TxCatEjec", {}, kTexto, {"A"}}, {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"CmbFMort", {}, kLista},
    {"CmbFMat", {}, kLista},
};
static_assert(CamposBienFormados(kCamposFrmMCerr));

constexpr CampoDef kCamposFrmMDint[] = {
    {"TxtRes1", {2, 1, 0}, kTexto}, {"CmbDintel", {}, kLista}, {"CmbAmbEspec", {}, kLista}, {"CmbAmbGral", {}, kLista},
    {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista},
    {"CmbServi", {}, kLista}, {"CmbResis", {}, kLista}, {"cmbAceroPerfil", {}, kLista}, {"txtEF", {}, kTexto, {"60"}},
    {"CmbUso", {}, kLista}, {"txtResF1", {}, kTexto}, {"txtResF2", {}, kTexto}, {"chkForjado", {}, kCasilla},
    {"UCPerfil1", {}, kPerfil}, {"UCArVig", {1, 2}, kNumDiam}, {"UCArCer", {1}, kNumDiamSep}, {"UCArVig", {3}, kNumDiam},
    {"ChArV", {3, 2, 1}, kCasilla}, {"TextDviga", {1, 0}, kTexto, {"30", "24"}},
    {"txtCort", {0, 1}, kTexto, {"Compresión oblicua"}}, {"TxtQ", {1}, kTexto, {"2.1"}}, {"UCArCer", {0}, kNumDiamSep},
    {"UCArVig", {0, 4}, kNumDiam}, {"UCArCer", {2}, kNumDiamSep}, {"txtTitulo", {}, kTexto},
    {"TxtCota", {3, 0, 1, 2}, kTexto, {"2.4", "4.90", "0.20", "1.20"}}, {"txtEspesor", {}, kTexto, {"24"}},
    {"TxCoefMin", {}, kTexto, {"1.7"}}, {"TxtQ", {0}, kTexto, {"33"}}, {"TxtDensidad", {}, kTexto, {"1900"}},
    {"TxtQ", {3, 2}, kTexto, {"1.0", "1.2"}},
};
static_assert(CamposBienFormados(kCamposFrmMDint));

constexpr CampoDef kCamposFrmSuelo[] = {
    {"txtV", {}, kTexto, {"250"}}, {"txtHy", {}, kTexto, {"0"}}, {"txtIg", {}, kTexto, {"1.00"}},
    {"txtIq", {}, kTexto, {"1.00"}}, {"txtIc", {}, kTexto, {"1.00"}}, {"txtHx", {}, kTexto, {"0"}},
    {"txtB", {}, kTexto, {"2.00"}}, {"txtSg", {}, kTexto, {"1.00"}}, {"txtSq", {}, kTexto, {"1.00"}},
    {"txtSc", {}, kTexto, {"1.00"}}, {"txtA", {}, kTexto, {"2.00"}}, {"txtDg", {}, kTexto, {"1.00"}},
    {"txtDq", {}, kTexto, {"1.00"}}, {"txtDc", {}, kTexto, {"1.00"}}, {"txtD", {}, kTexto, {"0.8"}},
    {"txtTg", {}, kTexto, {"1.00"}}, {"txtTq", {}, kTexto, {"1.00"}}, {"txtTc", {}, kTexto, {"1.00"}},
    {"txtAng", {}, kTexto, {"0"}}, {"txtQd", {}, kTexto, {"1.00"}}, {"txtKsp", {}, kTexto, {"1.00"}},
    {"txtQu", {}, kTexto, {"20000"}}, {"txtS", {}, kTexto, {"300"}}, {"txtAp", {}, kTexto, {"5"}}, {"chkServ", {}, kCasilla},
    {"txtSPT", {}, kTexto, {"20"}}, {"txtAnchoEfect", {}, kTexto, {"2.00"}}, {"txtAsiento", {}, kTexto, {"25"}},
    {"ComboCim", {}, kLista}, {"Text6", {}, kTexto, {"2"}}, {"Text1", {}, kTexto, {"0"}}, {"txtNg", {}, kTexto},
    {"txtNq", {}, kTexto}, {"txtNc", {}, kTexto}, {"txtTa", {}, kTexto, {"30"}}, {"txtTaServ", {}, kTexto, {"30"}},
    {"Text5", {}, kTexto, {"30"}}, {"txtTitulo", {}, kTexto}, {"txtTadm", {}, kTexto}, {"txtServ", {}, kTexto},
    {"Text4", {}, kTexto, {"6"}}, {"CmbTerreno", {}, kLista}, {"Text3", {}, kTexto, {"1800"}}, {"Text2", {}, kTexto, {"30"}},
};
static_assert(CamposBienFormados(kCamposFrmSuelo));

constexpr CampoDef kCamposFrmZap[] = {
    {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
    {"TxtRes1", {1, 5, 4, 3, 2, 0}, kTexto}, {"txtTitulo", {}, kTexto}, {"chkRiostra", {}, kCasilla}, {"Check1", {}, kCasilla},
    {"TxtQ", {12}, kTexto, {"2.5"}}, {"UCArmZap", {1, 0, 7, 5, 3, 2, 4, 6}, kZapatas},
    {"TxtQ", {9, 10, 11}, kTexto, {"40", "0", "0"}},
    {"TxDimZap", {11, 10, 9, 8, 7, 6}, kTexto, {"50", "50", "50", "50", "140", "140"}}, {"TxPil", {7, 6}, kTexto, {"30"}},
    {"TxtQ", {6, 7, 8, 3, 4, 5, 2, 1, 0}, kTexto, {"25", "0", "0", "40", "0", "0", "0", "0"}},
    {"TxDimZap", {5, 4, 3, 2, 1, 0}, kTexto, {"140"}}, {"TxDist", {0, 1}, kTexto, {"600", "500"}},
    {"TxPil", {5, 4, 3, 2, 1, 0}, kTexto, {"30"}}, {"OpPosPil", {2, 1, 0}, kOpcion}, {"UCViga", {2, 3}, kNumDiam},
    {"UCCercosViga", {1}, kNumDiamSep}, {"TxCota", {13}, kTexto, {"50"}}, {"UCViga", {0, 1}, kNumDiam}, {"UCCercosViga", {0}, kNumDiamSep},
    {"TxCota", {12, 11, 7, 6, 5, 4, 3, 2, 1, 0, 10, 9, 8}, kTexto, {"40", "40", "140", "40", "40", "600", "30", "50"}},
};
static_assert(CamposBienFormados(kCamposFrmZap));

constexpr CampoDef kCamposFrmZapComb[] = {
    {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
    {"TxtRes1", {2, 0, 1}, kTexto}, {"Check1", {}, kCasilla}, {"TxtQ", {4}, kTexto, {"2.5"}}, {"UCArmZap", {2, 3, 0, 1}, kZapatas},
    {"txtTitulo", {}, kTexto}, {"TxCota", {9}, kTexto, {"110"}}, {"TxtQ", {2, 3, 0, 1}, kTexto, {"0", "20", "20", "0"}},
    {"TxCota", {8, 7, 6, 5, 4, 3, 2, 1, 0}, kTexto, {"170", "40", "40", "30", "40", "30", "30", "30"}},
};
static_assert(CamposBienFormados(kCamposFrmZapComb));

constexpr CampoDef kCamposFrmZapCorr[] = {
    {"Check1", {}, kCasilla}, {"TxtQ", {2}, kTexto, {"2.5"}}, {"UCArmZap", {0, 1}, kZapatas}, {"OpTipoMuro", {1, 0}, kOpcion},
    {"TxtQ", {0, 1}, kTexto, {"40", "0"}}, {"TxCotaMuro", {}, kTexto, {"30"}}, {"TxCotaAncho", {}, kTexto, {"150"}},
    {"TxCotaAlto", {}, kTexto, {"50"}}, {"txtTitulo", {}, kTexto}, {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista},
    {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista}, {"TxtRes1", {1, 0}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmZapCorr));

constexpr CampoDef kCamposFrmPilotes[] = {
    {"txtQadm", {}, kTexto}, {"CmbApoyo", {}, kLista}, {"ChNF", {}, kCasilla}, {"CmbEstratos", {}, kLista},
    {"TxtLongPil", {}, kTexto, {"12"}}, {"txtEspesor", {4, 3, 2, 1, 0, 5}, kTexto, {"5", "5", "5", "5", "12"}},
    {"txtCohesion", {0}, kTexto, {"10"}}, {"txtRozam", {0}, kTexto, {"30"}}, {"txtSPT", {0}, kTexto, {"20"}},
    {"txtCohesion", {1}, kTexto, {"10"}}, {"txtRozam", {1}, kTexto, {"30"}}, {"txtSPT", {1}, kTexto, {"20"}},
    {"txtCohesion", {2}, kTexto, {"10"}}, {"txtRozam", {2}, kTexto, {"30"}}, {"txtSPT", {2}, kTexto, {"20"}},
    {"txtCohesion", {3}, kTexto, {"10"}}, {"txtRozam", {3}, kTexto, {"30"}}, {"txtSPT", {3}, kTexto, {"20"}},
    {"txtCohesion", {4}, kTexto, {"10"}}, {"txtRozam", {4}, kTexto, {"30"}}, {"txtSPT", {4}, kTexto, {"20"}},
    {"txtCohesion", {5}, kTexto, {"50"}}, {"txtRozam", {5}, kTexto, {"30"}}, {"txtSPT", {5}, kTexto, {"40"}},
    {"CmbCaract", {}, kLista}, {"cmbSuelo", {}, kLista}, {"TxtNF", {}, kTexto, {"10"}},
    {"txtDens", {5, 0, 1, 2, 3, 4}, kTexto, {"18"}}, {"txtQu", {}, kTexto, {"20000"}}, {"txtAp", {}, kTexto, {"5"}},
    {"txtS", {}, kTexto, {"300"}}, {"txtLe", {}, kTexto, {"1.2"}}, {"txtKsp", {}, kTexto, {"0.50"}},
    {"txtQd", {}, kTexto, {"10000"}}, {"TxtRes1", {2, 3}, kTexto}, {"cmbPil", {5, 4, 3, 2, 1, 0}, kLista},
    {"CmbTipos", {}, kLista}, {"UCPilote", {}, kNumDiam}, {"UCEncepado", {}, kNumDiam},
    {"TxtQ", {2, 1, 0}, kTexto, {"0", "0", "40"}}, {"CmbDiam", {}, kLista}, {"TxtLPilote", {}, kTexto, {"12"}},
    {"TxtQ", {5, 3, 4}, kTexto, {"40"}}, {"TxCota", {0, 1}, kTexto, {"30"}}, {"TxtH", {}, kTexto, {"60"}},
    {"ChRiostra", {3, 2, 1, 0}, kCasilla}, {"TxtSep", {}, kTexto, {"100"}}, {"txtTitulo", {}, kTexto},
    {"TxCota", {12, 11}, kTexto, {"40"}}, {"TxtLong", {0, 1, 2, 3}, kTexto, {"4"}}, {"UCViga", {2, 3}, kNumDiam},
    {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
    {"CmbNumPil", {}, kLista}, {"TxtRes1", {4, 0, 1}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmPilotes));

// The pile group's window: the pile on the left, the strata panel (closed until CmdCapacidad
// opens it) at the top of the other two columns, its table of strata and the rock beside its
// sketch; the capacity's results under the sketch, then the loads and the cap.
constexpr std::string_view kPilotesTitulo[] = {"txtTitulo"};
constexpr std::string_view kPilotesPilote[] = {"CmbTipos", "CmbDiam", "TxtLPilote", "CmbNumPil", "TxtSep", "UCPilote"};
constexpr std::string_view kPilotesCualitativos[] = {"cmbPil"};
constexpr std::string_view kPilotesEncepado[] = {"TxtH", "TxCota", "UCEncepado", "ChRiostra", "TxtLong", "UCViga"};
constexpr std::string_view kPilotesCargas[] = {"TxtQ(0)", "TxtQ(1)", "TxtQ(2)"};
constexpr std::string_view kPilotesCapacidad[] = {"TxtQ(3)", "TxtQ(4)", "txtQadm", "TxtQ(5)", "CmdCapacidad"};
constexpr std::string_view kPilotesTerreno[] = {"CmbCaract", "cmbSuelo", "CmbApoyo", "CmbEstratos", "TxtLongPil"};
// A table: a row a stratum (thickness, cohesion, friction, blow count, unit weight), the tip's last.
// The strata as a table: a row a stratum, the last the one the tip stands in.
constexpr std::string_view kPilotesEstratos[] = {
    "txtEspesor(0)", "txtCohesion(0)", "txtRozam(0)", "txtSPT(0)", "txtDens(0)",
    "txtEspesor(1)", "txtCohesion(1)", "txtRozam(1)", "txtSPT(1)", "txtDens(1)",
    "txtEspesor(2)", "txtCohesion(2)", "txtRozam(2)", "txtSPT(2)", "txtDens(2)",
    "txtEspesor(3)", "txtCohesion(3)", "txtRozam(3)", "txtSPT(3)", "txtDens(3)",
    "txtEspesor(4)", "txtCohesion(4)", "txtRozam(4)", "txtSPT(4)", "txtDens(4)",
    "txtEspesor(5)", "txtCohesion(5)", "txtRozam(5)", "txtSPT(5)", "txtDens(5)",
};
// The soil's figures by their symbols: cohesion c, angle of friction φ, unit weight γ.
constexpr std::string_view kPilotesEstratosColumnas[] = {"", "Espesor (m)", "c (kN/m2)", "φ (º)", "N SPT", "γ (kN/m3)"};
constexpr std::string_view kPilotesEstratosFilas[] = {"Estrato 1", "Estrato 2", "Estrato 3", "Estrato 4", "Estrato 5", "Punta"};
constexpr std::string_view kPilotesCorte[] = {"PctEstratos", "ChNF", "TxtNF", "UCOK2", "UCOK1"};
constexpr std::string_view kPilotesRoca[] = {"lblRoca", "lblQu", "txtQu", "txtS", "txtAp", "txtLe", "txtKsp", "txtQd"};
constexpr int kMsgGrupoPilote = 1781;
constexpr int kMsgGrupoEncepado = 1782;
constexpr int kMsgGrupoCapacidad = 1783;
constexpr int kMsgGrupoEstratos = 1784;
constexpr int kMsgGrupoCorte = 1785;
constexpr int kMsgGrupoCargas = 1786;
constexpr int kMsgGrupoCualitativos = 1787;
constexpr int kMsgGrupoRoca = 1788;
constexpr GrupoDef kGruposPilotes[] = {
    {"", kMsgGrupoElemento, kPilotesTitulo, {}, 0},
    {"UCSuelo", 0, kPilotesTerreno, {}, 1},
    {"", kMsgGrupoEstratos, kPilotesEstratos, "UCSuelo", 1, false, kPilotesEstratosColumnas, kPilotesEstratosFilas},
    {"", kMsgGrupoCorte, kPilotesCorte, "UCSuelo", 2},
    // Titled short, its frame's caption heading it inside, so that the column stays narrow.
    {"", kMsgGrupoRoca, kPilotesRoca, "UCframeRoca", 1},
    {"", kMsgGrupoPilote, kPilotesPilote, {}, 0},
    {"", kMsgGrupoCualitativos, kPilotesCualitativos, {}, 0},
    {"", kMsgGrupoCapacidad, kPilotesCapacidad, {}, 2},
    {"", kMsgGrupoCargas, kPilotesCargas, {}, 1},
    {"", kMsgGrupoEncepado, kPilotesEncepado, {}, 2},
};

constexpr CampoDef kCamposFrmMuroH[] = {
    {"TxtAngulo", {}, kTexto, {"30"}}, {"TxtDensidad", {}, kTexto, {"1500"}}, {"CmbTerr", {}, kLista},
    {"Text1", {}, kTexto, {"30"}}, {"OptDelta", {2, 1, 0}, kOpcion}, {"Check2", {}, kCasilla}, {"TxtQ", {2}, kTexto, {"2.5"}},
    {"Check1", {}, kCasilla}, {"CheckFM", {}, kCasilla}, {"TxtQ", {1, 0, 3}, kTexto, {"0", "10", "0.3"}}, {"txtTitulo", {}, kTexto},
    {"TxCotaAlto", {}, kTexto, {"50"}}, {"TxCotaAncho", {}, kTexto, {"150"}},
    {"TxCotaMuro", {0, 1, 2, 3, 4, 5, 6, 7}, kTexto, {"30", "260", "30", "30", "260", "30", "30", "260"}},
    {"TxVuelo", {0}, kTexto, {"60"}}, {"TxCotaMuro", {8, 9, 10, 11}, kTexto, {"30", "30", "260", "30"}},
    {"UCArmMuro", {15, 13, 11, 9, 5, 7, 1, 3, 2, 0}, kZapatas}, {"UCArmZap", {0, 1}, kZapatas},
    {"UCArmMuro", {4, 6, 8, 10, 12, 14}, kZapatas}, {"TxVuelo", {1}, kTexto, {"60"}}, {"CmbSot", {}, kLista},
    {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
    {"TxtRes1", {0, 1, 2}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmMuroH));

constexpr CampoDef kCamposFrmMuroCont[] = {
    {"cmbTipo", {}, kLista}, {"ChkMortero", {}, kCasilla}, {"TxtDensFabr", {}, kTexto, {"2600"}},
    {"TxCoefAcc", {}, kTexto, {"1.70"}}, {"TxtQ", {5}, kTexto, {"90"}}, {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista},
    {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista}, {"TxtRes1", {0, 1, 2, 4, 3}, kTexto}, {"Text2", {}, kTexto, {"30"}},
    {"Text3", {}, kTexto, {"1800"}}, {"CmbTerreno", {}, kLista}, {"Text4", {}, kTexto, {"1.00"}}, {"Text5", {}, kTexto, {".5"}},
    {"TxtQ", {2}, kTexto, {"2.5"}}, {"Check1", {}, kCasilla}, {"chkEmpPasivo", {}, kCasilla}, {"Text1", {}, kTexto, {"30"}},
    {"OptDelta", {0, 1, 2}, kOpcion}, {"CmbTerr", {}, kLista}, {"TxtDensidad", {}, kTexto, {"1800"}},
    {"TxtAngulo", {}, kTexto, {"30"}}, {"txtCohesion", {}, kTexto, {"1.00"}}, {"TxtQ", {0, 1}, kTexto, {"5", "0"}},
    {"txtTitulo", {}, kTexto}, {"TxtCotaTacon", {}, kTexto, {"50"}}, {"TxtCotaSuelo", {}, kTexto, {"40"}},
    {"UCArmMuro", {0, 2, 3}, kZapatas}, {"UCArmZap", {3, 2, 1}, kZapatas}, {"TxCotaMuro", {3}, kTexto, {"30"}},
    {"TxCotaAlto", {}, kTexto, {"50"}}, {"TxCotaAncho", {}, kTexto, {"150"}}, {"TxCotaMuro", {2, 0}, kTexto, {"35", "220"}},
    {"TxVuelo", {0, 1}, kTexto, {"60", "55"}}, {"TxCotaMuro", {1}, kTexto, {"30"}}, {"TxtQ", {3}, kTexto, {"0.3"}},
    {"UCArmMuro", {1}, kZapatas}, {"UCArmZap", {0}, kZapatas},
    {"TxCotaMuro", {10, 9, 8, 7, 6}, kTexto, {"20", "60", "110", "210", "40"}}, {"TxtQ", {4}, kTexto, {"1"}},
    {"TxCotaMuro", {5, 4}, kTexto, {"30"}},
};
static_assert(CamposBienFormados(kCamposFrmMuroCont));

constexpr CampoDef kCamposFrmMuroAnclado[] = {
    {"TxtQ", {4}, kTexto, {"40"}}, {"txtAng", {0}, kTexto, {"25"}}, {"TxtSep", {0, 1}, kTexto, {"300"}},
    {"txtAng", {1}, kTexto, {"25"}}, {"TxtQ", {5}, kTexto, {"40"}}, {"TxtSep", {2}, kTexto, {"300"}},
    {"txtAng", {2}, kTexto, {"25"}}, {"TxtQ", {6}, kTexto, {"40"}}, {"TxtSep", {3}, kTexto, {"300"}},
    {"txtAng", {3}, kTexto, {"25"}}, {"TxtQ", {7}, kTexto, {"40"}}, {"Check2", {}, kCasilla}, {"TxtQ", {2}, kTexto, {"2.5"}},
    {"Check1", {}, kCasilla}, {"TxtQ", {3}, kTexto, {"1.00"}}, {"TxtAngulo", {}, kTexto, {"30"}},
    {"TxtDensidad", {}, kTexto, {"1800"}}, {"CmbTalud", {}, kLista}, {"optEmpuje", {0, 1}, kOpcion}, {"cmbTerz", {}, kLista},
    {"CheckFM", {}, kCasilla}, {"TxtQ", {1, 0, 8}, kTexto, {"0", "10", "0.3"}}, {"txtTitulo", {}, kTexto},
    {"TxCotaAlto", {}, kTexto, {"50"}},
    {"TxCotaMuro", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, kTexto, {"30", "260", "30", "30", "260", "30", "30", "260"}},
    {"UCArmMuro", {15, 13, 11, 9, 5, 7, 1, 3, 2, 0}, kZapatas}, {"UCArmZap", {0, 1}, kZapatas},
    {"UCArmMuro", {4, 6, 8, 10, 12, 14}, kZapatas}, {"TxCotaAncho", {}, kTexto, {"90"}}, {"TxVuelo", {}, kTexto, {"60"}},
    {"CmbSot", {}, kLista}, {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista},
    {"CmbHorm", {}, kLista}, {"TxtRes1", {3, 0, 1, 2}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmMuroAnclado));

constexpr CampoDef kCamposFrmTalud[] = {
    {"TxtQ", {1}, kTexto, {"1.00"}}, {"TxtAngulo", {}, kTexto, {"30"}}, {"TxtDensidad", {}, kTexto, {"1800"}},
    {"CmbTalud", {}, kLista}, {"TxtRes1", {0}, kTexto}, {"txCuelgue", {}, kTexto}, {"TxCercos", {}, kTexto},
    {"txtTitulo", {}, kTexto}, {"optDrenaje", {0, 1}, kOpcion}, {"TxCotaTalud", {2}, kTexto, {"45"}}, {"chkEstrato", {}, kCasilla},
    {"TxCotaTalud", {0, 1}, kTexto, {"220", "120"}}, {"TxtQ", {0}, kTexto, {".5"}},
};
static_assert(CamposBienFormados(kCamposFrmTalud));

}  // namespace

std::span<const TablaForm> TablasFabricaTerreno()
{
    static constexpr TablaForm tablas[] = {
        {"frmMuros", kCamposFrmMuros,
         // Reasoned titles for the masonry forms.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Muros de Fábrica", "Muro Fábrica 01", kNada, kMinimosMuros,
         Listas{{"CmbCatEjec", -1, kCategoriaEjecucion}},
         {Magnitud::Tension}, Despacho::Registros, true,
         Visibles({EtiquetasFabrica}, {
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
             {kFr, "UCframeFab", -1, "Fábrica"},
             {kFr, "UCframeArr", -1, "Arriostramiento"},
             {kFr, "UCframeSecc", -1, "Tramo y sección"},
             {kFr, "UCframeCotas", -1, "Cotas (m) y espesores (cm)"},
             {kPc, "PctSeccMuro", 0, ""},
             {kPc, "PctSeccMuro", 1, ""},
             {kPc, "PctSeccMuro", 2, ""},
             {kPc, "PctSeccMuro", 3, ""},
             {kLb, "LbInadmisible", -1, "ESBELTEZ INADMISIBLE"},
         }),
         MenuDef{"Fabrica", 1, "mnuMuros", ""}, kGruposMuros, &CreaDe<Muros>},
        {"frmMCerr", kCamposFrmMCerr,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Cerramientos sometidos a acciones horizontales", "Cerramiento 01", kNada, kMinimosMCerr,
         Listas{{"CmbCatEjec", -1, kCategoriaEjecucion}, {"CmbFMort", -1, kMortero}, {"CmbFMat", -1, kPieza}},
         {Magnitud::Tension, Magnitud::Tension, Magnitud::Lineal, Magnitud::Superficie}, Despacho::Registros, true,
         // The enclosure panel: how each of its four edges is held, and how it is checked.
         Visibles({EtiquetasFabrica}, {
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
             {kFr, "UCframeFab", -1, "Fábrica"},
             {kFr, "UCframePanel", -1, "Panel y cargas"},
             {kFr, "UCframeCab", -1, "Cabeza"},
             {kFr, "UCframeBase", -1, "Base"},
             {kFr, "UCframeIzq", -1, "Borde izquierdo"},
             {kFr, "UCframeDer", -1, "Borde derecho"},
             {kFr, "UCframeCalc", -1, "Método de cálculo"},
         }),
         MenuDef{"Fabrica", 3, "mnuMCerr", ""}, kGruposMCerr, &CreaDe<MCerr>},
        {"frmMDint", kCamposFrmMDint,
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Dintel Fábrica", "Dintel 01", kRecubEstructura, kMinimosMDint,
         Listas{{"CmbDintel", -1, kDintel}, {"CmbAmbGral", -1, kAmbienteDintel}, {"CmbAmbEspec", -1, kAmbienteEspecificoDintel}, {"cmbAceroPerfil", -1, kAceroLaminado}} + ListasMadera() + ListasHormigon(),
         {Magnitud::Tension, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal}, Despacho::Registros, true,
         // The lintel, of concrete, steel, timber or masonry, in a wall.
         Visibles({EtiquetasFabrica, EtiquetasArmadoViga}, {
             {kCb, "CmbDintel", -1, "Tipo de dintel"},
             {kTx, "TxtQ", 0, "Res. fábrica"},
             {kTx, "TxtDensidad", -1, "Densidad (kg/m3)"},
             {kTx, "txtEspesor", -1, "Espesor del muro (cm)"},
             {kCk, "chkForjado", -1, "Forjado"},
             {kTx, "TxtRes1", 0, "Flector"},
             {kTx, "TxtRes1", 1, "Cortante"},
             {kTx, "TxtRes1", 2, "Fábrica"},
             {kFr, "UCframeFab", -1, "Fábrica"},
             {kFr, "UCframeLuz", -1, "Luz y cargas"},
             {kFr, "UCframe5", 0, "Hormigón"},
             {kFr, "UCframe5", 1, "Acero"},
             {kFr, "UCframe5", 2, "Madera"},
             {kFr, "UCframeFuego", -1, "Resistencia al fuego"},
         }),
         MenuDef{"Fabrica", 2, "mnuMDint", ""}, kGruposMDint, &CreaDe<MDint>},
        {"frmSuelo", kCamposFrmSuelo,
         {false, true, PasoComprobacion::Ninguno, false},
         "Definición del terreno de cimentación", "Terreno 01", kNada, kNada,
         Listas{{"CmbTerreno", -1, kTerreno}, {"ComboCim", -1, kCimiento}},
         {}, Despacho::Registros, true,
         // The soil: the frames of the bearing formula (UCframe1), of the granular service pressure
         // (UCframe2, whose heading is a label: the frame has no caption) and of the rock (UCframe11).
         // Label10 and Label12 name the friction angle and the cohesion, which sound rock hides.
         Visibles({EtiquetasRoca}, {
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
             {kTx, "Text5", -1, "Valor de catálogo"},
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
             {kTx, "txtNc", -1, "Factor Nc"},
             {kTx, "txtNq", -1, "Factor Nq"},
             {kTx, "txtNg", -1, "Factor Nγ"},
             {kTx, "txtTa", -1, "Tensión admisible"},
             {kTx, "txtTaServ", -1, "Servicio granular"},
             {kTx, "txtTadm", -1, "Tensión admisible de hundimiento (kN/m2)"},
             {kTx, "txtServ", -1, "Tensión admisible de servicio (kN/m2)"},
         }),
         MenuDef{"Cimentacion", 1, "mnuSuelo", ""}, kGruposSuelo, &CreaDe<Suelo>},
        {"frmZap", kCamposFrmZap,
         // Plan sizes at least 40 cm, depths 30 cm and column sides 10 cm, as the strip footing.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Zapatas Aisladas", "Zapata Aislada 01", kRecubTerrenoYPosicionInterior, kMinimosZap,
         ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Tension}, Despacho::Registros, true,
         // The isolated footing: three loads (N, Mx, My) for each of its load pictures.
         Visibles({EtiquetasZapata}, {
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
             {kFr, "UCframeZap", 0, "Zapata estudiada"},
             {kTx, "TxDimZap", 0, "Lado en X (cm)"},
             {kTx, "TxDimZap", 1, "Lado en Y (cm)"},
             {kTx, "TxDimZap", 8, "Canto (cm)"},
             {kTx, "TxPil", 0, "Pilar en X (cm)"},
             {kTx, "TxPil", 1, "Pilar en Y (cm)"},
             {kZp, "UCArmZap", 0, "Armadura en X"},
             {kZp, "UCArmZap", 1, "Armadura en Y"},
             {kFr, "UCframeZap", 1, "Zapata contigua en X"},
             {kTx, "TxDimZap", 2, "Lado en X (cm)"},
             {kTx, "TxDimZap", 3, "Lado en Y (cm)"},
             {kTx, "TxDimZap", 9, "Canto (cm)"},
             {kTx, "TxPil", 2, "Pilar en X (cm)"},
             {kTx, "TxPil", 3, "Pilar en Y (cm)"},
             {kZp, "UCArmZap", 2, "Armadura en X"},
             {kZp, "UCArmZap", 3, "Armadura en Y"},
             {kFr, "UCframeZap", 2, "Zapata contigua en Y"},
             {kTx, "TxDimZap", 4, "Lado en X (cm)"},
             {kTx, "TxDimZap", 5, "Lado en Y (cm)"},
             {kTx, "TxDimZap", 10, "Canto (cm)"},
             {kTx, "TxPil", 4, "Pilar en X (cm)"},
             {kTx, "TxPil", 5, "Pilar en Y (cm)"},
             {kZp, "UCArmZap", 4, "Armadura en X"},
             {kZp, "UCArmZap", 5, "Armadura en Y"},
             {kFr, "UCframeZap", 3, "Zapata en diagonal"},
             {kTx, "TxDimZap", 6, "Lado en X (cm)"},
             {kTx, "TxDimZap", 7, "Lado en Y (cm)"},
             {kTx, "TxDimZap", 11, "Canto (cm)"},
             {kTx, "TxPil", 6, "Pilar en X (cm)"},
             {kTx, "TxPil", 7, "Pilar en Y (cm)"},
             {kZp, "UCArmZap", 6, "Armadura en X"},
             {kZp, "UCArmZap", 7, "Armadura en Y"},
             {kFr, "UCframeViga", 0, "Viga centradora X"},
             {kFr, "UCframeViga", 1, "Viga centradora Y"},
             {kFr, "UCframePos", -1, "Posición del pilar"},
             {kFr, "UCframeTerreno", -1, "Terreno"},
             {kFr, "UCframePlanta", -1, "Planta"},
             {kFr, "UCframeCotas", -1, "Cotas (cm)"},
             {kPc, "PtPlantaZap", -1, ""},
             {kOp, "OpPosPil", 0, "Esquina"},
             {kOp, "OpPosPil", 1, "Borde"},
             {kOp, "OpPosPil", 2, "Centro"},
             {kTx, "TxDist", 0, "Distancia (cm)"},
             {kTx, "TxDist", 1, "Distancia (cm)"},
             {kNd, "UCViga", 0, "Superior"},
             {kNd, "UCViga", 1, "Inferior"},
             {kNd, "UCViga", 2, "Superior"},
             {kNd, "UCViga", 3, "Inferior"},
             {kNs, "UCCercosViga", 0, "Cercos"},
             {kNs, "UCCercosViga", 1, "Cercos"},
             {kTx, "TxtRes1", 0, "Zapata"},
             {kTx, "TxtRes1", 1, "Terreno"},
             {kTx, "TxtRes1", 2, "Flector"},
             {kTx, "TxtRes1", 3, "Cortante"},
             {kTx, "TxtRes1", 4, "Flector"},
             {kTx, "TxtRes1", 5, "Cortante"},
         }),
         MenuDef{"Cimentacion", 2, "mnuZap", ""}, kGruposZap, &CreaDe<Zap>},
        {"frmZapComb", kCamposFrmZapComb,
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Zapatas Combinadas", "Zapata Combinada 01-02", kRecubTerreno, kMinimosZapComb,
         ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Tension}, Despacho::Registros, true,
         Visibles({EtiquetasZapata}, {
             {kTx, "TxCota", -1, "Cota (cm)"},
             {kTx, "TxtQ", 4, "Tensión admisible terreno"},
             {kTx, "TxtQ", 0, "N"},
             {kTx, "TxtQ", 1, "M"},
             {kTx, "TxtQ", 2, "M"},
             {kTx, "TxtQ", 3, "N"},
             {kFr, "UCframePilar", 0, "Cargas en el pilar 1"},
             {kFr, "UCframePilar", 1, "Cargas en el pilar 2"},
             {kFr, "UCframeTerreno", -1, "Terreno"},
             {kFr, "UCframeCotas", -1, "Cotas (cm)"},
             {kFr, "UCframeArm", -1, "Armadura"},
         }),
         MenuDef{"Cimentacion", 3, "mnuZapComb", ""}, kGruposZapComb, &CreaDe<Zapata>},
        {"frmZapCorr", kCamposFrmZapCorr,
         {true, true, PasoComprobacion::Bandera, false},
         "Zapatas Corridas", "Zapata Corrida 01", kRecubTerreno, kMinimosZapCorr,
         ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension}, Despacho::Registros, true,
         Visibles({EtiquetasZapata, EtiquetasZapataBajoMuro}, {
             {kOp, "OpTipoMuro", -1, "Tipo de muro"},
             {kOp, "OpTipoMuro", 0, "Fábrica"},
             {kOp, "OpTipoMuro", 1, "Hormigón"},
             {kTx, "TxCotaMuro", -1, "Ancho del muro (cm)"},
             {kTx, "TxtQ", 0, "Carga axil N"},
             {kTx, "TxtQ", 1, "Momento M"},
             {kTx, "TxtQ", 2, "Tensión admisible terreno"},
             {kFr, "UCframeMuro", -1, "Muro"},
             {kFr, "UCframeZapata", -1, "Zapata"},
             {kFr, "UCframeCargas", -1, "Cargas por metro"},
             {kFr, "UCframeTerreno", -1, "Terreno"},
             {kFr, "UCframeArm", -1, "Armadura"},
             {kPc, "PtSeccZap", -1, ""},
             {kZp, "UCArmZap", 0, "Armadura transversal (por metro)"},
             {kZp, "UCArmZap", 1, "Armadura longitudinal"},
         }),
         MenuDef{"Cimentacion", 4, "mnuZapCorr", ""}, kGruposZapCorr, &CreaDe<ZapCorr>},
        {"frmPilotes", kCamposFrmPilotes,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Pilotes", "Pilotes 01", kRecubTerreno, kMinimosPilotes,
         // The pile loads, then the tip, shaft and total capacities, forces all.
         Listas{{"CmbApoyo", -1, kApoyoPilote}, {"CmbEstratos", -1, kEstratos}, {"CmbCaract", -1, kCaracterizacion}, {"cmbSuelo", -1, kSueloPilote}, {"cmbPil", 0, kPilTerreno}, {"cmbPil", 1, kPilNumero}, {"cmbPil", 2, kPilCarga}, {"cmbPil", 3, kPilDificultad}, {"cmbPil", 4, kPilApoyo}, {"cmbPil", 5, kPilPunta}, {"CmbTipos", -1, kTiposPilote}, {"CmbDiam", -1, kDiametroPilote}, {"CmbNumPil", -1, kNumeroPilotes}} + ListasHormigon25(),
         {Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza}, Despacho::Registros, true,
         // The pile group: the strata along the pile, the pile, its cap and the ties between caps.
         // The rock's fields take captions of their own, for the narrow column beside the strata.
         Visibles({}, {
             {kCb, "CmbCaract", -1, "Determinación"},
             {kCb, "cmbSuelo", -1, "Tipo de suelo"},
             {kCb, "CmbApoyo", -1, "Apoyo de la punta"},
             {kCk, "ChNF", -1, "Nivel freático"},
             {kTx, "TxtNF", -1, "Prof. nivel freático (m)"},
             {kCb, "CmbEstratos", -1, "Nº de estratos"},
             {kTx, "TxtLongPil", -1, "Long. en el terreno (m)"},
             {kTx, "txtEspesor", -1, "Espesor estrato # (m)"},
             {kTx, "txtCohesion", -1, "Cohesión estrato #"},
             {kTx, "txtRozam", -1, "Rozamiento estrato # (º)"},
             {kTx, "txtSPT", -1, "N golpes SPT estrato #"},
             {kTx, "txtDens", -1, "Densidad estrato # (kN/m3)"},
             // The strata panel, its buttons and its sketch.
             {kFr, "UCSuelo", -1, "Datos del terreno"},
             {kFr, "UCframeRoca", -1, "DETERMINACIÓN DE LA PRESIÓN DE SERVICIO EN ROCA"},
             {kLb, "lblRoca", -1, "DETERMINACIÓN DE LA PRESIÓN DE SERVICIO EN ROCA"},
             {kLb, "lblQu", -1, "Resist. roca qu (kN/m2)"},
             {kBt, "CmdCapacidad", -1, "Capacidad"},
             {kBt, "UCOK2", -1, "Calcular"},
             {kBt, "UCOK1", -1, "Cerrar"},
             {kPc, "PctEstratos", -1, "Corte del terreno"},
             {kTx, "txtLe", -1, "Parámetro Le"},
             {kTx, "txtQu", -1, "Resist. roca qu (kN/m2)"},
             {kTx, "txtS", -1, "Espaciamiento s (mm)"},
             {kTx, "txtAp", -1, "Apertura a (mm)"},
             {kTx, "txtKsp", -1, "Parámetro Ksp"},
             {kTx, "txtQd", -1, "Presión servicio (kN/m2)"},
             {kCb, "cmbPil", -1, "Datos cualitativos"},
             {kCb, "cmbPil", 0, "Terreno"},
             {kCb, "cmbPil", 1, "Nº de pilares"},
             {kCb, "cmbPil", 2, "Carga por pilar"},
             {kCb, "cmbPil", 3, "Dificultades"},
             {kCb, "cmbPil", 4, "Estrato de apoyo"},
             {kCb, "cmbPil", 5, "Punta y fuste"},
             {kCb, "CmbTipos", -1, "Tipo de pilote"},
             {kCb, "CmbDiam", -1, "Diámetro (cm)"},
             {kCb, "CmbNumPil", -1, "Nº de pilotes"},
             {kTx, "TxtLPilote", -1, "Longitud (m)"},
             {kNd, "UCPilote", -1, "Armadura del pilote"},
             {kNd, "UCEncepado", -1, "Armadura del encepado"},
             {kTx, "TxtQ", 0, "Carga axil N"},
             {kTx, "TxtQ", 1, "Momento Mx"},
             {kTx, "TxtQ", 2, "Momento My"},
             {kTx, "TxtQ", 3, "Resistencia por punta"},
             {kTx, "TxtQ", 4, "Resistencia por fuste"},
             {kTx, "TxtQ", 5, "Capacidad del pilote"},
             {kTx, "txtQadm", -1, "Tope estructural del pilote"},
             {kTx, "TxCota", -1, "Cota (cm)"},
             {kTx, "TxtH", -1, "Canto del encepado (cm)"},
             {kTx, "TxtSep", -1, "Separación (cm)"},
             {kCk, "ChRiostra", -1, "Riostra #"},
             {kTx, "TxtLong", -1, "Longitud riostra # (m)"},
             {kNd, "UCViga", -1, "Armadura de riostra"},
         }),
         MenuDef{"Cimentacion", 5, "mnuPilotes", ""}, kGruposPilotes, &CreaDe<Pilotes>},
        {"frmMuroH", kCamposFrmMuroH,
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Muro Hormigón", "Muro Sótano 01", kRecubTerreno, kMinimosMuro,
         Listas{{"CmbTerr", -1, kRelleno}} + ListasMuro() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension, Magnitud::Superficie}, Despacho::Registros, true,
         Visibles({EtiquetasZapata, EtiquetasZapataBajoMuro, EtiquetasRelleno, EtiquetasMuro, EtiquetasMuroDePlantas, EtiquetasCotasSotanos,
                   EtiquetasMarcosMuroTerreno, EtiquetasRellenoMuro}, {
             {kTx, "TxtQ", 3, "Carga coronación"},
         }),
         MenuDef{"Cimentacion", 6, "mnuMuroH", ""}, kGruposMuroH, &CreaDe<MuroTerreno>},
        {"frmMuroCont", kCamposFrmMuroCont,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Muros de Contención", "Muro Contención 01", kRecubTerreno, kMinimosMuro,
         // TxtQ(5) is the strength of a masonry wall.
         Listas{{"cmbTipo", -1, kTipoMuroContencion}, {"CmbTerreno", -1, kTerreno}, {"CmbTerr", -1, kRellenoContencion}} + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension, Magnitud::Superficie, Magnitud::Superficie, Magnitud::Tension}, Despacho::Registros, true,
         // The retaining wall, of concrete or masonry, with the ground under it and the backfill.
         Visibles({EtiquetasZapata, EtiquetasZapataBajoMuro, EtiquetasRelleno, EtiquetasMuro, EtiquetasMarcosMuroTerreno, EtiquetasRellenoMuro}, {
             {kCb, "cmbTipo", -1, "Tipo de muro"},
             {kCk, "ChkMortero", -1, "Fábrica con mortero"},
             {kTx, "TxtDensFabr", -1, "Densidad fábrica (kg/m3)"},
             {kTx, "TxCoefAcc", -1, "Coef. de mayoración de acciones"},
             {kCb, "CmbTerreno", -1, "Tipo suelo"},
             {kTx, "Text3", -1, "Densidad terreno (kg/m3)"},
             {kTx, "Text2", -1, "Ángulo rozamiento terreno (º)"},
             {kTx, "Text4", -1, "Cohesión terreno"},
             {kTx, "Text5", -1, "Valor de catálogo"},
             {kTx, "txtCohesion", -1, "Cohesión relleno"},
             {kCk, "chkEmpPasivo", -1, "Empuje pasivo"},
             {kTx, "TxtCotaTacon", -1, "Canto del tacón (cm)"},
             {kTx, "TxtCotaSuelo", -1, "Altura del suelo delantero (cm)"},
             {kTx, "TxtQ", 3, "Carga coronación"},
             {kTx, "TxtQ", 0, "Carga coronación N"},
             {kTx, "TxtQ", 1, "Momento coronación M"},
             {kTx, "TxtQ", 5, "Resistencia fábrica"},
             {kTx, "TxCotaMuro", 0, "Altura del muro (cm)"},
             {kTx, "TxCotaMuro", 1, "Espesor en coronación (cm)"},
             {kTx, "TxCotaMuro", 2, "Espesor en base (cm)"},
             {kFr, "UCframeTipo", -1, "Tipo de muro"},
             {kFr, "UCframeTerreno", -1, "Terreno de cimentación"},
         }),
         MenuDef{"Cimentacion", 7, "mnuMuroCont", ""}, kGruposMuroCont, &CreaDe<MuroTerreno>},
        {"frmMuroAnclado", kCamposFrmMuroAnclado,
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Muros Anclados", "Muro Anclado 01", kRecubTerreno, kMinimosMuro,
         // TxtQ(4) to (7) are the tensions of the anchors.
         Listas{{"CmbTalud", -1, kTalud}, {"cmbTerz", -1, kTerrenoAnclado}} + ListasMuro() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension, Magnitud::Superficie, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Superficie}, Despacho::Registros, false,
         // The anchored wall: the ground it holds and, on each level, an anchor.
         Visibles({EtiquetasZapata, EtiquetasZapataBajoMuro, EtiquetasMuro, EtiquetasMuroDePlantas, EtiquetasCotasSotanos,
                   EtiquetasMarcosMuroTerreno}, {
             {kCb, "CmbTalud", -1, "Tipo de terreno"},
             {kTx, "TxtDensidad", -1, "Densidad terreno (kg/m3)"},
             {kTx, "TxtAngulo", -1, "Ángulo rozamiento interno (º)"},
             {kTx, "TxtQ", 3, "Cohesión"},
             {kCb, "cmbTerz", -1, "Terreno para empujes"},
             {kOp, "optEmpuje", -1, "Empuje #"},
             {kTx, "TxtQ", 8, "Carga coronación"},
             {kTx, "TxtQ", 4, "Tensión 1"},
             {kTx, "TxtQ", 5, "Tensión 2"},
             {kTx, "TxtQ", 6, "Tensión 3"},
             {kTx, "TxtQ", 7, "Tensión 4"},
             {kTx, "txtAng", -1, "Ángulo anclaje (º)"},
             {kTx, "TxtSep", -1, "Separación anclajes (cm)"},
             {kTx, "txtAng", 0, "Ángulo 1 (º)"},
             {kTx, "txtAng", 1, "Ángulo 2 (º)"},
             {kTx, "txtAng", 2, "Ángulo 3 (º)"},
             {kTx, "txtAng", 3, "Ángulo 4 (º)"},
             {kTx, "TxtSep", 0, "Separación 1 (cm)"},
             {kTx, "TxtSep", 1, "Separación 2 (cm)"},
             {kTx, "TxtSep", 2, "Separación 3 (cm)"},
             {kTx, "TxtSep", 3, "Separación 4 (cm)"},
             {kFr, "UCframeTerreno", -1, "Terreno"},
             {kFr, "UCSuelo", -1, "Definición de empujes"},
             {kFr, "UCfrSep", -1, "Esquema muro"},
             {kFr, "frmAnclaje", -1, "Anclajes"},
         }),
         MenuDef{"Cimentacion", 8, "mnuMuroAnclado", ""}, kGruposMuroAnclado, &CreaDe<MuroTerreno>},
        {"frmTalud", kCamposFrmTalud,
         // The slope also compares its angle with 90, an upper limit.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Taludes", "Talud 01", kNada, kMinimosTalud,
         Listas{{"CmbTalud", -1, kTalud}},
         {Magnitud::Superficie, Magnitud::Superficie}, Despacho::Registros, true,
         // The soil slope: its ground, its sketch and its drainage.
         Visibles({}, {
             {kCb, "CmbTalud", -1, "Tipo de terreno"},
             {kTx, "TxtDensidad", -1, "Densidad (kg/m3)"},
             {kTx, "TxtAngulo", -1, "Ángulo rozamiento interno (º)"},
             {kTx, "TxtQ", 0, "Sobrecarga"},
             {kTx, "TxtQ", 1, "Cohesión"},
             {kTx, "TxCotaTalud", 0, "Altura del talud (cm)"},
             {kTx, "TxCotaTalud", 1, "Espesor estrato duro (cm)"},
             {kTx, "TxCotaTalud", 2, "Ángulo del talud (º)"},
             {kOp, "optDrenaje", 0, "Sin drenaje"},
             {kOp, "optDrenaje", 1, "Con drenaje efectivo"},
             {kCk, "chkEstrato", -1, "Estrato superficial duro"},
             {kTx, "txCuelgue", -1, "Resultado 1"},
             {kTx, "TxCercos", -1, "Resultado 2"},
             {kFr, "UCframeTerreno", -1, "Terreno"},
             {kFr, "UCframeDrenaje", -1, "Drenaje"},
             {kFr, "UCframeTalud", -1, "Geometría del talud"},
             {kPc, "PicTalud", -1, ""},
         }),
         MenuDef{"Cimentacion", 9, "mnuTalud", ""}, kGruposTalud, &CreaDe<Talud>},
    };
    static_assert(NombresUnicos(tablas), "every form of the family is defined once");
    return tablas;
}

}  // namespace vardena
