// A window over the model, moved by its title and sized at its corner, or docked beside it and sized at its edge; by pointer or keys.
import type {ComponentChildren} from 'preact';
import {useLayoutEffect, useRef, useState} from 'preact/hooks';
import {Icon} from './icons.tsx';
import {texts} from './texts.ts';

export interface Box { left: number; top: number; width: number; height: number }

interface Props {
  title: string; name: string;
  box: Box;                      ///< where it begins; a width or height of 0 is what its content takes
  children: ComponentChildren;
  class?: string; role?: 'dialog' | 'region';
  close?(): void; closeLabel?: string;
  moved?(left: number, top: number): void;
  sized?(width: number, height: number): void;
  keys?(event: KeyboardEvent): void;
  focusAtFirst?: boolean;
  docked?: boolean;
  dock?(docked: boolean): void;
}

const least = {width: 220, height: 120};
const step = 16;
const grip = 60;  // pixels of a title that stay in the window

export function Frame({title, name, box, children, class: style = '', role = 'dialog', close, closeLabel, moved, sized, keys, focusAtFirst, docked = false, dock}: Props) {
  const root = useRef<HTMLElement>(null);
  const [place, setPlace] = useState<{left: number; top: number} | null>(null);
  const [size, setSize] = useState<{width: number; height: number} | null>(null);
  const drag = useRef({x: 0, y: 0, left: 0, top: 0, width: 0, height: 0});
  const area = () => root.current!.parentElement!.getBoundingClientRect();
  const inside = (left: number, top: number) => {
    const {width, height} = area(), own = root.current!.offsetWidth;
    return {left: Math.round(Math.max(grip - own, Math.min(width - grip, left))), top: Math.round(Math.max(0, Math.min(height - 34, top)))};
  };
  useLayoutEffect(() => { if (focusAtFirst) root.current!.focus(); }, []);
  useLayoutEffect(() => setSize(null), [box.width, box.height, docked]);

  const start = (event: PointerEvent) => {
    if ((event.target as Element).closest('button')) return;
    const own = root.current!;
    drag.current = {x: event.clientX, y: event.clientY, left: own.offsetLeft, top: own.offsetTop, width: own.offsetWidth, height: own.offsetHeight};
    (event.currentTarget as Element).setPointerCapture(event.pointerId);
    event.preventDefault();
  };
  const isDragging = (event: PointerEvent) => (event.currentTarget as Element).hasPointerCapture(event.pointerId);
  const move = (event: PointerEvent) => {
    if (isDragging(event)) setPlace(inside(drag.current.left + event.clientX - drag.current.x, drag.current.top + event.clientY - drag.current.y));
  };
  const placed = () => { if (place) moved?.(place.left, place.top); };
  const grow = (width: number, height: number) => setSize({width: Math.max(least.width, Math.round(width)), height: Math.max(least.height, Math.round(height))});
  const resize = (event: PointerEvent) => {
    const {x, y, width: wide, height: high} = drag.current;
    if (isDragging(event)) grow(wide + (docked ? x - event.clientX : event.clientX - x), high + event.clientY - y);
  };
  const resized = () => { if (size) sized?.(size.width, size.height); };
  const arrows = (event: KeyboardEvent, act: (x: number, y: number) => void) => {
    const way = ({ArrowLeft: [-step, 0], ArrowRight: [step, 0], ArrowUp: [0, -step], ArrowDown: [0, step]} as Record<string, number[]>)[event.key];
    if (!way) return;
    event.preventDefault();
    act(way[0], way[1]);
  };
  const moveBy = (x: number, y: number) => setPlace(inside(root.current!.offsetLeft + x, root.current!.offsetTop + y));
  const growBy = (x: number, y: number) => {
    const own = root.current!;
    grow(own.offsetWidth + x, own.offsetHeight + y);
    sized?.(Math.max(least.width, own.offsetWidth + x), Math.max(least.height, own.offsetHeight + y));
  };

  const at = place ?? {left: box.left, top: box.top};
  const {width, height} = size ?? box;
  return (
    <section class={`frame ${style}${docked ? ' beside' : ''}`} role={role} aria-labelledby={`${name}-title`} id={name} tabIndex={-1} ref={root} onKeyDown={event => event.altKey && !docked ? arrows(event, moveBy) : keys?.(event)}
             style={docked ? {width: `${width}px`} : {left: `${at.left}px`, top: `${at.top}px`, width: width ? `${width}px` : undefined, height: height ? `${height}px` : undefined}}>
      <header onPointerDown={docked ? undefined : start} onPointerMove={move} onPointerUp={placed} onDblClick={event => { if (!(event.target as Element).closest('button')) dock?.(!docked); }}>
        <h2 id={`${name}-title`}>{title}</h2>
        {dock && <button type="button" class="tool" title={docked ? texts.undock : texts.dock} aria-label={docked ? texts.undock : texts.dock} onClick={() => dock(!docked)}><Icon sign={docked ? 'undock' : 'dock'}/></button>}
        {close && <button type="button" class="tool" title={closeLabel ?? texts.close} aria-label={closeLabel ?? texts.close} onClick={close}><Icon sign="close"/></button>}
      </header>
      {children}
      {sized && <div class={docked ? 'edge' : 'corner'} role="slider" tabIndex={0} aria-label={texts.resize} aria-valuenow={width || 0} aria-valuetext={docked ? String(width) : `${width} × ${height}`} onPointerDown={start} onPointerMove={resize} onPointerUp={resized}
                     onKeyDown={event => arrows(event, (x, y) => growBy(docked ? -x : x, docked ? 0 : y))}/>}
    </section>);
}
