// How long a page takes from opening to its first picture, and what turning it costs, against the number of
// occurrences. Software WebGL: of a real GPU, draw calls, triangles and bytes say more than the times.
//
//   tests/web/measure
'use strict';
const fs = require('fs');
const path = require('path');
const {block} = require('./assemblies');
const {startBrowser, open, folder} = require('./page');

const runs = 3, turns = 4;
const median = values => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

/// Draws, and waits for the driver: reading a pixel needs the picture.
const withDrawing = page => page.evaluate(() => {
  window.drawNow = () => {
    const {viewer} = partsPage, gl = viewer.renderer.getContext();
    viewer.draw();
    gl.readPixels(0, 0, 1, 1, gl.RGBA, gl.UNSIGNED_BYTE, new Uint8Array(4));
  };
});

/// From the start of the navigation to a picture that is drawn.
const firstPicture = page => page.evaluate(() => {
  drawNow();
  return performance.now();
});

const frame = page => page.evaluate(count => {
  const start = performance.now();
  for (let i = 0; i < count; ++i) {
    partsPage.viewer.camera.turn(0.1, 0);
    drawNow();
  }
  return (performance.now() - start) / count;
}, turns);

async function main() {
  const browser = await startBrowser();
  console.log('occurrences  kB     draw calls  triangles  first picture  a frame');
  for (const count of [100, 1413, 20000]) {
    const {list, glb} = block(count);
    const opened = [], frames = [];
    let stats;
    for (let run = 0; run < runs; ++run) {
      const page = await open(list, glb, {name: 'measured'});
      await withDrawing(page);
      opened.push(await firstPicture(page));
      frames.push(await frame(page));
      stats = await page.evaluate(() => partsPage.viewer.stats());
      await page.context().close();
    }
    const bytes = fs.statSync(path.join(folder, 'measured.html')).size;
    console.log([String(count).padEnd(12), String(Math.round(bytes / 1000)).padEnd(6), String(stats.drawCalls).padEnd(11), String(stats.triangles).padEnd(10),
                 `${Math.round(median(opened))} ms`.padEnd(14), `${Math.round(median(frames))} ms`].join(' '));
  }
  await browser.close();
}

main();
