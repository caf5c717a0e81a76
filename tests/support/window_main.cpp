// Runs window tests inside one QApplication; the platform comes from the environment (offscreen, unless one
// wants to look on). As the program itself, it is also the process that decodes a page of a scanned form.
#include "forms/DecoderProcess.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  if (const std::optional<int> status = hooptab::decodePageIfAsked(argc, argv))
    return *status;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
