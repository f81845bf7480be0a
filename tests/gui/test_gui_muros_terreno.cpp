// The windows of the walls that hold ground and of the slope at 1280 x 800: their frames as
// groups, the section sketch beside the coordinates, nothing cut at the right, and the storeys'
// fields that follow the number of basements.

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "controls/Programa.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

std::set<std::string> Grupos(QWidget* v)
{
    std::set<std::string> out;
    for (QGroupBox* g : v->findChildren<QGroupBox*>())
        if (!g->isHidden())
            out.insert(g->title().toStdString());
    return out;
}

TEST(GuiMurosTerreno, FramesSketchAndNoSidewaysScrollAt1280By800)
{
    struct Caso {
        const char* opcion;
        const char* dibujo;
        std::set<std::string> grupos;
    };
    const Caso casos[] = {
        {"MUSO", "PicMuro", {"Material relleno", "Rozamiento muro-relleno", "Tensión admisible terreno",
                             "Cargas coronación por metro", "Sección del muro", "Armado"}},
        {"MUCO", "PicMuro", {"Tipo de muro", "Terreno de cimentación", "Material relleno", "Rozamiento muro-relleno",
                             "Sección del muro", "Armado"}},
        {"MUAN", "PicMuro", {"Terreno", "Definición de empujes", "Anclajes", "Esquema muro", "Armado"}},
        {"TALU", "PicTalud", {"Terreno", "Drenaje", "Geometría del talud", "Resultados"}},
    };
    ProgramaDePrueba p("Edificio Oroel");
    for (const Caso& c : casos) {
        VentanaForm* v = p.programa.AbreOpcion(c.opcion);
        ASSERT_NE(v, nullptr) << c.opcion;
        v->resize(1280, 800);
        v->show();
        Espera();
        const std::set<std::string> grupos = Grupos(v);
        for (const std::string& g : c.grupos)
            EXPECT_TRUE(grupos.count(g)) << c.opcion << ": " << g;
        QWidget* dibujo = v->findChild<QWidget*>(c.dibujo);
        ASSERT_NE(dibujo, nullptr) << c.opcion;
        EXPECT_FALSE(dibujo->isHidden()) << c.opcion;
        for (QScrollArea* zona : v->findChildren<QScrollArea*>()) {
            if (!zona->isHidden()) {
                EXPECT_FALSE(zona->horizontalScrollBar()->isVisible()) << c.opcion;
            }
        }
        v->alCerrar = nullptr;
        v->close();
        Espera();
    }
}

TEST(GuiMurosTerreno, StoreysShownFollowTheBasements)
{
    ProgramaDePrueba p("Edificio Oroel");
    VentanaForm* v = p.programa.AbreOpcion("MUSO");
    ASSERT_NE(v, nullptr);
    Espera();
    auto* sotanos = v->findChild<QComboBox*>("CmbSot");
    ASSERT_NE(sotanos, nullptr);
    sotanos->setCurrentIndex(3);
    emit sotanos->activated(3);
    Espera();
    auto campo = [v](const char* nombre) { return v->findChild<QLineEdit*>(nombre); };
    ASSERT_NE(campo("TxCotaMuro(8)"), nullptr);
    EXPECT_FALSE(campo("TxCotaMuro(8)")->isHidden());
    EXPECT_TRUE(campo("TxCotaMuro(9)")->isHidden());
    // The work's two basements are 3.20 and 3.00 m high.
    EXPECT_EQ(campo("TxCotaMuro(1)")->text(), "320");
    EXPECT_EQ(campo("TxCotaMuro(4)")->text(), "300");
    v->alCerrar = nullptr;
    v->close();
    Espera();
}

}  // namespace
}  // namespace vardena::test
