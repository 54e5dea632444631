// Reads binary glTF 2.0: what docs/page.md allows, and nothing else.
//
// Loaders of 3D libraries make an object for each node; here 20,000 nodes become two flat lists.
import {MeshoptDecoder} from 'meshopt-reference';
import {compose, identity, Matrix, multiply} from './matrix.ts';
import type {Instance, Model, Occurrence, Shape, Surface} from './model.ts';

const understood = new Set(['KHR_mesh_quantization', 'EXT_meshopt_compression', 'KHR_materials_unlit']);
const defaultColor = [186, 193, 203, 255];

interface View { buffer: number; byteOffset?: number; byteLength: number; byteStride?: number; extensions?: any }
interface Accessor {
  bufferView?: number; byteOffset?: number; componentType: number; normalized?: boolean; count: number; type: string;
}
interface Primitive { attributes: Record<string, number>; indices?: number; material?: number; mode?: number }
interface GltfNode {
  name?: string; mesh?: number; children?: number[]; matrix?: number[]; translation?: number[]; rotation?: number[];
  scale?: number[]; extras?: any;
}
interface Gltf {
  asset: {version: string}; scene?: number; scenes?: {nodes?: number[]}[]; nodes?: GltfNode[];
  meshes?: {name?: string; primitives: Primitive[]}[]; accessors?: Accessor[]; bufferViews?: View[];
  materials?: any[]; extensionsRequired?: string[];
}

/// Throws an Error that says what is wrong with the bytes.
export function readGlb(bytes: Uint8Array): Model {
  const {json, binary} = chunks(bytes);
  const unknown = (json.extensionsRequired ?? []).filter(each => !understood.has(each));
  if (unknown.length) throw new Error(`the model needs ${unknown.join(', ')}`);
  const buffers = new Buffers(json, binary);
  const shapes = (json.meshes ?? []).map(mesh => readShape(json, buffers, mesh));
  return {shapes, ...placeNodes(json)};
}

function chunks(bytes: Uint8Array): {json: Gltf; binary: Uint8Array} {
  const data = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
  if (bytes.length < 20 || data.getUint32(0, true) !== 0x46546c67) throw new Error('the model is not binary glTF');
  if (data.getUint32(4, true) !== 2) throw new Error('the model is not glTF 2.0');
  const length = data.getUint32(12, true);
  const json = JSON.parse(new TextDecoder().decode(bytes.subarray(20, 20 + length))) as Gltf;
  const start = 20 + length;
  const size = start + 8 <= bytes.length ? data.getUint32(start, true) : 0;
  return {json, binary: bytes.subarray(start + 8, start + 8 + size)};
}

type Numbers = Int8Array | Uint8Array | Int16Array | Uint16Array | Uint32Array | Float32Array;
type NumbersOf = {new(buffer: ArrayBuffer): Numbers; BYTES_PER_ELEMENT: number};
const kinds: Record<number, [NumbersOf, number]> = {
  5120: [Int8Array as NumbersOf, 127], 5121: [Uint8Array as NumbersOf, 255], 5122: [Int16Array as NumbersOf, 32767],
  5123: [Uint16Array as NumbersOf, 65535], 5125: [Uint32Array as NumbersOf, 1], 5126: [Float32Array as NumbersOf, 1],
};
const widths: Record<string, number> = {SCALAR: 1, VEC2: 2, VEC3: 3, VEC4: 4};

/// The accessors of a file, unpacked once each.
class Buffers {
  private views = new Map<number, Uint8Array>();

  constructor(private json: Gltf, private binary: Uint8Array) {}

  /// The accessor's numbers as floating-point values, tightly packed; `width` numbers for each element.
  floats(index: number, width: number): Float32Array {
    const accessor = this.json.accessors![index];
    const raw = this.raw(accessor);
    const own = widths[accessor.type];
    const scale = accessor.normalized ? 1 / kinds[accessor.componentType][1] : 1;
    const result = new Float32Array(accessor.count * width).fill(1);
    for (let i = 0; i < accessor.count; ++i) {
      for (let k = 0; k < Math.min(own, width); ++k) result[i * width + k] = Math.max(raw[i * own + k] * scale, scale === 1 ? -Infinity : -1);
    }
    return result;
  }

  indices(index: number): Uint32Array {
    return Uint32Array.from(this.raw(this.json.accessors![index]));
  }

  private raw(accessor: Accessor): Numbers {
    const [Kind] = kinds[accessor.componentType] ?? [];
    if (!Kind) throw new Error(`the model has numbers of the unknown kind ${accessor.componentType}`);
    const element = widths[accessor.type] * Kind.BYTES_PER_ELEMENT;
    const packed = new Uint8Array(element * accessor.count);
    if (accessor.bufferView === undefined) return new Kind(packed.buffer);
    const view = this.json.bufferViews![accessor.bufferView];
    const bytes = this.view(accessor.bufferView);
    const stride = view.extensions?.EXT_meshopt_compression?.byteStride ?? view.byteStride ?? element;
    const start = accessor.byteOffset ?? 0;
    if (start + stride * (accessor.count - 1) + element > bytes.length) throw new Error('the model is cut short');
    for (let i = 0; i < accessor.count; ++i) {
      packed.set(bytes.subarray(start + i * stride, start + i * stride + element), i * element);
    }
    return new Kind(packed.buffer);
  }

  private view(index: number): Uint8Array {
    let bytes = this.views.get(index);
    if (!bytes) this.views.set(index, bytes = this.unpack(this.json.bufferViews![index]));
    return bytes;
  }

  private unpack(view: View): Uint8Array {
    const packed = view.extensions?.EXT_meshopt_compression;
    const source = packed ?? view;
    const begin = source.byteOffset ?? 0;
    if (begin + source.byteLength > this.binary.length) throw new Error('the model is cut short');
    const bytes = this.binary.subarray(begin, begin + source.byteLength);
    if (!packed) return bytes;
    const target = new Uint8Array(packed.count * packed.byteStride);
    MeshoptDecoder.decodeGltfBuffer(target, packed.count, packed.byteStride, bytes, packed.mode, packed.filter);
    return target;
  }
}

function readShape(json: Gltf, buffers: Buffers, mesh: {name?: string; primitives: Primitive[]}): Shape {
  const opaque: Surface[] = [], transparent: Surface[] = [], lines: Float32Array[] = [];
  for (const primitive of mesh.primitives) {
    const mode = primitive.mode ?? 4;
    if (mode === 1 || mode === 3) lines.push(readLines(buffers, primitive, mode === 3));
    if (mode !== 4) continue;
    const surface = readSurface(json, buffers, primitive);
    (surface.colors[3] < 255 ? transparent : opaque).push(surface);
  }
  const shape: Shape = {
    name: mesh.name ?? '', opaque: joined(opaque), transparent: joined(transparent),
    lines: lines.length ? concatenated(lines) : null, min: [0, 0, 0], max: [0, 0, 0]};
  return withBounds(shape);
}

function readLines(buffers: Buffers, primitive: Primitive, strip: boolean): Float32Array {
  const points = buffers.floats(primitive.attributes.POSITION, 3);
  const order = primitive.indices === undefined ? Uint32Array.from({length: points.length / 3}, (_, i) => i)
                                                : buffers.indices(primitive.indices);
  const ends: number[] = [];
  for (let i = 0; i + 1 < order.length; i += strip ? 1 : 2) ends.push(order[i], order[i + 1]);
  const lines = new Float32Array(ends.length * 3);
  ends.forEach((point, i) => lines.set(points.subarray(point * 3, point * 3 + 3), i * 3));
  return lines;
}

function readSurface(json: Gltf, buffers: Buffers, primitive: Primitive): Surface {
  const positions = buffers.floats(primitive.attributes.POSITION, 3);
  const indices = primitive.indices === undefined ? Uint32Array.from({length: positions.length / 3}, (_, i) => i)
                                                  : buffers.indices(primitive.indices);
  const rgba = primitive.material === undefined ? defaultColor : materialColor(json.materials![primitive.material]);
  const colors = new Uint8Array(positions.length / 3 * 4);
  for (let i = 0; i < colors.length; ++i) colors[i] = rgba[i % 4];
  if (primitive.attributes.NORMAL === undefined) return flat({positions, indices, colors, normals: positions});
  return {positions, normals: buffers.floats(primitive.attributes.NORMAL, 3), colors, indices};
}

// glTF's factors are linear, a screen's bytes are not.
function materialColor(material: any): number[] {
  const factor: number[] = material.pbrMetallicRoughness?.baseColorFactor ?? [1, 1, 1, 1];
  const encode = (x: number) => x <= 0.0031308 ? 12.92 * x : 1.055 * x ** (1 / 2.4) - 0.055;
  const alpha = material.alphaMode === 'BLEND' ? Math.min(factor[3], 0.996) : 1;
  return [...factor.slice(0, 3).map(x => Math.round(encode(x) * 255)), Math.round(alpha * 255)];
}

/// The surface with corners of its own for each triangle, whose normals it gets.
function flat(surface: Surface): Surface {
  const count = surface.indices.length;
  const result = {positions: new Float32Array(count * 3), normals: new Float32Array(count * 3),
                  colors: new Uint8Array(count * 4), indices: Uint32Array.from({length: count}, (_, i) => i)};
  surface.indices.forEach((from, to) => {
    result.positions.set(surface.positions.subarray(from * 3, from * 3 + 3), to * 3);
    result.colors.set(surface.colors.subarray(from * 4, from * 4 + 4), to * 4);
  });
  for (let i = 0; i < count * 3; i += 9) writeNormal(result.positions, i, result.normals);
  return result;
}

function writeNormal(p: Float32Array, i: number, normals: Float32Array): void {
  const [ax, ay, az] = [p[i + 3] - p[i], p[i + 4] - p[i + 1], p[i + 5] - p[i + 2]];
  const [bx, by, bz] = [p[i + 6] - p[i], p[i + 7] - p[i + 1], p[i + 8] - p[i + 2]];
  const [x, y, z] = [ay * bz - az * by, az * bx - ax * bz, ax * by - ay * bx];
  const length = Math.hypot(x, y, z) || 1;
  for (let k = 0; k < 9; k += 3) normals.set([x / length, y / length, z / length], i + k);
}

function concatenated(parts: Float32Array[]): Float32Array {
  const whole = new Float32Array(parts.reduce((sum, part) => sum + part.length, 0));
  let at = 0;
  for (const part of parts) {
    whole.set(part, at);
    at += part.length;
  }
  return whole;
}

function joined(parts: Surface[]): Surface | null {
  if (parts.length < 2) return parts[0] ?? null;
  const vertices = parts.reduce((sum, part) => sum + part.positions.length / 3, 0);
  const whole: Surface = {
    positions: concatenated(parts.map(part => part.positions)), normals: concatenated(parts.map(part => part.normals)),
    colors: new Uint8Array(vertices * 4), indices: new Uint32Array(parts.reduce((sum, part) => sum + part.indices.length, 0))};
  let vertex = 0, index = 0;
  for (const part of parts) {
    whole.colors.set(part.colors, vertex * 4);
    part.indices.forEach((each, i) => whole.indices[index + i] = each + vertex);
    vertex += part.positions.length / 3;
    index += part.indices.length;
  }
  return whole;
}

function withBounds(shape: Shape): Shape {
  const min = [Infinity, Infinity, Infinity], max = [-Infinity, -Infinity, -Infinity];
  for (const points of [shape.opaque?.positions, shape.transparent?.positions, shape.lines]) {
    for (let i = 0; i < (points?.length ?? 0); ++i) {
      min[i % 3] = Math.min(min[i % 3], points![i]);
      max[i % 3] = Math.max(max[i % 3], points![i]);
    }
  }
  if (min[0] <= max[0]) Object.assign(shape, {min, max});
  return shape;
}

interface Step { node: number; parent: number; world: Matrix }

function placeNodes(json: Gltf): {instances: Instance[]; occurrences: Occurrence[]} {
  const instances: Instance[] = [], occurrences: Occurrence[] = [];
  const nodes = json.nodes ?? [];
  const roots = json.scenes?.[json.scene ?? 0]?.nodes ?? [];
  const visited = new Set<number>();

  // Assemblies may be nested deeper than the stack of a browser allows.
  const stack: (Step | number)[] = roots.map(node => ({node, parent: -1, world: identity()})).reverse();
  while (stack.length) {
    const step = stack.pop()!;
    if (typeof step === 'number') {
      occurrences[step].end = instances.length;
      continue;
    }
    if (visited.has(step.node)) throw new Error(`the model has its node ${step.node} twice`);
    visited.add(step.node);
    const node = nodes[step.node];
    const world = multiply(step.world, local(node));
    let parent = step.parent;
    if (typeof node.extras?.path === 'string') {
      parent = occurrences.push(occurrenceOf(node, step.parent, instances.length)) - 1;
      stack.push(parent);
    }
    if (node.mesh !== undefined) instances.push({shape: node.mesh, occurrence: parent, matrix: world});
    for (const child of [...node.children ?? []].reverse()) stack.push({node: child, parent, world});
  }
  return {instances, occurrences};
}

function occurrenceOf(node: GltfNode, parent: number, begin: number): Occurrence {
  const text = (value: unknown) => typeof value === 'string' ? value : '';
  return {name: node.name ?? '', path: node.extras.path, partNumber: text(node.extras.partNumber),
          component: text(node.extras.component), parent, begin, end: begin};
}

function local(node: GltfNode): Matrix {
  if (node.matrix) return Float64Array.from(node.matrix);
  return compose(node.translation ?? [0, 0, 0], node.rotation ?? [0, 0, 0, 1], node.scale ?? [1, 1, 1]);
}
