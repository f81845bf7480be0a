// The calculator of concrete properties by age in its window: its menu command opens it over the
// main window, which stays; its fields and values stand in its two frames; a strength typed in
// recalculates the values when the editing ends.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <gtest/gtest.h>

#include "controls/Programa.h"
#include "controls/Ventanas.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

// The visible window of a form, among the program's windows.
VentanaForm* VentanaDe(const std::string& form)
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* v = dynamic_cast<VentanaForm*>(w); v && v->isVisible() && v->form().Name() == form)
            return v;
    return nullptr;
}

TEST(GuiHormigon, MenuCommandOpensItOverTheMainWindowInItsFrames)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    ASSERT_NE(m, nullptr);
    auto* obras = m->findChild<QListWidget*>("List1");
    obras->setCurrentItem(obras->findItems("Local Arce", Qt::MatchExactly).value(0));
    QAction* comando = m->Accion("mnuHormig");
    ASSERT_NE(comando, nullptr);
    ASSERT_TRUE(comando->isEnabled());
    comando->trigger();
    Espera();
    VentanaForm* v = VentanaDe("frmHormigon");
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(p.programa.Actual(), m) << "the main window stays";
    EXPECT_TRUE(m->isVisible());
    EXPECT_EQ(v->windowTitle(), "Características mecánicas del hormigón");

    // Each field and value in the frame that holds it.
    struct Lugar {
        const char* marco;
        const char* control;
    };
    const Lugar lugares[] = {{"Datos iniciales", "TxFck28"}, {"Datos iniciales", "CmbArido"},
                             {"Datos iniciales", "CmbEdad"}, {"Datos iniciales", "CmbEndur"},
                             {"Resultados", "Lbfckj"},       {"Resultados", "LbEj"},
                             {"Resultados", "Lbfct95"}};
    for (const Lugar& l : lugares) {
        QWidget* w = v->findChild<QWidget*>(l.control);
        ASSERT_NE(w, nullptr) << l.control;
        QWidget* marco = w->parentWidget();
        while (marco && !qobject_cast<QGroupBox*>(marco))
            marco = marco->parentWidget();
        ASSERT_NE(marco, nullptr) << l.control;
        EXPECT_EQ(qobject_cast<QGroupBox*>(marco)->title().toStdString(), l.marco) << l.control;
    }

    auto* fck = v->findChild<QLineEdit*>("TxFck28");
    auto* fckj = v->findChild<QLabel*>("Lbfckj");
    auto* ej = v->findChild<QLabel*>("LbEj");
    EXPECT_EQ(fck->text(), "25");
    EXPECT_EQ(fckj->text(), "25");
    EXPECT_EQ(ej->text(), "27264");
    // 7 days, normal hardening: fck,j = 25 x 0.65.
    auto* edad = v->findChild<QComboBox*>("CmbEdad");
    edad->setCurrentIndex(1);
    emit edad->activated(1);
    Espera();
    EXPECT_EQ(fckj->text(), "16.25");
    Escribe(fck, "30");
    emit fck->editingFinished();
    Espera();
    EXPECT_EQ(fckj->text(), "19.5");
    EXPECT_FLOAT_EQ(p.app.decl.FactorEdadE, 0.8f);
    EXPECT_TRUE(p.ui.errors.empty());
    v->close();
    Espera();
    EXPECT_EQ(VentanaDe("frmHormigon"), nullptr);
    EXPECT_TRUE(m->isVisible());
}

}  // namespace
}  // namespace vardena::test
