// The same box twice: as plain glTF, and quantised and compressed.
'use strict';
const {box} = require('./shapes');
const {container, writeGlb} = require('./glb_writer');

const size = [80, 40, 20];
const node = {name: 'box', mesh: 0, path: 'box:1', partNumber: 'B', component: 'b', at: [10, 20, 30]};

const plain = () => writeGlb([{name: 'box', parts: [box(...size)]}], [node]);

/// Positions as 16-bit numbers that a scale on a node of its own brings back.
function compressed(encoder) {
  const {positions, indices} = box(...size);
  const step = size[0] / 2 / 32767;
  const quantised = new Int16Array(positions.length / 3 * 4);
  for (let i = 0; i < positions.length; ++i) quantised[Math.floor(i / 3) * 4 + i % 3] = Math.round(positions[i] / step);
  const vertices = positions.length / 3;
  const buffers = [
    {bytes: encoder.encodeGltfBuffer(new Uint8Array(quantised.buffer), vertices, 8, 'ATTRIBUTES', 0), count: vertices, byteStride: 8, mode: 'ATTRIBUTES'},
    {bytes: encoder.encodeGltfBuffer(new Uint8Array(Uint16Array.from(indices).buffer), indices.length, 2, 'TRIANGLES'), count: indices.length, byteStride: 2, mode: 'TRIANGLES'}];
  let at = 0;
  const bufferViews = buffers.map(({bytes, count, byteStride, mode}) => {
    const extension = {buffer: 0, byteOffset: at, byteLength: bytes.length, byteStride, count, mode};
    at += bytes.length;
    return {buffer: 1, byteLength: count * byteStride, ...mode === 'ATTRIBUTES' ? {byteStride} : {}, extensions: {EXT_meshopt_compression: extension}};
  });
  const half = Math.SQRT1_2;
  const json = {
    asset: {version: '2.0'}, extensionsUsed: ['KHR_mesh_quantization', 'EXT_meshopt_compression'], extensionsRequired: ['KHR_mesh_quantization', 'EXT_meshopt_compression'],
    scenes: [{nodes: [0]}], meshes: [{primitives: [{attributes: {POSITION: 0}, indices: 1}]}],
    nodes: [{rotation: [-half, 0, 0, half], scale: [0.001, 0.001, 0.001], children: [1]},
            {name: 'box', extras: {path: node.path, partNumber: 'B', component: 'b'}, translation: node.at, children: [2]}, {mesh: 0, scale: [step, step, step]}],
    accessors: [{bufferView: 0, componentType: 5122, count: vertices, type: 'VEC3'}, {bufferView: 1, componentType: 5123, count: indices.length, type: 'SCALAR'}],
    bufferViews, buffers: [{byteLength: at}, {byteLength: 1000, extensions: {EXT_meshopt_compression: {fallback: true}}}]};
  return container(json, Buffer.concat([Buffer.concat(buffers.map(each => each.bytes)), Buffer.alloc((4 - at % 4) % 4)]));
}

module.exports = {compressed, plain};
