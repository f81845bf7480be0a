// Stored fields of the concrete element forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind, design texts.

#include "frame/Campos.h"
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

}  // namespace

const std::vector<TablaForm>& TablasHormigon()
{
    static const std::vector<TablaForm> tablas = {
        {"frmVigHorm", {
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
        },
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Vigas de Hormigón Armado", "Viga Hormigón. P 01-02", kRecubEstructura, kMinimosVano,
         // The first match wins: a form's own list stands before the group it overrides.
         ListasExposicion() + ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza}, Despacho::Registros},
        {"frmVigRegHorm", {
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
        },
         {false, true, PasoComprobacion::OchoYSiete, false},
         "Vigas Regulares de Hormigón Armado", "Viga reg. Horm. P 01-02", kRecubEstructura, kMinimosVano,
         Listas{{"cmbPart", -1, kParticionMuros}, {"cmbTrPort", -1, kTramosPortico}, {"cmbTrForj", -1, kTramosForjado}} + ListasExposicion() + ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros},
        {"frmPilHorm", {
            {"CmbPlanta", {}, kLista}, {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista},
            {"CmbHorm", {}, kLista}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto}, {"TxtRes3", {}, kTexto},
            {"txtW", {}, kTexto, {"Cuantía excesiva"}},
            {"LePil", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, kTexto, {"4.50", "4.50", "5.00", "5.00", "4.60", "5.10", "1.10", "1.00"}},
            {"CmbForma", {}, kLista}, {"cmbesviada", {}, kLista}, {"OpPosPil", {2, 1, 0}, kOpcion}, {"txtTitulo", {}, kTexto},
            {"UCArmPilar", {1, 3, 2, 4}, kNumDiam}, {"ChPil", {4, 3}, kCasilla}, {"txtTramo", {4, 3}, kTexto, {"30"}},
            {"UCCercos", {}, kNumDiamSep}, {"txtTramo", {0}, kTexto, {"30"}}, {"UCArmPilar", {0}, kNumDiam}, {"UCNumDiamSep1", {}, kNumDiamSep},
            {"LePil", {12}, kTexto, {"3.10"}}, {"TxtQ", {2, 1, 3, 0}, kTexto, {"0", "0", "40", "800"}}, {"ChPilSup", {}, kCasilla},
        },
         {false, false, PasoComprobacion::SinArgumentos, false},
         "Pilares de Hormigón Armado", "Pilar Hormigón 01", kRecubYPosicionInterior, kMinimosPilar,
         ListasPilar() + ListasHormigon(),
         {Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::LinealKg}, Despacho::Registros},
        {"frmForjUnid", {
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
        },
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjado Unidireccional", "Forjado Unidir. 01", kRecubEstructura, kMinimosUnidireccional,
         Listas{{"cmbTipoFor", -1, kTipoForjado}, {"cmbCercos", -1, kCortanteUnidireccional}} + ListasForjado() + ListasExposicion() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::MomentoKg, Magnitud::MomentoKg, Magnitud::Lineal, Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::SuperficieKg}, Despacho::Registros},
        {"frmForjSitu", {
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
        },
         // Reasoned title, after the one-way slab's.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjado in situ", "Forjado in situ 01", kRecubEstructura, kMinimosUnidireccional,
         // The cast-in-place slab names its partition list cmbPart, in the place and with the rows
         // of the one-way slab's Combo1.
         Listas{{"cmbCercos", -1, kCortanteInSitu}, {"cmbPart", -1, kParticionMuros}} + ListasExposicion() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg, Magnitud::Ninguna, Magnitud::Ninguna, Magnitud::Lineal, Magnitud::Lineal, Magnitud::SuperficieKg, Magnitud::SuperficieKg}, Despacho::Registros},
        {"frmForjRet", {
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
        },
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjados Reticular", "Forjado Reticular 01", kRecubYPanelCentral, kMinimosForjRet,
         Listas{{"cmbTipoFor", -1, kCaseton}} + ListasForjado() + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros},
        {"frmForMaci", {
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
        },
         // The solid slab compares its spans as the waffle slab does, and its depth in place of the
         // waffle's depths.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Forjados Macizos", "Forjado Macizo 01", kRecubYPanelCentral, kMinimosForMaci,
         ListasForjado() + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros},
        {"frmAbaco", {
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
        },
         {false, false, PasoComprobacion::SinArgumentos, false},
         "Abacos de Hormigón Armado", "Abaco 01", kRecubYPanelCentral, kMinimosAbaco,
         Listas{{"cmbTipoFor", -1, kCasetonAbaco}, {"cmbCercos", -1, kCortanteNervios}} + ListasHormigon(),
         {Magnitud::LinealKg}, Despacho::Registros},
        {"frmMensCorta", {
            {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
            {"TxtRes1", {3, 2, 0, 1}, kTexto}, {"UCArmPrinc", {}, kNumDiam}, {"UCArmCercos", {}, kNumDiam}, {"UCArmColgar", {}, kNumDiam},
            {"Hormig", {}, kLista}, {"TextCtg", {}, kTexto, {"Text2"}}, {"OpTipo", {0, 1, 2, 3}, kOpcion},
            {"TxCota", {6, 5, 0, 3, 4, 2, 1}, kTexto, {"500", "50", "90", "15", "40", "60", "60"}},
            {"TxtQ", {2, 1, 0, 3}, kTexto, {"0", "0", "40", "0"}}, {"txtMom", {}, kTexto}, {"txtCort", {}, kTexto},
            {"txCuelgue", {}, kTexto}, {"TxCercos", {}, kTexto}, {"TxArmado", {}, kTexto}, {"txtTitulo", {}, kTexto},
        },
         // Reasoned minimums: the corbel's sizes must be positive.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Ménsulas Cortas", "Ménsula 01", kRecubEstructura, kMinimosMensCorta,
         Listas{{"Hormig", -1, kHormigonado}} + ListasHormigon25(),
         {Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Lineal}, Despacho::Registros},
        {"frmVigPared", {
            {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista},
            {"CmbPlanta", {}, kLista}, {"txtDat2", {}, kTexto, {"500"}}, {"TxtRes3", {}, kTexto}, {"TxtRes1", {}, kTexto},
            {"TxtRes2", {}, kTexto}, {"txtTitulo", {}, kTexto}, {"ChkPuntual", {}, kCasilla}, {"ChPilIzq", {}, kCasilla},
            {"ChPilDer", {}, kCasilla}, {"ChVigIzq", {}, kCasilla}, {"ChVigDer", {}, kCasilla}, {"TxCota", {4, 0}, kTexto, {"4.00"}},
            {"UCMallazo2", {}, kMallazo}, {"UCMallazo1", {}, kMallazo}, {"Check1", {}, kCasilla}, {"CmTramos", {}, kLista},
            {"TxtQ", {4, 0, 3}, kTexto, {"1", "1", "1.5"}}, {"TxCota", {3}, kTexto, {"1.00"}}, {"TxtQ", {2}, kTexto, {"2.1"}},
            {"TxCota", {2}, kTexto, {" 2.00"}}, {"TxtPil", {1, 0}, kTexto, {"30"}}, {"TextDviga", {1, 0}, kTexto, {"200", "30"}},
            {"TxCota", {1}, kTexto, {"3.50"}}, {"TxtQ", {1}, kTexto, {"2.1"}}, {"UCArVigCen", {}, kNumDiam}, {"UCArVigIzq", {}, kNumDiam},
            {"UCArVigder", {}, kNumDiam},
        },
         // The deep beam also compares the column depths with 200, an upper limit, not listed here.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Vigas de Hormigón de Gran Canto", "Viga Pared. Pilar 01-02", kRecubEstructura, kMinimosVano,
         ListasViga() + ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Fuerza}, Despacho::Registros, false},
        {"frmEscHorm", {
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
        },
         {true, true, PasoComprobacion::Bandera, false},
         "Escaleras y Rampas de Hormigón", "Escalera Hormigón 01", kRecubEstructura, kMinimosEscHorm,
         ListasExposicion() + ListasHormigon(),
         {}, Despacho::Registros},
    };
    return tablas;
}

}  // namespace vardena
