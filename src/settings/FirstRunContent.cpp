#include "settings/Settings.h"
#include "storage/PathText.h"

#include <span>
#include <string_view>
#include <vector>

namespace hooptab {

namespace {

struct Line {
  std::string_view key;
  std::string_view value;
};

constexpr Line kTeams[] = {
    {"1", "LYNX,AAA ,Basketball College ,U1----,U2----,2,4,5,5,2,8438015,0"},
    {"2", "COUGAR,AA ,State College ,U1-U1 Field,U2-U2 Field,4,4,5,5,2,12303223,0"},
    {"3", "JAGUAR,AAAA ,Virtual College ,U1----,U2----,3,4,5,5,2,10329599,0"},
    {"4", "LION,A ,Somewhere College ,U1-U1 Field,U2-U2 Field,8,4,5,5,2,16749608,0"},
    {"5", "TIGER,BB ,Small School ,U1----,U2----,1,4,5,5,2,16759671,0"},
    {"6", "PUMA,CCC ,Very Small School ,U1----,U2----,2,4,5,5,2,11140947,0"},
};

// Every player is made up. Heights are written as people write them, in several forms, and one grade is
// misspelt, so that the sample shows that these fields are free text.
constexpr Line kLynx[] = {
    {"1", "0,Marek Dolansky,6ft 11in,185lbs,18,Senior,"},
    {"2", "2,Émile Charbonnet,6ft 1in,172lbs,18,Senior,"},
    {"3", "1,Tobias Wrenfield,6ft 7in,198lbs,19,Senior,"},
    {"4", "1,Ousmane Kaldé,6ft 6in,190lbs,18,Senior,"},
    {"5", "2,Jonah Pellworth,6ft,168lbs,17,Senior,"},
    {"10", "0,Björn Askelund,6ft11in,221lbs,19,Senior,"},
    {"11", "2,Rafael Quintaval,5ft 11in,163lbs,18,Senior,"},
    {"12", "1,Dmitri Voskanov,6ft 8in,204lbs,18,Senior,"},
    {"13", "1,Luca Ferrantelli,6ft 5in,187lbs,18,Senior,"},
    {"14", "2,Kwame Adusei-Boh,6ft 2in,176lbs,17,Senior,"},
    {"20", "0,Søren Halkvist,7ft,228lbs,19,Senior,"},
    {"21", "2,Hugo Desrivières,6ft,165lbs,18,Senior,"},
    {"22", "1,Callum Oakhurst,6ft 6in,193lbs,18,Senior,"},
    {"23", "2,Ignacio Peñasol,5ft 10in,158lbs,17,Senior,"},
    {"24", "1,Teodor Briskow,6ft 7in,201lbs,19,Senior,"},
    {"90", "0,Samir Haddoun,6ft 10in,215lbs,18,Senior,"},
    {"91", "2,Günther Eisenlohr,6ft 3in,180lbs,18,Senior,"},
    {"92", "1,Malik Fairbrook,6ft 5in,189lbs,18,Senior,"},
    {"93", "2,Anselm Corrivault,6ft 1in,170lbs,17,Senior,"},
    {"94", "0,Piotr Zaremski,6ft11in,219lbs,19,Senior,"},
};

constexpr Line kCougar[] = {
    {"1", "2,Gaëtan Morinval,5ft 11in,160lbs,17,Junior,"},
    {"2", "2,Wesley Thornquist,6ft 1in,171lbs,16,Junior,"},
    {"3", "1,Ibrahim Sankoré,6ft 6in,188lbs,17,Junior,"},
    {"4", "0,Nils Ödegren,6ft 10in,209lbs,17,Junior,"},
    {"5", "1,Pablo Carrizález,6ft 4in,182lbs,16,Junior,"},
    {"10", "2,Desmond Larkspur,6ft,166lbs,17,Junior,"},
    {"11", "1,Yannick Boisclairet,6ft 5in,184lbs,17,Junior,"},
    {"12", "0,Tariq Bensoualid,6ft 9in,212lbs,17,Junior,"},
    {"13", "1,Oskar Lindqvarn,6ft 7in,195lbs,16,Junior,"},
    {"14", "2,Elio Montebruno,5ft 10in,155lbs,16,Junior,"},
    {"90", "1,Jasper Hollowick,6ft 6in,191lbs,17,Junior,"},
    {"91", "0,Chidi Nwakanta,7ft,224lbs,17,Junior,"},
    {"92", "2,Mathéo Lachapelot,6ft 2in,173lbs,16,Junior,"},
    {"93", "1,Ruben van Oosterveld,6ft 8in,199lbs,17,Junior,"},
    {"94", "2,Kenji Hoshimuro,5ft 9in,152lbs,16,Junior,"},
};

constexpr Line kJaguar[] = {
    {"1", "2,Virgil Castwright,6ft 2in,177lbs,20,Virtual,"},
    {"2", "1,Bruno Sárkovic,6ft 7in,202lbs,21,Virtual,"},
    {"3", "2,Félix Grandroc,6ft,169lbs,20,Virtual,"},
    {"4", "0,Stefan Ibarrondo,7pi 4in,251lbs,22,Virtual,"},
    {"5", "1,Amadou Tourékan,6ft 8in,206lbs,20,Virtual,"},
    {"10", "1,Håkon Brattvåg,6ft 6in,194lbs,21,Virual,"},
    {"11", "2,Leandro Figueirôa,5ft 11in,164lbs,19,Virtual,"},
    {"12", "0,Theo Marchbank,6ft11in,226lbs,22,Virtual,"},
    {"13", "1,Zoltan Keresmar,6ft 5in,186lbs,20,Virtual,"},
    {"14", "2,Nathan Peacehaven,6ft 1in,174lbs,19,Virtual,"},
};

constexpr Line kLion[] = {
    {"0", "2,Pierrick Lavoisette,6ft,167lbs,20,College,"},
    {"1", "1,Gordon Ashdale,6ft 6in,192lbs,21,College,"},
    {"2", "2,Raúl Estebañez,6ft 2in,175lbs,19,College,"},
    {"3", "1,Jules Fontbrune,6ft 7in,197lbs,20,College,"},
    {"4", "0,Mamadou Sylvarin,7ft,230lbs,22,College,"},
    {"5", "1,Ewan McTavendale,6ft 4in,183lbs,21,College,"},
};

void add(ProfileBatch& batch, const std::string& section, std::span<const Line> lines) {
  for (const Line& line : lines)
    batch.set(section, std::string(line.key), std::string(line.value));
}

} // namespace

const KeypadKeyTexts& firstKeypadKeyTexts() {
  static constexpr const char* kTexts[] = {
      "13-ENTER",   "8-BACK",   "109-MINUS", "107-PLUS",   "105-9-PAGEUP", "102-6-RIGHT",
      "103-7-HOME", "104-8-UP", "98-2-DOWN", "97-1-END",   "99-3-HOME",    "110-.-DELETE",
      "111-DIVISE", "106-MULT", "96-0-INS",  "100-4-LEFT", "101-5-CLEAR"};
  static_assert(std::size(kTexts) == kKeypadKeys.size());
  static const KeypadKeyTexts texts = [] {
    KeypadKeyTexts all;
    std::ranges::copy(kTexts, all.begin());
    return all;
  }();
  return texts;
}

ProfileBatch firstRunContent(const Texts& texts, const std::string& folder) {
  const std::string lastPath = pathValue(folder);
  const auto keypadLine = [](std::size_t place) {
    return Line{kKeypadKeys[place], firstKeypadKeyTexts()[place]};
  };
  constexpr std::size_t kSecondTeam = 2; // stands behind the others, as do the user's statistics
  constexpr std::size_t kFirstOfUser = kKeypadKeys.size() - 2;
  std::vector<Line> choices = {{"LANGUE", "0"}, {"SAVEREBOUND", "False"}};
  for (std::size_t place = 0; place < kFirstOfUser; ++place) {
    if (place != kSecondTeam)
      choices.push_back(keypadLine(place));
  }
  choices.insert(choices.end(), {keypadLine(kSecondTeam),
                                 {"KEYPAD", "True"},
                                 keypadLine(kFirstOfUser),
                                 keypadLine(kFirstOfUser + 1),
                                 {"LASTPATHGAME", lastPath},
                                 {"LASTPATHBMP", lastPath}});
  ProfileBatch batch;
  batch.set("CONFIGURATION", "COULEUR2PTS", std::to_string(kFirstColours.twoPoints));
  batch.set("CONFIGURATION", "COULEURBOX", std::to_string(kFirstColours.box));
  batch.set("CONFIGURATION", "COULEUR3PTS", std::to_string(kFirstColours.threePoints));
  batch.set("CONFIGURATION", "COULEURBUT", std::to_string(kFirstColours.buttons));
  batch.set("CONFIGURATION", "STATU1", std::string("U1-").append(texts.text(Text::OwnStatisticOne)));
  batch.set("CONFIGURATION", "STATU2", std::string("U2-").append(texts.text(Text::OwnStatisticTwo)));
  add(batch, "CONFIGURATION", choices);
  add(batch, "TEAM", kTeams);
  add(batch, "1", kLynx);
  add(batch, "2", kCougar);
  add(batch, "3", kJaguar);
  add(batch, "4", kLion);
  return batch;
}

} // namespace hooptab
