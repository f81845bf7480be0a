#include "shell/linux/cQueryReg.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>

#include "shell/Platform.h"
#include "shell/linux/TextoLinux.h"
#include "base/Codepage.h"
#include "base/FileIo.h"

namespace vardena {

namespace {

namespace fs = std::filesystem;

const char* const kShellFolders = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

struct RootName {
    RaizReg root;
    const char* shortName;
    const char* longName;
};
constexpr std::array<RootName, 7> kRoots{{
    {RaizReg::ClassesRoot, "HKCR", "HKEY_CLASSES_ROOT"},
    {RaizReg::CurrentUser, "HKCU", "HKEY_CURRENT_USER"},
    {RaizReg::LocalMachine, "HKLM", "HKEY_LOCAL_MACHINE"},
    {RaizReg::Users, "HKU", "HKEY_USERS"},
    {RaizReg::CurrentConfig, "HKCC", "HKEY_CURRENT_CONFIG"},
    {RaizReg::DynData, "HKDD", "HKEY_DYN_DATA"},
    {RaizReg::PerformanceData, "HKPD", "HKEY_PERFORMANCE_DATA"},
}};

using Clave = cQueryRegLinux::Clave;

std::string Lower(std::string_view s)
{
    std::string out(s);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return out;
}

bool Same(std::string_view a, std::string_view b) { return Lower(a) == Lower(b); }

// "prefix\..." without regard to case: the part after the prefix, or nullopt.
std::optional<std::string> Below(const std::string& path, const std::string& parent)
{
    if (path.size() <= parent.size() + 1 || path[parent.size()] != '\\' ||
        !Same(std::string_view(path).substr(0, parent.size()), parent))
        return std::nullopt;
    return path.substr(parent.size() + 1);
}

// The key text as a path: long root name, then the subkeys joined by single "\".
std::optional<std::string> Canonical(std::string_view key)
{
    RaizReg root;
    std::string rest;
    if (!cQueryRegLinux::RaizDe(key, root, rest))
        return std::nullopt;
    std::string path = cQueryRegLinux::NombreRaiz(root);
    size_t pos = 0;
    while (pos < rest.size()) {
        size_t end = rest.find('\\', pos);
        if (end == std::string::npos)
            end = rest.size();
        if (end > pos)
            path += "\\" + rest.substr(pos, end - pos);
        pos = end + 1;
    }
    return path;
}

bool IsRoot(const std::string& path) { return path.find('\\') == std::string::npos; }

Clave* FindKey(std::vector<Clave>& keys, const std::string& path)
{
    for (auto& k : keys)
        if (Same(k.path, path))
            return &k;
    return nullptr;
}

bool KeyExists(std::vector<Clave>& keys, const std::string& path)
{
    if (IsRoot(path) || FindKey(keys, path))
        return true;
    return std::any_of(keys.begin(), keys.end(), [&](const Clave& k) { return Below(k.path, path).has_value(); });
}

// The key, made with its parents when missing.
Clave& MakeKey(std::vector<Clave>& keys, const std::string& path)
{
    for (size_t pos = path.find('\\'); pos != std::string::npos; pos = path.find('\\', pos + 1))
        if (!FindKey(keys, path.substr(0, pos)) && !IsRoot(path.substr(0, pos)))
            keys.push_back({path.substr(0, pos), {}});
    if (Clave* k = FindKey(keys, path))
        return *k;
    keys.push_back({path, {}});
    return keys.back();
}

ValorReg* FindValue(Clave& k, const std::string& name)
{
    for (auto& v : k.values)
        if (Same(v.name, name))
            return &v;
    return nullptr;
}

// The names of the direct subkeys of `path`, in name order.
std::vector<std::string> Children(const std::vector<Clave>& keys, const std::string& path)
{
    std::vector<std::string> out;
    std::set<std::string> seen;
    for (const auto& k : keys)
        if (auto rest = Below(k.path, path)) {
            std::string child = rest->substr(0, rest->find('\\'));
            if (seen.insert(Lower(child)).second)
                out.push_back(child);
        }
    std::sort(out.begin(), out.end(), [](const auto& a, const auto& b) { return Lower(a) < Lower(b); });
    return out;
}

// Hexadecimal pairs: upper case in value texts, lower case in the file, as regedit writes them.
std::string HexPairs(std::string_view bytes, char sep)
{
    const char* hex = sep == ' ' ? "0123456789ABCDEF" : "0123456789abcdef";
    std::string out;
    for (unsigned char c : bytes) {
        if (!out.empty())
            out += sep;
        out += hex[c >> 4];
        out += hex[c & 15];
    }
    return out;
}

// Hexadecimal pairs cut by blanks, commas or nothing; nullopt when anything else is there.
std::optional<std::string> ParsePairs(std::string_view text)
{
    std::string out;
    int high = -1;
    for (char c : text) {
        if (c == ' ' || c == ',' || c == '\t') {
            if (high >= 0)
                return std::nullopt;
            continue;
        }
        const int d = DigitoHex(c);
        if (d < 0)
            return std::nullopt;
        if (high < 0) {
            high = d;
        } else {
            out += static_cast<char>(high * 16 + d);
            high = -1;
        }
    }
    if (high >= 0)
        return std::nullopt;
    return out;
}

// A text value from its stored bytes: Windows-1252 up to the first NUL.
std::string TextOfBytes(const std::string& bytes) { return Cp1252ToUtf8(bytes.substr(0, bytes.find('\0'))); }

std::string Quote(const std::string& s)
{
    std::string out = "\"";
    for (char c : s) {
        if (c == '"' || c == '\\')
            out += '\\';
        out += c;
    }
    return out + "\"";
}

// Reads a quoted text at `pos` (at the opening quote); moves `pos` past the closing one.
std::optional<std::string> Unquote(const std::string& line, size_t& pos)
{
    std::string out;
    for (size_t i = pos + 1; i < line.size(); ++i) {
        if (line[i] == '\\' && i + 1 < line.size()) {
            out += line[++i];
        } else if (line[i] == '"') {
            pos = i + 1;
            return out;
        } else {
            out += line[i];
        }
    }
    return std::nullopt;
}

std::string SerializeValue(const ValorReg& v)
{
    std::string out = v.name.empty() ? "@=" : Quote(v.name) + "=";
    switch (v.type) {
    case kRegSz:
        if (v.text.find_first_of("\r\n") == std::string::npos)
            return out + Quote(v.text);
        [[fallthrough]];
    case kRegExpandSz:
        return out + "hex(" + std::to_string(v.type) + "):" + HexPairs(Utf8ToCp1252(v.text) + '\0', ',');
    case kRegDword: {
        char buf[16];
        std::snprintf(buf, sizeof buf, "dword:%08x", v.number);
        return out + buf;
    }
    case kRegBinary:
        return out + "hex:" + HexPairs(v.bytes, ',');
    default:
        return out + "hex(" + std::to_string(v.type) + "):" + HexPairs(v.bytes, ',');
    }
}

// The text form of the keys whose path is `top` or lies below it (all of them for an empty top).
std::string Serialize(std::vector<Clave> keys, const std::string& top = {})
{
    auto order = [](const std::string& p) {
        std::string s = Lower(p);
        std::replace(s.begin(), s.end(), '\\', '\x01');
        return s;
    };
    std::sort(keys.begin(), keys.end(), [&](const Clave& a, const Clave& b) { return order(a.path) < order(b.path); });
    std::string out = "REGEDIT4\n\n";
    for (const auto& k : keys) {
        if (!top.empty() && !Same(k.path, top) && !Below(k.path, top))
            continue;
        out += "[" + k.path + "]\n";
        for (const auto& v : k.values)
            out += SerializeValue(v) + "\n";
        out += "\n";
    }
    return out;
}

// The value of a line `"name"=data` or `@=data`; an error text when the line is not one.
std::optional<ValorReg> ParseValue(const std::string& line, std::string& why)
{
    ValorReg v;
    size_t pos = 0;
    if (line[0] == '@') {
        pos = 1;
    } else if (line[0] == '"') {
        auto name = Unquote(line, pos);
        if (!name) {
            why = "the value name has no closing quote";
            return std::nullopt;
        }
        v.name = *name;
    } else {
        why = "is neither a [key] nor a value";
        return std::nullopt;
    }
    if (pos >= line.size() || line[pos] != '=') {
        why = "has no \"=\" after the value name";
        return std::nullopt;
    }
    const std::string data = line.substr(pos + 1);
    if (!data.empty() && data[0] == '"') {
        size_t p = 0;
        auto text = Unquote(data, p);
        if (!text || p != data.size()) {
            why = "the text value is not quoted right";
            return std::nullopt;
        }
        v.text = *text;
        return v;
    }
    const std::string low = Lower(data);
    if (low.rfind("dword:", 0) == 0) {
        const std::string digits = data.substr(6);
        if (digits.empty() || digits.size() > 8 || !std::all_of(digits.begin(), digits.end(), [](char c) {
                return DigitoHex(c) >= 0;
            })) {
            why = "the dword value is not 1 to 8 hexadecimal digits";
            return std::nullopt;
        }
        v.type = kRegDword;
        v.number = static_cast<uint32_t>(std::strtoul(digits.c_str(), nullptr, 16));
        return v;
    }
    size_t colon = low.find(':');
    if (low.rfind("hex", 0) == 0 && colon != std::string::npos) {
        v.type = kRegBinary;
        if (colon > 3) {
            char* end = nullptr;
            const std::string kind = low.substr(3, colon - 3);
            v.type = static_cast<int>(std::strtol(kind.c_str() + 1, &end, 16));
            if (kind.size() < 3 || kind.front() != '(' || end != kind.c_str() + kind.size() - 1 || kind.back() != ')') {
                why = "the hex(kind) of the value is not understood";
                return std::nullopt;
            }
        }
        auto bytes = ParsePairs(std::string_view(data).substr(colon + 1));
        if (!bytes) {
            why = "the hex value is not hexadecimal pairs";
            return std::nullopt;
        }
        if (v.type == kRegSz || v.type == kRegExpandSz)
            v.text = TextOfBytes(*bytes);
        else
            v.bytes = *bytes;
        return v;
    }
    why = "the value's data is not understood";
    return std::nullopt;
}

// Reads the text form; on a line it does not understand it stops with `why` set ("line N: ...").
bool Parse(const std::string& text, std::vector<Clave>& keys, std::string& why)
{
    const std::vector<std::string> lines = SplitLines(text);
    bool header = false;
    Clave* current = nullptr;
    for (size_t i = 0; i < lines.size(); ++i) {
        const size_t number = i + 1;
        std::string line = lines[i];
        // Long binary values go on over lines that end with "\".
        while (!line.empty() && line.back() == '\\' && line.find("=hex") != std::string::npos &&
               i + 1 < lines.size()) {
            line.pop_back();
            const std::string& next = lines[++i];
            line += next.substr(std::min(next.find_first_not_of(" \t"), next.size()));
        }
        if (line.empty() || line[0] == ';')
            continue;
        auto fail = [&](const std::string& what) {
            why = "line " + std::to_string(number) + ": " + what;
            return false;
        };
        if (!header) {
            if (line != "REGEDIT4" && line != "Windows Registry Editor Version 5.00")
                return fail("the file does not begin with REGEDIT4");
            header = true;
            continue;
        }
        if (line[0] == '[') {
            auto path = line.back() == ']' ? Canonical(line.substr(1, line.size() - 2)) : std::nullopt;
            if (!path)
                return fail(line + " is not a [key] with a known root");
            current = &MakeKey(keys, *path);
            continue;
        }
        if (!current)
            return fail("a value comes before any [key]");
        std::string what;
        auto v = ParseValue(line, what);
        if (!v)
            return fail(what);
        if (ValorReg* old = FindValue(*current, v->name))
            *old = *v;
        else
            current->values.push_back(*v);
    }
    return true;
}

// The folders of the desktop (xdg-user-dirs) that match the shell folders of the registry.
std::string HomeDir()
{
    const char* h = std::getenv("HOME");
    return h && *h ? h : "/";
}

std::string XdgBase(const char* variable, const char* fallback)
{
    if (const char* x = std::getenv(variable); x && *x == '/')
        return x;
    return HomeDir() + "/" + fallback;
}

// A folder of $XDG_CONFIG_HOME/user-dirs.dirs (XDG_DESKTOP_DIR="$HOME/Desktop").
std::string UserDir(const std::string& variable, const std::string& fallback)
{
    std::optional<std::string> bytes;
    try {
        bytes = ReadFileIfExists(XdgBase("XDG_CONFIG_HOME", ".config") + "/user-dirs.dirs");
    } catch (const FileError&) {
    }
    if (bytes) {
        const std::string key = variable + "=\"";
        for (const std::string& line : SplitLines(*bytes)) {
            if (line.rfind(key, 0) != 0 || line.size() < key.size() + 1 || line.back() != '"')
                continue;
            std::string value = line.substr(key.size(), line.size() - key.size() - 1);
            if (value.rfind("$HOME", 0) == 0)
                value = HomeDir() + value.substr(5);
            if (!value.empty() && value[0] == '/')
                return value;
        }
    }
    return fallback;
}

std::string DesktopFolder(const std::string& name)
{
    const std::string home = HomeDir();
    struct Row {
        const char* name;
        const char* variable;
    };
    static const Row userDirs[] = {
        {"Desktop", "XDG_DESKTOP_DIR"},     {"Personal", "XDG_DOCUMENTS_DIR"}, {"My Pictures", "XDG_PICTURES_DIR"},
        {"My Music", "XDG_MUSIC_DIR"},      {"My Video", "XDG_VIDEOS_DIR"},   {"Templates", "XDG_TEMPLATES_DIR"},
    };
    for (const auto& r : userDirs)
        if (Same(name, r.name))
            return UserDir(r.variable, Same(name, "Desktop") ? home + "/Desktop" : home);
    if (Same(name, "AppData"))
        return XdgBase("XDG_CONFIG_HOME", ".config");
    if (Same(name, "Local AppData"))
        return XdgBase("XDG_DATA_HOME", ".local/share");
    if (Same(name, "Cache"))
        return XdgBase("XDG_CACHE_HOME", ".cache");
    if (Same(name, "Fonts"))
        return XdgBase("XDG_DATA_HOME", ".local/share") + "/fonts";
    return {};
}

// The item at `index` (from 0), or null past either end.
const std::string* ItemAt(const std::vector<std::string>& items, int index)
{
    return index >= 0 && index < static_cast<int>(items.size()) ? &items[static_cast<size_t>(index)] : nullptr;
}

}  // namespace

std::string TextoValorReg(const ValorReg& v)
{
    switch (v.type) {
    case kRegSz:
    case kRegExpandSz:
        return v.text;
    case kRegDword: {
        char buf[40];
        std::snprintf(buf, sizeof buf, "0x%08X (%u)", v.number, v.number);
        return buf;
    }
    case kRegMultiSz: {
        std::string out;
        size_t pos = 0;
        while (pos < v.bytes.size() && v.bytes[pos] != '\0') {
            const size_t end = std::min(v.bytes.find('\0', pos), v.bytes.size());
            out += (out.empty() ? "" : "; ") + Cp1252ToUtf8(v.bytes.substr(pos, end - pos));
            pos = end + 1;
        }
        return out;
    }
    default:
        return HexPairs(v.bytes, ' ');
    }
}

cQueryRegLinux::cQueryRegLinux(std::string file) : file_(file.empty() ? DefaultPath() : std::move(file)) {}

std::string cQueryRegLinux::DefaultPath()
{
    return (fs::path(IniSettings::DefaultPath()).parent_path() / "Registro.reg").string();
}

bool cQueryRegLinux::RaizDe(std::string_view key, RaizReg& root, std::string& subkey)
{
    for (const auto& r : kRoots)
        for (std::string_view name : {std::string_view(r.shortName), std::string_view(r.longName)}) {
            if (key.size() < name.size() || !Same(key.substr(0, name.size()), name))
                continue;
            if (key.size() > name.size() && key[name.size()] != '\\')
                continue;
            root = r.root;
            subkey = std::string(key.substr(std::min(key.size(), name.size() + 1)));
            return true;
        }
    return false;
}

std::string cQueryRegLinux::NombreRaiz(RaizReg root)
{
    for (const auto& r : kRoots)
        if (r.root == root)
            return r.longName;
    return {};
}

bool cQueryRegLinux::Load(std::vector<Clave>& keys)
{
    keys.clear();
    std::optional<std::string> bytes;
    try {
        bytes = ReadFileIfExists(file_);
    } catch (const FileError& e) {
        error_ = e.what();
        return false;
    }
    if (!bytes)
        return true;
    std::string why;
    if (!Parse(Cp1252ToUtf8(*bytes), keys, why)) {
        error_ = file_ + ": " + why + "; the file is left as it is";
        return false;
    }
    return true;
}

bool cQueryRegLinux::Save(const std::vector<Clave>& keys)
{
    try {
        std::error_code ec;
        fs::create_directories(fs::path(file_).parent_path(), ec);
        WriteFileAtomic(file_, ToDiskText(Serialize(keys)));
    } catch (const FileError& e) {
        error_ = e.what();
        return false;
    }
    return true;
}

// Loads, applies `change` (which says whether it changed anything) and saves. A file that could
// not be read whole is not written over.
template <class Change>
bool cQueryRegLinux::Modify(Change change)
{
    std::vector<Clave> keys;
    if (!Load(keys))
        return false;
    if (!change(keys))
        return false;
    return Save(keys);
}

std::optional<std::string> cQueryRegLinux::LoadFor(const std::string& key, std::vector<Clave>& keys)
{
    auto path = Canonical(key);
    if (path)
        Load(keys);
    return path;
}

std::optional<ValorReg> cQueryRegLinux::QueryRegBase(const std::string& key, const std::string& name)
{
    std::vector<Clave> keys;
    auto path = LoadFor(key, keys);
    if (!path)
        return std::nullopt;
    Clave* k = FindKey(keys, *path);
    ValorReg* v = k ? FindValue(*k, name) : nullptr;
    if (!v)
        return std::nullopt;
    return *v;
}

uint32_t cQueryRegLinux::GetRegDWord(const std::string& key, const std::string& name)
{
    auto v = QueryRegBase(key, name);
    return v && v->type == kRegDword ? v->number : 0;
}

std::string cQueryRegLinux::GetReg(const std::string& key, const std::string& name)
{
    auto v = QueryRegBase(key, name);
    return v ? TextoValorReg(*v) : std::string();
}

std::string cQueryRegLinux::GetRegBinary(const std::string& key, const std::string& name)
{
    auto v = QueryRegBase(key, name);
    return v && v->type == kRegBinary ? HexPairs(v->bytes, ' ') : std::string();
}

std::string cQueryRegLinux::GetRegString(const std::string& key, const std::string& name)
{
    auto v = QueryRegBase(key, name);
    return v && (v->type == kRegSz || v->type == kRegExpandSz) ? v->text : std::string();
}

long cQueryRegLinux::OpenKeyEx(const std::string& key)
{
    std::vector<Clave> keys;
    auto path = LoadFor(key, keys);
    if (!path || !KeyExists(keys, *path))
        return 0;
    open_[nextHandle_] = *path;
    return nextHandle_++;
}

std::string cQueryRegLinux::HandlePath(long handle) const
{
    auto it = open_.find(handle);
    return it == open_.end() ? std::string() : it->second;
}

std::string cQueryRegLinux::OpenKeyQuery(const std::string& key, const std::string& name)
{
    const long h = OpenKeyEx(key);
    if (h == 0)
        return {};
    const std::string text = GetReg(HandlePath(h), name);
    CloseKey(h);
    return text;
}

std::string cQueryRegLinux::EnumValueString(long handle, int index)
{
    auto names = EnumValues(HandlePath(handle));
    return ItemAt(names, index) ? GetReg(HandlePath(handle), *ItemAt(names, index)) : std::string();
}

std::string cQueryRegLinux::EnumValue(long handle, int index)
{
    auto names = EnumValues(HandlePath(handle));
    return ItemAt(names, index) ? *ItemAt(names, index) : std::string();
}

void cQueryRegLinux::CloseKey(long handle) { open_.erase(handle); }

bool cQueryRegLinux::QueryInfoKey(long handle, int& subKeys, int& values)
{
    const std::string path = HandlePath(handle);
    if (path.empty())
        return false;
    subKeys = static_cast<int>(EnumKeys(path).size());
    values = static_cast<int>(EnumValues(path).size());
    return true;
}

std::string cQueryRegLinux::EnumKeyEx(long handle, int index)
{
    auto names = EnumKeys(HandlePath(handle));
    return ItemAt(names, index) ? *ItemAt(names, index) : std::string();
}

std::string cQueryRegLinux::ShellFolders(const std::string& name)
{
    std::string folder = GetRegString(kShellFolders, name);
    return folder.empty() ? DesktopFolder(name) : folder;
}

std::string cQueryRegLinux::GetFolder(const std::string& name)
{
    // The system's own folders: its root, and where its shared libraries lie.
    if (Same(name, "WindowsDir"))
        return "/";
    if (Same(name, "SystemDir"))
        return "/usr/lib/";
    return ShellFolders(name);
}

bool cQueryRegLinux::SetReg(const std::string& key, const std::string& name, const std::string& text, int type)
{
    auto path = Canonical(key);
    if (!path)
        return false;
    ValorReg v;
    v.name = name;
    v.type = type;
    if (type == kRegSz || type == kRegExpandSz) {
        v.text = text;
    } else if (type == kRegDword) {
        // "0x000000FF (255)", "0xFF" or "255".
        const std::string low = Lower(text.substr(0, text.find(' ')));
        char* end = nullptr;
        const bool hex = low.rfind("0x", 0) == 0;
        const char* digits = low.c_str() + (hex ? 2 : 0);
        const unsigned long long n = std::strtoull(digits, &end, hex ? 16 : 10);
        if (end == digits || *end != '\0' || *digits == '-' || n > 0xFFFFFFFFull)
            return false;
        v.number = static_cast<uint32_t>(n);
    } else {
        auto bytes = ParsePairs(text);
        if (!bytes)
            return false;
        v.bytes = *bytes;
    }
    return Modify([&](std::vector<Clave>& keys) {
        Clave& k = MakeKey(keys, *path);
        if (ValorReg* old = FindValue(k, name))
            *old = v;
        else
            k.values.push_back(v);
        return true;
    });
}

bool cQueryRegLinux::RegSetValue2(const std::string& key, const std::string& name, const std::string& text)
{
    return SetReg(key, name, text, kRegSz);
}

bool cQueryRegLinux::DeleteKey(const std::string& key)
{
    auto path = Canonical(key);
    if (!path || IsRoot(*path))
        return false;
    return Modify([&](std::vector<Clave>& keys) {
        if (!KeyExists(keys, *path) || !Children(keys, *path).empty())
            return false;
        std::erase_if(keys, [&](const Clave& k) { return Same(k.path, *path); });
        return true;
    });
}

bool cQueryRegLinux::DeleteKeyWin95(const std::string& key)
{
    auto path = Canonical(key);
    if (!path || IsRoot(*path))
        return false;
    return Modify([&](std::vector<Clave>& keys) {
        if (!KeyExists(keys, *path))
            return false;
        std::erase_if(keys, [&](const Clave& k) { return Same(k.path, *path) || Below(k.path, *path); });
        return true;
    });
}

bool cQueryRegLinux::AsociarExt(const std::string& extension, const std::string& progID, const std::string& description,
                           const std::string& command)
{
    if (extension.empty() || progID.empty())
        return false;
    const std::string ext = extension[0] == '.' ? extension : "." + extension;
    const std::string id = "HKEY_CLASSES_ROOT\\" + progID;
    return SetReg("HKEY_CLASSES_ROOT\\" + ext, "", progID) && SetReg(id, "", "Descripción de " + description) &&
           SetReg(id + "\\shell\\open\\command", "", command + " %1");
}

bool cQueryRegLinux::DesasociarExt(const std::string& extension, const std::string& progID)
{
    if (extension.empty() || progID.empty())
        return false;
    const std::string ext = extension[0] == '.' ? extension : "." + extension;
    const std::string id = "HKEY_CLASSES_ROOT\\" + progID;
    bool all = true;
    for (const std::string& k : {id + "\\shell\\open\\command", id + "\\shell\\open", id + "\\shell", id,
                                 "HKEY_CLASSES_ROOT\\" + ext})
        all = DeleteKey(k) && all;
    return all;
}

std::vector<std::string> cQueryRegLinux::EnumKeys(const std::string& key)
{
    std::vector<Clave> keys;
    auto path = LoadFor(key, keys);
    return path ? Children(keys, *path) : std::vector<std::string>();
}

std::vector<std::string> cQueryRegLinux::EnumValues(const std::string& key)
{
    std::vector<Clave> keys;
    auto path = LoadFor(key, keys);
    std::vector<std::string> out;
    if (Clave* k = path ? FindKey(keys, *path) : nullptr)
        for (const auto& v : k->values)
            out.push_back(v.name);
    return out;
}

bool cQueryRegLinux::RegSaveKey(const std::string& key, const std::string& file)
{
    std::vector<Clave> keys;
    auto path = LoadFor(key, keys);
    if (!path || !KeyExists(keys, *path))
        return false;
    try {
        WriteFileAtomic(file, ToDiskText(Serialize(keys, *path)));
    } catch (const FileError& e) {
        error_ = e.what();
        return false;
    }
    return true;
}

}  // namespace vardena
