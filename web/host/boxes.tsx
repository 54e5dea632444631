// What has to be answered before anything else: messages and file dialogs; and progress.
import type {ComponentChildren} from 'preact';
import {useEffect, useId, useLayoutEffect, useRef, useState} from 'preact/hooks';
import type {Connection} from './connection.ts';
import {Icon, type Sign} from './icons.tsx';
import type {FileEntry, Filter, Message, Progress} from './protocol.ts';
import {texts} from './texts.ts';
import {typingOn, type TypingOn} from './typing_on.ts';

interface ModalProps { title: string; class?: string; children: ComponentChildren; escape(): void; alert?: boolean; unasked?: boolean /* it comes while the user may be typing */ }

/// A window before which nothing else can be used.
export function Modal({title, class: style = '', children, escape, alert, unasked}: ModalProps) {
  const root = useRef<HTMLDialogElement>(null);
  const typing = useRef<TypingOn | null>(null);
  const label = useId();
  useLayoutEffect(() => {
    const back = document.activeElement as HTMLElement | null;
    const own = root.current!;
    if (unasked) typing.current = typingOn(back);
    own.showModal();
    own.querySelector<HTMLElement>('[data-first]')?.focus();
    return () => {
      own.close();
      back?.focus();
    };
  }, []);
  const cancel = (event: Event) => {
    event.preventDefault();
    escape();
  };
  const keys = (event: KeyboardEvent) => {
    event.stopPropagation();
    if (typing.current?.takes(event)) return event.preventDefault();
    if (event.key !== 'Escape') return;
    event.preventDefault();
    escape();
  };
  return (
    <dialog class={`modal ${style}`} ref={root} aria-labelledby={label} role={alert ? 'alertdialog' : undefined} onCancel={cancel} onKeyDown={keys}>
      <h2 id={label}>{title}</h2>
      {children}
    </dialog>);
}

const signs: Record<Message['icon'], Sign | null> = {none: null, question: 'question', information: 'information', warning: 'warning', critical: 'critical'};

export function MessageBox({message, addin, line}: {message: Message; addin: string; line: Connection}) {
  const {buttons} = message;
  const answer = (which: string) => void line.act('answerMessage', {id: message.id, answer: which});
  const away = buttons.find(each => each.answer === 'cancel') ?? buttons.find(each => each.answer === 'no') ?? (buttons.length === 1 ? buttons[0] : null);
  const sign = signs[message.icon];
  return (
    <Modal title={message.title || addin} class="message" alert unasked escape={() => { if (away) answer(away.answer); }}>
      <div class={`said ${message.icon}`}>{sign && <Icon sign={sign}/>}<p>{message.text}</p></div>
      <div class="choices">
        {buttons.map((each, i) => <button key={each.answer} type="button" class={`push${i === 0 ? ' main' : ''}`} data-first={i === 0 || undefined} onClick={() => answer(each.answer)}>{each.caption}</button>)}
      </div>
    </Modal>);
}

export function ProgressBox({progress, line}: {progress: Progress; line: Connection}) {
  const value = Math.max(0, Math.min(100, progress.value));
  return (
    <section class="progress" role="status" aria-label={progress.text}>
      <p>{progress.text}</p>
      <progress max={100} value={value} aria-label={progress.text || texts.working}/>
      {progress.cancel && <button type="button" class="push" disabled={progress.cancelled} onClick={() => void line.act('cancelProgress')}>{progress.cancel}</button>}
    </section>);
}

interface FilesProps {
  title: string; filters: Filter[]; filter?: number; multiple?: boolean; line: Connection;
  save?: string;                       ///< it asks for a name, and begins with this one
  refusal?: string;                    ///< why the name that was picked last will not do
  start?: string;                      ///< the folder that it begins in
  folders?: boolean;                   ///< it asks for a folder
  unasked?: boolean;
  extra?: {caption: string; act(): void};
  pick(files: string[]): void; cancel(): void;
}

const everything: Filter = {caption: texts.allFiles, patterns: ['*']};

function fits(name: string, {patterns}: Filter): boolean {
  return patterns.some(pattern => {
    if (pattern === '*' || pattern === '*.*') return true;
    const parts = pattern.toLowerCase().split('*');
    const text = name.toLowerCase();
    return parts.length === 1 ? text === parts[0] : text.startsWith(parts[0]) && text.endsWith(parts[parts.length - 1]) && text.length >= pattern.length - 1;
  });
}

const sizeText = (size: number) => size < 1000 ? `${size} B` : size < 1e6 ? `${Math.round(size / 1e3)} kB` : `${(size / 1e6).toFixed(1)} MB`;

/// Files of the user's data.
export function FilesBox({title, filters, filter = 0, multiple = false, line, save, refusal, start = '', folders = false, extra, unasked, pick, cancel}: FilesProps) {
  const choices = filters.length ? filters : [everything];
  const isSaving = save !== undefined;
  const [folder, setFolder] = useState(isSaving && save.includes('/') ? save.slice(0, save.lastIndexOf('/')) : start);
  const [entries, setEntries] = useState<FileEntry[]>([]);
  const [problem, setProblem] = useState('');
  const [chosen, setChosen] = useState<string[]>([]);
  const [name, setName] = useState(isSaving ? save.slice(save.lastIndexOf('/') + 1) : '');
  const [type, setType] = useState(Math.min(filter, choices.length - 1));
  const list = useRef<HTMLDivElement>(null);
  useEffect(() => {
    let isWanted = true;
    line.files(folder).then(found => { if (isWanted) { setEntries(found.entries); setProblem(''); } }, error => { if (isWanted) { setEntries([]); setProblem((error as Error).message); } });
    return () => { isWanted = false; };
  }, [folder]);

  const full = (each: string) => folder ? `${folder}/${each}` : each;
  const shown = entries.filter(each => each.folder || !folders && fits(each.name, choices[type]));
  const enter = (to: string) => {
    setFolder(to);
    setChosen([]);
  };
  const take = (entry: FileEntry) => {
    if (entry.folder) enter(full(entry.name));
    else if (isSaving) setName(entry.name);
    else pick([full(entry.name)]);
  };
  const choose = (entry: FileEntry, also: boolean) => {
    if (isSaving && !entry.folder) setName(entry.name);
    setChosen(before => multiple && also && !entry.folder ? before.includes(entry.name) ? before.filter(each => each !== entry.name) : [...before, entry.name] : [entry.name]);
  };
  const accept = () => {
    const folderChosen = entries.find(each => each.folder && each.name === chosen[0]);
    if (folders) return pick([folderChosen ? full(folderChosen.name) : folder]);
    if (isSaving) { if (name.trim()) pick([full(name.trim())]); }
    else if (folderChosen) enter(full(folderChosen.name));
    else if (chosen.length) pick(chosen.map(full));
  };
  const keys = (event: KeyboardEvent) => {
    const rows = [...list.current!.querySelectorAll<HTMLElement>('[role=option]')];
    const at = rows.indexOf(document.activeElement as HTMLElement);
    const to = ({ArrowDown: at + 1, ArrowUp: at - 1, Home: 0, End: rows.length - 1} as Record<string, number>)[event.key];
    if (to !== undefined) {
      event.preventDefault();
      rows[Math.max(0, Math.min(rows.length - 1, to))]?.focus();
    } else if (event.key === 'Backspace' && folder) {
      enter(folder.split('/').slice(0, -1).join('/'));
    }
  };
  const crumbs = folder.split('/').filter(Boolean);
  const canAccept = folders || (isSaving ? name.trim() !== '' : chosen.length > 0);
  return (
    <Modal title={title} class="files" unasked={unasked} escape={cancel}>
      <nav class="crumbs" aria-label={texts.dataFolder}>
        <button type="button" class="tool" disabled={!folder} title={texts.folderUp} aria-label={texts.folderUp} onClick={() => enter(crumbs.slice(0, -1).join('/'))}><Icon sign="up"/></button>
        {[texts.dataFolder, ...crumbs].map((each, i) => <button key={i} type="button" class="crumb" onClick={() => enter(crumbs.slice(0, i).join('/'))}>{each}</button>)}
      </nav>
      <div class="list" role="listbox" aria-label={title} aria-multiselectable={multiple} ref={list} onKeyDown={keys} tabIndex={shown.length ? -1 : 0}>
        {shown.map((entry, i) => (
          <div key={entry.name} class="entry" role="option" aria-selected={chosen.includes(entry.name)} tabIndex={chosen.includes(entry.name) || !chosen.length && i === 0 ? 0 : -1}
               onClick={event => choose(entry, event.ctrlKey || event.metaKey)} onDblClick={() => take(entry)} onFocus={() => { if (!multiple) choose(entry, false); }}
               onKeyDown={event => { if (event.key === 'Enter') { event.preventDefault(); take(entry); } else if (event.key === ' ') { event.preventDefault(); choose(entry, true); } }}>
            <Icon sign={entry.folder ? 'folder' : 'file'}/><span class="name">{entry.name}</span>{!entry.folder && entry.size !== undefined && <span class="size">{sizeText(entry.size)}</span>}
          </div>))}
        {!shown.length && <p class="quiet">{problem || (folders ? texts.noFolders : texts.emptyFolder)}</p>}
      </div>
      <div class="fields">
        {isSaving && <label>{texts.fileName}<input type="text" value={name} data-first onInput={event => setName(event.currentTarget.value)} onKeyDown={event => { if (event.key === 'Enter') accept(); }}/></label>}
        {refusal && <p class="refusal" role="alert">{refusal}</p>}
        {!isSaving && !folders && choices.length > 0 && <label>{texts.filesOfType}
          <select value={String(type)} onChange={event => setType(Number(event.currentTarget.value))}>{choices.map((each, i) => <option key={i} value={String(i)}>{each.caption}</option>)}</select></label>}
      </div>
      <div class="choices">
        {extra && <button type="button" class="push" onClick={extra.act}>{extra.caption}</button>}<span class="gap"/>
        <button type="button" class="push main" disabled={!canAccept} onClick={accept}>{isSaving ? texts.save : folders ? texts.pickFolder : texts.open}</button>
        <button type="button" class="push" data-first={!isSaving || undefined} onClick={cancel}>{texts.cancel}</button>
      </div>
    </Modal>);
}

/// Asks before something is replaced.
export function AskBox({title, text, yes, act, cancel}: {title: string; text: string; yes: string; act(): void; cancel(): void}) {
  return (
    <Modal title={title} class="message" alert escape={cancel}>
      <div class="said question"><Icon sign="question"/><p>{text}</p></div>
      <div class="choices"><button type="button" class="push" onClick={act}>{yes}</button><button type="button" class="push main" data-first onClick={cancel}>{texts.cancel}</button></div>
    </Modal>);
}
