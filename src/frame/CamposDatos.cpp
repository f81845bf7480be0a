// Stored fields of the actions form, the project annexes form and the forms whose result is a
// free text, in the order of their records.

#include "frame/Campos.h"

namespace vardena {
namespace {

// The forms with a free-text result share their materials, result and title; each adds its own
// few controls behind them.
TablaForm TablaLibre(std::string_view nombre, std::vector<CampoDef> propios)
{
    TablaForm t{nombre, "", {
        {"CmbHorm", {}, 'C'}, {"CmbAcero", {}, 'C'}, {"cmbControl", {}, 'C'}, {"CmbRecub", {}, 'C'},
        {"TxtRes1", {}, 'T'}, {"txtTitulo", {}, 'T'},
    }};
    t.campos.insert(t.campos.end(), propios.begin(), propios.end());
    return t;
}

// An array of text boxes with members 0 to n - 1.
CampoDef Textos(std::string_view nombre, int n)
{
    CampoDef c{nombre, {}, 'T'};
    for (int i = 0; i < n; ++i)
        c.indices.push_back(i);
    return c;
}

// The annexes questionnaire, sheet by sheet in the order of its document: rules in force and
// recommended rules with their notes, audited documents, soil items, load items, the floor load
// table (row labels and twelve columns), drawings and details, audit texts, free paragraphs.
TablaForm TablaDatosProy()
{
    TablaForm t{"frmDatosProy", "DP", {
        Textos("Text1a", 12), Textos("Text1b", 12), {"TextNotas1", {}, 'T'},
        Textos("Text2", 12), Textos("Text2a", 12), Textos("Text2b", 12), {"TextNotas2", {}, 'T'},
        {"Text3a", {}, 'T'},
        Textos("Text31a", 7), Textos("Text31b", 7),
        Textos("Text321a", 60), Textos("Text321b", 60), Textos("Text321c", 60),
        Textos("Text3125", 16), Textos("Text3125a", 16), Textos("Text3125b", 16), Textos("Text3125c", 16),
        Textos("Text3125d", 16), Textos("Text3125e", 16), Textos("Text3125f", 16), Textos("Text3125g", 16),
        Textos("Text3125h", 16), Textos("Text3125i", 16), Textos("Text3125j", 16), Textos("Text3125k", 16),
        Textos("Text3125l", 16),
        Textos("Text322", 62), Textos("Text322b", 62),
        Textos("Text4", 6), Textos("Text4a", 4), Textos("Text4b", 4),
        {"Text3126", {}, 'T'}, {"Text3127", {}, 'T'}, {"Text313", {}, 'T'}, {"Text314a", {}, 'T'},
        {"Text314b", {}, 'T'}, {"txtTitulo", {}, 'T'},
    }};
    return t;
}

}  // namespace

const std::vector<TablaForm>& TablasDatosYLibres()
{
    static const std::vector<TablaForm> tablas = {
        {"frmAccio", "CK", {
            {"TxtSingP", {1}, 'T', {"0"}}, {"TxtSingS", {0}, 'T', {"0"}}, {"TxtSingP", {0}, 'T', {"100"}},
            {"TxtLongP", {1}, 'T', {"75"}}, {"TxtLongS", {0}, 'T', {"0"}}, {"TxtLongP", {0}, 'T', {"70"}},
            {"TxtSupeP", {1}, 'T', {"300"}}, {"TxtSupeS", {0}, 'T', {"300"}}, {"TxtSupeP", {0}, 'T', {"250"}},
            {"txtEspesor", {0}, 'T', {"30"}}, {"txtEstratos", {}, 'T', {"1"}}, {"cmbSuelo", {0, 1}, 'C'},
            {"txtEspesor", {1}, 'T'}, {"cmbSuelo", {2}, 'C'}, {"txtEspesor", {2}, 'T'}, {"cmbSuelo", {3}, 'C'},
            {"txtEspesor", {3}, 'T'}, {"cmbSuelo", {4}, 'C'}, {"txtEspesor", {4}, 'T'}, {"txtC", {}, 'T'},
            {"txtEsby", {}, 'T'}, {"txtPresy", {}, 'T'}, {"txtSucy", {}, 'T'}, {"txtSuc", {}, 'T'}, {"txtPres", {}, 'T'},
            {"txtEsb", {}, 'T'}, {"txtSobrNieve", {}, 'T'}, {"txtModo", {}, 'T'}, {"txtPant1", {}, 'T'},
            {"TextAc", {}, 'T'}, {"txtRo", {}, 'T'}, {"txtS", {}, 'T'}, {"txtTf", {}, 'T'}, {"cmbSueloSismo", {}, 'C'},
            {"cmbEstruct", {}, 'C'}, {"txtSismoK", {}, 'T'}, {"txtBeta", {}, 'T'}, {"cmbDuct", {}, 'C'},
            {"cmbCompart", {}, 'C'}, {"txtSismoC", {}, 'T'}, {"cmbImportSismo", {}, 'C'}, {"TextAb", {}, 'T'},
            {"TxtLong", {}, 'T', {"12"}}, {"cmbZonEol", {}, 'C'}, {"cmbEntorno", {}, 'C'}, {"txtAlt", {}, 'T', {"60"}},
            {"txtAnch", {}, 'T', {"12"}}, {"cmbNieve", {}, 'C'}, {"txtNieve", {}, 'T'}, {"ChNieve", {}, 'K'},
            {"ChViento", {}, 'K'}, {"ChSismo", {}, 'K'}, {"txtTitulo", {}, 'T'},
        }},
        TablaDatosProy(),
        TablaLibre("frmEnBlanco", {{"TxCercos", {}, 'T'}, {"txCuelgue", {}, 'T'}}),
        TablaLibre("frmLosCime", {{"UCArmZap", {}, 'Z'}}),
        TablaLibre("frmMArco", {}),
        TablaLibre("frmMArma", {}),
        TablaLibre("frmSolArma", {{"UCArmZap", {}, 'Z'}}),
        TablaLibre("frmUniAto", {}),
        TablaLibre("frmUniSol", {}),
        TablaLibre("frmVigFlot", {{"UCArmZap", {}, 'Z'}}),
    };
    return tablas;
}

}  // namespace vardena
