#include "controls/UiQt.h"

#include <QApplication>
#include <QBuffer>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/Vista.h"
#include "works/Catalogo.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// The texts of the boxes and of the error window: numbers of the message table.
constexpr int kMsgTituloCaja = 1451;
constexpr int kMsgAceptar = 1452;
constexpr int kMsgCancelar = 1453;
constexpr int kMsgAnular = 1454;
constexpr int kMsgReintentar = 1455;
constexpr int kMsgOmitir = 1456;
constexpr int kMsgSi = 1457;
constexpr int kMsgNo = 1458;
constexpr int kMsgTituloError = 1459;
constexpr int kMsgExplicaError[] = {1460, 1461, 1462, 1463, 1464};
constexpr int kMsgOrigenError = 1465;
constexpr int kMsgAbreDetalle = 1466;
constexpr int kMsgCierraDetalle = 1467;
constexpr int kMsgGuardar = 1468;
constexpr int kMsgSalir = 1469;

// The answers of a box and the button of the window system that stands for each, whose own
// word is the caption while no message table is at hand (a box shown before the program's
// state exists).
QMessageBox::StandardButton BotonEstandar(int respuesta)
{
    switch (respuesta) {
    case mb::Ok: return QMessageBox::Ok;
    case mb::Cancel: return QMessageBox::Cancel;
    case 3: return QMessageBox::Abort;
    case mb::Retry: return QMessageBox::Retry;
    case 5: return QMessageBox::Ignore;
    case mb::Yes: return QMessageBox::Yes;
    default: return QMessageBox::No;
    }
}

}  // namespace

std::vector<BotonRespuesta> BotonesDeEstilo(int style)
{
    switch (style & 7) {
    case mb::OkCancel: return {{kMsgAceptar, mb::Ok}, {kMsgCancelar, mb::Cancel}};
    case 2: return {{kMsgAnular, 3}, {kMsgReintentar, mb::Retry}, {kMsgOmitir, 5}};
    case mb::YesNoCancel: return {{kMsgSi, mb::Yes}, {kMsgNo, mb::No}, {kMsgCancelar, mb::Cancel}};
    case mb::YesNo: return {{kMsgSi, mb::Yes}, {kMsgNo, mb::No}};
    case 5: return {{kMsgReintentar, mb::Retry}, {kMsgCancelar, mb::Cancel}};
    default: return {{kMsgAceptar, mb::Ok}};
    }
}

int UiQt::MsgBox(std::string_view prompt, int style, std::string_view title)
{
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(Q(title.empty() && decl ? Mensaje(*decl, kMsgTituloCaja) : std::string(title)));
    box.setText(Q(std::string(prompt)).replace("\r\n", "\n"));
    switch (style & 0x70) {
    case mb::Critical: box.setIcon(QMessageBox::Critical); break;
    case mb::Question: box.setIcon(QMessageBox::Question); break;
    case mb::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case mb::Information: box.setIcon(QMessageBox::Information); break;
    default: break;
    }
    std::vector<std::pair<QAbstractButton*, int>> botones;
    for (const BotonRespuesta& b : BotonesDeEstilo(style)) {
        const bool cancela = b.respuesta == mb::Cancel || (b.respuesta == mb::No && (style & 7) == mb::YesNo);
        const std::string texto = decl ? decl->Msg(b.mensaje) : std::string();
        QAbstractButton* boton =
            texto.empty() ? box.addButton(BotonEstandar(b.respuesta))
                          : box.addButton(Q(texto), cancela ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
        botones.push_back({boton, b.respuesta});
    }
    box.exec();
    for (const auto& [boton, respuesta] : botones)
        if (box.clickedButton() == boton)
            return respuesta;
    // Closed by the window control: the answer of the last button, as Escape gives it.
    return botones.back().second;
}

bool UiQt::ErrorFrm(std::string_view origin, int number, std::string_view description)
{
    DatosError e;
    e.numero = number;
    e.descripcion = std::string(description);
    e.fuente = "vardena-gui";
    e.origen = std::string(origin);
    ErrorDialog dialogo(decl, e, QApplication::activeWindow());
    return dialogo.exec() == QDialog::Accepted;
}

QString ErrorDialog::Texto(int mensaje, std::initializer_list<std::string> args) const
{
    // Without the program's state the window still names what each text is.
    return d_ ? Q(Mensaje(*d_, mensaje, args)) : QStringLiteral("[%1]").arg(mensaje);
}

ErrorDialog::ErrorDialog(Declaraciones* d, const DatosError& e, QWidget* parent) : QDialog(parent), d_(d)
{
    setWindowTitle(Texto(kMsgTituloError));
    setModal(true);
    if (d && Setting(*d, "Preferencias", "SiempreVisible") == "Si")
        setWindowFlag(Qt::WindowStaysOnTopHint, true);
    const SystemFacts facts = d && d->platform.system ? d->platform.system->Facts() : SystemFacts{};
    const std::string fecha = QDateTime::currentDateTime().toString("dd/MM/yyyy HH:mm:ss").toStdString();
    textoError_ = vardena::TextoError(e, fecha, facts);

    auto* v = new QVBoxLayout(this);
    for (int mensaje : kMsgExplicaError) {
        auto* l = new QLabel(Texto(mensaje));
        if (mensaje == kMsgExplicaError[0])
            l->setStyleSheet("font-weight: bold; color: #8b1a1a;");
        else
            l->setWordWrap(true);
        v->addWidget(l);
    }
    auto* origen = new QLabel(Texto(kMsgOrigenError, {std::to_string(e.numero), e.origen, e.descripcion}));
    origen->setWordWrap(true);
    origen->setStyleSheet("background: #fff4e0; padding: 4px;");
    v->addWidget(origen);
    auto* botones = new QHBoxLayout();
    botonDetalle_ = new QPushButton(Texto(kMsgAbreDetalle));
    auto* guardar = new QPushButton(Texto(kMsgGuardar));
    auto* reintentar = new QPushButton(Texto(kMsgReintentar));
    auto* salir = new QPushButton(Texto(kMsgSalir));
    for (QPushButton* b : {botonDetalle_, guardar, reintentar, salir})
        botones->addWidget(b);
    v->addLayout(botones);
    detalle_ = new QPlainTextEdit(Q(TextoDetalle(e, textoError_)).remove('\r'));
    detalle_->setReadOnly(true);
    detalle_->setMinimumHeight(220);
    detalle_->setVisible(false);
    v->addWidget(detalle_);
    connect(botonDetalle_, &QPushButton::clicked, this, [this] { cmd_Detail(); });
    connect(guardar, &QPushButton::clicked, this, [this] { GuardaErr(); });
    connect(reintentar, &QPushButton::clicked, this, &QDialog::accept);
    connect(salir, &QPushButton::clicked, this, &QDialog::reject);
    resize(560, sizeHint().height());
}

bool ErrorDialog::DetalleVisible() const { return !detalle_->isHidden(); }

void ErrorDialog::cmd_Detail()
{
    // The window grows by the detail box and a margin, and comes back to its size on closing it.
    const bool abre = !DetalleVisible();
    if (abre)
        altoCerrado_ = height();
    detalle_->setVisible(abre);
    botonDetalle_->setText(Texto(abre ? kMsgCierraDetalle : kMsgAbreDetalle));
    layout()->invalidate();
    layout()->activate();
    if (!abre)
        setMinimumHeight(std::min(minimumSizeHint().height(), altoCerrado_));
    resize(width(), abre ? altoCerrado_ + detalle_->minimumHeight() + 8 : altoCerrado_);
}

void ErrorDialog::GuardaErr()
{
    const std::string carpeta = d_ ? d_->DirPrograma : std::string(".");
    try {
        if (QScreen* pantalla = QGuiApplication::primaryScreen()) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            pantalla->grabWindow(0).save(&buffer, "BMP");
            WriteFileAtomic(ConBarra(carpeta) + "Error.bmp", std::string_view(bytes.constData(), bytes.size()));
        }
        GuardaErrorTxt(carpeta, textoError_);
        Avisa(QMessageBox::Information, Q(AvisoErrorGuardado()).replace("\r\n", "\n"));
    } catch (const FileError& e) {
        Avisa(QMessageBox::Warning, Q(e.what()));
    }
}

void ErrorDialog::Avisa(QMessageBox::Icon icono, const QString& texto)
{
    // A box of the window's own, so that its one button speaks the language of the pack.
    QMessageBox aviso(icono, windowTitle(), texto, QMessageBox::NoButton, this);
    aviso.addButton(Texto(kMsgAceptar), QMessageBox::AcceptRole);
    aviso.exec();
}

}  // namespace vardena
