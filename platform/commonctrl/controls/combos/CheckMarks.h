// CheckMarks.h: the check marks of a combo box's entries.
#pragma once

#include <windows.h>

#include <vector>

namespace _qv_commonctrl {

class CheckMarks {
  public:
    // For a list of `count` entries, none of them checked.
    void Reset(int count);

    bool Has(int item) const { return item >= 0 && static_cast<std::size_t>(item) < m_checks.size(); }
    // An entry that the list does not have is not checked.
    bool Get(int item) const { return Has(item) && m_checks[static_cast<std::size_t>(item)]; }
    bool Set(int item, bool check);
    void SetAll(bool check);

    // Keeps the marks beside their entries whoever changes the list: to be told of each message of the combo
    // box with its result. `count` entries are there now.
    void Follow(UINT message, WPARAM wParam, LRESULT result, int count);

    bool destroying = false; // the combo box is being destroyed: nobody is told any more

  private:
    std::vector<bool> m_checks;
};

} // namespace _qv_commonctrl
