// validate.mjs - prints what the validator of glTF says of a model, as JSON: node validate.mjs FILE
import { readFileSync } from "node:fs";
import validator from "gltf-validator";

const report = await validator.validateBytes(new Uint8Array(readFileSync(process.argv[2])));
console.log(JSON.stringify(report.issues.messages));
