// The general-data report, "Datos.lCE" in the work folder.

#include "building/DatosGen.h"
#include "reports/mRtf.h"
#include "works/Declaraciones.h"
#include "works/Subrut.h"
#include "base/VbFormat.h"

namespace vardena {

void DatosGen::ListaRtf()
{
    Declaraciones& d = decl();
    Informe inf(d);
    const TextosRtf& u = inf.Textos();
    const bool tecnico = d.Unidades == 1;
    auto carga = [&](float v) {
        const double x = v * u.FacCargaSup;
        return tecnico ? Formato0(x) : Formato00(x);
    };
    auto item = [this](const char* list, int index) { return At(list).List(index); };

    inf.Linea("Cabe");
    inf.Linea("Tit1", d.Msg(145));
    inf.Linea("Tit3", d.Msg(252) + " " + d.NombreObra);
    inf.Linea("Tit2", d.Msg(48));
    inf.Linea("Tit3", d.Msg(253));
    inf.Linea("Tex1", d.Msg(tecnico ? 254 : 255));
    const int n = d.NPlantasSobre, m = d.NPlantasBajo;
    inf.Linea("Tex1", d.Msg(256), Formato0(static_cast<double>(n)));
    inf.Linea("Tex1", d.Msg(257), Formato0(static_cast<double>(m)));

    inf.Linea("Tit3", d.Msg(258));
    for (int i = 0; i <= n + m; ++i) {
        std::string name;
        if (i == 0)
            name = d.Msg(259);
        else if (i < n)
            name = FormatoNum(static_cast<float>(n - i)) + d.Msg(260);
        else if (i == n)
            name = d.Msg(261);
        else
            name = FormatoNum(static_cast<float>(n - i)) + " " + d.Msg(3);
        const bool sotano = i > n;
        const int k = sotano ? i - n : i;
        const float pp = sotano ? d.GenPProS[k] : d.GenPProP[k];
        const float cp = sotano ? d.GenConcS[k] : d.GenConcP[k];
        const float su = sotano ? d.GenSobrS[k] : d.GenSobrP[k];
        const float ta = sotano ? d.GenSTabS[k] : d.GenSTabP[k];
        const std::string uso = sotano ? d.GenCUsoS[k] : d.GenCUsoP[k];
        std::string line = carga(pp) + " / " + carga(cp) + " / " + carga(su) + "  " + u.UnCargaSup + " / " + carga(ta) +
                           " / " + uso;
        if (i > 0)
            line += " /  " + Formato00(d.GenCot[static_cast<size_t>(i - 1)]) + " m.";
        inf.Linea("Tex1", name, line);
    }

    inf.Linea("Tit3", d.Msg(886));
    for (int i = 1; i <= 6; ++i)
        inf.Linea("Tex1", d.GenDescr[i], carga(d.GenValor[i]) + " " + u.UnCargaSup);
    inf.Linea("Tex1", d.Msg(887), carga(d.GenValor[7]) + " " + u.UnCargaSup);

    inf.Linea("Tit3", d.Msg(888));
    const int steps[] = {889, 891, 892, 893};
    for (int i = 0; i < 4; ++i)
        inf.Linea("Tex1", d.Msg(steps[i]), Formato0(d.GenDia[i + 1]) + " " + d.Msg(890));
    inf.Linea("Tit3", d.Msg(894));
    inf.Linea("Tex1", d.Msg(895), Formato0(d.GenDia[5]) + " %");
    inf.Linea("Tex1", d.Msg(896), Formato0(d.GenDia[6]) + " %");

    inf.Linea("Tit3", d.Msg(262));
    inf.Linea("Tex1", d.Msg(263), u.UnTension + " " + Formato00(d.GenTens * u.FacTension));

    inf.Linea("Tit3", d.Msg(264));
    inf.Linea("Tex1", d.Msg(265), item("CmbHorm", d.GenHorm));
    inf.Linea("Tex1", d.Msg(266), item("CmbAcero", d.GenAcero));
    inf.Linea("Tex1", d.Msg(267), item("cmbControl", d.GenControl));
    inf.Linea("Tit3", d.Msg(268));
    inf.Linea("Tex1", d.Msg(266), item("CmbAcP", d.GenAcP));
    inf.Linea("Tit3", d.Msg(269));
    inf.Linea("Tex1", d.Msg(270), item("CmbResis", d.GenResis) + " / " + item("CmbServi", d.GenServi));
    inf.Linea("Tit3", d.Msg(271));
    inf.Linea("Tex1", d.Msg(274), u.UnTension + " " + Formato0(d.GenResFab * u.FacTension));
    inf.Linea("Tex1", d.Msg(1089), Formato00(d.GenCoefMin));
    inf.Linea("Tex1", d.Msg(884), Formato0(d.GenDensFabr) + " kg/m3");
    inf.Linea("Tex1", d.Msg(1269), item("cmbCatControl", d.GenCatControl));
    inf.Linea("Tex1", d.Msg(1270), item("CmbCatEjec", d.GenCatEjec));
    inf.Linea("FinD");
    inf.Guarda(ConBarra(d.CarpetaObra) + "Datos.lCE");
}

}  // namespace vardena
