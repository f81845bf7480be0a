// The soil window: its frames as groups that sound rock switches, its sketches that follow the
// footing kind, and its fields that calculate when editing ends.

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <map>

#include "controls/Programa.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

// The group boxes of a window by title, shown or not.
std::map<std::string, bool> Grupos(QWidget* v)
{
    std::map<std::string, bool> out;
    for (QGroupBox* g : v->findChildren<QGroupBox*>())
        out[g->title().toStdString()] = !g->isHidden();
    return out;
}

TEST(GuiSuelo, RockSwitchesTheFramesAndTheSketchesFollowTheFooting)
{
    ProgramaDePrueba p("Vivienda Ruiz");
    VentanaForm* v = p.programa.AbreOpcion("TERR");
    ASSERT_NE(v, nullptr);
    Espera();
    const std::string roca = "DETERMINACIÓN DE LA PRESIÓN DE SERVICIO EN ROCA";
    auto grupos = Grupos(v);
    for (const char* t : {"Datos iniciales", "Tipo Cimiento", "Fact.profundidad", "Factor forma", "Fact.inclinación",
                          "Factor talud", "Resultados"})
        EXPECT_TRUE(grupos[t]) << t;
    EXPECT_FALSE(grupos[roca]);
    auto dibujo = [v](const char* nombre) {
        QWidget* w = v->findChild<QWidget*>(nombre);
        EXPECT_NE(w, nullptr) << nombre;
        return w && !w->isHidden();
    };
    EXPECT_TRUE(dibujo("PictureAis"));
    EXPECT_TRUE(dibujo("PictureSot"));
    EXPECT_FALSE(dibujo("PictureLosa"));

    auto* terreno = v->findChild<QComboBox*>("CmbTerreno");
    ASSERT_NE(terreno, nullptr);
    terreno->setCurrentIndex(7);
    emit terreno->activated(7);
    Espera();
    grupos = Grupos(v);
    EXPECT_TRUE(grupos[roca]);
    for (const char* t : {"Fact.profundidad", "Factor forma", "Fact.inclinación", "Factor talud"})
        EXPECT_FALSE(grupos[t]) << t;
    EXPECT_TRUE(grupos["Datos iniciales"]);
    EXPECT_TRUE(v->findChild<QLineEdit*>("Text2")->isHidden()) << "no friction angle for sound rock";
    EXPECT_EQ(v->findChild<QLineEdit*>("txtQd")->text(), "2572");

    auto* cimiento = v->findChild<QComboBox*>("ComboCim");
    cimiento->setCurrentIndex(3);
    emit cimiento->activated(3);
    Espera();
    EXPECT_TRUE(dibujo("PictureLosa"));
    EXPECT_FALSE(dibujo("PictureAis"));
    EXPECT_EQ(v->findChild<QLineEdit*>("txtA")->text(), "20.00");
}

TEST(GuiSuelo, AFieldThatCalculatesTakesItsTextWhenEditingEnds)
{
    ProgramaDePrueba p("Vivienda Ruiz");
    VentanaForm* v = p.programa.AbreOpcion("TERR");
    ASSERT_NE(v, nullptr);
    Espera();
    auto* ancho = v->findChild<QLineEdit*>("txtB");
    ASSERT_NE(ancho, nullptr);
    Escribe(ancho, "1.");
    EXPECT_EQ(v->form().At("txtB").Text(), "2.00") << "nothing rewrites the field while it is typed";
    Escribe(ancho, "1.5");
    emit ancho->editingFinished();
    Espera();
    EXPECT_EQ(ancho->text(), "1.50");
    EXPECT_EQ(v->form().At("txtSc").Text(), "1.15") << "1 + 0.2 x 1.5 / 2";
}

}  // namespace
}  // namespace vardena::test
