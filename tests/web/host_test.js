// The page of the host with the real program behind it: what a designer does in an hour, in a minute.
//
//   node host_test.js PROGRAM FILE.step [DATA]
//
// The file is the planetary gearbox of the samples; DATA has the files of tests/real_files.md. Pictures of all steps go to build/web/host/.
'use strict';
const assert = require('assert');
const fs = require('fs');
const path = require('path');
const {serveHost} = require('./served');
const {violations} = require('../site/browser');
const {closeTabs, checkComplaints, openHost, startBrowser} = require('./page');

const pictures = path.join(__dirname, '../../build/web/host');
const [program, file, place = ''] = process.argv.slice(2);
const data = process.env.TARNIX_TEST_DATA ?? place;
const dialog = '#command-dialog';

let page, host;

const idle = (where = page) => where.waitForFunction(() => hostPage.line.isSettled);
const state = (where = page) => where.evaluate(() => hostPage.line.state);
const texts = selector => page.$$eval(selector, found => found.map(each => each.textContent));
const until = (test, given) => page.waitForFunction(test, given);

async function picture(name) {
  await idle();
  await page.screenshot({path: path.join(pictures, `${name}.png`)});
}

async function press(command) {
  const button = page.locator(`[data-command=${command}]`);
  if (await button.count()) return button.click();
  const {workspaces, commands} = await state();
  const panel = workspaces.find(each => each.active).tabs.flatMap(each => each.panels).find(each => each.controls.some(control => control.command === command));
  const {caption} = panel ? panel.controls.find(each => each.command === command) : commands.find(each => each.command === command);
  await page.click(panel ? `.ribbon .caption:has-text("${panel.caption}")` : '.quick [aria-label=More]');
  await page.getByRole('menuitem', {name: caption}).click();
}

async function openBom() {
  await press('QM_TX_BOM');
  await page.waitForSelector(`${dialog} .body [data-row="1"]`);
  await idle();
}

const tab = async name => {
  await page.getByRole('tab', {name, exact: true}).click();
  await page.waitForSelector(`[role=tab][aria-selected=true]:text-is("${name}")`);
  await idle();
};
const close = async () => {
  await page.locator(`${dialog} footer .push`).last().click();
  await page.waitForSelector(dialog, {state: 'detached'});
};
// The texts of a column, from the fields and lists in it; heading and hidden rows are left out.
const column = caption => page.evaluate(wanted => {
  const heads = [...document.querySelectorAll('.head [aria-colindex]')];
  const at = heads.find(each => each.textContent === wanted)?.getAttribute('aria-colindex');
  return [...document.querySelectorAll('.table .body > [data-row]')].map(row => {
    const field = row.querySelector(`[aria-colindex="${at}"]`)?.querySelector('input, select');
    return field instanceof HTMLSelectElement ? field.selectedOptions[0]?.text ?? '' : field?.value ?? '';
  });
}, caption);
/// Clicks on a part that is in front, away from its edges and from what is over the model; its path.
async function clickOnAPart() {
  const found = await page.evaluate(() => {
    const {viewer} = hostPage.scene, {left, top} = viewer.canvas.getBoundingClientRect(), {instances, occurrences} = viewer.model;
    for (let y = 12; y < viewer.canvas.clientHeight - 12; y += 8) {
      for (let x = 12; x < viewer.canvas.clientWidth - 12; x += 8) {
        const at = viewer.pick(x, y);
        const isInside = at >= 0 && [[-6, 0], [6, 0], [0, -6], [0, 6]].every(([dx, dy]) => viewer.pick(x + dx, y + dy) === at);
        if (isInside && document.elementFromPoint(left + x, top + y) === viewer.canvas) return {x: left + x, y: top + y, path: occurrences[instances[at].occurrence].path};
      }
    }
    return null;
  });
  assert.ok(found, 'no part is in front');
  await page.mouse.click(found.x, found.y);
  await idle();
  return found.path;
}

const steps = {
  async anAssemblyIsShown() {
    const {tree, document: shown} = await state();
    assert.strictEqual(shown.name, 'planetary-gearbox');
    assert.ok(tree.components.length > 5);
    assert.deepStrictEqual(await texts('.command span'), ['Edit custom properties', 'BOM', 'Go to Helpdesk', 'Open Help']);
    assert.ok(await page.evaluate(() => hostPage.scene.viewer.stats().instances) > 20);
    assert.strictEqual(await violations(page), '');
  },

  async theBomIsUnfolded() {
    await openBom();
    const before = await column('Part Number');
    const fold = page.locator('.body .pictured button:has(img[src*="/ColapseAsm/"])').first();
    await fold.click();
    await until(count => document.querySelectorAll('.table .body > [data-row]').length > count, before.length);
    const after = await column('Part Number');
    assert.ok(after.length > before.length && before.every(each => after.includes(each)), after.join());
    const {selection} = await state();  // the row that was clicked is lit in tree and model
    assert.strictEqual(selection.length, 1);
    assert.deepStrictEqual(await texts('.node.selected .name'), [selection[0].split('+').pop()]);
    assert.ok(await page.evaluate(() => hostPage.scene.viewer.marks.selected.length) > 0);
    assert.strictEqual(await violations(page), '');
  },

  async theStructureIsSortedBothWays() {
    await tab('Structure');
    assert.match(await page.getByLabel('Total mass of structure BOM [kg]').inputValue(), /^\d+\.\d+$/);
    const unsorted = await column('Part Number');
    const order = page.locator(`${dialog} .field.DropDown select`);
    for (const [name, sorted] of [['Ascending', [...unsorted].sort()], ['Descending', [...unsorted].sort().reverse()]]) {
      await order.selectOption(name);
      await idle();
      await page.locator('.head .push', {hasText: 'Part Number'}).click();
      await idle();
      assert.deepStrictEqual(await column('Part Number'), sorted, name);
    }
  },

  async aHandlerThatThrowsIsInTheLog() {
    const thrown = (await state()).log.filter(each => each.kind === 'exception');
    assert.ok(thrown.some(each => each.event === 'OnInputChanged' && each.input === 'QEMA_droDown_AscDesc' && each.text.includes('stoi')), JSON.stringify(thrown));
    await page.click('.quick [aria-label^=Log]');
    await page.waitForSelector('.log .exception');
    assert.match(await page.textContent('.log .exception .where'), /OnInputChanged/);
    await picture('log');
    await page.click('.log .tool');
    assert.ok(await page.isVisible(dialog));  // and can be used as before
  },

  async theListIsExported() {
    await page.getByRole('button', {name: 'Export BOM to MS Excel'}).click();
    await until(() => hostPage.line.state.opened.some(each => each.target.endsWith('TarnixBOM.xlsm')));
    const list = fs.readFileSync(path.join(host.home, 'Tarnix/TarnixBOM.csv'), 'utf8');
    for (const part of await column('Part Number')) assert.ok(list.includes(`;${part};`) || list.includes(`${part};`), part);
  },

  async columnsAreChosenAndKept() {
    await tab('BOM Configuration');
    const free = page.locator('.table [data-row="2"] select').first();
    await free.selectOption({label: 'Quantity'});
    await idle();
    await page.getByRole('button', {name: 'Save BOM Configuration'}).click();
    await idle();
    await picture('columns');
    await close();
    await openBom();
    await tab('Structure');
    assert.deepStrictEqual((await texts('.head [role=columnheader]')).slice(-1), ['Quantity']);
    assert.ok((await column('Quantity')).every(each => /^\d+$/.test(each)));
  },

  async anEditedPartNumberComesBack() {
    await tab('Data of Model');
    const field = page.locator('.body [data-row="1"] .StringValue:not(.fixed) input').first();
    await field.click();
    await page.keyboard.press('Control+a');
    await page.keyboard.type('NEW-1');
    assert.strictEqual(await field.inputValue(), 'NEW-1');
    await idle();
    await page.getByRole('button', {name: 'Save Changes and Close'}).click();
    await until(() => hostPage.line.isSettled && hostPage.line.state.document.changed && hostPage.line.state.dialog !== null);
    assert.strictEqual((await column('Part Number'))[0], 'NEW-1');  // the dialog has come back with it
    assert.ok((await state()).tree.components.some(each => each.partNumber === 'NEW-1'));
    assert.ok((await texts('.node .number')).includes('NEW-1'));
    await picture('saved-and-back');
  },

  async twoPagesShowTheSame() {
    const other = await openHost(host.url, {another: 2});
    await other.waitForSelector(dialog);  // also in the midst of a dialog
    const field = '.body [data-row="1"] .StringValue:not(.fixed) input';
    assert.strictEqual(await other.locator(field).first().inputValue(), 'NEW-1');
    await other.locator(field).first().fill('NEW-2');
    await until(selector => document.querySelector(selector).value === 'NEW-2', field);
    await other.close();
    await page.reload();
    await page.waitForSelector(dialog);
    assert.strictEqual(await page.locator(field).first().inputValue(), 'NEW-2');
    await close();
  },

  async propertiesAreEditedByPickingInTheModel() {
    await press('QEMA_EditPropertiesCmd');
    await page.waitForSelector('.choose[data-picked="1"]');  // what was selected before
    await page.getByRole('button', {name: 'Clear the selection'}).click();
    await page.waitForSelector('.choose[data-picked="0"]');
    assert.match(await page.getAttribute('.ok', 'title'), /needs 1, and has 0/);
    const picked = await clickOnAPart();
    await page.waitForSelector('.choose[data-picked="1"]');
    const {tree, selection} = await state();
    assert.deepStrictEqual(selection, [picked]);
    const component = tree.components.find(each => each.name === picked.split('+').pop().replace(/:\d+$/, ''));
    assert.strictEqual(await page.getByLabel('Part Number').inputValue(), component.partNumber);
    await page.getByLabel('Description').fill('Picked in the model');
    await idle();
    await picture('properties');
    await page.getByRole('button', {name: 'OK', exact: true}).click();
    await page.waitForSelector(dialog, {state: 'detached'});
    await press('QEMA_EditPropertiesCmd');
    await page.waitForSelector('.choose[data-picked="0"]');
    assert.strictEqual(await clickOnAPart(), picked);
    await page.waitForSelector('.choose[data-picked="1"]');
    assert.strictEqual(await page.getByLabel('Description').inputValue(), 'Picked in the model');
  },

  async aMessageDuringAHandlerIsAnswered() {
    await tab('Settings');
    await page.getByRole('button', {name: 'Delete Property'}).click();
    const box = page.getByRole('alertdialog');
    await box.getByText('Select one property to delete.').waitFor();
    await picture('message');
    await page.keyboard.press('Enter');
    await box.waitFor({state: 'detached'});
    await idle();
    await close();
  },

  async aPartMovesToTheOrigin() {
    await press('QM_TX_moveComponentToOrigin');
    await page.waitForSelector(dialog);
    await page.focus('[role=tree]');
    await page.keyboard.press('End');
    await page.keyboard.press('Enter');
    await idle();
    const [{path: moved}] = await page.evaluate(() => hostPage.line.state.selection.map(path => ({path})));
    const place = () => page.evaluate(path => [...hostPage.scene.viewer.model.instances[hostPage.scene.instances(path)[0]].matrix.slice(12, 15)], moved);
    const [before, revision] = [await place(), (await state()).model.revision];
    await page.getByRole('button', {name: 'OK', exact: true}).click();
    await until(old => hostPage.scene.shownRevision > old && hostPage.scene.viewer, revision);
    assert.notDeepStrictEqual(await place(), before);
    await picture('moved');
  },

  async whatTheHelpdeskCollectsIsThere() {
    await press('QM_HD_systemInfo');
    await idle();
    await press('QM_HD_openFolder');
    await until(() => hostPage.line.state.opened.length > 1);
    const {opened} = await state();
    const folder = opened[opened.length - 1].target.replaceAll('\\', '/');  // as the add-in spells it
    assert.ok(fs.readdirSync(folder).length > 0, folder);
    const before = fs.readdirSync(folder).length;
    await press('QM_HD_captureScreen');
    await idle();
    if (process.env.DISPLAY) assert.strictEqual(fs.readdirSync(folder).length, before + 1);
    else console.log('SKIPPED: no display to capture');
    assert.strictEqual((await state()).log.filter(each => each.kind === 'exception' && each.event === 'OnExecute').length, 0);
  },

  async unitsAreConvertedInAPalette() {
    await press('QM_TX_unitsConversion');
    const frame = page.frameLocator('iframe[title]').first();
    await frame.locator('#result').waitFor();
    const box = await page.locator('section.palette').boundingBox();
    assert.ok(Math.abs(box.x + box.width - (1280 - 5)) <= 3 && box.width === 260, JSON.stringify(box));
    const converted = async value => {
      await frame.locator('#value').fill(value);
      return parseFloat((await frame.locator('#result').textContent()).split('=').pop());
    };
    const [one, two] = [await converted('1'), await converted('2')];
    assert.ok(one > 0 && Math.abs(two / one - 2) < 1e-6, `${one} ${two}`);
    await picture('palettes');
    await page.locator('section.palette .tool').click();
    await page.waitForSelector('section.palette', {state: 'detached'});
  },

  async aCommandThatWaitsIsCancelled() {
    await press('QEMA_OpenLocalCmd_QAT');
    const box = page.locator('dialog.files');
    await box.getByRole('option', {name: 'gears'}).dblclick();
    await box.getByRole('option', {name: 'part.sldprt'}).click();
    await box.getByRole('button', {name: 'Open'}).click();
    await page.waitForSelector('.progress');
    await picture('waiting');
    await page.locator('.progress .push').click();
    await page.getByRole('alertdialog').getByRole('button', {name: 'OK'}).click();
    await page.waitForSelector('.progress', {state: 'detached'});
  },

  async theDesignIsSavedAndOpened() {
    await page.click('.quick [aria-label=More]');
    await page.getByRole('menuitem', {name: 'Save As'}).click();
    await page.waitForSelector('dialog.files');
    await page.getByRole('option', {name: 'gears'}).dblclick();
    await page.getByLabel('File name').fill('slider.json');
    await page.locator('dialog.files').getByRole('button', {name: 'Save'}).click();
    await until(() => !hostPage.line.state.document.changed);
    assert.ok(fs.readFileSync(path.join(host.data, 'gears/slider.json'), 'utf8').includes('Picked in the model'));
    await page.waitForSelector('dialog.files', {state: 'detached'});
    await page.keyboard.press('Control+s');  // the file is there by now
    await page.getByRole('alertdialog', {name: 'Replace?'}).getByRole('button', {name: 'Replace'}).click();
    await page.getByRole('alertdialog').waitFor({state: 'detached'});
    await page.keyboard.press('Control+o');
    await page.getByRole('option', {name: 'gears'}).dblclick();
    await page.getByRole('option', {name: 'slider.json'}).dblclick();
    await until(() => hostPage.line.state.document.file.endsWith('slider.json') && hostPage.line.isSettled);
    assert.ok((await state()).tree.components.some(each => each.partNumber === 'NEW-1'));
  },

  async theAddInIsLoadedAgain() {
    await openBom();
    await page.click('.quick [aria-label^="Reload add-in:"]');
    await until(() => hostPage.line.state.dialog === null && hostPage.line.state.addin.running && hostPage.line.state.busy === null && hostPage.line.isSettled);
    assert.deepStrictEqual((await texts('.command span')).slice(0, 2), ['Edit custom properties', 'BOM']);
    await openBom();
    await host.stop();  // with a dialog open
    await page.waitForSelector('.banner');
    page.complaints.splice(0);
  },
};

// The same with files of other people's systems.
const realSteps = {
  async aRealAssemblyIsShown() {
    assert.strictEqual(await page.evaluate(() => hostPage.scene.viewer.stats().instances), 18);  // plate, rod, 2 brackets, 6 bolts, 8 nuts
    await openBom();
    await tab('Structure');
    await tab('Data of Model');
    const before = await column('Part Number');
    await page.locator('.body .pictured button:has(img[src*="/ColapseAsm/"])').first().click();
    await until(count => document.querySelectorAll('.table .body > [data-row]').length > count, before.length);
    await close();
  },

  async aRealPartIsPickedInTheModel() {
    await press('QEMA_EditPropertiesCmd');
    await page.waitForSelector(dialog);
    await page.getByRole('button', {name: 'Clear the selection'}).click();
    const picked = await clickOnAPart();
    await page.waitForSelector('.choose[data-picked="1"]');
    assert.deepStrictEqual((await state()).selection, [picked]);
    await close();
  },

  async aLargeRealAssemblyIsOpened() {
    fs.copyFileSync(path.join(data, 'PCB_v3.5.step'), path.join(host.data, 'gears/board.step'));
    await page.keyboard.press('Control+o');
    await page.getByRole('option', {name: 'gears'}).dblclick();
    await page.getByRole('option', {name: 'board.step'}).dblclick();
    await page.waitForFunction(() => hostPage.line.state.document.file === 'gears/board.step' && hostPage.line.isSettled, null, {timeout: 120_000});
    await page.waitForFunction(() => hostPage.scene.viewer && hostPage.scene.shownRevision === hostPage.line.state.model.revision, null, {timeout: 120_000});
    assert.strictEqual(await page.evaluate(() => hostPage.scene.viewer.stats().instances), 625);  // as many have bodies by the parts list
    await openBom();
    await close();
  },

  async aFileThatCrashesTheReaderIsSaid() {
    fs.copyFileSync(path.join(data, 'malformed/U008.stp'), path.join(host.data, 'gears/U008.stp'));
    await page.keyboard.press('Control+o');
    await page.getByRole('option', {name: 'gears'}).dblclick();
    await page.getByRole('option', {name: 'U008.stp'}).dblclick();
    await page.waitForSelector('.notices :text("the reader crashed")');
    assert.strictEqual((await state()).document.file, 'gears/board.step');  // it is still there
  },
};

async function runSteps(all, name) {
  page = await openHost(host.url);
  page.setDefaultTimeout(15_000);
  for (const [each, step] of Object.entries(all)) {
    name(each);
    const start = Date.now();
    await step();
    checkComplaints();
    if (host.running) await picture(each);
    if (process.env.TIMES) console.log(`${each} ${Date.now() - start} ms`);
  }
  console.log(`${Object.keys(all).length} steps`);
}

async function main() {
  fs.mkdirSync(pictures, {recursive: true});
  const real = path.join(data, 'as1-oc-214.stp');
  const browser = await startBrowser();
  let name = '';
  try {
    host = await serveHost(program, file);
    await runSteps(steps, each => { name = each; });
    if (data && fs.existsSync(real)) {
      await host.stop();
      await closeTabs();
      host = await serveHost(program, real);
      await runSteps(realSteps, each => { name = each; });
    } else {
      console.log('SKIPPED: no real files');
    }
  } catch (error) {
    console.error(`${name}: ${error.stack}`);
    await page?.screenshot({path: path.join(pictures, 'failed.png')}).catch(() => {});
    process.exitCode = 1;
  }
  await closeTabs();
  await browser.close();
  await host?.stop();
}

main();
