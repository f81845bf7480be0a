#include "reports/PrintUsing2.h"

#include <cmath>
#include <cstdlib>
#include <vector>

#include "base/VbFormat.h"

namespace vardena {
namespace {

// A number mask cut into its parts.
struct Mascara {
    std::string prefijo, sufijo;
    int enteros = 0;       // "#" and "0" before the point
    int cerosEnteros = 0;  // "0" before the point: the least number of whole digits
    bool miles = false;    // a "," among the whole digits
    bool punto = false;
    int decimales = 0;     // placeholders behind the point
    int minDecimales = 0;  // up to the last "0" behind the point
    bool exponente = false;
    char signoExp = '+';
    int digitosExp = 0;
};

Mascara Analiza(std::string_view m)
{
    Mascara r;
    size_t i = 0;
    const auto es = [&](std::string_view set) { return i < m.size() && set.find(m[i]) != std::string_view::npos; };
    while (i < m.size() && !es("#0."))
        r.prefijo += m[i++];
    for (; es("#0,"); ++i) {
        if (m[i] == ',') {
            r.miles = true;
            continue;
        }
        ++r.enteros;
        r.cerosEnteros += m[i] == '0';
    }
    if (es(".")) {
        r.punto = true;
        for (++i; es("#0"); ++i) {
            ++r.decimales;
            if (m[i] == '0')
                r.minDecimales = r.decimales;
        }
    }
    if (es("Ee") && i + 1 < m.size() && (m[i + 1] == '+' || m[i + 1] == '-')) {
        r.exponente = true;
        r.signoExp = m[i + 1];
        for (i += 2; es("#0"); ++i)
            r.digitosExp += m[i] == '0';
    }
    r.sufijo = std::string(m.substr(i));
    return r;
}

// The digits of a non-negative value by the placeholders of `m`, without prefix or exponent.
std::string Cifras(double v, const Mascara& m)
{
    const std::string fijo = FormatFixed(v, m.decimales);
    const size_t p = fijo.find('.');
    std::string ent = fijo.substr(0, p);
    std::string dec = p == std::string::npos ? std::string() : fijo.substr(p + 1);
    if (ent == "0")
        ent.clear();
    if (static_cast<int>(ent.size()) < m.cerosEnteros)
        ent.insert(0, static_cast<size_t>(m.cerosEnteros) - ent.size(), '0');
    if (m.miles)
        for (int k = static_cast<int>(ent.size()) - 3; k > 0; k -= 3)
            ent.insert(static_cast<size_t>(k), ",");
    while (static_cast<int>(dec.size()) > m.minDecimales && dec.back() == '0')
        dec.pop_back();
    return m.punto ? ent + "." + dec : ent;
}

// The number of whole digits of x rounded to `decimals` places; 0 for a value below 1.
int DigitosEnteros(double x, int decimals)
{
    const std::string f = FormatFixed(x, decimals);
    const std::string ent = f.substr(0, f.find('.'));
    return ent == "0" ? 0 : static_cast<int>(ent.size());
}

std::string ConExponente(double v, const Mascara& m)
{
    // The exponent leaves as many whole digits in the mantissa as the mask has placeholders;
    // a rounding that carries into one more digit moves the exponent up.
    int e = 0;
    double x = 0;
    if (v != 0 && std::isfinite(v)) {
        e = static_cast<int>(std::floor(std::log10(v))) + 1 - m.enteros;
        for (int tries = 0;; ++tries) {
            x = e >= 0 ? v / std::pow(10.0, e) : v * std::pow(10.0, -e);
            const int whole = DigitosEnteros(x, m.decimales);
            if (tries == 2)
                break;
            if (whole > m.enteros)
                ++e;
            else if (whole < m.enteros && tries == 0)
                --e;
            else
                break;
        }
    }
    const std::string mant = Cifras(x, m);
    std::string digits = std::to_string(std::abs(e));
    if (static_cast<int>(digits.size()) < m.digitosExp)
        digits.insert(0, static_cast<size_t>(m.digitosExp) - digits.size(), '0');
    const std::string sign = e < 0 ? "-" : (m.signoExp == '+' ? "+" : "");
    return mant + "E" + sign + digits;
}

}  // namespace

std::string FormatoUsing(double value, std::string_view mask)
{
    const size_t first = mask.find_first_not_of(' ');
    mask = first == std::string_view::npos ? std::string_view() : mask.substr(first);
    if (mask.empty()) {
        std::string s = VbStr(value);
        return s[0] == ' ' ? s.substr(1) : s;
    }
    const Mascara m = Analiza(mask);
    const double a = std::fabs(value);
    const std::string cifras = m.exponente ? ConExponente(a, m) : Cifras(a, m);
    const bool nonZero = cifras.find_first_of("123456789") != std::string::npos;
    return (value < 0 && nonZero ? "-" : "") + m.prefijo + cifras + m.sufijo;
}

std::string PrintUsing(std::string_view mask, std::span<const double> values)
{
    // Cut the mask into literal text and number fields.
    struct Segmento {
        std::string literal, campo;
    };
    std::vector<Segmento> segs;
    Segmento cur;
    bool open = false;
    for (char c : mask) {
        if (open && (c == '#' || c == '.' || c == '^')) {
            cur.campo += c;
            continue;
        }
        if (open) {
            segs.push_back(std::move(cur));
            cur = {};
            open = false;
        }
        if (c == '#' || c == '.') {
            open = true;
            cur.campo = c;
        } else {
            cur.literal += c;
        }
    }
    if (open || !cur.literal.empty())
        segs.push_back(std::move(cur));

    std::string out;
    size_t next = 0;
    for (const auto& s : segs) {
        out += s.literal;
        if (s.campo.empty())
            continue;
        std::string f = s.campo;
        const size_t dot = f.find('.');
        if (dot != std::string::npos) {
            if (dot > 0)
                f[0] = ' ';
            for (size_t k = dot + 1; k < f.size(); ++k)
                if (f[k] == '#')
                    f[k] = '0';
        }
        for (size_t k = f.find("^^^^"); k != std::string::npos; k = f.find("^^^^", k + 4))
            f.replace(k, 4, "E+00");
        const double v = next < values.size() ? values[next] : 0.0;
        ++next;
        std::string text = FormatoUsing(v, f);
        if (text.size() < f.size())
            text.insert(0, f.size() - text.size(), ' ');
        out += text;
    }
    return out;
}

}  // namespace vardena
