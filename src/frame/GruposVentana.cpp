#include "frame/GruposVentana.h"

#include <algorithm>
#include <set>
#include <span>
#include <string_view>

#include "base/FileIo.h"
#include "frame/Campos.h"
#include "frame/ControlesVisibles.h"
#include "frame/DatosForms.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

bool EsRefuerzo(Kind k) { return k == Kind::UCNumDiam || k == Kind::UCNumDiamSep || k == Kind::UCZapatas || k == Kind::UCMallazo; }

// The heading of a control array: the caption that its row of index -1 gives, without the
// place of the member's number, else its name.
std::string TituloDeArray(const Form& form, const std::string& nombre)
{
    for (const ControlVisible& v : ControlesVisibles(form.Name()))
        if (v.index < 0 && SameNameNoCase(v.nombre, nombre)) {
            std::string titulo(v.caption);
            if (const size_t at = titulo.find(" #"); at != std::string::npos)
                titulo.erase(at, 2);
            return titulo;
        }
    return nombre;
}

// Whether a name of a declared group stands for the control: its own name, or "Name*" for
// every name that begins with "Name".
bool Nombra(std::string_view patron, const std::string& nombre)
{
    if (!patron.empty() && patron.back() == '*')
        return StartsWithNoCase(nombre, patron.substr(0, patron.size() - 1));
    return nombre == patron;
}

// The controls a declared name brings that no group has taken yet, none of the window's frame
// and no unit labels: an array's members in index order, the controls a pattern names in the
// form's order.
std::vector<Control*> Nombrados(const Form& form, std::string_view nombre, const std::set<const Control*>& tomados)
{
    int index = -1;
    if (const size_t p = nombre.find('('); p != std::string_view::npos) {
        index = std::stoi(std::string(nombre.substr(p + 1)));
        nombre = nombre.substr(0, p);
    }
    std::vector<Control*> miembros;
    for (Control* c : form.Controls())
        if (Nombra(nombre, c->Name()) && (index < 0 || c->Index() == index) && !tomados.count(c) &&
            !EsDelMarco(c->Name()) && !EsEtiquetaDeUnidad(c->Name()))
            miembros.push_back(c);
    if (nombre.empty() || nombre.back() != '*')
        std::stable_sort(miembros.begin(), miembros.end(),
                         [](const Control* a, const Control* b) { return a->Index() < b->Index(); });
    return miembros;
}

// A control that a label beside it names: an entry field or a list (check boxes, options and
// buttons carry their own caption).
bool EsCampo(const Control* c)
{
    return c->kind() == Kind::TextBox || c->kind() == Kind::ComboBox || c->kind() == Kind::ListBox ||
           IsComposite(c->kind());
}

bool EsEtiquetaSola(const std::vector<Control*>& entrada)
{
    return entrada.size() == 1 && entrada[0]->kind() == Kind::Label;
}

// The rows of a table group: lone labels up to the value they name, a field, or in a group
// without fields the third label of the row. Labels left at the end stand as notes.
void Filas(GrupoCampos& g, const std::vector<std::vector<Control*>>& entradas)
{
    g.tabla = true;
    const bool conCampos = std::any_of(entradas.begin(), entradas.end(), [](const std::vector<Control*>& e) {
        return !e.empty() && EsCampo(e[0]);
    });
    std::vector<Control*> rotulos;
    for (const std::vector<Control*>& e : entradas) {
        if (e.empty())
            continue;
        if (EsEtiquetaSola(e) && (conCampos || rotulos.size() < 2)) {
            rotulos.push_back(e[0]);
            continue;
        }
        g.miembros.insert(g.miembros.end(), e.begin(), e.end());
        if (!rotulos.empty()) {
            g.etiquetas[e[0]] = rotulos[0];
            g.junto[e[0]].assign(rotulos.begin() + 1, rotulos.end());
        }
        rotulos.clear();
    }
    g.miembros.insert(g.miembros.end(), rotulos.begin(), rotulos.end());
}

// A frame a group names: "Name" or a member of an array, "Name(Index)".
const Control* MarcoNombrado(const Form& form, std::string_view nombre)
{
    if (nombre.empty())
        return nullptr;
    if (const size_t p = nombre.find('('); p != std::string_view::npos)
        return form.Find(std::string(nombre.substr(0, p)), std::stoi(std::string(nombre.substr(p + 1))));
    return form.Find(std::string(nombre));
}

// The declared groups with the controls they take.
std::vector<GrupoCampos> Declarados(const Form& form, std::span<const GrupoDef> defs, std::set<const Control*>& tomados)
{
    std::vector<GrupoCampos> out;
    for (const GrupoDef& def : defs) {
        GrupoCampos g;
        g.columna = def.columna;
        const Control* marco = MarcoNombrado(form, def.marco);
        g.titulo = marco ? marco->Caption() : form.decl().Msg(def.mensaje);
        for (const std::string_view nombre : {def.marco, def.dentro})
            if (const Control* m = MarcoNombrado(form, nombre))
                g.marcos.push_back(m);
        std::vector<std::vector<Control*>> entradas;
        for (std::string_view nombre : def.controles) {
            entradas.push_back(Nombrados(form, nombre, tomados));
            for (Control* c : entradas.back())
                tomados.insert(c);
        }
        if (def.rejilla > 0) {
            // Every control keeps its cell: a label here heads a row or a column.
            g.rejilla = def.rejilla;
            for (const std::vector<Control*>& e : entradas)
                g.miembros.insert(g.miembros.end(), e.begin(), e.end());
            if (!g.miembros.empty())
                out.push_back(std::move(g));
            continue;
        }
        if (def.tabla) {
            Filas(g, entradas);
            if (!g.miembros.empty())
                out.push_back(std::move(g));
            continue;
        }
        for (size_t i = 0; i < entradas.size(); ++i) {
            // A lone label before a field names it.
            const bool rotulo = entradas[i].size() == 1 && entradas[i][0]->kind() == Kind::Label &&
                                i + 1 < entradas.size() && !entradas[i + 1].empty() && EsCampo(entradas[i + 1][0]);
            if (rotulo) {
                g.etiquetas[entradas[i + 1][0]] = entradas[i][0];
                continue;
            }
            g.miembros.insert(g.miembros.end(), entradas[i].begin(), entradas[i].end());
        }
        if (!g.miembros.empty())
            out.push_back(std::move(g));
    }
    return out;
}

}  // namespace

std::string EtiquetaEnGrupo(const Control& c, const GrupoCampos& g)
{
    const std::string propia = c.Caption().empty() ? c.Label() : c.Caption();
    std::string texto = c.kind() == Kind::Label ? c.Label() : propia;
    const bool repetida = c.Index() >= 0 && std::count_if(g.miembros.begin(), g.miembros.end(), [&](const Control* o) {
                                                 return o->Caption() == c.Caption();
                                             }) > 1;
    return repetida && !c.Caption().empty() ? texto + " " + std::to_string(c.Index()) : texto;
}

int AltoDeGrupo(const GrupoCampos& g)
{
    if (g.rejilla > 0)
        return static_cast<int>((g.miembros.size() + static_cast<size_t>(g.rejilla) - 1) / static_cast<size_t>(g.rejilla)) + 1;
    int filas = 0;
    const Control* anterior = nullptr;
    for (const Control* c : g.miembros) {
        // Sketches side by side take one band of several rows.
        if (c->kind() == Kind::PictureBox)
            filas += anterior && anterior->kind() == Kind::PictureBox ? 0 : 5;
        else
            filas += c->kind() == Kind::UCPerfil ? 3 : 1;
        anterior = c;
    }
    return g.miembros.size() > 6 ? (filas + 1) / 2 + 1 : filas + 1;
}

bool GrupoVisible(const GrupoCampos& g)
{
    return std::all_of(g.marcos.begin(), g.marcos.end(), [](const Control* m) { return m->Visible(); });
}


std::vector<GrupoCampos> AgrupaCampos(const Form& form)
{
    const Declaraciones& d = form.decl();
    std::set<const Control*> tomados;
    const TablaForm* tabla = TablaCampos(form.Name());
    std::vector<GrupoCampos> out = Declarados(form, tabla ? tabla->grupos : GruposDeDialogo(form.Name()), tomados);
    for (GrupoCampos& g : Declarados(form, kGruposAlPrincipio, tomados))
        out.push_back(std::move(g));
    const std::vector<GrupoCampos> finales = Declarados(form, kGruposAlFinal, tomados);
    // What no group declares goes by its kind.
    std::vector<GrupoCampos> porTipo = {{d.Msg(1502), {}}, {d.Msg(1503), {}}, {d.Msg(1504), {}}};
    std::vector<GrupoCampos> familias;
    GrupoCampos armaduras{d.Msg(1505), {}}, perfiles{d.Msg(1506), {}}, ordenes{d.Msg(1507), {}};
    for (Control* c : form.Controls()) {
        const std::string& n = c->Name();
        if (tomados.count(c) || EsDelMarco(n) || EsEtiquetaDeUnidad(n))
            continue;
        if (c->kind() == Kind::CommandButton) {
            ordenes.miembros.push_back(c);
        } else if (c->kind() == Kind::Label || c->kind() == Kind::PictureBox || c->kind() == Kind::Frame ||
                   c->kind() == Kind::RichTextBox) {
            // Captions and frames of the designed window: the grouping here takes their place.
            continue;
        } else if (EsRefuerzo(c->kind()) && c->Index() < 0) {
            armaduras.miembros.push_back(c);
        } else if (c->kind() == Kind::UCPerfil && c->Index() < 0) {
            perfiles.miembros.push_back(c);
        } else if (c->Index() >= 0) {
            auto it = std::find_if(familias.begin(), familias.end(),
                                   [&](const GrupoCampos& g) { return g.miembros.front()->Name() == n; });
            if (it == familias.end())
                familias.push_back({TituloDeArray(form, n), {c}});
            else
                it->miembros.push_back(c);
        } else if (c->kind() == Kind::TextBox) {
            porTipo[0].miembros.push_back(c);
        } else if (c->kind() == Kind::ComboBox || c->kind() == Kind::ListBox) {
            porTipo[1].miembros.push_back(c);
        } else {
            porTipo[2].miembros.push_back(c);
        }
    }
    // The members of an array in index order, as a reader counts them.
    for (GrupoCampos& g : familias)
        std::stable_sort(g.miembros.begin(), g.miembros.end(),
                         [](const Control* a, const Control* b) { return a->Index() < b->Index(); });
    for (auto* grupos : {&porTipo, &familias})
        for (GrupoCampos& g : *grupos)
            out.push_back(std::move(g));
    for (GrupoCampos* g : {&armaduras, &perfiles, &ordenes})
        out.push_back(std::move(*g));
    out.insert(out.end(), finales.begin(), finales.end());
    out.erase(std::remove_if(out.begin(), out.end(), [](const GrupoCampos& g) { return g.miembros.empty(); }), out.end());
    return out;
}

}  // namespace vardena
