// Formatted texts: the few tags that the host obeys become elements, all else is text.
import {h, type ComponentChild} from 'preact';

const kept = new Set(['b', 'i', 'u', 'br', 'p', 'div', 'span', 'a', 'ul', 'ol', 'li']);
// What is inside them is no text of the reader's.
const dropped = new Set(['script', 'style', 'template', 'noscript', 'iframe', 'object', 'svg', 'math']);
const deepest = 40;

/// The children of an element that show the text; nothing of it is ever parsed as part of the page.
export function formatted(text: string): ComponentChild[] {
  const inert = new DOMParser().parseFromString(text, 'text/html');
  return [...inert.body.childNodes].map(node => convert(node, 0));
}

function convert(node: Node, depth: number): ComponentChild {
  if (node.nodeType === Node.TEXT_NODE) return node.textContent;
  if (!(node instanceof Element) || depth > deepest) return null;
  const tag = node.localName;
  if (dropped.has(tag)) return null;
  const children = [...node.childNodes].map(each => convert(each, depth + 1));
  if (!kept.has(tag)) return children;
  return h(tag, tag === 'a' ? link(node.getAttribute('href') ?? '') : null, ...children);
}

function link(href: string): Record<string, string> | null {
  return webAddress(href) ? {href, target: '_blank', rel: 'noopener noreferrer'} : null;
}

/// Whether it can be offered as a link: a whole address of the web, nothing that runs or reads here.
export function webAddress(text: string): boolean {
  return /^https?:\/\/[^\s]+$/i.test(text);
}
