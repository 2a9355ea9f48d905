// What the layer names of a document cost, against a bare program that only walks the records and against the fastest
// ready-made reader (peers.sh measures those on the same documents and adds their figures to the table).
#include "BareRecords.h"
#include "CountingSource.h"
#include "layers/SystemLegacyDecoder.h"
#include "documents/CollectedNames.h"
#include "psd/LayerNames.h"

#include <QVCommonClass.h>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <optional>
#include <psapi.h>
#include <string>
#include <vector>

namespace {

using _qv_commonclass::CQVVideoPlay;

constexpr double kGoalToBare = 1.5;
constexpr double kGoalBytesBeyondKb = 128;
constexpr double kGoalMemoryMb = 4;
constexpr double kBytesPerKb = 1024;
constexpr double kBytesPerMb = 1024 * 1024;

using Clock = std::chrono::steady_clock;

bool readNames(const BenchDocument& document, CStringArray& names) {
    return CQVVideoPlay::GetPsdLayerInfo(document.path.c_str(), names) && names.GetSize() == document.layers;
}

bool readBare(const BenchDocument& document, std::vector<std::wstring>& names) {
    readBareRecords(document, names);
    return names.size() == static_cast<std::size_t>(document.layers);
}

double quickest(const std::vector<double>& turns) {
    return *std::min_element(turns.begin(), turns.end());
}

// Where the clock stops. The registry's readers leave their names to a collector that does not run in their quickest
// turn; the bare walk gives its names back itself.
enum class Until { NamesAreThere, NamesAreReleased };

// A turn: some readings in a row.
template <class Names>
void takeTurn(benchmark::State& state, const BenchDocument& document, Until until,
              bool (*read)(const BenchDocument&, Names&)) {
    constexpr int layersPerTurn = 8000;
    constexpr int mostReadings = 10;
    const int readings = std::clamp(layersPerTurn / document.layers, 1, mostReadings);
    for (auto _ : state) {
        std::vector<double> seconds;
        for (int i = 0; i < readings; ++i) {
            const Clock::time_point start = Clock::now();
            std::optional<Names> names(std::in_place);
            if (!read(document, *names))
                return state.SkipWithError("wrong names");
            if (until == Until::NamesAreReleased)
                names.reset();
            seconds.push_back(std::chrono::duration<double>(Clock::now() - start).count());
        }
        state.SetIterationTime(quickest(seconds));
    }
}

// Many turns in any order, each shorter than what a busy machine gives a program at a stretch; the quickest reading of
// all counts, on either side.
template <class Names>
void registerTurns(const std::string& name, const BenchDocument& document, double goalRatio, Until until,
                   bool (*read)(const BenchDocument&, Names&)) {
    constexpr int turns = 1000;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     takeTurn(state, document, until, read);
                                     if (goalRatio > 0)
                                         state.counters["goal_ratio"] = goalRatio;
                                 })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(turns)
        ->ComputeStatistics("quickest", quickest)
        ->ReportAggregatesOnly();
}

void registerTimes(const BenchDocument& document) {
    const std::string whole = "psd names, " + document.title;
    const std::string records = whole + ", to a bare walk";
    registerTurns(whole + "/ours", document, document.goalToRegistryPeer, Until::NamesAreThere, readNames);
    registerTurns(records + "/ours", document, kGoalToBare, Until::NamesAreReleased, readNames);
    registerTurns(records + "/peer:bare walk", document, 0, Until::NamesAreReleased, readBare);
}

void printBytes(const BenchDocument& document) {
    CountingSource source(document.path.c_str());
    psdtest::CollectedNames names;
    _qv_commonclass::psd::readLayerNames(source, _qv_commonclass::SystemLegacyDecoder(), names);
    const auto records = static_cast<double>(document.recordsEnd - document.recordsBegin);
    std::printf("bench|psd bytes beyond the records, %s|%.1f|kB|||%.0f\n", document.title.c_str(),
                (static_cast<double>(source.bytesRead()) - records) / kBytesPerKb, kGoalBytesBeyondKb);
}

PROCESS_MEMORY_COUNTERS memoryNow() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof(counters);
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return counters;
}

// From what the process has before to the most that it ever had: never less than what the reading takes.
void printMemory(const BenchDocument& document) {
    const SIZE_T before = memoryNow().WorkingSetSize;
    CStringArray names;
    CQVVideoPlay::GetPsdLayerInfo(document.path.c_str(), names);
    const SIZE_T peak = memoryNow().PeakWorkingSetSize;
    std::printf("bench|psd memory growth, %s|%.2f|MB|||%.0f\n", document.title.c_str(),
                static_cast<double>(peak - std::min(before, peak)) / kBytesPerMb, kGoalMemoryMb);
}

constexpr const wchar_t* kWriteArgument = L"--write-documents";

std::wstring programPath() {
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

// The documents are written by a process of their own: what it takes to make them must not hide the growth.
bool writeDocumentsAside() {
    std::wstring command = L"\"" + programPath() + L"\" " + kWriteArgument;
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return false;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code == 0;
}

} // namespace

int main(int count, char** arguments) {
    const std::wstring program = programPath();
    const std::wstring folder =
        program.substr(0, program.rfind(L'\\')) + L"\\bench_commonclass_psd-documents";
    if (std::wstring(GetCommandLineW()).find(kWriteArgument) != std::wstring::npos)
        return writeBenchDocuments(folder) ? 0 : 1;
    if (!writeDocumentsAside()) {
        std::fputs("cannot write the documents\n", stderr);
        return 1;
    }
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> options(arguments, arguments + count);
    options.insert(options.begin() + 1, interleaved);
    count = static_cast<int>(options.size());
    benchmark::Initialize(&count, options.data());
    for (const BenchDocument& document : listBenchDocuments(folder)) {
        printMemory(document);
        printBytes(document);
        registerTimes(document);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
