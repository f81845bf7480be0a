#pragma once
// The slab catalogue editor (frmForjUnid2, "Fichas Forjados"): the systems of the catalogue of
// one kind of slab in a list, the chosen system's geometry and its section rows in a table.
// Systems are added, edited, saved and removed in the file; a row is chosen and handed back to
// the one-way slab form. It keeps no record.

#include <optional>
#include <span>
#include <string>

#include "base/Form.h"
#include "concrete/CatalogoForjados.h"
#include "frame/Campos.h"

namespace vardena {

// The rows the table shows at once; a system has at most this many.
inline constexpr int kFilasFicha = 16;

// What UCBelegir hands back: the kind, the system with its number and the chosen row with its.
struct EleccionFicha {
    int tipo = 0;
    SistemaForjado sistema;
    int numForjado = 0;  // from 1
    FilaFicha fila;
    int numFila = 0;     // from 1
};

// The groups of the editor's window: the kind and the list of systems, the system's geometry,
// the table of rows, the buttons.
std::span<const GrupoDef> GruposForjUnid2();

class FrmForjUnid2 : public Form {
public:
    explicit FrmForjUnid2(Declaraciones& d);

    void Form_Load() override;
    void Form_Unload() override { descargado_ = true; }

    void OpTipoFor_Click(int index);
    void ListFor_Click();
    void UCBmas_Click();
    void UCBmenos_Click();
    void UCBforjMas_Click();
    void UCBforjMenos_Click();
    void UCBguardar_Click();
    void UCBcancela_Click();
    void UCBelegir_Click();

    void LeeListaForjados();
    void NuevoForjado();
    void LeeForjado(int n);
    bool GuardaForjado(int n);

    // The catalogue file of the chosen kind.
    const std::string& Archivo() const { return archivo_; }
    const std::optional<EleccionFicha>& Eleccion() const { return eleccion_; }
    bool Descargado() const { return descargado_; }
    // The panel as a system: every number must read as one, else nothing after a box.
    std::optional<SistemaForjado> SistemaDelPanel();

private:
    int Tipo() const;
    int Filas() const;
    // Shows the rows 0 to n - 1 of the table and hides the others.
    void MuestraFilas(int n);
    void PonSistema(const SistemaForjado& s);
    void Evento(std::string_view origen, const std::function<void()>& rutina);

    std::string archivo_;
    CatalogoLeido catalogo_;
    std::optional<EleccionFicha> eleccion_;
    bool descargado_ = false;
};

}  // namespace vardena
