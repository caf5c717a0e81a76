#include "tools/forms/Damage.h"

#include <cstddef>

namespace hooptab {

const char* nameOf(Damage damage) {
  constexpr const char* kNames[kDamages] = {"grey printed as dots",
                                            "marks taken back",
                                            "specks",
                                            "hairs",
                                            "smudges",
                                            "coffee ring",
                                            "fold",
                                            "dog-ear",
                                            "turned > 2.5 degrees",
                                            "stretched > 1 %",
                                            "black lid",
                                            "uneven light",
                                            "shadow of an edge",
                                            "lines of the glass",
                                            "light",
                                            "dark",
                                            "flat",
                                            "noise > 7",
                                            "blur > 1 pixel",
                                            "JPEG < 45"};
  return kNames[static_cast<std::size_t>(damage)];
}

} // namespace hooptab
