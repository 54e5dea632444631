// The bar between list and picture, moved by pointer or arrow keys; its place is kept.
import {element} from '../list/dom.ts';

const place = 'parts-page/split';
const least = 20, most = 80;

export function splitter(label: string): HTMLElement {
  let percent = 52;
  try {
    percent = Number(localStorage.getItem(place)) || percent;
  } catch { /* a browser that keeps nothing */ }
  const bar = element('div', {class: 'splitter', role: 'separator', tabindex: 0, 'aria-label': label, 'aria-orientation': 'vertical', 'aria-valuemin': least, 'aria-valuemax': most});
  const set = (value: number) => {
    percent = Math.min(most, Math.max(least, value));
    bar.setAttribute('aria-valuenow', String(Math.round(percent)));
    document.documentElement.style.setProperty('--split', `${percent}%`);
    try {
      localStorage.setItem(place, String(percent));
    } catch { /* as above */ }
  };
  bar.addEventListener('pointerdown', event => bar.setPointerCapture(event.pointerId));
  bar.addEventListener('pointermove', event => {
    if (!bar.hasPointerCapture(event.pointerId)) return;
    const box = bar.parentElement!.getBoundingClientRect();
    const below = getComputedStyle(bar.parentElement!).flexDirection.startsWith('column');
    set(below ? (box.bottom - event.clientY) / box.height * 100 : (event.clientX - box.left) / box.width * 100);
  });
  bar.addEventListener('keydown', event => {
    const by = ({ArrowLeft: -2, ArrowUp: 2, ArrowRight: 2, ArrowDown: -2} as Record<string, number>)[event.key];
    if (!by) return;
    event.preventDefault();
    event.stopPropagation();
    set(percent + by);
  });
  set(percent);
  return bar;
}
