#include "settings/StorageWords.h"

#include "storage/Placeholders.h"

#include <cerrno>

namespace hooptab {

namespace {

Text reasonOf(const StorageError& error) {
  switch (error.call) {
  case StorageError::Call::NotAFile: return Text::WhyNotAFile;
  case StorageError::Call::WriteProtected: return Text::WhyNotPermitted;
  case StorageError::Call::TooLarge: return Text::WhyTooLarge;
  case StorageError::Call::ChangedMeanwhile: return Text::WhyChangedMeanwhile;
  default: break;
  }
  switch (error.number) {
  case ENOSPC:
  case EDQUOT: return Text::WhyDiskFull;
  case EACCES:
  case EPERM: return Text::WhyNotPermitted;
  case EROFS: return Text::WhyReadOnly;
  case ENOENT:
  case ENODEV:
  case ENOTDIR: return Text::WhyPlaceGone;
  case EIO: return Text::WhyDiskFails;
  default: return Text::WhyOther;
  }
}

} // namespace

std::string storageWords(const StorageError& error, const Texts& texts) {
  if (error.call == StorageError::Call::None)
    return {};
  return withPlaceholders(texts.text(reasonOf(error)), error.path, std::to_string(error.number));
}

} // namespace hooptab
