#include "works/FileIo.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <random>
#include <unistd.h>

#include "works/Codepage.h"

namespace vardena {
namespace {

FileSystemSeam& Seam()
{
    static FileSystemSeam seam;
    return seam;
}

bool RealWrite(const std::string& tmp, std::string_view bytes)
{
    int fd = ::open(tmp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            ::close(fd);
            return false;
        }
        done += static_cast<size_t>(n);
    }
    if (::fsync(fd) != 0) {
        ::close(fd);
        return false;
    }
    return ::close(fd) == 0;
}

bool RealRename(const std::string& from, const std::string& to)
{
    return std::rename(from.c_str(), to.c_str()) == 0;
}

char Lower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

std::string ReadFileBytes(const std::string& path)
{
    std::error_code ec;
    if (!fs::exists(path, ec))
        throw FileError(path, "the file does not exist");
    if (fs::is_directory(path, ec))
        throw FileError(path, "is a folder, not a file");
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw FileError(path, std::string("cannot be opened: ") + std::strerror(errno));
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad())
        throw FileError(path, "cannot be read");
    return bytes;
}

std::optional<std::string> ReadFileIfExists(const std::string& path)
{
    std::error_code ec;
    if (!fs::exists(path, ec))
        return std::nullopt;
    return ReadFileBytes(path);
}

void WriteFileAtomic(const std::string& path, std::string_view bytes)
{
    fs::path target(path);
    fs::path folder = target.parent_path();
    if (folder.empty())
        folder = ".";
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        throw FileError(path, "its folder does not exist");
    if (fs::is_directory(target, ec))
        throw FileError(path, "is a folder, not a file");

    static std::mt19937 rng{std::random_device{}()};
    std::string tmp;
    for (int attempt = 0; attempt < 20; ++attempt) {
        tmp = (folder / ("." + target.filename().string() + ".tmp" + std::to_string(rng() % 1000000)))
                  .string();
        if (!fs::exists(tmp, ec))
            break;
    }
    auto& seam = Seam();
    bool wrote = seam.write ? seam.write(tmp, bytes) : RealWrite(tmp, bytes);
    if (!wrote) {
        int err = errno;
        fs::remove(tmp, ec);
        throw FileError(path, std::string("cannot be written") + (err ? std::string(": ") + std::strerror(err) : ""));
    }
    // Keep the permissions of the file being replaced. A file without write permission is
    // read-only to the program, whoever runs it: it is left as it is.
    if (fs::exists(target, ec)) {
        auto perms = fs::status(target, ec).permissions();
        if (!ec)
            fs::permissions(tmp, perms, ec);
        if ((perms & fs::perms::owner_write) == fs::perms::none || ::access(path.c_str(), W_OK) != 0) {
            fs::remove(tmp, ec);
            throw FileError(path, "is read-only and was left as it was");
        }
    }
    bool renamed = seam.rename ? seam.rename(tmp, path) : RealRename(tmp, path);
    if (!renamed) {
        int err = errno;
        fs::remove(tmp, ec);
        throw FileError(path, std::string("cannot be replaced") + (err ? std::string(": ") + std::strerror(err) : ""));
    }
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
