// Keeps a game as the server has it: loads it, applies each change once and in order, loads it anew where
// one is missing, asks every other second while no stream can be held, and comes back by itself. Who
// listens gets the feed and what was corrected.
import { base } from './dom.js';
import { apply, epochOf, numberOf } from './apply.js';

const kSilence = 6000;    // without a beat: the connection is lost
const kPollEvery = 1500;  // while there is no stream
const kReopenEvery = 8000;
const kMarkFor = 30000;   // how long a correction is shown
const kBeatsKept = 8;

const kPublic = { game: '/api/game', stream: '/events' };
const kDirect = { game: '/api/bench/game', stream: '/api/bench/changes' };

// Whether the address of the page asks for the game at once: `?direct`.
export const asksDirect = () => new URLSearchParams(location.search).has('direct');

export class Feed {
  game = null;
  marks = new Map(); // corrections of the last half minute, by the play's id
  #isWhole;
  #paths;
  #listeners = [];
  #source = null;
  #waiting = [];   // changes that came while the game was loaded
  #loading = null;
  #newest = null;  // the last id that the server named
  #heard = Date.now();
  #beat = 0;       // when the stream last told anything
  #opened = 0;
  #asked = 0;
  #failures = 0;
  #isReset = false; // what is held counts no more
  #offsets = [];   // the server's clock less ours, of the last beats
  #guess = 0;

  // `isWhole`: with players, flow and all plays. `isDirect`: at once and with whole names, for who knows the
  // pass phrase; the browser asks for it.
  constructor(isWhole, isDirect = false) {
    this.#isWhole = isWhole;
    this.#paths = isDirect ? kDirect : kPublic;
  }

  listen(listener) {
    this.#listeners.push(listener);
  }

  start() {
    this.load();
    setInterval(() => this.#watch(), 500);
    const awake = () => document.visibilityState === 'visible' && this.#wake();
    document.addEventListener('visibilitychange', awake);
    addEventListener('online', awake);
    addEventListener('pageshow', awake);
    addEventListener('pagehide', () => this.#sleep());
  }

  get isLost() {
    return this.age > kSilence;
  }

  // Milliseconds since the game was known to be what the server has.
  get age() {
    return Date.now() - this.#heard;
  }

  // The server's clock when what the game tells was true, as late as the game is. A beat is never early: the
  // largest difference is the nearest to the truth. It stands while the connection is lost, and the game's
  // clock with it.
  get now() {
    const offset = this.#offsets.length ? Math.max(...this.#offsets) : this.#guess;
    return Math.min(Date.now(), this.#heard + kSilence) + offset - 1000 * (this.game?.delay ?? 0);
  }

  load() {
    this.#loading ??= this.#ask().finally(() => {
      this.#loading = null;
      this.#catchUp();
    });
    return this.#loading;
  }

  // What is being loaded may have been made before.
  #reload() {
    if (this.#loading && !this.game)
      return;
    const again = () => this.load();
    if (this.#loading)
      this.#loading.then(again);
    else
      again();
  }

  async #ask() {
    this.#asked = Date.now();
    try {
      const stop = new AbortController();
      const timer = setTimeout(() => stop.abort(), 8000);
      const answer = await fetch(`${base}${this.#paths.game}${this.#isWhole ? '' : '?parts=score'}`, { signal: stop.signal });
      if (!answer.ok)
        throw new Error(String(answer.status));
      const game = await answer.json();
      clearTimeout(timer);
      this.#failures = 0;
      const date = Date.parse(answer.headers.get('Date') ?? '');
      if (date)
        this.#guess = date + 500 - Date.now();
      this.#accept(game);
    } catch {
      this.#failures += 1;
    }
  }

  #accept(game) {
    const isOlder = this.game && !this.#isReset && epochOf(game.id) === epochOf(this.game.id) &&
      numberOf(game.id) < numberOf(this.game.id);
    if (isOlder && this.#newest && numberOf(this.#newest) > numberOf(game.id))
      return; // an answer from a store on the way, behind what the stream has told
    const isSame = this.game?.id === game.id && !this.#isReset;
    if (this.#isReset || (this.game && epochOf(game.id) !== epochOf(this.game.id)))
      this.marks.clear();
    this.#isReset = false;
    this.game = game;
    if (!this.#isStreaming)
      this.#newest = game.id;
    this.#newest ??= game.id;
    if (epochOf(this.#newest) !== epochOf(game.id))
      this.#newest = game.id;
    this.#hear(Date.now());
    if (!this.#source)
      this.#open();
    if (!isSame)
      this.#tell([]);
  }

  get #isStreaming() {
    return Date.now() - this.#beat < kSilence;
  }

  // What was told then was all that there is.
  #hear(then) {
    if (this.game && this.#newest && numberOf(this.game.id) >= numberOf(this.#newest))
      this.#heard = Math.max(this.#heard, then);
  }

  // From the game that is held on, so that nothing between the two is missed.
  #open() {
    this.#source?.close();
    this.#opened = Date.now();
    const source = new EventSource(`${base}${this.#paths.stream}?lastEventId=${encodeURIComponent(this.game.id)}`);
    this.#source = source;
    source.onmessage = (event) => this.#message(JSON.parse(event.data));
    source.addEventListener('reset', () => {
      this.#beat = Date.now();
      this.#waiting = [];
      this.#newest = null;
      this.#isReset = true;
      this.#reload();
    });
    source.addEventListener('beat', (event) => {
      const beat = JSON.parse(event.data);
      this.#beat = Date.now();
      this.#offsets = [...this.#offsets, beat.at - Date.now()].slice(-kBeatsKept);
      if (beat.id)
        this.#newest = beat.id;
      this.#catchUp();
    });
  }

  #message(message) {
    this.#beat = Date.now();
    this.#newest = message.id;
    this.#waiting.push(message);
    this.#catchUp();
  }

  // Takes what waits, in order; where one is missing the game is loaded, which may have it already.
  #catchUp() {
    if (this.#loading || this.#isReset || !this.game)
      return;
    const corrections = [];
    let hasNew = false;
    for (const message of this.#waiting.sort((one, other) => numberOf(one.id) - numberOf(other.id))) {
      const isNext = epochOf(message.id) === epochOf(this.game.id) &&
        numberOf(message.id) === numberOf(this.game.id) + 1;
      if (!isNext)
        continue;
      corrections.push(...apply(this.game, message, this.#isWhole));
      hasNew = true;
    }
    this.#waiting = this.#waiting.filter((message) => epochOf(message.id) === epochOf(this.game.id) &&
      numberOf(message.id) > numberOf(this.game.id));
    this.#hear(this.#beat);
    if (hasNew)
      this.#tell(corrections);
    const isBehind = this.#newest && this.#isStreaming && (epochOf(this.#newest) !== epochOf(this.game.id) ||
      numberOf(this.#newest) > numberOf(this.game.id));
    if (isBehind && Date.now() - this.#asked > 1100)
      this.load();
  }

  #tell(corrections) {
    const until = Date.now() + kMarkFor;
    for (const correction of corrections)
      this.marks.set(correction.id, { ...correction, until });
    if (corrections.length)
      setTimeout(() => this.#forget(), kMarkFor + 100);
    for (const listener of this.#listeners)
      listener(this, corrections);
  }

  #forget() {
    for (const [id, mark] of this.marks)
      if (mark.until <= Date.now())
        this.marks.delete(id);
    this.#tell([]);
  }

  // A browser keeps a page that was left for "back", with its stream, and has six connections in all.
  #sleep() {
    this.#source?.close();
    this.#source = null;
    this.#beat = 0;
  }

  #wake() {
    if (this.#isStreaming)
      return;
    if (this.game)
      this.#open();
    this.load();
  }

  #watch() {
    const now = Date.now();
    if ((!this.game || this.#isReset) && !this.#loading && now - this.#asked > kPollEvery)
      this.load();
    if (this.#isStreaming) {
      this.#catchUp();
      return;
    }
    if (this.game && now - this.#opened > kReopenEvery)
      this.#open();
    const pause = kPollEvery * Math.min(1 + this.#failures / 4, 2);
    if (now - Math.max(this.#opened, this.#beat) > kSilence / 2 && !this.#loading && now - this.#asked > pause)
      this.load();
  }
}
