#pragma once
// The registry wrapper: values by key and name, open keys, special folders, file associations.
// The program asks it for one thing, the user's documents folder at start-up ("Personal"), so
// the special folders are all a platform must give; every other operation has a default body
// that means "this platform has no registry":
//   reading         an empty text, 0, or nullopt;
//   open keys       handle 0 from OpenKeyEx, empty texts, QueryInfoKey false with both counts 0;
//   writing         false, and nothing is written (AsociarExt, SetReg, the deletions, RegSaveKey);
//   listing         empty lists.
// A platform with a registry overrides them. Keys are texts with the root in front, short or
// long ("HKCU\Software" or "HKEY_CURRENT_USER\Software").

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vardena {

// Value kinds by their registry numbers, as QueryRegBase reports them and SetReg takes them.
inline constexpr int kRegSz = 1;
inline constexpr int kRegExpandSz = 2;
inline constexpr int kRegBinary = 3;
inline constexpr int kRegDword = 4;
inline constexpr int kRegMultiSz = 7;

struct ValorReg {
    std::string name;     // "" for the key's default value
    int type = kRegSz;
    std::string text;     // kRegSz and kRegExpandSz, UTF-8
    uint32_t number = 0;  // kRegDword
    std::string bytes;    // every other kind, as stored
};

class cQueryReg {
public:
    virtual ~cQueryReg() = default;

    // ---- Reading: a DWORD's number, a value as text (a DWORD as "0x000000FF (255)", binary as
    // blank-separated hexadecimal pairs), a binary value, a text value, the value itself.
    virtual uint32_t GetRegDWord(const std::string& key, const std::string& name) { return 0; }
    virtual std::string GetReg(const std::string& key, const std::string& name) { return {}; }
    virtual std::string GetRegBinary(const std::string& key, const std::string& name) { return {}; }
    virtual std::string GetRegString(const std::string& key, const std::string& name) { return {}; }
    virtual std::optional<ValorReg> QueryRegBase(const std::string& key, const std::string& name)
    {
        return std::nullopt;
    }

    // ---- Open keys: a handle (0 when there is no such key), values and subkeys by index from 0,
    // empty past the end.
    virtual long OpenKeyEx(const std::string& key) { return 0; }
    virtual std::string OpenKeyQuery(const std::string& key, const std::string& name) { return {}; }
    virtual std::string EnumValueString(long handle, int index) { return {}; }
    virtual std::string EnumValue(long handle, int index) { return {}; }
    virtual void CloseKey(long handle) {}
    virtual bool QueryInfoKey(long handle, int& subKeys, int& values)
    {
        subKeys = 0;
        values = 0;
        return false;
    }
    virtual std::string EnumKeyEx(long handle, int index) { return {}; }

    // ---- Folders: every platform answers these.
    // A shell folder by its Windows name ("Personal", "Desktop", "AppData"...): the desktop's
    // folder of that meaning; empty for a name the platform does not know.
    virtual std::string ShellFolders(const std::string& name) = 0;
    // ShellFolders, plus "WindowsDir" and "SystemDir": the system's folders, ended by "/".
    virtual std::string GetFolder(const std::string& name) = 0;

    // ---- Writing. AsociarExt associates ".ext" files with a program (HKCR\.ext = progID,
    // HKCR\progID = "Descripción de " + description, its shell\open\command = command + " %1");
    // DesasociarExt removes that; DeleteKey takes a key without subkeys, DeleteKeyWin95 one with.
    virtual bool RegSetValue2(const std::string& key, const std::string& name, const std::string& text)
    {
        return false;
    }
    virtual bool AsociarExt(const std::string& extension, const std::string& progID, const std::string& description,
                            const std::string& command)
    {
        return false;
    }
    virtual bool DeleteKeyWin95(const std::string& key) { return false; }
    virtual bool DesasociarExt(const std::string& extension, const std::string& progID) { return false; }
    virtual bool SetReg(const std::string& key, const std::string& name, const std::string& text,
                        int type = kRegSz)
    {
        return false;
    }
    virtual bool DeleteKey(const std::string& key) { return false; }

    // ---- Listing and export: subkey and value names of a key; RegSaveKey writes a branch to a file.
    virtual std::vector<std::string> EnumKeys(const std::string& key) { return {}; }
    virtual std::vector<std::string> EnumValues(const std::string& key) { return {}; }
    virtual bool RegSaveKey(const std::string& key, const std::string& file) { return false; }
};

}  // namespace vardena
