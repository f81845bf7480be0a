#pragma once
// The registry wrapper: values by key and name, open keys, special folders, file associations.
// The program asks it for the user's documents folder at start-up; a platform without a
// registry answers from its own notion of those folders.

#include <cstdint>
#include <optional>
#include <string>

namespace vardena {

// Value kinds by their registry numbers.
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

    // ---- Reading ----
    // The number of a DWORD value; 0 when there is none.
    virtual uint32_t GetRegDWord(const std::string& key, const std::string& name) = 0;
    // The text of a value of any kind (TextoValorReg); empty when there is none.
    virtual std::string GetReg(const std::string& key, const std::string& name) = 0;
    // A binary value as hexadecimal pairs cut by blanks; empty when there is none.
    virtual std::string GetRegBinary(const std::string& key, const std::string& name) = 0;
    // A text value; empty when there is none or the value is of another kind.
    virtual std::string GetRegString(const std::string& key, const std::string& name) = 0;
    // The value itself.
    virtual std::optional<ValorReg> QueryRegBase(const std::string& key, const std::string& name) = 0;

    // ---- Open keys ----
    // A handle to an existing key, 0 when there is no such key.
    virtual long OpenKeyEx(const std::string& key) = 0;
    // The text of a value read through an open handle of the key.
    virtual std::string OpenKeyQuery(const std::string& key, const std::string& name) = 0;
    // The text and the name of the value at `index` (from 0) of an open key; empty past the end.
    virtual std::string EnumValueString(long handle, int index) = 0;
    virtual std::string EnumValue(long handle, int index) = 0;
    virtual void CloseKey(long handle) = 0;
    // The counts of direct subkeys and of values of an open key.
    virtual bool QueryInfoKey(long handle, int& subKeys, int& values) = 0;
    // The name of the direct subkey at `index` (from 0), in name order; empty past the end.
    virtual std::string EnumKeyEx(long handle, int index) = 0;

    // ---- Folders ----
    // A folder of "HKEY_CURRENT_USER\...\Explorer\Shell Folders" ("Desktop", "Personal",
    // "AppData"...); where the registry has none, the desktop's own folder of that meaning.
    virtual std::string ShellFolders(const std::string& name) = 0;
    // The same, with "WindowsDir" and "SystemDir" answered by the system's folders, ended by "/".
    virtual std::string GetFolder(const std::string& name) = 0;

    // ---- Writing ----
    // Sets a text value, making the key and its parents.
    virtual bool RegSetValue2(const std::string& key, const std::string& name, const std::string& text) = 0;
    // Sets a value of the given kind from its text: a DWORD from "255", "0xFF" or
    // "0x000000FF (255)"; a binary from hexadecimal pairs.
    virtual bool SetReg(const std::string& key, const std::string& name, const std::string& text, int type = kRegSz) = 0;
    // Deletes a key that has no subkeys, with its values.
    virtual bool DeleteKey(const std::string& key) = 0;
    // Deletes a key with all its subkeys.
    virtual bool DeleteKeyWin95(const std::string& key) = 0;
    // Associates files ".ext" with a program: HKCR\.ext = progID, HKCR\progID = "Descripción de " +
    // description, HKCR\progID\shell\open\command = command + " %1".
    bool AsociarExt(const std::string& extension, const std::string& progID, const std::string& description,
                    const std::string& command);
    // Removes what AsociarExt wrote.
    virtual bool DesasociarExt(const std::string& extension, const std::string& progID) = 0;

    // ---- Listing and export ----
    virtual std::vector<std::string> EnumKeys(const std::string& key) = 0;
    virtual std::vector<std::string> EnumValues(const std::string& key) = 0;
    // Writes the key and its subkeys to `file` in the same text form.
    virtual bool RegSaveKey(const std::string& key, const std::string& file) = 0;

};

}  // namespace vardena
