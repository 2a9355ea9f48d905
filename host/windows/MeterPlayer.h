// MeterPlayer.h: a meter frame that plays levels: of a sound file, or of generated channels.
#pragma once

#include "media/SoundFile.h"

#include <QVCommonWnd.h>

class CMeterPlayer : public _qv_commonwnd::CQVVUFrame {
  public:
    // Creates the window when there is none, and shows it.
    BOOL Show(CWnd* owner, LPCWSTR title);
    // Peak of each channel in steps of 40 ms, once from start to end; then the meters fall to the foot.
    void Play(SoundFile sound);
    // The most inputs, tracks and outputs that a frame has; they move until the window is closed.
    void PlayFullFace();

  protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Start();
    void KeepOnScreen();
    void Step();
    void StepSound();
    void StepFullFace();

    SoundFile m_sound; // empty: the full face
    size_t m_position = 0;
    int m_tick = 0;
};
