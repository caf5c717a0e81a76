// The columns of a season's players: where each figure comes from, and how it is written. Totals and averages
// are sorted by their exact values, not by what is left of them on the page.
import { clockText } from './clock.js';
import { number, signed } from './words.js';

const count = (value, isTotal) => number(value, isTotal ? 0 : 1);
const whole = (value) => number(value);
const share = (value) => number(value, 1);
const difference = (value, isTotal) => (isTotal ? signed(value) : (value > 0 ? '+' : '') + number(value, 1));

const kShots = {
  FG: (player) => [player.M - player.FTM, player.A - player.FTA],
  '3P': (player) => [player.F3M, player.F3A],
  FT: (player) => [player.FTM, player.FTA],
};

// `long` is a word, `head` one of a box score's heads where the column has no `word` of its own.
export const kColumns = [
  {key: 'games', word: 'seasonPlayed', long: 'seasonPlayedLong', show: whole},
  {key: 'seconds', head: 'min', long: 'seasonMinutes', show: clockText},
  {key: 'PTS', head: 'pts', long: 'points', show: count},
  {key: 'TR', head: 'reb', long: 'rebounds', show: count},
  {key: 'Ast', head: 'ast', long: 'assists', show: count},
  {key: 'ST', head: 'st', long: 'steals', show: count},
  {key: 'BS', head: 'bs', long: 'blocks', show: count},
  {key: 'TO', head: 'to', long: 'turnovers', show: count},
  {key: 'PF', head: 'pf', long: 'personalFouls', show: count},
  {key: 'FG', head: 'fg', long: 'fieldGoals', sign: '%', show: share},
  {key: '3P', head: 'three', long: 'threePoints', sign: '%', show: share},
  {key: 'FT', head: 'ft', long: 'freeThrows', sign: '%', show: share},
  {key: 'rating', head: 'eff', long: 'efficiency', show: count},
  {key: 'plusMinus', sign: '+/−', long: 'plusMinusLong', show: difference},
];

// Null where it cannot be told.
export function valueOf(player, key, isTotal) {
  if (kShots[key]) {
    const [made, of] = kShots[key](player);
    return of ? (100 * made) / of : null;
  }
  const value = player[key];
  if (value === null || value === undefined)
    return null;
  if (isTotal || key === 'games')
    return value;
  return player.games ? value / player.games : null;
}

// Whether a share stands on fewer attempts than leaders need, so that one lucky shot leads nobody.
export function isFew(player, key, { minimum, teams }) {
  if (!kShots[key])
    return false;
  const games = teams.find(({ team }) => team === player.team)?.games ?? 0;
  return kShots[key](player)[1] < (minimum?.attemptsPerTeamGame ?? 0) * games;
}
