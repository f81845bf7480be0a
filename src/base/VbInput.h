#pragma once
// The comma-separated quoted form of version 3's files: texts between double quotes, numbers
// plain with "." as decimal mark, booleans as #TRUE# and #FALSE#, lines ending in CR LF.
// Fields run across line ends as the run time's Input # read them.

#include <stdexcept>
#include <string>
#include <string_view>

namespace vardena {

// A field that cannot be read: the line and what was wrong.
class FieldError : public std::runtime_error {
public:
    FieldError(int number, int line, const std::string& what)
        : std::runtime_error("line " + std::to_string(line) + ": " + what), number_(number), line_(line), reason_(what) {}
    int number() const { return number_; }
    int line() const { return line_; }
    // What was wrong, without the line.
    const std::string& reason() const { return reason_; }

private:
    int number_;
    int line_;
    std::string reason_;
};

class FieldReader {
public:
    // `text` is the file's content already turned into UTF-8.
    explicit FieldReader(std::string_view text) : text_(text) {}

    // True when nothing but blanks and line ends is left.
    bool AtEnd();
    // The next field as text (quotes removed, unquoted fields trimmed). Throws FieldError
    // 62 past the end of the file and 52 for an unterminated quote. A field that fails is
    // consumed all the same (a quote left open up to its line end, a "#" left open up to the
    // next delimiter), so that a caller that goes on reads the field after it.
    std::string Text();
    // The next field as a number, read as the run time read numbers (#TRUE# is -1).
    double Number();
    // A whole number of 16 bits; larger values are error 6 (overflow).
    int Integer();
    // The next field as a boolean (#TRUE#, #FALSE#, or a number, non-zero being true).
    bool Boolean();
    // The line (from 1) where the next field begins.
    int Line() const { return line_; }

private:
    struct Raw {
        std::string text;
        bool quoted = false;
        bool hashed = false;
    };
    Raw Next();
    void SkipBlanks();
    bool AtLineEnd() const;
    void SkipLineEnd();

    std::string_view text_;
    size_t pos_ = 0;
    int line_ = 1;
};

// Writers of the same form.
std::string QuoteField(std::string_view text);
std::string BoolField(bool v);
// A number as the run time's Write # printed it: no blank for the sign.
std::string NumberField(double v);
std::string NumberField(float v);
std::string IntegerField(long long v);

}  // namespace vardena
