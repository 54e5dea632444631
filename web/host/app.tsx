// The page: the host as a CAD program.
import type {RefObject} from 'preact';
import {useEffect, useLayoutEffect, useMemo, useRef, useState} from 'preact/hooks';
import {AskBox, FilesBox, MessageBox, ProgressBox} from './boxes.tsx';
import {BrowserTree} from './browser_tree.tsx';
import {CommandDialog} from './command_dialog.tsx';
import type {Connection, Line} from './connection.ts';
import {isTrouble, Log} from './log.tsx';
import {commandEntries, Menu, type Entry} from './menu.tsx';
import {Docked, Floating} from './palettes.tsx';
import type {FileDialog, State} from './protocol.ts';
import type {Scene} from './scene.ts';
import {Splitter} from './splitter.tsx';
import {Stage} from './stage.tsx';
import {texts} from './texts.ts';
import {QuickBar, Ribbon} from './toolbars.tsx';

export interface Notice { n: number; text: string }

interface Props { line: Connection; notice: Notice | null; made(scene: Scene): void }

// `file` is null for what has no name of its own: where the document is saved, what the program was started with.
type Asking = {what: 'open'} | {what: 'discard'; file: string | null} | {what: 'save'; name: string; problem?: string} | {what: 'replace'; file: string | null; name: string} | {what: 'write'; id: number; file: string} | null;

const noticeTime = 7000;
const troubles: Partial<Record<Line, string>> = {lost: texts.lost, full: texts.full, refused: texts.refused};
const designs = [{caption: 'Designs (STEP, IGES, design files)', patterns: ['*.step', '*.stp', '*.stpz', '*.iges', '*.igs', '*.gz', '*.json', '*.outline', '*.txt']}, {caption: texts.allFiles, patterns: ['*']}];

export function App({line, notice, made}: Props) {
  const {state} = line;
  if (!state) return <p class="waiting" role="status">{troubles[line.line] ?? texts.connecting}</p>;
  return <Host line={line} state={state} notice={notice} made={made}/>;
}

function Host({line, state, notice, made}: Props & {state: State}) {
  const [logShown, setLogShown] = useState(false);
  const [asking, setAsking] = useState<Asking>(null);
  const [menu, setMenu] = useState<{x: number; y: number; entries: Entry[]} | null>(null);
  const [hovered, setHovered] = useState<string | null>(null);
  const [room, main] = useRoom();
  const isBusy = state.busy !== null || state.message !== null || state.fileDialog !== null;
  useTitle(state);

  const pick = (path: string) => void line.act('pick', {path});
  const openMenu = async (event: MouseEvent) => {
    event.preventDefault();
    const at = {x: event.clientX, y: event.clientY};
    const answer = await line.act('markingMenu');
    if (answer.error) return;
    const entries = commandEntries(answer.commands ?? [], command => void line.act('press', {command}));
    if (entries.length) setMenu({...at, entries});
    else line.onRefused(texts.nothing);
  };
  const saveTo = async (file: string | null, replace: boolean) => {
    const answer = await line.ask('save', {...file === null ? {} : {file}, ...replace ? {replace} : {}});
    if (answer.exists) setAsking({what: 'replace', file, name: file ?? state.document.saveAs});
    else if (answer.error && file !== null) setAsking({what: 'save', name: file, problem: answer.error});
    else setAsking(null);
    if (answer.error && !answer.exists && file === null) line.onRefused(answer.error);
  };
  const answerFiles = async (id: number, files: string[] | null, replace: boolean) => {
    setAsking(null);
    const answer = await line.ask('answerFile', {id, files, ...replace ? {replace} : {}});
    if (answer.exists && files) setAsking({what: 'write', id, file: files[0]});
    else if (answer.error) line.onRefused(answer.error);
  };
  const open = async (file: string | null, discard: boolean) => {
    setAsking(null);
    const answer = await line.ask('open', {file, ...discard ? {discard} : {}});
    if (answer.changed) setAsking({what: 'discard', file});
    else if (answer.error) line.onRefused(answer.error);
  };
  const save = (as: boolean) => as || !state.document.saveAs ? setAsking({what: 'save', name: state.document.saveAs || `${state.document.name}.json`}) : void saveTo(null, false);

  useEffect(() => {
    const keys = (event: KeyboardEvent) => {
      if (!event.ctrlKey || event.altKey || event.shiftKey || isBusy || document.querySelector('dialog[open]')) return;
      const actions: Record<string, () => void> = {o: () => setAsking({what: 'open'}), s: () => save(false)};
      if (!actions[event.key]) return;
      event.preventDefault();
      actions[event.key]();
    };
    document.addEventListener('keydown', keys);
    return () => document.removeEventListener('keydown', keys);
  });

  const trouble = state.log.filter(isTrouble).length;
  const toolbarVersion = line.version('workspaces');
  const ribbon = useMemo(() => <Ribbon state={state} line={line} busy={isBusy}/>, [toolbarVersion, state, isBusy]);
  const treeVersion = line.version('tree'), selectionVersion = line.version('selection');
  const tree = useMemo(
      () => <BrowserTree components={state.tree.components} version={treeVersion} selection={state.selection} selectionVersion={selectionVersion} pick={pick} hover={setHovered} menu={openMenu}/>,
      [treeVersion, selectionVersion, state]);
  const stage = useMemo(
      () => <Stage revision={state.model.revision} design={state.model.document} selection={state.selection} selectionVersion={selectionVersion} hovered={hovered} openings={line.openings} pick={pick}
                   hover={setHovered} menu={openMenu} made={made}/>, [line.version('model'), line.openings, selectionVersion, hovered, state]);

  return <>
    <QuickBar state={state} line={line} busy={isBusy} open={() => setAsking({what: 'open'})} openGiven={() => void open(null, false)} save={save} logShown={logShown} toggleLog={() => setLogShown(!logShown)} trouble={trouble}/>
    {ribbon}
    <main ref={main}>
      <section class="browser" aria-label={texts.tree}><h2>{texts.tree}</h2>{tree}</section>
      <Splitter/>
      <Docked palettes={state.palettes} side="left" line={line}/>
      <div class="centre">
        <Docked palettes={state.palettes} side="top" line={line}/>
        {stage}
        <Docked palettes={state.palettes} side="bottom" line={line}/>
      </div>
      <Docked palettes={state.palettes} side="right" line={line}/>
      {state.dialog && room && <CommandDialog dialog={state.dialog} line={line} frozen={isBusy} room={() => room}/>}
      {room && <Floating palettes={state.palettes} line={line} room={room}/>}
      {state.progress && <ProgressBox progress={state.progress} line={line}/>}
      {menu && <Menu entries={menu.entries} label={texts.menu} at={menu} close={() => setMenu(null)}/>}
      <Notices notice={notice}/>
    </main>
    {logShown && <Log state={state} close={() => setLogShown(false)}/>}
    <StatusBar line={line} state={state}/>
    {troubles[line.line] && <p class="banner" role="alert">{troubles[line.line]}</p>}
    {asking?.what === 'open' && <FilesBox title={texts.openTitle} filters={designs} line={line} cancel={() => setAsking(null)} pick={([file]) => void open(file, false)}/>}
    {asking?.what === 'save' && <FilesBox title={texts.saveTitle} filters={[]} save={asking.name} refusal={asking.problem} line={line} cancel={() => setAsking(null)} pick={([file]) => void saveTo(designFile(file), false)}/>}
    {asking?.what === 'replace' && <AskBox title={texts.replaceTitle} text={texts.replaceText(asking.name)} yes={texts.replace} cancel={() => setAsking(null)} act={() => void saveTo(asking.file, true)}/>}
    {asking?.what === 'discard' && <AskBox title={texts.discardTitle} text={texts.discardText(state.document.name)} yes={texts.discard} cancel={() => setAsking(null)} act={() => void open(asking.file, true)}/>}
    {state.fileDialog && <AddInFiles key={state.fileDialog.id} dialog={state.fileDialog} line={line} answer={files => void answerFiles(state.fileDialog!.id, files, false)}/>}
    {asking?.what === 'write' && asking.id === state.fileDialog?.id && <AskBox title={texts.replaceTitle} text={texts.replaceText(asking.file)} yes={texts.replace} cancel={() => setAsking(null)} act={() => void answerFiles(asking.id, [asking.file], true)}/>}
    {state.message && <MessageBox key={state.message.id} message={state.message} addin={state.addin.name} line={line}/>}
  </>;
}

// What the add-in asks for.
function AddInFiles({dialog, line, answer}: {dialog: FileDialog; line: Connection; answer(files: string[] | null): void}) {
  const {kind, folder, name, filters, filter, multiple} = dialog;
  const titles = {open: texts.open, save: texts.save, folder: texts.pickFolderTitle};
  const saved = folder ? `${folder}/${name}` : name;
  return <FilesBox title={dialog.title || titles[kind]} filters={filters} filter={filter} multiple={multiple} save={kind === 'save' ? saved : undefined} folders={kind === 'folder'} start={folder} unasked line={line}
                   pick={answer} cancel={() => answer(null)}/>;
}

const designFile = (name: string) => /\.json$/i.test(name) ? name : `${name}.json`;

function useTitle(state: State): void {
  const {name, changed} = state.document;
  useEffect(() => { document.title = `${changed ? '• ' : ''}${name} – Tarnix workbench`; }, [name, changed]);
}

// The size of what is between the bars; null until it is laid out.
function useRoom(): [{width: number; height: number} | null, RefObject<HTMLElement | null>] {
  const main = useRef<HTMLElement>(null);
  const [room, setRoom] = useState<{width: number; height: number} | null>(null);
  useLayoutEffect(() => {
    const look = () => setRoom({width: main.current!.clientWidth, height: main.current!.clientHeight});
    const observer = new ResizeObserver(look);
    observer.observe(main.current!);
    look();
    return () => observer.disconnect();
  }, []);
  return [room, main];
}

function StatusBar({line, state}: {line: Connection; state: State}) {
  const picking = state.dialog?.inputs.flatMap(each => [each, ...each.inputs ?? []]).find(each => each.kind === 'Selection' && each.active);
  const said = state.busy ?? (picking ? picking.prompt || texts.picks : '');
  return (
    <footer class="status" role="contentinfo">
      <span class="said" role="status">{said}</span><span class="gap"/>
      {state.selection.length > 0 && <span>{texts.selected(state.selection.length)}</span>}
      <span class={`lamp ${line.line}`} role="img" aria-label={line.line} title={line.line}/>
    </footer>);
}

function Notices({notice}: {notice: Notice | null}) {
  const [hidden, hide] = useState(0);
  useEffect(() => {
    if (!notice) return;
    const timer = setTimeout(() => hide(notice.n), noticeTime);
    return () => clearTimeout(timer);
  }, [notice?.n]);
  const isShown = notice !== null && notice.n !== hidden;
  return <div class="notices" role="status" aria-live="polite">{isShown && <p onClick={() => hide(notice.n)}>{notice.text}</p>}</div>;
}
