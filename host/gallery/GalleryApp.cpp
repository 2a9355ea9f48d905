// GalleryApp.cpp: the application object. It sets the library up, shows the gallery and takes the library down.
#include "GalleryWnd.h"

#include <objbase.h>
#include <shellapi.h>

using namespace _qv_commonctrl;

namespace {

class CGalleryApp : public CWinApp {
  public:
    BOOL InitInstance() override {
        INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_USEREX_CLASSES};
        InitCommonControlsEx(&controls);
        // For the codecs and the shell.
        const bool com = SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
        RunGallery(ReadOptions());
        if (com)
            ::CoUninitialize();
        return FALSE; // the modal loop is over: no second one
    }

    // The last message of the ended loop is no exit code.
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return 0;
    }

  private:
    void RunGallery(const GalleryOptions& options) {
        if (!options.language.IsEmpty())
            QV_SetLanguage(options.language);
        if (!options.skin.IsEmpty())
            QV_SetSkinPath(BesideBin(L"skin\\" + options.skin));
        _qv_commonwnd::QV_InitCommonWnd();
        {
            CGalleryWnd gallery(options);
            m_pMainWnd = &gallery;
            gallery.DoModal();
            m_pMainWnd = nullptr;
        }
        _qv_commonwnd::QV_ReleaseCommonWnd();
    }

    static GalleryOptions ReadOptions() {
        int count = 0;
        wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
        GalleryOptions options = words ? GalleryOptions::Parse(count, words) : GalleryOptions();
        ::LocalFree(words);
        return options;
    }

    // `name` below the folder that holds `bin`.
    static CString BesideBin(const CString& name) {
        wchar_t path[32768] = {};
        ::GetModuleFileNameW(nullptr, path, ARRAYSIZE(path));
        CString folder(path);
        for (int level = 0; level < 2; ++level)
            folder = folder.Left(folder.ReverseFind(L'\\'));
        return folder + L"\\" + name;
    }
};

CGalleryApp theApp;

} // namespace
