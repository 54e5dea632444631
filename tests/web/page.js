// Opens the pages in Chromium with software WebGL: the offline one without a network, that of the host from its server.
'use strict';
const assert = require('assert');
const fs = require('fs');
const path = require('path');
const {start} = require('../site/browser');
const {writePage} = require('./glb_writer');

// Without a GPU only the model is worth drawing by what pretends to be one: the rest of the page is drawn faster as it was
// before there were any.
const graphics = ['--use-angle=swiftshader', '--enable-unsafe-swiftshader', '--ignore-gpu-blocklist', '--disable-gpu-compositing'];
const folder = path.join(__dirname, '../../build/web/pages');
const profile = {reducedMotion: 'reduce', offline: true, acceptDownloads: true};
const viewport = {width: 900, height: 480};
const tabs = new Map();  // by language: a new tab costs more than all that a test does in it
let browser;

async function startBrowser() {
  fs.mkdirSync(folder, {recursive: true});
  browser = await start(graphics);
  return browser;
}

/// Opens a page with this list and model as if for the first time: nothing is stored.
async function open(list, glb, {name = 'page', ...options} = {}) {
  const file = path.join(folder, `${name}.html`);
  writePage(file, list, glb);
  return openFile(file, options);
}

/// Opens a page in the tab of its language, which has lost what was stored in it; `page.complaints` has what must
/// not be: errors, and requests beyond the file. `before` runs in the page ahead of its own script.
async function openFile(file, {locale = 'en-GB', colorScheme = 'light', ...size} = {}, before = null) {
  const page = tabs.get(locale) ?? await newTab(locale);
  await page.setViewportSize(size.viewport ?? viewport);
  await page.emulateMedia({media: null, colorScheme});
  await page.mouse.move(2, 2);
  await page.evaluate(() => { if (location.protocol === 'file:') localStorage.clear(); });
  if (before) await page.addInitScript(before);
  await page.goto(`file://${file}`);
  page.shown = null;
  return ready(page);
}

async function newTab(name, options = {...profile, locale: name}) {
  const page = await (await browser.newContext(options)).newPage();
  tabs.set(name, page);
  page.complaints = [];
  page.isAllowed = address => /^(file|data|blob):/.test(address);
  page.on('pageerror', error => page.complaints.push(String(error)));
  page.on('console', message => ['error', 'warning'].includes(message.type()) && !isDriverNote(message.text()) && page.complaints.push(message.text()));
  page.on('request', request => page.isAllowed(request.url()) || page.complaints.push(request.url()));
  return page;
}

// The software driver says that reading pixels is slow there, which it is.
const isDriverNote = text => text.includes('GPU stall due to ReadPixels') || isRefusal(text);

// The browser notes each answer that refuses something, which a page of the host shows to its user.
const isRefusal = text => text.includes('the server responded with a status of 409');

/// Opens the page of a host at this address; `another` names a second tab. `page.complaints` as above: nothing is asked of anyone else.
async function openHost(url, {colorScheme = 'light', viewport: size = {width: 1280, height: 800}, another = ''} = {}) {
  const name = `host${another}`;
  const page = tabs.get(name) ?? await newTab(name, {...profile, offline: false, locale: 'en-GB'});
  const {origin} = new URL(url);
  page.isAllowed = address => address.startsWith(`${origin}/`) || /^(data|blob|about):/.test(address);
  await page.setViewportSize(size);
  await page.emulateMedia({media: null, colorScheme});
  await page.mouse.move(2, 2);
  await page.goto(url);
  await page.waitForFunction(() => document.querySelector('.quick') && (document.querySelector('.stage-note:not(.loading)') || window.hostPage?.scene?.viewer?.stats().frames > 0));
  return page;
}

/// The page, once it has drawn its first picture, if it has any to draw.
async function ready(page) {
  await page.waitForFunction(() => document.querySelector('[role=alert]') || window.partsPage?.viewer.stats().frames > 0);
  return page;
}

async function reload(page) {
  await page.reload();
  return ready(page);
}

/// The page with this list and model in the state in which it opens, without opening it again if it is there;
/// what is stored is not cleared.
async function openAgain(list, glb) {
  const page = tabs.get('en-GB');
  if (!page || page.shown !== list) return Object.assign(await open(list, glb), {shown: list});
  await page.mouse.move(2, 2);
  await page.evaluate(() => {
    document.querySelectorAll('dialog').forEach(each => each.close());
    document.activeElement.blur();
    partsPage.restore('');
  });
  return page;
}

/// Throws when a page complained; it complains once.
function checkComplaints() {
  assert.deepStrictEqual([...tabs.values()].flatMap(page => page.complaints.splice(0)), []);
}

/// After a failure a page may be in any state.
async function closeTabs() {
  for (const page of tabs.values()) await page.context().close();
  tabs.clear();
}

/// Until nothing is left to do: no picture to draw, no state to write to the address.
const settled = page => page.waitForFunction(() => {
  const {viewer, pictures, addressTimer} = partsPage;
  return !viewer.scheduled && !viewer.pointer && !pictures.timer && !addressTimer;
});

/// Lets the browser draw `count` times.
const frames = (page, count) => page.evaluate(left => new Promise(resolve => {
  const next = () => left-- > 0 ? requestAnimationFrame(next) : resolve();
  next();
}), count);

const row = (page, text) => page.locator('.body .row', {has: page.locator(`.cell:text-is("${text}")`)});
const selectedRows = page => page.$$eval('.body .row.selected', rows => rows.map(each => each.querySelector('.cell.text').textContent.replace(/^[▸▾]/, '')));
const shownRows = page => page.$$eval('.body .row', rows => rows.map(each => each.querySelector('.cell.text').textContent.replace(/^[▸▾]/, '')));
const summary = page => page.textContent('.summary');

/// Clicks on the canvas where the middle of an instance's box is drawn.
async function clickInstance(page, instance, options = {}) {
  const {x, y} = await at(page, instance);
  await page.mouse.click(x, y, options);
}

/// Clicks a pixel that is of the instance: its centre may be behind another one, or beside it.
async function clickWhereVisible(page, instance) {
  const place = await page.evaluate(i => {
    const {canvas} = partsPage.viewer, {left, top} = canvas.getBoundingClientRect(), step = 4;
    for (let y = 0; y < canvas.clientHeight; y += step) {
      for (let x = 0; x < canvas.clientWidth; x += step) if (partsPage.viewer.pick(x, y) === i) return {x: left + x, y: top + y};
    }
    return null;
  }, instance);
  assert.ok(place, `instance ${instance} is nowhere to be seen`);
  await page.mouse.click(place.x, place.y);
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
  for (let y = 0; y < canvas.clientHeight; ++y) {
    for (let x = 0; x < canvas.clientWidth; ++x) {
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

/// Runs the tests, or those of these names, one after another; says what failed.
async function runTests(tests, names) {
  const browser = await startBrowser();
  let failed = 0;
  for (const [name, test] of Object.entries(tests)) {
    if (names.length && !names.includes(name)) continue;
    const start = Date.now();
    try {
      await test();
      checkComplaints();
    } catch (error) {
      ++failed;
      await closeTabs();
      console.error(`${name}: ${error.stack}`);
    }
    if (process.env.TIMES) console.log(`${name} ${Date.now() - start} ms`);
  }
  await browser.close();
  console.log(`${Object.keys(tests).length} tests, ${failed} failed`);
  process.exitCode = failed ? 1 : 0;
}

module.exports = {startBrowser, runTests, open, openFile, openHost, openAgain, reload, checkComplaints, closeTabs, settled, frames, row, selectedRows, shownRows, summary, clickInstance, clickWhereVisible,
                  at, visible, remember, changedInstances, withPixels, folder};
