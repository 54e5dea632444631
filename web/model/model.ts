// What the viewer draws, as plain data: shapes, and where they stand.
//
// Instances are numbered depth first, so that all that is below an occurrence is one range of numbers.

/// Triangles with a colour for each vertex. Lengths are the file's (metres in glTF).
export interface Surface {
  positions: Float32Array;
  normals: Float32Array;
  colors: Uint8Array;  ///< RGBA, sRGB
  indices: Uint32Array;
}

export interface Shape {
  name: string;
  opaque: Surface | null;
  transparent: Surface | null;
  lines: Float32Array | null;  ///< feature edges, two points a line; null: the file has none, find them by angle
  min: [number, number, number];
  max: [number, number, number];
}

/// One shape at one place.
export interface Instance {
  shape: number;
  occurrence: number;
  matrix: Float64Array;  ///< column by column, into the world
}

/// An occurrence of the assembly; its instances and those below it are [begin, end).
export interface Occurrence {
  name: string;
  path: string;
  partNumber: string;
  component: string;
  parent: number;  ///< -1 for what is at the top
  begin: number;
  end: number;
}

export interface Model {
  shapes: Shape[];
  instances: Instance[];
  occurrences: Occurrence[];
}

export function triangleCount(shape: Shape): number {
  return ((shape.opaque?.indices.length ?? 0) + (shape.transparent?.indices.length ?? 0)) / 3;
}
