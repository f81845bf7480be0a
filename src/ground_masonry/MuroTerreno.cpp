#include "ground_masonry/MuroTerreno.h"

#include <algorithm>
#include <cstddef>

#include "base/Texto.h"
#include "frame/DatosForms.h"
#include "ground_masonry/Rellenos.h"
#include "ground_masonry/Suelo.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

// The rows of the lists the handlers read.
constexpr int kDeltaFilaBajo = 1, kDeltaFilaAlto = 2;
constexpr int kMuroFabrica = 1;
// The head loads, N and M.
constexpr int kCargasCabeza[] = {0, 1};
// The fields of a masonry retaining wall, and of a concrete one.
constexpr std::string_view kCamposFabrica[] = {"ChkMortero", "TxtDensFabr"};
constexpr int kResistenciaFabrica = 5;

void Habilita(const Form& f, std::string_view nombre, bool si)
{
    for (Control* c : f.Members(nombre))
        c->SetEnabled(si);
    if (Control* c = f.Find(nombre))
        c->SetEnabled(si);
}

}  // namespace

int SotanosDeMuro(int fila, int sotanosGenerales)
{
    const int n = fila <= 0 ? sotanosGenerales : fila;
    return std::clamp(n, 1, kMaxSotanosMuro);
}

MuroTerreno::MuroTerreno(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla)
{
    Cambio("CmbSot", "CmbSot_Click", &MuroTerreno::CmbSot_Click);
    Cambio("CmbTerr", "CmbTerr_Click", &MuroTerreno::CmbTerr_Click);
    Cambio("CmbTerreno", "CmbTerreno_Click", &MuroTerreno::CmbTerreno_Click);
    Cambio("CmbTalud", "CmbTalud_Click", &MuroTerreno::CmbTalud_Click);
    Cambio("cmbTipo", "cmbTipo_Click", &MuroTerreno::cmbTipo_Click);
    Cambio("Check1", "Check1_Click", &MuroTerreno::Check1_Click);
    Cambio("CheckFM", "CheckFM_Click", &MuroTerreno::CheckFM_Click);
    for (Control* o : Members("OptDelta"))
        o->onClick = [this](Control&) { Evento("OptDelta_Click", [this] { OptDelta_Click(); }); };
    if (Control* a = Find("TxtAngulo"))
        a->onChange = [this](Control&) { Evento("TxtAngulo_Change", [this] { TxtAngulo_Change(); }); };
    At("List1").onClick = [this](Control&) { List1_Lee(); };
}

void MuroTerreno::Cambio(std::string_view control, std::string_view origen, void (MuroTerreno::*rutina)())
{
    Control* c = Find(control);
    if (!c)
        return;
    c->onClick = [this, origen, rutina](Control&) { Evento(origen, [this, rutina] { (this->*rutina)(); }); };
}

void MuroTerreno::List1_Lee()
{
    List1_Click();
    Presenta();
}

void MuroTerreno::CargaPropia() { Presenta(); }

int MuroTerreno::Sotanos() const
{
    const Control* sot = Find("CmbSot");
    if (!sot)
        return 1;
    return SotanosDeMuro(sot->ListIndex(), decl().NPlantasBajo);
}

void MuroTerreno::Presenta()
{
    PresentaSotanos();
    if (Control* c = Find("CmbTerreno"))
        for (const char* campo : {"Text3", "Text4", "Text5", "Text2"})
            Habilita(*this, campo, c->ListIndex() <= 0);
    if (Find("cmbTipo")) {
        const bool fabrica = At("cmbTipo").ListIndex() == kMuroFabrica;
        for (std::string_view campo : kCamposFabrica)
            Habilita(*this, campo, fabrica);
        At("TxtQ", kResistenciaFabrica).SetEnabled(fabrica);
        Habilita(*this, "UCArmMuro", !fabrica);
    }
    if (!Members("OptDelta").empty())
        At("Text1").SetEnabled(ParteDelta() == 0);
    if (Control* c = Find("Check1"))
        At("TxtQ", kTensionMuro).SetEnabled(c->CheckValue() == 0);
    if (Control* c = Find("CheckFM"))
        for (int i : kCargasCabeza)
            At("TxtQ", i).SetEnabled(c->CheckValue() != 0);
}

void MuroTerreno::PresentaSotanos()
{
    if (!Find("CmbSot"))
        return;
    const int n = Sotanos();
    for (Control* c : Members("TxCotaMuro"))
        c->SetVisible(c->Index() / kCotasPorSotano < n);
    for (Control* c : Members("UCArmMuro"))
        c->SetVisible(c->Index() / kArmadurasPorSotano < n);
    // The anchors, one per storey.
    for (int k = 0; k < kMaxSotanosMuro; ++k) {
        if (Control* q = Find("TxtQ", kPrimeraTensionAnclaje + k); q && Find("txtAng", k)) {
            q->SetVisible(k < n);
            At("txtAng", k).SetVisible(k < n);
            if (Control* s = Find("TxtSep", k))
                s->SetVisible(k < n);
        }
    }
}

void MuroTerreno::CmbSot_Click()
{
    const Declaraciones& d = decl();
    // The basements follow the floors in the storey table, from the highest down.
    for (int k = 0; k < std::min<int>(d.NPlantasBajo, kMaxSotanosMuro); ++k) {
        const size_t fila = static_cast<size_t>(d.NPlantasSobre + k);
        if (fila >= d.GenCot.size() || d.GenCot[fila] <= 0)
            continue;
        At("TxCotaMuro", k * kCotasPorSotano + 1).SetText(Formato0(d.GenCot[fila] * 100.0f));
    }
    PresentaSotanos();
}

void MuroTerreno::CmbTerr_Click()
{
    const int fila = At("CmbTerr").ListIndex();
    if (fila == kRellenoIdemTerreno && Find("Text3")) {
        At("TxtDensidad").SetText(At("Text3").Text());
        At("TxtAngulo").SetText(At("Text2").Text());
        if (Control* c = Find("txtCohesion"))
            c->SetText(At("Text4").Text());
        return;
    }
    AplicaRelleno(*this, fila);
}

void MuroTerreno::CmbTerreno_Click()
{
    const int fila = At("CmbTerreno").ListIndex();
    if (fila > 0 && static_cast<size_t>(fila) < std::size(kSuelos)) {
        const SueloCatalogo& s = kSuelos[fila];
        At("Text3").SetText(s.densidad);
        At("Text4").SetText(s.cohesion);
        At("Text5").SetText(s.valor);
        At("Text2").SetText(s.rozamiento);
    }
    for (const char* campo : {"Text3", "Text4", "Text5", "Text2"})
        At(campo).SetEnabled(fila <= 0);
    // A backfill of the same ground follows it.
    if (Control* relleno = Find("CmbTerr"); relleno && relleno->ListIndex() == kRellenoIdemTerreno)
        CmbTerr_Click();
}

void MuroTerreno::CmbTalud_Click()
{
    AplicaTalud(*this, At("CmbTalud").ListIndex(), kCohesionMuroAnclado, decl().Unidades);
}

void MuroTerreno::cmbTipo_Click() { Presenta(); }

double MuroTerreno::ParteDelta() const
{
    if (const Control* o = Find("OptDelta", kDeltaFilaBajo); o && o->OptionValue())
        return kDeltaBajo;
    if (const Control* a = Find("OptDelta", kDeltaFilaAlto); a && a->OptionValue())
        return kDeltaAlto;
    return 0;
}

void MuroTerreno::OptDelta_Click()
{
    At("Text1").SetEnabled(ParteDelta() == 0);
    TxtAngulo_Change();
}

void MuroTerreno::TxtAngulo_Change()
{
    const double parte = ParteDelta();
    if (parte == 0)
        return;
    At("Text1").SetText(Formato0(ValComaCopy(At("TxtAngulo").Text()) * parte));
}

void MuroTerreno::Check1_Click()
{
    const bool general = At("Check1").CheckValue() != 0;
    if (general)
        DefaultsGenerales(*this);
    At("TxtQ", kTensionMuro).SetEnabled(!general);
}

void MuroTerreno::CheckFM_Click()
{
    const bool forjado = At("CheckFM").CheckValue() != 0;
    for (int i : kCargasCabeza)
        At("TxtQ", i).SetEnabled(forjado);
}

std::string MuroTerreno::ResumenCalculo() const
{
    return "the minimums of TxCotaMuro (10 cm), TxCotaAncho (40 cm) and TxCotaAlto (30 cm) were compared to no "
           "effect and the check step did nothing; every field keeps the value read";
}

}  // namespace vardena
