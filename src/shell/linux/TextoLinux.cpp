#include "shell/linux/TextoLinux.h"

namespace vardena {

int DigitoHex(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if ((c | 0x20) >= 'a' && (c | 0x20) <= 'f')
        return (c | 0x20) - 'a' + 10;
    return -1;
}

}  // namespace vardena
