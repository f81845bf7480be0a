#include "building/Acciones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "base/Codepage.h"
#include "base/FileIo.h"
#include "base/VbFormat.h"
#include "building/DatosGen.h"
#include "frame/Campos.h"
#include "frame/Formularios.h"
#include "reports/mRtf.h"
#include "works/Declaraciones.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr const char* kCrLf = "\r\n";
constexpr char kTab = '\t';
constexpr const char* kTitulo = "Acciones";

// The check box of each action and the frames it switches on and off.
struct AccionMarcos {
    const char* casilla;
    const char* marcos[2];
};
constexpr AccionMarcos kAcciones[] = {
    {"ChNieve", {"UCNieve", "UCSobrNieve"}},
    {"ChViento", {"UCviento", "UCCargaViento"}},
    {"ChSismo", {"UCSismo", "UCCargaSismica"}},
};

// The soil coefficient C of the soil types I to IV.
constexpr double kCoefSuelo[] = {1.0, 1.3, 1.6, 2.0};
// The mass table: surface, enclosure length and singular dead loads of each slab.
constexpr const char* kMasasP[] = {"TxtSupeP", "TxtLongP", "TxtSingP"};
constexpr const char* kMasasS[] = {"TxtSupeS", "TxtLongS", "TxtSingS"};
constexpr int kMaxEstratos = 5;
constexpr double kEspesorEstratos = 30;
// Twips of the mass panel: first row and row pitch.
constexpr int kPrimeraFila = 1110;
constexpr int kPasoFila = 330;

bool Marcada(const Control& c) { return c.CheckValue() != 0; }

// Whether the floors and basements of the work fit the level tables of the general data.
bool PlantasEnTablas(const Declaraciones& d)
{
    return d.NPlantasSobre >= 0 && d.NPlantasSobre <= kMaxFloors && d.NPlantasBajo >= 0 &&
           d.NPlantasBajo <= kMaxBasements;
}

std::string TextoPlantas(const Declaraciones& d)
{
    return Mensaje(d, 1515, {std::to_string(kMaxFloors), std::to_string(kMaxBasements), std::to_string(d.NPlantasSobre),
                             std::to_string(d.NPlantasBajo)});
}

// A division of the calculation: by zero it is the run time's error 11 (6 for 0 / 0), with the
// description given.
double Divide(double a, double b, const std::string& descripcion)
{
    if (b == 0)
        throw ErrorEjecucion(a == 0 ? 6 : 11, descripcion);
    return a / b;
}

std::string Une(std::initializer_list<std::string> partes, char sep)
{
    std::string out;
    bool primero = true;
    for (const std::string& p : partes) {
        if (!primero)
            out += sep;
        out += p;
        primero = false;
    }
    return out;
}

// The heading of a table of storeys: a title, its column headings, the units and the rule.
std::string Cabecera(const std::string& titulo, const std::string& columnas, const std::string& unidades)
{
    return titulo + kCrLf + columnas + kCrLf + unidades + kCrLf + "  ------" + kTab + std::string(61, '-');
}

std::string NumeroFila(int n) { return "    " + VbStr(static_cast<double>(n)); }

// Whether a text is a number and nothing else: sign, digits, one decimal point, an exponent.
bool EsNumero(const std::string& item)
{
    if (item.empty() || item.find_first_not_of("0123456789+-.eE") != std::string::npos)
        return false;
    char* fin = nullptr;
    std::strtod(item.c_str(), &fin);
    return fin && *fin == '\0';
}

// A text box's value as the report shows a number: with the mask when it holds one, as it stands
// when it holds a word ("Estudio especial").
std::string Mascara00(const std::string& texto)
{
    const std::string numero = CambiaCar(texto, ",", ".");
    return EsNumero(numero) ? Formato00(ValComaCopy(numero)) : texto;
}

// The text of a number as a box shows it when it is given one: "0.5", "-0.6". A Single shows
// its 7 digits.
std::string ConCero(std::string t)
{
    if (t.rfind("-.", 0) == 0)
        t.insert(1, "0");
    return t;
}
std::string Texto(double v) { return ConCero(FormatoNum(v)); }
std::string Texto(float v) { return ConCero(FormatoNum(v)); }

// Label `n` (from 1) of a message that holds a tab-separated list of them; "" when it lacks it.
std::string Rotulo(const Declaraciones& d, int mensaje, int n) { return Palabra(n, d.Msg(mensaje), "\t"); }

// The items of the snow table in reading order: quoted texts as they stand, others up to a comma,
// a blank or a line end, so that the two headings may stand on one line ("ALTITUD ZONAS").
// Comment lines are left out.
class LectorNieve {
public:
    explicit LectorNieve(std::string_view texto)
    {
        for (const std::string& linea : SplitLines(texto)) {
            const size_t p = linea.find_first_not_of(" \t");
            if (p != std::string::npos && (linea[p] == '\'' || linea[p] == ';'))
                continue;
            texto_ += linea + "\n";
        }
    }
    // The next item; false when there is none left.
    bool Siguiente(std::string& item)
    {
        while (pos_ < texto_.size() && std::string_view(" \t\n").find(texto_[pos_]) != std::string_view::npos)
            ++pos_;
        if (pos_ >= texto_.size())
            return false;
        size_t fin;
        if (texto_[pos_] == '"') {
            fin = texto_.find_first_of("\"\n", pos_ + 1);
            if (fin == std::string::npos)
                fin = texto_.size();
            item = texto_.substr(pos_ + 1, fin - pos_ - 1);
            pos_ = fin < texto_.size() && texto_[fin] == '"' ? fin + 1 : fin;
        } else {
            fin = texto_.find_first_of(", \t\n", pos_);
            if (fin == std::string::npos)
                fin = texto_.size();
            item = texto_.substr(pos_, fin - pos_);
            pos_ = fin;
        }
        // The delimiter after the item, with the blanks before it.
        while (pos_ < texto_.size() && (texto_[pos_] == ' ' || texto_[pos_] == '\t'))
            ++pos_;
        if (pos_ < texto_.size() && texto_[pos_] == ',')
            ++pos_;
        return true;
    }

private:
    std::string texto_;
    size_t pos_ = 0;
};

// The floors of the modal analysis from the ground up, index 1 to n (0 and n + 1 stay 0):
// weight (t), height (m), the force of each mode 1 to 3 (t) and the storey shear they combine to.
struct Modal {
    explicit Modal(int plantas)
        : n(plantas), P(Filas(plantas)), z(Filas(plantas)), V(Filas(plantas)), F(Filas(plantas).size())
    {
    }
    static std::vector<double> Filas(int n) { return std::vector<double>(static_cast<size_t>(n) + 2, 0.0); }
    int n;
    std::vector<double> P, z, V;
    std::vector<std::array<double, 4>> F;  // F[i][k]
};

// What the spectrum gives the modes: how many, the fundamental and corner periods (s), the
// calculation acceleration (g), the response coefficient and the building's height (m).
struct EspectroModal {
    int modos;
    double TF, TB, ac, beta, H;
};

// The sentences of the divisions of the analysis that can meet a zero: the height, the corner
// period, the masses.
struct Divisiones {
    std::string altura, periodo, masas;
};

// The mode shapes phi = sin((2k - 1) pi z / 2H); the spectrum's alpha of each mode's period; the
// modal forces F = P eta alpha ac beta with eta = phi (sum P phi) / (sum P phi2); and the storey
// shears combined by the square root of the sum of the squares.
void AnalisisModal(const EspectroModal& e, const Divisiones& div, Modal& m)
{
    const size_t n = static_cast<size_t>(m.n);
    std::vector<std::array<double, 4>> phi(n + 2, std::array<double, 4>{});
    for (int k = 1; k <= e.modos; ++k) {
        const double T = e.TF / (2.0 * k - 1);
        const double alpha = T < e.TB ? 2.5 : 2.5 * Divide(e.TB, T, div.periodo);
        double suma = 0, suma2 = 0;
        for (size_t j = 1; j <= n; ++j) {
            phi[j][k] = std::sin((2.0 * k - 1) * kPi * Divide(m.z[j], 2 * e.H, div.altura));
            suma += m.P[j] * phi[j][k];
            suma2 += m.P[j] * phi[j][k] * phi[j][k];
        }
        for (size_t i = 1; i <= n; ++i)
            m.F[i][k] = m.P[i] * phi[i][k] * Divide(suma, suma2, div.masas) * alpha * e.ac * e.beta;
    }
    for (size_t i = 1; i <= n; ++i) {
        double cuadrados = 0;
        for (int k = 1; k <= e.modos; ++k) {
            double cortante = 0;
            for (size_t j = i; j <= n; ++j)
                cortante += m.F[j][k];
            cuadrados += cortante * cortante;
        }
        m.V[i] = std::sqrt(cuadrados);
    }
}

// The two seismic tables, the top floor first, forces in kN: the force of each mode, then the
// weight and the equivalent force of each floor.
std::string TablasSismo(const Declaraciones& d, const Modal& m)
{
    std::string texto = Cabecera(d.Msg(1301), Une({d.Msg(995), d.Msg(996), d.Msg(997), d.Msg(997), d.Msg(997)}, kTab),
                                 Une({"        ", "  (m) ", d.Msg(998) + " 1", d.Msg(998) + " 2", d.Msg(998) + " 3"}, kTab));
    for (size_t i = static_cast<size_t>(m.n); i >= 1; --i)
        texto += kCrLf + NumeroFila(static_cast<int>(i)) + kTab + Formato00(m.z[i]) + kTab + Formato00(10 * m.F[i][1]) +
                 kTab + Formato00(10 * m.F[i][2]) + kTab + "   " + Formato00(10 * m.F[i][3]);
    texto += std::string(kCrLf) + kCrLf +
             Cabecera(d.Msg(1302), Une({d.Msg(990), d.Msg(991), "P.", d.Msg(990), "", "Fk "}, kTab),
                      Une({"        ", "  (m) ", " (kN)", "     ", " (kN)"}, kTab));
    for (size_t i = static_cast<size_t>(m.n); i >= 1; --i)
        texto += kCrLf + NumeroFila(static_cast<int>(i)) + kTab + Formato00(m.z[i]) + kTab + Formato0(10 * m.P[i]) +
                 kTab + "     " + kTab + Formato00(10 * (m.V[i] - m.V[i + 1]));
    return texto;
}
}  // namespace

// ---- Tables ----

TablaNieve LeeTablaNieve(const Declaraciones& d, const std::string& path)
{
    const std::optional<std::string> bytes = ReadFileIfExists(path);
    if (!bytes)
        throw FileError(path, Mensaje(d, 1513));
    LectorNieve lector(Cp1252ToUtf8(*bytes));
    std::string item;
    int leidos = 0;
    for (int i = 0; i < 2; ++i, ++leidos)
        if (!lector.Siguiente(item))
            throw FileError(path, Mensaje(d, 1514, {std::to_string(leidos + 1)}));
    TablaNieve tabla{};
    for (auto& fila : tabla)
        for (float& carga : fila) {
            ++leidos;
            if (!lector.Siguiente(item) || !EsNumero(item))
                throw FileError(path, Mensaje(d, 1514, {std::to_string(leidos)}));
            carga = static_cast<float>(std::strtod(item.c_str(), nullptr));
        }
    return tabla;
}

int FilaNieve(double altitud)
{
    static constexpr double kLimites[] = {200, 400, 500, 600, 700, 800, 900, 1000, 1200, 1400, 1600, 1800, 2000};
    for (int i = 0; i < static_cast<int>(std::size(kLimites)); ++i)
        if (altitud < kLimites[i])
            return i + 1;
    return kFilasNieve;
}

CoeficientesViento CoeficientesEsbeltez(double e)
{
    // The suction steps from -0.6 to -0.7 right above 1.25: that limit alone belongs to the row
    // below it.
    if (e < 0.25)
        return {0.7f, -0.3f};
    if (e < 0.5)
        return {0.7f, static_cast<float>(-0.3 - 0.1 * (e - 0.25) / 0.25)};
    if (e < 0.75)
        return {static_cast<float>(0.7 + 0.1 * (e - 0.5) / 0.25), -0.4f};
    if (e < 1)
        return {0.8f, static_cast<float>(-0.4 - 0.1 * (e - 0.75) / 0.25)};
    if (e <= 1.25)
        return {0.8f, static_cast<float>(-0.5 - 0.1 * (e - 1) / 0.25)};
    return {0.8f, -0.7f};
}

Entorno ConstantesEntorno(int clase)
{
    static constexpr Entorno kEntornos[] = {
        {0.15, 0.003, 1}, {0.17, 0.01, 1}, {0.19, 0.05, 2}, {0.22, 0.3, 5}, {0.24, 1.0, 10},
    };
    if (clase < 1 || clase > 5)
        return {0, 0, 0};
    return kEntornos[clase - 1];
}

// ---- The form ----

Acciones::Acciones(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    // Each handler runs under the error window with its own name; while a record is being read
    // the handlers that change other fields return at once, so that what was stored stays.
    auto conecta = [this](Control& c, std::string nombre, std::function<void()> cuerpo, bool guardado) {
        c.onClick = [this, nombre, cuerpo, guardado](Control&) {
            if (guardado)
                Evento(nombre, cuerpo);
            else
                ConVentanaError(decl(), nombre, cuerpo);
        };
    };
    for (const AccionMarcos& a : kAcciones) {
        const std::string casilla = a.casilla;
        conecta(At(casilla), casilla + "_Click", [this, casilla] { ChAccion_Click(casilla); }, true);
    }
    conecta(At("cmbImportSismo"), "cmbImportSismo_Click", [this] { cmbImportSismo_Click(); }, true);
    conecta(At("cmbSueloSismo"), "cmbSueloSismo_Click", [this] { cmbSueloSismo_Click(); }, true);
    conecta(At("cmbEstruct"), "cmbEstruct_Click", [this] { cmbEstruct_Click(); }, true);
    conecta(At("cmbCompart"), "cmbCompart_Click", [this] { CalculaBeta(); }, true);
    conecta(At("cmbDuct"), "cmbDuct_Click", [this] { CalculaBeta(); }, true);
    conecta(At("cmdSueloSismo"), "cmdSueloSismo_Click", [this] { cmdSueloSismo_Click(); }, false);
    conecta(At("UCOK2"), "UCOK2_Click", [this] { UCOK2_Click(); }, false);
    conecta(At("UCOK1"), "UCOK1_Click", [this] { UCOK1_Click(); }, false);
    conecta(At("CmdMasas"), "CmdMasas_Click", [this] { CmdMasas_Click(); }, false);
    conecta(At("UCOK"), "UCOK_Click", [this] { UCOK_Click(); }, false);
    for (int i = 0; i < 2; ++i)
        conecta(At("AsignaC", i), "AsignaC_Click", [this, i] { AsignaC_Click(i); }, false);
    conecta(At("cmdAltitud"), "cmdAltitud_Click", [this] { cmdAltitud_Click(); }, false);
    conecta(At("cmdEolica"), "cmdEolica_Click", [this] { cmdEolica_Click(); }, false);
    conecta(At("cmdAgG"), "cmdAgG_Click", [this] { cmdAgG_Click(); }, false);
    At("txtEstratos").onChange = [this](Control&) { Evento("txtEstratos_Change", [this] { txtEstratos_Change(); }); };
    At("LbAvisoViento").SetVisible(false);
    // The tables of wind and earthquake line up their columns with tabs, in a fixed-width font.
    for (const char* tabla : {"RichTextBox2", "RichTextBox3"})
        At(tabla).RawSet("FontName", "Courier New");
    for (const char* panel : {"UCplantas", "UCSuelo"})
        At(panel).SetVisible(false);
}

double Acciones::LeeNumero(const char* control, int index) const { return ValComaCopy(At(control, index).Text()); }

bool Acciones::PlantasAdmitidas()
{
    Declaraciones& d = decl();
    if (PlantasEnTablas(d))
        return true;
    d.ui.MsgBox(TextoPlantas(d), mb::Exclamation, Caption());
    return false;
}

bool Acciones::PuedeCalcular()
{
    if (PlantasAdmitidas())
        return true;
    // Nothing is calculated or saved: the user has been told why.
    decl().UltimoGuardadoRechazado = TextoPlantas(decl());
    return false;
}

void Acciones::CargaPropia()
{
    Declaraciones& d = decl();
    if (!RegistroFijoEncontrado()) {
        // A new record: the building's height from the general data, the shared defaults of the
        // actions, snow and wind asked for and the earthquake not.
        float altura = 0;
        for (int i = 0; i < std::clamp<int>(d.NPlantasSobre, 0, kMaxFloors); ++i)
            altura += d.GenCot[static_cast<size_t>(i)];
        At("txtAlt").SetText(Texto(altura));
        d.AccAltNieve = 200;
        d.AccZona = 0;
        d.AccEntorno = 4;
        d.AccAb = 0.04f;
        d.AccK = d.AccC = d.AccRo = 1;
        Control& zona = At("cmbNieve");
        zona.SetListIndex(d.AccZonaNieve >= -1 && d.AccZonaNieve < zona.ListCount() ? d.AccZonaNieve : 0);
        At("txtNieve").SetText(Texto(d.AccAltNieve));
        At("cmbZonEol").SetListIndex(static_cast<int>(d.AccZona));
        At("cmbEntorno").SetListIndex(static_cast<int>(d.AccEntorno) - 1);
        At("TextAb").SetText(Formato00(d.AccAb));
        At("txtSismoK").SetText(Formato00(d.AccK));
        At("txtSismoC").SetText(Formato00(d.AccC));
        At("txtRo").SetText(Formato00(d.AccRo));
        At("txtPant1").SetText("0");
        At("ChNieve").SetCheckValue(1);
        At("ChViento").SetCheckValue(1);
        At("ChSismo").SetCheckValue(0);
    }
    // The rows of the further floors copy the designed rows as read.
    ColocaMasas();
    // What the fields read show without changing them.
    for (const AccionMarcos& a : kAcciones)
        ActivaAccion(a.casilla);
    MuestraPantallas();
    MuestraEstratos();
    Amortiguamiento();
    if (!PlantasAdmitidas())
        return;
    // The calculations as the button runs them, without the save.
    d.Cargando = kFalse;
    CalculaAcciones();
    d.Cargando = kTrue;
}

void Acciones::TrasGuardado()
{
    Declaraciones& d = decl();
    if (d.DoEvents)
        d.DoEvents();
    const int16_t antes = d.Cargando;
    d.Cargando = kTrue;
    std::string titulo = kTitulo;
    LeeForm(*this, titulo);
    d.Cargando = antes;
}

std::string Acciones::ResumenCalculo() const
{
    std::string resumen = "the actions were recalculated from the record's data and saved in the named format with "
                          "their results file; every other field keeps its value";
    if (sinTablaViento_)
        resumen += "; no wind table was made: the building's width or length is not above 0, or no wind zone or "
                   "terrain class is chosen";
    return resumen;
}

void Acciones::CalculoPropio()
{
    CalculaAcciones();
    EscribeAcciones();
}

void Acciones::CalculaAcciones()
{
    avisos_.clear();
    AvisoViento(false);
    if (Marcada(At("ChNieve")))
        CalculaNieve();
    else
        At("txtSobrNieve").SetText("");
    if (Marcada(At("ChViento")))
        CalculaViento();
    else
        At("RichTextBox2").SetText("");
    if (Marcada(At("ChSismo")))
        CalculaSismo();
    else
        At("RichTextBox3").SetText("");
}

std::string Acciones::SinEleccion(const char* lista)
{
    const std::string aviso = Mensaje(decl(), 1519, {At(lista).Caption()});
    decl().ui.MsgBox(aviso, mb::Exclamation, Caption());
    return aviso;
}

// ---- Snow ----

void Acciones::CalculaNieve()
{
    Declaraciones& d = decl();
    const TablaNieve tabla = LeeTablaNieve(d, ConBarra(d.DirPrograma) + "Nieve");
    const int fila = FilaNieve(LeeNumero("txtNieve"));
    const int zona = At("cmbNieve").ListIndex();
    if (zona < 0 || zona >= kZonasNieve) {
        avisos_.push_back(SinEleccion("cmbNieve"));
        At("txtSobrNieve").SetText("");
        return;
    }
    const float carga = tabla[static_cast<size_t>(fila - 1)][static_cast<size_t>(zona)];
    if (carga == kNieveEstudioAparte) {
        At("txtSobrNieve").SetText(d.Msg(1303));
        avisos_.push_back(d.Msg(1049) + " " + d.Msg(1303));
    } else {
        At("txtSobrNieve").SetText(Texto(carga));
    }
}

// ---- Wind ----

void Acciones::CoefEsbeltez()
{
    Declaraciones& d = decl();
    const CoeficientesViento c = CoeficientesEsbeltez(d.AccEsbeltez);
    d.AccCp = c.cp;
    d.AccCs = c.cs;
}

void Acciones::AvisoViento(bool sinTabla, const std::string& texto)
{
    sinTablaViento_ = sinTabla;
    Control& aviso = At("LbAvisoViento");
    aviso.SetCaption(sinTabla ? (texto.empty() ? Mensaje(decl(), 1516) : texto) : std::string());
    aviso.SetVisible(sinTabla);
    if (sinTabla)
        avisos_.push_back(aviso.Caption());
}

bool Acciones::TablaViento(const char* dimension, const char* esbeltez, const char* presion, const char* succion,
                           const std::string& direccion, std::string& texto)
{
    Declaraciones& d = decl();
    const double ancho = LeeNumero(dimension);
    if (ancho <= 0)
        return false;
    d.AccEsbeltez = LeeNumero("txtAlt") / ancho;
    At(esbeltez).SetText(Formato00(d.AccEsbeltez));
    CoefEsbeltez();
    At(presion).SetText(Texto(Redondea(d.AccCp, 2)));
    At(succion).SetText(Texto(Redondea(d.AccCs, 2)));

    const Entorno e = ConstantesEntorno(static_cast<int>(d.AccEntorno));
    const int n = d.NPlantasSobre;
    if (!PlantasEnTablas(d))
        throw ErrorEjecucion(9, TextoPlantas(d));
    std::vector<std::string> filas(static_cast<size_t>(std::max(n, 0)));
    double z = 0;
    for (int i = n - 1; i >= 0; --i) {
        z += d.GenCot[static_cast<size_t>(i)];
        const double zc = z < e.Z ? e.Z : z;
        const double F = e.k * std::log(Divide(zc, e.L, Mensaje(d, 1517, {At("cmbEntorno").Caption()})));
        const double ce = F * (F + 7 * e.k);
        const double presionP = ce * d.AccQb * d.AccCp;
        const double succionP = ce * d.AccQb * d.AccCs;
        filas[static_cast<size_t>(i)] = NumeroFila(n - i) + kTab + Formato00(z) + kTab + Formato00(ce) + kTab + "   " +
                                        Formato00(presionP) + kTab + "   " + Formato00(succionP);
    }
    texto += Cabecera(d.Msg(1140) + direccion,
                      Une({d.Msg(990), d.Msg(991), d.Msg(992), d.Msg(993), d.Msg(994)}, kTab),
                      Une({"        ", "  (m) ", "  ", " (kN/m2) ", " (kN/m2) "}, kTab));
    for (const std::string& f : filas)
        texto += kCrLf + f;
    return true;
}

void Acciones::CalculaViento()
{
    Declaraciones& d = decl();
    const int zona = At("cmbZonEol").ListIndex();
    const int entorno = At("cmbEntorno").ListIndex();
    if (zona < 0 || entorno < 0) {
        // Without a wind zone or a terrain class there are no pressures to give.
        AvisoViento(true, SinEleccion(zona < 0 ? "cmbZonEol" : "cmbEntorno"));
        return;
    }
    d.AccZona = static_cast<float>(zona);
    d.AccEntorno = static_cast<float>(entorno + 1);
    static constexpr float kPresionBasica[] = {0.42f, 0.45f, 0.52f};
    if (zona < 3)
        d.AccQb = kPresionBasica[zona];

    std::string texto;
    if (!TablaViento("txtAnch", "txtEsb", "txtPres", "txtSuc", " x-x'", texto)) {
        AvisoViento(true);
        return;
    }
    texto += std::string(kCrLf) + kCrLf;
    // Without a length the text keeps what it showed, the table of X-X included.
    if (!TablaViento("TxtLong", "txtEsby", "txtPresy", "txtSucy", " y-y'", texto)) {
        AvisoViento(true);
        return;
    }
    Control& tabla = At("RichTextBox2");
    tabla.SetText(texto);
    tabla.RawSet("ForeColor", "255");
}

// ---- Earthquake ----

void Acciones::Amortiguamiento()
{
    Declaraciones& d = decl();
    switch (At("cmbEstruct").ListIndex()) {
    case 0: case 1: case 3: case 4: d.AccOmega = 4; break;
    case 2: d.AccOmega = 6; break;
    default: return;
    }
    if (d.AccOmega == 4 && At("cmbCompart").ListIndex() == 0)
        d.AccOmega = 5;
}

void Acciones::CalculaBeta()
{
    Declaraciones& d = decl();
    Amortiguamiento();
    // By damping 4, 5 and 6 percent and the ductility chosen; the two zeros stand in the table.
    static constexpr float kBeta[3][4] = {{1.09f, 0.55f, 0.36f, 0.27f}, {1.0f, 0.5f, 0.33f, 0.25f}, {0.93f, 0.46f, 0, 0}};
    const int fila = static_cast<int>(d.AccOmega) - 4;
    const int ductilidad = At("cmbDuct").ListIndex();
    if (fila >= 0 && fila < 3 && ductilidad >= 0 && ductilidad < 4)
        d.AccBeta = kBeta[fila][ductilidad];
    At("txtBeta").SetText(Formato00(d.AccBeta));
}

void Acciones::cmbImportSismo_Click()
{
    Declaraciones& d = decl();
    switch (At("cmbImportSismo").ListIndex()) {
    case 0: d.AccRo = 1.0f; break;
    case 1: d.AccRo = 1.3f; break;
    default: return;
    }
    At("txtRo").SetText(Formato00(d.AccRo));
}

void Acciones::cmbSueloSismo_Click()
{
    Declaraciones& d = decl();
    const int tipo = At("cmbSueloSismo").ListIndex();
    if (tipo >= 0 && tipo < 4) {
        d.AccC = static_cast<float>(kCoefSuelo[tipo]);
        At("txtSismoC").SetText(Formato00(d.AccC));
    } else if (tipo == 4) {
        // A soil that is not uniform is given by its strata.
        if (!At("UCSuelo").Visible())
            cmdSueloSismo_Click();
        if (LeeNumero("txtEstratos") == 1)
            At("txtEstratos").SetText("2");
    }
}

void Acciones::MuestraPantallas()
{
    const int estructura = At("cmbEstruct").ListIndex();
    const bool pantallas = estructura == 3 || estructura == 4;
    At("lblPant").SetVisible(pantallas);
    At("txtPant1").SetVisible(pantallas);
}

void Acciones::cmbEstruct_Click()
{
    const int estructura = At("cmbEstruct").ListIndex();
    if (estructura >= 0 && estructura <= 2)
        At("txtPant1").SetText("0");
    MuestraPantallas();
    CalculaBeta();
}

void Acciones::ChAccion_Click(const std::string& casilla)
{
    ActivaAccion(casilla);
    if (casilla == "ChSismo" && Marcada(At(casilla)))
        CmdMasas_Click();
}

void Acciones::ActivaAccion(const std::string& casilla)
{
    const bool activa = Marcada(At(casilla));
    for (const AccionMarcos& a : kAcciones) {
        if (casilla != a.casilla)
            continue;
        // The frames, and what the window groups under them besides the check box itself.
        for (const char* marco : a.marcos) {
            At(marco).SetEnabled(activa);
            for (const GrupoDef& g : tabla().grupos) {
                if (g.marco != marco)
                    continue;
                for (std::string_view nombre : g.controles)
                    for (Control* c : Members(std::string(nombre.substr(0, nombre.find('(')))))
                        if (c->Name() != casilla)
                            c->SetEnabled(activa);
            }
        }
    }
}

void Acciones::CalculaSismo()
{
    Declaraciones& d = decl();
    if (d.Cargando || !Marcada(At("ChSismo")))
        return;
    const int n = d.NPlantasSobre;
    if (!PlantasEnTablas(d))
        throw ErrorEjecucion(9, TextoPlantas(d));
    // Every floor has its row of masses.
    ColocaMasas();
    const int estructura = At("cmbEstruct").ListIndex();
    const int ductilidad = At("cmbDuct").ListIndex();
    if (estructura < 0 || ductilidad < 0) {
        avisos_.push_back(SinEleccion(estructura < 0 ? "cmbEstruct" : "cmbDuct"));
        At("RichTextBox3").SetText("");
        return;
    }
    const double H = LeeNumero("txtAlt");
    const double L = LeeNumero("txtAnch");
    const double B = LeeNumero("txtPant1");
    auto porCero = [&](const char* campo) { return Mensaje(d, 1517, {At(campo).Caption()}); };

    d.AccRo = static_cast<float>(LeeNumero("txtRo"));
    d.AccC = static_cast<float>(LeeNumero("txtSismoC"));
    d.AccK = static_cast<float>(LeeNumero("txtSismoK"));
    d.AccAb = static_cast<float>(LeeNumero("TextAb"));
    const float p = d.AccAb * d.AccRo;
    const double c125 = d.AccC / 1.25;
    if (p <= 0.1)
        d.AccS = static_cast<float>(c125);
    else if (p >= 0.4)
        d.AccS = 1.0f;
    else
        d.AccS = static_cast<float>(c125 + 3.33 * (p - 0.1) * (1 - c125));
    d.AccTA = static_cast<float>(d.AccK * d.AccC / 10.0);
    d.AccTB = static_cast<float>(d.AccK * d.AccC / 2.5);
    switch (estructura) {
    case 0: d.AccTF = static_cast<float>(0.09 * n); break;
    case 1: d.AccTF = static_cast<float>(0.11 * n); break;
    case 2:
        d.AccTF = static_cast<float>(
            Divide(0.06 * H * std::sqrt(Divide(H, 2 * L + H, porCero("txtAlt"))), L, porCero("txtAnch")));
        break;
    case 3: d.AccTF = static_cast<float>(0.09 * n * std::sqrt(Divide(H, H + B, porCero("txtAlt")))); break;
    default: d.AccTF = static_cast<float>(0.085 * n * std::sqrt(Divide(H, H + B, porCero("txtAlt")))); break;
    }
    int modos = 3;
    std::string textoModos = "1+2+3";
    if (d.AccTF <= 0.75) {
        modos = 1;
        textoModos = "  1  ";
    } else if (d.AccTF <= 1.25) {
        modos = 2;
        textoModos = " 1+2 ";
    }
    At("txtModo").SetText(textoModos);
    d.AccAc = d.AccS * d.AccRo * d.AccAb;
    At("txtS").SetText(Formato00(d.AccS));
    At("txtTf").SetText(Formato00(d.AccTF));
    At("TextAc").SetText(Formato00(d.AccAc));

    const double nu = std::pow(Divide(5, d.AccOmega, Mensaje(d, 1518)), 0.4);
    const double beta = nu / (ductilidad + 1);

    // The enclosure's weight per metre, as the general data show it.
    double cerramiento = 0;
    {
        DatosGen datos(d);
        datos.Form_Load();
        cerramiento = ValComaCopy(datos.At("TextTotal").Text());
    }
    if (d.Unidades == 1)
        cerramiento /= 100;

    // Floors from the ground up: floor i stands at level n - i of the general data.
    Modal m(n);
    double altura = 0;
    for (int i = 1; i <= n; ++i) {
        const size_t g = static_cast<size_t>(n - i);
        altura += d.GenCot[g];
        m.z[static_cast<size_t>(i)] = altura;
        const double q = d.GenPProP[g] + d.GenConcP[g] + d.GenSTabP[g] + 0.5 * d.GenSobrP[g];
        m.P[static_cast<size_t>(i)] = q * LeeNumero("TxtSupeP", i) + cerramiento * LeeNumero("TxtLongP", i) +
                                      LeeNumero("TxtSingP", i);
    }
    const EspectroModal espectro{modos, d.AccTF, d.AccTB, d.AccAc, beta, H};
    const Divisiones divisiones{porCero("txtAlt"), porCero(d.AccK == 0 ? "txtSismoK" : "txtSismoC"), porCero("UCplantas")};
    AnalisisModal(espectro, divisiones, m);
    Control& tabla = At("RichTextBox3");
    tabla.SetText(TablasSismo(d, m));
    tabla.RawSet("ForeColor", "255");
}

// ---- Panels ----

void Acciones::cmdSueloSismo_Click()
{
    Control& panel = At("UCSuelo");
    panel.RawSet("Left", "1800");
    panel.RawSet("Top", "1560");
    panel.SetVisible(true);
    MuestraEstratos();
}

void Acciones::MuestraEstratos()
{
    const double estratos = std::clamp(LeeNumero("txtEstratos"), 1.0, static_cast<double>(kMaxEstratos));
    for (int i = 0; i < kMaxEstratos; ++i) {
        const bool visible = i <= estratos - 1;
        At("txtEspesor", i).SetVisible(visible);
        At("cmbSuelo", i).SetVisible(visible);
    }
}

void Acciones::txtEstratos_Change()
{
    const double estratos = LeeNumero("txtEstratos");
    if (estratos > kMaxEstratos)
        At("txtEstratos").SetText(std::to_string(kMaxEstratos));
    else if (estratos < 1)
        At("txtEstratos").SetText("1");
    MuestraEstratos();
}

void Acciones::UCOK2_Click()
{
    const int estratos = static_cast<int>(std::clamp(LeeNumero("txtEstratos"), 1.0, static_cast<double>(kMaxEstratos)));
    std::vector<double> t(static_cast<size_t>(estratos));
    double suma = 0;
    for (int i = 0; i < estratos; ++i)
        suma += t[static_cast<size_t>(i)] = LeeNumero("txtEspesor", i);
    // The last stratum reaches down to 30 m.
    if (suma != kEspesorEstratos) {
        t.back() += kEspesorEstratos - suma;
        At("txtEspesor", estratos - 1).SetText(Texto(t.back()));
    }
    double C = 0;
    for (int i = 0; i < estratos; ++i) {
        const int tipo = At("cmbSuelo", i).ListIndex();
        if (tipo >= 0 && tipo < 4)
            C += t[static_cast<size_t>(i)] * kCoefSuelo[tipo] / kEspesorEstratos;
    }
    At("txtC").SetText(Formato00(C));
    At("txtSismoC").SetText(Formato00(C));
}

void Acciones::UCOK1_Click()
{
    const double estratos = LeeNumero("txtEstratos");
    Control& suelo = At("cmbSueloSismo");
    if (estratos > 1)
        suelo.SetListIndex(4);
    else if (estratos == 1 && suelo.ListIndex() == 4)
        suelo.SetListIndex(0);
    At("UCSuelo").SetVisible(false);
}

void Acciones::ColocaMasas()
{
    const Declaraciones& d = decl();
    const int n = std::clamp<int>(d.NPlantasSobre, 0, kMaxFloors);
    const int b = std::clamp<int>(d.NPlantasBajo, 0, kMaxBasements);
    // Row 0 is the designed row; a row made now copies the row above it. The record keeps the
    // designed rows only: the rows made here live as long as the form.
    auto asegura = [this](const char* nombre, int hasta) {
        for (int i = 1; i <= hasta; ++i)
            if (!Find(nombre, i))
                AddCopyOfPrevious(nombre, i).SetTransitorio(true);
    };
    for (const char* nombre : kMasasP)
        asegura(nombre, n);
    for (const char* nombre : kMasasS)
        asegura(nombre, b - 1);
    // The slabs from the ground up: row i is the i-th slab, row n the roof. Row 0 is the
    // designed row the others copy; the calculation does not take it.
    int fila = 0;
    auto coloca = [&](const char* const nombres[3], int i, bool visible, const std::string& rotulo) {
        for (int k = 0; k < 3; ++k) {
            Control& c = At(nombres[k], i);
            c.SetVisible(visible);
            if (visible)
                c.RawSet("Top", std::to_string(kPrimeraFila + fila * kPasoFila));
        }
        if (!visible)
            return;
        At(nombres[0], i).SetCaption(rotulo + ": " + std::string(At("lblSupe").Caption()));
        At(nombres[1], i).SetCaption(rotulo + ": " + std::string(At("lblLongCerr").Caption()));
        At(nombres[2], i).SetCaption(rotulo + ": " + std::string(At("lblSing").Caption()));
        ++fila;
    };
    for (Control* c : Members("TxtSupeP")) {
        const int i = c->Index();
        const bool visible = i >= 1 && i <= n;
        const std::string rotulo = i == n ? At("LbCu").Caption() : d.Msg(1) + " " + std::to_string(i);
        coloca(kMasasP, i, visible, rotulo);
    }
    At("LbCu").SetVisible(n >= 1);
    At("lblPlanta", 0).SetVisible(false);
    for (Control* c : Members("TxtSupeS")) {
        const int i = c->Index();
        coloca(kMasasS, i, i < b, d.Msg(3) + " " + std::to_string(i + 1));
    }
    Control& panel = At("UCplantas");
    panel.RawSet("Height", std::to_string(kPrimeraFila + fila * kPasoFila + 600));
    At("AsignaC", 0).SetVisible(n >= 2);
    At("AsignaC", 1).SetVisible(b >= 2);
}

void Acciones::CmdMasas_Click()
{
    ColocaMasas();
    At("UCplantas").SetVisible(true);
    At("Frm1").SetEnabled(false);
    At("Picture1").SetEnabled(false);
}

void Acciones::UCOK_Click()
{
    At("Frm1").SetEnabled(true);
    At("Picture1").SetEnabled(true);
    At("UCplantas").SetVisible(false);
}

void Acciones::AsignaC_Click(int index)
{
    const Declaraciones& d = decl();
    // 0: the first floor to every floor above it; 1: the first basement to the others.
    const bool plantas = index == 0;
    const char* const* nombres = plantas ? kMasasP : kMasasS;
    const int primera = plantas ? 1 : 0;
    const int ultima = plantas ? std::clamp<int>(d.NPlantasSobre, 0, kMaxFloors)
                               : std::clamp<int>(d.NPlantasBajo, 0, kMaxBasements) - 1;
    for (int i = primera + 1; i <= ultima; ++i)
        for (int k = 0; k < 3; ++k)
            if (Control* c = Find(nombres[k], i))
                c->SetText(At(nombres[k], primera).Text());
}

// ---- Map dialogs ----

void Acciones::MuestraMapa(const char* dialogo)
{
    Declaraciones& d = decl();
    if (std::unique_ptr<Form> mapa = CreaForm(d, dialogo); mapa && d.MuestraDialogo)
        d.MuestraDialogo(*mapa);
}

void Acciones::cmdAltitud_Click()
{
    Declaraciones& d = decl();
    // The map starts from what the form shows, and a map closed with nothing chosen changes nothing.
    d.AccZonaNieve = static_cast<int16_t>(At("cmbNieve").ListIndex());
    d.AccAltNieve = static_cast<float>(LeeNumero("txtNieve"));
    MuestraMapa("frmECGn");
    At("cmbNieve").SetListIndex(d.AccZonaNieve);
    At("txtNieve").SetText(Texto(d.AccAltNieve));
}

void Acciones::cmdEolica_Click()
{
    Declaraciones& d = decl();
    d.AccZona = static_cast<float>(At("cmbZonEol").ListIndex());
    MuestraMapa("frmECV");
    At("cmbZonEol").SetListIndex(static_cast<int>(d.AccZona));
}

void Acciones::cmdAgG_Click()
{
    Declaraciones& d = decl();
    d.AccAb = static_cast<float>(LeeNumero("TextAb"));
    d.AccK = static_cast<float>(LeeNumero("txtSismoK"));
    MuestraMapa("frmNCSE02");
    At("TextAb").SetText(Formato00(d.AccAb));
    At("txtSismoK").SetText(Formato00(d.AccK));
    CalculaBeta();
}

// ---- Results file ----

void Acciones::EscribeAcciones()
{
    Declaraciones& d = decl();
    std::optional<WorkLock> candado;
    try {
        candado = LockForSave(d.CarpetaObra);
    } catch (const WorkBusy&) {
        // The save that follows refuses and tells why; nothing is written.
        return;
    }
    Informe inf(d);
    auto par = [&](const std::string& rotulo, const std::string& valor) { inf.Linea("Tex1", rotulo, valor); };
    auto lista = [&](const char* nombre) { return At(nombre).SelectedText(); };
    auto caja = [&](const char* nombre) { return At(nombre).Text(); };
    auto tabla = [&](const char* nombre) {
        for (const std::string& linea : SplitLines(At(nombre).Text()))
            inf.Linea("Tex1", linea);
    };

    inf.Linea("Cabe");
    inf.Linea("Tit2", d.NombreObra);
    inf.Linea("Tit3", d.Msg(48));
    par(d.Msg(256), Formato0(static_cast<double>(d.NPlantasSobre)));
    par(d.Msg(257), Formato0(static_cast<double>(d.NPlantasBajo)));

    if (Marcada(At("ChNieve"))) {
        inf.Linea("Tit3", d.Msg(1046));
        par(d.Msg(1047), lista("cmbNieve"));
        par(d.Msg(1048), Formato0(LeeNumero("txtNieve")) + d.Msg(57));
        par(d.Msg(1049), Mascara00(caja("txtSobrNieve")) + " kN/m2");
    }
    if (Marcada(At("ChViento"))) {
        inf.Linea("Tit3", d.Msg(1050));
        par(d.Msg(1051), lista("cmbZonEol"));
        par(d.Msg(1052), lista("cmbEntorno"));
        par(d.Msg(1053), caja("txtAlt"));
        par(d.Msg(1054), caja("txtAnch"));
        static constexpr const char* kEjes[2][4] = {{"X-X:", "txtEsb", "txtPres", "txtSuc"},
                                                    {"Y-Y:", "txtEsby", "txtPresy", "txtSucy"}};
        for (const auto& eje : kEjes) {
            inf.Linea("Tex1", eje[0]);
            for (int k = 0; k < 3; ++k)
                par(d.Msg(1055 + k), caja(eje[k + 1]));
        }
        inf.Linea("Tit3", d.Msg(1058));
        tabla("RichTextBox2");
    }
    if (Marcada(At("ChSismo"))) {
        inf.Linea("Tit3", d.Msg(1510));
        par(Rotulo(d, 1511, 1), caja("TextAb"));
        par(Rotulo(d, 1511, 2), caja("txtSismoK"));
        par(Rotulo(d, 1511, 3), lista("cmbImportSismo"));
        par(Rotulo(d, 1511, 4), lista("cmbEstruct"));
        par(Rotulo(d, 1511, 5), lista("cmbSueloSismo"));
        par("             C= ", caja("txtSismoC"));
        par(Rotulo(d, 1511, 6), lista("cmbCompart"));
        par(Rotulo(d, 1511, 7), lista("cmbDuct"));
        par("        Beta= ", caja("txtBeta"));
        par(Rotulo(d, 1512, 1), caja("txtRo"));
        par(Rotulo(d, 1512, 2), caja("txtS"));
        par(Rotulo(d, 1512, 3), caja("txtPant1"));
        par(Rotulo(d, 1512, 4), caja("txtTf"));
        par(Rotulo(d, 1512, 5), caja("txtModo"));
        par(Rotulo(d, 1512, 6), caja("TextAc"));
        tabla("RichTextBox3");
    }
    inf.Linea("Tit3", d.Msg(29));
    if (avisos_.empty())
        inf.Linea("Tex1", d.Msg(84));
    for (const std::string& aviso : avisos_)
        inf.Linea("Tex1", aviso);
    inf.Linea("FinD");
    const std::string ruta = RutaResultados(*this, kTitulo);
    inf.Guarda(ExistingNoCase(ruta).value_or(ruta));
}

}  // namespace vardena
