#include "ground_masonry/EnBlanco.h"

#include <optional>
#include <string>
#include <string_view>

#include "base/FileIo.h"
#include "base/Texto.h"
#include "reports/mRtf.h"
#include "works/Declaraciones.h"
#include "works/Registros.h"

namespace vardena {
namespace {

constexpr int kMsgMateriales = 1501;
constexpr int kMsgResultados = 1508;
// The label of each material list in the report.
constexpr int kMsgHormigon = 1534;
constexpr int kMsgAcero = 1535;
constexpr int kMsgControl = 1536;
constexpr int kMsgRecubrimiento = 1537;

}  // namespace

EnBlanco::EnBlanco(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla) {}

Informe EnBlanco::InformeLibre()
{
    Declaraciones& d = decl();
    Informe inf(d);
    inf.Linea("Cabe");
    inf.Linea("Tit1", Caption());
    inf.Linea("Tit2", At("txtTitulo").Text());
    inf.Linea("Tit3", d.Msg(kMsgMateriales));
    const std::pair<const char*, int> listas[] = {
        {"CmbHorm", kMsgHormigon}, {"CmbAcero", kMsgAcero}, {"cmbControl", kMsgControl}, {"CmbRecub", kMsgRecubrimiento}};
    for (const auto& [lista, mensaje] : listas)
        if (const Control* c = Find(lista))
            inf.Linea("Tex1", d.Msg(mensaje), c->SelectedText());
    inf.Linea("Tit3", d.Msg(kMsgResultados));
    // The text keeps its own line breaks: each line of it is a line of the report.
    std::string_view texto = At("TxtRes1").Text();
    while (!texto.empty()) {
        const size_t fin = texto.find('\n');
        std::string_view linea = texto.substr(0, fin);
        if (!linea.empty() && linea.back() == '\r')
            linea.remove_suffix(1);
        inf.Linea("Tex1", linea);
        texto = fin == std::string_view::npos ? std::string_view() : texto.substr(fin + 1);
    }
    inf.Linea("FinD");
    return inf;
}

void EnBlanco::TrasGuardado()
{
    // The record was just written under the work's lock, and the title is a legal name.
    std::optional<WorkLock> cerrojo;
    try {
        cerrojo = LockForSave(decl().CarpetaObra);
    } catch (const WorkBusy&) {
        return;
    }
    const std::string ruta = RutaResultados(*this, At("txtTitulo").Text());
    InformeLibre().Guarda(ExistingNoCase(ruta).value_or(ruta));
    CargaResultados(*this, At("txtTitulo").Text());
}

}  // namespace vardena
