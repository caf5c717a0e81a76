// Whether somebody knows the pass phrase of what is not for everybody: as browsers ask for it and send it
// (HTTP Basic, under any name of a user). Who guesses has to wait, longer each time; when too many guess, all
// who have not been right before have to.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace hooptab {

// The phrase of a header "Authorization"; none where it is of another kind, or none at all.
[[nodiscard]] std::optional<std::string> phraseOf(std::string_view authorization);

class WebPass {
 public:
  using Time = std::chrono::steady_clock::time_point;

  // Wrong tries of one address that are taken within a minute, and addresses that are watched at a time.
  static constexpr int kTries = 5;
  static constexpr std::size_t kMostAddresses = 1'024;

  // An empty phrase is none: nobody knows it.
  explicit WebPass(std::string phrase) : m_phrase(std::move(phrase)) {}
  [[nodiscard]] bool isSet() const { return !m_phrase.empty(); }

  enum class Verdict {
    Right,
    Missing, // nothing was tried: a browser has to be asked for it first
    Wrong,
    TooOften, // nothing was looked at, right or wrong
  };
  [[nodiscard]] Verdict judge(std::string_view authorization, std::string_view address, Time now);
  // Until the address may try again; 0: at once.
  [[nodiscard]] std::chrono::seconds pauseOf(std::string_view address, Time now) const;

 private:
  struct Tries {
    int wrong = 0; // since `first`
    int pauses = 0;
    Time first;
    Time until; // of the pause
    Time last;
  };
  [[nodiscard]] bool isRight(std::string_view phrase) const;
  void noteWrong(std::string_view address, Time now);

  std::string m_phrase;
  std::map<std::string, Tries, std::less<>> m_tries; // of addresses that were wrong
  std::set<std::string, std::less<>> m_known;        // that were right
};

} // namespace hooptab
