// Makes the parts of the program, hands them down, and shows the main window. Started by itself with
// "--decode-page FILE PAGE", it decodes that page of a scanned form instead (manual/PageDecoder.h).
#include "appearance/Dialogs.h"
#include "appearance/Icons.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "live/TimeSource.h"
#include "manual/DecoderProcess.h"
#include "printing/Printers.h"
#include "shell/Application.h"
#include "shell/Arguments.h"
#include "shell/InstanceLock.h"
#include "shell/MDI.h"
#include "shell/ProgramFolder.h"
#include "shell/Rehearsal.h"
#include "shell/ReportRun.h"
#include "shell/SharedFiles.h"
#include "shell/WindowMemory.h"
#include "storage/Utf8.h"

#include <QTimer>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fontconfig/fontconfig.h>
#include <iostream>
#include <thread>
#include <unistd.h>

using namespace hooptab;

namespace {

constexpr int kWrongUse = 2;

// Answers what needs no window; nothing when the program is to start.
std::optional<int> answer(const Arguments& arguments) {
  if (!arguments.error.empty()) {
    std::cerr << "hooptab: " << printable(arguments.error) << '\n';
    return kWrongUse;
  }
  if (arguments.asksForHelp)
    std::cout << usage();
  else if (arguments.asksForVersion)
    std::cout << "hooptab " HOOPTAB_VERSION "\n";
  else
    return std::nullopt;
  return EXIT_SUCCESS;
}

// Fonts and painting need Qt, but no display.
int report(int argc, char** argv, const Arguments& arguments) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  const std::string executableFolder = fromQt(QCoreApplication::applicationDirPath());
  const ProgramFolder folder =
      findProgramFolder(ProgramFolderSources::ofEnvironment(arguments.folder, executableFolder));
  if (folder.problem != ProgramFolderProblem::None) {
    std::cerr << "hooptab: " << printable(message(folder)) << '\n';
    return EXIT_FAILURE;
  }
  return makeReport(*arguments.report, folder.path);
}

int run(Application& application, const Arguments& arguments, QtDialogs& dialogs) {
  const std::string executableFolder = fromQt(QCoreApplication::applicationDirPath());
  const ProgramFolder folder =
      findProgramFolder(ProgramFolderSources::ofEnvironment(arguments.folder, executableFolder));
  if (folder.problem != ProgramFolderProblem::None) {
    dialogs.warn(nullptr, QStringLiteral("HOOPTAB"), toQt(message(folder)));
    return EXIT_FAILURE;
  }

  FileSystem files;
  cinifile store(files);
  Texts texts;
  Settings settings(store, folder.path);
  settings.read();
  texts.setLanguage(settings.language);
  InstanceLock lock(toQt(folder.path));
  if (!lock.admits(texts, dialogs))
    return EXIT_FAILURE;

  const Settings::Preparation preparation = settings.prepare(texts);
  texts.setLanguage(settings.language);
  texts.showNumbers(settings.asksForTextNumbers());
  const SharedFiles shared(executableFolder);
  if (preparation == Settings::Preparation::FirstRun || preparation == Settings::Preparation::FirstRunKeptOld)
    shared.provide("guide.pdf", folder.path);
  WindowMemory memory(store, folder.path);
  if (arguments.colourScheme)
    memory.rememberColourScheme(*arguments.colourScheme);
  Theme::apply(application, memory.colourScheme().value_or(ColourScheme::Light));

  SystemTime machineTime;
  RehearsalTime rehearsalTime;
  std::optional<Rehearsal> rehearsal;
  if (arguments.isRehearsal)
    rehearsal.emplace(rehearsalTime, STDIN_FILENO, STDOUT_FILENO);
  TimeSource& time = arguments.isRehearsal ? static_cast<TimeSource&>(rehearsalTime) : machineTime;
  QtPrinters printers;
  MDI window({store, settings, texts, memory, dialogs, shared, time, printers});
  application.setFailureHandler([&window](const QString& what) { window.tellFailure(what); });
  window.show();
  // After the window is there: what is said now stands in front of it.
  QTimer::singleShot(0, &window, [&] {
    window.report(preparation);
    for (const std::string& game : arguments.games)
      window.openGame(toQt(game));
    if (arguments.leavesWhenReady) {
      QTimer::singleShot(0, &window, [&window] {
        std::puts("ready");
        std::fflush(stdout);
        window.close();
      });
    }
  });
  return QApplication::exec();
}

int start(int argc, char** argv) {
  std::error_code ignored;
  const Arguments arguments =
      parseArguments({argv + 1, argv + argc}, std::filesystem::current_path(ignored).string());
  if (const std::optional<int> status = answer(arguments))
    return *status;
  if (arguments.report)
    return report(argc, argv, arguments);

  // Finding the fonts takes as long as reaching the display: both at once make the start a good deal shorter.
  std::thread fonts([] { FcInit(); });
  Application application(argc, argv);
  fonts.join();
  QApplication::setApplicationName(QStringLiteral("hooptab"));
  QApplication::setApplicationVersion(QStringLiteral(HOOPTAB_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("hooptab"));
  QApplication::setWindowIcon(icon(QStringLiteral("hooptab")));
  QtDialogs dialogs;
  return run(application, arguments, dialogs);
}

} // namespace

int main(int argc, char** argv) {
  // A file that grows over its limit is a write that fails, and not the end.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    if (const std::optional<int> status = decodePageIfAsked(argc, argv))
      return *status;
    return start(argc, argv);
  } catch (const std::exception& failure) {
    std::cerr << "hooptab: something went wrong inside the program: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
