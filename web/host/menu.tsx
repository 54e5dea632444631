// Menus: a list of commands below a button or at a place of the page.
import type {ComponentChildren} from 'preact';
import {useEffect, useLayoutEffect, useRef, useState} from 'preact/hooks';
import {Icon, Picture, type Sign} from './icons.tsx';
import type {Control} from './protocol.ts';

export interface Entry { caption: string; tooltip?: string; icon?: string; enabled: boolean; checked?: boolean; act(): void }

export const commandEntries = (controls: Control[], press: (command: string) => void): Entry[] =>
  controls.filter(each => each.visible).map(({caption, tooltip, icon, enabled, command}) => ({caption, tooltip, icon, enabled, act: () => press(command)}));

interface MenuProps { entries: Entry[]; label: string; close(): void; at?: {x: number; y: number}; many?: boolean /* several can be checked, so it stays */ }

export function Menu({entries, label, close, at, many}: MenuProps) {
  const root = useRef<HTMLDivElement>(null);
  useLayoutEffect(() => {
    const own = root.current!;
    const back = document.activeElement as HTMLElement | null;
    const box = own.getBoundingClientRect();
    if (at) {
      own.style.left = `${Math.max(4, Math.min(at.x, innerWidth - box.width - 4))}px`;
      own.style.top = `${Math.max(4, Math.min(at.y, innerHeight - box.height - 4))}px`;
    } else if (box.right > innerWidth - 4) {
      own.style.left = 'auto';
      own.style.right = '0';
    }
    (own.querySelector<HTMLElement>('[role^=menuitem]:not(:disabled)') ?? own).focus();
    return () => { if (own.contains(document.activeElement) || document.activeElement === document.body) back?.focus(); };
  }, []);
  useEffect(() => {
    const outside = (event: Event) => { if (!root.current!.parentElement!.contains(event.target as Node) || at && !root.current!.contains(event.target as Node)) close(); };
    document.addEventListener('pointerdown', outside);
    return () => document.removeEventListener('pointerdown', outside);
  }, []);
  const keys = (event: KeyboardEvent) => {
    const items = [...root.current!.querySelectorAll<HTMLElement>('[role^=menuitem]:not(:disabled)')];
    const now = items.indexOf(document.activeElement as HTMLElement);
    const to = ({ArrowDown: now + 1, ArrowUp: now - 1, Home: 0, End: items.length - 1} as Record<string, number>)[event.key];
    event.stopPropagation();
    if (event.key === 'Escape' || event.key === 'Tab') close();
    else if (to !== undefined) items[(to + items.length) % items.length]?.focus();
    else return;
    event.preventDefault();
  };
  return (
    <div class={`menu${at ? ' free' : ''}`} role="menu" aria-label={label} ref={root} tabIndex={-1} onKeyDown={keys}>
      {entries.map((each, i) => (
        <button key={i} type="button" role={each.checked === undefined ? 'menuitem' : many ? 'menuitemcheckbox' : 'menuitemradio'} aria-checked={each.checked} disabled={!each.enabled} title={each.tooltip || undefined} tabIndex={-1}
                onClick={() => { if (!many) close(); each.act(); }}>
          <span class="sign">{each.icon ? <Picture folder={each.icon} size={16}/> : each.checked ? <Icon sign="check"/> : null}</span>{each.caption}
        </button>))}
    </div>);
}

interface OpenerProps { label: string; entries: Entry[]; class?: string; sign?: Sign; title?: string; children?: ComponentChildren }

/// A button that opens a menu below it.
export function MenuButton({label, entries, class: style = 'tool', sign, title, children}: OpenerProps) {
  const [open, setOpen] = useState(false);
  const keys = (event: KeyboardEvent) => {
    if (event.key !== 'ArrowDown' || open) return;
    event.preventDefault();
    setOpen(true);
  };
  return (
    <div class="menu-place">
      <button type="button" class={style} aria-haspopup="menu" aria-expanded={open} aria-label={children ? undefined : label} title={title ?? label} onClick={() => setOpen(!open)} onKeyDown={keys}>
        {sign && <Icon sign={sign}/>}{children}<Icon sign="down" class="small"/></button>
      {open && <Menu entries={entries} label={label} close={() => setOpen(false)}/>}
    </div>);
}
