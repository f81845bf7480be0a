// Stored fields of the concrete element forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind, design texts.

#include "concrete/PilHorm.h"
#include "concrete/VigHorm.h"
#include "frame/Campos.h"
#include "frame/ControlesVisibles.h"
#include "frame/GruposVentana.h"
#include "frame/Listas.h"

namespace vardena {
namespace {

// Own defaults and minimums of single forms of this family.
constexpr Valor kMinimosUnidireccional[] = {{"txtForj", {{0, 4}}, 0}, {"TxCota", {{0, 3}}, 0}, {"TxLv", {{1, 1}, {2, 2}, {4, 4}, {5, 5}}, 0}};
constexpr Valor kRecubYPosicionInterior[] = {{"CmbRecub", {}, 3}, {"OpPosPil", {{2, 2}}, 1}};
constexpr Valor kRecubYPanelCentral[] = {{"CmbRecub", {}, 3}, {"OpPosPil", {{0, 0}}, 1}};
constexpr Valor kMinimosForjRet[] = {{"txtForj", {{0, 3}}, 0}, {"txtForj", {{5, 8}, {10, 10}, {11, 11}}, 0.5}, {"txtForj", {{9, 9}, {12, 12}, {13, 13}}, 0.1}};
constexpr Valor kMinimosForMaci[] = {{"TxtCanto", {}, 0}, {"txtForj", {{5, 8}, {10, 10}, {11, 11}}, 0.5}, {"txtForj", {{9, 9}, {12, 12}, {13, 13}}, 0.1}};
constexpr Valor kMinimosAbaco[] = {{"LePil", {{0, 0}, {9, 9}, {7, 7}}, 0.5}, {"PilX", {}, 0.2}, {"PilY", {}, 0.2}, {"AbacoX", {}, 0.4}, {"AbacoY", {}, 0.4}};
constexpr Valor kMinimosMensCorta[] = {{"TxCota", {{0, 6}}, 0}};
constexpr Valor kMinimosEscHorm[] = {{"TxCotaH1", {{0, 3}}, 0}, {"TxCotaDesc", {{0, 4}}, 0}, {"TxCotaH2", {{0, 4}}, 0}, {"TxCotaRampa", {{0, 0}}, 0}};


// The concrete beam's window: the beam drawn, the stretches with the load of each beside its
// length and the span's point loads, the sections of the span and of the cantilevers drawn over
// their sizes; each end's cantilever and support, its data and the transverse bending; the bars,
// the optional layers with their lengths; the stirrups under the sections.
constexpr std::string_view kVigHormDatos[] = {"CmbAmbGral", "CmbAmbEspec", "cmbPart", "CmbPlanta"};
constexpr std::string_view kVigHormViga[] = {"PctViga"};
constexpr std::string_view kVigHormIzquierda[] = {"ChVigIzq", "LbVolIzq", "TxCota(0)", "LbCargaVolIzq", "TxtQ(0)",
                                                  "ChPilIzq", "LbPilIzq", "TxtPil(0)"};
constexpr std::string_view kVigHormDerecha[] = {"ChVigDer", "LbVolDer", "TxCota(4)", "LbCargaVolDer", "TxtQ(4)",
                                                "ChPilDer", "LbPilDer", "TxtPil(1)"};
constexpr std::string_view kVigHormTramos[] = {"CmTramos", "TxCota(1)", "TxCota(2)", "TxtQ(1)",   "TxCota(3)",
                                               "TxtQ(2)",  "TxtQ(3)",   "LbCargaP1", "TxtQ(5)", "LbCargaP2", "TxtQ(6)"};
constexpr std::string_view kVigHormSeccion[] = {"PctSeccion", "PictIzq", "PictDer", "TextDviga(0)", "TextDviga(1)"};
constexpr std::string_view kVigHormBarras[] = {"UCArVig"};
constexpr std::string_view kVigHormCapasIzq[] = {"ChArV(1)", "TxLv(1)", "ChArV(2)", "TxLv(2)", "ChArV(3)", "TxLv(3)"};
constexpr std::string_view kVigHormCapasDer[] = {"ChArV(4)", "TxLv(4)", "ChArV(5)", "TxLv(5)", "ChArV(6)", "TxLv(6)"};
constexpr std::string_view kVigHormCapasInf[] = {"ChArV(8)", "TxLv(7)", "TxLv(8)"};
constexpr std::string_view kVigHormCercos[] = {"UCArCer"};
constexpr std::string_view kVigHormTransversal[] = {"ChTrans", "TxCota(5)", "TxCota(6)"};
constexpr GrupoDef kGruposVigHorm[] = {
    {"FrViga", 0, kVigHormViga, {}, 0},           {"FrTramosViga", 0, kVigHormTramos, {}, 0},
    {"FrSeccionViga", 0, kVigHormSeccion, {}, 0}, {"FrCercosViga", 0, kVigHormCercos, {}, 0},
    {"FrIzquierdaViga", 0, kVigHormIzquierda, {}, 1}, {"FrDerechaViga", 0, kVigHormDerecha, {}, 1},
    {"FrDatosViga", 0, kVigHormDatos, {}, 1},     {"UCframeT", 0, kVigHormTransversal, {}, 1},
    {"FrArmadoViga", 0, kVigHormBarras, {}, 2},   {"FrCapasIzqViga", 0, kVigHormCapasIzq, {}, 2},
    {"FrCapasDerViga", 0, kVigHormCapasDer, {}, 2}, {"FrCapasInfViga", 0, kVigHormCapasInf, {}, 2},
};

// The stored fields of each form, in the order of its record.
constexpr CampoDef kCamposFrmVigHorm[] = {
    {"CmbAmbGral", {}, kLista}, {"CmbAmbEspec", {}, kLista}, {"cmbPart", {}, kLista}, {"CmbHorm", {}, kLista},
    {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista}, {"CmbPlanta", {}, kLista},
    {"TxtRes4", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto}, {"txtTitulo", {}, kTexto},
    {"UCArVig", {9}, kNumDiam}, {"TxtPil", {7, 6, 3, 2}, kTexto, {"30"}}, {"ChVigDer", {}, kCasilla}, {"TxLv", {8}, kTexto},
    {"txtCort", {1, 0}, kTexto, {"Compresión oblicua"}}, {"TxCota", {4, 0}, kTexto, {"1.10"}},
    {"TxtQ", {6, 5}, kTexto, {"4"}}, {"UCArCer", {2}, kNumDiamSep}, {"CmTramos", {}, kLista},
    {"TxtQ", {4, 0, 3}, kTexto, {"1", "1", "1.5"}}, {"TxCota", {3}, kTexto, {" 2.00"}}, {"TxtQ", {2}, kTexto, {"1.2"}},
    {"TxCota", {2}, kTexto, {" 2.00"}}, {"UCArVig", {6, 5, 3, 2}, kNumDiam}, {"UCArCer", {1}, kNumDiamSep}, {"UCArVig", {7}, kNumDiam},
    {"ChPilDer", {}, kCasilla}, {"ChPilIzq", {}, kCasilla}, {"ChVigIzq", {}, kCasilla}, {"TxLv", {7}, kTexto},
    {"ChArV", {8, 6, 5, 4, 3, 2, 1}, kCasilla}, {"TxLv", {6, 3}, kTexto}, {"UCArVig", {1, 4, 0}, kNumDiam},
    {"TxtPil", {1, 0}, kTexto, {"30"}}, {"TxLv", {5, 4, 2, 1}, kTexto}, {"TextDviga", {1, 0}, kTexto, {"40", "30"}},
    {"TxCota", {1}, kTexto, {" 5.50"}}, {"TxtQ", {1}, kTexto, {"2.1"}}, {"UCArCer", {0}, kNumDiamSep}, {"UCArVig", {8}, kNumDiam},
    {"TxCota", {5, 6}, kTexto, {"5"}}, {"ChTrans", {}, kCasilla}, {"UCArVig", {10}, kNumDiam}, {"TxtPil", {5, 4}, kTexto, {"30"}},
};
static_assert(CamposBienFormados(kCamposFrmVigHorm));

constexpr CampoDef kCamposFrmVigRegHorm[] = {
    {"CmbAmbEspec", {}, kLista}, {"cmbPart", {}, kLista}, {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista},
    {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista}, {"CmbPlanta", {}, kLista}, {"CmbAmbGral", {}, kLista},
    {"TxtRes4", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto},
    {"txtCotHz", {5}, kTexto, {"1.10"}}, {"optViga", {8, 7, 6, 5, 4, 3, 2, 1}, kOpcion},
    {"txtCotVert", {0}, kTexto, {"1.00"}}, {"txtCotHz", {0}, kTexto, {"1.10"}}, {"txtCotVert", {1, 2, 3}, kTexto, {"5.00"}},
    {"txtCotHz", {1, 2, 3}, kTexto, {"6.00"}}, {"optViga", {0}, kOpcion}, {"txtCotHz", {4}, kTexto, {"6.00"}},
    {"TxRedistr", {}, kTexto, {"15"}}, {"TxtQ", {7}, kTexto, {"800"}}, {"cmbTrPort", {}, kLista}, {"cmbTrForj", {}, kLista},
    {"txtTitulo", {}, kTexto}, {"UCArCer", {1, 0, 2}, kNumDiamSep}, {"UCArVig", {7, 8}, kNumDiam},
    {"TxtPil", {0, 1, 2, 3}, kTexto, {"30"}}, {"txtMom", {0, 1, 2}, kTexto}, {"txtCor", {0, 1}, kTexto},
    {"txtGiro", {0, 1}, kTexto}, {"ChVigDer", {}, kCasilla}, {"TxLv", {8}, kTexto},
    {"txtCort", {1, 0}, kTexto, {"Compresión oblicua"}}, {"TxCota", {4, 0}, kTexto, {"1.10"}},
    {"TxtQ", {6, 5}, kTexto, {"4"}}, {"CmTramos", {}, kLista}, {"TxtQ", {4, 0, 3}, kTexto, {"1", "1", "1.5"}},
    {"TxCota", {3}, kTexto, {" 2.00"}}, {"TxtQ", {2}, kTexto, {"1.2"}}, {"TxCota", {2}, kTexto, {" 2.00"}},
    {"UCArVig", {6, 5, 3, 2}, kNumDiam}, {"ChPilDer", {}, kCasilla}, {"ChPilIzq", {}, kCasilla}, {"ChVigIzq", {}, kCasilla},
    {"TxLv", {7}, kTexto}, {"ChArV", {8, 6, 5, 4, 3, 2, 1}, kCasilla}, {"TxLv", {6, 3}, kTexto}, {"UCArVig", {1, 4, 0}, kNumDiam},
    {"TxLv", {5, 4, 2, 1}, kTexto}, {"TextDviga", {1, 0}, kTexto, {"40", "30"}}, {"TxCota", {1}, kTexto, {" 5.50"}},
    {"TxtQ", {1}, kTexto, {"2.1"}}, {"TxtPil", {5, 4, 7, 6}, kTexto, {"30"}}, {"UCArVig", {9, 10}, kNumDiam},
    {"TxCota", {5, 6}, kTexto, {"1", "5"}}, {"ChTrans", {}, kCasilla},
};
static_assert(CamposBienFormados(kCamposFrmVigRegHorm));

constexpr CampoDef kCamposFrmPilHorm[] = {
    {"CmbPlanta", {}, kLista}, {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista},
    {"CmbHorm", {}, kLista}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto},
    {"txtW", {}, kTexto, {"Cuantía excesiva"}},
    {"LePil", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, kTexto, {"4.50", "4.50", "5.00", "5.00", "4.60", "5.10", "1.10", "1.00"}},
    {"CmbForma", {}, kLista}, {"cmbesviada", {}, kLista}, {"OpPosPil", {2, 1, 0}, kOpcion}, {"txtTitulo", {}, kTexto},
    {"UCArmPilar", {1, 3, 2, 4}, kNumDiam}, {"ChPil", {4, 3}, kCasilla}, {"txtTramo", {4, 3}, kTexto, {"30"}},
    {"UCCercos", {}, kNumDiamSep}, {"txtTramo", {0}, kTexto, {"30"}}, {"UCArmPilar", {0}, kNumDiam}, {"UCNumDiamSep1", {}, kNumDiamSep},
    {"LePil", {12}, kTexto, {"3.10"}}, {"TxtQ", {2, 1, 3, 0}, kTexto, {"40", "0", "800", "0"}}, {"ChPilSup", {}, kCasilla},
};
static_assert(CamposBienFormados(kCamposFrmPilHorm));

// The concrete column's window: its level, its position in plan with the plan of that position,
// the four distances of the chosen position (each position's in a frame of its own, which only
// that position shows), the section and its bars, the stirrups, the loads and the enclosure,
// which only a column on the façade carries. Materials under the level, results last.
constexpr int kMsgGrupoMateriales = 1501;
constexpr std::string_view kPilarNivel[] = {"txtTitulo", "CmbPlanta", "ChPilSup", "LePil(12)"};
constexpr std::string_view kPilarPosicion[] = {"OpPosPil(0)", "OpPosPil(1)", "OpPosPil(2)", "Ptpilar"};
constexpr std::string_view kPilarLucesEsquina[] = {"LePil(0)", "LePil(1)", "LePil(2)", "LePil(3)"};
constexpr std::string_view kPilarLucesBorde[] = {"LePil(8)", "LePil(9)", "LePil(10)", "LePil(11)"};
constexpr std::string_view kPilarLucesCentro[] = {"LePil(4)", "LePil(5)", "LePil(6)", "LePil(7)"};
constexpr std::string_view kPilarSeccion[] = {"PctCuadr", "PctCir", "Pctllave", "CmbForma", "txtTramo", "UCArmPilar", "ChPil", "cmbesviada", "Lbnota"};
constexpr std::string_view kPilarCercos[] = {"UCCercos", "UCNumDiamSep1"};
constexpr std::string_view kPilarEsfuerzos[] = {"TxtQ(2)", "TxtQ(0)", "TxtQ(1)"};
constexpr std::string_view kPilarCerramiento[] = {"LbP1(0)", "TxtQ(3)"};
constexpr std::string_view kPilarResultados[] = {"TxtRes1", "TxtRes2", "TxtRes3", "txtW"};
constexpr GrupoDef kGruposPilHorm[] = {
    {"", kMsgGrupoElemento, kPilarNivel, "", 0},
    {"", kMsgGrupoMateriales, kCamposMateriales, "", 0},
    {"UCframeEsf", 0, kPilarEsfuerzos, "", 0},
    {"LbCer", 0, kPilarCerramiento, "", 0},
    {"UCframePos", 0, kPilarPosicion, "", 1},
    {"UCframeLucesEsq", 0, kPilarLucesEsquina, "", 1},
    {"UCframeLucesBor", 0, kPilarLucesBorde, "", 1},
    {"UCframeLucesCen", 0, kPilarLucesCentro, "", 1},
    {"UCframeDim", 0, kPilarSeccion, "", 2},
    {"UCframeCercos", 0, kPilarCercos, "", 2},
    {"UCframeRes", 0, kPilarResultados, "", 2},
};

constexpr CampoDef kCamposFrmForjUnid[] = {
    {"CmbAmbEspec", {}, kLista}, {"CmbAmbGral", {}, kLista}, {"Combo1", {}, kLista}, {"cmbControl", {}, kLista},
    {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista}, {"CmbPlanta", {}, kLista}, {"CmbRecub", {}, kLista},
    {"TxtRes4", {}, kTexto}, {"TxtRes3", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto},
    {"TxNumVig", {}, kTexto, {"0"}}, {"TxNumFor", {}, kTexto, {"0"}}, {"TXFras", {}, kTexto, {"137.26"}},
    {"TXFcort3", {}, kTexto, {"26.39"}}, {"TXFcort2", {}, kTexto, {"13.19"}}, {"TXFMo2", {}, kTexto, {"11.79"}},
    {"TXFcort1", {}, kTexto, {"18.68"}}, {"TXFMop", {}, kTexto, {"9.33"}}, {"TXFMo", {}, kTexto, {"8.59"}},
    {"TXFrigfis", {}, kTexto, {"5373"}}, {"TXFmod", {}, kTexto, {"1075502"}}, {"TXFbeta", {}, kTexto, {"3.75"}},
    {"TXFrig", {}, kTexto, {"8701"}}, {"TXFmomUlt", {}, kTexto, {"19.61"}}, {"TXFnombre", {}, kTexto, {"V1"}},
    {"txtForj", {4, 2, 3, 1, 0}, kTexto, {"30", "25", "5", "70", "10"}}, {"cmbTipoFor", {}, kLista},
    {"UCMall", {0, 1}, kMallazo}, {"OpSiNo", {0, 1}, kOpcion}, {"txtTitulo", {}, kTexto}, {"OpTramo", {5}, kOpcion},
    {"TxTrAd", {1, 0}, kTexto, {"4.8"}}, {"OpTramo", {0, 1, 2, 3, 4}, kOpcion}, {"OpCort", {1, 0}, kOpcion},
    {"UCArCer", {1}, kNumDiamSep}, {"UCArVig", {3, 0, 7}, kNumDiam}, {"Text1", {}, kTexto, {"Text1"}},
    {"txtBeta", {}, kTexto, {"37.04"}}, {"TxtQ", {9}, kTexto, {"70"}}, {"ChMas2", {}, kCasilla}, {"ChMas1", {}, kCasilla},
    {"TxtQ", {4}, kTexto, {"2050"}}, {"OpAncho", {1, 0}, kOpcion}, {"TxtQ", {3}, kTexto, {"1950"}}, {"OpPosit", {1, 0}, kOpcion},
    {"cmbCercos", {0}, kLista}, {"ChArV", {5}, kCasilla}, {"ChMacizadoDer", {}, kCasilla}, {"ChMacizadoIzq", {}, kCasilla},
    {"TxCota", {3}, kTexto, {"1.10"}}, {"TxtQ", {6}, kTexto, {"0.2"}}, {"ChVigDer", {}, kCasilla}, {"ChVigIzq", {}, kCasilla},
    {"TxtQ", {5}, kTexto, {"0.2"}}, {"TxtPil", {1, 0}, kTexto, {"30"}}, {"TxCota", {0}, kTexto, {"2.00"}},
    {"TxtQ", {8, 7, 1, 2}, kTexto, {"500"}}, {"UCArVig", {5, 2}, kNumDiam}, {"TxLv", {1, 2, 4, 5}, kTexto},
    {"ChArV", {1, 2, 4}, kCasilla}, {"TxtQ", {0}, kTexto, {"0"}}, {"TxCota", {1}, kTexto, {"5.50"}}, {"UCArVig", {1, 4}, kNumDiam},
    {"TxCota", {2}, kTexto, {"1.10"}}, {"TxtPil", {2, 3}, kTexto, {"30"}},
};
static_assert(CamposBienFormados(kCamposFrmForjUnid));

constexpr CampoDef kCamposFrmForjSitu[] = {
    {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista},
    {"CmbPlanta", {}, kLista}, {"cmbPart", {}, kLista}, {"CmbAmbGral", {}, kLista}, {"CmbAmbEspec", {}, kLista},
    {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto}, {"TxtRes4", {}, kTexto}, {"ChMas1", {}, kCasilla},
    {"cmbCercos", {0}, kLista}, {"txtV", {0, 1}, kTexto}, {"ChArV", {5}, kCasilla}, {"ChMacizadoDer", {}, kCasilla},
    {"TxtPil", {3}, kTexto, {"30"}}, {"ChMacizadoIzq", {}, kCasilla}, {"TxCota", {3}, kTexto, {"1.10"}},
    {"TxtQ", {6}, kTexto, {"0.2"}}, {"ChVigDer", {}, kCasilla}, {"ChVigIzq", {}, kCasilla}, {"TxtQ", {5}, kTexto, {"0.2"}},
    {"TxtPil", {1, 0}, kTexto, {"30"}}, {"TxCota", {0}, kTexto, {"2.00"}}, {"TxtQ", {8, 7, 1, 2}, kTexto, {"500"}},
    {"TxLv", {1, 2, 4, 5}, kTexto}, {"ChArV", {1, 2, 4}, kCasilla}, {"TxtQ", {0}, kTexto, {"0"}},
    {"TxCota", {1, 2}, kTexto, {"5.50", "1.10"}}, {"TxtPil", {2}, kTexto, {"30"}}, {"UCArVig", {5, 2, 1, 4}, kNumDiam},
    {"UCArCer", {1, 0}, kNumDiamSep}, {"UCArVig", {7, 0}, kNumDiam}, {"UCMall", {0, 1}, kMallazo},
    {"txtForj", {3, 2, 0, 1, 4}, kTexto, {"5", "25", "10", "70", "30"}}, {"txtTitulo", {}, kTexto}, {"OpTramo", {5}, kOpcion},
    {"TxTrAd", {1, 0}, kTexto, {"4.8"}}, {"OpTramo", {0, 1, 2, 3, 4}, kOpcion},
};
static_assert(CamposBienFormados(kCamposFrmForjSitu));

constexpr CampoDef kCamposFrmForjRet[] = {
    {"txtMf", {9, 10, 11, 6, 7, 8, 3, 4, 5, 2, 1, 0}, kTexto}, {"UCMall", {0}, kMallazo}, {"cmbTipoFor", {}, kLista},
    {"txtForj", {0, 1, 2, 3, 4, 10, 11, 12, 13, 5, 6, 7, 8, 9}, kTexto, {"10", "70", "25", "5", "30", "6.00", "6.00", "1.20"}},
    {"txtTitulo", {}, kTexto}, {"OpAncho", {0, 1}, kOpcion}, {"OpPosPil", {0, 1, 2}, kOpcion}, {"TxtQ", {0}, kTexto, {"800"}},
    {"ChArV", {5}, kCasilla}, {"UCArVig", {1, 3}, kNumDiam}, {"ChArV", {3}, kCasilla}, {"TxLv", {3, 1}, kTexto}, {"ChArV", {1}, kCasilla},
    {"TxLv", {2, 0}, kTexto}, {"UCArVig", {2, 0, 4, 5}, kNumDiam}, {"ChArV", {11}, kCasilla}, {"UCArVig", {7, 9}, kNumDiam},
    {"ChArV", {9}, kCasilla}, {"TxLv", {9, 7}, kTexto}, {"ChArV", {7}, kCasilla}, {"TxLv", {6, 8}, kTexto},
    {"UCArVig", {8, 6, 10, 11, 18, 21, 22, 23, 19}, kNumDiam}, {"TxLv", {19}, kTexto}, {"ChArV", {21}, kCasilla},
    {"TxLv", {21}, kTexto}, {"ChArV", {19, 23}, kCasilla}, {"TxLv", {18, 20}, kTexto}, {"UCArVig", {20}, kNumDiam},
    {"TxLv", {13}, kTexto}, {"UCArVig", {16, 17}, kNumDiam}, {"ChArV", {17}, kCasilla}, {"UCArVig", {12, 13}, kNumDiam},
    {"ChArV", {13}, kCasilla}, {"TxLv", {15}, kTexto}, {"UCArVig", {15}, kNumDiam}, {"ChArV", {15}, kCasilla},
    {"TxLv", {14, 12}, kTexto}, {"UCArVig", {14}, kNumDiam}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista},
    {"CmbHorm", {}, kLista}, {"CmbPlanta", {}, kLista}, {"CmbRecub", {}, kLista}, {"Combo1", {}, kLista}, {"TxtRes3", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmForjRet));

constexpr CampoDef kCamposFrmForMaci[] = {
    {"txtMf", {11, 10, 9, 8, 7, 6, 5, 4, 3, 0, 1, 2}, kTexto}, {"UCMall", {0}, kMallazo}, {"TxtCanto", {}, kTexto, {"20"}},
    {"txtTitulo", {}, kTexto},
    {"txtForj", {10, 11, 12, 13, 5, 6, 7, 8, 9}, kTexto, {"6.00", "6.00", "1.20", "1.20", "6.00", "6.00", "6.00", "6.00"}},
    {"OpPosPil", {0, 1, 2}, kOpcion}, {"TxtQ", {0}, kTexto, {"800"}}, {"UCArVig", {21, 20, 22, 23, 18, 19}, kNumDiam},
    {"TxLv", {19}, kTexto}, {"ChArV", {21}, kCasilla}, {"TxLv", {21}, kTexto}, {"ChArV", {19, 23}, kCasilla},
    {"TxLv", {18, 20}, kTexto}, {"UCArVig", {7, 9, 8, 6, 11, 10}, kNumDiam}, {"ChArV", {11, 9}, kCasilla}, {"TxLv", {9, 7}, kTexto},
    {"ChArV", {7}, kCasilla}, {"TxLv", {6, 8}, kTexto}, {"UCArVig", {3, 1, 2, 0, 5, 4}, kNumDiam}, {"ChArV", {5, 3}, kCasilla},
    {"TxLv", {3, 1}, kTexto}, {"ChArV", {1}, kCasilla}, {"TxLv", {2, 0}, kTexto}, {"UCArVig", {15, 14, 16, 17, 12, 13}, kNumDiam},
    {"TxLv", {13}, kTexto}, {"ChArV", {15}, kCasilla}, {"TxLv", {15}, kTexto}, {"ChArV", {13, 17}, kCasilla},
    {"TxLv", {14, 12}, kTexto}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
    {"CmbPlanta", {}, kLista}, {"CmbRecub", {}, kLista}, {"Combo1", {}, kLista}, {"TxtRes3", {}, kTexto}, {"TxtRes2", {}, kTexto},
    {"TxtRes1", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmForMaci));

constexpr CampoDef kCamposFrmAbaco[] = {
    {"CmbPlanta", {}, kLista}, {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista},
    {"CmbHorm", {}, kLista}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto},
    {"UCArCer", {0, 1}, kNumDiamSep}, {"UCArVig", {1, 3, 0, 2}, kNumDiam}, {"ChMas1Y", {}, kCasilla}, {"ChMas1X", {}, kCasilla},
    {"chkCercosY", {}, kCasilla}, {"cmbCercos", {1}, kLista}, {"chkCercosX", {}, kCasilla}, {"cmbCercos", {0}, kLista},
    {"OpPosPil", {2, 1, 0}, kOpcion}, {"cmbTipoFor", {}, kLista}, {"UCMall", {0}, kMallazo},
    {"txtForj", {0, 4, 1, 2, 3}, kTexto, {"12", "30", "80", "25", "5"}}, {"ArmPunz", {0, 1, 2}, kNumDiam},
    {"TxSep", {2, 1, 0}, kTexto, {"0.15", "0.15", "0.10"}}, {"ChPun", {2, 1, 0}, kCasilla}, {"ArmY", {0, 1}, kNumDiam},
    {"ArmX", {0, 1}, kNumDiam}, {"PilX", {}, kTexto, {"0.3"}}, {"PilY", {}, kTexto, {"0.3"}}, {"ChY", {1, 0}, kCasilla},
    {"ChX", {1, 0}, kCasilla}, {"AbacoX", {}, kTexto, {"2.10"}}, {"AbacoY", {}, kTexto, {"2.10"}}, {"TxtQ", {0}, kTexto, {"800"}},
    {"LePil", {4, 5, 6, 7, 8, 9, 10, 11, 0, 1, 2, 3}, kTexto, {"7.00", "7.00", "0.50", "0.50", "7.00", "0.50", "7.00", "7.00"}},
    {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmAbaco));

constexpr CampoDef kCamposFrmMensCorta[] = {
    {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
    {"TxtRes1", {3, 2, 0, 1}, kTexto}, {"UCArmPrinc", {}, kNumDiam}, {"UCArmCercos", {}, kNumDiam}, {"UCArmColgar", {}, kNumDiam},
    {"Hormig", {}, kLista}, {"TextCtg", {}, kTexto, {"Text2"}}, {"OpTipo", {0, 1, 2, 3}, kOpcion},
    {"TxCota", {6, 5, 0, 3, 4, 2, 1}, kTexto, {"500", "50", "90", "15", "40", "60", "60"}},
    {"TxtQ", {2, 1, 0, 3}, kTexto, {"0", "0", "40", "0"}}, {"txtMom", {}, kTexto}, {"txtCort", {}, kTexto},
    {"txCuelgue", {}, kTexto}, {"TxCercos", {}, kTexto}, {"TxArmado", {}, kTexto}, {"txtTitulo", {}, kTexto},
};
static_assert(CamposBienFormados(kCamposFrmMensCorta));

constexpr CampoDef kCamposFrmVigPared[] = {
    {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista},
    {"CmbPlanta", {}, kLista}, {"txtDat2", {}, kTexto, {"500"}}, {"TxtRes3", {}, kTexto}, {"TxtRes1", {}, kTexto},
    {"TxtRes2", {}, kTexto}, {"txtTitulo", {}, kTexto}, {"ChkPuntual", {}, kCasilla}, {"ChPilIzq", {}, kCasilla},
    {"ChPilDer", {}, kCasilla}, {"ChVigIzq", {}, kCasilla}, {"ChVigDer", {}, kCasilla}, {"TxCota", {4, 0}, kTexto, {"4.00"}},
    {"UCMallazo2", {}, kMallazo}, {"UCMallazo1", {}, kMallazo}, {"Check1", {}, kCasilla}, {"CmTramos", {}, kLista},
    {"TxtQ", {4, 0, 3}, kTexto, {"1", "1", "1.5"}}, {"TxCota", {3}, kTexto, {"1.00"}}, {"TxtQ", {2}, kTexto, {"2.1"}},
    {"TxCota", {2}, kTexto, {" 2.00"}}, {"TxtPil", {1, 0}, kTexto, {"30"}}, {"TextDviga", {1, 0}, kTexto, {"200", "30"}},
    {"TxCota", {1}, kTexto, {"3.50"}}, {"TxtQ", {1}, kTexto, {"2.1"}}, {"UCArVigCen", {}, kNumDiam}, {"UCArVigIzq", {}, kNumDiam},
    {"UCArVigder", {}, kNumDiam},
};
static_assert(CamposBienFormados(kCamposFrmVigPared));

constexpr CampoDef kCamposFrmEscHorm[] = {
    {"TxtRes1", {0, 1}, kTexto}, {"CmbAmbGral", {}, kLista}, {"CmbAmbEspec", {}, kLista}, {"CmbRecub", {}, kLista},
    {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista}, {"OptLosa", {2, 1, 3, 0}, kOpcion},
    {"txtTitulo", {}, kTexto}, {"TxtCanto", {0}, kTexto, {"0.20"}}, {"txtAncho", {0, 1}, kTexto, {"1.00"}},
    {"TxtCanto", {1}, kTexto, {"0.20"}}, {"txtAncho", {2}, kTexto, {"2.10"}}, {"TxtCanto", {2}, kTexto, {"0.20"}},
    {"txtSobrUso", {}, kTexto, {"4.00"}}, {"txtSolado", {}, kTexto, {"1.00"}},
    {"TxCotaRampa", {1, 0}, kTexto, {"1.00", "6.25"}}, {"OptRampaApoIzq", {0, 1, 2}, kOpcion},
    {"OptRampaApoDer", {2, 1, 0}, kOpcion}, {"UCNumDiamRampa", {0, 1, 2}, kNumDiam}, {"UCNumDiamH2", {0}, kNumDiam},
    {"TxCotaH2", {4, 3, 2, 1, 0}, kTexto, {"1.4", "1.4", "1.10", "2.25", "1.10"}},
    {"UCNumDiamH2", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, kNumDiam}, {"OptH2izqS", {0, 1, 2}, kOpcion},
    {"OptH2izqI", {2, 1, 0}, kOpcion}, {"OptH2der", {2, 1, 0}, kOpcion},
    {"TxCotaDesc", {4, 3, 2, 1, 0}, kTexto, {"1.40", "1.40", "2.25", "1.10", "2.25"}},
    {"UCNumDiamDesc", {0, 1, 2, 3, 4, 5}, kNumDiam}, {"OptDApoIzq", {0, 1, 2}, kOpcion}, {"OptDApoDer", {2, 1, 0}, kOpcion},
    {"UCNumDiamH1", {4, 0}, kNumDiam}, {"TxCotaH1", {3, 2, 1, 0}, kTexto, {"2.00", "1.10", "3.10", "1.10"}},
    {"UCNumDiamH1", {1, 2, 3, 5}, kNumDiam}, {"OptH1izq", {2, 1, 0}, kOpcion}, {"OptH1der", {0, 1, 2}, kOpcion},
};
static_assert(CamposBienFormados(kCamposFrmEscHorm));

}  // namespace

std::span<const TablaForm> TablasHormigon()
{
    static constexpr TablaForm tablas[] = {
        {"frmVigHorm", kCamposFrmVigHorm,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Vigas de Hormigón Armado", "Viga Hormigón. P 01-02", kRecubEstructura, kMinimosVano,
         // The first match wins: a form's own list stands before the group it overrides.
         ListasExposicion() + ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza}, Despacho::Registros, true,
         // The beam: its frames, and the picture that the form draws from its fields.
         Visibles({EtiquetasViga, EtiquetasContinuidad, EtiquetasPilaresViga, EtiquetasArmadoViga, EtiquetasVigaHormigon}, {
             {kFr, "FrDatosViga", -1, "Datos iniciales"},
             {kFr, "FrViga", -1, "Viga (longitudes en metros)"},
             {kFr, "FrTramosViga", -1, "Tramos y cargas totales (con.+sobr.) sin mayorar"},
             {kFr, "FrIzquierdaViga", -1, "Extremo izquierdo"},
             {kFr, "FrDerechaViga", -1, "Extremo derecho"},
             {kFr, "FrSeccionViga", -1, "Sección (cm)"},
             {kFr, "FrArmadoViga", -1, "Armado"},
             {kFr, "FrCapasIzqViga", -1, "Capas sobre el apoyo izquierdo"},
             {kFr, "FrCapasDerViga", -1, "Capas sobre el apoyo derecho"},
             {kFr, "FrCapasInfViga", -1, "Barras inferiores adicionales"},
             {kFr, "FrCercosViga", -1, "Cercos (cercos de 2 ramas)"},
             {kFr, "UCframeT", -1, "Estudiar flexión transversal"},
             {kPc, "PctViga", -1, ""},
             {kPc, "PctSeccion", -1, ""},
             {kPc, "PictIzq", -1, ""},
             {kPc, "PictDer", -1, ""},
             {kPc, "ImgApo", 0, ""},
             {kPc, "ImgApo", 1, ""},
             {kCb, "CmTramos", -1, "Nº de tramos de carga"},
             // The names of the fields beside the picture, each side in its own column.
             {kLb, "LbVolIzq", -1, "Voladizo (m)"},
             {kLb, "LbVolDer", -1, "Voladizo (m)"},
             {kLb, "LbCargaVolIzq", -1, "P1 en la punta"},
             {kLb, "LbCargaVolDer", -1, "P2 en la punta"},
             {kLb, "LbPilIzq", -1, "Canto pilar (cm)"},
             {kLb, "LbPilDer", -1, "Canto pilar (cm)"},
             {kLb, "LbCargaP1", -1, "P a 1/3 del vano"},
             {kLb, "LbCargaP2", -1, "P a 2/3 del vano"},
             {kNd, "UCArVig", 0, "Inferior"},
             {kNd, "UCArVig", 1, "Sup. izq. 1"},
             {kNd, "UCArVig", 2, "Sup. izq. 2"},
             {kNd, "UCArVig", 3, "Sup. izq. 3"},
             {kNd, "UCArVig", 4, "Sup. der. 1"},
             {kNd, "UCArVig", 5, "Sup. der. 2"},
             {kNd, "UCArVig", 6, "Sup. der. 3"},
             {kNd, "UCArVig", 7, "Inf. adic. 1"},
             {kNd, "UCArVig", 8, "Inf. adic. 2"},
             {kNd, "UCArVig", 9, "Voladizo izq."},
             {kNd, "UCArVig", 10, "Voladizo der."},
             {kCk, "ChArV", 1, "Sup. izq. 1"}, {kCk, "ChArV", 2, "Sup. izq. 2"}, {kCk, "ChArV", 3, "Sup. izq. 3"},
             {kCk, "ChArV", 4, "Sup. der. 1"}, {kCk, "ChArV", 5, "Sup. der. 2"}, {kCk, "ChArV", 6, "Sup. der. 3"},
             {kCk, "ChArV", 8, "Inf. adicionales"},
             {kNs, "UCArCer", 0, "Tramo izquierdo"},
             {kNs, "UCArCer", 1, "Tramo central"},
             {kNs, "UCArCer", 2, "Tramo derecho"},
         }),
         MenuDef{"Hormigon", 1, "VigasH", "Vigas"}, kGruposVigHorm, &CreaDe<VigHorm>},
        {"frmVigRegHorm", kCamposFrmVigRegHorm,
         {false, true, PasoComprobacion::OchoYSiete, false},
         "Vigas Regulares de Hormigón Armado", "Viga reg. Horm. P 01-02", kRecubEstructura, kMinimosVano,
         Listas{{"cmbPart", -1, kParticionMuros}, {"cmbTrPort", -1, kTramosPortico}, {"cmbTrForj", -1, kTramosForjado}} + ListasExposicion() + ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros, true,
         // The beam of a regular portal frame: the frame around it, besides the beam's own fields.
         Visibles({EtiquetasViga, EtiquetasContinuidad, EtiquetasPilaresViga, EtiquetasArmadoViga, EtiquetasVigaHormigon}, {
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
         }),
         MenuDef{"Hormigon", 2, "VigasHR", "Vigas Regulares"}},
        {"frmPilHorm", kCamposFrmPilHorm,
         {false, false, PasoComprobacion::SinArgumentos, false},
         "Pilares de Hormigón Armado", "Pilar Hormigón 01", kRecubYPosicionInterior, kMinimosPilar,
         ListasPilar() + ListasHormigon(),
         {Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros, true,
         // The frames of the designed window, its plan pictures, section pictures and notes.
         Visibles({EtiquetasPilar, EtiquetasPilarHormigon}, {
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
             {kFr, "UCframeDim", -1, "Dimensiones en cm.   Armadura lateral por cara."},
             {kTx, "txtTramo", 0, "Diámetro (cm)"},
             {kTx, "txtTramo", 3, "Lado b (cm)"},
             {kTx, "txtTramo", 4, "Lado h (cm)"},
             {kNd, "UCArmPilar", 0, "Circular"},
             {kNd, "UCArmPilar", 1, "Cara superior"},
             {kNd, "UCArmPilar", 2, "Cara inferior"},
             {kNd, "UCArmPilar", 3, "Lateral izq."},
             {kNd, "UCArmPilar", 4, "Lateral der."},
             {kCk, "ChPil", 3, "Horquilla lateral izq."},
             {kCk, "ChPil", 4, "Horquilla lateral der."},
             {kCb, "CmbForma", -1, "Forma"},
             {kPc, "PctCuadr", -1, ""},
             {kPc, "PctCir", -1, ""},
             {kPc, "Pctllave", 3, ""},
             {kPc, "Pctllave", 4, ""},
             {kLb, "Lbnota", -1, "Se considera la armadura superior e inferior como la dispuesta para resistir el máximo momento."},
             {kFr, "UCframeCercos", -1, "Cercos pilar"},
             {kFr, "UCframeEsf", -1, "Esfuerzos mayorados"},
             {kLb, "LbCer", -1, "Cerramiento (sin mayorar)"},
             {kLb, "LbP1", 0, "P="},
             {kLb, "LbP1", 2, ""},
             {kFr, "UCframeRes", -1, "Coeficientes seguridad:"},
         }),
         MenuDef{"Hormigon", 3, "PilaresH", "Pilares"}, kGruposPilHorm, &CreaDe<PilHorm>},
        {"frmForjUnid", kCamposFrmForjUnid,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjado Unidireccional", "Forjado Unidir. 01", kRecubEstructura, kMinimosUnidireccional,
         Listas{{"cmbTipoFor", -1, kTipoForjado}, {"cmbCercos", -1, kCortanteUnidireccional}} + ListasForjado() + ListasExposicion() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::MomentoKg, Magnitud::MomentoKg, Magnitud::Lineal, Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::SuperficieKg}, Despacho::Registros, true,
         // The joist slab: with a catalogue sheet or by its dimensions, and the sheet's chosen row.
         Visibles({EtiquetasForjado, EtiquetasContinuidad, EtiquetasPilaresViga}, {
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
         }),
         MenuDef{"Hormigon", 4, "Forjado_Unidireccional", "Forjado Unidireccional"}},
        {"frmForjSitu", kCamposFrmForjSitu,
         // Reasoned title, after the one-way slab's.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjado in situ", "Forjado in situ 01", kRecubEstructura, kMinimosUnidireccional,
         // The cast-in-place slab names its partition list cmbPart, in the place and with the rows
         // of the one-way slab's Combo1.
         Listas{{"cmbCercos", -1, kCortanteInSitu}, {"cmbPart", -1, kParticionMuros}} + ListasExposicion() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::Ninguna, Magnitud::Ninguna, Magnitud::Lineal, Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg}, Despacho::Registros, true,
         Visibles({EtiquetasForjado, EtiquetasContinuidad, EtiquetasPilaresViga}, {
             {kTx, "txtV", -1, "Valor auxiliar #"},
         }),
         MenuDef{"Hormigon", 5, "mnuForjSitu", "Forjado in situ"}},
        {"frmForjRet", kCamposFrmForjRet,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjados Reticular", "Forjado Reticular 01", kRecubYPanelCentral, kMinimosForjRet,
         Listas{{"cmbTipoFor", -1, kCaseton}} + ListasForjado() + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros, true,
         Visibles({EtiquetasLosaBandas}, {
             {kCb, "cmbTipoFor", -1, "Casetón"},
             {kOp, "OpAncho", 0, "por metro"},
             {kOp, "OpAncho", 1, "por nervio"},
             {kTx, "txtForj", 0, "Dimensión forjado 0 (cm)"},
             {kTx, "txtForj", 1, "Dimensión forjado 1 (cm)"},
             {kTx, "txtForj", 2, "Dimensión forjado 2 (cm)"},
             {kTx, "txtForj", 3, "Dimensión forjado 3 (cm)"},
             {kTx, "txtForj", 4, "Canto total (cm)"},
         }),
         MenuDef{"Hormigon", 6, "Forjado_Reticular", "Forjado Reticular"}},
        {"frmForMaci", kCamposFrmForMaci,
         // The solid slab compares its spans as the waffle slab does, and its depth in place of the
         // waffle's depths.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjados Macizos", "Forjado Macizo 01", kRecubYPanelCentral, kMinimosForMaci,
         ListasForjado() + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros, true,
         Visibles({EtiquetasLosaBandas}, {
             {kTx, "TxtCanto", -1, "Canto (cm)"},
         }),
         MenuDef{"Hormigon", 7, "mnuForjMacizo", "Placa maciza"}},
        {"frmAbaco", kCamposFrmAbaco,
         {false, false, PasoComprobacion::SinArgumentos, false},
         "Abacos de Hormigón Armado", "Abaco 01", kRecubYPanelCentral, kMinimosAbaco,
         Listas{{"cmbTipoFor", -1, kCasetonAbaco}, {"cmbCercos", -1, kCortanteNervios}} + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros, true,
         // The drop panel at a column: the column and the panel, their bars, the punching rows, the
         // slab around it and its ribs.
         Visibles({}, {
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
         }),
         MenuDef{"Hormigon", 8, "Abacos", "Ábacos"}},
        {"frmMensCorta", kCamposFrmMensCorta,
         // Reasoned minimums: the corbel's sizes must be positive.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Ménsulas Cortas", "Ménsula 01", kRecubEstructura, kMinimosMensCorta,
         Listas{{"Hormig", -1, kHormigonado}} + ListasHormigon25(),
         {Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Lineal}, Despacho::Registros, true,
         // The short corbel: its kind, its sizes and loads, the casting joint and its bars.
         Visibles({}, {
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
         }),
         MenuDef{"Hormigon", 9, "Mensula", "Ménsula Corta"}},
        {"frmVigPared", kCamposFrmVigPared,
         // The deep beam also compares the column depths with 200, an upper limit, not listed here.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Vigas de Hormigón de Gran Canto", "Viga Pared. Pilar 01-02", kRecubEstructura, kMinimosVano,
         ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza}, Despacho::Registros, false,
         // The deep beam: the spans editor of a beam with its own bars and meshes.
         Visibles({EtiquetasContinuidad, EtiquetasPilaresViga}, {
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
         }),
         MenuDef{"Hormigon", 10, "Vigapared", "Viga Pared"}},
        {"frmEscHorm", kCamposFrmEscHorm,
         {true, true, PasoComprobacion::Bandera, false},
         "Escaleras y Rampas de Hormigón", "Escalera Hormigón 01", kRecubEstructura, kMinimosEscHorm,
         ListasExposicion() + ListasHormigon(),
         {}, Despacho::Registros, true,
         // The concrete stair or ramp: its kind, the slab and landings, the loads, and for each kind
         // its lengths, its bars and the holding of its ends.
         Visibles({EtiquetasEscalera}, {
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
         }),
         MenuDef{"Hormigon", 11, "mnuEscal", "Escaleras"}},
    };
    static_assert(NombresUnicos(tablas), "every form of the family is defined once");
    return tablas;
}

}  // namespace vardena
