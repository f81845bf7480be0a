#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "controls/Ventanas.h"
#include "frame/ControlesVisibles.h"
#include "frame/ElementForm.h"
#include "base/FileIo.h"

namespace vardena {
namespace {

// A sketch picture of an element form: the form's drawing, scaled into the widget with its
// proportions kept, each part of the sketch in its colour.
class DibujoCroquis : public QWidget {
public:
    DibujoCroquis(const ElementForm& form, const Control& picture) : form_(form), picture_(picture)
    {
        setMinimumSize(140, 105);
        QSizePolicy politica(QSizePolicy::Expanding, QSizePolicy::Preferred);
        politica.setHeightForWidth(true);
        setSizePolicy(politica);
        setObjectName(Q(picture.Label()));
    }
    QSize sizeHint() const override { return {180, 125}; }
    // A sketch as wide as its group keeps the proportions of its drawing.
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int ancho) const override
    {
        const std::optional<Croquis> croquis = form_.CroquisDe(picture_);
        if (!croquis || croquis->ancho <= 0)
            return 125;
        return std::clamp(ancho * croquis->alto / croquis->ancho, 105, 320);
    }

protected:
    // The layout gives the width; the height follows it, so that the drawing fills its room.
    void resizeEvent(QResizeEvent* e) override
    {
        QWidget::resizeEvent(e);
        const int alto = heightForWidth(width());
        if (alto != minimumHeight())
            setMinimumHeight(alto);
    }
    void paintEvent(QPaintEvent*) override
    {
        const std::optional<Croquis> croquis = form_.CroquisDe(picture_);
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QColor fondo("#f7f9fc");
        p.fillRect(rect(), fondo);
        if (!croquis || croquis->ancho <= 0 || croquis->alto <= 0)
            return;
        const double esc = std::min((width() - 8) / static_cast<double>(croquis->ancho),
                                    (height() - 8) / static_cast<double>(croquis->alto));
        const double x0 = (width() - croquis->ancho * esc) / 2;
        const double y0 = (height() - croquis->alto * esc) / 2;
        auto punto = [&](const PuntoCroquis& q) { return QPointF(x0 + q.x * esc, y0 + q.y * esc); };
        QFont letra = p.font();
        letra.setPointSizeF(8.5);
        letra.setItalic(true);
        p.setFont(letra);
        for (const TrazoCroquis& t : croquis->trazos) {
            if (t.puntos.empty())
                continue;
            QPolygonF poligono;
            for (const PuntoCroquis& q : t.puntos)
                poligono << punto(q);
            switch (t.figura) {
            case FiguraCroquis::Poligono:
                // Concrete, masonry and loads are outlined; the ground, the rooms and the bars are not.
                p.setPen(t.papel == PapelCroquis::Hormigon || t.papel == PapelCroquis::Fabrica ||
                                 t.papel == PapelCroquis::Carga
                             ? Pluma(t.papel)
                             : QPen(Qt::NoPen));
                p.setBrush(Relleno(t.papel, fondo));
                p.drawPolygon(poligono);
                if (t.papel == PapelCroquis::Terreno) {
                    p.setBrush(QBrush(QColor("#b59b6a"), Qt::BDiagPattern));
                    p.drawPolygon(poligono);
                }
                break;
            case FiguraCroquis::Linea:
                p.setPen(Pluma(t.papel));
                p.drawPolyline(poligono);
                break;
            case FiguraCroquis::Flecha:
                if (poligono.size() >= 2)
                    Flecha(p, poligono[0], poligono[1], Pluma(t.papel));
                break;
            case FiguraCroquis::Cota:
                if (poligono.size() >= 2)
                    Cota(p, poligono[0], poligono[1], Q(t.texto));
                break;
            case FiguraCroquis::Texto:
                p.setPen(Pluma(t.papel));
            {
                const double ancho = std::max(80.0, p.fontMetrics().horizontalAdvance(Q(t.texto)) + 4.0);
                p.drawText(QRectF(poligono[0].x() - ancho / 2, poligono[0].y() - 9, ancho, 18), Qt::AlignCenter, Q(t.texto));
            }
                break;
            }
        }
    }

private:
    static QBrush Relleno(PapelCroquis papel, const QColor& fondo)
    {
        switch (papel) {
        case PapelCroquis::Terreno: return QColor("#e6d8bd");
        case PapelCroquis::Hormigon: return QColor("#c3cad4");
        case PapelCroquis::Fabrica: return QColor("#d9a48a");
        case PapelCroquis::Hueco: return fondo;
        case PapelCroquis::Resalte: return QColor(173, 205, 236, 170);
        case PapelCroquis::Armadura: return QColor("#8b1e1e");
        case PapelCroquis::Carga: return QColor("#f4d9d5");
        default: return Qt::NoBrush;
        }
    }
    static QPen Pluma(PapelCroquis papel)
    {
        switch (papel) {
        case PapelCroquis::Superficie: return QPen(QColor("#5b4a2a"), 2);
        case PapelCroquis::Carga: return QPen(QColor("#b03a2e"), 1.2);
        case PapelCroquis::Hormigon: return QPen(QColor("#44546a"), 1);
        case PapelCroquis::Ausente: return QPen(QColor("#9aa3ad"), 1, Qt::DashLine);
        case PapelCroquis::Armadura: return QPen(QColor("#8b1e1e"), 1.6);
        case PapelCroquis::Fabrica: return QPen(QColor("#7a3b22"), 1);
        case PapelCroquis::Agua: return QPen(QColor("#1f6fb2"), 2, Qt::DashLine);
        default: return QPen(QColor("#1d3557"), 1);
        }
    }
    static void Flecha(QPainter& p, QPointF a, QPointF b, const QPen& pluma)
    {
        p.setPen(pluma);
        p.drawLine(a, b);
        const QLineF eje(b, a);
        QLineF ala(b, a);
        ala.setLength(5);
        for (double giro : {25.0, -25.0}) {
            QLineF l = ala;
            l.setAngle(eje.angle() + giro);
            p.drawLine(l);
        }
    }
    static void Cota(QPainter& p, QPointF a, QPointF b, const QString& texto)
    {
        p.setPen(QPen(QColor("#1d3557"), 1));
        p.drawLine(a, b);
        for (const QPointF& q : {a, b})
            p.drawLine(q + QPointF(-3, 3), q + QPointF(3, -3));
        const QPointF medio = (a + b) / 2;
        const bool vertical = std::abs(b.y() - a.y()) > std::abs(b.x() - a.x());
        // The box takes the text's width: a dimension may name its value as well as its letter.
        const double ancho = std::max(18.0, p.fontMetrics().horizontalAdvance(texto) + 4.0);
        const QRectF caja = vertical ? QRectF(medio.x() + 3, medio.y() - 9, ancho, 18)
                                     : QRectF(medio.x() - ancho / 2, medio.y() - 17, ancho, 16);
        p.drawText(caja, vertical ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter, texto);
    }

    const ElementForm& form_;
    const Control& picture_;
};

// A label of the form's own, whose long captions wrap rather than widen the window.
QWidget* Estrecha(QWidget* etiqueta)
{
    etiqueta->setMinimumWidth(90);
    return etiqueta;
}

}  // namespace

// ---- VentanaForm ----

VentanaForm::VentanaForm(std::unique_ptr<Form> form, QWidget* parent)
    : QWidget(parent), form_(std::move(form)), vista_(std::make_unique<VistaForm>(*form_))
{
    setAttribute(Qt::WA_DeleteOnClose, false);
    setWindowTitle(Q(form_->Caption()));
    vista_->trasAccion = [this] { TrasAccion(); };
}

VentanaForm::~VentanaForm()
{
    // The widgets go first: their last events must still find the form alive.
    for (QObject* hijo : children())
        if (auto* w = qobject_cast<QWidget*>(hijo))
            delete w;
}

void VentanaForm::TrasAccion()
{
    setWindowTitle(Q(form_->Caption()));
    if (Descargada() && !descargada_)
        close();
}

void VentanaForm::closeEvent(QCloseEvent* e)
{
    if (!descargada_ && !Descargada() && !PuedeCerrar()) {
        e->ignore();
        return;
    }
    if (!descargada_) {
        descargada_ = true;
        vista_->Ejecuta([this] {
            if (auto* el = dynamic_cast<ElementForm*>(form_.get()); !el || !el->Descargado())
                form_->Form_Unload();
        });
    }
    e->accept();
    if (alCerrar)
        alCerrar();
}

// ---- VentanaElemento ----

VentanaElemento::VentanaElemento(std::unique_ptr<Form> form, QWidget* parent) : VentanaForm(std::move(form), parent)
{
    auto* raiz = new QHBoxLayout(this);
    raiz->setContentsMargins(8, 8, 8, 8);
    auto* izquierda = new QVBoxLayout();
    auto* cabecera = new QLabel(Q(form_->Caption()));
    cabecera->setStyleSheet("font-size: 15px; font-weight: bold; color: #1d3557;");
    izquierda->addWidget(cabecera);
    pila_ = new QStackedWidget();
    pila_->addWidget(CreaDatos());
    if (Control* rtb = form_->Find("RichTextBox1"))
        pila_->addWidget(vista_->De(*rtb).widget());
    izquierda->addWidget(pila_, 1);
    raiz->addLayout(izquierda, 1);
    raiz->addWidget(CreaPanel());
    vista_->trasAccion = [this] {
        Actualiza();
        TrasAccion();
    };
    vista_->Refresca();
    Actualiza();
}

bool VentanaElemento::Descargada() const
{
    auto* el = dynamic_cast<ElementForm*>(form_.get());
    return el && el->Descargado();
}

QWidget* VentanaElemento::CreaDatos()
{
    auto* zona = new QScrollArea();
    zona->setWidgetResizable(true);
    zona->setFrameShape(QFrame::NoFrame);
    // A form wider than the window scrolls sideways rather than cutting its last column.
    zona->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    auto* contenido = new QWidget();
    auto* columnas = new QHBoxLayout(contenido);
    columnas->setContentsMargins(0, 0, 0, 0);
    // Three columns, or as many as the form's groups name: a group that names its column stands
    // there, the others go to the least filled one.
    const std::vector<GrupoCampos> grupos = AgrupaCampos(*form_);
    int pedidas = 0;
    for (const GrupoCampos& g : grupos)
        pedidas = std::max(pedidas, g.columna + 1);
    const size_t kColumnas = pedidas > 0 ? static_cast<size_t>(pedidas) : 3;
    std::vector<QVBoxLayout*> columna(kColumnas);
    std::vector<int> alto(kColumnas, 0);
    for (auto*& c : columna) {
        c = new QVBoxLayout();
        columnas->addLayout(c, 1);
    }
    for (const GrupoCampos& g : grupos) {
        const size_t k = g.columna >= 0 ? static_cast<size_t>(g.columna)
                                        : static_cast<size_t>(std::min_element(alto.begin(), alto.end()) - alto.begin());
        columna[k]->addWidget(CreaGrupo(g));
        alto[k] += AltoDeGrupo(g);
    }
    for (auto* c : columna)
        c->addStretch();
    zona->setWidget(contenido);
    return zona;
}

QWidget* VentanaElemento::WidgetDe(Control& c)
{
    OpcionesAdaptador op;
    // A field whose change runs the form's logic (and may rewrite the field itself) takes its
    // text when editing ends, not at every key.
    op.alTerminar = c.kind() == Kind::TextBox && static_cast<bool>(c.onChange);
    return vista_->De(c, op).widget();
}

QWidget* VentanaElemento::Unidad(const Control& c)
{
    auto* unidad = new QWidget();
    auto* h = new QHBoxLayout(unidad);
    h->setContentsMargins(0, 0, 0, 0);
    for (const char* par : {"lbST", "lbSI"})
        if (Control* u = form_->Find(par, c.Index()))
            h->addWidget(vista_->De(*u).widget());
    return unidad;
}

QWidget* VentanaElemento::ConUnidad(const Control& c, QWidget* w)
{
    if (c.Name() != "TxtQ")
        return w;
    auto* celda = new QWidget();
    auto* h = new QHBoxLayout(celda);
    h->setContentsMargins(0, 0, 0, 0);
    h->addWidget(w);
    QWidget* unidad = Unidad(c);
    h->addWidget(unidad);
    h->addStretch();
    siguen_.emplace_back(unidad, &c);
    return celda;
}

QWidget* VentanaElemento::CreaGrupo(const GrupoCampos& g)
{
    auto* grupo = new QGroupBox(Q(g.titulo));
    grupo->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
    grupos_.emplace_back(grupo, g);
    auto* rejilla = new QGridLayout(grupo);
    rejilla->setHorizontalSpacing(6);
    rejilla->setVerticalSpacing(3);
    // Long groups of small fields take two pairs a row; a sketch among them takes its own band.
    const bool dosPorFila = g.miembros.size() > 6 && std::all_of(g.miembros.begin(), g.miembros.end(), [](const Control* c) {
                                return c->kind() == Kind::TextBox || c->kind() == Kind::ComboBox ||
                                       c->kind() == Kind::CheckBox || c->kind() == Kind::OptionButton ||
                                       c->kind() == Kind::PictureBox;
                            });
    const int anchoFila = dosPorFila ? 6 : 3;
    const auto* elemento = dynamic_cast<const ElementForm*>(form_.get());
    // The band of the sketches being placed side by side.
    QHBoxLayout* croquis = nullptr;
    int fila = 0, col = 0;
    if (!g.cabeceras.empty()) {
        // A grid: the headings, then a row a name with its values under their columns. A row's
        // name shows while any of its cells does.
        for (size_t k = 0; k < g.cabeceras.size(); ++k) {
            QLabel* cabecera = Etiqueta(g.cabeceras[k]);
            cabecera->setStyleSheet("font-weight: bold;");
            cabecera->setWordWrap(true);
            rejilla->addWidget(cabecera, 0, static_cast<int>(k));
        }
        const size_t porFila = g.cabeceras.size() - 1;
        for (size_t r = 0; r < g.rotulosFilas.size(); ++r) {
            const int f = static_cast<int>(r) + 1;
            std::vector<const Control*> celdasFila;
            for (size_t k = 0; k < porFila; ++k) {
                const size_t i = r * porFila + k;
                Control* c = i < g.celdas.size() ? g.celdas[i] : nullptr;
                if (!c)
                    continue;
                celdasFila.push_back(c);
                QWidget* w = WidgetDe(*c);
                // Many columns take narrow fields, so that the grid fits its column of the window.
                if (auto* linea = qobject_cast<QLineEdit*>(w)) {
                    linea->setMinimumWidth(40);
                    linea->setMaximumWidth(porFila > 3 ? 56 : porFila > 2 ? 70 : 90);
                }
                rejilla->addWidget(ConUnidad(*c, w), f, static_cast<int>(k) + 1);
            }
            QLabel* rotulo = Etiqueta(g.rotulosFilas[r]);
            rejilla->addWidget(rotulo, f, 0);
            if (!celdasFila.empty())
                filas_.emplace_back(rotulo, std::move(celdasFila));
        }
        rejilla->setColumnStretch(static_cast<int>(g.cabeceras.size()), 1);
        return grupo;
    }
    if (g.tabla) {
        // A row a value: what it is, its symbol and unit, the value.
        for (Control* c : g.miembros) {
            if (auto it = g.etiquetas.find(c); it != g.etiquetas.end())
                rejilla->addWidget(Estrecha(vista_->De(*it->second).widget()), fila, 0);
            if (auto it = g.junto.find(c); it != g.junto.end()) {
                auto* simbolos = new QWidget();
                auto* h = new QHBoxLayout(simbolos);
                h->setContentsMargins(0, 0, 0, 0);
                for (Control* s : it->second)
                    h->addWidget(vista_->De(*s).widget());
                rejilla->addWidget(simbolos, fila, 1);
            }
            QWidget* w = WidgetDe(*c);
            if (auto* linea = qobject_cast<QLineEdit*>(w))
                linea->setMaximumWidth(90);
            if (auto* lista = qobject_cast<QComboBox*>(w))
                lista->setMaximumWidth(230);
            if (c->kind() == Kind::Label)
                w->setStyleSheet("font-weight: bold;");
            rejilla->addWidget(w, fila++, 2);
        }
        rejilla->setColumnStretch(0, 1);
        return grupo;
    }
    for (Control* c : g.miembros) {
        if (c->kind() == Kind::PictureBox) {
            if (!elemento || !elemento->CroquisDe(*c))
                continue;
            if (!croquis) {
                auto* banda = new QWidget();
                croquis = new QHBoxLayout(banda);
                croquis->setContentsMargins(0, 4, 0, 0);
                rejilla->addWidget(banda, fila++, 0, 1, anchoFila);
                col = 0;
            }
            auto* dibujo = new DibujoCroquis(*elemento, *c);
            croquis->addWidget(dibujo);
            siguen_.emplace_back(dibujo, c);
            continue;
        }
        croquis = nullptr;
        const int base = col * 3;
        if (c->kind() == Kind::Label) {
            // A heading or a note of the group: the whole row.
            rejilla->addWidget(Estrecha(vista_->De(*c).widget()), fila, base, 1, 3);
        } else if (c->kind() == Kind::CheckBox || c->kind() == Kind::OptionButton || c->kind() == Kind::CommandButton) {
            rejilla->addWidget(WidgetDe(*c), fila, base, 1, 3);
        } else if (c->kind() == Kind::RichTextBox && !c->Get("FontName").empty()) {
            // A table the form makes: its title above it, the table the whole width of the group.
            QLabel* titulo = Etiqueta(EtiquetaDe(*c));
            siguen_.emplace_back(titulo, c);
            rejilla->addWidget(titulo, fila, base, 1, 3);
            rejilla->addWidget(WidgetDe(*c), ++fila, base, 1, 3);
        } else if (c->kind() == Kind::RichTextBox) {
            QWidget* w = WidgetDe(*c);
            w->setMaximumHeight(140);
            rejilla->addWidget(Etiqueta(EtiquetaDe(*c)), fila, base, Qt::AlignTop);
            rejilla->addWidget(w, fila, base + 1, 1, 2);
        } else if (c->kind() == Kind::UCPerfil) {
            rejilla->addWidget(Etiqueta(EtiquetaDe(*c)), fila, base);
            rejilla->addWidget(WidgetDe(*c), fila, base + 1, 1, dosPorFila ? 2 : 5);
        } else {
            QWidget* w = WidgetDe(*c);
            // The form's own label where its definition gives one, else the field's caption,
            // which shows while the field does.
            QWidget* etiqueta = nullptr;
            if (auto it = g.etiquetas.find(c); it != g.etiquetas.end()) {
                etiqueta = Estrecha(vista_->De(*it->second).widget());
            } else {
                etiqueta = Etiqueta(EtiquetaEnGrupo(*c, g));
                siguen_.emplace_back(etiqueta, c);
            }
            rejilla->addWidget(etiqueta, fila, base);
            rejilla->addWidget(w, fila, base + 1);
            if (auto* linea = qobject_cast<QLineEdit*>(w)) {
                linea->setMinimumWidth(c->Name() == "txtTitulo" ? 150 : 64);
                linea->setMaximumWidth(c->Name() == "txtTitulo" ? 220 : 90);
            }
            if (auto* lista = qobject_cast<QComboBox*>(w))
                lista->setMaximumWidth(170);
            // The unit of a load field: the technical and the S.I. label share the cell.
            if (c->Name() == "TxtQ") {
                QWidget* unidad = Unidad(*c);
                rejilla->addWidget(unidad, fila, base + 2);
                siguen_.emplace_back(unidad, c);
            }
        }
        if (dosPorFila && col == 0) {
            col = 1;
        } else {
            col = 0;
            ++fila;
        }
    }
    // The room to spare goes to the form's own labels, so that they wrap no more than they must.
    rejilla->setColumnStretch(g.etiquetas.empty() ? (dosPorFila ? 5 : 2) : 0, 1);
    return grupo;
}

QWidget* VentanaElemento::CreaPanel()
{
    auto* panel = new QWidget();
    panel->setFixedWidth(250);
    auto* v = new QVBoxLayout(panel);
    v->setContentsMargins(0, 0, 0, 0);
    if (Control* lista = form_->Find("List1")) {
        const Control* marco = form_->Find("UCframeRecDat");
        auto* grupo = new QGroupBox(Q(marco ? marco->Caption() : "Recuperar datos"));
        grupo->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; }");
        auto* g = new QVBoxLayout(grupo);
        auto* ayuda = new QLabel(Q(lista->ToolTipText()));
        ayuda->setWordWrap(true);
        ayuda->setStyleSheet("color: #606878; font-size: 11px;");
        g->addWidget(vista_->De(*lista).widget(), 1);
        g->addWidget(ayuda);
        v->addWidget(grupo, 1);
    }
    for (const char* nombre : {"CmdCalcular", "Listado1", "CmdSalir", "UCBhelp"}) {
        Control* c = form_->Find(nombre);
        if (!c)
            continue;
        if (std::string_view(nombre) == "UCBhelp" && c->Caption().empty())
            c->SetCaption("Ayuda");
        auto* boton = qobject_cast<QPushButton*>(vista_->De(*c).widget());
        boton->setMinimumHeight(30);
        if (std::string_view(nombre) == "CmdCalcular")
            boton->setStyleSheet("QPushButton { font-weight: bold; color: #1d3557; }");
        if (std::string_view(nombre) == "Listado1") {
            boton->setCheckable(true);
            listado_ = boton;
        }
        v->addWidget(boton);
    }
    if (Control* vers = form_->Find("Lbvers"))
        v->addWidget(vista_->De(*vers).widget());
    // Without a record list the buttons stand at the top.
    if (!form_->Find("List1"))
        v->addStretch();
    return panel;
}

void VentanaElemento::Actualiza()
{
    for (auto& [caja, grupo] : grupos_) {
        caja->setVisible(GrupoVisible(grupo));
        // A panel that opens over the form as a dialog disables the frames it covers.
        caja->setEnabled(std::all_of(grupo.marcos.begin(), grupo.marcos.end(), [](const Control* m) { return m->Enabled(); }));
    }
    for (auto& [w, c] : siguen_) {
        w->setVisible(c->Visible());
        // A sketch follows the fields it is drawn from.
        if (c->kind() == Kind::PictureBox)
            w->update();
    }
    for (auto& [w, celdas] : filas_)
        w->setVisible(std::any_of(celdas.begin(), celdas.end(), [](const Control* c) { return c->Visible(); }));
    const Control* rtb = form_->Find("RichTextBox1");
    const bool resultado = rtb && rtb->Visible() && pila_->count() > 1;
    pila_->setCurrentIndex(resultado ? 1 : 0);
    pila_->widget(0)->setVisible(!resultado);
    if (resultado)
        pila_->widget(1)->setVisible(true);
    if (listado_)
        listado_->setChecked(resultado);
}

}  // namespace vardena
