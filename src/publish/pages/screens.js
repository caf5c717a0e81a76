// What the screens have in common that are not held in a hand: family names, dots with their words, what
// stands in the place of the clock, and drawing anew when the connection is lost or found.
import { h } from './dom.js';
import { clockText, secondsLeft } from './clock.js';
import { breakText, dots, personText } from './parts.js';
import { periodName, t } from './words.js';

// In this order the table of texts has the heads of a box score's columns, in one text.
const kHeads = ['min', 'pts', 'pf', 'reb', 'ast', 'fg', 'three', 'ft', 'or', 'dr', 'to', 'st', 'bs', 'eff'];

export function headWord(name) {
  return t('boxHeads').split(' ')[kHeads.indexOf(name)];
}

// From so many points without an answer on a run is told.
export const kRunTold = 8;
const kTick = 100;

// What follows the first name, "van Oosterveld"; initials and single names too are left as they are told.
export function familyName(name = '') {
  const blank = name.indexOf(' ');
  return blank > 0 ? name.slice(blank + 1) : name;
}

export function shortPerson({number, name}) {
  return personText(number, familyName(name));
}

// "9 points in all"; empty for who is in no roster.
export function pointsInAll({total}) {
  return total > 0 ? t(total === 1 ? 'screenPointInAll' : 'screenPointsInAll', total) : '';
}

// Null where the rules of the game name no time-outs.
export function timeOutsLeft(timeOuts) {
  if (timeOuts?.left === null || timeOuts?.left === undefined)
    return null;
  return [
    dots(timeOuts.left, timeOuts.of ?? timeOuts.left),
    h('span', { class: 'hidden' }, `${t('timeOuts')} ${timeOuts.left}`)
  ];
}

// What stands in the place of the clock, and whether it is words.
export function clockPlace(feed) {
  const { clock, rules } = feed.game;
  const words =
    breakText(feed.game) || (secondsLeft(clock, feed.now) === null && periodName(clock.period, rules));
  if (words)
    return { text: words, isWords: true };
  return { text: feed.isLost ? '–:––' : clockText(secondsLeft(clock, feed.now)), isWords: false };
}

// Calls `draw` when the connection is lost or found, and `tick` all the time.
export function keepDrawing(feed, draw, tick) {
  let wasLost = feed.isLost;
  setInterval(() => {
    if (feed.isLost !== wasLost) {
      wasLost = feed.isLost;
      draw();
    }
    tick();
  }, kTick);
}
