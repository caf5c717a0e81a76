#include "simulator/PlayerTraits.h"

#include "simulator/Random.h"
#include "storage/Module1.h"

namespace hooptab {

namespace {

// By position: quality, weights (shooting ... fouling), shares (three, layup, dunk, paint), accuracy, free
// throws.
constexpr PlayerTraits kCenter{200, 85, 190, 55, 60, 150, 85, 130, 70, 220, 110, 450, 0, 650};
constexpr PlayerTraits kForward{200, 100, 125, 85, 90, 60, 85, 105, 300, 340, 45, 330, 0, 720};
constexpr PlayerTraits kGuard{200, 110, 60, 190, 125, 18, 120, 85, 440, 450, 10, 220, 0, 780};

} // namespace

PlayerTraits traitsOf(int teamId, const RosterPlayer& player) {
  PlayerTraits traits = player.position == 0 ? kCenter : player.position == 2 ? kGuard : kForward;
  Random random(static_cast<std::uint64_t>(teamId * 1000 + Module1::leadingNumber(player.jersey)));
  traits.quality = random.between(0, 400);
  for (int* const weight : {&traits.shooting, &traits.rebounding, &traits.passing, &traits.stealing,
                            &traits.blocking, &traits.losing, &traits.fouling, &traits.threeShare})
    *weight = *weight * random.between(60, 140) / 100;
  traits.shooting += traits.shooting * traits.quality / 600; // the better ones take more shots and hit more
  traits.accuracy = random.between(-45, 20) + traits.quality / 10;
  traits.freeThrow += random.between(-80, 100);
  return traits;
}

} // namespace hooptab
