#include "concrete/CatalogoForjados.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <span>
#include <system_error>

#include "base/Codepage.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "base/Ui.h"
#include "reports/PrintUsing2.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

// Messages of the catalogues.
constexpr int kMsgCatalogoDanado = 1610;  // "%1" damaged at line "%2": "%3"
constexpr int kMsgFaltaSeparador = 1611;
constexpr int kMsgGeometria = 1612;
constexpr int kMsgNumeroFilas = 1613;
constexpr int kMsgFila = 1614;
constexpr int kMsgFinDeFichero = 1615;
constexpr int kMsgViguetaDanada = 1617;   // line "%1" of "%2" is no joist row
constexpr int kMsgNoSeGuarda = 1618;      // "%1" could not be saved: "%2"
constexpr int kMsgNoSeBorro = 1620;       // "No se pudo borrar el fichero original"
constexpr int kMsgNoSeCopio = 1621;       // "No se efectuó la copia del fichero de forjados"
constexpr int kMsgNoSeBorroCopia = 1622;  // "No se pudo borrar la copia"

constexpr std::string_view kCrLf = "\r\n";

std::string_view Recorta(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t'))
        s.remove_suffix(1);
    return s;
}

// Whether a line read from the file (Windows-1252) is the separator of a block.
bool EsSeparador(std::string_view linea)
{
    static const std::string separador = Utf8ToCp1252(kSeparadorForjado);
    while (!linea.empty() && linea.back() == ' ')
        linea.remove_suffix(1);
    return linea == separador;
}

bool EnBlanco(std::string_view linea) { return Recorta(linea).empty(); }

// The tokens of a line, cut at runs of blanks.
std::vector<std::string> Palabras(std::string_view linea)
{
    std::vector<std::string> out;
    for (int i = 1;; ++i) {
        std::string p = Palabra(i, linea);
        if (p.empty())
            return out;
        out.push_back(std::move(p));
    }
}

// A whole number of rows, as a free-form read takes it.
bool LeeEntero(std::string_view texto, int& n)
{
    texto = Recorta(texto);
    if (texto.empty())
        return false;
    const auto [ptr, ec] = std::from_chars(texto.data(), texto.data() + texto.size(), n);
    return ec == std::errc() && ptr == texto.data() + texto.size() && n >= 0;
}

// The file's bytes from lines as on disk, each with its CR LF.
void Anade(std::string& bytes, std::string_view linea)
{
    bytes += linea;
    bytes += kCrLf;
}

void Caja(Declaraciones& d, const std::string& texto) { d.ui.MsgBox(texto, mb::Critical, "Error"); }

// One pass of the message loop, where a window system runs one: the file system gets its pause
// before each step of a replacement is checked.
void Cede(Declaraciones& d)
{
    if (d.DoEvents)
        d.DoEvents();
}

// A line by a template of blank-separated number fields, one value a field. A value that the
// field's mask writes as blanks (a zero in "###") stands as "0", so that every field reads back.
std::string PorPlantilla(std::string_view plantilla, std::span<const double> valores)
{
    std::string out;
    size_t i = 0, k = 0;
    while (i < plantilla.size()) {
        if (plantilla[i] == ' ') {
            out += ' ';
            ++i;
            continue;
        }
        const size_t fin = std::min(plantilla.find(' ', i), plantilla.size());
        std::string campo = PrintUsing(plantilla.substr(i, fin - i), std::fabs(k < valores.size() ? valores[k] : 0.0));
        if (campo.find_first_not_of(' ') == std::string::npos && !campo.empty())
            campo.back() = '0';
        out += campo;
        ++k;
        i = fin;
    }
    return out;
}

}  // namespace

std::string_view ArchivoCatalogo(int tipo)
{
    switch (tipo) {
        case 1: return "ForjPret.txt";
        case 2: return "ForjAlve.txt";
        default: return "ForjArma.txt";
    }
}

bool LeeNumero(std::string_view texto, double& valor)
{
    std::string t(Recorta(texto));
    if (t.empty())
        return false;
    if (const size_t coma = t.find(','); coma != std::string::npos)
        t[coma] = '.';
    const char* inicio = t.data();
    if (*inicio == '+')
        ++inicio;
    const auto [ptr, ec] = std::from_chars(inicio, t.data() + t.size(), valor);
    return ec == std::errc() && ptr == t.data() + t.size() && std::isfinite(valor);
}

std::string NombreFila(std::string_view nombre, int largo)
{
    std::string n(Recorta(nombre));
    for (char& c : n)
        if (c == ' ' || c == '\t')
            c = '_';
    const size_t corte = CharOffset(n, largo);
    n.resize(corte);
    n.append(static_cast<size_t>(std::max(0, largo - CharCount(n))), ' ');
    return n;
}

std::string LineaGeometria(const std::array<double, 4>& g)
{
    return PorPlantilla(kPlantillaGeometria, g);
}

std::string LineaFila(const FilaFicha& f)
{
    return PorPlantilla(kPlantillaFila, f.valores) + "    " + NombreFila(f.nombre);
}

std::vector<std::string> LineasBloque(const SistemaForjado& s)
{
    std::vector<std::string> out{std::string(kSeparadorForjado), s.nombre, LineaGeometria(s.geometria),
                                 std::to_string(s.filas.size())};
    for (const FilaFicha& f : s.filas)
        out.push_back(LineaFila(f));
    return out;
}

std::optional<FilaFicha> LeeLineaFila(std::string_view linea)
{
    const std::vector<std::string> p = Palabras(linea);
    if (p.size() != kColumnasFicha && p.size() != kColumnasFicha + 1)
        return std::nullopt;
    FilaFicha f;
    for (size_t i = 0; i < kColumnasFicha; ++i)
        if (!LeeNumero(p[i], f.valores[i]))
            return std::nullopt;
    if (p.size() > kColumnasFicha)
        f.nombre = p[kColumnasFicha];
    return f;
}

CatalogoLeido LeeCatalogo(const std::string& path)
{
    CatalogoLeido c;
    const std::optional<std::string> bytes = ReadFileIfExists(path);
    if (!bytes)
        return c;
    c.existe = true;
    c.lineas = SplitLines(*bytes);
    const auto& l = c.lineas;
    auto falla = [&](size_t i, int motivo) {
        c.lineaErronea = static_cast<int>(i) + 1;
        c.motivo = motivo;
        return c;
    };
    // Blank lines after the last block are tolerated (and kept).
    size_t fin = l.size();
    while (fin > 0 && EnBlanco(l[fin - 1]))
        --fin;
    size_t i = 0;
    while (i < fin) {
        if (!EsSeparador(l[i]))
            return falla(i, kMsgFaltaSeparador);
        CatalogoLeido::Bloque b;
        b.primera = i;
        if (i + 3 >= fin)
            return falla(std::min(i + 1, fin), kMsgFinDeFichero);
        b.sistema.nombre = Cp1252ToUtf8(l[i + 1]);
        const std::vector<std::string> g = Palabras(l[i + 2]);
        if (g.size() != 4)
            return falla(i + 2, kMsgGeometria);
        for (size_t k = 0; k < 4; ++k)
            if (!LeeNumero(g[k], b.sistema.geometria[k]))
                return falla(i + 2, kMsgGeometria);
        int n = 0;
        if (!LeeEntero(l[i + 3], n))
            return falla(i + 3, kMsgNumeroFilas);
        i += 4;
        for (int k = 0; k < n; ++k, ++i) {
            if (i >= fin)
                return falla(fin, kMsgFinDeFichero);
            std::optional<FilaFicha> f = LeeLineaFila(Cp1252ToUtf8(l[i]));
            if (!f)
                return falla(i, kMsgFila);
            b.sistema.filas.push_back(std::move(*f));
        }
        b.fin = i;
        c.bloques.push_back(std::move(b));
    }
    return c;
}

std::vector<std::string> NombresForjados(const CatalogoLeido& c)
{
    std::vector<std::string> out;
    for (const auto& b : c.bloques)
        out.push_back(b.sistema.nombre);
    return out;
}

std::string MensajeCatalogoDanado(const Declaraciones& d, const std::string& path, const CatalogoLeido& c)
{
    return Mensaje(d, kMsgCatalogoDanado, {path, std::to_string(c.lineaErronea), d.Msg(c.motivo)});
}

bool ReemplazaConPapelera(Declaraciones& d, const std::string& path, const std::string& bytes)
{
    namespace fs = std::filesystem;
    std::string tmp;
    try {
        tmp = PreparaReemplazo(path, bytes);
    } catch (const FileError& e) {
        Caja(d, Mensaje(d, kMsgNoSeGuarda, {path, e.what()}));
        return false;
    }
    std::error_code ec;
    Cede(d);
    // A copy of the old file goes to the recycle bin, recorded as the file itself, while the old
    // file stays where it is until the rename.
    if (fs::exists(path, ec)) {
        if (!d.platform.recycleBin || !d.platform.recycleBin->CopiaAPapelera(path)) {
            fs::remove(tmp, ec);
            Caja(d, d.Msg(kMsgNoSeBorro) + ": " + path);
            return false;
        }
    }
    Cede(d);
    try {
        CompletaReemplazo(tmp, path);
        SyncFolder(fs::path(path).parent_path().string());
    } catch (const FileError& e) {
        Caja(d, d.Msg(kMsgNoSeCopio) + ": " + e.what());
        return false;
    }
    Cede(d);
    if (fs::exists(tmp, ec)) {
        Caja(d, d.Msg(kMsgNoSeBorroCopia) + ": " + tmp);
        return false;
    }
    return true;
}

namespace {

// The catalogue as read, or nothing after the box that says why it cannot be changed.
std::optional<CatalogoLeido> CatalogoParaCambiar(Declaraciones& d, const std::string& path)
{
    CatalogoLeido c;
    try {
        c = LeeCatalogo(path);
    } catch (const FileError& e) {
        Caja(d, Mensaje(d, kMsgNoSeGuarda, {path, e.what()}));
        return std::nullopt;
    }
    if (!c.Sano()) {
        Caja(d, MensajeCatalogoDanado(d, path, c));
        return std::nullopt;
    }
    return c;
}

// The file with lines [desde, hasta) put in place of `nuevas`.
std::string Sustituye(const CatalogoLeido& c, size_t desde, size_t hasta, const std::vector<std::string>& nuevas)
{
    std::string bytes;
    for (size_t i = 0; i < desde; ++i)
        Anade(bytes, c.lineas[i]);
    for (const std::string& l : nuevas)
        Anade(bytes, Utf8ToCp1252(l));
    for (size_t i = hasta; i < c.lineas.size(); ++i)
        Anade(bytes, c.lineas[i]);
    return bytes;
}

// Where a new block goes: after the last block, before the blank lines that end the file.
size_t FinDeBloques(const CatalogoLeido& c) { return c.bloques.empty() ? 0 : c.bloques.back().fin; }

}  // namespace

bool GuardaForjado(Declaraciones& d, const std::string& path, int n, const SistemaForjado& s)
{
    if (Recorta(s.nombre).empty())
        return false;
    const std::optional<CatalogoLeido> c = CatalogoParaCambiar(d, path);
    if (!c || n < 1 || n > static_cast<int>(c->bloques.size()) + 1)
        return false;
    const size_t k = static_cast<size_t>(n - 1);
    const size_t desde = k < c->bloques.size() ? c->bloques[k].primera : FinDeBloques(*c);
    const size_t hasta = k < c->bloques.size() ? c->bloques[k].fin : desde;
    return ReemplazaConPapelera(d, path, Sustituye(*c, desde, hasta, LineasBloque(s)));
}

bool BorraForjado(Declaraciones& d, const std::string& path, int n)
{
    const std::optional<CatalogoLeido> c = CatalogoParaCambiar(d, path);
    if (!c || n < 1 || n > static_cast<int>(c->bloques.size()))
        return false;
    const auto& b = c->bloques[static_cast<size_t>(n - 1)];
    return ReemplazaConPapelera(d, path, Sustituye(*c, b.primera, b.fin, {}));
}

std::optional<FilaFicha> LeeVigueta(Declaraciones& d, const std::string& path, int n)
{
    std::vector<std::string> lineas;
    try {
        if (std::optional<std::string> bytes = ReadFileIfExists(path))
            lineas = SplitLines(*bytes);
    } catch (const FileError& e) {
        Caja(d, Mensaje(d, kMsgNoSeGuarda, {path, e.what()}));
        return std::nullopt;
    }
    std::optional<FilaFicha> f;
    if (n >= 1 && n <= static_cast<int>(lineas.size()))
        f = LeeLineaFila(Cp1252ToUtf8(lineas[static_cast<size_t>(n - 1)]));
    if (!f)
        Caja(d, Mensaje(d, kMsgViguetaDanada, {std::to_string(n), path}));
    return f;
}

bool GuardaVigueta(Declaraciones& d, const std::string& path, int n, const FilaFicha& f)
{
    std::vector<std::string> lineas;
    try {
        if (std::optional<std::string> bytes = ReadFileIfExists(path))
            lineas = SplitLines(*bytes);
    } catch (const FileError& e) {
        Caja(d, Mensaje(d, kMsgNoSeGuarda, {path, e.what()}));
        return false;
    }
    if (n < 1 || n > static_cast<int>(lineas.size()) + 1)
        return false;
    const std::string nueva = Utf8ToCp1252(LineaFila(f));
    if (n > static_cast<int>(lineas.size()))
        lineas.push_back(nueva);
    else
        lineas[static_cast<size_t>(n - 1)] = nueva;
    std::string bytes;
    for (const std::string& l : lineas)
        Anade(bytes, l);
    return ReemplazaConPapelera(d, path, bytes);
}

}  // namespace vardena
