// Writes the sample works of examples/ from the form models: works of version 3.00 and 3.01 that
// together hold a record of every code the conversion serves, with a value of its own in every
// field, as version 3 wrote them (positional records, DATOS.~CE without the fields of 3.5).
//
//   vardena-ejemplos DIR                  (DIR is emptied of the sample works first)
//   vardena-ejemplos --grande N DIR       a work of N records in DIR, for measuring

#include <filesystem>
#include <iostream>
#include <map>
#include <set>

#include "frame/Formularios.h"
#include "frame/Refuerzos.h"
#include "application/Aplicacion.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "works/DatosFile.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"
#include "works/Subrut.h"
#include "ObraGrande.h"

using namespace vardena;
namespace fs = std::filesystem;

namespace {

class SilentUi : public Ui {
public:
    int MsgBox(std::string_view, int style, std::string_view) override { return (style & 7) ? mb::Yes : mb::Ok; }
    bool ErrorFrm(std::string_view origin, int, std::string_view description) override
    {
        std::cerr << "vardena-ejemplos: " << origin << ": " << description << "\n";
        return false;
    }
};

// Reinforcement pairs that agree with the design width of a footing (150): bars and spacing.
const std::pair<const char*, const char*> kZapatas[] = {{"8", "20"}, {"15", "10"}, {"6", "28"}, {"11", "14"}};
const char* kDiametros[] = {"6 ", "8 ", "10 ", "12 ", "16 ", "20 "};
const char* kPerfiles[][3] = {{"HEB", "200", "1"}, {"IPE", "300", "1"}, {"UPN", "160", "2"}, {"HEA", "240", "1"}};

// Gives every stored control a value of its own; `seed` makes two records of a form differ.
void FillDistinct(Form& f, int seed, const std::string& title)
{
    std::map<std::string, int> groupTurn;
    int k = seed * 7;
    for (Control* c : f.StoredControls()) {
        ++k;
        switch (c->kind()) {
        case Kind::TextBox:
            c->SetText(c->Name() == "txtTitulo" ? title : Formato00(1.25 * k + seed));
            break;
        case Kind::ComboBox: {
            const int n = c->ListCount();
            if (n == 0)
                break;
            int row = (k + seed) % n;
            if (c->Name() == "CmbHorm" && row == 3)
                row = n > 4 ? 4 : 0;  // row 3 does not survive the positional format
            c->SetListIndex(row);
            break;
        }
        case Kind::CheckBox: c->SetCheckValue((k + seed) % 2); break;
        case Kind::OptionButton: {
            // One button of each group on: the (seed)-th member met.
            int& turn = groupTurn[c->Group()];
            c->SetOptionValue(turn == seed % 2);
            ++turn;
            break;
        }
        case Kind::UCZapatas: {
            const auto& z = kZapatas[(k + seed) % 4];
            c->Set("NumBarras", z.first);
            c->Set("Diametro", kDiametros[k % 6]);
            c->Set("Separacion", z.second);
            break;
        }
        case Kind::UCNumDiam:
            c->Set("NumBarras", std::to_string(1 + k % 12));
            c->Set("Diametro", kDiametros[k % 6]);
            break;
        case Kind::UCNumDiamSep:
            c->Set("NumBarras", std::to_string(1 + k % 4));
            c->Set("Diametro", kDiametros[k % 4]);
            c->Set("Separacion", std::to_string(10 + k % 20));
            break;
        case Kind::UCMallazo:
            c->Set("Diametro", std::to_string(4 + k % 8));
            c->Set("Separacion", std::to_string(10 + k % 15));
            break;
        case Kind::UCPerfil:
            if ((k + seed) % 3 == 2) {
                c->Set("Num", "1");
                c->Set("Perfil", "otro");
                c->Set("Canto", Formato0_0(20.0 + k));
                c->Set("Ancho", Formato0_0(10.0 + k % 7));
                c->Set("Area", Formato00(40.5 + k));
                c->Set("Ix", Formato00(3000.0 + 10 * k));
                c->Set("Iy", Formato00(200.0 + k));
            } else {
                const auto& p = kPerfiles[(k + seed) % 4];
                c->Set("Num", p[2]);
                c->Set("Perfil", p[0]);
                c->Set("Tamano", p[1]);
                c->Set("Ancho", "30.0");
            }
            break;
        default: break;
        }
    }
}

std::string Rtf(const std::string& title, const std::string& form)
{
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;\\red0\\green0\\blue128;}\n"
           "\\f0\\fs20{\\b\\cf1 " + title + "}\\par\n" + form +
           ": resultados de la versi\\'f3n 3. Tensi\\'f3n m\\'e1xima 1,62 kg/cm{\\up6 2}\\par\n}\n";
}

struct Work {
    Aplicacion& app;
    std::string folder;

    void Datos(double version, int units, int floors, int basements)
    {
        Declaraciones& d = app.decl;
        d.GeneralDataDefaults();
        d.Unidades = static_cast<int16_t>(units);
        d.NPlantasSobre = static_cast<int16_t>(floors);
        d.NPlantasBajo = static_cast<int16_t>(basements);
        for (int i = 0; i < floors + basements; ++i)
            d.GenCot[i] = 3.0f + 0.1f * (i % 3);
        d.GenHorm = 4;
        d.GenAcero = 1;
        d.GenChAcero = kTrue;
        d.GenChMadera = kTrue;
        d.GenResis = 4;
        WriteFileAtomic(folder + "/DATOS.~CE", ToDiskText(DatosText(d, version)));
    }
    void Descr(const std::string& text) { WriteFileAtomic(folder + "/DESCR.~CE", ToDiskText(text + "\n")); }

    // A record of the form, positional, as version 3 wrote it; with its results file unless told.
    void Record(const std::string& formName, const std::string& title, int seed, bool results = true,
                const std::string& storedTitle = {})
    {
        Declaraciones& d = app.decl;
        d.CarpetaObra = folder;
        std::unique_ptr<Form> f = CargaForm(d, formName);
        if (!f)
            throw std::runtime_error("no form " + formName);
        FillDistinct(*f, seed, storedTitle.empty() ? title : storedTitle);
        const std::string code = CodigoDeForm(d, formName);
        const std::string path = folder + "/" + title + ".~" + code;
        FormGuardaFile(*f, path);
        // Written once more from what a form reads back, so that the sample holds the values a
        // form keeps (composite controls settle their derived values on reading).
        std::unique_ptr<Form> again = CargaForm(d, formName);
        FormLeeFile(*again, path);
        FormGuardaFile(*again, path);
        if (results)
            WriteFileAtomic(folder + "/" + title + ".l" + code, Rtf(title, formName));
    }
    void Raw(const std::string& name, const std::string& text) { WriteFileAtomic(folder + "/" + name, ToDiskText(text)); }
};

}  // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::string(argv[1]) == "--grande") {
        fs::create_directories(argv[3]);
        muestras::EscribeObraGrande(argv[3], std::stoi(argv[2]));
        return 0;
    }
    if (argc != 2) {
        std::cerr << "usage: vardena-ejemplos DIR | vardena-ejemplos --grande N DIR\n";
        return 2;
    }
    const std::string dir = argv[1];
    SilentUi ui;
    Aplicacion app(ui, std::make_unique<MemorySettings>());
    try {
        auto make = [&](const std::string& name) {
            fs::remove_all(dir + "/" + name);
            fs::create_directories(dir + "/" + name);
            return Work{app, dir + "/" + name};
        };
        // The dispatched record forms, split over two works of 3.01 and 3.00.
        const std::vector<std::string> first = {"frmVigHorm", "frmVigRegHorm", "frmPilHorm", "frmForjUnid", "frmForjSitu",
                                                "frmForjRet", "frmForMaci", "frmAbaco", "frmMensCorta", "frmVigPared",
                                                "frmEscHorm", "frmVigMet", "frmPilMet", "frmForjAcer"};
        const std::vector<std::string> second = {"frmVigMade", "frmPilMade", "frmForMade", "frmMuros", "frmMCerr",
                                                 "frmMDint", "frmSuelo", "frmZap", "frmZapComb", "frmZapCorr",
                                                 "frmPilotes", "frmMuroH", "frmMuroCont", "frmMuroAnclado", "frmTalud"};

        Work a = make("Vivienda Ruiz");
        a.Datos(3.01, 1, 3, 1);
        a.Descr("Vivienda unifamiliar entre medianeras.\nTres plantas sobre rasante y un sótano.");
        for (const auto& f : first) {
            a.Record(f, "Elemento 1", 1);
            a.Record(f, "Elemento 2", 2);
        }

        Work b = make("Edificio Oroel");
        b.Datos(3.00, 1, 5, 2);
        b.Descr("Edificio de viviendas y locales, cimentación y muros de sótano.");
        for (const auto& f : second)
            b.Record(f, "Elemento 1", 1);
        b.Record("frmZapCorr", "Zapata muro norte", 2);
        b.Record("frmAccio", "Acciones", 1);

        Work c = make("Local Arce");
        c.Datos(3.01, 2, 1, 0);
        c.Descr("Local comercial en planta baja, en el sistema internacional.");
        for (const auto& f : {"frmVigHorm", "frmZapCorr", "frmVigMet", "frmMuros"})
            c.Record(f, "Elemento SI", 3);

        Work d = make("Taller Moncayo");
        d.Datos(3.01, 1, 2, 0);
        d.Descr("Taller: elementos que la conversión deja como están.");
        // Codes the run does not serve stay byte for byte as they are.
        d.Record("frmBasMet", "Placa base", 1);
        d.Record("frmEscMet", "Escalera", 2);
        d.Record("frmEscMade", "Escalera madera", 1);
        d.Record("frmDatosProy", "Proyecto", 1);
        d.Raw("Notas.~QQ", "\"desconocido\",1\n");
        // A record saved but never checked, a results file with no record, and a record whose
        // title differs from its file name.
        d.Record("frmZapCorr", "Sin comprobar", 1, false);
        d.Raw("Solo resultados.lZC", Rtf("Solo resultados", "frmZapCorr"));
        d.Record("frmZapCorr", "Zapata antigua", 2, true, "Zapata renombrada");

        Work e = make("Nave Ebro");
        e.Datos(3.5, 1, 1, 0);
        e.Descr("Nave industrial de una planta, ya convertida.");
    } catch (const std::exception& ex) {
        std::cerr << "vardena-ejemplos: error: " << ex.what() << "\n";
        return 1;
    }
    return 0;
}
