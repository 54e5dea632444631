// The page on paper: the picture as it is, below it the whole list, not only what is in sight.
import {element} from '../list/dom.ts';
import type {GridColumn} from '../list/grid.ts';

export interface Sheet {
  title: string;
  picture: HTMLCanvasElement | null;  ///< just drawn: it is read at once
  columns: GridColumn[];
  cells: string[][];
  levels: number[];
  totals: string[];
  legend: string;  ///< shown if any of its signs is in the table
}

/// Puts the sheet on paper whenever the browser prints, by its own keys and menus too.
export function printAs(sheet: () => Sheet): void {
  let paper: HTMLElement | null = null;
  const remove = () => {
    paper?.remove();
    paper = null;
  };
  // The browser prints when the listener returns: nothing here may take its time.
  addEventListener('beforeprint', () => {
    remove();
    document.body.append(paper = paperOf(sheet()));
  });
  addEventListener('afterprint', remove);
}

function paperOf(sheet: Sheet): HTMLElement {
  const cell = (tag: 'td' | 'th', text: string, i: number) => element(tag, {class: sheet.columns[i].kind}, text);
  const row = (texts: string[], level: number) => {
    const made = element('tr', {}, ...texts.map((text, i) => cell('td', text, i)));
    const tree = made.children[sheet.columns.findIndex(each => each.tree)] as HTMLElement | undefined;
    if (tree && level) tree.style.paddingInlineStart = `${level * 10}px`;
    return made;
  };
  const isSigned = [...sheet.cells.flat(), ...sheet.totals].some(text => /^[≈≥–]/.test(text));
  return element('div', {class: 'paper'},
      element('h1', {}, sheet.title), sheet.picture && cropped(sheet.picture),
      element('table', {},
          element('thead', {}, element('tr', {}, ...sheet.columns.map((column, i) => cell('th', column.caption, i)))),
          element('tbody', {}, ...sheet.cells.map((texts, i) => row(texts, sheet.levels[i]))),
          element('tfoot', {}, element('tr', {}, ...sheet.totals.map((text, i) => cell('td', text, i))))),
      isSigned && element('p', {}, sheet.legend));
}

/// A copy without what is empty around the drawing, so that it fills its place on the paper; null of an empty picture.
function cropped(picture: HTMLCanvasElement): HTMLCanvasElement | null {
  const {width, height} = picture;
  if (!width || !height) return null;
  const canvas = element('canvas', {width, height}), context = canvas.getContext('2d', {willReadFrequently: true})!;
  context.drawImage(picture, 0, 0);
  const {data} = context.getImageData(0, 0, width, height);
  const inked = (x: number, y: number) => data[(y * width + x) * 4 + 3] > 0;
  const columns = Array.from({length: width}, (_, x) => x), rows = Array.from({length: height}, (_, y) => y);
  const usedRows = rows.filter(y => columns.some(x => inked(x, y))), usedColumns = columns.filter(x => usedRows.some(y => inked(x, y)));
  if (!usedRows.length) return null;
  const [left, top] = [usedColumns[0], usedRows[0]];
  Object.assign(canvas, {width: usedColumns[usedColumns.length - 1] - left + 1, height: usedRows[usedRows.length - 1] - top + 1});
  context.drawImage(picture, -left, -top);
  return canvas;
}
