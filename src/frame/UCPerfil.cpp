#include "frame/UCPerfil.h"

#include <algorithm>
#include <array>
#include <memory>

#include "frame/CatalogoPerfiles.h"
#include "frame/UCComun.h"
#include "works/Registros.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Subrut.h"
#include "base/Ui.h"

namespace vardena {
namespace {

// The properties in slot order.
constexpr std::array<std::string_view, 15> kPropiedades = {
    "Num",          "Perfil", "Tamano", "Canto", "Ancho",      "EspAla",         "EspAlma",     "VerDatos",
    "VerControles", "Area",   "Ix",     "Iy",    "ColorFondo", "ColorFondoEdit", "IndicePerfil"};

// The boxes a user types in, and those reformatted when they lose the focus.
constexpr std::array<std::string_view, 5> kCajas = {"Ancho", "Canto", "Area", "Ix", "Iy"};
constexpr std::array<std::string_view, 3> kCajasResultado = {"Area", "Ix", "Iy"};

float Numero(const Control& c, std::string_view prop) { return static_cast<float>(ValComaCopy(c.RawGet(prop))); }

class PerfilBehavior : public CompositeBehavior {
public:
    std::string Get(const Control& c, std::string_view prop) const override
    {
        const std::string_view p = PropiedadCompuesta(c, kPropiedades, prop);
        if (p == "IndicePerfil")
            return std::to_string(IndiceFamiliaPerfil(c.RawGet("Perfil")));
        if (p == "VerDatos")
            return ValorOOmision(c, p, "False");
        if (p == "VerControles")
            return ValorOOmision(c, p, "True");
        if (p == "ColorFondo")
            return ValorOOmision(c, p, kColorBoton);
        if (p == "ColorFondoEdit")
            return ValorOOmision(c, p, kColorVentana);
        return c.RawGet(p);
    }

    void Set(Control& c, std::string_view prop, std::string_view value) override
    {
        const std::string_view p = PropiedadCompuesta(c, kPropiedades, prop);
        if (p == "IndicePerfil")
            throw PropertyError(383, c.Label() + ".IndicePerfil is read-only");
        if (p == "VerDatos" || p == "VerControles") {
            c.RawSet(p, TextoBandera(LeeBandera(c, p, value)));
        } else if (p == "ColorFondo" || p == "ColorFondoEdit") {
            c.RawSet(p, value);
        } else if (p == "Perfil") {
            c.RawSet(p, value);
            Seleccion(c);
        } else if (p == "Num" || p == "Tamano" || p == "Ancho") {
            c.RawSet(p, value);
            if (p == "Tamano")
                fila_ = FilaDeTamano(c);
            Calcula(c);
        } else if (EsSeccionUsuario(c.RawGet("Perfil"))) {
            // Canto, EspAla, EspAlma, Area, Ix, Iy: the user's own section keeps what is
            // typed; a catalogue section ignores it.
            c.RawSet(p, value);
            Calcula(c);
        }
    }

    // The family's sizes go to LstTam and the current size is selected; the user's section
    // has no sizes and raises Change. Returns whether it raised Change.
    bool Seleccion(Control& c)
    {
        if (ocupado_)
            return false;
        GuardaOcupado guarda(ocupado_);
        tamanos_.clear();
        fila_ = -1;
        const int familia = IndiceFamiliaPerfil(c.RawGet("Perfil"));
        if (familia == kFamiliaUsuario) {
            Calcula(c);
            c.RaiseChange();
            return true;
        }
        for (int t : TamanosFamilia(familia))
            tamanos_.push_back(std::to_string(t));
        fila_ = FilaDeTamano(c);
        Calcula(c);
        return false;
    }

    VistaPerfil Vista() const { return {tamanos_, fila_, lbArea_, lbIx_, lbIy_}; }

private:
    int FilaDeTamano(const Control& c) const
    {
        const double tamano = ValComaCopy(c.RawGet("Tamano"));
        for (size_t i = 0; i < tamanos_.size(); ++i)
            if (ValComaCopy(tamanos_[i]) == tamano)
                return static_cast<int>(i);
        return -1;
    }

    static void CompruebaNum(const Control& c, double num)
    {
        if (num != 1 && num != 2)
            Halt(c.Label() + ": a section selector holds 1 or 2 sections, not \"" + c.RawGet("Num") + "\"");
    }

    void Etiquetas(float area, float ix, float iy)
    {
        lbArea_ = Formato00(area);
        lbIx_ = Formato00(ix);
        lbIy_ = Formato00(iy);
    }

    // Recomputes the section. A size the family does not offer, or a family that is none of
    // the list, leaves the values shown as they stand.
    void Calcula(Control& c)
    {
        const int familia = IndiceFamiliaPerfil(c.RawGet("Perfil"));
        if (familia < 0)
            return;
        const double num = ValComaCopy(c.RawGet("Num"));
        if (familia == kFamiliaUsuario) {
            CompruebaNum(c, num);
            Etiquetas(Numero(c, "Area"), Numero(c, "Ix"), Numero(c, "Iy"));
            return;
        }
        if (fila_ < 0)
            return;
        const FilaPerfil* f = BuscaPerfil(NombreFamilia(familia), std::stoi(tamanos_[static_cast<size_t>(fila_)]));
        if (!f)
            return;
        CompruebaNum(c, num);
        float area = f->area;
        float ix = f->ix;
        float iy = f->iy;
        float ancho = f->ancho;
        if (num == 2) {
            // Two sections side by side: the typed distance between their outer edges is at
            // least twice the width; each centroid stands at half of it less the centroid
            // distance from the outer flange edge.
            ancho = std::max(Numero(c, "Ancho"), 2 * f->ancho);
            const double brazo = ancho / 2.0 - f->distancia;
            area = 2 * f->area;
            ix = 2 * f->ix;
            iy = static_cast<float>(2.0 * (f->iy + static_cast<double>(f->area) * brazo * brazo));
        }
        Etiquetas(area, ix, iy);
        c.RawSet("Area", lbArea_);
        c.RawSet("Ix", lbIx_);
        c.RawSet("Iy", lbIy_);
        c.RawSet("Ancho", Formato0_0(ancho));
        c.RawSet("Canto", Formato0_0(f->canto));
        c.RawSet("EspAla", Formato00(f->espAla));
        c.RawSet("EspAlma", Formato00(f->espAlma));
    }

    bool ocupado_ = false;
    std::vector<std::string> tamanos_;
    int fila_ = -1;
    std::string lbArea_, lbIx_, lbIy_;
};

PerfilBehavior& Perfil(const Control& c)
{
    auto* b = dynamic_cast<PerfilBehavior*>(c.behavior());
    if (!b)
        throw PropertyError(438, c.Label() + " is not a section selector");
    return *b;
}

void FilaValida(const Control& c, int fila, size_t filas)
{
    if (fila < 0 || static_cast<size_t>(fila) >= filas)
        throw PropertyError(380, c.Label() + ": row " + std::to_string(fila) + " is outside its list of " +
                                     std::to_string(filas));
}

}  // namespace

const std::vector<std::string>& FamiliasPerfil()
{
    static const std::vector<std::string> familias = [] {
        std::vector<std::string> out;
        for (int i = 0; i <= kFamiliaUsuario; ++i)
            out.emplace_back(NombreFamilia(i));
        return out;
    }();
    return familias;
}

int IndiceFamiliaPerfil(std::string_view perfil)
{
    if (EsPerfilDeUsuario(perfil))
        return kFamiliaUsuario;
    const std::vector<std::string>& familias = FamiliasPerfil();
    for (size_t i = 0; i < familias.size(); ++i)
        if (SameNameNoCase(familias[i], perfil))
            return static_cast<int>(i);
    return -1;
}

bool EsSeccionUsuario(std::string_view perfil) { return IndiceFamiliaPerfil(perfil) == kFamiliaUsuario; }

void InstalaPerfil(Control& c)
{
    auto b = std::make_shared<PerfilBehavior>();
    c.SetBehavior(b);
    b->Seleccion(c);
}

VistaPerfil VistaDePerfil(const Control& c) { return Perfil(c).Vista(); }

void PerfilEligeFamilia(Control& c, int fila)
{
    PerfilBehavior& b = Perfil(c);
    FilaValida(c, fila, FamiliasPerfil().size());
    c.RawSet("Perfil", FamiliasPerfil()[static_cast<size_t>(fila)]);
    if (!b.Seleccion(c))
        c.RaiseChange();
}

void PerfilEligeTamano(Control& c, int fila)
{
    const VistaPerfil vista = VistaDePerfil(c);
    FilaValida(c, fila, vista.tamanos.size());
    c.Set("Tamano", vista.tamanos[static_cast<size_t>(fila)]);
    c.RaiseChange();
}

void PerfilCambiaNum(Control& c)
{
    Perfil(c);
    c.Set("Num", c.RawGet("Num") == "1" ? "2" : "1");
    c.RaiseChange();
}

void PerfilEscribeDato(Control& c, std::string_view prop, std::string_view texto)
{
    Perfil(c);
    c.Set(PropiedadCompuesta(c, kCajas, prop), texto);
    c.RaiseChange();
}

void PerfilDejaDato(Control& c, std::string_view prop)
{
    Perfil(c);
    const std::string_view p = PropiedadCompuesta(c, kCajasResultado, prop);
    if (EsSeccionUsuario(c.RawGet("Perfil")))
        c.Set(p, Formato00(Numero(c, p)));
}

}  // namespace vardena
