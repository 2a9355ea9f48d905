#include "FileNameRules.h"

#include "TextCase.h"

#include <algorithm>
#include <iterator>

namespace _qv_commonwnd {

namespace {

constexpr wchar_t kBar = L'|';
constexpr wchar_t kDot = L'.';
constexpr wchar_t kQuote = L'"';
constexpr wchar_t kAlternative = L';';
constexpr auto kNone = std::wstring_view::npos;

// Shorter rests of a filter or pattern hold nothing that could be used.
constexpr std::size_t kShortestUseful = 2;

constexpr std::wstring_view kPreviewExtensions[] = {
    L"jpg", L"jpeg", L"png", L"bmp", L"gif", L"tif", L"tga", L"pcx", L"avi",
    L"wmv", L"mov",  L"mxf", L"ts",  L"mp4", L"mpg", L"flv", L"psd",
};

// Takes the text up to the next bar, with the bar, off the front. Nothing when there is no bar; the text is
// kept.
std::optional<std::wstring_view> TakeField(std::wstring_view& rest) {
    const std::size_t bar = rest.find(kBar);
    if (bar == kNone)
        return std::nullopt;
    const std::wstring_view field = rest.substr(0, bar);
    rest.remove_prefix(bar + 1);
    return field;
}

} // namespace

FilterPatterns ParseFilter(std::wstring_view filter) {
    FilterPatterns result;
    while (filter.size() >= kShortestUseful) {
        if (!TakeField(filter))
            break;
        const auto pattern = TakeField(filter);
        if (!pattern)
            break;
        if (!pattern->empty())
            result.patterns.emplace_back(*pattern);
    }
    result.rest = filter;
    return result;
}

const std::wstring* FilterChoice::Pattern() const {
    return filterIndex == 0 || filterIndex > patterns.size() ? nullptr : &patterns[filterIndex - 1];
}

PathParts SplitPath(std::wstring_view path) {
    PathParts parts;
    constexpr std::size_t kDriveUnits = 2;
    if (path.size() >= kDriveUnits && path[1] == L':') {
        parts.drive = path.substr(0, kDriveUnits);
        path.remove_prefix(kDriveUnits);
    }
    const std::size_t slash = path.find_last_of(L"\\/");
    if (slash != kNone) {
        parts.folder = path.substr(0, slash + 1);
        path.remove_prefix(slash + 1);
    }
    const std::size_t dot = path.rfind(kDot);
    parts.name = path.substr(0, dot);
    if (dot != kNone)
        parts.extension = path.substr(dot);
    return parts;
}

std::optional<std::wstring_view> FirstAlternative(std::wstring_view pattern) {
    if (pattern.size() < kShortestUseful)
        return std::nullopt;
    return pattern.substr(0, pattern.find(kAlternative));
}

std::wstring CheckedPathName(std::wstring_view path, const FilterChoice& choice) {
    std::wstring checked = LowerText(path);
    const std::wstring* chosen = choice.Pattern();
    if (checked.empty() || !chosen)
        return checked;
    const std::wstring pattern = LowerText(*chosen);
    const std::wstring_view extension = SplitPath(checked).extension;
    if (!extension.empty() && pattern.find(extension) != kNone)
        return checked;
    if (const auto first = FirstAlternative(pattern)) {
        const std::size_t dot = first->find(kDot);
        if (dot != kNone)
            checked += first->substr(dot);
    }
    return checked;
}

std::optional<std::wstring> PatternExtension(const FilterChoice& choice) {
    const std::wstring* chosen = choice.Pattern();
    const auto first = chosen ? FirstAlternative(*chosen) : std::nullopt;
    if (!first)
        return std::nullopt;
    const std::size_t dot = first->find(kDot);
    if (dot == kNone)
        return std::nullopt;
    return UpperText(first->substr(dot + 1));
}

std::wstring NameWithExtension(std::wstring_view name, std::wstring_view extension) {
    std::wstring whole(name);
    const std::size_t dot = name.rfind(kDot);
    if (dot == kNone || !EqualNoCase(name.substr(dot + 1), extension)) {
        whole += kDot;
        whole += extension;
    }
    return whole;
}

std::wstring_view TitleOfName(std::wstring_view name) {
    return name.substr(0, name.rfind(kDot));
}

std::vector<std::wstring> SplitSelection(std::wstring_view text, std::wstring_view folder) {
    std::vector<std::wstring> files;
    std::size_t open = text.find(kQuote);
    if (open == kNone) {
        if (!text.empty())
            files.emplace_back(text);
        return files;
    }
    std::wstring prefix(folder);
    prefix += L'\\';
    while (open != kNone) {
        const std::size_t close = text.find(kQuote, open + 1);
        if (close == kNone)
            break;
        files.push_back(prefix + std::wstring(text.substr(open + 1, close - open - 1)));
        open = text.find(kQuote, close + 1);
    }
    return files;
}

bool HasPreviewExtension(std::wstring_view path) {
    const std::size_t dot = path.rfind(kDot);
    if (dot == kNone)
        return false;
    const std::wstring_view extension = path.substr(dot + 1);
    return std::any_of(std::begin(kPreviewExtensions), std::end(kPreviewExtensions),
                       [&](std::wstring_view known) { return EqualNoCase(extension, known); });
}

bool IsPsdPath(std::wstring_view path) {
    return EqualNoCase(SplitPath(path).extension, L".psd");
}

} // namespace _qv_commonwnd
