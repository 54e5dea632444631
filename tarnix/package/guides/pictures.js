// Draws the pictures of the guides from what the workbench printed (see record), and takes those of the web pages
// with a real browser.
//
//   node pictures.js RECORDED FOLDER             all
//   node pictures.js RECORDED FOLDER drawings    without the browser
'use strict';
const fs = require('fs');
const path = require('path');

const [recorded, folder, part] = process.argv.slice(2);
const root = path.join(__dirname, '../../..');
const read = name => fs.readFileSync(path.join(recorded, name), 'utf8').replace(/\r/g, '');
const readJson = name => JSON.parse(read(name));
const escape = text => text.replace(/&/g, '&amp;').replace(/</g, '&lt;');

const palette = fs.readFileSync(path.join(__dirname, '../icons/palette.css'), 'utf8').replace(/\/\*[^]*?\*\//, '').trim();
const style = `text { font-family: 'Source Sans 3', 'Noto Sans', sans-serif; font-size: 12px; fill: #1d2733 }
.bold { font-weight: 600 } .mono { font-family: 'Source Code Pro', monospace; font-size: 11px }
.small { font-size: 11px } .grey { fill: #55616e } .frame { fill: none; stroke: #b8c2cc } .bar { fill: #e4eaf0 }
.cell { fill: #fff; stroke: #d3dae1 } .head { fill: #eef2f6; stroke: #d3dae1 } .field { fill: #fff; stroke: #97a3b0 }
.button { fill: #eef2f6; stroke: #97a3b0 } .on { fill: #cfe5fa; stroke: #3f8bd6 } .notice { fill: #fefa50 }`;

const rectangle = (x, y, width, height, kind) =>
    `<rect class="${kind}" x="${x + 0.5}" y="${y + 0.5}" width="${width}" height="${height}"/>`;
const text = (x, y, content, kind = '', anchor = 'start') =>
    `<text x="${x}" y="${y}" class="${kind}" text-anchor="${anchor}" xml:space="preserve">${escape(content)}</text>`;

const icons = path.join(__dirname, '../icons');
const shapes = fs.readFileSync(path.join(icons, 'shapes.svg'), 'utf8');

/// A shape that several icons share, as part of the picture: other files cannot be reached from a page.
function shape(id, attributes) {
  const [, group, one] = new RegExp(`<g id="${id}">([^]*?)</g>|(<[^>]* id="${id}"[^>]*>)`).exec(shapes);
  const content = group || one.replace(` id="${id}"`, '');
  const moved = /x="(-?\d+)"/.exec(attributes), lowered = /y="(-?\d+)"/.exec(attributes);
  return `<g transform="translate(${moved ? moved[1] : 0} ${lowered ? lowered[1] : 0})">${content}</g>`;
}

let clips = 0;

/// One of the add-in's icons, by the name of its drawing.
function icon(name, x, y, size = 16) {
  const drawing = fs.readFileSync(path.join(icons, name + '.svg'), 'utf8');
  const clip = `${name}-${++clips}`;
  const content = drawing.replace(/^<svg[^>]*>/, '').replace(/<style>[^]*?<\/style>/, '').replace(/<\/svg>\s*$/, '').trim()
      .replace(/<use href="shapes\.svg#([\w-]+)"([^>]*)\/>/g, (_, id, attributes) => shape(id, attributes))
      .replace(/ id="[\w-]+"/g, ` id="${clip}"`).replace(/url\(#[\w-]+\)/g, `url(#${clip})`);
  return `<svg x="${x}" y="${y}" width="${size}" height="${size}" viewBox="0 0 16 16">${content}</svg>`;
}

function save(name, width, height, parts) {
  const lines = [`<svg xmlns="http://www.w3.org/2000/svg" width="${width}" height="${height}" viewBox="0 0 ${width} ${height}">`,
                 `<style>${palette}\n${style}</style>`, ...parts.flat(Infinity), '</svg>', ''];
  fs.writeFileSync(path.join(folder, name + '.svg'), lines.join('\n'));
}

/// The mark of a list that opens, with its middle at this place.
const arrow = (x, y) => `<path class="ink" d="M${x - 4} ${y - 2}h8l-4 5z"/>`;

/// The tree of a row, drawn: the font of the guides has none of its characters.
const tree = line => ({draw: (left, top) => [...line].map((character, index) => {
  const x = left + 6 + index * 7, y = top + 11;
  const drawings = {'░': `<rect class="steel" x="${x}" y="${top + 5}" width="7" height="13"/>`,
                    '├': `<path class="line" d="M${x + 3.5} ${top + 3}v17M${x + 3.5} ${y}h3.5"/>`, '─': `<path class="line" d="M${x} ${y}h7"/>`};
  return drawings[character] || '';
})});

const button = (x, y, width, caption, kind = 'button') =>
    [rectangle(x, y, width, 24, kind), text(x + width / 2, y + 16, caption, '', 'middle')];

/// A dialog: title, tabs of which one is active, the buttons at its lower right.
function dialog(width, height, title, tabs, active, buttons) {
  const parts = [rectangle(0, 0, width - 1, height - 1, 'cell'), rectangle(0, 0, width - 1, 26, 'bar'), text(10, 18, title, 'bold')];
  let x = 10;
  for (const tab of tabs) {
    const wide = tab.length * 6.4 + 22;
    parts.push(rectangle(x, 34, wide, 24, tab === active ? 'on' : 'button'),
               text(x + wide / 2, 50, tab, tab === active ? 'bold' : '', 'middle'));
    x += wide + 4;
  }
  let right = width - 10;
  for (const caption of [...buttons].reverse()) {
    const wide = caption.length * 6.2 + 20;
    right -= wide;
    parts.push(button(right, height - 34, wide, caption));
    right -= 8;
  }
  return parts;
}

/// A table with a header; a cell is a string, or {draw} for what is drawn at its place.
function table(x, y, widths, header, rows) {
  const parts = [];
  const row = (cells, top, kind) => cells.reduce((left, cell, column) => {
    parts.push(rectangle(left, top, widths[column], 22, kind));
    parts.push(typeof cell === 'string' ? text(left + 5, top + 15, cell, kind === 'head' ? 'bold' : '') : cell.draw(left, top));
    return left + widths[column];
  }, x);
  row(header, y, 'head');
  rows.forEach((cells, index) => row(cells, y + 22 + index * 22, 'cell'));
  return parts;
}

const rowIcons = {Part: 'part', PartUp: 'part_up', Asm: 'assembly', AsmUp: 'assembly_up', Combine: 'combined',
                  ColapseAsm: 'assembly_closed', UnColapseAsm: 'assembly_open'};
const rowIcon = image => ({draw: (left, top) => icon(rowIcons[image], left + 7, top + 3)});

const bomTabs = ['Data of Model', 'Structure', 'BOM Configuration'];
const bomButtons = ['Save Changes and Close', 'Close'];
const exportButton = y => [rectangle(10, y, 190, 24, 'button'), icon('export', 16, y + 4), text(38, y + 16, 'Export BOM to MS Excel')];
const valueColumns = {'Part Number': 116, 'BOM Structure': 92, 'Quantity': 58, 'Part Name': 112, 'Mass [kg]': 66,
                      'Physical Material': 108, 'Source': 92};
const valueNames = Object.keys(valueColumns), valueWidths = Object.values(valueColumns);

function drawModel(name) {
  const {rows} = readJson(name + '.json');
  const height = 172 + rows.length * 22;
  save(name, 780, height, [
    dialog(780, height, 'BOM', bomTabs, 'Data of Model', bomButtons), exportButton(68),
    table(10, 100, [30, 82, ...valueWidths], ['', '', ...valueNames],
          rows.map(row => [rowIcon(row.Image), tree(row.Tree), ...valueNames.map(each => row[each] || '')]))]);
}

function drawStructure(name) {
  const {rows} = readJson(name + '.json');
  const mass = /Total mass of structure BOM \[kg\] : (\S+)/.exec(read(name + '.txt'))[1];
  const height = 212 + rows.length * 22;
  const bottom = 130 + 22 + rows.length * 22;
  save(name, 780, height, [
    dialog(780, height, 'BOM', bomTabs, 'Structure', bomButtons), exportButton(68),
    text(10, 115, 'BOM can be sorted by clicking on the column header:'), rectangle(300, 100, 120, 22, 'field'),
    arrow(408, 111),
    table(10, 130, [30, 40, ...valueWidths], ['', 'Pos.', ...valueNames],
          rows.map(row => [rowIcon(row.Image), row['Pos.'], ...valueNames.map(each => row[each] || '')])),
    text(10, bottom + 21, 'Total mass of structure BOM [kg] :'), rectangle(200, bottom + 6, 120, 22, 'field'),
    text(206, bottom + 21, mass)]);
}

function drawConfiguration() {
  const items = [...read('configuration.xml').matchAll(/item_bomItems id="QEMA_([^"]*)"><displayName>([^<]*)/g)];
  const used = Array.from({length: 6}, (_, column) => items[column] || ['', '', '']);
  const choice = property => ({draw: (left, top) => [rectangle(left + 3, top + 2, 82, 17, 'field'), text(left + 7, top + 15, property, 'small'),
                                                     arrow(left + 78, top + 11)]});
  const widths = [46, 46, 84, 88, ...Array(6).fill(88)];
  save('configuration', 812, 250, [
    dialog(812, 250, 'BOM', bomTabs, 'BOM Configuration', bomButtons),
    table(10, 68, widths, [...Array(4).fill('default'), ...used.map(item => item[1] ? 'used' : 'not used')],
          [['Asm.', 'Pos.', 'Part Number', 'BOM Structure', ...used.map(item => item[2])],
           ['isAsm.', '1.1', 'Part Number', 'Produce', ...used.map(item => choice(item[1]))]]),
    rectangle(10, 144, 792, 36, 'notice'),
    text(406, 159, "The changes in the layout of BOM properties will be applied on tab 'Structure' on the tab 'Data of Model'", '', 'middle'),
    text(406, 174, 'after clicking on "Save BOM Configuration" and re-open this dialog.', '', 'middle'),
    button(10, 186, 792, 'Save BOM Configuration')]);
}

/// The drawing that a command's folder of icons is made from.
function drawingOf(resources) {
  const list = fs.readFileSync(path.join(__dirname, '../icons/icons.txt'), 'utf8');
  return new RegExp(`^(\\S+) +folder +${resources}$`, 'm').exec(list)[1];
}

function drawPanels() {
  const tools = [['Edit custom properties', 'Properties'], ['BOM', 'BOM'], ['Move To Origin', 'MoveComponentToOrigin'],
                 ['Projected Entities As Construction', 'ProjEntAsConstruction'], ['Units Conversion', 'UnitsConversion']];
  const support = [['Tarnix Configuration', 'Configuration'], ['Go to Helpdesk', 'OpenHelpdesk'], ['Capture screen', 'CaptureScreen'],
                   ['Capture Fusion', 'CaptureInventor'], ['System info', 'SaveSystemInfo'], ['Zip', 'ZipFolder'],
                   ['Open Helpdesk Folder', 'OpenFolder'], ['Delete Helpdesk Folder', 'DeleteFolder'], ['Open Help', 'OpenHelp']];
  const panel = (x, width, title, commands) => [
    rectangle(x, 0, width, 24 + 28 * 5 + 12, 'cell'), rectangle(x, 0, width, 24, 'bar'), text(x + 10, 17, title, 'bold'),
    commands.map(([caption, resources], index) => {
      const left = x + 12 + Math.floor(index / 5) * 190, top = 32 + index % 5 * 28;
      return [icon(drawingOf('Resources/' + resources), left, top, 20), text(left + 28, top + 15, caption)];
    })];
  save('panels', 690, 178, [panel(0, 260, 'QM Tarnix', tools), panel(280, 400, 'QM Helpdesk', support)]);
}

/// What the workbench printed as "label  value" lines, up to an empty one.
const labelled = name => read(name).split('\n\n')[0].split('\n').map(line => [line.slice(0, 16).trim(), line.slice(16)]);

function drawProperties() {
  const values = new Map(labelled('properties.txt'));
  const structures = [['Produce', 'produce'], ['Buy', 'buy'], ['AsPart', 'as_part'], ['Divided', 'divided'], ['Reference', 'reference']];
  const group = (y, caption) => [rectangle(10, y, 370, 22, 'bar'), arrow(22, y + 11), text(32, y + 15, caption, 'bold')];
  const field = (y, caption) => [text(18, y + 16, caption), rectangle(150, y, 230, 22, 'field'), text(156, y + 15, values.get(caption) || '')];
  save('properties', 390, 386, [
    dialog(390, 386, 'Edit custom properties', ['Custom properties', 'Settings'], 'Custom properties', ['OK', 'Cancel']),
    text(18, 84, 'Component'), rectangle(150, 68, 230, 22, 'on'), text(156, 83, '1 selected'),
    group(98, 'Properties'), text(18, 143, 'BOM Structure'),
    structures.map(([caption, name], index) =>
        [rectangle(150 + index * 34, 126, 28, 24, values.get('BOM Structure') === caption ? 'on' : 'button'), icon(name, 156 + index * 34, 130)]),
    field(156, 'Part Number'), field(184, 'Part Name'), field(212, 'Description'), text(18, 256, 'Full Path'),
    rectangle(150, 240, 230, 22, 'cell'), group(270, 'Custom Properties'), field(298, 'Supplier'), field(324, 'Surface finish')]);
}

function drawSettings() {
  const names = read('settings.txt').trim().split('\n');
  save('settings', 390, 262, [
    dialog(390, 262, 'Edit custom properties', ['Custom properties', 'Settings'], 'Settings', ['OK', 'Cancel']),
    text(10, 80, 'User-defined properties of component.'),
    names.map((name, index) => [rectangle(10, 90 + index * 24, 370, 22, 'field'), text(16, 105 + index * 24, name)]),
    button(10, 144, 110, 'Add Property'), button(126, 144, 120, 'Delete Property'),
    text(195, 190, 'The changes will by applied only after you close and re-open this dialog.', 'small', 'middle'),
    button(10, 198, 370, 'Save User Property')]);
}

function drawWorkbook() {
  const lines = read('structure.csv').trimEnd().split('\n');
  const [header, ...rows] = lines.slice(0, -2).map(line => line.split(';').slice(0, -1));
  const mass = lines[lines.length - 1].split(';');
  const widths = [40, 110, 96, 70, 116, 76, 116, 100];
  const left = widths.map((_, column) => widths.slice(0, column).reduce((sum, each) => sum + each, 30));
  const letters = widths.map((width, column) => [rectangle(left[column], 0, width, 18, 'bar'),
                                                 text(left[column] + width / 2, 13, 'ABCDEFGH'[column], 'small grey', 'middle')]);
  const grid = [...Array(rows.length + 4).keys()].map(row => [
    rectangle(0, 18 + row * 22, 30, 22, 'bar'), text(15, 33 + row * 22, String(row + 1), 'small grey', 'middle'),
    widths.map((width, column) => rectangle(left[column], 18 + row * 22, width, 22, row === 1 ? 'head' : 'cell'))]);
  const cell = (row, column, value, kind = '') => /^\d+(\.\d+)?$/.test(value)
      ? text(left[column] + widths[column] - 5, 33 + row * 22, value, kind, 'end') : text(left[column] + 5, 33 + row * 22, value, kind);
  const last = rows.length + 3;
  save('workbook', 756, 19 + (rows.length + 4) * 22, [
    letters, grid, header.map((caption, column) => cell(1, column, caption, 'bold')),
    rows.map((values, row) => values.map((value, column) => cell(row + 2, column, value))),
    rectangle(left[0] + 2, 20, 64, 18, 'button'), text(left[0] + 34, 33, 'Reload', '', 'middle'),
    text(left[1] + 34, 33, `${rows.length} rows from TarnixBOM.csv of 2026-11-22 10:30:00.`),
    text(left[1] + 5, 33 + last * 22, mass[1], 'bold'), cell(last, 5, mass[2], 'bold')]);
}

/// A text as an editor shows it.
function drawText(name, file) {
  const lines = read(file).trimEnd().split('\n');
  save(name, 620, 20 + lines.length * 17, [
    rectangle(0, 0, 619, 19 + lines.length * 17, 'cell'), lines.map((line, index) => text(12, 22 + index * 17, line, 'mono'))]);
}

async function takePages() {
  const {chromium} = require('playwright-core');
  const browser = await chromium.launch({executablePath: '/usr/bin/chromium', args: process.getuid() === 0 ? ['--no-sandbox'] : []});
  for (const [name, file, width, height] of [['units', 'units/units-cmd.asp', 260, 400],
                                             ['models', 'download/CAM/f360/fusion_pruvodce.htm', 350, 300]]) {
    const page = await browser.newPage({viewport: {width, height}, deviceScaleFactor: 2});
    // From a file the browser would not take the .asp for a page.
    await page.setContent(fs.readFileSync(path.join(root, 'site', file), 'utf8'));
    await page.screenshot({path: path.join(folder, name + '.png')});
  }
  await browser.close();
}

fs.mkdirSync(folder, {recursive: true});
drawPanels();
drawModel('model-collapsed');
drawModel('model');
drawStructure('structure');
drawStructure('structure-divided');
drawConfiguration();
drawWorkbook();
drawText('export', 'structure.csv');
drawText('system-info', 'system-info.txt');
drawProperties();
drawSettings();
if (part !== 'drawings') {
  takePages();
}
