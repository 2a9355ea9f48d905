// What the layer names of a document cost, against a bare program that only walks the records and against the fastest
// ready-made reader (peers.sh measures those on the same documents and adds their figures to the table).
#include "BareRecords.h"
#include "CountingSource.h"
#include "SystemLegacyDecoder.h"
#include "builder/CollectedNames.h"
#include "psd/LayerNames.h"

#include <QVCommonClass.h>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <psapi.h>

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

void registerTimes(const BenchDocument& document) {
    const std::string whole = "psd names, " + document.title;
    const std::string records = whole + ", to a bare walk";
    const double goal = document.goalToRegistryPeer;
    benchmark::RegisterBenchmark((whole + "/ours").c_str(), [=](benchmark::State& state) {
        readNames(state, document, goal);
    })->UseRealTime();
    benchmark::RegisterBenchmark((records + "/ours").c_str(), [=](benchmark::State& state) {
        readNames(state, document, kGoalToBare);
    })->UseRealTime();
    benchmark::RegisterBenchmark((records + "/peer:bare walk").c_str(), [=](benchmark::State& state) {
        readBare(state, document);
    })->UseRealTime();
}

void printBytes(const BenchDocument& document) {
    CountingSource source(document.path.c_str());
    psdtest::CollectedNames names;
    _qv_commonclass::psd::readLayerNames(source, _qv_commonclass::SystemLegacyDecoder(), names);
    const auto records = static_cast<double>(document.recordsEnd - document.recordsBegin);
    std::printf("bench|psd bytes beyond the records, %s|%.1f|kB|||%.0f\n", document.title.c_str(),
                (static_cast<double>(source.bytesRead()) - records) / kBytesPerKb, kGoalBytesBeyondKb);
}

double peakMb() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof(counters);
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof(counters));
    return static_cast<double>(counters.PeakWorkingSetSize) / kBytesPerMb;
}

// Before anything else has read a document, so that the growth is all of the first reading's.
void printMemory(const BenchDocument& document) {
    const double before = peakMb();
    CStringArray names;
    CQVVideoPlay::GetPsdLayerInfo(document.path.c_str(), names);
    std::printf("bench|psd memory growth, %s|%.2f|MB|||%.0f\n", document.title.c_str(), peakMb() - before,
                kGoalMemoryMb);
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
    benchmark::Initialize(&count, arguments);
    for (const BenchDocument& document : listBenchDocuments(folder)) {
        printMemory(document);
        printBytes(document);
        registerTimes(document);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
