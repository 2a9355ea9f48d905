#include "FileFacts.h"

#include "ByteFile.h"
#include "FolderFiles.h"
#include "PictureFile.h"
#include "SoundHeader.h"

#include <QVCommonClass.h>
#include <QVDict.h>

#include <cstdint>
#include <cstring>

using _qv_commonctrl::QV_LoadSysString;

namespace {

constexpr size_t kDocumentHeaderBytes = 26;

bool ReadLayeredDocument(const CString& path, FileFacts& facts) {
    const std::vector<std::uint8_t> head = CByteFile(path).Bytes(kDocumentHeaderBytes, 0);
    CStringArray layers;
    if (head.size() < kDocumentHeaderBytes || memcmp(head.data(), "8BPS", 4) != 0 ||
        !_qv_commonclass::CQVVideoPlay::GetPsdLayerInfo(path, layers))
        return false;
    for (INT_PTR i = 0; i < layers.GetSize(); ++i)
        facts.layers.push_back(layers.GetAt(i));
    facts.kind = FileKind::LayeredDocument;
    facts.pixels = CSize(static_cast<int>(BigNumber(head, 18, 4)), static_cast<int>(BigNumber(head, 14, 4)));
    facts.bits = static_cast<int>(BigNumber(head, 22, 2));
    return true;
}

bool ReadSound(const CString& path, int columns, FileFacts& facts) {
    SoundHeader sound;
    if (!ReadSoundHeader(path, sound))
        return false;
    facts.kind = FileKind::Sound;
    facts.bits = sound.bitsPerSample;
    facts.channels = sound.channels;
    facts.samplesPerSecond = sound.samplesPerSecond;
    facts.milliseconds = sound.milliseconds;
    facts.outline = ReadSoundOutline(path, sound, columns);
    return true;
}

CString Say(const wchar_t* key, int first, int second = 0, int third = 0) {
    CString text;
    text.Format(QV_LoadSysString(key), first, second, third);
    return text;
}

} // namespace

FileFacts ReadFileFacts(const CString& path, CSize most, CPixelBitmap& thumbnail) {
    thumbnail.Clear();
    FileFacts facts;
    facts.name = path.Mid(path.ReverseFind(L'\\') + 1);
    WIN32_FILE_ATTRIBUTE_DATA data = {};
    if (path.IsEmpty() || !::GetFileAttributesExW(path, GetFileExInfoStandard, &data))
        return facts;
    if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
        facts.kind = FileKind::Folder;
        facts.bytes = static_cast<LONGLONG>(FilesOfFolder(path).size());
        return facts;
    }
    facts.bytes = static_cast<LONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    if (ReadLayeredDocument(path, facts) || ReadSound(path, static_cast<int>(most.cx), facts))
        return facts;
    const bool isPicture = LoadPictureFile(path, most, thumbnail, facts.pixels);
    facts.kind = isPicture ? FileKind::Picture : FileKind::Other;
    return facts;
}

CString FileFacts::Summary() const {
    CString text;
    switch (kind) {
    case FileKind::Missing:
        return L"missing";
    case FileKind::Folder:
        text.Format(L"folder %s: %d files", name.GetString(), static_cast<int>(bytes));
        break;
    case FileKind::Picture:
        text.Format(L"picture %s: %dx%d", name.GetString(), static_cast<int>(pixels.cx),
                    static_cast<int>(pixels.cy));
        break;
    case FileKind::LayeredDocument:
        text.Format(L"document %s: %dx%d, %d bits, %d layers", name.GetString(), static_cast<int>(pixels.cx),
                    static_cast<int>(pixels.cy), bits, static_cast<int>(layers.size()));
        break;
    case FileKind::Sound:
        text.Format(L"sound %s: %d ms, %d Hz, %d channels, %d bits", name.GetString(), milliseconds,
                    samplesPerSecond, channels, bits);
        break;
    case FileKind::Other:
        text.Format(L"file %s: %d bytes", name.GetString(), static_cast<int>(bytes));
        break;
    }
    return text;
}

std::vector<CString> FileFacts::Lines() const {
    constexpr int msPerSecond = 1000;
    constexpr int secondsPerMinute = 60;
    constexpr int bytesPerKb = 1024;
    std::vector<CString> lines;
    lines.push_back(kind == FileKind::Missing ? QV_LoadSysString(L"IDS_GALLERY_PREVIEW_MISSING") : name);
    switch (kind) {
    case FileKind::Missing:
        break;
    case FileKind::Folder:
        lines.push_back(Say(L"IDS_GALLERY_PREVIEW_FOLDER", static_cast<int>(bytes)));
        break;
    case FileKind::LayeredDocument:
    case FileKind::Picture:
        lines.push_back(
            Say(L"IDS_GALLERY_PREVIEW_PIXELS", static_cast<int>(pixels.cx), static_cast<int>(pixels.cy)));
        if (kind == FileKind::LayeredDocument)
            lines.push_back(Say(L"IDS_GALLERY_PREVIEW_LAYERS", static_cast<int>(layers.size()), bits));
        break;
    case FileKind::Sound:
        lines.push_back(Say(L"IDS_GALLERY_PREVIEW_LENGTH", milliseconds / msPerSecond / secondsPerMinute,
                            milliseconds / msPerSecond % secondsPerMinute, milliseconds % msPerSecond));
        lines.push_back(Say(L"IDS_GALLERY_PREVIEW_SOUND", samplesPerSecond, channels, bits));
        break;
    case FileKind::Other:
        lines.push_back(
            Say(L"IDS_GALLERY_PREVIEW_SIZE", static_cast<int>((bytes + bytesPerKb - 1) / bytesPerKb)));
        break;
    }
    return lines;
}
