#include "controls/DialogoFabrica.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "frame/GruposVentana.h"
#include "ground_masonry/Fabrica.h"

namespace vardena {

DialogoFabrica::DialogoFabrica(FrmFabrica& form, QWidget* parent) : QDialog(parent), vista_(form)
{
    setWindowTitle(Q(form.Caption()));
    setModal(true);
    auto* v = new QVBoxLayout(this);
    auto* cabecera = new QLabel(Q(form.Caption()));
    cabecera->setStyleSheet("font-size: 15px; font-weight: bold; color: #1d3557;");
    v->addWidget(cabecera);
    auto* columnas = new QHBoxLayout();
    v->addLayout(columnas);
    v->addStretch(1);
    // The two frames the dialog declares; the hidden unrounded fk and the buttons stand in none.
    std::vector<GrupoCampos> grupos = AgrupaCampos(form);
    grupos.resize(std::min(grupos.size(), GruposFabrica().size()));
    for (const GrupoCampos& g : grupos) {
        auto* grupo = new QGroupBox(Q(g.titulo));
        grupo->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
        auto* rejilla = new QGridLayout(grupo);
        rejilla->setVerticalSpacing(4);
        int fila = 0;
        for (Control* c : g.miembros) {
            OpcionesAdaptador op;
            // The fields that calculate take their text when editing ends.
            op.alTerminar = c->kind() == Kind::TextBox && static_cast<bool>(c->onChange);
            QWidget* w = vista_.De(*c, op).widget();
            if (auto* linea = qobject_cast<QLineEdit*>(w))
                linea->setMaximumWidth(110);
            if (auto* lista = qobject_cast<QComboBox*>(w))
                lista->setMinimumWidth(220);
            rejilla->addWidget(Etiqueta(EtiquetaEnGrupo(*c, g)), fila, 0);
            rejilla->addWidget(w, fila, 1);
            // The unit: the pair of a stress field, or the density's.
            auto* unidad = new QWidget();
            auto* h = new QHBoxLayout(unidad);
            h->setContentsMargins(0, 0, 0, 0);
            if (c->Name() == "TxtQ") {
                for (const char* par : {"lbST", "lbSI"})
                    if (Control* u = form.Find(par, c->Index()))
                        h->addWidget(vista_.De(*u).widget());
            } else if (c->Name() == "TxtDensidad") {
                h->addWidget(vista_.Widget("lbDensidad"));
            }
            h->addStretch();
            for (QLabel* l : unidad->findChildren<QLabel*>())
                l->setWordWrap(false);
            rejilla->addWidget(unidad, fila++, 2);
        }
        rejilla->setRowStretch(fila, 1);
        rejilla->setColumnStretch(2, 1);
        columnas->addWidget(grupo, 1);
    }
    auto* botones = new QHBoxLayout();
    botones->addStretch();
    for (const char* nombre : {"cmdAyuda", "CmdSalir"}) {
        auto* b = qobject_cast<QPushButton*>(vista_.Widget(nombre));
        if (!b)
            continue;
        b->setAutoDefault(false);
        b->setMinimumWidth(nombre == std::string("CmdSalir") ? 120 : 40);
        botones->addWidget(b);
    }
    v->addLayout(botones);
    setMinimumWidth(720);
    // "SALIR" saves and closes the form; the window follows. Closed by its window control, the
    // caller unloads the form, which hands back without saving.
    vista_.trasAccion = [this, &form] {
        if (form.Descargado())
            accept();
    };
    vista_.Refresca();
}

}  // namespace vardena
