// A user's hands for window tests: real pointer and key events on the test's own display, and running the
// event loop until something is seen.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "platform/application.h"
#include "platform/window.h"

namespace tarnix::testing {

/// The test program's, made by the main function that comes with this driver.
Application& application();

/// Runs the event loop until the condition holds. False when it does not within the time.
bool runUntil(const std::function<bool()>& condition,
              std::chrono::milliseconds atMost = std::chrono::seconds{10});
/// Runs the event loop until keys go to the window. False when they do not in time.
bool hasKeyboard(const Window& window);
/// What stands in the field that keys go to.
std::string focusedText();
/// Runs the event loop until everything that was sent to the display so far has come back and is dealt with.
void settle();

// Places are in pixels at 100 %, as everywhere.
void movePointer(Point screen);
void pressButton(int button = 1);
void releaseButton(int button = 1);
/// Moves there, presses and releases.
void click(Point screen);
void doubleClick(Point screen);
/// One notch; away from the user when up.
void turnWheel(bool up);
/// A key by its X name ("Escape", "a", "ctrl+v").
void tapKey(const std::string& name);
void typeText(const std::string& text);

/// Another program, which has the keyboard focus as long as the answer lives.
std::shared_ptr<void> anotherProgram();

} // namespace tarnix::testing
