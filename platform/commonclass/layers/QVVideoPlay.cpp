// CQVVideoPlay: a document's layer names as texts of the caller.
#include "QVVideoPlay.h"
#include "FileByteSource.h"
#include "SystemLegacyDecoder.h"
#include "psd/LayerNames.h"
#include <algorithm>
#include <vector>

namespace _qv_commonclass {

namespace {

// Each name goes straight into the text that the caller gets.
class LayerTexts final : public psd::NameSink {
  public:
    void expect(std::size_t atMost) override { m_texts.reserve(atMost); }
    void append(std::u16string_view name) override {
        m_texts.emplace_back(reinterpret_cast<LPCWSTR>(name.data()), static_cast<int>(name.size()));
    }

    // Only the change of names' size can run out of memory, and then names is as before.
    void moveTo(CStringArray& names) {
        names.SetSize(static_cast<INT_PTR>(m_texts.size()));
        std::move(m_texts.begin(), m_texts.end(), names.begin());
    }

  private:
    std::vector<CString> m_texts;
};

} // namespace

BOOL CQVVideoPlay::GetPsdLayerInfo(LPCWSTR path, CStringArray& names) {
    if (path == nullptr || *path == L'\0')
        return FALSE;
    try {
        FileByteSource file(path);
        LayerTexts layers;
        if (!file.isOpen() ||
            psd::readLayerNames(file, SystemLegacyDecoder(), layers) != psd::ReadResult::Done)
            return FALSE;
        layers.moveTo(names);
        return TRUE;
    } catch (...) { // out of memory: no exception leaves this library
        return FALSE;
    }
}

} // namespace _qv_commonclass
