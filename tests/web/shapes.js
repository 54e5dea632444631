// Small shapes for drawn assemblies, in mm.
'use strict';

/// A prism over the closed polygon, from z = 0 to `height`; `cap` lists the triangles of its face.
function prism(polygon, cap, height, color) {
  const positions = [], indices = [];
  const n = polygon.length;
  for (const z of [0, height]) for (const [x, y] of polygon) positions.push(x, y, z);
  for (const [a, b, c] of cap) indices.push(a, c, b, a + n, b + n, c + n);
  for (let i = 0; i < n; ++i) {
    const next = (i + 1) % n;
    indices.push(i, next, next + n, i, next + n, i + n);
  }
  return {positions, indices, color};
}

const fan = n => Array.from({length: n - 2}, (_, i) => [0, i + 1, i + 2]);

function box(x, y, z, color) {
  return prism([[-x / 2, -y / 2], [x / 2, -y / 2], [x / 2, y / 2], [-x / 2, y / 2]], fan(4), z, color);
}

function cylinder(radius, height, sides, color, z = 0) {
  const polygon = Array.from({length: sides}, (_, i) => [radius * Math.cos(i * 2 * Math.PI / sides), radius * Math.sin(i * 2 * Math.PI / sides)]);
  return raised(prism(polygon, fan(sides), height, color), z);
}

function raised(part, z) {
  return {...part, positions: part.positions.map((value, i) => i % 3 === 2 ? value + z : value)};
}

/// An angle of two legs, `width` wide.
function angle(leg, thickness, width, color) {
  const polygon = [[0, 0], [leg, 0], [leg, thickness], [thickness, thickness], [thickness, leg], [0, leg]];
  return prism(polygon, [[0, 1, 2], [0, 2, 3], [0, 3, 4], [0, 4, 5]], width, color);
}

/// A ring about the Z axis: `outer` sides outside, a round hole.
function ring(outer, hole, height, sides, color) {
  const positions = [], indices = [];
  const count = 24, radius = angle => outer / Math.cos(((angle % (2 * Math.PI / sides)) - Math.PI / sides));
  for (const z of [0, height]) {
    for (const inner of [false, true]) {
      for (let i = 0; i < count; ++i) {
        const at = i * 2 * Math.PI / count, r = inner ? hole : radius(at);
        positions.push(r * Math.cos(at), r * Math.sin(at), z);
      }
    }
  }
  const quad = (a, b, c, d) => indices.push(a, b, c, a, c, d);
  for (let i = 0; i < count; ++i) {
    const j = (i + 1) % count;
    quad(i, j, 2 * count + j, 2 * count + i);
    quad(count + j, count + i, 3 * count + i, 3 * count + j);
    quad(2 * count + i, 2 * count + j, 3 * count + j, 3 * count + i);
    quad(j, i, count + i, count + j);
  }
  return {positions, indices, color};
}

module.exports = {angle, box, cylinder, raised, ring};
