#include "storage/StorageError.h"

#include <cerrno>

namespace hooptab {

StorageError StorageError::ofCall(Call call, const std::string& path) {
  const int number = errno;
  return {call, number, path};
}

} // namespace hooptab
