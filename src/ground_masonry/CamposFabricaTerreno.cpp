// Stored fields of the masonry, soil, footing, pile, wall and slope forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind, design texts.

#include "frame/Campos.h"
#include "frame/Listas.h"

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

}  // namespace

const std::vector<TablaForm>& TablasFabricaTerreno()
{
    static const std::vector<TablaForm> tablas = {
        {"frmMuros", {
            {"CmbCatEjec", {}, kLista}, {"TxCoefMin", {}, kTexto, {"1.7"}}, {"TxtQ", {0}, kTexto, {"33"}}, {"CmbPlanta", {}, kLista},
            {"TxtDensidad", {}, kTexto, {"1900"}}, {"TxtRes1", {}, kTexto}, {"TxtRes2", {}, kTexto},
            {"TxtCota", {24, 23}, kTexto, {"0.80", "1.30"}}, {"CheckI", {}, kCasilla}, {"CheckS", {}, kCasilla},
            {"TxtCota", {0, 1, 2, 3, 22}, kTexto, {"0.80", "2.55", "1.30", "3.60", "6.00"}}, {"OptArr", {2, 1, 0}, kOpcion},
            {"TxtCota", {21}, kTexto, {"2.80"}}, {"OpTramo", {2}, kOpcion}, {"TxtCota", {17}, kTexto, {"4.90"}},
            {"OpTramo", {0, 3, 1}, kOpcion}, {"TxtCota", {20, 19, 18}, kTexto, {"2.80", "5.10", "4.80"}}, {"txtTitulo", {}, kTexto},
            {"TxtCota", {16, 15, 14, 13, 8, 7, 6, 5, 4, 12, 11, 10, 9}, kTexto, {"40", "25", "5", "30", "40", "25", "40", "25"}},
        },
         // Reasoned titles for the masonry forms.
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Muros de Fábrica", "Muro Fábrica 01", kNada, kMinimosMuros,
         Listas{{"CmbCatEjec", -1, kCategoriaEjecucion}},
         {Magnitud::Tension}, Despacho::Registros},
        {"frmMCerr", {
            {"TxtQ", {3}, kTexto, {"0.05"}}, {"txtTitulo", {}, kTexto}, {"OptCab", {2, 1, 0}, kOpcion}, {"OptBase", {0, 1}, kOpcion},
            {"OptIzq", {1, 0}, kOpcion}, {"OptDer", {0, 1}, kOpcion}, {"OptCalc", {1, 0}, kOpcion},
            {"TxtCota", {1, 0, 2}, kTexto, {"2.60", "6.00", "0.12"}}, {"TxtQ", {2}, kTexto, {"0.1"}}, {"CmbCatEjec", {}, kLista},
            {"TxtQ", {1}, kTexto, {"2"}}, {"CmbPlanta", {}, kLista}, {"TxtQ", {0}, kTexto, {"1"}}, {"TxCoefMin", {}, kTexto, {"1.7"}},
            {"TxCatEjec", {}, kTexto, {"A"}}, {"TxtRes2", {}, kTexto}, {"TxtRes1", {}, kTexto}, {"CmbFMort", {}, kLista},
            {"CmbFMat", {}, kLista},
        },
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Cerramientos sometidos a acciones horizontales", "Cerramiento 01", kNada, kMinimosMCerr,
         Listas{{"CmbCatEjec", -1, kCategoriaEjecucion}, {"CmbFMort", -1, kMortero}, {"CmbFMat", -1, kPieza}},
         {Magnitud::Tension, Magnitud::Tension, Magnitud::Lineal, Magnitud::Superficie}, Despacho::Registros},
        {"frmMDint", {
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
        },
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Dintel Fábrica", "Dintel 01", kRecubEstructura, kMinimosMDint,
         Listas{{"CmbDintel", -1, kDintel}, {"CmbAmbGral", -1, kAmbienteDintel}, {"CmbAmbEspec", -1, kAmbienteEspecificoDintel}, {"cmbAceroPerfil", -1, kAceroLaminado}} + ListasMadera() + ListasHormigon(),
         {Magnitud::Tension, Magnitud::Lineal, Magnitud::Lineal, Magnitud::Lineal}, Despacho::Registros},
        {"frmSuelo", {
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
        },
         {false, true, PasoComprobacion::Ninguno, false},
         "Definición del terreno de cimentación", "Terreno 01", kNada, kNada,
         Listas{{"CmbTerreno", -1, kTerreno}, {"ComboCim", -1, kCimiento}},
         {}, Despacho::Registros},
        {"frmZap", {
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
        },
         // Plan sizes at least 40 cm, depths 30 cm and column sides 10 cm, as the strip footing.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Zapatas Aisladas", "Zapata Aislada 01", kRecubTerrenoYPosicionInterior, kMinimosZap,
         ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Tension}, Despacho::Registros},
        {"frmZapComb", {
            {"CmbRecub", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbAcero", {}, kLista}, {"CmbHorm", {}, kLista},
            {"TxtRes1", {2, 0, 1}, kTexto}, {"Check1", {}, kCasilla}, {"TxtQ", {4}, kTexto, {"2.5"}}, {"UCArmZap", {2, 3, 0, 1}, kZapatas},
            {"txtTitulo", {}, kTexto}, {"TxCota", {9}, kTexto, {"110"}}, {"TxtQ", {2, 3, 0, 1}, kTexto, {"0", "20", "20", "0"}},
            {"TxCota", {8, 7, 6, 5, 4, 3, 2, 1, 0}, kTexto, {"170", "40", "40", "30", "40", "30", "30", "30"}},
        },
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Zapatas Combinadas", "Zapata Combinada 01-02", kRecubTerreno, kMinimosZapComb,
         ListasHormigon(),
         {Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Tension}, Despacho::Registros},
        {"frmZapCorr", {
            {"Check1", {}, kCasilla}, {"TxtQ", {2}, kTexto, {"2.5"}}, {"UCArmZap", {0, 1}, kZapatas}, {"OpTipoMuro", {1, 0}, kOpcion},
            {"TxtQ", {0, 1}, kTexto, {"40", "0"}}, {"TxCotaMuro", {}, kTexto, {"30"}}, {"TxCotaAncho", {}, kTexto, {"150"}},
            {"TxCotaAlto", {}, kTexto, {"50"}}, {"txtTitulo", {}, kTexto}, {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista},
            {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista}, {"TxtRes1", {1, 0}, kTexto},
        },
         {true, true, PasoComprobacion::Bandera, false},
         "Zapatas Corridas", "Zapata Corrida 01", kRecubTerreno, kMinimosZapCorr,
         ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension}, Despacho::Registros},
        {"frmPilotes", {
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
        },
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Pilotes", "Pilotes 01", kRecubTerreno, kMinimosPilotes,
         // The pile loads, then the tip, shaft and total capacities, forces all.
         Listas{{"CmbApoyo", -1, kApoyoPilote}, {"CmbEstratos", -1, kEstratos}, {"CmbCaract", -1, kCaracterizacion}, {"cmbSuelo", -1, kSueloPilote}, {"cmbPil", 0, kPilTerreno}, {"cmbPil", 1, kPilNumero}, {"cmbPil", 2, kPilCarga}, {"cmbPil", 3, kPilDificultad}, {"cmbPil", 4, kPilApoyo}, {"cmbPil", 5, kPilPunta}, {"CmbTipos", -1, kTiposPilote}, {"CmbDiam", -1, kDiametroPilote}, {"CmbNumPil", -1, kNumeroPilotes}} + ListasHormigon25(),
         {Magnitud::Fuerza, Magnitud::Momento, Magnitud::Momento, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza}, Despacho::Registros},
        {"frmMuroH", {
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
        },
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Muro Hormigón", "Muro Sótano 01", kRecubTerreno, kMinimosMuro,
         Listas{{"CmbTerr", -1, kRelleno}} + ListasMuro() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension, Magnitud::Superficie}, Despacho::Registros},
        {"frmMuroCont", {
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
        },
         {false, true, PasoComprobacion::SinArgumentos, false},
         "Muros de Contención", "Muro Contención 01", kRecubTerreno, kMinimosMuro,
         // TxtQ(5) is the strength of a masonry wall.
         Listas{{"cmbTipo", -1, kTipoMuroContencion}, {"CmbTerreno", -1, kTerreno}, {"CmbTerr", -1, kRellenoContencion}} + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension, Magnitud::Superficie, Magnitud::Superficie, Magnitud::Tension}, Despacho::Registros},
        {"frmMuroAnclado", {
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
        },
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Muros Anclados", "Muro Anclado 01", kRecubTerreno, kMinimosMuro,
         // TxtQ(4) to (7) are the tensions of the anchors.
         Listas{{"CmbTalud", -1, kTalud}, {"cmbTerz", -1, kTerrenoAnclado}} + ListasMuro() + ListasHormigon(),
         {Magnitud::Lineal, Magnitud::Momento, Magnitud::Tension, Magnitud::Superficie, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Fuerza, Magnitud::Superficie}, Despacho::Registros, false},
        {"frmTalud", {
            {"TxtQ", {1}, kTexto, {"1.00"}}, {"TxtAngulo", {}, kTexto, {"30"}}, {"TxtDensidad", {}, kTexto, {"1800"}},
            {"CmbTalud", {}, kLista}, {"TxtRes1", {0}, kTexto}, {"txCuelgue", {}, kTexto}, {"TxCercos", {}, kTexto},
            {"txtTitulo", {}, kTexto}, {"optDrenaje", {0, 1}, kOpcion}, {"TxCotaTalud", {2}, kTexto, {"45"}}, {"chkEstrato", {}, kCasilla},
            {"TxCotaTalud", {0, 1}, kTexto, {"220", "120"}}, {"TxtQ", {0}, kTexto, {".5"}},
        },
         // The slope also compares its angle with 90, an upper limit.
         {true, true, PasoComprobacion::SinArgumentos, false},
         "Taludes", "Talud 01", kNada, kMinimosTalud,
         Listas{{"CmbTalud", -1, kTalud}},
         {Magnitud::Superficie, Magnitud::Superficie}, Despacho::Registros},
    };
    return tablas;
}

}  // namespace vardena
