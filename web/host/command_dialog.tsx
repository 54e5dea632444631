// The dialog of the running command.
import {useEffect, useRef, useState} from 'preact/hooks';
import type {Connection} from './connection.ts';
import {Frame, type Box} from './frame.tsx';
import {Picture} from './icons.tsx';
import {Fields} from './inputs.tsx';
import type {Dialog, Input} from './protocol.ts';

const usual = {width: 320, height: 0};
const browserWidth = 248, modelWidth = 392;  // pixels that a docked dialog leaves to what is beside it
const docks = new Map<string, boolean>();  // by command: what the user chose
const places = new Map<string, {left: number; top: number}>();  // by command: where the user left it

interface Props { dialog: Dialog; line: Connection; frozen: boolean; room(): {width: number; height: number} }

export function CommandDialog({dialog, line, frozen, room}: Props) {
  const tabs = dialog.inputs.filter(each => each.kind === 'Tab' && each.visible);
  const others = dialog.inputs.filter(each => each.kind !== 'Tab');
  const active = tabs.find(each => each.active);
  const [, redraw] = useState(0);
  const docked = docks.get(dialog.command) ?? coversModel(dialog, room());
  const dock = (to: boolean) => {
    docks.set(dialog.command, to);
    redraw(n => n + 1);
  };
  const size = (width: number, height: number) => void line.act('resize', {width, height: docked ? dialog.height || height : height});
  const cancel = () => void line.act('cancel');
  const ok = () => { if (dialog.ok.enabled) void line.act('ok'); };
  const keys = (event: KeyboardEvent) => {
    if (frozen || event.defaultPrevented) return;
    if (event.key === 'Escape') cancel();
    else if (event.key === 'Enter' && event.ctrlKey) ok();
    else return;
    event.preventDefault();
  };
  return (
    <Frame key={dialog.command} title={dialog.caption} name="command-dialog" class="command-window" box={docked ? beside(dialog, room()) : placed(dialog, room())} focusAtFirst close={cancel} closeLabel={dialog.cancel.text} keys={keys}
           moved={(left, top) => places.set(dialog.command, {left, top})} sized={size} docked={docked} dock={dock}>
      {tabs.length > 0 && <Tabs tabs={tabs} active={active} line={line} frozen={frozen}/>}
      <div class="contents" role={active ? 'tabpanel' : undefined} aria-labelledby={active ? `tab-${active.key}` : undefined}>
        <Fields inputs={others} line={line}/>
        {active && <div key={active.key} class="tab-content"><Fields inputs={active.inputs ?? []} line={line}/></div>}
      </div>
      <footer>
        {dialog.ok.visible && <span class="ok" title={dialog.ok.why || undefined}>
          <button type="button" class="push main" aria-disabled={!dialog.ok.enabled} aria-describedby={dialog.ok.why ? 'why-refused' : undefined} disabled={frozen} onClick={ok}>{dialog.ok.text}</button>
          {dialog.ok.why && <span id="why-refused" class="unseen">{dialog.ok.why}</span>}</span>}
        <button type="button" class="push" disabled={frozen} onClick={cancel}>{dialog.cancel.text}</button>
      </footer>
    </Frame>);
}

// One that would leave the user less than half of the model to pick in.
function coversModel(dialog: Dialog, room: {width: number; height: number}): boolean {
  return dialog.width > (room.width - browserWidth) / 2 && room.width >= browserWidth + modelWidth + usual.width;
}

function beside(dialog: Dialog, room: {width: number; height: number}): Box {
  return {left: 0, top: 0, height: 0, width: Math.max(usual.width, Math.min(dialog.width || usual.width, room.width - browserWidth - modelWidth))};
}

function placed(dialog: Dialog, room: {width: number; height: number}): Box {
  const width = Math.min(dialog.width || usual.width, room.width - 24), height = Math.min(dialog.height || usual.height, room.height - 24);
  const place = places.get(dialog.command) ?? {left: room.width - width - 12, top: 12};
  return {width, height, left: Math.max(0, Math.min(place.left, room.width - 80)), top: Math.max(0, Math.min(place.top, room.height - 60))};
}

function Tabs({tabs, active, line, frozen}: {tabs: Input[]; active: Input | undefined; line: Connection; frozen: boolean}) {
  const root = useRef<HTMLDivElement>(null);
  const wanted = useRef<number | null>(null);
  useEffect(() => {
    if (active && wanted.current === active.key) root.current?.querySelector<HTMLElement>('[aria-selected=true]')?.focus();
    wanted.current = null;
  }, [active?.key]);
  const show = (tab: Input) => void line.act('activateTab', {input: tab.key});
  const key = (event: KeyboardEvent) => {
    const by = ({ArrowLeft: -1, ArrowRight: 1} as Record<string, number>)[event.key];
    if (!by || !active) return;
    event.preventDefault();
    const next = tabs[(tabs.indexOf(active) + by + tabs.length) % tabs.length];
    wanted.current = next.key;
    show(next);
  };
  return (
    <div class="tabs" role="tablist" ref={root} onKeyDown={key}>
      {tabs.map(tab => (
        <button key={tab.key} type="button" role="tab" id={`tab-${tab.key}`} aria-selected={tab === active} tabIndex={tab === active || !active ? 0 : -1} disabled={!tab.enabled || frozen}
                title={tab.tooltip || undefined} onClick={() => show(tab)}>{tab.icon && <Picture folder={tab.icon} size={16}/>}{tab.caption}</button>))}
    </div>);
}
