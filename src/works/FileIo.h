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
// Finds `name` inside `folder` without regard to case; nullopt when there is none.
std::optional<std::string> FindNoCase(const std::string& folder, std::string_view name);

// A file of a work by its exact path or, failing that, by its name in any case.
std::optional<std::string> ExistingNoCase(const std::string& path);
// The names of the sub-folders of `folder`, sorted by SortNoCase; none when it cannot be read.
std::vector<std::string> SubFolders(const std::string& folder);

// Sorts names without regard to case, the order in which version 3's file system listed them.
void SortNoCase(std::vector<std::string>& names);
// The names of the files (not folders) of `folder` whose name ends with `suffix`, compared
// without regard to case, sorted by SortNoCase.
std::vector<std::string> FilesEndingWith(const std::string& folder, std::string_view suffix);

}  // namespace vardena
