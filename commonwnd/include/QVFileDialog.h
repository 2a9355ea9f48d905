// QVFileDialog.h: the open and save dialog.
//
//     CQVFileDialog dialog(FALSE, nullptr, L"Clip", OFN_OVERWRITEPROMPT, L"AVI|*.avi|All|*.*|", this,
//                          0, FALSE, FALSE, FDO_KEEPOK);
//     if (dialog.DoModal() == IDOK)
//         Export(dialog.GetPathName()); // "c:\video\clip.avi"
#pragma once

#include "QVFileDialogDefs.h"
#include "QVForderImportWnd.h"
#include "QVPsdOptionWnd.h"

#include <QVButton.h>
#include <QVComboBox.h>
#include <QVComboBoxEx.h>
#include <QVEdit.h>
#include <QVListControls.h>
#include <QVStatic.h>

#include <afxdlgs.h>
#include <afxtempl.h>

#include <memory>
#include <vector>

namespace _qv_commonwnd {

class CQVWndEx;
class CToolBarEx;
class CQVComboBoxSt;
class CQVListView;

// The system's hook-style file dialog in skinned form, with a panel for Photoshop layers, an optional button
// that imports a whole folder and an optional window of the host docked into it.
//
// Order of calls: construct; SetAdvanceWnd, SetPreviewMode, EnableLayerInfo(LAYERINFO_ALLOWPANEL),
// EnableCompileImportType as wanted; DoModal; on IDOK GetSelTpye, then for eSelFile the paths and layer choices, for
// eSelForder GetSelForderPath and GetSelFileFormat. What the getters answer before DoModal has returned IDOK once is of
// no use.
//
// Names of a save dialog: unless raw names were asked for, the path gets the extension of the chosen filter
// when it lacks one, and is in lower case. An open dialog answers names as the user chose them. With
// OFN_OVERWRITEPROMPT the system asks about the name with that extension, unless the host has given a default
// extension of its own. A name with another extension ("clip.mov" for "*.avi") is asked about as it was typed.
//
// A dialog without lpstrInitialDir and without a path in lpstrFile starts in the remembered folder
// ("pathset"/"filepath").
class QVCOMMONWND_API CQVFileDialog : public CFileDialog {
    DECLARE_DYNAMIC(CQVFileDialog)

  public:
    // bOpenFileDialog: nonzero to open, 0 to save.
    // lpszDefExt: extension without dot that the system appends to a name without one; null for none.
    // lpszFileName: the name to start with; null for none. A multi-select dialog starts with none.
    // dwFlags: OFN_* flags. OFN_ENABLESIZING is taken out, OFN_HIDEREADONLY is added. With
    //   OFN_ALLOWMULTISELECT the object keeps a name buffer of 260000 characters (m_ofn.lpstrFile) and runs
    //   with it, whatever the host sets in m_ofn.lpstrFile (the name to start with is taken from it) and
    //   m_ofn.nMaxFile.
    // lpszFilter: "description|pattern|description|pattern|", a pattern being "*.avi;*.wmv"; null or empty
    //   for none. A last pair without its closing bar is shown, but adds no extension to saved names.
    // pParentWnd: owner, borrowed; null for none.
    // dwSize: size of m_ofn to state to the system; 0 for the full one.
    // bVistaStyle: accepted and ignored.
    // bRawNames: nonzero leaves the names of a save dialog as the system answers them.
    // dwOption: QVFileDialogOption bits of an open dialog; ignored for a save dialog.
    CQVFileDialog(int bOpenFileDialog, const wchar_t* lpszDefExt, const wchar_t* lpszFileName,
                  unsigned long dwFlags, const wchar_t* lpszFilter, CWnd* pParentWnd, unsigned long dwSize,
                  int bVistaStyle, int bRawNames, unsigned long dwOption);
    ~CQVFileDialog() override;

    // Repairs the remembered folder ("pathset"/"filepath": a folder that is gone becomes "C:\"), then runs
    // the dialog. IDOK or IDCANCEL; IDCANCEL also when the system refuses (CommDlgExtendedError tells why).
    INT_PTR DoModal() override;

    // 0 accepts the name the user confirmed. Answers 1 (refuse once) only after m_bNameOK was cleared by a
    // derived class.
    BOOL OnFileNameOK() override;

    // Kept for the host; changes nothing in the dialog.
    void SetPreviewMode(int nMode);
    // A window of the host to dock into the dialog, before DoModal; null for none. Borrowed: while the dialog
    // runs it is a child of the dialog's frame, placed, sized and shown by the dialog, and told of what is
    // selected (WM_QV_FILESELCHANGE). Afterwards it goes back, hidden, to the parent, place and size it had.
    void SetAdvanceWnd(CWnd* pWnd);

    // The path; for several files the first. GetSaveFilePath is the same.
    CString GetPathName();
    CString GetSaveFilePath();
    // Iterates all paths, beginning with GetStartPosition() of the base; `pos` becomes null behind the last.
    CString GetNextPathName(POSITION& pos);
    // Name with extension, extension without dot, name without extension. A save dialog with a chosen filter
    // answers the filter's first extension in upper case ("*.avi;*.wmv": "AVI") and the name with it.
    CString GetFileName();
    CString GetFileExt();
    CString GetFileTitle();

    // What GetPathName does to a save dialog's path: lower case, and the chosen filter's first extension
    // appended unless the path's own one stands anywhere in the filter's pattern. Empty stays empty; any
    // length.
    CString CheckPathName(CString strPath);

    eFileSelType GetSelTpye();
    CString GetSelForderPath();                       // the chosen folder; empty when files were chosen
    CString GetSelFileFormat();                       // text of the file type when a folder was chosen
    BOOL IsPreviewFile(const CString& strPath) const; // by extension: pictures, films and Photoshop documents

    // The choices of the Photoshop panel: see CQVPsdOptionWnd.
    void EnableCompileImportType(BOOL bEnable);
    BOOL IsCompileImportType();
    void GetImportLayerName(CStringArray& arr);
    void GetImportLayerInfo(std::vector<int>& v);
    // LAYERINFO_ALLOWPANEL: the panel may appear for ".psd" files. Any other value goes to the panel's
    // EnableLayerInfo.
    void EnableLayerInfo(int n);

    // A folder is to be imported: ends the dialog with IDOK and answers 0. Answers 1, and nothing happens,
    // while no folder is selected.
    afx_msg LRESULT OnMsgImportForder(WPARAM wParam, LPARAM lParam);

  protected:
    // The files of a multi-selection as the name box shows it (`"a.avi" "b.avi"`), with the shown folder
    // before each, appended to `arr`. A text without quotes is one file and is added as it is.
    void SpliteFiles(CString str, CArray<CString, const CString&>& arr);
    void TestTempFilePath();
    BOOL IsShowPsdOption(const CString& strPath);
    // Shows or hides the Photoshop panel below the dialog, which grows or shrinks by the panel's height. Nothing
    // happens when it is shown or hidden already, or not allowed.
    void ShowPsdOptionWnd(BOOL bShow);

    // The system's dialog is there: takes its frame and controls over and lays them out.
    BOOL OnInitDialog() override;
    // For derived classes; does nothing.
    void InitCtrlAttribute();
    // Moves the system's controls below the painted caption.
    void MoveItems();
    // Answers CDN_INITDONE, CDN_SELCHANGE, CDN_FOLDERCHANGE and CDN_TYPECHANGE itself: OnInitDone,
    // OnFileNameChange, OnFolderChange and OnTypeChange of the base are not called. Only a folder change that
    // brings no new list goes to the base, too, and all of them on systems before version 6.
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    DECLARE_MESSAGE_MAP()

    // Windows of the system dialog that are taken over while it runs.
    CQVWndEx* m_pWndEx;            // its frame
    CToolBarEx* m_pToolBar;        // the places bar
    CQVComboBoxSt* m_pLookInCombo; // the look-in combo
    CQVListView* m_pListView;      // the shell's list
    _qv_commonctrl::CQVHeaderCtrl m_header;
    CWnd* m_pShellViewHolder; // the list's placeholder; borrowed
    CWnd* m_pSkinnedList;     // the list that is skinned at present; borrowed
    _qv_commonctrl::CQVButton m_btnOK;
    _qv_commonctrl::CQVButton m_btnCancel;
    _qv_commonctrl::CQVStatic m_stcFileName;
    _qv_commonctrl::CQVStatic m_stcFileType;
    _qv_commonctrl::CQVStatic m_stcLookIn;
    _qv_commonctrl::CQVComboBox m_cmbFileType;
    _qv_commonctrl::CQVComboBoxEx m_cmbFileName;
    _qv_commonctrl::CQVEdit m_edit; // attached to nothing

    CQVPsdOptionWnd m_wndPsdOption;
    CQVForderImportWnd m_wndForderImport;
    DWORD m_dwPsdState;  // PsdState bits
    CWnd* m_pAdvanceWnd; // the host's docked window; borrowed
    CWnd* m_pReserved;   // null
    CSize m_szAdvance;   // size of the docked window in pixels; (0, 0) for none
    int m_bPreviewMode;
    int m_bRawNames;
    CStringArray m_arrFilterExt; // [i]: pattern of filter i + 1 (m_ofn.nFilterIndex)
    CString m_strFilter;         // what the filter's parser left over
    int m_bNameOK;               // 0: OnFileNameOK refuses once
    DWORD m_dwOption;            // QVFileDialogOption bits
    eFileSelType m_eSelType;
    CString m_strSelPath;   // the selected folder; empty for files
    CString m_strSelFormat; // file type's text at the import of a folder

    enum PsdState : DWORD {
        PSDSTATE_ALLOWED = 0x2, // the host allowed the panel
        PSDSTATE_SHOWN = 0x4,
    };

  private:
    class CRun;
    std::unique_ptr<CRun> m_pRun;
};

} // namespace _qv_commonwnd
