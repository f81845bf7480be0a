#include "base/Texto.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/VbFormat.h"

namespace vardena {

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
}  // namespace

double ValComa(std::string& text)
{
    size_t comma = text.find(',');
    if (comma != std::string::npos)
        text[comma] = '.';
    // Gather the number's characters, skipping blanks as the run time's Val does.
    std::string num;
    size_t i = 0;
    auto skip = [&] {
        while (i < text.size() && IsBlank(text[i]))
            ++i;
    };
    // Appends a run of digits (blanks between them skipped) to `into`; true when there was one.
    auto digitsInto = [&](std::string& into) {
        bool any = false;
        for (skip(); i < text.size() && IsDigit(text[i]); skip()) {
            into += text[i++];
            any = true;
        }
        return any;
    };
    skip();
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        num += text[i++];
    bool digits = digitsInto(num);
    if (i < text.size() && text[i] == '.') {
        num += text[i++];
        digits = digitsInto(num) || digits;
    }
    if (!digits)
        return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        const size_t save = i;
        std::string exp = "e";
        ++i;
        skip();
        if (i < text.size() && (text[i] == '+' || text[i] == '-'))
            exp += text[i++];
        if (digitsInto(exp))
            num += exp;
        else
            i = save;
    }
    const double v = std::strtod(num.c_str(), nullptr);
    return std::isfinite(v) ? v : 0;
}

double ValComaCopy(std::string_view text)
{
    std::string copy(text);
    return ValComa(copy);
}

std::string Formato0(double v) { return FormatFixed(v, 0); }
std::string Formato0_0(double v) { return FormatFixed(v, 1); }
std::string Formato00(double v) { return FormatFixed(v, 2); }
std::string Formato0(float v) { return FormatFixed(v, 0, 7); }
std::string Formato0_0(float v) { return FormatFixed(v, 1, 7); }
std::string Formato00(float v) { return FormatFixed(v, 2, 7); }

std::string Formato00Punto(double v)
{
    std::string s = FormatFixed(v, 2, 7);
    size_t comma = s.find(',');
    if (comma != std::string::npos)
        s[comma] = '.';
    return s;
}

namespace {
std::string Plain(std::string s)
{
    if (!s.empty() && s[0] == ' ')
        s.erase(0, 1);
    if (!s.empty() && s[0] == '.')
        s.insert(s.begin(), '0');
    return s;
}
}  // namespace

std::string FormatoNum(float v) { return Plain(VbStr(v)); }
std::string FormatoNum(double v) { return Plain(VbStr(v)); }

double Redondea(double v, int decimals)
{
    double f = std::pow(10.0, decimals);
    double s = v > 0 ? 1.0 : -1.0;
    return std::trunc(v * f + s * 0.5) / f;
}

double Maximo3(double a, double b, double c) { return std::max(a, std::max(b, c)); }

std::string Palabra(int n, std::string_view text, std::string_view sep)
{
    if (sep.empty())
        sep = " ";
    const char s = sep[0];
    int count = 0;
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && text[i] == s)
            ++i;
        if (i >= text.size())
            break;
        size_t start = i;
        while (i < text.size() && text[i] != s)
            ++i;
        if (++count == n)
            return std::string(text.substr(start, i - start));
    }
    return {};
}

std::string CambiaCar(std::string_view text, std::string_view a, std::string_view b)
{
    if (a.empty())
        return {};
    std::string out(text);
    const char to = b.empty() ? '\0' : b[0];
    std::string result;
    for (char c : out) {
        if (c == a[0]) {
            if (to)
                result += to;
        } else {
            result += c;
        }
    }
    return result;
}

std::string ConBarra(std::string_view path)
{
    std::string p(path);
    if (p.empty() || p.back() != kSep)
        p += kSep;
    return p;
}

std::string CarpetaDe(std::string_view path)
{
    size_t k = path.rfind(kSep);
    if (k == std::string_view::npos || k == 0)
        return {};
    return std::string(path.substr(0, k));
}

std::string ArchivoDe(std::string_view path)
{
    size_t k = path.rfind(kSep);
    if (k == std::string_view::npos || k == 0)
        return {};
    return std::string(path.substr(k + 1));
}

std::string AcortaRuta(std::string_view path, int n)
{
    const int len = static_cast<int>(path.size());
    if (len <= n)
        return std::string(path);
    int start = len - (n - 6);  // 1-based position where the search begins
    if (start < 1)
        start = 1;
    size_t k = path.find(kSep, static_cast<size_t>(start - 1));
    std::string out(path.substr(0, 3));
    out += "...";
    if (k != std::string_view::npos)
        out += path.substr(k);
    return out;
}

namespace {
// True for the bytes that continue a UTF-8 character.
bool Continua(unsigned char c) { return (c & 0xC0) == 0x80; }
}  // namespace

int CharCount(std::string_view text)
{
    int n = 0;
    for (unsigned char c : text)
        if (!Continua(c))
            ++n;
    return n;
}

size_t CharOffset(std::string_view text, int n)
{
    size_t i = 0;
    for (int k = 0; k < n && i < text.size(); ++k)
        do
            ++i;
        while (i < text.size() && Continua(static_cast<unsigned char>(text[i])));
    return i;
}

}  // namespace vardena
