// Feature edges of a mesh whose file names none: where two triangles meet at an angle, and rims.
import type {Shape, Surface} from './model.ts';

const sharp = Math.cos(28 * Math.PI / 180);
const grid = 1 << 16;  // corners closer than a 65536th of the shape are one

/// The shape's edges, two points a line.
export function featureEdges(shape: Shape): Float32Array {
  if (shape.lines) return shape.lines;
  const lines: number[] = [];
  for (const surface of [shape.opaque, shape.transparent]) {
    if (surface) addEdges(surface, shape, lines);
  }
  return Float32Array.from(lines);
}

function addEdges(surface: Surface, shape: Shape, lines: number[]): void {
  const corner = weld(surface, shape);
  const open = new Map<number, {from: number; to: number; normal: number[]}>();
  const {indices, positions} = surface;
  const emit = (a: number, b: number) => {
    for (const point of [a, b]) lines.push(positions[point * 3], positions[point * 3 + 1], positions[point * 3 + 2]);
  };
  for (let i = 0; i < indices.length; i += 3) {
    const normal = triangleNormal(positions, indices, i);
    for (let k = 0; k < 3; ++k) {
      const [a, b] = [indices[i + k], indices[i + (k + 1) % 3]];
      const [low, high] = corner[a] < corner[b] ? [corner[a], corner[b]] : [corner[b], corner[a]];
      if (low === high) continue;
      const key = low * 0x4000000 + high;
      const other = open.get(key);
      if (!other) {
        open.set(key, {from: a, to: b, normal});
        continue;
      }
      open.delete(key);
      if (normal[0] * other.normal[0] + normal[1] * other.normal[1] + normal[2] * other.normal[2] < sharp) emit(a, b);
    }
  }
  for (const {from, to} of open.values()) emit(from, to);
}

/// For each vertex the first vertex at its place.
function weld(surface: Surface, shape: Shape): Uint32Array {
  const size = Math.max(shape.max[0] - shape.min[0], shape.max[1] - shape.min[1], shape.max[2] - shape.min[2]) || 1;
  const first = new Map<number, number>();
  const {positions} = surface;
  const cell = (i: number, k: number) => Math.round((positions[i * 3 + k] - shape.min[k]) / size * (grid - 1));
  return Uint32Array.from({length: positions.length / 3}, (_, i) => {
    const key = (cell(i, 0) * grid + cell(i, 1)) * grid + cell(i, 2);
    const found = first.get(key);
    if (found === undefined) first.set(key, i);
    return found ?? i;
  });
}

function triangleNormal(p: Float32Array, indices: Uint32Array, i: number): number[] {
  const [a, b, c] = [indices[i] * 3, indices[i + 1] * 3, indices[i + 2] * 3];
  const [ux, uy, uz] = [p[b] - p[a], p[b + 1] - p[a + 1], p[b + 2] - p[a + 2]];
  const [vx, vy, vz] = [p[c] - p[a], p[c + 1] - p[a + 1], p[c + 2] - p[a + 2]];
  const n = [uy * vz - uz * vy, uz * vx - ux * vz, ux * vy - uy * vx];
  const length = Math.hypot(n[0], n[1], n[2]) || 1;
  return [n[0] / length, n[1] / length, n[2] / length];
}
