// Writes into the service worker of a site what belongs to this version: node version.mjs SOURCE-OF-sw.js SITE.
// The version is what the contents hash to, so the same contents are the same version, whoever builds them.
import { createHash } from "node:crypto";
import { readFileSync, readdirSync, writeFileSync } from "node:fs";
import { join, relative, sep } from "node:path";

const [, , source, site] = process.argv;
const hash = (content) => createHash("sha256").update(content).digest("base64");

function filesin(folder) {
    return readdirSync(folder, { withFileTypes: true }).flatMap((entry) => {
        const path = join(folder, entry.name);
        return entry.isDirectory() ? filesin(path) : [relative(site, path).split(sep).join("/")];
    });
}

const hashes = (names) => names.sort().map((name) => [name, hash(readFileSync(join(site, name)))]);
const all = filesin(site).filter((name) => name !== "sw.js");
const ismap = (name) => /\/maps\//.test(name);
const own = hashes(all.filter((name) => !ismap(name)));
const made = {
    files: Object.fromEntries(own.map(([name, of]) => [name === "index.html" ? "./" : name, `sha256-${of}`])),
    version: hash(JSON.stringify(own)),
    pictures: hash(JSON.stringify(hashes(all.filter(ismap)))),
};
const worker = readFileSync(source, "utf8");
const filled = worker.replace(/^const made = .*$/m, () => `const made = ${JSON.stringify(made)};`);
if (filled === worker) {
    throw new Error(`${source} has no line "const made = ...".`);
}
writeFileSync(join(site, "sw.js"), filled);
