#pragma once
// The element window: one class for every element form, built from the form's field table.
// It creates the stored fields in the order of the record, then the controls that every
// element window has, and runs the life cycle that all of them share: load with defaults,
// read a record when a row of List1 is chosen, save on CmdCalcular, delete from List1.
//
// An element's own change logic and calculation go into a subclass: its constructor wires
// the handlers of its fields (which return at once while `Cargando` is set), and it overrides
// the hooks below. The factory in Formularios.cpp says which class a form name gets.

#include <cstdint>
#include <functional>
#include <memory>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Campos.h"
#include "frame/Croquis.h"
#include "works/Registros.h"
#include "base/Form.h"

namespace vardena {

// What the fields of a form say for its check: the materials by the rule of lists that begin
// with "Idem gral." and the loads TxtQ(i) in internal units.
struct DatosComprobacion {
    std::optional<int16_t> fck;  // concrete, t/m2 (CmbHorm)
    std::optional<int32_t> fyk;  // reinforcing steel, t/m2 (CmbAcero of concrete forms)
    std::optional<float> fy;     // structural steel (CmbAcero of steel forms, cmbAceroPerfil)
    double gammaC = 1.5;         // partial factors by the control level (cmbControl)
    double gammaS = 1.15;
    std::map<int, double> cargas;  // TxtQ(i) by LeeQ
};

// The check step of an element. Its computation is not part of this program: it takes its
// arguments, sets ResultadoCalculo to 1 and returns.
void ComprobacionNula(Declaraciones& d, const std::vector<double>& argumentos);

class ElementForm : public Form {
public:
    ElementForm(Declaraciones& d, const TablaForm& tabla);

    const TablaForm& tabla() const { return tabla_; }
    const CicloForm& ciclo() const { return ciclo_; }

    void Form_Load() override;
    void Form_Unload() override;

    // The shared handlers; each is wired to its control's event as well.
    void List1_Click();
    void List1_DblClick();
    void List1_KeyDown(int keyCode);
    void txtTitulo_KeyPress(int& keyAscii);
    void CmdCalcular_Click();
    void Listado1_Click();
    void CmdSalir_Click();

    // The drawing of one of the form's sketch pictures; none for a picture the form does not draw.
    virtual std::optional<Croquis> CroquisDe(const Control& picture) const;

    // What the form's own calculation did at the last press of CmdCalcular, as a sentence for
    // the conversion's log; empty for a form that calculates nothing.
    virtual std::string ResumenCalculo() const { return {}; }

    // True once CmdSalir has closed the window.
    bool Descargado() const { return descargado_; }
    // The result view is in front (Listado1 pressed).
    bool ListadoPulsado() const { return listadoPulsado_; }

protected:
    // The form's own filling at the end of Form_Load (dependent fields, drawing); Cargando is set.
    virtual void CargaPropia() {}
    // Step 2 of CmdCalcular_Click: what the fields say for the check. Elements that gather more
    // extend it.
    virtual DatosComprobacion LeeDatosComprobacion();
    // Step 3 of CmdCalcular_Click: the check step. The default makes the no-op call in the
    // argument shape of the form's life-cycle row.
    virtual void Comprueba(const DatosComprobacion& datos);
    // Step 0 of CmdCalcular_Click: whether the form can be calculated and saved at all. A form
    // that refuses has told the user why and leaves the sentence in UltimoGuardadoRechazado.
    virtual bool PuedeCalcular() { return true; }
    // The calculation of a form whose save has no check call before it (frmAccio, frmSuelo):
    // runs just before the save. None by default.
    virtual void CalculoPropio() {}
    // Runs after a save that went through, before the version label is set. None by default.
    virtual void TrasGuardado() {}

    // Runs an event's routine unless a record is being read (what it stored stays as read); a
    // run-time error in it goes to the error window under the event's name.
    void Evento(std::string_view origen, const std::function<void()>& rutina);

    // For a form with one fixed record: whether its load found that record.
    bool RegistroFijoEncontrado() const { return lectura_.found(); }

public:
    // The last reading of a record (by the load of a fixed record, or by List1_Click) and the
    // file the last save wrote ("" when the save was refused).
    const Lectura& UltimaLectura() const { return lectura_; }
    const std::string& UltimoGuardado() const { return guardado_; }

private:
    void CreaCampo(const CampoDef& campo, int index, size_t miembro);
    void CreaMarco();
    void ConectaEventos();
    void PoneVersion();
    // Step 1 of CmdCalcular_Click: the required fields against their minimums.
    void CompruebaMinimos();
    // Asks whether to replace an existing results file; false when the answer is No.
    bool ConfirmaReemplazo();

    const TablaForm& tabla_;
    const CicloForm& ciclo_;
    bool descargado_ = false;
    bool listadoPulsado_ = false;
    Lectura lectura_;
    std::string guardado_;
};

// The controls that every element window has besides its fields: they make its frame (the
// record list, the buttons, the version, the result view), not its data.
struct ControlDelMarco {
    Kind kind;
    std::string_view nombre;
    std::string_view caption;
};
inline constexpr ControlDelMarco kMarcoElemento[] = {
    {Kind::ListBox, "List1", ""},           {Kind::CommandButton, "CmdCalcular", "CONVERTIR"},
    {Kind::CommandButton, "Listado1", "Listado"}, {Kind::CommandButton, "CmdSalir", "SALIR"},
    {Kind::CommandButton, "UCBhelp", ""},   {Kind::Label, "Lbvers", "vers: "},
    {Kind::RichTextBox, "RichTextBox1", ""}, {Kind::Frame, "Frm1", ""},
    {Kind::Frame, "UCframeRecDat", "Recuperar datos"}, {Kind::Frame, "UCframe2", "Resultados"},
};
bool EsDelMarco(std::string_view nombre);

// The maker of a form class with logic of its own, for the `crea` of its definition.
template <typename T>
std::unique_ptr<Form> CreaDe(Declaraciones& d, const TablaForm& tabla)
{
    return std::make_unique<T>(d, tabla);
}

// Keys that cannot stand in a file name; txtTitulo swallows them.
bool TeclaProhibidaEnTitulo(int keyAscii);

}  // namespace vardena
