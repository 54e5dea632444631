// Building elements. Texts become text nodes: what a file says is never markup.

export type Child = Node | string | null | undefined | false;

/// An element with attributes (true: present, false or null: left out) and listeners (`onclick: ...`).
export function element<K extends keyof HTMLElementTagNameMap>(
    tag: K, attributes: Record<string, unknown> = {}, ...children: Child[]): HTMLElementTagNameMap[K] {
  const made = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes)) {
    if (typeof value === 'function') made.addEventListener(name.slice(2), value as EventListener);
    else if (value === true) made.setAttribute(name, '');
    else if (value !== false && value !== null && value !== undefined) made.setAttribute(name, String(value));
  }
  for (const child of children) if (child) made.append(child);
  return made;
}

/// A drawing of strokes on 16 by 16 units.
export function icon(path: string): SVGElement {
  const svg = document.createElementNS('http://www.w3.org/2000/svg', 'svg');
  for (const [name, value] of Object.entries({viewBox: '0 0 16 16', class: 'icon', 'aria-hidden': 'true'})) svg.setAttribute(name, value);
  const stroke = document.createElementNS('http://www.w3.org/2000/svg', 'path');
  stroke.setAttribute('d', path);
  svg.append(stroke);
  return svg;
}

/// Offers the bytes or text as a file to keep.
export function download(name: string, type: string, content: BlobPart): void {
  const address = URL.createObjectURL(new Blob([content], {type}));
  element('a', {href: address, download: name}).click();
  setTimeout(() => URL.revokeObjectURL(address), 10_000);
}
