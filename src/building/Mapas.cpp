#include "building/Mapas.h"

#include <png.h>

#include <algorithm>
#include <cctype>

#include "works/LngPack.h"
#include "works/Declaraciones.h"
#include "works/VentanaError.h"
#include "base/Codepage.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "base/VbFormat.h"
#include "base/VbInput.h"

namespace vardena {

// ---- Pictures ----

ImagenColores ImagenColores::Lee(const std::string& ruta)
{
    const std::string bytes = ReadFileBytes(ruta);
    png_image imagen{};
    imagen.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&imagen, bytes.data(), bytes.size()))
        throw FileError(ruta, std::string("not a PNG picture (") + imagen.message + ")");
    // Flat colours are read as they stand: no background, no gamma.
    imagen.format = PNG_FORMAT_RGB;
    std::vector<unsigned char> rgb(PNG_IMAGE_SIZE(imagen));
    if (!png_image_finish_read(&imagen, nullptr, rgb.data(), 0, nullptr)) {
        const std::string motivo = imagen.message;
        png_image_free(&imagen);
        throw FileError(ruta, "the PNG picture cannot be read (" + motivo + ")");
    }
    std::vector<int32_t> colores(static_cast<size_t>(imagen.width) * imagen.height);
    for (size_t i = 0; i < colores.size(); ++i)
        colores[i] = ColorRgb(rgb[3 * i], rgb[3 * i + 1], rgb[3 * i + 2]);
    return DeColores(static_cast<int>(imagen.width), static_cast<int>(imagen.height), std::move(colores));
}

ImagenColores ImagenColores::DeColores(int ancho, int alto, std::vector<int32_t> colores)
{
    ImagenColores img;
    img.ancho_ = ancho;
    img.alto_ = alto;
    img.colores_ = std::move(colores);
    img.colores_.resize(static_cast<size_t>(ancho) * static_cast<size_t>(alto), 0);
    return img;
}

int32_t ImagenColores::Point(int x, int y) const
{
    if (x < 0 || y < 0 || x >= ancho_ || y >= alto_)
        return -1;
    return colores_[static_cast<size_t>(y) * static_cast<size_t>(ancho_) + static_cast<size_t>(x)];
}

const std::array<int32_t, 7>& ColoresNieve()
{
    static const std::array<int32_t, 7> colores = {0x0540FF, 0x1CEE00, 0xEE5400, 0xFC05FF, 0x00EBFA, 0xFEFC28, 0x1181FF};
    return colores;
}

const std::array<int32_t, 3>& ColoresViento()
{
    static const std::array<int32_t, 3> colores = {0x1DE7FE, 0x03CB1A, 0xFF771D};
    return colores;
}

namespace {

// The position of a colour in a table of zone colours, -1 when absent.
template <size_t N>
int Posicion(const std::array<int32_t, N>& tabla, int32_t color)
{
    const auto it = std::find(tabla.begin(), tabla.end(), color);
    return it == tabla.end() ? -1 : static_cast<int>(it - tabla.begin());
}

}  // namespace

int ZonaNieve(int32_t color) { return Posicion(ColoresNieve(), color) + 1; }

int ZonaViento(int32_t color) { return Posicion(ColoresViento(), color); }

// ---- The snow table ----

std::string RutaNieve(const Declaraciones& d) { return RutaRecurso(d, "Nieve"); }

namespace {

// An item of the table file with the line it stands on.
struct Item {
    std::string texto;
    int linea;
};

std::vector<Item> ItemsNieve(std::string_view texto)
{
    std::vector<Item> items;
    const std::vector<std::string> lineas = SplitLines(texto);
    for (size_t n = 0; n < lineas.size(); ++n) {
        const std::string& l = lineas[n];
        const size_t primero = l.find_first_not_of(" \t");
        if (primero == std::string::npos || l[primero] == '\'')
            continue;
        std::string actual;
        bool comillas = false;
        auto corta = [&] {
            if (!actual.empty())
                items.push_back({actual, static_cast<int>(n) + 1});
            actual.clear();
        };
        for (char c : l) {
            if (c == '"') {
                comillas = !comillas;
            } else if (!comillas && (c == ' ' || c == '\t' || c == ',' || c == '\r')) {
                corta();
            } else {
                actual += c;
            }
        }
        corta();
    }
    return items;
}

// True when the whole item is a number as the table writes them: digits with one "." or ",".
bool EsNumero(const std::string& s)
{
    bool digito = false;
    int puntos = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        const char c = s[i];
        if (std::isdigit(static_cast<unsigned char>(c)))
            digito = true;
        else if (c == '.' || c == ',')
            ++puntos;
        else if (!((c == '-' || c == '+') && i == 0))
            return false;
    }
    return digito && puntos <= 1;
}

}  // namespace

TablaNieve LeeTablaNieve(std::string_view texto, const std::string& nombre)
{
    const std::vector<Item> items = ItemsNieve(texto);
    constexpr size_t kEncabezados = 2;
    TablaNieve tabla{};
    for (int f = 0; f < kFilasNieve; ++f) {
        for (int z = 0; z < kZonasNieve; ++z) {
            const size_t i = kEncabezados + static_cast<size_t>(f * kZonasNieve + z);
            if (i >= items.size())
                throw FieldError(62, items.empty() ? 1 : items.back().linea,
                                 nombre + ": the snow table ends at row " + std::to_string(f + 1) + ", zone " +
                                     std::to_string(z + 1) + "; it needs 14 rows of 7 loads");
            if (!EsNumero(items[i].texto))
                throw FieldError(13, items[i].linea,
                                 nombre + ": \"" + items[i].texto + "\" is no load (row " + std::to_string(f + 1) +
                                     ", zone " + std::to_string(z + 1) + ")");
            tabla[static_cast<size_t>(f)][static_cast<size_t>(z)] = static_cast<float>(ValComaCopy(items[i].texto));
        }
    }
    return tabla;
}

TablaNieve LeeTablaNieve(const std::string& ruta)
{
    return LeeTablaNieve(Cp1252ToUtf8(ReadFileBytes(ruta)), ruta);
}

// ---- Texts ----

LineaTexto LineaEn(std::string_view texto, int caracter)
{
    size_t b = CharOffset(texto, std::max(caracter, 0));
    // A caret between the CR and the LF of a line end belongs to the line before.
    if (b < texto.size() && texto[b] == '\n' && b > 0 && texto[b - 1] == '\r')
        --b;
    size_t inicio = b;
    while (inicio > 0 && texto[inicio - 1] != '\n')
        --inicio;
    size_t fin = b;
    while (fin < texto.size() && texto[fin] != '\r' && texto[fin] != '\n')
        ++fin;
    return {CharCount(texto.substr(0, inicio)), CharCount(texto.substr(inicio, fin - inicio))};
}

std::string CampoTab(std::string_view linea, int n)
{
    size_t desde = 0;
    for (int i = 1; i < n; ++i) {
        const size_t tab = linea.find('\t', desde);
        if (tab == std::string_view::npos)
            return {};
        desde = tab + 1;
    }
    return std::string(linea.substr(desde, linea.find('\t', desde) - desde));
}

std::string Derecha(std::string_view texto, int n)
{
    const int largo = CharCount(texto);
    return std::string(texto.substr(CharOffset(texto, std::max(largo - n, 0))));
}

const std::vector<EntradaProvincia>& EntradasProvincias()
{
    // The list's texts stand as the program has always shown them; the headings are those of
    // the municipalities' text of the program's folder.
    static const std::vector<EntradaProvincia> entradas = {
        {"--- Andalucia", "ANDALUCÍA"},
        {"Almeria", "Provincia de Almería"},
        {"Cádiz", "Provincia de Cádiz"},
        {"Córdoba", "Provincia de Córdoba"},
        {"Granada", "Provincia de Granada"},
        {"Huelva", "Provincia de Huelva"},
        {"Jaen", "Provincia de Jaén"},
        {"Málaga", "Provincia de Málaga"},
        {"Sevilla", "Provincia de Sevilla"},
        {"--- Aragón", "ARAGÓN"},
        {"Huesca", "Provincia de Huesca"},
        {"Zaragoza", "Provincia de Zaragoza"},
        {"--- Canarias", "CANARIAS"},
        {"Las Palmas", "Provincia de Las Palmas"},
        {"Sta. Cruz de Tenerife", "Provincia de Santa Cruz de Tenerife"},
        {"--- Castilla la Mancha", "CASTILLA-LA MANCHA"},
        {"Albacete", "Provincia de Albacete"},
        {"--- Cataluña", "CATALUÑA"},
        {"Barcelona", "Provincia de Barcelona"},
        {"Girona", "Provincia de Girona"},
        {"Lleida", "Provincia de Lleida"},
        {"Tarragona", "Provincia de Tarragona"},
        {"--- Comunidad Valenciana", "COMUNIDAD VALENCIANA"},
        {"Alicante", "Provincia de Alicante"},
        {"Valencia", "Provincia de Valencia"},
        {"--- Extremadura", "EXTREMADURA"},
        {"Badajoz", "Provincia de Badajoz"},
        {"Cáceres", "Provincia de Cáceres"},
        {"--- Galicia", "GALICIA"},
        {"A Coruña", "Provincia de A Coruña"},
        {"Lugo", "Provincia de Lugo"},
        {"Ourenseo", "Provincia de Ourense"},
        {"Pontevedra", "Provincia de Pontevedra"},
        {"--- Illes Balears", "ILLES BALEARS"},
        {"Illes Balears", "Provincia de Illes Balears"},
        {"--- Región de Murcia", "REGIÓN DE MURCIA"},
        {"Murcia", "Provincia de Murcia"},
        {"--- Comunidad Foral de Navarra", "COMUNIDAD FORAL DE NAVARRA"},
        {"Navarra", "Provincia de Navarra"},
        {"--- Pais Vasco", "PAÍS VASCO"},
        {"Álava", "Provincia de Álava"},
        {"Guipúzcoa", "Provincia de Guipúzcoa"},
    };
    return entradas;
}

namespace {

std::string_view Recorta(std::string_view s)
{
    const size_t a = s.find_first_not_of(" \t");
    if (a == std::string_view::npos)
        return {};
    const size_t b = s.find_last_not_of(" \t");
    return s.substr(a, b - a + 1);
}

}  // namespace

std::vector<int> OffsetsProvincias(std::string_view texto)
{
    const auto& entradas = EntradasProvincias();
    std::vector<int> offsets(entradas.size(), -1);
    size_t inicio = 0;
    while (inicio <= texto.size()) {
        size_t fin = texto.find('\n', inicio);
        if (fin == std::string_view::npos)
            fin = texto.size();
        std::string_view linea = texto.substr(inicio, fin - inicio);
        if (!linea.empty() && linea.back() == '\r')
            linea.remove_suffix(1);
        const std::string_view limpia = Recorta(linea);
        for (size_t i = 0; i < entradas.size(); ++i)
            if (offsets[i] < 0 && limpia == entradas[i].encabezado)
                offsets[i] = CharCount(texto.substr(0, inicio));
        inicio = fin + 1;
    }
    return offsets;
}

std::string RutaRecurso(const Declaraciones& d, std::string_view relativa)
{
    return ConBarra(d.DirPrograma) + std::string(relativa);
}

// ---- The dialogs ----

void DialogoAcciones::CargaTexto(const char* control, const char* relativa)
{
    Control& c = At(control);
    c.SetText(Cp1252ToUtf8(ReadFileBytes(RutaRecurso(decl(), relativa))));
    c.SetSelStart(0);
}

std::string DialogoAcciones::SeleccionaLinea(Control& texto)
{
    const LineaTexto l = LineaEn(texto.Text(), texto.SelStart());
    texto.SetSelStart(l.inicio);
    texto.SetSelLength(l.largo);
    return texto.SelText();
}

void DialogoMapa::AnadeMapa(const char* mapa, const char* rutaMapa, const char* mapaColores, const char* rutaColores)
{
    Control& m = Add(Kind::PictureBox, mapa);
    m.Set("Picture", rutaMapa);
    m.onMouseDown = [this](Control&, int x, int y) { MapaClick(x, y); };
    Control& colores = Add(Kind::PictureBox, mapaColores);
    colores.Set("Picture", rutaColores);
    colores.SetVisible(false);
    mapaColores_ = mapaColores;
}

void DialogoMapa::CargaColores()
{
    colores_ = ImagenColores::Lee(RutaRecurso(decl(), At(mapaColores_).Get("Picture")));
}

void DialogoMapa::MapaClick(int x, int y)
{
    ConVentanaError(decl(), Name() + "_Mapa_MouseDown", [&] {
        // The colour picture lies under the map: it is shown for the reading only.
        Control& colores = At(mapaColores_);
        colores.SetVisible(true);
        const int32_t color = colores_.Point(x, y);
        colores.SetVisible(false);
        ColorElegido(color);
    });
}

FrmECGn::FrmECGn(Declaraciones& d) : DialogoMapa(d, "frmECGn", "Mapa CTE nieve")
{
    AnadeMapa("MapaNieve", recursos::kMapaNieve, "MapaNieveColores", recursos::kMapaNieveColores);
    Add(Kind::Label, "Label1").SetCaption("Zona climática");
    Add(Kind::ComboBox, "cmbZonNie").SetItems({"1 ", "2 ", "3 ", "4 ", "5 ", "6 ", "7 "});
    Add(Kind::Label, "LbZonaNieve");
    Add(Kind::Label, "Label2").SetCaption("Capitales de provincia: pulse en una para tomar su altitud");
    Add(Kind::RichTextBox, "RichTextBox1").onClick = [this](Control&) { RichTextBox1_Click(); };
    Add(Kind::Label, "Label3").SetCaption("Altitud (m.)");
    Add(Kind::Label, "LbAltitud");
    Add(Kind::CommandButton, "Acepta").SetCaption("Aceptar");
    At("Acepta").onClick = [this](Control&) { Acepta_Click(); };
}

void FrmECGn::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "frmECGn_Form_Load", [&] {
        TraduceForm(*this);
        CargaColores();
        CargaTexto("RichTextBox1", recursos::kCapitales);
        Control& zona = At("cmbZonNie");
        if (d.AccZonaNieve >= 0 && d.AccZonaNieve < zona.ListCount()) {
            zona.SetListIndex(d.AccZonaNieve);
            At("LbZonaNieve").SetCaption(std::to_string(d.AccZonaNieve + 1));
        }
    });
}

void FrmECGn::ColorElegido(int32_t color)
{
    const int zona = ZonaNieve(color);
    At("cmbZonNie").SetListIndex(zona - 1);
    At("LbZonaNieve").SetCaption(zona == 0 ? std::string() : std::to_string(zona));
}

void FrmECGn::RichTextBox1_Click()
{
    ConVentanaError(decl(), "RichTextBox1_Click", [&] {
        const std::string linea = SeleccionaLinea(At("RichTextBox1"));
        const std::string altitud = Derecha(linea, 5);
        At("LbAltitud").SetCaption(ValComaCopy(altitud) == 0 ? std::string("0") : std::string(Recorta(altitud)));
    });
}

void FrmECGn::Acepta_Click()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "Acepta_Click", [&] {
        const std::string& altitud = At("LbAltitud").Caption();
        if (!altitud.empty())
            d.AccAltNieve = static_cast<float>(ValComaCopy(altitud));
        // A map clicked outside the zones leaves the list without a zone: the zone stays.
        if (const int zona = At("cmbZonNie").ListIndex(); zona >= 0)
            d.AccZonaNieve = static_cast<int16_t>(zona);
        Form_Unload();
    });
}

FrmECV::FrmECV(Declaraciones& d) : DialogoMapa(d, "frmECV", "Mapa eólico CTE")
{
    AnadeMapa("MapaViento", recursos::kMapaViento, "MapaVientoColores", recursos::kMapaVientoColores);
    Add(Kind::Label, "Label1").SetCaption("Zona eólica");
    Add(Kind::ComboBox, "cmbZonEol").SetItems({" A", " B", " C"});
    Add(Kind::Label, "LbZonaViento");
    Add(Kind::CommandButton, "Acepta").SetCaption("Aceptar");
    At("Acepta").onClick = [this](Control&) { Acepta_Click(); };
}

namespace {
const char* const kLetrasViento[] = {"A", "B", "C"};
}

void FrmECV::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "frmECV_Form_Load", [&] {
        TraduceForm(*this);
        CargaColores();
        const int zona = static_cast<int>(d.AccZona);
        if (zona >= 0 && zona <= 2) {
            At("cmbZonEol").SetListIndex(zona);
            At("LbZonaViento").SetCaption(kLetrasViento[zona]);
        }
    });
}

void FrmECV::ColorElegido(int32_t color)
{
    const int zona = ZonaViento(color);
    At("cmbZonEol").SetListIndex(zona);
    At("LbZonaViento").SetCaption(zona < 0 ? "" : kLetrasViento[zona]);
    // Outside the zones the list shows none and the zone chosen before stays.
    if (zona >= 0)
        decl().AccZona = static_cast<float>(zona);
}

void FrmECV::Acepta_Click()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "Acepta_Click", [&] {
        if (const int zona = At("cmbZonEol").ListIndex(); zona >= 0)
            d.AccZona = static_cast<float>(zona);
        Form_Unload();
    });
}

FrmNCSE02::FrmNCSE02(Declaraciones& d) : DialogoAcciones(d, "frmNCSE02", "Mapa NCSE-02")
{
    Add(Kind::Label, "Label1").SetCaption("Comunidad autónoma o provincia");
    std::vector<std::string> entradas;
    for (const auto& e : EntradasProvincias())
        entradas.emplace_back(e.entrada);
    Add(Kind::ComboBox, "CmbProv").SetItems(std::move(entradas));
    At("CmbProv").onClick = [this](Control&) { CmbProv_Click(); };
    Add(Kind::Label, "Label2").SetCaption("Municipios con ab/g >= 0.04: pulse en uno para tomar sus valores");
    Add(Kind::RichTextBox, "RichTextBox1").onClick = [this](Control&) { RichTextBox1_Click(); };
    Add(Kind::Label, "Label3").SetCaption("Aceleración básica ab/g");
    Add(Kind::Label, "Lbabg").SetCaption("Lbabg");
    Add(Kind::Label, "Label4").SetCaption("Coeficiente de contribución K");
    Add(Kind::Label, "LbK");
    Add(Kind::CommandButton, "Acepta").SetCaption("Aceptar");
    At("Acepta").onClick = [this](Control&) { Acepta_Click(); };
}

void FrmNCSE02::Form_Load()
{
    ConVentanaError(decl(), "frmNCSE02_Form_Load", [&] {
        TraduceForm(*this);
        CargaTexto("RichTextBox1", recursos::kMunicipios);
        offsets_ = OffsetsProvincias(At("RichTextBox1").Text());
    });
}

void FrmNCSE02::CmbProv_Click()
{
    const int i = At("CmbProv").ListIndex();
    if (i < 0 || i >= static_cast<int>(offsets_.size()) || offsets_[static_cast<size_t>(i)] < 0)
        return;
    // To the end first, then back to the heading: the heading scrolls to the top of the box.
    Control& texto = At("RichTextBox1");
    texto.SetSelStart(CharCount(texto.Text()));
    texto.SetSelStart(offsets_[static_cast<size_t>(i)]);
}

void FrmNCSE02::RichTextBox1_Click()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "RichTextBox1_Click", [&] {
        const std::string linea = SeleccionaLinea(At("RichTextBox1"));
        const std::string abg = CampoTab(linea, 2);
        At("Lbabg").SetCaption(abg);
        // Headings have no fields: a click on one leaves K as it was.
        if (abg.empty())
            return;
        const std::string k = Derecha(linea, 3);
        d.AccK = static_cast<float>(ValComaCopy(k));
        At("LbK").SetCaption(std::string(Recorta(k)));
    });
}

void FrmNCSE02::Acepta_Click()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "Acepta_Click", [&] {
        const std::string& abg = At("Lbabg").Caption();
        if (!abg.empty() && abg != "Lbabg")
            d.AccAb = static_cast<float>(ValComaCopy(abg));
        Form_Unload();
    });
}

}  // namespace vardena
