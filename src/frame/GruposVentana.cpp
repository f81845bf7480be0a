#include "frame/GruposVentana.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "base/FileIo.h"
#include "frame/Campos.h"
#include "frame/ControlesVisibles.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

// Controls that every element window has: they make its frame, not its data.
const std::set<std::string, std::less<>> kMarco = {"List1",        "CmdCalcular", "Listado1", "CmdSalir",     "UCBhelp",
                                                   "Lbvers",       "RichTextBox1", "Frm1",    "UCframeRecDat", "UCframe2"};
const std::set<std::string, std::less<>> kMateriales = {"CmbHorm",  "CmbAcero", "cmbControl", "CmbRecub",
                                                        "cmbAceroPerfil", "CmbResis", "CmbServi", "CmbAcP"};
// Unit labels stand beside the load field of their index.
const std::set<std::string, std::less<>> kUnidades = {"LbQSI", "lbST", "lbSI"};

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

// The groups that the form's definition declares, with the controls they take.
std::vector<GrupoCampos> GruposDeclarados(const Form& form, std::set<const Control*>& tomados)
{
    std::vector<GrupoCampos> out;
    const TablaForm* tabla = TablaCampos(form.Name());
    if (!tabla)
        return out;
    for (const GrupoDef& def : tabla->grupos) {
        GrupoCampos g;
        g.columna = def.columna;
        const Control* marco = def.marco.empty() ? nullptr : form.Find(std::string(def.marco));
        g.titulo = marco ? marco->Caption() : form.decl().Msg(def.mensaje);
        for (std::string_view nombre : def.controles) {
            int index = -1;
            if (const size_t p = nombre.find('('); p != std::string_view::npos) {
                index = std::stoi(std::string(nombre.substr(p + 1)));
                nombre = nombre.substr(0, p);
            }
            std::vector<Control*> miembros;
            for (Control* c : form.Controls())
                if (c->Name() == nombre && (index < 0 || c->Index() == index) && !tomados.count(c))
                    miembros.push_back(c);
            std::stable_sort(miembros.begin(), miembros.end(),
                             [](const Control* a, const Control* b) { return a->Index() < b->Index(); });
            for (Control* c : miembros) {
                tomados.insert(c);
                g.miembros.push_back(c);
            }
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
    int filas = 0;
    for (const Control* c : g.miembros)
        filas += c->kind() == Kind::UCPerfil ? 3 : 1;
    return g.miembros.size() > 6 ? (filas + 1) / 2 + 1 : filas + 1;
}


std::vector<GrupoCampos> AgrupaCampos(const Form& form)
{
    const Declaraciones& d = form.decl();
    std::vector<GrupoCampos> fijos = {{d.Msg(1500), {}}, {d.Msg(1501), {}}, {d.Msg(1502), {}}, {d.Msg(1503), {}},
                                      {d.Msg(1504), {}}};
    std::vector<GrupoCampos> familias;
    GrupoCampos armaduras{d.Msg(1505), {}}, perfiles{d.Msg(1506), {}}, ordenes{d.Msg(1507), {}};
    std::set<const Control*> tomados;
    std::vector<GrupoCampos> declarados = GruposDeclarados(form, tomados);
    const Control* marcoResultados = form.Find("UCframe2");
    GrupoCampos resultados{marcoResultados ? marcoResultados->Caption() : d.Msg(1508), {}};
    for (Control* c : form.Controls()) {
        const std::string& n = c->Name();
        if (tomados.count(c) || kMarco.count(n) || kUnidades.count(n))
            continue;
        if (StartsWithNoCase(n, "TxtRes")) {
            resultados.miembros.push_back(c);
        } else if (n == "txtTitulo" || n == "CmbPlanta") {
            fijos[0].miembros.push_back(c);
        } else if (kMateriales.count(n)) {
            fijos[1].miembros.push_back(c);
        } else if (c->kind() == Kind::CommandButton) {
            ordenes.miembros.push_back(c);
        } else if (c->kind() == Kind::RichTextBox) {
            resultados.miembros.push_back(c);
        } else if (c->kind() == Kind::Label || c->kind() == Kind::PictureBox || c->kind() == Kind::Frame) {
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
            fijos[2].miembros.push_back(c);
        } else if (c->kind() == Kind::ComboBox || c->kind() == Kind::ListBox) {
            fijos[3].miembros.push_back(c);
        } else {
            fijos[4].miembros.push_back(c);
        }
    }
    // The members of an array in index order, as a reader counts them.
    for (GrupoCampos& g : familias)
        std::stable_sort(g.miembros.begin(), g.miembros.end(),
                         [](const Control* a, const Control* b) { return a->Index() < b->Index(); });
    std::vector<GrupoCampos> out = std::move(declarados);
    for (GrupoCampos& g : fijos)
        out.push_back(std::move(g));
    for (GrupoCampos& g : familias)
        out.push_back(std::move(g));
    for (GrupoCampos* g : {&armaduras, &perfiles, &ordenes, &resultados})
        out.push_back(std::move(*g));
    out.erase(std::remove_if(out.begin(), out.end(), [](const GrupoCampos& g) { return g.miembros.empty(); }), out.end());
    return out;
}

}  // namespace vardena
