// The browser: the assembly as a tree. Its rows are elements only while they are in sight.
import {useEffect, useMemo, useRef, useState} from 'preact/hooks';
import {Icon} from './icons.tsx';
import type {TreeComponent} from './protocol.ts';
import {texts} from './texts.ts';
import {ancestors, treeRows, type TreeRow} from './tree_rows.ts';
import {scrollTo, useSight} from './windowed.ts';

const rowHeight = 24, around = 4, indent = 14;
const mostRevealed = 60;  // occurrences whose parents are expanded for them

interface Props {
  components: TreeComponent[]; version: number;
  selection: string[]; selectionVersion: number;
  pick(path: string): void;
  hover(path: string | null): void;
  menu(event: MouseEvent): void;
}

export function BrowserTree({components, version, selection, selectionVersion, pick, hover, menu}: Props) {
  const box = useRef<HTMLDivElement>(null);
  const [expanded, setExpanded] = useState<ReadonlySet<string>>(new Set(['']));
  const [active, setActive] = useState('');
  const rows = useMemo(() => treeRows(components, expanded), [version, components, expanded]);
  const selected = useMemo(() => new Set(selection), [selectionVersion, selection]);
  const sight = useSight(box, rowHeight, rows.length, around);

  const fold = (path: string, open: boolean) => setExpanded(before => {
    const after = new Set(before);
    if (open) after.add(path);
    else after.delete(path);
    return after;
  });

  useEffect(() => {
    if (!selection.length) return;
    const above = selection.slice(0, mostRevealed).flatMap(each => ancestors(components, each));
    setExpanded(before => above.every(each => before.has(each)) ? before : new Set([...before, ...above]));
  }, [selectionVersion]);
  useEffect(() => {
    const first = rows.findIndex(row => selected.has(row.path));
    if (first >= 0 && box.current) scrollTo(box.current, first, rowHeight);
  }, [selectionVersion, expanded.size]);

  const activeRow = Math.max(0, rows.findIndex(row => row.path === active));
  const go = (to: number) => {
    const row = rows[Math.max(0, Math.min(rows.length - 1, to))];
    if (!row) return;
    setActive(row.path);
    if (box.current) scrollTo(box.current, rows.indexOf(row), rowHeight);
  };
  const key = (event: KeyboardEvent) => {
    const row = rows[activeRow];
    if (!row || event.ctrlKey || event.altKey || event.metaKey) return;
    const isOpen = expanded.has(row.path);
    const page = Math.max(1, Math.floor((box.current?.clientHeight ?? 0) / rowHeight) - 1);
    const actions: Record<string, () => void> = {
      ArrowDown: () => go(activeRow + 1), ArrowUp: () => go(activeRow - 1), Home: () => go(0), End: () => go(rows.length - 1),
      PageDown: () => go(activeRow + page), PageUp: () => go(activeRow - page),
      ArrowRight: () => row.parent && !isOpen ? fold(row.path, true) : go(activeRow + 1),
      ArrowLeft: () => row.parent && isOpen ? fold(row.path, false) : setActive(row.above),
      Enter: () => pick(row.path), ' ': () => pick(row.path)};
    if (!actions[event.key]) return;
    event.preventDefault();
    actions[event.key]();
  };

  return (
    <div class="tree" role="tree" tabIndex={0} aria-label={texts.tree} aria-multiselectable={true} ref={box}
         aria-activedescendant={rows.length && activeRow >= sight.first && activeRow < sight.last ? `node-${activeRow}` : undefined}
         onKeyDown={key} onPointerLeave={() => hover(null)} onContextMenu={menu}>
      <div class="rows" role="none" style={{height: `${rows.length * rowHeight}px`}}>
        {rows.slice(sight.first, sight.last).map((row, i) => (
          <Node key={row.path} row={row} index={sight.first + i} expanded={expanded.has(row.path)} selected={selected.has(row.path)}
                active={sight.first + i === activeRow} fold={open => fold(row.path, open)}
                pick={() => { setActive(row.path); pick(row.path); }} hover={() => hover(row.path)}/>))}
      </div>
    </div>);
}

interface NodeProps { row: TreeRow; index: number; expanded: boolean; selected: boolean; active: boolean; fold(open: boolean): void; pick(): void; hover(): void }

function Node({row, index, expanded, selected, active, fold, pick, hover}: NodeProps) {
  const {partNumber, name} = row;
  const bare = name.replace(/:\d+$/, '');
  const title = [name, partNumber && partNumber !== bare ? partNumber : '', row.grounded ? texts.grounded : '', row.document ? texts.external(row.document) : '']
                    .filter(Boolean).join(' · ');
  return (
    <div class={`node${selected ? ' selected' : ''}${active ? ' active' : ''}`} role="treeitem" id={`node-${index}`} aria-level={row.depth + 1}
         aria-expanded={row.parent ? expanded : undefined} aria-selected={selected} title={title}
         style={{top: `${index * rowHeight}px`, paddingLeft: `${4 + row.depth * indent}px`}}
         onClick={pick} onPointerEnter={hover}>
      <span class={`twisty${row.parent ? expanded ? ' open' : ' closed' : ''}`} aria-hidden="true"
            onClick={event => { if (row.parent) { event.stopPropagation(); fold(!expanded); } }}/>
      <Icon sign={row.document ? 'document' : row.parent ? 'assembly' : 'part'}/>
      <span class="name">{name}</span>
      {partNumber && partNumber !== bare && <span class="number">{partNumber}</span>}
      {row.grounded && <Icon sign="ground" class="grounded" label={texts.grounded}/>}
    </div>);
}
