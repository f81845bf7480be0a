#include "ground_masonry/MCerr.h"

#include "ground_masonry/Fabrica.h"

namespace vardena {

MCerr::MCerr(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    if (Control* b = Find("cmdDefRes"))
        b->onClick = [this](Control&) { Evento("cmdDefRes_Click", [this] { cmdDefRes_Click(); }); };
}

void MCerr::cmdDefRes_Click() { AbreFabrica(*this); }

std::string MCerr::ResumenCalculo() const
{
    return "the height and thickness (TxtCota(1), TxtCota(2)) were compared with 0 to no effect and the check step "
           "did nothing; every field keeps the value read";
}

}  // namespace vardena
