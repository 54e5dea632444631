// The line to the program: its state with all changes, and actions one after another.
import {applyPatch, type Operation} from 'fast-json-patch';
import {keyHeader, withKey} from './key.ts';
import type {Answer, Folder, State} from './protocol.ts';

/// `asleep`: the page is hidden, and holds no connection; `full`: other pages have all that the program offers.
export type Line = 'connecting' | 'open' | 'asleep' | 'lost' | 'full' | 'refused';

type Members = Record<string, unknown>;
interface Waiting { action: string; members: Members; dialog: string | undefined; done: ((answer: Answer) => void)[] }

const gone: Answer = {error: 'The program does not answer.', status: 0};

// Of these only the last one matters, as long as none has been sent.
const replaced = new Set(['paste', 'view', 'resize']);
// These are what the program waits for, so they never wait for it.
const urgent = new Set(['answerMessage', 'answerFile', 'cancelProgress']);

const firstPause = 500, longestPause = 16000;  // milliseconds until the line is tried again

const heldPause = 100;  // milliseconds after which a text is sent again that came while the program waited for something else

// A page that lost its stream is unknown to the program: the action was not looked at.
const isRefusedForNow = ({status, waiting}: Answer) => status === 409 && waiting === true;
const isUnknownPage = ({status, error = ''}: Answer) => status === 410 || status === 404 && error.startsWith('no such page');

export class Connection {
  state: State | null = null;
  revision = 0;
  line: Line = 'connecting';
  /// How often the line was opened; each time the program knows the page by another number, and nothing of its tables.
  openings = 0;
  onChange: () => void = () => {};
  /// A refused action, unless its caller asked to handle it.
  onRefused: (text: string) => void = () => {};

  private page = 0;
  private events: EventSource | null = null;
  private retry: ReturnType<typeof setTimeout> | undefined;
  private pause = firstPause;
  private queue: Waiting[] = [];
  private inTurn: Waiting | null = null;      // sent, and the others wait for its answer
  private readonly ahead = new Set<Waiting>();  // sent beside it
  private answered = 0;  // the revision that has what the last action changed
  private isWaitedFor = false;  // the last answer came before the action was done
  private isPaused = false;
  private readonly versions = new Map<string, number>();

  /// A browser allows few connections to one program, for all pages together: a page that is not seen gives its own up.
  start(): void {
    const look = () => document.visibilityState === 'hidden' ? this.sleep() : this.open();
    document.addEventListener('visibilitychange', look);
    addEventListener('pagehide', () => this.close());
    addEventListener('pageshow', look);
    look();
  }

  /// Grows when a member of the state has changed.
  version(member: keyof State): number {
    return this.versions.get(member) ?? 0;
  }

  /// Actions that were asked for and not yet answered.
  get pending(): number { return this.queue.length + this.ahead.size + (this.inTurn ? 1 : 0); }

  /// Nothing is on its way: all actions are answered, and the state has what they changed.
  get isSettled(): boolean { return this.pending === 0 && this.revision >= this.answered; }

  /// Does an action after those asked for before; a refusal is shown to the user.
  async act(action: string, members: Members = {}): Promise<Answer> {
    const answer = await this.ask(action, members);
    if (answer.error) this.onRefused(answer.error);
    return answer;
  }

  /// The same, where the caller handles a refusal.
  ask(action: string, members: Members = {}): Promise<Answer> {
    return new Promise(resolve => {
      const last = this.queue[this.queue.length - 1];
      if (last && replaced.has(action) && last.action === action && last.members.input === members.input) {
        last.members = members;
        last.done.push(resolve);
      } else {
        this.queue.push({action, members, dialog: this.state?.dialog?.command, done: [resolve]});
      }
      this.send();
    });
  }

  async files(folder: string): Promise<Folder> {
    const response = await fetch(`/files?folder=${encodeURIComponent(folder)}`, {headers: keyHeader()});
    const answer = await response.json() as Folder & {error?: string};
    if (!response.ok) throw new Error(answer.error ?? response.statusText);
    return answer;
  }

  private open(): void {
    if (this.events) return;
    clearTimeout(this.retry);
    const events = new EventSource(withKey('/events'));
    this.events = events;
    const on = (name: string, act: (event: Event) => void) => events.addEventListener(name, event => { if (this.events === events) act(event); });
    on('state', event => this.begin(JSON.parse((event as MessageEvent<string>).data)));
    on('change', event => this.change(JSON.parse((event as MessageEvent<string>).data)));
    on('error', () => {
      if (events.readyState === EventSource.CLOSED) void this.refused();
      else this.lose('lost');
    });
  }

  private close(): void {
    clearTimeout(this.retry);
    this.events?.close();
    this.events = null;
    if (this.line === 'open') this.line = 'asleep';
  }

  // What was sent is answered to this page alone, so the line is held until then.
  private sleep(): void {
    if (!this.inTurn && !this.ahead.size) this.close();
  }

  // An answer that is no stream closes it without saying which one it was.
  private async refused(): Promise<void> {
    this.close();
    const stop = new AbortController();
    const status = await fetch('/events', {headers: keyHeader(), signal: stop.signal}).then(response => response.status, () => 0);
    stop.abort();
    if (this.events) return;
    this.lose(status === 403 ? 'refused' : status === 503 ? 'full' : 'lost');
    if (status !== 403) this.openLater();
  }

  private openLater(): void {
    clearTimeout(this.retry);
    this.retry = setTimeout(() => { if (document.visibilityState !== 'hidden') this.open(); }, this.pause);
    this.pause = Math.min(longestPause, 2 * this.pause);
  }

  private lose(line: Line): void {
    this.line = line;
    this.send();
    this.onChange();
  }

  // Nothing else is done while the program waits for an answer, or works itself.
  private get isHeld(): boolean {
    const {state} = this;
    return !state || this.isPaused || this.isWaitedFor && this.revision < this.answered || state.message !== null || state.fileDialog !== null || state.busy !== null;
  }

  private send(): void {
    if (this.line === 'open') {
      for (const each of this.queue.filter(({action}) => urgent.has(action))) void this.deliver(each);
      const next = this.inTurn ? undefined : this.isHeld ? this.queue.find(({action}) => action === 'view') : this.queue[0];
      if (next) void this.deliver(next);
    } else if (this.line !== 'connecting' && this.line !== 'asleep') {
      // What was typed is kept until the line is there again. A click is not: what it would be on by then is not known.
      const dropped = this.queue.filter(({action}) => action !== 'paste');
      this.queue = this.queue.filter(({action}) => action === 'paste');
      dropped.forEach(({done}) => done.forEach(each => each(gone)));
    }
  }

  private async deliver(sent: Waiting): Promise<void> {
    this.queue.splice(this.queue.indexOf(sent), 1);
    const isAhead = urgent.has(sent.action);
    if (isAhead) this.ahead.add(sent);
    else this.inTurn = sent;
    const {openings} = this;
    const answer = await this.post(sent.action, sent.members);
    if (isAhead) this.ahead.delete(sent);
    else this.inTurn = null;
    if (openings === this.openings) this.answered = Math.max(this.answered, answer.revision ?? 0);
    if (!isAhead) this.isWaitedFor = answer.waiting === true;
    if (isRefusedForNow(answer)) this.pauseOnce();
    if (this.isUndelivered(sent, answer)) this.keep(sent);
    else sent.done.forEach(each => each(answer));
    if ((answer.status === 0 || isUnknownPage(answer)) && openings === this.openings && this.line === 'open') this.openAnew();
    this.send();
    if (document.visibilityState === 'hidden') this.sleep();
    this.onChange();
  }

  // A text replaces the one before, so that sending it twice does no harm.
  private isUndelivered({action}: Waiting, answer: Answer): boolean {
    return action === 'paste' && (answer.status === 0 || isUnknownPage(answer) || isRefusedForNow(answer));
  }

  // What the program waits for is on its way here, or over already.
  private pauseOnce(): void {
    if (this.isPaused) return;
    this.isPaused = true;
    setTimeout(() => {
      this.isPaused = false;
      this.send();
      this.onChange();
    }, heldPause);
  }

  private keep(sent: Waiting): void {
    const later = this.queue.find(each => each.action === sent.action && each.members.input === sent.members.input);
    if (later) later.done.unshift(...sent.done);
    else this.queue.unshift(sent);
  }

  private openAnew(): void {
    this.close();
    this.lose('lost');
    this.openLater();
  }

  private async post(action: string, members: Members): Promise<Answer> {
    try {
      const response = await fetch('/actions', {
        method: 'POST', headers: {'Content-Type': 'application/json', ...keyHeader()}, body: JSON.stringify({page: this.page, action, ...members})});
      const answer = await response.json().catch(() => ({error: response.statusText})) as Answer;
      return response.ok ? answer : {...answer, error: answer.error ?? response.statusText, status: response.status};
    } catch {
      return gone;
    }
  }

  private begin({page, revision, state}: {page: number; revision: number; state: State}): void {
    this.page = page;
    this.revision = revision;
    this.answered = 0;
    this.state = state;
    this.line = 'open';
    this.pause = firstPause;
    ++this.openings;
    for (const member of Object.keys(state)) this.touch(member);
    this.dropForeignTexts(state.dialog?.command);
    this.send();
    this.onChange();
  }

  // The input that a kept text is for may be another one by now.
  private dropForeignTexts(dialog: string | undefined): void {
    const foreign = this.queue.filter(each => each.action === 'paste' && each.dialog !== dialog);
    this.queue = this.queue.filter(each => !foreign.includes(each));
    foreign.forEach(({done}) => done.forEach(each => each(gone)));
  }

  // The document is changed in place: one of 10,000 occurrences is not copied for a key press.
  private change({revision, patch}: {revision: number; patch: Operation[]}): void {
    if (!this.state) return;
    try {
      applyPatch(this.state, patch, false, true);
    } catch {
      // It is half applied: only a whole state helps.
      this.close();
      this.line = 'connecting';
      this.openLater();
      return;
    }
    for (const {path} of patch) this.touch(path.split('/')[1]);
    this.revision = revision;
    this.send();
    this.onChange();
  }

  private touch(member: string): void {
    this.versions.set(member, (this.versions.get(member) ?? 0) + 1);
  }
}
