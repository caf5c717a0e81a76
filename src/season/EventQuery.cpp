#include "catalogue/Jersey.h"
#include "season/EventSearch.h"
#include "season/FoldedText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace hooptab {

namespace {

// How each word begins that names kinds of events; the first that fits counts.
struct KindWord {
  std::string_view begin;
  bool isWhole; // the word is no longer
  std::vector<EventCode> kinds;
};

const std::vector<EventCode> kTwos = {EventCode::GFG, EventCode::GLG, EventCode::GLD, EventCode::GPB,
                                      EventCode::GDK};
const std::vector<EventCode> kThrees = {EventCode::GF3};
const std::vector<EventCode> kField = {EventCode::GFG, EventCode::GLG, EventCode::GLD,
                                       EventCode::GPB, EventCode::GDK, EventCode::GF3};
const std::vector<EventCode> kThrows = {EventCode::GFT};
const std::vector<EventCode> kLayups = {EventCode::GLG, EventCode::GLD};
const std::vector<EventCode> kBlocks = {EventCode::SBS};
const std::vector<EventCode> kRebounds = {EventCode::SOR, EventCode::SDR, EventCode::XOR, EventCode::XDR};
const std::vector<EventCode> kOffensive = {EventCode::SOR, EventCode::XOR};
const std::vector<EventCode> kDefensive = {EventCode::SDR, EventCode::XDR};
const std::vector<EventCode> kTurnovers = {EventCode::STO, EventCode::XTV};
const std::vector<EventCode> kFouls = {EventCode::SPF, EventCode::STF, EventCode::XCF};

const std::vector<KindWord>& kindWords() {
  static const std::vector<KindWord> kWords = {
      {"3p", false, kThrees},
      {"threes", true, kThrees},
      {"three", true, kThrees},
      {"triple", false, kThrees},
      {"2p", false, kTwos},
      {"twos", true, kTwos},
      {"ft", false, kThrows},
      {"lf", true, kThrows},
      {"free", true, kThrows},
      {"lancer", false, kThrows},
      {"layup", false, kLayups},
      {"lay", true, kLayups},
      {"double", false, kLayups},
      {"dunk", false, {EventCode::GDK}},
      {"smash", false, {EventCode::GDK}},
      {"putback", false, {EventCode::GPB}},
      {"put", true, {EventCode::GPB}},
      {"reprise", false, {EventCode::GPB}},
      {"shot", false, kField},
      {"field", true, kField},
      {"fg", false, kField},
      {"tir", true, kField},
      {"tirs", true, kField},
      {"basket", false, kField},
      {"panier", false, kField},
      {"turnover", false, kTurnovers},
      {"to", true, kTurnovers},
      {"revirement", false, kTurnovers},
      {"retournement", false, kTurnovers},
      {"perte", false, kTurnovers},
      {"assist", false, {EventCode::SA}},
      {"ast", true, {EventCode::SA}},
      {"passe", false, {EventCode::SA}},
      {"steal", false, {EventCode::SST}},
      {"stole", false, {EventCode::SST}},
      {"interception", false, {EventCode::SST}},
      {"recuperation", false, {EventCode::SST}},
      {"vol", false, {EventCode::SST}},
      {"block", false, kBlocks},
      {"bloc", false, kBlocks},
      {"bloqu", false, kBlocks},
      {"contre", false, kBlocks},
      {"offensi", false, kOffensive},
      {"ro", true, kOffensive},
      {"defensi", false, kDefensive},
      {"rd", true, kDefensive},
      {"rebound", false, kRebounds},
      {"rebond", false, kRebounds},
      {"technical", false, {EventCode::STF}},
      {"technique", false, {EventCode::STF}},
      {"personal", false, {EventCode::SPF}},
      {"personnel", false, {EventCode::SPF}},
      {"foul", false, kFouls},
      {"faute", false, kFouls},
      {"timeout", false, {EventCode::XTO}},
      {"time", true, {EventCode::XTO}},
      {"temps", true, {EventCode::XTO}},
      {"jump", true, {EventCode::XJB}},
      {"entre", true, {EventCode::XJB}},
  };
  return kWords;
}

// Words that belong to others or say nothing.
constexpr std::string_view kSilent[] = {
    "by",      "of",     "in",      "the",     "a",         "an",         "at",     "with",      "and",
    "from",    "all",    "any",     "on",      "for",       "event",      "events", "player",    "players",
    "throw",   "throws", "out",     "outs",    "ball",      "back",       "goal",   "goals",     "up",
    "ups",     "point",  "points",  "pts",     "par",       "de",         "du",     "des",       "d",
    "l",       "la",     "le",      "les",     "dans",      "au",         "aux",    "en",        "et",
    "avec",    "tous",   "toutes",  "sur",     "franc",     "francs",     "mort",   "morts",     "decisive",
    "balle",   "balles", "joueur",  "joueuse", "evenement", "evenements", "that",   "were",      "was",
    "game",    "partie", "parties", "games",   "team",      "equipe",     "s",      "decisives", "minute",
    "minutes", "min",    "less",    "moins",   "ou",        "or",         "deux",   "pas",       "left",
    "right",   "gauche", "droit",   "droite"};
constexpr std::string_view kNumberSigns[] = {"number", "numbers", "no",     "num",
                                             "numero", "n",       "jersey", "chandail"};
constexpr std::string_view kPeriodSigns[] = {"period", "periode", "quarter", "quart", "q", "p"};
constexpr std::string_view kLastSigns[] = {"last", "final", "derniere", "dernieres", "dernier"};
constexpr std::string_view kMarginSigns[] = {"within", "margin", "ecart", "difference"};
constexpr std::string_view kMadeSigns[] = {"made",    "makes",   "make",     "scored", "good",   "reussi",
                                           "reussis", "reussie", "reussies", "marque", "marques"};
constexpr std::string_view kMissedSigns[] = {"missed",   "miss", "misses", "manque", "manques", "manquee",
                                             "manquees", "rate", "rates",  "ratee",  "ratees"};
constexpr std::string_view kOvertimeSigns[] = {"overtime", "overtimes", "ot", "prolongation",
                                               "prolongations"};
constexpr std::string_view kHalfSigns[] = {"half", "demie", "demi"};
constexpr std::string_view kTiedSigns[] = {"tied", "level", "egalite"};

constexpr std::pair<std::string_view, int> kNumberWords[] = {
    {"one", 1},       {"un", 1},    {"une", 1},       {"two", 2},     {"deux", 2},     {"three", 3},
    {"trois", 3},     {"four", 4},  {"quatre", 4},    {"five", 5},    {"cinq", 5},     {"six", 6},
    {"seven", 7},     {"sept", 7},  {"eight", 8},     {"huit", 8},    {"nine", 9},     {"neuf", 9},
    {"ten", 10},      {"dix", 10},  {"first", 1},     {"premier", 1}, {"premiere", 1}, {"1st", 1},
    {"1re", 1},       {"1er", 1},   {"second", 2},    {"seconde", 2}, {"deuxieme", 2}, {"2nd", 2},
    {"2e", 2},        {"third", 3}, {"troisieme", 3}, {"3rd", 3},     {"3e", 3},       {"fourth", 4},
    {"quatrieme", 4}, {"4th", 4},   {"4e", 4}};

template <std::size_t size>
bool isOneOf(const std::string_view (&words)[size], std::string_view word) {
  return std::ranges::find(words, word) != std::end(words);
}

bool isLetterOrDigit(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') ||
         static_cast<unsigned char>(letter) >= 0xC0;
}

std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words(1);
  for (const char letter : foldedText(text)) {
    if (isLetterOrDigit(letter))
      words.back() += letter;
    else if (!words.back().empty())
      words.emplace_back();
    if (letter == '#')
      words.back() = "no", words.emplace_back();
  }
  if (words.back().empty())
    words.pop_back();
  return words;
}

std::optional<int> digits(std::string_view word) {
  int number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  return error == std::errc() && end == word.data() + word.size() && number >= 0 && number < 1000
             ? std::optional(number)
             : std::nullopt;
}

class Parser {
 public:
  Parser(std::string_view text, std::span<const SeasonTeam> teams) : m_words(wordsOf(text)), m_teams(teams) {}

  EventQuery parse() {
    while (m_next < m_words.size()) {
      const std::string word = m_words[m_next++];
      if (!takeWhen(word) && !takeWho(word) && !takeWhat(word) && !isOneOf(kSilent, word))
        m_query.unknown.push_back(word);
    }
    return std::move(m_query);
  }

 private:
  // A word that may follow is passed over.
  template <std::size_t size>
  bool follows(const std::string_view (&words)[size]) {
    const bool isThere = m_next < m_words.size() && isOneOf(words, m_words[m_next]);
    m_next += isThere ? 1 : 0;
    return isThere;
  }
  static std::optional<int> numberOf(std::string_view word) {
    const auto named = std::ranges::find(kNumberWords, word, &std::pair<std::string_view, int>::first);
    return named != std::end(kNumberWords) ? std::optional(named->second) : digits(word);
  }
  // The number that follows, behind at most a silent word: "écart de 5".
  std::optional<int> nextNumber() {
    for (std::size_t ahead = m_next; ahead < std::min(m_next + 2, m_words.size()); ++ahead) {
      if (const std::optional<int> number = numberOf(m_words[ahead])) {
        m_next = ahead + 1;
        return number;
      }
      if (!isOneOf(kSilent, m_words[ahead]))
        break;
    }
    return std::nullopt;
  }

  bool takeWhen(const std::string& word) {
    EventCriteria& criteria = m_query.criteria;
    if (isOneOf(kLastSigns, word))
      return takeLast(nextNumber());
    if (isOneOf(kOvertimeSigns, word))
      return criteria.isOvertime = true;
    if (isOneOf(kTiedSigns, word)) {
      criteria.margin = 0;
      return true;
    }
    if (isOneOf(kMarginSigns, word)) {
      criteria.margin = nextNumber();
      return criteria.margin.has_value();
    }
    if (isOneOf(kPeriodSigns, word)) {
      criteria.fromPeriod = criteria.toPeriod = nextNumber();
      return criteria.fromPeriod.has_value();
    }
    if (word.size() == 2 && (word[0] == 'q' || word[0] == 'p') && digits(word.substr(1))) {
      criteria.fromPeriod = criteria.toPeriod = digits(word.substr(1));
      return true;
    }
    const std::optional<int> number = numberOf(word);
    return number && takeOrdinal(*number);
  }
  // "two last minutes", "fourth quarter", "second half".
  bool takeOrdinal(int number) {
    EventCriteria& criteria = m_query.criteria;
    if (follows(kLastSigns))
      return takeLast(number);
    if (follows(kPeriodSigns)) {
      criteria.fromPeriod = criteria.toPeriod = number;
      return true;
    }
    if (follows(kHalfSigns)) {
      criteria.fromPeriod = number == 1 ? 1 : 3;
      criteria.toPeriod = *criteria.fromPeriod + 1;
      return true;
    }
    return false;
  }
  bool takeLast(std::optional<int> number) {
    constexpr std::string_view kSeconds[] = {"second", "seconds", "sec", "seconde", "secondes", "s"};
    constexpr std::string_view kMinutes[] = {"minute", "minutes", "min", "m"};
    const int unit = follows(kSeconds) ? 1 : 60;
    if (unit == 60)
      (void)follows(kMinutes);
    m_query.criteria.lastSeconds = number.value_or(1) * unit;
    return true;
  }

  bool takeWho(const std::string& word) {
    EventCriteria& criteria = m_query.criteria;
    const bool isSign = isOneOf(kNumberSigns, word);
    const std::string& jersey = isSign && m_next < m_words.size() ? m_words[m_next] : word;
    if (digits(jersey) && !(m_next < m_words.size() && !isSign && isPoints(m_words[m_next]))) {
      criteria.jersey = canonicalJersey(jersey);
      m_next += isSign ? 1 : 0;
      return true;
    }
    const auto team = std::ranges::find(m_teams, word,
                                        [](const SeasonTeam& each) { return foldedText(each.abbreviation); });
    if (team == m_teams.end())
      return false;
    criteria.team = static_cast<SeasonId>(team - m_teams.begin());
    return true;
  }

  static bool isPoints(std::string_view word) {
    return word.starts_with("point") || word.starts_with("pt") || word == "p";
  }
  bool takeWhat(const std::string& word) {
    EventCriteria& criteria = m_query.criteria;
    if (isOneOf(kMadeSigns, word) || isOneOf(kMissedSigns, word)) {
      criteria.isMade = isOneOf(kMadeSigns, word);
      return true;
    }
    const std::optional<int> points = numberOf(word);
    if (points && m_next < m_words.size() && isPoints(m_words[m_next])) {
      ++m_next;
      if (*points == 2 || *points == 3)
        return setKinds(*points == 3 ? kThrees : kTwos);
      criteria.margin = points; // "à 5 points"
      return true;
    }
    const auto found = std::ranges::find_if(kindWords(), [&](const KindWord& each) {
      return each.isWhole ? word == each.begin : word.starts_with(each.begin);
    });
    if (found == kindWords().end())
      return false;
    if (word.starts_with("basket") || word.starts_with("panier"))
      criteria.isMade = criteria.isMade.value_or(true);
    return setKinds(found->kinds);
  }
  // "offensive rebounds" is one kind, and so is "three point shots": what both say.
  bool setKinds(const std::vector<EventCode>& kinds) {
    std::vector<EventCode>& known = m_query.criteria.kinds;
    if ((known == kBlocks && kinds == kField) || (known == kField && kinds == kBlocks)) {
      known = kBlocks; // a blocked shot
      return true;
    }
    std::vector<EventCode> both;
    std::ranges::copy_if(kinds, std::back_inserter(both),
                         [&known](EventCode code) { return std::ranges::find(known, code) != known.end(); });
    if (!known.empty() && both.empty())
      known.insert(known.end(), kinds.begin(), kinds.end()); // "steals and turnovers": either
    else
      known = known.empty() ? kinds : both;
    return true;
  }

  std::vector<std::string> m_words;
  std::span<const SeasonTeam> m_teams;
  std::size_t m_next = 0;
  EventQuery m_query;
};

} // namespace

EventQuery parseEventQuery(std::string_view text, std::span<const SeasonTeam> teams) {
  return Parser(text, teams).parse();
}

} // namespace hooptab
