// Opens the offline page in Chromium with software WebGL, without a network.
'use strict';
const assert = require('assert');
const fs = require('fs');
const path = require('path');
const {start} = require('../site/browser');
const {writePage} = require('./glb_writer');

const graphics = ['--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--ignore-gpu-blocklist'];
const folder = path.join(__dirname, '../../build/web/pages');
let browser;

async function startBrowser() {
  fs.mkdirSync(folder, {recursive: true});
  browser = await start(graphics);
  return browser;
}

/// Opens a page in a fresh profile; `page.complaints` has what must not be: errors, and requests beyond the file.
async function open(list, glb, {hash = '', name = 'page', ...options} = {}) {
  const file = path.join(folder, `${name}.html`);
  writePage(file, list, glb);
  return openFile(file + hash, options);
}

async function openFile(file, options = {}) {
  const context = await browser.newContext({viewport: {width: 1100, height: 640}, reducedMotion: 'reduce', locale: 'en-GB', offline: true,
                                            acceptDownloads: true, ...options});
  const page = await context.newPage();
  page.complaints = [];
  page.on('pageerror', error => page.complaints.push(String(error)));
  page.on('console', message => ['error', 'warning'].includes(message.type()) && !isDriverNote(message.text()) && page.complaints.push(message.text()));
  page.on('request', request => /^(file|data|blob):/.test(request.url()) || page.complaints.push(request.url()));
  await page.goto(`file://${file}`);
  await page.waitForFunction(() => !window.partsPage?.viewer || partsPage.viewer.stats().frames > 0);
  return page;
}

// The software driver says that reading pixels is slow there, which it is.
const isDriverNote = text => text.includes('GPU stall due to ReadPixels');

/// Checks what the page complained about; a page that others use too stays open.
async function close(page) {
  assert.deepStrictEqual(page.complaints, []);
  if (page !== common) await page.context().close();
}

let common = null;

/// One page for many tests, each time as if it had just been opened; what is stored is not cleared.
async function openCommon(list, glb) {
  common ??= await open(list, glb, {name: 'common'});
  await common.mouse.move(2, 2);
  await common.evaluate(() => {
    document.querySelectorAll('dialog').forEach(each => each.close());
    document.activeElement.blur();
    partsPage.restore('');
  });
  return common;
}

/// After a failure a page may be in any state.
async function dropCommon() {
  await common?.context().close();
  common = null;
}

const row = (page, text) => page.locator('.body .row', {has: page.locator(`.cell:text-is("${text}")`)});
const selectedRows = page => page.$$eval('.body .row.selected', rows => rows.map(each => each.querySelector('.cell.text').textContent.replace(/^[▸▾]/, '')));
const shownRows = page => page.$$eval('.body .row', rows => rows.map(each => each.querySelector('.cell.text').textContent.replace(/^[▸▾]/, '')));
const summary = page => page.textContent('.summary');

/// Clicks on the canvas where the middle of an instance's box is drawn.
async function clickInstance(page, instance, options = {}) {
  const {x, y} = await at(page, instance);
  await page.mouse.click(x, y, options);
}

async function at(page, instance) {
  return page.evaluate(i => {
    const {left, top} = partsPage.viewer.canvas.getBoundingClientRect();
    const {x, y} = partsPage.viewer.project(i);
    return {x: left + x, y: top + y};
  }, instance);
}

/// How many pixels of the picture each instance has in front.
const visible = page => page.evaluate(() => {
  const {canvas} = partsPage.viewer, counts = {};
  for (let y = 0; y < canvas.clientHeight; y += 2) {
    for (let x = 0; x < canvas.clientWidth; x += 2) {
      const instance = partsPage.viewer.pick(x, y);
      if (instance >= 0) counts[instance] = (counts[instance] ?? 0) + 1;
    }
  }
  return counts;
});

/// Remembers the picture, for `changedInstances`.
const remember = page => page.evaluate(async () => { window.before = await pixels(); });

/// The instances that have changed in most of their pixels since `remember`; edges of others may cross the rest.
const changedInstances = page => page.evaluate(async () => {
  const [a, b] = [window.before, await pixels()], {canvas} = partsPage.viewer, counts = {};
  for (let y = 0; y < canvas.clientHeight; ++y) {
    for (let x = 0; x < canvas.clientWidth; ++x) {
      const at = (y * a.width + x) * 4;
      const changed = Math.abs(a.data[at] - b.data[at]) + Math.abs(a.data[at + 2] - b.data[at + 2]) >= 24;
      const count = counts[partsPage.viewer.pick(x, y)] ??= [0, 0];
      ++count[changed ? 0 : 1];
    }
  }
  return Object.keys(counts).filter(each => counts[each][0] > counts[each][1]).map(Number);
});

const withPixels = page => page.evaluate(() => {
  window.pixels = async () => {
    const image = new Image();
    image.src = partsPage.viewer.picture();
    await image.decode();
    const canvas = new OffscreenCanvas(image.width, image.height), context = canvas.getContext('2d');
    context.drawImage(image, 0, 0);
    return context.getImageData(0, 0, image.width, image.height);
  };
});

module.exports = {startBrowser, open, openFile, openCommon, dropCommon, close, row, selectedRows, shownRows, summary, clickInstance, at, visible, remember, changedInstances, withPixels, folder};
