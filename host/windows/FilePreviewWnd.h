// FilePreviewWnd.h: the gallery's window in the file dialog; it shows the selected file.
#pragma once

#include "gallery/GalleryContext.h"
#include "media/FileFacts.h"

// Give it to CQVFileDialog::SetAdvanceWnd. The dialog tells of every selection by WM_QV_FILESELCHANGE; of a whole
// row of them, as Ctrl+A makes it, only the last one is looked at.
class CFilePreviewWnd : public CWnd, public _qv_commonctrl::CQVBaseCtrl {
  public:
    explicit CFilePreviewWnd(IGalleryContext& context);
    ~CFilePreviewWnd() override;

    // Makes the window, hidden, as a child of the gallery; the dialog shows it.
    BOOL CreateHidden();

  protected:
    afx_msg LRESULT OnFileSelChange(WPARAM what, LPARAM detail);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

  private:
    enum class Selected { Nothing, Missing, One, Several };

    void ShowSelection();
    CString Say() const;
    void TakeLines();
    CRect PictureFrame(const CRect& client) const;
    bool HasPicture() const;
    void PaintInFrame(CDC& dc, const CRect& frame);

    IGalleryContext& m_context;
    Selected m_selected = Selected::Nothing;
    CString m_path;
    int m_count = 0;
    FileFacts m_facts;
    std::vector<CString> m_lines;
    CPixelBitmap m_thumbnail;
};
