#include "frame/Refuerzos.h"

#include "works/Form.h"

namespace vardena {

void InstalaControlCompuesto(Control&) {}

}  // namespace vardena
