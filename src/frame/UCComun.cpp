#include "frame/UCComun.h"

#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Subrut.h"

namespace vardena {

std::string_view PropiedadCompuesta(const Control& c, std::span<const std::string_view> props, std::string_view prop)
{
    for (std::string_view p : props)
        if (SameNameNoCase(p, prop))
            return p;
    throw PropertyError(438, c.Label() + " (" + std::string(KindName(c.kind())) + ") has no property " +
                                 std::string(prop));
}

bool LeeBandera(const Control& c, std::string_view prop, std::string_view valor)
{
    if (SameNameNoCase(valor, "True") || SameNameNoCase(valor, "#TRUE#"))
        return true;
    if (SameNameNoCase(valor, "False") || SameNameNoCase(valor, "#FALSE#"))
        return false;
    if (valor.find_first_of("0123456789") != std::string_view::npos)
        return ValComaCopy(valor) != 0;
    throw PropertyError(13, c.Label() + "." + std::string(prop) + ": \"" + std::string(valor) +
                                "\" is not True or False");
}

std::string ValorOOmision(const Control& c, std::string_view prop, std::string_view omision)
{
    std::string v = c.RawGet(prop);
    return v.empty() ? std::string(omision) : v;
}

}  // namespace vardena
