#pragma once

#include "psd/LegacyDecoder.h"
#include <map>

namespace psdtest {

// A decoder whose answers a test writes down: what is not in the table is not valid.
class TableDecoder final : public _qv_commonclass::psd::LegacyDecoder {
  public:
    using CodePage = _qv_commonclass::psd::LegacyCodePage;

    CodePage system = CodePage::System; // none of the others

    void valid(CodePage codePage, std::string bytes, std::u16string text) {
        m_table[{codePage, std::move(bytes)}] = std::move(text);
    }

    bool decode(CodePage codePage, std::span<const std::uint8_t> bytes, std::u16string& text) const override {
        const auto found = m_table.find({codePage, std::string(bytes.begin(), bytes.end())});
        if (found == m_table.end()) {
            text = u"unspecified";
            return false;
        }
        text = found->second;
        return true;
    }

    bool isSystem(CodePage codePage) const override { return codePage == system; }

    void decodeLossy(std::span<const std::uint8_t> bytes, std::u16string& text) const override {
        text.assign(bytes.size(), u'?');
    }

  private:
    std::map<std::pair<CodePage, std::string>, std::u16string> m_table;
};

} // namespace psdtest
