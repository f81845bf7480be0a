// vardena form, vardena forms: an element form of a work, loaded without a window and driven
// by its controls as a user would drive it: choose a title in List1, type into fields, press
// buttons, read what the form shows.

#include <algorithm>
#include <cctype>
#include <functional>
#include <cstdio>
#include <optional>
#include <sstream>

#include "Commands.h"
#include "frame/Formularios.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"
#include "works/Obra.h"

namespace vardena::cli {
namespace {

// Message boxes go to standard error as in every command; questions take the answer given
// with --answer (yes by default); the error window answers "Salir".
class FormUi : public Ui {
public:
    int respuesta = mb::Yes;
    int MsgBox(std::string_view prompt, int style, std::string_view title) override
    {
        std::cerr << "vardena: " << (title.empty() ? "" : std::string(title) + ": ") << prompt << "\n";
        if ((style & 7) == mb::OkOnly)
            return mb::Ok;
        return (style & 7) == mb::OkCancel && respuesta == mb::No ? mb::Cancel : respuesta;
    }
    bool ErrorFrm(std::string_view origin, int number, std::string_view description) override
    {
        std::cerr << "vardena: error " << number << " in " << origin << ": " << description << "\n";
        return false;
    }
};

// A control as the command line names it: Name, Name(Index), and an optional .Property.
struct Referencia {
    std::string nombre;
    int indice = -1;
    std::string propiedad;
    std::string texto;  // as written
};

std::optional<Referencia> LeeReferencia(const std::string& text)
{
    Referencia r;
    r.texto = text;
    size_t i = 0;
    while (i < text.size() && (std::isalnum(static_cast<unsigned char>(text[i])) || text[i] == '_'))
        r.nombre += text[i++];
    if (r.nombre.empty())
        return std::nullopt;
    if (i < text.size() && text[i] == '(') {
        size_t close = text.find(')', i);
        if (close == std::string::npos || close == i + 1)
            return std::nullopt;
        const std::string digits = text.substr(i + 1, close - i - 1);
        if (digits.size() > 4 || digits.find_first_not_of("0123456789") != std::string::npos)
            return std::nullopt;
        r.indice = std::stoi(digits);
        i = close + 1;
    }
    if (i < text.size()) {
        if (text[i] != '.' || i + 1 == text.size())
            return std::nullopt;
        r.propiedad = text.substr(i + 1);
    }
    return r;
}

struct Paso {
    enum Tipo { Pon, Pulsa, Pincha, Deja, Teclea } tipo;  // --set, --press, --click, --leave, --type
    Referencia control;
    std::string valor;
    int x = 0, y = 0;  // where --click presses
    // The steps of the modal dialog this press or click opens (--dialog ... --end-dialog).
    std::vector<Paso> dialogo = {};
};

// "X,Y" of --click: two whole numbers.
bool LeePunto(const std::string& t, int& x, int& y)
{
    const size_t coma = t.find(',');
    if (coma == std::string::npos || coma == 0 || coma + 1 == t.size())
        return false;
    const std::string a = t.substr(0, coma), b = t.substr(coma + 1);
    auto entero = [](const std::string& s) {
        const size_t desde = s[0] == '-' ? 1 : 0;
        return s.size() > desde && s.size() <= 6 + desde && s.find_first_not_of("0123456789", desde) == std::string::npos;
    };
    if (!entero(a) || !entero(b))
        return false;
    x = std::stoi(a);
    y = std::stoi(b);
    return true;
}

struct Opciones {
    std::string obra, form;
    std::optional<std::string> titulo;
    std::vector<Paso> pasos;
    std::vector<Referencia> lecturas;
    bool dump = false, json = false;
    int respuesta = mb::Yes;
};

// Parses the arguments of `form`; false on bad usage.
bool LeeOpciones(const std::vector<std::string>& args, Opciones& o)
{
    std::vector<std::string> sueltos;
    // Where the steps go: the form's own, or those of the dialog the last press opens.
    std::vector<Paso>* destino = &o.pasos;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto valor = [&](std::string& out) {
            if (i + 1 >= args.size())
                return false;
            out = args[++i];
            return true;
        };
        std::string v;
        if (a == "--dump") {
            o.dump = true;
        } else if (a == "--json") {
            o.json = true;
        } else if (a == "--title") {
            if (!valor(v))
                return false;
            o.titulo = v;
        } else if (a == "--answer") {
            if (!valor(v) || (v != "yes" && v != "no"))
                return false;
            o.respuesta = v == "yes" ? mb::Yes : mb::No;
        } else if (a == "--set" || a == "--type") {
            const size_t eq = valor(v) ? v.find('=') : std::string::npos;
            if (eq == std::string::npos)
                return false;
            auto ref = LeeReferencia(v.substr(0, eq));
            if (!ref || (a == "--type" && !ref->propiedad.empty()))
                return false;
            destino->push_back({a == "--set" ? Paso::Pon : Paso::Teclea, *ref, v.substr(eq + 1)});
        } else if (a == "--click") {
            const size_t eq = valor(v) ? v.find('=') : std::string::npos;
            if (eq == std::string::npos)
                return false;
            auto ref = LeeReferencia(v.substr(0, eq));
            Paso p{Paso::Pincha, {}, {}};
            if (!ref || !ref->propiedad.empty() || !LeePunto(v.substr(eq + 1), p.x, p.y))
                return false;
            p.control = *ref;
            destino->push_back(p);
        } else if (a == "--press" || a == "--leave" || a == "--get") {
            auto ref = valor(v) ? LeeReferencia(v) : std::nullopt;
            if (!ref || (a != "--get" && !ref->propiedad.empty()))
                return false;
            if (a != "--get")
                destino->push_back({a == "--press" ? Paso::Pulsa : Paso::Deja, *ref, {}});
            else
                o.lecturas.push_back(*ref);
        } else if (a == "--dialog") {
            if (destino != &o.pasos || o.pasos.empty() || (o.pasos.back().tipo != Paso::Pulsa && o.pasos.back().tipo != Paso::Pincha))
                return false;
            destino = &o.pasos.back().dialogo;
        } else if (a == "--end-dialog") {
            if (destino == &o.pasos)
                return false;
            destino = &o.pasos;
        } else if (a.rfind("--", 0) == 0) {
            return false;
        } else {
            sueltos.push_back(a);
        }
    }
    if (sueltos.size() != 2)
        return false;
    o.obra = sueltos[0];
    o.form = sueltos[1];
    return true;
}

// The control named, or a sentence that says why there is none.
Control* Busca(Form& form, const Referencia& r, std::string& problema)
{
    if (Control* c = form.Find(r.nombre, r.indice))
        return c;
    const std::vector<Control*> miembros = form.Members(r.nombre);
    if (miembros.empty()) {
        problema = form.Name() + " has no control " + r.nombre;
    } else if (r.indice < 0) {
        problema = r.nombre + " is a control array of " + form.Name() + ": give an index, e.g. " + miembros[0]->Label();
    } else {
        std::string lista;
        for (const Control* m : miembros)
            lista += (lista.empty() ? "" : ", ") + m->Label();
        problema = form.Name() + " has no control " + r.texto.substr(0, r.texto.find('.')) + "; its members are " +
                   lista;
    }
    return nullptr;
}

// The property that a plain --set NAME=VALUE sets, by the control's kind.
std::string PropiedadPorDefecto(const Control& c)
{
    switch (c.kind()) {
    case Kind::TextBox: return "Text";
    case Kind::ComboBox:
    case Kind::ListBox: return "ListIndex";
    case Kind::OptionButton:
    case Kind::CheckBox: return "Value";
    case Kind::Label:
    case Kind::Frame:
    case Kind::CommandButton: return "Caption";
    default: return {};
    }
}


// ---- Plain text output: tab-separated columns, control characters escaped ----

std::string Escapa(const std::string& s)
{
    std::string out;
    for (char ch : s) {
        switch (ch) {
        case '\t': out += "\\t"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        default: out += ch;
        }
    }
    return out;
}

std::vector<std::string> Columnas(const Control& c)
{
    std::vector<std::string> out;
    switch (c.kind()) {
    case Kind::TextBox: out = {Escapa(c.Text())}; break;
    case Kind::ComboBox: out = {std::to_string(c.ListIndex()), Escapa(c.SelectedText())}; break;
    case Kind::ListBox:
        out = {std::to_string(c.ListIndex())};
        for (const auto& item : c.Items())
            out.push_back(Escapa(item));
        break;
    case Kind::OptionButton: out = {c.OptionValue() ? "True" : "False"}; break;
    case Kind::CheckBox: out = {std::to_string(c.CheckValue())}; break;
    case Kind::RichTextBox: out = {std::to_string(c.Text().size()) + " bytes of rich text"}; break;
    case Kind::Label:
    case Kind::Frame:
    case Kind::PictureBox:
    case Kind::CommandButton: out = {Escapa(c.Caption())}; break;
    default:
        for (const auto& p : PropiedadesGuardadas(c, false))
            out.push_back(p + "=" + Escapa(c.Get(p)));
    }
    if (!IsStored(c.kind())) {
        if (!c.Visible())
            out.push_back("hidden");
        if (!c.Enabled())
            out.push_back("disabled");
    }
    return out;
}

std::string Une(const std::vector<std::string>& cols)
{
    std::string out;
    for (const auto& c : cols)
        out += (out.empty() ? "" : "\t") + c;
    return out;
}

// ---- JSON output ----

std::string Json(const std::string& s) { return JsonText(s); }

std::string JsonBool(bool b) { return b ? "true" : "false"; }

// The fields of a control's value, as JSON members (no braces).
std::string JsonValor(const Control& c)
{
    switch (c.kind()) {
    case Kind::TextBox:
    case Kind::RichTextBox: return "\"text\": " + Json(c.Text());
    case Kind::ComboBox: return "\"listIndex\": " + std::to_string(c.ListIndex()) + ", \"text\": " + Json(c.SelectedText());
    case Kind::ListBox: {
        std::string items;
        for (const auto& item : c.Items())
            items += (items.empty() ? "" : ", ") + Json(item);
        return "\"listIndex\": " + std::to_string(c.ListIndex()) + ", \"items\": [" + items + "]";
    }
    case Kind::OptionButton: return "\"value\": " + JsonBool(c.OptionValue());
    case Kind::CheckBox: return "\"value\": " + std::to_string(c.CheckValue());
    case Kind::Label:
    case Kind::Frame:
    case Kind::PictureBox:
    case Kind::CommandButton: return "\"caption\": " + Json(c.Caption());
    default: {
        std::string props;
        for (const auto& p : PropiedadesGuardadas(c, false))
            props += (props.empty() ? "" : ", ") + Json(p) + ": " + Json(c.Get(p));
        return "\"properties\": {" + props + "}";
    }
    }
}

std::string JsonControl(const Control& c)
{
    std::string out = "{\"name\": " + Json(c.Name()) + ", \"index\": " + std::to_string(c.Index()) +
                      ", \"kind\": " + Json(std::string(KindName(c.kind()))) +
                      ", \"stored\": " + JsonBool(IsStored(c.kind()) && !c.Transitorio()) + ", " + JsonValor(c);
    if (!IsStored(c.kind()))
        out += ", \"visible\": " + JsonBool(c.Visible()) + ", \"enabled\": " + JsonBool(c.Enabled());
    return out + "}";
}

// ---- The commands ----

int CmdForm(Aplicacion& app, const std::vector<std::string>& args)
{
    Opciones o;
    if (!LeeOpciones(args, o))
        return Usage("form");

    // A program state of its own, so that questions take the answer given; it keeps the
    // settings and services of the command's state.
    FormUi ui;
    ui.respuesta = o.respuesta;
    Aplicacion local(ui, std::move(app.platform.settings), app.decl.DirPrograma);
    if (!local.platform.recycleBin)
        local.platform.recycleBin = std::move(app.platform.recycleBin);
    if (!local.platform.shell)
        local.platform.shell = std::move(app.platform.shell);
    if (!local.platform.system)
        local.platform.system = std::move(app.platform.system);
    Declaraciones& d = local.decl;

    if (!CreaForm(d, o.form))
        return Fail("unknown form \"" + o.form + "\"; \"vardena forms\" lists the forms");
    AbreObra(d, o.obra);
    std::unique_ptr<Form> form = CargaForm(d, o.form);

    if (o.titulo) {
        Control* list = form->Find("List1");
        int fila = -1;
        for (int i = 0; list && i < list->ListCount(); ++i)
            if (list->List(i) == *o.titulo)
                fila = i;
        if (fila < 0)
            return Fail("title \"" + *o.titulo + "\" is not in List1 of " + o.form +
                        ": the work holds no results file of that title");
        list->SetListIndex(fila);
    }

    // A press that opens a modal dialog runs the dialog's steps on it; without steps the
    // dialog closes at once with nothing chosen, as where no window system runs.
    std::string fallo;
    const std::vector<Paso>* pendiente = nullptr;  // the steps of the dialog the current press opens
    bool dialogoBien = true;
    std::function<bool(Form&, const std::vector<Paso>&)> ejecuta;
    const bool conDialogos = std::any_of(o.pasos.begin(), o.pasos.end(), [](const Paso& p) { return !p.dialogo.empty(); });
    if (conDialogos)
        d.MuestraDialogo = [&](Form& dlg) {
            const std::vector<Paso>* pasos = pendiente;
            pendiente = nullptr;
            if (pasos && !ejecuta(dlg, *pasos))
                dialogoBien = false;
        };
    ejecuta = [&](Form& f, const std::vector<Paso>& pasos) {
        for (const Paso& p : pasos) {
            std::string problema;
            Control* c = Busca(f, p.control, problema);
            if (!c) {
                fallo = problema;
                return false;
            }
            if (p.tipo == Paso::Teclea) {
                if (c->kind() != Kind::TextBox) {
                    fallo = c->Label() + " is a " + std::string(KindName(c->kind())) + ": only a text box is typed into";
                    return false;
                }
                // Each key as the user's: the field's key handler may swallow it (0) or change it;
                // what passes goes at the end of the text, which raises the field's Change.
                for (const char ch : p.valor) {
                    const int tecla = c->KeyPress(static_cast<unsigned char>(ch));
                    if (tecla != 0)
                        c->SetText(c->Text() + static_cast<char>(tecla));
                }
                continue;
            }
            if (p.tipo != Paso::Pon) {
                d.UltimoGuardadoRechazado.clear();
                d.UltimoErrorDatos.clear();
                pendiente = p.dialogo.empty() ? nullptr : &p.dialogo;
                dialogoBien = true;
                if (p.tipo == Paso::Pincha)
                    c->ClickAt(p.x, p.y);
                else if (p.tipo == Paso::Deja)
                    c->LostFocus();
                else
                    c->Click();
                pendiente = nullptr;
                if (!dialogoBien)
                    return false;
                // A save the form refused, or general data that could not be written, has told why
                // on standard error; nothing was written.
                if (!d.UltimoGuardadoRechazado.empty() || !d.UltimoErrorDatos.empty()) {
                    fallo = "-";
                    return false;
                }
                continue;
            }
            const std::string prop = p.control.propiedad.empty() ? PropiedadPorDefecto(*c) : p.control.propiedad;
            if (prop.empty()) {
                fallo = c->Label() + " is a " + std::string(KindName(c->kind())) + ": name one of its properties, e.g. " +
                        c->Label() + "." + StoredProperties(c->kind()).front() + "=VALUE";
                return false;
            }
            try {
                c->SetProperty(prop, p.valor);
            } catch (const PropertyError& e) {
                fallo = e.what();
                return false;
            }
        }
        return true;
    };
    const bool bien = ejecuta(*form, o.pasos);
    d.MuestraDialogo = nullptr;
    if (!bien)
        return fallo == "-" ? kFailure : Fail(fallo);

    std::ostringstream out;
    if (o.json) {
        out << "{\"form\": " << Json(form->Name()) << ", \"caption\": " << Json(form->Caption());
    }
    if (!o.lecturas.empty()) {
        if (o.json)
            out << ", \"values\": {";
        bool first = true;
        for (const Referencia& r : o.lecturas) {
            std::string problema;
            const Control* c = Busca(*form, r, problema);
            if (!c)
                return Fail(problema);
            std::string valor;
            try {
                valor = r.propiedad.empty() ? std::string() : c->Property(r.propiedad);
            } catch (const PropertyError& e) {
                return Fail(e.what());
            }
            if (o.json)
                out << (first ? "" : ", ") << Json(r.texto) << ": "
                    << (r.propiedad.empty() ? "{" + JsonValor(*c) + "}" : Json(valor));
            else
                out << (r.propiedad.empty() ? Une(Columnas(*c)) : Escapa(valor)) << "\n";
            first = false;
        }
        if (o.json)
            out << "}";
    }
    if (o.dump) {
        if (o.json)
            out << ", \"controls\": [";
        bool first = true;
        for (const Control* c : form->Controls()) {
            if (o.json)
                out << (first ? "\n  " : ",\n  ") << JsonControl(*c);
            else
                out << c->Label() << "\t" << KindName(c->kind()) << "\t" << Une(Columnas(*c)) << "\n";
            first = false;
        }
        if (o.json)
            out << "\n]";
    }
    if (o.json)
        out << "}\n";
    std::cout << out.str();
    return kOk;
}

int CmdForms(Aplicacion& app, const std::vector<std::string>& args)
{
    const bool json = args.size() == 1 && args[0] == "--json";
    if (!args.empty() && !json)
        return Usage("forms");
    const auto forms = ListaFormularios(app.decl);
    if (json)
        std::cout << "[";
    bool first = true;
    for (const auto& f : forms) {
        if (json)
            std::cout << (first ? "\n  " : ",\n  ") << "{\"name\": " << Json(f.name) << ", \"code\": " << Json(f.code)
                      << ", \"caption\": " << Json(f.caption) << ", \"storedControls\": " << f.storedControls << "}";
        else
            std::cout << f.name << "\t" << (f.code.empty() ? "-" : f.code) << "\t" << f.storedControls << "\t"
                      << f.caption << "\n";
        first = false;
    }
    if (json)
        std::cout << "\n]\n";
    return kOk;
}

Registrar form("form",
               "form WORK FORM [--title T] [--set NAME[(I)][.PROP]=VALUE]... [--press CONTROL]... "
               "[--click PICTURE=X,Y]... [--type FIELD=KEYS]... [--leave FIELD]... [--dialog STEP... --end-dialog] "
               "[--get NAME[(I)][.PROP]]... [--dump] [--json] [--answer yes|no]",
               "load element form FORM of WORK without a window, choose title T in List1, set fields, press "
               "buttons (CmdCalcular saves), click a picture at pixel X,Y, type keys into a field through its "
               "key filter, leave a field, and print values or every control; the steps between --dialog and "
               "--end-dialog drive the modal dialog that the press before opens",
               CmdForm);
Registrar forms("forms", "forms [--json]", "list the forms: name, catalogue code, stored controls, caption",
                CmdForms);

}  // namespace
}  // namespace vardena::cli
