// The slab catalogues: the shipped files read and write back byte for byte, a system added,
// edited and removed gives the expected file, a damaged file is refused by its line and never
// rewritten, and a failure during the replacement leaves the old file whole with its copy in the
// recycle bin.

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Codepage.h"
#include "base/FileIo.h"
#include "concrete/CatalogoForjados.h"
#include "support/TestSupport.h"

namespace vardena::test {
namespace {

namespace fs = std::filesystem;

const std::string kRecursos = std::string(VARDENA_TEST_DATA) + "/../../resources/";

// A recycle bin that keeps what it gets, by name, in a folder of its own.
class PapeleraDePrueba : public RecycleBin {
public:
    explicit PapeleraDePrueba(std::string carpeta) : carpeta_(std::move(carpeta)) { fs::create_directories(carpeta_); }
    bool APapelera(const std::string& path) override
    {
        if (falla)
            return false;
        std::error_code ec;
        const std::string destino = carpeta_ + "/" + std::to_string(enviados.size()) + "-" + fs::path(path).filename().string();
        fs::rename(path, destino, ec);
        enviados.push_back(destino);
        return !ec;
    }
    bool falla = false;
    std::vector<std::string> enviados;

private:
    std::string carpeta_;
};

struct Catalogo : ::testing::Test {
    Catalogo()
    {
        auto bin = std::make_unique<PapeleraDePrueba>(basura.path());
        papelera = bin.get();
        app.platform.recycleBin = std::move(bin);
    }
    ~Catalogo() override { SetFileSystemSeam({}); }
    Declaraciones& d() { return app.decl; }
    // The files of the folder other than the recycle bin's.
    std::vector<std::string> Archivos() const
    {
        std::vector<std::string> out;
        for (const auto& e : fs::directory_iterator(dir.path()))
            out.push_back(e.path().filename().string());
        std::sort(out.begin(), out.end());
        return out;
    }

    ScratchDir dir, basura;
    TestApp app;
    PapeleraDePrueba* papelera = nullptr;
};

std::string Disco(std::initializer_list<std::string> lineas)
{
    std::string out;
    for (const auto& l : lineas)
        out += Utf8ToCp1252(l) + "\r\n";
    return out;
}

FilaFicha Fila(std::string nombre, double base)
{
    FilaFicha f;
    for (size_t i = 0; i < f.valores.size(); ++i)
        f.valores[i] = base + static_cast<double>(i);
    f.nombre = std::move(nombre);
    return f;
}

// The lines of a block, worked out by hand from the templates.
const std::string kSep = "~·~·~·~·~·~";
const std::string kFilaA1 =
    "         1   2.00    3.00      4      5    6.00    7.00    8.00    9.00   10.00   11.00    12.00    a1             ";
const std::string kFilaB1 =
    "        10  11.00   12.00     13     14   15.00   16.00   17.00   18.00   19.00   20.00    21.00    b_uno          ";

TEST_F(Catalogo, ShippedFilesReadWholeAndWriteBackByteForByte)
{
    for (const std::string nombre : {"ForjArma.txt", "ForjPret.txt", "ForjAlve.txt"}) {
        SCOPED_TRACE(nombre);
        const std::string original = ReadBytes(kRecursos + nombre);
        const CatalogoLeido c = LeeCatalogo(kRecursos + nombre);
        ASSERT_TRUE(c.Sano()) << c.lineaErronea;
        ASSERT_GE(c.bloques.size(), 4u);
        // Every block written anew from what was read is the file itself.
        std::string rehecho;
        for (const auto& b : c.bloques) {
            EXPECT_GE(b.sistema.filas.size(), 4u);
            for (const std::string& l : LineasBloque(b.sistema))
                rehecho += Utf8ToCp1252(l) + "\r\n";
        }
        EXPECT_EQ(rehecho, original);
        // Saving each system unchanged through the editor's save leaves the file as it was.
        const std::string copia = dir / nombre;
        WriteBytes(copia, original);
        for (size_t k = 0; k < c.bloques.size(); ++k)
            ASSERT_TRUE(GuardaForjado(d(), copia, static_cast<int>(k) + 1, c.bloques[k].sistema));
        EXPECT_EQ(ReadBytes(copia), original);
    }
    // The joist file: twelve rows, v1 to v12, each read and written back as it was.
    const std::string viguetas = ReadBytes(kRecursos + "Viguetas");
    WriteBytes(dir / "Viguetas", viguetas);
    for (int n = 1; n <= 12; ++n) {
        const auto f = LeeVigueta(d(), dir / "Viguetas", n);
        ASSERT_TRUE(f) << n;
        EXPECT_EQ(f->nombre, "V" + std::to_string(n));
        ASSERT_TRUE(GuardaVigueta(d(), dir / "Viguetas", n, *f));
    }
    EXPECT_EQ(ReadBytes(dir / "Viguetas"), viguetas);
    EXPECT_TRUE(app.ui.boxes.empty());
}

TEST_F(Catalogo, SystemsAddedEditedAndRemovedGiveTheExpectedFile)
{
    const std::string path = dir / "ForjArma.txt";
    // A missing catalogue lists nothing; the first save makes it.
    EXPECT_FALSE(LeeCatalogo(path).existe);
    EXPECT_TRUE(NombresForjados(LeeCatalogo(path)).empty());

    SistemaForjado a{"Sistema A", {12, 70, 25, 5}, {Fila("a1", 1)}};
    ASSERT_TRUE(GuardaForjado(d(), path, 1, a));
    const std::string bloqueA = Disco({kSep, "Sistema A", "    12   70   25   5", "1", kFilaA1});
    EXPECT_EQ(ReadBytes(path), bloqueA);
    EXPECT_TRUE(papelera->enviados.empty());  // nothing was there to keep

    // Appended as system 2: a name with blanks, negative numbers written as absolute values.
    FilaFicha b1 = Fila("  b uno ", 10);
    for (double& v : b1.valores)
        v = -v;
    SistemaForjado b{"Sistema B", {-11, 72, 26, 4}, {b1, Fila("b2", 30)}};
    ASSERT_TRUE(GuardaForjado(d(), path, 2, b));
    const std::string filaB2 =
        "        30  31.00   32.00     33     34   35.00   36.00   37.00   38.00   39.00   40.00    41.00    b2             ";
    const std::string bloqueB = Disco({kSep, "Sistema B", "    11   72   26   4", "2", kFilaB1, filaB2});
    EXPECT_EQ(ReadBytes(path), bloqueA + bloqueB);
    ASSERT_EQ(papelera->enviados.size(), 1u);
    EXPECT_EQ(ReadBytes(papelera->enviados[0]), bloqueA);  // the file as it was before

    // Reading gives back what was saved, absolute values and "_" in the name.
    const CatalogoLeido c = LeeCatalogo(path);
    ASSERT_TRUE(c.Sano());
    EXPECT_EQ(NombresForjados(c), (std::vector<std::string>{"Sistema A", "Sistema B"}));
    EXPECT_EQ(c.bloques[1].sistema.filas[0].nombre, "b_uno");
    EXPECT_DOUBLE_EQ(c.bloques[1].sistema.filas[0].valores[11], 21);
    EXPECT_DOUBLE_EQ(c.bloques[1].sistema.geometria[0], 11);

    // System 1 edited to two rows: block 2 is byte for byte the same behind it.
    a.filas.push_back(Fila("a2", 50));
    a.nombre = "Sistema A bis";
    ASSERT_TRUE(GuardaForjado(d(), path, 1, a));
    const std::string filaA2 =
        "        50  51.00   52.00     53     54   55.00   56.00   57.00   58.00   59.00   60.00    61.00    a2             ";
    const std::string bloqueA2 = Disco({kSep, "Sistema A bis", "    12   70   25   5", "2", kFilaA1, filaA2});
    EXPECT_EQ(ReadBytes(path), bloqueA2 + bloqueB);

    // System 1 removed: the file is block 2 alone.
    ASSERT_TRUE(BorraForjado(d(), path, 1));
    EXPECT_EQ(ReadBytes(path), bloqueB);
    EXPECT_EQ(papelera->enviados.size(), 3u);
    EXPECT_EQ(ReadBytes(papelera->enviados[2]), bloqueA2 + bloqueB);

    // A system without a name, or a number past the end, saves nothing.
    EXPECT_FALSE(GuardaForjado(d(), path, 1, SistemaForjado{"   ", {}, {}}));
    EXPECT_FALSE(GuardaForjado(d(), path, 3, b));
    EXPECT_EQ(ReadBytes(path), bloqueB);
    EXPECT_TRUE(app.ui.boxes.empty());
    // No temporary file or folder is left beside the catalogue.
    EXPECT_EQ(Archivos(), (std::vector<std::string>{"ForjArma.txt"}));
}

TEST_F(Catalogo, DamagedBlocksAreRefusedByFileAndLineAndNeverRewritten)
{
    const std::string geo = "    12   70   25   5";
    struct Caso {
        const char* que;
        std::string bytes;
        int linea;
        int motivo;
    };
    const Caso casos[] = {
        {"no separator first", Disco({"Sistema", geo, "1", kFilaA1}), 1, 1611},
        {"geometry of three numbers", Disco({kSep, "S", "   12   70   25", "1", kFilaA1}), 3, 1612},
        {"geometry with a word", Disco({kSep, "S", "   12   70   xx   5", "1", kFilaA1}), 3, 1612},
        {"count not whole", Disco({kSep, "S", geo, "1.5", kFilaA1}), 4, 1613},
        {"row with a word", Disco({kSep, "S", geo, "1", kFilaA1, kSep, "T", geo, "1", "  1 2 3 x 5 6 7 8 9 10 11 12 n"}), 10, 1614},
        {"row of eleven numbers", Disco({kSep, "S", geo, "1", "  1 2 3 4 5 6 7 8 9 10 11"}), 5, 1614},
        {"fewer rows than counted", Disco({kSep, "S", geo, "3", kFilaA1, kFilaA1}), 7, 1615},
        {"more rows than counted", Disco({kSep, "S", geo, "1", kFilaA1, kFilaA1}), 6, 1611},
        {"block cut after its name", Disco({kSep, "S"}), 2, 1615},
    };
    const std::string path = dir / "ForjPret.txt";
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.que);
        WriteBytes(path, c.bytes);
        const CatalogoLeido leido = LeeCatalogo(path);
        EXPECT_EQ(leido.lineaErronea, c.linea);
        EXPECT_EQ(leido.motivo, c.motivo);
        app.ui.boxes.clear();
        EXPECT_FALSE(GuardaForjado(d(), path, 1, SistemaForjado{"Nuevo", {1, 2, 3, 4}, {Fila("x", 1)}}));
        EXPECT_FALSE(BorraForjado(d(), path, 1));
        ASSERT_EQ(app.ui.boxes.size(), 2u);
        EXPECT_EQ(app.ui.boxes[0].title, "Error");
        EXPECT_NE(app.ui.boxes[0].prompt.find(path), std::string::npos);
        EXPECT_NE(app.ui.boxes[0].prompt.find(std::to_string(c.linea)), std::string::npos);
        EXPECT_EQ(ReadBytes(path), c.bytes);
        EXPECT_TRUE(papelera->enviados.empty());
    }
    // Blank lines after the last block are no damage, and stay.
    const std::string conBlancos = Disco({kSep, "S", geo, "1", kFilaA1, "", "  "});
    WriteBytes(path, conBlancos);
    EXPECT_TRUE(LeeCatalogo(path).Sano());
    // A joist line that is not a row is refused by its number and file.
    WriteBytes(dir / "Viguetas", Disco({kFilaA1, "V2 sin numeros"}));
    app.ui.boxes.clear();
    EXPECT_TRUE(LeeVigueta(d(), dir / "Viguetas", 1));
    EXPECT_FALSE(LeeVigueta(d(), dir / "Viguetas", 2));
    EXPECT_FALSE(LeeVigueta(d(), dir / "Viguetas", 3));
    ASSERT_EQ(app.ui.boxes.size(), 2u);
    EXPECT_NE(app.ui.boxes[0].prompt.find("Viguetas"), std::string::npos);
}

TEST_F(Catalogo, AFailureDuringTheReplacementLeavesTheOldFileWhole)
{
    const std::string path = dir / "ForjAlve.txt";
    const std::string viejo = Disco({kSep, "Sistema A", "    12   70   25   5", "1", kFilaA1});
    const SistemaForjado b{"Sistema B", {0, 120, 20, 5}, {Fila("b", 1)}};
    struct Caso {
        const char* que;
        FileSystemSeam seam;
        bool papeleraFalla;
        size_t enPapelera;
    };
    const Caso casos[] = {
        // The disk fills while the new content is written: nothing else happens.
        {"write fails", {[](const std::string&, std::string_view) { errno = ENOSPC; return false; }, {}}, false, 0},
        // The program dies between the copy to the bin and the rename: the rename never comes.
        {"rename fails", {{}, [](const std::string&, const std::string&) { errno = EIO; return false; }}, false, 1},
        // The recycle bin refuses the copy: the file is not replaced.
        {"bin refuses", {}, true, 0},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.que);
        WriteBytes(path, viejo);
        papelera->enviados.clear();
        papelera->falla = c.papeleraFalla;
        app.ui.boxes.clear();
        SetFileSystemSeam(c.seam);
        EXPECT_FALSE(GuardaForjado(d(), path, 2, b));
        SetFileSystemSeam({});
        EXPECT_EQ(ReadBytes(path), viejo);
        ASSERT_EQ(papelera->enviados.size(), c.enPapelera);
        if (c.enPapelera) {
            EXPECT_EQ(ReadBytes(papelera->enviados[0]), viejo);
        }
        ASSERT_EQ(app.ui.boxes.size(), 1u);
        EXPECT_EQ(app.ui.boxes[0].title, "Error");
        EXPECT_EQ(Archivos(), (std::vector<std::string>{"ForjAlve.txt"}));
        fs::remove_all(basura.path());
        fs::create_directories(basura.path());
    }
    papelera->falla = false;
}

TEST(CatalogoTextos, NamesAndNumbersAsTheFileTakesThem)
{
    EXPECT_EQ(NombreFila("  vigueta T 1  "), "vigueta_T_1    ");
    EXPECT_EQ(NombreFila("abcdefghijklmnopq"), "abcdefghijklmno");
    EXPECT_EQ(NombreFila("ñandú", 6), "ñandú ");
    struct Caso {
        const char* texto;
        bool ok;
        double valor;
    };
    for (const Caso& c : {Caso{" 3,75 ", true, 3.75}, Caso{"137.26", true, 137.26}, Caso{"-2", true, -2},
                          Caso{"1e3", true, 1000}, Caso{"", false, 0}, Caso{"12a", false, 0}, Caso{"1.2.3", false, 0},
                          Caso{"x", false, 0}}) {
        double v = 0;
        EXPECT_EQ(LeeNumero(c.texto, v), c.ok) << c.texto;
        if (c.ok) {
            EXPECT_DOUBLE_EQ(v, c.valor) << c.texto;
        }
    }
    EXPECT_EQ(ArchivoCatalogo(0), "ForjArma.txt");
    EXPECT_EQ(ArchivoCatalogo(1), "ForjPret.txt");
    EXPECT_EQ(ArchivoCatalogo(2), "ForjAlve.txt");
}

}  // namespace
}  // namespace vardena::test
