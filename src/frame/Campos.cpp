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
        for (const auto familia : {TablasHormigon(), TablasAceroMadera(), TablasFabricaTerreno(), TablasDatosYLibres()})
            for (const auto& t : familia)
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

const CicloForm& CicloDe(std::string_view form)
{
    static const CicloForm comun{false, true, PasoComprobacion::SinArgumentos, false};
    const TablaForm* t = TablaCampos(form);
    return t ? t->ciclo : comun;
}

}  // namespace vardena
