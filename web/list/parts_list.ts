// The parts list as docs/page.md describes it, checked while it is read.

export interface Column {
  id: string;
  caption: string;
  kind: 'text' | 'number' | 'picture';
  unit: string;
  decimals: number | null;  ///< null: significant digits
}

export type Cell = string | number | null;

export interface Row {
  key: string;            ///< names the item in all views and after the file was read again
  cells: Cell[];
  level: number;
  parent: number;         ///< index in the view; -1 at the top
  children: number[];
  quantity: number;       ///< in all of the assembly
  mass: number | null;    ///< of one, in kg
  occurrences: number[];  ///< indices in `paths`
}

export interface PartsList {
  file: {name: string; sha256: string};
  columns: Column[];
  paths: string[];
  views: Map<string, Row[]>;
  conflicts: string[];
  warnings: string[];
}

const schema = 1;

/// Throws an Error that names what is not as described.
export function readPartsList(json: any): PartsList {
  if (json?.schema !== schema) throw new Error(`the list has the schema ${json?.schema}; this page reads ${schema}`);
  const columns = array(json.columns, 'columns').map(readColumn);
  const paths = array(json.paths, 'paths').map(String);
  const views = new Map<string, Row[]>();
  for (const [name, view] of Object.entries<any>(json.views ?? {})) {
    const where = `views.${name}.rows`;
    views.set(name, linked(array(view?.rows, where).map((row, i) => readRow(row, columns, paths, `${where}[${i}]`))));
  }
  if (!views.size) throw new Error('the list has no views');
  return {file: {name: String(json.file?.name ?? ''), sha256: String(json.file?.sha256 ?? '')}, columns, paths, views,
          conflicts: (json.conflicts ?? []).map(String), warnings: (json.warnings ?? []).map(String)};
}

function array(value: unknown, where: string): any[] {
  if (!Array.isArray(value)) throw new Error(`the list has no array ${where}`);
  return value;
}

function readColumn(column: any): Column {
  const kind = ['number', 'picture'].includes(column.kind) ? column.kind : 'text';
  return {id: String(column.id), caption: String(column.caption ?? column.id), kind, unit: String(column.unit ?? ''),
          decimals: typeof column.decimals === 'number' ? column.decimals : null};
}

function readRow(row: any, columns: Column[], paths: string[], where: string): Row {
  const cells = array(row.cells, `${where}.cells`);
  if (cells.length !== columns.length) throw new Error(`${where} has ${cells.length} cells, not ${columns.length}`);
  const occurrences: number[] = array(row.occurrences ?? [], `${where}.occurrences`);
  if (occurrences.some(each => !(each in paths))) throw new Error(`${where} has an occurrence beyond the paths`);
  return {key: String(row.key ?? ''), cells, level: row.level ?? 0, parent: row.parent ?? -1, children: [],
          quantity: Number(row.quantity ?? 0), mass: typeof row.mass === 'number' ? row.mass : null, occurrences};
}

function linked(rows: Row[]): Row[] {
  rows.forEach((row, i) => {
    if (row.parent < 0) return;
    if (!(row.parent < i)) throw new Error(`row ${i} of the list comes before its parent`);
    rows[row.parent].children.push(i);
  });
  return rows;
}

/// Quantity and mass of these rows; a row below another one of them is in it already. `unknown`: rows without a mass.
export function sum(rows: Row[], chosen: Set<number>): {quantity: number; mass: number; unknown: number} {
  const result = {quantity: 0, mass: 0, unknown: 0};
  for (const index of chosen) {
    const row = rows[index];
    if (hasAncestorIn(rows, index, chosen)) continue;
    result.quantity += row.quantity;
    result.mass += row.quantity * (row.mass ?? 0);
    result.unknown += row.mass === null ? 1 : 0;
  }
  return result;
}

function hasAncestorIn(rows: Row[], index: number, chosen: Set<number>): boolean {
  for (let at = rows[index].parent; at >= 0; at = rows[at].parent) if (chosen.has(at)) return true;
  return false;
}
