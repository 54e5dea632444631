// The assembly's side of the page: the canvas and its tool bar.
import {element} from '../list/dom.ts';
import {direction, viewNames} from '../viewer/camera.ts';
import type {Section, Viewer, ViewName} from '../viewer/viewer.ts';
import {button, press} from './controls.ts';
import {texts} from './texts.ts';

export interface Visibility {
  isolate(): void;
  hide(): void;
  showAll(): void;
  dim(): boolean;
  setDim(on: boolean): void;
}

const captions: Record<ViewName, string> = {iso: texts.iso, front: texts.front, back: texts.back, left: texts.left, right: texts.right,
                                            top: texts.topView, bottom: texts.bottom};
const same = 1e-4;  // radians
const axisNames = ['X', 'Y', 'Z'];
// glTF's up is Y, that of a CAD system Z: the page names the axes as the designer knows them.
const axisOrder = [0, 2, 1] as const;
// The designer's Y runs against glTF's Z. Across it the far half is kept, as the isometric view then sees the cut.
const backwards = 2;

export class Panel3d {
  readonly bar = element('div', {class: 'bar', role: 'toolbar', 'aria-label': texts.model});
  private readonly views = element('select', {'aria-label': texts.view, class: 'views'}, ...viewNames.map(name => element('option', {value: name}, captions[name])));
  private readonly perspective = button('perspective', texts.perspective, () => this.toggle('perspective'), {pressed: true, key: 'P'});
  private readonly edges = button('edges', texts.edges, () => this.toggle('edges'), {pressed: true, key: 'E'});
  private readonly cut = button('section', texts.section, () => this.toggleSection(), {pressed: false, key: 'X'});
  private readonly dim: HTMLButtonElement;
  private readonly explode = element('input', {type: 'range', min: 0, max: 1, step: 0.01, value: 0, id: 'explode'});
  private readonly axis = element('select', {'aria-label': texts.sectionAxis, class: 'cutting'},
                                  ...axisOrder.map((axis, i) => element('option', {value: axis}, axisNames[i])));
  private readonly place = element('input', {type: 'range', min: 0, max: 1, step: 0.005, value: 0.5, 'aria-label': texts.sectionAt, class: 'cutting'});
  private readonly flip = button('flip', texts.flip, () => this.applySection(), {pressed: false});

  constructor(private readonly viewer: Viewer, private readonly visibility: Visibility, private readonly changed: () => void) {
    this.views.addEventListener('change', () => this.choose());
    this.dim = button('dim', texts.dim, () => this.toggleDim(), {pressed: false, key: 'G'});
    this.explode.addEventListener('input', () => { viewer.explode = Number(this.explode.value); changed(); });
    this.axis.addEventListener('change', () => this.applySection());
    this.place.addEventListener('input', () => this.applySection());
    this.flip.addEventListener('click', () => { press(this.flip, this.flip.getAttribute('aria-pressed') !== 'true'); this.applySection(); });
    this.flip.classList.add('cutting');
    const group = (...tools: HTMLElement[]) => element('div', {class: 'group'}, ...tools);
    this.bar.append(
        group(button('fit', texts.fit, () => viewer.fit(), {key: 'F'}), this.views, this.perspective, this.edges, this.cut, this.axis, this.place, this.flip),
        group(element('label', {class: 'slider', for: 'explode'}, texts.explode), this.explode), element('span', {class: 'gap'}),
        group(button('isolate', texts.isolate, () => visibility.isolate(), {key: 'I'}), button('hide', texts.hide, () => visibility.hide(), {key: 'H'}), this.dim,
              button('show', texts.showAll, () => visibility.showAll(), {key: 'A'})));
    this.sync();
  }

  /// Names the view that the camera has, if it is one of those, so that each other one can be chosen.
  showView(): void {
    const {yaw, pitch} = this.viewer.pose;
    this.views.selectedIndex = viewNames.findIndex(name => {
      const wanted = direction(name);
      return Math.abs(pitch - wanted.pitch) < same && Math.abs(Math.sin((yaw - wanted.yaw) / 2)) < same;
    });
  }

  /// Shows in the bar what the viewer does.
  sync(): void {
    const {viewer} = this;
    this.showView();
    press(this.perspective, viewer.perspective);
    press(this.edges, viewer.edges);
    press(this.cut, viewer.section !== null);
    press(this.dim, this.visibility.dim());
    this.explode.value = String(viewer.explode);
    this.bar.classList.toggle('cut', viewer.section !== null);
    if (!viewer.section) return;
    this.axis.value = String(viewer.section.axis);
    this.place.value = String(viewer.section.axis === backwards ? 1 - viewer.section.share : viewer.section.share);
    press(this.flip, viewer.section.flipped);
  }

  /// Does what a key stands for; false for a key that stands for nothing here.
  key(key: string): boolean {
    const actions: Record<string, () => void> = {
      f: () => this.viewer.fit(), p: () => this.toggle('perspective'), e: () => this.toggle('edges'), x: () => this.toggleSection(),
      i: () => this.visibility.isolate(), h: () => this.visibility.hide(), g: () => this.toggleDim(), a: () => this.visibility.showAll()};
    viewNames.forEach((name, i) => actions[String(i + 1)] = () => this.viewer.look(name));
    actions[key.toLowerCase()]?.();
    return key.toLowerCase() in actions;
  }

  private choose(): void {
    this.viewer.look(this.views.value as ViewName);
    this.changed();
  }

  private toggle(what: 'perspective' | 'edges'): void {
    this.viewer[what] = !this.viewer[what];
    this.sync();
    this.changed();
  }

  private toggleDim(): void {
    this.visibility.setDim(!this.visibility.dim());
    this.sync();
  }

  private toggleSection(): void {
    if (!this.viewer.section) press(this.flip, false);
    this.viewer.section = this.viewer.section ? null : this.chosenSection();
    this.sync();
    this.changed();
  }

  private applySection(): void {
    if (!this.viewer.section) return;
    this.viewer.section = this.chosenSection();
    this.changed();
  }

  private chosenSection(): Section {
    const axis = Number(this.axis.value) as Section['axis'], share = Number(this.place.value), flipped = this.flip.getAttribute('aria-pressed') === 'true';
    return {axis, share: axis === backwards ? 1 - share : share, flipped};
  }
}
