// The paper input form as a printer gives it: the program's own pages, on A4 or Letter paper, with the faults
// that printers have.
#pragma once

#include "printing/ReportLayout.h"
#include "simulator/Random.h"
#include "tools/forms/PaperSheet.h"

#include <array>
#include <string>

namespace hooptab {

struct PrintedForm {
  PaperSheet paper;
  FormIdentifier identifier;
  std::array<std::string, FormLayout::kPlayers> jerseys; // printed as filled digits; empty where none is
  bool isHalftoned = false;                              // grey as a screen of black dots
};

// Any page of ours, as fine as the dots of a sheet of paper.
[[nodiscard]] GrayPicture printedPage(const ReportLayout& layout, std::size_t page);

// Blank or prepared for a made-up team, in either language, on either paper. Needs a QGuiApplication.
[[nodiscard]] PrintedForm printForm(Random& random);

} // namespace hooptab
