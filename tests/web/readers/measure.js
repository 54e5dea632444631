// Time, memory, triangles and bytes of the workbench's model of STEP files, beside those of the npm package
// occt-import-js with its own settings.
//
//   node measure.js PROGRAM FILE...
//
// Seconds are of processor time, of all processes and threads; memory is that of the largest process. Triangles and
// bytes are those that are stored: the workbench's of its file.glb, which has each shape once, with tree, names and colours;
// the package's of the arrays of positions, normals and indices that it hands over, and of all that it hands over, written as JSON.
'use strict';
const {spawnSync} = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');

// Runs a command and writes what it used behind its output.
const accounting = `
import resource, subprocess, sys
status = subprocess.call(sys.argv[1:])
used = resource.getrusage(resource.RUSAGE_CHILDREN)
print("\\nused", used.ru_utime + used.ru_stime, used.ru_maxrss * 1024)
sys.exit(status)`;

function run(...command) {
  const {status, stdout, stderr} = spawnSync('python3', ['-c', accounting, ...command], {encoding: 'utf8', maxBuffer: 1 << 26});
  if (status !== 0) throw new Error(`${command.join(' ')} ended with ${status}: ${stderr}`);
  const [, seconds, memory] = /used (\S+) (\S+)/.exec(stdout).map(Number);
  return {seconds, memory, output: stdout + stderr};
}

function ofWorkbench(program, file, model) {
  const {seconds, memory} = run(program, 'parts', file, '--no-cache', '--no-profile', '--quiet', '--output', model);
  const bytes = fs.readFileSync(model);
  const {meshes, accessors} = JSON.parse(bytes.subarray(20, 20 + bytes.readUInt32LE(12)));
  const triangles = meshes.flatMap(each => each.primitives).filter(({mode = 4}) => mode === 4).reduce((sum, {indices}) => sum + accessors[indices].count / 3, 0);
  return {seconds, memory, shapes: meshes.length, triangles, bytes: bytes.length};
}

function ofPackage(file) {
  const {seconds, memory, output} = run(process.execPath, __filename, '--read', file);
  const [, shapes, triangles, bytes] = /read (\d+) (\d+) (\d+)/.exec(output).map(Number);
  const {output: size} = run(process.execPath, __filename, '--write', file);
  return {seconds, memory, shapes, triangles, bytes, json: Number(/written (\d+)/.exec(size)[1])};
}

/// What the second process does.
async function read(file) {
  const occt = await require('occt-import-js')();
  const result = occt.ReadStepFile(new Uint8Array(fs.readFileSync(file)), null), {meshes} = result;
  if (!result.success) throw new Error(`${file} cannot be read`);
  const numbers = meshes.reduce((sum, {attributes, index}) => sum + attributes.position.array.length + (attributes.normal?.array.length ?? 0) + index.array.length, 0);
  console.log(`read ${meshes.length} ${meshes.reduce((sum, {index}) => sum + index.array.length / 3, 0)} ${numbers * 4}`);
  return result;
}

/// What a third one does, so that writing counts in no time.
const write = async file => console.log(`written ${JSON.stringify(await read(file)).length}`);

const cells = ({seconds, memory, shapes, triangles, bytes}) => [seconds.toFixed(2), (memory / 1e6).toFixed(0), shapes, triangles, (bytes / 1000).toFixed(0)];

function main(program, files) {
  console.log(`load average ${os.loadavg().map(each => each.toFixed(1)).join(' ')}`);
  console.log('| File | s | MB | Shapes | Triangles | kB | s | MB | Meshes | Triangles | kB | JSON kB | Time | Bytes | Bytes to JSON |');
  console.log('|---|---|---|---|---|---|---|---|---|---|---|---|---|---|---|');
  const folder = fs.mkdtempSync(path.join(os.tmpdir(), 'readers-'));
  for (const file of files) {
    const ours = ofWorkbench(program, file, path.join(folder, 'model.glb')), theirs = ofPackage(file);
    console.log(`| ${[`\`${path.basename(file)}\``, ...cells(ours), ...cells(theirs), (theirs.json / 1000).toFixed(0), ...[ours.seconds / theirs.seconds, ours.bytes / theirs.bytes, ours.bytes / theirs.json].map(each => each.toFixed(2))].join(' | ')} |`);
  }
  fs.rmSync(folder, {recursive: true});
}

const [first, ...rest] = process.argv.slice(2);
if (first === '--read') read(rest[0]);
else if (first === '--write') write(rest[0]);
else main(first, rest);
