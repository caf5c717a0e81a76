// A lock that is a file: who made it holds it, and renews its time stamp as long as he lives. The text in it
// (process, program, computer, the computer's id, the id of its start; a line each) is that of QLockFile, so
// that older versions of this program read it; a number behind it tells locks apart. A lock whose process is
// gone on this computer is removed; of another computer's, nobody can tell but by watching whether it is
// renewed: their clocks differ.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace hooptab {

class LockFile {
 public:
  enum class Outcome { Held, HeldElsewhere, CannotBeMade };

  // What there is to see of a lock; one that is renewed, or another one, looks different.
  struct Sight {
    bool isThere = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t renewedNanoseconds = 0; // by the clock of whoever did it
    std::string text;
    friend bool operator==(const Sight&, const Sight&) = default;
  };
  struct Owner {
    bool isKnown = false; // false: the text is empty, or another's
    long process = 0;
    std::string program;
    std::string computer;
    std::int64_t renewedSeconds = 0; // since 1970
    bool isOfThisComputer = false;
  };

  static constexpr std::chrono::seconds kRenewal{10};
  // Nobody who lives is that late.
  static constexpr std::chrono::seconds kWatch{25};

  explicit LockFile(std::string path, std::chrono::milliseconds renewal = kRenewal);
  ~LockFile(); // gives it up
  LockFile(const LockFile&) = delete;
  LockFile& operator=(const LockFile&) = delete;

  const std::string& path() const { return m_path; }
  [[nodiscard]] Outcome acquire();
  // Of the one that was seen so: for a lock that was watched, and stood still. HeldElsewhere when it has
  // changed since.
  [[nodiscard]] Outcome takeOver(const Sight& watched);
  bool isHeld() const { return m_hold != nullptr; }
  // Whether it is still this one: another program may have believed it dead. One that was deleted is made
  // again. What cannot be looked at counts as held.
  [[nodiscard]] bool isStillOurs();

  [[nodiscard]] Sight look() const;
  [[nodiscard]] static Owner ownerOf(const Sight& sight);

 private:
  struct Hold;
  [[nodiscard]] Outcome make();
  [[nodiscard]] bool removeIfOwnerIsGone() const;
  void release();

  std::string m_path;
  std::chrono::milliseconds m_renewal;
  std::shared_ptr<Hold> m_hold; // shared with the thread that renews, which may hang on a dead share
};

} // namespace hooptab
