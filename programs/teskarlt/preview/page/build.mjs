// build.mjs - bundles the page and writes it as a C++ source: node build.mjs OUTPUT
import { build } from "esbuild";
import { readFileSync, writeFileSync } from "node:fs";
import { fileURLToPath } from "node:url";

const PIECE = 8000; // characters of a line of the C++ source

const here = (name) => fileURLToPath(new URL(name, import.meta.url));
const bundled = async (name) => {
  const result = await build({
    entryPoints: [here(name)],
    bundle: true,
    minify: true,
    write: false,
    format: "iife",
    target: "es2020",
    legalComments: "inline",
    logLevel: "warning",
  });
  return result.outputFiles[0].text.trim();
};

const page = readFileSync(here("page.html"), "utf8")
  .replace("PAGE_STYLE", await bundled("style.css").then((text) => () => text))
  .replace("PAGE_SCRIPT", await bundled("main.js").then((text) => () => text));

// A text as C++ string literals, one a line: quotes, backslashes and question marks (trigraphs) escaped, bytes beyond ASCII as octal escapes.
const literals = (text) => {
  const escaped = [...Buffer.from(text, "utf8")].map((byte) => {
    if ('"\\?'.includes(String.fromCharCode(byte))) return "\\" + String.fromCharCode(byte);
    if (byte >= 0x20 && byte < 0x7f) return String.fromCharCode(byte);
    return "\\" + byte.toString(8).padStart(3, "0");
  });
  const lines = [];
  for (let i = 0; i < escaped.length; i += PIECE) lines.push(`    "${escaped.slice(i, i + PIECE).join("")}"`);
  return lines.join("\n");
};

writeFileSync(
  process.argv[2],
  `// Made by build.mjs from the sources of the page.
#include "teskarlt/preview/PageTemplate.h"

namespace teskarlt::preview {

std::string_view PageTemplate() {
  static constexpr char page[] =
${literals(page)};
  return {page, sizeof page - 1};
}

}  // namespace teskarlt::preview
`,
);
