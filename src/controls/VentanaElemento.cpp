#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "controls/Ventanas.h"
#include "frame/ControlesVisibles.h"
#include "frame/ElementForm.h"
#include "base/FileIo.h"

namespace vardena {

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

QWidget* VentanaElemento::CreaGrupo(const GrupoCampos& g)
{
    auto* grupo = new QGroupBox(Q(g.titulo));
    grupo->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
    auto* rejilla = new QGridLayout(grupo);
    rejilla->setHorizontalSpacing(6);
    rejilla->setVerticalSpacing(3);
    // Long groups of small fields take two pairs a row.
    const bool dosPorFila = g.miembros.size() > 6 && std::all_of(g.miembros.begin(), g.miembros.end(), [](const Control* c) {
                                return c->kind() == Kind::TextBox || c->kind() == Kind::ComboBox ||
                                       c->kind() == Kind::CheckBox || c->kind() == Kind::OptionButton;
                            });
    int fila = 0, col = 0;
    for (Control* c : g.miembros) {
        QWidget* w = vista_->De(*c).widget();
        const int base = col * 3;
        if (c->kind() == Kind::CheckBox || c->kind() == Kind::OptionButton || c->kind() == Kind::CommandButton ||
            c->kind() == Kind::Label) {
            rejilla->addWidget(w, fila, base, 1, 3);
        } else if (c->kind() == Kind::RichTextBox && !c->Get("FontName").empty()) {
            // A table the form makes: its title above it, the table the whole width of the group.
            QLabel* titulo = Etiqueta(EtiquetaDe(*c));
            etiquetas_.push_back({c, titulo});
            rejilla->addWidget(titulo, fila, base, 1, 3);
            rejilla->addWidget(w, ++fila, base, 1, 3);
        } else if (c->kind() == Kind::RichTextBox) {
            w->setMaximumHeight(140);
            rejilla->addWidget(Etiqueta(EtiquetaDe(*c)), fila, base, Qt::AlignTop);
            rejilla->addWidget(w, fila, base + 1, 1, 2);
        } else if (c->kind() == Kind::UCPerfil) {
            rejilla->addWidget(Etiqueta(EtiquetaDe(*c)), fila, base);
            rejilla->addWidget(w, fila, base + 1, 1, dosPorFila ? 2 : 5);
        } else {
            // The caption goes and comes with its field.
            QLabel* etiqueta = Etiqueta(EtiquetaEnGrupo(*c, g));
            etiquetas_.push_back({c, etiqueta});
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
                auto* unidad = new QWidget();
                auto* h = new QHBoxLayout(unidad);
                h->setContentsMargins(0, 0, 0, 0);
                for (const char* par : {"lbST", "lbSI"})
                    if (Control* u = form_->Find(par, c->Index()))
                        h->addWidget(vista_->De(*u).widget());
                rejilla->addWidget(unidad, fila, base + 2);
            }
        }
        if (dosPorFila && col == 0) {
            col = 1;
        } else {
            col = 0;
            ++fila;
        }
    }
    rejilla->setColumnStretch(dosPorFila ? 5 : 2, 1);
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
    return panel;
}

void VentanaElemento::Actualiza()
{
    for (const auto& [control, etiqueta] : etiquetas_)
        etiqueta->setVisible(control->Visible());
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
