// What a value of a statistic is in a window's table.
#pragma once

#include "appearance/TableContent.h"
#include "game/Statistics.h"

namespace hooptab {

[[nodiscard]] constexpr TableKind tableKind(ValueKind kind) {
  switch (kind) {
  case ValueKind::Count: break;
  case ValueKind::Time: return TableKind::Time;
  case ValueKind::Percent: return TableKind::Percent;
  }
  return TableKind::Number;
}

} // namespace hooptab
