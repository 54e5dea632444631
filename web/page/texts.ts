// What the page says, in English and Czech.

const english = {
  parts: 'Parts', indented: 'Indented', top: 'Top level', all: 'All items',
  views: 'View of the list', search: 'Search', searchHint: 'Search in the columns shown', filters: 'Filters', columns: 'Columns',
  list: 'Parts list', total: 'Total', fold: 'Fold', unfold: 'Unfold', filterFor: (caption: string) => `Filter: ${caption}`,
  filterHelp: 'contains: M5   is: =M5   is not: !=M5   numbers: >2   <=5   1..3   boxes: yes, no',
  filterHints: {text: 'M5  =M5', number: '>2  1..3', check: 'yes / no', note: '', picture: ''}, hiddenRows: 'hidden by search or filters',
  noRow: 'This part is in no row of the list.',
  thumbnail: 'Picture', ordered: 'Ordered', made: 'Made', mounted: 'Mounted', note: 'Note',
  model: 'Assembly in 3D', modelHelp: 'Arrow keys turn, Shift with arrow keys moves, plus and minus zoom, F fits.',
  fit: 'Fit', view: 'View direction', iso: 'Isometric', front: 'Front', back: 'Back', left: 'Left', right: 'Right', topView: 'Top',
  bottom: 'Bottom', perspective: 'Perspective', edges: 'Edges', section: 'Section', sectionAxis: 'Section across',
  sectionAt: 'Place of the section', flip: 'Other side', explode: 'Explode', isolate: 'Isolate', hide: 'Hide', dim: 'Dim the others',
  showAll: 'Show all', export: 'Export', exportCsv: 'List as CSV', exportWork: 'Marks and notes as JSON', importWork: 'Read marks and notes …',
  exportPicture: 'Picture as PNG', print: 'Print', help: 'Keys', close: 'Close', messages: (n: number) => n === 1 ? '1 message' : `${n} messages`,
  conflicts: 'Conflicts', warnings: 'Warnings', splitter: 'Width of the list',
  occurrence: (n: number, of: number) => `${n} of ${of}`, previous: 'Previous occurrence', next: 'Next occurrence',
  selectedRows: (n: number) => n === 1 ? '1 row selected' : `${n} rows selected`, pieces: 'pcs', clear: 'Clear the selection',
  places: (n: number) => n === 1 ? '1 place' : `${n} places`, unknownMass: (n: number) => `at least: ${n} without mass`, assumed: 'materials assumed',
  doubts: {assumed: 'material or density assumed', unmeasured: 'cannot be measured', atLeast: 'at least: a mass is missing'},
  shown: (n: number, of: number) => n === of ? `${of} rows` : `${n} of ${of} rows`,
  nothing: 'No row fits the search and the filters.', showRows: 'Show all rows',
  instances: (n: number) => n === 1 ? '1 part' : `${n} parts`, triangles: (n: string) => `${n} triangles`,
  noModel: 'This page has no model.', badModel: 'The model cannot be shown: ', noWebgl: 'This browser cannot draw in 3D (WebGL 2 is missing). The list works all the same.',
  badList: 'The list cannot be read: ', badWork: 'These marks cannot be read: ', 
  otherFile: (name: string, items: number, here: number) => `These marks belong to another file: ${name}. They are of ${items} items, ${here} of them are in this list.`,
  takeOver: 'Take over by part number', add: 'Add to them', replace: 'Replace them',
  wouldLose: 'Some of the marks and notes that are here are not in this file.',
  taken: (n: number, missing: number) => `${n === 1 ? '1 item was' : `${n} items were`} taken over` + (missing ? `, ${missing === 1 ? '1 is' : `${missing} are`} not in this list:` : '.'),
  notKept: 'The browser does not keep marks and notes for this page; export them before you close it.',
  contextLost: 'The browser has taken the 3D picture away; it comes back by itself.',
  keys: [['↑ ↓ PgUp PgDn Home End', 'move in the list'], ['Enter', 'select and fit; again: the next occurrence'], ['Shift+Enter', 'the previous occurrence'],
         ['Space', 'add to the selection; tick the box'], ['← →', 'unfold, fold; cell by cell (Ctrl: always)'], ['/', 'search'], ['Esc', 'clear selection and search'],
         ['M5 =M5 !=M5', 'in a filter: contains, is, is not'], ['>2 <=5 1..3', 'in a filter, for numbers'], ['yes no', 'in a filter, for boxes'],
         ['F', 'fit'], ['1 … 7', 'isometric, front, back, left, right, top, bottom'], ['P', 'perspective or parallel'], ['E', 'edges'], ['X', 'section'],
         ['I', 'isolate'], ['H', 'hide'], ['G', 'dim the others'], ['A', 'show all'], ['≈ – ≥', 'a material or density is assumed; not measured; at least'], ['?', 'this list'],
         ['Mouse', 'left: turn; right, middle or Shift: move; wheel: zoom; Ctrl+click: add']] as [string, string][],
};

export type Texts = typeof english;

const plural = (n: number, one: string, few: string, many: string) => `${n} ${n === 1 ? one : n >= 2 && n <= 4 ? few : many}`;

const czech: Texts = {
  parts: 'Díly', indented: 'Struktura', top: 'Nejvyšší úroveň', all: 'Všechny položky',
  views: 'Pohled na seznam', search: 'Hledat', searchHint: 'Hledat v zobrazených sloupcích', filters: 'Filtry', columns: 'Sloupce',
  list: 'Kusovník', total: 'Celkem', fold: 'Sbalit', unfold: 'Rozbalit', filterFor: caption => `Filtr: ${caption}`,
  filterHelp: 'obsahuje: M5   je: =M5   není: !=M5   čísla: >2   <=5   1..3   políčka: ano, ne',
  filterHints: {text: 'M5  =M5', number: '>2  1..3', check: 'ano / ne', note: '', picture: ''}, hiddenRows: 'skryto hledáním nebo filtry',
  noRow: 'Tento díl není v žádném řádku seznamu.',
  thumbnail: 'Náhled', ordered: 'Objednáno', made: 'Vyrobeno', mounted: 'Namontováno', note: 'Poznámka',
  model: 'Sestava ve 3D', modelHelp: 'Šipky otáčejí, Shift se šipkami posouvá, plus a minus přibližují a oddalují, F zobrazí vše.',
  fit: 'Zobrazit vše', view: 'Směr pohledu', iso: 'Izometrie', front: 'Zepředu', back: 'Zezadu', left: 'Zleva', right: 'Zprava', topView: 'Shora',
  bottom: 'Zdola', perspective: 'Perspektiva', edges: 'Hrany', section: 'Řez', sectionAxis: 'Řez kolmo na', sectionAt: 'Poloha řezu', flip: 'Druhá strana',
  explode: 'Rozložení', isolate: 'Izolovat', hide: 'Skrýt', dim: 'Ztlumit ostatní', showAll: 'Odkrýt vše', export: 'Export',
  exportCsv: 'Seznam jako CSV', exportWork: 'Značky a poznámky jako JSON', importWork: 'Načíst značky a poznámky…', exportPicture: 'Obrázek jako PNG',
  print: 'Tisk', help: 'Klávesy', close: 'Zavřít', messages: n => plural(n, 'zpráva', 'zprávy', 'zpráv'), conflicts: 'Rozpory', warnings: 'Upozornění', splitter: 'Šířka seznamu',
  occurrence: (n, of) => `${n}. z ${of}`, previous: 'Předchozí výskyt', next: 'Další výskyt',
  selectedRows: n => `Vybráno: ${plural(n, 'řádek', 'řádky', 'řádků')}`, pieces: 'ks', clear: 'Zrušit výběr',
  places: n => plural(n, 'místo', 'místa', 'míst'), unknownMass: n => `nejméně: ${n} bez hmotnosti`, assumed: 'předpokládaný materiál',
  doubts: {assumed: 'předpokládaný materiál nebo hustota', unmeasured: 'nelze změřit', atLeast: 'nejméně: některá hmotnost chybí'},
  shown: (n, of) => n === of ? plural(of, 'řádek', 'řádky', 'řádků') : `${n} z ${of} řádků`,
  nothing: 'Hledání a filtrům neodpovídá žádný řádek.', showRows: 'Zobrazit všechny řádky',
  instances: n => plural(n, 'díl', 'díly', 'dílů'), triangles: n => `${n} trojúhelníků`,
  noModel: 'Tato stránka neobsahuje model.', badModel: 'Model nelze zobrazit: ', noWebgl: 'Tento prohlížeč neumí kreslit ve 3D (chybí WebGL 2). Seznam přesto funguje.',
  badList: 'Seznam nelze načíst: ', badWork: 'Tyto značky nelze načíst: ', 
  otherFile: (name, items, here) => `Tyto značky patří k jinému souboru: ${name}. Týkají se ${items} položek, z toho v tomto seznamu: ${here}.`,
  takeOver: 'Převzít podle čísla dílu', add: 'Přidat k nim', replace: 'Nahradit je',
  wouldLose: 'Některé zdejší značky a poznámky v tomto souboru nejsou.',
  taken: (n, missing) => `Převzato: ${plural(n, 'položka', 'položky', 'položek')}` + (missing ? `; v tomto seznamu ${missing === 1 ? 'není' : 'nejsou'}: ${missing}` : '.'),
  notKept: 'Prohlížeč pro tuto stránku značky a poznámky neuchová; než ji zavřete, exportujte je.',
  contextLost: 'Prohlížeč 3D obraz odebral; obnoví se sám.',
  keys: [['↑ ↓ PgUp PgDn Home End', 'pohyb v seznamu'], ['Enter', 'vybrat a přiblížit; znovu: další výskyt'], ['Shift+Enter', 'předchozí výskyt'],
         ['Mezerník', 'přidat k výběru; zaškrtnout'], ['← →', 'rozbalit, sbalit; po buňkách (Ctrl: vždy)'], ['/', 'hledat'], ['Esc', 'zrušit výběr a hledání'],
         ['M5 =M5 !=M5', 've filtru: obsahuje, je, není'], ['>2 <=5 1..3', 've filtru, pro čísla'], ['ano ne', 've filtru, pro políčka'],
         ['F', 'zobrazit vše'], ['1 … 7', 'izometrie, zepředu, zezadu, zleva, zprava, shora, zdola'], ['P', 'perspektiva nebo rovnoběžné promítání'], ['E', 'hrany'],
         ['X', 'řez'], ['I', 'izolovat'], ['H', 'skrýt'], ['G', 'ztlumit ostatní'], ['A', 'odkrýt vše'], ['≈ – ≥', 'předpokládaný materiál nebo hustota; nezměřeno; nejméně'], ['?', 'tento přehled'],
         ['Myš', 'levé tlačítko: otáčení; pravé, prostřední nebo Shift: posun; kolečko: zvětšení; Ctrl+klik: přidat']],
};

// The names that `parts` gives its columns are shown in the reader's language, a caption of the user's own as it is.
const czechCaptions: Record<string, string> = {
  'Item': 'Pozice', 'Part Number': 'Číslo dílu', 'Part Name': 'Název', 'Description': 'Popis', 'Quantity': 'Počet',
  'Quantity per parent': 'Počet v nadřazené', 'Mass': 'Hmotnost', 'Total mass': 'Hmotnost celkem', 'Volume': 'Objem', 'Area': 'Plocha',
  'Density': 'Hustota', 'Material': 'Materiál', 'Size': 'Rozměry', 'BOM Structure': 'Struktura kusovníku', 'Level': 'Úroveň', 'Path': 'Cesta',
  'Used in': 'Použito v', 'Bodies': 'Tělesa', 'Document': 'Dokument', 'Thumbnail': 'Náhled',
};

export const language: 'en' | 'cs' = navigator.language.toLowerCase().startsWith('cs') ? 'cs' : 'en';
export const texts: Texts = language === 'cs' ? czech : english;

export function captionOf(column: {caption: string}): string {
  const [, name, unit] = /^(.*?)( \[[^\]]*\])?$/s.exec(column.caption)!;
  return language === 'cs' ? (czechCaptions[name] ?? name) + (unit ?? '') : column.caption;
}
