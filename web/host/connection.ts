// The line to the program: its state with all changes, and actions one after another.
import {applyPatch, type Operation} from 'fast-json-patch';
import type {Answer, Folder, State} from './protocol.ts';

export type Line = 'connecting' | 'open' | 'lost' | 'refused';

type Members = Record<string, unknown>;
interface Waiting { action: string; members: Members; done: ((answer: Answer) => void)[] }

const gone: Answer = {error: 'The program does not answer.', status: 0};

// Of these only the last one matters, as long as none has been sent.
const replaced = new Set(['paste', 'view', 'resize']);

export class Connection {
  state: State | null = null;
  revision = 0;
  line: Line = 'connecting';
  onChange: () => void = () => {};
  /// A refused action, unless its caller asked to handle it.
  onRefused: (text: string) => void = () => {};

  private page = 0;
  private queue: Waiting[] = [];
  private sending = false;
  private answered = 0;  // the revision that has what the last action changed
  private readonly versions = new Map<string, number>();

  start(): void {
    const events = new EventSource('/events');
    events.addEventListener('state', event => this.begin(JSON.parse((event as MessageEvent<string>).data)));
    events.addEventListener('change', event => this.change(JSON.parse((event as MessageEvent<string>).data)));
    events.addEventListener('error', () => {
      this.line = events.readyState === EventSource.CLOSED ? 'refused' : 'lost';
      this.onChange();
    });
  }

  /// Grows when a member of the state has changed.
  version(member: keyof State): number {
    return this.versions.get(member) ?? 0;
  }

  /// Actions that were asked for and not yet answered.
  get pending(): number { return this.queue.length + (this.sending ? 1 : 0); }

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
        this.queue.push({action, members, done: [resolve]});
      }
      void this.send();
    });
  }

  async files(folder: string): Promise<Folder> {
    const response = await fetch(`/files?folder=${encodeURIComponent(folder)}`);
    const answer = await response.json() as Folder & {error?: string};
    if (!response.ok) throw new Error(answer.error ?? response.statusText);
    return answer;
  }

  private async send(): Promise<void> {
    if (this.sending) return;
    this.sending = true;
    for (let next = this.queue.shift(); next; next = this.queue.shift()) {
      const answer = await this.post(next.action, next.members);
      this.answered = answer.revision ?? this.answered;
      for (const done of next.done) done(answer);
    }
    this.sending = false;
    this.onChange();
  }

  private async post(action: string, members: Members): Promise<Answer> {
    try {
      const response = await fetch('/actions', {
        method: 'POST', headers: {'Content-Type': 'application/json'}, body: JSON.stringify({page: this.page, action, ...members})});
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
    for (const member of Object.keys(state)) this.touch(member);
    this.onChange();
  }

  // The document is changed in place: one of 10,000 occurrences is not copied for a key press.
  private change({revision, patch}: {revision: number; patch: Operation[]}): void {
    if (!this.state) return;
    applyPatch(this.state, patch, false, true);
    for (const {path} of patch) this.touch(path.split('/')[1]);
    this.revision = revision;
    this.onChange();
  }

  private touch(member: string): void {
    this.versions.set(member, (this.versions.get(member) ?? 0) + 1);
  }
}
