// How values are written: numbers in the reader's language, CSV for spreadsheets.
import type {Cell} from './parts_list.ts';

const significantDigits = 4;

const formatters = new Map<string, Intl.NumberFormat>();  // one takes as long to make as hundreds of numbers to write

/// A number with four significant digits; no digit before the point is lost.
export function formatNumber(value: number, language: string): string {
  const maximumFractionDigits = fractionDigits(value), key = `${language} ${maximumFractionDigits}`;
  if (!formatters.has(key)) formatters.set(key, new Intl.NumberFormat(language, {maximumFractionDigits, useGrouping: false}));
  return formatters.get(key)!.format(value);
}

/// The number that is read when this one is shown.
export function shownNumber(value: number): number {
  return Number(value.toFixed(fractionDigits(value)));
}

function fractionDigits(value: number): number {
  if (!value || Number.isInteger(value)) return 0;
  return Math.min(20, Math.max(0, significantDigits - 1 - Math.floor(Math.log10(Math.abs(value)))));
}

/// How many digits such numbers have before the point and after it, at most.
export function digitsOf(values: number[]): {whole: number; fraction: number} {
  const result = {whole: 1, fraction: 0};
  for (const value of values) {
    const [whole, fraction = ''] = Math.abs(value).toFixed(fractionDigits(value)).split('.');
    result.whole = Math.max(result.whole, whole.length);
    result.fraction = Math.max(result.fraction, fraction.replace(/0+$/, '').length);
  }
  return result;
}

export function formatCell(cell: Cell | boolean, language: string): string {
  if (cell === null) return '';
  if (typeof cell === 'boolean') return cell ? '✓' : '';
  return typeof cell === 'number' ? formatNumber(cell, language) : cell;
}

/// Records as RFC 4180 has them. Text that a spreadsheet would run as a formula gets an apostrophe.
export function csv(records: (Cell | boolean)[][], delimiter: string, decimalPoint: string): string {
  const quote = (text: string) => /["\r\n]/.test(text) || text.includes(delimiter) ? `"${text.replaceAll('"', '""')}"` : text;
  const field = (cell: Cell | boolean) => {
    if (cell === null) return '';
    if (typeof cell === 'boolean') return cell ? '1' : '0';
    if (typeof cell === 'number') return quote(String(cell).replace('.', decimalPoint));
    return quote(/^[=+\-@\t\r]/.test(cell) && Number.isNaN(Number(cell)) ? `'${cell}` : cell);
  };
  return records.map(record => record.map(field).join(delimiter) + '\r\n').join('');
}
