// Puts a function of the test in place of one that a DLL imports, for as long as the object lives.
#pragma once

#include <windows.h>

namespace pathdialog_test {

class ImportPatch {
  public:
    // `module`: the importing DLL; `name`: of the imported function, from whatever DLL. Fails the test when
    // the DLL does not import it.
    ImportPatch(const wchar_t* module, const char* name, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

  private:
    void Write(void* function) const;

    void** m_slot = nullptr;
    void* m_former = nullptr;
};

} // namespace pathdialog_test
