// QVPsdOptionWnd.h: the strip below the file dialog that says how a Photoshop document is imported.
#pragma once

#include "QVDialogPanel.h"
#include "QVFileDialogDefs.h"

#include <QVCheckComboBox.h>
#include <QVStatic.h>

#include <vector>

namespace _qv_commonwnd {

// Two rows: the kind of import (render as one picture, or by layers) and a check-list of the layers. The file dialog
// creates it hidden and shows it for a ".psd" file.
class QVCOMMONWND_API CQVPsdOptionWnd : public CQVDialogPanel {
    DECLARE_DYNAMIC(CQVPsdOptionWnd)

  public:
    CQVPsdOptionWnd();
    ~CQVPsdOptionWnd() override;

    // Before the window is created, for an owner that may never show it: the controls are made when they are
    // needed first, that is when a document is read or the window gets a size.
    void DelayControls();

    // Reads a document's layers into the check-list, all of them checked, the top layer first. A document
    // that cannot be read empties the layer names and leaves the list, and what was checked in it, as it was.
    void ReadPsdFile(CString strPath);

    // Whether the check-list may be enabled; it is enabled only while import by layers is chosen.
    void EnableLayerInfo(BOOL bEnable);
    // Whether the kind of import may be changed.
    void EnableCompileImportType(BOOL bEnable);

    // Nonzero: the document is rendered as one picture (the choice at the start). Zero: it is imported by
    // layers.
    BOOL IsCompileImportType();

    // The layer names of the last document in stored order (bottom layer first); `arr` is emptied first.
    void GetImportLayerName(CStringArray& arr);
    // One figure per layer, in the order of the names: 1 to import it, 0 to leave it out; all 1 when the
    // document is rendered. The figures are appended: `v` is not emptied.
    void GetImportLayerInfo(std::vector<int>& v);

    // The height the panel needs, in pixels at 96 DPI (60).
    DWORD GetMinHeight();

    void OnSkinChange(UINT reason, HWND wnd) override;

  protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnCloseUpMsg(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    _qv_commonctrl::CQVStatic m_stcImportType;
    _qv_commonctrl::CQVStatic m_stcLayer;
    _qv_commonctrl::CQVComboBox m_cmbImportType;
    _qv_commonctrl::CQVCheckComboBox m_cmbLayer;
    CStringArray m_arrLayerName;      // as the document stores them
    std::vector<int> m_vecLayerCheck; // 1 or 0 per entry of m_cmbLayer, in the list's order
    BOOL m_bEnableImportType;
    BOOL m_bEnableLayer;
    BOOL m_bCompileImport; // 1: render, 0: by layers
    int m_nRowGap;         // pixels at 96 DPI, as all figures below
    int m_nLeft;
    int m_nRowHeight;
    int m_nLabelWidth;
    int m_nComboWidth;
    int m_nDropHeight;

  private:
    class CRows;

    BOOL m_bDelayControls = FALSE;
};

} // namespace _qv_commonwnd
