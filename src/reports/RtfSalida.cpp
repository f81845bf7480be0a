// The two ways a read report is shown: HTML for the windows, plain text for the command line.

#include <algorithm>
#include <cstdio>

#include "reports/RtfLector.h"

namespace vardena {
namespace {

void EscapaHtml(std::string& out, std::string_view text)
{
    for (char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\n': out += "<br>"; break;
        default: out += c;
        }
    }
}

std::string Tamano(int halfPoints)
{
    return std::to_string(halfPoints / 2) + (halfPoints % 2 ? ".5" : "") + "pt";
}

void TramoHtml(std::string& out, const RtfTramo& t)
{
    const RtfEstilo& e = t.estilo;
    std::string css;
    if (e.tamano != RtfEstilo{}.tamano)
        css += "font-size:" + Tamano(e.tamano) + ";";
    if (e.color) {
        char buf[16];
        std::snprintf(buf, sizeof buf, "#%06x", static_cast<unsigned>(*e.color));
        css += std::string("color:") + buf + ";";
    }
    std::string open, close;
    const auto wrap = [&](bool on, const char* tag) {
        if (!on)
            return;
        open += std::string("<") + tag + ">";
        close.insert(0, std::string("</") + tag + ">");
    };
    if (!css.empty()) {
        open += "<span style=\"" + css + "\">";
        close = "</span>";
    }
    wrap(e.negrita, "b");
    wrap(e.cursiva, "i");
    wrap(e.subrayado, "u");
    wrap(e.posicion > 0, "sup");
    wrap(e.posicion < 0, "sub");
    out += open;
    EscapaHtml(out, t.texto);
    out += close;
}

const char* Alinea(RtfAlineacion a)
{
    switch (a) {
    case RtfAlineacion::Centro: return "center";
    case RtfAlineacion::Derecha: return "right";
    case RtfAlineacion::Justificada: return "justify";
    default: return "left";
    }
}

void TramosHtml(std::string& out, const RtfParrafo& p)
{
    if (p.Texto().empty()) {
        out += "&nbsp;";
        return;
    }
    for (const auto& t : p.tramos)
        TramoHtml(out, t);
}

void ParrafoHtml(std::string& out, const RtfParrafo& p)
{
    out += "<p";
    std::string css;
    if (p.alineacion != RtfAlineacion::Izquierda)
        css += std::string("text-align:") + Alinea(p.alineacion) + ";";
    // Tabs are the columns of a report line: keep them as tabs.
    if (p.Texto().find('\t') != std::string::npos)
        css += "white-space:pre-wrap;";
    if (!css.empty())
        out += " style=\"" + css + "\"";
    out += ">";
    TramosHtml(out, p);
    out += "</p>\n";
}

void TablaHtml(std::string& out, const std::vector<RtfFila>& filas)
{
    out += "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" style=\"border-collapse:collapse\">\n";
    for (const auto& f : filas) {
        out += "<tr>";
        const int total = f.bordes.empty() ? 0 : f.bordes.back();
        for (size_t i = 0; i < f.celdas.size(); ++i) {
            const auto& c = f.celdas[i];
            out += "<td";
            if (total > 0 && i < f.bordes.size() && f.celdas.size() == f.bordes.size()) {
                const int left = i == 0 ? 0 : f.bordes[i - 1];
                const int pct = std::clamp(((f.bordes[i] - left) * 100 + total / 2) / total, 1, 100);
                out += " width=\"" + std::to_string(pct) + "%\"";
            }
            if (!c.parrafos.empty() && c.parrafos.front().alineacion != RtfAlineacion::Izquierda)
                out += std::string(" align=\"") + Alinea(c.parrafos.front().alineacion) + "\"";
            out += ">";
            for (size_t k = 0; k < c.parrafos.size(); ++k) {
                if (k > 0)
                    out += "<br>";
                TramosHtml(out, c.parrafos[k]);
            }
            out += "</td>";
        }
        out += "</tr>\n";
    }
    out += "</table>\n";
}

// The width of a text as shown in a terminal: one column per character.
size_t Ancho(std::string_view s)
{
    return static_cast<size_t>(
        std::count_if(s.begin(), s.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string RecortaDerecha(std::string s)
{
    s.erase(s.find_last_not_of(" \t") + 1);
    return s;
}

// A paragraph's text for a terminal: raised digits (the exponents of units) as superscript
// characters, so that "m" with a raised "2" reads "m²".
std::string TextoPlano(const RtfParrafo& p)
{
    static const char* const sup[] = {"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string s;
    for (const auto& t : p.tramos) {
        if (t.estilo.posicion <= 0) {
            s += t.texto;
            continue;
        }
        for (char c : t.texto)
            s += c >= '0' && c <= '9' ? sup[c - '0'] : std::string(1, c);
    }
    return s;
}

// The lines of a cell: one per paragraph and line break, tabs as blanks.
std::vector<std::string> LineasCelda(const RtfCelda& c)
{
    std::vector<std::string> lines;
    for (const auto& p : c.parrafos) {
        std::string t = TextoPlano(p);
        std::replace(t.begin(), t.end(), '\t', ' ');
        for (size_t start = 0;;) {
            const size_t nl = t.find('\n', start);
            std::string line = t.substr(start, nl == std::string::npos ? std::string::npos : nl - start);
            line.erase(0, line.find_first_not_of(' '));
            lines.push_back(RecortaDerecha(line));
            if (nl == std::string::npos)
                break;
            start = nl + 1;
        }
    }
    // Blank lines at the end of a cell only make the row taller.
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

void TablaPlana(std::string& out, const std::vector<RtfFila>& filas)
{
    std::vector<std::vector<std::vector<std::string>>> celdas;
    std::vector<size_t> widths;
    for (const auto& f : filas) {
        auto& row = celdas.emplace_back();
        for (size_t i = 0; i < f.celdas.size(); ++i) {
            row.push_back(LineasCelda(f.celdas[i]));
            if (widths.size() <= i)
                widths.resize(i + 1, 0);
            for (const auto& l : row.back())
                widths[i] = std::max(widths[i], Ancho(l));
        }
    }
    for (const auto& row : celdas) {
        size_t height = 1;
        for (const auto& c : row)
            height = std::max(height, c.size());
        for (size_t k = 0; k < height; ++k) {
            std::string line;
            for (size_t i = 0; i < row.size(); ++i) {
                const std::string cell = k < row[i].size() ? row[i][k] : std::string();
                if (i > 0)
                    line += "  ";
                line += cell;
                line.append(widths[i] - Ancho(cell), ' ');
            }
            out += RecortaDerecha(line) + "\n";
        }
    }
}

}  // namespace

std::string DocumentoAHtml(const RtfDocumento& doc)
{
    std::string out =
        "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
        "<style>p { margin-top: 0; margin-bottom: 0; } td { vertical-align: top; }</style>\n"
        "</head>\n<body style=\"font-family: Arial, sans-serif;\">\n";
    for (const auto& b : doc.bloques) {
        if (b.EsTabla())
            TablaHtml(out, b.filas);
        else
            ParrafoHtml(out, b.parrafo);
    }
    out += "</body>\n</html>\n";
    return out;
}

std::string DocumentoATexto(const RtfDocumento& doc)
{
    std::string out;
    for (const auto& b : doc.bloques) {
        if (b.EsTabla())
            TablaPlana(out, b.filas);
        else
            out += RecortaDerecha(TextoPlano(b.parrafo)) + "\n";
    }
    return out;
}

}  // namespace vardena
