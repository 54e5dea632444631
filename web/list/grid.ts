// A table of any length: only the rows in sight are elements. Focus stays on the table, which says which cell
// is active, so that a row that scrolls out of sight takes no focus with it.
import {element} from './dom.ts';
import {Doubt, doubtSigns} from './doubt.ts';

export interface GridColumn {
  id: string;
  caption: string;
  title?: string;
  kind: 'text' | 'number' | 'picture' | 'check' | 'note';
  width: number;     ///< pixels
  grows?: boolean;   ///< takes what is left
  fraction?: number; ///< digits after the point that its numbers are aligned for
  tree?: boolean;    ///< indented, with the sign that folds
}

/// What the grid asks for. Rows are named by their place from the top.
export interface GridSource {
  columns: GridColumn[];
  rowCount: number;
  rowHeight: number;
  isTree: boolean;
  text(row: number, column: GridColumn): string;
  checked(row: number, column: GridColumn): boolean;
  picture(row: number, show: (address: string) => void): void;
  tree(row: number): {level: number; unfolded: boolean | null};  ///< null: nothing to unfold
  selected(row: number): boolean;
  hovered(row: number): boolean;
  sort(column: GridColumn): 'ascending' | 'descending' | 'none';
  total(column: GridColumn): string;
  doubt(row: number, column: GridColumn): Doubt | null;
  totalDoubt(column: GridColumn): Doubt | null;
  filter(column: GridColumn): string;
}

export interface GridActions {
  hover(row: number): void;  ///< -1: none
  activate(row: number, how: {toggle: boolean; extend: boolean; step: number}): void;
  fold(row: number, unfolded: boolean): void;
  sort(column: GridColumn): void;
  check(row: number, column: GridColumn): void;
  note(row: number, column: GridColumn, text: string): void;
  filter(column: GridColumn, text: string): void;
}

export interface GridTexts { label: string; filter(caption: string): string; fold: string; unfold: string; total: string; doubts: Record<Doubt, string>; filterHelp: string; filterHints: Record<GridColumn['kind'], string> }

const overscan = 4;

export class Grid {
  readonly root: HTMLElement;
  private readonly head = element('div', {role: 'rowgroup', class: 'head'});
  private readonly body = element('div', {role: 'rowgroup', class: 'body'});
  private readonly foot = element('div', {role: 'rowgroup', class: 'foot'});
  private readonly rows = new Map<number, HTMLElement>();
  private active = {row: 0, column: 0};
  private frame = 0;
  private filters = false;

  constructor(private source: GridSource, private readonly actions: GridActions, private readonly texts: GridTexts) {
    this.root = element('div', {role: 'treegrid', class: 'grid', tabindex: 0, 'aria-multiselectable': 'true', 'aria-label': texts.label,
                                onkeydown: (event: KeyboardEvent) => this.key(event), onscroll: () => this.later()},
                        this.head, this.body, this.foot);
    this.body.addEventListener('pointerover', event => actions.hover(this.rowAt(event)));
    this.body.addEventListener('pointerleave', () => actions.hover(-1));
    this.body.addEventListener('click', event => this.click(event));
    new ResizeObserver(() => this.later()).observe(this.root);
  }

  /// Shows other rows or columns; scrolls to the top when `fromTop`.
  show(source: GridSource, fromTop = false): void {
    this.source = source;
    this.root.style.setProperty('--columns', source.columns.map(({width, grows}) => grows ? `minmax(${width}px, 1fr)` : `${width}px`).join(' '));
    this.root.style.setProperty('--least', `${source.columns.reduce((sum, {width}) => sum + width, 0)}px`);
    this.root.style.setProperty('--row', `${source.rowHeight}px`);
    this.root.setAttribute('aria-rowcount', String(source.rowCount + 2));
    this.root.setAttribute('aria-colcount', String(source.columns.length));
    this.body.style.height = `${source.rowCount * source.rowHeight}px`;
    this.active = {row: Math.max(0, Math.min(this.active.row, source.rowCount - 1)), column: Math.min(this.active.column, source.columns.length - 1)};
    if (fromTop) this.root.scrollTop = 0;
    this.drawHead();
    this.drawFoot();
    this.redraw();
  }

  showFilters(on: boolean): void {
    this.filters = on;
    this.drawHead();
  }

  /// Draws the contents of the rows again.
  redraw(): void {
    this.rows.forEach(row => row.remove());
    this.rows.clear();
    this.draw();
  }

  drawFoot(): void {
    const cells = this.source.columns.map((column, i) => {
      const text = this.source.total(column) || (i === 0 ? this.texts.total : '');
      const cell = element('div', {role: 'gridcell', class: `cell ${column.kind}`, 'aria-colindex': i + 1}, this.makeSign(this.source.totalDoubt(column)), text);
      align(cell, text, column);
      return cell;
    });
    this.foot.replaceChildren(element('div', {role: 'row', class: 'row', 'aria-rowindex': this.source.rowCount + 2}, ...cells));
  }

  /// Brings marks of selection and hovering up to date.
  mark(): void {
    for (const [index, row] of this.rows) this.markRow(row, index);
    const cell = this.cellAt(this.active.row, this.active.column);
    this.body.querySelector('.cell.active')?.classList.remove('active');
    cell?.classList.add('active');
    if (cell) this.root.setAttribute('aria-activedescendant', cell.id);
    else this.root.removeAttribute('aria-activedescendant');
  }

  /// Scrolls so that the row is in sight, and makes it the active one.
  reveal(row: number): void {
    this.active.row = row;
    const {rowHeight} = this.source;
    const [top, bottom] = [row * rowHeight, (row + 1) * rowHeight];
    const sight = this.root.clientHeight - this.head.offsetHeight - this.foot.offsetHeight;
    if (top < this.root.scrollTop) this.root.scrollTop = top;
    else if (bottom > this.root.scrollTop + sight) this.root.scrollTop = bottom - sight;
    this.draw();
  }

  private later(): void {
    this.frame ||= requestAnimationFrame(() => {
      this.frame = 0;
      this.draw();
    });
  }

  private draw(): void {
    const {rowCount, rowHeight} = this.source;
    const first = Math.max(0, Math.floor(this.root.scrollTop / rowHeight) - overscan);
    const last = Math.min(rowCount, Math.ceil((this.root.scrollTop + this.root.clientHeight) / rowHeight) + overscan);
    for (const [index, row] of this.rows) {
      if (index >= first && index < last || row.contains(document.activeElement)) continue;
      row.remove();
      this.rows.delete(index);
    }
    for (let index = first; index < last; ++index) if (!this.rows.has(index)) this.insert(index);
    this.mark();
  }

  // Assistive programs read rows in the order of the elements.
  private insert(index: number): void {
    const row = this.makeRow(index);
    const after = [...this.rows].filter(([other]) => other > index).sort(([a], [b]) => a - b)[0];
    this.body.insertBefore(row, after?.[1] ?? null);
    this.rows.set(index, row);
  }

  private makeRow(index: number): HTMLElement {
    const {level, unfolded} = this.source.tree(index);
    const row = element('div', {role: 'row', class: 'row', 'data-row': index, 'aria-rowindex': index + 2, 'aria-level': level + 1,
                                'aria-expanded': unfolded === null ? null : String(unfolded)},
                        ...this.source.columns.map((column, i) => this.makeCell(index, column, i)));
    row.style.top = `${index * this.source.rowHeight}px`;
    return row;
  }

  private makeCell(row: number, column: GridColumn, index: number): HTMLElement {
    const cell = element('div', {role: 'gridcell', class: `cell ${column.kind}`, id: `cell-${row}-${index}`, 'data-column': index, 'aria-colindex': index + 1});
    if (column.tree && this.source.isTree) this.addTwisty(cell, row);
    if (column.kind === 'check') {
      const box = element('input', {type: 'checkbox', tabindex: -1, 'aria-label': column.caption});
      box.checked = this.source.checked(row, column);
      cell.append(box);
    } else if (column.kind === 'note') {
      cell.append(this.makeNote(row, column));
    } else if (column.kind === 'picture') {
      this.source.picture(row, address => cell.replaceChildren(element('img', {src: address, alt: ''})));
    } else {
      const text = this.source.text(row, column);
      const sign = this.makeSign(this.source.doubt(row, column));
      if (sign) cell.append(sign);
      cell.append(text);
      align(cell, text, column);
      if (text.length > 12) cell.title = text;
    }
    return cell;
  }

  private makeSign(doubt: Doubt | null): HTMLElement | null {
    return doubt && element('span', {class: 'doubt', role: 'img', title: this.texts.doubts[doubt], 'aria-label': this.texts.doubts[doubt]}, doubtSigns[doubt]);
  }

  private addTwisty(cell: HTMLElement, row: number): void {
    const {level, unfolded} = this.source.tree(row);
    cell.style.paddingInlineStart = `${8 + level * 14}px`;
    const sign = unfolded === null ? '' : unfolded ? '▾' : '▸';
    const title = !sign ? null : unfolded ? this.texts.fold : this.texts.unfold;
    cell.append(element('span', {class: 'twisty', title, 'aria-hidden': 'true'}, sign));
  }

  private makeNote(row: number, column: GridColumn): HTMLInputElement {
    const input = element('input', {type: 'text', tabindex: -1, 'aria-label': column.caption, maxlength: 500,
                                    onchange: () => this.actions.note(row, column, input.value)});
    input.value = this.source.text(row, column);
    return input;
  }

  private markRow(row: HTMLElement, index: number): void {
    const selected = this.source.selected(index);
    row.setAttribute('aria-selected', String(selected));
    row.classList.toggle('selected', selected);
    row.classList.toggle('hovered', this.source.hovered(index));
  }

  private cellAt(row: number, column: number): HTMLElement | null {
    return this.rows.get(row)?.children[column] as HTMLElement ?? null;
  }

  private drawHead(): void {
    const {columns} = this.source;
    const captions = columns.map((column, i) => this.makeCaption(column, i));
    const rows = [element('div', {role: 'row', class: 'row', 'aria-rowindex': 1}, ...captions)];
    if (this.filters) rows.push(element('div', {role: 'row', class: 'row filters'}, ...columns.map(column => this.makeFilter(column))));
    const focused = document.activeElement as HTMLElement;
    const place = this.head.contains(focused) ? focused.dataset.head : undefined;
    const selection = focused instanceof HTMLInputElement ? focused.selectionStart : null;
    this.head.replaceChildren(...rows);
    const again = [...this.head.querySelectorAll<HTMLElement>('[data-head]')].find(each => each.dataset.head === place);
    again?.focus();
    if (again instanceof HTMLInputElement) again.setSelectionRange(selection, selection);
  }

  private makeCaption(column: GridColumn, index: number): HTMLElement {
    const order = this.source.sort(column);
    const sign = order === 'ascending' ? ' ↑' : order === 'descending' ? ' ↓' : '';
    const sorts = column.kind !== 'picture';
    const face = sorts ? element('button', {type: 'button', title: column.title ?? column.caption, 'data-head': `sort ${column.id}`, onclick: () => this.actions.sort(column)}, column.caption, sign)
                       : element('span', {}, column.caption);
    return element('div', {role: 'columnheader', class: `cell ${column.kind}`, 'aria-colindex': index + 1, 'aria-sort': sorts ? order : null}, face);
  }

  private makeFilter(column: GridColumn): HTMLElement {
    const cell = element('div', {role: 'gridcell', class: `cell ${column.kind}`});
    if (column.kind === 'picture') return cell;
    const input = element('input', {type: 'search', 'aria-label': this.texts.filter(column.caption), placeholder: this.texts.filterHints[column.kind],
                                    title: this.texts.filterHelp, 'data-head': `filter ${column.id}`,
                                    oninput: () => this.actions.filter(column, input.value)});
    input.value = this.source.filter(column);
    cell.append(input);
    return cell;
  }

  // User actions

  private rowAt(event: Event): number {
    const row = (event.target as Element).closest<HTMLElement>('[data-row]');
    return row ? Number(row.dataset.row) : -1;
  }

  private click(event: MouseEvent): void {
    const target = event.target as HTMLElement;
    const row = this.rowAt(event);
    if (row < 0) return;
    const column = Number(target.closest<HTMLElement>('[data-column]')?.dataset.column ?? 0);
    this.active = {row, column};
    if (target instanceof HTMLInputElement) {
      if (target.type === 'checkbox') this.actions.check(row, this.source.columns[column]);
      this.mark();
    } else if (target.classList.contains('twisty') && target.textContent) {
      this.actions.fold(row, !this.source.tree(row).unfolded);
    } else {
      this.actions.activate(row, {toggle: event.ctrlKey || event.metaKey, extend: event.shiftKey, step: 1});
    }
  }

  private key(event: KeyboardEvent): void {
    if (event.target !== this.root) {
      if ((event.target as HTMLElement).closest('.body') && ['Enter', 'Escape'].includes(event.key)) this.root.focus();
      return;
    }
    if (event.altKey || !this.keyAction(event)) return;
    event.preventDefault();
    event.stopPropagation();
  }

  private keyAction(event: KeyboardEvent): boolean {
    const page = Math.max(1, Math.floor(this.root.clientHeight / this.source.rowHeight) - 3);
    const moves: Record<string, number> = {ArrowDown: 1, ArrowUp: -1, PageDown: page, PageUp: -page, Home: -Infinity, End: Infinity};
    if (event.key in moves) return this.move(moves[event.key], event.shiftKey);
    if (event.key === 'ArrowLeft' || event.key === 'ArrowRight') return this.sideways(event.key === 'ArrowRight', event.ctrlKey);
    if (event.key === 'Enter') return this.enter(event);
    if (event.key === ' ') return this.space();
    return false;
  }

  private move(by: number, extend: boolean): boolean {
    const last = this.source.rowCount - 1;
    if (last < 0) return true;
    this.reveal(Math.max(0, Math.min(last, this.active.row + by)));
    if (extend) this.actions.activate(this.active.row, {toggle: false, extend: true, step: 1});
    else this.actions.hover(this.active.row);
    return true;
  }

  private sideways(right: boolean, byCell: boolean): boolean {
    const {level, unfolded} = this.source.tree(this.active.row);
    const onTree = this.source.columns[this.active.column]?.tree;
    if (!byCell && onTree && unfolded === !right) {
      this.actions.fold(this.active.row, right);
      return true;
    }
    if (!byCell && onTree && !right && level > 0) {
      let above = this.active.row;
      while (above > 0 && this.source.tree(above).level >= level) --above;
      this.reveal(above);
      return true;
    }
    this.active.column = Math.max(0, Math.min(this.source.columns.length - 1, this.active.column + (right ? 1 : -1)));
    this.mark();
    this.cellAt(this.active.row, this.active.column)?.scrollIntoView({block: 'nearest', inline: 'nearest'});
    return true;
  }

  private enter(event: KeyboardEvent): boolean {
    const note = this.cellAt(this.active.row, this.active.column)?.querySelector<HTMLInputElement>('input[type=text]');
    if (note) note.focus();
    else this.actions.activate(this.active.row, {toggle: event.ctrlKey, extend: false, step: event.shiftKey ? -1 : 1});
    return true;
  }

  private space(): boolean {
    const column = this.source.columns[this.active.column];
    if (column?.kind !== 'check') {
      this.actions.activate(this.active.row, {toggle: true, extend: false, step: 1});
      return true;
    }
    this.actions.check(this.active.row, column);
    this.rows.get(this.active.row)?.remove();
    this.rows.delete(this.active.row);
    this.draw();
    return true;
  }
}

/// Puts the points of a column's numbers one below the other; a point is about half as wide as a digit.
function align(cell: HTMLElement, text: string, {fraction}: GridColumn): void {
  if (!fraction || !text) return;
  const [, own = ''] = text.split(/[.,]/);
  const missing = Math.max(0, fraction - own.length) + (own ? 0 : 0.5);
  if (missing) cell.style.paddingInlineEnd = `calc(8px + ${missing} * var(--digit))`;
}
