#pragma once
// A form's calculation whose figures are no longer numbers: the run-time error of an overflow
// (number 6), naming the field that took the result out of range, for the error window of the
// handler that ran it. Nothing of the calculation is kept or written before the check.

#include <initializer_list>
#include <span>

namespace vardena {

class Control;
class Form;

// Throws the overflow error when any of `figuras` is not finite. Of the fields `datos` it names
// the one of the greatest magnitude (a null entry is skipped).
void CompruebaFinitos(const Form& form, std::initializer_list<double> figuras, std::span<const Control* const> datos);

}  // namespace vardena
