// The kinds of damage that a page can have, so that a reader's faults can be counted by them.
#pragma once

#include <bitset>

namespace hooptab {

enum class Damage {
  Halftone, // the form's printer
  TakenBack,
  Specks,
  Hairs,
  Smudges,
  CoffeeRing,
  Fold,
  DogEar,
  Turned, // from here on the scanner
  Stretched,
  BlackLid,
  Uneven,
  EdgeShadow,
  GlassLines,
  Light,
  Dark,
  Flat,
  Noise,
  Blur,
  Jpeg,
};
inline constexpr int kDamages = 20;
[[nodiscard]] const char* nameOf(Damage damage);

class Damages {
 public:
  void add(Damage damage) { m_present.set(static_cast<std::size_t>(damage)); }
  void add(Damage damage, bool isPresent) {
    if (isPresent)
      add(damage);
  }
  [[nodiscard]] bool has(Damage damage) const { return m_present.test(static_cast<std::size_t>(damage)); }

 private:
  std::bitset<kDamages> m_present;
};

} // namespace hooptab
