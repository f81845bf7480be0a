// lit_runner: runs one command-line test file of tests/cli/lit/ (see the README.md there).
//
//   lit_runner [--keep] FILE.test
//
// The test's work is laid out in a fresh scratch folder, its RUN lines are run one after the
// other with the scratch folder as the current folder, and the combined standard output and
// error, the exit codes and the files of the work afterwards are held against the test's
// expectations. Every failed expectation is reported with what was expected and what came out.
// Exit status: 0 passed, 1 failed, 2 the test file itself is malformed.
//
// The runner is deliberately independent of the program's libraries: it tests the tool from the
// outside and keeps working while they are rearranged.

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#ifndef VARDENA_CLI
#error "VARDENA_CLI must name the vardena program"
#endif
#ifndef VARDENA_EXAMPLES
#error "VARDENA_EXAMPLES must name the folder of the sample works"
#endif

#include "base/Codepage.h"

namespace fs = std::filesystem;

namespace {

// A malformed test file: reported with its line and exit status 2.
struct FormatError {
    int line;
    std::string what;
};

// ---- Windows-1252 ----

// UTF-8 text of the test file to Windows-1252 bytes; nullopt when a character has no byte.
std::optional<std::string> Utf8ToCp1252(const std::string& s)
{
    int lost = 0;
    std::string bytes = vardena::Utf8ToCp1252(s, &lost);
    if (lost > 0)
        return std::nullopt;
    return bytes;
}

// Windows-1252 bytes of a file to UTF-8 with "\n" line ends, for matching against the test's text.
std::string DiskTextToUtf8(const std::string& bytes)
{
    const std::string utf8 = vardena::Cp1252ToUtf8(bytes);
    std::string out;
    for (size_t i = 0; i < utf8.size(); ++i)
        if (!(utf8[i] == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n'))
            out += utf8[i];
    return out;
}

// ---- Files ----

std::string ReadBytes(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteBytes(const fs::path& p, const std::string& bytes)
{
    fs::create_directories(p.parent_path());
    std::ofstream out(p, std::ios::binary | std::ios::trunc);
    out << bytes;
    if (!out)
        throw std::runtime_error("cannot write " + p.string());
}

// Every entry under `folder`, by path relative to it: a file's bytes, "<folder>" for a folder.
std::map<std::string, std::string> Snapshot(const fs::path& folder)
{
    std::map<std::string, std::string> s;
    std::error_code ec;
    for (fs::recursive_directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string rel = fs::relative(it->path(), folder).generic_string();
        s[rel] = it->is_regular_file() ? ReadBytes(it->path()) : std::string("<folder>");
    }
    return s;
}

// ---- The test file ----

enum class Kind { Check, CheckNot, CheckLast, CheckErr, FileCheck, FileSame, FileAbsent, WorkSame };

struct Expectation {
    Kind kind;
    int line;
    std::string directive;  // as written, for the report
    std::string name;       // file or work, for the file expectations
    std::string text;       // escapes resolved, %w and %S not yet substituted
};

struct Run {
    int line;
    std::string text;
    std::vector<std::string> args;  // after "vardena", unsubstituted
    int expectedExit = 0;
};

struct InlineFile {
    int line;
    std::string name;
    std::string bytes;
};

struct TestFile {
    std::vector<std::string> works;  // sample works to copy, in order; the first is %w
    std::vector<InlineFile> files;
    std::vector<Run> runs;
    std::vector<Expectation> expectations;
};

std::string Trim(std::string s)
{
    const auto not_space = [](unsigned char c) { return !std::isspace(c); };
    s.erase(s.begin(), std::find_if(s.begin(), s.end(), not_space));
    s.erase(std::find_if(s.rbegin(), s.rend(), not_space).base(), s.end());
    return s;
}

// The escapes of an expected text: \t, \n and \\; any other backslash stays as written.
std::string CheckEscapes(const std::string& s)
{
    std::string out;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '\\' && i + 1 < s.size()) {
            const char n = s[i + 1];
            if (n == 't' || n == 'n' || n == '\\') {
                out += n == 't' ? '\t' : n == 'n' ? '\n' : '\\';
                ++i;
                continue;
            }
        }
        out += s[i];
    }
    return out;
}

// A content line of FILE-ESC: \t is a tab, \\ a backslash, \xHH the byte HH as it is (not
// converted); the rest is text and becomes Windows-1252. A final \c leaves the line without
// its CR LF.
std::string EscapedContentLine(const std::string& s, int line)
{
    std::string out, text;
    auto flush = [&] {
        auto bytes = Utf8ToCp1252(text);
        if (!bytes)
            throw FormatError{line, "a character of this line has no Windows-1252 byte"};
        out += *bytes;
        text.clear();
    };
    bool lineEnd = true;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] != '\\') {
            text += s[i];
            continue;
        }
        const char n = i + 1 < s.size() ? s[i + 1] : '\0';
        if (n == 't' || n == '\\') {
            text += n == 't' ? '\t' : '\\';
            ++i;
        } else if (n == 'x' && i + 3 < s.size() && std::isxdigit(static_cast<unsigned char>(s[i + 2])) &&
                   std::isxdigit(static_cast<unsigned char>(s[i + 3]))) {
            flush();
            out += static_cast<char>(std::stoi(s.substr(i + 2, 2), nullptr, 16));
            i += 3;
        } else if (n == 'c' && i + 2 == s.size()) {
            lineEnd = false;
            ++i;
        } else {
            throw FormatError{line, "unknown escape in FILE-ESC content (use \\t, \\\\, \\xHH or a final \\c)"};
        }
    }
    flush();
    return lineEnd ? out + "\r\n" : out;
}

// The words of a RUN line: blanks separate them; '...' and "..." group (in "...", \" and \\).
std::vector<std::string> SplitWords(const std::string& s, int line)
{
    std::vector<std::string> words;
    std::string word;
    bool inWord = false;
    for (size_t i = 0; i < s.size(); ++i) {
        const char c = s[i];
        if (c == ' ' || c == '\t') {
            if (inWord)
                words.push_back(word);
            word.clear();
            inWord = false;
        } else if (c == '\'' || c == '"') {
            inWord = true;
            size_t j = i + 1;
            for (; j < s.size() && s[j] != c; ++j) {
                if (c == '"' && s[j] == '\\' && j + 1 < s.size() && (s[j + 1] == '"' || s[j + 1] == '\\'))
                    ++j;
                word += s[j];
            }
            if (j == s.size())
                throw FormatError{line, std::string("unclosed ") + c + " in RUN line"};
            i = j;
        } else {
            inWord = true;
            word += c;
        }
    }
    if (inWord)
        words.push_back(word);
    return words;
}

// "name rest": a name in double quotes may hold blanks; otherwise it ends at the first blank.
std::pair<std::string, std::string> SplitName(const std::string& s, int line)
{
    if (!s.empty() && s[0] == '"') {
        const size_t close = s.find('"', 1);
        if (close == std::string::npos)
            throw FormatError{line, "unclosed \" in file name"};
        std::string rest = s.substr(close + 1);
        if (!rest.empty() && rest[0] == ' ')
            rest.erase(0, 1);
        return {s.substr(1, close - 1), rest};
    }
    const size_t blank = s.find(' ');
    if (blank == std::string::npos)
        return {s, {}};
    return {s.substr(0, blank), s.substr(blank + 1)};
}

// A name that takes the whole rest of the line, in optional double quotes.
std::string WholeName(const std::string& s)
{
    std::string t = Trim(s);
    if (t.size() >= 2 && t.front() == '"' && t.back() == '"')
        t = t.substr(1, t.size() - 2);
    return t;
}

// A path given relative to %w must stay inside the scratch folder.
void CheckRelative(const std::string& name, int line)
{
    if (name.empty())
        throw FormatError{line, "a file name is missing"};
    const fs::path p = fs::path("s/w") / name;
    if (fs::path(name).is_absolute() || p.lexically_normal().string().rfind("s/", 0) != 0)
        throw FormatError{line, "\"" + name + "\" leaves the scratch folder"};
}

TestFile Parse(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw FormatError{0, "cannot read the test file"};
    TestFile t;
    std::string raw;
    int lineNo = 0;
    int openFile = -1;  // the index of the FILE whose content lines may follow
    bool escaped = false;
    while (std::getline(in, raw)) {
        ++lineNo;
        if (!raw.empty() && raw.back() == '\r')
            raw.pop_back();
        size_t i = 0;
        if (raw.empty() || raw[0] != '#') {
            openFile = -1;
            continue;
        }
        i = 1;
        while (i < raw.size() && raw[i] == ' ')
            ++i;
        if (i < raw.size() && raw[i] == '|') {
            if (openFile < 0)
                throw FormatError{lineNo, "a \"# |\" content line that does not follow a FILE line"};
            std::string content = raw.substr(i + 1);
            if (!content.empty() && content[0] == ' ')
                content.erase(0, 1);
            if (escaped) {
                t.files[openFile].bytes += EscapedContentLine(content, lineNo);
            } else {
                auto bytes = Utf8ToCp1252(content);
                if (!bytes)
                    throw FormatError{lineNo, "a character of this line has no Windows-1252 byte"};
                t.files[openFile].bytes += *bytes + "\r\n";
            }
            continue;
        }
        openFile = -1;
        // A directive is an upper-case word with a colon; any other "#" line is a comment.
        size_t j = i;
        while (j < raw.size() && (std::isupper(static_cast<unsigned char>(raw[j])) || raw[j] == '-'))
            ++j;
        if (j == i || j >= raw.size() || raw[j] != ':')
            continue;
        const std::string directive = raw.substr(i, j - i);
        std::string rest = raw.substr(j + 1);
        if (!rest.empty() && rest[0] == ' ')
            rest.erase(0, 1);
        auto expect = [&](Kind k, std::string name, std::string text) {
            t.expectations.push_back({k, lineNo, raw.substr(i), std::move(name), std::move(text)});
        };
        if (directive == "RUN") {
            std::vector<std::string> words = SplitWords(rest, lineNo);
            if (words.empty() || words[0] != "vardena")
                throw FormatError{lineNo, "a RUN line runs \"vardena ARGS...\""};
            words.erase(words.begin());
            t.runs.push_back({lineNo, rest, std::move(words)});
        } else if (directive == "EXIT") {
            if (t.runs.empty())
                throw FormatError{lineNo, "EXIT gives the exit code of the RUN line above it; there is none"};
            char* end = nullptr;
            const long code = std::strtol(rest.c_str(), &end, 10);
            if (rest.empty() || *end != '\0' || code < 0 || code > 255)
                throw FormatError{lineNo, "EXIT takes a number from 0 to 255"};
            t.runs.back().expectedExit = static_cast<int>(code);
        } else if (directive == "WORK") {
            const std::string name = WholeName(rest);
            if (name.empty() || name.find('/') != std::string::npos || name == "." || name == "..")
                throw FormatError{lineNo, "WORK names a sample work under examples/"};
            t.works.push_back(name);
        } else if (directive == "FILE" || directive == "FILE-ESC") {
            const std::string name = WholeName(rest);
            CheckRelative(name, lineNo);
            t.files.push_back({lineNo, name, {}});
            openFile = static_cast<int>(t.files.size()) - 1;
            escaped = directive == "FILE-ESC";
        } else if (directive == "CHECK" || directive == "CHECK-NOT" || directive == "CHECK-LAST" ||
                   directive == "CHECK-ERR") {
            if (rest.empty())
                throw FormatError{lineNo, directive + " needs a text"};
            const Kind k = directive == "CHECK"       ? Kind::Check
                           : directive == "CHECK-NOT" ? Kind::CheckNot
                           : directive == "CHECK-LAST" ? Kind::CheckLast
                                                       : Kind::CheckErr;
            expect(k, {}, CheckEscapes(rest));
        } else if (directive == "FILE-CHECK") {
            auto [name, text] = SplitName(rest, lineNo);
            CheckRelative(name, lineNo);
            if (text.empty())
                throw FormatError{lineNo, "FILE-CHECK needs a file name and a text"};
            expect(Kind::FileCheck, name, CheckEscapes(text));
        } else if (directive == "FILE-SAME" || directive == "FILE-ABSENT") {
            const std::string name = WholeName(rest);
            CheckRelative(name, lineNo);
            expect(directive == "FILE-SAME" ? Kind::FileSame : Kind::FileAbsent, name, {});
        } else if (directive == "WORK-SAME") {
            const std::string name = WholeName(rest);
            if (!name.empty())
                CheckRelative(name, lineNo);
            expect(Kind::WorkSame, name.empty() ? "." : name, {});
        } else {
            throw FormatError{lineNo, "unknown directive \"" + directive + ":\""};
        }
    }
    if (t.runs.empty())
        throw FormatError{0, "the test has no RUN line"};
    return t;
}

// ---- Running ----

std::string Substitute(const std::string& s, const std::string& work, const std::string& scratch)
{
    std::string out;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '%' && i + 1 < s.size()) {
            const char n = s[i + 1];
            if (n == 'w' || n == 'S' || n == '%') {
                out += n == 'w' ? work : n == 'S' ? scratch : "%";
                ++i;
                continue;
            }
        }
        out += s[i];
    }
    return out;
}

struct Outcome {
    int exit = -1;
    std::string out, err;
};

Outcome RunTool(const std::vector<std::string>& args, const fs::path& cwd, const fs::path& capture)
{
    const std::string outPath = (capture / "stdout").string(), errPath = (capture / "stderr").string();
    std::vector<std::string> argv0 = {VARDENA_CLI};
    argv0.insert(argv0.end(), args.begin(), args.end());
    std::vector<char*> argv;
    for (auto& a : argv0)
        argv.push_back(a.data());
    argv.push_back(nullptr);
    const pid_t pid = ::fork();
    if (pid < 0)
        throw std::runtime_error(std::string("fork: ") + std::strerror(errno));
    if (pid == 0) {
        const int in = ::open("/dev/null", O_RDONLY);
        const int out = ::open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        const int err = ::open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (in < 0 || out < 0 || err < 0 || ::dup2(in, 0) < 0 || ::dup2(out, 1) < 0 || ::dup2(err, 2) < 0 ||
            ::chdir(cwd.c_str()) != 0)
            ::_exit(126);
        ::execv(argv[0], argv.data());
        ::_exit(127);
    }
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    Outcome o;
    o.exit = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    o.out = ReadBytes(outPath);
    o.err = ReadBytes(errPath);
    return o;
}

// The 1-based line of `text` at byte offset `pos`.
int LineAt(const std::string& text, size_t pos)
{
    return 1 + static_cast<int>(std::count(text.begin(), text.begin() + std::min(pos, text.size()), '\n'));
}

// Shows a text with its line numbers, so that a report can point into it.
std::string Numbered(const std::string& text)
{
    if (text.empty())
        return "    (empty)\n";
    std::ostringstream o;
    std::istringstream in(text);
    std::string line;
    int n = 0;
    while (std::getline(in, line)) {
        char buf[16];
        std::snprintf(buf, sizeof buf, "%4d| ", ++n);
        o << buf << line << "\n";
    }
    return o.str();
}

// A text for a one-line report: tabs and line ends made visible.
std::string Visible(const std::string& s)
{
    std::string out;
    for (char c : s)
        out += c == '\t' ? std::string("\\t") : c == '\n' ? std::string("\\n") : std::string(1, c);
    return out;
}

// A match of an expected text: [begin, end) in the output.
struct Match {
    size_t begin, end;
};

// The first match of `text` in `hay` that begins at or after `from` and ends by `limit`. A line
// end at the start of the text stands for the start of a line and one at its end for the end of
// a line; the start and the end of `hay` count as both, and a match does not take them in, so
// that two texts pinned to the same line boundary can follow each other.
std::optional<Match> Find(const std::string& hay, std::string text, size_t from, size_t limit)
{
    const bool lineStart = !text.empty() && text.front() == '\n';
    if (lineStart)
        text.erase(0, 1);
    const bool lineEnd = !text.empty() && text.back() == '\n';
    if (lineEnd)
        text.pop_back();
    for (size_t p = hay.find(text, from); p != std::string::npos && p + text.size() <= limit;
         p = hay.find(text, p + 1)) {
        const size_t e = p + text.size();
        if ((lineStart && p > 0 && hay[p - 1] != '\n') || (lineEnd && e < hay.size() && hay[e] != '\n'))
            continue;
        return Match{p, e};
    }
    return std::nullopt;
}

class Checker {
public:
    Checker(std::string testPath, const fs::path& work, const fs::path& scratch)
        : testPath_(std::move(testPath)), work_(work.string()), scratch_(scratch.string()), workDir_(work)
    {
    }

    // Matches the CHECK and CHECK-NOT lines, in order, and the CHECK-LAST lines against
    // standard output.
    void StandardOutput(const std::vector<Expectation>& all, const std::string& out)
    {
        size_t pos = 0;
        std::vector<const Expectation*> nots;
        auto settleNots = [&](size_t from, size_t to) {
            for (const Expectation* n : nots)
                if (const auto hit = Find(out, Sub(n->text), from, to))
                    Failure(*n, "found in standard output at line " + std::to_string(LineAt(out, hit->begin)) +
                                    ", where it must not appear");
            nots.clear();
        };
        // The last line: from after the line end before it to the end, a final line end not
        // counted.
        size_t lastEnd = out.size();
        if (lastEnd > 0 && out[lastEnd - 1] == '\n')
            --lastEnd;
        const size_t before = lastEnd == 0 ? std::string::npos : out.rfind('\n', lastEnd - 1);
        const size_t lastStart = before == std::string::npos ? 0 : before + 1;
        for (const Expectation& e : all) {
            if (e.kind == Kind::CheckNot) {
                nots.push_back(&e);
            } else if (e.kind == Kind::CheckLast) {
                if (!Find(out, Sub(e.text), lastStart, lastEnd))
                    Failure(e, "not found in the last line of standard output");
            } else if (e.kind == Kind::Check) {
                const auto hit = Find(out, Sub(e.text), pos, out.size());
                if (!hit) {
                    Failure(e, "not found in standard output after line " + std::to_string(LineAt(out, pos)));
                    continue;
                }
                settleNots(pos, hit->begin);
                pos = hit->end;
            }
        }
        settleNots(pos, out.size());
    }

    // Matches the CHECK-ERR lines, in order, against standard error.
    void StandardError(const std::vector<Expectation>& all, const std::string& err)
    {
        size_t pos = 0;
        for (const Expectation& e : all) {
            if (e.kind != Kind::CheckErr)
                continue;
            const auto hit = Find(err, Sub(e.text), pos, err.size());
            if (!hit) {
                Failure(e, "not found in standard error after line " + std::to_string(LineAt(err, pos)));
                continue;
            }
            pos = hit->end;
        }
    }

    // The files of the work after the runs, against the bytes laid out before them.
    void Files(const std::vector<Expectation>& all, const fs::path& scratch,
               const std::map<std::string, std::string>& before)
    {
        for (const Expectation& e : all) {
            const fs::path p = (workDir_ / e.name).lexically_normal();
            const std::string rel = fs::relative(p, scratch).generic_string();
            std::error_code ec;
            switch (e.kind) {
            case Kind::FileCheck: {
                if (!fs::is_regular_file(p, ec)) {
                    Failure(e, p.string() + " does not exist");
                    break;
                }
                const std::string text = DiskTextToUtf8(ReadBytes(p));
                if (!Find(text, Sub(e.text), 0, text.size()))
                    Failure(e, "not found in " + p.string() + "; it holds (as UTF-8, LF line ends):\n" +
                                   Numbered(text));
                break;
            }
            case Kind::FileSame: {
                const auto it = before.find(rel);
                if (it == before.end())
                    Failure(e, p.string() + " was not part of the test's input");
                else if (!fs::is_regular_file(p, ec))
                    Failure(e, p.string() + " is gone");
                else if (ReadBytes(p) != it->second)
                    Failure(e, p.string() + " was changed; it now holds (as UTF-8, LF line ends):\n" +
                                   Numbered(DiskTextToUtf8(ReadBytes(p))));
                break;
            }
            case Kind::FileAbsent:
                if (fs::exists(fs::symlink_status(p, ec)))
                    Failure(e, p.string() + " exists");
                break;
            case Kind::WorkSame: {
                // The entries under the folder, before and after, by their path in the scratch folder.
                const std::string prefix = rel == "." ? "" : rel + "/";
                std::map<std::string, std::string> was;
                for (const auto& [k, v] : before)
                    if (k.rfind(prefix, 0) == 0)
                        was[k.substr(prefix.size())] = v;
                const auto now = Snapshot(p);
                std::string diff;
                for (const auto& [k, v] : was) {
                    const auto it = now.find(k);
                    if (it == now.end())
                        diff += "  removed: " + k + "\n";
                    else if (it->second != v)
                        diff += "  changed: " + k + "\n";
                }
                for (const auto& [k, v] : now)
                    if (!was.count(k))
                        diff += "  added: " + k + "\n";
                if (!diff.empty())
                    Failure(e, p.string() + " is not as it was:\n" + diff);
                break;
            }
            default: break;
            }
        }
    }

    void Exit(const Run& r, int got)
    {
        if (got == r.expectedExit)
            return;
        std::ostringstream o;
        o << testPath_ << ":" << r.line << ": RUN: " << r.text << "\n  exit code " << got << ", expected "
          << r.expectedExit << (got == 127 ? " (the program could not be started)" : "") << "\n";
        report_ += o.str();
        ++failures_;
    }

    int failures() const { return failures_; }
    const std::string& report() const { return report_; }

private:
    std::string Sub(const std::string& s) const { return Substitute(s, work_, scratch_); }

    void Failure(const Expectation& e, const std::string& why)
    {
        std::ostringstream o;
        o << testPath_ << ":" << e.line << ": " << e.directive << "\n";
        if (!e.text.empty())
            o << "  expected: \"" << Visible(Sub(e.text)) << "\"\n";
        o << "  " << why << (why.empty() || why.back() != '\n' ? "\n" : "");
        report_ += o.str();
        ++failures_;
    }

    std::string testPath_, work_, scratch_;
    fs::path workDir_;
    std::string report_;
    int failures_ = 0;
};

// A temporary folder of the runner's own, removed with the object unless kept.
class TempRoot {
public:
    TempRoot()
    {
        std::string tmpl = (fs::temp_directory_path() / "vardena-lit-XXXXXX").string();
        if (!::mkdtemp(tmpl.data()))
            throw std::runtime_error(std::string("mkdtemp: ") + std::strerror(errno));
        path_ = tmpl;
    }
    ~TempRoot()
    {
        if (keep)
            return;
        std::error_code ec;
        // A test may leave a folder without write permission; give it back before removing.
        for (fs::recursive_directory_iterator it(path_, ec), end; !ec && it != end; it.increment(ec))
            if (it->is_directory(ec))
                fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(path_, ec);
    }
    const fs::path& path() const { return path_; }
    bool keep = false;

private:
    fs::path path_;
};

int RunTest(const std::string& testPath, bool keep)
{
    const auto started = std::chrono::steady_clock::now();
    TestFile t;
    try {
        t = Parse(testPath);
    } catch (const FormatError& e) {
        std::cerr << testPath << ":" << e.line << ": malformed test: " << e.what << "\n";
        return 2;
    }

    TempRoot root;
    root.keep = keep;
    const fs::path scratch = root.path() / "scratch";
    const fs::path capture = root.path() / "capture";
    fs::create_directories(scratch);
    fs::create_directories(capture);
    const fs::path work = scratch / (t.works.empty() ? std::string("work") : t.works.front());

    // The sample works are copied whole; inline files are written into %w after them.
    for (const auto& w : t.works) {
        const fs::path from = fs::path(VARDENA_EXAMPLES) / w;
        if (!fs::is_directory(from)) {
            std::cerr << testPath << ": malformed test: there is no sample work \"" << w << "\" in "
                      << VARDENA_EXAMPLES << "\n";
            return 2;
        }
        fs::copy(from, scratch / w, fs::copy_options::recursive);
    }
    fs::create_directories(work);
    for (const auto& f : t.files)
        WriteBytes(work / f.name, f.bytes);
    const auto before = Snapshot(scratch);

    // Each test starts from the settings file it was given (when there is one) but writes a
    // copy of its own: tests may run side by side and must not see each other's settings.
    const fs::path settings = root.path() / "settings.ini";
    if (const char* given = std::getenv("VARDENA_SETTINGS"); given && fs::is_regular_file(given))
        fs::copy_file(given, settings);
    ::setenv("VARDENA_SETTINGS", settings.c_str(), 1);

    Checker checker(testPath, work, scratch);
    std::string out, err, transcript;
    for (const Run& r : t.runs) {
        std::vector<std::string> args;
        std::string shown = "vardena";
        for (const auto& a : r.args) {
            args.push_back(Substitute(a, work.string(), scratch.string()));
            shown += " '" + args.back() + "'";
        }
        const Outcome o = RunTool(args, scratch, capture);
        out += o.out;
        err += o.err;
        transcript += "  " + shown + "\n    exit code " + std::to_string(o.exit) + "\n";
        checker.Exit(r, o.exit);
    }
    checker.StandardOutput(t.expectations, out);
    checker.StandardError(t.expectations, err);
    checker.Files(t.expectations, scratch, before);

    const auto ms =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - started).count();
    if (checker.failures() == 0) {
        std::cout << "PASS: " << testPath << " (" << t.runs.size() << " run" << (t.runs.size() == 1 ? "" : "s")
                  << ", " << ms << " ms)\n";
        if (keep)
            std::cout << "scratch folder (%S): " << scratch.string() << " (kept)\n";
        return 0;
    }
    std::cout << "FAIL: " << testPath << " (" << checker.failures() << " expectation"
              << (checker.failures() == 1 ? "" : "s") << " not met)\n\n"
              << checker.report() << "\n"
              << "scratch folder (%S): " << scratch.string() << (keep ? " (kept)" : " (removed; --keep keeps it)")
              << "\nwork (%w): " << work.string() << "\ncommands:\n"
              << transcript << "standard output:\n"
              << Numbered(out) << "standard error:\n"
              << Numbered(err);
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    bool keep = false;
    std::vector<std::string> tests;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--keep")
            keep = true;
        else
            tests.push_back(a);
    }
    if (tests.size() != 1 || tests[0].rfind("-", 0) == 0) {
        std::cerr << "usage: lit_runner [--keep] FILE.test\n";
        return 2;
    }
    try {
        return RunTest(tests[0], keep);
    } catch (const std::exception& e) {
        std::cerr << tests[0] << ": " << e.what() << "\n";
        return 2;
    }
}
