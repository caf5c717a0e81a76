#include "tools/replay/Person.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <cmath>
#include <thread>
#include <vector>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

// Nobody lets go in the moment he presses; and events of one moment do not always all arrive.
constexpr auto kTouch = 4ms;
// A key that is down again sooner passes for one held down.
constexpr auto kSameKeyAgain = 30ms;

} // namespace

Person::Person() : m_display(XOpenDisplay(nullptr)) {
  int ignored = 0;
  if (m_display == nullptr)
    throw ReplayFailure("no display");
  if (XTestQueryExtension(m_display, &ignored, &ignored, &ignored, &ignored) == False)
    throw ReplayFailure("the display takes no input from programs");
}

Person::~Person() {
  XCloseDisplay(m_display);
}

void Person::click(int x, int y, Button button) {
  const auto number = static_cast<unsigned>(button);
  XTestFakeMotionEvent(m_display, -1, x, y, CurrentTime);
  XTestFakeButtonEvent(m_display, number, True, CurrentTime);
  m_lastPress = std::chrono::steady_clock::now();
  hold(kTouch);
  XTestFakeButtonEvent(m_display, number, False, CurrentTime);
  XSync(m_display, False);
  ++m_effort.clicks;
  m_effort.travel += std::hypot(x - m_x, y - m_y);
  m_x = x;
  m_y = y;
}

void Person::clickAt(const Program::Place& place, Button button) {
  click(place.middleX(), place.middleY(), button);
}

void Person::hold(std::chrono::milliseconds duration) {
  XSync(m_display, False);
  std::this_thread::sleep_for(duration);
}

void Person::strike(unsigned long symbol, std::chrono::milliseconds duration) {
  const KeyCode code = XKeysymToKeycode(m_display, symbol);
  if (code == 0)
    throw ReplayFailure("the keyboard has no such key");
  if (code == m_lastKey)
    std::this_thread::sleep_until(m_lastRelease + kSameKeyAgain);
  const KeyCode shift = XKeysymToKeycode(m_display, XK_Shift_L);
  const bool isOfKeypad = symbol >= XK_KP_Space && symbol <= XK_KP_Equal; // which needs Num Lock instead
  const bool isShifted = !isOfKeypad && XkbKeycodeToKeysym(m_display, code, 0, 0) != symbol;
  if (isShifted)
    XTestFakeKeyEvent(m_display, shift, True, CurrentTime);
  XTestFakeKeyEvent(m_display, code, True, CurrentTime);
  m_lastPress = std::chrono::steady_clock::now();
  hold(duration);
  XTestFakeKeyEvent(m_display, code, False, CurrentTime);
  if (isShifted)
    XTestFakeKeyEvent(m_display, shift, False, CurrentTime);
  hold(kTouch);
  m_lastKey = code;
  m_lastRelease = std::chrono::steady_clock::now();
  ++m_effort.keys;
}

void Person::press(const std::string& key) {
  press(key, kTouch);
}

void Person::holdDown(const std::string& key, std::chrono::milliseconds duration) {
  press(key, duration);
}

void Person::press(const std::string& key, std::chrono::milliseconds duration) {
  std::vector<KeyCode> held;
  std::string_view rest = key;
  for (const auto& [name, symbol] : {std::pair("ctrl+", XK_Control_L), std::pair("shift+", XK_Shift_L)}) {
    if (!rest.starts_with(name))
      continue;
    rest.remove_prefix(std::string_view(name).size());
    held.push_back(XKeysymToKeycode(m_display, static_cast<KeySym>(symbol)));
    XTestFakeKeyEvent(m_display, held.back(), True, CurrentTime);
  }
  strike(XStringToKeysym(std::string(rest).c_str()), duration);
  for (const KeyCode code : held)
    XTestFakeKeyEvent(m_display, code, False, CurrentTime);
  XSync(m_display, False);
}

void Person::lockNumbers() {
  const unsigned numbers = XkbKeysymToModifiers(m_display, XK_Num_Lock);
  if (numbers == 0 || XkbLockModifiers(m_display, XkbUseCoreKbd, numbers, numbers) == False)
    throw ReplayFailure("the keyboard has no Num Lock");
  XSync(m_display, False);
}

// The symbols of these letters have the letters' own numbers.
void Person::type(std::string_view text) {
  for (const char letter : text)
    strike(static_cast<unsigned char>(letter), kTouch);
}

} // namespace hooptab
