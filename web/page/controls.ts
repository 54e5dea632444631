// The page's buttons, menus and boxes.
import {Child, element, icon} from '../list/dom.ts';

export const icons = {
  fit: 'M2 5V2h3M11 2h3v3M14 11v3h-3M5 14H2v-3M6 6h4v4H6z',
  perspective: 'M1.5 13h13l-4-9h-5zM3.7 8h8.6M8 4v9',
  edges: 'M2.5 4.5 8 2l5.5 2.5v7L8 14l-5.5-2.5zM2.5 4.5 8 7l5.5-2.5M8 7v7',
  section: 'M2.5 4 9 2v12l-6.5-2zM9 2l4.5 2v8L9 14',
  isolate: 'M8 5.5a2.5 2.5 0 1 1 0 5 2.5 2.5 0 0 1 0-5M2 5V2h3M11 2h3v3M14 11v3h-3M5 14H2v-3',
  hide: 'M1.5 8S4 3.8 8 3.8 14.5 8 14.5 8 12 12.2 8 12.2 1.5 8 1.5 8M2.5 13.5l11-11',
  dim: 'M8 2.5a5.5 5.5 0 1 0 0 11zM8 2.5a5.5 5.5 0 0 1 0 11M8 5h3.8M8 8h5M8 11h3.8',
  show: 'M1.5 8S4 3.8 8 3.8 14.5 8 14.5 8 12 12.2 8 12.2 1.5 8 1.5 8M8 6.2a1.8 1.8 0 1 1 0 3.6 1.8 1.8 0 0 1 0-3.6',
  flip: 'M5 3 2 6l3 3M2 6h9M11 7l3 3-3 3M14 10H5',
  filter: 'M2 3h12l-4.7 5.5V13l-2.6-1.5v-3z',
  columns: 'M2.5 3h11v10h-11zM6.2 3v10M9.8 3v10',
  export: 'M8 2v7.5M5 7l3 3 3-3M2.5 11v2.5h11V11',
  help: 'M5.8 6a2.2 2.2 0 1 1 3.2 2c-.7.4-1 .8-1 1.6M8 11.8v.6M8 1.5a6.5 6.5 0 1 1 0 13 6.5 6.5 0 0 1 0-13',
  previous: 'M10 3 5 8l5 5', next: 'M6 3l5 5-5 5', clear: 'M4 4l8 8M12 4l-8 8',
  warning: 'M8 2 1.5 13.5h13zM8 6.5v3.5M8 11.5v.6',
};

export interface ButtonOptions { pressed?: boolean; text?: boolean; key?: string }

/// A button with a sign, and its caption beside it or as a hint; `key` is the key that does the same.
export function button(sign: keyof typeof icons, caption: string, act: () => void, options: ButtonOptions = {}): HTMLButtonElement {
  return element('button', {
    type: 'button', class: options.text ? 'tool text' : 'tool', title: options.key ? `${caption} (${options.key})` : caption,
    'aria-label': options.text ? null : caption, 'aria-pressed': options.pressed === undefined ? null : String(options.pressed),
    'aria-keyshortcuts': options.key, onclick: act}, icon(icons[sign]), options.text && caption);
}

export function press(made: HTMLButtonElement, on: boolean): void {
  made.setAttribute('aria-pressed', String(on));
}

/// A button that opens a panel below it; Escape and a click elsewhere close it.
export function menu(sign: keyof typeof icons, caption: string, fill: () => Child[]): HTMLElement {
  const panel = element('div', {class: 'panel', role: 'group', 'aria-label': caption, hidden: true});
  const opener = button(sign, caption, () => panel.hidden ? open() : close(), {text: true});
  opener.setAttribute('aria-expanded', 'false');
  const whole = element('div', {class: 'menu'}, opener, panel);
  const outside = (event: Event) => { if (!whole.contains(event.target as Node)) close(); };
  const open = () => {
    panel.replaceChildren(...fill().filter((each): each is Node | string => Boolean(each)));
    panel.hidden = false;
    opener.setAttribute('aria-expanded', 'true');
    document.addEventListener('pointerdown', outside);
    panel.querySelector<HTMLElement>('button, input')?.focus();
  };
  const close = () => {
    panel.hidden = true;
    opener.setAttribute('aria-expanded', 'false');
    document.removeEventListener('pointerdown', outside);
  };
  whole.addEventListener('keydown', event => {
    if (event.key !== 'Escape' || panel.hidden) return;
    event.stopPropagation();
    close();
    opener.focus();
  });
  panel.addEventListener('click', event => { if ((event.target as Element).closest('button')) close(); });
  return whole;
}

/// A window over the page, gone when closed; each of the choices closes it, then acts.
export function box(title: string, close: string, content: Child[], choices: [string, () => void][] = []): void {
  const choice = ([caption, act]: [string, () => void]) => element('button', {type: 'button', class: 'tool text', onclick: () => { dialog.close(); act(); }}, caption);
  const dialog: HTMLDialogElement = element('dialog', {'aria-label': title, onclose: () => dialog.remove()}, element('h2', {}, title), ...content,
                         element('div', {class: 'choices'}, ...[...choices, [close, () => {}] as [string, () => void]].map(choice)));
  document.body.append(dialog);
  dialog.showModal();
}
