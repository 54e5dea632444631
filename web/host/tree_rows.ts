// The browser tree as rows: what of the assembly shows while some of it is expanded.
import type {TreeComponent} from './protocol.ts';

export interface TreeRow {
  path: string;       ///< the root's is empty
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
  const add = (index: number, name: string, path: string, depth: number, grounded: boolean): void => {
    const {partNumber, children, document = ''} = components[index];
    rows.push({path, name, partNumber, depth, component: index, grounded, document, parent: children.some(each => each !== null)});
    if (!expanded.has(path)) return;
    for (const child of children) {
      if (!child) continue;
      const below = `${components[child[0]].name}:${child[1]}`;
      add(child[0], below, path ? `${path}+${below}` : below, depth + 1, child[2]);
    }
  };
  if (components.length) add(0, components[0].name, '', 0, false);
  return rows;
}

/// The paths above this one, the root's first.
export function ancestors(path: string): string[] {
  if (!path) return [];
  const names = path.split('+');
  return names.map((_, i) => names.slice(0, i).join('+'));
}
