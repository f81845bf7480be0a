#pragma once
// Files on disk are Windows-1252; inside the program text is UTF-8.

#include <optional>
#include <string>
#include <string_view>

namespace vardena {

// Every byte has a meaning: the five bytes that Windows-1252 leaves undefined map to the
// C1 controls of the same number, so that any file survives a read and a write unchanged.
std::string Cp1252ToUtf8(std::string_view bytes);

// Characters outside Windows-1252 become "?"; `lost`, when given, counts them.
std::string Utf8ToCp1252(std::string_view text, int* lost = nullptr);

// True when the bytes look like text: no NUL and no control characters other than
// tab, CR, LF and form feed.
bool LooksLikeText(std::string_view bytes);

// The bytes of a work's data file (an element record, DATOS.~CE, DESCR.~CE) as UTF-8 text.
// Old editors and copy programs ended text files with one or more 0x1A bytes, the end-of-file
// mark of their time, before or after the last line end: those trailing bytes are dropped.
// Every other byte is data and is kept, control bytes inside a value included, so that a value
// reads and writes back unchanged. A NUL byte shows a file that is not text: nullopt.
std::optional<std::string> DataFileText(std::string_view bytes);

}  // namespace vardena
