#include "frame/ControlesVisibles.h"

#include <cctype>
#include <map>

#include "frame/Campos.h"

#include <string>

#include "base/FileIo.h"

namespace vardena {


// The service pressure on sound rock, from the spacing and opening of its joints.
const std::vector<ControlVisible>& EtiquetasRoca()
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

// Fields that mean the same in every element form that has them: one caption for all. A name
// ending in "*" stands for every field whose name begins with what comes before it.
const std::vector<ControlVisible>& EtiquetasComunes()
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
const std::vector<ControlVisible>& EtiquetasViga()
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
const std::vector<ControlVisible>& EtiquetasContinuidad()
{
    static const std::vector<ControlVisible> filas = {
        {kCk, "ChVigIzq", -1, "Voladizo o viga continua a la izquierda"},
        {kCk, "ChVigDer", -1, "Voladizo o viga continua a la derecha"},
    };
    return filas;
}

// A stretch of a one-way slab, cast in place or of joists: its depth, its mesh, its bars and
// shear reinforcement, its span and the spans beside it.
const std::vector<ControlVisible>& EtiquetasForjado()
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

// A two-way slab panel, waffle or solid: its place in the plan, its spans, the bars of its four
// bands and the safety coefficient of each band. Band b (the middle and the column strip along X,
// then along Y) holds UCArVig(6b) to UCArVig(6b + 5): at each of its three places (the support at
// one end, the span, the support at the other) the base bars and a further bar switched on by the
// ChArV after them, each with its length TxLv; its results are txtMf(3b) to txtMf(3b + 2).
const std::vector<ControlVisible>& EtiquetasLosaBandas()
{
    static const std::vector<std::string> textos = [] {
        std::vector<std::string> t;
        const char* lugaresX[] = {"izquierda", "centro", "derecha"};
        const char* lugaresY[] = {"abajo", "centro", "arriba"};
        for (int b = 0; b < 4; ++b)
            for (int p = 0; p < 3; ++p) {
                const std::string lugar = b < 2 ? lugaresX[p] : lugaresY[p];
                const std::string tipo = p == 1 ? "Positivo " : "Negativo ";
                t.push_back(tipo + lugar);
                t.push_back("Refuerzo " + lugar);
                t.push_back(std::string(1, static_cast<char>(std::toupper(static_cast<unsigned char>(lugar[0])))) +
                            lugar.substr(1));
                t.push_back("Longitud " + lugar + " (m)");
                t.push_back("Longitud refuerzo " + lugar + " (m)");
                t.push_back("Con refuerzo " + lugar);
            }
        return t;
    }();
    static const std::vector<ControlVisible> filas = [] {
        std::vector<ControlVisible> f = {
            {kOp, "OpPosPil", 0, "Centro"},
            {kOp, "OpPosPil", 1, "Borde"},
            {kOp, "OpPosPil", 2, "Esquina"},
            {kCb, "Combo1", -1, "Partición"},
            {kTx, "txtForj", 5, "Lx (m)"},
            {kTx, "txtForj", 6, "Ly (m)"},
            {kTx, "txtForj", 7, "Lx (m)"},
            {kTx, "txtForj", 8, "Ly (m)"},
            {kTx, "txtForj", 9, "Vuelo (m)"},
            {kTx, "txtForj", 10, "Lx (m)"},
            {kTx, "txtForj", 11, "Ly (m)"},
            {kTx, "txtForj", 12, "Vuelo X (m)"},
            {kTx, "txtForj", 13, "Vuelo Y (m)"},
            {kTx, "TxtQ", 0, "Carga cerramiento (sin mayorar)"},
            {kLb, "LbCer", -1, "Carga cerramiento (sin mayorar)"},
            {kLb, "LbP1", 0, "P="},
            {kM, "UCMall", -1, "Armado reparto"},
            {kLb, "LbMall", -1, "No válido"},
            {kTx, "TxtRes1", -1, "Flector x-x'"},
            {kTx, "TxtRes2", -1, "Flector y-y'"},
            {kTx, "TxtRes3", -1, "Flecha"},
            {kFr, "UCframePos", -1, "Situación en planta"},
            {kPc, "PctFRPlan", 0, ""},
            {kPc, "PctFRPlan", 1, ""},
            {kPc, "PctFRPlan", 2, ""},
            {kFr, "UCframeLucesCen", -1, "Longitudes en metros"},
            {kFr, "UCframeLucesBor", -1, "Longitudes en metros"},
            {kFr, "UCframeLucesEsq", -1, "Longitudes en metros"},
            {kFr, "Picture1", -1, "Armado de las bandas"},
            {kFr, "Frame1", -1, "Dir. X"},
            {kFr, "Frame22", -1, "Dir. Y"},
            {kBt, "CmBanda", 0, "Banda central"},
            {kBt, "CmBanda", 1, "Banda soportes"},
            {kBt, "CmBanda", 2, "Banda central"},
            {kBt, "CmBanda", 3, "Banda soportes"},
            {kLb, "LbBAnda", -1, ""},
            {kPc, "PctViga", -1, ""},
            {kFr, "FrBanda0", -1, "Barras banda central X-X'"},
            {kFr, "FrBanda1", -1, "Barras banda soportes X-X'"},
            {kFr, "FrBanda2", -1, "Barras banda central Y-Y'"},
            {kFr, "FrBanda3", -1, "Barras banda soportes Y-Y'"},
            {kFr, "FrMallazo", -1, "Armado reparto"},
            {kFr, "UCfrRes", -1, "RESULTADOS: coeficiente seguridad flector"},
            {kBt, "Command2", -1, "Aceptar"},
            {kFr, "FrRes0", -1, "Banda Central X-X'"},
            {kFr, "FrRes1", -1, "Banda Sop. X-X'"},
            {kFr, "FrRes2", -1, "Banda Central Y-Y'"},
            {kFr, "FrRes3", -1, "Banda Sop. Y-Y'"},
        };
        for (int b = 0; b < 4; ++b)
            for (int p = 0; p < 3; ++p) {
                const size_t k = static_cast<size_t>(6 * (3 * b + p));
                const int i = 6 * b + 2 * p;
                f.push_back({kNd, "UCArVig", i, textos[k]});
                f.push_back({kNd, "UCArVig", i + 1, textos[k + 1]});
                f.push_back({kCk, "ChArV", i + 1, textos[k + 5]});
                f.push_back({kTx, "txtMf", 3 * b + p, textos[k + 2]});
                // The bars over the far support have no lengths of their own.
                if (p < 2) {
                    f.push_back({kTx, "TxLv", i, textos[k + 3]});
                    f.push_back({kTx, "TxLv", i + 1, textos[k + 4]});
                }
            }
        return f;
    }();
    return filas;
}

// A stair or a ramp of any material: the widths, the loads on it, and for each kind of stair
// its lengths and how its ends are held.
const std::vector<ControlVisible>& EtiquetasEscalera()
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
const std::vector<ControlVisible>& EtiquetasForjadoLigero()
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
const std::vector<ControlVisible>& EtiquetasResultadosAcero()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtRes1", -1, "Flector"},
        {kTx, "TxtRes2", -1, "Corte"},
        {kTx, "TxtRes3", -1, "Flecha act."},
        {kTx, "TxtRes4", -1, "Cumple"},
    };
    return filas;
}

// The columns at the ends of a beam, where the form draws them.
const std::vector<ControlVisible>& EtiquetasPilaresViga()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtPil", -1, "Canto pilar (cm)"},
        {kTx, "TxtPil", 0, "Canto pilar izquierdo (cm)"},
        {kTx, "TxtPil", 1, "Canto pilar derecho (cm)"},
    };
    return filas;
}

// A reinforced concrete section of a beam or a lintel: its size and its bars.
const std::vector<ControlVisible>& EtiquetasArmadoViga()
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
const std::vector<ControlVisible>& EtiquetasVigaHormigon()
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
const std::vector<ControlVisible>& EtiquetasPilar()
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

const std::vector<ControlVisible>& EtiquetasPilarHormigon()
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
const std::vector<ControlVisible>& EtiquetasPandeo()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtBetaX", -1, "Coef. de pandeo β X"},
        {kTx, "TxtBetaY", -1, "Coef. de pandeo β Y"},
        {kCk, "ChkArriostradaX", -1, "Arriostrado en X"},
        {kCk, "ChkArriostradaY", -1, "Arriostrado en Y"},
        {kCk, "ChRotS", -1, "Empotrado en cabeza"},
        {kCk, "ChRotI", -1, "Empotrado en pie"},
    };
    return filas;
}

const std::vector<ControlVisible>& EtiquetasPilarAcero()
{
    static const std::vector<ControlVisible> filas = {
        {kPf, "UCViga", -1, "Perfil de viga"},
        {kTx, "txtCurvaX", -1, "Curva de pandeo X"},
        {kTx, "txtCurvaY", -1, "Curva de pandeo Y"},
    };
    return filas;
}

// What every footing has: its reinforcement and the ground's admissible pressure, which may
// be that of the general data.
const std::vector<ControlVisible>& EtiquetasZapata()
{
    static const std::vector<ControlVisible> filas = {
        {kZp, "UCArmZap", -1, "Armadura"},
        {kCk, "Check1", -1, "Tensión admisible idem general"},
        {kTx, "TxtQ", -1, "Cargas"},
    };
    return filas;
}

// The strip footing under a wall, alone or under a basement wall.
const std::vector<ControlVisible>& EtiquetasZapataBajoMuro()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxCotaAncho", -1, "Ancho de la zapata (cm)"},
        {kTx, "TxCotaAlto", -1, "Canto de la zapata (cm)"},
    };
    return filas;
}

// The backfill of a concrete wall and the friction against it.
const std::vector<ControlVisible>& EtiquetasRelleno()
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
const std::vector<ControlVisible>& EtiquetasMuro()
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
const std::vector<ControlVisible>& EtiquetasMuroDePlantas()
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

// What the masonry forms share: the masonry's strength and density, and the lengths of the
// element.
const std::vector<ControlVisible>& EtiquetasFabrica()
{
    static const std::vector<ControlVisible> filas = {
        {kTx, "TxtCota", -1, "Cotas"},
        {kTx, "TxtQ", -1, "Cargas"},
        {kBt, "cmdDefRes", -1, "Calcular resistencia"},
    };
    return filas;
}

// The rows of each form: its own, after those of the families it belongs to, so that a form's
// own row has the last word.
namespace {

// The controls of the form that a row names: the control itself; for a row of index -1, every
// member of the array of that name; for a name ending in "*", every control beginning so.
std::vector<Control*> Destinos(const Form& form, const ControlVisible& v)
{
    if (!v.nombre.empty() && v.nombre.back() == '*') {
        std::vector<Control*> out;
        for (Control* c : form.Controls())
            if (StartsWithNoCase(c->Name(), v.nombre.substr(0, v.nombre.size() - 1)))
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
    // The rows of every form, joined once.
    static const std::map<std::string_view, std::vector<ControlVisible>> porForm = [] {
        std::map<std::string_view, std::vector<ControlVisible>> out;
        for (const TablaForm& t : TablasCampos()) {
            std::vector<ControlVisible>& filas = out[t.nombre];
            for (BloqueVisibles familia : t.visibles.familias)
                filas.insert(filas.end(), familia().begin(), familia().end());
            filas.insert(filas.end(), t.visibles.propias.begin(), t.visibles.propias.end());
        }
        return out;
    }();
    static const std::vector<ControlVisible> ninguno;
    const auto it = porForm.find(form);
    return it == porForm.end() ? ninguno : it->second;
}

const std::vector<ControlVisible>& ControlesComunes() { return EtiquetasComunes(); }

void AnadeControlesVisibles(Form& form)
{
    for (const ControlVisible& v : EtiquetasComunes())
        AplicaFila(form, v, false);
    for (const ControlVisible& v : ControlesVisibles(form.Name()))
        AplicaFila(form, v, true);
}

}  // namespace vardena
