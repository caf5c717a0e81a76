// The application object under a test's own main: what fails in one event is told, and the next one is
// handled.
#include "shell/Application.h"

#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace hooptab {
namespace {

TEST(ApplicationTest, AFailureInOneEventIsToldAndEndsNothing) {
  int argc = 0;
  Application application(argc, nullptr);
  QStringList told;
  application.setFailureHandler([&told](const QString& what) { told << what; });
  int handled = 0;
  QTimer::singleShot(0, &application, [] { throw std::runtime_error("no memory"); });
  QTimer::singleShot(10, &application, [&] {
    ++handled;
    throw std::bad_alloc();
  });
  QTimer::singleShot(20, &application, [&] {
    ++handled;
    QApplication::quit();
  });
  QApplication::exec();
  EXPECT_EQ(handled, 2);
  ASSERT_EQ(told.size(), 2);
  EXPECT_EQ(told[0], QStringLiteral("no memory"));
}

} // namespace
} // namespace hooptab
