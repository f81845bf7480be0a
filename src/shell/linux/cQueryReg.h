#pragma once
// The registry of the program. Linux has none, so keys and values live in a file of the settings
// folder, "Registro.reg" beside the settings INI, in the text form of the Windows registry editor
// (REGEDIT4, Windows-1252, CR LF): a [HKEY_CURRENT_USER\Software\...] line per key, then its values
// as @="text" (the key's default), "name"="text", "name"=dword:000000ff and "name"=hex:01,02.
// Keys are named with a root in front, short or long ("HKCU\Software" and
// "HKEY_CURRENT_USER\Software" are the same key) and compared without regard to case.
// Registry functions answer a text or an empty text, and report no error; a file that cannot be
// read whole is never written over, and Error() tells why.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/cQueryReg.h"

namespace vardena {

enum class RaizReg { ClassesRoot, CurrentUser, LocalMachine, Users, CurrentConfig, DynData, PerformanceData };

// The text of a value: a text as it is; a DWORD as "0x" + 8 hexadecimal digits + " (" + decimal
// + ")"; a multi-text as its items joined by "; "; any other kind as hexadecimal pairs cut by blanks.
std::string TextoValorReg(const ValorReg& v);

class cQueryRegLinux : public cQueryReg {
public:
    // `file` empty: DefaultPath().
    explicit cQueryRegLinux(std::string file = {});
    // "Registro.reg" in the folder of IniSettings::DefaultPath().
    static std::string DefaultPath();

    // Splits a key text into its root and the rest: "HKCU\", "HKEY_CURRENT_USER\" and the other
    // roots, short or long, any case, alone or followed by "\". False for an unknown root.
    static bool RaizDe(std::string_view key, RaizReg& root, std::string& subkey);
    // The long name of a root: "HKEY_CURRENT_USER".
    static std::string NombreRaiz(RaizReg root);

    // ---- Reading ----
    // The number of a DWORD value; 0 when there is none.
    uint32_t GetRegDWord(const std::string& key, const std::string& name);
    // The text of a value of any kind (TextoValorReg); empty when there is none.
    std::string GetReg(const std::string& key, const std::string& name);
    // A binary value as hexadecimal pairs cut by blanks; empty when there is none.
    std::string GetRegBinary(const std::string& key, const std::string& name);
    // A text value; empty when there is none or the value is of another kind.
    std::string GetRegString(const std::string& key, const std::string& name);
    // The value itself.
    std::optional<ValorReg> QueryRegBase(const std::string& key, const std::string& name);

    // ---- Open keys ----
    // A handle to an existing key, 0 when there is no such key.
    long OpenKeyEx(const std::string& key);
    // The text of a value read through an open handle of the key.
    std::string OpenKeyQuery(const std::string& key, const std::string& name);
    // The text and the name of the value at `index` (from 0) of an open key; empty past the end.
    std::string EnumValueString(long handle, int index);
    std::string EnumValue(long handle, int index);
    void CloseKey(long handle);
    // The counts of direct subkeys and of values of an open key.
    bool QueryInfoKey(long handle, int& subKeys, int& values);
    // The name of the direct subkey at `index` (from 0), in name order; empty past the end.
    std::string EnumKeyEx(long handle, int index);

    // ---- Folders ----
    // A folder of "HKEY_CURRENT_USER\...\Explorer\Shell Folders" ("Desktop", "Personal",
    // "AppData"...); where the registry has none, the desktop's own folder of that meaning.
    std::string ShellFolders(const std::string& name);
    // The same, with "WindowsDir" and "SystemDir" answered by the system's folders, ended by "/".
    std::string GetFolder(const std::string& name);

    // ---- Writing ----
    // Sets a text value, making the key and its parents.
    bool RegSetValue2(const std::string& key, const std::string& name, const std::string& text);
    // Sets a value of the given kind from its text: a DWORD from "255", "0xFF" or
    // "0x000000FF (255)"; a binary from hexadecimal pairs.
    bool SetReg(const std::string& key, const std::string& name, const std::string& text, int type = kRegSz);
    // Deletes a key that has no subkeys, with its values.
    bool DeleteKey(const std::string& key);
    // Deletes a key with all its subkeys.
    bool DeleteKeyWin95(const std::string& key);
    // Associates files ".ext" with a program: HKCR\.ext = progID, HKCR\progID = "Descripción de " +
    // description, HKCR\progID\shell\open\command = command + " %1".
    bool AsociarExt(const std::string& extension, const std::string& progID, const std::string& description,
                    const std::string& command);
    // Removes what AsociarExt wrote.
    bool DesasociarExt(const std::string& extension, const std::string& progID);

    // ---- Listing and export ----
    std::vector<std::string> EnumKeys(const std::string& key);
    std::vector<std::string> EnumValues(const std::string& key);
    // Writes the key and its subkeys to `file` in the same text form.
    bool RegSaveKey(const std::string& key, const std::string& file);

    const std::string& file() const { return file_; }
    // The last problem with the registry file, naming it; empty when there was none.
    const std::string& Error() const { return error_; }

    struct Clave {
        std::string path;  // long root name + "\" + subkey
        std::vector<ValorReg> values;
    };

private:
    bool Load(std::vector<Clave>& keys);
    // The key text as a path (nullopt for an unknown root), with `keys` loaded when it is one.
    std::optional<std::string> LoadFor(const std::string& key, std::vector<Clave>& keys);
    bool Save(const std::vector<Clave>& keys);
    template <class Change>
    bool Modify(Change change);
    std::string HandlePath(long handle) const;

    std::string file_;
    std::string error_;
    std::map<long, std::string> open_;
    long nextHandle_ = 1;
};

}  // namespace vardena
