// What a window is tested with: a disk of its own with the settings on it, somebody who answers its dialogs,
// and ways to its widgets. Which window, and what it shows, is for each test.
#pragma once

#include "appearance/relabel.h"
#include "settings/Settings.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace hooptab {

template <class Disk = FileSystem>
class WindowRoom : public testing::Test {
 protected:
  static void showActive(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  template <class Widget = QWidget>
  static Widget& find(const QWidget& in, QAnyStringView name) {
    auto* found = in.findChild<Widget*>(name.toString());
    EXPECT_NE(found, nullptr) << fromQt(name.toString());
    return *found;
  }
  // Of labels, with a stroke between two of them.
  static std::string textOf(const QWidget& in, const char* first, auto... others) {
    return (fromQt(find<QLabel>(in, first).text()) + ... + ("|" + fromQt(find<QLabel>(in, others).text())));
  }
  QString text(Text which) const { return toQt(texts.text(which)); }

  TemporaryFolder folder;
  Disk disk;
  ProfileStore store{disk};
  Texts texts;
  Settings settings{store, folder.path()};
  ScriptedDialogs dialogs;
};

// With the window itself, which goes before what a test's own class holds for it.
template <class Window, class Disk = FileSystem>
class WindowTest : public WindowRoom<Disk> {
 protected:
  void TearDown() override { window.reset(); }
  template <class Widget = QWidget>
  Widget& find(QAnyStringView name) const {
    return WindowRoom<Disk>::template find<Widget>(*window, name);
  }
  void click(const char* name) const { QTest::mouseClick(&find<QPushButton>(name), Qt::LeftButton); }
  std::string shown(auto... labels) const { return this->textOf(*window, labels...); }

  std::unique_ptr<Window> window;
};

} // namespace hooptab
