// Pictures of the rows, drawn from the model one after another while nothing else is to be done.
import type {Row} from '../list/parts_list.ts';
import type {Viewer} from '../viewer/viewer.ts';
import type {Links} from './links.ts';

const size = {width: 112, height: 72};
const longestQueue = 120;  // more rows than a screen shows
const pause = 8;  // milliseconds, so that scrolling goes first

export class Pictures {
  private readonly done = new Map<string, string>();
  private readonly waiting = new Map<string, {instances: number[]; show: ((address: string) => void)[]}>();
  private timer = 0;

  constructor(private readonly viewer: Viewer, private readonly links: Links) {}

  /// Calls `show` with the address of the row's picture, now or later; never for a row without a shape.
  of(row: Row, show: (address: string) => void): void {
    const [instances] = this.links.places(row);
    if (!instances) return;
    const key = this.key(instances);
    const known = this.done.get(key);
    if (known) return show(known);
    const waits = this.waiting.get(key) ?? {instances, show: []};
    waits.show.push(show);
    this.waiting.delete(key);
    this.waiting.set(key, waits);
    if (this.waiting.size > longestQueue) this.waiting.delete(this.waiting.keys().next().value!);
    this.timer ||= window.setTimeout(() => this.next(), pause);
  }

  // What was asked for last is in sight.
  private next(): void {
    this.timer = 0;
    const last = [...this.waiting].pop();
    if (!last) return;
    const [key, {instances, show}] = last;
    this.waiting.delete(key);
    const address = this.viewer.thumbnail(instances, size.width, size.height);
    this.done.set(key, address);
    show.forEach(each => each(address));
    if (this.waiting.size) this.timer = window.setTimeout(() => this.next(), pause);
  }

  // Parts of one shape look alike wherever they are.
  private key(instances: number[]): string {
    const shapes = this.viewer.model.instances;
    return instances.length === 1 ? `shape ${shapes[instances[0]].shape}` : `instances ${instances[0]} ${instances.length}`;
  }
}
