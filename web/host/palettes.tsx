// The palettes: pages of the add-in beside the model, in frames that can reach nothing else.
import type {Connection} from './connection.ts';
import {webAddress} from './formatted.ts';
import {Frame} from './frame.tsx';
import {Icon} from './icons.tsx';
import type {Palette} from './protocol.ts';
import {texts} from './texts.ts';

function Content({palette}: {palette: Palette}) {
  if (palette.url) return <iframe src={palette.url} title={palette.name} sandbox="allow-scripts allow-forms" referrerpolicy="no-referrer"/>;
  return (
    <div class="foreign"><p>{texts.noPage}</p>
      {webAddress(palette.address) ? <a href={palette.address} target="_blank" rel="noopener noreferrer">{palette.address}<Icon sign="external"/></a> : <code>{palette.address}</code>}</div>);
}

/// Those docked at one side.
export function Docked({palettes, side, line}: {palettes: Palette[]; side: Palette['dock']; line: Connection}) {
  const own = palettes.filter(each => each.dock === side);
  if (!own.length) return null;
  const isBeside = side === 'left' || side === 'right';
  return (
    <div class={`docked ${side}`} style={isBeside ? {width: `${Math.max(...own.map(each => each.width), 160)}px`} : {height: `${Math.max(...own.map(each => each.height), 100)}px`}}>
      {own.map(palette => (
        <section key={palette.id} class="palette" aria-label={palette.name}>
          <header><h2>{palette.name}</h2>{palette.closeButton && <CloseButton palette={palette} line={line}/>}</header>
          <Content palette={palette}/>
        </section>))}
    </div>);
}

function CloseButton({palette, line}: {palette: Palette; line: Connection}) {
  const label = `${texts.close} ${palette.name}`;
  return <button type="button" class="tool" title={label} aria-label={label} onClick={() => void line.act('closePalette', {id: palette.id})}><Icon sign="close"/></button>;
}

// The window that the host says it has. What was put into its right or lower half stays as near to that edge of the page.
const hostWindow = {width: 1280, height: 800};

const placed = (at: number, size: number, host: number, room: number) =>
  Math.max(8, Math.min(at + size / 2 > host / 2 ? room - (host - at) : at, room - size - 8));

/// Those that float, each where it was put, as far as the page reaches.
export function Floating({palettes, line, room}: {palettes: Palette[]; line: Connection; room: {width: number; height: number}}) {
  return <>{palettes.filter(each => each.dock === 'floating').map(palette => {
    const width = Math.min(palette.width, room.width - 16), height = Math.min(palette.height, room.height - 16);
    const box = {width, height, left: placed(palette.left, width, hostWindow.width, room.width), top: placed(palette.top, height, hostWindow.height, room.height)};
    return (
      <Frame key={palette.id} title={palette.name} name={`palette-${palette.id}`} class="palette" role="region" box={box} closeLabel={`${texts.close} ${palette.name}`}
             close={palette.closeButton ? () => void line.act('closePalette', {id: palette.id}) : undefined} sized={palette.resizable ? () => {} : undefined}>
        <Content palette={palette}/>
      </Frame>);
  })}</>;
}
