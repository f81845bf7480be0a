// The masonry properties dialog in its window: the general data's button shows it modally over
// the program, a choice in its lists recalculates the properties shown, and "SALIR" saves
// Fabrica.dat, closes the window and fills the general data's masonry fields.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include "base/FileIo.h"
#include "building/DatosGen.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

TEST(GuiFabrica, GeneralDataButtonShowsTheDialogAndTakesItsFigures)
{
    ProgramaDePrueba p("Local Arce");
    Declaraciones& d = p.app.decl;
    ASSERT_TRUE(d.MuestraDialogo);
    DatosGen datos(d);
    datos.Form_Load();
    bool visto = false;
    ContestaDialogo([&](QWidget* w) {
        visto = true;
        // S.I.: 20 and 10 N/mm2 as the fields stand; perforated brick in one leaf, K 0.55:
        // 10 x 0.55 x 20^0.65 x 10^0.25 = 68.55.
        auto* tipo = w->findChild<QComboBox*>("cmbTipoFabr");
        ASSERT_NE(tipo, nullptr);
        tipo->setCurrentIndex(2);
        QMetaObject::invokeMethod(tipo, "activated", Q_ARG(int, 2));
        auto* fk = w->findChild<QLineEdit*>("TxtQ(3)");
        ASSERT_NE(fk, nullptr);
        EXPECT_EQ(fk->text(), "68.55");
        // Lightweight mortar on calcium silicate has no flexural strength: "No", disabled.
        QMetaObject::invokeMethod(w->findChild<QComboBox*>("cmbTipo"), "activated", Q_ARG(int, 1));
        QMetaObject::invokeMethod(w->findChild<QComboBox*>("cmbMortero"), "activated", Q_ARG(int, 2));
        auto* fxk1 = w->findChild<QLineEdit*>("TxtQ(5)");
        EXPECT_EQ(fxk1->text(), "No");
        EXPECT_FALSE(fxk1->isEnabled());
        EXPECT_EQ(w->findChild<QLineEdit*>("TxtDensidad")->text(), "1500");
        w->findChild<QPushButton*>("CmdSalir")->click();
    });
    datos.At("cmdFabr").Click();
    EXPECT_TRUE(visto);
    EXPECT_EQ(datos.At("TxResFab").Text(), "68.55");
    EXPECT_EQ(datos.At("TxCoefMin").Text(), "1.70");
    EXPECT_EQ(datos.At("TxtDensFabr").Text(), "1500");
    EXPECT_TRUE(ReadFileIfExists(d.CarpetaObra + "/Fabrica.dat"));
}

}  // namespace
}  // namespace vardena::test
