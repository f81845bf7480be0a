#include "application/Menu.h"

#include <algorithm>
#include <filesystem>

#include "building/SistUnid.h"
#include "frame/Campos.h"
#include "reports/mRtf.h"
#include "works/LngPack.h"
#include "shell/Ventanas.h"
#include "application/Arranque.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "application/Mantenimiento.h"
#include "works/Obra.h"
#include "works/Subrut.h"
#include "works/VentanaError.h"

namespace vardena {
namespace {

constexpr int kTeclaSuprimir = 46;
// The description field's colours: the grey of the placeholder message, or the normal one.
constexpr std::string_view kColorGris = "&H808080&";

const char* const kTituloProducto = "Vardena 3";

// A checkable item of the preferences and its setting.
struct ItemPreferencia {
    const char* item;
    const char* clave;
};
constexpr ItemPreferencia kPreferencias[] = {
    {"VerCarp", "VerCarpetas"},     {"SiempreVisible", "SiempreVisible"}, {"BuscaVer", "BuscaVersion"},
    {"CapturaPantallas", "CapturaPantallas"}, {"IconoCarp", "IconoCarpeta"}, {"AsociarIco", "AsociarIcono"},
};
constexpr std::pair<const char*, const char*> kFormatos[] = {
    {"CapturaPantallasBMP", "BMP"}, {"CapturaPantallasJPG", "JPG"}, {"CapturaPantallasPNG", "PNG"}};

// The family menus and the general data's check that shows each.
struct Familia {
    const char* menu;
    int16_t Declaraciones::*marca;
};
constexpr Familia kFamilias[] = {
    {"Hormigon", &Declaraciones::GenChHormigon}, {"Acero", &Declaraciones::GenChAcero},
    {"Madera", &Declaraciones::GenChMadera},     {"Fabrica", &Declaraciones::GenChFabrica},
    {"Cimentacion", &Declaraciones::GenChTerreno},
};

// The captions of the menus and of the items that are no element command.
constexpr std::pair<const char*, const char*> kCaptions[] = {
    {"Carpeta", "   Obra "},
    {"Nueva", "Nueva"},
    {"Copi", "Copiar"},
    {"Eliminar", "Borrar"},
    {"Busca", "Buscar obras"},
    {"Salir", "Salir"},
    {"Preferencias", "Preferencias"},
    {"Idioma", "Elegir idioma"},
    {"VerCarp", "Ver Carpetas"},
    {"SiempreVisible", "Siempre visible"},
    {"BuscaVer", "Buscar nueva versión"},
    {"CapturaPantallas", "Captura pantallas"},
    {"CapturaPantallasBMP", "BMP"},
    {"CapturaPantallasJPG", "JPG"},
    {"CapturaPantallasPNG", "PNG"},
    {"IconoCarp", "Usar icono carpeta"},
    {"AsociarIco", "Asociar icono"},
    {"Dat", " Datos "},
    {"Sistema_Unidades", "Sistema de Unidades"},
    {"DatGen", "Datos edificio"},
    {"mnuDatosProy", "Anexos proyecto"},
    {"mnuAcciones", "Acciones"},
    {"Hormigon", "Hormigón"},
    {"Acero", "Acero"},
    {"Madera", "Madera"},
    {"Fabrica", "Fábrica"},
    {"Cimentacion", "Cimentación"},
    {"kk", " Resultados "},
    {"Listad", "Listados"},
    {"Ayuda", "Ayuda"},
    {"ElAutor", "Autores..."},
    {"Acerca", "Acerca de..."},
};

// Commands of the "Datos" and "Resultados" menus that open a window in place of this one.
constexpr std::pair<const char*, const char*> kOpciones[] = {
    {"DatGen", "DAGE"}, {"mnuDatosProy", "DAPR"}, {"mnuAcciones", "ACCI"}, {"Listad", "LIST"}};

}  // namespace

const std::vector<std::pair<std::string, std::vector<ComandoElemento>>>& FamiliasMenu()
{
    // The element menus in the order of the menu bar; each form's definition says where its
    // command stands. The concrete menu ends with the concrete properties, which is no element.
    static const std::vector<std::pair<std::string, std::vector<ComandoElemento>>> familias = [] {
        std::vector<std::pair<std::string, std::vector<ComandoElemento>>> out;
        for (const char* grupo : {"Hormigon", "Acero", "Madera", "Fabrica", "Cimentacion"}) {
            std::vector<std::pair<int, ComandoElemento>> comandos;
            for (const TablaForm& t : TablasCampos())
                if (t.menu.grupo == grupo)
                    comandos.push_back({t.menu.orden,
                                        {std::string(t.menu.item), std::string(t.menu.caption),
                                         std::string(MenuDeForm(t.nombre))}});
            std::sort(comandos.begin(), comandos.end(),
                      [](const auto& a, const auto& b) { return a.first < b.first; });
            std::vector<ComandoElemento> items;
            for (auto& [orden, c] : comandos)
                items.push_back(std::move(c));
            if (std::string_view(grupo) == "Hormigon")
                items.push_back({"mnuHormig", "Características Mecánicas", "frmHormigon"});
            out.push_back({grupo, std::move(items)});
        }
        return out;
    }();
    return familias;
}

const std::vector<GrupoMenu>& Menu::BarraMenus()
{
    static const std::vector<GrupoMenu> barra = [] {
        std::vector<GrupoMenu> b = {
            {"Carpeta", {"Nueva", "Copi", "Eliminar", "-", "Busca", "-", "Salir"}},
            {"Preferencias",
             {"Idioma", "VerCarp", "SiempreVisible", "BuscaVer", "-", "CapturaPantallas", "CapturaPantallasBMP",
              "CapturaPantallasJPG", "CapturaPantallasPNG", "-", "IconoCarp", "AsociarIco"}},
            {"Dat", {"Sistema_Unidades", "DatGen", "mnuDatosProy", "mnuAcciones"}},
        };
        for (const auto& [familia, comandos] : FamiliasMenu()) {
            GrupoMenu g{familia, {}};
            for (const auto& c : comandos) {
                if (c.item == "mnuHormig")
                    g.items.push_back("-");
                g.items.push_back(c.item);
            }
            b.push_back(g);
        }
        b.push_back({"kk", {"Listad"}});
        b.push_back({"Ayuda", {"ElAutor", "Acerca"}});
        return b;
    }();
    return barra;
}

std::string FormularioDeOpcion(std::string_view opcion)
{
    if (opcion == "DAGE")
        return "DatosGen";
    if (opcion == "DAPR")
        return "frmDatosProy";
    if (opcion == "LIST")
        return "Listado";
    const std::string_view form = FormaDeMenu(opcion);
    if (form.empty())
        return {};
    for (const TablaForm& t : TablasCampos())
        if (SameNameNoCase(t.nombre, form))
            return std::string(t.nombre);
    return {};
}

const std::vector<std::string>& TextosPasos()
{
    static const std::vector<std::string> pasos = {
        "CONVERSIÓN DE OBRAS DE VARDENA 3",
        "Las obras guardadas con las versiones 3.00 y 3.01 pasan al formato de la versión 3.50.",
        "Siga estos cuatro pasos:",
        "1.  Haga antes una copia de la obra (menú Obra, Copiar): la conversión no se puede deshacer.",
        "2.  Elija la carpeta de las obras y, en la lista, la obra que va a convertir.",
        "3.  Compruebe que su versión es 3.00 o 3.01: solo entonces se activa CONVERTIR.",
        "4.  Pulse CONVERTIR y espere el aviso de que la conversión ha terminado.",
        "Los resultados de la versión 3 se conservan tal como estaban;",
        "vuelva a calcular cada elemento en la versión 4.",
    };
    return pasos;
}

Menu::Menu(Declaraciones& d) : Form(d, "Menu", " CONVERSOR  Vardena 3 a 4")
{
    Crea();
    ConectaEventos();
}

void Menu::Crea()
{
    Add(Kind::ComboBox, "Drive1").SetCaption("Disco de trabajo");
    Add(Kind::TextBox, "Dire").SetCaption("Directorio de trabajo");
    Add(Kind::ListBox, "List1").SetCaption("Obras");
    for (const char* oculta : {"List2", "List3", "List4"})
        Add(Kind::ListBox, oculta).SetVisible(false);
    Add(Kind::ListBox, "Outlin").SetCaption("Contenido de la obra");
    Control& descr = Add(Kind::TextBox, "descr");
    descr.SetToolTipText("Título y descripción de esta obra");
    descr.SetCaption("Descripción");
    descr.SetEnabled(false);
    Add(Kind::PictureBox, "tachado");
    Add(Kind::Label, "Label3").SetCaption("Versión");
    Add(Kind::Label, "Lbvers");
    Add(Kind::Label, "Lbtitulo").SetCaption(kTituloProducto);
    Add(Kind::CommandButton, "UCBconvertir").SetCaption("CONVERTIR");
    At("UCBconvertir").SetEnabled(false);
    Add(Kind::CommandButton, "UCBexplorer").SetCaption("Abrir carpeta obra");
    const auto& pasos = TextosPasos();
    for (size_t i = 0; i < pasos.size(); ++i)
        Add(Kind::Label, "Lab_" + std::to_string(i + 1)).SetCaption(pasos[i]);
    for (const GrupoMenu& g : BarraMenus()) {
        Add(Kind::CommandButton, g.nombre);
        for (const std::string& item : g.items)
            if (item != "-")
                Add(Kind::CommandButton, item);
    }
    for (const auto& [nombre, caption] : kCaptions)
        At(nombre).SetCaption(caption);
    for (const ItemPreferencia& p : kPreferencias)
        Marca(p.item, false);
    for (const auto& [item, formato] : kFormatos)
        Marca(item, false);
}

void Menu::ConectaEventos()
{
    auto conecta = [this](const char* nombre, void (Menu::*handler)()) {
        At(nombre).onClick = [this, handler](Control&) { (this->*handler)(); };
    };
    At("Dire").onChange = [this](Control&) {
        if (decl().Cargando == kFalse)
            Dire_Change();
    };
    At("Drive1").onClick = [this](Control&) {
        if (decl().Cargando == kFalse)
            Drive1_Change();
    };
    At("List1").onClick = [this](Control&) { List1_Click(); };
    At("List1").onKeyDown = [this](Control&, int key) { List1_KeyDown(key); };
    Control& descr = At("descr");
    descr.onChange = [this](Control&) {
        if (decl().Cargando == kFalse)
            descrCambiada_ = true;
    };
    descr.onLostFocus = [this](Control&) { GuardaDescr(); };
    descr.onKeyDown = [this](Control& c, int) {
        if (!descrMensaje_)
            return;
        descrMensaje_ = false;
        c.Set("ForeColor", "");
        c.SetText("");
    };
    conecta("UCBconvertir", &Menu::UCBconvertir_Click);
    conecta("UCBexplorer", &Menu::UCBexplorer_Click);
    conecta("Nueva", &Menu::Nueva_Click);
    conecta("Copi", &Menu::Copi_Click);
    conecta("Eliminar", &Menu::Eliminar_Click);
    conecta("Busca", &Menu::Busca_Click);
    conecta("Idioma", &Menu::Idioma_Click);
    conecta("Salir", &Menu::Salir_Click);
    for (const ItemPreferencia& p : kPreferencias)
        At(p.item).onClick = [this, p](Control&) { Preferencia(p.item, p.clave); };
    // Plain copies: a lambda does not capture structured bindings on every compiler.
    for (const auto& entry : kFormatos) {
        const auto item = entry.first;
        const auto formato = entry.second;
        At(item).onClick = [this, item, formato](Control&) { FormatoCaptura(item, formato); };
    }
    for (const auto& entry : kOpciones) {
        const auto opcion = entry.second;
        At(entry.first).onClick = [this, opcion](Control&) { AbreOpcion(opcion); };
    }
    At("Sistema_Unidades").onClick = [this](Control&) {
        if (!ganchos.modal)
            return;
        SistUnid dialogo(decl());
        dialogo.Form_Load();
        ganchos.modal(dialogo);
    };
    for (const auto& [familia, comandos] : FamiliasMenu())
        for (const ComandoElemento& c : comandos) {
            const std::string codigo = c.codigo;
            if (codigo.rfind("frm", 0) == 0)
                At(c.item).onClick = [this, codigo](Control&) {
                    if (ganchos.abreEncima)
                        ganchos.abreEncima(codigo);
                };
            else
                At(c.item).onClick = [this, codigo](Control&) { AbreOpcion(codigo); };
        }
    At("ElAutor").onClick = [this](Control&) {
        decl().ui.MsgBox("Vardena 3: conversor de obras de la versión 3 a la versión 3.50.", mb::Information,
                         At("ElAutor").Caption());
    };
    At("Acerca").onClick = [this](Control&) {
        decl().ui.MsgBox(std::string(kTituloProducto) + "  " + TextoVersion() + "\r\n" + Caption(), mb::Information,
                         At("Acerca").Caption());
    };
}

void Menu::Maneja(const char* origen, const std::function<void()>& cuerpo) { ConVentanaError(decl(), origen, cuerpo); }

bool Menu::Marcado(std::string_view item) const { return At(item).Get("Checked") == kMarcado; }

void Menu::Marca(std::string_view item, bool on) { At(item).Set("Checked", on ? kMarcado : kSinMarcar); }

void Menu::LeeMarcas()
{
    Declaraciones& d = decl();
    for (const ItemPreferencia& p : kPreferencias)
        Marca(p.item, Setting(d, "Preferencias", p.clave) == "Si");
    const bool captura = Marcado("CapturaPantallas");
    const std::string formato = Setting(d, "Preferencias", "CapturaPantallasFormato");
    for (const auto& [item, f] : kFormatos) {
        Marca(item, formato == f);
        At(item).SetEnabled(captura);
    }
    const bool carpetas = Marcado("VerCarp");
    At("Drive1").SetVisible(carpetas);
    At("Dire").SetVisible(carpetas);
}

void Menu::Preferencia(std::string_view item, std::string_view clave)
{
    Maneja("Menu_Preferencias", [&] {
        const bool on = !Marcado(item);
        SaveSetting(decl(), "Preferencias", clave, on ? "Si" : "No");
        LeeMarcas();
        if (item == "SiempreVisible")
            PonEncimaSegunPreferencia();
    });
}

void Menu::FormatoCaptura(std::string_view item, std::string_view formato)
{
    Maneja("Menu_Preferencias", [&] {
        SaveSetting(decl(), "Preferencias", "CapturaPantallasFormato", formato);
        LeeMarcas();
    });
}

void Menu::PonEncimaSegunPreferencia() { PonEncima(decl().platform, *this, Marcado("SiempreVisible")); }

void Menu::Form_Load()
{
    Declaraciones& d = decl();
    Maneja("Menu_Load", [&] {
        TraduceForm(*this);
        if (ganchos.pantalla) {
            const auto [ancho, alto] = ganchos.pantalla();
            if (ancho < 800 || alto < 600)
                d.ui.MsgBox(d.Msg(137) + std::to_string(ancho) + "x" + std::to_string(alto) + d.Msg(138),
                            mb::Critical, "");
        }
        // Element commands without a caption of their own show their catalogue label.
        for (const auto& [familia, comandos] : FamiliasMenu())
            for (const ComandoElemento& c : comandos)
                if (At(c.item).Caption().empty()) {
                    const std::string rotulo = RotuloDeMenu(d, c.codigo);
                    At(c.item).SetCaption(rotulo.empty() ? c.codigo : rotulo);
                }
        RotulaFormasSinFila();
        LeeMarcas();
        PonEncimaSegunPreferencia();
        SituaCarpeta();
    });
}

void Menu::SituaCarpeta()
{
    Declaraciones& d = decl();
    At("Lbtitulo").SetCaption(kTituloProducto);
    // The drives are the mounted volumes; the one shown is the volume that holds the folder.
    Control& drive = At("Drive1");
    std::vector<std::string> unidades;
    if (d.platform.system)
        for (const DriveFact& f : d.platform.system->Facts().drives)
            unidades.push_back(f.mount);
    if (std::find(unidades.begin(), unidades.end(), "/") == unidades.end())
        unidades.insert(unidades.begin(), "/");
    std::sort(unidades.begin(), unidades.end());
    const std::string nombreObra = d.NombreObra;
    const int16_t cargando = d.Cargando;
    d.Cargando = kTrue;
    drive.SetItems(unidades);
    int fila = 0;
    for (int i = 0; i < drive.ListCount(); ++i) {
        const std::string& u = drive.List(i);
        if (d.DirObras.rfind(u, 0) == 0 && u.size() >= drive.List(fila).size())
            fila = i;
    }
    drive.SetListIndex(fila);
    At("Dire").SetText(d.DirObras);
    d.Cargando = cargando;
    Dire_Change();
    SeleccionaEnLista(At("List1"), nombreObra);
    if (At("List1").ListIndex() >= 0)
        List1_Click();
}

void Menu::Dire_Change()
{
    Declaraciones& d = decl();
    Maneja("Menu_Dire_Change", [&] {
        d.DirObras = At("Dire").Text();
        At("List1").Clear();
        Control& list3 = At("List3");
        list3.Clear();
        At("Lbvers").SetCaption("");
        At("UCBconvertir").SetEnabled(false);
        list3.SetItems(SubFolders(d.DirObras.empty() ? std::string(".") : d.DirObras));
        At("List1").SetItems(ListaObras(d.DirObras));
        At("Dire").SetToolTipText(d.Msg(136));
        At("tachado").SetVisible(true);
        Control& descr = At("descr");
        const int16_t cargando = d.Cargando;
        d.Cargando = kTrue;
        descr.SetText("");
        d.Cargando = cargando;
        descr.SetEnabled(false);
        descrCambiada_ = false;
        descrMensaje_ = false;
        At("Outlin").Clear();
        At("Lbtitulo").SetCaption(kTituloProducto);
        Seleccion(false);
        VerMenus(false);
    });
}

void Menu::Drive1_Change()
{
    Declaraciones& d = decl();
    Maneja("Menu_Drive1_Change", [&] {
        Control& drive = At("Drive1");
        const std::string unidad = drive.SelectedText();
        std::error_code ec;
        if (unidad.empty() || !std::filesystem::is_directory(unidad, ec)) {
            // A drive that does not answer leaves everything as it was.
            SituaCarpeta();
            return;
        }
        d.UnidadObra = unidad.substr(0, 2);
        At("Dire").SetText(unidad);
    });
}

void Menu::List1_Click()
{
    Declaraciones& d = decl();
    Maneja("Menu_List1_Click", [&] {
        Control& list = At("List1");
        Control& descr = At("descr");
        if (list.ListIndex() < 0) {
            descr.SetEnabled(false);
            descr.SetText("");
            return;
        }
        Seleccion(true);
        Control& outlin = At("Outlin");
        outlin.Clear();
        const std::string folder = ConBarra(At("Dire").Text()) + list.SelectedText();
        const ObraInfo info = AbreObra(d, folder);
        d.DirObras = At("Dire").Text();
        if (const std::string aviso = TextoRecuperacion(d, info); !aviso.empty())
            d.ui.MsgBox(aviso, mb::Information, "");
        outlin.SetItems(info.contents);
        At("tachado").SetVisible(outlin.ListCount() == 0);
        if (info.hasDatos) {
            At("Lbvers").SetCaption(info.versionText);
            if (info.datosDamaged && !info.problem.empty())
                d.ui.MsgBox(info.problem, mb::Exclamation, "");
        } else {
            At("Lbvers").SetCaption("");
        }
        At("UCBconvertir").SetEnabled(info.convertible);
        VerMenus(info.hasDatos);
        At("Lbtitulo").SetCaption(AcortaRuta(d.CarpetaObra, 70) + "   ");
        const int16_t cargando = d.Cargando;
        d.Cargando = kTrue;
        descrMensaje_ = info.description.empty();
        descr.SetText(descrMensaje_ ? d.Msg(140) : info.description);
        descr.Set("ForeColor", descrMensaje_ ? kColorGris : "");
        d.Cargando = cargando;
        descrCambiada_ = false;
        descr.SetEnabled(true);
    });
}

void Menu::List1_KeyDown(int keyCode)
{
    if (keyCode == kTeclaSuprimir && At("List1").ListIndex() >= 0)
        Eliminar_Click();
}

void Menu::GuardaDescr()
{
    if (!descrCambiada_ || descrMensaje_)
        return;
    Declaraciones& d = decl();
    std::string texto = At("descr").Text();
    DatosFile(d, "descr.~ce", "G", texto);
    descrCambiada_ = false;
    DescripcionRtf();
}

void Menu::DescripcionRtf()
{
    Declaraciones& d = decl();
    Maneja("Menu_DescripcionRtf", [&] {
        std::string texto;
        DatosFile(d, "DESCR.~CE", "L", texto);
        if (texto == "No")
            texto.clear();
        Informe informe(d);
        informe.Linea("Cabe");
        informe.Linea("Tit1", d.Msg(178));
        const std::vector<std::string> lineas = SplitLines(texto);
        for (size_t i = 0; i < lineas.size(); ++i)
            informe.Linea(i == 0 ? "Tit2" : "Tex1", lineas[i]);
        informe.Linea("FinD");
        informe.Guarda(ConBarra(d.CarpetaObra) + "Descr.l" + Catalogo()[0].code);
    });
}

void Menu::GuardaDat()
{
    Declaraciones& d = decl();
    Maneja("Menu_GuardaDat", [&] {
        d.UnidadObra = At("Drive1").SelectedText().substr(0, 2);
        d.DirObras = At("Dire").Text();
        d.NombreObra = At("List1").SelectedText();
        d.CarpetaObra = ConBarra(d.DirObras) + d.NombreObra;
        NombreDat(d, "NOMBRE.DAT", "G");
    });
}

void Menu::Seleccion(bool flag)
{
    for (const char* item : {"Eliminar", "Copi", "Sistema_Unidades", "mnuDatosProy", "DatGen", "mnuAcciones", "Listad"})
        At(item).SetEnabled(flag);
    for (const auto& [familia, comandos] : FamiliasMenu())
        for (const ComandoElemento& c : comandos)
            At(c.item).SetEnabled(flag);
}

void Menu::VerMenus(bool flag)
{
    At("Dat").SetVisible(flag);
    At("kk").SetVisible(flag);
    for (const Familia& f : kFamilias)
        At(f.menu).SetVisible(flag && decl().*f.marca != 0);
}

void Menu::UCBconvertir_Click()
{
    Declaraciones& d = decl();
    Maneja("Menu_UCBconvertir_Click", [&] {
        GuardaDescr();
        // A dry run first, so that the progress can be told as a share of the whole.
        std::vector<std::string> nombres;
        ConversionOptions prueba;
        prueba.dryRun = true;
        const int total = Convierte(d, nombres, prueba).records;
        struct Libera {
            Menu& m;
            ~Libera()
            {
                if (m.ganchos.ocupado)
                    m.ganchos.ocupado(false);
            }
        } libera{*this};
        if (ganchos.ocupado)
            ganchos.ocupado(true);
        ConversionOptions opciones;
        opciones.progress = [&](int hecho, const std::string& que) {
            if (ganchos.progreso)
                ganchos.progreso(hecho, total, que);
        };
        // The hidden list keeps the names of earlier runs: the run appends to what it holds.
        Control& lista2 = At("List2");
        std::vector<std::string> list2 = lista2.Items();
        const ConversionLog log = Convierte(d, list2, opciones);
        ultimosRegistros = log.records;
        lista2.SetItems(list2);
        At("List4").SetItems(log.list4);
        // A run that did not complete has changed nothing (or will be finished at the next
        // opening); the sentence says which, and the window goes on.
        if (!log.error.empty())
            d.ui.MsgBox(log.error, mb::Exclamation, d.Msg(34));
    });
    // The window reads the work again: its version now reads 3.50 and the button is off.
    List1_Click();
}

void Menu::UCBexplorer_Click()
{
    Declaraciones& d = decl();
    if (d.platform.shell && !d.CarpetaObra.empty())
        d.platform.shell->AbreDocumento(d.CarpetaObra);
}

void Menu::Nueva_Click()
{
    if (!ganchos.modal)
        return;
    Declaraciones& d = decl();
    d.ObraNueva = kFalse;
    NuevaEst dialogo(d, *this);
    dialogo.Form_Load();
    ganchos.modal(dialogo);
    if (d.ObraNueva != kFalse)
        AbreOpcion("DAGE");
}

void Menu::Copi_Click()
{
    if (!ganchos.modal || At("List1").ListIndex() < 0)
        return;
    Copiar dialogo(decl(), *this);
    dialogo.Form_Load();
    ganchos.modal(dialogo);
}

void Menu::Eliminar_Click()
{
    if (!ganchos.modal || At("List1").ListIndex() < 0)
        return;
    BorraEst dialogo(decl(), *this);
    dialogo.Form_Load();
    ganchos.modal(dialogo);
}

void Menu::Busca_Click()
{
    Declaraciones& d = decl();
    GuardaDat();
    if (ganchos.buscaObras)
        ganchos.buscaObras();
    Maneja("Menu_Busca_Click", [&] {
        NombreDat(d, "NOMBRE.DAT", "L");
        SituaCarpeta();
    });
}

void Menu::Idioma_Click()
{
    if (!ganchos.modal)
        return;
    Declaraciones& d = decl();
    FrmIdioma dialogo(d);
    dialogo.Form_Load();
    ganchos.modal(dialogo);
    Maneja("Menu_Idioma_Click", [&] {
        CargaMensajes(d);
        LlenaCatalogo(d);
        List1_Click();
        TraduceForm(*this);
        RotulaFormasSinFila();
    });
}

void Menu::RotulaFormasSinFila()
{
    // Their labels are messages, which no form block of the language pack names: a new
    // language reaches them through the message table.
    for (const auto& [familia, comandos] : FamiliasMenu())
        for (const ComandoElemento& c : comandos)
            if (c.caption.empty() && FilaDeMenu(c.codigo) < 0 && !FormaDeMenu(c.codigo).empty())
                At(c.item).SetCaption(RotuloDeMenu(decl(), c.codigo));
}

void Menu::Salir_Click() { AbreOpcion(""); }

void Menu::AbreOpcion(const std::string& opcion)
{
    Opcion = opcion;
    pideCierre_ = true;
    if (ganchos.cierra)
        ganchos.cierra();
}

void Menu::Form_Unload()
{
    Maneja("Menu_Unload", [&] {
        if (At("List1").ListIndex() >= 0)
            GuardaDescr();
        GuardaDat();
    });
}

}  // namespace vardena
