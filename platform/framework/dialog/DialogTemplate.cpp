// Dialog templates: found in the chain of resource modules, and read as far as the framework needs.
#include "DialogTemplate.h"
#include "afx/Resources.h"

namespace {

// The parts of a template header that matter here, for both kinds of templates.
struct TemplateHeader {
    DWORD style;
    short x;
    short y;
};

TemplateHeader ReadHeader(LPCDLGTEMPLATE lpTemplate) {
    constexpr WORD kExtendedMark = 0xFFFF;
    const auto* const words = reinterpret_cast<const WORD*>(lpTemplate);
    if (words[1] != kExtendedMark)
        return {lpTemplate->style, lpTemplate->x, lpTemplate->y};
    // version, mark, help id, extended style (2 words each for the latter two), style, item count, x, y
    return {static_cast<DWORD>(words[6]) | (static_cast<DWORD>(words[7]) << 16), static_cast<short>(words[9]),
            static_cast<short>(words[10])};
}

} // namespace

DialogTemplate FindDialogTemplate(LPCWSTR lpszName) {
    const HINSTANCE module = AfxFindResourceHandle(lpszName, RT_DIALOG);
    const HRSRC resource = ::FindResourceW(module, lpszName, RT_DIALOG);
    const HGLOBAL memory = resource ? ::LoadResource(module, resource) : nullptr;
    return {memory ? static_cast<LPCDLGTEMPLATE>(::LockResource(memory)) : nullptr, module};
}

bool WantsCentre(LPCDLGTEMPLATE lpTemplate) {
    constexpr DWORD kPlacedStyles = DS_ABSALIGN | DS_CENTER | DS_CENTERMOUSE | WS_CHILD;
    const TemplateHeader header = ReadHeader(lpTemplate);
    return !(header.style & kPlacedStyles) && header.x == 0 && header.y == 0;
}
