// A text on its way from any thread to one reader; never waits, the newest text wins.
#pragma once

#include <atomic>
#include <memory>
#include <string>

namespace _qv_commonwnd {

class TextMailbox {
  public:
    TextMailbox() = default;
    TextMailbox(const TextMailbox&) = delete;
    TextMailbox& operator=(const TextMailbox&) = delete;
    ~TextMailbox() { delete m_text.load(); }

    // Any thread.
    void Put(const wchar_t* text) { delete m_text.exchange(new std::wstring(text)); }

    // The text put last since the former call; null for none.
    std::unique_ptr<std::wstring> Take() { return std::unique_ptr<std::wstring>(m_text.exchange(nullptr)); }

  private:
    std::atomic<std::wstring*> m_text{nullptr};
};

} // namespace _qv_commonwnd
