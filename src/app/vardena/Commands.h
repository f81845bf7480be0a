#pragma once
// The commands of the command-line tool. Each command file registers its commands with a
// static Registrar; main() parses the first word and hands over.

#include <functional>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "application/Aplicacion.h"

namespace vardena::cli {

inline constexpr int kOk = 0, kFailure = 1, kUsage = 2;

using Handler = std::function<int(Aplicacion&, const std::vector<std::string>&)>;

struct Command {
    std::string name;
    std::string synopsis;  // "info WORK"
    std::string summary;   // one line
    Handler run;
};

std::vector<Command>& Registry();

struct Registrar {
    Registrar(std::string name, std::string synopsis, std::string summary, Handler run)
    {
        Registry().push_back({std::move(name), std::move(synopsis), std::move(summary), std::move(run)});
    }
};

// A JSON string literal of `s` (UTF-8), quotes included.
std::string JsonText(std::string_view s);

// Prints "vardena: error: MSG" on standard error and returns kFailure.
int Fail(const std::string& msg);
// Prints the usage of one command on standard error and returns kUsage.
int Usage(const std::string& command);

}  // namespace vardena::cli
