#include "reports/mRtf.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "base/Codepage.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Ui.h"

namespace vardena {
namespace {

// Edges of the cells as fractions of the table's width, by columns and kind.
struct FormaTabla {
    int columnas;
    int tipo;
    std::vector<double> fracciones;  // the last edge, the whole width, is implied
};

const std::vector<FormaTabla>& FormasTabla()
{
    static const std::vector<FormaTabla> formas = {
        {1, 1, {}},
        {2, 1, {0.6}},
        {2, 2, {0.5}},
        {3, 1, {0.38, 0.69}},
        {3, 2, {0.5, 0.75}},
        {3, 3, {0.5, 0.68}},
        {4, 1, {0.25, 0.5, 0.75}},
        {4, 2, {0.44, 0.64, 0.82}},
    };
    return formas;
}

// Replaces every occurrence of `from` in `text` by `to`.
void Reemplaza(std::string& text, std::string_view from, std::string_view to)
{
    for (size_t k = text.find(from); k != std::string::npos; k = text.find(from, k + to.size()))
        text.replace(k, from.size(), to);
}

// The length in bytes of the UTF-8 sequence that begins with `b` (1 for a stray byte).
size_t LargoUtf8(unsigned char b)
{
    if ((b & 0xE0) == 0xC0)
        return 2;
    if ((b & 0xF0) == 0xE0)
        return 3;
    if ((b & 0xF8) == 0xF0)
        return 4;
    return 1;
}

char32_t CodigoUtf8(std::string_view s)
{
    const auto b = [&](size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(s[i])); };
    switch (s.size()) {
    case 2: return ((b(0) & 0x1F) << 6) | (b(1) & 0x3F);
    case 3: return ((b(0) & 0x0F) << 12) | ((b(1) & 0x3F) << 6) | (b(2) & 0x3F);
    case 4: return ((b(0) & 0x07) << 18) | ((b(1) & 0x3F) << 12) | ((b(2) & 0x3F) << 6) | (b(3) & 0x3F);
    default: return b(0);
    }
}

void AnadeUnicode(std::string& out, char32_t c)
{
    // RTF takes a signed 16-bit number, followed by one fallback character (\uc1).
    const auto uno = [&](unsigned v) { out += "\\u" + std::to_string(static_cast<int16_t>(v)) + "?"; };
    if (c >= 0x10000) {
        c -= 0x10000;
        uno(0xD800 + (c >> 10));
        uno(0xDC00 + (c & 0x3FF));
    } else {
        uno(c);
    }
}

}  // namespace

std::string TextosRtf::Exponente(std::string_view digit)
{
    return std::string(SuperOn) + std::string(digit) + std::string(SuperOff);
}

TextosRtf IniciaRtf(int unidades)
{
    TextosRtf t;
    const std::string dos = TextosRtf::Exponente("2");
    const bool tecnico = unidades == 1;
    t.UnTension = (tecnico ? "kg/cm" : "N/mm") + dos;
    t.FacTension = tecnico ? 0.1 : 0.01;
    t.UnFuerza = tecnico ? "t." : "kN";
    t.FacFuerza = tecnico ? 1 : 10;
    t.UnMomento = tecnico ? "m·t" : "m·kN";
    t.FacMomento = tecnico ? 1 : 10;
    t.UnCargaSup = (tecnico ? "kg/m" : "kN/m") + dos;
    t.FacCargaSup = tecnico ? 1000 : 10;
    t.UnCargaLin = tecnico ? "kg/m" : "kN/m";
    t.FacCargaLin = tecnico ? 1000 : 10;
    t.UnArea = "m" + dos;
    t.UnVolumen = "m" + TextosRtf::Exponente("3");
    t.UnCuarta = "m" + TextosRtf::Exponente("4");
    return t;
}

std::string EscapaRtf(std::string_view text)
{
    static const std::pair<std::string_view, std::string_view> escapes[] = {
        {"©", R"(\'a9)"}, {"á", R"(\'e1)"}, {"é", R"(\'e9)"}, {"í", R"(\'ed)"}, {"ó", R"(\'f3)"},
        {"ú", R"(\'fa)"}, {"ñ", R"(\'f1)"}, {"·", R"(\'b7)"}, {"\r", R"(\par)"},
    };
    std::string out(text);
    for (const auto& [from, to] : escapes)
        Reemplaza(out, from, to);
    return out;
}

std::vector<std::string> BordesTabla(int columnas, int tipo)
{
    const FormaTabla* forma = nullptr;
    for (const auto& f : FormasTabla()) {
        if (f.columnas == columnas && f.tipo == tipo)
            forma = &f;
        else if (f.columnas == columnas && f.tipo == 1 && !forma)
            forma = &f;
    }
    std::vector<std::string> bordes;
    if (forma) {
        for (double fr : forma->fracciones) {
            // Int of the width times the fraction, in double precision.
            const double edge = std::floor(static_cast<double>(TextosRtf::AnchoTabla) * fr);
            bordes.push_back(std::to_string(static_cast<long long>(edge)));
        }
    }
    bordes.push_back(std::to_string(TextosRtf::AnchoTabla));
    return bordes;
}

std::string RtfADisco(std::string_view utf8)
{
    std::string out;
    out.reserve(utf8.size());
    for (size_t i = 0; i < utf8.size();) {
        const unsigned char b = static_cast<unsigned char>(utf8[i]);
        if (b < 0x80) {
            out += static_cast<char>(b);
            ++i;
            continue;
        }
        size_t n = LargoUtf8(b);
        if (i + n > utf8.size())
            n = utf8.size() - i;
        const std::string_view seq = utf8.substr(i, n);
        int lost = 0;
        std::string cp = Utf8ToCp1252(seq, &lost);
        if (lost == 0 || n == 1)
            out += cp;
        else
            AnadeUnicode(out, CodigoUtf8(seq));
        i += n;
    }
    return out;
}

Informe::Informe(Declaraciones& d) : d_(d) { IniciaRtf(); }

Informe::Informe(Declaraciones& d, TextosRtf textos) : d_(d), textos_(std::move(textos)) {}

void Informe::IniciaRtf() { textos_ = vardena::IniciaRtf(d_.Unidades); }

std::string Informe::LineaRtf(std::string_view tag, std::string_view text,
                              std::optional<std::string_view> text2) const
{
    using T = TextosRtf;
    std::string r;
    if (tag == "Cabe") {
        for (auto line : T::Prologo)
            r += line;
    } else if (tag == "Tit1") {
        r = std::string(T::Titulo1) + std::string(text) + std::string(T::Par) + std::string(T::Par);
    } else if (tag == "Tit2") {
        r = std::string(T::Titulo2) + std::string(text) + std::string(T::Par);
    } else if (tag == "Tit3") {
        r = std::string(T::Titulo3) + std::string(text) + std::string(T::Par);
    } else if (tag == "Tex1") {
        r = std::string(T::Cuerpo) + std::string(T::Tab) + std::string(text);
        if (text2)
            r += std::string(T::Tab) + std::string(*text2);
        r += T::Par;
    } else if (tag == "Blan") {
        r = T::Par;
    } else if (tag == "FinD") {
        r = T::FinDoc;
    } else {
        d_.ui.MsgBox(d_.Msg(171), mb::OkOnly, "");
        Halt("unknown report tag \"" + std::string(tag) + "\"");
    }
    return EscapaRtf(r);
}

std::string Informe::CeldaRtf(std::string_view tag, std::string_view a, std::string_view b) const
{
    using T = TextosRtf;
    std::string r;
    if (tag == "CabI") {
        r = T::IniTabla;
    } else if (tag == "ColW") {
        r = std::string(T::DefCelda) + std::string(a);
    } else if (tag == "CabF") {
        r = T::FinCabecera;
    } else if (tag == "IniF") {
        r = T::IniFila;
    } else if (tag == "FinC") {
        r = T::FinCelda;
    } else if (tag == "FinF") {
        r = T::FinFila;
    } else if (tag == "FinT") {
        r = T::FinTabla;
    } else {
        // The blank ends the control word, so that a text beginning with a letter or digit
        // is not read as part of it ("\par30" would be \par with a parameter).
        r = tag;
        if (!a.empty())
            r += std::string(T::Par) + " " + std::string(a);
        if (!b.empty())
            r += std::string(T::Par) + " " + std::string(b);
        r += T::FinCelda;
    }
    return EscapaRtf(r);
}

void Informe::Imprime(std::string_view fragment)
{
    doc_ += fragment;
    doc_ += "\r\n";
}

void Informe::Linea(std::string_view tag, std::string_view text, std::optional<std::string_view> text2)
{
    Imprime(LineaRtf(tag, text, text2));
}

void Informe::Cabecera(int columnas, int tipo, std::span<const std::string_view> titulos)
{
    Imprime(CeldaRtf("CabI"));
    for (const auto& edge : BordesTabla(columnas, tipo))
        Imprime(CeldaRtf("ColW", edge));
    Imprime(CeldaRtf("CabF"));
    Fila(titulos, 1);
}

void Informe::Fila(std::span<const std::string_view> celdas, int negrita)
{
    using T = TextosRtf;
    const std::string_view estilo = negrita == 1 ? T::TablaNegrita : T::Tabla;
    Imprime(CeldaRtf("IniF"));
    for (size_t i = 0; i < celdas.size(); ++i) {
        const std::string_view alinea = i == 0 ? T::Izquierda : T::Centrado;
        Imprime(CeldaRtf(std::string(alinea) + std::string(estilo) + std::string(celdas[i])));
    }
    Imprime(CeldaRtf("FinF"));
}

void Informe::TablaTexto(std::string_view text)
{
    Imprime(CeldaRtf("CabI"));
    Imprime(CeldaRtf("ColW", std::to_string(TextosRtf::AnchoTabla)));
    Imprime(CeldaRtf("CabF"));
    Imprime(CeldaRtf("IniF"));
    Imprime(CeldaRtf(std::string(TextosRtf::Tabla) + std::string(text)));
    Imprime(CeldaRtf("FinF"));
    Imprime(CeldaRtf("FinT"));
}

void Informe::CabeceraTabla2(int tipo, std::string_view t1, std::string_view t2)
{
    const std::string_view t[] = {t1, t2};
    Cabecera(2, tipo, t);
}

void Informe::FilaTabla2(std::string_view c1, std::string_view c2, int negrita)
{
    const std::string_view c[] = {c1, c2};
    Fila(c, negrita);
}

void Informe::CabeceraTabla3(int tipo, std::string_view t1, std::string_view t2, std::string_view t3)
{
    const std::string_view t[] = {t1, t2, t3};
    Cabecera(3, tipo, t);
}

void Informe::FilaTabla3(std::string_view c1, std::string_view c2, std::string_view c3, int negrita)
{
    const std::string_view c[] = {c1, c2, c3};
    Fila(c, negrita);
}

void Informe::CabeceraTabla4(int tipo, std::string_view t1, std::string_view t2, std::string_view t3,
                             std::string_view t4)
{
    const std::string_view t[] = {t1, t2, t3, t4};
    Cabecera(4, tipo, t);
}

void Informe::FilaTabla4(std::string_view c1, std::string_view c2, std::string_view c3, std::string_view c4,
                         int negrita)
{
    const std::string_view c[] = {c1, c2, c3, c4};
    Fila(c, negrita);
}

void Informe::FinTabla() { Imprime(CeldaRtf("FinT")); }

void Informe::Guarda(const std::string& path) const { WriteFileAtomic(path, RtfADisco(doc_)); }

}  // namespace vardena
