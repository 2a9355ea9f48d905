// QVListControls.h: skinned header, list, tree and progress bar.
#pragma once

#include "QVSkin.h"
#include "QVBaseCtrl.h"

namespace _qv_commonctrl {

// Finds the moment when a control can be set up: after WM_CREATE for a window that is being created, with the
// first message for one that exists already and has been subclassed.
class QVSetupMoment {
  public:
    // To be called with each message before it is processed, and with WM_CREATE after it, too. TRUE once.
    bool HasCome(UINT message, bool processed);
    void Reset() { m_phase = Phase::Fresh; }

  private:
    enum class Phase { Fresh, Creating, Done };
    Phase m_phase = Phase::Fresh;
};

// The column headers of a list view. Keeps the native behaviour: sizing, dragging, sorting arrows
// (HDF_SORTUP, HDF_SORTDOWN), owner-drawn columns (WM_DRAWITEM to the parent).
class QVCOMMONCTRL_API CQVHeaderCtrl : public CHeaderCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVHeaderCtrl)

  public:
    CQVHeaderCtrl();
    ~CQVHeaderCtrl() override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(CDC* dc);
    void SetMouseItems(int hot, int pressed);
    int ItemAt(CPoint client) const;

    int m_nHot = -1;
    int m_nPressed = -1;
};

// A list view with skinned rows, header and scroll bars, in every view. The rows are drawn by way of its
// custom-draw notification, which a framework parent reflects; below another parent the rows get the skin's
// colours only.
class QVCOMMONCTRL_API CQVListCtrl : public CListCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVListCtrl)

  public:
    CQVListCtrl();
    ~CQVListCtrl() override;

    // Appends a row for each text (first column, no picture) and repaints once, in far less time than row by row. FALSE
    // without a window, and when the control has no memory for one of them: the rows before it stay. User-interface
    // thread.
    BOOL AppendRows(const CStringArray& texts);

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    void SetUp();
    void ApplyColors();
    void TakeHeader();

    CQVHeaderCtrl m_header;
    QVSetupMoment m_setup;
};

// Answers a list view's custom-draw notification: paints its items with the skin. For the parent of a list that
// is no CQVListCtrl, such as one inside a window of the system. User-interface thread.
QVCOMMONCTRL_API LRESULT QV_PaintListItem(NMLVCUSTOMDRAW& draw);

// A tree view with skinned rows, expanders and scroll bars; custom draw as with the list.
class QVCOMMONCTRL_API CQVTreeCtrl : public CTreeCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVTreeCtrl)

  public:
    CQVTreeCtrl();
    ~CQVTreeCtrl() override;
    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

  private:
    void SetUp();
    void ApplyColors();

    QVSetupMoment m_setup;
};

// What a tree of any class answers to its custom-draw notification in order to look like CQVTreeCtrl: the rows are
// painted with the skin's colours and expanders and the tree's own font and images. Returns the answer.
QVCOMMONCTRL_API LRESULT QV_PaintTreeItem(NMTVCUSTOMDRAW& draw);

// A progress bar drawn with the skin; the PBM_* messages and the styles PBS_VERTICAL and PBS_MARQUEE keep
// their meaning.
class QVCOMMONCTRL_API CQVProgressCtrl : public CProgressCtrl, public CQVBaseCtrl {
    DECLARE_DYNAMIC(CQVProgressCtrl)

  public:
    CQVProgressCtrl();
    ~CQVProgressCtrl() override;

  protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(CDC* dc);
    CRect FilledPart(const CRect& inside) const;
    void SetMarquee(bool on, UINT stepMs);

    int m_nMarqueeStep = -1; // steps the marquee has made; -1: it does not run
};

} // namespace _qv_commonctrl
