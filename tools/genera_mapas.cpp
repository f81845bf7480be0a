// vardena-mapas DIR: draws the maps of the snow and wind dialogs of the actions into DIR:
// NieveCTE.png and VientoCTE.png, the pictures the user sees, and NieveCTEColores.png and
// VientoCTEColores.png, the same maps in one flat colour a zone (no antialiasing), which the
// dialogs read under the pointer.
//
// The outline of Spain is a hand-made polygon of lon/lat vertices (the peninsula without
// Portugal, the Balearic and the Canary Islands, the latter in an inset). The zones follow the
// maps of the CTE DB SE-AE (figure E.2, winter climatic zones 1 to 7; figure D.1, wind zones
// A, B, C) province by province: each point of the peninsula takes the zone of the nearest
// provincial capital, which draws the provinces roughly, and each island group has its zone.
// The provinces' zones are those the capitals' snow loads of table 3.8 give when crossed with
// table E.2; the wind zones follow the broad areas of figure D.1. The maps help to choose;
// the figures of the code govern where a site lies near a border.

#include <QColor>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "building/Mapas.h"

namespace {

using vardena::ColoresNieve;
using vardena::ColoresViento;

struct LonLat {
    double lon, lat;
};

constexpr int kAncho = 640;
constexpr int kAlto = 500;
constexpr int kMargen = 10;
// The peninsula's frame and scale: degrees of latitude to pixels, and of longitude shortened
// by the cosine of 40 degrees.
constexpr double kLon0 = -9.6;
constexpr double kLat1 = 44.0;
constexpr double kEscala = 57.0;
// The Canary Islands' inset: its frame in degrees and its box on the picture.
constexpr double kCanLon0 = -18.3, kCanLon1 = -13.3, kCanLat1 = 29.5;
const QRectF kCaja(428, 352, 202, 100);

QPointF Peninsula(LonLat p)
{
    const double kx = kEscala * std::cos(40.0 * M_PI / 180.0);
    return {kMargen + (p.lon - kLon0) * kx, kMargen + (kLat1 - p.lat) * kEscala};
}

QPointF Canarias(LonLat p)
{
    const double kx = kCaja.width() / (kCanLon1 - kCanLon0);
    const double ky = kx / std::cos(28.5 * M_PI / 180.0);
    return {kCaja.left() + (p.lon - kCanLon0) * kx, kCaja.top() + 4 + (kCanLat1 - p.lat) * ky};
}

// The mainland of Spain, clockwise from Cape Finisterre: the north coast, the border with
// France, the Mediterranean coast, the Atlantic coast of Andalusia, the border with Portugal
// and the Atlantic coast of Galicia.
const std::vector<LonLat> kPeninsula = {
    {-9.30, 42.88}, {-9.21, 43.10}, {-8.81, 43.32}, {-8.40, 43.37}, {-8.25, 43.49}, {-7.87, 43.77}, {-7.69, 43.79},
    {-7.60, 43.67}, {-7.04, 43.54}, {-6.54, 43.55}, {-5.85, 43.66}, {-5.66, 43.54}, {-5.06, 43.46}, {-4.75, 43.42},
    {-4.40, 43.39}, {-3.80, 43.47}, {-3.21, 43.38}, {-3.01, 43.35}, {-2.72, 43.42}, {-2.50, 43.37}, {-2.20, 43.30},
    {-1.98, 43.32}, {-1.79, 43.37}, {-1.73, 43.30}, {-1.47, 43.27}, {-1.38, 43.03}, {-1.00, 43.04}, {-0.70, 42.95},
    {-0.30, 42.83}, {0.00, 42.70},  {0.30, 42.69},  {0.70, 42.86},  {0.95, 42.80},  {1.40, 42.60},  {1.72, 42.50},
    {2.00, 42.40},  {2.50, 42.35},  {2.90, 42.45},  {3.17, 42.43},  {3.32, 42.32},  {3.18, 42.26},  {3.13, 42.12},
    {3.13, 41.85},  {2.80, 41.67},  {2.18, 41.38},  {1.81, 41.23},  {1.25, 41.11},  {1.06, 41.06},  {0.80, 40.88},
    {0.87, 40.72},  {0.47, 40.47},  {0.41, 40.36},  {-0.03, 39.98}, {-0.22, 39.68}, {-0.32, 39.45}, {-0.22, 39.17},
    {-0.16, 38.99}, {0.11, 38.84},  {0.23, 38.73},  {0.05, 38.64},  {-0.13, 38.53}, {-0.48, 38.34}, {-0.55, 38.19},
    {-0.68, 37.98}, {-0.78, 37.83}, {-0.69, 37.63}, {-0.98, 37.59}, {-1.26, 37.56}, {-1.58, 37.40}, {-1.82, 37.18},
    {-1.89, 36.99}, {-2.19, 36.72}, {-2.46, 36.83}, {-2.61, 36.76}, {-3.02, 36.74}, {-3.52, 36.72}, {-3.88, 36.75},
    {-4.42, 36.71}, {-4.88, 36.51}, {-5.15, 36.42}, {-5.35, 36.16}, {-5.45, 36.13}, {-5.60, 36.01}, {-5.92, 36.19},
    {-6.09, 36.28}, {-6.30, 36.53}, {-6.36, 36.62}, {-6.44, 36.74}, {-6.45, 36.85}, {-6.57, 37.01}, {-6.80, 37.13},
    {-6.95, 37.20}, {-7.40, 37.20}, {-7.45, 37.50}, {-7.50, 37.70}, {-7.20, 37.95}, {-7.00, 38.13}, {-7.30, 38.40},
    {-7.10, 38.68}, {-7.03, 38.88}, {-7.20, 39.05}, {-7.35, 39.45}, {-7.00, 39.65}, {-6.85, 39.87}, {-6.95, 40.25},
    {-6.80, 40.35}, {-6.85, 40.80}, {-6.92, 41.03}, {-6.55, 41.25}, {-6.20, 41.58}, {-6.55, 41.67}, {-6.90, 41.95},
    {-7.20, 41.88}, {-7.60, 41.87}, {-7.90, 41.86}, {-8.15, 41.82}, {-8.20, 42.05}, {-8.65, 42.02}, {-8.88, 41.90},
    {-8.85, 42.12}, {-8.72, 42.24}, {-8.80, 42.27}, {-8.65, 42.40}, {-8.80, 42.40}, {-8.90, 42.49}, {-8.80, 42.60},
    {-9.00, 42.55}, {-9.05, 42.78}, {-9.12, 42.83},
};

const std::vector<std::vector<LonLat>> kBaleares = {
    {{2.34, 39.57}, {2.52, 39.47}, {2.73, 39.51}, {2.98, 39.36}, {3.25, 39.35}, {3.45, 39.55}, {3.48, 39.72},
     {3.20, 39.88}, {3.12, 39.93}, {3.08, 39.83}, {2.80, 39.87}, {2.55, 39.72}, {2.37, 39.62}},
    {{3.80, 40.00}, {3.95, 39.92}, {4.30, 39.82}, {4.32, 39.90}, {4.10, 40.06}, {3.85, 40.05}},
    {{1.22, 38.97}, {1.40, 38.84}, {1.58, 38.95}, {1.55, 39.10}, {1.37, 39.08}, {1.25, 39.02}},
    {{1.38, 38.74}, {1.45, 38.66}, {1.58, 38.67}, {1.50, 38.72}},
};

const std::vector<std::vector<LonLat>> kCanarias = {
    {{-13.87, 28.86}, {-13.75, 28.85}, {-13.45, 29.10}, {-13.47, 29.23}, {-13.57, 29.15}, {-13.85, 29.00}},
    {{-14.50, 28.05}, {-14.20, 28.20}, {-13.85, 28.40}, {-13.83, 28.73}, {-13.95, 28.75}, {-14.05, 28.55},
     {-14.25, 28.25}, {-14.50, 28.10}},
    {{-15.80, 27.95}, {-15.60, 27.75}, {-15.40, 27.83}, {-15.37, 28.10}, {-15.45, 28.17}, {-15.70, 28.15},
     {-15.83, 28.05}},
    {{-16.92, 28.35}, {-16.73, 28.02}, {-16.55, 28.05}, {-16.35, 28.38}, {-16.12, 28.55}, {-16.30, 28.58},
     {-16.55, 28.42}},
    {{-17.35, 28.10}, {-17.22, 28.02}, {-17.10, 28.08}, {-17.12, 28.18}, {-17.28, 28.22}},
    {{-17.85, 28.55}, {-17.75, 28.85}, {-17.90, 28.85}, {-18.00, 28.75}, {-17.85, 28.48}},
    {{-18.15, 27.70}, {-17.90, 27.72}, {-17.88, 27.82}, {-18.05, 27.80}, {-18.15, 27.75}},
};

// A provincial capital of the peninsula with the zones of its province: snow zone 1 to 7 and
// wind zone 0 (A) to 2 (C).
struct Capital {
    const char* nombre;
    LonLat sitio;
    int nieve;
    int viento;
};

const std::vector<Capital> kCapitales = {
    {"Vitoria", {-2.67, 42.85}, 1, 1},     {"Albacete", {-1.86, 38.99}, 4, 0},
    {"Alicante", {-0.48, 38.35}, 5, 0},    {"Almería", {-2.46, 36.84}, 6, 1},
    {"Ávila", {-4.70, 40.66}, 3, 0},       {"Badajoz", {-6.97, 38.88}, 4, 0},
    {"Barcelona", {2.17, 41.39}, 2, 1},    {"Burgos", {-3.70, 42.34}, 3, 0},
    {"Cáceres", {-6.37, 39.47}, 4, 0},     {"Cádiz", {-6.29, 36.53}, 6, 2},
    {"Castellón", {-0.05, 39.99}, 5, 0},   {"Ciudad Real", {-3.93, 38.98}, 4, 0},
    {"Córdoba", {-4.78, 37.89}, 6, 0},     {"A Coruña", {-8.41, 43.36}, 1, 1},
    {"Cuenca", {-2.14, 40.07}, 4, 0},      {"Girona", {2.82, 41.98}, 2, 1},
    {"Granada", {-3.60, 37.18}, 6, 0},     {"Guadalajara", {-3.16, 40.63}, 4, 0},
    {"San Sebastián", {-1.98, 43.32}, 1, 1}, {"Huelva", {-6.94, 37.26}, 6, 0},
    {"Huesca", {-0.41, 42.14}, 2, 1},      {"Jaén", {-3.78, 37.78}, 6, 0},
    {"León", {-5.57, 42.60}, 1, 0},        {"Lleida", {0.62, 41.62}, 2, 1},
    {"Logroño", {-2.45, 42.46}, 2, 1},     {"Lugo", {-7.56, 43.01}, 1, 1},
    {"Madrid", {-3.70, 40.42}, 4, 0},      {"Málaga", {-4.42, 36.72}, 6, 0},
    {"Murcia", {-1.13, 37.99}, 5, 1},      {"Pamplona", {-1.64, 42.81}, 2, 1},
    {"Ourense", {-7.86, 42.34}, 1, 0},     {"Oviedo", {-5.85, 43.36}, 1, 1},
    {"Palencia", {-4.53, 42.01}, 3, 0},    {"Pontevedra", {-8.64, 42.43}, 1, 1},
    {"Salamanca", {-5.66, 40.97}, 3, 0},   {"Santander", {-3.81, 43.46}, 1, 1},
    {"Segovia", {-4.11, 40.94}, 3, 0},     {"Sevilla", {-5.98, 37.39}, 6, 0},
    {"Soria", {-2.48, 41.77}, 3, 0},       {"Tarragona", {1.24, 41.12}, 2, 1},
    {"Teruel", {-1.11, 40.35}, 5, 0},      {"Toledo", {-4.02, 39.86}, 4, 0},
    {"Valencia", {-0.38, 39.47}, 5, 0},    {"Valladolid", {-4.72, 41.65}, 3, 0},
    {"Bilbao", {-2.93, 43.26}, 1, 1},      {"Zamora", {-5.74, 41.50}, 3, 0},
    {"Zaragoza", {-0.88, 41.65}, 2, 1},
};

// The island groups' zones.
constexpr int kNieveBaleares = 5, kVientoBaleares = 1;
constexpr int kNieveCanarias = 7, kVientoCanarias = 2;

// The capitals named on the maps, and the island capitals.
const std::vector<const char*> kRotuladas = {"Madrid", "Barcelona", "Valencia", "Sevilla", "Bilbao", "Zaragoza",
                                             "A Coruña", "Málaga", "Valladolid", "Murcia"};
struct Rotulo {
    const char* nombre;
    LonLat sitio;
    bool canarias;
};
const std::vector<Rotulo> kIslas = {{"Palma", {2.65, 39.57}, false},
                                     {"Las Palmas", {-15.44, 28.12}, true},
                                     {"S.C. Tenerife", {-16.25, 28.46}, true}};

QColor Color(int32_t v) { return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF); }

QPolygonF Poligono(const std::vector<LonLat>& v, QPointF (*proyecta)(LonLat))
{
    QPolygonF p;
    for (const auto& q : v)
        p << proyecta(q);
    return p;
}

// The zone of each pixel, -1 outside the land.
struct Zonas {
    std::vector<int> zona = std::vector<int>(kAncho * kAlto, -1);
    int& at(int x, int y) { return zona[static_cast<size_t>(y * kAncho + x)]; }
};

// What differs between the two maps.
struct Tema {
    const char* titulo;
    const char* pie;
    std::vector<int32_t> colores;
    int (*dePeninsula)(const Capital&);
    int baleares, canarias;
    std::vector<const char*> nombres;  // the text of each zone
    std::vector<std::pair<int, LonLat>> rotulos;  // where each zone's text stands (peninsula)
};

Zonas CalculaZonas(const Tema& t)
{
    Zonas z;
    const QPolygonF peninsula = Poligono(kPeninsula, Peninsula);
    std::vector<QPolygonF> baleares, canarias;
    for (const auto& isla : kBaleares)
        baleares.push_back(Poligono(isla, Peninsula));
    for (const auto& isla : kCanarias)
        canarias.push_back(Poligono(isla, Canarias));
    std::vector<QPointF> sitios;
    for (const auto& c : kCapitales)
        sitios.push_back(Peninsula(c.sitio));
    for (int y = 0; y < kAlto; ++y)
        for (int x = 0; x < kAncho; ++x) {
            const QPointF p(x + 0.5, y + 0.5);
            if (peninsula.containsPoint(p, Qt::OddEvenFill)) {
                size_t mejor = 0;
                double dmin = 1e18;
                for (size_t i = 0; i < sitios.size(); ++i) {
                    const double dx = sitios[i].x() - p.x(), dy = sitios[i].y() - p.y();
                    if (dx * dx + dy * dy < dmin) {
                        dmin = dx * dx + dy * dy;
                        mejor = i;
                    }
                }
                z.at(x, y) = t.dePeninsula(kCapitales[mejor]);
                continue;
            }
            for (const auto& isla : baleares)
                if (isla.containsPoint(p, Qt::OddEvenFill))
                    z.at(x, y) = t.baleares;
            for (const auto& isla : canarias)
                if (isla.containsPoint(p, Qt::OddEvenFill))
                    z.at(x, y) = t.canarias;
        }
    return z;
}

// The picture of flat colours: one colour a zone, white elsewhere.
QImage Colores(const Tema& t, Zonas& z)
{
    QImage img(kAncho, kAlto, QImage::Format_RGB32);
    img.fill(Qt::white);
    for (int y = 0; y < kAlto; ++y)
        for (int x = 0; x < kAncho; ++x)
            if (const int k = z.at(x, y); k >= 0)
                img.setPixelColor(x, y, Color(t.colores[static_cast<size_t>(k)]));
    return img;
}

QColor Suave(QColor c, double blanco)
{
    return QColor::fromRgbF(c.redF() + (1 - c.redF()) * blanco, c.greenF() + (1 - c.greenF()) * blanco,
                            c.blueF() + (1 - c.blueF()) * blanco);
}

void Etiqueta(QPainter& p, QPointF sitio, const QString& texto, int puntos, bool negrita)
{
    QFont f("DejaVu Sans", puntos);
    f.setBold(negrita);
    p.setFont(f);
    const QRectF r = p.fontMetrics().boundingRect(texto).adjusted(-4, -1, 4, 1);
    QRectF caja(sitio.x() - r.width() / 2, sitio.y() - r.height() / 2, r.width(), r.height());
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 200));
    p.drawRoundedRect(caja, 4, 4);
    p.setPen(QColor("#1d3557"));
    p.drawText(caja, Qt::AlignCenter, texto);
}

void PuntoCapital(QPainter& p, QPointF sitio, const QString& nombre)
{
    p.setPen(QPen(QColor("#303848"), 1));
    p.setBrush(QColor("#303848"));
    p.drawEllipse(sitio, 2.5, 2.5);
    p.setFont(QFont("DejaVu Sans", 7));
    p.drawText(sitio + QPointF(4, -3), nombre);
}

// The picture the user sees: soft zone colours, borders between zones, the coast, the zone
// texts and a few capitals.
QImage Vista(const Tema& t, Zonas& z)
{
    QImage img(kAncho, kAlto, QImage::Format_RGB32);
    img.fill(QColor("#eef4fa"));
    for (int y = 0; y < kAlto; ++y)
        for (int x = 0; x < kAncho; ++x) {
            const int k = z.at(x, y);
            if (k < 0)
                continue;
            const bool borde = (x + 1 < kAncho && z.at(x + 1, y) >= 0 && z.at(x + 1, y) != k) ||
                               (y + 1 < kAlto && z.at(x, y + 1) >= 0 && z.at(x, y + 1) != k);
            img.setPixelColor(x, y, borde ? QColor("#6b7380") : Suave(Color(t.colores[static_cast<size_t>(k)]), 0.6));
        }
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor("#3a4452"), 1.2));
    p.drawPolygon(Poligono(kPeninsula, Peninsula));
    for (const auto& isla : kBaleares)
        p.drawPolygon(Poligono(isla, Peninsula));
    for (const auto& isla : kCanarias)
        p.drawPolygon(Poligono(isla, Canarias));
    p.setPen(QPen(QColor("#8898aa"), 1));
    p.drawRect(kCaja);
    for (const auto& c : kCapitales)
        for (const char* r : kRotuladas)
            if (std::string(c.nombre) == r)
                PuntoCapital(p, Peninsula(c.sitio), QString::fromUtf8(c.nombre));
    for (const auto& i : kIslas)
        PuntoCapital(p, i.canarias ? Canarias(i.sitio) : Peninsula(i.sitio), QString::fromUtf8(i.nombre));
    for (const auto& [zona, sitio] : t.rotulos)
        Etiqueta(p, Peninsula(sitio), QString::fromUtf8(t.nombres[static_cast<size_t>(zona)]), 13, true);
    Etiqueta(p, Peninsula({2.9, 40.25}), QString::fromUtf8(t.nombres[static_cast<size_t>(t.baleares)]), 10, true);
    Etiqueta(p, QPointF(kCaja.left() + 28, kCaja.bottom() - 16),
             QString::fromUtf8(t.nombres[static_cast<size_t>(t.canarias)]), 10, true);
    p.setPen(QColor("#1d3557"));
    QFont titulo("DejaVu Sans", 10);
    titulo.setBold(true);
    p.setFont(titulo);
    p.drawText(QRectF(330, 8, 300, 40), Qt::AlignRight | Qt::AlignTop, QString::fromUtf8(t.titulo));
    p.setFont(QFont("DejaVu Sans", 7));
    p.drawText(QRectF(10, kAlto - 16, 420, 14), Qt::AlignLeft, QString::fromUtf8(t.pie));
    return img;
}

bool Guarda(const QImage& img, const std::string& ruta)
{
    if (img.save(QString::fromStdString(ruta), "PNG"))
        return true;
    std::fprintf(stderr, "vardena-mapas: %s cannot be written\n", ruta.c_str());
    return false;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: vardena-mapas DIR\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const std::string dir = std::string(argv[1]) + "/";

    const auto& cn = ColoresNieve();
    const auto& cv = ColoresViento();
    const Tema nieve{"Zonas climáticas de invierno\n(CTE DB SE-AE, figura E.2)",
                     "Zona por provincia; en el límite entre zonas manda la figura del CTE.",
                     std::vector<int32_t>(cn.begin(), cn.end()),
                     [](const Capital& c) { return c.nieve - 1; },
                     kNieveBaleares - 1,
                     kNieveCanarias - 1,
                     {"1", "2", "3", "4", "5", "6", "7"},
                     {{0, {-6.6, 43.05}},
                      {1, {0.6, 41.9}},
                      {2, {-4.6, 41.55}},
                      {3, {-3.4, 39.45}},
                      {4, {-1.0, 39.0}},
                      {5, {-4.9, 37.35}}}};
    const Tema viento{"Zonas eólicas\n(CTE DB SE-AE, figura D.1)",
                      "Zona por provincia; en el límite entre zonas manda la figura del CTE.",
                      std::vector<int32_t>(cv.begin(), cv.end()),
                      [](const Capital& c) { return c.viento; },
                      kVientoBaleares,
                      kVientoCanarias,
                      {"A", "B", "C"},
                      {{0, {-4.0, 39.9}}, {1, {0.6, 41.9}}, {1, {-7.3, 42.9}}, {1, {-1.6, 37.6}}, {2, {-5.9, 36.75}}}};
    bool bien = true;
    for (const auto& [tema, nombre] : {std::pair{&nieve, "NieveCTE"}, std::pair{&viento, "VientoCTE"}}) {
        Zonas z = CalculaZonas(*tema);
        bien = Guarda(Vista(*tema, z), dir + nombre + ".png") && bien;
        bien = Guarda(Colores(*tema, z), dir + nombre + "Colores.png") && bien;
    }
    return bien ? 0 : 1;
}
