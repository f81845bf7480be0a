#include "building/SistUnid.h"

#include "building/Unidades.h"
#include "works/LngPack.h"
#include "works/Declaraciones.h"
#include "works/VentanaError.h"

namespace vardena {

const std::vector<FilaEquivalencia>& Equivalencias()
{
    // The shown factors use 9.81; the program itself works with 1 t = 10 kN. The last row's
    // "0,981" stands as the table has always shown it.
    static const std::vector<FilaEquivalencia> filas = {
        {"Fuerzas", "t", "kN", "9,81", "0,102"},
        {"Fuerzas por ud de longitud", "t/m", "kN/m", "9,81", "0,102"},
        {"Fuerzas por ud de superficie", "t/m2", "kN/m2", "9,81", "0,102"},
        {"Fuerzas por ud de volumen", "t/m3", "kN/m3", "9,81", "0,102"},
        {"Momentos", "m.t", "kN.m", "9,81", "0,102"},
        {"Resistencias o tensiones", "t/m2", "kN/m2", "9,81", "0,102"},
        {"Resistencias o tensiones", "kp/cm2", "N/mm2", "0,981", "10,194"},
    };
    return filas;
}

const std::array<const char*, 5>& CabecerasEquivalencias()
{
    static const std::array<const char*, 5> cabeceras = {"", "S.T.", "S.I.", "ST-SI", "SI-ST"};
    return cabeceras;
}

SistUnid::SistUnid(Declaraciones& d) : Form(d, "SistUnid", "Unidades")
{
    Add(Kind::Label, "Label3").SetCaption("Sistema de Unidades");
    Add(Kind::Frame, "FrSistema").SetCaption("Sistema elegido");
    Add(Kind::Label, "lbST", 0).SetCaption("Técnico");
    Add(Kind::Label, "lbSI", 0).SetCaption("Internacional");
    Add(Kind::Frame, "FrUnidades").SetCaption("Unidades");
    Add(Kind::Label, "lbST", 1).SetCaption("m.  kg.  cm.  kg/m2  kg/cm2  t/m    m·t  ");
    Add(Kind::Label, "lbSI", 1).SetCaption("m.  N.  cm.  kN/m2  N/mm2  kN/m    m·kN  ");
    Add(Kind::Label, "Label1").SetCaption("Equivalencias entre sistemas de unidades");
    const auto& filas = Equivalencias();
    for (size_t i = 0; i < filas.size(); ++i)
        Add(Kind::Label, "TextDescr", static_cast<int>(i)).SetCaption(filas[i][0]);
    Add(Kind::CommandButton, "Aceptar").SetCaption("Aceptar");
    At("Aceptar").onClick = [this](Control&) { Aceptar_Click(); };
}

void SistUnid::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "SistUnid_Form_Load", [&] {
        TraduceForm(*this);
        CambiaUnidades(*this, d.Unidades);
    });
}

}  // namespace vardena
