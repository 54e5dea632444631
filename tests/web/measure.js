// How long pages take from opening to their first picture, and what turning costs. Software WebGL: of a real GPU, draw
// calls, triangles and bytes say more than the times.
//
//   node measure.js [PAGE.html...]    beside generated assemblies of 100 and 20,000 occurrences
'use strict';
const fs = require('fs');
const os = require('os');
const path = require('path');
const {block} = require('./assemblies');
const {writePage} = require('./glb_writer');
const {startBrowser, openFile, closeTabs, folder} = require('./page');

const runs = 3, turns = 8, viewport = {width: 1280, height: 720};
const median = values => [...values].sort((a, b) => a - b)[Math.floor(values.length / 2)];

/// What runs before the page: it remembers when the first picture was there, which reading a pixel waits for.
function watch() {
  window.waitForDriver = () => {
    const gl = partsPage.viewer.renderer.getContext();
    gl.readPixels(0, 0, 1, 1, gl.RGBA, gl.UNSIGNED_BYTE, new Uint8Array(4));
  };
  const look = () => {
    if (!(window.partsPage?.viewer.stats().frames > 0)) return requestAnimationFrame(look);
    waitForDriver();
    window.firstPicture = performance.now();
  };
  requestAnimationFrame(look);
}

const frame = page => page.evaluate(count => {
  const start = performance.now();
  for (let i = 0; i < count; ++i) {
    partsPage.viewer.camera.turn(0.1, 0);
    partsPage.viewer.draw();
    waitForDriver();
  }
  return (performance.now() - start) / count;
}, turns);

async function measure(file) {
  const opened = [], frames = [];
  let stats;
  for (let run = 0; run < runs; ++run) {
    const page = await openFile(file, {viewport}, watch);
    await page.waitForFunction(() => window.firstPicture);
    opened.push(await page.evaluate(() => window.firstPicture));
    frames.push(await frame(page));
    stats = await page.evaluate(() => partsPage.viewer.stats());
    await closeTabs();
  }
  const {instances, drawCalls, triangles} = stats;
  return [path.basename(file), instances, Math.round(fs.statSync(file).size / 1000), drawCalls, triangles, Math.round(median(opened)), Math.round(median(frames))];
}

function generated(count) {
  const file = path.join(folder, `${count} generated.html`), {list, glb} = block(count);
  writePage(file, list, glb);
  return file;
}

async function main(pages) {
  const browser = await startBrowser();
  console.log(`load average ${os.loadavg().map(each => each.toFixed(1)).join(' ')}`);
  console.log('| Page | Instances | kB | Draw calls | Triangles | First picture, ms | A frame, ms |');
  console.log('|---|---|---|---|---|---|---|');
  for (const file of [generated(100), ...pages.map(each => path.resolve(each)), generated(20000)]) console.log(`| ${(await measure(file)).join(' | ')} |`);
  await browser.close();
}

main(process.argv.slice(2));
