#pragma once
// The shared state of a running program: the message table, the current work, the unit
// system, the catalogue and the building's general data. One object, owned by the
// application and passed by reference, so that tests can make as many as they need.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "shell/Platform.h"
#include "base/Ui.h"

namespace vardena {

// Program version: major 3, minor 50.
inline constexpr int kVersionMajor = 3;
inline constexpr int kVersionMinor = 50;
inline constexpr double kProgramVersion = kVersionMajor + kVersionMinor / 100.0;
inline constexpr const char* kProductWord = "Vardena";
inline constexpr const char* kSettingsApp = "Vardena 3";

inline constexpr int kMaxMessages = 2000;
inline constexpr int kMaxFloors = 16;
inline constexpr int kMaxBasements = 4;
inline constexpr int kCatalogRows = 36;

// 16-bit flags: -1 true, 0 false.
inline constexpr int16_t kTrue = -1;
inline constexpr int16_t kFalse = 0;

struct Declaraciones {
    Declaraciones(Ui& ui, Platform& platform) : ui(ui), platform(platform) { Mensajes.resize(kMaxMessages + 1); }

    Ui& ui;
    Platform& platform;

    // Message table, entries 0 to 2000. A message that the pack lacks reads as empty.
    std::vector<std::string> Mensajes;
    const std::string& Msg(int n) const
    {
        static const std::string empty;
        return n >= 0 && n < static_cast<int>(Mensajes.size()) ? Mensajes[static_cast<size_t>(n)] : empty;
    }
    std::string Lenguaje = "Español";

    // Current location.
    std::string UnidadObra;
    std::string DirObras;
    std::string NombreObra;
    std::string CarpetaObra;
    std::string DirPrograma;
    std::string FormActivo;

    int16_t Unidades = 1;
    int16_t UnidadesPref = 0;
    float VersionObra = 0;
    float VersionArchivo = 0;
    int16_t Cargando = kFalse;
    std::string ErrorOrigen;
    // Set by the main window before it opens the general data of a work it has just created.
    int16_t ObraNueva = kFalse;
    // The sentence of the last failed write of DATOS.~CE, after its handler has told the user;
    // empty when the last write went through.
    std::string UltimoErrorDatos;
    // The sentence of the last save that was refused (a title that cannot name a file, a work
    // another program is writing), after the user was told; empty when the last save went through.
    std::string UltimoGuardadoRechazado;
    // Set by the check step of every element (a no-op here).
    int16_t ResultadoCalculo = 0;
    // The warnings of a calculation, shared by the element forms: entries 1 to NAvisos of
    // Avisos (room for indexes 0 to 50), IAviso the next free index. A calculation starts the
    // list by setting IAviso to 1; what other events add in between stays until then.
    static constexpr int kMaxAvisos = 50;
    std::array<std::string, kMaxAvisos + 1> Avisos{};
    int IAviso = 1;
    int NAvisos = 0;

    // The element catalogue.
    std::array<std::string, kCatalogRows> CatalogoRotulo;
    std::array<std::string, kCatalogRows> CatalogoCodigo;
    std::array<std::string, kCatalogRows> CatalogoForm;

    // General data of the building, in internal units (t, m, t/m2).
    int16_t NPlantasSobre = 1;
    int16_t NPlantasBajo = 0;
    // Level tables: index 0 is the roof, 1..NPlantasSobre the floors; S arrays 1..NPlantasBajo.
    std::array<float, kMaxFloors + 1> GenPProP{}, GenConcP{}, GenSobrP{}, GenSTabP{};
    std::array<std::string, kMaxFloors + 1> GenCUsoP{};
    std::array<float, kMaxBasements + 1> GenPProS{}, GenConcS{}, GenSobrS{}, GenSTabS{};
    std::array<std::string, kMaxBasements + 1> GenCUsoS{};
    // Enclosure wall layers 1..6, and the total in item 7 of GenValor.
    std::array<std::string, 7> GenDescr{};
    std::array<float, 8> GenValor{};
    // Load steps: 1..4 days, 5..6 shares, 7..10 long-term factors.
    std::array<float, 11> GenDia{};
    // Storey heights, one per level, rows 0..NPlantasSobre+NPlantasBajo-1.
    std::array<float, kMaxFloors + kMaxBasements> GenCot{};
    int16_t GenHorm = 0, GenAcero = 0, GenControl = 0;
    int16_t GenChHormigon = kFalse;
    int16_t GenAcP = 0;
    // The index stored beside GenAcP; kept so that a rewrite holds what was read.
    int16_t GenAcP2 = 0;
    int16_t GenChAcero = kFalse;
    int16_t GenResis = 0, GenServi = 0;
    int16_t GenChMadera = kFalse;
    float GenResFab = 0, GenCoefMin = 0, GenDensFabr = 0;
    int16_t GenCatControl = 0, GenCatEjec = 0;
    int16_t GenChFabrica = kFalse;
    float GenTens = 0;
    int16_t GenChTerreno = kFalse;
    // The factor at the end of the general data; 0.04 when a file of version 3 lacks it.
    float GenFactor = 0.04f;
    float GenFckHorm = 0;

    // The building's actions, shared by the actions form and its three map dialogs: snow
    // altitude (m) and zone row, wind zone row and terrain class, basic wind pressure (kN/m2),
    // slenderness with its pressure and suction coefficients, the seismic ab/g, contribution,
    // soil and risk coefficients, amplification, spectrum corner periods, fundamental period,
    // damping (percent), the shown response coefficient and the calculation acceleration (g).
    float AccAltNieve = 200;
    int16_t AccZonaNieve = 0;
    float AccZona = 0;
    float AccEntorno = 4;
    float AccQb = 0;
    double AccEsbeltez = 0;
    float AccCp = 0, AccCs = 0;
    float AccAb = 0.04f, AccK = 1, AccC = 1, AccRo = 1;
    float AccS = 0, AccTA = 0, AccTB = 0, AccTF = 0;
    float AccOmega = 0, AccBeta = 0, AccAc = 0;

    // What the calculator of concrete properties by age leaves behind it: the aggregate factor
    // and the age factor that scale the concrete modulus of the beams (1 until the calculator
    // sets them; the general data's load puts them back to 1), and the last secant modulus it
    // gave, N/mm2.
    float FactorArido = 1;
    float FactorEdadE = 1;
    float ModuloHormigon = 0;
    // The modulus of the beams' concrete, t/m2, worked out again when a beam's concrete is chosen.
    float ModuloVigas = 0;
    // The concrete strength of the one-way slab check (kp/cm2), set by the slab's concrete list.
    int16_t ResisForjado = 0;

    // The masonry density that the masonry properties dialog, opened from the lintel, leaves
    // for the masonry wall form's next load; empty when there is none.
    std::string DensidadMurosPendiente;

    // The effective length factors of the last steel column worked out, about its X and Y axes.
    double BetaPandeoX = 0, BetaPandeoY = 0;

    // Sets the general data to those of a new work, as the general-data form draws them.
    void GeneralDataDefaults();

    // One pass of the message loop, where a window system runs one; nothing headless.
    std::function<void()> DoEvents;
    // Shows a dialog form modally and returns when it closes. Where no window system runs,
    // the dialog closes at once with nothing chosen; scripts drive the dialogs on their own.
    std::function<void(class Form&)> MuestraDialogo;
    // The capture of a form's image after a save, when the setting asks for one.
    std::function<void(class Form&, const std::string& recordPath)> Captura;

    // The settings store of the platform.
    SettingsStore& settings() const { return *platform.settings; }
};

}  // namespace vardena
