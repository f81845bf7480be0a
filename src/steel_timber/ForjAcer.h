#pragma once
// The steel floor and purlins (frmForjAcer): before its check it gathers what the check takes,
// the loads of its level, its span and section, the design strength of its steel and the load
// factors of its load case. The check itself is the no-op of every element; what it gathers is
// kept for it and changes no field.

#include <string>

#include "frame/ElementForm.h"
#include "steel_timber/BotonesAyuda.h"

namespace vardena {

// The load factors of a load case (row of CmbCaso): 1.35 on the permanent loads; on the
// imposed ones 1.5 for the cases I (rows 0 to 2), 1.33 for the others.
double FactorVariable(int caso);

struct DatosForjadoAcero {
    std::string planta;      // the level's name
    double g = 0, q = 0;     // permanent (with self-weight) and imposed (with partitions), t/m2
    double luz = 0;          // TxCota(1), m
    double area = 0, ix = 0, iy = 0;  // of the section, cm2 and cm4
    double canto = 0;        // m
    double ancho = 0;        // cm
    double fyd = 0;          // fy / 1.05, t/m2
    double gammaG = 0, gammaQ = 0;
};

class ForjAcer : public ConBotonesAyuda<ElementForm> {
public:
    ForjAcer(Declaraciones& d, const TablaForm& tabla) : ConBotonesAyuda<ElementForm>(d, tabla) {}

    // What the last press of CmdCalcular gathered.
    const DatosForjadoAcero& Datos() const { return datos_; }

protected:
    DatosComprobacion LeeDatosComprobacion() override;

private:
    DatosForjadoAcero datos_;
};

}  // namespace vardena
