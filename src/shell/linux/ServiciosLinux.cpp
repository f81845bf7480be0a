#include "shell/linux/ServiciosLinux.h"

#include "shell/linux/Abridor.h"
#include "shell/linux/InfoSistemaLinux.h"
#include "shell/linux/Papelera.h"

namespace vardena {

void InstalaServiciosLinux(Platform& p)
{
    p.recycleBin = std::make_unique<PapeleraLinux>();
    p.shell = std::make_unique<AbridorLinux>();
    p.system = std::make_unique<SistemaLinux>();
}

}  // namespace vardena
