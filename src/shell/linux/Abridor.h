#pragma once
// Opening documents and mail through the desktop: the opener program (xdg-open) is started
// detached, with the document as its one argument and no shell in between.

#include <string>
#include <vector>

#include "shell/Platform.h"

namespace vardena {

// Starts `argv` (argv[0] looked up in PATH) as a detached process with no shell, its standard
// input and output on /dev/null. True when the program was started; false when it could not be
// (not found, not executable, no process left), with the reason in `error`.
bool LanzaDesligado(const std::vector<std::string>& argv, std::string* error = nullptr);

class AbridorLinux : public ShellOpen {
public:
    // `opener` empty: $VARDENA_OPENER when set, else "xdg-open".
    explicit AbridorLinux(std::string opener = {});

    // Opens a file, folder or web address with the program the desktop gives it (verb "open").
    bool AbreDocumento(const std::string& pathOrUrl) override;
    // Opens the mail program on a new message to `address` ("mailto:" + address).
    bool AbreCorreo(const std::string& address) override;

    // The opener program this object starts.
    std::string Opener() const;

private:
    std::string opener_;
};

}  // namespace vardena
