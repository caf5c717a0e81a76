#include "shell/Refusals.h"

namespace hooptab {

Text refusalText(GameFileProblem problem) {
  switch (problem) {
  case GameFileProblem::None: return Text::None;
  case GameFileProblem::Absent:
  case GameFileProblem::Unreadable: return Text::FileCannotBeRead;
  case GameFileProblem::TooLarge: return Text::FileTooLarge;
  case GameFileProblem::InvalidFormat: return Text::NotAGame;
  case GameFileProblem::WriteFailed: return Text::NotSaved;
  case GameFileProblem::UnknownEvent: return Text::NotUnderstood;
  }
  return Text::None;
}

} // namespace hooptab
