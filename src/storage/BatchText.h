// A profile file's text with a batch applied, as the store would write it.
#pragma once

#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"

#include <string_view>

namespace hooptab {

// The name of a section or a key: spaces around it do not belong to it.
[[nodiscard]] std::string_view withoutSpaces(std::string_view text);

[[nodiscard]] ProfileText withBatch(ProfileText text, const ProfileBatch& batch);

} // namespace hooptab
