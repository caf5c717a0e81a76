// Makes the parts of the program, hands them down, and shows the main window. Started by itself with
// "--decode-page FILE PAGE", it decodes that page of a scanned form instead (forms/PageDecoder.h).
#include "appearance/Dialogs.h"
#include "appearance/Icons.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "forms/DecoderProcess.h"
#include "formula/FormulaRating.h"
#include "printing/Printers.h"
#include "recording/TimeSource.h"
#include "resources/tables.h"
#include "shell/Application.h"
#include "shell/Arguments.h"
#include "shell/InstanceLock.h"
#include "shell/MDI.h"
#include "shell/ProgramFolder.h"
#include "shell/Rehearsal.h"
#include "shell/ReportRun.h"
#include "shell/SecondStart.h"
#include "shell/SharedFiles.h"
#include "shell/WindowMemory.h"
#include "storage/Utf8.h"

#include <QStandardPaths>
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

void complain(const std::string& sentence) {
  std::cerr << "hooptab: " << printable(sentence) << '\n';
}

// Answers what needs no window; nothing when the program is to start.
std::optional<int> answer(const Arguments& arguments, const Texts& texts) {
  if (arguments.wrong) {
    complain(inWords(arguments.wrong, texts));
    return kWrongUse;
  }
  if (arguments.asksForHelp)
    std::cout << (texts.language() == Language::French ? programUsage().french : programUsage().english);
  else if (arguments.asksForVersion)
    std::cout << "hooptab " HOOPTAB_VERSION "\n";
  else
    return std::nullopt;
  return EXIT_SUCCESS;
}

// Fonts and painting need Qt, but no display.
int report(int argc, char** argv, const Arguments& arguments, const ProgramFolder& folder,
           const Texts& texts) {
  if (folder.problem != ProgramFolderProblem::None) {
    complain(message(folder, texts));
    return kWrongUse;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  return makeReport(*arguments.report, folder.path);
}

// What stands in the way of a window, for the time in which Qt looks for a display: where it finds none, it
// would say so in several lines and abort.
std::string obstacle;

void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg)
    return;
  complain(obstacle);
  std::_Exit(kWrongUse);
}

int run(Application& application, const Arguments& arguments, QtDialogs& dialogs, const ProgramFolder& folder,
        const std::string& executableFolder) {
  FileSystem files;
  ProfileStore store(files);
  Texts texts;
  Settings settings(store, folder.path);
  settings.read();
  texts.setLanguage(arguments.language.value_or(settings.language));
  InstanceLock lock(toQt(folder.path));
  const bool isForUser = !arguments.isRehearsal && !arguments.leavesWhenReady;
  if (isForUser && lock.acquire() == InstanceLock::Outcome::IsRunning &&
      SecondStart::handOver(toQt(folder.path), arguments.games))
    return EXIT_SUCCESS;
  if (!lock.admits(texts, dialogs))
    return EXIT_FAILURE;
  SecondStart others(toQt(folder.path)); // at once: they wait for an answer

  const Settings::Preparation preparation = settings.prepare(texts);
  if (arguments.language && *arguments.language != settings.language)
    settings.saveLanguage(*arguments.language);
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
  MDI window({store, settings, texts, memory, dialogs, shared, time, printers, readFormula,
              fromQt(QStandardPaths::writableLocation(QStandardPaths::CacheLocation))});
  application.setFailureHandler([&window](const QString& what) { window.tellFailure(what); });
  QObject::connect(&others, &SecondStart::asked, &window, &MDI::openFromElsewhere);
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
  const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
  const Arguments arguments = parseArguments(words, std::filesystem::current_path(ignored).string());
  Texts texts; // of the command line, before any settings are read
  texts.setLanguage(languageOf(words, environmentLanguage()));
  if (const std::optional<int> status = answer(arguments, texts))
    return *status;
  const std::string executableFolder =
      std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
  const ProgramFolder folder =
      findProgramFolder(ProgramFolderSources::ofEnvironment(arguments.folder, executableFolder));
  if (arguments.report)
    return report(argc, argv, arguments, folder, texts);

  // Finding the fonts takes as long as reaching the display: both at once make the start a good deal shorter.
  std::thread fonts([] { FcInit(); });
  const bool hasFolder = folder.problem == ProgramFolderProblem::None;
  obstacle = hasFolder ? std::string(texts.text(Text::NoDisplay)) : message(folder, texts);
  const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
  Application application(argc, argv);
  qInstallMessageHandler(usual);
  fonts.join();
  QApplication::setApplicationName(QStringLiteral("hooptab"));
  QApplication::setApplicationVersion(QStringLiteral(HOOPTAB_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("hooptab"));
  QApplication::setWindowIcon(icon(QStringLiteral("hooptab")));
  QtDialogs dialogs;
  if (!hasFolder) {
    complain(obstacle);
    dialogs.warn(nullptr, QStringLiteral("HOOPTAB"), toQt(obstacle));
    return kWrongUse;
  }
  return run(application, arguments, dialogs, folder, executableFolder);
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
    Texts texts;
    texts.setLanguage(environmentLanguage());
    complain(texts.withPlaceholder(Text::WentWrong, failure.what()));
    return EXIT_FAILURE;
  }
}
