// The command line on hand-made works: vardena works and vardena info.

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TestSupport.h"

namespace vardena {
namespace {

class CliInfo : public ::testing::Test {
protected:
    void Work(const std::string& name, const std::string& datos)
    {
        std::filesystem::create_directories(dir / name);
        if (!datos.empty())
            test::WriteDiskText(dir / (name + "/DATOS.~CE"), datos);
        test::WriteDiskText(dir / (name + "/DESCR.~CE"), "Obra " + name + "\nsegunda línea\n");
    }
    static std::string Datos(const std::string& version)
    {
        return "\"Vardena 3\"," + version +
               "\n1,1,0\n.25,.2,.1,.1,\"G\"\n.3,.14,.2,.04,\"A\"\n\"a\",.02\n\"b\",.144\n\"c\",.02\n\"d\",.005\n"
               "\"e\",.096\n\"f\",.02\n.305\n0\n60\n90\n180\n10\n20\n0\n.87\n1\n1.2\n3\n0,0,0\n#TRUE#\n0,0\n#FALSE#\n"
               "0,0\n#FALSE#\n400,1.7,1900,0,0\n#FALSE#\n25\n#TRUE#\n";
    }
    test::ScratchDir dir;
};

TEST_F(CliInfo, VersionAndConvertibility)
{
    Work("v301", Datos("3.01"));
    Work("v35", Datos("3.5"));
    test::WriteDiskText(dir / "v400/DATOS.~CE", "");
    Work("v400", "\"Vardena 4\",4\n1,1,0\n");
    Work("sin datos", "");
    struct Row {
        const char* work;
        const char* version;
        bool convertible;
    };
    const std::vector<Row> rows = {
        {"v301", "3.01", true}, {"v35", "3.50", false}, {"v400", "0.00", false}, {"sin datos", "0.00", false}};
    for (const auto& r : rows) {
        std::string out, err;
        ASSERT_EQ(test::RunCli("info '" + dir / r.work + "'", &out, &err), 0) << r.work << err;
        EXPECT_NE(out.find(std::string("version: ") + r.version + "\n"), std::string::npos) << r.work << out;
        EXPECT_NE(out.find(r.convertible ? "convertible: yes" : "convertible: no"), std::string::npos) << r.work;
        EXPECT_NE(out.find("Obra " + std::string(r.work) + "\nsegunda línea"), std::string::npos) << r.work;
    }
}

TEST_F(CliInfo, WorksListsFoldersWithADescription)
{
    Work("Casa", Datos("3.01"));
    Work("Nave", Datos("3.5"));
    std::filesystem::create_directories(dir / "vacía");
    std::string out;
    ASSERT_EQ(test::RunCli("works '" + dir.path() + "'", &out), 0);
    EXPECT_EQ(out, "Casa\nNave\n");
}

TEST_F(CliInfo, ErrorsAndUsage)
{
    std::string out, err;
    EXPECT_EQ(test::RunCli("works '" + dir / "no-existe" + "'", &out, &err), 1);
    EXPECT_NE(err.find("no-existe"), std::string::npos) << err;
    EXPECT_EQ(test::RunCli("info '" + dir / "no-existe" + "'", &out, &err), 1);
    EXPECT_NE(err.find("no-existe"), std::string::npos) << err;
    EXPECT_EQ(test::RunCli("info", &out, &err), 2);
    EXPECT_EQ(test::RunCli("nada", &out, &err), 2);
    EXPECT_EQ(test::RunCli("--version", &out, &err), 0);
    EXPECT_EQ(out, "vardena 3.50\n");
    EXPECT_EQ(test::RunCli("--help", &out, &err), 0);
    EXPECT_NE(out.find("info WORK"), std::string::npos);
}

}  // namespace
}  // namespace vardena
