#include "shell/linux/InfoSistemaLinux.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>
#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>

#include "shell/linux/TextoLinux.h"
#include "base/FileIo.h"

namespace vardena {

namespace {

namespace fs = std::filesystem;

std::string ReadOrEmpty(const std::string& path)
{
    try {
        return ReadFileIfExists(path).value_or("");
    } catch (const FileError&) {
        return {};
    }
}

std::string Trim(std::string_view s)
{
    const auto b = s.find_first_not_of(" \t\r\n");
    if (b == std::string_view::npos)
        return {};
    const auto e = s.find_last_not_of(" \t\r\n");
    return std::string(s.substr(b, e - b + 1));
}

// The names in /dev/disk/by-label escape bytes as "\xHH".
std::string UnescapeUdev(const std::string& s)
{
    std::string out;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\\' && i + 3 < s.size() && s[i + 1] == 'x' && DigitoHex(s[i + 2]) >= 0 &&
            DigitoHex(s[i + 3]) >= 0) {
            out += static_cast<char>(DigitoHex(s[i + 2]) * 16 + DigitoHex(s[i + 3]));
            i += 3;
        } else {
            out += s[i];
        }
    }
    return out;
}

std::string RealPath(const std::string& p)
{
    std::error_code ec;
    auto r = fs::canonical(p, ec);
    return ec ? std::string() : r.string();
}

// The entry of a /dev/disk/by-* folder that names `device`.
std::string DiskName(const std::string& folder, const std::string& device)
{
    if (device.empty())
        return {};
    std::error_code ec;
    for (const auto& e : fs::directory_iterator(folder, ec))
        if (RealPath(e.path().string()) == device)
            return UnescapeUdev(e.path().filename().string());
    return {};
}

// Removable disks say so in /sys; disks on a USB bus count as removable too.
bool IsRemovable(const std::string& device)
{
    if (device.rfind("/dev/", 0) != 0)
        return false;
    fs::path node = "/sys/class/block/" + fs::path(device).filename().string();
    std::error_code ec;
    fs::path real = fs::canonical(node, ec);
    if (ec)
        return false;
    if (fs::exists(real / "partition", ec))
        real = real.parent_path();
    if (Trim(ReadOrEmpty((real / "removable").string())) == "1")
        return true;
    return real.string().find("/usb") != std::string::npos;
}

bool OneOf(std::string_view v, std::initializer_list<std::string_view> set)
{
    return std::find(set.begin(), set.end(), v) != set.end();
}

bool Under(const std::string& path, std::string_view folder)
{
    return path == folder || (path.rfind(folder, 0) == 0 && path.size() > folder.size() && path[folder.size()] == '/');
}

unsigned long long MeminfoKb(const std::map<std::string, unsigned long long>& m, const std::string& k)
{
    auto it = m.find(k);
    return it == m.end() ? 0 : it->second;
}

}  // namespace

std::string NombreTipoUnidad(TipoUnidad t)
{
    switch (t) {
    case TipoUnidad::Extraible:
        return "Disquete";
    case TipoUnidad::Fijo:
        return "Disco duro";
    case TipoUnidad::Red:
        return "Disco de red";
    case TipoUnidad::CdRom:
        return "CD-ROM";
    case TipoUnidad::Ram:
        return "Disco RAM";
    }
    return {};
}

std::map<std::string, std::string> LeeOsRelease(const std::string& text)
{
    std::map<std::string, std::string> out;
    for (const auto& raw : SplitLines(text)) {
        const std::string line = Trim(raw);
        const auto eq = line.find('=');
        if (line.empty() || line[0] == '#' || eq == std::string::npos)
            continue;
        std::string v = line.substr(eq + 1);
        if (v.size() >= 2 && (v.front() == '"' || v.front() == '\'') && v.back() == v.front()) {
            std::string u;
            for (size_t i = 1; i + 1 < v.size(); ++i) {
                if (v[i] == '\\' && i + 2 < v.size())
                    ++i;
                u += v[i];
            }
            v = u;
        }
        out[line.substr(0, eq)] = v;
    }
    return out;
}

std::string ProcesadorDeCpuinfo(const std::string& text, int* count)
{
    std::map<std::string, std::string> first;
    int n = 0;
    for (const auto& line : SplitLines(text)) {
        const auto colon = line.find(':');
        if (colon == std::string::npos)
            continue;
        const std::string key = Trim(line.substr(0, colon));
        if (key == "processor")
            ++n;
        first.emplace(key, Trim(line.substr(colon + 1)));
    }
    if (count)
        *count = n;
    for (const char* key : {"model name", "Hardware", "Processor", "cpu model", "cpu"}) {
        auto it = first.find(key);
        // On ARM "Processor" may be the number of the core; a name has letters.
        if (it != first.end() && std::any_of(it->second.begin(), it->second.end(),
                                              [](unsigned char c) { return std::isalpha(c) != 0; }))
            return it->second;
    }
    return {};
}

MemoriaLinux MemoriaDeMeminfo(const std::string& text)
{
    std::map<std::string, unsigned long long> kb;
    for (const auto& line : SplitLines(text)) {
        const auto colon = line.find(':');
        if (colon != std::string::npos)
            kb[line.substr(0, colon)] = std::strtoull(line.c_str() + colon + 1, nullptr, 10);
    }
    MemoriaLinux m;
    m.total = MeminfoKb(kb, "MemTotal") * 1024;
    m.libre = (kb.count("MemAvailable") ? MeminfoKb(kb, "MemAvailable")
                                        : MeminfoKb(kb, "MemFree") + MeminfoKb(kb, "Buffers") +
                                              MeminfoKb(kb, "Cached")) *
              1024;
    m.virtualTotal = m.total + MeminfoKb(kb, "SwapTotal") * 1024;
    m.virtualLibre = m.libre + MeminfoKb(kb, "SwapFree") * 1024;
    return m;
}

std::vector<Montaje> LeeMontajes(const std::string& text)
{
    auto unescape = [](const std::string& s) {
        std::string out;
        for (size_t i = 0; i < s.size(); ++i) {
            if (s[i] == '\\' && i + 3 < s.size() && s[i + 1] >= '0' && s[i + 1] <= '3' && s[i + 2] >= '0' &&
                s[i + 2] <= '7' && s[i + 3] >= '0' && s[i + 3] <= '7') {
                out += static_cast<char>((s[i + 1] - '0') * 64 + (s[i + 2] - '0') * 8 + (s[i + 3] - '0'));
                i += 3;
            } else {
                out += s[i];
            }
        }
        return out;
    };
    std::vector<Montaje> out;
    for (const auto& line : SplitLines(text)) {
        std::istringstream in(line);
        std::string dev, dir, type;
        if (in >> dev >> dir >> type)
            out.push_back({unescape(dev), unescape(dir), type});
    }
    return out;
}

bool EsMontajeDeSistema(const Montaje& m)
{
    if (OneOf(m.tipo, {"proc", "sysfs", "devtmpfs", "devpts", "cgroup", "cgroup2", "securityfs", "pstore", "debugfs",
                       "tracefs", "configfs", "fusectl", "mqueue", "hugetlbfs", "bpf", "autofs", "binfmt_misc",
                       "efivarfs", "rpc_pipefs", "nsfs", "selinuxfs", "squashfs", "nfsd", "fuse.gvfsd-fuse",
                       "fuse.portal", "fuse.lxcfs", "devfs", "usbfs"}))
        return true;
    for (std::string_view sys : {"/proc", "/sys", "/dev"})
        if (Under(m.carpeta, sys))
            return true;
    return OneOf(m.tipo, {"tmpfs", "ramfs"}) && Under(m.carpeta, "/run");
}

TipoUnidad TipoDeMontaje(const Montaje& m, bool extraible)
{
    if (OneOf(m.tipo, {"nfs", "nfs4", "cifs", "smb3", "smbfs", "ncpfs", "afs", "9p", "ceph", "glusterfs",
                       "fuse.sshfs", "sshfs", "fuse.davfs2", "davfs", "fuse.rclone"}))
        return TipoUnidad::Red;
    if (OneOf(m.tipo, {"iso9660", "udf"}) || m.dispositivo.rfind("/dev/sr", 0) == 0)
        return TipoUnidad::CdRom;
    if (OneOf(m.tipo, {"tmpfs", "ramfs"}))
        return TipoUnidad::Ram;
    return extraible ? TipoUnidad::Extraible : TipoUnidad::Fijo;
}

SystemFacts SistemaLinux::Facts()
{
    SystemFacts f;
    struct utsname u {};
    const bool haveUname = ::uname(&u) == 0;

    std::string osText = ReadOrEmpty("/etc/os-release");
    if (osText.empty())
        osText = ReadOrEmpty("/usr/lib/os-release");
    const auto os = LeeOsRelease(osText);
    auto osValue = [&](const char* k) {
        auto it = os.find(k);
        return it == os.end() ? std::string() : it->second;
    };
    f.systemName = osValue("NAME");
    f.systemVersion = osValue("VERSION_ID");
    if (haveUname) {
        if (f.systemName.empty())
            f.systemName = u.sysname;
        f.build = u.release;
        f.servicePack = u.version;
        if (f.systemVersion.empty()) {
            const std::string rel = u.release;
            f.systemVersion = rel.substr(0, rel.find('.', rel.find('.') + 1));
        }
    }

    f.processor = ProcesadorDeCpuinfo(ReadOrEmpty("/proc/cpuinfo"), &f.cpuCount);
    if (f.processor.empty() && haveUname)
        f.processor = u.machine;
    if (f.cpuCount == 0)
        f.cpuCount = static_cast<int>(std::max(1L, ::sysconf(_SC_NPROCESSORS_ONLN)));

    const MemoriaLinux mem = MemoriaDeMeminfo(ReadOrEmpty("/proc/meminfo"));
    f.memoryTotal = mem.total;
    f.memoryFree = mem.libre;
    f.virtualTotal = mem.virtualTotal;
    f.virtualFree = mem.virtualLibre;

    // A later mount over the same folder hides the earlier one.
    std::vector<Montaje> mounts;
    for (const auto& m : LeeMontajes(ReadOrEmpty("/proc/mounts"))) {
        std::erase_if(mounts, [&](const Montaje& o) { return o.carpeta == m.carpeta; });
        mounts.push_back(m);
    }
    for (const auto& m : mounts) {
        std::error_code ec;
        if (EsMontajeDeSistema(m) || !fs::is_directory(m.carpeta, ec))
            continue;  // bind mounts of single files are no drive either
        DriveFact d;
        d.mount = m.carpeta;
        const std::string device = m.dispositivo.rfind("/dev/", 0) == 0 ? RealPath(m.dispositivo) : std::string();
        d.kind = NombreTipoUnidad(TipoDeMontaje(m, IsRemovable(device)));
        d.label = DiskName("/dev/disk/by-label", device);
        d.serial = DiskName("/dev/disk/by-uuid", device);
        struct statvfs sv {};
        if (::statvfs(m.carpeta.c_str(), &sv) == 0) {
            d.freeBytes = static_cast<unsigned long long>(sv.f_bavail) * sv.f_frsize;
            d.totalBytes = static_cast<unsigned long long>(sv.f_blocks) * sv.f_frsize;
        }
        f.drives.push_back(std::move(d));
    }
    return f;
}

}  // namespace vardena
