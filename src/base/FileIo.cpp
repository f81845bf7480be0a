#include "base/FileIo.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <random>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/Codepage.h"

namespace vardena {
namespace {

FileSystemSeam& Seam()
{
    static FileSystemSeam seam;
    return seam;
}

// Writes a new file; `durable` flushes it to the disk before it is closed.
bool RealWrite(const std::string& tmp, std::string_view bytes, bool durable)
{
    int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            const int err = errno;
            ::close(fd);
            errno = err;
            return false;
        }
        done += static_cast<size_t>(n);
    }
    if (durable && ::fsync(fd) != 0) {
        const int err = errno;
        ::close(fd);
        errno = err;
        return false;
    }
    return ::close(fd) == 0;
}

bool RealRename(const std::string& from, const std::string& to)
{
    return std::rename(from.c_str(), to.c_str()) == 0;
}

char Lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

std::vector<std::string>& HeldFolders()
{
    static std::vector<std::string> held;
    return held;
}

StagingArea*& ActiveStaging()
{
    static StagingArea* active = nullptr;
    return active;
}

// The folder of a path, as the staging area compares it.
std::string FolderKey(const fs::path& p)
{
    std::string s = p.lexically_normal().string();
    while (s.size() > 1 && s.back() == '/')
        s.pop_back();
    return s;
}

// The staging area that covers `path`, if one is active for its folder.
StagingArea* StagingFor(const std::string& path)
{
    StagingArea* area = ActiveStaging();
    if (!area)
        return nullptr;
    return FolderKey(fs::path(path).parent_path()) == area->folder() ? area : nullptr;
}

std::string ErrnoText(int err) { return err ? std::string(": ") + std::strerror(err) : std::string(); }


// A read-only or folder target is refused before anything is written for it. Returns the mode
// of the file it replaces, or nothing when there is none yet (one look at the disk for both).
std::optional<mode_t> CheckReplaceable(const fs::path& target)
{
    struct stat st {};
    if (::stat(target.c_str(), &st) != 0)
        return std::nullopt;
    if (S_ISDIR(st.st_mode))
        throw FileError(target.string(), "is a folder, not a file");
    if ((st.st_mode & S_IWUSR) == 0 || ::access(target.c_str(), W_OK) != 0)
        throw FileError(target.string(), "is read-only and was left as it was");
    return st.st_mode & 07777;
}

// Writes the new file `fresh` that is to replace `target`, through the seam, with the permissions
// of the file it replaces (`mode`). On failure nothing of it is left and FileError names `target`.
void WriteReplacement(const std::string& fresh, const fs::path& target, std::string_view bytes, bool durable,
                      std::optional<mode_t> mode)
{
    std::error_code ec;
    auto& seam = Seam();
    errno = 0;
    const bool wrote = seam.write ? seam.write(fresh, bytes) : RealWrite(fresh, bytes, durable);
    if (!wrote) {
        const int err = errno;
        fs::remove(fresh, ec);
        throw FileError(target.string(), "cannot be written" + ErrnoText(err));
    }
    if (mode)
        ::chmod(fresh.c_str(), *mode);
}

// Writes a new temporary file and renames it over `path`, through the seam.
void ReplaceThroughTemporary(const std::string& path, std::string_view bytes)
{
    CompletaReemplazo(PreparaReemplazo(path, bytes), path);
}

}  // namespace

std::string ReadFileBytes(const std::string& path)
{
    if (StagingArea* area = StagingFor(path))
        if (auto staged = area->StagedFor(path))
            return ReadFileBytes(*staged);
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        const int err = errno;
        if (err == ENOENT)
            throw FileError(path, "the file does not exist");
        throw FileError(path, std::string("cannot be opened: ") + std::strerror(err));
    }
    struct stat st {};
    if (::fstat(fd, &st) != 0 || S_ISDIR(st.st_mode)) {
        ::close(fd);
        throw FileError(path, "is a folder, not a file");
    }
    std::string bytes;
    bytes.reserve(static_cast<size_t>(st.st_size));
    char buffer[65536];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            ::close(fd);
            throw FileError(path, "cannot be read");
        }
        if (n == 0)
            break;
        bytes.append(buffer, static_cast<size_t>(n));
    }
    ::close(fd);
    return bytes;
}

std::optional<std::string> ReadFileIfExists(const std::string& path)
{
    if (StagingArea* area = StagingFor(path))
        if (area->StagedFor(path))
            return ReadFileBytes(path);
    std::error_code ec;
    if (!fs::exists(path, ec))
        return std::nullopt;
    return ReadFileBytes(path);
}

std::string PreparaReemplazo(const std::string& path, std::string_view bytes)
{
    fs::path target(path);
    fs::path folder = target.parent_path();
    if (folder.empty())
        folder = ".";
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw FileError(path, "its folder does not exist");
    const std::optional<mode_t> mode = CheckReplaceable(target);
    std::string tmp;
    for (int attempt = 0; attempt < 20; ++attempt) {
        tmp = (folder / (".vardena-" + RandomHex(12) + ".tmp")).string();
        if (!fs::exists(tmp, ec))
            break;
    }
    WriteReplacement(tmp, target, bytes, true, mode);
    return tmp;
}

void CompletaReemplazo(const std::string& tmp, const std::string& path)
{
    std::error_code ec;
    auto& seam = Seam();
    errno = 0;
    bool renamed = seam.rename ? seam.rename(tmp, path) : RealRename(tmp, path);
    if (!renamed) {
        int err = errno;
        fs::remove(tmp, ec);
        throw FileError(path, "cannot be replaced" + ErrnoText(err));
    }
}

void WriteFileAtomic(const std::string& path, std::string_view bytes)
{
    if (StagingArea* area = StagingFor(path)) {
        area->Stage(path, bytes);
        return;
    }
    ReplaceThroughTemporary(path, bytes);
}

void WriteFileDurable(const std::string& path, std::string_view bytes)
{
    ReplaceThroughTemporary(path, bytes);
    SyncFolder(fs::path(path).parent_path().string());
}

StagingArea::StagingArea(std::string folder, std::string tag) : folder_(FolderKey(folder)), tag_(std::move(tag))
{
    if (ActiveStaging())
        throw std::logic_error("a staging area is already active");
    ActiveStaging() = this;
}

StagingArea::~StagingArea()
{
    ActiveStaging() = nullptr;
    if (!released_)
        Discard();
}

std::optional<std::string> StagingArea::StagedFor(const std::string& target) const
{
    const std::string name = fs::path(target).filename().string();
    const Entry* e = FindNoCase(name);
    if (!e || e->target != name)
        return std::nullopt;
    return (fs::path(folder_) / e->staged).string();
}

const StagingArea::Entry* StagingArea::FindNoCase(std::string_view name) const
{
    auto it = byName_.find(LowerKey(name));
    return it == byName_.end() ? nullptr : &entries_[it->second];
}

const StagingArea* ActiveStagingFor(const std::string& folder)
{
    StagingArea* area = ActiveStaging();
    return area && FolderKey(folder) == area->folder() ? area : nullptr;
}

void StagingArea::Stage(const std::string& target, std::string_view bytes)
{
    const fs::path t(target);
    const std::string name = t.filename().string();
    const std::optional<mode_t> mode = CheckReplaceable(t);
    std::string staged;
    if (const Entry* e = FindNoCase(name); e && e->target == name)
        staged = e->staged;
    const bool fresh = staged.empty();
    if (fresh)
        staged = StagedPrefix(tag_) + std::to_string(entries_.size() + 1) + ".staged";
    const std::string stagedPath = (fs::path(folder_) / staged).string();
    // A file staged twice is simply written again: it replaces nothing yet.
    if (!fresh)
        ::unlink(stagedPath.c_str());
    // No flush here: the whole run is flushed by one sync of the file system.
    WriteReplacement(stagedPath, t, bytes, false, mode);
    if (fresh) {
        byName_.emplace(LowerKey(name), entries_.size());
        entries_.push_back({staged, name});
    }
}

void StagingArea::Discard()
{
    std::error_code ec;
    for (const auto& e : entries_)
        fs::remove(fs::path(folder_) / e.staged, ec);
    entries_.clear();
    byName_.clear();
}

bool IsOwnWorkFile(std::string_view name) { return name.rfind(".vardena", 0) == 0; }

std::string StagedPrefix(const std::string& tag) { return ".vardena-" + tag + "-"; }

void CommitStaged(const std::string& folder, const std::vector<StagingArea::Entry>& entries)
{
    auto& seam = Seam();
    for (const auto& e : entries) {
        const std::string from = (fs::path(folder) / e.staged).string();
        const std::string to = (fs::path(folder) / e.target).string();
        std::error_code ec;
        if (!fs::exists(from, ec))
            continue;
        errno = 0;
        const bool renamed = seam.rename ? seam.rename(from, to) : RealRename(from, to);
        if (!renamed)
            throw FileError(to, "cannot be replaced" + ErrnoText(errno));
    }
    SyncFolder(folder);
}

void SyncFileSystem(const std::string& folder)
{
    int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        throw FileError(folder, "cannot be opened to flush it to the disk" + ErrnoText(errno));
    const int rc = ::syncfs(fd);
    const int err = errno;
    ::close(fd);
    if (rc != 0)
        throw FileError(folder, "cannot be flushed to the disk" + ErrnoText(err));
}

void SyncFolder(const std::string& folder)
{
    int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

std::optional<WorkLock> WorkLock::Try(const std::string& folder)
{
    const std::string path = (fs::path(folder) / kLockFileName).string();
    for (int attempt = 0; attempt < 10; ++attempt) {
        int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
        if (fd < 0)
            throw FileError(folder, "cannot be locked for writing" + ErrnoText(errno));
        if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
            const int err = errno;
            ::close(fd);
            if (err == EWOULDBLOCK)
                return std::nullopt;
            throw FileError(folder, "cannot be locked for writing" + ErrnoText(err));
        }
        // The holder before us may have removed the file between our open and our lock: then
        // we hold a lock on a file nobody else sees, and must start again.
        struct stat byFd {}, byPath {};
        if (::fstat(fd, &byFd) == 0 && ::stat(path.c_str(), &byPath) == 0 && byFd.st_ino == byPath.st_ino &&
            byFd.st_dev == byPath.st_dev) {
            HeldFolders().push_back(FolderKey(folder));
            return WorkLock(FolderKey(folder), path, fd);
        }
        ::close(fd);
    }
    return std::nullopt;
}

WorkLock::WorkLock(WorkLock&& other) noexcept
    : folder_(std::move(other.folder_)), path_(std::move(other.path_)), fd_(other.fd_)
{
    other.fd_ = -1;
}

WorkLock& WorkLock::operator=(WorkLock&& other) noexcept
{
    if (this != &other) {
        Free();
        folder_ = std::move(other.folder_);
        path_ = std::move(other.path_);
        fd_ = other.fd_;
        other.fd_ = -1;
    }
    return *this;
}

WorkLock::~WorkLock() { Free(); }

void WorkLock::Free()
{
    if (fd_ < 0)
        return;
    // Removed while still held, so that nobody can lock the file between the two steps.
    ::unlink(path_.c_str());
    ::close(fd_);
    fd_ = -1;
    auto& held = HeldFolders();
    if (auto it = std::find(held.begin(), held.end(), folder_); it != held.end())
        held.erase(it);
}

bool WorkLock::HeldHere(const std::string& folder)
{
    const auto& held = HeldFolders();
    return std::find(held.begin(), held.end(), FolderKey(folder)) != held.end();
}

std::optional<WorkLock> LockForSave(const std::string& folder)
{
    if (folder.empty() || WorkLock::HeldHere(folder))
        return std::nullopt;
    std::optional<WorkLock> lock = WorkLock::Try(folder);
    if (!lock)
        throw WorkBusy(FolderKey(folder));
    return lock;
}

FileSystemSeam SetFileSystemSeam(FileSystemSeam seam)
{
    FileSystemSeam old = Seam();
    Seam() = std::move(seam);
    return old;
}

std::string ToDiskText(std::string_view utf8)
{
    std::string crlf;
    crlf.reserve(utf8.size() + utf8.size() / 16);
    for (size_t i = 0; i < utf8.size(); ++i) {
        char c = utf8[i];
        if (c == '\n' && (i == 0 || utf8[i - 1] != '\r'))
            crlf += '\r';
        crlf += c;
    }
    return Utf8ToCp1252(crlf);
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    std::string cur;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            lines.push_back(cur);
            cur.clear();
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
        } else {
            cur += c;
        }
    }
    if (!cur.empty())
        lines.push_back(cur);
    return lines;
}

std::string RandomHex(int digits)
{
    static std::mt19937_64 rng{std::random_device{}()};
    static const char* hex = "0123456789abcdef";
    std::string s;
    for (int i = 0; i < digits; ++i)
        s += hex[rng() % 16];
    return s;
}

std::string LowerKey(std::string_view name)
{
    std::string key(name);
    for (char& c : key)
        c = Lower(c);
    return key;
}

bool StartsWithNoCase(std::string_view s, std::string_view prefix)
{
    return s.size() >= prefix.size() && SameNameNoCase(s.substr(0, prefix.size()), prefix);
}

bool SameNameNoCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (Lower(a[i]) != Lower(b[i]))
            return false;
    return true;
}

std::optional<std::string> FindNoCase(const std::string& folder, std::string_view name)
{
    if (const StagingArea* area = ActiveStagingFor(folder))
        if (const StagingArea::Entry* e = area->FindNoCase(name))
            return (fs::path(area->folder()) / e->target).string();
    std::error_code ec;
    fs::path exact = fs::path(folder) / std::string(name);
    if (fs::exists(exact, ec))
        return exact.string();
    fs::directory_iterator it(folder, ec), end;
    if (ec)
        return std::nullopt;
    for (; it != end; it.increment(ec)) {
        if (ec)
            break;
        if (SameNameNoCase(it->path().filename().string(), name))
            return it->path().string();
    }
    return std::nullopt;
}

void SortNoCase(std::vector<std::string>& names)
{
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                            [](char x, char y) { return Lower(x) < Lower(y); });
    });
}

std::optional<std::string> ExistingNoCase(const std::string& path)
{
    const fs::path p(path);
    return FindNoCase(p.parent_path().string(), p.filename().string());
}

std::vector<std::string> SubFolders(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code ec;
    fs::directory_iterator it(folder, ec), end;
    for (; !ec && it != end; it.increment(ec)) {
        std::error_code fe;
        if (it->is_directory(fe))
            names.push_back(it->path().filename().string());
    }
    SortNoCase(names);
    return names;
}

std::vector<std::string> FilesEndingWith(const std::string& folder, std::string_view suffix)
{
    std::vector<std::string> names;
    std::error_code ec;
    fs::directory_iterator it(folder, ec), end;
    for (; !ec && it != end; it.increment(ec)) {
        std::string name = it->path().filename().string();
        if (name.size() <= suffix.size())
            continue;
        if (!SameNameNoCase(std::string_view(name).substr(name.size() - suffix.size()), suffix))
            continue;
        std::error_code fe;
        if (it->is_directory(fe))
            continue;
        names.push_back(std::move(name));
    }
    SortNoCase(names);
    return names;
}

}  // namespace vardena
