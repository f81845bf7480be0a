// The section class dialog in its window: a steel beam's cmdClase opens it modally through the
// program's hook, with the beam's family and steel; the table stands in a fixed-width view;
// another family redraws it; SALIR closes it.

#include <QComboBox>
#include <QFontInfo>
#include <QPushButton>
#include <QTextBrowser>
#include <gtest/gtest.h>

#include "frame/Formularios.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

TEST(GuiClaseAcero, SteelBeamOpensTheTableOfItsFamilyAndSteel)
{
    ProgramaDePrueba p("Local Arce");
    Declaraciones& d = p.app.decl;
    ASSERT_TRUE(d.MuestraDialogo);
    auto viga = CargaForm(d, "frmVigMet");
    viga->At("UCPerfil1").Set("Perfil", "IPE");
    viga->At("CmbAcero").SetListIndex(6);  // S 355
    bool visto = false;
    ContestaDialogo([&](QWidget* w) {
        visto = true;
        EXPECT_EQ(w->windowTitle().toStdString(), " Definición de la clase de acero");
        auto* tabla = w->findChild<QTextBrowser*>("RichTextBox1");
        ASSERT_NE(tabla, nullptr);
        EXPECT_TRUE(QFontInfo(tabla->font()).fixedPitch());
        const QString texto = tabla->toPlainText();
        EXPECT_TRUE(texto.contains("IPE 550\t550\t210\t11.1\t17.2\tClase 1\tClase 3")) << texto.toStdString();
        EXPECT_EQ(w->findChild<QComboBox*>("CmbAcero")->currentText(), "S 355");
        // The HEB family, chosen in its list, redraws the table.
        auto* familias = w->findChild<QComboBox*>("CmbPerfil");
        familias->setCurrentIndex(4);
        emit familias->activated(4);
        EXPECT_TRUE(tabla->toPlainText().contains("HEB 1000\t1000\t300\t19.0\t36.0\tClase 1\tClase 2"));
        w->findChild<QPushButton*>("CmdSalir")->click();
    });
    viga->At("cmdClase").Click();
    EXPECT_TRUE(visto);
    EXPECT_TRUE(p.ui.errors.empty());
}

}  // namespace
}  // namespace vardena::test
