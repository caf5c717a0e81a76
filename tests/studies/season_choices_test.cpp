// What was chosen in a list must not be taken for a place in the list that comes after it.
#include <functional>

#include "SeasonWindow.h"

namespace hooptab {
namespace {

// A control and its values: each is chosen by a call.
struct Control {
  QString name;
  std::vector<std::function<void()>> values;
};

class SeasonChoicesTest : public SeasonWindow {
 protected:
  void SetUp() override {
    writeGames(games, 4, 7);
    makeWindow();
    read(games.path());
    generate();
    ASSERT_GT(rows("lvwFIRST"), 0);
  }
  // The page on which a widget stands.
  QWidget& pageWith(const char* name) const {
    auto& tabs = find<QTabWidget>("tabs");
    QWidget* widget = &find<QWidget>(name);
    while (tabs.indexOf(widget) < 0)
      widget = widget->parentWidget();
    return *widget;
  }
  void choosePerson() {
    emit table("lvwSTATjoueurs(0)").rowAsked(0);
    wait();
  }
  // Of a long list the ends and some between; of a short one all.
  static std::vector<int> someOf(int count) {
    constexpr int kMost = 24;
    std::vector<int> some;
    for (int i = 0; i < count; i += std::max(1, count / kMost * 4))
      some.push_back(i);
    if (count > 0 && some.back() != count - 1)
      some.push_back(count - 1);
    return some;
  }
  static std::vector<Control> controlsOf(QWidget& page) {
    std::vector<Control> controls;
    for (QComboBox* box : page.findChildren<QComboBox*>()) {
      Control& control = controls.emplace_back(Control{box->objectName(), {}});
      for (int i = 0; i < box->count(); ++i)
        control.values.emplace_back([box, i] { box->setCurrentIndex(i); });
    }
    for (QCheckBox* box : page.findChildren<QCheckBox*>())
      controls.push_back(
          {box->objectName(), {[box] { box->setChecked(true); }, [box] { box->setChecked(false); }}});
    Control views{QStringLiteral("view"), {}};
    for (QToolButton* button : page.findChildren<QToolButton*>()) {
      if (button->isCheckable())
        views.values.emplace_back([button] { button->click(); });
    }
    controls.push_back(views);
    for (SeasonTableView* view : page.findChildren<SeasonTableView*>()) {
      Control& rows = controls.emplace_back(Control{view->objectName() + u" row", {}});
      for (const int row : someOf(view->model()->rowCount()))
        rows.values.emplace_back([view, row] {
          if (row < view->model()->rowCount()) // a list has become shorter
            view->setCurrentIndex(view->model()->index(row, 0));
        });
      Control& sorts = controls.emplace_back(Control{view->objectName() + u" sort", {}});
      sorts.values.emplace_back([view] { view->clearSort(); });
      for (const int column : someOf(view->model()->columnCount()))
        sorts.values.emplace_back([view, column] { view->sortByColumn(column, Qt::DescendingOrder); });
    }
    return controls;
  }
  // Reads what the page shows; whatever is out of its list is seen by the sanitizer at the latest.
  static void look(const QWidget& page) {
    for (const SeasonTableView* view : page.findChildren<SeasonTableView*>()) {
      const int rows = view->model()->rowCount();
      ASSERT_LE(rows, 2000) << fromQt(view->objectName());
      ASSERT_LT(view->currentRow(), rows) << fromQt(view->objectName());
      for (const int row : {0, rows - 1}) {
        for (int column = 0; rows > 0 && column < view->model()->columnCount(); ++column)
          (void)view->model()->index(row, column).data();
      }
    }
  }
  // Each value of each control after each value of every other one, and what is done and seen after it.
  void walk(
      QWidget& page, const std::function<void()>& after = [] {}) {
    const std::vector<Control> controls = controlsOf(page);
    for (const Control& first : controls) {
      for (const Control& second : controls) {
        if (&first == &second)
          continue;
        SCOPED_TRACE(fromQt(second.name + u" after " + first.name));
        for (const auto& one : first.values) {
          for (const auto& other : second.values) {
            one();
            other();
            after();
            look(page);
            if (HasFatalFailure())
              return;
          }
        }
      }
    }
  }

  TemporaryFolder games;
};

TEST_F(SeasonChoicesTest, LeadersKeepTheirStatisticInEveryView) {
  QWidget& page = pageWith("lvwLEADERS");
  const SeasonTableView& first = table("lvwFIRST");
  const auto& title = find<QLabel>("lblSTATISTIC");
  walk(page, [&] {
    const int row = first.currentIndex().row();
    ASSERT_GE(row, 0);
    ASSERT_EQ(title.text(), cell("lvwFIRST", row, 0));
    const QString best = cell("lvwFIRST", row, 1);
    bool isLeader = best.isEmpty() && rows("lvwLEADERS") == 0;
    for (int i = 0; i < rows("lvwLEADERS"); ++i)
      isLeader = isLeader || cell("lvwLEADERS", i, 3) == best;
    ASSERT_TRUE(isLeader) << fromQt(title.text());
  });
  // Time, which the averages per minute do not have, is there again with the other views.
  table("lvwFIRST").clearSort();
  const auto show = [&](const char* view) {
    page.findChild<QToolButton*>(QLatin1String(view))->click();
    return title.text();
  };
  (void)show("cmdTOTALS");
  const int last = rows("lvwFIRST") - 1;
  for (const int row : {last, last / 2, 0}) {
    (void)show("cmdTOTALS");
    table("lvwFIRST").setCurrentIndex(first.model()->index(row, 0));
    const QString chosen = title.text();
    EXPECT_EQ(show("cmdPERMINUTE") == chosen, row != 0);
    EXPECT_EQ(show("cmdPERGAME"), chosen);
  }
}

TEST_F(SeasonChoicesTest, EveryPageTakesEveryChoiceAfterEveryOther) {
  choosePerson();
  for (const char* name : {"lvwSTATjoueurs(0)", "lvwSTATlignes(0)", "lvwRECORD", "picMARGINS"})
    walk(pageWith(name));
  walk(pageWith("lvwGAMES"), [this] { find<QPushButton>("cmdFILTER").click(); });
}

// Other statistics come under pages whose last entries are chosen.
TEST_F(SeasonChoicesTest, EveryPageTakesOtherStatistics) {
  const auto& tabs = find<QTabWidget>("tabs");
  for (const Control& control : controlsOf(pageWith("lvwGAMES"))) {
    SCOPED_TRACE(fromQt(control.name));
    for (const auto& value : control.values) {
      if (rows("lvwSTATjoueurs(0)") > 0)
        choosePerson();
      for (int page = 0; page < tabs.count(); ++page) {
        if (tabs.widget(page) == &pageWith("lvwGAMES"))
          continue;
        for (const Control& other : controlsOf(*tabs.widget(page))) {
          if (!other.values.empty())
            other.values.back()();
        }
      }
      value();
      find<QPushButton>("cmdFILTER").click();
      find<QPushButton>("cmdGENERATE").click();
      wait();
      for (int page = 0; page < tabs.count(); ++page)
        look(*tabs.widget(page));
      ASSERT_FALSE(HasFatalFailure());
    }
  }
}

} // namespace
} // namespace hooptab
