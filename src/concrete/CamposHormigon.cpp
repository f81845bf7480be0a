// Stored fields of the concrete element forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind, design texts.

#include <array>

#include "concrete/Abaco.h"
#include "concrete/EscHorm.h"
#include "concrete/ForjUnid.h"
#include "concrete/Losas.h"
#include "concrete/MensCorta.h"
#include "concrete/PilHorm.h"
#include "concrete/VigHorm.h"
#include "concrete/VigPared.h"
#include "concrete/VigRegHorm.h"
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
// A new corbel is a plain one, a new stair a one-flight stair: each window opens on a kind.
constexpr Valor kRecubYMensulaSimple[] = {{"CmbRecub", {}, 3}, {"OpTipo", {{0, 0}}, 1}};
constexpr Valor kRecubYTramo[] = {{"CmbRecub", {}, 3}, {"OptLosa", {{0, 0}}, 1}};
constexpr Valor kMinimosMensCorta[] = {{"TxCota", {{0, 6}}, 0}};
constexpr Valor kMinimosEscHorm[] = {{"TxCotaH1", {{0, 3}}, 0}, {"TxCotaDesc", {{0, 4}}, 0}, {"TxCotaH2", {{0, 4}}, 0}, {"TxCotaRampa", {{0, 0}}, 0}};


// The concrete beam as its window draws it: the frames of the beam, its ends, section and bars,
// the pictures and the names of the fields beside them. The regular beam draws the same beam.
const std::vector<ControlVisible>& EtiquetasDibujoVigaHormigon()
{
    static const std::vector<ControlVisible> filas = {
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
        {kLb, "LbFlexTrans", -1, "Cercos insuficientes a flexión transversal"},
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
    };
    return filas;
}

// The concrete beam's window: the beam drawn, the stretches with the load of each beside its
// length and the span's point loads, the sections of the span and of the cantilevers drawn over
// their sizes; each end's cantilever and support, its data and the transverse bending; the bars,
// the optional layers with their lengths; the stirrups under the sections.
constexpr std::string_view kVigHormDatos[] = {"CmbAmbGral", "CmbAmbEspec", "cmbPart", "CmbPlanta"};
constexpr std::string_view kVigHormViga[] = {"PctViga", "CmTramos"};
constexpr std::string_view kVigHormIzquierda[] = {"ChVigIzq", "LbVolIzq", "TxCota(0)", "LbCargaVolIzq", "TxtQ(0)",
                                                  "ChPilIzq", "LbPilIzq", "TxtPil(0)"};
constexpr std::string_view kVigHormDerecha[] = {"ChVigDer", "LbVolDer", "TxCota(4)", "LbCargaVolDer", "TxtQ(4)",
                                                "ChPilDer", "LbPilDer", "TxtPil(1)"};
// The spans editor as a table: the span, each load stretch with its length and its load, the
// span's point loads.
constexpr std::string_view kVigHormTramos[] = {"TxCota(1)", "",        "TxCota(2)", "TxtQ(1)", "TxCota(3)", "TxtQ(2)",
                                               "",          "TxtQ(3)", "",          "TxtQ(5)", "",          "TxtQ(6)"};
constexpr std::string_view kVigHormTramosColumnas[] = {"", "Longitud (m)", "Carga"};
constexpr std::string_view kVigHormTramosFilas[] = {"Vano entre apoyos", "Tramo 1", "Tramo 2", "Tramo 3",
                                                    "P a 1/3 del vano", "P a 2/3 del vano"};
constexpr std::string_view kVigHormSeccion[] = {"PctSeccion", "PictIzq", "PictDer", "TextDviga(0)", "TextDviga(1)"};
constexpr std::string_view kVigHormBarras[] = {"UCArVig"};
constexpr std::string_view kVigHormCapasIzq[] = {"ChArV(1)", "TxLv(1)", "ChArV(2)", "TxLv(2)", "ChArV(3)", "TxLv(3)"};
constexpr std::string_view kVigHormCapasDer[] = {"ChArV(4)", "TxLv(4)", "ChArV(5)", "TxLv(5)", "ChArV(6)", "TxLv(6)"};
constexpr std::string_view kVigHormCapasInf[] = {"ChArV(8)", "TxLv(7)", "TxLv(8)"};
constexpr std::string_view kVigHormCercos[] = {"UCArCer"};
constexpr std::string_view kVigHormTransversal[] = {"ChTrans", "TxCota(5)", "TxCota(6)"};
constexpr GrupoDef kGruposVigHorm[] = {
    {"FrViga", 0, kVigHormViga, {}, 0},           {"FrTramosViga", 0, kVigHormTramos, {}, 0, false, kVigHormTramosColumnas, kVigHormTramosFilas},
    {"FrSeccionViga", 0, kVigHormSeccion, {}, 0}, {"FrCercosViga", 0, kVigHormCercos, {}, 0},
    {"FrIzquierdaViga", 0, kVigHormIzquierda, {}, 1}, {"FrDerechaViga", 0, kVigHormDerecha, {}, 1},
    {"FrDatosViga", 0, kVigHormDatos, {}, 1},     {"UCframeT", 0, kVigHormTransversal, {}, 1},
    {"FrArmadoViga", 0, kVigHormBarras, {}, 2},   {"FrCapasIzqViga", 0, kVigHormCapasIzq, {}, 2},
    {"FrCapasDerViga", 0, kVigHormCapasDer, {}, 2}, {"FrCapasInfViga", 0, kVigHormCapasInf, {}, 2},
};

// The beam of a regular frame: the plan of the frame with its bays and the nine beams to choose
// beside the beam as frmVigHorm draws it, its data, loads and reinforcement, and the frame's
// forces.
constexpr std::string_view kVigRegEsquema[] = {"Picture2"};
// The frame's bays along it and the slab's across it, with the count of each.
constexpr std::string_view kVigRegLuces[] = {"cmbTrPort",   "cmbTrForj",     "txtCotHz(0)", "txtCotVert(0)",
                                             "txtCotHz(1)", "txtCotVert(1)", "txtCotHz(2)", "txtCotVert(2)",
                                             "txtCotHz(3)", "txtCotVert(3)", "txtCotHz(4)", "",
                                             "txtCotHz(5)", ""};
constexpr std::string_view kVigRegLucesColumnas[] = {"", "Pórtico", "Forjado"};
constexpr std::string_view kVigRegLucesFilas[] = {"Nº de tramos", "Voladizo (m)", "Vano 1 (m)", "Vano 2 (m)",
                                                  "Vano 3 (m)",   "Vano 4 (m)",   "Voladizo derecho (m)"};
constexpr std::string_view kVigRegPortico[] = {"optViga"};
constexpr std::string_view kVigRegDatos[] = {"CmbAmbGral", "CmbAmbEspec", "cmbPart", "CmbPlanta", "TxRedistr"};
constexpr std::string_view kVigRegCerramiento[] = {"TxtQ(7)"};
// The frame's forces at the beam's ends and mid-span.
constexpr std::string_view kVigRegEsfuerzos[] = {"txtMom(0)", "txtCor(0)", "txtGiro(0)", "txtMom(1)", "",
                                                 "",          "txtMom(2)", "txtCor(1)",  "txtGiro(1)"};
constexpr std::string_view kVigRegEsfuerzosColumnas[] = {"", "Momento", "Cortante", "Giro"};
constexpr std::string_view kVigRegEsfuerzosFilas[] = {"Apoyo izquierdo", "Centro del vano", "Apoyo derecho"};
constexpr GrupoDef kGruposVigRegHorm[] = {
    {"FrEsquema", 0, kVigRegEsquema, {}, 0},
    {"FrLucesPortico", 0, kVigRegLuces, {}, 0, false, kVigRegLucesColumnas, kVigRegLucesFilas},
    {"FrPortico", 0, kVigRegPortico, {}, 0},
    {"FrViga", 0, kVigHormViga, {}, 0},               {"FrTramosViga", 0, kVigHormTramos, {}, 0, false, kVigHormTramosColumnas, kVigHormTramosFilas},
    {"FrSeccionViga", 0, kVigHormSeccion, {}, 0},     {"FrCercosViga", 0, kVigHormCercos, {}, 0},
    {"FrIzquierdaViga", 0, kVigHormIzquierda, {}, 1}, {"FrDerechaViga", 0, kVigHormDerecha, {}, 1},
    {"FrDatosViga", 0, kVigRegDatos, {}, 1},          {"FrCerramiento", 0, kVigRegCerramiento, {}, 1},
    {"UCframeT", 0, kVigHormTransversal, {}, 1},      {"FrArmadoViga", 0, kVigHormBarras, {}, 2},
    {"FrCapasIzqViga", 0, kVigHormCapasIzq, {}, 2},   {"FrCapasDerViga", 0, kVigHormCapasDer, {}, 2},
    {"FrCapasInfViga", 0, kVigHormCapasInf, {}, 2},   {"FrEsfuerzos", 0, kVigRegEsfuerzos, {}, 1, false, kVigRegEsfuerzosColumnas, kVigRegEsfuerzosFilas},
};

// The deep beam: the beam drawn with its spans and stretches, its loads, the beams beside it and
// its columns, then its bars and meshes.
constexpr std::string_view kVigParedViga[] = {"PctViga", "CmTramos", "TextDviga"};
constexpr std::string_view kVigParedApoyos[] = {"ChPilIzq", "TxtPil(0)", "ChPilDer", "TxtPil(1)"};
constexpr std::string_view kVigParedContiguas[] = {"ChVigIzq", "TxCota(0)", "ChVigDer", "TxCota(4)"};
// The span and its stretches with the load of each, as the beams' spans editor stands.
constexpr std::string_view kVigParedTramos[] = {"TxCota(1)", "", "TxCota(2)", "TxtQ(1)", "TxCota(3)", "TxtQ(2)", "", "TxtQ(3)"};
constexpr std::string_view kVigParedTramosFilas[] = {"Vano entre apoyos", "Tramo 1", "Tramo 2", "Tramo 3"};
constexpr std::string_view kVigParedCargas[] = {"Check1"};
constexpr std::string_view kVigParedPuntuales[] = {"ChkPuntual", "TxtQ(0)", "TxtQ(4)"};
constexpr std::string_view kVigParedDatos[] = {"txtDat2"};
constexpr std::string_view kVigParedArmado[] = {"UCArVigIzq", "UCArVigCen", "UCArVigder", "UCMallazo1", "UCMallazo2"};
constexpr GrupoDef kGruposVigPared[] = {
    {"FrViga", 0, kVigParedViga, {}, 0},
    {"FrTramosViga", 0, kVigParedTramos, {}, 0, false, kVigHormTramosColumnas, kVigParedTramosFilas},
    {"FrCargasViga", 0, kVigParedCargas, {}, 0},
    {"FrApoyosViga", 0, kVigParedApoyos, {}, 1},
    {"FrContiguas", 0, kVigParedContiguas, {}, 1},
    {"FrPuntualesViga", 0, kVigParedPuntuales, {}, 1},
    {"FrDatosViga", 0, kVigParedDatos, {}, 1},
    {"FrArmadoViga", 0, kVigParedArmado, {}, 2},
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
    {"LePil", {0, 1, 2, 3, 4, 5, 6, 7}, kTexto, {"4.50", "4.50", "5.00", "5.00", "4.60", "5.10", "1.10", "1.00"}},
    {"LePil", {8, 9, 10, 11}, kTexto, {"5.15", "1.00", "4.50", "4.50"}},
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
constexpr std::string_view kPilarSeccion[] = {"PctCuadr", "PctCir", "Pctllave", "CmbForma", "txtTramo", "UCArmPilar", "ChPil", "cmbesviada", "Lbnota"};
constexpr std::string_view kPilarCercos[] = {"UCCercos", "UCNumDiamSep1"};
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

// The one-way slab's window: the exposure and partitions, the slab kind with its sheet, the
// section drawn beside its depths, the sheet's row, the stretch drawn beside its lengths, the
// loads and the reinforcement. The cast-in-place sibling has no kind and no sheet.
constexpr std::string_view kForjUnidDatos[] = {"CmbAmbGral", "CmbAmbEspec", "Combo1"};
constexpr std::string_view kForjSituDatos[] = {"CmbAmbGral", "CmbAmbEspec", "cmbPart"};
constexpr std::string_view kForjTipo[] = {"cmbTipoFor", "OpSiNo(0)", "OpSiNo(1)", "ListViguetas", "UCFicha", "TxNumFor", "TxNumVig"};
constexpr std::string_view kForjSeccion[] = {"PctSeccion", "txtForj"};
constexpr std::string_view kForjFicha[] = {"TXFnombre", "TXFmod", "TXFbeta", "TXFmomUlt", "TXFrig", "TXFrigfis"};
constexpr std::string_view kForjFichaServicio[] = {"TXFMo", "TXFMop", "TXFMo2", "txtBeta"};
constexpr std::string_view kForjFichaCortante[] = {"TXFcort1", "TXFcort2", "TXFcort3", "TXFras"};
constexpr std::string_view kForjTramo[] = {"PctTramo", "lblTramo", "OpTramo", "TxCota(1)", "TxCota(0)", "TxCota(2)", "TxCota(3)",
                                           "TxTrAd", "ChVigIzq", "ChVigDer", "ChMacizadoIzq", "ChMacizadoDer", "TxtPil"};
constexpr std::string_view kForjCargas[] = {"TxtQ(1)", "TxtQ(2)", "TxtQ(7)", "TxtQ(8)", "TxtQ(9)"};
constexpr std::string_view kForjOtrasCargas[] = {"TxtQ(0)", "TxtQ(5)", "TxtQ(6)", "TxtQ(3)", "TxtQ(4)"};
constexpr std::string_view kForjArmado[] = {"UCMall", "UCArVig", "ChArV", "TxLv", "ChMas1", "ChMas2", "OpPosit", "OpAncho"};
constexpr std::string_view kForjCortante[] = {"cmbCercos", "OpCort", "UCArCer"};
constexpr GrupoDef kGruposForjUnid[] = {
    {"UCframeDatosForj", 0, kForjUnidDatos, {}, 0}, {"UCframeTipoForj", 0, kForjTipo, {}, 0},
    {"UCframeCargasForj", 0, kForjCargas, {}, 0},   {"UCframeOtrasCargasForj", 0, kForjOtrasCargas, {}, 0},
    {"UCframeSeccionForj", 0, kForjSeccion, {}, 1}, {"UCframeTramoForj", 0, kForjTramo, {}, 1},     {"UCframeFichaForj", 0, kForjFicha, {}, 2},
    {"UCframeServicioForj", 0, kForjFichaServicio, {}, 2}, {"UCframeCorteForj", 0, kForjFichaCortante, {}, 2},
    {"UCframeArmadoForj", 0, kForjArmado, {}, 2},   {"UCframeCortanteForj", 0, kForjCortante, {}, 2},
};
constexpr GrupoDef kGruposForjSitu[] = {
    {"UCframeDatosForj", 0, kForjSituDatos, {}, 0}, {"UCframeCargasForj", 0, kForjCargas, {}, 0},
    {"UCframeOtrasCargasForj", 0, kForjOtrasCargas, {}, 0},
    {"UCframeSeccionForj", 0, kForjSeccion, {}, 1}, {"UCframeTramoForj", 0, kForjTramo, {}, 1},
    {"UCframeArmadoForj", 0, kForjArmado, {}, 2},   {"UCframeCortanteForj", 0, kForjCortante, {}, 2},
};
// Their frames, the parts of the depth and the positions of the stretch.
const std::vector<ControlVisible>& MarcosForjado()
{
    static const std::vector<ControlVisible> filas = {
        {kFr, "UCframeDatosForj", -1, "Datos iniciales"}, {kFr, "UCframeCargasForj", -1, "Cargas por superficie"},
        {kFr, "UCframeOtrasCargasForj", -1, "Cargas lineales y momentos"},
        {kFr, "UCframeSeccionForj", -1, "Dimensiones en cm."}, {kFr, "UCframeTramoForj", -1, "Tramo"},
        {kFr, "UCframeArmadoForj", -1, "Armado"}, {kFr, "UCframeCortanteForj", -1, "Cortante"},
        {kTx, "txtForj", 0, "Ancho vigueta"}, {kTx, "txtForj", 1, "Intereje"}, {kTx, "txtForj", 2, "Canto bovedilla"},
        {kTx, "txtForj", 3, "Capa compresión"}, {kTx, "txtForj", 4, "Canto total"},
        {kOp, "OpTramo", 0, "Tramo aislado"}, {kOp, "OpTramo", 1, "Continuo, extremo izq."},
        {kOp, "OpTramo", 2, "Continuo, extremo der."}, {kOp, "OpTramo", 3, "Continuo, interior"},
        {kOp, "OpTramo", 4, "Aislado, voladizo izq."}, {kOp, "OpTramo", 5, "Aislado, voladizo der."},
    };
    return filas;
}

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

// The two-way slabs' windows: the panel's level and partition, its position with the plan of that
// position and its spans; the bands, each band's bars in a frame of its own that only the chosen
// band shows, with the band drawn along its span; the slab's own data (the waffle slab's panel
// opens over the form); the results panel that opens after a save, a frame a band.
constexpr std::string_view kLosaPosicion[] = {"OpPosPil(0)", "OpPosPil(1)", "OpPosPil(2)", "PctFRPlan"};
constexpr std::string_view kLosaLucesCentro[] = {"txtForj(5)", "txtForj(6)"};
constexpr std::string_view kLosaLucesBorde[] = {"txtForj(7)", "txtForj(8)", "txtForj(9)"};
constexpr std::string_view kLosaLucesEsquina[] = {"txtForj(10)", "txtForj(11)", "txtForj(12)", "txtForj(13)"};
constexpr std::string_view kLosaCerramiento[] = {"LbP1(0)", "TxtQ(0)"};
constexpr std::string_view kLosaDirX[] = {"CmBanda(0)", "CmBanda(1)"};
constexpr std::string_view kLosaDirY[] = {"CmBanda(2)", "CmBanda(3)"};
constexpr std::string_view kLosaBanda[] = {"LbBAnda", "PctViga"};
constexpr std::string_view kLosaBanda0[] = {"UCArVig(0)", "TxLv(0)", "ChArV(1)", "UCArVig(1)", "TxLv(1)", "UCArVig(2)", "TxLv(2)", "ChArV(3)", "UCArVig(3)", "TxLv(3)", "UCArVig(4)", "TxLv(4)", "ChArV(5)", "UCArVig(5)", "TxLv(5)"};
constexpr std::string_view kLosaBanda1[] = {"UCArVig(6)", "TxLv(6)", "ChArV(7)", "UCArVig(7)", "TxLv(7)", "UCArVig(8)", "TxLv(8)", "ChArV(9)", "UCArVig(9)", "TxLv(9)", "UCArVig(10)", "TxLv(10)", "ChArV(11)", "UCArVig(11)", "TxLv(11)"};
constexpr std::string_view kLosaBanda2[] = {"UCArVig(12)", "TxLv(12)", "ChArV(13)", "UCArVig(13)", "TxLv(13)", "UCArVig(14)", "TxLv(14)", "ChArV(15)", "UCArVig(15)", "TxLv(15)", "UCArVig(16)", "TxLv(16)", "ChArV(17)", "UCArVig(17)", "TxLv(17)"};
constexpr std::string_view kLosaBanda3[] = {"UCArVig(18)", "TxLv(18)", "ChArV(19)", "UCArVig(19)", "TxLv(19)", "UCArVig(20)", "TxLv(20)", "ChArV(21)", "UCArVig(21)", "TxLv(21)", "UCArVig(22)", "TxLv(22)", "ChArV(23)", "UCArVig(23)", "TxLv(23)"};
constexpr std::string_view kLosaMallazo[] = {"UCMall", "LbMall"};
constexpr std::string_view kLosaResultados[] = {"Command2"};
constexpr std::string_view kLosaRes0[] = {"txtMf(0)", "txtMf(1)", "txtMf(2)"};
constexpr std::string_view kLosaRes1[] = {"txtMf(3)", "txtMf(4)", "txtMf(5)"};
constexpr std::string_view kLosaRes2[] = {"txtMf(6)", "txtMf(7)", "txtMf(8)"};
constexpr std::string_view kLosaRes3[] = {"txtMf(9)", "txtMf(10)", "txtMf(11)"};
constexpr std::string_view kRetNivel[] = {"txtTitulo", "CmbPlanta", "Combo1", "Command1"};
constexpr std::string_view kRetForjado[] = {"cmbTipoFor", "PtFor",      "txtForj(0)", "txtForj(1)", "txtForj(2)",
                                            "txtForj(3)", "txtForj(4)", "OpAncho",    "Command3"};
constexpr std::string_view kMaciNivel[] = {"txtTitulo", "CmbPlanta", "Combo1", "TxtCanto"};
// The groups of a window: its own, then those it shares with its siblings.
template <size_t N, size_t M>
consteval std::array<GrupoDef, N + M> UneGrupos(const GrupoDef (&a)[N], const GrupoDef (&b)[M])
{
    std::array<GrupoDef, N + M> out{};
    for (size_t i = 0; i < N; ++i)
        out[i] = a[i];
    for (size_t i = 0; i < M; ++i)
        out[N + i] = b[i];
    return out;
}
constexpr GrupoDef kGruposLosa[] = {
    {"", kMsgGrupoMateriales, kCamposMateriales, "Frm1", 2}, {"UCframePos", 0, kLosaPosicion, "Frm1", 0},
    {"UCframeLucesCen", 0, kLosaLucesCentro, "Frm1", 0},     {"UCframeLucesBor", 0, kLosaLucesBorde, "Frm1", 0},
    {"UCframeLucesEsq", 0, kLosaLucesEsquina, "Frm1", 0},    {"LbCer", 0, kLosaCerramiento, "Frm1", 0},
    {"Frame1", 0, kLosaDirX, "Picture1", 1},                 {"Frame22", 0, kLosaDirY, "Picture1", 1},
    {"Picture1", 0, kLosaBanda, "Frm1", 1},                  {"FrBanda0", 0, kLosaBanda0, "Picture1", 1},
    {"FrBanda1", 0, kLosaBanda1, "Picture1", 1},             {"FrBanda2", 0, kLosaBanda2, "Picture1", 1},
    {"FrBanda3", 0, kLosaBanda3, "Picture1", 1},             {"FrMallazo", 0, kLosaMallazo, "Frm1", 2},
    {"UCfrRes", 0, kLosaResultados, "", 2},                  {"FrRes0", 0, kLosaRes0, "UCfrRes", 2},
    {"FrRes1", 0, kLosaRes1, "UCfrRes", 2},                  {"FrRes2", 0, kLosaRes2, "UCfrRes", 2},
    {"FrRes3", 0, kLosaRes3, "UCfrRes", 2},                  {"UCframe2", 0, kCamposResultados, "", 2},
};
constexpr GrupoDef kGruposForjRetPropios[] = {{"", kMsgGrupoElemento, kRetNivel, "Frm1", 0}, {"UCfrFor", 0, kRetForjado, "", 2}};
constexpr GrupoDef kGruposForMaciPropios[] = {{"", kMsgGrupoElemento, kMaciNivel, "Frm1", 0}};
constexpr auto kGruposForjRet = UneGrupos(kGruposForjRetPropios, kGruposLosa);
constexpr auto kGruposForMaci = UneGrupos(kGruposForMaciPropios, kGruposLosa);

// The drop panel's window: the column's level and position with its plan and distances, the
// enclosure; the column and the panel with their bars, the punching rows; the ribs around it and
// the slab's panel that opens over the form.
constexpr std::string_view kAbacoNivel[] = {"txtTitulo", "CmbPlanta", "Command1"};
constexpr std::string_view kAbacoPosicion[] = {"OpPosPil(0)", "OpPosPil(1)", "OpPosPil(2)", "Ptpilar"};
constexpr std::string_view kAbacoLucesCentro[] = {"LePil(0)", "LePil(1)", "LePil(2)", "LePil(3)"};
constexpr std::string_view kAbacoLucesBorde[] = {"LePil(9)", "LePil(8)", "LePil(11)", "LePil(10)"};
constexpr std::string_view kAbacoLucesEsquina[] = {"LePil(7)", "LePil(5)", "LePil(4)", "LePil(6)"};
constexpr std::string_view kAbacoCerramiento[] = {"LbP1(0)", "TxtQ(0)"};
constexpr std::string_view kAbacoDimensiones[] = {"PilX",   "PilY",    "AbacoX", "AbacoY",  "ChX(0)", "ArmX(0)",
                                                  "ChX(1)", "ArmX(1)", "ChY(0)", "ArmY(0)", "ChY(1)", "ArmY(1)"};
constexpr std::string_view kAbacoPunzonamiento[] = {"ChPun(0)",   "ArmPunz(0)", "TxSep(0)", "ChPun(1)", "ArmPunz(1)",
                                                    "TxSep(1)",   "ChPun(2)",   "ArmPunz(2)", "TxSep(2)"};
constexpr std::string_view kAbacoNervios[] = {"UCArVig(0)", "UCArVig(1)",   "ChMas1X",    "UCArVig(2)",
                                              "UCArVig(3)", "ChMas1Y",      "chkCercosX", "cmbCercos(0)",
                                              "UCArCer(0)", "chkCercosY",   "cmbCercos(1)", "UCArCer(1)"};
constexpr std::string_view kAbacoForjado[] = {"cmbTipoFor", "PtFor", "txtForj", "UCMall", "Command3"};
constexpr GrupoDef kGruposAbaco[] = {
    {"", kMsgGrupoElemento, kAbacoNivel, "Frm1", 0}, {"", kMsgGrupoMateriales, kCamposMateriales, "Frm1", 0},
    {"Label2", 0, kAbacoPosicion, "Frm1", 0},        {"UCframeLucesCen", 0, kAbacoLucesCentro, "Frm1", 0},
    {"UCframeLucesBor", 0, kAbacoLucesBorde, "Frm1", 0}, {"UCframeLucesEsq", 0, kAbacoLucesEsquina, "Frm1", 0},
    {"Label7", 0, kAbacoCerramiento, "Frm1", 0},
    {"Picture1", 0, kAbacoDimensiones, "Frm1", 1},   {"FrPunz", 0, kAbacoPunzonamiento, "Frm1", 1},
    {"frmNervios", 0, kAbacoNervios, "Frm1", 2},     {"UCfrFor", 0, kAbacoForjado, "", 2},
    {"UCframe2", 0, kCamposResultados, "", 2},
};

// The corbel's window: its kind and casting joint; its sketch beside its sizes; the loads with
// the beam's moment and shear; the bars and what they came to.
constexpr std::string_view kMensulaTipo[] = {"OpTipo(0)", "OpTipo(1)", "OpTipo(2)", "OpTipo(3)"};
constexpr std::string_view kMensulaHormigonado[] = {"Hormig", "TextCtg"};
constexpr std::string_view kMensulaCotas[] = {"PictureM", "PictureV"};
constexpr std::string_view kMensulaDimensiones[] = {"TxCota(0)", "TxCota(1)", "TxCota(2)", "TxCota(3)", "TxCota(4)", "TxCota(5)"};
constexpr std::string_view kMensulaCargas[] = {"TxtQ(0)", "TxtQ(1)", "TxtQ(2)", "TxtQ(3)", "TxCota(6)", "txtMom", "txtCort"};
constexpr std::string_view kMensulaArmado[] = {"UCArmPrinc", "UCArmCercos", "LbColgar2", "UCArmColgar"};
constexpr std::string_view kMensulaArmaduras[] = {"TxArmado", "TxCercos", "txCuelgue"};
constexpr GrupoDef kGruposMensCorta[] = {
    {"", kMsgGrupoElemento, kCamposIdentidad, "Frm1", 0}, {"", kMsgGrupoMateriales, kCamposMateriales, "Frm1", 0},
    {"FrTipologia", 0, kMensulaTipo, "Frm1", 0},        {"FrHormigonado", 0, kMensulaHormigonado, "Frm1", 0},
    {"FrCotas", 0, kMensulaCotas, "Frm1", 1},           {"FrDimMensula", 0, kMensulaDimensiones, "Frm1", 1},
    {"FrCargas", 0, kMensulaCargas, "Frm1", 1},
    {"FrArmado", 0, kMensulaArmado, "Frm1", 2},         {"FrArmaduras", 0, kMensulaArmaduras, "", 2},
    {"UCframe2", 0, kCamposResultados, "", 2},
};

// The stair's window: its exposure, kind, slab and landings, and loads; the kind chosen, its
// sketch with its lengths, end conditions and bars in a frame of its own.
constexpr std::string_view kEscExposicion[] = {"CmbAmbGral", "CmbAmbEspec"};
constexpr std::string_view kEscTipo[] = {"OptLosa(0)", "OptLosa(1)", "OptLosa(2)", "OptLosa(3)"};
constexpr std::string_view kEscDimensiones[] = {"TxtCanto(0)", "txtAncho(0)", "Label3",      "TxtCanto(1)",
                                                "txtAncho(1)", "Label7",      "TxtCanto(2)", "txtAncho(2)"};
constexpr std::string_view kEscCargas[] = {"txtSobrUso", "txtSolado", "Label10"};
constexpr std::string_view kEscH1[] = {"PictH1", "TxCotaH1"};
constexpr std::string_view kEscDesc[] = {"PictHD", "TxCotaDesc"};
constexpr std::string_view kEscH2[] = {"PictH2", "TxCotaH2"};
constexpr std::string_view kEscRampa[] = {"PictRampa", "TxCotaRampa", "LbAstExpl"};
constexpr std::string_view kEscH1Armado[] = {"OptH1izq", "OptH1der", "UCNumDiamH1"};
constexpr std::string_view kEscDescArmado[] = {"OptDApoIzq", "OptDApoDer", "UCNumDiamDesc"};
constexpr std::string_view kEscH2Armado[] = {"OptH2izqI", "OptH2izqS", "OptH2der", "UCNumDiamH2"};
constexpr std::string_view kEscRampaArmado[] = {"OptRampaApoIzq", "OptRampaApoDer", "UCNumDiamRampa"};
// The heading of the ends and bars of the kind chosen.
constexpr int kMsgApoyosYArmado = 1664;
constexpr GrupoDef kGruposEscHorm[] = {
    {"", kMsgGrupoElemento, kCamposIdentidad, "Frm1", 0}, {"", kMsgGrupoMateriales, kCamposMateriales, "Frm1", 0},
    {"FrExposicion", 0, kEscExposicion, "Frm1", 0},     {"FrTipoLosa", 0, kEscTipo, "Frm1", 0},
    {"FrDimensiones", 0, kEscDimensiones, "Frm1", 0},   {"FrCargasLosa", 0, kEscCargas, "Frm1", 0},
    {"UCframeH1", 0, kEscH1, "Frm1", 1},                {"UCframeDesc", 0, kEscDesc, "Frm1", 1},
    {"UCframeH2", 0, kEscH2, "Frm1", 1},                {"UCframeRampa", 0, kEscRampa, "Frm1", 1},
    {"", kMsgApoyosYArmado, kEscH1Armado, "UCframeH1", 2},       {"", kMsgApoyosYArmado, kEscDescArmado, "UCframeDesc", 2},
    {"", kMsgApoyosYArmado, kEscH2Armado, "UCframeH2", 2},       {"", kMsgApoyosYArmado, kEscRampaArmado, "UCframeRampa", 2},
    {"UCframe2", 0, kCamposResultados, "", 2},
};

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
         Visibles({EtiquetasViga, EtiquetasContinuidad, EtiquetasPilaresViga, EtiquetasArmadoViga, EtiquetasVigaHormigon,
                   EtiquetasDibujoVigaHormigon}),
         MenuDef{"Hormigon", 1, "VigasH", "Vigas"}, kGruposVigHorm, &CreaDe<VigHorm>},
        {"frmVigRegHorm", kCamposFrmVigRegHorm,
         {false, true, PasoComprobacion::OchoYSiete, false},
         "Vigas Regulares de Hormigón Armado", "Viga reg. Horm. P 01-02", kRecubEstructura, kMinimosVano,
         Listas{{"cmbPart", -1, kParticionMuros}, {"cmbTrPort", -1, kTramosPortico}, {"cmbTrForj", -1, kTramosForjado}} + ListasExposicion() + ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros, true,
         // The beam of a regular portal frame: the frame around it, besides the beam's own fields.
         Visibles({EtiquetasViga, EtiquetasContinuidad, EtiquetasPilaresViga, EtiquetasArmadoViga, EtiquetasVigaHormigon,
                   EtiquetasDibujoVigaHormigon}, {
             {kCb, "cmbTrPort", -1, "Nº tramos pórtico"},
             {kCb, "cmbTrForj", -1, "Nº tramos forjado"},
             {kFr, "FrEsquema", -1, "Esquema en planta"},
             {kFr, "FrLucesPortico", -1, "Luces en planta"},
             {kPc, "Picture2", -1, ""},
             {kFr, "FrPortico", -1, "Pórtico"},
             {kFr, "FrCerramiento", -1, "Cerramiento perimetral"},
             {kFr, "FrEsfuerzos", -1, "Esfuerzos del pórtico"},
             {kTx, "txtCotHz", -1, "Luces en planta (m)"},
             {kTx, "txtCotHz", 0, "Voladizo izquierdo (m)"},
             {kTx, "txtCotHz", 1, "Vano 1 (m)"},
             {kTx, "txtCotHz", 2, "Vano 2 (m)"},
             {kTx, "txtCotHz", 3, "Vano 3 (m)"},
             {kTx, "txtCotHz", 4, "Vano 4 (m)"},
             {kTx, "txtCotHz", 5, "Voladizo derecho (m)"},
             {kTx, "txtCotVert", -1, "Luces transversales (m)"},
             {kTx, "txtCotVert", 0, "Voladizo del forjado (m)"},
             {kTx, "txtCotVert", 1, "Luz forjado 1 (m)"},
             {kTx, "txtCotVert", 2, "Luz forjado 2 (m)"},
             {kTx, "txtCotVert", 3, "Luz forjado 3 (m)"},
             {kOp, "optViga", -1, "Viga #"},
             {kOp, "optViga", 0, "Viga 1"}, {kOp, "optViga", 1, "Viga 2"}, {kOp, "optViga", 2, "Viga 3"},
             {kOp, "optViga", 3, "Viga 4"}, {kOp, "optViga", 4, "Viga 5"}, {kOp, "optViga", 5, "Viga 6"},
             {kOp, "optViga", 6, "Viga 7"}, {kOp, "optViga", 7, "Viga 8"}, {kOp, "optViga", 8, "Viga 9"},
             {kTx, "TxRedistr", -1, "Redistribución plástica (%)"},
             {kTx, "TxtQ", 7, "Cerramiento perimetral (sin mayorar)"},
             {kTx, "txtMom", -1, "Momento"},
             {kTx, "txtCor", -1, "Cortante"},
             {kTx, "txtGiro", -1, "Giro"},
         }),
         MenuDef{"Hormigon", 2, "VigasHR", "Vigas Regulares"}, kGruposVigRegHorm, &CreaDe<VigRegHorm>},
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
         Visibles({EtiquetasForjado, EtiquetasContinuidad, EtiquetasPilaresViga, MarcosForjado}, {
             {kCb, "Combo1", -1, "Partición"},
             {kCb, "cmbTipoFor", -1, "Tipo forjado"},
             {kOp, "OpSiNo", -1, "Datos de fichas"},
             {kOp, "OpSiNo", 0, "Sí"},
             {kOp, "OpSiNo", 1, "No"},
             {kTx, "TXFnombre", -1, "Vigueta"},
             {kTx, "TXFmod", -1, "Módulo resistente (cm3/m)"},
             {kTx, "TXFbeta", -1, "β de la ficha"},
             {kTx, "TXFmomUlt", -1, "Momento último (m·kN/m)"},
             {kTx, "TXFrig", -1, "E·Ih (m2·kN/m)"},
             {kTx, "TXFrigfis", -1, "E·Ifis (m2·kN/m)"},
             {kTx, "TXFMo", -1, "Mo"},
             {kTx, "TXFMop", -1, "Mo'"},
             {kTx, "TXFMo2", -1, "Mo2"},
             {kTx, "TXFcort1", -1, "Vu (1)"},
             {kTx, "TXFcort2", -1, "Vu (2)"},
             {kTx, "TXFcort3", -1, "Vu (3)"},
             {kTx, "TXFras", -1, "Rasante Vu"},
             {kTx, "TxNumVig", -1, "Nº de vigueta en la ficha"},
             {kTx, "TxNumFor", -1, "Nº de forjado en la ficha"},
             {kOp, "OpCort", 0, "Cortante máximo"},
             {kOp, "OpCort", 1, "Armado a cortante"},
             {kCk, "ChMas2", -1, "Opción de armado 2"},
             {kOp, "OpPosit", -1, "Opción de apoyo #"},
             {kOp, "OpAncho", -1, "Opción de ancho #"},
             {kTx, "txtBeta", -1, "Coeficiente β"},
             {kTx, "Text1", -1, "Texto auxiliar"},
             {Kind::ListBox, "ListViguetas", -1, ""},
             {kBt, "UCFicha", -1, "Fichas forjados"},
             {kPc, "PtFor", 0, ""}, {kPc, "PtFor", 1, ""}, {kPc, "PtFor", 2, ""},
             {kPc, "PctFicha", -1, ""}, {kPc, "PctnoFicha", -1, ""},
             {kPc, "PctCotaTrAdy", 0, ""}, {kPc, "PctCotaTrAdy", 1, ""},
             {kLb, "lblTramo", -1, "Aislado"},
             {kPc, "PctSeccion", -1, ""}, {kPc, "PctTramo", -1, ""},
             {kFr, "UCframeTipoForj", -1, "Tipo forjado"}, {kFr, "UCframeFichaForj", -1, "Datos de fichas"},
             {kFr, "UCframeServicioForj", -1, "Momento servicio según clase exp. (m·kN/m)"},
             {kFr, "UCframeCorteForj", -1, "CORTANTE (kN/m)"},
         }),
         MenuDef{"Hormigon", 4, "Forjado_Unidireccional", "Forjado Unidireccional"}, kGruposForjUnid, &CreaDe<ForjUnid>},
        {"frmForjSitu", kCamposFrmForjSitu,
         // Reasoned title, after the one-way slab's.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjado in situ", "Forjado in situ 01", kRecubEstructura, kMinimosUnidireccional,
         // The cast-in-place slab names its partition list cmbPart, in the place and with the rows
         // of the one-way slab's Combo1.
         Listas{{"cmbCercos", -1, kCortanteInSitu}, {"cmbPart", -1, kParticionMuros}} + ListasExposicion() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::Ninguna, Magnitud::Ninguna, Magnitud::Lineal, Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg}, Despacho::Registros, true,
         Visibles({EtiquetasForjado, EtiquetasContinuidad, EtiquetasPilaresViga, MarcosForjado}, {
             {kTx, "txtV", -1, "Valor auxiliar #"},
             {kPc, "PctCotaTrAdy", 0, ""}, {kPc, "PctCotaTrAdy", 1, ""},
             {kLb, "lblTramo", -1, "Aislado"},
             {kPc, "PctSeccion", -1, ""}, {kPc, "PctTramo", -1, ""},
         }),
         MenuDef{"Hormigon", 5, "mnuForjSitu", "Forjado in situ"}, kGruposForjSitu, &CreaDe<ForjUnid>},
        {"frmForjRet", kCamposFrmForjRet,
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjados Reticular", "Forjado Reticular 01", kRecubYPanelCentral, kMinimosForjRet,
         Listas{{"cmbTipoFor", -1, kCaseton}} + ListasForjado() + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros, true,
         // The waffle slab's own panel of slab data, opened over the form as a dialog.
         Visibles({EtiquetasLosaBandas}, {
             {kFr, "UCfrFor", -1, "Características del Forjado"},
             {kBt, "Command1", -1, "Características Forjado ..."},
             {kBt, "Command3", -1, "Aceptar"},
             {kCb, "cmbTipoFor", -1, "Casetón:"},
             {kPc, "PtFor", 0, ""},
             {kPc, "PtFor", 1, ""},
             {kOp, "OpAncho", 0, "por metro"},
             {kOp, "OpAncho", 1, "por nervio"},
             {kTx, "txtForj", 0, "Ancho del nervio (cm)"},
             {kTx, "txtForj", 1, "Separación entre nervios (cm)"},
             {kTx, "txtForj", 2, "Altura del casetón (cm)"},
             {kTx, "txtForj", 3, "Capa de compresión (cm)"},
             {kTx, "txtForj", 4, "Canto total (cm)"},
         }),
         MenuDef{"Hormigon", 6, "Forjado_Reticular", "Forjado Reticular"}, kGruposForjRet, &CreaDe<LosaBandas>},
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
         MenuDef{"Hormigon", 7, "mnuForjMacizo", "Placa maciza"}, kGruposForMaci, &CreaDe<LosaBandas>},
        {"frmAbaco", kCamposFrmAbaco,
         {false, false, PasoComprobacion::SinArgumentos, false},
         "Abacos de Hormigón Armado", "Abaco 01", kRecubYPanelCentral, kMinimosAbaco,
         Listas{{"cmbTipoFor", -1, kCasetonAbaco}, {"cmbCercos", -1, kCortanteNervios}} + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros, true,
         // The drop panel at a column: the column and the panel, their bars, the punching rows, the
         // slab around it and its ribs.
         Visibles({}, {
             {kFr, "Label2", -1, "Situación pilar en planta"},
             {kOp, "OpPosPil", 0, "centro"},
             {kOp, "OpPosPil", 1, "borde"},
             {kOp, "OpPosPil", 2, "esquina"},
             {kPc, "Ptpilar", 0, ""},
             {kPc, "Ptpilar", 1, ""},
             {kPc, "Ptpilar", 2, ""},
             {kPc, "PtAbaco", -1, ""},
             {kFr, "UCframeLucesCen", -1, "Distancias en metros"},
             {kFr, "UCframeLucesBor", -1, "Distancias en metros"},
             {kFr, "UCframeLucesEsq", -1, "Distancias en metros"},
             {kPc, "ImgPilar", -1, ""},
             {kTx, "LePil", 0, "a1"}, {kTx, "LePil", 1, "a2"}, {kTx, "LePil", 2, "a3"}, {kTx, "LePil", 3, "a4"},
             {kTx, "LePil", 9, "a1"}, {kTx, "LePil", 8, "a2"}, {kTx, "LePil", 11, "a3"}, {kTx, "LePil", 10, "a4"},
             {kTx, "LePil", 7, "a1"}, {kTx, "LePil", 5, "a2"}, {kTx, "LePil", 4, "a3"}, {kTx, "LePil", 6, "a4"},
             {kFr, "Picture1", -1, "Dimensiones y armado ábacos"},
             {kTx, "PilX", -1, "Lado pilar X (m)"},
             {kTx, "PilY", -1, "Lado pilar Y (m)"},
             {kTx, "AbacoX", -1, "Lado ábaco X (m)"},
             {kTx, "AbacoY", -1, "Lado ábaco Y (m)"},
             {kNd, "ArmX", 0, "Armado superior X: refuerzo"},
             {kNd, "ArmX", 1, "Armado superior X: montaje"},
             {kNd, "ArmY", 0, "Armado superior Y: refuerzo"},
             {kNd, "ArmY", 1, "Armado superior Y: montaje"},
             {kCk, "ChX", 0, "Refuerzo X"},
             {kCk, "ChX", 1, "Montaje X"},
             {kCk, "ChY", 0, "Refuerzo Y"},
             {kCk, "ChY", 1, "Montaje Y"},
             {kFr, "FrPunz", -1, "Armado punzonamiento"},
             {kNd, "ArmPunz", -1, "Armado fila #"},
             {kTx, "TxSep", -1, "Separación fila # (m)"},
             {kCk, "ChPun", -1, "Fila de punzonamiento #"},
             {kBt, "Command1", -1, "Características Forjado ..."},
             {kFr, "UCfrFor", -1, "Características del Forjado"},
             {kBt, "Command3", -1, "Aceptar"},
             {kCb, "cmbTipoFor", -1, "Casetón:"},
             {kPc, "PtFor", 0, ""},
             {kPc, "PtFor", 1, ""},
             {kPc, "PtFor", 2, ""},
             {kTx, "txtForj", 0, "Ancho del nervio (cm)"},
             {kTx, "txtForj", 1, "Separación entre nervios (cm)"},
             {kTx, "txtForj", 2, "Altura del casetón (cm)"},
             {kTx, "txtForj", 3, "Capa de compresión (cm)"},
             {kTx, "txtForj", 4, "Canto total (cm)"},
             {kM, "UCMall", -1, "Mallazo"},
             {kFr, "frmNervios", -1, "Armado de los nervios"},
             {kNd, "UCArVig", 0, "Flector X-X'"},
             {kNd, "UCArVig", 1, "Flector X-X': adicional"},
             {kNd, "UCArVig", 2, "Flector Y-Y'"},
             {kNd, "UCArVig", 3, "Flector Y-Y': adicional"},
             {kNs, "UCArCer", 0, "Cortante X-X'"},
             {kNs, "UCArCer", 1, "Cortante Y-Y'"},
             {kCk, "ChMas1X", -1, "Barra adicional X-X'"},
             {kCk, "ChMas1Y", -1, "Barra adicional Y-Y'"},
             {kCk, "chkCercosX", -1, "Cercos X-X'"},
             {kCk, "chkCercosY", -1, "Cercos Y-Y'"},
             {kCb, "cmbCercos", 0, "Tipo de cercos X-X'"},
             {kCb, "cmbCercos", 1, "Tipo de cercos Y-Y'"},
             {kLb, "Label7", -1, "Carga cerramiento (sin mayorar)"},
             {kLb, "LbP1", 0, "P="},
             {kTx, "TxtQ", 0, "Carga cerramiento (sin mayorar)"},
             {kTx, "TxtRes1", -1, "Bielas"},
             {kTx, "TxtRes2", -1, "Punzonam."},
             {kTx, "TxtRes3", -1, "Cortante"},
         }),
         MenuDef{"Hormigon", 8, "Abacos", "Ábacos"}, kGruposAbaco, &CreaDe<Abaco>},
        {"frmMensCorta", kCamposFrmMensCorta,
         // Reasoned minimums: the corbel's sizes must be positive.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Ménsulas Cortas", "Ménsula 01", kRecubYMensulaSimple, kMinimosMensCorta,
         Listas{{"Hormig", -1, kHormigonado}} + ListasHormigon25(),
         {Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Lineal}, Despacho::Registros, true,
         // The short corbel: its kind, its sizes and loads, the casting joint and its bars; the
         // pictures of each kind (ImageM, three a kind) stand in the corbel's drawing.
         Visibles({}, {
             {kFr, "FrTipologia", -1, "Tipología"},
             {kOp, "OpTipo", 0, "Ménsula simple"},
             {kOp, "OpTipo", 1, "Viga embrochalada en ménsula"},
             {kOp, "OpTipo", 2, "Pilar en vuelo"},
             {kOp, "OpTipo", 3, "Pilar excéntrico"},
             {kPc, "ImageM", 0, ""}, {kPc, "ImageM", 1, ""}, {kPc, "ImageM", 2, ""}, {kPc, "ImageM", 3, ""},
             {kPc, "ImageM", 4, ""}, {kPc, "ImageM", 5, ""}, {kPc, "ImageM", 6, ""}, {kPc, "ImageM", 7, ""},
             {kPc, "ImageM", 8, ""}, {kPc, "ImageM", 9, ""}, {kPc, "ImageM", 10, ""}, {kPc, "ImageM", 11, ""},
             {kPc, "PictureM", -1, ""},
             {kPc, "PictureV", -1, ""},
             {kFr, "FrCotas", -1, "Cotas y separación barras en cm. Cargas mayoradas"},
             {kFr, "FrDimMensula", -1, "Dimensiones (cm)"},
             {kTx, "TxCota", 0, "Canto en el arranque (cm)"},
             {kTx, "TxCota", 1, "Canto en el extremo (cm)"},
             {kTx, "TxCota", 2, "Distancia del apoyo al pilar (cm)"},
             {kTx, "TxCota", 3, "Ancho del apoyo (cm)"},
             {kTx, "TxCota", 4, "Canto del pilar (cm)"},
             {kTx, "TxCota", 5, "Ancho de la ménsula (cm)"},
             {kTx, "TxCota", 6, "Luz viga (cm)"},
             {kFr, "FrCargas", -1, "Cargas mayoradas"},
             {kTx, "TxtQ", 0, "Fvd"},
             {kTx, "TxtQ", 1, "Fhd"},
             {kTx, "TxtQ", 2, "Md"},
             {kTx, "TxtQ", 3, "Carga viga"},
             {kFr, "FrHormigonado", -1, "Forma de hormigonado"},
             {kCb, "Hormig", -1, "Forma de hormigonado"},
             {kTx, "TextCtg", -1, "Cotg θ"},
             {kTx, "txtMom", -1, "Md viga (m·t)"},
             {kTx, "txtCort", -1, "Vd viga (t)"},
             {kFr, "FrArmado", -1, "Armado"},
             {kNd, "UCArmPrinc", -1, "Armadura principal"},
             {kNd, "UCArmCercos", -1, "Cercos horizontales"},
             {kLb, "LbColgar2", -1, "Armadura de cuelgue de la viga"},
             {kNd, "UCArmColgar", -1, "Armadura de cuelgue"},
             {kTx, "TxtRes1", 0, "Bielas"},
             {kTx, "TxtRes1", 1, "Principal"},
             {kTx, "TxtRes1", 2, "Cercos horiz"},
             {kTx, "TxtRes1", 3, "Cuelgue"},
             {kFr, "FrArmaduras", -1, "Armadura"},
             {kTx, "txCuelgue", -1, "Armadura cuelgue"},
             {kTx, "TxCercos", -1, "Armadura cercos"},
             {kTx, "TxArmado", -1, "Armadura principal"},
         }),
         MenuDef{"Hormigon", 9, "Mensula", "Ménsula Corta"}, kGruposMensCorta, &CreaDe<MensCorta>},
        {"frmVigPared", kCamposFrmVigPared,
         // The deep beam also compares the column depths with 200, an upper limit, not listed here.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Vigas de Hormigón de Gran Canto", "Viga Pared. Pilar 01-02", kRecubEstructura, kMinimosVano,
         ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza}, Despacho::Registros, false,
         // The deep beam: the spans editor of a beam with its own bars and meshes.
         Visibles({EtiquetasContinuidad, EtiquetasPilaresViga}, {
             {kFr, "FrViga", -1, "Viga (longitudes en metros)"},
             {kFr, "FrContiguas", -1, "Luz viga contigua"},
             {kFr, "FrTramosViga", -1, "Tramos y cargas totales (con.+sobr.) sin mayorar"},
             {kFr, "FrCargasViga", -1, "Cara cargada"},
             {kFr, "FrApoyosViga", -1, "Apoyos"},
             {kFr, "FrPuntualesViga", -1, "Cargas puntuales"},
             {kFr, "FrDatosViga", -1, "Flecha"},
             {kFr, "FrArmadoViga", -1, "Armado principal total y reparto por cara"},
             {kPc, "PctViga", -1, ""},
             {kCb, "CmTramos", -1, "Nº de tramos de carga"},
             {kTx, "txtDat2", -1, "Límite flecha 1/"},
             {kCk, "ChkPuntual", -1, "Poner carga puntual"},
             {kCk, "Check1", -1, "Carga aplicada en cara inferior viga"},
             {kTx, "TxCota", -1, "Longitudes (m)"},
             {kTx, "TxtQ", -1, "Cargas"},
             {kTx, "TxtQ", 0, "P1"},
             {kTx, "TxtQ", 4, "P2"},
             {kTx, "TxCota", 0, "Luz viga contigua izquierda (m)"},
             {kTx, "TxCota", 1, "Luz total (m)"},
             {kTx, "TxCota", 2, "Tramo 1 (m)"},
             {kTx, "TxCota", 3, "Tramo 2 (m)"},
             {kTx, "TxCota", 4, "Luz viga contigua derecha (m)"},
             {kTx, "TxtQ", 1, "Carga repartida q1"},
             {kTx, "TxtQ", 2, "Carga repartida q2"},
             {kTx, "TxtQ", 3, "Carga repartida q3"},
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
         MenuDef{"Hormigon", 10, "Vigapared", "Viga Pared"}, kGruposVigPared, &CreaDe<VigPared>},
        {"frmEscHorm", kCamposFrmEscHorm,
         {true, true, PasoComprobacion::Bandera, false},
         "Escaleras y Rampas de Hormigón", "Escalera Hormigón 01", kRecubYTramo, kMinimosEscHorm,
         ListasExposicion() + ListasHormigon(),
         {}, Despacho::Registros, true,
         // The concrete stair or ramp: its kind, the slab and landings, the loads, and for each kind
         // its sketch, its lengths, its bars and the holding of its ends.
         Visibles({EtiquetasEscalera}, {
             {kFr, "FrExposicion", -1, "Exposición"},
             {kFr, "FrTipoLosa", -1, "Tipo losa"},
             {kOp, "OptLosa", 0, "Escalera 1 tramo"},
             {kOp, "OptLosa", 1, "Escalera 1 tramo con descanso"},
             {kOp, "OptLosa", 2, "Escalera 2 tramos"},
             {kOp, "OptLosa", 3, "Rampa"},
             {kFr, "FrDimensiones", -1, "Dimensiones de la losa"},
             {kTx, "TxtCanto", 0, "Canto losa (m)"},
             {kTx, "TxtCanto", 1, "Canto descansillo 1 (m)"},
             {kTx, "TxtCanto", 2, "Canto descansillo 2 (m)"},
             {kTx, "txtAncho", 0, "Ancho losa (m)"},
             {kTx, "txtAncho", 1, "Ancho descansillo 1 (m)"},
             {kTx, "txtAncho", 2, "Ancho descansillo 2 (m)"},
             {kLb, "Label3", -1, "Descansillo 1:"},
             {kLb, "Label7", -1, "Descansillo 2:"},
             {kFr, "FrCargasLosa", -1, "Cargas sobre la losa"},
             {kLb, "Label10", -1, "kN/m2"},
             {kLb, "LbCanto", -1, ""},
             {kFr, "UCframeH1", -1, "Escalera 1 tramo"},
             {kFr, "UCframeDesc", -1, "Escalera 1 tramo con descanso"},
             {kFr, "UCframeH2", -1, "Escalera 2 tramos"},
             {kFr, "UCframeRampa", -1, "Rampa"},
             {kPc, "PictH1", -1, ""},
             {kPc, "PictHD", -1, ""},
             {kPc, "PictH2", -1, ""},
             {kPc, "PictRampa", -1, ""},
             {kLb, "LbAstExpl", -1, "Esta cota puede tomar valor cero"},
             {kTx, "TxCotaH1", 0, "Tramo inferior (m)"},
             {kTx, "TxCotaH1", 1, "Tramo inclinado (m)"},
             {kTx, "TxCotaH1", 2, "Tramo superior (m)"},
             {kTx, "TxCotaH1", 3, "Altura (m)"},
             {kTx, "TxCotaDesc", 0, "Primer tramo (m)"},
             {kTx, "TxCotaDesc", 1, "Descansillo (m)"},
             {kTx, "TxCotaDesc", 2, "Segundo tramo (m)"},
             {kTx, "TxCotaDesc", 3, "Altura primer tramo (m)"},
             {kTx, "TxCotaDesc", 4, "Altura segundo tramo (m)"},
             {kTx, "TxCotaH2", 0, "Tramo inferior (m)"},
             {kTx, "TxCotaH2", 1, "Tramos inclinados (m)"},
             {kTx, "TxCotaH2", 2, "Descansillo (m)"},
             {kTx, "TxCotaH2", 3, "Altura primer tramo (m)"},
             {kTx, "TxCotaH2", 4, "Altura segundo tramo (m)"},
             {kTx, "TxCotaRampa", 0, "Longitud (m)"},
             {kTx, "TxCotaRampa", 1, "Altura (m)"},
             {kOp, "OptH1izq", 0, "Izquierdo apoyado"}, {kOp, "OptH1izq", 1, "Izquierdo con continuidad"}, {kOp, "OptH1izq", 2, "Izquierdo empotrado"},
             {kOp, "OptH1der", 0, "Derecho apoyado"}, {kOp, "OptH1der", 1, "Derecho con continuidad"}, {kOp, "OptH1der", 2, "Derecho empotrado"},
             {kOp, "OptDApoIzq", 0, "Izquierdo apoyado"}, {kOp, "OptDApoIzq", 1, "Izquierdo con continuidad"}, {kOp, "OptDApoIzq", 2, "Izquierdo empotrado"},
             {kOp, "OptDApoDer", 0, "Derecho apoyado"}, {kOp, "OptDApoDer", 1, "Derecho con continuidad"}, {kOp, "OptDApoDer", 2, "Derecho empotrado"},
             {kOp, "OptH2izqI", 0, "Inferior apoyado"}, {kOp, "OptH2izqI", 1, "Inferior con continuidad"}, {kOp, "OptH2izqI", 2, "Inferior empotrado"},
             {kOp, "OptH2izqS", 0, "Superior apoyado"}, {kOp, "OptH2izqS", 1, "Superior con continuidad"}, {kOp, "OptH2izqS", 2, "Superior empotrado"},
             {kOp, "OptH2der", 0, "Descansillo apoyado"}, {kOp, "OptH2der", 1, "Descansillo con continuidad"}, {kOp, "OptH2der", 2, "Descansillo empotrado"},
             {kOp, "OptRampaApoIzq", 0, "Izquierdo apoyado"}, {kOp, "OptRampaApoIzq", 1, "Izquierdo con continuidad"}, {kOp, "OptRampaApoIzq", 2, "Izquierdo empotrado"},
             {kOp, "OptRampaApoDer", 0, "Derecho apoyado"}, {kOp, "OptRampaApoDer", 1, "Derecho con continuidad"}, {kOp, "OptRampaApoDer", 2, "Derecho empotrado"},
             {kNd, "UCNumDiamH1", -1, "Barras #"},
             {kNd, "UCNumDiamDesc", -1, "Barras #"},
             {kNd, "UCNumDiamH2", -1, "Barras #"},
             {kNd, "UCNumDiamRampa", -1, "Barras #"},
             {kTx, "TxtRes1", 0, "Flector"},
             {kTx, "TxtRes1", 1, "Cortante"},
         }),
         MenuDef{"Hormigon", 11, "mnuEscal", "Escaleras"}, kGruposEscHorm, &CreaDe<EscHorm>},
    };
    static_assert(NombresUnicos(tablas), "every form of the family is defined once");
    return tablas;
}

}  // namespace vardena
