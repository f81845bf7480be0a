#include "works/Registros.h"

#include <cmath>
#include <optional>
#include <vector>

#include "works/Catalogo.h"
#include "base/Codepage.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Subrut.h"
#include "base/VbInput.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {


std::string LTrim(std::string s)
{
    size_t k = s.find_first_not_of(' ');
    return k == std::string::npos ? std::string() : s.substr(k);
}

bool PropertyBelongs(Kind k, std::string_view prop)
{
    if (k == Kind::UCPerfil) {
        for (const char* p : {"Num", "Perfil", "Ancho", "Canto", "Area", "Ix", "Iy", "Tamano"})
            if (prop == p)
                return true;
        return false;
    }
    for (const auto& p : StoredProperties(k))
        if (prop == p)
            return true;
    return false;
}

std::string ReadRecordText(const std::string& path)
{
    std::optional<std::string> text = DataFileText(ReadFileBytes(path));
    if (!text)
        throw FileError(path, "holds a NUL byte, so it is not text; it is not a record");
    return *text;
}

// A section selector clamps the typed distance of two sections against the size it holds when
// the distance is set, so its properties must be set in the positional order, size before
// width, whatever order the named file gives them in. The named reader gathers the lines of
// one selector here and sets them when the selector's lines end.
class PendingSection {
public:
    void Add(Control& c, std::string prop, std::string value, int line)
    {
        if (control_ != &c)
            Apply();
        control_ = &c;
        for (auto& v : values_)
            if (v.prop == prop) {
                // A property given twice: the later line counts, as it would when set in turn.
                v.value = std::move(value);
                v.line = line;
                return;
            }
        values_.push_back({std::move(prop), std::move(value), line});
    }

    // Sets what was gathered in the order Num, Perfil, Tamano, Canto, Ancho, Area, Ix, Iy,
    // that of the positional format for both kinds of section.
    void Apply()
    {
        Control* c = control_;
        std::vector<Value> values = std::move(values_);
        control_ = nullptr;
        values_.clear();
        if (!c)
            return;
        for (const char* p : {"Num", "Perfil", "Tamano", "Canto", "Ancho", "Area", "Ix", "Iy"})
            for (const Value& v : values)
                if (v.prop == p) {
                    try {
                        c->Set(v.prop, v.value);
                    } catch (const PropertyError& e) {
                        throw FieldError(e.number(), v.line, e.what());
                    }
                }
    }

private:
    struct Value {
        std::string prop, value;
        int line;
    };
    Control* control_ = nullptr;
    std::vector<Value> values_;
};


}  // namespace

bool EsPerfilDeUsuario(std::string_view perfil) { return SameNameNoCase(perfil, "xxx") || SameNameNoCase(perfil, "otro"); }

std::vector<std::string> PropiedadesGuardadas(const Control& c, bool named)
{
    if (c.kind() != Kind::UCPerfil)
        return StoredProperties(c.kind());
    if (EsPerfilDeUsuario(c.Get("Perfil"))) {
        if (named)
            return {"Num", "Perfil", "Ancho", "Canto", "Area", "Ix", "Iy"};
        return {"Num", "Perfil", "Canto", "Ancho", "Area", "Ix", "Iy"};
    }
    if (named)
        return {"Num", "Perfil", "Ancho", "Tamano"};
    return {"Num", "Perfil", "Tamano", "Ancho"};
}


int CmbHormAIndiceGuardado(int listIndex)
{
    if (listIndex == 0)
        return 0;
    if (listIndex == 1 || listIndex == 2)
        return listIndex - 4;
    return listIndex - 3;
}

int CmbHormDeIndiceGuardado(int stored)
{
    if (stored > 0)
        return stored + 3;
    if (stored < 0)
        return stored + 4;
    return 0;
}

std::string VersionLine()
{
    return std::string(kProductWord) + " " + std::to_string(kVersionMajor) + "\t" + Formato00Punto(kProgramVersion);
}

std::string PositionalText(const Form& form)
{
    std::string out;
    for (const Control* c : form.StoredControls()) {
        out += QuoteField(c->Name());
        switch (c->kind()) {
        case Kind::ComboBox: {
            int i = c->ListIndex();
            if (c->Name() == "CmbHorm")
                i = CmbHormAIndiceGuardado(i);
            out += "," + IntegerField(i);
            break;
        }
        case Kind::TextBox: out += "," + QuoteField(c->Text()); break;
        case Kind::OptionButton: out += "," + BoolField(c->OptionValue()); break;
        case Kind::CheckBox: out += "," + IntegerField(c->CheckValue()); break;
        default:
            for (const auto& p : PropiedadesGuardadas(*c, false))
                out += "," + QuoteField(c->Get(p));
        }
        out += "\n";
    }
    return out;
}

std::string NamedText(const Form& form)
{
    std::string out = VersionLine() + "\n";
    for (const Control* c : form.StoredControls()) {
        const std::string first = c->Label() + " [" + std::string(KindName(c->kind())) + "]";
        auto line = [&](bool isFirst, std::string_view prop, const std::string& value) {
            out += (isFirst ? first : std::string()) + "\t." + std::string(prop) + "\t" + value + "\n";
        };
        switch (c->kind()) {
        case Kind::TextBox: line(true, "Text", c->Text()); break;
        case Kind::ComboBox: line(true, "ListIndex", std::to_string(c->ListIndex())); break;
        case Kind::CheckBox: line(true, "Value", std::to_string(c->CheckValue())); break;
        case Kind::OptionButton: line(true, "Value", c->OptionValue() ? "True" : "False"); break;
        default: {
            bool isFirst = true;
            for (const auto& p : PropiedadesGuardadas(*c, true)) {
                line(isFirst, p, LTrim(c->Get(p)));
                isFirst = false;
            }
        }
        }
    }
    return out;
}

void FormGuardaFile(const Form& form, const std::string& path) { WriteFileAtomic(path, ToDiskText(PositionalText(form))); }

void FormGuardaFile2(const Form& form, const std::string& path) { WriteFileAtomic(path, ToDiskText(NamedText(form))); }

ReadOutcome FormLeeFile(Form& form, const std::string& path)
{
    Declaraciones& d = form.decl();
    return ConVentanaError(d, "Subrut_FormLeeFile", [&]() -> ReadOutcome {
        d.VersionArchivo = 3.01f;
        const std::string text = ReadRecordText(path);
        FieldReader r(text);
        for (Control* c : form.StoredControls()) {
            const std::string stored = r.Text();
            switch (c->kind()) {
            case Kind::ComboBox: {
                int i = r.Integer();
                if (stored == "CmbHorm")
                    i = CmbHormDeIndiceGuardado(i);
                c->SetListIndex(i);
                break;
            }
            case Kind::TextBox: c->SetText(r.Text()); break;
            case Kind::OptionButton: c->SetOptionValue(r.Boolean()); break;
            case Kind::CheckBox: c->SetCheckValue(r.Integer()); break;
            case Kind::UCPerfil: {
                // The name is compared before anything is set.
                std::string num = r.Text(), perfil = r.Text(), a = r.Text(), b = r.Text();
                if (stored != c->Name())
                    return FormLeeFile2(form, path);
                c->Set("Num", num);
                c->Set("Perfil", perfil);
                if (EsPerfilDeUsuario(perfil)) {
                    std::string area = r.Text(), ix = r.Text(), iy = r.Text();
                    c->Set("Canto", a);
                    c->Set("Ancho", b);
                    c->Set("Area", area);
                    c->Set("Ix", ix);
                    c->Set("Iy", iy);
                } else {
                    c->Set("Tamano", a);
                    c->Set("Ancho", b);
                }
                continue;
            }
            default:
                for (const auto& p : StoredProperties(c->kind()))
                    c->Set(p, r.Text());
            }
            // A name that differs is how a named file shows itself: hand over to its reader.
            if (stored != c->Name())
                return FormLeeFile2(form, path);
        }
        return ReadOutcome::Positional;
    }, path + ": ");
}

ReadOutcome FormLeeFile2(Form& form, const std::string& path)
{
    Declaraciones& d = form.decl();
    return ConVentanaError(d, "Subrut_FormLeeFile2", [&]() -> ReadOutcome {
        const std::vector<std::string> lines = SplitLines(ReadRecordText(path));
        const std::string first = lines.empty() ? std::string() : lines[0];
        std::string versionText = Palabra(2, first, "\t");
        d.VersionArchivo = static_cast<float>(ValComa(versionText));
        if (Palabra(1, first, " ") != kProductWord || d.VersionArchivo > static_cast<float>(kProgramVersion)) {
            d.ui.MsgBox(d.Msg(1355), mb::Exclamation, d.Msg(34));
            return ReadOutcome::Refused;
        }
        std::string name, kindName;
        int index = -1;
        PendingSection section;
        for (size_t ln = 1; ln < lines.size(); ++ln) {
            const std::string& line = lines[ln];
            std::string prop, value;
            if (line.find('[') != std::string::npos) {
                // A first line ends the lines of the control before it.
                section.Apply();
                index = -1;
                const std::string namePart = Palabra(1, line, "\t");
                prop = Palabra(2, line, "\t");
                value = Palabra(3, line, "\t");
                const std::string k = Palabra(2, namePart, " ");
                kindName = k.size() >= 2 ? k.substr(1, k.size() - 2) : std::string();
                name = Palabra(1, namePart, " ");
                size_t open = name.find('(');
                if (open != std::string::npos) {
                    std::string idx = name.substr(open + 1, name.size() - open - 2);
                    index = static_cast<int>(ValComa(idx));
                    name = name.substr(0, open);
                }
            } else {
                prop = Palabra(1, line, "\t");
                value = Palabra(2, line, "\t");
            }
            Kind kind;
            if (!KindFromName(kindName, kind) || !IsStored(kind))
                continue;
            if (prop.empty() || prop[0] != '.' || !PropertyBelongs(kind, std::string_view(prop).substr(1)))
                continue;
            const std::string p = prop.substr(1);
            Control* c = form.Find(name, index);
            if (!c) {
                std::string label = index >= 0 ? name + "(" + std::to_string(index) + ")" : name;
                throw FieldError(730, static_cast<int>(ln) + 1,
                                 "the record names a control that form " + form.Name() + " lacks: " + label);
            }
            if (kind == Kind::UCPerfil) {
                section.Add(*c, p, LTrim(value), static_cast<int>(ln) + 1);
                continue;
            }
            try {
                switch (kind) {
                case Kind::TextBox: c->SetProperty("Text", value); break;
                case Kind::ComboBox: c->SetListIndex(static_cast<int>(std::nearbyint(ValComa(value)))); break;
                case Kind::CheckBox: c->SetCheckValue(static_cast<int>(ValComa(value))); break;
                case Kind::OptionButton: c->SetProperty("Value", value); break;
                default: c->Set(p, LTrim(value));
                }
            } catch (const PropertyError& e) {
                throw FieldError(e.number(), static_cast<int>(ln) + 1, e.what());
            }
        }
        section.Apply();
        return ReadOutcome::Named;
    }, path + ": ");
}

std::string RutaRegistro(Form& form, std::string_view title)
{
    return ConBarra(form.decl().CarpetaObra) + std::string(title) + ".~" + CodigoDeForm(form.decl(), form.Name());
}

std::string RutaResultados(Form& form, std::string_view title)
{
    return ConBarra(form.decl().CarpetaObra) + std::string(title) + ".l" + CodigoDeForm(form.decl(), form.Name());
}


std::string GuardaForm(Form& form)
{
    Declaraciones& d = form.decl();
    d.UltimoGuardadoRechazado.clear();
    const std::string title = form.At("txtTitulo").Text();
    auto refuse = [&](const std::string& sentence) {
        d.UltimoGuardadoRechazado = sentence;
        d.ui.MsgBox(sentence, mb::Exclamation, d.Msg(34));
        return std::string();
    };
    // The title names the record's file: it must stay a plain name inside the work.
    if (const std::string why = TituloInvalido(d, title); !why.empty())
        return refuse(Mensaje(d, 1406, {title, why}));
    std::optional<WorkLock> lock;
    try {
        lock = LockForSave(d.CarpetaObra);
    } catch (const WorkBusy&) {
        return refuse(Mensaje(d, 1413, {d.CarpetaObra}));
    }
    const std::string path = RutaRegistro(form, title);
    // An existing record in another case is replaced under its own name.
    const std::string target = ExistingNoCase(path).value_or(path);
    FormGuardaFile2(form, target);
    if (d.DoEvents)
        d.DoEvents();
    if (Setting(d, "Preferencias", "CapturaPantallas") == "Si" && d.Captura)
        d.Captura(form, target);
    return target;
}

Lectura LeeForm(Form& form, std::string& title)
{
    Lectura lectura;
    auto path = ExistingNoCase(RutaRegistro(form, title));
    if (!path) {
        title.clear();
        return lectura;
    }
    lectura.path = *path;
    lectura.outcome = FormLeeFile(form, *path);
    CargaResultados(form, title);
    return lectura;
}

void CargaResultados(Form& form, std::string_view title)
{
    Control* rtb = form.Find("RichTextBox1");
    if (!rtb)
        return;
    auto path = ExistingNoCase(RutaResultados(form, title));
    // The rich text keeps the file's own bytes; the RTF reader decodes them.
    rtb->SetText(path ? ReadFileBytes(*path) : std::string());
}

void BorraRegistro(Form& form, std::string_view title)
{
    if (title.empty())
        return;
    Declaraciones& d = form.decl();
    auto results = ExistingNoCase(RutaResultados(form, title));
    if (!results) {
        d.ui.MsgBox(d.Msg(172), mb::Critical, d.Msg(165));
        Halt("the results file of \"" + std::string(title) + "\" is missing: " + RutaResultados(form, title));
    }
    const int answer = d.ui.MsgBox(d.Msg(173) + std::string(title) + "?", mb::Question | mb::YesNo, d.Msg(174));
    if (answer != mb::Yes)
        return;
    if (!d.platform.recycleBin || !d.platform.recycleBin->APapelera(*results))
        throw FileError(*results, "could not be moved to the recycle bin; nothing was deleted");
    if (auto record = ExistingNoCase(RutaRegistro(form, title)))
        if (!d.platform.recycleBin->APapelera(*record))
            throw FileError(*record, "could not be moved to the recycle bin");
    if (Control* list = form.Find("List1"))
        ListaArchivos("l" + CodigoDeForm(d, form.Name()), d.CarpetaObra, *list);
}

}  // namespace vardena
