// Masked number text: the number format of masks and the fields of PRINT USING.

#include <gtest/gtest.h>

#include "reports/PrintUsing2.h"

namespace vardena {
namespace {

TEST(FormatoUsing, MasksOfTheRunTime)
{
    struct Row {
        double v;
        std::string mask, out;
    };
    const std::vector<Row> rows = {
        {1.5, "##.00", "1.50"},
        {1.5, "   ##.00", "1.50"},  // the mask is left-trimmed
        {0.5, "#.00", ".50"},       // "#" shows no leading zero
        {0.5, "0.00", "0.50"},
        {0, "###", ""},
        {0, "##0", "0"},
        {7, "000", "007"},
        {12.6, "####", "13"},
        {2.5, "#", "3"},            // halves away from zero
        {-2.5, "#", "-3"},
        {1.005, "#.00", "1.01"},    // on the decimal text, not the binary value
        {-1.5, "##.00", "-1.50"},
        {-0.001, "0.00", "0.00"},   // no sign on a zero
        {1.5, "#.0#", "1.5"},
        {1.25, "#.0#", "1.25"},
        {5, "#.##", "5."},
        {1234567, "#,##0", "1,234,567"},
        {1234.5, "#.00E+00", "1.23E+03"},
        {0.00012, "0.0E+00", "1.2E-04"},
        {9.996, "#.00E+00", "1.00E+01"},   // rounding carries into the exponent
        {1234.5, "##.00E+00", "12.35E+02"},
        {1234.5, "0.00E-00", "1.23E03"},
        {0, "#.00E+00", ".00E+00"},
        {3, "$#.00 kN", "$3.00 kN"},
        {1.5, "", "1.5"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(FormatoUsing(r.v, r.mask), r.out) << r.v << " with \"" << r.mask << "\"";
}

TEST(PrintUsing, FieldsArePaddedOnTheLeft)
{
    struct Row {
        const char* name;
        std::string mask;
        std::vector<double> values;
        std::string out;
    };
    const std::vector<Row> rows = {
        {"the classic", "###.##", {1.5}, "  1.50"},
        {"a point first keeps the first character", ".##", {0.25}, ".25"},
        {"whole field", "#####", {42}, "   42"},
        {"zero in a whole field is blank", "###", {0}, "   "},
        {"exponent", "##.##^^^^", {1234.5}, " 1.23E+03"},
        {"too long is kept whole", "##.#", {12345.6}, "12345.6"},
        {"literal prefixes go with their fields", "a=##.# b=###", {1.25, 7}, "a= 1.3 b=  7"},
        {"text after the last field", "## kN", {5}, " 5 kN"},
        {"a missing value prints 0", "##.# ##.#", {1}, " 1.0   .0"},
        {"extra values are ignored", "##", {1, 2, 3}, " 1"},
        {"a lone caret is text", "^##", {3}, "^ 3"},
        {"geometry template", "   ###  ###  ###  ##", {10, 60, 25, 5}, "    10   60   25   5"},
        {"slab row template",
         " ######### ###.## ####.## ###### ###### ####.## ####.## ####.## ####.## ####.## ####.## #####.##",
         {1075502, 3.75, 12.5, 300, 2500, 1, 2, 3, 4, 5, 6, 7.125},
         "   1075502   3.75   12.50    300   2500    1.00    2.00    3.00    4.00    5.00    6.00     7.13"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(PrintUsing(r.mask, std::span<const double>(r.values)), r.out) << r.name;
    EXPECT_EQ(PrintUsing("###.##", 1.5), "  1.50");
    EXPECT_EQ(PrintUsing("## ##", 1, 2), " 1  2");
}

}  // namespace
}  // namespace vardena
