// The state of the host and its actions, as docs/protocol.md describes them.

export interface Control {
  command: string; caption: string; tooltip: string;
  icon: string;  ///< a folder of pictures, or empty
  visible: boolean; promoted: boolean; enabled: boolean;
}

export interface Panel { id: string; caption: string; native: boolean; controls: Control[] }
export interface ToolbarTab { id: string; caption: string; panels: Panel[] }
export interface Workspace { id: string; caption: string; active: boolean; tabs: ToolbarTab[] }

/// The index of a component, the number of the instance, whether it is grounded; null: a place that holds nothing.
export type Child = [number, number, boolean] | null;

export interface TreeComponent { name: string; partNumber: string; children: Child[]; document?: string }

export interface Item { name?: string; icon?: string; selected?: boolean }

export interface Row { cells: Cell[] }

/// What is empty, 0 or false is left out.
export interface Input {
  kind: 'Button' | 'ButtonRow' | 'CheckBox' | 'DropDown' | 'Group' | 'Image' | 'RadioButtonGroup' | 'Selection' | 'StringValue' | 'Tab' | 'Table' | 'TextBox';
  key: number; id: string; caption?: string; tooltip?: string;
  visible?: boolean; enabled?: boolean; fullWidth?: boolean;
  value?: boolean | string;
  text?: string; icon?: string; image?: string;
  items?: Item[]; multiple?: boolean;
  readOnly?: boolean; formatted?: string; lines?: number;
  active?: boolean; expanded?: boolean;
  prompt?: string; picked?: string[]; minimum?: number; maximum?: number;
  inputs?: Input[];
}

export interface Cell extends Input { column?: number; span?: number }

export interface Table extends Input {
  columns?: number; ratio?: string; shownColumns?: number[];
  minimumRows?: number; maximumRows?: number;
  rowCount?: number; shownCount?: number; selectedRow?: number;
  window: {first: number; from: number; order: number[]; rows: Record<string, Row>};
  toolbar?: Input[];
}

export interface Dialog {
  command: string; caption: string; width: number; height: number;
  ok: {text: string; visible: boolean; enabled: boolean; why: string};
  cancel: {text: string};
  inputs: Input[];
}

export interface Message {
  id: number; title: string; text: string;
  icon: 'none' | 'question' | 'information' | 'warning' | 'critical';
  buttons: {answer: string; caption: string}[];
}

export interface Filter { caption: string; patterns: string[] }
export interface FileDialog { id: number; kind: 'open' | 'save' | 'folder'; folder: string; name: string; title: string; filters: Filter[]; filter: number; multiple: boolean }
export interface Progress { text: string; value: number; cancel: string; cancelled: boolean }

export interface Palette {
  id: string; name: string; url: string; address: string;
  dock: 'floating' | 'left' | 'right' | 'top' | 'bottom';
  left: number; top: number; width: number; height: number; closeButton: boolean; resizable: boolean;
}

export interface LogEntry { n: number; kind: 'exception' | 'misuse' | 'message' | 'warning'; event?: string; input?: string; type?: string; text: string }

export interface State {
  document: {name: string; file: string; saveAs: string; changed: boolean; given: string; data: string};
  addin: {name: string; running: boolean};
  workspaces: Workspace[];
  commands: Control[];
  tree: {components: TreeComponent[]};
  selection: string[];
  dialog: Dialog | null;
  message: Message | null;
  fileDialog: FileDialog | null;
  progress: Progress | null;
  busy: string | null;
  palettes: Palette[];
  opened: {n: number; target: string; url: string}[];
  log: LogEntry[];
  model: {revision: number; document: number};  ///< another document wants another camera
}

/// What an action was answered.
export interface Answer { ok?: boolean; revision?: number; waiting?: boolean; error?: string; exists?: boolean; changed?: boolean; commands?: Control[]; status?: number }

export interface FileEntry { name: string; folder: boolean; size?: number }
export interface Folder { folder: string; entries: FileEntry[] }
