// Marks and notes that the reader makes, kept in the browser under the file's hash.

export type Mark = 'ordered' | 'made' | 'mounted';
export const marks: Mark[] = ['ordered', 'made', 'mounted'];

export interface Entry { ordered?: true; made?: true; mounted?: true; note?: string }

const schema = 1;

export class Work {
  private entries = new Map<string, Entry>();
  private readonly place: string;
  kept = true;  ///< whether the browser keeps what is entered

  constructor(private readonly file: {name: string; sha256: string}) {
    this.place = `parts-page/${file.sha256 || file.name}`;
    try {
      this.entries = read(JSON.parse(localStorage.getItem(this.place) ?? '{}'));
    } catch {
      this.kept = storageWorks();
    }
  }

  marked(key: string, mark: Mark): boolean { return this.entries.get(key)?.[mark] ?? false; }
  note(key: string): string { return this.entries.get(key)?.note ?? ''; }

  toggle(key: string, mark: Mark): void {
    const {[mark]: was, ...rest} = this.entries.get(key) ?? {};
    this.put(key, was ? rest : {...rest, [mark]: true});
  }

  setNote(key: string, note: string): void {
    const {note: _, ...rest} = this.entries.get(key) ?? {};
    this.put(key, note.trim() ? {...rest, note: note.trim()} : rest);
  }

  private put(key: string, entry: Entry): void {
    if (Object.keys(entry).length) this.entries.set(key, entry);
    else this.entries.delete(key);
    this.keep();
  }

  private keep(): void {
    try {
      localStorage.setItem(this.place, JSON.stringify(Object.fromEntries(this.entries)));
    } catch {
      this.kept = false;
    }
  }

  /// The document to keep elsewhere; `state` is the page's, as in its address.
  export(state: string): string {
    return JSON.stringify({schema, file: this.file, state, items: Object.fromEntries(this.entries)}, null, 2) + '\n';
  }

  isOf(document: WorkDocument): boolean { return document.sha256 === this.file.sha256; }

  /// Whether something that is marked or noted here is not in the document.
  wouldLose({entries}: WorkDocument): boolean {
    return [...this.entries].some(([key, {note, ...own}]) => {
      const other = entries.get(key) ?? {};
      return note !== undefined && note !== other.note || (Object.keys(own) as Mark[]).some(mark => !other[mark]);
    });
  }

  replace({entries}: WorkDocument): void {
    this.entries = new Map(entries);
    this.keep();
  }

  /// Adds the document's entries of these items to those here: what is marked stays marked, different notes are joined.
  merge({entries}: WorkDocument, isItem: (key: string) => boolean): void {
    for (const [key, entry] of entries) if (isItem(key)) this.entries.set(key, joined(this.entries.get(key) ?? {}, entry));
    this.keep();
  }
}

/// Marks and notes that were exported, with the page's state at that time.
export interface WorkDocument { name: string; sha256: string; state: string; entries: Map<string, Entry> }

/// Throws an Error when the text is no such document.
export function readWork(text: string): WorkDocument {
  const json = JSON.parse(text);
  if (json?.schema !== schema || typeof json.items !== 'object') throw new Error('no marks of such a page');
  return {name: String(json.file?.name), sha256: String(json.file?.sha256), state: typeof json.state === 'string' ? json.state : '', entries: read(json.items)};
}

function joined(here: Entry, there: Entry): Entry {
  const notes = [...new Set([here.note, there.note].filter(Boolean))];
  return {...here, ...there, ...notes.length ? {note: notes.join(' / ')} : {}};
}

function read(items: Record<string, any>): Map<string, Entry> {
  const entries = new Map<string, Entry>();
  for (const [key, item] of Object.entries(items ?? {})) {
    const entry: Entry = {};
    for (const mark of marks) if (item?.[mark] === true) entry[mark] = true;
    if (typeof item?.note === 'string' && item.note) entry.note = item.note;
    entries.set(key, entry);
  }
  return entries;
}

function storageWorks(): boolean {
  try {
    localStorage.setItem('parts-page', '');
    localStorage.removeItem('parts-page');
    return true;
  } catch {
    return false;
  }
}
