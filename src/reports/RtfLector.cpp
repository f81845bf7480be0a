#include "reports/RtfLector.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "base/Codepage.h"

namespace vardena {
namespace {

// Deeper groups than this are counted, not kept: a flood of "{" must not exhaust memory.
constexpr size_t kMaxDepth = 1000;

std::string Utf8(char32_t c)
{
    if (c < 0x80)
        return std::string(1, static_cast<char>(c));
    static constexpr unsigned char lead[] = {0, 0, 0xC0, 0xE0, 0xF0};
    const int n = c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    std::string s(static_cast<size_t>(n), '\0');
    for (int k = n - 1; k > 0; --k, c >>= 6)
        s[static_cast<size_t>(k)] = static_cast<char>(0x80 | (c & 0x3F));
    s[0] = static_cast<char>(lead[n] | c);
    return s;
}

// The Symbol font's letters are Greek; a few of its upper bytes are mathematical signs.
char32_t DeSimbolo(unsigned char b)
{
    static constexpr std::array<char32_t, 26> upper = {
        0x391, 0x392, 0x3A7, 0x394, 0x395, 0x3A6, 0x393, 0x397, 0x399, 0x3D1, 0x39A, 0x39B, 0x39C,
        0x39D, 0x39F, 0x3A0, 0x398, 0x3A1, 0x3A3, 0x3A4, 0x3A5, 0x3C2, 0x3A9, 0x39E, 0x3A8, 0x396};
    static constexpr std::array<char32_t, 26> lower = {
        0x3B1, 0x3B2, 0x3C7, 0x3B4, 0x3B5, 0x3C6, 0x3B3, 0x3B7, 0x3B9, 0x3D5, 0x3BA, 0x3BB, 0x3BC,
        0x3BD, 0x3BF, 0x3C0, 0x3B8, 0x3C1, 0x3C3, 0x3C4, 0x3C5, 0x3D6, 0x3C9, 0x3BE, 0x3C8, 0x3B6};
    static constexpr std::pair<unsigned char, char32_t> signs[] = {
        {0x22, 0x2200}, {0x24, 0x2203}, {0x2A, 0x2217}, {0x2D, 0x2212}, {0x40, 0x2245}, {0xA3, 0x2264},
        {0xA5, 0x221E}, {0xAE, 0x2192}, {0xB0, 0x00B0}, {0xB1, 0x00B1}, {0xB3, 0x2265}, {0xB4, 0x00D7},
        {0xB6, 0x2202}, {0xB7, 0x2022}, {0xB8, 0x00F7}, {0xB9, 0x2260}, {0xBB, 0x2248}, {0xC6, 0x2205},
        {0xD6, 0x221A}, {0xE5, 0x2211}, {0xF2, 0x222B}};
    if (b >= 'A' && b <= 'Z')
        return upper[b - 'A'];
    if (b >= 'a' && b <= 'z')
        return lower[b - 'a'];
    for (const auto& [from, to] : signs)
        if (from == b)
            return to;
    return 0;
}

const std::unordered_set<std::string_view>& DestinosOmitidos()
{
    static const std::unordered_set<std::string_view> skip = {
        "stylesheet", "info", "pict", "object", "objdata", "header", "headerl", "headerr", "headerf", "footer",
        "footerl", "footerr", "footerf", "footnote", "fldinst", "listtable", "listoverridetable", "revtbl",
        "rsidtbl", "xmlnstbl", "themedata", "colorschememapping", "latentstyles", "datastore", "filetbl",
        "pgdsctbl", "mmathPr", "template", "nonshppict", "shppict", "shp", "shpinst", "bkmkstart", "bkmkend",
        "generator", "annotation", "atnid", "atnauthor", "tc", "xe", "txe", "private", "pntext", "pntxta",
        "pntxtb", "listtext", "userprops", "docvar", "fchars", "lchars", "wgrffmtfilter"};
    return skip;
}

// Control words that stand for one character.
const std::unordered_map<std::string_view, char32_t>& CaracteresNombrados()
{
    static const std::unordered_map<std::string_view, char32_t> chars = {
        {"emdash", 0x2014}, {"endash", 0x2013},    {"bullet", 0x2022},    {"lquote", 0x2018},
        {"rquote", 0x2019}, {"ldblquote", 0x201C}, {"rdblquote", 0x201D}, {"emspace", ' '},
        {"enspace", ' '},   {"qmspace", ' '}};
    return chars;
}

enum class Destino { Texto, Fuentes, Colores, Omitido };

struct Estado {
    Destino destino = Destino::Texto;
    RtfEstilo estilo;
    int fuente = 0;
    int uc = 1;
    bool enTabla = false;
    RtfAlineacion alineacion = RtfAlineacion::Izquierda;
};

class Lector {
public:
    explicit Lector(std::string_view in) : in_(in) {}
    RtfDocumento Lee();

private:
    // Input
    int Siguiente() { return pos_ < in_.size() ? static_cast<unsigned char>(in_[pos_++]) : -1; }
    int Mira() const { return pos_ < in_.size() ? static_cast<unsigned char>(in_[pos_]) : -1; }
    void AbreGrupo();
    void CierraGrupo();
    void Control();
    void Palabra(std::string_view word, bool hasParam, long param);
    void Simbolo(int c);
    void Byte(unsigned char b);
    void Caracter(char32_t c);

    // Tables of the document's head
    void FinFuente();
    void FinColor();

    // Document building
    void Texto(std::string_view utf8);
    void FinParrafo();
    void FinCelda();
    void FinFila();
    void CierraTabla();

    std::string_view in_;
    size_t pos_ = 0;
    std::vector<Estado> pila_;
    size_t exceso_ = 0;
    Estado st_;
    int fuenteDefecto_ = 0;
    int saltos_ = 0;            // fallback characters of a \u still to skip
    char32_t altoPendiente_ = 0;  // a high surrogate waiting for its low half

    std::set<int> simbolos_;
    std::string nombreFuente_;
    int numFuente_ = 0, juegoFuente_ = 0;
    std::vector<std::optional<uint32_t>> colores_;
    int rojo_ = 0, verde_ = 0, azul_ = 0;
    bool hayColor_ = false;

    RtfDocumento doc_;
    RtfParrafo par_;
    std::vector<RtfParrafo> celda_;
    RtfFila fila_;
    std::vector<RtfFila> tabla_;
    std::vector<int> bordes_;
};

RtfDocumento Lector::Lee()
{
    while (pos_ < in_.size()) {
        const unsigned char b = static_cast<unsigned char>(in_[pos_++]);
        if (b == '{')
            AbreGrupo();
        else if (b == '}')
            CierraGrupo();
        else if (b == '\\')
            Control();
        else
            Byte(b);
    }
    if (st_.destino == Destino::Fuentes)
        FinFuente();
    if (!fila_.celdas.empty() || !celda_.empty())
        FinFila();
    CierraTabla();
    if (!par_.tramos.empty())
        FinParrafo();
    return std::move(doc_);
}

void Lector::AbreGrupo()
{
    saltos_ = 0;
    if (pila_.size() >= kMaxDepth) {
        ++exceso_;
        return;
    }
    pila_.push_back(st_);
}

void Lector::CierraGrupo()
{
    saltos_ = 0;
    if (exceso_ > 0) {
        --exceso_;
        return;
    }
    if (pila_.empty())
        return;  // a stray "}" closes nothing
    if (st_.destino == Destino::Fuentes && pila_.back().destino == Destino::Fuentes)
        FinFuente();
    st_ = pila_.back();
    pila_.pop_back();
}

void Lector::Control()
{
    const int c = Mira();
    if (c < 0)
        return;
    if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'))) {
        ++pos_;
        Simbolo(c);
        return;
    }
    const size_t start = pos_;
    while (pos_ < in_.size() && pos_ - start < 32 && std::isalpha(static_cast<unsigned char>(in_[pos_])))
        ++pos_;
    const std::string_view word = in_.substr(start, pos_ - start);
    bool hasParam = false;
    bool negative = false;
    long param = 0;
    if (Mira() == '-' && pos_ + 1 < in_.size() && std::isdigit(static_cast<unsigned char>(in_[pos_ + 1]))) {
        negative = true;
        ++pos_;
    }
    for (int digits = 0; pos_ < in_.size() && std::isdigit(static_cast<unsigned char>(in_[pos_])); ++pos_) {
        hasParam = true;
        if (++digits <= 10)
            param = std::min(param * 10 + (in_[pos_] - '0'), 2147483647L);
    }
    if (negative)
        param = -param;
    if (Mira() == ' ')
        ++pos_;
    Palabra(word, hasParam, param);
}

void Lector::Simbolo(int c)
{
    switch (c) {
    case '\'': {
        int value = 0, n = 0;
        for (; n < 2 && std::isxdigit(Mira()); ++n) {
            const int h = Siguiente();
            value = value * 16 + (std::isdigit(h) ? h - '0' : (std::tolower(h) - 'a' + 10));
        }
        if (n > 0)
            Byte(static_cast<unsigned char>(value));
        return;
    }
    case '\\':
    case '{':
    case '}':
        Byte(static_cast<unsigned char>(c));
        return;
    case '~': Caracter(0xA0); return;
    case '_': Caracter('-'); return;
    case '*':
        st_.destino = Destino::Omitido;
        return;
    case '\r':
    case '\n':
        Palabra("par", false, 0);
        return;
    default:
        return;  // "\-", "\|", "\:" and unknown symbols show nothing
    }
}

void Lector::Palabra(std::string_view w, bool hasParam, long param)
{
    if (w == "bin") {
        // Binary data: its bytes are skipped wherever they stand.
        const size_t n = hasParam && param > 0 ? static_cast<size_t>(param) : 0;
        pos_ += std::min(n, in_.size() - pos_);
        return;
    }
    if (st_.destino == Destino::Omitido)
        return;
    if (w == "fonttbl") {
        st_.destino = Destino::Fuentes;
        nombreFuente_.clear();
        juegoFuente_ = 0;
        return;
    }
    if (w == "colortbl") {
        st_.destino = Destino::Colores;
        colores_.clear();
        rojo_ = verde_ = azul_ = 0;
        hayColor_ = false;
        return;
    }
    if (DestinosOmitidos().count(w)) {
        st_.destino = Destino::Omitido;
        return;
    }
    const int p = static_cast<int>(param);
    if (st_.destino == Destino::Fuentes) {
        if (w == "f")
            numFuente_ = p;
        else if (w == "fcharset")
            juegoFuente_ = p;
        return;
    }
    if (st_.destino == Destino::Colores) {
        int* comp = w == "red" ? &rojo_ : w == "green" ? &verde_ : w == "blue" ? &azul_ : nullptr;
        if (comp) {
            *comp = std::clamp(p, 0, 255);
            hayColor_ = true;
        }
        return;
    }
    // A control word inside the fallback of a \u ends the fallback.
    if (w != "u")
        saltos_ = 0;
    const bool on = !hasParam || param != 0;
    RtfEstilo& e = st_.estilo;
    if (w == "par" || w == "sect" || w == "page")
        FinParrafo();
    else if (w == "line")
        Texto("\n");
    else if (w == "tab")
        Texto("\t");
    else if (w == "cell" || w == "nestcell")
        FinCelda();
    else if (w == "row" || w == "nestrow")
        FinFila();
    else if (w == "trowd")
        bordes_.clear();
    else if (w == "cellx")
        bordes_.push_back(p);
    else if (w == "intbl")
        st_.enTabla = true;
    else if (w == "pard") {
        st_.enTabla = false;
        st_.alineacion = RtfAlineacion::Izquierda;
    } else if (w == "ql")
        st_.alineacion = RtfAlineacion::Izquierda;
    else if (w == "qc")
        st_.alineacion = RtfAlineacion::Centro;
    else if (w == "qr")
        st_.alineacion = RtfAlineacion::Derecha;
    else if (w == "qj")
        st_.alineacion = RtfAlineacion::Justificada;
    else if (w == "plain") {
        e = RtfEstilo{};
        st_.fuente = fuenteDefecto_;
    } else if (w == "b")
        e.negrita = on;
    else if (w == "i")
        e.cursiva = on;
    else if (w == "ul")
        e.subrayado = on;
    else if (w == "ulnone")
        e.subrayado = false;
    else if (w == "fs")
        e.tamano = hasParam && p > 0 ? std::min(p, 3276) : 24;
    else if (w == "cf")
        e.color = p > 0 && static_cast<size_t>(p) < colores_.size() ? colores_[static_cast<size_t>(p)] : std::nullopt;
    else if (w == "up" || w == "super")
        e.posicion = on ? 1 : 0;
    else if (w == "dn" || w == "sub")
        e.posicion = on ? -1 : 0;
    else if (w == "nosupersub")
        e.posicion = 0;
    else if (w == "f")
        st_.fuente = p;
    else if (w == "deff")
        fuenteDefecto_ = st_.fuente = p;
    else if (w == "uc")
        st_.uc = std::clamp(p, 0, 10);
    else if (w == "u" && hasParam) {
        char32_t c = static_cast<char32_t>(p < 0 ? p + 65536 : p) & 0xFFFF;
        Caracter(c);
        saltos_ = st_.uc;
    } else if (const auto k = CaracteresNombrados().find(w); k != CaracteresNombrados().end()) {
        Caracter(k->second);
    }
}

void Lector::Byte(unsigned char b)
{
    switch (st_.destino) {
    case Destino::Omitido:
        return;
    case Destino::Fuentes:
        if (b == ';')
            FinFuente();
        else if (b >= 0x20)
            nombreFuente_ += static_cast<char>(b);
        return;
    case Destino::Colores:
        if (b == ';')
            FinColor();
        return;
    case Destino::Texto:
        break;
    }
    if (saltos_ > 0) {
        --saltos_;
        return;
    }
    if (b == '\r' || b == '\n')
        return;
    if (b == '\t') {
        Texto("\t");
        return;
    }
    if (b < 0x20 || b == 0x7F)
        return;
    if (simbolos_.count(st_.fuente)) {
        if (char32_t s = DeSimbolo(b)) {
            Caracter(s);
            return;
        }
    }
    Texto(Cp1252ToUtf8(std::string_view(reinterpret_cast<const char*>(&b), 1)));
}

void Lector::Caracter(char32_t c)
{
    if (st_.destino != Destino::Texto)
        return;
    if (c >= 0xD800 && c < 0xDC00) {
        altoPendiente_ = c;
        return;
    }
    if (c >= 0xDC00 && c < 0xE000) {
        if (!altoPendiente_)
            return;
        c = 0x10000 + ((altoPendiente_ - 0xD800) << 10) + (c - 0xDC00);
    }
    altoPendiente_ = 0;
    // The Symbol font's characters stand in the private area when written as unicode.
    if (c >= 0xF020 && c <= 0xF0FF && simbolos_.count(st_.fuente)) {
        if (char32_t s = DeSimbolo(static_cast<unsigned char>(c - 0xF000)))
            c = s;
    }
    if (c == '\t' || c == '\n') {
        Texto(c == '\t' ? "\t" : "\n");
        return;
    }
    if (c < 0x20 || c == 0x7F)
        return;
    Texto(Utf8(c));
}

void Lector::FinFuente()
{
    std::string name = nombreFuente_;
    name.erase(0, name.find_first_not_of(' '));
    // Other fonts of the symbol character set (Wingdings and the like) have other glyphs.
    if (name.rfind("Symbol", 0) == 0 || (name.empty() && juegoFuente_ == 2))
        simbolos_.insert(numFuente_);
    nombreFuente_.clear();
    juegoFuente_ = 0;
}

void Lector::FinColor()
{
    if (hayColor_)
        colores_.push_back((static_cast<uint32_t>(rojo_) << 16) | (static_cast<uint32_t>(verde_) << 8) |
                           static_cast<uint32_t>(azul_));
    else
        colores_.push_back(std::nullopt);
    rojo_ = verde_ = azul_ = 0;
    hayColor_ = false;
}

void Lector::Texto(std::string_view utf8)
{
    if (!par_.tramos.empty() && par_.tramos.back().estilo == st_.estilo)
        par_.tramos.back().texto += utf8;
    else
        par_.tramos.push_back({std::string(utf8), st_.estilo});
}

void Lector::FinParrafo()
{
    par_.alineacion = st_.alineacion;
    if (st_.enTabla) {
        celda_.push_back(std::move(par_));
    } else {
        CierraTabla();
        doc_.bloques.push_back({std::move(par_), {}});
    }
    par_ = {};
}

void Lector::FinCelda()
{
    par_.alineacion = st_.alineacion;
    celda_.push_back(std::move(par_));
    par_ = {};
    fila_.celdas.push_back({std::move(celda_)});
    celda_.clear();
}

void Lector::FinFila()
{
    if (!par_.tramos.empty() || !celda_.empty())
        FinCelda();
    if (fila_.celdas.empty())
        return;
    fila_.bordes = bordes_;
    tabla_.push_back(std::move(fila_));
    fila_ = {};
}

void Lector::CierraTabla()
{
    if (!fila_.celdas.empty())
        FinFila();
    if (tabla_.empty())
        return;
    RtfBloque b;
    b.filas = std::move(tabla_);
    doc_.bloques.push_back(std::move(b));
    tabla_.clear();
}

// The RTF of `bytes`, from its opening "{\rtf" on; empty when the bytes are no RTF.
std::string_view ComienzoRtf(std::string_view bytes)
{
    if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
        bytes.remove_prefix(3);
    const size_t k = bytes.find_first_not_of(" \t\r\n");
    if (k == std::string_view::npos || bytes.substr(k, 5) != "{\\rtf")
        return {};
    return bytes.substr(k);
}

// A file that is not RTF: a paragraph per line.
RtfDocumento LeeTextoPlano(std::string_view bytes)
{
    RtfDocumento doc;
    RtfParrafo par;
    std::string line;
    const auto fin = [&] {
        par.tramos.clear();
        if (!line.empty())
            par.tramos.push_back({Cp1252ToUtf8(line), {}});
        doc.bloques.push_back({par, {}});
        line.clear();
    };
    for (size_t i = 0; i < bytes.size(); ++i) {
        const unsigned char b = static_cast<unsigned char>(bytes[i]);
        if (b == '\r' || b == '\n') {
            if (b == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n')
                ++i;
            fin();
        } else if (b >= 0x20 || b == '\t') {
            line += static_cast<char>(b);
        }
    }
    if (!line.empty())
        fin();
    return doc;
}

}  // namespace

std::string RtfParrafo::Texto() const
{
    std::string s;
    for (const auto& t : tramos)
        s += t.texto;
    return s;
}

RtfDocumento LeeRtf(std::string_view bytes)
{
    const std::string_view rtf = ComienzoRtf(bytes);
    if (rtf.empty())
        return LeeTextoPlano(bytes);
    return Lector(rtf).Lee();
}

}  // namespace vardena
