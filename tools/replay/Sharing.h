// Shares the game that is replayed by the program's own window, and halts the replay now and then for whoever
// follows it: each word goes out as a line of standard output, and a line of standard input lets it go on.
// Knows no page.
#pragma once

#include "tools/replay/Hand.h"
#include "tools/replay/Replay.h"

namespace hooptab {

struct SharingChoice {
  std::string port; // empty: the game is not shared
  int halts = 0;    // while it is replayed
};

class Sharing {
 public:
  Sharing(const Table& table, SharingChoice choice) : m_table(table), m_choice(std::move(choice)) {}

  // "ready FILE" before it is switched on, "shared ADDRESS" behind.
  void begin();
  void halt(); // "halted"
  // "unshared" when it is switched off.
  void end();
  [[nodiscard]] const SharingChoice& choice() const { return m_choice; }

 private:
  static void tell(const std::string& word);
  void pressSwitch();
  void close();

  Table m_table;
  SharingChoice m_choice;
};

// Halts at parts of the same length.
class SharedReplay : public Replay {
 public:
  SharedReplay(const Game& original, const Table& table, Hand& hand, Sharing& sharing);

 protected:
  bool goesOn() override;

 private:
  Sharing& m_sharing;
  std::size_t m_part;
  std::size_t m_entered = 0;
};

} // namespace hooptab
