#pragma once
// The user at the keyboard and the mouse, without a screen: a queue of what the user does next,
// filled by the command line or a test before a command runs, and read by the input functions
// (acedGetPoint, acedDragGen...). Every prompt that an input function shows is recorded.
//
// An input function that finds the queue empty acts as if the user pressed Escape, so a command
// can neither block nor loop for ever waiting for input that will not come.

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "host/base/AcadTypes.h"
#include "host/geometry/AcGePoint3d.h"

class AcEdInputScript {
public:
    enum class Kind {
        kPick,    // a click at a point
        kMove,    // the cursor moves to a point without clicking
        kText,    // a line typed and ended with Enter: a keyword, a number, coordinates, a string
        kEnter,   // Enter on an empty line
        kEscape,  // Escape
    };
    struct Item {
        Kind kind = Kind::kEnter;
        AcGePoint3d point;
        std::wstring text;
    };

    void addPick(const AcGePoint3d& point) { m_items.push_back({Kind::kPick, point, {}}); }
    void addMove(const AcGePoint3d& point) { m_items.push_back({Kind::kMove, point, {}}); }
    // A typed keyword is text like any other: the input function decides what it means.
    void addText(const std::wstring& text) { m_items.push_back({Kind::kText, {}, text}); }
    void addEnter() { m_items.push_back({Kind::kEnter, {}, {}}); }
    void addEscape() { m_items.push_back({Kind::kEscape, {}, {}}); }

    // Adds the items of a script: one item per line, lines also separated by ';':
    //   pick X,Y[,Z] | move X,Y[,Z] | text WORDS... | enter | escape
    // Blank lines are skipped. On a bad line nothing is added and error tells which line and
    // what is wrong with it.
    bool addScript(const std::wstring& script, std::wstring* error = nullptr);

    // Takes the next item; false when the queue is empty.
    bool next(Item& item);
    std::size_t pendingCount() const { return m_items.size(); }
    bool isEmpty() const { return m_items.empty(); }

    // Prompts in the order they were shown; a prompt shown again after rejected input appears again.
    void showPrompt(const ACHAR* prompt);
    const std::vector<std::wstring>& prompts() const { return m_prompts; }

    // Forgets queued items and recorded prompts.
    void clear();

private:
    std::deque<Item> m_items;
    std::vector<std::wstring> m_prompts;
};

// The one input script of the process.
AcEdInputScript* acedInputScript();
