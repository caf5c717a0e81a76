// What a bench is told, as the server has it: the first answer says whether one may, then each change comes
// by a stream, or is asked for while none can be held.
import { base } from './dom.js';

const kSilence = 6000;
const kAskEvery = 1500;
const kReopenEvery = 10000;
const kBeatsKept = 8;
const kPatience = 8000;
const kTypingPatience = 120000; // while somebody types the pass phrase

export class BenchFeed {
  board = null;
  refusal = 0; // the status of a server that does not tell: 401, 403; 0: it does
  #team;
  #lang;
  #tell;
  #source = null;
  #heard = Date.now();
  #streamed = 0;
  #opened = 0;
  #asked = 0;
  #isAsking = false;
  #offsets = [];
  #guess = 0;

  constructor(team, lang, tell) {
    this.#team = team;
    this.#lang = lang;
    this.#tell = tell;
  }

  start() {
    this.ask();
    setInterval(() => this.#watch(), 500);
    const awake = () => document.visibilityState === 'visible' && !this.#isStreaming && this.#open();
    document.addEventListener('visibilitychange', awake);
    addEventListener('online', awake);
    addEventListener('pageshow', awake);
    // A browser keeps a page that was left for "back", with its stream, and has six connections in all.
    addEventListener('pagehide', () => {
      this.#source?.close();
      this.#source = null;
      this.#streamed = 0;
    });
  }

  // Of another bench or in another language from now on; what is shown of the other team goes at once.
  change(team, lang) {
    if (team !== this.#team)
      this.board = null;
    this.#team = team;
    this.#lang = lang;
    this.#source?.close();
    this.#source = null;
    this.#streamed = 0;
    this.ask();
  }

  get isLost() {
    return this.age > kSilence;
  }

  get age() {
    return Date.now() - this.#heard;
  }

  get now() {
    const offset = this.#offsets.length ? Math.max(...this.#offsets) : this.#guess;
    return Math.min(Date.now(), this.#heard + kSilence) + offset;
  }

  get #isStreaming() {
    return Date.now() - this.#streamed < kSilence;
  }

  get #query() {
    return `team=${this.#team}&lang=${this.#lang}`;
  }

  async ask() {
    const query = this.#query;
    this.#asked = Date.now();
    this.#isAsking = true;
    try {
      const stop = new AbortController();
      const timer = setTimeout(() => stop.abort(), this.board ? kPatience : kTypingPatience);
      const answer = await fetch(`${base}/api/bench?${query}`, { signal: stop.signal });
      clearTimeout(timer);
      this.refusal = [401, 403, 404, 429].includes(answer.status) ? answer.status : 0;
      if (answer.ok && query === this.#query) {
        const date = Date.parse(answer.headers.get('Date') ?? '');
        this.#guess = date ? date + 500 - Date.now() : this.#guess;
        this.#take(await answer.json(), query);
        if (!this.#source)
          this.#open();
      } else {
        this.#tell();
      }
    } catch {
      // The silence says it.
    } finally {
      this.#isAsking = false;
    }
  }

  #take(board, query) {
    if (query !== this.#query)
      return;
    this.#heard = Date.now();
    this.board = board;
    this.#tell();
  }

  #open() {
    if (this.refusal)
      return;
    this.#source?.close();
    this.#opened = Date.now();
    const query = this.#query;
    const source = new EventSource(`${base}/api/bench/events?${query}`);
    this.#source = source;
    source.onmessage = (event) => {
      this.#streamed = Date.now();
      this.#take(JSON.parse(event.data), query);
    };
    source.addEventListener('reset', () => this.ask());
    source.addEventListener('beat', (event) => {
      if (query !== this.#query)
        return;
      const beat = JSON.parse(event.data);
      this.#streamed = this.#heard = Date.now();
      if (beat.at)
        this.#offsets = [...this.#offsets, beat.at - Date.now()].slice(-kBeatsKept);
    });
  }

  #watch() {
    const now = Date.now();
    if (this.refusal || this.#isStreaming)
      return;
    if (this.board && now - this.#opened > kReopenEvery)
      this.#open();
    if (!this.#isAsking && now - this.#asked > kAskEvery &&
      now - Math.max(this.#opened, this.#streamed) > kSilence / 2)
      this.ask();
  }
}
