// Pages that the program writes of real files, in the browser.
//
//   node real_test.js PROGRAM DATA [NAME...]    NAME: only files with one of these in their name
'use strict';
const assert = require('assert');
const {execFile} = require('child_process');
const fs = require('fs');
const path = require('path');
const {inFront} = require('./front');
const {startBrowser, openFile, checkComplaints, closeTabs, frames, folder} = require('./page');

const [program, data, ...names] = process.argv.slice(2);
const cache = path.join(folder, '../cache');  // the files do not change from one run to the next
const clicked = ['as1-oc-214.stp', 'PCB_v3.5.step', 'PushDevice-Assembly.step'];
const clicks = 10;

function filesBelow(folder) {
  if (!fs.existsSync(folder)) return [];
  return fs.readdirSync(folder, {withFileTypes: true}).flatMap(entry => {
    const below = path.join(folder, entry.name);
    return entry.isDirectory() ? filesBelow(below) : /\.(stp|step)$/i.test(entry.name) ? [below] : [];
  }).sort();
}

const run = (...args) => new Promise((resolve, reject) => {
  const done = (error, stdout, stderr) => error ? reject(new Error(stderr || error.message)) : resolve({stdout, stderr});
  execFile(program, ['parts', ...args], {encoding: 'utf8', maxBuffer: 1 << 28, env: {...process.env, XDG_CACHE_HOME: cache}}, done);
});

/// Writes the page; what the program said, and how many occurrences have bodies by the list, which knows nothing of meshes.
async function write(file, html) {
  const {stderr} = await run(file, '--output', html);
  const {rows} = JSON.parse((await run(file, '--format', 'json', '--columns', 'Part Number,Bodies')).stdout);
  return {file, html, report: stderr, withBodies: rows.reduce((sum, row) => sum + (row.cells.bodies > 0 ? row.quantity : 0), 0)};
}

/// The list in the page's file, and the row of its first view that stands for a path or for what is above it.
function readList(page) {
  const list = JSON.parse(/<script type="application\/json" id="parts">(.*?)<\/script>/s.exec(fs.readFileSync(page, 'utf8'))[1]);
  const rows = new Map();
  list.views[0].occurrences.forEach((indices, row) => indices.forEach(index => rows.set(list.paths[index], row)));
  const rowOf = at => rows.get(`${at}#bodies`) ?? rows.get(at) ?? (at.includes('+') ? rowOf(at.slice(0, at.lastIndexOf('+'))) : undefined);
  return {rowCount: list.views[0].list.rows.length, rowOf};
}

const pathOf = (page, instance) => page.evaluate(i => {
  const {instances, occurrences} = partsPage.viewer.model;
  return occurrences[instances[i].occurrence].path;
}, instance);

async function opened({file, html, report, withBodies}, viewport) {
  const page = await openFile(html, {viewport});
  const {stats, inShapes} = await page.evaluate(() => ({
    stats: partsPage.viewer.stats(),
    inShapes: partsPage.viewer.model.shapes.reduce((sum, each) => sum + ((each.opaque?.indices.length ?? 0) + (each.transparent?.indices.length ?? 0)) / 3, 0)}));
  assert.strictEqual(stats.instances, withBodies);
  assert.match(report, new RegExp(`\\b${inShapes} triangles`));
  assert.strictEqual(await page.getAttribute('[role=treegrid]', 'aria-rowcount'), String(readList(html).rowCount + 2));
  assert.match(await page.textContent('.facts'), new RegExp(`· ${stats.triangles.toLocaleString('en')} triangles`));
  console.log(`${path.basename(file)}: ${stats.instances} instances, ${stats.triangles} triangles, ${stats.drawCalls} draw calls, ${fs.statSync(html).size} bytes`);
  return page;
}

async function aClickOnWhatIsInFrontSelectsItsRow(page, html) {
  const {rowOf} = readList(html), done = new Set();
  for (const [view, explode] of [0, 1].flatMap(explode => [...'1624357'].map(view => [view, explode]))) {
    await page.evaluate(([view, explode]) => { Object.assign(partsPage.viewer, {explode}); partsPage.panel.key(view); }, [view, explode]);
    for (const {instance, x, y} of await inFront(page, clicks)) {
      if (done.has(instance) || done.size === clicks) continue;
      done.add(instance);
      await page.mouse.click(x, y);
      assert.deepStrictEqual(await page.evaluate(() => [...partsPage.selection]), [rowOf(await pathOf(page, instance))], `instance ${instance} in view ${view}`);
      assert.strictEqual(await page.locator('.body .row.selected').count(), 1);
      await page.keyboard.press('Escape');
    }
  }
  assert.strictEqual(done.size, clicks);
}

async function draggingTurnsIt(page) {
  const {x, y, width, height} = await page.locator('canvas').boundingBox();
  const before = await page.evaluate(() => ({pose: partsPage.viewer.pose, picture: partsPage.viewer.picture()}));
  await page.mouse.move(x + width / 2, y + height / 2);
  await page.mouse.down();
  await page.mouse.move(x + width / 2 + 90, y + height / 2, {steps: 3});
  await page.mouse.up();
  await frames(page, 2);
  const after = await page.evaluate(() => ({pose: partsPage.viewer.pose, picture: partsPage.viewer.picture()}));
  assert.ok(Math.abs(before.pose.yaw - after.pose.yaw - 90 * Math.PI / 480) < 1e-9);
  assert.notStrictEqual(before.picture, after.picture);
}

async function check(written) {
  const {file, html} = written, isClicked = clicked.includes(path.basename(file));
  const page = await opened(written, isClicked ? {width: 1200, height: 700} : {width: 700, height: 400});
  if (isClicked) {
    await aClickOnWhatIsInFrontSelectsItsRow(page, html);
    await draggingTurnsIt(page);
  }
  checkComplaints();
}

async function main() {
  const files = filesBelow(data).filter(file => !file.includes(`${path.sep}malformed${path.sep}`))
                    .filter(file => !names.length || names.some(name => file.includes(name)));
  if (!files.length) {
    console.log('SKIPPED: no real files');
    return;
  }
  const browser = await startBrowser();
  let failed = 0;
  // The next page is written while the browser has this one.
  const start = file => file && write(file, path.join(folder, `${path.parse(file).name}.html`)).catch(error => ({error}));
  let next = start(files[0]);
  for (const [i, file] of files.entries()) {
    const written = await next;
    next = start(files[i + 1]);
    await (written.error ? Promise.reject(written.error) : check(written)).catch(async error => {
      ++failed;
      console.error(`${path.basename(file)}: ${error.stack}`);
      await closeTabs();
    });
  }
  await browser.close();
  console.log(`${files.length} files, ${failed} failed`);
  process.exitCode = failed ? 1 : 0;
}

main();
