#pragma once
// The progress bar of long operations, drawn as one line on stderr:
//   "\r<title> [#######.............]  35%"
// It is drawn only when stderr is a terminal, and redrawn only when the whole percentage changes,
// so stepping it in a tight loop costs next to nothing.
//
// An operation brackets its use with SaveState() ... Hide(): Hide() brings back the state saved
// last (an outer operation's bar shows again) or, with nothing saved, clears the line.

#include <functional>
#include <string>
#include <vector>

namespace XimoGis::UI {

class CProgressBar {
public:
    // Receives the text to draw (UTF-8, with its carriage returns).
    using Sink = std::function<void(const std::string&)>;

    static CProgressBar* Instance();

    void SaveState();
    // Shows the bar titled with message `titleMessage`, over the range [minimum, maximum], at minimum.
    void Show(int titleMessage, int minimum, int maximum);
    void Show(const std::wstring& title, int minimum, int maximum);
    // Advances by `count`, not past the maximum.
    void Step(int count = 1);
    void SetPosition(int position);
    void Hide();

    bool IsVisible() const { return m_state.visible; }
    const std::wstring& GetTitle() const { return m_state.title; }
    int GetPosition() const { return m_state.position; }
    // Whole percent of the range done, 0..100; 0 for an empty range.
    int GetPercent() const;

    // Replaces where the bar is drawn (tests); an empty sink restores stderr-when-a-terminal.
    void SetSink(Sink sink) { m_sink = std::move(sink); }

    CProgressBar(const CProgressBar&) = delete;
    CProgressBar& operator=(const CProgressBar&) = delete;

private:
    struct State {
        bool visible = false;
        std::wstring title;
        int minimum = 0;
        int maximum = 0;
        int position = 0;
    };

    CProgressBar() = default;
    void Draw();
    void Clear();
    void Emit(const std::string& text);

    State m_state;
    std::vector<State> m_saved;
    int m_drawnPercent = -1;  // what the line on screen shows; -1 when nothing is drawn
    std::size_t m_drawnWidth = 0;
    Sink m_sink;
};

}  // namespace XimoGis::UI
