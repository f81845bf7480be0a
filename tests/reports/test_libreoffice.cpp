// Every fragment the report writer makes, opened by a real word processor: LibreOffice must
// convert the document and find its texts, accents, tables and units in it.

#include <gtest/gtest.h>

#include <filesystem>
#include <string_view>

#include "reports/RtfLector.h"
#include "reports/MuestraInforme.h"
#include "reports/mRtf.h"
#include "support/TestSupport.h"

namespace vardena {
namespace {

TEST(LibreOffice, ConvertsEveryFragmentTheWriterMakes)
{
    const std::string soffice = test::OnPath("soffice");
    if (soffice.empty())
        GTEST_SKIP() << "soffice is not on PATH";
    test::TestApp app;
    app.decl.Unidades = 2;
    test::ScratchDir dir;
    Informe inf(app.decl);
    test::EveryFragment(inf);
    const std::string rtf = dir / "informe.rtf";
    inf.Guarda(rtf);

    const auto convert = [&](const std::string& filter, const std::string& out) {
        return test::ConvierteConLibreOffice(soffice, dir.path(), rtf, filter, out);
    };
    const std::string text = test::TextoDeLibreOffice(soffice, dir.path(), rtf, "informe.txt");
    ASSERT_FALSE(text.empty());

    for (const char* piece : {
             "Informe de comprobación", "Obra: Edificio ÁTICO © 2024", "Datos generales",
             "\tNúmero de plantas:\t3", "\tLínea sin segundo texto", "\tSegundo texto vacío\t",
             "\tMomento máximo:\t12.5 m·kN", "2.5 N/mm2 / 25 kg/cm2", "3.2 m3, inercia 1.1 m4",
             "c añadió:\t1.5", "Primera línea\nsegunda línea", "Fila añadida", "No procede",
             "Definido (Sí/No)", "Plano de cimentación", "Zapatas de hormigón", "Forjado planta 1ª",
             "Notas: el cálculo se hizo según la EHE.", "Fin del informe",
         })
        EXPECT_NE(text.find(piece), std::string::npos) << piece << "\n" << text;
    for (const char* title : {"Dos uno", "Dos dos", "Tres 1", "Tres 2", "Tres 3", "Cuatro 1", "Cuatro 2"})
        EXPECT_NE(text.find(title), std::string::npos) << title;
    // No mark-up leaks into the text: every control word was understood or skipped.
    EXPECT_EQ(text.find('\\'), std::string::npos) << text;
    EXPECT_EQ(text.find('{'), std::string::npos) << text;

    // The tables are tables to the word processor, rows after the first included.
    const std::string html = convert("html:HTML (StarWriter)", "informe.html");
    const auto count = [&](std::string_view what) {
        size_t n = 0;
        for (size_t k = html.find(what); k != std::string::npos; k = html.find(what, k + 1))
            ++n;
        return n;
    };
    EXPECT_EQ(count("<table"), 8u);
    EXPECT_EQ(count("<tr"), 2u + 2u + 3 * 2u + 2 * 3u + 1u);
    EXPECT_EQ(count("<td"), 4u + 4u + 3 * 6u + 2 * 12u + 1u);

    // Our own reader finds the same texts.
    const std::string ours = RtfATexto(test::ReadBytes(rtf));
    for (const char* piece : {"Obra: Edificio ÁTICO © 2024", "\tMomento máximo:\t12.5 m·kN", "Coeficiente γc añadió:",
                              "Zapatas de hormigón", "2.5 N/mm² / 25 kg/cm²", "Primera línea\nsegunda línea"})
        EXPECT_NE(ours.find(piece), std::string::npos) << piece << "\n" << ours;
}

}  // namespace
}  // namespace vardena
