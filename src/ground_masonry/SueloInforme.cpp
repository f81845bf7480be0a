// The results file of the soil: the data, the factors and the pressures of the bearing formula,
// or the data and the pressure of sound rock, then the warnings.

#include <cstdlib>
#include <optional>
#include <utility>

#include "base/FileIo.h"
#include "base/Texto.h"
#include "ground_masonry/Suelo.h"
#include "reports/mRtf.h"
#include "works/Declaraciones.h"
#include "works/Registros.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

constexpr int kMsgTitulo = 1000;
constexpr int kMsgSuelo = 1001;
constexpr int kMsgDatos = 48;
constexpr int kMsgMetros = 57;
constexpr int kMsgAvisos = 29;
constexpr int kMsgSinAvisos = 84;
// Rows of the data: density, cohesion, friction angle; the foundation, width, depth, surcharge.
constexpr int kMsgDensidad = 1002;
constexpr int kMsgCohesion = 1003;
constexpr int kMsgRozamiento = 1004;
constexpr int kMsgCimentacion = 1005;
constexpr int kMsgAncho = 1006;
constexpr int kMsgProfundidad = 1007;
constexpr int kMsgSobrecarga = 1008;
// The factors: the three terms' words, and the headings of each kind.
constexpr int kMsgTerminos[] = {1010, 1011, 1012};
constexpr int kMsgFactoresCarga = 1009;
constexpr int kMsgCorreccion = 1013;
// The results, the granular conditions and the rock's data.
constexpr int kMsgResultados = 1018;
constexpr int kMsgHundimiento = 1019;
constexpr int kMsgAdmisible = 1020;
constexpr int kMsgServicio = 1021;
constexpr int kMsgGranular = 1022;
constexpr int kMsgCondiciones = 1023;
constexpr int kMsgCondicion[] = {1024, 1025, 1026};
constexpr int kMsgAnchoEfectivo = 1027;
constexpr int kMsgAsiento = 1028;
constexpr int kMsgGolpes = 1029;
constexpr int kMsgQu = 1170;
constexpr int kMsgEspaciado = 1171;
constexpr int kMsgApertura = 1172;
constexpr int kMsgKsp = 1173;

// What rock writes over the heading of every later report of the run.
constexpr const char* kTituloRoca = "Suelo:  ";

// The heading of each kind of factor and its three fields, with the letters the report shows.
struct GrupoFactores {
    int mensaje;
    const char* campos[3];
    const char* letras[3];
};
constexpr GrupoFactores kGruposFactores[] = {
    {1014, {"txtDc", "txtDq", "txtDg"}, {"(dc):", "(dq):", "(dg):"}},
    {1015, {"txtSc", "txtSq", "txtSg"}, {"(sc):", "(sq):", "(sg):"}},
    {1016, {"txtIc", "txtIq", "txtIg"}, {"(ic):", "(iq):", "(ig):"}},
    {1017, {"txtTc", "txtTq", "txtTg"}, {"(tc):", "(tq):", "(tg):"}},
};

// The text of a field with two decimals, as the run time's format gave it: a text that is no
// number (the "No" of the service pressure) passes as it stands.
std::string DosDecimales(const std::string& texto)
{
    std::string numero = CambiaCar(texto, ",", ".");
    const char* inicio = numero.c_str();
    char* fin = nullptr;
    std::strtod(inicio, &fin);
    while (fin && *fin == ' ')
        ++fin;
    if (numero.find_first_not_of(' ') == std::string::npos || !fin || *fin != '\0')
        return texto;
    return Formato00(ValComaCopy(texto));
}

}  // namespace

void Suelo::Listado_Suelo() { EscribeInforme(false); }

void Suelo::Listado_Roca()
{
    decl().Mensajes[kMsgSuelo] = kTituloRoca;
    EscribeInforme(true);
}

void Suelo::EscribeInforme(bool roca)
{
    Declaraciones& d = decl();
    const std::string titulo = At("txtTitulo").Text();
    // A title that cannot name a file inside the work gets no report: the save that follows
    // refuses the title and tells the user why.
    if (!TituloInvalido(d, titulo).empty())
        return;
    auto campo = [this](const char* nombre) { return DosDecimales(At(nombre).Text()); };
    auto texto = [this](const char* nombre) { return At(nombre).Text(); };

    Informe inf(d);
    inf.Linea("Cabe");
    inf.Linea("Tit1", d.Msg(kMsgTitulo));
    inf.Linea("Tit2", d.Msg(kMsgSuelo) + titulo);
    inf.Linea("Tit3", d.Msg(kMsgDatos));
    inf.Linea("Tex1", d.Msg(kMsgDensidad), texto("Text3"));
    inf.Linea("Tex1", d.Msg(kMsgCohesion), texto("Text4"));
    inf.Linea("Tex1", d.Msg(kMsgRozamiento), texto("Text2"));
    inf.Linea("Tit3", d.Msg(kMsgCimentacion));
    inf.Linea("Tex1", d.Msg(kMsgAncho), campo("Text6") + d.Msg(kMsgMetros));
    if (roca) {
        inf.Linea("Tex1", d.Msg(kMsgQu), campo("txtQu") + " kN/m2");
        inf.Linea("Tex1", d.Msg(kMsgEspaciado), campo("txtS") + " mm");
        inf.Linea("Tex1", d.Msg(kMsgApertura), campo("txtAp") + " mm");
        inf.Linea("Tex1", d.Msg(kMsgKsp), campo("txtKsp"));
    } else {
        inf.Linea("Tex1", d.Msg(kMsgProfundidad), campo("txtD") + d.Msg(kMsgMetros));
        inf.Linea("Tex1", d.Msg(kMsgSobrecarga), campo("Text1"));
        inf.Linea("Tit3", d.Msg(kMsgFactoresCarga));
        const char* capacidad[] = {"txtNc", "txtNq", "txtNg"};
        const char* letras[] = {"(Nc):", "(Nq):", "(Ng):"};
        for (int i = 0; i < 3; ++i)
            inf.Linea("Tex1", d.Msg(kMsgTerminos[i]) + letras[i], campo(capacidad[i]));
        inf.Linea("Tit3", d.Msg(kMsgCorreccion));
        for (const GrupoFactores& g : kGruposFactores) {
            inf.Linea("Tit3", d.Msg(g.mensaje));
            for (int i = 0; i < 3; ++i)
                inf.Linea("Tex1", d.Msg(kMsgTerminos[i]) + g.letras[i], campo(g.campos[i]));
        }
        if (At("chkServ").CheckValue() == 1) {
            inf.Linea("Tit3", d.Msg(kMsgGranular));
            inf.Linea("Tex1", d.Msg(kMsgCondiciones));
            for (int m : kMsgCondicion)
                inf.Linea("Tex1", "        - " + d.Msg(m));
            inf.Linea("Tex1", d.Msg(kMsgAnchoEfectivo), texto("txtAnchoEfect") + " m");
            inf.Linea("Tex1", d.Msg(kMsgAsiento), texto("txtAsiento") + " mm");
            inf.Linea("Tex1", d.Msg(kMsgGolpes), texto("txtSPT"));
        }
    }
    inf.Linea("Tit3", d.Msg(kMsgResultados));
    if (roca) {
        inf.Linea("Tex1", d.Msg(kMsgServicio), campo("txtQd") + " kN/m2");
    } else {
        // The pressure qh, brought back from the admissible pressure.
        inf.Linea("Tex1", d.Msg(kMsgHundimiento), Formato00(3 * Valor("txtTa")) + " kN/m2");
        inf.Linea("Tex1", d.Msg(kMsgAdmisible), campo("txtTadm") + " kN/m2");
        inf.Linea("Tex1", d.Msg(kMsgServicio), campo("txtServ") + " kN/m2");
    }
    inf.Linea("Tit3", d.Msg(kMsgAvisos));
    if (d.IAviso > 1) {
        for (int i = 1; i <= d.NAvisos; ++i)
            inf.Linea("Tex1", d.Avisos[static_cast<size_t>(i)]);
    } else {
        inf.Linea("Tex1", d.Msg(kMsgSinAvisos));
    }
    inf.Linea("FinD");
    if (aplazaInforme_)
        informePendiente_.emplace(std::move(inf));
    else
        GuardaInforme(inf);
}

void Suelo::GuardaInforme(const Informe& informe)
{
    // One writer at a time: when another program holds the work, the save that follows says so.
    std::optional<WorkLock> cerrojo;
    try {
        cerrojo = LockForSave(decl().CarpetaObra);
    } catch (const WorkBusy&) {
        return;
    }
    const std::string ruta = RutaResultados(*this, At("txtTitulo").Text());
    informe.Guarda(ExistingNoCase(ruta).value_or(ruta));
}

}  // namespace vardena
