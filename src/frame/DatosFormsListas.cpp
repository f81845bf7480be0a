// The rows of every list of the element forms. Lists that several forms share are defined
// once; each form names the lists of its combo boxes, by control name and, for a control
// array whose members differ, by index. A list without an index serves every member.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/DatosForms.h"
#include "base/FileIo.h"
#include "base/Form.h"

namespace vardena {
namespace {

using Filas = std::span<const std::string_view>;

// ---- Concrete ----

constexpr std::string_view kHormigon[] = {"Idem gral.", "HA-10", "HA-15", "HA-20", "HA-25",
                                          "HA-30",      "HA-35", "HA-40", "HA-45", "HA-50"};
constexpr std::string_view kAceroArmar[] = {"Idem gral.", "B-400-S", "B-500-S"};
constexpr std::string_view kControl[] = {"Idem gral.", "Reducido", "Normal", "Intenso"};
// Concrete cover in millimetres.
constexpr std::string_view kRecubrimiento[] = {"15", "20", "25", "30", "35", "40", "45", "50", "55"};
constexpr std::string_view kAmbiente[] = {"I ", "IIa", "IIb", "IIIa", "IIIb", "IIIc", "IV"};
constexpr std::string_view kAmbienteEspecifico[] = {"   ", "Qa", "Qb", "Qc", "H ", "F ", "E "};
// The lintel writes its exposure classes without the padding blanks of the beams.
constexpr std::string_view kAmbienteDintel[] = {"I", "IIa", "IIb", "IIIa", "IIIb", "IIIc", "IV"};
constexpr std::string_view kAmbienteEspecificoDintel[] = {"", "Qa", "Qb", "Qc", "H", "F", "E"};
constexpr std::string_view kParticion[] = {"Tabiques", "Tab. frágil", "Ninguna"};
constexpr std::string_view kParticionMuros[] = {"Tabiques", "Muros", "Ninguna"};
constexpr std::string_view kTramos[] = {"1", "2", "3"};
constexpr std::string_view kTramosPortico[] = {">3", "3", "2", "1"};
constexpr std::string_view kTramosForjado[] = {">2", "2", "1"};
constexpr std::string_view kFormaPilar[] = {"Rectang.", "Circular"};
constexpr std::string_view kEsviada[] = {"0.6", "0.7", "0.8", "0.9", "0.8", "0.7",
                                         "0.6", "0.6", "0.6", "0.5", "0.5", "0.4"};
constexpr std::string_view kTipoForjado[] = {"Armado", "Pretensado", "Losa Alveolada"};
constexpr std::string_view kCaseton[] = {"Recuperable", "Perdido"};
constexpr std::string_view kCasetonAbaco[] = {"Recuperable", "Perdido", "Ninguno"};
constexpr std::string_view kCortanteUnidireccional[] = {"Celosía", "Cercos"};
constexpr std::string_view kCortanteInSitu[] = {"Ninguno", "Greca", "Celosía", "Cercos"};
constexpr std::string_view kCortanteNervios[] = {"Celosía", "Greca"};
constexpr std::string_view kHormigonado[] = {"Hormigonado monolítico", "Pilar endurecido", "Baja rugosidad"};

// ---- Steel ----

constexpr std::string_view kAceroLaminado[] = {"Idem gral.", "A37",   "A42",   "A52",
                                               "S 235",      "S 275", "S 355", "S 450"};
constexpr std::string_view kClaseSeccion[] = {"Clase 1", "Clase 2", "Clase 3", "Clase 4"};
// The load case of the steel checks picks one of two load factors, 1.5 or 1.33, which are
// the weighting factors of the load cases of the Spanish steel rules; the list offers their
// seven cases, more rows than any stored index of these forms reaches.
constexpr std::string_view kCasoCarga[] = {"Caso Ia", "Caso Ib", "Caso Ic", "Caso IIa",
                                           "Caso IIb", "Caso IIIa", "Caso IIIb"};
constexpr std::string_view kTornillos[] = {"3.6", "4.6", "4.8", "5.6", "5.8", "6.8", "8.8", "9.8", "10.9", "12.9"};

// ---- Timber ----

constexpr std::string_view kResistencia[] = {"Idem gral.", "C14", "C16", "C18", "C22", "C24", "C27",
                                             "C30",        "C35", "C40", "D30", "D35", "D40", "D50",
                                             "D60",        "D70", "GL24", "GL28", "GL32", "GL36"};
constexpr std::string_view kServicio[] = {"Idem gral.", "Clase 1", "Clase 2", "Clase 3"};
// The timber floor keeps "Idem gral." as the last row of both lists.
constexpr std::string_view kResistenciaIdemAlFinal[] = {"C14", "C16", "C18", "C22", "C24", "C27", "C30",
                                                        "C35", "C40", "D30", "D35", "D40", "D50", "D60",
                                                        "D70", "GL24", "GL28", "GL32", "GL36", "Idem gral."};
constexpr std::string_view kServicioIdemAlFinal[] = {"Clase 1", "Clase 2", "Clase 3", "Idem gral."};
constexpr std::string_view kUso[] = {"viv. y ofic.", "Uso público"};
constexpr std::string_view kUsoPilar[] = {"Vivienda y oficina", "Uso público"};
constexpr std::string_view kCargaCompartida[] = {"Elemento aislado", "Elemento conectado"};
constexpr std::string_view kParticionMadera[] = {"Muros", "Ninguna", "Tabiques"};

// ---- Masonry ----

constexpr std::string_view kCategoriaEjecucion[] = {"Idem. gral", " A", " B", " C"};
constexpr std::string_view kDintel[] = {"Hormigón", "Acero", "Madera", "Fábrica"};
// The enclosure takes its flexural strengths from the mortar and the kind of unit, by the
// same two lists as the masonry properties dialog.
constexpr std::string_view kMortero[] = {"Mortero ordinario", "Mortero junta delgada", "Mortero ligero"};
constexpr std::string_view kPieza[] = {"Pieza cerámica",    "Silico-calcáreos",  "Hormigón ordinario",
                                       "Hormigón celular", "Piedra artificial", "Piedra natural"};

// ---- Ground ----

constexpr std::string_view kTerreno[] = {"Definir datos...", "Arenas",       "Arena limosa",     "Limos",
                                         "Arcilla blanda",   "Arcilla dura", "Roca meteorizada", "Roca sana"};
constexpr std::string_view kCimiento[] = {"Zapata rectangular", "Zapata corrida", "Zapata circular",
                                          "Losa cimentación"};
constexpr std::string_view kTalud[] = {"Definir datos...",     "Arena",          "Arena limosa",
                                       "Arcilla arenosa blanda", "Arcilla arenosa dura", "Limos",
                                       "Arcillas blandas",     "Arcillas duras", "Marga rígida",
                                       "Roca meteorizada",     "Roca sana"};
constexpr std::string_view kRelleno[] = {"Definir ...",    "Grava",     "Arena",    "Cascote ladrillo",
                                         "Tierra vegetal", "Terraplén", "Pedraplén"};
constexpr std::string_view kRellenoContencion[] = {"Definir datos...", "Grava",     "Arena",     "Cascote ladrillo",
                                                   "Tierra vegetal",   "Terraplén", "Pedraplén", "Idem Terreno"};
constexpr std::string_view kSotanos[] = {"Idem gral.", "1", "2", "3", "4"};
constexpr std::string_view kTipoMuroContencion[] = {"Hormigón", "Fábrica"};
constexpr std::string_view kTerrenoAnclado[] = {"Arenas", "Arcillas plásticas: Base firme",
                                                "Arcillas plásticas: Base blanda", "Arcillas fisuradas"};
constexpr std::string_view kApoyoPilote[] = {"Roca", "Suelo"};
// Strata 0 to 5, the last at the tip: the capacity walks them up to the list's index.
constexpr std::string_view kEstratos[] = {"1", "2", "3", "4", "5", "6"};
constexpr std::string_view kCaracterizacion[] = {"Determinación por soluciones analíticas",
                                                 "Determinación por n. golpes ensayo Penetración dinámica"};
constexpr std::string_view kSueloPilote[] = {"Granular", "Fino"};
constexpr std::string_view kTiposPilote[] = {
    "CPI-2 Pilote de desplazamiento con azuche", "CPI-3 Pilote de desplazamiento con tapón de gravas",
    "CPI-4 Pilote de extracción con entubación recuperable", "CPI-5 Pilote de extracción con camisa perdida",
    "CPI-6 Pilote perforado con lodos", "CPI-7 Pilote barrenado sin entubación",
    "CPI-8 Pilote barrenado hormigonado por barrena"};
// Pile diameters in centimetres.
constexpr std::string_view kDiametroPilote[] = {"30", "35", "45", "55", "65", "85", "100", "125"};
// Piles under one cap. The caps drawn go from a single pile to groups of a dozen and more;
// the list runs to 16 so that every group a stored record names has its row.
constexpr std::string_view kNumeroPilotes[] = {"1", "2",  "3",  "4",  "5",  "6",  "7",  "8",
                                               "9", "10", "11", "12", "13", "14", "15", "16"};
constexpr std::string_view kPilTerreno[] = {"Coher. consist. media.", "Coher. consist. firme.",
                                            "Alterna coher.medio gran.", "Gravas y arenas sueltas",
                                            "Gravas en profundidad"};
constexpr std::string_view kPilNumero[] = {"<20 pilares", "20-100  pilares", ">100 pilares"};
constexpr std::string_view kPilCarga[] = {"0-200 toneladas", "200-500 toneladas"};
constexpr std::string_view kPilDificultad[] = {"Gravas, bolos pequeños", "Bolos grandes y equival.",
                                               "Gran. fino con agua", "Flujo de agua", "Medio agresivo"};
constexpr std::string_view kPilApoyo[] = {"Roca sana 10-20 m prof.",  "Roca sana 20-40 m prof.",
                                          "Coher. duro 10-20 m prof.", "Coher. duro 20-40 m prof.",
                                          "Gran. compacto 10-20 m",   "Gran. compacto 20-40 m",
                                          "HA-50"};
constexpr std::string_view kPilPunta[] = {"Punta>3Fuste", "Punta<=3Fuste"};

// ---- Actions ----

constexpr std::string_view kZonaNieve[] = {"1 ", "2 ", "3 ", "4 ", "5 ", "6 ", "7 "};
constexpr std::string_view kZonaEolica[] = {" A", " B", " C"};
constexpr std::string_view kEntorno[] = {"I   Borde de mar o lago", "II  Terreno rural llano",
                                         "III Zona rural accidentada", "IV  Zona urbana",
                                         "V   Centro negocio ciudad"};
constexpr std::string_view kImportancia[] = {"Normal", "Especial"};
constexpr std::string_view kEstructura[] = {"Hormigón", "Acero", "Fábrica", "Hormigón+Pantalla", "Acero+Pantalla"};
constexpr std::string_view kSueloSismo[] = {"I ", "II", "III", "IV", "No uniforme"};
constexpr std::string_view kSueloEstrato[] = {"I ", "II", "III", "IV"};
constexpr std::string_view kCompartimentacion[] = {"Compartimentada", "Diáfana"};
constexpr std::string_view kDuctilidad[] = {"m= 1", "m= 2", "m= 3", "m= 4"};

// ---- Forms ----

struct Lista {
    std::string_view combo;
    int index;  // -1: every member
    Filas filas;
};
using Listas = std::vector<Lista>;

struct ListasDeForm {
    std::string_view form;
    Listas listas;
};

Listas operator+(Listas a, const Listas& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const std::vector<ListasDeForm>& Tabla()
{
    static const std::vector<ListasDeForm> tabla = [] {
        const Listas hormigon = {{"CmbHorm", -1, kHormigon},
                                 {"CmbAcero", -1, kAceroArmar},
                                 {"cmbControl", -1, kControl},
                                 {"CmbRecub", -1, kRecubrimiento}};
        // The corbel, the piles and the blank element offer grades from HA-25 on, but the record
        // reader maps every stored CmbHorm index onto the ten rows from "HA-10": with a shorter
        // list an old record's HA-40 to HA-50 would fall outside the rows and HA-25 would read as
        // HA-40. They keep the full list so that their records of version 3 read right.
        const Listas hormigon25 = hormigon;
        const Listas exposicion = {{"CmbAmbGral", -1, kAmbiente}, {"CmbAmbEspec", -1, kAmbienteEspecifico}};
        const Listas viga = {{"cmbPart", -1, kParticion}, {"CmTramos", -1, kTramos}};
        const Listas acero = {
            {"CmbAcero", -1, kAceroLaminado}, {"cmbClase", -1, kClaseSeccion}, {"CmbCaso", -1, kCasoCarga}};
        const Listas madera = {{"CmbResis", -1, kResistencia}, {"CmbServi", -1, kServicio}, {"CmbUso", -1, kUso}};
        const Listas pilar = {{"CmbForma", -1, kFormaPilar}, {"cmbesviada", -1, kEsviada}};
        const Listas muro = {{"CmbSot", -1, kSotanos}};
        const Listas forjado = {{"Combo1", -1, kParticionMuros}};

        return std::vector<ListasDeForm>{
            // The first match wins: a form's own list stands before the group it overrides.
            {"frmVigHorm", exposicion + viga + hormigon},
            {"frmVigRegHorm",
             Listas{{"cmbPart", -1, kParticionMuros},
                    {"cmbTrPort", -1, kTramosPortico},
                    {"cmbTrForj", -1, kTramosForjado}} +
                 exposicion + viga + hormigon},
            {"frmPilHorm", pilar + hormigon},
            {"frmForjUnid", Listas{{"cmbTipoFor", -1, kTipoForjado}, {"cmbCercos", -1, kCortanteUnidireccional}} +
                                forjado + exposicion + hormigon},
            // The cast-in-place slab names its partition list cmbPart, in the place and with the rows
            // of the one-way slab's Combo1.
            {"frmForjSitu",
             Listas{{"cmbCercos", -1, kCortanteInSitu}, {"cmbPart", -1, kParticionMuros}} + exposicion + hormigon},
            {"frmForjRet", Listas{{"cmbTipoFor", -1, kCaseton}} + forjado + hormigon},
            {"frmForMaci", forjado + hormigon},
            {"frmAbaco", Listas{{"cmbTipoFor", -1, kCasetonAbaco}, {"cmbCercos", -1, kCortanteNervios}} + hormigon},
            {"frmMensCorta", Listas{{"Hormig", -1, kHormigonado}} + hormigon25},
            {"frmVigPared", viga + hormigon},
            {"frmEscHorm", exposicion + hormigon},
            {"frmVigMet", acero + viga},
            {"frmPilMet", acero},
            {"frmBasMet", Listas{{"CmbTornillos", -1, kTornillos}} + acero},
            {"frmForjAcer", acero + viga},
            {"frmEscMet", acero},
            {"frmVigMade", Listas{{"CmbCargaComp", -1, kCargaCompartida}} + madera + viga},
            {"frmPilMade", Listas{{"CmbUso", -1, kUsoPilar}} + madera + pilar},
            {"frmForMade", Listas{{"CmbResis", -1, kResistenciaIdemAlFinal},
                                  {"CmbServi", -1, kServicioIdemAlFinal},
                                  {"Combo1", -1, kParticionMadera}} +
                               madera},
            {"frmEscMade", madera},
            {"frmMuros", Listas{{"CmbCatEjec", -1, kCategoriaEjecucion}}},
            {"frmMDint", Listas{{"CmbDintel", -1, kDintel},
                                {"CmbAmbGral", -1, kAmbienteDintel},
                                {"CmbAmbEspec", -1, kAmbienteEspecificoDintel},
                                {"cmbAceroPerfil", -1, kAceroLaminado}} +
                             madera + hormigon},
            {"frmMCerr", Listas{{"CmbCatEjec", -1, kCategoriaEjecucion},
                                {"CmbFMort", -1, kMortero},
                                {"CmbFMat", -1, kPieza}}},
            {"frmSuelo", Listas{{"CmbTerreno", -1, kTerreno}, {"ComboCim", -1, kCimiento}}},
            {"frmZap", hormigon},
            {"frmZapComb", hormigon},
            {"frmZapCorr", hormigon},
            {"frmPilotes", Listas{{"CmbApoyo", -1, kApoyoPilote},
                                  {"CmbEstratos", -1, kEstratos},
                                  {"CmbCaract", -1, kCaracterizacion},
                                  {"cmbSuelo", -1, kSueloPilote},
                                  {"cmbPil", 0, kPilTerreno},
                                  {"cmbPil", 1, kPilNumero},
                                  {"cmbPil", 2, kPilCarga},
                                  {"cmbPil", 3, kPilDificultad},
                                  {"cmbPil", 4, kPilApoyo},
                                  {"cmbPil", 5, kPilPunta},
                                  {"CmbTipos", -1, kTiposPilote},
                                  {"CmbDiam", -1, kDiametroPilote},
                                  {"CmbNumPil", -1, kNumeroPilotes}} +
                               hormigon25},
            {"frmMuroH", Listas{{"CmbTerr", -1, kRelleno}} + muro + hormigon},
            {"frmMuroCont", Listas{{"cmbTipo", -1, kTipoMuroContencion},
                                   {"CmbTerreno", -1, kTerreno},
                                   {"CmbTerr", -1, kRellenoContencion}} +
                                hormigon},
            {"frmMuroAnclado", Listas{{"CmbTalud", -1, kTalud}, {"cmbTerz", -1, kTerrenoAnclado}} + muro + hormigon},
            {"frmTalud", Listas{{"CmbTalud", -1, kTalud}}},
            {"frmAccio", Listas{{"cmbNieve", -1, kZonaNieve},
                                {"cmbZonEol", -1, kZonaEolica},
                                {"cmbEntorno", -1, kEntorno},
                                {"cmbImportSismo", -1, kImportancia},
                                {"cmbEstruct", -1, kEstructura},
                                {"cmbSueloSismo", -1, kSueloSismo},
                                {"cmbCompart", -1, kCompartimentacion},
                                {"cmbDuct", -1, kDuctilidad},
                                {"cmbSuelo", -1, kSueloEstrato}}},
            // The eight forms with a free-text result carry the materials alone; the blank
            // element's concrete list starts at HA-25, behind its "Idem gral." row.
            {"frmEnBlanco", hormigon25},
            {"frmLosCime", hormigon},
            {"frmMArco", hormigon},
            {"frmMArma", hormigon},
            {"frmSolArma", hormigon},
            {"frmUniAto", hormigon},
            {"frmUniSol", hormigon},
            {"frmVigFlot", hormigon},
        };
    }();
    return tabla;
}

const Lista* ListaDe(const ListasDeForm& f, const Control& c)
{
    for (const Lista& l : f.listas)
        if (SameNameNoCase(l.combo, c.Name()) && (l.index < 0 || l.index == c.Index()))
            return &l;
    return nullptr;
}

}  // namespace

void LlenaListas(Form& form)
{
    for (const ListasDeForm& f : Tabla()) {
        if (!SameNameNoCase(f.form, form.Name()))
            continue;
        // CmbPlanta has no entry: LlenaPlantas fills it with the levels of the work.
        for (Control* c : form.Controls())
            if (c->kind() == Kind::ComboBox)
                if (const Lista* l = ListaDe(f, *c))
                    c->SetItems(std::vector<std::string>(l->filas.begin(), l->filas.end()));
        return;
    }
}

}  // namespace vardena
