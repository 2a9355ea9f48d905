#include "SkinStore.h"

#include "module/Files.h"
#include "module/OwnModule.h"

#include <cwctype>

namespace _qv_commonctrl {

namespace {

constexpr std::size_t kMostFileBytes = 4u << 20;
constexpr std::size_t kMostReports = 1000; // a host may ask for any index

std::wstring DefaultFolder() {
    return GetDataFolder(L"skin") + L"\\dark";
}

std::wstring WithoutEndingSlashes(std::wstring folder) {
    while (folder.size() > 1 && (folder.back() == L'\\' || folder.back() == L'/'))
        folder.pop_back();
    return folder;
}

} // namespace

std::string_view FindBuiltInFile(const std::wstring& relativePath) {
    std::wstring name = L"SKIN_";
    for (const wchar_t c : relativePath)
        name.push_back(std::iswalnum(c) ? static_cast<wchar_t>(std::towupper(c)) : L'_');
    const HINSTANCE module = GetOwnModule();
    const HRSRC resource = FindResourceW(module, name.c_str(), RT_RCDATA);
    if (!resource)
        return {};
    const void* bytes = LockResource(LoadResource(module, resource));
    return bytes ? std::string_view(static_cast<const char*>(bytes), SizeofResource(module, resource))
                 : std::string_view();
}

SkinStore& SkinStore::Get() {
    static SkinStore store;
    return store;
}

SkinStore::SkinStore() {
    std::vector<SkinFault> faults;
    m_builtIn = ParseSkin(FindBuiltInFile(L"skin.txt"), faults);
    ReportFaults(L"built-in skin", faults);
    Select(std::wstring());
    m_generation = 1;
}

bool SkinStore::Select(const std::wstring& folder) {
    m_folder = folder.empty() ? DefaultFolder() : WithoutEndingSlashes(folder);
    m_current = SkinData();
    m_reported.clear();
    ++m_generation;
    const std::wstring file = m_folder + L"\\skin.txt";
    std::string bytes;
    std::vector<SkinFault> faults;
    if (ReadWholeFile(file, kMostFileBytes, bytes))
        m_current = ParseSkin(bytes, faults);
    ReportFaults(file, faults);
    if (!m_current.IsEmpty())
        return true;
    DebugLine(L"no skin in " + file + L": the built-in default skin is used");
    m_current = m_builtIn;
    m_folder = DefaultFolder();
    return false;
}

void SkinStore::ReportFaults(const std::wstring& file, const std::vector<SkinFault>& faults) {
    for (const SkinFault& fault : faults)
        DebugLine(file + L", line " + std::to_wstring(fault.line) + L": " +
                  std::wstring(fault.reason.begin(), fault.reason.end()));
}

void SkinStore::ReportOnce(const std::wstring& line) {
    if (m_reported.size() < kMostReports && m_reported.insert(line).second)
        DebugLine(line);
}

template <class Map, class Key>
auto SkinStore::Find(Map SkinData::*table, const Key& key, const wchar_t* what, int index) ->
    typename Map::mapped_type const* {
    const Map& current = m_current.*table;
    if (const auto found = current.find(key); found != current.end())
        return &found->second;
    const Map& builtIn = m_builtIn.*table;
    const auto found = builtIn.find(key);
    const bool known = found != builtIn.end();
    ReportOnce(L"the skin has no " + std::wstring(what) + L" " + std::to_wstring(index) +
               (known ? L": the default skin's is used" : L", nor has the default skin"));
    return known ? &found->second : nullptr;
}

const uint32_t* SkinStore::Color(int index) {
    return Find(&SkinData::colors, index, L"colour", index);
}

const SkinPen* SkinStore::Pen(int index) {
    return Find(&SkinData::pens, index, L"pen", index);
}

const int* SkinStore::BrushColor(int index) {
    return Find(&SkinData::brushes, index, L"brush", index);
}

const SkinFont* SkinStore::Font(int index, const std::vector<std::string>& scripts) {
    for (const SkinData* data : {&m_current, &m_builtIn}) {
        for (const std::string& script : scripts) {
            const auto found = data->fonts.find({index, script});
            if (found != data->fonts.end())
                return &found->second;
        }
        if (data == &m_current)
            ReportOnce(L"the skin has no font " + std::to_wstring(index) + L": the default skin's is used");
    }
    return nullptr;
}

} // namespace _qv_commonctrl
