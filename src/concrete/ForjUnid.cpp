#include "concrete/ForjUnid.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/Texto.h"
#include "building/Unidades.h"
#include "concrete/ForjUnid2.h"
#include "frame/Formularios.h"
#include "works/Declaraciones.h"

namespace vardena {
namespace {

constexpr VarianteForjado kUnidireccional{true, "Combo1"};
constexpr VarianteForjado kInSitu{false, "cmbPart"};

// The stretch positions of OpTramo: whether a span adjoins at the left and at the right
// (PctCotaTrAdy(0), (1)), and the continuity at each end (ChVigIzq, ChVigDer).
struct PosicionTramo {
    bool adyIzq, adyDer;
    bool vigIzq, vigDer;
};
constexpr PosicionTramo kPosiciones[] = {
    {false, false, false, false},  // 0 isolated
    {false, true, false, true},    // 1 end stretch, the run continues at the right
    {true, false, true, false},    // 2 end stretch, the run continues at the left
    {true, true, true, true},      // 3 inner stretch
    {false, false, true, false},   // 4 isolated with a cantilever at the left
    {false, false, false, true},   // 5 isolated with a cantilever at the right
};

double Numero(const Control& c) { return ValComaCopy(c.Text()); }

}  // namespace

int ResistenciaForjado(int listIndex, float genFckHorm)
{
    if (listIndex <= 0)
        return static_cast<int>(std::lround(genFckHorm / 10));
    return 250 + 50 * (std::min(listIndex, 6) - 1);
}

const VarianteForjado& ForjUnid::VarianteDe(std::string_view nombre)
{
    return nombre == "frmForjSitu" ? kInSitu : kUnidireccional;
}

ForjUnid::ForjUnid(Declaraciones& d, const TablaForm& tabla) : ElementForm(d, tabla), variante_(VarianteDe(tabla.nombre))
{
    At("CmbHorm").onClick = [this](Control&) { Evento("CmbHorm_Click", [&] { CmbHorm_Click(); }); };
    At("CmbPlanta").onClick = [this](Control&) { Evento("CmbPlanta_Click", [&] { CmbPlanta_Click(); }); };
    for (Control* c : Controls()) {
        const int i = c->Index();
        if (c->Name() == "OpTramo")
            c->onClick = [this, i](Control&) { Evento("OpTramo_Click", [&] { OpTramo_Click(i); }); };
        else if (c->Name() == "TxCota")
            c->onChange = [this, i](Control&) { Evento("TxCota_Change", [&] { TxCota_Change(i); }); };
        else if (c->Name() == "txtForj")
            c->onChange = [this, i](Control&) { Evento("txtForj_Change", [&] { txtForj_Change(i); }); };
    }
    if (variante_.conFicha) {
        At("cmbTipoFor").onClick = [this](Control&) { Evento("cmbTipoFor_Click", [&] { cmbTipoFor_Click(); }); };
        At("OpSiNo", 0).onClick = [this](Control&) { Evento("OpSiNo_Click", [&] { OpSiNo_Click(); }); };
        At("OpSiNo", 1).onClick = [this](Control&) { Evento("OpSiNo_Click", [&] { OpSiNo_Click(); }); };
        At("ListViguetas").onClick = [this](Control&) { Evento("ListViguetas_Click", [&] { ListViguetas_Click(); }); };
        At("UCFicha").onClick = [this](Control&) { Evento("UCFicha_Click", [&] { UCFicha_Click(); }); };
    }
}

void ForjUnid::CargaPropia()
{
    if (variante_.conFicha) {
        Control& lista = At("ListViguetas");
        lista.Clear();
        for (int i = 1; i <= 12; ++i)
            lista.AddItem("Vigueta v" + std::to_string(i));
        if (At("cmbTipoFor").ListIndex() < 0)
            At("cmbTipoFor").SetListIndex(0);
        // A new slab is given by its dimensions until a sheet is chosen.
        if (!At("OpSiNo", 0).OptionValue() && !At("OpSiNo", 1).OptionValue())
            At("OpSiNo", 1).SetOptionValue(true);
        cmbTipoFor_Click();
        OpSiNo_Click();
    }
    int tramo = Tramo();
    // A new stretch stands isolated until its position is chosen.
    if (tramo < 0) {
        tramo = 0;
        At("OpTramo", 0).SetOptionValue(true);
    }
    OpTramo_Click(tramo);
    luz_ = Numero(At("TxCota", 1));
    CmbHorm_Click();
    CmbPlanta_Click();
}

int ForjUnid::Tramo() const
{
    for (int i = 0; i < static_cast<int>(std::size(kPosiciones)); ++i)
        if (Control* c = Find("OpTramo", i); c && c->OptionValue())
            return i;
    return -1;
}

void ForjUnid::CmbHorm_Click()
{
    Declaraciones& d = decl();
    d.ResisForjado = static_cast<int16_t>(ResistenciaForjado(At("CmbHorm").ListIndex(), d.GenFckHorm));
}

void ForjUnid::cmbTipoFor_Click()
{
    const int tipo = std::max(0, At("cmbTipoFor").ListIndex());
    for (int i = 0; i < 3; ++i)
        if (Control* p = Find("PtFor", i))
            p->SetVisible(i == tipo);
    // A hollow-core slab has no joist: its width means nothing.
    At("txtForj", 0).SetVisible(tipo != 2);
}

void ForjUnid::OpSiNo_Click()
{
    const bool ficha = At("OpSiNo", 0).OptionValue();
    At("ListViguetas").SetVisible(ficha);
    At("cmbTipoFor").SetEnabled(!ficha);
    for (int i = 0; i <= 3; ++i)
        At("txtForj", i).SetEnabled(!ficha);
    if (Control* p = Find("PctFicha"))
        p->SetVisible(ficha);
    if (Control* p = Find("PctnoFicha"))
        p->SetVisible(!ficha);
}

void ForjUnid::ListViguetas_Click()
{
    const int i = At("ListViguetas").ListIndex();
    if (i >= 0)
        leeVigueta(i + 1);
}

std::string ForjUnid::RutaViguetas() const { return ConBarra(decl().DirPrograma) + std::string(kArchivoViguetas); }

FilaFicha ForjUnid::FilaDelPanel() const
{
    FilaFicha f;
    for (size_t i = 0; i < kColumnasFicha; ++i)
        f.valores[i] = ValComaCopy(At(kCamposFicha[i]).Text());
    f.nombre = At("TXFnombre").Text();
    return f;
}

void ForjUnid::PonFila(const FilaFicha& f)
{
    for (size_t i = 0; i < kColumnasFicha; ++i)
        At(kCamposFicha[i]).SetText(FormatoNum(f.valores[i]));
    At("TXFnombre").SetText(f.nombre);
}

bool ForjUnid::leeVigueta(int n)
{
    const std::optional<FilaFicha> f = LeeVigueta(decl(), RutaViguetas(), n);
    if (!f)
        return false;
    PonFila(*f);
    At("TxNumVig").SetText(std::to_string(n));
    return true;
}

bool ForjUnid::guardaVigueta(int n) { return GuardaVigueta(decl(), RutaViguetas(), n, FilaDelPanel()); }

void ForjUnid::OpTramo_Click(int index)
{
    if (index < 0 || index >= static_cast<int>(std::size(kPosiciones)))
        return;
    const PosicionTramo& p = kPosiciones[index];
    if (Control* c = Find("PctCotaTrAdy", 0))
        c->SetVisible(p.adyIzq);
    if (Control* c = Find("PctCotaTrAdy", 1))
        c->SetVisible(p.adyDer);
    At("TxTrAd", 0).SetVisible(p.adyIzq);
    At("TxTrAd", 1).SetVisible(p.adyDer);
    if (Control* l = Find("lblTramo"))
        l->SetCaption(decl().Msg(kMsgPrimerTramo + index));
    At("ChVigIzq").SetCheckValue(p.vigIzq ? 1 : 0);
    At("ChVigDer").SetCheckValue(p.vigDer ? 1 : 0);
}

void ForjUnid::TxCota_Change(int index)
{
    if (index != 0 && index != 1)
        return;
    const double valor = Numero(At("TxCota", index));
    if (!(valor > 0))
        return;
    const double voladizo = Numero(At("TxCota", 0)), luz = Numero(At("TxCota", 1));
    if (voladizo > luz)
        At("TxCota", 1 - index).SetText(FormatoNum(valor));
    luz_ = Numero(At("TxCota", 1));
}

void ForjUnid::txtForj_Change(int index)
{
    if (index == 2 || index == 3)
        At("txtForj", 4).SetText(FormatoNum(Numero(At("txtForj", 2)) + Numero(At("txtForj", 3))));
    else if (index == 1)
        CmbPlanta_Click();
}

void ForjUnid::CmbPlanta_Click()
{
    const Declaraciones& d = decl();
    const int k = At("CmbPlanta").ListIndex();
    if (k < 0)
        return;
    if (k > d.NPlantasSobre) {
        const size_t s = static_cast<size_t>(std::min(k - d.NPlantasSobre, static_cast<int>(kMaxBasements)));
        peso_ = d.GenPProS[s], perm_ = d.GenConcS[s], sobr_ = d.GenSobrS[s], tab_ = d.GenSTabS[s];
    } else {
        const size_t p = static_cast<size_t>(std::min(k, static_cast<int>(kMaxFloors)));
        peso_ = d.GenPProP[p], perm_ = d.GenConcP[p], sobr_ = d.GenSobrP[p], tab_ = d.GenSTabP[p];
    }
    g_ = peso_ + perm_;
    q_ = sobr_ + tab_;
    // Permanent and imposed loads of the level, kg/m2 on the panel.
    PoneQ(*this, 1, g_, 1000, 0);
    PoneQ(*this, 2, q_, 1000, 0);
}

void ForjUnid::UCFicha_Click()
{
    Declaraciones& d = decl();
    std::unique_ptr<Form> dialogo = CargaForm(d, "frmForjUnid2");
    auto* fichas = dynamic_cast<FrmForjUnid2*>(dialogo.get());
    if (!fichas || !d.MuestraDialogo)
        return;
    d.MuestraDialogo(*fichas);
    const std::optional<EleccionFicha>& e = fichas->Eleccion();
    if (!e)
        return;
    At("cmbTipoFor").SetListIndex(e->tipo);
    for (int i = 0; i < 4; ++i)
        At("txtForj", i).SetText(FormatoNum(e->sistema.geometria[static_cast<size_t>(i)]));
    PonFila(e->fila);
    At("TxNumFor").SetText(std::to_string(e->numForjado));
    At("TxNumVig").SetText(std::to_string(e->numFila));
}

std::optional<Croquis> ForjUnid::CroquisDe(const Control& picture) const
{
    auto valor = [&](const char* campo, int i) { return std::fabs(ValComaCopy(At(campo, i).Text())); };
    if (picture.Name() == "PctSeccion") {
        // The section across the joists, to scale: two joist spacings, 40 twips a centimetre.
        constexpr int k = 40, margen = 200;
        const double ancho = std::clamp(valor("txtForj", 0), 0.0, 60.0), eje = std::clamp(valor("txtForj", 1), 20.0, 150.0);
        const double bov = std::clamp(valor("txtForj", 2), 0.0, 60.0), capa = std::clamp(valor("txtForj", 3), 0.0, 20.0);
        const int tipo = variante_.conFicha ? std::max(0, At("cmbTipoFor").ListIndex()) : 0;
        Croquis c;
        c.ancho = static_cast<int>(2 * eje * k) + 2 * margen + 400;
        c.alto = static_cast<int>((bov + capa) * k) + 2 * margen + 300;
        const int y0 = margen, yCapa = y0 + static_cast<int>(capa * k), yFondo = yCapa + static_cast<int>(bov * k);
        const int x0 = margen, x1 = x0 + static_cast<int>(2 * eje * k);
        if (tipo == 2) {
            // The hollow-core slab: a solid plank with its round voids, the topping over it.
            c.Rectangulo(PapelCroquis::Hormigon, x0, y0, x1, yFondo);
            const int huecos = 6, paso = (x1 - x0) / huecos, r = std::max(20, static_cast<int>(bov * k * 0.33));
            for (int h = 0; h < huecos; ++h) {
                const int xc = x0 + paso / 2 + h * paso, yc = (yCapa + yFondo) / 2;
                c.Rectangulo(PapelCroquis::Hueco, xc - r, yc - r, xc + r, yc + r);
            }
            if (capa > 0)
                c.Linea(PapelCroquis::Cota, {x0, yCapa}, {x1, yCapa});
        } else {
            c.Rectangulo(PapelCroquis::Hormigon, x0, y0, x1, yCapa);
            for (int j = 0; j <= 2; ++j) {
                const int xe = x0 + static_cast<int>(j * eje * k), media = static_cast<int>(ancho * k / 2);
                c.Rectangulo(PapelCroquis::Hormigon, std::max(x0, xe - media), yCapa, std::min(x1, xe + media), yFondo);
                if (j < 2)
                    c.Rectangulo(PapelCroquis::Hueco, xe + media + 20, yCapa + 20, x0 + static_cast<int>((j + 1) * eje * k) - media - 20,
                                 yFondo - 20);
            }
        }
        c.Cota({x0, yFondo + 150}, {x0 + static_cast<int>(eje * k), yFondo + 150}, FormatoNum(eje));
        c.Cota({x1 + 80, y0}, {x1 + 80, yFondo}, FormatoNum(bov + capa));
        return c;
    }
    if (picture.Name() == "PctTramo") {
        // The stretch between its bearings, with the spans beside it where its position has them.
        const int tramo = std::max(0, Tramo());
        const PosicionTramo& p = kPosiciones[tramo];
        constexpr int yLosa = 450, canto = 120, ancho = 4400, x0 = 1100, x1 = 3300;
        Croquis c;
        c.ancho = ancho;
        c.alto = 1350;
        const bool volIzq = tramo == 4, volDer = tramo == 5;
        const int izq = p.adyIzq ? 150 : volIzq ? 550 : x0, der = p.adyDer ? ancho - 150 : volDer ? ancho - 550 : x1;
        c.Rectangulo(PapelCroquis::Hormigon, izq, yLosa - canto / 2, der, yLosa + canto / 2);
        for (int x : {x0, x1})
            c.Rectangulo(PapelCroquis::Hormigon, x - 80, yLosa + canto / 2, x + 80, yLosa + canto / 2 + 350);
        if (p.adyIzq)
            c.Rectangulo(PapelCroquis::Hormigon, 150, yLosa + canto / 2, 310, yLosa + canto / 2 + 350);
        if (p.adyDer)
            c.Rectangulo(PapelCroquis::Hormigon, ancho - 310, yLosa + canto / 2, ancho - 150, yLosa + canto / 2 + 350);
        const int yCota = yLosa + canto / 2 + 600;
        c.Cota({x0, yCota}, {x1, yCota}, "L=" + At("TxCota", 1).Text());
        if (p.adyIzq)
            c.Cota({230, yCota}, {x0, yCota}, At("TxTrAd", 0).Text());
        if (p.adyDer)
            c.Cota({x1, yCota}, {ancho - 230, yCota}, At("TxTrAd", 1).Text());
        if (volIzq)
            c.Cota({550, yCota}, {x0, yCota}, At("TxCota", 0).Text());
        if (volDer)
            c.Cota({x1, yCota}, {ancho - 550, yCota}, At("TxCota", 0).Text());
        return c;
    }
    return std::nullopt;
}

}  // namespace vardena
