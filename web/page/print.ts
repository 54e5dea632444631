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
  Promise.resolve(picture?.decode().catch(() => {})).then(() => window.print());
}
