// A window that writes down what happens to it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/window.h"

namespace tarnix::testing {

using Log = std::vector<std::string>;

/// Several windows may share one log; each entry then begins with the window's name.
class RecordingWindow : public Window {
  public:
    RecordingWindow(std::string name, Log& log) : m_name(std::move(name)), m_log(log) {}

    void note(const std::string& what) { m_log.push_back(m_name.empty() ? what : m_name + " " + what); }

    void OnLButtonDown(unsigned flags, Point at) override { note("down" + text(flags, at)); }
    void OnLButtonUp(unsigned flags, Point at) override { note("up" + text(flags, at)); }
    void OnLButtonDblClk(unsigned flags, Point at) override { note("double" + text(flags, at)); }
    void OnMouseWheel(int delta, Point) override { note("wheel " + std::to_string(delta)); }
    void OnMouseLeave() override { note("leave"); }
    void OnActivate(bool active) override { note(active ? "active" : "inactive"); }
    bool OnKey(const KeyPress& key) override {
        static const char* const names[] = {"other", "Enter", "Escape", "Tab", "Space"};
        if (onKey) onKey(key);
        note(std::string(key.down ? "key " : "key up ") + names[static_cast<int>(key.key)]);
        return swallowsKeys;
    }
    LResult OnMessage(Message message, WParam w, LParam l) override {
        note("message " + std::to_string(message) + " " + std::to_string(w) + " " + std::to_string(l));
        return static_cast<LResult>(w) + l;
    }
    void OnEditChange(unsigned id) override { note("edit " + std::to_string(id)); }
    void OnTimer(unsigned id) override { note("timer " + std::to_string(id)); }
    void OnDestroy() override { note("destroy"); }

    void OnPaint(Canvas& canvas, const Rect& dirty) override {
        canvas.fill(dirty, rgb(10, 20, 30));
        ++paints;
    }
    int paints = 0;
    bool swallowsKeys = false;
    std::function<void(const KeyPress&)> onKey;

  protected:
    static std::string text(unsigned flags, Point at) {
        return " " + std::to_string(flags) + " " + std::to_string(at.x) + "," + std::to_string(at.y);
    }

  private:
    std::string m_name;
    Log& m_log;
};

} // namespace tarnix::testing
