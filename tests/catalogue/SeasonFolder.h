// A folder of hand-made games, scanned into a catalogue: for tests of what a season makes of them.
#pragma once

#include "season/SeasonStatistics.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <algorithm>
#include <string>

namespace hooptab {

class SeasonFolder {
 public:
  // A finished game between PAN-A and OLY-A with the rosters of textOfGame(). Details given here stand first,
  // so they win over its own.
  void addGame(const std::string& name, const std::string& date, const std::string& events,
               const std::string& details = {}) {
    const std::string header = "[DETAILS]\n";
    add(name, header + details + "DATE=" + date + "\nTERMINE=1\nEQUIPE0CAT=A\nEQUIPE1CAT=A\n" +
                  textOfGame("[PERIODE1]\n" + events).substr(header.size()));
  }
  void add(const std::string& name, const std::string& text) { (void)m_folder.write(name, text); }

  const GameCatalogue& scan(unsigned threads = 2, bool withSubfolders = false) {
    m_outcome = m_catalogue.scan({m_folder.path(), withSubfolders, threads});
    return m_catalogue;
  }
  ScanOutcome outcome() const { return m_outcome; }
  SeasonStatistics statistics(const GameCriteria& criteria = {}, const SeasonStatistics::Shown& shown = {}) {
    scan();
    return {m_catalogue, m_catalogue.select(criteria), shown};
  }
  const GameCatalogue& catalogue() const { return m_catalogue; }
  const TemporaryFolder& folder() const { return m_folder; }

 private:
  TemporaryFolder m_folder;
  FileSystem m_files;
  GameCatalogue m_catalogue{m_files};
  ScanOutcome m_outcome = ScanOutcome::Cancelled;
};

// The row of a name, or null.
inline const SeasonRow* rowOf(std::span<const SeasonRow> rows, const std::string& name) {
  const auto found = std::ranges::find(rows, name, &SeasonRow::name);
  return found == rows.end() ? nullptr : &*found;
}

} // namespace hooptab
