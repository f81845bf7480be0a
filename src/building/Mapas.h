#pragma once
// The three map dialogs of the building's actions: the snow map of the CTE (climatic zone and
// the altitude of a provincial capital), the wind map of the CTE (wind zone) and the seismic
// list of the NCSE-02 (ab/g and K of a municipality). They keep no record: what the user picks
// goes to the Acc* variables of Declaraciones when "Aceptar" is pressed (the wind zone and K
// at once, on the click). Also here: the snow table file "Nieve" and the picture reader that
// answers the colour under a point of a map.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Form.h"

namespace vardena {

struct Declaraciones;

// ---- Pictures ----

// The colours of a picture, read from a PNG file. Colours are values as the run time gives
// them: red in the low byte, then green, then blue (&H00BBGGRR).
class ImagenColores {
public:
    // Reads the PNG at `ruta`; throws FileError naming the file when it cannot.
    static ImagenColores Lee(const std::string& ruta);
    // A picture of the colours given row by row, `ancho` to a row.
    static ImagenColores DeColores(int ancho, int alto, std::vector<int32_t> colores);

    int Ancho() const { return ancho_; }
    int Alto() const { return alto_; }
    bool Vacia() const { return colores_.empty(); }
    // The colour at (x, y), or -1 outside the picture (as the run time's Point).
    int32_t Point(int x, int y) const;

private:
    int ancho_ = 0;
    int alto_ = 0;
    std::vector<int32_t> colores_;
};

// A colour value from its red, green and blue parts.
constexpr int32_t ColorRgb(int r, int g, int b) { return r | (g << 8) | (b << 16); }

// The flat colour of each snow climatic zone 1 to 7, and of each wind zone A, B, C.
const std::array<int32_t, 7>& ColoresNieve();
const std::array<int32_t, 3>& ColoresViento();
// The snow zone of a colour of the snow map, 1 to 7; 0 for any other colour.
int ZonaNieve(int32_t color);
// The wind zone of a colour of the wind map, 0 (A) to 2 (C); -1 for any other colour.
int ZonaViento(int32_t color);

// ---- The snow table ----

inline constexpr int kFilasNieve = 14;
inline constexpr int kZonasNieve = 7;
// Loads in kN/m2 by altitude row (below 200 m, 400, 500 ... 2000 m and above) and climatic
// zone 1 to 7; 100 marks a case to study apart.
using TablaNieve = std::array<std::array<float, kZonasNieve>, kFilasNieve>;
inline constexpr float kNieveEstudioAparte = 100;

// The file of the snow table beside the program.
std::string RutaNieve(const Declaraciones& d);
// Reads the table from the text of the file: lines whose first non-blank character is "'"
// are comments; the other items are separated by blanks, tabs, commas and line ends; the
// first two items are headings; then 14 rows of 7 numbers. A file that holds fewer numbers,
// or an item that is no number, throws FieldError naming the file and the item.
TablaNieve LeeTablaNieve(std::string_view texto, const std::string& nombre);
// Reads the file; a missing file throws FileError.
TablaNieve LeeTablaNieve(const std::string& ruta);

// ---- Texts ----

// A line of a text: where it starts and how many characters it has, without its line end.
struct LineaTexto {
    int inicio = 0;
    int largo = 0;
};
// The line under character `caracter` of `texto` (characters counted as a text box counts them).
LineaTexto LineaEn(std::string_view texto, int caracter);
// The n-th field (from 1) of a line cut at tabs; "" when the line has fewer.
std::string CampoTab(std::string_view linea, int n);
// The last `n` characters of a text (all of it when shorter).
std::string Derecha(std::string_view texto, int n);

// The entries of the province list of the seismic dialog, each with the heading line of the
// municipalities' text where it begins.
struct EntradaProvincia {
    const char* entrada;
    const char* encabezado;
};
const std::vector<EntradaProvincia>& EntradasProvincias();
// The character offset of each entry's heading in `texto`, in the order of the entries; -1
// for a heading the text lacks.
std::vector<int> OffsetsProvincias(std::string_view texto);

// Where the dialogs find their pictures and texts, relative to the program's folder.
namespace recursos {
inline constexpr const char* kMapaNieve = "mapas/NieveCTE.png";
inline constexpr const char* kMapaNieveColores = "mapas/NieveCTEColores.png";
inline constexpr const char* kMapaViento = "mapas/VientoCTE.png";
inline constexpr const char* kMapaVientoColores = "mapas/VientoCTEColores.png";
inline constexpr const char* kCapitales = "mapas/Capitales.txt";
inline constexpr const char* kMunicipios = "mapas/MunicipiosNCSE02.txt";
}  // namespace recursos
std::string RutaRecurso(const Declaraciones& d, std::string_view relativa);

// ---- The dialogs ----

// What the three dialogs share: they close themselves on "Aceptar".
class DialogoAcciones : public Form {
public:
    using Form::Form;
    bool Descargado() const { return descargado_; }
    void Form_Unload() override { descargado_ = true; }

protected:
    // Reads a text of the program's folder into a rich text box, caret at the start.
    void CargaTexto(const char* control, const char* relativa);
    // Selects the line under the caret of a rich text box and returns it.
    std::string SeleccionaLinea(Control& texto);

private:
    bool descargado_ = false;
};

// A map whose clicks read the colour under the pointer in a hidden picture of flat colours.
class DialogoMapa : public DialogoAcciones {
public:
    using DialogoAcciones::DialogoAcciones;
    const ImagenColores& Colores() const { return colores_; }

protected:
    // Adds the shown picture and its hidden colour picture, and wires the click.
    void AnadeMapa(const char* mapa, const char* rutaMapa, const char* mapaColores, const char* rutaColores);
    // Loads the colour picture (Form_Load).
    void CargaColores();
    // What a click on the map does with the colour read.
    virtual void ColorElegido(int32_t color) = 0;

private:
    void MapaClick(int x, int y);
    std::string mapaColores_;
    ImagenColores colores_;
};

// "Mapa CTE nieve": climatic zone from the map, altitude from the list of capitals.
class FrmECGn : public DialogoMapa {
public:
    explicit FrmECGn(Declaraciones& d);
    void Form_Load() override;
    void RichTextBox1_Click();
    void Acepta_Click();

protected:
    void ColorElegido(int32_t color) override;
};

// "Mapa eólico CTE": wind zone from the map.
class FrmECV : public DialogoMapa {
public:
    explicit FrmECV(Declaraciones& d);
    void Form_Load() override;
    void Acepta_Click();

protected:
    void ColorElegido(int32_t color) override;
};

// "Mapa NCSE-02": ab/g and K of a municipality of the list.
class FrmNCSE02 : public DialogoAcciones {
public:
    explicit FrmNCSE02(Declaraciones& d);
    void Form_Load() override;
    void CmbProv_Click();
    void RichTextBox1_Click();
    void Acepta_Click();
    // The offset of each entry of CmbProv in the text, as found at load.
    const std::vector<int>& Offsets() const { return offsets_; }

private:
    std::vector<int> offsets_;
};

}  // namespace vardena
