#pragma once
// A form is a model: an ordered set of named controls with values and event handlers. The core
// runs every form without a screen; the desktop program binds widgets to these controls.
// Control names are those of version 3 and are part of the record formats.

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vardena {

struct Declaraciones;
class Form;

enum class Kind {
    // Stored in records.
    TextBox,
    ComboBox,
    OptionButton,
    CheckBox,
    UCNumDiam,
    UCNumDiamSep,
    UCZapatas,
    UCMallazo,
    UCPerfil,
    // Shown only.
    Label,
    ListBox,
    RichTextBox,
    Frame,
    PictureBox,
    CommandButton,
};

bool IsStored(Kind k);
bool IsComposite(Kind k);
// The spelling used in the named record format: "TextBox", "UCZapatas"...
std::string_view KindName(Kind k);
// Kind by its record spelling; false when unknown.
bool KindFromName(std::string_view name, Kind& out);
// The properties a stored kind writes, in positional order.
const std::vector<std::string>& StoredProperties(Kind k);

// A run-time error of a handler, under the run time's number (5 an invalid procedure call,
// 6 an overflow, 9 a subscript out of range, 11 a division by zero...) with a sentence that
// says what caused it. The error window of the handler shows both.
class ErrorEjecucion : public std::runtime_error {
public:
    ErrorEjecucion(int number, const std::string& what) : std::runtime_error(what), number_(number) {}
    int number() const { return number_; }

private:
    int number_;
};

// A property value that the control does not accept (run-time error 380), or a property it
// does not have (438).
class PropertyError : public ErrorEjecucion {
public:
    using ErrorEjecucion::ErrorEjecucion;
};

class Control;

// Behaviour of a composite control (reinforcement entry, section selector): its properties
// and what a change of one does to the others.
class CompositeBehavior {
public:
    virtual ~CompositeBehavior() = default;
    virtual std::string Get(const Control& c, std::string_view prop) const = 0;
    virtual void Set(Control& c, std::string_view prop, std::string_view value) = 0;
};

class Control {
public:
    Control(Form* form, Kind kind, std::string name, int index);

    Form& form() const { return *form_; }
    Kind kind() const { return kind_; }
    const std::string& Name() const { return name_; }
    // -1 for a control that is no member of an array.
    int Index() const { return index_; }
    // "Name" or "Name(Index)".
    std::string Label() const;

    // Text box.
    const std::string& Text() const { return text_; }
    void SetText(std::string_view t);

    // Combo box and list box.
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int i);
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::vector<std::string>& Items() const { return items_; }
    const std::string& List(int i) const;
    void SetList(int i, std::string_view text);
    void AddItem(std::string_view text);
    void Clear();
    void SetItems(std::vector<std::string> items);
    bool Selected(int i) const;
    void SetSelected(int i, bool on);
    // The text of the selected row, "" when none.
    std::string SelectedText() const;

    // Option button: setting it true clears the other buttons of its group.
    bool OptionValue() const { return optionValue_; }
    void SetOptionValue(bool v);
    const std::string& Group() const { return group_.empty() ? name_ : group_; }
    void SetGroup(std::string g) { group_ = std::move(g); }

    // Text boxes and rich text boxes: the caret and the selection, in characters of Text.
    // SelStart is held to 0..length and SelLength to what follows the caret.
    int SelStart() const { return selStart_; }
    void SetSelStart(int start);
    int SelLength() const { return selLength_; }
    void SetSelLength(int length);
    // The selected characters.
    std::string SelText() const;

    // Check box: 0, 1 or 2.
    int CheckValue() const { return checkValue_; }
    void SetCheckValue(int v);

    // Labels, buttons and frames.
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view c) { caption_ = std::string(c); }
    const std::string& ToolTipText() const { return toolTip_; }
    void SetToolTipText(std::string_view t) { toolTip_ = std::string(t); }
    bool Visible() const { return visible_; }
    void SetVisible(bool v) { visible_ = v; }
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool v) { enabled_ = v; }
    // Position from the form's left edge, in twips, where a form moves a control at run time.
    int Left() const { return left_; }
    void SetLeft(int twips) { left_ = twips; }

    // Composite controls: properties by name. Without a behaviour they are plain texts.
    std::string Get(std::string_view prop) const;
    void Set(std::string_view prop, std::string_view value);
    void SetBehavior(std::shared_ptr<CompositeBehavior> b) { behavior_ = std::move(b); }
    CompositeBehavior* behavior() const { return behavior_.get(); }
    // The plain store under a behaviour, for behaviours to keep their fields in.
    std::string RawGet(std::string_view prop) const;
    void RawSet(std::string_view prop, std::string_view value);

    // Any property by name, as the readers, the language packs and the form driver see it:
    // Text, ListIndex, Value, Caption, ToolTipText, Visible, Enabled, Left, and composite properties.
    std::string Property(std::string_view prop) const;
    void SetProperty(std::string_view prop, std::string_view value);

    // A control of a stored kind that a form makes at run time beyond the fields of its
    // record (the rows of further floors): it holds a value on screen but no record keeps it.
    bool Transitorio() const { return transitorio_; }
    void SetTransitorio(bool t) { transitorio_ = t; }

    // Design-time text (text boxes) and free tag for form code.
    std::string designText;
    std::string tag;

    // Events. Handlers are the form's; they read `Cargando` themselves.
    std::function<void(Control&)> onChange;     // text box Change, composite Change
    std::function<void(Control&)> onClick;      // buttons, combo and list Click, check and option Click
    std::function<void(Control&)> onDblClick;
    std::function<void(Control&, int& key)> onKeyPress;
    std::function<void(Control&, int key)> onKeyDown;
    std::function<void(Control&)> onLostFocus;
    // A press of the mouse on a picture, at (x, y) in pixels of its picture.
    std::function<void(Control&, int x, int y)> onMouseDown;

    // Raise the events as the user's actions would.
    void Click();
    void DblClick();
    // Returns the key after the handler; 0 when swallowed.
    int KeyPress(int key);
    void KeyDown(int key);
    void RaiseChange();
    // The focus leaves the control.
    void LostFocus()
    {
        if (onLostFocus)
            onLostFocus(*this);
    }
    // A click on a picture at (x, y): MouseDown there, then Click.
    void ClickAt(int x, int y);

private:
    Form* form_;
    Kind kind_;
    std::string name_;
    int index_;
    std::string text_;
    int listIndex_ = -1;
    std::vector<std::string> items_;
    std::vector<bool> selected_;
    bool optionValue_ = false;
    int checkValue_ = 0;
    int selStart_ = 0;
    int selLength_ = 0;
    std::string caption_;
    std::string toolTip_;
    bool visible_ = true;
    bool enabled_ = true;
    int left_ = 0;
    bool transitorio_ = false;
    std::string group_;
    std::map<std::string, std::string, std::less<>> props_;
    std::shared_ptr<CompositeBehavior> behavior_;
};

class Form {
public:
    Form(Declaraciones& decl, std::string name, std::string caption = {});
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string c) { caption_ = std::move(c); }
    Declaraciones& decl() const { return decl_; }

    // Adds a control at the end of the order of definition.
    Control& Add(Kind kind, std::string name, int index = -1);
    // Makes member `index` of an array at run time, as a copy of the member before it: its kind,
    // text (also as design text), caption and key handler. The member before it must exist.
    Control& AddCopyOfPrevious(std::string_view name, int index);
    // Looks a control up by name (without regard to case, as the run time did) and index.
    Control* Find(std::string_view name, int index = -1) const;
    // As Find, but a missing control is a PropertyError naming it.
    Control& At(std::string_view name, int index = -1) const;
    bool Has(std::string_view name, int index = -1) const { return Find(name, index) != nullptr; }
    // The members of a control array in the order of definition.
    std::vector<Control*> Members(std::string_view name) const;
    // The index of the member of an option array that is set, among members 0 to cuantas - 1;
    // none when none of them is (the last set one when a record set several).
    std::optional<int> OpcionElegida(std::string_view name, int cuantas) const;
    // All controls, and those a record holds (stored kinds, less the transient ones), in the
    // order of definition.
    std::vector<Control*> Controls() const;
    std::vector<Control*> StoredControls() const;

    // The life cycle: Form_Load runs when the form is loaded (shown or hidden), Form_Unload
    // when it is closed. Forms override them.
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

    // Restores every control to its design-time state (text boxes to their design text,
    // lists to no selection). Used by forms that are loaded more than once.
    void ResetToDesign();

private:
    Declaraciones& decl_;
    std::string name_;
    std::string caption_;
    std::vector<std::unique_ptr<Control>> controls_;
};

}  // namespace vardena
