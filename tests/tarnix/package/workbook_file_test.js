// The container of the macros, read back by a reader that shares nothing with its writer.
//
//   SOURCES=tarnix/package/workbook NODE_PATH=... node --test workbook_file_test.js
'use strict';

const assert = require('node:assert');
const fs = require('node:fs');
const path = require('node:path');
const {test} = require('node:test');
const {unzipSync} = require('fflate');

const sources = path.resolve(process.env.SOURCES);
const {compress} = require(path.join(sources, 'vba_compression.js'));
const {compoundFile} = require(path.join(sources, 'compound_file.js'));
const parts = unzipSync(fs.readFileSync(path.join(sources, 'TarnixBOM.xlsm')));
const project = Buffer.from(parts['xl/vbaProject.bin']);

const macro = (file) => fs.readFileSync(path.join(sources, 'macros', file), 'utf8');

function chain(table, first) {
  const sectors = [];
  for (let sector = first; sector !== 0xfffffffe; sector = table.readUInt32LE(sector * 4)) sectors.push(sector);
  return sectors;
}

// A compound file, read as its format prescribes: each name is searched for in its storage's tree.
class Reader {
  constructor(file) {
    this.file = file;
    const fat = [];
    for (let i = 0; i < file.readUInt32LE(44); i++) fat.push(this.sector(file.readUInt32LE(76 + i * 4)));
    this.fat = Buffer.concat(fat);
    this.directory = this.large(file.readUInt32LE(48));
    this.miniFat = this.large(file.readUInt32LE(60));
    this.miniStream = this.large(this.directory.readUInt32LE(116));
  }

  sector(number) { return this.file.subarray(512 * (number + 1), 512 * (number + 2)); }

  large(first) { return Buffer.concat(chain(this.fat, first).map((n) => this.sector(n))); }

  entry(number) {
    const bytes = this.directory.subarray(number * 128, number * 128 + 128);
    const [left, right, child] = [68, 72, 76].map((at) => bytes.readUInt32LE(at));
    return {name: bytes.toString('utf16le', 0, bytes.readUInt16LE(64) - 2), left, right, child,
            start: bytes.readUInt32LE(116), size: bytes.readUInt32LE(120)};
  }

  find(name, number) {
    if (number === 0xffffffff) return undefined;
    const entry = this.entry(number);
    const [own, its] = [name.toUpperCase(), entry.name.toUpperCase()];
    const order = own.length - its.length || (own < its ? -1 : own > its ? 1 : 0);
    if (order === 0) return entry;
    return this.find(name, order < 0 ? entry.left : entry.right);
  }

  stream(...names) {
    const entry = names.reduce((storage, name) => this.find(name, storage.child), this.entry(0));
    const bytes = entry.size >= 4096 ? this.large(entry.start) :
        Buffer.concat(chain(this.miniFat, entry.start).map((n) => this.miniStream.subarray(n * 64, n * 64 + 64)));
    return bytes.subarray(0, entry.size);
  }
}

function decompress(container) {
  const bytes = [];
  let at = 1;
  while (at < container.length) {
    const end = at + (container.readUInt16LE(at) & 0xfff) + 3;
    const chunk = bytes.length;
    at += 2;
    while (at < end) {
      const flags = container[at++];
      for (let bit = 0; bit < 8 && at < end; bit++) {
        if (!(flags >> bit & 1)) {
          bytes.push(container[at++]);
          continue;
        }
        const bits = 16 - Math.max(4, Math.ceil(Math.log2(bytes.length - chunk)));
        const token = container.readUInt16LE(at);
        at += 2;
        for (let i = 0; i < (token & (1 << bits) - 1) + 3; i++) bytes.push(bytes[bytes.length - (token >> bits) - 1]);
      }
    }
  }
  return Buffer.from(bytes).toString('latin1');
}

const reader = new Reader(project);
const unhex = (text) => Buffer.from(text.replace(/ /g, ''), 'hex');

const RUNS = '#aaabcdefaaaaghijaaaaaklaaamnopqaaaaaaaaaaaarstuvwxyzaaa';

// The format leaves open which of several equal runs a writer refers to; this is one writer's choice.
test('TheReaderHereReadsWhatAnotherWriterWrote', () => {
  assert.strictEqual(
      decompress(unhex('01 2F B0 00 23 61 61 61 62 63 64 65 82 66 00 70 61 67 68 69 6A 01 38 08 61 6B 6C 00 30 6D ' +
                       '6E 6F 70 06 71 02 70 04 10 72 73 74 75 76 10 77 78 79 7A 00 3C')),
      RUNS);
});

test('ATextWithRunsComesBackAndIsAsShortAsAnotherWritersIs', () => {
  const bytes = compress(Buffer.from(RUNS));
  assert.strictEqual(decompress(bytes), RUNS);
  assert.strictEqual(bytes.length, 51);
});

test('ATextWithoutRunsIsKeptByteByByte', () => {
  assert.deepStrictEqual(
      compress(Buffer.from('abcdefghijklmnopqrstuv.')),
      unhex('01 19 B0 00 61 62 63 64 65 66 67 68 00 69 6A 6B 6C 6D 6E 6F 70 00 71 72 73 74 75 76 2E'));
});

test('ATextOfSeveralChunksComesBack', () => {
  const text = Array.from({length: 900}, (_, i) => `line ${i * i}\r\n`).join('');
  assert.strictEqual(decompress(compress(Buffer.from(text))), text);
});

test('AStreamTooLongForTheMiniStreamComesBack', () => {
  const long = Buffer.alloc(5000, 'long');
  const file = new Reader(compoundFile({storage: {short: Buffer.from('short'), long}, other: Buffer.from('other')}));
  assert.strictEqual(file.stream('storage', 'short').toString(), 'short');
  assert.deepStrictEqual(file.stream('storage', 'long'), long);
  assert.strictEqual(file.stream('other').toString(), 'other');
});

test('EachModuleHoldsItsSource', () => {
  const files = fs.readdirSync(path.join(sources, 'macros'));
  assert.strictEqual(files.length, 8);
  for (const file of files) {
    const name = path.parse(file).name;
    const text = decompress(reader.stream('VBA', name));
    assert.ok(text.startsWith(`Attribute VB_Name = "${name}"\r\n`));
    assert.ok(text.endsWith(macro(file).replace(/\n/g, '\r\n')));
  }
});

test('TheProjectIsToBeCompiledByWhoeverOpensIt', () => {
  assert.deepStrictEqual(reader.stream('VBA', '_VBA_PROJECT'), unhex('CC 61 FF FF 00 00 00'));
});

test('TheDocumentModulesBearTheCodeNamesOfTheWorkbook', () => {
  const codeNames = ['workbook', 'worksheets/sheet1', 'worksheets/sheet2'].map(
      (part) => Buffer.from(parts[`xl/${part}.xml`]).toString().match(/codeName="(\w+)"/)[1]);
  const documents = [...reader.stream('PROJECT').toString().matchAll(/^Document=(\w+)\//gm)].map((m) => m[1]);
  assert.deepStrictEqual(documents, codeNames);
});

// The obfuscation undone: what follows version, key and the ignored bytes.
function decoded(key) {
  const text = reader.stream('PROJECT').toString();
  const bytes = unhex(text.match(new RegExp(`^${key}="(\\w+)"`, 'm'))[1]);
  const id = text.match(/^ID="(.*)"/)[1];
  assert.strictEqual(bytes[0] ^ bytes[1], 2);
  assert.strictEqual(bytes[0] ^ bytes[2], [...Buffer.from(id)].reduce((sum, c) => sum + c) & 0xff);
  const plain = [];
  let last = bytes[0] ^ bytes[2];
  for (let i = 3; i < bytes.length; i++) plain.push(last = bytes[i] ^ (bytes[i - 2] + last & 0xff));
  return plain.slice((bytes[0] & 6) / 2);
}

test('TheProjectIsNeitherProtectedNorHidden', () => {
  assert.deepStrictEqual(decoded('CMG'), [4, 0, 0, 0, 0, 0, 0, 0]);
  assert.deepStrictEqual(decoded('DPB'), [1, 0, 0, 0, 0]);
  assert.deepStrictEqual(decoded('GC'), [1, 0, 0, 0, 0xff]);
});

test('TheButtonRunsAMacroThatIsThere', () => {
  const button = Buffer.from(parts['xl/drawings/drawing1.xml']).toString();
  const name = button.match(/macro="\[0\]!(\w+)"/)[1];
  assert.match(macro('Reload.bas'), new RegExp(`^Public Sub ${name}\\(\\)$`, 'm'));
});

test('EveryStyleThatAMacroAsksForIsInTheWorkbook', () => {
  const styles = Buffer.from(parts['xl/styles.xml']).toString();
  const asked = ['BOM header', 'BOM mass', ...Array.from({length: 15}, (_, i) => `BOM decimals ${i}`)];
  for (const style of asked) assert.ok(styles.includes(`<cellStyle name="${style}" `), style);
});
