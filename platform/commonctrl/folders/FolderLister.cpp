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

BOOL CALLBACK AddEntry(void* context, LPCWSTR name, BOOL isFolder) {
    auto* const asked = static_cast<Asked*>(context);
    if (!name || !*name || (!isFolder && asked->content == FolderContent::FoldersOnly))
        return TRUE;
    try {
        FolderEntry entry;
        entry.name = name;
        entry.kind = isFolder ? FolderKind::Path : FolderKind::File;
        entry.icon = isFolder ? FolderIcon::Folder : FolderIcon::File;
        return (*asked->sink)(std::move(entry));
    } catch (const std::exception&) { // the host's code on the way back knows no exceptions of ours
        asked->complete = false;
        return FALSE;
    }
}

FolderOutcome OutcomeOf(QVListerAnswer answer) {
    switch (answer) {
    case QVLISTER_LISTED:
        return FolderOutcome::Listed;
    case QVLISTER_DENIED:
        return FolderOutcome::Denied;
    case QVLISTER_GONE:
        return FolderOutcome::Gone;
    default:
        return FolderOutcome::NoAnswer;
    }
}

} // namespace

FolderResult AskFolderLister(const std::wstring& folder, FolderContent content, const FolderSink& sink) {
    const QVFolderLister lister = g_lister;
    Asked asked = {&sink, content};
    const QVListerAnswer answer = lister ? lister(folder.c_str(), &AddEntry, &asked) : QVLISTER_ASK_SYSTEM;
    if (answer == QVLISTER_ASK_SYSTEM)
        return {};
    return {asked.complete ? OutcomeOf(answer) : FolderOutcome::NoAnswer, true};
}

QVFolderLister QV_SetFolderLister(QVFolderLister lister) {
    return g_lister.exchange(lister);
}

} // namespace _qv_commonctrl
