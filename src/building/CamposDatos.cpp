// Stored fields of the actions form, the project annexes form and the forms whose result is a
// free text, in the order of their records.

#include "frame/Campos.h"

namespace vardena {
namespace {

// The forms with a free-text result share their materials, result and title; each adds its own
// few controls behind them. They read every record twice and ask before replacing a result.
TablaForm TablaLibre(std::string_view nombre, std::string_view caption, std::string_view titulo,
                     PasoComprobacion paso, std::vector<CampoDef> propios, Listas listas = ListasHormigon())
{
    TablaForm t{nombre, {
        {"CmbHorm", {}, kLista}, {"CmbAcero", {}, kLista}, {"cmbControl", {}, kLista}, {"CmbRecub", {}, kLista},
        {"TxtRes1", {}, kTexto}, {"txtTitulo", {}, kTexto},
    }, {true, true, paso, true}, caption, titulo, kRecubEstructura, kNada, std::move(listas)};
    t.campos.insert(t.campos.end(), propios.begin(), propios.end());
    return t;
}

// An array of text boxes with members 0 to n - 1.
CampoDef Textos(std::string_view nombre, int n)
{
    CampoDef c{nombre, {}, kTexto};
    for (int i = 0; i < n; ++i)
        c.indices.push_back(i);
    return c;
}

// The annexes questionnaire, sheet by sheet in the order of its document: rules in force and
// recommended rules with their notes, audited documents, soil items, load items, the floor load
// table (row labels and twelve columns), drawings and details, audit texts, free paragraphs.
TablaForm TablaDatosProy()
{
    TablaForm t{"frmDatosProy", {
        Textos("Text1a", 12), Textos("Text1b", 12), {"TextNotas1", {}, kTexto},
        Textos("Text2", 12), Textos("Text2a", 12), Textos("Text2b", 12), {"TextNotas2", {}, kTexto},
        {"Text3a", {}, kTexto},
        Textos("Text31a", 7), Textos("Text31b", 7),
        Textos("Text321a", 60), Textos("Text321b", 60), Textos("Text321c", 60),
        Textos("Text3125", 16), Textos("Text3125a", 16), Textos("Text3125b", 16), Textos("Text3125c", 16),
        Textos("Text3125d", 16), Textos("Text3125e", 16), Textos("Text3125f", 16), Textos("Text3125g", 16),
        Textos("Text3125h", 16), Textos("Text3125i", 16), Textos("Text3125j", 16), Textos("Text3125k", 16),
        Textos("Text3125l", 16),
        Textos("Text322", 62), Textos("Text322b", 62),
        Textos("Text4", 6), Textos("Text4a", 4), Textos("Text4b", 4),
        {"Text3126", {}, kTexto}, {"Text3127", {}, kTexto}, {"Text313", {}, kTexto}, {"Text314a", {}, kTexto},
        {"Text314b", {}, kTexto}, {"txtTitulo", {}, kTexto},
    },
     // The questionnaire is saved with no check call, as the one record "Anejos".
     {false, true, PasoComprobacion::Ninguno, false}, "Anexos Proyecto", "Anejos", kNada, kNada};
    return t;
}

}  // namespace

const std::vector<TablaForm>& TablasDatosYLibres()
{
    static const std::vector<TablaForm> tablas = {
        {"frmAccio", {
            {"TxtSingP", {1}, kTexto, {"0"}}, {"TxtSingS", {0}, kTexto, {"0"}}, {"TxtSingP", {0}, kTexto, {"100"}},
            {"TxtLongP", {1}, kTexto, {"75"}}, {"TxtLongS", {0}, kTexto, {"0"}}, {"TxtLongP", {0}, kTexto, {"70"}},
            {"TxtSupeP", {1}, kTexto, {"300"}}, {"TxtSupeS", {0}, kTexto, {"300"}}, {"TxtSupeP", {0}, kTexto, {"250"}},
            {"txtEspesor", {0}, kTexto, {"30"}}, {"txtEstratos", {}, kTexto, {"1"}}, {"cmbSuelo", {0, 1}, kLista},
            {"txtEspesor", {1}, kTexto}, {"cmbSuelo", {2}, kLista}, {"txtEspesor", {2}, kTexto}, {"cmbSuelo", {3}, kLista},
            {"txtEspesor", {3}, kTexto}, {"cmbSuelo", {4}, kLista}, {"txtEspesor", {4}, kTexto}, {"txtC", {}, kTexto},
            {"txtEsby", {}, kTexto}, {"txtPresy", {}, kTexto}, {"txtSucy", {}, kTexto}, {"txtSuc", {}, kTexto}, {"txtPres", {}, kTexto},
            {"txtEsb", {}, kTexto}, {"txtSobrNieve", {}, kTexto}, {"txtModo", {}, kTexto}, {"txtPant1", {}, kTexto},
            {"TextAc", {}, kTexto}, {"txtRo", {}, kTexto}, {"txtS", {}, kTexto}, {"txtTf", {}, kTexto}, {"cmbSueloSismo", {}, kLista},
            {"cmbEstruct", {}, kLista}, {"txtSismoK", {}, kTexto}, {"txtBeta", {}, kTexto}, {"cmbDuct", {}, kLista},
            {"cmbCompart", {}, kLista}, {"txtSismoC", {}, kTexto}, {"cmbImportSismo", {}, kLista}, {"TextAb", {}, kTexto},
            {"TxtLong", {}, kTexto, {"12"}}, {"cmbZonEol", {}, kLista}, {"cmbEntorno", {}, kLista}, {"txtAlt", {}, kTexto, {"60"}},
            {"txtAnch", {}, kTexto, {"12"}}, {"cmbNieve", {}, kLista}, {"txtNieve", {}, kTexto}, {"ChNieve", {}, kCasilla},
            {"ChViento", {}, kCasilla}, {"ChSismo", {}, kCasilla}, {"txtTitulo", {}, kTexto},
        },
         // The actions form keeps one record, "Acciones", and saves with no check call.
         // The actions are one record, "Acciones", which also names the window.
         {false, true, PasoComprobacion::Ninguno, false, "Acciones"},
         "Acciones", "Acciones", kNada, kNada,
         Listas{{"cmbNieve", -1, kZonaNieve}, {"cmbZonEol", -1, kZonaEolica}, {"cmbEntorno", -1, kEntorno}, {"cmbImportSismo", -1, kImportancia}, {"cmbEstruct", -1, kEstructura}, {"cmbSueloSismo", -1, kSueloSismo}, {"cmbCompart", -1, kCompartimentacion}, {"cmbDuct", -1, kDuctilidad}, {"cmbSuelo", -1, kSueloEstrato}},
         {}, Despacho::UnaVezPorArchivo},
        TablaDatosProy(),
        // The blank element's concrete list starts at HA-25, behind its "Idem gral." row.
        TablaLibre("frmEnBlanco", "En Blanco", "En Blanco 01", PasoComprobacion::Ninguno,
                   {{"TxCercos", {}, kTexto}, {"txCuelgue", {}, kTexto}}, ListasHormigon25()),
        TablaLibre("frmLosCime", "Soleras Armadas", "Losa Cimentación 01", PasoComprobacion::Bandera, {{"UCArmZap", {}, kZapatas}}),
        TablaLibre("frmMArco", "Arcos Fábrica", "Arco Fábrica 01", PasoComprobacion::Bandera, {}),
        TablaLibre("frmMArma", "Fábrica Armada", "Fábrica Armada 01", PasoComprobacion::Bandera, {}),
        TablaLibre("frmSolArma", "Soleras Armadas", "Solera Armada 01", PasoComprobacion::Bandera, {{"UCArmZap", {}, kZapatas}}),
        TablaLibre("frmUniAto", "Uniones Atornilladas", "Unión Atornillada 01", PasoComprobacion::Bandera, {}),
        TablaLibre("frmUniSol", "Uniones Soldadas", "Unión Soldada 01", PasoComprobacion::Bandera, {}),
        TablaLibre("frmVigFlot", "Soleras Armadas", "Viga Flotante 01", PasoComprobacion::Bandera, {{"UCArmZap", {}, kZapatas}}),
    };
    return tablas;
}

}  // namespace vardena
