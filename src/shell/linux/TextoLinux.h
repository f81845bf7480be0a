#pragma once
// Small text helpers shared by the Linux services.

#include <string>
#include <string_view>
#include <vector>

namespace vardena {

// The lines of a text cut at LF; a CR before the LF is dropped. No last empty line after a final LF.
std::vector<std::string> LineasDe(std::string_view text);

// The value of a hexadecimal digit, -1 for any other character.
int DigitoHex(char c);

}  // namespace vardena
