#pragma once
// The rows of the lists of the element forms. Lists that several forms share are defined once;
// each form's definition names the lists of its combo boxes, by control name and, for a control
// array whose members differ, by index. A list without an index serves every member.

#include <span>
#include <string_view>

#include "base/ListaFija.h"

namespace vardena {

// The list of a combo box of a form; `index` -1 serves every member of an array.
struct Lista {
    std::string_view combo;
    int index;
    std::span<const std::string_view> filas;
};
// A form's lists; joined with +, a form's own lists stand before the shared ones, and the
// first match wins.
using Listas = ListaFija<Lista, 32>;

// ---- Concrete ----

inline constexpr std::string_view kHormigon[] = {"Idem gral.", "HA-10", "HA-15", "HA-20", "HA-25",
                                          "HA-30",      "HA-35", "HA-40", "HA-45", "HA-50"};
inline constexpr std::string_view kAceroArmar[] = {"Idem gral.", "B-400-S", "B-500-S"};
inline constexpr std::string_view kControl[] = {"Idem gral.", "Reducido", "Normal", "Intenso"};
// Concrete cover in millimetres.
inline constexpr std::string_view kRecubrimiento[] = {"15", "20", "25", "30", "35", "40", "45", "50", "55"};
inline constexpr std::string_view kAmbiente[] = {"I ", "IIa", "IIb", "IIIa", "IIIb", "IIIc", "IV"};
inline constexpr std::string_view kAmbienteEspecifico[] = {"   ", "Qa", "Qb", "Qc", "H ", "F ", "E "};
// The lintel writes its exposure classes without the padding blanks of the beams.
inline constexpr std::string_view kAmbienteDintel[] = {"I", "IIa", "IIb", "IIIa", "IIIb", "IIIc", "IV"};
inline constexpr std::string_view kAmbienteEspecificoDintel[] = {"", "Qa", "Qb", "Qc", "H", "F", "E"};
inline constexpr std::string_view kParticion[] = {"Tabiques", "Tab. frágil", "Ninguna"};
inline constexpr std::string_view kParticionMuros[] = {"Tabiques", "Muros", "Ninguna"};
inline constexpr std::string_view kTramos[] = {"1", "2", "3"};
inline constexpr std::string_view kTramosPortico[] = {">3", "3", "2", "1"};
inline constexpr std::string_view kTramosForjado[] = {">2", "2", "1"};
inline constexpr std::string_view kFormaPilar[] = {"Rectang.", "Circular"};
inline constexpr std::string_view kEsviada[] = {"0.6", "0.7", "0.8", "0.9", "0.8", "0.7",
                                         "0.6", "0.6", "0.6", "0.5", "0.5", "0.4"};
inline constexpr std::string_view kTipoForjado[] = {"Armado", "Pretensado", "Losa Alveolada"};
inline constexpr std::string_view kCaseton[] = {"Recuperable", "Perdido"};
inline constexpr std::string_view kCasetonAbaco[] = {"Recuperable", "Perdido", "Ninguno"};
inline constexpr std::string_view kCortanteUnidireccional[] = {"Celosía", "Cercos"};
inline constexpr std::string_view kCortanteInSitu[] = {"Ninguno", "Greca", "Celosía", "Cercos"};
inline constexpr std::string_view kCortanteNervios[] = {"Celosía", "Greca"};
inline constexpr std::string_view kHormigonado[] = {"Hormigonado monolítico", "Pilar endurecido", "Baja rugosidad"};

// ---- Steel ----

inline constexpr std::string_view kAceroLaminado[] = {"Idem gral.", "A37",   "A42",   "A52",
                                               "S 235",      "S 275", "S 355", "S 450"};
inline constexpr std::string_view kClaseSeccion[] = {"Clase 1", "Clase 2", "Clase 3", "Clase 4"};
// The load case of the steel checks picks one of two load factors, 1.5 or 1.33, which are
// the weighting factors of the load cases of the Spanish steel rules; the list offers their
// seven cases, more rows than any stored index of these forms reaches.
inline constexpr std::string_view kCasoCarga[] = {"Caso Ia", "Caso Ib", "Caso Ic", "Caso IIa",
                                           "Caso IIb", "Caso IIIa", "Caso IIIb"};
inline constexpr std::string_view kTornillos[] = {"3.6", "4.6", "4.8", "5.6", "5.8", "6.8", "8.8", "9.8", "10.9", "12.9"};

// ---- Timber ----

inline constexpr std::string_view kResistencia[] = {"Idem gral.", "C14", "C16", "C18", "C22", "C24", "C27",
                                             "C30",        "C35", "C40", "D30", "D35", "D40", "D50",
                                             "D60",        "D70", "GL24", "GL28", "GL32", "GL36"};
inline constexpr std::string_view kServicio[] = {"Idem gral.", "Clase 1", "Clase 2", "Clase 3"};
// The timber floor keeps "Idem gral." as the last row of both lists.
inline constexpr std::string_view kResistenciaIdemAlFinal[] = {"C14", "C16", "C18", "C22", "C24", "C27", "C30",
                                                        "C35", "C40", "D30", "D35", "D40", "D50", "D60",
                                                        "D70", "GL24", "GL28", "GL32", "GL36", "Idem gral."};
inline constexpr std::string_view kServicioIdemAlFinal[] = {"Clase 1", "Clase 2", "Clase 3", "Idem gral."};
inline constexpr std::string_view kUso[] = {"viv. y ofic.", "Uso público"};
inline constexpr std::string_view kUsoPilar[] = {"Vivienda y oficina", "Uso público"};
inline constexpr std::string_view kCargaCompartida[] = {"Elemento aislado", "Elemento conectado"};
inline constexpr std::string_view kParticionMadera[] = {"Muros", "Ninguna", "Tabiques"};

// ---- Masonry ----

inline constexpr std::string_view kCategoriaEjecucion[] = {"Idem. gral", " A", " B", " C"};
inline constexpr std::string_view kDintel[] = {"Hormigón", "Acero", "Madera", "Fábrica"};
// The enclosure takes its flexural strengths from the mortar and the kind of unit, by the
// same two lists as the masonry properties dialog.
inline constexpr std::string_view kMortero[] = {"Mortero ordinario", "Mortero junta delgada", "Mortero ligero"};
inline constexpr std::string_view kPieza[] = {"Pieza cerámica",    "Silico-calcáreos",  "Hormigón ordinario",
                                       "Hormigón celular", "Piedra artificial", "Piedra natural"};

// ---- Ground ----

inline constexpr std::string_view kTerreno[] = {"Definir datos...", "Arenas",       "Arena limosa",     "Limos",
                                         "Arcilla blanda",   "Arcilla dura", "Roca meteorizada", "Roca sana"};
inline constexpr std::string_view kCimiento[] = {"Zapata rectangular", "Zapata corrida", "Zapata circular",
                                          "Losa cimentación"};
inline constexpr std::string_view kTalud[] = {"Definir datos...",     "Arena",          "Arena limosa",
                                       "Arcilla arenosa blanda", "Arcilla arenosa dura", "Limos",
                                       "Arcillas blandas",     "Arcillas duras", "Marga rígida",
                                       "Roca meteorizada",     "Roca sana"};
inline constexpr std::string_view kRelleno[] = {"Definir ...",    "Grava",     "Arena",    "Cascote ladrillo",
                                         "Tierra vegetal", "Terraplén", "Pedraplén"};
inline constexpr std::string_view kRellenoContencion[] = {"Definir datos...", "Grava",     "Arena",     "Cascote ladrillo",
                                                   "Tierra vegetal",   "Terraplén", "Pedraplén", "Idem Terreno"};
inline constexpr std::string_view kSotanos[] = {"Idem gral.", "1", "2", "3", "4"};
inline constexpr std::string_view kTipoMuroContencion[] = {"Hormigón", "Fábrica"};
inline constexpr std::string_view kTerrenoAnclado[] = {"Arenas", "Arcillas plásticas: Base firme",
                                                "Arcillas plásticas: Base blanda", "Arcillas fisuradas"};
inline constexpr std::string_view kApoyoPilote[] = {"Roca", "Suelo"};
// Strata 0 to 5, the last at the tip: the capacity walks them up to the list's index.
inline constexpr std::string_view kEstratos[] = {"1", "2", "3", "4", "5", "6"};
inline constexpr std::string_view kCaracterizacion[] = {"Determinación por soluciones analíticas",
                                                 "Determinación por n. golpes ensayo Penetración dinámica"};
inline constexpr std::string_view kSueloPilote[] = {"Granular", "Fino"};
inline constexpr std::string_view kTiposPilote[] = {
    "CPI-2 Pilote de desplazamiento con azuche", "CPI-3 Pilote de desplazamiento con tapón de gravas",
    "CPI-4 Pilote de extracción con entubación recuperable", "CPI-5 Pilote de extracción con camisa perdida",
    "CPI-6 Pilote perforado con lodos", "CPI-7 Pilote barrenado sin entubación",
    "CPI-8 Pilote barrenado hormigonado por barrena"};
// Pile diameters in centimetres.
inline constexpr std::string_view kDiametroPilote[] = {"30", "35", "45", "55", "65", "85", "100", "125"};
// Piles under one cap. The caps drawn go from a single pile to groups of a dozen and more;
// the list runs to 16 so that every group a stored record names has its row.
inline constexpr std::string_view kNumeroPilotes[] = {"1", "2",  "3",  "4",  "5",  "6",  "7",  "8",
                                               "9", "10", "11", "12", "13", "14", "15", "16"};
inline constexpr std::string_view kPilTerreno[] = {"Coher. consist. media.", "Coher. consist. firme.",
                                            "Alterna coher.medio gran.", "Gravas y arenas sueltas",
                                            "Gravas en profundidad"};
inline constexpr std::string_view kPilNumero[] = {"<20 pilares", "20-100  pilares", ">100 pilares"};
inline constexpr std::string_view kPilCarga[] = {"0-200 toneladas", "200-500 toneladas"};
inline constexpr std::string_view kPilDificultad[] = {"Gravas, bolos pequeños", "Bolos grandes y equival.",
                                               "Gran. fino con agua", "Flujo de agua", "Medio agresivo"};
inline constexpr std::string_view kPilApoyo[] = {"Roca sana 10-20 m prof.",  "Roca sana 20-40 m prof.",
                                          "Coher. duro 10-20 m prof.", "Coher. duro 20-40 m prof.",
                                          "Gran. compacto 10-20 m",   "Gran. compacto 20-40 m",
                                          "HA-50"};
inline constexpr std::string_view kPilPunta[] = {"Punta>3Fuste", "Punta<=3Fuste"};

// ---- Actions ----

inline constexpr std::string_view kZonaNieve[] = {"1 ", "2 ", "3 ", "4 ", "5 ", "6 ", "7 "};
inline constexpr std::string_view kZonaEolica[] = {" A", " B", " C"};
inline constexpr std::string_view kEntorno[] = {"I   Borde de mar o lago", "II  Terreno rural llano",
                                         "III Zona rural accidentada", "IV  Zona urbana",
                                         "V   Centro negocio ciudad"};
inline constexpr std::string_view kImportancia[] = {"Normal", "Especial"};
inline constexpr std::string_view kEstructura[] = {"Hormigón", "Acero", "Fábrica", "Hormigón+Pantalla", "Acero+Pantalla"};
inline constexpr std::string_view kSueloSismo[] = {"I ", "II", "III", "IV", "No uniforme"};
inline constexpr std::string_view kSueloEstrato[] = {"I ", "II", "III", "IV"};
inline constexpr std::string_view kCompartimentacion[] = {"Compartimentada", "Diáfana"};
inline constexpr std::string_view kDuctilidad[] = {"m= 1", "m= 2", "m= 3", "m= 4"};

// Lists that several forms share.
constexpr Listas ListasHormigon()
{
    return {{"CmbHorm", -1, kHormigon}, {"CmbAcero", -1, kAceroArmar}, {"cmbControl", -1, kControl},
            {"CmbRecub", -1, kRecubrimiento}};
}
// The corbel, the piles and the blank element offer grades from HA-25 on, but the record reader
// maps every stored CmbHorm index onto the ten rows from "HA-10": with a shorter list an old
// record's HA-40 to HA-50 would fall outside the rows and HA-25 would read as HA-40. They keep
// the full list so that their records of version 3 read right.
constexpr Listas ListasHormigon25() { return ListasHormigon(); }
constexpr Listas ListasExposicion() { return {{"CmbAmbGral", -1, kAmbiente}, {"CmbAmbEspec", -1, kAmbienteEspecifico}}; }
constexpr Listas ListasViga() { return {{"cmbPart", -1, kParticion}, {"CmTramos", -1, kTramos}}; }
constexpr Listas ListasAcero()
{
    return {{"CmbAcero", -1, kAceroLaminado}, {"cmbClase", -1, kClaseSeccion}, {"CmbCaso", -1, kCasoCarga}};
}
constexpr Listas ListasMadera() { return {{"CmbResis", -1, kResistencia}, {"CmbServi", -1, kServicio}, {"CmbUso", -1, kUso}}; }
constexpr Listas ListasPilar() { return {{"CmbForma", -1, kFormaPilar}, {"cmbesviada", -1, kEsviada}}; }
constexpr Listas ListasMuro() { return {{"CmbSot", -1, kSotanos}}; }
constexpr Listas ListasForjado() { return {{"Combo1", -1, kParticionMuros}}; }

}  // namespace vardena
