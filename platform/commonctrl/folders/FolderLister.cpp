#include "FolderLister.h"

#include "QVFolderLister.h"

#include <atomic>
#include <exception>

namespace _qv_commonctrl {

namespace {

std::atomic<QVFolderLister> g_lister = nullptr;

struct Asked {
    const FolderSink* sink;
    FolderContent content;
    bool complete = true; // memory did not run out on the way
};

void CALLBACK AddEntry(void* context, LPCWSTR name, BOOL isFolder) {
    auto* const asked = static_cast<Asked*>(context);
    if (!name || !*name || (!isFolder && asked->content == FolderContent::FoldersOnly))
        return;
    try {
        FolderEntry entry;
        entry.name = name;
        entry.kind = isFolder ? FolderKind::Path : FolderKind::File;
        entry.icon = isFolder ? FolderIcon::Folder : FolderIcon::File;
        (*asked->sink)(std::move(entry));
    } catch (const std::exception&) { // the host's code on the way back knows no exceptions of ours
        asked->complete = false;
    }
}

} // namespace

bool AskFolderLister(const std::wstring& folder, FolderContent content, const FolderSink& sink,
                     bool& answered) {
    const QVFolderLister lister = g_lister;
    Asked asked = {&sink, content};
    const QVListerAnswer answer = lister ? lister(folder.c_str(), &AddEntry, &asked) : QVLISTER_ASK_SYSTEM;
    answered = answer != QVLISTER_ASK_SYSTEM;
    return answer == QVLISTER_LISTED && asked.complete;
}

QVFolderLister QV_SetFolderLister(QVFolderLister lister) {
    return g_lister.exchange(lister);
}

} // namespace _qv_commonctrl
