#include "tools/forms/FormScore.h"

#include "game/EventKind.h"

#include <algorithm>
#include <array>

namespace hooptab {

namespace {

template <class... Values>
std::string formatted(const char* format, Values... values) {
  std::array<char, 256> buffer;
  std::snprintf(buffer.data(), buffer.size(), format, values...);
  return buffer.data();
}

std::string describe(const FormCell& cell) {
  switch (cell.kind) {
  case FormCell::Kind::JerseyDigit:
    return formatted("player %d, jersey place %d digit %d", cell.player + 1, cell.place, cell.number);
  case FormCell::Kind::Made:
  case FormCell::Kind::Missed:
  case FormCell::Kind::Count: break;
  }
  const char* const kind = cell.kind == FormCell::Kind::Made     ? "made "
                           : cell.kind == FormCell::Kind::Missed ? "missed "
                                                                 : "";
  return formatted("player %d, %s%s cell %d", cell.player + 1, kind,
                   std::string(counterName(cell.counter)).c_str(), cell.number + 1);
}

double percent(int part, int whole) {
  return whole == 0 ? 0 : 100.0 * part / whole;
}

} // namespace

void FormScore::Sum::add(const Page& page) {
  ++pages;
  if (!page.score.isFound)
    return;
  ++found;
  score.cells += page.score.cells;
  score.ticked += page.score.ticked;
  score.missed += page.score.missed;
  score.invented += page.score.invented;
  score.wrongCertain += page.score.wrongCertain;
  score.doubtful += page.score.doubtful;
}

template <class Belongs>
FormScore::Sum FormScore::sum(Belongs belongs) const {
  Sum result;
  for (const Page& page : m_pages) {
    if (belongs(page))
      result.add(page);
  }
  return result;
}

FormScore::Sum FormScore::sum() const {
  return sum([](const Page&) { return true; });
}

void FormScore::remember(const ScannedSheet& sheet, std::size_t index, const ReadCell& cell) {
  const char* const truth = sheet.cells[index] == CellTruth::Ticked  ? "ticked"
                            : sheet.cells[index] == CellTruth::Empty ? "empty"
                                                                     : "taken back";
  m_faults.push_back(formatted("page %d, cell %zu (%s): %s, read as %s, ink %.3f", sheet.number, index,
                               describe(m_layout.cells()[index]).c_str(), truth,
                               cell.isTicked ? "ticked" : "empty", cell.ink));
}

void FormScore::add(const ScannedSheet& sheet, const FormReading& reading) {
  Page page = {sheet.number, sheet.mark, sheet.pen, sheet.damages, reading.problem, {}};
  PageScore& score = page.score;
  score.isFound = reading.problem == ScanProblem::None && reading.identifier == sheet.identifier &&
                  reading.cells.size() == sheet.cells.size();
  for (std::size_t index = 0; score.isFound && index < sheet.cells.size(); ++index) {
    const bool isTicked = sheet.cells[index] == CellTruth::Ticked;
    const ReadCell& cell = reading.cells[index];
    ++score.cells;
    score.ticked += isTicked;
    score.missed += isTicked && !cell.isTicked;
    score.invented += !isTicked && cell.isTicked;
    score.doubtful += cell.isDoubtful;
    if (isTicked != cell.isTicked && !cell.isDoubtful) {
      ++score.wrongCertain;
      remember(sheet, index, cell);
    }
  }
  m_pages.push_back(page);
}

bool FormScore::isGood() const {
  const Sum all = sum();
  return all.pages > 0 && all.found == all.pages && all.score.wrong() * 1000 <= all.score.cells &&
         all.score.wrongCertain == 0 && all.score.doubtful * 100 <= all.score.cells;
}

std::string FormScore::summary() const {
  const Sum all = sum();
  return formatted(
      "%d of %d forms found; of %d cells (%d ticked) %d missed and %d invented = %.4f %% wrong, %d of "
      "them without a doubt; %d doubtful = %.3f %%",
      all.found, all.pages, all.score.cells, all.score.ticked, all.score.missed, all.score.invented,
      percent(all.score.wrong(), all.score.cells), all.score.wrongCertain, all.score.doubtful,
      percent(all.score.doubtful, all.score.cells));
}

void FormScore::print(std::FILE* file) const {
  std::fprintf(file, "%-22s %5s %5s %7s %6s %6s %8s %8s %8s\n", "", "pages", "found", "ticked", "missed",
               "invent", "certain", "doubtful", "% doubt");
  const auto row = [file](const char* name, const Sum& part) {
    if (part.pages == 0)
      return;
    const PageScore& score = part.score;
    std::fprintf(file, "%-22s %5d %5d %7d %6d %6d %8d %8d %8.3f\n", name, part.pages, part.found,
                 score.ticked, score.missed, score.invented, score.wrongCertain, score.doubtful,
                 percent(score.doubtful, score.cells));
  };
  for (int mark = 0; mark < Hand::kMarks; ++mark) {
    const auto which = static_cast<Hand::Mark>(mark);
    row(Hand::name(which), sum([which](const Page& page) { return page.mark == which; }));
  }
  for (int kind = 0; kind < Pen::kKinds; ++kind) {
    const auto which = static_cast<Pen::Kind>(kind);
    row(Pen::name(which), sum([which](const Page& page) { return page.pen == which; }));
  }
  for (int damage = 0; damage < kDamages; ++damage) {
    const auto which = static_cast<Damage>(damage);
    row(nameOf(which), sum([which](const Page& page) { return page.damages.has(which); }));
  }
  row("all", sum());

  std::vector<Page> worst = m_pages;
  std::ranges::stable_sort(worst, std::ranges::greater(), [](const Page& page) {
    return std::array{page.score.isFound ? 0 : 1, page.score.wrongCertain, page.score.wrong(),
                      page.score.doubtful};
  });
  constexpr std::size_t kWorst = 12;
  std::fprintf(file, "\nworst pages\n");
  for (const Page& page : std::span(worst).first(std::min(kWorst, worst.size()))) {
    const PageScore& score = page.score;
    if (score.isFound && score.doubtful == 0 && score.wrong() == 0)
      break;
    std::fprintf(file, "page %3d, %s, %s", page.number, Hand::name(page.mark), Pen::name(page.pen));
    for (int damage = 0; damage < kDamages; ++damage) {
      if (page.damages.has(static_cast<Damage>(damage)))
        std::fprintf(file, ", %s", nameOf(static_cast<Damage>(damage)));
    }
    if (score.isFound)
      std::fprintf(file, ": %d missed, %d invented, %d certain, %d doubtful\n", score.missed, score.invented,
                   score.wrongCertain, score.doubtful);
    else
      std::fprintf(file, ": not found (text %d)\n", static_cast<int>(textOf(page.problem)));
  }
  if (!m_faults.empty())
    std::fprintf(file, "\nwrong without a doubt\n");
  constexpr std::size_t kFaults = 60;
  for (const std::string& fault : std::span(m_faults).first(std::min(kFaults, m_faults.size())))
    std::fprintf(file, "%s\n", fault.c_str());
  std::fprintf(file, "\n%s\n", summary().c_str());
}

} // namespace hooptab
