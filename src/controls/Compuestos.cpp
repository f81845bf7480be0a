#include "controls/Compuestos.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "frame/Refuerzos.h"
#include "frame/UCPerfil.h"

namespace vardena {
namespace {

QString Recorta(const std::string& s) { return Q(s).trimmed(); }

// Shows `valor` in a pick list: its row when there is one, else the value as the list's
// placeholder with no row chosen.
void MuestraEnLista(QComboBox* combo, const std::string& valor)
{
    const QString v = Recorta(valor);
    int fila = -1;
    for (int i = 0; i < combo->count(); ++i)
        if (combo->itemText(i).trimmed() == v)
            fila = i;
    combo->setPlaceholderText(v);
    combo->setCurrentIndex(fila);
}

void MuestraTexto(QLineEdit* edit, const std::string& valor)
{
    if (!edit->hasFocus() && edit->text() != Q(valor))
        edit->setText(Q(valor));
}

QFrame* Marco()
{
    auto* f = new QFrame();
    f->setFrameShape(QFrame::StyledPanel);
    f->setStyleSheet("QFrame { background: #f4f6fa; }");
    return f;
}

QLineEdit* Caja(int ancho)
{
    auto* e = new QLineEdit();
    e->setFixedWidth(ancho);
    return e;
}

class AdRefuerzo : public Adaptador {
public:
    AdRefuerzo(Control& c, VistaForm& v) : Adaptador(c, v), marco_(Marco())
    {
        auto* fila = new QHBoxLayout(marco_);
        fila->setContentsMargins(4, 2, 4, 2);
        fila->setSpacing(3);
        const Kind k = c.kind();
        if (k == Kind::UCZapatas) {
            numTexto_ = Caja(36);
            fila->addWidget(numTexto_);
            QObject::connect(numTexto_, &QLineEdit::textEdited, [this](const QString& t) {
                Accion([this, t] { EscribeNumBarras(control_, t.toStdString()); });
            });
        } else if (!FilasRefuerzo(k, ListaRefuerzo::Num).empty()) {
            num_ = Lista(ListaRefuerzo::Num);
            fila->addWidget(num_);
        }
        fila->addWidget(new QLabel("Ø"));
        diam_ = Lista(ListaRefuerzo::Diam);
        fila->addWidget(diam_);
        if (k != Kind::UCNumDiam) {
            fila->addWidget(new QLabel("c/"));
            sep_ = Caja(40);
            fila->addWidget(sep_);
            QObject::connect(sep_, &QLineEdit::textEdited, [this](const QString& t) {
                Accion([this, t] { EscribeSeparacion(control_, t.toStdString()); });
            });
        }
        if (k == Kind::UCZapatas) {
            ancho_ = new QLabel();
            fila->addWidget(ancho_);
        }
        fila->addStretch();
    }
    QWidget* widget() const override { return marco_; }
    void Refresca() override
    {
        if (num_)
            MuestraEnLista(num_, control_.Get("NumBarras"));
        if (numTexto_)
            MuestraTexto(numTexto_, control_.Get("NumBarras"));
        MuestraEnLista(diam_, control_.Get("Diametro"));
        if (sep_)
            MuestraTexto(sep_, control_.Get("Separacion"));
        if (ancho_)
            ancho_->setText(Q("ancho " + control_.Get("AnchoZap")));
        RefrescaComun();
    }

private:
    QComboBox* Lista(ListaRefuerzo lista)
    {
        auto* combo = new QComboBox();
        for (const auto& s : FilasRefuerzo(control_.kind(), lista))
            combo->addItem(Recorta(s));
        QObject::connect(combo, &QComboBox::activated,
                         [this, lista](int i) { Accion([this, lista, i] { EligeFilaRefuerzo(control_, lista, i); }); });
        return combo;
    }

    QFrame* marco_;
    QComboBox* num_ = nullptr;
    QComboBox* diam_ = nullptr;
    QLineEdit* numTexto_ = nullptr;
    QLineEdit* sep_ = nullptr;
    QLabel* ancho_ = nullptr;
};

class AdPerfil : public Adaptador {
public:
    AdPerfil(Control& c, VistaForm& v) : Adaptador(c, v), marco_(Marco())
    {
        auto* g = new QGridLayout(marco_);
        g->setContentsMargins(4, 2, 4, 2);
        g->setSpacing(3);
        num_ = new QPushButton();
        num_->setFixedWidth(28);
        num_->setToolTip("Uno o dos perfiles");
        QObject::connect(num_, &QPushButton::clicked, [this] { Accion([this] { PerfilCambiaNum(control_); }); });
        familia_ = new QComboBox();
        for (const auto& f : FamiliasPerfil())
            familia_->addItem(Q(f));
        QObject::connect(familia_, &QComboBox::activated,
                         [this](int i) { Accion([this, i] { PerfilEligeFamilia(control_, i); }); });
        tamano_ = new QComboBox();
        QObject::connect(tamano_, &QComboBox::activated,
                         [this](int i) { Accion([this, i] { PerfilEligeTamano(control_, i); }); });
        g->addWidget(num_, 0, 0);
        g->addWidget(familia_, 0, 1);
        g->addWidget(tamano_, 0, 2);
        const char* props[] = {"Canto", "Ancho", "Area", "Ix", "Iy"};
        for (int i = 0; i < 5; ++i) {
            auto* caja = new QWidget();
            auto* h = new QHBoxLayout(caja);
            h->setContentsMargins(0, 0, 0, 0);
            h->setSpacing(2);
            h->addWidget(new QLabel(props[i]));
            datos_[i] = Caja(52);
            h->addWidget(datos_[i]);
            g->addWidget(caja, 1 + i / 3, i % 3);
            const std::string prop = props[i];
            QObject::connect(datos_[i], &QLineEdit::textEdited, [this, prop](const QString& t) {
                Accion([this, prop, t] { PerfilEscribeDato(control_, prop, t.toStdString()); });
            });
            if (i >= 2)
                QObject::connect(datos_[i], &QLineEdit::editingFinished,
                                 [this, prop] { Accion([this, prop] { PerfilDejaDato(control_, prop); }); });
        }
    }
    QWidget* widget() const override { return marco_; }
    void Refresca() override
    {
        num_->setText(Q(control_.Get("Num")));
        const std::string perfil = control_.Get("Perfil");
        familia_->setCurrentIndex(IndiceFamiliaPerfil(perfil));
        const VistaPerfil vista = VistaDePerfil(control_);
        PoneItems(tamano_, vista.tamanos);
        tamano_->setVisible(!vista.tamanos.empty());
        tamano_->setCurrentIndex(vista.tamanoElegido);
        const bool propio = EsSeccionUsuario(perfil);
        const std::string valores[] = {control_.Get("Canto"), control_.Get("Ancho"), propio ? control_.Get("Area") : vista.area,
                                       propio ? control_.Get("Ix") : vista.ix, propio ? control_.Get("Iy") : vista.iy};
        for (int i = 0; i < 5; ++i) {
            MuestraTexto(datos_[i], valores[i]);
            // A catalogue section computes its sizes: only the distance between two sections is typed.
            datos_[i]->setReadOnly(!propio && i != 1);
        }
        RefrescaComun();
    }

private:
    QFrame* marco_;
    QPushButton* num_;
    QComboBox* familia_;
    QComboBox* tamano_;
    QLineEdit* datos_[5] = {};
};

}  // namespace

std::unique_ptr<Adaptador> CreaAdaptadorRefuerzo(Control& c, VistaForm& vista)
{
    return std::make_unique<AdRefuerzo>(c, vista);
}

std::unique_ptr<Adaptador> CreaAdaptadorPerfil(Control& c, VistaForm& vista)
{
    return std::make_unique<AdPerfil>(c, vista);
}

}  // namespace vardena
