// Which rows of a long list are in sight.
import {useLayoutEffect, useState} from 'preact/hooks';
import type {RefObject} from 'preact';

export interface Sight { first: number; last: number }

/// The rows that a scrolled box shows, with some around them; renders again when it is scrolled or has another size.
export function useSight(box: RefObject<HTMLElement | null>, rowHeight: number, count: number, around: number, covered = 0): Sight {
  const [sight, setSight] = useState<Sight>({first: 0, last: 40});
  useLayoutEffect(() => {
    const element = box.current;
    if (!element) return;
    const look = () => {
      const first = Math.max(0, Math.floor(element.scrollTop / rowHeight) - around);
      const last = Math.ceil((element.scrollTop + element.clientHeight - covered) / rowHeight) + around;
      setSight(before => before.first === first && before.last === last ? before : {first, last});
    };
    const observer = new ResizeObserver(look);
    observer.observe(element);
    element.addEventListener('scroll', look, {passive: true});
    look();
    return () => {
      observer.disconnect();
      element.removeEventListener('scroll', look);
    };
  }, [rowHeight, around, covered, count]);
  return {first: Math.min(sight.first, Math.max(0, count)), last: Math.min(sight.last, count)};
}

/// Scrolls a box just as far as shows a row; `covered` pixels at its top are behind a heading.
export function scrollTo(box: HTMLElement, row: number, rowHeight: number, covered = 0): void {
  const [top, bottom] = [row * rowHeight, (row + 1) * rowHeight];
  const height = box.clientHeight - covered;
  if (top < box.scrollTop) box.scrollTop = top;
  else if (bottom > box.scrollTop + height) box.scrollTop = bottom - height;
}
