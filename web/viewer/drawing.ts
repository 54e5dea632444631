// The scene: a drawable for each shape and way of drawing it, each with a list of the instances to draw.
import {BufferAttribute, BufferGeometry, DataTexture, DynamicDrawUsage, GLSL3, InstancedBufferAttribute, InstancedBufferGeometry,
        LineSegments, Material, Mesh, NearestFilter, RawShaderMaterial, RGBAFormat, Scene, UnsignedByteType, Vector3,
        Vector4} from 'three';
import {featureEdges} from '../model/edges.ts';
import type {Model, Shape, Surface} from '../model/model.ts';
import {Places} from './places.ts';
import * as shaders from './shaders.ts';

/// How an instance is drawn.
export enum Look { Shown, Ghost, Hidden }

const selectedBit = 1, hoveredBit = 2;

export interface Palette { select: number[]; hover: number[]; line: number[]; cut: number[] }

/// Lines of a shape that has no faces are its body: they are drawn with and without edges, and are found under the pointer.
type Kind = 'face' | 'edge' | 'wire';

interface Drawable { look: Look; shape: number; kind: Kind; object: Mesh | LineSegments; ids: InstancedBufferAttribute }

/// What of the instances is drawn, and how.
export class Drawing {
  readonly scene = new Scene();
  readonly looks: Uint8Array;
  readonly uniforms;
  edges = true;
  private readonly states: Uint8Array;
  private readonly stateTexture: DataTexture;
  private readonly byShape: number[][];
  private readonly materials;
  private readonly idMaterial: Material;
  private drawables: Drawable[] = [];
  private hasGhosts = false;

  constructor(private readonly model: Model, places: Places) {
    this.looks = new Uint8Array(model.instances.length);
    this.byShape = model.shapes.map(() => []);
    model.instances.forEach((instance, i) => this.byShape[instance.shape].push(i));
    const rows = Math.max(1, Math.ceil(model.instances.length / shaders.instancesInRow));
    this.states = new Uint8Array(rows * shaders.instancesInRow * 4);
    this.stateTexture = new DataTexture(this.states, shaders.instancesInRow, rows, RGBAFormat, UnsignedByteType);
    this.stateTexture.minFilter = this.stateTexture.magFilter = NearestFilter;
    this.stateTexture.needsUpdate = true;
    this.uniforms = uniforms(places.texture, this.stateTexture);
    this.materials = materials(this.uniforms);
    this.idMaterial = material(this.uniforms, shaders.idVertex, shaders.idFragment, {});
    model.shapes.forEach((shape, i) => this.addShape(shape, i));
    this.update();
  }

  setPalette(palette: Palette): void {
    this.uniforms.uSelect.value.fromArray(palette.select);
    this.uniforms.uHover.value.fromArray(palette.hover);
    this.uniforms.uCut.value.set(palette.cut[0], palette.cut[1], palette.cut[2], 1);
    this.materials.wire.uniforms.uLine.value.set(palette.cut[0], palette.cut[1], palette.cut[2], 1);
    for (const [name, alpha] of [['line', 0.75], ['ghostLine', 0.13]] as const) {
      this.materials[name].uniforms.uLine.value.set(palette.line[0], palette.line[1], palette.line[2], alpha);
    }
  }

  mark(selected: Iterable<number>, hovered: Iterable<number>): void {
    this.states.fill(0);
    for (const i of selected) this.states[i * 4] |= selectedBit;
    for (const i of hovered) this.states[i * 4] |= hoveredBit;
    this.stateTexture.needsUpdate = true;
  }

  /// Brings the lists of instances up to date with `looks` and `edges`.
  update(): void {
    const ghosts = this.looks.includes(Look.Ghost);
    if (ghosts && !this.hasGhosts) this.model.shapes.forEach((_, i) => this.addGhost(i));
    this.hasGhosts ||= ghosts;
    for (const drawable of this.drawables) this.fill(drawable);
  }

  private fill(drawable: Drawable): void {
    let count = 0;
    const ids = drawable.ids.array;
    if (drawable.kind !== 'edge' || this.edges) {
      for (const instance of this.byShape[drawable.shape]) {
        if (this.looks[instance] === drawable.look) ids[count++] = instance;
      }
    }
    drawable.ids.needsUpdate = true;
    (drawable.object.geometry as InstancedBufferGeometry).instanceCount = count;
    drawable.object.visible = count > 0;
  }

  private addShape(shape: Shape, index: number): void {
    if (!this.byShape[index].length) return;
    if (shape.opaque) this.add(new Mesh(faces(shape.opaque), this.materials.face), index, Look.Shown, 0);
    if (shape.transparent) this.add(new Mesh(faces(shape.transparent), this.materials.glass), index, Look.Shown, 2);
    const lines = featureEdges(shape);
    const material = hasFaces(shape) ? this.materials.line : this.materials.wire;
    if (lines.length) this.add(new LineSegments(linesOf(lines), material), index, Look.Shown, 1);
  }

  private addGhost(index: number): void {
    for (const {object, kind} of this.drawables.filter(each => each.shape === index && each.look === Look.Shown)) {
      const geometry = object.geometry as InstancedBufferGeometry;
      const copy = sharing(geometry);
      if (kind === 'face') this.add(new Mesh(copy, this.materials.ghost), index, Look.Ghost, 4);
      else this.add(new LineSegments(copy, this.materials.ghostLine), index, Look.Ghost, 3);
    }
  }

  private add(object: Mesh | LineSegments, shape: number, look: Look, order: number): void {
    const ids = new InstancedBufferAttribute(new Float32Array(this.byShape[shape].length), 1);
    ids.setUsage(DynamicDrawUsage);
    object.geometry.setAttribute('iId', ids);
    object.frustumCulled = false;
    object.matrixAutoUpdate = false;
    object.renderOrder = order;
    this.scene.add(object);
    const kind = object instanceof Mesh ? 'face' : hasFaces(this.model.shapes[shape]) ? 'edge' : 'wire';
    this.drawables.push({look, shape, kind, object, ids});
  }

  /// Calls `render` with only the faces and wires of this look in the scene, each in the colour of its number.
  withIds(look: Look, render: () => void): void {
    const before = this.drawables.map(({object}) => ({visible: object.visible, material: object.material}));
    for (const {object, look: own, kind} of this.drawables) {
      object.visible &&= own === look && kind !== 'edge';
      object.material = this.idMaterial;
    }
    render();
    this.drawables.forEach(({object}, i) => Object.assign(object, before[i]));
  }
}

export const hasFaces = (shape: Shape) => shape.opaque !== null || shape.transparent !== null;

type Uniforms = ReturnType<typeof uniforms>;

function uniforms(places: DataTexture, states: DataTexture) {
  return {uPlaces: {value: places}, uStates: {value: states}, uExplode: {value: 0}, uSection: {value: new Vector4(0, 0, 0, 1e31)},
          uSelect: {value: new Vector3()}, uHover: {value: new Vector3()}, uCut: {value: new Vector4()}};
}

function material(shared: Uniforms, vertexShader: string, fragmentShader: string, more: object): RawShaderMaterial {
  const own = {uLine: {value: new Vector4(0, 0, 0, 1)}};
  return new RawShaderMaterial({glslVersion: GLSL3, vertexShader, fragmentShader, uniforms: {...shared, ...own}, side: 2, ...more});
}

function materials(shared: Uniforms) {
  const behindLines = {polygonOffset: true, polygonOffsetFactor: 1, polygonOffsetUnits: 1};
  const blended = {transparent: true, depthWrite: false};
  const face = (more: object) => material(shared, shaders.faceVertex, shaders.faceFragment, {...behindLines, ...more});
  const line = () => material(shared, shaders.lineVertex, shaders.lineFragment, blended);
  return {face: face({}), glass: face(blended), ghost: face({...blended, defines: {GHOST: '0.055'}}),
          line: line(), wire: line(), ghostLine: line()};
}

function instanced(attributes: Record<string, BufferAttribute>, index: BufferAttribute | null): InstancedBufferGeometry {
  const geometry = new InstancedBufferGeometry();
  for (const [name, attribute] of Object.entries(attributes)) geometry.setAttribute(name, attribute);
  geometry.setIndex(index);
  return geometry;
}

function faces(surface: Surface): InstancedBufferGeometry {
  const narrow = surface.positions.length / 3 <= 0xffff;
  return instanced({
    position: new BufferAttribute(surface.positions, 3), normal: new BufferAttribute(surface.normals, 3),
    color: new BufferAttribute(surface.colors, 4, true),
  }, new BufferAttribute(narrow ? Uint16Array.from(surface.indices) : surface.indices, 1));
}

function linesOf(points: Float32Array): InstancedBufferGeometry {
  return instanced({position: new BufferAttribute(points, 3)}, null);
}

function sharing(geometry: BufferGeometry): InstancedBufferGeometry {
  const {iId: _, ...attributes} = geometry.attributes as Record<string, BufferAttribute>;
  return instanced(attributes, geometry.index);
}
