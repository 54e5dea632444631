// Which rows are shown, and in what order: search, filters, sort order, folded rows.
import {formatCell, shownNumber} from './format.ts';
import type {Cell, Column, Row} from './parts_list.ts';

export interface Query {
  search: string;
  filters: Map<string, string>;  ///< by the column's id
  sort: {id: string; descending: boolean} | null;
  folded: Set<number>;           ///< rows whose children are hidden
}

/// What a row has in a column, beyond the file's own cells also marks and notes; a picture has nothing.
export type CellOf = (row: number, column: string) => Cell | boolean;

/// How many decimals numbers of a column are shown with; null by significant digits.
export type DecimalsOf = (column: string) => number | null;

/// The indices of the shown rows, in order. A row that fits keeps those above it; in a tree the rows below
/// one parent are sorted among themselves. Folding does not hide what was searched for. `searched`: the columns that the
/// search looks in.
export function arrange(rows: Row[], searched: Pick<Column, 'id'>[], query: Query, cellOf: CellOf, language: string,
                        decimalsOf: DecimalsOf = () => null): number[] {
  const wanted = fitting(rows, searched, query, cellOf, language, decimalsOf);
  const seeking = isSeeking(query);
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

/// Whether search or filters may hide rows.
export function isSeeking({search, filters}: Query): boolean {
  return search.trim() !== '' || [...filters.values()].some(each => each.trim() !== '');
}

function sorted(rows: number[], compare: ((a: number, b: number) => number) | null): number[] {
  return compare ? [...rows].sort(compare) : [...rows];
}

function fitting(rows: Row[], searched: Pick<Column, 'id'>[], query: Query, cellOf: CellOf, language: string, decimalsOf: DecimalsOf): boolean[] {
  const words = plain(query.search).split(/\s+/).filter(Boolean);
  const tests = [...query.filters].flatMap(([id, text]) => text.trim() ? [{id, test: predicate(text.trim(), language, decimalsOf(id))}] : []);
  const wanted = rows.map((_, i) => tests.every(({id, test}) => test(cellOf(i, id))) &&
                                    words.every(word => searched.some(({id}) => contains(cellOf(i, id), word, language, decimalsOf(id)))));
  for (let i = rows.length - 1; i >= 0; --i) if (wanted[i] && rows[i].parent >= 0) wanted[rows[i].parent] = true;
  return wanted;
}

/// Small letters without accents.
export function plain(text: string): string {
  return text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').toLowerCase();
}

const withPoint = (text: string) => text.replaceAll(',', '.');

// A number has the digits that are shown, and those that it has; a box that is ticked or not has no text.
function contains(cell: Cell | boolean, wanted: string, language: string, decimals: number | null): boolean {
  if (cell === null || typeof cell === 'boolean') return false;
  if (typeof cell === 'string') return plain(cell).includes(wanted);
  return [String(cell), withPoint(formatCell(cell, language, decimals))].some(text => text.includes(withPoint(wanted)));
}

type Test = (cell: Cell | boolean) => boolean;

// "> 2", "<=5", "=M5", "1..3", else what the cell contains; "yes" and "no" for marks.
function predicate(text: string, language: string, decimals: number | null): Test {
  const marked = markPredicate(text), other = range(text, decimals) ?? comparison(text, language, decimals);
  return cell => typeof cell === 'boolean' ? marked(cell) : other(cell);
}

const yes = ['yes', 'ano'], no = ['no', 'ne'];

// In either language, as far as it is typed; what is neither hides nothing.
function markPredicate(text: string): (cell: boolean) => boolean {
  const [, sign, word] = /^(!=|=)?\s*(.*)$/s.exec(plain(text))!;
  const wanted = [yes, no].map(words => word !== '' && words.some(each => each.startsWith(word)));
  return cell => !wanted.includes(true) || wanted[cell ? 0 : 1] === (sign !== '!=');
}

function range(text: string, decimals: number | null): Test | null {
  const [, low, high] = /^(-?[\d.,]+)\s*\.\.\s*(-?[\d.,]+)$/.exec(text)?.map(number) ?? [];
  if (low === undefined) return null;
  return cell => typeof cell === 'number' && (cell >= low && cell <= high || isNumber(cell, low, decimals) || isNumber(cell, high, decimals));
}

function comparison(text: string, language: string, decimals: number | null): Test {
  const [, sign, operand] = /^(<=|>=|!=|<|>|=)?\s*(.*)$/s.exec(text)!;
  const value = number(operand), wanted = plain(operand);
  const compare = (test: (cell: number) => boolean): Test => operand === '' ? () => true : cell => typeof cell === 'number' && test(cell);
  const equal: Test = cell => typeof cell === 'number' && !Number.isNaN(value) ? isNumber(cell, value, decimals) : plain(String(cell ?? '')) === wanted;
  switch (sign) {
    case '<': return compare(cell => cell < value && !isNumber(cell, value, decimals));
    case '>': return compare(cell => cell > value && !isNumber(cell, value, decimals));
    case '<=': return compare(cell => cell < value || isNumber(cell, value, decimals));
    case '>=': return compare(cell => cell > value || isNumber(cell, value, decimals));
    case '=': return equal;
    case '!=': return cell => !equal(cell);
    default: return cell => contains(cell, wanted, language, decimals);
  }
}

const number = (text: string) => text.trim() === '' ? NaN : Number(withPoint(text.trim()));

// 0.041719999 is shown as 0.04172 and is found as that.
const isNumber = (cell: number, value: number, decimals: number | null) => cell === value || shownNumber(cell, decimals) === value;

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
