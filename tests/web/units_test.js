// The modules of web/ without a browser.
'use strict';
const assert = require('assert');
const fs = require('fs');
const path = require('path');
const {brackets} = require('./assemblies');
const {compressed, plain} = require('./compressed');
const {load} = require('./units');
const {MeshoptEncoder} = require('meshoptimizer');

const web = path.join(__dirname, '../../web');
const {readGlb} = load('model/glb.ts');
const {featureEdges} = load('model/edges.ts');
const {arrange} = load('list/arrange.ts');
const {doubtOf, doubtOfTotal} = load('list/doubt.ts');
const {csv, digitsOf, formatNumber} = load('list/format.ts');
const {fieldOf, massIn, massUnit} = load('list/mass.ts');
const {readPartsList, sum, total} = load('list/parts_list.ts');
const {decode, encode} = load('page/address.ts');
const {Links} = load('page/links.ts');
const {ancestors, treeRows} = load('host/tree_rows.ts');
const {formatted, webAddress} = load('host/formatted.ts');

const query = more => ({search: '', filters: new Map(), sort: null, folded: new Set(), ...more});
const table = lines => lines.map(cells => ({children: [], parent: -1, level: 0, cells}));
const columns = [{id: 'name'}, {id: 'mass'}];
const shown = (lines, more) => arrange(table(lines), columns, query(more), (row, id) => lines[row][id === 'name' ? 0 : 1], 'en').map(i => lines[i][0]);
const screws = [['M10', 3], ['M5', 1], ['Čep', 2], ['', 4], ['m8', null]];

// The corners of a shape's triangles, in the world, in the order of the indices.
function corners({shapes, instances}) {
  const {positions, indices} = shapes[instances[0].shape].opaque, m = instances[0].matrix;
  return [...indices].map(i => [0, 1, 2].map(k => m[k] * positions[i * 3] + m[4 + k] * positions[i * 3 + 1] + m[8 + k] * positions[i * 3 + 2] + m[12 + k]));
}

const known = {model: ['model'], viewer: ['model', 'viewer'], list: ['list'], page: ['list', 'model', 'page', 'viewer']};

const importsOf = folder => fs.readdirSync(path.join(web, folder)).filter(name => name.endsWith('.ts')).flatMap(name =>
    [...fs.readFileSync(path.join(web, folder, name), 'utf8').matchAll(/from '\.\.\/(\w+)\//g)].map(found => `${folder}/${name} ${found[1]}`));

const tests = {
  aFolderKnowsOnlyThoseBelowIt() {
    const found = Object.keys(known).flatMap(importsOf);
    assert.ok(found.length > 15);
    assert.deepStrictEqual(found.filter(each => !known[each.split('/')[0]].includes(each.split(' ')[1])), []);
  },

  aModelIsReadAsItsTree() {
    const {instances, occurrences, shapes} = readGlb(brackets().glb);
    assert.strictEqual(instances.length, 18);
    assert.deepStrictEqual(occurrences.map(({path, begin, end}) => `${path} ${begin}-${end}`).slice(0, 7), [
      'Rod assembly:1 0-3', 'Rod assembly:1+Rod:1 0-1', 'Rod assembly:1+Nut:2 1-2', 'Rod assembly:1+Nut:3 2-3', 'L bracket assembly:2 3-10',
      'L bracket assembly:2+L bracket:1 3-4', 'L bracket assembly:2+Nut and bolt:2 4-6']);
    assert.deepStrictEqual([shapes[0].min, shapes[0].max], [[-90, -75, 0], [90, 75, 20]]);
    // 20 mm above the plate's foot, 44 mm from the bracket, in metres with y up.
    const bolt = instances[4].matrix;
    assert.deepStrictEqual([bolt[12], bolt[13], bolt[14]].map(each => Math.round(each * 1e6) / 1e6), [-0.028, 0.032, 0.022]);
  },

  async aCompressedModelIsTheSameAsAPlainOne() {
    await MeshoptEncoder.ready;
    const [a, b] = [readGlb(plain()), readGlb(compressed(MeshoptEncoder))];
    assert.deepStrictEqual(b.occurrences, a.occurrences);
    // An encoder may begin a triangle at another of its corners.
    const sorted = model => corners(model).map(point => point.map(each => each.toFixed(5)).join()).sort();
    assert.deepStrictEqual(sorted(b), sorted(a));
  },

  aDamagedModelIsRefusedByName() {
    const {glb} = brackets();
    assert.throws(() => readGlb(glb.subarray(0, 8)), /not binary glTF/);
    assert.throws(() => readGlb(glb.subarray(0, glb.length - 100)), /cut short/);
    const foreign = Buffer.from(glb.toString('latin1').replace('"generator":"test"}', '"generator":""},"extensionsRequired":["X"]').replace(/"scene":0,/, ''), 'latin1');
    foreign.writeUInt32LE(foreign.length, 8);
    foreign.writeUInt32LE(glb.readUInt32LE(12) + foreign.length - glb.length, 12);
    assert.throws(() => readGlb(foreign), /the model needs X/);
  },

  edgesAreWhereFacesMeetAtAnAngle() {
    const {shapes} = readGlb(brackets().glb);
    assert.strictEqual(featureEdges(shapes[0]).length / 6, 12);  // a box
    assert.strictEqual(featureEdges(shapes[1]).length / 6, 18);  // an angle: twice six corners, six between them
    assert.strictEqual(featureEdges(shapes[4]).length / 6, 40);  // a rod of twenty sides is round: its two rims
  },

  rowsAreSortedAsAReaderCounts() {
    assert.deepStrictEqual(shown(screws, {sort: {id: 'name', descending: false}}), ['Čep', 'M5', 'm8', 'M10', '']);
    assert.deepStrictEqual(shown(screws, {sort: {id: 'mass', descending: true}}), ['', 'M10', 'Čep', 'M5', 'm8']);
  },

  filtersUnderstandNumbersAndLetters() {
    const by = (id, text) => shown(screws, {filters: new Map([[id, text]])});
    assert.deepStrictEqual(by('mass', '>= 2'), ['M10', 'Čep', '']);
    assert.deepStrictEqual(by('mass', '1,5..3'), ['M10', 'Čep']);
    assert.deepStrictEqual(by('mass', '=1'), ['M5']);
    assert.deepStrictEqual(by('name', '=m5'), ['M5']);
    assert.deepStrictEqual(by('name', '!=m5'), ['M10', 'Čep', '', 'm8']);
    assert.deepStrictEqual(by('name', 'cep'), ['Čep']);
    assert.deepStrictEqual(shown(screws, {search: 'm 3'}), ['M10']);
  },

  marksAreFilteredByTheWordsOfBothLanguages() {
    const ticked = [['A', true], ['B', false]];
    const by = text => shown(ticked, {filters: new Map([['mass', text]])}).join('');
    assert.deepStrictEqual(['yes', 'Y', 'ano', 'a', '=yes', '!=no'].map(by), ['A', 'A', 'A', 'A', 'A', 'A']);
    assert.deepStrictEqual(['no', 'NE', 'n', '!=ano'].map(by), ['B', 'B', 'B', 'B']);
    assert.deepStrictEqual(['perhaps', '>1', '='].map(by), ['AB', 'AB', 'AB']);
  },

  searchSeesWhatIsShown() {
    const lines = [['False friend', false], ['B', true], ['C', 'falset']];
    assert.deepStrictEqual(shown(lines, {search: 'false'}), ['False friend', 'C']);
    assert.deepStrictEqual(arrange(table(lines), [{id: 'mass'}], query({search: 'friend'}), (row, id) => lines[row][id === 'name' ? 0 : 1], 'en'), []);
  },

  aNumberIsFoundAsItIsShownAndAsItIs() {
    const lines = [['A', 0.041719999], ['B', 0.5], ['C', 12345.6], ['D', 1.0004]];
    const by = (text, language) => arrange(table(lines), columns, query({filters: new Map([['mass', text]])}), (row, id) => lines[row][id === 'name' ? 0 : 1], language)
        .map(i => lines[i][0]).join('');
    const seek = (search, language) => arrange(table(lines), columns, query({search}), (row, id) => lines[row][id === 'name' ? 0 : 1], language).map(i => lines[i][0]).join('');
    for (const language of ['en', 'cs']) {
      assert.deepStrictEqual(['0,5', '0.5', '0,04172', '0.04172', '0.041719999', '12346', '12345.6'].map(text => seek(text, language)), ['B', 'B', 'A', 'A', 'A', 'C', 'C']);
      assert.deepStrictEqual(['0,5', '=0.04172', '=0,041719999', '>=12346', '<=0.04172', '0.04172..0.5'].map(text => by(text, language)), ['B', 'A', 'A', 'C', 'A', 'AB']);
      assert.deepStrictEqual(['<0.04172', '>12346', '>12345', '!=0.04172', '=1', '>'].map(text => by(text, language)), ['', '', 'C', 'BCD', 'D', 'ABCD']);
    }
  },

  aTreeKeepsWhatIsAboveAHitAndUnfoldsIt() {
    const {views} = readPartsList(brackets().list);
    const rows = views.get('indented').rows, names = order => order.map(i => rows[i].cells[2]);
    const cellOf = (row, id) => id === 'name' ? rows[row].cells[2] : null;
    const folded = new Set([3]);
    assert.deepStrictEqual(names(arrange(rows, columns, query({folded}), cellOf, 'en')), ['Rod assembly', 'Rod', 'Nut', 'L bracket assembly', 'Plate']);
    assert.deepStrictEqual(names(arrange(rows, columns, query({folded, search: 'bolt'}), cellOf, 'en')), ['L bracket assembly', 'Nut and bolt', 'Bolt']);
  },

  aSumCountsNothingTwice() {
    const {views, paths} = readPartsList(brackets().list);
    const {quantity, mass} = sum(views.get('indented'), new Set([3, 4, 6]), paths);
    assert.strictEqual(quantity, 2);
    assert.ok(Math.abs(mass - 2 * (0.6124 + 3 * (0.0197 + 0.00513))) < 1e-12);
  },

  anAssemblyBesideItsPartsIsNotCountedTwice() {
    const paths = ['A:1', 'A:1+Nut:1', 'Nut:2', 'A:1#bodies'];
    const row = (kind, quantity, totalMassKg, number) => ({item: number, kind, quantity, totalMassKg, components: [{partNumber: number}], cells: {}});
    const rows = [row('assembly', 1, 1.5, 'A'), row('part', 2, 1, 'NUT'), row('own-bodies', 1, 1, 'A')];
    const {views, paths: read} = readPartsList({schema: 'tarnix-page', version: 1, file: {}, paths, views: [
      {list: {schema: 'tarnix-parts', version: 1, view: 'all', columns: [], rows, totals: {massKg: 2}}, occurrences: [[0], [1, 2], [3]]}]});
    const of = (...chosen) => { const {quantity, mass} = sum(views.get('all'), new Set(chosen), read); return [quantity, mass]; };
    assert.deepStrictEqual([of(0), of(1), of(0, 1), of(0, 2), of(1, 2), of(0, 1, 2)], [[1, 1.5], [2, 1], [2, 2], [1, 1.5], [3, 2], [2, 2]]);
  },

  whatIsInDoubtIsSaid() {
    const {list} = brackets();
    const [nut, bolt] = [1, 3];  // rod, nut, bracket, bolt, plate
    Object.assign(list.views[0].list.rows[nut], {assumed: true});
    Object.assign(list.views[0].list.rows[bolt], {unmeasured: true, totalMassKg: null});
    Object.assign(list.views[0].list.rows[bolt].cells, {mass: null, totalMass: null});
    const {views, paths} = readPartsList(list), view = views.get('parts');
    const doubts = row => ['partNumber', 'mass', 'totalMass 2', 'material', 'volume'].map(id => doubtOf(view.rows[row], id, id === 'volume' ? null : row === bolt && id !== 'material' ? null : 'x'));
    assert.deepStrictEqual([0, nut, bolt].map(doubts), [Array(5).fill(null), [null, 'assumed', 'assumed', 'assumed', null], [null, 'unmeasured', 'unmeasured', null, 'unmeasured']]);
    const of = (...rows) => doubtOfTotal(total(view, new Set(rows), paths));
    assert.deepStrictEqual([of(0), of(0, nut), of(0, nut, bolt), of(0, 1, 2, 3, 4)], [null, 'assumed', 'atLeast', 'atLeast']);
    assert.strictEqual(sum(view, new Set([nut, bolt]), paths).unknown, 1);
  },

  aListThatIsNotAsDescribedIsRefused() {
    const list = () => JSON.parse(JSON.stringify(brackets().list));
    const broken = change => { const made = list(); change(made); return () => readPartsList(made); };
    assert.throws(() => readPartsList({schema: 'x', version: 1}), /the page is x 1, not tarnix-page 1/);
    assert.throws(broken(made => made.views[1].list.version = 2), /views\[1\]\.list is tarnix-parts 2, not tarnix-parts 1/);
    assert.throws(broken(made => delete made.views[0].list.rows), /the page has no array views\[0\]\.list\.rows/);
    assert.throws(broken(made => made.views[0].occurrences.pop()), /views\[0\] has 5 rows and occurrences of 4/);
    assert.throws(broken(made => made.views[0].occurrences[2].push(99)), /views\[0\]\.occurrences\[2\] is beyond the paths/);
    assert.throws(broken(made => made.views = []), /the page has no views/);
  },

  aTotalCountsWhatIsNotOpened() {
    const {views, paths} = readPartsList(brackets().list), view = views.get('indented');
    const all = total(view, new Set(view.rows.keys()), paths);
    assert.strictEqual(all.quantity, 18);
    assert.ok(Math.abs(all.mass - (4.212 + 2 * 0.6124 + 6 * 0.0197 + 8 * 0.00513 + 0.1233)) < 1e-12);
    // The rod's assembly and its nuts: the nuts are in it.
    const some = total(view, new Set([0, 2]), paths);
    assert.deepStrictEqual([some.quantity, some.mass.toFixed(5)], [2, (0.1233 + 2 * 0.00513).toFixed(5)]);
  },

  massesAreInTheUnitsOfTheirColumns() {
    const of = (...units) => units.map(unit => massIn(2, unit));
    assert.deepStrictEqual(of('kg', 'g', 'mg', 't', 'mm', 'toString', null), [2, 2000, 2e6, 0.002, null, null, null]);
    assert.deepStrictEqual(of('lb', 'oz').map(each => each.toFixed(4)), ['4.4092', '70.5479']);  // 1 lb is 0.45359237 kg, 16 oz
    assert.deepStrictEqual(['totalMass 2', 'totalMass', 'Bolt 2 x'].map(fieldOf), ['totalMass', 'totalMass', 'Bolt 2 x']);
    const columns = [{id: 'x', unit: 'mm'}, {id: 'mass', unit: 'oz'}, {id: 'totalMass', unit: 'g'}, {id: 'totalMass 2', unit: 't'}];
    assert.deepStrictEqual([4, 2, 1].map(count => massUnit(columns.slice(0, count))), ['g', 'oz', 'kg']);
  },

  captionsAndSizesAreReadable() {
    const {list} = brackets();
    list.views[0].list.columns.push({key: 'size', caption: 'Size [mm]', unit: 'mm'}, {key: 'thumbnail', caption: 'Thumbnail'});
    list.views[0].list.rows[0].cells.size = [200.00001, 10, 9.99999];
    const {columns, views} = readPartsList(list);
    assert.deepStrictEqual(columns.map(each => each.kind).join(), 'text,text,text,number,number,number,text,text,picture');
    assert.strictEqual(views.get('parts').rows[0].cells[7], '200 × 10 × 10');
  },

  whatIsWrongInTheListIsALine() {
    const {list} = brackets();
    const warning = {code: 'unmeasured', text: 'cannot be measured', component: 'Rod'};
    list.views[0].list.warnings = list.views[1].list.warnings = [warning];
    list.views[0].list.conflicts = [{what: 'material', item: 'BR-1', values: ['Steel', 'Brass'], components: []}];
    list.views[0].list.possibleDuplicates = [{shape: 3, items: ['A', 'B']}];
    const {conflicts, warnings} = readPartsList(list);
    assert.deepStrictEqual([conflicts, warnings], [['BR-1: material: Steel / Brass', '= A = B'], ['Rod: cannot be measured']]);
  },

  bodiesOfAnAssemblyAreTheOwnOfItsNode() {
    const occurrence = (path, parent, begin, end) => ({path, parent, begin, end});
    const model = {instances: [{occurrence: 1}, {occurrence: 2}],
                   occurrences: [occurrence('', -1, 0, 2), occurrence('A:1', 0, 0, 2), occurrence('A:1+B:1', 1, 1, 2)]};
    const rows = [{occurrences: [0]}, {occurrences: [1]}, {occurrences: [2]}];
    const links = new Links({paths: ['A:1#bodies', 'A:1+B:1', 'gone:1']}, model);
    assert.deepStrictEqual(rows.map(row => links.places(row)), [[[0]], [[1]], []]);
    assert.deepStrictEqual([0, 1].map(i => links.rowOf(rows, i)), [{row: 0, place: 0}, {row: 1, place: 0}]);
  },

  numbersKeepFourSignificantDigits() {
    const written = value => formatNumber(value, 'en');
    assert.deepStrictEqual([0.000012345, 0.0197, 1.23456, 12345.678, 100, 0, -0.5].map(written), ['0.00001235', '0.0197', '1.235', '12346', '100', '0', '-0.5']);
    assert.strictEqual(formatNumber(1.5, 'cs'), '1,5');
  },

  aColumnWithDecimalsShowsAndFindsThem() {
    assert.deepStrictEqual([1.23456, 5, 0.004, -2.5].map(value => formatNumber(value, 'en', 2)), ['1.23', '5.00', '0.00', '-2.50']);
    assert.strictEqual(formatNumber(12345.678, 'cs', 1), '12345,7');
    assert.deepStrictEqual(digitsOf([5, 12.345], 2), {whole: 2, fraction: 2});
    const lines = [['A', 1.2345], ['B', 1.24]];
    const by = text => arrange(table(lines), columns, query({filters: new Map([['mass', text]])}), (row, id) => lines[row][id === 'name' ? 0 : 1], 'en', () => 2)
        .map(i => lines[i][0]).join('');
    assert.deepStrictEqual(['=1.23', '=1.24', '1.23', '>1.23', '=1.235'].map(by), ['A', 'B', 'A', 'B', '']);
  },

  decimalsAreReadWithTheirColumn() {
    const {list} = brackets(), [{list: first}] = list.views;
    first.columns = [{key: 'item', caption: 'Item'}, {key: 'mass', caption: 'Mass', decimals: 2}, {key: 'size', caption: 'Size', decimals: 1}];
    first.rows[0].cells.size = [200, 10.04, 9.96];
    const {columns: read, views} = readPartsList({...list, views: [list.views[0]]});
    assert.deepStrictEqual(read.map(each => each.decimals), [null, 2, 1]);
    assert.strictEqual(views.get('parts').rows[0].cells[2], '200.0 × 10.0 × 10.0');
  },

  whatHasNoShapeIsNotMissedInTheSum() {
    const {list} = brackets();
    Object.assign(list.views[0].list.rows[0], {massKg: null, totalMassKg: null});
    const {views, paths} = readPartsList(list), {mass, unknown} = sum(views.get('parts'), new Set([0, 1]), paths);
    assert.strictEqual(unknown, 0);
    assert.ok(Math.abs(mass - 8 * 0.00513) < 1e-12);
  },

  aColumnHasRoomForItsNumbers() {
    assert.deepStrictEqual(digitsOf([0.000475, 1.263, 571.2, 100]), {whole: 3, fraction: 6});
    assert.deepStrictEqual(digitsOf([8, 12]), {whole: 2, fraction: 0});
    assert.deepStrictEqual(digitsOf([]), {whole: 1, fraction: 0});
  },

  csvIsQuotedAndRunsNothing() {
    assert.strictEqual(csv([['a;b', 'say "x"', 'two\nlines'], ['=cmd', '-5', -5.5, null, true]], ';', ','),
                       '"a;b";"say ""x""";"two\nlines"\r\n\'=cmd;-5;-5,5;;1\r\n');
  },

  anAddressBringsBackTheState() {
    const address = {view: 'parts', search: 'a&b #1', filters: [['Mass', '>=2=']], sort: {id: 'Part Number', descending: true}, columns: ['Item'], folded: [1, 2, 3, 9],
                     selected: [4], step: 2, dim: true, hidden: [0], perspective: false, edges: false, explode: 0.25, section: {axis: 2, share: 0.125, flipped: true},
                     pose: {x: 1, y: -2, z: 0.5, yaw: 0.25, pitch: 0.5, size: 3}};
    assert.deepStrictEqual(decode('#' + encode(address)), address);
    assert.deepStrictEqual(decode(`#${encode({...address, sort: {id: 'x', descending: false}})}`).sort, {id: 'x', descending: false});
  },

  anAddressFromAnywhereHarmsNothing() {
    const {section, pose, explode, selected, hidden} = decode('#section=7,x&pose=1,2,NaN,0,0,0&explode=1e9&selected=5-1,x,-3&hidden=0-999999999999');
    assert.deepStrictEqual([section, pose, explode, selected, hidden], [null, null, 1, [], []]);
  },

  aComponentIsInTheTreeWhereverItIsUsed() {
    const components = [
      {name: 'root', partNumber: 'R', children: [[1, 1, true], [2, 1, false], null, [1, 2, false]]},
      {name: 'pair', partNumber: 'P', children: [[2, 1, false], [2, 7, false]]}, {name: 'nut', partNumber: 'N', children: [null], document: 'bolts'}];
    const rows = treeRows(components, new Set(['', 'pair:2']));
    assert.deepStrictEqual(rows.map(({path, depth, grounded, parent}) => [path, depth, grounded, parent]), [
      ['', 0, false, true], ['pair:1', 1, true, true], ['nut:1', 1, false, false], ['pair:2', 1, false, true],
      ['pair:2+nut:1', 2, false, false], ['pair:2+nut:7', 2, false, false]]);
    assert.deepStrictEqual(ancestors(components, 'pair:2+nut:7'), ['', 'pair:2']);
    assert.deepStrictEqual(treeRows(components, new Set()).length, 1);
  },

  ofAFormattedTextTagsWithoutHarmAreKept() {
    const plain = node => typeof node === 'string' ? node : Array.isArray(node) ? node.map(plain).join('') : `<${node.type}${node.props.href ? ` ${node.props.href}` : ''}>${plain([node.props.children ?? []].flat())}</>`;
    const shown = text => plain(formatted(text));
    assert.strictEqual(shown('a <B class="x" onclick="y()">b</B> &lt;i&gt; &#233;&#xe9;&nbsp;&no;'), 'a <b>b</> <i> \u00e9\u00e9\u00a0&no;');
    assert.strictEqual(shown('<a href="javascript:x()">j</a><a href=\'https://e.com/?a=1&amp;b\'>w</a>'), '<a>j</><a https://e.com/?a=1&b>w</>');
    assert.strictEqual(shown('<img src=x onerror="a>b"><script>s</script><!-- <b> -->1 < 2 > 0'), 's1 < 2 > 0');
    assert.strictEqual(shown('<ul><li>one<li>two</ul>after</b>'), '<ul><li>one<li>two</></></>after');
    assert.strictEqual(shown('<b>'.repeat(1000)).length < 1000, true);
    assert.deepStrictEqual(['http://a', 'https://a b', ' javascript:1', 'HTTPS://A', 'file:///x'].map(webAddress), [true, false, false, true, false]);
  },
};

async function main() {
  let failed = 0;
  for (const [name, test] of Object.entries(tests)) {
    try {
      await test();
    } catch (error) {
      ++failed;
      console.error(`${name}: ${error.stack}`);
    }
  }
  console.log(`${Object.keys(tests).length} tests, ${failed} failed`);
  process.exitCode = failed ? 1 : 0;
}

main();
