// The browser tree as rows: what of the assembly shows while some of it is expanded.
import type {TreeComponent} from './protocol.ts';

export interface TreeRow {
  path: string;       ///< the root's is empty
  above: string;      ///< the path of what it is in; the root's is empty
  name: string;
  partNumber: string;
  depth: number;
  component: number;
  grounded: boolean;
  document: string;   ///< another one that it belongs to
  parent: boolean;    ///< there is something below it
}

/// The rows from the root down; `expanded` has the paths whose children show.
export function treeRows(components: TreeComponent[], expanded: ReadonlySet<string>): TreeRow[] {
  const rows: TreeRow[] = [];
  const add = (index: number, name: string, path: string, above: string, depth: number, grounded: boolean): void => {
    const {partNumber, children, document = ''} = components[index];
    rows.push({path, above, name, partNumber, depth, component: index, grounded, document, parent: children.some(each => each !== null)});
    if (!expanded.has(path)) return;
    for (const child of children) {
      if (!child) continue;
      const below = `${components[child[0]].name}:${child[1]}`;
      add(child[0], below, path ? `${path}+${below}` : below, path, depth + 1, child[2]);
    }
  };
  if (components.length) add(0, components[0].name, '', '', 0, false);
  return rows;
}

/// The paths above this one, the root's first; empty where there is no such occurrence. Names may have a "+" of their own.
export function ancestors(components: TreeComponent[], path: string): string[] {
  const find = (index: number, above: string[], at: string, rest: string): string[] | null => {
    for (const child of components[index].children) {
      if (!child) continue;
      const name = `${components[child[0]].name}:${child[1]}`;
      if (rest === name) return [...above, at];
      if (!rest.startsWith(`${name}+`)) continue;
      const found = find(child[0], [...above, at], at ? `${at}+${name}` : name, rest.slice(name.length + 1));
      if (found) return found;
    }
    return null;
  };
  return path && components.length ? find(0, [], '', path) ?? [] : [];
}
