// The middle of the page: the model, the cube that shows and chooses its views, and the bar below it.
import {useEffect, useLayoutEffect, useMemo, useRef, useState} from 'preact/hooks';
import type {ViewName} from '../viewer/viewer.ts';
import {Icon, type Sign} from './icons.tsx';
import {Scene, type SceneNote} from './scene.ts';
import {texts} from './texts.ts';
import {ViewCube} from './view_cube.tsx';

interface Props {
  revision: number; design: number;
  selection: string[]; selectionVersion: number;
  hovered: string | null;
  openings: number;  ///< of the line: a model that failed is fetched again at each
  pick(path: string): void;
  hover(path: string | null): void;
  menu(event: MouseEvent): void;
  made(scene: Scene): void;
}

export function Stage({revision, design, selection, selectionVersion, hovered, openings, pick, hover, menu, made}: Props) {
  const root = useRef<HTMLDivElement>(null);
  const scene = useRef<Scene | null>(null);
  const shownDesign = useRef(0);
  const latest = useRef({pick, hover});
  latest.current = {pick, hover};
  const [note, setNote] = useState<SceneNote>({kind: 'loading'});
  const [, redraw] = useState(0);
  const moves = useMemo(() => new Set<() => void>(), []);

  useLayoutEffect(() => {
    scene.current = new Scene(root.current!, {
      pick: path => latest.current.pick(path), hover: path => latest.current.hover(path), said: setNote,
      moved: () => moves.forEach(each => each())});
    made(scene.current);
  }, []);
  useEffect(() => {
    const elsewhere = shownDesign.current !== design;
    shownDesign.current = design;
    void scene.current?.show(revision, elsewhere);
  }, [revision, design, openings]);
  useEffect(() => scene.current?.select(selection), [selectionVersion]);
  useEffect(() => scene.current?.hover(hovered), [hovered]);

  const viewer = () => scene.current?.viewer ?? null;
  const toggle = (what: 'perspective' | 'edges') => {
    const shown = viewer();
    if (shown) shown[what] = !shown[what];
    redraw(n => n + 1);
  };
  const fit = () => {
    const marked = selection.flatMap(path => scene.current?.instances(path) ?? []);
    viewer()?.fit(marked.length ? marked : undefined);
  };
  // A drag of the right button moves the picture, and is no wish for a menu.
  const press = useRef({x: 0, y: 0});
  const menuUnlessMoved = (event: MouseEvent) => {
    event.preventDefault();
    if (event.button !== 2 || Math.hypot(event.clientX - press.current.x, event.clientY - press.current.y) < 4) menu(event);
  };
  const key = (event: KeyboardEvent) => {
    const views: ViewName[] = ['iso', 'front', 'back', 'left', 'right', 'top', 'bottom'];
    const actions: Record<string, () => void> = {f: fit, h: () => viewer()?.home(), p: () => toggle('perspective'), e: () => toggle('edges')};
    views.forEach((name, i) => actions[String(i + 1)] = () => viewer()?.look(name));
    if (event.ctrlKey || event.altKey || event.metaKey || !actions[event.key.toLowerCase()]) return;
    event.preventDefault();
    actions[event.key.toLowerCase()]();
  };
  const tool = (sign: Sign, caption: string, shortcut: string, act: () => void, pressed?: boolean) => (
    <button type="button" class="tool" title={`${caption} (${shortcut})`} aria-label={caption} aria-pressed={pressed} aria-keyshortcuts={shortcut} onClick={act}><Icon sign={sign}/></button>);

  return (
    <div class="stage" onContextMenu={menuUnlessMoved} onKeyDown={key} onPointerDown={event => { press.current = {x: event.clientX, y: event.clientY}; }}>
      <div class="picture-root" ref={root} data-label={texts.model}/>
      {note.kind !== 'none' && <p class={`stage-note ${note.kind}`} role={note.kind === 'problem' ? 'alert' : 'status'}>
        {note.kind === 'loading' ? texts.loading : note.kind === 'empty' ? texts.noShapes : texts.noModel + (note as {text: string}).text}</p>}
      <ViewCube viewer={viewer} moves={moves}/>
      <div class="navigation" role="toolbar" aria-label={texts.view}>
        {tool('home', texts.home, 'H', () => viewer()?.home())}
        {tool('fit', texts.fit, 'F', fit)}
        {tool('perspective', texts.perspective, 'P', () => toggle('perspective'), viewer()?.perspective ?? true)}
        {tool('edges', texts.edges, 'E', () => toggle('edges'), viewer()?.edges ?? true)}
      </div>
    </div>);
}
