#include "controls/Capturas.h"

#include <QApplication>
#include <QBuffer>
#include <QListWidget>
#include <QPixmap>

#include "controls/Programa.h"
#include "controls/Ventanas.h"
#include "frame/Formularios.h"
#include "controls/UiQt.h"
#include "application/Aplicacion.h"
#include "base/FileIo.h"
#include "base/Texto.h"
#include "works/Subrut.h"

namespace vardena {
namespace {

constexpr int kAncho = 1280;
constexpr int kAlto = 800;

std::string Fotografia(QWidget* w, const std::string& carpeta, const std::string& nombre)
{
    w->resize(kAncho, kAlto);
    w->show();
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    w->grab().save(&buffer, "PNG");
    const std::string ruta = ConBarra(carpeta) + nombre + ".png";
    WriteFileAtomic(ruta, std::string_view(bytes.constData(), static_cast<size_t>(bytes.size())));
    return ruta;
}

// Shows the first stored record of an element window, as a click on its list would.
void EligePrimerRegistro(VentanaForm* v)
{
    if (Control* lista = v->form().Find("List1"); lista && lista->ListCount() > 0)
        v->vista().Ejecuta([lista] { lista->SetListIndex(0); });
}

}  // namespace

std::vector<std::string> Capturas(Programa& programa, const std::string& carpeta)
{
    std::vector<std::string> escritas;
    // Closing a window here must not end the program or open the next one by itself.
    programa.alTerminar = [] {};
    VentanaMenu* menu = programa.AbreMenu();
    escritas.push_back(Fotografia(menu, carpeta, "1-menu"));
    menu->alCerrar = nullptr;
    menu->close();
    const std::pair<const char*, const char*> ventanas[] = {
        {"DAGE", "2-datosgen"}, {"ACCI", "3-frmAccio"}, {"TERR", "4-frmSuelo"}, {"HVIG", "5-frmVigHorm"},
        {"ZACR", "6-frmZapCorr"}, {"HPIL", "12-frmPilHorm"}, {"HVIR", "13-frmVigRegHorm"}, {"HVPR", "14-frmVigPared"},
        {"FORR", "30-frmForjRet"}, {"FORP", "31-frmForMaci"}, {"ABAC", "32-frmAbaco"}, {"HMEN", "33-frmMensCorta"},
        {"ESCH", "34-frmEscHorm"}, {"FORU", "20-frmForjUnid"}, {"FORS", "21-frmForjSitu"},
        {"MUSO", "45-frmMuroH"}, {"MUCO", "46-frmMuroCont"}, {"MUAN", "47-frmMuroAnclado"}, {"TALU", "48-frmTalud"},
        {"APIL", "15-frmPilMet"}, {"AVIG", "16-frmVigMet"}, {"DAPR", "17-frmDatosProy"},
        {"HBLA", "60-frmEnBlanco"}, {"ZLOS", "61-frmLosCime"}, {"ZAIS", "62-frmZap"}, {"ZACB", "63-frmZapComb"}};
    for (const auto& [opcion, nombre] : ventanas) {
        VentanaForm* v = programa.AbreOpcion(opcion);
        if (!v)
            continue;
        EligePrimerRegistro(v);
        escritas.push_back(Fotografia(v, carpeta, nombre));
        v->alCerrar = nullptr;
        v->close();
    }
    // The map dialogs of the actions, each with a pick made as a user would make it.
    const std::pair<const char*, std::function<void(Form&)>> dialogos[] = {
        {"frmECGn",
         [](Form& f) {
             f.At("MapaNieve").ClickAt(330, 230);
             Control& t = f.At("RichTextBox1");
             t.SetSelStart(static_cast<int>(t.Text().find("Madrid")));
             t.Click();
         }},
        {"frmECV", [](Form& f) { f.At("MapaViento").ClickAt(330, 230); }},
        {"frmNCSE02",
         [](Form& f) {
             Control& p = f.At("CmbProv");
             for (int i = 0; i < p.ListCount(); ++i)
                 if (p.List(i) == "Granada")
                     p.SetListIndex(i);
             // The first municipality under the heading.
             Control& t = f.At("RichTextBox1");
             const size_t b = t.Text().find("\nGranada ");
             if (b != std::string::npos)
                 t.SetSelStart(CharCount(t.Text().substr(0, b + 1)));
             t.Click();
         }},
        // The section classes of the IPE family in S 355.
        {"frmClaseAcero",
         [](Form& f) {
             f.At("CmbAcero").SetListIndex(6);
             f.At("CmbPerfil").SetListIndex(2);
         }},
    };
    int n = 8;
    for (const auto& [nombre, elige] : dialogos) {
        std::unique_ptr<Form> form = CargaForm(programa.app().decl, nombre);
        if (!form)
            continue;
        elige(*form);
        std::unique_ptr<QDialog> d = CreaDialogo(*form, nullptr);
        escritas.push_back(Fotografia(d.get(), carpeta, std::to_string(n++) + "-" + nombre));
        d->hide();
    }
    // The calculator of concrete properties by age, opened over the main window as its menu
    // command opens it, at 7 days of rapid hardening so that every value differs from fck.
    if (VentanaForm* v = programa.AbreEncima("frmHormigon")) {
        v->vista().Ejecuta([&f = v->form()] {
            f.At("CmbEdad").SetListIndex(1);
            f.At("CmbEndur").SetListIndex(1);
        });
        escritas.push_back(Fotografia(v, carpeta, std::to_string(n++) + "-frmHormigon"));
        v->alCerrar = nullptr;
        v->close();
    }
    // The waffle slab with its panel of slab data opened over the form, as its button opens it.
    if (VentanaForm* v = programa.AbreOpcion("FORR")) {
        EligePrimerRegistro(v);
        v->vista().Ejecuta([&f = v->form()] { f.At("Command1").Click(); });
        escritas.push_back(Fotografia(v, carpeta, "35-frmForjRet-forjado"));
        v->alCerrar = nullptr;
        v->close();
    }
    // The isolated footing at a corner, with its neighbours and both centering beams.
    if (VentanaForm* v = programa.AbreOpcion("ZAIS")) {
        v->vista().Ejecuta([&f = v->form()] { f.At("OpPosPil", 0).Click(); });
        escritas.push_back(Fotografia(v, carpeta, "64-frmZap-esquina"));
        v->alCerrar = nullptr;
        v->close();
    }
    // The slab catalogue editor on the second row of the third system of prestressed joists.
    if (std::unique_ptr<Form> fichas = CargaForm(programa.app().decl, "frmForjUnid2")) {
        fichas->At("OpTipoFor", 1).SetOptionValue(true);
        if (fichas->At("ListFor").ListCount() > 3)
            fichas->At("ListFor").SetListIndex(2);
        fichas->At("OpFila", 1).SetOptionValue(true);
        std::unique_ptr<QDialog> d = CreaDialogo(*fichas, nullptr);
        escritas.push_back(Fotografia(d.get(), carpeta, "22-frmForjUnid2"));
        d->hide();
    }
    // The masonry properties dialog, as the general data's button opens it, on perforated brick
    // with lightweight mortar so that the flexural strengths read "No"; then the wall windows.
    // The masonry pictures number from 50, clear of the fixed numbers above.
    n = 50;
    if (std::unique_ptr<Form> fabrica = CargaForm(programa.app().decl, "frmFabrica")) {
        programa.app().decl.FormActivo = "DatosGen";
        fabrica->At("cmbTipoFabr").SetListIndex(2);
        fabrica->At("cmbMortero").SetListIndex(2);
        fabrica->At("cmbTipo").SetListIndex(1);
        std::unique_ptr<QDialog> d = CreaDialogo(*fabrica, nullptr);
        escritas.push_back(Fotografia(d.get(), carpeta, std::to_string(n++) + "-frmFabrica"));
        d->hide();
    }
    for (const auto& [opcion, nombre] : {std::pair{"MURF", "frmMuros"}, std::pair{"MDIN", "frmMDint"},
                                         std::pair{"MURC", "frmMCerr"}}) {
        VentanaForm* v = programa.AbreOpcion(opcion);
        if (!v)
            continue;
        EligePrimerRegistro(v);
        escritas.push_back(Fotografia(v, carpeta, std::to_string(n++) + "-" + nombre));
        v->alCerrar = nullptr;
        v->close();
    }
    // The pile group with its strata panel open, as CmdCapacidad leaves it.
    if (VentanaForm* v = programa.AbreOpcion("ZPIL")) {
        EligePrimerRegistro(v);
        v->vista().Ejecuta([v] { v->form().At("CmdCapacidad").Click(); });
        escritas.push_back(Fotografia(v, carpeta, "40-frmPilotes"));
        v->alCerrar = nullptr;
        v->close();
    }
    DatosError e;
    e.numero = 75;
    e.descripcion = "Error de acceso a la ruta o al archivo";
    e.fuente = "vardena-gui";
    e.origen = "CmdCalcular_Click";
    ErrorDialog error(&programa.app().decl, e);
    error.cmd_Detail();
    escritas.push_back(Fotografia(&error, carpeta, "7-error"));
    return escritas;
}

}  // namespace vardena
