// The meter frame, fed from a sound file and from a full face of generated channels.
#include "gallery/GalleryItem.h"
#include "windows/MeterPlayer.h"

using namespace _qv_commonctrl;

namespace {

// Closing only hides the window; it dies with its owner, the gallery.
CMeterPlayer& Player() {
    static CMeterPlayer player;
    return player;
}

void MetersOfSound(IGalleryContext& context) {
    SoundFile sound;
    if (!LoadSoundFile(context.SampleFolder() + L"\\tone.wav", sound)) {
        context.Report(L"CQVVUFrame", L"tone.wav?");
        return;
    }
    CString text;
    text.Format(L"%d channels, %d Hz", sound.channels, sound.samplesPerSecond);
    if (Player().Show(context.MainWnd(), QV_LoadSysString(L"IDS_GALLERY_METERS_WAV")))
        Player().Play(std::move(sound));
    context.Report(L"CQVVUFrame", text);
}

void MetersOfFullFace(IGalleryContext& context) {
    if (Player().Show(context.MainWnd(), QV_LoadSysString(L"IDS_GALLERY_METERS_FULL")))
        Player().PlayFullFace();
    context.Report(L"CQVVUFrame", L"4/95/8");
}

const GalleryRegistration sound({GalleryGroup::Meters, L"meters", L"IDS_GALLERY_METERS_WAV", MetersOfSound});
const GalleryRegistration full({GalleryGroup::Meters, L"meters-full", L"IDS_GALLERY_METERS_FULL",
                                MetersOfFullFace});

} // namespace
