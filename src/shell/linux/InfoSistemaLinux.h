#pragma once
// Facts about a Linux machine for the system report: the system from /etc/os-release and uname,
// the processor from /proc/cpuinfo, memory from /proc/meminfo, and the mounted volumes from
// /proc/mounts, with their kind, label, serial and space. Pseudo file systems are left out.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Platform.h"

namespace vardena {

// The drive kinds of the system report, with their texts.
enum class TipoUnidad { Extraible, Fijo, Red, CdRom, Ram };
// "Disquete", "Disco duro", "Disco de red", "CD-ROM", "Disco RAM".
std::string NombreTipoUnidad(TipoUnidad t);

// The text of the system's files, parsed; kept apart so that they can be fed any text.

// KEY=value lines, quotes and backslash escapes taken off the values.
std::map<std::string, std::string> LeeOsRelease(const std::string& text);

// The processor's name (the first "model name", else "Hardware", "Processor", "cpu model") and the
// count of "processor" entries; an empty name when none is there.
std::string ProcesadorDeCpuinfo(const std::string& text, int* count = nullptr);

struct MemoriaLinux {
    unsigned long long total = 0;
    unsigned long long libre = 0;  // what programs can still have: MemAvailable
    unsigned long long virtualTotal = 0;
    unsigned long long virtualLibre = 0;
};
// Bytes, from the kB figures of /proc/meminfo.
MemoriaLinux MemoriaDeMeminfo(const std::string& text);

struct Montaje {
    std::string dispositivo;
    std::string carpeta;
    std::string tipo;  // the file system type
};
// The lines of /proc/mounts, with the octal escapes (\040 for a blank) taken off.
std::vector<Montaje> LeeMontajes(const std::string& text);

// True for the file systems of the kernel and the system (proc, sysfs, cgroup...) and for the
// RAM file systems under /dev, /run, /proc and /sys: they are no drive of the user.
bool EsMontajeDeSistema(const Montaje& m);

// The kind of a volume by its file system type, its device and whether the device is removable.
TipoUnidad TipoDeMontaje(const Montaje& m, bool extraible);

class SistemaLinux : public SystemInfo {
public:
    SystemFacts Facts() override;
};

}  // namespace vardena
