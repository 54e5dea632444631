// Where the instances stand: their boxes, where they go when the assembly is pulled apart, and the texture
// that the shaders read both from.
import {DataTexture, FloatType, NearestFilter, RGBAFormat} from 'three';
import {transform} from '../model/matrix.ts';
import type {Model} from '../model/model.ts';
import type {Sphere} from './camera.ts';
import {instancesInRow, texelsOfPlace} from './shaders.ts';

const deeperShare = 0.7;  // what a level adds to the way of the one above

export class Places {
  readonly boxes: Float64Array;   ///< six numbers an instance: least and greatest corner
  readonly ways: Float64Array;    ///< three numbers an instance: its way when exploded
  readonly texture: DataTexture;

  constructor(model: Model) {
    this.boxes = boxesOf(model);
    this.ways = waysOf(model, this.boxes);
    this.texture = textureOf(model, this.ways);
  }

  /// The sphere about the boxes of these instances, pulled apart by `explode`; about the origin if there is none.
  sphere(instances: Iterable<number>, explode: number): Sphere {
    const min = [Infinity, Infinity, Infinity], max = [-Infinity, -Infinity, -Infinity];
    for (const instance of instances) {
      for (let k = 0; k < 3; ++k) {
        const way = this.ways[instance * 3 + k] * explode;
        min[k] = Math.min(min[k], this.boxes[instance * 6 + k] + way);
        max[k] = Math.max(max[k], this.boxes[instance * 6 + 3 + k] + way);
      }
    }
    if (!(min[0] <= max[0])) return {x: 0, y: 0, z: 0, radius: 1};
    const radius = Math.hypot(max[0] - min[0], max[1] - min[1], max[2] - min[2]) / 2;
    return {x: (min[0] + max[0]) / 2, y: (min[1] + max[1]) / 2, z: (min[2] + max[2]) / 2, radius: radius || 1e-6};
  }

  /// Least and greatest extent of all instances along an axis (0, 1, 2).
  extent(axis: number, explode: number): [number, number] {
    let low = Infinity, high = -Infinity;
    for (let i = 0; i < this.boxes.length / 6; ++i) {
      const way = this.ways[i * 3 + axis] * explode;
      low = Math.min(low, this.boxes[i * 6 + axis] + way);
      high = Math.max(high, this.boxes[i * 6 + 3 + axis] + way);
    }
    return low <= high ? [low, high] : [0, 1];
  }
}

function boxesOf(model: Model): Float64Array {
  const boxes = new Float64Array(model.instances.length * 6);
  const point = [0, 0, 0];
  model.instances.forEach((instance, i) => {
    const {min, max} = model.shapes[instance.shape];
    boxes.fill(Infinity, i * 6, i * 6 + 3).fill(-Infinity, i * 6 + 3, i * 6 + 6);
    for (let corner = 0; corner < 8; ++corner) {
      transform(instance.matrix, corner & 1 ? max[0] : min[0], corner & 2 ? max[1] : min[1],
                corner & 4 ? max[2] : min[2], point);
      for (let k = 0; k < 3; ++k) {
        boxes[i * 6 + k] = Math.min(boxes[i * 6 + k], point[k]);
        boxes[i * 6 + 3 + k] = Math.max(boxes[i * 6 + 3 + k], point[k]);
      }
    }
  });
  return boxes;
}

// Each assembly moves away from the middle of the one above it, and its parts from its own middle: what
// belongs together stays together for longer.
function waysOf(model: Model, boxes: Float64Array): Float64Array {
  const ways = new Float64Array(model.instances.length * 3);
  const middles = model.occurrences.map(each => middle(boxes, each.begin, each.end));
  const whole = middle(boxes, 0, model.instances.length);
  const wayOf: number[][] = [];
  model.occurrences.forEach((occurrence, i) => {
    const above = occurrence.parent < 0 ? {middle: whole, way: [0, 0, 0], share: 1}
        : {middle: middles[occurrence.parent], way: wayOf[occurrence.parent],
           share: model.occurrences[occurrence.parent].path === '' ? 1 : deeperShare};
    wayOf.push(above.way.map((way, k) => way + (middles[i][k] - above.middle[k]) * above.share || 0));
  });
  model.instances.forEach((instance, i) => {
    if (instance.occurrence >= 0) ways.set(wayOf[instance.occurrence], i * 3);
  });
  return ways;
}

function middle(boxes: Float64Array, begin: number, end: number): number[] {
  const min = [Infinity, Infinity, Infinity], max = [-Infinity, -Infinity, -Infinity];
  for (let i = begin; i < end; ++i) {
    for (let k = 0; k < 3; ++k) {
      min[k] = Math.min(min[k], boxes[i * 6 + k]);
      max[k] = Math.max(max[k], boxes[i * 6 + 3 + k]);
    }
  }
  return min.map((low, k) => low <= max[k] ? (low + max[k]) / 2 : 0);
}

function textureOf(model: Model, ways: Float64Array): DataTexture {
  const rows = Math.max(1, Math.ceil(model.instances.length / instancesInRow));
  const data = new Float32Array(rows * instancesInRow * texelsOfPlace * 4);
  model.instances.forEach(({matrix: m}, i) => {
    for (let row = 0; row < 3; ++row) {
      data.set([m[row], m[4 + row], m[8 + row], m[12 + row]], (i * texelsOfPlace + row) * 4);
    }
    data.set(ways.subarray(i * 3, i * 3 + 3), (i * texelsOfPlace + 3) * 4);
  });
  const texture = new DataTexture(data, instancesInRow * texelsOfPlace, rows, RGBAFormat, FloatType);
  texture.minFilter = texture.magFilter = NearestFilter;
  texture.needsUpdate = true;
  return texture;
}
