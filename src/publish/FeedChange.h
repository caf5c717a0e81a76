// What is different between two states of a game's feed, as the message that takes a viewer from one to the
// other: docs/formats/feed.md describes it.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include <optional>

namespace hooptab {

using FeedJson = nlohmann::ordered_json;

// Without its id. Nothing where they say the same.
[[nodiscard]] std::optional<FeedJson> feedChange(const FeedJson& before, const FeedJson& after);

} // namespace hooptab
