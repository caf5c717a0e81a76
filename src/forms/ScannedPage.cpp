#include "forms/ScannedPage.h"

#include <cstring>

namespace hooptab {

std::string explained(const PageRefusal& refusal, const Texts& texts) {
  using Reason = PageRefusal::Reason;
  switch (refusal.reason) {
  case Reason::None:
  case Reason::Cancelled: return {};
  case Reason::CannotOpen: return std::string(texts.text(Text::CannotOpen));
  case Reason::NotAPicture:
    return std::string(texts.text(Text::NotAPicture)) + ". " + std::string(texts.text(Text::KindsRead));
  case Reason::Damaged: return std::string(texts.text(Text::PictureDamaged));
  case Reason::Locked: return std::string(texts.text(Text::PasswordAsked));
  case Reason::TooCoarse: return std::string(texts.text(Text::TooCoarse));
  case Reason::TooLarge: return std::string(texts.text(Text::PictureTooLarge));
  case Reason::TooManyPages: return texts.withPlaceholder(Text::TooManyPages, std::to_string(refusal.number));
  case Reason::BrokeOff: return std::string(texts.text(Text::BrokeOff));
  case Reason::TookTooLong: return texts.withPlaceholder(Text::TookTooLong, std::to_string(refusal.number));
  case Reason::CannotStart: return texts.withPlaceholder(Text::CannotStart, std::strerror(refusal.number));
  case Reason::NoMemory: return std::string(texts.text(Text::NoMemoryForPage));
  }
  return {};
}

} // namespace hooptab
