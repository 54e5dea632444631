// The run-length compression of VBA projects (MS-OVBA 2.4.1): chunks of 4096 bytes, each a header and
// groups of a flag byte with eight tokens, a token being a byte or a reference to what came before.
'use strict';

const CHUNK = 4096;

// How the 16 bits of a reference are shared between offset and length, by the place in the chunk.
function lengthBits(position) {
  let offsetBits = 4;
  while (1 << offsetBits < position) offsetBits++;
  return 16 - offsetBits;
}

// The longest earlier run that equals what follows, as {offset, length}; length 0 without one.
function longestMatch(chunk, position) {
  const longest = Math.min((1 << lengthBits(position)) + 2, chunk.length - position);
  let best = {offset: 0, length: 0};
  for (let start = position - 1; start >= 0 && best.length < longest; start--) {
    let length = 0;
    while (length < longest && chunk[start + length] === chunk[position + length]) length++;
    if (length > best.length) best = {offset: position - start, length};
  }
  return best.length >= 3 ? best : {offset: 0, length: 0};
}

function compressedChunk(chunk) {
  const bytes = [];
  let position = 0;
  while (position < chunk.length) {
    const flagAt = bytes.push(0) - 1;
    for (let bit = 0; bit < 8 && position < chunk.length; bit++) {
      const match = longestMatch(chunk, position);
      if (match.length === 0) {
        bytes.push(chunk[position++]);
        continue;
      }
      const token = ((match.offset - 1) << lengthBits(position)) | (match.length - 3);
      bytes.push(token & 0xff, token >> 8);
      bytes[flagAt] |= 1 << bit;
      position += match.length;
    }
  }
  return bytes;
}

/** The compressed container of some bytes. Refuses what does not shrink: no macro source is like that. */
function compress(data) {
  const parts = [Buffer.from([1])];
  for (let start = 0; start < data.length; start += CHUNK) {
    const bytes = compressedChunk(data.subarray(start, start + CHUNK));
    if (bytes.length > CHUNK) throw new Error('a chunk that does not shrink');
    const header = Buffer.alloc(2);
    header.writeUInt16LE(0xb000 | (bytes.length - 1));
    parts.push(header, Buffer.from(bytes));
  }
  return Buffer.concat(parts);
}

module.exports = {compress};
