// What the layer names of a document cost, against a bare program that only walks the records and against the fastest
// ready-made reader (peers.sh measures those on the same documents and adds their figures to the table).
#include "BareRecords.h"
#include "CountingSource.h"
#include "SystemLegacyDecoder.h"
#include "builder/CollectedNames.h"
#include "psd/LayerNames.h"

#include <QVCommonClass.h>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
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

void readNames(benchmark::State& state, const BenchDocument& document, double goalRatio) {
    for (auto _ : state) {
        CStringArray names;
        if (!CQVVideoPlay::GetPsdLayerInfo(document.path.c_str(), names) ||
            names.GetSize() != document.layers)
            state.SkipWithError("wrong names");
    }
    state.counters["goal_ratio"] = goalRatio;
}

void readBare(benchmark::State& state, const BenchDocument& document) {
    for (auto _ : state)
        if (readBareRecords(document) != document.layers)
            state.SkipWithError("wrong records");
}

double quickest(const std::vector<double>& turns) {
    return *std::min_element(turns.begin(), turns.end());
}

// Many turns in any order, each shorter than what a busy machine gives a program at a stretch; the quickest one counts,
// on either side.
template <class Body> void registerTurns(const std::string& name, const BenchDocument& document, Body body) {
    constexpr int turns = 300;
    constexpr int layersPerTurn = 8000;
    constexpr int mostReadings = 10;
    benchmark::RegisterBenchmark(name.c_str(), body)
        ->UseRealTime()
        ->Iterations(std::clamp(layersPerTurn / document.layers, 1, mostReadings))
        ->Repetitions(turns)
        ->ComputeStatistics("quickest", quickest)
        ->ReportAggregatesOnly();
}

void registerTimes(const BenchDocument& document) {
    const std::string whole = "psd names, " + document.title;
    const std::string records = whole + ", to a bare walk";
    const double goal = document.goalToRegistryPeer;
    registerTurns(whole + "/ours", document,
                  [=](benchmark::State& state) { readNames(state, document, goal); });
    registerTurns(records + "/ours", document,
                  [=](benchmark::State& state) { readNames(state, document, kGoalToBare); });
    registerTurns(records + "/peer:bare walk", document,
                  [=](benchmark::State& state) { readBare(state, document); });
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
    const std::wstring folder = program.substr(0, program.rfind(L'\\')) + L"\\psd-documents";
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
