// What several pages show alike: a team's tag, pips, the score's head, a play's row, two bars.
import { h } from './dom.js';
import { ordinal, periodName, t, lang } from './words.js';
import { clockText, secondsLeft } from './clock.js';

const kRunFrom = 8;

// 0 visitors, 1 home: as they stand from left to right.
export function sidesOf(game) {
  return game.order === 'home' ? [1, 0] : [0, 1];
}

export function abbOf(game, side) {
  const team = game.teams[side];
  return team.abb || team.name || '–';
}

export function scoreText(game, score) {
  const [left, right] = sidesOf(game);
  return `${score[left]}–${score[right]}`;
}

export function personText(number, name) {
  return [number, name].filter(Boolean).join(' ');
}

export function tag(game, side) {
  return h('span', { class: `tag side${side}` }, abbOf(game, side));
}

// Round ones, filled as far as it has come; square and red at the limit.
export function pips(count, limit) {
  const isFull = count >= limit;
  return h('span', { class: isFull ? 'pips full' : 'pips', 'aria-hidden': 'true' },
           Array.from({ length: limit }, (_, at) => h('i', { class: at < count ? 'on' : '' })));
}

export function dots(left, of) {
  return h('span', { class: 'dots', 'aria-hidden': 'true' },
           Array.from({ length: Math.max(of, left) }, (_, at) => h('i', { class: at < left ? 'on' : '' })));
}

// The period that ended last, while none is played: the clock may stand at the next one already.
function endedPeriod(game) {
  const { period, seconds } = game.clock;
  if (seconds !== null)
    return seconds === 0 ? period : period - 1;
  return game.plays?.length && game.plays.at(-1).period === period ? period : period - 1;
}

// What stands in place of the clock; empty while there is a period to play.
export function breakText(game) {
  if (game.state === 'final')
    return t('final');
  if (game.state !== 'break')
    return '';
  const ended = endedPeriod(game);
  if (ended * 2 === game.rules?.periods)
    return t('halfTime');
  return t('endOf', periodName(ended, game.rules));
}

export function clockParts(feed) {
  const { game } = feed;
  const period = periodName(game.clock.period, game.rules);
  const words = breakText(game);
  const isOvertime = game.clock.period > (game.rules?.periods ?? 4);
  if (words)
    return [game.state === 'final' && isOvertime && h('span', { class: 'period' }, period),
            h('strong', { class: 'words' }, words)];
  const left = secondsLeft(game.clock, feed.now);
  if (left === null)
    return [h('strong', { class: 'words' }, period)];
  return [h('span', { class: 'period' }, period), ' ', h('strong', { 'data-clock': true }, clockText(left))];
}

export function foulLine(game, side) {
  const team = game.teams[side];
  const limit = game.rules?.bonusFouls ?? 0;
  return h('p', { class: 'fouls' }, limit > 0 && pips(team.foulsNow, limit), ' ',
           h('span', null, t('fouls'), ' ', h('b', null, team.foulsNow)),
           team.shootsBonus && h('b', { class: 'bonus' }, t('bonus')));
}

export function timeOutLine(game, side) {
  const timeOuts = game.teams[side].timeOuts;
  if (timeOuts?.left === null || timeOuts?.left === undefined)
    return null;
  return h('p', { class: 'touts' }, dots(timeOuts.left, timeOuts.of ?? timeOuts.left), ' ',
           h('span', null, t('timeOuts')), h('span', { class: 'hidden' }, ` ${timeOuts.left}`));
}

function runLine(game) {
  if (!game.run || game.run.points < kRunFrom || game.state === 'final')
    return null;
  return h('p', { class: 'run' }, tag(game, game.run.team), ' ', h('b', null, t('runPoints', game.run.points)));
}

function isWide(game) {
  return game.teams.some((team) => team.points > 99);
}

export function scoreHead(feed) {
  const { game } = feed;
  return h('section', { class: isWide(game) ? 'head wide' : 'head', 'data-key': 'head' },
    h('h2', { class: 'hidden' }, t('scorePage')),
    h('div', { class: 'halves' }, sidesOf(game).map((side) =>
      h('div', { class: 'half' },
        h('h3', { class: `band side${side}` }, abbOf(game, side)),
        h('p', { class: 'points' }, game.teams[side].points),
        game.state !== 'final' && foulLine(game, side),
        game.state !== 'final' && timeOutLine(game, side)))),
    h('p', { class: 'clock' }, clockParts(feed)),
    runLine(game));
}

export function smallHead(feed) {
  const { game } = feed;
  const [left, right] = sidesOf(game);
  const band = (side) => h('h3', { class: `band side${side}` }, abbOf(game, side));
  const points = (side) => h('p', { class: 'points' }, game.teams[side].points);
  return h('section', { class: isWide(game) ? 'strip wide' : 'strip', 'data-key': 'head' },
    h('h2', { class: 'hidden' }, t('scorePage')),
    band(left), points(left), h('p', { class: 'clock' }, clockParts(feed)), points(right), band(right));
}

const kShots = ['two', 'three', 'freeThrow', 'layupLeft', 'layupRight', 'putBack', 'dunk'];

export function isShot(play) {
  return kShots.includes(play.kind);
}

const kFouls = ['foul', 'technical', 'benchTechnical'];

export function isFoul(play) {
  return kFouls.includes(play.kind);
}

// Stops and starts of the clock are no news by themselves.
export function isTold(play) {
  return play.kind !== 'start' && play.kind !== 'stop';
}

// Letters of the score sheet, the same in every language, and signs: the words beside them say it all.
const kSigns = { foul: 'F', technical: 'T', benchTechnical: 'T', turnover: '↺', rebound: '↓', timeOut: '❚❚',
                 substitution: '⇄', jumpBall: '⇅' };

function markOf(play) {
  if (isShot(play))
    return play.made ? h('span', { class: 'mark made' }, `+${play.points ?? 0}`)
                     : h('span', { class: 'mark missed', 'aria-hidden': 'true' }, '✕');
  return h('span', { class: 'mark', 'aria-hidden': 'true' }, kSigns[play.kind] ?? '·');
}

export function wordsOf(play) {
  return play.words?.[lang] ?? '';
}

// "JAGUAR: in 4 · out 12" of each team.
function exchangeLines(game, play) {
  return sidesOf(game).filter((side) => play.in?.[side]?.length || play.outs?.[side]?.length).map((side) =>
    h('span', { class: 'line' }, h('b', { class: `name side${side}` }, abbOf(game, side)),
      play.in[side].length > 0 && ` ${t('comeIn', play.in[side].join(', '))}`,
      play.in[side].length > 0 && play.outs[side].length > 0 && ' ·',
      play.outs[side].length > 0 && ` ${t('goOut', play.outs[side].join(', '))}`));
}

const kWith = { assist: 'withAssist', block: 'withBlock', steal: 'withSteal' };

function detailLine(game, play) {
  const bits = [wordsOf(play)];
  if (isFoul(play) && play.fouls)
    bits[0] += ` (${ordinal(play.fouls)})`;
  if (play.made && play.total)
    bits.push(t('inAll', play.total));
  if (play.with && kWith[play.with.kind])
    bits.push(t(kWith[play.with.kind], personText(play.with.number, play.with.name) ||
                abbOf(game, play.with.team)));
  const isTeam = play.team === 0 || play.team === 1;
  return h('span', { class: 'line' },
    isTeam && h('b', { class: `name side${play.team}` }, abbOf(game, play.team)), ' ',
    isShot(play) && !play.made && h('span', { class: 'bad' }, `${t('missed')} · `),
    bits.filter(Boolean).join(' · '), play.out && h('b', { class: 'bad' }, ` · ${t('out')}`));
}

function titleOf(game, play) {
  if (play.kind === 'substitution')
    return t('substitution');
  const who = personText(play.number, play.name);
  return who || (play.team === null || play.team === undefined ? wordsOf(play) : abbOf(game, play.team));
}

// Of a play before its correction, as much as was otherwise.
function whatWas(game, was, now) {
  const deed = (play) => [wordsOf(play), isShot(play) && !play.made && t('missed')].filter(Boolean).join(', ');
  const hasTeam = was.team === 0 || was.team === 1;
  const isOtherWho = was.number !== now.number || was.team !== now.team;
  const bits = [was.team !== now.team && hasTeam && abbOf(game, was.team),
                isOtherWho && personText(was.number, was.name), deed(was) !== deed(now) && deed(was),
                was.clock !== now.clock && clockText(was.clock)].filter(Boolean);
  return bits.length ? bits.join(' · ') : deed(was);
}

function correctionLine(game, mark, play) {
  if (!mark)
    return null;
  const text = mark.kind === 'changed' ? t('correctedWas', whatWas(game, mark.was, play)) :
    t(mark.kind === 'added' ? 'addedLater' : 'deleted');
  return h('span', { class: 'line corrected' }, h('span', { 'aria-hidden': 'true' }, '✎ '), h('b', null, text));
}

// All that one play tells, in one row.
export function playRow(feed, play) {
  const { game } = feed;
  const mark = feed.marks.get(play.id);
  const hasTeam = play.team === 0 || play.team === 1;
  const classes = ['play', hasTeam && `side${play.team}`, mark && 'marked', mark?.kind === 'deleted' && 'gone'];
  const isExchange = play.kind === 'substitution';
  return h('li', { class: classes.filter(Boolean).join(' '), 'data-key': `play-${play.id}` },
    h('span', { class: 'when' }, clockText(play.clock)), markOf(play),
    h('div', { class: 'what' },
      h('b', null, titleOf(game, play)),
      isExchange ? exchangeLines(game, play) : detailLine(game, play),
      correctionLine(game, mark, play)),
    h('span', { class: 'after' }, play.made && play.score ? scoreText(game, play.score) : ''));
}

// The plays with those that were deleted a moment ago, each where it stood.
export function playsWithGone(feed) {
  const plays = [...(feed.game.plays ?? [])];
  for (const mark of feed.marks.values()) {
    if (mark.kind !== 'deleted' || !mark.isKnown || plays.some((play) => play.id === mark.id))
      continue;
    const at = plays.findIndex((play) => play.id === mark.before);
    plays.splice(at < 0 ? plays.length : at, 0, mark.play);
  }
  return plays;
}

// Two bars from the middle; `values` and `texts` in the order of the page.
export function versus(game, label, values, texts, most, isLessBetter = false) {
  const sides = sidesOf(game);
  const isBetter = (at) => values[at] !== values[1 - at] && values[at] > values[1 - at] !== isLessBetter;
  const bar = (at) => h('span', null, h('i', { class: `bar side${sides[at]}`,
    vars: { '--part': `${most > 0 ? Math.min(100, (100 * values[at]) / most) : 0}%` } }));
  const figure = (at) => h('td', { class: isBetter(at) ? 'better' : '' }, texts[at]);
  return [h('tr', null, figure(0), h('th', { scope: 'row' }, label), figure(1)),
          h('tr', { class: 'bars', 'aria-hidden': 'true' }, h('td', { colspan: 3 }, h('div', null, bar(0), bar(1))))];
}
