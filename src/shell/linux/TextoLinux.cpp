#include "shell/linux/TextoLinux.h"

namespace vardena {

std::vector<std::string> LineasDe(std::string_view text)
{
    std::vector<std::string> lines;
    size_t pos = 0;
    while (pos < text.size()) {
        size_t end = text.find('\n', pos);
        if (end == std::string_view::npos)
            end = text.size();
        std::string_view l = text.substr(pos, end - pos);
        if (!l.empty() && l.back() == '\r')
            l.remove_suffix(1);
        lines.emplace_back(l);
        pos = end + 1;
    }
    return lines;
}

int DigitoHex(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if ((c | 0x20) >= 'a' && (c | 0x20) <= 'f')
        return (c | 0x20) - 'a' + 10;
    return -1;
}

}  // namespace vardena
