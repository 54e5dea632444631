// 4 x 4 matrices, column by column, in double precision: positions are summed over many levels.

export type Matrix = Float64Array;

export function identity(): Matrix {
  return Float64Array.of(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
}

export function multiply(a: Matrix, b: ArrayLike<number>): Matrix {
  const product = new Float64Array(16);
  for (let column = 0; column < 4; ++column) {
    for (let row = 0; row < 4; ++row) {
      let sum = 0;
      for (let k = 0; k < 4; ++k) sum += a[k * 4 + row] * b[column * 4 + k];
      product[column * 4 + row] = sum;
    }
  }
  return product;
}

/// Translation, rotation (a quaternion x y z w) and scale as one matrix.
export function compose(t: ArrayLike<number>, q: ArrayLike<number>, s: ArrayLike<number>): Matrix {
  const [x, y, z, w] = [q[0], q[1], q[2], q[3]];
  return Float64Array.of(
      (1 - 2 * (y * y + z * z)) * s[0], 2 * (x * y + z * w) * s[0], 2 * (x * z - y * w) * s[0], 0,
      2 * (x * y - z * w) * s[1], (1 - 2 * (x * x + z * z)) * s[1], 2 * (y * z + x * w) * s[1], 0,
      2 * (x * z + y * w) * s[2], 2 * (y * z - x * w) * s[2], (1 - 2 * (x * x + y * y)) * s[2], 0,
      t[0], t[1], t[2], 1);
}

/// Writes the point (x, y, z), moved by `m`, to `out`.
export function transform(m: ArrayLike<number>, x: number, y: number, z: number, out: number[]): number[] {
  out[0] = m[0] * x + m[4] * y + m[8] * z + m[12];
  out[1] = m[1] * x + m[5] * y + m[9] * z + m[13];
  out[2] = m[2] * x + m[6] * y + m[10] * z + m[14];
  return out;
}
