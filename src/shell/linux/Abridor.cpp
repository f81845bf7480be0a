#include "shell/linux/Abridor.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vardena {

bool LanzaDesligado(const std::vector<std::string>& argv, std::string* error)
{
    auto fail = [&](const std::string& why) {
        if (error)
            *error = why;
        return false;
    };
    if (argv.empty() || argv[0].empty())
        return fail("no program to start");
    std::vector<char*> args;
    for (const auto& a : argv)
        args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);

    // The grandchild reports a failed exec through this pipe; a successful exec closes it.
    int report[2];
    if (::pipe2(report, O_CLOEXEC) != 0)
        return fail(argv[0] + ": cannot be started: " + std::strerror(errno));
    const pid_t child = ::fork();
    if (child < 0) {
        const int e = errno;
        ::close(report[0]);
        ::close(report[1]);
        return fail(argv[0] + ": cannot be started: " + std::strerror(e));
    }
    if (child == 0) {
        // The child starts its own session and leaves at once, so that the program it starts
        // belongs to no one here and leaves no zombie behind.
        ::close(report[0]);
        ::setsid();
        const pid_t grandchild = ::fork();
        if (grandchild != 0) {
            if (grandchild < 0) {
                const int e = errno;
                (void)!::write(report[1], &e, sizeof e);
            }
            ::_exit(0);
        }
        const int devnull = ::open("/dev/null", O_RDWR);
        if (devnull >= 0) {
            ::dup2(devnull, 0);
            ::dup2(devnull, 1);
            if (devnull > 2)
                ::close(devnull);
        }
        ::execvp(args[0], args.data());
        const int e = errno;
        (void)!::write(report[1], &e, sizeof e);
        ::_exit(127);
    }
    ::close(report[1]);
    int e = 0;
    ssize_t n;
    do
        n = ::read(report[0], &e, sizeof e);
    while (n < 0 && errno == EINTR);
    ::close(report[0]);
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (n == static_cast<ssize_t>(sizeof e))
        return fail(argv[0] + ": cannot be started: " + std::strerror(e));
    return true;
}

AbridorLinux::AbridorLinux(std::string opener) : opener_(std::move(opener)) {}

std::string AbridorLinux::Opener() const
{
    if (!opener_.empty())
        return opener_;
    if (const char* o = std::getenv("VARDENA_OPENER"); o && *o)
        return o;
    return "xdg-open";
}

bool AbridorLinux::AbreDocumento(const std::string& pathOrUrl)
{
    if (pathOrUrl.empty())
        return false;
    // A relative name that begins with "-" would be read as an option of the opener.
    const std::string target = pathOrUrl.front() == '-' ? "./" + pathOrUrl : pathOrUrl;
    return LanzaDesligado({Opener(), target});
}

bool AbridorLinux::AbreCorreo(const std::string& address) { return AbreDocumento("mailto:" + address); }

}  // namespace vardena
