// Presses keys and buttons of the mouse on the display, as a person does, and counts them.
#pragma once

#include "Program.h"

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
  void type(std::string_view text);
  void lockNumbers(); // so that the keypad types digits

  const Effort& effort() const { return m_effort; }

 private:
  void hold();
  void strike(unsigned long symbol);

  _XDisplay* m_display;
  Effort m_effort;
  int m_x = 0, m_y = 0;
};

} // namespace hooptab
