// The columns that the page offers: those of the list, and the reader's own marks and notes.
import {doubtOf} from '../list/doubt.ts';
import {digitsOf} from '../list/format.ts';
import type {GridColumn} from '../list/grid.ts';
import type {Cell, Column, PartsList, Row} from '../list/parts_list.ts';
import {marks} from './work.ts';
import type {Mark, Work} from './work.ts';
import {captionOf, texts} from './texts.ts';

export const noteId = 'note';
const nameId = 'partName';
const numberId = 'partNumber';
const hiddenAtFirst = new Set(['path', 'usedIn', 'document', 'level', 'density', 'area', 'volume', 'bomStructure', 'quantityPerParent', 'bodies', 'item', 'description']);
const widths: Record<string, number> = {item: 58, [numberId]: 146, [nameId]: 140, description: 150, material: 116};
const pictureWidth = 68, markWidth = 78;
const margin = 20;  // beside a caption, which has to fit

const mostDigits = 7;   // after the point; a few tiny numbers shall not push all others away
const digitWidth = 8.4;
const signWidth = 12;   // of what is in doubt

const ruler = document.createElement('canvas').getContext('2d')!;

function fitting(caption: string, least: number): number {
  ruler.font = `600 13px ${getComputedStyle(document.body).fontFamily}`;
  return Math.max(least, Math.ceil(ruler.measureText(caption).width) + margin);
}

export const pictureId = 'thumbnail';

export class Columns {
  readonly all: GridColumn[];
  private readonly indices = new Map<string, number>();

  constructor(readonly list: PartsList, private readonly work: Work, withPictures: boolean) {
    list.columns.forEach((column, i) => this.indices.set(column.id, i));
    const own = list.columns.filter(column => column.kind !== 'picture').map(column => this.fromList(column));
    const picture: GridColumn = {id: pictureId, caption: texts.thumbnail, kind: 'picture', width: fitting(texts.thumbnail, pictureWidth)};
    this.all = [...withPictures ? [picture] : [], ...own, ...marks.map(checkColumn),
                {id: noteId, caption: texts.note, kind: 'note', width: 120}];
    if (!this.all.some(each => each.grows) && own[0]) this.all.find(each => each.id === own[0].id)!.grows = true;
  }

  private fromList(column: Column): GridColumn {
    const caption = captionOf(column);
    if (column.kind === 'number') return {id: column.id, caption, kind: column.kind, ...this.layNumbers(column, caption)};
    return {id: column.id, caption, kind: column.kind, width: fitting(caption, widths[column.id] ?? 110), grows: column.id === nameId,
            tree: column.id === this.treeColumn()};
  }

  private layNumbers(column: Column, caption: string): {width: number; fraction: number} {
    const index = this.indices.get(column.id)!;
    const rows = [...this.list.views.values()].flatMap(view => view.rows);
    const {whole, fraction: all} = digitsOf(rows.flatMap(({cells}) => typeof cells[index] === 'number' ? [cells[index] as number] : []),
                                             column.decimals);
    const fraction = Math.min(mostDigits, all);
    const sign = rows.some(row => doubtOf(row, column.id, row.cells[index])) ? signWidth : 0;
    return {width: fitting(caption, Math.max(72, Math.ceil((whole + fraction + 1) * digitWidth) + margin + sign)), fraction};
  }

  // The tree is shown where the eye looks first.
  private treeColumn(): string {
    return [numberId, nameId].find(id => this.indices.has(id)) ?? this.list.columns.find(each => each.kind === 'text')?.id ?? '';
  }

  shownAtFirst(id: string): boolean {
    if (hiddenAtFirst.has(id)) return false;
    return id !== 'made' && id !== 'mounted';
  }

  /// A value for sorting, filtering and export.
  cell(row: Row, id: string): Cell | boolean {
    if ((marks as string[]).includes(id)) return this.work.marked(row.key, id as Mark);
    if (id === noteId) return this.work.note(row.key);
    const index = this.indices.get(id);
    return index === undefined ? null : row.cells[index];
  }

  unit(id: string): string | null {
    return this.list.columns[this.indices.get(id) ?? -1]?.unit ?? null;
  }

  decimals(id: string): number | null {
    return this.list.columns[this.indices.get(id) ?? -1]?.decimals ?? null;
  }
}

function checkColumn(mark: Mark): GridColumn {
  return {id: mark, caption: texts[mark], kind: 'check', width: fitting(texts[mark], markWidth)};
}
