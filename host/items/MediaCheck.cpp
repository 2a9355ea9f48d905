#include "MediaCheck.h"

#include "media/ByteFile.h"

#include <QVCommonWnd.h>

#include <span>

using namespace _qv_commonwnd;

namespace {

constexpr size_t kBlockBytes = 1 << 20;

} // namespace

CMediaCheck::CMediaCheck(std::vector<FolderFile> files) : m_files(std::move(files)), m_block(kBlockBytes) {
    for (const auto& file : m_files)
        m_total += file.bytes;
}

void CMediaCheck::Run() {
    for (const auto& file : m_files) {
        CZ5ProgressDlg::SetTextShow(const_cast<wchar_t*>(file.name.GetString()));
        if (!Read(file))
            break;
        ++m_checked;
    }
    CZ5ProgressDlg::EndProgressWnd(TRUE);
}

// False when the user has cancelled. A file that cannot be opened has nothing to check.
bool CMediaCheck::Read(const FolderFile& item) {
    const CByteFile file(item.path);
    LONGLONG at = 0;
    while (const size_t got = file.Read(m_block, at)) {
        for (const std::uint8_t one : std::span(m_block).first(got))
            m_sum = m_sum * 31 + one;
        at += static_cast<LONGLONG>(got);
        m_done += static_cast<LONGLONG>(got);
        ReportPosition();
        if (CZ5ProgressDlg::Exist())
            return false;
    }
    return true;
}

void CMediaCheck::ReportPosition() const {
    CZ5ProgressDlg::SetCurPos(m_total ? static_cast<int>(m_done * kRange / m_total) : kRange, kRange);
}
