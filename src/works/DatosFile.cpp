#include "works/DatosFile.h"

#include <cmath>
#include <optional>

#include "works/Catalogo.h"
#include "base/Codepage.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "works/Subrut.h"
#include "base/VbInput.h"

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

std::string Indexed(const char* name, int i) { return std::string(name) + "(" + std::to_string(i) + ")"; }

// Reads DATOS.~CE field by field and goes on behind a field that fails, as version 3's reader
// went on behind a failing statement: the field is skipped, its variable keeps the value it had,
// and the failure is noted against its line.
//
// Where reading goes on. Each row of the layout is one line of the file. FieldReader consumes a
// field that fails: an overflowing number or a "#" left open up to its delimiter, so the row
// goes on with its next field; a quote left open up to the line end, and the fields of the row
// that stood after it on that line went into it, so they are noted as not read (with the same
// reason) instead of being taken from the next line, and the next row starts on the next line
// as it should. Once the file has ended, every field still to come fails the same way; they are
// noted in one entry at the line where the file ended.
class DatosReader {
public:
    DatosReader(std::string_view text, std::vector<UnreadLine>& unread) : r_(text), unread_(unread) {}

    // The start of a row of the layout.
    void Row() { lostLine_.reset(); }

    // Runs `read` on the next field; `read` stores the value only when it has one. Returns
    // whether the field was read.
    template <typename Read>
    bool Field(const std::string& name, Read read)
    {
        if (ended_) {
            unread_.back().fields.push_back(name);
            return false;
        }
        if (lostLine_) {
            Note(lostLine_->line(), lostLine_->number(), name, lostLine_->reason());
            return false;
        }
        try {
            read(r_);
            return true;
        } catch (const FieldError& e) {
            if (e.number() == 62) {
                ended_ = true;
                unread_.push_back({e.line(), e.line(), e.number(), {name}, "the file ends before them"});
                return false;
            }
            Note(e.line(), e.number(), name, e.reason());
            if (e.number() == 52)
                lostLine_ = e;
            return false;
        }
    }

    // Notes a field not taken. Fields of one line that failed for one reason share an entry.
    void Note(int line, int number, const std::string& name, const std::string& reason)
    {
        if (!unread_.empty() && unread_.back().line == line && unread_.back().reason == reason) {
            unread_.back().fields.push_back(name);
            return;
        }
        unread_.push_back({line, line, number, {name}, reason});
    }

    FieldReader& reader() { return r_; }
    bool ended() const { return ended_; }

private:
    FieldReader r_;
    std::vector<UnreadLine>& unread_;
    bool ended_ = false;
    // The failure that took the rest of the current row's line.
    std::optional<FieldError> lostLine_;
};

// Lists names, at most six of them, for a sentence.
std::string Names(const std::vector<std::string>& fields)
{
    constexpr size_t kShown = 6;
    std::string out;
    for (size_t i = 0; i < fields.size() && i < kShown; ++i)
        out += (i ? ", " : "") + fields[i];
    if (fields.size() > kShown)
        out += " and " + std::to_string(fields.size() - kShown) + " more";
    return out;
}

// The handler of a failure to read or write DATOS.~CE.
void ErrorDeDatos(Declaraciones& d, int number, const std::string& what, const std::string& path)
{
    // A work that cannot be read or written is not opened again at the next start.
    SaveSetting(d, "Obra", "Directorio", "");
    SaveSetting(d, "Obra", "Nombre", "");
    d.ui.MsgBox(d.Msg(160) + "\r\n" + d.Msg(161) + " " + std::to_string(number) + "\r\n" + d.Msg(162) + " " + what +
                    "\r\n" + d.Msg(163) + " " + path,
                mb::Critical, d.Msg(165));
}

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

std::string UnreadLine::Sentence() const
{
    if (line == 0)
        return "DATOS.~CE was not read: " + reason + ".";
    std::string where = lastLine > line ? "Lines " + std::to_string(line) + " to " + std::to_string(lastLine)
                                        : "Line " + std::to_string(line);
    if (fields.empty())
        return where + " of DATOS.~CE not read: " + reason + ".";
    return where + " of DATOS.~CE: " + Names(fields) + " not read (" + reason + "); " +
           (fields.size() == 1 ? "it takes the value" : "they take the values") + " of a new work.";
}

bool LeeDatosText(Declaraciones& d, const std::string& text, std::vector<UnreadLine>& unread)
{
    DatosReader rd(text, unread);
    std::string product;
    double version = 0;
    rd.Row();
    rd.Field("the product name", [&](FieldReader& r) { product = r.Text(); });
    rd.Field("the version", [&](FieldReader& r) { version = r.Number(); });
    if (Palabra(1, product, " ") != kProductWord || std::trunc(version) != kVersionMajor) {
        d.VersionObra = 0;
        return false;
    }
    d.VersionObra = static_cast<float>(version);
    const bool v35 = version == 3.5;

    rd.Row();
    const int countsLine = rd.reader().Line();
    int n = -1, m = -1;
    rd.Field("Unidades", [&](FieldReader& r) { d.Unidades = Int16(r); });
    bool counts = rd.Field("NPlantasSobre", [&](FieldReader& r) { n = r.Integer(); });
    counts = rd.Field("NPlantasBajo", [&](FieldReader& r) { m = r.Integer(); }) && counts;
    if (rd.ended())
        return true;
    if (!counts || n < 1 || n > kMaxFloors || m < 0 || m > kMaxBasements) {
        // The number of lines that follow and their layout come from the counts: without them
        // nothing further can be placed, so the rest of the file is left unread and the counts
        // in memory stay as they were.
        if (counts) {
            const std::string why = "the floor counts " + std::to_string(n) + " and " + std::to_string(m) +
                                    " are outside 1 to 16 floors and 0 to 4 basements";
            rd.Note(countsLine, 6, "NPlantasSobre", why);
            rd.Note(countsLine, 6, "NPlantasBajo", why);
        }
        const int next = rd.reader().AtEnd() ? 0 : rd.reader().Line();
        const int last = static_cast<int>(SplitLines(text).size());
        if (next > 0 && next <= last)
            unread.push_back({next, last, 6, {}, "their layout follows the floor counts, which could not be read"});
        return true;
    }
    d.NPlantasSobre = static_cast<int16_t>(n);
    d.NPlantasBajo = static_cast<int16_t>(m);
    auto levelRow = [&](const char* const names[5], auto& pp, auto& conc, auto& sobr, auto& stab, auto& cuso, int i) {
        rd.Row();
        rd.Field(Indexed(names[0], i), [&](FieldReader& r) { pp[i] = Single(r); });
        rd.Field(Indexed(names[1], i), [&](FieldReader& r) { conc[i] = Single(r); });
        rd.Field(Indexed(names[2], i), [&](FieldReader& r) { sobr[i] = Single(r); });
        rd.Field(Indexed(names[3], i), [&](FieldReader& r) { stab[i] = Single(r); });
        rd.Field(Indexed(names[4], i), [&](FieldReader& r) { cuso[i] = r.Text(); });
    };
    static constexpr const char* kAbove[5] = {"GenPProP", "GenConcP", "GenSobrP", "GenSTabP", "GenCUsoP"};
    static constexpr const char* kBelow[5] = {"GenPProS", "GenConcS", "GenSobrS", "GenSTabS", "GenCUsoS"};
    for (int i = 0; i <= n; ++i)
        levelRow(kAbove, d.GenPProP, d.GenConcP, d.GenSobrP, d.GenSTabP, d.GenCUsoP, i);
    for (int i = 1; i <= m; ++i)
        levelRow(kBelow, d.GenPProS, d.GenConcS, d.GenSobrS, d.GenSTabS, d.GenCUsoS, i);
    for (int i = 1; i <= 6; ++i) {
        rd.Row();
        rd.Field(Indexed("GenDescr", i), [&](FieldReader& r) { d.GenDescr[i] = r.Text(); });
        rd.Field(Indexed("GenValor", i), [&](FieldReader& r) { d.GenValor[i] = Single(r); });
    }
    rd.Row();
    rd.Field("GenValor(7)", [&](FieldReader& r) { d.GenValor[7] = Single(r); });
    for (int i = 1; i <= 10; ++i) {
        rd.Row();
        rd.Field(Indexed("GenDia", i), [&](FieldReader& r) { d.GenDia[i] = Single(r); });
    }
    for (int i = 0; i < n + m; ++i) {
        rd.Row();
        rd.Field(Indexed("GenCot", i), [&](FieldReader& r) { d.GenCot[i] = Single(r); });
    }
    auto integer = [&](const char* name, int16_t& into) { rd.Field(name, [&](FieldReader& r) { into = Int16(r); }); };
    auto single = [&](const char* name, float& into) { rd.Field(name, [&](FieldReader& r) { into = Single(r); }); };
    auto flagRow = [&](const char* name, int16_t& into) {
        rd.Row();
        rd.Field(name, [&](FieldReader& r) { into = Flag(r); });
    };
    rd.Row();
    integer("GenHorm", d.GenHorm);
    integer("GenAcero", d.GenAcero);
    integer("GenControl", d.GenControl);
    if (v35)
        rd.Field("the reserved field after GenControl", [&](FieldReader& r) { (void)r.Number(); });
    flagRow("GenChHormigon", d.GenChHormigon);
    if (v35) {
        rd.Row();
        rd.Field("the reserved line after GenChHormigon", [&](FieldReader& r) { (void)r.Text(); });
    }
    rd.Row();
    integer("GenAcP", d.GenAcP);
    integer("GenAcP2", d.GenAcP2);
    flagRow("GenChAcero", d.GenChAcero);
    rd.Row();
    integer("GenResis", d.GenResis);
    integer("GenServi", d.GenServi);
    flagRow("GenChMadera", d.GenChMadera);
    rd.Row();
    single("GenResFab", d.GenResFab);
    single("GenCoefMin", d.GenCoefMin);
    single("GenDensFabr", d.GenDensFabr);
    integer("GenCatControl", d.GenCatControl);
    integer("GenCatEjec", d.GenCatEjec);
    flagRow("GenChFabrica", d.GenChFabrica);
    rd.Row();
    single("GenTens", d.GenTens);
    flagRow("GenChTerreno", d.GenChTerreno);
    // The factor may be absent: a file that ends before it reads it as 0.04.
    rd.Row();
    if (rd.ended() || rd.reader().AtEnd())
        d.GenFactor = 0.04f;
    else
        single("GenFactor", d.GenFactor);
    if (v35 && !rd.ended() && !rd.reader().AtEnd()) {
        rd.Row();
        rd.Field("the second factor", [&](FieldReader& r) { (void)r.Number(); });
        for (int i = 0; i < n && !rd.ended() && !rd.reader().AtEnd(); ++i) {
            rd.Row();
            rd.Field("a reserved field per floor", [&](FieldReader& r) { (void)r.Number(); });
        }
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
        // One writer at a time: the main window's saves take the work's lock as a form's do.
        std::optional<WorkLock> lock;
        try {
            lock = LockForSave(d.CarpetaObra);
        } catch (const WorkBusy&) {
            throw FileError(st.path, Mensaje(d, 1413, {d.CarpetaObra}));
        }
        if (!datos) {
            WriteFileAtomic(st.path, ToDiskText(text + "\r\n"));
            return st;
        }
        try {
            WriteFileAtomic(st.path, ToDiskText(DatosText(d, kProgramVersion)));
            d.UltimoErrorDatos.clear();
        } catch (const FileError& e) {
            // The old file stands (the write goes through a temporary file); the caller decides
            // whether it can go on without the new one.
            st.writeFailed = true;
            st.problem = e.what();
            d.UltimoErrorDatos = st.problem;
            ErrorDeDatos(d, 75, e.what(), st.path);
        }
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
    std::optional<std::string> utf8;
    try {
        utf8 = DataFileText(ReadFileBytes(st.path));
        if (!utf8)
            throw FileError(st.path, "holds a NUL byte, so it is not text");
    } catch (const FileError& e) {
        st.damaged = true;
        st.problem = e.what();
        if (datos)
            st.unread.push_back({0, 0, 53, {}, e.what()});
        ErrorDeDatos(d, 53, e.what(), st.path);
        return st;
    }
    if (!datos) {
        // Lines joined with CR LF, no line end after the last one.
        const std::vector<std::string> lines = SplitLines(*utf8);
        std::string joined;
        for (size_t i = 0; i < lines.size(); ++i)
            joined += (i ? "\r\n" : "") + lines[i];
        text = joined;
        return st;
    }
    // Fields that cannot be read take the values of a new work, never those of the work read before.
    d.GeneralDataDefaults();
    if (!LeeDatosText(d, *utf8, st.unread)) {
        st.refused = true;
        st.problem = st.path + ": not general data of version 3 (the first line is not \"Vardena 3\" with a version 3.x)";
    }
    if (!st.unread.empty()) {
        // The handler runs once for the whole read, with the first failure.
        const UnreadLine& first = st.unread.front();
        const std::string what = "line " + std::to_string(first.line) + ": " + first.reason;
        st.damaged = true;
        if (!st.refused) {
            st.problem = st.path + ": " + what;
            if (st.unread.size() > 1)
                st.problem += " (" + std::to_string(st.unread.size()) + " places in all were not read)";
        }
        ErrorDeDatos(d, first.number, what, st.path);
    }
    return st;
}

}  // namespace vardena
