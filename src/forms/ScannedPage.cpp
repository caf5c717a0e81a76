#include "forms/ScannedPage.h"

#include <cstring>

namespace hooptab {

namespace {

constexpr int kNotAPicture = 1407;
constexpr int kTooCoarse = 1408;
constexpr int kTooLarge = 2305;
constexpr int kCannotOpen = 2400;
constexpr int kKindsRead = 2401;
constexpr int kDamaged = 2402;
constexpr int kTooManyPages = 2403;
constexpr int kBrokeOff = 2404;
constexpr int kTookTooLong = 2405;
constexpr int kCannotStart = 2406;
constexpr int kNoMemory = 2802;
constexpr int kLocked = 2804;

} // namespace

std::string explained(const PageRefusal& refusal, const Texts& texts) {
  using Reason = PageRefusal::Reason;
  switch (refusal.reason) {
  case Reason::None:
  case Reason::Cancelled: return {};
  case Reason::CannotOpen: return std::string(texts.text(kCannotOpen));
  case Reason::NotAPicture:
    return std::string(texts.text(kNotAPicture)) + ". " + std::string(texts.text(kKindsRead));
  case Reason::Damaged: return std::string(texts.text(kDamaged));
  case Reason::Locked: return std::string(texts.text(kLocked));
  case Reason::TooCoarse: return std::string(texts.text(kTooCoarse));
  case Reason::TooLarge: return std::string(texts.text(kTooLarge));
  case Reason::TooManyPages: return texts.withPlaceholder(kTooManyPages, std::to_string(refusal.number));
  case Reason::BrokeOff: return std::string(texts.text(kBrokeOff));
  case Reason::TookTooLong: return texts.withPlaceholder(kTookTooLong, std::to_string(refusal.number));
  case Reason::CannotStart: return texts.withPlaceholder(kCannotStart, std::strerror(refusal.number));
  case Reason::NoMemory: return std::string(texts.text(kNoMemory));
  }
  return {};
}

} // namespace hooptab
