// The one-way slabs and their catalogue editor driven as a person would: the events of the
// slab form table by table, the joist file, the editor's list, save, refusals and choice, and
// the choice taken back by the slab.
//
// The building: two floors over one basement. Loads per m2, exact in binary:
//   floor 1  G = 0.25 + 0.125 = 0.375 t/m2 (375 kg/m2)   Q = 0.125 + 0.125 = 0.25 (250 kg/m2)
//   basement G = 0.5 + 0.25 = 0.75 (750)                  Q = 0.5 + 0 = 0.5 (500)

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "application/Aplicacion.h"
#include "base/Codepage.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "concrete/ForjUnid.h"
#include "concrete/ForjUnid2.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/LngPack.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::ScratchDir;

class Papelera : public RecycleBin {
public:
    explicit Papelera(std::string carpeta) : carpeta_(std::move(carpeta)) {}
    bool APapelera(const std::string& path) override
    {
        std::error_code ec;
        fs::rename(path, carpeta_ + "/" + std::to_string(n++), ec);
        return !ec;
    }

private:
    std::string carpeta_;
    int n = 0;
};

class Forjado : public ::testing::Test {
protected:
    void SetUp() override
    {
        Declaraciones& d = app.decl;
        d.CarpetaObra = obra.path();
        d.DirPrograma = programa.path();
        CargaMensajesDesde(d, ResourceDir() + "/lng/Español/MsgVardena.txt");
        for (const char* f : {"ForjArma.txt", "ForjPret.txt", "ForjAlve.txt", "Viguetas"})
            fs::copy_file(ResourceDir() + "/" + f, programa / f);
        app.platform.recycleBin = std::make_unique<Papelera>(basura.path());
        d.NPlantasSobre = 2;
        d.NPlantasBajo = 1;
        d.GenPProP[1] = 0.25f, d.GenConcP[1] = 0.125f, d.GenSobrP[1] = 0.125f, d.GenSTabP[1] = 0.125f;
        d.GenPProS[1] = 0.5f, d.GenConcS[1] = 0.25f, d.GenSobrS[1] = 0.5f, d.GenSTabS[1] = 0;
        d.GenFckHorm = 2500;
    }
    std::unique_ptr<ForjUnid> Carga(const char* nombre = "frmForjUnid")
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        auto* p = dynamic_cast<ForjUnid*>(f.get());
        EXPECT_NE(p, nullptr) << nombre;
        f.release();
        return std::unique_ptr<ForjUnid>(p);
    }
    static void Pon(Form& f, const std::string& nombre, int index, const std::string& valor)
    {
        Control& c = f.At(nombre, index);
        const char* prop = c.kind() == Kind::TextBox ? "Text" : (c.kind() == Kind::ComboBox || c.kind() == Kind::ListBox) ? "ListIndex" : "Value";
        c.SetProperty(prop, valor);
    }

    ScratchDir obra, programa, basura;
    test::TestApp app;
};

TEST_F(Forjado, ConcreteListSetsTheSlabStrength)
{
    auto f = Carga();
    struct Caso {
        int fila;
        int resistencia;
    };
    // "Idem gral." takes the general data's 2500 t/m2; then 250 to 500 by 50 from the first real row.
    for (const Caso c : {Caso{0, 250}, Caso{1, 250}, Caso{2, 300}, Caso{3, 350}, Caso{6, 500}, Caso{8, 500}}) {
        Pon(*f, "CmbHorm", -1, std::to_string(c.fila));
        EXPECT_EQ(app.decl.ResisForjado, c.resistencia) << c.fila;
    }
    app.decl.GenFckHorm = 3000;
    Pon(*f, "CmbHorm", -1, "0");
    EXPECT_EQ(app.decl.ResisForjado, 300);
}

TEST_F(Forjado, KindAndSheetShowTheirFields)
{
    auto f = Carga();
    for (int tipo = 0; tipo < 3; ++tipo) {
        Pon(*f, "cmbTipoFor", -1, std::to_string(tipo));
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(f->At("PtFor", i).Visible(), i == tipo) << tipo;
        EXPECT_EQ(f->At("txtForj", 0).Visible(), tipo != 2) << tipo;
    }
    struct Caso {
        int opcion;
        bool ficha;
    };
    for (const Caso c : {Caso{0, true}, Caso{1, false}, Caso{0, true}}) {
        Pon(*f, "OpSiNo", c.opcion, "True");
        EXPECT_EQ(f->At("ListViguetas").Visible(), c.ficha);
        EXPECT_EQ(f->At("cmbTipoFor").Enabled(), !c.ficha);
        for (int i = 0; i <= 3; ++i)
            EXPECT_EQ(f->At("txtForj", i).Enabled(), !c.ficha) << i;
        EXPECT_TRUE(f->At("txtForj", 4).Enabled());
        EXPECT_EQ(f->At("PctFicha").Visible(), c.ficha);
        EXPECT_EQ(f->At("PctnoFicha").Visible(), !c.ficha);
    }
}

TEST_F(Forjado, StretchPositionsShowTheirAdjacentSpans)
{
    struct Caso {
        int indice;
        bool adyIzq, adyDer;
        int vigIzq, vigDer;
        const char* nombre;
    };
    const Caso casos[] = {
        {0, false, false, 0, 0, "Aislado"},          {1, false, true, 0, 1, "Extremo izquierdo"},
        {2, true, false, 1, 0, "Extremo derecho"},   {3, true, true, 1, 1, "Interior"},
        {4, false, false, 1, 0, "Aislado con voladizo izquierdo"}, {5, false, false, 0, 1, "Aislado con voladizo derecho"},
    };
    for (const char* nombre : {"frmForjUnid", "frmForjSitu"}) {
        auto f = Carga(nombre);
        for (const Caso& c : casos) {
            SCOPED_TRACE(std::string(nombre) + " " + c.nombre);
            Pon(*f, "OpTramo", c.indice, "True");
            EXPECT_EQ(f->At("PctCotaTrAdy", 0).Visible(), c.adyIzq);
            EXPECT_EQ(f->At("PctCotaTrAdy", 1).Visible(), c.adyDer);
            EXPECT_EQ(f->At("TxTrAd", 0).Visible(), c.adyIzq);
            EXPECT_EQ(f->At("TxTrAd", 1).Visible(), c.adyDer);
            EXPECT_EQ(f->At("ChVigIzq").CheckValue(), c.vigIzq);
            EXPECT_EQ(f->At("ChVigDer").CheckValue(), c.vigDer);
            EXPECT_EQ(f->At("lblTramo").Caption(), c.nombre);
            // The stretch's sketch draws one more support for each adjacent span.
            const auto croquis = f->CroquisDe(f->At("PctTramo"));
            ASSERT_TRUE(croquis);
            int cotas = 0;
            for (const auto& t : croquis->trazos)
                cotas += t.figura == FiguraCroquis::Cota;
            EXPECT_EQ(cotas, 1 + c.adyIzq + c.adyDer + (c.indice >= 4));
        }
    }
}

TEST_F(Forjado, SpanAndCantileverKeepTheCantileverWithinTheSpan)
{
    struct Caso {
        const char* que;
        int indice;
        const char* valor;
        const char* voladizo;  // TxCota(0) after
        const char* luz;       // TxCota(1) after
        double luzGuardada;
    };
    // From cantilever 2.00 and span 5.50.
    const Caso casos[] = {
        {"cantilever within the span", 0, "3", "3", "5.50", 5.5},
        {"cantilever over the span raises it", 0, "6.25", "6.25", "6.25", 6.25},
        {"span under the cantilever lowers it", 1, "1.5", "1.5", "1.5", 1.5},
        {"span typed with a comma", 1, "1,25", "1.25", "1,25", 1.25},
        {"zero changes nothing", 1, "0", "2.00", "0", 5.5},
        {"negative changes nothing", 0, "-8", "-8", "5.50", 5.5},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.que);
        auto f = Carga();
        Pon(*f, "TxCota", 0, "2.00");
        Pon(*f, "TxCota", 1, "5.50");
        Pon(*f, "TxCota", c.indice, c.valor);
        EXPECT_EQ(f->At("TxCota", 0).Text(), c.voladizo);
        EXPECT_EQ(f->At("TxCota", 1).Text(), c.luz);
        EXPECT_DOUBLE_EQ(f->Luz(), c.luzGuardada);
    }
}

TEST_F(Forjado, DepthsAndLevelLoads)
{
    auto f = Carga("frmForjSitu");
    struct Caso {
        int indice;
        const char* valor;
        const char* total;
    };
    // From 25 + 5 = 30.
    for (const Caso c : {Caso{2, "22", "27"}, Caso{3, "4", "26"}, Caso{3, "4,5", "26.5"}, Caso{0, "12", "26.5"}}) {
        Pon(*f, "txtForj", c.indice, c.valor);
        EXPECT_EQ(f->At("txtForj", 4).Text(), c.total) << c.indice << " " << c.valor;
    }
    struct Nivel {
        int planta;
        const char* g;
        const char* q;
    };
    for (const Nivel n : {Nivel{1, "375", "250"}, Nivel{3, "750", "500"}}) {
        Pon(*f, "CmbPlanta", -1, std::to_string(n.planta));
        EXPECT_EQ(f->At("TxtQ", 1).Text(), n.g) << n.planta;
        EXPECT_EQ(f->At("TxtQ", 2).Text(), n.q) << n.planta;
    }
    // A change of the joist spacing writes the level's loads again over what was typed.
    Pon(*f, "TxtQ", 1, "999");
    Pon(*f, "txtForj", 1, "72");
    EXPECT_EQ(f->At("TxtQ", 1).Text(), "750");
    EXPECT_DOUBLE_EQ(f->CargaPermanente(), 0.75);
    EXPECT_DOUBLE_EQ(f->CargaVariable(), 0.5);
}

TEST_F(Forjado, JoistListReadsTheJoistFile)
{
    auto f = Carga();
    Pon(*f, "OpSiNo", 0, "True");
    ASSERT_EQ(f->At("ListViguetas").ListCount(), 12);
    EXPECT_EQ(f->At("ListViguetas").List(11), "Vigueta v12");
    Pon(*f, "ListViguetas", -1, "1");
    EXPECT_EQ(f->At("TXFnombre").Text(), "V2");
    EXPECT_EQ(f->At("TXFmomUlt").Text(), "19.61");
    EXPECT_EQ(f->At("TXFmod").Text(), "1075502");
    EXPECT_EQ(f->At("TxNumVig").Text(), "2");
    // Edited and written back to line 2 only.
    Pon(*f, "TXFmomUlt", -1, "21.5");
    ASSERT_TRUE(f->guardaVigueta(2));
    const auto lineas = SplitLines(test::ReadBytes(programa / "Viguetas"));
    ASSERT_EQ(lineas.size(), 12u);
    EXPECT_DOUBLE_EQ(LeeLineaFila(lineas[1])->valores[2], 21.5);
    EXPECT_EQ(lineas[0], SplitLines(test::ReadBytes(ResourceDir() + "/Viguetas"))[0]);
}

// The editor as the user drives it, and the slab taking back its choice.
TEST_F(Forjado, CatalogueEditorSavesRefusesAndHandsBackTheChosenRow)
{
    auto dialogo = CargaForm(app.decl, "frmForjUnid2");
    auto* e = dynamic_cast<FrmForjUnid2*>(dialogo.get());
    ASSERT_NE(e, nullptr);
    // Prestressed joists: four systems and the entry of a new one.
    Pon(*e, "OpTipoFor", 1, "True");
    EXPECT_EQ(e->Archivo(), programa / "ForjPret.txt");
    ASSERT_EQ(e->At("ListFor").ListCount(), 5);
    EXPECT_EQ(e->At("ListFor").List(4), "Nuevo Forjado");
    EXPECT_EQ(e->At("TxFor").Text(), "Nuevo Forjado");
    EXPECT_EQ(e->At("TXFintereje").Text(), "60");
    // A new system while the new one is unsaved: refused with a warning.
    e->At("UCBforjMas").Click();
    ASSERT_EQ(app.ui.boxes.size(), 1u);
    EXPECT_EQ(app.ui.boxes[0].title, "Aviso");
    // Filled in with a word in a row: refused, the file as it was.
    const std::string antes = test::ReadBytes(programa / "ForjPret.txt");
    Pon(*e, "TxFor", -1, "Mi forjado 20+4");
    e->At("UCBmas").Click();
    EXPECT_EQ(e->At("Nlin").Text(), "2");
    for (int r = 0; r < 2; ++r) {
        Pon(*e, "TXFnombre", r, r == 0 ? "M 1" : "M2");
        for (size_t k = 0; k < kColumnasFicha; ++k)
            Pon(*e, std::string(kCamposFicha[k]), r, std::to_string(10 * r + static_cast<int>(k) + 1));
    }
    Pon(*e, "TXFrig", 1, "mucho");
    e->At("UCBguardar").Click();
    ASSERT_EQ(app.ui.boxes.size(), 2u);
    EXPECT_NE(app.ui.boxes[1].prompt.find("Mi forjado 20+4"), std::string::npos);
    EXPECT_EQ(test::ReadBytes(programa / "ForjPret.txt"), antes);
    // Corrected and saved: appended as system 5, the blocks before it unchanged.
    Pon(*e, "TXFrig", 1, "14");
    e->At("UCBguardar").Click();
    ASSERT_EQ(app.ui.boxes.size(), 2u);
    const std::string despues = test::ReadBytes(programa / "ForjPret.txt");
    ASSERT_EQ(despues.substr(0, antes.size()), antes);
    EXPECT_EQ(despues.substr(antes.size()),
              Utf8ToCp1252("~·~·~·~·~·~\r\nMi forjado 20+4\r\n    10   60   25   5\r\n2\r\n") +
                  "         1   2.00    3.00      4      5    6.00    7.00    8.00    9.00   10.00   11.00    12.00    M_1            \r\n"
                  "        11  12.00   13.00     14     15   16.00   17.00   18.00   19.00   20.00   21.00    22.00    M2             \r\n");
    EXPECT_EQ(e->At("ListFor").ListIndex(), 4);
    EXPECT_EQ(e->At("ListFor").ListCount(), 6);
    // Choosing without a row: refused.
    e->At("UCBelegir").Click();
    ASSERT_EQ(app.ui.boxes.size(), 3u);
    EXPECT_EQ(app.ui.boxes[2].title, "Tabla forjados");
    EXPECT_FALSE(e->Eleccion());
    // Removed again: the file is what it was.
    e->At("UCBforjMenos").Click();
    EXPECT_EQ(test::ReadBytes(programa / "ForjPret.txt"), antes);
    EXPECT_EQ(e->At("ListFor").ListCount(), 5);

    // The slab opens the editor; the user picks the second row of the third system.
    auto f = Carga();
    const CatalogoLeido c = LeeCatalogo(programa / "ForjPret.txt");
    const auto& sistema = c.bloques[2].sistema;
    bool cancela = false;
    app.decl.MuestraDialogo = [&](Form& d) {
        Pon(d, "OpTipoFor", 1, "True");
        Pon(d, "ListFor", -1, "2");
        if (cancela) {
            d.At("UCBcancela").Click();
            return;
        }
        Pon(d, "OpFila", 1, "True");
        d.At("UCBelegir").Click();
    };
    f->At("UCFicha").Click();
    EXPECT_EQ(f->At("cmbTipoFor").ListIndex(), 1);
    EXPECT_EQ(f->At("txtForj", 1).Text(), FormatoNum(sistema.geometria[1]));
    EXPECT_EQ(f->At("txtForj", 2).Text(), FormatoNum(sistema.geometria[2]));
    EXPECT_EQ(f->At("TXFnombre").Text(), sistema.filas[1].nombre);
    EXPECT_EQ(f->At("TXFmomUlt").Text(), FormatoNum(sistema.filas[1].valores[2]));
    EXPECT_EQ(f->At("TxNumFor").Text(), "3");
    EXPECT_EQ(f->At("TxNumVig").Text(), "2");
    // Leaving the editor without a choice changes nothing.
    Pon(*f, "TXFmomUlt", -1, "7");
    cancela = true;
    f->At("UCFicha").Click();
    EXPECT_EQ(f->At("TXFmomUlt").Text(), "7");
    EXPECT_EQ(app.ui.boxes.size(), 3u);
}

TEST_F(Forjado, SectionSketchFollowsTheKind)
{
    auto f = Carga();
    auto huecos = [&] {
        int n = 0;
        const std::optional<Croquis> croquis = f->CroquisDe(f->At("PctSeccion"));
        for (const auto& t : croquis.value().trazos)
            n += t.papel == PapelCroquis::Hueco;
        return n;
    };
    Pon(*f, "cmbTipoFor", -1, "0");
    EXPECT_EQ(huecos(), 2);  // a block between each pair of joists
    Pon(*f, "cmbTipoFor", -1, "2");
    EXPECT_EQ(huecos(), 6);  // the voids of the hollow-core plank
    EXPECT_FALSE(f->CroquisDe(f->At("PtFor", 0)));
}

}  // namespace
}  // namespace vardena
