// What a rehearsal answers, over pipes as the program has them.
#include "shell/Rehearsal.h"

#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <unistd.h>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

class RehearsalTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(::pipe(m_toProgram), 0);
    ASSERT_EQ(::pipe(m_fromProgram), 0);
    rehearsal.emplace(time, m_toProgram[0], m_fromProgram[1]);
  }
  void TearDown() override {
    rehearsal.reset();
    close();
    for (const int end : {m_toProgram[0], m_fromProgram[0], m_fromProgram[1]})
      ::close(end);
  }

  void say(const std::string& bytes) {
    ASSERT_EQ(::write(m_toProgram[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    QCoreApplication::processEvents();
  }
  std::string heard() {
    char bytes[1024];
    const ssize_t count = ::read(m_fromProgram[0], bytes, sizeof bytes);
    return {bytes, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
  }
  std::string ask(const std::string& line) {
    say(line + "\n");
    return heard();
  }
  void close() {
    if (m_toProgram[1] >= 0)
      ::close(m_toProgram[1]);
    m_toProgram[1] = -1;
  }

  RehearsalTime time;
  std::optional<Rehearsal> rehearsal;

 private:
  int m_toProgram[2] = {-1, -1};
  int m_fromProgram[2] = {-1, -1};
};

TEST_F(RehearsalTest, TimeGoesForwardOnly) {
  for (int times = 0; times < 2; ++times)
    EXPECT_EQ(ask("time 36000"), "ok\n");
  for (const char* wrong : {"35999", "", "-1", "1e9", "soon", "99999999999999999999"})
    EXPECT_EQ(ask(std::string("time ") + wrong), std::string("error: no later time: ") + wrong + "\n");
  EXPECT_EQ(time.seconds(), 36000);
}

TEST_F(RehearsalTest, TellsWhereControlsStandAndWhatTheyShow) {
  QWidget window;
  window.setWindowTitle(u"A window\nof two lines"_s);
  window.setObjectName(u"window"_s);
  const auto add = [](const char* name, QWidget* parent) {
    auto* button = new QPushButton(u"in "_s + parent->objectName(), parent);
    button->setObjectName(QLatin1String(name));
    button->setGeometry(3, 4, 50, 20);
    return button;
  };
  QWidget* groups[2];
  for (int i = 0; i < 2; ++i) {
    groups[i] = new QWidget(&window);
    groups[i]->setObjectName(u"group(%1)"_s.arg(i));
    groups[i]->setGeometry(10, 100 * i, 80, 90);
    add("cmd", groups[i]);
  }
  groups[0]->hide();
  add("cmdOFF", &window)->setEnabled(false);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto place = [&](int x, int y, const char* state) {
    const QPoint corner = window.mapToGlobal(QPoint(x, y));
    return u"%1 %2 50 20 %3 active\n"_s.arg(corner.x())
        .arg(corner.y())
        .arg(QLatin1String(state))
        .toStdString();
  };
  EXPECT_EQ(ask("where cmd"), place(13, 104, "shown enabled")) << "one that is shown goes first";
  EXPECT_EQ(ask("where window/group(0)/cmd"), place(13, 4, "hidden enabled"));
  EXPECT_EQ(ask("where window/cmd"), place(13, 104, "shown enabled"));
  EXPECT_EQ(ask("where cmdOFF"), place(3, 4, "shown disabled"));
  EXPECT_EQ(ask("where group(1)/cmdOFF"), "none\n");
  EXPECT_EQ(ask("text group(0)/cmd"), "in group(0)\n");
  EXPECT_EQ(ask("text window"), "A window of two lines\n");
}

TEST_F(RehearsalTest, TakesLinesAsTheyComeAndRefusesTheRest) {
  say("ti");
  say("me 5\r\nwhere nobo");
  EXPECT_EQ(heard(), "ok\n");
  EXPECT_EQ(ask("dy"), "none\n");
  EXPECT_EQ(ask("text nobody"), "error: no such control: nobody\n");
  EXPECT_EQ(ask(""), "error: unknown command: \n");
  EXPECT_EQ(ask("click cmd"), "error: unknown command: click\n");
  say(std::string(2000, 'x'));
  for (int turn = 0; turn < 3; ++turn)
    QCoreApplication::processEvents();
  EXPECT_NE(heard().find("too long"), std::string::npos);
  close(); // and the program goes on
  QCoreApplication::processEvents();
  EXPECT_EQ(time.seconds(), 5);
}

} // namespace
} // namespace hooptab
