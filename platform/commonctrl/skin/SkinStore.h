// SkinStore.h: the data of the current skin over that of the built-in default skin.
#pragma once

#include "SkinParse.h"

#include <windows.h>

#include <set>
#include <string>
#include <vector>

namespace _qv_commonctrl {

class SkinStore {
  public:
    static SkinStore& Get();

    // Reads the skin of a folder; empty means the default folder. FALSE when it has no usable data file: the
    // built-in default skin is in force then. Counts the generation up in every case.
    bool Select(const std::wstring& folder);

    const std::wstring& Folder() const { return m_folder; }
    UINT Generation() const { return m_generation; }

    // Null when neither the skin nor the built-in one knows the index. What only the built-in one knows is
    // named in the debugger output, once.
    const uint32_t* Color(int index);
    const SkinPen* Pen(int index);
    const int* BrushColor(int index);
    // The first of the scripts that has a font of the index.
    const SkinFont* Font(int index, const std::vector<std::string>& scripts);

    // Writes a line to the debugger output unless it has been written since the skin was chosen.
    void ReportOnce(const std::wstring& line);

  private:
    SkinStore();
    void ReportFaults(const std::wstring& file, const std::vector<SkinFault>& faults);
    template <class Map, class Key>
    auto Find(Map SkinData::*table, const Key& key, const wchar_t* what, int index) ->
        typename Map::mapped_type const*;

    SkinData m_builtIn;
    SkinData m_current;
    std::wstring m_folder;
    UINT m_generation = 1;
    std::set<std::wstring> m_reported;
};

// A resource of the built-in default skin: the bytes of a file by its path relative to the skin folder
// ("skin.txt", "OPAL\\Reset.png"; letter case and kind of slash do not matter). Empty when there is none.
std::string_view FindBuiltInFile(const std::wstring& relativePath);

} // namespace _qv_commonctrl
