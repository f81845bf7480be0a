// The dialogs on whole works, driven through the main window as a person would: new, copy,
// delete; and the numbering of proposed names.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "support/TestSupport.h"
#include "base/FileIo.h"
#include "application/Mantenimiento.h"
#include "application/Menu.h"
#include "works/Subrut.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

// A recycle bin that moves what it gets into a folder of its own.
class PapeleraDePrueba : public RecycleBin {
public:
    explicit PapeleraDePrueba(std::string carpeta) : carpeta_(std::move(carpeta)) { fs::create_directories(carpeta_); }
    bool APapelera(const std::string& path) override
    {
        std::error_code ec;
        fs::rename(path, carpeta_ + "/" + fs::path(path).filename().string(), ec);
        enviados.push_back(path);
        return !ec;
    }
    std::vector<std::string> enviados;

private:
    std::string carpeta_;
};

// Two works in a scratch folder, a main window over them, and dialogs answered by `rellena`.
struct Obras {
    Obras()
    {
        for (const char* obra : {"Casa", "Nave"}) {
            fs::create_directories(dir / obra);
            WriteDiskText(dir / (std::string(obra) + "/DESCR.~CE"), std::string("Obra ") + obra + "\n");
        }
        WriteDiskText(dir / "Casa/Viga 1.~HJ", "registro\n");
        fs::create_directories(dir / "Casa/copias");
        WriteDiskText(dir / "Casa/copias/vieja.txt", "no se copia\n");
        auto bin = std::make_unique<PapeleraDePrueba>(papelera.path());
        papeleraDePrueba = bin.get();
        app.platform.recycleBin = std::move(bin);
        app.decl.DirObras = dir.path();
        app.decl.NombreObra = "Casa";
        menu.ganchos.modal = [this](Form& f) {
            ++dialogos;
            if (rellena)
                rellena(f);
        };
        menu.Form_Load();
    }

    ScratchDir dir, papelera;
    TestApp app;
    Menu menu{app.decl};
    PapeleraDePrueba* papeleraDePrueba = nullptr;
    std::function<void(Form&)> rellena;
    int dialogos = 0;
};

TEST(NumeraNombre, RaisesTheTwoDigitsOrAddsThem)
{
    struct Fila {
        const char* nombre;
        const char* siguiente;
    };
    for (const Fila& f : {Fila{"Obra", "Obra_00"}, Fila{"Obra_00", "Obra_01"}, Fila{"Obra_09", "Obra_10"},
                          Fila{"Obra_98", "Obra_99"}, Fila{"Obra_99", "Obra_99_00"}, Fila{"Obra_7", "Obra_7_00"},
                          Fila{"Obra-12", "Obra-12_00"}, Fila{"_41", "_42"}, Fila{"", "_00"}})
        EXPECT_EQ(NumeraNombre(f.nombre), f.siguiente) << f.nombre;
}

TEST(NumeraNombre, SiguienteNombreSkipsTakenNames)
{
    ScratchDir dir;
    EXPECT_EQ(SiguienteNombre(dir.path(), "Obra"), "Obra");
    fs::create_directories(dir / "Obra");
    fs::create_directories(dir / "Obra_00");
    WriteDiskText(dir / "Obra_01", "a file takes the name too\n");
    EXPECT_EQ(SiguienteNombre(dir.path(), "Obra"), "Obra_02");
}

TEST(NuevaEst, MakesTheWorkAndOpensItsGeneralData)
{
    Obras o;
    o.rellena = [](Form& f) {
        EXPECT_EQ(f.Name(), "NuevaEst");
        EXPECT_EQ(f.At("Nuev").KeyPress(':'), 0) << "a title never holds a character of a path";
        f.At("Nuev").SetText("Torre");
        f.At("Text1").SetText("Reforma");
        f.At("Text4").SetText("A. Pérez");
        f.At("descrN").SetText("Seis plantas");
        f.At("OpSistema", 0).Click();
        EXPECT_TRUE(f.At("LbSI").Visible());
        EXPECT_FALSE(f.At("LbST").Visible());
        f.At("Aceptar").Click();
        EXPECT_TRUE(static_cast<DialogoObra&>(f).Descargado());
    };
    o.menu.At("Nueva").Click();
    ASSERT_TRUE(fs::is_directory(o.dir / "Torre"));
    const std::string descr = ReadDiskText(o.dir / "Torre/DESCR.~CE");
    EXPECT_NE(descr.find("Reforma"), std::string::npos);
    EXPECT_NE(descr.find("A. Pérez"), std::string::npos);
    EXPECT_NE(descr.find("Seis plantas"), std::string::npos);
    EXPECT_EQ(o.app.decl.Unidades, 2) << "the international system was chosen";
    EXPECT_EQ(o.menu.At("List1").SelectedText(), "Torre");
    EXPECT_EQ(o.menu.Opcion, "DAGE") << "a new work goes straight to its general data";
    EXPECT_EQ(o.app.decl.ObraNueva, kTrue);
}

TEST(NuevaEst, ATakenNameIsRefusedAndTheDialogStays)
{
    Obras o;
    bool cerrado = true;
    o.rellena = [&](Form& f) {
        EXPECT_EQ(f.At("Nuev").Text(), "Obra nueva");
        f.At("Nuev").SetText("Nave");
        f.At("Aceptar").Click();
        cerrado = static_cast<DialogoObra&>(f).Descargado();
    };
    o.menu.At("Nueva").Click();
    EXPECT_FALSE(cerrado);
    ASSERT_EQ(o.app.ui.boxes.size(), 1u);
    EXPECT_EQ(o.app.ui.boxes[0].style, mb::Exclamation);
    EXPECT_NE(o.app.ui.boxes[0].prompt.find("Nave"), std::string::npos);
    EXPECT_EQ(o.menu.Opcion, "");
}

TEST(Copiar, CopiesTheFilesOfTheWorkAndNotItsFolders)
{
    Obras o;
    o.rellena = [](Form& f) {
        EXPECT_EQ(f.At("NombAct").Text(), "Casa");
        EXPECT_EQ(f.At("Nuev").Text(), "Casa_00");
        f.At("Aceptar").Click();
    };
    o.menu.At("Copi").Click();
    EXPECT_EQ(ReadDiskText(o.dir / "Casa_00/Viga 1.~HJ"), "registro\n");
    EXPECT_EQ(ReadDiskText(o.dir / "Casa_00/DESCR.~CE"), "Obra Casa\n");
    EXPECT_FALSE(fs::exists(o.dir / "Casa_00/copias"));
    EXPECT_EQ(o.menu.At("List1").Items(), (std::vector<std::string>{"Casa", "Casa_00", "Nave"}));
}

TEST(BorraEst, SendsTheWorkToTheRecycleBin)
{
    Obras o;
    o.rellena = [](Form& f) {
        EXPECT_EQ(f.At("Borr").Text(), "Casa");
        f.At("Aceptar").Click();
    };
    o.menu.At("Eliminar").Click();
    EXPECT_FALSE(fs::exists(o.dir / "Casa"));
    EXPECT_TRUE(fs::exists(o.papelera / "Casa/Viga 1.~HJ")) << "nothing is lost";
    EXPECT_EQ(o.menu.At("List1").Items(), (std::vector<std::string>{"Nave"}));
}

TEST(BorraEst, CancelAndAVanishedFolder)
{
    Obras o;
    o.rellena = [](Form& f) { f.At("Cancelar").Click(); };
    o.menu.At("Eliminar").Click();
    EXPECT_TRUE(fs::exists(o.dir / "Casa"));
    EXPECT_TRUE(o.papeleraDePrueba->enviados.empty());

    o.rellena = [&](Form& f) {
        fs::remove_all(o.dir / "Casa");
        f.At("Aceptar").Click();
    };
    o.menu.At("Eliminar").Click();
    ASSERT_EQ(o.app.ui.boxes.size(), 1u);
    EXPECT_EQ(o.app.ui.boxes[0].style, mb::Critical);
    EXPECT_TRUE(o.papeleraDePrueba->enviados.empty());
}

TEST(BorraEst, TheDeleteKeyOnTheListAsksToo)
{
    Obras o;
    o.menu.At("List1").KeyDown(46);
    EXPECT_EQ(o.dialogos, 1);
    o.menu.At("List1").KeyDown('A');
    EXPECT_EQ(o.dialogos, 1);
}

}  // namespace
}  // namespace vardena::test
