// GalleryWnd.h: the gallery's main window: a button for each window of the library and a list of what came back.
#pragma once

#include "GalleryItem.h"
#include "GalleryOptions.h"
#include "ResultList.h"
#include "ResultLog.h"

class CGalleryWnd : public _qv_commonctrl::CQVDialog, public IGalleryContext {
  public:
    explicit CGalleryWnd(const GalleryOptions& options);

    CWnd* MainWnd() override;
    CString SampleFolder() override;
    void Report(LPCWSTR name, const CString& value) override;

    BOOL OnInitDialog() override;

  protected:
    void OnOK() override; // Enter does not close the gallery

    afx_msg void OnItem(UINT id);
    afx_msg void OnLanguage();
    afx_msg void OnSkin();
    afx_msg LRESULT OnSavePicture(WPARAM window, LPARAM name);
    DECLARE_MESSAGE_MAP()

  private:
    void CreateItems();
    int GroupHeight(GalleryGroup group) const; // pixels, 0 without entries
    void CreateGroup(GalleryGroup group, CPoint corner);
    void CreateControl(const wchar_t* windowClass, DWORD style, const CRect& rect, UINT id);
    void FillLanguages();
    void LogButtons();
    void ShowTexts();
    void ShowSkins();
    void RunItem(const GalleryItem& item);

    GalleryOptions m_options;
    CResultLog m_log;
    CResultList m_results;
    bool m_bRunning = false; // an entry's window is open: no second one
};
