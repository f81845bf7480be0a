#include "controls/DialogoClaseAcero.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "steel_timber/ClaseAcero.h"

namespace vardena {

DialogoClaseAcero::DialogoClaseAcero(FrmClaseAcero& form, QWidget* parent) : QDialog(parent), vista_(form)
{
    setWindowTitle(Q(form.Caption()));
    setModal(true);
    auto* v = new QVBoxLayout(this);
    auto* fila = new QHBoxLayout();
    for (auto [etiqueta, lista] : {std::pair{"Label1", "CmbPerfil"}, std::pair{"Label2", "CmbAcero"}}) {
        fila->addWidget(vista_.Widget(etiqueta));
        QWidget* w = vista_.Widget(lista);
        w->setMinimumWidth(120);
        fila->addWidget(w);
        fila->addSpacing(16);
    }
    QWidget* acero = vista_.Widget("LbAcero");
    acero->setStyleSheet("font-weight: bold; color: #1d3557;");
    fila->addWidget(acero);
    fila->addStretch();
    v->addLayout(fila);
    auto* titulo = new QLabel(Q(form.At("RichTextBox1").Caption()));
    titulo->setStyleSheet("color: #303848;");
    v->addWidget(titulo);
    QWidget* tabla = vista_.Widget("RichTextBox1");
    tabla->setMaximumHeight(QWIDGETSIZE_MAX);
    v->addWidget(tabla, 1);
    auto* botones = new QHBoxLayout();
    botones->addStretch();
    for (const char* b : {"cmdCalcular", "CmdSalir"}) {
        auto* boton = qobject_cast<QPushButton*>(vista_.Widget(b));
        boton->setAutoDefault(false);
        boton->setMinimumWidth(110);
        botones->addWidget(boton);
    }
    v->addLayout(botones);
    vista_.trasAccion = [this, &form] {
        if (form.Descargado())
            accept();
    };
    vista_.Refresca();
    resize(980, 560);
}

}  // namespace vardena
