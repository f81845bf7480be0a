#pragma once
// Small text helpers shared by the Linux services.

#include <string>
#include <string_view>
#include <vector>

namespace vardena {

// The value of a hexadecimal digit, -1 for any other character.
int DigitoHex(char c);

}  // namespace vardena
