#pragma once
// The building's general data as a form: levels and their loads, the standard enclosure wall,
// the load steps, and the materials of the work. What it holds is the work's DATOS.~CE.

#include <array>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;

// The use categories of the imposed loads (cmdCatUso of the general data and of the forms
// with that button) and the service classes of timber (cmdAyuda), each in an information box
// under the caller's title.
void MuestraCategoriasUso(Declaraciones& d, std::string_view titulo);
void MuestraClasesServicio(Declaraciones& d, std::string_view titulo);

// The long-term factor of a load step at day `day`, as stored in the general data.
float FactorDiferido(float day);

// Where the rows of the building section stand, in twips, for the window to draw.
struct SeccionLayout {
    int floors = 0;     // n
    int basements = 0;  // b
    int pitch = 0;      // row pitch
    int left = 0, right = 0;
    int loadCentre = 0;  // centre line of the row of load fields
    struct Row {
        int level;  // 0 roof, 1..n floors, n+1..n+b basements
        int top;
        bool basement;
        std::string label;
    };
    std::vector<Row> rows;
    bool asignaSotanos = false;  // AsignaC(0) shown
    bool asignaPlantas = false;  // AsignaC(1) shown
    bool groundVisible = false;  // cmbGeom, floor-count labels, TxTens and the covering shape
};

class DatosGen : public Form {
public:
    explicit DatosGen(Declaraciones& d);

    void Form_Load() override;
    void Form_Unload() override;

    void pasaMatPan();
    void pasaPanMat();
    void Seccion();
    // Writes DATOS.~CE and the report, and unloads the form. When DATOS.~CE cannot be written
    // (the user has been told, d.UltimoErrorDatos says why) the form stays loaded with its
    // values and nothing further is written.
    void Aceptar_Click();
    void AsignaC_Click(int index);
    void cmdCatUso();
    void cmdAyuda();
    // Writes the general-data report "Datos.lCE" in the work folder.
    void ListaRtf();
    // Closing by the window control: refused while the work is new (message 134). Returns true
    // when the form may close.
    bool QueryUnload();

    const SeccionLayout& Layout() const { return layout_; }

    // Design constants of the section picture.
    static constexpr int kPictureHeight = 7800;
    static constexpr int kMasterLeft = 600;
    static constexpr int kMasterWidth = 3600;

private:
    void Build();
    void EnsureRows(int floors, int basements);
    // A material group: its check box, the index of its heading Label15 and the controls it
    // switches on and off.
    struct MaterialGroupDef {
        const char* check;
        int label;
        std::vector<const char*> controls;
    };
    void MaterialGroup(const char* check, int label, std::vector<const char*> controls);
    // Heading colour and enabled state of a group's controls from its check box.
    void ApplyMaterialGroup(const MaterialGroupDef& group);
    // Shows a stored list index, or no row when the list has no such row.
    void PickStored(const char* combo, int stored);
    // The index to store for a list: its row, or the stored index it could not show.
    int16_t StoredIndex(const char* combo) const;
    double PanelFactor() const;
    double StressFactor() const;

    SeccionLayout layout_;
    std::vector<MaterialGroupDef> groups_;
    // Stored indices that their list has no row for, by list name, as last loaded.
    std::map<std::string, int> unshownIndex_;
};

std::unique_ptr<Form> CreaDatosGen(Declaraciones& d);

}  // namespace vardena
