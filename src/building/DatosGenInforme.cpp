#include "building/DatosGen.h"

namespace vardena {

// The general-data report is written by the report writer.
void DatosGen::ListaRtf() {}

}  // namespace vardena
