#include "shell/LngPack.h"

#include "works/Form.h"

namespace vardena {

void TraduceForm(Form&) {}

}  // namespace vardena
