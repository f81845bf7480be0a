// The map dialogs of the actions (snow and wind maps of the CTE, municipalities of the NCSE-02)
// and the resources they read: the snow table, the colour pictures and the two texts.

#include <gtest/gtest.h>

#include <set>

#include "building/Mapas.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "base/VbInput.h"

namespace vardena {
namespace {

using test::PropertyErrorNumber;
using test::ScratchDir;
using test::TestApp;

const std::string kRecursos = std::string(VARDENA_EXAMPLES) + "/../resources";

// ---- The snow table ----

TEST(NieveFile, HoldsTheLoadsOfTheCodeTable)
{
    const TablaNieve t = LeeTablaNieve(kRecursos + "/Nieve");
    // Row (1 = below 200 m ... 14 = 2000 m and above), zone 1 to 7, load in kN/m2: cells of
    // table E.2 of the CTE DB SE-AE, and the cells it leaves blank or its transcriptions
    // disagree on, which hold the marker 100.
    struct Celda {
        int fila, zona;
        float carga;
    };
    const std::vector<Celda> celdas = {
        {1, 1, 0.3f},  {1, 2, 0.4f},  {1, 7, 0.2f},  {2, 5, 0.3f},  {3, 4, 0.3f},  {5, 1, 0.9f},
        {6, 3, 0.4f},  {7, 4, 0.8f},  {8, 6, 0.9f},  {9, 1, 1.7f},  {10, 6, 2.0f}, {11, 4, 3.0f},
        {12, 1, 4.3f}, {12, 2, 3.5f}, {12, 5, 2.5f}, {12, 7, 0.2f}, {13, 2, 4.6f}, {13, 3, 4.0f},
        {14, 2, 8.0f}, {12, 6, 100},  {13, 1, 100},  {13, 4, 100},  {13, 5, 100},  {13, 6, 100},
        {14, 1, 100},  {14, 3, 100},  {14, 7, 100},
    };
    for (const auto& c : celdas)
        EXPECT_FLOAT_EQ(t[static_cast<size_t>(c.fila - 1)][static_cast<size_t>(c.zona - 1)], c.carga)
            << "row " << c.fila << ", zone " << c.zona;
    // Every other cell is a load that grows with the altitude in its zone.
    for (size_t z = 0; z < kZonasNieve; ++z)
        for (size_t f = 1; f < kFilasNieve; ++f) {
            if (t[f][z] != kNieveEstudioAparte) {
                EXPECT_GE(t[f][z], t[f - 1][z]) << "row " << f + 1 << ", zone " << z + 1;
            }
        }
}

TEST(NieveFile, IsWindowsTextWithCrLf)
{
    const std::string bytes = ReadFileBytes(kRecursos + "/Nieve");
    EXPECT_NE(bytes.find("\r\n"), std::string::npos);
    EXPECT_EQ(bytes.find("\r\n"), bytes.find('\n') - 1);
    EXPECT_NE(bytes.find("m\xE1s"), std::string::npos);  // "más" in Windows-1252
}

TEST(NieveFile, ReaderTakesCommentsSeparatorsAndRefusesShortOrBadTables)
{
    std::string filas, siete;
    for (int f = 0; f < kFilasNieve; ++f) {
        filas += "1, 2, 3, 4, 5, 6, " + std::to_string(f) + "\n";
        if (f == 6)
            siete = filas;
    }
    const TablaNieve t = LeeTablaNieve("  ' comment\n\"Altitud (m)\", Zonas\n' another\n" + filas, "Nieve");
    EXPECT_FLOAT_EQ(t[0][0], 1);
    EXPECT_FLOAT_EQ(t[13][6], 13);

    struct Caso {
        std::string texto;
        int numero;
        int linea;
    };
    const std::vector<Caso> casos = {
        {"A B\n1 2 3\n", 62, 2},                        // ends early
        {"A B\n" + siete, 62, 8},
        {"A B\n1 2 x 4 5 6 7\n", 13, 2},                 // an item that is no load
        {"A B\n1 2 3 4 5 6 7 ' note\n" + filas, 13, 2},  // a comment after the numbers
    };
    for (const auto& c : casos) {
        try {
            LeeTablaNieve(c.texto, "Nieve");
            ADD_FAILURE() << c.texto;
        } catch (const FieldError& e) {
            EXPECT_EQ(e.number(), c.numero) << c.texto;
            EXPECT_EQ(e.line(), c.linea) << c.texto;
            EXPECT_NE(std::string(e.what()).find("Nieve"), std::string::npos);
        }
    }
    EXPECT_THROW(LeeTablaNieve(kRecursos + "/NoSuchTable"), FileError);
}

// ---- Colours and pictures ----

TEST(MapColours, EachFlatColourIsItsZoneAndAnyOtherIsNone)
{
    struct Caso {
        int32_t color;
        int nieve, viento;
    };
    const std::vector<Caso> casos = {
        {0x0540FF, 1, -1}, {0x1CEE00, 2, -1}, {0xEE5400, 3, -1}, {0xFC05FF, 4, -1}, {0x00EBFA, 5, -1},
        {0xFEFC28, 6, -1}, {0x1181FF, 7, -1}, {0x1DE7FE, 0, 0},  {0x03CB1A, 0, 1},  {0xFF771D, 0, 2},
        {0xFFFFFF, 0, -1}, {0x000000, 0, -1}, {-1, 0, -1},       {0x0540FE, 0, -1}, {0xFF4005, 0, -1},
    };
    for (const auto& c : casos) {
        EXPECT_EQ(ZonaNieve(c.color), c.nieve) << std::hex << c.color;
        EXPECT_EQ(ZonaViento(c.color), c.viento) << std::hex << c.color;
    }
    EXPECT_EQ(ColorRgb(0xFF, 0x40, 0x05), 0x0540FF);
}

TEST(MapColours, ColourPicturesHoldOnlyTheZoneColoursAndWhite)
{
    struct Mapa {
        const char* vista;
        const char* colores;
        std::vector<int32_t> zonas;
    };
    const auto& n = ColoresNieve();
    const auto& v = ColoresViento();
    const std::vector<Mapa> mapas = {
        {recursos::kMapaNieve, recursos::kMapaNieveColores, {n.begin(), n.end()}},
        {recursos::kMapaViento, recursos::kMapaVientoColores, {v.begin(), v.end()}},
    };
    for (const auto& m : mapas) {
        const ImagenColores colores = ImagenColores::Lee(kRecursos + "/" + m.colores);
        const ImagenColores vista = ImagenColores::Lee(kRecursos + "/" + m.vista);
        EXPECT_EQ(colores.Ancho(), vista.Ancho()) << m.colores;
        EXPECT_EQ(colores.Alto(), vista.Alto()) << m.colores;
        std::set<int32_t> vistos;
        for (int y = 0; y < colores.Alto(); ++y)
            for (int x = 0; x < colores.Ancho(); ++x)
                vistos.insert(colores.Point(x, y));
        std::set<int32_t> esperados(m.zonas.begin(), m.zonas.end());
        esperados.insert(0xFFFFFF);
        EXPECT_EQ(vistos, esperados) << m.colores;
        EXPECT_EQ(colores.Point(-1, 0), -1);
        EXPECT_EQ(colores.Point(0, colores.Alto()), -1);
    }
    EXPECT_THROW(ImagenColores::Lee(kRecursos + "/Nieve"), FileError);
}

// ---- Texts ----

TEST(TextLines, TheLineUnderTheCaret)
{
    const std::string t = "ab\r\nCádiz\r\n\r\nend";
    struct Caso {
        int caret;
        int inicio, largo;
    };
    const std::vector<Caso> casos = {
        {0, 0, 2},  {2, 0, 2},  // on and at the end of the first line
        {3, 0, 2},              // between CR and LF
        {4, 4, 5},  {7, 4, 5},  {9, 4, 5},  // "Cádiz" counts five characters
        {11, 11, 0},            // the empty line
        {13, 13, 3}, {99, 13, 3},
    };
    for (const auto& c : casos) {
        const LineaTexto l = LineaEn(t, c.caret);
        EXPECT_EQ(l.inicio, c.inicio) << c.caret;
        EXPECT_EQ(l.largo, c.largo) << c.caret;
    }
    EXPECT_EQ(CampoTab("Granada\t0.23\t  1.0", 2), "0.23");
    EXPECT_EQ(CampoTab("ANDALUCÍA", 2), "");
    EXPECT_EQ(Derecha("Ávila      1130", 5), " 1130");
    EXPECT_EQ(Derecha("Ñu", 5), "Ñu");
}

TEST(TextLines, CaretAndSelectionAreProperties)
{
    TestApp app;
    Form f(app.decl, "f");
    Control& t = f.Add(Kind::RichTextBox, "RichTextBox1");
    t.SetText("Cádiz\r\nx");
    t.SetProperty("SelStart", "3");
    t.SetProperty("SelLength", "99");
    EXPECT_EQ(t.Property("SelLength"), "5");
    EXPECT_EQ(t.Property("SelText"), "iz\r\nx");
    t.SetProperty("SelLength", "2");
    EXPECT_EQ(t.Property("SelText"), "iz");
    t.SetProperty("SelStart", "-4");
    EXPECT_EQ(t.Property("SelStart"), "0");
    t.SetProperty("SelStart", "400");
    EXPECT_EQ(t.SelStart(), 8);
    EXPECT_EQ(PropertyErrorNumber([&] { f.Add(Kind::Label, "L").SetProperty("SelStart", "1"); }), 438);
}

// ---- The dialogs ----

class MapDialog : public ::testing::Test {
protected:
    MapDialog() { app.decl.DirPrograma = kRecursos; }
    template <typename F>
    std::unique_ptr<F> Carga(const char* nombre)
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, nombre);
        return std::unique_ptr<F>(dynamic_cast<F*>(f.release()));
    }
    // The first pixel of a colour in a dialog's colour picture.
    static std::pair<int, int> Pixel(const ImagenColores& img, int32_t color)
    {
        for (int y = 0; y < img.Alto(); ++y)
            for (int x = 0; x < img.Ancho(); ++x)
                if (img.Point(x, y) == color)
                    return {x, y};
        ADD_FAILURE() << "no pixel of colour " << std::hex << color;
        return {0, 0};
    }
    // Clicks the line of the text that holds `que`.
    static void PulsaLinea(Control& texto, const std::string& que)
    {
        const size_t b = texto.Text().find(que);
        ASSERT_NE(b, std::string::npos) << que;
        texto.SetSelStart(CharCount(texto.Text().substr(0, b)) + 1);
        texto.Click();
    }
    TestApp app;
};

TEST_F(MapDialog, SnowMapGivesTheZoneOfTheColourUnderThePointer)
{
    auto f = Carga<FrmECGn>("frmECGn");
    ASSERT_TRUE(f);
    EXPECT_EQ(f->Caption(), "Mapa CTE nieve");
    EXPECT_FALSE(f->At("MapaNieveColores").Visible());
    for (int zona = 1; zona <= 7; ++zona) {
        const auto [x, y] = Pixel(f->Colores(), ColoresNieve()[static_cast<size_t>(zona - 1)]);
        f->At("MapaNieve").ClickAt(x, y);
        EXPECT_EQ(f->At("cmbZonNie").ListIndex(), zona - 1) << zona;
        EXPECT_EQ(f->At("LbZonaNieve").Caption(), std::to_string(zona));
        EXPECT_FALSE(f->At("MapaNieveColores").Visible());
    }
    // The sea, and a point off the picture: no zone.
    for (const auto& [x, y] : {std::pair{2, 2}, std::pair{-10, 40}, std::pair{5000, 5000}}) {
        f->At("MapaNieve").ClickAt(3, 3);
        f->At("MapaNieve").ClickAt(x, y);
        EXPECT_EQ(f->At("cmbZonNie").ListIndex(), -1);
        EXPECT_EQ(f->At("LbZonaNieve").Caption(), "");
    }
}

TEST_F(MapDialog, SnowCapitalsGiveTheirAltitudeAndAceptaStoresWhatWasPicked)
{
    app.decl.AccZonaNieve = 2;
    app.decl.AccAltNieve = 200;
    auto f = Carga<FrmECGn>("frmECGn");
    EXPECT_EQ(f->At("cmbZonNie").ListIndex(), 2);
    Control& texto = f->At("RichTextBox1");
    EXPECT_EQ(texto.Text().substr(0, 39), "CAPITAL                    ALTITUD (m.)");
    struct Caso {
        const char* linea;
        const char* altitud;
    };
    const std::vector<Caso> casos = {
        {"Madrid", "660"},     {"Ávila", "1130"},      {"León", "820"},
        {"Alicante", "0"},     {"Las Palmas", "0"},    {"CAPITAL", "0"},
        {"(M - capital", "0"}, {"Soria", "1090"},
    };
    for (const auto& c : casos) {
        PulsaLinea(texto, c.linea);
        EXPECT_EQ(f->At("LbAltitud").Caption(), c.altitud) << c.linea;
        EXPECT_EQ(texto.SelText().substr(0, std::string(c.linea).size()), c.linea);
    }
    PulsaLinea(texto, "Segovia");
    const auto [x, y] = Pixel(f->Colores(), ColoresNieve()[3]);
    f->At("MapaNieve").ClickAt(x, y);
    f->At("Acepta").Click();
    EXPECT_FLOAT_EQ(app.decl.AccAltNieve, 1000);
    EXPECT_EQ(app.decl.AccZonaNieve, 3);
    EXPECT_TRUE(f->Descargado());

    // Nothing picked: the stored values stay, even after a click outside the zones.
    auto g = Carga<FrmECGn>("frmECGn");
    g->At("MapaNieve").ClickAt(1, 1);
    g->At("Acepta").Click();
    EXPECT_FLOAT_EQ(app.decl.AccAltNieve, 1000);
    EXPECT_EQ(app.decl.AccZonaNieve, 3);
}

TEST_F(MapDialog, WindMapGivesZonesAToC)
{
    app.decl.AccZona = 1;
    auto f = Carga<FrmECV>("frmECV");
    EXPECT_EQ(f->Caption(), "Mapa eólico CTE");
    EXPECT_EQ(f->At("cmbZonEol").ListIndex(), 1);
    const char* letras[] = {"A", "B", "C"};
    for (int zona = 0; zona < 3; ++zona) {
        const auto [x, y] = Pixel(f->Colores(), ColoresViento()[static_cast<size_t>(zona)]);
        f->At("MapaViento").ClickAt(x, y);
        EXPECT_EQ(f->At("cmbZonEol").ListIndex(), zona);
        EXPECT_EQ(f->At("LbZonaViento").Caption(), letras[zona]);
        EXPECT_FLOAT_EQ(app.decl.AccZona, static_cast<float>(zona));
    }
    // Outside the zones the list shows none; the zone chosen stays.
    f->At("MapaViento").ClickAt(0, 0);
    EXPECT_EQ(f->At("cmbZonEol").ListIndex(), -1);
    EXPECT_EQ(f->At("LbZonaViento").Caption(), "");
    f->At("Acepta").Click();
    EXPECT_FLOAT_EQ(app.decl.AccZona, 2);
    // Picked from the list.
    auto g = Carga<FrmECV>("frmECV");
    g->At("cmbZonEol").SetListIndex(0);
    g->At("Acepta").Click();
    EXPECT_FLOAT_EQ(app.decl.AccZona, 0);
}

TEST_F(MapDialog, ProvinceListScrollsToTheHeadingOfEachEntry)
{
    auto f = Carga<FrmNCSE02>("frmNCSE02");
    Control& texto = f->At("RichTextBox1");
    Control& prov = f->At("CmbProv");
    const auto& entradas = EntradasProvincias();
    ASSERT_EQ(prov.ListCount(), 42);
    ASSERT_EQ(f->Offsets().size(), entradas.size());
    EXPECT_EQ(prov.List(0), "--- Andalucia");
    EXPECT_EQ(prov.List(31), "Ourenseo");
    EXPECT_EQ(prov.List(41), "Guipúzcoa");
    for (size_t i = 0; i < entradas.size(); ++i) {
        const int offset = f->Offsets()[i];
        ASSERT_GE(offset, 0) << entradas[i].entrada;
        prov.SetListIndex(static_cast<int>(i));
        EXPECT_EQ(texto.SelStart(), offset);
        // The caret stands at the start of the heading's line.
        const LineaTexto l = LineaEn(texto.Text(), offset);
        EXPECT_EQ(l.inicio, offset);
        const size_t b = CharOffset(texto.Text(), offset);
        EXPECT_NE(texto.Text().substr(b, CharOffset(texto.Text(), offset + l.largo) - b).find(entradas[i].encabezado),
                  std::string::npos)
            << entradas[i].entrada;
    }
    // Headings that a text lacks have no offset.
    EXPECT_EQ(OffsetsProvincias("ANDALUCÍA\r\nX\r\n  Provincia de Almería\r\n")[1], 14);
    EXPECT_EQ(OffsetsProvincias("nothing")[0], -1);
}

TEST_F(MapDialog, MunicipalityLineGivesAbAndKAndAceptaStoresAb)
{
    app.decl.AccAb = 0.04f;
    app.decl.AccK = 1;
    auto f = Carga<FrmNCSE02>("frmNCSE02");
    EXPECT_EQ(f->Caption(), "Mapa NCSE-02");
    Control& texto = f->At("RichTextBox1");
    EXPECT_NE(texto.Text().find("TERMINO MUNICIPAL                     ab/g     K"), std::string::npos);
    EXPECT_NE(texto.Text().find("Relacion de Municipios con ab/g >=0.04"), std::string::npos);
    struct Caso {
        const char* municipio;
        const char* abg;
        float k;
    };
    const std::vector<Caso> casos = {
        {"Granada ", "0.23", 1.0f}, {"Huelva ", "0.10", 1.3f}, {"Sevilla ", "0.07", 1.1f}, {"Murcia ", "0.15", 1.0f},
    };
    for (const auto& c : casos) {
        PulsaLinea(texto, c.municipio);
        EXPECT_EQ(f->At("Lbabg").Caption(), c.abg) << c.municipio;
        EXPECT_FLOAT_EQ(app.decl.AccK, c.k) << c.municipio;
    }
    // A heading has no fields: K stays, and Acepta stores nothing.
    PulsaLinea(texto, "REGIÓN DE MURCIA");
    EXPECT_EQ(f->At("Lbabg").Caption(), "");
    EXPECT_FLOAT_EQ(app.decl.AccK, 1.0f);
    f->At("Acepta").Click();
    EXPECT_FLOAT_EQ(app.decl.AccAb, 0.04f);

    auto g = Carga<FrmNCSE02>("frmNCSE02");
    g->At("Acepta").Click();  // the design caption "Lbabg": nothing picked
    EXPECT_FLOAT_EQ(app.decl.AccAb, 0.04f);
    auto h = Carga<FrmNCSE02>("frmNCSE02");
    PulsaLinea(h->At("RichTextBox1"), "Granada ");
    h->At("Acepta").Click();
    EXPECT_FLOAT_EQ(app.decl.AccAb, 0.23f);
    EXPECT_TRUE(h->Descargado());
}

TEST_F(MapDialog, MissingPictureStopsTheLoadNamingTheFile)
{
    ScratchDir dir;
    app.decl.DirPrograma = dir.path();
    EXPECT_THROW(CargaForm(app.decl, "frmECGn"), ProgramHalt);
    ASSERT_FALSE(app.ui.errors.empty());
    EXPECT_NE(app.ui.errors.back().description.find("NieveCTEColores.png"), std::string::npos);
}

}  // namespace
}  // namespace vardena
