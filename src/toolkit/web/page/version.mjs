// Writes the service worker of a site, with what belongs to this version: node version.mjs SITE
// The version is what the contents hash to, so the same contents are the same version, whoever builds them.
import { createHash } from 'node:crypto';
import { readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const [site] = process.argv.slice(2);
const worker = readFileSync(join(dirname(fileURLToPath(import.meta.url)), 'sw.js'), 'utf8');

const hash = (content) => createHash('sha256').update(content).digest('base64');
const hashes = (names) => names.map((name) => [name, hash(readFileSync(join(site, name)))]);
const filesin = (folder) => readdirSync(join(site, folder), { withFileTypes: true }).flatMap((entry) =>
    entry.isDirectory() ? filesin(`${folder}${entry.name}/`) : [`${folder}${entry.name}`]);

const all = filesin('').sort();
const ismap = (name) => name.includes('/maps/');
const own = hashes(all.filter((name) => name !== 'sw.js' && !ismap(name)));
const made = {
    files: Object.fromEntries(own.map(([name, content]) => [name === 'index.html' ? './' : name, `sha256-${content}`])),
    version: hash(JSON.stringify(own)),
    pictures: hash(JSON.stringify(hashes(all.filter(ismap)))),
};
writeFileSync(join(site, 'sw.js'), worker.replace(/^const made = .*$/m, () => `const made = ${JSON.stringify(made)};`));
