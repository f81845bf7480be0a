// The map dialogs of the actions form: the snow and wind maps of the CTE and the seismic list
// of the NCSE-02. A map answers a click with the pixel under the pointer; a list of lines
// answers a click with the character under the caret. The forms do the rest.

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

#include "building/Mapas.h"
#include "controls/DialogosMapas.h"
#include "works/Declaraciones.h"

namespace vardena {

// A rich text box of lines: fixed pitch, read only. A click moves the model's caret to the
// character under it and raises Click; the model's selection and caret show after each action.
class TextoLineas : public QPlainTextEdit {
public:
    TextoLineas(Control& c, VistaForm& vista) : control_(c), vista_(vista)
    {
        setObjectName(Q(c.Label()));
        setReadOnly(true);
        setLineWrapMode(QPlainTextEdit::NoWrap);
        QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        f.setPointSize(10);
        setFont(f);
        // Columns cut at tabs line up under the headings.
        setTabStopDistance(2 * fontMetrics().horizontalAdvance(' '));
        viewport()->setCursor(Qt::PointingHandCursor);
    }

    // Model to widget: the text (CR LF shown as one line end), the selection, and the caret's
    // line at the top when the caret has moved.
    void Refresca()
    {
        const QString texto = Q(control_.Text()).remove('\r');
        if (texto != mostrado_) {
            mostrado_ = texto;
            setPlainText(texto);
        }
        const int inicio = AWidget(control_.SelStart());
        const int fin = AWidget(control_.SelStart() + control_.SelLength());
        if (inicio == inicioMostrado_ && fin == finMostrado_)
            return;
        const bool mueve = inicio != inicioMostrado_;
        inicioMostrado_ = inicio;
        finMostrado_ = fin;
        QTextCursor c = textCursor();
        c.setPosition(inicio);
        c.setPosition(fin, QTextCursor::KeepAnchor);
        setTextCursor(c);
        if (mueve && !pulsado_)
            verticalScrollBar()->setValue(c.block().blockNumber());
    }

protected:
    void mouseReleaseEvent(QMouseEvent* e) override
    {
        QPlainTextEdit::mouseReleaseEvent(e);
        const int posicion = AModelo(cursorForPosition(e->position().toPoint()).position());
        pulsado_ = true;
        vista_.Ejecuta([this, posicion] {
            control_.SetSelStart(posicion);
            control_.Click();
        });
        pulsado_ = false;
    }

private:
    // Characters of the widget's text (no CR) to the model's (CR LF line ends), and back.
    int AModelo(int w) const
    {
        const QString m = Q(control_.Text());
        int i = 0;
        for (int k = 0; i < m.size() && k < w; ++i)
            if (m[i] != '\r')
                ++k;
        return i;
    }
    int AWidget(int m) const
    {
        const QString t = Q(control_.Text());
        int w = 0;
        for (int i = 0; i < m && i < t.size(); ++i)
            if (t[i] != '\r')
                ++w;
        return w;
    }

    Control& control_;
    VistaForm& vista_;
    QString mostrado_;
    int inicioMostrado_ = -1;
    int finMostrado_ = -1;
    bool pulsado_ = false;
};

namespace {

// A picture of a form that passes presses of the mouse to its control, in pixels of the picture.
class Imagen : public QLabel {
public:
    Imagen(Control& c, VistaForm& vista) : control_(c), vista_(vista)
    {
        setObjectName(Q(c.Label()));
        const QString ruta = Q(RutaRecurso(c.form().decl(), c.Get("Picture")));
        QPixmap px(ruta);
        if (px.isNull()) {
            setText(QStringLiteral("No se puede leer la imagen %1").arg(ruta));
            setWordWrap(true);
        } else {
            setPixmap(px);
            setFixedSize(px.size());
            setCursor(Qt::CrossCursor);
        }
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }

protected:
    void mousePressEvent(QMouseEvent* e) override
    {
        const QPoint p = e->position().toPoint();
        vista_.Ejecuta([this, p] { control_.ClickAt(p.x(), p.y()); });
    }

private:
    Control& control_;
    VistaForm& vista_;
};

QGroupBox* Marco(const QString& titulo)
{
    auto* g = new QGroupBox(titulo);
    g->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
    return g;
}

// A value the user has picked, large enough to read at a glance.
QWidget* Valor(VistaForm& v, const char* nombre)
{
    QWidget* w = v.Widget(nombre);
    w->setStyleSheet("font-size: 15px; font-weight: bold; color: #8b1a1a; min-width: 60px;");
    return w;
}

// A caption and its value on one row.
QHBoxLayout* Fila(VistaForm& v, const char* etiqueta, const char* valor)
{
    auto* h = new QHBoxLayout();
    auto* e = qobject_cast<QLabel*>(v.Widget(etiqueta));
    e->setWordWrap(false);
    e->setMinimumWidth(e->fontMetrics().horizontalAdvance(e->text()) + 8);
    h->addWidget(e);
    h->addWidget(Valor(v, valor));
    h->addStretch();
    return h;
}

}  // namespace

DialogoMapas::DialogoMapas(DialogoAcciones& form, QWidget* parent) : QDialog(parent), form_(form), vista_(form)
{
    setWindowTitle(Q(form.Caption()));
    setModal(true);
    auto* v = new QVBoxLayout(this);
    auto* cuerpo = new QHBoxLayout();
    v->addLayout(cuerpo, 1);
    auto* columna = new QVBoxLayout();

    auto texto = [&](QGroupBox* marco, const char* etiqueta) {
        auto* t = new TextoLineas(form.At("RichTextBox1"), vista_);
        textos_.push_back(t);
        auto* l = new QVBoxLayout(marco);
        QWidget* e = vista_.Widget(etiqueta);
        e->setStyleSheet("color: #303848;");
        l->addWidget(e);
        l->addWidget(t, 1);
        return t;
    };

    if (form.Name() == "frmECGn" || form.Name() == "frmECV") {
        const bool nieve = form.Name() == "frmECGn";
        auto* mapa = Marco(nieve ? "Mapa de zonas climáticas de invierno" : "Mapa de zonas eólicas");
        auto* lm = new QVBoxLayout(mapa);
        lm->addWidget(new Imagen(form.At(nieve ? "MapaNieve" : "MapaViento"), vista_));
        auto* ayuda = new QLabel(QString::fromUtf8(nieve ? "Pulse en el mapa para tomar la zona del emplazamiento."
                                                         : "Pulse en el mapa para tomar la zona eólica."));
        ayuda->setStyleSheet("color: #606878;");
        lm->addWidget(ayuda);
        lm->addStretch();
        cuerpo->addWidget(mapa, 0, Qt::AlignTop);

        auto* zona = Marco(Q(form.At("Label1").Caption()));
        auto* lz = new QHBoxLayout(zona);
        QWidget* lista = vista_.Widget(nieve ? "cmbZonNie" : "cmbZonEol");
        lista->setMinimumWidth(90);
        lz->addWidget(lista);
        lz->addWidget(Valor(vista_, nieve ? "LbZonaNieve" : "LbZonaViento"));
        lz->addStretch();
        vista_.Widget("Label1")->hide();
        columna->addWidget(zona);
        if (nieve) {
            auto* capitales = Marco(QString::fromUtf8("Altitud del emplazamiento"));
            TextoLineas* t = texto(capitales, "Label2");
            t->setMinimumWidth(t->fontMetrics().horizontalAdvance(QString(44, 'M')));
            static_cast<QVBoxLayout*>(capitales->layout())->addLayout(Fila(vista_, "Label3", "LbAltitud"));
            columna->addWidget(capitales, 1);
        } else {
            columna->addStretch();
        }
    } else {
        auto* provincia = Marco(Q(form.At("Label1").Caption()));
        auto* lp = new QHBoxLayout(provincia);
        lp->addWidget(vista_.Widget("CmbProv"));
        lp->addStretch();
        vista_.Widget("Label1")->hide();
        columna->addWidget(provincia);
        auto* municipios = Marco(QString::fromUtf8("Municipios (NCSE-02, Anejo 1)"));
        TextoLineas* t = texto(municipios, "Label2");
        t->setMinimumWidth(t->fontMetrics().horizontalAdvance(QString(84, 'M')));
        columna->addWidget(municipios, 1);
        auto* valores = Marco(QString::fromUtf8("Valores del municipio"));
        auto* lv = new QVBoxLayout(valores);
        lv->addLayout(Fila(vista_, "Label3", "Lbabg"));
        lv->addLayout(Fila(vista_, "Label4", "LbK"));
        columna->addWidget(valores);
    }
    cuerpo->addLayout(columna, 1);

    auto* botones = new QHBoxLayout();
    botones->addStretch();
    auto* acepta = qobject_cast<QPushButton*>(vista_.Widget("Acepta"));
    acepta->setMinimumWidth(120);
    acepta->setDefault(true);
    botones->addWidget(acepta);
    v->addLayout(botones);

    vista_.trasAccion = [this] { Actualiza(); };
    vista_.Refresca();
    Actualiza();
}

void DialogoMapas::Actualiza()
{
    for (TextoLineas* t : textos_)
        t->Refresca();
    // The design caption of the ab/g label says that nothing has been picked yet.
    if (Control* abg = form_.Find("Lbabg"); abg && abg->Caption() == "Lbabg")
        if (auto* l = qobject_cast<QLabel*>(vista_.Widget("Lbabg")))
            l->setText(QString::fromUtf8("—"));
    if (form_.Descargado())
        accept();
}

}  // namespace vardena
