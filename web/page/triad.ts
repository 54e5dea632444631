// A small sign of the axes in a corner of the picture.
import type {Viewer} from '../viewer/viewer.ts';

const reach = 20;
// The designer's X, Y, Z in glTF's world, whose up is Y.
const directions: [string, [number, number, number]][] = [['X', [1, 0, 0]], ['Y', [0, 0, -1]], ['Z', [0, 1, 0]]];

export class Triad {
  readonly root = svg('svg', {class: 'triad', viewBox: '-32 -32 64 64', 'aria-hidden': 'true'});

  constructor(private readonly viewer: Viewer) {
    const before = viewer.onFrame;
    viewer.onFrame = () => {
      before();
      this.draw();
    };
  }

  private draw(): void {
    const {right, up, back} = this.viewer.axes();
    const dot = (a: {x: number; y: number; z: number}, b: number[]) => a.x * b[0] + a.y * b[1] + a.z * b[2];
    const arms = directions.map(([name, way]) => ({name, x: dot(right, way) * reach, y: -dot(up, way) * reach, depth: dot(back, way)}));
    this.root.replaceChildren(...arms.sort((a, b) => a.depth - b.depth).flatMap(({name, x, y}) => {
      const label = svg('text', {x: x * 1.32, y: y * 1.32 + 3, class: `axis-${name}`});
      label.textContent = name;
      return [svg('line', {x2: x, y2: y, class: `axis-${name}`}), label];
    }));
  }
}

function svg(tag: string, attributes: Record<string, unknown>): SVGElement {
  const made = document.createElementNS('http://www.w3.org/2000/svg', tag);
  for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, String(value));
  return made;
}
