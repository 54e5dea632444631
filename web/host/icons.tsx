// Drawings of strokes on 16 by 16 units.

const paths = {
  open: 'M1.5 12.5v-9h4l1.5 2h6v2M1.5 12.5l2-5h11l-2 5z',
  save: 'M2.5 2.5h8.5l2.5 2.5v8.5h-11zM5 2.5v3.5h5v-3.5M4.5 13.5v-4h7v4',
  reload: 'M13 5.5A5.6 5.6 0 1 0 13.6 9M13.5 2v3.7h-3.7',
  log: 'M3 2.5h10v11h-10zM5.5 6h5M5.5 8.5h5M5.5 11h3',
  close: 'M4 4l8 8M12 4l-8 8', clear: 'M4 4l8 8M12 4l-8 8',
  down: 'M4 6l4 4 4-4', right: 'M6 4l4 4-4 4',
  dock: 'M1.8 2.8h12.4v10.4H1.8zM9.5 2.8v10.4M11.8 5.5v5', undock: 'M1.8 2.8h12.4v10.4H1.8zM4.5 5.5h5v5h-5z',
  home: 'M2 8l6-5.5L14 8M4 6.8v6.7h8V6.8M6.8 13.5v-3.8h2.4v3.8',
  fit: 'M2 5V2h3M11 2h3v3M14 11v3h-3M5 14H2v-3M6 6h4v4H6z',
  perspective: 'M1.5 13h13l-4-9h-5zM3.7 8h8.6M8 4v9',
  edges: 'M2.5 4.5 8 2l5.5 2.5v7L8 14l-5.5-2.5zM2.5 4.5 8 7l5.5-2.5M8 7v7',
  part: 'M2.5 5 8 2.2 13.5 5v6L8 13.8 2.5 11zM2.5 5 8 7.8 13.5 5M8 7.8v6',
  assembly: 'M5 1.8 8.2 3.4v3.2L5 8.2 1.8 6.6V3.4zM11 7.8l3.2 1.6v3.2L11 14.2l-3.2-1.6V9.4zM8 5h3v2.8M5 8.2V11h2.8',
  document: 'M3.5 1.8h6l3 3v9.4h-9zM9.5 1.8v3h3',
  ground: 'M8 2v7M3 9h10M4.5 11.5h7M6.3 14h3.4',
  folder: 'M1.5 13V3.5h4.5l1.5 2h7V13z', file: 'M3.5 1.8h6l3 3v9.4h-9zM9.5 1.8v3h3',
  up: 'M8 13V3M4 7l4-4 4 4',
  more: 'M3 4h10M3 8h10M3 12h10', check: 'M3 8.5l3.2 3.2L13 4.8',
  cursor: 'M3.5 2l9 6-4 1-2 4z', warning: 'M8 2 1.5 13.5h13zM8 6.5v3.5M8 11.5v.6',
  external: 'M9 2.5h4.5V7M13.5 2.5 7.5 8.5M11.5 9v4.5h-9v-9H7',
  question: 'M5.8 6a2.2 2.2 0 1 1 3.2 2c-.7.4-1 .8-1 1.6M8 11.8v.6M8 1.5a6.5 6.5 0 1 1 0 13 6.5 6.5 0 0 1 0-13',
  information: 'M8 7v5M8 4v.6M8 1.5a6.5 6.5 0 1 1 0 13 6.5 6.5 0 0 1 0-13',
  critical: 'M5.5 5.5l5 5M10.5 5.5l-5 5M8 1.5a6.5 6.5 0 1 1 0 13 6.5 6.5 0 0 1 0-13',
};

export type Sign = keyof typeof paths;

/// A drawing; with a label it says what nothing beside it does.
export function Icon({sign, class: name = '', label}: {sign: Sign; class?: string; label?: string}) {
  return <svg viewBox="0 0 16 16" class={`icon ${name}`} role={label ? 'img' : undefined} aria-label={label} aria-hidden={label ? undefined : 'true'}><path d={paths[sign]}/></svg>;
}

/// The picture of a command or an item, from its folder of pictures.
export function Picture({folder, size, class: name = ''}: {folder: string; size: 16 | 32; class?: string}) {
  const at = (suffix: string) => `${folder}${size}x${size}${suffix}.png`;
  return <img class={`picture ${name}`} src={at('')} srcset={`${at('')} 1x, ${at('@2x')} 2x`} width={size} height={size} alt="" draggable={false}/>;
}
