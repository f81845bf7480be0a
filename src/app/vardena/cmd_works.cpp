// vardena works, vardena info: the works of a folder and what one of them holds.

#include <filesystem>

#include "Commands.h"
#include "works/Catalogo.h"
#include "base/FileIo.h"
#include "works/Obra.h"

namespace vardena::cli {
namespace {

int CmdWorks(Aplicacion&, const std::vector<std::string>& args)
{
    if (args.size() != 1)
        return Usage("works");
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
        return Usage("info");
    ObraInfo info = AbreObra(app.decl, args[0]);
    if (const std::string note = TextoRecuperacion(app.decl, info); !note.empty())
        std::cout << note << "\n";
    std::cout << "work: " << info.folder << "\n";
    std::cout << "version: " << info.versionText << "\n";
    if (!info.hasDatos)
        std::cout << "general data: missing (no DATOS.~CE)\n";
    else if (!info.problem.empty())
        std::cout << "general data: " << info.problem << "\n";
    for (const auto& line : info.unreadLines)
        std::cout << "general data not read: " << line << "\n";
    std::cout << "convertible: " << (info.convertible ? "yes (CONVERTIR enabled)" : "no (CONVERTIR disabled)") << "\n";
    std::cout << "contents:\n";
    for (const auto& line : info.contents)
        std::cout << "  " << line << "\n";
    std::cout << "description:\n";
    for (const auto& line : SplitLines(info.description))
        std::cout << line << "\n";
    return kOk;
}

Registrar works("works", "works DIR", "list the works in folder DIR (its sub-folders holding DESCR.~CE)", CmdWorks);
Registrar info("info", "info WORK",
               "show a work: its version, contents, description and whether CONVERTIR is enabled", CmdInfo);

}  // namespace
}  // namespace vardena::cli
