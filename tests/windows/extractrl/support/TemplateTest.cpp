// Controls made by their class names in a dialog template.
#include "ProbeDialog.h"

#include <LeakGuard.h>
#include <ModalScript.h>
#include <Picture.h>
#include <QVCommonCtrl.h>

#include <gtest/gtest.h>

#include <memory>

using namespace qvtest;
using namespace _qv_extractrl;

namespace {

INT_PTR runAndClose(ProbeDialog& dialog) {
    ModalScript script;
    script.step("close", [](Driver& user) { user.click(user.waitWindow({.title = L"Probe"}), IDOK); });
    return script.run([&] { return dialog.DoModal(); });
}

// Opens and closes at once, without a user beside it.
void openAndClose(const std::function<void(ProbeDialog&)>& onInit = [](ProbeDialog&) {}) {
    ProbeDialog dialog;
    dialog.onInit = [&](ProbeDialog& opened) {
        onInit(opened);
        opened.PostMessage(WM_COMMAND, IDCANCEL);
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ExtraTemplate, EveryControlIsAnObjectOfItsClass) {
    ProbeDialog dialog;
    dialog.onInit = [](ProbeDialog& opened) {
        EXPECT_NE(opened.timeCode(), nullptr);
        EXPECT_NE(opened.frames(), nullptr);
        EXPECT_NE(opened.number(), nullptr);
        EXPECT_NE(opened.tracker(), nullptr);
        EXPECT_NE(opened.meter(), nullptr);
        EXPECT_NE(opened.timeCode(), opened.frames());
        EXPECT_EQ(opened.GetDlgItem(IDC_TIMECODE),
                  CWnd::FromHandlePermanent(::GetDlgItem(opened, IDC_TIMECODE)));
    };
    EXPECT_EQ(runAndClose(dialog), IDOK);
}

TEST(ExtraTemplate, SubclassDlgItemPutsTheCallersObjectInPlace) {
    CQVTimeCodeEditEx timeCode;
    CQVNumberEditEx number;
    CQVRectTracker tracker;
    CQVVUTableCtrl meter;
    ProbeDialog dialog;
    dialog.onInit = [&](ProbeDialog& opened) {
        ASSERT_TRUE(timeCode.SubclassDlgItem(IDC_TIMECODE, &opened));
        ASSERT_TRUE(number.SubclassDlgItem(IDC_NUMBER, &opened));
        ASSERT_TRUE(tracker.SubclassDlgItem(IDC_TRACKER, &opened));
        ASSERT_TRUE(meter.SubclassDlgItem(IDC_METER, &opened));
        EXPECT_EQ(opened.timeCode(), &timeCode);
        EXPECT_EQ(opened.number(), &number);
        timeCode.SetFrame(50, FALSE);
        number.SetPos(12);
        meter.SetPos(40);
    };
    ModalScript script;
    script.step("type", [&](Driver& user) {
        const HWND wnd = user.waitWindow({.title = L"Probe"});
        EXPECT_EQ(user.text(wnd, IDC_TIMECODE), L"00:00:02:00");
        EXPECT_EQ(user.text(wnd, IDC_NUMBER), L"12");
        user.replaceText(findControl(wnd, IDC_NUMBER), L"77");
        user.click(wnd, IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(number.GetPos(), 77);
    EXPECT_EQ(number.m_hWnd, nullptr);
    ASSERT_EQ(dialog.countNotes(QVEDIT_CHANGED), 1);
    EXPECT_EQ(dialog.notes.front().sender, &number);
}

TEST(ExtraTemplate, DataExchangePutsTheCallersObjectInPlace) {
    CQVTimeCodeEditEx timeCode;
    CQVRectTracker tracker;
    ProbeDialog dialog;
    dialog.onExchange = [&](CDataExchange* exchange) {
        DDX_Control(exchange, IDC_TIMECODE, timeCode);
        DDX_Control(exchange, IDC_TRACKER, tracker);
    };
    dialog.onInit = [&](ProbeDialog& opened) {
        EXPECT_EQ(opened.timeCode(), &timeCode);
        EXPECT_EQ(opened.tracker(), &tracker);
        timeCode.SetFrame(75, FALSE);
        EXPECT_EQ(timeCode.GetFrame(), 75);
    };
    EXPECT_EQ(runAndClose(dialog), IDOK);
}

TEST(ExtraTemplate, AnObjectOfAnotherClassMayTakeTheWindow) {
    CEdit plain;
    ProbeDialog dialog;
    dialog.onInit = [&](ProbeDialog& opened) { ASSERT_TRUE(plain.SubclassDlgItem(IDC_NUMBER, &opened)); };
    EXPECT_EQ(runAndClose(dialog), IDOK);
    EXPECT_EQ(plain.m_hWnd, nullptr);
}

TEST(ExtraTemplate, CallersObjectIsNotReplaceable) {
    CQVNumberEditEx first, second;
    ProbeDialog dialog;
    dialog.onInit = [&](ProbeDialog& opened) {
        ASSERT_TRUE(first.SubclassDlgItem(IDC_NUMBER, &opened));
        EXPECT_FALSE(second.SubclassDlgItem(IDC_NUMBER, &opened));
        EXPECT_EQ(opened.number(), &first);
    };
    EXPECT_EQ(runAndClose(dialog), IDOK);
}

TEST(ExtraTemplate, CreatedByCodeAndByPlainWindowsCalls) {
    openAndClose([](ProbeDialog& opened) {
        auto number = std::make_unique<CQVNumberEditEx>();
        ASSERT_TRUE(number->CreateEx(WS_EX_CLIENTEDGE, L"NumberEditClass", nullptr,
                                     WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 60, 20), &opened, 2045));
        EXPECT_EQ(opened.GetDlgItem(2045), number.get());
        EXPECT_TRUE(number->GetStyle() & ES_AUTOHSCROLL);
        number->DestroyWindow();

        const HWND made = ::CreateWindowExW(0, L"QVTimeCodeEditExClass", L"", WS_CHILD, 0, 0, 60, 20, opened,
                                            nullptr, nullptr, nullptr);
        ASSERT_NE(made, nullptr);
        EXPECT_NE(dynamic_cast<CQVTimeCodeEditEx*>(CWnd::FromHandlePermanent(made)), nullptr);
        ::DestroyWindow(made);
    });
}

TEST(ExtraTemplate, DialogsLeaveNothingBehind) {
    expectNoLeak(200, [] { openAndClose(); });
}

TEST(ExtraTemplate, ReplacedObjectsLeaveNothingBehind) {
    expectNoLeak(200, [] {
        CQVNumberEditEx number;
        CQVRectTracker tracker;
        CQVVUTableCtrl meter;
        openAndClose([&](ProbeDialog& opened) {
            number.SubclassDlgItem(IDC_NUMBER, &opened);
            tracker.SubclassDlgItem(IDC_TRACKER, &opened);
            meter.SubclassDlgItem(IDC_METER, &opened);
            meter.SetPos(100);
        });
    });
}

// A pixel that nothing but a repaint would overwrite.
void markPixel(CWnd* control) {
    CClientDC dc(control);
    dc.SetPixelV(5, 5, RGB(1, 2, 3));
    EXPECT_EQ(Picture::ofClient(*control).at(5, 5), RGB(1, 2, 3));
}

TEST(ExtraTemplate, SkinChangeReachesEveryControl) {
    openAndClose([](ProbeDialog& opened) {
        opened.ShowWindow(SW_SHOW);
        opened.UpdateWindow();
        for (const int id : {IDC_TIMECODE, IDC_NUMBER, IDC_TRACKER, IDC_METER})
            markPixel(opened.GetDlgItem(id));
        _qv_commonctrl::QV_SetSkinPath(nullptr);
        opened.UpdateWindow();
        for (const int id : {IDC_TIMECODE, IDC_NUMBER, IDC_TRACKER, IDC_METER})
            EXPECT_NE(Picture::ofClient(*opened.GetDlgItem(id)).at(5, 5), RGB(1, 2, 3)) << id;
    });
}

} // namespace
