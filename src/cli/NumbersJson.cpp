#include "cli/NumbersJson.h"

namespace hooptab {

void writeNumbers(JsonWriter& json, const BoxNumbers& numbers) {
  constexpr Counter kShots[] = {Counter::FGM, Counter::FGA, Counter::F3M, Counter::F3A, Counter::FTM,
                                Counter::FTA, Counter::LLM, Counter::LLA, Counter::LRM, Counter::LRA,
                                Counter::PBM, Counter::PBA, Counter::DKM, Counter::DKA};
  constexpr Counter kActions[] = {Counter::Ast, Counter::BS, Counter::ST, Counter::TO, Counter::OR,
                                  Counter::DR,  Counter::S1, Counter::S2, Counter::PF, Counter::TF};
  json.member("seconds", numbers.seconds);
  for (const Counter counter : kShots)
    json.member(counterName(counter), numbers.counters[counter]);
  json.member("M", numbers.made());
  json.member("A", numbers.attempted());
  json.member("PTS", numbers.points());
  for (const Counter counter : kActions)
    json.member(counterName(counter), numbers.counters[counter]);
  json.member("rating", numbers.rating());
}

} // namespace hooptab
