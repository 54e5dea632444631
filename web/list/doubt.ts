// What of a list is in doubt, and the signs beside the cells for it.
import {fieldOf} from './mass.ts';
import type {Cell, Row} from './parts_list.ts';

/// A material or density is assumed; a body has no measures; a total lacks something.
export type Doubt = 'assumed' | 'unmeasured' | 'atLeast';

export const doubtSigns: Record<Doubt, string> = {assumed: '≈', unmeasured: '–', atLeast: '≥'};

const restOnMaterial = new Set(['mass', 'totalMass', 'density', 'material']);
const measured = new Set(['mass', 'totalMass', 'density', 'volume', 'area', 'size', 'x', 'y', 'z']);

export function doubtOf(row: Pick<Row, 'assumed' | 'unmeasured'>, id: string, cell: Cell | boolean): Doubt | null {
  const field = fieldOf(id), isEmpty = cell === null || cell === '';
  if (row.unmeasured && isEmpty && measured.has(field)) return 'unmeasured';
  return row.assumed && !isEmpty && restOnMaterial.has(field) ? 'assumed' : null;
}

export function doubtOfTotal(sum: {assumed: boolean; unknown: number}): Doubt | null {
  return sum.unknown ? 'atLeast' : sum.assumed ? 'assumed' : null;
}
