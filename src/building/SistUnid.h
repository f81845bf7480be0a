#pragma once
// The unit systems' information dialog: the system of the work, its line of units, and the
// fixed table of equivalences between the two systems.

#include <array>
#include <string>
#include <vector>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;

// A row of the equivalences: quantity, S.T. unit, S.I. unit, ST-SI and SI-ST factors, as shown.
using FilaEquivalencia = std::array<const char*, 5>;
const std::vector<FilaEquivalencia>& Equivalencias();
// The column headings of the table.
const std::array<const char*, 5>& CabecerasEquivalencias();

class SistUnid : public Form {
public:
    explicit SistUnid(Declaraciones& d);
    void Form_Load() override;
    void Aceptar_Click() { descargado_ = true; }
    bool Descargado() const { return descargado_; }

private:
    bool descargado_ = false;
};

}  // namespace vardena
