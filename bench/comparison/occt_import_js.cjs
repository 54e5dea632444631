// Reads a STEP file with occt-import-js, and lists its meshes. It measures no volumes, and makes
// triangles of all faces, which cannot be left out.
//
//     node occt_import_js.cjs FILE
const fs = require("fs");
const path = require("path");

const folder = process.env.TARNIX_COMPARISON || __dirname;
const start = require(path.join(folder, "node_modules", "occt-import-js"));

start().then((library) => {
    const result = library.ReadStepFile(new Uint8Array(fs.readFileSync(process.argv[2])), null);
    if (!result.success) {
        console.error(process.argv[2] + ": cannot be read");
        process.exit(1);
    }
    for (const mesh of result.meshes) {
        console.log(mesh.name, mesh.index.array.length / 3);
    }
});
