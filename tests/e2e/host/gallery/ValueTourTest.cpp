// The tour of the progress window, the dialogs for one value and the meters.
#include "Tour.h"

#include "res/ResourceIds.h"

using namespace qvtest;
using namespace gallery;

namespace {

constexpr long long kLongFileBytes = 8LL << 30;
constexpr long long kShortFileBytes = 600LL << 20;
constexpr int kStringEdit = 111;

class ValueTour : public Tour {
  protected:
    // A file of zeroes that takes no room on the disk.
    void bigFile(const std::wstring& name, long long bytes) const {
        const HANDLE file = ::CreateFileW(sample(name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, file);
        LARGE_INTEGER end = {};
        end.QuadPart = bytes;
        EXPECT_TRUE(::SetFilePointerEx(file, end, nullptr, FILE_BEGIN));
        EXPECT_TRUE(::SetEndOfFile(file));
        ::CloseHandle(file);
    }
};

} // namespace

TEST_P(ValueTour, ProgressRunsToItsEnd) {
    bigFile(L"take-0001.mxf", kShortFileBytes);
    session().open(L"progress");
    const HWND window = session().waitDialog();
    const HWND message = user().waitControl(window, IDC_PROGRESS_TEXT);
    user().waitFor("the big file's name with dots", [&] {
        const std::wstring text = textOf(message);
        return text.find(L"take-0001.mxf...") == 0;
    });
    session().picture(window, L"progress");
    user().escape(); // does nothing
    const auto results = session().waitClosed(L"progress");
    ASSERT_EQ(1u, results.size());
    EXPECT_EQ(0u, results[0].find(L"CZ5ProgressDlg=5 files, "));
    EXPECT_EQ(std::wstring::npos, results[0].find(L"cancelled"));
}

TEST_P(ValueTour, ProgressIsCancelled) {
    bigFile(L"a-long-take.mxf", kLongFileBytes);
    session().open(L"progress");
    const HWND window = session().waitDialog();
    user().click(window, IDC_PROGRESS_CANCEL);
    const auto results = session().waitClosed(L"progress");
    ASSERT_EQ(1u, results.size());
    EXPECT_NE(std::wstring::npos, results[0].find(L", cancelled"));

    user().waitFor("the long file to be gone", [&] {
        return ::DeleteFileW(sample(L"a-long-take.mxf").c_str()) || ::GetLastError() == ERROR_FILE_NOT_FOUND;
    });
    session().open(L"progress"); // a second run starts afresh
    const auto again = session().waitClosed(L"progress");
    ASSERT_EQ(1u, again.size());
    EXPECT_EQ(0u, again[0].find(L"CZ5ProgressDlg=4 files, ")) << qvtest::toUtf8(again[0]);
    EXPECT_EQ(std::wstring::npos, again[0].find(L"cancelled"));
}

TEST_P(ValueTour, IntegerIsTyped) {
    session().open(L"integer");
    const HWND dialog = session().waitDialog();
    session().picture(dialog, L"integer");
    const HWND edit = user().waitControl(dialog, IDC_VALUE_EDIT);
    EXPECT_EQ(L"250", textOf(edit));
    user().replaceText(edit, L"-1"); // below the range: refused
    user().click(dialog, IDOK);
    user().settle();
    EXPECT_TRUE(::IsWindowVisible(dialog));
    user().replaceText(edit, L"x1y200z"); // only digits get in
    user().waitText(edit, L"1200");
    user().enter();
    EXPECT_EQ(Results{L"CQVGetIntDlg=1200"}, session().waitClosed(L"integer"));
}

TEST_P(ValueTour, DurationIsTypedAsTimecode) {
    session().open(L"integer-timecode");
    const HWND dialog = session().waitDialog();
    session().picture(dialog, L"integer-timecode");
    const HWND edit = user().waitControl(dialog, IDC_VALUE_TIMECODE);
    EXPECT_EQ(L"00:01:00:00", textOf(edit));
    user().replaceText(edit, L"215");
    user().click(dialog, IDOK);
    EXPECT_EQ(Results{L"CQVGetIntDlg=65"}, session().waitClosed(L"integer-timecode"));
}

TEST_P(ValueTour, NameIsTyped) {
    session().open(L"string");
    const HWND dialog = session().waitDialog();
    session().picture(dialog, L"string");
    user().type(L"a:b"); // the whole text is selected
    user().waitText(user().waitControl(dialog, kStringEdit), L"a:b");
    user().enter();
    const HWND refusal = session().waitDialog(dialog);
    session().picture(refusal, L"string-refused");
    user().enter();
    user().waitGone(refusal);
    user().waitEnabled(dialog, true);
    user().replaceText(user().waitControl(dialog, kStringEdit), L"Sequenz 片段 02");
    user().enter();
    EXPECT_EQ(Results{L"CQVGetStrDlg=Sequenz 片段 02"}, session().waitClosed(L"string"));
}

TEST_P(ValueTour, NoteIsTypedInTheWindow) {
    session().open(L"string-window");
    const HWND dialog = session().waitDialog();
    user().type(L"Colour pass is missing");
    user().waitText(user().waitControl(dialog, kStringEdit), L"Colour pass is missing");
    session().picture(dialog, L"string-window");
    user().click(dialog, IDOK);
    EXPECT_EQ(Results{L"CQVGetStrDlg=Colour pass is missing"}, session().waitClosed(L"string-window"));
}

TEST_P(ValueTour, PointIsTypedEitherWay) {
    session().open(L"point");
    const HWND dialog = session().waitDialog();
    session().picture(dialog, L"point");
    const HWND timecode = user().waitControl(dialog, IDC_VALUE_EDIT);
    const HWND frames = user().waitControl(dialog, IDC_POINT_FRAMES);
    EXPECT_EQ(L"00:01:00;02", textOf(timecode));
    EXPECT_EQ(L"1800", textOf(frames));
    user().replaceText(frames, L"75");
    user().waitText(timecode, L"00:00:02;15");
    user().enter();
    EXPECT_EQ(Results{L"CQVGetPointDlg=75"}, session().waitClosed(L"point"));
}

TEST_P(ValueTour, SafeColorsAreEdited) {
    session().open(L"safecolor");
    const HWND dialog = session().waitDialog();
    session().picture(dialog, L"safecolor");
    EXPECT_FALSE(::IsWindowEnabled(user().waitControl(dialog, IDOK)));
    user().replaceText(user().waitControl(dialog, IDC_SAFECOLOR_LUMHIGH), L"240");
    user().click(dialog, IDC_SAFECOLOR_WARNING);
    session().picture(dialog, L"safecolor-changed");
    user().click(dialog, IDOK);
    EXPECT_EQ(Results{L"CQVSafeColorDlg=16.00 240.00 100.0 action 1"}, session().waitClosed(L"safecolor"));
}

TEST_P(ValueTour, PictureIsDragged) {
    session().open(L"picturepos");
    const HWND dialog = // the preview is a window of the gallery, too
        user().waitWindow(
            {.className = L"#32770", .owner = session().mainWindow(), .process = session().process()});
    const HWND tracker = user().waitControl(dialog, IDC_PICTURE_TRACKER);
    EXPECT_EQ(L"160", textOf(user().waitControl(dialog, IDC_PICTURE_X)));
    session().picture(dialog, L"picturepos");
    RECT area = {};
    ::GetClientRect(tracker, &area);
    user().drag(tracker, {area.right / 4, area.bottom / 4}, {0, 0}); // as far as the frame's corner
    user().waitText(user().waitControl(dialog, IDC_PICTURE_X), L"0");
    user().waitText(user().waitControl(dialog, IDC_PICTURE_Y), L"0");
    user().replaceText(user().waitControl(dialog, IDC_PICTURE_X), L"36");
    user().click(dialog, IDOK);
    EXPECT_EQ(Results{L"CQVPicturePosDlg=36, 0"}, session().waitClosed(L"picturepos"));
}

TEST_P(ValueTour, MetersPlay) {
    session().open(L"meters");
    EXPECT_EQ(Results{L"CQVVUFrame=2 channels, 48000 Hz"}, session().waitClosed(L"meters"));
    const HWND frame = session().waitDialog();
    session().picture(frame, L"meters");
    ::PostMessageW(frame, WM_SYSCOMMAND, SC_CLOSE, 0);
    user().waitGone(frame);
    EXPECT_TRUE(::IsWindow(frame)); // hidden only

    session().open(L"meters-full");
    EXPECT_EQ(Results{L"CQVVUFrame=4/95/8"}, session().waitClosed(L"meters-full"));
    EXPECT_EQ(frame, session().waitDialog());
    session().picture(frame, L"meters-full");
    ::PostMessageW(frame, WM_SYSCOMMAND, SC_CLOSE, 0);
    user().waitGone(frame);
}

INSTANTIATE_TEST_SUITE_P(Looks, ValueTour, allLooks(), lookName);
