#include "base/VbFormat.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace vardena {
namespace {

struct Decimal {
    bool negative = false;
    std::string digits;  // significant digits, no leading zero unless the value is 0
    int exponent = 0;    // value = digits[0].digits[1..] * 10^exponent
};

Decimal ToDecimal(double v, int significant)
{
    Decimal d;
    if (v == 0 || !std::isfinite(v)) {
        d.digits = "0";
        return d;
    }
    d.negative = v < 0;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*e", significant - 1, std::fabs(v));
    std::string s(buf);
    size_t e = s.find('e');
    for (size_t i = 0; i < e; ++i)
        if (s[i] != '.')
            d.digits += s[i];
    d.exponent = std::atoi(s.c_str() + e + 1);
    while (d.digits.size() > 1 && d.digits.back() == '0')
        d.digits.pop_back();
    return d;
}

std::string General(double v, int significant)
{
    Decimal d = ToDecimal(v, significant);
    if (d.digits == "0")
        return " 0";
    std::string out = d.negative ? "-" : " ";
    const int n = static_cast<int>(d.digits.size());
    if (d.exponent >= significant || d.exponent < -5) {
        out += d.digits[0];
        if (n > 1)
            out += "." + d.digits.substr(1);
        char eb[16];
        std::snprintf(eb, sizeof eb, "E%c%02d", d.exponent < 0 ? '-' : '+', std::abs(d.exponent));
        out += eb;
        return out;
    }
    if (d.exponent < 0) {
        out += ".";
        out.append(static_cast<size_t>(-d.exponent - 1), '0');
        out += d.digits;
        return out;
    }
    if (n <= d.exponent + 1) {
        out += d.digits;
        out.append(static_cast<size_t>(d.exponent + 1 - n), '0');
        return out;
    }
    out += d.digits.substr(0, static_cast<size_t>(d.exponent + 1));
    out += "." + d.digits.substr(static_cast<size_t>(d.exponent + 1));
    return out;
}

}  // namespace

std::string VbStr(float v) { return General(static_cast<double>(v), 7); }
std::string VbStr(double v) { return General(v, 15); }

std::string FormatFixed(double v, int decimals, int significantDigits)
{
    Decimal d = ToDecimal(v, significantDigits);
    // Digits before the point and after it, padded with zeros.
    std::string intPart, fracPart;
    const int n = static_cast<int>(d.digits.size());
    if (d.digits == "0") {
        intPart = "0";
    } else if (d.exponent >= 0) {
        for (int i = 0; i <= d.exponent; ++i)
            intPart += i < n ? d.digits[i] : '0';
        for (int i = d.exponent + 1; i < n; ++i)
            fracPart += d.digits[i];
    } else {
        intPart = "0";
        fracPart.append(static_cast<size_t>(-d.exponent - 1), '0');
        fracPart += d.digits;
    }
    bool roundUp = fracPart.size() > static_cast<size_t>(decimals) && fracPart[decimals] >= '5';
    fracPart.resize(static_cast<size_t>(decimals), '0');
    std::string all = intPart + fracPart;
    if (roundUp) {
        int i = static_cast<int>(all.size()) - 1;
        while (i >= 0) {
            if (all[i] == '9') {
                all[i] = '0';
                --i;
            } else {
                ++all[i];
                break;
            }
        }
        if (i < 0)
            all.insert(all.begin(), '1');
    }
    std::string ip = all.substr(0, all.size() - static_cast<size_t>(decimals));
    std::string fp = all.substr(all.size() - static_cast<size_t>(decimals));
    size_t nz = ip.find_first_not_of('0');
    ip = nz == std::string::npos ? "0" : ip.substr(nz);
    bool zero = ip == "0" && fp.find_first_not_of('0') == std::string::npos;
    std::string out = (d.negative && !zero) ? "-" : "";
    out += ip;
    if (decimals > 0)
        out += "." + fp;
    return out;
}

long long VbCLng(double v) { return static_cast<long long>(std::nearbyint(v)); }

}  // namespace vardena
