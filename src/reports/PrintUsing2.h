#pragma once
// Masked number text for columns, after the old BASIC "PRINT USING": "###.##" with 1.5 gives
// "  1.50". A mask holds literal text and number fields of "#", "." and a trailing "^^^^" for an
// exponent; each field takes the next value and is right-aligned in the field's width.

#include <span>
#include <string>
#include <string_view>

namespace vardena {

// The run time's number format with a mask of "#" (optional digit), "0" (digit), "." (decimal
// point), "," (thousands) and "E+00" / "E-00" (exponent); other characters are literal.
// Halves round away from zero, "." is always the decimal point. The mask is left-trimmed first.
std::string FormatoUsing(double value, std::string_view mask);

// Formats `values` into the fields of `mask`, in order. A field without a value takes 0; a text
// longer than its field is kept whole.
std::string PrintUsing(std::string_view mask, std::span<const double> values);

template <class... Rest>
std::string PrintUsing(std::string_view mask, double value1, Rest... rest)
{
    const double values[] = {value1, static_cast<double>(rest)...};
    return PrintUsing(mask, std::span<const double>(values));
}

}  // namespace vardena
