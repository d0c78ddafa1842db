#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// A screen reader as far as a player needs one: connects to the accessibility bus of the session, reads what
// a program shows there, hears of changes, presses and types through it. It knows nothing of pixels.
class ScreenReader {
public:
    // Announces itself on the session's bus (DBUS_SESSION_BUS_ADDRESS), as a screen reader does.
    ScreenReader();
    ~ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    // An object of the program, as it is read out.
    struct Object {
        std::string role, name;
        bool showing = false, focused = false, checked = false;
        double value = 0;
    };
    // Everything that `program` shows, in reading order; empty when it is not there.
    [[nodiscard]] std::vector<Object> Read(const std::string& program) const;

    // Does to the showing object `name` what a click does, sets its text, or gives it the keyboard. False
    // when there is no such object or it cannot.
    bool Press(const std::string& program, const std::string& name) const;
    bool SetText(const std::string& program, const std::string& name, const std::string& text) const;
    // Presses a key wherever the keyboard is. keysym: X's number of the key.
    static void Key(unsigned keysym);

    // What was heard since the last Forget: "focus NAME" and "says NAME" for what gets the keyboard and what
    // a notification says.
    [[nodiscard]] const std::deque<std::string>& Heard() const { return heard_; }
    void Forget() { heard_.clear(); }
    // Waits until `holds`, looking again whenever something was heard; false after 30 seconds.
    bool Await(const std::function<bool()>& holds) const;

private:
    struct Listener;
    std::unique_ptr<Listener> listener_;
    std::deque<std::string> heard_;
    unsigned events_ = 0;
};
