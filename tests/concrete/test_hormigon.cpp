// The calculator of concrete properties by age: the strengths and moduli at age j by hardening
// and aggregate, against figures worked by hand from the formulas
//   fck,j = fck beta; fcm = fck + 8; fcm,j = fcm beta; Eoj = 10000 fcm^(1/3) Fa Fe;
//   Ej = 0.85 Eoj; t = fck,j^(2/3); fct = 0.21 t, 0.30 t, 0.39 t cut to two decimals;
// what it leaves for the beams, its bad input and its window's groups.

#include <gtest/gtest.h>

#include "application/Aplicacion.h"
#include "building/DatosGen.h"
#include "concrete/Hormigon.h"
#include "frame/Formularios.h"
#include "frame/GruposVentana.h"
#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "works/LngPack.h"

namespace vardena {
namespace {

using test::TestApp;

// The eight result labels in the order of the formulas.
const char* const kEtiquetas[] = {"Lbfckj", "Lbfcm", "Lbfcmj", "LbE0j", "LbEj", "Lbfctk", "Lbfctm", "Lbfct95"};
using Valores = std::array<const char*, 8>;

class ConcreteByAge : public ::testing::Test {
protected:
    void SetUp() override { CargaMensajesDesde(app.decl, ResourceDir() + "/lng/Español/MsgVardena.txt"); }
    std::unique_ptr<FrmHormigon> Carga()
    {
        std::unique_ptr<Form> f = CargaForm(app.decl, "frmHormigon");
        auto* h = dynamic_cast<FrmHormigon*>(f.get());
        EXPECT_NE(h, nullptr);
        f.release();
        return std::unique_ptr<FrmHormigon>(h);
    }
    static void EsperaValores(const Form& f, const Valores& v)
    {
        for (size_t i = 0; i < v.size(); ++i)
            EXPECT_EQ(f.At(kEtiquetas[i]).Caption(), v[i]) << kEtiquetas[i];
    }
    TestApp app;
};

TEST_F(ConcreteByAge, LoadsWithItsListsAtTwentyEightDays)
{
    app.decl.FactorArido = 1.3f;
    app.decl.FactorEdadE = 0.8f;
    auto f = Carga();
    EXPECT_EQ(f->Caption(), "Características mecánicas del hormigón");
    EXPECT_EQ(f->At("CmdCalcular").Caption(), "CALCULAR");
    EXPECT_EQ(f->At("TxFck28").Text(), "25");
    const Control& arido = f->At("CmbArido");
    ASSERT_EQ(arido.ListCount(), 8);
    EXPECT_EQ(arido.List(0), "Cuarcita");
    EXPECT_EQ(arido.List(6), "Granito y rocas plutónicas");
    EXPECT_EQ(arido.List(7), "Diabasas");
    EXPECT_EQ(f->At("CmbEdad").Items(), (std::vector<std::string>{"3", "7", "28", "90", "360"}));
    EXPECT_EQ(f->At("CmbEndur").Items(), (std::vector<std::string>{"normal", "rápido"}));
    EXPECT_EQ(arido.ListIndex(), 0);
    EXPECT_EQ(f->At("CmbEdad").ListIndex(), 2);
    EXPECT_EQ(f->At("CmbEndur").ListIndex(), 0);
    // Opening it takes the factors of its defaults: quartzite, 28 days.
    EXPECT_FLOAT_EQ(app.decl.FactorArido, 1);
    EXPECT_FLOAT_EQ(app.decl.FactorEdadE, 1);
    EXPECT_FLOAT_EQ(f->BetaFck(), 1);
    EsperaValores(*f, {"25", "33", "33", "32075", "27264", "1.79", "2.56", "3.33"});
    EXPECT_NEAR(app.decl.ModuloHormigon, 27264.04, 0.01);
    EXPECT_TRUE(app.ui.errors.empty());
}

// fck = 25 on quartzite: fcm = 33, 33^(1/3) = 3.207534.
TEST_F(ConcreteByAge, AgeAndHardeningGiveTheFactorsOfTheirRow)
{
    struct Caso {
        int edad;   // row of CmbEdad
        int endur;  // row of CmbEndur
        float beta, factorE;
        Valores valores;
    };
    const std::vector<Caso> casos = {
        // Normal hardening.
        {0, 0, 0.4f, 0.63f, {"10", "33", "13.2", "20207", "17176", "0.97", "1.39", "1.81"}},
        {1, 0, 0.65f, 0.8f, {"16.25", "33", "21.45", "25660", "21811", "1.34", "1.92", "2.5"}},
        {2, 0, 1, 1, {"25", "33", "33", "32075", "27264", "1.79", "2.56", "3.33"}},
        {3, 0, 1.2f, 1.09f, {"30", "33", "39.6", "34962", "29717", "2.02", "2.89", "3.76"}},
        {4, 0, 1.35f, 1.16f, {"33.75", "33", "44.55", "37207", "31626", "2.19", "3.13", "4.07"}},
        // Rapid hardening.
        {0, 1, 0.55f, 0.74f, {"13.75", "33", "18.15", "23735", "20175", "1.2", "1.72", "2.23"}},
        {1, 1, 0.75f, 0.87f, {"18.75", "33", "24.75", "27905", "23719", "1.48", "2.11", "2.75"}},
        {2, 1, 1, 1, {"25", "33", "33", "32075", "27264", "1.79", "2.56", "3.33"}},
        {3, 1, 1.15f, 1.07f, {"28.75", "33", "37.95", "34320", "29172", "1.97", "2.81", "3.66"}},
        {4, 1, 1.2f, 1.09f, {"30", "33", "39.6", "34962", "29717", "2.02", "2.89", "3.76"}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(testing::Message() << "age row " << c.edad << ", hardening row " << c.endur);
        auto f = Carga();
        // Either list may change last: each reads the other.
        f->At("CmbEdad").SetListIndex(c.edad);
        f->At("CmbEndur").SetListIndex(c.endur);
        EXPECT_FLOAT_EQ(f->BetaFck(), c.beta);
        EXPECT_FLOAT_EQ(app.decl.FactorEdadE, c.factorE);
        EsperaValores(*f, c.valores);
        auto g = Carga();
        g->At("CmbEndur").SetListIndex(c.endur);
        g->At("CmbEdad").SetListIndex(c.edad);
        EsperaValores(*g, c.valores);
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

// At 28 days the aggregate scales the moduli only: Eoj = 32075.34 Fa, Ej = 27264.04 Fa.
TEST_F(ConcreteByAge, AggregateScalesTheModuli)
{
    struct Caso {
        int arido;
        float factor;
        const char* eoj;
        const char* ej;
    };
    const std::vector<Caso> casos = {
        {0, 1.0f, "32075", "27264"}, {1, 0.7f, "22452", "19084"}, {2, 0.9f, "28867", "24537"},
        {3, 1.2f, "38490", "32716"}, {4, 0.9f, "28867", "24537"}, {5, 1.2f, "38490", "32716"},
        {6, 1.1f, "35282", "29990"}, {7, 1.3f, "41697", "35443"},
    };
    auto f = Carga();
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.arido);
        f->At("CmbArido").SetListIndex(c.arido);
        EXPECT_FLOAT_EQ(app.decl.FactorArido, c.factor);
        EsperaValores(*f, {"25", "33", "33", c.eoj, c.ej, "1.79", "2.56", "3.33"});
    }
    // Aggregate and age together: fck 30, 7 days rapid, dense limestone.
    f->At("TxFck28").SetText("30");
    f->At("CmbArido").SetListIndex(3);
    f->At("CmbEdad").SetListIndex(1);
    f->At("CmbEndur").SetListIndex(1);
    EsperaValores(*f, {"22.5", "38", "28.5", "35099", "29834", "1.67", "2.39", "3.1"});
    EXPECT_NEAR(app.decl.ModuloHormigon, 29834.17, 0.01);
}

// A strength that is no number reads as 0: the cube root of 8 gives Eoj = 20000 times the
// factors, and no tension. A comma is a decimal mark. The button recalculates what the field holds.
TEST_F(ConcreteByAge, StrengthThatIsNoNumberReadsAsZero)
{
    struct Caso {
        const char* texto;
        int arido;
        Valores valores;
    };
    const std::vector<Caso> casos = {
        {"", 0, {"0", "8", "8", "20000", "17000", "0", "0", "0"}},
        {"abc", 7, {"0", "8", "8", "26000", "22100", "0", "0", "0"}},
        {"30,0", 3, {"30", "38", "38", "40343", "34292", "2.02", "2.89", "3.76"}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.texto);
        auto f = Carga();
        f->At("CmbArido").SetListIndex(c.arido);
        f->At("TxFck28").SetText(c.texto);
        EsperaValores(*f, c.valores);
        for (const char* e : kEtiquetas)
            f->At(e).SetCaption("");
        f->At("CmdCalcular").Click();
        EsperaValores(*f, c.valores);
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

// A formula the run time cannot evaluate goes to the error window under the handler's name,
// naming the strength as typed; the labels written before it stay.
TEST_F(ConcreteByAge, FormulaThatCannotBeEvaluatedGoesToTheErrorWindow)
{
    struct Caso {
        const char* nombre;
        int edad;
        const char* fck;
        bool boton;  // pressed CALCULAR, else typed
        int numero;
        const char* origen;
        const char* dice;
        Valores valores;  // "" for a label left as the load wrote it
    };
    const std::vector<Caso> casos = {
        {"tension of a negative strength", 2, "-5", false, 5, "TxFck28_Change", "= -5 la fórmula eleva un número negativo",
         {"-5", "3", "3", "14422", "12259", "1.79", "2.56", "3.33"}},
        {"modulus of a negative mean strength", 2, "-20", true, 5, "CmdCalcular_Click", "Res.caract. a 28 días = -20",
         {"-20", "-12", "-12", "32075", "27264", "1.79", "2.56", "3.33"}},
        {"strength beyond a Single", 2, "1e39", true, 6, "CmdCalcular_Click", "Desbordamiento: con Res.caract. a 28 días = 1e39",
         {"25", "33", "33", "32075", "27264", "1.79", "2.56", "3.33"}},
        {"strength at 90 days beyond a Single", 3, "3e38", false, 6, "TxFck28_Change", "= 3e38",
         {"30", "33", "39.6", "34962", "29717", "2.02", "2.89", "3.76"}},
    };
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.nombre);
        app.ui.errors.clear();
        auto f = Carga();
        f->At("CmbEdad").SetListIndex(c.edad);
        if (c.boton) {
            // Typed while the window held a number that fails nowhere, then pressed.
            f->At("TxFck28").onChange = nullptr;
            f->At("TxFck28").SetText(c.fck);
            EXPECT_THROW(f->At("CmdCalcular").Click(), ProgramHalt);
        } else {
            EXPECT_THROW(f->At("TxFck28").SetText(c.fck), ProgramHalt);
        }
        ASSERT_EQ(app.ui.errors.size(), 1u);
        EXPECT_EQ(app.ui.errors[0].origin, c.origen);
        EXPECT_EQ(app.ui.errors[0].number, c.numero);
        EXPECT_NE(app.ui.errors[0].description.find(c.dice), std::string::npos) << app.ui.errors[0].description;
        EXPECT_EQ(f->At("TxFck28").Text(), c.fck) << "the value typed stays";
        EsperaValores(*f, c.valores);
    }
}

// The hardening is compared with the word "normal": a pack whose message 169 says something
// else takes the rows of rapid hardening for both entries; an age outside the list changes nothing.
TEST_F(ConcreteByAge, HardeningIsTheWordNormal)
{
    struct Caso {
        int edad;
        const char* texto;
        float beta, factorE;
    };
    const std::vector<Caso> casos = {
        {0, "normal", 0.4f, 0.63f}, {0, "Normal", 0.55f, 0.74f}, {4, "rápido", 1.2f, 1.09f},
        {4, "", 1.2f, 1.09f},       {3, "normal ", 1.15f, 1.07f},
    };
    auto f = Carga();
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.texto);
        f->CalculaBetas(c.edad, c.texto);
        EXPECT_FLOAT_EQ(f->BetaFck(), c.beta);
        EXPECT_FLOAT_EQ(app.decl.FactorEdadE, c.factorE);
    }
    f->CalculaBetas(-1, "normal");
    f->CalculaBetas(5, "normal");
    EXPECT_FLOAT_EQ(f->BetaFck(), 1.15f);
    EXPECT_FLOAT_EQ(app.decl.FactorEdadE, 1.07f);

    app.decl.Mensajes[169] = "normale";
    auto g = Carga();
    EXPECT_FLOAT_EQ(g->BetaFck(), 1);
    g->At("CmbEdad").SetListIndex(0);
    EXPECT_FLOAT_EQ(g->BetaFck(), 0.55f);
    EXPECT_FLOAT_EQ(app.decl.FactorEdadE, 0.74f);
}

// In every shipped language the lists come from its messages and its word for normal
// hardening is "normal", so that both rows of CmbEndur keep their factors.
TEST_F(ConcreteByAge, EachLanguageNamesItsListsAndKeepsTheHardeningRows)
{
    struct Caso {
        const char* idioma;
        const char* caption;
        const char* cuarcita;
        const char* rapido;
    };
    const std::vector<Caso> casos = {
        {"Español", "Características mecánicas del hormigón", "Cuarcita", "rápido"},
        {"English", "Properties of concrete by age", "Quartzite", "rapid"},
        {"Català", "Característiques mecàniques del formigó", "Quarsita", "ràpid"},
    };
    app.decl.DirPrograma = ResourceDir();
    for (const Caso& c : casos) {
        SCOPED_TRACE(c.idioma);
        SaveSetting(app.decl, "Preferencias", "Lenguaje", c.idioma);
        CargaIdioma(app.decl);
        auto f = Carga();
        EXPECT_EQ(f->Caption(), c.caption);
        EXPECT_EQ(f->At("CmbArido").List(0), c.cuarcita);
        EXPECT_EQ(f->At("CmbEndur").Items(), (std::vector<std::string>{"normal", c.rapido}));
        f->At("CmbEdad").SetListIndex(0);
        EXPECT_FLOAT_EQ(f->BetaFck(), 0.4f);
        f->At("CmbEndur").SetListIndex(1);
        EXPECT_FLOAT_EQ(f->BetaFck(), 0.55f);
        EsperaValores(*f, {"13.75", "33", "18.15", "23735", "20175", "1.2", "1.72", "2.23"});
    }
    EXPECT_TRUE(app.ui.errors.empty());
}

// The beams' modulus: 850000 (fck / 100 + 8)^(1/3) Fa Fe with fck of the general data in t/m2;
// the general data's load puts both factors back to 1.
TEST_F(ConcreteByAge, BeamModulusTakesTheFactorsLeftBehind)
{
    struct Caso {
        float fck;
        float arido, edad;
        double modulo;
    };
    const std::vector<Caso> casos = {
        {2500, 1, 1, 2726404.2},           // 850000 x 33^(1/3)
        {0, 1, 1, 1700000},                // 850000 x 2
        {2500, 1.2f, 1.09f, 3566136.7},    // dense limestone at 90 days
        {3000, 0.7f, 0.63f, 1260236.5},    // sandstone at 3 days: 850000 x 38^(1/3) x 0.441
    };
    for (const Caso& c : casos) {
        app.decl.GenFckHorm = c.fck;
        app.decl.FactorArido = c.arido;
        app.decl.FactorEdadE = c.edad;
        EXPECT_NEAR(ModuloHormigonVigas(app.decl), c.modulo, 2) << c.fck << " " << c.arido << " " << c.edad;
    }
    auto f = Carga();
    f->At("CmbArido").SetListIndex(7);
    f->At("CmbEdad").SetListIndex(4);
    EXPECT_FLOAT_EQ(app.decl.FactorArido, 1.3f);
    EXPECT_FLOAT_EQ(app.decl.FactorEdadE, 1.16f);
    DatosGen datos(app.decl);
    datos.Form_Load();
    EXPECT_FLOAT_EQ(app.decl.FactorArido, 1);
    EXPECT_FLOAT_EQ(app.decl.FactorEdadE, 1);
}

// The window: the data frame and the results frame, each field and value in a row with what it
// is and its symbol.
TEST_F(ConcreteByAge, WindowStandsInItsTwoFrames)
{
    auto f = Carga();
    const std::vector<GrupoCampos> grupos = AgrupaCampos(*f);
    ASSERT_EQ(grupos.size(), 2u);
    const GrupoCampos& datos = grupos[0];
    EXPECT_EQ(datos.titulo, "Datos iniciales");
    EXPECT_TRUE(datos.tabla);
    EXPECT_EQ(datos.columna, 0);
    struct Fila {
        const GrupoCampos& g;
        size_t i;
        const char* valor;
        const char* nombre;
        std::vector<std::string> junto;
    };
    const GrupoCampos& res = grupos[1];
    EXPECT_EQ(res.titulo, "Resultados");
    EXPECT_EQ(res.columna, 1);
    ASSERT_EQ(datos.miembros.size(), 4u);
    ASSERT_EQ(res.miembros.size(), 8u);
    const std::vector<Fila> filas = {
        {datos, 0, "TxFck28", "Res.caract. a 28 días", {"fck28", "N/mm2"}},
        {datos, 1, "CmbArido", "Tipo de árido:", {}},
        {datos, 2, "CmbEdad", "Edad en días (j):", {}},
        {datos, 3, "CmbEndur", "Endurecimiento:", {}},
        {res, 0, "Lbfckj", "Resistencia característica a los j días", {"fck,j"}},
        {res, 3, "LbE0j", "Módulo tangente", {"Eoj"}},
        {res, 4, "LbEj", "Módulo secante", {"Ej"}},
        {res, 7, "Lbfct95", "Resistencia característica superior a tracción", {"fct,0.95,j"}},
    };
    for (const Fila& fila : filas) {
        const Control* c = fila.g.miembros[fila.i];
        EXPECT_EQ(c->Name(), fila.valor);
        ASSERT_TRUE(fila.g.etiquetas.count(c)) << fila.valor;
        EXPECT_EQ(fila.g.etiquetas.at(c)->Caption(), fila.nombre);
        std::vector<std::string> junto;
        if (fila.g.junto.count(c))
            for (const Control* s : fila.g.junto.at(c))
                junto.push_back(s->Caption());
        EXPECT_EQ(junto, fila.junto) << fila.valor;
    }
}

}  // namespace
}  // namespace vardena
