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

std::vector<BotonRespuesta> BotonesDeEstilo(int style)
{
    switch (style & 7) {
    case mb::OkCancel: return {{"Aceptar", mb::Ok}, {"Cancelar", mb::Cancel}};
    case 2: return {{"Anular", 3}, {"Reintentar", mb::Retry}, {"Omitir", 5}};
    case mb::YesNoCancel: return {{"Sí", mb::Yes}, {"No", mb::No}, {"Cancelar", mb::Cancel}};
    case mb::YesNo: return {{"Sí", mb::Yes}, {"No", mb::No}};
    case 5: return {{"Reintentar", mb::Retry}, {"Cancelar", mb::Cancel}};
    default: return {{"Aceptar", mb::Ok}};
    }
}

int UiQt::MsgBox(std::string_view prompt, int style, std::string_view title)
{
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(title.empty() ? QString("Vardena 3") : Q(std::string(title)));
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
        botones.push_back({box.addButton(Q(b.texto), cancela ? QMessageBox::RejectRole : QMessageBox::AcceptRole),
                           b.respuesta});
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

ErrorDialog::ErrorDialog(Declaraciones* d, const DatosError& e, QWidget* parent) : QDialog(parent), d_(d)
{
    setWindowTitle(" Error Vardena");
    setModal(true);
    if (d && Setting(*d, "Preferencias", "SiempreVisible") == "Si")
        setWindowFlag(Qt::WindowStaysOnTopHint, true);
    const SystemFacts facts = d && d->platform.system ? d->platform.system->Facts() : SystemFacts{};
    const std::string fecha = QDateTime::currentDateTime().toString("dd/MM/yyyy HH:mm:ss").toStdString();
    textoError_ = vardena::TextoError(e, fecha, facts);

    auto* v = new QVBoxLayout(this);
    auto* titulo = new QLabel("La aplicación ha generado un error. Lamentamos las molestias ocasionadas.");
    titulo->setStyleSheet("font-weight: bold; color: #8b1a1a;");
    v->addWidget(titulo);
    for (const char* texto : {"Sería conveniente que tome nota detallada de la situación en que se produjo y lo "
                              "comunicase al equipo de desarrollo del programa.",
                              "Si pulsa 'Guardar' se almacenarán en disco los datos relacionados con este error.",
                              "Si pulsa 'Reintentar' se intentará continuar con la aplicación.",
                              "Pulsando 'Salir' terminará la ejecución del programa."}) {
        auto* l = new QLabel(texto);
        l->setWordWrap(true);
        v->addWidget(l);
    }
    auto* origen = new QLabel(Q("Error Nº " + std::to_string(e.numero) + " en " + e.origen + ": " + e.descripcion));
    origen->setWordWrap(true);
    origen->setStyleSheet("background: #fff4e0; padding: 4px;");
    v->addWidget(origen);
    auto* botones = new QHBoxLayout();
    botonDetalle_ = new QPushButton("Detalles >>");
    auto* guardar = new QPushButton("Guardar");
    auto* reintentar = new QPushButton("Reintentar");
    auto* salir = new QPushButton("Salir");
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
    const bool abre = botonDetalle_->text() == "Detalles >>";
    if (abre)
        altoCerrado_ = height();
    detalle_->setVisible(abre);
    botonDetalle_->setText(abre ? "Detalles <<" : "Detalles >>");
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
        QMessageBox::information(this, windowTitle(), Q(AvisoErrorGuardado()).replace("\r\n", "\n"));
    } catch (const FileError& e) {
        QMessageBox::warning(this, windowTitle(), Q(e.what()));
    }
}

}  // namespace vardena
