// The conversion end to end on the sample works: every record served comes out in the named
// format holding exactly the values of the old one (the soil with its figures recalculated), and
// everything else stays as it was.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

#include "concrete/PilHorm.h"
#include "frame/Formularios.h"
#include "support/TestSupport.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "base/Codepage.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "application/Conversion.h"
#include "base/Form.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "base/VbInput.h"

namespace vardena {
namespace {

namespace fs = std::filesystem;
using test::Snapshot;
Snapshot Take(const std::string& folder) { return test::TakeSnapshot(folder); }

// The raw values of a record, control by control, in either format: "Name(i).Prop" -> value.
using Values = std::map<std::string, std::string>;

Values PositionalValues(const Form& form, const std::string& bytes)
{
    Values v;
    const std::string text = Cp1252ToUtf8(bytes);
    FieldReader r(text);
    for (const Control* c : form.StoredControls()) {
        const std::string key = c->Label();
        EXPECT_EQ(r.Text(), c->Name());
        switch (c->kind()) {
        case Kind::ComboBox: {
            int s = r.Integer();
            v[key + ".ListIndex"] = std::to_string(c->Name() == "CmbHorm" ? CmbHormDeIndiceGuardado(s) : s);
            break;
        }
        case Kind::TextBox: v[key + ".Text"] = r.Text(); break;
        case Kind::OptionButton: v[key + ".Value"] = r.Boolean() ? "True" : "False"; break;
        case Kind::CheckBox: v[key + ".Value"] = std::to_string(r.Integer()); break;
        case Kind::UCPerfil: {
            v[key + ".Num"] = r.Text();
            const std::string perfil = r.Text();
            v[key + ".Perfil"] = perfil;
            const bool user = SameNameNoCase(perfil, "otro") || SameNameNoCase(perfil, "xxx");
            v[key + (user ? ".Canto" : ".Tamano")] = r.Text();
            v[key + ".Ancho"] = r.Text();
            if (user)
                for (const char* p : {".Area", ".Ix", ".Iy"})
                    v[key + p] = r.Text();
            break;
        }
        default:
            for (const auto& p : StoredProperties(c->kind())) {
                std::string t = r.Text();
                v[key + "." + p] = t.substr(std::min(t.find_first_not_of(' '), t.size()));
            }
        }
    }
    return v;
}

Values NamedValues(const std::string& bytes)
{
    Values v;
    std::string name;
    std::string text = Cp1252ToUtf8(bytes);
    size_t pos = text.find('\n');
    for (size_t start = pos + 1; start < text.size();) {
        size_t end = text.find('\n', start);
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        start = end == std::string::npos ? text.size() : end + 1;
        size_t t1 = line.find('\t'), t2 = line.find('\t', t1 + 1);
        if (t1 != 0)
            name = line.substr(0, line.find(' '));
        v[name + line.substr(t1 + 1, t2 - t1 - 1)] = line.substr(t2 + 1);
    }
    return v;
}

// The fields of the actions record that the conversion calculates again.
constexpr const char* kResultadosAcciones[] = {"txtSobrNieve", "txtEsb", "txtPres", "txtSuc", "txtEsby", "txtPresy",
                                               "txtSucy",      "txtS",   "TextAc",  "txtTf",  "txtModo"};

class Conversion : public ::testing::Test {
protected:
    void SetUp() override { fs::copy(VARDENA_EXAMPLES, dir.path(), fs::copy_options::recursive); }
    std::string Work(const std::string& name) const { return dir / name; }
    test::ScratchDir dir;
    test::TestApp app;
};

TEST_F(Conversion, EveryServedRecordKeepsItsValues)
{
    std::set<std::string> codesSeen;
    for (const std::string work : {"Vivienda Ruiz", "Edificio Oroel", "Local Arce", "Taller Moncayo"}) {
        SCOPED_TRACE(work);
        const Snapshot before = Take(Work(work));
        std::string out, err;
        ASSERT_EQ(test::RunCli("convert '" + Work(work) + "'", &out, &err), 0) << out << err;
        const Snapshot after = Take(Work(work));
        EXPECT_EQ(after.at("DATOS.~CE").rfind("\"Vardena 3\",3.5\r\n", 0), 0u);

        for (const auto& [name, old] : before) {
            SCOPED_TRACE(name);
            const std::string code = name.size() > 3 ? name.substr(name.size() - 2) : "";
            const bool record = name.size() > 4 && name[name.size() - 3] == '~';
            const bool results = name.size() > 4 && name[name.size() - 3] == 'l' && name[name.size() - 4] == '.';
            ASSERT_TRUE(after.count(name)) << "no file disappears";
            if (name == "DATOS.~CE" || name == "Datos.lCE")
                continue;
            const std::string title = name.substr(0, name.size() - 4);
            const bool hasResults = before.count(title + ".l" + code) > 0;
            if (results && code == "CS") {
                EXPECT_EQ(after.at(name).rfind("{\\rtf1\\ansi\\ansicpg1252", 0), 0u) << "the soil's report, written anew";
                EXPECT_NE(after.at(name).find("Terreno: " + title), std::string::npos);
                continue;
            }
            if (results && code == "CK") {
                // The actions are calculated again: their results file is the new report.
                const std::string report = Cp1252ToUtf8(after.at(name));
                EXPECT_EQ(report.rfind("{\\rtf1\\ansi\\ansicpg1252", 0), 0u);
                EXPECT_NE(report.find(work), std::string::npos) << "headed by the work's name";
                continue;
            }
            if (!record || code == "CE" || FormDeCodigo(code).empty() || !hasResults) {
                EXPECT_EQ(after.at(name), old) << "left byte for byte as it was";
                continue;
            }
            const std::string& now = after.at(name);
            if (title == "Zapata antigua") {
                EXPECT_EQ(now, old) << "a record holding another title writes a new file; the old one stays";
                continue;
            }
            ASSERT_EQ(now.rfind("Vardena 3\t3.50\r\n", 0), 0u) << "named format";
            codesSeen.insert(code);
            app.decl.CarpetaObra = Work(work);
            auto form = CargaForm(app.decl, FormDeCodigo(code));
            ASSERT_TRUE(form);
            Values nuevos = NamedValues(now);
            Values viejos = PositionalValues(*form, old);
            if (code == "CS") {
                // The soil is recalculated: its figures are new, every other field is as it was.
                for (const std::string campo : {"txtNc", "txtNq", "txtNg", "txtTa", "txtTadm", "txtServ", "txtTaServ"}) {
                    EXPECT_NE(nuevos[campo + ".Text"], viejos[campo + ".Text"]) << campo;
                    nuevos.erase(campo + ".Text");
                    viejos.erase(campo + ".Text");
                }
            }
            if (code == "CK") {
                EXPECT_NE(nuevos["txtTf.Text"], viejos["txtTf.Text"]) << "the period is calculated again";
                // The results of the actions are those of its inputs now, as the form shows them
                // when it reads the converted record with the work's general data; every other
                // field is as it was.
                std::string datos;
                DatosFile(app.decl, "DATOS.~CE", "L", datos);
                auto acciones = CargaForm(app.decl, FormDeCodigo(code));
                for (const char* resultado : kResultadosAcciones) {
                    const std::string clave = std::string(resultado) + ".Text";
                    EXPECT_EQ(nuevos[clave], acciones->At(resultado).Text()) << clave;
                    viejos.erase(clave);
                    nuevos.erase(clave);
                }
            }
            if (dynamic_cast<PilHorm*>(form.get())) {
                // A column's loads are estimated anew from its own fields and the work's general
                // data: the figures are those the form gives when it reads the converted record.
                std::string datos;
                DatosFile(app.decl, "DATOS.~CE", "L", datos);
                auto pilar = CargaForm(app.decl, FormDeCodigo(code));
                Control& lista = pilar->At("List1");
                for (int i = 0; i < lista.ListCount(); ++i)
                    if (lista.List(i) == title)
                        lista.SetListIndex(i);
                ASSERT_EQ(lista.SelectedText(), title);
                dynamic_cast<PilHorm&>(*pilar).CalCargas();
                for (int i = 0; i <= 2; ++i) {
                    const std::string clave = "TxtQ(" + std::to_string(i) + ").Text";
                    EXPECT_EQ(nuevos[clave], pilar->At("TxtQ", i).Text()) << clave;
                    viejos.erase(clave);
                    nuevos.erase(clave);
                }
            }
            if (FormDeCodigo(code) == "frmAbaco") {
                // The drop panel reads its record without the loading guard: its slab's total
                // depth follows the block and the topping read.
                const std::string clave = "txtForj(4).Text";
                EXPECT_EQ(nuevos[clave], FormatoNum(ValComaCopy(viejos["txtForj(2).Text"]) + ValComaCopy(viejos["txtForj(3).Text"])));
                viejos.erase(clave);
                nuevos.erase(clave);
            }
            EXPECT_EQ(nuevos, viejos);
        }
        EXPECT_EQ(test::RunCli("convert '" + Work(work) + "'", &out, &err), 1) << "a second run is refused";
        EXPECT_EQ(Take(Work(work)), after) << "and writes nothing";
    }
    for (const auto& d : {"HJ", "HK", "HP", "HU", "HS", "HR", "HQ", "HV", "HW", "HY", "HZ", "LJ", "LP", "LQ", "MB", "MC",
                          "MD", "MF", "MH", "MI", "CS", "ZA", "ZB", "ZC", "ZI", "ZM", "ZO", "ZR", "ZT", "CK"})
        EXPECT_TRUE(codesSeen.count(d)) << "the samples hold code " << d;
}

TEST_F(Conversion, BackupAllAndJson)
{
    const Snapshot before = Take(Work("Local Arce"));
    std::string out, err;
    ASSERT_EQ(test::RunCli("convert --backup '" + dir / "copias" + "' --json '" + Work("Local Arce") + "'", &out, &err), 0)
        << err;
    EXPECT_EQ(Take(dir / "copias/Local Arce"), before);
    EXPECT_EQ(out.rfind("{\"work\":", 0), 0u) << out;
    EXPECT_NE(out.find("\"completed\":true"), std::string::npos);
    EXPECT_NE(out.find("\"status\":\"converted\""), std::string::npos);

    ASSERT_EQ(test::RunCli("convert --all '" + dir.path() + "'", &out, &err), 0) << err;
    EXPECT_NE(out.find("Vivienda Ruiz"), std::string::npos);
    EXPECT_NE(out.find("Edificio Oroel"), std::string::npos);
    EXPECT_EQ(out.find("conversion of " + Work("Nave Ebro")), std::string::npos) << "3.5 works are not taken";
}

// General data that can be read only in part still follow the version rule: the work converts,
// and the log and the verdict name the lines that were not read.
TEST_F(Conversion, PartlyReadableGeneralDataConvertAndNameTheLinesNotRead)
{
    const std::string work = Work("Vivienda Ruiz");
    const std::string datos = test::ReadBytes(work + "/DATOS.~CE");
    test::WriteBytes(work + "/DATOS.~CE", datos.substr(0, datos.size() / 2));
    std::string out, err;
    ASSERT_EQ(test::RunCli("info '" + work + "'", &out, &err), 0);
    EXPECT_NE(out.find("general data not read: Line"), std::string::npos) << out;
    EXPECT_NE(out.find("convertible: yes"), std::string::npos) << out;
    ASSERT_EQ(test::RunCli("convert --json '" + work + "'", &out, &err), 0) << err;
    EXPECT_NE(out.find("\"unreadGeneralData\":[\"Line"), std::string::npos) << out;
    EXPECT_EQ(test::ReadBytes(work + "/DATOS.~CE").rfind("\"Vardena 3\",3.5\r\n", 0), 0u);
}

TEST_F(Conversion, ReadOnlyRecordEndsTheRunWithItsName)
{
    const std::string work = Work("Local Arce");
    const std::string record = work + "/Elemento SI.~ZC";
    fs::permissions(record, fs::perms::owner_write, fs::perm_options::remove);
    const std::string old = test::ReadBytes(record);
    std::string out, err;
    EXPECT_EQ(test::RunCli("convert '" + work + "'", &out, &err), 1);
    EXPECT_NE((out + err).find("Elemento SI.~ZC"), std::string::npos) << out << err;
    EXPECT_EQ(test::ReadBytes(record), old);
    for (const auto& e : fs::directory_iterator(work))
        EXPECT_EQ(e.path().filename().string().find(".tmp"), std::string::npos) << "no temporary file is left";
}

}  // namespace
}  // namespace vardena
