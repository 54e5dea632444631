// The assembly in 3D: fetched when the host says that it looks different, drawn by the viewer that the offline page has.
import {readGlb} from '../model/glb.ts';
import type {Model, Occurrence} from '../model/model.ts';
import {Viewer, type Pose} from '../viewer/viewer.ts';
import {keyHeader} from './key.ts';

export interface SceneEvents {
  pick(path: string): void;
  hover(path: string | null): void;
  moved(): void;
  /// What the stage says instead of a picture: empty where there is one.
  said(text: SceneNote): void;
}

export type SceneNote = {kind: 'none' | 'loading' | 'empty'} | {kind: 'problem'; text: string};

const firstPause = 500, longestPause = 8000;  // milliseconds until a model that failed is fetched again

export class Scene {
  viewer: Viewer | null = null;
  private revision = 0;
  private loading = 0;  // the revision that is shown or on its way; 0: none, the last one failed
  private turn = 0;
  private retry: ReturnType<typeof setTimeout> | undefined;
  private pause = firstPause;
  private isElsewhere = false;
  private pose: Pose | null = null;  // of the camera, which stays while a model cannot be shown
  private occurrences = new Map<string, number>();
  private selected: number[] = [];
  private hovered: number[] = [];
  private hoveredPath: string | null = null;
  private selection: string[] = [];
  private dark = matchMedia('(prefers-color-scheme: dark)');

  constructor(private readonly root: HTMLElement, private readonly events: SceneEvents) {
    this.dark.addEventListener('change', () => this.viewer?.setPalette(palette()));
  }

  /// Fetches the model if this one is newer, or the last one failed; the camera stays, unless `elsewhere` says that it is another design.
  async show(revision: number, elsewhere: boolean): Promise<void> {
    this.isElsewhere ||= elsewhere;
    if (revision === this.loading) return;
    this.pause = firstPause;
    await this.fetch(revision);
  }

  private async fetch(revision: number): Promise<void> {
    const turn = ++this.turn;
    clearTimeout(this.retry);
    this.loading = revision;
    if (this.isElsewhere || !this.viewer) this.events.said({kind: 'loading'});
    try {
      const response = await fetch(`/model.glb?revision=${revision}`, {headers: keyHeader()});
      if (turn !== this.turn) return;
      if (!response.ok) throw new Error((await response.json().catch(() => ({error: response.statusText})) as {error: string}).error);
      const bytes = await response.arrayBuffer();
      if (turn !== this.turn) return;
      this.loading = Number(response.headers.get('Model-Revision')) || revision;  // it may be newer than what was asked for
      this.replace(response.status === 204 ? null : readGlb(new Uint8Array(bytes)), this.loading);
    } catch (error) {
      if (turn === this.turn) this.fail(revision, (error as Error).message);
    }
  }

  // The program may only have been at work, or not there for a moment: it is asked a few times more.
  private fail(revision: number, text: string): void {
    this.loading = 0;
    if (this.pause <= longestPause) this.retry = setTimeout(() => void this.fetch(revision), this.pause);
    this.pause *= 2;
    this.replace(null, revision);
    this.events.said({kind: 'problem', text});
  }

  /// Marks what is selected.
  select(paths: string[]): void {
    this.selection = paths;
    this.selected = paths.flatMap(path => this.instances(path));
    this.mark();
  }

  /// Marks what the pointer is on elsewhere; null: nothing.
  hover(path: string | null): void {
    if (path === this.hoveredPath) return;
    this.hoveredPath = path;
    this.hovered = path === null || path === '' ? [] : this.instances(path);
    this.mark();
  }

  /// The instances of an occurrence and of all below it.
  instances(path: string): number[] {
    const at = this.occurrences.get(path);
    if (at === undefined || !this.viewer) return [];
    const {begin, end} = this.viewer.model.occurrences[at];
    return Array.from({length: end - begin}, (_, i) => begin + i);
  }

  get shownRevision(): number { return this.revision; }

  private mark(): void {
    this.viewer?.mark(this.selected, this.hovered);
  }

  private replace(model: Model | null, revision: number): void {
    this.pose = this.isElsewhere ? null : this.viewer?.pose ?? this.pose;
    this.isElsewhere = false;
    const before = this.viewer && {edges: this.viewer.edges, perspective: this.viewer.perspective};
    this.viewer?.dispose();
    this.viewer = null;
    this.root.replaceChildren();
    this.occurrences = new Map(model?.occurrences.map((each, i) => [each.path, i]));
    if (model?.instances.length) {
      this.viewer = this.makeViewer(model, this.pose);
      if (before) Object.assign(this.viewer, before);
    }
    this.revision = revision;
    this.events.said({kind: this.viewer ? 'none' : 'empty'});
    this.select(this.selection);
    this.events.moved();
  }

  private makeViewer(model: Model, pose: Pose | null): Viewer {
    const canvas = document.createElement('canvas');
    canvas.tabIndex = 0;
    canvas.setAttribute('role', 'application');
    canvas.setAttribute('aria-label', this.root.dataset.label ?? '');
    this.root.append(canvas);
    const viewer = new Viewer(canvas, model);
    viewer.setPalette(palette());
    if (pose) viewer.pose = pose;
    viewer.onMove = () => this.events.moved();
    viewer.onClick = instance => { if (instance >= 0) this.events.pick(this.pathOf(instance)); };
    viewer.onHover = instance => {
      const path = instance < 0 ? null : this.pathOf(instance);
      canvas.style.cursor = path === null ? '' : 'pointer';
      canvas.title = instance < 0 ? '' : this.nameOf(instance);
      this.hover(path);
      this.events.hover(path);
    };
    return viewer;
  }

  private pathOf(instance: number): string {
    return this.occurrenceOf(instance)?.path.replace(/#bodies$/, '') ?? '';
  }

  // Without what it is in: that is not what stands behind the last "+", which may be one of the name's own.
  private nameOf(instance: number): string {
    const occurrence = this.occurrenceOf(instance), path = this.pathOf(instance);
    const isBodies = occurrence?.path !== path;
    const own = isBodies ? this.viewer!.model.occurrences[occurrence?.parent ?? -1] : occurrence;
    const above = this.viewer!.model.occurrences[own?.parent ?? -1]?.path ?? '';
    return above ? path.slice(above.length + 1) : path;
  }

  private occurrenceOf(instance: number): Occurrence | undefined {
    const {model} = this.viewer!;
    return model.occurrences[model.instances[instance].occurrence];
  }
}

// The picture uses the colours of the style sheet, light or dark.
function palette() {
  const style = getComputedStyle(document.documentElement);
  const color = (name: string) => (style.getPropertyValue(name).match(/\d+/g) ?? []).map(each => Number(each) / 255);
  return {select: color('--select'), hover: color('--hover'), line: color('--line'), cut: color('--cut')};
}
