// The error window's report: the system report from the machine's facts, the failure's text,
// and Error.txt on disk.

#include <gtest/gtest.h>

#include "works/InfoSistema.h"
#include "support/TestSupport.h"

namespace vardena::test {
namespace {

SystemFacts Maquina()
{
    SystemFacts f;
    f.systemName = "Debian GNU/Linux";
    f.systemVersion = "12";
    f.build = "6.1.0-18-amd64";
    f.servicePack = "#1 SMP PREEMPT_DYNAMIC";
    f.processor = "Intel(R) Xeon(R) CPU";
    f.cpuCount = 2;
    f.memoryTotal = 24ull * 1024 * 1024 * 1024;
    f.memoryFree = 5 * 1024;
    f.virtualTotal = 1024ull * 1024 * 1024;
    f.virtualFree = 0;
    f.drives = {{"/", "Disco duro", "raíz", 2048ull * 1024, 0, "1234-ABCD"},
                {"/media/usb", "Disquete", "", 1024, 0, ""}};
    return f;
}

TEST(InfoSistema, KilobytesHaveFourDigitsAtLeastAndSpanishGroups)
{
    struct Fila {
        unsigned long long bytes;
        const char* texto;
    };
    for (const Fila& f : {Fila{0, "0.000 Kb"}, Fila{1023, "0.000 Kb"}, Fila{5 * 1024, "0.005 Kb"},
                          Fila{1234ull * 1024, "1.234 Kb"}, Fila{1234567ull * 1024, "1.234.567 Kb"},
                          Fila{123456ull * 1024, "123.456 Kb"}})
        EXPECT_EQ(FormatoKb(f.bytes), f.texto) << f.bytes;
}

TEST(InfoSistema, ReportItemsInOrder)
{
    const std::string r = InfoSistema(Maquina());
    const char* orden[] = {"------------\r\n",
                           "Debian GNU/Linux  v12\r\n",
                           "Build: 6.1.0-18-amd64\r\n",
                           "CSDver: #1 SMP PREEMPT_DYNAMIC\r\n",
                           "Tipo CPU: Intel(R) Xeon(R) CPU\r\n",
                           "Nº de CPUs: 2\r\n",
                           "Mem.Física Total : 25.165.824 Kb\r\n",
                           "Mem.Física Libre : 0.005 Kb\r\n",
                           "Mem.Virtual Total: 1.048.576 Kb\r\n",
                           "Mem.Virtual Libre: 0.000 Kb\r\n",
                           "/\r\nTipo: Disco duro\r\nNumero serie: 1234-ABCD\r\nEtiqueta: raíz\r\nLibre: 2.048 Kb\r\n",
                           "/media/usb\r\nTipo: Disquete\r\n"};
    size_t desde = 0;
    for (const char* item : orden) {
        const size_t en = r.find(item, desde);
        ASSERT_NE(en, std::string::npos) << item << " after offset " << desde << " in\n" << r;
        desde = en + 1;
    }
    EXPECT_EQ(InfoSistema(SystemFacts{}).find("Tipo CPU: (desconocido)"), InfoSistema(SystemFacts{}).find("Tipo CPU"));
}

TEST(InfoSistema, ErrorTextAndErrorTxt)
{
    DatosError e;
    e.numero = 75;
    e.descripcion = "Error de acceso";
    e.fuente = "vardena-gui";
    e.origen = "Form_Load";
    const std::string t = TextoError(e, "01/02/2024 10:00:00", Maquina());
    EXPECT_EQ(t.rfind("Vardena v.3.500  \r\n", 0), 0u);
    for (const char* item : {"Se produjo un error el 01/02/2024 10:00:00\r\n", "Número: 75\r\n", "Causa: Error de acceso\r\n",
                             "Origen: vardena-gui\r\n", "Línea: 0\r\n", "Form_Load\r\n------------\r\n"})
        EXPECT_NE(t.find(item), std::string::npos) << item;
    EXPECT_EQ(TextoDetalle(e, t).rfind("Error Nº : 75\r\n", 0), 0u);

    ScratchDir dir;
    const std::string ruta = GuardaErrorTxt(dir.path(), t);
    const std::string raya(57, '-');
    const std::string escrito = ReadDiskText(ruta);
    EXPECT_EQ(escrito.rfind(raya + "\n", 0), 0u);
    EXPECT_EQ(escrito.substr(escrito.size() - raya.size() - 1), raya + "\n");
    EXPECT_NE(ReadBytes(ruta).find("\r\n"), std::string::npos);
    EXPECT_NE(ReadBytes(ruta).find("N\xBA de CPUs"), std::string::npos) << "written as Windows-1252";
    // Saved twice, the file is replaced and not added to.
    GuardaErrorTxt(dir.path(), "otro\r\n");
    EXPECT_EQ(ReadDiskText(ruta), raya + "\notro\n" + raya + "\n");
}

}  // namespace
}  // namespace vardena::test
