// Texts of string tables: how a module stores them, and where they are looked for.
#include "StringResource.h"
#include "afx/Resources.h"

namespace {

constexpr UINT kStringsPerBlock = 16; // string resources are stored in blocks of so many

LPCWSTR BlockName(UINT nID) {
    // Names of resources are numbers or texts: the platform tells them apart by their size.
    // cppcheck-suppress CastIntegerToAddressAtReturn
    return MAKEINTRESOURCEW(nID / kStringsPerBlock + 1);
}

// The counted string of a resource block, empty when it has none.
CString StringInBlock(HINSTANCE hInstance, HRSRC hResource, UINT nID) {
    HGLOBAL const loaded = hResource ? ::LoadResource(hInstance, hResource) : nullptr;
    const WORD* at = loaded ? static_cast<const WORD*>(::LockResource(loaded)) : nullptr;
    if (!at)
        return CString();
    const WORD* const end = at + ::SizeofResource(hInstance, hResource) / sizeof(WORD);
    for (UINT skip = nID % kStringsPerBlock; skip > 0 && at < end; --skip)
        at += 1 + *at;
    if (at >= end || *at > end - at - 1)
        return CString();
    return CString(reinterpret_cast<LPCWSTR>(at + 1), *at);
}

} // namespace

CString StringOfModule(HINSTANCE hInstance, UINT nID) {
    return StringInBlock(hInstance, ::FindResourceW(hInstance, BlockName(nID), RT_STRING), nID);
}

CString StringOfModule(HINSTANCE hInstance, UINT nID, WORD wLanguageID) {
    return StringInBlock(hInstance, ::FindResourceExW(hInstance, RT_STRING, BlockName(nID), wLanguageID),
                         nID);
}

CString StringOfChain(UINT nID) {
    constexpr int kFirstTry = 256; // units with terminator; what does not fit comes back cut to it
    CString found;
    for (int room = kFirstTry;; room *= 2) {
        const int length = AfxLoadString(nID, found.GetBuffer(room), static_cast<UINT>(room));
        found.ReleaseBuffer(length);
        if (length < room - 1)
            return found;
    }
}
