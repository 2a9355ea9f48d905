// The file dialog in folders of different sizes: ours against the system's dialog with an empty hook.
#include "DialogRun.h"

#include <InTurn.h>

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

double OpenOn(Whose whose, int files) {
    return RunDialog(whose, TheFolders().Of(files), [](HWND) {});
}

// Something done inside the running dialog.
double InDialog(Whose whose, const std::function<double(HWND)>& timed) {
    double seconds = 0;
    RunDialog(whose, TheFolders().Of(kManyFiles), [&](HWND frame) { seconds = timed(frame); });
    return seconds;
}

double ChangeFolder(Whose whose) {
    const std::wstring other = TheFolders().Of(10);
    return InDialog(whose, [&](HWND frame) {
        return SecondsOf([&] {
            ::SendDlgItemMessageW(frame, kNameField, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(other.c_str()));
            ::SendMessageW(frame, WM_COMMAND, IDOK, 0);
            PaintNow(frame);
        });
    });
}

double ChangeSelection(Whose whose) {
    return InDialog(whose, [](HWND frame) {
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

double SelectAll(Whose whose) {
    return InDialog(whose, [](HWND frame) {
        const HWND list = ListOf(frame);
        return SecondsOf([&] {
            ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED);
            PaintNow(frame);
        });
    });
}

void AgainstBare(const std::string& topic, int rounds, double goal,
                 const std::function<double(Whose)>& seconds) {
    registerInTurn(
        {topic, "bare with hook", rounds, goal}, [=] { return seconds(Whose::Bare); },
        [=] { return seconds(Whose::Ours); });
}

bool RegisterFolderBenchmarks() {
    struct Size {
        int files;
        int rounds;
    };
    for (const auto [files, rounds] : {Size{10, 31}, Size{1000, 21}, Size{20000, 5}})
        AgainstBare("file dialog, opened on " + std::to_string(files) + " files", rounds, kOpenGoal,
                    [files = files](Whose whose) { return OpenOn(whose, files); });
    AgainstBare("file dialog, folder change", 11, kActionGoal, ChangeFolder);
    AgainstBare("file dialog, selection change", 11, kActionGoal, ChangeSelection);
    AgainstBare("file dialog, select all of 1000 files", 3, kActionGoal, SelectAll);
    return true;
}

[[maybe_unused]] const bool g_registered = RegisterFolderBenchmarks();

} // namespace
