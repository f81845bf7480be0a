#include "controls/DialogoFichas.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "concrete/ForjUnid.h"
#include "concrete/ForjUnid2.h"

namespace vardena {
namespace {

// The headings of the table's columns, in the order of a row: the choice, the name, the twelve
// numbers with the unit of their group.
constexpr const char* kCabeceras[] = {"",       "Vigueta", "Módulo\n(cm3/m)", "b",      "M último\n(m·kN/m)",
                                      "E·Ih\n(m2·kN/m)", "E·Ifis\n(m2·kN/m)", "Mo\n(m·kN/m)", "Mo'", "Mo2",
                                      "Vu (1)\n(kN/m)", "Vu (2)", "Vu (3)", "Rasante\nVu"};

QGroupBox* Marco(const QString& titulo)
{
    auto* g = new QGroupBox(titulo);
    g->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; }");
    return g;
}

}  // namespace

DialogoFichas::DialogoFichas(FrmForjUnid2& form, QWidget* parent) : QDialog(parent), form_(form), vista_(form)
{
    setWindowTitle(Q(form.Caption()));
    setModal(true);
    auto* v = new QVBoxLayout(this);
    auto* cuerpo = new QHBoxLayout();
    v->addLayout(cuerpo, 1);

    // The kind and its systems.
    auto* lista = Marco(Q(form.At("UCframeLista").Caption()));
    auto* ll = new QVBoxLayout(lista);
    for (int i = 0; i < 3; ++i)
        ll->addWidget(vista_.Widget("OpTipoFor", i));
    QWidget* sistemas = vista_.Widget("ListFor");
    sistemas->setMinimumWidth(260);
    ll->addWidget(sistemas, 1);
    auto* masMenos = new QHBoxLayout();
    masMenos->addWidget(vista_.Widget("UCBforjMas"));
    masMenos->addWidget(vista_.Widget("UCBforjMenos"));
    ll->addLayout(masMenos);
    cuerpo->addWidget(lista);

    auto* derecha = new QVBoxLayout();
    cuerpo->addLayout(derecha, 1);
    // The system: its name and geometry.
    auto* sistema = Marco(Q(form.At("UCframeForjado").Caption()));
    auto* ls = new QGridLayout(sistema);
    ls->addWidget(Etiqueta("Nombre"), 0, 0);
    ls->addWidget(vista_.Widget("TxFor"), 0, 1, 1, 7);
    const std::pair<const char*, const char*> geometria[] = {
        {"TXFanchoVig", "Ancho vigueta (cm)"}, {"TXFintereje", "Intereje (cm)"},
        {"TXFcantoBov", "Canto bovedilla (cm)"}, {"TXFcompr", "Capa compresión (cm)"}};
    int col = 0;
    for (const auto& [nombre, texto] : geometria) {
        ls->addWidget(Etiqueta(texto), 1, col);
        QWidget* w = vista_.Widget(nombre);
        w->setMaximumWidth(70);
        ls->addWidget(w, 1, col + 1);
        col += 2;
    }
    ls->addWidget(Etiqueta("nº líneas medición"), 2, 0);
    QWidget* nlin = vista_.Widget("Nlin");
    nlin->setMaximumWidth(70);
    ls->addWidget(nlin, 2, 1);
    ls->addWidget(vista_.Widget("UCBmas"), 2, 2);
    ls->addWidget(vista_.Widget("UCBmenos"), 2, 3);
    derecha->addWidget(sistema);

    // The section rows as a table, scrolled when they don't fit.
    auto* filas = Marco(Q(form.At("UCframeFilas").Caption()));
    auto* lf = new QVBoxLayout(filas);
    auto* scroll = new QScrollArea();
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* tabla = new QWidget();
    auto* lt = new QGridLayout(tabla);
    lt->setHorizontalSpacing(4);
    lt->setVerticalSpacing(2);
    for (int c = 0; c < static_cast<int>(std::size(kCabeceras)); ++c) {
        auto* e = Etiqueta(kCabeceras[c]);
        e->setAlignment(Qt::AlignCenter);
        lt->addWidget(e, 0, c);
    }
    for (int r = 0; r < kFilasFicha; ++r) {
        lt->addWidget(vista_.Widget("OpFila", r), r + 1, 0);
        QWidget* nombre = vista_.Widget("TXFnombre", r);
        nombre->setMinimumWidth(90);
        lt->addWidget(nombre, r + 1, 1);
        for (int k = 0; k < kColumnasFicha; ++k) {
            QWidget* w = vista_.Widget(kCamposFicha[static_cast<size_t>(k)], r);
            w->setMinimumWidth(k == 0 ? 72 : 52);
            if (auto* e = qobject_cast<QLineEdit*>(w))
                e->setAlignment(Qt::AlignRight);
            lt->addWidget(w, r + 1, k + 2);
        }
    }
    lt->setRowStretch(kFilasFicha + 1, 1);
    scroll->setWidget(tabla);
    lf->addWidget(scroll);
    derecha->addWidget(filas, 1);

    auto* botones = new QHBoxLayout();
    botones->addStretch();
    for (const char* b : {"UCBguardar", "UCBcancela", "UCBelegir"}) {
        auto* boton = qobject_cast<QPushButton*>(vista_.Widget(b));
        boton->setAutoDefault(false);
        boton->setMinimumWidth(110);
        botones->addWidget(boton);
    }
    v->addLayout(botones);

    vista_.trasAccion = [this] {
        if (form_.Descargado())
            accept();
    };
    vista_.Refresca();
}

}  // namespace vardena
