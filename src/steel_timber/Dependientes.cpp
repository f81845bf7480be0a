#include "steel_timber/Dependientes.h"

namespace vardena {
namespace {

// The base plate: the stiffeners in X and in Y, their thickness and their two dimensions.
constexpr std::string_view kCartelasX[] = {"TxEspCartX", "TxCotaCartX"};
constexpr std::string_view kCartelasY[] = {"TxEspCartY", "TxCotaCartY"};
constexpr Dependencia kBasMet[] = {{"ChX", -1, kCartelasX}, {"ChY", -1, kCartelasY}};

// The stair: each kind its lengths and the conditions of its ends.
constexpr std::string_view kUnTramo[] = {"FrUnTramo", "TxCotaH1", "OptH1izq", "OptH1der"};
constexpr std::string_view kDescanso[] = {"FrDescanso", "TxCotaDesc", "OptDApoIzq", "OptDApoDer"};
constexpr std::string_view kDosTramos[] = {"FrDosTramos", "TxCotaH2", "OptH2izqS", "OptH2izqI", "OptH2der"};
constexpr std::string_view kRampa[] = {"FrRampa", "TxCotaRampa", "OptRampaApoIzq", "OptRampaApoDer"};
constexpr Dependencia kEscMet[] = {
    {"OptLosa", 0, kUnTramo}, {"OptLosa", 1, kDescanso}, {"OptLosa", 2, kDosTramos}, {"OptLosa", 3, kRampa}};

bool Elegida(const Control& c)
{
    return c.kind() == Kind::OptionButton ? c.OptionValue() : c.CheckValue() == 1;
}

}  // namespace

std::span<const Dependencia> DependenciasDe(std::string_view form)
{
    if (form == "frmBasMet")
        return kBasMet;
    if (form == "frmEscMet")
        return kEscMet;
    return {};
}

FormaDependientes::FormaDependientes(Declaraciones& d, const TablaForm& tabla) : ConBotonesAyuda<ElementForm>(d, tabla)
{
    for (const Dependencia& dep : DependenciasDe(Name()))
        if (Control* c = Find(dep.control, dep.index))
            c->onClick = [this](Control&) { Presenta(); };
    // A record read shows the choices it stores.
    Control& lista = At("List1");
    auto leida = lista.onClick;
    lista.onClick = [this, leida](Control& c) {
        if (leida)
            leida(c);
        Presenta();
    };
}

void FormaDependientes::Presenta()
{
    // A stair with no kind chosen shows every kind, so that nothing stored is out of sight.
    bool alguna = false;
    for (const Dependencia& dep : DependenciasDe(Name()))
        if (const Control* c = Find(dep.control, dep.index); c && dep.index >= 0 && Elegida(*c))
            alguna = true;
    for (const Dependencia& dep : DependenciasDe(Name())) {
        const Control* c = Find(dep.control, dep.index);
        const bool muestra = c && (Elegida(*c) || (dep.index >= 0 && !alguna));
        for (std::string_view campo : dep.campos)
            for (Control* m : Members(campo))
                m->SetVisible(muestra);
    }
}

}  // namespace vardena
