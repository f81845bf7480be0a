// The slab catalogue editor in its window: the one-way slab shows it modally through the hook of
// the shared state; the systems stand in a list and the rows of the chosen one in a table whose
// fields edit the form; "Elegir" without a row is refused, with a row it hands the row back.

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>
#include <gtest/gtest.h>

#include "concrete/ForjUnid.h"
#include "concrete/ForjUnid2.h"
#include "frame/Formularios.h"
#include "gui/GuiSupport.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

TEST(GuiForjados, EditorShowsFromTheSlabAndHandsBackTheChosenRow)
{
    ProgramaDePrueba p("Local Arce");
    Declaraciones& d = p.app.decl;
    ASSERT_TRUE(d.MuestraDialogo);
    ScratchDir programa;
    for (const char* f : {"ForjArma.txt", "ForjPret.txt", "ForjAlve.txt", "Viguetas"})
        fs::copy_file(std::string(VARDENA_TEST_DATA) + "/../../resources/" + f, programa / f);
    d.DirPrograma = programa.path();
    auto form = CargaForm(d, "frmForjUnid");
    auto* forjado = dynamic_cast<ForjUnid*>(form.get());
    ASSERT_NE(forjado, nullptr);

    bool visto = false;
    ContestaDialogo([&](QWidget* w) {
        visto = true;
        w->findChild<QRadioButton*>("OpTipoFor(1)")->click();
        auto* lista = w->findChild<QListWidget*>("ListFor");
        ASSERT_NE(lista, nullptr);
        ASSERT_EQ(lista->count(), 5);
        EXPECT_EQ(lista->item(4)->text(), "Nuevo Forjado");
        lista->setCurrentRow(2);
        EXPECT_EQ(w->findChild<QLineEdit*>("TxFor")->text(), "Vigueta pretensada 26+4 intereje 72");
        // The table shows the system's six rows and hides the rest.
        EXPECT_TRUE(w->findChild<QLineEdit*>("TXFnombre(5)")->isVisibleTo(w));
        EXPECT_FALSE(w->findChild<QLineEdit*>("TXFnombre(6)")->isVisibleTo(w));
        EXPECT_EQ(w->findChild<QLineEdit*>("TXFnombre(1)")->text(), "P-2");
        // Choosing without a row is refused and the window stays.
        w->findChild<QPushButton*>("UCBelegir")->click();
        ASSERT_EQ(p.ui.boxes.size(), 1u);
        EXPECT_EQ(p.ui.boxes[0].title, "Tabla forjados");
        EXPECT_TRUE(w->isVisible());
        w->findChild<QRadioButton*>("OpFila(1)")->click();
        w->findChild<QPushButton*>("UCBelegir")->click();
    });
    forjado->At("UCFicha").Click();
    EXPECT_TRUE(visto);
    EXPECT_EQ(forjado->At("cmbTipoFor").ListIndex(), 1);
    EXPECT_EQ(forjado->At("TXFnombre").Text(), "P-2");
    EXPECT_EQ(forjado->At("txtForj", 1).Text(), "72");
    EXPECT_EQ(forjado->At("txtForj", 4).Text(), "30");
    EXPECT_EQ(forjado->At("TxNumFor").Text(), "3");
    EXPECT_EQ(forjado->At("TxNumVig").Text(), "2");
}

}  // namespace
}  // namespace vardena::test
