// Which rows are shown, and in what order: search, filters, sort order, folded rows.
import type {Cell, Column, Row} from './parts_list.ts';

export interface Query {
  search: string;
  filters: Map<string, string>;  ///< by the column's id
  sort: {id: string; descending: boolean} | null;
  folded: Set<number>;           ///< rows whose children are hidden
}

/// What a row has in a column, beyond the file's own cells also marks and notes; a picture has nothing.
export type CellOf = (row: number, column: string) => Cell | boolean;

/// The indices of the shown rows, in order. A row that fits keeps those above it; in a tree the rows below
/// one parent are sorted among themselves. Folding does not hide what was searched for.
export function arrange(rows: Row[], columns: Pick<Column, 'id'>[], query: Query, cellOf: CellOf, language: string): number[] {
  const wanted = fitting(rows, columns, query, cellOf);
  const seeking = query.search.trim() !== '' || [...query.filters.values()].some(each => each.trim() !== '');
  const compare = order(query, cellOf, language);
  const tops = rows.flatMap((row, i) => row.parent < 0 ? [i] : []);
  const result: number[] = [];
  const stack = sorted(tops, compare).reverse();
  while (stack.length) {
    const at = stack.pop()!;
    if (!wanted[at]) continue;
    result.push(at);
    if (seeking || !query.folded.has(at)) stack.push(...sorted(rows[at].children, compare).reverse());
  }
  return result;
}

function sorted(rows: number[], compare: ((a: number, b: number) => number) | null): number[] {
  return compare ? [...rows].sort(compare) : [...rows];
}

function fitting(rows: Row[], columns: Pick<Column, 'id'>[], query: Query, cellOf: CellOf): boolean[] {
  const words = plain(query.search).split(/\s+/).filter(Boolean);
  const tests = [...query.filters].flatMap(([id, text]) => text.trim() ? [{id, test: predicate(text.trim())}] : []);
  const wanted = rows.map((_, i) => {
    if (!tests.every(({id, test}) => test(cellOf(i, id)))) return false;
    const text = words.length ? plain(columns.map(({id}) => cellOf(i, id) ?? '').join('\n')) : '';
    return words.every(word => text.includes(word));
  });
  for (let i = rows.length - 1; i >= 0; --i) if (wanted[i] && rows[i].parent >= 0) wanted[rows[i].parent] = true;
  return wanted;
}

/// Small letters without accents.
export function plain(text: string): string {
  return text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').toLowerCase();
}

// "> 2", "<=5", "=M5", "1..3", else what the cell contains; "yes" and "no" for marks.
function predicate(text: string): (cell: Cell | boolean) => boolean {
  const range = /^(-?[\d.,]+)\s*\.\.\s*(-?[\d.,]+)$/.exec(text);
  if (range) return cell => typeof cell === 'number' && cell >= number(range[1]) && cell <= number(range[2]);
  const [, sign, operand] = /^(<=|>=|!=|<|>|=)?\s*(.*)$/s.exec(text)!;
  const value = number(operand);
  const wanted = plain(operand);
  switch (sign) {
    case '<': return cell => typeof cell === 'number' && cell < value;
    case '>': return cell => typeof cell === 'number' && cell > value;
    case '<=': return cell => typeof cell === 'number' && cell <= value;
    case '>=': return cell => typeof cell === 'number' && cell >= value;
    case '=': return cell => equal(cell, wanted, value);
    case '!=': return cell => !equal(cell, wanted, value);
    default: return cell => typeof cell === 'boolean' ? cell === (wanted === 'yes') : plain(String(cell ?? '')).includes(wanted);
  }
}

const number = (text: string) => text.trim() === '' ? NaN : Number(text.trim().replace(',', '.'));

function equal(cell: Cell | boolean, wanted: string, value: number): boolean {
  return typeof cell === 'number' && !Number.isNaN(value) ? Math.abs(cell - value) <= Math.abs(value) * 5e-4 : plain(String(cell ?? '')) === wanted;
}

// Empty cells are last in both directions.
function order(query: Query, cellOf: CellOf, language: string): ((a: number, b: number) => number) | null {
  if (!query.sort) return null;
  const {id, descending} = query.sort;
  const collator = new Intl.Collator(language, {numeric: true, sensitivity: 'base'});
  const empty = (cell: Cell | boolean) => cell === null || cell === '';
  return (a, b) => {
    const [x, y] = [cellOf(a, id), cellOf(b, id)];
    if (empty(x) || empty(y)) return Number(empty(x)) - Number(empty(y));
    const less = typeof x === 'string' || typeof y === 'string' ? collator.compare(String(x), String(y)) : Number(x) - Number(y);
    return (descending ? -less : less) || a - b;
  };
}
