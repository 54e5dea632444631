// The assembly in 3D: fetched when the host says that it looks different, drawn by the viewer that the offline page has.
import {readGlb} from '../model/glb.ts';
import type {Model} from '../model/model.ts';
import {Viewer, type Pose} from '../viewer/viewer.ts';

export interface SceneEvents {
  pick(path: string): void;
  hover(path: string | null): void;
  moved(): void;
  /// What the stage says instead of a picture: empty where there is one.
  said(text: SceneNote): void;
}

export type SceneNote = {kind: 'none' | 'loading' | 'empty'} | {kind: 'problem'; text: string};

export class Scene {
  viewer: Viewer | null = null;
  private revision = 0;
  private loading = 0;
  private occurrences = new Map<string, number>();
  private selected: number[] = [];
  private hovered: number[] = [];
  private hoveredPath: string | null = null;
  private selection: string[] = [];
  private dark = matchMedia('(prefers-color-scheme: dark)');

  constructor(private readonly root: HTMLElement, private readonly events: SceneEvents) {
    this.dark.addEventListener('change', () => this.viewer?.setPalette(palette()));
  }

  /// Fetches the model if this one is newer; the camera stays, unless `elsewhere` says that it is another design.
  async show(revision: number, elsewhere: boolean): Promise<void> {
    if (revision === this.loading) return;
    this.loading = revision;
    if (elsewhere || !this.viewer) this.events.said({kind: 'loading'});
    try {
      const response = await fetch(`/model.glb?revision=${revision}`);
      if (this.loading !== revision) return;
      if (!response.ok) throw new Error((await response.json().catch(() => ({error: response.statusText})) as {error: string}).error);
      this.replace(response.status === 204 ? null : readGlb(new Uint8Array(await response.arrayBuffer())), revision, elsewhere);
    } catch (error) {
      if (this.loading !== revision) return;
      this.replace(null, revision, true);
      this.events.said({kind: 'problem', text: (error as Error).message});
    }
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

  private replace(model: Model | null, revision: number, elsewhere: boolean): void {
    const pose = elsewhere ? null : this.viewer?.pose ?? null;
    const before = this.viewer && {edges: this.viewer.edges, perspective: this.viewer.perspective};
    this.viewer?.dispose();
    this.viewer = null;
    this.root.replaceChildren();
    this.occurrences = new Map(model?.occurrences.map((each, i) => [each.path, i]));
    if (model?.instances.length) {
      this.viewer = this.makeViewer(model, pose);
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
      canvas.title = path?.split('+').pop() ?? '';
      this.hover(path);
      this.events.hover(path);
    };
    return viewer;
  }

  private pathOf(instance: number): string {
    const {model} = this.viewer!;
    return model.occurrences[model.instances[instance].occurrence]?.path.replace(/#bodies$/, '') ?? '';
  }
}

// The picture uses the colours of the style sheet, light or dark.
function palette() {
  const style = getComputedStyle(document.documentElement);
  const color = (name: string) => (style.getPropertyValue(name).match(/\d+/g) ?? []).map(each => Number(each) / 255);
  return {select: color('--select'), hover: color('--hover'), line: color('--line'), cut: color('--cut')};
}
