#pragma once
// A large work of version 3.01 for benchmarks and stop tests: DATOS.~CE, DESCR.~CE and `records`
// positional records of a mix of small and large forms, each with its results file.

#include <string>

namespace vardena::muestras {

// Writes the work into `folder`, which must exist and be empty.
void EscribeObraGrande(const std::string& folder, int records);

}  // namespace vardena::muestras
