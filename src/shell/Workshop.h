// What the main window and its desks work with; made by main, which keeps it alive.
#pragma once

#include "game/OwnRating.h"

namespace hooptab {

class Dialogs;
class Printers;
class ProfileStore;
class Settings;
class SharedFiles;
class Texts;
class TimeSource;
class WindowMemory;

struct Workshop {
  ProfileStore& store;
  Settings& settings;
  Texts& texts;
  WindowMemory& memory;
  Dialogs& dialogs;
  const SharedFiles& files;
  TimeSource& time;
  Printers& printers;
  FormulaReader readFormula = {};
  std::string cacheFolder = {}; // of the user; empty: what is read is read anew each time
};

} // namespace hooptab
