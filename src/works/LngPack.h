#pragma once
// Language packs: the message table and the texts of the forms.
//
// A pack is the folder <program folder>/lng/<language>/ holding MsgVardena.txt (line n is
// message n) and LngForms.txt (one block of captions, list items and tool tips per form).
// The language is the setting "Preferencias" / "Lenguaje" (default "Español"); its name is
// the folder's name.
//
// Start-up: CargaIdioma(d) once the program folder is known. It reads the setting into
// d.Lenguaje and fills d.Mensajes from the pack (a missing pack leaves the table empty).
// TraduceForm reads the setting anew at every form load, so that a change of language
// reaches every form opened afterwards with no further step.

#include <string>
#include <string_view>
#include <vector>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;

inline constexpr const char* kLngFormsFile = "LngForms.txt";
inline constexpr const char* kMensajesFile = "MsgVardena.txt";

// The folder of the current language, with the separator at its end:
// ConBarra(DirPrograma) + "lng/" + Lenguaje + "/". Reads the setting into d.Lenguaje.
std::string CarpetaIdioma(Declaraciones& d);

// Applies the current language pack to the form's caption and to the captions, texts, list
// items and tool tips of its controls. A missing pack, or a pack without a block for this
// form, leaves the form as designed. A control named in the pack that the form lacks, and a
// list item beyond the control's rows, are a PropertyError naming the pack file and line.
void TraduceForm(Form& form);
// The same from a given LngForms.txt.
void TraduceFormDesde(Form& form, const std::string& lngFormsPath);

// Fills the message table from MsgVardena.txt of the current language: line n is message n.
// A missing file leaves the table as it was; entries beyond the file's last line keep their
// text. A file of more than 2000 lines is a FileError naming it, and the table is untouched.
void CargaMensajes(Declaraciones& d);
// The same from a given file.
void CargaMensajesDesde(Declaraciones& d, const std::string& path);

// Reads the language setting and loads its messages: the start-up's language step.
void CargaIdioma(Declaraciones& d);

// Leaves an empty "Nuevos.lng" in the program folder: the start of a new language's files.
void VaciaNuevos(Declaraciones& d);

// The language folders under <program folder>/lng that hold both files of a pack, in name order.
std::vector<std::string> IdiomasDisponibles(const Declaraciones& d);

// The language dialog. Its load lists the folders of lng/, keeps the rows whose folder holds
// both pack files and selects the current language; "Aceptar" with a row selected stores it
// as the language and reloads the messages; "Cancelar" closes with nothing stored.
class FrmIdioma : public Form {
public:
    explicit FrmIdioma(Declaraciones& d);
    void Form_Load() override;

    void Cmdacepta_Click();
    void Cmdcancela_Click();

    // True once a button has closed the dialog.
    bool Descargado() const { return descargado_; }

private:
    bool descargado_ = false;
};

// Removes the rows of `list` whose folder lng/<row>/ under `dirPrograma` lacks either pack
// file, walking from row 0 and staying at the same index after a removal.
void QuitaIdiomasIncompletos(Control& list, const std::string& dirPrograma);

}  // namespace vardena
