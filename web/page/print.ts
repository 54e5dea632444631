// The page on paper: the picture as it is, below it the whole list, not only what is in sight.
import {element} from '../list/dom.ts';
import type {GridColumn} from '../list/grid.ts';

export interface Sheet { title: string; picture: string | null; columns: GridColumn[]; cells: string[][]; levels: number[]; totals: string[] }

export function print(sheet: Sheet): void {
  const cell = (tag: 'td' | 'th', text: string, i: number) => element(tag, {class: sheet.columns[i].kind}, text);
  const row = (texts: string[], level: number) => {
    const made = element('tr', {}, ...texts.map((text, i) => cell('td', text, i)));
    const tree = made.children[sheet.columns.findIndex(each => each.tree)] as HTMLElement | undefined;
    if (tree && level) tree.style.paddingInlineStart = `${level * 10}px`;
    return made;
  };
  const paper = element('div', {class: 'paper'},
      element('h1', {}, sheet.title), sheet.picture && element('img', {src: sheet.picture, alt: ''}),
      element('table', {},
          element('thead', {}, element('tr', {}, ...sheet.columns.map((column, i) => cell('th', column.caption, i)))),
          element('tbody', {}, ...sheet.cells.map((texts, i) => row(texts, sheet.levels[i]))),
          element('tfoot', {}, element('tr', {}, ...sheet.totals.map((text, i) => cell('td', text, i))))));
  document.body.append(paper);
  addEventListener('afterprint', () => paper.remove(), {once: true});
  const picture = paper.querySelector('img');
  Promise.resolve(picture && cropped(picture).catch(() => {})).then(() => window.print());
}

/// Takes away what is empty around the drawing, so that it fills its place on the paper.
async function cropped(picture: HTMLImageElement): Promise<void> {
  await picture.decode();
  const {naturalWidth: width, naturalHeight: height} = picture;
  const canvas = element('canvas', {width, height}), context = canvas.getContext('2d')!;
  context.drawImage(picture, 0, 0);
  const {data} = context.getImageData(0, 0, width, height);
  const inked = (x: number, y: number) => data[(y * width + x) * 4 + 3] > 0;
  const columns = Array.from({length: width}, (_, x) => x), rows = Array.from({length: height}, (_, y) => y);
  const usedRows = rows.filter(y => columns.some(x => inked(x, y))), usedColumns = columns.filter(x => usedRows.some(y => inked(x, y)));
  if (!usedRows.length) return;
  const [left, top] = [usedColumns[0], usedRows[0]];
  Object.assign(canvas, {width: usedColumns[usedColumns.length - 1] - left + 1, height: usedRows[usedRows.length - 1] - top + 1});
  context.drawImage(picture, -left, -top);
  picture.src = canvas.toDataURL();
  await picture.decode();
}
