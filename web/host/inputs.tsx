// The inputs of a dialog, each as what it is on a page.
import type {ComponentChildren} from 'preact';
import {useState} from 'preact/hooks';
import type {Connection} from './connection.ts';
import {formatted} from './formatted.ts';
import {Icon, Picture} from './icons.tsx';
import {Menu} from './menu.tsx';
import type {Input, Item, Table} from './protocol.ts';
import {DataTable} from './table.tsx';
import {TextField} from './text_field.tsx';
import {texts} from './texts.ts';

export interface InputProps<T extends Input = Input> { input: T; line: Connection; cell?: boolean }

const listKinds = new Set(['ButtonRow', 'RadioButtonGroup']);

/// All inputs that show, each in a row with its caption.
export function Fields({inputs, line}: {inputs: Input[]; line: Connection}) {
  return <>{inputs.filter(each => each.visible).map(each => <Field key={each.key} input={each} line={line}/>)}</>;
}

function Field({input, line}: InputProps) {
  if (input.kind === 'Group') return <Group input={input} line={line}/>;
  if (input.kind === 'Table') return <DataTable table={input as Table} line={line}/>;
  const isWide = input.fullWidth || !input.caption || input.kind === 'Button' || input.kind === 'RadioButtonGroup';
  const isLabelled = input.kind !== 'Button' && input.kind !== 'CheckBox' && Boolean(input.caption);
  return (
    <div class={`field ${input.kind}${isWide ? ' wide' : ''}`} title={input.tooltip || undefined}>
      {isLabelled && !listKinds.has(input.kind) && <label class="caption" for={`input-${input.key}`} id={`caption-${input.key}`}>{input.caption}</label>}
      {isLabelled && listKinds.has(input.kind) && <span class="caption" id={`caption-${input.key}`}>{input.caption}</span>}
      {input.kind === 'CheckBox' && !isWide && <span class="caption"/>}
      <Control input={input} line={line}/>
    </div>);
}

/// What is worked with, without a caption.
export function Control({input, line, cell = false}: InputProps) {
  switch (input.kind) {
    case 'Button': return <ActionButton input={input} line={line} cell={cell}/>;
    case 'CheckBox': return <CheckBox input={input} line={line} cell={cell}/>;
    case 'StringValue': case 'TextBox': return <Text input={input} line={line} cell={cell}/>;
    case 'DropDown': return input.multiple ? <CheckList input={input} line={line} cell={cell}/> : <DropDown input={input} line={line} cell={cell}/>;
    case 'ButtonRow': return <ButtonRow input={input} line={line}/>;
    case 'RadioButtonGroup': return <RadioButtons input={input} line={line}/>;
    case 'Selection': return <Selection input={input} line={line}/>;
    case 'Image': return input.image ? <img class="image" src={input.image} alt={input.caption ?? ''} title={input.tooltip ?? ''}/> : null;
    default: return null;
  }
}

function ActionButton({input, line, cell}: InputProps) {
  const text = input.text || (cell || !input.icon ? input.caption ?? '' : '');
  const label = input.text || input.caption || input.tooltip;
  if (cell && !text && !input.icon) return null;
  return (
    <button type="button" class={`push${input.icon ? ' with-icon' : ''}`} disabled={!input.enabled} title={input.tooltip || undefined}
            tabIndex={cell ? -1 : undefined} aria-label={input.icon && (cell || !text) ? label || pictureName(input.icon) : undefined}
            onClick={() => void line.act('click', {input: input.key})}>
      {input.icon && <Picture folder={input.icon} size={16}/>}{!(cell && input.icon) && (text || (input.icon && !cell ? input.caption : ''))}
    </button>);
}

// What a picture without any text is called: by its folder.
const pictureName = (folder: string) => folder.split('/').filter(Boolean).pop() ?? '';

function CheckBox({input, line, cell}: InputProps) {
  const box = <input type="checkbox" id={`input-${input.key}`} checked={input.value === true} disabled={!input.enabled} tabIndex={cell ? -1 : undefined}
                     aria-label={cell ? input.caption || 'check box' : undefined} onClick={() => void line.act('click', {input: input.key})}/>;
  if (cell) return box;
  return <label class="check">{box}{input.icon && <Picture folder={input.icon} size={16}/>}<span>{input.text || input.caption}</span></label>;
}

function Text({input, line, cell}: InputProps) {
  const value = String(input.value ?? '');
  if (input.kind === 'TextBox' && input.readOnly && !cell) {
    return <div class="text" id={`input-${input.key}`}>{input.formatted ? formatted(input.formatted) : value}</div>;
  }
  const lines = cell || input.kind === 'StringValue' ? 0 : Math.max(1, input.lines ?? 1);
  return <TextField value={value} revision={line.revision} lines={lines} readOnly={input.readOnly ?? false} disabled={!input.enabled}
                    label={cell ? input.caption || `column ${(input as {column?: number}).column ?? ''}` : input.caption ? '' : input.id} id={`input-${input.key}`}
                    title={cell && value.length > 14 ? value : undefined} tabIndex={cell ? -1 : undefined}
                    change={text => line.act('paste', {input: input.key, text})}/>;
}

function DropDown({input, line, cell}: InputProps) {
  const items = input.items ?? [];
  const chosen = items.findIndex(each => each.selected);
  return (
    <select id={`input-${input.key}`} value={String(chosen)} disabled={!input.enabled} tabIndex={cell ? -1 : undefined}
            aria-label={cell || !input.caption ? input.caption || input.id || 'list' : undefined}
            onChange={event => void line.act('choose', {input: input.key, item: Number(event.currentTarget.value)})}>
      {chosen < 0 && <option value="-1" hidden/>}
      {items.map((item, i) => <option key={i} value={String(i)}>{item.name}</option>)}
    </select>);
}

// A list of which several items can be selected: a menu with a check at each of these.
function CheckList({input, line, cell}: InputProps) {
  const [at, setAt] = useState<{x: number; y: number} | null>(null);
  const label = input.caption || input.id || 'list';
  const entries = (input.items ?? []).map((item, i) => ({
    caption: item.name ?? '', icon: item.icon, enabled: true, checked: item.selected === true, act: () => void line.act('choose', {input: input.key, item: i})}));
  const toggle = (event: MouseEvent) => {
    const {left, bottom} = (event.currentTarget as Element).getBoundingClientRect();
    setAt(at ? null : {x: left, y: bottom + 2});
  };
  return (
    <div class="menu-place">
      <button type="button" id={`input-${input.key}`} class="push list" aria-haspopup="menu" aria-expanded={at !== null} disabled={!input.enabled} tabIndex={cell ? -1 : undefined}
              aria-label={`${label}: ${input.value || texts.none}`} onPointerDown={event => { if (at) event.stopPropagation(); }} onClick={toggle}><span>{input.value || texts.none}</span><Icon sign="down" class="small"/></button>
      {at && <Menu entries={entries} label={label} at={at} many close={() => setAt(null)}/>}
    </div>);
}

const roving = (event: KeyboardEvent) => {
  const by = ({ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1} as Record<string, number>)[event.key];
  if (!by) return;
  const buttons = [...(event.currentTarget as Element).querySelectorAll<HTMLElement>('button:not(:disabled)')];
  const at = buttons.indexOf(document.activeElement as HTMLElement);
  event.preventDefault();
  buttons[(at + by + buttons.length) % buttons.length]?.focus();
};

function ButtonRow({input, line}: InputProps) {
  const items = input.items ?? [];
  const first = Math.max(0, items.findIndex(each => each.selected));
  const one = (item: Item, i: number) => (
    <button key={i} type="button" class="push with-icon" role={input.multiple ? undefined : 'radio'} title={item.name ?? ''} aria-label={item.name ?? ''} tabIndex={i === first ? 0 : -1}
            {...{[input.multiple ? 'aria-pressed' : 'aria-checked']: item.selected === true}} disabled={!input.enabled}
            onClick={() => void line.act('choose', {input: input.key, item: i})}>
      {item.icon ? <Picture folder={item.icon} size={16}/> : item.name}
    </button>);
  return <div class="button-row" role={input.multiple ? 'group' : 'radiogroup'} aria-label={input.caption || input.id} onKeyDown={roving}>{items.map(one)}</div>;
}

function RadioButtons({input, line}: InputProps) {
  return (
    <div class="radios" role="radiogroup" aria-label={input.caption || input.id}>
      {(input.items ?? []).map((item, i) => (
        <label key={i} class="check">
          <input type="radio" name={`radio-${input.key}`} checked={item.selected === true} disabled={!input.enabled}
                 onClick={() => void line.act('choose', {input: input.key, item: i})}/>
          <span>{item.name}</span>
        </label>))}
    </div>);
}

function Selection({input, line}: InputProps) {
  const picked = input.picked ?? [];
  const prompt = input.prompt || texts.picks;
  return (
    <div class="selection">
      <button type="button" id={`input-${input.key}`} class={`push choose${input.active ? ' on' : ''}`} aria-pressed={input.active === true} title={picked.length ? String(input.value) : prompt} data-picked={picked.length} disabled={!input.enabled}
              aria-label={`${input.caption}: ${picked.length ? `${texts.selected(picked.length)}, ${input.value}` : texts.pick}`}
              onClick={() => void line.act('click', {input: input.key})}>
        <Icon sign="cursor"/><span>{picked.length === 1 ? String(input.value) : picked.length ? texts.selected(picked.length) : texts.pick}</span>
      </button>
      {picked.length > 0 && <button type="button" class="tool" title={texts.clear} aria-label={texts.clear} disabled={!input.enabled} onClick={() => void line.act('clear', {input: input.key})}><Icon sign="clear"/></button>}
    </div>);
}

function Group({input, line}: InputProps): ComponentChildren {
  return (
    <section class="group" aria-label={input.caption}>
      <button type="button" class="heading" aria-expanded={input.expanded === true} disabled={!input.enabled} title={input.tooltip || undefined}
              onClick={() => void line.act('click', {input: input.key})}><span class={`twisty ${input.expanded ? 'open' : 'closed'}`} aria-hidden="true"/>{input.caption}</button>
      {input.expanded && <div class="content"><Fields inputs={input.inputs ?? []} line={line}/></div>}
    </section>);
}
