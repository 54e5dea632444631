// Pages that the program writes of real files, in the browser.
//
//   node real_test.js PROGRAM DATA
'use strict';
const assert = require('assert');
const {execFileSync} = require('child_process');
const fs = require('fs');
const path = require('path');
const {startBrowser, openFile, close, folder, shownRows, selectedRows, visible} = require('./page');

const [program, data] = process.argv.slice(2);
const files = ['as1-oc-214.stp', 'as1_pe_203.stp', 'tr8_ha1_ug.stp'].map(name => path.join(data, name)).filter(file => fs.existsSync(file));

const run = (...args) => execFileSync(program, args, {encoding: 'utf8', stdio: ['ignore', 'pipe', 'ignore'], maxBuffer: 1 << 28});

/// How many occurrences have bodies, by the list, which knows nothing of meshes.
function occurrencesWithBodies(file) {
  const {rows} = JSON.parse(run('parts', file, '--format', 'json', '--columns', 'Part Number,Bodies'));
  return rows.reduce((sum, row) => sum + (row.cells.bodies > 0 ? row.quantity : 0), 0);
}

/// A place on the screen at which the instance is in front.
function pixelOf(instance) {
  const {canvas} = partsPage.viewer, {left, top} = canvas.getBoundingClientRect();
  const onIt = (x, y) => [[0, 0], [2, 0], [0, 2], [-2, 0], [0, -2]].every(([dx, dy]) => partsPage.viewer.pick(x + dx, y + dy) === instance);
  for (let y = 4; y < canvas.clientHeight; y += 2) for (let x = 4; x < canvas.clientWidth; x += 2) if (onIt(x, y)) return {x: left + x, y: top + y};
  throw new Error(`instance ${instance} has no pixel with others around it`);
}

const tests = {
  async everyOccurrenceWithBodiesIsDrawn(file, stem) {
    run('parts', file, '--output', `${stem}.html`);
    const page = await openFile(`${stem}.html`);
    const {instances, triangles} = await page.evaluate(() => partsPage.viewer.stats());
    assert.strictEqual(instances, occurrencesWithBodies(file));
    console.log(`${path.basename(file)}: ${instances} instances, ${triangles} triangles, ${fs.statSync(`${stem}.html`).size} bytes`);
    assert.strictEqual((await shownRows(page)).length, JSON.parse(run('parts', file, '--format', 'json')).rows.length);
    await close(page);
  },

  async aClickOnWhatIsInFrontSelectsTheRowOfItsPath(file, stem) {
    const page = await openFile(`${stem}.html`);
    const inFront = Object.entries(await visible(page)).filter(([, pixels]) => pixels > 40).map(([instance]) => Number(instance));
    assert.ok(inFront.length > 0);
    for (const instance of inFront.slice(0, 4)) {
      const {x, y} = await page.evaluate(pixelOf, instance);
      await page.mouse.click(x, y);
      const number = await page.evaluate(i => {
        const {instances, occurrences} = partsPage.viewer.model;
        return occurrences[instances[i].occurrence].partNumber;
      }, instance);
      assert.deepStrictEqual(await selectedRows(page), [number]);
    }
    await close(page);
  },
};

async function main() {
  if (!files.length) {
    console.log('SKIPPED: no real files');
    return;
  }
  const browser = await startBrowser();
  let failed = 0;
  for (const file of files) {
    const stem = path.join(folder, path.basename(file, '.stp'));
    for (const [name, test] of Object.entries(tests)) {
      await test(file, stem).catch(error => {
        ++failed;
        console.error(`${path.basename(file)}, ${name}: ${error.stack}`);
      });
    }
  }
  await browser.close();
  console.log(`${files.length} files, ${failed} failed`);
  process.exitCode = failed ? 1 : 0;
}

main();
