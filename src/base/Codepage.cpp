#include "base/Codepage.h"

#include <array>
#include <cstdint>

namespace vardena {
namespace {

// Windows-1252 bytes 0x80 to 0x9F; the undefined ones map to themselves.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

}  // namespace

std::string Cp1252ToUtf8(std::string_view bytes)
{
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (unsigned char b : bytes) {
        if (b < 0x80)
            out += static_cast<char>(b);
        else if (b < 0xA0)
            AppendUtf8(out, kHigh[b - 0x80]);
        else
            AppendUtf8(out, b);
    }
    return out;
}

std::string Utf8ToCp1252(std::string_view text, int* lost)
{
    std::string out;
    out.reserve(text.size());
    size_t i = 0;
    int bad = 0;
    while (i < text.size()) {
        unsigned char b = static_cast<unsigned char>(text[i]);
        char32_t c = 0;
        int len = 1;
        if (b < 0x80) {
            c = b;
        } else if ((b & 0xE0) == 0xC0 && i + 1 < text.size()) {
            c = ((b & 0x1F) << 6) | (text[i + 1] & 0x3F);
            len = 2;
        } else if ((b & 0xF0) == 0xE0 && i + 2 < text.size()) {
            c = ((b & 0x0F) << 12) | ((text[i + 1] & 0x3F) << 6) | (text[i + 2] & 0x3F);
            len = 3;
        } else if ((b & 0xF8) == 0xF0 && i + 3 < text.size()) {
            c = ((b & 0x07) << 18) | ((text[i + 1] & 0x3F) << 12) | ((text[i + 2] & 0x3F) << 6) |
                (text[i + 3] & 0x3F);
            len = 4;
        } else {
            c = 0xFFFD;
        }
        i += len;
        if (c < 0x80 || (c >= 0xA0 && c < 0x100)) {
            out += static_cast<char>(c);
            continue;
        }
        bool found = false;
        for (size_t k = 0; k < kHigh.size(); ++k) {
            if (kHigh[k] == c) {
                out += static_cast<char>(0x80 + k);
                found = true;
                break;
            }
        }
        if (!found) {
            out += '?';
            ++bad;
        }
    }
    if (lost)
        *lost = bad;
    return out;
}

bool LooksLikeText(std::string_view bytes)
{
    for (unsigned char b : bytes) {
        if (b >= 0x20 || b == '\t' || b == '\r' || b == '\n' || b == '\f')
            continue;
        return false;
    }
    return true;
}

std::optional<std::string> DataFileText(std::string_view bytes)
{
    while (!bytes.empty() && bytes.back() == '\x1A')
        bytes.remove_suffix(1);
    if (bytes.find('\0') != std::string_view::npos)
        return std::nullopt;
    return Cp1252ToUtf8(bytes);
}

}  // namespace vardena
