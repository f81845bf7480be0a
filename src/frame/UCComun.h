#pragma once
// What the composite controls share: their property lists, flags and colours.

#include <span>
#include <string>
#include <string_view>

namespace vardena {

class Control;

// The property of `props` named `prop` without regard to case, in its own spelling. A name
// the control lacks is a PropertyError (438).
std::string_view PropiedadCompuesta(const Control& c, std::span<const std::string_view> props, std::string_view prop);

// A flag property: True/False, #TRUE#/#FALSE# or a number (non-zero is true). Anything else
// is a PropertyError (13).
bool LeeBandera(const Control& c, std::string_view prop, std::string_view valor);
inline std::string TextoBandera(bool b) { return b ? "True" : "False"; }

// System colours as the run time keeps them: button face and window background.
inline constexpr std::string_view kColorBoton = "-2147483633";
inline constexpr std::string_view kColorVentana = "-2147483643";

// Holds a control's guard flag up while the control changes its own values, so that its
// change handlers do not run again from inside themselves.
class GuardaOcupado {
public:
    explicit GuardaOcupado(bool& flag) : flag_(flag) { flag_ = true; }
    ~GuardaOcupado() { flag_ = false; }
    GuardaOcupado(const GuardaOcupado&) = delete;
    GuardaOcupado& operator=(const GuardaOcupado&) = delete;

private:
    bool& flag_;
};

// A stored text, or `omision` while it is empty.
std::string ValorOOmision(const Control& c, std::string_view prop, std::string_view omision);

}  // namespace vardena
