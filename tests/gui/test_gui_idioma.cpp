// The language of the windows: the language command of the main window turns its captions,
// menus, group titles and labels into the chosen language at once and back again, the general
// data open in the language in force, and no text of either window is left in the other
// language unless it is a number, a name or data of the work.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "controls/Programa.h"
#include "controls/UiQt.h"
#include "gui/GuiSupport.h"
#include "works/Catalogo.h"

namespace vardena::test {
namespace {

// One text a person sees: where it stands and what it says.
struct TextoVisible {
    QString donde;    // class, control name (without index) and property
    QString control;  // the control's name without its index; "" for the layout's own widgets
    QString texto;
};
using Textos = std::vector<TextoVisible>;

QString NombreControl(const QObject* o)
{
    const QString n = o->objectName();
    return n.left(n.indexOf('(') < 0 ? n.size() : n.indexOf('('));
}

// Every text of a window, in the order of its widgets: title, captions, labels, group titles,
// field values, list rows, tool tips, and the menu bar with its commands.
Textos TextosDe(QWidget* ventana)
{
    Textos out;
    auto pon = [&](const QObject* o, const char* que, const QString& texto) {
        if (!texto.trimmed().isEmpty())
            out.push_back({QString(o->metaObject()->className()) + " " + o->objectName() + " " + que,
                           NombreControl(o), texto});
    };
    pon(ventana, "windowTitle", ventana->windowTitle());
    for (QWidget* w : ventana->findChildren<QWidget*>()) {
        if (auto* l = qobject_cast<QLabel*>(w))
            pon(w, "text", l->text());
        else if (auto* b = qobject_cast<QAbstractButton*>(w))
            pon(w, "text", b->text());
        else if (auto* g = qobject_cast<QGroupBox*>(w))
            pon(w, "title", g->title());
        else if (auto* e = qobject_cast<QLineEdit*>(w))
            pon(w, "text", e->text());
        else if (auto* a = qobject_cast<QPlainTextEdit*>(w))
            pon(w, "text", a->toPlainText());
        else if (auto* c = qobject_cast<QComboBox*>(w))
            for (int i = 0; i < c->count(); ++i)
                pon(w, "item", c->itemText(i));
        else if (auto* lw = qobject_cast<QListWidget*>(w))
            for (int i = 0; i < lw->count(); ++i)
                pon(w, "item", lw->item(i)->text());
        pon(w, "toolTip", w->toolTip());
    }
    if (auto* mw = dynamic_cast<VentanaMenu*>(ventana))
        for (QAction* grupo : mw->menuBar()->actions()) {
            pon(grupo, "menu", grupo->text());
            if (QMenu* m = grupo->menu())
                for (QAction* a : m->actions())
                    pon(a, "command", a->text());
        }
    return out;
}

// Chooses a language through the main window's own command and its dialog, as a person would.
void EligeIdioma(VentanaMenu& m, const QString& idioma)
{
    bool respondido = false;
    ContestaDialogo([&](QWidget* d) {
        auto* lista = d->findChild<QListWidget*>("List1");
        ASSERT_NE(lista, nullptr);
        const auto filas = lista->findItems(idioma, Qt::MatchExactly);
        ASSERT_EQ(filas.size(), 1) << idioma.toStdString();
        lista->setCurrentItem(filas[0]);
        d->findChild<QPushButton*>("Cmdacepta")->click();
        respondido = true;
    });
    m.Accion("Idioma")->trigger();
    Espera();
    ASSERT_TRUE(respondido);
}

QString TextoDe(QWidget* ventana, const char* control)
{
    QWidget* w = ventana->findChild<QWidget*>(control);
    return w ? w->property("text").toString() : QString("(no %1)").arg(control);
}

bool HayGrupo(QWidget* ventana, const QString& titulo)
{
    for (auto* g : ventana->findChildren<QGroupBox*>())
        if (g->title() == titulo)
            return true;
    return false;
}

bool HayEtiqueta(QWidget* ventana, const QString& texto)
{
    for (auto* l : ventana->findChildren<QLabel*>())
        if (l->text() == texto)
            return true;
    return false;
}

// The general data of the selected work, opened from the main window; nullptr when they did not open.
VentanaDatosGen* AbreDatosGen(ProgramaDePrueba& p)
{
    p.programa.Menu()->Accion("DatGen")->trigger();
    Espera();
    return dynamic_cast<VentanaDatosGen*>(p.programa.Actual());
}

void CierraDatosGen(ProgramaDePrueba& p, VentanaDatosGen* v)
{
    v->findChild<QPushButton*>("Cancelar")->click();
    Espera();
    ASSERT_NE(p.programa.Menu(), nullptr) << "the main window comes back";
}

// The texts that a change of language leaves as they are: values and names that belong to the
// work or to the codes, and words that read the same in both languages.
bool NoSeTraduce(const TextoVisible& t)
{
    // The work's own data: its name, folder, path, description, version, record titles, the
    // enclosure layers and every value of a field.
    static const std::set<QString> datos = {
        "List1",     "Lbtitulo",  "Lbvers",     "Drive1",   "Dire",     "descr",    "TextDescr", "TextValor",
        "TextTotal", "TextDia",   "TxtPProP",   "TxtPProS", "TxtConcP", "TxtConcS", "TxtSobrP",  "TxtSobrS",
        "TxtSTabP",  "TxtSTabS",  "TxtCUsoP",   "TxtCUsoS", "TxCot",    "TxResFab", "TxCoefMin", "TxtDensFabr",
        "TxTens",
        // Designations of the codes: concrete, bars, rolled steel and timber classes, masonry
        // categories, and the floor counts.
        "CmbHorm",   "CmbAcero",  "CmbAcP",     "CmbResis", "cmbCatControl", "CmbCatEjec", "cmbGeom",
        // Units.
        "lbST",      "lbSI",
    };
    if (datos.count(t.control))
        return true;
    // The titles of the stored records under each heading of the work's contents.
    if (t.control == "Outlin" && t.texto.startsWith(QString::fromUtf8(" \u00b7 ")) &&
        !t.texto.contains("Descripci") && !t.texto.contains("Datos"))
        return true;
    // Names and signs: the capture formats, the folder button's ellipsis, the timber help.
    static const std::set<QString> nombres = {"BMP", "JPG", "PNG", QString::fromUtf8("\u2026"), "?"};
    if (nombres.count(t.texto))
        return true;
    // The same word in Spanish and English: the normal control level, the enclosure's total.
    if ((t.control == "cmbControl" && t.texto == "Normal") || (t.control.isEmpty() && t.texto == "Total"))
        return true;
    bool numero = false;
    t.texto.trimmed().toDouble(&numero);
    return numero;
}

// Texts of `antes` that `despues`, the same window in another language, still shows as they were.
std::vector<std::string> SinTraducir(const Textos& antes, const Textos& despues)
{
    std::vector<std::string> out;
    if (antes.size() != despues.size()) {
        out.push_back("the window holds " + std::to_string(antes.size()) + " texts before and " +
                      std::to_string(despues.size()) + " after");
        return out;
    }
    for (size_t i = 0; i < antes.size(); ++i)
        if (antes[i].donde == despues[i].donde && antes[i].texto == despues[i].texto && !NoSeTraduce(antes[i]))
            out.push_back((antes[i].donde + ": " + antes[i].texto).toStdString());
    return out;
}

std::string Junta(const std::vector<std::string>& lineas)
{
    std::string s;
    for (const auto& l : lineas)
        s += "\n  " + l;
    return s;
}

TEST(GuiIdioma, MainWindowTurnsEnglishAndBackToSpanishWithoutRestarting)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    ASSERT_NE(m, nullptr);
    const Textos espanol = TextosDe(m);

    EligeIdioma(*m, "English");
    ASSERT_EQ(p.programa.Menu(), m) << "the same window, not a new one";
    EXPECT_EQ(Setting(p.app.decl, "Preferencias", "Lenguaje"), "English");
    EXPECT_EQ(m->windowTitle(), " CONVERTER  Vardena 3 to 4");
    EXPECT_EQ(TextoDe(m, "UCBconvertir"), "CONVERT");
    EXPECT_EQ(TextoDe(m, "UCBexplorer"), "Open work folder");
    EXPECT_EQ(TextoDe(m, "Label3"), "Version");
    EXPECT_EQ(TextoDe(m, "Lab_1"), "CONVERTING WORKS OF VARDENA 3");
    EXPECT_TRUE(HayGrupo(m, "Works"));
    EXPECT_TRUE(HayGrupo(m, "How to convert a work"));
    EXPECT_TRUE(HayEtiqueta(m, "Contents of the work"));
    EXPECT_TRUE(HayEtiqueta(m, "Title and description of this work"));
    EXPECT_EQ(m->Accion("Nueva")->text(), "New");
    EXPECT_EQ(m->Accion("mnuVigMet")->text(), "Steel beams") << "an element command named by the catalogue";
    EXPECT_EQ(m->findChild<QPlainTextEdit*>("descr")->toPlainText(),
              "Local comercial en planta baja, en el sistema internacional.")
        << "the description is the work's own text";
    EXPECT_EQ(m->findChild<QListWidget*>("Outlin")->item(0)->text(), "Work data") << "the catalogue is filled anew";

    EligeIdioma(*m, QString::fromUtf8("Espa\u00f1ol"));
    ASSERT_EQ(p.programa.Menu(), m);
    EXPECT_EQ(m->windowTitle(), " CONVERSOR  Vardena 3 a 4");
    EXPECT_EQ(TextoDe(m, "UCBconvertir"), "CONVERTIR");
    EXPECT_EQ(TextoDe(m, "Lab_1"), QString::fromUtf8("CONVERSI\u00d3N DE OBRAS DE VARDENA 3"));
    EXPECT_TRUE(HayGrupo(m, "Obras"));
    EXPECT_EQ(m->Accion("mnuVigMet")->text(), QString::fromUtf8("Vigas met\u00e1licas"));
    // Everything is back as it was at the start, to the last tool tip and menu command. The
    // folder list's tool tip is the one exception: a change of folder sets the hint of message
    // 136, and a language pack gives back the designed tip, "Directorio de trabajo", in Spanish.
    EXPECT_EQ(m->findChild<QWidget*>("Dire")->toolTip(), "Directorio de trabajo");
    const Textos vuelta = TextosDe(m);
    ASSERT_EQ(vuelta.size(), espanol.size());
    for (size_t i = 0; i < espanol.size(); ++i) {
        EXPECT_EQ(vuelta[i].donde, espanol[i].donde);
        if (espanol[i].donde != "QLineEdit Dire toolTip") {
            EXPECT_EQ(vuelta[i].texto, espanol[i].texto) << espanol[i].donde.toStdString();
        }
    }
}

TEST(GuiIdioma, GeneralDataOpenInTheLanguageInForce)
{
    ProgramaDePrueba p("Local Arce");
    VentanaDatosGen* v = AbreDatosGen(p);
    ASSERT_NE(v, nullptr);
    const Textos espanol = TextosDe(v);
    EXPECT_TRUE(HayGrupo(v, QString::fromUtf8("Secci\u00f3n del edificio")));
    CierraDatosGen(p, v);

    EligeIdioma(*p.programa.Menu(), "English");
    v = AbreDatosGen(p);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->windowTitle(), "General building data");
    EXPECT_EQ(TextoDe(v, "Aceptar"), "CONVERT");
    EXPECT_EQ(TextoDe(v, "ChHormigon"), "Used in the work");
    EXPECT_EQ(TextoDe(v, "ChVerCargas"), "Show loads");
    EXPECT_TRUE(HayGrupo(v, "Building section"));
    EXPECT_TRUE(HayGrupo(v, "Reinforced concrete"));
    EXPECT_TRUE(HayEtiqueta(v, "No. of floors"));
    EXPECT_TRUE(HayEtiqueta(v, "Self weight"));
    EXPECT_TRUE(HayEtiqueta(v, "Height (m.)"));
    EXPECT_EQ(TextoDe(v, "TextDescr(0)"), "Enfoscado") << "the enclosure layers are the work's data";
    const Textos english = TextosDe(v);
    CierraDatosGen(p, v);

    EligeIdioma(*p.programa.Menu(), QString::fromUtf8("Espa\u00f1ol"));
    v = AbreDatosGen(p);
    ASSERT_NE(v, nullptr);
    const Textos vuelta = TextosDe(v);
    ASSERT_EQ(vuelta.size(), espanol.size());
    for (size_t i = 0; i < espanol.size(); ++i)
        EXPECT_EQ(vuelta[i].texto, espanol[i].texto) << espanol[i].donde.toStdString();
    CierraDatosGen(p, v);
    EXPECT_EQ(english.size(), espanol.size());
}

// In English no text of the main window or of the general data stays as it was in Spanish,
// but for the work's data, numbers, names and the words listed in NoSeTraduce.
TEST(GuiIdioma, NoTextStaysSpanishInEnglish)
{
    ProgramaDePrueba p("Local Arce");
    VentanaMenu* m = p.programa.Menu();
    const Textos menuEs = TextosDe(m);
    VentanaDatosGen* v = AbreDatosGen(p);
    ASSERT_NE(v, nullptr);
    const Textos datosEs = TextosDe(v);
    CierraDatosGen(p, v);

    m = p.programa.Menu();
    EligeIdioma(*m, "English");
    // The main window came back as a new window after the general data: compare like with like.
    VentanaMenu* nueva = p.programa.Menu();
    EXPECT_EQ(Junta(SinTraducir(menuEs, TextosDe(nueva))), "");
    v = AbreDatosGen(p);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(Junta(SinTraducir(datosEs, TextosDe(v))), "");
    CierraDatosGen(p, v);
}

// The boxes and the error window speak the language in force too.
TEST(GuiIdioma, BoxesAndTheErrorWindowFollowTheLanguage)
{
    ProgramaDePrueba p("Local Arce");
    EligeIdioma(*p.programa.Menu(), "English");
    UiQt ui;
    ui.decl = &p.app.decl;
    QStringList botones;
    QString titulo;
    ContestaDialogo([&](QWidget* box) {
        titulo = box->windowTitle();
        for (auto* b : box->findChildren<QPushButton*>())
            botones << b->text();
        for (auto* b : box->findChildren<QPushButton*>())
            if (b->text() == "Cancel")
                b->click();
    });
    EXPECT_EQ(ui.MsgBox("Sure?", mb::YesNoCancel | mb::Question, ""), mb::Cancel);
    botones.sort();
    EXPECT_EQ(botones, (QStringList{"Cancel", "No", "Yes"}));
    EXPECT_EQ(titulo, "Vardena 3");

    DatosError e;
    e.numero = 75;
    e.descripcion = "Path/File access error";
    e.origen = "CmdCalcular_Click";
    ErrorDialog d(&p.app.decl, e);
    QStringList textos;
    for (auto* b : d.findChildren<QPushButton*>())
        textos << b->text();
    EXPECT_EQ(textos, (QStringList{"Details >>", "Save", "Retry", "Exit"}));
    EXPECT_TRUE(HayEtiqueta(&d, "Error No. 75 in CmdCalcular_Click: Path/File access error"));
    d.cmd_Detail();
    EXPECT_EQ(d.findChildren<QPushButton*>().front()->text(), "Details <<");
    d.cmd_Detail();
    EXPECT_EQ(d.findChildren<QPushButton*>().front()->text(), "Details >>");
    // The box that tells the report was saved has its button from the pack as well.
    ScratchDir programa;
    p.app.decl.DirPrograma = programa.path();
    QStringList aviso;
    ContestaDialogo([&](QWidget* box) {
        for (auto* b : box->findChildren<QPushButton*>())
            aviso << b->text();
        static_cast<QDialog*>(box)->accept();
    });
    d.GuardaErr();
    EXPECT_EQ(aviso, QStringList{"OK"});

    // Before the program's state exists a box still has a word on every button.
    UiQt sinEstado;
    QStringList palabras;
    ContestaDialogo([&](QWidget* box) {
        for (auto* b : box->findChildren<QPushButton*>())
            palabras << b->text();
        static_cast<QDialog*>(box)->reject();
    });
    sinEstado.MsgBox("?", mb::YesNo, "");
    ASSERT_EQ(palabras.size(), 2);
    for (const QString& w : palabras)
        EXPECT_FALSE(w.isEmpty());
}

}  // namespace
}  // namespace vardena::test
