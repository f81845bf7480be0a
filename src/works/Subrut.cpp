#include "works/Subrut.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "base/Codepage.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "base/VbFormat.h"

namespace vardena {

void SeleccionaEnLista(Control& list, std::string_view text)
{
    for (int i = 0; i < list.ListCount(); ++i)
        if (list.List(i) == text)
            list.SetSelected(i, true);
}

void ListaArchivos(std::string_view ext, const std::string& folder, Control& list, std::string_view select)
{
    list.Clear();
    const std::vector<std::string> names = FilesEndingWith(folder, "." + std::string(ext));
    for (const auto& n : names)
        list.AddItem(n.substr(0, n.size() - 4));
    for (int i = 0; i < list.ListCount(); ++i) {
        if (list.List(i) == select) {
            list.SetSelected(i, true);
            break;
        }
    }
}

std::string IndiceControl(const Control& c) { return std::to_string(c.Index()); }

std::string NombrePlanta(const Declaraciones& d, int i)
{
    const int ns = d.NPlantasSobre;
    if (i == 0)
        return d.Msg(17);
    if (i < ns)
        return VbStr(static_cast<float>(ns - i)) + " " + d.Msg(1);
    if (i == ns)
        return d.Msg(2);
    return VbStr(static_cast<float>(ns - i)) + " " + d.Msg(3);
}

void LlenaPlantas(Form& form, int first)
{
    Control* cmb = form.Find("CmbPlanta");
    if (!cmb)
        return;
    Declaraciones& d = form.decl();
    cmb->Clear();
    for (int i = first; i <= d.NPlantasSobre + d.NPlantasBajo; ++i)
        cmb->AddItem(NombrePlanta(d, i));
}

void Coeficientes(Declaraciones& d, int index, double& gammaC, double& gammaS)
{
    switch (index) {
    case 0: gammaC = 1.6; gammaS = 1.8; return;
    case 1: gammaC = 1.5; gammaS = 1.6; return;
    case 2: gammaC = 1.35; gammaS = 1.5; return;
    default: d.ui.MsgBox(d.Msg(164), mb::Critical, d.Msg(165));
    }
}

std::optional<int16_t> FckIndice(Declaraciones& d, int index)
{
    if (index < 0 || index > 8) {
        d.ui.MsgBox(d.Msg(166), mb::Critical, d.Msg(165));
        return std::nullopt;
    }
    return static_cast<int16_t>(1000 + 500 * index);
}

std::optional<int32_t> FykIndice(Declaraciones& d, int index)
{
    if (index == 0)
        return 41000;
    if (index == 1)
        return 51000;
    d.ui.MsgBox(d.Msg(167), mb::Critical, d.Msg(165));
    return std::nullopt;
}

float FyAcero(int index)
{
    static const float values[] = {24000, 26000, 36000, 24000, 28000, 36000, 45500};
    if (index < 0 || index > 6)
        Halt("structural steel index " + std::to_string(index) + " is outside the table");
    return values[index];
}

std::string NombreAcero(int index)
{
    static const char* names[] = {"A37", "A42", "A52", "S 235", "S 275", "S 355", "S 450"};
    if (index < 0 || index > 6)
        Halt("structural steel index " + std::to_string(index) + " is outside the table");
    return names[index];
}

int IndiceMaterial(int listIndex, int generalIndex) { return listIndex == 0 ? generalIndex : listIndex - 1; }

namespace {
int16_t CutToInteger(std::string_view text)
{
    double v = std::nearbyint(ValComaCopy(text));
    if (v > 32767 || v < -32768)
        return 0;
    return static_cast<int16_t>(v);
}
}  // namespace

double AreaBarras(const Control& c, float factor)
{
    const double r = CutToInteger(c.Get("Diametro")) / 2000.0;
    return CutToInteger(c.Get("NumBarras")) * kPi * r * r * factor;
}

double AreaSeparacion(const Control& c, float factor)
{
    const int16_t sep = CutToInteger(c.Get("Separacion"));
    if (sep == 0)
        return 0;
    const double r = CutToInteger(c.Get("Diametro")) / 2000.0;
    return 100.0 / sep * kPi * r * r * factor;
}

std::string Mensaje(const Declaraciones& d, int n, std::initializer_list<std::string> args)
{
    std::string text = d.Msg(n);
    if (text.empty()) {
        text = "[" + std::to_string(n) + "]";
        for (size_t i = 0; i < args.size(); ++i)
            text += " %" + std::to_string(i + 1);
    }
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9') {
            const size_t k = static_cast<size_t>(text[i + 1] - '1');
            if (k < args.size()) {
                out += *(args.begin() + k);
                ++i;
                continue;
            }
        }
        out += text[i];
    }
    return out;
}

std::string TituloInvalido(const Declaraciones& d, std::string_view title)
{
    if (title.empty())
        return d.Msg(1407);
    if (title == "." || title == "..")
        return d.Msg(1408);
    for (unsigned char c : title) {
        if (c == '/' || c == '\\')
            return d.Msg(1409);
        if (c < 0x20 || c == 0x7F)
            return d.Msg(1410);
    }
    // The record's name adds ".~" and the code to the title.
    if (Utf8ToCp1252(title).size() + 4 > 255)
        return d.Msg(1411);
    if (IsOwnWorkFile(title))
        return d.Msg(1412);
    return {};
}

}  // namespace vardena
