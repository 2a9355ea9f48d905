#include "GallerySession.h"

#include "SampleFiles.h"

#include "Watchdog.h"

#include <cstdlib>
#include <sstream>

using namespace qvtest;

namespace gallery {

namespace {

constexpr Milliseconds kStartLimit{20000};
constexpr DWORD kExitLimitMs = 15000;

std::wstring quoted(const std::wstring& text) {
    return L"\"" + text + L"\"";
}

std::wstring pictureFolder() {
    const wchar_t* chosen = _wgetenv(L"QV_DEMO_PICTURES");
    return chosen && *chosen ? chosen : L"";
}

} // namespace

GallerySession::GallerySession(const Look& look) : m_look(look) {
    makeSamples();
    const std::wstring arguments =
        L"--lang " + look.language + L" --skin " + look.skin + L" --samples " + quoted(m_samples.path()) +
        (pictureFolder().empty() ? L"" : L" --pictures " + quoted(pictureFolder())) + L" --log " +
        quoted(m_logFolder.path(L"log.txt"));
    m_process = std::make_unique<ChildProcess>(QV_GALLERY_EXE, arguments);
    if (!m_process->started())
        m_user.fail("the gallery could not be started");
    m_main = m_user.waitWindow({.className = L"#32770", .process = m_process->id()}, kStartLimit);
    m_user.waitFor("the gallery's list of entries", [this] { return !values(L"button").empty(); });
}

GallerySession::~GallerySession() = default;

void GallerySession::makeSamples() {
    writePicture(m_samples.path(L"sunset.png"), 320, 180);
    writePicture(m_samples.path(L"harbour.png"), 180, 240);
    writeSound(m_samples.path(L"tone.wav"), 2, 48000, 1.0);
    m_samples.file(L"notes.txt", "one line\r\nand another\r\n");
    m_samples.folder(L"rushes");
    writePicture(m_samples.path(L"rushes\\take1.png"), 64, 36);
}

std::vector<GallerySession::Line> GallerySession::readLog() const {
    std::vector<Line> lines;
    std::istringstream text(readFile(m_logFolder.path(L"log.txt")));
    for (std::string line; std::getline(text, line);) {
        const size_t tab = line.find('\t');
        if (tab != std::string::npos)
            lines.push_back({toWide(line.substr(0, tab)), toWide(line.substr(tab + 1))});
    }
    return lines;
}

std::vector<std::wstring> GallerySession::values(const std::wstring& name) const {
    std::vector<std::wstring> found;
    const auto lines = readLog();
    for (size_t i = name == L"button" ? 0 : m_openedAt; i < lines.size(); ++i) {
        if (lines[i].name == name)
            found.push_back(lines[i].value);
    }
    return found;
}

void GallerySession::open(const std::wstring& item) {
    Watchdog::begin("entry " + toUtf8(item));
    int id = 0;
    for (const auto& button : values(L"button")) {
        const size_t space = button.find(L' ');
        if (button.substr(space + 1) == item)
            id = std::stoi(button.substr(0, space));
    }
    if (!id)
        m_user.fail("the gallery has no entry " + toUtf8(item));
    m_openedAt = readLog().size();
    waitReady();
    m_user.click(m_main, id);
    m_user.waitFor("the entry " + toUtf8(item) + " to start", [&] { return !values(L"open").empty(); });
}

// Input that arrives while windows come and go may be lost on the way: wait until the gallery is in front and idle.
void GallerySession::waitReady() {
    m_user.waitFor("the gallery to be in front", [this] {
        return ::GetForegroundWindow() == m_main && ::IsWindowEnabled(m_main) && ::IsWindowVisible(m_main);
    });
    m_user.send(m_main, WM_NULL);
    m_user.settle();
}

HWND GallerySession::waitDialog(HWND behind) {
    const HWND before = behind ? behind : m_main;
    HWND found = nullptr;
    m_user.waitFor("a window of the gallery", [&] {
        const auto windows = findWindows({.process = m_process->id()});
        found = !windows.empty() && windows.front() != before ? windows.front() : nullptr;
        return found && ::IsWindowEnabled(found);
    });
    m_user.settle();
    return found;
}

std::vector<std::wstring> GallerySession::waitClosed(const std::wstring& item) {
    m_user.waitFor("the entry " + toUtf8(item) + " to end", [&] { return !values(L"closed").empty(); });
    std::vector<std::wstring> results;
    const auto lines = readLog();
    for (size_t i = m_openedAt; i < lines.size(); ++i) {
        if (lines[i].name != L"open" && lines[i].name != L"closed")
            results.push_back(lines[i].name + L"=" + lines[i].value);
    }
    return results;
}

void GallerySession::picture(HWND window, const std::wstring& name) {
    const std::wstring folder = pictureFolder();
    if (folder.empty())
        return;
    m_user.settle();
    // Only the program itself can read its windows' pixels.
    const std::wstring file = name + L"-" + m_look.skin + L"-" + m_look.language;
    const ATOM atom = ::GlobalAddAtomW(file.c_str());
    const LRESULT saved = m_user.send(m_main, ::RegisterWindowMessageW(L"QVGallery.SavePicture"),
                                      reinterpret_cast<WPARAM>(window), atom);
    ::GlobalDeleteAtom(atom);
    if (!saved)
        m_user.fail("no picture could be written of " + toUtf8(file));
}

DWORD GallerySession::close() {
    ::PostMessageW(m_main, WM_SYSCOMMAND, SC_CLOSE, 0);
    if (!m_process->wait(kExitLimitMs))
        m_user.fail("the gallery did not end");
    return m_process->exitCode();
}

} // namespace gallery
