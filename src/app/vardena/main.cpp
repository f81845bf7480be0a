// vardena: the command line of the converter. Options are parsed here; every rule lives in
// the core library.

#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "works/Aplicacion.h"
#include "works/Catalogo.h"
#include "works/FileIo.h"
#include "works/Obra.h"
#include "works/Subrut.h"

using namespace vardena;

namespace {

constexpr int kOk = 0, kFailure = 1, kUsage = 2;

const char* kUsageText =
    "usage: vardena COMMAND [ARGS]\n"
    "\n"
    "commands:\n"
    "  works DIR        list the works in folder DIR (sub-folders holding DESCR.~CE)\n"
    "  info WORK        show a work: version, contents, description, whether it can be converted\n"
    "  --help           show this help\n"
    "  --version        show the program's version\n";

// Message boxes go to standard error; questions take the default answer; the error window
// answers "Salir".
class CliUi : public Ui {
public:
    int MsgBox(std::string_view prompt, int style, std::string_view title) override
    {
        std::cerr << "vardena: " << (title.empty() ? "" : std::string(title) + ": ") << prompt << "\n";
        const int buttons = style & 7;
        return buttons == mb::OkOnly ? mb::Ok : mb::Yes;
    }
    bool ErrorFrm(std::string_view origin, int number, std::string_view description) override
    {
        std::cerr << "vardena: error " << number << " in " << origin << ": " << description << "\n";
        return false;
    }
};

int Fail(const std::string& msg)
{
    std::cerr << "vardena: error: " << msg << "\n";
    return kFailure;
}

int CmdWorks(Aplicacion&, const std::vector<std::string>& args)
{
    if (args.size() != 1)
        return std::cerr << kUsageText, kUsage;
    std::error_code ec;
    if (!std::filesystem::is_directory(args[0], ec))
        return Fail(args[0] + ": the folder does not exist");
    for (const auto& w : ListaObras(args[0]))
        std::cout << w << "\n";
    return kOk;
}

int CmdInfo(Aplicacion& app, const std::vector<std::string>& args)
{
    if (args.size() != 1)
        return std::cerr << kUsageText, kUsage;
    ObraInfo info = AbreObra(app.decl, args[0]);
    std::cout << "work: " << info.folder << "\n";
    std::cout << "version: " << info.versionText << "\n";
    if (!info.hasDatos)
        std::cout << "general data: missing (no DATOS.~CE)\n";
    else if (!info.problem.empty())
        std::cout << "general data: " << info.problem << "\n";
    std::cout << "convertible: " << (info.convertible ? "yes (CONVERTIR enabled)" : "no (CONVERTIR disabled)") << "\n";
    std::cout << "contents:\n";
    for (const auto& line : info.contents)
        std::cout << "  " << line << "\n";
    std::cout << "description:\n";
    std::string d = info.description;
    for (size_t k; (k = d.find("\r\n")) != std::string::npos;)
        d.replace(k, 2, "\n");
    if (!d.empty())
        std::cout << d << "\n";
    return kOk;
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty())
        return std::cerr << kUsageText, kUsage;
    const std::string cmd = args[0];
    args.erase(args.begin());
    if (cmd == "--help" || cmd == "-h" || cmd == "help") {
        std::cout << kUsageText;
        return kOk;
    }
    if (cmd == "--version") {
        std::cout << "vardena " << Formato00Punto(kProgramVersion) << "\n";
        return kOk;
    }
    using Command = std::function<int(Aplicacion&, const std::vector<std::string>&)>;
    const std::map<std::string, Command> commands = {
        {"works", CmdWorks},
        {"info", CmdInfo},
    };
    auto it = commands.find(cmd);
    if (it == commands.end()) {
        std::cerr << "vardena: unknown command \"" << cmd << "\"\n" << kUsageText;
        return kUsage;
    }
    CliUi ui;
    try {
        Aplicacion app(ui, std::make_unique<IniSettings>(IniSettings::DefaultPath()));
        return it->second(app, args);
    } catch (const ProgramHalt& e) {
        return Fail(e.what());
    } catch (const FileError& e) {
        return Fail(e.what());
    } catch (const std::exception& e) {
        return Fail(e.what());
    }
}
