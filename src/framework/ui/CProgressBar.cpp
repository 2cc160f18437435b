#include "framework/ui/CProgressBar.h"

#include "framework/config/CModuleConfiguration.h"
#include "host/base/AcString.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include <unistd.h>

namespace XimoGis::UI {

namespace {

const int kBarWidth = 30;

}  // namespace

CProgressBar* CProgressBar::Instance() {
    static CProgressBar instance;
    return &instance;
}

void CProgressBar::SaveState() {
    m_saved.push_back(m_state);
}

void CProgressBar::Show(int titleMessage, int minimum, int maximum) {
    Show(CModuleConfiguration::GetMsg(titleMessage), minimum, maximum);
}

void CProgressBar::Show(const std::wstring& title, int minimum, int maximum) {
    m_state = State{true, title, minimum, std::max(minimum, maximum), minimum};
    m_drawnPercent = -1;
    Draw();
}

void CProgressBar::Step(int count) {
    SetPosition(m_state.position + count);
}

void CProgressBar::SetPosition(int position) {
    m_state.position = std::clamp(position, m_state.minimum, m_state.maximum);
    if (m_state.visible && GetPercent() != m_drawnPercent) Draw();
}

void CProgressBar::Hide() {
    Clear();
    if (m_saved.empty()) {
        m_state = State{};
        return;
    }
    m_state = m_saved.back();
    m_saved.pop_back();
    if (m_state.visible) Draw();
}

int CProgressBar::GetPercent() const {
    const long long range = static_cast<long long>(m_state.maximum) - m_state.minimum;
    if (range <= 0) return 0;
    return static_cast<int>((static_cast<long long>(m_state.position) - m_state.minimum) * 100 / range);
}

void CProgressBar::Draw() {
    const int percent = GetPercent();
    const int filled = percent * kBarWidth / 100;
    char tail[16];
    std::snprintf(tail, sizeof tail, "] %3d%%", percent);
    std::string line = acutWcharToUtf8(m_state.title) + " [" + std::string(static_cast<std::size_t>(filled), '#') +
                       std::string(static_cast<std::size_t>(kBarWidth - filled), '.') + tail;
    // Widths count characters, not UTF-8 bytes: they are terminal columns.
    const std::size_t width = m_state.title.size() + 2 + static_cast<std::size_t>(kBarWidth) + std::strlen(tail);
    if (width < m_drawnWidth) line += std::string(m_drawnWidth - width, ' ');
    Emit("\r" + line);
    m_drawnPercent = percent;
    m_drawnWidth = std::max(width, m_drawnWidth);
}

void CProgressBar::Clear() {
    if (m_drawnPercent >= 0) Emit("\r" + std::string(m_drawnWidth, ' ') + "\r");
    m_drawnPercent = -1;
    m_drawnWidth = 0;
}

void CProgressBar::Emit(const std::string& text) {
    if (m_sink) {
        m_sink(text);
    } else if (::isatty(STDERR_FILENO)) {
        std::fputs(text.c_str(), stderr);
        std::fflush(stderr);
    }
}

}  // namespace XimoGis::UI
