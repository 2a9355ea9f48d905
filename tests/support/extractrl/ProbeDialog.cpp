#include "ProbeDialog.h"

#include <algorithm>

using namespace _qv_extractrl;

BEGIN_MESSAGE_MAP(ProbeDialog, CDialog)
    ON_MESSAGE(QVN_EDITNOTIFY, &ProbeDialog::OnEditNotify)
    ON_MESSAGE(QVN_TRACKERMOVE, &ProbeDialog::OnTrackerMove)
    ON_CONTROL_RANGE(EN_CHANGE, IDC_PLAIN, IDC_METER, &ProbeDialog::OnEditChange)
END_MESSAGE_MAP()

ProbeDialog::ProbeDialog() : CDialog(IDD_PROBE) {
}

int ProbeDialog::countNotes(WPARAM code) const {
    return static_cast<int>(
        std::count_if(notes.begin(), notes.end(), [code](const Note& n) { return n.code == code; }));
}

BOOL ProbeDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    onInit(*this);
    notes.clear();
    changes.clear();
    return TRUE;
}

void ProbeDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    onExchange(exchange);
}

void ProbeDialog::OnEditChange(UINT id) {
    ++changes[static_cast<int>(id)];
}

LRESULT ProbeDialog::OnEditNotify(WPARAM wParam, LPARAM lParam) {
    auto* const sender = reinterpret_cast<CWnd*>(lParam);
    Note note = {wParam, sender, 0, 0.0};
    if (auto* const timeCodeEdit = dynamic_cast<TimeCode*>(sender))
        note.frame = timeCodeEdit->GetFrame();
    if (auto* const numberEdit = dynamic_cast<Number*>(sender))
        note.pos = numberEdit->GetPos();
    notes.push_back(note);
    onNote(*this, note);
    return 0;
}

LRESULT ProbeDialog::OnTrackerMove(WPARAM wParam, LPARAM lParam) {
    lastMoveId = wParam;
    moves.push_back(reinterpret_cast<Tracker*>(lParam)->GetTrackRect());
    return 1;
}
