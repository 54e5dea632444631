// Which parts of the model a row of the list stands for, and which row a part belongs to.
import type {PartsList, Row} from '../list/parts_list.ts';
import type {Model} from '../model/model.ts';

const ownMark = '#bodies';

/// The key of an occurrence's own bodies, beside the occurrence's.
const ownBodies = (occurrence: number) => -2 - occurrence;

export class Links {
  private readonly occurrenceOfPath = new Map<string, number>();
  private readonly rowsOfViews = new Map<Row[], Map<number, number>>();

  constructor(private readonly list: PartsList, private readonly model: Model) {
    model.occurrences.forEach((occurrence, i) => this.occurrenceOfPath.set(occurrence.path, i));
  }

  /// The instances at each place of the row; empty places are left out.
  places(row: Row): number[][] {
    return row.occurrences.flatMap(path => {
      const instances = this.instancesAt(this.list.paths[path]);
      return instances.length ? [instances] : [];
    });
  }

  instances(row: Row): number[] {
    return this.places(row).flat();
  }

  /// The view's row that the instance belongs to, and at which of its places; the nearest above it if it has none itself.
  rowOf(rows: Row[], instance: number): {row: number; place: number} | null {
    const known = this.rowsOf(rows);
    const own = known.get(ownBodies(this.model.instances[instance]?.occurrence ?? -1));
    if (own !== undefined) return {row: own, place: this.places(rows[own]).findIndex(place => place.includes(instance))};
    for (let at = this.model.instances[instance]?.occurrence ?? -1; at >= 0; at = this.model.occurrences[at].parent) {
      const row = known.get(at);
      if (row !== undefined) return {row, place: this.places(rows[row]).findIndex(place => place.includes(instance))};
    }
    return null;
  }

  private instancesAt(path: string): number[] {
    const known = this.find(path);
    if (!known) return [];
    const {begin, end} = this.model.occurrences[known.index];
    const all = Array.from({length: end - begin}, (_, i) => begin + i);
    return known.isOwn ? all.filter(each => this.model.instances[each].occurrence === known.index) : all;
  }

  /// A node of its own may have the bodies of an assembly, or the assembly's node has them itself.
  private find(path: string): {index: number; isOwn: boolean} | null {
    const index = this.occurrenceOfPath.get(path);
    if (index !== undefined) return {index, isOwn: false};
    const above = path.endsWith(ownMark) ? this.occurrenceOfPath.get(path.slice(0, -ownMark.length)) : undefined;
    return above === undefined ? null : {index: above, isOwn: true};
  }

  // In a tree the deepest row of an occurrence counts; rows come after their parents.
  private rowsOf(rows: Row[]): Map<number, number> {
    let known = this.rowsOfViews.get(rows);
    if (!known) {
      this.rowsOfViews.set(rows, known = new Map());
      rows.forEach((row, i) => row.occurrences.forEach(path => {
        const found = this.find(this.list.paths[path]);
        if (found) known!.set(found.isOwn ? ownBodies(found.index) : found.index, i);
      }));
    }
    return known;
  }
}
