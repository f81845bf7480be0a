#include "shell/ModIcono.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "base/FileIo.h"

namespace vardena {

namespace {

namespace fs = std::filesystem;

constexpr int kSide = 32;

struct Rgba {
    uint8_t r = 0, g = 0, b = 0, a = 0;
};

class Canvas {
public:
    Canvas() : px_(kSide * kSide) {}

    void Rect(int x0, int y0, int x1, int y1, Rgba c)
    {
        for (int y = y0; y <= y1; ++y)
            for (int x = x0; x <= x1; ++x)
                Put(x, y, c);
    }

    // A line of the given width: every pixel whose centre lies near enough to the segment.
    void Line(double x0, double y0, double x1, double y1, double width, Rgba c)
    {
        const double dx = x1 - x0, dy = y1 - y0, len2 = dx * dx + dy * dy;
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x) {
                const double px = x + 0.5, py = y + 0.5;
                const double t = std::clamp(((px - x0) * dx + (py - y0) * dy) / len2, 0.0, 1.0);
                const double ex = x0 + t * dx - px, ey = y0 + t * dy - py;
                if (ex * ex + ey * ey <= width * width / 4)
                    Put(x, y, c);
            }
    }

    const Rgba& At(int x, int y) const { return px_[static_cast<size_t>(y * kSide + x)]; }

private:
    void Put(int x, int y, Rgba c)
    {
        if (x >= 0 && y >= 0 && x < kSide && y < kSide)
            px_[static_cast<size_t>(y * kSide + x)] = c;
    }
    std::vector<Rgba> px_;
};

void Le16(std::string& out, uint16_t v)
{
    out += static_cast<char>(v & 0xFF);
    out += static_cast<char>(v >> 8);
}

void Le32(std::string& out, uint32_t v)
{
    Le16(out, static_cast<uint16_t>(v & 0xFFFF));
    Le16(out, static_cast<uint16_t>(v >> 16));
}

// One 32-bit image in an .ico: the directory, a BITMAPINFOHEADER of double height, the BGRA rows
// bottom up, and the 1-bit transparency mask.
std::string EncodeIco(const Canvas& c)
{
    const uint32_t maskRow = kSide / 8;  // 4 bytes, already a multiple of 4
    const uint32_t imageBytes = 40 + kSide * kSide * 4 + maskRow * kSide;
    std::string out;
    Le16(out, 0);
    Le16(out, 1);  // an icon
    Le16(out, 1);  // one image
    out += static_cast<char>(kSide);
    out += static_cast<char>(kSide);
    out += '\0';  // no palette
    out += '\0';
    Le16(out, 1);   // planes
    Le16(out, 32);  // bits per pixel
    Le32(out, imageBytes);
    Le32(out, 6 + 16);
    Le32(out, 40);
    Le32(out, kSide);
    Le32(out, kSide * 2);
    Le16(out, 1);
    Le16(out, 32);
    Le32(out, 0);  // no compression
    Le32(out, imageBytes - 40);
    for (int i = 0; i < 4; ++i)
        Le32(out, 0);
    for (int y = kSide - 1; y >= 0; --y)
        for (int x = 0; x < kSide; ++x) {
            const Rgba& p = c.At(x, y);
            out += static_cast<char>(p.b);
            out += static_cast<char>(p.g);
            out += static_cast<char>(p.r);
            out += static_cast<char>(p.a);
        }
    for (int y = kSide - 1; y >= 0; --y)
        for (uint32_t byte = 0; byte < maskRow; ++byte) {
            uint8_t bits = 0;
            for (int bit = 0; bit < 8; ++bit)
                if (c.At(static_cast<int>(byte * 8) + bit, y).a == 0)
                    bits |= static_cast<uint8_t>(0x80 >> bit);
            out += static_cast<char>(bits);
        }
    return out;
}

// Replaces `path` by `bytes` unless it already holds them; an old different content goes to the
// recycle bin first, and stays when it cannot.
bool Replace(RecycleBin& bin, const std::string& path, const std::string& bytes, std::string& why)
{
    try {
        if (auto old = ReadFileIfExists(path)) {
            if (*old == bytes)
                return true;
            if (!bin.APapelera(path)) {
                why = path + ": cannot be moved to the recycle bin, so it is left as it was";
                return false;
            }
        }
        WriteFileAtomic(path, bytes);
    } catch (const FileError& e) {
        why = e.what();
        return false;
    }
    return true;
}

// .directory with Icon= set in its [Desktop Entry] group, every other line kept.
std::string DirectoryText(const std::string& old, const std::string& iconPath)
{
    std::vector<std::string> lines = SplitLines(old);
    const std::string entry = "Icon=" + iconPath;
    std::optional<size_t> group, icon;
    size_t groupEnd = lines.size();
    for (size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].empty() && lines[i][0] == '[') {
            if (group && groupEnd == lines.size())
                groupEnd = i;
            if (lines[i] == "[Desktop Entry]")
                group = i;
        } else if (group && groupEnd == lines.size() && lines[i].rfind("Icon=", 0) == 0) {
            icon = i;
        }
    }
    if (icon)
        lines[*icon] = entry;
    else if (group) {
        // After the group's last non-blank line.
        size_t at = groupEnd;
        while (at > *group + 1 && lines[at - 1].empty())
            --at;
        lines.insert(lines.begin() + static_cast<long>(at), entry);
    } else if (lines.empty()) {
        lines = {"[Desktop Entry]", entry};
    } else {
        lines.insert(lines.begin(), {"[Desktop Entry]", entry, ""});
    }
    std::string out;
    for (const auto& l : lines)
        out += l + "\n";
    return out;
}

}  // namespace

std::string IconoObra()
{
    const Rgba wood{176, 112, 48, 255}, dark{96, 56, 20, 255}, ground{120, 120, 120, 255};
    Canvas c;
    c.Rect(2, 28, 29, 30, ground);   // the footing
    c.Rect(6, 14, 9, 27, wood);      // posts
    c.Rect(22, 14, 25, 27, wood);
    c.Rect(3, 12, 28, 14, dark);     // the beam
    c.Line(3, 12.5, 16, 3, 2.6, wood);  // rafters
    c.Line(16, 3, 29, 12.5, 2.6, wood);
    c.Line(16, 4, 16, 12, 2.0, dark);   // king post
    c.Line(10, 16, 21, 26, 1.6, dark);  // brace
    return EncodeIco(c);
}

bool PoneIconoCarpeta(RecycleBin& bin, const std::string& folder, const std::string& icon, std::string* error)
{
    std::string why;
    auto fail = [&] {
        if (error)
            *error = why;
        return false;
    };
    std::error_code ec;
    if (!fs::is_directory(folder, ec)) {
        why = folder + ": is not a folder";
        return fail();
    }
    const fs::path dir = fs::absolute(folder).lexically_normal();
    std::string iconBytes;
    try {
        iconBytes = icon.empty() ? IconoObra() : ReadFileBytes(icon);
    } catch (const FileError& e) {
        why = e.what();
        return fail();
    }
    const std::string ini =
        ToDiskText("[.ShellClassInfo]\nIconFile=MiIcono.ico\nIconIndex=0\nInfoTip=Estructuras de Madera\n");
    const fs::path iconPath = dir / "MiIcono.ico";
    if (!Replace(bin, (dir / "Desktop.ini").string(), ini, why) || !Replace(bin, iconPath.string(), iconBytes, why))
        return fail();

    const std::string directory = (dir / ".directory").string();
    try {
        const std::string old = ReadFileIfExists(directory).value_or("");
        const std::string text = DirectoryText(old, iconPath.string());
        if (text != old)
            WriteFileAtomic(directory, text);
    } catch (const FileError& e) {
        why = e.what();
        return fail();
    }
    return true;
}

}  // namespace vardena
