// The windows of the elements with a free-text result: each opens from its family's menu,
// lists the work's records of its code, loads one by a click, and saves what is typed after
// asking whether to replace the stored result.

#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <gtest/gtest.h>

#include "controls/Programa.h"
#include "gui/GuiSupport.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"

namespace vardena::test {
namespace {

TEST(GuiLibres, EachOpensFromItsMenuLoadsARecordAndSavesIt)
{
    struct Caso {
        const char* item;
        const char* codigo;
        const char* propios;  // the record's lines of the form's own controls
    };
    const char* malla = "\"UCArmZap\",\"8\",\"12 \",\"20\"\r\n";
    const Caso casos[] = {{"mnuEnBlanco", "HB", "\"TxCercos\",\"\"\r\n\"txCuelgue\",\"\"\r\n"},
                          {"mnuLosCime", "ZL", malla}, {"mnuMArco", "MA", ""}, {"mnuMArma", "MR", ""},
                          {"mnuSolArma", "ZS", malla}, {"mnuUniAto", "LT", ""}, {"mnuUniSol", "LD", ""},
                          {"mnuVigFlot", "ZF", malla}};
    ProgramaDePrueba p("Vivienda Ruiz");
    const std::string obra = p.Obra("Vivienda Ruiz");
    for (const Caso& c : casos) {
        // A record of version 3 and its result, as the user's work holds them.
        WriteFileAtomic(obra + "/Elemento." + "~" + c.codigo,
                        "\"CmbHorm\",2\r\n\"CmbAcero\",1\r\n\"cmbControl\",2\r\n\"CmbRecub\",4\r\n"
                        "\"TxtRes1\",\"Texto viejo\"\r\n\"txtTitulo\",\"Elemento\"\r\n" + std::string(c.propios));
        WriteFileAtomic(obra + "/Elemento.l" + c.codigo, "{\\rtf1 Elemento\\par }\r\n");
    }
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.item);
        VentanaMenu* m = p.programa.Menu();
        ASSERT_NE(m, nullptr);
        ASSERT_NE(m->Accion(c.item), nullptr);
        EXPECT_FALSE(m->Accion(c.item)->text().isEmpty()) << "the command shows its label";
        m->Accion(c.item)->trigger();
        Espera();
        auto* v = dynamic_cast<VentanaElemento*>(p.programa.Actual());
        ASSERT_NE(v, nullptr) << "the window opens instead of halting";
        auto* lista = v->findChild<QListWidget*>("List1");
        ASSERT_NE(lista, nullptr);
        ASSERT_EQ(lista->count(), 1);
        lista->setCurrentRow(0);
        auto* texto = v->findChild<QLineEdit*>("TxtRes1");
        ASSERT_NE(texto, nullptr);
        EXPECT_EQ(texto->text(), "Texto viejo");
        Escribe(texto, "Texto nuevo");
        const size_t cajas = p.ui.boxes.size();
        v->findChild<QPushButton*>("CmdCalcular")->click();
        ASSERT_EQ(p.ui.boxes.size(), cajas + 1) << "it asks before replacing the result";
        const std::string registro = ReadDiskText(obra + "/Elemento.~" + c.codigo);
        EXPECT_NE(registro.find("TxtRes1 [TextBox]\t.Text\tTexto nuevo"), std::string::npos);
        v->findChild<QPushButton*>("CmdSalir")->click();
        Espera();
    }
}

}  // namespace
}  // namespace vardena::test
