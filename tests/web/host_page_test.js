// The page of the host, on states that a test plays.
//
//   node host_page_test.js [NAME...]
'use strict';
const assert = require('assert');
const {violations} = require('../site/browser');
const {brackets, hostileNames} = require('./assemblies');
const {dialog, emptyState, everyKind, icon, input, tableDialog} = require('./host_states');
const {playHost} = require('./mock_host');
const {frames, openHost, runTests} = require('./page');

const {glb} = brackets();
const most = 1500;  // elements of the page, however long a table is
let playing = null;

/// A page with this state; the host is played until the next one is.
async function show(change = () => {}, options = {}, view = {}) {
  const before = playing;
  const state = emptyState();
  change(state);
  playing = await playHost(state, options);
  const page = await openHost(playing.url, view);
  before?.close();
  return {page, host: playing};
}

/// Until the played host is as a test wants it.
const until = async isSo => { while (!isSo()) await new Promise(resolve => setTimeout(resolve, 10)); };
const idle = page => page.waitForFunction(() => hostPage.line.isSettled);
const acted = (host, action) => host.actions.filter(each => each.action === action);
const texts = (page, selector) => page.$$eval(selector, found => found.map(each => each.textContent));
const elements = page => page.evaluate(() => document.querySelectorAll('*').length);
const focused = page => page.evaluate(() => document.activeElement.id || document.activeElement.getAttribute('aria-label') || document.activeElement.textContent);
const rowNumbers = page => page.$$eval('.body > [data-row]', rows => rows.map(each => Number(each.dataset.row)));

// Opens the state with the tables of `count` rows; the dialog is 420 pixels high, so that some eleven rows show.
const showTable = (count, columns = 11) => {
  const {dialog: open, act} = tableDialog(count, columns);
  return show(state => { state.dialog = open; }, {act});
};

const tests = {
  async aTabShowsItsPanels() {
    const {page, host} = await show();
    assert.deepStrictEqual(await texts(page, '.command span'), ['List', 'Edit properties', 'Capture the screen']);  // promoted alone
    assert.deepStrictEqual(await texts(page, '.ribbon .caption'), ['Parts', 'Help']);  // what is empty has no panel
    await page.click('.ribbon .caption:has-text("Parts")');
    assert.deepStrictEqual(await texts(page, '[role=menuitem]'), ['List', 'Edit properties', 'Move', 'Off']);  // all that is not hidden
    assert.ok(await page.locator('[role=menuitem]:has-text("Off")').isDisabled());
    await page.click('[role=menuitem]:has-text("Move")');
    await idle(page);
    await page.click('.command:has-text("List")');
    await idle(page);
    assert.deepStrictEqual(acted(host, 'press').map(each => each.command), ['Move', 'List']);
    assert.strictEqual(await page.getAttribute('.command', 'title'), 'List\nWhat List does');
    await page.click('[role=tab]:text-is("Tools")');
    assert.deepStrictEqual(await texts(page, '.command span'), ['Capture the screen']);
  },

  async anotherWorkspaceIsChosen() {
    const {page, host} = await show(() => {}, {act: (action, {state}) => state.workspaces.forEach(each => { each.active = each.id === action.id; })});
    await page.click('.workspace');
    await page.click('[role=menuitemradio]:has-text("Render")');
    await page.waitForSelector('.workspace:has-text("Render")');
    assert.deepStrictEqual(acted(host, 'workspace').map(each => each.id), ['Render']);
    assert.deepStrictEqual(await texts(page, '.command span'), []);
  },

  async everyKindOfInputActs() {
    const {page, host} = await show(state => { state.dialog = everyKind(); });
    const keys = Object.fromEntries(host.state.dialog.inputs[0].inputs.map(each => [each.id, each.key]));
    await page.getByLabel('Ground it').click();
    await page.getByLabel('Order').selectOption('Descending');
    await page.getByRole('radio', {name: 'Buy'}).click();
    await page.getByLabel('Another one').click();
    await page.getByRole('button', {name: 'Export'}).click();
    await page.getByRole('button', {name: /^Component/}).click();
    await page.getByRole('tab', {name: 'Second'}).click();
    await page.locator('.group .heading').click();
    await idle(page);
    const sent = host.actions.map(({page: _, ...each}) => each);
    const {key: more} = host.state.dialog.inputs[0].inputs.find(each => each.id === 'more');
    assert.deepStrictEqual(sent, [
      {action: 'click', input: keys.ground}, {action: 'choose', input: keys.order, item: 1}, {action: 'choose', input: keys.structure, item: 1},
      {action: 'choose', input: keys.provider, item: 1}, {action: 'click', input: keys.export}, {action: 'click', input: keys.component},
      {action: 'activateTab', input: host.state.dialog.inputs[1].key}, {action: 'click', input: more}]);
    assert.strictEqual(await page.locator('#command-dialog :text("secret")').count(), 0);
    assert.strictEqual(await page.locator('#command-dialog').innerText().then(text => text.includes('hidden')), false);
  },

  async severalItemsOfAListAreChecked() {
    const views = input('DropDown', 'views', {caption: 'Views', multiple: true, items: [{name: 'Top', selected: true}, {name: 'Front', selected: true}, {name: 'Left'}], value: 'Top, Front'});
    const {page, host} = await show(state => { state.dialog = dialog([views]); }, {act: ({item}, {state}) => {
      const [list] = state.dialog.inputs;
      list.items[item].selected = !list.items[item].selected;
      list.value = list.items.filter(each => each.selected).map(each => each.name).join(', ');
    }});
    const button = page.getByRole('button', {name: 'Views'});
    await button.click();
    assert.strictEqual(await violations(page), '');
    await page.getByRole('menuitemcheckbox', {name: 'Top'}).click();
    await page.getByRole('menuitemcheckbox', {name: 'Left'}).click();
    await page.waitForSelector('.push.list:has-text("Front, Left")');
    assert.deepStrictEqual(await page.$$eval('[role=menuitemcheckbox]', found => found.map(each => each.ariaChecked)), ['false', 'true', 'true']);
    assert.deepStrictEqual(acted(host, 'choose').map(({item}) => item), [0, 2]);
    await page.keyboard.press('Escape');
    assert.strictEqual(await page.locator('[role=menu]').count(), 0);
    assert.deepStrictEqual(acted(host, 'cancel'), []);  // that closed the menu alone
    await button.click();
    await button.click();
    assert.strictEqual(await page.locator('[role=menu]').count(), 0);
  },

  async aSelectionIsClearedAtOnce() {
    const {page, host} = await show(state => {
      state.dialog = dialog([input('Selection', 'parts', {caption: 'Parts', active: true, picked: ['Plate:4', ''], minimum: 0, maximum: 0, value: 'Plate:4, an edge'})]);
    }, {act: (_, {state}) => Object.assign(state.dialog.inputs[0], {picked: [], value: ''})});
    await page.getByRole('button', {name: 'Clear the selection'}).click();
    await page.waitForSelector('.choose[data-picked="0"]');
    assert.deepStrictEqual(host.actions.map(({action, input: key}) => [action, key]), [['clear', host.state.dialog.inputs[0].key]]);
  },

  async theKeyIsSentAndNotShown() {
    const {page, host} = await show(state => { state.opened = [{n: 0, target: 'list.csv', url: '/opened/0'}]; }, {glb});
    const asked = [];
    page.on('request', request => asked.push([new URL(request.url()).pathname, request.headers()['workbench-key'] ?? new URL(request.url()).searchParams.get('key')]));
    const key = 'c0ffee';
    await page.goto('about:blank');
    await page.goto(`${host.url}#key=${key}`);
    await page.waitForFunction(() => window.hostPage?.scene?.viewer);
    assert.strictEqual(page.url(), host.url);
    await page.reload();  // it is this tab's
    await page.waitForFunction(() => window.hostPage?.scene?.viewer);
    await page.click('.command:has-text("List")');
    await page.keyboard.press('Control+o');
    await page.getByText('Files of type').waitFor();
    await idle(page);
    const secret = asked.filter(([place]) => ['/events', '/actions', '/files', '/model.glb'].includes(place));
    assert.deepStrictEqual([...new Set(secret.map(each => each.join(' ')))].sort(), ['/actions c0ffee', '/events c0ffee', '/files c0ffee', '/model.glb c0ffee']);
    assert.ok(asked.filter(([place]) => !/^.(events|actions|files|model.glb)$/.test(place)).every(([, sent]) => sent === null));
    await page.keyboard.press('Escape');
    await page.click('.quick [aria-label^=Log]');
    assert.strictEqual(await page.getAttribute('.opened a', 'href'), `/opened/0?key=${key}`);
    page.removeAllListeners('request');
    page.complaints.splice(0);
    await page.evaluate(() => sessionStorage.clear());
  },

  async whatTheHostRefusesToTakeIsShownAsItIs() {
    const {page} = await show(state => { state.dialog = everyKind(); }, {act: () => { throw new Error('it is out of order'); }});
    await page.getByLabel('Ground it').click();
    await page.waitForSelector('.notices :text("it is out of order")');
    assert.strictEqual(await page.getByLabel('Ground it').isChecked(), false);
    await page.getByLabel('Order').selectOption('Descending');
    await idle(page);
    assert.strictEqual(await page.getByLabel('Order').inputValue(), '0');
    await page.getByLabel('Name').pressSequentially('x');
    await page.waitForFunction(() => document.querySelector('.StringValue input').value === 'bolt');
  },

  async refusedOkSaysWhy() {
    const {page, host} = await show(state => { state.dialog = everyKind(); });
    assert.strictEqual(await page.getAttribute('.ok', 'title'), 'the selection "component" needs 1, and has 0');
    await page.click('.ok button', {force: true});
    assert.deepStrictEqual(acted(host, 'ok'), []);
    host.change(({dialog: open}) => { open.ok = {...open.ok, enabled: true, why: ''}; });
    await page.click('.ok button[aria-disabled=false]');
    await idle(page);
    assert.strictEqual(acted(host, 'ok').length, 1);
    await page.focus('#command-dialog');
    await page.keyboard.press('Escape');
    await idle(page);
    assert.strictEqual(acted(host, 'cancel').length, 1);
  },

  async typingShowsBeforeTheProgramHasSaidAnything() {
    let go = null;
    const {page, host} = await show(state => { state.dialog = everyKind(); }, {act: ({input: key, text}, {state}) => {
      const field = state.dialog.inputs[0].inputs.find(each => each.key === key);
      field.value = text.toUpperCase();
    }});
    host.held = new Promise(resolve => { go = resolve; });
    const field = page.getByLabel('Name');
    await field.click();
    await page.keyboard.press('Home');
    await page.keyboard.type('ab');
    assert.strictEqual(await field.inputValue(), 'abbolt');
    host.change(({selection}) => selection.push('Plate:4'));  // the caret stays where it is
    await page.waitForSelector('.node.selected');
    assert.deepStrictEqual(await field.evaluate(each => [each.value, each.selectionStart]), ['abbolt', 2]);
    host.held = null;
    go();
    await page.waitForFunction(() => document.activeElement.value === 'ABBOLT');
    assert.strictEqual(await field.evaluate(each => each.selectionStart), 2);
    assert.strictEqual(acted(host, 'paste').pop().text, 'abbolt');
  },

  async aFormattedTextIsNoMarkup() {
    const {page} = await show(state => { state.dialog = everyKind(); });
    assert.strictEqual(await page.innerHTML('.field.TextBox div.text'),
                       '<b>See</b> <a href="https://example.com/x" target="_blank" rel="noopener noreferrer">here</a>document.title = "broken" &lt;i&gt;');
  },

  async hostileTextsAreTexts() {
    const bad = hostileNames.join(' ');
    const {page} = await show(state => {
      state.document.name = bad;
      state.tree.components[0].name = bad;
      state.dialog = dialog([input('StringValue', bad, {value: bad}), input('TextBox', 'said', {formatted: bad, value: bad, readOnly: true}), input('DropDown', bad, {items: [{name: bad, selected: true}], value: bad})], {caption: bad});
      state.log = [{n: 1, kind: 'exception', event: bad, input: bad, type: bad, text: bad}];
      state.opened = [{n: 0, target: 'javascript:document.title=9', url: ''}];
      state.palettes = [{id: 'p', name: bad, url: '', address: 'javascript:document.title=9', dock: 'right', left: 0, top: 0, width: 200, height: 200, closeButton: true, resizable: true}];
    });
    await page.click('.quick [aria-label^=Log]');
    assert.strictEqual(await page.textContent('.quick h1'), bad);
    assert.strictEqual(await page.title(), `${bad.replace(/[\t\n\f\r ]+/g, ' ')} – Tarnix workbench`);
    assert.deepStrictEqual(await page.$$eval('a', links => links.map(each => each.href)), []);
    assert.strictEqual(await page.locator('#page script, #page img[src="x"]').count(), 0);
  },

  async aLongTableHasFewElements() {
    const {page} = await showTable(10000);
    await page.waitForSelector('.body [data-row="1"]');
    assert.strictEqual(await page.getAttribute('.table', 'aria-rowcount'), '10001');
    assert.ok(await elements(page) <= most, `${await elements(page)}`);
    for (const place of [3000, 9999]) {
      await page.$eval('.table', (table, to) => { table.scrollTop = to * 26; }, place);
      await page.waitForSelector(`.body [data-row="${place}"]`);
      await idle(page);
      assert.ok(await elements(page) <= most, `${await elements(page)}`);
      assert.strictEqual(await page.locator('.head [role=columnheader]').count(), 10);  // in sight wherever the table is scrolled
    }
    const last = await rowNumbers(page);
    assert.strictEqual(last[last.length - 1], 10000);
    assert.strictEqual(await page.locator('.body [data-row="10000"] input').first().inputValue(), 'part 10000');
  },

  async rowsAreThereWhileATableIsScrolled() {
    const {page} = await showTable(10000);
    await page.waitForSelector('.body [data-row="1"]');
    const seen = await page.evaluate(async () => {
      const table = document.querySelector('.table'), counts = [];
      for (let step = 1; step <= 120; ++step) {  // eight rows each time, as far as 960
        table.scrollTop = step * 8 * 26;
        await new Promise(requestAnimationFrame);
        await new Promise(requestAnimationFrame);
        counts.push([document.querySelectorAll('.body > .row:not(.absent)').length, document.querySelectorAll('*').length]);
      }
      return counts;
    });
    const blank = seen.filter(([rows]) => rows === 0).length;
    assert.ok(blank <= seen.length / 10, `${blank} of ${seen.length} pictures without a row`);
    assert.ok(Math.max(...seen.map(([, all]) => all)) <= most);
    await page.waitForSelector('.body [data-row="960"]');
  },

  async aRowThatIsWorkedInIsSelectedAndStays() {
    const {page, host} = await showTable(10000);
    const field = page.locator('[data-row="3"] input').first();
    await field.click();
    await page.waitForSelector('[data-row="3"].selected');
    await field.fill('a new name');
    await idle(page);
    assert.strictEqual(acted(host, 'paste').pop().text, 'a new name');
    await page.$eval('.table', table => { table.scrollTop = 5000 * 26; });
    await page.waitForSelector('.body [data-row="5000"]');
    assert.strictEqual(await page.evaluate(() => document.activeElement.value), 'a new name');  // out of sight, and still typed into
    await page.keyboard.press('!');
    await idle(page);
    assert.strictEqual(acted(host, 'paste').pop().text, 'a new name!');
  },

  async arrowsLeadFromCellToCell() {
    const {page, host} = await showTable(200);
    await page.locator('[data-row="1"] input').first().click();
    const at = () => page.evaluate(() => [Number(document.activeElement.closest('[data-row]').dataset.row), Number(document.activeElement.closest('[aria-colindex]').getAttribute('aria-colindex'))]);
    for (const [key, expected] of [['ArrowDown', [2, 2]], ['Enter', [3, 2]], ['ArrowUp', [2, 2]], ['ArrowRight', [2, 2]], ['ArrowRight', [2, 3]], ['ArrowLeft', [2, 2]]]) {
      await page.keyboard.press(key);
      if (key === 'ArrowRight' && expected[1] === 2) await page.keyboard.press('End');  // the text was selected as a whole: the key only leaves that
      assert.deepStrictEqual(await at(), expected, key);
    }
    for (let i = 0; i < 25; ++i) await page.keyboard.press('ArrowDown');
    await page.waitForFunction(() => document.activeElement.closest('[data-row]')?.dataset.row === '27');
    await idle(page);
    assert.strictEqual(host.state.dialog.inputs[0].selectedRow, 27);
  },

  async theTreeIsWorkedByKeys() {
    const {page, host} = await show();
    await page.focus('[role=tree]');
    for (const key of ['Home', 'ArrowDown', 'ArrowRight', 'ArrowDown', 'Enter']) await page.keyboard.press(key);
    await idle(page);
    assert.deepStrictEqual(acted(host, 'pick').map(each => each.path), ['Rod assembly:1+Rod:1']);
    assert.deepStrictEqual(await texts(page, '.node .name'), ['brackets', 'Rod assembly:1', 'Rod:1', 'Nut:2', 'Nut:3', 'L bracket assembly:2', 'L bracket assembly:3', 'Plate:4']);
    await page.keyboard.press('ArrowLeft');
    await page.keyboard.press('ArrowLeft');
    assert.strictEqual(await page.locator('.node').count(), 5);
  },

  async whatIsSelectedIsMarkedInTreeAndModel() {
    const {page, host} = await show(() => {}, {glb});
    host.change(state => { state.selection = ['L bracket assembly:2+Nut and bolt:3']; });
    await page.waitForSelector('.node.selected');
    assert.deepStrictEqual(await texts(page, '.node.selected .name'), ['Nut and bolt:3']);  // what it is in has been expanded
    const marked = await page.evaluate(() => [...hostPage.scene.viewer.marks.selected].map(i => hostPage.scene.viewer.model.occurrences[hostPage.scene.viewer.model.instances[i].occurrence].path));
    assert.deepStrictEqual(marked, ['L bracket assembly:2+Nut and bolt:3+Bolt:1', 'L bracket assembly:2+Nut and bolt:3+Nut:2']);
    assert.match(await page.textContent('.status'), /1 selected/);
  },

  async aClickOnThePartPicksIt() {
    const {page, host} = await show(() => {}, {glb});
    const plate = await page.evaluate(() => {  // from below its middle is in the middle of the picture
      hostPage.scene.viewer.look('bottom');
      const {left, top, width, height} = hostPage.scene.viewer.canvas.getBoundingClientRect();
      return {x: left + width / 2, y: top + height / 2};
    });
    await page.mouse.click(plate.x, plate.y);
    await idle(page);
    assert.deepStrictEqual(acted(host, 'pick').map(each => each.path), ['Plate:4']);
    await page.mouse.move(plate.x, plate.y);
    await page.mouse.down();
    await page.mouse.move(plate.x + 60, plate.y);
    await page.mouse.up();
    assert.strictEqual(acted(host, 'pick').length, 1);  // that turned the picture
    await page.$eval('.face.top', face => face.click());
    assert.ok(Math.abs(await page.evaluate(() => hostPage.scene.viewer.pose.pitch) - Math.PI / 2) < 1e-6);
  },

  async aMovedModelKeepsTheView() {
    const {page, host} = await show(() => {}, {glb});
    await page.evaluate(() => { hostPage.scene.viewer.look('front'); });
    const before = await page.evaluate(() => hostPage.scene.viewer.pose);
    host.change(state => { state.model.revision = 2; });
    await page.waitForFunction(() => hostPage.scene.shownRevision === 2 && hostPage.scene.viewer);
    assert.deepStrictEqual(await page.evaluate(() => hostPage.scene.viewer.pose), before);
    assert.strictEqual(await page.locator('canvas').count(), 1);
    host.change(state => {  // it was saved
      state.document.name = 'another name';
      state.model.revision = 3;
    });
    await page.waitForFunction(() => hostPage.scene.shownRevision === 3 && hostPage.scene.viewer);
    assert.deepStrictEqual(await page.evaluate(() => hostPage.scene.viewer.pose), before);
    host.change(state => { state.model = {revision: 4, document: 2}; });
    await page.waitForFunction(() => hostPage.scene.shownRevision === 4 && hostPage.scene.viewer);
    assert.notDeepStrictEqual(await page.evaluate(() => hostPage.scene.viewer.pose), before);  // nothing says that it would show that design
    host.glb = null;
    host.change(state => { state.model.revision = 5; });
    await page.waitForSelector('.stage-note.empty');
  },

  async aMessageIsAnsweredFirst() {
    const {page, host} = await show(state => { state.dialog = everyKind(); }, {act: (action, {state}) => { if (action.action === 'answerMessage') state.message = null; }});
    await page.getByLabel('Name').focus();
    host.change(state => { state.message = {id: 4, title: '', text: 'Go on?\nIt takes long.', icon: 'question', buttons: [{answer: 'yes', caption: 'Yes'}, {answer: 'no', caption: 'No'}]}; });
    const box = page.getByRole('alertdialog', {name: 'Example'});
    await box.waitFor();
    assert.strictEqual(await focused(page), 'Yes');
    assert.strictEqual(await violations(page), '');
    await page.keyboard.press('Escape');
    await box.waitFor({state: 'detached'});
    assert.deepStrictEqual(acted(host, 'answerMessage').map(({id, answer}) => [id, answer]), [[4, 'no']]);
    assert.strictEqual(await page.evaluate(() => document.activeElement.value), 'bolt');  // back where it was
  },

  async filesAreChosenInTheDataFolder() {
    const files = {'': [{name: 'gears', folder: true}, {name: 'box.step', folder: false, size: 20480}, {name: 'notes.txt', folder: false, size: 3}], gears: [{name: 'big.stp', folder: false, size: 1}, {name: 'small.stp', folder: false, size: 1}]};
    const {page, host} = await show(() => {}, {files, act: (action, {state}) => { if (action.action === 'answerFile') state.fileDialog = null; }});
    host.change(state => { state.fileDialog = {id: 5, kind: 'open', folder: '', name: '', title: 'Import', filters: [{caption: 'STEP', patterns: ['*.step', '*.stp']}], filter: 0, multiple: true}; });
    const box = page.getByRole('dialog', {name: 'Import'});
    await box.getByRole('option', {name: 'gears'}).waitFor();
    assert.deepStrictEqual(await texts(page, '.entry .name'), ['gears', 'box.step']);
    assert.strictEqual(await violations(page), '');
    await box.getByRole('option', {name: 'gears'}).focus();
    await page.keyboard.press('Enter');
    await box.getByRole('option', {name: 'big.stp'}).click();
    await box.getByRole('option', {name: 'small.stp'}).click({modifiers: ['Control']});
    await box.getByRole('button', {name: 'Open'}).click();
    await box.waitFor({state: 'detached'});
    assert.deepStrictEqual(acted(host, 'answerFile').map(({id, files: picked}) => [id, picked]), [[5, ['gears/big.stp', 'gears/small.stp']]]);
  },

  async aFileToWriteIsNamedAndReplacedIfTheUserAgrees() {
    const files = {'': [{name: 'gears', folder: true}], gears: [{name: 'list.csv', folder: false, size: 3}]};
    const {page, host} = await show(() => {}, {files, act: ({replace, files: [name]}, {state}) => {
      if (!replace && name.endsWith('list.csv')) throw Object.assign(new Error('it exists'), {more: {exists: true}});
      state.fileDialog = null;
    }});
    host.change(state => { state.fileDialog = {id: 5, kind: 'save', folder: 'gears', name: 'list.csv', title: '', filters: [], filter: 0, multiple: false}; });
    const box = page.getByRole('dialog', {name: 'Save'});
    await box.getByRole('option', {name: 'list.csv'}).waitFor();  // it begins in that folder
    assert.strictEqual(await box.getByLabel('File name').inputValue(), 'list.csv');
    await box.getByRole('button', {name: 'Save'}).click();
    await page.getByRole('alertdialog', {name: 'Replace?'}).getByRole('button', {name: 'Replace'}).click();
    await box.waitFor({state: 'detached'});
    assert.deepStrictEqual(acted(host, 'answerFile').map(({files: picked, replace}) => [picked, replace ?? false]), [[['gears/list.csv'], false], [['gears/list.csv'], true]]);
  },

  async aFolderIsPicked() {
    const files = {'': [{name: 'gears', folder: true}, {name: 'box.step', folder: false, size: 3}], gears: []};
    const {page, host} = await show(() => {}, {files, act: (_, {state}) => { state.fileDialog = null; }});
    for (const way of ['chosen', 'entered']) {
      host.change(state => { state.fileDialog = {id: 5, kind: 'folder', folder: '', name: '', title: '', filters: [], filter: 0, multiple: false}; });
      const box = page.getByRole('dialog', {name: 'Select a folder'}), folder = box.getByRole('option', {name: 'gears'});
      await folder.waitFor();
      assert.deepStrictEqual(await texts(page, '.entry .name'), ['gears']);
      await (way === 'chosen' ? folder.click() : folder.dblclick());
      if (way === 'entered') await box.getByText('No folders in this one.').waitFor();
      await box.getByRole('button', {name: 'Select folder'}).click();
      await box.waitFor({state: 'detached'});
    }
    assert.deepStrictEqual(acted(host, 'answerFile').map(({files: picked}) => picked), [['gears'], ['gears']]);
  },

  async savingAsksBeforeItReplaces() {
    const {page, host} = await show(state => { state.document.saveAs = 'brackets.json'; }, {act: action => {
      if (action.action === 'save' && !action.replace) throw Object.assign(new Error('brackets.json exists'), {more: {exists: true}});
    }});
    await page.keyboard.press('Control+s');
    const box = page.getByRole('alertdialog', {name: 'Replace?'});
    await box.waitFor();
    assert.strictEqual(await focused(page), 'Cancel');
    await box.getByRole('button', {name: 'Replace'}).click();
    await box.waitFor({state: 'detached'});
    // Without a name again: a document from elsewhere is not in the data folder, whatever it is called.
    assert.deepStrictEqual(acted(host, 'save').map(({file, replace}) => ({file, replace})), [{file: undefined, replace: undefined}, {file: undefined, replace: true}]);
  },

  async aNameThatWillNotDoIsSaidWhereItIsAskedFor() {
    const {page, host} = await show(() => {}, {files: {'': []}, act: ({action, file}) => {
      if (action === 'save' && file !== 'gears.json') throw new Error(`${file} is in no folder`);
    }});
    await page.keyboard.press('Control+s');
    const box = page.getByRole('dialog', {name: 'Save the design'}), name = box.getByLabel('File name');
    await name.fill('far/gears');
    await box.getByRole('button', {name: 'Save'}).click();
    await box.getByRole('alert').filter({hasText: 'far/gears.json is in no folder'}).waitFor();
    assert.strictEqual(await name.inputValue(), 'far/gears');
    await name.fill('gears');
    await box.getByRole('button', {name: 'Save'}).click();
    await box.waitFor({state: 'detached'});
    assert.deepStrictEqual(acted(host, 'save').map(({file}) => file), ['far/gears.json', 'gears.json']);
  },

  async openingAsksBeforeItDiscards() {
    const {page, host} = await show(() => {}, {act: ({action, discard}) => {
      if (action === 'open' && !discard) throw Object.assign(new Error('brackets has changes'), {more: {changed: true}});
    }});
    const again = async () => {
      await page.getByRole('button', {name: 'More'}).click();
      await page.getByRole('menuitem', {name: 'Open brackets.step again'}).click();
      const box = page.getByRole('alertdialog', {name: 'Discard the changes?'});
      await box.waitFor();
      return box;
    };
    const box = await again();
    assert.strictEqual(await focused(page), 'Cancel');
    await page.keyboard.press('Escape');
    await box.waitFor({state: 'detached'});
    assert.strictEqual(acted(host, 'open').length, 1);
    await (await again()).getByRole('button', {name: 'Discard'}).click();
    await idle(page);
    assert.deepStrictEqual(acted(host, 'open').map(({file, discard}) => [file, discard ?? false]), [[null, false], [null, false], [null, true]]);
  },

  async progressCanBeCancelled() {
    const {page, host} = await show(state => { state.progress = {text: 'Uploading box.step', value: 40, cancel: 'Stop', cancelled: false}; });
    assert.strictEqual(await page.getAttribute('progress', 'value'), '40');
    await page.getByRole('button', {name: 'Stop'}).click();
    await idle(page);
    assert.strictEqual(acted(host, 'cancelProgress').length, 1);
  },

  async theContextMenuHasWhatAddInsPutThere() {
    const {page, host} = await show(() => {}, {act: ({action}) => action === 'markingMenu' ? {commands: [{command: 'Edit', caption: 'Edit properties', tooltip: '', icon: icon('Properties'), visible: true, promoted: false, enabled: true}]} : {}});
    await page.locator('.node').nth(1).click({button: 'right'});
    await page.getByRole('menuitem', {name: 'Edit properties'}).waitFor();
    assert.strictEqual(await violations(page), '');
    await page.keyboard.press('Enter');
    await idle(page);
    assert.deepStrictEqual(acted(host, 'press').map(each => each.command), ['Edit']);
    assert.strictEqual(await page.locator('[role=menu]').count(), 0);
  },

  async aPaletteIsInAFrameThatReachesNothing() {
    const palette = more => ({id: 'p', name: 'Units', url: '', address: 'http://units.example/page.asp', dock: 'floating', left: 5000, top: 5000, width: 260, height: 300, closeButton: true, resizable: true, ...more});
    const {page, host} = await show(state => { state.palettes = [palette({url: '/site/page.htm'}), palette({id: 'q', name: 'Models', dock: 'right'})]; });
    assert.strictEqual(await page.getAttribute('iframe', 'sandbox'), 'allow-scripts allow-forms');
    await page.frameLocator('iframe').getByText('A page of a palette').waitFor();
    const {x, y, width, height} = await page.locator('#palette-p').boundingBox();
    assert.ok(x + width <= 1280 && y + height <= 800, `${[x, y, width, height]}`);  // it was put far outside
    assert.strictEqual(await page.getAttribute('.docked.right a', 'href'), 'http://units.example/page.asp');
    await page.getByRole('button', {name: 'Close Units'}).click();
    await idle(page);
    assert.deepStrictEqual(acted(host, 'closePalette').map(each => each.id), ['p']);
  },

  async theDialogIsMovedAndSized() {
    const {page, host} = await show(state => { state.dialog = everyKind(); });
    const frame = page.locator('#command-dialog'), box = await frame.boundingBox();
    await page.mouse.move(box.x + 60, box.y + 14);
    await page.mouse.down();
    await page.mouse.move(box.x - 240, box.y + 34);
    await page.mouse.up();
    const moved = await frame.boundingBox();
    assert.deepStrictEqual([moved.x, moved.y], [box.x - 300, box.y + 20]);
    await page.focus('#command-dialog .corner');
    await page.keyboard.press('ArrowRight');
    await idle(page);
    const [{width}] = acted(host, 'resize');
    assert.strictEqual(width, box.width + 16);
    host.change(({dialog: open}) => { open.width = width; });
    assert.strictEqual((await frame.boundingBox()).width, width);
  },

  async aWideDialogIsDockedBesideTheModel() {
    const {page, host} = await show(state => { state.dialog = tableDialog(50, 4).dialog; }, {glb});
    const frame = page.locator('#command-dialog'), canvas = page.locator('.stage canvas');
    const apart = async () => {
      const [one, other] = [await frame.boundingBox(), await canvas.boundingBox()];
      return other.x + other.width <= one.x + 1;
    };
    assert.ok(await apart());  // 700 of the 1032 pixels beside the browser
    const before = (await canvas.boundingBox()).width;
    await page.focus('#command-dialog .edge');
    await page.keyboard.press('ArrowRight');
    await idle(page);
    assert.strictEqual(acted(host, 'resize').pop().height, 420);  // that of the floating one stays
    await page.waitForFunction(old => document.querySelector('.stage canvas').clientWidth === old + 16, before);
    await page.getByRole('button', {name: 'Float over the model'}).click();
    assert.ok(!await apart());
    await page.getByRole('button', {name: 'Dock beside the model'}).click();
    assert.ok(await apart());
    assert.strictEqual(await violations(page), '');
    host.change(state => { state.dialog = everyKind(); });
    await page.waitForSelector('#command-dialog:has-text("Ground it")');
  },

  async aLostLineIsSaidAndTakenUpAgain() {
    const {page, host} = await show(state => { state.dialog = everyKind(); });
    await page.getByLabel('Name').focus();
    host.drop();
    await page.waitForSelector('.banner');
    await page.waitForSelector('.banner', {state: 'detached'});
    assert.strictEqual(await page.evaluate(() => document.activeElement.value), 'bolt');
    playing.actions.length = 0;
    await page.getByLabel('Ground it').click();
    await idle(page);
    assert.strictEqual(acted(host, 'click').length, 1);
    page.complaints.splice(0);  // the browser's own words about the line
  },

  async whatIsTypedBehindAMessageComesAfterIt() {
    const {page, host} = await show(state => { state.dialog = everyKind(); }, {act: ({action, input: key, text}, {state}) => {
      if (action === 'answerMessage') state.message = null;
      if (action !== 'paste') return {};
      if (state.message) throw new Error('a message waits for its answer');
      state.dialog.inputs[0].inputs.find(each => each.key === key).value = text;
      if (text !== 'boltx') return {};
      state.message = {id: 4, title: '', text: 'An x?', icon: 'question', buttons: [{answer: 'ok', caption: 'OK'}]};
      return {waiting: true};
    }});
    let go = null;
    host.held = new Promise(resolve => { go = resolve; });
    await page.getByLabel('Name').click();
    await page.keyboard.press('End');
    await page.keyboard.type('xyz');
    host.held = null;
    go();
    await page.getByRole('button', {name: 'OK'}).and(page.locator('dialog *')).click();
    await idle(page);
    assert.deepStrictEqual(host.actions.map(({action, text}) => text ?? action), ['boltx', 'answerMessage', 'boltxyz']);
    assert.strictEqual(await page.getByLabel('Name').inputValue(), 'boltxyz');
  },

  async keysOfWhoTypesOnGoToTheFieldAndAnswerNothing() {
    const {page, host} = await show(state => { state.dialog = everyKind(); }, {act: ({action, input: key, text}, {state}) => {
      if (action === 'answerMessage') state.message = null;
      if (action !== 'paste') return {};
      state.dialog.inputs[0].inputs.find(each => each.key === key).value = text;
      if (text !== 'boltx') return {};
      state.message = {id: 4, title: '', text: 'An x?', icon: 'question', buttons: [{answer: 'ok', caption: 'OK'}]};
      return {waiting: true};
    }});
    await page.getByLabel('Name').click();
    await page.keyboard.press('End');
    await page.keyboard.press('x');
    await page.getByRole('alertdialog').waitFor();
    await page.keyboard.type('y z');
    await page.keyboard.press('Enter');
    assert.strictEqual(await page.getByRole('alertdialog').count(), 1);
    assert.strictEqual(await page.locator('.StringValue input').first().inputValue(), 'boltxy z');
    await page.waitForTimeout(800);  // a pause: what comes now is an answer
    await page.keyboard.press('Enter');
    await page.getByRole('alertdialog').waitFor({state: 'detached'});
    await idle(page);
    assert.deepStrictEqual(host.actions.map(({action, text}) => text ?? action), ['boltx', 'answerMessage', 'boltxy z']);
  },

  async aTextThatIsRefusedForNowIsSentAgain() {
    let refusals = 0;
    const {page, host} = await show(state => { state.dialog = everyKind(); }, {act: ({input: key, text}, {state}) => {
      if (++refusals < 3) throw Object.assign(new Error('a message waits for an answer'), {more: {waiting: true}});
      state.dialog.inputs[0].inputs.find(each => each.key === key).value = text;
    }});
    await page.getByLabel('Name').fill('nut');
    await idle(page);
    assert.strictEqual(await page.getByLabel('Name').inputValue(), 'nut');
    assert.deepStrictEqual(acted(host, 'paste').map(({text}) => text), ['nut', 'nut', 'nut']);
    assert.strictEqual(await page.locator('.notices p').count(), 0);
  },

  async answersOvertakeWhatIsNotDone() {
    let go = null;
    const {page, host} = await show(state => { state.progress = {text: 'Listing', value: 40, cancel: 'Stop', cancelled: false}; }, {act: ({action}) => {
      if (action === 'cancelProgress') go();
      return action === 'press' ? new Promise(resolve => { go = resolve; }) : {};
    }});
    await page.click('.command:has-text("List")');
    await page.getByRole('button', {name: 'Stop'}).click();
    await idle(page);  // the command ends by that alone
    assert.deepStrictEqual(host.actions.map(({action}) => action), ['press', 'cancelProgress']);
  },

  async whatIsTypedWithoutALineIsSentByTheNextOne() {
    const {page, host} = await show(state => { state.dialog = everyKind(); }, {act: ({input: key, text}, {state}) => {
      state.dialog.inputs[0].inputs.find(each => each.key === key).value = text;
    }});
    host.refusal = 503;
    host.drop();
    await page.waitForSelector('.banner:has-text("Too many pages")');
    await page.getByLabel('Name').fill('nut');
    host.refusal = 0;
    await page.waitForSelector('.banner', {state: 'detached'});
    await idle(page);
    assert.deepStrictEqual(acted(host, 'paste').map(({text}) => text), ['nut']);
    assert.strictEqual(await page.getByLabel('Name').inputValue(), 'nut');
    host.refusal = 403;
    host.drop();
    await page.waitForSelector('.banner:has-text("Open the address that it printed")');
    page.complaints.splice(0);  // the browser's own words about the line
  },

  async aPatchThatDoesNotFitBringsAWholeState() {
    const {page, host} = await show();
    host.state.selection = ['Plate:4'];
    host.sendPatch([{op: 'replace', path: '/document/name', value: 'broken'}, {op: 'remove', path: '/no/such/place'}]);
    await page.waitForSelector('.node.selected');
    assert.strictEqual(host.openings, 2);
    assert.strictEqual(await page.textContent('.quick h1'), 'brackets');
    await page.click('.command:has-text("List")');
    await idle(page);
    assert.strictEqual(acted(host, 'press').length, 1);
  },

  async aHiddenPageHoldsNoConnection() {
    const {page, host} = await show();
    const be = visibility => page.evaluate(to => {
      Object.defineProperty(document, 'visibilityState', {value: to, configurable: true});
      document.dispatchEvent(new Event('visibilitychange'));
    }, visibility);
    await be('hidden');
    await until(() => !host.hasStream);
    host.change(state => { state.selection = ['Plate:4']; });
    await be('visible');
    await page.waitForSelector('.node.selected');
    assert.strictEqual(await page.locator('.banner').count(), 0);
    assert.strictEqual(host.openings, 2);
  },

  async rowsThatAreRefusedAreNotAskedForWithoutEnd() {
    const {dialog: open, act} = tableDialog(10000, 11);
    let refuses = true;
    const {page, host} = await show(state => { state.dialog = open; }, {act: (action, played) => {
      if (action.action === 'view' && refuses) throw Object.assign(new Error('too many actions'), {status: 429});
      return act(action, played);
    }});
    await page.waitForSelector('.body [data-row="1"]');
    await page.$eval('.table', table => { table.scrollTop = 5000 * 26; });
    await page.waitForFunction(() => document.querySelector('.row.absent'));
    await idle(page);
    for (let i = 0; i < 20; ++i) host.change(({document: design}) => { design.changed = !design.changed; });
    await page.waitForFunction(revision => hostPage.line.revision === revision, 21);
    await frames(page, 2);
    assert.strictEqual(acted(host, 'view').length, 1);
    refuses = false;
    await page.waitForSelector('.body [data-row="5000"]');  // once a while it is
    page.complaints.splice(0);
  },

  async aModelThatFailedIsFetchedAgain() {
    const {page, host} = await show(() => {}, {glb});
    const before = await page.evaluate(() => { hostPage.scene.viewer.look('front'); return hostPage.scene.viewer.pose; });
    host.model = (_, response) => {
      host.model = null;
      response.writeHead(409, {'Content-Type': 'application/json'}).end('{"error": "the program is at work"}');
    };
    host.change(state => { state.model.revision = 2; });
    await page.waitForSelector('.stage-note.problem:has-text("the program is at work")');
    await page.waitForFunction(() => hostPage.scene.viewer);
    assert.deepStrictEqual(await page.evaluate(() => hostPage.scene.viewer.pose), before);
    assert.strictEqual(await page.locator('.stage-note').count(), 0);
  },

  async anOlderModelDoesNotReplaceANewerOne() {
    const {page, host} = await show(() => {}, {glb});
    let older = null;
    host.model = (request, response) => {
      const isOlder = request.url.endsWith('=2');
      response.writeHead(200, {'Content-Type': 'model/gltf-binary', 'Model-Revision': isOlder ? 2 : 4});
      if (!isOlder) return response.end(glb);
      response.flushHeaders();
      older = response;
    };
    host.change(state => { state.model.revision = 2; });
    await until(() => older);
    host.change(state => { state.model.revision = 3; });
    await page.waitForFunction(() => hostPage.scene.shownRevision === 4);
    const isRead = page.waitForEvent('requestfinished', request => request.url().endsWith('=2'));
    older.end(glb);
    await isRead;
    await frames(page, 2);
    assert.strictEqual(await page.evaluate(() => hostPage.scene.shownRevision), 4);
  },

  async aNameWithAPlusIsFoundInTheTree() {
    const {page, host} = await show(state => {
      state.tree.components = [{name: 'top', partNumber: 'top', children: [[1, 1, false], [2, 1, false]]}, {name: 'A', partNumber: 'A', children: []},
                               {name: 'A:1+B', partNumber: 'B', children: [[3, 1, false]]}, {name: 'C+D', partNumber: 'C', children: []}];
    });
    host.change(state => { state.selection = ['A:1+B:1+C+D:1']; });
    await page.waitForSelector('.node.selected:has-text("C+D:1")');
    await page.locator('.node.selected').click();
    await page.focus('[role=tree]');
    await page.keyboard.press('ArrowLeft');
    assert.deepStrictEqual(await texts(page, '.node.active .name'), ['A:1+B:1']);
  },

  async everythingIsAccessible() {
    for (const colorScheme of ['light', 'dark']) {
      const {page} = await show(state => {
        state.dialog = everyKind();
        state.selection = ['Plate:4'];
        state.progress = {text: 'Working', value: 1, cancel: 'Stop', cancelled: false};
        state.log = ['exception', 'misuse', 'message', 'warning'].map((kind, n) => ({n, kind, event: 'OnInputChanged', input: 'x', type: 'std::exception', text: 'invalid stoi argument'}));
        state.opened = [{n: 0, target: 'C:\\x\\list.csv', url: '/opened/0'}, {n: 1, target: 'https://example.com', url: ''}];
        state.palettes = [{id: 'q', name: 'Models', url: '', address: 'http://models.example', dock: 'left', left: 0, top: 0, width: 200, height: 200, closeButton: true, resizable: true}];
      }, {}, {colorScheme});
      await page.click('.quick [aria-label^=Log]');
      assert.strictEqual(await violations(page), '', colorScheme);
      const {page: another} = await showTable(100);
      assert.strictEqual(await violations(another), '', colorScheme);
    }
  },
};

runTests(tests, process.argv.slice(2)).finally(() => playing?.close());
