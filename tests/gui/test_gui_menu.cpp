// The desktop program driven through its widgets on a scratch copy of the sample works: the
// main window, the conversion, the work dialogs, the general data of a new work, the error
// window.

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "building/DatosGen.h"
#include "controls/Programa.h"
#include "controls/UiQt.h"
#include "gui/GuiSupport.h"
#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

// Selects a work of the main window's list as a click would.
void EligeObra(VentanaMenu& m, const std::string& obra)
{
    auto* lista = m.findChild<QListWidget*>("List1");
    ASSERT_NE(lista, nullptr);
    const auto items = lista->findItems(Q(obra), Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1) << obra;
    lista->setCurrentItem(items[0]);
}

TEST(GuiMenu, StartsOnTheStoredWorkAndConvertsIt)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->windowTitle(), " CONVERSOR  Vardena 3 a 4");
    auto* convertir = m->findChild<QPushButton*>("UCBconvertir");
    auto* version = m->findChild<QLabel*>("Lbvers");
    ASSERT_TRUE(convertir && version);
    EXPECT_EQ(version->text(), "3.01");
    EXPECT_TRUE(convertir->isEnabled());
    const std::string registro = p.Obra("Local Arce") + "/Elemento SI.~HJ";
    const std::string antes = ReadBytes(registro);
    convertir->click();
    EXPECT_EQ(version->text(), "3.50");
    EXPECT_FALSE(convertir->isEnabled());
    EXPECT_NE(ReadBytes(registro), antes);
    EXPECT_NE(ReadDiskText(registro).find('\t'), std::string::npos);
    EXPECT_TRUE(m->centralWidget()->isEnabled()) << "the window is free again after the run";
}

TEST(GuiMenu, AWorkOfTheNewVersionLeavesTheButtonOff)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    EligeObra(*m, "Nave Ebro");
    EXPECT_EQ(m->findChild<QLabel*>("Lbvers")->text(), "3.50");
    EXPECT_FALSE(m->findChild<QPushButton*>("UCBconvertir")->isEnabled());
    EligeObra(*m, "Vivienda Ruiz");
    EXPECT_TRUE(m->findChild<QPushButton*>("UCBconvertir")->isEnabled());
    EXPECT_TRUE(m->Accion("VigasH")->isEnabled());
}

TEST(GuiMenu, NewWorkGoesToItsGeneralDataWhichCannotBeClosedUntilAccepted)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    ContestaDialogo([](QWidget* d) {
        auto* nombre = d->findChild<QLineEdit*>("Nuev");
        ASSERT_NE(nombre, nullptr);
        Escribe(nombre, "Torre Nueva");
        Escribe(d->findChild<QLineEdit*>("Text1"), "Reforma");
        d->findChild<QPushButton*>("Aceptar")->click();
    });
    m->Accion("Nueva")->trigger();
    Espera();
    ASSERT_TRUE(fs::is_directory(p.Obra("Torre Nueva")));
    EXPECT_NE(ReadDiskText(p.Obra("Torre Nueva") + "/DESCR.~CE").find("Reforma"), std::string::npos);
    auto* datos = dynamic_cast<VentanaDatosGen*>(p.programa.Actual());
    ASSERT_NE(datos, nullptr) << "a new work opens its general data by itself";
    EXPECT_FALSE(datos->findChild<QPushButton*>("Cancelar")->isEnabled());
    datos->close();
    Espera();
    EXPECT_TRUE(datos->isVisible()) << "closing is refused while the work is new";
    ASSERT_FALSE(p.ui.boxes.empty());
    EXPECT_EQ(p.ui.boxes.back().style, mb::Exclamation);
    datos->findChild<QPushButton*>("Aceptar")->click();
    Espera();
    EXPECT_TRUE(FindNoCase(p.Obra("Torre Nueva"), "DATOS.~CE"));
    VentanaMenu* vuelta = p.programa.Menu();
    ASSERT_NE(vuelta, nullptr) << "the main window comes back";
    EXPECT_EQ(vuelta->findChild<QListWidget*>("List1")->currentItem()->text(), "Torre Nueva");
    EXPECT_EQ(vuelta->findChild<QLabel*>("Lbvers")->text(), "3.50");
}

TEST(GuiMenu, CopyAndDeleteThroughTheDialogs)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    ContestaDialogo([](QWidget* d) {
        EXPECT_EQ(d->findChild<QLineEdit*>("NombAct")->text(), "Local Arce");
        EXPECT_EQ(d->findChild<QLineEdit*>("Nuev")->text(), "Local Arce_00");
        d->findChild<QPushButton*>("Aceptar")->click();
    });
    m->Accion("Copi")->trigger();
    ASSERT_TRUE(fs::is_directory(p.Obra("Local Arce_00")));
    EXPECT_EQ(ReadBytes(p.Obra("Local Arce_00") + "/DATOS.~CE"), ReadBytes(p.Obra("Local Arce") + "/DATOS.~CE"));
    auto* lista = m->findChild<QListWidget*>("List1");
    EXPECT_EQ(lista->findItems("Local Arce_00", Qt::MatchExactly).size(), 1);

    EligeObra(*m, "Local Arce_00");
    ContestaDialogo([](QWidget* d) {
        EXPECT_EQ(d->findChild<QLineEdit*>("Borr")->text(), "Local Arce_00");
        d->findChild<QPushButton*>("Aceptar")->click();
    });
    m->Accion("Eliminar")->trigger();
    EXPECT_FALSE(fs::exists(p.Obra("Local Arce_00")));
    EXPECT_EQ(p.papelera->enviados.size(), 1u);
    EXPECT_EQ(lista->findItems("Local Arce_00", Qt::MatchExactly).size(), 0);

    // Escape cancels.
    EligeObra(*m, "Local Arce");
    ContestaDialogo([](QWidget* d) { static_cast<QDialog*>(d)->reject(); });
    m->Accion("Eliminar")->trigger();
    EXPECT_TRUE(fs::exists(p.Obra("Local Arce")));
}

TEST(GuiMenu, DescriptionIsSavedWhenItLosesTheFocus)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    auto* descr = m->findChild<QPlainTextEdit*>("descr");
    ASSERT_NE(descr, nullptr);
    descr->setPlainText("Local comercial\nen planta baja");
    Control& c = m->menu().At("descr");
    m->vista().Ejecuta([&] { c.onLostFocus(c); });
    EXPECT_EQ(ReadDiskText(p.Obra("Local Arce") + "/DESCR.~CE"), "Local comercial\nen planta baja\n");
}

TEST(GuiMenu, CheckMarksFollowTheSettings)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    QAction* siempre = m->Accion("SiempreVisible");
    ASSERT_TRUE(siempre->isCheckable());
    EXPECT_FALSE(siempre->isChecked());
    siempre->trigger();
    EXPECT_TRUE(siempre->isChecked());
    EXPECT_EQ(Setting(p.app.decl, "Preferencias", "SiempreVisible"), "Si");
    EXPECT_TRUE(m->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_FALSE(m->Accion("CapturaPantallasJPG")->isEnabled());
    m->Accion("CapturaPantallas")->trigger();
    EXPECT_TRUE(m->Accion("CapturaPantallasJPG")->isEnabled());
}

TEST(GuiError, DetailTogglesBackToTheFirstSizeAndSaveWritesErrorTxt)
{
    ProgramaDePrueba p("Local Arce");
    ScratchDir programa;
    p.app.decl.DirPrograma = programa.path();
    DatosError e;
    e.numero = 380;
    e.descripcion = "Valor de propiedad no válido";
    e.origen = "CmdCalcular_Click";
    ErrorDialog d(&p.app.decl, e);
    d.show();
    Espera();
    const int alto = d.height();
    d.cmd_Detail();
    EXPECT_TRUE(d.DetalleVisible());
    EXPECT_GT(d.height(), alto);
    d.cmd_Detail();
    EXPECT_FALSE(d.DetalleVisible());
    EXPECT_EQ(d.height(), alto);
    ContestaDialogo([](QWidget* box) { static_cast<QDialog*>(box)->accept(); });
    d.GuardaErr();
    const std::string txt = ReadDiskText(programa / "Error.txt");
    EXPECT_EQ(txt.rfind(std::string(57, '-'), 0), 0u);
    EXPECT_NE(txt.find("Número: 380"), std::string::npos);
    EXPECT_NE(txt.find("CmdCalcular_Click"), std::string::npos);
    EXPECT_TRUE(fs::exists(programa / "Error.bmp"));
}

TEST(GuiError, MessageBoxStylesGiveTheirButtons)
{
    struct Fila {
        int estilo;
        std::vector<int> respuestas;
    };
    for (const Fila& f : {Fila{mb::OkOnly, {mb::Ok}}, Fila{mb::OkCancel | mb::Question, {mb::Ok, mb::Cancel}},
                          Fila{mb::YesNo | mb::Exclamation, {mb::Yes, mb::No}},
                          Fila{mb::YesNoCancel, {mb::Yes, mb::No, mb::Cancel}}}) {
        std::vector<int> r;
        for (const BotonRespuesta& b : BotonesDeEstilo(f.estilo))
            r.push_back(b.respuesta);
        EXPECT_EQ(r, f.respuestas) << f.estilo;
    }
    ProgramaDePrueba p("Local Arce");
    UiQt ui;
    ui.decl = &p.app.decl;
    ContestaDialogo([](QWidget* box) {
        for (auto* b : box->findChildren<QPushButton*>())
            if (b->text() == "No")
                b->click();
    });
    EXPECT_EQ(ui.MsgBox("¿Seguro?", mb::YesNo | mb::Question, "Borrar"), mb::No);
}

}  // namespace
}  // namespace vardena::test
