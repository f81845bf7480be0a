#include "building/Unidades.h"

#include "works/Declaraciones.h"
#include "base/Form.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

double FactorSI(Form& form, int i)
{
    Control* lb = form.Find("LbQSI", i);
    return lb ? ValComaCopy(lb->Caption()) : 1.0;
}

void Scale(Control& c, double factor, int decimals)
{
    const double v = ValComaCopy(c.Text()) * factor;
    switch (decimals) {
    case 0: c.SetText(Formato0(v)); break;
    case 2: c.SetText(Formato00(v)); break;
    default: c.SetText(FormatoNum(v));
    }
}

}  // namespace

void CambiaUnidades(Form& form, int unidades)
{
    const bool tecnico = unidades == 1;
    for (Control* c : form.Members("lbST"))
        c->SetVisible(tecnico);
    for (Control* c : form.Members("lbSI"))
        c->SetVisible(!tecnico);
    if (tecnico || form.Name() == "NuevaEst" || form.Name() == "SistUnid")
        return;
    if (form.Name() != "DatosGen") {
        for (Control* q : form.Members("TxtQ"))
            if (q->kind() == Kind::TextBox)
                Scale(*q, FactorSI(form, q->Index()), -1);
        return;
    }
    for (const char* name : {"TxtPProP", "TxtConcP", "TxtSobrP", "TxtSTabP", "TxtPProS", "TxtConcS", "TxtSobrS",
                             "TxtSTabS", "TextValor"})
        for (Control* c : form.Members(name))
            Scale(*c, 0.01, -1);
    for (Control* c : form.Members("TxTens"))
        Scale(*c, 0.1, 2);
    for (Control* c : form.Members("TxResFab"))
        Scale(*c, 0.1, 0);
}

double LeeQ(Form& form, int i)
{
    double v = ValComaCopy(form.At("TxtQ", i).Text());
    if (form.decl().Unidades != 1) {
        const double f = FactorSI(form, i);
        if (f != 0)
            v /= f;
    }
    return v;
}

void PoneQ(Form& form, int i, double value, double factor, int decimals)
{
    if (form.decl().Unidades != 1)
        value *= FactorSI(form, i);
    value *= factor;
    Control& q = form.At("TxtQ", i);
    switch (decimals) {
    case 0: q.SetText(Formato0(value)); break;
    case 1: q.SetText(Formato0_0(value)); break;
    case 2: q.SetText(Formato00(value)); break;
    default: q.SetText(FormatoNum(value));
    }
}

}  // namespace vardena
