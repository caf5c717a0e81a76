// What a formula of the user's own gives, and what is said of one that makes no sense.
#include "formula/FormulaRating.h"

#include <clocale>
#include <gtest/gtest.h>
#include <locale>

using namespace hooptab;

namespace {

RatedNumbers line() {
  RatedNumbers numbers;
  for (const auto& [counter, count] : {std::pair(Counter::FGM, 3),
                                       {Counter::FGA, 8},
                                       {Counter::F3M, 2},
                                       {Counter::Ast, 4},
                                       {Counter::OR, 1},
                                       {Counter::DR, 5},
                                       {Counter::TO, 2}})
    numbers.box.counters.counts[static_cast<std::size_t>(counter)] = count;
  numbers.box.seconds = 90;
  numbers.extras = PlayerExtras{6, 1};
  numbers.plusMinus = -3;
  return numbers;
}

std::string shown(std::string_view formula, const RatedNumbers& numbers = line()) {
  const FormulaReading reading = readFormula(formula);
  if (!reading.problem)
    return ownRatingText(ownRatingOf(reading.rating, numbers));
  const FormulaProblem& problem = *reading.problem;
  return std::to_string(static_cast<int>(problem.fault)) + "@" + std::to_string(problem.character) + " " +
         problem.name;
}

std::string fault(FormulaFault kind, int character, const std::string& name = {}) {
  return std::to_string(static_cast<int>(kind)) + "@" + std::to_string(character) + " " + name;
}

// Decimal commas and grouped thousands, as a locale of C++ may have them.
struct Commas : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Formula, GivesWhatItSaysInEveryLocale) {
  const auto expectAll = [] {
    EXPECT_EQ(shown("PTS + 1.5 * AST - TO"), "16.0");
    EXPECT_EQ(shown(" (pts+tr)/min ^ 2*2"), "16.0") << "12 and 6 in a minute and a half";
    EXPECT_EQ(shown("min(FGA, Ast, max(1.25, PM)) + abs(PM) + sqrt(FGA*2)"), "8.2");
    EXPECT_EQ(shown("(FD > 5) * 10 + (BA != 1) + (PM <= -3)"), "11.0");
    EXPECT_EQ(shown("1000.5 * 1000"), "1000500.0");
    EXPECT_EQ(shown("-FGM^2 - .5"), "-9.5");
    EXPECT_EQ(shown("TO - 2.04"), "0.0") << "never -0.0";
    EXPECT_EQ(shown("9^99"), "2.951e+94");
  };
  expectAll();
  const std::locale before = std::locale::global(std::locale(std::locale(), new Commas));
  std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
  expectAll();
  std::locale::global(before);
}

TEST(Formula, WhatIsNoNumberIsNone) {
  for (const char* formula : {"PTS / BS", "0/0", "sqrt(PM)", "10^200^2", "", "  ", "1/(FGM-3)"})
    EXPECT_EQ(shown(formula), "–") << formula;
  RatedNumbers ofLine = line();
  ofLine.extras.reset();
  ofLine.plusMinus.reset();
  EXPECT_EQ(shown("PTS + 0 * PM", ofLine), "–") << "nobody counted it";
  EXPECT_EQ(shown("FD", ofLine), "–");
  EXPECT_EQ(shown("PTS", ofLine), "12.0");
}

TEST(Formula, SaysWhatIsWrongAndWhere) {
  using enum FormulaFault;
  for (const auto& [formula, wanted] : {
           std::pair("PTS + Fouls", fault(UnknownName, 7, "Fouls")),
           {"_pi", fault(Broken, 1)},
           {"sin(1)", fault(UnknownName, 1, "sin")},
           {"rnd()", fault(UnknownName, 1, "rnd")},
           {"1e5", fault(UnknownName, 2, "e5")},
           {"PTS +", fault(Broken, 6)},
           {"PTS AST", fault(Broken, 5)},
           {"2 PTS", fault(Broken, 3)},
           {"* 2", fault(Broken, 1)},
           {"PTS = 3", fault(Broken, 5)},
           {"PTS += 3", fault(Broken, 6)},
           {"1,2", fault(Broken, 2)},
           {"(1,2)", fault(Broken, 3)},
           {"max((1,2),3)", fault(Broken, 7)},
           {"PTS > 3 ? 1 : 2", fault(Broken, 9)},
           {"PTS # \"a\"", fault(Broken, 5)},
           {"é", fault(Broken, 1)},
           {"PTS + .", fault(Broken, 7)},
           {"1.2.3", fault(Broken, 4)},
           {"((PTS)", fault(Bracket, 1)},
           {"PTS) * 2", fault(Bracket, 4)},
           {"PTS + Abs(1, 2)", fault(Arguments, 7, "Abs")},
           {"max()", fault(Arguments, 1, "max")},
           {"min(1,)", fault(Broken, 7)},
           {"()", fault(Broken, 2)},
       })
    EXPECT_EQ(shown(formula), wanted) << formula;
  EXPECT_EQ(shown(std::string(199, ' ') + "1"), "1.0");
  EXPECT_EQ(shown(std::string(200, ' ') + "1"), fault(TooLong, 1));
  EXPECT_EQ(shown(std::string_view("PTS\0+1", 6)), fault(Broken, 4));
}

TEST(Formula, TellsItsFaultsInBothLanguages) {
  Texts texts;
  const FormulaProblem problem = *readFormula("PTS + Fouls").problem;
  EXPECT_EQ(wordsOf(problem, texts), "Fouls is no counter (at character 7)");
  texts.setLanguage(Language::French);
  EXPECT_EQ(wordsOf(problem, texts), "Fouls n'est pas un compteur (au caractère 7)");
}

} // namespace
