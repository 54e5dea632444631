// What is above the model: the document, the workspaces, and their tabs with panels of commands.
import {useState} from 'preact/hooks';
import type {Connection} from './connection.ts';
import {Icon, Picture, type Sign} from './icons.tsx';
import {commandEntries, MenuButton} from './menu.tsx';
import type {Control, Panel, State} from './protocol.ts';
import {texts} from './texts.ts';

interface QuickProps { state: State; line: Connection; busy: boolean; open(): void; openGiven(): void; save(as: boolean): void; logShown: boolean; toggleLog(): void; trouble: number }

export function QuickBar({state, line, busy, open, openGiven, save, logShown, toggleLog, trouble}: QuickProps) {
  const {document: design, addin} = state;
  const tool = (sign: Sign, caption: string, act: () => void, disabled = false, more = {}) => (
    <button type="button" class="tool" title={caption} aria-label={caption} disabled={disabled} onClick={act} {...more}><Icon sign={sign}/></button>);
  const commands = commandEntries(state.commands, command => void line.act('press', {command}));
  return (
    <header class="quick">
      <div class="group" role="toolbar" aria-label={texts.quickBar}>
        {tool('open', `${texts.open} (Ctrl+O)`, open, busy)}
        {tool('save', `${texts.save} (Ctrl+S)`, () => save(false), busy)}
        <MenuButton label={texts.more} sign="more" entries={[
          {caption: `${texts.saveAs}…`, enabled: !busy, act: () => save(true)},
          ...design.given ? [{caption: texts.given(design.given), enabled: !busy, act: openGiven}] : [],
          {caption: texts.reload, enabled: !busy, act: () => void line.act('reloadAddin')}, ...commands.map(each => ({...each, enabled: each.enabled && !busy}))]}/>
      </div>
      <h1 title={design.file || design.name}><Icon sign="document"/><span>{design.name}</span>{design.changed && <span class="unsaved" role="img" aria-label={texts.unsaved} title={texts.unsaved}/>}</h1>
      <div class="group">
        {!addin.running && <span class="warned"><Icon sign="warning"/>{texts.stopped}</span>}
        {tool('reload', `${texts.reload}: ${addin.name}`, () => void line.act('reloadAddin'), busy)}
        <button type="button" class="tool" aria-pressed={logShown} title={texts.log} aria-label={trouble ? `${texts.log}: ${trouble}` : texts.log} onClick={toggleLog}><Icon sign="log"/>{trouble > 0 && <span class="count">{trouble}</span>}</button>
      </div>
    </header>);
}

export function Ribbon({state, line, busy}: {state: State; line: Connection; busy: boolean}) {
  const workspace = state.workspaces.find(each => each.active);
  const tabs = workspace?.tabs.map(tab => ({...tab, panels: tab.panels.filter(each => each.controls.some(control => control.visible))})).filter(each => each.panels.length) ?? [];
  const [chosen, setChosen] = useState('');
  const tab = tabs.find(each => each.id === chosen) ?? tabs[0];
  const keys = (event: KeyboardEvent) => {
    const by = ({ArrowLeft: -1, ArrowRight: 1} as Record<string, number>)[event.key];
    if (!by || !tab) return;
    const next = tabs[(tabs.indexOf(tab) + by + tabs.length) % tabs.length];
    setChosen(next.id);
    document.getElementById(`ribbon-${next.id}`)?.focus();
  };
  return (
    <nav class="ribbon" aria-label={texts.toolbars}>
      <MenuButton label={texts.workspace} title={texts.workspace} class="workspace" entries={state.workspaces.map(each => ({
        caption: each.caption, enabled: !busy, checked: each.active, act: () => void line.act('workspace', {id: each.id})}))}><span>{workspace?.caption ?? ''}</span></MenuButton>
      <div class="shelves">
        <div class="tabs" role="tablist" aria-label={workspace?.caption} onKeyDown={keys}>
          {tabs.map(each => <button key={each.id} type="button" role="tab" id={`ribbon-${each.id}`} aria-selected={each === tab} aria-controls="ribbon-panels" tabIndex={each === tab ? 0 : -1}
                                    onClick={() => setChosen(each.id)}>{each.caption}</button>)}
        </div>
        <div class="panels" id="ribbon-panels" role={tab ? 'tabpanel' : undefined} aria-labelledby={tab ? `ribbon-${tab.id}` : undefined}>
          {tab?.panels.map(panel => <PanelOf key={panel.id} panel={panel} line={line} busy={busy}/>)}
        </div>
      </div>
    </nav>);
}

function PanelOf({panel, line, busy}: {panel: Panel; line: Connection; busy: boolean}) {
  const press = (command: string) => void line.act('press', {command});
  const shown = panel.controls.filter(each => each.visible && each.promoted);
  return (
    <div class="panel" role="group" aria-label={panel.caption}>
      <div class="controls">{shown.map((each, i) => <CommandButton key={`${each.command}-${i}`} control={each} press={press} busy={busy}/>)}</div>
      <MenuButton label={panel.caption} class="caption" entries={commandEntries(panel.controls, press).map(each => ({...each, enabled: each.enabled && !busy}))}><span>{panel.caption}</span></MenuButton>
    </div>);
}

function CommandButton({control, press, busy}: {control: Control; press(command: string): void; busy: boolean}) {
  const hint = control.tooltip && control.tooltip !== control.caption ? `${control.caption}\n${control.tooltip}` : control.caption;
  return (
    <button type="button" class="command" title={hint} disabled={!control.enabled || busy} data-command={control.command} onClick={() => press(control.command)}>
      {control.icon ? <Picture folder={control.icon} size={32}/> : <Icon sign="part" class="large"/>}<span>{control.caption}</span>
    </button>);
}
