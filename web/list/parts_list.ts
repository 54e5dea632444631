// The parts lists that docs/page.md describes, checked while they are read.

export interface Column {
  id: string;
  caption: string;  ///< with the unit
  unit: string | null;
  decimals: number | null;  ///< of its numbers; null: significant digits
  kind: 'text' | 'number' | 'picture';
}

export type Cell = string | number | null;

export interface Row {
  key: string;            ///< names the item in all views and after the file was read again
  cells: Cell[];
  level: number;          ///< 0 at the top
  parent: number;         ///< index in the view; -1 at the top
  children: number[];
  opened: boolean;        ///< an assembly whose parts are listed
  quantity: number;       ///< in all of the assembly
  mass: number | null;    ///< of one, in kg
  totalMass: number | null;
  assumed: boolean;       ///< its mass rests on an assumed material or density
  unmeasured: boolean;    ///< a body in it has no measures
  occurrences: number[];  ///< indices in `paths`
}

export interface View { rows: Row[]; totalMass: number | null }

export interface PartsList {
  file: {name: string; sha256: string};
  columns: Column[];
  paths: string[];
  views: Map<string, View>;
  conflicts: string[];
  warnings: string[];
}

const page = {schema: 'tarnix-page', version: 1};
const list = {schema: 'tarnix-parts', version: 1};
const pictureId = 'thumbnail';

/// Throws an Error that names what is not as described.
export function readPartsList(json: any): PartsList {
  expect(json, page, 'the page');
  const paths = array(json.paths, 'paths').map(String);
  const lists = array(json.views, 'views');
  if (!lists.length) throw new Error('the page has no views');
  const columns = union(lists.map((view, i) => {
    expect(view.list, list, `views[${i}].list`);
    return array(view.list.columns, `views[${i}].list.columns`);
  }));
  const views = new Map(lists.map((view, i) => [String(view.list.view), readView(view, columns, paths, `views[${i}]`)]));
  nameItems(views, paths);
  return {file: {name: String(json.file?.name ?? ''), sha256: String(json.file?.sha256 ?? '')}, columns: withKinds(columns, views), paths, views,
          ...messages(lists.map(each => each.list))};
}

function expect(json: any, wanted: {schema: string; version: number}, where: string): void {
  if (json?.schema !== wanted.schema || json.version !== wanted.version) {
    throw new Error(`${where} is ${json?.schema} ${json?.version}, not ${wanted.schema} ${wanted.version}`);
  }
}

function array(value: unknown, where: string): any[] {
  if (!Array.isArray(value)) throw new Error(`the page has no array ${where}`);
  return value;
}

/// The columns of all lists, each once, where the first list has it.
function union(lists: any[][]): Column[] {
  const known = new Map<string, Column>();
  for (const column of lists.flat()) {
    const id = String(column.key);
    if (!known.has(id)) known.set(id, {id, caption: String(column.caption ?? id), unit: column.unit === undefined ? null : String(column.unit),
                                            decimals: decimalsOf(column.decimals), kind: id === pictureId ? 'picture' : 'text'});
  }
  return [...known.values()];
}

const mostDecimals = 20;  // that numbers have in JavaScript of any age

function decimalsOf(value: unknown): number | null {
  return Number.isInteger(value) && Number(value) >= 0 ? Math.min(mostDecimals, Number(value)) : null;
}

function withKinds(columns: Column[], views: Map<string, View>): Column[] {
  return columns.map((column, i) => {
    const values = [...views.values()].flatMap(({rows}) => rows.map(row => row.cells[i])).filter(cell => cell !== null);
    const isNumber = values.length > 0 && values.every(cell => typeof cell === 'number');
    return column.kind === 'picture' || !isNumber ? column : {...column, kind: 'number'};
  });
}

function readView(json: any, columns: Column[], paths: string[], where: string): View {
  const rows = array(json.list.rows, `${where}.list.rows`);
  const occurrences = array(json.occurrences, `${where}.occurrences`);
  if (rows.length !== occurrences.length) throw new Error(`${where} has ${rows.length} rows and occurrences of ${occurrences.length}`);
  const indices = new Map<string, number>();
  const read: Row[] = [];
  rows.forEach((row, i) => {
    const parent = indices.get(row.parent) ?? -1;
    indices.set(row.item, i);
    read.push(readRow(row, columns, occurrences[i], parent < 0 ? 0 : read[parent].level + 1, parent));
    if (read[i].occurrences.some(each => !(each in paths))) throw new Error(`${where}.occurrences[${i}] is beyond the paths`);
    if (parent >= 0) read[parent].children.push(i);
  });
  return {rows: read, totalMass: numberOrNull(json.list.totals?.massKg)};
}

function readRow(row: any, columns: Column[], occurrences: unknown, level: number, parent: number): Row {
  const first = row.components?.[0] ?? {};
  return {key: `${first.partNumber || first.name || row.item}${row.kind === 'own-bodies' ? ' (own bodies)' : ''}`,
          cells: columns.map(({id, decimals}) => readCell(row.cells?.[id], decimals)), level, parent, children: [], opened: row.kind === 'assembly',
          quantity: Number(row.quantity ?? 0), mass: numberOrNull(row.massKg), totalMass: numberOrNull(row.totalMassKg),
          assumed: row.assumed === true, unmeasured: row.unmeasured === true, occurrences: array(occurrences, 'of occurrences').map(Number)};
}

/// Gives rows that stand for one item the same key in all views, and different items of one part number, which lists merged
/// by shape have, different keys.
function nameItems(views: Map<string, View>, paths: string[]): void {
  const flat = views.get('all') ?? views.get('parts');
  if (!flat) return;
  const count = new Map<string, number>();
  for (const {key} of flat.rows) count.set(key, (count.get(key) ?? 0) + 1);
  const keys = new Map<number, string>();
  for (const row of flat.rows) {
    if (count.get(row.key)! > 1 && row.occurrences.length) row.key += ` @ ${paths[row.occurrences[0]]}`;
    for (const path of row.occurrences) keys.set(path, row.key);
  }
  for (const {rows} of views.values()) for (const row of rows) row.key = keys.get(row.occurrences[0]) ?? row.key;
}

const numberOrNull = (value: unknown) => typeof value === 'number' ? value : null;

function readCell(value: unknown, decimals: number | null): Cell {
  const text = (each: unknown) => decimals === null ? Number(Number(each).toPrecision(4)) : Number(each).toFixed(decimals);
  if (Array.isArray(value)) return value.map(text).join(' × ');
  return typeof value === 'number' || typeof value === 'string' ? value : null;
}

// Each list tells of the whole design: what several say is said once.
function messages(lists: any[]): {conflicts: string[]; warnings: string[]} {
  const once = (lines: string[]) => [...new Set(lines)];
  const conflicts = lists.flatMap(each => [
    ...(each.conflicts ?? []).map((one: any) => `${one.item}: ${one.what}: ${(one.values ?? []).join(' / ')}`),
    ...(each.possibleDuplicates ?? []).map((one: any) => `= ${(one.items ?? []).join(' = ')}`)]);
  const warnings = lists.flatMap(each => (each.warnings ?? []).map((one: any) => `${one.component ? `${one.component}: ` : ''}${one.text}`));
  return {conflicts: once(conflicts), warnings: once(warnings)};
}

export interface Sum {
  quantity: number;
  mass: number | null;  ///< null where the list has no masses
  unknown: number;      ///< rows whose mass cannot be measured
  assumed: boolean;     ///< a material or density is assumed
}

/// Quantity and mass of these rows; what is in another one of them is in its sum already.
export function sum(view: View, chosen: Set<number>, paths: string[]): Sum {
  const {rows} = view, result: Sum = {quantity: 0, mass: view.totalMass === null ? null : 0, unknown: 0, assumed: false};
  const places = new Set([...chosen].filter(index => rows[index].opened).flatMap(index => rows[index].occurrences.map(path => paths[path])));
  for (const index of chosen) {
    const row = rows[index], share = hasAncestorIn(rows, index, chosen) ? 0 : shareBeside(places, row, paths);
    if (!share) continue;
    result.quantity += Math.round(row.quantity * share);
    result.assumed ||= row.assumed;
    if (result.mass === null) continue;
    result.mass += (row.totalMass ?? 0) * share;
    result.unknown += row.unmeasured ? 1 : 0;  // what has no shape weighs nothing
  }
  return result;
}

function hasAncestorIn(rows: Row[], index: number, chosen: Set<number>): boolean {
  for (let at = rows[index].parent; at >= 0; at = rows[at].parent) if (chosen.has(at)) return true;
  return false;
}

const ownMark = '#bodies';

/// How much of a row is in none of these places of assemblies: a flat list has an assembly beside its parts.
function shareBeside(places: Set<string>, row: Row, paths: string[]): number {
  if (!places.size || !row.occurrences.length) return 1;
  const beside = row.occurrences.filter(index => !above(paths[index]).some(path => places.has(path)));
  return beside.length / row.occurrences.length;
}

/// The paths of what an occurrence is in.
function above(path: string): string[] {
  const result = path.endsWith(ownMark) ? [path.slice(0, -ownMark.length)] : [];
  for (let at = path.lastIndexOf('+'); at > 0; at = path.lastIndexOf('+', at - 1)) result.push(path.slice(0, at));
  return result;
}

/// What a list that shows these rows adds up to: as `parts` counts, items that are not opened, and nothing twice.
export function total(view: View, shown: Set<number>, paths: string[]): Sum {
  const rows = [...shown].map(index => view.rows[index]);
  const quantity = rows.reduce((whole, row) => whole + (row.opened ? 0 : row.quantity), 0);
  // In a flat list an opened assembly is listed beside its parts.
  const isTree = view.rows.some(row => row.parent >= 0);
  const counted = new Set([...shown].filter(index => isTree || !view.rows[index].opened || rows.every(row => row.opened)));
  const added = sum(view, counted, paths);
  return {...added, quantity, mass: shown.size === view.rows.length ? view.totalMass : added.mass};
}
