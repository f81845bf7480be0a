#include <QGridLayout>
#include <algorithm>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "building/DatosGen.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "controls/Ventanas.h"

namespace vardena {
namespace {

// Texts of the window's own layout, which the form has no control for: numbers of the message
// table. The window is made anew at each opening, so the language in force then is the one shown.
constexpr int kMsgSeccion = 1470;
constexpr int kMsgPlantasCargas = 1471;
constexpr int kMsgAltura = 1472;
constexpr int kMsgHormigon = 1473;
constexpr int kMsgAcero = 1474;
constexpr int kMsgControl = 1475;
constexpr int kMsgResistente = 1476;
constexpr int kMsgServicio = 1477;
constexpr int kMsgCoeficiente = 1478;
constexpr int kMsgDensidad = 1479;
constexpr int kMsgCatControl = 1480;
constexpr int kMsgCatEjecucion = 1481;
constexpr int kMsgDescripcion = 1482;
constexpr int kMsgPeso = 1483;
constexpr int kMsgCarga = 1484;
constexpr int kMsgDia = 1485;
constexpr int kMsgEscalones[] = {1486, 1487, 1488, 1489, 1491, 1492};
constexpr int kMsgReparto = 1490;
constexpr int kMsgPlanta = 1493;
constexpr int kMsgColumnasCargas[] = {1494, 1495, 1496, 1497, 1498};
// The headings that the general data's report uses too.
constexpr int kMsgCerramiento = 886;
constexpr int kMsgTotal = 887;
constexpr int kMsgEscalonesCarga = 888;

std::string Texto(const Form& f, int mensaje) { return Mensaje(f.decl(), mensaje); }

// The building section: floors and basements as the form lays them out, in twips scaled to the
// widget's height.
class DibujoSeccion : public QWidget {
public:
    explicit DibujoSeccion(const DatosGen& d) : datos_(d) { setMinimumSize(240, 420); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const SeccionLayout& s = datos_.Layout();
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.fillRect(rect(), QColor("#f7f9fc"));
        if (s.rows.empty())
            return;
        // The rows fill the picture from the top, at most 0.12 pixel a twip.
        const int desde = s.rows.front().top - 300;
        const int hasta = s.rows.back().top + s.pitch + 300;
        const double esc = std::min(0.12, height() / static_cast<double>(hasta - desde));
        const double izq = 20, der = width() - 80;
        auto y = [&](int twips) { return (twips - desde) * esc; };
        const int n = s.floors;
        const double suelo = y(s.rows[static_cast<size_t>(n)].top + s.pitch);
        // The ground, from the ground floor's slab down.
        p.fillRect(QRectF(0, y(s.rows[static_cast<size_t>(n)].top), width(), height()), QColor("#e6d8bd"));
        for (const auto& fila : s.rows) {
            const double arriba = y(fila.top);
            const double abajo = y(fila.top + s.pitch);
            if (fila.level < static_cast<int>(s.rows.size()) - 1) {
                // The storey under a slab is that of the level below it.
                const bool sotano = s.rows[static_cast<size_t>(fila.level) + 1].basement;
                p.fillRect(QRectF(izq, arriba, der - izq, abajo - arriba), sotano ? QColor("#cbb894") : QColor("#dde7f3"));
                p.setPen(QPen(QColor("#44546a"), 3));
                p.drawLine(QPointF(izq, arriba), QPointF(izq, abajo));
                p.drawLine(QPointF(der, arriba), QPointF(der, abajo));
                p.setPen(QPen(QColor("#8a6f3a"), 1, Qt::DashLine));
                p.drawLine(QPointF(der + 30, arriba), QPointF(der + 30, abajo));
            }
            p.setPen(QPen(QColor("#1d3557"), 4));
            p.drawLine(QPointF(izq - 8, arriba), QPointF(der + 8, arriba));
            p.setPen(QColor("#1d3557"));
            p.drawText(QRectF(izq + 6, arriba + 2, der - izq - 12, 16), Qt::AlignLeft, Q(fila.label));
        }
        p.setPen(QPen(QColor("#5b4a2a"), 2));
        p.drawLine(QPointF(0, y(s.rows[static_cast<size_t>(n)].top)), QPointF(width(), y(s.rows[static_cast<size_t>(n)].top)));
        p.setPen(QColor("#44546a"));
        p.drawText(QRectF(der + 34, suelo - 18, 60, 16), Qt::AlignLeft, Q(Texto(datos_, kMsgAltura)));
    }

private:
    const DatosGen& datos_;
};

constexpr const char* kCargasP[] = {"TxtPProP", "TxtConcP", "TxtSobrP", "TxtSTabP", "TxtCUsoP"};
constexpr const char* kCargasS[] = {"TxtPProS", "TxtConcS", "TxtSobrS", "TxtSTabS", "TxtCUsoS"};

}  // namespace

VentanaDatosGen::VentanaDatosGen(std::unique_ptr<Form> form, QWidget* parent) : VentanaForm(std::move(form), parent)
{
    Form& f = *form_;
    auto texto = [&f](int mensaje) { return Texto(f, mensaje); };

    auto* raiz = new QHBoxLayout(this);
    raiz->setContentsMargins(8, 8, 8, 8);
    auto grupo = [](const std::string& titulo) {
        auto* g = new QGroupBox(Q(titulo));
        g->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
        return g;
    };
    auto fila = [this](QGridLayout* g, int r, const std::string& etiqueta, const char* nombre, int index = -1,
                       const char* unidad = nullptr, int indiceUnidad = -1) {
        g->addWidget(Etiqueta(etiqueta), r, 0);
        QWidget* w = vista_->Widget(nombre, index);
        if (auto* l = qobject_cast<QLineEdit*>(w))
            l->setMaximumWidth(80);
        g->addWidget(w, r, 1);
        if (unidad) {
            auto* u = new QWidget();
            auto* h = new QHBoxLayout(u);
            h->setContentsMargins(0, 0, 0, 0);
            h->addWidget(vista_->Widget("lbST", indiceUnidad));
            h->addWidget(vista_->Widget("lbSI", indiceUnidad));
            g->addWidget(u, r, 2);
        }
    };

    // The section.
    auto* gSeccion = grupo(texto(kMsgSeccion));
    auto* vSeccion = new QVBoxLayout(gSeccion);
    seccion_ = new DibujoSeccion(datos());
    vSeccion->addWidget(seccion_, 1);
    raiz->addWidget(gSeccion, 3);

    // Floors and their loads.
    auto* gNiveles = grupo(texto(kMsgPlantasCargas));
    caja_ = new QVBoxLayout(gNiveles);
    auto* cuenta = new QGridLayout();
    fila(cuenta, 0, f.At("lbPlan").Caption(), "cmbGeom", 0);
    fila(cuenta, 1, f.At("lbSot").Caption(), "cmbGeom", 1);
    cuenta->addWidget(vista_->Widget("ChVerTerrPlant"), 0, 2);
    cuenta->addWidget(vista_->Widget("ChVerCargas"), 1, 2);
    caja_->addLayout(cuenta);
    ConstruyeNiveles();
    auto* asigna = new QHBoxLayout();
    asigna->addWidget(vista_->Widget("AsignaC", 1));
    asigna->addWidget(vista_->Widget("AsignaC", 0));
    caja_->addLayout(asigna);
    auto* uso = new QHBoxLayout();
    uso->addWidget(vista_->Widget("cmdCatUso"));
    uso->addStretch();
    caja_->addLayout(uso);
    raiz->addWidget(gNiveles, 5);

    // Materials.
    auto* materiales = new QVBoxLayout();
    struct Material {
        int cabecera;
        const char* check;
        std::vector<std::tuple<std::string, const char*, int>> campos;  // label, control, unit label index
    };
    const Material lista[] = {
        {5, "ChHormigon",
         {{texto(kMsgHormigon), "CmbHorm", -1},
          {texto(kMsgAcero), "CmbAcero", -1},
          {texto(kMsgControl), "cmbControl", -1}}},
        {0, "ChAcero", {{texto(kMsgAcero), "CmbAcP", -1}}},
        {4, "ChMadera", {{texto(kMsgResistente), "CmbResis", -1}, {texto(kMsgServicio), "CmbServi", -1}}},
        {1, "ChFabrica",
         {{f.At("lbFabrica").Caption(), "TxResFab", 1}, {texto(kMsgCoeficiente), "TxCoefMin", -1},
          {texto(kMsgDensidad), "TxtDensFabr", -1}, {texto(kMsgCatControl), "cmbCatControl", -1},
          {texto(kMsgCatEjecucion), "CmbCatEjec", -1}}},
        {2, "ChTerreno", {{f.At("lbTens").Caption(), "TxTens", 1}}},
    };
    for (const Material& m : lista) {
        auto* g = grupo(f.At("Label15", m.cabecera).Caption());
        auto* r = new QGridLayout(g);
        r->addWidget(vista_->Widget(m.check), 0, 0, 1, 3);
        int i = 1;
        for (const auto& [etiqueta, nombre, unidad] : m.campos)
            fila(r, i++, etiqueta, nombre, -1, unidad >= 0 ? "u" : nullptr, unidad);
        if (std::string_view(m.check) == "ChFabrica")
            r->addWidget(vista_->Widget("cmdFabr"), i, 1);
        if (std::string_view(m.check) == "ChMadera")
            r->addWidget(vista_->Widget("cmdAyuda"), 2, 2);
        r->setColumnStretch(1, 1);
        materiales->addWidget(g);
    }
    materiales->addStretch();
    raiz->addLayout(materiales, 3);

    // Enclosure wall and load steps.
    auto* otros = new QVBoxLayout();
    auto* gCerr = grupo(texto(kMsgCerramiento));
    auto* rc = new QGridLayout(gCerr);
    rc->addWidget(Etiqueta(texto(kMsgDescripcion)), 0, 0);
    rc->addWidget(Etiqueta(texto(kMsgPeso)), 0, 1);
    for (int i = 0; i < 6; ++i) {
        QWidget* descr = vista_->Widget("TextDescr", i);
        descr->setMinimumWidth(170);
        rc->addWidget(descr, i + 1, 0);
        QWidget* v = vista_->Widget("TextValor", i);
        v->setMaximumWidth(60);
        rc->addWidget(v, i + 1, 1);
    }
    rc->addWidget(Etiqueta(texto(kMsgTotal)), 7, 0, Qt::AlignRight);
    QWidget* total = vista_->Widget("TextTotal");
    total->setMaximumWidth(60);
    rc->addWidget(total, 7, 1);
    rc->addWidget(vista_->Widget("lbST", 0), 7, 2);
    rc->addWidget(vista_->Widget("lbSI", 0), 7, 2);
    otros->addWidget(gCerr);
    auto* gDias = grupo(texto(kMsgEscalonesCarga));
    auto* rd = new QGridLayout(gDias);
    rd->addWidget(Etiqueta(texto(kMsgCarga)), 0, 0);
    rd->addWidget(Etiqueta(texto(kMsgDia)), 0, 1);
    for (int i = 0; i < 6; ++i) {
        if (i == 4)
            rd->addWidget(Etiqueta(texto(kMsgReparto)), 5, 0, 1, 2);
        const int r = i < 4 ? i + 1 : i + 2;
        rd->addWidget(Etiqueta(texto(kMsgEscalones[i])), r, 0);
        QWidget* w = vista_->Widget("TextDia", i);
        w->setMaximumWidth(50);
        rd->addWidget(w, r, 1);
    }
    otros->addWidget(gDias);
    otros->addStretch();
    auto* botones = new QHBoxLayout();
    auto* aceptar = qobject_cast<QPushButton*>(vista_->Widget("Aceptar"));
    aceptar->setStyleSheet("QPushButton { font-weight: bold; color: #1d3557; }");
    aceptar->setMinimumHeight(30);
    // The form unloads itself on accepting: the window closes behind it.
    connect(aceptar, &QPushButton::clicked, this, [this] {
        // General data that could not be written stay on screen, so that nothing typed is lost.
        if (!vista_->form().decl().UltimoErrorDatos.empty())
            return;
        aceptada_ = true;
        descargada_ = true;
        close();
    });
    auto* cancelar = qobject_cast<QPushButton*>(vista_->Widget("Cancelar"));
    cancelar->setMinimumHeight(30);
    connect(cancelar, &QPushButton::clicked, this, [this] { close(); });
    botones->addWidget(aceptar);
    botones->addWidget(cancelar);
    otros->addLayout(botones);
    raiz->addLayout(otros, 3);

    vista_->trasAccion = [this] {
        Actualiza();
        TrasAccion();
    };
    vista_->Refresca();
    Actualiza();
}

DatosGen& VentanaDatosGen::datos() const { return static_cast<DatosGen&>(*form_); }

bool VentanaDatosGen::PuedeCerrar()
{
    bool puede = true;
    vista_->Ejecuta([&] { puede = datos().QueryUnload(); });
    return puede;
}

void VentanaDatosGen::ConstruyeNiveles()
{
    const SeccionLayout& s = datos().Layout();
    filasNiveles_ = static_cast<int>(s.rows.size());
    // The fields' widgets belong to the view and outlive the table that holds them.
    for (QWidget* w : colocados_)
        w->setParent(nullptr);
    colocados_.clear();
    auto* nuevo = new QWidget();
    auto* g = new QGridLayout(nuevo);
    g->setVerticalSpacing(2);
    g->addWidget(Etiqueta(Texto(datos(), kMsgPlanta)), 0, 0);
    for (int c = 0; c < 5; ++c)
        g->addWidget(Etiqueta(Texto(datos(), kMsgColumnasCargas[c])), 0, c + 1);
    g->addWidget(Etiqueta(datos().At("LbAlt").Caption()), 0, 6);
    auto coloca = [&](QWidget* w, int r, int c, int ancho) {
        w->setMaximumWidth(ancho);
        g->addWidget(w, r, c);
        colocados_.push_back(w);
    };
    for (const auto& fila : s.rows) {
        const int r = fila.level + 1;
        QWidget* etiqueta = vista_->Widget("lblPlanta", fila.level);
        if (auto* l = qobject_cast<QLabel*>(etiqueta))
            l->setWordWrap(false);
        coloca(etiqueta, r, 0, 150);
        const int idx = fila.basement ? fila.level - s.floors : fila.level;
        for (int k = 0; k < 5; ++k)
            coloca(vista_->Widget(fila.basement ? kCargasS[k] : kCargasP[k], idx), r, k + 1, k == 4 ? 30 : 60);
        if (fila.level > 0)
            coloca(vista_->Widget("TxCot", fila.level - 1), r, 6, 60);
    }
    g->setRowStretch(static_cast<int>(s.rows.size()) + 1, 1);
    if (niveles_) {
        caja_->replaceWidget(niveles_, nuevo);
        delete niveles_;
    } else {
        caja_->addWidget(nuevo, 1);
    }
    niveles_ = nuevo;
    vista_->Refresca();
}

void VentanaDatosGen::Actualiza()
{
    if (static_cast<int>(datos().Layout().rows.size()) != filasNiveles_)
        ConstruyeNiveles();
    seccion_->update();
}

}  // namespace vardena
