// Stored fields of the steel and timber element forms, in the order of their records.
// Each entry: name, member indices in the order the form defines them, kind letter, design texts.

#include "frame/Campos.h"

namespace vardena {

const std::vector<TablaForm>& TablasAceroMadera()
{
    static const std::vector<TablaForm> tablas = {
        {"frmVigMet", "LJ", {
            {"cmbClase", {}, 'C'}, {"UCPerfil1", {}, 'P'}, {"TxtQ", {1}, 'T', {"2.1"}}, {"TxCota", {1}, 'T', {" 5.50"}},
            {"TxtPil", {0, 1}, 'T', {"30"}}, {"ChVigIzq", {}, 'K'}, {"ChPilIzq", {}, 'K'}, {"ChPilDer", {}, 'K'},
            {"ChVigDer", {}, 'K'}, {"TxCota", {2}, 'T', {" 2.00"}}, {"TxtQ", {2}, 'T', {"1.2"}},
            {"TxCota", {3}, 'T', {" 2.00"}}, {"TxtQ", {3, 0, 4}, 'T', {"1.5", "1", "1"}}, {"CmTramos", {}, 'C'},
            {"TxtQ", {5, 6}, 'T', {"40"}}, {"TxCota", {0, 4}, 'T', {"1.10"}}, {"txtTitulo", {}, 'T'}, {"cmbPart", {}, 'C'},
            {"CmbCaso", {}, 'C'}, {"CmbAcero", {}, 'C'}, {"CmbPlanta", {}, 'C'}, {"TxtRes4", {}, 'T'}, {"TxtRes3", {}, 'T'},
            {"TxtRes2", {}, 'T'}, {"TxtRes1", {}, 'T'},
        }},
        {"frmPilMet", "LP", {
            {"UCViga", {1, 3}, 'P'}, {"cmbClase", {}, 'C'}, {"UCViga", {0}, 'P'}, {"txtCurvaY", {}, 'T', {"c"}},
            {"txtCurvaX", {}, 'T', {"c"}}, {"TxtBetaX", {}, 'T', {"0"}}, {"TxtBetaY", {}, 'T', {"0"}},
            {"ChkArriostradaX", {}, 'K'}, {"ChkArriostradaY", {}, 'K'}, {"UCPerfil1", {}, 'P'}, {"txtTitulo", {}, 'T'},
            {"OpPosPil", {0, 1, 2}, 'O'}, {"LePil", {12}, 'T', {"3.10"}}, {"ChRotS", {}, 'K'}, {"ChRotI", {}, 'K'},
            {"ChPilSup", {}, 'K'}, {"TxtQ", {0, 3, 1, 2}, 'T', {"800", "40", "0", "0"}},
            {"LePil", {7, 6, 5, 4, 3, 2, 1, 0, 11, 10, 9, 8}, 'T', {"1.10", "1.10", "4.50", "5.00", "5.00", "5.00", "4.50", "4.50"}},
            {"UCViga", {2}, 'P'}, {"CmbPlanta", {}, 'C'}, {"CmbAcero", {}, 'C'}, {"CmbCaso", {}, 'C'}, {"TxtRes2", {}, 'T'},
            {"TxtRes1", {}, 'T'},
        }},
        {"frmBasMet", "LS", {
            {"CmbTornillos", {}, 'C'}, {"CmbAcero", {}, 'C'}, {"TxtRes1", {2, 0, 1}, 'T'},
            {"TxCota", {2, 4}, 'T', {"1.8", "20"}}, {"Text1", {}, 'T', {"80"}}, {"TxMy", {}, 'T', {"2"}},
            {"TxMx", {}, 'T', {"2"}}, {"TxEspCartY", {}, 'T', {"1.2"}}, {"TxEspCartX", {}, 'T', {"1.2"}},
            {"TxNumTorY", {}, 'T', {"2"}}, {"TxNumTorX", {}, 'T', {"2"}}, {"ChY", {}, 'K'}, {"ChX", {}, 'K'},
            {"TxCotaCartY", {1, 0}, 'T', {"15", "10"}}, {"UCPerfil1", {}, 'P'}, {"TxCota", {3}, 'T', {"25"}},
            {"TxCotaCartX", {1, 0}, 'T', {"15", "10"}}, {"TxCota", {1, 0}, 'T', {"50", "60"}}, {"txtTitulo", {}, 'T'},
        }},
        {"frmForjAcer", "LQ", {
            {"cmbPart", {}, 'C'}, {"CmbPlanta", {}, 'C'}, {"CmbAcero", {}, 'C'}, {"CmbCaso", {}, 'C'}, {"TxtRes3", {}, 'T'},
            {"TxtRes2", {}, 'T'}, {"TxtRes1", {}, 'T'}, {"TxtRes4", {}, 'T'}, {"OpFlexLat", {2, 1, 0}, 'O'},
            {"ChInclinado", {}, 'K'}, {"txtForj", {4, 3, 2, 1}, 'T', {"0", "2.5", "18", "40"}}, {"txtTitulo", {}, 'T'},
            {"OpTramo", {5}, 'O'}, {"TxTrAd", {1, 0}, 'T', {"4.8"}}, {"OpTramo", {0, 1, 2, 3, 4}, 'O'},
            {"cmbClase", {}, 'C'}, {"TxCota", {3, 2}, 'T', {"1.10"}}, {"ChVigDer", {}, 'K'}, {"ChVigIzq", {}, 'K'},
            {"TxtQ", {4, 3, 2, 1}, 'T', {"0.2", "0.2", "500", "500"}}, {"TxCota", {0}, 'T', {"2.00"}},
            {"TxtQ", {0}, 'T', {"0"}}, {"TxCota", {1}, 'T', {"4.50"}}, {"UCPerfil1", {}, 'P'},
        }},
        {"frmEscMet", "LZ", {
            {"CmbAcero", {}, 'C'}, {"TxtRes1", {}, 'T'}, {"TxtRes2", {}, 'T'}, {"TxtRes3", {}, 'T'}, {"TxtRes4", {}, 'T'},
            {"UCPerfil1", {}, 'P'}, {"txtTitulo", {}, 'T'}, {"OptLosa", {0, 3, 1, 2}, 'O'},
            {"txtSolado", {}, 'T', {"1.00"}}, {"txtSobrUso", {}, 'T', {"4.00"}}, {"txtAncho", {1, 0}, 'T', {"1.00"}},
            {"TxCotaH2", {0, 1, 2, 3, 4}, 'T', {"1.10", "2.25", "1.10", "1.4", "1.4"}}, {"OptH2izqS", {1, 0}, 'O'},
            {"OptH2izqI", {0, 1}, 'O'}, {"OptH2der", {0, 1}, 'O'},
            {"TxCotaH1", {0, 1, 2, 3}, 'T', {"1.10", "3.10", "1.10", "2.00"}}, {"OptH1izq", {0, 1}, 'O'},
            {"OptH1der", {1, 0}, 'O'}, {"TxCotaRampa", {0, 1}, 'T', {"6.25", "1.00"}}, {"OptRampaApoIzq", {1, 0}, 'O'},
            {"OptRampaApoDer", {0, 1}, 'O'}, {"TxCotaDesc", {0, 1, 2, 3, 4}, 'T', {"2.25", "1.10", "2.25", "1.40", "1.40"}},
            {"OptDApoIzq", {2, 0}, 'O'}, {"OptDApoDer", {0, 2}, 'O'},
        }},
        {"frmVigMade", "MB", {
            {"cmbPart", {}, 'C'}, {"CmbResis", {}, 'C'}, {"CmbServi", {}, 'C'}, {"CmbPlanta", {}, 'C'},
            {"TxtRes4", {}, 'T'}, {"TxtRes1", {}, 'T'}, {"TxtRes2", {}, 'T'}, {"TxtRes3", {}, 'T'},
            {"CmbCargaComp", {}, 'C'}, {"txtResF2", {}, 'T'}, {"txtResF1", {}, 'T'}, {"CmbUso", {}, 'C'},
            {"txtEF", {}, 'T', {"60"}}, {"txtTitulo", {}, 'T'}, {"ChVigDer", {}, 'K'}, {"TxCota", {4, 0}, 'T', {"1.10"}},
            {"TxtQ", {6, 5}, 'T', {"4"}}, {"CmTramos", {}, 'C'}, {"TxtQ", {4, 0, 3}, 'T', {"1", "1", "1.5"}},
            {"TxCota", {3}, 'T', {" 2.00"}}, {"TxtQ", {2}, 'T', {"1.2"}}, {"TxCota", {2}, 'T', {" 2.00"}},
            {"ChPilDer", {}, 'K'}, {"ChPilIzq", {}, 'K'}, {"ChVigIzq", {}, 'K'}, {"TextDviga", {1, 0}, 'T', {"50", "30"}},
            {"TxCota", {1}, 'T', {" 5.50"}}, {"TxtQ", {1}, 'T', {"2.1"}},
        }},
        {"frmPilMade", "MC", {
            {"CmbPlanta", {}, 'C'}, {"CmbServi", {}, 'C'}, {"CmbResis", {}, 'C'}, {"TxtRes1", {}, 'T'},
            {"TxtRes2", {}, 'T'}, {"TxtRes3", {}, 'T'}, {"TxtBetaX", {}, 'T', {"0"}}, {"TxtBetaY", {}, 'T', {"0"}},
            {"ChkArriostradaX", {}, 'K'}, {"ChkArriostradaY", {}, 'K'}, {"CmbForma", {}, 'C'},
            {"txtTramo", {4, 3, 0}, 'T', {"30"}}, {"CmbUso", {}, 'C'}, {"txtEF", {}, 'T', {"30"}},
            {"TxtPorcent", {}, 'T', {"100"}},
            {"LePil", {8, 9, 10, 11, 0, 1, 2, 3, 4, 5, 6, 7}, 'T', {"5.15", "1.00", "4.50", "4.50", "4.50", "4.50", "5.00", "5.00"}},
            {"cmbesviada", {}, 'C'}, {"LePil", {12}, 'T', {"3.10"}}, {"ChRotI", {}, 'K'}, {"ChRotS", {}, 'K'},
            {"TxtQ", {2, 1, 3, 0}, 'T', {"0", "0", "40", "800"}}, {"ChPilSup", {}, 'K'}, {"OpPosPil", {2, 1, 0}, 'O'},
            {"txtTitulo", {}, 'T'},
        }},
        {"frmForMade", "MD", {
            {"Combo1", {}, 'C'}, {"CmbPlanta", {}, 'C'}, {"CmbServi", {}, 'C'}, {"CmbResis", {}, 'C'}, {"TxtRes3", {}, 'T'},
            {"TxtRes2", {}, 'T'}, {"TxtRes1", {}, 'T'}, {"TxtRes4", {}, 'T'}, {"OpFlexLat", {0, 1, 2}, 'O'},
            {"LblTab", {}, 'T', {"TABLERO INSUFICIENTE"}}, {"ChInclinado", {}, 'K'},
            {"txtForj", {4, 3, 2, 0, 1}, 'T', {"0", "2.5", "18", "10", "40"}}, {"txtTitulo", {}, 'T'},
            {"OpTramo", {5}, 'O'}, {"TxTrAd", {1, 0}, 'T', {"4.8"}}, {"OpTramo", {0, 1, 2, 3, 4}, 'O'},
            {"TxCota", {2, 3}, 'T', {"1.10"}}, {"ChVigDer", {}, 'K'}, {"TxtQ", {4, 3}, 'T', {"0.2"}}, {"ChVigIzq", {}, 'K'},
            {"TextDviga", {0, 1}, 'T', {"10", "18"}}, {"TxtPil", {1, 0}, 'T', {"30"}}, {"TxtQ", {2, 1}, 'T', {"500"}},
            {"TxCota", {0}, 'T', {"2.00"}}, {"TxtQ", {0}, 'T', {"0"}}, {"TxCota", {1}, 'T', {"4.50"}},
            {"txtEF", {}, 'T', {"60"}}, {"CmbUso", {}, 'C'}, {"txtResF1", {}, 'T'}, {"txtResF2", {}, 'T'},
        }},
        {"frmEscMade", "ME", {
            {"CmbPlanta", {}, 'C'}, {"CmbServi", {}, 'C'}, {"CmbResis", {}, 'C'}, {"TxtRes3", {}, 'T'},
            {"TxtRes2", {}, 'T'}, {"TxtRes1", {}, 'T'}, {"TxtRes4", {}, 'T'}, {"txtTitulo", {}, 'T'},
        }},
    };
    return tablas;
}

}  // namespace vardena
