#include "frame/Formularios.h"

#include <functional>

#include "building/DatosGen.h"
#include "building/Mapas.h"
#include "concrete/ForjUnid2.h"
#include "concrete/Hormigon.h"
#include "ground_masonry/Fabrica.h"
#include "frame/Campos.h"
#include "frame/ElementForm.h"
#include "steel_timber/ClaseAcero.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"
#include "base/Form.h"

namespace vardena {
namespace {

using Fabrica = std::function<std::unique_ptr<Form>(Declaraciones&)>;

struct FormPropio {
    std::string_view nombre;
    Fabrica crea;
    std::span<const GrupoDef> grupos = {};  // its window's groups
};

// Forms with a class of their own and no element definition: the general data and the
// dialogs. An element form with logic of its own names its class in its definition.
const std::vector<FormPropio>& FormsPropios()
{
    static const std::vector<FormPropio> propios = {
        {"DatosGen", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<DatosGen>(d); }},
        // The map dialogs of the actions form: no record, no catalogue row.
        {"frmECGn", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmECGn>(d); }},
        {"frmECV", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmECV>(d); }},
        {"frmNCSE02", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmNCSE02>(d); }},
        // The calculator of concrete properties by age: no record, opened over the main window.
        {"frmHormigon", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmHormigon>(d); },
         GruposHormigon()},
        // The slab catalogue editor, opened modally by the one-way slab.
        {"frmForjUnid2", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmForjUnid2>(d); },
         GruposForjUnid2()},
        // The masonry properties: a modal dialog that hands its figures back to its caller.
        {"frmFabrica", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmFabrica>(d); },
         GruposFabrica()},
        // The section class table of the steel forms: no record, opened by their cmdClase.
        {"frmClaseAcero", [](Declaraciones& d) -> std::unique_ptr<Form> { return std::make_unique<FrmClaseAcero>(d); }},
    };
    return propios;
}

// The code of a form's records: its catalogue row's, or its own for a form with a free-text
// result; "" for a form that keeps no record.
std::string CodigoCatalogo(std::string_view name)
{
    for (const auto& fila : Catalogo())
        if (SameNameNoCase(fila.form, name))
            return fila.code;
    return std::string(CodigoDeRegistro(name));
}

// The names CreaForm knows: the catalogue's order first, then the forms without a row.
std::vector<std::string> Nombres()
{
    std::vector<std::string> out;
    auto add = [&](std::string_view n) {
        for (const auto& o : out)
            if (o == n)
                return;
        out.emplace_back(n);
    };
    for (const auto& fila : Catalogo()) {
        for (const auto& p : FormsPropios())
            if (SameNameNoCase(p.nombre, fila.form))
                add(p.nombre);
        for (const auto& t : TablasCampos())
            if (SameNameNoCase(t.nombre, fila.form))
                add(t.nombre);
    }
    for (const auto& p : FormsPropios())
        add(p.nombre);
    for (const auto& t : TablasCampos())
        add(t.nombre);
    return out;
}

}  // namespace

std::unique_ptr<Form> CreaForm(Declaraciones& d, std::string_view name)
{
    for (const auto& p : FormsPropios())
        if (p.nombre == name)
            return p.crea(d);
    if (const TablaForm* tabla = TablaCampos(name))
        return tabla->crea ? tabla->crea(d, *tabla) : std::make_unique<ElementForm>(d, *tabla);
    return nullptr;
}

std::span<const GrupoDef> GruposDeDialogo(std::string_view name)
{
    for (const auto& p : FormsPropios())
        if (p.nombre == name)
            return p.grupos;
    return {};
}

std::unique_ptr<Form> CargaForm(Declaraciones& d, std::string_view name)
{
    std::unique_ptr<Form> form = CreaForm(d, name);
    if (form)
        form->Form_Load();
    return form;
}

std::vector<FormInfo> ListaFormularios(Declaraciones& d)
{
    std::vector<FormInfo> out;
    for (const auto& name : Nombres()) {
        std::unique_ptr<Form> form = CreaForm(d, name);
        out.push_back({name, CodigoCatalogo(name), form->Caption(), static_cast<int>(form->StoredControls().size())});
    }
    return out;
}

}  // namespace vardena
