#pragma once
// The number, text and path routines of the program: the one number parser, the number
// formats of version 3, the tokeniser and the path helpers. They read no shared state.

#include <string>
#include <string_view>

namespace vardena {

// ---- Numbers and number text ----

// The one number parser: replaces the first "," of `text` by "." (in the caller's text) and
// reads the longest leading number. Blanks are skipped, "." is always the decimal point, an
// exponent is taken, and a text with no number gives 0.
double ValComa(std::string& text);
// The same on a copy, for callers that must not see their text changed.
double ValComaCopy(std::string_view text);

std::string Formato0(double v);
std::string Formato0_0(double v);
std::string Formato00(double v);
// Single-precision numbers print from their 7-digit decimal value, as the run time did.
std::string Formato0(float v);
std::string Formato0_0(float v);
std::string Formato00(float v);
// "0.00" with "." as decimal mark: the format of version numbers.
std::string Formato00Punto(double v);
// The plain text of a number (the sign blank cut off, "0" before a leading ".").
std::string FormatoNum(float v);
std::string FormatoNum(double v);

// Rounds halves away from zero to `decimals` places.
double Redondea(double v, int decimals = 0);
double Maximo3(double a, double b, double c);

// ---- Text and paths ----

// The n-th token (from 1) of `text`; runs of the separator never make an empty token.
std::string Palabra(int n, std::string_view text, std::string_view sep = " ");
// Replaces every occurrence of the first character of `a` by the first character of `b`.
std::string CambiaCar(std::string_view text, std::string_view a, std::string_view b);

// Characters of a UTF-8 text, as a text box counts them (a byte that starts no character
// counts as one), and the byte at which character `n` starts (the length past the end).
int CharCount(std::string_view text);
size_t CharOffset(std::string_view text, int n);

// The folder separator of this platform; the program's paths are built with it.
inline constexpr char kSep = '/';
std::string ConBarra(std::string_view path);
std::string CarpetaDe(std::string_view path);
std::string ArchivoDe(std::string_view path);
std::string AcortaRuta(std::string_view path, int n);

}  // namespace vardena
