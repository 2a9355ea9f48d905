// The services of the process that the search for a library needs. An interface, so that every step and
// failure of the search can be played without a file system.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace _qv_commonwnd {

// What an entry of a core library looks like: no arguments, answers the library's interface or null.
using CoreLibraryEntry = void* (*)();

class IProcessServices {
  public:
    using Module = void*; // null: none

    virtual ~IProcessServices() = default;

    // Loads a library by the normal search order; null when that fails.
    virtual Module Load(const std::wstring& fileName) = 0;
    virtual void Free(Module module) = 0;
    // Null when the module has no such entry.
    virtual CoreLibraryEntry FindEntry(Module module, const char* name) = 0;

    // The full path of the process's executable, cut to 259 units; empty when the system does not tell.
    virtual std::wstring ExecutablePath() = 0;

    virtual bool IsDirectory(const std::wstring& path) = 0;
    // Visits the entries of a folder that are directories ("." and ".." included) in the file system's order,
    // until the visitor answers false. `pattern` is the folder, a back slash and "*.*".
    virtual void VisitDirectories(const std::wstring& pattern,
                                  const std::function<bool(const std::wstring& name)>& visitor) = 0;

    // An environment variable; nothing when it is not set or longer than maxUnits.
    virtual std::optional<std::wstring> ReadVariable(const wchar_t* name, std::size_t maxUnits) = 0;
    virtual void WriteVariable(const wchar_t* name, const std::wstring& value) = 0;
};

// The process that this code runs in.
class ProcessServices final : public IProcessServices {
  public:
    Module Load(const std::wstring& fileName) override;
    void Free(Module module) override;
    CoreLibraryEntry FindEntry(Module module, const char* name) override;
    std::wstring ExecutablePath() override;
    bool IsDirectory(const std::wstring& path) override;
    void VisitDirectories(const std::wstring& pattern,
                          const std::function<bool(const std::wstring& name)>& visitor) override;
    std::optional<std::wstring> ReadVariable(const wchar_t* name, std::size_t maxUnits) override;
    void WriteVariable(const wchar_t* name, const std::wstring& value) override;
};

} // namespace _qv_commonwnd
