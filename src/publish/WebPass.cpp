#include "publish/WebPass.h"

#include <algorithm>
#include <cstdint>

namespace hooptab {

namespace {

constexpr std::chrono::minutes kWindow{1};
constexpr std::chrono::seconds kFirstPause{60};
constexpr int kMostDoublings = 5;            // half an hour
constexpr std::chrono::hours kForgetting{1}; // without another wrong try

std::optional<std::uint32_t> sextet(char letter) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const std::size_t place = kLetters.find(letter);
  return place == std::string_view::npos ? std::nullopt : std::optional(static_cast<std::uint32_t>(place));
}

std::optional<std::string> fromBase64(std::string_view text) {
  for (int i = 0; i < 2 && text.ends_with('='); ++i)
    text.remove_suffix(1);
  std::string result;
  std::uint32_t bits = 0;
  int count = 0;
  for (const char letter : text) {
    const std::optional<std::uint32_t> value = sextet(letter);
    if (!value)
      return std::nullopt;
    bits = (bits << 6U | *value) & 0xFFFFU;
    count += 6;
    if (count >= 8) {
      count -= 8;
      result += static_cast<char>(bits >> static_cast<unsigned>(count) & 0xFFU);
    }
  }
  return result;
}

bool isScheme(std::string_view text) {
  constexpr std::string_view kScheme = "basic ";
  return text.size() > kScheme.size() &&
         std::equal(kScheme.begin(), kScheme.end(), text.begin(), [](char scheme, char letter) {
           return scheme == (letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter);
         });
}

} // namespace

std::optional<std::string> phraseOf(std::string_view authorization) {
  if (!isScheme(authorization))
    return std::nullopt;
  authorization.remove_prefix(authorization.find(' '));
  const std::size_t begin = authorization.find_first_not_of(' ');
  if (begin == std::string_view::npos)
    return std::nullopt;
  const std::optional<std::string> both = fromBase64(authorization.substr(begin));
  const std::size_t colon = both ? both->find(':') : std::string::npos;
  return colon == std::string::npos ? std::nullopt : std::optional(both->substr(colon + 1));
}

// Takes as long for a phrase that is nearly right as for any other of its length.
bool WebPass::isRight(std::string_view phrase) const {
  std::size_t difference = phrase.size() ^ m_phrase.size();
  for (std::size_t i = 0; i < phrase.size() && isSet(); ++i)
    difference |= static_cast<unsigned char>(phrase[i] ^ m_phrase[i % m_phrase.size()]);
  return isSet() && difference == 0;
}

std::chrono::seconds WebPass::pauseOf(std::string_view address, Time now) const {
  const auto found = m_tries.find(address);
  if (found != m_tries.end())
    return std::max(std::chrono::ceil<std::chrono::seconds>(found->second.until - now),
                    std::chrono::seconds(0));
  const bool isCrowded = m_tries.size() >= kMostAddresses && !m_known.contains(address);
  return isCrowded ? kFirstPause : std::chrono::seconds(0);
}

WebPass::Verdict WebPass::judge(std::string_view authorization, std::string_view address, Time now) {
  std::erase_if(m_tries, [&](const auto& entry) { return now - entry.second.last >= kForgetting; });
  if (pauseOf(address, now) > std::chrono::seconds(0))
    return Verdict::TooOften;
  const std::optional<std::string> phrase = phraseOf(authorization);
  if (!phrase)
    return Verdict::Missing;
  if (!isRight(*phrase)) {
    noteWrong(address, now);
    return Verdict::Wrong;
  }
  if (const auto found = m_tries.find(address); found != m_tries.end())
    m_tries.erase(found);
  if (m_known.size() < kMostAddresses)
    m_known.emplace(address);
  return Verdict::Right;
}

void WebPass::noteWrong(std::string_view address, Time now) {
  Tries& tries = m_tries[std::string(address)];
  if (now - tries.first >= kWindow || tries.wrong == 0) {
    tries.first = now;
    tries.wrong = 0;
  }
  tries.last = now;
  if (++tries.wrong < kTries)
    return;
  tries.wrong = 0;
  tries.until = now + kFirstPause * (1 << std::min(tries.pauses, kMostDoublings));
  ++tries.pauses;
}

} // namespace hooptab
