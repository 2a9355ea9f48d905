// The progress window over real work: a worker thread reads every file of the sample folder and sums it up.
#include "GalleryItem.h"

#include <QVDict.h>

#include <atomic>
#include <cstdint>
#include <thread>
#include <vector>

using namespace _qv_commonwnd;
using namespace _qv_commonctrl;

namespace {

constexpr int kRange = 1000;
constexpr DWORD kBlockBytes = 1 << 20;

struct MediaFile {
    CString path;
    CString name;
    std::uint64_t bytes;
};

std::vector<MediaFile> FilesOf(const CString& folder) {
    std::vector<MediaFile> files;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(folder + L"\\*", &found);
    if (search == INVALID_HANDLE_VALUE)
        return files;
    do {
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY))
            files.push_back({folder + L"\\" + found.cFileName, found.cFileName,
                             static_cast<std::uint64_t>(found.nFileSizeHigh) << 32 | found.nFileSizeLow});
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    return files;
}

// Reads files block by block, reporting after each, until all are read or the user has cancelled.
class MediaCheck {
  public:
    explicit MediaCheck(std::vector<MediaFile> files) : m_files(std::move(files)) {
        for (const auto& file : m_files)
            m_total += file.bytes;
    }

    void Run() {
        for (const auto& file : m_files) {
            CZ5ProgressDlg::SetTextShow(const_cast<wchar_t*>(static_cast<LPCWSTR>(file.name)));
            if (!Read(file))
                break;
            ++m_checked;
        }
        CZ5ProgressDlg::EndProgressWnd(1);
    }

    int Checked() const { return m_checked; }
    std::uint64_t Bytes() const { return m_done; }

  private:
    bool Read(const MediaFile& file) {
        const HANDLE handle = ::CreateFileW(file.path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                            nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            return true; // nothing to check; go on with the next
        DWORD got = 0;
        bool goOn = true;
        while (goOn && ::ReadFile(handle, m_block.data(), kBlockBytes, &got, nullptr) && got > 0) {
            for (DWORD i = 0; i < got; ++i)
                m_sum = m_sum * 31 + m_block[i];
            m_done += got;
            Report();
            goOn = !CZ5ProgressDlg::Exist();
        }
        ::CloseHandle(handle);
        return goOn;
    }

    void Report() const {
        const int now = m_total ? static_cast<int>(m_done * kRange / m_total) : kRange;
        CZ5ProgressDlg::SetCurPos(now, kRange);
    }

    std::vector<MediaFile> m_files;
    std::uint64_t m_total = 0;
    std::uint64_t m_done = 0;
    std::uint64_t m_sum = 0;
    std::vector<BYTE> m_block = std::vector<BYTE>(kBlockBytes);
    int m_checked = 0;
};

void CheckMedia(IGalleryContext& context) {
    MediaCheck check(FilesOf(context.SampleFolder()));
    CString title = QV_LoadSysString(L"IDS_GALLERY_PROGRESS");
    CZ5ProgressDlg::EndProgressWnd(0); // of the run before, as the answer that the worker may ask for
    CZ5ProgressDlg::m_bExist = 0;      // before the window is there to clear it
    std::thread worker([&check] { check.Run(); });
    CZ5ProgressDlg::ProgressWndDoModle(title.GetBuffer(), kRange, 0.0f);
    worker.join();
    CString text;
    text.Format(L"%d files, %I64u bytes%s", check.Checked(), check.Bytes(),
                CZ5ProgressDlg::Exist() ? L", cancelled" : L"");
    context.Report(L"CZ5ProgressDlg", text);
}

const GalleryRegistration progress({GalleryGroup::Messages, L"progress", L"IDS_GALLERY_PROGRESS",
                                    CheckMedia});

} // namespace
