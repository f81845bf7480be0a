#include <cstdlib>
#include <filesystem>
#include <string>

#include "shell/Platform.h"
#include "base/Codepage.h"
#include "base/FileIo.h"

namespace vardena {

namespace {
std::string Key(std::string_view app, std::string_view section, std::string_view key)
{
    return std::string(app) + "/" + std::string(section) + "/" + std::string(key);
}

struct IniLine {
    std::string group;  // "" for lines before the first group
    std::string key;    // "" for comments and blank lines
    std::string raw;
};

std::vector<IniLine> ParseIni(const std::string& utf8)
{
    std::vector<IniLine> lines;
    std::string group;
    auto flush = [&](const std::string& l) {
        IniLine il{group, {}, l};
        if (!l.empty() && l.front() == '[' && l.back() == ']') {
            group = l.substr(1, l.size() - 2);
            il.group = group;
        } else if (auto eq = l.find('='); eq != std::string::npos && !l.empty() && l[0] != ';' && l[0] != '#') {
            il.key = l.substr(0, eq);
        }
        lines.push_back(il);
    };
    for (const auto& l : SplitLines(utf8))
        flush(l);
    return lines;
}
}  // namespace

std::string MemorySettings::GetSetting(std::string_view app, std::string_view section, std::string_view key,
                                       std::string_view defaultValue)
{
    const std::string k = Key(app, section, key);
    for (const auto& [name, value] : values_)
        if (name == k)
            return value;
    return std::string(defaultValue);
}

void MemorySettings::SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                                 std::string_view value)
{
    const std::string k = Key(app, section, key);
    for (auto& [name, v] : values_)
        if (name == k) {
            v = std::string(value);
            return;
        }
    values_.emplace_back(k, std::string(value));
}

IniSettings::IniSettings(std::string path) : path_(std::move(path)) {}

std::string IniSettings::DefaultPath()
{
    if (const char* p = std::getenv("VARDENA_SETTINGS"); p && *p)
        return p;
    std::string base;
    if (const char* x = std::getenv("XDG_CONFIG_HOME"); x && *x)
        base = x;
    else if (const char* h = std::getenv("HOME"); h && *h)
        base = std::string(h) + "/.config";
    else
        base = ".";
    return base + "/vardena/Vardena 3.ini";
}

std::string IniSettings::GetSetting(std::string_view app, std::string_view section, std::string_view key,
                                    std::string_view defaultValue)
{
    std::optional<std::string> bytes;
    try {
        bytes = ReadFileIfExists(path_);
    } catch (const FileError&) {
        return std::string(defaultValue);
    }
    if (!bytes)
        return std::string(defaultValue);
    const std::string group = std::string(app) + "/" + std::string(section);
    for (const auto& l : ParseIni(Cp1252ToUtf8(*bytes)))
        if (l.group == group && l.key == key)
            return l.raw.substr(l.key.size() + 1);
    return std::string(defaultValue);
}

void IniSettings::SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                              std::string_view value)
{
    std::vector<IniLine> lines;
    if (auto bytes = ReadFileIfExists(path_))
        lines = ParseIni(Cp1252ToUtf8(*bytes));
    const std::string group = std::string(app) + "/" + std::string(section);
    const std::string entry = std::string(key) + "=" + std::string(value);
    bool done = false;
    size_t lastOfGroup = std::string::npos;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].group != group)
            continue;
        lastOfGroup = i;
        if (lines[i].key == key) {
            lines[i].raw = entry;
            done = true;
            break;
        }
    }
    if (!done) {
        IniLine il{group, std::string(key), entry};
        if (lastOfGroup == std::string::npos) {
            lines.push_back({group, {}, "[" + group + "]"});
            lines.push_back(il);
        } else {
            lines.insert(lines.begin() + static_cast<long>(lastOfGroup) + 1, il);
        }
    }
    std::string out;
    for (const auto& l : lines)
        out += l.raw + "\n";
    std::error_code ec;
    std::filesystem::create_directories(std::filesystem::path(path_).parent_path(), ec);
    WriteFileAtomic(path_, ToDiskText(out));
}

}  // namespace vardena
