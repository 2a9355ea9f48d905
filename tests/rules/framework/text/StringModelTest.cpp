// CString against a plain model: random changes, many of them with arguments inside the text itself.
#include "TextPrinter.h"

#include <algorithm>
#include <random>
#include <string>

namespace {

class Model {
  public:
    explicit Model(unsigned seed) : m_random(seed) {}

    void Step() {
        switch (Pick(0, 9)) {
        case 0:
            Append();
            break;
        case 1:
            Insert();
            break;
        case 2:
            Delete();
            break;
        case 3:
            Replace();
            break;
        case 4:
            Remove();
            break;
        case 5:
            Assign();
            break;
        case 6:
            Trim();
            break;
        case 7:
            Share();
            break;
        case 8:
            SetAt();
            break;
        default:
            Buffer();
            break;
        }
    }

    ::testing::AssertionResult Check() const {
        if (m_keptText != std::wstring(m_kept.GetString(), static_cast<size_t>(m_kept.GetLength())))
            return ::testing::AssertionFailure() << "a copy changed with its source";
        return SameText(CString(m_model.c_str(), static_cast<int>(m_model.size())), m_text);
    }

  private:
    int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }
    int Length() const { return m_text.GetLength(); }
    WCHAR Unit() { return static_cast<WCHAR>(L'a' + Pick(0, 2)); }
    // A text of our own, or a tail of the text under test.
    LPCWSTR Argument() {
        if (Length() > 0 && Length() < kMaxUnits && Pick(0, 1))
            return m_text.GetString() + Pick(0, Length());
        m_argument.assign(static_cast<size_t>(Pick(0, 4)), Unit());
        return m_argument.c_str();
    }
    void Append() {
        LPCWSTR const argument = Argument();
        const std::wstring copy = argument;
        m_text += argument;
        m_model += copy;
    }
    void Insert() {
        const int at = Pick(-2, Length() + 2);
        LPCWSTR const argument = Argument();
        const std::wstring copy = argument;
        m_model.insert(static_cast<size_t>(std::clamp(at, 0, Length())), copy);
        m_text.Insert(at, argument);
    }
    void Delete() {
        const int at = Pick(-2, Length() + 2), count = Pick(-1, 5);
        const int first = std::clamp(at, 0, Length());
        m_model.erase(static_cast<size_t>(first), static_cast<size_t>(std::max(count, 0)));
        m_text.Delete(at, count);
    }
    void Replace() {
        const std::wstring from(static_cast<size_t>(Pick(1, 2)), Unit());
        LPCWSTR const to = Argument();
        const std::wstring copy = std::wstring(to).substr(0, 3);
        for (size_t at = m_model.find(from); at != std::wstring::npos;
             at = m_model.find(from, at + copy.size()))
            m_model.replace(at, from.size(), copy);
        m_text.Replace(from.c_str(), copy.c_str());
    }
    void Remove() {
        const WCHAR unit = Unit();
        m_model.erase(std::remove(m_model.begin(), m_model.end(), unit), m_model.end());
        m_text.Remove(unit);
    }
    void Assign() {
        const int first = Pick(0, Length()), count = Pick(0, Length() - first);
        if (Pick(0, 1))
            m_text = m_text.Mid(first, count);
        else
            m_text.SetString(m_text.GetString() + first, count);
        m_model = m_model.substr(static_cast<size_t>(first), static_cast<size_t>(count));
    }
    void Trim() {
        const WCHAR unit = Unit();
        m_text.Trim(unit);
        const size_t first = m_model.find_first_not_of(unit);
        const size_t last = m_model.find_last_not_of(unit);
        m_model = first == std::wstring::npos ? std::wstring() : m_model.substr(first, last - first + 1);
    }
    void Share() {
        m_kept = m_text;
        m_keptText = m_model;
    }
    void SetAt() {
        const int at = Pick(-1, Length());
        const WCHAR unit = Unit();
        m_text.SetAt(at, unit);
        if (at >= 0 && at < static_cast<int>(m_model.size()))
            m_model[static_cast<size_t>(at)] = unit;
    }
    void Buffer() {
        const int length = Pick(0, std::min(Length() + 3, kMaxUnits));
        const int before = Length();
        LPWSTR const text = m_text.GetBuffer(length);
        for (int i = before; i < length; ++i)
            text[i] = L'c';
        m_text.ReleaseBuffer(length);
        m_model.resize(static_cast<size_t>(length), L'c');
    }

    static constexpr int kMaxUnits = 200;
    std::mt19937 m_random;
    CString m_text;
    CString m_kept;
    std::wstring m_keptText;
    std::wstring m_model;
    std::wstring m_argument;
};

TEST(StringModel, RandomChanges) {
    constexpr unsigned kRuns = 200;
    constexpr int kSteps = 200;
    for (unsigned seed = 0; seed < kRuns; ++seed) {
        Model model(seed);
        for (int step = 0; step < kSteps; ++step) {
            model.Step();
            ASSERT_TRUE(model.Check()) << "seed " << seed << ", step " << step;
        }
    }
}

} // namespace
