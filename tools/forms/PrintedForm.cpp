#include "tools/forms/PrintedForm.h"

#include "printing/ReportLayout.h"
#include "printing/ReportPainter.h"
#include "report/TeamReports.h"
#include "simulator/SampleTeams.h"
#include "tools/forms/Drawn.h"

#include <QImage>
#include <QPainter>
#include <QString>

namespace hooptab {

namespace {

Report someForms(Random& random, const Texts& texts) {
  if (random.chance(400))
    return blankForms(texts);
  const auto teams = sampleTeams();
  const SampleTeam& sample = teams[static_cast<std::size_t>(random.below(static_cast<int>(teams.size())))];
  TeamRecord team;
  team.abbreviation = sample.abbreviation;
  team.category = sample.category;
  team.name = sample.name;
  std::vector<TeamPlayer> players;
  for (const RosterPlayer& player : sample.players) {
    players.emplace_back();
    players.back().number = player.jersey;
    players.back().record.name = player.name;
  }
  return preparedForms(team, players, texts);
}

// Grey as dots of a screen that stands at 45 degrees, as laser printers make it.
void halftone(GrayPicture& picture) {
  constexpr int kScreen[4][4] = {{6, 5, 10, 9}, {4, 1, 12, 15}, {11, 8, 7, 2}, {13, 14, 3, 0}};
  for (std::size_t index = 0; index < picture.pixels.size(); ++index) {
    const auto x = index % static_cast<std::size_t>(picture.width);
    const auto y = index / static_cast<std::size_t>(picture.width);
    picture.pixels[index] = picture.pixels[index] > kScreen[y / 2 % 4][x / 2 % 4] * 16 + 8 ? 255 : 0;
  }
}

} // namespace

GrayPicture printedPage(const ReportLayout& layout, std::size_t page) {
  constexpr double kScale = PaperSheet::kDotsPerMillimetre / kUnitsPerMillimetre;
  QImage image((layout.size() * kScale).toSize(), QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.scale(kScale, kScale);
  paintPage(painter, layout, page);
  painter.end();
  GrayPicture picture = {image.width(), image.height(), {}};
  for (int y = 0; y < image.height(); ++y)
    picture.pixels.insert(picture.pixels.end(), image.constScanLine(y),
                          image.constScanLine(y) + image.width());
  return picture;
}

PrintedForm printForm(Random& random) {
  Texts texts;
  texts.setLanguage(random.chance(500) ? Language::French : Language::English);
  const Report report = someForms(random, texts);
  ReportLayout layout(report, {random.chance(500) ? Paper::A4 : Paper::Letter, PageTurn::AsItFits});
  layout.finish();
  const int page = random.below(static_cast<int>(layout.pages().size()));
  GrayPicture picture = printedPage(layout, static_cast<std::size_t>(page));
  const bool isHalftoned = random.chance(300);
  if (isHalftoned)
    halftone(picture);
  // Black toner still gives back some light, little of it when it is fresh.
  const double black = real(random, 8, 55);
  for (std::uint8_t& dot : picture.pixels)
    dot = static_cast<std::uint8_t>(black + dot * (255 - black) / 255);
  const FormSheet& sheet = *layout.pages()[static_cast<std::size_t>(page)].form;
  return {PaperSheet(std::move(picture)), sheet.identifier, sheet.jerseys, isHalftoned};
}

} // namespace hooptab
