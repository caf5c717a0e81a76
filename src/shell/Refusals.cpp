#include "shell/Refusals.h"

namespace hooptab {

int refusalText(GameFileProblem problem) {
  switch (problem) {
  case GameFileProblem::None: return 0;
  case GameFileProblem::Absent:
  case GameFileProblem::Unreadable: return 1519;
  case GameFileProblem::TooLarge: return 1560;
  case GameFileProblem::InvalidFormat: return 1059;
  case GameFileProblem::WriteFailed: return 1521;
  case GameFileProblem::UnknownEvent: return 1518;
  }
  return 0;
}

} // namespace hooptab
