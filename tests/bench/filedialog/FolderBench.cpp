// The file dialog in folders of different sizes: ours against the system's dialog with an empty hook.
#include "DialogRun.h"

#include <benchmark/benchmark.h>

#include <commctrl.h>

#include <chrono>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr double kOpenGoal = 1.15;
constexpr double kActionGoal = 1.2;
constexpr int kManyFiles = 1000;
constexpr int kNameField = 1148;
constexpr int kSelectionChanges = 40;

double SecondsOf(const std::function<void()>& action) {
    const Clock::time_point start = Clock::now();
    action();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// Folders full of empty files, made at first use.
class Folders {
  public:
    ~Folders() {
        std::error_code ignored;
        fs::remove_all(m_root, ignored);
    }
    std::wstring Of(int files) {
        const fs::path folder = m_root / std::to_wstring(files);
        if (!fs::exists(folder)) {
            fs::create_directories(folder);
            for (int i = 0; i < files; ++i)
                std::ofstream(folder / (L"file " + std::to_wstring(i) + L".avi"));
        }
        return folder.wstring();
    }

  private:
    fs::path m_root = fs::temp_directory_path() / (L"qvbench-" + std::to_wstring(::GetCurrentProcessId()));
};

Folders& TheFolders() {
    static Folders folders;
    return folders;
}

void Open(benchmark::State& state, Whose whose, int files) {
    const std::wstring folder = TheFolders().Of(files);
    for (auto _ : state)
        state.SetIterationTime(RunDialog(whose, folder, [](HWND) {}));
    if (whose == Whose::Ours)
        state.counters["goal_ratio"] = kOpenGoal;
}

// Something done inside the running dialog.
void InDialog(benchmark::State& state, Whose whose, const std::function<double(HWND)>& timed) {
    const std::wstring folder = TheFolders().Of(kManyFiles);
    for (auto _ : state) {
        double seconds = 0;
        RunDialog(whose, folder, [&](HWND frame) { seconds = timed(frame); });
        state.SetIterationTime(seconds);
    }
    if (whose == Whose::Ours)
        state.counters["goal_ratio"] = kActionGoal;
}

void ChangeFolder(benchmark::State& state, Whose whose) {
    const std::wstring other = TheFolders().Of(10);
    InDialog(state, whose, [&](HWND frame) {
        return SecondsOf([&] {
            ::SendDlgItemMessageW(frame, kNameField, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(other.c_str()));
            ::SendMessageW(frame, WM_COMMAND, IDOK, 0);
            PaintNow(frame);
        });
    });
}

void ChangeSelection(benchmark::State& state, Whose whose) {
    InDialog(state, whose, [](HWND frame) {
        const HWND list = ListOf(frame);
        return SecondsOf([&] {
                   for (int i = 0; i < kSelectionChanges; ++i) {
                       ListView_SetItemState(list, -1, 0, LVIS_SELECTED);
                       ListView_SetItemState(list, i, LVIS_SELECTED, LVIS_SELECTED);
                       PaintNow(frame);
                   }
               }) /
               kSelectionChanges;
    });
}

void SelectAll(benchmark::State& state, Whose whose) {
    InDialog(state, whose, [](HWND frame) {
        const HWND list = ListOf(frame);
        return SecondsOf([&] {
            ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED);
            PaintNow(frame);
        });
    });
}

// The first dialogs of a process load the shell's parts; they count for nobody.
void WarmUp(benchmark::State& state) {
    for (auto _ : state) {
        RunDialog(Whose::Ours, TheFolders().Of(10), [](HWND) {});
        state.SetIterationTime(RunDialog(Whose::Bare, TheFolders().Of(10), [](HWND) {}));
    }
}

void RegisterPair(const std::string& name, int runs,
                  const std::function<void(benchmark::State&, Whose)>& body) {
    for (const Whose whose : {Whose::Bare, Whose::Ours})
        benchmark::RegisterBenchmark(
            (name + (whose == Whose::Bare ? "/peer:bare with hook" : "/ours")).c_str(),
            [=](benchmark::State& state) { body(state, whose); })
            ->UseManualTime()
            ->Iterations(runs);
}

} // namespace

void RegisterFolderBenchmarks() {
    benchmark::RegisterBenchmark("file dialog in a folder, first of the process", WarmUp)
        ->UseManualTime()
        ->Iterations(1);
    struct Size {
        int files;
        int runs;
    };
    for (const auto [files, runs] : {Size{10, 20}, Size{1000, 10}, Size{20000, 2}})
        RegisterPair("file dialog, opened on " + std::to_string(files) + " files", runs,
                     [files = files](benchmark::State& state, Whose whose) { Open(state, whose, files); });
    RegisterPair("file dialog, folder change", 10, ChangeFolder);
    RegisterPair("file dialog, selection change", 5, ChangeSelection);
    RegisterPair("file dialog, select all of 1000 files", 2, SelectAll);
}
