// An assembly in 3D on a canvas. Draws when something has changed, and never otherwise.
//
// Instances are named by their numbers in the model. The viewer knows no list: it says what is under the
// pointer and shows what it is asked to.
import {LinearSRGBColorSpace, OrthographicCamera, PerspectiveCamera, Vector3, WebGLRenderer, WebGLRenderTarget} from 'three';
import {Model, triangleCount} from '../model/model.ts';
import {axes, between, Camera, direction, Pose, Sphere, ViewName} from './camera.ts';
import {Controls} from './controls.ts';
import {Drawing, hasFaces, Look, Palette} from './drawing.ts';
import {Places} from './places.ts';

export {Look};
export type {Pose, ViewName};

export interface Section { axis: 0 | 1 | 2; share: number; flipped: boolean }

export interface Stats { instances: number; triangles: number; drawCalls: number; frames: number; shapes: number }

const reach = 3;     // pixels from a wire that still mean it
const flight = 260;  // milliseconds from one view to another
const none: number[] = [];

export class Viewer {
  readonly camera = new Camera();
  readonly places: Places;
  readonly drawing: Drawing;
  onHover: (instance: number) => void = () => {};
  onClick: (instance: number, event: PointerEvent) => void = () => {};
  onMove: () => void = () => {};
  onFrame: () => void = () => {};

  private readonly renderer: WebGLRenderer;
  private readonly everything: number[];
  private readonly hasWires: boolean;
  private readonly frameStats = {drawCalls: 0, frames: 0};
  private explodeShare = 0;
  private cutting: Section | null = null;
  private ids: {data: Uint8Array; width: number; height: number} | null = null;
  private laidOut = false;  // until then there is no picture to fit to
  private size = {width: 0, height: 0, ratio: 0};
  private scheduled = 0;
  private travel = 0;
  private pointer: {x: number; y: number} | null = null;
  private marks = {selected: none as Iterable<number>, hovered: none as Iterable<number>};
  private readonly observer = new ResizeObserver(() => this.resize());

  /// Throws an Error when the browser draws no WebGL 2.
  constructor(readonly canvas: HTMLCanvasElement, readonly model: Model) {
    this.renderer = new WebGLRenderer({canvas, antialias: true, alpha: true});
    this.renderer.outputColorSpace = LinearSRGBColorSpace;
    this.renderer.setClearColor(0, 0);
    this.renderer.info.autoReset = false;
    this.places = new Places(model);
    this.drawing = new Drawing(model, this.places);
    this.everything = model.instances.map((_, i) => i);
    this.hasWires = model.shapes.some(shape => !hasFaces(shape));
    new Controls(canvas, {
      camera: this.camera, moved: () => this.moved(), leave: () => this.point(null),
      hover: (x, y) => this.point({x, y}), click: (x, y, event) => this.onClick(this.pick(x, y), event)});
    this.observer.observe(canvas.parentElement!);
    canvas.addEventListener('webglcontextrestored', () => this.changed());
    this.resize();
  }

  /// Gives back what the picture took of the graphics card. The viewer and its canvas are of no use afterwards.
  dispose(): void {
    this.observer.disconnect();
    cancelAnimationFrame(this.scheduled);
    cancelAnimationFrame(this.travel);
    this.scheduled = -1;
    this.pointer = null;
    this.onHover = this.onClick = this.onMove = this.onFrame = () => {};
    this.renderer.dispose();
    this.renderer.forceContextLoss();
  }

  // What is shown

  setPalette(palette: Palette): void {
    this.drawing.setPalette(palette);
    this.changed();
  }

  setLooks(lookOf: (instance: number) => Look): void {
    for (const i of this.everything) this.drawing.looks[i] = lookOf(i);
    this.drawing.update();
    this.changed();
  }

  mark(selected: Iterable<number>, hovered: Iterable<number>): void {
    this.marks = {selected, hovered};
    this.drawing.mark(selected, hovered);
    this.invalidate();
  }

  get edges(): boolean { return this.drawing.edges; }
  set edges(on: boolean) {
    this.drawing.edges = on;
    this.drawing.update();
    this.invalidate();
  }

  get perspective(): boolean { return this.camera.perspective; }
  set perspective(on: boolean) {
    this.camera.perspective = on;
    this.moved();
  }

  /// 0: as built; 1: each part as far again from the middle.
  get explode(): number { return this.explodeShare; }
  set explode(share: number) {
    this.explodeShare = share;
    this.drawing.uniforms.uExplode.value = share;
    this.placeSection();
    this.changed();
  }

  get section(): Section | null { return this.cutting; }
  set section(section: Section | null) {
    this.cutting = section;
    this.placeSection();
    this.changed();
  }

  private placeSection(): void {
    const plane = this.drawing.uniforms.uSection.value;
    if (!this.cutting) {
      plane.set(0, 0, 0, 1e31);
      return;
    }
    const {axis, share, flipped} = this.cutting;
    const [low, high] = this.places.extent(axis, this.explodeShare);
    const at = low + (high - low) * share;
    const sign = flipped ? -1 : 1;
    plane.set(0, 0, 0, sign * at).setComponent(axis, sign);
  }

  // The camera

  /// Flies to what shows these instances, or all that are not hidden.
  fit(instances?: Iterable<number>): void {
    const shown = instances ?? this.everything.filter(i => this.drawing.looks[i] !== Look.Hidden);
    this.fly(this.camera.fitting(this.places.sphere(shown, this.explodeShare), this.aspect()));
  }

  look(name: ViewName): void {
    this.fly({...this.camera.fitting(this.sphere(), this.aspect()), ...direction(name)});
  }

  /// Back to where the picture began, at once.
  home(): void {
    this.laidOut = false;
    this.resize();
  }

  get pose(): Pose { return {...this.camera.pose}; }
  set pose(pose: Pose) {
    this.laidOut = true;
    cancelAnimationFrame(this.travel);
    this.camera.pose = {...pose};
    this.moved();
  }

  private fly(to: Pose): void {
    cancelAnimationFrame(this.travel);
    const from = this.pose, start = performance.now();
    if (matchMedia('(prefers-reduced-motion: reduce)').matches) {
      this.pose = to;
      return;
    }
    const step = (now: number) => {
      const t = Math.min(1, Math.max(0, (now - start) / flight));
      this.camera.pose = between(from, to, t * t * (3 - 2 * t));
      this.moved();
      if (t < 1) this.travel = requestAnimationFrame(step);
    };
    this.travel = requestAnimationFrame(step);
  }

  private sphere(): Sphere {
    return this.places.sphere(this.everything, this.explodeShare);
  }

  private aspect(): number {
    return Math.max(0.1, this.canvas.clientWidth / Math.max(1, this.canvas.clientHeight));
  }

  // Drawing

  private moved(): void {
    this.changed();
    this.onMove();
  }

  private changed(): void {
    this.ids = null;
    this.invalidate();
  }

  private invalidate(): void {
    this.scheduled ||= requestAnimationFrame(() => this.frame());
  }

  private frame(): void {
    this.scheduled = 0;
    this.draw();
    ++this.frameStats.frames;
    this.onFrame();
  }

  private draw(): void {
    this.renderer.info.reset();
    this.renderer.setRenderTarget(null);
    this.renderer.render(this.drawing.scene, this.camera.forPicture(this.aspect(), this.sphere()));
    this.frameStats.drawCalls = this.renderer.info.render.calls;
  }

  private resize(): void {
    const {clientWidth: width, clientHeight: height} = this.canvas.parentElement!;
    if (!width || !height) return;
    const ratio = Math.min(devicePixelRatio, 2);
    const {size} = this;
    if (size.width !== width || size.height !== height || size.ratio !== ratio) {
      this.size = {width, height, ratio};
      this.renderer.setPixelRatio(ratio);
      this.renderer.setSize(width, height);
      this.moved();
    }
    if (!this.laidOut) this.pose = {...this.camera.fitting(this.sphere(), width / height), ...direction('iso')};
  }

  stats(): Stats {
    const looks = this.drawing.looks;
    const triangles = this.model.instances.reduce(
        (sum, {shape}, i) => looks[i] === Look.Hidden ? sum : sum + triangleCount(this.model.shapes[shape]), 0);
    return {instances: this.model.instances.length, shapes: this.model.shapes.length, triangles, ...this.frameStats};
  }

  // What is under the pointer

  private point(at: {x: number; y: number} | null): void {
    const asked = this.pointer !== null;
    this.pointer = at;
    if (!at) this.onHover(-1);
    else if (!asked) {
      requestAnimationFrame(() => {
        const {x, y} = this.pointer ?? {x: -1, y: -1};
        if (this.pointer) this.onHover(this.pick(x, y));
        this.pointer = null;
      });
    }
  }

  /// The instance drawn at this place of the canvas, in CSS pixels, else a wire beside it; a ghost only where nothing else is;
  /// -1: none.
  pick(x: number, y: number): number {
    const instance = this.drawnAt(x, y);
    return instance < 0 && this.hasWires ? this.wireNear(x, y) : instance;
  }

  private wireNear(x: number, y: number): number {
    const {instances, shapes} = this.model;
    for (let away = 1; away <= reach; ++away) {
      for (let at = -away; at < away; ++at) {
        for (const [dx, dy] of [[at, -away], [away, at], [-at, away], [-away, -at]]) {
          const instance = this.drawnAt(x + dx, y + dy);
          if (instance >= 0 && !hasFaces(shapes[instances[instance].shape])) return instance;
        }
      }
    }
    return -1;
  }

  private drawnAt(x: number, y: number): number {
    const {data, width, height} = this.ids ??= this.drawIds();
    const [column, row] = [Math.floor(x), height - 1 - Math.floor(y)];
    if (column < 0 || row < 0 || column >= width || row >= height) return -1;
    const at = (row * width + column) * 4;
    return data[at] + data[at + 1] * 256 + data[at + 2] * 65536 - 1;
  }

  private drawIds(): {data: Uint8Array; width: number; height: number} {
    const [width, height] = [Math.max(1, this.canvas.clientWidth), Math.max(1, this.canvas.clientHeight)];
    const target = new WebGLRenderTarget(width, height);
    const camera = this.camera.forPicture(this.aspect(), this.sphere());
    this.renderer.setRenderTarget(target);
    this.renderer.clear();
    this.renderer.autoClear = false;
    for (const look of [Look.Ghost, Look.Shown]) {
      this.renderer.clearDepth();
      this.drawing.withIds(look, () => this.renderer.render(this.drawing.scene, camera));
    }
    this.renderer.autoClear = true;
    const data = readPixels(this.renderer, target);
    this.renderer.setRenderTarget(null);
    target.dispose();
    return {data, width, height};
  }

  /// Where the middle of an instance's box is on the canvas, in CSS pixels.
  project(instance: number): {x: number; y: number} {
    const sphere = this.places.sphere([instance], this.explodeShare);
    const camera = this.camera.forPicture(this.aspect(), this.sphere());
    const at = new Vector3(sphere.x, sphere.y, sphere.z).applyMatrix4(camera.matrixWorldInverse).applyMatrix4(camera.projectionMatrix);
    return {x: (at.x + 1) / 2 * this.canvas.clientWidth, y: (1 - at.y) / 2 * this.canvas.clientHeight};
  }

  /// The camera's right, up and back in the world, for a sign that shows the axes.
  axes(): {right: Vector3; up: Vector3; back: Vector3} {
    return axes(this.camera.pose);
  }

  // Pictures

  /// The canvas as it is now, as the address of a PNG.
  picture(): string {
    return this.drawn().toDataURL();
  }

  /// The canvas, drawn; what is in it is there until the caller returns to the browser.
  drawn(): HTMLCanvasElement {
    this.draw();
    return this.canvas;
  }

  /// A picture of these instances alone, seen as in the view "iso", on nothing; the address of a PNG.
  thumbnail(instances: number[], width: number, height: number): string {
    const target = new WebGLRenderTarget(width, height, {samples: 4});
    const restore = this.alone(new Set(instances));
    const camera = new Camera();
    camera.perspective = false;
    const sphere = this.places.sphere(instances, 0);
    camera.pose = camera.fitting({...sphere, radius: sphere.radius * 0.94}, width / height);
    this.renderer.setRenderTarget(target);
    this.renderer.render(this.drawing.scene, camera.forPicture(width / height, sphere) as PerspectiveCamera | OrthographicCamera);
    const pixels = readPixels(this.renderer, target);
    this.renderer.setRenderTarget(null);
    target.dispose();
    restore();
    return png(pixels, width, height);
  }

  /// Shows these instances as built, unmarked and uncut; call what it returns to have all as before.
  private alone(instances: Set<number>): () => void {
    const {uExplode, uSection} = this.drawing.uniforms;
    const before = {looks: this.drawing.looks.slice(), explode: uExplode.value, section: uSection.value.clone(), edges: this.edges};
    const use = (edges: boolean) => {
      this.drawing.edges = edges;
      this.drawing.update();
    };
    for (const i of this.everything) this.drawing.looks[i] = instances.has(i) ? Look.Shown : Look.Hidden;
    uExplode.value = 0;
    uSection.value.set(0, 0, 0, 1e31);
    this.drawing.mark(none, none);
    use(true);
    return () => {
      this.drawing.looks.set(before.looks);
      uExplode.value = before.explode;
      uSection.value.copy(before.section);
      this.drawing.mark(this.marks.selected, this.marks.hovered);
      use(before.edges);
    };
  }
}

function readPixels(renderer: WebGLRenderer, target: WebGLRenderTarget): Uint8Array {
  const data = new Uint8Array(target.width * target.height * 4);
  renderer.readRenderTargetPixels(target, 0, 0, target.width, target.height, data);
  return data;
}

// Rows come from below; a rim's colour is mixed with nothing, which has to be taken out again.
function png(pixels: Uint8Array, width: number, height: number): string {
  const canvas = document.createElement('canvas');
  Object.assign(canvas, {width, height});
  const context = canvas.getContext('2d')!;
  const image = context.createImageData(width, height);
  for (let y = 0; y < height; ++y) image.data.set(pixels.subarray((height - 1 - y) * width * 4, (height - y) * width * 4), y * width * 4);
  for (let i = 0; i < image.data.length; i += 4) {
    const alpha = image.data[i + 3];
    if (alpha && alpha < 255) for (let k = 0; k < 3; ++k) image.data[i + k] = Math.min(255, image.data[i + k] * 255 / alpha);
  }
  context.putImageData(image, 0, 0);
  return canvas.toDataURL();
}
