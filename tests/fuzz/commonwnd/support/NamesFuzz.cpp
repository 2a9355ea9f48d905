// Feeds filters, paths and multi-selections with any texts and holds the answers to what must always be true.
#include "support/FileNameRules.h"
#include "support/TextCase.h"

#include "fuzz/FuzzInput.h"

#include <algorithm>

using namespace _qv_commonwnd;
using fuzz::Check;
using fuzz::UnitsOf;

namespace {

bool EndsWith(const std::wstring& text, std::wstring_view end) {
    return text.size() >= end.size() && std::wstring_view(text).substr(text.size() - end.size()) == end;
}

void CheckFilter(const std::wstring& text) {
    const FilterPatterns parsed = ParseFilter(text);
    std::size_t units = parsed.rest.size();
    for (const std::wstring& pattern : parsed.patterns) {
        Check(!pattern.empty() && pattern.find(L'|') == std::wstring::npos);
        units += pattern.size() + 1;
    }
    Check(units <= text.size());
    Check(EndsWith(text, parsed.rest));
}

void CheckPath(const std::wstring& path, const FilterChoice& choice) {
    const PathParts parts = SplitPath(path);
    std::wstring joined(parts.drive);
    joined += parts.folder;
    joined += parts.name;
    joined += parts.extension;
    Check(joined == path);

    const std::wstring checked = CheckedPathName(path, choice);
    const std::wstring lower = LowerText(path);
    Check(checked.compare(0, lower.size(), lower) == 0);
    Check(path.empty() == checked.empty());
    Check(choice.Pattern() || checked == lower);
    HasPreviewExtension(path);
    Check(IsPsdPath(path + L"\\a.PSD"));
}

void CheckName(const std::wstring& name, const FilterChoice& choice) {
    const auto extension = PatternExtension(choice);
    const std::wstring whole = NameWithExtension(name, extension.value_or(L"AVI"));
    Check(whole.compare(0, name.size(), name) == 0);
    const std::wstring title(TitleOfName(whole));
    Check(whole.compare(0, title.size(), title) == 0 && title.size() < whole.size());
}

void CheckSelection(const std::wstring& text) {
    const std::wstring folder = L"D:\\v";
    const auto files = SplitSelection(text, folder);
    const auto quotes = static_cast<std::size_t>(std::count(text.begin(), text.end(), L'"'));
    if (quotes == 0) {
        Check(files.size() == (text.empty() ? 0u : 1u));
        return;
    }
    Check(files.size() == quotes / 2);
    for (const std::wstring& file : files)
        Check(file.compare(0, folder.size() + 1, folder + L"\\") == 0 &&
              file.find(L'"') == std::wstring::npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
    constexpr std::size_t kHeaderBytes = 2;
    if (size < kHeaderBytes)
        return 0;
    const std::wstring text = UnitsOf(data + kHeaderBytes, size - kHeaderBytes);
    const std::size_t half = text.size() * data[1] / 255;
    const auto patterns = ParseFilter(text.substr(0, half)).patterns;
    const FilterChoice choice{patterns, data[0]};
    const std::wstring name = text.substr(half);
    CheckFilter(text);
    CheckPath(name, choice);
    CheckName(name, choice);
    CheckSelection(text);
    return 0;
}
