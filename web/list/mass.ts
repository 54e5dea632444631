// Masses in the units of the columns that show them; the lists have theirs in kg as well.
import type {Column} from './parts_list.ts';

const perKg: Record<string, number> = {kg: 1, g: 1e3, mg: 1e6, t: 1e-3, lb: 1 / 0.45359237, oz: 16 / 0.45359237};
const usual = 'kg';

/// null for a unit that is none of mass.
export function massIn(kg: number, unit: string | null): number | null {
  return unit !== null && Object.hasOwn(perKg, unit) ? kg * perKg[unit] : null;
}

/// The column that this one repeats, as in "totalMass 2", or its own id.
export const fieldOf = (id: string) => id.replace(/ \d+$/, '');

/// The unit in which masses of this list are shown outside of its columns: that of its first column of total masses, else of masses.
export function massUnit(columns: Pick<Column, 'id' | 'unit'>[]): string {
  const isMass = (field: string) => columns.find(({id, unit}) => fieldOf(id) === field && massIn(1, unit) !== null);
  return (isMass('totalMass') ?? isMass('mass'))?.unit ?? usual;
}
