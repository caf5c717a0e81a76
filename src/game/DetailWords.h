// The details of an event in words: "shooting, on 7 Ida Ivers, free throws: 2". Lays out nothing.
#pragma once

#include "game/EventWords.h"

#include <string>

namespace hooptab {

// With commas between; empty where nothing is known but that it happened. A value that is none of those of
// its key stands as it is written.
[[nodiscard]] std::string detailWords(const GameEvent& event, const EventWords& words, const Texts& texts);

} // namespace hooptab
