// A dialog that holds one of each extra control, made by the template's class names, and writes down what the
// controls tell it.
#pragma once

#include "ProbeIds.h"

#include <QVExtraCtrl.h>

#include <functional>
#include <map>
#include <vector>

struct Note {
    WPARAM code;
    CWnd* sender;
    __int64 frame; // of a timecode edit at that moment
    double pos;    // of a number edit at that moment
};

class ProbeDialog : public CDialog {
  public:
    ProbeDialog();

    using TimeCode = _qv_extractrl::CQVTimeCodeEditEx;
    using Number = _qv_extractrl::CQVNumberEditEx;
    using Tracker = _qv_extractrl::CQVRectTracker;
    using Meter = _qv_extractrl::CQVVUTableCtrl;

    // The template's own objects; null when a control is not of the class it should be.
    TimeCode* timeCode() const { return dynamic_cast<TimeCode*>(GetDlgItem(IDC_TIMECODE)); }
    TimeCode* frames() const { return dynamic_cast<TimeCode*>(GetDlgItem(IDC_FRAMES)); }
    Number* number() const { return dynamic_cast<Number*>(GetDlgItem(IDC_NUMBER)); }
    Tracker* tracker() const { return dynamic_cast<Tracker*>(GetDlgItem(IDC_TRACKER)); }
    Meter* meter() const { return dynamic_cast<Meter*>(GetDlgItem(IDC_METER)); }

    int countNotes(WPARAM code) const;

    std::function<void(ProbeDialog&)> onInit = [](ProbeDialog&) {};
    std::function<void(ProbeDialog&, const Note&)> onNote = [](ProbeDialog&, const Note&) {};
    std::function<void(CDataExchange*)> onExchange = [](CDataExchange*) {};

    std::vector<Note> notes;
    std::map<int, int> changes; // EN_CHANGE by control id
    std::vector<CRect> moves;   // of the tracker
    WPARAM lastMoveId = 0;

  protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    afx_msg void OnEditChange(UINT id);
    afx_msg LRESULT OnEditNotify(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTrackerMove(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};
