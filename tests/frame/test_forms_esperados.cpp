// Named records of three forms against files written by hand from their field lists. A value
// "*" in an expected file stands for any value: list rows, titles and values that the
// composite controls compute are not design defaults of the field list.

#include <gtest/gtest.h>

#include "test_forms_comun.h"
#include "works/Registros.h"

namespace vardena::test {
namespace {

std::string Esperado(const std::string& form)
{
    return ReadBytes(std::string(VARDENA_TEST_DATA) + "/forms/" + form + ".named.txt");
}

// Compares line by line: the first column and the property always, the value unless the
// expected one is "*" or `soloForma` is set.
void ExpectMatches(const std::string& expected, const std::string& got, bool soloForma)
{
    const auto want = Lineas(expected);
    const auto have = Lineas(got);
    ASSERT_FALSE(want.empty()) << "expected file missing or empty";
    for (size_t i = 0; i < std::min(want.size(), have.size()); ++i) {
        const auto w = Columnas(want[i]);
        const auto h = Columnas(have[i]);
        EXPECT_EQ(h[0], w[0]) << "line " << i + 1;
        EXPECT_EQ(h[1], w[1]) << "line " << i + 1 << " " << w[0];
        if (!soloForma && w[2] != "*") {
            EXPECT_EQ(h[2], w[2]) << "line " << i + 1 << " " << w[0] << w[1];
        }
    }
    EXPECT_EQ(have.size(), want.size());
}

class HandWritten : public ::testing::TestWithParam<const char*> {};

TEST_P(HandWritten, FreshFormWritesTheExpectedRecord)
{
    ObraDePrueba obra;
    auto form = CreaForm(obra.d(), GetParam());
    ASSERT_NE(form, nullptr);
    ExpectMatches(Esperado(GetParam()), NamedText(*form), false);
}

TEST_P(HandWritten, LoadedFormKeepsTheFieldsOfTheExpectedRecord)
{
    ObraDePrueba obra;
    auto form = CargaForm(obra.d(), GetParam());
    ASSERT_NE(form, nullptr);
    const std::string path = obra.dir / "x";
    FormGuardaFile2(*form, path);
    ExpectMatches(Esperado(GetParam()), ReadDiskText(path), true);
}

INSTANTIATE_TEST_SUITE_P(Forms, HandWritten, ::testing::Values("frmZapCorr", "frmPilMet", "frmMuroH"));

}  // namespace
}  // namespace vardena::test
