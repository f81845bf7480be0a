// vardena: the command line of the converter. Options are parsed here; every rule lives in
// the core library.

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <iostream>
#include <string>
#include <vector>

#include "shell/linux/ServiciosLinux.h"
#include "Commands.h"
#include "base/FileIo.h"
#include "works/Subrut.h"

using namespace vardena;

namespace vardena::cli {

std::vector<Command>& Registry()
{
    static std::vector<Command> commands;
    return commands;
}

int Fail(const std::string& msg)
{
    std::cerr << "vardena: error: " << msg << "\n";
    return kFailure;
}

std::string JsonText(std::string_view s)
{
    std::string out = "\"";
    for (unsigned char ch : s) {
        switch (ch) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (ch < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", ch);
                out += buf;
            } else {
                out += static_cast<char>(ch);
            }
        }
    }
    return out + "\"";
}

int Usage(const std::string& command)
{
    for (const auto& c : Registry())
        if (c.name == command)
            std::cerr << "usage: vardena " << c.synopsis << "\n";
    return kUsage;
}

}  // namespace vardena::cli

namespace {

void PrintHelp(std::ostream& out)
{
    auto commands = cli::Registry();
    std::sort(commands.begin(), commands.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    out << "usage: vardena COMMAND [ARGS]\n\ncommands:\n";
    for (const auto& c : commands)
        out << "  " << c.synopsis << "\n      " << c.summary << "\n";
    out << "  --help\n      show this help\n  --version\n      show the program's version\n"
        << "\nexit codes: 0 success, 1 failure, 2 bad usage\n";
}

// Message boxes go to standard error; questions take the default answer ("Sí"); the error
// window answers "Salir", which ends the command with the error.
class CliUi : public Ui {
public:
    int MsgBox(std::string_view prompt, int style, std::string_view title) override
    {
        // A progress line on a terminal is cleared first.
        if (::isatty(STDERR_FILENO))
            std::cerr << "\r\033[K";
        std::cerr << "vardena: " << (title.empty() ? "" : std::string(title) + ": ") << prompt << "\n";
        return (style & 7) == mb::OkOnly ? mb::Ok : mb::Yes;
    }
    bool ErrorFrm(std::string_view origin, int number, std::string_view description) override
    {
        // The handler's name and the run-time number are for the error report, not for the user.
        std::cerr << "vardena: error: " << description << "\n";
        return false;
    }
};

}  // namespace

int main(int argc, char** argv)
{
    RegistraServicios(InstalaServiciosLinux);
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty()) {
        PrintHelp(std::cerr);
        return cli::kUsage;
    }
    const std::string cmd = args[0];
    args.erase(args.begin());
    if (cmd == "--help" || cmd == "-h" || cmd == "help") {
        PrintHelp(std::cout);
        return cli::kOk;
    }
    if (cmd == "--version") {
        std::cout << "vardena " << Formato00Punto(kProgramVersion) << "\n";
        return cli::kOk;
    }
    for (const auto& c : cli::Registry()) {
        if (c.name != cmd)
            continue;
        CliUi ui;
        try {
            Aplicacion app(ui, std::make_unique<IniSettings>(IniSettings::DefaultPath()));
            return c.run(app, args);
        } catch (const ProgramHalt& e) {
            return cli::Fail(e.what());
        } catch (const std::exception& e) {
            return cli::Fail(e.what());
        }
    }
    std::cerr << "vardena: unknown command \"" << cmd << "\"\n";
    PrintHelp(std::cerr);
    return cli::kUsage;
}
