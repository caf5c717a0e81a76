// Presses keys and buttons of the mouse on the display, as a person does, and counts them.
#pragma once

#include "tools/replay/Program.h"

#include <chrono>
#include <string>
#include <string_view>

struct _XDisplay;

namespace hooptab {

struct Effort {
  int clicks = 0; // a double click is two
  int keys = 0;
  double travel = 0; // of the pointer, in pixels
};

class Person {
 public:
  Person(); // on the display of the environment; a ReplayFailure without one
  ~Person();

  enum class Button { Left = 1, Right = 3 };
  void click(int x, int y, Button button = Button::Left);
  void clickAt(const Program::Place& place, Button button = Button::Left); // its middle
  // A key by its X name, with what is held meanwhile: "ctrl+shift+o", "space".
  void press(const std::string& key);
  // Held down so long, with what the display repeats meanwhile; one press.
  void holdDown(const std::string& key, std::chrono::milliseconds duration);
  void type(std::string_view text);
  void lockNumbers(); // so that the keypad types digits

  const Effort& effort() const { return m_effort; }
  std::chrono::steady_clock::time_point lastPress() const { return m_lastPress; } // of key or button

 private:
  void hold(std::chrono::milliseconds duration);
  void strike(unsigned long symbol, std::chrono::milliseconds duration);
  void press(const std::string& key, std::chrono::milliseconds duration);

  _XDisplay* m_display;
  Effort m_effort;
  int m_x = 0, m_y = 0;
  std::chrono::steady_clock::time_point m_lastPress;
  unsigned m_lastKey = 0;
  std::chrono::steady_clock::time_point m_lastRelease; // of that key
};

} // namespace hooptab
