// The program under rehearsal: started with its standard input and output as pipes, asked where its controls
// stand and what they show, and told the time. What is pressed comes from the Person.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <sys/types.h>
#include <vector>

namespace hooptab {

// The control of an array: "cmdJERSEY(2)".
inline std::string element(const std::string& array, int index) {
  return array + "(" + std::to_string(index) + ")";
}

// Why a replay cannot go on: what was expected of the program and did not come.
struct ReplayFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Program {
 public:
  explicit Program(const std::vector<std::string>& commandLine);
  ~Program(); // ends it if it runs still
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Paths as "Assist/cmdJERSEY(2)".
  struct Place {
    int x = 0, y = 0, width = 0, height = 0;
    bool isShown = false, isEnabled = false, isActive = false; // active: its window has the keys
    int middleX() const { return x + width / 2; }
    int middleY() const { return y + height / 2; }
    bool holds(int atX, int atY) const { return atX >= x && atX < x + width && atY >= y && atY < y + height; }
  };
  [[nodiscard]] Place where(const std::string& control);
  [[nodiscard]] std::string text(const std::string& control);
  // The digits that the question shows as typed; `form` is its name with a "/" behind.
  [[nodiscard]] std::string typedIn(const std::string& form);
  void setTime(std::int64_t seconds);

  bool isShown(const std::string& control) { return where(control).isShown; }
  void waitUntilShown(const std::string& control);
  void waitUntilActive(const std::string& control); // and shown
  void waitUntilGone(const std::string& control);
  [[nodiscard]] int waitForEnd(); // its exit status
  pid_t process() const { return m_process; }

 private:
  std::string ask(const std::string& line);

  pid_t m_process = -1;
  int m_toProgram = -1;
  int m_fromProgram = -1;
  std::string m_heard;
};

// Tries every millisecond or so until it holds; a ReplayFailure that names what was waited for after
// `seconds`.
template <typename Condition>
void waitUntil(const std::string& what, Condition holds, int seconds = 15);

} // namespace hooptab

#include <chrono>
#include <thread>

template <typename Condition>
void hooptab::waitUntil(const std::string& what, Condition holds, int seconds) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
  while (!holds()) {
    if (std::chrono::steady_clock::now() > end)
      throw ReplayFailure("waited in vain: " + what);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}
