#pragma once
// The beam of a regular portal frame (frmVigRegHorm): the concrete beam of frmVigHorm placed in
// a frame of equal bays. The user gives the bays of the frame and of the slab, their lengths,
// and picks in the plan which beam of the frame is checked; the beam's own span, cantilevers,
// continuity and slab spans follow from that choice. Its stretch rule runs when a length is
// left, not at each key, and the lengths take only number keys.

#include "concrete/VigHorm.h"

namespace vardena {

// The nine beams that optViga offers, by their place in the plan: optViga(3 * fila + columna).
// The column is the beam's bay along the frame: 0 the end bay, 1 the bay next to it, 2 an
// inner bay; the row is the frame's place across the slab: 0 the edge frame, 1 the frame next
// to it, 2 an inner frame. Mirror places are the same beam, so they are offered once.
struct EsquemaPortico {
    int vanos = 4;          // bays of the frame: 4 stands for ">3" (cmbTrPort row 0)
    int vanosForjado = 3;   // bays of the slab: 3 stands for ">2" (cmbTrForj row 0)
};
EsquemaPortico EsquemaDe(int filaPortico, int filaForjado);
// Whether the frame of that scheme has the beam that optViga(opcion) stands for.
bool ExisteViga(const EsquemaPortico& e, int opcion);

class VigRegHorm : public VigHorm {
public:
    VigRegHorm(Declaraciones& d, const TablaForm& tabla);

    // The chosen optViga, -1 for none.
    int VigaElegida() const;
    EsquemaPortico Esquema() const;

    // Picture2 is the plan of the frame with its nine beams; PctViga is the beam as in
    // frmVigHorm.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;

private:
    void AjustaEsquema(bool eligeOtra);
    void AplicaViga();
    void CotasViga();
    void CotasPortico();
    void CmbPlanta_Click();
    void TxtPil_LostFocus(int index);
    // Writes a length into a field when it differs from what the field holds.
    void PonLongitud(const char* campo, int index, double valor);

    bool aplicando_ = false;  // AplicaViga's own writes do not start it again
};

}  // namespace vardena
