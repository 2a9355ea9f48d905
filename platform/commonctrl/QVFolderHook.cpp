#include "QVFolderHook.h"

#include "QVDirCtrl.h"

#include <atomic>

namespace _qv_commonctrl {

namespace {

std::atomic<QVFolderLister> g_lister = nullptr;

struct Sink {
    std::vector<FolderEntry>* entries;
    FolderContent content;
};

void CALLBACK AddEntry(void* context, LPCWSTR name, BOOL isFolder) {
    const auto* sink = static_cast<Sink*>(context);
    if (!name || !*name || (!isFolder && sink->content == FolderContent::FoldersOnly))
        return;
    FolderEntry entry;
    entry.name = name;
    entry.kind = isFolder ? FolderKind::Path : FolderKind::File;
    entry.icon = isFolder ? FolderIcon::Folder : FolderIcon::File;
    sink->entries->push_back(std::move(entry));
}

} // namespace

bool AskFolderLister(const std::wstring& folder, FolderContent content, std::vector<FolderEntry>& entries,
                     bool& answered) {
    const QVFolderLister lister = g_lister;
    Sink sink = {&entries, content};
    const QVListerAnswer answer = lister ? lister(folder.c_str(), &AddEntry, &sink) : QVLISTER_ASK_SYSTEM;
    answered = answer != QVLISTER_ASK_SYSTEM;
    return answer == QVLISTER_LISTED;
}

QVFolderLister QV_SetFolderLister(QVFolderLister lister) {
    return g_lister.exchange(lister);
}

} // namespace _qv_commonctrl
