// Binary glTF 2.0 of a drawn assembly, and the page filled with it.
'use strict';
const fs = require('fs');
const path = require('path');

/// `meshes`: {name, parts: [{positions, indices, normals?, color?}], lines?}; `tree`: nodes {name, mesh?, at?, turn?, path?, ...extras, children}.
/// The drawing is in mm with Z up, the file in metres with Y up.
function writeGlb(meshes, tree) {
  const chunks = [], json = {asset: {version: '2.0', generator: 'test'}, scene: 0, scenes: [{nodes: [0]}], nodes: [], meshes: [],
                             accessors: [], bufferViews: [], materials: []};
  let length = 0;
  const accessor = (array, type, componentType, more = {}) => {
    const bytes = Buffer.from(array.buffer, array.byteOffset, array.byteLength);
    json.bufferViews.push({buffer: 0, byteOffset: length, byteLength: bytes.length});
    const padded = Buffer.concat([bytes, Buffer.alloc((4 - bytes.length % 4) % 4)]);
    chunks.push(padded);
    length += padded.length;
    const count = array.length / {SCALAR: 1, VEC3: 3}[type];
    return json.accessors.push({bufferView: json.bufferViews.length - 1, componentType, count, type, ...more}) - 1;
  };
  const bounds = points => ({min: [0, 1, 2].map(k => Math.min(...points.filter((_, i) => i % 3 === k))),
                             max: [0, 1, 2].map(k => Math.max(...points.filter((_, i) => i % 3 === k)))});
  const points = array => accessor(Float32Array.from(array), 'VEC3', 5126, bounds(array));
  const material = color => color && json.materials.push({
    pbrMetallicRoughness: {baseColorFactor: color}, ...color[3] < 1 ? {alphaMode: 'BLEND'} : {}}) - 1;
  for (const {name, parts, lines} of meshes) {
    const primitives = parts.map(({positions, indices, normals, color}) => ({
      attributes: {POSITION: points(positions), ...normals ? {NORMAL: points(normals)} : {}},
      indices: accessor(Uint32Array.from(indices), 'SCALAR', 5125), ...color ? {material: material(color)} : {}}));
    if (lines) primitives.push({attributes: {POSITION: points(lines)}, mode: 1});
    json.meshes.push({name, primitives});
  }
  const add = ({name, mesh, at, turn, children, path, partNumber, component}) => {
    const index = json.nodes.push({name}) - 1;
    const node = json.nodes[index];
    if (mesh !== undefined) node.mesh = mesh;
    if (at) node.translation = at;
    if (turn) node.rotation = turn;
    if (path !== undefined) node.extras = {path, partNumber, component};
    if (children && children.length) node.children = children.map(add);
    return index;
  };
  const half = Math.SQRT1_2;
  json.nodes.push({name: 'assembly', rotation: [-half, 0, 0, half], scale: [0.001, 0.001, 0.001]});
  json.nodes[0].children = tree.map(add);
  if (!json.materials.length) delete json.materials;
  json.buffers = [{byteLength: length}];
  return container(json, Buffer.concat(chunks));
}

function container(json, binary) {
  const text = Buffer.from(JSON.stringify(json));
  const padded = Buffer.concat([text, Buffer.alloc((4 - text.length % 4) % 4, 0x20)]);
  const head = (...words) => Buffer.from(Uint32Array.from(words).buffer);
  return Buffer.concat([head(0x46546c67, 2, 12 + 8 + padded.length + 8 + binary.length), head(padded.length, 0x4e4f534a), padded,
                        head(binary.length, 0x004e4942), binary]);
}

/// Writes the page with this list and model (null: none) to `file`.
function writePage(file, list, glb) {
  const template = fs.readFileSync(path.join(__dirname, '../../web/dist/page.html'), 'utf8');
  const parts = JSON.stringify(list).replaceAll('<', '\\u003c');
  fs.writeFileSync(file, template.replace('@PARTS@', () => parts).replace('@MODEL@', () => glb ? glb.toString('base64') : ''));
}

module.exports = {container, writeGlb, writePage};
