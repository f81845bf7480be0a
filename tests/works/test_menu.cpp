// The main window's model on copies of the sample works: listing, selecting, the version rule,
// the conversion, the description, the menus and the element commands.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "application/Arranque.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"
#include "application/Menu.h"
#include "works/Subrut.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

// A scratch copy of the sample works and a main window over it, loaded on `obra`.
struct MenuDePrueba {
    explicit MenuDePrueba(const std::string& obra = {})
    {
        fs::copy(VARDENA_EXAMPLES, dir.path(), fs::copy_options::recursive);
        app.decl.DirObras = dir.path();
        app.decl.NombreObra = obra;
        menu.ganchos.cierra = [this] { ++cierres; };
        menu.Form_Load();
    }
    std::string Obra(const std::string& nombre) const { return dir / nombre; }

    ScratchDir dir;
    TestApp app;
    Menu menu{app.decl};
    int cierres = 0;
};

TEST(Menu, ListsTheWorksOfTheFolderAndSelectsTheStoredOne)
{
    MenuDePrueba m("Vivienda Ruiz");
    const Control& list = m.menu.At("List1");
    EXPECT_EQ(list.Items(), ListaObras(m.dir.path()));
    EXPECT_EQ(list.SelectedText(), "Vivienda Ruiz");
    EXPECT_EQ(m.menu.At("Lbvers").Caption(), "3.01");
    EXPECT_TRUE(m.menu.At("UCBconvertir").Enabled());
    EXPECT_GT(m.menu.At("Outlin").ListCount(), 0);
    EXPECT_FALSE(m.menu.At("tachado").Visible());
    EXPECT_TRUE(m.menu.At("descr").Enabled());
    EXPECT_NE(m.menu.At("Lbtitulo").Caption().find("Vivienda Ruiz"), std::string::npos);
    // The families follow the materials of the general data.
    EXPECT_EQ(m.menu.At("Hormigon").Visible(), m.app.decl.GenChHormigon != 0);
    EXPECT_EQ(m.menu.At("Fabrica").Visible(), m.app.decl.GenChFabrica != 0);
    EXPECT_TRUE(m.menu.At("Dat").Visible());
    EXPECT_TRUE(m.menu.At("DatGen").Enabled());
}

TEST(Menu, NoWorkSelectedLeavesTheCommandsOffAndTheMenusHidden)
{
    MenuDePrueba m;
    EXPECT_EQ(m.menu.At("List1").ListIndex(), -1);
    EXPECT_FALSE(m.menu.At("UCBconvertir").Enabled());
    EXPECT_TRUE(m.menu.At("tachado").Visible());
    EXPECT_FALSE(m.menu.At("descr").Enabled());
    EXPECT_EQ(m.menu.At("Lbtitulo").Caption(), "Vardena 3");
    for (const char* item : {"Eliminar", "Copi", "Sistema_Unidades", "DatGen", "Listad", "VigasH", "mnuZapCorr"})
        EXPECT_FALSE(m.menu.At(item).Enabled()) << item;
    for (const char* grupo : {"Dat", "kk", "Hormigon", "Acero", "Madera", "Fabrica", "Cimentacion"})
        EXPECT_FALSE(m.menu.At(grupo).Visible()) << grupo;
}

TEST(Menu, AFolderWithoutDescriptionFilesHasNoWorks)
{
    ScratchDir dir;
    fs::create_directories(dir / "uno");
    fs::create_directories(dir / "dos");
    WriteDiskText(dir / "dos/DATOS.~CE", "x\n");
    TestApp app;
    app.decl.DirObras = dir.path();
    Menu menu(app.decl);
    menu.Form_Load();
    EXPECT_EQ(menu.At("List1").ListCount(), 0);
    EXPECT_EQ(menu.At("List3").Items(), (std::vector<std::string>{"dos", "uno"}));
}

TEST(Menu, VersionRuleOfTheConvertButton)
{
    struct Fila {
        const char* obra;
        const char* version;
        bool convertible;
    };
    for (const Fila& f : {Fila{"Local Arce", "3.01", true}, Fila{"Nave Ebro", "3.50", false},
                          Fila{"Edificio Oroel", "3.00", true}}) {
        MenuDePrueba m(f.obra);
        EXPECT_EQ(m.menu.At("Lbvers").Caption(), f.version) << f.obra;
        EXPECT_EQ(m.menu.At("UCBconvertir").Enabled(), f.convertible) << f.obra;
    }
}

TEST(Menu, ConvertingAWorkRewritesItsRecordsAndTurnsTheButtonOff)
{
    MenuDePrueba m("Local Arce");
    std::vector<std::pair<int, int>> progreso;
    int ocupado = 0;
    m.menu.ganchos.progreso = [&](int hecho, int total, const std::string&) { progreso.push_back({hecho, total}); };
    m.menu.ganchos.ocupado = [&](bool on) { ocupado += on ? 1 : -1; };
    const std::string registro = m.Obra("Local Arce") + "/Elemento SI.~HJ";
    const std::string antes = ReadBytes(registro);
    m.menu.At("UCBconvertir").Click();
    EXPECT_EQ(ocupado, 0) << "the window is freed again";
    ASSERT_FALSE(progreso.empty());
    EXPECT_EQ(progreso.back().first, progreso.back().second);
    EXPECT_NE(ReadBytes(registro), antes);
    EXPECT_NE(ReadDiskText(registro).find('\t'), std::string::npos) << "the named format is tab-separated";
    EXPECT_EQ(m.menu.At("Lbvers").Caption(), "3.50");
    EXPECT_FALSE(m.menu.At("UCBconvertir").Enabled());
    EXPECT_GT(m.menu.At("List2").ListCount(), 0);
    ASSERT_FALSE(m.app.ui.boxes.empty());
    EXPECT_EQ(m.app.ui.boxes.back().style, mb::Information);
}

// The hidden list of names is never cleared: a second run appends the names of its folder to
// those of the first.
TEST(Menu, EachConversionAppendsItsNamesToTheHiddenList)
{
    MenuDePrueba m("Local Arce");
    m.menu.At("UCBconvertir").Click();
    const std::vector<std::string> primera = m.menu.At("List2").Items();
    ASSERT_FALSE(primera.empty());
    EXPECT_NE(std::find(primera.begin(), primera.end(), "Elemento SI.~HJ"), primera.end());

    std::vector<std::string> esperado = primera;
    std::vector<std::string> segunda;
    for (const auto& e : fs::directory_iterator(m.Obra("Edificio Oroel")))
        segunda.push_back(e.path().filename().string());
    SortNoCase(segunda);
    esperado.insert(esperado.end(), segunda.begin(), segunda.end());

    SeleccionaEnLista(m.menu.At("List1"), "Edificio Oroel");
    m.menu.List1_Click();
    ASSERT_TRUE(m.menu.At("UCBconvertir").Enabled());
    m.menu.At("UCBconvertir").Click();
    EXPECT_EQ(m.menu.At("Lbvers").Caption(), "3.50");
    EXPECT_EQ(m.menu.At("List2").Items(), esperado);
}

TEST(Menu, AnEmptyDescriptionShowsThePlaceholderAndIsNotSaved)
{
    MenuDePrueba m("Nave Ebro");
    const std::string descr = m.Obra("Nave Ebro") + "/DESCR.~CE";
    WriteDiskText(descr, "");
    m.menu.List1_Click();
    Control& d = m.menu.At("descr");
    EXPECT_EQ(d.Get("ForeColor"), "&H808080&");
    d.onLostFocus(d);
    EXPECT_EQ(ReadDiskText(descr), "") << "the placeholder is never written";
    // The first key empties the field of the placeholder; what is typed then is saved.
    d.KeyDown('N');
    EXPECT_EQ(d.Text(), "");
    EXPECT_EQ(d.Get("ForeColor"), "");
    d.SetText("Nave nueva\r\nsegunda línea");
    d.onLostFocus(d);
    EXPECT_EQ(ReadDiskText(descr), "Nave nueva\nsegunda línea\n");
    const auto rtf = FindNoCase(m.Obra("Nave Ebro"), "Descr.lCE");
    ASSERT_TRUE(rtf);
    EXPECT_NE(ReadBytes(*rtf).find("Nave nueva"), std::string::npos);
}

TEST(Menu, ElementCommandsCloseTheWindowWithTheirCode)
{
    struct Fila {
        const char* item;
        const char* opcion;
    };
    for (const Fila& f : {Fila{"VigasH", "HVIG"}, Fila{"mnuZapCorr", "ZACR"}, Fila{"mnuSuelo", "TERR"},
                          Fila{"DatGen", "DAGE"}, Fila{"mnuAcciones", "ACCI"}, Fila{"Listad", "LIST"}}) {
        MenuDePrueba m("Vivienda Ruiz");
        m.menu.At(f.item).Click();
        EXPECT_EQ(m.menu.Opcion, f.opcion) << f.item;
        EXPECT_TRUE(m.menu.PideCierre()) << f.item;
        EXPECT_EQ(m.cierres, 1) << f.item;
    }
    MenuDePrueba salir("Vivienda Ruiz");
    salir.menu.At("Salir").Click();
    EXPECT_EQ(salir.menu.Opcion, "");
    EXPECT_TRUE(salir.menu.PideCierre());
}

// The element menus as the menu bar shows them, written out by hand: menu, item, caption ("" for the
// catalogue label) and menu code, in order.
TEST(Menu, ElementMenusHoldTheirCommandsInOrder)
{
    const std::string esperado =
        "Hormigon: VigasH Vigas HVIG; VigasHR Vigas Regulares HVIR; PilaresH Pilares HPIL; "
        "Forjado_Unidireccional Forjado Unidireccional FORU; mnuForjSitu Forjado in situ FORS; "
        "Forjado_Reticular Forjado Reticular FORR; mnuForjMacizo Placa maciza FORP; Abacos Ábacos ABAC; "
        "Mensula Ménsula Corta HMEN; Vigapared Viga Pared HVPR; mnuEscal Escaleras ESCH; mnuEnBlanco  HBLA; "
        "mnuHormig Características Mecánicas frmHormigon; \n"
        "Acero: mnuVigMet  AVIG; mnuPilMet  APIL; mnuBasMet  ABAS; mnuForjAcer  FORA; mnuEscMet  ESCA; "
        "mnuUniAto  AUAT; mnuUniSol  AUSO; \n"
        "Madera: mnuVigMade  MVIG; mnuPilMade  MPIL; mnuForMade  FORM; mnuEscMade  ESCM; \n"
        "Fabrica: mnuMuros  MURF; mnuMDint  MDIN; mnuMCerr  MURC; mnuMArco  MARC; mnuMArma  MARM; \n"
        "Cimentacion: mnuSuelo  TERR; mnuZap  ZAIS; mnuZapComb  ZACB; mnuZapCorr  ZACR; mnuPilotes  ZPIL; "
        "mnuMuroH  MUSO; mnuMuroCont  MUCO; mnuMuroAnclado  MUAN; mnuTalud  TALU; mnuLosCime  ZLOS; "
        "mnuSolArma  ZSOL; mnuVigFlot  ZVFL; \n";
    std::string visto;
    for (const auto& [familia, comandos] : FamiliasMenu()) {
        visto += familia + ":";
        for (const ComandoElemento& c : comandos)
            visto += " " + c.item + " " + c.caption + " " + c.codigo + ";";
        visto += " \n";
    }
    EXPECT_EQ(visto, esperado);
}

TEST(Menu, EveryElementCommandOpensAFormThatExists)
{
    TestApp app;
    for (const auto& [familia, comandos] : FamiliasMenu())
        for (const ComandoElemento& c : comandos) {
            if (c.codigo.rfind("frm", 0) == 0)
                continue;
            const std::string form = FormularioDeOpcion(c.codigo);
            ASSERT_FALSE(form.empty()) << c.item;
            EXPECT_NE(CreaForm(app.decl, form), nullptr) << c.item << " -> " << form;
        }
    EXPECT_EQ(FormularioDeOpcion("DAGE"), "DatosGen");
    EXPECT_EQ(FormularioDeOpcion("ZACR"), "frmZapCorr");
    EXPECT_EQ(FormularioDeOpcion("QQQQ"), "");
}

TEST(Menu, PreferencesAreCheckMarksBoundToTheSettings)
{
    MenuDePrueba m("Vivienda Ruiz");
    Declaraciones& d = m.app.decl;
    EXPECT_FALSE(m.menu.Marcado("SiempreVisible"));
    m.menu.At("SiempreVisible").Click();
    EXPECT_TRUE(m.menu.Marcado("SiempreVisible"));
    EXPECT_EQ(Setting(d, "Preferencias", "SiempreVisible"), "Si");
    // The formats are open only while capture is on, and one of them is marked.
    EXPECT_FALSE(m.menu.At("CapturaPantallasPNG").Enabled());
    m.menu.At("CapturaPantallas").Click();
    EXPECT_TRUE(m.menu.At("CapturaPantallasPNG").Enabled());
    EXPECT_TRUE(m.menu.Marcado("CapturaPantallasBMP"));
    m.menu.At("CapturaPantallasPNG").Click();
    EXPECT_EQ(Setting(d, "Preferencias", "CapturaPantallasFormato"), "PNG");
    EXPECT_TRUE(m.menu.Marcado("CapturaPantallasPNG"));
    EXPECT_FALSE(m.menu.Marcado("CapturaPantallasBMP"));
    // The folder panel follows "Ver Carpetas".
    EXPECT_FALSE(m.menu.At("Dire").Visible());
    m.menu.At("VerCarp").Click();
    EXPECT_TRUE(m.menu.At("Dire").Visible());
    EXPECT_EQ(Setting(d, "Preferencias", "VerCarpetas"), "Si");
}

TEST(Menu, ClosingStoresTheLocation)
{
    MenuDePrueba m("Taller Moncayo");
    m.menu.Form_Unload();
    EXPECT_EQ(Setting(m.app.decl, "Obra", "Nombre"), "Taller Moncayo");
    EXPECT_EQ(Setting(m.app.decl, "Obra", "Directorio"), m.dir.path());
}

TEST(Menu, ChangingTheFolderEmptiesTheSelection)
{
    MenuDePrueba m("Vivienda Ruiz");
    fs::create_directories(m.dir / "otra/Obra X");
    WriteDiskText(m.dir / "otra/Obra X/DESCR.~CE", "x\n");
    m.menu.At("Dire").SetText(m.dir / "otra");
    EXPECT_EQ(m.menu.At("List1").Items(), (std::vector<std::string>{"Obra X"}));
    EXPECT_EQ(m.menu.At("Lbvers").Caption(), "");
    EXPECT_FALSE(m.menu.At("UCBconvertir").Enabled());
    EXPECT_FALSE(m.menu.At("Hormigon").Visible());
    EXPECT_EQ(m.menu.At("Outlin").ListCount(), 0);
}

TEST(Arranque, CommandLineWorkAndVersionLabel)
{
    ScratchDir dir;
    fs::create_directories(dir / "Obra A");
    TestApp app;
    app.decl.DirPrograma = dir / "programa";
    struct Fila {
        std::string argumento, dirObras, nombre;
    };
    for (const Fila& f : {Fila{dir / "Obra A/Viga.~HJ", dir.path(), "Obra A"},
                          Fila{dir / "Obra B/Viga.~HJ", dir.path(), ""},
                          Fila{dir / "no/Obra A/Viga.~HJ", dir / "programa", "Obra A"}}) {
        ObraDeLineaDeOrdenes(app.decl, f.argumento);
        EXPECT_EQ(app.decl.DirObras, f.dirObras) << f.argumento;
        const bool existe = fs::is_directory(ConBarra(f.dirObras) + f.nombre);
        EXPECT_EQ(app.decl.NombreObra, existe ? f.nombre : "") << f.argumento;
        EXPECT_EQ(app.decl.CarpetaObra, ConBarra(app.decl.DirObras) + app.decl.NombreObra);
        EXPECT_EQ(app.decl.UnidadObra, app.decl.DirObras.substr(0, 2));
    }
    EXPECT_EQ(TextoVersion(), "v 3.50");
}

}  // namespace
}  // namespace vardena::test
