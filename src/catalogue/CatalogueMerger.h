// Joins what the readers of a scan found into one catalogue, in an order that depends on the games alone: the
// teams, players and lines of all readers become the season's.
#pragma once

#include "catalogue/GameCatalogue.h"
#include "catalogue/NameTable.h"

#include <map>
#include <string>
#include <vector>

namespace hooptab {

class CatalogueMerger {
 public:
  CatalogueMerger(const std::vector<const NameTable::Lists*>& readers, std::size_t games);

  // The next game in order of date; `reader` is whose numbers it carries.
  void add(ListedGame game, std::size_t reader);
  // Fills in what is known only after the last game, and hands over all.
  [[nodiscard]] GameCatalogue::Content finish() &&;

 private:
  // The season's number of each of a reader's; kNobody while it was not met.
  struct Known {
    const NameTable::Lists* names;
    std::vector<SeasonId> teams, players, lines;
  };
  SeasonId team(Known& reader, SeasonId id);
  SeasonId player(Known& reader, SeasonId id);
  SeasonId line(Known& reader, SeasonId id);
  void noteCopies();
  void orderNames();
  void nameLines();

  std::vector<Known> m_readers;
  GameCatalogue::Content m_content;
  std::vector<std::vector<std::string>> m_lineJerseys;
  std::map<std::string, SeasonId> m_teamIds, m_playerIds, m_lineIds;
};

} // namespace hooptab
