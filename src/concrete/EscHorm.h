#pragma once
// The concrete stair or ramp slab (frmEscHorm): a one-flight stair, one with a landing, a
// two-flight stair or a ramp, each with its lengths, bars and end conditions. Its own logic:
// what each kind shows, the landing's width of a two-flight stair, the slab's depth beside the
// sketch, the lengths in two decimals and the loads in the work's units; its check step takes
// one flag, set.

#include <optional>

#include "frame/ElementForm.h"

namespace vardena {

// The kinds of slab, the indices of OptLosa.
enum class TipoLosa { Tramo = 0, Descanso = 1, DosTramos = 2, Rampa = 3 };

class EscHorm : public ElementForm {
public:
    EscHorm(Declaraciones& d, const TablaForm& tabla);

    std::optional<TipoLosa> Tipo() const;
    // The flag the check step was last given: true (-1) once CmdCalcular has run it, 0 before.
    int16_t BanderaComprobacion() const { return bandera_; }

    // PictH1, PictHD, PictH2, PictRampa: the slab of each kind in elevation, its lengths and
    // how each end is held.
    std::optional<Croquis> CroquisDe(const Control& picture) const override;

protected:
    void CargaPropia() override;
    void Comprueba(const DatosComprobacion& datos) override;

private:
    void OptLosa_Click(int index);
    void List1_Lee();
    void PresentaTipo();
    void PoneCanto();

    int16_t bandera_ = 0;
};

}  // namespace vardena
