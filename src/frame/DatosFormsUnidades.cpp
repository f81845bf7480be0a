// The unit controls of the element forms: beside each load field TxtQ(i) a hidden label
// LbQSI(i) whose caption turns the stored value into S.I., and the pair of visible unit
// labels lbST(i) / lbSI(i). Each form gives the quantity of every member of its TxtQ array.

#include <string>
#include <string_view>

#include "frame/Campos.h"
#include "frame/DatosForms.h"
#include "base/FileIo.h"
#include "base/Form.h"

namespace vardena {
namespace {

// The labels beside each load field TxtQ(i): the hidden factor to S.I., and the shown units of
// the technical and of the S.I. system.
constexpr std::string_view kFactorSI = "LbQSI";
constexpr std::string_view kUnidadTecnica = "lbST";
constexpr std::string_view kUnidadSI = "lbSI";

struct Unidad {
    Magnitud clave;
    std::string_view factor;   // the caption of LbQSI
    std::string_view tecnico;  // lbST
    std::string_view si;       // lbSI
};

// Units by the quantity a load field holds. Values held in tonnes (forces, loads
// per length or area, moments) go to kN with 10; values held in kilograms (the enclosure
// loads per metre, the area loads of the slabs, the moments per rib) go with 0.01; stresses
// in kg/cm2 go to N/mm2 with 0.1, as the masonry strengths and the ground stress of the
// general data do.
constexpr Unidad kUnidades[] = {
    {Magnitud::Fuerza, "10", "t", "kN"},           {Magnitud::Lineal, "10", "t/m", "kN/m"},      {Magnitud::Momento, "10", "m·t", "m·kN"},
    {Magnitud::Superficie, "10", "t/m2", "kN/m2"},     {Magnitud::LinealKg, ".01", "Kg/m", "kN/m"},    {Magnitud::SuperficieKg, ".01", "kg/m2", "kN/m2"},
    {Magnitud::MomentoKg, ".01", "m·Kg", "m·kN"},     {Magnitud::Tension, "0.1", "Kg/cm2", "N/mm2"},
};


const Unidad* UnidadDe(Magnitud clave)
{
    for (const Unidad& u : kUnidades)
        if (u.clave == clave)
            return &u;
    return nullptr;
}

void AddLabel(Form& form, std::string_view name, int index, std::string_view caption, bool visible)
{
    if (form.Find(name, index))
        return;
    Control& lb = form.Add(Kind::Label, std::string(name), index);
    lb.SetCaption(caption);
    lb.SetVisible(visible);
}

}  // namespace

void ControlesUnidades(Form& form)
{
    const TablaForm* t = TablaCampos(form.Name());
    if (!t)
        return;
    for (Control* q : form.Members("TxtQ")) {
        const int i = q->Index();
        if (q->kind() != Kind::TextBox || i < 0 || i >= static_cast<int>(t->cargas.size()))
            continue;
        const Unidad* u = UnidadDe(t->cargas[static_cast<size_t>(i)]);
        if (!u)
            continue;
        AddLabel(form, kFactorSI, i, u->factor, false);
        // Shown as the technical system until CambiaUnidades sets the pair by the work.
        AddLabel(form, kUnidadTecnica, i, u->tecnico, true);
        AddLabel(form, kUnidadSI, i, u->si, false);
    }
}

bool EsEtiquetaDeUnidad(std::string_view nombre)
{
    return nombre == kFactorSI || nombre == kUnidadTecnica || nombre == kUnidadSI;
}

}  // namespace vardena
