// The map dialogs of the actions in their windows: the program shows them modally through the
// hook of the shared state; a press on the map picks the zone under the pointer, a click on a
// line of the list picks its values, and "Aceptar" stores them and closes the window.

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <gtest/gtest.h>

#include "building/Mapas.h"
#include "frame/Formularios.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

void Pulsa(QWidget* w, QPoint p)
{
    ASSERT_NE(w, nullptr);
    QMouseEvent press(QEvent::MouseButtonPress, p, w->mapToGlobal(p), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, p, w->mapToGlobal(p), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(w, &press);
    QApplication::sendEvent(w, &release);
}

// The point of a line of a list of lines, on its screen.
QPoint Linea(QPlainTextEdit* t, const QString& que)
{
    const QTextBlock b = t->document()->find(que).block();
    QTextCursor c(b);
    c.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 2);
    return t->cursorRect(c).center();
}

TEST(GuiMapas, SnowDialogShowsThroughTheHookAndStoresTheClickedZoneAndAltitude)
{
    ProgramaDePrueba p("Local Arce");
    Declaraciones& d = p.app.decl;
    ASSERT_TRUE(d.MuestraDialogo);
    d.AccZonaNieve = 0;
    d.AccAltNieve = 200;
    auto form = CargaForm(d, "frmECGn");
    auto* mapas = dynamic_cast<FrmECGn*>(form.get());
    ASSERT_NE(mapas, nullptr);
    // A pixel of zone 4 in the colour picture: the same pixel of the picture shown.
    QPoint zona4;
    for (int y = 0; y < mapas->Colores().Alto() && zona4.isNull(); ++y)
        for (int x = 0; x < mapas->Colores().Ancho(); ++x)
            if (mapas->Colores().Point(x, y) == ColoresNieve()[3]) {
                zona4 = QPoint(x, y);
                break;
            }
    bool visto = false;
    ContestaDialogo([&](QWidget* w) {
        visto = true;
        Pulsa(w->findChild<QLabel*>("MapaNieve"), zona4);
        auto* texto = w->findChild<QPlainTextEdit*>("RichTextBox1");
        ASSERT_NE(texto, nullptr);
        Pulsa(texto->viewport(), Linea(texto, QString::fromUtf8("Ávila")));
        EXPECT_EQ(w->findChild<QLabel*>("LbAltitud")->text(), "1130");
        EXPECT_EQ(w->findChild<QLabel*>("LbZonaNieve")->text(), "4");
        w->findChild<QPushButton*>("Acepta")->click();
    });
    d.MuestraDialogo(*form);
    EXPECT_TRUE(visto);
    EXPECT_TRUE(mapas->Descargado());
    EXPECT_EQ(d.AccZonaNieve, 3);
    EXPECT_FLOAT_EQ(d.AccAltNieve, 1130);
}

TEST(GuiMapas, SeismicDialogScrollsToAProvinceAndTakesAMunicipality)
{
    ProgramaDePrueba p("Local Arce");
    Declaraciones& d = p.app.decl;
    d.AccAb = 0.04f;
    auto form = CargaForm(d, "frmNCSE02");
    ContestaDialogo([&](QWidget* w) {
        auto* texto = w->findChild<QPlainTextEdit*>("RichTextBox1");
        ASSERT_NE(texto, nullptr);
        Control& prov = form->At("CmbProv");
        // "Cádiz": its heading comes to the top of the box.
        auto* combo = w->findChild<QWidget*>("CmbProv");
        ASSERT_NE(combo, nullptr);
        QMetaObject::invokeMethod(combo, "activated", Q_ARG(int, 2));
        EXPECT_EQ(prov.SelectedText(), "Cádiz");
        EXPECT_EQ(texto->cursorForPosition(QPoint(4, 4)).block().text().trimmed(), QString::fromUtf8("Provincia de Cádiz"));
        Pulsa(texto->viewport(), Linea(texto, QString::fromUtf8("Cádiz ")));
        EXPECT_EQ(w->findChild<QLabel*>("Lbabg")->text(), "0.07");
        EXPECT_EQ(w->findChild<QLabel*>("LbK")->text(), "1.3");
        w->findChild<QPushButton*>("Acepta")->click();
    });
    d.MuestraDialogo(*form);
    EXPECT_FLOAT_EQ(d.AccAb, 0.07f);
    EXPECT_FLOAT_EQ(d.AccK, 1.3f);
}

}  // namespace
}  // namespace vardena::test
