#include "application/Mantenimiento.h"

#include <cctype>
#include <filesystem>

#include "frame/ElementForm.h"
#include "works/LngPack.h"
#include "shell/ModIcono.h"
#include "application/Arranque.h"
#include "works/Catalogo.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "application/Menu.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {

std::string NumeraNombre(std::string_view nombre)
{
    const size_t n = nombre.size();
    const bool numerado = n >= 3 && nombre[n - 3] == '_' && std::isdigit(static_cast<unsigned char>(nombre[n - 2])) &&
                          std::isdigit(static_cast<unsigned char>(nombre[n - 1]));
    if (!numerado)
        return std::string(nombre) + "_00";
    const int siguiente = (nombre[n - 2] - '0') * 10 + (nombre[n - 1] - '0') + 1;
    if (siguiente > 99)
        return std::string(nombre) + "_00";
    std::string out(nombre.substr(0, n - 2));
    out += static_cast<char>('0' + siguiente / 10);
    out += static_cast<char>('0' + siguiente % 10);
    return out;
}

std::string SiguienteNombre(const std::string& carpeta, std::string nombre)
{
    std::error_code ec;
    while (std::filesystem::exists(ConBarra(carpeta) + nombre, ec))
        nombre = NumeraNombre(nombre);
    return nombre;
}

// ---- What the three dialogs share ----

namespace {

// A work's name is a folder's name: the keys that cannot stand in one are swallowed.
void FiltraTitulo(Control&, int& key)
{
    if (TeclaProhibidaEnTitulo(key))
        key = 0;
}

}  // namespace

DialogoObra::DialogoObra(Declaraciones& d, Menu& menu, std::string name, std::string caption)
    : Form(d, std::move(name), std::move(caption)), menu_(menu)
{
}

std::string DialogoObra::Carpeta() const { return At("direct").Text(); }

Control& DialogoObra::Campo(const char* nombre, const char* etiqueta, bool soloLectura)
{
    Control& c = Add(Kind::TextBox, nombre);
    c.SetCaption(etiqueta);
    c.SetEnabled(!soloLectura);
    return c;
}

void DialogoObra::AnadeBotones()
{
    Add(Kind::CommandButton, "Aceptar").SetCaption("Aceptar");
    Add(Kind::CommandButton, "Cancelar").SetCaption("Cancelar");
    At("Aceptar").onClick = [this](Control&) { Aceptar_Click(); };
    At("Cancelar").onClick = [this](Control&) { Cancelar_Click(); };
}

void DialogoObra::RefrescaMenu(const std::string& obra)
{
    menu_.At("Dire").SetText(Carpeta());
    menu_.Dire_Change();
    if (obra.empty())
        return;
    SeleccionaEnLista(menu_.At("List1"), obra);
    if (menu_.At("List1").ListIndex() >= 0)
        menu_.List1_Click();
}

// ---- NuevaEst ----

NuevaEst::NuevaEst(Declaraciones& d, Menu& menu) : DialogoObra(d, menu, "NuevaEst", "Nueva Obra a Vardena")
{
    Campo("direct", "Carpeta de las obras:", true);
    Campo("Nuev", "Nombre de la obra:").onKeyPress = FiltraTitulo;
    Campo("Text1", "Proyecto:");
    Campo("Text2", "Promotor:");
    Campo("Text3", "Situación:");
    Campo("Text4", "Arquitecto:");
    Campo("descrN", "Descripción general:");
    Control& si = Add(Kind::OptionButton, "OpSistema", 0);
    si.SetCaption("Internacional");
    si.SetGroup("OpSistema");
    Control& st = Add(Kind::OptionButton, "OpSistema", 1);
    st.SetCaption("Técnico");
    st.SetGroup("OpSistema");
    si.onClick = st.onClick = [this](Control&) { OpSistema_Click(); };
    Add(Kind::Label, "LbST").SetCaption("m.  kg.  cm.  kg/m2  kg/cm2  t/m    m·t  ");
    Add(Kind::Label, "LbSI").SetCaption("m.  N.  cm.  kN/m2  N/mm2  kN/m    m·kN  ");
    Add(Kind::CheckBox, "ChUsarIco").SetCaption("Usar icono de Vardena en la carpeta de esta obra");
    AnadeBotones();
}

void NuevaEst::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "NuevaEst_Form_Load", [&] {
        TraduceForm(*this);
        d.ObraNueva = kFalse;
        At("direct").SetText(d.DirObras);
        At("Nuev").SetText(SiguienteNombre(d.DirObras, d.Msg(1294).empty() ? "Obra nueva" : d.Msg(1294)));
        At("OpSistema", d.Unidades == 1 ? 1 : 0).SetOptionValue(true);
        OpSistema_Click();
        At("ChUsarIco").SetCheckValue(Setting(d, "Preferencias", "IconoCarpeta") == "Si" ? 1 : 0);
    });
}

void NuevaEst::OpSistema_Click()
{
    const bool tecnico = At("OpSistema", 1).OptionValue();
    At("LbST").SetVisible(tecnico);
    At("LbSI").SetVisible(!tecnico);
}

void NuevaEst::Aceptar_Click()
{
    Declaraciones& d = decl();
    const std::string nombre = At("Nuev").Text();
    if (nombre.empty())
        return;
    const std::string carpeta = ConBarra(Carpeta()) + nombre;
    std::error_code ec;
    if (std::filesystem::exists(carpeta, ec)) {
        d.ui.MsgBox(d.Msg(209) + d.Msg(210) + nombre, mb::Exclamation, Caption());
        return;
    }
    ConVentanaError(d, "NuevaEst_Aceptar_Click", [&] {
        std::error_code mk;
        if (!std::filesystem::is_directory(carpeta, mk) && !std::filesystem::create_directory(carpeta, mk))
            throw FileError(carpeta, "the work folder could not be made: " + mk.message());
        const bool icono = At("ChUsarIco").CheckValue() == 1;
        SaveSetting(d, "Preferencias", "IconoCarpeta", icono ? "Si" : "No");
        if (icono && d.platform.recycleBin) {
            std::string problema;
            if (!PoneIconoCarpeta(*d.platform.recycleBin, carpeta, {}, &problema))
                d.ui.MsgBox(problema, mb::Exclamation, Caption());
        }
        d.NombreObra = nombre;
        d.DirObras = Carpeta();
        d.CarpetaObra = carpeta;
        // A new work starts from the general data as the general-data form draws them.
        d.GeneralDataDefaults();
        d.Unidades = At("OpSistema", 1).OptionValue() ? 1 : 2;
        d.UnidadesPref = d.Unidades;
        std::string texto;
        for (int i = 1; i <= 4; ++i)
            texto += d.Msg(203 + i) + At("Text" + std::to_string(i)).Text() + "\r\n";
        texto += d.Msg(208) + At("descrN").Text();
        DatosFile(d, "DESCR.~CE", "G", texto);
    });
    RefrescaMenu(nombre);
    d.ObraNueva = kTrue;
    Cierra();
}

// ---- Copiar ----

Copiar::Copiar(Declaraciones& d, Menu& menu) : DialogoObra(d, menu, "Copiar", "Copiar Obra")
{
    Campo("direct", "Carpeta de las obras:", true);
    Campo("NombAct", "Obra a copiar:", true);
    Campo("Nuev", "Nombre de la copia:").onKeyPress = FiltraTitulo;
    AnadeBotones();
}

void Copiar::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "Copiar_Form_Load", [&] {
        TraduceForm(*this);
        At("direct").SetText(d.DirObras);
        At("NombAct").SetText(d.NombreObra);
        At("Nuev").SetText(SiguienteNombre(d.DirObras, d.NombreObra));
    });
}

void Copiar::Aceptar_Click()
{
    Declaraciones& d = decl();
    const std::string nombre = At("Nuev").Text();
    if (nombre.empty())
        return;
    const std::string origen = ConBarra(Carpeta()) + At("NombAct").Text();
    const std::string destino = ConBarra(Carpeta()) + nombre;
    std::error_code ec;
    if (!std::filesystem::is_directory(origen, ec)) {
        d.ui.MsgBox("No se encuentra la carpeta de la obra que quiere copiar: " + origen, mb::Exclamation, Caption());
        return;
    }
    if (std::filesystem::exists(destino, ec)) {
        d.ui.MsgBox(d.Msg(209) + d.Msg(210) + nombre, mb::Exclamation, Caption());
        return;
    }
    ConVentanaError(d, "Copiar_Aceptar_Click", [&] {
        std::error_code mk;
        if (!std::filesystem::is_directory(destino, mk) && !std::filesystem::create_directory(destino, mk))
            throw FileError(destino, "the copy's folder could not be made: " + mk.message());
        // Files only: the work's sub-folders are no part of it.
        for (const auto& e : std::filesystem::directory_iterator(origen)) {
            std::error_code fe;
            if (e.is_regular_file(fe))
                WriteFileAtomic(ConBarra(destino) + e.path().filename().string(), ReadFileBytes(e.path().string()));
        }
    });
    RefrescaMenu();
    Cierra();
}

// ---- BorraEst ----

BorraEst::BorraEst(Declaraciones& d, Menu& menu) : DialogoObra(d, menu, "BorraEst", "Borrar obra")
{
    Campo("direct", "Carpeta de las obras:", true);
    Add(Kind::Label, "Label3").SetCaption("¿ Seguro que desea borrar la obra siguiente ?");
    Campo("Borr", "Obra:", true);
    AnadeBotones();
}

void BorraEst::Form_Load()
{
    Declaraciones& d = decl();
    ConVentanaError(d, "BorraEst_Form_Load", [&] {
        TraduceForm(*this);
        At("direct").SetText(d.DirObras);
        At("Borr").SetText(d.NombreObra);
    });
}

void BorraEst::Aceptar_Click()
{
    Declaraciones& d = decl();
    const std::string carpeta = ConBarra(Carpeta()) + At("Borr").Text();
    std::error_code ec;
    if (At("Borr").Text().empty() || !std::filesystem::is_directory(carpeta, ec)) {
        d.ui.MsgBox(d.Msg(249), mb::Critical, Caption());
        Cierra();
        return;
    }
    if (!d.platform.recycleBin || !d.platform.recycleBin->APapelera(carpeta))
        d.ui.MsgBox("No se ha podido enviar a la papelera la carpeta " + carpeta, mb::Critical, Caption());
    RefrescaMenu();
    Cierra();
}

}  // namespace vardena
