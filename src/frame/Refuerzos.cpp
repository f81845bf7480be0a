#include "frame/Refuerzos.h"

#include <array>
#include <cmath>
#include <memory>

#include "frame/UCComun.h"
#include "frame/UCPerfil.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// What tells the four reinforcement controls apart: their properties in slot order, their
// lists and their text boxes.
struct DatosRefuerzo {
    Kind kind;
    std::vector<std::string_view> propiedades;
    std::vector<std::string> lstNum;
    std::vector<std::string> lstDiam;
    bool txtSep;  // spacing typed in TxtSep
    bool txtNum;  // number of bars typed in TxtNum (instead of LstNum)
};

// List rows carry a trailing blank, so a diameter read from a label may end in one.
std::vector<std::string> Filas(std::initializer_list<std::string_view> valores)
{
    std::vector<std::string> out;
    for (std::string_view v : valores)
        out.push_back(std::string(v) + " ");
    return out;
}

const std::array<DatosRefuerzo, 4>& Tabla()
{
    static const std::array<DatosRefuerzo, 4> tabla = {{
        {Kind::UCNumDiam,
         {"NumBarras", "Diametro", "ColorFondo"},
         Filas({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}),
         Filas({"6", "8", "10", "12", "14", "16", "20", "25", "32", "40"}),
         false,
         false},
        {Kind::UCNumDiamSep,
         {"NumBarras", "Diametro", "Separacion", "ColorFondo"},
         Filas({"1", "2", "3", "4"}),
         Filas({"6", "8", "10", "12"}),
         true,
         false},
        {Kind::UCMallazo,
         {"Diametro", "Separacion", "ColorFondo"},
         {},
         Filas({"4", "4.5", "5", "5.5", "6", "7", "8", "9", "10", "12"}),
         true,
         false},
        {Kind::UCZapatas,
         {"NumBarras", "Por_metro", "Diametro", "Separacion", "AnchoZap", "ColorFondo"},
         {},
         Filas({"6", "8", "10", "12", "14", "16", "20", "25"}),
         true,
         true},
    }};
    return tabla;
}

const DatosRefuerzo* DatosDe(Kind kind)
{
    for (const DatosRefuerzo& d : Tabla())
        if (d.kind == kind)
            return &d;
    return nullptr;
}

class RefuerzoBehavior : public CompositeBehavior {
public:
    explicit RefuerzoBehavior(const DatosRefuerzo& datos) : datos_(datos) {}

    const DatosRefuerzo& datos() const { return datos_; }

    std::string Get(const Control& c, std::string_view prop) const override
    {
        const std::string_view p = PropiedadCompuesta(c, datos_.propiedades, prop);
        if (p == "ColorFondo")
            return ValorOOmision(c, p, kColorBoton);
        if (p == "Por_metro")
            return ValorOOmision(c, p, "False");
        return c.RawGet(p);
    }

    void Set(Control& c, std::string_view prop, std::string_view value) override
    {
        const std::string_view p = PropiedadCompuesta(c, datos_.propiedades, prop);
        if (p == "Por_metro")
            c.RawSet(p, TextoBandera(LeeBandera(c, p, value)));
        else if (datos_.kind == Kind::UCZapatas && (p == "NumBarras" || p == "Separacion" || p == "AnchoZap"))
            Escribe(c, p, value, false);
        else
            c.RawSet(p, value);
    }

    void Elige(Control& c, ListaRefuerzo lista, int fila)
    {
        const bool num = lista == ListaRefuerzo::Num;
        const std::vector<std::string>& filas = num ? datos_.lstNum : datos_.lstDiam;
        if (filas.empty())
            throw PropertyError(438, c.Label() + " has no list " + (num ? "LstNum" : "LstDiam"));
        if (fila < 0 || fila >= static_cast<int>(filas.size()))
            throw PropertyError(380, c.Label() + ": row " + std::to_string(fila) + " is outside its list of " +
                                         std::to_string(filas.size()));
        (num ? filaNum_ : filaDiam_) = fila;
        c.RawSet(num ? "NumBarras" : "Diametro", filas[static_cast<size_t>(fila)]);
        c.RaiseChange();
    }

    int Elegida(ListaRefuerzo lista) const { return lista == ListaRefuerzo::Num ? filaNum_ : filaDiam_; }

    // A write to LbNum/TxtNum, LbSep/TxtSep or the width. As a text box, it does nothing when
    // the text stays the same. A footing control then keeps bars and spacing consistent,
    // unless the write is its own (the guard is up); the user's writes raise Change.
    void Escribe(Control& c, std::string_view prop, std::string_view texto, bool usuario)
    {
        if (c.RawGet(prop) == texto)
            return;
        c.RawSet(prop, texto);
        if (ocupado_)
            return;
        if (datos_.kind == Kind::UCZapatas) {
            GuardaOcupado guarda(ocupado_);
            if (prop == "Separacion")
                BarrasDeSeparacion(c);
            else
                SeparacionDeBarras(c);
        }
        if (usuario)
            c.RaiseChange();
    }

private:
    bool PorMetro(const Control& c) const { return c.RawGet("Por_metro") == "True"; }

    // A new number of bars c or width w: the spacing follows, save for fewer than 2 bars. Per
    // metre s = w / c; else s = (w - 10) / (c - 1), the 10 being the two covers of 5 cm.
    void SeparacionDeBarras(Control& c)
    {
        const double barras = ValComaCopy(c.RawGet("NumBarras"));
        if (barras < 2)
            return;
        const double ancho = ValComaCopy(c.RawGet("AnchoZap"));
        const float sep = static_cast<float>(PorMetro(c) ? ancho / barras : (ancho - 10) / (barras - 1));
        Escribe(c, "Separacion", FormatoNum(sep), false);
    }

    // A new spacing s: the bars follow, with w the whole part of the width. No spacing above 0
    // leaves 1 bar; per metre c = w / s, else c = (w - 10) / s + 1, whole parts of the quotient
    // as the floating-point division gives it: a spacing printed to 7 digits that stands a hair
    // above the exact one (46.66667 for 140 / 3) gives the bars that fit, one less.
    void BarrasDeSeparacion(Control& c)
    {
        const double sep = ValComaCopy(c.RawGet("Separacion"));
        const double ancho = std::trunc(std::fabs(ValComaCopy(c.RawGet("AnchoZap"))));
        double barras = 1;
        if (sep > 0)
            barras = PorMetro(c) ? std::trunc(ancho / sep) : std::trunc((ancho - 10) / sep) + 1;
        Escribe(c, "NumBarras", FormatoNum(barras), false);
    }

    const DatosRefuerzo& datos_;
    bool ocupado_ = false;
    int filaNum_ = -1;
    int filaDiam_ = -1;
};

RefuerzoBehavior& Refuerzo(const Control& c)
{
    auto* b = dynamic_cast<RefuerzoBehavior*>(c.behavior());
    if (!b)
        throw PropertyError(438, c.Label() + " is not a reinforcement control");
    return *b;
}

}  // namespace

void InstalaControlCompuesto(Control& c)
{
    if (c.kind() == Kind::UCPerfil) {
        InstalaPerfil(c);
        return;
    }
    if (const DatosRefuerzo* d = DatosDe(c.kind()))
        c.SetBehavior(std::make_shared<RefuerzoBehavior>(*d));
}

const std::vector<std::string>& FilasRefuerzo(Kind kind, ListaRefuerzo lista)
{
    static const std::vector<std::string> ninguna;
    const DatosRefuerzo* d = DatosDe(kind);
    if (!d)
        return ninguna;
    return lista == ListaRefuerzo::Num ? d->lstNum : d->lstDiam;
}

void EligeFilaRefuerzo(Control& c, ListaRefuerzo lista, int fila) { Refuerzo(c).Elige(c, lista, fila); }

int FilaElegidaRefuerzo(const Control& c, ListaRefuerzo lista) { return Refuerzo(c).Elegida(lista); }

void EscribeSeparacion(Control& c, std::string_view texto)
{
    RefuerzoBehavior& b = Refuerzo(c);
    if (!b.datos().txtSep)
        throw PropertyError(438, c.Label() + " has no spacing box");
    b.Escribe(c, "Separacion", texto, true);
}

void EscribeNumBarras(Control& c, std::string_view texto)
{
    RefuerzoBehavior& b = Refuerzo(c);
    if (!b.datos().txtNum)
        throw PropertyError(438, c.Label() + " has no box for the number of bars");
    b.Escribe(c, "NumBarras", texto, true);
}

}  // namespace vardena
