// Which parts of the model a row of the list stands for, and which row a part belongs to.
import type {PartsList, Row} from '../list/parts_list.ts';
import type {Model} from '../model/model.ts';

export class Links {
  private readonly occurrenceOfPath = new Map<string, number>();
  private readonly rowsOfViews = new Map<Row[], Map<number, number>>();

  constructor(private readonly list: PartsList, private readonly model: Model) {
    model.occurrences.forEach((occurrence, i) => this.occurrenceOfPath.set(occurrence.path, i));
  }

  /// The instances at each place of the row; empty places are left out.
  places(row: Row): number[][] {
    return this.occurrencesOf(row).flatMap(index => {
      const {begin, end} = this.model.occurrences[index];
      return end > begin ? [Array.from({length: end - begin}, (_, i) => begin + i)] : [];
    });
  }

  instances(row: Row): number[] {
    return this.places(row).flat();
  }

  /// The view's row that the instance belongs to, and at which of its places; the nearest above it if it has none itself.
  rowOf(rows: Row[], instance: number): {row: number; place: number} | null {
    const known = this.rowsOf(rows);
    for (let at = this.model.instances[instance]?.occurrence ?? -1; at >= 0; at = this.model.occurrences[at].parent) {
      const row = known.get(at);
      if (row !== undefined) return {row, place: this.places(rows[row]).findIndex(place => place.includes(instance))};
    }
    return null;
  }

  private occurrencesOf(row: Row): number[] {
    return row.occurrences.flatMap(path => this.occurrenceOfPath.get(this.list.paths[path]) ?? []);
  }

  // In a tree the deepest row of an occurrence counts; rows come after their parents.
  private rowsOf(rows: Row[]): Map<number, number> {
    let known = this.rowsOfViews.get(rows);
    if (!known) {
      this.rowsOfViews.set(rows, known = new Map());
      for (let i = 0; i < rows.length; ++i) for (const occurrence of this.occurrencesOf(rows[i])) known.set(occurrence, i);
    }
    return known;
  }
}
