// Every element window opened from its menu command: it replaces the main window, lists the
// work's records, loads one by a click, saves it by "CONVERTIR" exactly as the command line's
// form driver does, swaps to the stored result, and gives the main window back on "SALIR".

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <map>

#include "controls/Programa.h"
#include "frame/ElementForm.h"
#include "gui/GuiSupport.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "base/FileIo.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

struct Comando {
    std::string item, codigo;
};

std::vector<Comando> ComandosDeElementos()
{
    std::vector<Comando> out = {{"mnuAcciones", "ACCI"}, {"mnuDatosProy", "DAPR"}};
    for (const auto& [familia, comandos] : FamiliasMenu())
        for (const ComandoElemento& c : comandos)
            if (c.codigo.rfind("frm", 0) != 0)
                out.push_back({c.item, c.codigo});
    return out;
}

// The sample work that holds results of `codigo`, "" when none does.
std::string ObraConResultados(const std::string& carpeta, const std::string& codigo)
{
    for (const char* obra : {"Vivienda Ruiz", "Edificio Oroel", "Taller Moncayo", "Local Arce"})
        if (!FilesEndingWith(carpeta + "/" + obra, ".l" + codigo).empty())
            return obra;
    return {};
}

TEST(GuiElementos, EveryElementWindowOpensListsLoadsAndSavesAsTheCommandLine)
{
    ProgramaDePrueba p("Vivienda Ruiz");
    ScratchDir copia;
    fs::copy(VARDENA_EXAMPLES, copia.path(), fs::copy_options::recursive);
    for (const Comando& cmd : ComandosDeElementos()) {
        SCOPED_TRACE(cmd.item);
        // The code of the records of the form the command opens, with or without a catalogue row.
        const std::string codigo(CodigoDeRegistro(FormaDeMenu(cmd.codigo)));
        ASSERT_EQ(codigo.size(), 2u);
        const std::string obra = ObraConResultados(p.dir.path(), codigo);
        VentanaMenu* m = p.programa.Menu();
        ASSERT_NE(m, nullptr);
        auto* obras = m->findChild<QListWidget*>("List1");
        obras->setCurrentItem(obras->findItems(Q(obra.empty() ? "Vivienda Ruiz" : obra), Qt::MatchExactly).value(0));
        ASSERT_TRUE(m->Accion(cmd.item)->isEnabled());
        m->Accion(cmd.item)->trigger();
        Espera();
        auto* v = dynamic_cast<VentanaElemento*>(p.programa.Actual());
        ASSERT_NE(v, nullptr) << "the element window replaces the main window";
        EXPECT_FALSE(m == p.programa.Menu());
        const std::string form = v->form().Name();

        auto* lista = v->findChild<QListWidget*>("List1");
        ASSERT_NE(lista, nullptr);
        const std::string carpeta = p.dir / (obra.empty() ? "Vivienda Ruiz" : obra);
        if (form != "frmAccio") {
            EXPECT_EQ(lista->count(), static_cast<int>(FilesEndingWith(carpeta, ".l" + codigo).size()));
        }
        // Records of the forms that the conversion leaves alone may be of another layout: those
        // windows save their defaults, as the command line does without a title.
        std::string titulo;
        if (lista->count() > 0 && !FormDeCodigo(codigo).empty()) {
            lista->setCurrentRow(0);
            titulo = lista->item(0)->text().toStdString();
            EXPECT_EQ(v->findChild<QLineEdit*>("txtTitulo")->text().toStdString(), v->form().At("txtTitulo").Text());
        }
        const std::string guardado = v->form().At("txtTitulo").Text();
        v->findChild<QPushButton*>("CmdCalcular")->click();
        const auto escrito = FindNoCase(carpeta, guardado + ".~" + codigo);
        ASSERT_TRUE(escrito) << guardado;

        // The command line's form driver on an untouched copy writes the same record.
        const std::string otra = copia / (obra.empty() ? "Vivienda Ruiz" : obra);
        std::string args = "form '" + otra + "' " + form + " --press CmdCalcular";
        if (!titulo.empty() && form != "frmAccio")
            args = "form '" + otra + "' " + form + " --title '" + titulo + "' --press CmdCalcular";
        std::string err;
        ASSERT_EQ(RunCli(args, nullptr, &err), 0) << err;
        const auto delCli = FindNoCase(otra, guardado + ".~" + codigo);
        ASSERT_TRUE(delCli);
        EXPECT_EQ(ReadBytes(*escrito), ReadBytes(*delCli)) << form;

        // "Listado" swaps the data for the stored result and back.
        auto* listado = v->findChild<QPushButton*>("Listado1");
        auto* pila = v->findChild<QStackedWidget*>();
        ASSERT_TRUE(listado && pila);
        listado->click();
        EXPECT_EQ(pila->currentIndex(), 1);
        listado->click();
        EXPECT_EQ(pila->currentIndex(), 0);

        v->findChild<QPushButton*>("CmdSalir")->click();
        Espera();
        ASSERT_NE(p.programa.Menu(), nullptr) << "the main window comes back";
    }
}

// Every element window fits the width of a 1280x800 screen: its columns of fields scroll down,
// never sideways.
TEST(GuiElementos, EveryElementWindowFitsTheWidthOfTheScreen)
{
    ProgramaDePrueba p("Vivienda Ruiz");
    std::vector<std::string> anchas;
    for (const Comando& cmd : ComandosDeElementos()) {
        VentanaMenu* m = p.programa.Menu();
        ASSERT_NE(m, nullptr);
        m->Accion(cmd.item)->trigger();
        Espera();
        auto* v = dynamic_cast<VentanaElemento*>(p.programa.Actual());
        ASSERT_NE(v, nullptr) << cmd.item;
        v->resize(1280, 800);
        v->show();
        Espera();
        for (QScrollArea* zona : v->findChildren<QScrollArea*>())
            if (zona->isVisible() && zona->horizontalScrollBar()->isVisible())
                anchas.push_back(v->form().Name());
        v->findChild<QPushButton*>("CmdSalir")->click();
        Espera();
    }
    // The project annexes still show their questionnaire as one plain list of fields.
    std::erase(anchas, "frmDatosProy");
    EXPECT_TRUE(anchas.empty()) << ::testing::PrintToString(anchas);
}

TEST(GuiElementos, LoadingARecordShowsItsFieldsAndVersion)
{
    ProgramaDePrueba p("Vivienda Ruiz");
    VentanaMenu* m = p.programa.Menu();
    m->Accion("VigasH")->trigger();
    Espera();
    auto* v = dynamic_cast<VentanaElemento*>(p.programa.Actual());
    ASSERT_NE(v, nullptr);
    auto* lista = v->findChild<QListWidget*>("List1");
    ASSERT_GT(lista->count(), 0);
    lista->setCurrentRow(0);
    EXPECT_EQ(v->findChild<QLineEdit*>("txtTitulo")->text(), lista->item(0)->text());
    EXPECT_EQ(v->findChild<QWidget*>("Lbvers")->property("text").toString().trimmed(), "vers:  3.01");
    // Typing in a field reaches the form: the saved record holds it.
    auto* q = v->findChild<QLineEdit*>("TxtQ(0)");
    ASSERT_NE(q, nullptr);
    Escribe(q, "12.5");
    EXPECT_EQ(v->form().At("TxtQ", 0).Text(), "12.5");
    v->findChild<QPushButton*>("CmdCalcular")->click();
    const auto registro = FindNoCase(p.Obra("Vivienda Ruiz"), lista->item(0)->text().toStdString() + ".~HJ");
    ASSERT_TRUE(registro);
    EXPECT_NE(ReadDiskText(*registro).find("12.5"), std::string::npos);
    // The window control closes it as "SALIR" does.
    v->close();
    Espera();
    EXPECT_NE(p.programa.Menu(), nullptr);
}

// A title that cannot name a file inside the work is refused with a box, and nothing is written.
TEST(GuiElementos, ATitleThatWouldLeaveTheWorkIsRefused)
{
    ProgramaDePrueba p("Vivienda Ruiz");
    p.programa.Menu()->Accion("VigasH")->trigger();
    Espera();
    auto* v = dynamic_cast<VentanaElemento*>(p.programa.Actual());
    ASSERT_NE(v, nullptr);
    const std::string obra = p.Obra("Vivienda Ruiz");
    std::map<std::string, std::string> antes;
    for (const auto& e : fs::directory_iterator(p.dir.path()))
        antes[e.path().filename().string()] = "";
    const size_t archivos = std::distance(fs::directory_iterator(obra), fs::directory_iterator());
    for (const char* titulo : {"..", "", "../fuera", "a\\b"}) {
        SCOPED_TRACE(titulo);
        Escribe(v->findChild<QLineEdit*>("txtTitulo"), QString::fromUtf8(titulo));
        const size_t cajas = p.ui.boxes.size();
        v->findChild<QPushButton*>("CmdCalcular")->click();
        ASSERT_EQ(p.ui.boxes.size(), cajas + 1);
        EXPECT_NE(p.ui.boxes.back().prompt.find("No se ha guardado nada"), std::string::npos) << p.ui.boxes.back().prompt;
        EXPECT_EQ(static_cast<size_t>(std::distance(fs::directory_iterator(obra), fs::directory_iterator())), archivos);
        std::map<std::string, std::string> ahora;
        for (const auto& e : fs::directory_iterator(p.dir.path()))
            ahora[e.path().filename().string()] = "";
        EXPECT_EQ(ahora, antes) << "nothing beside the work either";
    }
}

}  // namespace
}  // namespace vardena::test
