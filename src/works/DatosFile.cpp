#include "works/DatosFile.h"

#include <cmath>

#include "works/Catalogo.h"
#include "works/Codepage.h"
#include "works/Declaraciones.h"
#include "works/FileIo.h"
#include "works/Subrut.h"
#include "works/VbInput.h"

namespace vardena {
namespace {

// One line of the comma-separated quoted form.
class LineWriter {
public:
    explicit LineWriter(std::string& out) : out_(out) {}
    ~LineWriter() { out_ += "\n"; }
    LineWriter& text(std::string_view t) { return put(QuoteField(t)); }
    LineWriter& single(float v) { return put(NumberField(v)); }
    LineWriter& dbl(double v) { return put(NumberField(v)); }
    LineWriter& integer(long long v) { return put(IntegerField(v)); }
    LineWriter& boolean(int16_t v) { return put(BoolField(v != 0)); }

private:
    LineWriter& put(const std::string& field)
    {
        if (!first_)
            out_ += ",";
        out_ += field;
        first_ = false;
        return *this;
    }
    std::string& out_;
    bool first_ = true;
};

float Single(FieldReader& r) { return static_cast<float>(r.Number()); }
int16_t Flag(FieldReader& r) { return r.Boolean() ? kTrue : kFalse; }
int16_t Int16(FieldReader& r) { return static_cast<int16_t>(r.Integer()); }

}  // namespace

std::string DatosText(const Declaraciones& d, double version)
{
    std::string out;
    const int n = d.NPlantasSobre, m = d.NPlantasBajo;
    const bool v35 = version == 3.5;
    LineWriter(out).text(std::string(kProductWord) + " " + std::to_string(kVersionMajor)).dbl(version);
    LineWriter(out).integer(d.Unidades).integer(n).integer(m);
    for (int i = 0; i <= n; ++i)
        LineWriter(out).single(d.GenPProP[i]).single(d.GenConcP[i]).single(d.GenSobrP[i]).single(d.GenSTabP[i]).text(d.GenCUsoP[i]);
    for (int i = 1; i <= m; ++i)
        LineWriter(out).single(d.GenPProS[i]).single(d.GenConcS[i]).single(d.GenSobrS[i]).single(d.GenSTabS[i]).text(d.GenCUsoS[i]);
    for (int i = 1; i <= 6; ++i)
        LineWriter(out).text(d.GenDescr[i]).single(d.GenValor[i]);
    LineWriter(out).single(d.GenValor[7]);
    for (int i = 1; i <= 10; ++i)
        LineWriter(out).single(d.GenDia[i]);
    for (int i = 0; i < n + m; ++i)
        LineWriter(out).single(d.GenCot[i]);
    {
        LineWriter concrete(out);
        concrete.integer(d.GenHorm).integer(d.GenAcero).integer(d.GenControl);
        if (v35)
            concrete.integer(0);
    }
    LineWriter(out).boolean(d.GenChHormigon);
    if (v35)
        LineWriter(out).integer(1998);
    LineWriter(out).integer(d.GenAcP).integer(d.GenAcP2);
    LineWriter(out).boolean(d.GenChAcero);
    LineWriter(out).integer(d.GenResis).integer(d.GenServi);
    LineWriter(out).boolean(d.GenChMadera);
    LineWriter(out).single(d.GenResFab).single(d.GenCoefMin).single(d.GenDensFabr).integer(d.GenCatControl).integer(d.GenCatEjec);
    LineWriter(out).boolean(d.GenChFabrica);
    LineWriter(out).single(d.GenTens);
    LineWriter(out).boolean(d.GenChTerreno);
    LineWriter(out).single(d.GenFactor);
    if (!v35)
        return out;
    LineWriter(out).single(d.GenFactor);
    for (int i = 0; i < n; ++i)
        LineWriter(out).integer(0);
    LineWriter(out).boolean(kTrue);
    return out;
}

bool LeeDatosText(Declaraciones& d, const std::string& text)
{
    FieldReader r(text);
    const std::string product = r.Text();
    const double version = r.Number();
    if (Palabra(1, product, " ") != kProductWord || std::trunc(version) != kVersionMajor) {
        d.VersionObra = 0;
        return false;
    }
    d.VersionObra = static_cast<float>(version);
    const bool v35 = version == 3.5;

    const int line = r.Line();
    d.Unidades = Int16(r);
    const int n = r.Integer();
    const int m = r.Integer();
    if (n < 1 || n > kMaxFloors || m < 0 || m > kMaxBasements)
        throw FieldError(6, line, "the floor counts " + std::to_string(n) + " and " + std::to_string(m) +
                                      " are outside 1 to 16 floors and 0 to 4 basements");
    d.NPlantasSobre = static_cast<int16_t>(n);
    d.NPlantasBajo = static_cast<int16_t>(m);
    for (int i = 0; i <= n; ++i) {
        d.GenPProP[i] = Single(r);
        d.GenConcP[i] = Single(r);
        d.GenSobrP[i] = Single(r);
        d.GenSTabP[i] = Single(r);
        d.GenCUsoP[i] = r.Text();
    }
    for (int i = 1; i <= m; ++i) {
        d.GenPProS[i] = Single(r);
        d.GenConcS[i] = Single(r);
        d.GenSobrS[i] = Single(r);
        d.GenSTabS[i] = Single(r);
        d.GenCUsoS[i] = r.Text();
    }
    for (int i = 1; i <= 6; ++i) {
        d.GenDescr[i] = r.Text();
        d.GenValor[i] = Single(r);
    }
    d.GenValor[7] = Single(r);
    for (int i = 1; i <= 10; ++i)
        d.GenDia[i] = Single(r);
    for (int i = 0; i < n + m; ++i)
        d.GenCot[i] = Single(r);
    d.GenHorm = Int16(r);
    d.GenAcero = Int16(r);
    d.GenControl = Int16(r);
    if (v35)
        (void)r.Number();
    d.GenChHormigon = Flag(r);
    if (v35)
        (void)r.Text();
    d.GenAcP = Int16(r);
    d.GenAcP2 = Int16(r);
    d.GenChAcero = Flag(r);
    d.GenResis = Int16(r);
    d.GenServi = Int16(r);
    d.GenChMadera = Flag(r);
    d.GenResFab = Single(r);
    d.GenCoefMin = Single(r);
    d.GenDensFabr = Single(r);
    d.GenCatControl = Int16(r);
    d.GenCatEjec = Int16(r);
    d.GenChFabrica = Flag(r);
    d.GenTens = Single(r);
    d.GenChTerreno = Flag(r);
    d.GenFactor = r.AtEnd() ? 0.04f : Single(r);
    if (v35 && !r.AtEnd()) {
        (void)r.Number();
        for (int i = 0; i < n && !r.AtEnd(); ++i)
            (void)r.Number();
        // The closing #TRUE# is never read.
    }
    auto fck = FckIndice(d, d.GenHorm);
    d.GenFckHorm = fck ? *fck : 0;
    return true;
}

DatosStatus DatosFile(Declaraciones& d, std::string_view name, std::string_view mode, std::string& text)
{
    const bool datos = SameNameNoCase(name, "DATOS.~CE");
    if (!datos && !SameNameNoCase(name, "DESCR.~CE"))
        Halt("DatosFile called with " + std::string(name));
    const char m = mode.empty() ? ' ' : static_cast<char>(std::toupper(static_cast<unsigned char>(mode[0])));

    DatosStatus st;
    auto existing = FindNoCase(d.CarpetaObra, name);
    st.existed = existing.has_value();
    st.path = existing.value_or(ConBarra(d.CarpetaObra) + std::string(name));

    if (m == 'I') {
        if (!st.existed)
            text = "No";
        return st;
    }
    if (m == 'G') {
        if (datos)
            WriteFileAtomic(st.path, ToDiskText(DatosText(d, kProgramVersion)));
        else
            WriteFileAtomic(st.path, ToDiskText(text + "\r\n"));
        return st;
    }
    if (m != 'L')
        Halt("DatosFile called with mode " + std::string(mode));

    if (!st.existed) {
        if (datos)
            d.ui.MsgBox(d.Msg(159) + " " + st.path, mb::Critical, d.Msg(165));
        text = "No";
        return st;
    }
    try {
        std::string bytes = ReadFileBytes(st.path);
        if (!LooksLikeText(bytes))
            throw FileError(st.path, "holds bytes that are not text");
        std::string utf8 = Cp1252ToUtf8(bytes);
        if (!datos) {
            // Lines joined with CR LF, no line end after the last one.
            const std::vector<std::string> lines = SplitLines(utf8);
            std::string joined;
            for (size_t i = 0; i < lines.size(); ++i)
                joined += (i ? "\r\n" : "") + lines[i];
            text = joined;
            return st;
        }
        if (!LeeDatosText(d, utf8)) {
            st.refused = true;
            st.problem = st.path + ": not general data of version 3 (the first line is not \"Vardena 3\" with a version 3.x)";
        }
    } catch (const FieldError& e) {
        st.damaged = true;
        st.problem = st.path + ": " + e.what();
        // A work that cannot be read is not opened again at the next start.
        SaveSetting(d, "Obra", "Directorio", "");
        SaveSetting(d, "Obra", "Nombre", "");
        d.ui.MsgBox(d.Msg(160) + "\r\n" + d.Msg(161) + " " + std::to_string(e.number()) + "\r\n" + d.Msg(162) + " " +
                        e.what() + "\r\n" + d.Msg(163) + " " + st.path,
                    mb::Critical, d.Msg(165));
    } catch (const FileError& e) {
        st.damaged = true;
        st.problem = e.what();
        SaveSetting(d, "Obra", "Directorio", "");
        SaveSetting(d, "Obra", "Nombre", "");
        d.ui.MsgBox(d.Msg(160) + "\r\n" + d.Msg(161) + " 53\r\n" + d.Msg(162) + " " + e.what() + "\r\n" + d.Msg(163) +
                        " " + st.path,
                    mb::Critical, d.Msg(165));
    }
    return st;
}

}  // namespace vardena
