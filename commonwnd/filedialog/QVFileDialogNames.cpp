// What CQVFileDialog answers about names and choices once the run is over.
#include "QVFileDialog.h"

#include "support/FileNameRules.h"
#include "support/TextView.h"

namespace _qv_commonwnd {

bool CQVFileDialog::ChangesNames() const {
    return !m_bOpenFileDialog && !m_bRawNames;
}

std::vector<std::wstring> CQVFileDialog::FilterPatternList() const {
    std::vector<std::wstring> patterns;
    for (INT_PTR i = 0; i < m_arrFilterExt.GetSize(); ++i)
        patterns.emplace_back(ViewOf(m_arrFilterExt.GetAt(i)));
    return patterns;
}

CString CQVFileDialog::GetPathName() {
    const CString path = CFileDialog::GetPathName();
    return ChangesNames() ? CheckPathName(path) : path;
}

CString CQVFileDialog::GetSaveFilePath() {
    return GetPathName();
}

CString CQVFileDialog::GetNextPathName(POSITION& pos) {
    const CString path = CFileDialog::GetNextPathName(pos);
    return ChangesNames() ? CheckPathName(path) : path;
}

CString CQVFileDialog::CheckPathName(CString strPath) {
    const std::vector<std::wstring> patterns = FilterPatternList();
    return TextOf(CheckedPathName(ViewOf(strPath), FilterChoice{patterns, m_ofn.nFilterIndex}));
}

CString CQVFileDialog::GetFileExt() {
    if (ChangesNames()) {
        const std::vector<std::wstring> patterns = FilterPatternList();
        if (const auto extension = PatternExtension(FilterChoice{patterns, m_ofn.nFilterIndex}))
            return TextOf(*extension);
    }
    return CFileDialog::GetFileExt();
}

CString CQVFileDialog::GetFileName() {
    const CString name = CFileDialog::GetFileName();
    if (!ChangesNames())
        return name;
    const CString extension = GetFileExt();
    return TextOf(NameWithExtension(ViewOf(name), ViewOf(extension)));
}

CString CQVFileDialog::GetFileTitle() {
    if (!ChangesNames())
        return CFileDialog::GetFileTitle();
    const CString name = GetFileName();
    return TextOf(TitleOfName(ViewOf(name)));
}

eFileSelType CQVFileDialog::GetSelTpye() {
    return m_eSelType;
}

CString CQVFileDialog::GetSelForderPath() {
    return m_strSelPath;
}

CString CQVFileDialog::GetSelFileFormat() {
    return m_strSelFormat;
}

BOOL CQVFileDialog::IsPreviewFile(const CString& strPath) const {
    return HasPreviewExtension(ViewOf(strPath));
}

BOOL CQVFileDialog::IsShowPsdOption(const CString& strPath) {
    return IsPsdPath(ViewOf(strPath));
}

void CQVFileDialog::SpliteFiles(CString str, CArray<CString, const CString&>& arr) {
    const CString folder = GetFolderPath();
    for (const std::wstring& file : SplitSelection(ViewOf(str), ViewOf(folder)))
        arr.Add(TextOf(file));
}

} // namespace _qv_commonwnd
