#include "controls/Programa.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

#include "building/DatosGen.h"
#include "frame/Formularios.h"
#include "shell/Ventanas.h"
#include "application/Aplicacion.h"
#include "application/Arranque.h"
#include "works/Catalogo.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// Texts of the main window that its form has no control for: numbers of the message table.
constexpr int kMsgCarpetaObras = 1440;
constexpr int kMsgDisco = 1441;
constexpr int kMsgDirectorio = 1442;
constexpr int kMsgEligeCarpeta = 1443;
constexpr int kMsgObras = 1444;
constexpr int kMsgObraSeleccionada = 1445;
constexpr int kMsgContenido = 1446;
constexpr int kMsgSinElementos = 1447;
constexpr int kMsgComoConvertir = 1448;
constexpr int kMsgConvirtiendo = 1449;
constexpr int kMsgNoDisponible = 1450;
// The title of the search for works.
constexpr int kMsgBuscaObras = 141;

// The crossed-out picture of a work with no elements.
QPixmap Tachado()
{
    QPixmap px(150, 170);
    px.fill(Qt::transparent);
    QPainter p(&px);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor("#8898aa"), 3));
    p.setBrush(QColor("#f4f6fa"));
    p.drawRect(25, 15, 100, 130);
    for (int y = 40; y < 130; y += 18)
        p.drawLine(40, y, 110, y);
    p.setPen(QPen(QColor("#c0392b"), 7, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(15, 10, 135, 155);
    p.drawLine(135, 10, 15, 155);
    return px;
}

QGroupBox* Grupo()
{
    auto* g = new QGroupBox();
    g->setStyleSheet("QGroupBox { font-weight: bold; color: #1d3557; } QGroupBox * { font-weight: normal; }");
    return g;
}

// Runs a model step of the program's course under the program's guard.
void Guarda(const std::function<void()>& f)
{
    try {
        f();
    } catch (const ProgramHalt& e) {
        VistaForm::Detiene()(e.what());
    }
}

}  // namespace

// ---- VentanaMenu ----

VentanaMenu::VentanaMenu(Programa& programa, std::unique_ptr<vardena::Menu> menu)
    : programa_(programa), menu_(std::move(menu)), vista_(std::make_unique<VistaForm>(*menu_))
{
    Menu::Ganchos& g = menu_->ganchos;
    g.modal = [this](Form& f) { MuestraModal(f, this); };
    g.pantalla = [] {
        const QScreen* s = QGuiApplication::primaryScreen();
        return s ? std::pair{s->size().width(), s->size().height()} : std::pair{1024, 768};
    };
    g.ocupado = [this](bool ocupado) {
        centralWidget()->setEnabled(!ocupado);
        menuBar()->setEnabled(!ocupado);
        progreso_->setVisible(ocupado);
        progreso_->setValue(0);
        if (ocupado)
            QApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QApplication::restoreOverrideCursor();
        QCoreApplication::processEvents();
    };
    g.progreso = [this](int hecho, int total, const std::string& que) {
        progreso_->setMaximum(std::max(total, 1));
        progreso_->setValue(hecho);
        statusBar()->showMessage(Q(Mensaje(menu_->decl(), kMsgConvirtiendo, {que})));
    };
    g.buscaObras = [this] {
        const QString carpeta =
            QFileDialog::getExistingDirectory(this, Texto(kMsgBuscaObras), Q(programa_.app().decl.DirObras));
        if (!carpeta.isEmpty())
            SaveSetting(programa_.app().decl, "Obra", "Directorio", carpeta.toStdString());
    };
    g.cierra = [this] { QTimer::singleShot(0, this, [this] { close(); }); };
    g.abreEncima = [this](const std::string& nombre) { programa_.AbreEncima(nombre); };

    setCentralWidget(CreaCentro());
    progreso_ = new QProgressBar();
    progreso_->setVisible(false);
    statusBar()->addPermanentWidget(progreso_, 1);
    vista_->Ejecuta([this] { menu_->Form_Load(); });
    CreaMenus();
    vista_->trasAccion = [this] { Actualiza(); };
    vista_->Refresca();
    Actualiza();
    resize(1100, 720);
}

VentanaMenu::~VentanaMenu()
{
    for (QObject* hijo : children())
        if (auto* w = qobject_cast<QWidget*>(hijo))
            delete w;
}

QString VentanaMenu::Texto(int mensaje) const { return Q(Mensaje(menu_->decl(), mensaje)); }

void VentanaMenu::Rotula(std::function<void()> pone)
{
    pone();
    rotulos_.push_back(std::move(pone));
}

QAction* VentanaMenu::Accion(const std::string& item) const
{
    auto it = acciones_.find(item);
    return it == acciones_.end() ? nullptr : it->second;
}

void VentanaMenu::CreaMenus()
{
    for (const GrupoMenu& grupo : Menu::BarraMenus()) {
        QMenu* m = menuBar()->addMenu(Q(menu_->At(grupo.nombre).Caption()).trimmed());
        menus_[grupo.nombre] = m;
        for (const std::string& item : grupo.items) {
            if (item == "-") {
                m->addSeparator();
                continue;
            }
            Control& c = menu_->At(item);
            QAction* a = m->addAction(Q(c.Caption()));
            a->setCheckable(!c.Get("Checked").empty());
            connect(a, &QAction::triggered, this, [this, &c] { vista_->Ejecuta([&c] { c.Click(); }); });
            acciones_[item] = a;
        }
    }
}

QWidget* VentanaMenu::CreaCentro()
{
    auto* centro = new QWidget();
    auto* v = new QVBoxLayout(centro);
    QWidget* titulo = vista_->Widget("Lbtitulo");
    titulo->setStyleSheet("font-size: 16px; font-weight: bold; color: #1d3557; padding: 4px;");
    v->addWidget(titulo);
    auto* h = new QHBoxLayout();
    v->addLayout(h, 1);

    // The folder and its works.
    auto* izquierda = new QVBoxLayout();
    // Titles and labels of the layout's own making follow the language through Rotula.
    auto grupo = [this](int mensaje) {
        QGroupBox* g = Grupo();
        Rotula([this, g, mensaje] { g->setTitle(Texto(mensaje)); });
        return g;
    };
    auto etiqueta = [this](int mensaje) {
        QLabel* l = Etiqueta("");
        Rotula([this, l, mensaje] { l->setText(Texto(mensaje)); });
        return l;
    };
    auto* gCarpeta = grupo(kMsgCarpetaObras);
    carpetas_ = gCarpeta;
    auto* c = new QVBoxLayout(gCarpeta);
    c->addWidget(etiqueta(kMsgDisco));
    c->addWidget(vista_->Widget("Drive1"));
    c->addWidget(etiqueta(kMsgDirectorio));
    auto* filaDire = new QHBoxLayout();
    OpcionesAdaptador alTerminar;
    alTerminar.alTerminar = true;
    filaDire->addWidget(vista_->Widget("Dire", -1, alTerminar), 1);
    // The ellipsis is the sign of a choice of folder in every language.
    auto* elegir = new QPushButton(QStringLiteral("\u2026"));
    Rotula([this, elegir] { elegir->setToolTip(Texto(kMsgEligeCarpeta)); });
    elegir->setFixedWidth(32);
    connect(elegir, &QPushButton::clicked, this, [this] { EligeCarpeta(); });
    filaDire->addWidget(elegir);
    c->addLayout(filaDire);
    izquierda->addWidget(gCarpeta);
    auto* gObras = grupo(kMsgObras);
    auto* o = new QVBoxLayout(gObras);
    o->addWidget(vista_->Widget("List1"));
    izquierda->addWidget(gObras, 1);
    h->addLayout(izquierda, 3);

    // The selected work.
    auto* gObra = grupo(kMsgObraSeleccionada);
    auto* w = new QVBoxLayout(gObra);
    auto* version = new QHBoxLayout();
    version->addWidget(vista_->Widget("Label3"));
    QWidget* lbvers = vista_->Widget("Lbvers");
    lbvers->setStyleSheet("font-size: 16px; font-weight: bold; color: #8b1a1a;");
    version->addWidget(lbvers);
    version->addStretch();
    w->addLayout(version);
    w->addWidget(etiqueta(kMsgContenido));
    contenido_ = new QStackedWidget();
    contenido_->addWidget(vista_->Widget("Outlin"));
    auto* tachado = new QLabel();
    tachado->setPixmap(Tachado());
    tachado->setAlignment(Qt::AlignCenter);
    Rotula([this, tachado] { tachado->setToolTip(Texto(kMsgSinElementos)); });
    contenido_->addWidget(tachado);
    w->addWidget(contenido_, 2);
    // The description's label is its tool tip, which the language pack gives.
    QLabel* tituloDescr = Etiqueta("");
    Rotula([this, tituloDescr] { tituloDescr->setText(Q(menu_->At("descr").ToolTipText())); });
    w->addWidget(tituloDescr);
    OpcionesAdaptador varias;
    varias.multilinea = true;
    QWidget* descr = vista_->Widget("descr", -1, varias);
    descr->setMinimumHeight(90);
    w->addWidget(descr, 1);
    auto* botones = new QHBoxLayout();
    auto* convertir = qobject_cast<QPushButton*>(vista_->Widget("UCBconvertir"));
    convertir->setMinimumHeight(38);
    convertir->setStyleSheet("QPushButton { font-size: 15px; font-weight: bold; color: #1d3557; }"
                             "QPushButton:disabled { color: #a0a8b4; }");
    botones->addWidget(convertir, 2);
    botones->addWidget(vista_->Widget("UCBexplorer"), 1);
    w->addLayout(botones);
    h->addWidget(gObra, 4);

    // The steps.
    auto* gPasos = grupo(kMsgComoConvertir);
    gPasos->setStyleSheet(gPasos->styleSheet() + " QGroupBox { background: #eef3f9; }");
    auto* p = new QVBoxLayout(gPasos);
    for (size_t i = 1; i <= TextosPasos().size(); ++i) {
        QWidget* lab = vista_->Widget("Lab_" + std::to_string(i));
        if (i == 1)
            lab->setStyleSheet("font-weight: bold; color: #1d3557;");
        p->addWidget(lab);
    }
    p->addStretch();
    h->addWidget(gPasos, 3);
    return centro;
}

void VentanaMenu::Actualiza()
{
    setWindowTitle(Q(menu_->Caption()));
    for (const auto& pone : rotulos_)
        pone();
    contenido_->setCurrentIndex(menu_->At("tachado").Visible() ? 1 : 0);
    carpetas_->setVisible(menu_->At("Dire").Visible());
    for (const auto& [nombre, m] : menus_) {
        const Control& c = menu_->At(nombre);
        m->setTitle(Q(c.Caption()).trimmed());
        m->menuAction()->setVisible(c.Visible());
    }
    for (const auto& [item, a] : acciones_) {
        const Control& c = menu_->At(item);
        a->setText(Q(c.Caption()));
        a->setEnabled(c.Enabled());
        a->setVisible(c.Visible());
        if (a->isCheckable())
            a->setChecked(menu_->Marcado(item));
    }
    Guarda([this] {
        PonEncima(programa_.app().platform, *menu_, menu_->Marcado("SiempreVisible"));
    });
}

void VentanaMenu::EligeCarpeta()
{
    const QString carpeta =
        QFileDialog::getExistingDirectory(this, Texto(kMsgDirectorio), Q(menu_->At("Dire").Text()));
    if (!carpeta.isEmpty())
        vista_->Ejecuta([this, carpeta] { menu_->At("Dire").SetText(carpeta.toStdString()); });
}

void VentanaMenu::closeEvent(QCloseEvent* e)
{
    if (!cerrada_) {
        cerrada_ = true;
        vista_->Ejecuta([this] { menu_->Form_Unload(); });
        if (alCerrar)
            alCerrar(menu_->Opcion);
    }
    e->accept();
}

// ---- Programa ----

Programa::Programa(Aplicacion& app) : app_(app)
{
    app_.decl.DoEvents = [] { QCoreApplication::processEvents(); };
    // The dialogs a form opens (the maps of the actions) show modally over the window open now.
    app_.decl.MuestraDialogo = [this](Form& f) { MuestraModal(f, actual_); };
    app_.platform.gui.ponEncima = [this](Form& f, bool on) {
        auto it = ventanas_.find(&f);
        if (it == ventanas_.end())
            return true;
        QWidget* w = it->second;
        if (w->windowFlags().testFlag(Qt::WindowStaysOnTopHint) != on) {
            const bool visible = w->isVisible();
            w->setWindowFlag(Qt::WindowStaysOnTopHint, on);
            if (visible)
                w->show();
        }
        return true;
    };
    app_.platform.gui.initCommonControls = [] { return true; };
    alTerminar = [] { QCoreApplication::quit(); };
}

Programa::~Programa()
{
    app_.platform.gui.ponEncima = nullptr;
    app_.decl.MuestraDialogo = nullptr;
    for (auto [form, w] : std::map<const Form*, QWidget*>(ventanas_))
        delete w;
}

void Programa::Registra(Form& form, QWidget* w) { ventanas_[&form] = w; }

void Programa::Olvida(QWidget* w)
{
    for (auto it = ventanas_.begin(); it != ventanas_.end();)
        it = it->second == w ? ventanas_.erase(it) : std::next(it);
    if (actual_ == w)
        actual_ = nullptr;
}

VentanaMenu* Programa::Menu() const { return dynamic_cast<VentanaMenu*>(actual_); }

void Programa::Arranca(const std::string& argumento, bool conSplash)
{
    Declaraciones& d = app_.decl;
    auto splash = std::make_unique<Splash>(d, argumento);
    Guarda([&] {
        splash->Form_Load();
        splash->Form_Activate();
    });
    if (!conSplash) {
        AbreMenu();
        return;
    }
    auto* ventana = new VentanaSplash(*splash);
    ventana->show();
    QTimer::singleShot(1200, ventana, [this, ventana] {
        ventana->close();
        ventana->deleteLater();
        AbreMenu();
    });
}

VentanaMenu* Programa::AbreMenu()
{
    auto* ventana = new VentanaMenu(*this, std::make_unique<vardena::Menu>(app_.decl));
    Registra(ventana->menu(), ventana);
    actual_ = ventana;
    ventana->alCerrar = [this, ventana](const std::string& opcion) {
        Olvida(ventana);
        ventana->deleteLater();
        if (opcion.empty()) {
            if (alTerminar)
                alTerminar();
            return;
        }
        AbreOpcion(opcion);
    };
    ventana->show();
    return ventana;
}

VentanaForm* Programa::Coloca(std::unique_ptr<Form> form)
{
    Form& f = *form;
    VentanaForm* ventana = nullptr;
    if (dynamic_cast<DatosGen*>(&f))
        ventana = new VentanaDatosGen(std::move(form));
    else
        ventana = new VentanaElemento(std::move(form));
    Registra(f, ventana);
    ventana->resize(1280, 800);
    Guarda([&] { PonEncima(app_.platform, f, Setting(app_.decl, "Preferencias", "SiempreVisible") == "Si"); });
    return ventana;
}

std::unique_ptr<Form> Programa::CargaVentana(const std::string& nombre, const std::string& pedido)
{
    Declaraciones& d = app_.decl;
    std::unique_ptr<Form> form;
    Guarda([&] {
        if (nombre == "DatosGen") {
            form = std::make_unique<DatosGen>(d);
            form->Form_Load();
        } else if (!nombre.empty()) {
            form = CargaForm(d, nombre);
        }
    });
    if (!form)
        d.ui.MsgBox(Mensaje(d, kMsgNoDisponible, {nombre.empty() ? pedido : nombre}), mb::Information, "");
    return form;
}

VentanaForm* Programa::AbreOpcion(const std::string& opcion)
{
    std::unique_ptr<Form> form = CargaVentana(FormularioDeOpcion(opcion), opcion);
    if (!form) {
        AbreMenu();
        return nullptr;
    }
    VentanaForm* ventana = Coloca(std::move(form));
    actual_ = ventana;
    ventana->alCerrar = [this, ventana] {
        Olvida(ventana);
        ventana->deleteLater();
        AbreMenu();
    };
    ventana->show();
    return ventana;
}

VentanaForm* Programa::AbreEncima(const std::string& formulario)
{
    std::unique_ptr<Form> form = CargaVentana(formulario, formulario);
    if (!form)
        return nullptr;
    VentanaForm* ventana = Coloca(std::move(form));
    ventana->alCerrar = [this, ventana] {
        Olvida(ventana);
        ventana->deleteLater();
    };
    ventana->show();
    return ventana;
}

}  // namespace vardena
