#include "base/VbInput.h"

#include <cmath>

#include "base/Texto.h"
#include "base/VbFormat.h"

namespace vardena {

void FieldReader::SkipBlanks()
{
    while (pos_ < text_.size() && (text_[pos_] == ' ' || text_[pos_] == '\t'))
        ++pos_;
}

bool FieldReader::AtLineEnd() const
{
    return pos_ < text_.size() && (text_[pos_] == '\r' || text_[pos_] == '\n');
}

void FieldReader::SkipLineEnd()
{
    if (pos_ < text_.size() && text_[pos_] == '\r')
        ++pos_;
    if (pos_ < text_.size() && text_[pos_] == '\n')
        ++pos_;
    ++line_;
}

bool FieldReader::AtEnd()
{
    for (;;) {
        SkipBlanks();
        if (pos_ >= text_.size())
            return true;
        if (AtLineEnd()) {
            SkipLineEnd();
            continue;
        }
        return false;
    }
}

FieldReader::Raw FieldReader::Next()
{
    // Blank lines between fields are skipped.
    if (AtEnd())
        throw FieldError(62, line_, "the file ends before the record does (input past end of file)");
    Raw r;
    const int startLine = line_;
    if (text_[pos_] == '"') {
        size_t close = text_.find('"', pos_ + 1);
        size_t lineEnd = text_.find_first_of("\r\n", pos_ + 1);
        if (close == std::string_view::npos || (lineEnd != std::string_view::npos && lineEnd < close)) {
            // The open text runs to its line end: the field and its line end are consumed.
            pos_ = lineEnd == std::string_view::npos ? text_.size() : lineEnd;
            if (AtLineEnd())
                SkipLineEnd();
            throw FieldError(52, startLine, "a quoted text is not closed on its line");
        }
        r.text = std::string(text_.substr(pos_ + 1, close - pos_ - 1));
        r.quoted = true;
        pos_ = close + 1;
        // Anything between the closing quote and the delimiter is dropped.
        while (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd())
            ++pos_;
    } else if (text_[pos_] == '#') {
        size_t close = text_.find('#', pos_ + 1);
        size_t lineEnd = text_.find_first_of("\r\n,", pos_ + 1);
        if (close == std::string_view::npos || (lineEnd != std::string_view::npos && lineEnd < close)) {
            // The open value runs to its delimiter, which is consumed with it.
            pos_ = lineEnd == std::string_view::npos ? text_.size() : lineEnd;
            if (pos_ < text_.size() && text_[pos_] == ',')
                ++pos_;
            else if (AtLineEnd())
                SkipLineEnd();
            throw FieldError(13, startLine, "a value between # signs is not closed");
        }
        r.text = std::string(text_.substr(pos_, close - pos_ + 1));
        r.hashed = true;
        pos_ = close + 1;
        while (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd())
            ++pos_;
    } else {
        size_t start = pos_;
        while (pos_ < text_.size() && text_[pos_] != ',' && !AtLineEnd())
            ++pos_;
        std::string_view t = text_.substr(start, pos_ - start);
        while (!t.empty() && (t.back() == ' ' || t.back() == '\t'))
            t.remove_suffix(1);
        r.text = std::string(t);
    }
    if (pos_ < text_.size() && text_[pos_] == ',')
        ++pos_;
    else if (AtLineEnd())
        SkipLineEnd();
    return r;
}

std::string FieldReader::Text() { return Next().text; }

double FieldReader::Number()
{
    Raw r = Next();
    if (r.hashed) {
        if (r.text == "#TRUE#")
            return -1;
        if (r.text == "#FALSE#" || r.text == "#NULL#")
            return 0;
    }
    return ValComaCopy(r.text);
}

int FieldReader::Integer()
{
    const int line = line_;
    double v = std::nearbyint(Number());
    if (v > 32767 || v < -32768)
        throw FieldError(6, line, "a whole number is out of range (overflow)");
    return static_cast<int>(v);
}

bool FieldReader::Boolean()
{
    Raw r = Next();
    if (r.text == "#TRUE#")
        return true;
    if (r.text == "#FALSE#")
        return false;
    return ValComaCopy(r.text) != 0;
}

std::string QuoteField(std::string_view text) { return "\"" + std::string(text) + "\""; }
std::string BoolField(bool v) { return v ? "#TRUE#" : "#FALSE#"; }

namespace {
std::string Unblank(std::string s)
{
    if (!s.empty() && s[0] == ' ')
        s.erase(0, 1);
    return s;
}
}  // namespace

std::string NumberField(double v) { return Unblank(VbStr(v)); }
std::string NumberField(float v) { return Unblank(VbStr(v)); }
std::string IntegerField(long long v) { return std::to_string(v); }

}  // namespace vardena
