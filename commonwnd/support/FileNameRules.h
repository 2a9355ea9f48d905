// What the file dialog and the shortcuts do with names, as plain functions over plain texts. Lengths are
// UTF-16 units; no function has an upper limit of its own, and none fails.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace _qv_commonwnd {

// The patterns of a filter "description|pattern|description|pattern|", in order.
struct FilterPatterns {
    std::vector<std::wstring> patterns; // [i] belongs to filter number i + 1
    std::wstring rest;                  // what the parser could not use: a pair without its closing bar
};
FilterPatterns ParseFilter(std::wstring_view filter);

// The current filter: patterns of all filters and the 1-based number of the chosen one (0: none).
struct FilterChoice {
    const std::vector<std::wstring>& patterns;
    std::size_t filterIndex;

    // The chosen pattern, null when the number is 0 or beyond the patterns.
    const std::wstring* Pattern() const;
};

// The parts of a path; joined again they are the path. A drive is any unit and a colon ("C:"); the folder
// ends with its slash or back slash; the extension starts with the last dot of the name. Parts may have any
// length.
struct PathParts {
    std::wstring_view drive;
    std::wstring_view folder;
    std::wstring_view name;
    std::wstring_view extension;
};
PathParts SplitPath(std::wstring_view path);

// The first of a pattern's alternatives ("*.avi" of "*.avi;*.wmv"); nothing for a pattern of fewer than two
// units.
std::optional<std::wstring_view> FirstAlternative(std::wstring_view pattern);

// A save dialog's path: in lower case, with the first extension of the chosen pattern appended unless the
// path's own extension stands anywhere in that pattern. Empty stays empty. A trailing dot is an extension of
// its own (".") and stands in every pattern with a dot; trailing spaces are part of the extension.
std::wstring CheckedPathName(std::wstring_view path, const FilterChoice& choice);

// A save dialog's extension: the first of the chosen pattern, in upper case, without dot ("AVI"; "*" of
// "*.*"). Nothing when no pattern is chosen or its first alternative has no dot: the dialog's own answer
// holds then.
std::optional<std::wstring> PatternExtension(const FilterChoice& choice);

// A save dialog's file name: `extension` is appended with a dot unless the name ends in it, letter case
// aside.
std::wstring NameWithExtension(std::wstring_view name, std::wstring_view extension);

// The name before its last dot; all of it when there is none.
std::wstring_view TitleOfName(std::wstring_view name);

// The files of a multi-selection as the name box shows it: `"a.avi" "b.avi"`, each put behind `folder` and a
// back slash. A text without quotes is one file and comes back as it is; an empty text is none. An unpaired
// quote and what follows it is dropped.
std::vector<std::wstring> SplitSelection(std::wstring_view text, std::wstring_view folder);

// Whether a file has one of the 17 extensions that the host can preview; what follows the last dot decides.
bool HasPreviewExtension(std::wstring_view path);

// Whether a path's extension is ".psd".
bool IsPsdPath(std::wstring_view path);

} // namespace _qv_commonwnd
