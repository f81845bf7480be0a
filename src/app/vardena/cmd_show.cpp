// vardena show: the text of a report or results file, as plain text or as HTML.

#include "Commands.h"
#include "reports/RtfLector.h"
#include "base/FileIo.h"

namespace vardena::cli {
namespace {

int CmdShow(Aplicacion&, const std::vector<std::string>& args)
{
    std::string file;
    bool html = false;
    for (const auto& a : args) {
        if (a == "--html")
            html = true;
        else if (a.rfind("--", 0) == 0 || !file.empty())
            return Usage("show");
        else
            file = a;
    }
    if (file.empty())
        return Usage("show");
    std::string bytes;
    try {
        bytes = ReadFileBytes(file);
    } catch (const FileError& e) {
        return Fail(e.what());
    }
    std::cout << (html ? RtfAHtml(bytes) : RtfATexto(bytes));
    std::cout.flush();
    return std::cout ? kOk : Fail("the text of " + file + " could not be written out");
}

Registrar show("show", "show FILE [--html]",
               "print the text of a report or results file (RTF) as plain text, or as HTML with --html", CmdShow);

}  // namespace
}  // namespace vardena::cli
