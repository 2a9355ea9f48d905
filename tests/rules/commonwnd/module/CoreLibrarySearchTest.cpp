// Every step and failure of the search for the colour-space library, played on made-up process services.
#include "module/CoreLibrarySearch.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <set>

using namespace _qv_commonwnd;

namespace {

int g_interface = 0;
void* AnswerInterface() {
    return &g_interface;
}
void* AnswerNull() {
    return nullptr;
}

constexpr const wchar_t* kFolders[] = {L"CPURelease"};
constexpr CoreLibraryDescription kColorSpace = {nullptr, 0, kFolders, 1, L"YBColorSpace", "VMQ_GetAPIStuPtr"};

// What one attempt to load finds.
enum class Try { Missing, Good, NoEntry, NullAnswer };

class PlayedServices : public IProcessServices {
  public:
    std::deque<Try> tries; // what each further Load finds; none left: missing
    std::wstring executable = L"C:\\App\\bin\\host.exe";
    std::set<std::wstring> directories;
    std::vector<std::wstring> entries; // directories of the visited folder, in order
    std::optional<std::wstring> path = L"C:\\Windows";

    std::vector<std::wstring> log;
    std::wstring written;
    int loaded = 0;

    Module Load(const std::wstring& fileName) override {
        log.push_back(L"load " + fileName);
        const Try found = tries.empty() ? Try::Missing : tries.front();
        if (!tries.empty())
            tries.pop_front();
        if (found == Try::Missing)
            return nullptr;
        ++loaded;
        return &m_modules.emplace_back(found);
    }
    void Free(Module) override {
        log.push_back(L"free");
        --loaded;
    }
    CoreLibraryEntry FindEntry(Module module, const char* name) override {
        EXPECT_STREQ("VMQ_GetAPIStuPtr", name);
        switch (*static_cast<Try*>(module)) {
        case Try::Good:
            return AnswerInterface;
        case Try::NullAnswer:
            return AnswerNull;
        default:
            return nullptr;
        }
    }
    std::wstring ExecutablePath() override {
        log.push_back(L"executable");
        return executable;
    }
    bool IsDirectory(const std::wstring& folder) override {
        log.push_back(L"directory? " + folder);
        return directories.count(folder) != 0;
    }
    void VisitDirectories(const std::wstring& pattern,
                          const std::function<bool(const std::wstring&)>& visitor) override {
        log.push_back(L"list " + pattern);
        for (const std::wstring& entry : entries)
            if (!visitor(entry))
                return;
    }
    std::optional<std::wstring> ReadVariable(const wchar_t* name, std::size_t maxUnits) override {
        EXPECT_STREQ(L"Path", name);
        log.push_back(L"read");
        return path && path->size() <= maxUnits ? path : std::nullopt;
    }
    void WriteVariable(const wchar_t* name, const std::wstring& value) override {
        EXPECT_STREQ(L"Path", name);
        log.push_back(L"write");
        written = value;
    }

  private:
    std::deque<Try> m_modules;
};

using Log = std::vector<std::wstring>;
const std::wstring kLoad = L"load YBColorSpace.dll";

struct Search : testing::Test {
    PlayedServices services;
    void* api = nullptr;

    bool Run(const wchar_t* folder = nullptr, const CoreLibraryDescription& description = kColorSpace) {
        api = this; // must be cleared
        const bool found = QV_LoadCoreLibrary(services, folder, description, api) != nullptr;
        EXPECT_EQ(found, api == &g_interface);
        EXPECT_EQ(!found, api == nullptr);
        EXPECT_EQ(found ? 1 : 0, services.loaded);
        return found;
    }
};

TEST_F(Search, WithoutNamesDoesNothing) {
    CoreLibraryDescription noBase = kColorSpace;
    noBase.baseName = nullptr;
    EXPECT_FALSE(Run(nullptr, noBase));
    CoreLibraryDescription noEntry = kColorSpace;
    noEntry.entryName = nullptr;
    EXPECT_FALSE(Run(nullptr, noEntry));
    EXPECT_EQ(Log{}, services.log);
}

TEST_F(Search, FirstTryLeavesTheEnvironmentAlone) {
    services.tries = {Try::Good};
    EXPECT_TRUE(Run());
    EXPECT_EQ(Log{kLoad}, services.log);
}

TEST_F(Search, FirstModuleWithoutEntryIsFreedAndTheSearchGoesOn) {
    services.tries = {Try::NoEntry, Try::Good};
    services.directories = {L"C:\\App\\CoreDLL"};
    EXPECT_TRUE(Run());
    EXPECT_EQ((Log{kLoad, L"free", L"executable", L"directory? C:\\App\\CoreDLL", L"read", L"write", kLoad}),
              services.log);
}

TEST_F(Search, FirstModuleThatAnswersNullIsFreed) {
    services.tries = {Try::NullAnswer};
    EXPECT_FALSE(Run());
    EXPECT_EQ(L"free", services.log[1]);
}

TEST_F(Search, CoreBesideTheExecutablesFolder) {
    services.tries = {Try::Missing, Try::Good};
    services.directories = {L"C:\\App\\CoreDLL"};
    EXPECT_TRUE(Run());
    EXPECT_EQ(L"C:\\Windows;C:\\App\\CoreDLL;C:\\App\\CoreDLL\\CPURelease\\x64;", services.written);
}

TEST_F(Search, CoreInASiblingFolderStopsAtTheFirstHit) {
    services.tries = {Try::Missing, Try::Good};
    services.entries = {L".", L"..", L"alpha", L"beta", L"gamma"};
    services.directories = {L"C:\\App\\beta\\CoreDLL", L"C:\\App\\gamma\\CoreDLL"};
    EXPECT_TRUE(Run());
    EXPECT_EQ((Log{kLoad, L"executable", L"directory? C:\\App\\CoreDLL", L"list C:\\App\\*.*",
                   L"directory? C:\\App\\.\\CoreDLL", L"directory? C:\\App\\..\\CoreDLL",
                   L"directory? C:\\App\\alpha\\CoreDLL", L"directory? C:\\App\\beta\\CoreDLL", L"read",
                   L"write", kLoad}),
              services.log);
    EXPECT_EQ(L"C:\\Windows;C:\\App\\beta\\CoreDLL;C:\\App\\beta\\CoreDLL\\CPURelease\\x64;",
              services.written);
}

TEST_F(Search, DotEntriesCount) {
    services.entries = {L".", L".."};
    services.directories = {L"C:\\App\\..\\CoreDLL"};
    EXPECT_FALSE(Run());
    EXPECT_EQ(L"C:\\Windows;C:\\App\\..\\CoreDLL;C:\\App\\..\\CoreDLL\\CPURelease\\x64;", services.written);
}

TEST_F(Search, WithoutCoreOneMoreTryIsMade) {
    services.entries = {L"bin"};
    EXPECT_FALSE(Run());
    EXPECT_EQ((Log{kLoad, L"executable", L"directory? C:\\App\\CoreDLL", L"list C:\\App\\*.*",
                   L"directory? C:\\App\\bin\\CoreDLL", kLoad}),
              services.log);
    services.log.clear();
    services.tries = {Try::Missing, Try::Good};
    EXPECT_TRUE(Run());
    EXPECT_TRUE(services.written.empty());
}

TEST_F(Search, SecondModuleIsFreedWhenItHasNothingToOffer) {
    for (const Try found : {Try::NoEntry, Try::NullAnswer}) {
        services.tries = {Try::Missing, found};
        services.directories = {L"C:\\App\\CoreDLL"};
        EXPECT_FALSE(Run());
        EXPECT_EQ(L"free", services.log.back());
        EXPECT_FALSE(services.written.empty()) << "Path stays extended";
    }
}

TEST_F(Search, ExecutablePathWithTooFewParts) {
    for (const wchar_t* executable : {L"", L"host.exe", L"C:\\host.exe", L"C:/a/b/host.exe"}) {
        services.log.clear();
        services.executable = executable;
        EXPECT_FALSE(Run());
        EXPECT_EQ((Log{kLoad, L"executable"}), services.log) << testing::PrintToString(executable);
    }
    services.executable = L"\\\\host.exe"; // two back slashes are enough
    services.directories = {L"\\CoreDLL"};
    services.tries = {Try::Missing, Try::Good};
    EXPECT_TRUE(Run());
}

TEST_F(Search, GivenFolderIsTheStart) {
    services.tries = {Try::Missing, Try::Good};
    services.directories = {L"D:\\Suite\\CoreDLL"};
    EXPECT_TRUE(Run(L"D:\\Suite"));
    EXPECT_EQ((Log{kLoad, L"directory? D:\\Suite\\CoreDLL", L"read", L"write", kLoad}), services.log);
}

TEST_F(Search, WithoutSearchFoldersPathIsNotWritten) {
    CoreLibraryDescription bare = kColorSpace;
    bare.searchFolderCount = 0;
    services.directories = {L"C:\\App\\CoreDLL"};
    services.tries = {Try::Missing, Try::Good};
    EXPECT_TRUE(Run(nullptr, bare));
    EXPECT_TRUE(services.written.empty());
}

TEST_F(Search, PathThatDoesNotFitCountsAsEmpty) {
    services.directories = {L"C:\\App\\CoreDLL"};
    const std::wstring entries = L";C:\\App\\CoreDLL;C:\\App\\CoreDLL\\CPURelease\\x64;";
    for (const auto& [length, kept] :
         std::map<std::size_t, bool>{{4094, true}, {4095, true}, {4096, false}}) {
        services.path = std::wstring(length, L'p');
        EXPECT_FALSE(Run());
        EXPECT_EQ((kept ? *services.path : L"") + entries, services.written) << length;
    }
    services.path = std::nullopt;
    EXPECT_FALSE(Run());
    EXPECT_EQ(entries, services.written);
}

struct PathRow {
    const char* name;
    std::wstring path;
    std::wstring extended;
};

class Extended : public testing::TestWithParam<PathRow> {};

TEST_P(Extended, Path) {
    EXPECT_EQ(GetParam().extended, ExtendedPath(GetParam().path, L"C:\\A\\", kColorSpace));
}

const std::wstring kCore = L"C:\\A\\CoreDLL;";
const std::wstring kRelease = L"C:\\A\\CoreDLL\\CPURelease\\x64;";

INSTANTIATE_TEST_SUITE_P(
    Table, Extended,
    testing::Values(PathRow{"empty", L"", L";" + kCore + kRelease},
                    PathRow{"plain", L"C:\\W", L"C:\\W;" + kCore + kRelease},
                    PathRow{"closedBySemicolon", L"C:\\W;", L"C:\\W;;" + kCore + kRelease},
                    PathRow{"holdsBoth", kCore + kRelease, kCore + kRelease + L";"},
                    PathRow{"holdsBothInOtherOrder", kRelease + kCore + L"x", kRelease + kCore + L"x;"},
                    PathRow{"holdsCore", L"C:\\W;" + kCore, L"C:\\W;" + kCore + L";" + kRelease},
                    PathRow{"holdsCoreLast", L"C:\\A\\CoreDLL", L"C:\\A\\CoreDLL;" + kRelease},
                    PathRow{"holdsReleaseOnly", kRelease, kRelease + L";" + kCore},
                    PathRow{"holdsItInOtherCase", L"c:\\a\\coredll", L"c:\\a\\coredll;" + kCore + kRelease}),
    [](const auto& row) { return row.param.name; });

} // namespace
