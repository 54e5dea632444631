// The page: the list on one side, the assembly on the other, and what leads from one to the other.
import {arrange, isSeeking, Query} from '../list/arrange.ts';
import {download, element} from '../list/dom.ts';
import {Doubt, doubtOf, doubtOfTotal, doubtSigns} from '../list/doubt.ts';
import {formatCell, formatNumber, csv} from '../list/format.ts';
import {Grid, GridColumn} from '../list/grid.ts';
import {fieldOf, massIn, massUnit} from '../list/mass.ts';
import {PartsList, Row, Sum, sum, total, View} from '../list/parts_list.ts';
import type {Model} from '../model/model.ts';
import {Look, Viewer} from '../viewer/viewer.ts';
import {Address, decode, encode} from './address.ts';
import {Columns} from './columns.ts';
import {box, button, menu, press} from './controls.ts';
import {Links} from './links.ts';
import {Panel3d} from './panel_3d.ts';
import {Pictures} from './pictures.ts';
import {printAs, Sheet} from './print.ts';
import {splitter} from './splitter.ts';
import {language, texts} from './texts.ts';
import {Triad} from './triad.ts';
import {Mark, marks, readWork, Work, WorkDocument} from './work.ts';

const addressDelay = 250;
const lowRow = 26, highRow = 44;
const viewOrder = ['parts', 'indented', 'top', 'all'] as const;

export class App {
  readonly viewer: Viewer | null = null;
  private readonly work: Work;
  private readonly columns: Columns;
  private readonly links: Links | null = null;
  private readonly pictures: Pictures | null = null;
  private readonly panel: Panel3d | null = null;
  private readonly grid: Grid;

  private view: string;
  private query: Query = {search: '', filters: new Map(), sort: null, folded: new Set()};
  private shownColumns: Set<string>;
  private order: number[] = [];       // rows of the view, as shown
  private shownSum: Sum = {quantity: 0, mass: null, unknown: 0, assumed: false};  // of these
  private selection = new Set<number>();
  private anchor = -1;                // row that a range of rows begins with
  private step = -1;                  // place of the selected row; -1: all of them
  private hovered = -1;               // row
  private hoveredInstances: number[] = [];
  private dimming = false;
  private hidden = new Set<number>(); // instances
  private addressTimer = 0;
  private filtersShown = false;

  private readonly filterButton = button('filter', texts.filters, () => this.toggleFilters(), {pressed: false});
  private readonly summary = element('div', {class: 'summary', role: 'status'});
  private readonly stepper = element('div', {class: 'stepper'});
  private readonly counted = element('span', {class: 'counted'});
  private readonly nothing = element('div', {class: 'nothing', hidden: true}, texts.nothing, button('clear', texts.showRows, () => this.showAllRows(), {text: true}));
  private readonly allRows = button('clear', texts.showRows, () => this.showAllRows(), {text: true});
  private readonly lost = element('p', {class: 'problem', role: 'status'}, texts.contextLost);
  private readonly facts = element('span', {class: 'facts'});
  private readonly tabs = element('div', {class: 'tabs', role: 'tablist', 'aria-label': texts.views});
  private readonly search = element('input', {type: 'search', placeholder: `${texts.search}  /`, 'aria-label': texts.searchHint});
  private readonly canvas = element('canvas', {tabindex: 0, role: 'application', 'aria-label': texts.model, 'aria-description': texts.modelHelp});
  private readonly stage = element('div', {class: 'stage'}, this.canvas);

  constructor(private readonly list: PartsList, model: Model | null, modelProblem: string) {
    this.work = new Work(list.file);
    this.view = this.firstView();
    if (model) modelProblem = this.tryViewer(model) ?? modelProblem;
    if (this.viewer) {
      this.links = new Links(list, this.viewer.model);
      this.pictures = new Pictures(this.viewer, this.links);
    }
    this.columns = new Columns(list, this.work, this.viewer !== null);
    this.shownColumns = new Set(this.columns.all.map(each => each.id).filter(id => this.columns.shownAtFirst(id)));
    this.grid = new Grid(this.source(), this.actions(), {label: texts.list, filter: texts.filterFor, fold: texts.fold, unfold: texts.unfold, total: texts.total, doubts: texts.doubts,
                                                       filterHelp: texts.filterHelp, filterHints: texts.filterHints});
    if (this.viewer) this.panel = new Panel3d(this.viewer, this, () => this.keepAddress());
    this.lay(modelProblem);
    this.connect();
    this.restore(location.hash);
  }

  private tryViewer(model: Model): string | null {
    try {
      (this as {viewer: Viewer}).viewer = new Viewer(this.canvas, model);
      return null;
    } catch {
      return texts.noWebgl;
    }
  }

  private firstView(): string {
    return viewOrder.find(name => this.list.views.has(name)) ?? [...this.list.views.keys()][0];
  }

  // Layout

  private lay(problem: string): void {
    document.title = `${this.list.file.name} – ${texts.list}`;
    document.documentElement.lang = language;
    const messages = this.list.warnings.length + this.list.conflicts.length;
    const header = element('header', {},
        element('h1', {title: this.list.file.name}, this.list.file.name), this.facts, element('span', {class: 'gap'}),
        messages > 0 && button('warning', texts.messages(messages), () => this.showMessages(), {text: true}),
        menu('export', texts.export, () => this.exportMenu()), button('help', texts.help, () => this.showKeys(), {key: '?'}));
    const listBar = element('div', {class: 'bar'}, this.tabs, element('span', {class: 'gap'}), this.search,
        this.filterButton, menu('columns', texts.columns, () => this.columnMenu()));
    const listSide = element('section', {class: 'side list', 'aria-label': texts.list}, listBar, this.grid.root, this.nothing,
        element('footer', {}, this.counted, this.allRows, this.summary, this.stepper));
    const modelSide = element('section', {class: 'side model', 'aria-label': texts.model}, this.panel?.bar, this.stage);
    if (problem) this.stage.append(element('p', {class: 'problem', role: 'alert'}, problem));
    if (this.viewer) this.stage.append(new Triad(this.viewer).root);
    const main = element('main', {}, listSide, splitter(texts.splitter), modelSide);
    document.body.replaceChildren(header, main);
    this.layTabs();
  }

  private layTabs(): void {
    const names = viewOrder.filter(name => this.list.views.has(name));
    this.tabs.replaceChildren(...names.map(name => element('button', {
      type: 'button', role: 'tab', 'aria-selected': String(name === this.view), tabindex: name === this.view ? 0 : -1, 'data-view': name,
      onclick: () => this.chooseView(name)}, texts[name])));
  }

  private connect(): void {
    document.addEventListener('keydown', event => this.key(event));
    this.search.addEventListener('input', () => this.seek());
    this.tabs.addEventListener('keydown', event => this.tabKey(event));
    addEventListener('hashchange', () => this.restore(location.hash));
    printAs(() => this.sheet());
    if (!this.viewer) return;
    this.viewer.onHover = instance => this.hoverInstance(instance);
    this.viewer.onClick = (instance, event) => this.clickInstance(instance, event.ctrlKey || event.metaKey);
    this.viewer.onMove = () => { this.panel?.showView(); this.keepAddress(); };
    this.canvas.addEventListener('webglcontextlost', event => { event.preventDefault(); this.stage.append(this.lost); });
    this.canvas.addEventListener('webglcontextrestored', () => this.lost.remove());
    const colors = () => this.viewer!.setPalette(palette());
    matchMedia('(prefers-color-scheme: dark)').addEventListener('change', colors);
    colors();
  }

  // The list

  private get shownView(): View { return this.list.views.get(this.view)!; }
  get rows(): Row[] { return this.shownView.rows; }

  private source() {
    const rowOf = (at: number) => this.rows[this.order[at]];
    const shown = this.columns.all.filter(each => this.shownColumns.has(each.id));
    const isTree = this.rows.some(row => row.children.length > 0);
    return {
      columns: shown, rowCount: this.order.length, rowHeight: shown.some(each => each.kind === 'picture') ? highRow : lowRow, isTree,
      text: (at: number, column: GridColumn) => this.text(rowOf(at), column.id),
      checked: (at: number, column: GridColumn) => this.work.marked(rowOf(at).key, column.id as Mark),
      picture: (at: number, show: (address: string) => void) => this.pictures?.of(rowOf(at), show),
      tree: (at: number) => ({level: rowOf(at).level, unfolded: rowOf(at).children.length ? !this.query.folded.has(this.order[at]) : null}),
      selected: (at: number) => this.selection.has(this.order[at]),
      hovered: (at: number) => this.order[at] === this.hovered,
      sort: (column: GridColumn) => this.query.sort?.id !== column.id ? 'none' as const : this.query.sort.descending ? 'descending' as const : 'ascending' as const,
      total: (column: GridColumn) => this.total(column.id),
      doubt: (at: number, column: GridColumn) => this.doubt(rowOf(at), column.id),
      totalDoubt: (column: GridColumn) => fieldOf(column.id) === 'totalMass' ? this.totalDoubt() : null,
      filter: (column: GridColumn) => this.query.filters.get(column.id) ?? ''};
  }

  private actions() {
    return {
      hover: (at: number) => this.hoverRow(at < 0 ? -1 : this.order[at]),
      activate: (at: number, how: {toggle: boolean; extend: boolean; step: number}) => this.activate(this.order[at], how),
      fold: (at: number, unfolded: boolean) => this.fold(this.order[at], unfolded),
      sort: (column: GridColumn) => this.sortBy(column.id),
      check: (at: number, column: GridColumn) => { this.work.toggle(this.rows[this.order[at]].key, column.id as Mark); this.worked(); },
      note: (at: number, _: GridColumn, text: string) => { this.work.setNote(this.rows[this.order[at]].key, text); this.worked(); },
      filter: (column: GridColumn, text: string) => { this.query.filters.set(column.id, text); this.arrange(true); }};
  }

  private text(row: Row, id: string): string {
    return formatCell(this.columns.cell(row, id), language, this.columns.decimals(id));
  }

  private doubt(row: Row, id: string): Doubt | null {
    return doubtOf(row, id, this.columns.cell(row, id));
  }

  private totalDoubt(): Doubt | null {
    return this.shownSum.mass === null ? null : doubtOfTotal(this.shownSum);
  }

  private total(id: string): string {
    if ((marks as string[]).includes(id)) return `${this.order.filter(i => this.work.marked(this.rows[i].key, id as Mark)).length} / ${this.order.length}`;
    if (fieldOf(id) === 'quantity') return formatNumber(this.shownSum.quantity, language);
    if (fieldOf(id) !== 'totalMass') return '';
    const {mass} = this.shownSum, inUnit = mass === null ? null : massIn(mass, this.columns.unit(id));
    return inUnit === null ? '' : formatNumber(inUnit, language, this.columns.decimals(id));
  }

  private arrange(fromTop: boolean): void {
    this.order = arrange(this.rows, this.columns.all.filter(each => this.shownColumns.has(each.id)), this.query, (row, id) => this.columns.cell(this.rows[row], id), language,
                         id => this.columns.decimals(id));
    this.shownSum = total(this.shownView, new Set(this.order), this.list.paths);
    this.grid.show(this.source(), fromTop);
    this.nothing.hidden = this.order.length > 0 || this.rows.length === 0;
    const {mass, unknown, assumed} = this.shownSum;
    this.allRows.hidden = !isSeeking(this.query);
    this.counted.textContent = [texts.shown(this.order.length, this.rows.length), ...mass === null ? [] : doubts(unknown, assumed)].join(' · ');
    this.showSummary();
    this.keepAddress();
  }

  private worked(): void {
    this.grid.drawFoot();
    if (!this.work.kept) this.summary.textContent = texts.notKept;
  }

  private chooseView(name: string): void {
    const keys = new Set([...this.selection].map(i => this.rows[i].key));
    this.view = name;
    this.query.folded.clear();
    this.selection = new Set(this.rows.flatMap((row, i) => keys.has(row.key) ? [i] : []));
    this.step = -1;
    this.hovered = -1;
    this.layTabs();
    this.arrange(true);
    this.applyLooks();
    this.showSelection();
  }

  private seek(): void {
    this.query.search = this.search.value;
    this.arrange(true);
  }

  private showAllRows(): void {
    this.query.filters.clear();
    this.search.value = '';
    this.seek();
    const [first] = this.selection;
    if (first !== undefined) this.revealRow(first);
    this.search.focus();
  }

  private sortBy(id: string): void {
    const {sort} = this.query;
    this.query.sort = sort?.id !== id ? {id, descending: false} : sort.descending ? null : {id, descending: true};
    this.arrange(true);
  }

  private fold(row: number, unfolded: boolean): void {
    if (unfolded) this.query.folded.delete(row);
    else this.query.folded.add(row);
    this.arrange(false);
  }

  private toggleFilters(): void {
    this.filtersShown = !this.filtersShown;
    this.showFilters();
    if (this.filtersShown) this.grid.root.querySelector<HTMLElement>('.filters input')?.focus();
    else if ([...this.query.filters.values()].some(Boolean)) {
      this.query.filters.clear();
      this.arrange(true);
    }
  }

  private showFilters(): void {
    this.grid.showFilters(this.filtersShown);
    press(this.filterButton, this.filtersShown);
  }

  private columnMenu() {
    return this.columns.all.map(column => {
      const tick = element('input', {type: 'checkbox', onchange: () => {
        if (tick.checked) this.shownColumns.add(column.id);
        else this.shownColumns.delete(column.id);
        this.arrange(false);
      }});
      tick.checked = this.shownColumns.has(column.id);
      return element('label', {}, tick, column.caption);
    });
  }

  // From one to the other

  private hoverRow(row: number): void {
    if (row === this.hovered) return;
    this.hovered = row;
    this.hoveredInstances = row < 0 || !this.links ? [] : this.links.instances(this.rows[row]);
    this.showMarks();
  }

  private hoverInstance(instance: number): void {
    this.hovered = instance < 0 ? -1 : this.links!.rowOf(this.rows, instance)?.row ?? -1;
    this.hoveredInstances = instance < 0 ? [] : [instance];
    this.canvas.style.cursor = instance < 0 ? '' : 'pointer';
    this.canvas.title = this.hovered < 0 ? '' : this.text(this.rows[this.hovered], 'partName') || this.rows[this.hovered].key;
    this.showMarks();
  }

  private clickInstance(instance: number, toggle: boolean): void {
    const found = instance < 0 ? null : this.links!.rowOf(this.rows, instance);
    if (!found) {
      this.select(new Set(), -1);
      if (instance >= 0) this.summary.textContent = texts.noRow;
      return;
    }
    this.anchor = found.row;
    this.select(toggle ? flipped(this.selection, found.row) : new Set([found.row]), -1);
    this.revealRow(found.row);
  }

  private revealRow(row: number): void {
    for (let at = this.rows[row].parent; at >= 0; at = this.rows[at].parent) this.query.folded.delete(at);
    if (!this.order.includes(row)) this.arrange(false);
    const at = this.order.indexOf(row);
    if (at >= 0) this.grid.reveal(at);
  }

  private activate(row: number, how: {toggle: boolean; extend: boolean; step: number}): void {
    const again = !how.toggle && !how.extend && this.selection.size === 1 && this.selection.has(row);
    if (again) {
      this.stepBy(how.step);
      return;
    }
    const chosen = how.toggle ? flipped(this.selection, row) : how.extend ? this.range(row) : new Set([row]);
    if (!how.extend) this.anchor = row;
    this.dimming = chosen.size > 0;
    this.select(chosen, -1);
    this.fitSelection();
  }

  private range(row: number): Set<number> {
    const [from, to] = [this.order.indexOf(this.anchor), this.order.indexOf(row)].sort((a, b) => a - b);
    return new Set(this.order.slice(Math.max(0, from), to + 1));
  }

  /// Goes on to another place of the selected row; after the last all of them are shown again.
  private stepBy(by: number): void {
    const count = this.selectedPlaces().length;
    if (this.selection.size !== 1 || count < 2) {
      this.fitSelection();
      return;
    }
    this.dimming = true;
    this.select(this.selection, (this.step + 1 + by + count + 1) % (count + 1) - 1);
    this.fitSelection();
  }

  private select(rows: Set<number>, step: number): void {
    this.selection = rows;
    this.step = step;
    if (!rows.size) this.dimming = false;
    this.applyLooks();
    this.showSelection();
    this.keepAddress();
  }

  private selectedPlaces(): number[][] {
    return this.links ? [...this.selection].flatMap(row => this.links!.places(this.rows[row])) : [];
  }

  private selectedInstances(): number[] {
    const places = this.selectedPlaces();
    return this.step >= 0 ? places[this.step] ?? [] : places.flat();
  }

  private fitSelection(): void {
    const instances = this.selectedInstances();
    if (instances.length) this.viewer?.fit(instances);
  }

  private showMarks(): void {
    this.viewer?.mark(this.dimming ? [] : this.selectedInstances(), this.hoveredInstances);
    this.grid.mark();
  }

  private showSelection(): void {
    this.showMarks();
    this.showSummary();
    this.showStepper();
  }

  private showSummary(): void {
    const shown = new Set(this.order), isHidden = isSeeking(this.query) && [...this.selection].some(row => !shown.has(row));
    const {quantity, mass, unknown, assumed} = sum(this.shownView, this.selection, this.list.paths);
    const count = (n: number) => formatNumber(n, language);
    const unit = massUnit(this.list.columns);
    const facts = this.selection.size ? [texts.selectedRows(this.selection.size), `${count(quantity)} ${texts.pieces}`,
                                         ...mass === null ? [] : [`${count(massIn(mass, unit)!)} ${unit}`, ...doubts(unknown, assumed)],
                                         ...isHidden ? [texts.hiddenRows] : []] : [];
    this.summary.textContent = facts.join(' · ');
  }

  private showStepper(): void {
    if (!this.selection.size) return this.stepper.replaceChildren();
    const places = this.selectedPlaces().length;
    const focused = this.stepper.contains(document.activeElement) ? [...this.stepper.children].indexOf(document.activeElement!) : -1;
    const steps = this.selection.size === 1 && places > 1 ? [
      button('previous', texts.previous, () => this.stepBy(-1)),
      element('span', {class: 'place'}, this.step < 0 ? texts.places(places) : texts.occurrence(this.step + 1, places)),
      button('next', texts.next, () => this.stepBy(1))] : [];
    this.stepper.replaceChildren(...steps, button('clear', texts.clear, () => this.select(new Set(), -1), {key: 'Esc'}));
    (this.stepper.children[focused] as HTMLElement | undefined)?.focus();
  }

  // What is visible

  isolate(): void {
    const kept = new Set(this.selectedInstances());
    if (!kept.size) return;
    this.hidden = new Set(this.viewer!.model.instances.flatMap((_, i) => kept.has(i) ? [] : [i]));
    this.applyLooks();
    this.viewer!.fit(kept);
    this.keepAddress();
  }

  hide(): void {
    for (const instance of this.selectedInstances()) this.hidden.add(instance);
    this.select(new Set(), -1);
  }

  showAll(): void {
    this.hidden.clear();
    this.setDim(false);
  }

  dim(): boolean { return this.dimming; }

  setDim(on: boolean): void {
    this.dimming = on && this.selection.size > 0;
    this.applyLooks();
    this.showMarks();
    this.keepAddress();
  }

  private applyLooks(): void {
    const bright = this.dimming ? new Set(this.selectedInstances()) : null;
    this.viewer?.setLooks(i => this.hidden.has(i) ? Look.Hidden : bright && !bright.has(i) ? Look.Ghost : Look.Shown);
    this.panel?.sync();
    this.showFacts();
  }

  private showFacts(): void {
    const stats = this.viewer?.stats();
    this.facts.textContent = stats ? `${texts.instances(stats.instances)} · ${texts.triangles(stats.triangles.toLocaleString(language))}` : '';
  }

  // The address

  private keepAddress(): void {
    clearTimeout(this.addressTimer);
    this.addressTimer = window.setTimeout(() => {
      this.addressTimer = 0;
      history.replaceState(null, '', `#${encode(this.address())}`);
    }, addressDelay);
  }

  private address(): Address {
    const {viewer, query} = this;
    return {
      view: this.view, search: query.search, filters: [...query.filters], sort: query.sort,
      columns: this.columns.all.map(each => each.id).filter(id => this.shownColumns.has(id) !== this.columns.shownAtFirst(id)),
      folded: [...query.folded], selected: [...this.selection], step: this.step, dim: this.dimming, hidden: [...this.hidden],
      perspective: viewer?.perspective ?? true, edges: viewer?.edges ?? true, explode: viewer?.explode ?? 0, section: viewer?.section ?? null,
      pose: viewer?.pose ?? null};
  }

  private restore(hash: string): void {
    const address = decode(hash);
    this.view = this.list.views.has(address.view) ? address.view : this.firstView();
    const inView = (row: number) => row < this.rows.length;
    this.query = {search: address.search, filters: new Map(address.filters), sort: address.sort, folded: new Set(address.folded.filter(inView))};
    this.search.value = address.search;
    const changed = new Set(address.columns);
    this.shownColumns = new Set(this.columns.all.map(each => each.id).filter(id => this.columns.shownAtFirst(id) !== changed.has(id)));
    this.filtersShown = address.filters.length > 0;
    this.selection = new Set(address.selected.filter(inView));
    [this.step, this.dimming] = [address.step, address.dim && this.selection.size > 0];
    this.restoreModel(address);
    this.layTabs();
    this.arrange(true);
    this.showFilters();
    this.applyLooks();
    this.showSelection();
    const [first] = this.selection;
    if (first !== undefined) this.revealRow(first);
  }

  private restoreModel(address: Address): void {
    const {viewer} = this;
    if (!viewer) return;
    this.hidden = new Set(address.hidden.filter(i => i < viewer.model.instances.length));
    Object.assign(viewer, {perspective: address.perspective, edges: address.edges, explode: address.explode, section: address.section});
    if (address.pose) viewer.pose = address.pose;
    else viewer.home();
  }

  // Files and boxes

  private exportMenu() {
    const entry = (caption: string, act: () => void) => element('button', {type: 'button', onclick: act}, caption);
    return [entry(texts.exportCsv, () => this.exportCsv()), entry(texts.exportWork, () => this.exportWork()), entry(texts.importWork, () => this.importWork()),
            this.viewer && entry(texts.exportPicture, () => this.exportPicture()), entry(texts.print, () => window.print())];
  }

  private get stem(): string { return this.list.file.name.replace(/\.[^.]*$/, '') || 'parts'; }

  private exportCsv(): void {
    const columns = this.columns.all.filter(each => this.shownColumns.has(each.id) && each.kind !== 'picture');
    const records = [columns.map(each => each.caption), ...this.order.map(i => columns.map(each => this.columns.cell(this.rows[i], each.id)))];
    const [delimiter, point] = language === 'cs' ? [';', ','] : [',', '.'];
    download(`${this.stem}.csv`, 'text/csv', `\ufeff${csv(records, delimiter, point)}`);
  }

  private exportWork(): void {
    download(`${this.stem}-work.json`, 'application/json', this.work.export(encode(this.address())));
  }

  private exportPicture(): void {
    const [, base64] = this.viewer!.picture().split(',');
    download(`${this.stem}.png`, 'image/png', Uint8Array.from(atob(base64), each => each.charCodeAt(0)));
  }

  private importWork(): void {
    const input = element('input', {type: 'file', accept: '.json,application/json'});
    input.addEventListener('change', async () => this.takeWork(await input.files![0].text()));
    input.click();
  }

  private takeWork(text: string): void {
    try {
      this.offerWork(readWork(text));
    } catch (error) {
      box(texts.importWork, texts.close, [element('p', {}, texts.badWork + (error as Error).message)]);
    }
  }

  // Nothing that is marked here is lost without being asked for.
  private offerWork(document: WorkDocument): void {
    const items = new Set([...this.list.views.values()].flatMap(({rows}) => rows.map(row => row.key)));
    const [known, unknown] = [true, false].map(isKnown => [...document.entries.keys()].filter(key => items.has(key) === isKnown));
    const merge = () => {
      this.work.merge(document, key => items.has(key));
      this.arrange(false);
      box(texts.importWork, texts.close, [element('p', {}, texts.taken(known.length, unknown.length)),
                                          element('div', {class: 'lines', tabindex: 0}, element('ul', {}, ...unknown.map(key => element('li', {}, key))))]);
    };
    const replace = () => {
      this.work.replace(document);
      this.restore(document.state);
    };
    if (!this.work.isOf(document)) {
      box(texts.importWork, texts.close, [element('p', {}, texts.otherFile(document.name, document.entries.size, known.length))], known.length ? [[texts.takeOver, merge]] : []);
    } else if (this.work.wouldLose(document)) {
      box(texts.importWork, texts.close, [element('p', {}, texts.wouldLose)], [[texts.add, merge], [texts.replace, replace]]);
    } else {
      replace();
    }
  }

  private sheet(): Sheet {
    const columns = this.columns.all.filter(each => this.shownColumns.has(each.id) && each.kind !== 'picture');
    const signed = (doubt: Doubt | null, text: string) => [...doubt ? [doubtSigns[doubt]] : [], ...text ? [text] : []].join(' ');
    const cells = this.order.map(i => columns.map(({id, kind}) => signed(this.doubt(this.rows[i], id), this.text(this.rows[i], id) || (kind === 'check' ? '☐' : ''))));
    return {title: this.list.file.name, picture: this.viewer?.drawn() ?? null, columns, cells, levels: this.order.map(i => this.rows[i].level),
            totals: columns.map(({id}, i) => signed(fieldOf(id) === 'totalMass' ? this.totalDoubt() : null, this.total(id) || (i === 0 ? texts.total : ''))),
            legend: (Object.keys(doubtSigns) as Doubt[]).map(each => `${doubtSigns[each]} ${texts.doubts[each]}`).join(' · ')};
  }

  private showMessages(): void {
    const part = (title: string, lines: string[]) => lines.length ? [element('h3', {}, title), element('ul', {}, ...lines.map(line => element('li', {}, line)))] : [];
    box(texts.messages(this.list.warnings.length + this.list.conflicts.length), texts.close,
        [element('div', {class: 'lines', tabindex: 0}, ...part(texts.conflicts, this.list.conflicts), ...part(texts.warnings, this.list.warnings))]);
  }

  private showKeys(): void {
    box(texts.help, texts.close, [element('dl', {}, ...texts.keys.flatMap(([key, what]) => [element('dt', {}, ...key.split(' ').map(each => each === '…' ? each : element('kbd', {}, each))), element('dd', {}, what)]))]);
  }

  // Keys

  private key(event: KeyboardEvent): void {
    const typing = event.target instanceof HTMLInputElement && event.target.type !== 'checkbox' && event.target.type !== 'range' || event.target instanceof HTMLSelectElement;
    if (event.ctrlKey || event.metaKey || event.altKey || document.querySelector('dialog')) return;
    if (event.key === 'Escape') return this.escape(event);
    if (typing) return;
    if (event.key === '/') this.search.focus();
    else if (event.key === '?') this.showKeys();
    else if (!this.panel?.key(event.key)) return;
    event.preventDefault();
  }

  private escape(event: KeyboardEvent): void {
    if (event.target === this.search && this.search.value) {
      this.search.value = '';
      this.seek();
    } else if (event.target instanceof HTMLInputElement) {
      this.grid.root.focus();
    } else {
      this.select(new Set(), -1);
    }
  }

  private tabKey(event: KeyboardEvent): void {
    const by = ({ArrowLeft: -1, ArrowRight: 1} as Record<string, number>)[event.key];
    if (!by) return;
    const names = [...this.tabs.children].map(each => (each as HTMLElement).dataset.view!);
    this.chooseView(names[(names.indexOf(this.view) + by + names.length) % names.length]);
    this.tabs.querySelector<HTMLElement>('[aria-selected=true]')!.focus();
    event.preventDefault();
  }
}

const doubts = (unknown: number, assumed: boolean) => [...unknown ? [texts.unknownMass(unknown)] : [], ...assumed ? [texts.assumed] : []];

function flipped(set: Set<number>, value: number): Set<number> {
  const result = new Set(set);
  if (!result.delete(value)) result.add(value);
  return result;
}

// The 3D picture uses the colours of the style sheet, light or dark.
function palette() {
  const style = getComputedStyle(document.documentElement);
  const color = (name: string) => (style.getPropertyValue(name).match(/\d+/g) ?? []).map(each => Number(each) / 255);
  return {select: color('--select'), hover: color('--hover'), line: color('--line'), cut: color('--cut')};
}
