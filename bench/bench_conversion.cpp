// Converts a generated work of 2,000 records, beside the time of copying the same files.
//
//   cmake -S . -B build -DVARDENA_BENCH=ON && cmake --build build --target bench_conversion
//   build/bench/bench_conversion

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <unistd.h>
#include <random>

#include "frame/Formularios.h"
#include "shell/Platform.h"
#include "works/Catalogo.h"
#include "application/Conversion.h"
#include "works/DatosFile.h"
#include "works/Declaraciones.h"
#include "base/FileIo.h"
#include "base/Form.h"
#include "works/Registros.h"
#include "ObraGrande.h"

using namespace vardena;
namespace fs = std::filesystem;

namespace {

constexpr int kRecords = 2000;

struct Quiet : Ui {
    int MsgBox(std::string_view, int style, std::string_view) override { return (style & 7) ? mb::Yes : mb::Ok; }
    bool ErrorFrm(std::string_view, int, std::string_view) override { return false; }
};

struct State {
    Quiet ui;
    Platform platform;
    Declaraciones decl{ui, platform};
    State()
    {
        platform.settings = std::make_unique<MemorySettings>();
        decl.GeneralDataDefaults();
        LlenaCatalogo(decl);
    }
};

fs::path Root()
{
    static const fs::path root = fs::temp_directory_path() / ("vardena-bench-" + std::to_string(std::random_device{}()));
    return root;
}

// The template work: DATOS.~CE of 3.01 and kRecords positional records with results files.
const fs::path& Template()
{
    static const fs::path work = [] {
        fs::path w = Root() / "plantilla";
        fs::create_directories(w);
        muestras::EscribeObraGrande(w.string(), kRecords);
        return w;
    }();
    return work;
}

fs::path FreshCopy(int n)
{
    fs::path dest = Root() / ("copia" + std::to_string(n));
    fs::remove_all(dest);
    fs::copy(Template(), dest, fs::copy_options::recursive);
    return dest;
}

void BM_Conversion(benchmark::State& state)
{
    int n = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const fs::path work = FreshCopy(n++);
        State s;
        s.decl.CarpetaObra = work.string();
        std::string text;
        DatosFile(s.decl, "DATOS.~CE", "L", text);
        std::vector<std::string> list2;
        // The setup's own copy reaches the disk first, so that the run's one sync flushes only
        // what the run wrote.
        sync();
        state.ResumeTiming();
        ConversionLog log = Convierte(s.decl, list2);
        benchmark::DoNotOptimize(log.records);
        if (!log.completed || log.records != kRecords)
            state.SkipWithError("the conversion did not complete");
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
    state.counters["records"] = kRecords;
}

// The floor under any conversion: copying the same files.
void BM_CopyOfTheSameFiles(benchmark::State& state)
{
    Template();
    int n = 0;
    for (auto _ : state) {
        state.PauseTiming();
        sync();
        state.ResumeTiming();
        fs::path dest = Root() / ("solo-copia" + std::to_string(n++));
        fs::copy(Template(), dest, fs::copy_options::recursive);
        state.PauseTiming();
        fs::remove_all(dest);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * kRecords);
}

BENCHMARK(BM_Conversion)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_CopyOfTheSameFiles)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

// Prints the conversion's time beside the copy's, and their ratio, after the usual table.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const auto& r : runs) {
            const std::string name = r.benchmark_name();
            if (name.rfind("BM_Conversion", 0) == 0)
                conversion_ = r.GetAdjustedRealTime();
            else if (name.rfind("BM_CopyOfTheSameFiles", 0) == 0)
                copy_ = r.GetAdjustedRealTime();
        }
    }
    void Finalize() override
    {
        ConsoleReporter::Finalize();
        if (conversion_ > 0 && copy_ > 0)
            std::printf("conversion %.1f ms, copy of the same files %.1f ms, ratio %.2f\n", conversion_, copy_,
                        conversion_ / copy_);
    }

private:
    double conversion_ = 0, copy_ = 0;
};

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    std::error_code ec;
    fs::remove_all(Root(), ec);
    return 0;
}
