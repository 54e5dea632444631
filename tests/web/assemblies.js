// Drawn assemblies: the tree for the model, and the parts list of the same tree.
'use strict';
const {angle, box, cylinder, ring} = require('./shapes');
const {writeGlb} = require('./glb_writer');

const quarter = (axis, sign = 1) => [...[0, 1, 2].map(k => k === 'xyz'.indexOf(axis) ? sign * Math.SQRT1_2 : 0), Math.SQRT1_2];

const columns = [
  {key: 'item', caption: 'Item'}, {key: 'partNumber', caption: 'Part Number'}, {key: 'partName', caption: 'Part Name'}, {key: 'quantity', caption: 'Quantity'},
  {key: 'mass', caption: 'Mass [kg]', unit: 'kg'}, {key: 'totalMass', caption: 'Total mass [kg]', unit: 'kg'}, {key: 'material', caption: 'Material'}];

/// A node: {part, at, turn, children}; parts: {id: {number, name, mass, material, mesh}}.
function assembly(name, parts, meshes, top) {
  const paths = [];
  const place = (nodes, above) => nodes.map((node, i) => {
    const part = parts[node.part];
    const path = `${above}${part.name}:${i + 1}`;
    paths.push(path);
    return {...node, ...{name: part.name, path, pathIndex: paths.length - 1, partNumber: part.number, component: node.part, mesh: node.mesh ?? part.mesh},
            children: place(node.children ?? [], `${path}+`)};
  });
  const tree = place(top, '');
  const leaves = [];
  const collect = (nodes, times) => nodes.forEach(node => node.children.length ? collect(node.children, times) : leaves.push(node));
  collect(tree, 1);
  const views = [view('parts', flat(parts, leaves)), view('indented', indented(parts, tree)), view('top', flat(parts, tree))];
  return {list: {schema: 'tarnix-page', version: 1, file: {name, sha256: hashOf(name)}, paths, views}, glb: writeGlb(meshes, tree), leaves: leaves.length, tree};
}

/// A list as `parts --format json` writes it, as far as the page reads it, and what the page adds.
function view(name, made) {
  const rows = made.map(each => each.row);
  const tops = rows.filter(row => row.parent === null);
  const totals = {rows: rows.length, quantity: rows.filter(row => row.kind === 'part').reduce((sum, row) => sum + row.quantity, 0),
                  massKg: tops.reduce((sum, row) => sum + row.totalMassKg, 0)};
  return {list: {schema: 'tarnix-parts', version: 1, view: name, columns, rows, totals, conflicts: [], possibleDuplicates: [], warnings: []},
          occurrences: made.map(each => each.occurrences)};
}

const hashOf = name => require('crypto').createHash('sha256').update(name).digest('hex');

const massOf = (parts, node) => node.children.length ? node.children.reduce((sum, child) => sum + massOf(parts, child), 0) : parts[node.part].mass ?? null;

function row(parts, item, nodes, parent = null, kind = 'part') {
  const part = parts[nodes[0].part], mass = massOf(parts, nodes[0]), total = mass === null ? null : mass * nodes.length;
  return {occurrences: nodes.map(node => node.pathIndex), row: {
    item, kind, parent, quantity: nodes.length, massKg: mass, totalMassKg: total, components: [{name: part.name, partNumber: part.number || part.name}],
    cells: {item, partNumber: part.number, partName: part.name, quantity: nodes.length, mass, totalMass: total, material: part.material ?? ''}}};
}

const grouped = nodes => [...nodes.reduce((map, node) => map.set(node.part, [...map.get(node.part) ?? [], node]), new Map()).values()];

const flat = (parts, nodes) => grouped(nodes).map((group, i) => row(parts, String(i + 1), group));

function indented(parts, tree) {
  const rows = [];
  const add = (nodes, above) => grouped(nodes).forEach((group, i) => {
    const item = above === null ? `${i + 1}` : `${above}.${i + 1}`;
    const inside = group.flatMap(node => node.children);
    rows.push(row(parts, item, group, above, inside.length ? 'assembly' : 'part'));
    add(inside, item);
  });
  add(tree, null);
  return rows;
}

const steel = [0.56, 0.6, 0.65, 1], zinc = [0.75, 0.74, 0.68, 1], blue = [0.08, 0.2, 0.42, 1], red = [0.5, 0.08, 0.06, 1], brass = [0.68, 0.45, 0.12, 1];

/// The well-known two brackets on a plate with a rod: 18 parts of five kinds.
function brackets(name = 'brackets.step') {
  const meshes = [
    {name: 'plate', parts: [box(180, 150, 20, steel)]}, {name: 'l-bracket', parts: [angle(60, 12, 70, blue)]},
    {name: 'bolt', parts: [cylinder(7, 8, 6, zinc), cylinder(4, 34, 16, zinc, -34)]}, {name: 'nut', parts: [ring(7, 4, 6, 6, brass)]},
    {name: 'rod', parts: [cylinder(5, 200, 20, red)]}];
  const part = (number, name, mass, material, mesh) => ({number, name, mass, material, mesh});
  const parts = {
    plate: part('BR-100', 'Plate', 4.212, 'Aluminium 6061', 0), bracket: part('BR-110', 'L bracket', 0.6124, 'Steel S235', 1),
    bolt: part('ISO 4017 M8x30', 'Bolt', 0.0197, 'Steel 8.8', 2), nut: part('ISO 4032 M8', 'Nut', 0.00513, 'Brass', 3),
    rod: part('BR-120', 'Rod', 0.1233, 'Steel S235', 4), rodAssembly: part('BR-010', 'Rod assembly'), bracketAssembly: part('BR-020', 'L bracket assembly'),
    fastener: part('BR-030', 'Nut and bolt')};
  const fastener = (x, y) => ({part: 'fastener', at: [x, y, 0], children: [{part: 'bolt', at: [0, 0, 12]}, {part: 'nut', at: [0, 0, -26]}]});
  const bracket = (at, turn) => ({part: 'bracketAssembly', at, turn, children: [
    {part: 'bracket', at: [0, 35, 0], turn: quarter('x')}, fastener(44, -22), fastener(30, 0), fastener(44, 22)]});
  return assembly(name, parts, meshes, [
    {part: 'rodAssembly', at: [-100, 0, 66], turn: quarter('y'), children: [
      {part: 'rod'}, {part: 'nut', at: [0, 0, 22]}, {part: 'nut', at: [0, 0, 172]}]},
    {part: 'bracketAssembly', ...bracket([-72, 0, 20])}, {part: 'bracketAssembly', ...bracket([72, 0, 20], [0, 0, 1, 0])}, {part: 'plate'}]);
}

/// `count` parts of twelve shapes in a block, in assemblies of ten.
function block(count, name = `block-${count}.step`) {
  const tint = i => [0.25 + 0.5 * (i % 3) / 2, 0.3 + 0.4 * (i % 4) / 3, 0.35 + 0.4 * (i % 5) / 4, 1];
  const meshes = Array.from({length: 12}, (_, i) => ({name: `shape ${i}`, parts: [i % 2 ? cylinder(3 + i / 4, 8, 8, tint(i)) : box(6 + i / 2, 7, 5 + i / 3, tint(i))]}));
  const parts = {group: {number: 'G', name: 'Group'}};
  meshes.forEach((_, i) => parts[`p${i}`] = {number: `P-${i + 1}`, name: `Part ${i + 1}`, mass: 0.01 * (i + 1), material: 'Steel', mesh: i});
  const side = Math.ceil(Math.cbrt(count));
  const leaf = i => ({part: `p${i % 12}`, at: [i % side * 14, Math.floor(i / side) % side * 14, Math.floor(i / side / side) * 14]});
  const groups = Array.from({length: Math.ceil(count / 10)}, (_, g) => ({part: 'group', children: Array.from({length: Math.min(10, count - g * 10)}, (_, i) => leaf(g * 10 + i))}));
  return assembly(name, parts, meshes, groups);
}

/// What is not a body of faces of one colour: a wire, a part that is shown as its box, one part in two colours, and two parts of
/// one number that are different shapes.
function odd(name = 'odd.step') {
  const meshes = [
    {name: 'wire', parts: [], lines: [-30, 0, 0, 30, 0, 0]}, {name: 'box', parts: [box(20, 20, 20, steel)], lines: [-10, -10, 0, 10, -10, 0]},
    {name: 'red', parts: [box(24, 16, 6, red)]}, {name: 'blue', parts: [box(24, 16, 6, blue)]}, {name: 'pin', parts: [cylinder(6, 30, 12, brass)]}];
  const part = (number, mesh) => ({number, name: number, mass: 0.1, material: 'Steel', mesh});
  const parts = {wire: part('WIRE', 0), boxed: part('BOXED', 1), cover: part('COVER', 2), pin: part('PIN', 4), otherPin: part('PIN', 2), group: part('GROUP')};
  const made = assembly(name, parts, meshes, [
    {part: 'wire', at: [0, 60, 0]}, {part: 'boxed', at: [60, 0, 0]}, {part: 'cover', at: [0, 0, 0]}, {part: 'cover', at: [0, -60, 0], mesh: 3},
    {part: 'group', children: [{part: 'otherPin', at: [-60, 0, 0]}, {part: 'pin', at: [-60, -60, 0]}]}]);
  made.list.views[0].list.warnings = [{code: 'shown-as-box', component: 'BOXED', text: 'it cannot be meshed and is shown as its box'}];
  return made;
}

/// A pane of blue glass on a red block, and another pane with nothing below.
function panes(name = 'panes.step') {
  const meshes = [{name: 'pane', parts: [box(40, 40, 2, [...blue.slice(0, 3), 0.5])]}, {name: 'block', parts: [box(30, 30, 10, red)]}];
  const part = (number, mesh) => ({number, name: number, mass: 0.1, material: 'Glass', mesh});
  return assembly(name, {pane: part('PANE', 0), block: part('BLOCK', 1)}, meshes,
                  [{part: 'pane', at: [0, 0, 12]}, {part: 'block'}, {part: 'pane', at: [60, 0, 12]}]);
}

/// `count` different items, each one box of the same shape.
function catalogue(count, name = `catalogue-${count}.step`) {
  const parts = Object.fromEntries(Array.from({length: count}, (_, i) => [`c${i}`, {
    number: `C-${i + 1}`, name: `Item number ${i + 1}`, mass: (i % 97 + 1) / 1000, material: ['Steel', 'Aluminium', 'Brass'][i % 3], mesh: 0}]));
  const top = Object.keys(parts).map((part, i) => ({part, at: [i % 100 * 12, Math.floor(i / 100) * 12, 0]}));
  return assembly(name, parts, [{name: 'box', parts: [box(8, 8, 4, steel)]}], top);
}

/// Names that would be markup if anything took them for it.
const hostileNames = ['<img src=x onerror="document.title=1">', '</script><script>document.title=2</script>', '<!--<script>', '&lt;b&gt; & "quotes" \u2028', '__proto__',
                      '=cmd|calc', '\u202egnp.exe', 'a\nb;c,"d"', '${document.title=3}'];

function hostile() {
  const parts = Object.fromEntries(hostileNames.map((name, i) => [`h${i}`, {number: name, name, mass: 1, material: name, mesh: 0}]));
  const made = assembly('</title><img src=x onerror=alert(1)>.step', parts, [{name: hostileNames[0], parts: [box(8, 8, 8, red)]}],
                        hostileNames.map((_, i) => ({part: `h${i}`, at: [i * 12, 0, 0]})));
  made.list.views[0].list.warnings = hostileNames.map(text => ({code: 'x', text, component: ''}));
  return made;
}

/// The list with its masses in grams, as `--units g` writes it.
function inGrams(list) {
  const made = JSON.parse(JSON.stringify(list));
  for (const {list: {columns, rows}} of made.views) {
    for (const column of columns.filter(({unit}) => unit === 'kg')) {
      Object.assign(column, {unit: 'g', caption: column.caption.replace('[kg]', '[g]')});
      for (const {cells} of rows) if (cells[column.key] !== null) cells[column.key] *= 1000;
    }
  }
  return made;
}

module.exports = {block, brackets, catalogue, hostile, hostileNames, inGrams, odd, panes};
