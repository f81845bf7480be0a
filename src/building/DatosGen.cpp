#include "building/DatosGen.h"

#include <cmath>
#include <utility>

#include "building/Unidades.h"
#include "ground_masonry/Fabrica.h"
#include "works/VentanaError.h"
#include "works/LngPack.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "base/VbFormat.h"

namespace vardena {
namespace {

// Level tables: P arrays run from the roof (0) down the floors, S arrays down the basements (1..).
constexpr const char* kLoadsP[] = {"TxtPProP", "TxtConcP", "TxtSobrP", "TxtSTabP"};
constexpr const char* kLoadsS[] = {"TxtPProS", "TxtConcS", "TxtSobrS", "TxtSTabS"};

// The material lists and the stored index each one shows.
constexpr std::pair<const char*, int16_t Declaraciones::*> kMaterialLists[] = {
    {"CmbHorm", &Declaraciones::GenHorm},          {"CmbAcero", &Declaraciones::GenAcero},
    {"cmbControl", &Declaraciones::GenControl},    {"CmbAcP", &Declaraciones::GenAcP},
    {"CmbResis", &Declaraciones::GenResis},        {"CmbServi", &Declaraciones::GenServi},
    {"cmbCatControl", &Declaraciones::GenCatControl}, {"CmbCatEjec", &Declaraciones::GenCatEjec},
};

constexpr int kHeadingOn = 0x70050B;
constexpr int kHeadingOff = 0xC08070;

// The four load tables of the floors and of the basements, in the order of kLoadsP / kLoadsS.
std::array<std::array<float, kMaxFloors + 1>*, 4> LoadArraysP(Declaraciones& d)
{
    return {&d.GenPProP, &d.GenConcP, &d.GenSobrP, &d.GenSTabP};
}

std::array<std::array<float, kMaxBasements + 1>*, 4> LoadArraysS(Declaraciones& d)
{
    return {&d.GenPProS, &d.GenConcS, &d.GenSobrS, &d.GenSTabS};
}

std::vector<std::string> Numbers(int from, int to)
{
    std::vector<std::string> v;
    for (int i = from; i <= to; ++i)
        v.push_back(std::to_string(i));
    return v;
}

// The use letter filter: upper case, "A" to "H", anything else "A"; the box keeps the one letter.
void UseLetterKey(Control& c, int& key)
{
    if (key < 32)
        return;
    char k = static_cast<char>(std::toupper(key));
    if (k < 'A' || k > 'H')
        k = 'A';
    c.SetText(std::string(1, k));
    key = 0;
}

}  // namespace

float FactorDiferido(float day)
{
    const double m = static_cast<double>(VbCLng(static_cast<double>(day) / 30.0));
    double a = 0, b = 0, c = 0;
    if (m == 0) {
        a = b = c = 0;
    } else if (m <= 1) {
        a = -0.6;
        b = 1.3;
    } else if (m <= 6) {
        a = -15.0 / 900.0;
        b = 195.0 / 900.0;
        c = 0.5;
    } else {
        a = -0.000385802;
        b = 0.0402777;
        c = 0.972252;
    }
    double v = a * m * m + b * m + c;
    v = std::trunc(v * 100 + 0.5) / 100;
    if (v > 2)
        v = 2;
    return static_cast<float>(v);
}

DatosGen::DatosGen(Declaraciones& d) : Form(d, "DatosGen", "Datos generales del edificio") { Build(); }

void DatosGen::Build()
{
    Control& floors = Add(Kind::ComboBox, "cmbGeom", 0);
    floors.SetItems(Numbers(1, kMaxFloors));
    Control& basements = Add(Kind::ComboBox, "cmbGeom", 1);
    basements.SetItems(Numbers(0, kMaxBasements));
    floors.onClick = basements.onClick = [this](Control&) { Seccion(); };
    Add(Kind::Label, "lbPlan").SetCaption("Nº plantas");
    Add(Kind::Label, "lbSot").SetCaption("Nº sótanos");

    // The roof and the template row of the floors, and the first basement.
    const char* defaultsP[4][2] = {{"250", "300"}, {"200", "140"}, {"100", "200"}, {"100", "40"}};
    const char* defaultsS[4] = {"300", "100", "400", "0"};
    for (int k = 0; k < 4; ++k) {
        for (int i = 0; i < 2; ++i)
            Add(Kind::TextBox, kLoadsP[k], i).designText = defaultsP[k][i];
        Add(Kind::TextBox, kLoadsS[k], 1).designText = defaultsS[k];
    }
    Add(Kind::TextBox, "TxtCUsoP", 0).designText = "G";
    Add(Kind::TextBox, "TxtCUsoP", 1).designText = "A";
    Add(Kind::TextBox, "TxtCUsoS", 1).designText = "F";
    Add(Kind::TextBox, "TxCot", 0).designText = "3.00";
    for (Control* c : Controls())
        if (c->Name() == "TxtCUsoP" || c->Name() == "TxtCUsoS")
            c->onKeyPress = UseLetterKey;

    const char* layers[] = {"Enfoscado", "Ladrillo hueco 12 cm", "Mortero", "Cámara aire y aislamiento",
                            "Ladrillo hueco 8 cm.", "Enfoscado"};
    const char* weights[] = {"20", "144", "20", "5", "96", "20"};
    for (int i = 0; i < 6; ++i) {
        Add(Kind::TextBox, "TextDescr", i).designText = layers[i];
        Control& v = Add(Kind::TextBox, "TextValor", i);
        v.designText = weights[i];
        v.onChange = [this](Control&) {
            double sum = 0;
            for (Control* m : Members("TextValor"))
                if (m->Index() >= 0 && m->Index() <= 5)
                    sum += ValComaCopy(m->Text());
            At("TextTotal").SetText(decl().Unidades == 1 ? Formato0(sum) : Formato00Punto(sum));
        };
    }
    Add(Kind::TextBox, "TextTotal").designText = "305";
    const char* days[] = {"0", "60", "90", "180", "10", "20"};
    for (int i = 0; i < 6; ++i)
        Add(Kind::TextBox, "TextDia", i).designText = days[i];

    const char* headings[] = {"Acero Laminado", "Muros de fábrica", "Terreno", "", "Madera", "Hormigón Armado"};
    for (int i = 0; i < 6; ++i)
        Add(Kind::Label, "Label15", i).SetCaption(headings[i]);

    Add(Kind::CheckBox, "ChHormigon");
    Add(Kind::ComboBox, "CmbHorm").SetItems({"HA-10", "HA-15", "HA-20", "HA-25", "HA-30", "HA-35", "HA-40", "HA-45", "HA-50"});
    Add(Kind::ComboBox, "CmbAcero").SetItems({"B-400-S", "B-500-S"});
    Add(Kind::ComboBox, "cmbControl").SetItems({"Reducido", "Normal", "Intenso"});
    Add(Kind::CheckBox, "ChAcero");
    Add(Kind::ComboBox, "CmbAcP").SetItems({"A37", "A42", "A52", "S 235", "S 275", "S 355"});
    Add(Kind::CheckBox, "ChMadera");
    Add(Kind::ComboBox, "CmbResis").SetItems({"C14", "C16", "C18", "C22", "C24", "C27", "C30", "C35", "C40", "D30", "D35",
                                              "D40", "D50", "D60", "D70", "GL24", "GL28", "GL32", "GL36"});
    Add(Kind::ComboBox, "CmbServi").SetItems({"Clase 1", "Clase 2", "Clase 3"});
    Add(Kind::CheckBox, "ChFabrica");
    Add(Kind::TextBox, "TxResFab").designText = "40";
    Add(Kind::TextBox, "TxCoefMin").designText = "1.7";
    Add(Kind::TextBox, "TxtDensFabr").designText = "1900";
    Add(Kind::ComboBox, "cmbCatControl").SetItems({" I", "II"});
    Add(Kind::ComboBox, "CmbCatEjec").SetItems({" A", " B", " C"});
    Add(Kind::Label, "lbFabrica").SetCaption("Res.Fábrica");
    Add(Kind::CheckBox, "ChTerreno");
    Add(Kind::TextBox, "TxTens").designText = "2.5";
    Add(Kind::Label, "lbTens").SetCaption("Tens. Adm.");
    MaterialGroup("ChHormigon", 5, {"CmbHorm", "CmbAcero", "cmbControl"});
    MaterialGroup("ChAcero", 0, {"CmbAcP"});
    MaterialGroup("ChMadera", 4, {"CmbResis", "CmbServi"});
    MaterialGroup("ChFabrica", 1, {"TxResFab", "TxCoefMin", "TxtDensFabr", "cmbCatControl", "CmbCatEjec", "lbFabrica"});
    MaterialGroup("ChTerreno", 2, {"TxTens", "lbTens"});

    Add(Kind::CheckBox, "ChVerTerrPlant").SetCheckValue(1);
    Add(Kind::CheckBox, "ChVerCargas").SetCheckValue(1);
    Add(Kind::CheckBox, "ChVerSelPilar");
    Add(Kind::OptionButton, "OpPilarS");
    At("ChVerTerrPlant").onClick = At("ChVerCargas").onClick = [this](Control&) { Seccion(); };

    Add(Kind::CommandButton, "AsignaC", 0).SetCaption("Asignar a todos los sótanos");
    Add(Kind::CommandButton, "AsignaC", 1).SetCaption("Asignar a todas las plantas");
    for (int i = 0; i < 2; ++i)
        At("AsignaC", i).onClick = [this, i](Control&) { AsignaC_Click(i); };
    Add(Kind::CommandButton, "Aceptar").SetCaption("CONVERTIR");
    At("Aceptar").onClick = [this](Control&) { Aceptar_Click(); };
    Add(Kind::CommandButton, "Cancelar").SetCaption("Cancelar");
    Add(Kind::CommandButton, "cmdCatUso").SetCaption("Categorías de uso");
    At("cmdCatUso").onClick = [this](Control&) { cmdCatUso(); };
    Add(Kind::CommandButton, "cmdAyuda").SetCaption("?");
    At("cmdAyuda").onClick = [this](Control&) { cmdAyuda(); };
    Add(Kind::CommandButton, "cmdFabr").SetCaption("Calcular resistencia");
    // The masonry properties dialog, which fills the masonry fields on closing.
    At("cmdFabr").onClick = [this](Control&) { ConVentanaError(decl(), "cmdFabr_Click", [this] { AbreFabrica(*this); }); };
    Add(Kind::PictureBox, "Geom");
    Add(Kind::Label, "LbCu").SetCaption("Cubierta");
    Add(Kind::Label, "LbAlt").SetCaption("Altura (m.)");
    Add(Kind::Label, "LbCS").SetCaption("P.Prop.  C.Perm.     Sobr.Uso   Tab/Niev.  Uso");
    Add(Kind::Label, "lblPlanta", 0);
    Add(Kind::Label, "lbST", 0).SetCaption("kg/m2");
    Add(Kind::Label, "lbSI", 0).SetCaption("kN/m2");
    Add(Kind::Label, "lbST", 1).SetCaption("kg/cm2");
    Add(Kind::Label, "lbSI", 1).SetCaption("N/mm2");

    for (Control* c : Controls())
        if (c->kind() == Kind::TextBox)
            c->SetText(c->designText);
}

void DatosGen::MaterialGroup(const char* check, int label, std::vector<const char*> controls)
{
    groups_.push_back({check, label, std::move(controls)});
    At(check).onClick = [this, n = groups_.size() - 1](Control&) { ApplyMaterialGroup(groups_[n]); };
}

void DatosGen::ApplyMaterialGroup(const MaterialGroupDef& group)
{
    const bool on = At(group.check).CheckValue() != 0;
    At("Label15", group.label).RawSet("ForeColor", std::to_string(on ? kHeadingOn : kHeadingOff));
    for (const char* name : group.controls)
        if (Control* c = Find(name))
            c->SetEnabled(on);
}

void DatosGen::PickStored(const char* combo, int stored)
{
    Control& c = At(combo);
    const bool shown = stored >= 0 && stored < c.ListCount();
    c.SetListIndex(shown ? stored : -1);
    if (shown)
        unshownIndex_.erase(combo);
    else
        unshownIndex_[combo] = stored;
}

int16_t DatosGen::StoredIndex(const char* combo) const
{
    // A list that could not show its stored index shows no row, and no row can be chosen back
    // by the user: the stored index then goes back as it came, so that it is not lost.
    const int row = At(combo).ListIndex();
    if (row < 0)
        if (auto it = unshownIndex_.find(combo); it != unshownIndex_.end())
            return static_cast<int16_t>(it->second);
    return static_cast<int16_t>(row);
}

double DatosGen::PanelFactor() const { return decl().Unidades == 1 ? 1.0 : 0.01; }
double DatosGen::StressFactor() const { return decl().Unidades == 1 ? 1.0 : 0.1; }

void DatosGen::EnsureRows(int floors, int basements)
{
    // A created row inherits the texts of the row above it.
    auto ensure = [this](const char* name, int from, int to) {
        for (int i = from; i <= to; ++i) {
            if (Find(name, i))
                continue;
            if (Find(name, i - 1))
                AddCopyOfPrevious(name, i);
            else
                Add(Kind::TextBox, name, i);
        }
    };
    for (int k = 0; k < 4; ++k) {
        ensure(kLoadsP[k], 1, floors);
        ensure(kLoadsS[k], 1, basements);
    }
    ensure("TxtCUsoP", 1, floors);
    ensure("TxtCUsoS", 1, basements);
    ensure("TxCot", 0, floors + basements - 1);
    for (int i = 0; i <= floors + basements; ++i)
        if (!Find("lblPlanta", i))
            Add(Kind::Label, "lblPlanta", i);
}

void DatosGen::Seccion()
{
    SeccionLayout& s = layout_;
    s.floors = At("cmbGeom", 0).ListIndex() + 1;
    s.basements = std::max(0, At("cmbGeom", 1).ListIndex());
    const int t = s.floors + s.basements;
    s.left = kMasterLeft;
    s.right = kMasterLeft + kMasterWidth;
    s.loadCentre = static_cast<int>((1.15 * s.left + 0.85 * s.right) / 2);
    s.pitch = t <= 6 ? 510 : t <= 11 ? 440 : t <= 15 ? 360 : 310;
    const bool ground = At("ChVerTerrPlant").CheckValue() != 0;
    s.groundVisible = ground;
    for (const char* name : {"cmbGeom", "lbPlan", "lbSot", "lbTens", "TxTens"})
        for (Control* c : Members(name))
            c->SetVisible(ground);
    const bool loads = At("ChVerCargas").CheckValue() != 0;
    s.asignaSotanos = loads && s.basements >= 2;
    s.asignaPlantas = loads && s.floors >= 2;
    At("AsignaC", 0).SetVisible(s.asignaSotanos);
    At("AsignaC", 1).SetVisible(s.asignaPlantas);

    // All rows hidden, missing ones created, then the levels laid from the roof down.
    for (const char* name : {"TxtPProP", "TxtConcP", "TxtSobrP", "TxtSTabP", "TxtCUsoP", "TxtPProS", "TxtConcS",
                             "TxtSobrS", "TxtSTabS", "TxtCUsoS", "TxCot", "lblPlanta"})
        for (Control* c : Members(name))
            c->SetVisible(false);
    EnsureRows(s.floors, s.basements);
    s.rows.clear();
    const int top0 = kPictureHeight - t * s.pitch - 150;
    for (int level = 0; level <= t; ++level) {
        SeccionLayout::Row row;
        row.level = level;
        row.top = top0 + level * s.pitch;
        row.basement = level > s.floors;
        row.label = NombrePlanta(decl(), level);
        if (level == 0)
            row.label = decl().Msg(259).empty() ? "Cubierta" : decl().Msg(259);
        s.rows.push_back(row);
        At("lblPlanta", level).SetCaption(row.label);
        At("lblPlanta", level).SetVisible(true);
        const bool basement = row.basement;
        const int idx = basement ? level - s.floors : level;
        for (int k = 0; k < 4 && loads; ++k)
            At(basement ? kLoadsS[k] : kLoadsP[k], idx).SetVisible(true);
        if (loads)
            At(basement ? "TxtCUsoS" : "TxtCUsoP", idx).SetVisible(true);
        if (level > 0)
            At("TxCot", level - 1).SetVisible(true);
    }
}

void DatosGen::pasaMatPan()
{
    Declaraciones& d = decl();
    const int n = d.NPlantasSobre, m = d.NPlantasBajo;
    At("cmbGeom", 0).SetListIndex(n - 1);
    for (int i = 0; i <= n; ++i) {
        for (int k = 0; k < 4; ++k)
            At(kLoadsP[k], i).SetText(FormatoNum(Redondea((*LoadArraysP(d)[k])[i], 3) * 1000));
        At("TxtCUsoP", i).SetText(d.GenCUsoP[i]);
    }
    At("cmbGeom", 1).SetListIndex(m);
    for (int i = 1; i <= m; ++i) {
        for (int k = 0; k < 4; ++k)
            At(kLoadsS[k], i).SetText(FormatoNum(Redondea((*LoadArraysS(d)[k])[i], 3) * 1000));
        At("TxtCUsoS", i).SetText(d.GenCUsoS[i]);
    }
    for (int i = 1; i <= 6; ++i) {
        At("TextDescr", i - 1).SetText(d.GenDescr[i]);
        At("TextValor", i - 1).SetText(FormatoNum(d.GenValor[i] * 1000.0f));
    }
    At("TextTotal").SetText(FormatoNum(d.GenValor[7] * 1000.0f));
    for (int i = 1; i <= 6; ++i)
        At("TextDia", i - 1).SetText(Formato0(d.GenDia[i]));
    for (int i = 0; i < n + m; ++i)
        At("TxCot", i).SetText(Formato00(d.GenCot[i]));
    for (const auto& [combo, index] : kMaterialLists)
        PickStored(combo, d.*index);
    At("ChHormigon").SetCheckValue(d.GenChHormigon != 0 ? 1 : 0);
    At("ChAcero").SetCheckValue(d.GenChAcero != 0 ? 1 : 0);
    At("ChMadera").SetCheckValue(d.GenChMadera != 0 ? 1 : 0);
    At("ChFabrica").SetCheckValue(d.GenChFabrica != 0 ? 1 : 0);
    At("ChTerreno").SetCheckValue(d.GenChTerreno != 0 ? 1 : 0);
    auto fck = FckIndice(d, d.GenHorm);
    d.GenFckHorm = fck ? *fck : 0;
    At("TxResFab").SetText(Formato0(d.GenResFab / 10));
    At("TxCoefMin").SetText(Formato00(d.GenCoefMin));
    At("TxtDensFabr").SetText(Formato0(d.GenDensFabr));
    At("TxTens").SetText(Formato00(d.GenTens / 10));
    CambiaUnidades(*this, d.Unidades);
}

void DatosGen::pasaPanMat()
{
    Declaraciones& d = decl();
    const double panel = PanelFactor();
    const int n = At("cmbGeom", 0).ListIndex() + 1;
    const int m = std::max(0, At("cmbGeom", 1).ListIndex());
    d.NPlantasSobre = static_cast<int16_t>(n);
    d.NPlantasBajo = static_cast<int16_t>(m);
    auto load = [&](const Control& c) { return static_cast<float>(ValComaCopy(c.Text()) / panel / 1000); };
    for (int i = 0; i <= n; ++i) {
        for (int k = 0; k < 4; ++k)
            (*LoadArraysP(d)[k])[i] = load(At(kLoadsP[k], i));
        d.GenCUsoP[i] = At("TxtCUsoP", i).Text();
    }
    for (int i = 1; i <= m; ++i) {
        for (int k = 0; k < 4; ++k)
            (*LoadArraysS(d)[k])[i] = load(At(kLoadsS[k], i));
        d.GenCUsoS[i] = At("TxtCUsoS", i).Text();
    }
    for (int i = 1; i <= 6; ++i) {
        d.GenDescr[i] = At("TextDescr", i - 1).Text();
        d.GenValor[i] = load(At("TextValor", i - 1));
    }
    d.GenValor[7] = load(At("TextTotal"));
    for (int i = 1; i <= 6; ++i)
        d.GenDia[i] = static_cast<float>(ValComaCopy(At("TextDia", i - 1).Text()));
    for (int i = 1; i <= 4; ++i)
        d.GenDia[i + 6] = FactorDiferido(d.GenDia[i]);
    for (int i = 0; i < n + m; ++i)
        d.GenCot[i] = static_cast<float>(ValComaCopy(At("TxCot", i).Text()));
    for (const auto& [combo, index] : kMaterialLists)
        d.*index = StoredIndex(combo);
    auto flag = [this](const char* name) { return At(name).CheckValue() != 0 ? kTrue : kFalse; };
    d.GenChHormigon = flag("ChHormigon");
    d.GenChAcero = flag("ChAcero");
    d.GenChMadera = flag("ChMadera");
    d.GenChFabrica = flag("ChFabrica");
    d.GenChTerreno = flag("ChTerreno");
    d.GenResFab = static_cast<float>(ValComaCopy(At("TxResFab").Text()) / StressFactor() * 10);
    d.GenCoefMin = static_cast<float>(ValComaCopy(At("TxCoefMin").Text()));
    d.GenDensFabr = static_cast<float>(ValComaCopy(At("TxtDensFabr").Text()));
    d.GenTens = static_cast<float>(ValComaCopy(At("TxTens").Text()) / StressFactor() * 10);
    auto fck = FckIndice(d, d.GenHorm);
    d.GenFckHorm = fck ? *fck : 0;
}

void DatosGen::Form_Load()
{
    TraduceForm(*this);
    // The modulus of the beams takes no scale factors until the calculator of concrete
    // properties by age sets them again.
    decl().FactorArido = 1;
    decl().FactorEdadE = 1;
    for (Control* c : Controls())
        if (c->kind() == Kind::ComboBox && c->ListCount() > 0)
            c->SetListIndex(0);
    pasaMatPan();
    At("Cancelar").SetEnabled(decl().ObraNueva == kFalse);
    // A check box's click handler runs only when its value changes, so a group stored off
    // would stay enabled: each group follows its check box once the values are in.
    for (const MaterialGroupDef& g : groups_)
        ApplyMaterialGroup(g);
}

bool DatosGen::QueryUnload()
{
    Declaraciones& d = decl();
    if (d.ObraNueva != kFalse) {
        d.ui.MsgBox(d.Msg(134), mb::Exclamation, d.Msg(250));
        return false;
    }
    return true;
}

void DatosGen::Form_Unload() { decl().ObraNueva = kFalse; }

void DatosGen::AsignaC_Click(int index)
{
    const int n = At("cmbGeom", 0).ListIndex() + 1;
    const int b = std::max(0, At("cmbGeom", 1).ListIndex());
    const bool sotanos = index == 0;
    const int count = sotanos ? b : n;
    if (count < 2)
        return;
    const char* const* loads = sotanos ? kLoadsS : kLoadsP;
    const char* use = sotanos ? "TxtCUsoS" : "TxtCUsoP";
    for (int i = 2; i <= count; ++i) {
        for (int k = 0; k < 4; ++k)
            At(loads[k], i).SetText(At(loads[k], 1).Text());
        At(use, i).SetText(At(use, 1).Text());
        // Storey heights: floor i is TxCot(i - 1); basement i is TxCot(n + i - 1).
        const int cot = sotanos ? n + i - 1 : i - 1;
        const int first = sotanos ? n : 0;
        At("TxCot", cot).SetText(At("TxCot", first).Text());
    }
}

void MuestraCategoriasUso(Declaraciones& d, std::string_view titulo)
{
    static const char* texts[] = {
        "DEFINICIÓN DE SOBRECARGAS Y COEF. DE SIMULTANEIDAD",
        "CATEGORÍAS DE USO- C.T.E.",
        "  A.- Zonas residenciales.",
        "  B.- Zonas administrativas.",
        "  C.- Zonas de acceso al público.",
        "        (a excepción de las de categorías A, B y D)",
        "  D.- Zonas comerciales.",
        "  E.- Zonas de tráfico y aparcamiento para vehículos ligeros.",
        "  F.- Cubiertas transitables accesibles privadamente.",
        "  G.- Cubiertas accesibles sólo para conservación.",
    };
    std::string all;
    for (int i = 0; i < 10; ++i) {
        d.Mensajes[static_cast<size_t>(1036 + i)] = texts[i];
        all += (i ? "\r\n" : "") + std::string(texts[i]);
    }
    d.ui.MsgBox(all, mb::Information, titulo);
}

void MuestraClasesServicio(Declaraciones& d, std::string_view titulo)
{
    std::string all;
    for (int i = 697; i <= 703; ++i)
        all += (i > 697 ? "\r\n" : "") + d.Msg(i);
    d.ui.MsgBox(all, mb::Information, titulo);
}

void DatosGen::cmdCatUso() { MuestraCategoriasUso(decl(), Caption()); }

void DatosGen::cmdAyuda() { MuestraClasesServicio(decl(), Caption()); }

void DatosGen::Aceptar_Click()
{
    // The panel's plausibility tests are made and refuse nothing: any value goes through.
    [[maybe_unused]] bool plausible = true;
    for (const char* name : {"TxtPProP", "TxtConcP", "TxtSobrP", "TxtSTabP", "TxtPProS", "TxtConcS", "TxtSobrS",
                             "TxtSTabS", "TextValor", "TextDia"})
        for (Control* c : Members(name))
            plausible = plausible && ValComaCopy(c->Text()) >= 0;
    plausible = plausible && ValComaCopy(At("TextDia", 3).Text()) + ValComaCopy(At("TextDia", 4).Text()) +
                                     ValComaCopy(At("TextDia", 5).Text()) <= 100;
    pasaPanMat();
    std::string unused;
    // A failed write has been told by the handler of DatosFile. The report would describe data
    // that were not stored, and unloading would drop what the user entered: neither happens.
    if (DatosFile(decl(), "datos.~ce", "G", unused).writeFailed)
        return;
    ListaRtf();
    if (Setting(decl(), "Preferencias", "CapturaPantallas") == "Si" && decl().Captura)
        decl().Captura(*this, ConBarra(decl().CarpetaObra) + "datos");
    Form_Unload();
}

std::unique_ptr<Form> CreaDatosGen(Declaraciones& d)
{
    auto f = std::make_unique<DatosGen>(d);
    f->Form_Load();
    return f;
}

}  // namespace vardena
