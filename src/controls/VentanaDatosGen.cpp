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
#include "controls/Ventanas.h"

namespace vardena {
namespace {

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
        p.drawText(QRectF(der + 34, suelo - 18, 60, 16), Qt::AlignLeft, "Altura");
    }

private:
    const DatosGen& datos_;
};

// Texts for controls the form leaves without a caption.
void PoneCaption(Form& f, const char* nombre, const char* texto, int index = -1)
{
    if (Control* c = f.Find(nombre, index); c && c->Caption().empty())
        c->SetCaption(texto);
}

constexpr const char* kCargasP[] = {"TxtPProP", "TxtConcP", "TxtSobrP", "TxtSTabP", "TxtCUsoP"};
constexpr const char* kCargasS[] = {"TxtPProS", "TxtConcS", "TxtSobrS", "TxtSTabS", "TxtCUsoS"};

}  // namespace

VentanaDatosGen::VentanaDatosGen(std::unique_ptr<Form> form, QWidget* parent) : VentanaForm(std::move(form), parent)
{
    Form& f = *form_;
    PoneCaption(f, "ChHormigon", "Se usa en la obra");
    PoneCaption(f, "ChAcero", "Se usa en la obra");
    PoneCaption(f, "ChMadera", "Se usa en la obra");
    PoneCaption(f, "ChFabrica", "Se usa en la obra");
    PoneCaption(f, "ChTerreno", "Se usa en la obra");
    PoneCaption(f, "ChVerTerrPlant", "Ver terreno y plantas");
    PoneCaption(f, "ChVerCargas", "Ver cargas");
    PoneCaption(f, "ChVerSelPilar", "Selección de pilar");
    PoneCaption(f, "OpPilarS", "Pilar");

    auto* raiz = new QHBoxLayout(this);
    raiz->setContentsMargins(8, 8, 8, 8);
    auto grupo = [](const std::string& titulo) {
        auto* g = new QGroupBox(Q(titulo));
        g->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
        return g;
    };
    auto fila = [this](QGridLayout* g, int r, const char* etiqueta, const char* nombre, int index = -1,
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
    auto* gSeccion = grupo("Sección del edificio");
    auto* vSeccion = new QVBoxLayout(gSeccion);
    seccion_ = new DibujoSeccion(datos());
    vSeccion->addWidget(seccion_, 1);
    raiz->addWidget(gSeccion, 3);

    // Floors and their loads.
    auto* gNiveles = grupo("Plantas y cargas");
    caja_ = new QVBoxLayout(gNiveles);
    auto* cuenta = new QGridLayout();
    fila(cuenta, 0, "Nº plantas", "cmbGeom", 0);
    fila(cuenta, 1, "Nº sótanos", "cmbGeom", 1);
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
        std::vector<std::tuple<const char*, const char*, int>> campos;  // label, control, unit label index
    };
    const Material lista[] = {
        {5, "ChHormigon", {{"Hormigón", "CmbHorm", -1}, {"Acero", "CmbAcero", -1}, {"Control", "cmbControl", -1}}},
        {0, "ChAcero", {{"Acero", "CmbAcP", -1}}},
        {4, "ChMadera", {{"Resistente", "CmbResis", -1}, {"Servicio", "CmbServi", -1}}},
        {1, "ChFabrica",
         {{"Res.Fábrica", "TxResFab", 1}, {"Coeficiente", "TxCoefMin", -1}, {"Densidad Kg/m3", "TxtDensFabr", -1},
          {"Categoría control", "cmbCatControl", -1}, {"Categ. ejecución", "CmbCatEjec", -1}}},
        {2, "ChTerreno", {{"Tens. Adm.", "TxTens", 1}}},
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
    auto* gCerr = grupo("Cerramiento tipo");
    auto* rc = new QGridLayout(gCerr);
    rc->addWidget(Etiqueta("Descripción"), 0, 0);
    rc->addWidget(Etiqueta("Peso"), 0, 1);
    for (int i = 0; i < 6; ++i) {
        QWidget* descr = vista_->Widget("TextDescr", i);
        descr->setMinimumWidth(170);
        rc->addWidget(descr, i + 1, 0);
        QWidget* v = vista_->Widget("TextValor", i);
        v->setMaximumWidth(60);
        rc->addWidget(v, i + 1, 1);
    }
    rc->addWidget(Etiqueta("Total"), 7, 0, Qt::AlignRight);
    QWidget* total = vista_->Widget("TextTotal");
    total->setMaximumWidth(60);
    rc->addWidget(total, 7, 1);
    rc->addWidget(vista_->Widget("lbST", 0), 7, 2);
    rc->addWidget(vista_->Widget("lbSI", 0), 7, 2);
    otros->addWidget(gCerr);
    auto* gDias = grupo("Escalones de carga");
    auto* rd = new QGridLayout(gDias);
    rd->addWidget(Etiqueta("Carga"), 0, 0);
    rd->addWidget(Etiqueta("Día nº"), 0, 1);
    const char* escalones[] = {"Peso propio", "Tabiquería y cerramientos", "Cargas permanentes", "Sobrecargas de uso",
                               "Sobrecarga frecuente", "Sobrecarga cuasi-permanente"};
    for (int i = 0; i < 6; ++i) {
        if (i == 4)
            rd->addWidget(Etiqueta("Reparto sobrecarga de uso (%)"), 5, 0, 1, 2);
        const int r = i < 4 ? i + 1 : i + 2;
        rd->addWidget(Etiqueta(escalones[i]), r, 0);
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
    const char* cabeceras[] = {"Planta", "P.Prop.", "C.Perm.", "Sobr.Uso", "Tab/Niev.", "Uso", "Altura (m.)"};
    for (int c = 0; c < 7; ++c)
        g->addWidget(Etiqueta(cabeceras[c]), 0, c);
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
