// What the page itself says; all else comes from the program.
export const texts = {
  open: 'Open', save: 'Save', saveAs: 'Save As', reload: 'Reload add-in', log: 'Log', more: 'More',
  closeLog: 'Close the log', noLog: 'No exceptions, no misuses.', quickBar: 'Document', workspace: 'Workspace', toolbars: 'Tool bars',
  stopped: 'The add-in is not running.', unsaved: 'not saved', nothing: 'No command here.',
  tree: 'Browser', grounded: 'grounded', external: (name: string) => `in the document ${name}`,
  model: 'Model', home: 'Home view', fit: 'Fit', perspective: 'Perspective', edges: 'Edges', noShapes: 'This design has no shapes.',
  loading: 'Reading the shapes…', noModel: 'The model cannot be shown: ', view: 'View',
  selected: (count: number) => count === 1 ? '1 selected' : `${count} selected`, pick: 'Select', clear: 'Clear the selection', picks: 'Pick in the model or in the browser',
  close: 'Close', cancel: 'Cancel', resize: 'Resize', rows: (count: number) => `${count.toLocaleString('en')} rows`,
  lost: 'The program does not answer. The page goes on as soon as it does.',
  refused: 'The program does not know this page. Open the address that it printed.', connecting: 'Connecting…',
  openTitle: 'Open a design', saveTitle: 'Save the design', fileName: 'File name', filesOfType: 'Files of type', folderUp: 'Folder above', dataFolder: 'Data',
  given: (name: string) => `Open ${name} again`, replaceTitle: 'Replace?', replace: 'Replace', replaceText: (name: string) => `${name} exists already. Replace it?`,
  emptyFolder: 'No such files in this folder.', allFiles: 'All files',
  opened: 'Opened by the add-in', noPage: 'This page is on the web:', working: 'Working…', menu: 'Context menu',
  kinds: {exception: 'Exception', misuse: 'Misuse', message: 'Message', warning: 'Warning'},
} as const;
