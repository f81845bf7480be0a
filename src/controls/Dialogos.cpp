#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "building/Mapas.h"
#include "building/SistUnid.h"
#include "concrete/ForjUnid2.h"
#include "controls/DialogoFichas.h"
#include "controls/DialogoFabrica.h"
#include "controls/DialogoClaseAcero.h"
#include "controls/DialogosMapas.h"
#include "ground_masonry/Fabrica.h"
#include "controls/Ventanas.h"
#include "steel_timber/ClaseAcero.h"
#include "works/LngPack.h"
#include "application/Mantenimiento.h"

namespace vardena {
namespace {

// The names of the buttons that cancel a dialog, as Escape presses them.
bool EsCancelar(const std::string& n) { return n == "Cancelar" || n == "Cmdcancela"; }

// Controls of several lines in the dialogs.
bool EsMultilinea(const std::string& n) { return n == "descrN"; }

// When a dialog form has closed itself.
std::function<bool()> Cerrado(Form& form)
{
    if (auto* f = dynamic_cast<DialogoObra*>(&form))
        return [f] { return f->Descargado(); };
    if (auto* f = dynamic_cast<FrmIdioma*>(&form))
        return [f] { return f->Descargado(); };
    if (auto* f = dynamic_cast<SistUnid*>(&form))
        return [f] { return f->Descargado(); };
    return [] { return true; };
}

// The unit systems' dialog: the chosen system, its units and the fixed table.
class DialogoSistUnid : public QDialog {
public:
    DialogoSistUnid(SistUnid& form, QWidget* parent) : QDialog(parent), vista_(form)
    {
        setWindowTitle(Q(form.Caption()));
        auto* v = new QVBoxLayout(this);
        auto* titulo = vista_.Widget("Label3");
        titulo->setStyleSheet("font-size: 15px; font-weight: bold; color: #1d3557;");
        v->addWidget(titulo);
        auto* marcos = new QHBoxLayout();
        for (auto [marco, indice] : {std::pair{"FrSistema", 0}, std::pair{"FrUnidades", 1}}) {
            auto* g = new QGroupBox(Q(form.At(marco).Caption()));
            auto* h = new QHBoxLayout(g);
            h->addWidget(vista_.Widget("lbST", indice));
            h->addWidget(vista_.Widget("lbSI", indice));
            marcos->addWidget(g, indice == 0 ? 1 : 3);
        }
        v->addLayout(marcos);
        v->addWidget(vista_.Widget("Label1"));
        const auto& filas = Equivalencias();
        auto* tabla = new QTableWidget(static_cast<int>(filas.size()), 5);
        QStringList cabeceras;
        for (const char* c : CabecerasEquivalencias())
            cabeceras << Q(c);
        tabla->setHorizontalHeaderLabels(cabeceras);
        tabla->verticalHeader()->setVisible(false);
        tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
        for (int r = 0; r < static_cast<int>(filas.size()); ++r) {
            tabla->setItem(r, 0, new QTableWidgetItem(Q(form.At("TextDescr", r).Caption())));
            for (int c = 1; c < 5; ++c)
                tabla->setItem(r, c, new QTableWidgetItem(Q(filas[static_cast<size_t>(r)][static_cast<size_t>(c)])));
        }
        tabla->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
        tabla->setMinimumSize(560, 250);
        v->addWidget(tabla);
        auto* aceptar = vista_.Widget("Aceptar");
        v->addWidget(aceptar, 0, Qt::AlignRight);
        vista_.trasAccion = [this, &form] {
            if (form.Descargado())
                accept();
        };
        vista_.Refresca();
    }

private:
    VistaForm vista_;
};

}  // namespace

VentanaDialogo::VentanaDialogo(Form& form, std::function<bool()> cerrado, QWidget* parent)
    : QDialog(parent), form_(form), vista_(form), cerrado_(std::move(cerrado))
{
    setWindowTitle(Q(form.Caption()));
    setModal(true);
    auto* v = new QVBoxLayout(this);
    auto* rejilla = new QGridLayout();
    rejilla->setColumnStretch(1, 1);
    auto* botones = new QHBoxLayout();
    botones->addStretch();
    int fila = 0;
    for (Control* c : form.Controls()) {
        if (!c->Visible() && c->kind() == Kind::ListBox)
            continue;
        switch (c->kind()) {
        case Kind::CommandButton: {
            auto* b = qobject_cast<QPushButton*>(vista_.De(*c).widget());
            b->setAutoDefault(false);
            b->setMinimumWidth(100);
            botones->addWidget(b);
            break;
        }
        case Kind::Label:
        case Kind::CheckBox:
        case Kind::OptionButton:
            rejilla->addWidget(vista_.De(*c).widget(), fila++, c->kind() == Kind::Label ? 0 : 1, 1,
                               c->kind() == Kind::Label ? 2 : 1);
            break;
        default: {
            OpcionesAdaptador op;
            op.multilinea = EsMultilinea(c->Name());
            rejilla->addWidget(Etiqueta(EtiquetaDe(*c)), fila, 0, Qt::AlignTop);
            QWidget* w = vista_.De(*c, op).widget();
            if (op.multilinea)
                w->setMinimumHeight(90);
            rejilla->addWidget(w, fila++, 1);
        }
        }
    }
    v->addLayout(rejilla);
    v->addLayout(botones);
    setMinimumWidth(480);
    vista_.trasAccion = [this] {
        if (cerrado_())
            accept();
    };
    vista_.Refresca();
}

void VentanaDialogo::reject()
{
    // Escape and the window control press the dialog's own cancel button.
    for (Control* c : form_.Controls())
        if (c->kind() == Kind::CommandButton && EsCancelar(c->Name())) {
            vista_.Ejecuta([c] { c->Click(); });
            break;
        }
    QDialog::reject();
}

std::unique_ptr<QDialog> CreaDialogo(Form& form, QWidget* parent)
{
    if (auto* s = dynamic_cast<SistUnid*>(&form))
        return std::make_unique<DialogoSistUnid>(*s, parent);
    if (auto* m = dynamic_cast<DialogoAcciones*>(&form))
        return std::make_unique<DialogoMapas>(*m, parent);
    if (auto* f = dynamic_cast<FrmForjUnid2*>(&form))
        return std::make_unique<DialogoFichas>(*f, parent);
    if (auto* f = dynamic_cast<FrmFabrica*>(&form))
        return std::make_unique<DialogoFabrica>(*f, parent);
    if (auto* c = dynamic_cast<FrmClaseAcero*>(&form))
        return std::make_unique<DialogoClaseAcero>(*c, parent);
    return std::make_unique<VentanaDialogo>(form, Cerrado(form), parent);
}

void MuestraModal(Form& form, QWidget* parent)
{
    std::unique_ptr<QDialog> d = CreaDialogo(form, parent);
    d->exec();
}

VentanaSplash::VentanaSplash(Form& splash, QWidget* parent) : QWidget(parent, Qt::SplashScreen)
{
    setStyleSheet("background: #1d3557; color: white;");
    auto* v = new QVBoxLayout(this);
    v->setContentsMargins(40, 30, 40, 30);
    auto* producto = new QLabel(Q(splash.At("LbProducto").Caption()));
    producto->setStyleSheet("font-size: 34px; font-weight: bold;");
    auto* titulo = new QLabel(Q(splash.At("LbTitulo").Caption()));
    titulo->setStyleSheet("font-size: 14px;");
    auto* version = new QLabel(Q(splash.At("Lbversion").Caption()));
    version->setStyleSheet("font-size: 16px; color: #f1c453;");
    v->addWidget(producto);
    v->addWidget(titulo);
    v->addWidget(version, 0, Qt::AlignRight);
    resize(460, 200);
}

}  // namespace vardena
