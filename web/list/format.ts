// How values are written: numbers in the reader's language, CSV for spreadsheets.
import type {Cell} from './parts_list.ts';

const significantDigits = 4;

const formatters = new Map<string, Intl.NumberFormat>();  // one takes as long to make as hundreds of numbers to write

/// A number with so many decimals; with null as many as four significant digits need, where no digit before the point is lost.
export function formatNumber(value: number, language: string, decimals: number | null = null): string {
  const maximumFractionDigits = fractionDigits(value, decimals), key = `${language} ${maximumFractionDigits} ${decimals}`;
  if (!formatters.has(key)) {
    formatters.set(key, new Intl.NumberFormat(language, {minimumFractionDigits: decimals ?? 0, maximumFractionDigits, useGrouping: false}));
  }
  return formatters.get(key)!.format(value);
}

/// The number that is read when this one is shown.
export function shownNumber(value: number, decimals: number | null = null): number {
  return Number(value.toFixed(fractionDigits(value, decimals)));
}

function fractionDigits(value: number, decimals: number | null): number {
  if (decimals !== null) return decimals;
  if (!value || Number.isInteger(value)) return 0;
  return Math.min(20, Math.max(0, significantDigits - 1 - Math.floor(Math.log10(Math.abs(value)))));
}

/// How many digits such numbers have before the point and after it, at most.
export function digitsOf(values: number[], decimals: number | null = null): {whole: number; fraction: number} {
  const result = {whole: 1, fraction: 0};
  for (const value of values) {
    const [whole, fraction = ''] = Math.abs(value).toFixed(fractionDigits(value, decimals)).split('.');
    result.whole = Math.max(result.whole, whole.length);
    result.fraction = Math.max(result.fraction, (decimals === null ? fraction.replace(/0+$/, '') : fraction).length);
  }
  return result;
}

export function formatCell(cell: Cell | boolean, language: string, decimals: number | null = null): string {
  if (cell === null) return '';
  if (typeof cell === 'boolean') return cell ? '✓' : '';
  return typeof cell === 'number' ? formatNumber(cell, language, decimals) : cell;
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
