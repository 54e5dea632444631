// A compound file (MS-CFB, version 3) of streams in storages, written the same way every time: no
// times, no free sectors, streams in the order given.
'use strict';

const SECTOR = 512;
const MINI_SECTOR = 64;
const MINI_LIMIT = 4096;
const END = 0xfffffffe;
const FREE = 0xffffffff;
const FAT = 0xfffffffd;

const sectorsOf = (size, unit) => Math.ceil(size / unit);

function padded(data, unit, fill = 0) {
  return Buffer.concat([data, Buffer.alloc(sectorsOf(data.length, unit) * unit - data.length, fill)]);
}

function words(values) {
  const buffer = Buffer.alloc(values.length * 4);
  values.forEach((value, index) => buffer.writeUInt32LE(value, index * 4));
  return buffer;
}

// Appends a chain of sectors to an allocation table and returns its first sector.
function allocate(table, count) {
  const first = table.length;
  for (let i = 1; i <= count; i++) table.push(i < count ? first + i : END);
  return count > 0 ? first : END;
}

// The order of names in a directory: the shorter first, then by upper case.
function byName(a, b) {
  if (a.name.length !== b.name.length) return a.name.length - b.name.length;
  return a.name.toUpperCase() < b.name.toUpperCase() ? -1 : 1;
}

// Makes a balanced red-black tree of the entries of one storage: the deepest level is red.
function linkTree(entries) {
  const deepest = Math.floor(Math.log2(entries.length));
  const link = (from, to, depth) => {
    if (from >= to) return FREE;
    const middle = (from + to) >> 1;
    const entry = entries[middle];
    entry.red = depth === deepest && depth > 0;
    entry.left = link(from, middle, depth + 1);
    entry.right = link(middle + 1, to, depth + 1);
    return entry.index;
  };
  entries.sort(byName);
  return link(0, entries.length, 0);
}

// Flattens {name: Buffer or nested object} into directory entries, each storage's tree linked.
function flatten(tree) {
  const entries = [{name: 'Root Entry', type: 5, index: 0, left: FREE, right: FREE}];
  const visit = (storage, children) => {
    const own = Object.entries(children).map(([name, content]) => {
      const entry = {name, index: entries.length, type: Buffer.isBuffer(content) ? 2 : 1, child: FREE};
      entries.push(entry);
      if (entry.type === 2) entry.content = content;
      else visit(entry, content);
      return entry;
    });
    storage.child = linkTree(own);
  };
  visit(entries[0], tree);
  return entries;
}

function directoryEntry(entry) {
  const bytes = Buffer.alloc(128);
  bytes.write(entry.name, 0, 'utf16le');
  bytes.writeUInt16LE((entry.name.length + 1) * 2, 64);
  bytes[66] = entry.type;
  bytes[67] = entry.red ? 0 : 1;
  [entry.left, entry.right, entry.child ?? FREE].forEach((value, i) => bytes.writeUInt32LE(value, 68 + i * 4));
  bytes.writeUInt32LE(entry.start ?? 0, 116);
  bytes.writeUInt32LE(entry.size ?? 0, 120);
  return bytes;
}

const UNUSED_ENTRY = (() => {
  const bytes = Buffer.alloc(128);
  bytes.fill(0xff, 68, 80);
  return bytes;
})();

function header(fatSectors, directoryStart, miniFatStart, miniFatCount) {
  if (fatSectors.length > 109) throw new Error('a compound file of this size is not foreseen');
  const bytes = Buffer.alloc(SECTOR, 0xff);
  bytes.fill(0, 0, 76);
  Buffer.from('d0cf11e0a1b11ae1', 'hex').copy(bytes);
  // Minor and major version, byte order, sector shift, mini sector shift.
  [0x003e, 3, 0xfffe, 9, 6].forEach((value, i) => bytes.writeUInt16LE(value, 24 + i * 2));
  bytes.writeUInt32LE(fatSectors.length, 44);
  bytes.writeUInt32LE(directoryStart, 48);
  bytes.writeUInt32LE(MINI_LIMIT, 56);
  bytes.writeUInt32LE(miniFatStart, 60);
  bytes.writeUInt32LE(miniFatCount, 64);
  bytes.writeUInt32LE(END, 68);
  words(fatSectors).copy(bytes, 76);
  return bytes;
}

/** The bytes of a compound file. The tree maps names to buffers (streams) or objects (storages). */
function compoundFile(tree) {
  const entries = flatten(tree);
  const fat = [];
  const miniFat = [];
  const large = [];
  const small = [];
  for (const entry of entries.filter((e) => e.type === 2)) {
    entry.size = entry.content.length;
    if (entry.size >= MINI_LIMIT) {
      entry.start = allocate(fat, sectorsOf(entry.size, SECTOR));
      large.push(padded(entry.content, SECTOR));
    } else {
      entry.start = allocate(miniFat, sectorsOf(entry.size, MINI_SECTOR));
      small.push(padded(entry.content, MINI_SECTOR));
    }
  }
  const miniStream = Buffer.concat(small);
  entries[0].size = miniStream.length;
  entries[0].start = allocate(fat, sectorsOf(miniStream.length, SECTOR));
  const miniTable = padded(words(miniFat), SECTOR, 0xff);
  const miniFatStart = allocate(fat, miniTable.length / SECTOR);
  const directory = entries.map(directoryEntry);
  while (directory.length % 4 > 0) directory.push(UNUSED_ENTRY);
  const directoryStart = allocate(fat, directory.length / 4);

  const fatSectors = [];
  while (fatSectors.length < sectorsOf(fat.length * 4, SECTOR)) {
    fatSectors.push(fat.length);
    fat.push(FAT);
  }
  return Buffer.concat([
    header(fatSectors, directoryStart, miniFatStart, miniTable.length / SECTOR),
    ...large, padded(miniStream, SECTOR), miniTable, ...directory, padded(words(fat), SECTOR, 0xff),
  ]);
}

module.exports = {compoundFile};
