#include "documents/PsdBuilder.h"
#include <QVCommonClass.h>
#include <gtest/gtest.h>

// The exported call on files that are not as they should be, and in unusual places.
namespace psdtest {

namespace {

using _qv_commonclass::CQVVideoPlay;

// A folder of the test's own with everything in it removed at the end.
class VideoPlay : public testing::Test {
  protected:
    void SetUp() override {
        wchar_t temporary[MAX_PATH];
        ASSERT_NE(GetTempPathW(MAX_PATH, temporary), 0u);
        m_folder = std::wstring(L"\\\\?\\") + temporary + L"qvpsd" + std::to_wstring(GetCurrentProcessId());
        ASSERT_TRUE(CreateDirectoryW(m_folder.c_str(), nullptr));
        m_folders.push_back(m_folder);
    }

    void TearDown() override {
        for (const std::wstring& file : m_files)
            DeleteFileW(file.c_str());
        for (auto folder = m_folders.rbegin(); folder != m_folders.rend(); ++folder)
            EXPECT_TRUE(RemoveDirectoryW(folder->c_str()));
    }

    std::wstring subfolder(const std::wstring& parent, const std::wstring& name) {
        const std::wstring folder = parent + L"\\" + name;
        EXPECT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
        m_folders.push_back(folder);
        return folder;
    }

    std::wstring write(const std::wstring& folder, const std::wstring& name, const Bytes& bytes) {
        const std::wstring path = folder + L"\\" + name;
        const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        EXPECT_NE(file, INVALID_HANDLE_VALUE);
        DWORD written = 0;
        EXPECT_TRUE(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
        CloseHandle(file);
        m_files.push_back(path);
        return path;
    }

    Bytes document() const {
        Document made;
        made.layers = {layer(u"A"), layer(u"B")};
        return build(made).bytes;
    }

    std::wstring m_folder;

  private:
    std::vector<std::wstring> m_folders;
    std::vector<std::wstring> m_files;
};

void expectRefused(const wchar_t* path) {
    CStringArray names;
    names.Add(L"former");
    EXPECT_FALSE(CQVVideoPlay::GetPsdLayerInfo(path, names));
    ASSERT_EQ(names.GetSize(), 1);
    EXPECT_EQ(names.GetAt(0), L"former");
}

void expectTwoNames(const wchar_t* path) {
    CStringArray names;
    names.Add(L"former");
    ASSERT_TRUE(CQVVideoPlay::GetPsdLayerInfo(path, names));
    ASSERT_EQ(names.GetSize(), 2);
    EXPECT_EQ(names.GetAt(0), L"A");
    EXPECT_EQ(names.GetAt(1), L"B");
}

TEST_F(VideoPlay, RefusesWhatIsNoFile) {
    expectRefused(nullptr);
    expectRefused(L"");
    expectRefused((m_folder + L"\\missing.psd").c_str());
    expectRefused(m_folder.c_str());
    expectRefused(L"NUL");
    expectRefused(L"CON");
    expectRefused(L"\\\\.\\PhysicalDrive99");
    expectRefused(L"a<b>|?*.psd");
    expectRefused(std::wstring(40'000, L'x').c_str());
}

TEST_F(VideoPlay, RefusesOtherFiles) {
    expectRefused(write(m_folder, L"empty.psd", {}).c_str());
    expectRefused(write(m_folder, L"text.psd", Bytes(1000, 'x')).c_str());
}

TEST_F(VideoPlay, TheExtensionDoesNotMatter) {
    expectTwoNames(write(m_folder, L"picture.dat", document()).c_str());
}

TEST_F(VideoPlay, ReadsPathsBeyondTheLimit) {
    std::wstring folder = m_folder;
    for (int depth = 0; depth < 4; ++depth)
        folder = subfolder(folder, std::wstring(80, static_cast<wchar_t>(L'a' + depth)));
    const std::wstring path = write(folder, L"\u80CC\u666F.psd", document());
    ASSERT_GT(path.size(), 300u);
    expectTwoNames(path.c_str());
    expectTwoNames(path.c_str() + 4); // without the prefix
    std::wstring withDots = path.substr(4);
    withDots.replace(withDots.rfind(L'\\'), 1, L"/.\\");
    expectTwoNames(withDots.c_str());
}

TEST_F(VideoPlay, ReadsWhatAnotherProgramHasOpen) {
    const std::wstring path = write(m_folder, L"open.psd", document());
    const HANDLE other = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    expectTwoNames(path.c_str());
    CloseHandle(other);
}

TEST_F(VideoPlay, RefusesWhatIsLocked) {
    const std::wstring path = write(m_folder, L"locked.psd", document());
    const HANDLE other = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    expectRefused(path.c_str());
    CloseHandle(other);
    expectTwoNames(path.c_str());
}

TEST_F(VideoPlay, LeavesNoHandleOpen) {
    const std::wstring path = write(m_folder, L"again.psd", document());
    for (int i = 0; i < 3; ++i) {
        expectTwoNames(path.c_str());
        expectRefused(m_folder.c_str());
    }
    // Exclusive access is granted only when nobody holds the file any more.
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE);
    CloseHandle(file);
}

} // namespace

} // namespace psdtest
