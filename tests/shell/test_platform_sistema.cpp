#include <gtest/gtest.h>

#include <algorithm>

#include "shell/linux/InfoSistemaLinux.h"
#include "shell/linux/ServiciosLinux.h"

namespace vardena {
namespace {

const std::vector<std::string> kKinds = {"Disquete", "Disco duro", "Disco de red", "CD-ROM", "Disco RAM"};

TEST(SistemaLinux, FactsOfThisMachineArePlausible)
{
    Platform p;
    InstalaServiciosLinux(p);
    ASSERT_TRUE(p.system && p.shell && p.recycleBin);
    EXPECT_FALSE(p.settings);
    const SystemFacts f = p.system->Facts();
    EXPECT_FALSE(f.systemName.empty());
    EXPECT_FALSE(f.systemVersion.empty());
    EXPECT_FALSE(f.build.empty());
    EXPECT_FALSE(f.processor.empty());
    EXPECT_GE(f.cpuCount, 1);
    EXPECT_GT(f.memoryTotal, 16ull << 20);
    EXPECT_LE(f.memoryFree, f.memoryTotal);
    EXPECT_GE(f.virtualTotal, f.memoryTotal);
    EXPECT_LE(f.virtualFree, f.virtualTotal);
    ASSERT_FALSE(f.drives.empty());
    bool root = false;
    for (const auto& d : f.drives) {
        EXPECT_NE(std::find(kKinds.begin(), kKinds.end(), d.kind), kKinds.end()) << d.mount << " " << d.kind;
        EXPECT_LE(d.freeBytes, d.totalBytes) << d.mount;
        EXPECT_NE(d.mount.rfind("/proc", 0), 0u) << d.mount;
        EXPECT_NE(d.mount.rfind("/sys", 0), 0u) << d.mount;
        root = root || (d.mount == "/" && d.totalBytes > 0);
    }
    EXPECT_TRUE(root);
}

TEST(SistemaLinux, MountsAreReadWithTheirEscapesAndSorted)
{
    const auto m = LeeMontajes("/dev/sda1 / ext4 rw 0 0\n"
                               "/dev/sdb1 /media/ana/MI\\040DISCO vfat rw 0 0\n"
                               "server:/obras /mnt/obras nfs4 rw 0 0\n"
                               "\n"
                               "proc /proc proc rw 0 0\n");
    ASSERT_EQ(m.size(), 4u);
    EXPECT_EQ(m[1].carpeta, "/media/ana/MI DISCO");
    EXPECT_EQ(m[1].tipo, "vfat");
    EXPECT_EQ(m[2].dispositivo, "server:/obras");

    struct Row {
        Montaje m;
        bool removable;
        bool system;
        TipoUnidad kind;
    };
    const std::vector<Row> rows = {
        {{"/dev/sda1", "/", "ext4"}, false, false, TipoUnidad::Fijo},
        {{"/dev/sdb1", "/media/x", "vfat"}, true, false, TipoUnidad::Extraible},
        {{"/dev/sr0", "/media/cd", "iso9660"}, true, false, TipoUnidad::CdRom},
        {{"/dev/loop0", "/mnt/img", "udf"}, false, false, TipoUnidad::CdRom},
        {{"server:/x", "/mnt/x", "nfs"}, false, false, TipoUnidad::Red},
        {{"//srv/obras", "/mnt/smb", "cifs"}, false, false, TipoUnidad::Red},
        {{"ana@srv:", "/mnt/ssh", "fuse.sshfs"}, false, false, TipoUnidad::Red},
        {{"tmpfs", "/tmp", "tmpfs"}, false, false, TipoUnidad::Ram},
        {{"tmpfs", "/run/user/1000", "tmpfs"}, false, true, TipoUnidad::Ram},
        {{"/dev/sdc1", "/run/media/ana/USB", "exfat"}, true, false, TipoUnidad::Extraible},
        {{"tmpfs", "/dev/shm", "tmpfs"}, false, true, TipoUnidad::Ram},
        {{"proc", "/proc", "proc"}, false, true, TipoUnidad::Fijo},
        {{"sysfs", "/sys", "sysfs"}, false, true, TipoUnidad::Fijo},
        {{"cgroup2", "/sys/fs/cgroup", "cgroup2"}, false, true, TipoUnidad::Fijo},
        {{"/dev/loop1", "/snap/core/1", "squashfs"}, false, true, TipoUnidad::Fijo},
        {{"overlay", "/", "overlay"}, false, false, TipoUnidad::Fijo},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(EsMontajeDeSistema(r.m), r.system) << r.m.carpeta;
        if (!r.system) {
            EXPECT_EQ(TipoDeMontaje(r.m, r.removable), r.kind) << r.m.carpeta;
        }
    }
    EXPECT_EQ(NombreTipoUnidad(TipoUnidad::Red), "Disco de red");
}

TEST(SistemaLinux, ProcessorMemoryAndSystemTexts)
{
    int n = 0;
    EXPECT_EQ(ProcesadorDeCpuinfo("processor\t: 0\nvendor_id\t: GenuineIntel\nmodel name\t: Intel(R) Core(TM) "
                                  "i5\n\nprocessor\t: 1\nmodel name\t: Intel(R) Core(TM) i5\n",
                                  &n),
              "Intel(R) Core(TM) i5");
    EXPECT_EQ(n, 2);
    EXPECT_EQ(ProcesadorDeCpuinfo("processor : 0\nProcessor : 0\nHardware : BCM2835\n", &n), "BCM2835");
    EXPECT_EQ(ProcesadorDeCpuinfo("", &n), "");
    EXPECT_EQ(n, 0);

    const MemoriaLinux m = MemoriaDeMeminfo("MemTotal:       16000 kB\nMemFree:  1000 kB\nMemAvailable:   8000 kB\n"
                                            "SwapTotal:  2000 kB\nSwapFree:  500 kB\n");
    EXPECT_EQ(m.total, 16000ull * 1024);
    EXPECT_EQ(m.libre, 8000ull * 1024);
    EXPECT_EQ(m.virtualTotal, 18000ull * 1024);
    EXPECT_EQ(m.virtualLibre, 8500ull * 1024);
    // Old kernels have no MemAvailable.
    EXPECT_EQ(MemoriaDeMeminfo("MemTotal: 10 kB\nMemFree: 1 kB\nBuffers: 2 kB\nCached: 3 kB\n").libre, 6ull * 1024);

    const auto os = LeeOsRelease("# comment\nNAME=\"Debian GNU/Linux\"\nVERSION_ID='12'\nID=debian\n"
                                 "PRETTY_NAME=\"Say \\\"hi\\\"\"\n");
    EXPECT_EQ(os.at("NAME"), "Debian GNU/Linux");
    EXPECT_EQ(os.at("VERSION_ID"), "12");
    EXPECT_EQ(os.at("ID"), "debian");
    EXPECT_EQ(os.at("PRETTY_NAME"), "Say \"hi\"");
}

}  // namespace
}  // namespace vardena
