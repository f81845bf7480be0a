#include "frame/ElementForm.h"

#include "building/Unidades.h"
#include "frame/ControlesVisibles.h"
#include "frame/DatosForms.h"
#include "frame/Refuerzos.h"
#include "works/LngPack.h"
#include "works/Catalogo.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"
#include "base/VbFormat.h"
#include "base/VbInput.h"

namespace vardena {
namespace {

constexpr int kKeyDelete = 46;

// Puts `Cargando` back as it was when a filling ends, also when it fails.
struct RestauraCargando {
    Declaraciones& d;
    int16_t antes;
    ~RestauraCargando() { d.Cargando = antes; }
};

// Steel forms choose a rolled steel in CmbAcero; concrete forms a reinforcing steel.
bool AceroEstructural(std::string_view form)
{
    for (const auto& fila : Catalogo())
        if (SameNameNoCase(fila.form, form))
            return std::string_view(fila.family) == "Acero";
    return false;
}

// The selected row of a list of the form, or nullopt when it has none or no selection.
std::optional<int> Fila(const Form& form, std::string_view nombre)
{
    const Control* c = form.Find(nombre);
    if (!c || c->ListIndex() < 0)
        return std::nullopt;
    return c->ListIndex();
}

// The arguments of a check call of `n` arguments: the gathered materials, then the loads in
// index order, padded with zeros.
std::vector<double> Argumentos(const DatosComprobacion& datos, size_t n)
{
    std::vector<double> a{static_cast<double>(datos.fck.value_or(0)), static_cast<double>(datos.fyk.value_or(0)),
                          datos.gammaC, datos.gammaS};
    for (const auto& [indice, valor] : datos.cargas)
        a.push_back(valor);
    a.resize(n, 0.0);
    return a;
}

}  // namespace

void ComprobacionNula(Declaraciones& d, const std::vector<double>&) { d.ResultadoCalculo = 1; }

bool TeclaProhibidaEnTitulo(int keyAscii)
{
    switch (keyAscii) {
    case '\\': case ':': case '/': case '*': case '?': case '"': case '<': case '>': case '|':
        return true;
    default:
        return false;
    }
}

ElementForm::ElementForm(Declaraciones& d, const TablaForm& tabla)
    : Form(d, std::string(tabla.nombre)), tabla_(tabla), ciclo_(CicloDe(tabla.nombre))
{
    for (const CampoDef& campo : tabla.campos) {
        if (campo.indices.empty())
            CreaCampo(campo, -1, 0);
        for (size_t m = 0; m < campo.indices.size(); ++m)
            CreaCampo(campo, campo.indices[m], m);
    }
    CreaMarco();
    ControlesUnidades(*this);
    AnadeControlesVisibles(*this);
    LlenaListas(*this);
    if (Control* titulo = Find("txtTitulo")) {
        titulo->designText = TituloPorDefecto(Name());
        titulo->SetText(titulo->designText);
    }
    SetCaption(CaptionForm(Name()));
    ConectaEventos();
}

void ElementForm::CreaCampo(const CampoDef& campo, int index, size_t miembro)
{
    Control& c = Add(campo.tipo, std::string(campo.nombre), index);
    if (c.kind() == Kind::TextBox) {
        c.designText = std::string(TextoDeDiseno(campo, miembro));
        c.SetText(c.designText);
    }
    if (IsComposite(c.kind()))
        InstalaControlCompuesto(c);
}

bool EsDelMarco(std::string_view nombre)
{
    for (const ControlDelMarco& m : kMarcoElemento)
        if (m.nombre == nombre)
            return true;
    return false;
}

void ElementForm::CreaMarco()
{
    for (const ControlDelMarco& m : kMarcoElemento) {
        Control& c = Add(m.kind, std::string(m.nombre));
        if (!m.caption.empty())
            c.SetCaption(std::string(m.caption));
    }
    At("List1").SetToolTipText("Click para ver y doble Click para borrar");
    At("RichTextBox1").SetVisible(false);
}

void ElementForm::ConectaEventos()
{
    Control& list = At("List1");
    list.onClick = [this](Control&) { List1_Click(); };
    list.onDblClick = [this](Control&) { List1_DblClick(); };
    list.onKeyDown = [this](Control&, int key) { List1_KeyDown(key); };
    if (Control* titulo = Find("txtTitulo"))
        titulo->onKeyPress = [this](Control&, int& key) { txtTitulo_KeyPress(key); };
    At("CmdCalcular").onClick = [this](Control&) { CmdCalcular_Click(); };
    At("Listado1").onClick = [this](Control&) { Listado1_Click(); };
    At("CmdSalir").onClick = [this](Control&) { CmdSalir_Click(); };
}

void ElementForm::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "Form_Load", [&] {
        TraduceForm(*this);
        RestauraCargando restaura{d, d.Cargando};
        d.Cargando = kTrue;
        // The levels first, so that CmbPlanta takes its row 0 with every other list.
        LlenaPlantas(*this, 0);
        for (Control* c : Controls())
            if (c->kind() == Kind::ComboBox && c->ListCount() > 0)
                c->SetListIndex(0);
        DefaultsPropios(*this);
        DefaultsGenerales(*this);
        CambiaUnidades(*this, d.Unidades);
        if (ciclo_.tituloFijo.empty()) {
            ListaArchivos("l" + CodigoDeForm(d, Name()), d.CarpetaObra, At("List1"), "");
        } else {
            At("txtTitulo").SetText(ciclo_.tituloFijo);
            std::string titulo(ciclo_.tituloFijo);
            lectura_ = LeeForm(*this, titulo);
            // The version label tells the version of the record shown, as after a click.
            if (lectura_.found())
                PoneVersion();
        }
        CargaPropia();
    });
}

void ElementForm::Form_Unload() { descargado_ = true; }

std::optional<Croquis> ElementForm::CroquisDe(const Control&) const { return std::nullopt; }

void ElementForm::PoneVersion() { At("Lbvers").SetCaption("vers: " + VbStr(decl().VersionArchivo)); }

void ElementForm::List1_Click()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "List1_Click", [&] {
        Control& list = At("List1");
        std::string titulo = list.SelectedText();
        if (ciclo_.guarda)
            d.Cargando = kTrue;
        lectura_ = LeeForm(*this, titulo);
        // Fields that depend on one another settle on a second reading.
        if (ciclo_.leeDosVeces)
            LeeForm(*this, titulo);
        if (ciclo_.guarda)
            d.Cargando = kFalse;
        list.SetToolTipText("");
        PoneVersion();
        At("CmdCalcular").SetEnabled(true);
    });
}

void ElementForm::List1_DblClick()
{
    ConVentanaError(decl(), "List1_DblClick", [&] { BorraRegistro(*this, At("List1").SelectedText()); });
}

void ElementForm::List1_KeyDown(int keyCode)
{
    if (keyCode == kKeyDelete)
        List1_DblClick();
}

void ElementForm::txtTitulo_KeyPress(int& keyAscii)
{
    if (TeclaProhibidaEnTitulo(keyAscii))
        keyAscii = 0;
}

void ElementForm::Evento(std::string_view origen, const std::function<void()>& rutina)
{
    if (decl().Cargando != kFalse)
        return;
    ConVentanaError(decl(), origen, rutina);
}

void ElementForm::CmdCalcular_Click()
{
    Declaraciones& d = decl();
    d.UltimoGuardadoRechazado.clear();
    if (!PuedeCalcular())
        return;
    ConVentanaError(d, "CmdCalcular_Click", [&] {
        guardado_.clear();
        if (ciclo_.pregunta && !ConfirmaReemplazo())
            return;
        if (ciclo_.paso == PasoComprobacion::Ninguno) {
            CalculoPropio();
        } else {
            CompruebaMinimos();
            Comprueba(LeeDatosComprobacion());
        }
        // A refused save has told the user why; the version shown stays that of the record read.
        guardado_ = GuardaForm(*this);
        if (guardado_.empty())
            return;
        TrasGuardado();
        if (ciclo_.tituloFijo.empty())
            PoneVersion();
    });
}

void ElementForm::CompruebaMinimos()
{
    for (const Minimo& m : Minimos(Name())) {
        // The comparison is made and nothing follows from it: no input is refused.
        [[maybe_unused]] const bool bajoMinimo = ValComaCopy(At(m.control, m.index).Text()) < m.value;
    }
}

DatosComprobacion ElementForm::LeeDatosComprobacion()
{
    Declaraciones& d = decl();
    DatosComprobacion datos;
    if (auto i = Fila(*this, "CmbHorm"))
        datos.fck = FckIndice(d, IndiceMaterial(*i, d.GenHorm));
    if (auto i = Fila(*this, "CmbAcero")) {
        if (AceroEstructural(Name()))
            datos.fy = FyAcero(IndiceMaterial(*i, d.GenAcP));
        else
            datos.fyk = FykIndice(d, IndiceMaterial(*i, d.GenAcero));
    }
    if (auto i = Fila(*this, "cmbAceroPerfil"))
        datos.fy = FyAcero(IndiceMaterial(*i, d.GenAcP));
    if (auto i = Fila(*this, "cmbControl"))
        Coeficientes(d, IndiceMaterial(*i, d.GenControl), datos.gammaC, datos.gammaS);
    for (Control* q : Members("TxtQ"))
        if (q->kind() == Kind::TextBox)
            datos.cargas[q->Index()] = LeeQ(*this, q->Index());
    return datos;
}

void ElementForm::Comprueba(const DatosComprobacion& datos)
{
    Declaraciones& d = decl();
    switch (ciclo_.paso) {
    case PasoComprobacion::Ninguno:
        break;
    case PasoComprobacion::SinArgumentos:
        ComprobacionNula(d, {});
        break;
    case PasoComprobacion::Bandera:
        ComprobacionNula(d, {static_cast<double>(kTrue)});
        break;
    case PasoComprobacion::OchoYSiete:
        ComprobacionNula(d, Argumentos(datos, 8));
        ComprobacionNula(d, Argumentos(datos, 7));
        break;
    }
}

bool ElementForm::ConfirmaReemplazo()
{
    Declaraciones& d = decl();
    const std::string resultados = RutaResultados(*this, At("txtTitulo").Text());
    if (!ExistingNoCase(resultados))
        return true;
    return d.ui.MsgBox(d.Msg(10) + d.Msg(11) + d.Msg(12), mb::YesNo | mb::Exclamation, d.Msg(13)) != mb::No;
}

void ElementForm::Listado1_Click()
{
    listadoPulsado_ = !listadoPulsado_;
    At("RichTextBox1").SetVisible(listadoPulsado_);
    At("Frm1").SetVisible(!listadoPulsado_);
}

void ElementForm::CmdSalir_Click() { Form_Unload(); }

}  // namespace vardena
