#pragma once
// The enclosure panel under horizontal load (frmMCerr). Its check step is a no-op; the window
// opens the masonry properties dialog, which fills the two flexural strengths and the factor.

#include <string>

#include "frame/ElementForm.h"

namespace vardena {

class MCerr : public ElementForm {
public:
    MCerr(Declaraciones& d, const TablaForm& tabla);

    void cmdDefRes_Click();

    std::string ResumenCalculo() const override;
};

}  // namespace vardena
