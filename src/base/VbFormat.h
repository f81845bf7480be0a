#pragma once
// Number texts as the run time of version 3 printed them. Records and reports hold these
// texts, so they must come out the same: the general format of a Single has at most 7
// significant digits and of a Double 15, a positive number carries a blank for its sign, and
// masks such as "0.00" round halves away from zero on the number's decimal value.

#include <string>

namespace vardena {

// The run time's Str(): " 1.5", "-2", " .5", " 1E+20". Singles print 7 significant digits.
std::string VbStr(float v);
std::string VbStr(double v);

// A fixed-decimals mask "0", "0.0", "0.00"...: rounds half away from zero on the decimal
// text of the value (7 significant digits for a Single, 15 for a Double).
std::string FormatFixed(double v, int decimals, int significantDigits = 15);

// Banker's rounding of a Double to a whole number, as the run time's CLng does.
long long VbCLng(double v);

}  // namespace vardena
