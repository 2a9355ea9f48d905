#include "CoreLibrarySearch.h"

namespace _qv_commonwnd {

namespace {

constexpr wchar_t kCoreFolder[] = L"CoreDLL";
constexpr wchar_t kPathVariable[] = L"Path";

// Cuts a path at its last back slash; false when it has none.
bool CutLastPart(std::wstring& path) {
    const std::size_t slash = path.rfind(L'\\');
    if (slash == std::wstring::npos)
        return false;
    path.erase(slash);
    return true;
}

// Where the search starts: a folder with a back slash at its end. Nothing when the executable's path has too
// few parts.
std::optional<std::wstring> StartFolder(IProcessServices& services, const wchar_t* folder) {
    std::wstring base;
    if (folder) {
        base = folder;
    } else {
        base = services.ExecutablePath();
        for (int part = 0; part < 2; ++part) { // the program and its folder
            if (!CutLastPart(base))
                return std::nullopt;
        }
    }
    return base + L'\\';
}

// The folder, with a back slash at its end, that holds CoreDLL: the start folder or one of the folders in it.
std::optional<std::wstring> FolderWithCore(IProcessServices& services, const std::wstring& start) {
    if (services.IsDirectory(start + kCoreFolder))
        return start;
    std::optional<std::wstring> found;
    services.VisitDirectories(start + L"*.*", [&](const std::wstring& name) {
        std::wstring candidate = start + name + L'\\';
        if (services.IsDirectory(candidate + kCoreFolder))
            found = std::move(candidate);
        return !found;
    });
    return found;
}

void AppendWhenMissing(std::wstring& path, const std::wstring& entry) {
    if (path.find(entry) == std::wstring::npos)
        path += entry;
}

// Keeps a loaded module only when its entry answers an interface.
IProcessServices::Module AskForInterface(IProcessServices& services, IProcessServices::Module module,
                                         const char* entryName, void*& api) {
    if (!module)
        return nullptr;
    const CoreLibraryEntry entry = services.FindEntry(module, entryName);
    api = entry ? entry() : nullptr;
    if (api)
        return module;
    services.Free(module);
    return nullptr;
}

} // namespace

std::wstring ExtendedPath(std::wstring path, const std::wstring& base,
                          const CoreLibraryDescription& description) {
    const std::wstring core = base + kCoreFolder;
    path += L';';
    AppendWhenMissing(path, core + L';');
    for (int i = 0; i < description.searchFolderCount; ++i)
        AppendWhenMissing(path, core + L'\\' + description.searchFolders[i] + L"\\x64;");
    return path;
}

IProcessServices::Module QV_LoadCoreLibrary(IProcessServices& services, const wchar_t* folder,
                                            const CoreLibraryDescription& description, void*& api) {
    api = nullptr;
    if (!description.baseName || !description.entryName)
        return nullptr;
    const std::wstring fileName = std::wstring(description.baseName) + L".dll";
    const auto loadAndAsk = [&] {
        return AskForInterface(services, services.Load(fileName), description.entryName, api);
    };
    if (const auto module = loadAndAsk())
        return module;
    const auto start = StartFolder(services, folder);
    if (!start)
        return nullptr;
    if (const auto base = FolderWithCore(services, *start)) {
        const auto path = services.ReadVariable(kPathVariable, kPathVariableMaxUnits);
        const std::wstring extended = ExtendedPath(path.value_or(L""), *base, description);
        if (description.searchFolders && description.searchFolderCount > 0)
            services.WriteVariable(kPathVariable, extended);
    }
    return loadAndAsk();
}

} // namespace _qv_commonwnd
