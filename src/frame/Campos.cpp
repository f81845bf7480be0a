#include "frame/Campos.h"

#include <stdexcept>

#include "works/Catalogo.h"
#include "base/FileIo.h"

namespace vardena {
std::string_view TextoDeDiseno(const CampoDef& campo, size_t miembro)
{
    if (campo.textos.size() == 1)
        return campo.textos[0];
    return miembro < campo.textos.size() ? campo.textos[miembro] : std::string_view();
}

int NumeroControles(const TablaForm& tabla)
{
    int n = 0;
    for (const auto& c : tabla.campos)
        n += c.indices.empty() ? 1 : static_cast<int>(c.indices.size());
    return n;
}

const std::vector<TablaForm>& TablasCampos()
{
    static const std::vector<TablaForm> todas = [] {
        std::vector<const TablaForm*> sueltas;
        for (const auto* familia : {&TablasHormigon(), &TablasAceroMadera(), &TablasFabricaTerreno(),
                                    &TablasDatosYLibres()})
            for (const auto& t : *familia)
                sueltas.push_back(&t);
        std::vector<TablaForm> out;
        // The catalogue's order first, as the contents list shows the elements.
        for (const auto& fila : Catalogo())
            for (auto& t : sueltas)
                if (t && SameNameNoCase(t->nombre, fila.form)) {
                    out.push_back(*t);
                    t = nullptr;
                }
        for (const auto* t : sueltas)
            if (t)
                out.push_back(*t);
        return out;
    }();
    return todas;
}

const TablaForm* TablaCampos(std::string_view form)
{
    for (const auto& t : TablasCampos())
        if (t.nombre == form)
            return &t;
    return nullptr;
}

// Reads twice, guard, check step, asks.
const std::vector<CicloForm>& Ciclos()
{
    using P = PasoComprobacion;
    static const std::vector<CicloForm> ciclos = {
        {"frmAbaco", false, false, P::SinArgumentos, false},
        {"frmForjUnid", false, true, P::SinArgumentos, false},
        {"frmForjSitu", false, true, P::SinArgumentos, false},
        {"frmForjRet", false, true, P::SinArgumentos, false},
        {"frmForMaci", false, true, P::SinArgumentos, false},
        {"frmVigHorm", false, true, P::SinArgumentos, false},
        {"frmVigRegHorm", false, true, P::OchoYSiete, false},
        {"frmPilHorm", false, false, P::SinArgumentos, false},
        {"frmMensCorta", true, true, P::SinArgumentos, false},
        {"frmVigPared", false, true, P::SinArgumentos, false},
        {"frmEscHorm", true, true, P::Bandera, false},
        {"frmVigMet", false, true, P::SinArgumentos, false},
        {"frmPilMet", false, true, P::SinArgumentos, false},
        {"frmForjAcer", false, true, P::SinArgumentos, false},
        {"frmBasMet", true, true, P::Ninguno, true},
        {"frmEscMet", true, true, P::Ninguno, true},
        {"frmVigMade", false, true, P::SinArgumentos, false},
        {"frmPilMade", false, false, P::SinArgumentos, false},
        {"frmForMade", false, true, P::SinArgumentos, false},
        {"frmEscMade", true, true, P::Bandera, true},
        {"frmSuelo", false, true, P::Ninguno, false},
        {"frmZap", true, true, P::SinArgumentos, false},
        {"frmZapComb", true, true, P::SinArgumentos, false},
        {"frmZapCorr", true, true, P::Bandera, false},
        {"frmPilotes", false, true, P::SinArgumentos, false},
        {"frmMuroH", true, true, P::SinArgumentos, false},
        {"frmMuroCont", false, true, P::SinArgumentos, false},
        {"frmMuroAnclado", true, true, P::SinArgumentos, false},
        {"frmTalud", true, true, P::SinArgumentos, false},
        {"frmMuros", false, true, P::SinArgumentos, false},
        {"frmMCerr", false, true, P::SinArgumentos, false},
        {"frmMDint", true, true, P::SinArgumentos, false},
        {"frmEnBlanco", true, true, P::Ninguno, true},
        {"frmLosCime", true, true, P::Bandera, true},
        {"frmMArco", true, true, P::Bandera, true},
        {"frmMArma", true, true, P::Bandera, true},
        {"frmSolArma", true, true, P::Bandera, true},
        {"frmUniAto", true, true, P::Bandera, true},
        {"frmUniSol", true, true, P::Bandera, true},
        {"frmVigFlot", true, true, P::Bandera, true},
        // The actions form keeps one record, "Acciones", and saves with no check call.
        {"frmAccio", false, true, P::Ninguno, false, "Acciones"},
        // The annexes form saves its questionnaire with no check call.
        {"frmDatosProy", false, true, P::Ninguno, false},
    };
    return ciclos;
}

const CicloForm& CicloDe(std::string_view form)
{
    static const CicloForm comun{"", false, true, PasoComprobacion::SinArgumentos, false};
    for (const auto& c : Ciclos())
        if (c.nombre == form)
            return c;
    return comun;
}

}  // namespace vardena
