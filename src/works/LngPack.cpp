#include "works/LngPack.h"

#include <filesystem>
#include <optional>
#include <string_view>

#include "works/Catalogo.h"
#include "base/Codepage.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Subrut.h"

namespace vardena {

namespace {

constexpr const char* kTab = "\t";

// The lines of a text file of a pack, turned into UTF-8. CR LF, a lone CR and a lone LF all
// end a line; a line end at the very end of the file opens no further line.
std::optional<std::vector<std::string>> LeeLineas(const std::string& path)
{
    std::optional<std::string> bytes = ReadFileIfExists(path);
    if (!bytes)
        return std::nullopt;
    const std::string text = Cp1252ToUtf8(*bytes);
    std::vector<std::string> lines;
    std::string line;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
            lines.push_back(std::move(line));
            line.clear();
        } else {
            line += c;
        }
    }
    if (!line.empty())
        lines.push_back(std::move(line));
    return lines;
}

// The run time's Val of a whole number: the leading number of the text, 0 when there is none.
int ValEntero(std::string_view text) { return static_cast<int>(ValComaCopy(text)); }

// The control that a header line of LngForms.txt names, and the item count in force.
struct ControlActual {
    std::string name;
    int index = -1;
    std::string kind;
    int items = 0;
};

// "Name(12) [Label] #4": name and index, kind without its brackets, item count.
ControlActual LeeCabecera(const std::string& header)
{
    ControlActual c;
    std::string word = Palabra(1, header, " ");
    const size_t paren = word.find('(');
    if (paren == std::string::npos) {
        c.name = word;
    } else {
        c.name = word.substr(0, paren);
        c.index = ValEntero(std::string_view(word).substr(paren + 1, word.size() - paren - 2));
    }
    const std::string kind = Palabra(2, header, " ");
    c.kind = kind.size() >= 2 ? kind.substr(1, kind.size() - 2) : std::string();
    const std::string count = Palabra(3, header, " ");
    c.items = count.empty() ? 0 : ValEntero(std::string_view(count).substr(1));
    return c;
}

enum class Grupo { Rotulo, Menu, Carpetas, Texto, Lista, Columnas, Pestanas, Ninguno };

Grupo GrupoDe(std::string_view kind)
{
    static const std::pair<std::string_view, Grupo> kinds[] = {
        {"Label", Grupo::Rotulo},       {"CommandButton", Grupo::Rotulo}, {"Frame", Grupo::Rotulo},
        {"CheckBox", Grupo::Rotulo},    {"OptionButton", Grupo::Rotulo},  {"UCButton", Grupo::Rotulo},
        {"UCframe", Grupo::Rotulo},     {"Menu", Grupo::Menu},            {"DirListBox", Grupo::Carpetas},
        {"TextBox", Grupo::Texto},      {"RichTextBox", Grupo::Texto},    {"ComboBox", Grupo::Lista},
        {"ListBox", Grupo::Lista},      {"ListView", Grupo::Columnas},    {"TabStrip", Grupo::Pestanas},
    };
    for (const auto& [name, grupo] : kinds)
        if (name == kind)
            return grupo;
    return Grupo::Ninguno;
}

// Applies one key of the pack to the current control, by the control's kind in the file.
// Keys and kinds that mean nothing for each other are skipped before the control is looked up.
void AplicaClave(Form& form, const ControlActual& c, const std::string& key, const std::string& text)
{
    auto control = [&]() -> Control& { return form.At(c.name, c.index); };
    const bool tooltip = key == ".Tooltip";
    // The item number of ".v3", ".t3" and of any other item key: Val after the second character.
    const int item = key.size() > 2 ? ValEntero(std::string_view(key).substr(2)) : 0;
    auto numeroValido = [&](Control& ctl, int first, int last) {
        if (item < first || item > last)
            throw PropertyError(381, ctl.Label() + ": item " + std::to_string(item) + " does not exist");
    };
    switch (GrupoDe(c.kind)) {
    case Grupo::Rotulo:
        if (key == ".Caption")
            control().SetCaption(text);
        else if (tooltip)
            control().SetToolTipText(text);
        return;
    case Grupo::Menu:
        control().SetCaption(text);
        return;
    case Grupo::Carpetas:
        control().SetToolTipText(text);
        return;
    case Grupo::Texto:
        if (key == ".Text") {
            Control& ctl = control();
            ctl.designText = text;
            ctl.SetText(text);
        } else if (tooltip) {
            control().SetToolTipText(text);
        }
        return;
    case Grupo::Lista:
        if (tooltip) {
            control().SetToolTipText(text);
        } else if (c.items >= 1) {
            Control& ctl = control();
            numeroValido(ctl, 0, ctl.ListCount() - 1);
            ctl.SetList(item, text);
        }
        return;
    case Grupo::Columnas:
        if (tooltip) {
            control().SetToolTipText(text);
        } else if (c.items >= 1) {
            Control& ctl = control();
            numeroValido(ctl, 1, 1 << 15);
            ctl.RawSet("ColumnHeaders(" + std::to_string(item) + ").Text", text);
        }
        return;
    case Grupo::Pestanas: {
        if (tooltip) {
            control().SetToolTipText(text);
            return;
        }
        const std::string_view prefix = std::string_view(key).substr(0, 2);
        if (c.items < 1 || (prefix != ".v" && prefix != ".t"))
            return;
        Control& ctl = control();
        numeroValido(ctl, 1, 1 << 15);
        ctl.RawSet("Tabs(" + std::to_string(item) + ")." + (prefix == ".v" ? "Caption" : "ToolTipText"), text);
        return;
    }
    case Grupo::Ninguno:
        return;
    }
}

// Index of the header line "<form> [Form]" of the form's block, or nullopt.
std::optional<size_t> BuscaBloque(const std::vector<std::string>& lines, const std::string& formName)
{
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (line.size() <= 6)
            continue;
        const size_t p = line.find("[Form]");
        // The name stands before the one blank that precedes "[Form]".
        if (p != std::string::npos && p >= 1 && line.compare(0, p - 1, formName) == 0)
            return i;
    }
    return std::nullopt;
}

}  // namespace

std::string CarpetaIdioma(Declaraciones& d)
{
    d.Lenguaje = Setting(d, "Preferencias", "Lenguaje");
    return ConBarra(d.DirPrograma) + "lng" + kSep + d.Lenguaje + kSep;
}

void TraduceForm(Form& form) { TraduceFormDesde(form, CarpetaIdioma(form.decl()) + kLngFormsFile); }

void TraduceFormDesde(Form& form, const std::string& lngFormsPath)
{
    const std::optional<std::vector<std::string>> read = LeeLineas(lngFormsPath);
    if (!read)
        return;
    const std::vector<std::string>& lines = *read;
    const std::optional<size_t> header = BuscaBloque(lines, form.Name());
    if (!header)
        return;
    size_t i = *header + 1;
    if (i >= lines.size())
        return;
    // The first line of a block is the form's own caption, whatever its key.
    if (Palabra(1, lines[i], kTab) == ".Caption")
        form.SetCaption(Palabra(2, lines[i], kTab));
    ControlActual current;
    for (++i; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        std::string key = Palabra(1, line, kTab);
        std::string text = Palabra(2, line, kTab);
        if (key.empty() && text.empty())
            break;
        if (line.find('[') != std::string::npos) {
            current = LeeCabecera(key);
            key = std::move(text);
            text = Palabra(3, line, kTab);
        }
        try {
            AplicaClave(form, current, key, text);
        } catch (const PropertyError& e) {
            throw PropertyError(e.number(), lngFormsPath + " line " + std::to_string(i + 1) + ": " + e.what());
        }
    }
}

void CargaMensajesDesde(Declaraciones& d, const std::string& path)
{
    std::optional<std::vector<std::string>> lines = LeeLineas(path);
    if (!lines)
        return;
    // An empty file still reads one (empty) line.
    if (lines->empty())
        lines->emplace_back();
    if (lines->size() > static_cast<size_t>(kMaxMessages))
        throw FileError(path, "holds " + std::to_string(lines->size()) + " messages; the message table takes " +
                                  std::to_string(kMaxMessages) + " at most");
    if (d.Mensajes.size() < static_cast<size_t>(kMaxMessages) + 1)
        d.Mensajes.resize(static_cast<size_t>(kMaxMessages) + 1);
    for (size_t n = 0; n < lines->size(); ++n)
        d.Mensajes[n + 1] = std::move((*lines)[n]);
}

void CargaMensajes(Declaraciones& d) { CargaMensajesDesde(d, CarpetaIdioma(d) + kMensajesFile); }

void CargaIdioma(Declaraciones& d) { CargaMensajes(d); }

void VaciaNuevos(Declaraciones& d) { WriteFileAtomic(ConBarra(d.DirPrograma) + "Nuevos.lng", ""); }

namespace {

bool PaqueteCompleto(const std::string& dirPrograma, const std::string& language)
{
    std::error_code ec;
    const std::string folder = ConBarra(dirPrograma) + "lng" + kSep + language + kSep;
    return std::filesystem::is_regular_file(folder + kLngFormsFile, ec) &&
           std::filesystem::is_regular_file(folder + kMensajesFile, ec);
}

std::vector<std::string> CarpetasDeIdiomas(const std::string& dirPrograma)
{
    return SubFolders(ConBarra(dirPrograma) + "lng");
}

}  // namespace

void QuitaIdiomasIncompletos(Control& list, const std::string& dirPrograma)
{
    std::vector<std::string> rows = list.Items();
    size_t i = 0;
    while (i < rows.size()) {
        if (PaqueteCompleto(dirPrograma, rows[i]))
            ++i;
        else
            rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(i));
    }
    list.SetItems(std::move(rows));
}

std::vector<std::string> IdiomasDisponibles(const Declaraciones& d)
{
    std::vector<std::string> names = CarpetasDeIdiomas(d.DirPrograma);
    std::erase_if(names, [&](const std::string& n) { return !PaqueteCompleto(d.DirPrograma, n); });
    return names;
}

FrmIdioma::FrmIdioma(Declaraciones& d) : Form(d, "frmIdioma", "Elegir idioma ")
{
    Add(Kind::Label, "Label1").SetCaption("Idiomas:");
    Add(Kind::ListBox, "List1");
    Control& acepta = Add(Kind::CommandButton, "Cmdacepta");
    acepta.SetCaption("Aceptar");
    acepta.onClick = [this](Control&) { Cmdacepta_Click(); };
    Control& cancela = Add(Kind::CommandButton, "Cmdcancela");
    cancela.SetCaption("Cancelar");
    cancela.onClick = [this](Control&) { Cmdcancela_Click(); };
}

void FrmIdioma::Form_Load()
{
    TraduceForm(*this);
    Control& list = At("List1");
    list.Clear();
    for (const std::string& name : CarpetasDeIdiomas(decl().DirPrograma))
        list.AddItem(name);
    QuitaIdiomasIncompletos(list, decl().DirPrograma);
    SeleccionaEnLista(list, Setting(decl(), "Preferencias", "Lenguaje"));
}

void FrmIdioma::Cmdacepta_Click()
{
    Control& list = At("List1");
    if (list.ListIndex() < 0)
        return;
    SaveSetting(decl(), "Preferencias", "Lenguaje", list.SelectedText());
    CargaMensajes(decl());
    descargado_ = true;
    Form_Unload();
}

void FrmIdioma::Cmdcancela_Click()
{
    descargado_ = true;
    Form_Unload();
}

}  // namespace vardena
