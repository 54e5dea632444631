// States of a host, for the page that draws them.
'use strict';
const {brackets} = require('./assemblies');

let keys = 0;
const input = (kind, id, more = {}) => ({kind, key: ++keys, id, caption: id, visible: true, enabled: true, ...more});
const icon = name => `/resources/Resources/${name}/`;
const control = (command, caption, picture, more = {}) => ({command, caption, tooltip: `What ${caption} does`, icon: icon(picture), visible: true, promoted: true, enabled: true, ...more});

function emptyState() {
  const panels = [
    {id: 'Parts', caption: 'Parts', native: false, controls: [
      control('List', 'List', 'BOM'), control('Edit', 'Edit properties', 'Properties'), control('Move', 'Move', 'MoveComponentToOrigin', {promoted: false}),
      control('Secret', 'Secret', 'Properties', {visible: false}), control('Off', 'Off', 'ZipFolder', {promoted: false, enabled: false})]},
    {id: 'Help', caption: 'Help', native: false, controls: [control('Capture', 'Capture the screen', 'CaptureScreen')]},
    {id: 'Hollow', caption: 'Hollow', native: true, controls: []}];
  return {
    document: {name: 'brackets', file: 'brackets.step', saveAs: '', changed: false, given: 'brackets.step', data: '/data'},
    addin: {name: 'Example', running: true},
    workspaces: [
      {id: 'Design', caption: 'Design', active: true, tabs: [{id: 'Solid', caption: 'Solid', panels}, {id: 'Tools', caption: 'Tools', panels: [{...panels[1], id: 'Help2'}]}]},
      {id: 'Render', caption: 'Render', active: false, tabs: []}],
    commands: [control('Loose', 'Loose command', 'OpenLocalFile')],
    tree: treeOf(brackets()), selection: [], dialog: null, message: null, fileDialog: null, progress: null, busy: null,
    palettes: [], opened: [], log: [], model: {revision: 1, document: 1}};
}

/// The components of a drawn assembly, each once.
function treeOf({tree}) {
  const components = [{name: 'brackets', partNumber: 'brackets', children: []}], byName = new Map();
  const add = ({name, partNumber, children}) => {
    if (!byName.has(name)) {
      byName.set(name, components.push({name, partNumber, children: []}) - 1);
      components[byName.get(name)].children = children.map((each, i) => [add(each), i + 1, false]);
    }
    return byName.get(name);
  };
  components[0].children = tree.map((each, i) => [add(each), i + 1, i === 3]);
  return {components};
}

const dialog = (inputs, more = {}) => ({
  command: 'List', caption: 'List', width: 0, height: 0, ok: {text: 'OK', visible: true, enabled: true, why: ''}, cancel: {text: 'Cancel'}, inputs, ...more});

/// A dialog with an input of every kind.
function everyKind() {
  const items = (...names) => names.map((name, i) => ({name, selected: i === 0}));
  return dialog([
    input('Tab', 'first', {caption: 'First', active: true, inputs: [
      input('Selection', 'component', {caption: 'Component', active: true, prompt: 'Pick a component', picked: [], minimum: 1, maximum: 0, value: ''}),
      input('StringValue', 'name', {caption: 'Name', value: 'bolt', tooltip: 'How it is called'}),
      input('StringValue', 'fixed', {caption: 'Fixed', value: 'as it is', readOnly: true}),
      input('TextBox', 'note', {caption: 'Note', value: 'two\nlines', lines: 3}),
      input('TextBox', 'said', {caption: '', value: 'See here', formatted: '<b>See</b> <a href="https://example.com/x">here</a><script>document.title = "broken"</script><img src=x onerror="document.title=1"> &lt;i&gt;', readOnly: true}),
      input('CheckBox', 'ground', {caption: 'Ground it', value: false}),
      input('DropDown', 'order', {caption: 'Order', items: items('Ascending', 'Descending'), value: 'Ascending'}),
      input('ButtonRow', 'structure', {caption: 'Structure', items: [{name: 'Produce', icon: icon('_AsPart'), selected: true}, {name: 'Buy', icon: icon('_AsPart')}], value: 'Produce'}),
      input('RadioButtonGroup', 'provider', {caption: 'Provider', items: items('The usual one', 'Another one'), value: 'The usual one'}),
      input('Button', 'export', {caption: 'Export', icon: icon('BOM/BtnExport'), value: false}),
      input('Image', 'image', {caption: 'Picture', image: '/resources/Resources/BOM/Asm.png'}),
      input('StringValue', 'hidden', {value: 'secret', visible: false}),
      input('Group', 'more', {caption: 'More', expanded: true, inputs: [input('StringValue', 'inner', {caption: 'Inner', value: ''})]})]}),
    input('Tab', 'second', {caption: 'Second', inputs: []})],
  {ok: {text: 'Save and close', visible: true, enabled: false, why: 'the selection "component" needs 1, and has 0'}});
}

const cell = (kind, column, id, more = {}) => input(kind, id, {column, span: 0, ...more});

function rowOf(number, columns) {
  const cells = [cell('Button', 0, `fold_${number}`, {icon: icon('BOM/Part'), caption: ''}), cell('StringValue', 1, `name_${number}`, {value: `part ${number}`, caption: 'Name'})];
  for (let i = 2; i < columns; ++i) cells.push(cell('StringValue', i, `value_${number}_${i}`, {value: `${number} · ${i}`, readOnly: i % 2 === 0, caption: `Column ${i}`}));
  return {cells};
}

/// A table whose first row are headings, with a window of its rows from a position on.
function table(count, columns, id = 'list') {
  const heads = Array.from({length: columns}, (_, i) => cell('Button', i, i ? `head_${i}_0` : '', {caption: i ? `Column ${i}` : ''}));
  const all = Array.from({length: count + 1}, (_, i) => i === 0 ? {cells: heads} : null);
  const made = input('Table', id, {
    caption: 'Parts', columns, ratio: ['1', ...Array.from({length: columns - 1}, () => '3')].join(':'), shownColumns: Array.from({length: columns}, (_, i) => i),
    minimumRows: 2, maximumRows: 10, rowCount: count + 1, shownCount: count + 1, selectedRow: -1, toolbar: []});
  const show = (from, many) => {
    const order = Array.from({length: Math.max(0, Math.min(many, count + 1 - from))}, (_, i) => from + i);
    const rows = Object.fromEntries([0, ...order].map(number => [number, all[number] ??= rowOf(number, columns)]));
    made.window = {first: 0, from, order, rows};
  };
  show(0, 60);
  return {made, show, all};
}

/// A dialog with a table, and what its actions do.
function tableDialog(count, columns) {
  const {made, show, all} = table(count, columns);
  const act = (action, host) => {
    const shown = host.state.dialog?.inputs[0];
    if (action.action === 'view') {
      show(action.from, action.count);
      shown.window = made.window;
    }
    for (const [number, row] of Object.entries(shown?.window.rows ?? {})) {
      const found = row.cells.find(each => each.key === action.input);
      if (!found) continue;
      if (action.action === 'paste') found.value = all[number].cells.find(each => each.key === action.input).value = action.text;
      if (action.action === 'click') shown.selectedRow = Number(number);
    }
  };
  return {dialog: dialog([made], {width: 700, height: 420, caption: 'Parts of the design'}), act};
}

module.exports = {emptyState, everyKind, tableDialog, dialog, input, icon};
