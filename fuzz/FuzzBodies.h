#pragma once
// The bodies of the fuzz targets, shared with the test that replays the saved corpus.

#include <cstddef>
#include <cstdint>

namespace vardena::fuzz {

// Each feeds the bytes to one reader as the content of a file; any outcome but a crash,
// a hang or a leak is acceptable.
void PositionalRecord(const uint8_t* data, size_t size);
void NamedRecord(const uint8_t* data, size_t size);
void GeneralData(const uint8_t* data, size_t size);
// The RTF reader of stored results, to plain text and to HTML.
void RtfReader(const uint8_t* data, size_t size);

}  // namespace vardena::fuzz
