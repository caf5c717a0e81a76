// How well a reader did on pages whose truth is known, counted over all of them, by hand, pen and damage.
#pragma once

#include "forms/FormReader.h"
#include "tools/forms/ScannedSheet.h"

#include <cstdio>
#include <string>
#include <vector>

namespace hooptab {

struct PageScore {
  bool isFound = false; // with the identifier that is on it; else nothing below is counted
  int cells = 0;
  int ticked = 0;
  int missed = 0;       // ticked, read as empty
  int invented = 0;     // not ticked, read as ticked
  int wrongCertain = 0; // missed or invented and not marked as doubtful
  int doubtful = 0;
  [[nodiscard]] int wrong() const { return missed + invented; }
};

class FormScore {
 public:
  explicit FormScore(const FormLayout& layout) : m_layout(layout) {} // must outlive it

  void add(const ScannedSheet& sheet, const FormReading& reading);

  // Every form found, 99.9 % of its cells right, every wrong one among the doubtful, and those 1 % at most.
  [[nodiscard]] bool isGood() const;
  [[nodiscard]] std::string summary() const;
  // Tables by mark, pen and damage, the worst pages, and each wrong cell that the reader was sure of.
  void print(std::FILE* file) const;

 private:
  struct Page {
    int number = 0;
    Hand::Mark mark = Hand::Mark::Cross;
    Pen::Kind pen = Pen::Kind::BlackBallpoint;
    Damages damages;
    ScanProblem problem = ScanProblem::None;
    PageScore score;
  };
  struct Sum {
    int pages = 0;
    int found = 0;
    PageScore score;
    void add(const Page& page);
  };
  template <class Belongs>
  [[nodiscard]] Sum sum(Belongs belongs) const;
  [[nodiscard]] Sum sum() const;
  void remember(const ScannedSheet& sheet, std::size_t index, const ReadCell& cell);

  const FormLayout& m_layout;
  std::vector<Page> m_pages;
  std::vector<std::string> m_faults;
};

} // namespace hooptab
