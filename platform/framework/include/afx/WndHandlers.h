// The handlers of window messages, inside class CWnd: the file is a part of the class and has no #pragma
// once. Here each does the default processing; a derived class redefines the ones that its message map names
// and calls these for the rest. The macros are in WindowMessages.h. One handler a line.
// clang-format off

afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
afx_msg void OnDestroy() { Default(); }
afx_msg void OnNcDestroy();
afx_msg void OnClose() { Default(); }
afx_msg BOOL OnQueryEndSession() { return static_cast<BOOL>(Default()); }
afx_msg void OnEndSession(BOOL) { Default(); }
afx_msg void OnPaint() { Default(); }
afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT);
afx_msg void OnNcPaint() { Default(); }
afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { Default(); }
afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
afx_msg BOOL OnNcActivate(BOOL) { return static_cast<BOOL>(Default()); }
afx_msg void OnNcLButtonDown(UINT, CPoint) { Default(); }
afx_msg void OnNcLButtonUp(UINT, CPoint) { Default(); }
afx_msg void OnNcLButtonDblClk(UINT, CPoint) { Default(); }
afx_msg void OnNcRButtonDown(UINT, CPoint) { Default(); }
afx_msg void OnNcRButtonUp(UINT, CPoint) { Default(); }
afx_msg void OnNcMouseMove(UINT, CPoint) { Default(); }
afx_msg void OnNcMouseLeave() { Default(); }
afx_msg void OnSize(UINT, int, int) { Default(); }
afx_msg void OnSizing(UINT, LPRECT) { Default(); }
afx_msg void OnMove(int, int) { Default(); }
afx_msg void OnMoving(UINT, LPRECT) { Default(); }
afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
afx_msg void OnEnterSizeMove() { Default(); }
afx_msg void OnExitSizeMove() { Default(); }
afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
afx_msg void OnActivateApp(BOOL, DWORD) { Default(); }
afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
afx_msg void OnSetFocus(CWnd*) { Default(); }
afx_msg void OnKillFocus(CWnd*) { Default(); }
afx_msg void OnCaptureChanged(CWnd*) { Default(); }
afx_msg void OnCancelMode() { Default(); }
afx_msg void OnEnable(BOOL) { Default(); }
afx_msg void OnEnterIdle(UINT, CWnd*) { Default(); }
afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
afx_msg void OnDeadChar(UINT, UINT, UINT) { Default(); }
afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
afx_msg void OnSysChar(UINT, UINT, UINT) { Default(); }
afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
afx_msg void OnMButtonDblClk(UINT, CPoint) { Default(); }
afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
afx_msg void OnMouseHWheel(UINT, short, CPoint) { Default(); }
afx_msg void OnMouseLeave() { Default(); }
afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
afx_msg void OnHScroll(UINT, UINT, CScrollBar*);
afx_msg void OnVScroll(UINT, UINT, CScrollBar*);
afx_msg void OnTimer(UINT_PTR) { Default(); }
afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT);
afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT);
afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT);
afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT);
afx_msg int OnCharToItem(UINT, CListBox*, UINT);
afx_msg int OnVKeyToItem(UINT, CListBox*, UINT);
afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
afx_msg void OnParentNotify(UINT, LPARAM);
afx_msg void OnSettingChange(UINT, LPCTSTR) { Default(); }
afx_msg void OnSysColorChange() { Default(); }
afx_msg LRESULT OnThemeChanged() { return Default(); }
afx_msg void OnStyleChanged(int, LPSTYLESTRUCT) { Default(); }
afx_msg void OnStyleChanging(int, LPSTYLESTRUCT) { Default(); }
afx_msg void OnInitMenu(CMenu*) { Default(); }
afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL) { Default(); }
afx_msg void OnMenuSelect(UINT, UINT, HMENU) { Default(); }
afx_msg void OnDropFiles(HDROP) { Default(); }
afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*) { return static_cast<BOOL>(Default()); }
afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
afx_msg BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }
// clang-format on
