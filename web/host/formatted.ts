// Formatted texts: the few tags that the host obeys become elements, other tags are left out, all else is text.
import {h, type ComponentChild} from 'preact';

const kept = new Set(['b', 'i', 'u', 'br', 'p', 'div', 'span', 'a', 'ul', 'ol', 'li']);
const deepest = 40;
const piece = /<!--[^]*?-->|<(\/?)([a-z][a-z0-9]*)((?:[^<>"']|"[^"]*"|'[^']*')*)>/gi;
const entity = /&(?:(amp|lt|gt|quot|apos|nbsp)|#(\d{1,7})|#x([0-9a-f]{1,6}));/gi;
const characters: Record<string, string> = {amp: '&', lt: '<', gt: '>', quot: '"', apos: "'", nbsp: '\u00a0'};

interface Open { tag: string; href: string; children: ComponentChild[] }

/// The children of an element that show the text. No parser of the browser reads it, and no attribute but the address of a link is taken.
export function formatted(text: string): ComponentChild[] {
  const open: Open[] = [{tag: '', href: '', children: []}];
  const top = () => open[open.length - 1];
  const close = () => {
    const {tag, href, children} = open.pop()!;
    top().children.push(h(tag, tag === 'a' ? link(href) : null, ...children));
  };
  let at = 0;
  for (const found of text.matchAll(piece)) {
    top().children.push(plain(text.slice(at, found.index)));
    at = found.index! + found[0].length;
    const tag = (found[2] ?? '').toLowerCase();
    if (!kept.has(tag)) continue;
    if (tag === 'br') top().children.push(h('br', null));
    else if (!found[1] && open.length < deepest) open.push({tag, href: addressIn(found[3]), children: []});
    else if (found[1] && open.some(each => each.tag === tag)) while (open.length > 1) {
      const last = top().tag;
      close();
      if (last === tag) break;
    }
  }
  top().children.push(plain(text.slice(at)));
  while (open.length > 1) close();
  return open[0].children;
}

function plain(text: string): string {
  return text.replace(entity, (whole, name?: string, decimal?: string, hexadecimal?: string) => {
    if (name) return characters[name.toLowerCase()];
    const code = decimal ? Number(decimal) : parseInt(hexadecimal!, 16);
    return code > 0 && code < 0x110000 ? String.fromCodePoint(code) : whole;
  });
}

const addressIn = (attributes: string): string => plain(/(?:^|\s)href\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s"'>]+))/i.exec(attributes)?.slice(1).find(Boolean) ?? '');

function link(href: string): Record<string, string> | null {
  return webAddress(href) ? {href, target: '_blank', rel: 'noopener noreferrer'} : null;
}

/// Whether it can be offered as a link: a whole address of the web, nothing that runs or reads here.
export function webAddress(text: string): boolean {
  return /^https?:\/\/[^\s]+$/i.test(text);
}
