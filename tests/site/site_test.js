// The web pages that the palettes show.
//
//   node site_test.js SITE
'use strict';
const assert = require('assert');
const {serve, start, violations} = require('./browser');

const unitsPath = '/units/units-cmd.asp?app=Inventor';
const modelsPath = '/download/CAM/f360/fusion_pruvodce.htm';
const sizes = [{width: 260, height: 400}, {width: 350, height: 300}];

let base, browser;

/// A page of the site in a fresh profile, with what it asked for and complained about.
async function open(path, options = {}) {
  const context = await browser.newContext({viewport: sizes[0], ...options});
  const page = await context.newPage();
  page.requested = [];
  page.errors = [];
  page.on('request', request => page.requested.push(request.url()));
  page.on('pageerror', error => page.errors.push(String(error)));
  page.on('console', message => message.type() === 'error' && page.errors.push(message.text()));
  const response = await page.goto(base + path);
  assert.strictEqual(response.status(), 200);
  return page;
}

const result = page => page.textContent('#result');

async function choose(page, quantity, from, to) {
  await page.selectOption('#quantity', quantity);
  for (const [list, symbol] of [['#from', from], ['#to', to]]) {
    const labels = await page.$$eval(list + ' option', options => options.map(each => each.label));
    const label = labels.find(each => each.startsWith(symbol + ', '));
    assert.ok(label, `${quantity} has no unit ${symbol}`);
    await page.selectOption(list, {label});
  }
}

async function converted(page, value, quantity, from, to) {
  await choose(page, quantity, from, to);
  await page.fill('#value', value);
  return (await result(page)).split(' = ')[1];
}

const tests = {
  async everyPageFitsBothPalettesInWidthAndHasNoViolation() {
    for (const path of [unitsPath, modelsPath]) {
      for (const viewport of sizes) {
        for (const colorScheme of ['light', 'dark']) {
          const page = await open(path, {viewport, colorScheme});
          const [needed, given] = await page.evaluate(() =>
              [document.documentElement.scrollWidth, document.documentElement.clientWidth]);
          assert.ok(needed <= given, `${path} needs ${needed} of ${given} pixels`);
          assert.strictEqual(await violations(page), '');
          assert.deepStrictEqual(page.errors, []);
          assert.deepStrictEqual(page.requested, [base + path]);
          await page.context().close();
        }
      }
    }
  },

  async aPlantedViolationIsSeen() {
    const page = await open(unitsPath);
    await page.evaluate(() => document.querySelector('label[for=value]').remove());
    assert.match(await violations(page), /^label: #value$/m);
  },

  async theConverterShowsItsResultWithoutScrolling() {
    const page = await open(unitsPath);
    const box = await page.locator('#result').boundingBox();
    assert.ok(box.y + box.height <= 400, `the result ends at ${box.y + box.height}`);
  },

  async anErrorAndTheSourcesHaveNoViolation() {
    for (const colorScheme of ['light', 'dark']) {
      const page = await open(unitsPath, {colorScheme});
      await page.fill('#value', 'abc');
      await page.click('summary');
      assert.strictEqual(await page.getAttribute('#value', 'aria-invalid'), 'true');
      assert.strictEqual(await violations(page), '');
    }
  },

  async theConverterWorksOffline() {
    const page = await open(unitsPath);
    await page.context().setOffline(true);
    assert.strictEqual(await converted(page, '2', 'Length', 'in', 'mm'), '50.8 mm');
    assert.deepStrictEqual(page.requested, [base + unitsPath]);
  },

  // Worked out by hand from the definitions, in ten digits.
  async everyUnitIsConvertedByItsDefinition() {
    const page = await open(unitsPath);
    const expected = require('./conversions.json');
    for (const [quantity, base, units] of expected) {
      for (const [symbol, text] of units) {
        assert.strictEqual(await converted(page, '1', quantity, symbol, base), `${text} ${base}`, symbol);
      }
      const offered = await page.$$eval('#from option', options => options.map(each => each.label.split(',')[0]));
      const checked = [base, ...units.map(([symbol]) => symbol)];
      assert.deepStrictEqual(offered.sort(), checked.sort(), `units of ${quantity}`);
    }
  },

  async bothWaysAndOtherValues() {
    const page = await open(unitsPath);
    const conversions = [['25.4', 'Length', 'mm', 'in', '1 in'], ['3', 'Length', 'ft', 'in', '36 in'],
                         ['180', 'Angle', '°', 'rad', '3.141592654 rad'],
                         ['-40', 'Temperature', '°C', '°F', '−40 °F'],
                         ['100', 'Temperature', '°C', '°F', '212 °F'],
                         ['98.6', 'Temperature', '°F', '°C', '37 °C'], ['32', 'Temperature', '°F', '°C', '0 °C'],
                         ['0', 'Temperature', 'K', '°F', '−459.67 °F'],
                         ['-459.67', 'Temperature', '°F', 'K', '0 K'], ['1e15', 'Mass', 't', 'kg', '1 × 10^18 kg'],
                         ['1', 'Length', 'nm', 'km', '1 × 10^−12 km'],
                         ['123456789012', 'Length', 'm', 'm', '123456789000 m'],
                         ['0', 'Force', 'N', 'lbf', '0 lbf']];
    for (const [value, quantity, from, to, shown] of conversions) {
      assert.strictEqual(await converted(page, value, quantity, from, to), shown, `${value} ${from}`);
    }
  },

  async decimalCommaAndPointAreRead() {
    const page = await open(unitsPath);
    await choose(page, 'Length', 'in', 'mm');
    for (const [typed, shown] of [['1.5', '1.5 in = 38.1 mm'], ['1,5', '1,5 in = 38,1 mm'], ['.5', '0.5 in = 12.7 mm'],
                                  [' 1 234,5 ', '1234,5 in = 31356,3 mm'], ['1.234,5', '1234,5 in = 31356,3 mm'],
                                  ['1,234.5', '1234.5 in = 31356.3 mm'], ['1,234', '1,234 in = 31,3436 mm'],
                                  ['−2', '−2 in = −50.8 mm'], ['2e-3', '0.002 in = 0.0508 mm']]) {
      await page.fill('#value', typed);
      assert.strictEqual(await result(page), shown, typed);
      assert.strictEqual(await page.getAttribute('#value', 'aria-invalid'), 'false');
    }
  },

  async whatIsNoNumberIsNamed() {
    const page = await open(unitsPath);
    const advice = ' is not a number. Write it with digits and a decimal point or comma, such as 12.5 or 12,5.';
    for (const typed of ['12a', '1,2,3', '1.2.3', '0x10', '1/2', '--1', 'Infinity', '1.23,4.5']) {
      await page.fill('#value', typed);
      assert.strictEqual(await result(page), `“${typed}”${advice}`);
    }
    await page.fill('#value', '  ');
    assert.strictEqual(await result(page), 'Type a number, such as 12.5 or 12,5.');
    await page.fill('#value', '1e999');
    assert.strictEqual(await result(page), 'The number is too large.');
    await choose(page, 'Temperature', '°C', 'K');
    await page.fill('#value', '-273.16');
    assert.strictEqual(await result(page), 'There is no temperature below absolute zero, 0 K.');
  },

  async theKeyboardReachesEverything() {
    const page = await open(unitsPath);
    const focused = async () => page.evaluate(() => document.activeElement.id || document.activeElement.tagName);
    const order = [];
    for (let step = 0; step < 6; step++) {
      await page.keyboard.press('Tab');
      order.push(await focused());
    }
    assert.deepStrictEqual(order, ['quantity', 'value', 'from', 'to', 'swap', 'SUMMARY']);

    await page.focus('#quantity');
    await page.keyboard.press('ArrowDown');
    await page.focus('#value');
    await page.keyboard.press('Control+A');
    await page.keyboard.type('645,16');
    assert.strictEqual(await result(page), '645,16 mm² = 1 in²');
    await page.focus('#swap');
    await page.keyboard.press('Enter');
    assert.strictEqual(await result(page), '645,16 in² = 416231,4256 mm²');
  },

  async definitionsNameTheirSource() {
    const page = await open(unitsPath);
    await choose(page, 'Volume', 'gal', 'US gal');
    assert.deepStrictEqual(await page.$$eval('#definitions li', items => items.map(each => each.textContent)),
                           ['gal: 4.54609 l (Imperial measure)', 'US gal: 231 in³ (US liquid measure)']);
    const named = await page.$$eval('#sources dt', terms => terms.map(each => each.textContent));
    assert.ok(named.includes('Imperial measure') && named.includes('US liquid measure'));
  },

  async theUnitsAreThereAgainTheNextTime() {
    const page = await open(unitsPath);
    await choose(page, 'Pressure', 'bar', 'psi');
    await page.reload();
    assert.strictEqual(await result(page), '1 bar = 14.50377377 psi');
  },

  async theModelsPageLeadsToLibrariesInWindowsOfTheirOwn() {
    const page = await open(modelsPath);
    const links = await page.$$eval('a', anchors => anchors.map(each => [each.protocol, each.target, each.rel].join(' ')));
    assert.ok(links.length >= 5);
    assert.deepStrictEqual([...new Set(links)], ['https: _blank noopener']);
    for (let step = 0; step < links.length; step++) {
      await page.keyboard.press('Tab');
      assert.strictEqual(await page.evaluate(() => [...document.links].indexOf(document.activeElement)), step);
    }
  }
};

async function main() {
  const server = await serve(process.argv[2]);
  base = `http://127.0.0.1:${server.address().port}`;
  browser = await start();
  let failed = 0;
  for (const [name, test] of Object.entries(tests)) {
    try {
      await test();
      console.log(`ok ${name}`);
    } catch (error) {
      failed++;
      console.log(`FAILED ${name}\n${error.stack}`);
    }
  }
  await browser.close();
  server.close();
  console.log(`${Object.keys(tests).length - failed} passed, ${failed} failed`);
  process.exitCode = failed ? 1 : 0;
}

main();
