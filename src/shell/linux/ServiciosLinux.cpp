#include "shell/linux/ServiciosLinux.h"

#include "shell/linux/Abridor.h"
#include "shell/linux/InfoSistemaLinux.h"
#include "shell/linux/Papelera.h"
#include "shell/linux/cQueryReg.h"

namespace vardena {

void InstalaServiciosLinux(Platform& p)
{
    p.recycleBin = std::make_unique<PapeleraLinux>();
    p.shell = std::make_unique<AbridorLinux>();
    p.system = std::make_unique<SistemaLinux>();
    p.registry = std::make_unique<cQueryRegLinux>();
}

}  // namespace vardena
