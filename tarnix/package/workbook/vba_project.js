// The macro project of a workbook (MS-OVBA) from plain sources. It holds the sources alone, no compiled
// code: a version of 0xFFFF makes the program that opens it to compile them.
'use strict';

const {compress} = require('./vba_compression.js');
const {compoundFile} = require('./compound_file.js');

const PROJECT_NAME = 'TarnixBom';
const PROJECT_ID = '{6E1B1C0A-52B7-4C0E-9B0A-5C1F60B1A7D3}';
const STDOLE = '*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\\Windows\\System32\\stdole2.tlb#OLE Automation';
// The kinds of object that a document module represents.
const WORKBOOK = '0{00020819-0000-0000-C000-000000000046}';
const WORKSHEET = '0{00020820-0000-0000-C000-000000000046}';

const ansi = (text) => Buffer.from(text, 'latin1');
const wide = (text) => Buffer.from(text, 'utf16le');

function u16(value) {
  const bytes = Buffer.alloc(2);
  bytes.writeUInt16LE(value);
  return bytes;
}

function u32(value) {
  const bytes = Buffer.alloc(4);
  bytes.writeUInt32LE(value);
  return bytes;
}

// A record of the stream "dir": its number, the size of its content, the content.
const record = (id, content = Buffer.alloc(0)) => Buffer.concat([u16(id), u32(content.length), content]);

function moduleRecords(module) {
  return Buffer.concat([
    record(0x0019, ansi(module.name)), record(0x0047, wide(module.name)),
    record(0x001a, ansi(module.name)), record(0x0032, wide(module.name)),  // its stream
    record(0x001c), record(0x0048),                                        // description
    record(0x0031, u32(0)),                                                // the source begins at once
    record(0x001e, u32(0)), record(0x002c, u16(0xffff)),                   // help context, cookie
    record(module.isDocument ? 0x0022 : 0x0021), record(0x002b),
  ]);
}

function dirStream(modules) {
  return Buffer.concat([
    record(0x0001, u32(1)),                                   // Windows, 32 bits: the widest understood
    record(0x0002, u32(0x0409)), record(0x0014, u32(0x0409)), // language
    record(0x0003, u16(1252)), record(0x0004, ansi(PROJECT_NAME)),
    record(0x0005), record(0x0040), record(0x0006), record(0x003d),  // description, help file
    record(0x0007, u32(0)), record(0x0008, u32(0)),
    u16(0x0009), u32(4), u32(1), u16(0),                      // version 1.0
    record(0x000c), record(0x003c),                           // constants
    record(0x0016, ansi('stdole')), record(0x003e, wide('stdole')),
    record(0x000d, Buffer.concat([u32(STDOLE.length), ansi(STDOLE), u32(0), u16(0)])),
    record(0x000f, u16(modules.length)), record(0x0013, u16(0xffff)),
    ...modules.map(moduleRecords),
    record(0x0010),
  ]);
}

/** The obfuscated form of protection data (MS-OVBA 2.4.3.2), in hexadecimal. The seed is free. */
function encrypted(data, seed) {
  const key = ansi(PROJECT_ID).reduce((sum, byte) => sum + byte, 0) & 0xff;
  const result = [seed, seed ^ 2, seed ^ key];
  let previousPlain = key;
  const push = (plain) => {
    result.push(plain ^ ((result.at(-2) + previousPlain) & 0xff));
    previousPlain = plain;
  };
  for (let i = 0; i < (seed & 6) / 2; i++) push(0);
  for (const byte of [...u32(data.length), ...data]) push(byte);
  return Buffer.from(result).toString('hex').toUpperCase();
}

function projectStream(modules) {
  const lines = [
    `ID="${PROJECT_ID}"`,
    ...modules.map((m) => (m.isDocument ? `Document=${m.name}/&H00000000` : `Module=${m.name}`)),
    `Name="${PROJECT_NAME}"`,
    'HelpContextID="0"',
    'VersionCompatible32="393222000"',
    `CMG="${encrypted([0, 0, 0, 0], 0x2c)}"`,  // not protected
    `DPB="${encrypted([0], 0x58)}"`,           // no password
    `GC="${encrypted([0xff], 0x84)}"`,         // visible
    '',
    '[Host Extender Info]',
    '&H00000001={3832D640-CF90-11CF-8E43-00A0C911005A};VBE;&H00000000',
    '',
    '[Workspace]',
    ...modules.map((m) => `${m.name}=0, 0, 0, 0, C`),
  ];
  return ansi(lines.map((line) => `${line}\r\n`).join(''));
}

function nameMap(modules) {
  const names = modules.map((m) => Buffer.concat([ansi(`${m.name}\0`), wide(`${m.name}\0`)]));
  return Buffer.concat([...names, u16(0)]);
}

// The attributes that the editor hides, before the source; lines end in CR LF.
function moduleStream(module) {
  const attributes = [`Attribute VB_Name = "${module.name}"`];
  if (module.isDocument) {
    attributes.push(
        `Attribute VB_Base = "${module.name === 'ThisWorkbook' ? WORKBOOK : WORKSHEET}"`,
        'Attribute VB_GlobalNameSpace = False',
        'Attribute VB_Creatable = False', 'Attribute VB_PredeclaredId = True',
        'Attribute VB_Exposed = True', 'Attribute VB_TemplateDerived = False',
        'Attribute VB_Customizable = True');
  }
  const text = [...attributes, ...module.source.trimEnd().split(/\r?\n/), ''].join('\r\n');
  if (/[^\x00-\x7f]/.test(text)) throw new Error(`${module.name}: a source holds ASCII alone`);
  return compress(ansi(text));
}

/** The file vbaProject.bin of modules {name, isDocument, source}. */
function vbaProject(modules) {
  const streams = Object.fromEntries(modules.map((m) => [m.name, moduleStream(m)]));
  return compoundFile({
    VBA: {
      dir: compress(dirStream(modules)),
      _VBA_PROJECT: Buffer.from('cc61ffff000000', 'hex'),
      ...streams,
    },
    PROJECT: projectStream(modules),
    PROJECTwm: nameMap(modules),
  });
}

module.exports = {vbaProject};
