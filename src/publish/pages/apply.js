// Applies a change to a game, as the feed describes it. Pure: knows no connection and no page.

export function numberOf(id) {
  return Number(id.slice(id.lastIndexOf('-') + 1));
}

export function epochOf(id) {
  return id.slice(0, id.lastIndexOf('-'));
}

function partsOf(path) {
  return path.split('/').slice(1).map((part) => part.replaceAll('~1', '/').replaceAll('~0', '~'));
}

// Where the last part of a path is looked up; undefined where the game does not have it.
function holderOf(game, parts) {
  let at = game;
  for (const part of parts.slice(0, -1)) {
    if (at === null || typeof at !== 'object' || !Object.hasOwn(at, part))
      return undefined;
    at = at[part];
  }
  return at !== null && typeof at === 'object' ? at : undefined;
}

function set(game, path, value, isWhole) {
  const parts = partsOf(path);
  const holder = holderOf(game, parts);
  const last = parts.at(-1);
  if (holder && (isWhole || Object.hasOwn(holder, last)) && last !== '__proto__')
    holder[last] = value;
}

function append(game, path, values) {
  const parts = partsOf(path);
  const list = holderOf(game, parts)?.[parts.at(-1)];
  if (Array.isArray(list))
    list.push(...values);
}

// One more substitute while the clock stands completes what was right, and a line-up is set at the stop
// before what has been recorded since.
function isExchange(play) {
  return play.kind === 'substitution';
}

// What a change of the plays corrects, for the pages to show; null: it was no correction.
function applyPlay(plays, change) {
  const id = change.play.id;
  const at = plays.findIndex((play) => play.id === id);
  if (change.op === 'insert') {
    if (change.before === null) {
      plays.push(change.play);
      return null;
    }
    const before = plays.findIndex((play) => play.id === change.before);
    if (before >= 0)
      plays.splice(before, 0, change.play);
    return isExchange(change.play) ? null : { id, kind: 'added' };
  }
  if (change.op === 'delete') {
    if (at >= 0)
      plays.splice(at, 1);
    if (change.follows || isExchange(change.play))
      return null;
    return { id, kind: 'deleted', play: change.play, before: plays[at]?.id ?? null, isKnown: at >= 0 };
  }
  const was = change.was ?? plays[at];
  if (at >= 0)
    plays[at] = change.play;
  return change.follows || !was || isExchange(change.play) ? null : { id, kind: 'changed', was };
}

// The corrections in it. Who has only a part of the game passes over what is not there.
export function apply(game, message, isWhole) {
  for (const [path, value] of message.set ?? [])
    set(game, path, value, isWhole);
  for (const [path, values] of message.append ?? [])
    append(game, path, values);
  const plays = Array.isArray(game.plays) ? game.plays : [];
  const corrections = (message.plays ?? []).map((change) => applyPlay(plays, change)).filter(Boolean);
  game.id = message.id;
  return corrections;
}
