// The page's state in the address after "#", so that a link, a reload or an exported file brings it back.
import type {Pose, Section} from '../viewer/viewer.ts';

export interface Address {
  view: string;
  search: string;
  filters: [string, string][];
  sort: {id: string; descending: boolean} | null;
  columns: string[];      ///< those that are shown though hidden at first, and the other way round
  folded: number[];
  selected: number[];
  step: number;           ///< -1: all places of the row
  dim: boolean;
  hidden: number[];
  perspective: boolean;
  edges: boolean;
  explode: number;
  section: Section | null;
  pose: Pose | null;
}

const poseFields = ['x', 'y', 'z', 'yaw', 'pitch', 'size'] as const;

export function encode(address: Address): string {
  const out = new URLSearchParams();
  const set = (name: string, value: string) => { if (value) out.set(name, value); };
  set('view', address.view);
  set('search', address.search);
  for (const [id, text] of address.filters) if (text) out.append('filter', `${id}=${text}`);
  if (address.sort) set('sort', (address.sort.descending ? '-' : '+') + address.sort.id);
  for (const id of address.columns) out.append('column', id);
  set('folded', ranges(address.folded));
  set('selected', ranges(address.selected));
  if (address.step >= 0) set('step', String(address.step));
  if (address.dim) set('dim', '1');
  set('hidden', ranges(address.hidden));
  if (!address.perspective) set('parallel', '1');
  if (!address.edges) set('edges', '0');
  if (address.explode) set('explode', address.explode.toFixed(2));
  if (address.section) set('section', [address.section.axis, address.section.share.toFixed(3), address.section.flipped ? 1 : 0].join(','));
  if (address.pose) set('pose', poseFields.map(field => Number(address.pose![field].toPrecision(6))).join(','));
  return out.toString();
}

/// What cannot be understood is left at its default: an address may come from anywhere.
export function decode(text: string): Address {
  const from = new URLSearchParams(text.replace(/^#/, ''));
  const get = (name: string) => from.get(name) ?? '';
  const sort = /^([-+])(.+)$/.exec(get('sort').replace(/^ /, '+'));
  return {
    view: get('view'), search: get('search'), filters: from.getAll('filter').flatMap(each => pair(each)),
    sort: sort && {id: sort[2], descending: sort[1] === '-'}, columns: from.getAll('column'), folded: numbers(get('folded')),
    selected: numbers(get('selected')), step: from.has('step') ? Number(get('step')) || 0 : -1, dim: get('dim') === '1',
    hidden: numbers(get('hidden')), perspective: get('parallel') !== '1', edges: get('edges') !== '0',
    explode: share(get('explode')), section: section(get('section')), pose: pose(get('pose'))};
}

function pair(text: string): [string, string][] {
  const at = text.indexOf('=');
  return at > 0 ? [[text.slice(0, at), text.slice(at + 1)]] : [];
}

const share = (text: string) => Math.min(1, Math.max(0, Number(text) || 0));

function section(text: string): Section | null {
  const [axis, at, flipped] = text.split(',').map(Number);
  return text && [0, 1, 2].includes(axis) ? {axis: axis as 0 | 1 | 2, share: share(String(at)), flipped: flipped === 1} : null;
}

function pose(text: string): Pose | null {
  const values = text.split(',').map(Number);
  if (values.length !== poseFields.length || !values.every(Number.isFinite) || !(values[5] > 0)) return null;
  return Object.fromEntries(poseFields.map((field, i) => [field, values[i]])) as unknown as Pose;
}

/// "1-3,7" for 1, 2, 3, 7.
function ranges(values: number[]): string {
  const runs: [number, number][] = [];
  for (const value of [...values].sort((a, b) => a - b)) {
    const last = runs[runs.length - 1];
    if (last && value === last[1] + 1) last[1] = value;
    else runs.push([value, value]);
  }
  return runs.map(([from, to]) => from === to ? `${from}` : `${from}-${to}`).join(',');
}

const longest = 1_000_000;

function numbers(text: string): number[] {
  return text.split(',').flatMap(run => {
    const [, from, to] = /^(\d+)(?:-(\d+))?$/.exec(run) ?? [];
    if (from === undefined) return [];
    const length = Number(to ?? from) - Number(from) + 1;
    return length > 0 && length <= longest ? Array.from({length}, (_, i) => Number(from) + i) : [];
  });
}
