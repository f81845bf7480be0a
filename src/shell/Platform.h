#pragma once
// The platform services the program uses, each behind a small interface, with the operation
// names the program has always used. Linux implementations live in shell/linux/.

#include <functional>
#include <memory>
#include <string>

#include "shell/cQueryReg.h"
#include <string_view>
#include <vector>

namespace vardena {

class Form;

// Settings: texts by (application, section, key). The program uses application "Vardena 3".
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::string GetSetting(std::string_view app, std::string_view section, std::string_view key,
                                   std::string_view defaultValue = "") = 0;
    virtual void SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                             std::string_view value) = 0;
};

// Settings kept in memory only: for tests and for runs that must not touch the user's settings.
class MemorySettings : public SettingsStore {
public:
    std::string GetSetting(std::string_view app, std::string_view section, std::string_view key,
                           std::string_view defaultValue = "") override;
    void SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                     std::string_view value) override;

private:
    std::vector<std::pair<std::string, std::string>> values_;
};

// Settings in an INI file: one [Application/Section] group per section, values as
// Windows-1252 text with CR LF line ends. The file is replaced through a temporary file.
class IniSettings : public SettingsStore {
public:
    explicit IniSettings(std::string path);
    // $VARDENA_SETTINGS when set, else $XDG_CONFIG_HOME/vardena/Vardena 3.ini
    // (~/.config when XDG_CONFIG_HOME is unset).
    static std::string DefaultPath();

    std::string GetSetting(std::string_view app, std::string_view section, std::string_view key,
                           std::string_view defaultValue = "") override;
    void SaveSetting(std::string_view app, std::string_view section, std::string_view key,
                     std::string_view value) override;
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

// The recycle bin: a removed file can always be restored by the user.
class RecycleBin {
public:
    virtual ~RecycleBin() = default;
    // Moves the file (or folder) to the recycle bin; false when it could not.
    virtual bool APapelera(const std::string& path) = 0;
    // Puts a copy of the file in the recycle bin and leaves the file where it is, so that the bin
    // keeps the version a replacement is about to overwrite; false when it could not. A bin that
    // can record where an entry came from records the file's own place, so that restoring the
    // copy puts it back there.
    virtual bool CopiaAPapelera(const std::string& path);
};

// Opening documents and mail through the desktop.
class ShellOpen {
public:
    virtual ~ShellOpen() = default;
    virtual bool AbreDocumento(const std::string& pathOrUrl) = 0;
    virtual bool AbreCorreo(const std::string& address) = 0;
};

// Facts about the machine for the system report.
struct DriveFact {
    std::string mount;
    std::string kind;   // "Fijo", "Extraíble", "Red", "CD-ROM", "RAM" ...
    std::string label;
    unsigned long long freeBytes = 0;
    unsigned long long totalBytes = 0;
    std::string serial;  // the volume's serial number (on Linux its file system UUID)
};
struct SystemFacts {
    std::string systemName;
    std::string systemVersion;
    std::string processor;
    unsigned long long memoryTotal = 0;
    unsigned long long memoryFree = 0;
    std::vector<DriveFact> drives;
    std::string build;        // the system's build (kernel release)
    std::string servicePack;  // the text beside the build (kernel version string)
    int cpuCount = 0;
    unsigned long long virtualTotal = 0;  // memory plus swap
    unsigned long long virtualFree = 0;
};
class SystemInfo {
public:
    virtual ~SystemInfo() = default;
    virtual SystemFacts Facts() = 0;
};

// Window services that only the desktop program has: it fills the hooks; without a screen they
// stay empty and the operations (PonEncima, InitCommonControlsEx) do nothing and succeed.
struct GuiHooks {
    std::function<bool(Form& window, bool on)> ponEncima;
    std::function<bool()> initCommonControls;
};

// The services of a running program, owned by the application.
struct Platform {
    std::unique_ptr<SettingsStore> settings;
    std::unique_ptr<cQueryReg> registry;
    std::unique_ptr<RecycleBin> recycleBin;
    std::unique_ptr<ShellOpen> shell;
    std::unique_ptr<SystemInfo> system;
    GuiHooks gui;
};

}  // namespace vardena
