// Builds the macro workbook from the parts and macros in this folder, the same bytes every time.
//
//   node build.js FILE
'use strict';

const fs = require('node:fs');
const path = require('node:path');
const {zipSync} = require('fflate');
const {vbaProject} = require('./vba_project.js');

// The parts in their order in the file; the content types come first.
const PARTS = [
  ['[Content_Types].xml', 'parts/content_types.xml'],
  ['_rels/.rels', 'parts/rels.xml'],
  ['xl/workbook.xml', 'parts/workbook.xml'],
  ['xl/_rels/workbook.xml.rels', 'parts/workbook_rels.xml'],
  ['xl/worksheets/sheet1.xml', 'parts/bom_sheet.xml'],
  ['xl/worksheets/_rels/sheet1.xml.rels', 'parts/bom_sheet_rels.xml'],
  ['xl/worksheets/sheet2.xml', 'parts/styles_sheet.xml'],
  ['xl/drawings/drawing1.xml', 'parts/button.xml'],
  ['xl/styles.xml', 'parts/styles.xml'],
];
const MACROS = ['ThisWorkbook.cls', 'BomSheet.cls', 'StylesSheet.cls', 'Reload.bas', 'BomTable.bas',
                'CellValues.bas', 'ExportFile.bas', 'Utf8.bas'];

const read = (name) => fs.readFileSync(path.join(__dirname, name));

function macroModule(file) {
  const {name, ext} = path.parse(file);
  return {name, isDocument: ext === '.cls', source: read(`macros/${file}`).toString('utf8')};
}

function workbook() {
  const files = {};
  for (const [name, source] of PARTS) files[name] = read(source);
  files['xl/vbaProject.bin'] = vbaProject(MACROS.map(macroModule));
  // A zip file has local times and none earlier; its date means nothing.
  return zipSync(files, {level: 9, mtime: new Date(1980, 0, 1), os: 0});
}

const target = process.argv[2];
if (!target) {
  console.error('usage: node build.js FILE');
  process.exit(2);
}
fs.writeFileSync(target, workbook());
