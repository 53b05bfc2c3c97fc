// Puts the page together: node pack.mjs PROGRAM DATA OUT
// PROGRAM has brindor-web.js and .wasm, DATA what the data of a native build is made in, with the icons beside it; OUT
// gets the folder site/, for any static server, and brindor.html, one file with everything but the maps.
import { execFileSync } from 'node:child_process';
import { cpSync, mkdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const [program, data, out] = process.argv.slice(2);
const page = dirname(fileURLToPath(import.meta.url));
const site = join(out, 'site');

const bundled = (file, ...options) =>
    execFileSync('esbuild', [join(page, file), '--minify', '--charset=utf8', ...options], { encoding: 'utf8' });
const files = {
    'index.html': readFileSync(join(page, 'index.html'), 'utf8'),
    'page.js': bundled('main.js', '--bundle', '--format=iife'),
    'style.css': bundled('style.css'),
};
const periods = ['Ancient.bd3', 'Classic.bd3', 'Medieval.bd3', 'Modern.bd3'];
const fetched = { 'bdqord.txt': 'text/plain', 'title.jpg': 'image/jpeg' };
periods.forEach((name) => { fetched[name] = 'application/octet-stream'; });

rmSync(site, { recursive: true, force: true });
mkdirSync(site, { recursive: true });
for (const [name, text] of Object.entries(files)) {
    writeFileSync(join(site, name), text);
}
for (const name of ['brindor-web.js', 'brindor-web.wasm']) {
    cpSync(join(program, name), join(site, name));
}
for (const name of Object.keys(fetched)) {
    cpSync(join(data, name === 'title.jpg' ? 'web' : 'made', name), join(site, name));
}
cpSync(join(page, 'manifest.webmanifest'), join(site, 'manifest.webmanifest'));
for (const name of ['brindor.svg', 'brindor-256.png']) {
    cpSync(join(data, '..', 'icons', name), join(site, name));
}
for (const period of periods) {
    const maps = join(period.replace('.bd3', '').toLowerCase(), 'maps');
    cpSync(join(data, 'made', maps), join(site, maps), { recursive: true });
}

execFileSync('node', [join(page, 'version.mjs'), site]);

// Everything in one: what would be fetched stands in the page as data addresses.
const embedded = Object.entries({ ...fetched, 'brindor-web.wasm': 'application/wasm' }).map(([name, type]) =>
    [name, `data:${type};base64,${readFileSync(join(site, name), 'base64')}`]);
const script = (text) => `<script>${text.replaceAll('</script', '<\\/script')}</script>`;
const icon = `data:image/svg+xml;base64,${readFileSync(join(site, 'brindor.svg'), 'base64')}`;
const whole = files['index.html']
    .replace(/<link rel="(apple-touch-icon|manifest)".*\n/g, '')
    .replace('brindor.svg', () => icon)
    .replace('<link rel="stylesheet" href="style.css">', () => `<style>${files['style.css']}</style>`)
    .replace('<script src="brindor-web.js"></script>', () =>
        script(`embedded=${JSON.stringify(Object.fromEntries(embedded))}`) +
        script(readFileSync(join(site, 'brindor-web.js'), 'utf8')))
    .replace('<script src="page.js"></script>', () => script(files['page.js']));
writeFileSync(join(out, 'brindor.html'), whole);
