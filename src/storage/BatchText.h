// A profile file's text with a batch applied, as cinifile would write it.
#pragma once

#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"

namespace hooptab {

[[nodiscard]] ProfileText withBatch(ProfileText text, const ProfileBatch& batch);

} // namespace hooptab
