// A table of any length: the rows in sight are elements, and of the others the program sends none.
import {Fragment} from 'preact';
import {useEffect, useLayoutEffect, useRef} from 'preact/hooks';
import type {Connection} from './connection.ts';
import {Control} from './inputs.tsx';
import type {Cell, Row, Table} from './protocol.ts';
import {texts} from './texts.ts';
import {scrollTo, useSight} from './windowed.ts';

const rowHeight = 26, around = 3;
const pause = 1000;  // milliseconds after which rows that were refused are asked for again
const margin = 40;  // rows that are asked for beyond those in sight, so that scrolling finds them there

interface Props { table: Table; line: Connection }

/// Whether a row is there to be read above the others: buttons alone, with texts on them.
function isHeading(row: Row | undefined): boolean {
  const seen = row?.cells.filter(each => each.visible) ?? [];
  return seen.length > 0 && seen.every(each => each.kind === 'Button' && !each.icon) && seen.some(each => each.text || each.caption);
}

export function DataTable({table, line}: Props) {
  const box = useRef<HTMLDivElement>(null);
  const asked = useRef('');  // the rows, and what was there instead: once that changes, they are asked for again
  const focused = useRef<{at: number; number: number; row: Row} | null>(null);
  const {window: shown, shownCount = 0, selectedRow = 0, toolbar = []} = table;
  const heading = shown.first >= 0 && isHeading(shown.rows[shown.first]) ? shown.rows[shown.first] : null;
  const skipped = heading ? 1 : 0;  // the heading is no row of the body
  const count = Math.max(0, shownCount - skipped);
  const covered = heading ? rowHeight : 0;
  const sight = useSight(box, rowHeight, count, around, covered);

  useEffect(() => {
    const [from, last] = [sight.first + skipped, sight.last + skipped];
    const [have, end] = [shown.from, shown.from + shown.order.length];
    const isCovered = from >= have && Math.min(last, shownCount) <= end;
    const want = {from: Math.max(0, from - margin), count: last - from + 2 * margin};
    const asking = [want.from, want.count, have, end, shownCount, line.openings].join(' ');
    if (isCovered || asked.current === asking) return;
    asked.current = asking;
    void line.ask('view', {input: table.key, ...want}).then(answer => {
      if (answer.error) setTimeout(() => { if (asked.current === asking) { asked.current = ''; line.onChange(); } }, pause);
    });
  });

  const columns = table.shownColumns ?? [];
  const widths = (table.ratio ?? '').split(':').map(Number);
  const share = (column: number) => widths[column] > 0 ? widths[column] : 1;
  const template = columns.map(each => `minmax(${each === columns[0] ? 34 : 56}px, ${share(each)}fr)`).join(' ');
  // What the scroll bar takes of the body it takes of the heading as well: they are in one box.
  const rows: {at: number; number: number; row: Row | null}[] = [];
  for (let at = sight.first; at < sight.last; ++at) {
    const number = shown.order[at + skipped - shown.from];
    const row = number === undefined ? undefined : shown.rows[number];
    rows.push(row ? {at, number, row} : {at, number: -1, row: null});
  }

  // A field that is typed into stays when it is scrolled out of sight, until it loses the focus.
  const held = focused.current;
  if (held && (held.at < sight.first || held.at >= sight.last) && held.at < count) {
    const row = shown.rows[held.number] ?? held.row;
    rows[held.at < sight.first ? 'unshift' : 'push']({at: held.at, number: held.number, row});
  }
  const hold = (event: FocusEvent) => {
    const element = (event.target as Element).closest<HTMLElement>('.body > [data-row]');
    const found = rows.find(each => each.row && each.number === Number(element?.dataset.row));
    focused.current = found?.row ? {...found, row: found.row} : null;
  };

  const keyed = (event: KeyboardEvent) => moveAmongCells(event, box.current!, sight, count, covered);
  useLayoutEffect(() => {
    const focusable = box.current?.querySelector<HTMLElement>('[role=row] [tabindex="0"]');
    if (!focusable) firstOf(box.current!)?.setAttribute('tabindex', '0');
  });

  const select = (number: number, cell: Cell) => {
    if (selectedRow !== number && cell.kind !== 'Button' && cell.kind !== 'CheckBox' && cell.enabled) void line.ask('click', {input: cell.key});
  };
  const label = table.caption || table.id;
  return (
    <div class="table-frame">
      <div class="table" role="grid" aria-label={label} aria-rowcount={shownCount} aria-colcount={columns.length} ref={box} onKeyDown={keyed}
           onFocusIn={hold} onFocusOut={() => { focused.current = null; }}
           style={{'--least-rows': String(Math.max(2, table.minimumRows ?? 0))}}>
        {heading && <div class="head" role="rowgroup"><Cells row={heading} number={shown.first} index={0} columns={columns} template={template} line={line} heading/></div>}
        <div class="body" role="rowgroup" style={{height: `${count * rowHeight}px`}}>
          {rows.map(({at, number, row}) => row
            ? <Cells key={`row-${number}`} row={row} number={number} index={at + skipped} top={at * rowHeight} columns={columns} template={template} line={line}
                     selected={number === selectedRow} select={cell => select(number, cell)}/>
            : <div key={`place-${at}`} class="row absent" role="presentation" style={{top: `${at * rowHeight}px`}}/>)}
        </div>
      </div>
      {(toolbar.some(each => each.visible) || count > 30) && (
        <div class="table-bar">{toolbar.filter(each => each.visible).map(each => <Control key={each.key} input={each} line={line}/>)}
          <span class="gap"/>{count > 30 && <span class="count">{texts.rows(count)}</span>}</div>)}
    </div>);
}

// Lines and shades make a picture where all characters have one width.
const isDrawing = (cell: Cell | undefined) => typeof cell?.value === 'string' && /[\u2500-\u259f]/.test(cell.value);

interface CellsProps {
  row: Row; number: number; index: number; top?: number; columns: number[]; template: string; line: Connection;
  heading?: boolean; selected?: boolean; select?(cell: Cell): void;
}

function Cells({row, number, index, top, columns, template, line, heading, selected, select}: CellsProps) {
  const covered = new Set<number>();
  return (
    <div class={`row${selected ? ' selected' : ''}`} role="row" aria-rowindex={index + 1} aria-selected={heading ? undefined : selected === true} data-row={number}
         style={{gridTemplateColumns: template, top: top === undefined ? undefined : `${top}px`}}>
      {columns.map((column, i) => {
        if (covered.has(column)) return null;
        const cell = row.cells.find(each => (each.column ?? 0) === column);
        const across = cell?.visible ? columns.filter(each => each > column && each <= column + (cell.span ?? 0)) : [];
        across.forEach(each => covered.add(each));
        const role = heading && (cell?.text || cell?.caption) ? 'columnheader' : 'gridcell';
        const style = across.length ? {gridColumn: `span ${across.length + 1}`} : undefined;
        return (
          <div key={column} class={`cell ${cell?.visible ? cell.kind : 'empty'}${cell?.readOnly ? ' fixed' : ''}${cell?.icon ? ' pictured' : ''}${isDrawing(cell) ? ' drawn' : ''}`} role={role} aria-colindex={i + 1} style={style}
               onFocusIn={cell && select ? () => select(cell) : undefined} onClick={cell?.visible && cell.kind === 'Image' && select ? () => select(cell) : undefined}>
            {cell?.visible ? <Control key={cell.key} input={cell} line={line} cell/> : <Fragment/>}
          </div>);
      })}
    </div>);
}

// One place of a table takes part in the order of the Tab key; arrows lead from cell to cell.
const workable = 'input:not(:disabled), select:not(:disabled), button:not(:disabled), textarea:not(:disabled)';

function firstOf(box: HTMLElement): HTMLElement | null {
  return box.querySelector<HTMLElement>(workable);
}

function moveAmongCells(event: KeyboardEvent, box: HTMLElement, sight: {first: number; last: number}, count: number, covered: number): void {
  const field = event.target as HTMLElement;
  const cell = field.closest('[role=gridcell], [role=columnheader]'), row = field.closest<HTMLElement>('[role=row]');
  if (!cell || !row || event.ctrlKey || event.altKey || event.metaKey) return;
  const isText = (field instanceof HTMLInputElement && field.type === 'text' || field instanceof HTMLTextAreaElement) && !field.readOnly;
  const cells = [...row.querySelectorAll<HTMLElement>('[role=gridcell], [role=columnheader]')];
  const beside = (by: number) => {
    for (let at = cells.indexOf(cell as HTMLElement) + by; at >= 0 && at < cells.length; at += by) {
      const target = cells[at].querySelector<HTMLElement>(workable);
      if (target) return take(box, target);
    }
  };
  const vertical = (by: number) => {
    const index = Number(row.getAttribute('aria-rowindex')) - 1 + by;
    const column = cell.getAttribute('aria-colindex');
    const place = () => box.querySelector<HTMLElement>(`[aria-rowindex="${index + 1}"] [aria-colindex="${column}"]`)?.querySelector<HTMLElement>(workable);
    const skipped = box.querySelector('.head') ? 1 : 0;
    if (index >= skipped) scrollTo(box, Math.min(count - 1, index - skipped), rowHeight, covered);
    const target = place();
    if (target) take(box, target);
    else requestAnimationFrame(() => { const later = place(); if (later) take(box, later); });
  };
  const page = Math.max(1, sight.last - sight.first - 2 * around - 2);
  const atEdge = (start: boolean) => !isText || (field as HTMLInputElement).selectionStart === (start ? 0 : (field as HTMLInputElement).value.length) && (field as HTMLInputElement).selectionStart === (field as HTMLInputElement).selectionEnd;
  const isList = field instanceof HTMLSelectElement;
  const actions: Record<string, (() => void) | false> = {
    ArrowDown: !isList && (() => vertical(1)), ArrowUp: !isList && (() => vertical(-1)), Enter: !isList && !(field instanceof HTMLButtonElement) && (() => vertical(event.shiftKey ? -1 : 1)),
    PageDown: () => vertical(Math.min(page, count - Number(row.getAttribute('aria-rowindex')))), PageUp: () => vertical(-Math.min(page, Math.max(0, Number(row.getAttribute('aria-rowindex')) - 2))),
    ArrowLeft: atEdge(true) && (() => beside(-1)), ArrowRight: atEdge(false) && (() => beside(1))};
  const action = actions[event.key];
  if (!action) return;
  event.preventDefault();
  action();
}

function take(box: HTMLElement, target: HTMLElement): void {
  box.querySelectorAll('[role=row] [tabindex="0"]').forEach(each => each.setAttribute('tabindex', '-1'));
  target.setAttribute('tabindex', '0');
  target.focus({preventScroll: true});
  if (target instanceof HTMLInputElement && target.type === 'text') target.select();
}
