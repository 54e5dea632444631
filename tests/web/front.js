// Which part is in front of a place of the picture: worked out from the triangles, without what the page draws.
'use strict';

/// Up to `most` instances that are in front where the middle of their box is drawn, with a little room around; a place
/// each, in pixels of the window.
const inFront = (page, most) => page.evaluate(({most}) => {
  const {viewer} = partsPage, {model, canvas, places, explode} = viewer;
  const [width, height] = [canvas.clientWidth, canvas.clientHeight];
  const camera = viewer.camera.forPicture(width / height, viewer.places.sphere(viewer.everything, explode));
  const view = camera.projectionMatrix.clone().multiply(camera.matrixWorldInverse).elements;

  const times = (a, b) => Array.from({length: 16}, (_, i) => [0, 1, 2, 3].reduce((sum, k) => sum + a[k * 4 + i % 4] * b[(i >> 2) * 4 + k], 0));
  const onScreen = (m, p, i) => {
    const w = m[3] * p[i] + m[7] * p[i + 1] + m[11] * p[i + 2] + m[15];
    const at = row => (m[row] * p[i] + m[4 + row] * p[i + 1] + m[8 + row] * p[i + 2] + m[12 + row]) / w;
    return [(at(0) + 1) / 2 * width, (1 - at(1)) / 2 * height, at(2)];
  };
  const placed = instance => {
    const world = [...model.instances[instance].matrix];
    for (let k = 0; k < 3; ++k) world[12 + k] += places.ways[instance * 3 + k] * explode;
    return times(view, world);
  };
  // Depth of the triangle at (x, y); it is linear in what is seen.
  const depthAt = (a, b, c, x, y) => {
    const area = (b[0] - a[0]) * (c[1] - a[1]) - (c[0] - a[0]) * (b[1] - a[1]);
    const v = ((x - a[0]) * (c[1] - a[1]) - (c[0] - a[0]) * (y - a[1])) / area, w = ((b[0] - a[0]) * (y - a[1]) - (x - a[0]) * (b[1] - a[1])) / area;
    return area && v >= 0 && w >= 0 && v + w <= 1 ? a[2] + v * (b[2] - a[2]) + w * (c[2] - a[2]) : Infinity;
  };

  const around = [[0, 0], [1.5, 0], [-1.5, 0], [0, 1.5], [0, -1.5]];
  const wanted = model.instances.map((_, i) => viewer.project(i));
  const probes = wanted.flatMap(({x, y}) => around.map(([dx, dy]) => ({x: x + dx, y: y + dy, depth: Infinity, instance: -1})));
  const columns = new Map();  // of eight pixels, so that a triangle meets few probes
  probes.forEach(probe => { const at = Math.floor(probe.x / 8); columns.set(at, [...columns.get(at) ?? [], probe]); });
  model.instances.forEach(({shape}, instance) => {
    const matrix = placed(instance);
    for (const surface of [model.shapes[shape].opaque, model.shapes[shape].transparent]) {
      if (!surface) continue;
      const points = Array.from({length: surface.positions.length / 3}, (_, i) => onScreen(matrix, surface.positions, i * 3));
      for (let i = 0; i < surface.indices.length; i += 3) {
        const [a, b, c] = [0, 1, 2].map(k => points[surface.indices[i + k]]);
        for (let at = Math.floor(Math.min(a[0], b[0], c[0]) / 8); at <= Math.max(a[0], b[0], c[0]) / 8; ++at) {
          for (const probe of columns.get(at) ?? []) {
            const depth = depthAt(a, b, c, probe.x, probe.y);
            if (depth < probe.depth) Object.assign(probe, {depth, instance});
          }
        }
      }
    }
  });
  const {left, top} = canvas.getBoundingClientRect();
  const found = wanted.flatMap(({x, y}, instance) => {
    const own = probes.slice(instance * around.length, (instance + 1) * around.length);
    const inside = x > 4 && y > 4 && x < width - 4 && y < height - 4;
    return inside && own.every(each => each.instance === instance) ? [{instance, x: left + x, y: top + y}] : [];
  });
  const step = Math.max(1, Math.floor(found.length / most));
  return found.filter((_, i) => i % step === 0).slice(0, most);
}, {most});

module.exports = {inFront};
