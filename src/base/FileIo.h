#pragma once
// Whole-file reads and safe replacement of files. Every file the program writes goes through
// WriteFileAtomic: the new content is written to a temporary file in the same folder, flushed,
// and renamed over the old one, so that a failure never leaves a half-written record.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <vector>

namespace vardena {

namespace fs = std::filesystem;

// An error of a file operation, with a sentence that names the file.
class FileError : public std::runtime_error {
public:
    FileError(const std::string& path, const std::string& what)
        : std::runtime_error(path + ": " + what), path_(path) {}
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

// Reads the bytes of a file. Throws FileError when it cannot.
std::string ReadFileBytes(const std::string& path);
// As above, but an absent file is nullopt instead of an error.
std::optional<std::string> ReadFileIfExists(const std::string& path);

// Replaces `path` with `bytes` through a temporary file in the same folder. Throws FileError;
// on failure the old file is untouched and no temporary file is left behind.
void WriteFileAtomic(const std::string& path, std::string_view bytes);

// A replacement in two steps, for callers that act between the writing and the rename (the slab
// catalogues send a copy of the old file to the recycle bin there). PreparaReemplazo writes
// `bytes` to a new temporary file beside `path`, flushed to the disk, through the seam, and
// returns its path; nothing of `path` changes. CompletaReemplazo renames it over `path` through
// the seam; on failure the temporary file is removed and `path` is as it was. Both throw
// FileError. Neither goes through a staging area.
std::string PreparaReemplazo(const std::string& path, std::string_view bytes);
void CompletaReemplazo(const std::string& tmp, const std::string& path);

// The seam under WriteFileAtomic, so that tests can make a write, flush or rename fail.
struct FileSystemSeam {
    std::function<bool(const std::string& tmp, std::string_view bytes)> write;
    std::function<bool(const std::string& from, const std::string& to)> rename;
};
// Replaces the seam; returns the previous one. An empty function means the real operation.
FileSystemSeam SetFileSystemSeam(FileSystemSeam seam);

// Text files: Windows-1252 with CR LF on disk, UTF-8 with "\n" inside. Reading accepts CR LF,
// lone CR and lone LF.
std::string ToDiskText(std::string_view utf8);

// The lines of a text cut at CR LF, lone CR or lone LF; no empty line after a final line end.
std::vector<std::string> SplitLines(std::string_view text);

// Case-insensitive file name comparison, as the file system of version 3 compared names.
bool SameNameNoCase(std::string_view a, std::string_view b);
// Whether `s` begins with `prefix`, compared in the same way.
bool StartsWithNoCase(std::string_view s, std::string_view prefix);
// A name in lower case, the key under which names compared without regard to case are kept.
std::string LowerKey(std::string_view name);
// A random text of hexadecimal digits, for the names of the program's temporary files.
std::string RandomHex(int digits);
// Finds `name` inside `folder` without regard to case; nullopt when there is none.
std::optional<std::string> FindNoCase(const std::string& folder, std::string_view name);

// A file of a work by its exact path or, failing that, by its name in any case.
std::optional<std::string> ExistingNoCase(const std::string& path);
// The names of the sub-folders of `folder`, sorted by SortNoCase; none when it cannot be read.
std::vector<std::string> SubFolders(const std::string& folder);

// Staged writes into one folder. While a StagingArea is alive, WriteFileAtomic of a file of
// that folder writes a new hidden file ".vardena-<tag>-<n>.staged" beside it and leaves the old
// file as it is; ReadFileBytes, ReadFileIfExists, FindNoCase and ExistingNoCase of that file see
// the staged bytes, so that a run reads back what it has written. Nothing of the old files
// changes until CommitStaged renames the staged files over them. Not nestable: one at a time.
class StagingArea {
public:
    struct Entry {
        std::string staged;  // file name of the staged file, inside the folder
        std::string target;  // file name it replaces, inside the folder
    };

    StagingArea(std::string folder, std::string tag);
    // Removes the staged files unless they were handed over by Release().
    ~StagingArea();
    StagingArea(const StagingArea&) = delete;
    StagingArea& operator=(const StagingArea&) = delete;

    const std::string& folder() const { return folder_; }
    const std::string& tag() const { return tag_; }
    // In the order first written; a file written twice keeps its first place.
    const std::vector<Entry>& entries() const { return entries_; }
    // The staged file that stands for `target` (a full path), if any.
    std::optional<std::string> StagedFor(const std::string& target) const;
    // The entry whose target is `name` in any case, if any.
    const Entry* FindNoCase(std::string_view name) const;
    // Stages `bytes` for `target`; used by WriteFileAtomic.
    void Stage(const std::string& target, std::string_view bytes);
    // The staged files are no longer this object's to remove (they are being committed).
    void Release() { released_ = true; }
    // Removes every staged file now.
    void Discard();

private:
    std::string folder_;
    std::string tag_;
    std::vector<Entry> entries_;
    // Index into entries_ by the target's name in lower case.
    std::unordered_map<std::string, size_t> byName_;
    bool released_ = false;
};
// The staging area of `folder`, when one is active for it.
const StagingArea* ActiveStagingFor(const std::string& folder);

// Whether `name` is a file name this program uses for its own temporary, staged, journal or lock
// files inside a work folder.
bool IsOwnWorkFile(std::string_view name);
// The staged-file prefix of a tag: ".vardena-<tag>-".
std::string StagedPrefix(const std::string& tag);

// Renames each staged file over its target in the given order (a staged file already gone was
// renamed by an earlier attempt), then flushes the folder. Throws FileError.
void CommitStaged(const std::string& folder, const std::vector<StagingArea::Entry>& entries);
// Flushes every file written so far on the file system that holds `folder` to the disk (one
// sync for a whole run instead of one per file). Throws FileError.
void SyncFileSystem(const std::string& folder);
// Flushes a folder's own entries (names created, renamed or removed) to the disk.
void SyncFolder(const std::string& folder);
// Writes a file durably, bypassing any staging: temporary file, flush, rename, folder flush.
void WriteFileDurable(const std::string& path, std::string_view bytes);

// The writer's lock of a work folder, an advisory lock (flock) on a lock file inside it. One
// writer at a time: a second one is refused. The lock file is removed on release.
class WorkLock {
public:
    // Takes the lock; nullopt when another program holds it. Throws FileError when the lock
    // file cannot be made (a read-only folder, for instance).
    static std::optional<WorkLock> Try(const std::string& folder);
    WorkLock(WorkLock&& other) noexcept;
    WorkLock& operator=(WorkLock&& other) noexcept;
    ~WorkLock();
    const std::string& folder() const { return folder_; }
    // Whether this program holds the lock of `folder` already.
    static bool HeldHere(const std::string& folder);

private:
    WorkLock(std::string folder, std::string path, int fd) : folder_(std::move(folder)), path_(std::move(path)), fd_(fd) {}
    void Free();
    std::string folder_;
    std::string path_;
    int fd_ = -1;
};
inline constexpr const char* kLockFileName = ".vardena.lock";

// The lock a single save takes: none when this program holds the work's lock already (a
// conversion saving its records), the work's lock otherwise. Throws WorkBusy when another
// program holds it.
class WorkBusy : public FileError {
public:
    explicit WorkBusy(const std::string& folder) : FileError(folder, "another program is writing this work") {}
};
std::optional<WorkLock> LockForSave(const std::string& folder);

// Sorts names without regard to case, the order in which version 3's file system listed them.
void SortNoCase(std::vector<std::string>& names);
// The names of the files (not folders) of `folder` whose name ends with `suffix`, compared
// without regard to case, sorted by SortNoCase.
std::vector<std::string> FilesEndingWith(const std::string& folder, std::string_view suffix);

}  // namespace vardena
