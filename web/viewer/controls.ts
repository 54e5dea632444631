// Turning, moving and zooming with mouse, fingers and keys.
import type {Camera} from './camera.ts';

const turnPerPixel = Math.PI / 480;
const clickSlack = 4;      // pixels a hand trembles
const keyTurn = Math.PI / 24;

export interface ControlsTarget {
  camera: Camera;
  moved(): void;
  hover(x: number, y: number): void;
  leave(): void;
  click(x: number, y: number, event: PointerEvent): void;
}

interface Finger { x: number; y: number }

export class Controls {
  private fingers = new Map<number, Finger>();
  private start: Finger | null = null;  // null: it moved too far for a click

  constructor(private readonly canvas: HTMLCanvasElement, private readonly target: ControlsTarget) {
    canvas.addEventListener('pointerdown', event => this.down(event));
    canvas.addEventListener('pointermove', event => this.move(event));
    canvas.addEventListener('pointerup', event => this.up(event));
    canvas.addEventListener('pointercancel', event => this.fingers.delete(event.pointerId));
    canvas.addEventListener('pointerleave', () => target.leave());
    canvas.addEventListener('wheel', event => this.wheel(event), {passive: false});
    canvas.addEventListener('contextmenu', event => event.preventDefault());
    canvas.addEventListener('keydown', event => this.key(event));
  }

  private down(event: PointerEvent): void {
    this.canvas.setPointerCapture(event.pointerId);
    this.fingers.set(event.pointerId, {x: event.clientX, y: event.clientY});
    this.start = this.fingers.size === 1 ? {x: event.clientX, y: event.clientY} : null;
  }

  private move(event: PointerEvent): void {
    const finger = this.fingers.get(event.pointerId);
    if (!finger) {
      const {left, top} = this.canvas.getBoundingClientRect();
      this.target.hover(event.clientX - left, event.clientY - top);
      return;
    }
    if (this.start && Math.hypot(event.clientX - this.start.x, event.clientY - this.start.y) > clickSlack) this.start = null;
    const before = [...this.fingers.values()].map(each => ({...each}));
    const [dx, dy] = [event.clientX - finger.x, event.clientY - finger.y];
    Object.assign(finger, {x: event.clientX, y: event.clientY});
    if (this.start) return;
    if (this.fingers.size === 2) this.pinch(before);
    else if (event.buttons & 6 || event.shiftKey) this.pan(dx, dy);
    else this.target.camera.turn(-dx * turnPerPixel, dy * turnPerPixel);
    this.target.moved();
  }

  private up(event: PointerEvent): void {
    this.fingers.delete(event.pointerId);
    if (!this.start || event.button !== 0) return;
    const {left, top} = this.canvas.getBoundingClientRect();
    this.start = null;
    this.target.click(event.clientX - left, event.clientY - top, event);
  }

  private pan(dx: number, dy: number): void {
    this.target.camera.pan(-dx / this.canvas.clientHeight, dy / this.canvas.clientHeight);
  }

  private pinch(before: Finger[]): void {
    const [a, b] = [...this.fingers.values()];
    const gap = (p: Finger, q: Finger) => Math.hypot(p.x - q.x, p.y - q.y) || 1;
    this.pan((a.x + b.x - before[0].x - before[1].x) / 2, (a.y + b.y - before[0].y - before[1].y) / 2);
    this.zoomAt(gap(before[0], before[1]) / gap(a, b), (a.x + b.x) / 2, (a.y + b.y) / 2);
  }

  private wheel(event: WheelEvent): void {
    event.preventDefault();
    const lines = event.deltaMode === 1 ? 30 : 1;
    this.zoomAt(Math.exp(Math.max(-120, Math.min(120, event.deltaY * lines)) * 0.0018), event.clientX, event.clientY);
    this.target.moved();
  }

  private zoomAt(factor: number, clientX: number, clientY: number): void {
    const box = this.canvas.getBoundingClientRect();
    const x = (clientX - box.left - box.width / 2) / box.height;
    const y = (box.top + box.height / 2 - clientY) / box.height;
    this.target.camera.zoom(factor, x, y);
  }

  private key(event: KeyboardEvent): void {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const {camera} = this.target;
    const away = event.shiftKey;
    const actions: Record<string, () => void> = {
      ArrowLeft: () => away ? camera.pan(-0.06, 0) : camera.turn(-keyTurn, 0),
      ArrowRight: () => away ? camera.pan(0.06, 0) : camera.turn(keyTurn, 0),
      ArrowUp: () => away ? camera.pan(0, 0.06) : camera.turn(0, keyTurn),
      ArrowDown: () => away ? camera.pan(0, -0.06) : camera.turn(0, -keyTurn),
      '+': () => camera.zoom(1 / 1.2), '=': () => camera.zoom(1 / 1.2), '-': () => camera.zoom(1.2),
    };
    if (!actions[event.key]) return;
    event.preventDefault();
    actions[event.key]();
    this.target.moved();
  }
}
