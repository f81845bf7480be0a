#include "base/Form.h"

#include <algorithm>
#include <array>

#include "base/FileIo.h"
#include "base/Texto.h"

namespace vardena {
namespace {

struct KindInfo {
    Kind kind;
    std::string_view name;
    bool stored;
};

constexpr std::array<KindInfo, 15> kKinds = {{
    {Kind::TextBox, "TextBox", true},
    {Kind::ComboBox, "ComboBox", true},
    {Kind::OptionButton, "OptionButton", true},
    {Kind::CheckBox, "CheckBox", true},
    {Kind::UCNumDiam, "UCNumDiam", true},
    {Kind::UCNumDiamSep, "UCNumDiamSep", true},
    {Kind::UCZapatas, "UCZapatas", true},
    {Kind::UCMallazo, "UCMallazo", true},
    {Kind::UCPerfil, "UCPerfil", true},
    {Kind::Label, "Label", false},
    {Kind::ListBox, "ListBox", false},
    {Kind::RichTextBox, "RichTextBox", false},
    {Kind::Frame, "Frame", false},
    {Kind::PictureBox, "PictureBox", false},
    {Kind::CommandButton, "CommandButton", false},
}};

bool EqNoCase(std::string_view a, std::string_view b) { return SameNameNoCase(a, b); }

// The kinds that have a caret and a selection.
bool TieneCursor(Kind k) { return k == Kind::TextBox || k == Kind::RichTextBox; }

// Design-time defaults of the composite controls.
struct CompositeDefault {
    Kind kind;
    std::vector<std::pair<const char*, const char*>> values;
};

const std::vector<CompositeDefault>& CompositeDefaultTable()
{
    static const std::vector<CompositeDefault> table = {
        {Kind::UCNumDiam, {{"NumBarras", "2"}, {"Diametro", "12"}}},
        {Kind::UCNumDiamSep, {{"NumBarras", "2"}, {"Diametro", "12"}, {"Separacion", "15"}}},
        {Kind::UCZapatas,
         {{"NumBarras", "8"}, {"Diametro", "12"}, {"Separacion", "15"}, {"AnchoZap", "150"}, {"Por_metro", "False"}}},
        {Kind::UCMallazo, {{"Diametro", "5"}, {"Separacion", "15"}}},
        {Kind::UCPerfil,
         {{"Num", "1"}, {"Perfil", "IPE"}, {"Tamano", "100"}, {"Ancho", "8"}, {"Canto", "12"}, {"Area", "150"},
          {"Ix", "1500"}, {"Iy", "1500"}}},
    };
    return table;
}

void CompositeDefaults(Control& c)
{
    for (const auto& row : CompositeDefaultTable())
        if (row.kind == c.kind())
            for (const auto& [prop, value] : row.values)
                c.RawSet(prop, value);
}

bool ParseBool(std::string_view v, bool& out)
{
    if (EqNoCase(v, "True") || EqNoCase(v, "#TRUE#") || EqNoCase(v, "Verdadero")) {
        out = true;
        return true;
    }
    if (EqNoCase(v, "False") || EqNoCase(v, "#FALSE#") || EqNoCase(v, "Falso")) {
        out = false;
        return true;
    }
    std::string s(v);
    // A number converts as the run time's CBool does: non-zero is true.
    bool hasDigit = s.find_first_of("0123456789") != std::string::npos;
    if (!hasDigit)
        return false;
    out = ValComa(s) != 0;
    return true;
}

}  // namespace

bool IsStored(Kind k)
{
    for (const auto& i : kKinds)
        if (i.kind == k)
            return i.stored;
    return false;
}

bool IsComposite(Kind k)
{
    return k == Kind::UCNumDiam || k == Kind::UCNumDiamSep || k == Kind::UCZapatas || k == Kind::UCMallazo ||
           k == Kind::UCPerfil;
}

std::string_view KindName(Kind k)
{
    for (const auto& i : kKinds)
        if (i.kind == k)
            return i.name;
    return "?";
}

bool KindFromName(std::string_view name, Kind& out)
{
    for (const auto& i : kKinds)
        if (i.name == name) {
            out = i.kind;
            return true;
        }
    return false;
}

const std::vector<std::string>& StoredProperties(Kind k)
{
    static const std::vector<std::string> none;
    static const std::vector<std::string> text{"Text"};
    static const std::vector<std::string> listIndex{"ListIndex"};
    static const std::vector<std::string> value{"Value"};
    static const std::vector<std::string> numDiam{"NumBarras", "Diametro"};
    static const std::vector<std::string> numDiamSep{"NumBarras", "Diametro", "Separacion"};
    static const std::vector<std::string> mallazo{"Diametro", "Separacion"};
    static const std::vector<std::string> perfil{"Num", "Perfil", "Tamano", "Ancho"};
    switch (k) {
    case Kind::TextBox: return text;
    case Kind::ComboBox: return listIndex;
    case Kind::OptionButton:
    case Kind::CheckBox: return value;
    case Kind::UCNumDiam: return numDiam;
    case Kind::UCNumDiamSep:
    case Kind::UCZapatas: return numDiamSep;
    case Kind::UCMallazo: return mallazo;
    case Kind::UCPerfil: return perfil;
    default: return none;
    }
}

Control::Control(Form* form, Kind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index)
{
    CompositeDefaults(*this);
}

std::string Control::Label() const
{
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::SetText(std::string_view t)
{
    if (text_ == t)
        return;
    text_ = std::string(t);
    if (kind_ == Kind::TextBox && onChange)
        onChange(*this);
}

void Control::SetListIndex(int i)
{
    if (i < -1 || i >= ListCount())
        throw PropertyError(380, Label() + ": list index " + std::to_string(i) + " is outside its " +
                                     std::to_string(ListCount()) + " rows");
    listIndex_ = i;
    if (kind_ == Kind::ListBox) {
        selected_.assign(items_.size(), false);
        if (i >= 0)
            selected_[static_cast<size_t>(i)] = true;
    }
    if (onClick)
        onClick(*this);
}

const std::string& Control::List(int i) const
{
    static const std::string empty;
    if (i < 0 || i >= ListCount())
        return empty;
    return items_[static_cast<size_t>(i)];
}

void Control::SetList(int i, std::string_view text)
{
    if (i < 0)
        return;
    if (i >= ListCount()) {
        items_.resize(static_cast<size_t>(i) + 1);
        selected_.resize(items_.size(), false);
    }
    items_[static_cast<size_t>(i)] = std::string(text);
}

void Control::AddItem(std::string_view text)
{
    items_.emplace_back(text);
    selected_.push_back(false);
}

void Control::Clear()
{
    items_.clear();
    selected_.clear();
    listIndex_ = -1;
}

void Control::SetItems(std::vector<std::string> items)
{
    items_ = std::move(items);
    selected_.assign(items_.size(), false);
    if (listIndex_ >= ListCount())
        listIndex_ = -1;
}

bool Control::Selected(int i) const
{
    return i >= 0 && i < static_cast<int>(selected_.size()) && selected_[static_cast<size_t>(i)];
}

void Control::SetSelected(int i, bool on)
{
    if (i < 0 || i >= ListCount())
        throw PropertyError(380, Label() + ": row " + std::to_string(i) + " does not exist");
    selected_[static_cast<size_t>(i)] = on;
    if (on)
        listIndex_ = i;
}

std::string Control::SelectedText() const { return List(listIndex_); }

void Control::SetOptionValue(bool v)
{
    bool was = optionValue_;
    optionValue_ = v;
    if (v) {
        for (Control* other : form_->Controls())
            if (other != this && other->kind_ == Kind::OptionButton && other->Group() == Group())
                other->optionValue_ = false;
        if (!was && onClick)
            onClick(*this);
    }
}

void Control::SetSelStart(int start)
{
    selStart_ = std::clamp(start, 0, CharCount(text_));
    selLength_ = 0;
}

void Control::SetSelLength(int length) { selLength_ = std::clamp(length, 0, CharCount(text_) - selStart_); }

std::string Control::SelText() const
{
    const size_t from = CharOffset(text_, selStart_);
    return text_.substr(from, CharOffset(text_, selStart_ + selLength_) - from);
}

void Control::SetCheckValue(int v)
{
    if (v < 0 || v > 2)
        throw PropertyError(380, Label() + ": a check box holds 0, 1 or 2, not " + std::to_string(v));
    bool changed = v != checkValue_;
    checkValue_ = v;
    if (changed && onClick)
        onClick(*this);
}

std::string Control::Get(std::string_view prop) const
{
    if (behavior_)
        return behavior_->Get(*this, prop);
    return RawGet(prop);
}

void Control::Set(std::string_view prop, std::string_view value)
{
    if (behavior_)
        behavior_->Set(*this, prop, value);
    else
        RawSet(prop, value);
}

std::string Control::RawGet(std::string_view prop) const
{
    auto it = props_.find(prop);
    return it == props_.end() ? std::string() : it->second;
}

void Control::RawSet(std::string_view prop, std::string_view value) { props_[std::string(prop)] = std::string(value); }

std::string Control::Property(std::string_view prop) const
{
    if (EqNoCase(prop, "Text"))
        return kind_ == Kind::TextBox || kind_ == Kind::RichTextBox
                   ? text_
                   : (kind_ == Kind::ComboBox || kind_ == Kind::ListBox ? SelectedText() : caption_);
    if (EqNoCase(prop, "ListIndex"))
        return std::to_string(listIndex_);
    if (EqNoCase(prop, "ListCount"))
        return std::to_string(ListCount());
    if (EqNoCase(prop, "Value")) {
        if (kind_ == Kind::OptionButton)
            return optionValue_ ? "True" : "False";
        return std::to_string(checkValue_);
    }
    if (EqNoCase(prop, "Caption"))
        return caption_;
    if (TieneCursor(kind_) && EqNoCase(prop, "SelStart"))
        return std::to_string(selStart_);
    if (TieneCursor(kind_) && EqNoCase(prop, "SelLength"))
        return std::to_string(selLength_);
    if (TieneCursor(kind_) && EqNoCase(prop, "SelText"))
        return SelText();
    if (EqNoCase(prop, "ToolTipText"))
        return toolTip_;
    if (EqNoCase(prop, "Visible"))
        return visible_ ? "True" : "False";
    if (EqNoCase(prop, "Enabled"))
        return enabled_ ? "True" : "False";
    if (EqNoCase(prop, "Left"))
        return std::to_string(left_);
    if (IsComposite(kind_))
        return Get(prop);
    throw PropertyError(438, Label() + " has no property " + std::string(prop));
}

void Control::SetProperty(std::string_view prop, std::string_view value)
{
    std::string v(value);
    bool b = false;
    if (EqNoCase(prop, "Text")) {
        // A text box and a rich text box hold a text; the other kinds show it as their caption.
        if (kind_ == Kind::TextBox || kind_ == Kind::RichTextBox)
            SetText(value);
        else
            caption_ = v;
    } else if (EqNoCase(prop, "ListIndex")) {
        SetListIndex(static_cast<int>(ValComa(v)));
    } else if (EqNoCase(prop, "Value")) {
        if (kind_ == Kind::OptionButton) {
            if (!ParseBool(value, b))
                throw PropertyError(13, Label() + ": \"" + v + "\" is not True or False");
            SetOptionValue(b);
        } else if (kind_ == Kind::CheckBox) {
            SetCheckValue(static_cast<int>(ValComa(v)));
        } else {
            throw PropertyError(438, Label() + " has no property Value");
        }
    } else if (EqNoCase(prop, "Caption")) {
        caption_ = v;
    } else if (TieneCursor(kind_) && EqNoCase(prop, "SelStart")) {
        SetSelStart(static_cast<int>(ValComa(v)));
    } else if (TieneCursor(kind_) && EqNoCase(prop, "SelLength")) {
        SetSelLength(static_cast<int>(ValComa(v)));
    } else if (EqNoCase(prop, "ToolTipText")) {
        toolTip_ = v;
    } else if (EqNoCase(prop, "Visible")) {
        if (!ParseBool(value, b))
            throw PropertyError(13, Label() + ": \"" + v + "\" is not True or False");
        visible_ = b;
    } else if (EqNoCase(prop, "Enabled")) {
        if (!ParseBool(value, b))
            throw PropertyError(13, Label() + ": \"" + v + "\" is not True or False");
        enabled_ = b;
    } else if (EqNoCase(prop, "Left")) {
        left_ = static_cast<int>(ValComa(v));
    } else if (IsComposite(kind_)) {
        Set(prop, value);
    } else {
        throw PropertyError(438, Label() + " has no property " + std::string(prop));
    }
}

void Control::Click()
{
    switch (kind_) {
    case Kind::OptionButton:
        SetOptionValue(true);
        return;
    case Kind::CheckBox:
        SetCheckValue(checkValue_ == 1 ? 0 : 1);
        return;
    default:
        if (onClick)
            onClick(*this);
    }
}

void Control::DblClick()
{
    if (onDblClick)
        onDblClick(*this);
}

int Control::KeyPress(int key)
{
    if (onKeyPress)
        onKeyPress(*this, key);
    return key;
}

void Control::KeyDown(int key)
{
    if (onKeyDown)
        onKeyDown(*this, key);
}

void Control::RaiseChange()
{
    if (onChange)
        onChange(*this);
}

void Control::ClickAt(int x, int y)
{
    if (onMouseDown)
        onMouseDown(*this, x, y);
    Click();
}

Form::Form(Declaraciones& decl, std::string name, std::string caption)
    : decl_(decl), name_(std::move(name)), caption_(std::move(caption))
{
}

Control& Form::Add(Kind kind, std::string name, int index)
{
    controls_.push_back(std::make_unique<Control>(this, kind, std::move(name), index));
    return *controls_.back();
}

Control& Form::AddCopyOfPrevious(std::string_view name, int index)
{
    const Control& previous = At(name, index - 1);
    Control& c = Add(previous.kind(), previous.Name(), index);
    c.designText = previous.Text();
    c.SetText(previous.Text());
    c.SetCaption(previous.Caption());
    c.onKeyPress = previous.onKeyPress;
    return c;
}

Control* Form::Find(std::string_view name, int index) const
{
    for (const auto& c : controls_)
        if (c->Index() == index && EqNoCase(c->Name(), name))
            return c.get();
    return nullptr;
}

Control& Form::At(std::string_view name, int index) const
{
    if (Control* c = Find(name, index))
        return *c;
    std::string label(name);
    if (index >= 0)
        label += "(" + std::to_string(index) + ")";
    throw PropertyError(730, name_ + " has no control " + label);
}

std::vector<Control*> Form::Members(std::string_view name) const
{
    std::vector<Control*> out;
    for (const auto& c : controls_)
        if (EqNoCase(c->Name(), name))
            out.push_back(c.get());
    return out;
}

std::optional<int> Form::OpcionElegida(std::string_view name, int cuantas) const
{
    std::optional<int> elegida;
    for (const Control* c : Members(name))
        if (c->OptionValue() && c->Index() >= 0 && c->Index() < cuantas)
            elegida = c->Index();
    return elegida;
}

std::vector<Control*> Form::Controls() const
{
    std::vector<Control*> out;
    out.reserve(controls_.size());
    for (const auto& c : controls_)
        out.push_back(c.get());
    return out;
}

std::vector<Control*> Form::StoredControls() const
{
    std::vector<Control*> out;
    for (const auto& c : controls_)
        if (IsStored(c->kind()) && !c->Transitorio())
            out.push_back(c.get());
    return out;
}

void Form::ResetToDesign()
{
    for (const auto& c : controls_) {
        if (c->kind() == Kind::TextBox) {
            auto handler = std::move(c->onChange);
            c->SetText(c->designText);
            c->onChange = std::move(handler);
        }
    }
}

}  // namespace vardena
