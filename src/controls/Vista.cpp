#include "controls/Vista.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextBrowser>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "controls/Compuestos.h"
#include "reports/RtfLector.h"
#include "works/Declaraciones.h"
#include "base/Ui.h"

namespace vardena {

QString Q(const std::string& s) { return QString::fromStdString(s); }

namespace {

// The key code of the run time for a Qt key: Delete is 46, letters and digits their upper-case
// character; other keys their low byte.
int CodigoTecla(int qtKey)
{
    if (qtKey == Qt::Key_Delete)
        return 46;
    if (qtKey == Qt::Key_Backspace)
        return 8;
    if (qtKey == Qt::Key_Return || qtKey == Qt::Key_Enter)
        return 13;
    if (qtKey == Qt::Key_Escape)
        return 27;
    return qtKey & 0xFF;
}

// Passes key presses and the loss of focus of a widget to the model's events.
class Filtro : public QObject {
public:
    // Returns true when the key was swallowed.
    std::function<bool(QKeyEvent*)> tecla;
    std::function<void()> pierdeFoco;
    using QObject::QObject;

protected:
    bool eventFilter(QObject* o, QEvent* e) override
    {
        if (e->type() == QEvent::KeyPress && tecla)
            return tecla(static_cast<QKeyEvent*>(e));
        if (e->type() == QEvent::FocusOut && pierdeFoco)
            pierdeFoco();
        return QObject::eventFilter(o, e);
    }
};

// The key handlers of a control: KeyDown with the key code, then KeyPress with the character,
// which a handler may swallow (0) or change.
bool TeclaAlModelo(Control& c, QKeyEvent* ev, const std::function<void(const QString&)>& inserta)
{
    c.KeyDown(CodigoTecla(ev->key()));
    const QString texto = ev->text();
    if (!c.onKeyPress || texto.size() != 1 || texto[0].unicode() < 32)
        return false;
    const int original = texto[0].unicode();
    const int k = c.KeyPress(original);
    if (k == original)
        return false;
    if (k != 0 && inserta)
        inserta(QString(QChar(k)));
    return true;
}

class AdTexto : public Adaptador {
public:
    AdTexto(Control& c, VistaForm& v, const OpcionesAdaptador& op) : Adaptador(c, v), op_(op)
    {
        filtro_ = new Filtro();
        if (op.multilinea) {
            area_ = new QPlainTextEdit();
            area_->setTabChangesFocus(true);
            area_->installEventFilter(filtro_);
            QObject::connect(area_, &QPlainTextEdit::textChanged, &contexto_, [this] {
                if (!refrescando_)
                    Accion([this] { control_.SetText(AModelo(area_->toPlainText())); });
            });
        } else {
            linea_ = new QLineEdit();
            linea_->installEventFilter(filtro_);
            if (op.alTerminar)
                QObject::connect(linea_, &QLineEdit::editingFinished, &contexto_, [this] {
                    if (Q(control_.Text()) != linea_->text())
                        Accion([this] { control_.SetText(linea_->text().toStdString()); });
                });
            else
                QObject::connect(linea_, &QLineEdit::textEdited, &contexto_, [this](const QString& t) { Accion([this, t] { control_.SetText(t.toStdString()); }); });
        }
        filtro_->setParent(&contexto_);
        filtro_->tecla = [this](QKeyEvent* ev) {
            bool tragada = false;
            Accion([&] {
                tragada = TeclaAlModelo(control_, ev, [this](const QString& s) {
                    if (linea_)
                        linea_->insert(s);
                    else
                        area_->insertPlainText(s);
                    if (linea_ && !op_.alTerminar)
                        control_.SetText(linea_->text().toStdString());
                });
            });
            return tragada;
        };
        filtro_->pierdeFoco = [this] {
            if (control_.onLostFocus)
                Accion([this] { control_.onLostFocus(control_); });
        };
    }
    QWidget* widget() const override
    {
        if (area_)
            return area_;
        return linea_;
    }
    void Refresca() override
    {
        refrescando_ = true;
        if (area_) {
            const QString t = Q(control_.Text()).remove('\r');
            if (area_->toPlainText() != t)
                area_->setPlainText(t);
            const bool gris = !control_.Get("ForeColor").empty();
            area_->setStyleSheet(gris ? "QPlainTextEdit { color: #808080; font-style: italic; }" : "");
        } else {
            const QString t = Q(control_.Text());
            if (linea_->text() != t) {
                linea_->setText(t);
                // A text longer than the box shows its beginning, unless the user is typing in it.
                if (!linea_->hasFocus())
                    linea_->setCursorPosition(0);
            }
        }
        refrescando_ = false;
        RefrescaComun();
    }

private:
    // A box of several lines keeps CR LF in the model, as the run time did.
    static std::string AModelo(const QString& t)
    {
        std::string s;
        for (char ch : t.toStdString()) {
            if (ch == '\n')
                s += '\r';
            s += ch;
        }
        return s;
    }

    OpcionesAdaptador op_;
    QLineEdit* linea_ = nullptr;
    QPlainTextEdit* area_ = nullptr;
    Filtro* filtro_ = nullptr;
    bool refrescando_ = false;
};

class AdCombo : public Adaptador {
public:
    AdCombo(Control& c, VistaForm& v) : Adaptador(c, v), combo_(new QComboBox())
    {
        combo_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        QObject::connect(combo_, &QComboBox::activated, &contexto_, [this](int i) { Accion([this, i] { control_.SetListIndex(i); }); });
    }
    QWidget* widget() const override { return combo_; }
    void Refresca() override
    {
        PoneItems(combo_, control_.Items());
        combo_->setCurrentIndex(control_.ListIndex());
        RefrescaComun();
    }

private:
    QComboBox* combo_;
};

class AdLista : public Adaptador {
public:
    AdLista(Control& c, VistaForm& v) : Adaptador(c, v), lista_(new QListWidget())
    {
        QObject::connect(lista_, &QListWidget::currentRowChanged, &contexto_, [this](int fila) {
            if (refrescando_ || fila < 0)
                return;
            recien_ = true;
            Accion([this, fila] { control_.SetListIndex(fila); });
        });
        QObject::connect(lista_, &QListWidget::itemClicked, &contexto_, [this](QListWidgetItem* item) {
            if (recien_) {
                recien_ = false;
                return;
            }
            const int fila = lista_->row(item);
            Accion([this, fila] { control_.SetListIndex(fila); });
        });
        QObject::connect(lista_, &QListWidget::itemDoubleClicked, &contexto_, [this](QListWidgetItem*) {
            recien_ = false;
            Accion([this] { control_.DblClick(); });
        });
        filtro_ = new Filtro(&contexto_);
        filtro_->tecla = [this](QKeyEvent* ev) {
            if (ev->key() == Qt::Key_Delete)
                Accion([this] { control_.KeyDown(46); });
            return false;
        };
        lista_->installEventFilter(filtro_);
    }
    QWidget* widget() const override { return lista_; }
    void Refresca() override
    {
        refrescando_ = true;
        QStringList items;
        for (const auto& s : control_.Items())
            items << Q(s);
        bool igual = lista_->count() == items.size();
        for (int i = 0; igual && i < items.size(); ++i)
            igual = lista_->item(i)->text() == items[i];
        if (!igual) {
            lista_->clear();
            lista_->addItems(items);
        }
        if (lista_->currentRow() != control_.ListIndex())
            lista_->setCurrentRow(control_.ListIndex());
        refrescando_ = false;
        RefrescaComun();
    }

private:
    QListWidget* lista_;
    Filtro* filtro_;
    bool refrescando_ = false;
    bool recien_ = false;
};

class AdCheck : public Adaptador {
public:
    AdCheck(Control& c, VistaForm& v) : Adaptador(c, v), check_(new QCheckBox())
    {
        QObject::connect(check_, &QCheckBox::clicked, &contexto_, [this] { Accion([this] { control_.Click(); }); });
    }
    QWidget* widget() const override { return check_; }
    void Refresca() override
    {
        check_->setText(Q(EtiquetaDe(control_)));
        const int v = control_.CheckValue();
        check_->setCheckState(v == 1 ? Qt::Checked : v == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
        RefrescaComun();
    }

private:
    QCheckBox* check_;
};

class AdOpcion : public Adaptador {
public:
    AdOpcion(Control& c, VistaForm& v) : Adaptador(c, v), opcion_(new QRadioButton())
    {
        // The model keeps the buttons of a group exclusive.
        opcion_->setAutoExclusive(false);
        QObject::connect(opcion_, &QRadioButton::clicked, &contexto_, [this] { Accion([this] { control_.Click(); }); });
    }
    QWidget* widget() const override { return opcion_; }
    void Refresca() override
    {
        opcion_->setText(Q(EtiquetaDe(control_)));
        opcion_->setChecked(control_.OptionValue());
        RefrescaComun();
    }

private:
    QRadioButton* opcion_;
};

class AdEtiqueta : public Adaptador {
public:
    AdEtiqueta(Control& c, VistaForm& v) : Adaptador(c, v), label_(new QLabel()) { label_->setWordWrap(true); }
    QWidget* widget() const override { return label_; }
    void Refresca() override
    {
        label_->setText(Q(control_.Caption()));
        RefrescaComun();
    }

private:
    QLabel* label_;
};

class AdBoton : public Adaptador {
public:
    AdBoton(Control& c, VistaForm& v) : Adaptador(c, v), boton_(new QPushButton())
    {
        QObject::connect(boton_, &QPushButton::clicked, &contexto_, [this] { Accion([this] { control_.Click(); }); });
    }
    QWidget* widget() const override { return boton_; }
    void Refresca() override
    {
        boton_->setText(Q(EtiquetaDe(control_)));
        RefrescaComun();
    }

private:
    QPushButton* boton_;
};

class AdMarco : public Adaptador {
public:
    AdMarco(Control& c, VistaForm& v) : Adaptador(c, v), marco_(new QGroupBox()) {}
    QWidget* widget() const override { return marco_; }
    void Refresca() override
    {
        marco_->setTitle(Q(control_.Caption()));
        RefrescaComun();
    }

private:
    QGroupBox* marco_;
};

// A colour of the run time: a number in blue-green-red order, decimal or "&H...&".
QColor ColorVb(const std::string& texto)
{
    std::string t = texto;
    int base = 10;
    if (t.size() > 2 && (t[0] == '&') && (t[1] == 'H' || t[1] == 'h')) {
        t = t.substr(2);
        if (!t.empty() && t.back() == '&')
            t.pop_back();
        base = 16;
    }
    const unsigned long v = std::strtoul(t.c_str(), nullptr, base);
    return QColor(static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF), static_cast<int>((v >> 16) & 0xFF));
}

// The stored result: report RTF shown as HTML, anything else as plain text. A rich text box
// given a font of its own ("FontName") holds a table made by the form: it shows as it stands, in
// a fixed-width font and the box's colour, each line whole, and as tall as its lines.
class AdRtf : public Adaptador {
public:
    AdRtf(Control& c, VistaForm& v) : Adaptador(c, v), texto_(new QTextBrowser()) {}
    QWidget* widget() const override { return texto_; }
    void Refresca() override
    {
        const bool tabla = !control_.Get("FontName").empty();
        if (control_.Text() != mostrado_) {
            mostrado_ = control_.Text();
            if (tabla)
                MuestraTabla();
            else if (mostrado_.empty())
                texto_->setHtml("<p style='color:#808080'><i>Sin resultados guardados para este elemento.</i></p>");
            else
                texto_->setHtml(Q(RtfAHtml(mostrado_)));
        }
        texto_->setToolTip(Q(control_.ToolTipText()));
        texto_->setEnabled(control_.Enabled());
    }

private:
    void MuestraTabla()
    {
        QFont fija = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        fija.setFamilies({Q(control_.Get("FontName")), fija.family()});
        fija.setPointSizeF(8);
        texto_->setFont(fija);
        texto_->setLineWrapMode(QTextEdit::NoWrap);
        const QFontMetrics m(fija);
        // Tab stops every 8 characters, or as many as the table asks for ("TabStop").
        const int tab = std::max(1, std::atoi(control_.Get("TabStop").c_str()));
        texto_->setTabStopDistance((control_.Get("TabStop").empty() ? 8 : tab) * m.horizontalAdvance(' '));
        QPalette p = texto_->palette();
        const std::string color = control_.Get("ForeColor");
        p.setColor(QPalette::Text, color.empty() ? QColor(Qt::black) : ColorVb(color));
        texto_->setPalette(p);
        const QString t = Q(mostrado_).remove('\r');
        texto_->setPlainText(t);
        const int lineas = std::max(2, static_cast<int>(t.count('\n')) + 1);
        const int alto = lineas * m.lineSpacing() + 2 * texto_->frameWidth() + 12;
        texto_->setMinimumHeight(std::min(alto, 30 * m.lineSpacing()));
        texto_->setMaximumHeight(alto);
    }

    QTextBrowser* texto_;
    std::string mostrado_ = "-";
};

}  // namespace

void Adaptador::Accion(const std::function<void()>& f) { vista_.Ejecuta(f); }

void Adaptador::RefrescaComun()
{
    QWidget* w = widget();
    w->setEnabled(control_.Enabled());
    w->setToolTip(Q(control_.ToolTipText()));
    // A widget that no window holds yet would show as a window of its own: it takes its
    // visibility once it is placed.
    if (w->parentWidget())
        w->setVisible(control_.Visible());
}

std::unique_ptr<Adaptador> CreaAdaptador(Control& c, VistaForm& v, const OpcionesAdaptador& op)
{
    switch (c.kind()) {
    case Kind::TextBox: return std::make_unique<AdTexto>(c, v, op);
    case Kind::ComboBox: return std::make_unique<AdCombo>(c, v);
    case Kind::ListBox: return std::make_unique<AdLista>(c, v);
    case Kind::CheckBox: return std::make_unique<AdCheck>(c, v);
    case Kind::OptionButton: return std::make_unique<AdOpcion>(c, v);
    case Kind::CommandButton: return std::make_unique<AdBoton>(c, v);
    case Kind::Frame: return std::make_unique<AdMarco>(c, v);
    case Kind::RichTextBox: return std::make_unique<AdRtf>(c, v);
    case Kind::UCNumDiam:
    case Kind::UCNumDiamSep:
    case Kind::UCZapatas:
    case Kind::UCMallazo: return CreaAdaptadorRefuerzo(c, v);
    case Kind::UCPerfil: return CreaAdaptadorPerfil(c, v);
    case Kind::Label:
    case Kind::PictureBox: return std::make_unique<AdEtiqueta>(c, v);
    }
    return std::make_unique<AdEtiqueta>(c, v);
}

std::string EtiquetaDe(const Control& c) { return c.Caption().empty() ? c.Label() : c.Caption(); }

VistaForm::VistaForm(Form& form) : form_(form) {}
VistaForm::~VistaForm() = default;

Adaptador& VistaForm::De(Control& c, const OpcionesAdaptador& op)
{
    auto it = adaptadores_.find(&c);
    if (it == adaptadores_.end()) {
        it = adaptadores_.emplace(&c, CreaAdaptador(c, *this, op)).first;
        // The widget answers to the control's name, as tests and accessibility tools find it.
        it->second->widget()->setObjectName(Q(c.Label()));
        it->second->Refresca();
    }
    return *it->second;
}

QWidget* VistaForm::Widget(std::string_view nombre, int index, const OpcionesAdaptador& op)
{
    return De(form_.At(nombre, index), op).widget();
}

std::function<void(const std::string&)>& VistaForm::Detiene()
{
    static std::function<void(const std::string&)> detiene = [](const std::string& motivo) {
        std::fprintf(stderr, "vardena-gui: %s\n", motivo.c_str());
        std::exit(1);
    };
    return detiene;
}

void VistaForm::Ejecuta(const std::function<void()>& accion)
{
    try {
        accion();
    } catch (const ProgramHalt& e) {
        Detiene()(e.what());
        return;
    } catch (const std::exception& e) {
        // A failure outside any handler's guard: the error window, then as it answers.
        if (!form_.decl().ui.ErrorFrm(form_.Name(), 5, e.what())) {
            Detiene()(e.what());
            return;
        }
    }
    Refresca();
    if (trasAccion)
        trasAccion();
}

void VistaForm::Refresca()
{
    if (refrescando_)
        return;
    refrescando_ = true;
    for (auto& [control, adaptador] : adaptadores_)
        adaptador->Refresca();
    refrescando_ = false;
}

void PoneItems(QComboBox* combo, const std::vector<std::string>& items)
{
    QStringList nuevos;
    for (const auto& s : items)
        nuevos << Q(s);
    QStringList actuales;
    for (int i = 0; i < combo->count(); ++i)
        actuales << combo->itemText(i);
    if (nuevos != actuales) {
        combo->clear();
        combo->addItems(nuevos);
    }
}

QLabel* Etiqueta(const std::string& texto, QWidget* padre)
{
    auto* l = new QLabel(Q(texto), padre);
    l->setStyleSheet("color: #303848;");
    return l;
}

}  // namespace vardena
