#pragma once
// A form's calculation whose figures are no longer numbers: the run-time error of an overflow
// (number 6), naming the field that took the result out of range, for the error window of the
// handler that ran it. Nothing of the calculation is kept or written before the check.

#include <initializer_list>
#include <span>
#include <string_view>

namespace vardena {

class Control;
class Form;

// Throws the overflow error when any of `figuras` is not finite. Of the fields `datos` it names
// the one of the greatest magnitude (a null entry is skipped).
void CompruebaFinitos(const Form& form, std::initializer_list<double> figuras, std::span<const Control* const> datos);

// Arithmetic that the run time would refuse, for the formulas of a form: a zero divisor (error
// 11), a result that is no longer a number (6), the square root of a negative number (5). `dato`
// is the field whose value causes it; the error's sentence names it (its caption, else its
// label) and its text.
double DivideDato(const Form& form, double a, double b, std::string_view dato, int index = -1);
double FinitoDato(const Form& form, double x, std::string_view dato, int index = -1);
double RaizDato(const Form& form, double x, std::string_view dato, int index = -1);

}  // namespace vardena
