// The bar beside the browser, moved by pointer or arrow keys.
import {useState} from 'preact/hooks';
import {useLayoutEffect} from 'preact/hooks';
import {texts} from './texts.ts';

const least = 140, most = 640, step = 16;

export function Splitter() {
  const [width, setWidth] = useState(248);
  useLayoutEffect(() => document.documentElement.style.setProperty('--browser', `${width}px`), [width]);
  const set = (to: number) => setWidth(Math.round(Math.max(least, Math.min(most, to))));
  const keys = (event: KeyboardEvent) => {
    const by = ({ArrowLeft: -step, ArrowRight: step} as Record<string, number>)[event.key];
    if (!by) return;
    event.preventDefault();
    set(width + by);
  };
  return <div class="splitter" role="separator" tabIndex={0} aria-label={texts.tree} aria-orientation="vertical" aria-valuemin={least} aria-valuemax={most} aria-valuenow={width} onKeyDown={keys}
              onPointerDown={event => event.currentTarget.setPointerCapture(event.pointerId)}
              onPointerMove={event => { if (event.currentTarget.hasPointerCapture(event.pointerId)) set(event.clientX); }}/>;
}
