// validate.js FILE.glb ...: fails where the validator of glTF's authors finds an error, or a model without a mesh.
'use strict';
const fs = require('node:fs');
const validator = require('gltf-validator');

async function main(files) {
  let faults = 0;
  for (const file of files) {
    const report = await validator.validateBytes(new Uint8Array(fs.readFileSync(file)), {maxIssues: 10});
    const {numErrors, numWarnings, messages} = report.issues;
    const {drawCallCount, totalTriangleCount} = report.info;
    console.log(`${file}: ${numErrors} errors, ${numWarnings} warnings, ${drawCallCount} draw calls, ` +
                `${totalTriangleCount} triangles`);
    for (const message of messages.filter(each => each.severity < 2)) {
      console.log(`  ${message.code} ${message.pointer ?? ''}: ${message.message}`);
    }
    faults += numErrors + (totalTriangleCount > 0 ? 0 : 1);
  }
  if (files.length === 0 || faults > 0) {
    throw new Error(`${faults} faults in ${files.length} models`);
  }
}

main(process.argv.slice(2)).catch(error => {
  console.error(error.message);
  process.exit(1);
});
