#pragma once
// A report with every kind of fragment the writer makes: each tagged line, each table shape,
// units with raised exponents, a Symbol-font run, accented and "·" text.

#include <string>

#include "reports/mRtf.h"

namespace vardena::test {

inline void EveryFragment(Informe& inf)
{
    const TextosRtf& t = inf.Textos();
    const TextosRtf tecnico = IniciaRtf(1);
    inf.Linea("Cabe");
    inf.Linea("Tit1", "Informe de comprobación");
    inf.Linea("Tit2", "Obra: Edificio ÁTICO © 2024");
    inf.Linea("Tit3", "Datos generales");
    inf.Linea("Tex1", "Número de plantas:", "3");
    inf.Linea("Tex1", "Línea sin segundo texto");
    inf.Linea("Tex1", "Segundo texto vacío", "");
    inf.Linea("Tex1", "Momento máximo:", "12.5 " + t.UnMomento);
    inf.Linea("Tex1", "Tensión admisible:", "2.5 " + t.UnTension + " / 25 " + tecnico.UnTension);
    inf.Linea("Tex1", "Volumen:", "3.2 " + t.UnVolumen + ", inercia 1.1 " + t.UnCuarta);
    inf.Linea("Tex1", std::string("Coeficiente ") + std::string(TextosRtf::Simbolo) + "g" +
                          std::string(TextosRtf::Cuerpo) + "c añadió:",
              "1.5");
    inf.Linea("Tex1", "Primera línea\r\nsegunda línea");
    inf.Linea("Blan");
    inf.CabeceraTabla2(1, "Dos uno", "Título B");
    inf.FilaTabla2("Fila añadida <nada> & más", "Sí", 0);
    inf.FinTabla();
    inf.CabeceraTabla2(2, "Dos dos", "Título C");
    inf.FilaTabla2("Negrita", "No procede", 1);
    inf.FinTabla();
    for (int kind = 1; kind <= 3; ++kind) {
        inf.CabeceraTabla3(kind, "Tres " + std::to_string(kind), "Definido (Sí/No)", "Observaciones");
        inf.FilaTabla3("Plano de cimentación", "Sí", "Zapatas de hormigón", kind % 2);
        inf.FinTabla();
    }
    for (int kind = 1; kind <= 2; ++kind) {
        inf.CabeceraTabla4(kind, "Cuatro " + std::to_string(kind), "P", "G", "Q");
        inf.FilaTabla4("Forjado planta 1ª", "0.35", "0.10", "0.20", 0);
        inf.FilaTabla4("Cubierta", "m·t", "kN/m" + TextosRtf::Exponente("2"), "", 1);
        inf.FinTabla();
    }
    inf.TablaTexto("Notas: el cálculo se hizo según la EHE.");
    inf.Linea("Tex1", "Fin del informe");
    inf.Linea("FinD");
}

}  // namespace vardena::test
