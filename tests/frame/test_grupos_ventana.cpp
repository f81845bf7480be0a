// How an element window groups its controls: a field that no group shows cannot be edited, a
// field shown twice is edited in two places, and the frame's own controls belong to the side
// panel, not to the data.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "application/Aplicacion.h"
#include "frame/ElementForm.h"
#include "frame/Formularios.h"
#include "frame/GruposVentana.h"
#include "test_forms_comun.h"
#include "works/Catalogo.h"
#include "works/LngPack.h"

namespace vardena::test {
namespace {

// A work in which the Spanish pack gives the group titles.
struct ObraConIdioma : ObraDePrueba {
    ObraConIdioma()
    {
        d().DirPrograma = ResourceDir();
        SaveSetting(d(), "Preferencias", "Lenguaje", "Español");
        CargaIdioma(d());
    }
};

class Agrupacion : public ::testing::TestWithParam<const TablaForm*> {};

TEST_P(Agrupacion, EveryStoredFieldStandsInExactlyOneGroup)
{
    ObraConIdioma obra;
    auto form = CreaForm(obra.d(), GetParam()->nombre);
    ASSERT_TRUE(form);
    std::map<const Control*, int> veces;
    for (const GrupoCampos& g : AgrupaCampos(*form)) {
        // A group is titled, or its first label says what it holds.
        EXPECT_TRUE(!g.titulo.empty() || g.miembros.front()->kind() == Kind::Label) << "a group without a title";
        for (const Control* c : g.miembros) {
            ++veces[c];
            EXPECT_FALSE(EsDelMarco(c->Name())) << c->Label() << " belongs to the window's frame";
        }
    }
    for (const Control* c : form->StoredControls())
        EXPECT_EQ(veces[c], 1) << c->Label();
}

INSTANTIATE_TEST_SUITE_P(Tables, Agrupacion, ::testing::ValuesIn(FormsDelCatalogo()),
                         [](const auto& info) { return NombreDe(info.param); });

// The identity opens the window and the results close it; a control array keeps its members
// together, in index order, whatever order the record stores them in.
TEST(Agrupacion, IdentityFirstResultsLastArraysInIndexOrder)
{
    struct Caso {
        const char* form;
        const char* array;
    };
    for (const Caso& caso : {Caso{"frmZapCorr", "TxtQ"}, Caso{"frmForMade", "txtForj"}, Caso{"frmMuros", "TxtCota"}}) {
        SCOPED_TRACE(caso.form);
        ObraConIdioma obra;
        auto form = CreaForm(obra.d(), caso.form);
        const std::vector<GrupoCampos> grupos = AgrupaCampos(*form);
        ASSERT_GE(grupos.size(), 3u);
        EXPECT_EQ(grupos.front().titulo, obra.d().Msg(1500));
        EXPECT_EQ(grupos.front().miembros.front()->Name(), "txtTitulo");
        EXPECT_TRUE(StartsWithNoCase(grupos.back().miembros.front()->Name(), "TxtRes"));
        EXPECT_EQ(grupos.back().titulo, form->At("UCframe2").Caption());
        int anterior = -1, vistos = 0;
        for (const GrupoCampos& g : grupos)
            for (const Control* c : g.miembros)
                if (c->Name() == caso.array) {
                    EXPECT_GT(c->Index(), anterior);
                    anterior = c->Index();
                    ++vistos;
                }
        const auto todos = form->Controls();
        EXPECT_EQ(vistos, static_cast<int>(std::count_if(todos.begin(), todos.end(),
                                                          [&](const Control* c) { return c->Name() == caso.array; })));
    }
}


// The spans editor of the beams stands as a grid: the cells under their headings row by row,
// empty where a row has no value of that column, and each field in one cell only.
TEST(Agrupacion, SpansEditorIsAGridOfLengthsAndLoads)
{
    for (const char* nombre : {"frmVigHorm", "frmVigRegHorm"}) {
        SCOPED_TRACE(nombre);
        ObraConIdioma obra;
        auto form = CreaForm(obra.d(), nombre);
        const std::vector<GrupoCampos> grupos = AgrupaCampos(*form);
        auto it = std::find_if(grupos.begin(), grupos.end(), [](const GrupoCampos& g) {
            return !g.cabeceras.empty() &&
                   std::any_of(g.miembros.begin(), g.miembros.end(), [](const Control* c) { return c->Name() == "TxCota"; });
        });
        ASSERT_NE(it, grupos.end());
        EXPECT_EQ(it->cabeceras, (std::vector<std::string>{"", "Longitud (m)", "Carga"}));
        ASSERT_EQ(it->celdas.size(), it->rotulosFilas.size() * (it->cabeceras.size() - 1));
        auto celda = [&](size_t fila, size_t col) {
            const Control* c = it->celdas[fila * 2 + col];
            return c ? c->Name() + "(" + std::to_string(c->Index()) + ")" : std::string("-");
        };
        const std::vector<std::array<std::string, 3>> esperadas = {
            {"Vano entre apoyos", "TxCota(1)", "-"}, {"Tramo 1", "TxCota(2)", "TxtQ(1)"},
            {"Tramo 2", "TxCota(3)", "TxtQ(2)"},     {"Tramo 3", "-", "TxtQ(3)"},
            {"P a 1/3 del vano", "-", "TxtQ(5)"},    {"P a 2/3 del vano", "-", "TxtQ(6)"},
        };
        ASSERT_EQ(it->rotulosFilas.size(), esperadas.size());
        for (size_t f = 0; f < esperadas.size(); ++f) {
            EXPECT_EQ(it->rotulosFilas[f], esperadas[f][0]);
            EXPECT_EQ(celda(f, 0), esperadas[f][1]) << esperadas[f][0];
            EXPECT_EQ(celda(f, 1), esperadas[f][2]) << esperadas[f][0];
        }
        EXPECT_EQ(it->miembros.size(), 8u);
    }
}

}  // namespace
}  // namespace vardena::test
