// Why the disk did not give or take a file, in one sentence for the user, with the path. The few reasons that
// one meets beside a court have words of their own; any other has the system's.
#pragma once

#include "settings/Texts.h"
#include "storage/StorageError.h"

#include <string>

namespace hooptab {

// Empty where there is no error.
[[nodiscard]] std::string storageWords(const StorageError& error, const Texts& texts);

} // namespace hooptab
